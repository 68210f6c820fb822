/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Lists
 * FILE = lispec.c
 ****************************************************************/

#ifndef LISPER_EXT
#include "lisper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_Boolean (home->a_fld);
}

void peExtensible (ASNG_F(ASNPERG *asnperg) Extensible *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (home->value == 0) {
        index = home->value;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}
