/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Beacon_Protocol_2
 * FILE = bcn2pdc.c
 ****************************************************************/

#ifndef BCN2PER_EXT
#include "bcn2per.ext"
#endif

void pdCell_Identity (ASNG_F(ASNPERG *asnperg) Cell_Identity *home)
{
  pd_sint32_cwn_al_le64K_16 (&home->network_fld, 0, 4095, 2);
  pd_BitString_al_flt64K_0 (&home->cell_fld, 28, 28, 0);
}

void pdSample (ASNG_F(ASNPERG *asnperg) Sample *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_al_le255_8 (&home->level_fld, -110, -47, 6);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_sint32_cwn_al_le255_8 (&home->quality_fld, 0, 34, 6);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(3);
        pd_sint32_cwn_al_eq256_8 (&home->age_fld, 0, 255, 1);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdSamples (ASNG_F(ASNPERG *asnperg) Samples *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 16, 4);
    while (n1 < len_0){
      pdSample (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
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
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->value = 2;
          break;
        case 1:
          home->value = 7;
          break;
        default:
          home->extended = TRUE;
          home->value = index;
          break;
      }
    }
  }
}

void pdReport (ASNG_F(ASNPERG *asnperg) Report *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pdCell_Identity (ASNG_F(asnperg) &home->cell_fld);
    pdSamples (ASNG_F(asnperg) &home->samples_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pdCause (ASNG_F(asnperg) &home->cause_fld);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (4,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(3)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(4);
        pd_sint32_cwn_al_le255_8 (&home->hour_fld, 0, 23, 5);
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(2)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(5);
        pd_sint32_cwn_al_le64K_16 (&home->speed_fld, 0, 500, 2);
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            home->compmask |= BIT(6);
            pd_sint32_cwn_al_le255_8 (&home->latitude_fld, -90, 90, 8);
          }
          {
            home->compmask |= BIT(7);
            pd_sint32_cwn_al_le64K_16 (&home->longitude_fld, -180, 180, 2);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(8);
            pd_sint32_cwn_al_le64K_16 (&home->altitude_fld, 0, 9000, 2);
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(9);
            pd_OctetString_al_clt64K_le255 (&home->note_fld, 0, 20, 5);
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdAction (ASNG_F(ASNPERG *asnperg) Action *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_al_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_al_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_NullType ();
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
    case 3:
      {
        pd_BeginOpenType_al (&openctx_0);
        pd_sint32_cwn_al_le255_8 (&home->i1.pause_fld, 1, 10, 4);
        pd_EndOpenType_al (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 2;
        initExtensionmarker (&home->i1.extensionmarker);
        pd_SaveExtendedComponents (&home->i1.extensionmarker, 1);
      }
  }
}

void pdCommand (ASNG_F(ASNPERG *asnperg) Command *home)
{
  home->compmask = 0;
  initExtensionmarker (&home->extensionmarker);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pdCell_Identity (ASNG_F(asnperg) &home->cell_fld);
    pdAction (ASNG_F(asnperg) &home->action_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(3);
        pd_sint32_cwn_al_le64K_16 (&home->delay_fld, 0, 1000, 2);
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(4);
        pd_sint32_cwn_al_le255_8 (&home->repeat_fld.times_fld, 1, 10, 4);
        pd_sint32_cwn_al_le255_8 (&home->repeat_fld.every_fld, 1, 60, 6);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SaveExtendedComponents (&home->extensionmarker,
        extensionAdditionCount_0);
    }
  }
}

void pdMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_al_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_al_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pdReport (ASNG_F(asnperg) &home->i1.report_fld);
        break;
      }
    case 1:
      {
        pdCommand (ASNG_F(asnperg) &home->i1.command_fld);
        break;
      }
    case 3:
      {
        pd_BeginOpenType_al (&openctx_0);
        pdCause (ASNG_F(asnperg) &home->i1.failure_fld);
        pd_EndOpenType_al (&openctx_0);
        break;
      }
    case 4:
      {
        pd_BeginOpenType_al (&openctx_0);
        {
          BOOLE extensionBit_1 = pd_extensionBit ();
          pd_KnownMultiCharStri_al_clt64K_le255 (
            &home->i1.notice_fld.text_fld, 1, 40, 6, 8, TYP_IA5STR, 128, NULL);
          if (extensionBit_1){
            sint32 extensionAdditionField_1 = 0;
            int extensionAdditionCount_1 = pd_extensionAddition (0,
              &extensionAdditionField_1);
            pd_SkipExtendedComponents (extensionAdditionCount_1);
          }
        }
        pd_EndOpenType_al (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 2;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdcMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdMessage (ASNG_F(asnperg) home);
  pd_end ();
}
