/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Surplus
 * FILE = surpdc.c
 ****************************************************************/

#ifndef SURPER_EXT
#include "surper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pd_Boolean (&home->a_fld);
    }
  }
}

void piStruct (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      pi_Boolean ();
    }
  }
}

void pdEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      *home = 1;
      break;
    case 1:
      *home = 5;
      break;
    default:
      break;
  }
}

void piEnum (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      *home = 1;
      break;
    case 1:
      *home = 5;
      break;
    default:
      break;
  }
}

void pdFew (ASNG_F(ASNPERG *asnperg) Few *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (n1 < len_0){
      pd_NullType ();
      incStaArrLen (home);
      n1++;
    }
  }
}

void piFew (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (len_0 > 0){
      --len_0;
      pi_NullType ();
    }
  }
}

void pdLeaves (ASNG_F(ASNPERG *asnperg) Leaves *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        pi_sint32_cwn_al_le255_8 (0, 7, 3);
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdStrings (ASNG_F(ASNPERG *asnperg) Strings *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      pd_DynOctetString_al_u (&home->elem [n1], 0, MAXLONG, 4);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        pi_OctetString_al_u (0, MAXLONG, 4);
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdStructs (ASNG_F(ASNPERG *asnperg) Structs *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdEnums (ASNG_F(ASNPERG *asnperg) Enums *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      pdEnum (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piEnum (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdListsOfLists (ASNG_F(ASNPERG *asnperg) ListsOfLists *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      pdFew (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piFew (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      home->elem [n1].compmask = 0;
      {
        BOOLE extensionBit_1 = pd_extensionBit ();
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          home->elem [n1].compmask |= BIT(0);
          pd_Boolean (&home->elem [n1].a_fld);
        }
        pdStruct (ASNG_F(asnperg) &home->elem [n1].b_fld);
        if (extensionBit_1){
          sint32 extensionAdditionField_1 = 0;
          int extensionAdditionCount_1 = pd_extensionAddition (1,
            &extensionAdditionField_1);
          ASNPEROPENCTX openctx_1;
          if (extensionAdditionField_1 & BITL(0)){
            pd_BeginOpenType_al (&openctx_1);
            home->elem [n1].compmask |= BIT(3);
            pd_NullType ();
            pd_EndOpenType_al (&openctx_1);
          }
          pd_SkipExtendedComponents (extensionAdditionCount_1);
        }
      }
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        {
          BOOLE extensionBit_1 = pd_extensionBit ();
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            pi_Boolean ();
          }
          piStruct (ASNG_L(asnperg));
          if (extensionBit_1){
            pi_SkipExtendedComponents ();
          }
        }
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdInlineChoice (ASNG_F(ASNPERG *asnperg) InlineChoice *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      home->elem [n1].choice = pd_ChoiceIndex_al_le255 (1, 1);
      switch (home->elem [n1].choice){
        case 0:
          {
            pd_Boolean (&home->elem [n1].i1.a_fld);
            break;
          }
        case 1:
          {
            pdStruct (ASNG_F(asnperg) &home->elem [n1].i1.b_fld);
            break;
          }
      }
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        {
          sint8 choice_1;
          choice_1 = pd_ChoiceIndex_al_le255 (1, 1);
          switch (choice_1){
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
          }
        }
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdInlineList (ASNG_F(ASNPERG *asnperg) InlineList *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      staArrInit (&home->elem [n1]);
      {
        uint32 n2 = 0;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (n2 < len_1){
          pdStruct (ASNG_F(asnperg) &home->elem [n1].elem [n2]);
          incStaArrLen (&home->elem [n1]);
          n2++;
        }
      }
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        {
          uint32 len_1;
          pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
          while (len_1 > 0){
            --len_1;
            piStruct (ASNG_L(asnperg));
          }
        }
        home->nIgnored++;
        n1++;
      }
    }
  }
}

static void df1_a_a_InlineFragments (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
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

static void if1_a_a_InlineFragments (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void pdInlineFragments (ASNG_F(ASNPERG *asnperg) InlineFragments *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      listInit (&home->elem [n1].a_fld);
      {
        pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->elem [n1].a_fld,
          df1_a_a_InlineFragments);
      }
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        {
          (void)pd_ConstructFragmentedValue (NULL, if1_a_a_InlineFragments);
        }
        home->nIgnored++;
        n1++;
      }
    }
  }
}

static void ifStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piStruct (ASNG_L(asnperg));
    n--;
  }
}

static void if1_c_c_a_SkippedInline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_NullType ();
    n--;
  }
}

static void dfStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (Struct));
    pdStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

static void dfStruct_g_f_SkippedInline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (Struct));
    pdStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdSkippedInline (ASNG_F(ASNPERG *asnperg) SkippedInline *home)
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifStruct);
  }
  {
    (void)pd_ConstructFragmentedValue (NULL, if1_c_c_a_SkippedInline);
  }
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
  listInit (&home->f_fld.g_fld);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->f_fld.g_fld,
      dfStruct_g_f_SkippedInline);
  }
}

void pdFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    while (n1 < 3){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < 5){
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdFixedCounted (ASNG_F(ASNPERG *asnperg) FixedCounted *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    while (n1 < 3 && n1 < len_0){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdLinkedList (ASNG_F(ASNPERG *asnperg) LinkedList *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_STRU, sizeof (Struct));
      pdStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
      incListLen (home);
    }
    home->nIgnored = 0;
    {
      {
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n0++;
      }
    }
  }
}

void pdSkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      piStruct (ASNG_L(asnperg));
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdNoCount (ASNG_F(ASNPERG *asnperg) NoCount *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 5, 3);
    while (n1 < 3){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  staArrInit (&home->a_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n1 < 2 && n1 < len_1){
      pdStruct (ASNG_F(asnperg) &home->a_fld.elem [n1]);
      incStaArrLen (&home->a_fld);
      n1++;
    }
    home->a_fld.nIgnored = 0;
    {
      while (n1 < len_1){
        piStruct (ASNG_L(asnperg));
        home->a_fld.nIgnored++;
        n1++;
      }
    }
  }
  home->b_fld.compmask = 0;
  {
    sint32 optfield_1;
    optfield_1 = pd_getBits (1);
    if (optfield_1 & BITL(0)){
      home->b_fld.compmask |= BIT(0);
      staArrInit (&home->b_fld.c_fld);
      {
        uint32 n1 = 0;
        uint32 len_2;
        pd_lenDet_al_clt64K_le255 (&len_2, 1, 3, 2);
        while (n1 < 2 && n1 < len_2){
          pd_NullType ();
          incStaArrLen (&home->b_fld.c_fld);
          n1++;
        }
        home->b_fld.c_fld.nIgnored = 0;
        {
          while (n1 < len_2){
            pi_NullType ();
            home->b_fld.c_fld.nIgnored++;
            n1++;
          }
        }
      }
    }
  }
}
