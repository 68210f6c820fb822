/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Same_Name
 * FILE = twopec.c
 ****************************************************************/

#ifndef TWOPER_EXT
#include "twoper.ext"
#endif

void peB (ASNG_F(ASNPERG *asnperg) B *home)
{
  pe_NullType ();
}

void peA (ASNG_F(ASNPERG *asnperg) A *home)
{
  pe_NullType ();
}
