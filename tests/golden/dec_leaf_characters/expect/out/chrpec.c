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
  pe_KnownMultiCharStri_al_u (&home->numeric_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_KnownMultiCharStri_al_u (&home->printable_fld, 0, 2147483647, 4, 8,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (&home->visible_fld, 0, 2147483647, 4, 8,
    TYP_VISSTR, 95, NULL);
  pe_KnownMultiCharStri_al_u (&home->ia5_fld, 0, 2147483647, 4, 8, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_al_u (&home->bmp_fld, 0, 2147483647, 4, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_fle16 (&home->numericFixed_fld, 4, 4, 0, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_KnownMultiCharStri_al_fle16 (&home->printableFixed_fld, 2, 2, 0, 8,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->visibleFixed_fld, 3, 3, 0, 8,
    TYP_VISSTR, 95, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->ia5Few_fld, 1, 10, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_eq256 (&home->bmpFew_fld, 0, 255, 1, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_u (&home->alphabet_fld, 0, 2147483647, 4, 4,
    TYP_IA5STR, 5, "abcde");
  pe_KnownMultiCharStri_al_clt64K_le64K (&home->one_fld, 0, 300, 2, 0,
    TYP_IA5STR, 1, "x");
  pe_KnownMultiCharStri_al_cge64K (&home->range_fld, 0, 65536, 3, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_fge64K (&home->fixedMore_fld, 65536, 65536, 0, 8,
    TYP_VISSTR, 95, NULL);
  pe_KnownMultiCharStri_al_u (&home->open_fld, 1, 2147483647, 4, 8,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al!! Unsupported string type !! (&home->holes_fld, 0,
    0, 0, -1, TYP_IA5STR, 0, NULL);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_KnownMultiCharStri_al_fgt16 (&home->static0_fld, 4, 4, 0, 8, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->static8_fld, 1, 10, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->dynamic0_fld, 4, 4, 0, 8, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->dynamic8_fld, 1, 10, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->dynamic16_fld, 1, 10, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->dynamic32_fld, 1, 10, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_SegKnownMultiCharStri_al_clt64K_le255 (&home->segmented_fld, 1, 10, 4, 8,
    TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->bmpStatic_fld, 1, 10, 4, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->bmpDynamic_fld, 1, 10, 4, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_SegKnownMultiCharStri_al_clt64K_le255 (&home->bmpSegmented_fld, 1, 10, 4,
    16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
}
