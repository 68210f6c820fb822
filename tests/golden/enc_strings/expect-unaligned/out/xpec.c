/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Strings
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peBits (ASNG_F(ASNPERG *asnperg) Bits *home)
{
  pe_BitString_ua_feq0 (&home->s0_fld, 0, 0, 0);
  pe_BitString_ua_fle8 (&home->s1_fld, 1, 1, 0);
  pe_BitString_ua_fle8 (&home->s8_fld, 8, 8, 0);
  pe_BitString_ua_fle16 (&home->s9_fld, 9, 9, 0);
  pe_BitString_ua_fle16 (&home->s16_fld, 16, 16, 0);
  pe_BitString_ua_flt64K (&home->s17_fld, 17, 17, 0);
  pe_BitString_ua_flt64K (&home->s65535_fld, 65535, 65535, 0);
  pe_BitString_ua_fge64K (&home->s65536_fld, 65536, 65536, 1);
  pe_BitString_ua_fge64K (&home->s65537_fld, 65537, 65537, 1);
  pe_BitString_ua_clt64K (&home->v2_fld, 1, 2, 1);
  pe_BitString_ua_clt64K (&home->v255_fld, 0, 254, 8);
  pe_BitString_ua_clt64K (&home->v256_fld, 0, 255, 8);
  pe_BitString_ua_clt64K (&home->v257_fld, 0, 256, 9);
  pe_BitString_ua_clt64K (&home->v256above_fld, 1, 256, 8);
  pe_BitString_ua_clt64K (&home->v65536_fld, 0, 65535, 16);
  pe_BitString_ua_clt64K (&home->v65536above_fld, 1, 65536, 16);
  pe_BitString_ua_clt64K (&home->v65537_fld, 0, 65536, 17);
  pe_BitString_ua_clt64K (&home->v2above_fld, 65535, 65536, 1);
  pe_BitString_ua_clt64K (&home->octets3_fld, 0, 16777215, 24);
  pe_BitString_ua_clt64K (&home->octets4_fld, 0, 16777216, 25);
  pe_BitString_ua_clt64K (&home->open0_fld, 0, MAXLONG, 0);
  pe_BitString_ua_clt64K (&home->open1_fld, 1, MAXLONG, 31);
  pe_BitString_ua_clt64K (&home->most_fld, 1, 2147483646, 31);
  pe_BitString_ua_u (&home->all_fld, 0, MAXLONG, 4);
  pe_BitString_ua_u (&home->named_fld, 0, MAXLONG, 4);
}

void peOctets (ASNG_F(ASNPERG *asnperg) Octets *home)
{
  pe_OctetString_ua_feq0 (&home->s0_fld, 0, 0, 0);
  pe_OctetString_ua_feq1 (&home->s1_fld, 1, 1, 0);
  pe_OctetString_ua_feq2 (&home->s2_fld, 2, 2, 0);
  pe_OctetString_ua_flt64K (&home->s3_fld, 3, 3, 0);
  pe_OctetString_ua_flt64K (&home->s65535_fld, 65535, 65535, 0);
  pe_OctetString_ua_fge64K (&home->s65536_fld, 65536, 65536, 1);
  pe_OctetString_ua_fge64K (&home->s65537_fld, 65537, 65537, 1);
  pe_OctetString_ua_clt64K (&home->v2_fld, 0, 1, 1);
  pe_OctetString_ua_clt64K (&home->v255_fld, 1, 255, 8);
  pe_OctetString_ua_clt64K (&home->v256_fld, 0, 255, 8);
  pe_OctetString_ua_clt64K (&home->v257_fld, 0, 256, 9);
  pe_OctetString_ua_clt64K (&home->v65536_fld, 0, 65535, 16);
  pe_OctetString_ua_clt64K (&home->v65537_fld, 0, 65536, 17);
  pe_OctetString_ua_clt64K (&home->open0_fld, 0, MAXLONG, 0);
  pe_OctetString_ua_clt64K (&home->open1_fld, 1, MAXLONG, 31);
  pe_OctetString_ua_u (&home->all_fld, 0, MAXLONG, 4);
}

void peGeneral (ASNG_F(ASNPERG *asnperg) General *home)
{
  pe_UnknownMultiCharStri_ua_feq1 (&home->s1_fld, 1, 1, 0);
  pe_UnknownMultiCharStri_ua_flt64K (&home->s3_fld, 3, 3, 0);
  pe_UnknownMultiCharStri_ua_fge64K (&home->s65536_fld, 65536, 65536, 1);
  pe_UnknownMultiCharStri_ua_clt64K (&home->v255_fld, 1, 255, 8);
  pe_UnknownMultiCharStri_ua_clt64K (&home->v256_fld, 0, 255, 8);
  pe_UnknownMultiCharStri_ua_clt64K (&home->v257_fld, 0, 256, 9);
  pe_UnknownMultiCharStri_ua_clt64K (&home->v65537_fld, 0, 65536, 17);
  pe_UnknownMultiCharStri_ua_clt64K (&home->open1_fld, 1, MAXLONG, 31);
  pe_UnknownMultiCharStri_ua_u (&home->all_fld, 0, MAXLONG, 4);
  pe_SegUnknownMultiCharStri_ua_u (&home->segmented_fld, 0, MAXLONG, 4);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_OctetString_ua_flt64K (&home->a_fld, 4, 4, 0);
  pe_OctetString_ua_flt64K (&home->b_fld, 4, 4, 0);
  pe_OctetString_ua_flt64K (&home->c_fld, 4, 4, 0);
  pe_OctetString_ua_flt64K (&home->d_fld, 4, 4, 0);
  pe_OctetString_ua_flt64K (&home->e_fld, 4, 4, 0);
  pe_OctetString_ua_flt64K (&home->f_fld, 4, 4, 0);
  pe_OctetString_ua_flt64K (&home->g_fld, 4, 4, 0);
  pe_OctetString_ua_flt64K (&home->h_fld, 4, 4, 0);
  pe_SegOctetString_ua_flt64K (&home->i_fld, 4, 4, 0);
  pe_BitString_ua_fle8 (&home->j_fld, 4, 4, 0);
  pe_BitString_ua_fle8 (&home->k_fld, 4, 4, 0);
  pe_SegBitString_ua_fle8 (&home->l_fld, 4, 4, 0);
  pe_SegBitString_ua_u (&home->m_fld, 0, MAXLONG, 4);
  pe_SegOctetString_ua_clt64K (&home->n_fld, 1, 4, 2);
  pe_OctetString_ua_flt64K (home->o_fld, 4, 4, 0);
  pe_SegBitString_ua_fle8 (home->p_fld, 4, 4, 0);
}

void peReferences (ASNG_F(ASNPERG *asnperg) References *home)
{
  pe_OctetString_ua_clt64K (&home->a_fld, 1, 4, 2);
  pe_OctetString_ua_feq2 (&home->b_fld, 2, 2, 0);
  pe_lenDet_ua_clt64K_eq1 (staArrLen (&home->c_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->c_fld); n1++){
      pe_OctetString_ua_clt64K (&home->c_fld.elem [n1], 1, 4, 2);
    }
  }
}

void peUnsupported (ASNG_F(ASNPERG *asnperg) Unsupported *home)
{
  pe_NullType ();
  pe_OctetString_ua_clt64K (&home->g_fld, 1, 2, 1);
  pe_NullType ();
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peBits (ASNG_F(asnperg) &home->a_fld);
  peOctets (ASNG_F(asnperg) &home->b_fld);
  peGeneral (ASNG_F(asnperg) &home->c_fld);
  peHomes (ASNG_F(asnperg) &home->d_fld);
  peReferences (ASNG_F(asnperg) &home->e_fld);
  peUnsupported (ASNG_F(asnperg) &home->f_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
