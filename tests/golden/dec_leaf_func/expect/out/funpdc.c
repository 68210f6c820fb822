/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Functions
 * FILE = funpdc.c
 ****************************************************************/

#ifndef FUNPER_EXT
#include "funper.ext"
#endif

void pdValues (ASNG_F(ASNPERG *asnperg) Values *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_plain (&home->a_fld);
    pd_given (&home->b_fld, 3, NULL);
     /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
    pd_extended (&home->c_fld);
    pd_own (&home->d_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(4);
      pd_percent (&home->e_fld,%d %s);
    }
  }
}

void pdIgnored (ASNG_F(ASNPERG *asnperg) Ignored *home)
{
  pd_plain (&home->a_fld);
  pd_given (&home->b_fld, 3, NULL);
   /* ?!?: Invalid decoding follows - extended INTEGER constraint. */ 
  pd_extended (&home->c_fld);
  pd_own (&home->d_fld);
}

void piIgnored (ASNG_L(ASNPERG *asnperg))
{
  pi_plain ();
  pi_given ( 3, NULL);
  pi_extended ();
  pi_own ();
}
