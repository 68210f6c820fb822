/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Link_Monitor
 * FILE = monipdc.c
 ****************************************************************/

#ifndef MONIPER_EXT
#include "moniper.ext"
#endif

void piKind (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  pd_sint32_cwn_al_le255_8 (home, 0, 2, 2);
}

void piStation (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pi_sint32_cwn_al_le64K_16 (0, 1023, 2);
    if (optfield_0 & BITL(0)){
      pi_KnownMultiCharStri_al_clt64K_le255 (1, 12, 4, 8, TYP_IA5STR, 128,
        NULL);
    }
    piKind (ASNG_L(asnperg));
  }
}

void pdKind (ASNG_F(ASNPERG *asnperg) Kind *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 2, 2);
}

void pdStation (ASNG_F(ASNPERG *asnperg) Station *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_al_le64K_16 (&home->number_fld, 0, 1023, 2);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_KnownMultiCharStri_al_clt64K_le255 (&home->name_fld, 1, 12, 4, 8,
        TYP_IA5STR, 128, NULL);
    }
    pdKind (ASNG_F(asnperg) &home->kind_fld);
  }
}

void piDigest (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    len_0 = 4;
    pd_lenDet_al_clt64K_eq1 (NULL, 4, 4, 0);
    while (len_0 > 0){
      --len_0;
      pi_sint32_cwn_al_eq256_8 (0, 255, 1);
    }
  }
}

void piCause (ASNG_L(ASNPERG *asnperg))
{
  EXTENSIBLE_ENUMERATED temp;
  EXTENSIBLE_ENUMERATED *home = &temp;
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 2;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->value = index + 9;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void piEvent (ASNG_L(ASNPERG *asnperg))
{
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_al_le255 (3, 2);
    }
    else {
      choice_0 = 5 + pd_ChoiceIndex_al_ns ();
    }
    switch (choice_0){
      case 0:
        {
          pi_NullType ();
          break;
        }
      case 1:
        {
          piCause (ASNG_L(asnperg));
          break;
        }
      case 2:
        {
          {
            BOOLE extensionBit_1 = pd_extensionBit ();
            sint32 optfield_1;
            optfield_1 = pd_getBits (1);
            pi_sint32_cwn_al_eq256_8 (-128, 127, 1);
            if (optfield_1 & BITL(0)){
              pi_sint32_cwn_al_eq256_8 (-128, 127, 1);
            }
            if (extensionBit_1){
              pi_SkipExtendedComponents ();
            }
          }
          break;
        }
      case 3:
        {
          piEvents (ASNG_L(asnperg));
          break;
        }
      default:
        {
          pd_SkipExtendedComponents (1);
        }
    }
  }
}

static void ifEvent (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piEvent (ASNG_L(asnperg));
    n--;
  }
}

void piEvents (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifEvent);
  }
}

void piAlarm (ASNG_L(ASNPERG *asnperg))
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    piCause (ASNG_L(asnperg));
    if (optfield_0 & BITL(0)){
      pi_KnownMultiCharStri_al_clt64K_le255 (0, 80, 7, 8, TYP_VISSTR, 95, NULL);
    }
    if (extensionBit_0){
      pi_SkipExtendedComponents ();
    }
  }
}

void pdCause (ASNG_F(ASNPERG *asnperg) Cause *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 2;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->value = index + 9;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdAlarm (ASNG_F(ASNPERG *asnperg) Alarm *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pdCause (ASNG_F(asnperg) &home->cause_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_KnownMultiCharStri_al_clt64K_le255 (&home->text_fld, 0, 80, 7, 8,
        TYP_VISSTR, 95, NULL);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdState (ASNG_F(ASNPERG *asnperg) State *home)
{
  home->choice = pd_ChoiceIndex_al_le255 (2, 2);
  switch (home->choice){
    case 0:
      {
        pd_NullType ();
        break;
      }
    case 1:
      {
        pdAlarm (ASNG_F(asnperg) &home->i1.alarmed_fld);
        break;
      }
    case 2:
      {
        pd_uint32_cwn_al_gt64K (&home->i1.degraded_fld.since_fld, 0, 86399,
          3, 2);
        pdCause (ASNG_F(asnperg) &home->i1.degraded_fld.why_fld);
        break;
      }
  }
}

static void dfKind (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pdKind (ASNG_F(asnperg) &a1->val.ui8);
    incListLen (home);
    n--;
  }
}

void pdHealth (ASNG_F(ASNPERG *asnperg) Health *home)
{
  pd_sint32_cwn_al_le255_8 (&home->battery_fld, 0, 100, 7);
  listInit (&home->notes_fld);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->notes_fld, dfKind);
  }
}

static void if1_secrets_secrets_Report (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_OctetString_al_flt64K (8, 8, 0);
    n--;
  }
}

void pdReport (ASNG_F(ASNPERG *asnperg) Report *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    pd_uint32_cwn_al_gt64K (&home->time_fld, 0, 86399, 3, 2);
    pdStation (ASNG_F(asnperg) &home->sender_fld);
    piDigest (ASNG_L(asnperg));
    piEvents (ASNG_L(asnperg));
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(4);
      piAlarm (ASNG_L(asnperg));
    }
    pdState (ASNG_F(asnperg) &home->state_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(6);
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    staArrInit (&home->nearby_fld);
    {
      uint32 n1 = 0;
      uint32 len_1;
      pd_lenDet_al_clt64K_le255 (&len_1, 1, 20, 5);
      while (n1 < 4 && n1 < len_1){
        pdStation (ASNG_F(asnperg) &home->nearby_fld.elem [n1]);
        incStaArrLen (&home->nearby_fld);
        n1++;
      }
      home->nearby_fld.nIgnored = 0;
      {
        while (n1 < len_1){
          piStation (ASNG_L(asnperg));
          home->nearby_fld.nIgnored++;
          n1++;
        }
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(9);
        pdHealth (ASNG_F(asnperg) &home->health_fld);
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        home->compmask |= BIT(10);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdcReport (ASNG_F(ASNPERG *asnperg) Report *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdReport (ASNG_F(asnperg) home);
  pd_end ();
}

void pdDigest (ASNG_F(ASNPERG *asnperg) Digest *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 4, 4, 0);
    while (n1 < 4){
      pd_sint32_cwn_al_eq256_8 (&home->elem [n1], 0, 255, 1);
      n1++;
    }
  }
}

void pdEvent (ASNG_F(ASNPERG *asnperg) Event *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_al_le255 (3, 2);
  }
  else {
    home->choice = 5 + pd_ChoiceIndex_al_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_NullType ();
        break;
      }
    case 1:
      {
        pdCause (ASNG_F(asnperg) &home->i1.stopped_fld);
        break;
      }
    case 2:
      {
        home->i1.measured_fld.compmask = 0;
        {
          BOOLE extensionBit_1 = pd_extensionBit ();
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          pd_sint32_cwn_al_eq256_8 (&home->i1.measured_fld.level_fld, -128,
            127, 1);
          if (optfield_1 & BITL(0)){
            home->i1.measured_fld.compmask |= BIT(1);
            pd_sint32_cwn_al_eq256_8 (&home->i1.measured_fld.peak_fld, -128,
              127, 1);
          }
          if (extensionBit_1){
            sint32 extensionAdditionField_1 = 0;
            int extensionAdditionCount_1 = pd_extensionAddition (1,
              &extensionAdditionField_1);
            ASNPEROPENCTX openctx_1;
            if (extensionAdditionField_1 & BITL(0)){
              pd_BeginOpenType_al (&openctx_1);
              home->i1.measured_fld.compmask |= BIT(3);
              pd_sint32_cwn_al_le255_8 (&home->i1.measured_fld.count_fld, 0,
                9, 4);
              pd_EndOpenType_al (&openctx_1);
            }
            pd_SkipExtendedComponents (extensionAdditionCount_1);
          }
        }
        break;
      }
    case 3:
      {
        if (!(home->i1.nested_fld = (Events *)allocAsn (NULL, MB_STG,
          sizeof (Events)))){
          reportFatalError (LACK_OF_MEMORY);
        }
        pdEvents (ASNG_F(asnperg) home->i1.nested_fld);
        break;
      }
    case 5:
      {
        pd_BeginOpenType_al (&openctx_0);
        pd_BitString_al_clt64K_le255 (&home->i1.lost_fld, 1, 16, 4);
        pd_EndOpenType_al (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 4;
        pd_SkipExtendedComponents (1);
      }
  }
}

static void dfEvent (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (Event));
    pdEvent (ASNG_F(asnperg) (Event *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdEvents (ASNG_F(ASNPERG *asnperg) Events *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfEvent);
  }
}
