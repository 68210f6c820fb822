/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = GroupsComponentsOf
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdRoot (ASNG_F(ASNPERG *asnperg) Root *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_ua_8 (&home->x_fld, 0, 7, 3);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      pd_Boolean (&home->y_fld);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(3);
        pd_NullType ();
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdTakenOver (ASNG_F(ASNPERG *asnperg) TakenOver *home)
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
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            home->compmask |= BIT(2);
            pd_Boolean (&home->b_fld);
          }
          {
            home->compmask |= BIT(3);
            pd_sint32_cwn_ua_8 (&home->x_fld, 0, 7, 3);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(4);
            pd_Boolean (&home->y_fld);
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(5);
        pd_Boolean (&home->c_fld);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdWritten (ASNG_F(ASNPERG *asnperg) Written *home)
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
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            home->compmask |= BIT(2);
            pd_Boolean (&home->b_fld);
          }
          {
            home->compmask |= BIT(3);
            pd_sint32_cwn_ua_8 (&home->x_fld, 0, 7, 3);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(4);
            pd_Boolean (&home->y_fld);
          }
        }
        pd_EndOpenType_ua (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_ua (&openctx_0);
        home->compmask |= BIT(5);
        pd_Boolean (&home->c_fld);
        pd_EndOpenType_ua (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
