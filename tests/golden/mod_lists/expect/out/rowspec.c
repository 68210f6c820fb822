/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Billing_Tables
 * FILE = rowspec.c
 ****************************************************************/

#ifndef ROWSPER_EXT
#include "rowsper.ext"
#endif

void peItem (ASNG_F(ASNPERG *asnperg) Item *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_al_le255 (home->service_fld, 0, 99, 7);
  if ((home->compmask & BIT(1))){
    pe_sint32_cwn_al_eq256 (home->units_fld, 0, 255, 1);
  }
}

void peStaticFixed (ASNG_F(ASNPERG *asnperg) StaticFixed *home)
{
  pe_lenDet_al_clt64K_eq1 (staArrLen (home), 4, 4, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_sint32_cwn_al_eq256 (home->elem [n1], 0, 255, 1);
    }
  }
}

void peStaticCountless (ASNG_F(ASNPERG *asnperg) StaticCountless *home)
{
  pe_lenDet_al_clt64K_eq1 (5, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 5; n1++){
      peItem (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peStaticVariable (ASNG_F(ASNPERG *asnperg) StaticVariable *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 0, 24, 5);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peItem (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peStaticWide (ASNG_F(ASNPERG *asnperg) StaticWide *home)
{
  pe_lenDet_al_clt64K_eq256 (staArrLen (home), 0, 255, 1);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peStaticSetOf (ASNG_F(ASNPERG *asnperg) StaticSetOf *home)
{
  pe_lenDet_al_clt64K_le64K (staArrLen (home), 1, 300, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peItem (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peDynamicVariable (ASNG_F(ASNPERG *asnperg) DynamicVariable *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 40, 6);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      peItem (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peDynamicFixed (ASNG_F(ASNPERG *asnperg) DynamicFixed *home)
{
  pe_lenDet_al_clt64K_eq1 (dynArrLen (home), 6, 6, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_sint32_cwn_al_eq256 (home->elem [n1], 0, 255, 1);
    }
  }
}

void peLinked (ASNG_F(ASNPERG *asnperg) Linked *home)
{
  pe_lenDet_al_clt64K_le64K (listLen (home), 1, 5000, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      peItem (ASNG_F(asnperg) (Item *)a1->val.stru);
    }
  }
}

void peLinkedUnits (ASNG_F(ASNPERG *asnperg) LinkedUnits *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 0, 9, 4);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_sint32_cwn_al_eq256 (a1->val.ui8, 0, 255, 1);
    }
  }
}

static void efItem (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peItem (ASNG_F(asnperg) (Item *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peEndless (ASNG_F(ASNPERG *asnperg) Endless *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efItem);
}

static void efUnit (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_eq256 (a1->val.ui8, 0, 255, 1);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peEndlessUnits (ASNG_F(ASNPERG *asnperg) EndlessUnits *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efUnit);
}

static void efItem_LongArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  Item *iter = (Item *)*p;
  while (n){
    peItem (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peLongArray (ASNG_F(ASNPERG *asnperg) LongArray *home)
{
  Item *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    efItem_LongArray);
}

static void ef1_AtLeastOne (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peAtLeastOne (ASNG_F(ASNPERG *asnperg) AtLeastOne *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_AtLeastOne);
}

void peLimitIgnore (ASNG_F(ASNPERG *asnperg) LimitIgnore *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 100, 7);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peItem (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peLimitError (ASNG_F(ASNPERG *asnperg) LimitError *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 100, 7);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peItem (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

static void efUnit_p_Bill (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_eq256 (a1->val.ui8, 0, 255, 1);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peBill (ASNG_F(ASNPERG *asnperg) Bill *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BITL(1)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BITL(5)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BITL(9)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BITL(10)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BITL(16)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 5);
  }
  peStaticFixed (ASNG_F(asnperg) &home->a_fld);
  if ((home->compmask & BITL(1))){
    peStaticVariable (ASNG_F(asnperg) &home->b_fld);
  }
  peStaticWide (ASNG_F(asnperg) &home->c_fld);
  peStaticSetOf (ASNG_F(asnperg) &home->d_fld);
  peDynamicVariable (ASNG_F(asnperg) &home->e_fld);
  if ((home->compmask & BITL(5))){
    peDynamicFixed (ASNG_F(asnperg) &home->f_fld);
  }
  peLinked (ASNG_F(asnperg) &home->g_fld);
  peLinkedUnits (ASNG_F(asnperg) &home->h_fld);
  peEndless (ASNG_F(asnperg) &home->i_fld);
  if ((home->compmask & BITL(9))){
    peEndlessUnits (ASNG_F(asnperg) &home->j_fld);
  }
  if ((home->compmask & BITL(10))){
    peLongArray (ASNG_F(asnperg) &home->k_fld);
  }
  peAtLeastOne (ASNG_F(asnperg) &home->l_fld);
  peLimitIgnore (ASNG_F(asnperg) &home->m_fld);
  peLimitError (ASNG_F(asnperg) &home->n_fld);
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->o_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->o_fld); n1++){
      peItem (ASNG_F(asnperg) &home->o_fld.elem [n1]);
    }
  }
  {
    ASNHOME *iter = firstListItem (&home->p_fld);
    pe_TraverseFragmentedValue (listLen (&home->p_fld), (BYTE_TYPE *)iter,
      efUnit_p_Bill);
  }
  if ((home->compmask & BITL(16))){
    pe_lenDet_al_clt64K_le255 (staArrLen (&home->q_fld), 0, 3, 2);
    {
      uint32 n1 = 0;
      for (n1 = 0; n1 < staArrLen (&home->q_fld); n1++){
        {
          {
            sint32 optfield_2 = 0;
            if (home->q_fld.elem [n1].compmask & BIT(1)){
              optfield_2 |= BITL(0);
            }
            pe_optField (optfield_2, 1);
          }
          pe_sint32_cwn_al_eq256 (home->q_fld.elem [n1].x_fld, 0, 255, 1);
          if ((home->q_fld.elem [n1].compmask & BIT(1))){
            pe_sint32_cwn_al_eq256 (home->q_fld.elem [n1].y_fld, 0, 255, 1);
          }
        }
      }
    }
  }
  pe_lenDet_al_clt64K_eq1 (2, 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 2; n1++){
      pe_Boolean (home->r_fld.elem [n1]);
    }
  }
  peStaticCountless (ASNG_F(asnperg) &home->s_fld);
}

void pecBill (ASNG_F(ASNPERG *asnperg) Bill *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peBill (ASNG_F(asnperg) home);
  pe_end ();
}
