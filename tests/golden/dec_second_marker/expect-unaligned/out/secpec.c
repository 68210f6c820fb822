/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Second
 * FILE = secpec.c
 ****************************************************************/

#ifndef SECPER_EXT
#include "secper.ext"
#endif

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(2)) || (home->compmask & BIT(4))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  pe_Boolean (home->a_fld);
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

void peKept (ASNG_F(ASNPERG *asnperg) Kept *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->a_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->b_fld);
  pe_EndOpenType_ua (&openctx_0);
}
