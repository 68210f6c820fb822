/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Paths
 * FILE = patpdc.c
 ****************************************************************/

#ifndef PATPER_EXT
#include "patper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pp_pushPath (ASNG_F(asnperg) "x_fld");
  pd_Boolean (&home->x_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void piStruct (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdcStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pp_pushPath (ASNG_F(asnperg) "Struct");
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pdStruct (ASNG_F(asnperg) home);
  pd_end ();
  pp_popPath (ASNG_F(asnperg) 7);
}

void pdMembers (ASNG_F(ASNPERG *asnperg) Members *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pp_pushPath (ASNG_F(asnperg) "a_fld");
      pd_Boolean (&home->a_fld);
      pp_popPath (ASNG_F(asnperg) 6);
    }
    pp_pushPath (ASNG_F(asnperg) "b_fld");
    {
      ASNPEROPENCTX openctx_1;
      {
        BOOLE extensionBit_1 = pd_extensionBit ();
        if (!extensionBit_1){
          home->b_fld.choice = 0;
        }
        else {
          home->b_fld.choice = 2 + pd_ChoiceIndex_ua_ns ();
        }
        switch (home->b_fld.choice){
          case 0:
            {
              pp_pushPath (ASNG_F(asnperg) "i1.x_fld");
              pd_NullType ();
              pp_popPath (ASNG_F(asnperg) 9);
              break;
            }
          case 2:
            {
              pd_BeginOpenType_ua (&openctx_1);
              pp_pushPath (ASNG_F(asnperg) "i1.y_fld");
              pdStruct (ASNG_F(asnperg) &home->b_fld.i1.y_fld);
              pp_popPath (ASNG_F(asnperg) 9);
              pd_EndOpenType_ua (&openctx_1);
              break;
            }
          default:
            {
              home->b_fld.choice = 1;
              pd_SkipExtendedComponents (1);
            }
        }
      }
    }
    pp_popPath (ASNG_F(asnperg) 6);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(3);
        pp_pushPath (ASNG_F(asnperg) "c_fld");
        pd_Boolean (&home->c_fld);
        pp_popPath (ASNG_F(asnperg) 6);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        pp_pushPath (ASNG_F(asnperg) "_fld");
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(4);
            pp_pushPath (ASNG_F(asnperg) "d_fld");
            pd_NullType ();
            pp_popPath (ASNG_F(asnperg) 6);
          }
        }
        pp_popPath (ASNG_F(asnperg) 5);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (n1 < len_0){
      pp_pushElem (ASNG_F(asnperg) n1);
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      pp_popPath (ASNG_F(asnperg) 0);
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
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (listLen (home) < len_0){
      appendList (getHomeG (asnperg_asnuti), home, &a1, VF_STRU,
        sizeof (Struct));
      pp_pushElem (ASNG_F(asnperg) listLen (home));
      pdStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
      incListLen (home);
    }
  }
}

void pdLimited (ASNG_F(ASNPERG *asnperg) Limited *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (n1 < 2 && n1 < len_0){
      pp_pushElem (ASNG_F(asnperg) n1);
      pd_NullType ();
      pp_popPath (ASNG_F(asnperg) 0);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        pi_NullType ();
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdDynamic (ASNG_F(ASNPERG *asnperg) Dynamic *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    if (len_0 > 0){
      home->elem = (Struct *)allocAsn (getHomeG (asnperg_asnuti), MB_STG, 
        len_0 * sizeof (Struct));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      pp_pushElem (ASNG_F(asnperg) n1);
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      pp_popPath (ASNG_F(asnperg) 0);
      incDynArrLen (home);
      n1++;
    }
  }
}

static void dfStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (getHomeG (asnperg_asnuti), home, &a1, VF_STRU,
      sizeof (Struct));
    pp_pushElem (ASNG_F(asnperg) listLen (home));
    pdStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    incListLen (home);
    pp_popPath (ASNG_F(asnperg) 0);
    n--;
  }
}

void pdFragments (ASNG_F(ASNPERG *asnperg) Fragments *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfStruct);
  }
}

static void dfStruct_FragmentsSkipped (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (getHomeG (asnperg_asnuti), home, &a1, VF_STRU,
      sizeof (SKIPPED));
    pp_pushElem (ASNG_F(asnperg) listLen (home));
    piStruct (ASNG_L(asnperg));
    incListLen (home);
    pp_popPath (ASNG_F(asnperg) 0);
    n--;
  }
}

void pdFragmentsSkipped (ASNG_F(ASNPERG *asnperg) FragmentsSkipped *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      dfStruct_FragmentsSkipped);
  }
}

static void df1_FragmentsOfArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  BOOLE *iter = (BOOLE *)*p;
  while (n){
    pp_pushElem (ASNG_F(asnperg) staArrLen (iter));
    pd_Boolean (iter);
    iter++;
    pp_popPath (ASNG_F(asnperg) 0);
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdFragmentsOfArray (ASNG_F(ASNPERG *asnperg) FragmentsOfArray *home)
{
  staArrInit (home);
  {
    BOOLE *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter, df1_FragmentsOfArray);
  }
}

void pdHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    createHome (getHomeG (asnperg_asnuti), &home->a_fld, VF_DYNS, 0);
    pushHomeG (asnperg_asnuti, home->a_fld);
    pp_pushPath (ASNG_F(asnperg) "a_fld");
    pd_DynOctetString_ua_u (&home->a_fld->val.dyns, 0, MAXLONG, 4);
    popHomeG (asnperg_asnuti);
    pp_popPath (ASNG_F(asnperg) 6);
    if (optfield_0 & BITL(0)){
      createHome (getHomeG (asnperg_asnuti), &home->b_fld, VF_STRU,
        sizeof (Struct));
      pushHomeG (asnperg_asnuti, home->b_fld);
      pp_pushPath (ASNG_F(asnperg) "b_fld");
      pdStruct (ASNG_F(asnperg) (Struct *)home->b_fld->val.stru);
      popHomeG (asnperg_asnuti);
      pp_popPath (ASNG_F(asnperg) 6);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        createHome (getHomeG (asnperg_asnuti), &home->c_fld, VF_STRU,
          sizeof (struct t_c_Homes));
        pushHomeG (asnperg_asnuti, home->c_fld);
        pp_pushPath (ASNG_F(asnperg) "c_fld");
        {
          struct t_c_Homes *h1 = (struct t_c_Homes *)home->c_fld->val.stru;
          pp_pushPath (ASNG_F(asnperg) "x_fld");
          pd_DynOctetString_ua_u (&h1->x_fld, 0, MAXLONG, 4);
          pp_popPath (ASNG_F(asnperg) 6);
        }
        popHomeG (asnperg_asnuti);
        pp_popPath (ASNG_F(asnperg) 6);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
