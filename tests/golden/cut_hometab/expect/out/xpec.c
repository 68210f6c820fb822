/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutHometab
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void pecEOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [4] || hometab [5] || hometab [6] || hometab [7] || 
      hometab [8] || hometab [9] || hometab [10]){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    {
      sint32 optfield_0 = 0;
      if (hometab [1]){
        if (hometab [1]->val.ui8 != 3){
          optfield_0 |= BITL(1);
        }
      }
      if (hometab [2]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    freeAsn (&hometab [0], FREE_STG);
    if ((hometab [1])){
      if (hometab [1]->val.ui8 != 3){
        pe_sint32_cwn_al_le255 (hometab [1]->val.ui8, 0, 7, 3);
        freeAsn (&hometab [1], FREE_STG);
      }
      freeAsn (&hometab [1], FREE_STG);
    }
    if ((hometab [2])){
      peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      freeAsn (&hometab [2], FREE_STG);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
        (hometab [8]) || (hometab [9]) || (hometab [10])){
        extensionAdditionField_0 |= BITL(0);
      }
      pe_extensionAddition (1, extensionAdditionField_0);
    }
    if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
      (hometab [8]) || (hometab [9]) || (hometab [10])){
      pe_BeginOpenType_al (&openctx_0);
      {
        sint32 optfield_1 = 0;
        if (hometab [4]){
          optfield_1 |= BITL(6);
        }
        if (hometab [5]){
          optfield_1 |= BITL(5);
        }
        if (hometab [6]){
          optfield_1 |= BITL(4);
        }
        if (hometab [7]){
          optfield_1 |= BITL(3);
        }
        if (hometab [8]){
          optfield_1 |= BITL(2);
        }
        if (hometab [9]){
          optfield_1 |= BITL(1);
        }
        if (hometab [10]){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 7);
        if ((hometab [4])){
          peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
          freeAsn (&hometab [4], FREE_STG);
        }
        if ((hometab [5])){
          pe_Boolean (hometab [5]->val.bool);
          freeAsn (&hometab [5], FREE_STG);
        }
        if ((hometab [6])){
          pe_NullType ();
          freeAsn (&hometab [6], FREE_STG);
        }
        if ((hometab [7])){
          peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
          freeAsn (&hometab [7], FREE_STG);
        }
        if ((hometab [8])){
          pe_NullType ();
          freeAsn (&hometab [8], FREE_STG);
        }
        if ((hometab [9])){
          pe_NullType ();
          freeAsn (&hometab [9], FREE_STG);
        }
        if ((hometab [10])){
          pe_NullType ();
          freeAsn (&hometab [10], FREE_STG);
        }
      }
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}

void pecCOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [2] != NULL || hometab [3] != NULL || hometab [4] != NULL || 
      hometab [5] != NULL){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    if (hometab [0]){
      peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [2]){
      pe_ChoiceIndex_al_ns (0);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [2], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [3]){
      pe_ChoiceIndex_al_ns (1);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [3], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [4]){
      pe_ChoiceIndex_al_ns (2);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [5]){
      pe_ChoiceIndex_al_ns (3);
      pe_BeginOpenType_al (&openctx_0);
      peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
      freeAsn (&hometab [5], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}

void peSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void pecEOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [4] || hometab [5] || hometab [6] || hometab [7] || 
      hometab [8] || hometab [9] || hometab [10]){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    {
      sint32 optfield_0 = 0;
      if (hometab [1]){
        if (hometab [1]->val.ui8 != 3){
          optfield_0 |= BITL(1);
        }
      }
      if (hometab [2]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    peSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    freeAsn (&hometab [0], FREE_STG);
    if ((hometab [1])){
      if (hometab [1]->val.ui8 != 3){
        pe_sint32_cwn_al_le255 (hometab [1]->val.ui8, 0, 7, 3);
        freeAsn (&hometab [1], FREE_STG);
      }
      freeAsn (&hometab [1], FREE_STG);
    }
    if ((hometab [2])){
      peSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      freeAsn (&hometab [2], FREE_STG);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
        (hometab [8]) || (hometab [9]) || (hometab [10])){
        extensionAdditionField_0 |= BITL(0);
      }
      pe_extensionAddition (1, extensionAdditionField_0);
    }
    if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
      (hometab [8]) || (hometab [9]) || (hometab [10])){
      pe_BeginOpenType_al (&openctx_0);
      {
        sint32 optfield_1 = 0;
        if (hometab [4]){
          optfield_1 |= BITL(6);
        }
        if (hometab [5]){
          optfield_1 |= BITL(5);
        }
        if (hometab [6]){
          optfield_1 |= BITL(4);
        }
        if (hometab [7]){
          optfield_1 |= BITL(3);
        }
        if (hometab [8]){
          optfield_1 |= BITL(2);
        }
        if (hometab [9]){
          optfield_1 |= BITL(1);
        }
        if (hometab [10]){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 7);
        if ((hometab [4])){
          peSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
          freeAsn (&hometab [4], FREE_STG);
        }
        if ((hometab [5])){
          pe_Boolean (hometab [5]->val.bool);
          freeAsn (&hometab [5], FREE_STG);
        }
        if ((hometab [6])){
          pe_NullType ();
          freeAsn (&hometab [6], FREE_STG);
        }
        if ((hometab [7])){
          peSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
          freeAsn (&hometab [7], FREE_STG);
        }
        if ((hometab [8])){
          pe_NullType ();
          freeAsn (&hometab [8], FREE_STG);
        }
        if ((hometab [9])){
          pe_NullType ();
          freeAsn (&hometab [9], FREE_STG);
        }
        if ((hometab [10])){
          pe_NullType ();
          freeAsn (&hometab [10], FREE_STG);
        }
      }
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}

void pecCOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [2] != NULL || hometab [3] != NULL || hometab [4] != NULL || 
      hometab [5] != NULL){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    if (hometab [0]){
      peSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [2]){
      pe_ChoiceIndex_al_ns (0);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [2], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [3]){
      pe_ChoiceIndex_al_ns (1);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [3], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [4]){
      pe_ChoiceIndex_al_ns (2);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [5]){
      pe_ChoiceIndex_al_ns (3);
      pe_BeginOpenType_al (&openctx_0);
      peSOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf35xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
      freeAsn (&hometab [5], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}

void peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void pecEOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [4] || hometab [5] || hometab [6] || hometab [7] || 
      hometab [8] || hometab [9] || hometab [10]){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    {
      sint32 optfield_0 = 0;
      if (hometab [1]){
        if (hometab [1]->val.ui8 != 3){
          optfield_0 |= BITL(1);
        }
      }
      if (hometab [2]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    freeAsn (&hometab [0], FREE_STG);
    if ((hometab [1])){
      if (hometab [1]->val.ui8 != 3){
        pe_sint32_cwn_al_le255 (hometab [1]->val.ui8, 0, 7, 3);
        freeAsn (&hometab [1], FREE_STG);
      }
      freeAsn (&hometab [1], FREE_STG);
    }
    if ((hometab [2])){
      peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      freeAsn (&hometab [2], FREE_STG);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
        (hometab [8]) || (hometab [9]) || (hometab [10])){
        extensionAdditionField_0 |= BITL(0);
      }
      pe_extensionAddition (1, extensionAdditionField_0);
    }
    if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
      (hometab [8]) || (hometab [9]) || (hometab [10])){
      pe_BeginOpenType_al (&openctx_0);
      {
        sint32 optfield_1 = 0;
        if (hometab [4]){
          optfield_1 |= BITL(6);
        }
        if (hometab [5]){
          optfield_1 |= BITL(5);
        }
        if (hometab [6]){
          optfield_1 |= BITL(4);
        }
        if (hometab [7]){
          optfield_1 |= BITL(3);
        }
        if (hometab [8]){
          optfield_1 |= BITL(2);
        }
        if (hometab [9]){
          optfield_1 |= BITL(1);
        }
        if (hometab [10]){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 7);
        if ((hometab [4])){
          peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
          freeAsn (&hometab [4], FREE_STG);
        }
        if ((hometab [5])){
          pe_Boolean (hometab [5]->val.bool);
          freeAsn (&hometab [5], FREE_STG);
        }
        if ((hometab [6])){
          pe_NullType ();
          freeAsn (&hometab [6], FREE_STG);
        }
        if ((hometab [7])){
          peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
          freeAsn (&hometab [7], FREE_STG);
        }
        if ((hometab [8])){
          pe_NullType ();
          freeAsn (&hometab [8], FREE_STG);
        }
        if ((hometab [9])){
          pe_NullType ();
          freeAsn (&hometab [9], FREE_STG);
        }
        if ((hometab [10])){
          pe_NullType ();
          freeAsn (&hometab [10], FREE_STG);
        }
      }
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}

void pecCOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [2] != NULL || hometab [3] != NULL || hometab [4] != NULL || 
      hometab [5] != NULL){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    if (hometab [0]){
      peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [2]){
      pe_ChoiceIndex_al_ns (0);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [2], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [3]){
      pe_ChoiceIndex_al_ns (1);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [3], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [4]){
      pe_ChoiceIndex_al_ns (2);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [5]){
      pe_ChoiceIndex_al_ns (3);
      pe_BeginOpenType_al (&openctx_0);
      peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
      freeAsn (&hometab [5], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}

void peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void pecEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [4] || hometab [5] || hometab [6] || hometab [7] || 
      hometab [8] || hometab [9] || hometab [10]){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    {
      sint32 optfield_0 = 0;
      if (hometab [1]){
        if (hometab [1]->val.ui8 != 3){
          optfield_0 |= BITL(1);
        }
      }
      if (hometab [2]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
    freeAsn (&hometab [0], FREE_STG);
    if ((hometab [1])){
      if (hometab [1]->val.ui8 != 3){
        pe_sint32_cwn_al_le255 (hometab [1]->val.ui8, 0, 7, 3);
        freeAsn (&hometab [1], FREE_STG);
      }
      freeAsn (&hometab [1], FREE_STG);
    }
    if ((hometab [2])){
      peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [2]->val.stru);
      freeAsn (&hometab [2], FREE_STG);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
        (hometab [8]) || (hometab [9]) || (hometab [10])){
        extensionAdditionField_0 |= BITL(0);
      }
      pe_extensionAddition (1, extensionAdditionField_0);
    }
    if ((hometab [4]) || (hometab [5]) || (hometab [6]) || (hometab [7]) || 
      (hometab [8]) || (hometab [9]) || (hometab [10])){
      pe_BeginOpenType_al (&openctx_0);
      {
        sint32 optfield_1 = 0;
        if (hometab [4]){
          optfield_1 |= BITL(6);
        }
        if (hometab [5]){
          optfield_1 |= BITL(5);
        }
        if (hometab [6]){
          optfield_1 |= BITL(4);
        }
        if (hometab [7]){
          optfield_1 |= BITL(3);
        }
        if (hometab [8]){
          optfield_1 |= BITL(2);
        }
        if (hometab [9]){
          optfield_1 |= BITL(1);
        }
        if (hometab [10]){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 7);
        if ((hometab [4])){
          peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
            ASNG_F(asnperg)
            (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [4]->val.stru);
          freeAsn (&hometab [4], FREE_STG);
        }
        if ((hometab [5])){
          pe_Boolean (hometab [5]->val.bool);
          freeAsn (&hometab [5], FREE_STG);
        }
        if ((hometab [6])){
          pe_NullType ();
          freeAsn (&hometab [6], FREE_STG);
        }
        if ((hometab [7])){
          peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
            ASNG_F(asnperg)
            (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [7]->val.stru);
          freeAsn (&hometab [7], FREE_STG);
        }
        if ((hometab [8])){
          pe_NullType ();
          freeAsn (&hometab [8], FREE_STG);
        }
        if ((hometab [9])){
          pe_NullType ();
          freeAsn (&hometab [9], FREE_STG);
        }
        if ((hometab [10])){
          pe_NullType ();
          freeAsn (&hometab [10], FREE_STG);
        }
      }
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}

void pecCOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [2] != NULL || hometab [3] != NULL || hometab [4] != NULL || 
      hometab [5] != NULL){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    if (hometab [0]){
      peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [0]->val.stru);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [2]){
      pe_ChoiceIndex_al_ns (0);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [2], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [3]){
      pe_ChoiceIndex_al_ns (1);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [3], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [4]){
      pe_ChoiceIndex_al_ns (2);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [5]){
      pe_ChoiceIndex_al_ns (3);
      pe_BeginOpenType_al (&openctx_0);
      peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)hometab [5]->val.stru);
      freeAsn (&hometab [5], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}
if (hometab [1] == NULL)if (hometab [1] == NULL)if (hometab [1] == NULL)
  if (hometab [1] == NULL)