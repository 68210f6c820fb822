/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Sequences
 * FILE = seqpdc.c
 ****************************************************************/

#ifndef SEQPER_EXT
#include "seqper.ext"
#endif

void piS (ASNG_L(ASNPERG *asnperg))
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pi_sint32_cwn_ua (0, 7, 3);
    if (optfield_0 & BITL(0)){
      pi_Boolean ();
    }
    if (extensionBit_0){
      pi_SkipExtendedComponents ();
    }
  }
}

void piMandatory (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
  pi_NullType ();
}

void piOptional (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      pi_Boolean ();
    }
    pi_Boolean ();
    if (optfield_0 & BITL(0)){
      pi_sint32_cwn_ua_8 (0, 7, 3);
    }
  }
}

void piEmpty (ASNG_L(ASNPERG *asnperg))
{
}

void piEmptyExtensible (ASNG_L(ASNPERG *asnperg))
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      pi_SkipExtendedComponents ();
    }
  }
}

void piAdditions (ASNG_L(ASNPERG *asnperg))
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pi_Boolean ();
    if (extensionBit_0){
      pi_SkipExtendedComponents ();
    }
  }
}

void piTwoMarkers (ASNG_L(ASNPERG *asnperg))
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

void piAllMandatory (ASNG_L(ASNPERG *asnperg))
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pi_Boolean ();
    if (extensionBit_0){
      pi_SkipExtendedComponents ();
    }
  }
}

void piNested (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    {
      sint32 optfield_1;
      optfield_1 = pd_getBits (1);
      if (optfield_1 & BITL(0)){
        pi_Boolean ();
      }
      {
        BOOLE extensionBit_2 = pd_extensionBit ();
        sint32 optfield_2;
        optfield_2 = pd_getBits (1);
        if (optfield_2 & BITL(0)){
          pi_NullType ();
        }
        if (extensionBit_2){
          pi_SkipExtendedComponents ();
        }
      }
    }
    if (optfield_0 & BITL(1)){
      {
        BOOLE extensionBit_1 = pd_extensionBit ();
        pi_Boolean ();
        if (extensionBit_1){
          pi_SkipExtendedComponents ();
        }
      }
    }
    {
      sint8 choice_1;
      choice_1 = pd_ChoiceIndex_ua_le255 (1, 1);
      switch (choice_1){
        case 0:
          {
            pi_Boolean ();
            break;
          }
        case 1:
          {
            pi_NullType ();
            break;
          }
      }
    }
    piS (ASNG_L(asnperg));
    if (optfield_0 & BITL(0)){
      piMandatory (ASNG_L(asnperg));
    }
  }
}

void piSet (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
  {
    pi_NullType ();
  }
  {
    piS (ASNG_L(asnperg));
  }
}

void piSetExtensible (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void piTwo (ASNG_L(ASNPERG *asnperg))
{
  {
    sint8 choice_0;
    choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    switch (choice_0){
      case 0:
        {
          pi_Boolean ();
          break;
        }
      case 1:
        {
          piS (ASNG_L(asnperg));
          break;
        }
    }
  }
}

void piOne (ASNG_L(ASNPERG *asnperg))
{
  {
    {
      pi_Boolean ();
    }
  }
}

void piMarked (ASNG_L(ASNPERG *asnperg))
{
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    }
    else {
      choice_0 = 3 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          pi_Boolean ();
          break;
        }
      case 1:
        {
          pi_NullType ();
          break;
        }
      default:
        {
          pd_SkipExtendedComponents (1);
        }
    }
  }
}

void piOneMarked (ASNG_L(ASNPERG *asnperg))
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

void piOnlyAdditions (ASNG_L(ASNPERG *asnperg))
{
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_ua_le255 (-1, 0);
    }
    else {
      choice_0 = 1 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
    default:
      {
        pd_SkipExtendedComponents (1);
      }
  }
}
}

void piStructures (ASNG_L(ASNPERG *asnperg))
{
  {
    sint8 choice_0;
    choice_0 = pd_ChoiceIndex_ua_le255 (4, 3);
    switch (choice_0){
      case 0:
        {
          {
            sint32 optfield_1;
            optfield_1 = pd_getBits (1);
            if (optfield_1 & BITL(0)){
              pi_Boolean ();
            }
          }
          break;
        }
      case 1:
        {
          {
            sint8 choice_1;
            choice_1 = pd_ChoiceIndex_ua_le255 (1, 1);
            switch (choice_1){
              case 0:
                {
                  pi_NullType ();
                  break;
                }
              case 1:
                {
                  pi_Boolean ();
                  break;
                }
            }
          }
          break;
        }
      case 2:
        {
          piTwo (ASNG_L(asnperg));
          break;
        }
      case 3:
        {
          {
            uint32 len_1;
            pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
            while (len_1 > 0){
              --len_1;
              pi_NullType ();
            }
          }
          break;
        }
      case 4:
        {
          {
            sint32 *home = &asnperg_ignTemp;
            pd_sint32_cwn_ua_8 (home, 0, 1, 1);
          }
          break;
        }
    }
  }
}
