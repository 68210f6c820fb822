/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutChoices
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdTOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf22xxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->of22xxxxxxxxxxxxxxxxxxA_fld.choice = pd_ChoiceIndex_ua_le255 (1,
          1);
      }
      else {
        home->of22xxxxxxxxxxxxxxxxxxA_fld.choice = 3 + pd_ChoiceIndex_ua_ns ();
      }
      switch (home->of22xxxxxxxxxxxxxxxxxxA_fld.choice){
        case 0:
          {
            pd_Boolean (&home->of22xxxxxxxxxxxxxxxxxxA_fld.i1.a_fld);
            break;
          }
        case 1:
          {
            pd_NullType ();
            break;
          }
        case 3:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_Boolean (&home->of22xxxxxxxxxxxxxxxxxxA_fld.i1.c_fld);
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        case 4:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_NullType ();
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            home->of22xxxxxxxxxxxxxxxxxxA_fld.choice = 2;
            pd_SkipExtendedComponents (1);
          }
      }
    }
  }
  home->of22xxxxxxxxxxxxxxxxxxB_fld.choice = (sint16)pd_ChoiceIndex_ua_le255 (1,
    1);
  switch (home->of22xxxxxxxxxxxxxxxxxxB_fld.choice){
    case 0:
      {
        pd_Boolean (&home->of22xxxxxxxxxxxxxxxxxxB_fld.i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
  }
  {
    ASNPEROPENCTX openctx_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->of22xxxxxxxxxxxxxxxxxxC_fld.choice = 0;
      }
      else {
        home->of22xxxxxxxxxxxxxxxxxxC_fld.choice = 2 + pd_ChoiceIndex_ua_ns ();
      }
      switch (home->of22xxxxxxxxxxxxxxxxxxC_fld.choice){
        case 0:
          {
            pd_Boolean (&home->of22xxxxxxxxxxxxxxxxxxC_fld.i1.a_fld);
            break;
          }
        case 2:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_NullType ();
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            home->of22xxxxxxxxxxxxxxxxxxC_fld.choice = 1;
            initExtensionmarker (
              &home->of22xxxxxxxxxxxxxxxxxxC_fld.i1.extensionmarker);
            pd_SaveExtendedComponents (
              &home->of22xxxxxxxxxxxxxxxxxxC_fld.i1.extensionmarker, 1);
          }
      }
    }
  }
}

void pdHOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  HOf22xxxxxxxxxxxxxxxxxx *home)
{
  memset (home, 0, sizeof (HOf22xxxxxxxxxxxxxxxxxx));
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    }
    else {
      choice_0 = 3 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (NULL, &home->altaof22xxxxxxxxxxxxxxxxxx_fld, VF_BOOL,
            0);
          pd_Boolean (&home->altaof22xxxxxxxxxxxxxxxxxx_fld->val.bool);
          break;
        }
      case 1:
        {
          createHome (NULL, &home->altbof22xxxxxxxxxxxxxxxxxx_fld, VF_NULL,
            0);
          pd_NullType ();
          break;
        }
      case 3:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (NULL, &home->altcof22xxxxxxxxxxxxxxxxxx_fld, VF_BOOL,
            0);
          pd_Boolean (&home->altcof22xxxxxxxxxxxxxxxxxx_fld->val.bool);
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      case 4:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (NULL, &home->altdof22xxxxxxxxxxxxxxxxxx_fld, VF_NULL,
            0);
          pd_NullType ();
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      default:
        {
          createHome (NULL, &home->extensionmarker, VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
}

void pdTOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice =
          pd_ChoiceIndex_ua_le255 (1, 1);
      }
      else {
        home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice = 3 +
          pd_ChoiceIndex_ua_ns ();
      }
      switch (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice){
        case 0:
          {
            pd_Boolean (
              &home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.a_fld);
            break;
          }
        case 1:
          {
            pd_NullType ();
            break;
          }
        case 3:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_Boolean (
              &home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.c_fld);
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        case 4:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_NullType ();
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice = 2;
            pd_SkipExtendedComponents (1);
          }
      }
    }
  }
  home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice =
    (sint16)pd_ChoiceIndex_ua_le255 (1, 1);
  switch (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice){
    case 0:
      {
        pd_Boolean (
          &home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
  }
  {
    ASNPEROPENCTX openctx_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 0;
      }
      else {
        home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 2 +
          pd_ChoiceIndex_ua_ns ();
      }
      switch (home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice){
        case 0:
          {
            pd_Boolean (
              &home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.a_fld);
            break;
          }
        case 2:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_NullType ();
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 1;
            initExtensionmarker (
              &home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.extensionmarker);
            pd_SaveExtendedComponents (
              &home->of52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.extensionmarker,
              1);
          }
      }
    }
  }
}

void pdHOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  memset (home, 0,
    sizeof (HOf52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    }
    else {
      choice_0 = 3 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (NULL,
            &home->altaof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_BOOL, 0);
          pd_Boolean (
            &home->altaof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          break;
        }
      case 1:
        {
          createHome (NULL,
            &home->altbof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_NULL, 0);
          pd_NullType ();
          break;
        }
      case 3:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (NULL,
            &home->altcof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_BOOL, 0);
          pd_Boolean (
            &home->altcof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      case 4:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (NULL,
            &home->altdof52xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      default:
        {
          createHome (NULL, &home->extensionmarker, VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
}

void pdTOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    ASNPEROPENCTX openctx_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice =
          pd_ChoiceIndex_ua_le255 (1, 1);
      }
      else {
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice = 3 +
          pd_ChoiceIndex_ua_ns ();
      }
      switch (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice){
        case 0:
          {
            pd_Boolean (
              &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.a_fld);
            break;
          }
        case 1:
          {
            pd_NullType ();
            break;
          }
        case 3:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_Boolean (
              &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.i1.c_fld);
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        case 4:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_NullType ();
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.choice = 2;
            pd_SkipExtendedComponents (1);
          }
      }
    }
  }
  home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice =
    (sint16)pd_ChoiceIndex_ua_le255 (1, 1);
  switch (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.choice){
    case 0:
      {
        pd_Boolean (
          &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld.i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
  }
  {
    ASNPEROPENCTX openctx_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 0;
      }
      else {
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 2 +
          pd_ChoiceIndex_ua_ns ();
      }
      switch (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice){
        case 0:
          {
            pd_Boolean (
              &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.a_fld);
            break;
          }
        case 2:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_NullType ();
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.choice = 1;
            initExtensionmarker (
              &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.extensionmarker);
            pd_SaveExtendedComponents (
              &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld.i1.extensionmarker,
              1);
          }
      }
    }
  }
}

void pdHOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  memset (home, 0,
    sizeof (HOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    }
    else {
      choice_0 = 3 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (NULL,
            &home->altaof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_BOOL, 0);
          pd_Boolean (
            &home->altaof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          break;
        }
      case 1:
        {
          createHome (NULL,
            &home->altbof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_NULL, 0);
          pd_NullType ();
          break;
        }
      case 3:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (NULL,
            &home->altcof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_BOOL, 0);
          pd_Boolean (
            &home->altcof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld->val.bool);
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      case 4:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (NULL,
            &home->altdof57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_fld,
            VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      default:
        {
          createHome (NULL, &home->extensionmarker, VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
}
