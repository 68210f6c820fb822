/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Others
 * FILE = othpdc.c
 ****************************************************************/

#ifndef OTHPER_EXT
#include "othper.ext"
#endif

void pdPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pd_Boolean (&home->boolean_fld);
  pd_ObjectIdentifier (&home->object_fld);
  pd_GeneralizedTimeDT (&home->generalized_fld);
  pd_UTCTimeDT (&home->utc_fld);
  pd_NullType ();
}

void pdReached (ASNG_F(ASNPERG *asnperg) Reached *home)
{
  if (!(home->pointer_fld = (BOOLE *)allocAsn (NULL, MB_STG, sizeof (BOOLE)))){
    reportFatalError (LACK_OF_MEMORY);
  }
  pd_Boolean (home->pointer_fld);
  createHome (NULL, &home->home_fld, VF_OBJI, sizeof (OBJECTIDENTIFIER));
  pd_ObjectIdentifier (home->home_fld->val.obji);
}

void pdList (ASNG_F(ASNPERG *asnperg) List *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 4, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_COMT, sizeof (DATETIMEZ));
      pd_UTCTimeDT (a1->val.datetime);
      incListLen (home);
    }
  }
}

void pdFrames (ASNG_F(ASNPERG *asnperg) Frames *home)
{
  pd_FrameOpenType_al (&home->any_fld);
  pd_FrameOpenType_al (&home->open_fld);
}

void pdReals (ASNG_F(ASNPERG *asnperg) Reals *home)
{
  NOT YET IMPLEMENTED!!pd_Boolean (&home->b_fld);
}

void pdOthers (ASNG_F(ASNPERG *asnperg) Others *home)
{
  NOT YET IMPLEMENTED!!NOT YET IMPLEMENTED!!NOT YET IMPLEMENTED!!
    NOT YET IMPLEMENTED!!NOT YET IMPLEMENTED!!NOT YET IMPLEMENTED!!
    NOT YET IMPLEMENTED!!NOT YET IMPLEMENTED!!}

void pdGroup (ASNG_F(ASNPERG *asnperg) Group *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(0);
      pd_Boolean (&home->a_fld);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      NOT YET IMPLEMENTED!!}
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (0,
        &extensionAdditionField_0);
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
