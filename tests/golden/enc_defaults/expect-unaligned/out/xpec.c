/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Defaults
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

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

void peTypes (ASNG_F(ASNPERG *asnperg) Types *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      if (home->a_fld != -4){
        optfield_0 |= BITL(6);
      }
    }
    if (home->compmask & BIT(1)){
      if (home->b_fld != TRUE){
        optfield_0 |= BITL(5);
      }
    }
    if (home->compmask & BIT(2)){
      if (home->c_fld.value != 1){
        optfield_0 |= BITL(4);
      }
    }
    if (home->compmask & BIT(3)){
      if (home->d_fld != 1){
        optfield_0 |= BITL(3);
      }
    }
    if (home->compmask & BIT(4)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(5)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(6)){
      if (home->g_fld != 5){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 7);
  }
  if ((home->compmask & BIT(0))){
    if (home->a_fld != -4){
      pe_sint32_cwn_ua (home->a_fld, -9, -2, 3);
    }
  }
  if ((home->compmask & BIT(1))){
    if (home->b_fld != TRUE){
      pe_Boolean (home->b_fld);
    }
  }
  if ((home->compmask & BIT(2))){
    if (home->c_fld.value != 1){
      {
        sint32 index;
        BOOLE extBit = FALSE;
        if (!home->c_fld.extended) {
          if (0 <= home->c_fld.value && home->c_fld.value <= 1) {
            index = home->c_fld.value;
          }
          else {
            extBit = TRUE;
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
        }
        else {
          extBit = TRUE;
          index = home->c_fld.value;
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
  }
  if ((home->compmask & BIT(3))){
    if (home->d_fld != 1){
      pe_sint32_cwn_ua (home->d_fld, 0, 1, 1);
    }
  }
  if ((home->compmask & BIT(4))){
    pe_OctetString_ua_feq1 (&home->e_fld, 1, 1, 0);
  }
  if ((home->compmask & BIT(5))){
    pe_Boolean (home->f_fld);
  }
  if ((home->compmask & BIT(6))){
    if (home->g_fld != 5){
      pe_sint32_cwn_ua (home->g_fld, 0, 7, 3);
    }
  }
}

void peAdditions (ASNG_F(ASNPERG *asnperg) Additions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (((home->compmask & BIT(1)) && (home->a_fld != 3)) || 
    (home->compmask & BIT(2)) || ((home->compmask & BIT(3)) && 
    (home->c_fld != FALSE)) || (home->compmask & BIT(4)) || (
    (home->compmask & BIT(5)) && (home->e_fld.value != 1)) || 
    (home->compmask & BIT(6))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(1))){
      if (home->a_fld != 3){
        extensionAdditionField_0 |= BITL(4);
      }
    }
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(3);
    }
    if ((home->compmask & BIT(3)) || (home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(2);
    }
    if ((home->compmask & BIT(5))){
      if (home->e_fld.value != 1){
        extensionAdditionField_0 |= BITL(1);
      }
    }
    if ((home->compmask & BIT(6))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (5, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(1))){
    if (home->a_fld != 3){
      pe_BeginOpenType_ua (&openctx_0);
      pe_sint32_cwn_ua (home->a_fld, 0, 7, 3);
      pe_EndOpenType_ua (&openctx_0);
    }
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_Boolean (home->b_fld);
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(3)) || (home->compmask & BIT(4))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(3)){
        if (home->c_fld != FALSE){
          optfield_1 |= BITL(1);
        }
      }
      if (home->compmask & BIT(4)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if ((home->compmask & BIT(3))){
        if (home->c_fld != FALSE){
          pe_Boolean (home->c_fld);
        }
      }
      if ((home->compmask & BIT(4))){
        pe_NullType ();
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(5))){
    if (home->e_fld.value != 1){
      pe_BeginOpenType_ua (&openctx_0);
      {
        sint32 index;
        BOOLE extBit = FALSE;
        if (!home->e_fld.extended) {
          if (home->e_fld.value == 0) {
            index = home->e_fld.value;
          }
          else {
            extBit = TRUE;
            if (home->e_fld.value == 1) {
              index = home->e_fld.value - 1;
            }
            else {
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
            }
          }
        }
        else {
          extBit = TRUE;
          index = home->e_fld.value;
        }
        pe_extensionBit (extBit);
        if (!extBit) {
          pe_sint32_cwn_ua (index, 0, 0, 0);
        }
        else {
          pe_normSmallNonNegWholeNumUa (index);
        }
      }
      pe_EndOpenType_ua (&openctx_0);
    }
  }
  if ((home->compmask & BIT(6))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_OctetString_ua_feq1 (&home->f_fld, 1, 1, 0);
    pe_EndOpenType_ua (&openctx_0);
  }
}

void peBound (ASNG_F(ASNPERG *asnperg) Bound *home)
{
  {
    struct t_s_Bound *h1 = (struct t_s_Bound *)home->s_fld->val.stru;
    {
      ASNPEROPENCTX openctx_1;
      BOOLE extensionBit_1 = 0;
      if (((h1->compmask & BIT(2)) && (h1->b_fld != TRUE))){
        extensionBit_1 = 1;
      }
      pe_extensionBit (extensionBit_1);
      {
        sint32 optfield_1 = 0;
        if (h1->compmask & BIT(0)){
          if (h1->a_fld != 3){
            optfield_1 |= BITL(0);
          }
        }
        pe_optField (optfield_1, 1);
      }
      if ((h1->compmask & BIT(0))){
        if (h1->a_fld != 3){
          pe_sint32_cwn_ua (h1->a_fld, 0, 7, 3);
        }
      }
      if (extensionBit_1){
        sint32 extensionAdditionField_1 = 0;
        if ((h1->compmask & BIT(2))){
          if (h1->b_fld != TRUE){
            extensionAdditionField_1 |= BITL(0);
          }
        }
        pe_extensionAddition (1, extensionAdditionField_1);
      }
      if ((h1->compmask & BIT(2))){
        if (h1->b_fld != TRUE){
          pe_BeginOpenType_ua (&openctx_1);
          pe_Boolean (h1->b_fld);
          pe_EndOpenType_ua (&openctx_1);
        }
      }
    }
  }
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (((home->compmask & BIT(3)) && (home->c_fld->val.bool != TRUE))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      if (home->a_fld->val.ui8 != 3){
        optfield_0 |= BITL(1);
      }
    }
    if (home->compmask & BIT(1)){
      if (home->b_fld->val.xenum.value != 1){
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
    if (home->b_fld->val.xenum.value != 1){
      {
        sint32 index;
        BOOLE extBit = FALSE;
        if (!home->b_fld->val.xenum.extended) {
          if (0 <= home->b_fld->val.xenum.value && home->b_fld->val.xenum.
            value <= 1) {
            index = home->b_fld->val.xenum.value;
          }
          else {
            extBit = TRUE;
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
        }
        else {
          extBit = TRUE;
          index = home->b_fld->val.xenum.value;
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
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(3))){
      if (home->c_fld->val.bool != TRUE){
        extensionAdditionField_0 |= BITL(0);
      }
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(3))){
    if (home->c_fld->val.bool != TRUE){
      pe_BeginOpenType_ua (&openctx_0);
      pe_Boolean (home->c_fld->val.bool);
      pe_EndOpenType_ua (&openctx_0);
    }
  }
}

void peHomeComps (ASNG_F(ASNPERG *asnperg) HomeComps *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->b_fld && (home->b_fld->val.bool != TRUE))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->a_fld){
      if (home->a_fld->val.ui8 != 3){
        optfield_0 |= BITL(0);
      }
    }
    pe_optField (optfield_0, 1);
  }
  if (home->a_fld){
    if (home->a_fld->val.ui8 != 3){
      pe_sint32_cwn_ua (home->a_fld->val.ui8, 0, 7, 3);
    }
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if (home->b_fld){
      if (home->b_fld->val.bool != TRUE){
        extensionAdditionField_0 |= BITL(0);
      }
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if (home->b_fld){
    if (home->b_fld->val.bool != TRUE){
      pe_BeginOpenType_ua (&openctx_0);
      pe_Boolean (home->b_fld->val.bool);
      pe_EndOpenType_ua (&openctx_0);
    }
  }
}

void peInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if (((home->s_fld.compmask & BIT(2)) && (home->s_fld.b_fld != TRUE))){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    {
      sint32 optfield_1 = 0;
      if (home->s_fld.compmask & BIT(0)){
        if (home->s_fld.a_fld != 3){
          optfield_1 |= BITL(0);
        }
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->s_fld.compmask & BIT(0))){
      if (home->s_fld.a_fld != 3){
        pe_sint32_cwn_ua (home->s_fld.a_fld, 0, 7, 3);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      if ((home->s_fld.compmask & BIT(2))){
        if (home->s_fld.b_fld != TRUE){
          extensionAdditionField_1 |= BITL(0);
        }
      }
      pe_extensionAddition (1, extensionAdditionField_1);
    }
    if ((home->s_fld.compmask & BIT(2))){
      if (home->s_fld.b_fld != TRUE){
        pe_BeginOpenType_ua (&openctx_1);
        pe_Boolean (home->s_fld.b_fld);
        pe_EndOpenType_ua (&openctx_1);
      }
    }
  }
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if ((home->t_fld.b_fld && (home->t_fld.b_fld->val.bool != TRUE))){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    {
      sint32 optfield_1 = 0;
      if (home->t_fld.a_fld){
        if (home->t_fld.a_fld->val.ui8 != 3){
          optfield_1 |= BITL(0);
        }
      }
      pe_optField (optfield_1, 1);
    }
    if (home->t_fld.a_fld){
      if (home->t_fld.a_fld->val.ui8 != 3){
        pe_sint32_cwn_ua (home->t_fld.a_fld->val.ui8, 0, 7, 3);
      }
    }
    if (extensionBit_1){
      sint32 extensionAdditionField_1 = 0;
      if (home->t_fld.b_fld){
        if (home->t_fld.b_fld->val.bool != TRUE){
          extensionAdditionField_1 |= BITL(0);
        }
      }
      pe_extensionAddition (1, extensionAdditionField_1);
    }
    if (home->t_fld.b_fld){
      if (home->t_fld.b_fld->val.bool != TRUE){
        pe_BeginOpenType_ua (&openctx_1);
        pe_Boolean (home->t_fld.b_fld->val.bool);
        pe_EndOpenType_ua (&openctx_1);
      }
    }
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peOne (ASNG_F(asnperg) &home->a_fld);
  peTypes (ASNG_F(asnperg) &home->b_fld);
  peAdditions (ASNG_F(asnperg) &home->c_fld);
  peBound (ASNG_F(asnperg) &home->d_fld);
  peHomes (ASNG_F(asnperg) &home->e_fld);
  peHomeComps (ASNG_F(asnperg) &home->f_fld);
  peInner (ASNG_F(asnperg) &home->g_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
