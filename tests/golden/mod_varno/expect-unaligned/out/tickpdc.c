/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Ticket_Service
 * FILE = tickpdc.c
 ****************************************************************/

#ifndef TICKPER_EXT
#include "tickper.ext"
#endif

void pdDay (ASNG_F(ASNPERG *asnperg) Day *home)
{
  sint32 index;
  pd_sint32_cwn_ua_8 (&index, 0, 6, 3);
  *home = index + 1;
}

void pdSeats (ASNG_F(ASNPERG *asnperg) Seats *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 6, 3);
    while (n1 < len_0){
      pd_sint32_cwn_ua_8 (&home->elem [n1], 1, 120, 7);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdCard (ASNG_F(ASNPERG *asnperg) Card *home)
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_KnownMultiCharStri_ua_flt64K (&home->number_fld, 16, 16, 0, 4,
      TYP_NUMSTR, 11, asnperNumStrChars);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_BitString_ua_clt64K (&home->valid_fld, 1, 12, 4);
    }
  }
}

void pdcReserveArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI16, 0);
    pd_sint32_cwn_ua_16 (&hometab [0]->val.ui16, 1, 9999, 14);
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
    pdDay (ASNG_F(asnperg) &hometab [1]->val.ui8);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (Seats));
      pushHomeG (asnperg_asnuti, hometab [2]);
      pdSeats (ASNG_F(asnperg) (Seats *)hometab [2]->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_BOOL, 0);
      pd_Boolean (&hometab [3]->val.bool);
    }
    createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_STRU,
      sizeof (struct t_traveller_ReserveArgument));
    pushHomeG (asnperg_asnuti, hometab [4]);
    {
      struct t_traveller_ReserveArgument *h1 =
        (struct t_traveller_ReserveArgument *)hometab [4]->val.stru;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        pd_KnownMultiCharStri_ua_clt64K (&h1->name_fld, 1, 40, 6, 7,
          TYP_IA5STR, 128, NULL);
        if (optfield_1 & BITL(0)){
          h1->compmask |= BIT(1);
          pdCard (ASNG_F(asnperg) &h1->card_fld);
        }
      }
    }
    popHomeG (asnperg_asnuti);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_STAS0,
          sizeof (struct t_voucher_ReserveArgument));
        pd_OctetString_ua_flt64K_0 (hometab [6]->val.stas0, 8, 8, 0);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [7], VF_UI8, 0);
        pd_sint32_cwn_ua_8 (&hometab [7]->val.ui8, 0, 4, 3);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  pd_end ();
}

void pdBooking (ASNG_F(ASNPERG *asnperg) Booking *home)
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_uint32_cwn_ua (&home->number_fld, 0, 999999, 20);
    pdSeats (ASNG_F(asnperg) &home->seats_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pd_uint32_cwn_ua (&home->price_fld, 0, 100000, 17);
    }
  }
}

void pdcReserveResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_ua_le255 (2, 2);
    }
    else {
      choice_0 = 4 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
            sizeof (Booking));
          pushHomeG (asnperg_asnuti, hometab [0]);
          pdBooking (ASNG_F(asnperg) (Booking *)hometab [0]->val.stru);
          popHomeG (asnperg_asnuti);
          break;
        }
      case 1:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI16, 0);
          pd_sint32_cwn_ua_16 (&hometab [1]->val.ui16, 1, 500, 9);
          break;
        }
      case 2:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_NULL, 0);
          pd_NullType ();
          break;
        }
      case 4:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_UI8, 0);
          pdDay (ASNG_F(asnperg) &hometab [4]->val.ui8);
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      default:
        {
          createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
  pd_end ();
}

void pdcCancelArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI32, 0);
  pd_uint32_cwn_ua (&hometab [0]->val.ui32, 0, 999999, 20);
  pd_end ();
}

void pdcCancelResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_NULL, 0);
  pd_NullType ();
  pd_end ();
}

void pdReserveArgument (ASNG_F(ASNPERG *asnperg) ReserveArgument *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    pd_sint32_cwn_ua_16 (&home->train_fld, 1, 9999, 14);
    pdDay (ASNG_F(asnperg) &home->day_fld);
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(2);
      pdSeats (ASNG_F(asnperg) &home->seats_fld);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(3);
      pd_Boolean (&home->quiet_fld);
    }
    {
      sint32 optfield_1;
      optfield_1 = pd_getBits (1);
      pd_KnownMultiCharStri_ua_clt64K (&home->traveller_fld.name_fld, 1, 40,
        6, 7, TYP_IA5STR, 128, NULL);
      if (optfield_1 & BITL(0)){
        home->traveller_fld.compmask |= BIT(1);
        pdCard (ASNG_F(asnperg) &home->traveller_fld.card_fld);
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(6);
        pd_OctetString_ua_flt64K_0 (&home->voucher_fld, 8, 8, 0);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(7);
        pd_sint32_cwn_ua_8 (&home->bicycle_fld, 0, 4, 3);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdcChangeArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI16, 0);
    pd_sint32_cwn_ua_16 (&hometab [0]->val.ui16, 1, 9999, 14);
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_UI8, 0);
    pdDay (ASNG_F(asnperg) &hometab [1]->val.ui8);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (Seats));
      pushHomeG (asnperg_asnuti, hometab [2]);
      pdSeats (ASNG_F(asnperg) (Seats *)hometab [2]->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_BOOL, 0);
      pd_Boolean (&hometab [3]->val.bool);
    }
    createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_STRU,
      sizeof (struct t_traveller_ReserveArgument));
    pushHomeG (asnperg_asnuti, hometab [4]);
    {
      struct t_traveller_ReserveArgument *h1 =
        (struct t_traveller_ReserveArgument *)hometab [4]->val.stru;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        pd_KnownMultiCharStri_ua_clt64K (&h1->name_fld, 1, 40, 6, 7,
          TYP_IA5STR, 128, NULL);
        if (optfield_1 & BITL(0)){
          h1->compmask |= BIT(1);
          pdCard (ASNG_F(asnperg) &h1->card_fld);
        }
      }
    }
    popHomeG (asnperg_asnuti);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [6], VF_STAS0,
          sizeof (struct t_voucher_ReserveArgument));
        pd_OctetString_ua_flt64K_0 (hometab [6]->val.stas0, 8, 8, 0);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &hometab [7], VF_UI8, 0);
        pd_sint32_cwn_ua_8 (&hometab [7]->val.ui8, 0, 4, 3);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  pd_end ();
}

void pdListResult (ASNG_F(ASNPERG *asnperg) ListResult *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 0, 20, 5);
    while (n1 < len_0){
      pdBooking (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdcListResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
    sizeof (ListResult));
  pushHomeG (asnperg_asnuti, hometab [0]);
  pdListResult (ASNG_F(asnperg) (ListResult *)hometab [0]->val.stru);
  popHomeG (asnperg_asnuti);
  pd_end ();
}

void pdComplaint (ASNG_F(ASNPERG *asnperg) Complaint *home)
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    createHome (getHomeG (asnperg_asnuti), &home->booking_fld, VF_UI32, 0);
    pd_uint32_cwn_ua (&home->booking_fld->val.ui32, 0, 999999, 20);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &home->text_fld, VF_STAS16,
        sizeof (struct t_text_Complaint));
      pd_KnownMultiCharStri_ua_clt64K (home->text_fld->val.stas16, 1, 200, 8,
        7, TYP_IA5STR, 128, NULL);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &home->witness_fld, VF_STRU,
        sizeof (Card));
      pushHomeG (asnperg_asnuti, home->witness_fld);
      pdCard (ASNG_F(asnperg) (Card *)home->witness_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
  }
}

void pdcComplaint (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pdComplaint (ASNG_F(asnperg) (Complaint *)hometab);
  pd_end ();
}
