/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Alpha
 * FILE = alphapdc.c
 ****************************************************************/

#ifndef ALPHAPDC_EXT
#include "alphapdc.ext"
#endif

void pdCommon_Type (ASNG_F(ASNPERG *asnperg) Common_Type *home)
{
  pd_NullType ();
}

void pdWhole (ASNG_F(ASNPERG *asnperg) Whole *home)
{
  pdCommon_Type (ASNG_F(asnperg) &home->z_fld);
}
