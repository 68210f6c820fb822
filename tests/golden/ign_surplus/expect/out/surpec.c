/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Surplus
 * FILE = surpec.c
 ****************************************************************/

#ifndef SURPER_EXT
#include "surper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
}

void peEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  sint32 index;
  switch (*home) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peFew (ASNG_F(ASNPERG *asnperg) Few *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_NullType ();
    }
  }
}

void peLeaves (ASNG_F(ASNPERG *asnperg) Leaves *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peStrings (ASNG_F(ASNPERG *asnperg) Strings *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_OctetString_al_u (&home->elem [n1], 0, MAXLONG, 4);
    }
  }
}

void peStructs (ASNG_F(ASNPERG *asnperg) Structs *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peEnums (ASNG_F(ASNPERG *asnperg) Enums *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peEnum (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peListsOfLists (ASNG_F(ASNPERG *asnperg) ListsOfLists *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peFew (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      {
        ASNPEROPENCTX openctx_1;
        BOOLE extensionBit_1 = 0;
        if ((home->elem [n1].compmask & BIT(3))){
          extensionBit_1 = 1;
        }
        pe_extensionBit (extensionBit_1);
        {
          sint32 optfield_1 = 0;
          if (home->elem [n1].compmask & BIT(0)){
            optfield_1 |= BITL(0);
          }
          pe_optField (optfield_1, 1);
        }
        if ((home->elem [n1].compmask & BIT(0))){
          pe_Boolean (home->elem [n1].a_fld);
        }
        peStruct (ASNG_F(asnperg) &home->elem [n1].b_fld);
        if (extensionBit_1){
          sint32 extensionAdditionField_1 = 0;
          if ((home->elem [n1].compmask & BIT(3))){
            extensionAdditionField_1 |= BITL(0);
          }
          pe_extensionAddition (1, extensionAdditionField_1);
        }
        if ((home->elem [n1].compmask & BIT(3))){
          pe_BeginOpenType_al (&openctx_1);
          pe_NullType ();
          pe_EndOpenType_al (&openctx_1);
        }
      }
    }
  }
}

void peInlineChoice (ASNG_F(ASNPERG *asnperg) InlineChoice *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_ChoiceIndex_al_le255 (home->elem [n1].choice, 1, 1);
      switch (home->elem [n1].choice){
        case 0:
          {
            pe_Boolean (home->elem [n1].i1.a_fld);
          }
          break;
        case 1:
          {
            peStruct (ASNG_F(asnperg) &home->elem [n1].i1.b_fld);
          }
          break;
      }
    }
  }
}

void peInlineList (ASNG_F(ASNPERG *asnperg) InlineList *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_lenDet_al_clt64K_le255 (staArrLen (&home->elem [n1]), 1, 3, 2);
      {
        uint32 n2 = 0;
        for (n2 = 0; n2 < staArrLen (&home->elem [n1]); n2++){
          peStruct (ASNG_F(asnperg) &home->elem [n1].elem [n2]);
        }
      }
    }
  }
}

static void ef1_a_a_InlineFragments (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peInlineFragments (ASNG_F(ASNPERG *asnperg) InlineFragments *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      {
        {
          ASNHOME *iter = firstListItem (&home->elem [n1].a_fld);
          pe_TraverseFragmentedValue (listLen (&home->elem [n1].a_fld),
            (BYTE_TYPE *)iter, ef1_a_a_InlineFragments);
        }
      }
    }
  }
}

static void efStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void ef1_c_c_a_SkippedInline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_NullType ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void efStruct_e_d_SkippedInline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void efStruct_g_f_SkippedInline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peSkippedInline (ASNG_F(ASNPERG *asnperg) SkippedInline *home)
{
  pe_Skip ();
  pe_Skip ();
  {
    {
      ASNHOME *iter = firstListItem (&home->f_fld.g_fld);
      pe_TraverseFragmentedValue (listLen (&home->f_fld.g_fld),
        (BYTE_TYPE *)iter, efStruct_g_f_SkippedInline);
    }
  }
}

void peFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  pe_lenDet_al_clt64K_eq1 (3, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 3; n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peFixedCounted (ASNG_F(ASNPERG *asnperg) FixedCounted *home)
{
  pe_lenDet_al_clt64K_eq1 (staArrLen (home), 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peLinkedList (ASNG_F(ASNPERG *asnperg) LinkedList *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 1, 10, 4);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      peStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    }
  }
}

void peSkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peNoCount (ASNG_F(ASNPERG *asnperg) NoCount *home)
{
  pe_lenDet_al_clt64K_le255 (3, 1, 5, 3);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 3; n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
      peStruct (ASNG_F(asnperg) &home->a_fld.elem [n1]);
    }
  }
  {
    {
      sint32 optfield_1 = 0;
      if (home->b_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->b_fld.compmask & BIT(0))){
      pe_lenDet_al_clt64K_le255 (staArrLen (&home->b_fld.c_fld), 1, 3, 2);
      {
        uint32 n1 = 0;
        for (n1 = 0; n1 < staArrLen (&home->b_fld.c_fld); n1++){
          pe_NullType ();
        }
      }
    }
  }
}
