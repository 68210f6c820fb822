/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Fragments
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

static void ef1_NoSize (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peNoSize (ASNG_F(ASNPERG *asnperg) NoSize *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_NoSize);
}

static void ef1_FixedLong (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peFixedLong (ASNG_F(ASNPERG *asnperg) FixedLong *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_FixedLong);
}

static void ef1_UpperLong (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peUpperLong (ASNG_F(ASNPERG *asnperg) UpperLong *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_UpperLong);
}

static void ef1_NoUpper (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peNoUpper (ASNG_F(ASNPERG *asnperg) NoUpper *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_NoUpper);
}

static void ef1_Sta (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  BOOLE *iter = (BOOLE *)*p;
  while (n){
    pe_Boolean (*iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peSta (ASNG_F(ASNPERG *asnperg) Sta *home)
{
  BOOLE *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter, ef1_Sta);
}

static void ef1_StaNoCount (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  BOOLE *iter = (BOOLE *)*p;
  while (n){
    pe_Boolean (*iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peStaNoCount (ASNG_F(ASNPERG *asnperg) StaNoCount *home)
{
  BOOLE *iter = home->elem;
  pe_TraverseFragmentedValue (65536, (BYTE_TYPE *)iter, ef1_StaNoCount);
}

static void ef1_Dyn (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  BOOLE *iter = (BOOLE *)*p;
  while (n){
    pe_Boolean (*iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peDyn (ASNG_F(ASNPERG *asnperg) Dyn *home)
{
  BOOLE *iter = home->elem;
  pe_TraverseFragmentedValue (dynArrLen (home), (BYTE_TYPE *)iter, ef1_Dyn);
}

static void ef1_Integers (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_ucwn_ua (a1->val.i32);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peIntegers (ASNG_F(ASNPERG *asnperg) Integers *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_Integers);
}

static void ef1_Strings (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_OctetString_ua_u (&a1->val.dyns, 0, MAXLONG, 4);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peStrings (ASNG_F(ASNPERG *asnperg) Strings *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_Strings);
}

static void ef1_Enums (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    {
      sint32 index;
      BOOLE extBit = FALSE;
      if (!a1->val.xenum.extended) {
        if (a1->val.xenum.value == 0) {
          index = a1->val.xenum.value;
        }
        else {
          extBit = TRUE;
          if (a1->val.xenum.value == 1) {
            index = a1->val.xenum.value - 1;
          }
          else {
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
        }
      }
      else {
        extBit = TRUE;
        index = a1->val.xenum.value;
      }
      pe_extensionBit (extBit);
      if (!extBit) {
        pe_sint32_cwn_ua (index, 0, 0, 0);
      }
      else {
        pe_normSmallNonNegWholeNumUa (index);
      }
    }
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peEnums (ASNG_F(ASNPERG *asnperg) Enums *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_Enums);
}

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

void peDefined (ASNG_F(ASNPERG *asnperg) Defined *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efElem);
}

static void ef1_Skipped (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peSkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_Skipped);
}

static void ef1_StaIntegers (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  sint32 *iter = (sint32 *)*p;
  while (n){
    pe_sint32_ucwn_ua (*iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peStaIntegers (ASNG_F(ASNPERG *asnperg) StaIntegers *home)
{
  sint32 *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    ef1_StaIntegers);
}

static void ef1_StaStrings (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  DYNSTR *iter = (DYNSTR *)*p;
  while (n){
    pe_OctetString_ua_u (iter, 0, MAXLONG, 4);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peStaStrings (ASNG_F(ASNPERG *asnperg) StaStrings *home)
{
  DYNSTR *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    ef1_StaStrings);
}

static void ef1_StaEnums (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  uint8 *iter = (uint8 *)*p;
  while (n){
    pe_sint32_cwn_ua (*iter, 0, 1, 1);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peStaEnums (ASNG_F(ASNPERG *asnperg) StaEnums *home)
{
  uint8 *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    ef1_StaEnums);
}

static void efElem_StaDefined (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  Elem *iter = (Elem *)*p;
  while (n){
    peElem (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peStaDefined (ASNG_F(ASNPERG *asnperg) StaDefined *home)
{
  Elem *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    efElem_StaDefined);
}

static void efNoSize (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  NoSize *iter = (NoSize *)*p;
  while (n){
    peNoSize (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peStaLists (ASNG_F(ASNPERG *asnperg) StaLists *home)
{
  NoSize *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter, efNoSize);
}

static void ef1_a_a_Inline (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void ef1_b_b_Inline (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_NullType ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

static void ef1_d_d_c_Inline (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_ucwn_ua (a1->val.i32);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  {
    ASNHOME *iter = firstListItem (&home->a_fld);
    pe_TraverseFragmentedValue (listLen (&home->a_fld), (BYTE_TYPE *)iter,
      ef1_a_a_Inline);
  }
  if ((home->compmask & BIT(1))){
    ASNHOME *iter = firstListItem (&home->b_fld);
    pe_TraverseFragmentedValue (listLen (&home->b_fld), (BYTE_TYPE *)iter,
      ef1_b_b_Inline);
  }
  switch (home->c_fld.choice){
    case 0:
      {
        ASNHOME *iter = firstListItem (&home->c_fld.i1.d_fld);
        pe_TraverseFragmentedValue (listLen (&home->c_fld.i1.d_fld),
          (BYTE_TYPE *)iter, ef1_d_d_c_Inline);
      }
      break;
  }
  peNoSize (ASNG_F(asnperg) &home->e_fld);
  if ((home->compmask & BIT(4))){
    peNoSize (ASNG_F(asnperg) &home->f_fld);
  }
}

void peIgnores (ASNG_F(ASNPERG *asnperg) Ignores *home)
{
  ?!?: Invalid encoding follows:
   ?!?: Encoding of unconstrained SEQUENCE OF's are
  ?!?: not yet supported with SIZE-LIMIT option.
}

void peRefuses (ASNG_F(ASNPERG *asnperg) Refuses *home)
{
  ?!?: Invalid encoding follows:
   ?!?: Encoding of unconstrained SEQUENCE OF's are
  ?!?: not yet supported with SIZE-LIMIT option.
}

void peLimitInline (ASNG_F(ASNPERG *asnperg) LimitInline *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  {
    ?!?: Invalid encoding follows:
     ?!?: Encoding of unconstrained SEQUENCE OF's are
    ?!?: not yet supported with SIZE-LIMIT option.
  }
  if ((home->compmask & BIT(1))){
    ?!?: Invalid encoding follows:
     ?!?: Encoding of unconstrained SEQUENCE OF's are
    ?!?: not yet supported with SIZE-LIMIT option.
  }
}

static void ef1_Extensible (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peExtensible (ASNG_F(ASNPERG *asnperg) Extensible *home)
{
   /*?!?: Invalid encoding follows - extended SET-OF/SEQ-OF constraint.*/
}

static void ef1_a_a_ExtensibleInline (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peExtensibleInline (ASNG_F(ASNPERG *asnperg) ExtensibleInline *home)
{
   /*?!?: Invalid encoding follows - extended SET-OF/SEQ-OF constraint.*/
}

void peStructures (ASNG_F(ASNPERG *asnperg) Structures *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    ef1_Structures);
}

void peLists (ASNG_F(ASNPERG *asnperg) Lists *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_Lists);
}

void peLimitStructures (ASNG_F(ASNPERG *asnperg) LimitStructures *home)
{
  ?!?: Invalid encoding follows:
   ?!?: Encoding of unconstrained SEQUENCE OF's are
  ?!?: not yet supported with SIZE-LIMIT option.
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peNoSize (ASNG_F(asnperg) &home->a1_fld);
  peFixedLong (ASNG_F(asnperg) &home->a2_fld);
  peUpperLong (ASNG_F(asnperg) &home->a3_fld);
  peNoUpper (ASNG_F(asnperg) &home->a4_fld);
  peSta (ASNG_F(asnperg) &home->b1_fld);
  peStaNoCount (ASNG_F(asnperg) &home->b2_fld);
  peDyn (ASNG_F(asnperg) &home->b3_fld);
  peIntegers (ASNG_F(asnperg) &home->c1_fld);
  peStrings (ASNG_F(asnperg) &home->c2_fld);
  peEnums (ASNG_F(asnperg) &home->c3_fld);
  peDefined (ASNG_F(asnperg) &home->c4_fld);
  peSkipped (ASNG_F(asnperg) &home->c5_fld);
  peStaIntegers (ASNG_F(asnperg) &home->c6_fld);
  peStaStrings (ASNG_F(asnperg) &home->c7_fld);
  peStaEnums (ASNG_F(asnperg) &home->c8_fld);
  peStaDefined (ASNG_F(asnperg) &home->c9_fld);
  peStaLists (ASNG_F(asnperg) &home->c10_fld);
  peInline (ASNG_F(asnperg) &home->d_fld);
  peIgnores (ASNG_F(asnperg) &home->e1_fld);
  peRefuses (ASNG_F(asnperg) &home->e2_fld);
  pe_Skip ();
  peLimitInline (ASNG_F(asnperg) &home->e3_fld);
  peExtensible (ASNG_F(asnperg) &home->f1_fld);
  peExtensibleInline (ASNG_F(asnperg) &home->f2_fld);
  peStructures (ASNG_F(asnperg) &home->g1_fld);
  peLists (ASNG_F(asnperg) &home->g2_fld);
  peLimitStructures (ASNG_F(asnperg) &home->g3_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
