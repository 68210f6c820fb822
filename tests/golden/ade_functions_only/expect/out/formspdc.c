/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Forms
 * FILE = formspdc.c
 ****************************************************************/

void pdInner (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Inner *home;
{
  pd_NullType ();
}

void pdOuter (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Outer *home;
{
  pdInner (ASNG_F(asnperg) &home->a_fld);
}

void pdcOuter (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Outer *home;
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdOuter (ASNG_F(asnperg) home);
  pd_end ();
}
