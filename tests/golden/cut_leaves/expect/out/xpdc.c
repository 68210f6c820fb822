/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutLeaves
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void pdNOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) NOf12xxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) IOf12xxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of12xxxxxxxxA_fld, 0, 7, 3);
  pd_sint32_cwn_al_gt64K (&home->of12xxxxxxxxB_fld, -2147483648, 2147483647,
    4, 2);
  pd_sint64_cwn_al_gt64K (&home->of12xxxxxxxxC_fld, i64ltosint64 (0L),
    i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (&home->of12xxxxxxxxD_fld, 1234567);
  pd_sint32_ucwn_al (&home->of12xxxxxxxxE_fld);
  pd_function (&home->of12xxxxxxxxF_fld,argument1, argument2);
  pd_Boolean (&home->of12xxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (&home->of12xxxxxxxxH_fld, 5);
}

void pdSOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) SOf12xxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (&home->of12xxxxxxxxA_fld, 1000, 20000,
    2);
  pd_DynBitString_al_u (&home->of12xxxxxxxxB_fld, 0, MAXLONG, 4);
  pd_DynUnknownMultiCharStri_al_u (&home->of12xxxxxxxxC_fld, 0, MAXLONG, 4);
  pd_DynKnownMultiCharStri_al_u (&home->of12xxxxxxxxD_fld, 0, 2147483647, 4,
    8, TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (&home->of12xxxxxxxxE_fld, 0, 2147483647, 4,
    4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (&home->of12xxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (&home->of12xxxxxxxxG_fld, 1,
    20000, 2, 8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->of12xxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pd_DynKnownMultiCharStri_al_u (&home->of12xxxxxxxxI_fld, 0, 2147483647, 4,
    16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->of12xxxxxxxxJ_fld, 1, 10, 4,
    4, TYP_NUMSTR, 11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (&home->of12xxxxxxxxK_fld, 0, 2000, 2);
}

void pdEOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf12xxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of12xxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of12xxxxxxxxBEnum_fld = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of12xxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of12xxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of12xxxxxxxxDEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of12xxxxxxxxDEnum_fld.value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of12xxxxxxxxDEnum_fld.value = index + 2000;
      }
      else {
        home->of12xxxxxxxxDEnum_fld.extended = TRUE;
        home->of12xxxxxxxxDEnum_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->of12xxxxxxxxEEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of12xxxxxxxxEEnum_fld.value = 1;
          break;
        case 1:
          home->of12xxxxxxxxEEnum_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of12xxxxxxxxEEnum_fld.value = 2000;
          break;
        case 1:
          home->of12xxxxxxxxEEnum_fld.value = 3000;
          break;
        default:
          home->of12xxxxxxxxEEnum_fld.extended = TRUE;
          home->of12xxxxxxxxEEnum_fld.value = index;
          break;
      }
    }
  }
  pdNOf12xxxxxxxx (ASNG_F(asnperg) &home->of12xxxxxxxxFEnum_fld);
}

void pdNOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) NOf15xxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) IOf15xxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of15xxxxxxxxxxxA_fld, 0, 7, 3);
  pd_sint32_cwn_al_gt64K (&home->of15xxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (&home->of15xxxxxxxxxxxC_fld, i64ltosint64 (0L),
    i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (&home->of15xxxxxxxxxxxD_fld, 1234567);
  pd_sint32_ucwn_al (&home->of15xxxxxxxxxxxE_fld);
  pd_function (&home->of15xxxxxxxxxxxF_fld,argument1, argument2);
  pd_Boolean (&home->of15xxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (&home->of15xxxxxxxxxxxH_fld, 5);
}

void pdSOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) SOf15xxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (&home->of15xxxxxxxxxxxA_fld, 1000, 20000,
    2);
  pd_DynBitString_al_u (&home->of15xxxxxxxxxxxB_fld, 0, MAXLONG, 4);
  pd_DynUnknownMultiCharStri_al_u (&home->of15xxxxxxxxxxxC_fld, 0, MAXLONG,
    4);
  pd_DynKnownMultiCharStri_al_u (&home->of15xxxxxxxxxxxD_fld, 0, 2147483647,
    4, 8, TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (&home->of15xxxxxxxxxxxE_fld, 0, 2147483647,
    4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (&home->of15xxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (&home->of15xxxxxxxxxxxG_fld, 1,
    20000, 2, 8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->of15xxxxxxxxxxxH_fld, 1, 4, 2,
    8, TYP_PRISTR, 74, NULL);
  pd_DynKnownMultiCharStri_al_u (&home->of15xxxxxxxxxxxI_fld, 0, 2147483647,
    4, 16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->of15xxxxxxxxxxxJ_fld, 1, 10,
    4, 4, TYP_NUMSTR, 11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (&home->of15xxxxxxxxxxxK_fld, 0, 2000, 2);
}

void pdEOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf15xxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of15xxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of15xxxxxxxxxxxBEnum_fld = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of15xxxxxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of15xxxxxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of15xxxxxxxxxxxDEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of15xxxxxxxxxxxDEnum_fld.value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of15xxxxxxxxxxxDEnum_fld.value = index + 2000;
      }
      else {
        home->of15xxxxxxxxxxxDEnum_fld.extended = TRUE;
        home->of15xxxxxxxxxxxDEnum_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->of15xxxxxxxxxxxEEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of15xxxxxxxxxxxEEnum_fld.value = 1;
          break;
        case 1:
          home->of15xxxxxxxxxxxEEnum_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of15xxxxxxxxxxxEEnum_fld.value = 2000;
          break;
        case 1:
          home->of15xxxxxxxxxxxEEnum_fld.value = 3000;
          break;
        default:
          home->of15xxxxxxxxxxxEEnum_fld.extended = TRUE;
          home->of15xxxxxxxxxxxEEnum_fld.value = index;
          break;
      }
    }
  }
  pdNOf15xxxxxxxxxxx (ASNG_F(asnperg) &home->of15xxxxxxxxxxxFEnum_fld);
}

void pdNOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf22xxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf22xxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of22xxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pd_sint32_cwn_al_gt64K (&home->of22xxxxxxxxxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (&home->of22xxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (&home->of22xxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pd_sint32_ucwn_al (&home->of22xxxxxxxxxxxxxxxxxxE_fld);
  pd_function (&home->of22xxxxxxxxxxxxxxxxxxF_fld,argument1, argument2);
  pd_Boolean (&home->of22xxxxxxxxxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (&home->of22xxxxxxxxxxxxxxxxxxH_fld, 5);
}

void pdSOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf22xxxxxxxxxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (&home->of22xxxxxxxxxxxxxxxxxxA_fld, 1000,
    20000, 2);
  pd_DynBitString_al_u (&home->of22xxxxxxxxxxxxxxxxxxB_fld, 0, MAXLONG, 4);
  pd_DynUnknownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxC_fld, 0,
    MAXLONG, 4);
  pd_DynKnownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxD_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxE_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (&home->of22xxxxxxxxxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of22xxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8, TYP_IA5STR, BYTE_TYPE,
    128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->of22xxxxxxxxxxxxxxxxxxH_fld,
    1, 4, 2, 8, TYP_PRISTR, 74, NULL);
  pd_DynKnownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxI_fld, 0,
    2147483647, 4, 16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->of22xxxxxxxxxxxxxxxxxxJ_fld,
    1, 10, 4, 4, TYP_NUMSTR, 11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (&home->of22xxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void pdEOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf22xxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of22xxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of22xxxxxxxxxxxxxxxxxxBEnum_fld = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of22xxxxxxxxxxxxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of22xxxxxxxxxxxxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value = index + 2000;
      }
      else {
        home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.extended = TRUE;
        home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value = 1;
          break;
        case 1:
          home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value = 2000;
          break;
        case 1:
          home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value = 3000;
          break;
        default:
          home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.extended = TRUE;
          home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value = index;
          break;
      }
    }
  }
  pdNOf22xxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of22xxxxxxxxxxxxxxxxxxFEnum_fld);
}

void pdNOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pd_sint32_cwn_al_gt64K (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    -2147483648, 2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pd_sint32_ucwn_al (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pd_function (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,argument1, argument2);
  pd_Boolean (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void pdSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000, 2);
  pd_DynBitString_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0,
    MAXLONG, 4);
  pd_DynUnknownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    0, MAXLONG, 4);
  pd_DynKnownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
    0, 2147483647, 4, 8, TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxE_fld,
    0, 2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8, TYP_IA5STR,
    BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8, TYP_PRISTR, 74,
    NULL);
  pd_DynKnownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxI_fld,
    0, 2147483647, 4, 16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0,
    2000, 2);
}

void pdEOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 
    0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index + 2000;
      }
      else {
        home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended = TRUE;
        home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 1;
          break;
        case 1:
          home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 2000;
          break;
        case 1:
          home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 3000;
          break;
        default:
          home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended = TRUE;
          home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = index;
          break;
      }
    }
  }
  pdNOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void pdNOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0,
    7, 3);
  pd_sint32_cwn_al_gt64K (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    -2147483648, 2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pd_sint32_ucwn_al (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pd_function (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pd_Boolean (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void pdSOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000, 2);
  pd_DynBitString_al_u (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0,
    MAXLONG, 4);
  pd_DynUnknownMultiCharStri_al_u (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG, 4);
  pd_DynKnownMultiCharStri_al_u (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8,
    TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8, TYP_PRISTR,
    74, NULL);
  pd_DynKnownMultiCharStri_al_u (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0, 2147483647, 4, 16,
    TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4, TYP_NUMSTR,
    11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld,
    0, 2000, 2);
}

void pdEOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8
    (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index + 2000;
      }
      else {
        home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended = TRUE;
        home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 1;
          break;
        case 1:
          home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 2000;
          break;
        case 1:
          home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 3000;
          break;
        default:
          home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended = TRUE;
          home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = index;
          break;
      }
    }
  }
  pdNOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void pdNOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pd_sint32_cwn_al_gt64K (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, i64ltosint64 (0L),
    i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
    1234567);
  pd_sint32_ucwn_al (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pd_function (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pd_Boolean (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void pdSOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000, 2);
  pd_DynBitString_al_u (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    0, MAXLONG, 4);
  pd_DynUnknownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG, 4);
  pd_DynKnownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8,
    TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pd_DynKnownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0, 2147483647, 4,
    16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void pdEOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8
    (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index
        + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index
          + 2000;
      }
      else {
        home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          extended = TRUE;
        home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value = index;
      }
    }
  }
  {
    sint32 index;
    home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 1;
          break;
        case 1:
          home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 2000;
          break;
        case 1:
          home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 3000;
          break;
        default:
          home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            extended = TRUE;
          home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = index;
          break;
      }
    }
  }
  pdNOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void pdNOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  NOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  IOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pd_sint32_cwn_al_gt64K (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pd_sint32_ucwn_al (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pd_function (&home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pd_Boolean (&home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void pdSOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000,
    2);
  pd_DynBitString_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0, MAXLONG,
    4);
  pd_DynUnknownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG,
    4);
  pd_DynKnownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0, 2147483647,
    4, 8, TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0, 2147483647,
    4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2,
    8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pd_DynKnownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0, 2147483647,
    4, 16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void pdEOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8
    (&home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
      extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value = index + 2000;
      }
      else {
        home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          extended = TRUE;
        home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value = index;
      }
    }
  }
  {
    sint32 index;
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
      extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 1;
          break;
        case 1:
          home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 2000;
          break;
        case 1:
          home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 3000;
          break;
        default:
          home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            extended = TRUE;
          home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = index;
          break;
      }
    }
  }
  pdNOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void pdNOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  NOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  IOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pd_sint32_cwn_al_gt64K (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pd_sint32_ucwn_al (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pd_function (&home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pd_Boolean (&home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void pdSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000,
    2);
  pd_DynBitString_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0, MAXLONG,
    4);
  pd_DynUnknownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG,
    4);
  pd_DynKnownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2,
    8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pd_DynKnownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0,
    2147483647, 4, 16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void pdEOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8
    (&home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld = index
    + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 1;
      break;
    case 1:
      home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
      extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value = index + 2000;
      }
      else {
        home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          extended = TRUE;
        home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value = index;
      }
    }
  }
  {
    sint32 index;
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
      extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 1;
          break;
        case 1:
          home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 2000;
          break;
        case 1:
          home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value
            = 3000;
          break;
        default:
          home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            extended = TRUE;
          home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = index;
          break;
      }
    }
  }
  pdNOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void pdNOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  NOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (home, 0, 1, 1);
}

void pdIOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  IOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8 (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0,
    7, 3);
  pd_sint32_cwn_al_gt64K (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    -2147483648, 2147483647, 4, 2);
  pd_sint64_cwn_al_gt64K (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pd_sint32_scwn_al (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
    1234567);
  pd_sint32_ucwn_al (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pd_function (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pd_Boolean (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pd_sint32_cwn_al_eq1 (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void pdSOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_DynOctetString_al_clt64K_le64K (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
    1000, 20000, 2);
  pd_DynBitString_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0,
    MAXLONG, 4);
  pd_DynUnknownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0,
    MAXLONG, 4);
  pd_DynKnownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, BYTE_TYPE, 26, "abcdefghijklmnopqrstuvwxyz");
  pd_SegKnownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_FrameOpenType_al (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pd_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1,
    20000, 2, 8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1,
    4, 2, 8, TYP_PRISTR, 74, NULL);
  pd_DynKnownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0,
    2147483647, 4, 16, TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
  pd_KnownMultiCharStri_al_clt64K_le255 (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1,
    10, 4, 4, TYP_NUMSTR, 11, asnperNumStrChars);
  pd_sint32_cwn_al_le64K_16 (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0,
    2000, 2);
}

void pdEOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pd_sint32_cwn_al_le255_8
    (&home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 
    0, 1, 1);
  sint32 index;
  pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
  home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
    = index + 1000;
  sint32 index;
  pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
  switch (index) {
    case 0:
      home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld
        = 1;
      break;
    case 1:
      home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld
        = 5;
      break;
    default:
      break;
  }
  {
    sint32 index;
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
      extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value = index + 1000;
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      if (index == 0) {
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value = index + 2000;
      }
      else {
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          extended = TRUE;
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value = index;
      }
    }
  }
  {
    sint32 index;
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
      extended = FALSE;
    if (!pd_extensionBit ()) {
      pd_sint32_cwn_al_le255 (&index, 0, 1, 1);
      switch (index) {
        case 0:
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = 1;
          break;
        case 1:
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = 5;
          break;
        default:
          break;
      }
    }
    else {
      index = pd_normSmallNonNegWholeNumAl ();
      switch (index) {
        case 0:
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = 2000;
          break;
        case 1:
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = 3000;
          break;
        default:
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            extended = TRUE;
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value = index;
          break;
      }
    }
  }
  pdNOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_F(asnperg)
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}
