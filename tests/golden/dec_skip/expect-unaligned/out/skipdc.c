/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Skips
 * FILE = skipdc.c
 ****************************************************************/

#ifndef SKIPER_EXT
#include "skiper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pd_Boolean (&home->x_fld);
}

void piStruct (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdIgnored (ASNG_F(ASNPERG *asnperg) Ignored *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    pi_Boolean ();
    piStruct (ASNG_L(asnperg));
    pi_Boolean ();
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(3);
      pi_Boolean ();
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(4);
      piStruct (ASNG_L(asnperg));
    }
  }
}

void pdRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(3);
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(4);
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
  }
}

void pdIgnoredAdditions (ASNG_F(ASNPERG *asnperg) IgnoredAdditions *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (5,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(4)){
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(3)){
        home->compmask |= BIT(2);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(2)){
        home->compmask |= BIT(3);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(1)){
        pi_Boolean ();
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            home->compmask |= BIT(5);
            pd_Boolean (&home->d_fld);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(6);
          }
          {
            home->compmask |= BIT(7);
            pd_NullType ();
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdRefusedAdditions (ASNG_F(ASNPERG *asnperg) RefusedAdditions *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (4,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(3)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(1);
        asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(2)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(2);
        asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(3);
        asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            home->compmask |= BIT(4);
            pd_Boolean (&home->d_fld);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(5);
            asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
          }
          {
            home->compmask |= BIT(6);
            pd_NullType ();
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdArrayIgnored (ASNG_F(ASNPERG *asnperg) ArrayIgnored *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (n1 < len_0){
      pi_Boolean ();
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdArrayRefused (ASNG_F(ASNPERG *asnperg) ArrayRefused *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (n1 < len_0){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdListIgnored (ASNG_F(ASNPERG *asnperg) ListIgnored *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_STRU, sizeof (SKIPPED));
      piStruct (ASNG_L(asnperg));
      incListLen (home);
    }
  }
}

void pdListRefused (ASNG_F(ASNPERG *asnperg) ListRefused *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_BOOL, 0);
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
      incListLen (home);
    }
  }
}

static void dfStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (SKIPPED));
    piStruct (ASNG_L(asnperg));
    incListLen (home);
    n--;
  }
}

void pdFragmentsIgnored (ASNG_F(ASNPERG *asnperg) FragmentsIgnored *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfStruct);
  }
}

static void df1_FragmentsIgnoredLeaf (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_BOOL, 0);
    pi_Boolean ();
    incListLen (home);
    n--;
  }
}

void pdFragmentsIgnoredLeaf (ASNG_F(ASNPERG *asnperg) 
  FragmentsIgnoredLeaf *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, df1_FragmentsIgnoredLeaf);
  }
}

static void df1_FragmentsIgnoredArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  SKIPPED *iter = (SKIPPED *)*p;
  while (n){
    pi_Boolean ();
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdFragmentsIgnoredArray (ASNG_F(ASNPERG *asnperg) 
  FragmentsIgnoredArray *home)
{
  staArrInit (home);
  {
    SKIPPED *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      df1_FragmentsIgnoredArray);
  }
}

static void dfStruct_FragmentsRefused (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
}

void pdFragmentsRefused (ASNG_F(ASNPERG *asnperg) FragmentsRefused *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      dfStruct_FragmentsRefused);
  }
}

static void df1_FragmentsIgnoredInline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (SKIPPED));
    NOT YET IMPLEMENTED!!incListLen (home);
    n--;
  }
}

void pdFragmentsIgnoredInline (ASNG_F(ASNPERG *asnperg) 
  FragmentsIgnoredInline *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      df1_FragmentsIgnoredInline);
  }
}

static void df1_FragmentsRefusedInline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
}

void pdFragmentsRefusedInline (ASNG_F(ASNPERG *asnperg) 
  FragmentsRefusedInline *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home,
      df1_FragmentsRefusedInline);
  }
}

static void ifStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piStruct (ASNG_L(asnperg));
    n--;
  }
}

static void if1_b_b_ListIgnored2 (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void pdListIgnored2 (ASNG_F(ASNPERG *asnperg) ListIgnored2 *home)
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifStruct);
  }
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
}

void pdChoiceIgnored (ASNG_F(ASNPERG *asnperg) ChoiceIgnored *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pi_Boolean ();
        break;
      }
    case 1:
      {
        piStruct (ASNG_L(asnperg));
        break;
      }
    case 3:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    case 4:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 2;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdChoiceRefused (ASNG_F(ASNPERG *asnperg) ChoiceRefused *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
        break;
      }
    case 1:
      {
        asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
        break;
      }
    case 3:
      {
        pd_BeginOpenType_ua (&openctx_0);
        asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 2;
        pd_SkipExtendedComponents (1);
      }
  }
}
