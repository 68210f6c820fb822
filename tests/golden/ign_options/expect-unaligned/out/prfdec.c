/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Prefixes
 * FILE = prfdec.c
 ****************************************************************/

#ifndef PRFCOD_EXT
#include "prfcod.ext"
#endif

void piEnum (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

void piStruct (ASNG_L(ASNPERG *asnperg))
{
  piEnum (ASNG_L(asnperg));
}

void pd_uaEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

void pd_uaStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pd_uaEnum (ASNG_F(asnperg) &home->a_fld);
}

static void dfStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_STRU, sizeof (SKIPPED));
    piStruct (ASNG_L(asnperg));
    incListLen (home);
    n--;
  }
}

void pd_uaUser (ASNG_F(ASNPERG *asnperg) User *home)
{
  piStruct (ASNG_L(asnperg));
  piEnum (ASNG_L(asnperg));
  pd_uaStruct (ASNG_F(asnperg) &home->c_fld);
  listInit (&home->d_fld);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->d_fld, dfStruct);
  }
}

void piEntry (ASNG_L(ASNPERG *asnperg))
{
  piEnum (ASNG_L(asnperg));
}

void decEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  piEntry (ASNG_L(asnperg));
  pd_end ();
}
