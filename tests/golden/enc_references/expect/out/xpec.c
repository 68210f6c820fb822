/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = References
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peInstances (ASNG_F(ASNPERG *asnperg) Instances *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  {
    {
      sint32 optfield_1 = 0;
      if (home->a_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->a_fld.compmask & BIT(0))){
      pe_Boolean (home->a_fld.a_fld);
    }
  }
  if ((home->compmask & BIT(1))){
    {
      ASNPEROPENCTX openctx_1;
      BOOLE extensionBit_1 = (home->b_fld.choice > 1);
      pe_extensionBit (extensionBit_1);
      if (extensionBit_1){
        pe_ChoiceIndex_al_ns (home->b_fld.choice - 2);
      }
      switch (home->b_fld.choice){
        case 0:
          {
            pe_Boolean (home->b_fld.i1.a_fld);
          }
          break;
        case 2:
          {
            pe_BeginOpenType_al (&openctx_1);
            pe_Boolean (home->b_fld.i1.b_fld);
            pe_EndOpenType_al (&openctx_1);
          }
          break;
      }
    }
  }
  pe_ChoiceIndex_al_le255 (home->c_fld.choice, 1, 1);
  switch (home->c_fld.choice){
    case 0:
      {
        pe_NullType ();
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->d_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->d_fld); n1++){
      pe_NullType ();
    }
  }
  {
    {
      sint32 optfield_1 = 0;
      if (home->e_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->e_fld.compmask & BIT(0))){
      {
        ASNPEROPENCTX openctx_2;
        BOOLE extensionBit_2 = (home->e_fld.a_fld.choice > 1);
        pe_extensionBit (extensionBit_2);
        if (extensionBit_2){
          pe_ChoiceIndex_al_ns (home->e_fld.a_fld.choice - 2);
        }
        switch (home->e_fld.a_fld.choice){
          case 0:
            {
              pe_NullType ();
            }
            break;
          case 2:
            {
              pe_BeginOpenType_al (&openctx_2);
              pe_NullType ();
              pe_EndOpenType_al (&openctx_2);
            }
            break;
        }
      }
    }
  }
}

void peSelections (ASNG_F(ASNPERG *asnperg) Selections *home)
{
  {
    pe_Boolean (home->a_fld.a_fld);
  }
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = (home->b_fld.choice > 1);
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      pe_ChoiceIndex_al_ns (home->b_fld.choice - 2);
    }
    switch (home->b_fld.choice){
      case 0:
        {
          pe_NullType ();
        }
        break;
      case 2:
        {
          pe_BeginOpenType_al (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_al (&openctx_1);
        }
        break;
    }
  }
}

void peDefined (ASNG_F(ASNPERG *asnperg) Defined *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_NullType ();
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peInstances (ASNG_F(asnperg) &home->a_fld);
  peSelections (ASNG_F(asnperg) &home->b_fld);
  peDefined (ASNG_F(asnperg) &home->c_fld);
  peDefined (ASNG_F(asnperg) &home->d_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
