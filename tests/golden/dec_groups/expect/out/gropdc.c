/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Groups
 * FILE = gropdc.c
 ****************************************************************/

#ifndef GROPER_EXT
#include "groper.ext"
#endif

void pdAllOptional (ASNG_F(ASNPERG *asnperg) AllOptional *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pd_Boolean (&home->a_fld);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (2);
          if (optfield_1 & BITL(1)){
            home->compmask |= BIT(2);
            pd_Boolean (&home->b_fld);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(3);
            pd_NullType ();
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdAllMandatory (ASNG_F(ASNPERG *asnperg) AllMandatory *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_Boolean (&home->a_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          pd_Boolean (&home->b_fld);
        }
        {
          pd_NullType ();
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdMixed (ASNG_F(ASNPERG *asnperg) Mixed *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (3,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(2)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            home->compmask |= BIT(1);
            pd_Boolean (&home->a_fld);
          }
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(2);
            pd_Boolean (&home->b_fld);
          }
          {
            home->compmask |= BIT(3);
            pd_Boolean (&home->c_fld);
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(4);
        pd_NullType ();
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(5);
            pd_NullType ();
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdStructures (ASNG_F(ASNPERG *asnperg) Structures *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (3,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(2)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(1);
            home->a_fld.compmask = 0;
            {
              sint32 optfield_2;
              optfield_2 = pd_getBits (1);
              if (optfield_2 & BITL(0)){
                home->a_fld.compmask |= BIT(0);
                pd_Boolean (&home->a_fld.x_fld);
              }
            }
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        {
          home->compmask |= BIT(2);
          home->b_fld.compmask = 0;
          {
            sint32 optfield_1;
            optfield_1 = pd_getBits (1);
            if (optfield_1 & BITL(0)){
              home->b_fld.compmask |= BIT(0);
              pd_Boolean (&home->b_fld.x_fld);
            }
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(3);
            home->c_fld.compmask = 0;
            {
              BOOLE extensionBit_2 = pd_extensionBit ();
              if (extensionBit_2){
                sint32 extensionAdditionField_2 = 0;
                int extensionAdditionCount_2 = pd_extensionAddition (1,
                  &extensionAdditionField_2);
                ASNPEROPENCTX openctx_2;
                if (extensionAdditionField_2 & BITL(0)){
                  pd_BeginOpenType_al (&openctx_2);
                  home->c_fld.compmask |= BIT(1);
                  pd_Boolean (&home->c_fld.x_fld);
                  pd_EndOpenType_al (&openctx_2);
                }
                pd_SkipExtendedComponents (extensionAdditionCount_2);
              }
            }
          }
          {
            home->compmask |= BIT(4);
            home->d_fld.choice = 0;
            pd_NullType ();
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (NULL, &home->_fld, VF_NONE, 0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            createHome (NULL, &home->_fld.a_fld, VF_BOOL, 0);
            pd_Boolean (&home->_fld.a_fld->val.bool);
          }
          if (optfield_1 & BITL(0)){
            createHome (NULL, &home->_fld.b_fld, VF_NULL, 0);
            pd_NullType ();
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (NULL, &home->_fld.c_fld, VF_BOOL, 0);
        pd_Boolean (&home->_fld.c_fld->val.bool);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
