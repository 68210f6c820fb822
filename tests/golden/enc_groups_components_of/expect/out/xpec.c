/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = GroupsComponentsOf
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peRoot (ASNG_F(ASNPERG *asnperg) Root *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_al_le255 (home->x_fld, 0, 7, 3);
  if ((home->compmask & BIT(1))){
    pe_Boolean (home->y_fld);
  }
  {
    sint32 extensionAdditionField_0 = 0|BITL(0);
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  pe_NullType ();
  pe_EndOpenType_al (&openctx_0);
}

void peTakenOver (ASNG_F(ASNPERG *asnperg) TakenOver *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->a_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1)|BITL(0);
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(4)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pe_Boolean (home->b_fld);
    pe_sint32_cwn_al_le255 (home->x_fld, 0, 7, 3);
    if ((home->compmask & BIT(4))){
      pe_Boolean (home->y_fld);
    }
  }
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c_fld);
  pe_EndOpenType_al (&openctx_0);
}

void peWritten (ASNG_F(ASNPERG *asnperg) Written *home)
{
  ASNPEROPENCTX openctx_0;
  pe_extensionBit (1);
  pe_Boolean (home->a_fld);
  {
    sint32 extensionAdditionField_0 = 0|BITL(1)|BITL(0);
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  pe_BeginOpenType_al (&openctx_0);
  {
    sint32 optfield_1 = 0;
    if (home->compmask & BIT(4)){
      optfield_1 |= BITL(0);
    }
    pe_optField (optfield_1, 1);
    pe_Boolean (home->b_fld);
    pe_sint32_cwn_al_le255 (home->x_fld, 0, 7, 3);
    if ((home->compmask & BIT(4))){
      pe_Boolean (home->y_fld);
    }
  }
  pe_EndOpenType_al (&openctx_0);
  pe_BeginOpenType_al (&openctx_0);
  pe_Boolean (home->c_fld);
  pe_EndOpenType_al (&openctx_0);
}
