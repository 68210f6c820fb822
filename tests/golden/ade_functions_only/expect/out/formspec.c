/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Forms
 * FILE = formspec.c
 ****************************************************************/

void peInner (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Inner *home;
{
  pe_NullType ();
}

void peOuter (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Outer *home;
{
  peInner (ASNG_F(asnperg) &home->a_fld);
}

void pecOuter (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Outer *home;
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peOuter (ASNG_F(asnperg) home);
  pe_end ();
}
