/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Words
 * FILE = worpec.c
 ****************************************************************/

#ifndef WORPER_EXT
#include "worper.ext"
#endif

void peOne (ASNG_F(ASNPERG *asnperg) One *home)
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
    pe_NullType ();
  }
  if ((home->compmask & BITL(1))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(2))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(3))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(4))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(5))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(6))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(7))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(8))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(9))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(10))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(11))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(12))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(13))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(14))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(15))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(16))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(17))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(18))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(19))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(20))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(21))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(22))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(23))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(24))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(25))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(26))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(27))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(28))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(29))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(30))){
    pe_NullType ();
  }
  if ((home->compmask & BITL(31))){
    pe_NullType ();
  }
}

void peTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0[2] = {0, 0};
    if (home->compmask [0] & BITL(1)){
      optfield_0[1] |= BITL(0);
    }
    if (home->compmask [0] & BITL(2)){
      optfield_0[0] |= BITL(31);
    }
    if (home->compmask [0] & BITL(3)){
      optfield_0[0] |= BITL(30);
    }
    if (home->compmask [0] & BITL(4)){
      optfield_0[0] |= BITL(29);
    }
    if (home->compmask [0] & BITL(5)){
      optfield_0[0] |= BITL(28);
    }
    if (home->compmask [0] & BITL(6)){
      optfield_0[0] |= BITL(27);
    }
    if (home->compmask [0] & BITL(7)){
      optfield_0[0] |= BITL(26);
    }
    if (home->compmask [0] & BITL(8)){
      optfield_0[0] |= BITL(25);
    }
    if (home->compmask [0] & BITL(9)){
      optfield_0[0] |= BITL(24);
    }
    if (home->compmask [0] & BITL(10)){
      optfield_0[0] |= BITL(23);
    }
    if (home->compmask [0] & BITL(11)){
      optfield_0[0] |= BITL(22);
    }
    if (home->compmask [0] & BITL(12)){
      optfield_0[0] |= BITL(21);
    }
    if (home->compmask [0] & BITL(13)){
      optfield_0[0] |= BITL(20);
    }
    if (home->compmask [0] & BITL(14)){
      optfield_0[0] |= BITL(19);
    }
    if (home->compmask [0] & BITL(15)){
      optfield_0[0] |= BITL(18);
    }
    if (home->compmask [0] & BITL(16)){
      optfield_0[0] |= BITL(17);
    }
    if (home->compmask [0] & BITL(17)){
      optfield_0[0] |= BITL(16);
    }
    if (home->compmask [0] & BITL(18)){
      optfield_0[0] |= BITL(15);
    }
    if (home->compmask [0] & BITL(19)){
      optfield_0[0] |= BITL(14);
    }
    if (home->compmask [0] & BITL(20)){
      optfield_0[0] |= BITL(13);
    }
    if (home->compmask [0] & BITL(21)){
      optfield_0[0] |= BITL(12);
    }
    if (home->compmask [0] & BITL(22)){
      optfield_0[0] |= BITL(11);
    }
    if (home->compmask [0] & BITL(23)){
      optfield_0[0] |= BITL(10);
    }
    if (home->compmask [0] & BITL(24)){
      optfield_0[0] |= BITL(9);
    }
    if (home->compmask [0] & BITL(25)){
      optfield_0[0] |= BITL(8);
    }
    if (home->compmask [0] & BITL(26)){
      optfield_0[0] |= BITL(7);
    }
    if (home->compmask [0] & BITL(27)){
      optfield_0[0] |= BITL(6);
    }
    if (home->compmask [0] & BITL(28)){
      optfield_0[0] |= BITL(5);
    }
    if (home->compmask [0] & BITL(29)){
      optfield_0[0] |= BITL(4);
    }
    if (home->compmask [0] & BITL(30)){
      optfield_0[0] |= BITL(3);
    }
    if (home->compmask [0] & BITL(31)){
      optfield_0[0] |= BITL(2);
    }
    if (home->compmask [1] & BITL(0)){
      optfield_0[0] |= BITL(1);
    }
    if (home->compmask [1] & BITL(1)){
      optfield_0[0] |= BITL(0);
    }
    pe_optField (optfield_0[1], 1);
    pe_optField (optfield_0[0], 32);
  }
  pe_Boolean (home->first_fld);
  if ((home->compmask [0] & BITL(1))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(2))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(3))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(4))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(5))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(6))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(7))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(8))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(9))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(10))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(11))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(12))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(13))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(14))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(15))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(16))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(17))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(18))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(19))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(20))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(21))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(22))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(23))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(24))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(25))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(26))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(27))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(28))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(29))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(30))){
    pe_NullType ();
  }
  if ((home->compmask [0] & BITL(31))){
    pe_NullType ();
  }
  if ((home->compmask [1] & BITL(0))){
    pe_NullType ();
  }
  if ((home->compmask [1] & BITL(1))){
    pe_NullType ();
  }
}

void peGroup (ASNG_F(ASNPERG *asnperg) Group *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask [0] & BITL(2)) || (home->compmask [0] & BITL(3)) || 
    (home->compmask [0] & BITL(4)) || (home->compmask [0] & BITL(5)) || 
    (home->compmask [0] & BITL(6)) || (home->compmask [0] & BITL(7)) || 
    (home->compmask [0] & BITL(8)) || (home->compmask [0] & BITL(9)) || 
    (home->compmask [0] & BITL(10)) || (home->compmask [0] & BITL(11)) || 
    (home->compmask [0] & BITL(12)) || (home->compmask [0] & BITL(13)) || 
    (home->compmask [0] & BITL(14)) || (home->compmask [0] & BITL(15)) || 
    (home->compmask [0] & BITL(16)) || (home->compmask [0] & BITL(17)) || 
    (home->compmask [0] & BITL(18)) || (home->compmask [0] & BITL(19)) || 
    (home->compmask [0] & BITL(20)) || (home->compmask [0] & BITL(21)) || 
    (home->compmask [0] & BITL(22)) || (home->compmask [0] & BITL(23)) || 
    (home->compmask [0] & BITL(24)) || (home->compmask [0] & BITL(25)) || 
    (home->compmask [0] & BITL(26)) || (home->compmask [0] & BITL(27)) || 
    (home->compmask [0] & BITL(28)) || (home->compmask [0] & BITL(29)) || 
    (home->compmask [0] & BITL(30)) || (home->compmask [0] & BITL(31)) || 
    (home->compmask [1] & BITL(0)) || (home->compmask [1] & BITL(1)) || 
    (home->compmask [1] & BITL(2)) || (home->compmask [1] & BITL(3))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask [0] & BITL(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask [0] & BITL(0))){
    pe_Boolean (home->a_fld);
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask [0] & BITL(2)) || (home->compmask [0] & BITL(3)) || 
      (home->compmask [0] & BITL(4)) || (home->compmask [0] & BITL(5)) || 
      (home->compmask [0] & BITL(6)) || (home->compmask [0] & BITL(7)) || 
      (home->compmask [0] & BITL(8)) || (home->compmask [0] & BITL(9)) || 
      (home->compmask [0] & BITL(10)) || (home->compmask [0] & BITL(11)) || 
      (home->compmask [0] & BITL(12)) || (home->compmask [0] & BITL(13)) || 
      (home->compmask [0] & BITL(14)) || (home->compmask [0] & BITL(15)) || 
      (home->compmask [0] & BITL(16)) || (home->compmask [0] & BITL(17)) || 
      (home->compmask [0] & BITL(18)) || (home->compmask [0] & BITL(19)) || 
      (home->compmask [0] & BITL(20)) || (home->compmask [0] & BITL(21)) || 
      (home->compmask [0] & BITL(22)) || (home->compmask [0] & BITL(23)) || 
      (home->compmask [0] & BITL(24)) || (home->compmask [0] & BITL(25)) || 
      (home->compmask [0] & BITL(26)) || (home->compmask [0] & BITL(27)) || 
      (home->compmask [0] & BITL(28)) || (home->compmask [0] & BITL(29)) || 
      (home->compmask [0] & BITL(30)) || (home->compmask [0] & BITL(31)) || 
      (home->compmask [1] & BITL(0)) || (home->compmask [1] & BITL(1)) || 
      (home->compmask [1] & BITL(2))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask [1] & BITL(3))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask [0] & BITL(2)) || (home->compmask [0] & BITL(3)) || 
    (home->compmask [0] & BITL(4)) || (home->compmask [0] & BITL(5)) || 
    (home->compmask [0] & BITL(6)) || (home->compmask [0] & BITL(7)) || 
    (home->compmask [0] & BITL(8)) || (home->compmask [0] & BITL(9)) || 
    (home->compmask [0] & BITL(10)) || (home->compmask [0] & BITL(11)) || 
    (home->compmask [0] & BITL(12)) || (home->compmask [0] & BITL(13)) || 
    (home->compmask [0] & BITL(14)) || (home->compmask [0] & BITL(15)) || 
    (home->compmask [0] & BITL(16)) || (home->compmask [0] & BITL(17)) || 
    (home->compmask [0] & BITL(18)) || (home->compmask [0] & BITL(19)) || 
    (home->compmask [0] & BITL(20)) || (home->compmask [0] & BITL(21)) || 
    (home->compmask [0] & BITL(22)) || (home->compmask [0] & BITL(23)) || 
    (home->compmask [0] & BITL(24)) || (home->compmask [0] & BITL(25)) || 
    (home->compmask [0] & BITL(26)) || (home->compmask [0] & BITL(27)) || 
    (home->compmask [0] & BITL(28)) || (home->compmask [0] & BITL(29)) || 
    (home->compmask [0] & BITL(30)) || (home->compmask [0] & BITL(31)) || 
    (home->compmask [1] & BITL(0)) || (home->compmask [1] & BITL(1)) || 
    (home->compmask [1] & BITL(2))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1[2] = {0, 0};
      if (home->compmask [0] & BITL(2)){
        optfield_1[1] |= BITL(0);
      }
      if (home->compmask [0] & BITL(3)){
        optfield_1[0] |= BITL(31);
      }
      if (home->compmask [0] & BITL(4)){
        optfield_1[0] |= BITL(30);
      }
      if (home->compmask [0] & BITL(5)){
        optfield_1[0] |= BITL(29);
      }
      if (home->compmask [0] & BITL(6)){
        optfield_1[0] |= BITL(28);
      }
      if (home->compmask [0] & BITL(7)){
        optfield_1[0] |= BITL(27);
      }
      if (home->compmask [0] & BITL(8)){
        optfield_1[0] |= BITL(26);
      }
      if (home->compmask [0] & BITL(9)){
        optfield_1[0] |= BITL(25);
      }
      if (home->compmask [0] & BITL(10)){
        optfield_1[0] |= BITL(24);
      }
      if (home->compmask [0] & BITL(11)){
        optfield_1[0] |= BITL(23);
      }
      if (home->compmask [0] & BITL(12)){
        optfield_1[0] |= BITL(22);
      }
      if (home->compmask [0] & BITL(13)){
        optfield_1[0] |= BITL(21);
      }
      if (home->compmask [0] & BITL(14)){
        optfield_1[0] |= BITL(20);
      }
      if (home->compmask [0] & BITL(15)){
        optfield_1[0] |= BITL(19);
      }
      if (home->compmask [0] & BITL(16)){
        optfield_1[0] |= BITL(18);
      }
      if (home->compmask [0] & BITL(17)){
        optfield_1[0] |= BITL(17);
      }
      if (home->compmask [0] & BITL(18)){
        optfield_1[0] |= BITL(16);
      }
      if (home->compmask [0] & BITL(19)){
        optfield_1[0] |= BITL(15);
      }
      if (home->compmask [0] & BITL(20)){
        optfield_1[0] |= BITL(14);
      }
      if (home->compmask [0] & BITL(21)){
        optfield_1[0] |= BITL(13);
      }
      if (home->compmask [0] & BITL(22)){
        optfield_1[0] |= BITL(12);
      }
      if (home->compmask [0] & BITL(23)){
        optfield_1[0] |= BITL(11);
      }
      if (home->compmask [0] & BITL(24)){
        optfield_1[0] |= BITL(10);
      }
      if (home->compmask [0] & BITL(25)){
        optfield_1[0] |= BITL(9);
      }
      if (home->compmask [0] & BITL(26)){
        optfield_1[0] |= BITL(8);
      }
      if (home->compmask [0] & BITL(27)){
        optfield_1[0] |= BITL(7);
      }
      if (home->compmask [0] & BITL(28)){
        optfield_1[0] |= BITL(6);
      }
      if (home->compmask [0] & BITL(29)){
        optfield_1[0] |= BITL(5);
      }
      if (home->compmask [0] & BITL(30)){
        optfield_1[0] |= BITL(4);
      }
      if (home->compmask [0] & BITL(31)){
        optfield_1[0] |= BITL(3);
      }
      if (home->compmask [1] & BITL(0)){
        optfield_1[0] |= BITL(2);
      }
      if (home->compmask [1] & BITL(1)){
        optfield_1[0] |= BITL(1);
      }
      if (home->compmask [1] & BITL(2)){
        optfield_1[0] |= BITL(0);
      }
      pe_optField (optfield_1[1], 1);
      pe_optField (optfield_1[0], 32);
      if ((home->compmask [0] & BITL(2))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(3))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(4))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(5))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(6))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(7))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(8))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(9))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(10))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(11))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(12))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(13))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(14))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(15))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(16))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(17))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(18))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(19))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(20))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(21))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(22))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(23))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(24))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(25))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(26))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(27))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(28))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(29))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(30))){
        pe_NullType ();
      }
      if ((home->compmask [0] & BITL(31))){
        pe_NullType ();
      }
      if ((home->compmask [1] & BITL(0))){
        pe_NullType ();
      }
      if ((home->compmask [1] & BITL(1))){
        pe_NullType ();
      }
      if ((home->compmask [1] & BITL(2))){
        pe_NullType ();
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask [1] & BITL(3))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_NullType ();
    pe_EndOpenType_ua (&openctx_0);
  }
}
