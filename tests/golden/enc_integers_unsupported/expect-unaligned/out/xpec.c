/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = NoFunction
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_NullType ();
  pe_NullType ();
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
