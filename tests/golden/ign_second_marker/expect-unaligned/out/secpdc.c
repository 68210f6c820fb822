/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Second
 * FILE = secpdc.c
 ****************************************************************/

#ifndef SECPER_EXT
#include "secper.ext"
#endif

void piSequence (ASNG_L(ASNPERG *asnperg))
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pi_Boolean ();
    if (optfield_0 & BITL(0)){
      pi_NullType ();
    }
    if (extensionBit_0){
      pi_SkipExtendedComponents ();
    }
  }
}

void piChoice (ASNG_L(ASNPERG *asnperg))
{
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          pi_Boolean ();
          break;
        }
      default:
        {
          pd_SkipExtendedComponents (1);
        }
    }
  }
}
