/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Defaults
 * FILE = defpec.c
 ****************************************************************/

#ifndef DEFPER_EXT
#include "defper.ext"
#endif

void peMember (ASNG_F(ASNPERG *asnperg) Member *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_sint32_cwn_al_le255 (home->a_fld, 0, 7, 3);
  }
  pe_NullType ();
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->a_fld){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if (home->a_fld){
    pe_sint32_cwn_al_le255 (home->a_fld->val.ui8, 0, 7, 3);
  }
  {
    struct t_b_Homes *h1 = (struct t_b_Homes *)home->b_fld->val.stru;
    {
      {
        sint32 optfield_1 = 0;
        if (h1->compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((h1->compmask & BIT(0))){
        pe_sint32_cwn_al_le255 (h1->x_fld->val.ui8, 0, 7, 3);
      }
    }
  }
}

void peLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  {
    {
      sint32 optfield_1 = 0;
      if (home->b_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->b_fld.compmask & BIT(0))){
      pe_sint32_cwn_al_le255 (
        home->b_fld.a_name_which_is_long_enough_for__fld->val.ui8, 0, 7, 3);
    }
  }
}

void peUnsupported (ASNG_F(ASNPERG *asnperg) Unsupported *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_al_u (&home->a_fld, 0, MAXLONG, 4);
  }
}
