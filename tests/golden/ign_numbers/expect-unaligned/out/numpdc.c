/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Numbers
 * FILE = numpdc.c
 ****************************************************************/

#ifndef NUMPER_EXT
#include "numper.ext"
#endif

void piIntegers (ASNG_L(ASNPERG *asnperg))
{
  pi_sint32_cwn_ua_eq1 (5);
  pi_sint32_cwn_ua_8 (0, 7, 3);
  pi_sint32_cwn_ua_8 (0, 255, 8);
  pi_sint32_cwn_ua_16 (0, 1000, 10);
  pi_sint32_cwn_ua_16 (0, 65536, 17);
  pi_sint32_cwn_ua (0, 7, 3);
  pi_sint32_cwn_ua (0, 100000, 17);
  pi_sint32_scwn_ua (-3);
  pi_sint32_ucwn_ua ();
  pi_uint32_cwn_ua (0, 4294967295UL, 32);
  pi_sint64_cwn_ua (i64ltosint64 (-1L), i64make (256L, 0UL), 41);
  pi_sint64_scwn_ua (i64ltosint64 (5L));
  pi_sint32_cwn_ua_8 (0, 7, 3);
  pi_own ();
  pi_given (3, NULL);
}

void pdPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pd_sint32_cwn_ua_8 (home, 0, 2, 2);
}

void piPlain (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  pd_sint32_cwn_ua_8 (home, 0, 2, 2);
}

void pdOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  sint32 index;
  pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
  *home = index + 5;
}

void piOther (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  sint32 index;
  pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
  *home = index + 5;
}

void pdHoles (ASNG_F(ASNPERG *asnperg) Holes *home)
{
  sint32 index;
  pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      *home = 1;
      break;
    case 1:
      *home = 5;
      break;
    default:
      break;
  }
}

void piHoles (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  sint32 index;
  pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      *home = 1;
      break;
    case 1:
      *home = 5;
      break;
    default:
      break;
  }
}

void pdOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  pd_sint32_cwn_ua_eq1 (home, 0);
}

void piOne (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  pd_sint32_cwn_ua_eq1 (home, 0);
}

void pdExtensible (ASNG_F(ASNPERG *asnperg) Extensible *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_ua (&index, 0, 1, 1);
      home->value = index + 1;
    }
    else {
      index = pd_normSmallNonNegWholeNumUa ();
      if (index == 0) {
        home->value = index + 5;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void piExtensible (ASNG_L(ASNPERG *asnperg))
{
  EXTENSIBLE_ENUMERATED temp;
  EXTENSIBLE_ENUMERATED *home = &temp;
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_ua (&index, 0, 1, 1);
      home->value = index + 1;
    }
    else {
      index = pd_normSmallNonNegWholeNumUa ();
      if (index == 0) {
        home->value = index + 5;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdExtensibleHoles (ASNG_F(ASNPERG *asnperg) ExtensibleHoles *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_ua (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 1;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumUa ();
      switch (index) {
        case 0:
          home->value = 7;
          break;
        case 1:
          home->value = 9;
          break;
        default:
          home->extended = TRUE;
          home->value = index;
          break;
      }
    }
  }
}

void piExtensibleHoles (ASNG_L(ASNPERG *asnperg))
{
  EXTENSIBLE_ENUMERATED temp;
  EXTENSIBLE_ENUMERATED *home = &temp;
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_ua (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 1;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumUa ();
      switch (index) {
        case 0:
          home->value = 7;
          break;
        case 1:
          home->value = 9;
          break;
        default:
          home->extended = TRUE;
          home->value = index;
          break;
      }
    }
  }
}

void pdNotIgnorable (ASNG_F(ASNPERG *asnperg) NotIgnorable *home)
{
  pd_sint32_cwn_ua_8 (home, 0, 1, 1);
}

void piEnumerations (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (3);
    {
      sint32 *home = &asnperg_ignTemp;
      pd_sint32_cwn_ua_eq1 (home, 0);
    }
    {
      sint32 *home = &asnperg_ignTemp;
      pd_sint32_cwn_ua (home, 0, 2, 2);
    }
    {
      sint32 *home = &asnperg_ignTemp;
      pd_sint32_cwn_ua_8 (home, 0, 2, 2);
    }
    {
      sint32 *home = &asnperg_ignTemp;
      sint32 index;
      pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
      *home = index + 5;
    }
    if (optfield_0 & BITL(2)){
      {
        sint32 *home = &asnperg_ignTemp;
        sint32 index;
        pd_sint32_cwn_ua_8 (&index, 0, 1, 1);
        switch (index) {
          case 0:
            *home = 1;
            break;
          case 1:
            *home = 5;
            break;
          default:
            break;
        }
      }
    }
    {
      EXTENSIBLE_ENUMERATED temp;
      EXTENSIBLE_ENUMERATED *home = &temp;
      {
        sint32 index;
        home->extended = FALSE;
        if (!pd_extensionBit ()) {
          pd_sint32_cwn_ua (&index, 0, 1, 1);
          home->value = index + 1;
        }
        else {
          index = pd_normSmallNonNegWholeNumUa ();
          if (index == 0) {
            home->value = index + 5;
          }
          else {
            home->extended = TRUE;
            home->value = index;
          }
        }
      }
    }
    {
      EXTENSIBLE_ENUMERATED temp;
      EXTENSIBLE_ENUMERATED *home = &temp;
      {
        sint32 index;
        home->extended = FALSE;
        if (!pd_extensionBit ()) {
          pd_sint32_cwn_ua (&index, 0, 1, 1);
          switch (index) {
            case 0:
              home->value = 1;
              break;
            case 1:
              home->value = 5;
              break;
            default:
              break;
          }
        }
        else {
          index = pd_normSmallNonNegWholeNumUa ();
          home->extended = TRUE;
          home->value = index;
        }
      }
    }
    if (optfield_0 & BITL(1)){
      {
        EXTENSIBLE_ENUMERATED temp;
        EXTENSIBLE_ENUMERATED *home = &temp;
        {
          sint32 index;
          home->extended = FALSE;
          if (!pd_extensionBit ()) {
            pd_sint32_cwn_ua (&index, 0, 0, 0);
            home->value = index + 1;
          }
          else {
            index = pd_normSmallNonNegWholeNumUa ();
            switch (index) {
              case 0:
                home->value = 5;
                break;
              case 1:
                home->value = 7;
                break;
              default:
                home->extended = TRUE;
                home->value = index;
                break;
            }
          }
        }
      }
    }
    piPlain (ASNG_L(asnperg));
    if (optfield_0 & BITL(0)){
      piExtensible (ASNG_L(asnperg));
    }
    piPlain (ASNG_L(asnperg));
  }
}
