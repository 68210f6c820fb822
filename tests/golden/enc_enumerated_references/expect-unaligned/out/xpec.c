/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = References
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peNear (ASNG_F(ASNPERG *asnperg) Near *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (0 <= home->value && home->value <= 1) {
        index = home->value;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}

static void efNear (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peNear (ASNG_F(asnperg) &a1->val.xenum);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peNear (ASNG_F(asnperg) &home->a_fld);
  peNear (ASNG_F(asnperg) &home->b_fld);
  peNear (ASNG_F(asnperg) &home->c_fld);
  peNear (ASNG_F(asnperg) &home->d_fld);
  peFar (ASNG_F(asnperg) &home->e_fld);
  peFar (ASNG_F(asnperg) &home->f_fld);
  peFar (ASNG_F(asnperg) &home->g_fld);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->inline_fld.extended) {
      if (home->inline_fld.value == 1) {
        index = home->inline_fld.value - 1;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->inline_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
  peNear (ASNG_F(asnperg) &home->defined_fld);
  pe_sint32_cwn_ua (home->i_fld, 0, 1, 1);
  peNear (ASNG_F(asnperg) &home->j_fld);
  {
    peNear (ASNG_F(asnperg) &home->k_fld.content_fld);
  }
  {
    pe_sint32_cwn_ua (home->l_fld.content_fld, 0, 1, 1);
  }
  pe_ChoiceIndex_ua_le255 (home->m_fld.choice, 1, 1);
  switch (home->m_fld.choice){
    case 0:
      {
        peNear (ASNG_F(asnperg) &home->m_fld.i1.n_fld);
      }
      break;
    case 1:
      {
        pe_sint32_cwn_ua (home->m_fld.i1.o_fld, 0, 1, 1);
      }
      break;
  }
  {
    ASNHOME *iter = firstListItem (&home->p_fld);
    pe_TraverseFragmentedValue (listLen (&home->p_fld), (BYTE_TYPE *)iter,
      efNear);
  }
  peFarSequence (ASNG_F(asnperg) &home->q_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
