/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Order
 * FILE = ordpec.c
 ****************************************************************/

#ifndef ORDPER_EXT
#include "ordper.ext"
#endif

void peThird (ASNG_F(ASNPERG *asnperg) Third *home)
{
  pe_Boolean (home->a_fld);
}

void peSecond (ASNG_F(ASNPERG *asnperg) Second *home)
{
  peThird (ASNG_F(asnperg) &home->a_fld);
}

void pePlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pe_Boolean (home->a_fld);
}

void peWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  pe_NullType ();
}

void peBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  pe_Boolean (home->a_fld);
  peWithin (ASNG_F(asnperg) &home->b_fld);
}

void peUser (ASNG_F(ASNPERG *asnperg) User *home)
{
  pePlain (ASNG_F(asnperg) &home->a_fld);
  pe_Skip ();
  pe_Skip ();
  peBoth (ASNG_F(asnperg) &home->d_fld);
  pe_Skip ();
  pe_Skip ();
  pe_Skip ();
}

void peSkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  pe_Boolean (home->a_fld);
}

void peRefused (ASNG_F(ASNPERG *asnperg) Refused *home)
{
  pe_Boolean (home->a_fld);
}

void peDeep (ASNG_F(ASNPERG *asnperg) Deep *home)
{
  pe_Boolean (home->a_fld);
}

void peElement (ASNG_F(ASNPERG *asnperg) Element *home)
{
  pe_Boolean (home->a_fld);
}

void peFlagged (ASNG_F(ASNPERG *asnperg) Flagged *home)
{
  pe_Boolean (home->a_fld);
  peThird (ASNG_F(asnperg) &home->b_fld);
}

void peTarget (ASNG_F(ASNPERG *asnperg) Target *home)
{
  pe_Boolean (home->a_fld);
}

void peTargetOfSkipped (ASNG_F(ASNPERG *asnperg) TargetOfSkipped *home)
{
  pe_Boolean (home->a_fld);
}

void pePong (ASNG_F(ASNPERG *asnperg) Pong *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 2, 2);
  switch (home->choice){
    case 0:
      {
        pe_Skip ();
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
    case 2:
      {
        pePong (ASNG_F(asnperg) home->i1.c_fld);
      }
      break;
  }
}

void pePlane (ASNG_F(ASNPERG *asnperg) Plane *home)
{
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
    pePlane (ASNG_F(asnperg) home->a_fld);
  }
  if ((home->compmask & BIT(1))){
    {
      pePlane (ASNG_F(asnperg) home->b_fld.c_fld);
    }
  }
}

void peBow (ASNG_F(ASNPERG *asnperg) Bow *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    peKnot (ASNG_F(asnperg) home->a_fld);
  }
}

void peKnot (ASNG_F(ASNPERG *asnperg) Knot *home)
{
  {
    {
      sint32 optfield_1 = 0;
      if (home->a_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->a_fld.compmask & BIT(0))){
      peBow (ASNG_F(asnperg) home->a_fld.b_fld);
    }
  }
}

void pecEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_Skip ();
  pe_end ();
}

void pecEntryEnum (ASNG_F(ASNPERG *asnperg) EntryEnum *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_Skip ();
  pe_end ();
}

void pecEntryNumber (ASNG_F(ASNPERG *asnperg) EntryNumber *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_Skip ();
  pe_end ();
}

void pecEntryRefused (ASNG_F(ASNPERG *asnperg) EntryRefused *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_Skip ();
  pe_end ();
}
