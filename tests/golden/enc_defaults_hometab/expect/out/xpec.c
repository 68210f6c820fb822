/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Hometab
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pecT (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if ((hometab [3] && (hometab [3]->val.bool != TRUE)) || hometab [4] || (
      hometab [5] && (hometab [5]->val.ui8 != 4))){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    {
      sint32 optfield_0 = 0;
      if (hometab [0]){
        if (hometab [0]->val.ui8 != 3){
          optfield_0 |= BITL(1);
        }
      }
      if (hometab [1]){
        if (hometab [1]->val.xenum.value != 1){
          optfield_0 |= BITL(0);
        }
      }
      pe_optField (optfield_0, 2);
    }
    if ((hometab [0])){
      if (hometab [0]->val.ui8 != 3){
        pe_sint32_cwn_al_le255 (hometab [0]->val.ui8, 0, 7, 3);
        freeAsn (&hometab [0], FREE_STG);
      }
      freeAsn (&hometab [0], FREE_STG);
    }
    if ((hometab [1])){
      if (hometab [1]->val.xenum.value != 1){
        {
          sint32 index;
          BOOLE extBit = FALSE;
          if (!hometab [1]->val.xenum.extended) {
            if (0 <= hometab [1]->val.xenum.value && hometab [1]->val.xenum.
              value <= 1) {
              index = hometab [1]->val.xenum.value;
            }
            else {
              extBit = TRUE;
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
            }
          }
          else {
            extBit = TRUE;
            index = hometab [1]->val.xenum.value;
          }
          pe_extensionBit (extBit);
          if (!extBit) {
            pe_sint32_cwn_al_le255 (index, 0, 1, 1);
          }
          else {
            pe_normSmallNonNegWholeNumAl (index);
          }
        }
        freeAsn (&hometab [1], FREE_STG);
      }
      freeAsn (&hometab [1], FREE_STG);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      if ((hometab [3])){
        if (hometab [3]->val.bool != TRUE){
          extensionAdditionField_0 |= BITL(2);
        }
      }
      if ((hometab [4])){
        extensionAdditionField_0 |= BITL(1);
      }
      if ((hometab [5])){
        extensionAdditionField_0 |= BITL(0);
      }
      pe_extensionAddition (3, extensionAdditionField_0);
    }
    if ((hometab [3])){
      if (hometab [3]->val.bool != TRUE){
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (hometab [3]->val.bool);
        freeAsn (&hometab [3], FREE_STG);
        pe_EndOpenType_al (&openctx_0);
      }
      freeAsn (&hometab [3], FREE_STG);
    }
    if ((hometab [4])){
      pe_BeginOpenType_al (&openctx_0);
      pe_Boolean (hometab [4]->val.bool);
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    if ((hometab [5])){
      pe_BeginOpenType_al (&openctx_0);
      {
        sint32 optfield_1 = 0;
        if (hometab [5]){
          if (hometab [5]->val.ui8 != 4){
            optfield_1 |= BITL(0);
          }
        }
        pe_optField (optfield_1, 1);
        if ((hometab [5])){
          if (hometab [5]->val.ui8 != 4){
            pe_sint32_cwn_al_le255 (hometab [5]->val.ui8, 0, 7, 3);
            freeAsn (&hometab [5], FREE_STG);
          }
          freeAsn (&hometab [5], FREE_STG);
        }
      }
      freeAsn (&hometab [5], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}
