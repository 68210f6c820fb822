/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = X
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_ua_u (&home->a_fld, 0, MAXLONG, 4);
  }
}
