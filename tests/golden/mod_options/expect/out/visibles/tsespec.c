/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Tide_Session
 * FILE = tsespec.c
 ****************************************************************/

#ifndef TSESPER_EXT
#include "tsesper.ext"
#endif

void peShown (ASNG_F(ASNPERG *asnperg) Shown *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_sint32_cwn_al_eq256 (home->i1.credit_fld, 0, 255, 1);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}
