/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Agent_Service
 * FILE = agntpdc.c
 ****************************************************************/

#ifndef AGNTPER_EXT
#include "agntper.ext"
#endif

void pdCoupon (ASNG_F(ASNPERG *asnperg) Coupon *home)
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_KnownMultiCharStri_ua_flt64K (&home->code_fld, 6, 6, 0, 4, TYP_NUMSTR,
      11, asnperNumStrChars);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_sint32_cwn_ua_8 (&home->worth_fld, 1, 50, 6);
    }
  }
}

void pdcOfferArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
      pdDay (ASNG_F(asnperg) &hometab [0]->val.ui8);
    }
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU,
      sizeof (Seats));
    pushHomeG (asnperg_asnuti, hometab [1]);
    pdSeats (ASNG_F(asnperg) (Seats *)hometab [1]->val.stru);
    popHomeG (asnperg_asnuti);
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (struct t_bonus_OfferArgument));
      pushHomeG (asnperg_asnuti, hometab [2]);
      {
        struct t_bonus_OfferArgument *h1 =
          (struct t_bonus_OfferArgument *)hometab [2]->val.stru;
        staArrInit (h1);
        {
          uint32 n1 = 0;
          uint32 len_1;
          pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
          while (n1 < len_1){
            pdCoupon (ASNG_F(asnperg) &h1->elem [n1]);
            incStaArrLen (h1);
            n1++;
          }
        }
      }
      popHomeG (asnperg_asnuti);
    }
  }
  offer_done ();
  pd_end ();
}

void pdcOfferResult (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
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

void pdcRenewArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
      pdDay (ASNG_F(asnperg) &hometab [0]->val.ui8);
    }
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU,
      sizeof (Seats));
    pushHomeG (asnperg_asnuti, hometab [1]);
    pdSeats (ASNG_F(asnperg) (Seats *)hometab [1]->val.stru);
    popHomeG (asnperg_asnuti);
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU,
        sizeof (struct t_bonus_OfferArgument));
      pushHomeG (asnperg_asnuti, hometab [2]);
      {
        struct t_bonus_OfferArgument *h1 =
          (struct t_bonus_OfferArgument *)hometab [2]->val.stru;
        staArrInit (h1);
        {
          uint32 n1 = 0;
          uint32 len_1;
          pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
          while (n1 < len_1){
            pdCoupon (ASNG_F(asnperg) &h1->elem [n1]);
            incStaArrLen (h1);
            n1++;
          }
        }
      }
      popHomeG (asnperg_asnuti);
    }
  }
  pd_end ();
}

static void dfCoupon (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (getHomeG (asnperg_asnuti), home, &a1, VF_STRU,
      sizeof (Coupon));
    pdCoupon (ASNG_F(asnperg) (Coupon *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdCoupons (ASNG_F(ASNPERG *asnperg) Coupons *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfCoupon);
  }
}

void pdcCoupons (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_LIST, 0);
  pushHomeG (asnperg_asnuti, hometab [0]);
  pdCoupons (ASNG_F(asnperg) &hometab [0]->val.list);
  popHomeG (asnperg_asnuti);
  pd_end ();
}

void pdcReturnArgument (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI32, 0);
    pd_uint32_cwn_ua (&hometab [0]->val.ui32, 0, 999999, 20);
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU,
      sizeof (Seats));
    pushHomeG (asnperg_asnuti, hometab [1]);
    pdSeats (ASNG_F(asnperg) (Seats *)hometab [1]->val.stru);
    popHomeG (asnperg_asnuti);
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_UI32, 0);
      pd_uint32_cwn_ua (&hometab [2]->val.ui32, 0, 100000, 17);
    }
  }
  pd_end ();
}
