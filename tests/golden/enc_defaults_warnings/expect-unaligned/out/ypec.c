/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = DefaultsY
 * FILE = ypec.c
 ****************************************************************/

#ifndef YPER_EXT
#include "yper.ext"
#endif

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  if ((home->compmask & BIT(0))){
    pe_NullType ();
  }
  if ((home->compmask & BIT(1))){
    pe_Boolean (home->b_fld);
  }
}

void pecT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peT (ASNG_F(asnperg) home);
  pe_end ();
}

void peS (ASNG_F(ASNPERG *asnperg) S *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_Boolean (home->a_fld);
  if ((home->compmask & BIT(1))){
    pe_sint32_ucwn_ua (home->b_fld);
  }
}

void pecS (ASNG_F(ASNPERG *asnperg) S *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peS (ASNG_F(asnperg) home);
  pe_end ();
}
