/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Near
 * FILE = nearpdc.c
 ****************************************************************/

#ifndef NEARPER_EXT
#include "nearper.ext"
#endif

void pdColour (ASNG_F(ASNPERG *asnperg) Colour *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      *home = 5;
      break;
    case 1:
      *home = 9;
      break;
    default:
      break;
  }
}

void pdInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  pd_NullType ();
}

void pdBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  pdColour (ASNG_F(asnperg) &home->a_fld);
  pdInner (ASNG_F(asnperg) &home->b_fld);
}
