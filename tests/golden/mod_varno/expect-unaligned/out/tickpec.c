/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Ticket_Service
 * FILE = tickpec.c
 ****************************************************************/

#ifndef TICKPER_EXT
#include "tickper.ext"
#endif

void peDay (ASNG_F(ASNPERG *asnperg) Day *home)
{
  sint32 index;
  if (1 <= *home && *home <= 7) {
    index = *home - 1;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 6, 3);
}

void peSeats (ASNG_F(ASNPERG *asnperg) Seats *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 6, 3);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_ua (home->elem [n1], 1, 120, 7);
    }
  }
}

void peCard (ASNG_F(ASNPERG *asnperg) Card *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_KnownMultiCharStri_ua_flt64K (&home->number_fld, 16, 16, 0, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  if ((home->compmask & BIT(1))){
    pe_BitString_ua_clt64K (&home->valid_fld, 1, 12, 4);
  }
}

void pecReserveArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    pe_extensionBit (1);
    {
      sint32 optfield_0 = 0;
      if (hometab [2]){
        optfield_0 |= BITL(1);
      }
      if (hometab [3]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    pe_sint32_cwn_ua (hometab [0]->val.ui16, 1, 9999, 14);
    freeAsn (&hometab [0], FREE_STG);
    peDay (ASNG_F(asnperg) &hometab [1]->val.ui8);
    freeAsn (&hometab [1], FREE_STG);
    if ((hometab [2])){
      peSeats (ASNG_F(asnperg) (Seats *)hometab [2]->val.stru);
      freeAsn (&hometab [2], FREE_STG);
    }
    if ((hometab [3])){
      pe_Boolean (hometab [3]->val.bool);
      freeAsn (&hometab [3], FREE_STG);
    }
    {
      struct t_traveller_ReserveArgument *h1 =
        (struct t_traveller_ReserveArgument *)hometab [4]->val.stru;
      {
        {
          sint32 optfield_1 = 0;
          if (h1->compmask & BIT(1)){
            optfield_1 |= BITL(0);
          }
          pe_optField (optfield_1, 1);
        }
        pe_KnownMultiCharStri_ua_clt64K (&h1->name_fld, 1, 40, 6, 7,
          TYP_IA5STR, 128, NULL);
        if ((h1->compmask & BIT(1))){
          peCard (ASNG_F(asnperg) &h1->card_fld);
        }
      }
    }
    freeAsn (&hometab [4], FREE_STG);
    {
      sint32 extensionAdditionField_0 = 0|BITL(0);
      if ((hometab [6])){
        extensionAdditionField_0 |= BITL(1);
      }
      pe_extensionAddition (2, extensionAdditionField_0);
    }
    if ((hometab [6])){
      pe_BeginOpenType_ua (&openctx_0);
      pe_OctetString_ua_flt64K (hometab [6]->val.stas0, 8, 8, 0);
      freeAsn (&hometab [6], FREE_STG);
      pe_EndOpenType_ua (&openctx_0);
    }
    pe_BeginOpenType_ua (&openctx_0);
    pe_sint32_cwn_ua (hometab [7]->val.ui8, 0, 4, 3);
    freeAsn (&hometab [7], FREE_STG);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_end ();
}

void peBooking (ASNG_F(ASNPERG *asnperg) Booking *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_uint32_cwn_ua (home->number_fld, 0, 999999, 20);
  peSeats (ASNG_F(asnperg) &home->seats_fld);
  if ((home->compmask & BIT(2))){
    pe_uint32_cwn_ua (home->price_fld, 0, 100000, 17);
  }
}

void pecReserveResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [4] != NULL){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    if (hometab [0]){
      pe_ChoiceIndex_ua_le255 (0, 2, 2);
      peBooking (ASNG_F(asnperg) (Booking *)hometab [0]->val.stru);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [1]){
      pe_ChoiceIndex_ua_le255 (1, 2, 2);
      pe_sint32_cwn_ua (hometab [1]->val.ui16, 1, 500, 9);
      freeAsn (&hometab [1], FREE_STG);
    }
    else if (hometab [2]){
      pe_ChoiceIndex_ua_le255 (2, 2, 2);
      pe_NullType ();
      freeAsn (&hometab [2], FREE_STG);
    }
    else if (hometab [4]){
      pe_ChoiceIndex_ua_ns (0);
      pe_BeginOpenType_ua (&openctx_0);
      peDay (ASNG_F(asnperg) &hometab [4]->val.ui8);
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_ua (&openctx_0);
    }
  }
  pe_end ();
}

void pecCancelArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_uint32_cwn_ua (hometab [0]->val.ui32, 0, 999999, 20);
  freeAsn (&hometab [0], FREE_STG);
  pe_end ();
}

void pecCancelResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_NullType ();
  freeAsn (&hometab [0], FREE_STG);
}

void peReserveArgument (ASNG_F(ASNPERG *asnperg) ReserveArgument *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
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
  pe_sint32_cwn_ua (home->train_fld, 1, 9999, 14);
  peDay (ASNG_F(asnperg) &home->day_fld);
  if ((home->compmask & BIT(2))){
    peSeats (ASNG_F(asnperg) &home->seats_fld);
  }
  if ((home->compmask & BIT(3))){
    pe_Boolean (home->quiet_fld);
  }
  {
    {
      sint32 optfield_1 = 0;
      if (home->traveller_fld.compmask & BIT(1)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    pe_KnownMultiCharStri_ua_clt64K (&home->traveller_fld.name_fld, 1, 40, 6,
      7, TYP_IA5STR, 128, NULL);
    if ((home->traveller_fld.compmask & BIT(1))){
      peCard (ASNG_F(asnperg) &home->traveller_fld.card_fld);
    }
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
    pe_OctetString_ua_flt64K (&home->voucher_fld, 8, 8, 0);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_sint32_cwn_ua (home->bicycle_fld, 0, 4, 3);
  pe_EndOpenType_ua (&openctx_0);
}

void pecChangeArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    pe_extensionBit (1);
    {
      sint32 optfield_0 = 0;
      if (hometab [2]){
        optfield_0 |= BITL(1);
      }
      if (hometab [3]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    pe_sint32_cwn_ua (hometab [0]->val.ui16, 1, 9999, 14);
    freeAsn (&hometab [0], FREE_STG);
    peDay (ASNG_F(asnperg) &hometab [1]->val.ui8);
    freeAsn (&hometab [1], FREE_STG);
    if ((hometab [2])){
      peSeats (ASNG_F(asnperg) (Seats *)hometab [2]->val.stru);
      freeAsn (&hometab [2], FREE_STG);
    }
    if ((hometab [3])){
      pe_Boolean (hometab [3]->val.bool);
      freeAsn (&hometab [3], FREE_STG);
    }
    {
      struct t_traveller_ReserveArgument *h1 =
        (struct t_traveller_ReserveArgument *)hometab [4]->val.stru;
      {
        {
          sint32 optfield_1 = 0;
          if (h1->compmask & BIT(1)){
            optfield_1 |= BITL(0);
          }
          pe_optField (optfield_1, 1);
        }
        pe_KnownMultiCharStri_ua_clt64K (&h1->name_fld, 1, 40, 6, 7,
          TYP_IA5STR, 128, NULL);
        if ((h1->compmask & BIT(1))){
          peCard (ASNG_F(asnperg) &h1->card_fld);
        }
      }
    }
    freeAsn (&hometab [4], FREE_STG);
    {
      sint32 extensionAdditionField_0 = 0|BITL(0);
      if ((hometab [6])){
        extensionAdditionField_0 |= BITL(1);
      }
      pe_extensionAddition (2, extensionAdditionField_0);
    }
    if ((hometab [6])){
      pe_BeginOpenType_ua (&openctx_0);
      pe_OctetString_ua_flt64K (hometab [6]->val.stas0, 8, 8, 0);
      freeAsn (&hometab [6], FREE_STG);
      pe_EndOpenType_ua (&openctx_0);
    }
    pe_BeginOpenType_ua (&openctx_0);
    pe_sint32_cwn_ua (hometab [7]->val.ui8, 0, 4, 3);
    freeAsn (&hometab [7], FREE_STG);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_end ();
}

void peListResult (ASNG_F(ASNPERG *asnperg) ListResult *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 0, 20, 5);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peBooking (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void pecListResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peListResult (ASNG_F(asnperg) (ListResult *)hometab [0]->val.stru);
  freeAsn (&hometab [0], FREE_STG);
  pe_end ();
}

void peComplaint (ASNG_F(ASNPERG *asnperg) Complaint *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->text_fld){
      optfield_0 |= BITL(1);
    }
    if (home->witness_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  pe_uint32_cwn_ua (home->booking_fld->val.ui32, 0, 999999, 20);
  freeAsn (&home->booking_fld, FREE_STG);
  if (home->text_fld){
    pe_KnownMultiCharStri_ua_clt64K (home->text_fld->val.stas16, 1, 200, 8, 7,
      TYP_IA5STR, 128, NULL);
    freeAsn (&home->text_fld, FREE_STG);
  }
  if (home->witness_fld){
    peCard (ASNG_F(asnperg) (Card *)home->witness_fld->val.stru);
    freeAsn (&home->witness_fld, FREE_STG);
  }
}

void pecComplaint (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peComplaint (ASNG_F(asnperg) (Complaint *)hometab);
  pe_end ();
}
