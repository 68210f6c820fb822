/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Entries
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pecB (ASNG_F(ASNPERG *asnperg) B *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_Boolean (*home);
  pe_end ();
}

void pecN (ASNG_F(ASNPERG *asnperg) N *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_NullType ();
}

void pecNN (ASNG_F(ASNPERG *asnperg) NN *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_NullType ();
}

void peE (ASNG_F(ASNPERG *asnperg) E *home)
{
  pe_sint32_cwn_ua (*home, 0, 1, 1);
}

void pecE (ASNG_F(ASNPERG *asnperg) E *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peE (ASNG_F(asnperg) home);
  pe_end ();
}

void peS (ASNG_F(ASNPERG *asnperg) S *home)
{
  pe_NullType ();
}

void pecS (ASNG_F(ASNPERG *asnperg) S *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peS (ASNG_F(asnperg) home);
  pe_end ();
}

void pecSS (ASNG_F(ASNPERG *asnperg) SS *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peS (ASNG_F(asnperg) home);
  pe_end ();
}

static void ef1_L (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_NullType ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peL (ASNG_F(ASNPERG *asnperg) L *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_L);
}

void pecL (ASNG_F(ASNPERG *asnperg) L *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peL (ASNG_F(asnperg) home);
  pe_end ();
}

void peC (ASNG_F(ASNPERG *asnperg) C *home)
{
  switch (home->choice){
    case 0:
      {
        pe_NullType ();
      }
      break;
  }
}

void pecC (ASNG_F(ASNPERG *asnperg) C *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peC (ASNG_F(asnperg) home);
  pe_end ();
}

void pecK (ASNG_F(ASNPERG *asnperg) K *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_Skip ();
}
