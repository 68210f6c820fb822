/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Lists
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peStaFixed (ASNG_F(ASNPERG *asnperg) StaFixed *home)
{
  pe_lenDet_al_clt64K_eq1 (staArrLen (home), 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peStaNoCount (ASNG_F(ASNPERG *asnperg) StaNoCount *home)
{
  pe_lenDet_al_clt64K_eq1 (5, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 5; n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peStaVariable (ASNG_F(ASNPERG *asnperg) StaVariable *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peStaEq256 (ASNG_F(ASNPERG *asnperg) StaEq256 *home)
{
  pe_lenDet_al_clt64K_eq256 (staArrLen (home), 0, 255, 1);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peStaLe64K (ASNG_F(ASNPERG *asnperg) StaLe64K *home)
{
  pe_lenDet_al_clt64K_le64K (staArrLen (home), 1, 1000, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peStaEmpty (ASNG_F(ASNPERG *asnperg) StaEmpty *home)
{
  pe_lenDet_al_clt64K_eq1 (staArrLen (home), 0, 0, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peDynFixed (ASNG_F(ASNPERG *asnperg) DynFixed *home)
{
  pe_lenDet_al_clt64K_eq1 (dynArrLen (home), 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peDynNoCount (ASNG_F(ASNPERG *asnperg) DynNoCount *home)
{
  pe_lenDet_al_clt64K_eq1 (5, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 5; n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peDynVariable (ASNG_F(ASNPERG *asnperg) DynVariable *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peListFixed (ASNG_F(ASNPERG *asnperg) ListFixed *home)
{
  pe_lenDet_al_clt64K_eq1 (listLen (home), 5, 5, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Boolean (a1->val.bool);
    }
  }
}

void peListVariable (ASNG_F(ASNPERG *asnperg) ListVariable *home)
{
  pe_lenDet_al_clt64K_le64K (listLen (home), 0, 65535, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Boolean (a1->val.bool);
    }
  }
}

void peListBare (ASNG_F(ASNPERG *asnperg) ListBare *home)
{
  pe_lenDet_al_clt64K_eq1 (listLen (home), 5, 5, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Boolean (*home->val.bool);
    }
  }
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
      pe_Boolean (home->a_fld.elem [n1]);
    }
  }
  if ((home->compmask & BIT(1))){
    pe_lenDet_al_clt64K_le255 (listLen (&home->b_fld), 1, 10, 4);
    {
      ASNHOME *a1 = NULL;
      for (a1 = firstListItem (&home->b_fld); a1; a1 = nextListItem (a1)){
        pe_Boolean (a1->val.bool);
      }
    }
  }
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->c_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->c_fld); n1++){
      pe_lenDet_al_clt64K_eq1 (staArrLen (&home->c_fld.elem [n1]), 3, 3, 0);
      {
        uint32 n2 = 0;
        for (n2 = 0; n2 < staArrLen (&home->c_fld.elem [n1]); n2++){
          pe_Boolean (home->c_fld.elem [n1].elem [n2]);
        }
      }
    }
  }
  pe_lenDet_al_clt64K_eq1 (listLen (&home->d_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->d_fld); a1; a1 = nextListItem (a1)){
      {
        LIST *h1 = &a1->val.list;
        pe_lenDet_al_clt64K_eq1 (listLen (&a1->val.list), 3, 3, 0);
        {
          ASNHOME *a2 = NULL;
          for (a2 = firstListItem (h1); a2; a2 = nextListItem (a2)){
            pe_Boolean (a2->val.bool);
          }
        }
      }
    }
  }
  switch (home->e_fld.choice){
    case 0:
      {
        pe_lenDet_al_clt64K_eq1 (staArrLen (&home->e_fld.i1.f_fld), 4, 4, 0);
        {
          uint32 n1 = 0;
          for (n1 = 0; n1 < staArrLen (&home->e_fld.i1.f_fld); n1++){
            pe_Boolean (home->e_fld.i1.f_fld.elem [n1]);
          }
        }
      }
      break;
  }
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->g_fld), 7, 7, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->g_fld); n1++){
      peStaFixed (ASNG_F(asnperg) &home->g_fld.elem [n1]);
    }
  }
  peStaFixed (ASNG_F(asnperg) &home->h_fld);
}

void peLimited (ASNG_F(ASNPERG *asnperg) Limited *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
      pe_Boolean (home->a_fld.elem [n1]);
    }
  }
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->b_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->b_fld); n1++){
      pe_Boolean (home->b_fld.elem [n1]);
    }
  }
}

void peExtensible (ASNG_F(ASNPERG *asnperg) Extensible *home)
{
   /*?!?: Invalid encoding follows - extended SET-OF/SEQ-OF constraint.*/
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peExtensibleInline (ASNG_F(ASNPERG *asnperg) ExtensibleInline *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
   /*?!?: Invalid encoding follows - extended SET-OF/SEQ-OF constraint.*/
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
      pe_Boolean (home->a_fld.elem [n1]);
    }
  }
  if ((home->compmask & BIT(1))){
     /*?!?: Invalid encoding follows - extended SET-OF/SEQ-OF constraint.*/
    {
      uint32 n1 = 0;
      for (n1 = 0; n1 < staArrLen (&home->b_fld); n1++){
        pe_Boolean (home->b_fld.elem [n1]);
      }
    }
  }
}

void peComplex (ASNG_F(ASNPERG *asnperg) Complex *home)
{
  ?!? Unsupported Sequence-of type!!!
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peComplexNoSize (ASNG_F(ASNPERG *asnperg) ComplexNoSize *home)
{
  ?!? Unsupported Sequence-of type!!!
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Boolean (a1->val.bool);
    }
  }
}

void peComplexInline (ASNG_F(ASNPERG *asnperg) ComplexInline *home)
{
  ?!? Unsupported Sequence-of type!!!
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
      pe_Boolean (home->a_fld.elem [n1]);
    }
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peStaFixed (ASNG_F(asnperg) &home->a1_fld);
  peStaNoCount (ASNG_F(asnperg) &home->a2_fld);
  peStaVariable (ASNG_F(asnperg) &home->a3_fld);
  peStaEq256 (ASNG_F(asnperg) &home->a4_fld);
  peStaLe64K (ASNG_F(asnperg) &home->a5_fld);
  peStaEmpty (ASNG_F(asnperg) &home->a6_fld);
  peDynFixed (ASNG_F(asnperg) &home->b1_fld);
  peDynNoCount (ASNG_F(asnperg) &home->b2_fld);
  peDynVariable (ASNG_F(asnperg) &home->b3_fld);
  peListFixed (ASNG_F(asnperg) &home->c1_fld);
  peListVariable (ASNG_F(asnperg) &home->c2_fld);
  peListBare (ASNG_F(asnperg) &home->c3_fld);
  peInline (ASNG_F(asnperg) &home->d_fld);
  peLimited (ASNG_F(asnperg) &home->e_fld);
  peExtensible (ASNG_F(asnperg) &home->f_fld);
  peExtensibleInline (ASNG_F(asnperg) &home->g_fld);
  peComplex (ASNG_F(asnperg) &home->h_fld);
  peComplexNoSize (ASNG_F(asnperg) &home->i_fld);
  peComplexInline (ASNG_F(asnperg) &home->j_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
