/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Zeta
 * FILE = zetapec.c
 ****************************************************************/

#ifndef ZETAPEC_EXT
#include "zetapec.ext"
#endif

void peWhole (ASNG_F(ASNPERG *asnperg) Whole *home)
{
  pe_sint32_cwn_al_le255 (home->number_fld, 0, 7, 3);
  peShared (ASNG_F(asnperg) &home->shared_fld);
}

void peTarget (ASNG_F(ASNPERG *asnperg) Target *home)
{
  pe_NullType ();
}

void peCaller (ASNG_F(ASNPERG *asnperg) Caller *home)
{
  peTarget (ASNG_F(asnperg) &home->first_fld);
  peCommon_Type (ASNG_F(asnperg) &home->other_fld);
}
