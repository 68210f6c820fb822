/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Billing_Tables
 * FILE = rowspdc.c
 ****************************************************************/

#ifndef ROWSPER_EXT
#include "rowsper.ext"
#endif

void pdItem (ASNG_F(ASNPERG *asnperg) Item *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_ua_8 (&home->service_fld, 0, 99, 7);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_sint32_cwn_ua_8 (&home->units_fld, 0, 255, 8);
    }
  }
}

void piItem (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pi_sint32_cwn_ua_8 (0, 99, 7);
    if (optfield_0 & BITL(0)){
      pi_sint32_cwn_ua_8 (0, 255, 8);
    }
  }
}

void pdStaticFixed (ASNG_F(ASNPERG *asnperg) StaticFixed *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    pd_lenDet_ua_clt64K_eq1 (NULL, 4, 4, 0);
    while (n1 < len_0){
      pd_sint32_cwn_ua_8 (&home->elem [n1], 0, 255, 8);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdStaticCountless (ASNG_F(ASNPERG *asnperg) StaticCountless *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_ua_clt64K_eq1 (NULL, 5, 5, 0);
    while (n1 < 5){
      pdItem (ASNG_F(asnperg) &home->elem [n1]);
      n1++;
    }
  }
}

void pdStaticVariable (ASNG_F(ASNPERG *asnperg) StaticVariable *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 0, 24, 5);
    while (n1 < len_0){
      pdItem (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdStaticWide (ASNG_F(ASNPERG *asnperg) StaticWide *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 0, 255, 8);
    while (n1 < len_0){
      pd_Boolean (&home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdStaticSetOf (ASNG_F(ASNPERG *asnperg) StaticSetOf *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 300, 9);
    while (n1 < len_0){
      pdItem (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdDynamicVariable (ASNG_F(ASNPERG *asnperg) DynamicVariable *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 40, 6);
    if (len_0 > 0){
      home->elem = (Item *)allocAsn (NULL, MB_STG, len_0 * sizeof (Item));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      pdItem (ASNG_F(asnperg) &home->elem [n1]);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdDynamicFixed (ASNG_F(ASNPERG *asnperg) DynamicFixed *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    pd_lenDet_ua_clt64K_eq1 (NULL, 6, 6, 0);
    if (len_0 > 0){
      home->elem = (Unit *)allocAsn (NULL, MB_STG, len_0 * sizeof (Unit));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      pd_sint32_cwn_ua_8 (&home->elem [n1], 0, 255, 8);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdLinked (ASNG_F(ASNPERG *asnperg) Linked *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 5000, 13);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_STRU, sizeof (Item));
      pdItem (ASNG_F(asnperg) (Item *)a1->val.stru);
      incListLen (home);
    }
  }
}

void pdLinkedUnits (ASNG_F(ASNPERG *asnperg) LinkedUnits *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 0, 9, 4);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_UI8, 0);
      pd_sint32_cwn_ua_8 (&a1->val.ui8, 0, 255, 8);
      incListLen (home);
    }
  }
}

static void dfItem (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (Item));
    pdItem (ASNG_F(asnperg) (Item *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdEndless (ASNG_F(ASNPERG *asnperg) Endless *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfItem);
  }
}

static void dfUnit (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_ua_8 (&a1->val.ui8, 0, 255, 8);
    incListLen (home);
    n--;
  }
}

void pdEndlessUnits (ASNG_F(ASNPERG *asnperg) EndlessUnits *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfUnit);
  }
}

static void dfItem_LongArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  Item *iter = (Item *)*p;
  while (n){
    pdItem (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdLongArray (ASNG_F(ASNPERG *asnperg) LongArray *home)
{
  staArrInit (home);
  {
    Item *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter, dfItem_LongArray);
  }
}

static void df1_AtLeastOne (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_BOOL, 0);
    pd_Boolean (&a1->val.bool);
    incListLen (home);
    n--;
  }
}

void pdAtLeastOne (ASNG_F(ASNPERG *asnperg) AtLeastOne *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, df1_AtLeastOne);
  }
}

void pdLimitIgnore (ASNG_F(ASNPERG *asnperg) LimitIgnore *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 100, 7);
    while (n1 < 10 && n1 < len_0){
      pdItem (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piItem (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdLimitError (ASNG_F(ASNPERG *asnperg) LimitError *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 100, 7);
    if (len_0 > 10){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    while (n1 < len_0){
      pdItem (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

static void dfUnit_p_Bill (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_ua_8 (&a1->val.ui8, 0, 255, 8);
    incListLen (home);
    n--;
  }
}

void pdBill (ASNG_F(ASNPERG *asnperg) Bill *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (5);
    pdStaticFixed (ASNG_F(asnperg) &home->a_fld);
    if (optfield_0 & BITL(4)){
      home->compmask |= BITL(1);
      pdStaticVariable (ASNG_F(asnperg) &home->b_fld);
    }
    pdStaticWide (ASNG_F(asnperg) &home->c_fld);
    pdStaticSetOf (ASNG_F(asnperg) &home->d_fld);
    pdDynamicVariable (ASNG_F(asnperg) &home->e_fld);
    if (optfield_0 & BITL(3)){
      home->compmask |= BITL(5);
      pdDynamicFixed (ASNG_F(asnperg) &home->f_fld);
    }
    pdLinked (ASNG_F(asnperg) &home->g_fld);
    pdLinkedUnits (ASNG_F(asnperg) &home->h_fld);
    pdEndless (ASNG_F(asnperg) &home->i_fld);
    if (optfield_0 & BITL(2)){
      home->compmask |= BITL(9);
      pdEndlessUnits (ASNG_F(asnperg) &home->j_fld);
    }
    if (optfield_0 & BITL(1)){
      home->compmask |= BITL(10);
      pdLongArray (ASNG_F(asnperg) &home->k_fld);
    }
    pdAtLeastOne (ASNG_F(asnperg) &home->l_fld);
    pdLimitIgnore (ASNG_F(asnperg) &home->m_fld);
    pdLimitError (ASNG_F(asnperg) &home->n_fld);
    staArrInit (&home->o_fld);
    {
      uint32 n1 = 0;
      pd_lenDet_ua_clt64K_eq1 (NULL, 2, 2, 0);
      while (n1 < len_1){
        pdItem (ASNG_F(asnperg) &home->o_fld.elem [n1]);
        incStaArrLen (&home->o_fld);
        n1++;
      }
    }
    listInit (&home->p_fld);
    {
      pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->p_fld, dfUnit_p_Bill);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BITL(16);
      staArrInit (&home->q_fld);
      {
        uint32 n1 = 0;
        uint32 len_1;
        pd_lenDet_ua_clt64K_le64K (&len_1, 0, 3, 2);
        while (n1 < len_1){
          home->q_fld.elem [n1].compmask = 0;
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            pd_sint32_cwn_ua_8 (&home->q_fld.elem [n1].x_fld, 0, 255, 8);
            if (optfield_2 & BITL(0)){
              home->q_fld.elem [n1].compmask |= BIT(1);
              pd_sint32_cwn_ua_8 (&home->q_fld.elem [n1].y_fld, 0, 255, 8);
            }
          }
          incStaArrLen (&home->q_fld);
          n1++;
        }
      }
    }
    staArr0Init (&home->r_fld);
    {
      uint32 n1 = 0;
      pd_lenDet_ua_clt64K_eq1 (NULL, 2, 2, 0);
      while (n1 < 2){
        pd_Boolean (&home->r_fld.elem [n1]);
        n1++;
      }
    }
    pdStaticCountless (ASNG_F(asnperg) &home->s_fld);
  }
}

void pdcBill (ASNG_F(ASNPERG *asnperg) Bill *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pdBill (ASNG_F(asnperg) home);
  pd_end ();
}
