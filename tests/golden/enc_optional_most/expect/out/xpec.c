/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Most
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peOpt512 (ASNG_F(ASNPERG *asnperg) Opt512 *home)
{
  {
    sint32 optfield_0[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    if (home->compmask [0] & BITL(0)){
      optfield_0[15] |= BITL(31);
    }
    if (home->compmask [0] & BITL(1)){
      optfield_0[15] |= BITL(30);
    }
    if (home->compmask [0] & BITL(2)){
      optfield_0[15] |= BITL(29);
    }
    if (home->compmask [0] & BITL(3)){
      optfield_0[15] |= BITL(28);
    }
    if (home->compmask [0] & BITL(4)){
      optfield_0[15] |= BITL(27);
    }
    if (home->compmask [0] & BITL(5)){
      optfield_0[15] |= BITL(26);
    }
    if (home->compmask [0] & BITL(6)){
      optfield_0[15] |= BITL(25);
    }
    if (home->compmask [0] & BITL(7)){
      optfield_0[15] |= BITL(24);
    }
    if (home->compmask [0] & BITL(8)){
      optfield_0[15] |= BITL(23);
    }
    if (home->compmask [0] & BITL(9)){
      optfield_0[15] |= BITL(22);
    }
    if (home->compmask [0] & BITL(10)){
      optfield_0[15] |= BITL(21);
    }
    if (home->compmask [0] & BITL(11)){
      optfield_0[15] |= BITL(20);
    }
    if (home->compmask [0] & BITL(12)){
      optfield_0[15] |= BITL(19);
    }
    if (home->compmask [0] & BITL(13)){
      optfield_0[15] |= BITL(18);
    }
    if (home->compmask [0] & BITL(14)){
      optfield_0[15] |= BITL(17);
    }
    if (home->compmask [0] & BITL(15)){
      optfield_0[15] |= BITL(16);
    }
    if (home->compmask [0] & BITL(16)){
      optfield_0[15] |= BITL(15);
    }
    if (home->compmask [0] & BITL(17)){
      optfield_0[15] |= BITL(14);
    }
    if (home->compmask [0] & BITL(18)){
      optfield_0[15] |= BITL(13);
    }
    if (home->compmask [0] & BITL(19)){
      optfield_0[15] |= BITL(12);
    }
    if (home->compmask [0] & BITL(20)){
      optfield_0[15] |= BITL(11);
    }
    if (home->compmask [0] & BITL(21)){
      optfield_0[15] |= BITL(10);
    }
    if (home->compmask [0] & BITL(22)){
      optfield_0[15] |= BITL(9);
    }
    if (home->compmask [0] & BITL(23)){
      optfield_0[15] |= BITL(8);
    }
    if (home->compmask [0] & BITL(24)){
      optfield_0[15] |= BITL(7);
    }
    if (home->compmask [0] & BITL(25)){
      optfield_0[15] |= BITL(6);
    }
    if (home->compmask [0] & BITL(26)){
      optfield_0[15] |= BITL(5);
    }
    if (home->compmask [0] & BITL(27)){
      optfield_0[15] |= BITL(4);
    }
    if (home->compmask [0] & BITL(28)){
      optfield_0[15] |= BITL(3);
    }
    if (home->compmask [0] & BITL(29)){
      optfield_0[15] |= BITL(2);
    }
    if (home->compmask [0] & BITL(30)){
      optfield_0[15] |= BITL(1);
    }
    if (home->compmask [0] & BITL(31)){
      optfield_0[15] |= BITL(0);
    }
    if (home->compmask [1] & BITL(0)){
      optfield_0[14] |= BITL(31);
    }
    if (home->compmask [1] & BITL(1)){
      optfield_0[14] |= BITL(30);
    }
    if (home->compmask [1] & BITL(2)){
      optfield_0[14] |= BITL(29);
    }
    if (home->compmask [1] & BITL(3)){
      optfield_0[14] |= BITL(28);
    }
    if (home->compmask [1] & BITL(4)){
      optfield_0[14] |= BITL(27);
    }
    if (home->compmask [1] & BITL(5)){
      optfield_0[14] |= BITL(26);
    }
    if (home->compmask [1] & BITL(6)){
      optfield_0[14] |= BITL(25);
    }
    if (home->compmask [1] & BITL(7)){
      optfield_0[14] |= BITL(24);
    }
    if (home->compmask [1] & BITL(8)){
      optfield_0[14] |= BITL(23);
    }
    if (home->compmask [1] & BITL(9)){
      optfield_0[14] |= BITL(22);
    }
    if (home->compmask [1] & BITL(10)){
      optfield_0[14] |= BITL(21);
    }
    if (home->compmask [1] & BITL(11)){
      optfield_0[14] |= BITL(20);
    }
    if (home->compmask [1] & BITL(12)){
      optfield_0[14] |= BITL(19);
    }
    if (home->compmask [1] & BITL(13)){
      optfield_0[14] |= BITL(18);
    }
    if (home->compmask [1] & BITL(14)){
      optfield_0[14] |= BITL(17);
    }
    if (home->compmask [1] & BITL(15)){
      optfield_0[14] |= BITL(16);
    }
    if (home->compmask [1] & BITL(16)){
      optfield_0[14] |= BITL(15);
    }
    if (home->compmask [1] & BITL(17)){
      optfield_0[14] |= BITL(14);
    }
    if (home->compmask [1] & BITL(18)){
      optfield_0[14] |= BITL(13);
    }
    if (home->compmask [1] & BITL(19)){
      optfield_0[14] |= BITL(12);
    }
    if (home->compmask [1] & BITL(20)){
      optfield_0[14] |= BITL(11);
    }
    if (home->compmask [1] & BITL(21)){
      optfield_0[14] |= BITL(10);
    }
    if (home->compmask [1] & BITL(22)){
      optfield_0[14] |= BITL(9);
    }
    if (home->compmask [1] & BITL(23)){
      optfield_0[14] |= BITL(8);
    }
    if (home->compmask [1] & BITL(24)){
      optfield_0[14] |= BITL(7);
    }
    if (home->compmask [1] & BITL(25)){
      optfield_0[14] |= BITL(6);
    }
    if (home->compmask [1] & BITL(26)){
      optfield_0[14] |= BITL(5);
    }
    if (home->compmask [1] & BITL(27)){
      optfield_0[14] |= BITL(4);
    }
    if (home->compmask [1] & BITL(28)){
      optfield_0[14] |= BITL(3);
    }
    if (home->compmask [1] & BITL(29)){
      optfield_0[14] |= BITL(2);
    }
    if (home->compmask [1] & BITL(30)){
      optfield_0[14] |= BITL(1);
    }
    if (home->compmask [1] & BITL(31)){
      optfield_0[14] |= BITL(0);
    }
    if (home->compmask [2] & BITL(0)){
      optfield_0[13] |= BITL(31);
    }
    if (home->compmask [2] & BITL(1)){
      optfield_0[13] |= BITL(30);
    }
    if (home->compmask [2] & BITL(2)){
      optfield_0[13] |= BITL(29);
    }
    if (home->compmask [2] & BITL(3)){
      optfield_0[13] |= BITL(28);
    }
    if (home->compmask [2] & BITL(4)){
      optfield_0[13] |= BITL(27);
    }
    if (home->compmask [2] & BITL(5)){
      optfield_0[13] |= BITL(26);
    }
    if (home->compmask [2] & BITL(6)){
      optfield_0[13] |= BITL(25);
    }
    if (home->compmask [2] & BITL(7)){
      optfield_0[13] |= BITL(24);
    }
    if (home->compmask [2] & BITL(8)){
      optfield_0[13] |= BITL(23);
    }
    if (home->compmask [2] & BITL(9)){
      optfield_0[13] |= BITL(22);
    }
    if (home->compmask [2] & BITL(10)){
      optfield_0[13] |= BITL(21);
    }
    if (home->compmask [2] & BITL(11)){
      optfield_0[13] |= BITL(20);
    }
    if (home->compmask [2] & BITL(12)){
      optfield_0[13] |= BITL(19);
    }
    if (home->compmask [2] & BITL(13)){
      optfield_0[13] |= BITL(18);
    }
    if (home->compmask [2] & BITL(14)){
      optfield_0[13] |= BITL(17);
    }
    if (home->compmask [2] & BITL(15)){
      optfield_0[13] |= BITL(16);
    }
    if (home->compmask [2] & BITL(16)){
      optfield_0[13] |= BITL(15);
    }
    if (home->compmask [2] & BITL(17)){
      optfield_0[13] |= BITL(14);
    }
    if (home->compmask [2] & BITL(18)){
      optfield_0[13] |= BITL(13);
    }
    if (home->compmask [2] & BITL(19)){
      optfield_0[13] |= BITL(12);
    }
    if (home->compmask [2] & BITL(20)){
      optfield_0[13] |= BITL(11);
    }
    if (home->compmask [2] & BITL(21)){
      optfield_0[13] |= BITL(10);
    }
    if (home->compmask [2] & BITL(22)){
      optfield_0[13] |= BITL(9);
    }
    if (home->compmask [2] & BITL(23)){
      optfield_0[13] |= BITL(8);
    }
    if (home->compmask [2] & BITL(24)){
      optfield_0[13] |= BITL(7);
    }
    if (home->compmask [2] & BITL(25)){
      optfield_0[13] |= BITL(6);
    }
    if (home->compmask [2] & BITL(26)){
      optfield_0[13] |= BITL(5);
    }
    if (home->compmask [2] & BITL(27)){
      optfield_0[13] |= BITL(4);
    }
    if (home->compmask [2] & BITL(28)){
      optfield_0[13] |= BITL(3);
    }
    if (home->compmask [2] & BITL(29)){
      optfield_0[13] |= BITL(2);
    }
    if (home->compmask [2] & BITL(30)){
      optfield_0[13] |= BITL(1);
    }
    if (home->compmask [2] & BITL(31)){
      optfield_0[13] |= BITL(0);
    }
    if (home->compmask [3] & BITL(0)){
      optfield_0[12] |= BITL(31);
    }
    if (home->compmask [3] & BITL(1)){
      optfield_0[12] |= BITL(30);
    }
    if (home->compmask [3] & BITL(2)){
      optfield_0[12] |= BITL(29);
    }
    if (home->compmask [3] & BITL(3)){
      optfield_0[12] |= BITL(28);
    }
    if (home->compmask [3] & BITL(4)){
      optfield_0[12] |= BITL(27);
    }
    if (home->compmask [3] & BITL(5)){
      optfield_0[12] |= BITL(26);
    }
    if (home->compmask [3] & BITL(6)){
      optfield_0[12] |= BITL(25);
    }
    if (home->compmask [3] & BITL(7)){
      optfield_0[12] |= BITL(24);
    }
    if (home->compmask [3] & BITL(8)){
      optfield_0[12] |= BITL(23);
    }
    if (home->compmask [3] & BITL(9)){
      optfield_0[12] |= BITL(22);
    }
    if (home->compmask [3] & BITL(10)){
      optfield_0[12] |= BITL(21);
    }
    if (home->compmask [3] & BITL(11)){
      optfield_0[12] |= BITL(20);
    }
    if (home->compmask [3] & BITL(12)){
      optfield_0[12] |= BITL(19);
    }
    if (home->compmask [3] & BITL(13)){
      optfield_0[12] |= BITL(18);
    }
    if (home->compmask [3] & BITL(14)){
      optfield_0[12] |= BITL(17);
    }
    if (home->compmask [3] & BITL(15)){
      optfield_0[12] |= BITL(16);
    }
    if (home->compmask [3] & BITL(16)){
      optfield_0[12] |= BITL(15);
    }
    if (home->compmask [3] & BITL(17)){
      optfield_0[12] |= BITL(14);
    }
    if (home->compmask [3] & BITL(18)){
      optfield_0[12] |= BITL(13);
    }
    if (home->compmask [3] & BITL(19)){
      optfield_0[12] |= BITL(12);
    }
    if (home->compmask [3] & BITL(20)){
      optfield_0[12] |= BITL(11);
    }
    if (home->compmask [3] & BITL(21)){
      optfield_0[12] |= BITL(10);
    }
    if (home->compmask [3] & BITL(22)){
      optfield_0[12] |= BITL(9);
    }
    if (home->compmask [3] & BITL(23)){
      optfield_0[12] |= BITL(8);
    }
    if (home->compmask [3] & BITL(24)){
      optfield_0[12] |= BITL(7);
    }
    if (home->compmask [3] & BITL(25)){
      optfield_0[12] |= BITL(6);
    }
    if (home->compmask [3] & BITL(26)){
      optfield_0[12] |= BITL(5);
    }
    if (home->compmask [3] & BITL(27)){
      optfield_0[12] |= BITL(4);
    }
    if (home->compmask [3] & BITL(28)){
      optfield_0[12] |= BITL(3);
    }
    if (home->compmask [3] & BITL(29)){
      optfield_0[12] |= BITL(2);
    }
    if (home->compmask [3] & BITL(30)){
      optfield_0[12] |= BITL(1);
    }
    if (home->compmask [3] & BITL(31)){
      optfield_0[12] |= BITL(0);
    }
    if (home->compmask [4] & BITL(0)){
      optfield_0[11] |= BITL(31);
    }
    if (home->compmask [4] & BITL(1)){
      optfield_0[11] |= BITL(30);
    }
    if (home->compmask [4] & BITL(2)){
      optfield_0[11] |= BITL(29);
    }
    if (home->compmask [4] & BITL(3)){
      optfield_0[11] |= BITL(28);
    }
    if (home->compmask [4] & BITL(4)){
      optfield_0[11] |= BITL(27);
    }
    if (home->compmask [4] & BITL(5)){
      optfield_0[11] |= BITL(26);
    }
    if (home->compmask [4] & BITL(6)){
      optfield_0[11] |= BITL(25);
    }
    if (home->compmask [4] & BITL(7)){
      optfield_0[11] |= BITL(24);
    }
    if (home->compmask [4] & BITL(8)){
      optfield_0[11] |= BITL(23);
    }
    if (home->compmask [4] & BITL(9)){
      optfield_0[11] |= BITL(22);
    }
    if (home->compmask [4] & BITL(10)){
      optfield_0[11] |= BITL(21);
    }
    if (home->compmask [4] & BITL(11)){
      optfield_0[11] |= BITL(20);
    }
    if (home->compmask [4] & BITL(12)){
      optfield_0[11] |= BITL(19);
    }
    if (home->compmask [4] & BITL(13)){
      optfield_0[11] |= BITL(18);
    }
    if (home->compmask [4] & BITL(14)){
      optfield_0[11] |= BITL(17);
    }
    if (home->compmask [4] & BITL(15)){
      optfield_0[11] |= BITL(16);
    }
    if (home->compmask [4] & BITL(16)){
      optfield_0[11] |= BITL(15);
    }
    if (home->compmask [4] & BITL(17)){
      optfield_0[11] |= BITL(14);
    }
    if (home->compmask [4] & BITL(18)){
      optfield_0[11] |= BITL(13);
    }
    if (home->compmask [4] & BITL(19)){
      optfield_0[11] |= BITL(12);
    }
    if (home->compmask [4] & BITL(20)){
      optfield_0[11] |= BITL(11);
    }
    if (home->compmask [4] & BITL(21)){
      optfield_0[11] |= BITL(10);
    }
    if (home->compmask [4] & BITL(22)){
      optfield_0[11] |= BITL(9);
    }
    if (home->compmask [4] & BITL(23)){
      optfield_0[11] |= BITL(8);
    }
    if (home->compmask [4] & BITL(24)){
      optfield_0[11] |= BITL(7);
    }
    if (home->compmask [4] & BITL(25)){
      optfield_0[11] |= BITL(6);
    }
    if (home->compmask [4] & BITL(26)){
      optfield_0[11] |= BITL(5);
    }
    if (home->compmask [4] & BITL(27)){
      optfield_0[11] |= BITL(4);
    }
    if (home->compmask [4] & BITL(28)){
      optfield_0[11] |= BITL(3);
    }
    if (home->compmask [4] & BITL(29)){
      optfield_0[11] |= BITL(2);
    }
    if (home->compmask [4] & BITL(30)){
      optfield_0[11] |= BITL(1);
    }
    if (home->compmask [4] & BITL(31)){
      optfield_0[11] |= BITL(0);
    }
    if (home->compmask [5] & BITL(0)){
      optfield_0[10] |= BITL(31);
    }
    if (home->compmask [5] & BITL(1)){
      optfield_0[10] |= BITL(30);
    }
    if (home->compmask [5] & BITL(2)){
      optfield_0[10] |= BITL(29);
    }
    if (home->compmask [5] & BITL(3)){
      optfield_0[10] |= BITL(28);
    }
    if (home->compmask [5] & BITL(4)){
      optfield_0[10] |= BITL(27);
    }
    if (home->compmask [5] & BITL(5)){
      optfield_0[10] |= BITL(26);
    }
    if (home->compmask [5] & BITL(6)){
      optfield_0[10] |= BITL(25);
    }
    if (home->compmask [5] & BITL(7)){
      optfield_0[10] |= BITL(24);
    }
    if (home->compmask [5] & BITL(8)){
      optfield_0[10] |= BITL(23);
    }
    if (home->compmask [5] & BITL(9)){
      optfield_0[10] |= BITL(22);
    }
    if (home->compmask [5] & BITL(10)){
      optfield_0[10] |= BITL(21);
    }
    if (home->compmask [5] & BITL(11)){
      optfield_0[10] |= BITL(20);
    }
    if (home->compmask [5] & BITL(12)){
      optfield_0[10] |= BITL(19);
    }
    if (home->compmask [5] & BITL(13)){
      optfield_0[10] |= BITL(18);
    }
    if (home->compmask [5] & BITL(14)){
      optfield_0[10] |= BITL(17);
    }
    if (home->compmask [5] & BITL(15)){
      optfield_0[10] |= BITL(16);
    }
    if (home->compmask [5] & BITL(16)){
      optfield_0[10] |= BITL(15);
    }
    if (home->compmask [5] & BITL(17)){
      optfield_0[10] |= BITL(14);
    }
    if (home->compmask [5] & BITL(18)){
      optfield_0[10] |= BITL(13);
    }
    if (home->compmask [5] & BITL(19)){
      optfield_0[10] |= BITL(12);
    }
    if (home->compmask [5] & BITL(20)){
      optfield_0[10] |= BITL(11);
    }
    if (home->compmask [5] & BITL(21)){
      optfield_0[10] |= BITL(10);
    }
    if (home->compmask [5] & BITL(22)){
      optfield_0[10] |= BITL(9);
    }
    if (home->compmask [5] & BITL(23)){
      optfield_0[10] |= BITL(8);
    }
    if (home->compmask [5] & BITL(24)){
      optfield_0[10] |= BITL(7);
    }
    if (home->compmask [5] & BITL(25)){
      optfield_0[10] |= BITL(6);
    }
    if (home->compmask [5] & BITL(26)){
      optfield_0[10] |= BITL(5);
    }
    if (home->compmask [5] & BITL(27)){
      optfield_0[10] |= BITL(4);
    }
    if (home->compmask [5] & BITL(28)){
      optfield_0[10] |= BITL(3);
    }
    if (home->compmask [5] & BITL(29)){
      optfield_0[10] |= BITL(2);
    }
    if (home->compmask [5] & BITL(30)){
      optfield_0[10] |= BITL(1);
    }
    if (home->compmask [5] & BITL(31)){
      optfield_0[10] |= BITL(0);
    }
    if (home->compmask [6] & BITL(0)){
      optfield_0[9] |= BITL(31);
    }
    if (home->compmask [6] & BITL(1)){
      optfield_0[9] |= BITL(30);
    }
    if (home->compmask [6] & BITL(2)){
      optfield_0[9] |= BITL(29);
    }
    if (home->compmask [6] & BITL(3)){
      optfield_0[9] |= BITL(28);
    }
    if (home->compmask [6] & BITL(4)){
      optfield_0[9] |= BITL(27);
    }
    if (home->compmask [6] & BITL(5)){
      optfield_0[9] |= BITL(26);
    }
    if (home->compmask [6] & BITL(6)){
      optfield_0[9] |= BITL(25);
    }
    if (home->compmask [6] & BITL(7)){
      optfield_0[9] |= BITL(24);
    }
    if (home->compmask [6] & BITL(8)){
      optfield_0[9] |= BITL(23);
    }
    if (home->compmask [6] & BITL(9)){
      optfield_0[9] |= BITL(22);
    }
    if (home->compmask [6] & BITL(10)){
      optfield_0[9] |= BITL(21);
    }
    if (home->compmask [6] & BITL(11)){
      optfield_0[9] |= BITL(20);
    }
    if (home->compmask [6] & BITL(12)){
      optfield_0[9] |= BITL(19);
    }
    if (home->compmask [6] & BITL(13)){
      optfield_0[9] |= BITL(18);
    }
    if (home->compmask [6] & BITL(14)){
      optfield_0[9] |= BITL(17);
    }
    if (home->compmask [6] & BITL(15)){
      optfield_0[9] |= BITL(16);
    }
    if (home->compmask [6] & BITL(16)){
      optfield_0[9] |= BITL(15);
    }
    if (home->compmask [6] & BITL(17)){
      optfield_0[9] |= BITL(14);
    }
    if (home->compmask [6] & BITL(18)){
      optfield_0[9] |= BITL(13);
    }
    if (home->compmask [6] & BITL(19)){
      optfield_0[9] |= BITL(12);
    }
    if (home->compmask [6] & BITL(20)){
      optfield_0[9] |= BITL(11);
    }
    if (home->compmask [6] & BITL(21)){
      optfield_0[9] |= BITL(10);
    }
    if (home->compmask [6] & BITL(22)){
      optfield_0[9] |= BITL(9);
    }
    if (home->compmask [6] & BITL(23)){
      optfield_0[9] |= BITL(8);
    }
    if (home->compmask [6] & BITL(24)){
      optfield_0[9] |= BITL(7);
    }
    if (home->compmask [6] & BITL(25)){
      optfield_0[9] |= BITL(6);
    }
    if (home->compmask [6] & BITL(26)){
      optfield_0[9] |= BITL(5);
    }
    if (home->compmask [6] & BITL(27)){
      optfield_0[9] |= BITL(4);
    }
    if (home->compmask [6] & BITL(28)){
      optfield_0[9] |= BITL(3);
    }
    if (home->compmask [6] & BITL(29)){
      optfield_0[9] |= BITL(2);
    }
    if (home->compmask [6] & BITL(30)){
      optfield_0[9] |= BITL(1);
    }
    if (home->compmask [6] & BITL(31)){
      optfield_0[9] |= BITL(0);
    }
    if (home->compmask [7] & BITL(0)){
      optfield_0[8] |= BITL(31);
    }
    if (home->compmask [7] & BITL(1)){
      optfield_0[8] |= BITL(30);
    }
    if (home->compmask [7] & BITL(2)){
      optfield_0[8] |= BITL(29);
    }
    if (home->compmask [7] & BITL(3)){
      optfield_0[8] |= BITL(28);
    }
    if (home->compmask [7] & BITL(4)){
      optfield_0[8] |= BITL(27);
    }
    if (home->compmask [7] & BITL(5)){
      optfield_0[8] |= BITL(26);
    }
    if (home->compmask [7] & BITL(6)){
      optfield_0[8] |= BITL(25);
    }
    if (home->compmask [7] & BITL(7)){
      optfield_0[8] |= BITL(24);
    }
    if (home->compmask [7] & BITL(8)){
      optfield_0[8] |= BITL(23);
    }
    if (home->compmask [7] & BITL(9)){
      optfield_0[8] |= BITL(22);
    }
    if (home->compmask [7] & BITL(10)){
      optfield_0[8] |= BITL(21);
    }
    if (home->compmask [7] & BITL(11)){
      optfield_0[8] |= BITL(20);
    }
    if (home->compmask [7] & BITL(12)){
      optfield_0[8] |= BITL(19);
    }
    if (home->compmask [7] & BITL(13)){
      optfield_0[8] |= BITL(18);
    }
    if (home->compmask [7] & BITL(14)){
      optfield_0[8] |= BITL(17);
    }
    if (home->compmask [7] & BITL(15)){
      optfield_0[8] |= BITL(16);
    }
    if (home->compmask [7] & BITL(16)){
      optfield_0[8] |= BITL(15);
    }
    if (home->compmask [7] & BITL(17)){
      optfield_0[8] |= BITL(14);
    }
    if (home->compmask [7] & BITL(18)){
      optfield_0[8] |= BITL(13);
    }
    if (home->compmask [7] & BITL(19)){
      optfield_0[8] |= BITL(12);
    }
    if (home->compmask [7] & BITL(20)){
      optfield_0[8] |= BITL(11);
    }
    if (home->compmask [7] & BITL(21)){
      optfield_0[8] |= BITL(10);
    }
    if (home->compmask [7] & BITL(22)){
      optfield_0[8] |= BITL(9);
    }
    if (home->compmask [7] & BITL(23)){
      optfield_0[8] |= BITL(8);
    }
    if (home->compmask [7] & BITL(24)){
      optfield_0[8] |= BITL(7);
    }
    if (home->compmask [7] & BITL(25)){
      optfield_0[8] |= BITL(6);
    }
    if (home->compmask [7] & BITL(26)){
      optfield_0[8] |= BITL(5);
    }
    if (home->compmask [7] & BITL(27)){
      optfield_0[8] |= BITL(4);
    }
    if (home->compmask [7] & BITL(28)){
      optfield_0[8] |= BITL(3);
    }
    if (home->compmask [7] & BITL(29)){
      optfield_0[8] |= BITL(2);
    }
    if (home->compmask [7] & BITL(30)){
      optfield_0[8] |= BITL(1);
    }
    if (home->compmask [7] & BITL(31)){
      optfield_0[8] |= BITL(0);
    }
    if (home->compmask [8] & BITL(0)){
      optfield_0[7] |= BITL(31);
    }
    if (home->compmask [8] & BITL(1)){
      optfield_0[7] |= BITL(30);
    }
    if (home->compmask [8] & BITL(2)){
      optfield_0[7] |= BITL(29);
    }
    if (home->compmask [8] & BITL(3)){
      optfield_0[7] |= BITL(28);
    }
    if (home->compmask [8] & BITL(4)){
      optfield_0[7] |= BITL(27);
    }
    if (home->compmask [8] & BITL(5)){
      optfield_0[7] |= BITL(26);
    }
    if (home->compmask [8] & BITL(6)){
      optfield_0[7] |= BITL(25);
    }
    if (home->compmask [8] & BITL(7)){
      optfield_0[7] |= BITL(24);
    }
    if (home->compmask [8] & BITL(8)){
      optfield_0[7] |= BITL(23);
    }
    if (home->compmask [8] & BITL(9)){
      optfield_0[7] |= BITL(22);
    }
    if (home->compmask [8] & BITL(10)){
      optfield_0[7] |= BITL(21);
    }
    if (home->compmask [8] & BITL(11)){
      optfield_0[7] |= BITL(20);
    }
    if (home->compmask [8] & BITL(12)){
      optfield_0[7] |= BITL(19);
    }
    if (home->compmask [8] & BITL(13)){
      optfield_0[7] |= BITL(18);
    }
    if (home->compmask [8] & BITL(14)){
      optfield_0[7] |= BITL(17);
    }
    if (home->compmask [8] & BITL(15)){
      optfield_0[7] |= BITL(16);
    }
    if (home->compmask [8] & BITL(16)){
      optfield_0[7] |= BITL(15);
    }
    if (home->compmask [8] & BITL(17)){
      optfield_0[7] |= BITL(14);
    }
    if (home->compmask [8] & BITL(18)){
      optfield_0[7] |= BITL(13);
    }
    if (home->compmask [8] & BITL(19)){
      optfield_0[7] |= BITL(12);
    }
    if (home->compmask [8] & BITL(20)){
      optfield_0[7] |= BITL(11);
    }
    if (home->compmask [8] & BITL(21)){
      optfield_0[7] |= BITL(10);
    }
    if (home->compmask [8] & BITL(22)){
      optfield_0[7] |= BITL(9);
    }
    if (home->compmask [8] & BITL(23)){
      optfield_0[7] |= BITL(8);
    }
    if (home->compmask [8] & BITL(24)){
      optfield_0[7] |= BITL(7);
    }
    if (home->compmask [8] & BITL(25)){
      optfield_0[7] |= BITL(6);
    }
    if (home->compmask [8] & BITL(26)){
      optfield_0[7] |= BITL(5);
    }
    if (home->compmask [8] & BITL(27)){
      optfield_0[7] |= BITL(4);
    }
    if (home->compmask [8] & BITL(28)){
      optfield_0[7] |= BITL(3);
    }
    if (home->compmask [8] & BITL(29)){
      optfield_0[7] |= BITL(2);
    }
    if (home->compmask [8] & BITL(30)){
      optfield_0[7] |= BITL(1);
    }
    if (home->compmask [8] & BITL(31)){
      optfield_0[7] |= BITL(0);
    }
    if (home->compmask [9] & BITL(0)){
      optfield_0[6] |= BITL(31);
    }
    if (home->compmask [9] & BITL(1)){
      optfield_0[6] |= BITL(30);
    }
    if (home->compmask [9] & BITL(2)){
      optfield_0[6] |= BITL(29);
    }
    if (home->compmask [9] & BITL(3)){
      optfield_0[6] |= BITL(28);
    }
    if (home->compmask [9] & BITL(4)){
      optfield_0[6] |= BITL(27);
    }
    if (home->compmask [9] & BITL(5)){
      optfield_0[6] |= BITL(26);
    }
    if (home->compmask [9] & BITL(6)){
      optfield_0[6] |= BITL(25);
    }
    if (home->compmask [9] & BITL(7)){
      optfield_0[6] |= BITL(24);
    }
    if (home->compmask [9] & BITL(8)){
      optfield_0[6] |= BITL(23);
    }
    if (home->compmask [9] & BITL(9)){
      optfield_0[6] |= BITL(22);
    }
    if (home->compmask [9] & BITL(10)){
      optfield_0[6] |= BITL(21);
    }
    if (home->compmask [9] & BITL(11)){
      optfield_0[6] |= BITL(20);
    }
    if (home->compmask [9] & BITL(12)){
      optfield_0[6] |= BITL(19);
    }
    if (home->compmask [9] & BITL(13)){
      optfield_0[6] |= BITL(18);
    }
    if (home->compmask [9] & BITL(14)){
      optfield_0[6] |= BITL(17);
    }
    if (home->compmask [9] & BITL(15)){
      optfield_0[6] |= BITL(16);
    }
    if (home->compmask [9] & BITL(16)){
      optfield_0[6] |= BITL(15);
    }
    if (home->compmask [9] & BITL(17)){
      optfield_0[6] |= BITL(14);
    }
    if (home->compmask [9] & BITL(18)){
      optfield_0[6] |= BITL(13);
    }
    if (home->compmask [9] & BITL(19)){
      optfield_0[6] |= BITL(12);
    }
    if (home->compmask [9] & BITL(20)){
      optfield_0[6] |= BITL(11);
    }
    if (home->compmask [9] & BITL(21)){
      optfield_0[6] |= BITL(10);
    }
    if (home->compmask [9] & BITL(22)){
      optfield_0[6] |= BITL(9);
    }
    if (home->compmask [9] & BITL(23)){
      optfield_0[6] |= BITL(8);
    }
    if (home->compmask [9] & BITL(24)){
      optfield_0[6] |= BITL(7);
    }
    if (home->compmask [9] & BITL(25)){
      optfield_0[6] |= BITL(6);
    }
    if (home->compmask [9] & BITL(26)){
      optfield_0[6] |= BITL(5);
    }
    if (home->compmask [9] & BITL(27)){
      optfield_0[6] |= BITL(4);
    }
    if (home->compmask [9] & BITL(28)){
      optfield_0[6] |= BITL(3);
    }
    if (home->compmask [9] & BITL(29)){
      optfield_0[6] |= BITL(2);
    }
    if (home->compmask [9] & BITL(30)){
      optfield_0[6] |= BITL(1);
    }
    if (home->compmask [9] & BITL(31)){
      optfield_0[6] |= BITL(0);
    }
    if (home->compmask [10] & BITL(0)){
      optfield_0[5] |= BITL(31);
    }
    if (home->compmask [10] & BITL(1)){
      optfield_0[5] |= BITL(30);
    }
    if (home->compmask [10] & BITL(2)){
      optfield_0[5] |= BITL(29);
    }
    if (home->compmask [10] & BITL(3)){
      optfield_0[5] |= BITL(28);
    }
    if (home->compmask [10] & BITL(4)){
      optfield_0[5] |= BITL(27);
    }
    if (home->compmask [10] & BITL(5)){
      optfield_0[5] |= BITL(26);
    }
    if (home->compmask [10] & BITL(6)){
      optfield_0[5] |= BITL(25);
    }
    if (home->compmask [10] & BITL(7)){
      optfield_0[5] |= BITL(24);
    }
    if (home->compmask [10] & BITL(8)){
      optfield_0[5] |= BITL(23);
    }
    if (home->compmask [10] & BITL(9)){
      optfield_0[5] |= BITL(22);
    }
    if (home->compmask [10] & BITL(10)){
      optfield_0[5] |= BITL(21);
    }
    if (home->compmask [10] & BITL(11)){
      optfield_0[5] |= BITL(20);
    }
    if (home->compmask [10] & BITL(12)){
      optfield_0[5] |= BITL(19);
    }
    if (home->compmask [10] & BITL(13)){
      optfield_0[5] |= BITL(18);
    }
    if (home->compmask [10] & BITL(14)){
      optfield_0[5] |= BITL(17);
    }
    if (home->compmask [10] & BITL(15)){
      optfield_0[5] |= BITL(16);
    }
    if (home->compmask [10] & BITL(16)){
      optfield_0[5] |= BITL(15);
    }
    if (home->compmask [10] & BITL(17)){
      optfield_0[5] |= BITL(14);
    }
    if (home->compmask [10] & BITL(18)){
      optfield_0[5] |= BITL(13);
    }
    if (home->compmask [10] & BITL(19)){
      optfield_0[5] |= BITL(12);
    }
    if (home->compmask [10] & BITL(20)){
      optfield_0[5] |= BITL(11);
    }
    if (home->compmask [10] & BITL(21)){
      optfield_0[5] |= BITL(10);
    }
    if (home->compmask [10] & BITL(22)){
      optfield_0[5] |= BITL(9);
    }
    if (home->compmask [10] & BITL(23)){
      optfield_0[5] |= BITL(8);
    }
    if (home->compmask [10] & BITL(24)){
      optfield_0[5] |= BITL(7);
    }
    if (home->compmask [10] & BITL(25)){
      optfield_0[5] |= BITL(6);
    }
    if (home->compmask [10] & BITL(26)){
      optfield_0[5] |= BITL(5);
    }
    if (home->compmask [10] & BITL(27)){
      optfield_0[5] |= BITL(4);
    }
    if (home->compmask [10] & BITL(28)){
      optfield_0[5] |= BITL(3);
    }
    if (home->compmask [10] & BITL(29)){
      optfield_0[5] |= BITL(2);
    }
    if (home->compmask [10] & BITL(30)){
      optfield_0[5] |= BITL(1);
    }
    if (home->compmask [10] & BITL(31)){
      optfield_0[5] |= BITL(0);
    }
    if (home->compmask [11] & BITL(0)){
      optfield_0[4] |= BITL(31);
    }
    if (home->compmask [11] & BITL(1)){
      optfield_0[4] |= BITL(30);
    }
    if (home->compmask [11] & BITL(2)){
      optfield_0[4] |= BITL(29);
    }
    if (home->compmask [11] & BITL(3)){
      optfield_0[4] |= BITL(28);
    }
    if (home->compmask [11] & BITL(4)){
      optfield_0[4] |= BITL(27);
    }
    if (home->compmask [11] & BITL(5)){
      optfield_0[4] |= BITL(26);
    }
    if (home->compmask [11] & BITL(6)){
      optfield_0[4] |= BITL(25);
    }
    if (home->compmask [11] & BITL(7)){
      optfield_0[4] |= BITL(24);
    }
    if (home->compmask [11] & BITL(8)){
      optfield_0[4] |= BITL(23);
    }
    if (home->compmask [11] & BITL(9)){
      optfield_0[4] |= BITL(22);
    }
    if (home->compmask [11] & BITL(10)){
      optfield_0[4] |= BITL(21);
    }
    if (home->compmask [11] & BITL(11)){
      optfield_0[4] |= BITL(20);
    }
    if (home->compmask [11] & BITL(12)){
      optfield_0[4] |= BITL(19);
    }
    if (home->compmask [11] & BITL(13)){
      optfield_0[4] |= BITL(18);
    }
    if (home->compmask [11] & BITL(14)){
      optfield_0[4] |= BITL(17);
    }
    if (home->compmask [11] & BITL(15)){
      optfield_0[4] |= BITL(16);
    }
    if (home->compmask [11] & BITL(16)){
      optfield_0[4] |= BITL(15);
    }
    if (home->compmask [11] & BITL(17)){
      optfield_0[4] |= BITL(14);
    }
    if (home->compmask [11] & BITL(18)){
      optfield_0[4] |= BITL(13);
    }
    if (home->compmask [11] & BITL(19)){
      optfield_0[4] |= BITL(12);
    }
    if (home->compmask [11] & BITL(20)){
      optfield_0[4] |= BITL(11);
    }
    if (home->compmask [11] & BITL(21)){
      optfield_0[4] |= BITL(10);
    }
    if (home->compmask [11] & BITL(22)){
      optfield_0[4] |= BITL(9);
    }
    if (home->compmask [11] & BITL(23)){
      optfield_0[4] |= BITL(8);
    }
    if (home->compmask [11] & BITL(24)){
      optfield_0[4] |= BITL(7);
    }
    if (home->compmask [11] & BITL(25)){
      optfield_0[4] |= BITL(6);
    }
    if (home->compmask [11] & BITL(26)){
      optfield_0[4] |= BITL(5);
    }
    if (home->compmask [11] & BITL(27)){
      optfield_0[4] |= BITL(4);
    }
    if (home->compmask [11] & BITL(28)){
      optfield_0[4] |= BITL(3);
    }
    if (home->compmask [11] & BITL(29)){
      optfield_0[4] |= BITL(2);
    }
    if (home->compmask [11] & BITL(30)){
      optfield_0[4] |= BITL(1);
    }
    if (home->compmask [11] & BITL(31)){
      optfield_0[4] |= BITL(0);
    }
    if (home->compmask [12] & BITL(0)){
      optfield_0[3] |= BITL(31);
    }
    if (home->compmask [12] & BITL(1)){
      optfield_0[3] |= BITL(30);
    }
    if (home->compmask [12] & BITL(2)){
      optfield_0[3] |= BITL(29);
    }
    if (home->compmask [12] & BITL(3)){
      optfield_0[3] |= BITL(28);
    }
    if (home->compmask [12] & BITL(4)){
      optfield_0[3] |= BITL(27);
    }
    if (home->compmask [12] & BITL(5)){
      optfield_0[3] |= BITL(26);
    }
    if (home->compmask [12] & BITL(6)){
      optfield_0[3] |= BITL(25);
    }
    if (home->compmask [12] & BITL(7)){
      optfield_0[3] |= BITL(24);
    }
    if (home->compmask [12] & BITL(8)){
      optfield_0[3] |= BITL(23);
    }
    if (home->compmask [12] & BITL(9)){
      optfield_0[3] |= BITL(22);
    }
    if (home->compmask [12] & BITL(10)){
      optfield_0[3] |= BITL(21);
    }
    if (home->compmask [12] & BITL(11)){
      optfield_0[3] |= BITL(20);
    }
    if (home->compmask [12] & BITL(12)){
      optfield_0[3] |= BITL(19);
    }
    if (home->compmask [12] & BITL(13)){
      optfield_0[3] |= BITL(18);
    }
    if (home->compmask [12] & BITL(14)){
      optfield_0[3] |= BITL(17);
    }
    if (home->compmask [12] & BITL(15)){
      optfield_0[3] |= BITL(16);
    }
    if (home->compmask [12] & BITL(16)){
      optfield_0[3] |= BITL(15);
    }
    if (home->compmask [12] & BITL(17)){
      optfield_0[3] |= BITL(14);
    }
    if (home->compmask [12] & BITL(18)){
      optfield_0[3] |= BITL(13);
    }
    if (home->compmask [12] & BITL(19)){
      optfield_0[3] |= BITL(12);
    }
    if (home->compmask [12] & BITL(20)){
      optfield_0[3] |= BITL(11);
    }
    if (home->compmask [12] & BITL(21)){
      optfield_0[3] |= BITL(10);
    }
    if (home->compmask [12] & BITL(22)){
      optfield_0[3] |= BITL(9);
    }
    if (home->compmask [12] & BITL(23)){
      optfield_0[3] |= BITL(8);
    }
    if (home->compmask [12] & BITL(24)){
      optfield_0[3] |= BITL(7);
    }
    if (home->compmask [12] & BITL(25)){
      optfield_0[3] |= BITL(6);
    }
    if (home->compmask [12] & BITL(26)){
      optfield_0[3] |= BITL(5);
    }
    if (home->compmask [12] & BITL(27)){
      optfield_0[3] |= BITL(4);
    }
    if (home->compmask [12] & BITL(28)){
      optfield_0[3] |= BITL(3);
    }
    if (home->compmask [12] & BITL(29)){
      optfield_0[3] |= BITL(2);
    }
    if (home->compmask [12] & BITL(30)){
      optfield_0[3] |= BITL(1);
    }
    if (home->compmask [12] & BITL(31)){
      optfield_0[3] |= BITL(0);
    }
    if (home->compmask [13] & BITL(0)){
      optfield_0[2] |= BITL(31);
    }
    if (home->compmask [13] & BITL(1)){
      optfield_0[2] |= BITL(30);
    }
    if (home->compmask [13] & BITL(2)){
      optfield_0[2] |= BITL(29);
    }
    if (home->compmask [13] & BITL(3)){
      optfield_0[2] |= BITL(28);
    }
    if (home->compmask [13] & BITL(4)){
      optfield_0[2] |= BITL(27);
    }
    if (home->compmask [13] & BITL(5)){
      optfield_0[2] |= BITL(26);
    }
    if (home->compmask [13] & BITL(6)){
      optfield_0[2] |= BITL(25);
    }
    if (home->compmask [13] & BITL(7)){
      optfield_0[2] |= BITL(24);
    }
    if (home->compmask [13] & BITL(8)){
      optfield_0[2] |= BITL(23);
    }
    if (home->compmask [13] & BITL(9)){
      optfield_0[2] |= BITL(22);
    }
    if (home->compmask [13] & BITL(10)){
      optfield_0[2] |= BITL(21);
    }
    if (home->compmask [13] & BITL(11)){
      optfield_0[2] |= BITL(20);
    }
    if (home->compmask [13] & BITL(12)){
      optfield_0[2] |= BITL(19);
    }
    if (home->compmask [13] & BITL(13)){
      optfield_0[2] |= BITL(18);
    }
    if (home->compmask [13] & BITL(14)){
      optfield_0[2] |= BITL(17);
    }
    if (home->compmask [13] & BITL(15)){
      optfield_0[2] |= BITL(16);
    }
    if (home->compmask [13] & BITL(16)){
      optfield_0[2] |= BITL(15);
    }
    if (home->compmask [13] & BITL(17)){
      optfield_0[2] |= BITL(14);
    }
    if (home->compmask [13] & BITL(18)){
      optfield_0[2] |= BITL(13);
    }
    if (home->compmask [13] & BITL(19)){
      optfield_0[2] |= BITL(12);
    }
    if (home->compmask [13] & BITL(20)){
      optfield_0[2] |= BITL(11);
    }
    if (home->compmask [13] & BITL(21)){
      optfield_0[2] |= BITL(10);
    }
    if (home->compmask [13] & BITL(22)){
      optfield_0[2] |= BITL(9);
    }
    if (home->compmask [13] & BITL(23)){
      optfield_0[2] |= BITL(8);
    }
    if (home->compmask [13] & BITL(24)){
      optfield_0[2] |= BITL(7);
    }
    if (home->compmask [13] & BITL(25)){
      optfield_0[2] |= BITL(6);
    }
    if (home->compmask [13] & BITL(26)){
      optfield_0[2] |= BITL(5);
    }
    if (home->compmask [13] & BITL(27)){
      optfield_0[2] |= BITL(4);
    }
    if (home->compmask [13] & BITL(28)){
      optfield_0[2] |= BITL(3);
    }
    if (home->compmask [13] & BITL(29)){
      optfield_0[2] |= BITL(2);
    }
    if (home->compmask [13] & BITL(30)){
      optfield_0[2] |= BITL(1);
    }
    if (home->compmask [13] & BITL(31)){
      optfield_0[2] |= BITL(0);
    }
    if (home->compmask [14] & BITL(0)){
      optfield_0[1] |= BITL(31);
    }
    if (home->compmask [14] & BITL(1)){
      optfield_0[1] |= BITL(30);
    }
    if (home->compmask [14] & BITL(2)){
      optfield_0[1] |= BITL(29);
    }
    if (home->compmask [14] & BITL(3)){
      optfield_0[1] |= BITL(28);
    }
    if (home->compmask [14] & BITL(4)){
      optfield_0[1] |= BITL(27);
    }
    if (home->compmask [14] & BITL(5)){
      optfield_0[1] |= BITL(26);
    }
    if (home->compmask [14] & BITL(6)){
      optfield_0[1] |= BITL(25);
    }
    if (home->compmask [14] & BITL(7)){
      optfield_0[1] |= BITL(24);
    }
    if (home->compmask [14] & BITL(8)){
      optfield_0[1] |= BITL(23);
    }
    if (home->compmask [14] & BITL(9)){
      optfield_0[1] |= BITL(22);
    }
    if (home->compmask [14] & BITL(10)){
      optfield_0[1] |= BITL(21);
    }
    if (home->compmask [14] & BITL(11)){
      optfield_0[1] |= BITL(20);
    }
    if (home->compmask [14] & BITL(12)){
      optfield_0[1] |= BITL(19);
    }
    if (home->compmask [14] & BITL(13)){
      optfield_0[1] |= BITL(18);
    }
    if (home->compmask [14] & BITL(14)){
      optfield_0[1] |= BITL(17);
    }
    if (home->compmask [14] & BITL(15)){
      optfield_0[1] |= BITL(16);
    }
    if (home->compmask [14] & BITL(16)){
      optfield_0[1] |= BITL(15);
    }
    if (home->compmask [14] & BITL(17)){
      optfield_0[1] |= BITL(14);
    }
    if (home->compmask [14] & BITL(18)){
      optfield_0[1] |= BITL(13);
    }
    if (home->compmask [14] & BITL(19)){
      optfield_0[1] |= BITL(12);
    }
    if (home->compmask [14] & BITL(20)){
      optfield_0[1] |= BITL(11);
    }
    if (home->compmask [14] & BITL(21)){
      optfield_0[1] |= BITL(10);
    }
    if (home->compmask [14] & BITL(22)){
      optfield_0[1] |= BITL(9);
    }
    if (home->compmask [14] & BITL(23)){
      optfield_0[1] |= BITL(8);
    }
    if (home->compmask [14] & BITL(24)){
      optfield_0[1] |= BITL(7);
    }
    if (home->compmask [14] & BITL(25)){
      optfield_0[1] |= BITL(6);
    }
    if (home->compmask [14] & BITL(26)){
      optfield_0[1] |= BITL(5);
    }
    if (home->compmask [14] & BITL(27)){
      optfield_0[1] |= BITL(4);
    }
    if (home->compmask [14] & BITL(28)){
      optfield_0[1] |= BITL(3);
    }
    if (home->compmask [14] & BITL(29)){
      optfield_0[1] |= BITL(2);
    }
    if (home->compmask [14] & BITL(30)){
      optfield_0[1] |= BITL(1);
    }
    if (home->compmask [14] & BITL(31)){
      optfield_0[1] |= BITL(0);
    }
    if (home->compmask [15] & BITL(0)){
      optfield_0[0] |= BITL(31);
    }
    if (home->compmask [15] & BITL(1)){
      optfield_0[0] |= BITL(30);
    }
    if (home->compmask [15] & BITL(2)){
      optfield_0[0] |= BITL(29);
    }
    if (home->compmask [15] & BITL(3)){
      optfield_0[0] |= BITL(28);
    }
    if (home->compmask [15] & BITL(4)){
      optfield_0[0] |= BITL(27);
    }
    if (home->compmask [15] & BITL(5)){
      optfield_0[0] |= BITL(26);
    }
    if (home->compmask [15] & BITL(6)){
      optfield_0[0] |= BITL(25);
    }
    if (home->compmask [15] & BITL(7)){
      optfield_0[0] |= BITL(24);
    }
    if (home->compmask [15] & BITL(8)){
      optfield_0[0] |= BITL(23);
    }
    if (home->compmask [15] & BITL(9)){
      optfield_0[0] |= BITL(22);
    }
    if (home->compmask [15] & BITL(10)){
      optfield_0[0] |= BITL(21);
    }
    if (home->compmask [15] & BITL(11)){
      optfield_0[0] |= BITL(20);
    }
    if (home->compmask [15] & BITL(12)){
      optfield_0[0] |= BITL(19);
    }
    if (home->compmask [15] & BITL(13)){
      optfield_0[0] |= BITL(18);
    }
    if (home->compmask [15] & BITL(14)){
      optfield_0[0] |= BITL(17);
    }
    if (home->compmask [15] & BITL(15)){
      optfield_0[0] |= BITL(16);
    }
    if (home->compmask [15] & BITL(16)){
      optfield_0[0] |= BITL(15);
    }
    if (home->compmask [15] & BITL(17)){
      optfield_0[0] |= BITL(14);
    }
    if (home->compmask [15] & BITL(18)){
      optfield_0[0] |= BITL(13);
    }
    if (home->compmask [15] & BITL(19)){
      optfield_0[0] |= BITL(12);
    }
    if (home->compmask [15] & BITL(20)){
      optfield_0[0] |= BITL(11);
    }
    if (home->compmask [15] & BITL(21)){
      optfield_0[0] |= BITL(10);
    }
    if (home->compmask [15] & BITL(22)){
      optfield_0[0] |= BITL(9);
    }
    if (home->compmask [15] & BITL(23)){
      optfield_0[0] |= BITL(8);
    }
    if (home->compmask [15] & BITL(24)){
      optfield_0[0] |= BITL(7);
    }
    if (home->compmask [15] & BITL(25)){
      optfield_0[0] |= BITL(6);
    }
    if (home->compmask [15] & BITL(26)){
      optfield_0[0] |= BITL(5);
    }
    if (home->compmask [15] & BITL(27)){
      optfield_0[0] |= BITL(4);
    }
    if (home->compmask [15] & BITL(28)){
      optfield_0[0] |= BITL(3);
    }
    if (home->compmask [15] & BITL(29)){
      optfield_0[0] |= BITL(2);
    }
    if (home->compmask [15] & BITL(30)){
      optfield_0[0] |= BITL(1);
    }
    if (home->compmask [15] & BITL(31)){
      optfield_0[0] |= BITL(0);
    }
    pe_optField (optfield_0[15], 32);
    pe_optField (optfield_0[14], 32);
    pe_optField (optfield_0[13], 32);
    pe_optField (optfield_0[12], 32);
    pe_optField (optfield_0[11], 32);
    pe_optField (optfield_0[10], 32);
    pe_optField (optfield_0[9], 32);
    pe_optField (optfield_0[8], 32);
    pe_optField (optfield_0[7], 32);
    pe_optField (optfield_0[6], 32);
    pe_optField (optfield_0[5], 32);
    pe_optField (optfield_0[4], 32);
    pe_optField (optfield_0[3], 32);
    pe_optField (optfield_0[2], 32);
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
  if ((home->compmask [2] & BITL(1))){
    pe_Boolean (home->c65_fld);
  }
  if ((home->compmask [2] & BITL(2))){
    pe_Boolean (home->c66_fld);
  }
  if ((home->compmask [2] & BITL(3))){
    pe_Boolean (home->c67_fld);
  }
  if ((home->compmask [2] & BITL(4))){
    pe_Boolean (home->c68_fld);
  }
  if ((home->compmask [2] & BITL(5))){
    pe_Boolean (home->c69_fld);
  }
  if ((home->compmask [2] & BITL(6))){
    pe_Boolean (home->c70_fld);
  }
  if ((home->compmask [2] & BITL(7))){
    pe_Boolean (home->c71_fld);
  }
  if ((home->compmask [2] & BITL(8))){
    pe_Boolean (home->c72_fld);
  }
  if ((home->compmask [2] & BITL(9))){
    pe_Boolean (home->c73_fld);
  }
  if ((home->compmask [2] & BITL(10))){
    pe_Boolean (home->c74_fld);
  }
  if ((home->compmask [2] & BITL(11))){
    pe_Boolean (home->c75_fld);
  }
  if ((home->compmask [2] & BITL(12))){
    pe_Boolean (home->c76_fld);
  }
  if ((home->compmask [2] & BITL(13))){
    pe_Boolean (home->c77_fld);
  }
  if ((home->compmask [2] & BITL(14))){
    pe_Boolean (home->c78_fld);
  }
  if ((home->compmask [2] & BITL(15))){
    pe_Boolean (home->c79_fld);
  }
  if ((home->compmask [2] & BITL(16))){
    pe_Boolean (home->c80_fld);
  }
  if ((home->compmask [2] & BITL(17))){
    pe_Boolean (home->c81_fld);
  }
  if ((home->compmask [2] & BITL(18))){
    pe_Boolean (home->c82_fld);
  }
  if ((home->compmask [2] & BITL(19))){
    pe_Boolean (home->c83_fld);
  }
  if ((home->compmask [2] & BITL(20))){
    pe_Boolean (home->c84_fld);
  }
  if ((home->compmask [2] & BITL(21))){
    pe_Boolean (home->c85_fld);
  }
  if ((home->compmask [2] & BITL(22))){
    pe_Boolean (home->c86_fld);
  }
  if ((home->compmask [2] & BITL(23))){
    pe_Boolean (home->c87_fld);
  }
  if ((home->compmask [2] & BITL(24))){
    pe_Boolean (home->c88_fld);
  }
  if ((home->compmask [2] & BITL(25))){
    pe_Boolean (home->c89_fld);
  }
  if ((home->compmask [2] & BITL(26))){
    pe_Boolean (home->c90_fld);
  }
  if ((home->compmask [2] & BITL(27))){
    pe_Boolean (home->c91_fld);
  }
  if ((home->compmask [2] & BITL(28))){
    pe_Boolean (home->c92_fld);
  }
  if ((home->compmask [2] & BITL(29))){
    pe_Boolean (home->c93_fld);
  }
  if ((home->compmask [2] & BITL(30))){
    pe_Boolean (home->c94_fld);
  }
  if ((home->compmask [2] & BITL(31))){
    pe_Boolean (home->c95_fld);
  }
  if ((home->compmask [3] & BITL(0))){
    pe_Boolean (home->c96_fld);
  }
  if ((home->compmask [3] & BITL(1))){
    pe_Boolean (home->c97_fld);
  }
  if ((home->compmask [3] & BITL(2))){
    pe_Boolean (home->c98_fld);
  }
  if ((home->compmask [3] & BITL(3))){
    pe_Boolean (home->c99_fld);
  }
  if ((home->compmask [3] & BITL(4))){
    pe_Boolean (home->c100_fld);
  }
  if ((home->compmask [3] & BITL(5))){
    pe_Boolean (home->c101_fld);
  }
  if ((home->compmask [3] & BITL(6))){
    pe_Boolean (home->c102_fld);
  }
  if ((home->compmask [3] & BITL(7))){
    pe_Boolean (home->c103_fld);
  }
  if ((home->compmask [3] & BITL(8))){
    pe_Boolean (home->c104_fld);
  }
  if ((home->compmask [3] & BITL(9))){
    pe_Boolean (home->c105_fld);
  }
  if ((home->compmask [3] & BITL(10))){
    pe_Boolean (home->c106_fld);
  }
  if ((home->compmask [3] & BITL(11))){
    pe_Boolean (home->c107_fld);
  }
  if ((home->compmask [3] & BITL(12))){
    pe_Boolean (home->c108_fld);
  }
  if ((home->compmask [3] & BITL(13))){
    pe_Boolean (home->c109_fld);
  }
  if ((home->compmask [3] & BITL(14))){
    pe_Boolean (home->c110_fld);
  }
  if ((home->compmask [3] & BITL(15))){
    pe_Boolean (home->c111_fld);
  }
  if ((home->compmask [3] & BITL(16))){
    pe_Boolean (home->c112_fld);
  }
  if ((home->compmask [3] & BITL(17))){
    pe_Boolean (home->c113_fld);
  }
  if ((home->compmask [3] & BITL(18))){
    pe_Boolean (home->c114_fld);
  }
  if ((home->compmask [3] & BITL(19))){
    pe_Boolean (home->c115_fld);
  }
  if ((home->compmask [3] & BITL(20))){
    pe_Boolean (home->c116_fld);
  }
  if ((home->compmask [3] & BITL(21))){
    pe_Boolean (home->c117_fld);
  }
  if ((home->compmask [3] & BITL(22))){
    pe_Boolean (home->c118_fld);
  }
  if ((home->compmask [3] & BITL(23))){
    pe_Boolean (home->c119_fld);
  }
  if ((home->compmask [3] & BITL(24))){
    pe_Boolean (home->c120_fld);
  }
  if ((home->compmask [3] & BITL(25))){
    pe_Boolean (home->c121_fld);
  }
  if ((home->compmask [3] & BITL(26))){
    pe_Boolean (home->c122_fld);
  }
  if ((home->compmask [3] & BITL(27))){
    pe_Boolean (home->c123_fld);
  }
  if ((home->compmask [3] & BITL(28))){
    pe_Boolean (home->c124_fld);
  }
  if ((home->compmask [3] & BITL(29))){
    pe_Boolean (home->c125_fld);
  }
  if ((home->compmask [3] & BITL(30))){
    pe_Boolean (home->c126_fld);
  }
  if ((home->compmask [3] & BITL(31))){
    pe_Boolean (home->c127_fld);
  }
  if ((home->compmask [4] & BITL(0))){
    pe_Boolean (home->c128_fld);
  }
  if ((home->compmask [4] & BITL(1))){
    pe_Boolean (home->c129_fld);
  }
  if ((home->compmask [4] & BITL(2))){
    pe_Boolean (home->c130_fld);
  }
  if ((home->compmask [4] & BITL(3))){
    pe_Boolean (home->c131_fld);
  }
  if ((home->compmask [4] & BITL(4))){
    pe_Boolean (home->c132_fld);
  }
  if ((home->compmask [4] & BITL(5))){
    pe_Boolean (home->c133_fld);
  }
  if ((home->compmask [4] & BITL(6))){
    pe_Boolean (home->c134_fld);
  }
  if ((home->compmask [4] & BITL(7))){
    pe_Boolean (home->c135_fld);
  }
  if ((home->compmask [4] & BITL(8))){
    pe_Boolean (home->c136_fld);
  }
  if ((home->compmask [4] & BITL(9))){
    pe_Boolean (home->c137_fld);
  }
  if ((home->compmask [4] & BITL(10))){
    pe_Boolean (home->c138_fld);
  }
  if ((home->compmask [4] & BITL(11))){
    pe_Boolean (home->c139_fld);
  }
  if ((home->compmask [4] & BITL(12))){
    pe_Boolean (home->c140_fld);
  }
  if ((home->compmask [4] & BITL(13))){
    pe_Boolean (home->c141_fld);
  }
  if ((home->compmask [4] & BITL(14))){
    pe_Boolean (home->c142_fld);
  }
  if ((home->compmask [4] & BITL(15))){
    pe_Boolean (home->c143_fld);
  }
  if ((home->compmask [4] & BITL(16))){
    pe_Boolean (home->c144_fld);
  }
  if ((home->compmask [4] & BITL(17))){
    pe_Boolean (home->c145_fld);
  }
  if ((home->compmask [4] & BITL(18))){
    pe_Boolean (home->c146_fld);
  }
  if ((home->compmask [4] & BITL(19))){
    pe_Boolean (home->c147_fld);
  }
  if ((home->compmask [4] & BITL(20))){
    pe_Boolean (home->c148_fld);
  }
  if ((home->compmask [4] & BITL(21))){
    pe_Boolean (home->c149_fld);
  }
  if ((home->compmask [4] & BITL(22))){
    pe_Boolean (home->c150_fld);
  }
  if ((home->compmask [4] & BITL(23))){
    pe_Boolean (home->c151_fld);
  }
  if ((home->compmask [4] & BITL(24))){
    pe_Boolean (home->c152_fld);
  }
  if ((home->compmask [4] & BITL(25))){
    pe_Boolean (home->c153_fld);
  }
  if ((home->compmask [4] & BITL(26))){
    pe_Boolean (home->c154_fld);
  }
  if ((home->compmask [4] & BITL(27))){
    pe_Boolean (home->c155_fld);
  }
  if ((home->compmask [4] & BITL(28))){
    pe_Boolean (home->c156_fld);
  }
  if ((home->compmask [4] & BITL(29))){
    pe_Boolean (home->c157_fld);
  }
  if ((home->compmask [4] & BITL(30))){
    pe_Boolean (home->c158_fld);
  }
  if ((home->compmask [4] & BITL(31))){
    pe_Boolean (home->c159_fld);
  }
  if ((home->compmask [5] & BITL(0))){
    pe_Boolean (home->c160_fld);
  }
  if ((home->compmask [5] & BITL(1))){
    pe_Boolean (home->c161_fld);
  }
  if ((home->compmask [5] & BITL(2))){
    pe_Boolean (home->c162_fld);
  }
  if ((home->compmask [5] & BITL(3))){
    pe_Boolean (home->c163_fld);
  }
  if ((home->compmask [5] & BITL(4))){
    pe_Boolean (home->c164_fld);
  }
  if ((home->compmask [5] & BITL(5))){
    pe_Boolean (home->c165_fld);
  }
  if ((home->compmask [5] & BITL(6))){
    pe_Boolean (home->c166_fld);
  }
  if ((home->compmask [5] & BITL(7))){
    pe_Boolean (home->c167_fld);
  }
  if ((home->compmask [5] & BITL(8))){
    pe_Boolean (home->c168_fld);
  }
  if ((home->compmask [5] & BITL(9))){
    pe_Boolean (home->c169_fld);
  }
  if ((home->compmask [5] & BITL(10))){
    pe_Boolean (home->c170_fld);
  }
  if ((home->compmask [5] & BITL(11))){
    pe_Boolean (home->c171_fld);
  }
  if ((home->compmask [5] & BITL(12))){
    pe_Boolean (home->c172_fld);
  }
  if ((home->compmask [5] & BITL(13))){
    pe_Boolean (home->c173_fld);
  }
  if ((home->compmask [5] & BITL(14))){
    pe_Boolean (home->c174_fld);
  }
  if ((home->compmask [5] & BITL(15))){
    pe_Boolean (home->c175_fld);
  }
  if ((home->compmask [5] & BITL(16))){
    pe_Boolean (home->c176_fld);
  }
  if ((home->compmask [5] & BITL(17))){
    pe_Boolean (home->c177_fld);
  }
  if ((home->compmask [5] & BITL(18))){
    pe_Boolean (home->c178_fld);
  }
  if ((home->compmask [5] & BITL(19))){
    pe_Boolean (home->c179_fld);
  }
  if ((home->compmask [5] & BITL(20))){
    pe_Boolean (home->c180_fld);
  }
  if ((home->compmask [5] & BITL(21))){
    pe_Boolean (home->c181_fld);
  }
  if ((home->compmask [5] & BITL(22))){
    pe_Boolean (home->c182_fld);
  }
  if ((home->compmask [5] & BITL(23))){
    pe_Boolean (home->c183_fld);
  }
  if ((home->compmask [5] & BITL(24))){
    pe_Boolean (home->c184_fld);
  }
  if ((home->compmask [5] & BITL(25))){
    pe_Boolean (home->c185_fld);
  }
  if ((home->compmask [5] & BITL(26))){
    pe_Boolean (home->c186_fld);
  }
  if ((home->compmask [5] & BITL(27))){
    pe_Boolean (home->c187_fld);
  }
  if ((home->compmask [5] & BITL(28))){
    pe_Boolean (home->c188_fld);
  }
  if ((home->compmask [5] & BITL(29))){
    pe_Boolean (home->c189_fld);
  }
  if ((home->compmask [5] & BITL(30))){
    pe_Boolean (home->c190_fld);
  }
  if ((home->compmask [5] & BITL(31))){
    pe_Boolean (home->c191_fld);
  }
  if ((home->compmask [6] & BITL(0))){
    pe_Boolean (home->c192_fld);
  }
  if ((home->compmask [6] & BITL(1))){
    pe_Boolean (home->c193_fld);
  }
  if ((home->compmask [6] & BITL(2))){
    pe_Boolean (home->c194_fld);
  }
  if ((home->compmask [6] & BITL(3))){
    pe_Boolean (home->c195_fld);
  }
  if ((home->compmask [6] & BITL(4))){
    pe_Boolean (home->c196_fld);
  }
  if ((home->compmask [6] & BITL(5))){
    pe_Boolean (home->c197_fld);
  }
  if ((home->compmask [6] & BITL(6))){
    pe_Boolean (home->c198_fld);
  }
  if ((home->compmask [6] & BITL(7))){
    pe_Boolean (home->c199_fld);
  }
  if ((home->compmask [6] & BITL(8))){
    pe_Boolean (home->c200_fld);
  }
  if ((home->compmask [6] & BITL(9))){
    pe_Boolean (home->c201_fld);
  }
  if ((home->compmask [6] & BITL(10))){
    pe_Boolean (home->c202_fld);
  }
  if ((home->compmask [6] & BITL(11))){
    pe_Boolean (home->c203_fld);
  }
  if ((home->compmask [6] & BITL(12))){
    pe_Boolean (home->c204_fld);
  }
  if ((home->compmask [6] & BITL(13))){
    pe_Boolean (home->c205_fld);
  }
  if ((home->compmask [6] & BITL(14))){
    pe_Boolean (home->c206_fld);
  }
  if ((home->compmask [6] & BITL(15))){
    pe_Boolean (home->c207_fld);
  }
  if ((home->compmask [6] & BITL(16))){
    pe_Boolean (home->c208_fld);
  }
  if ((home->compmask [6] & BITL(17))){
    pe_Boolean (home->c209_fld);
  }
  if ((home->compmask [6] & BITL(18))){
    pe_Boolean (home->c210_fld);
  }
  if ((home->compmask [6] & BITL(19))){
    pe_Boolean (home->c211_fld);
  }
  if ((home->compmask [6] & BITL(20))){
    pe_Boolean (home->c212_fld);
  }
  if ((home->compmask [6] & BITL(21))){
    pe_Boolean (home->c213_fld);
  }
  if ((home->compmask [6] & BITL(22))){
    pe_Boolean (home->c214_fld);
  }
  if ((home->compmask [6] & BITL(23))){
    pe_Boolean (home->c215_fld);
  }
  if ((home->compmask [6] & BITL(24))){
    pe_Boolean (home->c216_fld);
  }
  if ((home->compmask [6] & BITL(25))){
    pe_Boolean (home->c217_fld);
  }
  if ((home->compmask [6] & BITL(26))){
    pe_Boolean (home->c218_fld);
  }
  if ((home->compmask [6] & BITL(27))){
    pe_Boolean (home->c219_fld);
  }
  if ((home->compmask [6] & BITL(28))){
    pe_Boolean (home->c220_fld);
  }
  if ((home->compmask [6] & BITL(29))){
    pe_Boolean (home->c221_fld);
  }
  if ((home->compmask [6] & BITL(30))){
    pe_Boolean (home->c222_fld);
  }
  if ((home->compmask [6] & BITL(31))){
    pe_Boolean (home->c223_fld);
  }
  if ((home->compmask [7] & BITL(0))){
    pe_Boolean (home->c224_fld);
  }
  if ((home->compmask [7] & BITL(1))){
    pe_Boolean (home->c225_fld);
  }
  if ((home->compmask [7] & BITL(2))){
    pe_Boolean (home->c226_fld);
  }
  if ((home->compmask [7] & BITL(3))){
    pe_Boolean (home->c227_fld);
  }
  if ((home->compmask [7] & BITL(4))){
    pe_Boolean (home->c228_fld);
  }
  if ((home->compmask [7] & BITL(5))){
    pe_Boolean (home->c229_fld);
  }
  if ((home->compmask [7] & BITL(6))){
    pe_Boolean (home->c230_fld);
  }
  if ((home->compmask [7] & BITL(7))){
    pe_Boolean (home->c231_fld);
  }
  if ((home->compmask [7] & BITL(8))){
    pe_Boolean (home->c232_fld);
  }
  if ((home->compmask [7] & BITL(9))){
    pe_Boolean (home->c233_fld);
  }
  if ((home->compmask [7] & BITL(10))){
    pe_Boolean (home->c234_fld);
  }
  if ((home->compmask [7] & BITL(11))){
    pe_Boolean (home->c235_fld);
  }
  if ((home->compmask [7] & BITL(12))){
    pe_Boolean (home->c236_fld);
  }
  if ((home->compmask [7] & BITL(13))){
    pe_Boolean (home->c237_fld);
  }
  if ((home->compmask [7] & BITL(14))){
    pe_Boolean (home->c238_fld);
  }
  if ((home->compmask [7] & BITL(15))){
    pe_Boolean (home->c239_fld);
  }
  if ((home->compmask [7] & BITL(16))){
    pe_Boolean (home->c240_fld);
  }
  if ((home->compmask [7] & BITL(17))){
    pe_Boolean (home->c241_fld);
  }
  if ((home->compmask [7] & BITL(18))){
    pe_Boolean (home->c242_fld);
  }
  if ((home->compmask [7] & BITL(19))){
    pe_Boolean (home->c243_fld);
  }
  if ((home->compmask [7] & BITL(20))){
    pe_Boolean (home->c244_fld);
  }
  if ((home->compmask [7] & BITL(21))){
    pe_Boolean (home->c245_fld);
  }
  if ((home->compmask [7] & BITL(22))){
    pe_Boolean (home->c246_fld);
  }
  if ((home->compmask [7] & BITL(23))){
    pe_Boolean (home->c247_fld);
  }
  if ((home->compmask [7] & BITL(24))){
    pe_Boolean (home->c248_fld);
  }
  if ((home->compmask [7] & BITL(25))){
    pe_Boolean (home->c249_fld);
  }
  if ((home->compmask [7] & BITL(26))){
    pe_Boolean (home->c250_fld);
  }
  if ((home->compmask [7] & BITL(27))){
    pe_Boolean (home->c251_fld);
  }
  if ((home->compmask [7] & BITL(28))){
    pe_Boolean (home->c252_fld);
  }
  if ((home->compmask [7] & BITL(29))){
    pe_Boolean (home->c253_fld);
  }
  if ((home->compmask [7] & BITL(30))){
    pe_Boolean (home->c254_fld);
  }
  if ((home->compmask [7] & BITL(31))){
    pe_Boolean (home->c255_fld);
  }
  if ((home->compmask [8] & BITL(0))){
    pe_Boolean (home->c256_fld);
  }
  if ((home->compmask [8] & BITL(1))){
    pe_Boolean (home->c257_fld);
  }
  if ((home->compmask [8] & BITL(2))){
    pe_Boolean (home->c258_fld);
  }
  if ((home->compmask [8] & BITL(3))){
    pe_Boolean (home->c259_fld);
  }
  if ((home->compmask [8] & BITL(4))){
    pe_Boolean (home->c260_fld);
  }
  if ((home->compmask [8] & BITL(5))){
    pe_Boolean (home->c261_fld);
  }
  if ((home->compmask [8] & BITL(6))){
    pe_Boolean (home->c262_fld);
  }
  if ((home->compmask [8] & BITL(7))){
    pe_Boolean (home->c263_fld);
  }
  if ((home->compmask [8] & BITL(8))){
    pe_Boolean (home->c264_fld);
  }
  if ((home->compmask [8] & BITL(9))){
    pe_Boolean (home->c265_fld);
  }
  if ((home->compmask [8] & BITL(10))){
    pe_Boolean (home->c266_fld);
  }
  if ((home->compmask [8] & BITL(11))){
    pe_Boolean (home->c267_fld);
  }
  if ((home->compmask [8] & BITL(12))){
    pe_Boolean (home->c268_fld);
  }
  if ((home->compmask [8] & BITL(13))){
    pe_Boolean (home->c269_fld);
  }
  if ((home->compmask [8] & BITL(14))){
    pe_Boolean (home->c270_fld);
  }
  if ((home->compmask [8] & BITL(15))){
    pe_Boolean (home->c271_fld);
  }
  if ((home->compmask [8] & BITL(16))){
    pe_Boolean (home->c272_fld);
  }
  if ((home->compmask [8] & BITL(17))){
    pe_Boolean (home->c273_fld);
  }
  if ((home->compmask [8] & BITL(18))){
    pe_Boolean (home->c274_fld);
  }
  if ((home->compmask [8] & BITL(19))){
    pe_Boolean (home->c275_fld);
  }
  if ((home->compmask [8] & BITL(20))){
    pe_Boolean (home->c276_fld);
  }
  if ((home->compmask [8] & BITL(21))){
    pe_Boolean (home->c277_fld);
  }
  if ((home->compmask [8] & BITL(22))){
    pe_Boolean (home->c278_fld);
  }
  if ((home->compmask [8] & BITL(23))){
    pe_Boolean (home->c279_fld);
  }
  if ((home->compmask [8] & BITL(24))){
    pe_Boolean (home->c280_fld);
  }
  if ((home->compmask [8] & BITL(25))){
    pe_Boolean (home->c281_fld);
  }
  if ((home->compmask [8] & BITL(26))){
    pe_Boolean (home->c282_fld);
  }
  if ((home->compmask [8] & BITL(27))){
    pe_Boolean (home->c283_fld);
  }
  if ((home->compmask [8] & BITL(28))){
    pe_Boolean (home->c284_fld);
  }
  if ((home->compmask [8] & BITL(29))){
    pe_Boolean (home->c285_fld);
  }
  if ((home->compmask [8] & BITL(30))){
    pe_Boolean (home->c286_fld);
  }
  if ((home->compmask [8] & BITL(31))){
    pe_Boolean (home->c287_fld);
  }
  if ((home->compmask [9] & BITL(0))){
    pe_Boolean (home->c288_fld);
  }
  if ((home->compmask [9] & BITL(1))){
    pe_Boolean (home->c289_fld);
  }
  if ((home->compmask [9] & BITL(2))){
    pe_Boolean (home->c290_fld);
  }
  if ((home->compmask [9] & BITL(3))){
    pe_Boolean (home->c291_fld);
  }
  if ((home->compmask [9] & BITL(4))){
    pe_Boolean (home->c292_fld);
  }
  if ((home->compmask [9] & BITL(5))){
    pe_Boolean (home->c293_fld);
  }
  if ((home->compmask [9] & BITL(6))){
    pe_Boolean (home->c294_fld);
  }
  if ((home->compmask [9] & BITL(7))){
    pe_Boolean (home->c295_fld);
  }
  if ((home->compmask [9] & BITL(8))){
    pe_Boolean (home->c296_fld);
  }
  if ((home->compmask [9] & BITL(9))){
    pe_Boolean (home->c297_fld);
  }
  if ((home->compmask [9] & BITL(10))){
    pe_Boolean (home->c298_fld);
  }
  if ((home->compmask [9] & BITL(11))){
    pe_Boolean (home->c299_fld);
  }
  if ((home->compmask [9] & BITL(12))){
    pe_Boolean (home->c300_fld);
  }
  if ((home->compmask [9] & BITL(13))){
    pe_Boolean (home->c301_fld);
  }
  if ((home->compmask [9] & BITL(14))){
    pe_Boolean (home->c302_fld);
  }
  if ((home->compmask [9] & BITL(15))){
    pe_Boolean (home->c303_fld);
  }
  if ((home->compmask [9] & BITL(16))){
    pe_Boolean (home->c304_fld);
  }
  if ((home->compmask [9] & BITL(17))){
    pe_Boolean (home->c305_fld);
  }
  if ((home->compmask [9] & BITL(18))){
    pe_Boolean (home->c306_fld);
  }
  if ((home->compmask [9] & BITL(19))){
    pe_Boolean (home->c307_fld);
  }
  if ((home->compmask [9] & BITL(20))){
    pe_Boolean (home->c308_fld);
  }
  if ((home->compmask [9] & BITL(21))){
    pe_Boolean (home->c309_fld);
  }
  if ((home->compmask [9] & BITL(22))){
    pe_Boolean (home->c310_fld);
  }
  if ((home->compmask [9] & BITL(23))){
    pe_Boolean (home->c311_fld);
  }
  if ((home->compmask [9] & BITL(24))){
    pe_Boolean (home->c312_fld);
  }
  if ((home->compmask [9] & BITL(25))){
    pe_Boolean (home->c313_fld);
  }
  if ((home->compmask [9] & BITL(26))){
    pe_Boolean (home->c314_fld);
  }
  if ((home->compmask [9] & BITL(27))){
    pe_Boolean (home->c315_fld);
  }
  if ((home->compmask [9] & BITL(28))){
    pe_Boolean (home->c316_fld);
  }
  if ((home->compmask [9] & BITL(29))){
    pe_Boolean (home->c317_fld);
  }
  if ((home->compmask [9] & BITL(30))){
    pe_Boolean (home->c318_fld);
  }
  if ((home->compmask [9] & BITL(31))){
    pe_Boolean (home->c319_fld);
  }
  if ((home->compmask [10] & BITL(0))){
    pe_Boolean (home->c320_fld);
  }
  if ((home->compmask [10] & BITL(1))){
    pe_Boolean (home->c321_fld);
  }
  if ((home->compmask [10] & BITL(2))){
    pe_Boolean (home->c322_fld);
  }
  if ((home->compmask [10] & BITL(3))){
    pe_Boolean (home->c323_fld);
  }
  if ((home->compmask [10] & BITL(4))){
    pe_Boolean (home->c324_fld);
  }
  if ((home->compmask [10] & BITL(5))){
    pe_Boolean (home->c325_fld);
  }
  if ((home->compmask [10] & BITL(6))){
    pe_Boolean (home->c326_fld);
  }
  if ((home->compmask [10] & BITL(7))){
    pe_Boolean (home->c327_fld);
  }
  if ((home->compmask [10] & BITL(8))){
    pe_Boolean (home->c328_fld);
  }
  if ((home->compmask [10] & BITL(9))){
    pe_Boolean (home->c329_fld);
  }
  if ((home->compmask [10] & BITL(10))){
    pe_Boolean (home->c330_fld);
  }
  if ((home->compmask [10] & BITL(11))){
    pe_Boolean (home->c331_fld);
  }
  if ((home->compmask [10] & BITL(12))){
    pe_Boolean (home->c332_fld);
  }
  if ((home->compmask [10] & BITL(13))){
    pe_Boolean (home->c333_fld);
  }
  if ((home->compmask [10] & BITL(14))){
    pe_Boolean (home->c334_fld);
  }
  if ((home->compmask [10] & BITL(15))){
    pe_Boolean (home->c335_fld);
  }
  if ((home->compmask [10] & BITL(16))){
    pe_Boolean (home->c336_fld);
  }
  if ((home->compmask [10] & BITL(17))){
    pe_Boolean (home->c337_fld);
  }
  if ((home->compmask [10] & BITL(18))){
    pe_Boolean (home->c338_fld);
  }
  if ((home->compmask [10] & BITL(19))){
    pe_Boolean (home->c339_fld);
  }
  if ((home->compmask [10] & BITL(20))){
    pe_Boolean (home->c340_fld);
  }
  if ((home->compmask [10] & BITL(21))){
    pe_Boolean (home->c341_fld);
  }
  if ((home->compmask [10] & BITL(22))){
    pe_Boolean (home->c342_fld);
  }
  if ((home->compmask [10] & BITL(23))){
    pe_Boolean (home->c343_fld);
  }
  if ((home->compmask [10] & BITL(24))){
    pe_Boolean (home->c344_fld);
  }
  if ((home->compmask [10] & BITL(25))){
    pe_Boolean (home->c345_fld);
  }
  if ((home->compmask [10] & BITL(26))){
    pe_Boolean (home->c346_fld);
  }
  if ((home->compmask [10] & BITL(27))){
    pe_Boolean (home->c347_fld);
  }
  if ((home->compmask [10] & BITL(28))){
    pe_Boolean (home->c348_fld);
  }
  if ((home->compmask [10] & BITL(29))){
    pe_Boolean (home->c349_fld);
  }
  if ((home->compmask [10] & BITL(30))){
    pe_Boolean (home->c350_fld);
  }
  if ((home->compmask [10] & BITL(31))){
    pe_Boolean (home->c351_fld);
  }
  if ((home->compmask [11] & BITL(0))){
    pe_Boolean (home->c352_fld);
  }
  if ((home->compmask [11] & BITL(1))){
    pe_Boolean (home->c353_fld);
  }
  if ((home->compmask [11] & BITL(2))){
    pe_Boolean (home->c354_fld);
  }
  if ((home->compmask [11] & BITL(3))){
    pe_Boolean (home->c355_fld);
  }
  if ((home->compmask [11] & BITL(4))){
    pe_Boolean (home->c356_fld);
  }
  if ((home->compmask [11] & BITL(5))){
    pe_Boolean (home->c357_fld);
  }
  if ((home->compmask [11] & BITL(6))){
    pe_Boolean (home->c358_fld);
  }
  if ((home->compmask [11] & BITL(7))){
    pe_Boolean (home->c359_fld);
  }
  if ((home->compmask [11] & BITL(8))){
    pe_Boolean (home->c360_fld);
  }
  if ((home->compmask [11] & BITL(9))){
    pe_Boolean (home->c361_fld);
  }
  if ((home->compmask [11] & BITL(10))){
    pe_Boolean (home->c362_fld);
  }
  if ((home->compmask [11] & BITL(11))){
    pe_Boolean (home->c363_fld);
  }
  if ((home->compmask [11] & BITL(12))){
    pe_Boolean (home->c364_fld);
  }
  if ((home->compmask [11] & BITL(13))){
    pe_Boolean (home->c365_fld);
  }
  if ((home->compmask [11] & BITL(14))){
    pe_Boolean (home->c366_fld);
  }
  if ((home->compmask [11] & BITL(15))){
    pe_Boolean (home->c367_fld);
  }
  if ((home->compmask [11] & BITL(16))){
    pe_Boolean (home->c368_fld);
  }
  if ((home->compmask [11] & BITL(17))){
    pe_Boolean (home->c369_fld);
  }
  if ((home->compmask [11] & BITL(18))){
    pe_Boolean (home->c370_fld);
  }
  if ((home->compmask [11] & BITL(19))){
    pe_Boolean (home->c371_fld);
  }
  if ((home->compmask [11] & BITL(20))){
    pe_Boolean (home->c372_fld);
  }
  if ((home->compmask [11] & BITL(21))){
    pe_Boolean (home->c373_fld);
  }
  if ((home->compmask [11] & BITL(22))){
    pe_Boolean (home->c374_fld);
  }
  if ((home->compmask [11] & BITL(23))){
    pe_Boolean (home->c375_fld);
  }
  if ((home->compmask [11] & BITL(24))){
    pe_Boolean (home->c376_fld);
  }
  if ((home->compmask [11] & BITL(25))){
    pe_Boolean (home->c377_fld);
  }
  if ((home->compmask [11] & BITL(26))){
    pe_Boolean (home->c378_fld);
  }
  if ((home->compmask [11] & BITL(27))){
    pe_Boolean (home->c379_fld);
  }
  if ((home->compmask [11] & BITL(28))){
    pe_Boolean (home->c380_fld);
  }
  if ((home->compmask [11] & BITL(29))){
    pe_Boolean (home->c381_fld);
  }
  if ((home->compmask [11] & BITL(30))){
    pe_Boolean (home->c382_fld);
  }
  if ((home->compmask [11] & BITL(31))){
    pe_Boolean (home->c383_fld);
  }
  if ((home->compmask [12] & BITL(0))){
    pe_Boolean (home->c384_fld);
  }
  if ((home->compmask [12] & BITL(1))){
    pe_Boolean (home->c385_fld);
  }
  if ((home->compmask [12] & BITL(2))){
    pe_Boolean (home->c386_fld);
  }
  if ((home->compmask [12] & BITL(3))){
    pe_Boolean (home->c387_fld);
  }
  if ((home->compmask [12] & BITL(4))){
    pe_Boolean (home->c388_fld);
  }
  if ((home->compmask [12] & BITL(5))){
    pe_Boolean (home->c389_fld);
  }
  if ((home->compmask [12] & BITL(6))){
    pe_Boolean (home->c390_fld);
  }
  if ((home->compmask [12] & BITL(7))){
    pe_Boolean (home->c391_fld);
  }
  if ((home->compmask [12] & BITL(8))){
    pe_Boolean (home->c392_fld);
  }
  if ((home->compmask [12] & BITL(9))){
    pe_Boolean (home->c393_fld);
  }
  if ((home->compmask [12] & BITL(10))){
    pe_Boolean (home->c394_fld);
  }
  if ((home->compmask [12] & BITL(11))){
    pe_Boolean (home->c395_fld);
  }
  if ((home->compmask [12] & BITL(12))){
    pe_Boolean (home->c396_fld);
  }
  if ((home->compmask [12] & BITL(13))){
    pe_Boolean (home->c397_fld);
  }
  if ((home->compmask [12] & BITL(14))){
    pe_Boolean (home->c398_fld);
  }
  if ((home->compmask [12] & BITL(15))){
    pe_Boolean (home->c399_fld);
  }
  if ((home->compmask [12] & BITL(16))){
    pe_Boolean (home->c400_fld);
  }
  if ((home->compmask [12] & BITL(17))){
    pe_Boolean (home->c401_fld);
  }
  if ((home->compmask [12] & BITL(18))){
    pe_Boolean (home->c402_fld);
  }
  if ((home->compmask [12] & BITL(19))){
    pe_Boolean (home->c403_fld);
  }
  if ((home->compmask [12] & BITL(20))){
    pe_Boolean (home->c404_fld);
  }
  if ((home->compmask [12] & BITL(21))){
    pe_Boolean (home->c405_fld);
  }
  if ((home->compmask [12] & BITL(22))){
    pe_Boolean (home->c406_fld);
  }
  if ((home->compmask [12] & BITL(23))){
    pe_Boolean (home->c407_fld);
  }
  if ((home->compmask [12] & BITL(24))){
    pe_Boolean (home->c408_fld);
  }
  if ((home->compmask [12] & BITL(25))){
    pe_Boolean (home->c409_fld);
  }
  if ((home->compmask [12] & BITL(26))){
    pe_Boolean (home->c410_fld);
  }
  if ((home->compmask [12] & BITL(27))){
    pe_Boolean (home->c411_fld);
  }
  if ((home->compmask [12] & BITL(28))){
    pe_Boolean (home->c412_fld);
  }
  if ((home->compmask [12] & BITL(29))){
    pe_Boolean (home->c413_fld);
  }
  if ((home->compmask [12] & BITL(30))){
    pe_Boolean (home->c414_fld);
  }
  if ((home->compmask [12] & BITL(31))){
    pe_Boolean (home->c415_fld);
  }
  if ((home->compmask [13] & BITL(0))){
    pe_Boolean (home->c416_fld);
  }
  if ((home->compmask [13] & BITL(1))){
    pe_Boolean (home->c417_fld);
  }
  if ((home->compmask [13] & BITL(2))){
    pe_Boolean (home->c418_fld);
  }
  if ((home->compmask [13] & BITL(3))){
    pe_Boolean (home->c419_fld);
  }
  if ((home->compmask [13] & BITL(4))){
    pe_Boolean (home->c420_fld);
  }
  if ((home->compmask [13] & BITL(5))){
    pe_Boolean (home->c421_fld);
  }
  if ((home->compmask [13] & BITL(6))){
    pe_Boolean (home->c422_fld);
  }
  if ((home->compmask [13] & BITL(7))){
    pe_Boolean (home->c423_fld);
  }
  if ((home->compmask [13] & BITL(8))){
    pe_Boolean (home->c424_fld);
  }
  if ((home->compmask [13] & BITL(9))){
    pe_Boolean (home->c425_fld);
  }
  if ((home->compmask [13] & BITL(10))){
    pe_Boolean (home->c426_fld);
  }
  if ((home->compmask [13] & BITL(11))){
    pe_Boolean (home->c427_fld);
  }
  if ((home->compmask [13] & BITL(12))){
    pe_Boolean (home->c428_fld);
  }
  if ((home->compmask [13] & BITL(13))){
    pe_Boolean (home->c429_fld);
  }
  if ((home->compmask [13] & BITL(14))){
    pe_Boolean (home->c430_fld);
  }
  if ((home->compmask [13] & BITL(15))){
    pe_Boolean (home->c431_fld);
  }
  if ((home->compmask [13] & BITL(16))){
    pe_Boolean (home->c432_fld);
  }
  if ((home->compmask [13] & BITL(17))){
    pe_Boolean (home->c433_fld);
  }
  if ((home->compmask [13] & BITL(18))){
    pe_Boolean (home->c434_fld);
  }
  if ((home->compmask [13] & BITL(19))){
    pe_Boolean (home->c435_fld);
  }
  if ((home->compmask [13] & BITL(20))){
    pe_Boolean (home->c436_fld);
  }
  if ((home->compmask [13] & BITL(21))){
    pe_Boolean (home->c437_fld);
  }
  if ((home->compmask [13] & BITL(22))){
    pe_Boolean (home->c438_fld);
  }
  if ((home->compmask [13] & BITL(23))){
    pe_Boolean (home->c439_fld);
  }
  if ((home->compmask [13] & BITL(24))){
    pe_Boolean (home->c440_fld);
  }
  if ((home->compmask [13] & BITL(25))){
    pe_Boolean (home->c441_fld);
  }
  if ((home->compmask [13] & BITL(26))){
    pe_Boolean (home->c442_fld);
  }
  if ((home->compmask [13] & BITL(27))){
    pe_Boolean (home->c443_fld);
  }
  if ((home->compmask [13] & BITL(28))){
    pe_Boolean (home->c444_fld);
  }
  if ((home->compmask [13] & BITL(29))){
    pe_Boolean (home->c445_fld);
  }
  if ((home->compmask [13] & BITL(30))){
    pe_Boolean (home->c446_fld);
  }
  if ((home->compmask [13] & BITL(31))){
    pe_Boolean (home->c447_fld);
  }
  if ((home->compmask [14] & BITL(0))){
    pe_Boolean (home->c448_fld);
  }
  if ((home->compmask [14] & BITL(1))){
    pe_Boolean (home->c449_fld);
  }
  if ((home->compmask [14] & BITL(2))){
    pe_Boolean (home->c450_fld);
  }
  if ((home->compmask [14] & BITL(3))){
    pe_Boolean (home->c451_fld);
  }
  if ((home->compmask [14] & BITL(4))){
    pe_Boolean (home->c452_fld);
  }
  if ((home->compmask [14] & BITL(5))){
    pe_Boolean (home->c453_fld);
  }
  if ((home->compmask [14] & BITL(6))){
    pe_Boolean (home->c454_fld);
  }
  if ((home->compmask [14] & BITL(7))){
    pe_Boolean (home->c455_fld);
  }
  if ((home->compmask [14] & BITL(8))){
    pe_Boolean (home->c456_fld);
  }
  if ((home->compmask [14] & BITL(9))){
    pe_Boolean (home->c457_fld);
  }
  if ((home->compmask [14] & BITL(10))){
    pe_Boolean (home->c458_fld);
  }
  if ((home->compmask [14] & BITL(11))){
    pe_Boolean (home->c459_fld);
  }
  if ((home->compmask [14] & BITL(12))){
    pe_Boolean (home->c460_fld);
  }
  if ((home->compmask [14] & BITL(13))){
    pe_Boolean (home->c461_fld);
  }
  if ((home->compmask [14] & BITL(14))){
    pe_Boolean (home->c462_fld);
  }
  if ((home->compmask [14] & BITL(15))){
    pe_Boolean (home->c463_fld);
  }
  if ((home->compmask [14] & BITL(16))){
    pe_Boolean (home->c464_fld);
  }
  if ((home->compmask [14] & BITL(17))){
    pe_Boolean (home->c465_fld);
  }
  if ((home->compmask [14] & BITL(18))){
    pe_Boolean (home->c466_fld);
  }
  if ((home->compmask [14] & BITL(19))){
    pe_Boolean (home->c467_fld);
  }
  if ((home->compmask [14] & BITL(20))){
    pe_Boolean (home->c468_fld);
  }
  if ((home->compmask [14] & BITL(21))){
    pe_Boolean (home->c469_fld);
  }
  if ((home->compmask [14] & BITL(22))){
    pe_Boolean (home->c470_fld);
  }
  if ((home->compmask [14] & BITL(23))){
    pe_Boolean (home->c471_fld);
  }
  if ((home->compmask [14] & BITL(24))){
    pe_Boolean (home->c472_fld);
  }
  if ((home->compmask [14] & BITL(25))){
    pe_Boolean (home->c473_fld);
  }
  if ((home->compmask [14] & BITL(26))){
    pe_Boolean (home->c474_fld);
  }
  if ((home->compmask [14] & BITL(27))){
    pe_Boolean (home->c475_fld);
  }
  if ((home->compmask [14] & BITL(28))){
    pe_Boolean (home->c476_fld);
  }
  if ((home->compmask [14] & BITL(29))){
    pe_Boolean (home->c477_fld);
  }
  if ((home->compmask [14] & BITL(30))){
    pe_Boolean (home->c478_fld);
  }
  if ((home->compmask [14] & BITL(31))){
    pe_Boolean (home->c479_fld);
  }
  if ((home->compmask [15] & BITL(0))){
    pe_Boolean (home->c480_fld);
  }
  if ((home->compmask [15] & BITL(1))){
    pe_Boolean (home->c481_fld);
  }
  if ((home->compmask [15] & BITL(2))){
    pe_Boolean (home->c482_fld);
  }
  if ((home->compmask [15] & BITL(3))){
    pe_Boolean (home->c483_fld);
  }
  if ((home->compmask [15] & BITL(4))){
    pe_Boolean (home->c484_fld);
  }
  if ((home->compmask [15] & BITL(5))){
    pe_Boolean (home->c485_fld);
  }
  if ((home->compmask [15] & BITL(6))){
    pe_Boolean (home->c486_fld);
  }
  if ((home->compmask [15] & BITL(7))){
    pe_Boolean (home->c487_fld);
  }
  if ((home->compmask [15] & BITL(8))){
    pe_Boolean (home->c488_fld);
  }
  if ((home->compmask [15] & BITL(9))){
    pe_Boolean (home->c489_fld);
  }
  if ((home->compmask [15] & BITL(10))){
    pe_Boolean (home->c490_fld);
  }
  if ((home->compmask [15] & BITL(11))){
    pe_Boolean (home->c491_fld);
  }
  if ((home->compmask [15] & BITL(12))){
    pe_Boolean (home->c492_fld);
  }
  if ((home->compmask [15] & BITL(13))){
    pe_Boolean (home->c493_fld);
  }
  if ((home->compmask [15] & BITL(14))){
    pe_Boolean (home->c494_fld);
  }
  if ((home->compmask [15] & BITL(15))){
    pe_Boolean (home->c495_fld);
  }
  if ((home->compmask [15] & BITL(16))){
    pe_Boolean (home->c496_fld);
  }
  if ((home->compmask [15] & BITL(17))){
    pe_Boolean (home->c497_fld);
  }
  if ((home->compmask [15] & BITL(18))){
    pe_Boolean (home->c498_fld);
  }
  if ((home->compmask [15] & BITL(19))){
    pe_Boolean (home->c499_fld);
  }
  if ((home->compmask [15] & BITL(20))){
    pe_Boolean (home->c500_fld);
  }
  if ((home->compmask [15] & BITL(21))){
    pe_Boolean (home->c501_fld);
  }
  if ((home->compmask [15] & BITL(22))){
    pe_Boolean (home->c502_fld);
  }
  if ((home->compmask [15] & BITL(23))){
    pe_Boolean (home->c503_fld);
  }
  if ((home->compmask [15] & BITL(24))){
    pe_Boolean (home->c504_fld);
  }
  if ((home->compmask [15] & BITL(25))){
    pe_Boolean (home->c505_fld);
  }
  if ((home->compmask [15] & BITL(26))){
    pe_Boolean (home->c506_fld);
  }
  if ((home->compmask [15] & BITL(27))){
    pe_Boolean (home->c507_fld);
  }
  if ((home->compmask [15] & BITL(28))){
    pe_Boolean (home->c508_fld);
  }
  if ((home->compmask [15] & BITL(29))){
    pe_Boolean (home->c509_fld);
  }
  if ((home->compmask [15] & BITL(30))){
    pe_Boolean (home->c510_fld);
  }
  if ((home->compmask [15] & BITL(31))){
    pe_Boolean (home->c511_fld);
  }
}

void peOpt513 (ASNG_F(ASNPERG *asnperg) Opt513 *home)
{
  {
    sint32 optfield_0[17] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    if (home->compmask [0] & BITL(0)){
      optfield_0[16] |= BITL(0);
    }
    if (home->compmask [0] & BITL(1)){
      optfield_0[15] |= BITL(31);
    }
    if (home->compmask [0] & BITL(2)){
      optfield_0[15] |= BITL(30);
    }
    if (home->compmask [0] & BITL(3)){
      optfield_0[15] |= BITL(29);
    }
    if (home->compmask [0] & BITL(4)){
      optfield_0[15] |= BITL(28);
    }
    if (home->compmask [0] & BITL(5)){
      optfield_0[15] |= BITL(27);
    }
    if (home->compmask [0] & BITL(6)){
      optfield_0[15] |= BITL(26);
    }
    if (home->compmask [0] & BITL(7)){
      optfield_0[15] |= BITL(25);
    }
    if (home->compmask [0] & BITL(8)){
      optfield_0[15] |= BITL(24);
    }
    if (home->compmask [0] & BITL(9)){
      optfield_0[15] |= BITL(23);
    }
    if (home->compmask [0] & BITL(10)){
      optfield_0[15] |= BITL(22);
    }
    if (home->compmask [0] & BITL(11)){
      optfield_0[15] |= BITL(21);
    }
    if (home->compmask [0] & BITL(12)){
      optfield_0[15] |= BITL(20);
    }
    if (home->compmask [0] & BITL(13)){
      optfield_0[15] |= BITL(19);
    }
    if (home->compmask [0] & BITL(14)){
      optfield_0[15] |= BITL(18);
    }
    if (home->compmask [0] & BITL(15)){
      optfield_0[15] |= BITL(17);
    }
    if (home->compmask [0] & BITL(16)){
      optfield_0[15] |= BITL(16);
    }
    if (home->compmask [0] & BITL(17)){
      optfield_0[15] |= BITL(15);
    }
    if (home->compmask [0] & BITL(18)){
      optfield_0[15] |= BITL(14);
    }
    if (home->compmask [0] & BITL(19)){
      optfield_0[15] |= BITL(13);
    }
    if (home->compmask [0] & BITL(20)){
      optfield_0[15] |= BITL(12);
    }
    if (home->compmask [0] & BITL(21)){
      optfield_0[15] |= BITL(11);
    }
    if (home->compmask [0] & BITL(22)){
      optfield_0[15] |= BITL(10);
    }
    if (home->compmask [0] & BITL(23)){
      optfield_0[15] |= BITL(9);
    }
    if (home->compmask [0] & BITL(24)){
      optfield_0[15] |= BITL(8);
    }
    if (home->compmask [0] & BITL(25)){
      optfield_0[15] |= BITL(7);
    }
    if (home->compmask [0] & BITL(26)){
      optfield_0[15] |= BITL(6);
    }
    if (home->compmask [0] & BITL(27)){
      optfield_0[15] |= BITL(5);
    }
    if (home->compmask [0] & BITL(28)){
      optfield_0[15] |= BITL(4);
    }
    if (home->compmask [0] & BITL(29)){
      optfield_0[15] |= BITL(3);
    }
    if (home->compmask [0] & BITL(30)){
      optfield_0[15] |= BITL(2);
    }
    if (home->compmask [0] & BITL(31)){
      optfield_0[15] |= BITL(1);
    }
    if (home->compmask [1] & BITL(0)){
      optfield_0[15] |= BITL(0);
    }
    if (home->compmask [1] & BITL(1)){
      optfield_0[14] |= BITL(31);
    }
    if (home->compmask [1] & BITL(2)){
      optfield_0[14] |= BITL(30);
    }
    if (home->compmask [1] & BITL(3)){
      optfield_0[14] |= BITL(29);
    }
    if (home->compmask [1] & BITL(4)){
      optfield_0[14] |= BITL(28);
    }
    if (home->compmask [1] & BITL(5)){
      optfield_0[14] |= BITL(27);
    }
    if (home->compmask [1] & BITL(6)){
      optfield_0[14] |= BITL(26);
    }
    if (home->compmask [1] & BITL(7)){
      optfield_0[14] |= BITL(25);
    }
    if (home->compmask [1] & BITL(8)){
      optfield_0[14] |= BITL(24);
    }
    if (home->compmask [1] & BITL(9)){
      optfield_0[14] |= BITL(23);
    }
    if (home->compmask [1] & BITL(10)){
      optfield_0[14] |= BITL(22);
    }
    if (home->compmask [1] & BITL(11)){
      optfield_0[14] |= BITL(21);
    }
    if (home->compmask [1] & BITL(12)){
      optfield_0[14] |= BITL(20);
    }
    if (home->compmask [1] & BITL(13)){
      optfield_0[14] |= BITL(19);
    }
    if (home->compmask [1] & BITL(14)){
      optfield_0[14] |= BITL(18);
    }
    if (home->compmask [1] & BITL(15)){
      optfield_0[14] |= BITL(17);
    }
    if (home->compmask [1] & BITL(16)){
      optfield_0[14] |= BITL(16);
    }
    if (home->compmask [1] & BITL(17)){
      optfield_0[14] |= BITL(15);
    }
    if (home->compmask [1] & BITL(18)){
      optfield_0[14] |= BITL(14);
    }
    if (home->compmask [1] & BITL(19)){
      optfield_0[14] |= BITL(13);
    }
    if (home->compmask [1] & BITL(20)){
      optfield_0[14] |= BITL(12);
    }
    if (home->compmask [1] & BITL(21)){
      optfield_0[14] |= BITL(11);
    }
    if (home->compmask [1] & BITL(22)){
      optfield_0[14] |= BITL(10);
    }
    if (home->compmask [1] & BITL(23)){
      optfield_0[14] |= BITL(9);
    }
    if (home->compmask [1] & BITL(24)){
      optfield_0[14] |= BITL(8);
    }
    if (home->compmask [1] & BITL(25)){
      optfield_0[14] |= BITL(7);
    }
    if (home->compmask [1] & BITL(26)){
      optfield_0[14] |= BITL(6);
    }
    if (home->compmask [1] & BITL(27)){
      optfield_0[14] |= BITL(5);
    }
    if (home->compmask [1] & BITL(28)){
      optfield_0[14] |= BITL(4);
    }
    if (home->compmask [1] & BITL(29)){
      optfield_0[14] |= BITL(3);
    }
    if (home->compmask [1] & BITL(30)){
      optfield_0[14] |= BITL(2);
    }
    if (home->compmask [1] & BITL(31)){
      optfield_0[14] |= BITL(1);
    }
    if (home->compmask [2] & BITL(0)){
      optfield_0[14] |= BITL(0);
    }
    if (home->compmask [2] & BITL(1)){
      optfield_0[13] |= BITL(31);
    }
    if (home->compmask [2] & BITL(2)){
      optfield_0[13] |= BITL(30);
    }
    if (home->compmask [2] & BITL(3)){
      optfield_0[13] |= BITL(29);
    }
    if (home->compmask [2] & BITL(4)){
      optfield_0[13] |= BITL(28);
    }
    if (home->compmask [2] & BITL(5)){
      optfield_0[13] |= BITL(27);
    }
    if (home->compmask [2] & BITL(6)){
      optfield_0[13] |= BITL(26);
    }
    if (home->compmask [2] & BITL(7)){
      optfield_0[13] |= BITL(25);
    }
    if (home->compmask [2] & BITL(8)){
      optfield_0[13] |= BITL(24);
    }
    if (home->compmask [2] & BITL(9)){
      optfield_0[13] |= BITL(23);
    }
    if (home->compmask [2] & BITL(10)){
      optfield_0[13] |= BITL(22);
    }
    if (home->compmask [2] & BITL(11)){
      optfield_0[13] |= BITL(21);
    }
    if (home->compmask [2] & BITL(12)){
      optfield_0[13] |= BITL(20);
    }
    if (home->compmask [2] & BITL(13)){
      optfield_0[13] |= BITL(19);
    }
    if (home->compmask [2] & BITL(14)){
      optfield_0[13] |= BITL(18);
    }
    if (home->compmask [2] & BITL(15)){
      optfield_0[13] |= BITL(17);
    }
    if (home->compmask [2] & BITL(16)){
      optfield_0[13] |= BITL(16);
    }
    if (home->compmask [2] & BITL(17)){
      optfield_0[13] |= BITL(15);
    }
    if (home->compmask [2] & BITL(18)){
      optfield_0[13] |= BITL(14);
    }
    if (home->compmask [2] & BITL(19)){
      optfield_0[13] |= BITL(13);
    }
    if (home->compmask [2] & BITL(20)){
      optfield_0[13] |= BITL(12);
    }
    if (home->compmask [2] & BITL(21)){
      optfield_0[13] |= BITL(11);
    }
    if (home->compmask [2] & BITL(22)){
      optfield_0[13] |= BITL(10);
    }
    if (home->compmask [2] & BITL(23)){
      optfield_0[13] |= BITL(9);
    }
    if (home->compmask [2] & BITL(24)){
      optfield_0[13] |= BITL(8);
    }
    if (home->compmask [2] & BITL(25)){
      optfield_0[13] |= BITL(7);
    }
    if (home->compmask [2] & BITL(26)){
      optfield_0[13] |= BITL(6);
    }
    if (home->compmask [2] & BITL(27)){
      optfield_0[13] |= BITL(5);
    }
    if (home->compmask [2] & BITL(28)){
      optfield_0[13] |= BITL(4);
    }
    if (home->compmask [2] & BITL(29)){
      optfield_0[13] |= BITL(3);
    }
    if (home->compmask [2] & BITL(30)){
      optfield_0[13] |= BITL(2);
    }
    if (home->compmask [2] & BITL(31)){
      optfield_0[13] |= BITL(1);
    }
    if (home->compmask [3] & BITL(0)){
      optfield_0[13] |= BITL(0);
    }
    if (home->compmask [3] & BITL(1)){
      optfield_0[12] |= BITL(31);
    }
    if (home->compmask [3] & BITL(2)){
      optfield_0[12] |= BITL(30);
    }
    if (home->compmask [3] & BITL(3)){
      optfield_0[12] |= BITL(29);
    }
    if (home->compmask [3] & BITL(4)){
      optfield_0[12] |= BITL(28);
    }
    if (home->compmask [3] & BITL(5)){
      optfield_0[12] |= BITL(27);
    }
    if (home->compmask [3] & BITL(6)){
      optfield_0[12] |= BITL(26);
    }
    if (home->compmask [3] & BITL(7)){
      optfield_0[12] |= BITL(25);
    }
    if (home->compmask [3] & BITL(8)){
      optfield_0[12] |= BITL(24);
    }
    if (home->compmask [3] & BITL(9)){
      optfield_0[12] |= BITL(23);
    }
    if (home->compmask [3] & BITL(10)){
      optfield_0[12] |= BITL(22);
    }
    if (home->compmask [3] & BITL(11)){
      optfield_0[12] |= BITL(21);
    }
    if (home->compmask [3] & BITL(12)){
      optfield_0[12] |= BITL(20);
    }
    if (home->compmask [3] & BITL(13)){
      optfield_0[12] |= BITL(19);
    }
    if (home->compmask [3] & BITL(14)){
      optfield_0[12] |= BITL(18);
    }
    if (home->compmask [3] & BITL(15)){
      optfield_0[12] |= BITL(17);
    }
    if (home->compmask [3] & BITL(16)){
      optfield_0[12] |= BITL(16);
    }
    if (home->compmask [3] & BITL(17)){
      optfield_0[12] |= BITL(15);
    }
    if (home->compmask [3] & BITL(18)){
      optfield_0[12] |= BITL(14);
    }
    if (home->compmask [3] & BITL(19)){
      optfield_0[12] |= BITL(13);
    }
    if (home->compmask [3] & BITL(20)){
      optfield_0[12] |= BITL(12);
    }
    if (home->compmask [3] & BITL(21)){
      optfield_0[12] |= BITL(11);
    }
    if (home->compmask [3] & BITL(22)){
      optfield_0[12] |= BITL(10);
    }
    if (home->compmask [3] & BITL(23)){
      optfield_0[12] |= BITL(9);
    }
    if (home->compmask [3] & BITL(24)){
      optfield_0[12] |= BITL(8);
    }
    if (home->compmask [3] & BITL(25)){
      optfield_0[12] |= BITL(7);
    }
    if (home->compmask [3] & BITL(26)){
      optfield_0[12] |= BITL(6);
    }
    if (home->compmask [3] & BITL(27)){
      optfield_0[12] |= BITL(5);
    }
    if (home->compmask [3] & BITL(28)){
      optfield_0[12] |= BITL(4);
    }
    if (home->compmask [3] & BITL(29)){
      optfield_0[12] |= BITL(3);
    }
    if (home->compmask [3] & BITL(30)){
      optfield_0[12] |= BITL(2);
    }
    if (home->compmask [3] & BITL(31)){
      optfield_0[12] |= BITL(1);
    }
    if (home->compmask [4] & BITL(0)){
      optfield_0[12] |= BITL(0);
    }
    if (home->compmask [4] & BITL(1)){
      optfield_0[11] |= BITL(31);
    }
    if (home->compmask [4] & BITL(2)){
      optfield_0[11] |= BITL(30);
    }
    if (home->compmask [4] & BITL(3)){
      optfield_0[11] |= BITL(29);
    }
    if (home->compmask [4] & BITL(4)){
      optfield_0[11] |= BITL(28);
    }
    if (home->compmask [4] & BITL(5)){
      optfield_0[11] |= BITL(27);
    }
    if (home->compmask [4] & BITL(6)){
      optfield_0[11] |= BITL(26);
    }
    if (home->compmask [4] & BITL(7)){
      optfield_0[11] |= BITL(25);
    }
    if (home->compmask [4] & BITL(8)){
      optfield_0[11] |= BITL(24);
    }
    if (home->compmask [4] & BITL(9)){
      optfield_0[11] |= BITL(23);
    }
    if (home->compmask [4] & BITL(10)){
      optfield_0[11] |= BITL(22);
    }
    if (home->compmask [4] & BITL(11)){
      optfield_0[11] |= BITL(21);
    }
    if (home->compmask [4] & BITL(12)){
      optfield_0[11] |= BITL(20);
    }
    if (home->compmask [4] & BITL(13)){
      optfield_0[11] |= BITL(19);
    }
    if (home->compmask [4] & BITL(14)){
      optfield_0[11] |= BITL(18);
    }
    if (home->compmask [4] & BITL(15)){
      optfield_0[11] |= BITL(17);
    }
    if (home->compmask [4] & BITL(16)){
      optfield_0[11] |= BITL(16);
    }
    if (home->compmask [4] & BITL(17)){
      optfield_0[11] |= BITL(15);
    }
    if (home->compmask [4] & BITL(18)){
      optfield_0[11] |= BITL(14);
    }
    if (home->compmask [4] & BITL(19)){
      optfield_0[11] |= BITL(13);
    }
    if (home->compmask [4] & BITL(20)){
      optfield_0[11] |= BITL(12);
    }
    if (home->compmask [4] & BITL(21)){
      optfield_0[11] |= BITL(11);
    }
    if (home->compmask [4] & BITL(22)){
      optfield_0[11] |= BITL(10);
    }
    if (home->compmask [4] & BITL(23)){
      optfield_0[11] |= BITL(9);
    }
    if (home->compmask [4] & BITL(24)){
      optfield_0[11] |= BITL(8);
    }
    if (home->compmask [4] & BITL(25)){
      optfield_0[11] |= BITL(7);
    }
    if (home->compmask [4] & BITL(26)){
      optfield_0[11] |= BITL(6);
    }
    if (home->compmask [4] & BITL(27)){
      optfield_0[11] |= BITL(5);
    }
    if (home->compmask [4] & BITL(28)){
      optfield_0[11] |= BITL(4);
    }
    if (home->compmask [4] & BITL(29)){
      optfield_0[11] |= BITL(3);
    }
    if (home->compmask [4] & BITL(30)){
      optfield_0[11] |= BITL(2);
    }
    if (home->compmask [4] & BITL(31)){
      optfield_0[11] |= BITL(1);
    }
    if (home->compmask [5] & BITL(0)){
      optfield_0[11] |= BITL(0);
    }
    if (home->compmask [5] & BITL(1)){
      optfield_0[10] |= BITL(31);
    }
    if (home->compmask [5] & BITL(2)){
      optfield_0[10] |= BITL(30);
    }
    if (home->compmask [5] & BITL(3)){
      optfield_0[10] |= BITL(29);
    }
    if (home->compmask [5] & BITL(4)){
      optfield_0[10] |= BITL(28);
    }
    if (home->compmask [5] & BITL(5)){
      optfield_0[10] |= BITL(27);
    }
    if (home->compmask [5] & BITL(6)){
      optfield_0[10] |= BITL(26);
    }
    if (home->compmask [5] & BITL(7)){
      optfield_0[10] |= BITL(25);
    }
    if (home->compmask [5] & BITL(8)){
      optfield_0[10] |= BITL(24);
    }
    if (home->compmask [5] & BITL(9)){
      optfield_0[10] |= BITL(23);
    }
    if (home->compmask [5] & BITL(10)){
      optfield_0[10] |= BITL(22);
    }
    if (home->compmask [5] & BITL(11)){
      optfield_0[10] |= BITL(21);
    }
    if (home->compmask [5] & BITL(12)){
      optfield_0[10] |= BITL(20);
    }
    if (home->compmask [5] & BITL(13)){
      optfield_0[10] |= BITL(19);
    }
    if (home->compmask [5] & BITL(14)){
      optfield_0[10] |= BITL(18);
    }
    if (home->compmask [5] & BITL(15)){
      optfield_0[10] |= BITL(17);
    }
    if (home->compmask [5] & BITL(16)){
      optfield_0[10] |= BITL(16);
    }
    if (home->compmask [5] & BITL(17)){
      optfield_0[10] |= BITL(15);
    }
    if (home->compmask [5] & BITL(18)){
      optfield_0[10] |= BITL(14);
    }
    if (home->compmask [5] & BITL(19)){
      optfield_0[10] |= BITL(13);
    }
    if (home->compmask [5] & BITL(20)){
      optfield_0[10] |= BITL(12);
    }
    if (home->compmask [5] & BITL(21)){
      optfield_0[10] |= BITL(11);
    }
    if (home->compmask [5] & BITL(22)){
      optfield_0[10] |= BITL(10);
    }
    if (home->compmask [5] & BITL(23)){
      optfield_0[10] |= BITL(9);
    }
    if (home->compmask [5] & BITL(24)){
      optfield_0[10] |= BITL(8);
    }
    if (home->compmask [5] & BITL(25)){
      optfield_0[10] |= BITL(7);
    }
    if (home->compmask [5] & BITL(26)){
      optfield_0[10] |= BITL(6);
    }
    if (home->compmask [5] & BITL(27)){
      optfield_0[10] |= BITL(5);
    }
    if (home->compmask [5] & BITL(28)){
      optfield_0[10] |= BITL(4);
    }
    if (home->compmask [5] & BITL(29)){
      optfield_0[10] |= BITL(3);
    }
    if (home->compmask [5] & BITL(30)){
      optfield_0[10] |= BITL(2);
    }
    if (home->compmask [5] & BITL(31)){
      optfield_0[10] |= BITL(1);
    }
    if (home->compmask [6] & BITL(0)){
      optfield_0[10] |= BITL(0);
    }
    if (home->compmask [6] & BITL(1)){
      optfield_0[9] |= BITL(31);
    }
    if (home->compmask [6] & BITL(2)){
      optfield_0[9] |= BITL(30);
    }
    if (home->compmask [6] & BITL(3)){
      optfield_0[9] |= BITL(29);
    }
    if (home->compmask [6] & BITL(4)){
      optfield_0[9] |= BITL(28);
    }
    if (home->compmask [6] & BITL(5)){
      optfield_0[9] |= BITL(27);
    }
    if (home->compmask [6] & BITL(6)){
      optfield_0[9] |= BITL(26);
    }
    if (home->compmask [6] & BITL(7)){
      optfield_0[9] |= BITL(25);
    }
    if (home->compmask [6] & BITL(8)){
      optfield_0[9] |= BITL(24);
    }
    if (home->compmask [6] & BITL(9)){
      optfield_0[9] |= BITL(23);
    }
    if (home->compmask [6] & BITL(10)){
      optfield_0[9] |= BITL(22);
    }
    if (home->compmask [6] & BITL(11)){
      optfield_0[9] |= BITL(21);
    }
    if (home->compmask [6] & BITL(12)){
      optfield_0[9] |= BITL(20);
    }
    if (home->compmask [6] & BITL(13)){
      optfield_0[9] |= BITL(19);
    }
    if (home->compmask [6] & BITL(14)){
      optfield_0[9] |= BITL(18);
    }
    if (home->compmask [6] & BITL(15)){
      optfield_0[9] |= BITL(17);
    }
    if (home->compmask [6] & BITL(16)){
      optfield_0[9] |= BITL(16);
    }
    if (home->compmask [6] & BITL(17)){
      optfield_0[9] |= BITL(15);
    }
    if (home->compmask [6] & BITL(18)){
      optfield_0[9] |= BITL(14);
    }
    if (home->compmask [6] & BITL(19)){
      optfield_0[9] |= BITL(13);
    }
    if (home->compmask [6] & BITL(20)){
      optfield_0[9] |= BITL(12);
    }
    if (home->compmask [6] & BITL(21)){
      optfield_0[9] |= BITL(11);
    }
    if (home->compmask [6] & BITL(22)){
      optfield_0[9] |= BITL(10);
    }
    if (home->compmask [6] & BITL(23)){
      optfield_0[9] |= BITL(9);
    }
    if (home->compmask [6] & BITL(24)){
      optfield_0[9] |= BITL(8);
    }
    if (home->compmask [6] & BITL(25)){
      optfield_0[9] |= BITL(7);
    }
    if (home->compmask [6] & BITL(26)){
      optfield_0[9] |= BITL(6);
    }
    if (home->compmask [6] & BITL(27)){
      optfield_0[9] |= BITL(5);
    }
    if (home->compmask [6] & BITL(28)){
      optfield_0[9] |= BITL(4);
    }
    if (home->compmask [6] & BITL(29)){
      optfield_0[9] |= BITL(3);
    }
    if (home->compmask [6] & BITL(30)){
      optfield_0[9] |= BITL(2);
    }
    if (home->compmask [6] & BITL(31)){
      optfield_0[9] |= BITL(1);
    }
    if (home->compmask [7] & BITL(0)){
      optfield_0[9] |= BITL(0);
    }
    if (home->compmask [7] & BITL(1)){
      optfield_0[8] |= BITL(31);
    }
    if (home->compmask [7] & BITL(2)){
      optfield_0[8] |= BITL(30);
    }
    if (home->compmask [7] & BITL(3)){
      optfield_0[8] |= BITL(29);
    }
    if (home->compmask [7] & BITL(4)){
      optfield_0[8] |= BITL(28);
    }
    if (home->compmask [7] & BITL(5)){
      optfield_0[8] |= BITL(27);
    }
    if (home->compmask [7] & BITL(6)){
      optfield_0[8] |= BITL(26);
    }
    if (home->compmask [7] & BITL(7)){
      optfield_0[8] |= BITL(25);
    }
    if (home->compmask [7] & BITL(8)){
      optfield_0[8] |= BITL(24);
    }
    if (home->compmask [7] & BITL(9)){
      optfield_0[8] |= BITL(23);
    }
    if (home->compmask [7] & BITL(10)){
      optfield_0[8] |= BITL(22);
    }
    if (home->compmask [7] & BITL(11)){
      optfield_0[8] |= BITL(21);
    }
    if (home->compmask [7] & BITL(12)){
      optfield_0[8] |= BITL(20);
    }
    if (home->compmask [7] & BITL(13)){
      optfield_0[8] |= BITL(19);
    }
    if (home->compmask [7] & BITL(14)){
      optfield_0[8] |= BITL(18);
    }
    if (home->compmask [7] & BITL(15)){
      optfield_0[8] |= BITL(17);
    }
    if (home->compmask [7] & BITL(16)){
      optfield_0[8] |= BITL(16);
    }
    if (home->compmask [7] & BITL(17)){
      optfield_0[8] |= BITL(15);
    }
    if (home->compmask [7] & BITL(18)){
      optfield_0[8] |= BITL(14);
    }
    if (home->compmask [7] & BITL(19)){
      optfield_0[8] |= BITL(13);
    }
    if (home->compmask [7] & BITL(20)){
      optfield_0[8] |= BITL(12);
    }
    if (home->compmask [7] & BITL(21)){
      optfield_0[8] |= BITL(11);
    }
    if (home->compmask [7] & BITL(22)){
      optfield_0[8] |= BITL(10);
    }
    if (home->compmask [7] & BITL(23)){
      optfield_0[8] |= BITL(9);
    }
    if (home->compmask [7] & BITL(24)){
      optfield_0[8] |= BITL(8);
    }
    if (home->compmask [7] & BITL(25)){
      optfield_0[8] |= BITL(7);
    }
    if (home->compmask [7] & BITL(26)){
      optfield_0[8] |= BITL(6);
    }
    if (home->compmask [7] & BITL(27)){
      optfield_0[8] |= BITL(5);
    }
    if (home->compmask [7] & BITL(28)){
      optfield_0[8] |= BITL(4);
    }
    if (home->compmask [7] & BITL(29)){
      optfield_0[8] |= BITL(3);
    }
    if (home->compmask [7] & BITL(30)){
      optfield_0[8] |= BITL(2);
    }
    if (home->compmask [7] & BITL(31)){
      optfield_0[8] |= BITL(1);
    }
    if (home->compmask [8] & BITL(0)){
      optfield_0[8] |= BITL(0);
    }
    if (home->compmask [8] & BITL(1)){
      optfield_0[7] |= BITL(31);
    }
    if (home->compmask [8] & BITL(2)){
      optfield_0[7] |= BITL(30);
    }
    if (home->compmask [8] & BITL(3)){
      optfield_0[7] |= BITL(29);
    }
    if (home->compmask [8] & BITL(4)){
      optfield_0[7] |= BITL(28);
    }
    if (home->compmask [8] & BITL(5)){
      optfield_0[7] |= BITL(27);
    }
    if (home->compmask [8] & BITL(6)){
      optfield_0[7] |= BITL(26);
    }
    if (home->compmask [8] & BITL(7)){
      optfield_0[7] |= BITL(25);
    }
    if (home->compmask [8] & BITL(8)){
      optfield_0[7] |= BITL(24);
    }
    if (home->compmask [8] & BITL(9)){
      optfield_0[7] |= BITL(23);
    }
    if (home->compmask [8] & BITL(10)){
      optfield_0[7] |= BITL(22);
    }
    if (home->compmask [8] & BITL(11)){
      optfield_0[7] |= BITL(21);
    }
    if (home->compmask [8] & BITL(12)){
      optfield_0[7] |= BITL(20);
    }
    if (home->compmask [8] & BITL(13)){
      optfield_0[7] |= BITL(19);
    }
    if (home->compmask [8] & BITL(14)){
      optfield_0[7] |= BITL(18);
    }
    if (home->compmask [8] & BITL(15)){
      optfield_0[7] |= BITL(17);
    }
    if (home->compmask [8] & BITL(16)){
      optfield_0[7] |= BITL(16);
    }
    if (home->compmask [8] & BITL(17)){
      optfield_0[7] |= BITL(15);
    }
    if (home->compmask [8] & BITL(18)){
      optfield_0[7] |= BITL(14);
    }
    if (home->compmask [8] & BITL(19)){
      optfield_0[7] |= BITL(13);
    }
    if (home->compmask [8] & BITL(20)){
      optfield_0[7] |= BITL(12);
    }
    if (home->compmask [8] & BITL(21)){
      optfield_0[7] |= BITL(11);
    }
    if (home->compmask [8] & BITL(22)){
      optfield_0[7] |= BITL(10);
    }
    if (home->compmask [8] & BITL(23)){
      optfield_0[7] |= BITL(9);
    }
    if (home->compmask [8] & BITL(24)){
      optfield_0[7] |= BITL(8);
    }
    if (home->compmask [8] & BITL(25)){
      optfield_0[7] |= BITL(7);
    }
    if (home->compmask [8] & BITL(26)){
      optfield_0[7] |= BITL(6);
    }
    if (home->compmask [8] & BITL(27)){
      optfield_0[7] |= BITL(5);
    }
    if (home->compmask [8] & BITL(28)){
      optfield_0[7] |= BITL(4);
    }
    if (home->compmask [8] & BITL(29)){
      optfield_0[7] |= BITL(3);
    }
    if (home->compmask [8] & BITL(30)){
      optfield_0[7] |= BITL(2);
    }
    if (home->compmask [8] & BITL(31)){
      optfield_0[7] |= BITL(1);
    }
    if (home->compmask [9] & BITL(0)){
      optfield_0[7] |= BITL(0);
    }
    if (home->compmask [9] & BITL(1)){
      optfield_0[6] |= BITL(31);
    }
    if (home->compmask [9] & BITL(2)){
      optfield_0[6] |= BITL(30);
    }
    if (home->compmask [9] & BITL(3)){
      optfield_0[6] |= BITL(29);
    }
    if (home->compmask [9] & BITL(4)){
      optfield_0[6] |= BITL(28);
    }
    if (home->compmask [9] & BITL(5)){
      optfield_0[6] |= BITL(27);
    }
    if (home->compmask [9] & BITL(6)){
      optfield_0[6] |= BITL(26);
    }
    if (home->compmask [9] & BITL(7)){
      optfield_0[6] |= BITL(25);
    }
    if (home->compmask [9] & BITL(8)){
      optfield_0[6] |= BITL(24);
    }
    if (home->compmask [9] & BITL(9)){
      optfield_0[6] |= BITL(23);
    }
    if (home->compmask [9] & BITL(10)){
      optfield_0[6] |= BITL(22);
    }
    if (home->compmask [9] & BITL(11)){
      optfield_0[6] |= BITL(21);
    }
    if (home->compmask [9] & BITL(12)){
      optfield_0[6] |= BITL(20);
    }
    if (home->compmask [9] & BITL(13)){
      optfield_0[6] |= BITL(19);
    }
    if (home->compmask [9] & BITL(14)){
      optfield_0[6] |= BITL(18);
    }
    if (home->compmask [9] & BITL(15)){
      optfield_0[6] |= BITL(17);
    }
    if (home->compmask [9] & BITL(16)){
      optfield_0[6] |= BITL(16);
    }
    if (home->compmask [9] & BITL(17)){
      optfield_0[6] |= BITL(15);
    }
    if (home->compmask [9] & BITL(18)){
      optfield_0[6] |= BITL(14);
    }
    if (home->compmask [9] & BITL(19)){
      optfield_0[6] |= BITL(13);
    }
    if (home->compmask [9] & BITL(20)){
      optfield_0[6] |= BITL(12);
    }
    if (home->compmask [9] & BITL(21)){
      optfield_0[6] |= BITL(11);
    }
    if (home->compmask [9] & BITL(22)){
      optfield_0[6] |= BITL(10);
    }
    if (home->compmask [9] & BITL(23)){
      optfield_0[6] |= BITL(9);
    }
    if (home->compmask [9] & BITL(24)){
      optfield_0[6] |= BITL(8);
    }
    if (home->compmask [9] & BITL(25)){
      optfield_0[6] |= BITL(7);
    }
    if (home->compmask [9] & BITL(26)){
      optfield_0[6] |= BITL(6);
    }
    if (home->compmask [9] & BITL(27)){
      optfield_0[6] |= BITL(5);
    }
    if (home->compmask [9] & BITL(28)){
      optfield_0[6] |= BITL(4);
    }
    if (home->compmask [9] & BITL(29)){
      optfield_0[6] |= BITL(3);
    }
    if (home->compmask [9] & BITL(30)){
      optfield_0[6] |= BITL(2);
    }
    if (home->compmask [9] & BITL(31)){
      optfield_0[6] |= BITL(1);
    }
    if (home->compmask [10] & BITL(0)){
      optfield_0[6] |= BITL(0);
    }
    if (home->compmask [10] & BITL(1)){
      optfield_0[5] |= BITL(31);
    }
    if (home->compmask [10] & BITL(2)){
      optfield_0[5] |= BITL(30);
    }
    if (home->compmask [10] & BITL(3)){
      optfield_0[5] |= BITL(29);
    }
    if (home->compmask [10] & BITL(4)){
      optfield_0[5] |= BITL(28);
    }
    if (home->compmask [10] & BITL(5)){
      optfield_0[5] |= BITL(27);
    }
    if (home->compmask [10] & BITL(6)){
      optfield_0[5] |= BITL(26);
    }
    if (home->compmask [10] & BITL(7)){
      optfield_0[5] |= BITL(25);
    }
    if (home->compmask [10] & BITL(8)){
      optfield_0[5] |= BITL(24);
    }
    if (home->compmask [10] & BITL(9)){
      optfield_0[5] |= BITL(23);
    }
    if (home->compmask [10] & BITL(10)){
      optfield_0[5] |= BITL(22);
    }
    if (home->compmask [10] & BITL(11)){
      optfield_0[5] |= BITL(21);
    }
    if (home->compmask [10] & BITL(12)){
      optfield_0[5] |= BITL(20);
    }
    if (home->compmask [10] & BITL(13)){
      optfield_0[5] |= BITL(19);
    }
    if (home->compmask [10] & BITL(14)){
      optfield_0[5] |= BITL(18);
    }
    if (home->compmask [10] & BITL(15)){
      optfield_0[5] |= BITL(17);
    }
    if (home->compmask [10] & BITL(16)){
      optfield_0[5] |= BITL(16);
    }
    if (home->compmask [10] & BITL(17)){
      optfield_0[5] |= BITL(15);
    }
    if (home->compmask [10] & BITL(18)){
      optfield_0[5] |= BITL(14);
    }
    if (home->compmask [10] & BITL(19)){
      optfield_0[5] |= BITL(13);
    }
    if (home->compmask [10] & BITL(20)){
      optfield_0[5] |= BITL(12);
    }
    if (home->compmask [10] & BITL(21)){
      optfield_0[5] |= BITL(11);
    }
    if (home->compmask [10] & BITL(22)){
      optfield_0[5] |= BITL(10);
    }
    if (home->compmask [10] & BITL(23)){
      optfield_0[5] |= BITL(9);
    }
    if (home->compmask [10] & BITL(24)){
      optfield_0[5] |= BITL(8);
    }
    if (home->compmask [10] & BITL(25)){
      optfield_0[5] |= BITL(7);
    }
    if (home->compmask [10] & BITL(26)){
      optfield_0[5] |= BITL(6);
    }
    if (home->compmask [10] & BITL(27)){
      optfield_0[5] |= BITL(5);
    }
    if (home->compmask [10] & BITL(28)){
      optfield_0[5] |= BITL(4);
    }
    if (home->compmask [10] & BITL(29)){
      optfield_0[5] |= BITL(3);
    }
    if (home->compmask [10] & BITL(30)){
      optfield_0[5] |= BITL(2);
    }
    if (home->compmask [10] & BITL(31)){
      optfield_0[5] |= BITL(1);
    }
    if (home->compmask [11] & BITL(0)){
      optfield_0[5] |= BITL(0);
    }
    if (home->compmask [11] & BITL(1)){
      optfield_0[4] |= BITL(31);
    }
    if (home->compmask [11] & BITL(2)){
      optfield_0[4] |= BITL(30);
    }
    if (home->compmask [11] & BITL(3)){
      optfield_0[4] |= BITL(29);
    }
    if (home->compmask [11] & BITL(4)){
      optfield_0[4] |= BITL(28);
    }
    if (home->compmask [11] & BITL(5)){
      optfield_0[4] |= BITL(27);
    }
    if (home->compmask [11] & BITL(6)){
      optfield_0[4] |= BITL(26);
    }
    if (home->compmask [11] & BITL(7)){
      optfield_0[4] |= BITL(25);
    }
    if (home->compmask [11] & BITL(8)){
      optfield_0[4] |= BITL(24);
    }
    if (home->compmask [11] & BITL(9)){
      optfield_0[4] |= BITL(23);
    }
    if (home->compmask [11] & BITL(10)){
      optfield_0[4] |= BITL(22);
    }
    if (home->compmask [11] & BITL(11)){
      optfield_0[4] |= BITL(21);
    }
    if (home->compmask [11] & BITL(12)){
      optfield_0[4] |= BITL(20);
    }
    if (home->compmask [11] & BITL(13)){
      optfield_0[4] |= BITL(19);
    }
    if (home->compmask [11] & BITL(14)){
      optfield_0[4] |= BITL(18);
    }
    if (home->compmask [11] & BITL(15)){
      optfield_0[4] |= BITL(17);
    }
    if (home->compmask [11] & BITL(16)){
      optfield_0[4] |= BITL(16);
    }
    if (home->compmask [11] & BITL(17)){
      optfield_0[4] |= BITL(15);
    }
    if (home->compmask [11] & BITL(18)){
      optfield_0[4] |= BITL(14);
    }
    if (home->compmask [11] & BITL(19)){
      optfield_0[4] |= BITL(13);
    }
    if (home->compmask [11] & BITL(20)){
      optfield_0[4] |= BITL(12);
    }
    if (home->compmask [11] & BITL(21)){
      optfield_0[4] |= BITL(11);
    }
    if (home->compmask [11] & BITL(22)){
      optfield_0[4] |= BITL(10);
    }
    if (home->compmask [11] & BITL(23)){
      optfield_0[4] |= BITL(9);
    }
    if (home->compmask [11] & BITL(24)){
      optfield_0[4] |= BITL(8);
    }
    if (home->compmask [11] & BITL(25)){
      optfield_0[4] |= BITL(7);
    }
    if (home->compmask [11] & BITL(26)){
      optfield_0[4] |= BITL(6);
    }
    if (home->compmask [11] & BITL(27)){
      optfield_0[4] |= BITL(5);
    }
    if (home->compmask [11] & BITL(28)){
      optfield_0[4] |= BITL(4);
    }
    if (home->compmask [11] & BITL(29)){
      optfield_0[4] |= BITL(3);
    }
    if (home->compmask [11] & BITL(30)){
      optfield_0[4] |= BITL(2);
    }
    if (home->compmask [11] & BITL(31)){
      optfield_0[4] |= BITL(1);
    }
    if (home->compmask [12] & BITL(0)){
      optfield_0[4] |= BITL(0);
    }
    if (home->compmask [12] & BITL(1)){
      optfield_0[3] |= BITL(31);
    }
    if (home->compmask [12] & BITL(2)){
      optfield_0[3] |= BITL(30);
    }
    if (home->compmask [12] & BITL(3)){
      optfield_0[3] |= BITL(29);
    }
    if (home->compmask [12] & BITL(4)){
      optfield_0[3] |= BITL(28);
    }
    if (home->compmask [12] & BITL(5)){
      optfield_0[3] |= BITL(27);
    }
    if (home->compmask [12] & BITL(6)){
      optfield_0[3] |= BITL(26);
    }
    if (home->compmask [12] & BITL(7)){
      optfield_0[3] |= BITL(25);
    }
    if (home->compmask [12] & BITL(8)){
      optfield_0[3] |= BITL(24);
    }
    if (home->compmask [12] & BITL(9)){
      optfield_0[3] |= BITL(23);
    }
    if (home->compmask [12] & BITL(10)){
      optfield_0[3] |= BITL(22);
    }
    if (home->compmask [12] & BITL(11)){
      optfield_0[3] |= BITL(21);
    }
    if (home->compmask [12] & BITL(12)){
      optfield_0[3] |= BITL(20);
    }
    if (home->compmask [12] & BITL(13)){
      optfield_0[3] |= BITL(19);
    }
    if (home->compmask [12] & BITL(14)){
      optfield_0[3] |= BITL(18);
    }
    if (home->compmask [12] & BITL(15)){
      optfield_0[3] |= BITL(17);
    }
    if (home->compmask [12] & BITL(16)){
      optfield_0[3] |= BITL(16);
    }
    if (home->compmask [12] & BITL(17)){
      optfield_0[3] |= BITL(15);
    }
    if (home->compmask [12] & BITL(18)){
      optfield_0[3] |= BITL(14);
    }
    if (home->compmask [12] & BITL(19)){
      optfield_0[3] |= BITL(13);
    }
    if (home->compmask [12] & BITL(20)){
      optfield_0[3] |= BITL(12);
    }
    if (home->compmask [12] & BITL(21)){
      optfield_0[3] |= BITL(11);
    }
    if (home->compmask [12] & BITL(22)){
      optfield_0[3] |= BITL(10);
    }
    if (home->compmask [12] & BITL(23)){
      optfield_0[3] |= BITL(9);
    }
    if (home->compmask [12] & BITL(24)){
      optfield_0[3] |= BITL(8);
    }
    if (home->compmask [12] & BITL(25)){
      optfield_0[3] |= BITL(7);
    }
    if (home->compmask [12] & BITL(26)){
      optfield_0[3] |= BITL(6);
    }
    if (home->compmask [12] & BITL(27)){
      optfield_0[3] |= BITL(5);
    }
    if (home->compmask [12] & BITL(28)){
      optfield_0[3] |= BITL(4);
    }
    if (home->compmask [12] & BITL(29)){
      optfield_0[3] |= BITL(3);
    }
    if (home->compmask [12] & BITL(30)){
      optfield_0[3] |= BITL(2);
    }
    if (home->compmask [12] & BITL(31)){
      optfield_0[3] |= BITL(1);
    }
    if (home->compmask [13] & BITL(0)){
      optfield_0[3] |= BITL(0);
    }
    if (home->compmask [13] & BITL(1)){
      optfield_0[2] |= BITL(31);
    }
    if (home->compmask [13] & BITL(2)){
      optfield_0[2] |= BITL(30);
    }
    if (home->compmask [13] & BITL(3)){
      optfield_0[2] |= BITL(29);
    }
    if (home->compmask [13] & BITL(4)){
      optfield_0[2] |= BITL(28);
    }
    if (home->compmask [13] & BITL(5)){
      optfield_0[2] |= BITL(27);
    }
    if (home->compmask [13] & BITL(6)){
      optfield_0[2] |= BITL(26);
    }
    if (home->compmask [13] & BITL(7)){
      optfield_0[2] |= BITL(25);
    }
    if (home->compmask [13] & BITL(8)){
      optfield_0[2] |= BITL(24);
    }
    if (home->compmask [13] & BITL(9)){
      optfield_0[2] |= BITL(23);
    }
    if (home->compmask [13] & BITL(10)){
      optfield_0[2] |= BITL(22);
    }
    if (home->compmask [13] & BITL(11)){
      optfield_0[2] |= BITL(21);
    }
    if (home->compmask [13] & BITL(12)){
      optfield_0[2] |= BITL(20);
    }
    if (home->compmask [13] & BITL(13)){
      optfield_0[2] |= BITL(19);
    }
    if (home->compmask [13] & BITL(14)){
      optfield_0[2] |= BITL(18);
    }
    if (home->compmask [13] & BITL(15)){
      optfield_0[2] |= BITL(17);
    }
    if (home->compmask [13] & BITL(16)){
      optfield_0[2] |= BITL(16);
    }
    if (home->compmask [13] & BITL(17)){
      optfield_0[2] |= BITL(15);
    }
    if (home->compmask [13] & BITL(18)){
      optfield_0[2] |= BITL(14);
    }
    if (home->compmask [13] & BITL(19)){
      optfield_0[2] |= BITL(13);
    }
    if (home->compmask [13] & BITL(20)){
      optfield_0[2] |= BITL(12);
    }
    if (home->compmask [13] & BITL(21)){
      optfield_0[2] |= BITL(11);
    }
    if (home->compmask [13] & BITL(22)){
      optfield_0[2] |= BITL(10);
    }
    if (home->compmask [13] & BITL(23)){
      optfield_0[2] |= BITL(9);
    }
    if (home->compmask [13] & BITL(24)){
      optfield_0[2] |= BITL(8);
    }
    if (home->compmask [13] & BITL(25)){
      optfield_0[2] |= BITL(7);
    }
    if (home->compmask [13] & BITL(26)){
      optfield_0[2] |= BITL(6);
    }
    if (home->compmask [13] & BITL(27)){
      optfield_0[2] |= BITL(5);
    }
    if (home->compmask [13] & BITL(28)){
      optfield_0[2] |= BITL(4);
    }
    if (home->compmask [13] & BITL(29)){
      optfield_0[2] |= BITL(3);
    }
    if (home->compmask [13] & BITL(30)){
      optfield_0[2] |= BITL(2);
    }
    if (home->compmask [13] & BITL(31)){
      optfield_0[2] |= BITL(1);
    }
    if (home->compmask [14] & BITL(0)){
      optfield_0[2] |= BITL(0);
    }
    if (home->compmask [14] & BITL(1)){
      optfield_0[1] |= BITL(31);
    }
    if (home->compmask [14] & BITL(2)){
      optfield_0[1] |= BITL(30);
    }
    if (home->compmask [14] & BITL(3)){
      optfield_0[1] |= BITL(29);
    }
    if (home->compmask [14] & BITL(4)){
      optfield_0[1] |= BITL(28);
    }
    if (home->compmask [14] & BITL(5)){
      optfield_0[1] |= BITL(27);
    }
    if (home->compmask [14] & BITL(6)){
      optfield_0[1] |= BITL(26);
    }
    if (home->compmask [14] & BITL(7)){
      optfield_0[1] |= BITL(25);
    }
    if (home->compmask [14] & BITL(8)){
      optfield_0[1] |= BITL(24);
    }
    if (home->compmask [14] & BITL(9)){
      optfield_0[1] |= BITL(23);
    }
    if (home->compmask [14] & BITL(10)){
      optfield_0[1] |= BITL(22);
    }
    if (home->compmask [14] & BITL(11)){
      optfield_0[1] |= BITL(21);
    }
    if (home->compmask [14] & BITL(12)){
      optfield_0[1] |= BITL(20);
    }
    if (home->compmask [14] & BITL(13)){
      optfield_0[1] |= BITL(19);
    }
    if (home->compmask [14] & BITL(14)){
      optfield_0[1] |= BITL(18);
    }
    if (home->compmask [14] & BITL(15)){
      optfield_0[1] |= BITL(17);
    }
    if (home->compmask [14] & BITL(16)){
      optfield_0[1] |= BITL(16);
    }
    if (home->compmask [14] & BITL(17)){
      optfield_0[1] |= BITL(15);
    }
    if (home->compmask [14] & BITL(18)){
      optfield_0[1] |= BITL(14);
    }
    if (home->compmask [14] & BITL(19)){
      optfield_0[1] |= BITL(13);
    }
    if (home->compmask [14] & BITL(20)){
      optfield_0[1] |= BITL(12);
    }
    if (home->compmask [14] & BITL(21)){
      optfield_0[1] |= BITL(11);
    }
    if (home->compmask [14] & BITL(22)){
      optfield_0[1] |= BITL(10);
    }
    if (home->compmask [14] & BITL(23)){
      optfield_0[1] |= BITL(9);
    }
    if (home->compmask [14] & BITL(24)){
      optfield_0[1] |= BITL(8);
    }
    if (home->compmask [14] & BITL(25)){
      optfield_0[1] |= BITL(7);
    }
    if (home->compmask [14] & BITL(26)){
      optfield_0[1] |= BITL(6);
    }
    if (home->compmask [14] & BITL(27)){
      optfield_0[1] |= BITL(5);
    }
    if (home->compmask [14] & BITL(28)){
      optfield_0[1] |= BITL(4);
    }
    if (home->compmask [14] & BITL(29)){
      optfield_0[1] |= BITL(3);
    }
    if (home->compmask [14] & BITL(30)){
      optfield_0[1] |= BITL(2);
    }
    if (home->compmask [14] & BITL(31)){
      optfield_0[1] |= BITL(1);
    }
    if (home->compmask [15] & BITL(0)){
      optfield_0[1] |= BITL(0);
    }
    if (home->compmask [15] & BITL(1)){
      optfield_0[0] |= BITL(31);
    }
    if (home->compmask [15] & BITL(2)){
      optfield_0[0] |= BITL(30);
    }
    if (home->compmask [15] & BITL(3)){
      optfield_0[0] |= BITL(29);
    }
    if (home->compmask [15] & BITL(4)){
      optfield_0[0] |= BITL(28);
    }
    if (home->compmask [15] & BITL(5)){
      optfield_0[0] |= BITL(27);
    }
    if (home->compmask [15] & BITL(6)){
      optfield_0[0] |= BITL(26);
    }
    if (home->compmask [15] & BITL(7)){
      optfield_0[0] |= BITL(25);
    }
    if (home->compmask [15] & BITL(8)){
      optfield_0[0] |= BITL(24);
    }
    if (home->compmask [15] & BITL(9)){
      optfield_0[0] |= BITL(23);
    }
    if (home->compmask [15] & BITL(10)){
      optfield_0[0] |= BITL(22);
    }
    if (home->compmask [15] & BITL(11)){
      optfield_0[0] |= BITL(21);
    }
    if (home->compmask [15] & BITL(12)){
      optfield_0[0] |= BITL(20);
    }
    if (home->compmask [15] & BITL(13)){
      optfield_0[0] |= BITL(19);
    }
    if (home->compmask [15] & BITL(14)){
      optfield_0[0] |= BITL(18);
    }
    if (home->compmask [15] & BITL(15)){
      optfield_0[0] |= BITL(17);
    }
    if (home->compmask [15] & BITL(16)){
      optfield_0[0] |= BITL(16);
    }
    if (home->compmask [15] & BITL(17)){
      optfield_0[0] |= BITL(15);
    }
    if (home->compmask [15] & BITL(18)){
      optfield_0[0] |= BITL(14);
    }
    if (home->compmask [15] & BITL(19)){
      optfield_0[0] |= BITL(13);
    }
    if (home->compmask [15] & BITL(20)){
      optfield_0[0] |= BITL(12);
    }
    if (home->compmask [15] & BITL(21)){
      optfield_0[0] |= BITL(11);
    }
    if (home->compmask [15] & BITL(22)){
      optfield_0[0] |= BITL(10);
    }
    if (home->compmask [15] & BITL(23)){
      optfield_0[0] |= BITL(9);
    }
    if (home->compmask [15] & BITL(24)){
      optfield_0[0] |= BITL(8);
    }
    if (home->compmask [15] & BITL(25)){
      optfield_0[0] |= BITL(7);
    }
    if (home->compmask [15] & BITL(26)){
      optfield_0[0] |= BITL(6);
    }
    if (home->compmask [15] & BITL(27)){
      optfield_0[0] |= BITL(5);
    }
    if (home->compmask [15] & BITL(28)){
      optfield_0[0] |= BITL(4);
    }
    if (home->compmask [15] & BITL(29)){
      optfield_0[0] |= BITL(3);
    }
    if (home->compmask [15] & BITL(30)){
      optfield_0[0] |= BITL(2);
    }
    if (home->compmask [15] & BITL(31)){
      optfield_0[0] |= BITL(1);
    }
    if (home->compmask [16] & BITL(0)){
      optfield_0[0] |= BITL(0);
    }
    pe_optField (optfield_0[16], 1);
    pe_optField (optfield_0[15], 32);
    pe_optField (optfield_0[14], 32);
    pe_optField (optfield_0[13], 32);
    pe_optField (optfield_0[12], 32);
    pe_optField (optfield_0[11], 32);
    pe_optField (optfield_0[10], 32);
    pe_optField (optfield_0[9], 32);
    pe_optField (optfield_0[8], 32);
    pe_optField (optfield_0[7], 32);
    pe_optField (optfield_0[6], 32);
    pe_optField (optfield_0[5], 32);
    pe_optField (optfield_0[4], 32);
    pe_optField (optfield_0[3], 32);
    pe_optField (optfield_0[2], 32);
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
  if ((home->compmask [2] & BITL(1))){
    pe_Boolean (home->c65_fld);
  }
  if ((home->compmask [2] & BITL(2))){
    pe_Boolean (home->c66_fld);
  }
  if ((home->compmask [2] & BITL(3))){
    pe_Boolean (home->c67_fld);
  }
  if ((home->compmask [2] & BITL(4))){
    pe_Boolean (home->c68_fld);
  }
  if ((home->compmask [2] & BITL(5))){
    pe_Boolean (home->c69_fld);
  }
  if ((home->compmask [2] & BITL(6))){
    pe_Boolean (home->c70_fld);
  }
  if ((home->compmask [2] & BITL(7))){
    pe_Boolean (home->c71_fld);
  }
  if ((home->compmask [2] & BITL(8))){
    pe_Boolean (home->c72_fld);
  }
  if ((home->compmask [2] & BITL(9))){
    pe_Boolean (home->c73_fld);
  }
  if ((home->compmask [2] & BITL(10))){
    pe_Boolean (home->c74_fld);
  }
  if ((home->compmask [2] & BITL(11))){
    pe_Boolean (home->c75_fld);
  }
  if ((home->compmask [2] & BITL(12))){
    pe_Boolean (home->c76_fld);
  }
  if ((home->compmask [2] & BITL(13))){
    pe_Boolean (home->c77_fld);
  }
  if ((home->compmask [2] & BITL(14))){
    pe_Boolean (home->c78_fld);
  }
  if ((home->compmask [2] & BITL(15))){
    pe_Boolean (home->c79_fld);
  }
  if ((home->compmask [2] & BITL(16))){
    pe_Boolean (home->c80_fld);
  }
  if ((home->compmask [2] & BITL(17))){
    pe_Boolean (home->c81_fld);
  }
  if ((home->compmask [2] & BITL(18))){
    pe_Boolean (home->c82_fld);
  }
  if ((home->compmask [2] & BITL(19))){
    pe_Boolean (home->c83_fld);
  }
  if ((home->compmask [2] & BITL(20))){
    pe_Boolean (home->c84_fld);
  }
  if ((home->compmask [2] & BITL(21))){
    pe_Boolean (home->c85_fld);
  }
  if ((home->compmask [2] & BITL(22))){
    pe_Boolean (home->c86_fld);
  }
  if ((home->compmask [2] & BITL(23))){
    pe_Boolean (home->c87_fld);
  }
  if ((home->compmask [2] & BITL(24))){
    pe_Boolean (home->c88_fld);
  }
  if ((home->compmask [2] & BITL(25))){
    pe_Boolean (home->c89_fld);
  }
  if ((home->compmask [2] & BITL(26))){
    pe_Boolean (home->c90_fld);
  }
  if ((home->compmask [2] & BITL(27))){
    pe_Boolean (home->c91_fld);
  }
  if ((home->compmask [2] & BITL(28))){
    pe_Boolean (home->c92_fld);
  }
  if ((home->compmask [2] & BITL(29))){
    pe_Boolean (home->c93_fld);
  }
  if ((home->compmask [2] & BITL(30))){
    pe_Boolean (home->c94_fld);
  }
  if ((home->compmask [2] & BITL(31))){
    pe_Boolean (home->c95_fld);
  }
  if ((home->compmask [3] & BITL(0))){
    pe_Boolean (home->c96_fld);
  }
  if ((home->compmask [3] & BITL(1))){
    pe_Boolean (home->c97_fld);
  }
  if ((home->compmask [3] & BITL(2))){
    pe_Boolean (home->c98_fld);
  }
  if ((home->compmask [3] & BITL(3))){
    pe_Boolean (home->c99_fld);
  }
  if ((home->compmask [3] & BITL(4))){
    pe_Boolean (home->c100_fld);
  }
  if ((home->compmask [3] & BITL(5))){
    pe_Boolean (home->c101_fld);
  }
  if ((home->compmask [3] & BITL(6))){
    pe_Boolean (home->c102_fld);
  }
  if ((home->compmask [3] & BITL(7))){
    pe_Boolean (home->c103_fld);
  }
  if ((home->compmask [3] & BITL(8))){
    pe_Boolean (home->c104_fld);
  }
  if ((home->compmask [3] & BITL(9))){
    pe_Boolean (home->c105_fld);
  }
  if ((home->compmask [3] & BITL(10))){
    pe_Boolean (home->c106_fld);
  }
  if ((home->compmask [3] & BITL(11))){
    pe_Boolean (home->c107_fld);
  }
  if ((home->compmask [3] & BITL(12))){
    pe_Boolean (home->c108_fld);
  }
  if ((home->compmask [3] & BITL(13))){
    pe_Boolean (home->c109_fld);
  }
  if ((home->compmask [3] & BITL(14))){
    pe_Boolean (home->c110_fld);
  }
  if ((home->compmask [3] & BITL(15))){
    pe_Boolean (home->c111_fld);
  }
  if ((home->compmask [3] & BITL(16))){
    pe_Boolean (home->c112_fld);
  }
  if ((home->compmask [3] & BITL(17))){
    pe_Boolean (home->c113_fld);
  }
  if ((home->compmask [3] & BITL(18))){
    pe_Boolean (home->c114_fld);
  }
  if ((home->compmask [3] & BITL(19))){
    pe_Boolean (home->c115_fld);
  }
  if ((home->compmask [3] & BITL(20))){
    pe_Boolean (home->c116_fld);
  }
  if ((home->compmask [3] & BITL(21))){
    pe_Boolean (home->c117_fld);
  }
  if ((home->compmask [3] & BITL(22))){
    pe_Boolean (home->c118_fld);
  }
  if ((home->compmask [3] & BITL(23))){
    pe_Boolean (home->c119_fld);
  }
  if ((home->compmask [3] & BITL(24))){
    pe_Boolean (home->c120_fld);
  }
  if ((home->compmask [3] & BITL(25))){
    pe_Boolean (home->c121_fld);
  }
  if ((home->compmask [3] & BITL(26))){
    pe_Boolean (home->c122_fld);
  }
  if ((home->compmask [3] & BITL(27))){
    pe_Boolean (home->c123_fld);
  }
  if ((home->compmask [3] & BITL(28))){
    pe_Boolean (home->c124_fld);
  }
  if ((home->compmask [3] & BITL(29))){
    pe_Boolean (home->c125_fld);
  }
  if ((home->compmask [3] & BITL(30))){
    pe_Boolean (home->c126_fld);
  }
  if ((home->compmask [3] & BITL(31))){
    pe_Boolean (home->c127_fld);
  }
  if ((home->compmask [4] & BITL(0))){
    pe_Boolean (home->c128_fld);
  }
  if ((home->compmask [4] & BITL(1))){
    pe_Boolean (home->c129_fld);
  }
  if ((home->compmask [4] & BITL(2))){
    pe_Boolean (home->c130_fld);
  }
  if ((home->compmask [4] & BITL(3))){
    pe_Boolean (home->c131_fld);
  }
  if ((home->compmask [4] & BITL(4))){
    pe_Boolean (home->c132_fld);
  }
  if ((home->compmask [4] & BITL(5))){
    pe_Boolean (home->c133_fld);
  }
  if ((home->compmask [4] & BITL(6))){
    pe_Boolean (home->c134_fld);
  }
  if ((home->compmask [4] & BITL(7))){
    pe_Boolean (home->c135_fld);
  }
  if ((home->compmask [4] & BITL(8))){
    pe_Boolean (home->c136_fld);
  }
  if ((home->compmask [4] & BITL(9))){
    pe_Boolean (home->c137_fld);
  }
  if ((home->compmask [4] & BITL(10))){
    pe_Boolean (home->c138_fld);
  }
  if ((home->compmask [4] & BITL(11))){
    pe_Boolean (home->c139_fld);
  }
  if ((home->compmask [4] & BITL(12))){
    pe_Boolean (home->c140_fld);
  }
  if ((home->compmask [4] & BITL(13))){
    pe_Boolean (home->c141_fld);
  }
  if ((home->compmask [4] & BITL(14))){
    pe_Boolean (home->c142_fld);
  }
  if ((home->compmask [4] & BITL(15))){
    pe_Boolean (home->c143_fld);
  }
  if ((home->compmask [4] & BITL(16))){
    pe_Boolean (home->c144_fld);
  }
  if ((home->compmask [4] & BITL(17))){
    pe_Boolean (home->c145_fld);
  }
  if ((home->compmask [4] & BITL(18))){
    pe_Boolean (home->c146_fld);
  }
  if ((home->compmask [4] & BITL(19))){
    pe_Boolean (home->c147_fld);
  }
  if ((home->compmask [4] & BITL(20))){
    pe_Boolean (home->c148_fld);
  }
  if ((home->compmask [4] & BITL(21))){
    pe_Boolean (home->c149_fld);
  }
  if ((home->compmask [4] & BITL(22))){
    pe_Boolean (home->c150_fld);
  }
  if ((home->compmask [4] & BITL(23))){
    pe_Boolean (home->c151_fld);
  }
  if ((home->compmask [4] & BITL(24))){
    pe_Boolean (home->c152_fld);
  }
  if ((home->compmask [4] & BITL(25))){
    pe_Boolean (home->c153_fld);
  }
  if ((home->compmask [4] & BITL(26))){
    pe_Boolean (home->c154_fld);
  }
  if ((home->compmask [4] & BITL(27))){
    pe_Boolean (home->c155_fld);
  }
  if ((home->compmask [4] & BITL(28))){
    pe_Boolean (home->c156_fld);
  }
  if ((home->compmask [4] & BITL(29))){
    pe_Boolean (home->c157_fld);
  }
  if ((home->compmask [4] & BITL(30))){
    pe_Boolean (home->c158_fld);
  }
  if ((home->compmask [4] & BITL(31))){
    pe_Boolean (home->c159_fld);
  }
  if ((home->compmask [5] & BITL(0))){
    pe_Boolean (home->c160_fld);
  }
  if ((home->compmask [5] & BITL(1))){
    pe_Boolean (home->c161_fld);
  }
  if ((home->compmask [5] & BITL(2))){
    pe_Boolean (home->c162_fld);
  }
  if ((home->compmask [5] & BITL(3))){
    pe_Boolean (home->c163_fld);
  }
  if ((home->compmask [5] & BITL(4))){
    pe_Boolean (home->c164_fld);
  }
  if ((home->compmask [5] & BITL(5))){
    pe_Boolean (home->c165_fld);
  }
  if ((home->compmask [5] & BITL(6))){
    pe_Boolean (home->c166_fld);
  }
  if ((home->compmask [5] & BITL(7))){
    pe_Boolean (home->c167_fld);
  }
  if ((home->compmask [5] & BITL(8))){
    pe_Boolean (home->c168_fld);
  }
  if ((home->compmask [5] & BITL(9))){
    pe_Boolean (home->c169_fld);
  }
  if ((home->compmask [5] & BITL(10))){
    pe_Boolean (home->c170_fld);
  }
  if ((home->compmask [5] & BITL(11))){
    pe_Boolean (home->c171_fld);
  }
  if ((home->compmask [5] & BITL(12))){
    pe_Boolean (home->c172_fld);
  }
  if ((home->compmask [5] & BITL(13))){
    pe_Boolean (home->c173_fld);
  }
  if ((home->compmask [5] & BITL(14))){
    pe_Boolean (home->c174_fld);
  }
  if ((home->compmask [5] & BITL(15))){
    pe_Boolean (home->c175_fld);
  }
  if ((home->compmask [5] & BITL(16))){
    pe_Boolean (home->c176_fld);
  }
  if ((home->compmask [5] & BITL(17))){
    pe_Boolean (home->c177_fld);
  }
  if ((home->compmask [5] & BITL(18))){
    pe_Boolean (home->c178_fld);
  }
  if ((home->compmask [5] & BITL(19))){
    pe_Boolean (home->c179_fld);
  }
  if ((home->compmask [5] & BITL(20))){
    pe_Boolean (home->c180_fld);
  }
  if ((home->compmask [5] & BITL(21))){
    pe_Boolean (home->c181_fld);
  }
  if ((home->compmask [5] & BITL(22))){
    pe_Boolean (home->c182_fld);
  }
  if ((home->compmask [5] & BITL(23))){
    pe_Boolean (home->c183_fld);
  }
  if ((home->compmask [5] & BITL(24))){
    pe_Boolean (home->c184_fld);
  }
  if ((home->compmask [5] & BITL(25))){
    pe_Boolean (home->c185_fld);
  }
  if ((home->compmask [5] & BITL(26))){
    pe_Boolean (home->c186_fld);
  }
  if ((home->compmask [5] & BITL(27))){
    pe_Boolean (home->c187_fld);
  }
  if ((home->compmask [5] & BITL(28))){
    pe_Boolean (home->c188_fld);
  }
  if ((home->compmask [5] & BITL(29))){
    pe_Boolean (home->c189_fld);
  }
  if ((home->compmask [5] & BITL(30))){
    pe_Boolean (home->c190_fld);
  }
  if ((home->compmask [5] & BITL(31))){
    pe_Boolean (home->c191_fld);
  }
  if ((home->compmask [6] & BITL(0))){
    pe_Boolean (home->c192_fld);
  }
  if ((home->compmask [6] & BITL(1))){
    pe_Boolean (home->c193_fld);
  }
  if ((home->compmask [6] & BITL(2))){
    pe_Boolean (home->c194_fld);
  }
  if ((home->compmask [6] & BITL(3))){
    pe_Boolean (home->c195_fld);
  }
  if ((home->compmask [6] & BITL(4))){
    pe_Boolean (home->c196_fld);
  }
  if ((home->compmask [6] & BITL(5))){
    pe_Boolean (home->c197_fld);
  }
  if ((home->compmask [6] & BITL(6))){
    pe_Boolean (home->c198_fld);
  }
  if ((home->compmask [6] & BITL(7))){
    pe_Boolean (home->c199_fld);
  }
  if ((home->compmask [6] & BITL(8))){
    pe_Boolean (home->c200_fld);
  }
  if ((home->compmask [6] & BITL(9))){
    pe_Boolean (home->c201_fld);
  }
  if ((home->compmask [6] & BITL(10))){
    pe_Boolean (home->c202_fld);
  }
  if ((home->compmask [6] & BITL(11))){
    pe_Boolean (home->c203_fld);
  }
  if ((home->compmask [6] & BITL(12))){
    pe_Boolean (home->c204_fld);
  }
  if ((home->compmask [6] & BITL(13))){
    pe_Boolean (home->c205_fld);
  }
  if ((home->compmask [6] & BITL(14))){
    pe_Boolean (home->c206_fld);
  }
  if ((home->compmask [6] & BITL(15))){
    pe_Boolean (home->c207_fld);
  }
  if ((home->compmask [6] & BITL(16))){
    pe_Boolean (home->c208_fld);
  }
  if ((home->compmask [6] & BITL(17))){
    pe_Boolean (home->c209_fld);
  }
  if ((home->compmask [6] & BITL(18))){
    pe_Boolean (home->c210_fld);
  }
  if ((home->compmask [6] & BITL(19))){
    pe_Boolean (home->c211_fld);
  }
  if ((home->compmask [6] & BITL(20))){
    pe_Boolean (home->c212_fld);
  }
  if ((home->compmask [6] & BITL(21))){
    pe_Boolean (home->c213_fld);
  }
  if ((home->compmask [6] & BITL(22))){
    pe_Boolean (home->c214_fld);
  }
  if ((home->compmask [6] & BITL(23))){
    pe_Boolean (home->c215_fld);
  }
  if ((home->compmask [6] & BITL(24))){
    pe_Boolean (home->c216_fld);
  }
  if ((home->compmask [6] & BITL(25))){
    pe_Boolean (home->c217_fld);
  }
  if ((home->compmask [6] & BITL(26))){
    pe_Boolean (home->c218_fld);
  }
  if ((home->compmask [6] & BITL(27))){
    pe_Boolean (home->c219_fld);
  }
  if ((home->compmask [6] & BITL(28))){
    pe_Boolean (home->c220_fld);
  }
  if ((home->compmask [6] & BITL(29))){
    pe_Boolean (home->c221_fld);
  }
  if ((home->compmask [6] & BITL(30))){
    pe_Boolean (home->c222_fld);
  }
  if ((home->compmask [6] & BITL(31))){
    pe_Boolean (home->c223_fld);
  }
  if ((home->compmask [7] & BITL(0))){
    pe_Boolean (home->c224_fld);
  }
  if ((home->compmask [7] & BITL(1))){
    pe_Boolean (home->c225_fld);
  }
  if ((home->compmask [7] & BITL(2))){
    pe_Boolean (home->c226_fld);
  }
  if ((home->compmask [7] & BITL(3))){
    pe_Boolean (home->c227_fld);
  }
  if ((home->compmask [7] & BITL(4))){
    pe_Boolean (home->c228_fld);
  }
  if ((home->compmask [7] & BITL(5))){
    pe_Boolean (home->c229_fld);
  }
  if ((home->compmask [7] & BITL(6))){
    pe_Boolean (home->c230_fld);
  }
  if ((home->compmask [7] & BITL(7))){
    pe_Boolean (home->c231_fld);
  }
  if ((home->compmask [7] & BITL(8))){
    pe_Boolean (home->c232_fld);
  }
  if ((home->compmask [7] & BITL(9))){
    pe_Boolean (home->c233_fld);
  }
  if ((home->compmask [7] & BITL(10))){
    pe_Boolean (home->c234_fld);
  }
  if ((home->compmask [7] & BITL(11))){
    pe_Boolean (home->c235_fld);
  }
  if ((home->compmask [7] & BITL(12))){
    pe_Boolean (home->c236_fld);
  }
  if ((home->compmask [7] & BITL(13))){
    pe_Boolean (home->c237_fld);
  }
  if ((home->compmask [7] & BITL(14))){
    pe_Boolean (home->c238_fld);
  }
  if ((home->compmask [7] & BITL(15))){
    pe_Boolean (home->c239_fld);
  }
  if ((home->compmask [7] & BITL(16))){
    pe_Boolean (home->c240_fld);
  }
  if ((home->compmask [7] & BITL(17))){
    pe_Boolean (home->c241_fld);
  }
  if ((home->compmask [7] & BITL(18))){
    pe_Boolean (home->c242_fld);
  }
  if ((home->compmask [7] & BITL(19))){
    pe_Boolean (home->c243_fld);
  }
  if ((home->compmask [7] & BITL(20))){
    pe_Boolean (home->c244_fld);
  }
  if ((home->compmask [7] & BITL(21))){
    pe_Boolean (home->c245_fld);
  }
  if ((home->compmask [7] & BITL(22))){
    pe_Boolean (home->c246_fld);
  }
  if ((home->compmask [7] & BITL(23))){
    pe_Boolean (home->c247_fld);
  }
  if ((home->compmask [7] & BITL(24))){
    pe_Boolean (home->c248_fld);
  }
  if ((home->compmask [7] & BITL(25))){
    pe_Boolean (home->c249_fld);
  }
  if ((home->compmask [7] & BITL(26))){
    pe_Boolean (home->c250_fld);
  }
  if ((home->compmask [7] & BITL(27))){
    pe_Boolean (home->c251_fld);
  }
  if ((home->compmask [7] & BITL(28))){
    pe_Boolean (home->c252_fld);
  }
  if ((home->compmask [7] & BITL(29))){
    pe_Boolean (home->c253_fld);
  }
  if ((home->compmask [7] & BITL(30))){
    pe_Boolean (home->c254_fld);
  }
  if ((home->compmask [7] & BITL(31))){
    pe_Boolean (home->c255_fld);
  }
  if ((home->compmask [8] & BITL(0))){
    pe_Boolean (home->c256_fld);
  }
  if ((home->compmask [8] & BITL(1))){
    pe_Boolean (home->c257_fld);
  }
  if ((home->compmask [8] & BITL(2))){
    pe_Boolean (home->c258_fld);
  }
  if ((home->compmask [8] & BITL(3))){
    pe_Boolean (home->c259_fld);
  }
  if ((home->compmask [8] & BITL(4))){
    pe_Boolean (home->c260_fld);
  }
  if ((home->compmask [8] & BITL(5))){
    pe_Boolean (home->c261_fld);
  }
  if ((home->compmask [8] & BITL(6))){
    pe_Boolean (home->c262_fld);
  }
  if ((home->compmask [8] & BITL(7))){
    pe_Boolean (home->c263_fld);
  }
  if ((home->compmask [8] & BITL(8))){
    pe_Boolean (home->c264_fld);
  }
  if ((home->compmask [8] & BITL(9))){
    pe_Boolean (home->c265_fld);
  }
  if ((home->compmask [8] & BITL(10))){
    pe_Boolean (home->c266_fld);
  }
  if ((home->compmask [8] & BITL(11))){
    pe_Boolean (home->c267_fld);
  }
  if ((home->compmask [8] & BITL(12))){
    pe_Boolean (home->c268_fld);
  }
  if ((home->compmask [8] & BITL(13))){
    pe_Boolean (home->c269_fld);
  }
  if ((home->compmask [8] & BITL(14))){
    pe_Boolean (home->c270_fld);
  }
  if ((home->compmask [8] & BITL(15))){
    pe_Boolean (home->c271_fld);
  }
  if ((home->compmask [8] & BITL(16))){
    pe_Boolean (home->c272_fld);
  }
  if ((home->compmask [8] & BITL(17))){
    pe_Boolean (home->c273_fld);
  }
  if ((home->compmask [8] & BITL(18))){
    pe_Boolean (home->c274_fld);
  }
  if ((home->compmask [8] & BITL(19))){
    pe_Boolean (home->c275_fld);
  }
  if ((home->compmask [8] & BITL(20))){
    pe_Boolean (home->c276_fld);
  }
  if ((home->compmask [8] & BITL(21))){
    pe_Boolean (home->c277_fld);
  }
  if ((home->compmask [8] & BITL(22))){
    pe_Boolean (home->c278_fld);
  }
  if ((home->compmask [8] & BITL(23))){
    pe_Boolean (home->c279_fld);
  }
  if ((home->compmask [8] & BITL(24))){
    pe_Boolean (home->c280_fld);
  }
  if ((home->compmask [8] & BITL(25))){
    pe_Boolean (home->c281_fld);
  }
  if ((home->compmask [8] & BITL(26))){
    pe_Boolean (home->c282_fld);
  }
  if ((home->compmask [8] & BITL(27))){
    pe_Boolean (home->c283_fld);
  }
  if ((home->compmask [8] & BITL(28))){
    pe_Boolean (home->c284_fld);
  }
  if ((home->compmask [8] & BITL(29))){
    pe_Boolean (home->c285_fld);
  }
  if ((home->compmask [8] & BITL(30))){
    pe_Boolean (home->c286_fld);
  }
  if ((home->compmask [8] & BITL(31))){
    pe_Boolean (home->c287_fld);
  }
  if ((home->compmask [9] & BITL(0))){
    pe_Boolean (home->c288_fld);
  }
  if ((home->compmask [9] & BITL(1))){
    pe_Boolean (home->c289_fld);
  }
  if ((home->compmask [9] & BITL(2))){
    pe_Boolean (home->c290_fld);
  }
  if ((home->compmask [9] & BITL(3))){
    pe_Boolean (home->c291_fld);
  }
  if ((home->compmask [9] & BITL(4))){
    pe_Boolean (home->c292_fld);
  }
  if ((home->compmask [9] & BITL(5))){
    pe_Boolean (home->c293_fld);
  }
  if ((home->compmask [9] & BITL(6))){
    pe_Boolean (home->c294_fld);
  }
  if ((home->compmask [9] & BITL(7))){
    pe_Boolean (home->c295_fld);
  }
  if ((home->compmask [9] & BITL(8))){
    pe_Boolean (home->c296_fld);
  }
  if ((home->compmask [9] & BITL(9))){
    pe_Boolean (home->c297_fld);
  }
  if ((home->compmask [9] & BITL(10))){
    pe_Boolean (home->c298_fld);
  }
  if ((home->compmask [9] & BITL(11))){
    pe_Boolean (home->c299_fld);
  }
  if ((home->compmask [9] & BITL(12))){
    pe_Boolean (home->c300_fld);
  }
  if ((home->compmask [9] & BITL(13))){
    pe_Boolean (home->c301_fld);
  }
  if ((home->compmask [9] & BITL(14))){
    pe_Boolean (home->c302_fld);
  }
  if ((home->compmask [9] & BITL(15))){
    pe_Boolean (home->c303_fld);
  }
  if ((home->compmask [9] & BITL(16))){
    pe_Boolean (home->c304_fld);
  }
  if ((home->compmask [9] & BITL(17))){
    pe_Boolean (home->c305_fld);
  }
  if ((home->compmask [9] & BITL(18))){
    pe_Boolean (home->c306_fld);
  }
  if ((home->compmask [9] & BITL(19))){
    pe_Boolean (home->c307_fld);
  }
  if ((home->compmask [9] & BITL(20))){
    pe_Boolean (home->c308_fld);
  }
  if ((home->compmask [9] & BITL(21))){
    pe_Boolean (home->c309_fld);
  }
  if ((home->compmask [9] & BITL(22))){
    pe_Boolean (home->c310_fld);
  }
  if ((home->compmask [9] & BITL(23))){
    pe_Boolean (home->c311_fld);
  }
  if ((home->compmask [9] & BITL(24))){
    pe_Boolean (home->c312_fld);
  }
  if ((home->compmask [9] & BITL(25))){
    pe_Boolean (home->c313_fld);
  }
  if ((home->compmask [9] & BITL(26))){
    pe_Boolean (home->c314_fld);
  }
  if ((home->compmask [9] & BITL(27))){
    pe_Boolean (home->c315_fld);
  }
  if ((home->compmask [9] & BITL(28))){
    pe_Boolean (home->c316_fld);
  }
  if ((home->compmask [9] & BITL(29))){
    pe_Boolean (home->c317_fld);
  }
  if ((home->compmask [9] & BITL(30))){
    pe_Boolean (home->c318_fld);
  }
  if ((home->compmask [9] & BITL(31))){
    pe_Boolean (home->c319_fld);
  }
  if ((home->compmask [10] & BITL(0))){
    pe_Boolean (home->c320_fld);
  }
  if ((home->compmask [10] & BITL(1))){
    pe_Boolean (home->c321_fld);
  }
  if ((home->compmask [10] & BITL(2))){
    pe_Boolean (home->c322_fld);
  }
  if ((home->compmask [10] & BITL(3))){
    pe_Boolean (home->c323_fld);
  }
  if ((home->compmask [10] & BITL(4))){
    pe_Boolean (home->c324_fld);
  }
  if ((home->compmask [10] & BITL(5))){
    pe_Boolean (home->c325_fld);
  }
  if ((home->compmask [10] & BITL(6))){
    pe_Boolean (home->c326_fld);
  }
  if ((home->compmask [10] & BITL(7))){
    pe_Boolean (home->c327_fld);
  }
  if ((home->compmask [10] & BITL(8))){
    pe_Boolean (home->c328_fld);
  }
  if ((home->compmask [10] & BITL(9))){
    pe_Boolean (home->c329_fld);
  }
  if ((home->compmask [10] & BITL(10))){
    pe_Boolean (home->c330_fld);
  }
  if ((home->compmask [10] & BITL(11))){
    pe_Boolean (home->c331_fld);
  }
  if ((home->compmask [10] & BITL(12))){
    pe_Boolean (home->c332_fld);
  }
  if ((home->compmask [10] & BITL(13))){
    pe_Boolean (home->c333_fld);
  }
  if ((home->compmask [10] & BITL(14))){
    pe_Boolean (home->c334_fld);
  }
  if ((home->compmask [10] & BITL(15))){
    pe_Boolean (home->c335_fld);
  }
  if ((home->compmask [10] & BITL(16))){
    pe_Boolean (home->c336_fld);
  }
  if ((home->compmask [10] & BITL(17))){
    pe_Boolean (home->c337_fld);
  }
  if ((home->compmask [10] & BITL(18))){
    pe_Boolean (home->c338_fld);
  }
  if ((home->compmask [10] & BITL(19))){
    pe_Boolean (home->c339_fld);
  }
  if ((home->compmask [10] & BITL(20))){
    pe_Boolean (home->c340_fld);
  }
  if ((home->compmask [10] & BITL(21))){
    pe_Boolean (home->c341_fld);
  }
  if ((home->compmask [10] & BITL(22))){
    pe_Boolean (home->c342_fld);
  }
  if ((home->compmask [10] & BITL(23))){
    pe_Boolean (home->c343_fld);
  }
  if ((home->compmask [10] & BITL(24))){
    pe_Boolean (home->c344_fld);
  }
  if ((home->compmask [10] & BITL(25))){
    pe_Boolean (home->c345_fld);
  }
  if ((home->compmask [10] & BITL(26))){
    pe_Boolean (home->c346_fld);
  }
  if ((home->compmask [10] & BITL(27))){
    pe_Boolean (home->c347_fld);
  }
  if ((home->compmask [10] & BITL(28))){
    pe_Boolean (home->c348_fld);
  }
  if ((home->compmask [10] & BITL(29))){
    pe_Boolean (home->c349_fld);
  }
  if ((home->compmask [10] & BITL(30))){
    pe_Boolean (home->c350_fld);
  }
  if ((home->compmask [10] & BITL(31))){
    pe_Boolean (home->c351_fld);
  }
  if ((home->compmask [11] & BITL(0))){
    pe_Boolean (home->c352_fld);
  }
  if ((home->compmask [11] & BITL(1))){
    pe_Boolean (home->c353_fld);
  }
  if ((home->compmask [11] & BITL(2))){
    pe_Boolean (home->c354_fld);
  }
  if ((home->compmask [11] & BITL(3))){
    pe_Boolean (home->c355_fld);
  }
  if ((home->compmask [11] & BITL(4))){
    pe_Boolean (home->c356_fld);
  }
  if ((home->compmask [11] & BITL(5))){
    pe_Boolean (home->c357_fld);
  }
  if ((home->compmask [11] & BITL(6))){
    pe_Boolean (home->c358_fld);
  }
  if ((home->compmask [11] & BITL(7))){
    pe_Boolean (home->c359_fld);
  }
  if ((home->compmask [11] & BITL(8))){
    pe_Boolean (home->c360_fld);
  }
  if ((home->compmask [11] & BITL(9))){
    pe_Boolean (home->c361_fld);
  }
  if ((home->compmask [11] & BITL(10))){
    pe_Boolean (home->c362_fld);
  }
  if ((home->compmask [11] & BITL(11))){
    pe_Boolean (home->c363_fld);
  }
  if ((home->compmask [11] & BITL(12))){
    pe_Boolean (home->c364_fld);
  }
  if ((home->compmask [11] & BITL(13))){
    pe_Boolean (home->c365_fld);
  }
  if ((home->compmask [11] & BITL(14))){
    pe_Boolean (home->c366_fld);
  }
  if ((home->compmask [11] & BITL(15))){
    pe_Boolean (home->c367_fld);
  }
  if ((home->compmask [11] & BITL(16))){
    pe_Boolean (home->c368_fld);
  }
  if ((home->compmask [11] & BITL(17))){
    pe_Boolean (home->c369_fld);
  }
  if ((home->compmask [11] & BITL(18))){
    pe_Boolean (home->c370_fld);
  }
  if ((home->compmask [11] & BITL(19))){
    pe_Boolean (home->c371_fld);
  }
  if ((home->compmask [11] & BITL(20))){
    pe_Boolean (home->c372_fld);
  }
  if ((home->compmask [11] & BITL(21))){
    pe_Boolean (home->c373_fld);
  }
  if ((home->compmask [11] & BITL(22))){
    pe_Boolean (home->c374_fld);
  }
  if ((home->compmask [11] & BITL(23))){
    pe_Boolean (home->c375_fld);
  }
  if ((home->compmask [11] & BITL(24))){
    pe_Boolean (home->c376_fld);
  }
  if ((home->compmask [11] & BITL(25))){
    pe_Boolean (home->c377_fld);
  }
  if ((home->compmask [11] & BITL(26))){
    pe_Boolean (home->c378_fld);
  }
  if ((home->compmask [11] & BITL(27))){
    pe_Boolean (home->c379_fld);
  }
  if ((home->compmask [11] & BITL(28))){
    pe_Boolean (home->c380_fld);
  }
  if ((home->compmask [11] & BITL(29))){
    pe_Boolean (home->c381_fld);
  }
  if ((home->compmask [11] & BITL(30))){
    pe_Boolean (home->c382_fld);
  }
  if ((home->compmask [11] & BITL(31))){
    pe_Boolean (home->c383_fld);
  }
  if ((home->compmask [12] & BITL(0))){
    pe_Boolean (home->c384_fld);
  }
  if ((home->compmask [12] & BITL(1))){
    pe_Boolean (home->c385_fld);
  }
  if ((home->compmask [12] & BITL(2))){
    pe_Boolean (home->c386_fld);
  }
  if ((home->compmask [12] & BITL(3))){
    pe_Boolean (home->c387_fld);
  }
  if ((home->compmask [12] & BITL(4))){
    pe_Boolean (home->c388_fld);
  }
  if ((home->compmask [12] & BITL(5))){
    pe_Boolean (home->c389_fld);
  }
  if ((home->compmask [12] & BITL(6))){
    pe_Boolean (home->c390_fld);
  }
  if ((home->compmask [12] & BITL(7))){
    pe_Boolean (home->c391_fld);
  }
  if ((home->compmask [12] & BITL(8))){
    pe_Boolean (home->c392_fld);
  }
  if ((home->compmask [12] & BITL(9))){
    pe_Boolean (home->c393_fld);
  }
  if ((home->compmask [12] & BITL(10))){
    pe_Boolean (home->c394_fld);
  }
  if ((home->compmask [12] & BITL(11))){
    pe_Boolean (home->c395_fld);
  }
  if ((home->compmask [12] & BITL(12))){
    pe_Boolean (home->c396_fld);
  }
  if ((home->compmask [12] & BITL(13))){
    pe_Boolean (home->c397_fld);
  }
  if ((home->compmask [12] & BITL(14))){
    pe_Boolean (home->c398_fld);
  }
  if ((home->compmask [12] & BITL(15))){
    pe_Boolean (home->c399_fld);
  }
  if ((home->compmask [12] & BITL(16))){
    pe_Boolean (home->c400_fld);
  }
  if ((home->compmask [12] & BITL(17))){
    pe_Boolean (home->c401_fld);
  }
  if ((home->compmask [12] & BITL(18))){
    pe_Boolean (home->c402_fld);
  }
  if ((home->compmask [12] & BITL(19))){
    pe_Boolean (home->c403_fld);
  }
  if ((home->compmask [12] & BITL(20))){
    pe_Boolean (home->c404_fld);
  }
  if ((home->compmask [12] & BITL(21))){
    pe_Boolean (home->c405_fld);
  }
  if ((home->compmask [12] & BITL(22))){
    pe_Boolean (home->c406_fld);
  }
  if ((home->compmask [12] & BITL(23))){
    pe_Boolean (home->c407_fld);
  }
  if ((home->compmask [12] & BITL(24))){
    pe_Boolean (home->c408_fld);
  }
  if ((home->compmask [12] & BITL(25))){
    pe_Boolean (home->c409_fld);
  }
  if ((home->compmask [12] & BITL(26))){
    pe_Boolean (home->c410_fld);
  }
  if ((home->compmask [12] & BITL(27))){
    pe_Boolean (home->c411_fld);
  }
  if ((home->compmask [12] & BITL(28))){
    pe_Boolean (home->c412_fld);
  }
  if ((home->compmask [12] & BITL(29))){
    pe_Boolean (home->c413_fld);
  }
  if ((home->compmask [12] & BITL(30))){
    pe_Boolean (home->c414_fld);
  }
  if ((home->compmask [12] & BITL(31))){
    pe_Boolean (home->c415_fld);
  }
  if ((home->compmask [13] & BITL(0))){
    pe_Boolean (home->c416_fld);
  }
  if ((home->compmask [13] & BITL(1))){
    pe_Boolean (home->c417_fld);
  }
  if ((home->compmask [13] & BITL(2))){
    pe_Boolean (home->c418_fld);
  }
  if ((home->compmask [13] & BITL(3))){
    pe_Boolean (home->c419_fld);
  }
  if ((home->compmask [13] & BITL(4))){
    pe_Boolean (home->c420_fld);
  }
  if ((home->compmask [13] & BITL(5))){
    pe_Boolean (home->c421_fld);
  }
  if ((home->compmask [13] & BITL(6))){
    pe_Boolean (home->c422_fld);
  }
  if ((home->compmask [13] & BITL(7))){
    pe_Boolean (home->c423_fld);
  }
  if ((home->compmask [13] & BITL(8))){
    pe_Boolean (home->c424_fld);
  }
  if ((home->compmask [13] & BITL(9))){
    pe_Boolean (home->c425_fld);
  }
  if ((home->compmask [13] & BITL(10))){
    pe_Boolean (home->c426_fld);
  }
  if ((home->compmask [13] & BITL(11))){
    pe_Boolean (home->c427_fld);
  }
  if ((home->compmask [13] & BITL(12))){
    pe_Boolean (home->c428_fld);
  }
  if ((home->compmask [13] & BITL(13))){
    pe_Boolean (home->c429_fld);
  }
  if ((home->compmask [13] & BITL(14))){
    pe_Boolean (home->c430_fld);
  }
  if ((home->compmask [13] & BITL(15))){
    pe_Boolean (home->c431_fld);
  }
  if ((home->compmask [13] & BITL(16))){
    pe_Boolean (home->c432_fld);
  }
  if ((home->compmask [13] & BITL(17))){
    pe_Boolean (home->c433_fld);
  }
  if ((home->compmask [13] & BITL(18))){
    pe_Boolean (home->c434_fld);
  }
  if ((home->compmask [13] & BITL(19))){
    pe_Boolean (home->c435_fld);
  }
  if ((home->compmask [13] & BITL(20))){
    pe_Boolean (home->c436_fld);
  }
  if ((home->compmask [13] & BITL(21))){
    pe_Boolean (home->c437_fld);
  }
  if ((home->compmask [13] & BITL(22))){
    pe_Boolean (home->c438_fld);
  }
  if ((home->compmask [13] & BITL(23))){
    pe_Boolean (home->c439_fld);
  }
  if ((home->compmask [13] & BITL(24))){
    pe_Boolean (home->c440_fld);
  }
  if ((home->compmask [13] & BITL(25))){
    pe_Boolean (home->c441_fld);
  }
  if ((home->compmask [13] & BITL(26))){
    pe_Boolean (home->c442_fld);
  }
  if ((home->compmask [13] & BITL(27))){
    pe_Boolean (home->c443_fld);
  }
  if ((home->compmask [13] & BITL(28))){
    pe_Boolean (home->c444_fld);
  }
  if ((home->compmask [13] & BITL(29))){
    pe_Boolean (home->c445_fld);
  }
  if ((home->compmask [13] & BITL(30))){
    pe_Boolean (home->c446_fld);
  }
  if ((home->compmask [13] & BITL(31))){
    pe_Boolean (home->c447_fld);
  }
  if ((home->compmask [14] & BITL(0))){
    pe_Boolean (home->c448_fld);
  }
  if ((home->compmask [14] & BITL(1))){
    pe_Boolean (home->c449_fld);
  }
  if ((home->compmask [14] & BITL(2))){
    pe_Boolean (home->c450_fld);
  }
  if ((home->compmask [14] & BITL(3))){
    pe_Boolean (home->c451_fld);
  }
  if ((home->compmask [14] & BITL(4))){
    pe_Boolean (home->c452_fld);
  }
  if ((home->compmask [14] & BITL(5))){
    pe_Boolean (home->c453_fld);
  }
  if ((home->compmask [14] & BITL(6))){
    pe_Boolean (home->c454_fld);
  }
  if ((home->compmask [14] & BITL(7))){
    pe_Boolean (home->c455_fld);
  }
  if ((home->compmask [14] & BITL(8))){
    pe_Boolean (home->c456_fld);
  }
  if ((home->compmask [14] & BITL(9))){
    pe_Boolean (home->c457_fld);
  }
  if ((home->compmask [14] & BITL(10))){
    pe_Boolean (home->c458_fld);
  }
  if ((home->compmask [14] & BITL(11))){
    pe_Boolean (home->c459_fld);
  }
  if ((home->compmask [14] & BITL(12))){
    pe_Boolean (home->c460_fld);
  }
  if ((home->compmask [14] & BITL(13))){
    pe_Boolean (home->c461_fld);
  }
  if ((home->compmask [14] & BITL(14))){
    pe_Boolean (home->c462_fld);
  }
  if ((home->compmask [14] & BITL(15))){
    pe_Boolean (home->c463_fld);
  }
  if ((home->compmask [14] & BITL(16))){
    pe_Boolean (home->c464_fld);
  }
  if ((home->compmask [14] & BITL(17))){
    pe_Boolean (home->c465_fld);
  }
  if ((home->compmask [14] & BITL(18))){
    pe_Boolean (home->c466_fld);
  }
  if ((home->compmask [14] & BITL(19))){
    pe_Boolean (home->c467_fld);
  }
  if ((home->compmask [14] & BITL(20))){
    pe_Boolean (home->c468_fld);
  }
  if ((home->compmask [14] & BITL(21))){
    pe_Boolean (home->c469_fld);
  }
  if ((home->compmask [14] & BITL(22))){
    pe_Boolean (home->c470_fld);
  }
  if ((home->compmask [14] & BITL(23))){
    pe_Boolean (home->c471_fld);
  }
  if ((home->compmask [14] & BITL(24))){
    pe_Boolean (home->c472_fld);
  }
  if ((home->compmask [14] & BITL(25))){
    pe_Boolean (home->c473_fld);
  }
  if ((home->compmask [14] & BITL(26))){
    pe_Boolean (home->c474_fld);
  }
  if ((home->compmask [14] & BITL(27))){
    pe_Boolean (home->c475_fld);
  }
  if ((home->compmask [14] & BITL(28))){
    pe_Boolean (home->c476_fld);
  }
  if ((home->compmask [14] & BITL(29))){
    pe_Boolean (home->c477_fld);
  }
  if ((home->compmask [14] & BITL(30))){
    pe_Boolean (home->c478_fld);
  }
  if ((home->compmask [14] & BITL(31))){
    pe_Boolean (home->c479_fld);
  }
  if ((home->compmask [15] & BITL(0))){
    pe_Boolean (home->c480_fld);
  }
  if ((home->compmask [15] & BITL(1))){
    pe_Boolean (home->c481_fld);
  }
  if ((home->compmask [15] & BITL(2))){
    pe_Boolean (home->c482_fld);
  }
  if ((home->compmask [15] & BITL(3))){
    pe_Boolean (home->c483_fld);
  }
  if ((home->compmask [15] & BITL(4))){
    pe_Boolean (home->c484_fld);
  }
  if ((home->compmask [15] & BITL(5))){
    pe_Boolean (home->c485_fld);
  }
  if ((home->compmask [15] & BITL(6))){
    pe_Boolean (home->c486_fld);
  }
  if ((home->compmask [15] & BITL(7))){
    pe_Boolean (home->c487_fld);
  }
  if ((home->compmask [15] & BITL(8))){
    pe_Boolean (home->c488_fld);
  }
  if ((home->compmask [15] & BITL(9))){
    pe_Boolean (home->c489_fld);
  }
  if ((home->compmask [15] & BITL(10))){
    pe_Boolean (home->c490_fld);
  }
  if ((home->compmask [15] & BITL(11))){
    pe_Boolean (home->c491_fld);
  }
  if ((home->compmask [15] & BITL(12))){
    pe_Boolean (home->c492_fld);
  }
  if ((home->compmask [15] & BITL(13))){
    pe_Boolean (home->c493_fld);
  }
  if ((home->compmask [15] & BITL(14))){
    pe_Boolean (home->c494_fld);
  }
  if ((home->compmask [15] & BITL(15))){
    pe_Boolean (home->c495_fld);
  }
  if ((home->compmask [15] & BITL(16))){
    pe_Boolean (home->c496_fld);
  }
  if ((home->compmask [15] & BITL(17))){
    pe_Boolean (home->c497_fld);
  }
  if ((home->compmask [15] & BITL(18))){
    pe_Boolean (home->c498_fld);
  }
  if ((home->compmask [15] & BITL(19))){
    pe_Boolean (home->c499_fld);
  }
  if ((home->compmask [15] & BITL(20))){
    pe_Boolean (home->c500_fld);
  }
  if ((home->compmask [15] & BITL(21))){
    pe_Boolean (home->c501_fld);
  }
  if ((home->compmask [15] & BITL(22))){
    pe_Boolean (home->c502_fld);
  }
  if ((home->compmask [15] & BITL(23))){
    pe_Boolean (home->c503_fld);
  }
  if ((home->compmask [15] & BITL(24))){
    pe_Boolean (home->c504_fld);
  }
  if ((home->compmask [15] & BITL(25))){
    pe_Boolean (home->c505_fld);
  }
  if ((home->compmask [15] & BITL(26))){
    pe_Boolean (home->c506_fld);
  }
  if ((home->compmask [15] & BITL(27))){
    pe_Boolean (home->c507_fld);
  }
  if ((home->compmask [15] & BITL(28))){
    pe_Boolean (home->c508_fld);
  }
  if ((home->compmask [15] & BITL(29))){
    pe_Boolean (home->c509_fld);
  }
  if ((home->compmask [15] & BITL(30))){
    pe_Boolean (home->c510_fld);
  }
  if ((home->compmask [15] & BITL(31))){
    pe_Boolean (home->c511_fld);
  }
  if ((home->compmask [16] & BITL(0))){
    pe_Boolean (home->c512_fld);
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peOpt512 (ASNG_F(asnperg) &home->a_fld);
  peOpt513 (ASNG_F(asnperg) &home->b_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
