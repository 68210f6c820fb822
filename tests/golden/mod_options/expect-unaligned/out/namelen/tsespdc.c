/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Tide_Session
 * FILE = tsespdc.c
 ****************************************************************/

#ifndef TSESPER_EXT
#include "tsesper.ext"
#endif

void pdOpen_Request (ASNG_F(ASNPERG *asnperg) Open_Request *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (3);
    pdAddress (ASNG_F(asnperg) &home->from_fld);
    pdRoute (ASNG_F(asnperg) &home->route_fld);
    if (optfield_0 & BITL(2)){
      home->compmask |= BIT(2);
      pdPriority (ASNG_F(asnperg) &home->priority_fld);
    }
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(3);
      pd_OctetString_ua_clt64K (&home->cookie_fld, 1, 32, 5);
    }
    if (optfield_0 & BITL(0)){
      if (!(home->proxy_fld = (Address *)allocAsn (NULL, MB_STG,
        sizeof (Address)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      home->compmask |= BIT(4);
      pdAddress (ASNG_F(asnperg) home->proxy_fld);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(6);
        pd_Boolean (&home->urgent_fld);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            home->compmask |= BIT(7);
            pdAddress (ASNG_F(asnperg) &home->backup_fld);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(8);
            pd_sint32_cwn_ua_16 (&home->delay_fld, 0, 3600, 12);
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdResult (ASNG_F(ASNPERG *asnperg) Result *home)
{
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

void pdCredits (ASNG_F(ASNPERG *asnperg) Credits *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 0, 3, 2);
    while (n1 < len_0){
      pd_sint32_cwn_ua_8 (&home->elem [n1], 0, 255, 8);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdOpen_Answer (ASNG_F(ASNPERG *asnperg) Open_Answer *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    pdResult (ASNG_F(asnperg) &home->result_fld);
    pdCredits (ASNG_F(asnperg) &home->credits_fld);
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(2);
      pd_UTCTimeDT (&home->opened_fld);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(3);
      pd_KnownMultiCharStri_ua_clt64K (&home->label_fld, 1, 8, 3, 7,
        TYP_IA5STR, 128, NULL);
    }
  }
}

void pdLogEntry (ASNG_F(ASNPERG *asnperg) LogEntry *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pdReason (ASNG_F(asnperg) &home->reason_fld);
    if (optfield_0 & BITL(0)){
      if (!(home->causes_fld = (Log *)allocAsn (NULL, MB_STG, sizeof (Log)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      home->compmask |= BIT(1);
      pdLog (ASNG_F(asnperg) home->causes_fld);
    }
  }
}

void pdLog (ASNG_F(ASNPERG *asnperg) Log *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 0, 50, 6);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_STRU, sizeof (LogEntry));
      pdLogEntry (ASNG_F(asnperg) (LogEntry *)a1->val.stru);
      incListLen (home);
    }
  }
}

void pdBody (ASNG_F(ASNPERG *asnperg) Body *home)
{
  home->choice = pd_ChoiceIndex_ua_le255 (4, 3);
  switch (home->choice){
    case 0:
      {
        pdOpen_Request (ASNG_F(asnperg) &home->i1.open_fld);
        break;
      }
    case 1:
      {
        pdOpen_Answer (ASNG_F(asnperg) &home->i1.accept_fld);
        break;
      }
    case 2:
      {
        pdReason (ASNG_F(asnperg) &home->i1.abort_fld);
        break;
      }
    case 3:
      {
        pdLog (ASNG_F(asnperg) &home->i1.report_fld);
        break;
      }
    case 4:
      {
        pd_NullType ();
        break;
      }
  }
}

void pdSession_PDU (ASNG_F(ASNPERG *asnperg) Session_PDU *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_ua_8 (&home->version_fld, 1, 2, 1);
    pdBody (ASNG_F(asnperg) &home->body_fld);
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->trailer_fld, VF_STRU,
        sizeof (struct t_trailer_Session_PDU));
      home->compmask |= BIT(2);
      {
        struct t_trailer_Session_PDU *h1 =
          (struct t_trailer_Session_PDU *)home->trailer_fld->val.stru;
        h1->compmask = 0;
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (2);
          if (optfield_1 & BITL(1)){
            h1->compmask |= BIT(0);
            pdFrame (ASNG_F(asnperg) &h1->carried_fld);
          }
          if (optfield_1 & BITL(0)){
            h1->compmask |= BIT(1);
            pdGaps (ASNG_F(asnperg) &h1->gaps_fld);
          }
        }
      }
    }
  }
}

void pdcSession_PDU (ASNG_F(ASNPERG *asnperg) Session_PDU *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pdSession_PDU (ASNG_F(asnperg) home);
  pd_end ();
}

void pdcHeartbeat (ASNG_F(ASNPERG *asnperg) Heartbeat *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pd_NullType ();
  pd_end ();
}

void pdcSession_Abor (ASNG_F(ASNPERG *asnperg) Session_Abor *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pdReason (ASNG_F(asnperg) home);
  pd_end ();
}

void pdShown (ASNG_F(ASNPERG *asnperg) Shown *home)
{
  home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  switch (home->choice){
    case 0:
      {
        pd_sint32_cwn_ua_8 (&home->i1.credit_fld, 0, 255, 8);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
  }
}
