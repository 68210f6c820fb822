/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = ElemFunctions
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peElem (ASNG_F(ASNPERG *asnperg) Elem *home)
{
  pe_Boolean (home->a_fld);
}

static void efElem (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peElem (ASNG_F(asnperg) (Elem *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peFirst (ASNG_F(ASNPERG *asnperg) First *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efElem);
}

static void efElem_Second (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peElem (ASNG_F(asnperg) (Elem *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peSecond (ASNG_F(ASNPERG *asnperg) Second *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efElem_Second);
}

static void efNumber (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peNumbers (ASNG_F(ASNPERG *asnperg) Numbers *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efNumber);
}

static void efNumber_MoreNumbers (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peMoreNumbers (ASNG_F(ASNPERG *asnperg) MoreNumbers *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efNumber_MoreNumbers);
}

static void efElem_a_Three (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peElem (ASNG_F(asnperg) (Elem *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void efNumber_b_Three (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void efNumber_c_Three (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peThree (ASNG_F(ASNPERG *asnperg) Three *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  {
    ASNHOME *iter = firstListItem (&home->a_fld);
    pe_TraverseFragmentedValue (listLen (&home->a_fld), (BYTE_TYPE *)iter,
      efElem_a_Three);
  }
  {
    ASNHOME *iter = firstListItem (&home->b_fld);
    pe_TraverseFragmentedValue (listLen (&home->b_fld), (BYTE_TYPE *)iter,
      efNumber_b_Three);
  }
  if ((home->compmask & BIT(2))){
    ASNHOME *iter = firstListItem (&home->c_fld);
    pe_TraverseFragmentedValue (listLen (&home->c_fld), (BYTE_TYPE *)iter,
      efNumber_c_Three);
  }
}

static void ef1_b_b_a_Places (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void ef1_e_e_d_c_Places (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void ef1_g_g_f_f_Places (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void ef2_h_h_h_Places (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void ef1_k_k_Places (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void ef1_l_l_Places (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void ef1_m_m_Places (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void pePlaces (ASNG_F(ASNPERG *asnperg) Places *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    {
      ASNHOME *iter = firstListItem (&home->a_fld.b_fld);
      pe_TraverseFragmentedValue (listLen (&home->a_fld.b_fld),
        (BYTE_TYPE *)iter, ef1_b_b_a_Places);
    }
  }
  switch (home->c_fld.d_fld.choice){
    case 0:
      {
        ASNHOME *iter = firstListItem (&home->c_fld.d_fld.i1.e_fld);
        pe_TraverseFragmentedValue (listLen (&home->c_fld.d_fld.i1.e_fld),
          (BYTE_TYPE *)iter, ef1_e_e_d_c_Places);
      }
      break;
  }
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->f_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->f_fld); n1++){
      {
        {
          ASNHOME *iter = firstListItem (&home->f_fld.elem [n1].g_fld);
          pe_TraverseFragmentedValue (listLen (&home->f_fld.elem [n1].g_fld),
            (BYTE_TYPE *)iter, ef1_g_g_f_f_Places);
        }
      }
    }
  }
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->h_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->h_fld); n1++){
      ASNHOME *iter = firstListItem (&home->h_fld.elem [n1]);
      pe_TraverseFragmentedValue (listLen (&home->h_fld.elem [n1]),
        (BYTE_TYPE *)iter, ef2_h_h_h_Places);
    }
  }
  peFirst (ASNG_F(asnperg) &home->i_fld);
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->j_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->j_fld); n1++){
      peFirst (ASNG_F(asnperg) &home->j_fld.elem [n1]);
    }
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    if ((home->compmask & BIT(7))){
      extensionAdditionField_0 |= BITL(1);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(7))){
    pe_BeginOpenType_al (&openctx_0);
    ASNHOME *iter = firstListItem (&home->k_fld);
    pe_TraverseFragmentedValue (listLen (&home->k_fld), (BYTE_TYPE *)iter,
      ef1_k_k_Places);
    pe_EndOpenType_al (&openctx_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(8)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    if ((home->compmask & BIT(8))){
      ASNHOME *iter = firstListItem (&home->l_fld);
      pe_TraverseFragmentedValue (listLen (&home->l_fld), (BYTE_TYPE *)iter,
        ef1_l_l_Places);
    }
    {
      ASNHOME *iter = firstListItem (&home->m_fld);
      pe_TraverseFragmentedValue (listLen (&home->m_fld), (BYTE_TYPE *)iter,
        ef1_m_m_Places);
    }
  }
  pe_EndOpenType_al (&openctx_0);
}

static void ef1_a_a_TopList (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peTopList (ASNG_F(ASNPERG *asnperg) TopList *home)
{
  pe_lenDet_al_clt64K_eq1 (staArrLen (home), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      {
        {
          ASNHOME *iter = firstListItem (&home->elem [n1].a_fld);
          pe_TraverseFragmentedValue (listLen (&home->elem [n1].a_fld),
            (BYTE_TYPE *)iter, ef1_a_a_TopList);
        }
      }
    }
  }
}

static void ef1_a_a_TopChoice (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void ef1_b_b_TopChoice (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peTopChoice (ASNG_F(ASNPERG *asnperg) TopChoice *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        ASNHOME *iter = firstListItem (&home->i1.a_fld);
        pe_TraverseFragmentedValue (listLen (&home->i1.a_fld),
          (BYTE_TYPE *)iter, ef1_a_a_TopChoice);
      }
      break;
    case 1:
      {
        ASNHOME *iter = firstListItem (&home->i1.b_fld);
        pe_TraverseFragmentedValue (listLen (&home->i1.b_fld),
          (BYTE_TYPE *)iter, ef1_b_b_TopChoice);
      }
      break;
  }
}

static void efFirst (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peFirst (ASNG_F(asnperg) &a1->val.list);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peOuter (ASNG_F(ASNPERG *asnperg) Outer *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efFirst);
}

static void ef1_Instance (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peInstance (ASNG_F(ASNPERG *asnperg) Instance *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_Instance);
}

static void ef1_a_a_Instances (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void efElem_b_Instances (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peElem (ASNG_F(asnperg) (Elem *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peInstances (ASNG_F(ASNPERG *asnperg) Instances *home)
{
  {
    ASNHOME *iter = firstListItem (&home->a_fld);
    pe_TraverseFragmentedValue (listLen (&home->a_fld), (BYTE_TYPE *)iter,
      ef1_a_a_Instances);
  }
  {
    ASNHOME *iter = firstListItem (&home->b_fld);
    pe_TraverseFragmentedValue (listLen (&home->b_fld), (BYTE_TYPE *)iter,
      efElem_b_Instances);
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peFirst (ASNG_F(asnperg) &home->a_fld);
  peSecond (ASNG_F(asnperg) &home->b_fld);
  peNumbers (ASNG_F(asnperg) &home->c_fld);
  peMoreNumbers (ASNG_F(asnperg) &home->d_fld);
  peThree (ASNG_F(asnperg) &home->e_fld);
  pePlaces (ASNG_F(asnperg) &home->f_fld);
  peTopList (ASNG_F(asnperg) &home->g_fld);
  peTopChoice (ASNG_F(asnperg) &home->h_fld);
  peOuter (ASNG_F(asnperg) &home->i_fld);
  peFirst (ASNG_F(asnperg) &home->j_fld);
  peInstance (ASNG_F(asnperg) &home->k_fld);
  peInstances (ASNG_F(asnperg) &home->l_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
