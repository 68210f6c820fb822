/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Strings
 * FILE = strpdc.c
 ****************************************************************/

#ifndef STRPER_EXT
#include "strper.ext"
#endif

void pdFixedBits (ASNG_F(ASNPERG *asnperg) FixedBits *home)
{
  pd_BitString_ua_feq0_0 (&home->none_fld, 0, 0, 0);
  pd_BitString_ua_fle8_0 (&home->eight_fld, 8, 8, 0);
  pd_BitString_ua_fle16_0 (&home->nine_fld, 9, 9, 0);
  pd_BitString_ua_fle16_0 (&home->twelve_fld, 12, 12, 0);
  pd_BitString_ua_fle16_0 (&home->sixteen_fld, 16, 16, 0);
  pd_BitString_ua_flt64K_0 (&home->seventeen_fld, 17, 17, 0);
  pd_BitString_ua_flt64K_0 (&home->most_fld, 65535, 65535, 0);
  pd_BitString_ua_fge64K_0 (&home->more_fld, 65536, 65536, 1);
}

void pdFixedOctets (ASNG_F(ASNPERG *asnperg) FixedOctets *home)
{
  pd_OctetString_ua_feq0_0 (&home->none_fld, 0, 0, 0);
  pd_OctetString_ua_feq1_0 (&home->one_fld, 1, 1, 0);
  pd_OctetString_ua_feq2_0 (&home->two_fld, 2, 2, 0);
  pd_OctetString_ua_flt64K_0 (&home->three_fld, 3, 3, 0);
  pd_OctetString_ua_flt64K_0 (&home->most_fld, 65535, 65535, 0);
  pd_OctetString_ua_fge64K_0 (&home->more_fld, 65536, 65536, 1);
}

void pdVariableBits (ASNG_F(ASNPERG *asnperg) VariableBits *home)
{
  pd_BitString_ua_clt64K (&home->few_fld, 1, 4, 2);
  pd_BitString_ua_clt64K (&home->range255_fld, 1, 255, 8);
  pd_BitString_ua_clt64K (&home->range256_fld, 0, 255, 8);
  pd_BitString_ua_clt64K (&home->range257_fld, 0, 256, 9);
  pd_BitString_ua_clt64K (&home->most_fld, 0, 65535, 16);
  pd_BitString_ua_clt64K (&home->more_fld, 0, 65536, 17);
  pd_DynBitString_ua_clt64K (&home->open_fld, 1, MAXLONG, 31);
  pd_DynBitString_ua_u (&home->any_fld, 0, MAXLONG, 4);
  pd_DynBitString_ua_u (&home->named_fld, 0, MAXLONG, 4);
}

void pdVariableOctets (ASNG_F(ASNPERG *asnperg) VariableOctets *home)
{
  pd_OctetString_ua_clt64K (&home->few_fld, 1, 4, 2);
  pd_OctetString_ua_clt64K (&home->range255_fld, 1, 255, 8);
  pd_OctetString_ua_clt64K (&home->range256_fld, 0, 255, 8);
  pd_OctetString_ua_clt64K (&home->range257_fld, 0, 256, 9);
  pd_OctetString_ua_clt64K (&home->most_fld, 0, 65535, 16);
  pd_OctetString_ua_clt64K (&home->more_fld, 0, 65536, 17);
  pd_DynOctetString_ua_clt64K (&home->open_fld, 1, MAXLONG, 31);
  pd_DynOctetString_ua_u (&home->any_fld, 0, MAXLONG, 4);
}

void pdVariableGeneral (ASNG_F(ASNPERG *asnperg) VariableGeneral *home)
{
  pd_UnknownMultiCharStri_ua_feq0_0 (&home->none_fld, 0, 0, 0);
  pd_UnknownMultiCharStri_ua_feq2_0 (&home->two_fld, 2, 2, 0);
  pd_UnknownMultiCharStri_ua_flt64K_0 (&home->three_fld, 3, 3, 0);
  pd_UnknownMultiCharStri_ua_clt64K (&home->few_fld, 1, 4, 2);
  pd_UnknownMultiCharStri_ua_clt64K (&home->range256_fld, 0, 255, 8);
  pd_UnknownMultiCharStri_ua_clt64K (&home->range257_fld, 0, 256, 9);
  pd_DynUnknownMultiCharStri_ua_clt64K (&home->open_fld, 1, MAXLONG, 31);
  pd_DynUnknownMultiCharStri_ua_u (&home->any_fld, 0, MAXLONG, 4);
}

void pdHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pd_BitString_ua_clt64K_0 (&home->static0_fld, 0, 20, 5);
  pd_BitString_ua_clt64K (&home->static8_fld, 0, 20, 5);
  pd_BitString_ua_clt64K (&home->static16_fld, 0, 20, 5);
  pd_BitString_ua_clt64K (&home->static32_fld, 0, 20, 5);
  pd_DynBitString_ua_u_0 (&home->dynamic0_fld, 0, MAXLONG, 4);
  pd_DynBitString_ua_clt64K (&home->dynamic8_fld, 0, 20, 5);
  pd_DynBitString_ua_u (&home->dynamic16_fld, 0, MAXLONG, 4);
  pd_DynBitString_ua_flt64K (&home->dynamic32_fld, 20, 20, 0);
  pd_SegBitString_ua_u_0 (&home->segmented_fld, 0, MAXLONG, 4);
}

void pdOctetHomes (ASNG_F(ASNPERG *asnperg) OctetHomes *home)
{
  pd_OctetString_ua_flt64K_0 (&home->static0_fld, 4, 4, 0);
  pd_OctetString_ua_flt64K (&home->static8_fld, 4, 4, 0);
  pd_OctetString_ua_u (&home->static16_fld, 0, MAXLONG, 4);
  pd_OctetString_ua_clt64K (&home->static32_fld, 0, 4, 3);
  pd_DynOctetString_ua_flt64K_0 (&home->dynamic0_fld, 4, 4, 0);
  pd_DynOctetString_ua_clt64K (&home->dynamic8_fld, 0, 4, 3);
  pd_DynOctetString_ua_u (&home->dynamic16_fld, 0, MAXLONG, 4);
  pd_DynOctetString_ua_u (&home->dynamic32_fld, 0, MAXLONG, 4);
  pd_SegOctetString_ua_clt64K_0 (&home->segmented_fld, 0, 4, 3);
}

void pdGeneralHomes (ASNG_F(ASNPERG *asnperg) GeneralHomes *home)
{
  pd_UnknownMultiCharStri_ua_flt64K_0 (&home->static0_fld, 4, 4, 0);
  pd_UnknownMultiCharStri_ua_clt64K (&home->static8_fld, 0, 4, 3);
  pd_DynUnknownMultiCharStri_ua_u_0 (&home->dynamic0_fld, 0, MAXLONG, 4);
  pd_DynUnknownMultiCharStri_ua_u (&home->dynamic32_fld, 0, MAXLONG, 4);
  pd_SegUnknownMultiCharStri_ua_u_0 (&home->segmented_fld, 0, MAXLONG, 4);
}

void pdFrames (ASNG_F(ASNPERG *asnperg) Frames *home)
{
}

void pdExtended (ASNG_F(ASNPERG *asnperg) Extended *home)
{
   /* ?!?: Invalid decoding follows - extended BIT STRING constraint. */ 
   /* ?!?: Invalid decoding follows - extended OCTET STRING constraint. */ 
   /* ?!?: Invalid decoding follows - extended string constraint. */ 
   /* ?!?: Invalid decoding follows - extended string constraint. */ 
}
