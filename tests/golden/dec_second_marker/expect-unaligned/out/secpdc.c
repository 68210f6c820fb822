/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Second
 * FILE = secpdc.c
 ****************************************************************/

#ifndef SECPER_EXT
#include "secper.ext"
#endif

void pdT (ASNG_F(ASNPERG *asnperg) T *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_Boolean (&home->a_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(2);
        pd_Boolean (&home->b_fld);
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(4);
        pd_Boolean (&home->c_fld);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdKept (ASNG_F(ASNPERG *asnperg) Kept *home)
{
  initExtensionmarker (&home->extensionmarker);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_Boolean (&home->a_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        pd_Boolean (&home->b_fld);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SaveExtendedComponents (&home->extensionmarker,
        extensionAdditionCount_0);
    }
  }
}
