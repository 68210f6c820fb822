/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Mirror
 * FILE = mirpdc.c
 ****************************************************************/

#ifndef MIRPER_EXT
#include "mirper.ext"
#endif

void pdSequence (ASNG_F(ASNPERG *asnperg) Sequence *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_ua_8 (&home->a_fld, 0, 7, 3);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_Boolean (&home->b_fld);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(3);
        pd_sint32_cwn_ua_8 (&home->c_fld, 0, 7, 3);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdBits (ASNG_F(ASNPERG *asnperg) Bits *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_Boolean (&home->mandatory_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        pd_Boolean (&home->addition_fld);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdNoBits (ASNG_F(ASNPERG *asnperg) NoBits *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_Boolean (&home->mandatory_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdChoice (ASNG_F(ASNPERG *asnperg) Choice *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
    case 3:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_Boolean (&home->i1.c_fld);
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 2;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdSingle (ASNG_F(ASNPERG *asnperg) Single *home)
{
  home->choice = 0;
  pd_Boolean (&home->i1.only_fld);
}

void pdSingleOfHomes (ASNG_F(ASNPERG *asnperg) SingleOfHomes *home)
{
  memset (home, 0, sizeof (SingleOfHomes));
  createHome (NULL, &home->only_fld, VF_BOOL, 0);
  pd_Boolean (&home->only_fld->val.bool);
}

void pdFragmented (ASNG_F(ASNPERG *asnperg) Fragmented *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, df1_Fragmented);
  }
}

void pdGaps (ASNG_F(ASNPERG *asnperg) Gaps *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    ?!? Unsupported Sequence-of type!!!
    while (n1 < len_0){
      pd_Boolean (&home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    pd_lenDet_ua_clt64K_eq1 (NULL, 5, 5, 0);
    while (n1 < len_0){
      pd_Boolean (&home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdVarying (ASNG_F(ASNPERG *asnperg) Varying *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 10, 4);
    while (n1 < len_0){
      pd_sint32_cwn_ua_8 (&home->elem [n1], 0, 7, 3);
      incStaArrLen (home);
      n1++;
    }
  }
}

static void df1_Unbounded (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_ua_8 (&a1->val.ui8, 0, 7, 3);
    incListLen (home);
    n--;
  }
}

void pdUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, df1_Unbounded);
  }
}

void pdSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  home->compmask = 0;
  pd_Boolean (&home->a_fld);
  {
    home->compmask |= BIT(1);
    pd_NullType ();
  }
}

void pdcNothing (ASNG_F(ASNPERG *asnperg) Nothing *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pd_NullType ();
  pd_end ();
}

void pdcSomething (ASNG_F(ASNPERG *asnperg) Something *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pd_Boolean (home);
  pd_end ();
}
