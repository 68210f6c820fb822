/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Defaults
 * FILE = defpec.c
 ****************************************************************/

#ifndef DEFPER_EXT
#include "defper.ext"
#endif

void peColour (ASNG_F(ASNPERG *asnperg) Colour *home)
{
  pe_sint32_cwn_ua (*home, 0, 2, 2);
}

void peOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (0 <= home->value && home->value <= 1) {
        index = home->value;
      }
      else {
        extBit = TRUE;
        if (home->value == 2) {
          index = home->value - 2;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_Boolean (home->x_fld);
}

void peOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      if (home->a_fld != 3){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    if (home->a_fld != 3){
      pe_sint32_cwn_ua (home->a_fld, 0, 7, 3);
    }
  }
}

void peMembers (ASNG_F(ASNPERG *asnperg) Members *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (((home->compmask & BIT(8)) && (home->h_fld != 1)) || (
    (home->compmask & BIT(9)) && (home->i_fld != 2))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      if (home->a_fld != TRUE){
        optfield_0 |= BITL(6);
      }
    }
    if (home->compmask & BIT(1)){
      if (home->b_fld != FALSE){
        optfield_0 |= BITL(5);
      }
    }
    if (home->compmask & BIT(2)){
      if (home->c_fld != -1){
        optfield_0 |= BITL(4);
      }
    }
    if (home->compmask & BIT(3)){
      if (home->d_fld != 5){
        optfield_0 |= BITL(3);
      }
    }
    if (home->compmask & BIT(4)){
      if (home->e_fld != 1){
        optfield_0 |= BITL(2);
      }
    }
    if (home->compmask & BIT(5)){
      if (home->f_fld.value != 1){
        optfield_0 |= BITL(1);
      }
    }
    if (home->compmask & BIT(6)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 7);
  }
  if ((home->compmask & BIT(0))){
    if (home->a_fld != TRUE){
      pe_Boolean (home->a_fld);
    }
  }
  if ((home->compmask & BIT(1))){
    if (home->b_fld != FALSE){
      pe_Boolean (home->b_fld);
    }
  }
  if ((home->compmask & BIT(2))){
    if (home->c_fld != -1){
      pe_sint32_ucwn_ua (home->c_fld);
    }
  }
  if ((home->compmask & BIT(3))){
    if (home->d_fld != 5){
      pe_sint32_cwn_ua (home->d_fld, 0, 10, 4);
    }
  }
  if ((home->compmask & BIT(4))){
    if (home->e_fld != 1){
      peColour (ASNG_F(asnperg) &home->e_fld);
    }
  }
  if ((home->compmask & BIT(5))){
    if (home->f_fld.value != 1){
      peOpen (ASNG_F(asnperg) &home->f_fld);
    }
  }
  if ((home->compmask & BIT(6))){
    pe_Boolean (home->g_fld);
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(8))){
      if (home->h_fld != 1){
        extensionAdditionField_0 |= BITL(1);
      }
    }
    if ((home->compmask & BIT(9))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(8))){
    if (home->h_fld != 1){
      pe_BeginOpenType_ua (&openctx_0);
      pe_sint32_cwn_ua (home->h_fld, 0, 7, 3);
      pe_EndOpenType_ua (&openctx_0);
    }
  }
  if ((home->compmask & BIT(9))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(9)){
        if (home->i_fld != 2){
          optfield_1 |= BITL(0);
        }
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(9))){
        if (home->i_fld != 2){
          pe_sint32_cwn_ua (home->i_fld, 0, 7, 3);
        }
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peOwn (ASNG_F(ASNPERG *asnperg) Own *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      if (home->a_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->compmask & BIT(1)){
      if (home->b_fld->val.xenum.value != 0){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 2);
  }
  if ((home->compmask & BIT(0))){
    if (home->a_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (home->a_fld->val.ui8, 0, 7, 3);
    }
  }
  if ((home->compmask & BIT(1))){
    if (home->b_fld->val.xenum.value != 0){
      peOpen (ASNG_F(asnperg) &home->b_fld->val.xenum);
    }
  }
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->a_fld){
      if (home->a_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->b_fld){
      if (home->b_fld->val.bool != FALSE){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 2);
  }
  if (home->a_fld){
    if (home->a_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (home->a_fld->val.ui8, 0, 7, 3);
    }
  }
  if (home->b_fld){
    if (home->b_fld->val.bool != FALSE){
      pe_Boolean (home->b_fld->val.bool);
    }
  }
}

void peBound (ASNG_F(ASNPERG *asnperg) Bound *home)
{
  {
    struct t_a_Bound *h1 = (struct t_a_Bound *)home->a_fld->val.stru;
    {
      {
        sint32 optfield_1 = 0;
        if (h1->compmask & BIT(0)){
          if (h1->x_fld != 3){
            optfield_1 |= BITL(1);
          }
        }
        if (h1->compmask & BIT(1)){
          if (h1->y_fld.value != 0){
            optfield_1 |= BITL(0);
          }
        }
        pe_optField (optfield_1, 2);
      }
      if ((h1->compmask & BIT(0))){
        if (h1->x_fld != 3){
          pe_sint32_cwn_ua (h1->x_fld, 0, 7, 3);
        }
      }
      if ((h1->compmask & BIT(1))){
        if (h1->y_fld.value != 0){
          peOpen (ASNG_F(asnperg) &h1->y_fld);
        }
      }
    }
  }
  {
    {
      sint32 optfield_1 = 0;
      if (home->b_fld.compmask & BIT(0)){
        if (home->b_fld.x_fld != 3){
          optfield_1 |= BITL(0);
        }
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->b_fld.compmask & BIT(0))){
      if (home->b_fld.x_fld != 3){
        pe_sint32_cwn_ua (home->b_fld.x_fld, 0, 7, 3);
      }
    }
  }
  pe_lenDet_ua_clt64K_le64K (staArrLen (&home->c_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->c_fld); n1++){
      {
        {
          sint32 optfield_2 = 0;
          if (home->c_fld.elem [n1].compmask & BIT(0)){
            if (home->c_fld.elem [n1].x_fld != TRUE){
              optfield_2 |= BITL(0);
            }
          }
          pe_optField (optfield_2, 1);
        }
        if ((home->c_fld.elem [n1].compmask & BIT(0))){
          if (home->c_fld.elem [n1].x_fld != TRUE){
            pe_Boolean (home->c_fld.elem [n1].x_fld);
          }
        }
      }
    }
  }
}

void peAddition (ASNG_F(ASNPERG *asnperg) Addition *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if (((home->a_fld.compmask & BIT(1)) && (home->a_fld.x_fld != TRUE))){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      if ((home->a_fld.compmask & BIT(1))){
        if (home->a_fld.x_fld != TRUE){
          extensionAdditionField_1 |= BITL(0);
        }
      }
      pe_extensionAddition (1, extensionAdditionField_1);
    }
    if ((home->a_fld.compmask & BIT(1))){
      if (home->a_fld.x_fld != TRUE){
        pe_BeginOpenType_ua (&openctx_1);
        pe_Boolean (home->a_fld.x_fld);
        pe_EndOpenType_ua (&openctx_1);
      }
    }
  }
}

void peOthers (ASNG_F(ASNPERG *asnperg) Others *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(3)){
      if (home->d_fld != TRUE){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 4);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_ua_u (&home->a_fld, 0, MAXLONG, 4);
  }
  if ((home->compmask & BIT(1))){
    peStruct (ASNG_F(asnperg) &home->b_fld);
  }
  if ((home->compmask & BIT(2))){
    pe_NullType ();
  }
  if ((home->compmask & BIT(3))){
    if (home->d_fld != TRUE){
      pe_Boolean (home->d_fld);
    }
  }
}

void peOthersAgain (ASNG_F(ASNPERG *asnperg) OthersAgain *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_OctetString_ua_u (&home->a_fld, 0, MAXLONG, 4);
  }
}

void peSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
  pe_NullType ();
}
if (home->a_fld == NULL)if (home->b_fld == NULL)