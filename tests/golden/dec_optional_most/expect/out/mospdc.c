/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Most
 * FILE = mospdc.c
 ****************************************************************/

#ifndef MOSPER_EXT
#include "mosper.ext"
#endif

void pdLongest (ASNG_F(ASNPERG *asnperg) Longest *home)
{
  home->compmask [0] = home->compmask [1] = home->compmask [2] = home->compmask [3] = home->compmask [4] = home->compmask [5] = home->compmask [6] = home->compmask [7] = home->compmask [8] = home->compmask [9] = home->compmask [10] = home->compmask [11] = home->compmask [12] = home->compmask [13] = home->compmask [14] = home->compmask [15] = 0;
  {
    sint32 optfield_0[16];
    optfield_0[15] = pd_getBits (32);
    optfield_0[14] = pd_getBits (32);
    optfield_0[13] = pd_getBits (32);
    optfield_0[12] = pd_getBits (32);
    optfield_0[11] = pd_getBits (32);
    optfield_0[10] = pd_getBits (32);
    optfield_0[9] = pd_getBits (32);
    optfield_0[8] = pd_getBits (32);
    optfield_0[7] = pd_getBits (32);
    optfield_0[6] = pd_getBits (32);
    optfield_0[5] = pd_getBits (32);
    optfield_0[4] = pd_getBits (32);
    optfield_0[3] = pd_getBits (32);
    optfield_0[2] = pd_getBits (32);
    optfield_0[1] = pd_getBits (32);
    optfield_0[0] = pd_getBits (32);
    if (optfield_0[15] & BITL(31)){
      home->compmask [0] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(30)){
      home->compmask [0] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(29)){
      home->compmask [0] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(28)){
      home->compmask [0] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(27)){
      home->compmask [0] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(26)){
      home->compmask [0] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(25)){
      home->compmask [0] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(24)){
      home->compmask [0] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(23)){
      home->compmask [0] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(22)){
      home->compmask [0] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(21)){
      home->compmask [0] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(20)){
      home->compmask [0] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(19)){
      home->compmask [0] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(18)){
      home->compmask [0] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(17)){
      home->compmask [0] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(16)){
      home->compmask [0] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(15)){
      home->compmask [0] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(14)){
      home->compmask [0] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(13)){
      home->compmask [0] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(12)){
      home->compmask [0] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(11)){
      home->compmask [0] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(10)){
      home->compmask [0] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(9)){
      home->compmask [0] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(8)){
      home->compmask [0] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(7)){
      home->compmask [0] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(6)){
      home->compmask [0] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(5)){
      home->compmask [0] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(4)){
      home->compmask [0] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(3)){
      home->compmask [0] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(2)){
      home->compmask [0] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(1)){
      home->compmask [0] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(0)){
      home->compmask [0] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(31)){
      home->compmask [1] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(30)){
      home->compmask [1] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(29)){
      home->compmask [1] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(28)){
      home->compmask [1] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(27)){
      home->compmask [1] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(26)){
      home->compmask [1] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(25)){
      home->compmask [1] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(24)){
      home->compmask [1] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(23)){
      home->compmask [1] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(22)){
      home->compmask [1] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(21)){
      home->compmask [1] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(20)){
      home->compmask [1] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(19)){
      home->compmask [1] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(18)){
      home->compmask [1] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(17)){
      home->compmask [1] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(16)){
      home->compmask [1] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(15)){
      home->compmask [1] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(14)){
      home->compmask [1] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(13)){
      home->compmask [1] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(12)){
      home->compmask [1] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(11)){
      home->compmask [1] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(10)){
      home->compmask [1] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(9)){
      home->compmask [1] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(8)){
      home->compmask [1] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(7)){
      home->compmask [1] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(6)){
      home->compmask [1] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(5)){
      home->compmask [1] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(4)){
      home->compmask [1] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(3)){
      home->compmask [1] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(2)){
      home->compmask [1] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(1)){
      home->compmask [1] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(0)){
      home->compmask [1] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(31)){
      home->compmask [2] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(30)){
      home->compmask [2] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(29)){
      home->compmask [2] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(28)){
      home->compmask [2] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(27)){
      home->compmask [2] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(26)){
      home->compmask [2] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(25)){
      home->compmask [2] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(24)){
      home->compmask [2] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(23)){
      home->compmask [2] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(22)){
      home->compmask [2] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(21)){
      home->compmask [2] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(20)){
      home->compmask [2] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(19)){
      home->compmask [2] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(18)){
      home->compmask [2] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(17)){
      home->compmask [2] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(16)){
      home->compmask [2] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(15)){
      home->compmask [2] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(14)){
      home->compmask [2] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(13)){
      home->compmask [2] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(12)){
      home->compmask [2] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(11)){
      home->compmask [2] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(10)){
      home->compmask [2] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(9)){
      home->compmask [2] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(8)){
      home->compmask [2] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(7)){
      home->compmask [2] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(6)){
      home->compmask [2] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(5)){
      home->compmask [2] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(4)){
      home->compmask [2] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(3)){
      home->compmask [2] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(2)){
      home->compmask [2] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(1)){
      home->compmask [2] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(0)){
      home->compmask [2] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(31)){
      home->compmask [3] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(30)){
      home->compmask [3] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(29)){
      home->compmask [3] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(28)){
      home->compmask [3] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(27)){
      home->compmask [3] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(26)){
      home->compmask [3] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(25)){
      home->compmask [3] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(24)){
      home->compmask [3] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(23)){
      home->compmask [3] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(22)){
      home->compmask [3] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(21)){
      home->compmask [3] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(20)){
      home->compmask [3] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(19)){
      home->compmask [3] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(18)){
      home->compmask [3] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(17)){
      home->compmask [3] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(16)){
      home->compmask [3] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(15)){
      home->compmask [3] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(14)){
      home->compmask [3] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(13)){
      home->compmask [3] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(12)){
      home->compmask [3] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(11)){
      home->compmask [3] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(10)){
      home->compmask [3] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(9)){
      home->compmask [3] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(8)){
      home->compmask [3] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(7)){
      home->compmask [3] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(6)){
      home->compmask [3] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(5)){
      home->compmask [3] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(4)){
      home->compmask [3] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(3)){
      home->compmask [3] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(2)){
      home->compmask [3] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(1)){
      home->compmask [3] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(0)){
      home->compmask [3] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(31)){
      home->compmask [4] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(30)){
      home->compmask [4] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(29)){
      home->compmask [4] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(28)){
      home->compmask [4] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(27)){
      home->compmask [4] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(26)){
      home->compmask [4] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(25)){
      home->compmask [4] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(24)){
      home->compmask [4] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(23)){
      home->compmask [4] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(22)){
      home->compmask [4] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(21)){
      home->compmask [4] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(20)){
      home->compmask [4] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(19)){
      home->compmask [4] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(18)){
      home->compmask [4] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(17)){
      home->compmask [4] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(16)){
      home->compmask [4] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(15)){
      home->compmask [4] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(14)){
      home->compmask [4] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(13)){
      home->compmask [4] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(12)){
      home->compmask [4] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(11)){
      home->compmask [4] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(10)){
      home->compmask [4] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(9)){
      home->compmask [4] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(8)){
      home->compmask [4] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(7)){
      home->compmask [4] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(6)){
      home->compmask [4] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(5)){
      home->compmask [4] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(4)){
      home->compmask [4] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(3)){
      home->compmask [4] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(2)){
      home->compmask [4] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(1)){
      home->compmask [4] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(0)){
      home->compmask [4] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(31)){
      home->compmask [5] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(30)){
      home->compmask [5] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(29)){
      home->compmask [5] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(28)){
      home->compmask [5] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(27)){
      home->compmask [5] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(26)){
      home->compmask [5] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(25)){
      home->compmask [5] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(24)){
      home->compmask [5] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(23)){
      home->compmask [5] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(22)){
      home->compmask [5] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(21)){
      home->compmask [5] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(20)){
      home->compmask [5] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(19)){
      home->compmask [5] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(18)){
      home->compmask [5] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(17)){
      home->compmask [5] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(16)){
      home->compmask [5] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(15)){
      home->compmask [5] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(14)){
      home->compmask [5] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(13)){
      home->compmask [5] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(12)){
      home->compmask [5] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(11)){
      home->compmask [5] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(10)){
      home->compmask [5] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(9)){
      home->compmask [5] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(8)){
      home->compmask [5] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(7)){
      home->compmask [5] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(6)){
      home->compmask [5] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(5)){
      home->compmask [5] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(4)){
      home->compmask [5] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(3)){
      home->compmask [5] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(2)){
      home->compmask [5] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(1)){
      home->compmask [5] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(0)){
      home->compmask [5] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(31)){
      home->compmask [6] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(30)){
      home->compmask [6] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(29)){
      home->compmask [6] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(28)){
      home->compmask [6] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(27)){
      home->compmask [6] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(26)){
      home->compmask [6] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(25)){
      home->compmask [6] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(24)){
      home->compmask [6] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(23)){
      home->compmask [6] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(22)){
      home->compmask [6] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(21)){
      home->compmask [6] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(20)){
      home->compmask [6] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(19)){
      home->compmask [6] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(18)){
      home->compmask [6] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(17)){
      home->compmask [6] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(16)){
      home->compmask [6] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(15)){
      home->compmask [6] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(14)){
      home->compmask [6] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(13)){
      home->compmask [6] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(12)){
      home->compmask [6] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(11)){
      home->compmask [6] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(10)){
      home->compmask [6] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(9)){
      home->compmask [6] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(8)){
      home->compmask [6] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(7)){
      home->compmask [6] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(6)){
      home->compmask [6] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(5)){
      home->compmask [6] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(4)){
      home->compmask [6] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(3)){
      home->compmask [6] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(2)){
      home->compmask [6] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(1)){
      home->compmask [6] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(0)){
      home->compmask [6] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(31)){
      home->compmask [7] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(30)){
      home->compmask [7] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(29)){
      home->compmask [7] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(28)){
      home->compmask [7] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(27)){
      home->compmask [7] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(26)){
      home->compmask [7] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(25)){
      home->compmask [7] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(24)){
      home->compmask [7] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(23)){
      home->compmask [7] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(22)){
      home->compmask [7] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(21)){
      home->compmask [7] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(20)){
      home->compmask [7] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(19)){
      home->compmask [7] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(18)){
      home->compmask [7] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(17)){
      home->compmask [7] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(16)){
      home->compmask [7] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(15)){
      home->compmask [7] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(14)){
      home->compmask [7] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(13)){
      home->compmask [7] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(12)){
      home->compmask [7] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(11)){
      home->compmask [7] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(10)){
      home->compmask [7] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(9)){
      home->compmask [7] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(8)){
      home->compmask [7] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(7)){
      home->compmask [7] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(6)){
      home->compmask [7] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(5)){
      home->compmask [7] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(4)){
      home->compmask [7] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(3)){
      home->compmask [7] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(2)){
      home->compmask [7] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(1)){
      home->compmask [7] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(0)){
      home->compmask [7] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(31)){
      home->compmask [8] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(30)){
      home->compmask [8] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(29)){
      home->compmask [8] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(28)){
      home->compmask [8] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(27)){
      home->compmask [8] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(26)){
      home->compmask [8] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(25)){
      home->compmask [8] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(24)){
      home->compmask [8] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(23)){
      home->compmask [8] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(22)){
      home->compmask [8] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(21)){
      home->compmask [8] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(20)){
      home->compmask [8] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(19)){
      home->compmask [8] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(18)){
      home->compmask [8] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(17)){
      home->compmask [8] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(16)){
      home->compmask [8] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(15)){
      home->compmask [8] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(14)){
      home->compmask [8] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(13)){
      home->compmask [8] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(12)){
      home->compmask [8] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(11)){
      home->compmask [8] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(10)){
      home->compmask [8] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(9)){
      home->compmask [8] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(8)){
      home->compmask [8] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(7)){
      home->compmask [8] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(6)){
      home->compmask [8] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(5)){
      home->compmask [8] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(4)){
      home->compmask [8] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(3)){
      home->compmask [8] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(2)){
      home->compmask [8] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(1)){
      home->compmask [8] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(0)){
      home->compmask [8] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(31)){
      home->compmask [9] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(30)){
      home->compmask [9] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(29)){
      home->compmask [9] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(28)){
      home->compmask [9] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(27)){
      home->compmask [9] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(26)){
      home->compmask [9] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(25)){
      home->compmask [9] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(24)){
      home->compmask [9] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(23)){
      home->compmask [9] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(22)){
      home->compmask [9] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(21)){
      home->compmask [9] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(20)){
      home->compmask [9] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(19)){
      home->compmask [9] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(18)){
      home->compmask [9] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(17)){
      home->compmask [9] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(16)){
      home->compmask [9] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(15)){
      home->compmask [9] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(14)){
      home->compmask [9] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(13)){
      home->compmask [9] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(12)){
      home->compmask [9] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(11)){
      home->compmask [9] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(10)){
      home->compmask [9] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(9)){
      home->compmask [9] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(8)){
      home->compmask [9] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(7)){
      home->compmask [9] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(6)){
      home->compmask [9] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(5)){
      home->compmask [9] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(4)){
      home->compmask [9] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(3)){
      home->compmask [9] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(2)){
      home->compmask [9] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(1)){
      home->compmask [9] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(0)){
      home->compmask [9] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(31)){
      home->compmask [10] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(30)){
      home->compmask [10] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(29)){
      home->compmask [10] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(28)){
      home->compmask [10] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(27)){
      home->compmask [10] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(26)){
      home->compmask [10] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(25)){
      home->compmask [10] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(24)){
      home->compmask [10] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(23)){
      home->compmask [10] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(22)){
      home->compmask [10] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(21)){
      home->compmask [10] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(20)){
      home->compmask [10] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(19)){
      home->compmask [10] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(18)){
      home->compmask [10] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(17)){
      home->compmask [10] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(16)){
      home->compmask [10] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(15)){
      home->compmask [10] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(14)){
      home->compmask [10] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(13)){
      home->compmask [10] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(12)){
      home->compmask [10] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(11)){
      home->compmask [10] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(10)){
      home->compmask [10] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(9)){
      home->compmask [10] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(8)){
      home->compmask [10] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(7)){
      home->compmask [10] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(6)){
      home->compmask [10] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(5)){
      home->compmask [10] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(4)){
      home->compmask [10] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(3)){
      home->compmask [10] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(2)){
      home->compmask [10] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(1)){
      home->compmask [10] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(0)){
      home->compmask [10] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(31)){
      home->compmask [11] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(30)){
      home->compmask [11] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(29)){
      home->compmask [11] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(28)){
      home->compmask [11] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(27)){
      home->compmask [11] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(26)){
      home->compmask [11] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(25)){
      home->compmask [11] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(24)){
      home->compmask [11] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(23)){
      home->compmask [11] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(22)){
      home->compmask [11] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(21)){
      home->compmask [11] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(20)){
      home->compmask [11] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(19)){
      home->compmask [11] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(18)){
      home->compmask [11] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(17)){
      home->compmask [11] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(16)){
      home->compmask [11] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(15)){
      home->compmask [11] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(14)){
      home->compmask [11] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(13)){
      home->compmask [11] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(12)){
      home->compmask [11] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(11)){
      home->compmask [11] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(10)){
      home->compmask [11] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(9)){
      home->compmask [11] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(8)){
      home->compmask [11] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(7)){
      home->compmask [11] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(6)){
      home->compmask [11] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(5)){
      home->compmask [11] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(4)){
      home->compmask [11] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(3)){
      home->compmask [11] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(2)){
      home->compmask [11] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(1)){
      home->compmask [11] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(0)){
      home->compmask [11] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(31)){
      home->compmask [12] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(30)){
      home->compmask [12] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(29)){
      home->compmask [12] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(28)){
      home->compmask [12] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(27)){
      home->compmask [12] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(26)){
      home->compmask [12] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(25)){
      home->compmask [12] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(24)){
      home->compmask [12] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(23)){
      home->compmask [12] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(22)){
      home->compmask [12] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(21)){
      home->compmask [12] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(20)){
      home->compmask [12] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(19)){
      home->compmask [12] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(18)){
      home->compmask [12] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(17)){
      home->compmask [12] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(16)){
      home->compmask [12] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(15)){
      home->compmask [12] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(14)){
      home->compmask [12] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(13)){
      home->compmask [12] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(12)){
      home->compmask [12] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(11)){
      home->compmask [12] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(10)){
      home->compmask [12] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(9)){
      home->compmask [12] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(8)){
      home->compmask [12] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(7)){
      home->compmask [12] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(6)){
      home->compmask [12] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(5)){
      home->compmask [12] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(4)){
      home->compmask [12] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(3)){
      home->compmask [12] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(2)){
      home->compmask [12] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(1)){
      home->compmask [12] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(0)){
      home->compmask [12] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(31)){
      home->compmask [13] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(30)){
      home->compmask [13] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(29)){
      home->compmask [13] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(28)){
      home->compmask [13] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(27)){
      home->compmask [13] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(26)){
      home->compmask [13] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(25)){
      home->compmask [13] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(24)){
      home->compmask [13] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(23)){
      home->compmask [13] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(22)){
      home->compmask [13] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(21)){
      home->compmask [13] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(20)){
      home->compmask [13] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(19)){
      home->compmask [13] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(18)){
      home->compmask [13] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(17)){
      home->compmask [13] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(16)){
      home->compmask [13] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(15)){
      home->compmask [13] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(14)){
      home->compmask [13] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(13)){
      home->compmask [13] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(12)){
      home->compmask [13] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(11)){
      home->compmask [13] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(10)){
      home->compmask [13] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(9)){
      home->compmask [13] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(8)){
      home->compmask [13] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(7)){
      home->compmask [13] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(6)){
      home->compmask [13] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(5)){
      home->compmask [13] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(4)){
      home->compmask [13] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(3)){
      home->compmask [13] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(2)){
      home->compmask [13] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(1)){
      home->compmask [13] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(0)){
      home->compmask [13] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(31)){
      home->compmask [14] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(30)){
      home->compmask [14] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(29)){
      home->compmask [14] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(28)){
      home->compmask [14] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(27)){
      home->compmask [14] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(26)){
      home->compmask [14] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(25)){
      home->compmask [14] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(24)){
      home->compmask [14] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(23)){
      home->compmask [14] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(22)){
      home->compmask [14] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(21)){
      home->compmask [14] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(20)){
      home->compmask [14] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(19)){
      home->compmask [14] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(18)){
      home->compmask [14] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(17)){
      home->compmask [14] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(16)){
      home->compmask [14] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(15)){
      home->compmask [14] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(14)){
      home->compmask [14] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(13)){
      home->compmask [14] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(12)){
      home->compmask [14] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(11)){
      home->compmask [14] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(10)){
      home->compmask [14] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(9)){
      home->compmask [14] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(8)){
      home->compmask [14] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(7)){
      home->compmask [14] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(6)){
      home->compmask [14] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(5)){
      home->compmask [14] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(4)){
      home->compmask [14] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(3)){
      home->compmask [14] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(2)){
      home->compmask [14] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(1)){
      home->compmask [14] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(0)){
      home->compmask [14] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(31)){
      home->compmask [15] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(30)){
      home->compmask [15] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(29)){
      home->compmask [15] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(28)){
      home->compmask [15] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(27)){
      home->compmask [15] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(26)){
      home->compmask [15] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(25)){
      home->compmask [15] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(24)){
      home->compmask [15] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(23)){
      home->compmask [15] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(22)){
      home->compmask [15] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(21)){
      home->compmask [15] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(20)){
      home->compmask [15] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(19)){
      home->compmask [15] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(18)){
      home->compmask [15] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(17)){
      home->compmask [15] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(16)){
      home->compmask [15] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(15)){
      home->compmask [15] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(14)){
      home->compmask [15] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(13)){
      home->compmask [15] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(12)){
      home->compmask [15] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(11)){
      home->compmask [15] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(10)){
      home->compmask [15] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(9)){
      home->compmask [15] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(8)){
      home->compmask [15] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(7)){
      home->compmask [15] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(6)){
      home->compmask [15] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(5)){
      home->compmask [15] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(4)){
      home->compmask [15] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(3)){
      home->compmask [15] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(2)){
      home->compmask [15] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(1)){
      home->compmask [15] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(0)){
      home->compmask [15] |= BITL(31);
      pd_NullType ();
    }
  }
}

void pdcLongest (ASNG_F(ASNPERG *asnperg) Longest *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdLongest (ASNG_F(asnperg) home);
  pd_end ();
}

void pdAbove (ASNG_F(ASNPERG *asnperg) Above *home)
{
  home->compmask [0] = home->compmask [1] = home->compmask [2] = home->compmask [3] = home->compmask [4] = home->compmask [5] = home->compmask [6] = home->compmask [7] = home->compmask [8] = home->compmask [9] = home->compmask [10] = home->compmask [11] = home->compmask [12] = home->compmask [13] = home->compmask [14] = home->compmask [15] = home->compmask [16] = 0;
  {
    sint32 optfield_0[17];
    optfield_0[16] = pd_getBits (1);
    optfield_0[15] = pd_getBits (32);
    optfield_0[14] = pd_getBits (32);
    optfield_0[13] = pd_getBits (32);
    optfield_0[12] = pd_getBits (32);
    optfield_0[11] = pd_getBits (32);
    optfield_0[10] = pd_getBits (32);
    optfield_0[9] = pd_getBits (32);
    optfield_0[8] = pd_getBits (32);
    optfield_0[7] = pd_getBits (32);
    optfield_0[6] = pd_getBits (32);
    optfield_0[5] = pd_getBits (32);
    optfield_0[4] = pd_getBits (32);
    optfield_0[3] = pd_getBits (32);
    optfield_0[2] = pd_getBits (32);
    optfield_0[1] = pd_getBits (32);
    optfield_0[0] = pd_getBits (32);
    if (optfield_0[15] & BITL(31)){
      home->compmask [0] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(30)){
      home->compmask [0] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(29)){
      home->compmask [0] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(28)){
      home->compmask [0] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(27)){
      home->compmask [0] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(26)){
      home->compmask [0] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(25)){
      home->compmask [0] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(24)){
      home->compmask [0] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(23)){
      home->compmask [0] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(22)){
      home->compmask [0] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(21)){
      home->compmask [0] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(20)){
      home->compmask [0] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(19)){
      home->compmask [0] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(18)){
      home->compmask [0] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(17)){
      home->compmask [0] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(16)){
      home->compmask [0] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(15)){
      home->compmask [0] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(14)){
      home->compmask [0] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(13)){
      home->compmask [0] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(12)){
      home->compmask [0] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(11)){
      home->compmask [0] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(10)){
      home->compmask [0] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(9)){
      home->compmask [0] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(8)){
      home->compmask [0] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(7)){
      home->compmask [0] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(6)){
      home->compmask [0] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(5)){
      home->compmask [0] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(4)){
      home->compmask [0] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(3)){
      home->compmask [0] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(2)){
      home->compmask [0] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(1)){
      home->compmask [0] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[15] & BITL(0)){
      home->compmask [0] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(31)){
      home->compmask [1] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(30)){
      home->compmask [1] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(29)){
      home->compmask [1] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(28)){
      home->compmask [1] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(27)){
      home->compmask [1] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(26)){
      home->compmask [1] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(25)){
      home->compmask [1] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(24)){
      home->compmask [1] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(23)){
      home->compmask [1] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(22)){
      home->compmask [1] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(21)){
      home->compmask [1] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(20)){
      home->compmask [1] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(19)){
      home->compmask [1] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(18)){
      home->compmask [1] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(17)){
      home->compmask [1] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(16)){
      home->compmask [1] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(15)){
      home->compmask [1] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(14)){
      home->compmask [1] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(13)){
      home->compmask [1] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(12)){
      home->compmask [1] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(11)){
      home->compmask [1] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(10)){
      home->compmask [1] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(9)){
      home->compmask [1] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(8)){
      home->compmask [1] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(7)){
      home->compmask [1] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(6)){
      home->compmask [1] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(5)){
      home->compmask [1] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(4)){
      home->compmask [1] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(3)){
      home->compmask [1] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(2)){
      home->compmask [1] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(1)){
      home->compmask [1] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[14] & BITL(0)){
      home->compmask [1] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(31)){
      home->compmask [2] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(30)){
      home->compmask [2] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(29)){
      home->compmask [2] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(28)){
      home->compmask [2] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(27)){
      home->compmask [2] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(26)){
      home->compmask [2] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(25)){
      home->compmask [2] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(24)){
      home->compmask [2] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(23)){
      home->compmask [2] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(22)){
      home->compmask [2] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(21)){
      home->compmask [2] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(20)){
      home->compmask [2] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(19)){
      home->compmask [2] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(18)){
      home->compmask [2] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(17)){
      home->compmask [2] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(16)){
      home->compmask [2] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(15)){
      home->compmask [2] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(14)){
      home->compmask [2] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(13)){
      home->compmask [2] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(12)){
      home->compmask [2] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(11)){
      home->compmask [2] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(10)){
      home->compmask [2] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(9)){
      home->compmask [2] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(8)){
      home->compmask [2] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(7)){
      home->compmask [2] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(6)){
      home->compmask [2] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(5)){
      home->compmask [2] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(4)){
      home->compmask [2] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(3)){
      home->compmask [2] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(2)){
      home->compmask [2] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(1)){
      home->compmask [2] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[13] & BITL(0)){
      home->compmask [2] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(31)){
      home->compmask [3] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(30)){
      home->compmask [3] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(29)){
      home->compmask [3] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(28)){
      home->compmask [3] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(27)){
      home->compmask [3] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(26)){
      home->compmask [3] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(25)){
      home->compmask [3] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(24)){
      home->compmask [3] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(23)){
      home->compmask [3] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(22)){
      home->compmask [3] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(21)){
      home->compmask [3] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(20)){
      home->compmask [3] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(19)){
      home->compmask [3] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(18)){
      home->compmask [3] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(17)){
      home->compmask [3] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(16)){
      home->compmask [3] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(15)){
      home->compmask [3] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(14)){
      home->compmask [3] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(13)){
      home->compmask [3] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(12)){
      home->compmask [3] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(11)){
      home->compmask [3] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(10)){
      home->compmask [3] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(9)){
      home->compmask [3] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(8)){
      home->compmask [3] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(7)){
      home->compmask [3] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(6)){
      home->compmask [3] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(5)){
      home->compmask [3] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(4)){
      home->compmask [3] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(3)){
      home->compmask [3] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(2)){
      home->compmask [3] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(1)){
      home->compmask [3] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[12] & BITL(0)){
      home->compmask [3] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(31)){
      home->compmask [4] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(30)){
      home->compmask [4] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(29)){
      home->compmask [4] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(28)){
      home->compmask [4] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(27)){
      home->compmask [4] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(26)){
      home->compmask [4] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(25)){
      home->compmask [4] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(24)){
      home->compmask [4] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(23)){
      home->compmask [4] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(22)){
      home->compmask [4] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(21)){
      home->compmask [4] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(20)){
      home->compmask [4] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(19)){
      home->compmask [4] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(18)){
      home->compmask [4] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(17)){
      home->compmask [4] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(16)){
      home->compmask [4] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(15)){
      home->compmask [4] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(14)){
      home->compmask [4] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(13)){
      home->compmask [4] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(12)){
      home->compmask [4] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(11)){
      home->compmask [4] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(10)){
      home->compmask [4] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(9)){
      home->compmask [4] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(8)){
      home->compmask [4] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(7)){
      home->compmask [4] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(6)){
      home->compmask [4] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(5)){
      home->compmask [4] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(4)){
      home->compmask [4] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(3)){
      home->compmask [4] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(2)){
      home->compmask [4] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(1)){
      home->compmask [4] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[11] & BITL(0)){
      home->compmask [4] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(31)){
      home->compmask [5] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(30)){
      home->compmask [5] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(29)){
      home->compmask [5] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(28)){
      home->compmask [5] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(27)){
      home->compmask [5] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(26)){
      home->compmask [5] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(25)){
      home->compmask [5] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(24)){
      home->compmask [5] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(23)){
      home->compmask [5] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(22)){
      home->compmask [5] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(21)){
      home->compmask [5] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(20)){
      home->compmask [5] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(19)){
      home->compmask [5] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(18)){
      home->compmask [5] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(17)){
      home->compmask [5] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(16)){
      home->compmask [5] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(15)){
      home->compmask [5] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(14)){
      home->compmask [5] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(13)){
      home->compmask [5] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(12)){
      home->compmask [5] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(11)){
      home->compmask [5] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(10)){
      home->compmask [5] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(9)){
      home->compmask [5] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(8)){
      home->compmask [5] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(7)){
      home->compmask [5] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(6)){
      home->compmask [5] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(5)){
      home->compmask [5] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(4)){
      home->compmask [5] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(3)){
      home->compmask [5] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(2)){
      home->compmask [5] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(1)){
      home->compmask [5] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[10] & BITL(0)){
      home->compmask [5] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(31)){
      home->compmask [6] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(30)){
      home->compmask [6] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(29)){
      home->compmask [6] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(28)){
      home->compmask [6] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(27)){
      home->compmask [6] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(26)){
      home->compmask [6] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(25)){
      home->compmask [6] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(24)){
      home->compmask [6] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(23)){
      home->compmask [6] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(22)){
      home->compmask [6] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(21)){
      home->compmask [6] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(20)){
      home->compmask [6] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(19)){
      home->compmask [6] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(18)){
      home->compmask [6] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(17)){
      home->compmask [6] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(16)){
      home->compmask [6] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(15)){
      home->compmask [6] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(14)){
      home->compmask [6] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(13)){
      home->compmask [6] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(12)){
      home->compmask [6] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(11)){
      home->compmask [6] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(10)){
      home->compmask [6] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(9)){
      home->compmask [6] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(8)){
      home->compmask [6] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(7)){
      home->compmask [6] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(6)){
      home->compmask [6] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(5)){
      home->compmask [6] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(4)){
      home->compmask [6] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(3)){
      home->compmask [6] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(2)){
      home->compmask [6] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(1)){
      home->compmask [6] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[9] & BITL(0)){
      home->compmask [6] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(31)){
      home->compmask [7] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(30)){
      home->compmask [7] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(29)){
      home->compmask [7] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(28)){
      home->compmask [7] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(27)){
      home->compmask [7] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(26)){
      home->compmask [7] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(25)){
      home->compmask [7] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(24)){
      home->compmask [7] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(23)){
      home->compmask [7] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(22)){
      home->compmask [7] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(21)){
      home->compmask [7] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(20)){
      home->compmask [7] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(19)){
      home->compmask [7] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(18)){
      home->compmask [7] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(17)){
      home->compmask [7] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(16)){
      home->compmask [7] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(15)){
      home->compmask [7] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(14)){
      home->compmask [7] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(13)){
      home->compmask [7] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(12)){
      home->compmask [7] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(11)){
      home->compmask [7] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(10)){
      home->compmask [7] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(9)){
      home->compmask [7] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(8)){
      home->compmask [7] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(7)){
      home->compmask [7] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(6)){
      home->compmask [7] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(5)){
      home->compmask [7] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(4)){
      home->compmask [7] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(3)){
      home->compmask [7] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(2)){
      home->compmask [7] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(1)){
      home->compmask [7] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[8] & BITL(0)){
      home->compmask [7] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(31)){
      home->compmask [8] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(30)){
      home->compmask [8] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(29)){
      home->compmask [8] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(28)){
      home->compmask [8] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(27)){
      home->compmask [8] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(26)){
      home->compmask [8] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(25)){
      home->compmask [8] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(24)){
      home->compmask [8] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(23)){
      home->compmask [8] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(22)){
      home->compmask [8] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(21)){
      home->compmask [8] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(20)){
      home->compmask [8] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(19)){
      home->compmask [8] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(18)){
      home->compmask [8] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(17)){
      home->compmask [8] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(16)){
      home->compmask [8] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(15)){
      home->compmask [8] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(14)){
      home->compmask [8] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(13)){
      home->compmask [8] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(12)){
      home->compmask [8] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(11)){
      home->compmask [8] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(10)){
      home->compmask [8] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(9)){
      home->compmask [8] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(8)){
      home->compmask [8] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(7)){
      home->compmask [8] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(6)){
      home->compmask [8] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(5)){
      home->compmask [8] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(4)){
      home->compmask [8] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(3)){
      home->compmask [8] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(2)){
      home->compmask [8] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(1)){
      home->compmask [8] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[7] & BITL(0)){
      home->compmask [8] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(31)){
      home->compmask [9] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(30)){
      home->compmask [9] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(29)){
      home->compmask [9] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(28)){
      home->compmask [9] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(27)){
      home->compmask [9] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(26)){
      home->compmask [9] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(25)){
      home->compmask [9] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(24)){
      home->compmask [9] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(23)){
      home->compmask [9] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(22)){
      home->compmask [9] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(21)){
      home->compmask [9] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(20)){
      home->compmask [9] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(19)){
      home->compmask [9] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(18)){
      home->compmask [9] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(17)){
      home->compmask [9] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(16)){
      home->compmask [9] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(15)){
      home->compmask [9] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(14)){
      home->compmask [9] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(13)){
      home->compmask [9] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(12)){
      home->compmask [9] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(11)){
      home->compmask [9] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(10)){
      home->compmask [9] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(9)){
      home->compmask [9] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(8)){
      home->compmask [9] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(7)){
      home->compmask [9] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(6)){
      home->compmask [9] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(5)){
      home->compmask [9] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(4)){
      home->compmask [9] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(3)){
      home->compmask [9] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(2)){
      home->compmask [9] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(1)){
      home->compmask [9] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[6] & BITL(0)){
      home->compmask [9] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(31)){
      home->compmask [10] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(30)){
      home->compmask [10] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(29)){
      home->compmask [10] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(28)){
      home->compmask [10] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(27)){
      home->compmask [10] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(26)){
      home->compmask [10] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(25)){
      home->compmask [10] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(24)){
      home->compmask [10] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(23)){
      home->compmask [10] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(22)){
      home->compmask [10] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(21)){
      home->compmask [10] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(20)){
      home->compmask [10] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(19)){
      home->compmask [10] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(18)){
      home->compmask [10] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(17)){
      home->compmask [10] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(16)){
      home->compmask [10] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(15)){
      home->compmask [10] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(14)){
      home->compmask [10] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(13)){
      home->compmask [10] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(12)){
      home->compmask [10] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(11)){
      home->compmask [10] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(10)){
      home->compmask [10] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(9)){
      home->compmask [10] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(8)){
      home->compmask [10] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(7)){
      home->compmask [10] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(6)){
      home->compmask [10] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(5)){
      home->compmask [10] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(4)){
      home->compmask [10] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(3)){
      home->compmask [10] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(2)){
      home->compmask [10] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(1)){
      home->compmask [10] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[5] & BITL(0)){
      home->compmask [10] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(31)){
      home->compmask [11] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(30)){
      home->compmask [11] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(29)){
      home->compmask [11] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(28)){
      home->compmask [11] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(27)){
      home->compmask [11] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(26)){
      home->compmask [11] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(25)){
      home->compmask [11] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(24)){
      home->compmask [11] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(23)){
      home->compmask [11] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(22)){
      home->compmask [11] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(21)){
      home->compmask [11] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(20)){
      home->compmask [11] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(19)){
      home->compmask [11] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(18)){
      home->compmask [11] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(17)){
      home->compmask [11] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(16)){
      home->compmask [11] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(15)){
      home->compmask [11] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(14)){
      home->compmask [11] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(13)){
      home->compmask [11] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(12)){
      home->compmask [11] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(11)){
      home->compmask [11] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(10)){
      home->compmask [11] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(9)){
      home->compmask [11] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(8)){
      home->compmask [11] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(7)){
      home->compmask [11] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(6)){
      home->compmask [11] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(5)){
      home->compmask [11] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(4)){
      home->compmask [11] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(3)){
      home->compmask [11] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(2)){
      home->compmask [11] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(1)){
      home->compmask [11] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[4] & BITL(0)){
      home->compmask [11] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(31)){
      home->compmask [12] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(30)){
      home->compmask [12] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(29)){
      home->compmask [12] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(28)){
      home->compmask [12] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(27)){
      home->compmask [12] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(26)){
      home->compmask [12] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(25)){
      home->compmask [12] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(24)){
      home->compmask [12] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(23)){
      home->compmask [12] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(22)){
      home->compmask [12] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(21)){
      home->compmask [12] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(20)){
      home->compmask [12] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(19)){
      home->compmask [12] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(18)){
      home->compmask [12] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(17)){
      home->compmask [12] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(16)){
      home->compmask [12] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(15)){
      home->compmask [12] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(14)){
      home->compmask [12] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(13)){
      home->compmask [12] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(12)){
      home->compmask [12] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(11)){
      home->compmask [12] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(10)){
      home->compmask [12] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(9)){
      home->compmask [12] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(8)){
      home->compmask [12] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(7)){
      home->compmask [12] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(6)){
      home->compmask [12] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(5)){
      home->compmask [12] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(4)){
      home->compmask [12] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(3)){
      home->compmask [12] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(2)){
      home->compmask [12] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(1)){
      home->compmask [12] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[3] & BITL(0)){
      home->compmask [12] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(31)){
      home->compmask [13] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(30)){
      home->compmask [13] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(29)){
      home->compmask [13] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(28)){
      home->compmask [13] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(27)){
      home->compmask [13] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(26)){
      home->compmask [13] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(25)){
      home->compmask [13] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(24)){
      home->compmask [13] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(23)){
      home->compmask [13] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(22)){
      home->compmask [13] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(21)){
      home->compmask [13] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(20)){
      home->compmask [13] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(19)){
      home->compmask [13] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(18)){
      home->compmask [13] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(17)){
      home->compmask [13] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(16)){
      home->compmask [13] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(15)){
      home->compmask [13] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(14)){
      home->compmask [13] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(13)){
      home->compmask [13] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(12)){
      home->compmask [13] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(11)){
      home->compmask [13] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(10)){
      home->compmask [13] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(9)){
      home->compmask [13] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(8)){
      home->compmask [13] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(7)){
      home->compmask [13] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(6)){
      home->compmask [13] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(5)){
      home->compmask [13] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(4)){
      home->compmask [13] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(3)){
      home->compmask [13] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(2)){
      home->compmask [13] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(1)){
      home->compmask [13] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[2] & BITL(0)){
      home->compmask [13] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(31)){
      home->compmask [14] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(30)){
      home->compmask [14] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(29)){
      home->compmask [14] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(28)){
      home->compmask [14] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(27)){
      home->compmask [14] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(26)){
      home->compmask [14] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(25)){
      home->compmask [14] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(24)){
      home->compmask [14] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(23)){
      home->compmask [14] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(22)){
      home->compmask [14] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(21)){
      home->compmask [14] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(20)){
      home->compmask [14] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(19)){
      home->compmask [14] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(18)){
      home->compmask [14] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(17)){
      home->compmask [14] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(16)){
      home->compmask [14] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(15)){
      home->compmask [14] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(14)){
      home->compmask [14] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(13)){
      home->compmask [14] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(12)){
      home->compmask [14] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(11)){
      home->compmask [14] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(10)){
      home->compmask [14] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(9)){
      home->compmask [14] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(8)){
      home->compmask [14] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(7)){
      home->compmask [14] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(6)){
      home->compmask [14] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(5)){
      home->compmask [14] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(4)){
      home->compmask [14] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(3)){
      home->compmask [14] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(2)){
      home->compmask [14] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(1)){
      home->compmask [14] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[1] & BITL(0)){
      home->compmask [14] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(31)){
      home->compmask [15] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(30)){
      home->compmask [15] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(29)){
      home->compmask [15] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(28)){
      home->compmask [15] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(27)){
      home->compmask [15] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(26)){
      home->compmask [15] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(25)){
      home->compmask [15] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(24)){
      home->compmask [15] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(23)){
      home->compmask [15] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(22)){
      home->compmask [15] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(21)){
      home->compmask [15] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(20)){
      home->compmask [15] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(19)){
      home->compmask [15] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(18)){
      home->compmask [15] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(17)){
      home->compmask [15] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(16)){
      home->compmask [15] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(15)){
      home->compmask [15] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(14)){
      home->compmask [15] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(13)){
      home->compmask [15] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(12)){
      home->compmask [15] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(11)){
      home->compmask [15] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(10)){
      home->compmask [15] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(9)){
      home->compmask [15] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(8)){
      home->compmask [15] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(7)){
      home->compmask [15] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(6)){
      home->compmask [15] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(5)){
      home->compmask [15] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(4)){
      home->compmask [15] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(3)){
      home->compmask [15] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(2)){
      home->compmask [15] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(1)){
      home->compmask [15] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(0)){
      home->compmask [15] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(-1)){
      home->compmask [16] |= BITL(0);
      pd_NullType ();
    }
  }
}

void pdcAbove (ASNG_F(ASNPERG *asnperg) Above *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdAbove (ASNG_F(asnperg) home);
  pd_end ();
}

void pdAboveInGroup (ASNG_F(ASNPERG *asnperg) AboveInGroup *home)
{
  home->compmask [0] = home->compmask [1] = home->compmask [2] = home->compmask [3] = home->compmask [4] = home->compmask [5] = home->compmask [6] = home->compmask [7] = home->compmask [8] = home->compmask [9] = home->compmask [10] = home->compmask [11] = home->compmask [12] = home->compmask [13] = home->compmask [14] = home->compmask [15] = home->compmask [16] = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1[17];
          optfield_1[16] = pd_getBits (1);
          optfield_1[15] = pd_getBits (32);
          optfield_1[14] = pd_getBits (32);
          optfield_1[13] = pd_getBits (32);
          optfield_1[12] = pd_getBits (32);
          optfield_1[11] = pd_getBits (32);
          optfield_1[10] = pd_getBits (32);
          optfield_1[9] = pd_getBits (32);
          optfield_1[8] = pd_getBits (32);
          optfield_1[7] = pd_getBits (32);
          optfield_1[6] = pd_getBits (32);
          optfield_1[5] = pd_getBits (32);
          optfield_1[4] = pd_getBits (32);
          optfield_1[3] = pd_getBits (32);
          optfield_1[2] = pd_getBits (32);
          optfield_1[1] = pd_getBits (32);
          optfield_1[0] = pd_getBits (32);
          if (optfield_1[15] & BITL(31)){
            home->compmask [0] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(30)){
            home->compmask [0] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(29)){
            home->compmask [0] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(28)){
            home->compmask [0] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(27)){
            home->compmask [0] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(26)){
            home->compmask [0] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(25)){
            home->compmask [0] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(24)){
            home->compmask [0] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(23)){
            home->compmask [0] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(22)){
            home->compmask [0] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(21)){
            home->compmask [0] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(20)){
            home->compmask [0] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(19)){
            home->compmask [0] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(18)){
            home->compmask [0] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(17)){
            home->compmask [0] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(16)){
            home->compmask [0] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(15)){
            home->compmask [0] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(14)){
            home->compmask [0] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(13)){
            home->compmask [0] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(12)){
            home->compmask [0] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(11)){
            home->compmask [0] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(10)){
            home->compmask [0] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(9)){
            home->compmask [0] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(8)){
            home->compmask [0] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(7)){
            home->compmask [0] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(6)){
            home->compmask [0] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(5)){
            home->compmask [0] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(4)){
            home->compmask [0] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(3)){
            home->compmask [0] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(2)){
            home->compmask [0] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(1)){
            home->compmask [0] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[15] & BITL(0)){
            home->compmask [1] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(31)){
            home->compmask [1] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(30)){
            home->compmask [1] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(29)){
            home->compmask [1] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(28)){
            home->compmask [1] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(27)){
            home->compmask [1] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(26)){
            home->compmask [1] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(25)){
            home->compmask [1] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(24)){
            home->compmask [1] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(23)){
            home->compmask [1] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(22)){
            home->compmask [1] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(21)){
            home->compmask [1] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(20)){
            home->compmask [1] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(19)){
            home->compmask [1] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(18)){
            home->compmask [1] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(17)){
            home->compmask [1] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(16)){
            home->compmask [1] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(15)){
            home->compmask [1] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(14)){
            home->compmask [1] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(13)){
            home->compmask [1] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(12)){
            home->compmask [1] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(11)){
            home->compmask [1] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(10)){
            home->compmask [1] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(9)){
            home->compmask [1] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(8)){
            home->compmask [1] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(7)){
            home->compmask [1] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(6)){
            home->compmask [1] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(5)){
            home->compmask [1] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(4)){
            home->compmask [1] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(3)){
            home->compmask [1] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(2)){
            home->compmask [1] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(1)){
            home->compmask [1] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[14] & BITL(0)){
            home->compmask [2] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(31)){
            home->compmask [2] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(30)){
            home->compmask [2] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(29)){
            home->compmask [2] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(28)){
            home->compmask [2] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(27)){
            home->compmask [2] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(26)){
            home->compmask [2] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(25)){
            home->compmask [2] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(24)){
            home->compmask [2] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(23)){
            home->compmask [2] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(22)){
            home->compmask [2] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(21)){
            home->compmask [2] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(20)){
            home->compmask [2] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(19)){
            home->compmask [2] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(18)){
            home->compmask [2] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(17)){
            home->compmask [2] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(16)){
            home->compmask [2] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(15)){
            home->compmask [2] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(14)){
            home->compmask [2] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(13)){
            home->compmask [2] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(12)){
            home->compmask [2] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(11)){
            home->compmask [2] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(10)){
            home->compmask [2] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(9)){
            home->compmask [2] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(8)){
            home->compmask [2] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(7)){
            home->compmask [2] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(6)){
            home->compmask [2] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(5)){
            home->compmask [2] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(4)){
            home->compmask [2] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(3)){
            home->compmask [2] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(2)){
            home->compmask [2] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(1)){
            home->compmask [2] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[13] & BITL(0)){
            home->compmask [3] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(31)){
            home->compmask [3] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(30)){
            home->compmask [3] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(29)){
            home->compmask [3] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(28)){
            home->compmask [3] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(27)){
            home->compmask [3] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(26)){
            home->compmask [3] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(25)){
            home->compmask [3] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(24)){
            home->compmask [3] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(23)){
            home->compmask [3] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(22)){
            home->compmask [3] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(21)){
            home->compmask [3] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(20)){
            home->compmask [3] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(19)){
            home->compmask [3] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(18)){
            home->compmask [3] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(17)){
            home->compmask [3] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(16)){
            home->compmask [3] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(15)){
            home->compmask [3] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(14)){
            home->compmask [3] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(13)){
            home->compmask [3] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(12)){
            home->compmask [3] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(11)){
            home->compmask [3] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(10)){
            home->compmask [3] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(9)){
            home->compmask [3] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(8)){
            home->compmask [3] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(7)){
            home->compmask [3] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(6)){
            home->compmask [3] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(5)){
            home->compmask [3] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(4)){
            home->compmask [3] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(3)){
            home->compmask [3] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(2)){
            home->compmask [3] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(1)){
            home->compmask [3] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[12] & BITL(0)){
            home->compmask [4] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(31)){
            home->compmask [4] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(30)){
            home->compmask [4] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(29)){
            home->compmask [4] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(28)){
            home->compmask [4] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(27)){
            home->compmask [4] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(26)){
            home->compmask [4] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(25)){
            home->compmask [4] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(24)){
            home->compmask [4] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(23)){
            home->compmask [4] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(22)){
            home->compmask [4] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(21)){
            home->compmask [4] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(20)){
            home->compmask [4] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(19)){
            home->compmask [4] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(18)){
            home->compmask [4] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(17)){
            home->compmask [4] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(16)){
            home->compmask [4] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(15)){
            home->compmask [4] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(14)){
            home->compmask [4] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(13)){
            home->compmask [4] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(12)){
            home->compmask [4] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(11)){
            home->compmask [4] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(10)){
            home->compmask [4] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(9)){
            home->compmask [4] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(8)){
            home->compmask [4] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(7)){
            home->compmask [4] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(6)){
            home->compmask [4] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(5)){
            home->compmask [4] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(4)){
            home->compmask [4] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(3)){
            home->compmask [4] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(2)){
            home->compmask [4] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(1)){
            home->compmask [4] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[11] & BITL(0)){
            home->compmask [5] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(31)){
            home->compmask [5] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(30)){
            home->compmask [5] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(29)){
            home->compmask [5] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(28)){
            home->compmask [5] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(27)){
            home->compmask [5] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(26)){
            home->compmask [5] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(25)){
            home->compmask [5] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(24)){
            home->compmask [5] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(23)){
            home->compmask [5] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(22)){
            home->compmask [5] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(21)){
            home->compmask [5] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(20)){
            home->compmask [5] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(19)){
            home->compmask [5] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(18)){
            home->compmask [5] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(17)){
            home->compmask [5] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(16)){
            home->compmask [5] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(15)){
            home->compmask [5] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(14)){
            home->compmask [5] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(13)){
            home->compmask [5] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(12)){
            home->compmask [5] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(11)){
            home->compmask [5] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(10)){
            home->compmask [5] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(9)){
            home->compmask [5] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(8)){
            home->compmask [5] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(7)){
            home->compmask [5] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(6)){
            home->compmask [5] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(5)){
            home->compmask [5] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(4)){
            home->compmask [5] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(3)){
            home->compmask [5] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(2)){
            home->compmask [5] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(1)){
            home->compmask [5] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[10] & BITL(0)){
            home->compmask [6] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(31)){
            home->compmask [6] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(30)){
            home->compmask [6] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(29)){
            home->compmask [6] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(28)){
            home->compmask [6] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(27)){
            home->compmask [6] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(26)){
            home->compmask [6] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(25)){
            home->compmask [6] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(24)){
            home->compmask [6] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(23)){
            home->compmask [6] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(22)){
            home->compmask [6] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(21)){
            home->compmask [6] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(20)){
            home->compmask [6] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(19)){
            home->compmask [6] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(18)){
            home->compmask [6] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(17)){
            home->compmask [6] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(16)){
            home->compmask [6] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(15)){
            home->compmask [6] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(14)){
            home->compmask [6] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(13)){
            home->compmask [6] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(12)){
            home->compmask [6] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(11)){
            home->compmask [6] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(10)){
            home->compmask [6] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(9)){
            home->compmask [6] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(8)){
            home->compmask [6] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(7)){
            home->compmask [6] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(6)){
            home->compmask [6] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(5)){
            home->compmask [6] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(4)){
            home->compmask [6] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(3)){
            home->compmask [6] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(2)){
            home->compmask [6] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(1)){
            home->compmask [6] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[9] & BITL(0)){
            home->compmask [7] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(31)){
            home->compmask [7] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(30)){
            home->compmask [7] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(29)){
            home->compmask [7] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(28)){
            home->compmask [7] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(27)){
            home->compmask [7] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(26)){
            home->compmask [7] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(25)){
            home->compmask [7] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(24)){
            home->compmask [7] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(23)){
            home->compmask [7] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(22)){
            home->compmask [7] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(21)){
            home->compmask [7] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(20)){
            home->compmask [7] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(19)){
            home->compmask [7] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(18)){
            home->compmask [7] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(17)){
            home->compmask [7] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(16)){
            home->compmask [7] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(15)){
            home->compmask [7] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(14)){
            home->compmask [7] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(13)){
            home->compmask [7] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(12)){
            home->compmask [7] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(11)){
            home->compmask [7] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(10)){
            home->compmask [7] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(9)){
            home->compmask [7] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(8)){
            home->compmask [7] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(7)){
            home->compmask [7] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(6)){
            home->compmask [7] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(5)){
            home->compmask [7] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(4)){
            home->compmask [7] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(3)){
            home->compmask [7] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(2)){
            home->compmask [7] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(1)){
            home->compmask [7] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[8] & BITL(0)){
            home->compmask [8] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(31)){
            home->compmask [8] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(30)){
            home->compmask [8] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(29)){
            home->compmask [8] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(28)){
            home->compmask [8] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(27)){
            home->compmask [8] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(26)){
            home->compmask [8] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(25)){
            home->compmask [8] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(24)){
            home->compmask [8] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(23)){
            home->compmask [8] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(22)){
            home->compmask [8] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(21)){
            home->compmask [8] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(20)){
            home->compmask [8] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(19)){
            home->compmask [8] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(18)){
            home->compmask [8] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(17)){
            home->compmask [8] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(16)){
            home->compmask [8] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(15)){
            home->compmask [8] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(14)){
            home->compmask [8] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(13)){
            home->compmask [8] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(12)){
            home->compmask [8] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(11)){
            home->compmask [8] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(10)){
            home->compmask [8] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(9)){
            home->compmask [8] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(8)){
            home->compmask [8] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(7)){
            home->compmask [8] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(6)){
            home->compmask [8] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(5)){
            home->compmask [8] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(4)){
            home->compmask [8] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(3)){
            home->compmask [8] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(2)){
            home->compmask [8] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(1)){
            home->compmask [8] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[7] & BITL(0)){
            home->compmask [9] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(31)){
            home->compmask [9] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(30)){
            home->compmask [9] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(29)){
            home->compmask [9] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(28)){
            home->compmask [9] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(27)){
            home->compmask [9] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(26)){
            home->compmask [9] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(25)){
            home->compmask [9] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(24)){
            home->compmask [9] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(23)){
            home->compmask [9] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(22)){
            home->compmask [9] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(21)){
            home->compmask [9] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(20)){
            home->compmask [9] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(19)){
            home->compmask [9] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(18)){
            home->compmask [9] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(17)){
            home->compmask [9] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(16)){
            home->compmask [9] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(15)){
            home->compmask [9] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(14)){
            home->compmask [9] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(13)){
            home->compmask [9] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(12)){
            home->compmask [9] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(11)){
            home->compmask [9] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(10)){
            home->compmask [9] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(9)){
            home->compmask [9] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(8)){
            home->compmask [9] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(7)){
            home->compmask [9] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(6)){
            home->compmask [9] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(5)){
            home->compmask [9] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(4)){
            home->compmask [9] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(3)){
            home->compmask [9] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(2)){
            home->compmask [9] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(1)){
            home->compmask [9] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[6] & BITL(0)){
            home->compmask [10] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(31)){
            home->compmask [10] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(30)){
            home->compmask [10] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(29)){
            home->compmask [10] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(28)){
            home->compmask [10] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(27)){
            home->compmask [10] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(26)){
            home->compmask [10] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(25)){
            home->compmask [10] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(24)){
            home->compmask [10] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(23)){
            home->compmask [10] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(22)){
            home->compmask [10] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(21)){
            home->compmask [10] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(20)){
            home->compmask [10] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(19)){
            home->compmask [10] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(18)){
            home->compmask [10] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(17)){
            home->compmask [10] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(16)){
            home->compmask [10] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(15)){
            home->compmask [10] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(14)){
            home->compmask [10] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(13)){
            home->compmask [10] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(12)){
            home->compmask [10] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(11)){
            home->compmask [10] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(10)){
            home->compmask [10] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(9)){
            home->compmask [10] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(8)){
            home->compmask [10] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(7)){
            home->compmask [10] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(6)){
            home->compmask [10] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(5)){
            home->compmask [10] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(4)){
            home->compmask [10] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(3)){
            home->compmask [10] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(2)){
            home->compmask [10] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(1)){
            home->compmask [10] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[5] & BITL(0)){
            home->compmask [11] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(31)){
            home->compmask [11] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(30)){
            home->compmask [11] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(29)){
            home->compmask [11] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(28)){
            home->compmask [11] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(27)){
            home->compmask [11] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(26)){
            home->compmask [11] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(25)){
            home->compmask [11] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(24)){
            home->compmask [11] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(23)){
            home->compmask [11] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(22)){
            home->compmask [11] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(21)){
            home->compmask [11] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(20)){
            home->compmask [11] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(19)){
            home->compmask [11] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(18)){
            home->compmask [11] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(17)){
            home->compmask [11] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(16)){
            home->compmask [11] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(15)){
            home->compmask [11] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(14)){
            home->compmask [11] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(13)){
            home->compmask [11] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(12)){
            home->compmask [11] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(11)){
            home->compmask [11] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(10)){
            home->compmask [11] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(9)){
            home->compmask [11] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(8)){
            home->compmask [11] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(7)){
            home->compmask [11] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(6)){
            home->compmask [11] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(5)){
            home->compmask [11] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(4)){
            home->compmask [11] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(3)){
            home->compmask [11] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(2)){
            home->compmask [11] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(1)){
            home->compmask [11] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[4] & BITL(0)){
            home->compmask [12] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(31)){
            home->compmask [12] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(30)){
            home->compmask [12] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(29)){
            home->compmask [12] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(28)){
            home->compmask [12] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(27)){
            home->compmask [12] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(26)){
            home->compmask [12] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(25)){
            home->compmask [12] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(24)){
            home->compmask [12] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(23)){
            home->compmask [12] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(22)){
            home->compmask [12] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(21)){
            home->compmask [12] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(20)){
            home->compmask [12] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(19)){
            home->compmask [12] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(18)){
            home->compmask [12] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(17)){
            home->compmask [12] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(16)){
            home->compmask [12] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(15)){
            home->compmask [12] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(14)){
            home->compmask [12] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(13)){
            home->compmask [12] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(12)){
            home->compmask [12] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(11)){
            home->compmask [12] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(10)){
            home->compmask [12] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(9)){
            home->compmask [12] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(8)){
            home->compmask [12] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(7)){
            home->compmask [12] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(6)){
            home->compmask [12] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(5)){
            home->compmask [12] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(4)){
            home->compmask [12] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(3)){
            home->compmask [12] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(2)){
            home->compmask [12] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(1)){
            home->compmask [12] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[3] & BITL(0)){
            home->compmask [13] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(31)){
            home->compmask [13] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(30)){
            home->compmask [13] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(29)){
            home->compmask [13] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(28)){
            home->compmask [13] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(27)){
            home->compmask [13] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(26)){
            home->compmask [13] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(25)){
            home->compmask [13] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(24)){
            home->compmask [13] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(23)){
            home->compmask [13] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(22)){
            home->compmask [13] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(21)){
            home->compmask [13] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(20)){
            home->compmask [13] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(19)){
            home->compmask [13] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(18)){
            home->compmask [13] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(17)){
            home->compmask [13] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(16)){
            home->compmask [13] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(15)){
            home->compmask [13] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(14)){
            home->compmask [13] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(13)){
            home->compmask [13] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(12)){
            home->compmask [13] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(11)){
            home->compmask [13] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(10)){
            home->compmask [13] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(9)){
            home->compmask [13] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(8)){
            home->compmask [13] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(7)){
            home->compmask [13] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(6)){
            home->compmask [13] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(5)){
            home->compmask [13] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(4)){
            home->compmask [13] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(3)){
            home->compmask [13] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(2)){
            home->compmask [13] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(1)){
            home->compmask [13] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[2] & BITL(0)){
            home->compmask [14] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(31)){
            home->compmask [14] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(30)){
            home->compmask [14] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(29)){
            home->compmask [14] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(28)){
            home->compmask [14] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(27)){
            home->compmask [14] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(26)){
            home->compmask [14] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(25)){
            home->compmask [14] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(24)){
            home->compmask [14] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(23)){
            home->compmask [14] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(22)){
            home->compmask [14] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(21)){
            home->compmask [14] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(20)){
            home->compmask [14] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(19)){
            home->compmask [14] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(18)){
            home->compmask [14] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(17)){
            home->compmask [14] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(16)){
            home->compmask [14] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(15)){
            home->compmask [14] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(14)){
            home->compmask [14] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(13)){
            home->compmask [14] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(12)){
            home->compmask [14] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(11)){
            home->compmask [14] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(10)){
            home->compmask [14] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(9)){
            home->compmask [14] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(8)){
            home->compmask [14] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(7)){
            home->compmask [14] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(6)){
            home->compmask [14] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(5)){
            home->compmask [14] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(4)){
            home->compmask [14] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(3)){
            home->compmask [14] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(2)){
            home->compmask [14] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(1)){
            home->compmask [14] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[1] & BITL(0)){
            home->compmask [15] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(31)){
            home->compmask [15] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(30)){
            home->compmask [15] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(29)){
            home->compmask [15] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(28)){
            home->compmask [15] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(27)){
            home->compmask [15] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(26)){
            home->compmask [15] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(25)){
            home->compmask [15] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(24)){
            home->compmask [15] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(23)){
            home->compmask [15] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(22)){
            home->compmask [15] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(21)){
            home->compmask [15] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(20)){
            home->compmask [15] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(19)){
            home->compmask [15] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(18)){
            home->compmask [15] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(17)){
            home->compmask [15] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(16)){
            home->compmask [15] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(15)){
            home->compmask [15] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(14)){
            home->compmask [15] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(13)){
            home->compmask [15] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(12)){
            home->compmask [15] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(11)){
            home->compmask [15] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(10)){
            home->compmask [15] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(9)){
            home->compmask [15] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(8)){
            home->compmask [15] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(7)){
            home->compmask [15] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(6)){
            home->compmask [15] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(5)){
            home->compmask [15] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(4)){
            home->compmask [15] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(3)){
            home->compmask [15] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(2)){
            home->compmask [15] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(1)){
            home->compmask [15] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(0)){
            home->compmask [16] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(-1)){
            home->compmask [16] |= BITL(1);
            pd_NullType ();
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdcAboveInGroup (ASNG_F(ASNPERG *asnperg) AboveInGroup *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdAboveInGroup (ASNG_F(asnperg) home);
  pd_end ();
}
