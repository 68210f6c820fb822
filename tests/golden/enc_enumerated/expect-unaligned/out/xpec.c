/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Enumerations
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_sint32_cwn_ua (*home, 0, 1, 1);
}

void pecEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peEntry (ASNG_F(asnperg) home);
  pe_end ();
}

void peOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  pe_sint32_cwn_ua_eq1 (0, 0);
}

void peOneOther (ASNG_F(ASNPERG *asnperg) OneOther *home)
{
  pe_sint32_cwn_ua_eq1 (0, 0);
}

void peN (ASNG_F(ASNPERG *asnperg) N *home)
{
  pe_sint32_cwn_ua (*home, 0, 2, 2);
}

void peTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  pe_sint32_cwn_ua (*home, 0, 1, 1);
}

void peOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  sint32 index;
  if (5 <= *home && *home <= 6) {
    index = *home - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 1, 1);
}

void peNegative (ASNG_F(ASNPERG *asnperg) Negative *home)
{
  sint32 index;
  if (-1 <= *home && *home <= 1) {
    index = *home - -1;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 2, 2);
}

void peM (ASNG_F(ASNPERG *asnperg) M *home)
{
  sint32 index;
  switch (*home) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 1, 1);
}

void peSorted (ASNG_F(ASNPERG *asnperg) Sorted *home)
{
  sint32 index;
  switch (*home) {
    case -4:
      index = 0;
      break;
    case 1:
      index = 1;
      break;
    case 3:
      index = 2;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 2, 2);
}

void peContNone (ASNG_F(ASNPERG *asnperg) ContNone *home)
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
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
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

void peContNoneOther (ASNG_F(ASNPERG *asnperg) ContNoneOther *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (3 <= home->value && home->value <= 5) {
        index = home->value - 3;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 2, 2);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}

void peSingleNone (ASNG_F(ASNPERG *asnperg) SingleNone *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (home->value == 2) {
        index = home->value - 2;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}

void peE (ASNG_F(ASNPERG *asnperg) E *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (1 <= home->value && home->value <= 2) {
        index = home->value - 1;
      }
      else {
        extBit = TRUE;
        if (home->value == 5) {
          index = home->value - 5;
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

void peContCont (ASNG_F(ASNPERG *asnperg) ContCont *home)
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
        if (6 <= home->value && home->value <= 7) {
          index = home->value - 6;
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

void peBelow (ASNG_F(ASNPERG *asnperg) Below *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (9 <= home->value && home->value <= 10) {
        index = home->value - 9;
      }
      else {
        extBit = TRUE;
        if (0 <= home->value && home->value <= 1) {
          index = home->value;
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

void peContHoles (ASNG_F(ASNPERG *asnperg) ContHoles *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (home->value == 0) {
        index = home->value;
      }
      else {
        extBit = TRUE;
        switch (home->value) {
          case 5:
            index = 0;
            break;
          case 7:
            index = 1;
            break;
          default:
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
      pe_sint32_cwn_ua (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
}

void peHolesNone (ASNG_F(ASNPERG *asnperg) HolesNone *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      switch (home->value) {
        case 0:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
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

void peHolesCont (ASNG_F(ASNPERG *asnperg) HolesCont *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      switch (home->value) {
        case 0:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          if (6 <= home->value && home->value <= 7) {
            index = home->value - 6;
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

void peHolesHoles (ASNG_F(ASNPERG *asnperg) HolesHoles *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      switch (home->value) {
        case 3:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->value) {
            case 7:
              index = 0;
              break;
            case 9:
              index = 1;
              break;
            default:
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

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  pe_sint32_cwn_ua_eq1 (0, 0);
  pe_sint32_cwn_ua (home->b_fld, 0, 1, 1);
  sint32 index;
  if (5 <= home->c_fld && home->c_fld <= 6) {
    index = home->c_fld - 5;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 1, 1);
  sint32 index;
  switch (home->d_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_ua (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->e_fld.extended) {
      if (0 <= home->e_fld.value && home->e_fld.value <= 1) {
        index = home->e_fld.value;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->e_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->f_fld.extended) {
      if (1 <= home->f_fld.value && home->f_fld.value <= 2) {
        index = home->f_fld.value - 1;
      }
      else {
        extBit = TRUE;
        if (home->f_fld.value == 5) {
          index = home->f_fld.value - 5;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->f_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->g_fld.extended) {
      if (home->g_fld.value == 0) {
        index = home->g_fld.value;
      }
      else {
        extBit = TRUE;
        switch (home->g_fld.value) {
          case 5:
            index = 0;
            break;
          case 7:
            index = 1;
            break;
          default:
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->g_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->h_fld.extended) {
      switch (home->h_fld.value) {
        case 0:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->h_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->i_fld.extended) {
      switch (home->i_fld.value) {
        case 0:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          if (home->i_fld.value == 6) {
            index = home->i_fld.value - 6;
          }
          else {
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->i_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_ua (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumUa (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->j_fld.extended) {
      switch (home->j_fld.value) {
        case 0:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->j_fld.value) {
            case 6:
              index = 0;
              break;
            case 9:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->j_fld.value;
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

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(6)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_ua (*home->a_fld, 0, 1, 1);
  pe_lenDet_ua_clt64K_eq1 (staArrLen (&home->b_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->b_fld); n1++){
      pe_sint32_cwn_ua (home->b_fld.elem [n1], 0, 1, 1);
    }
  }
  pe_lenDet_ua_clt64K_eq1 (listLen (&home->c_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->c_fld); a1; a1 = nextListItem (a1)){
      pe_sint32_cwn_ua (a1->val.ui8, 0, 1, 1);
    }
  }
  {
    {
      sint32 index;
      BOOLE extBit = FALSE;
      if (!home->d_fld.e_fld.extended) {
        if (home->d_fld.e_fld.value == 5) {
          index = home->d_fld.e_fld.value - 5;
        }
        else {
          extBit = TRUE;
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
      else {
        extBit = TRUE;
        index = home->d_fld.e_fld.value;
      }
      pe_extensionBit (extBit);
      if (!extBit) {
        pe_sint32_cwn_ua (index, 0, 0, 0);
      }
      else {
        pe_normSmallNonNegWholeNumUa (index);
      }
    }
  }
  pe_lenDet_ua_clt64K_eq1 (staArrLen (&home->f_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->f_fld); n1++){
      peE (ASNG_F(asnperg) &home->f_fld.elem [n1]);
    }
  }
  peN (ASNG_F(asnperg) home->g_fld);
  if ((home->compmask & BIT(6))){
    peE (ASNG_F(asnperg) &home->h_fld);
  }
  pe_lenDet_ua_clt64K_eq1 (listLen (&home->i_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->i_fld); a1; a1 = nextListItem (a1)){
      {
        sint32 index;
        BOOLE extBit = FALSE;
        if (!a1->val.xenum.extended) {
          if (a1->val.xenum.value == 0) {
            index = a1->val.xenum.value;
          }
          else {
            extBit = TRUE;
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
        }
        else {
          extBit = TRUE;
          index = a1->val.xenum.value;
        }
        pe_extensionBit (extBit);
        if (!extBit) {
          pe_sint32_cwn_ua (index, 0, 0, 0);
        }
        else {
          pe_normSmallNonNegWholeNumUa (index);
        }
      }
    }
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peOne (ASNG_F(asnperg) &home->a_fld);
  peOneOther (ASNG_F(asnperg) &home->b_fld);
  peN (ASNG_F(asnperg) &home->c_fld);
  peTwo (ASNG_F(asnperg) &home->d_fld);
  peOther (ASNG_F(asnperg) &home->e_fld);
  peNegative (ASNG_F(asnperg) &home->f_fld);
  peM (ASNG_F(asnperg) &home->g_fld);
  peSorted (ASNG_F(asnperg) &home->h_fld);
  peContNone (ASNG_F(asnperg) &home->i_fld);
  peContNoneOther (ASNG_F(asnperg) &home->j_fld);
  peSingleNone (ASNG_F(asnperg) &home->k_fld);
  peE (ASNG_F(asnperg) &home->l_fld);
  peContCont (ASNG_F(asnperg) &home->m_fld);
  peBelow (ASNG_F(asnperg) &home->n_fld);
  peContHoles (ASNG_F(asnperg) &home->o_fld);
  peHolesNone (ASNG_F(asnperg) &home->p_fld);
  peHolesCont (ASNG_F(asnperg) &home->q_fld);
  peHolesHoles (ASNG_F(asnperg) &home->r_fld);
  peE (ASNG_F(asnperg) &home->s_fld);
  peInline (ASNG_F(asnperg) &home->t_fld);
  peHomes (ASNG_F(asnperg) &home->u_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
