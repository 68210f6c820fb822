/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Defaults
 * FILE = defpdc.c
 ****************************************************************/

#ifndef DEFPER_EXT
#include "defper.ext"
#endif

void pdMember (ASNG_F(ASNPERG *asnperg) Member *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pd_sint32_cwn_al_le255_8 (&home->a_fld, 0, 7, 3);
    }
    pd_NullType ();
  }
  if (!(home->compmask & BIT(0))){
    home->compmask |= BIT(0);
    home->a_fld = 3;
  }
}

void pdHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->a_fld, VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&home->a_fld->val.ui8, 0, 7, 3);
    }
    createHome (NULL, &home->b_fld, VF_STRU, sizeof (struct t_b_Homes));
    {
      struct t_b_Homes *h1 = (struct t_b_Homes *)home->b_fld->val.stru;
      h1->compmask = 0;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          createHome (NULL, &h1->x_fld, VF_UI8, 0);
          h1->compmask |= BIT(0);
          pd_sint32_cwn_al_le255_8 (&h1->x_fld->val.ui8, 0, 7, 3);
        }
      }
      if (!(h1->compmask & BIT(0))){
        h1->compmask |= BIT(0);
        h1->x_fld = 3;
      }
    }
  }
  {
    createHome (NULL, &home->a_fld, VF_UI8, 0);
    home->a_fld->val.ui8 = 3;
  }
}

void pdLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  home->b_fld.compmask = 0;
  {
    sint32 optfield_1;
    optfield_1 = pd_getBits (1);
    if (optfield_1 & BITL(0)){
      createHome (NULL, &home->b_fld.a_name_which_is_long_enough_for__fld,
        VF_UI8, 0);
      home->b_fld.compmask |= BIT(0);
      pd_sint32_cwn_al_le255_8 (
        &home->b_fld.a_name_which_is_long_enough_for__fld->val.ui8, 0, 7, 3);
    }
  }
  if (!(home->b_fld.compmask & BIT(0))){
    createHome (NULL, &home->b_fld.a_name_which_is_long_enough_for__fld
      , VF_UI8, 0);
    home->b_fld.compmask |= BIT(0);
    home->b_fld.a_name_which_is_long_enough_for__fld->val.ui8 = 3;
  }
}

void pdUnsupported (ASNG_F(ASNPERG *asnperg) Unsupported *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pd_DynOctetString_al_u (&home->a_fld, 0, MAXLONG, 4);
    }
  }
}
