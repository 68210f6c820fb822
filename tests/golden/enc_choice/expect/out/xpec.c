/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Choices
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
  }
}

void peTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}

void peFive (ASNG_F(ASNPERG *asnperg) Five *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 4, 3);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
    case 2:
      {
        pe_Boolean (home->i1.c_fld);
      }
      break;
    case 3:
      {
        pe_NullType ();
      }
      break;
    case 4:
      {
        pe_Boolean (home->i1.e_fld);
      }
      break;
  }
}

void peMarkerNone (ASNG_F(ASNPERG *asnperg) MarkerNone *home)
{
  pe_extensionBit (0);
  switch (home->choice){
  }
}

void peMarkerOne (ASNG_F(ASNPERG *asnperg) MarkerOne *home)
{
  pe_extensionBit (0);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
  }
}

void peMarkerTwo (ASNG_F(ASNPERG *asnperg) MarkerTwo *home)
{
  pe_extensionBit (0);
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}

void peAddNone (ASNG_F(ASNPERG *asnperg) AddNone *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 0);
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    pe_ChoiceIndex_al_ns (home->choice - 1);
  }
  switch (home->choice){
    case 1:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.a_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 2:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.b_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peAddOne (ASNG_F(ASNPERG *asnperg) AddOne *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 1);
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    pe_ChoiceIndex_al_ns (home->choice - 2);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 2:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.b_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 3:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peAddTwo (ASNG_F(ASNPERG *asnperg) AddTwo *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_al_ns (home->choice - 3);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
    case 3:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.c_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peBrackets (ASNG_F(ASNPERG *asnperg) Brackets *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 2);
  pe_extensionBit (extensionBit_0);
  if (!extensionBit_0){
    pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  }
  else {
    pe_ChoiceIndex_al_ns (home->choice - 3);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
    case 3:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.c_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 4:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 5:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.e_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(3)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_ChoiceIndex_al_le255 (home->a_fld.choice, 1, 1);
  switch (home->a_fld.choice){
    case 0:
      {
        pe_Boolean (home->a_fld.i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
  pe_extensionBit (0);
  pe_ChoiceIndex_al_le255 (home->b_fld.choice, 1, 1);
  switch (home->b_fld.choice){
    case 0:
      {
        pe_Boolean (home->b_fld.i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = (home->c_fld.choice > 2);
    pe_extensionBit (extensionBit_1);
    if (!extensionBit_1){
      pe_ChoiceIndex_al_le255 (home->c_fld.choice, 1, 1);
    }
    else {
      pe_ChoiceIndex_al_ns (home->c_fld.choice - 3);
    }
    switch (home->c_fld.choice){
      case 0:
        {
          pe_Boolean (home->c_fld.i1.a_fld);
        }
        break;
      case 1:
        {
          pe_NullType ();
        }
        break;
      case 3:
        {
          pe_BeginOpenType_al (&openctx_1);
          pe_Boolean (home->c_fld.i1.c_fld);
          pe_EndOpenType_al (&openctx_1);
        }
        break;
    }
  }
  if ((home->compmask & BIT(3))){
    {
      ASNPEROPENCTX openctx_1;
      BOOLE extensionBit_1 = (home->d_fld.choice > 2);
      pe_extensionBit (extensionBit_1);
      if (!extensionBit_1){
        pe_ChoiceIndex_al_le255 (home->d_fld.choice, 1, 1);
      }
      else {
        pe_ChoiceIndex_al_ns (home->d_fld.choice - 3);
      }
      switch (home->d_fld.choice){
        case 0:
          {
            pe_Boolean (home->d_fld.i1.a_fld);
          }
          break;
        case 1:
          {
            pe_NullType ();
          }
          break;
        case 3:
          {
            pe_BeginOpenType_al (&openctx_1);
            peTwo (ASNG_F(asnperg) &home->d_fld.i1.c_fld);
            pe_EndOpenType_al (&openctx_1);
          }
          break;
      }
    }
  }
  peAddTwo (ASNG_F(asnperg) &home->e_fld);
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = (home->f_fld.choice > 1);
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      pe_ChoiceIndex_al_ns (home->f_fld.choice - 2);
    }
    switch (home->f_fld.choice){
      case 0:
        {
          {
            ASNPEROPENCTX openctx_2;
            BOOLE extensionBit_2 = (home->f_fld.i1.a_fld.choice > 1);
            pe_extensionBit (extensionBit_2);
            if (extensionBit_2){
              pe_ChoiceIndex_al_ns (home->f_fld.i1.a_fld.choice - 2);
            }
            switch (home->f_fld.i1.a_fld.choice){
              case 0:
                {
                  pe_Boolean (home->f_fld.i1.a_fld.i1.a_fld);
                }
                break;
              case 2:
                {
                  pe_BeginOpenType_al (&openctx_2);
                  pe_Boolean (home->f_fld.i1.a_fld.i1.b_fld);
                  pe_EndOpenType_al (&openctx_2);
                }
                break;
            }
          }
        }
        break;
      case 2:
        {
          pe_BeginOpenType_al (&openctx_1);
          pe_ChoiceIndex_al_le255 (home->f_fld.i1.b_fld.choice, 1, 1);
          switch (home->f_fld.i1.b_fld.choice){
            case 0:
              {
                pe_NullType ();
              }
              break;
            case 1:
              {
                pe_NullType ();
              }
              break;
          }
          pe_EndOpenType_al (&openctx_1);
        }
        break;
    }
  }
}

void peBound (ASNG_F(ASNPERG *asnperg) Bound *home)
{
  {
    struct t_a_Bound *h1 = (struct t_a_Bound *)home->a_fld->val.stru;
    {
      ASNPEROPENCTX openctx_1;
      BOOLE extensionBit_1 = (h1->choice > 2);
      pe_extensionBit (extensionBit_1);
      if (!extensionBit_1){
        pe_ChoiceIndex_al_le255 (h1->choice, 1, 1);
      }
      else {
        pe_ChoiceIndex_al_ns (h1->choice - 3);
      }
      switch (h1->choice){
        case 0:
          {
            pe_Boolean (h1->i1.a_fld);
          }
          break;
        case 1:
          {
            pe_NullType ();
          }
          break;
        case 3:
          {
            pe_BeginOpenType_al (&openctx_1);
            pe_Boolean (h1->i1.c_fld);
            pe_EndOpenType_al (&openctx_1);
          }
          break;
      }
    }
  }
  {
    struct t_b_Bound *h1 = (struct t_b_Bound *)home->b_fld->val.stru;
    pe_ChoiceIndex_al_le255 (h1->choice, 1, 1);
    switch (h1->choice){
      case 0:
        {
          pe_Boolean (h1->i1.a_fld);
        }
        break;
      case 1:
        {
          pe_NullType ();
        }
        break;
    }
  }
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  if (home->a_fld){
    pe_Boolean (home->a_fld->val.bool);
  }
}

void peHomesTwo (ASNG_F(ASNPERG *asnperg) HomesTwo *home)
{
  if (home->a_fld){
    pe_ChoiceIndex_al_le255 (0, 1, 1);
    pe_Boolean (home->a_fld->val.bool);
  }
  else if (home->b_fld){
    pe_ChoiceIndex_al_le255 (1, 1, 1);
    pe_NullType ();
  }
}

void peHomesMarker (ASNG_F(ASNPERG *asnperg) HomesMarker *home)
{
  pe_extensionBit (0);
  if (home->a_fld){
    pe_ChoiceIndex_al_le255 (0, 1, 1);
    pe_Boolean (home->a_fld->val.bool);
  }
  else if (home->b_fld){
    pe_ChoiceIndex_al_le255 (1, 1, 1);
    pe_NullType ();
  }
}

void peHomesAdd (ASNG_F(ASNPERG *asnperg) HomesAdd *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->c_fld != NULL || home->d_fld != NULL){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (home->a_fld){
    pe_ChoiceIndex_al_le255 (0, 1, 1);
    pe_Boolean (home->a_fld->val.bool);
  }
  else if (home->b_fld){
    pe_ChoiceIndex_al_le255 (1, 1, 1);
    pe_NullType ();
  }
  else if (home->c_fld){
    pe_ChoiceIndex_al_ns (0);
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->c_fld->val.bool);
    pe_EndOpenType_al (&openctx_0);
  }
  else if (home->d_fld){
    pe_ChoiceIndex_al_ns (1);
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->d_fld->val.bool);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peHomesAddOne (ASNG_F(ASNPERG *asnperg) HomesAddOne *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->b_fld != NULL){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (home->a_fld){
    pe_Boolean (home->a_fld->val.bool);
  }
  else if (home->b_fld){
    pe_ChoiceIndex_al_ns (0);
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->b_fld->val.bool);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peHomesAddNone (ASNG_F(ASNPERG *asnperg) HomesAddNone *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->a_fld != NULL){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  else if (home->a_fld){
    pe_ChoiceIndex_al_ns (0);
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->a_fld->val.bool);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peHomesInline (ASNG_F(ASNPERG *asnperg) HomesInline *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if (home->a_fld.c_fld != NULL){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    if (home->a_fld.a_fld){
      pe_ChoiceIndex_al_le255 (0, 1, 1);
      pe_Boolean (home->a_fld.a_fld->val.bool);
    }
    else if (home->a_fld.b_fld){
      pe_ChoiceIndex_al_le255 (1, 1, 1);
      pe_NullType ();
    }
    else if (home->a_fld.c_fld){
      pe_ChoiceIndex_al_ns (0);
      pe_BeginOpenType_al (&openctx_1);
      pe_Boolean (home->a_fld.c_fld->val.bool);
      pe_EndOpenType_al (&openctx_1);
    }
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peOne (ASNG_F(asnperg) &home->a1_fld);
  peTwo (ASNG_F(asnperg) &home->a2_fld);
  peFive (ASNG_F(asnperg) &home->a3_fld);
  peMarkerNone (ASNG_F(asnperg) &home->b1_fld);
  peMarkerOne (ASNG_F(asnperg) &home->b2_fld);
  peMarkerTwo (ASNG_F(asnperg) &home->b3_fld);
  peAddNone (ASNG_F(asnperg) &home->c1_fld);
  peAddOne (ASNG_F(asnperg) &home->c2_fld);
  peAddTwo (ASNG_F(asnperg) &home->c3_fld);
  peBrackets (ASNG_F(asnperg) &home->c4_fld);
  peInline (ASNG_F(asnperg) &home->d_fld);
  peBound (ASNG_F(asnperg) &home->e_fld);
  peHomes (ASNG_F(asnperg) &home->f1_fld);
  peHomesTwo (ASNG_F(asnperg) &home->f2_fld);
  peHomesMarker (ASNG_F(asnperg) &home->f3_fld);
  peHomesAdd (ASNG_F(asnperg) &home->f4_fld);
  peHomesAddOne (ASNG_F(asnperg) &home->f5_fld);
  peHomesAddNone (ASNG_F(asnperg) &home->f6_fld);
  peHomesInline (ASNG_F(asnperg) &home->f7_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
