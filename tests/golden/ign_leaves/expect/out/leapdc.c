/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Leaves
 * FILE = leapdc.c
 ****************************************************************/

#ifndef LEAPER_EXT
#include "leaper.ext"
#endif

void piOthers (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
  pi_NullType ();
  pi_ObjectIdentifier ();
  pi_GeneralizedTimeDT ();
  pi_UTCTimeDT ();
  pi_OpenType_al ();
  pi_OpenType_al ();
  pi_OpenType_al ();
}

void piUnsupported (ASNG_L(ASNPERG *asnperg))
{
  NOT YET IMPLEMENTED!!pi_Boolean ();
  NOT YET IMPLEMENTED!!}

void piBits (ASNG_L(ASNPERG *asnperg))
{
  pi_BitString_al_fle16 (12, 12, 0);
  pi_BitString_al_clt64K_le255 (1, 4, 2);
  pi_BitString_al_clt64K_le255 (0, 20, 5);
  pi_BitString_al_u (0, MAXLONG, 4);
  pi_BitString_al_u (0, MAXLONG, 4);
  pi_SegBitString_al_u (0, MAXLONG, 4);
  pi_BitString_al_cgt64K (1, MAXLONG, 4);
  pi_BitString_al_clt64K_le64K (0, 256, 2);
   /* ?!?: Invalid decoding follows - extended BIT STRING constraint. */ 
}

void piOctets (ASNG_L(ASNPERG *asnperg))
{
  pi_OctetString_al_feq2 (2, 2, 0);
  pi_OctetString_al_clt64K_le255 (1, 4, 2);
  pi_OctetString_al_clt64K_le255 (0, 20, 5);
  pi_OctetString_al_u (0, MAXLONG, 4);
  pi_OctetString_al_u (0, MAXLONG, 4);
  pi_SegOctetString_al_u (0, MAXLONG, 4);
  pi_OctetString_al_cgt64K (1, MAXLONG, 4);
   /* ?!?: Invalid decoding follows - extended OCTET STRING constraint. */ 
}

void piGenerals (ASNG_L(ASNPERG *asnperg))
{
  pi_UnknownMultiCharStri_al_feq2 (2, 2, 0);
  pi_UnknownMultiCharStri_al_clt64K_le255 (1, 4, 2);
  pi_UnknownMultiCharStri_al_u (0, MAXLONG, 4);
  pi_SegUnknownMultiCharStri_al_u (0, MAXLONG, 4);
   /* ?!?: Invalid decoding follows - extended string constraint. */ 
}

void piCharacters (ASNG_L(ASNPERG *asnperg))
{
  pi_KnownMultiCharStri_al_u (0, 2147483647, 4, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pi_KnownMultiCharStri_al_fle16 (2, 2, 0, 8, TYP_PRISTR, 74, NULL);
  pi_KnownMultiCharStri_al_fgt16 (3, 3, 0, 8, TYP_VISSTR, 95, NULL);
  pi_KnownMultiCharStri_al_clt64K_le255 (1, 10, 4, 8, TYP_IA5STR, 128, NULL);
  pi_KnownMultiCharStri_al_clt64K_le255 (1, 10, 4, 16, TYP_BMPSTR, 65534, NULL);
  pi_KnownMultiCharStri_al_u (0, 2147483647, 4, 4, TYP_IA5STR, 5, "abcde");
  pi_SegKnownMultiCharStri_al_u (0, 2147483647, 4, 8, TYP_IA5STR, BYTE_TYPE,
    128, NULL);
  pi_SegKnownMultiCharStri_al_u (0, 2147483647, 4, 16, TYP_BMPSTR,
    ASN_BMPCHAR, 65534, NULL);
  pi_KnownMultiCharStri_al!! Unsupported string type !! (0, 0, 0, -1,
    TYP_IA5STR, 0, NULL);
  pi_KnownMultiCharStri_al_clt64K_le255 (1, 4, 2, 8, TYP_IA5STR, 128, NULL);
}
