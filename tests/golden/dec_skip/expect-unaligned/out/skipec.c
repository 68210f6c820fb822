/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Skips
 * FILE = skipec.c
 ****************************************************************/

#ifndef SKIPER_EXT
#include "skiper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_Boolean (home->x_fld);
}

void peIgnored (ASNG_F(ASNPERG *asnperg) Ignored *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(3)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  if ((home->compmask & BIT(3))){
    pe_Skip ();
  }
  if ((home->compmask & BIT(4))){
    pe_Skip ();
  }
}

void peRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(3)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  if ((home->compmask & BIT(3))){
    pe_Skip ();
  }
  if ((home->compmask & BIT(4))){
    pe_Skip ();
  }
}

void peIgnoredAdditions (ASNG_F(ASNPERG *asnperg) IgnoredAdditions *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(4)|BITL(1)|BITL(0);
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(2);
    }
    pe_extensionAddition (5, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Skip ();
  pe_EndOpenType_ua (&openctx_0);
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
  pe_BeginOpenType_ua (&openctx_0);
  pe_Skip ();
  pe_EndOpenType_ua (&openctx_0);
  pe_BeginOpenType_ua (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(6)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pe_Boolean (home->d_fld);
    if ((home->compmask & BIT(6))){
      pe_Skip ();
    }
    pe_NullType ();
  }
  pe_EndOpenType_ua (&openctx_0);
}

void peRefusedAdditions (ASNG_F(ASNPERG *asnperg) RefusedAdditions *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(3)|BITL(0);
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(1);
    }
    pe_extensionAddition (4, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Skip ();
  pe_EndOpenType_ua (&openctx_0);
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
  pe_BeginOpenType_ua (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(5)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pe_Boolean (home->d_fld);
    if ((home->compmask & BIT(5))){
      pe_Skip ();
    }
    pe_NullType ();
  }
  pe_EndOpenType_ua (&openctx_0);
}

void peArrayIgnored (ASNG_F(ASNPERG *asnperg) ArrayIgnored *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peArrayRefused (ASNG_F(ASNPERG *asnperg) ArrayRefused *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peListIgnored (ASNG_F(ASNPERG *asnperg) ListIgnored *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Skip ();
    }
  }
}

void peListRefused (ASNG_F(ASNPERG *asnperg) ListRefused *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Skip ();
    }
  }
}

static void efStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peFragmentsIgnored (ASNG_F(ASNPERG *asnperg) FragmentsIgnored *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efStruct);
}

static void ef1_FragmentsIgnoredLeaf (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peFragmentsIgnoredLeaf (ASNG_F(ASNPERG *asnperg) 
  FragmentsIgnoredLeaf *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_FragmentsIgnoredLeaf);
}

static void ef1_FragmentsIgnoredArray (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peFragmentsIgnoredArray (ASNG_F(ASNPERG *asnperg) 
  FragmentsIgnoredArray *home)
{
  SKIPPED *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    ef1_FragmentsIgnoredArray);
}

static void efStruct_FragmentsRefused (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peFragmentsRefused (ASNG_F(ASNPERG *asnperg) FragmentsRefused *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efStruct_FragmentsRefused);
}

static void ef1_FragmentsIgnoredInline (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peFragmentsIgnoredInline (ASNG_F(ASNPERG *asnperg) 
  FragmentsIgnoredInline *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_FragmentsIgnoredInline);
}

static void ef1_FragmentsRefusedInline (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peFragmentsRefusedInline (ASNG_F(ASNPERG *asnperg) 
  FragmentsRefusedInline *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_FragmentsRefusedInline);
}

static void efStruct_a_ListIgnored2 (ASNG_F(ASNPERG *asnperg) sint32 n,
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

static void ef1_b_b_ListIgnored2 (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peListIgnored2 (ASNG_F(ASNPERG *asnperg) ListIgnored2 *home)
{
  pe_Skip ();
  pe_Skip ();
}

void peChoiceIgnored (ASNG_F(ASNPERG *asnperg) ChoiceIgnored *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_ua_ns (home->choice - 3);
  }
  switch (home->choice){
    case 0:
      {
        pe_Skip ();
      }
      break;
    case 1:
      {
        pe_Skip ();
      }
      break;
    case 3:
      {
        pe_BeginOpenType_ua (&openctx_0);
        pe_Skip ();
        pe_EndOpenType_ua (&openctx_0);
      }
      break;
    case 4:
      {
        pe_BeginOpenType_ua (&openctx_0);
        pe_Skip ();
        pe_EndOpenType_ua (&openctx_0);
      }
      break;
  }
}

void peChoiceRefused (ASNG_F(ASNPERG *asnperg) ChoiceRefused *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_ua_ns (home->choice - 3);
  }
  switch (home->choice){
    case 0:
      {
        pe_Skip ();
      }
      break;
    case 1:
      {
        pe_Skip ();
      }
      break;
    case 3:
      {
        pe_BeginOpenType_ua (&openctx_0);
        pe_Skip ();
        pe_EndOpenType_ua (&openctx_0);
      }
      break;
  }
}
