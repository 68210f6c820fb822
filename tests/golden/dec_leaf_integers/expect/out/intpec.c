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
  pe_sint32_cwn_al_eq1 (home->single_fld, 5);
  pe_sint32_cwn_al_le255 (home->bits_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (home->range255_fld, 0, 254, 8);
  pe_sint32_cwn_al_eq256 (home->range256_fld, 0, 255, 1);
  pe_sint32_cwn_al_eq256 (home->signed_fld, -128, 127, 1);
  pe_sint32_cwn_al_le64K (home->range257_fld, 0, 256, 2);
  pe_sint32_scwn_al (home->semi_fld, 3);
  pe_sint32_ucwn_al (home->open_fld);
}

void peMiddle (ASNG_F(ASNPERG *asnperg) Middle *home)
{
  pe_sint32_cwn_al_eq1 (home->single_fld, -500);
  pe_sint32_cwn_al_le255 (home->bits_fld, 0, 7, 3);
  pe_sint32_cwn_al_le64K (home->range1000_fld, 0, 1000, 2);
  pe_sint32_cwn_al_le64K (home->signed_fld, -300, 300, 2);
  pe_sint32_cwn_al_le64K (home->range65536_fld, 0, 65535, 2);
  pe_sint32_cwn_al_gt64K (home->range65537_fld, 0, 65536, 3, 2);
  pe_sint32_scwn_al (home->semi_fld, -3);
  pe_sint32_ucwn_al (home->open_fld);
}

void peLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  pe_sint32_cwn_al_eq1 (home->single_fld, 70000);
  pe_sint32_cwn_al_le255 (home->two_fld, 1, 2, 1);
  pe_sint32_cwn_al_le255 (home->bits_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (home->range255_fld, 1, 255, 8);
  pe_sint32_cwn_al_eq256 (home->range256_fld, 1, 256, 1);
  pe_sint32_cwn_al_le64K (home->range257_fld, -128, 128, 2);
  pe_sint32_cwn_al_le64K (home->range1001_fld, 0, 1000, 2);
  pe_sint32_cwn_al_le64K (home->range65536_fld, -1, 65534, 2);
  pe_sint32_cwn_al_gt64K (home->range65537_fld, 0, 65536, 3, 2);
  pe_sint32_cwn_al_gt64K (home->large_fld, 0, 100000, 3, 2);
  pe_sint32_cwn_al_gt64K (home->threeOctets_fld, 1, 16777216, 3, 2);
  pe_sint32_cwn_al_gt64K (home->fourOctets_fld, 0, 16777216, 4, 2);
  pe_sint32_cwn_al_le255 (home->holes_fld, 1, 9, 4);
  pe_sint32_scwn_al (home->semi_fld, 0);
  pe_sint32_scwn_al (home->semiFrom_fld, -7);
  pe_sint32_ucwn_al (home->open_fld);
  pe_sint32_ucwn_al (home->below_fld);
}

void peUnsigned (ASNG_F(ASNPERG *asnperg) Unsigned *home)
{
  pe_uint32_cwn_al_gt64K (home->large_fld, 0, 100000, 3, 2);
  pe_uint32_cwn_al_gt64K (home->whole_fld, 0, 4294967295UL, 4, 2);
}

void peQuad (ASNG_F(ASNPERG *asnperg) Quad *home)
{
  pe_sint64_cwn_al_gt64K (home->large_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 3, 2);
  pe_sint64_cwn_al_gt64K (home->whole_fld, i64ltosint64 (-1L),
    i64make (256L, 0UL), 6, 3);
  pe_sint64_scwn_al (home->semi_fld, i64ltosint64 (5L));
  pe_sint64_ucwn_al (home->open_fld);
  pe_sint64_cwn_al_gt64K (home->unsigned_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 3, 2);
}

void peExtended (ASNG_F(ASNPERG *asnperg) Extended *home)
{
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_cwn_al_le255 (home->bits_fld, 0, 7, 3);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_ucwn_al (home->open_fld);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
}

void peElements (ASNG_F(ASNPERG *asnperg) Elements *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 4, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void pecEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_sint32_cwn_al_le255 (*home, 0, 7, 3);
  pe_end ();
}
