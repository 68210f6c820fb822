/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Uses
 * FILE = usepec.c
 ****************************************************************/

#ifndef USEPER_EXT
#include "useper.ext"
#endif

static void efBoth (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peBoth (ASNG_F(asnperg) (Both *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peUser (ASNG_F(ASNPERG *asnperg) User *home)
{
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
  peBoth (ASNG_F(asnperg) &home->g_fld);
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
}

void peLocal (ASNG_F(ASNPERG *asnperg) Local *home)
{
  peInner (ASNG_F(asnperg) &home->a_fld);
  peTarget (ASNG_F(asnperg) &home->b_fld);
}
