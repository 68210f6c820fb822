/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Near
 * FILE = nearpec.c
 ****************************************************************/

#ifndef NEARPER_EXT
#include "nearper.ext"
#endif

void peColour (ASNG_F(ASNPERG *asnperg) Colour *home)
{
  sint32 index;
  switch (*home) {
    case 5:
      index = 0;
      break;
    case 9:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  pe_NullType ();
}

void peBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  peColour (ASNG_F(asnperg) &home->a_fld);
  peInner (ASNG_F(asnperg) &home->b_fld);
}

void pecBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peBoth (ASNG_F(asnperg) home);
  pe_end ();
}

void pecEntry_Synonym (ASNG_F(ASNPERG *asnperg) Entry_Synonym *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peInner (ASNG_F(asnperg) home);
  pe_end ();
}

void pecFar_Entry (ASNG_F(ASNPERG *asnperg) Far_Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peFar_Base (ASNG_F(asnperg) home);
  pe_end ();
}

void pecFar_Leaf (ASNG_F(ASNPERG *asnperg) Far_Leaf *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_sint32_cwn_al_eq256 (*home, 0, 255, 1);
  pe_end ();
}

void pecEntry_Leaf (ASNG_F(ASNPERG *asnperg) Entry_Leaf *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_Boolean (*home);
  pe_end ();
}
