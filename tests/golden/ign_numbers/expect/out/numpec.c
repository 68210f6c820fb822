/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Numbers
 * FILE = numpec.c
 ****************************************************************/

#ifndef NUMPER_EXT
#include "numper.ext"
#endif

void pePlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 2, 2);
}

void peOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  sint32 index;
  if (5 <= *home && *home <= 6) {
    index = *home - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peHoles (ASNG_F(ASNPERG *asnperg) Holes *home)
{
  sint32 index;
  switch (*home) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  pe_sint32_cwn_al_eq1 (0, 0);
}

void peExtensible (ASNG_F(ASNPERG *asnperg) Extensible *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (1 <= home->value && home->value <= 2) {
        index = home->value - 1;
      }
      else {
        extBit = TRUE;
        if (home->value == 5) {
          index = home->value - 5;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peExtensibleHoles (ASNG_F(ASNPERG *asnperg) ExtensibleHoles *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      switch (home->value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->value) {
            case 7:
              index = 0;
              break;
            case 9:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peNotIgnorable (ASNG_F(ASNPERG *asnperg) NotIgnorable *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}
