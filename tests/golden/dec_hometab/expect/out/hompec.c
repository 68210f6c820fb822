/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Hometab
 * FILE = hompec.c
 ****************************************************************/

#ifndef HOMPER_EXT
#include "homper.ext"
#endif
if (hometab [0] == NULL)if (hometab [1] == NULL)if (hometab [3] == NULL)