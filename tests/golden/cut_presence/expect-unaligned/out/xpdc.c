/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutPresence
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdTOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf19xxxxxxxxxxxxxxx *home)
{
  home->of19xxxxxxxxxxxxxxxA_fld.compmask = 0;
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    sint32 optfield_1;
    optfield_1 = pd_getBits (2);
    if (optfield_1 & BITL(1)){
      home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(0);
      pd_Boolean (&home->of19xxxxxxxxxxxxxxxA_fld.a_fld);
    }
    if (optfield_1 & BITL(0)){
      home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(1);
      pd_sint32_cwn_ua_8 (&home->of19xxxxxxxxxxxxxxxA_fld.b_fld, 0, 7, 3);
      if (home->of19xxxxxxxxxxxxxxxA_fld.b_fld == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (3,
        &extensionAdditionField_1);
      ASNPEROPENCTX openctx_1;
      if (extensionAdditionField_1 & BITL(2)){
        pd_BeginOpenType_ua (&openctx_1);
        home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(3);
        pd_Boolean (&home->of19xxxxxxxxxxxxxxxA_fld.c_fld);
        pd_EndOpenType_ua (&openctx_1);
      }
      if (extensionAdditionField_1 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_1);
        {
          sint32 optfield_2;
          optfield_2 = pd_getBits (2);
          if (optfield_2 & BITL(1)){
            home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(4);
            pd_Boolean (&home->of19xxxxxxxxxxxxxxxA_fld.d_fld);
          }
          if (optfield_2 & BITL(0)){
            home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(5);
            pd_Boolean (&home->of19xxxxxxxxxxxxxxxA_fld.e_fld);
          }
        }
        pd_EndOpenType_ua (&openctx_1);
      }
      if (extensionAdditionField_1 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_1);
        home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(6);
        pd_sint32_cwn_ua_8 (&home->of19xxxxxxxxxxxxxxxA_fld.f_fld, 0, 7, 3);
        if (home->of19xxxxxxxxxxxxxxxA_fld.f_fld == 4){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
        pd_EndOpenType_ua (&openctx_1);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_1);
    }
  }
  if (!(home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(1))){
    home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(1);
    home->of19xxxxxxxxxxxxxxxA_fld.b_fld = 3;
  }
  if (!(home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
    home->of19xxxxxxxxxxxxxxxA_fld.compmask |= BIT(6);
    home->of19xxxxxxxxxxxxxxxA_fld.f_fld = 4;
  }
}

void pdHOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  HOf19xxxxxxxxxxxxxxx *home)
{
  memset (home, 0, sizeof (HOf19xxxxxxxxxxxxxxx));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->aof19xxxxxxxxxxxxxxx_fld, VF_UI8, 0);
      pd_sint32_cwn_ua_8 (&home->aof19xxxxxxxxxxxxxxx_fld->val.ui8, 0, 7, 3);
      if (home->aof19xxxxxxxxxxxxxxx_fld->val.ui8 == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (NULL, &home->_fld, VF_NONE, 0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (2);
          if (optfield_1 & BITL(1)){
            createHome (NULL, &home->_fld.dof19xxxxxxxxxxxxxxx_fld, VF_BOOL,
              0);
            pd_Boolean (&home->_fld.dof19xxxxxxxxxxxxxxx_fld->val.bool);
          }
          if (optfield_1 & BITL(0)){
            createHome (NULL, &home->_fld.eof19xxxxxxxxxxxxxxx_fld, VF_BOOL,
              0);
            pd_Boolean (&home->_fld.eof19xxxxxxxxxxxxxxx_fld->val.bool);
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (NULL, &home->_fld.fof19xxxxxxxxxxxxxxx_fld, VF_BOOL, 0);
        pd_Boolean (&home->_fld.fof19xxxxxxxxxxxxxxx_fld->val.bool);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  {
    createHome (NULL, &home->aof19xxxxxxxxxxxxxxx_fld, VF_UI8, 0);
    home->aof19xxxxxxxxxxxxxxx_fld->val.ui8 = 3;
  }
}

void pdKOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  KOf19xxxxxxxxxxxxxxx *home)
{
  initExtensionmarker (&home->of19xxxxxxxxxxxxxxxA_fld.extensionmarker);
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    pd_Boolean (&home->of19xxxxxxxxxxxxxxxA_fld.b_fld);
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (0,
        &extensionAdditionField_1);
      pd_SaveExtendedComponents (
        &home->of19xxxxxxxxxxxxxxxA_fld.extensionmarker,
        extensionAdditionCount_1);
    }
  }
}

void pdTOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask = 0;
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    sint32 optfield_1;
    optfield_1 = pd_getBits (2);
    if (optfield_1 & BITL(1)){
      home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(0);
      pd_Boolean (&home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.a_fld);
    }
    if (optfield_1 & BITL(0)){
      home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(1);
      pd_sint32_cwn_ua_8 (
        &home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld, 0, 7, 3);
      if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (3,
        &extensionAdditionField_1);
      ASNPEROPENCTX openctx_1;
      if (extensionAdditionField_1 & BITL(2)){
        pd_BeginOpenType_ua (&openctx_1);
        home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(3);
        pd_Boolean (&home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.c_fld);
        pd_EndOpenType_ua (&openctx_1);
      }
      if (extensionAdditionField_1 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_1);
        {
          sint32 optfield_2;
          optfield_2 = pd_getBits (2);
          if (optfield_2 & BITL(1)){
            home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(4);
            pd_Boolean (
              &home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.d_fld);
          }
          if (optfield_2 & BITL(0)){
            home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(5);
            pd_Boolean (
              &home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.e_fld);
          }
        }
        pd_EndOpenType_ua (&openctx_1);
      }
      if (extensionAdditionField_1 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_1);
        home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(6);
        pd_sint32_cwn_ua_8 (
          &home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld, 0, 7, 3);
        if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld == 4){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
        pd_EndOpenType_ua (&openctx_1);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_1);
    }
  }
  if (!(home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(1))){
    home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(1);
    home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld = 3;
  }
  if (!(home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
    home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(6);
    home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld = 4;
  }
}

void pdHOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  HOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  memset (home, 0, sizeof (HOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
        VF_UI8, 0);
      pd_sint32_cwn_ua_8 (
        &home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8, 0, 7, 3);
      if (home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (NULL, &home->_fld, VF_NONE, 0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (2);
          if (optfield_1 & BITL(1)){
            createHome (NULL,
              &home->_fld.dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld, VF_BOOL,
              0);
            pd_Boolean (
              &home->_fld.dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          }
          if (optfield_1 & BITL(0)){
            createHome (NULL,
              &home->_fld.eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld, VF_BOOL,
              0);
            pd_Boolean (
              &home->_fld.eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (NULL,
          &home->_fld.fof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld, VF_BOOL, 0);
        pd_Boolean (
          &home->_fld.fof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  {
    createHome (NULL, &home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld
      , VF_UI8, 0);
    home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 = 3;
  }
}

void pdKOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  KOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  initExtensionmarker (
    &home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.extensionmarker);
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    pd_Boolean (&home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld);
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (0,
        &extensionAdditionField_1);
      pd_SaveExtendedComponents (
        &home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.extensionmarker,
        extensionAdditionCount_1);
    }
  }
}

void pdTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask = 0;
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    sint32 optfield_1;
    optfield_1 = pd_getBits (2);
    if (optfield_1 & BITL(1)){
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(0);
      pd_Boolean (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.a_fld);
    }
    if (optfield_1 & BITL(0)){
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(1);
      pd_sint32_cwn_ua_8 (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld,
        0, 7, 3);
      if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (3,
        &extensionAdditionField_1);
      ASNPEROPENCTX openctx_1;
      if (extensionAdditionField_1 & BITL(2)){
        pd_BeginOpenType_ua (&openctx_1);
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(3);
        pd_Boolean (
          &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.c_fld);
        pd_EndOpenType_ua (&openctx_1);
      }
      if (extensionAdditionField_1 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_1);
        {
          sint32 optfield_2;
          optfield_2 = pd_getBits (2);
          if (optfield_2 & BITL(1)){
            home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(4);
            pd_Boolean (
              &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.d_fld);
          }
          if (optfield_2 & BITL(0)){
            home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(5);
            pd_Boolean (
              &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.e_fld);
          }
        }
        pd_EndOpenType_ua (&openctx_1);
      }
      if (extensionAdditionField_1 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_1);
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(6);
        pd_sint32_cwn_ua_8 (
          &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld,
          0, 7, 3);
        if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld == 4){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
        pd_EndOpenType_ua (&openctx_1);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_1);
    }
  }
  if (!(home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(1))){
    home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(1);
    home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld = 3;
  }
  if (!(home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
    home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask |= BIT(6);
    home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld = 4;
  }
}

void pdHOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  memset (home, 0,
    sizeof (HOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      createHome (NULL,
        &home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
        VF_UI8, 0);
      pd_sint32_cwn_ua_8 (
        &home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8,
        0, 7, 3);
      if (home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (NULL, &home->_fld, VF_NONE, 0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (2);
          if (optfield_1 & BITL(1)){
            createHome (NULL,
              &home->_fld.dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
              VF_BOOL, 0);
            pd_Boolean (
              &home->_fld.dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          }
          if (optfield_1 & BITL(0)){
            createHome (NULL,
              &home->_fld.eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
              VF_BOOL, 0);
            pd_Boolean (
              &home->_fld.eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (NULL,
          &home->_fld.fof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
          VF_BOOL, 0);
        pd_Boolean (
          &home->_fld.fof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  {
    createHome (NULL, &home->
      aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld, VF_UI8,
      0);
    home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 = 3;
  }
}

void pdKOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  KOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  initExtensionmarker (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.extensionmarker);
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    pd_Boolean (
      &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld);
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (0,
        &extensionAdditionField_1);
      pd_SaveExtendedComponents (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.extensionmarker,
        extensionAdditionCount_1);
    }
  }
}
