/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutChoices
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peTOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf22xxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = (home->of22xxxxxxxxxxxxxxxxxxA_fld.choice > 2);
    pe_extensionBit (extensionBit_1);
    if (!extensionBit_1){
      pe_ChoiceIndex_ua_le255 (home->of22xxxxxxxxxxxxxxxxxxA_fld.choice, 1, 1);
    }
    else {
      pe_ChoiceIndex_ua_ns (home->of22xxxxxxxxxxxxxxxxxxA_fld.choice - 3);
    }
    switch (home->of22xxxxxxxxxxxxxxxxxxA_fld.choice){
      case 0:
        {
          pe_Boolean (home->of22xxxxxxxxxxxxxxxxxxA_fld.i1.a_fld);
        }
        break;
      case 1:
        {
          pe_NullType ();
        }
        break;
      case 3:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_Boolean (home->of22xxxxxxxxxxxxxxxxxxA_fld.i1.c_fld);
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
      case 4:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
    }
  }
  pe_ChoiceIndex_ua_le255 (home->of22xxxxxxxxxxxxxxxxxxB_fld.choice, 1, 1);
  switch (home->of22xxxxxxxxxxxxxxxxxxB_fld.choice){
    case 0:
      {
        pe_Boolean (home->of22xxxxxxxxxxxxxxxxxxB_fld.i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = (home->of22xxxxxxxxxxxxxxxxxxC_fld.choice > 1);
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      pe_ChoiceIndex_ua_ns (home->of22xxxxxxxxxxxxxxxxxxC_fld.choice - 2);
    }
    switch (home->of22xxxxxxxxxxxxxxxxxxC_fld.choice){
      case 0:
        {
          pe_Boolean (home->of22xxxxxxxxxxxxxxxxxxC_fld.i1.a_fld);
        }
        break;
      case 2:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
    }
  }
}

void peHOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  HOf22xxxxxxxxxxxxxxxxxx *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->altcof22xxxxxxxxxxxxxxxxxx_fld != NULL || 
    home->altdof22xxxxxxxxxxxxxxxxxx_fld != NULL){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (home->altaof22xxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_le255 (0, 1, 1);
    pe_Boolean (home->altaof22xxxxxxxxxxxxxxxxxx_fld->val.bool);
  }
  else if (home->altbof22xxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_le255 (1, 1, 1);
    pe_NullType ();
  }
  else if (home->altcof22xxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_ns (0);
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->altcof22xxxxxxxxxxxxxxxxxx_fld->val.bool);
    pe_EndOpenType_ua (&openctx_0);
  }
  else if (home->altdof22xxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_ns (1);
    pe_BeginOpenType_ua (&openctx_0);
    pe_NullType ();
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peTOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 =
      (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice > 2);
    pe_extensionBit (extensionBit_1);
    if (!extensionBit_1){
      pe_ChoiceIndex_ua_le255 (
        home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice,
        1, 1);
    }
    else {
      pe_ChoiceIndex_ua_ns (
        home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice - 3);
    }
    switch (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice){
      case 0:
        {
          pe_Boolean (
            home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.a_fld);
        }
        break;
      case 1:
        {
          pe_NullType ();
        }
        break;
      case 3:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_Boolean (
            home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.c_fld);
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
      case 4:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
    }
  }
  pe_ChoiceIndex_ua_le255 (
    home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice, 1,
    1);
  switch (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice){
    case 0:
      {
        pe_Boolean (
          home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 =
      (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice > 1);
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      pe_ChoiceIndex_ua_ns (
        home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice - 2);
    }
    switch (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice){
      case 0:
        {
          pe_Boolean (
            home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.a_fld);
        }
        break;
      case 2:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
    }
  }
}

void peHOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (
    home->altcof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld != NULL
    || 
    home->altdof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld != NULL){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (home->altaof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_le255 (0, 1, 1);
    pe_Boolean (
      home->altaof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
  }
  else if (home->altbof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_le255 (1, 1, 1);
    pe_NullType ();
  }
  else if (home->altcof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_ns (0);
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (
      home->altcof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
    pe_EndOpenType_ua (&openctx_0);
  }
  else if (home->altdof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_ns (1);
    pe_BeginOpenType_ua (&openctx_0);
    pe_NullType ();
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peTOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 =
      (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice > 2);
    pe_extensionBit (extensionBit_1);
    if (!extensionBit_1){
      pe_ChoiceIndex_ua_le255 (
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice,
        1, 1);
    }
    else {
      pe_ChoiceIndex_ua_ns (
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice - 3);
    }
    switch (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice){
      case 0:
        {
          pe_Boolean (
            home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.a_fld);
        }
        break;
      case 1:
        {
          pe_NullType ();
        }
        break;
      case 3:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_Boolean (
            home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.c_fld);
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
      case 4:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
    }
  }
  pe_ChoiceIndex_ua_le255 (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice,
    1, 1);
  switch (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice){
    case 0:
      {
        pe_Boolean (
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 =
      (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice > 1);
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      pe_ChoiceIndex_ua_ns (
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice - 2);
    }
    switch (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice){
      case 0:
        {
          pe_Boolean (
            home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.a_fld);
        }
        break;
      case 2:
        {
          pe_BeginOpenType_ua (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_ua (&openctx_1);
        }
        break;
    }
  }
}

void peHOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (
    home->altcof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld != NULL
    || 
    home->altdof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld != NULL){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (home->altaof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_le255 (0, 1, 1);
    pe_Boolean (
      home->altaof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
  }
  else if (home->altbof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_le255 (1, 1, 1);
    pe_NullType ();
  }
  else if (home->altcof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_ns (0);
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (
      home->altcof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
    pe_EndOpenType_ua (&openctx_0);
  }
  else if (home->altdof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld){
    pe_ChoiceIndex_ua_ns (1);
    pe_BeginOpenType_ua (&openctx_0);
    pe_NullType ();
    pe_EndOpenType_ua (&openctx_0);
  }
}
