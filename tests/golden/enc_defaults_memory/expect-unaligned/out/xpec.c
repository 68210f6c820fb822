/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = DefaultsMemory
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pePlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      if (home->a_fld != 3){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    if (home->a_fld != 3){
      pe_sint32_cwn_ua (home->a_fld, 0, 7, 3);
    }
  }
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      if (home->a_fld->val.ui8 != 3){
        optfield_0 |= BITL(2);
      }
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(2)){
      if (home->c_fld != TRUE){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 3);
  }
  if ((home->compmask & BIT(0))){
    if (home->a_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (home->a_fld->val.ui8, 0, 7, 3);
      freeAsn (&home->a_fld, FREE_STG);
    }
    freeAsn (&home->a_fld, FREE_STG);
  }
  if ((home->compmask & BIT(1))){
    pe_Boolean (home->b_fld->val.bool);
    freeAsn (&home->b_fld, FREE_STG);
  }
  if ((home->compmask & BIT(2))){
    if (home->c_fld != TRUE){
      pe_Boolean (home->c_fld);
    }
  }
}

void peHomeComps (ASNG_F(ASNPERG *asnperg) HomeComps *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->a_fld){
      if (home->a_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->b_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  if (home->a_fld){
    if (home->a_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (home->a_fld->val.ui8, 0, 7, 3);
      freeAsn (&home->a_fld, FREE_STG);
    }
    freeAsn (&home->a_fld, FREE_STG);
  }
  if (home->b_fld){
    pe_Boolean (home->b_fld->val.bool);
    freeAsn (&home->b_fld, FREE_STG);
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pePlain (ASNG_F(asnperg) &home->a_fld);
  peHomes (ASNG_F(asnperg) &home->b_fld);
  peHomeComps (ASNG_F(asnperg) &home->c_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
