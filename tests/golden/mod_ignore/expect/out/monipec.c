/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Link_Monitor
 * FILE = monipec.c
 ****************************************************************/

#ifndef MONIPER_EXT
#include "moniper.ext"
#endif

void peKind (ASNG_F(ASNPERG *asnperg) Kind *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 2, 2);
}

void peStation (ASNG_F(ASNPERG *asnperg) Station *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_al_le64K (home->number_fld, 0, 1023, 2);
  if ((home->compmask & BIT(1))){
    pe_KnownMultiCharStri_al_clt64K_le255 (&home->name_fld, 1, 12, 4, 8,
      TYP_IA5STR, 128, NULL);
  }
  peKind (ASNG_F(asnperg) &home->kind_fld);
}

void peCause (ASNG_F(ASNPERG *asnperg) Cause *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      switch (home->value) {
        case 2:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          if (home->value == 9) {
            index = home->value - 9;
          }
          else {
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peAlarm (ASNG_F(ASNPERG *asnperg) Alarm *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  peCause (ASNG_F(asnperg) &home->cause_fld);
  if ((home->compmask & BIT(1))){
    pe_KnownMultiCharStri_al_clt64K_le255 (&home->text_fld, 0, 80, 7, 8,
      TYP_VISSTR, 95, NULL);
  }
}

void peState (ASNG_F(ASNPERG *asnperg) State *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 2, 2);
  switch (home->choice){
    case 0:
      {
        pe_NullType ();
      }
      break;
    case 1:
      {
        peAlarm (ASNG_F(asnperg) &home->i1.alarmed_fld);
      }
      break;
    case 2:
      {
        {
          pe_uint32_cwn_al_gt64K (home->i1.degraded_fld.since_fld, 0, 86399,
            3, 2);
          peCause (ASNG_F(asnperg) &home->i1.degraded_fld.why_fld);
        }
      }
      break;
  }
}

static void efKind (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peKind (ASNG_F(asnperg) &a1->val.ui8);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peHealth (ASNG_F(ASNPERG *asnperg) Health *home)
{
  pe_sint32_cwn_al_le255 (home->battery_fld, 0, 100, 7);
  {
    ASNHOME *iter = firstListItem (&home->notes_fld);
    pe_TraverseFragmentedValue (listLen (&home->notes_fld), (BYTE_TYPE *)iter,
      efKind);
  }
}

static void ef1_secrets_secrets_Report (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_OctetString_al_flt64K (a1->val.stas0, 8, 8, 0);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peReport (ASNG_F(ASNPERG *asnperg) Report *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(6)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  pe_uint32_cwn_al_gt64K (home->time_fld, 0, 86399, 3, 2);
  peStation (ASNG_F(asnperg) &home->sender_fld);
  pe_Skip ();
  pe_Skip ();
  if ((home->compmask & BIT(4))){
    pe_Skip ();
  }
  peState (ASNG_F(asnperg) &home->state_fld);
  if ((home->compmask & BIT(6))){
    pe_Skip ();
  }
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->nearby_fld), 1, 20, 5);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->nearby_fld); n1++){
      peStation (ASNG_F(asnperg) &home->nearby_fld.elem [n1]);
    }
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(1);
    if ((home->compmask & BIT(10))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  peHealth (ASNG_F(asnperg) &home->health_fld);
  pe_EndOpenType_al (&openctx_0);
  if ((home->compmask & BIT(10))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Skip ();
    pe_EndOpenType_al (&openctx_0);
  }
}

void pecReport (ASNG_F(ASNPERG *asnperg) Report *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peReport (ASNG_F(asnperg) home);
  pe_end ();
}

void peDigest (ASNG_F(ASNPERG *asnperg) Digest *home)
{
  pe_lenDet_al_clt64K_eq1 (4, 4, 4, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 4; n1++){
      pe_sint32_cwn_al_eq256 (home->elem [n1], 0, 255, 1);
    }
  }
}

void peEvent (ASNG_F(ASNPERG *asnperg) Event *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 4);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_al_le255 (home->choice, 3, 2);
  }
  else {
    pe_ChoiceIndex_al_ns (home->choice - 5);
  }
  switch (home->choice){
    case 0:
      {
        pe_NullType ();
      }
      break;
    case 1:
      {
        peCause (ASNG_F(asnperg) &home->i1.stopped_fld);
      }
      break;
    case 2:
      {
        {
          ASNPEROPENCTX openctx_1;
          pe_extensionBit (1);
          {
            sint32 optfield_1 = 0;
            if (home->i1.measured_fld.compmask & BIT(1)){
              optfield_1 |= BITL(0);
            }
            pe_optField (optfield_1, 1);
          }
          pe_sint32_cwn_al_eq256 (home->i1.measured_fld.level_fld, -128, 127, 1);
          if ((home->i1.measured_fld.compmask & BIT(1))){
            pe_sint32_cwn_al_eq256 (home->i1.measured_fld.peak_fld, -128, 127, 1);
          }
          {
            sint32 extensionAdditionField_1 = 0|BITL(0);
            pe_extensionAddition (1, extensionAdditionField_1);
          }
          pe_BeginOpenType_al (&openctx_1);
          pe_sint32_cwn_al_le255 (home->i1.measured_fld.count_fld, 0, 9, 4);
          pe_EndOpenType_al (&openctx_1);
        }
      }
      break;
    case 3:
      {
        peEvents (ASNG_F(asnperg) home->i1.nested_fld);
      }
      break;
    case 5:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_BitString_al_clt64K_le255 (&home->i1.lost_fld, 1, 16, 4);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

static void efEvent (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peEvent (ASNG_F(asnperg) (Event *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peEvents (ASNG_F(ASNPERG *asnperg) Events *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efEvent);
}
