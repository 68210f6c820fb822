/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Tide_Link
 * FILE = tlnkcod.c
 ****************************************************************/

#ifndef TLNKCOD_EXT
#include "tlnkcod.ext"
#endif

void pe_alConnect (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Connect *home;
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pp_pushPath (ASNG_F(asnperg) "caller_fld");
  pe_alAddress (ASNG_F(asnperg) &home->caller_fld);
  pp_popPath (ASNG_F(asnperg) 11);
  pp_pushPath (ASNG_F(asnperg) "called_fld");
  pe_alLocator (ASNG_F(asnperg) &home->called_fld);
  pp_popPath (ASNG_F(asnperg) 11);
  if ((home->compmask & BIT(2))){
    pp_pushPath (ASNG_F(asnperg) "window_fld");
    pe_sint32_cwn_al_le255 (home->window_fld, 1, 127, 7);
    pp_popPath (ASNG_F(asnperg) 11);
  }
}

void pe_alData (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Data *home;
{
  pp_pushPath (ASNG_F(asnperg) "number_fld");
  pe_sint32_cwn_al_le64K (home->number_fld, 0, 1023, 2);
  pp_popPath (ASNG_F(asnperg) 11);
  pp_pushPath (ASNG_F(asnperg) "more_fld");
  pe_Boolean (home->more_fld);
  pp_popPath (ASNG_F(asnperg) 9);
  pp_pushPath (ASNG_F(asnperg) "payload_fld");
  pe_OctetString_al_clt64K_le64K (&home->payload_fld, 0, 1500, 2);
  pp_popPath (ASNG_F(asnperg) 12);
}

void pe_alGaps (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Gaps *home;
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 4, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pp_pushElem (ASNG_F(asnperg) n1);
      {
        pp_pushPath (ASNG_F(asnperg) "from_fld");
        pe_sint32_cwn_al_le64K (home->elem [n1].from_fld, 0, 1023, 2);
        pp_popPath (ASNG_F(asnperg) 9);
        pp_pushPath (ASNG_F(asnperg) "length_fld");
        pe_sint32_cwn_al_le255 (home->elem [n1].length_fld, 1, 64, 6);
        pp_popPath (ASNG_F(asnperg) 11);
      }
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
}

void pe_alAck (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Ack *home;
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pp_pushPath (ASNG_F(asnperg) "number_fld");
  pe_sint32_cwn_al_le64K (home->number_fld, 0, 1023, 2);
  pp_popPath (ASNG_F(asnperg) 11);
  if ((home->compmask & BIT(1))){
    pp_pushPath (ASNG_F(asnperg) "missing_fld");
    pe_alGaps (ASNG_F(asnperg) &home->missing_fld);
    pp_popPath (ASNG_F(asnperg) 12);
  }
}

void pe_alRelease (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Release *home;
{
  pe_extensionBit (0);
  pp_pushPath (ASNG_F(asnperg) "reason_fld");
  pe_alReason (ASNG_F(asnperg) &home->reason_fld);
  pp_popPath (ASNG_F(asnperg) 11);
}

void pe_alFrame (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Frame *home;
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
        pp_pushPath (ASNG_F(asnperg) "i1.connect_fld");
        pe_alConnect (ASNG_F(asnperg) &home->i1.connect_fld);
        pp_popPath (ASNG_F(asnperg) 15);
      }
      break;
    case 1:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.data_fld");
        pe_alData (ASNG_F(asnperg) &home->i1.data_fld);
        pp_popPath (ASNG_F(asnperg) 12);
      }
      break;
    case 2:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.ack_fld");
        pe_alAck (ASNG_F(asnperg) &home->i1.ack_fld);
        pp_popPath (ASNG_F(asnperg) 11);
      }
      break;
    case 3:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.release_fld");
        pe_alRelease (ASNG_F(asnperg) &home->i1.release_fld);
        pp_popPath (ASNG_F(asnperg) 15);
      }
      break;
    case 5:
      {
        pe_BeginOpenType_al (&openctx_0);
        pp_pushPath (ASNG_F(asnperg) "i1.probe_fld");
        pe_OctetString_al_flt64K (&home->i1.probe_fld, 4, 4, 0);
        pp_popPath (ASNG_F(asnperg) 13);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void encFrame (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Frame *home;
{
  pp_pushPath (ASNG_F(asnperg) "Frame");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_alFrame (ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 6);
}

void pd_alConnect (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Connect *home;
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pp_pushPath (ASNG_F(asnperg) "caller_fld");
    pd_alAddress (ASNG_F(asnperg) &home->caller_fld);
    pp_popPath (ASNG_F(asnperg) 11);
    pp_pushPath (ASNG_F(asnperg) "called_fld");
    pd_alLocator (ASNG_F(asnperg) &home->called_fld);
    pp_popPath (ASNG_F(asnperg) 11);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pp_pushPath (ASNG_F(asnperg) "window_fld");
      pd_sint32_cwn_al_le255_8 (&home->window_fld, 1, 127, 7);
      pp_popPath (ASNG_F(asnperg) 11);
    }
  }
}

void pd_alData (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Data *home;
{
  pp_pushPath (ASNG_F(asnperg) "number_fld");
  pd_sint32_cwn_al_le64K_16 (&home->number_fld, 0, 1023, 2);
  pp_popPath (ASNG_F(asnperg) 11);
  pp_pushPath (ASNG_F(asnperg) "more_fld");
  pd_Boolean (&home->more_fld);
  pp_popPath (ASNG_F(asnperg) 9);
  pp_pushPath (ASNG_F(asnperg) "payload_fld");
  pd_OctetString_al_clt64K_le64K (&home->payload_fld, 0, 1500, 2);
  pp_popPath (ASNG_F(asnperg) 12);
}

void pd_alGaps (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Gaps *home;
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 4, 2);
    while (n1 < len_0){
      pp_pushElem (ASNG_F(asnperg) n1);
      pp_pushPath (ASNG_F(asnperg) "from_fld");
      pd_sint32_cwn_al_le64K_16 (&home->elem [n1].from_fld, 0, 1023, 2);
      pp_popPath (ASNG_F(asnperg) 9);
      pp_pushPath (ASNG_F(asnperg) "length_fld");
      pd_sint32_cwn_al_le255_8 (&home->elem [n1].length_fld, 1, 64, 6);
      pp_popPath (ASNG_F(asnperg) 11);
      pp_popPath (ASNG_F(asnperg) 0);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pd_alAck (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Ack *home;
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pp_pushPath (ASNG_F(asnperg) "number_fld");
    pd_sint32_cwn_al_le64K_16 (&home->number_fld, 0, 1023, 2);
    pp_popPath (ASNG_F(asnperg) 11);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pp_pushPath (ASNG_F(asnperg) "missing_fld");
      pd_alGaps (ASNG_F(asnperg) &home->missing_fld);
      pp_popPath (ASNG_F(asnperg) 12);
    }
  }
}

void pd_alRelease (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Release *home;
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pp_pushPath (ASNG_F(asnperg) "reason_fld");
    pd_alReason (ASNG_F(asnperg) &home->reason_fld);
    pp_popPath (ASNG_F(asnperg) 11);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pd_alFrame (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Frame *home;
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
        pp_pushPath (ASNG_F(asnperg) "i1.connect_fld");
        pd_alConnect (ASNG_F(asnperg) &home->i1.connect_fld);
        pp_popPath (ASNG_F(asnperg) 15);
        break;
      }
    case 1:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.data_fld");
        pd_alData (ASNG_F(asnperg) &home->i1.data_fld);
        pp_popPath (ASNG_F(asnperg) 12);
        break;
      }
    case 2:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.ack_fld");
        pd_alAck (ASNG_F(asnperg) &home->i1.ack_fld);
        pp_popPath (ASNG_F(asnperg) 11);
        break;
      }
    case 3:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.release_fld");
        pd_alRelease (ASNG_F(asnperg) &home->i1.release_fld);
        pp_popPath (ASNG_F(asnperg) 15);
        break;
      }
    case 5:
      {
        pd_BeginOpenType_al (&openctx_0);
        pp_pushPath (ASNG_F(asnperg) "i1.probe_fld");
        pd_OctetString_al_flt64K_0 (&home->i1.probe_fld, 4, 4, 0);
        pp_popPath (ASNG_F(asnperg) 13);
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

void decFrame (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Frame *home;
{
  pp_pushPath (ASNG_F(asnperg) "Frame");
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_alFrame (ASNG_F(asnperg) home);
  pd_end ();
  pp_popPath (ASNG_F(asnperg) 6);
}
