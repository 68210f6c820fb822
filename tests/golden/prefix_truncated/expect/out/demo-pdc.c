/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Demo_Protocol
 * FILE = demo-pdc.c
 ****************************************************************/

#ifndef DEMO_PER_EXT
#include "demo-per.ext"
#endif

void pdPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_ucwn_al (&home->a_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_Boolean (&home->b_fld);
    }
  }
}

void pdcPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdPDU (ASNG_F(asnperg) home);
  pd_end ();
}
