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
  pd_Boolean (&home->x_fld);
}

void pdArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdArrayOfStructs (ASNG_F(ASNPERG *asnperg) ArrayOfStructs *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le64K (&len_0, 0, 300, 2);
    while (n1 < len_0){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdArrayOfInline (ASNG_F(ASNPERG *asnperg) ArrayOfInline *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 2, 5, 2);
    while (n1 < len_0){
      pd_Boolean (&home->elem [n1].x_fld);
      pd_sint32_cwn_al_le255_8 (&home->elem [n1].y_fld, 0, 7, 3);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdArrayOfArrays (ASNG_F(ASNPERG *asnperg) ArrayOfArrays *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 2, 5, 2);
    while (n1 < len_0){
      staArrInit (&home->elem [n1]);
      {
        uint32 n2 = 0;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (n2 < len_1){
          pd_sint32_cwn_al_le255_8 (&home->elem [n1].elem [n2], 0, 7, 3);
          incStaArrLen (&home->elem [n1]);
          n2++;
        }
      }
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdArrayOfFixed (ASNG_F(ASNPERG *asnperg) ArrayOfFixed *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 4, 4, 0);
    while (n1 < 4){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      n1++;
    }
  }
}

void pdArrayOfFixedStructs (ASNG_F(ASNPERG *asnperg) 
  ArrayOfFixedStructs *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 4, 4, 0);
    while (n1 < 4){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      n1++;
    }
  }
}

void pdArrayOfExtensible (ASNG_F(ASNPERG *asnperg) ArrayOfExtensible *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
     /* ?!?: Invalid decoding follows - extended SET-OF/SEQ-OF constraint. */ 
    while (n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdArrayOfGaps (ASNG_F(ASNPERG *asnperg) ArrayOfGaps *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    ?!? Unsupported Sequence-of type!!!
    while (n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
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
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
      incListLen (home);
    }
  }
}

void pdListOfStructs (ASNG_F(ASNPERG *asnperg) ListOfStructs *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le64K (&len_0, 0, 300, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_STRU, sizeof (Struct));
      pdStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
      incListLen (home);
    }
  }
}

void pdListOfInline (ASNG_F(ASNPERG *asnperg) ListOfInline *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 2, 5, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_STRU, sizeof (struct t_1_ListOfInline));
      {
        struct t_1_ListOfInline *h1 = (struct t_1_ListOfInline *)a1->val.stru;
        pd_Boolean (&h1->x_fld);
        pd_sint32_cwn_al_le255_8 (&h1->y_fld, 0, 7, 3);
      }
      incListLen (home);
    }
  }
}

void pdListOfLists (ASNG_F(ASNPERG *asnperg) ListOfLists *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 2, 5, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_LIST, 0);
      {
        LIST *h1 = &a1->val.list;
        listInit (h1);
        {
          ASNHOME *a2 = NULL;
          uint32 len_1;
          pd_lenDet_al_clt64K_le255 (&len_1, 2, 5, 2);
          while (listLen (&a2->val.list) < len_1){
            appendList (NULL, h1, &a2, VF_UI8, 0);
            pd_sint32_cwn_al_le255_8 (&a2->val.ui8, 0, 7, 3);
            incListLen (h1);
          }
        }
      }
      incListLen (home);
    }
  }
}

static void dfLeaf (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
    incListLen (home);
    n--;
  }
}

void pdUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfLeaf);
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

void pdUnboundedStructs (ASNG_F(ASNPERG *asnperg) UnboundedStructs *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfStruct);
  }
}

void pdBelow (ASNG_F(ASNPERG *asnperg) Below *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le64K (&len_0, 0, 65535, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
      incListLen (home);
    }
  }
}

static void dfLeaf_From (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
    incListLen (home);
    n--;
  }
}

void pdFrom (ASNG_F(ASNPERG *asnperg) From *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfLeaf_From);
  }
}

static void dfLeaf_FixedFrom (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
    incListLen (home);
    n--;
  }
}

void pdFixedFrom (ASNG_F(ASNPERG *asnperg) FixedFrom *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfLeaf_FixedFrom);
  }
}

static void dfLeaf_UnboundedArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  Leaf *iter = (Leaf *)*p;
  while (n){
    pd_sint32_cwn_al_le255_8 (iter, 0, 7, 3);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdUnboundedArray (ASNG_F(ASNPERG *asnperg) UnboundedArray *home)
{
  staArrInit (home);
  {
    Leaf *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter, dfLeaf_UnboundedArray);
  }
}

static void dfStruct_UnboundedArrayOfStructs (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  Struct *iter = (Struct *)*p;
  while (n){
    pdStruct (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdUnboundedArrayOfStructs (ASNG_F(ASNPERG *asnperg) 
  UnboundedArrayOfStructs *home)
{
  staArrInit (home);
  {
    Struct *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter,
      dfStruct_UnboundedArrayOfStructs);
  }
}

void pdUnsupported (ASNG_F(ASNPERG *asnperg) Unsupported *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, df1_Unsupported);
  }
}

static void dfStruct_UnboundedAgain (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void pdUnboundedAgain (ASNG_F(ASNPERG *asnperg) UnboundedAgain *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfStruct_UnboundedAgain);
  }
}

static void df1_UnboundedBooleans (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void pdUnboundedBooleans (ASNG_F(ASNPERG *asnperg) UnboundedBooleans *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, df1_UnboundedBooleans);
  }
}

static void dfLeaf_a_Lower (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
    incListLen (home);
    n--;
  }
}

static void df1_c_c_Lower (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  NULLTYPE *iter = (NULLTYPE *)*p;
  while (n){
    pd_NullType ();
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdLower (ASNG_F(ASNPERG *asnperg) Lower *home)
{
  listInit (&home->a_fld);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->a_fld, dfLeaf_a_Lower);
  }
  listInit (&home->b_fld);
  {
    ASNHOME *a0 = NULL;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (listLen (&home->b_fld) < len_1){
      appendList (NULL, &home->b_fld, &a0, VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (home, 0, 7, 3);
      incListLen (&home->b_fld);
    }
  }
  staArrInit (&home->c_fld);
  {
    NULLTYPE *iter = home->c_fld.elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter, df1_c_c_Lower);
  }
  staArrInit (&home->d_fld);
  {
    uint32 n0 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n0 < len_1){
      pd_sint32_cwn_al_le255_8 (&home->d_fld.elem [n0], 0, 7, 3);
      incStaArrLen (&home->d_fld);
      n0++;
    }
  }
}

static void dfStruct_a_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void df1_b_b_Within (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
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

static void df1_d_d_c_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_NULL, 0);
    pd_NullType ();
    incListLen (home);
    n--;
  }
}

static void dfLeaf_1_e_e_Within (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
    incListLen (home);
    n--;
  }
}

static void dfLeaf_g_Within (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_UI8, 0);
    pd_sint32_cwn_al_le255_8 (&a1->val.ui8, 0, 7, 3);
    incListLen (home);
    n--;
  }
}

void pdWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    listInit (&home->a_fld);
    {
      pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->a_fld,
        dfStruct_a_Within);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      listInit (&home->b_fld);
      {
        pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->b_fld,
          df1_b_b_Within);
      }
    }
    listInit (&home->c_fld.d_fld);
    {
      pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->c_fld.d_fld,
        df1_d_d_c_Within);
    }
    staArrInit (&home->e_fld);
    {
      uint32 n1 = 0;
      uint32 len_1;
      pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
      while (n1 < len_1){
        listInit (&home->e_fld.elem [n1]);
        {
          pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->e_fld.elem [n1],
            dfLeaf_1_e_e_Within);
        }
        incStaArrLen (&home->e_fld);
        n1++;
      }
    }
    staArrInit (&home->f_fld);
    {
      uint32 n1 = 0;
      uint32 len_1;
      pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
      while (n1 < len_1){
        pd_sint32_cwn_al_le255_8 (&home->f_fld.elem [n1], 0, 7, 3);
        incStaArrLen (&home->f_fld);
        n1++;
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          home->compmask |= BIT(6);
          listInit (&home->g_fld);
          {
            pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->g_fld,
              dfLeaf_g_Within);
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
