/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Groups
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peMandatory (ASNG_F(ASNPERG *asnperg) Mandatory *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->a_fld);
  pe_Boolean (home->b_fld);
  pe_EndOpenType_al (&openctx_0);
}

void peOptional (ASNG_F(ASNPERG *asnperg) Optional *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(1)) || (home->compmask & BIT(2))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(1)) || (home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(1)) || (home->compmask & BIT(2))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(1)){
        optfield_1 |= BITL(1);
      }
      if (home->compmask & BIT(2)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if ((home->compmask & BIT(1))){
        pe_Boolean (home->a_fld);
      }
      if ((home->compmask & BIT(2))){
        pe_Boolean (home->b_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(3)){
      optfield_1 |= BITL(1);
    }
    if (home->compmask & BIT(4)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 2);
    pe_Boolean (home->b_fld);
    if ((home->compmask & BIT(3))){
      pe_Boolean (home->c_fld);
    }
    if ((home->compmask & BIT(4))){
      pe_Boolean (home->d_fld);
    }
  }
  pe_EndOpenType_al (&openctx_0);
}

void peMix (ASNG_F(ASNPERG *asnperg) Mix *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->a_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(4)|BITL(3)|BITL(2);
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(5);
    }
    if ((home->compmask & BIT(7))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(8))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (6, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->b_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c_fld);
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(4)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    if ((home->compmask & BIT(4))){
      pe_Boolean (home->d_fld);
    }
    pe_Boolean (home->e_fld);
  }
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->f_fld);
  pe_EndOpenType_al (&openctx_0);
  if ((home->compmask & BIT(7))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(7)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(7))){
        pe_Boolean (home->g_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BIT(8))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(8)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(8))){
        {
          ASNPEROPENCTX openctx_2;
          BOOLE extensionBit_2 = 0;
          if ((home->h_fld.compmask & BIT(2))){
            extensionBit_2 = 1;
          }
          pe_extensionBit (extensionBit_2);
          {
            sint32 optfield_2 = 0;
            if (home->h_fld.compmask & BIT(0)){
              optfield_2 |= BITL(0);
            }
            pe_optField (optfield_2, 1);
          }
          if ((home->h_fld.compmask & BIT(0))){
            pe_Boolean (home->h_fld.i_fld);
          }
          if (extensionBit_2){
            sint32 extensionAdditionField_2 = 0;
            if ((home->h_fld.compmask & BIT(2))){
              extensionAdditionField_2 |= BITL(0);
            }
            pe_extensionAddition (1, extensionAdditionField_2);
          }
          if ((home->h_fld.compmask & BIT(2))){
            pe_BeginOpenType_al (&openctx_2);
            pe_Boolean (home->h_fld.j_fld);
            pe_EndOpenType_al (&openctx_2);
          }
        }
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peAllOptional (ASNG_F(ASNPERG *asnperg) AllOptional *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(1)) || (home->compmask & BIT(2)) || 
    (home->compmask & BIT(3)) || (home->compmask & BIT(4)) || 
    (home->compmask & BIT(5))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(1))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask & BIT(2)) || (home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(5))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (4, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(1))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->a_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BIT(2)) || (home->compmask & BIT(3))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(2)){
        optfield_1 |= BITL(1);
      }
      if (home->compmask & BIT(3)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if ((home->compmask & BIT(2))){
        pe_Boolean (home->b_fld);
      }
      if ((home->compmask & BIT(3))){
        pe_Boolean (home->c_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(4)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(4))){
        pe_Boolean (home->d_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BIT(5))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->e_fld);
    pe_EndOpenType_al (&openctx_0);
  }
}

void peHomeComps (ASNG_F(ASNPERG *asnperg) HomeComps *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->b_fld || home->c_fld){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  pe_Boolean (home->a_fld->val.bool);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if (home->b_fld || home->c_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if (home->_fld.b_fld || home->_fld.c_fld){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->b_fld){
        optfield_1 |= BITL(1);
      }
      if (home->c_fld){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if (home->_fld.b_fld){
        pe_Boolean (home->_fld.b_fld->val.bool);
      }
      if (home->_fld.c_fld){
        pe_Boolean (home->_fld.c_fld->val.bool);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peMandatory (ASNG_F(asnperg) &home->a_fld);
  peOptional (ASNG_F(asnperg) &home->b_fld);
  peBoth (ASNG_F(asnperg) &home->c_fld);
  peMix (ASNG_F(asnperg) &home->d_fld);
  peAllOptional (ASNG_F(asnperg) &home->e_fld);
  peHomeComps (ASNG_F(asnperg) &home->f_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
