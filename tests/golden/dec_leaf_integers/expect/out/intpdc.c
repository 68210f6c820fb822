/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Integers
 * FILE = intpdc.c
 ****************************************************************/

#ifndef INTPER_EXT
#include "intper.ext"
#endif

void pdSmall (ASNG_F(ASNPERG *asnperg) Small *home)
{
  pd_sint32_cwn_al_eq1 (&home->single_fld, 5);
  pd_sint32_cwn_al_le255_8 (&home->bits_fld, 0, 7, 3);
  pd_sint32_cwn_al_le255_8 (&home->range255_fld, 0, 254, 8);
  pd_sint32_cwn_al_eq256_8 (&home->range256_fld, 0, 255, 1);
  pd_sint32_cwn_al_eq256_8 (&home->signed_fld, -128, 127, 1);
  pd_sint32_cwn_al_le64K_8 (&home->range257_fld, 0, 256, 2);
  pd_sint32_scwn_al (&home->semi_fld, 3);
  pd_sint32_ucwn_al (&home->open_fld);
}

void pdMiddle (ASNG_F(ASNPERG *asnperg) Middle *home)
{
  pd_sint32_cwn_al_eq1 (&home->single_fld, -500);
  pd_sint32_cwn_al_le255_16 (&home->bits_fld, 0, 7, 3);
  pd_sint32_cwn_al_le64K_16 (&home->range1000_fld, 0, 1000, 2);
  pd_sint32_cwn_al_le64K_16 (&home->signed_fld, -300, 300, 2);
  pd_sint32_cwn_al_le64K_16 (&home->range65536_fld, 0, 65535, 2);
  pd_sint32_cwn_al_gt64K_16 (&home->range65537_fld, 0, 65536, 3, 2);
  pd_sint32_scwn_al (&home->semi_fld, -3);
  pd_sint32_ucwn_al (&home->open_fld);
}

void pdLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  pd_sint32_cwn_al_eq1 (&home->single_fld, 70000);
  pd_sint32_cwn_al_le255 (&home->two_fld, 1, 2, 1);
  pd_sint32_cwn_al_le255 (&home->bits_fld, 0, 7, 3);
  pd_sint32_cwn_al_le255 (&home->range255_fld, 1, 255, 8);
  pd_sint32_cwn_al_eq256 (&home->range256_fld, 1, 256, 1);
  pd_sint32_cwn_al_le64K (&home->range257_fld, -128, 128, 2);
  pd_sint32_cwn_al_le64K (&home->range1001_fld, 0, 1000, 2);
  pd_sint32_cwn_al_le64K (&home->range65536_fld, -1, 65534, 2);
  pd_sint32_cwn_al_gt64K (&home->range65537_fld, 0, 65536, 3, 2);
  pd_sint32_cwn_al_gt64K (&home->large_fld, 0, 100000, 3, 2);
  pd_sint32_cwn_al_gt64K (&home->threeOctets_fld, 1, 16777216, 3, 2);
  pd_sint32_cwn_al_gt64K (&home->fourOctets_fld, 0, 16777216, 4, 2);
  pd_sint32_cwn_al_le255 (&home->holes_fld, 1, 9, 4);
  pd_sint32_scwn_al (&home->semi_fld, 0);
  pd_sint32_scwn_al (&home->semiFrom_fld, -7);
  pd_sint32_ucwn_al (&home->open_fld);
  pd_sint32_ucwn_al (&home->below_fld);
}

void pdUnsigned (ASNG_F(ASNPERG *asnperg) Unsigned *home)
{
  pd_uint32_cwn_al_gt64K (&home->large_fld, 0, 100000, 3, 2);
  pd_uint32_cwn_al_gt64K (&home->whole_fld, 0, 4294967295UL, 4, 2);
}

void pdQuad (ASNG_F(ASNPERG *asnperg) Quad *home)
{
  pd_sint64_cwn_al_gt64K (&home->large_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 3, 2);
  pd_sint64_cwn_al_gt64K (&home->whole_fld, i64ltosint64 (-1L),
    i64make (256L, 0UL), 6, 3);
  pd_sint64_scwn_al (&home->semi_fld, i64ltosint64 (5L));
  pd_sint64_ucwn_al (&home->open_fld);
  pd_sint64_cwn_al_gt64K (&home->unsigned_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 3, 2);
}

void pdExtended (ASNG_F(ASNPERG *asnperg) Extended *home)
{
   /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
  pd_sint32_cwn_al_le255_8 (&home->bits_fld, 0, 7, 3);
   /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
  pd_sint32_ucwn_al (&home->open_fld);
   /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
}

void pdElements (ASNG_F(ASNPERG *asnperg) Elements *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 4, 2);
    while (n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdcEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_sint32_cwn_al_le255_8 (home, 0, 7, 3);
  pd_end ();
}
