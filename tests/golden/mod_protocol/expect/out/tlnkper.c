/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Tide_Link
 * FILE = tlnkper.c
 ****************************************************************/

#ifndef TLNKPER_EXT
#include "tlnkper.ext"
#endif

void peConnect (ASNG_F(ASNPERG *asnperg) Connect *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  peAddress (ASNG_F(asnperg) &home->caller_fld);
  peLocator (ASNG_F(asnperg) &home->called_fld);
  if ((home->compmask & BIT(2))){
    pe_sint32_cwn_al_le255 (home->window_fld, 1, 127, 7);
  }
}

void peData (ASNG_F(ASNPERG *asnperg) Data *home)
{
  pe_sint32_cwn_al_le64K (home->number_fld, 0, 1023, 2);
  pe_Boolean (home->more_fld);
  pe_OctetString_al_clt64K_le64K (&home->payload_fld, 0, 1500, 2);
}

void peGaps (ASNG_F(ASNPERG *asnperg) Gaps *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 4, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      {
        pe_sint32_cwn_al_le64K (home->elem [n1].from_fld, 0, 1023, 2);
        pe_sint32_cwn_al_le255 (home->elem [n1].length_fld, 1, 64, 6);
      }
    }
  }
}

void peAck (ASNG_F(ASNPERG *asnperg) Ack *home)
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
    peGaps (ASNG_F(asnperg) &home->missing_fld);
  }
}

void peRelease (ASNG_F(ASNPERG *asnperg) Release *home)
{
  pe_extensionBit (0);
  peReason (ASNG_F(asnperg) &home->reason_fld);
}

void peFrame (ASNG_F(ASNPERG *asnperg) Frame *home)
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
        peConnect (ASNG_F(asnperg) &home->i1.connect_fld);
      }
      break;
    case 1:
      {
        peData (ASNG_F(asnperg) &home->i1.data_fld);
      }
      break;
    case 2:
      {
        peAck (ASNG_F(asnperg) &home->i1.ack_fld);
      }
      break;
    case 3:
      {
        peRelease (ASNG_F(asnperg) &home->i1.release_fld);
      }
      break;
    case 5:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_OctetString_al_flt64K (&home->i1.probe_fld, 4, 4, 0);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void pecFrame (ASNG_F(ASNPERG *asnperg) Frame *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peFrame (ASNG_F(asnperg) home);
  pe_end ();
}

void pdConnect (ASNG_F(ASNPERG *asnperg) Connect *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pdAddress (ASNG_F(asnperg) &home->caller_fld);
    pdLocator (ASNG_F(asnperg) &home->called_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pd_sint32_cwn_al_le255_8 (&home->window_fld, 1, 127, 7);
    }
  }
}

void pdData (ASNG_F(ASNPERG *asnperg) Data *home)
{
  pd_sint32_cwn_al_le64K_16 (&home->number_fld, 0, 1023, 2);
  pd_Boolean (&home->more_fld);
  pd_OctetString_al_clt64K_le64K (&home->payload_fld, 0, 1500, 2);
}

void pdGaps (ASNG_F(ASNPERG *asnperg) Gaps *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 4, 2);
    while (n1 < len_0){
      pd_sint32_cwn_al_le64K_16 (&home->elem [n1].from_fld, 0, 1023, 2);
      pd_sint32_cwn_al_le255_8 (&home->elem [n1].length_fld, 1, 64, 6);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdAck (ASNG_F(ASNPERG *asnperg) Ack *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_al_le64K_16 (&home->number_fld, 0, 1023, 2);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pdGaps (ASNG_F(asnperg) &home->missing_fld);
    }
  }
}

void pdRelease (ASNG_F(ASNPERG *asnperg) Release *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pdReason (ASNG_F(asnperg) &home->reason_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdFrame (ASNG_F(ASNPERG *asnperg) Frame *home)
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
        pdConnect (ASNG_F(asnperg) &home->i1.connect_fld);
        break;
      }
    case 1:
      {
        pdData (ASNG_F(asnperg) &home->i1.data_fld);
        break;
      }
    case 2:
      {
        pdAck (ASNG_F(asnperg) &home->i1.ack_fld);
        break;
      }
    case 3:
      {
        pdRelease (ASNG_F(asnperg) &home->i1.release_fld);
        break;
      }
    case 5:
      {
        pd_BeginOpenType_al (&openctx_0);
        pd_OctetString_al_flt64K_0 (&home->i1.probe_fld, 4, 4, 0);
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

void pdcFrame (ASNG_F(ASNPERG *asnperg) Frame *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdFrame (ASNG_F(asnperg) home);
  pd_end ();
}
