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
  pp_pushPath (ASNG_F(asnperg) "from_fld");
  peAddress (ASNG_F(asnperg) &home->from_fld);
  pp_popPath (ASNG_F(asnperg) 9);
  pp_pushPath (ASNG_F(asnperg) "route_fld");
  peRoute (ASNG_F(asnperg) &home->route_fld);
  pp_popPath (ASNG_F(asnperg) 10);
  if ((home->compmask & BIT(2))){
    pp_pushPath (ASNG_F(asnperg) "priority_fld");
    pePriority (ASNG_F(asnperg) &home->priority_fld);
    pp_popPath (ASNG_F(asnperg) 13);
  }
  if ((home->compmask & BIT(3))){
    pp_pushPath (ASNG_F(asnperg) "cookie_fld");
    pe_OctetString_ua_clt64K (&home->cookie_fld, 1, 32, 5);
    pp_popPath (ASNG_F(asnperg) 11);
  }
  if ((home->compmask & BIT(4))){
    pp_pushPath (ASNG_F(asnperg) "proxy_fld");
    peAddress (ASNG_F(asnperg) home->proxy_fld);
    pp_popPath (ASNG_F(asnperg) 10);
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
    pp_pushPath (ASNG_F(asnperg) "urgent_fld");
    pe_Boolean (home->urgent_fld);
    pp_popPath (ASNG_F(asnperg) 11);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pp_pushPath (ASNG_F(asnperg) "_fld");
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(8)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pp_pushPath (ASNG_F(asnperg) "backup_fld");
    peAddress (ASNG_F(asnperg) &home->backup_fld);
    pp_popPath (ASNG_F(asnperg) 11);
    if ((home->compmask & BIT(8))){
      pp_pushPath (ASNG_F(asnperg) "delay_fld");
      pe_sint32_cwn_ua (home->delay_fld, 0, 3600, 12);
      pp_popPath (ASNG_F(asnperg) 10);
    }
  }
  pp_popPath (ASNG_F(asnperg) 5);
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
      pp_pushElem (ASNG_F(asnperg) n1);
      pe_sint32_cwn_ua (home->elem [n1], 0, 255, 8);
      pp_popPath (ASNG_F(asnperg) 0);
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
  pp_pushPath (ASNG_F(asnperg) "result_fld");
  peResult (ASNG_F(asnperg) &home->result_fld);
  pp_popPath (ASNG_F(asnperg) 11);
  pp_pushPath (ASNG_F(asnperg) "credits_fld");
  peCredits (ASNG_F(asnperg) &home->credits_fld);
  pp_popPath (ASNG_F(asnperg) 12);
  if ((home->compmask & BIT(2))){
    pp_pushPath (ASNG_F(asnperg) "opened_fld");
    pe_UTCTimeDT (&home->opened_fld);
    pp_popPath (ASNG_F(asnperg) 11);
  }
  if ((home->compmask & BIT(3))){
    pp_pushPath (ASNG_F(asnperg) "label_fld");
    pe_KnownMultiCharStri_ua_clt64K (&home->label_fld, 1, 8, 3, 7, TYP_IA5STR,
      128, NULL);
    pp_popPath (ASNG_F(asnperg) 10);
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
  pp_pushPath (ASNG_F(asnperg) "reason_fld");
  peReason (ASNG_F(asnperg) &home->reason_fld);
  pp_popPath (ASNG_F(asnperg) 11);
  if ((home->compmask & BIT(1))){
    pp_pushPath (ASNG_F(asnperg) "causes_fld");
    peLog (ASNG_F(asnperg) home->causes_fld);
    pp_popPath (ASNG_F(asnperg) 11);
  }
}

void peLog (ASNG_F(ASNPERG *asnperg) Log *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 0, 50, 6);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pp_pushElem (ASNG_F(asnperg) listLen (home));
      peLogEntry (ASNG_F(asnperg) (LogEntry *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
}

void peBody (ASNG_F(ASNPERG *asnperg) Body *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 4, 3);
  switch (home->choice){
    case 0:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.open_fld");
        peOpen_Request (ASNG_F(asnperg) &home->i1.open_fld);
        pp_popPath (ASNG_F(asnperg) 12);
      }
      break;
    case 1:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.accept_fld");
        peOpen_Answer (ASNG_F(asnperg) &home->i1.accept_fld);
        pp_popPath (ASNG_F(asnperg) 14);
      }
      break;
    case 2:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.abort_fld");
        peReason (ASNG_F(asnperg) &home->i1.abort_fld);
        pp_popPath (ASNG_F(asnperg) 13);
      }
      break;
    case 3:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.report_fld");
        peLog (ASNG_F(asnperg) &home->i1.report_fld);
        pp_popPath (ASNG_F(asnperg) 14);
      }
      break;
    case 4:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.keepAlive_fld");
        pe_NullType ();
        pp_popPath (ASNG_F(asnperg) 17);
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
  pp_pushPath (ASNG_F(asnperg) "version_fld");
  pe_sint32_cwn_ua (home->version_fld, 1, 2, 1);
  pp_popPath (ASNG_F(asnperg) 12);
  pp_pushPath (ASNG_F(asnperg) "body_fld");
  peBody (ASNG_F(asnperg) &home->body_fld);
  pp_popPath (ASNG_F(asnperg) 9);
  if ((home->compmask & BIT(2))){
    pp_pushPath (ASNG_F(asnperg) "trailer_fld");
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
          pp_pushPath (ASNG_F(asnperg) "carried_fld");
          peFrame (ASNG_F(asnperg) &h1->carried_fld);
          pp_popPath (ASNG_F(asnperg) 12);
        }
        if ((h1->compmask & BIT(1))){
          pp_pushPath (ASNG_F(asnperg) "gaps_fld");
          peGaps (ASNG_F(asnperg) &h1->gaps_fld);
          pp_popPath (ASNG_F(asnperg) 9);
        }
      }
    }
    pp_popPath (ASNG_F(asnperg) 12);
  }
}

void pecSession_PDU (ASNG_F(ASNPERG *asnperg) Session_PDU *home)
{
  pp_pushPath (ASNG_F(asnperg) "Session_PDU");
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peSession_PDU (ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 12);
}

void pecHeartbeat (ASNG_F(ASNPERG *asnperg) Heartbeat *home)
{
  pp_pushPath (ASNG_F(asnperg) "Heartbeat");
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_NullType ();
  pp_popPath (ASNG_F(asnperg) 10);
}

void pecSession_Abort (ASNG_F(ASNPERG *asnperg) Session_Abort *home)
{
  pp_pushPath (ASNG_F(asnperg) "Session_Abort");
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peReason (ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 14);
}

void peShown (ASNG_F(ASNPERG *asnperg) Shown *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.credit_fld");
        pe_sint32_cwn_ua (home->i1.credit_fld, 0, 255, 8);
        pp_popPath (ASNG_F(asnperg) 14);
      }
      break;
    case 1:
      {
        pp_pushPath (ASNG_F(asnperg) "i1.none_fld");
        pe_NullType ();
        pp_popPath (ASNG_F(asnperg) 12);
      }
      break;
  }
}
