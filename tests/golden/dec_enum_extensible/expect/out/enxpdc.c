/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Extensible
 * FILE = enxpdc.c
 ****************************************************************/

#ifndef ENXPER_EXT
#include "enxper.ext"
#endif

void pdContNone (ASNG_F(ASNPERG *asnperg) ContNone *home)
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
      home->extended = TRUE;
      home->value = index;
    }
  }
}

void pdContNoneOther (ASNG_F(ASNPERG *asnperg) ContNoneOther *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->value = index + 1;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      home->extended = TRUE;
      home->value = index;
    }
  }
}

void pdContCont (ASNG_F(ASNPERG *asnperg) ContCont *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->value = index + 1;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->value = index + 5;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdContContMore (ASNG_F(ASNPERG *asnperg) ContContMore *home)
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
      if (0 <= index && index <= 2) {
        home->value = index + 3;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdContHoles (ASNG_F(ASNPERG *asnperg) ContHoles *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
      home->value = index + 1;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->value = 5;
          break;
        case 1:
          home->value = 7;
          break;
        default:
          home->extended = TRUE;
          home->value = index;
          break;
      }
    }
  }
}

void pdHolesNone (ASNG_F(ASNPERG *asnperg) HolesNone *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 1;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      home->extended = TRUE;
      home->value = index;
    }
  }
}

void pdHolesCont (ASNG_F(ASNPERG *asnperg) HolesCont *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 1;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (0 <= index && index <= 1) {
        home->value = index + 6;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdHolesContZero (ASNG_F(ASNPERG *asnperg) HolesContZero *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 1;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->value = index;
      }
      else {
        home->extended = TRUE;
        home->value = index;
      }
    }
  }
}

void pdHolesHoles (ASNG_F(ASNPERG *asnperg) HolesHoles *home)
{
  {
    sint32 index;
    home->extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->value = 1;
          break;
        case 1:
          home->value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->value = 7;
          break;
        case 1:
          home->value = 9;
          break;
        default:
          home->extended = TRUE;
          home->value = index;
          break;
      }
    }
  }
}

void pdWords (ASNG_F(ASNPERG *asnperg) Words *home)
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
      home->extended = TRUE;
      home->value = index;
    }
  }
}

void pdInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  {
    sint32 index;
    home->contNone_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->contNone_fld.value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      home->contNone_fld.extended = TRUE;
      home->contNone_fld.value = index;
    }
  }
  {
    sint32 index;
    home->contCont_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->contCont_fld.value = index + 1;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->contCont_fld.value = index + 5;
      }
      else {
        home->contCont_fld.extended = TRUE;
        home->contCont_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->contHoles_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
      home->contHoles_fld.value = index + 1;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->contHoles_fld.value = 5;
          break;
        case 1:
          home->contHoles_fld.value = 7;
          break;
        default:
          home->contHoles_fld.extended = TRUE;
          home->contHoles_fld.value = index;
          break;
      }
    }
  }
  {
    sint32 index;
    home->holesNone_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->holesNone_fld.value = 1;
          break;
        case 1:
          home->holesNone_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      home->holesNone_fld.extended = TRUE;
      home->holesNone_fld.value = index;
    }
  }
  {
    sint32 index;
    home->holesCont_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->holesCont_fld.value = 1;
          break;
        case 1:
          home->holesCont_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (0 <= index && index <= 1) {
        home->holesCont_fld.value = index + 6;
      }
      else {
        home->holesCont_fld.extended = TRUE;
        home->holesCont_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->holesHoles_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->holesHoles_fld.value = 1;
          break;
        case 1:
          home->holesHoles_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->holesHoles_fld.value = 7;
          break;
        case 1:
          home->holesHoles_fld.value = 9;
          break;
        default:
          home->holesHoles_fld.extended = TRUE;
          home->holesHoles_fld.value = index;
          break;
      }
    }
  }
  pdContCont (ASNG_F(asnperg) &home->named_fld);
  createHome (NULL, &home->home_fld, VF_UI8, 0);
  {
    sint32 index;
    home->home_fld->val.xenum.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
      home->home_fld->val.xenum.value = index;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      home->home_fld->val.xenum.extended = TRUE;
      home->home_fld->val.xenum.value = index;
    }
  }
}

void pdList (ASNG_F(ASNPERG *asnperg) List *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_UI8, 0);
      {
        sint32 index;
        a1->val.xenum.extended = FALSE;
        if (!pd_extensionBit ()) {
          pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
          a1->val.xenum.value = index;
        }
        else {
          index = pd_normSmallNonNegWholeNumAl ();
          if (index == 0) {
            a1->val.xenum.value = index + 1;
          }
          else {
            a1->val.xenum.extended = TRUE;
            a1->val.xenum.value = index;
          }
        }
      }
      incListLen (home);
    }
  }
}

void pdArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);
    while (n1 < len_0){
      {
        sint32 index;
        home->elem [n1].extended = FALSE;
        if (!pd_extensionBit ()) {
          pd_sint32_cwn_al_le255 (&index, 0, 0, 0);
          home->elem [n1].value = index;
        }
        else {
          index = pd_normSmallNonNegWholeNumAl ();
          if (index == 0) {
            home->elem [n1].value = index + 5;
          }
          else {
            home->elem [n1].extended = TRUE;
            home->elem [n1].value = index;
          }
        }
      }
      incStaArrLen (home);
      n1++;
    }
  }
}
