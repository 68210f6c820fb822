/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Abc_Def
 * FILE = abcpec.c
 ****************************************************************/

#ifndef ABCPER_EXT
#include "abcper.ext"
#endif

void pecPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pe_sint32_ucwn_al (*home);
  pe_end ();
}
