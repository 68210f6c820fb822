/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = ModuleB
 * FILE = bpec.c
 ****************************************************************/

#ifndef BPER_EXT
#include "bper.ext"
#endif

void pe_alS (ASNG_F(ASNPERG *asnperg) S *home)
{
  pe_extensionBit (0);
  pe_NullType ();
}

static void efS (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_alS (ASNG_F(asnperg) (S *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void pe_alL (ASNG_F(ASNPERG *asnperg) L *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efS);
}

void pe_alT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_extensionBit (0);
  pe_alS (ASNG_F(asnperg) &home->s_fld);
  pe_alL (ASNG_F(asnperg) &home->l_fld);
}

void pec_alT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_alT (ASNG_F(asnperg) home);
  pe_end ();
}

void pec_alN (ASNG_F(ASNPERG *asnperg) N *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_NullType ();
  pe_end ();
}
