/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Sequences
 * FILE = seqpec.c
 ****************************************************************/

#ifndef SEQPER_EXT
#include "seqper.ext"
#endif

void pePlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pe_Boolean (home->a_fld);
  pe_NullType ();
}

void peOptionals (ASNG_F(ASNPERG *asnperg) Optionals *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  pe_Boolean (home->a_fld);
  if ((home->compmask & BIT(1))){
    pe_NullType ();
  }
  if ((home->compmask & BIT(2))){
    pe_Boolean (home->c_fld);
  }
}

void peMarkerAlone (ASNG_F(ASNPERG *asnperg) MarkerAlone *home)
{
  pe_extensionBit (0);
}

void peMarkerFirst (ASNG_F(ASNPERG *asnperg) MarkerFirst *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(1))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(1))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(1))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->a_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peAllMandatory (ASNG_F(ASNPERG *asnperg) AllMandatory *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->a_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1)|BITL(0);
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_NullType ();
  pe_EndOpenType_ua (&openctx_0);
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->c_fld);
  pe_EndOpenType_ua (&openctx_0);
}

void peMandatoryAndOptional (ASNG_F(ASNPERG *asnperg) 
  MandatoryAndOptional *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1);
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->b_fld);
  pe_EndOpenType_ua (&openctx_0);
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->c_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peMandatoryBehindOptional (ASNG_F(ASNPERG *asnperg) 
  MandatoryBehindOptional *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->b_fld);
  pe_EndOpenType_ua (&openctx_0);
}

void peNested (ASNG_F(ASNPERG *asnperg) Nested *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
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
      {
        {
          sint32 optfield_2 = 0;
          if (home->a_fld.x_fld.compmask & BIT(0)){
            optfield_2 |= BITL(0);
          }
          pe_optField (optfield_2, 1);
        }
        if ((home->a_fld.x_fld.compmask & BIT(0))){
          pe_Boolean (home->a_fld.x_fld.y_fld);
        }
      }
    }
  }
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->b_fld), 1, 4, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->b_fld); n1++){
      {
        pe_extensionBit (0);
        {
          sint32 optfield_2 = 0;
          if (home->b_fld.elem [n1].compmask & BIT(0)){
            optfield_2 |= BITL(0);
          }
          pe_optField (optfield_2, 1);
        }
        if ((home->b_fld.elem [n1].compmask & BIT(0))){
          pe_Boolean (home->b_fld.elem [n1].x_fld);
        }
      }
    }
  }
  if ((home->compmask & BIT(2))){
    pe_ChoiceIndex_ua_le255 (home->c_fld.choice, 1, 1);
    switch (home->c_fld.choice){
      case 0:
        {
          {
            {
              sint32 optfield_2 = 0;
              if (home->c_fld.i1.x_fld.compmask & BIT(0)){
                optfield_2 |= BITL(0);
              }
              pe_optField (optfield_2, 1);
            }
            if ((home->c_fld.i1.x_fld.compmask & BIT(0))){
              pe_Boolean (home->c_fld.i1.x_fld.y_fld);
            }
          }
        }
        break;
      case 1:
        {
          pe_NullType ();
        }
        break;
    }
  }
  peOptionals (ASNG_F(asnperg) &home->d_fld);
}

void peOfHomes (ASNG_F(ASNPERG *asnperg) OfHomes *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->b_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_Boolean (home->a_fld->val.bool);
  if (home->b_fld){
    pe_Boolean (home->b_fld->val.bool);
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(1);
    if (home->d_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->c_fld->val.bool);
  pe_EndOpenType_ua (&openctx_0);
  if (home->d_fld){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->d_fld->val.bool);
    pe_EndOpenType_ua (&openctx_0);
  }
}
