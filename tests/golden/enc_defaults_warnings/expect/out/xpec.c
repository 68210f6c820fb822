/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = DefaultsX
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peT (ASNG_F(ASNPERG *asnperg) T *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(6)) || (home->compmask & BIT(7))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(4);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(3)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 5);
  }
  if ((home->compmask & BIT(0))){
    pe_sint32_cwn_al_le255 (home->a_fld, 0, 7, 3);
  }
  if ((home->compmask & BIT(1))){
    pe_OctetString_al_feq1 (&home->b_fld, 1, 1, 0);
  }
  if ((home->compmask & BIT(2))){
    pe_Boolean (home->c_fld);
  }
  if ((home->compmask & BIT(3))){
    pe_sint32_cwn_al_le255 (home->d_fld, 0, 1, 1);
  }
  if ((home->compmask & BIT(4))){
    {
      {
        sint32 optfield_1 = 0;
        if (home->e_fld.compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((home->e_fld.compmask & BIT(0))){
        pe_Boolean (home->e_fld.f_fld);
      }
    }
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(6))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(7))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(6))){
    pe_BeginOpenType_al (&openctx_0);
    pe_Boolean (home->g_fld);
    pe_EndOpenType_al (&openctx_0);
  }
  if ((home->compmask & BIT(7))){
    pe_BeginOpenType_al (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(7)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(7))){
        pe_Boolean (home->h_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void pecT (ASNG_F(ASNPERG *asnperg) T *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peT (ASNG_F(asnperg) home);
  pe_end ();
}
