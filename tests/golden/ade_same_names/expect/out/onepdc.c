/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Same_Name
 * FILE = onepdc.c
 ****************************************************************/

#ifndef ONEPER_EXT
#include "oneper.ext"
#endif

void pdC (ASNG_F(ASNPERG *asnperg) C *home)
{
  pd_NullType ();
}

void pdA (ASNG_F(ASNPERG *asnperg) A *home)
{
  home->choice = 0;
  pd_NullType ();
}
