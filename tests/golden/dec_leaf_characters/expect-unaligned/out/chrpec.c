/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Characters
 * FILE = chrpec.c
 ****************************************************************/

#ifndef CHRPER_EXT
#include "chrper.ext"
#endif

void peTypes (ASNG_F(ASNPERG *asnperg) Types *home)
{
  pe_KnownMultiCharStri_ua_u (&home->numeric_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_KnownMultiCharStri_ua_u (&home->printable_fld, 0, 2147483647, 4, 7,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_ua_u (&home->visible_fld, 0, 2147483647, 4, 7,
    TYP_VISSTR, 95, NULL);
  pe_KnownMultiCharStri_ua_u (&home->ia5_fld, 0, 2147483647, 4, 7, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_ua_u (&home->bmp_fld, 0, 2147483647, 4, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->numericFixed_fld, 4, 4, 0, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_KnownMultiCharStri_ua_flt64K (&home->printableFixed_fld, 2, 2, 0, 7,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->visibleFixed_fld, 3, 3, 0, 7,
    TYP_VISSTR, 95, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->ia5Few_fld, 1, 10, 4, 7, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->bmpFew_fld, 0, 255, 1, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_ua_u (&home->alphabet_fld, 0, 2147483647, 4, 3,
    TYP_IA5STR, 5, "abcde");
  pe_KnownMultiCharStri_ua_clt64K (&home->one_fld, 0, 300, 2, 0, TYP_IA5STR,
    1, "x");
  pe_KnownMultiCharStri_ua_cge64K (&home->range_fld, 0, 65536, 3, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_fge64K (&home->fixedMore_fld, 65536, 65536, 0, 7,
    TYP_VISSTR, 95, NULL);
  pe_KnownMultiCharStri_ua_u (&home->open_fld, 1, 2147483647, 4, 7,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_ua!! Unsupported string type !! (&home->holes_fld, 0,
    0, 0, -1, TYP_IA5STR, 0, NULL);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_KnownMultiCharStri_ua_flt64K (&home->static0_fld, 4, 4, 0, 7, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->static8_fld, 1, 10, 4, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->dynamic0_fld, 4, 4, 0, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->dynamic8_fld, 1, 10, 4, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->dynamic16_fld, 1, 10, 4, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->dynamic32_fld, 1, 10, 4, 7,
    TYP_IA5STR, 128, NULL);
  pe_SegKnownMultiCharStri_ua_clt64K (&home->segmented_fld, 1, 10, 4, 7,
    TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->bmpStatic_fld, 1, 10, 4, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->bmpDynamic_fld, 1, 10, 4, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_SegKnownMultiCharStri_ua_clt64K (&home->bmpSegmented_fld, 1, 10, 4, 16,
    TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
}
