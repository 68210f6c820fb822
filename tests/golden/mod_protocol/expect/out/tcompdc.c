/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Tide_Common
 * FILE = tcompdc.c
 ****************************************************************/

#ifndef TCOMPER_EXT
#include "tcomper.ext"
#endif

void pdAddress (ASNG_F(ASNPERG *asnperg) Address *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_al_le64K_16 (&home->station_fld, 0, 65535, 2);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_sint32_cwn_al_le255_8 (&home->port_fld, 1, 255, 8);
    }
  }
}

void pdLocator (ASNG_F(ASNPERG *asnperg) Locator *home)
{
  home->choice = pd_ChoiceIndex_al_le255 (2, 2);
  switch (home->choice){
    case 0:
      {
        pdAddress (ASNG_F(asnperg) &home->i1.byStation_fld);
        break;
      }
    case 1:
      {
        pd_KnownMultiCharStri_al_clt64K_le255 (&home->i1.byName_fld, 1, 16, 4,
          8, TYP_IA5STR, 128, NULL);
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
      pd_sint32_cwn_al_le255 (&index, 0, 3, 2);
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
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
  pd_sint32_cwn_al_le255_8 (&index, 0, 2, 2);
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
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 8, 3);
    while (n1 < len_0){
      pdAddress (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}
