/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Abc_Def
 * FILE = abcper.c
 ****************************************************************/

#ifndef ABCPEC_EXT
#include "abcpec.ext"
#endif

#ifndef ABCPDC_EXT
#include "abcpdc.ext"
#endif

void pecPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_sint32_ucwn_ua (*home);
  pe_end ();
}

void pdcPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pd_sint32_ucwn_ua (home);
  pd_end ();
}
