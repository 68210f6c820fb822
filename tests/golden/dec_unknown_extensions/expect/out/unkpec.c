/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Unknown
 * FILE = unkpec.c
 ****************************************************************/

#ifndef UNKPER_EXT
#include "unkper.ext"
#endif

void peSkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(2))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  pe_Boolean (home->a_fld);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->b_fld);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peSkippedNone (ASNG_F(ASNPERG *asnperg) SkippedNone *home)
{
  pe_extensionBit (0);
  pe_Boolean (home->a_fld);
}

void peSkippedGroup (ASNG_F(ASNPERG *asnperg) SkippedGroup *home)
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
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(1)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(1))){
        pe_Boolean (home->a_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peSkippedChoice (ASNG_F(ASNPERG *asnperg) SkippedChoice *home)
{
  pe_extensionBit (0);
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}

void peKept (ASNG_F(ASNPERG *asnperg) Kept *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(2))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  pe_Boolean (home->a_fld);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->b_fld);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peKeptNone (ASNG_F(ASNPERG *asnperg) KeptNone *home)
{
  pe_extensionBit (0);
  pe_Boolean (home->a_fld);
}

void peKeptGroup (ASNG_F(ASNPERG *asnperg) KeptGroup *home)
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
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(1)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(1))){
        pe_Boolean (home->a_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peKeptChoice (ASNG_F(ASNPERG *asnperg) KeptChoice *home)
{
  pe_extensionBit (0);
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}

void peKeptChoiceAdditions (ASNG_F(ASNPERG *asnperg) 
  KeptChoiceAdditions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 1);
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    pe_ChoiceIndex_al_ns (home->choice - 2);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 2:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peSkippedHomes (ASNG_F(ASNPERG *asnperg) SkippedHomes *home)
{
  pe_extensionBit (0);
  pe_Boolean (home->a_fld->val.bool);
}

void peKeptHomes (ASNG_F(ASNPERG *asnperg) KeptHomes *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->b_fld){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  pe_Boolean (home->a_fld->val.bool);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if (home->b_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if (home->b_fld){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->b_fld->val.bool);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peSkippedHomesChoice (ASNG_F(ASNPERG *asnperg) SkippedHomesChoice *home)
{
  pe_extensionBit (0);
  if (home->a_fld){
    pe_Boolean (home->a_fld->val.bool);
  }
}

void peKeptHomesChoice (ASNG_F(ASNPERG *asnperg) KeptHomesChoice *home)
{
  pe_extensionBit (0);
  if (home->a_fld){
    pe_Boolean (home->a_fld->val.bool);
  }
}

void peWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  {
    pe_extensionBit (0);
    pe_Boolean (home->a_fld.x_fld);
  }
  pe_extensionBit (0);
  switch (home->b_fld.choice){
    case 0:
      {
        pe_Boolean (home->b_fld.i1.x_fld);
      }
      break;
  }
  {
    struct t_c_Within *h1 = (struct t_c_Within *)home->c_fld->val.stru;
    {
      pe_extensionBit (0);
      pe_Boolean (h1->x_fld);
    }
  }
}

void peSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  pe_Boolean (home->a_fld);
}
