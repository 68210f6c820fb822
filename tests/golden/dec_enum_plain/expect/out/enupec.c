/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Enumerations
 * FILE = enupec.c
 ****************************************************************/

#ifndef ENUPER_EXT
#include "enuper.ext"
#endif

void peOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  pe_sint32_cwn_al_eq1 (0, 0);
}

void peOneOfSeven (ASNG_F(ASNPERG *asnperg) OneOfSeven *home)
{
  pe_sint32_cwn_al_eq1 (0, 0);
}

void peZero (ASNG_F(ASNPERG *asnperg) Zero *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 2, 2);
}

void peZeroWords (ASNG_F(ASNPERG *asnperg) ZeroWords *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 2, 2);
}

void peZeroLongs (ASNG_F(ASNPERG *asnperg) ZeroLongs *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 2, 2);
}

void peOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  sint32 index;
  if (5 <= *home && *home <= 6) {
    index = *home - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peNegative (ASNG_F(ASNPERG *asnperg) Negative *home)
{
  sint32 index;
  if (-2 <= *home && *home <= 0) {
    index = *home - -2;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 2, 2);
}

void peOtherLongs (ASNG_F(ASNPERG *asnperg) OtherLongs *home)
{
  sint32 index;
  if (5 <= *home && *home <= 6) {
    index = *home - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peHoles (ASNG_F(ASNPERG *asnperg) Holes *home)
{
  sint32 index;
  switch (*home) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peSorted (ASNG_F(ASNPERG *asnperg) Sorted *home)
{
  sint32 index;
  switch (*home) {
    case 1:
      index = 0;
      break;
    case 3:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peHolesLongs (ASNG_F(ASNPERG *asnperg) HolesLongs *home)
{
  sint32 index;
  switch (*home) {
    case -1:
      index = 0;
      break;
    case 0:
      index = 1;
      break;
    case 70000:
      index = 2;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 2, 2);
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(7)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_al_eq1 (0, 0);
  pe_sint32_cwn_al_le255 (home->zero_fld, 0, 2, 2);
  sint32 index;
  if (5 <= home->other_fld && home->other_fld <= 6) {
    index = home->other_fld - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->holes_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  peHoles (ASNG_F(asnperg) &home->named_fld);
  sint32 index;
  switch (*home->pointer_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  if (5 <= home->home_fld->val.ui8 && home->home_fld->val.ui8 <= 6) {
    index = home->home_fld->val.ui8 - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  if ((home->compmask & BIT(7))){
    pe_sint32_cwn_al_le255 (home->optional_fld, 0, 1, 1);
  }
}

void peArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      sint32 index;
      switch (home->elem [n1]) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
  }
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      sint32 index;
      if (5 <= a1->val.ui8 && a1->val.ui8 <= 6) {
        index = a1->val.ui8 - 5;
      }
      else {
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
  }
}

void peAlternatives (ASNG_F(ASNPERG *asnperg) Alternatives *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 2, 2);
  switch (home->choice){
    case 0:
      {
        pe_sint32_cwn_al_le255 (home->i1.zero_fld, 0, 2, 2);
      }
      break;
    case 1:
      {
        sint32 index;
        switch (home->i1.holes_fld) {
          case 1:
            index = 0;
            break;
          case 5:
            index = 1;
            break;
          default:
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
        pe_sint32_cwn_al_le255 (index, 0, 1, 1);
      }
      break;
    case 2:
      {
        peZero (ASNG_F(asnperg) &home->i1.named_fld);
      }
      break;
  }
}

void peEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  sint32 index;
  if (5 <= *home && *home <= 6) {
    index = *home - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void pecEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peEntry (ASNG_F(asnperg) home);
  pe_end ();
}
