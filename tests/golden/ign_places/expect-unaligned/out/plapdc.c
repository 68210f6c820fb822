/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Places
 * FILE = plapdc.c
 ****************************************************************/

#ifndef PLAPER_EXT
#include "plaper.ext"
#endif

void pdEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

void piEnum (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

static void if1_fragments_fragments_Components (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void pdComponents (ASNG_F(ASNPERG *asnperg) Components *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (3);
    pi_Boolean ();
    if (optfield_0 & BITL(2)){
      home->compmask |= BITL(1);
      pi_sint32_cwn_ua_8 (0, 7, 3);
    }
    pi_NullType ();
    pi_ObjectIdentifier ();
    pi_BitString_ua_u (0, MAXLONG, 4);
    pi_OctetString_ua_feq2 (2, 2, 0);
    pi_UnknownMultiCharStri_ua_u (0, MAXLONG, 4);
    pi_KnownMultiCharStri_ua_clt64K (1, 10, 4, 7, TYP_IA5STR, 128, NULL);
    pi_OpenType_ua ();
    pi_OpenType_ua ();
    if (optfield_0 & BITL(1)){
      home->compmask |= BITL(10);
      NOT YET IMPLEMENTED!!}
    piEnum (ASNG_L(asnperg));
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (extensionBit_1){
        pi_SkipExtendedComponents ();
      }
    }
    pi_Boolean ();
    if (optfield_0 & BITL(0)){
      home->compmask |= BITL(15);
      {
        sint8 choice_1;
        choice_1 = pd_ChoiceIndex_ua_le255 (1, 1);
        switch (choice_1){
          case 0:
            {
              pi_Boolean ();
              break;
            }
          case 1:
            {
              pi_NullType ();
              break;
            }
        }
      }
    }
    {
      uint32 len_1;
      pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
      while (len_1 > 0){
        --len_1;
        pi_Boolean ();
      }
    }
    {
      (void)pd_ConstructFragmentedValue (NULL,
        if1_fragments_fragments_Components);
    }
  }
}

static void if1_fragments_fragments_Refused (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void pdRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
  }
}

void pdAdditions (ASNG_F(ASNPERG *asnperg) Additions *home)
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
        home->compmask |= BIT(1);
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
        home->compmask |= BIT(4);
        {
          sint8 choice_1;
          choice_1 = pd_ChoiceIndex_ua_le255 (1, 1);
          switch (choice_1){
            case 0:
              {
                pi_Boolean ();
                break;
              }
            case 1:
              {
                pi_NullType ();
                break;
              }
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        home->compmask |= BIT(5);
        {
          uint32 len_1;
          pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
          while (len_1 > 0){
            --len_1;
            pi_Boolean ();
          }
        }
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
      pi_sint32_cwn_ua_8 (0, 7, 3);
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
      appendList (NULL, home, &a1, VF_UI8, 0);
      piEnum (ASNG_L(asnperg));
      incListLen (home);
    }
  }
}

static void dfEnum (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    piEnum (ASNG_L(asnperg));
    incListLen (home);
    n--;
  }
}

void pdFragments (ASNG_F(ASNPERG *asnperg) Fragments *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfEnum);
  }
}

static void df1_ArrayFragments (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  SKIPPED *iter = (SKIPPED *)*p;
  while (n){
    pi_sint32_cwn_ua_8 (0, 7, 3);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdArrayFragments (ASNG_F(ASNPERG *asnperg) ArrayFragments *home)
{
  staArrInit (home);
  {
    SKIPPED *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter, df1_ArrayFragments);
  }
}

static void dfEnum_RefusedFragments (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
}

void pdRefusedFragments (ASNG_F(ASNPERG *asnperg) RefusedFragments *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfEnum_RefusedFragments);
  }
}

void pdEnums (ASNG_F(ASNPERG *asnperg) Enums *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    {
      sint32 *home = &asnperg_ignTemp;
      pd_sint32_cwn_ua_8 (&home->zero_fld, 0, 1, 1);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      {
        sint32 *home = &asnperg_ignTemp;
        sint32 index;
        pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
        home->other_fld = index + 5;
      }
    }
    {
      EXTENSIBLE_ENUMERATED temp;
      EXTENSIBLE_ENUMERATED *home = &temp;
      {
        sint32 index;
        &home->extensible_fld->extended = FALSE;
        if (!pd_extensionBit ()) {
          pd_sint32_cwn_ua (&index, 0, 0, 0);
          &home->extensible_fld->value = index;
        }
        else {
          index = pd_normSmallNonNegWholeNumUa ();
          if (index == 0) {
            &home->extensible_fld->value = index + 1;
          }
          else {
            &home->extensible_fld->extended = TRUE;
            &home->extensible_fld->value = index;
          }
        }
      }
    }
    staArrInit (&home->array_fld);
    {
      uint32 n1 = 0;
      uint32 len_1;
      pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
      while (n1 < len_1){
        {
          sint32 *home = &asnperg_ignTemp;
          sint32 index;
          pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
          switch (index) {
            case 0:
              home->array_fld.elem [n1] = 1;
              break;
            case 1:
              home->array_fld.elem [n1] = 5;
              break;
            default:
              break;
          }
        }
        incStaArrLen (&home->array_fld);
        n1++;
      }
    }
    asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
  }
}

void pdHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    createHome (NULL, &home->a_fld, VF_BOOL, 0);
    pi_Boolean ();
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->b_fld, VF_UI8, 0);
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
  }
}

void pdPointers (ASNG_F(ASNPERG *asnperg) Pointers *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pi_Boolean ();
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
  }
}

static void df1_ArrayEnums (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  SKIPPED *iter = (SKIPPED *)*p;
  while (n){
    {
      sint32 *home = &asnperg_ignTemp;
      sint32 index;
      pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
      *iter = index + 5;
    }
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdArrayEnums (ASNG_F(ASNPERG *asnperg) ArrayEnums *home)
{
  staArrInit (home);
  {
    SKIPPED *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter, df1_ArrayEnums);
  }
}
