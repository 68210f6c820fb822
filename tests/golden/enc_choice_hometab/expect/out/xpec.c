/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = ChoiceHometab
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pecTwo (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    if (hometab [0]){
      pe_ChoiceIndex_al_le255 (0, 1, 1);
      pe_Boolean (hometab [0]->val.bool);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [1]){
      pe_ChoiceIndex_al_le255 (1, 1, 1);
      pe_NullType ();
      freeAsn (&hometab [1], FREE_STG);
    }
  }
  pe_end ();
}

void pecMarker (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    pe_extensionBit (0);
    if (hometab [0]){
      pe_ChoiceIndex_al_le255 (0, 1, 1);
      pe_Boolean (hometab [0]->val.bool);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [1]){
      pe_ChoiceIndex_al_le255 (1, 1, 1);
      pe_NullType ();
      freeAsn (&hometab [1], FREE_STG);
    }
  }
  pe_end ();
}

void pecAdd (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  {
    ASNPEROPENCTX openctx_0;
    BOOLE extensionBit_0 = 0;
    if (hometab [3] != NULL || hometab [4] != NULL){
      extensionBit_0 = 1;
    }
    pe_extensionBit (extensionBit_0);
    if (hometab [0]){
      pe_ChoiceIndex_al_le255 (0, 1, 1);
      pe_Boolean (hometab [0]->val.bool);
      freeAsn (&hometab [0], FREE_STG);
    }
    else if (hometab [1]){
      pe_ChoiceIndex_al_le255 (1, 1, 1);
      pe_NullType ();
      freeAsn (&hometab [1], FREE_STG);
    }
    else if (hometab [3]){
      pe_ChoiceIndex_al_ns (0);
      pe_BeginOpenType_al (&openctx_0);
      pe_Boolean (hometab [3]->val.bool);
      freeAsn (&hometab [3], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
    else if (hometab [4]){
      pe_ChoiceIndex_al_ns (1);
      pe_BeginOpenType_al (&openctx_0);
      pe_NullType ();
      freeAsn (&hometab [4], FREE_STG);
      pe_EndOpenType_al (&openctx_0);
    }
  }
  pe_end ();
}
