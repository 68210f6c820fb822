/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Extended
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_NullType ();
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_cwn_al_le255 (home->a_fld, 0, 7, 3);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_cwn_al_le255 (home->b_fld, 0, 7, 3);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_cwn_al_eq1 (home->c_fld, 5);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_scwn_al (home->d_fld, 0);
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
   /*?!?: Invalid encoding follows - extended BIT STRING constraint.*/
   /*?!?: Invalid encoding follows - extended BIT STRING constraint.*/
   /*?!?: Invalid encoding follows - extended OCTET STRING constraint.*/
   /*?!?: Invalid encoding follows - extended OCTET STRING constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
   /*?!?: Invalid encoding follows - extended string constraint.*/
   /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
  pe_sint32_cwn_al_le255 (home->p_fld, 0, 7, 3);
   /*?!?: Invalid encoding follows - extended OCTET STRING constraint.*/
  {
     /*?!?: Invalid encoding follows - extended INTEGER constraint.*/
    pe_sint32_cwn_al_le255 (home->r_fld.s_fld, 0, 7, 3);
     /*?!?: Invalid encoding follows - extended OCTET STRING constraint.*/
  }
  pe_NullType ();
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
