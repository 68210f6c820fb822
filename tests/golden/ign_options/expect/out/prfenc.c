/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Prefixes
 * FILE = prfenc.c
 ****************************************************************/

#ifndef PRFCOD_EXT
#include "prfcod.ext"
#endif

void pe_alEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void pe_alStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_alEnum (ASNG_F(asnperg) &home->a_fld);
}

static void efStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void pe_alUser (ASNG_F(ASNPERG *asnperg) User *home)
{
  pe_Skip ();
  pe_Skip ();
  pe_alStruct (ASNG_F(asnperg) &home->c_fld);
  {
    ASNHOME *iter = firstListItem (&home->d_fld);
    pe_TraverseFragmentedValue (listLen (&home->d_fld), (BYTE_TYPE *)iter,
      efStruct);
  }
}

void encEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_Skip ();
  pe_end ();
}
