/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Definitions
 * FILE = defpdc.c
 ****************************************************************/

#ifndef DEFPER_EXT
#include "defper.ext"
#endif

void piInner (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void piSkipped (ASNG_L(ASNPERG *asnperg))
{
  piInner (ASNG_L(asnperg));
}

void pdInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  pd_Boolean (&home->a_fld);
}

void pdList (ASNG_F(ASNPERG *asnperg) List *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (n1 < len_0){
      pdInner (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void piList (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 3, 2);
    while (len_0 > 0){
      --len_0;
      piInner (ASNG_L(asnperg));
    }
  }
}

void pdEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

void piEnum (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

void piTarget (ASNG_L(ASNPERG *asnperg))
{
  pi_NullType ();
}

void pdTarget (ASNG_F(ASNPERG *asnperg) Target *home)
{
  pd_NullType ();
}

void pdBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  pd_Boolean (&home->a_fld);
}

void piBoth (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdRing (ASNG_F(ASNPERG *asnperg) Ring *home)
{
  piLoop (ASNG_L(asnperg));
  pdBoth (ASNG_F(asnperg) &home->b_fld);
}

void piRing (ASNG_L(ASNPERG *asnperg))
{
  piLoop (ASNG_L(asnperg));
  piBoth (ASNG_L(asnperg));
}
