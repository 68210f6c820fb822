/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Mirror
 * FILE = mirpec.c
 ****************************************************************/

#ifndef MIRPER_EXT
#include "mirper.ext"
#endif

void peSequence (ASNG_F(ASNPERG *asnperg) Sequence *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(3))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_ua (home->a_fld, 0, 7, 3);
  if ((home->compmask & BIT(1))){
    pe_Boolean (home->b_fld);
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(3))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_sint32_cwn_ua (home->c_fld, 0, 7, 3);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peBits (ASNG_F(ASNPERG *asnperg) Bits *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->mandatory_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->addition_fld);
  pe_EndOpenType_ua (&openctx_0);
}

void peNoBits (ASNG_F(ASNPERG *asnperg) NoBits *home)
{
  pe_extensionBit (0);
  pe_Boolean (home->mandatory_fld);
}

void peChoice (ASNG_F(ASNPERG *asnperg) Choice *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_ua_ns (home->choice - 3);
  }
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
    case 3:
      {
        pe_BeginOpenType_ua (&openctx_0);
        pe_Boolean (home->i1.c_fld);
        pe_EndOpenType_ua (&openctx_0);
      }
      break;
  }
}

void peSingle (ASNG_F(ASNPERG *asnperg) Single *home)
{
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.only_fld);
      }
      break;
  }
}

void peSingleOfHomes (ASNG_F(ASNPERG *asnperg) SingleOfHomes *home)
{
  if (home->only_fld){
    pe_Boolean (home->only_fld->val.bool);
  }
}

void peFragmented (ASNG_F(ASNPERG *asnperg) Fragmented *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_Fragmented);
}

void peGaps (ASNG_F(ASNPERG *asnperg) Gaps *home)
{
  ?!? Unsupported Sequence-of type!!!
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  pe_lenDet_ua_clt64K_eq1 (staArrLen (home), 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peVarying (ASNG_F(ASNPERG *asnperg) Varying *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_ua (home->elem [n1], 0, 7, 3);
    }
  }
}

static void ef1_Unbounded (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_ua (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_Unbounded);
}

void peSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  pe_Boolean (home->a_fld);
  if ((home->compmask & BIT(1))){
    pe_NullType ();
  }
}

void pecNothing (ASNG_F(ASNPERG *asnperg) Nothing *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_NullType ();
}

void pecSomething (ASNG_F(ASNPERG *asnperg) Something *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_Boolean (*home);
  pe_end ();
}
