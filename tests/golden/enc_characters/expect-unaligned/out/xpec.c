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
  pe_KnownMultiCharStri_ua_flt64K (&home->s0_fld, 0, 0, 0, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->s1_fld, 1, 1, 0, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->s2_fld, 2, 2, 0, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->s3_fld, 3, 3, 0, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->s4_fld, 4, 4, 0, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pe_KnownMultiCharStri_ua_flt64K (&home->s5_fld, 5, 5, 0, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pe_KnownMultiCharStri_ua_flt64K (&home->b1_fld, 1, 1, 0, 16, TYP_BMPSTR,
    65534, NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->b2_fld, 2, 2, 0, 16, TYP_BMPSTR,
    65534, NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->s65535_fld, 65535, 65535, 0, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_fge64K (&home->s65536_fld, 65536, 65536, 0, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->v10_fld, 1, 10, 4, 7, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->v255_fld, 0, 254, 8, 7, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->v256_fld, 0, 255, 1, 7, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->v257_fld, 0, 256, 2, 7, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->v65536_fld, 0, 65535, 2, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_cge64K (&home->v65536above_fld, 1, 65536, 2, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_cge64K (&home->octets3_fld, 0, 16777215, 3, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_cge64K (&home->octets4_fld, 0, 16777216, 4, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_u (&home->open0_fld, 0, 2147483647, 0, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_u (&home->open1_fld, 1, 2147483647, 4, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_u (&home->all_fld, 0, 2147483647, 4, 7, TYP_IA5STR,
    128, NULL);
}

void peTypes (ASNG_F(ASNPERG *asnperg) Types *home)
{
  pe_KnownMultiCharStri_ua_flt64K (&home->a_fld, 2, 2, 0, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pe_KnownMultiCharStri_ua_flt64K (&home->b_fld, 2, 2, 0, 7, TYP_PRISTR, 74,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->c_fld, 2, 2, 0, 7, TYP_VISSTR, 95,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->d_fld, 2, 2, 0, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->e_fld, 2, 2, 0, 16, TYP_BMPSTR,
    65534, NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->f_fld, 3, 3, 0, 7, TYP_PRISTR, 74,
    NULL);
}

void peAlphabets (ASNG_F(ASNPERG *asnperg) Alphabets *home)
{
  pe_KnownMultiCharStri_ua_u (&home->one_fld, 0, 2147483647, 4, 0, TYP_IA5STR,
    1, "a");
  pe_KnownMultiCharStri_ua_u (&home->two_fld, 0, 2147483647, 4, 1, TYP_IA5STR,
    2, "ab");
  pe_KnownMultiCharStri_ua_u (&home->four_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 4, "abcd");
  pe_KnownMultiCharStri_ua_u (&home->five_fld, 0, 2147483647, 4, 3,
    TYP_IA5STR, 5, "abcde");
  pe_KnownMultiCharStri_ua_u (&home->sixteen_fld, 0, 2147483647, 4, 4,
    TYP_IA5STR, 16, "abcdefghijklmnop");
  pe_KnownMultiCharStri_ua_u (&home->seventeen_fld, 0, 2147483647, 4, 5,
    TYP_IA5STR, 17, "abcdefghijklmnopq");
  pe_KnownMultiCharStri_ua_u (&home->range_fld, 0, 2147483647, 4, 5,
    TYP_IA5STR, 27, "0ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  pe_KnownMultiCharStri_ua_u (&home->digits_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, 10, "0123456789");
  pe_KnownMultiCharStri_ua_u (&home->printable_fld, 0, 2147483647, 4, 3,
    TYP_PRISTR, 8, "01234567");
  pe_KnownMultiCharStri_ua_u (&home->visible_fld, 0, 2147483647, 4, 1,
    TYP_VISSTR, 2, "xy");
  pe_KnownMultiCharStri_ua_u (&home->bmp_fld, 0, 2147483647, 4, 2, TYP_BMPSTR,
    3, "abc");
  pe_KnownMultiCharStri_ua_clt64K (&home->sized_fld, 1, 10, 4, 1, TYP_IA5STR,
    2, "ab");
  pe_KnownMultiCharStri_ua_flt64K (&home->short_fld, 16, 16, 0, 1, TYP_IA5STR,
    2, "ab");
  pe_KnownMultiCharStri_ua_flt64K (&home->long_fld, 17, 17, 0, 1, TYP_IA5STR,
    2, "ab");
  pe_KnownMultiCharStri_ua_u (&home->twice_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 3, "aab");
  pe_KnownMultiCharStri_ua_u (&home->both_fld, 0, 2147483647, 4, 1,
    TYP_IA5STR, 2, "bd");
  pe_KnownMultiCharStri_ua_u (&home->differing_fld, 0, 2147483647, 4, 7,
    TYP_IA5STR, 128, NULL);
  pe_KnownMultiCharStri_ua_u (&home->joined_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 4, "abcd");
  pe_KnownMultiCharStri_ua_u (&home->quote_fld, 0, 2147483647, 4, 2,
    TYP_IA5STR, 4, ""%\d");
  pe_KnownMultiCharStri_ua_u (&home->blanks_fld, 0, 2147483647, 4, 6,
    TYP_IA5STR, 51, "                         abcdefghijklmnopqrstuvwxyz");
  pe_KnownMultiCharStri_ua_u (&home->reference_fld, 0, 2147483647, 4, 1,
    TYP_NUMSTR, 2, "01");
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_KnownMultiCharStri_ua_clt64K (&home->a_fld, 1, 4, 2, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->b_fld, 1, 4, 2, 7, TYP_IA5STR, 128,
    NULL);
  pe_SegKnownMultiCharStri_ua_clt64K (&home->c_fld, 1, 4, 2, 7, TYP_IA5STR,
    BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->d_fld, 1, 4, 2, 16, TYP_BMPSTR,
    65534, NULL);
  pe_SegKnownMultiCharStri_ua_clt64K (&home->e_fld, 1, 4, 2, 16, TYP_BMPSTR,
    ASN_BMPCHAR, 65534, NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->f_fld, 4, 4, 0, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_flt64K (&home->g_fld, 4, 4, 0, 7, TYP_IA5STR, 128,
    NULL);
  pe_KnownMultiCharStri_ua_clt64K (home->h_fld, 1, 4, 2, 7, TYP_IA5STR, 128,
    NULL);
  pe_SegKnownMultiCharStri_ua_u (&home->i_fld, 0, 2147483647, 4, 1,
    TYP_NUMSTR, BYTE_TYPE, 2, "01");
}

void peUnsupported (ASNG_F(ASNPERG *asnperg) Unsupported *home)
{
  pe_NullType ();
  pe_KnownMultiCharStri_ua!! Unsupported string type !! (&home->a_fld, 0, 0,
    0, -1, TYP_IA5STR, 0, NULL);
  pe_KnownMultiCharStri_ua!! Unsupported string type !! (&home->b_fld, 0, 0,
    0, -1, TYP_NUMSTR, 0, asnperNumStrChars);
  pe_SegKnownMultiCharStri_ua!! Unsupported string type !! (&home->c_fld, 0,
    0, 0, -1, TYP_PRISTR, BYTE_TYPE, 0, NULL);
  pe_KnownMultiCharStri_ua!! Unsupported string type !! (&home->d_fld, 0, 0,
    0, -1, TYP_BMPSTR, 0, NULL);
  pe_KnownMultiCharStri_ua!! Unsupported string type !! (&home->e_fld, 0, 0,
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
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
