/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Sequences
 * FILE = seqpdc.c
 ****************************************************************/

#ifndef SEQPER_EXT
#include "seqper.ext"
#endif

void pdPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pd_Boolean (&home->a_fld);
  pd_NullType ();
}

void pdOptionals (ASNG_F(ASNPERG *asnperg) Optionals *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    pd_Boolean (&home->a_fld);
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(1);
      pd_NullType ();
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pd_Boolean (&home->c_fld);
    }
  }
}

void pdMarkerAlone (ASNG_F(ASNPERG *asnperg) MarkerAlone *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdMarkerFirst (ASNG_F(ASNPERG *asnperg) MarkerFirst *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(1);
        pd_Boolean (&home->a_fld);
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
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        pd_NullType ();
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        pd_Boolean (&home->c_fld);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdMandatoryAndOptional (ASNG_F(ASNPERG *asnperg) 
  MandatoryAndOptional *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(1);
        pd_Boolean (&home->b_fld);
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(2);
        pd_Boolean (&home->c_fld);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdMandatoryBehindOptional (ASNG_F(ASNPERG *asnperg) 
  MandatoryBehindOptional *home)
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
        home->compmask |= BIT(2);
        pd_Boolean (&home->b_fld);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdNested (ASNG_F(ASNPERG *asnperg) Nested *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    home->a_fld.compmask = 0;
    {
      sint32 optfield_1;
      optfield_1 = pd_getBits (1);
      if (optfield_1 & BITL(0)){
        home->a_fld.compmask |= BIT(0);
        home->a_fld.x_fld.compmask = 0;
        {
          sint32 optfield_2;
          optfield_2 = pd_getBits (1);
          if (optfield_2 & BITL(0)){
            home->a_fld.x_fld.compmask |= BIT(0);
            pd_Boolean (&home->a_fld.x_fld.y_fld);
          }
        }
      }
    }
    staArrInit (&home->b_fld);
    {
      uint32 n1 = 0;
      uint32 len_1;
      pd_lenDet_al_clt64K_le255 (&len_1, 1, 4, 2);
      while (n1 < len_1){
        home->b_fld.elem [n1].compmask = 0;
        {
          BOOLE extensionBit_2 = pd_extensionBit ();
          sint32 optfield_2;
          optfield_2 = pd_getBits (1);
          if (optfield_2 & BITL(0)){
            home->b_fld.elem [n1].compmask |= BIT(0);
            pd_Boolean (&home->b_fld.elem [n1].x_fld);
          }
          if (extensionBit_2){
            sint32 extensionAdditionField_2 = 0;
            int extensionAdditionCount_2 = pd_extensionAddition (0,
              &extensionAdditionField_2);
            pd_SkipExtendedComponents (extensionAdditionCount_2);
          }
        }
        incStaArrLen (&home->b_fld);
        n1++;
      }
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      home->c_fld.choice = pd_ChoiceIndex_al_le255 (1, 1);
      switch (home->c_fld.choice){
        case 0:
          {
            home->c_fld.i1.x_fld.compmask = 0;
            {
              sint32 optfield_2;
              optfield_2 = pd_getBits (1);
              if (optfield_2 & BITL(0)){
                home->c_fld.i1.x_fld.compmask |= BIT(0);
                pd_Boolean (&home->c_fld.i1.x_fld.y_fld);
              }
            }
            break;
          }
        case 1:
          {
            pd_NullType ();
            break;
          }
      }
    }
    pdOptionals (ASNG_F(asnperg) &home->d_fld);
  }
}

void pdOfHomes (ASNG_F(ASNPERG *asnperg) OfHomes *home)
{
  memset (home, 0, sizeof (OfHomes));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    createHome (NULL, &home->a_fld, VF_BOOL, 0);
    pd_Boolean (&home->a_fld->val.bool);
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->b_fld, VF_BOOL, 0);
      pd_Boolean (&home->b_fld->val.bool);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (NULL, &home->c_fld, VF_BOOL, 0);
        pd_Boolean (&home->c_fld->val.bool);
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (NULL, &home->d_fld, VF_BOOL, 0);
        pd_Boolean (&home->d_fld->val.bool);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
