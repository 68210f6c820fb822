/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Examples
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(3))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_al_le255 (home->a_fld, 0, 7, 3);
  if ((home->compmask & BIT(1))){
    pe_Boolean (home->b_fld);
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(3))){
    pe_BeginOpenType_al (&openctx_0);
    pe_sint32_cwn_al_le255 (home->c_fld, 0, 7, 3);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peL (ASNG_F(ASNPERG *asnperg) L *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 1, 10, 4);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    }
  }
}

static void ef1_U (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peU (ASNG_F(ASNPERG *asnperg) U *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, ef1_U);
}

void peC (ASNG_F(ASNPERG *asnperg) C *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_al_ns (home->choice - 3);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
    case 3:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.c_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peM (ASNG_F(ASNPERG *asnperg) M *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->b_fld);
  pe_EndOpenType_al (&openctx_0);
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peT (ASNG_F(asnperg) &home->t_fld);
  peL (ASNG_F(asnperg) &home->l_fld);
  peU (ASNG_F(asnperg) &home->u_fld);
  peC (ASNG_F(asnperg) &home->c_fld);
  peM (ASNG_F(asnperg) &home->m_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
