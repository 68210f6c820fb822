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
  pe_sint32_cwn_al_eq1 (home->n1_fld, 5);
  pe_sint32_cwn_al_le255 (home->n2_fld, 0, 1, 1);
  pe_sint32_cwn_al_le255 (home->n3_fld, 0, 2, 2);
  pe_sint32_cwn_al_le255 (home->n4_fld, -2, 1, 2);
  pe_sint32_cwn_al_le255 (home->n5_fld, 10, 14, 3);
  pe_sint32_cwn_al_le255 (home->n254_fld, 0, 253, 8);
  pe_sint32_cwn_al_le255 (home->n255_fld, 0, 254, 8);
  pe_sint32_cwn_al_eq256 (home->n256_fld, 0, 255, 1);
  pe_sint32_cwn_al_le64K (home->n257_fld, 0, 256, 2);
  pe_sint32_cwn_al_le255 (home->n255shifted_fld, -128, 126, 8);
  pe_sint32_cwn_al_eq256 (home->n256shifted_fld, -128, 127, 1);
  pe_sint32_cwn_al_le64K (home->n257shifted_fld, -128, 128, 2);
  pe_sint32_cwn_al_le64K (home->n1001_fld, 0, 1000, 2);
  pe_sint32_cwn_al_le64K (home->n65535_fld, 0, 65534, 2);
  pe_sint32_cwn_al_le64K (home->n65536_fld, 0, 65535, 2);
  pe_sint32_cwn_al_gt64K (home->n65537_fld, 0, 65536, 3, 2);
  pe_sint32_cwn_al_le64K (home->n65536shifted_fld, -32768, 32767, 2);
  pe_sint32_cwn_al_gt64K (home->n65537shifted_fld, -32768, 32768, 3, 2);
  pe_sint32_cwn_al_gt64K (home->n100001_fld, 0, 100000, 3, 2);
  pe_sint32_cwn_al_gt64K (home->octets3_fld, 0, 16777215, 3, 2);
  pe_sint32_cwn_al_gt64K (home->octets4_fld, 0, 16777216, 4, 2);
  pe_sint32_cwn_al_gt64K (home->half_fld, 0, 2147483647, 4, 2);
  pe_sint32_cwn_al_gt64K (home->all_fld, -2147483648, 2147483647, 4, 2);
  pe_sint32_scwn_al (home->semi_fld, 0);
  pe_sint32_scwn_al (home->semi5_fld, -5);
  pe_sint32_ucwn_al (home->upper_fld);
  pe_sint32_ucwn_al (home->none_fld);
  pe_sint32_ucwn_al (home->minmax_fld);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_sint32_cwn_al_le255 (home->a_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (home->b_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (home->c_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (home->d_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (home->e_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->f_fld, 0, 100000, 3, 2);
  pe_sint32_cwn_al_gt64K (home->g_fld, 0, 100000, 3, 2);
  pe_sint32_cwn_al_gt64K (home->h_fld, 0, 100000, 3, 2);
  pe_sint32_cwn_al_gt64K (home->i_fld, 0, 100000, 3, 2);
  pe_uint32_cwn_al_gt64K (home->j_fld, 0, 100000, 3, 2);
  pe_sint64_cwn_al_gt64K (home->k_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 3, 2);
  pe_sint64_cwn_al_gt64K (home->l_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 3, 2);
  pe_sint32_ucwn_al (home->m_fld);
  pe_sint32_ucwn_al (home->n_fld);
  pe_sint32_ucwn_al (home->o_fld);
  pe_sint32_ucwn_al (home->p_fld);
  pe_sint64_ucwn_al (home->q_fld);
  pe_sint64_ucwn_al (home->r_fld);
  pe_sint32_scwn_al (home->s_fld, 5);
  pe_sint64_scwn_al (home->t_fld, i64ltosint64 (5L));
  pe_sint64_scwn_al (home->u_fld, i64ltosint64 (5L));
}

void peSets (ASNG_F(ASNPERG *asnperg) Sets *home)
{
  pe_sint32_cwn_al_le255 (home->a_fld, 1, 9, 4);
  pe_sint32_cwn_al_le64K (home->b_fld, 0, 1000, 2);
  pe_sint32_cwn_al_le255 (home->c_fld, 0, 100, 7);
  pe_sint32_scwn_al (home->d_fld, 7);
  pe_sint32_ucwn_al (home->e_fld);
  pe_sint32_cwn_al_le255 (home->f_fld, 0, 3, 2);
  pe_sint32_cwn_al_le64K (home->g_fld, 0, 1000, 2);
}

void peUnsigned (ASNG_F(ASNPERG *asnperg) Unsigned *home)
{
  pe_uint32_cwn_al_gt64K (home->n65537_fld, 0, 65536, 3, 2);
  pe_uint32_cwn_al_gt64K (home->half_fld, 0, 2147483647, 4, 2);
  pe_uint32_cwn_al_gt64K (home->above_fld, 0, 2147483648UL, 4, 2);
  pe_uint32_cwn_al_gt64K (home->all_fld, 0, 4294967295UL, 4, 2);
  pe_uint32_cwn_al_gt64K (home->high_fld, 2147483648UL, 4294967295UL, 4, 2);
  pe_uint32_cwn_al_gt64K (home->below_fld, -1, 65535, 3, 2);
}

void peLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  pe_sint64_cwn_al_gt64K (home->n65537_fld, i64ltosint64 (0L),
    i64ltosint64 (65536L), 3, 2);
  pe_sint64_cwn_al_gt64K (home->octets3_fld, i64ltosint64 (0L),
    i64ltosint64 (16777215L), 3, 2);
  pe_sint64_cwn_al_gt64K (home->octets4_fld, i64ltosint64 (0L),
    i64ltosint64 (16777216L), 4, 2);
  pe_sint64_cwn_al_gt64K (home->full4_fld, i64ltosint64 (0L),
    i64make (0L, 4294967295UL), 4, 2);
  pe_sint64_cwn_al_gt64K (home->octets5_fld, i64ltosint64 (0L),
    i64make (1L, 0UL), 5, 3);
  pe_sint64_cwn_al_gt64K (home->full5_fld, i64ltosint64 (-1L),
    i64make (255L, 4294967294UL), 5, 3);
  pe_sint64_cwn_al_gt64K (home->octets6_fld, i64ltosint64 (-1L),
    i64make (255L, 4294967295UL), 6, 3);
  pe_sint64_cwn_al_gt64K (home->full6_fld, i64ltosint64 (1L),
    i64make (65536L, 0UL), 6, 3);
  pe_sint64_cwn_al_gt64K (home->octets7_fld, i64ltosint64 (1L),
    i64make (65536L, 1UL), 7, 3);
  pe_sint64_cwn_al_gt64K (home->full7_fld, i64ltosint64 (0L),
    i64make (16777215L, 4294967295UL), 7, 3);
  pe_sint64_cwn_al_gt64K (home->octets8_fld, i64ltosint64 (0L),
    i64make (16777216L, 0UL), 8, 3);
  pe_sint64_cwn_al_gt64K (home->most_fld, i64ltosint64 (0L),
    i64make (2147483647L, 4294967294UL), 8, 3);
  pe_sint64_cwn_al_gt64K (home->low_fld, i64make (-2147483648L, 1UL),
    i64make (-1L, 2147483647UL), 8, 3);
  pe_sint64_cwn_al_gt64K (home->edges_fld, i64ltosint64 (-2147483648L),
    i64make (0L, 2147483648UL), 5, 3);
  pe_sint64_scwn_al (home->semi_fld, i64make (1L, 0UL));
  pe_sint64_scwn_al (home->semi2_fld, i64ltosint64 (-2147483648L));
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
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
