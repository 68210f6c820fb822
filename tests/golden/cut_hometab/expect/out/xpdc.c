/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutHometab
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdcEOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
      sizeof (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx));
    pushHomeG (asnperg_asnuti, hometab [0]);
    pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    popHomeG (asnperg_asnuti);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&hometab [1]->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, hometab [2]);
      pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NONE, 0);
        pushHomeG (asnperg_asnuti, hometab [4]);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (7);
          if (optfield_1 & BITL(6)){
            createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_STRU,
              sizeof (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [4]);
            pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
              (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(5)){
            createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_BOOL, 0);
            pd_Boolean (&hometab [5]->val.bool);
          }
          if (optfield_1 & BITL(4)){
            createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(3)){
            createHome (getHomeG (asnperg_asnuti), &hometab [7], VF_STRU,
              sizeof (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [7]);
            pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
              (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(2)){
            createHome (getHomeG (asnperg_asnuti), &hometab [8], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(1)){
            createHome (getHomeG (asnperg_asnuti), &hometab [9], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(0)){
            createHome (getHomeG (asnperg_asnuti), &hometab [10], VF_NULL, 0);
            pd_NullType ();
          }
        }
        popHomeG (asnperg_asnuti);
        pd_EndOpenType_al (&openctx_0);
      }
      createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (hometab [3]->val.extensionmarker);
      pd_SaveExtendedComponents (hometab [3]->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
    hometab [1]->val.ui8 = 3;
  }
  pd_end ();
}

void pdcCOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_al_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
            sizeof (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [0]);
          pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
          popHomeG (asnperg_asnuti);
          break;
        }
      case 2:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 3:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 4:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 5:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_STRU,
            sizeof (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [5]);
          pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
          popHomeG (asnperg_asnuti);
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      default:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
  pd_end ();
}

void pdSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdcEOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
      sizeof (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
    pushHomeG (asnperg_asnuti, hometab [0]);
    pdSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    popHomeG (asnperg_asnuti);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&hometab [1]->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, hometab [2]);
      pdSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NONE, 0);
        pushHomeG (asnperg_asnuti, hometab [4]);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (7);
          if (optfield_1 & BITL(6)){
            createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_STRU,
              sizeof (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [4]);
            pdSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
              (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(5)){
            createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_BOOL, 0);
            pd_Boolean (&hometab [5]->val.bool);
          }
          if (optfield_1 & BITL(4)){
            createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(3)){
            createHome (getHomeG (asnperg_asnuti), &hometab [7], VF_STRU,
              sizeof (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [7]);
            pdSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
              (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(2)){
            createHome (getHomeG (asnperg_asnuti), &hometab [8], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(1)){
            createHome (getHomeG (asnperg_asnuti), &hometab [9], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(0)){
            createHome (getHomeG (asnperg_asnuti), &hometab [10], VF_NULL, 0);
            pd_NullType ();
          }
        }
        popHomeG (asnperg_asnuti);
        pd_EndOpenType_al (&openctx_0);
      }
      createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (hometab [3]->val.extensionmarker);
      pd_SaveExtendedComponents (hometab [3]->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
    hometab [1]->val.ui8 = 3;
  }
  pd_end ();
}

void pdcCOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_al_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
            sizeof (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [0]);
          pdSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
          popHomeG (asnperg_asnuti);
          break;
        }
      case 2:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 3:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 4:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 5:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_STRU,
            sizeof (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [5]);
          pdSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
          popHomeG (asnperg_asnuti);
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      default:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
  pd_end ();
}

void pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdcEOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
      sizeof (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
    pushHomeG (asnperg_asnuti, hometab [0]);
    pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    popHomeG (asnperg_asnuti);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&hometab [1]->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, hometab [2]);
      pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NONE, 0);
        pushHomeG (asnperg_asnuti, hometab [4]);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (7);
          if (optfield_1 & BITL(6)){
            createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_STRU,
              sizeof (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [4]);
            pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
              ASNG_F(asnperg)
              (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(5)){
            createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_BOOL, 0);
            pd_Boolean (&hometab [5]->val.bool);
          }
          if (optfield_1 & BITL(4)){
            createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(3)){
            createHome (getHomeG (asnperg_asnuti), &hometab [7], VF_STRU,
              sizeof (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [7]);
            pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
              ASNG_F(asnperg)
              (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(2)){
            createHome (getHomeG (asnperg_asnuti), &hometab [8], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(1)){
            createHome (getHomeG (asnperg_asnuti), &hometab [9], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(0)){
            createHome (getHomeG (asnperg_asnuti), &hometab [10], VF_NULL, 0);
            pd_NullType ();
          }
        }
        popHomeG (asnperg_asnuti);
        pd_EndOpenType_al (&openctx_0);
      }
      createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (hometab [3]->val.extensionmarker);
      pd_SaveExtendedComponents (hometab [3]->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
    hometab [1]->val.ui8 = 3;
  }
  pd_end ();
}

void pdcCOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_al_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
            sizeof (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [0]);
          pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
          popHomeG (asnperg_asnuti);
          break;
        }
      case 2:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 3:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 4:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 5:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_STRU,
            sizeof (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [5]);
          pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
          popHomeG (asnperg_asnuti);
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      default:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
  pd_end ();
}

void pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdcEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
      sizeof (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
    pushHomeG (asnperg_asnuti, hometab [0]);
    pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    popHomeG (asnperg_asnuti);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&hometab [1]->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, hometab [2]);
      pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NONE, 0);
        pushHomeG (asnperg_asnuti, hometab [4]);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (7);
          if (optfield_1 & BITL(6)){
            createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_STRU,
              sizeof (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [4]);
            pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
              ASNG_F(asnperg)
              (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(5)){
            createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_BOOL, 0);
            pd_Boolean (&hometab [5]->val.bool);
          }
          if (optfield_1 & BITL(4)){
            createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(3)){
            createHome (getHomeG (asnperg_asnuti), &hometab [7], VF_STRU,
              sizeof (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
            pushHomeG (asnperg_asnuti, hometab [7]);
            pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
              ASNG_F(asnperg)
              (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
            popHomeG (asnperg_asnuti);
          }
          if (optfield_1 & BITL(2)){
            createHome (getHomeG (asnperg_asnuti), &hometab [8], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(1)){
            createHome (getHomeG (asnperg_asnuti), &hometab [9], VF_NULL, 0);
            pd_NullType ();
          }
          if (optfield_1 & BITL(0)){
            createHome (getHomeG (asnperg_asnuti), &hometab [10], VF_NULL, 0);
            pd_NullType ();
          }
        }
        popHomeG (asnperg_asnuti);
        pd_EndOpenType_al (&openctx_0);
      }
      createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (hometab [3]->val.extensionmarker);
      pd_SaveExtendedComponents (hometab [3]->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
    hometab [1]->val.ui8 = 3;
  }
  pd_end ();
}

void pdcCOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_al_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
            sizeof (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [0]);
          pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
            ASNG_F(asnperg)
            (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
          popHomeG (asnperg_asnuti);
          break;
        }
      case 2:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 3:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 4:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_NULL, 0);
          pd_NullType ();
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      case 5:
        {
          pd_BeginOpenType_al (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_STRU,
            sizeof (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
          pushHomeG (asnperg_asnuti, hometab [5]);
          pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
            ASNG_F(asnperg)
            (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
          popHomeG (asnperg_asnuti);
          pd_EndOpenType_al (&openctx_0);
          break;
        }
      default:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
  pd_end ();
}
