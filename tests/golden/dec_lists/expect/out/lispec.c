/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Lists
 * FILE = lispec.c
 ****************************************************************/

#ifndef LISPER_EXT
#include "lisper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_Boolean (home->x_fld);
}

void peArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peArrayOfStructs (ASNG_F(ASNPERG *asnperg) ArrayOfStructs *home)
{
  pe_lenDet_al_clt64K_le64K (staArrLen (home), 0, 300, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peArrayOfInline (ASNG_F(ASNPERG *asnperg) ArrayOfInline *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 2, 5, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      {
        pe_Boolean (home->elem [n1].x_fld);
        pe_sint32_cwn_al_le255 (home->elem [n1].y_fld, 0, 7, 3);
      }
    }
  }
}

void peArrayOfArrays (ASNG_F(ASNPERG *asnperg) ArrayOfArrays *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 2, 5, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_lenDet_al_clt64K_le255 (staArrLen (&home->elem [n1]), 1, 3, 2);
      {
        uint32 n2 = 0;
        for (n2 = 0; n2 < staArrLen (&home->elem [n1]); n2++){
          pe_sint32_cwn_al_le255 (home->elem [n1].elem [n2], 0, 7, 3);
        }
      }
    }
  }
}

void peArrayOfFixed (ASNG_F(ASNPERG *asnperg) ArrayOfFixed *home)
{
  pe_lenDet_al_clt64K_eq1 (4, 4, 4, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 4; n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peArrayOfFixedStructs (ASNG_F(ASNPERG *asnperg) 
  ArrayOfFixedStructs *home)
{
  pe_lenDet_al_clt64K_eq1 (4, 4, 4, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 4; n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peArrayOfExtensible (ASNG_F(ASNPERG *asnperg) ArrayOfExtensible *home)
{
   /*?!?: Invalid encoding follows - extended SET-OF/SEQ-OF constraint.*/
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peArrayOfGaps (ASNG_F(ASNPERG *asnperg) ArrayOfGaps *home)
{
  ?!? Unsupported Sequence-of type!!!
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 1, 10, 4);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    }
  }
}

void peListOfStructs (ASNG_F(ASNPERG *asnperg) ListOfStructs *home)
{
  pe_lenDet_al_clt64K_le64K (listLen (home), 0, 300, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      peStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
    }
  }
}

void peListOfInline (ASNG_F(ASNPERG *asnperg) ListOfInline *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 2, 5, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      {
        struct t_1_ListOfInline *h1 = (struct t_1_ListOfInline *)a1->val.stru;
        {
          pe_Boolean (h1->x_fld);
          pe_sint32_cwn_al_le255 (h1->y_fld, 0, 7, 3);
        }
      }
    }
  }
}

void peListOfLists (ASNG_F(ASNPERG *asnperg) ListOfLists *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 2, 5, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      {
        LIST *h1 = &a1->val.list;
        pe_lenDet_al_clt64K_le255 (listLen (&a1->val.list), 2, 5, 2);
        {
          ASNHOME *a2 = NULL;
          for (a2 = firstListItem (h1); a2; a2 = nextListItem (a2)){
            pe_sint32_cwn_al_le255 (a2->val.ui8, 0, 7, 3);
          }
        }
      }
    }
  }
}

static void efLeaf (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efLeaf);
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

void peUnboundedStructs (ASNG_F(ASNPERG *asnperg) UnboundedStructs *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efStruct);
}

void peBelow (ASNG_F(ASNPERG *asnperg) Below *home)
{
  pe_lenDet_al_clt64K_le64K (listLen (home), 0, 65535, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    }
  }
}

static void efLeaf_From (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peFrom (ASNG_F(ASNPERG *asnperg) From *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efLeaf_From);
}

static void efLeaf_FixedFrom (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peFixedFrom (ASNG_F(ASNPERG *asnperg) FixedFrom *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efLeaf_FixedFrom);
}

static void efLeaf_UnboundedArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  Leaf *iter = (Leaf *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (*iter, 0, 7, 3);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peUnboundedArray (ASNG_F(ASNPERG *asnperg) UnboundedArray *home)
{
  Leaf *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    efLeaf_UnboundedArray);
}

static void efStruct_UnboundedArrayOfStructs (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  Struct *iter = (Struct *)*p;
  while (n){
    peStruct (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peUnboundedArrayOfStructs (ASNG_F(ASNPERG *asnperg) 
  UnboundedArrayOfStructs *home)
{
  Struct *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    efStruct_UnboundedArrayOfStructs);
}

void peUnsupported (ASNG_F(ASNPERG *asnperg) Unsupported *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_Unsupported);
}

static void efStruct_UnboundedAgain (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peUnboundedAgain (ASNG_F(ASNPERG *asnperg) UnboundedAgain *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efStruct_UnboundedAgain);
}

static void ef1_UnboundedBooleans (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peUnboundedBooleans (ASNG_F(ASNPERG *asnperg) UnboundedBooleans *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_UnboundedBooleans);
}

static void efLeaf_a_Lower (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void ef1_c_c_Lower (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  NULLTYPE *iter = (NULLTYPE *)*p;
  while (n){
    pe_NullType ();
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peLower (ASNG_F(ASNPERG *asnperg) Lower *home)
{
  {
    ASNHOME *iter = firstListItem (&home->a_fld);
    pe_TraverseFragmentedValue (listLen (&home->a_fld), (BYTE_TYPE *)iter,
      efLeaf_a_Lower);
  }
  pe_lenDet_al_clt64K_le255 (listLen (&home->b_fld), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->b_fld); a1; a1 = nextListItem (a1)){
      pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    }
  }
  {
    NULLTYPE *iter = home->c_fld.elem;
    pe_TraverseFragmentedValue (staArrLen (&home->c_fld), (BYTE_TYPE *)iter,
      ef1_c_c_Lower);
  }
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->d_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->d_fld); n1++){
      pe_sint32_cwn_al_le255 (home->d_fld.elem [n1], 0, 7, 3);
    }
  }
}

static void efStruct_a_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void ef1_b_b_Within (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void ef1_d_d_c_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void efLeaf_1_e_e_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void efLeaf_g_Within (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  {
    ASNHOME *iter = firstListItem (&home->a_fld);
    pe_TraverseFragmentedValue (listLen (&home->a_fld), (BYTE_TYPE *)iter,
      efStruct_a_Within);
  }
  if ((home->compmask & BIT(1))){
    ASNHOME *iter = firstListItem (&home->b_fld);
    pe_TraverseFragmentedValue (listLen (&home->b_fld), (BYTE_TYPE *)iter,
      ef1_b_b_Within);
  }
  {
    {
      ASNHOME *iter = firstListItem (&home->c_fld.d_fld);
      pe_TraverseFragmentedValue (listLen (&home->c_fld.d_fld),
        (BYTE_TYPE *)iter, ef1_d_d_c_Within);
    }
  }
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->e_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->e_fld); n1++){
      ASNHOME *iter = firstListItem (&home->e_fld.elem [n1]);
      pe_TraverseFragmentedValue (listLen (&home->e_fld.elem [n1]),
        (BYTE_TYPE *)iter, efLeaf_1_e_e_Within);
    }
  }
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->f_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->f_fld); n1++){
      pe_sint32_cwn_al_le255 (home->f_fld.elem [n1], 0, 7, 3);
    }
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    ASNHOME *iter = firstListItem (&home->g_fld);
    pe_TraverseFragmentedValue (listLen (&home->g_fld), (BYTE_TYPE *)iter,
      efLeaf_g_Within);
  }
  pe_EndOpenType_al (&openctx_0);
}
