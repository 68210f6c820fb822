/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Enumerations
 * FILE = enupdc.c
 ****************************************************************/

#ifndef ENUPER_EXT
#include "enuper.ext"
#endif

void pdOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  pd_sint32_cwn_al_eq1 (home, 0);
}

void pdOneOfSeven (ASNG_F(ASNPERG *asnperg) OneOfSeven *home)
{
  pd_sint32_cwn_al_eq1 (home, 0);
}

void pdZero (ASNG_F(ASNPERG *asnperg) Zero *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 2, 2);
}

void pdZeroWords (ASNG_F(ASNPERG *asnperg) ZeroWords *home)
{
  pd_sint32_cwn_al_le255_16 (home, 0, 2, 2);
}

void pdZeroLongs (ASNG_F(ASNPERG *asnperg) ZeroLongs *home)
{
  pd_sint32_cwn_al_le255 (home, 0, 2, 2);
}

void pdOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  *home = index + 5;
}

void pdNegative (ASNG_F(ASNPERG *asnperg) Negative *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 2, 2);
  *home = index + -2;
}

void pdOtherLongs (ASNG_F(ASNPERG *asnperg) OtherLongs *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
  *home = index + 5;
}

void pdHoles (ASNG_F(ASNPERG *asnperg) Holes *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      *home = 1;
      break;
    case 1:
      *home = 5;
      break;
    default:
      break;
  }
}

void pdSorted (ASNG_F(ASNPERG *asnperg) Sorted *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      *home = 1;
      break;
    case 1:
      *home = 3;
      break;
    default:
      break;
  }
}

void pdHolesLongs (ASNG_F(ASNPERG *asnperg) HolesLongs *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255 (&index, 0, 2, 2);
  switch (index) {
    case 0:
      *home = -1;
      break;
    case 1:
      *home = 0;
      break;
    case 2:
      *home = 70000;
      break;
    default:
      break;
  }
}

void pdInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_al_eq1 (&home->one_fld, 0);
    pd_sint32_cwn_al_le255_8 (&home->zero_fld, 0, 2, 2);
    sint32 index;
    pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
    home->other_fld = index + 5;
    sint32 index;
    pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
    switch (index) {
      case 0:
        home->holes_fld = 1;
        break;
      case 1:
        home->holes_fld = 5;
        break;
      default:
        break;
    }
    pdHoles (ASNG_F(asnperg) &home->named_fld);
    if (!(home->pointer_fld = (uint8 *)allocAsn (NULL, MB_STG,
      sizeof (uint8)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    sint32 index;
    pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
    switch (index) {
      case 0:
        *home->pointer_fld = 1;
        break;
      case 1:
        *home->pointer_fld = 5;
        break;
      default:
        break;
    }
    createHome (NULL, &home->home_fld, VF_UI8, 0);
    sint32 index;
    pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
    home->home_fld->val.ui8 = index + 5;
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(7);
      pd_sint32_cwn_al_le255_8 (&home->optional_fld, 0, 1, 1);
    }
  }
}

void pdArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (n1 < len_0){
      sint32 index;
      pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->elem [n1] = 1;
          break;
        case 1:
          home->elem [n1] = 5;
          break;
        default:
          break;
      }
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdList (ASNG_F(ASNPERG *asnperg) List *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_UI8, 0);
      sint32 index;
      pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
      a1->val.ui8 = index + 5;
      incListLen (home);
    }
  }
}

void pdAlternatives (ASNG_F(ASNPERG *asnperg) Alternatives *home)
{
  home->choice = pd_ChoiceIndex_al_le255 (2, 2);
  switch (home->choice){
    case 0:
      {
        pd_sint32_cwn_al_le255_8 (&home->i1.zero_fld, 0, 2, 2);
        break;
      }
    case 1:
      {
        sint32 index;
        pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
        switch (index) {
          case 0:
            home->i1.holes_fld = 1;
            break;
          case 1:
            home->i1.holes_fld = 5;
            break;
          default:
            break;
        }
        break;
      }
    case 2:
      {
        pdZero (ASNG_F(asnperg) &home->i1.named_fld);
        break;
      }
  }
}

void pdEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  *home = index + 5;
}

void pdcEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdEntry (ASNG_F(asnperg) home);
  pd_end ();
}
