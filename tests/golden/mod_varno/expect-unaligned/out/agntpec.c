/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Agent_Service
 * FILE = agntpec.c
 ****************************************************************/

#ifndef AGNTPER_EXT
#include "agntper.ext"
#endif

void peCoupon (ASNG_F(ASNPERG *asnperg) Coupon *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_KnownMultiCharStri_ua_flt64K (&home->code_fld, 6, 6, 0, 4, TYP_NUMSTR,
    11, asnperNumStrChars);
  if ((home->compmask & BIT(1))){
    pe_sint32_cwn_ua (home->worth_fld, 1, 50, 6);
  }
}

void pecOfferArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  offer_begins ();
  {
    {
      sint32 optfield_0 = 0;
      if (hometab [0]){
        optfield_0 |= BITL(1);
      }
      if (hometab [2]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    if ((hometab [0])){
      peDay (ASNG_F(asnperg) &hometab [0]->val.ui8);
      freeAsn (&hometab [0], FREE_STG);
    }
    peSeats (ASNG_F(asnperg) (Seats *)hometab [1]->val.stru);
    freeAsn (&hometab [1], FREE_STG);
    if ((hometab [2])){
      {
        struct t_bonus_OfferArgument *h1 =
          (struct t_bonus_OfferArgument *)hometab [2]->val.stru;
        pe_lenDet_ua_clt64K_le64K (staArrLen (h1), 1, 3, 2);
        {
          uint32 n1 = 0;
          for (n1 = 0; n1 < staArrLen (h1); n1++){
            peCoupon (ASNG_F(asnperg) &h1->elem [n1]);
          }
        }
      }
      freeAsn (&hometab [2], FREE_STG);
      bonus_sent ();
    }
  }
  pe_end ();
}

void pecOfferResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
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

void pecRenewArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    {
      sint32 optfield_0 = 0;
      if (hometab [0]){
        optfield_0 |= BITL(1);
      }
      if (hometab [2]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 2);
    }
    if ((hometab [0])){
      peDay (ASNG_F(asnperg) &hometab [0]->val.ui8);
      freeAsn (&hometab [0], FREE_STG);
    }
    peSeats (ASNG_F(asnperg) (Seats *)hometab [1]->val.stru);
    freeAsn (&hometab [1], FREE_STG);
    if ((hometab [2])){
      {
        struct t_bonus_OfferArgument *h1 =
          (struct t_bonus_OfferArgument *)hometab [2]->val.stru;
        pe_lenDet_ua_clt64K_le64K (staArrLen (h1), 1, 3, 2);
        {
          uint32 n1 = 0;
          for (n1 = 0; n1 < staArrLen (h1); n1++){
            peCoupon (ASNG_F(asnperg) &h1->elem [n1]);
          }
        }
      }
      freeAsn (&hometab [2], FREE_STG);
      bonus_sent ();
    }
  }
  pe_end ();
}

static void efCoupon (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peCoupon (ASNG_F(asnperg) (Coupon *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peCoupons (ASNG_F(ASNPERG *asnperg) Coupons *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efCoupon);
}

void pecCoupons (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peCoupons (ASNG_F(asnperg) &hometab [0]->val.list);
  freeAsn (&hometab [0], FREE_STG);
  pe_end ();
}

void pecReturnArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    {
      sint32 optfield_0 = 0;
      if (hometab [2]){
        optfield_0 |= BITL(0);
      }
      pe_optField (optfield_0, 1);
    }
    pe_uint32_cwn_ua (hometab [0]->val.ui32, 0, 999999, 20);
    freeAsn (&hometab [0], FREE_STG);
    peSeats (ASNG_F(asnperg) (Seats *)hometab [1]->val.stru);
    freeAsn (&hometab [1], FREE_STG);
    if ((hometab [2])){
      pe_uint32_cwn_ua (hometab [2]->val.ui32, 0, 100000, 17);
      freeAsn (&hometab [2], FREE_STG);
    }
  }
  pe_end ();
}
