/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Abc_Def
 * FILE = abcpdc.c
 ****************************************************************/

#ifndef ABCPER_EXT
#include "abcper.ext"
#endif

void pdcPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_sint32_ucwn_al (home);
  pd_end ();
}
