/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Definitions
 * FILE = defpec.c
 ****************************************************************/

#ifndef DEFPER_EXT
#include "defper.ext"
#endif

void peInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  pe_Boolean (home->a_fld);
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peInner (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peTarget (ASNG_F(ASNPERG *asnperg) Target *home)
{
  pe_NullType ();
}

void peBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  pe_Boolean (home->a_fld);
}

void peRing (ASNG_F(ASNPERG *asnperg) Ring *home)
{
  pe_Skip ();
  peBoth (ASNG_F(asnperg) &home->b_fld);
}
