/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutHomes
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdSOf11xxxxxxx (ASNG_F(ASNPERG *asnperg) SOf11xxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdTOf11xxxxxxx (ASNG_F(ASNPERG *asnperg) TOf11xxxxxxx *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (5);
    if (optfield_0 & BITL(4)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxA_fld, VF_DYNS,
        0);
      pushHomeG (asnperg_asnuti, home->of11xxxxxxxA_fld);
      home->compmask |= BIT(0);
      pd_DynOctetString_al_u (&home->of11xxxxxxxA_fld->val.dyns, 0, MAXLONG,
        4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxS_fld, VF_STRU,
        sizeof (SOf11xxxxxxx));
      pushHomeG (asnperg_asnuti, home->of11xxxxxxxS_fld);
      home->compmask |= BIT(1);
      pdSOf11xxxxxxx (ASNG_F(asnperg)
        (SOf11xxxxxxx *)home->of11xxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxI_fld, VF_STRU,
        sizeof (struct t_of11xxxxxxxI_TOf11xxxxxxx));
      pushHomeG (asnperg_asnuti, home->of11xxxxxxxI_fld);
      home->compmask |= BIT(2);
      {
        struct t_of11xxxxxxxI_TOf11xxxxxxx *h1 =
          (struct t_of11xxxxxxxI_TOf11xxxxxxx *)home->of11xxxxxxxI_fld->val.stru;
        pd_DynOctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
      popHomeG (asnperg_asnuti);
    }
    if (!(home->of11xxxxxxxP_fld = (SOf11xxxxxxx *)allocAsn (
      getHomeG (asnperg_asnuti), MB_STG, sizeof (SOf11xxxxxxx)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    pdSOf11xxxxxxx (ASNG_F(asnperg) home->of11xxxxxxxP_fld);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxD_fld, VF_UI8,
        0);
      home->compmask |= BIT(4);
      pd_sint32_cwn_al_le255_8 (&home->of11xxxxxxxD_fld->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(5);
      listInit (&home->of11xxxxxxxL_fld);
      {
        ASNHOME *a1 = NULL;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (listLen (&home->of11xxxxxxxL_fld) < len_1){
          appendList (getHomeG (asnperg_asnuti), &home->of11xxxxxxxL_fld, &a1,
            VF_STRU, sizeof (SOf11xxxxxxx));
          pdSOf11xxxxxxx (ASNG_F(asnperg) (SOf11xxxxxxx *)a1->val.stru);
          incListLen (&home->of11xxxxxxxL_fld);
        }
      }
    }
  }
  if (!(home->compmask & BIT(4))){
    createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxD_fld, VF_UI8,
      0);
    home->compmask |= BIT(4);
    home->of11xxxxxxxD_fld->val.ui8 = 3;
  }
}

void pdCOf11xxxxxxx (ASNG_F(ASNPERG *asnperg) COf11xxxxxxx *home)
{
  memset (home, 0, sizeof (COf11xxxxxxx));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (4);
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxA_fld, VF_DYNS,
        0);
      pushHomeG (asnperg_asnuti, home->of11xxxxxxxA_fld);
      pd_DynOctetString_al_u (&home->of11xxxxxxxA_fld->val.dyns, 0, MAXLONG,
        4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxS_fld, VF_STRU,
        sizeof (SOf11xxxxxxx));
      pushHomeG (asnperg_asnuti, home->of11xxxxxxxS_fld);
      pdSOf11xxxxxxx (ASNG_F(asnperg)
        (SOf11xxxxxxx *)home->of11xxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxD_fld, VF_UI8,
        0);
      pd_sint32_cwn_al_le255_8 (&home->of11xxxxxxxD_fld->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxL_fld, VF_LIST,
        0);
      pushHomeG (asnperg_asnuti, home->of11xxxxxxxL_fld);
      {
        LIST *h1 = &home->of11xxxxxxxL_fld->val.list;
        listInit (h1);
        {
          ASNHOME *a1 = NULL;
          uint32 len_1;
          pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
          while (listLen (&*h1->val.list) < len_1){
            appendList (getHomeG (asnperg_asnuti), h1, &a1, VF_STRU,
              sizeof (SOf11xxxxxxx));
            pdSOf11xxxxxxx (ASNG_F(asnperg) (SOf11xxxxxxx *)a1->val.stru);
            incListLen (h1);
          }
        }
      }
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      createHome (getHomeG (asnperg_asnuti), &home->extensionmarker, VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (home->extensionmarker->val.extensionmarker);
      pd_SaveExtendedComponents (home->extensionmarker->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &home->of11xxxxxxxD_fld, VF_UI8,
      0);
    home->of11xxxxxxxD_fld->val.ui8 = 3;
  }
}

void pdSOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf19xxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdTOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf19xxxxxxxxxxxxxxx *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (5);
    if (optfield_0 & BITL(4)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxA_fld,
        VF_DYNS, 0);
      pushHomeG (asnperg_asnuti, home->of19xxxxxxxxxxxxxxxA_fld);
      home->compmask |= BIT(0);
      pd_DynOctetString_al_u (&home->of19xxxxxxxxxxxxxxxA_fld->val.dyns, 0,
        MAXLONG, 4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxS_fld,
        VF_STRU, sizeof (SOf19xxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, home->of19xxxxxxxxxxxxxxxS_fld);
      home->compmask |= BIT(1);
      pdSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf19xxxxxxxxxxxxxxx *)home->of19xxxxxxxxxxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxI_fld,
        VF_STRU, sizeof (struct t_of19xxxxxxxxxxxxxxxI_TOf19xxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, home->of19xxxxxxxxxxxxxxxI_fld);
      home->compmask |= BIT(2);
      {
        struct t_of19xxxxxxxxxxxxxxxI_TOf19xxxxxxxxxxxxxxx *h1 =
          (struct t_of19xxxxxxxxxxxxxxxI_TOf19xxxxxxxxxxxxxxx *)home->of19xxxxxxxxxxxxxxxI_fld->val.stru;
        pd_DynOctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
      popHomeG (asnperg_asnuti);
    }
    if (!(home->of19xxxxxxxxxxxxxxxP_fld = (SOf19xxxxxxxxxxxxxxx *)allocAsn (
      getHomeG (asnperg_asnuti), MB_STG, sizeof (SOf19xxxxxxxxxxxxxxx)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    pdSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg) home->of19xxxxxxxxxxxxxxxP_fld);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxD_fld,
        VF_UI8, 0);
      home->compmask |= BIT(4);
      pd_sint32_cwn_al_le255_8 (&home->of19xxxxxxxxxxxxxxxD_fld->val.ui8, 0,
        7, 3);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(5);
      listInit (&home->of19xxxxxxxxxxxxxxxL_fld);
      {
        ASNHOME *a1 = NULL;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (listLen (&home->of19xxxxxxxxxxxxxxxL_fld) < len_1){
          appendList (getHomeG (asnperg_asnuti),
            &home->of19xxxxxxxxxxxxxxxL_fld, &a1, VF_STRU,
            sizeof (SOf19xxxxxxxxxxxxxxx));
          pdSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf19xxxxxxxxxxxxxxx *)a1->val.stru);
          incListLen (&home->of19xxxxxxxxxxxxxxxL_fld);
        }
      }
    }
  }
  if (!(home->compmask & BIT(4))){
    createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxD_fld
      , VF_UI8, 0);
    home->compmask |= BIT(4);
    home->of19xxxxxxxxxxxxxxxD_fld->val.ui8 = 3;
  }
}

void pdCOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  COf19xxxxxxxxxxxxxxx *home)
{
  memset (home, 0, sizeof (COf19xxxxxxxxxxxxxxx));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (4);
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxA_fld,
        VF_DYNS, 0);
      pushHomeG (asnperg_asnuti, home->of19xxxxxxxxxxxxxxxA_fld);
      pd_DynOctetString_al_u (&home->of19xxxxxxxxxxxxxxxA_fld->val.dyns, 0,
        MAXLONG, 4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxS_fld,
        VF_STRU, sizeof (SOf19xxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, home->of19xxxxxxxxxxxxxxxS_fld);
      pdSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf19xxxxxxxxxxxxxxx *)home->of19xxxxxxxxxxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxD_fld,
        VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&home->of19xxxxxxxxxxxxxxxD_fld->val.ui8, 0,
        7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxL_fld,
        VF_LIST, 0);
      pushHomeG (asnperg_asnuti, home->of19xxxxxxxxxxxxxxxL_fld);
      {
        LIST *h1 = &home->of19xxxxxxxxxxxxxxxL_fld->val.list;
        listInit (h1);
        {
          ASNHOME *a1 = NULL;
          uint32 len_1;
          pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
          while (listLen (&*h1->val.list) < len_1){
            appendList (getHomeG (asnperg_asnuti), h1, &a1, VF_STRU,
              sizeof (SOf19xxxxxxxxxxxxxxx));
            pdSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
              (SOf19xxxxxxxxxxxxxxx *)a1->val.stru);
            incListLen (h1);
          }
        }
      }
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      createHome (getHomeG (asnperg_asnuti), &home->extensionmarker, VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (home->extensionmarker->val.extensionmarker);
      pd_SaveExtendedComponents (home->extensionmarker->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &home->of19xxxxxxxxxxxxxxxD_fld
      , VF_UI8, 0);
    home->of19xxxxxxxxxxxxxxxD_fld->val.ui8 = 3;
  }
}

void pdSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf25xxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdTOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf25xxxxxxxxxxxxxxxxxxxxx *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (5);
    if (optfield_0 & BITL(4)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxA_fld, VF_DYNS, 0);
      pushHomeG (asnperg_asnuti, home->of25xxxxxxxxxxxxxxxxxxxxxA_fld);
      home->compmask |= BIT(0);
      pd_DynOctetString_al_u (&home->of25xxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns,
        0, MAXLONG, 4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxS_fld, VF_STRU,
        sizeof (SOf25xxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, home->of25xxxxxxxxxxxxxxxxxxxxxS_fld);
      home->compmask |= BIT(1);
      pdSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf25xxxxxxxxxxxxxxxxxxxxx *)home->of25xxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxI_fld, VF_STRU,
        sizeof (struct t_of25xxxxxxxxxxxxxxxxxxxxxI_TOf25xxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, home->of25xxxxxxxxxxxxxxxxxxxxxI_fld);
      home->compmask |= BIT(2);
      {
        struct t_of25xxxxxxxxxxxxxxxxxxxxxI_TOf25xxxxxxxxxxxxxxxxxxxxx *h1 =
          (struct t_of25xxxxxxxxxxxxxxxxxxxxxI_TOf25xxxxxxxxxxxxxxxxxxxxx *)home->of25xxxxxxxxxxxxxxxxxxxxxI_fld->val.stru;
        pd_DynOctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
      popHomeG (asnperg_asnuti);
    }
    if (!(home->of25xxxxxxxxxxxxxxxxxxxxxP_fld =
      (SOf25xxxxxxxxxxxxxxxxxxxxx *)allocAsn (getHomeG (asnperg_asnuti),
      MB_STG, sizeof (SOf25xxxxxxxxxxxxxxxxxxxxx)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    pdSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      home->of25xxxxxxxxxxxxxxxxxxxxxP_fld);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxD_fld, VF_UI8, 0);
      home->compmask |= BIT(4);
      pd_sint32_cwn_al_le255_8 (
        &home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(5);
      listInit (&home->of25xxxxxxxxxxxxxxxxxxxxxL_fld);
      {
        ASNHOME *a1 = NULL;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (listLen (&home->of25xxxxxxxxxxxxxxxxxxxxxL_fld) < len_1){
          appendList (getHomeG (asnperg_asnuti),
            &home->of25xxxxxxxxxxxxxxxxxxxxxL_fld, &a1, VF_STRU,
            sizeof (SOf25xxxxxxxxxxxxxxxxxxxxx));
          pdSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf25xxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
          incListLen (&home->of25xxxxxxxxxxxxxxxxxxxxxL_fld);
        }
      }
    }
  }
  if (!(home->compmask & BIT(4))){
    createHome (getHomeG (asnperg_asnuti), &home->
      of25xxxxxxxxxxxxxxxxxxxxxD_fld, VF_UI8, 0);
    home->compmask |= BIT(4);
    home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 = 3;
  }
}

void pdCOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  COf25xxxxxxxxxxxxxxxxxxxxx *home)
{
  memset (home, 0, sizeof (COf25xxxxxxxxxxxxxxxxxxxxx));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (4);
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxA_fld, VF_DYNS, 0);
      pushHomeG (asnperg_asnuti, home->of25xxxxxxxxxxxxxxxxxxxxxA_fld);
      pd_DynOctetString_al_u (&home->of25xxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns,
        0, MAXLONG, 4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxS_fld, VF_STRU,
        sizeof (SOf25xxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti, home->of25xxxxxxxxxxxxxxxxxxxxxS_fld);
      pdSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (SOf25xxxxxxxxxxxxxxxxxxxxx *)home->of25xxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxD_fld, VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (
        &home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8, 0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of25xxxxxxxxxxxxxxxxxxxxxL_fld, VF_LIST, 0);
      pushHomeG (asnperg_asnuti, home->of25xxxxxxxxxxxxxxxxxxxxxL_fld);
      {
        LIST *h1 = &home->of25xxxxxxxxxxxxxxxxxxxxxL_fld->val.list;
        listInit (h1);
        {
          ASNHOME *a1 = NULL;
          uint32 len_1;
          pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
          while (listLen (&*h1->val.list) < len_1){
            appendList (getHomeG (asnperg_asnuti), h1, &a1, VF_STRU,
              sizeof (SOf25xxxxxxxxxxxxxxxxxxxxx));
            pdSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
              (SOf25xxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
            incListLen (h1);
          }
        }
      }
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      createHome (getHomeG (asnperg_asnuti), &home->extensionmarker, VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (home->extensionmarker->val.extensionmarker);
      pd_SaveExtendedComponents (home->extensionmarker->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &home->
      of25xxxxxxxxxxxxxxxxxxxxxD_fld, VF_UI8, 0);
    home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 = 3;
  }
}

void pdSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->x_fld);
}

void pdTOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (5);
    if (optfield_0 & BITL(4)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
        VF_DYNS, 0);
      pushHomeG (asnperg_asnuti,
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
      home->compmask |= BIT(0);
      pd_DynOctetString_al_u (
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns,
        0, MAXLONG, 4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld,
        VF_STRU,
        sizeof (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti,
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld);
      home->compmask |= BIT(1);
      pdSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld,
        VF_STRU,
        sizeof (struct t_of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_TOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti,
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld);
      home->compmask |= BIT(2);
      {
        struct t_of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_TOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *h1 =
          (struct t_of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_TOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld->val.stru;
        pd_DynOctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
      popHomeG (asnperg_asnuti);
    }
    if (!(home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxP_fld =
      (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)
      allocAsn (getHomeG (asnperg_asnuti), MB_STG,
      sizeof (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    pdSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxP_fld);
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
        VF_UI8, 0);
      home->compmask |= BIT(4);
      pd_sint32_cwn_al_le255_8 (
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8,
        0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(5);
      listInit (
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
      {
        ASNHOME *a1 = NULL;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (listLen (&home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld) <
          len_1){
          appendList (getHomeG (asnperg_asnuti),
            &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld,
            &a1, VF_STRU,
            sizeof (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
          pdSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
            ASNG_F(asnperg)
            (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
          incListLen (
            &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
        }
      }
    }
  }
  if (!(home->compmask & BIT(4))){
    createHome (getHomeG (asnperg_asnuti), &home->
      of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld
      , VF_UI8, 0);
    home->compmask |= BIT(4);
    home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 = 3;
  }
}

void pdCOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  COf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  memset (home, 0,
    sizeof (COf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (4);
    if (optfield_0 & BITL(3)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
        VF_DYNS, 0);
      pushHomeG (asnperg_asnuti,
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
      pd_DynOctetString_al_u (
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns,
        0, MAXLONG, 4);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(2)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld,
        VF_STRU,
        sizeof (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pushHomeG (asnperg_asnuti,
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld);
      pdSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
      popHomeG (asnperg_asnuti);
    }
    if (optfield_0 & BITL(1)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
        VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8,
        0, 7, 3);
    }
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti),
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld,
        VF_LIST, 0);
      pushHomeG (asnperg_asnuti,
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
      {
        LIST *h1 =
          &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld->val.list;
        listInit (h1);
        {
          ASNHOME *a1 = NULL;
          uint32 len_1;
          pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
          while (listLen (&*h1->val.list) < len_1){
            appendList (getHomeG (asnperg_asnuti), h1, &a1, VF_STRU,
              sizeof (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
            pdSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
              ASNG_F(asnperg)
              (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
            incListLen (h1);
          }
        }
      }
      popHomeG (asnperg_asnuti);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      createHome (getHomeG (asnperg_asnuti), &home->extensionmarker, VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (home->extensionmarker->val.extensionmarker);
      pd_SaveExtendedComponents (home->extensionmarker->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
  {
    createHome (getHomeG (asnperg_asnuti), &home->
      of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld
      , VF_UI8, 0);
    home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 = 3;
  }
}
