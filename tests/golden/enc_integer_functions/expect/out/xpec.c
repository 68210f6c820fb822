/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Functions
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_plain (home->a_fld);
  pe_with_2 (home->b_fld,1, &x, 100 % 7);
  pe_spaced (home->c_fld, 5);
  pe_long (home->d_fld);
  pe_pointed (*home->e_fld,3);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_extended (home->f_fld);
  pe_mine (home->g_fld,1);
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->h_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->h_fld); n1++){
      pe_element (home->h_fld.elem [n1]);
    }
  }
  pe_withArgumentsThatAreTooLongForTheLine (home->i_fld,firstArgument, second);
  pe_mine (home->j_fld,1);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
