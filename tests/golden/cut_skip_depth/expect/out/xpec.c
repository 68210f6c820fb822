/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutSkipDepth
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif
