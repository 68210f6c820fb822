/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Strings
 * FILE = strpec.c
 ****************************************************************/

#ifndef STRPER_EXT
#include "strper.ext"
#endif

void peFixedBits (ASNG_F(ASNPERG *asnperg) FixedBits *home)
{
  pe_BitString_al_feq0 (&home->none_fld, 0, 0, 0);
  pe_BitString_al_fle8 (&home->eight_fld, 8, 8, 0);
  pe_BitString_al_fle16 (&home->nine_fld, 9, 9, 0);
  pe_BitString_al_fle16 (&home->twelve_fld, 12, 12, 0);
  pe_BitString_al_fle16 (&home->sixteen_fld, 16, 16, 0);
  pe_BitString_al_flt64K (&home->seventeen_fld, 17, 17, 0);
  pe_BitString_al_flt64K (&home->most_fld, 65535, 65535, 0);
  pe_BitString_al_fge64K (&home->more_fld, 65536, 65536, 1);
}

void peFixedOctets (ASNG_F(ASNPERG *asnperg) FixedOctets *home)
{
  pe_OctetString_al_feq0 (&home->none_fld, 0, 0, 0);
  pe_OctetString_al_feq1 (&home->one_fld, 1, 1, 0);
  pe_OctetString_al_feq2 (&home->two_fld, 2, 2, 0);
  pe_OctetString_al_flt64K (&home->three_fld, 3, 3, 0);
  pe_OctetString_al_flt64K (&home->most_fld, 65535, 65535, 0);
  pe_OctetString_al_fge64K (&home->more_fld, 65536, 65536, 1);
}

void peVariableBits (ASNG_F(ASNPERG *asnperg) VariableBits *home)
{
  pe_BitString_al_clt64K_le255 (&home->few_fld, 1, 4, 2);
  pe_BitString_al_clt64K_le255 (&home->range255_fld, 1, 255, 8);
  pe_BitString_al_clt64K_eq256 (&home->range256_fld, 0, 255, 1);
  pe_BitString_al_clt64K_le64K (&home->range257_fld, 0, 256, 2);
  pe_BitString_al_clt64K_le64K (&home->most_fld, 0, 65535, 2);
  pe_BitString_al_cgt64K (&home->more_fld, 0, 65536, 3);
  pe_BitString_al_cgt64K (&home->open_fld, 1, MAXLONG, 4);
  pe_BitString_al_u (&home->any_fld, 0, MAXLONG, 4);
  pe_BitString_al_u (&home->named_fld, 0, MAXLONG, 4);
}

void peVariableOctets (ASNG_F(ASNPERG *asnperg) VariableOctets *home)
{
  pe_OctetString_al_clt64K_le255 (&home->few_fld, 1, 4, 2);
  pe_OctetString_al_clt64K_le255 (&home->range255_fld, 1, 255, 8);
  pe_OctetString_al_clt64K_eq256 (&home->range256_fld, 0, 255, 1);
  pe_OctetString_al_clt64K_le64K (&home->range257_fld, 0, 256, 2);
  pe_OctetString_al_clt64K_le64K (&home->most_fld, 0, 65535, 2);
  pe_OctetString_al_cgt64K (&home->more_fld, 0, 65536, 3);
  pe_OctetString_al_cgt64K (&home->open_fld, 1, MAXLONG, 4);
  pe_OctetString_al_u (&home->any_fld, 0, MAXLONG, 4);
}

void peVariableGeneral (ASNG_F(ASNPERG *asnperg) VariableGeneral *home)
{
  pe_UnknownMultiCharStri_al_feq0 (&home->none_fld, 0, 0, 0);
  pe_UnknownMultiCharStri_al_feq2 (&home->two_fld, 2, 2, 0);
  pe_UnknownMultiCharStri_al_flt64K (&home->three_fld, 3, 3, 0);
  pe_UnknownMultiCharStri_al_clt64K_le255 (&home->few_fld, 1, 4, 2);
  pe_UnknownMultiCharStri_al_clt64K_eq256 (&home->range256_fld, 0, 255, 1);
  pe_UnknownMultiCharStri_al_clt64K_le64K (&home->range257_fld, 0, 256, 2);
  pe_UnknownMultiCharStri_al_cgt64K (&home->open_fld, 1, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (&home->any_fld, 0, MAXLONG, 4);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_BitString_al_clt64K_le255 (&home->static0_fld, 0, 20, 5);
  pe_BitString_al_clt64K_le255 (&home->static8_fld, 0, 20, 5);
  pe_BitString_al_clt64K_le255 (&home->static16_fld, 0, 20, 5);
  pe_BitString_al_clt64K_le255 (&home->static32_fld, 0, 20, 5);
  pe_BitString_al_u (&home->dynamic0_fld, 0, MAXLONG, 4);
  pe_BitString_al_clt64K_le255 (&home->dynamic8_fld, 0, 20, 5);
  pe_BitString_al_u (&home->dynamic16_fld, 0, MAXLONG, 4);
  pe_BitString_al_flt64K (&home->dynamic32_fld, 20, 20, 0);
  pe_SegBitString_al_u (&home->segmented_fld, 0, MAXLONG, 4);
}

void peOctetHomes (ASNG_F(ASNPERG *asnperg) OctetHomes *home)
{
  pe_OctetString_al_flt64K (&home->static0_fld, 4, 4, 0);
  pe_OctetString_al_flt64K (&home->static8_fld, 4, 4, 0);
  pe_OctetString_al_u (&home->static16_fld, 0, MAXLONG, 4);
  pe_OctetString_al_clt64K_le255 (&home->static32_fld, 0, 4, 3);
  pe_OctetString_al_flt64K (&home->dynamic0_fld, 4, 4, 0);
  pe_OctetString_al_clt64K_le255 (&home->dynamic8_fld, 0, 4, 3);
  pe_OctetString_al_u (&home->dynamic16_fld, 0, MAXLONG, 4);
  pe_OctetString_al_u (&home->dynamic32_fld, 0, MAXLONG, 4);
  pe_SegOctetString_al_clt64K_le255 (&home->segmented_fld, 0, 4, 3);
}

void peGeneralHomes (ASNG_F(ASNPERG *asnperg) GeneralHomes *home)
{
  pe_UnknownMultiCharStri_al_flt64K (&home->static0_fld, 4, 4, 0);
  pe_UnknownMultiCharStri_al_clt64K_le255 (&home->static8_fld, 0, 4, 3);
  pe_UnknownMultiCharStri_al_u (&home->dynamic0_fld, 0, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (&home->dynamic32_fld, 0, MAXLONG, 4);
  pe_SegUnknownMultiCharStri_al_u (&home->segmented_fld, 0, MAXLONG, 4);
}

void peFrames (ASNG_F(ASNPERG *asnperg) Frames *home)
{
}

void peExtended (ASNG_F(ASNPERG *asnperg) Extended *home)
{
   /*?!?: Invalid encoding follows - extended BIT STRING constraint.*/
   /*?!?: Invalid encoding follows - extended OCTET STRING constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
}
