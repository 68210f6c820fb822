/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Hometab
 * FILE = hompdc.c
 ****************************************************************/

#ifndef HOMPER_EXT
#include "homper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pd_Boolean (&home->x_fld);
    }
  }
}

void pdcSequence (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
    pd_sint32_cwn_ua_8 (&hometab [0]->val.ui8, 0, 7, 3);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU,
        sizeof (Struct));
      pushHomeG (asnperg_asnuti, hometab [1]);
      pdStruct (ASNG_F(asnperg) (Struct *)hometab [1]->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (struct t_c_Sequence));
      pushHomeG (asnperg_asnuti, hometab [2]);
      {
        struct t_c_Sequence *h1 =
          (struct t_c_Sequence *)hometab [2]->val.stru;
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            h1->compmask |= BIT(0);
            pd_NullType ();
          }
        }
      }
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (3,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(2)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_BOOL, 0);
        pd_Boolean (&hometab [4]->val.bool);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [5], VF_STRU,
          sizeof (struct t_e_Sequence));
        pushHomeG (asnperg_asnuti, hometab [5]);
        {
          struct t_e_Sequence *h1 =
            (struct t_e_Sequence *)hometab [5]->val.stru;
          staArrInit (h1);
          {
            uint32 n1 = 0;
            uint32 len_1;
            pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
            while (n1 < len_1){
              pdStruct (ASNG_F(asnperg) &h1->elem [n1]);
              incStaArrLen (h1);
              n1++;
            }
          }
        }
        popHomeG (asnperg_asnuti);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_NONE, 0);
        pushHomeG (asnperg_asnuti, hometab [6]);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_NULL, 0);
            pd_NullType ();
          }
        }
        popHomeG (asnperg_asnuti);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  pd_end ();
}

void pdcPlain (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_BOOL, 0);
  pd_Boolean (&hometab [0]->val.bool);
  createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_DYNS, 0);
  pushHomeG (asnperg_asnuti, hometab [1]);
  pd_DynOctetString_ua_u (&hometab [1]->val.dyns, 0, MAXLONG, 4);
  popHomeG (asnperg_asnuti);
  pd_end ();
}

void pdOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_ua (&index, 0, 1, 1);
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumUa ();
      if (index == 0) {
        home->value = index + 2;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdcDefaults (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
      pd_sint32_cwn_ua_8 (&hometab [0]->val.ui8, 0, 7, 3);
      if (hometab [0]->val.ui8 == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
      pdOpen (ASNG_F(asnperg) &hometab [1]->val.xenum);
      if (hometab [1]->val.xenum.value == 1){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_BOOL, 0);
        pd_Boolean (&hometab [3]->val.bool);
        if (hometab [3]->val.bool == TRUE){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
    hometab [0]->val.ui8 = 3;
  }
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
    hometab [1]->val.xenum.value = 1;
  }
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_BOOL, 0);
    hometab [3]->val.bool = TRUE;
  }
  pd_end ();
}

void pdcSkipped (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_NULL, 0);
    pd_NullType ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  pd_end ();
}

void pdcKept (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_NULL, 0);
    pd_NullType ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (hometab [1]->val.extensionmarker);
      pd_SaveExtendedComponents (hometab [1]->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  pd_end ();
}

void pdcTwo (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    sint8 choice_0;
    choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_BOOL, 0);
          pd_Boolean (&hometab [0]->val.bool);
          break;
        }
      case 1:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
          pd_NullType ();
          break;
        }
    }
  }
  pd_end ();
}

void pdcOne (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_BOOL, 0);
    pd_Boolean (&hometab [0]->val.bool);
  }
  pd_end ();
}

void pdcMarker (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_BOOL, 0);
          pd_Boolean (&hometab [0]->val.bool);
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

void pdcAdditions (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
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
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_BOOL, 0);
          pd_Boolean (&hometab [0]->val.bool);
          break;
        }
      case 1:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
          pd_NullType ();
          break;
        }
      case 3:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_BOOL, 0);
          pd_Boolean (&hometab [3]->val.bool);
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      default:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
  pd_end ();
}

void pdcKeptChoice (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_BOOL, 0);
          pd_Boolean (&hometab [0]->val.bool);
          break;
        }
      case 2:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
            sizeof (Struct));
          pushHomeG (asnperg_asnuti, hometab [2]);
          pdStruct (ASNG_F(asnperg) (Struct *)hometab [2]->val.stru);
          popHomeG (asnperg_asnuti);
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      default:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU,
            sizeof (EXTENSIONMARKER));
          initExtensionmarker (hometab [1]->val.extensionmarker);
          pd_SaveExtendedComponents (hometab [1]->val.extensionmarker, 1);
        }
    }
  }
  pd_end ();
}

void pdcLeaf (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_BOOL, 0);
  pd_Boolean (&hometab [0]->val.bool);
  pd_end ();
}

void pdList (ASNG_F(ASNPERG *asnperg) List *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (n1 < len_0){
      pd_NullType ();
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdcList (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
    sizeof (List));
  pushHomeG (asnperg_asnuti, hometab [0]);
  pdList (ASNG_F(asnperg) (List *)hometab [0]->val.stru);
  popHomeG (asnperg_asnuti);
  pd_end ();
}
