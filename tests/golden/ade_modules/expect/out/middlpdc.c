/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Middle_Module
 * FILE = middlpdc.c
 ****************************************************************/

#ifndef MIDDLPER_EXT
#include "middlper.ext"
#endif

void pdWhole (ASNG_F(ASNPERG *asnperg) Whole *home)
{
  home->choice = 0;
  pd_Boolean (&home->i1.flag_fld);
}

void pdShared (ASNG_F(ASNPERG *asnperg) Shared *home)
{
  pd_Boolean (&home->flag_fld);
}

static void dfShared (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (Shared));
    pdShared (ASNG_F(asnperg) (Shared *)a1->val.stru);
    incListLen (home);
    n--;
  }
}

void pdCommon_Type (ASNG_F(ASNPERG *asnperg) Common_Type *home)
{
  listInit (home);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)home, dfShared);
  }
}
