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

void pdcBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdBoth (ASNG_F(asnperg) home);
  pd_end ();
}

void pdcEntry_Synonym (ASNG_F(ASNPERG *asnperg) Entry_Synonym *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdInner (ASNG_F(asnperg) home);
  pd_end ();
}

void pdcFar_Entry (ASNG_F(ASNPERG *asnperg) Far_Entry *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdFar_Base (ASNG_F(asnperg) home);
  pd_end ();
}

void pdcFar_Leaf (ASNG_F(ASNPERG *asnperg) Far_Leaf *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_sint32_cwn_al_eq256_8 (home, 0, 255, 1);
  pd_end ();
}

void pdcEntry_Leaf (ASNG_F(ASNPERG *asnperg) Entry_Leaf *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_Boolean (home);
  pd_end ();
}
