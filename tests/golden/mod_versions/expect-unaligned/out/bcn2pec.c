/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Beacon_Protocol_2
 * FILE = bcn2pec.c
 ****************************************************************/

#ifndef BCN2PER_EXT
#include "bcn2per.ext"
#endif

void peCell_Identity (ASNG_F(ASNPERG *asnperg) Cell_Identity *home)
{
  pe_sint32_cwn_ua (home->network_fld, 0, 4095, 12);
  pe_BitString_ua_flt64K (&home->cell_fld, 28, 28, 0);
}

void peSample (ASNG_F(ASNPERG *asnperg) Sample *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(3))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_ua (home->level_fld, -110, -47, 6);
  if ((home->compmask & BIT(1))){
    pe_sint32_cwn_ua (home->quality_fld, 0, 34, 6);
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(3))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_sint32_cwn_ua (home->age_fld, 0, 255, 8);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peSamples (ASNG_F(ASNPERG *asnperg) Samples *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 16, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peSample (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peCause (ASNG_F(ASNPERG *asnperg) Cause *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (0 <= home->value && home->value <= 1) {
        index = home->value;
      }
      else {
        extBit = TRUE;
        switch (home->value) {
          case 2:
            index = 0;
            break;
          case 7:
            index = 1;
            break;
          default:
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}

void peReport (ASNG_F(ASNPERG *asnperg) Report *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  peCell_Identity (ASNG_F(asnperg) &home->cell_fld);
  peSamples (ASNG_F(asnperg) &home->samples_fld);
  if ((home->compmask & BIT(2))){
    peCause (ASNG_F(asnperg) &home->cause_fld);
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(3)|BITL(1);
    if ((home->compmask & BIT(5))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask & BIT(9))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (4, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_sint32_cwn_ua (home->hour_fld, 0, 23, 5);
  pe_EndOpenType_ua (&openctx_0);
  if ((home->compmask & BIT(5))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_sint32_cwn_ua (home->speed_fld, 0, 500, 9);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(8)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pe_sint32_cwn_ua (home->latitude_fld, -90, 90, 8);
    pe_sint32_cwn_ua (home->longitude_fld, -180, 180, 9);
    if ((home->compmask & BIT(8))){
      pe_sint32_cwn_ua (home->altitude_fld, 0, 9000, 14);
    }
  }
  pe_EndOpenType_ua (&openctx_0);
  if ((home->compmask & BIT(9))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(9)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(9))){
        pe_OctetString_ua_clt64K (&home->note_fld, 0, 20, 5);
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peAction (ASNG_F(ASNPERG *asnperg) Action *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_ua_ns (home->choice - 3);
  }
  switch (home->choice){
    case 0:
      {
        pe_NullType ();
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
    case 3:
      {
        pe_BeginOpenType_ua (&openctx_0);
        pe_sint32_cwn_ua (home->i1.pause_fld, 1, 10, 4);
        pe_EndOpenType_ua (&openctx_0);
      }
      break;
  }
}

void peCommand (ASNG_F(ASNPERG *asnperg) Command *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(3)) || (home->compmask & BIT(4))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  peCell_Identity (ASNG_F(asnperg) &home->cell_fld);
  peAction (ASNG_F(asnperg) &home->action_fld);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(3))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_sint32_cwn_ua (home->delay_fld, 0, 1000, 10);
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      pe_sint32_cwn_ua (home->repeat_fld.times_fld, 1, 10, 4);
      pe_sint32_cwn_ua (home->repeat_fld.every_fld, 1, 60, 6);
    }
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_ua_ns (home->choice - 3);
  }
  switch (home->choice){
    case 0:
      {
        peReport (ASNG_F(asnperg) &home->i1.report_fld);
      }
      break;
    case 1:
      {
        peCommand (ASNG_F(asnperg) &home->i1.command_fld);
      }
      break;
    case 3:
      {
        pe_BeginOpenType_ua (&openctx_0);
        peCause (ASNG_F(asnperg) &home->i1.failure_fld);
        pe_EndOpenType_ua (&openctx_0);
      }
      break;
    case 4:
      {
        pe_BeginOpenType_ua (&openctx_0);
        {
          pe_extensionBit (0);
          pe_KnownMultiCharStri_ua_clt64K (&home->i1.notice_fld.text_fld, 1,
            40, 6, 7, TYP_IA5STR, 128, NULL);
        }
        pe_EndOpenType_ua (&openctx_0);
      }
      break;
  }
}

void pecMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peMessage (ASNG_F(asnperg) home);
  pe_end ();
}
