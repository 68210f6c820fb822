/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Tide_Common
 * FILE = tcomper.c
 ****************************************************************/

#ifndef TCOMPEC_EXT
#include "tcompec.ext"
#endif

#ifndef TCOMPDC_EXT
#include "tcompdc.ext"
#endif

void peAddress (ASNG_F(ASNPERG *asnperg) Address *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_ua (home->station_fld, 0, 65535, 16);
  if ((home->compmask & BIT(1))){
    pe_sint32_cwn_ua (home->port_fld, 1, 255, 8);
  }
}

void peLocator (ASNG_F(ASNPERG *asnperg) Locator *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 2, 2);
  switch (home->choice){
    case 0:
      {
        peAddress (ASNG_F(asnperg) &home->i1.byStation_fld);
      }
      break;
    case 1:
      {
        pe_KnownMultiCharStri_ua_clt64K (&home->i1.byName_fld, 1, 16, 4, 7,
          TYP_IA5STR, 128, NULL);
      }
      break;
    case 2:
      {
        pe_NullType ();
      }
      break;
  }
}

void peReason (ASNG_F(ASNPERG *asnperg) Reason *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (0 <= home->value && home->value <= 3) {
        index = home->value;
      }
      else {
        extBit = TRUE;
        if (home->value == 4) {
          index = home->value - 4;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 3, 2);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}

void pePriority (ASNG_F(ASNPERG *asnperg) Priority *home)
{
  sint32 index;
  switch (*home) {
    case 1:
      index = 0;
      break;
    case 2:
      index = 1;
      break;
    case 4:
      index = 2;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 2, 2);
}

void peRoute (ASNG_F(ASNPERG *asnperg) Route *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 8, 3);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peAddress (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void pdAddress (ASNG_F(ASNPERG *asnperg) Address *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_ua_16 (&home->station_fld, 0, 65535, 16);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_sint32_cwn_ua_8 (&home->port_fld, 1, 255, 8);
    }
  }
}

void pdLocator (ASNG_F(ASNPERG *asnperg) Locator *home)
{
  home->choice = pd_ChoiceIndex_ua_le255 (2, 2);
  switch (home->choice){
    case 0:
      {
        pdAddress (ASNG_F(asnperg) &home->i1.byStation_fld);
        break;
      }
    case 1:
      {
        pd_KnownMultiCharStri_ua_clt64K (&home->i1.byName_fld, 1, 16, 4, 7,
          TYP_IA5STR, 128, NULL);
        break;
      }
    case 2:
      {
        pd_NullType ();
        break;
      }
  }
}

void pdReason (ASNG_F(ASNPERG *asnperg) Reason *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_ua (&index, 0, 3, 2);
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumUa ();
      if (index == 0) {
        home->value = index + 4;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdPriority (ASNG_F(ASNPERG *asnperg) Priority *home)
{
  sint32 index;
  pd_sint32_cwn_ua_8 (&index, 0, 2, 2);
  switch (index) {
    case 0:
      *home = 1;
      break;
    case 1:
      *home = 2;
      break;
    case 2:
      *home = 4;
      break;
    default:
      break;
  }
}

void pdRoute (ASNG_F(ASNPERG *asnperg) Route *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 8, 3);
    while (n1 < len_0){
      pdAddress (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}
