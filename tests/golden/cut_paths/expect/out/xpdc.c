/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutPaths
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdPOf8xxxxx (ASNG_F(ASNPERG *asnperg) POf8xxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pd_Boolean (&home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void pdTOf8xxxxx (ASNG_F(ASNPERG *asnperg) TOf8xxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of8xxxxxA_fld");
  pd_Boolean (&home->of8xxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 14);
  pp_pushPath (ASNG_F(asnperg) "of8xxxxxL_fld");
  listInit (&home->of8xxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of8xxxxxL_fld) < len_1){
      appendList (NULL, &home->of8xxxxxL_fld, &a1, VF_STRU,
        sizeof (POf8xxxxx));
      pp_pushElem (ASNG_F(asnperg) listLen (&home->of8xxxxxL_fld));
      pdPOf8xxxxx (ASNG_F(asnperg) (POf8xxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
      incListLen (&home->of8xxxxxL_fld);
    }
  }
  pp_popPath (ASNG_F(asnperg) 14);
  pp_pushPath (ASNG_F(asnperg) "of8xxxxxC_fld");
  home->of8xxxxxC_fld.choice = 0;
  pp_pushPath (ASNG_F(asnperg) "i1.of8xxxxxD_fld");
  pd_Boolean (&home->of8xxxxxC_fld.i1.of8xxxxxD_fld);
  pp_popPath (ASNG_F(asnperg) 17);
  pp_popPath (ASNG_F(asnperg) 14);
}

void pdcTOf8xxxxx (ASNG_F(ASNPERG *asnperg) TOf8xxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf8xxxxx");
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdTOf8xxxxx (ASNG_F(asnperg) home);
  pd_end ();
  pp_popPath (ASNG_F(asnperg) 10);
}

void pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  POf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pd_Boolean (&home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void pdTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld");
  pd_Boolean (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 34);
  pp_pushPath (ASNG_F(asnperg) "of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld");
  listInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld) < len_1){
      appendList (NULL, &home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld, &a1,
        VF_STRU, sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx));
      pp_pushElem (ASNG_F(asnperg)
        listLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld));
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
      incListLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld);
    }
  }
  pp_popPath (ASNG_F(asnperg) 34);
  pp_pushPath (ASNG_F(asnperg) "of28xxxxxxxxxxxxxxxxxxxxxxxxC_fld");
  home->of28xxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 0;
  pp_pushPath (ASNG_F(asnperg) "i1.of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld");
  pd_Boolean (
    &home->of28xxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld);
  pp_popPath (ASNG_F(asnperg) 37);
  pp_popPath (ASNG_F(asnperg) 34);
}

void pdcTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf28xxxxxxxxxxxxxxxxxxxxxxxx");
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) home);
  pd_end ();
  pp_popPath (ASNG_F(asnperg) 30);
}

void pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pd_Boolean (&home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void pdTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld");
  pd_Boolean (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 61);
  pp_pushPath (ASNG_F(asnperg) "of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld");
  listInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld) <
      len_1){
      appendList (NULL,
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld,
        &a1, VF_STRU,
        sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pp_pushElem (ASNG_F(asnperg)
        listLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld));
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
      incListLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
    }
  }
  pp_popPath (ASNG_F(asnperg) 61);
  pp_pushPath (ASNG_F(asnperg) "of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld");
  home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 0;
  pp_pushPath (ASNG_F(asnperg) "i1.of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld");
  pd_Boolean (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld);
  pp_popPath (ASNG_F(asnperg) 64);
  pp_popPath (ASNG_F(asnperg) 61);
}

void pdcTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx");
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) 
    home);
  pd_end ();
  pp_popPath (ASNG_F(asnperg) 57);
}

void pdPOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  POf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pd_Boolean (&home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void pdTOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld");
  pd_Boolean (
    &home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  pp_popPath (ASNG_F(asnperg) 62);
  pp_pushPath (ASNG_F(asnperg) "of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld");
  listInit (
    &home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld) <
      len_1){
      appendList (NULL,
        &home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld,
        &a1, VF_STRU,
        sizeof (POf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pp_pushElem (ASNG_F(asnperg)
        listLen (&home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld));
      pdPOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
      incListLen (
        &home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
    }
  }
  pp_popPath (ASNG_F(asnperg) 62);
  pp_pushPath (ASNG_F(asnperg) "of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld");
  home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 0;
  pp_pushPath (ASNG_F(asnperg) "i1.of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld");
  pd_Boolean (
    &home->of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.of56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld);
  pp_popPath (ASNG_F(asnperg) 65);
  pp_popPath (ASNG_F(asnperg) 62);
}

void pdcTOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pp_pushPath (ASNG_F(asnperg) "TOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx");
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdTOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_F(asnperg) home);
  pd_end ();
  pp_popPath (ASNG_F(asnperg) 58);
}

void pdDeep (ASNG_F(ASNPERG *asnperg) Deep *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pp_pushPath (ASNG_F(asnperg) "a_fld");
      home->a_fld.compmask = 0;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          home->a_fld.compmask |= BIT(0);
          pp_pushPath (ASNG_F(asnperg) "a_fld");
          home->a_fld.a_fld.compmask = 0;
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            if (optfield_2 & BITL(0)){
              home->a_fld.a_fld.compmask |= BIT(0);
              pp_pushPath (ASNG_F(asnperg) "a_fld");
              home->a_fld.a_fld.a_fld.compmask = 0;
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                if (optfield_3 & BITL(0)){
                  home->a_fld.a_fld.a_fld.compmask |= BIT(0);
                  pp_pushPath (ASNG_F(asnperg) "a_fld");
                  home->a_fld.a_fld.a_fld.a_fld.compmask = 0;
                  {
                    sint32 optfield_4;
                    optfield_4 = pd_getBits (1);
                    if (optfield_4 & BITL(0)){
                      home->a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                      pp_pushPath (ASNG_F(asnperg) "a_fld");
                      home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                      {
                        sint32 optfield_5;
                        optfield_5 = pd_getBits (1);
                        if (optfield_5 & BITL(0)){
                          home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                          pp_pushPath (ASNG_F(asnperg) "a_fld");
                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                          {
                            sint32 optfield_6;
                            optfield_6 = pd_getBits (1);
                            if (optfield_6 & BITL(0)){
                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                              pp_pushPath (ASNG_F(asnperg) "a_fld");
                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                              {
                                sint32 optfield_7;
                                optfield_7 = pd_getBits (1);
                                if (optfield_7 & BITL(0)){
                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                  pp_pushPath (ASNG_F(asnperg) "a_fld");
                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                  {
                                    sint32 optfield_8;
                                    optfield_8 = pd_getBits (1);
                                    if (optfield_8 & BITL(0)){
                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                      pp_pushPath (ASNG_F(asnperg) "a_fld");
                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                      {
                                        sint32 optfield_9;
                                        optfield_9 = pd_getBits (1);
                                        if (optfield_9 & BITL(0)){
                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                          pp_pushPath (ASNG_F(asnperg) "a_fld");
                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                          {
                                            sint32 optfield_10;
                                            optfield_10 = pd_getBits (1);
                                            if (optfield_10 & BITL(0)){
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                              pp_pushPath (ASNG_F(asnperg) "a_fld");
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                              {
                                                sint32 optfield_11;
                                                optfield_11 = pd_getBits (1);
                                                if (optfield_11 & BITL(0)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                  pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                  {
                                                    sint32 optfield_12;
                                                    optfield_12
                                                      = pd_getBits (1);
                                                    if (optfield_12 & BITL(0)){
                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                      pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                      {
                                                        sint32 optfield_13;
                                                        optfield_13
                                                          = pd_getBits (1);
                                                        if (optfield_13
                                                          & BITL(0)){
                                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                          pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                          {
                                                            sint32 optfield_14;
                                                            optfield_14
                                                              = pd_getBits (1);
                                                            if (optfield_14
                                                              & BITL(0)){
                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                              pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                              {
                                                                sint32 
                                                                  optfield_15;
                                                                optfield_15
                                                                  = pd_getBits (1);
                                                                if (
                                                                  optfield_15
                                                                  & BITL(0)){
                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                                  pp_pushPath (ASNG_F(asnperg) "a_fld");
                                                                  staArrInit (
                                                                    &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld);
                                                                  {
                                                                    uint32 n1 = 0;
                                                                    uint32 len_16;
                                                                    pd_lenDet_al_clt64K_le255 (&len_16, 1, 3, 2);
                                                                    while (n1 <
                                                                      len_16){
                                                                      pp_pushElem (ASNG_F(asnperg)
                                                                        n1);
                                                                      pd_Boolean (
                                                                        &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.elem [n1]);
                                                                      pp_popPath (ASNG_F(asnperg) 0);
                                                                      incStaArrLen (
                                                                        &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld);
                                                                      n1++;
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
}
