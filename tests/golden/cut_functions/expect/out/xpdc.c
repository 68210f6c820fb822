/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutFunctions
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void piDOf13xxxxxxxxx (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      pi_Boolean ();
    }
  }
}

void pdEOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf13xxxxxxxxx *home)
{
  piDOf13xxxxxxxxx (ASNG_L(asnperg));
}

void pdcEOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf13xxxxxxxxx *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdEOf13xxxxxxxxx (ASNG_F(asnperg) home);
  pd_end ();
}

void pdHOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) HOf13xxxxxxxxx *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (n1 < 2 && n1 < len_0){
      piDOf13xxxxxxxxx (ASNG_L(asnperg));
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piDOf13xxxxxxxxx (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdFOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) FOf13xxxxxxxxx *home)
{
  pd_Boolean (&home->b_fld);
}

static void dfFOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (FOf13xxxxxxxxx));
    pdFOf13xxxxxxxxx (ASNG_F(asnperg) (FOf13xxxxxxxxx *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdLOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) LOf13xxxxxxxxx *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfFOf13xxxxxxxxx);
  }
}

static void dfFOf13xxxxxxxxx_AOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  FOf13xxxxxxxxx *iter = (FOf13xxxxxxxxx *)*p;
  while (n){
    pdFOf13xxxxxxxxx (ASNG_F(asnperg) (FOf13xxxxxxxxx *)*iter->val.stru);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdAOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) AOf13xxxxxxxxx *home)
{
  staArrInit (home);
  {
    FOf13xxxxxxxxx *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfFOf13xxxxxxxxx_AOf13xxxxxxxxx);
  }
}

static void ifDOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    piDOf13xxxxxxxxx (ASNG_L(asnperg));
    n--;
  }
}

void piIOf13xxxxxxxxx (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifDOf13xxxxxxxxx);
  }
}

static void dfDOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (SKIPPED));
    piDOf13xxxxxxxxx (ASNG_L(asnperg));
    incListLen (home);
    n--;
  }
}

void pdSOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) SOf13xxxxxxxxx *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfDOf13xxxxxxxxx);
  }
}

void piDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      pi_Boolean ();
    }
  }
}

void pdEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  piDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_L(asnperg));
}

void pdcEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) 
    home);
  pd_end ();
}

void pdHOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (n1 < 2 && n1 < len_0){
      piDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_L(asnperg));
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
          ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->b_fld);
}

static void dfFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU,
      sizeof (FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
    pdFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdLOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  LOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      dfFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}

static void
  dfFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
    (FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    pdFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*iter->val.stru);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdAOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  AOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  staArrInit (home);
  {
    FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
      home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}

static void ifDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_L(asnperg));
    n--;
  }
}

void piIOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL,
      ifDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}

static void dfDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (SKIPPED));
    piDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_L(asnperg));
    incListLen (home);
    n--;
  }
}

void pdSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      dfDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}

void piDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      pi_Boolean ();
    }
  }
}

void pdEOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  piDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_L(asnperg));
}

void pdcEOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdEOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_F(asnperg) home);
  pd_end ();
}

void pdHOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (n1 < 2 && n1 < len_0){
      piDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_L(asnperg));
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
          ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->b_fld);
}

static void dfFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU,
      sizeof (FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
    pdFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdLOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  LOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      dfFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}

static void
  dfFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
    (FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    pdFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*iter->val.stru);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdAOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  AOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  staArrInit (home);
  {
    FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
      home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}

static void ifDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_L(asnperg));
    n--;
  }
}

void piIOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL,
      ifDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}

static void dfDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (SKIPPED));
    piDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_L(asnperg));
    incListLen (home);
    n--;
  }
}

void pdSOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      dfDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
}
