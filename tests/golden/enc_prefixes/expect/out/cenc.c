/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = ModuleC
 * FILE = cenc.c
 ****************************************************************/

#ifndef CCOD_EXT
#include "ccod.ext"
#endif

void peS (ASNG_F(ASNPERG *asnperg) S *home)
{
  pe_extensionBit (0);
  pe_NullType ();
}

static void efS (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peS (ASNG_F(asnperg) (S *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peL (ASNG_F(ASNPERG *asnperg) L *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efS);
}

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_extensionBit (0);
  peS (ASNG_F(asnperg) &home->s_fld);
  peL (ASNG_F(asnperg) &home->l_fld);
}

void encT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peT (ASNG_F(asnperg) home);
  pe_end ();
}

void encN (ASNG_F(ASNPERG *asnperg) N *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_NullType ();
  pe_end ();
}
