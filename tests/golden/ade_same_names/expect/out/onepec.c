/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Same_Name
 * FILE = onepec.c
 ****************************************************************/

#ifndef ONEPER_EXT
#include "oneper.ext"
#endif

void peC (ASNG_F(ASNPERG *asnperg) C *home)
{
  pe_NullType ();
}

void peA (ASNG_F(ASNPERG *asnperg) A *home)
{
  switch (home->choice){
    case 0:
      {
        pe_NullType ();
      }
      break;
  }
}
