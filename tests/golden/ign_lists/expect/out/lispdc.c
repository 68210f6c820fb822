/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Lists
 * FILE = lispdc.c
 ****************************************************************/

#ifndef LISPER_EXT
#include "lisper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pd_Boolean (&home->a_fld);
}

void piStruct (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdExtensible (ASNG_F(ASNPERG *asnperg) Extensible *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      home->extended = TRUE;
      home->value = index;
    }
  }
}

void piExtensible (ASNG_L(ASNPERG *asnperg))
{
  EXTENSIBLE_ENUMERATED temp;
  EXTENSIBLE_ENUMERATED *home = &temp;
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      home->extended = TRUE;
      home->value = index;
    }
  }
}

void piFixed (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    len_0 = 5;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    while (len_0 > 0){
      --len_0;
      pi_Boolean ();
    }
  }
}

void piFixedNoCount (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    len_0 = 5;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    while (len_0 > 0){
      --len_0;
      piStruct (ASNG_L(asnperg));
    }
  }
}

void piFixedList (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    len_0 = 5;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    while (len_0 > 0){
      --len_0;
      piStruct (ASNG_L(asnperg));
    }
  }
}

void piFew (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (len_0 > 0){
      --len_0;
      pi_sint32_cwn_al_le255_8 (0, 7, 3);
    }
  }
}

void piRange256 (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_eq256 (&len_0, 0, 255, 1);
    while (len_0 > 0){
      --len_0;
      piStruct (ASNG_L(asnperg));
    }
  }
}

void piRange1000 (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le64K (&len_0, 1, 1000, 2);
    while (len_0 > 0){
      --len_0;
      pi_NullType ();
    }
  }
}

void piLinkedList (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (len_0 > 0){
      --len_0;
      piStruct (ASNG_L(asnperg));
    }
  }
}

void piExtensibleSize (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 4, 2);
    while (len_0 > 0){
      --len_0;
      pi_Boolean ();
    }
  }
}

void piGaps (ASNG_L(ASNPERG *asnperg))
{
  {
    ?!? Unsupported Sequence-of type!!!
    pi_Boolean ();
  }
}

void piInline (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (len_0 > 0){
      --len_0;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          pi_Boolean ();
        }
        {
          uint32 len_2;
          len_2 = 2;
          pd_lenDet_al_clt64K_eq1 (NULL, 2, 2, 0);
          while (len_2 > 0){
            --len_2;
            pi_NullType ();
          }
        }
      }
    }
  }
}

void piInlineEnums (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (len_0 > 0){
      --len_0;
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
    }
  }
}

void piInlineChoice (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (len_0 > 0){
      --len_0;
      {
        sint8 choice_1;
        choice_1 = pd_ChoiceIndex_al_le255 (1, 1);
        switch (choice_1){
          case 0:
            {
              pi_NullType ();
              break;
            }
          case 1:
            {
              pi_Boolean ();
              break;
            }
        }
      }
    }
  }
}

void piLists2 (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (len_0 > 0){
      --len_0;
      {
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 0, 4, 3);
        while (len_1 > 0){
          --len_1;
          piStruct (ASNG_L(asnperg));
        }
      }
    }
  }
}

void piDynamicArray (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (len_0 > 0){
      --len_0;
      piStruct (ASNG_L(asnperg));
    }
  }
}

static void if1_Unbounded (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void piUnbounded (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, if1_Unbounded);
  }
}

static void ifStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piStruct (ASNG_L(asnperg));
    n--;
  }
}

void piUnboundedStructs (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifStruct);
  }
}

static void ifStruct_UnboundedAgain (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    piStruct (ASNG_L(asnperg));
    n--;
  }
}

void piUnboundedAgain (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifStruct_UnboundedAgain);
  }
}

static void ifExtensible (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piExtensible (ASNG_L(asnperg));
    n--;
  }
}

void piUnboundedEnums (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifExtensible);
  }
}

static void ifStruct_FixedLong (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    piStruct (ASNG_L(asnperg));
    n--;
  }
}

void piFixedLong (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifStruct_FixedLong);
  }
}

void piUnboundedInline (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, if1_UnboundedInline);
  }
}

static void if1_UnboundedInlineEnums (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    {
      EXTENSIBLE_ENUMERATED temp;
      EXTENSIBLE_ENUMERATED *home = &temp;
      {
        sint32 index;
        &a1->val.xenum->extended = FALSE;
        if (!pd_extensionBit ()) {
          pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
          &a1->val.xenum->value = index;
        }
        else {
          index = pd_normSmallNonNegWholeNumAl ();
          &a1->val.xenum->extended = TRUE;
          &a1->val.xenum->value = index;
        }
      }
    }
    n--;
  }
}

void piUnboundedInlineEnums (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, if1_UnboundedInlineEnums);
  }
}

static void if1_UnboundedNumbers (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_sint32_cwn_al_le255_8 (0, 7, 3);
    n--;
  }
}

void piUnboundedNumbers (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, if1_UnboundedNumbers);
  }
}

static void ifFew (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piFew (ASNG_L(asnperg));
    n--;
  }
}

void piUnboundedLists (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifFew);
  }
}

static void ifStruct_UnboundedArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    piStruct (ASNG_L(asnperg));
    n--;
  }
}

void piUnboundedArray (ASNG_L(ASNPERG *asnperg))
{
  {
    Struct *iter = home->elem;
    (void)pd_ConstructFragmentedValue (NULL, ifStruct_UnboundedArray);
  }
}

static void if1_UnboundedDynamicArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void piUnboundedDynamicArray (ASNG_L(ASNPERG *asnperg))
{
  {
    /* TODO: allocation of dynamic array */
    dynamic_array_allocation_not_implemented ();
    BOOLE *iter = home->elem;
    (void)pd_ConstructFragmentedValue (NULL, if1_UnboundedDynamicArray);
  }
}

void piLimited (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (len_0 > 0){
      --len_0;
      piStruct (ASNG_L(asnperg));
    }
  }
}

static void if1_LimitedLong (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    pi_sint32_cwn_al_le255_8 (0, 1, 1);
    n--;
  }
}

void piLimitedLong (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, if1_LimitedLong);
  }
}

static void ifStruct_a_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    piStruct (ASNG_L(asnperg));
    n--;
  }
}

static void if1_c_c_b_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

static void if2_d_d_d_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_NullType ();
    n--;
  }
}

static void if1_f_f_e_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_NullType ();
    n--;
  }
}

void piWithin (ASNG_L(ASNPERG *asnperg))
{
  {
    (void)pd_ConstructFragmentedValue (NULL, ifStruct_a_Within);
  }
  {
    sint32 optfield_1;
    optfield_1 = pd_getBits (1);
    if (optfield_1 & BITL(0)){
      {
        (void)pd_ConstructFragmentedValue (NULL, if1_c_c_b_Within);
      }
    }
  }
  {
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (len_1 > 0){
      --len_1;
      {
        (void)pd_ConstructFragmentedValue (NULL, if2_d_d_d_Within);
      }
    }
  }
  {
    sint8 choice_1;
    choice_1 = pd_ChoiceIndex_al_le255 (1, 1);
    switch (choice_1){
      case 0:
        {
          {
            (void)pd_ConstructFragmentedValue (NULL, if1_f_f_e_Within);
          }
          break;
        }
      case 1:
        {
          pi_NullType ();
          break;
        }
    }
  }
  {
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (len_1 > 0){
      --len_1;
      piStruct (ASNG_L(asnperg));
    }
  }
}

static void if1_b_b_Groups (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    pi_sint32_cwn_al_le255_8 (0, 3, 2);
    n--;
  }
}

void piGroups (ASNG_L(ASNPERG *asnperg))
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pi_Boolean ();
    if (extensionBit_0){
      pi_SkipExtendedComponents ();
    }
  }
}

static void if1_UnboundedArrayEnums (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    {
      sint32 *home = &asnperg_ignTemp;
      sint32 index;
      pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
      *home = index + 5;
    }
    n--;
  }
}

void piUnboundedArrayEnums (ASNG_L(ASNPERG *asnperg))
{
  {
    uint8 *iter = home->elem;
    (void)pd_ConstructFragmentedValue (NULL, if1_UnboundedArrayEnums);
  }
}
