/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = EmbeddingY
 * FILE = ypdc.c
 ****************************************************************/

#ifndef YPER_EXT
#include "yper.ext"
#endif

void pdT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pd_Boolean (&home->a_fld);
}

void pdcT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdT (ASNG_F(asnperg) home);
  pd_end ();
}
