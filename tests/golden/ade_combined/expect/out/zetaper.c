/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Zeta
 * FILE = zetaper.c
 ****************************************************************/

#ifndef ZETAPER_EXT
#include "zetaper.ext"
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

void pdWhole (ASNG_F(ASNPERG *asnperg) Whole *home)
{
  pd_sint32_cwn_al_le255_8 (&home->number_fld, 0, 7, 3);
  pdShared (ASNG_F(asnperg) &home->shared_fld);
}

void pdTarget (ASNG_F(ASNPERG *asnperg) Target *home)
{
  pd_NullType ();
}

void pdCaller (ASNG_F(ASNPERG *asnperg) Caller *home)
{
  pdTarget (ASNG_F(asnperg) &home->first_fld);
  pdCommon_Type (ASNG_F(asnperg) &home->other_fld);
}
