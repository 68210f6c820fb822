/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Abc_Def
 * FILE = abcdefghpec.c
 ****************************************************************/

#ifndef ABCDEFGHPER_EXT
#include "abcdefghper.ext"
#endif

void pecPDU (ASNG_F(ASNPERG *asnperg) PDU *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_sint32_ucwn_ua (*home);
  pe_end ();
}
