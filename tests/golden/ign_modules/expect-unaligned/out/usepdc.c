/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Uses
 * FILE = usepdc.c
 ****************************************************************/

#ifndef USEPER_EXT
#include "useper.ext"
#endif

void piLocal (ASNG_L(ASNPERG *asnperg))
{
  piInner (ASNG_L(asnperg));
  piTarget (ASNG_L(asnperg));
}

static void ifBoth (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    piBoth (ASNG_L(asnperg));
    n--;
  }
}

void pdUser (ASNG_F(ASNPERG *asnperg) User *home)
{
  piSkipped (ASNG_L(asnperg));
  piInner (ASNG_L(asnperg));
  piEnum (ASNG_L(asnperg));
  pi_sint32_cwn_ua_8 (0, 7, 3);
  piList (ASNG_L(asnperg));
  piTarget (ASNG_L(asnperg));
  pdBoth (ASNG_F(asnperg) &home->g_fld);
  piBoth (ASNG_L(asnperg));
  piRing (ASNG_L(asnperg));
  {
    (void)pd_ConstructFragmentedValue (NULL, ifBoth);
  }
  piLocal (ASNG_L(asnperg));
}

void pdLocal (ASNG_F(ASNPERG *asnperg) Local *home)
{
  pdInner (ASNG_F(asnperg) &home->a_fld);
  pdTarget (ASNG_F(asnperg) &home->b_fld);
}

void piLoop (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      piRing (ASNG_L(asnperg));
    }
  }
}
