/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Path
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peU (ASNG_F(ASNPERG *asnperg) U *home)
{
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pe_NullType ();
  pp_popPath (ASNG_F(asnperg) 6);
}

static void ef1_i_i_T (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peT (ASNG_F(ASNPERG *asnperg) T *home)
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
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pe_Boolean (home->a_fld);
  pp_popPath (ASNG_F(asnperg) 6);
  if ((home->compmask & BIT(1))){
    pp_pushPath (ASNG_F(asnperg) "b_c_fld");
    pe_Boolean (home->b_c_fld);
    pp_popPath (ASNG_F(asnperg) 8);
  }
  pp_pushPath (ASNG_F(asnperg) "d_fld");
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->d_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->d_fld); n1++){
      pp_pushElem (ASNG_F(asnperg) n1);
      pe_Boolean (home->d_fld.elem [n1]);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
  pp_popPath (ASNG_F(asnperg) 6);
  pp_pushPath (ASNG_F(asnperg) "e_fld");
  pe_lenDet_al_clt64K_eq1 (listLen (&home->e_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->e_fld); a1; a1 = nextListItem (a1)){
      pp_pushElem (ASNG_F(asnperg) listLen (&home->e_fld));
      pe_Boolean (a1->val.bool);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
  pp_popPath (ASNG_F(asnperg) 6);
  pp_pushPath (ASNG_F(asnperg) "f_fld");
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = (home->f_fld.choice > 1);
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      pe_ChoiceIndex_al_ns (home->f_fld.choice - 2);
    }
    switch (home->f_fld.choice){
      case 0:
        {
          pp_pushPath (ASNG_F(asnperg) "i1.g_fld");
          pe_Boolean (home->f_fld.i1.g_fld);
          pp_popPath (ASNG_F(asnperg) 9);
        }
        break;
      case 2:
        {
          pe_BeginOpenType_al (&openctx_1);
          pp_pushPath (ASNG_F(asnperg) "i1.h_fld");
          pe_Boolean (home->f_fld.i1.h_fld);
          pp_popPath (ASNG_F(asnperg) 9);
          pe_EndOpenType_al (&openctx_1);
        }
        break;
    }
  }
  pp_popPath (ASNG_F(asnperg) 6);
  pp_pushPath (ASNG_F(asnperg) "i_fld");
  {
    ASNHOME *iter = firstListItem (&home->i_fld);
    pe_TraverseFragmentedValue (listLen (&home->i_fld), (BYTE_TYPE *)iter,
      ef1_i_i_T);
  }
  pp_popPath (ASNG_F(asnperg) 6);
  pp_pushPath (ASNG_F(asnperg) "j_fld");
  peU (ASNG_F(asnperg) &home->j_fld);
  pp_popPath (ASNG_F(asnperg) 6);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1);
    if ((home->compmask & BIT(9))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pp_pushPath (ASNG_F(asnperg) "k_fld");
  pe_Boolean (home->k_fld);
  pp_popPath (ASNG_F(asnperg) 6);
  pe_EndOpenType_al (&openctx_0);
  if ((home->compmask & BIT(9))){
    pe_BeginOpenType_al (&openctx_0);
    pp_pushPath (ASNG_F(asnperg) "_fld");
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(9)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(9))){
        pp_pushPath (ASNG_F(asnperg) "l_fld");
        pe_Boolean (home->l_fld);
        pp_popPath (ASNG_F(asnperg) 6);
      }
    }
    pp_popPath (ASNG_F(asnperg) 5);
    pe_EndOpenType_al (&openctx_0);
  }
}

void pecT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pp_pushPath (ASNG_F(asnperg) "T");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peT (ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 2);
}

void pecB (ASNG_F(ASNPERG *asnperg) B *home)
{
  pp_pushPath (ASNG_F(asnperg) "B");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_Boolean (*home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 2);
}
