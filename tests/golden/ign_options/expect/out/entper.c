/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Entries
 * FILE = entper.c
 ****************************************************************/

#ifndef ENTPER_EXT
#include "entper.ext"
#endif

void peWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  pe_Boolean (home->a_fld);
}

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  peWithin (ASNG_F(asnperg) &home->a_fld);
}

void peEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_Skip ();
  peStruct (ASNG_F(asnperg) &home->b_fld);
}

void pecEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peEntry (ASNG_F(asnperg) home);
  pe_end ();
}

void pecEntrySynonym (ASNG_F(ASNPERG *asnperg) EntrySynonym *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_Skip ();
  pe_end ();
}

void pecEntryLeaf (ASNG_F(ASNPERG *asnperg) EntryLeaf *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_OctetString_al_u (home, 0, MAXLONG, 4);
  pe_end ();
}

void piWithin (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void piStruct (ASNG_L(ASNPERG *asnperg))
{
  piWithin (ASNG_L(asnperg));
}

void pdWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  pd_Boolean (&home->a_fld);
}

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pdWithin (ASNG_F(asnperg) &home->a_fld);
}

void pdEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  piStruct (ASNG_L(asnperg));
  pdStruct (ASNG_F(asnperg) &home->b_fld);
}

void pdcEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdEntry (ASNG_F(asnperg) home);
  pd_end ();
}

void pdcEntrySynonym (ASNG_F(ASNPERG *asnperg) EntrySynonym *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  piStruct (ASNG_L(asnperg));
  pd_end ();
}

void pdcEntryLeaf (ASNG_F(ASNPERG *asnperg) EntryLeaf *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_DynOctetString_al_u (home, 0, MAXLONG, 4);
  pd_end ();
}
