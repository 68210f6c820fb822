/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Long_Names
 * FILE = longpdc.c
 ****************************************************************/

#ifndef LONGPER_EXT
#include "longper.ext"
#endif

void pdA_name_that_leaves_no_room_for_t (ASNG_F(ASNPERG *asnperg) 
  A_name_that_leaves_no_room_for_t *home)
{
  pd_NullType ();
}

void pdShort (ASNG_F(ASNPERG *asnperg) Short *home)
{
  pd_NullType ();
}
