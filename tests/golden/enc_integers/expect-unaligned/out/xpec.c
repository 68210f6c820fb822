/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Integers
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peSmall (ASNG_F(ASNPERG *asnperg) Small *home)
{
  pe_sint32_cwn_ua_eq1 (home->n1_fld, 5);
  pe_sint32_cwn_ua (home->n2_fld, 0, 1, 1);
  pe_sint32_cwn_ua (home->n3_fld, 0, 2, 2);
  pe_sint32_cwn_ua (home->n4_fld, -2, 1, 2);
  pe_sint32_cwn_ua (home->n5_fld, 10, 14, 3);
  pe_sint32_cwn_ua (home->n254_fld, 0, 253, 8);
  pe_sint32_cwn_ua (home->n255_fld, 0, 254, 8);
  pe_sint32_cwn_ua (home->n256_fld, 0, 255, 8);
  pe_sint32_cwn_ua (home->n257_fld, 0, 256, 9);
  pe_sint32_cwn_ua (home->n255shifted_fld, -128, 126, 8);
  pe_sint32_cwn_ua (home->n256shifted_fld, -128, 127, 8);
  pe_sint32_cwn_ua (home->n257shifted_fld, -128, 128, 9);
  pe_sint32_cwn_ua (home->n1001_fld, 0, 1000, 10);
  pe_sint32_cwn_ua (home->n65535_fld, 0, 65534, 16);
  pe_sint32_cwn_ua (home->n65536_fld, 0, 65535, 16);
  pe_sint32_cwn_ua (home->n65537_fld, 0, 65536, 17);
  pe_sint32_cwn_ua (home->n65536shifted_fld, -32768, 32767, 16);
  pe_sint32_cwn_ua (home->n65537shifted_fld, -32768, 32768, 17);
  pe_sint32_cwn_ua (home->n100001_fld, 0, 100000, 17);
  pe_sint32_cwn_ua (home->octets3_fld, 0, 16777215, 24);
  pe_sint32_cwn_ua (home->octets4_fld, 0, 16777216, 25);
  pe_sint32_cwn_ua (home->half_fld, 0, 2147483647, 31);
  pe_sint32_cwn_ua (home->all_fld, -2147483648, 2147483647, 32);
  pe_sint32_scwn_ua (home->semi_fld, 0);
  pe_sint32_scwn_ua (home->semi5_fld, -5);
  pe_sint32_ucwn_ua (home->upper_fld);
  pe_sint32_ucwn_ua (home->none_fld);
  pe_sint32_ucwn_ua (home->minmax_fld);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_sint32_cwn_ua (home->a_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->b_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->c_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->d_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->e_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->f_fld, 0, 100000, 17);
  pe_sint32_cwn_ua (home->g_fld, 0, 100000, 17);
  pe_sint32_cwn_ua (home->h_fld, 0, 100000, 17);
  pe_sint32_cwn_ua (home->i_fld, 0, 100000, 17);
  pe_uint32_cwn_ua (home->j_fld, 0, 100000, 17);
  pe_sint64_cwn_ua (home->k_fld, i64ltosint64 (0L), i64ltosint64 (100000L), 17);
  pe_sint64_cwn_ua (home->l_fld, i64ltosint64 (0L), i64ltosint64 (100000L), 17);
  pe_sint32_ucwn_ua (home->m_fld);
  pe_sint32_ucwn_ua (home->n_fld);
  pe_sint32_ucwn_ua (home->o_fld);
  pe_sint32_ucwn_ua (home->p_fld);
  pe_sint64_ucwn_ua (home->q_fld);
  pe_sint64_ucwn_ua (home->r_fld);
  pe_sint32_scwn_ua (home->s_fld, 5);
  pe_sint64_scwn_ua (home->t_fld, i64ltosint64 (5L));
  pe_sint64_scwn_ua (home->u_fld, i64ltosint64 (5L));
}

void peSets (ASNG_F(ASNPERG *asnperg) Sets *home)
{
  pe_sint32_cwn_ua (home->a_fld, 1, 9, 4);
  pe_sint32_cwn_ua (home->b_fld, 0, 1000, 10);
  pe_sint32_cwn_ua (home->c_fld, 0, 100, 7);
  pe_sint32_scwn_ua (home->d_fld, 7);
  pe_sint32_ucwn_ua (home->e_fld);
  pe_sint32_cwn_ua (home->f_fld, 0, 3, 2);
  pe_sint32_cwn_ua (home->g_fld, 0, 1000, 10);
}

void peUnsigned (ASNG_F(ASNPERG *asnperg) Unsigned *home)
{
  pe_uint32_cwn_ua (home->n65537_fld, 0, 65536, 17);
  pe_uint32_cwn_ua (home->half_fld, 0, 2147483647, 31);
  pe_uint32_cwn_ua (home->above_fld, 0, 2147483648UL, 32);
  pe_uint32_cwn_ua (home->all_fld, 0, 4294967295UL, 32);
  pe_uint32_cwn_ua (home->high_fld, 2147483648UL, 4294967295UL, 31);
  pe_uint32_cwn_ua (home->below_fld, -1, 65535, 17);
}

void peLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  pe_sint64_cwn_ua (home->n65537_fld, i64ltosint64 (0L),
    i64ltosint64 (65536L), 17);
  pe_sint64_cwn_ua (home->octets3_fld, i64ltosint64 (0L),
    i64ltosint64 (16777215L), 24);
  pe_sint64_cwn_ua (home->octets4_fld, i64ltosint64 (0L),
    i64ltosint64 (16777216L), 25);
  pe_sint64_cwn_ua (home->full4_fld, i64ltosint64 (0L),
    i64make (0L, 4294967295UL), 32);
  pe_sint64_cwn_ua (home->octets5_fld, i64ltosint64 (0L), i64make (1L, 0UL),
    33);
  pe_sint64_cwn_ua (home->full5_fld, i64ltosint64 (-1L),
    i64make (255L, 4294967294UL), 40);
  pe_sint64_cwn_ua (home->octets6_fld, i64ltosint64 (-1L),
    i64make (255L, 4294967295UL), 41);
  pe_sint64_cwn_ua (home->full6_fld, i64ltosint64 (1L), i64make (65536L, 0UL),
    48);
  pe_sint64_cwn_ua (home->octets7_fld, i64ltosint64 (1L),
    i64make (65536L, 1UL), 49);
  pe_sint64_cwn_ua (home->full7_fld, i64ltosint64 (0L),
    i64make (16777215L, 4294967295UL), 56);
  pe_sint64_cwn_ua (home->octets8_fld, i64ltosint64 (0L),
    i64make (16777216L, 0UL), 57);
  pe_sint64_cwn_ua (home->most_fld, i64ltosint64 (0L),
    i64make (2147483647L, 4294967294UL), 63);
  pe_sint64_cwn_ua (home->low_fld, i64make (-2147483648L, 1UL),
    i64make (-1L, 2147483647UL), 63);
  pe_sint64_cwn_ua (home->edges_fld, i64ltosint64 (-2147483648L),
    i64make (0L, 2147483648UL), 33);
  pe_sint64_scwn_ua (home->semi_fld, i64make (1L, 0UL));
  pe_sint64_scwn_ua (home->semi2_fld, i64ltosint64 (-2147483648L));
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peSmall (ASNG_F(asnperg) &home->a_fld);
  peHomes (ASNG_F(asnperg) &home->b_fld);
  peSets (ASNG_F(asnperg) &home->c_fld);
  peUnsigned (ASNG_F(asnperg) &home->d_fld);
  peLong (ASNG_F(asnperg) &home->e_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
