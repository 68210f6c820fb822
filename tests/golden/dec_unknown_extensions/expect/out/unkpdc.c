/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Unknown
 * FILE = unkpdc.c
 ****************************************************************/

#ifndef UNKPER_EXT
#include "unkper.ext"
#endif

void pdSkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  home->compmask = 0;
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
        home->compmask |= BIT(2);
        pd_Boolean (&home->b_fld);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdSkippedNone (ASNG_F(ASNPERG *asnperg) SkippedNone *home)
{
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_Boolean (&home->a_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdSkippedGroup (ASNG_F(ASNPERG *asnperg) SkippedGroup *home)
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
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(1);
            pd_Boolean (&home->a_fld);
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdSkippedChoice (ASNG_F(ASNPERG *asnperg) SkippedChoice *home)
{
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_al_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_al_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
    default:
      {
        home->choice = 2;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdKept (ASNG_F(ASNPERG *asnperg) Kept *home)
{
  home->compmask = 0;
  initExtensionmarker (&home->extensionmarker);
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
        home->compmask |= BIT(2);
        pd_Boolean (&home->b_fld);
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SaveExtendedComponents (&home->extensionmarker,
        extensionAdditionCount_0);
    }
  }
}

void pdKeptNone (ASNG_F(ASNPERG *asnperg) KeptNone *home)
{
  initExtensionmarker (&home->extensionmarker);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_Boolean (&home->a_fld);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SaveExtendedComponents (&home->extensionmarker,
        extensionAdditionCount_0);
    }
  }
}

void pdKeptGroup (ASNG_F(ASNPERG *asnperg) KeptGroup *home)
{
  home->compmask = 0;
  initExtensionmarker (&home->extensionmarker);
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(1);
            pd_Boolean (&home->a_fld);
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SaveExtendedComponents (&home->extensionmarker,
        extensionAdditionCount_0);
    }
  }
}

void pdKeptChoice (ASNG_F(ASNPERG *asnperg) KeptChoice *home)
{
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_al_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_al_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
    default:
      {
        home->choice = 2;
        initExtensionmarker (&home->i1.extensionmarker);
        pd_SaveExtendedComponents (&home->i1.extensionmarker, 1);
      }
  }
}

void pdKeptChoiceAdditions (ASNG_F(ASNPERG *asnperg) 
  KeptChoiceAdditions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = 0;
  }
  else {
    home->choice = 2 + pd_ChoiceIndex_al_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 2:
      {
        pd_BeginOpenType_al (&openctx_0);
        pd_NullType ();
        pd_EndOpenType_al (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 1;
        initExtensionmarker (&home->i1.extensionmarker);
        pd_SaveExtendedComponents (&home->i1.extensionmarker, 1);
      }
  }
}

void pdSkippedHomes (ASNG_F(ASNPERG *asnperg) SkippedHomes *home)
{
  memset (home, 0, sizeof (SkippedHomes));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    createHome (NULL, &home->a_fld, VF_BOOL, 0);
    pd_Boolean (&home->a_fld->val.bool);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdKeptHomes (ASNG_F(ASNPERG *asnperg) KeptHomes *home)
{
  memset (home, 0, sizeof (KeptHomes));
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    createHome (NULL, &home->a_fld, VF_BOOL, 0);
    pd_Boolean (&home->a_fld->val.bool);
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        createHome (NULL, &home->b_fld, VF_BOOL, 0);
        pd_Boolean (&home->b_fld->val.bool);
        pd_EndOpenType_al (&openctx_0);
      }
      createHome (NULL, &home->extensionmarker, VF_STRU,
        sizeof (EXTENSIONMARKER));
      initExtensionmarker (home->extensionmarker->val.extensionmarker);
      pd_SaveExtendedComponents (home->extensionmarker->val.extensionmarker,
        extensionAdditionCount_0);
    }
  }
}

void pdSkippedHomesChoice (ASNG_F(ASNPERG *asnperg) SkippedHomesChoice *home)
{
  memset (home, 0, sizeof (SkippedHomesChoice));
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_al_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (NULL, &home->a_fld, VF_BOOL, 0);
          pd_Boolean (&home->a_fld->val.bool);
          break;
        }
      default:
        {
          createHome (NULL, &home->extensionmarker, VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
}

void pdKeptHomesChoice (ASNG_F(ASNPERG *asnperg) KeptHomesChoice *home)
{
  memset (home, 0, sizeof (KeptHomesChoice));
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_al_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (NULL, &home->a_fld, VF_BOOL, 0);
          pd_Boolean (&home->a_fld->val.bool);
          break;
        }
      default:
        {
          createHome (NULL, &home->extensionmarker, VF_STRU,
            sizeof (EXTENSIONMARKER));
          initExtensionmarker (home->extensionmarker->val.extensionmarker);
          pd_SaveExtendedComponents (
            home->extensionmarker->val.extensionmarker, 1);
        }
    }
  }
}

void pdWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  initExtensionmarker (&home->a_fld.extensionmarker);
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    pd_Boolean (&home->a_fld.x_fld);
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (0,
        &extensionAdditionField_1);
      pd_SaveExtendedComponents (&home->a_fld.extensionmarker,
        extensionAdditionCount_1);
    }
  }
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    if (!extensionBit_1){
      home->b_fld.choice = 0;
    }
    else {
      home->b_fld.choice = 2 + pd_ChoiceIndex_al_ns ();
    }
    switch (home->b_fld.choice){
      case 0:
        {
          pd_Boolean (&home->b_fld.i1.x_fld);
          break;
        }
      default:
        {
          home->b_fld.choice = 1;
          initExtensionmarker (&home->b_fld.i1.extensionmarker);
          pd_SaveExtendedComponents (&home->b_fld.i1.extensionmarker, 1);
        }
    }
  }
  createHome (NULL, &home->c_fld, VF_STRU, sizeof (struct t_c_Within));
  {
    struct t_c_Within *h1 = (struct t_c_Within *)home->c_fld->val.stru;
    initExtensionmarker (&h1->extensionmarker);
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      pd_Boolean (&h1->x_fld);
      if (extensionBit_1){
        sint32 extensionAdditionField_1 = 0;
        int extensionAdditionCount_1 = pd_extensionAddition (0,
          &extensionAdditionField_1);
        pd_SaveExtendedComponents (&h1->extensionmarker,
          extensionAdditionCount_1);
      }
    }
  }
}

void pdSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  initExtensionmarker (&home->extensionmarker);
  pd_Boolean (&home->a_fld);
}
