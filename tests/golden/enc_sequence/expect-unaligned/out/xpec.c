/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Sequences
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peEmptyExtensible (ASNG_F(ASNPERG *asnperg) EmptyExtensible *home)
{
  pe_extensionBit (0);
}

void peNoAdditions (ASNG_F(ASNPERG *asnperg) NoAdditions *home)
{
  pe_extensionBit (0);
  pe_Boolean (home->a_fld);
}

void peOptionalFirst (ASNG_F(ASNPERG *asnperg) OptionalFirst *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
  pe_Boolean (home->b_fld);
  if ((home->compmask & BIT(2))){
    pe_Boolean (home->c_fld);
  }
}

void peMixed (ASNG_F(ASNPERG *asnperg) Mixed *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->a_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(2)|BITL(0);
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(1);
    }
    pe_extensionAddition (4, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->b_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_Boolean (home->c_fld);
  pe_EndOpenType_ua (&openctx_0);
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->d_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
  pe_BeginOpenType_ua (&openctx_0);
  pe_NullType ();
  pe_EndOpenType_ua (&openctx_0);
}

void peNested (ASNG_F(ASNPERG *asnperg) Nested *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  {
    {
      sint32 optfield_1 = 0;
      if (home->a_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->a_fld.compmask & BIT(0))){
      pe_Boolean (home->a_fld.a_fld);
    }
    {
      ASNPEROPENCTX openctx_2;
      BOOLE extensionBit_2 = 0;
      if ((home->a_fld.b_fld.compmask & BIT(2))){
        extensionBit_2 = 1;
      }
      pe_extensionBit (extensionBit_2);
      {
        sint32 optfield_2 = 0;
        if (home->a_fld.b_fld.compmask & BIT(0)){
          optfield_2 |= BITL(0);
        }
        pe_optField (optfield_2, 1);
      }
      if ((home->a_fld.b_fld.compmask & BIT(0))){
        pe_Boolean (home->a_fld.b_fld.c_fld);
      }
      if (extensionBit_2){
        sint32 extensionAdditionField_2 = 0;
        if ((home->a_fld.b_fld.compmask & BIT(2))){
          extensionAdditionField_2 |= BITL(0);
        }
        pe_extensionAddition (1, extensionAdditionField_2);
      }
      if ((home->a_fld.b_fld.compmask & BIT(2))){
        pe_BeginOpenType_ua (&openctx_2);
        pe_Boolean (home->a_fld.b_fld.d_fld);
        pe_EndOpenType_ua (&openctx_2);
      }
    }
  }
  if ((home->compmask & BIT(1))){
    {
      pe_extensionBit (0);
      {
        sint32 optfield_1 = 0;
        if (home->b_fld.compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((home->b_fld.compmask & BIT(0))){
        pe_Boolean (home->b_fld.a_fld);
      }
    }
  }
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->c_fld), 1, 5, 3);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->c_fld); n1++){
      {
        {
          sint32 optfield_2 = 0;
          if (home->c_fld.elem [n1].compmask & BIT(0)){
            optfield_2 |= BITL(0);
          }
          pe_optField (optfield_2, 1);
        }
        if ((home->c_fld.elem [n1].compmask & BIT(0))){
          pe_Boolean (home->c_fld.elem [n1].e_fld);
        }
      }
    }
  }
  pe_ChoiceIndex_ua_le255 (home->d_fld.choice, 2, 2);
  switch (home->d_fld.choice){
    case 0:
      {
        {
          pe_Boolean (home->d_fld.i1.f_fld.g_fld);
        }
      }
      break;
    case 1:
      {
        pe_Boolean (home->d_fld.i1.h_fld.i_fld);
      }
      break;
    case 2:
      {
        {
          ASNPEROPENCTX openctx_2;
          BOOLE extensionBit_2 = (home->d_fld.i1.j_fld.choice > 1);
          pe_extensionBit (extensionBit_2);
          if (extensionBit_2){
            pe_ChoiceIndex_ua_ns (home->d_fld.i1.j_fld.choice - 2);
          }
          switch (home->d_fld.i1.j_fld.choice){
            case 0:
              {
                pe_Boolean (home->d_fld.i1.j_fld.i1.k_fld);
              }
              break;
            case 2:
              {
                pe_BeginOpenType_ua (&openctx_2);
                pe_Boolean (home->d_fld.i1.j_fld.i1.l_fld);
                pe_EndOpenType_ua (&openctx_2);
              }
              break;
          }
        }
      }
      break;
  }
  peEmptyExtensible (ASNG_F(asnperg) &home->f_fld);
  {
  }
}

void peFramed (ASNG_F(ASNPERG *asnperg) Framed *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BITL(1)) || (home->compmask & BITL(2))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BITL(1))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BITL(2))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BITL(1))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      {
        sint32 optfield_1 = 0;
        if (home->a_fld.compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((home->a_fld.compmask & BIT(0))){
        pe_Boolean (home->a_fld.b_fld);
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BITL(2))){
    pe_BeginOpenType_ua (&openctx_0);
    peMixed (ASNG_F(asnperg) &home->c_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peEmptyExtensible (ASNG_F(asnperg) &home->a_fld);
  peNoAdditions (ASNG_F(asnperg) &home->b_fld);
  peOptionalFirst (ASNG_F(asnperg) &home->c_fld);
  peMixed (ASNG_F(asnperg) &home->d_fld);
  peNested (ASNG_F(asnperg) &home->e_fld);
  peFramed (ASNG_F(asnperg) &home->f_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
