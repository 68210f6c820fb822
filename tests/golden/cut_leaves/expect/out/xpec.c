/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutLeaves
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peNOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) NOf12xxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) IOf12xxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of12xxxxxxxxA_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->of12xxxxxxxxB_fld, -2147483648, 2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (home->of12xxxxxxxxC_fld, i64ltosint64 (0L),
    i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (home->of12xxxxxxxxD_fld, 1234567);
  pe_sint32_ucwn_al (home->of12xxxxxxxxE_fld);
  pe_function (home->of12xxxxxxxxF_fld,argument1, argument2);
  pe_Boolean (home->of12xxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (home->of12xxxxxxxxH_fld, 5);
}

void peSOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) SOf12xxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (&home->of12xxxxxxxxA_fld, 1000, 20000, 2);
  pe_BitString_al_u (&home->of12xxxxxxxxB_fld, 0, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (&home->of12xxxxxxxxC_fld, 0, MAXLONG, 4);
  pe_KnownMultiCharStri_al_u (&home->of12xxxxxxxxD_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (&home->of12xxxxxxxxE_fld, 0, 2147483647, 4,
    4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (&home->of12xxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (&home->of12xxxxxxxxG_fld, 1,
    20000, 2, 8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->of12xxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (&home->of12xxxxxxxxI_fld, 0, 2147483647, 4, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->of12xxxxxxxxJ_fld, 1, 10, 4,
    4, TYP_NUMSTR, 11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (home->of12xxxxxxxxK_fld, 0, 2000, 2);
}

void peEOf12xxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf12xxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of12xxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  if (1000 <= home->of12xxxxxxxxBEnum_fld && home->of12xxxxxxxxBEnum_fld
    <= 1001) {
    index = home->of12xxxxxxxxBEnum_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of12xxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of12xxxxxxxxDEnum_fld.extended) {
      if (1000 <= home->of12xxxxxxxxDEnum_fld.value && 
        home->of12xxxxxxxxDEnum_fld.value <= 1001) {
        index = home->of12xxxxxxxxDEnum_fld.value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of12xxxxxxxxDEnum_fld.value == 2000) {
          index = home->of12xxxxxxxxDEnum_fld.value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of12xxxxxxxxDEnum_fld.value;
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
    if (!home->of12xxxxxxxxEEnum_fld.extended) {
      switch (home->of12xxxxxxxxEEnum_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->of12xxxxxxxxEEnum_fld.value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of12xxxxxxxxEEnum_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf12xxxxxxxx (ASNG_F(asnperg) &home->of12xxxxxxxxFEnum_fld);
}

void peNOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) NOf15xxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) IOf15xxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of15xxxxxxxxxxxA_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->of15xxxxxxxxxxxB_fld, -2147483648, 2147483647,
    4, 2);
  pe_sint64_cwn_al_gt64K (home->of15xxxxxxxxxxxC_fld, i64ltosint64 (0L),
    i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (home->of15xxxxxxxxxxxD_fld, 1234567);
  pe_sint32_ucwn_al (home->of15xxxxxxxxxxxE_fld);
  pe_function (home->of15xxxxxxxxxxxF_fld,argument1, argument2);
  pe_Boolean (home->of15xxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (home->of15xxxxxxxxxxxH_fld, 5);
}

void peSOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) SOf15xxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (&home->of15xxxxxxxxxxxA_fld, 1000, 20000,
    2);
  pe_BitString_al_u (&home->of15xxxxxxxxxxxB_fld, 0, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (&home->of15xxxxxxxxxxxC_fld, 0, MAXLONG, 4);
  pe_KnownMultiCharStri_al_u (&home->of15xxxxxxxxxxxD_fld, 0, 2147483647, 4,
    8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (&home->of15xxxxxxxxxxxE_fld, 0, 2147483647,
    4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (&home->of15xxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (&home->of15xxxxxxxxxxxG_fld, 1,
    20000, 2, 8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->of15xxxxxxxxxxxH_fld, 1, 4, 2,
    8, TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (&home->of15xxxxxxxxxxxI_fld, 0, 2147483647, 4,
    16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->of15xxxxxxxxxxxJ_fld, 1, 10,
    4, 4, TYP_NUMSTR, 11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (home->of15xxxxxxxxxxxK_fld, 0, 2000, 2);
}

void peEOf15xxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf15xxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of15xxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  if (1000 <= home->of15xxxxxxxxxxxBEnum_fld && home->of15xxxxxxxxxxxBEnum_fld
    <= 1001) {
    index = home->of15xxxxxxxxxxxBEnum_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of15xxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of15xxxxxxxxxxxDEnum_fld.extended) {
      if (1000 <= home->of15xxxxxxxxxxxDEnum_fld.value && 
        home->of15xxxxxxxxxxxDEnum_fld.value <= 1001) {
        index = home->of15xxxxxxxxxxxDEnum_fld.value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of15xxxxxxxxxxxDEnum_fld.value == 2000) {
          index = home->of15xxxxxxxxxxxDEnum_fld.value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of15xxxxxxxxxxxDEnum_fld.value;
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
    if (!home->of15xxxxxxxxxxxEEnum_fld.extended) {
      switch (home->of15xxxxxxxxxxxEEnum_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->of15xxxxxxxxxxxEEnum_fld.value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of15xxxxxxxxxxxEEnum_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf15xxxxxxxxxxx (ASNG_F(asnperg) &home->of15xxxxxxxxxxxFEnum_fld);
}

void peNOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf22xxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf22xxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of22xxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->of22xxxxxxxxxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (home->of22xxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (home->of22xxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pe_sint32_ucwn_al (home->of22xxxxxxxxxxxxxxxxxxE_fld);
  pe_function (home->of22xxxxxxxxxxxxxxxxxxF_fld,argument1, argument2);
  pe_Boolean (home->of22xxxxxxxxxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (home->of22xxxxxxxxxxxxxxxxxxH_fld, 5);
}

void peSOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf22xxxxxxxxxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (&home->of22xxxxxxxxxxxxxxxxxxA_fld, 1000,
    20000, 2);
  pe_BitString_al_u (&home->of22xxxxxxxxxxxxxxxxxxB_fld, 0, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxC_fld, 0,
    MAXLONG, 4);
  pe_KnownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxD_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxE_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (&home->of22xxxxxxxxxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of22xxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8, TYP_IA5STR, BYTE_TYPE,
    128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->of22xxxxxxxxxxxxxxxxxxH_fld,
    1, 4, 2, 8, TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (&home->of22xxxxxxxxxxxxxxxxxxI_fld, 0,
    2147483647, 4, 16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (&home->of22xxxxxxxxxxxxxxxxxxJ_fld,
    1, 10, 4, 4, TYP_NUMSTR, 11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (home->of22xxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void peEOf22xxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf22xxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of22xxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  if (1000 <= home->of22xxxxxxxxxxxxxxxxxxBEnum_fld && 
    home->of22xxxxxxxxxxxxxxxxxxBEnum_fld <= 1001) {
    index = home->of22xxxxxxxxxxxxxxxxxxBEnum_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of22xxxxxxxxxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.extended) {
      if (1000 <= home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value && 
        home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value <= 1001) {
        index = home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value == 2000) {
          index = home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of22xxxxxxxxxxxxxxxxxxDEnum_fld.value;
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
    if (!home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.extended) {
      switch (home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of22xxxxxxxxxxxxxxxxxxEEnum_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf22xxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of22xxxxxxxxxxxxxxxxxxFEnum_fld);
}

void peNOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    -2147483648, 2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pe_sint32_ucwn_al (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pe_function (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,argument1, argument2);
  pe_Boolean (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void peSOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
    1000, 20000, 2);
  pe_BitString_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0, MAXLONG,
    4);
  pe_UnknownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0,
    MAXLONG, 4);
  pe_KnownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxE_fld,
    0, 2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8, TYP_IA5STR,
    BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8, TYP_PRISTR, 74,
    NULL);
  pe_KnownMultiCharStri_al_u (&home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0,
    2147483647, 4, 16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  pe_sint32_cwn_al_le64K (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void peEOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf30xxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 
    0, 1, 1);
  sint32 index;
  if (1000 <= home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld && 
    home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld <= 1001) {
    index = home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended) {
      if (1000 <= home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value && 
        home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value <= 1001) {
        index = home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value == 2000) {
          index = home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value;
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
    if (!home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended) {
      switch (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf30xxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of30xxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void peNOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    -2147483648, 2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pe_sint32_ucwn_al (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pe_function (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pe_Boolean (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void peSOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000, 2);
  pe_BitString_al_u (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0,
    MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG, 4);
  pe_KnownMultiCharStri_al_u (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
    0, 2147483647, 4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8,
    TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8, TYP_PRISTR,
    74, NULL);
  pe_KnownMultiCharStri_al_u (&home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld,
    0, 2147483647, 4, 16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4, TYP_NUMSTR,
    11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0,
    2000, 2);
}

void peEOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 
    0, 1, 1);
  sint32 index;
  if (1000 <= home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld && 
    home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld <= 1001) {
    index = home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended) {
      if (1000 <= home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value && 
        home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value <= 1001) {
        index = home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value == 2000) {
          index = home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value
            - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value;
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
    if (!home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended) {
      switch (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of34xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void peNOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  NOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  IOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
    0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    -2147483648, 2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
    1234567);
  pe_sint32_ucwn_al (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pe_function (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pe_Boolean (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void peSOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  SOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000, 2);
  pe_BitString_al_u (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0,
    MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG, 4);
  pe_KnownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0, 2147483647, 4, 8,
    TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (&home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2, 8,
    TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0, 2147483647, 4,
    16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld,
    0, 2000, 2);
}

void peEOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(ASNPERG *asnperg) 
  EOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255
    (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  if (1000 <= home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld && 
    home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld <= 1001) {
    index = home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.extended) {
      if (1000 <= home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value && home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value
        <= 1001) {
        index = home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value
          - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value
          == 2000) {
          index = home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
            value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value;
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
    if (!home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.extended) {
      switch (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of40xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void peNOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  NOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  IOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pe_sint32_ucwn_al (home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pe_function (home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pe_Boolean (home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void peSOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000,
    2);
  pe_BitString_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0, MAXLONG,
    4);
  pe_UnknownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG,
    4);
  pe_KnownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0, 2147483647,
    4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0, 2147483647,
    4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2,
    8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0, 2147483647,
    4, 16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (
    home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void peEOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255
    (home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  if (1000 <= home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
    && home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld <= 1001) {
    index = home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
      - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
      extended) {
      if (1000 <= 
        home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value
        && home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value
        <= 1001) {
        index = home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value == 2000) {
          index = 
            home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
            value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value;
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
    if (!home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
      extended) {
      switch (home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
        value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (
            home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
        value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of46xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void peNOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  NOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  IOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, -2147483648,
    2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 1234567);
  pe_sint32_ucwn_al (
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pe_function (home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pe_Boolean (home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void peSOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 1000, 20000,
    2);
  pe_BitString_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0, MAXLONG,
    4);
  pe_UnknownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0, MAXLONG,
    4);
  pe_KnownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1, 20000, 2,
    8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1, 4, 2, 8,
    TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0,
    2147483647, 4, 16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1, 10, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (
    home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0, 2000, 2);
}

void peEOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255
    (home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 0, 1, 1);
  sint32 index;
  if (1000 <= home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
    && home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
    <= 1001) {
    index = home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
      - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
      extended) {
      if (1000 <= 
        home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.value
        && home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value <= 1001) {
        index = home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value == 2000) {
          index = 
            home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
            value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value;
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
    if (!home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
      extended) {
      switch (home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
        value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (
            home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
        value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg)
    &home->of47xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}

void peNOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  NOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peIOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  IOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255 (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld, 0,
    7, 3);
  pe_sint32_cwn_al_gt64K (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld,
    -2147483648, 2147483647, 4, 2);
  pe_sint64_cwn_al_gt64K (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint32_scwn_al (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld,
    1234567);
  pe_sint32_ucwn_al (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld);
  pe_function (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld,
    argument1, argument2);
  pe_Boolean (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld);
  pe_sint32_cwn_al_eq1 (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 5);
}

void peSOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_OctetString_al_clt64K_le64K (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxA_fld,
    1000, 20000, 2);
  pe_BitString_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxB_fld, 0,
    MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxC_fld, 0,
    MAXLONG, 4);
  pe_KnownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxD_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_SegKnownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxE_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_FrameOpenType_al (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxF_fld);
  pe_SegKnownMultiCharStri_al_clt64K_le64K (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxG_fld, 1,
    20000, 2, 8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH_fld, 1,
    4, 2, 8, TYP_PRISTR, 74, NULL);
  pe_KnownMultiCharStri_al_u (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxI_fld, 0,
    2147483647, 4, 16, TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_al_clt64K_le255 (
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxJ_fld, 1,
    10, 4, 4, TYP_NUMSTR, 11, asnperNumStrChars);
  pe_sint32_cwn_al_le64K (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxK_fld, 0,
    2000, 2);
}

void peEOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_sint32_cwn_al_le255
    (home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEnum_fld, 
    0, 1, 1);
  sint32 index;
  if (1000 <= 
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
    && 
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
    <= 1001) {
    index = 
      home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxBEnum_fld
      - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  switch (
    home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxCEnum_fld) {
    case 1:
      index = 0;
      break;
    case 5:
      index = 1;
      break;
    default:
      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
      extended) {
      if (1000 <= 
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value && 
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value <= 1001) {
        index = 
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value - 1000;
      }
      else {
        extBit = TRUE;
        if (
          home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
          value == 2000) {
          index = 
            home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
            value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxDEnum_fld.
        value;
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
    if (!home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
      extended) {
      switch (
        home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
        value) {
        case 1:
          index = 0;
          break;
        case 5:
          index = 1;
          break;
        default:
          extBit = TRUE;
          switch (
            home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
            value) {
            case 2000:
              index = 0;
              break;
            case 3000:
              index = 1;
              break;
            default:
              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
          }
      }
    }
    else {
      extBit = TRUE;
      index = home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxEEnum_fld.
        value;
    }
    pe_extensionBit (extBit);
    if (!extBit) {
      pe_sint32_cwn_al_le255 (index, 0, 1, 1);
    }
    else {
      pe_normSmallNonNegWholeNumAl (index);
    }
  }
  peNOf57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_F(asnperg)
    &home->of57xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxFEnum_fld);
}
