/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutLists
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pePOf8xxxxx (ASNG_F(ASNPERG *asnperg) POf8xxxxx *home)
{
  pe_Boolean (home->a_fld);
}

static void efPOf8xxxxx (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pePOf8xxxxx (ASNG_F(asnperg) (POf8xxxxx *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void efPOf8xxxxx_of8xxxxxG_TOf8xxxxx (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  POf8xxxxx *iter = (POf8xxxxx *)*p;
  while (n){
    pePOf8xxxxx (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peTOf8xxxxx (ASNG_F(ASNPERG *asnperg) TOf8xxxxx *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of8xxxxxA_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of8xxxxxA_fld); n1++){
      pePOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxA_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_eq1 (staArrLen (&home->of8xxxxxS_fld), 3, 3, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of8xxxxxS_fld); n1++){
      pePOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxS_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (listLen (&home->of8xxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->of8xxxxxL_fld); a1; a1 =
      nextListItem (a1)){
      pePOf8xxxxx (ASNG_F(asnperg) (POf8xxxxx *)a1->val.stru);
    }
  }
  {
    ASNHOME *iter = firstListItem (&home->of8xxxxxF_fld);
    pe_TraverseFragmentedValue (listLen (&home->of8xxxxxF_fld),
      (BYTE_TYPE *)iter, efPOf8xxxxx);
  }
  {
    POf8xxxxx *iter = home->of8xxxxxG_fld.elem;
    pe_TraverseFragmentedValue (staArrLen (&home->of8xxxxxG_fld),
      (BYTE_TYPE *)iter, efPOf8xxxxx_of8xxxxxG_TOf8xxxxx);
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of8xxxxxD_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of8xxxxxD_fld); n1++){
      pePOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxD_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of8xxxxxE_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of8xxxxxE_fld); n1++){
      pePOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxE_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of8xxxxxH_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of8xxxxxH_fld); n1++){
      pePOf8xxxxx (ASNG_F(asnperg)
        (POf8xxxxx *)home->of8xxxxxH_fld.elem [n1]->val.stru);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of8xxxxxQ_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of8xxxxxQ_fld); n1++){
      pePOf8xxxxx (ASNG_F(asnperg) home->of8xxxxxQ_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of8xxxxxI_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of8xxxxxI_fld); n1++){
      pePOf8xxxxx (ASNG_F(asnperg) &home->of8xxxxxI_fld.elem [n1]);
    }
  }
}

void pePOf14xxxxxxxxxx (ASNG_F(ASNPERG *asnperg) POf14xxxxxxxxxx *home)
{
  pe_Boolean (home->a_fld);
}

static void efPOf14xxxxxxxxxx (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pePOf14xxxxxxxxxx (ASNG_F(asnperg) (POf14xxxxxxxxxx *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void efPOf14xxxxxxxxxx_of14xxxxxxxxxxG_TOf14xxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  POf14xxxxxxxxxx *iter = (POf14xxxxxxxxxx *)*p;
  while (n){
    pePOf14xxxxxxxxxx (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peTOf14xxxxxxxxxx (ASNG_F(ASNPERG *asnperg) TOf14xxxxxxxxxx *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of14xxxxxxxxxxA_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of14xxxxxxxxxxA_fld); n1++){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxA_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_eq1 (staArrLen (&home->of14xxxxxxxxxxS_fld), 3, 3, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of14xxxxxxxxxxS_fld); n1++){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxS_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (listLen (&home->of14xxxxxxxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->of14xxxxxxxxxxL_fld); a1; a1 =
      nextListItem (a1)){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg) (POf14xxxxxxxxxx *)a1->val.stru);
    }
  }
  {
    ASNHOME *iter = firstListItem (&home->of14xxxxxxxxxxF_fld);
    pe_TraverseFragmentedValue (listLen (&home->of14xxxxxxxxxxF_fld),
      (BYTE_TYPE *)iter, efPOf14xxxxxxxxxx);
  }
  {
    POf14xxxxxxxxxx *iter = home->of14xxxxxxxxxxG_fld.elem;
    pe_TraverseFragmentedValue (staArrLen (&home->of14xxxxxxxxxxG_fld),
      (BYTE_TYPE *)iter, efPOf14xxxxxxxxxx_of14xxxxxxxxxxG_TOf14xxxxxxxxxx);
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of14xxxxxxxxxxD_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of14xxxxxxxxxxD_fld); n1++){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxD_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of14xxxxxxxxxxE_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of14xxxxxxxxxxE_fld); n1++){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxE_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of14xxxxxxxxxxH_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of14xxxxxxxxxxH_fld); n1++){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg)
        (POf14xxxxxxxxxx *)home->of14xxxxxxxxxxH_fld.elem [n1]->val.stru);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of14xxxxxxxxxxQ_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of14xxxxxxxxxxQ_fld); n1++){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg) home->of14xxxxxxxxxxQ_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of14xxxxxxxxxxI_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of14xxxxxxxxxxI_fld); n1++){
      pePOf14xxxxxxxxxx (ASNG_F(asnperg) &home->of14xxxxxxxxxxI_fld.elem [n1]);
    }
  }
}

void pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  POf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->a_fld);
}

static void efPOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
      (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void
  efPOf28xxxxxxxxxxxxxxxxxxxxxxxx_of28xxxxxxxxxxxxxxxxxxxxxxxxG_TOf28xxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  POf28xxxxxxxxxxxxxxxxxxxxxxxx *iter = (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peTOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  TOf28xxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld);
      n1++){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxA_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_eq1 (staArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxS_fld), 3, 3, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxS_fld);
      n1++){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxS_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (listLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxL_fld); a1;
      a1 = nextListItem (a1)){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    }
  }
  {
    ASNHOME *iter = firstListItem (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxF_fld);
    pe_TraverseFragmentedValue (
      listLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxF_fld), (BYTE_TYPE *)iter,
      efPOf28xxxxxxxxxxxxxxxxxxxxxxxx);
  }
  {
    POf28xxxxxxxxxxxxxxxxxxxxxxxx *iter =
      home->of28xxxxxxxxxxxxxxxxxxxxxxxxG_fld.elem;
    pe_TraverseFragmentedValue (
      staArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxG_fld), (BYTE_TYPE *)iter,
      efPOf28xxxxxxxxxxxxxxxxxxxxxxxx_of28xxxxxxxxxxxxxxxxxxxxxxxxG_TOf28xxxxxxxxxxxxxxxxxxxxxxxx);
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld);
      n1++){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld);
      n1++){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld);
      n1++){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        (POf28xxxxxxxxxxxxxxxxxxxxxxxx *)home->of28xxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem [n1]->val.stru);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld);
      n1++){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        home->of28xxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld);
      n1++){
      pePOf28xxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
        &home->of28xxxxxxxxxxxxxxxxxxxxxxxxI_fld.elem [n1]);
    }
  }
}

void pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->a_fld);
}

static void efPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void
  efPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
    (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peTOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 
      staArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld);
      n1++){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_eq1 (staArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld), 3, 3, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 
      staArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld);
      n1++){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxS_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (listLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 =
      firstListItem (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxL_fld);
      a1; a1 = nextListItem (a1)){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    }
  }
  {
    ASNHOME *iter =
      firstListItem (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
    pe_TraverseFragmentedValue (
      listLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld),
      (BYTE_TYPE *)iter,
      efPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
  {
    POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
      home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld.elem;
    pe_TraverseFragmentedValue (
      staArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld),
      (BYTE_TYPE *)iter,
      efPOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_TOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 
      dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld);
      n1++){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 
      dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
      n1++){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 
      dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld);
      n1++){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        (POf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld.elem [n1]->val.stru);
    }
  }
  pe_lenDet_ua_clt64K_le64K (dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 
      dynArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld);
      n1++){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxQ_fld.elem [n1]);
    }
  }
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 
      staArrLen (&home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld);
      n1++){
      pePOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
        ASNG_F(asnperg)
        &home->of55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld.elem [n1]);
    }
  }
}
