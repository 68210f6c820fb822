/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Middle_Module
 * FILE = middlpec.c
 ****************************************************************/

#ifndef MIDDLPEC_EXT
#include "middlpec.ext"
#endif

void peWhole (ASNG_F(ASNPERG *asnperg) Whole *home)
{
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.flag_fld);
      }
      break;
  }
}

void peShared (ASNG_F(ASNPERG *asnperg) Shared *home)
{
  pe_Boolean (home->flag_fld);
}

static void efShared (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peShared (ASNG_F(asnperg) (Shared *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peCommon_Type (ASNG_F(ASNPERG *asnperg) Common_Type *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter, efShared);
}
