/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutPresence
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peTOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf19xxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(3)) || 
      (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(4)) || 
      (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(5)) || (
      (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(6)) && 
      (home->of19xxxxxxxxxxxxxxxA_fld.f_fld != 4))){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    {
      sint32 optfield_1 = 0;
      if (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(0)){
        optfield_1 |= BITL(1);
      }
      if (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(1)){
        if (home->of19xxxxxxxxxxxxxxxA_fld.b_fld != 3){
          optfield_1 |= BITL(0);
        }
      }
      pe_optField (optfield_1, 2);
    }
    if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(0))){
      pe_Boolean (home->of19xxxxxxxxxxxxxxxA_fld.a_fld);
    }
    if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(1))){
      if (home->of19xxxxxxxxxxxxxxxA_fld.b_fld != 3){
        pe_sint32_cwn_ua (home->of19xxxxxxxxxxxxxxxA_fld.b_fld, 0, 7, 3);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(3))){
        extensionAdditionField_1 |= BITL(2);
      }
      if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(4)) || 
        (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
        extensionAdditionField_1 |= BITL(1);
      }
      if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
        if (home->of19xxxxxxxxxxxxxxxA_fld.f_fld != 4){
          extensionAdditionField_1 |= BITL(0);
        }
      }
      pe_extensionAddition (3, extensionAdditionField_1);
    }
    if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(3))){
      pe_BeginOpenType_ua (&openctx_1);
      pe_Boolean (home->of19xxxxxxxxxxxxxxxA_fld.c_fld);
      pe_EndOpenType_ua (&openctx_1);
    }
    if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(4)) || 
      (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
      pe_BeginOpenType_ua (&openctx_1);
      {
        sint32 optfield_2 = 0;
        if (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(4)){
          optfield_2 |= BITL(1);
        }
        if (home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(5)){
          optfield_2 |= BITL(0);
        }
        pe_optField (optfield_2, 2);
        if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(4))){
          pe_Boolean (home->of19xxxxxxxxxxxxxxxA_fld.d_fld);
        }
        if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
          pe_Boolean (home->of19xxxxxxxxxxxxxxxA_fld.e_fld);
        }
      }
      pe_EndOpenType_ua (&openctx_1);
    }
    if ((home->of19xxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
      if (home->of19xxxxxxxxxxxxxxxA_fld.f_fld != 4){
        pe_BeginOpenType_ua (&openctx_1);
        pe_sint32_cwn_ua (home->of19xxxxxxxxxxxxxxxA_fld.f_fld, 0, 7, 3);
        pe_EndOpenType_ua (&openctx_1);
      }
    }
  }
}

void peHOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  HOf19xxxxxxxxxxxxxxx *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->dof19xxxxxxxxxxxxxxx_fld || home->eof19xxxxxxxxxxxxxxx_fld || 
    home->fof19xxxxxxxxxxxxxxx_fld){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->aof19xxxxxxxxxxxxxxx_fld){
      if (home->aof19xxxxxxxxxxxxxxx_fld->val.ui8 != 3){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 1);
  }
  if (home->aof19xxxxxxxxxxxxxxx_fld){
    if (home->aof19xxxxxxxxxxxxxxx_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (home->aof19xxxxxxxxxxxxxxx_fld->val.ui8, 0, 7, 3);
    }
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if (home->dof19xxxxxxxxxxxxxxx_fld || home->eof19xxxxxxxxxxxxxxx_fld){
      extensionAdditionField_0 |= BITL(1);
    }
    if (home->fof19xxxxxxxxxxxxxxx_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if (home->_fld.dof19xxxxxxxxxxxxxxx_fld || 
    home->_fld.eof19xxxxxxxxxxxxxxx_fld){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->dof19xxxxxxxxxxxxxxx_fld){
        optfield_1 |= BITL(1);
      }
      if (home->eof19xxxxxxxxxxxxxxx_fld){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if (home->_fld.dof19xxxxxxxxxxxxxxx_fld){
        pe_Boolean (home->_fld.dof19xxxxxxxxxxxxxxx_fld->val.bool);
      }
      if (home->_fld.eof19xxxxxxxxxxxxxxx_fld){
        pe_Boolean (home->_fld.eof19xxxxxxxxxxxxxxx_fld->val.bool);
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
  if (home->_fld.fof19xxxxxxxxxxxxxxx_fld){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->_fld.fof19xxxxxxxxxxxxxxx_fld->val.bool);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peKOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  KOf19xxxxxxxxxxxxxxx *home)
{
  {
    pe_extensionBit (0);
    pe_Boolean (home->of19xxxxxxxxxxxxxxxA_fld.b_fld);
  }
}

void peTOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(3))
      || (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))
      || (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))
      || ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))
      && (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld != 4))){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    {
      sint32 optfield_1 = 0;
      if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(0)){
        optfield_1 |= BITL(1);
      }
      if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(1)){
        if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld != 3){
          optfield_1 |= BITL(0);
        }
      }
      pe_optField (optfield_1, 2);
    }
    if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(0))){
      pe_Boolean (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.a_fld);
    }
    if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(1))){
      if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld != 3){
        pe_sint32_cwn_ua (
          home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld, 0, 7, 3);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(3))){
        extensionAdditionField_1 |= BITL(2);
      }
      if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))
        || (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
        extensionAdditionField_1 |= BITL(1);
      }
      if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
        if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld != 4){
          extensionAdditionField_1 |= BITL(0);
        }
      }
      pe_extensionAddition (3, extensionAdditionField_1);
    }
    if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(3))){
      pe_BeginOpenType_ua (&openctx_1);
      pe_Boolean (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.c_fld);
      pe_EndOpenType_ua (&openctx_1);
    }
    if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))
      || (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
      pe_BeginOpenType_ua (&openctx_1);
      {
        sint32 optfield_2 = 0;
        if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4)){
          optfield_2 |= BITL(1);
        }
        if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5)){
          optfield_2 |= BITL(0);
        }
        pe_optField (optfield_2, 2);
        if (
          (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))){
          pe_Boolean (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.d_fld);
        }
        if (
          (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
          pe_Boolean (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.e_fld);
        }
      }
      pe_EndOpenType_ua (&openctx_1);
    }
    if ((home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
      if (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld != 4){
        pe_BeginOpenType_ua (&openctx_1);
        pe_sint32_cwn_ua (
          home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld, 0, 7, 3);
        pe_EndOpenType_ua (&openctx_1);
      }
    }
  }
}

void peHOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  HOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld || 
    home->eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld || 
    home->fof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
      if (home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 != 3){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 1);
  }
  if (home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    if (home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (
        home->aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8, 0, 7, 3);
    }
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if (home->dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld || 
      home->eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
      extensionAdditionField_0 |= BITL(1);
    }
    if (home->fof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if (home->_fld.dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld || 
    home->_fld.eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        optfield_1 |= BITL(1);
      }
      if (home->eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if (home->_fld.dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        pe_Boolean (
          home->_fld.dof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
      }
      if (home->_fld.eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        pe_Boolean (
          home->_fld.eof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
  if (home->_fld.fof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (
      home->_fld.fof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peKOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  KOf36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    pe_extensionBit (0);
    pe_Boolean (home->of36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld);
  }
}

void peTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if (
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(3))
      || 
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))
      || 
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))
      || (
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))
      && 
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld != 4))){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    {
      sint32 optfield_1 = 0;
      if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(0)){
        optfield_1 |= BITL(1);
      }
      if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(1)){
        if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld != 3){
          optfield_1 |= BITL(0);
        }
      }
      pe_optField (optfield_1, 2);
    }
    if (
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(0))){
      pe_Boolean (
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.a_fld);
    }
    if (
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(1))){
      if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld != 3){
        pe_sint32_cwn_ua (
          home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld,
          0, 7, 3);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      if (
        (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(3))){
        extensionAdditionField_1 |= BITL(2);
      }
      if (
        (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))
        || 
        (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
        extensionAdditionField_1 |= BITL(1);
      }
      if (
        (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
        if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld != 4){
          extensionAdditionField_1 |= BITL(0);
        }
      }
      pe_extensionAddition (3, extensionAdditionField_1);
    }
    if (
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(3))){
      pe_BeginOpenType_ua (&openctx_1);
      pe_Boolean (
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.c_fld);
      pe_EndOpenType_ua (&openctx_1);
    }
    if (
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))
      || 
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
      pe_BeginOpenType_ua (&openctx_1);
      {
        sint32 optfield_2 = 0;
        if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4)){
          optfield_2 |= BITL(1);
        }
        if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5)){
          optfield_2 |= BITL(0);
        }
        pe_optField (optfield_2, 2);
        if (
          (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(4))){
          pe_Boolean (
            home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.d_fld);
        }
        if (
          (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(5))){
          pe_Boolean (
            home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.e_fld);
        }
      }
      pe_EndOpenType_ua (&openctx_1);
    }
    if (
      (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.compmask & BIT(6))){
      if (home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld != 4){
        pe_BeginOpenType_ua (&openctx_1);
        pe_sint32_cwn_ua (
          home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.f_fld,
          0, 7, 3);
        pe_EndOpenType_ua (&openctx_1);
      }
    }
  }
}

void peHOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld || 
    home->eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld || 
    home->fof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
      if (home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 != 3){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 1);
  }
  if (home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    if (home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (
        home->aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.ui8,
        0, 7, 3);
    }
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if (home->dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld || 
      home->eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
      extensionAdditionField_0 |= BITL(1);
    }
    if (home->fof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if (home->_fld.dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld
    || home->_fld.eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        optfield_1 |= BITL(1);
      }
      if (home->eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if (
        home->_fld.dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        pe_Boolean (
          home->_fld.dof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
      }
      if (
        home->_fld.eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
        pe_Boolean (
          home->_fld.eof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
  if (home->_fld.fof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (
      home->_fld.fof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peKOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  KOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    pe_extensionBit (0);
    pe_Boolean (
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.b_fld);
  }
}
if (home->aof19xxxxxxxxxxxxxxx_fld == NULL)if (home->
  aof36xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld == NULL)if (home->
  aof55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld == NULL)