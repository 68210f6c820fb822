/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Beacon_Protocol
 * FILE = bcn1pdc.c
 ****************************************************************/

#ifndef BCN1PER_EXT
#include "bcn1per.ext"
#endif

void pdCell_Identity (ASNG_F(ASNPERG *asnperg) Cell_Identity *home)
{
  pd_sint32_cwn_ua_16 (&home->network_fld, 0, 4095, 12);
  pd_BitString_ua_flt64K_0 (&home->cell_fld, 28, 28, 0);
}

void pdSample (ASNG_F(ASNPERG *asnperg) Sample *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_ua_8 (&home->level_fld, -110, -47, 6);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_sint32_cwn_ua_8 (&home->quality_fld, 0, 34, 6);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
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
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 16, 4);
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
      pd_sint32_cwn_ua (&index, 0, 1, 1);
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumUa ();
      home->extended = TRUE;
      home->value = index;
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
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdAction (ASNG_F(ASNPERG *asnperg) Action *home)
{
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_ua_ns ();
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
  initExtensionmarker (&home->extensionmarker);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pdCell_Identity (ASNG_F(asnperg) &home->cell_fld);
    pdAction (ASNG_F(asnperg) &home->action_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SaveExtendedComponents (&home->extensionmarker,
        extensionAdditionCount_0);
    }
  }
}

void pdMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_ua_ns ();
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
    default:
      {
        home->choice = 2;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdcMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pdMessage (ASNG_F(asnperg) home);
  pd_end ();
}
