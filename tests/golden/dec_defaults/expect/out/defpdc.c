/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Defaults
 * FILE = defpdc.c
 ****************************************************************/

#ifndef DEFPER_EXT
#include "defper.ext"
#endif

void pdColour (ASNG_F(ASNPERG *asnperg) Colour *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 2, 2);
}

void pdOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->value = index + 2;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pd_Boolean (&home->x_fld);
}

void pdOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      pd_sint32_cwn_al_le255_8 (&home->a_fld, 0, 7, 3);
      if (home->a_fld == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
  }
  if (!(home->compmask & BIT(0))){
    home->compmask |= BIT(0);
    home->a_fld = 3;
  }
}

void pdMembers (ASNG_F(ASNPERG *asnperg) Members *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (7);
    if (optfield_0 & BITL(6)){
      home->compmask |= BIT(0);
      pd_Boolean (&home->a_fld);
      if (home->a_fld == TRUE){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(5)){
      home->compmask |= BIT(1);
      pd_Boolean (&home->b_fld);
      if (home->b_fld == FALSE){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(4)){
      home->compmask |= BIT(2);
      pd_sint32_ucwn_al (&home->c_fld);
      if (home->c_fld == -1){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(3)){
      home->compmask |= BIT(3);
      pd_sint32_cwn_al_le255_8 (&home->d_fld, 0, 10, 4);
      if (home->d_fld == 5){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(2)){
      home->compmask |= BIT(4);
      pdColour (ASNG_F(asnperg) &home->e_fld);
      if (home->e_fld == 1){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(5);
      pdOpen (ASNG_F(asnperg) &home->f_fld);
      if (home->f_fld.value == 1){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(6);
      pd_Boolean (&home->g_fld);
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(8);
        pd_sint32_cwn_al_le255_8 (&home->h_fld, 0, 7, 3);
        if (home->h_fld == 1){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(9);
            pd_sint32_cwn_al_le255_8 (&home->i_fld, 0, 7, 3);
            if (home->i_fld == 2){
              asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
            }
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
  if (!(home->compmask & BIT(0))){
    home->compmask |= BIT(0);
    home->a_fld = TRUE;
  }
  if (!(home->compmask & BIT(1))){
    home->compmask |= BIT(1);
    home->b_fld = FALSE;
  }
  if (!(home->compmask & BIT(2))){
    home->compmask |= BIT(2);
    home->c_fld = -1;
  }
  if (!(home->compmask & BIT(3))){
    home->compmask |= BIT(3);
    home->d_fld = 5;
  }
  if (!(home->compmask & BIT(4))){
    home->compmask |= BIT(4);
    home->e_fld = 1;
  }
  if (!(home->compmask & BIT(5))){
    home->compmask |= BIT(5);
    home->f_fld.value = 1;
  }
  if (!(home->compmask & BIT(8))){
    home->compmask |= BIT(8);
    home->h_fld = 1;
  }
}

void pdOwn (ASNG_F(ASNPERG *asnperg) Own *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      createHome (NULL, &home->a_fld, VF_UI8, 0);
      home->compmask |= BIT(0);
      pd_sint32_cwn_al_le255_8 (&home->a_fld->val.ui8, 0, 7, 3);
      if (home->a_fld->val.ui8 == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->b_fld, VF_UI8, 0);
      home->compmask |= BIT(1);
      pdOpen (ASNG_F(asnperg) &home->b_fld->val.xenum);
      if (home->b_fld->val.xenum.value == 0){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
  }
  if (!(home->compmask & BIT(0))){
    createHome (NULL, &home->a_fld, VF_UI8, 0);
    home->compmask |= BIT(0);
    home->a_fld->val.ui8 = 3;
  }
  if (!(home->compmask & BIT(1))){
    createHome (NULL, &home->b_fld, VF_UI8, 0);
    home->compmask |= BIT(1);
    home->b_fld->val.xenum.value = 0;
  }
}

void pdHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    if (optfield_0 & BITL(1)){
      createHome (NULL, &home->a_fld, VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&home->a_fld->val.ui8, 0, 7, 3);
      if (home->a_fld->val.ui8 == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
    if (optfield_0 & BITL(0)){
      createHome (NULL, &home->b_fld, VF_BOOL, 0);
      pd_Boolean (&home->b_fld->val.bool);
      if (home->b_fld->val.bool == FALSE){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
  }
  {
    createHome (NULL, &home->a_fld, VF_UI8, 0);
    home->a_fld->val.ui8 = 3;
  }
  {
    createHome (NULL, &home->b_fld, VF_BOOL, 0);
    home->b_fld->val.bool = FALSE;
  }
}

void pdBound (ASNG_F(ASNPERG *asnperg) Bound *home)
{
  createHome (NULL, &home->a_fld, VF_STRU, sizeof (struct t_a_Bound));
  {
    struct t_a_Bound *h1 = (struct t_a_Bound *)home->a_fld->val.stru;
    h1->compmask = 0;
    {
      sint32 optfield_1;
      optfield_1 = pd_getBits (2);
      if (optfield_1 & BITL(1)){
        h1->compmask |= BIT(0);
        pd_sint32_cwn_al_le255_8 (&h1->x_fld, 0, 7, 3);
        if (h1->x_fld == 3){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
      }
      if (optfield_1 & BITL(0)){
        h1->compmask |= BIT(1);
        pdOpen (ASNG_F(asnperg) &h1->y_fld);
        if (h1->y_fld.value == 0){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
      }
    }
    if (!(h1->compmask & BIT(0))){
      h1->compmask |= BIT(0);
      h1->x_fld = 3;
    }
    if (!(h1->compmask & BIT(1))){
      h1->compmask |= BIT(1);
      h1->y_fld.value = 0;
    }
  }
  home->b_fld.compmask = 0;
  {
    sint32 optfield_1;
    optfield_1 = pd_getBits (1);
    if (optfield_1 & BITL(0)){
      home->b_fld.compmask |= BIT(0);
      pd_sint32_cwn_al_le255_8 (&home->b_fld.x_fld, 0, 7, 3);
      if (home->b_fld.x_fld == 3){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
  }
  if (!(home->b_fld.compmask & BIT(0))){
    home->b_fld.compmask |= BIT(0);
    home->b_fld.x_fld = 3;
  }
  staArrInit (&home->c_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    while (n1 < len_1){
      home->c_fld.elem [n1].compmask = 0;
      {
        sint32 optfield_2;
        optfield_2 = pd_getBits (1);
        if (optfield_2 & BITL(0)){
          home->c_fld.elem [n1].compmask |= BIT(0);
          pd_Boolean (&home->c_fld.elem [n1].x_fld);
          if (home->c_fld.elem [n1].x_fld == TRUE){
            asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
          }
        }
      }
      if (!(home->c_fld.elem [n1].compmask & BIT(0))){
        home->c_fld.elem [n1].compmask |= BIT(0);
        home->c_fld.elem [n1].x_fld = TRUE;
      }
      incStaArrLen (&home->c_fld);
      n1++;
    }
  }
}

void pdAddition (ASNG_F(ASNPERG *asnperg) Addition *home)
{
  home->a_fld.compmask = 0;
  {
    BOOLE extensionBit_1 = pd_extensionBit ();
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      int extensionAdditionCount_1 = pd_extensionAddition (1,
        &extensionAdditionField_1);
      ASNPEROPENCTX openctx_1;
      if (extensionAdditionField_1 & BITL(0)){
        pd_BeginOpenType_al (&openctx_1);
        home->a_fld.compmask |= BIT(1);
        pd_Boolean (&home->a_fld.x_fld);
        if (home->a_fld.x_fld == TRUE){
          asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
        }
        pd_EndOpenType_al (&openctx_1);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_1);
    }
  }
  if (!(home->a_fld.compmask & BIT(1))){
    home->a_fld.compmask |= BIT(1);
    home->a_fld.x_fld = TRUE;
  }
}

void pdOthers (ASNG_F(ASNPERG *asnperg) Others *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (4);
    if (optfield_0 & BITL(3)){
      home->compmask |= BIT(0);
      pd_DynOctetString_al_u (&home->a_fld, 0, MAXLONG, 4);
    }
    if (optfield_0 & BITL(2)){
      home->compmask |= BIT(1);
      pdStruct (ASNG_F(asnperg) &home->b_fld);
    }
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(2);
      pd_NullType ();
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(3);
      pd_Boolean (&home->d_fld);
      if (home->d_fld == TRUE){
        asnPERError (ASNG_F(asnperg) ASN_PER_WRONG_DEFAULT_ENCODING_STX);
      }
    }
  }
  if (!(home->compmask & BIT(3))){
    home->compmask |= BIT(3);
    home->d_fld = TRUE;
  }
}

void pdOthersAgain (ASNG_F(ASNPERG *asnperg) OthersAgain *home)
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

void pdSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  home->compmask = 0;
  {
    home->compmask |= BIT(0);
    pd_Boolean (&home->a_fld);
  }
  pd_NullType ();
}
