/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Paths
 * FILE = patpec.c
 ****************************************************************/

#ifndef PATPER_EXT
#include "patper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pp_pushPath (ASNG_F(asnperg) "x_fld");
  pe_Boolean (home->x_fld);
  pp_popPath (ASNG_F(asnperg) 6);
}

void pecStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pp_pushPath (ASNG_F(asnperg) "Struct");
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peStruct (ASNG_F(asnperg) home);
  pe_end ();
  pp_popPath (ASNG_F(asnperg) 7);
}

void peMembers (ASNG_F(ASNPERG *asnperg) Members *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pp_pushPath (ASNG_F(asnperg) "a_fld");
    pe_Boolean (home->a_fld);
    pp_popPath (ASNG_F(asnperg) 6);
  }
  pp_pushPath (ASNG_F(asnperg) "b_fld");
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = (home->b_fld.choice > 1);
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      pe_ChoiceIndex_al_ns (home->b_fld.choice - 2);
    }
    switch (home->b_fld.choice){
      case 0:
        {
          pp_pushPath (ASNG_F(asnperg) "i1.x_fld");
          pe_NullType ();
          pp_popPath (ASNG_F(asnperg) 9);
        }
        break;
      case 2:
        {
          pe_BeginOpenType_al (&openctx_1);
          pp_pushPath (ASNG_F(asnperg) "i1.y_fld");
          peStruct (ASNG_F(asnperg) &home->b_fld.i1.y_fld);
          pp_popPath (ASNG_F(asnperg) 9);
          pe_EndOpenType_al (&openctx_1);
        }
        break;
    }
  }
  pp_popPath (ASNG_F(asnperg) 6);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1);
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pp_pushPath (ASNG_F(asnperg) "c_fld");
  pe_Boolean (home->c_fld);
  pp_popPath (ASNG_F(asnperg) 6);
  pe_EndOpenType_al (&openctx_0);
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_al (&openctx_0);
    pp_pushPath (ASNG_F(asnperg) "_fld");
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(4)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(4))){
        pp_pushPath (ASNG_F(asnperg) "d_fld");
        pe_NullType ();
        pp_popPath (ASNG_F(asnperg) 6);
      }
    }
    pp_popPath (ASNG_F(asnperg) 5);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pp_pushElem (ASNG_F(asnperg) n1);
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pp_pushElem (ASNG_F(asnperg) listLen (home));
      peStruct (ASNG_F(asnperg) (Struct *)a1->val.stru);
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
}

void peLimited (ASNG_F(ASNPERG *asnperg) Limited *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pp_pushElem (ASNG_F(asnperg) n1);
      pe_NullType ();
      pp_popPath (ASNG_F(asnperg) 0);
    }
  }
}

void peDynamic (ASNG_F(ASNPERG *asnperg) Dynamic *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pp_pushElem (ASNG_F(asnperg) n1);
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
      pp_popPath (ASNG_F(asnperg) 0);
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

void peFragments (ASNG_F(ASNPERG *asnperg) Fragments *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efStruct);
}

static void efStruct_FragmentsSkipped (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peFragmentsSkipped (ASNG_F(ASNPERG *asnperg) FragmentsSkipped *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efStruct_FragmentsSkipped);
}

static void ef1_FragmentsOfArray (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  BOOLE *iter = (BOOLE *)*p;
  while (n){
    pe_Boolean (*iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peFragmentsOfArray (ASNG_F(ASNPERG *asnperg) FragmentsOfArray *home)
{
  BOOLE *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    ef1_FragmentsOfArray);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->c_fld){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->b_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pp_pushPath (ASNG_F(asnperg) "a_fld");
  pe_OctetString_al_u (&home->a_fld->val.dyns, 0, MAXLONG, 4);
  freeAsn (&home->a_fld, FREE_STG);
  pp_popPath (ASNG_F(asnperg) 6);
  if (home->b_fld){
    pp_pushPath (ASNG_F(asnperg) "b_fld");
    peStruct (ASNG_F(asnperg) (Struct *)home->b_fld->val.stru);
    freeAsn (&home->b_fld, FREE_STG);
    pp_popPath (ASNG_F(asnperg) 6);
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if (home->c_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if (home->c_fld){
    pe_BeginOpenType_al (&openctx_0);
    pp_pushPath (ASNG_F(asnperg) "c_fld");
    {
      struct t_c_Homes *h1 = (struct t_c_Homes *)home->c_fld->val.stru;
      {
        pp_pushPath (ASNG_F(asnperg) "x_fld");
        pe_OctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
        pp_popPath (ASNG_F(asnperg) 6);
      }
    }
    freeAsn (&home->c_fld, FREE_STG);
    pp_popPath (ASNG_F(asnperg) 6);
    pe_EndOpenType_al (&openctx_0);
  }
}
