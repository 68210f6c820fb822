/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutHomes
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peSOf11xxxxxxx (ASNG_F(ASNPERG *asnperg) SOf11xxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void peTOf11xxxxxxx (ASNG_F(ASNPERG *asnperg) TOf11xxxxxxx *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(4)){
      if (home->of11xxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->compmask & BIT(5)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 5);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_al_u (&home->of11xxxxxxxA_fld->val.dyns, 0, MAXLONG, 4);
    freeAsn (&home->of11xxxxxxxA_fld, FREE_STG);
  }
  if ((home->compmask & BIT(1))){
    peSOf11xxxxxxx (ASNG_F(asnperg)
      (SOf11xxxxxxx *)home->of11xxxxxxxS_fld->val.stru);
    freeAsn (&home->of11xxxxxxxS_fld, FREE_STG);
  }
  if ((home->compmask & BIT(2))){
    {
      struct t_of11xxxxxxxI_TOf11xxxxxxx *h1 =
        (struct t_of11xxxxxxxI_TOf11xxxxxxx *)home->of11xxxxxxxI_fld->val.stru;
      {
        pe_OctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
    }
    freeAsn (&home->of11xxxxxxxI_fld, FREE_STG);
  }
  peSOf11xxxxxxx (ASNG_F(asnperg) home->of11xxxxxxxP_fld);
  if ((home->compmask & BIT(4))){
    if (home->of11xxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (home->of11xxxxxxxD_fld->val.ui8, 0, 7, 3);
      freeAsn (&home->of11xxxxxxxD_fld, FREE_STG);
    }
    freeAsn (&home->of11xxxxxxxD_fld, FREE_STG);
  }
  if ((home->compmask & BIT(5))){
    pe_lenDet_al_clt64K_le255 (listLen (&home->of11xxxxxxxL_fld), 1, 3, 2);
    {
      ASNHOME *a1 = NULL;
      for (a1 = firstListItem (&home->of11xxxxxxxL_fld); a1; a1 =
        nextListItem (a1)){
        peSOf11xxxxxxx (ASNG_F(asnperg) (SOf11xxxxxxx *)a1->val.stru);
      }
    }
  }
}

void peCOf11xxxxxxx (ASNG_F(ASNPERG *asnperg) COf11xxxxxxx *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (home->of11xxxxxxxA_fld){
      optfield_0 |= BITL(3);
    }
    if (home->of11xxxxxxxS_fld){
      optfield_0 |= BITL(2);
    }
    if (home->of11xxxxxxxD_fld){
      if (home->of11xxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->of11xxxxxxxL_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 4);
  }
  if (home->of11xxxxxxxA_fld){
    pe_OctetString_al_u (&home->of11xxxxxxxA_fld->val.dyns, 0, MAXLONG, 4);
    freeAsn (&home->of11xxxxxxxA_fld, FREE_STG);
  }
  if (home->of11xxxxxxxS_fld){
    peSOf11xxxxxxx (ASNG_F(asnperg)
      (SOf11xxxxxxx *)home->of11xxxxxxxS_fld->val.stru);
    freeAsn (&home->of11xxxxxxxS_fld, FREE_STG);
  }
  if (home->of11xxxxxxxD_fld){
    if (home->of11xxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (home->of11xxxxxxxD_fld->val.ui8, 0, 7, 3);
      freeAsn (&home->of11xxxxxxxD_fld, FREE_STG);
    }
    freeAsn (&home->of11xxxxxxxD_fld, FREE_STG);
  }
  if (home->of11xxxxxxxL_fld){
    {
      LIST *h1 = &home->of11xxxxxxxL_fld->val.list;
      pe_lenDet_al_clt64K_le255 (listLen (&*h1->val.list), 1, 3, 2);
      {
        ASNHOME *a1 = NULL;
        for (a1 = firstListItem (h1); a1; a1 = nextListItem (a1)){
          peSOf11xxxxxxx (ASNG_F(asnperg) (SOf11xxxxxxx *)a1->val.stru);
        }
      }
    }
    freeAsn (&home->of11xxxxxxxL_fld, FREE_STG);
  }
}

void peSOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf19xxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void peTOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf19xxxxxxxxxxxxxxx *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(4)){
      if (home->of19xxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->compmask & BIT(5)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 5);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_al_u (&home->of19xxxxxxxxxxxxxxxA_fld->val.dyns, 0,
      MAXLONG, 4);
    freeAsn (&home->of19xxxxxxxxxxxxxxxA_fld, FREE_STG);
  }
  if ((home->compmask & BIT(1))){
    peSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf19xxxxxxxxxxxxxxx *)home->of19xxxxxxxxxxxxxxxS_fld->val.stru);
    freeAsn (&home->of19xxxxxxxxxxxxxxxS_fld, FREE_STG);
  }
  if ((home->compmask & BIT(2))){
    {
      struct t_of19xxxxxxxxxxxxxxxI_TOf19xxxxxxxxxxxxxxx *h1 =
        (struct t_of19xxxxxxxxxxxxxxxI_TOf19xxxxxxxxxxxxxxx *)home->of19xxxxxxxxxxxxxxxI_fld->val.stru;
      {
        pe_OctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
    }
    freeAsn (&home->of19xxxxxxxxxxxxxxxI_fld, FREE_STG);
  }
  peSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg) home->of19xxxxxxxxxxxxxxxP_fld);
  if ((home->compmask & BIT(4))){
    if (home->of19xxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (home->of19xxxxxxxxxxxxxxxD_fld->val.ui8, 0, 7, 3);
      freeAsn (&home->of19xxxxxxxxxxxxxxxD_fld, FREE_STG);
    }
    freeAsn (&home->of19xxxxxxxxxxxxxxxD_fld, FREE_STG);
  }
  if ((home->compmask & BIT(5))){
    pe_lenDet_al_clt64K_le255 (listLen (&home->of19xxxxxxxxxxxxxxxL_fld), 1, 3, 2);
    {
      ASNHOME *a1 = NULL;
      for (a1 = firstListItem (&home->of19xxxxxxxxxxxxxxxL_fld); a1; a1 =
        nextListItem (a1)){
        peSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
          (SOf19xxxxxxxxxxxxxxx *)a1->val.stru);
      }
    }
  }
}

void peCOf19xxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  COf19xxxxxxxxxxxxxxx *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (home->of19xxxxxxxxxxxxxxxA_fld){
      optfield_0 |= BITL(3);
    }
    if (home->of19xxxxxxxxxxxxxxxS_fld){
      optfield_0 |= BITL(2);
    }
    if (home->of19xxxxxxxxxxxxxxxD_fld){
      if (home->of19xxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->of19xxxxxxxxxxxxxxxL_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 4);
  }
  if (home->of19xxxxxxxxxxxxxxxA_fld){
    pe_OctetString_al_u (&home->of19xxxxxxxxxxxxxxxA_fld->val.dyns, 0,
      MAXLONG, 4);
    freeAsn (&home->of19xxxxxxxxxxxxxxxA_fld, FREE_STG);
  }
  if (home->of19xxxxxxxxxxxxxxxS_fld){
    peSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf19xxxxxxxxxxxxxxx *)home->of19xxxxxxxxxxxxxxxS_fld->val.stru);
    freeAsn (&home->of19xxxxxxxxxxxxxxxS_fld, FREE_STG);
  }
  if (home->of19xxxxxxxxxxxxxxxD_fld){
    if (home->of19xxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (home->of19xxxxxxxxxxxxxxxD_fld->val.ui8, 0, 7, 3);
      freeAsn (&home->of19xxxxxxxxxxxxxxxD_fld, FREE_STG);
    }
    freeAsn (&home->of19xxxxxxxxxxxxxxxD_fld, FREE_STG);
  }
  if (home->of19xxxxxxxxxxxxxxxL_fld){
    {
      LIST *h1 = &home->of19xxxxxxxxxxxxxxxL_fld->val.list;
      pe_lenDet_al_clt64K_le255 (listLen (&*h1->val.list), 1, 3, 2);
      {
        ASNHOME *a1 = NULL;
        for (a1 = firstListItem (h1); a1; a1 = nextListItem (a1)){
          peSOf19xxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf19xxxxxxxxxxxxxxx *)a1->val.stru);
        }
      }
    }
    freeAsn (&home->of19xxxxxxxxxxxxxxxL_fld, FREE_STG);
  }
}

void peSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf25xxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void peTOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf25xxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(4)){
      if (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->compmask & BIT(5)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 5);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_al_u (&home->of25xxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns, 0,
      MAXLONG, 4);
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxA_fld, FREE_STG);
  }
  if ((home->compmask & BIT(1))){
    peSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf25xxxxxxxxxxxxxxxxxxxxx *)home->of25xxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxS_fld, FREE_STG);
  }
  if ((home->compmask & BIT(2))){
    {
      struct t_of25xxxxxxxxxxxxxxxxxxxxxI_TOf25xxxxxxxxxxxxxxxxxxxxx *h1 =
        (struct t_of25xxxxxxxxxxxxxxxxxxxxxI_TOf25xxxxxxxxxxxxxxxxxxxxx *)home->of25xxxxxxxxxxxxxxxxxxxxxI_fld->val.stru;
      {
        pe_OctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
    }
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxI_fld, FREE_STG);
  }
  peSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    home->of25xxxxxxxxxxxxxxxxxxxxxP_fld);
  if ((home->compmask & BIT(4))){
    if (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8,
        0, 7, 3);
      freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxD_fld, FREE_STG);
    }
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxD_fld, FREE_STG);
  }
  if ((home->compmask & BIT(5))){
    pe_lenDet_al_clt64K_le255 (listLen (&home->of25xxxxxxxxxxxxxxxxxxxxxL_fld), 1, 3, 2);
    {
      ASNHOME *a1 = NULL;
      for (a1 = firstListItem (&home->of25xxxxxxxxxxxxxxxxxxxxxL_fld); a1;
        a1 = nextListItem (a1)){
        peSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
          (SOf25xxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      }
    }
  }
}

void peCOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  COf25xxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (home->of25xxxxxxxxxxxxxxxxxxxxxA_fld){
      optfield_0 |= BITL(3);
    }
    if (home->of25xxxxxxxxxxxxxxxxxxxxxS_fld){
      optfield_0 |= BITL(2);
    }
    if (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld){
      if (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->of25xxxxxxxxxxxxxxxxxxxxxL_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 4);
  }
  if (home->of25xxxxxxxxxxxxxxxxxxxxxA_fld){
    pe_OctetString_al_u (&home->of25xxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns, 0,
      MAXLONG, 4);
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxA_fld, FREE_STG);
  }
  if (home->of25xxxxxxxxxxxxxxxxxxxxxS_fld){
    peSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (SOf25xxxxxxxxxxxxxxxxxxxxx *)home->of25xxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxS_fld, FREE_STG);
  }
  if (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld){
    if (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8,
        0, 7, 3);
      freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxD_fld, FREE_STG);
    }
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxD_fld, FREE_STG);
  }
  if (home->of25xxxxxxxxxxxxxxxxxxxxxL_fld){
    {
      LIST *h1 = &home->of25xxxxxxxxxxxxxxxxxxxxxL_fld->val.list;
      pe_lenDet_al_clt64K_le255 (listLen (&*h1->val.list), 1, 3, 2);
      {
        ASNHOME *a1 = NULL;
        for (a1 = firstListItem (h1); a1; a1 = nextListItem (a1)){
          peSOf25xxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
            (SOf25xxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
        }
      }
    }
    freeAsn (&home->of25xxxxxxxxxxxxxxxxxxxxxL_fld, FREE_STG);
  }
}

void peSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->x_fld);
}

void peTOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(4)){
      if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->compmask & BIT(5)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 5);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_al_u (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns,
      0, MAXLONG, 4);
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
      FREE_STG);
  }
  if ((home->compmask & BIT(1))){
    peSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld,
      FREE_STG);
  }
  if ((home->compmask & BIT(2))){
    {
      struct t_of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_TOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *h1 =
        (struct t_of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_TOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld->val.stru;
      {
        pe_OctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
      }
    }
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld,
      FREE_STG);
  }
  peSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_F(asnperg)
    home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxP_fld);
  if ((home->compmask & BIT(4))){
    if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8,
        0, 7, 3);
      freeAsn (
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
        FREE_STG);
    }
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
      FREE_STG);
  }
  if ((home->compmask & BIT(5))){
    pe_lenDet_al_clt64K_le255 (listLen (&home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld), 1, 3, 2);
    {
      ASNHOME *a1 = NULL;
      for (a1 =
        firstListItem (&home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
        a1; a1 = nextListItem (a1)){
        peSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
          ASNG_F(asnperg)
          (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      }
    }
  }
}

void peCOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  COf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (
      home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld){
      optfield_0 |= BITL(3);
    }
    if (
      home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld){
      optfield_0 |= BITL(2);
    }
    if (
      home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld){
      if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (
      home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 4);
  }
  if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld){
    pe_OctetString_al_u (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld->val.dyns,
      0, MAXLONG, 4);
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
      FREE_STG);
  }
  if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld){
    peSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld->val.stru);
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld,
      FREE_STG);
  }
  if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld){
    if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8 != 3){
      pe_sint32_cwn_al_le255 (
        home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld->val.ui8,
        0, 7, 3);
      freeAsn (
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
        FREE_STG);
    }
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
      FREE_STG);
  }
  if (home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld){
    {
      LIST *h1 =
        &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld->val.list;
      pe_lenDet_al_clt64K_le255 (listLen (&*h1->val.list), 1, 3, 2);
      {
        ASNHOME *a1 = NULL;
        for (a1 = firstListItem (h1); a1; a1 = nextListItem (a1)){
          peSOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
            ASNG_F(asnperg)
            (SOf60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
        }
      }
    }
    freeAsn (
      &home->of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld,
      FREE_STG);
  }
}
if (home->of11xxxxxxxD_fld == NULL)if (home->of19xxxxxxxxxxxxxxxD_fld == NULL)
  if (home->of25xxxxxxxxxxxxxxxxxxxxxD_fld == NULL)if (home->
  of60xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld == NULL)