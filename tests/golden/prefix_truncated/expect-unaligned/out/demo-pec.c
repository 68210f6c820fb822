/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Demo_Protocol
 * FILE = demo-pec.c
 ****************************************************************/

#ifndef DEMO_PER_EXT
#include "demo-per.ext"
#endif

void pePDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_ucwn_ua (home->a_fld);
  if ((home->compmask & BIT(1))){
    pe_Boolean (home->b_fld);
  }
}

void pecPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pePDU (ASNG_F(asnperg) home);
  pe_end ();
}
