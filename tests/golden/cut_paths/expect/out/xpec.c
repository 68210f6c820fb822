/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutPaths
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pePOf8xxxxx (ASNG_F(ASNPERG *asnperg) POf8xxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pe_Boolean (home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void peTOf8xxxxx (ASNG_F(ASNPERG *asnperg) TOf8xxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of8xxxxxA_fld");
  pe_Boolean (home->of8xxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 14);
  pp_pushPath (ASNG_F(asnperg) "of8xxxxxL_fld");
  pe_lenDet_al_clt64K_le255 (listLen (&home->of8xxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->of8xxxxxL_fld); a1; a1 =
      nextListItem (a1)){
      pp_pushElem (ASNG_F(asnperg) listLen (&home->of8xxxxxL_fld));
      pePOf8xxxxx (ASNG_F(asnperg) (POf8xxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
  pp_popPath (ASNG_F(asnperg) 14);
  pp_pushPath (ASNG_F(asnperg) "of8xxxxxC_fld");
  switch (home->of8xxxxxC_fld.choice){
    case 0:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.of8xxxxxD_fld");
        pe_Boolean (home->of8xxxxxC_fld.i1.of8xxxxxD_fld);
        pp_popPath (ASNG_F(asnperg) 17);
      }
      break;
  }
  pp_popPath (ASNG_F(asnperg) 14);
}

void pecTOf8xxxxx (ASNG_F(ASNPERG *asnperg) TOf8xxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf8xxxxx");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peTOf8xxxxx (ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 10);
}

void pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  POf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pe_Boolean (home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void peTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld");
  pe_Boolean (home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 34);
  pp_pushPath (ASNG_F(asnperg) "of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld");
  pe_lenDet_al_clt64K_le255 (listLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld); a1;
      a1 = nextListItem (a1)){
      pp_pushElem (ASNG_F(asnperg)
        listLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld));
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
  pp_popPath (ASNG_F(asnperg) 34);
  pp_pushPath (ASNG_F(asnperg) "of28xxxxxxxxxxxxxxxxxxxxxxxxC_fld");
  switch (home->of28xxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice){
    case 0:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld");
        pe_Boolean (
          home->of28xxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld);
        pp_popPath (ASNG_F(asnperg) 37);
      }
      break;
  }
  pp_popPath (ASNG_F(asnperg) 34);
}

void pecTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf28xxxxxxxxxxxxxxxxxxxxxxxx");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 30);
}

void pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pe_Boolean (home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void peTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld");
  pe_Boolean (
    home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 61);
  pp_pushPath (ASNG_F(asnperg) "of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld");
  pe_lenDet_al_clt64K_le255 (listLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 =
      firstListItem (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
      a1; a1 = nextListItem (a1)){
      pp_pushElem (ASNG_F(asnperg)
        listLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld));
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
  pp_popPath (ASNG_F(asnperg) 61);
  pp_pushPath (ASNG_F(asnperg) "of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld");
  switch (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice){
    case 0:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld");
        pe_Boolean (
          home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld);
        pp_popPath (ASNG_F(asnperg) 64);
      }
      break;
  }
  pp_popPath (ASNG_F(asnperg) 61);
}

void pecTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) 
    home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 57);
}

void pePOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  POf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pe_Boolean (home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void peTOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld");
  pe_Boolean (
    home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 62);
  pp_pushPath (ASNG_F(asnperg) "of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld");
  pe_lenDet_al_clt64K_le255 (listLen (&home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 =
      firstListItem (&home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
      a1; a1 = nextListItem (a1)){
      pp_pushElem (ASNG_F(asnperg)
        listLen (&home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld));
      pePOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
  pp_popPath (ASNG_F(asnperg) 62);
  pp_pushPath (ASNG_F(asnperg) "of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld");
  switch (home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice){
    case 0:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld");
        pe_Boolean (
          home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld);
        pp_popPath (ASNG_F(asnperg) 65);
      }
      break;
  }
  pp_popPath (ASNG_F(asnperg) 62);
}

void pecTOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peTOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 58);
}

void peDeep (ASNG_F(ASNPERG *asnperg) Deep *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pp_pushPath (ASNG_F(asnperg) "a_fld");
    {
      {
        sint32 optfield_1 = 0;
        if (home->a_fld.compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((home->a_fld.compmask & BIT(0))){
        pp_pushPath (ASNG_F(asnperg) "a_fld");
        {
          {
            sint32 optfield_2 = 0;
            if (home->a_fld.a_fld.compmask & BIT(0)){
              optfield_2 |= BITL(0);
            }
            pe_optField (optfield_2, 1);
          }
          if ((home->a_fld.a_fld.compmask & BIT(0))){
            pp_pushPath (ASNG_F(asnperg) "a_fld");
            {
              {
                sint32 optfield_3 = 0;
                if (home->a_fld.a_fld.a_fld.compmask & BIT(0)){
                  optfield_3 |= BITL(0);
                }
                pe_optField (optfield_3, 1);
              }
              if ((home->a_fld.a_fld.a_fld.compmask & BIT(0))){
                pp_pushPath (ASNG_F(asnperg) "a_fld");
                {
                  {
                    sint32 optfield_4 = 0;
                    if (home->a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                      optfield_4 |= BITL(0);
                    }
                    pe_optField (optfield_4, 1);
                  }
                  if ((home->a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                    pp_pushPath (ASNG_F(asnperg) "a_fld");
                    {
                      {
                        sint32 optfield_5 = 0;
                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                          optfield_5 |= BITL(0);
                        }
                        pe_optField (optfield_5, 1);
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                        pp_pushPath (ASNG_F(asnperg) "a_fld");
                        {
                          {
                            sint32 optfield_6 = 0;
                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                              optfield_6 |= BITL(0);
                            }
                            pe_optField (optfield_6, 1);
                          }
                          if (
                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                            pp_pushPath (ASNG_F(asnperg) "a_fld");
                            {
                              {
                                sint32 optfield_7 = 0;
                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                  optfield_7 |= BITL(0);
                                }
                                pe_optField (optfield_7, 1);
                              }
                              if (
                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                pp_pushPath (ASNG_F(asnperg) "a_fld");
                                {
                                  {
                                    sint32 optfield_8 = 0;
                                    if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                      optfield_8 |= BITL(0);
                                    }
                                    pe_optField (optfield_8, 1);
                                  }
                                  if (
                                    (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                    pp_pushPath (ASNG_F(asnperg) "a_fld");
                                    {
                                      {
                                        sint32 optfield_9 = 0;
                                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                          optfield_9 |= BITL(0);
                                        }
                                        pe_optField (optfield_9, 1);
                                      }
                                      if (
                                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                        pp_pushPath (ASNG_F(asnperg) "a_fld");
                                        {
                                          {
                                            sint32 optfield_10 = 0;
                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                              optfield_10 |= BITL(0);
                                            }
                                            pe_optField (optfield_10, 1);
                                          }
                                          if (
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                            pp_pushPath (ASNG_F(asnperg) "a_fld");
                                            {
                                              {
                                                sint32 optfield_11 = 0;
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                  optfield_11 |= BITL(0);
                                                }
                                                pe_optField (optfield_11, 1);
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                {
                                                  {
                                                    sint32 optfield_12 = 0;
                                                    if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                      optfield_12 |= BITL(0);
                                                    }
                                                    pe_optField (optfield_12, 
                                                      1);
                                                  }
                                                  if (
                                                    (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                    pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                    {
                                                      {
                                                        sint32 optfield_13 = 0;
                                                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                          optfield_13
                                                            |= BITL(0);
                                                        }
                                                        pe_optField (
                                                          optfield_13, 1);
                                                      }
                                                      if (
                                                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                        pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                        {
                                                          {
                                                            sint32 optfield_14
                                                              = 0;
                                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                              optfield_14
                                                                |= BITL(0);
                                                            }
                                                            pe_optField (
                                                              optfield_14, 1);
                                                          }
                                                          if (
                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                            pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                            {
                                                              {
                                                                sint32 
                                                                  optfield_15
                                                                  = 0;
                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                                  optfield_15
                                                                    |= BITL(0);
                                                                }
                                                                pe_optField (
                                                                  optfield_15, 
                                                                  1);
                                                              }
                                                              if (
                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                                pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                                pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld), 1, 3, 2);
                                                                {
                                                                  uint32 n1 = 0;
                                                                  for (n1 = 0; n1 < 
                                                                    staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld);
                                                                    n1++){
                                                                    pp_pushElem (ASNG_F(asnperg)
                                                                      n1);
                                                                    pe_Boolean (
                                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.elem [n1]);
                                                                    pp_popPath (ASNG_F(asnperg) 0);
                                                                  }
                                                                }
                                                                pp_popPath (ASNG_F(asnperg) 6);
                                                              }
                                                            }
                                                            pp_popPath (ASNG_F(asnperg) 6);
                                                          }
                                                        }
                                                        pp_popPath (ASNG_F(asnperg) 6);
                                                      }
                                                    }
                                                    pp_popPath (ASNG_F(asnperg) 6);
                                                  }
                                                }
                                                pp_popPath (ASNG_F(asnperg) 6);
                                              }
                                            }
                                            pp_popPath (ASNG_F(asnperg) 6);
                                          }
                                        }
                                        pp_popPath (ASNG_F(asnperg) 6);
                                      }
                                    }
                                    pp_popPath (ASNG_F(asnperg) 6);
                                  }
                                }
                                pp_popPath (ASNG_F(asnperg) 6);
                              }
                            }
                            pp_popPath (ASNG_F(asnperg) 6);
                          }
                        }
                        pp_popPath (ASNG_F(asnperg) 6);
                      }
                    }
                    pp_popPath (ASNG_F(asnperg) 6);
                  }
                }
                pp_popPath (ASNG_F(asnperg) 6);
              }
            }
            pp_popPath (ASNG_F(asnperg) 6);
          }
        }
        pp_popPath (ASNG_F(asnperg) 6);
      }
    }
    pp_popPath (ASNG_F(asnperg) 6);
  }
}
