/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Alpha
 * FILE = alphapec.c
 ****************************************************************/

#ifndef ALPHAPER_EXT
#include "alphaper.ext"
#endif

void peCommon_Type (ASNG_F(ASNPERG *asnperg) Common_Type *home)
{
  pe_NullType ();
}

void peWhole (ASNG_F(ASNPERG *asnperg) Whole *home)
{
  peCommon_Type (ASNG_F(asnperg) &home->z_fld);
}
