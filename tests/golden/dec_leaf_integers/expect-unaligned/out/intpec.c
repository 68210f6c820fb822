/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Integers
 * FILE = intpec.c
 ****************************************************************/

#ifndef INTPER_EXT
#include "intper.ext"
#endif

void peSmall (ASNG_F(ASNPERG *asnperg) Small *home)
{
  pe_sint32_cwn_ua_eq1 (home->single_fld, 5);
  pe_sint32_cwn_ua (home->bits_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->range255_fld, 0, 254, 8);
  pe_sint32_cwn_ua (home->range256_fld, 0, 255, 8);
  pe_sint32_cwn_ua (home->signed_fld, -128, 127, 8);
  pe_sint32_cwn_ua (home->range257_fld, 0, 256, 9);
  pe_sint32_scwn_ua (home->semi_fld, 3);
  pe_sint32_ucwn_ua (home->open_fld);
}

void peMiddle (ASNG_F(ASNPERG *asnperg) Middle *home)
{
  pe_sint32_cwn_ua_eq1 (home->single_fld, -500);
  pe_sint32_cwn_ua (home->bits_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->range1000_fld, 0, 1000, 10);
  pe_sint32_cwn_ua (home->signed_fld, -300, 300, 10);
  pe_sint32_cwn_ua (home->range65536_fld, 0, 65535, 16);
  pe_sint32_cwn_ua (home->range65537_fld, 0, 65536, 17);
  pe_sint32_scwn_ua (home->semi_fld, -3);
  pe_sint32_ucwn_ua (home->open_fld);
}

void peLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  pe_sint32_cwn_ua_eq1 (home->single_fld, 70000);
  pe_sint32_cwn_ua (home->two_fld, 1, 2, 1);
  pe_sint32_cwn_ua (home->bits_fld, 0, 7, 3);
  pe_sint32_cwn_ua (home->range255_fld, 1, 255, 8);
  pe_sint32_cwn_ua (home->range256_fld, 1, 256, 8);
  pe_sint32_cwn_ua (home->range257_fld, -128, 128, 9);
  pe_sint32_cwn_ua (home->range1001_fld, 0, 1000, 10);
  pe_sint32_cwn_ua (home->range65536_fld, -1, 65534, 16);
  pe_sint32_cwn_ua (home->range65537_fld, 0, 65536, 17);
  pe_sint32_cwn_ua (home->large_fld, 0, 100000, 17);
  pe_sint32_cwn_ua (home->threeOctets_fld, 1, 16777216, 24);
  pe_sint32_cwn_ua (home->fourOctets_fld, 0, 16777216, 25);
  pe_sint32_cwn_ua (home->holes_fld, 1, 9, 4);
  pe_sint32_scwn_ua (home->semi_fld, 0);
  pe_sint32_scwn_ua (home->semiFrom_fld, -7);
  pe_sint32_ucwn_ua (home->open_fld);
  pe_sint32_ucwn_ua (home->below_fld);
}

void peUnsigned (ASNG_F(ASNPERG *asnperg) Unsigned *home)
{
  pe_uint32_cwn_ua (home->large_fld, 0, 100000, 17);
  pe_uint32_cwn_ua (home->whole_fld, 0, 4294967295UL, 32);
}

void peQuad (ASNG_F(ASNPERG *asnperg) Quad *home)
{
  pe_sint64_cwn_ua (home->large_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 17);
  pe_sint64_cwn_ua (home->whole_fld, i64ltosint64 (-1L), i64make (256L, 0UL),
    41);
  pe_sint64_scwn_ua (home->semi_fld, i64ltosint64 (5L));
  pe_sint64_ucwn_ua (home->open_fld);
  pe_sint64_cwn_ua (home->unsigned_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 17);
}

void peExtended (ASNG_F(ASNPERG *asnperg) Extended *home)
{
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_cwn_ua (home->bits_fld, 0, 7, 3);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_ucwn_ua (home->open_fld);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
}

void peElements (ASNG_F(ASNPERG *asnperg) Elements *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 4, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_ua (home->elem [n1], 0, 7, 3);
    }
  }
}

void pecEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_sint32_cwn_ua (*home, 0, 7, 3);
  pe_end ();
}
