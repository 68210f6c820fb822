/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutLists
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdPOf8xxxxx (ASNG_F(ASNPERG *asnperg) POf8xxxxx *home)
{
  pd_Boolean (&home->a_fld);
}

void piPOf8xxxxx (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

static void dfPOf8xxxxx (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (POf8xxxxx));
    pdPOf8xxxxx (ASNG_F(asnperg) (POf8xxxxx *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

static void dfPOf8xxxxx_of8xxxxxG_TOf8xxxxx (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  POf8xxxxx *iter = (POf8xxxxx *)*p;
  while (n){
    pdPOf8xxxxx (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdTOf8xxxxx (ASNG_F(ASNPERG *asnperg) TOf8xxxxx *home)
{
  staArrInit (&home->of8xxxxxA_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n1 < len_1){
      pdPOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxA_fld.elem [n1]);
      incStaArrLen (&home->of8xxxxxA_fld);
      n1++;
    }
  }
  staArrInit (&home->of8xxxxxS_fld);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 3, 3, 0);
    while (n1 < len_1){
      pdPOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxS_fld.elem [n1]);
      incStaArrLen (&home->of8xxxxxS_fld);
      n1++;
    }
  }
  listInit (&home->of8xxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of8xxxxxL_fld) < len_1){
      appendList (NULL, &home->of8xxxxxL_fld, &a1, VF_STRU,
        sizeof (POf8xxxxx));
      pdPOf8xxxxx (ASNG_F(asnperg) (POf8xxxxx *)a1->val.stru);
      incListLen (&home->of8xxxxxL_fld);
    }
  }
  listInit (&home->of8xxxxxF_fld);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->of8xxxxxF_fld,
      dfPOf8xxxxx);
  }
  staArrInit (&home->of8xxxxxG_fld);
  {
    POf8xxxxx *iter = home->of8xxxxxG_fld.elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfPOf8xxxxx_of8xxxxxG_TOf8xxxxx);
  }
  dynArrInit (&home->of8xxxxxD_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of8xxxxxD_fld.elem = (POf8xxxxx *)allocAsn (NULL, MB_STG, len_1 *
        sizeof (POf8xxxxx));
      if (home->of8xxxxxD_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      pdPOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxD_fld.elem [n0]);
      incDynArrLen (&home->of8xxxxxD_fld);
      n0++;
    }
  }
  dynArrInit (&home->of8xxxxxE_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of8xxxxxE_fld.elem = (POf8xxxxx *)allocAsn (NULL, MB_STG, 
        ((len_1 < 4)? len_1 : 4) * sizeof (POf8xxxxx));
      if (home->of8xxxxxE_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < 4 && n0 < len_1){
      pdPOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxE_fld.elem [n0]);
      incDynArrLen (&home->of8xxxxxE_fld);
      n0++;
    }
    home->of8xxxxxE_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf8xxxxx (ASNG_L(asnperg));
        home->of8xxxxxE_fld.nIgnored++;
        n0++;
      }
    }
  }
  dynArrInit (&home->of8xxxxxH_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of8xxxxxH_fld.elem = (ASNHOME **)allocAsn (NULL, MB_STG, len_1 *
        sizeof (ASNHOME *));
      if (home->of8xxxxxH_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      createHome (NULL, &home->of8xxxxxH_fld.elem [n0], VF_STRU,
        sizeof (POf8xxxxx));
      pdPOf8xxxxx (ASNG_F(asnperg)
        (POf8xxxxx *)home->of8xxxxxH_fld.elem [n0]->val.stru);
      incDynArrLen (&home->of8xxxxxH_fld);
      n0++;
    }
  }
  dynArrInit (&home->of8xxxxxQ_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of8xxxxxQ_fld.elem = (POf8xxxxx **)allocAsn (NULL, MB_STG, len_1 *
        sizeof (POf8xxxxx *));
      if (home->of8xxxxxQ_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      if (!(home->of8xxxxxQ_fld.elem [n0] = (POf8xxxxx *)allocAsn (NULL,
        MB_STG, sizeof (POf8xxxxx)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      pdPOf8xxxxx (ASNG_F(asnperg) home->of8xxxxxQ_fld.elem [n0]);
      incDynArrLen (&home->of8xxxxxQ_fld);
      n0++;
    }
  }
  staArrInit (&home->of8xxxxxI_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n0 < 2 && n0 < len_1){
      pdPOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxI_fld.elem [n0]);
      incStaArrLen (&home->of8xxxxxI_fld);
      n0++;
    }
    home->of8xxxxxI_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf8xxxxx (ASNG_L(asnperg));
        home->of8xxxxxI_fld.nIgnored++;
        n0++;
      }
    }
  }
}

void pdPOf14xxxxxxxxxx (ASNG_F(ASNPERG *asnperg) POf14xxxxxxxxxx *home)
{
  pd_Boolean (&home->a_fld);
}

void piPOf14xxxxxxxxxx (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

static void dfPOf14xxxxxxxxxx (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (POf14xxxxxxxxxx));
    pdPOf14xxxxxxxxxx (ASNG_F(asnperg) (POf14xxxxxxxxxx *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

static void dfPOf14xxxxxxxxxx_of14xxxxxxxxxxG_TOf14xxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  POf14xxxxxxxxxx *iter = (POf14xxxxxxxxxx *)*p;
  while (n){
    pdPOf14xxxxxxxxxx (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdTOf14xxxxxxxxxx (ASNG_F(ASNPERG *asnperg) TOf14xxxxxxxxxx *home)
{
  staArrInit (&home->of14xxxxxxxxxxA_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n1 < len_1){
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxA_fld.elem [n1]);
      incStaArrLen (&home->of14xxxxxxxxxxA_fld);
      n1++;
    }
  }
  staArrInit (&home->of14xxxxxxxxxxS_fld);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 3, 3, 0);
    while (n1 < len_1){
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxS_fld.elem [n1]);
      incStaArrLen (&home->of14xxxxxxxxxxS_fld);
      n1++;
    }
  }
  listInit (&home->of14xxxxxxxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of14xxxxxxxxxxL_fld) < len_1){
      appendList (NULL, &home->of14xxxxxxxxxxL_fld, &a1, VF_STRU,
        sizeof (POf14xxxxxxxxxx));
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg) (POf14xxxxxxxxxx *)a1->val.stru);
      incListLen (&home->of14xxxxxxxxxxL_fld);
    }
  }
  listInit (&home->of14xxxxxxxxxxF_fld);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->of14xxxxxxxxxxF_fld,
      dfPOf14xxxxxxxxxx);
  }
  staArrInit (&home->of14xxxxxxxxxxG_fld);
  {
    POf14xxxxxxxxxx *iter = home->of14xxxxxxxxxxG_fld.elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfPOf14xxxxxxxxxx_of14xxxxxxxxxxG_TOf14xxxxxxxxxx);
  }
  dynArrInit (&home->of14xxxxxxxxxxD_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of14xxxxxxxxxxD_fld.elem = (POf14xxxxxxxxxx *)allocAsn (NULL,
        MB_STG, len_1 * sizeof (POf14xxxxxxxxxx));
      if (home->of14xxxxxxxxxxD_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxD_fld.elem [n0]);
      incDynArrLen (&home->of14xxxxxxxxxxD_fld);
      n0++;
    }
  }
  dynArrInit (&home->of14xxxxxxxxxxE_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of14xxxxxxxxxxE_fld.elem = (POf14xxxxxxxxxx *)allocAsn (NULL,
        MB_STG, ((len_1 < 4)? len_1 : 4) * sizeof (POf14xxxxxxxxxx));
      if (home->of14xxxxxxxxxxE_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < 4 && n0 < len_1){
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxE_fld.elem [n0]);
      incDynArrLen (&home->of14xxxxxxxxxxE_fld);
      n0++;
    }
    home->of14xxxxxxxxxxE_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf14xxxxxxxxxx (ASNG_L(asnperg));
        home->of14xxxxxxxxxxE_fld.nIgnored++;
        n0++;
      }
    }
  }
  dynArrInit (&home->of14xxxxxxxxxxH_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of14xxxxxxxxxxH_fld.elem = (ASNHOME **)allocAsn (NULL, MB_STG, 
        len_1 * sizeof (ASNHOME *));
      if (home->of14xxxxxxxxxxH_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      createHome (NULL, &home->of14xxxxxxxxxxH_fld.elem [n0], VF_STRU,
        sizeof (POf14xxxxxxxxxx));
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg)
        (POf14xxxxxxxxxx *)home->of14xxxxxxxxxxH_fld.elem [n0]->val.stru);
      incDynArrLen (&home->of14xxxxxxxxxxH_fld);
      n0++;
    }
  }
  dynArrInit (&home->of14xxxxxxxxxxQ_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of14xxxxxxxxxxQ_fld.elem = (POf14xxxxxxxxxx **)allocAsn (NULL,
        MB_STG, len_1 * sizeof (POf14xxxxxxxxxx *));
      if (home->of14xxxxxxxxxxQ_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      if (!(home->of14xxxxxxxxxxQ_fld.elem [n0] = (POf14xxxxxxxxxx *)
        allocAsn (NULL, MB_STG, sizeof (POf14xxxxxxxxxx)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg) home->of14xxxxxxxxxxQ_fld.elem [n0]);
      incDynArrLen (&home->of14xxxxxxxxxxQ_fld);
      n0++;
    }
  }
  staArrInit (&home->of14xxxxxxxxxxI_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n0 < 2 && n0 < len_1){
      pdPOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxI_fld.elem [n0]);
      incStaArrLen (&home->of14xxxxxxxxxxI_fld);
      n0++;
    }
    home->of14xxxxxxxxxxI_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf14xxxxxxxxxx (ASNG_L(asnperg));
        home->of14xxxxxxxxxxI_fld.nIgnored++;
        n0++;
      }
    }
  }
}

void pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  POf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->a_fld);
}

void piPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

static void dfPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU,
      sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx));
    pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

static void
  dfPOf28xxxxxxxxxxxxxxxxxxxxxxxx_of28xxxxxxxxxxxxxxxxxxxxxxxxG_TOf28xxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  POf28xxxxxxxxxxxxxxxxxxxxxxxx *iter = (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  staArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n1 < len_1){
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld.elem [n1]);
      incStaArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld);
      n1++;
    }
  }
  staArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxS_fld);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 3, 3, 0);
    while (n1 < len_1){
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxS_fld.elem [n1]);
      incStaArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxS_fld);
      n1++;
    }
  }
  listInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld) < len_1){
      appendList (NULL, &home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld, &a1,
        VF_STRU, sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx));
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      incListLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld);
    }
  }
  listInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  {
    pd_ConstructFragmentedValue (
      (BYTE_TYPE *)&home->of28xxxxxxxxxxxxxxxxxxxxxxxxF_fld,
      dfPOf28xxxxxxxxxxxxxxxxxxxxxxxx);
  }
  staArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  {
    POf28xxxxxxxxxxxxxxxxxxxxxxxx *iter =
      home->of28xxxxxxxxxxxxxxxxxxxxxxxxG_fld.elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfPOf28xxxxxxxxxxxxxxxxxxxxxxxx_of28xxxxxxxxxxxxxxxxxxxxxxxxG_TOf28xxxxxxxxxxxxxxxxxxxxxxxx);
  }
  dynArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem =
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)allocAsn (NULL, MB_STG, len_1 *
        sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx));
      if (home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem [n0]);
      incDynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld);
      n0++;
    }
  }
  dynArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem =
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)allocAsn (NULL, MB_STG, 
        ((len_1 < 4)? len_1 : 4) * sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx));
      if (home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < 4 && n0 < len_1){
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem [n0]);
      incDynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld);
      n0++;
    }
    home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_L(asnperg));
        home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld.nIgnored++;
        n0++;
      }
    }
  }
  dynArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem = (ASNHOME **)allocAsn (
        NULL, MB_STG, len_1 * sizeof (ASNHOME *));
      if (home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      createHome (NULL, &home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem [n0],
        VF_STRU, sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx));
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem [n0]->val.stru);
      incDynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld);
      n0++;
    }
  }
  dynArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem =
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx **)allocAsn (NULL, MB_STG, len_1 *
        sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx *));
      if (home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      if (!(home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem [n0] =
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)allocAsn (NULL, MB_STG,
        sizeof (POf28xxxxxxxxxxxxxxxxxxxxxxxx)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem [n0]);
      incDynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld);
      n0++;
    }
  }
  staArrInit (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n0 < 2 && n0 < len_1){
      pdPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld.elem [n0]);
      incStaArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld);
      n0++;
    }
    home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_L(asnperg));
        home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld.nIgnored++;
        n0++;
      }
    }
  }
}

void pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_Boolean (&home->a_fld);
}

void piPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

static void dfPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU,
      sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
    pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

static void
  dfPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
    (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  staArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n1 < len_1){
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.elem [n1]);
      incStaArrLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
      n1++;
    }
  }
  staArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 3, 3, 0);
    while (n1 < len_1){
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld.elem [n1]);
      incStaArrLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld);
      n1++;
    }
  }
  listInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
  {
    ASNHOME *a1 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld) <
      len_1){
      appendList (NULL,
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld,
        &a1, VF_STRU,
        sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
      incListLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
    }
  }
  listInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  {
    pd_ConstructFragmentedValue (
      (BYTE_TYPE *)&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
      dfPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
  staArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  {
    POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld.elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
  dynArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem =
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)allocAsn (
        NULL, MB_STG, len_1 *
        sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      if (
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem [n0]);
      incDynArrLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld);
      n0++;
    }
  }
  dynArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem =
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)allocAsn (
        NULL, MB_STG, ((len_1 < 4)? len_1 : 4) *
        sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      if (
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < 4 && n0 < len_1){
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem [n0]);
      incDynArrLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
      n0++;
    }
    home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
          ASNG_L(asnperg));
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld.nIgnored++;
        n0++;
      }
    }
  }
  dynArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem =
        (ASNHOME **)allocAsn (NULL, MB_STG, len_1 * sizeof (ASNHOME *));
      if (
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      createHome (NULL,
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem [n0],
        VF_STRU,
        sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx));
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem [n0]->val.stru);
      incDynArrLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld);
      n0++;
    }
  }
  dynArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem =
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx **)
        allocAsn (NULL, MB_STG, len_1 *
        sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *));
      if (
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n0 < len_1){
      if (!(home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem [n0] =
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)allocAsn (
        NULL, MB_STG,
        sizeof (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem [n0]);
      incDynArrLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld);
      n0++;
    }
  }
  staArrInit (
    &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n0 < 2 && n0 < len_1){
      pdPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld.elem [n0]);
      incStaArrLen (
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld);
      n0++;
    }
    home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld.nIgnored = 0;
    {
      while (n0 < len_1){
        piPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
          ASNG_L(asnperg));
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld.nIgnored++;
        n0++;
      }
    }
  }
}
