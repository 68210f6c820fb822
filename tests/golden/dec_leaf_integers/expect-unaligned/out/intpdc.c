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
  pd_sint32_cwn_ua_eq1 (&home->single_fld, 5);
  pd_sint32_cwn_ua_8 (&home->bits_fld, 0, 7, 3);
  pd_sint32_cwn_ua_8 (&home->range255_fld, 0, 254, 8);
  pd_sint32_cwn_ua_8 (&home->range256_fld, 0, 255, 8);
  pd_sint32_cwn_ua_8 (&home->signed_fld, -128, 127, 8);
  pd_sint32_cwn_ua_8 (&home->range257_fld, 0, 256, 9);
  pd_sint32_scwn_ua (&home->semi_fld, 3);
  pd_sint32_ucwn_ua (&home->open_fld);
}

void pdMiddle (ASNG_F(ASNPERG *asnperg) Middle *home)
{
  pd_sint32_cwn_ua_eq1 (&home->single_fld, -500);
  pd_sint32_cwn_ua_16 (&home->bits_fld, 0, 7, 3);
  pd_sint32_cwn_ua_16 (&home->range1000_fld, 0, 1000, 10);
  pd_sint32_cwn_ua_16 (&home->signed_fld, -300, 300, 10);
  pd_sint32_cwn_ua_16 (&home->range65536_fld, 0, 65535, 16);
  pd_sint32_cwn_ua_16 (&home->range65537_fld, 0, 65536, 17);
  pd_sint32_scwn_ua (&home->semi_fld, -3);
  pd_sint32_ucwn_ua (&home->open_fld);
}

void pdLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  pd_sint32_cwn_ua_eq1 (&home->single_fld, 70000);
  pd_sint32_cwn_ua (&home->two_fld, 1, 2, 1);
  pd_sint32_cwn_ua (&home->bits_fld, 0, 7, 3);
  pd_sint32_cwn_ua (&home->range255_fld, 1, 255, 8);
  pd_sint32_cwn_ua (&home->range256_fld, 1, 256, 8);
  pd_sint32_cwn_ua (&home->range257_fld, -128, 128, 9);
  pd_sint32_cwn_ua (&home->range1001_fld, 0, 1000, 10);
  pd_sint32_cwn_ua (&home->range65536_fld, -1, 65534, 16);
  pd_sint32_cwn_ua (&home->range65537_fld, 0, 65536, 17);
  pd_sint32_cwn_ua (&home->large_fld, 0, 100000, 17);
  pd_sint32_cwn_ua (&home->threeOctets_fld, 1, 16777216, 24);
  pd_sint32_cwn_ua (&home->fourOctets_fld, 0, 16777216, 25);
  pd_sint32_cwn_ua (&home->holes_fld, 1, 9, 4);
  pd_sint32_scwn_ua (&home->semi_fld, 0);
  pd_sint32_scwn_ua (&home->semiFrom_fld, -7);
  pd_sint32_ucwn_ua (&home->open_fld);
  pd_sint32_ucwn_ua (&home->below_fld);
}

void pdUnsigned (ASNG_F(ASNPERG *asnperg) Unsigned *home)
{
  pd_uint32_cwn_ua (&home->large_fld, 0, 100000, 17);
  pd_uint32_cwn_ua (&home->whole_fld, 0, 4294967295UL, 32);
}

void pdQuad (ASNG_F(ASNPERG *asnperg) Quad *home)
{
  pd_sint64_cwn_ua (&home->large_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 17);
  pd_sint64_cwn_ua (&home->whole_fld, i64ltosint64 (-1L), i64make (256L, 0UL),
    41);
  pd_sint64_scwn_ua (&home->semi_fld, i64ltosint64 (5L));
  pd_sint64_ucwn_ua (&home->open_fld);
  pd_sint64_cwn_ua (&home->unsigned_fld, i64ltosint64 (0L),
    i64ltosint64 (100000L), 17);
}

void pdExtended (ASNG_F(ASNPERG *asnperg) Extended *home)
{
   /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
  pd_sint32_cwn_ua_8 (&home->bits_fld, 0, 7, 3);
   /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
  pd_sint32_ucwn_ua (&home->open_fld);
   /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
}

void pdElements (ASNG_F(ASNPERG *asnperg) Elements *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 4, 2);
    while (n1 < len_0){
      pd_sint32_cwn_ua_8 (&home->elem [n1], 0, 7, 3);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdcEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pd_sint32_cwn_ua_8 (home, 0, 7, 3);
  pd_end ();
}
