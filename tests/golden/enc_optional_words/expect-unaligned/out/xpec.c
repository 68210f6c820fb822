/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Words
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peOpt31 (ASNG_F(ASNPERG *asnperg) Opt31 *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BITL(0)){
      optfield_0 |= BITL(30);
    }
    if (home->compmask & BITL(1)){
      optfield_0 |= BITL(29);
    }
    if (home->compmask & BITL(2)){
      optfield_0 |= BITL(28);
    }
    if (home->compmask & BITL(3)){
      optfield_0 |= BITL(27);
    }
    if (home->compmask & BITL(4)){
      optfield_0 |= BITL(26);
    }
    if (home->compmask & BITL(5)){
      optfield_0 |= BITL(25);
    }
    if (home->compmask & BITL(6)){
      optfield_0 |= BITL(24);
    }
    if (home->compmask & BITL(7)){
      optfield_0 |= BITL(23);
    }
    if (home->compmask & BITL(8)){
      optfield_0 |= BITL(22);
    }
    if (home->compmask & BITL(9)){
      optfield_0 |= BITL(21);
    }
    if (home->compmask & BITL(10)){
      optfield_0 |= BITL(20);
    }
    if (home->compmask & BITL(11)){
      optfield_0 |= BITL(19);
    }
    if (home->compmask & BITL(12)){
      optfield_0 |= BITL(18);
    }
    if (home->compmask & BITL(13)){
      optfield_0 |= BITL(17);
    }
    if (home->compmask & BITL(14)){
      optfield_0 |= BITL(16);
    }
    if (home->compmask & BITL(15)){
      optfield_0 |= BITL(15);
    }
    if (home->compmask & BITL(16)){
      optfield_0 |= BITL(14);
    }
    if (home->compmask & BITL(17)){
      optfield_0 |= BITL(13);
    }
    if (home->compmask & BITL(18)){
      optfield_0 |= BITL(12);
    }
    if (home->compmask & BITL(19)){
      optfield_0 |= BITL(11);
    }
    if (home->compmask & BITL(20)){
      optfield_0 |= BITL(10);
    }
    if (home->compmask & BITL(21)){
      optfield_0 |= BITL(9);
    }
    if (home->compmask & BITL(22)){
      optfield_0 |= BITL(8);
    }
    if (home->compmask & BITL(23)){
      optfield_0 |= BITL(7);
    }
    if (home->compmask & BITL(24)){
      optfield_0 |= BITL(6);
    }
    if (home->compmask & BITL(25)){
      optfield_0 |= BITL(5);
    }
    if (home->compmask & BITL(26)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BITL(27)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BITL(28)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BITL(29)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BITL(30)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 31);
  }
  if ((home->compmask & BITL(0))){
    pe_Boolean (home->c0_fld);
  }
  if ((home->compmask & BITL(1))){
    pe_Boolean (home->c1_fld);
  }
  if ((home->compmask & BITL(2))){
    pe_Boolean (home->c2_fld);
  }
  if ((home->compmask & BITL(3))){
    pe_Boolean (home->c3_fld);
  }
  if ((home->compmask & BITL(4))){
    pe_Boolean (home->c4_fld);
  }
  if ((home->compmask & BITL(5))){
    pe_Boolean (home->c5_fld);
  }
  if ((home->compmask & BITL(6))){
    pe_Boolean (home->c6_fld);
  }
  if ((home->compmask & BITL(7))){
    pe_Boolean (home->c7_fld);
  }
  if ((home->compmask & BITL(8))){
    pe_Boolean (home->c8_fld);
  }
  if ((home->compmask & BITL(9))){
    pe_Boolean (home->c9_fld);
  }
  if ((home->compmask & BITL(10))){
    pe_Boolean (home->c10_fld);
  }
  if ((home->compmask & BITL(11))){
    pe_Boolean (home->c11_fld);
  }
  if ((home->compmask & BITL(12))){
    pe_Boolean (home->c12_fld);
  }
  if ((home->compmask & BITL(13))){
    pe_Boolean (home->c13_fld);
  }
  if ((home->compmask & BITL(14))){
    pe_Boolean (home->c14_fld);
  }
  if ((home->compmask & BITL(15))){
    pe_Boolean (home->c15_fld);
  }
  if ((home->compmask & BITL(16))){
    pe_Boolean (home->c16_fld);
  }
  if ((home->compmask & BITL(17))){
    pe_Boolean (home->c17_fld);
  }
  if ((home->compmask & BITL(18))){
    pe_Boolean (home->c18_fld);
  }
  if ((home->compmask & BITL(19))){
    pe_Boolean (home->c19_fld);
  }
  if ((home->compmask & BITL(20))){
    pe_Boolean (home->c20_fld);
  }
  if ((home->compmask & BITL(21))){
    pe_Boolean (home->c21_fld);
  }
  if ((home->compmask & BITL(22))){
    pe_Boolean (home->c22_fld);
  }
  if ((home->compmask & BITL(23))){
    pe_Boolean (home->c23_fld);
  }
  if ((home->compmask & BITL(24))){
    pe_Boolean (home->c24_fld);
  }
  if ((home->compmask & BITL(25))){
    pe_Boolean (home->c25_fld);
  }
  if ((home->compmask & BITL(26))){
    pe_Boolean (home->c26_fld);
  }
  if ((home->compmask & BITL(27))){
    pe_Boolean (home->c27_fld);
  }
  if ((home->compmask & BITL(28))){
    pe_Boolean (home->c28_fld);
  }
  if ((home->compmask & BITL(29))){
    pe_Boolean (home->c29_fld);
  }
  if ((home->compmask & BITL(30))){
    pe_Boolean (home->c30_fld);
  }
}

void peOpt32 (ASNG_F(ASNPERG *asnperg) Opt32 *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BITL(0)){
      optfield_0 |= BITL(31);
    }
    if (home->compmask & BITL(1)){
      optfield_0 |= BITL(30);
    }
    if (home->compmask & BITL(2)){
      optfield_0 |= BITL(29);
    }
    if (home->compmask & BITL(3)){
      optfield_0 |= BITL(28);
    }
    if (home->compmask & BITL(4)){
      optfield_0 |= BITL(27);
    }
    if (home->compmask & BITL(5)){
      optfield_0 |= BITL(26);
    }
    if (home->compmask & BITL(6)){
      optfield_0 |= BITL(25);
    }
    if (home->compmask & BITL(7)){
      optfield_0 |= BITL(24);
    }
    if (home->compmask & BITL(8)){
      optfield_0 |= BITL(23);
    }
    if (home->compmask & BITL(9)){
      optfield_0 |= BITL(22);
    }
    if (home->compmask & BITL(10)){
      optfield_0 |= BITL(21);
    }
    if (home->compmask & BITL(11)){
      optfield_0 |= BITL(20);
    }
    if (home->compmask & BITL(12)){
      optfield_0 |= BITL(19);
    }
    if (home->compmask & BITL(13)){
      optfield_0 |= BITL(18);
    }
    if (home->compmask & BITL(14)){
      optfield_0 |= BITL(17);
    }
    if (home->compmask & BITL(15)){
      optfield_0 |= BITL(16);
    }
    if (home->compmask & BITL(16)){
      optfield_0 |= BITL(15);
    }
    if (home->compmask & BITL(17)){
      optfield_0 |= BITL(14);
    }
    if (home->compmask & BITL(18)){
      optfield_0 |= BITL(13);
    }
    if (home->compmask & BITL(19)){
      optfield_0 |= BITL(12);
    }
    if (home->compmask & BITL(20)){
      optfield_0 |= BITL(11);
    }
    if (home->compmask & BITL(21)){
      optfield_0 |= BITL(10);
    }
    if (home->compmask & BITL(22)){
      optfield_0 |= BITL(9);
    }
    if (home->compmask & BITL(23)){
      optfield_0 |= BITL(8);
    }
    if (home->compmask & BITL(24)){
      optfield_0 |= BITL(7);
    }
    if (home->compmask & BITL(25)){
      optfield_0 |= BITL(6);
    }
    if (home->compmask & BITL(26)){
      optfield_0 |= BITL(5);
    }
    if (home->compmask & BITL(27)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BITL(28)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BITL(29)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BITL(30)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BITL(31)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 32);
  }
  if ((home->compmask & BITL(0))){
    pe_Boolean (home->c0_fld);
  }
  if ((home->compmask & BITL(1))){
    pe_Boolean (home->c1_fld);
  }
  if ((home->compmask & BITL(2))){
    pe_Boolean (home->c2_fld);
  }
  if ((home->compmask & BITL(3))){
    pe_Boolean (home->c3_fld);
  }
  if ((home->compmask & BITL(4))){
    pe_Boolean (home->c4_fld);
  }
  if ((home->compmask & BITL(5))){
    pe_Boolean (home->c5_fld);
  }
  if ((home->compmask & BITL(6))){
    pe_Boolean (home->c6_fld);
  }
  if ((home->compmask & BITL(7))){
    pe_Boolean (home->c7_fld);
  }
  if ((home->compmask & BITL(8))){
    pe_Boolean (home->c8_fld);
  }
  if ((home->compmask & BITL(9))){
    pe_Boolean (home->c9_fld);
  }
  if ((home->compmask & BITL(10))){
    pe_Boolean (home->c10_fld);
  }
  if ((home->compmask & BITL(11))){
    pe_Boolean (home->c11_fld);
  }
  if ((home->compmask & BITL(12))){
    pe_Boolean (home->c12_fld);
  }
  if ((home->compmask & BITL(13))){
    pe_Boolean (home->c13_fld);
  }
  if ((home->compmask & BITL(14))){
    pe_Boolean (home->c14_fld);
  }
  if ((home->compmask & BITL(15))){
    pe_Boolean (home->c15_fld);
  }
  if ((home->compmask & BITL(16))){
    pe_Boolean (home->c16_fld);
  }
  if ((home->compmask & BITL(17))){
    pe_Boolean (home->c17_fld);
  }
  if ((home->compmask & BITL(18))){
    pe_Boolean (home->c18_fld);
  }
  if ((home->compmask & BITL(19))){
    pe_Boolean (home->c19_fld);
  }
  if ((home->compmask & BITL(20))){
    pe_Boolean (home->c20_fld);
  }
  if ((home->compmask & BITL(21))){
    pe_Boolean (home->c21_fld);
  }
  if ((home->compmask & BITL(22))){
    pe_Boolean (home->c22_fld);
  }
  if ((home->compmask & BITL(23))){
    pe_Boolean (home->c23_fld);
  }
  if ((home->compmask & BITL(24))){
    pe_Boolean (home->c24_fld);
  }
  if ((home->compmask & BITL(25))){
    pe_Boolean (home->c25_fld);
  }
  if ((home->compmask & BITL(26))){
    pe_Boolean (home->c26_fld);
  }
  if ((home->compmask & BITL(27))){
    pe_Boolean (home->c27_fld);
  }
  if ((home->compmask & BITL(28))){
    pe_Boolean (home->c28_fld);
  }
  if ((home->compmask & BITL(29))){
    pe_Boolean (home->c29_fld);
  }
  if ((home->compmask & BITL(30))){
    pe_Boolean (home->c30_fld);
  }
  if ((home->compmask & BITL(31))){
    pe_Boolean (home->c31_fld);
  }
}

void peOpt33 (ASNG_F(ASNPERG *asnperg) Opt33 *home)
{
  {
    sint32 optfield_0[2] = {0, 0};
    if (home->compmask [0] & BITL(0)){
      optfield_0[1] |= BITL(0);
    }
    if (home->compmask [0] & BITL(1)){
      optfield_0[0] |= BITL(31);
    }
    if (home->compmask [0] & BITL(2)){
      optfield_0[0] |= BITL(30);
    }
    if (home->compmask [0] & BITL(3)){
      optfield_0[0] |= BITL(29);
    }
    if (home->compmask [0] & BITL(4)){
      optfield_0[0] |= BITL(28);
    }
    if (home->compmask [0] & BITL(5)){
      optfield_0[0] |= BITL(27);
    }
    if (home->compmask [0] & BITL(6)){
      optfield_0[0] |= BITL(26);
    }
    if (home->compmask [0] & BITL(7)){
      optfield_0[0] |= BITL(25);
    }
    if (home->compmask [0] & BITL(8)){
      optfield_0[0] |= BITL(24);
    }
    if (home->compmask [0] & BITL(9)){
      optfield_0[0] |= BITL(23);
    }
    if (home->compmask [0] & BITL(10)){
      optfield_0[0] |= BITL(22);
    }
    if (home->compmask [0] & BITL(11)){
      optfield_0[0] |= BITL(21);
    }
    if (home->compmask [0] & BITL(12)){
      optfield_0[0] |= BITL(20);
    }
    if (home->compmask [0] & BITL(13)){
      optfield_0[0] |= BITL(19);
    }
    if (home->compmask [0] & BITL(14)){
      optfield_0[0] |= BITL(18);
    }
    if (home->compmask [0] & BITL(15)){
      optfield_0[0] |= BITL(17);
    }
    if (home->compmask [0] & BITL(16)){
      optfield_0[0] |= BITL(16);
    }
    if (home->compmask [0] & BITL(17)){
      optfield_0[0] |= BITL(15);
    }
    if (home->compmask [0] & BITL(18)){
      optfield_0[0] |= BITL(14);
    }
    if (home->compmask [0] & BITL(19)){
      optfield_0[0] |= BITL(13);
    }
    if (home->compmask [0] & BITL(20)){
      optfield_0[0] |= BITL(12);
    }
    if (home->compmask [0] & BITL(21)){
      optfield_0[0] |= BITL(11);
    }
    if (home->compmask [0] & BITL(22)){
      optfield_0[0] |= BITL(10);
    }
    if (home->compmask [0] & BITL(23)){
      optfield_0[0] |= BITL(9);
    }
    if (home->compmask [0] & BITL(24)){
      optfield_0[0] |= BITL(8);
    }
    if (home->compmask [0] & BITL(25)){
      optfield_0[0] |= BITL(7);
    }
    if (home->compmask [0] & BITL(26)){
      optfield_0[0] |= BITL(6);
    }
    if (home->compmask [0] & BITL(27)){
      optfield_0[0] |= BITL(5);
    }
    if (home->compmask [0] & BITL(28)){
      optfield_0[0] |= BITL(4);
    }
    if (home->compmask [0] & BITL(29)){
      optfield_0[0] |= BITL(3);
    }
    if (home->compmask [0] & BITL(30)){
      optfield_0[0] |= BITL(2);
    }
    if (home->compmask [0] & BITL(31)){
      optfield_0[0] |= BITL(1);
    }
    if (home->compmask [1] & BITL(0)){
      optfield_0[0] |= BITL(0);
    }
    pe_optField (optfield_0[1], 1);
    pe_optField (optfield_0[0], 32);
  }
  if ((home->compmask [0] & BITL(0))){
    pe_Boolean (home->c0_fld);
  }
  if ((home->compmask [0] & BITL(1))){
    pe_Boolean (home->c1_fld);
  }
  if ((home->compmask [0] & BITL(2))){
    pe_Boolean (home->c2_fld);
  }
  if ((home->compmask [0] & BITL(3))){
    pe_Boolean (home->c3_fld);
  }
  if ((home->compmask [0] & BITL(4))){
    pe_Boolean (home->c4_fld);
  }
  if ((home->compmask [0] & BITL(5))){
    pe_Boolean (home->c5_fld);
  }
  if ((home->compmask [0] & BITL(6))){
    pe_Boolean (home->c6_fld);
  }
  if ((home->compmask [0] & BITL(7))){
    pe_Boolean (home->c7_fld);
  }
  if ((home->compmask [0] & BITL(8))){
    pe_Boolean (home->c8_fld);
  }
  if ((home->compmask [0] & BITL(9))){
    pe_Boolean (home->c9_fld);
  }
  if ((home->compmask [0] & BITL(10))){
    pe_Boolean (home->c10_fld);
  }
  if ((home->compmask [0] & BITL(11))){
    pe_Boolean (home->c11_fld);
  }
  if ((home->compmask [0] & BITL(12))){
    pe_Boolean (home->c12_fld);
  }
  if ((home->compmask [0] & BITL(13))){
    pe_Boolean (home->c13_fld);
  }
  if ((home->compmask [0] & BITL(14))){
    pe_Boolean (home->c14_fld);
  }
  if ((home->compmask [0] & BITL(15))){
    pe_Boolean (home->c15_fld);
  }
  if ((home->compmask [0] & BITL(16))){
    pe_Boolean (home->c16_fld);
  }
  if ((home->compmask [0] & BITL(17))){
    pe_Boolean (home->c17_fld);
  }
  if ((home->compmask [0] & BITL(18))){
    pe_Boolean (home->c18_fld);
  }
  if ((home->compmask [0] & BITL(19))){
    pe_Boolean (home->c19_fld);
  }
  if ((home->compmask [0] & BITL(20))){
    pe_Boolean (home->c20_fld);
  }
  if ((home->compmask [0] & BITL(21))){
    pe_Boolean (home->c21_fld);
  }
  if ((home->compmask [0] & BITL(22))){
    pe_Boolean (home->c22_fld);
  }
  if ((home->compmask [0] & BITL(23))){
    pe_Boolean (home->c23_fld);
  }
  if ((home->compmask [0] & BITL(24))){
    pe_Boolean (home->c24_fld);
  }
  if ((home->compmask [0] & BITL(25))){
    pe_Boolean (home->c25_fld);
  }
  if ((home->compmask [0] & BITL(26))){
    pe_Boolean (home->c26_fld);
  }
  if ((home->compmask [0] & BITL(27))){
    pe_Boolean (home->c27_fld);
  }
  if ((home->compmask [0] & BITL(28))){
    pe_Boolean (home->c28_fld);
  }
  if ((home->compmask [0] & BITL(29))){
    pe_Boolean (home->c29_fld);
  }
  if ((home->compmask [0] & BITL(30))){
    pe_Boolean (home->c30_fld);
  }
  if ((home->compmask [0] & BITL(31))){
    pe_Boolean (home->c31_fld);
  }
  if ((home->compmask [1] & BITL(0))){
    pe_Boolean (home->c32_fld);
  }
}

void peOpt64 (ASNG_F(ASNPERG *asnperg) Opt64 *home)
{
  {
    sint32 optfield_0[2] = {0, 0};
    if (home->compmask [0] & BITL(0)){
      optfield_0[1] |= BITL(31);
    }
    if (home->compmask [0] & BITL(1)){
      optfield_0[1] |= BITL(30);
    }
    if (home->compmask [0] & BITL(2)){
      optfield_0[1] |= BITL(29);
    }
    if (home->compmask [0] & BITL(3)){
      optfield_0[1] |= BITL(28);
    }
    if (home->compmask [0] & BITL(4)){
      optfield_0[1] |= BITL(27);
    }
    if (home->compmask [0] & BITL(5)){
      optfield_0[1] |= BITL(26);
    }
    if (home->compmask [0] & BITL(6)){
      optfield_0[1] |= BITL(25);
    }
    if (home->compmask [0] & BITL(7)){
      optfield_0[1] |= BITL(24);
    }
    if (home->compmask [0] & BITL(8)){
      optfield_0[1] |= BITL(23);
    }
    if (home->compmask [0] & BITL(9)){
      optfield_0[1] |= BITL(22);
    }
    if (home->compmask [0] & BITL(10)){
      optfield_0[1] |= BITL(21);
    }
    if (home->compmask [0] & BITL(11)){
      optfield_0[1] |= BITL(20);
    }
    if (home->compmask [0] & BITL(12)){
      optfield_0[1] |= BITL(19);
    }
    if (home->compmask [0] & BITL(13)){
      optfield_0[1] |= BITL(18);
    }
    if (home->compmask [0] & BITL(14)){
      optfield_0[1] |= BITL(17);
    }
    if (home->compmask [0] & BITL(15)){
      optfield_0[1] |= BITL(16);
    }
    if (home->compmask [0] & BITL(16)){
      optfield_0[1] |= BITL(15);
    }
    if (home->compmask [0] & BITL(17)){
      optfield_0[1] |= BITL(14);
    }
    if (home->compmask [0] & BITL(18)){
      optfield_0[1] |= BITL(13);
    }
    if (home->compmask [0] & BITL(19)){
      optfield_0[1] |= BITL(12);
    }
    if (home->compmask [0] & BITL(20)){
      optfield_0[1] |= BITL(11);
    }
    if (home->compmask [0] & BITL(21)){
      optfield_0[1] |= BITL(10);
    }
    if (home->compmask [0] & BITL(22)){
      optfield_0[1] |= BITL(9);
    }
    if (home->compmask [0] & BITL(23)){
      optfield_0[1] |= BITL(8);
    }
    if (home->compmask [0] & BITL(24)){
      optfield_0[1] |= BITL(7);
    }
    if (home->compmask [0] & BITL(25)){
      optfield_0[1] |= BITL(6);
    }
    if (home->compmask [0] & BITL(26)){
      optfield_0[1] |= BITL(5);
    }
    if (home->compmask [0] & BITL(27)){
      optfield_0[1] |= BITL(4);
    }
    if (home->compmask [0] & BITL(28)){
      optfield_0[1] |= BITL(3);
    }
    if (home->compmask [0] & BITL(29)){
      optfield_0[1] |= BITL(2);
    }
    if (home->compmask [0] & BITL(30)){
      optfield_0[1] |= BITL(1);
    }
    if (home->compmask [0] & BITL(31)){
      optfield_0[1] |= BITL(0);
    }
    if (home->compmask [1] & BITL(0)){
      optfield_0[0] |= BITL(31);
    }
    if (home->compmask [1] & BITL(1)){
      optfield_0[0] |= BITL(30);
    }
    if (home->compmask [1] & BITL(2)){
      optfield_0[0] |= BITL(29);
    }
    if (home->compmask [1] & BITL(3)){
      optfield_0[0] |= BITL(28);
    }
    if (home->compmask [1] & BITL(4)){
      optfield_0[0] |= BITL(27);
    }
    if (home->compmask [1] & BITL(5)){
      optfield_0[0] |= BITL(26);
    }
    if (home->compmask [1] & BITL(6)){
      optfield_0[0] |= BITL(25);
    }
    if (home->compmask [1] & BITL(7)){
      optfield_0[0] |= BITL(24);
    }
    if (home->compmask [1] & BITL(8)){
      optfield_0[0] |= BITL(23);
    }
    if (home->compmask [1] & BITL(9)){
      optfield_0[0] |= BITL(22);
    }
    if (home->compmask [1] & BITL(10)){
      optfield_0[0] |= BITL(21);
    }
    if (home->compmask [1] & BITL(11)){
      optfield_0[0] |= BITL(20);
    }
    if (home->compmask [1] & BITL(12)){
      optfield_0[0] |= BITL(19);
    }
    if (home->compmask [1] & BITL(13)){
      optfield_0[0] |= BITL(18);
    }
    if (home->compmask [1] & BITL(14)){
      optfield_0[0] |= BITL(17);
    }
    if (home->compmask [1] & BITL(15)){
      optfield_0[0] |= BITL(16);
    }
    if (home->compmask [1] & BITL(16)){
      optfield_0[0] |= BITL(15);
    }
    if (home->compmask [1] & BITL(17)){
      optfield_0[0] |= BITL(14);
    }
    if (home->compmask [1] & BITL(18)){
      optfield_0[0] |= BITL(13);
    }
    if (home->compmask [1] & BITL(19)){
      optfield_0[0] |= BITL(12);
    }
    if (home->compmask [1] & BITL(20)){
      optfield_0[0] |= BITL(11);
    }
    if (home->compmask [1] & BITL(21)){
      optfield_0[0] |= BITL(10);
    }
    if (home->compmask [1] & BITL(22)){
      optfield_0[0] |= BITL(9);
    }
    if (home->compmask [1] & BITL(23)){
      optfield_0[0] |= BITL(8);
    }
    if (home->compmask [1] & BITL(24)){
      optfield_0[0] |= BITL(7);
    }
    if (home->compmask [1] & BITL(25)){
      optfield_0[0] |= BITL(6);
    }
    if (home->compmask [1] & BITL(26)){
      optfield_0[0] |= BITL(5);
    }
    if (home->compmask [1] & BITL(27)){
      optfield_0[0] |= BITL(4);
    }
    if (home->compmask [1] & BITL(28)){
      optfield_0[0] |= BITL(3);
    }
    if (home->compmask [1] & BITL(29)){
      optfield_0[0] |= BITL(2);
    }
    if (home->compmask [1] & BITL(30)){
      optfield_0[0] |= BITL(1);
    }
    if (home->compmask [1] & BITL(31)){
      optfield_0[0] |= BITL(0);
    }
    pe_optField (optfield_0[1], 32);
    pe_optField (optfield_0[0], 32);
  }
  if ((home->compmask [0] & BITL(0))){
    pe_Boolean (home->c0_fld);
  }
  if ((home->compmask [0] & BITL(1))){
    pe_Boolean (home->c1_fld);
  }
  if ((home->compmask [0] & BITL(2))){
    pe_Boolean (home->c2_fld);
  }
  if ((home->compmask [0] & BITL(3))){
    pe_Boolean (home->c3_fld);
  }
  if ((home->compmask [0] & BITL(4))){
    pe_Boolean (home->c4_fld);
  }
  if ((home->compmask [0] & BITL(5))){
    pe_Boolean (home->c5_fld);
  }
  if ((home->compmask [0] & BITL(6))){
    pe_Boolean (home->c6_fld);
  }
  if ((home->compmask [0] & BITL(7))){
    pe_Boolean (home->c7_fld);
  }
  if ((home->compmask [0] & BITL(8))){
    pe_Boolean (home->c8_fld);
  }
  if ((home->compmask [0] & BITL(9))){
    pe_Boolean (home->c9_fld);
  }
  if ((home->compmask [0] & BITL(10))){
    pe_Boolean (home->c10_fld);
  }
  if ((home->compmask [0] & BITL(11))){
    pe_Boolean (home->c11_fld);
  }
  if ((home->compmask [0] & BITL(12))){
    pe_Boolean (home->c12_fld);
  }
  if ((home->compmask [0] & BITL(13))){
    pe_Boolean (home->c13_fld);
  }
  if ((home->compmask [0] & BITL(14))){
    pe_Boolean (home->c14_fld);
  }
  if ((home->compmask [0] & BITL(15))){
    pe_Boolean (home->c15_fld);
  }
  if ((home->compmask [0] & BITL(16))){
    pe_Boolean (home->c16_fld);
  }
  if ((home->compmask [0] & BITL(17))){
    pe_Boolean (home->c17_fld);
  }
  if ((home->compmask [0] & BITL(18))){
    pe_Boolean (home->c18_fld);
  }
  if ((home->compmask [0] & BITL(19))){
    pe_Boolean (home->c19_fld);
  }
  if ((home->compmask [0] & BITL(20))){
    pe_Boolean (home->c20_fld);
  }
  if ((home->compmask [0] & BITL(21))){
    pe_Boolean (home->c21_fld);
  }
  if ((home->compmask [0] & BITL(22))){
    pe_Boolean (home->c22_fld);
  }
  if ((home->compmask [0] & BITL(23))){
    pe_Boolean (home->c23_fld);
  }
  if ((home->compmask [0] & BITL(24))){
    pe_Boolean (home->c24_fld);
  }
  if ((home->compmask [0] & BITL(25))){
    pe_Boolean (home->c25_fld);
  }
  if ((home->compmask [0] & BITL(26))){
    pe_Boolean (home->c26_fld);
  }
  if ((home->compmask [0] & BITL(27))){
    pe_Boolean (home->c27_fld);
  }
  if ((home->compmask [0] & BITL(28))){
    pe_Boolean (home->c28_fld);
  }
  if ((home->compmask [0] & BITL(29))){
    pe_Boolean (home->c29_fld);
  }
  if ((home->compmask [0] & BITL(30))){
    pe_Boolean (home->c30_fld);
  }
  if ((home->compmask [0] & BITL(31))){
    pe_Boolean (home->c31_fld);
  }
  if ((home->compmask [1] & BITL(0))){
    pe_Boolean (home->c32_fld);
  }
  if ((home->compmask [1] & BITL(1))){
    pe_Boolean (home->c33_fld);
  }
  if ((home->compmask [1] & BITL(2))){
    pe_Boolean (home->c34_fld);
  }
  if ((home->compmask [1] & BITL(3))){
    pe_Boolean (home->c35_fld);
  }
  if ((home->compmask [1] & BITL(4))){
    pe_Boolean (home->c36_fld);
  }
  if ((home->compmask [1] & BITL(5))){
    pe_Boolean (home->c37_fld);
  }
  if ((home->compmask [1] & BITL(6))){
    pe_Boolean (home->c38_fld);
  }
  if ((home->compmask [1] & BITL(7))){
    pe_Boolean (home->c39_fld);
  }
  if ((home->compmask [1] & BITL(8))){
    pe_Boolean (home->c40_fld);
  }
  if ((home->compmask [1] & BITL(9))){
    pe_Boolean (home->c41_fld);
  }
  if ((home->compmask [1] & BITL(10))){
    pe_Boolean (home->c42_fld);
  }
  if ((home->compmask [1] & BITL(11))){
    pe_Boolean (home->c43_fld);
  }
  if ((home->compmask [1] & BITL(12))){
    pe_Boolean (home->c44_fld);
  }
  if ((home->compmask [1] & BITL(13))){
    pe_Boolean (home->c45_fld);
  }
  if ((home->compmask [1] & BITL(14))){
    pe_Boolean (home->c46_fld);
  }
  if ((home->compmask [1] & BITL(15))){
    pe_Boolean (home->c47_fld);
  }
  if ((home->compmask [1] & BITL(16))){
    pe_Boolean (home->c48_fld);
  }
  if ((home->compmask [1] & BITL(17))){
    pe_Boolean (home->c49_fld);
  }
  if ((home->compmask [1] & BITL(18))){
    pe_Boolean (home->c50_fld);
  }
  if ((home->compmask [1] & BITL(19))){
    pe_Boolean (home->c51_fld);
  }
  if ((home->compmask [1] & BITL(20))){
    pe_Boolean (home->c52_fld);
  }
  if ((home->compmask [1] & BITL(21))){
    pe_Boolean (home->c53_fld);
  }
  if ((home->compmask [1] & BITL(22))){
    pe_Boolean (home->c54_fld);
  }
  if ((home->compmask [1] & BITL(23))){
    pe_Boolean (home->c55_fld);
  }
  if ((home->compmask [1] & BITL(24))){
    pe_Boolean (home->c56_fld);
  }
  if ((home->compmask [1] & BITL(25))){
    pe_Boolean (home->c57_fld);
  }
  if ((home->compmask [1] & BITL(26))){
    pe_Boolean (home->c58_fld);
  }
  if ((home->compmask [1] & BITL(27))){
    pe_Boolean (home->c59_fld);
  }
  if ((home->compmask [1] & BITL(28))){
    pe_Boolean (home->c60_fld);
  }
  if ((home->compmask [1] & BITL(29))){
    pe_Boolean (home->c61_fld);
  }
  if ((home->compmask [1] & BITL(30))){
    pe_Boolean (home->c62_fld);
  }
  if ((home->compmask [1] & BITL(31))){
    pe_Boolean (home->c63_fld);
  }
}

void peOpt65 (ASNG_F(ASNPERG *asnperg) Opt65 *home)
{
  {
    sint32 optfield_0[3] = {0, 0, 0};
    if (home->compmask [0] & BITL(0)){
      optfield_0[2] |= BITL(0);
    }
    if (home->compmask [0] & BITL(1)){
      optfield_0[1] |= BITL(31);
    }
    if (home->compmask [0] & BITL(2)){
      optfield_0[1] |= BITL(30);
    }
    if (home->compmask [0] & BITL(3)){
      optfield_0[1] |= BITL(29);
    }
    if (home->compmask [0] & BITL(4)){
      optfield_0[1] |= BITL(28);
    }
    if (home->compmask [0] & BITL(5)){
      optfield_0[1] |= BITL(27);
    }
    if (home->compmask [0] & BITL(6)){
      optfield_0[1] |= BITL(26);
    }
    if (home->compmask [0] & BITL(7)){
      optfield_0[1] |= BITL(25);
    }
    if (home->compmask [0] & BITL(8)){
      optfield_0[1] |= BITL(24);
    }
    if (home->compmask [0] & BITL(9)){
      optfield_0[1] |= BITL(23);
    }
    if (home->compmask [0] & BITL(10)){
      optfield_0[1] |= BITL(22);
    }
    if (home->compmask [0] & BITL(11)){
      optfield_0[1] |= BITL(21);
    }
    if (home->compmask [0] & BITL(12)){
      optfield_0[1] |= BITL(20);
    }
    if (home->compmask [0] & BITL(13)){
      optfield_0[1] |= BITL(19);
    }
    if (home->compmask [0] & BITL(14)){
      optfield_0[1] |= BITL(18);
    }
    if (home->compmask [0] & BITL(15)){
      optfield_0[1] |= BITL(17);
    }
    if (home->compmask [0] & BITL(16)){
      optfield_0[1] |= BITL(16);
    }
    if (home->compmask [0] & BITL(17)){
      optfield_0[1] |= BITL(15);
    }
    if (home->compmask [0] & BITL(18)){
      optfield_0[1] |= BITL(14);
    }
    if (home->compmask [0] & BITL(19)){
      optfield_0[1] |= BITL(13);
    }
    if (home->compmask [0] & BITL(20)){
      optfield_0[1] |= BITL(12);
    }
    if (home->compmask [0] & BITL(21)){
      optfield_0[1] |= BITL(11);
    }
    if (home->compmask [0] & BITL(22)){
      optfield_0[1] |= BITL(10);
    }
    if (home->compmask [0] & BITL(23)){
      optfield_0[1] |= BITL(9);
    }
    if (home->compmask [0] & BITL(24)){
      optfield_0[1] |= BITL(8);
    }
    if (home->compmask [0] & BITL(25)){
      optfield_0[1] |= BITL(7);
    }
    if (home->compmask [0] & BITL(26)){
      optfield_0[1] |= BITL(6);
    }
    if (home->compmask [0] & BITL(27)){
      optfield_0[1] |= BITL(5);
    }
    if (home->compmask [0] & BITL(28)){
      optfield_0[1] |= BITL(4);
    }
    if (home->compmask [0] & BITL(29)){
      optfield_0[1] |= BITL(3);
    }
    if (home->compmask [0] & BITL(30)){
      optfield_0[1] |= BITL(2);
    }
    if (home->compmask [0] & BITL(31)){
      optfield_0[1] |= BITL(1);
    }
    if (home->compmask [1] & BITL(0)){
      optfield_0[1] |= BITL(0);
    }
    if (home->compmask [1] & BITL(1)){
      optfield_0[0] |= BITL(31);
    }
    if (home->compmask [1] & BITL(2)){
      optfield_0[0] |= BITL(30);
    }
    if (home->compmask [1] & BITL(3)){
      optfield_0[0] |= BITL(29);
    }
    if (home->compmask [1] & BITL(4)){
      optfield_0[0] |= BITL(28);
    }
    if (home->compmask [1] & BITL(5)){
      optfield_0[0] |= BITL(27);
    }
    if (home->compmask [1] & BITL(6)){
      optfield_0[0] |= BITL(26);
    }
    if (home->compmask [1] & BITL(7)){
      optfield_0[0] |= BITL(25);
    }
    if (home->compmask [1] & BITL(8)){
      optfield_0[0] |= BITL(24);
    }
    if (home->compmask [1] & BITL(9)){
      optfield_0[0] |= BITL(23);
    }
    if (home->compmask [1] & BITL(10)){
      optfield_0[0] |= BITL(22);
    }
    if (home->compmask [1] & BITL(11)){
      optfield_0[0] |= BITL(21);
    }
    if (home->compmask [1] & BITL(12)){
      optfield_0[0] |= BITL(20);
    }
    if (home->compmask [1] & BITL(13)){
      optfield_0[0] |= BITL(19);
    }
    if (home->compmask [1] & BITL(14)){
      optfield_0[0] |= BITL(18);
    }
    if (home->compmask [1] & BITL(15)){
      optfield_0[0] |= BITL(17);
    }
    if (home->compmask [1] & BITL(16)){
      optfield_0[0] |= BITL(16);
    }
    if (home->compmask [1] & BITL(17)){
      optfield_0[0] |= BITL(15);
    }
    if (home->compmask [1] & BITL(18)){
      optfield_0[0] |= BITL(14);
    }
    if (home->compmask [1] & BITL(19)){
      optfield_0[0] |= BITL(13);
    }
    if (home->compmask [1] & BITL(20)){
      optfield_0[0] |= BITL(12);
    }
    if (home->compmask [1] & BITL(21)){
      optfield_0[0] |= BITL(11);
    }
    if (home->compmask [1] & BITL(22)){
      optfield_0[0] |= BITL(10);
    }
    if (home->compmask [1] & BITL(23)){
      optfield_0[0] |= BITL(9);
    }
    if (home->compmask [1] & BITL(24)){
      optfield_0[0] |= BITL(8);
    }
    if (home->compmask [1] & BITL(25)){
      optfield_0[0] |= BITL(7);
    }
    if (home->compmask [1] & BITL(26)){
      optfield_0[0] |= BITL(6);
    }
    if (home->compmask [1] & BITL(27)){
      optfield_0[0] |= BITL(5);
    }
    if (home->compmask [1] & BITL(28)){
      optfield_0[0] |= BITL(4);
    }
    if (home->compmask [1] & BITL(29)){
      optfield_0[0] |= BITL(3);
    }
    if (home->compmask [1] & BITL(30)){
      optfield_0[0] |= BITL(2);
    }
    if (home->compmask [1] & BITL(31)){
      optfield_0[0] |= BITL(1);
    }
    if (home->compmask [2] & BITL(0)){
      optfield_0[0] |= BITL(0);
    }
    pe_optField (optfield_0[2], 1);
    pe_optField (optfield_0[1], 32);
    pe_optField (optfield_0[0], 32);
  }
  if ((home->compmask [0] & BITL(0))){
    pe_Boolean (home->c0_fld);
  }
  if ((home->compmask [0] & BITL(1))){
    pe_Boolean (home->c1_fld);
  }
  if ((home->compmask [0] & BITL(2))){
    pe_Boolean (home->c2_fld);
  }
  if ((home->compmask [0] & BITL(3))){
    pe_Boolean (home->c3_fld);
  }
  if ((home->compmask [0] & BITL(4))){
    pe_Boolean (home->c4_fld);
  }
  if ((home->compmask [0] & BITL(5))){
    pe_Boolean (home->c5_fld);
  }
  if ((home->compmask [0] & BITL(6))){
    pe_Boolean (home->c6_fld);
  }
  if ((home->compmask [0] & BITL(7))){
    pe_Boolean (home->c7_fld);
  }
  if ((home->compmask [0] & BITL(8))){
    pe_Boolean (home->c8_fld);
  }
  if ((home->compmask [0] & BITL(9))){
    pe_Boolean (home->c9_fld);
  }
  if ((home->compmask [0] & BITL(10))){
    pe_Boolean (home->c10_fld);
  }
  if ((home->compmask [0] & BITL(11))){
    pe_Boolean (home->c11_fld);
  }
  if ((home->compmask [0] & BITL(12))){
    pe_Boolean (home->c12_fld);
  }
  if ((home->compmask [0] & BITL(13))){
    pe_Boolean (home->c13_fld);
  }
  if ((home->compmask [0] & BITL(14))){
    pe_Boolean (home->c14_fld);
  }
  if ((home->compmask [0] & BITL(15))){
    pe_Boolean (home->c15_fld);
  }
  if ((home->compmask [0] & BITL(16))){
    pe_Boolean (home->c16_fld);
  }
  if ((home->compmask [0] & BITL(17))){
    pe_Boolean (home->c17_fld);
  }
  if ((home->compmask [0] & BITL(18))){
    pe_Boolean (home->c18_fld);
  }
  if ((home->compmask [0] & BITL(19))){
    pe_Boolean (home->c19_fld);
  }
  if ((home->compmask [0] & BITL(20))){
    pe_Boolean (home->c20_fld);
  }
  if ((home->compmask [0] & BITL(21))){
    pe_Boolean (home->c21_fld);
  }
  if ((home->compmask [0] & BITL(22))){
    pe_Boolean (home->c22_fld);
  }
  if ((home->compmask [0] & BITL(23))){
    pe_Boolean (home->c23_fld);
  }
  if ((home->compmask [0] & BITL(24))){
    pe_Boolean (home->c24_fld);
  }
  if ((home->compmask [0] & BITL(25))){
    pe_Boolean (home->c25_fld);
  }
  if ((home->compmask [0] & BITL(26))){
    pe_Boolean (home->c26_fld);
  }
  if ((home->compmask [0] & BITL(27))){
    pe_Boolean (home->c27_fld);
  }
  if ((home->compmask [0] & BITL(28))){
    pe_Boolean (home->c28_fld);
  }
  if ((home->compmask [0] & BITL(29))){
    pe_Boolean (home->c29_fld);
  }
  if ((home->compmask [0] & BITL(30))){
    pe_Boolean (home->c30_fld);
  }
  if ((home->compmask [0] & BITL(31))){
    pe_Boolean (home->c31_fld);
  }
  if ((home->compmask [1] & BITL(0))){
    pe_Boolean (home->c32_fld);
  }
  if ((home->compmask [1] & BITL(1))){
    pe_Boolean (home->c33_fld);
  }
  if ((home->compmask [1] & BITL(2))){
    pe_Boolean (home->c34_fld);
  }
  if ((home->compmask [1] & BITL(3))){
    pe_Boolean (home->c35_fld);
  }
  if ((home->compmask [1] & BITL(4))){
    pe_Boolean (home->c36_fld);
  }
  if ((home->compmask [1] & BITL(5))){
    pe_Boolean (home->c37_fld);
  }
  if ((home->compmask [1] & BITL(6))){
    pe_Boolean (home->c38_fld);
  }
  if ((home->compmask [1] & BITL(7))){
    pe_Boolean (home->c39_fld);
  }
  if ((home->compmask [1] & BITL(8))){
    pe_Boolean (home->c40_fld);
  }
  if ((home->compmask [1] & BITL(9))){
    pe_Boolean (home->c41_fld);
  }
  if ((home->compmask [1] & BITL(10))){
    pe_Boolean (home->c42_fld);
  }
  if ((home->compmask [1] & BITL(11))){
    pe_Boolean (home->c43_fld);
  }
  if ((home->compmask [1] & BITL(12))){
    pe_Boolean (home->c44_fld);
  }
  if ((home->compmask [1] & BITL(13))){
    pe_Boolean (home->c45_fld);
  }
  if ((home->compmask [1] & BITL(14))){
    pe_Boolean (home->c46_fld);
  }
  if ((home->compmask [1] & BITL(15))){
    pe_Boolean (home->c47_fld);
  }
  if ((home->compmask [1] & BITL(16))){
    pe_Boolean (home->c48_fld);
  }
  if ((home->compmask [1] & BITL(17))){
    pe_Boolean (home->c49_fld);
  }
  if ((home->compmask [1] & BITL(18))){
    pe_Boolean (home->c50_fld);
  }
  if ((home->compmask [1] & BITL(19))){
    pe_Boolean (home->c51_fld);
  }
  if ((home->compmask [1] & BITL(20))){
    pe_Boolean (home->c52_fld);
  }
  if ((home->compmask [1] & BITL(21))){
    pe_Boolean (home->c53_fld);
  }
  if ((home->compmask [1] & BITL(22))){
    pe_Boolean (home->c54_fld);
  }
  if ((home->compmask [1] & BITL(23))){
    pe_Boolean (home->c55_fld);
  }
  if ((home->compmask [1] & BITL(24))){
    pe_Boolean (home->c56_fld);
  }
  if ((home->compmask [1] & BITL(25))){
    pe_Boolean (home->c57_fld);
  }
  if ((home->compmask [1] & BITL(26))){
    pe_Boolean (home->c58_fld);
  }
  if ((home->compmask [1] & BITL(27))){
    pe_Boolean (home->c59_fld);
  }
  if ((home->compmask [1] & BITL(28))){
    pe_Boolean (home->c60_fld);
  }
  if ((home->compmask [1] & BITL(29))){
    pe_Boolean (home->c61_fld);
  }
  if ((home->compmask [1] & BITL(30))){
    pe_Boolean (home->c62_fld);
  }
  if ((home->compmask [1] & BITL(31))){
    pe_Boolean (home->c63_fld);
  }
  if ((home->compmask [2] & BITL(0))){
    pe_Boolean (home->c64_fld);
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peOpt31 (ASNG_F(asnperg) &home->a_fld);
  peOpt32 (ASNG_F(asnperg) &home->b_fld);
  peOpt33 (ASNG_F(asnperg) &home->c_fld);
  peOpt64 (ASNG_F(asnperg) &home->d_fld);
  peOpt65 (ASNG_F(asnperg) &home->e_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
