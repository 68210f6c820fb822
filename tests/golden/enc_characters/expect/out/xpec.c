/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Characters
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peSizes (ASNG_F(ASNPERG *asnperg) Sizes *home)
{
  pe_KnownMultiCharStri_al_fle16 (&home->s0_fld, 0, 0, 0, 8, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_al_fle16 (&home->s1_fld, 1, 1, 0, 8, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_al_fle16 (&home->s2_fld, 2, 2, 0, 8, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->s3_fld, 3, 3, 0, 8, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_al_fle16 (&home->s4_fld, 4, 4, 0, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pe_KnownMultiCharStri_al_fgt16 (&home->s5_fld, 5, 5, 0, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pe_KnownMultiCharStri_al_fle16 (&home->b1_fld, 1, 1, 0, 16, TYP_BMPSTR,
    65534, NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->b2_fld, 2, 2, 0, 16, TYP_BMPSTR,
    65534, NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->s65535_fld, 65535, 65535, 0, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_fge64K (&home->s65536_fld, 65536, 65536, 0, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->v10_fld, 1, 10, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->v255_fld, 0, 254, 8, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_eq256 (&home->v256_fld, 0, 255, 1, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le64K (&home->v257_fld, 0, 256, 2, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le64K (&home->v65536_fld, 0, 65535, 2, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_cge64K (&home->v65536above_fld, 1, 65536, 2, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_cge64K (&home->octets3_fld, 0, 16777215, 3, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_cge64K (&home->octets4_fld, 0, 16777216, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_u (&home->open0_fld, 0, 2147483647, 0, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_u (&home->open1_fld, 1, 2147483647, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_u (&home->all_fld, 0, 2147483647, 4, 8, TYP_IA5STR,
    128, NULL);
}

void peTypes (ASNG_F(ASNPERG *asnperg) Types *home)
{
  pe_KnownMultiCharStri_al_fle16 (&home->a_fld, 2, 2, 0, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pe_KnownMultiCharStri_al_fle16 (&home->b_fld, 2, 2, 0, 8, TYP_PRISTR, 74,
    NULL);
  pe_KnownMultiCharStri_al_fle16 (&home->c_fld, 2, 2, 0, 8, TYP_VISSTR, 95,
    NULL);
  pe_KnownMultiCharStri_al_fle16 (&home->d_fld, 2, 2, 0, 8, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->e_fld, 2, 2, 0, 16, TYP_BMPSTR,
    65534, NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->f_fld, 3, 3, 0, 8, TYP_PRISTR, 74,
    NULL);
}

void peAlphabets (ASNG_F(ASNPERG *asnperg) Alphabets *home)
{
  pe_KnownMultiCharStri_al_u (&home->one_fld, 0, 2147483647, 4, 0, TYP_IA5STR,
    1, "a");
  pe_KnownMultiCharStri_al_u (&home->two_fld, 0, 2147483647, 4, 1, TYP_IA5STR,
    2, "ab");
  pe_KnownMultiCharStri_al_u (&home->four_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 4, "abcd");
  pe_KnownMultiCharStri_al_u (&home->five_fld, 0, 2147483647, 4, 4,
    TYP_IA5STR, 5, "abcde");
  pe_KnownMultiCharStri_al_u (&home->sixteen_fld, 0, 2147483647, 4, 4,
    TYP_IA5STR, 16, "abcdefghijklmnop");
  pe_KnownMultiCharStri_al_u (&home->seventeen_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, 17, "abcdefghijklmnopq");
  pe_KnownMultiCharStri_al_u (&home->range_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, 27, "0ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  pe_KnownMultiCharStri_al_u (&home->digits_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, 10, "0123456789");
  pe_KnownMultiCharStri_al_u (&home->printable_fld, 0, 2147483647, 4, 4,
    TYP_PRISTR, 8, "01234567");
  pe_KnownMultiCharStri_al_u (&home->visible_fld, 0, 2147483647, 4, 1,
    TYP_VISSTR, 2, "xy");
  pe_KnownMultiCharStri_al_u (&home->bmp_fld, 0, 2147483647, 4, 2, TYP_BMPSTR,
    3, "abc");
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->sized_fld, 1, 10, 4, 1,
    TYP_IA5STR, 2, "ab");
  pe_KnownMultiCharStri_al_fle16 (&home->short_fld, 16, 16, 0, 1, TYP_IA5STR,
    2, "ab");
  pe_KnownMultiCharStri_al_fgt16 (&home->long_fld, 17, 17, 0, 1, TYP_IA5STR,
    2, "ab");
  pe_KnownMultiCharStri_al_u (&home->twice_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 3, "aab");
  pe_KnownMultiCharStri_al_u (&home->both_fld, 0, 2147483647, 4, 1,
    TYP_IA5STR, 2, "bd");
  pe_KnownMultiCharStri_al_u (&home->differing_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_al_u (&home->joined_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 4, "abcd");
  pe_KnownMultiCharStri_al_u (&home->quote_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 4, ""%\d");
  pe_KnownMultiCharStri_al_u (&home->blanks_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, 51, "                         abcdefghijklmnopqrstuvwxyz");
  pe_KnownMultiCharStri_al_u (&home->reference_fld, 0, 2147483647, 4, 1,
    TYP_NUMSTR, 2, "01");
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->a_fld, 1, 4, 2, 8, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->b_fld, 1, 4, 2, 8, TYP_IA5STR,
    128, NULL);
  pe_SegKnownMultiCharStri_al_clt64K_le255 (&home->c_fld, 1, 4, 2, 8,
    TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->d_fld, 1, 4, 2, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_SegKnownMultiCharStri_al_clt64K_le255 (&home->e_fld, 1, 4, 2, 16,
    TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->f_fld, 4, 4, 0, 8, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_al_fgt16 (&home->g_fld, 4, 4, 0, 8, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (home->h_fld, 1, 4, 2, 8, TYP_IA5STR,
    128, NULL);
  pe_SegKnownMultiCharStri_al_u (&home->i_fld, 0, 2147483647, 4, 1,
    TYP_NUMSTR, BYTE_TYPE, 2, "01");
}

void peUnsupported (ASNG_F(ASNPERG *asnperg) Unsupported *home)
{
  pe_NullType ();
  pe_KnownMultiCharStri_al!! Unsupported string type !! (&home->a_fld, 0, 0,
    0, -1, TYP_IA5STR, 0, NULL);
  pe_KnownMultiCharStri_al!! Unsupported string type !! (&home->b_fld, 0, 0,
    0, -1, TYP_NUMSTR, 0, asnperNumStrChars);
  pe_SegKnownMultiCharStri_al!! Unsupported string type !! (&home->c_fld, 0,
    0, 0, -1, TYP_PRISTR, BYTE_TYPE, 0, NULL);
  pe_KnownMultiCharStri_al!! Unsupported string type !! (&home->d_fld, 0, 0,
    0, -1, TYP_BMPSTR, 0, NULL);
  pe_KnownMultiCharStri_al!! Unsupported string type !! (&home->e_fld, 0, 0,
    0, -1, TYP_IA5STR, 0, NULL);
  pe_NullType ();
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peSizes (ASNG_F(asnperg) &home->a_fld);
  peTypes (ASNG_F(asnperg) &home->b_fld);
  peAlphabets (ASNG_F(asnperg) &home->c_fld);
  peHomes (ASNG_F(asnperg) &home->d_fld);
  peUnsupported (ASNG_F(asnperg) &home->e_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
