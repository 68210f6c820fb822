/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Others
 * FILE = othpec.c
 ****************************************************************/

#ifndef OTHPER_EXT
#include "othper.ext"
#endif

void pePlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pe_Boolean (home->boolean_fld);
  pe_ObjectIdentifier (&home->object_fld);
  pe_GeneralizedTimeDT (&home->generalized_fld);
  pe_UTCTimeDT (&home->utc_fld);
  pe_NullType ();
}

void peReached (ASNG_F(ASNPERG *asnperg) Reached *home)
{
  pe_Boolean (*home->pointer_fld);
  pe_ObjectIdentifier (home->home_fld->val.obji);
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 1, 4, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_UTCTimeDT (a1->val.datetime);
    }
  }
}

void peFrames (ASNG_F(ASNPERG *asnperg) Frames *home)
{
  pe_FrameOpenType_al (&home->any_fld);
  pe_FrameOpenType_al (&home->open_fld);
}

void peReals (ASNG_F(ASNPERG *asnperg) Reals *home)
{
  pe_Boolean (home->b_fld);
}

void peOthers (ASNG_F(ASNPERG *asnperg) Others *home)
{
}

void peGroup (ASNG_F(ASNPERG *asnperg) Group *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
  if ((home->compmask & BIT(1))){
  }
}
