/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Extensible
 * FILE = enxpec.c
 ****************************************************************/

#ifndef ENXPER_EXT
#include "enxper.ext"
#endif

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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peContNoneOther (ASNG_F(ASNPERG *asnperg) ContNoneOther *home)
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
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peContCont (ASNG_F(ASNPERG *asnperg) ContCont *home)
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peContContMore (ASNG_F(ASNPERG *asnperg) ContContMore *home)
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
        if (3 <= home->value && home->value <= 5) {
          index = home->value - 3;
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peContHoles (ASNG_F(ASNPERG *asnperg) ContHoles *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      if (home->value == 1) {
        index = home->value - 1;
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
      pe_sint32_cwn_al_le255 (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
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
        case 1:
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
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
        case 1:
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peHolesContZero (ASNG_F(ASNPERG *asnperg) HolesContZero *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->extended) {
      switch (home->value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          if (home->value == 0) {
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
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
        case 1:
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peWords (ASNG_F(ASNPERG *asnperg) Words *home)
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
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->contNone_fld.extended) {
      if (0 <= home->contNone_fld.value && home->contNone_fld.value <= 1) {
        index = home->contNone_fld.value;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->contNone_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->contCont_fld.extended) {
      if (1 <= home->contCont_fld.value && home->contCont_fld.value <= 2) {
        index = home->contCont_fld.value - 1;
      }
      else {
        extBit = TRUE;
        if (home->contCont_fld.value == 5) {
          index = home->contCont_fld.value - 5;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->contCont_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->contHoles_fld.extended) {
      if (home->contHoles_fld.value == 1) {
        index = home->contHoles_fld.value - 1;
      }
      else {
        extBit = TRUE;
        switch (home->contHoles_fld.value) {
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
      index = home->contHoles_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->holesNone_fld.extended) {
      switch (home->holesNone_fld.value) {
        case 1:
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
      index = home->holesNone_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->holesCont_fld.extended) {
      switch (home->holesCont_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          if (6 <= home->holesCont_fld.value && home->holesCont_fld.value
            <= 7) {
            index = home->holesCont_fld.value - 6;
          }
          else {
            index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->holesCont_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->holesHoles_fld.extended) {
      switch (home->holesHoles_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->holesHoles_fld.value) {
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
      index = home->holesHoles_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peContCont (ASNG_F(asnperg) &home->named_fld);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->home_fld->val.xenum.extended) {
      if (home->home_fld->val.xenum.value == 0) {
        index = home->home_fld->val.xenum.value;
      }
      else {
        extBit = TRUE;
        index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
      }
    }
    else {
      extBit = TRUE;
      index = home->home_fld->val.xenum.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 0, 0);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_al_clt64K_le255 (listLen (home), 1, 3, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      {
        sint32 index;
        BOOLE extBit = FALSE;
        if (!a1->val.xenum.extended) {
          if (a1->val.xenum.value == 0) {
            index = a1->val.xenum.value;
          }
          else {
            extBit = TRUE;
            if (a1->val.xenum.value == 1) {
              index = a1->val.xenum.value - 1;
            }
            else {
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
            }
          }
        }
        else {
          extBit = TRUE;
          index = a1->val.xenum.value;
        }
        pe_extensionBit (extBit);
        if (!extBit) {
          pe_sint32_cwn_al_le255 (index, 0, 0, 0);
        }
        else {
          pe_normSmallNonNegWholeNumAl (index);
        }
      }
    }
  }
}

void peArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      {
        sint32 index;
        BOOLE extBit = FALSE;
        if (!home->elem [n1].extended) {
          if (home->elem [n1].value == 0) {
            index = home->elem [n1].value;
          }
          else {
            extBit = TRUE;
            if (home->elem [n1].value == 5) {
              index = home->elem [n1].value - 5;
            }
            else {
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
            }
          }
        }
        else {
          extBit = TRUE;
          index = home->elem [n1].value;
        }
        pe_extensionBit (extBit);
        if (!extBit) {
          pe_sint32_cwn_al_le255 (index, 0, 0, 0);
        }
        else {
          pe_normSmallNonNegWholeNumAl (index);
        }
      }
    }
  }
}
