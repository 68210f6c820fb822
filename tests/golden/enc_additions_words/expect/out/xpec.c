/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Additions
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peAdd31 (ASNG_F(ASNPERG *asnperg) Add31 *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BITL(1)) || (home->compmask & BITL(2)) || 
    (home->compmask & BITL(3)) || (home->compmask & BITL(4)) || 
    (home->compmask & BITL(5)) || (home->compmask & BITL(6)) || 
    (home->compmask & BITL(7)) || (home->compmask & BITL(8)) || 
    (home->compmask & BITL(9)) || (home->compmask & BITL(10)) || 
    (home->compmask & BITL(11)) || (home->compmask & BITL(12)) || 
    (home->compmask & BITL(13)) || (home->compmask & BITL(14)) || 
    (home->compmask & BITL(15)) || (home->compmask & BITL(16)) || 
    (home->compmask & BITL(17)) || (home->compmask & BITL(18)) || 
    (home->compmask & BITL(19)) || (home->compmask & BITL(20)) || 
    (home->compmask & BITL(21)) || (home->compmask & BITL(22)) || 
    (home->compmask & BITL(23)) || (home->compmask & BITL(24)) || 
    (home->compmask & BITL(25)) || (home->compmask & BITL(26)) || 
    (home->compmask & BITL(27)) || (home->compmask & BITL(28)) || 
    (home->compmask & BITL(29)) || (home->compmask & BITL(30)) || 
    (home->compmask & BITL(31))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BITL(1))){
      extensionAdditionField_0 |= BITL(30);
    }
    if ((home->compmask & BITL(2))){
      extensionAdditionField_0 |= BITL(29);
    }
    if ((home->compmask & BITL(3))){
      extensionAdditionField_0 |= BITL(28);
    }
    if ((home->compmask & BITL(4))){
      extensionAdditionField_0 |= BITL(27);
    }
    if ((home->compmask & BITL(5))){
      extensionAdditionField_0 |= BITL(26);
    }
    if ((home->compmask & BITL(6))){
      extensionAdditionField_0 |= BITL(25);
    }
    if ((home->compmask & BITL(7))){
      extensionAdditionField_0 |= BITL(24);
    }
    if ((home->compmask & BITL(8))){
      extensionAdditionField_0 |= BITL(23);
    }
    if ((home->compmask & BITL(9))){
      extensionAdditionField_0 |= BITL(22);
    }
    if ((home->compmask & BITL(10))){
      extensionAdditionField_0 |= BITL(21);
    }
    if ((home->compmask & BITL(11))){
      extensionAdditionField_0 |= BITL(20);
    }
    if ((home->compmask & BITL(12))){
      extensionAdditionField_0 |= BITL(19);
    }
    if ((home->compmask & BITL(13))){
      extensionAdditionField_0 |= BITL(18);
    }
    if ((home->compmask & BITL(14))){
      extensionAdditionField_0 |= BITL(17);
    }
    if ((home->compmask & BITL(15))){
      extensionAdditionField_0 |= BITL(16);
    }
    if ((home->compmask & BITL(16))){
      extensionAdditionField_0 |= BITL(15);
    }
    if ((home->compmask & BITL(17))){
      extensionAdditionField_0 |= BITL(14);
    }
    if ((home->compmask & BITL(18))){
      extensionAdditionField_0 |= BITL(13);
    }
    if ((home->compmask & BITL(19))){
      extensionAdditionField_0 |= BITL(12);
    }
    if ((home->compmask & BITL(20))){
      extensionAdditionField_0 |= BITL(11);
    }
    if ((home->compmask & BITL(21))){
      extensionAdditionField_0 |= BITL(10);
    }
    if ((home->compmask & BITL(22))){
      extensionAdditionField_0 |= BITL(9);
    }
    if ((home->compmask & BITL(23))){
      extensionAdditionField_0 |= BITL(8);
    }
    if ((home->compmask & BITL(24))){
      extensionAdditionField_0 |= BITL(7);
    }
    if ((home->compmask & BITL(25))){
      extensionAdditionField_0 |= BITL(6);
    }
    if ((home->compmask & BITL(26))){
      extensionAdditionField_0 |= BITL(5);
    }
    if ((home->compmask & BITL(27))){
      extensionAdditionField_0 |= BITL(4);
    }
    if ((home->compmask & BITL(28))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask & BITL(29))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask & BITL(30))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BITL(31))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (31, extensionAdditionField_0);
  }
  if ((home->compmask & BITL(1))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c0_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(2))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c1_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(3))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c2_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(4))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c3_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(5))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c4_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(6))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c5_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(7))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c6_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(8))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c7_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(9))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c8_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(10))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c9_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(11))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c10_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(12))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c11_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(13))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c12_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(14))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c13_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(15))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c14_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(16))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c15_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(17))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c16_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(18))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c17_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(19))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c18_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(20))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c19_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(21))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c20_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(22))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c21_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(23))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c22_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(24))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c23_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(25))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c24_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(26))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c25_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(27))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c26_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(28))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c27_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(29))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c28_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(30))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c29_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BITL(31))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c30_fld);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peAdd32 (ASNG_F(ASNPERG *asnperg) Add32 *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask [0] & BITL(1)) || (home->compmask [0] & BITL(2)) || 
    (home->compmask [0] & BITL(3)) || (home->compmask [0] & BITL(4)) || 
    (home->compmask [0] & BITL(5)) || (home->compmask [0] & BITL(6)) || 
    (home->compmask [0] & BITL(7)) || (home->compmask [0] & BITL(8)) || 
    (home->compmask [0] & BITL(9)) || (home->compmask [0] & BITL(10)) || 
    (home->compmask [0] & BITL(11)) || (home->compmask [0] & BITL(12)) || 
    (home->compmask [0] & BITL(13)) || (home->compmask [0] & BITL(14)) || 
    (home->compmask [0] & BITL(15)) || (home->compmask [0] & BITL(16)) || 
    (home->compmask [0] & BITL(17)) || (home->compmask [0] & BITL(18)) || 
    (home->compmask [0] & BITL(19)) || (home->compmask [0] & BITL(20)) || 
    (home->compmask [0] & BITL(21)) || (home->compmask [0] & BITL(22)) || 
    (home->compmask [0] & BITL(23)) || (home->compmask [0] & BITL(24)) || 
    (home->compmask [0] & BITL(25)) || (home->compmask [0] & BITL(26)) || 
    (home->compmask [0] & BITL(27)) || (home->compmask [0] & BITL(28)) || 
    (home->compmask [0] & BITL(29)) || (home->compmask [0] & BITL(30)) || 
    (home->compmask [0] & BITL(31)) || (home->compmask [1] & BITL(0))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask [0] & BITL(1))){
      extensionAdditionField_0 |= BITL(31);
    }
    if ((home->compmask [0] & BITL(2))){
      extensionAdditionField_0 |= BITL(30);
    }
    if ((home->compmask [0] & BITL(3))){
      extensionAdditionField_0 |= BITL(29);
    }
    if ((home->compmask [0] & BITL(4))){
      extensionAdditionField_0 |= BITL(28);
    }
    if ((home->compmask [0] & BITL(5))){
      extensionAdditionField_0 |= BITL(27);
    }
    if ((home->compmask [0] & BITL(6))){
      extensionAdditionField_0 |= BITL(26);
    }
    if ((home->compmask [0] & BITL(7))){
      extensionAdditionField_0 |= BITL(25);
    }
    if ((home->compmask [0] & BITL(8))){
      extensionAdditionField_0 |= BITL(24);
    }
    if ((home->compmask [0] & BITL(9))){
      extensionAdditionField_0 |= BITL(23);
    }
    if ((home->compmask [0] & BITL(10))){
      extensionAdditionField_0 |= BITL(22);
    }
    if ((home->compmask [0] & BITL(11))){
      extensionAdditionField_0 |= BITL(21);
    }
    if ((home->compmask [0] & BITL(12))){
      extensionAdditionField_0 |= BITL(20);
    }
    if ((home->compmask [0] & BITL(13))){
      extensionAdditionField_0 |= BITL(19);
    }
    if ((home->compmask [0] & BITL(14))){
      extensionAdditionField_0 |= BITL(18);
    }
    if ((home->compmask [0] & BITL(15))){
      extensionAdditionField_0 |= BITL(17);
    }
    if ((home->compmask [0] & BITL(16))){
      extensionAdditionField_0 |= BITL(16);
    }
    if ((home->compmask [0] & BITL(17))){
      extensionAdditionField_0 |= BITL(15);
    }
    if ((home->compmask [0] & BITL(18))){
      extensionAdditionField_0 |= BITL(14);
    }
    if ((home->compmask [0] & BITL(19))){
      extensionAdditionField_0 |= BITL(13);
    }
    if ((home->compmask [0] & BITL(20))){
      extensionAdditionField_0 |= BITL(12);
    }
    if ((home->compmask [0] & BITL(21))){
      extensionAdditionField_0 |= BITL(11);
    }
    if ((home->compmask [0] & BITL(22))){
      extensionAdditionField_0 |= BITL(10);
    }
    if ((home->compmask [0] & BITL(23))){
      extensionAdditionField_0 |= BITL(9);
    }
    if ((home->compmask [0] & BITL(24))){
      extensionAdditionField_0 |= BITL(8);
    }
    if ((home->compmask [0] & BITL(25))){
      extensionAdditionField_0 |= BITL(7);
    }
    if ((home->compmask [0] & BITL(26))){
      extensionAdditionField_0 |= BITL(6);
    }
    if ((home->compmask [0] & BITL(27))){
      extensionAdditionField_0 |= BITL(5);
    }
    if ((home->compmask [0] & BITL(28))){
      extensionAdditionField_0 |= BITL(4);
    }
    if ((home->compmask [0] & BITL(29))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask [0] & BITL(30))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask [0] & BITL(31))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask [1] & BITL(0))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (32, extensionAdditionField_0);
  }
  if ((home->compmask [0] & BITL(1))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c0_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(2))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c1_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(3))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c2_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(4))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c3_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(5))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c4_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(6))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c5_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(7))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c6_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(8))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c7_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(9))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c8_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(10))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c9_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(11))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c10_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(12))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c11_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(13))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c12_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(14))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c13_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(15))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c14_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(16))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c15_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(17))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c16_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(18))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c17_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(19))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c18_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(20))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c19_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(21))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c20_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(22))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c21_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(23))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c22_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(24))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c23_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(25))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c24_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(26))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c25_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(27))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c26_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(28))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c27_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(29))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c28_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(30))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c29_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(31))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c30_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [1] & BITL(0))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c31_fld);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peAdd33 (ASNG_F(ASNPERG *asnperg) Add33 *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask [0] & BITL(1)) || (home->compmask [0] & BITL(2)) || 
    (home->compmask [0] & BITL(3)) || (home->compmask [0] & BITL(4)) || 
    (home->compmask [0] & BITL(5)) || (home->compmask [0] & BITL(6)) || 
    (home->compmask [0] & BITL(7)) || (home->compmask [0] & BITL(8)) || 
    (home->compmask [0] & BITL(9)) || (home->compmask [0] & BITL(10)) || 
    (home->compmask [0] & BITL(11)) || (home->compmask [0] & BITL(12)) || 
    (home->compmask [0] & BITL(13)) || (home->compmask [0] & BITL(14)) || 
    (home->compmask [0] & BITL(15)) || (home->compmask [0] & BITL(16)) || 
    (home->compmask [0] & BITL(17)) || (home->compmask [0] & BITL(18)) || 
    (home->compmask [0] & BITL(19)) || (home->compmask [0] & BITL(20)) || 
    (home->compmask [0] & BITL(21)) || (home->compmask [0] & BITL(22)) || 
    (home->compmask [0] & BITL(23)) || (home->compmask [0] & BITL(24)) || 
    (home->compmask [0] & BITL(25)) || (home->compmask [0] & BITL(26)) || 
    (home->compmask [0] & BITL(27)) || (home->compmask [0] & BITL(28)) || 
    (home->compmask [0] & BITL(29)) || (home->compmask [0] & BITL(30)) || 
    (home->compmask [0] & BITL(31)) || (home->compmask [1] & BITL(0)) || 
    (home->compmask [1] & BITL(1))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask [0] & BITL(1))){
      extensionAdditionField_0 |= BITL(32);
    }
    if ((home->compmask [0] & BITL(2))){
      extensionAdditionField_0 |= BITL(31);
    }
    if ((home->compmask [0] & BITL(3))){
      extensionAdditionField_0 |= BITL(30);
    }
    if ((home->compmask [0] & BITL(4))){
      extensionAdditionField_0 |= BITL(29);
    }
    if ((home->compmask [0] & BITL(5))){
      extensionAdditionField_0 |= BITL(28);
    }
    if ((home->compmask [0] & BITL(6))){
      extensionAdditionField_0 |= BITL(27);
    }
    if ((home->compmask [0] & BITL(7))){
      extensionAdditionField_0 |= BITL(26);
    }
    if ((home->compmask [0] & BITL(8))){
      extensionAdditionField_0 |= BITL(25);
    }
    if ((home->compmask [0] & BITL(9))){
      extensionAdditionField_0 |= BITL(24);
    }
    if ((home->compmask [0] & BITL(10))){
      extensionAdditionField_0 |= BITL(23);
    }
    if ((home->compmask [0] & BITL(11))){
      extensionAdditionField_0 |= BITL(22);
    }
    if ((home->compmask [0] & BITL(12))){
      extensionAdditionField_0 |= BITL(21);
    }
    if ((home->compmask [0] & BITL(13))){
      extensionAdditionField_0 |= BITL(20);
    }
    if ((home->compmask [0] & BITL(14))){
      extensionAdditionField_0 |= BITL(19);
    }
    if ((home->compmask [0] & BITL(15))){
      extensionAdditionField_0 |= BITL(18);
    }
    if ((home->compmask [0] & BITL(16))){
      extensionAdditionField_0 |= BITL(17);
    }
    if ((home->compmask [0] & BITL(17))){
      extensionAdditionField_0 |= BITL(16);
    }
    if ((home->compmask [0] & BITL(18))){
      extensionAdditionField_0 |= BITL(15);
    }
    if ((home->compmask [0] & BITL(19))){
      extensionAdditionField_0 |= BITL(14);
    }
    if ((home->compmask [0] & BITL(20))){
      extensionAdditionField_0 |= BITL(13);
    }
    if ((home->compmask [0] & BITL(21))){
      extensionAdditionField_0 |= BITL(12);
    }
    if ((home->compmask [0] & BITL(22))){
      extensionAdditionField_0 |= BITL(11);
    }
    if ((home->compmask [0] & BITL(23))){
      extensionAdditionField_0 |= BITL(10);
    }
    if ((home->compmask [0] & BITL(24))){
      extensionAdditionField_0 |= BITL(9);
    }
    if ((home->compmask [0] & BITL(25))){
      extensionAdditionField_0 |= BITL(8);
    }
    if ((home->compmask [0] & BITL(26))){
      extensionAdditionField_0 |= BITL(7);
    }
    if ((home->compmask [0] & BITL(27))){
      extensionAdditionField_0 |= BITL(6);
    }
    if ((home->compmask [0] & BITL(28))){
      extensionAdditionField_0 |= BITL(5);
    }
    if ((home->compmask [0] & BITL(29))){
      extensionAdditionField_0 |= BITL(4);
    }
    if ((home->compmask [0] & BITL(30))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask [0] & BITL(31))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask [1] & BITL(0))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask [1] & BITL(1))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (33, extensionAdditionField_0);
  }
  if ((home->compmask [0] & BITL(1))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c0_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(2))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c1_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(3))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c2_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(4))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c3_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(5))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c4_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(6))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c5_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(7))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c6_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(8))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c7_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(9))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c8_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(10))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c9_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(11))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c10_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(12))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c11_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(13))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c12_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(14))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c13_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(15))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c14_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(16))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c15_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(17))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c16_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(18))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c17_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(19))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c18_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(20))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c19_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(21))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c20_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(22))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c21_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(23))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c22_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(24))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c23_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(25))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c24_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(26))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c25_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(27))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c26_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(28))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c27_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(29))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c28_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(30))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c29_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [0] & BITL(31))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c30_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [1] & BITL(0))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c31_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask [1] & BITL(1))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c32_fld);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peAddM32 (ASNG_F(ASNPERG *asnperg) AddM32 *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(31)|BITL(30)|BITL(29)|BITL(28)
      |BITL(27)|BITL(26)|BITL(25)|BITL(24)|BITL(23)|BITL(22)|BITL(21)|BITL(20)
      |BITL(19)|BITL(18)|BITL(17)|BITL(16)|BITL(15)|BITL(14)|BITL(13)|BITL(12)
      |BITL(11)|BITL(10)|BITL(9)|BITL(8)|BITL(7)|BITL(6)|BITL(5)|BITL(4)
      |BITL(3)|BITL(2)|BITL(1)|BITL(0);
    pe_extensionAddition (32, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c0_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c1_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c2_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c3_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c4_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c5_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c6_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c7_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c8_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c9_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c10_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c11_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c12_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c13_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c14_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c15_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c16_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c17_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c18_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c19_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c20_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c21_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c22_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c23_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c24_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c25_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c26_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c27_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c28_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c29_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c30_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c31_fld);
  pe_EndOpenType_al (&openctx_0);
}

void peAddM33 (ASNG_F(ASNPERG *asnperg) AddM33 *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(32)|BITL(31)|BITL(30)|BITL(29)
      |BITL(28)|BITL(27)|BITL(26)|BITL(25)|BITL(24)|BITL(23)|BITL(22)|BITL(21)
      |BITL(20)|BITL(19)|BITL(18)|BITL(17)|BITL(16)|BITL(15)|BITL(14)|BITL(13)
      |BITL(12)|BITL(11)|BITL(10)|BITL(9)|BITL(8)|BITL(7)|BITL(6)|BITL(5)
      |BITL(4)|BITL(3)|BITL(2)|BITL(1)|BITL(0);
    pe_extensionAddition (33, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c0_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c1_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c2_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c3_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c4_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c5_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c6_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c7_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c8_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c9_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c10_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c11_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c12_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c13_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c14_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c15_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c16_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c17_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c18_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c19_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c20_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c21_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c22_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c23_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c24_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c25_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c26_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c27_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c28_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c29_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c30_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c31_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c32_fld);
  pe_EndOpenType_al (&openctx_0);
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peAdd31 (ASNG_F(asnperg) &home->a_fld);
  peAdd32 (ASNG_F(asnperg) &home->b_fld);
  peAdd33 (ASNG_F(asnperg) &home->c_fld);
  peAddM32 (ASNG_F(asnperg) &home->d_fld);
  peAddM33 (ASNG_F(asnperg) &home->e_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
