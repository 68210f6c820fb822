/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = EmbeddingX
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  /* T: */
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
#line 1
  pe_Boolean (home->a_fld);
  /* :a */
  if ((home->compmask & BIT(1))){
    pe_Boolean (home->b_fld);
    /* :b */
  }
  /* c: */
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->c_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->c_fld); n1++){
      pe_Boolean (home->c_fld.elem [n1]);
    }
  }
  /* :c */
  /* :T */
}

void pecT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peT (ASNG_F(asnperg) home);
  pe_end ();
}
