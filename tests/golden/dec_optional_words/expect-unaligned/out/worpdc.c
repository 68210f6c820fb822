/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Words
 * FILE = worpdc.c
 ****************************************************************/

#ifndef WORPER_EXT
#include "worper.ext"
#endif

void pdOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (32);
    if (optfield_0 & BITL(31)){
      home->compmask |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0 & BITL(30)){
      home->compmask |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0 & BITL(29)){
      home->compmask |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0 & BITL(28)){
      home->compmask |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0 & BITL(27)){
      home->compmask |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0 & BITL(26)){
      home->compmask |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0 & BITL(25)){
      home->compmask |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0 & BITL(24)){
      home->compmask |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0 & BITL(23)){
      home->compmask |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0 & BITL(22)){
      home->compmask |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0 & BITL(21)){
      home->compmask |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0 & BITL(20)){
      home->compmask |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0 & BITL(19)){
      home->compmask |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0 & BITL(18)){
      home->compmask |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0 & BITL(17)){
      home->compmask |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0 & BITL(16)){
      home->compmask |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0 & BITL(15)){
      home->compmask |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0 & BITL(14)){
      home->compmask |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0 & BITL(13)){
      home->compmask |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0 & BITL(12)){
      home->compmask |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0 & BITL(11)){
      home->compmask |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0 & BITL(10)){
      home->compmask |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0 & BITL(9)){
      home->compmask |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0 & BITL(8)){
      home->compmask |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0 & BITL(7)){
      home->compmask |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0 & BITL(6)){
      home->compmask |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0 & BITL(5)){
      home->compmask |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0 & BITL(4)){
      home->compmask |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0 & BITL(3)){
      home->compmask |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0 & BITL(2)){
      home->compmask |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0 & BITL(1)){
      home->compmask |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BITL(31);
      pd_NullType ();
    }
  }
}

void pdTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  home->compmask [0] = home->compmask [1] = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0[2];
    optfield_0[1] = pd_getBits (1);
    optfield_0[0] = pd_getBits (32);
    pd_Boolean (&home->first_fld);
    if (optfield_0[1] & BITL(0)){
      home->compmask [0] |= BITL(1);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(31)){
      home->compmask [0] |= BITL(2);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(30)){
      home->compmask [0] |= BITL(3);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(29)){
      home->compmask [0] |= BITL(4);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(28)){
      home->compmask [0] |= BITL(5);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(27)){
      home->compmask [0] |= BITL(6);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(26)){
      home->compmask [0] |= BITL(7);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(25)){
      home->compmask [0] |= BITL(8);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(24)){
      home->compmask [0] |= BITL(9);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(23)){
      home->compmask [0] |= BITL(10);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(22)){
      home->compmask [0] |= BITL(11);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(21)){
      home->compmask [0] |= BITL(12);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(20)){
      home->compmask [0] |= BITL(13);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(19)){
      home->compmask [0] |= BITL(14);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(18)){
      home->compmask [0] |= BITL(15);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(17)){
      home->compmask [0] |= BITL(16);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(16)){
      home->compmask [0] |= BITL(17);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(15)){
      home->compmask [0] |= BITL(18);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(14)){
      home->compmask [0] |= BITL(19);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(13)){
      home->compmask [0] |= BITL(20);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(12)){
      home->compmask [0] |= BITL(21);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(11)){
      home->compmask [0] |= BITL(22);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(10)){
      home->compmask [0] |= BITL(23);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(9)){
      home->compmask [0] |= BITL(24);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(8)){
      home->compmask [0] |= BITL(25);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(7)){
      home->compmask [0] |= BITL(26);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(6)){
      home->compmask [0] |= BITL(27);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(5)){
      home->compmask [0] |= BITL(28);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(4)){
      home->compmask [0] |= BITL(29);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(3)){
      home->compmask [0] |= BITL(30);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(2)){
      home->compmask [0] |= BITL(31);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(1)){
      home->compmask [1] |= BITL(0);
      pd_NullType ();
    }
    if (optfield_0[0] & BITL(0)){
      home->compmask [1] |= BITL(1);
      pd_NullType ();
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdGroup (ASNG_F(ASNPERG *asnperg) Group *home)
{
  home->compmask [0] = home->compmask [1] = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask [0] |= BITL(0);
      pd_Boolean (&home->a_fld);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        {
          sint32 optfield_1[2];
          optfield_1[1] = pd_getBits (1);
          optfield_1[0] = pd_getBits (32);
          if (optfield_1[1] & BITL(0)){
            home->compmask [0] |= BITL(2);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(31)){
            home->compmask [0] |= BITL(3);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(30)){
            home->compmask [0] |= BITL(4);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(29)){
            home->compmask [0] |= BITL(5);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(28)){
            home->compmask [0] |= BITL(6);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(27)){
            home->compmask [0] |= BITL(7);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(26)){
            home->compmask [0] |= BITL(8);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(25)){
            home->compmask [0] |= BITL(9);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(24)){
            home->compmask [0] |= BITL(10);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(23)){
            home->compmask [0] |= BITL(11);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(22)){
            home->compmask [0] |= BITL(12);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(21)){
            home->compmask [0] |= BITL(13);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(20)){
            home->compmask [0] |= BITL(14);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(19)){
            home->compmask [0] |= BITL(15);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(18)){
            home->compmask [0] |= BITL(16);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(17)){
            home->compmask [0] |= BITL(17);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(16)){
            home->compmask [0] |= BITL(18);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(15)){
            home->compmask [0] |= BITL(19);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(14)){
            home->compmask [0] |= BITL(20);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(13)){
            home->compmask [0] |= BITL(21);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(12)){
            home->compmask [0] |= BITL(22);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(11)){
            home->compmask [0] |= BITL(23);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(10)){
            home->compmask [0] |= BITL(24);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(9)){
            home->compmask [0] |= BITL(25);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(8)){
            home->compmask [0] |= BITL(26);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(7)){
            home->compmask [0] |= BITL(27);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(6)){
            home->compmask [0] |= BITL(28);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(5)){
            home->compmask [0] |= BITL(29);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(4)){
            home->compmask [0] |= BITL(30);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(3)){
            home->compmask [0] |= BITL(31);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(2)){
            home->compmask [1] |= BITL(0);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(1)){
            home->compmask [1] |= BITL(1);
            pd_NullType ();
          }
          if (optfield_1[0] & BITL(0)){
            home->compmask [1] |= BITL(2);
            pd_NullType ();
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask [1] |= BITL(3);
        pd_NullType ();
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
