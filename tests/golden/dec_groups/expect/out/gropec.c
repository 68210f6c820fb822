/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Groups
 * FILE = gropec.c
 ****************************************************************/

#ifndef GROPER_EXT
#include "groper.ext"
#endif

void peAllOptional (ASNG_F(ASNPERG *asnperg) AllOptional *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(2)) || (home->compmask & BIT(3))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
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
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(2)) || (home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
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
        pe_NullType ();
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peAllMandatory (ASNG_F(ASNPERG *asnperg) AllMandatory *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->a_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->b_fld);
  pe_NullType ();
  pe_EndOpenType_al (&openctx_0);
}

void peMixed (ASNG_F(ASNPERG *asnperg) Mixed *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(2);
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(5))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (3, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(2)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pe_Boolean (home->a_fld);
    if ((home->compmask & BIT(2))){
      pe_Boolean (home->b_fld);
    }
    pe_Boolean (home->c_fld);
  }
  pe_EndOpenType_al (&openctx_0);
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_al (&openctx_0);
    pe_NullType ();
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BIT(5))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(5)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(5))){
        pe_NullType ();
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peStructures (ASNG_F(ASNPERG *asnperg) Structures *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1)|BITL(0);
    if ((home->compmask & BIT(1))){
      extensionAdditionField_0 |= BITL(2);
    }
    pe_extensionAddition (3, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(1))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(1)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(1))){
        {
          {
            sint32 optfield_2 = 0;
            if (home->a_fld.compmask & BIT(0)){
              optfield_2 |= BITL(0);
            }
            pe_optField (optfield_2, 1);
          }
          if ((home->a_fld.compmask & BIT(0))){
            pe_Boolean (home->a_fld.x_fld);
          }
        }
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    {
      sint32 optfield_1 = 0;
      if (home->b_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->b_fld.compmask & BIT(0))){
      pe_Boolean (home->b_fld.x_fld);
    }
  }
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(3)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    if ((home->compmask & BIT(3))){
      {
        ASNPEROPENCTX openctx_2;
        BOOLE extensionBit_2 = 0;
        if ((home->c_fld.compmask & BIT(1))){
          extensionBit_2 = 1;
        }
        pe_extensionBit (extensionBit_2);
        if (extensionBit_2){
          sint32 extensionAdditionField_2 = 0;
          if ((home->c_fld.compmask & BIT(1))){
            extensionAdditionField_2 |= BITL(0);
          }
          pe_extensionAddition (1, extensionAdditionField_2);
        }
        if ((home->c_fld.compmask & BIT(1))){
          pe_BeginOpenType_al (&openctx_2);
          pe_Boolean (home->c_fld.x_fld);
          pe_EndOpenType_al (&openctx_2);
        }
      }
    }
    switch (home->d_fld.choice){
      case 0:
        {
          pe_NullType ();
        }
        break;
    }
  }
  pe_EndOpenType_al (&openctx_0);
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1);
    if (home->c_fld){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->b_fld){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pe_Boolean (home->_fld.a_fld->val.bool);
    if (home->_fld.b_fld){
      pe_NullType ();
    }
  }
  pe_EndOpenType_al (&openctx_0);
  if (home->_fld.c_fld){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->_fld.c_fld->val.bool);
    pe_EndOpenType_al (&openctx_0);
  }
}
