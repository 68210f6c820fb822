/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Functions
 * FILE = funpec.c
 ****************************************************************/

#ifndef FUNPER_EXT
#include "funper.ext"
#endif

void peValues (ASNG_F(ASNPERG *asnperg) Values *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_plain (home->a_fld);
  pe_given (home->b_fld, 3, NULL);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_extended (home->c_fld);
  pe_own (home->d_fld);
  if ((home->compmask & BIT(4))){
    pe_percent (home->e_fld,%d %s);
  }
}

void peIgnored (ASNG_F(ASNPERG *asnperg) Ignored *home)
{
  pe_plain (home->a_fld);
  pe_given (home->b_fld, 3, NULL);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_extended (home->c_fld);
  pe_own (home->d_fld);
}
