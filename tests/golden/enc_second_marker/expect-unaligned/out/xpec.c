/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = SecondMarker
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(2)) || (home->compmask & BIT(4))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->b_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->c_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void pecT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peT (ASNG_F(asnperg) home);
  pe_end ();
}

void peU (ASNG_F(ASNPERG *asnperg) U *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->b_fld);
  pe_EndOpenType_ua (&openctx_0);
}

void pecU (ASNG_F(ASNPERG *asnperg) U *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peU (ASNG_F(asnperg) home);
  pe_end ();
}
