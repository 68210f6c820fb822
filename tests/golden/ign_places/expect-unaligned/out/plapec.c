/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Places
 * FILE = plapec.c
 ****************************************************************/

#ifndef PLAPER_EXT
#include "plaper.ext"
#endif

void peEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  pe_sint32_cwn_ua (*home, 0, 1, 1);
}

static void ef1_fragments_fragments_Components (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peComponents (ASNG_F(ASNPERG *asnperg) Components *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BITL(1)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BITL(10)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BITL(15)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 3);
  }
  pe_Skip ();
  if ((home->compmask & BITL(1))){
    pe_Skip ();
  }
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  if ((home->compmask & BITL(10))){
    pe_Skip ();
  }
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  if ((home->compmask & BITL(15))){
    pe_Skip ();
  }
  pe_Skip ();
  pe_Skip ();
}

static void ef1_fragments_fragments_Refused (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_Skip ();
  if ((home->compmask & BIT(1))){
    pe_Skip ();
  }
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
}

void peAdditions (ASNG_F(ASNPERG *asnperg) Additions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(1)) || (home->compmask & BIT(2)) || 
    (home->compmask & BIT(3)) || (home->compmask & BIT(4)) || 
    (home->compmask & BIT(5))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(1))){
      extensionAdditionField_0 |= BITL(4);
    }
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(5))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (5, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(1))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Skip ();
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Skip ();
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(3))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Skip ();
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Skip ();
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(5))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Skip ();
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Skip ();
    }
  }
}

static void efEnum (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peFragments (ASNG_F(ASNPERG *asnperg) Fragments *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efEnum);
}

static void ef1_ArrayFragments (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  SKIPPED *iter = (SKIPPED *)*p;
  while (n){
    pe_Skip ();
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peArrayFragments (ASNG_F(ASNPERG *asnperg) ArrayFragments *home)
{
  SKIPPED *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    ef1_ArrayFragments);
}

static void efEnum_RefusedFragments (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peRefusedFragments (ASNG_F(ASNPERG *asnperg) RefusedFragments *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efEnum_RefusedFragments);
}

void peEnums (ASNG_F(ASNPERG *asnperg) Enums *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_Skip ();
  if ((home->compmask & BIT(1))){
    pe_Skip ();
  }
  pe_Skip ();
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->array_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->array_fld); n1++){
      pe_Skip ();
    }
  }
  pe_Skip ();
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->b_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_Skip ();
  if (home->b_fld){
    pe_Skip ();
  }
}

void pePointers (ASNG_F(ASNPERG *asnperg) Pointers *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_Skip ();
  if ((home->compmask & BIT(1))){
    pe_Skip ();
  }
}

static void ef1_ArrayEnums (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  SKIPPED *iter = (SKIPPED *)*p;
  while (n){
    pe_Skip ();
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peArrayEnums (ASNG_F(ASNPERG *asnperg) ArrayEnums *home)
{
  SKIPPED *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    ef1_ArrayEnums);
}
