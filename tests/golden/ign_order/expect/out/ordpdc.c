/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Order
 * FILE = ordpdc.c
 ****************************************************************/

#ifndef ORDPER_EXT
#include "ordper.ext"
#endif

void piThird (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void piSecond (ASNG_L(ASNPERG *asnperg))
{
  piThird (ASNG_L(asnperg));
}

void piFirst (ASNG_L(ASNPERG *asnperg))
{
  piSecond (ASNG_L(asnperg));
  piThird (ASNG_L(asnperg));
  piSecond (ASNG_L(asnperg));
}

void pdThird (ASNG_F(ASNPERG *asnperg) Third *home)
{
  pd_Boolean (&home->a_fld);
}

void pdSecond (ASNG_F(ASNPERG *asnperg) Second *home)
{
  pdThird (ASNG_F(asnperg) &home->a_fld);
}

void pdPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pd_Boolean (&home->a_fld);
}

void piSkipped (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void piWithin (ASNG_L(ASNPERG *asnperg))
{
  pi_NullType ();
}

void piBoth (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
  piWithin (ASNG_L(asnperg));
}

void pdWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  pd_NullType ();
}

void pdBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  pd_Boolean (&home->a_fld);
  pdWithin (ASNG_F(asnperg) &home->b_fld);
}

void piDeep (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void piElement (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdUser (ASNG_F(ASNPERG *asnperg) User *home)
{
  pdPlain (ASNG_F(asnperg) &home->a_fld);
  piSkipped (ASNG_L(asnperg));
  piBoth (ASNG_L(asnperg));
  pdBoth (ASNG_F(asnperg) &home->d_fld);
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
  piDeep (ASNG_L(asnperg));
  {
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (len_1 > 0){
      --len_1;
      piElement (ASNG_L(asnperg));
    }
  }
}

void pdSkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  pd_Boolean (&home->a_fld);
}

void pdRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  pd_Boolean (&home->a_fld);
}

void pdDeep (ASNG_F(ASNPERG *asnperg) Deep *home)
{
  pd_Boolean (&home->a_fld);
}

void pdElement (ASNG_F(ASNPERG *asnperg) Element *home)
{
  pd_Boolean (&home->a_fld);
}

void pdFlagged (ASNG_F(ASNPERG *asnperg) Flagged *home)
{
  pd_Boolean (&home->a_fld);
  pdThird (ASNG_F(asnperg) &home->b_fld);
}

void piFlagged (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
  piThird (ASNG_L(asnperg));
}

void piTarget (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdTarget (ASNG_F(ASNPERG *asnperg) Target *home)
{
  pd_Boolean (&home->a_fld);
}

void piTargetOfSkipped (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdTargetOfSkipped (ASNG_F(ASNPERG *asnperg) TargetOfSkipped *home)
{
  pd_Boolean (&home->a_fld);
}

void piUses (ASNG_L(ASNPERG *asnperg))
{
  piTarget (ASNG_L(asnperg));
  pi_sint32_cwn_al_le255_8 (0, 7, 3);
  piTargetOfSkipped (ASNG_L(asnperg));
}

void piDirect (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pi_Boolean ();
    if (optfield_0 & BITL(0)){
      piDirect (ASNG_L(asnperg));
    }
  }
}

void piPong (ASNG_L(ASNPERG *asnperg))
{
  {
    sint8 choice_0;
    choice_0 = pd_ChoiceIndex_al_le255 (2, 2);
    switch (choice_0){
      case 0:
        {
          piPing (ASNG_L(asnperg));
          break;
        }
      case 1:
        {
          pi_NullType ();
          break;
        }
      case 2:
        {
          piPong (ASNG_L(asnperg));
          break;
        }
    }
  }
}

void piPing (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      piPong (ASNG_L(asnperg));
    }
  }
}

void pdPong (ASNG_F(ASNPERG *asnperg) Pong *home)
{
  home->choice = pd_ChoiceIndex_al_le255 (2, 2);
  switch (home->choice){
    case 0:
      {
        piPing (ASNG_L(asnperg));
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
    case 2:
      {
        if (!(home->i1.c_fld = (Pong *)allocAsn (NULL, MB_STG,
          sizeof (Pong)))){
          reportFatalError (LACK_OF_MEMORY);
        }
        pdPong (ASNG_F(asnperg) home->i1.c_fld);
        break;
      }
  }
}

void piTree (ASNG_L(ASNPERG *asnperg))
{
  {
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 4, 2);
    while (len_0 > 0){
      --len_0;
      piTree (ASNG_L(asnperg));
    }
  }
}

void piPlane (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      piPlane (ASNG_L(asnperg));
    }
    if (optfield_0 & BITL(0)){
      piPlane (ASNG_L(asnperg));
    }
  }
}

void pdPlane (ASNG_F(ASNPERG *asnperg) Plane *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      if (!(home->a_fld = (Plane *)allocAsn (NULL, MB_STG, sizeof (Plane)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      home->compmask |= BIT(0);
      pdPlane (ASNG_F(asnperg) home->a_fld);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      if (!(home->b_fld.c_fld = (Plane *)allocAsn (NULL, MB_STG,
        sizeof (Plane)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      pdPlane (ASNG_F(asnperg) home->b_fld.c_fld);
    }
  }
}

void piPlaneUser (ASNG_L(ASNPERG *asnperg))
{
  piPlane (ASNG_L(asnperg));
}

void piKnot (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_1;
    optfield_1 = pd_getBits (1);
    if (optfield_1 & BITL(0)){
      piBow (ASNG_L(asnperg));
    }
  }
}

void piBow (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      piKnot (ASNG_L(asnperg));
    }
  }
}

void pdBow (ASNG_F(ASNPERG *asnperg) Bow *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      if (!(home->a_fld = (Knot *)allocAsn (NULL, MB_STG, sizeof (Knot)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      home->compmask |= BIT(0);
      pdKnot (ASNG_F(asnperg) home->a_fld);
    }
  }
}

void pdKnot (ASNG_F(ASNPERG *asnperg) Knot *home)
{
  home->a_fld.compmask = 0;
  {
    sint32 optfield_1;
    optfield_1 = pd_getBits (1);
    if (optfield_1 & BITL(0)){
      if (!(home->a_fld.b_fld = (Bow *)allocAsn (NULL, MB_STG, sizeof (Bow)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      home->a_fld.compmask |= BIT(0);
      pdBow (ASNG_F(asnperg) home->a_fld.b_fld);
    }
  }
}

void piEntry (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdcEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  piEntry (ASNG_L(asnperg));
  pd_end ();
}

void piEntryEnum (ASNG_L(ASNPERG *asnperg))
{
  sint32 *home = &asnperg_ignTemp;
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdcEntryEnum (ASNG_F(ASNPERG *asnperg) EntryEnum *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  piEntryEnum (ASNG_L(asnperg));
  pd_end ();
}

void pdcEntryNumber (ASNG_F(ASNPERG *asnperg) EntryNumber *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pi_sint32_cwn_al_le255_8 (0, 7, 3);
  pd_end ();
}

void pdcEntryRefused (ASNG_F(ASNPERG *asnperg) EntryRefused *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
  pd_end ();
}
