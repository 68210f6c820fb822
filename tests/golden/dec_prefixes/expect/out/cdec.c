/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = ModuleC
 * FILE = cdec.c
 ****************************************************************/

#ifndef CCOD_EXT
#include "ccod.ext"
#endif

void pdS (ASNG_F(ASNPERG *asnperg) S *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_NullType ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

static void dfS (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (S));
    pdS (ASNG_F(asnperg) (S *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdL (ASNG_F(ASNPERG *asnperg) L *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfS);
  }
}

void pdT (ASNG_F(ASNPERG *asnperg) T *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pdS (ASNG_F(asnperg) &home->s_fld);
    pdL (ASNG_F(asnperg) &home->l_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void decT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdT (ASNG_F(asnperg) home);
  pd_end ();
}

void decN (ASNG_F(ASNPERG *asnperg) N *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_NullType ();
  pd_end ();
}

void decY (ASNG_F(ASNPERG *asnperg) Y *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdS (ASNG_F(asnperg) home);
  pd_end ();
}
