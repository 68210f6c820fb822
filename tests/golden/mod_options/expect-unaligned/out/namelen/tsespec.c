/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Tide_Session
 * FILE = tsespec.c
 ****************************************************************/

#ifndef TSESPER_EXT
#include "tsesper.ext"
#endif

void peOpen_Request (ASNG_F(ASNPERG *asnperg) Open_Request *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(3)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 3);
  }
  peAddress (ASNG_F(asnperg) &home->from_fld);
  peRoute (ASNG_F(asnperg) &home->route_fld);
  if ((home->compmask & BIT(2))){
    pePriority (ASNG_F(asnperg) &home->priority_fld);
  }
  if ((home->compmask & BIT(3))){
    pe_OctetString_ua_clt64K (&home->cookie_fld, 1, 32, 5);
  }
  if ((home->compmask & BIT(4))){
    peAddress (ASNG_F(asnperg) home->proxy_fld);
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    if ((home->compmask & BIT(6))){
      extensionAdditionField_0 |= BITL(1);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(6))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->urgent_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(8)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    peAddress (ASNG_F(asnperg) &home->backup_fld);
    if ((home->compmask & BIT(8))){
      pe_sint32_cwn_ua (home->delay_fld, 0, 3600, 12);
    }
  }
  pe_EndOpenType_ua (&openctx_0);
}

void peResult (ASNG_F(ASNPERG *asnperg) Result *home)
{
  pe_sint32_cwn_ua (*home, 0, 1, 1);
}

void peCredits (ASNG_F(ASNPERG *asnperg) Credits *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 0, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_ua (home->elem [n1], 0, 255, 8);
    }
  }
}

void peOpen_Answer (ASNG_F(ASNPERG *asnperg) Open_Answer *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(3)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  peResult (ASNG_F(asnperg) &home->result_fld);
  peCredits (ASNG_F(asnperg) &home->credits_fld);
  if ((home->compmask & BIT(2))){
    pe_UTCTimeDT (&home->opened_fld);
  }
  if ((home->compmask & BIT(3))){
    pe_KnownMultiCharStri_ua_clt64K (&home->label_fld, 1, 8, 3, 7, TYP_IA5STR,
      128, NULL);
  }
}

void peLogEntry (ASNG_F(ASNPERG *asnperg) LogEntry *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  peReason (ASNG_F(asnperg) &home->reason_fld);
  if ((home->compmask & BIT(1))){
    peLog (ASNG_F(asnperg) home->causes_fld);
  }
}

void peLog (ASNG_F(ASNPERG *asnperg) Log *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 0, 50, 6);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      peLogEntry (ASNG_F(asnperg) (LogEntry *)a1->val.stru);
    }
  }
}

void peBody (ASNG_F(ASNPERG *asnperg) Body *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 4, 3);
  switch (home->choice){
    case 0:
      {
        peOpen_Request (ASNG_F(asnperg) &home->i1.open_fld);
      }
      break;
    case 1:
      {
        peOpen_Answer (ASNG_F(asnperg) &home->i1.accept_fld);
      }
      break;
    case 2:
      {
        peReason (ASNG_F(asnperg) &home->i1.abort_fld);
      }
      break;
    case 3:
      {
        peLog (ASNG_F(asnperg) &home->i1.report_fld);
      }
      break;
    case 4:
      {
        pe_NullType ();
      }
      break;
  }
}

void peSession_PDU (ASNG_F(ASNPERG *asnperg) Session_PDU *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_ua (home->version_fld, 1, 2, 1);
  peBody (ASNG_F(asnperg) &home->body_fld);
  if ((home->compmask & BIT(2))){
    {
      struct t_trailer_Session_PDU *h1 =
        (struct t_trailer_Session_PDU *)home->trailer_fld->val.stru;
      {
        {
          sint32 optfield_1 = 0;
          if (h1->compmask & BIT(0)){
            optfield_1 |= BITL(1);
          }
          if (h1->compmask & BIT(1)){
            optfield_1 |= BITL(0);
          }
          pe_optField (optfield_1, 2);
        }
        if ((h1->compmask & BIT(0))){
          peFrame (ASNG_F(asnperg) &h1->carried_fld);
        }
        if ((h1->compmask & BIT(1))){
          peGaps (ASNG_F(asnperg) &h1->gaps_fld);
        }
      }
    }
  }
}

void pecSession_PDU (ASNG_F(ASNPERG *asnperg) Session_PDU *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peSession_PDU (ASNG_F(asnperg) home);
  pe_end ();
}

void pecHeartbeat (ASNG_F(ASNPERG *asnperg) Heartbeat *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_NullType ();
}

void pecSession_Abor (ASNG_F(ASNPERG *asnperg) Session_Abor *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peReason (ASNG_F(asnperg) home);
  pe_end ();
}

void peShown (ASNG_F(ASNPERG *asnperg) Shown *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_sint32_cwn_ua (home->i1.credit_fld, 0, 255, 8);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}
