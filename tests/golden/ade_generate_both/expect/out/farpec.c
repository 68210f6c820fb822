/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Far_Module
 * FILE = farpec.c
 ****************************************************************/

#ifndef FARPER_EXT
#include "farper.ext"
#endif

void peFar_Base (ASNG_F(ASNPERG *asnperg) Far_Base *home)
{
  pe_sint32_cwn_al_eq256 (home->a_fld, 0, 255, 1);
}
