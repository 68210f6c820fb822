/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = LongLines
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peBool (ASNG_F(ASNPERG *asnperg) Bool *home)
{
  pe_Boolean (home->nameOfTwentyLettersX_fld);
  pe_Boolean (home->nameOfThirtyFourLettersInAComponen_fld);
  pe_Boolean (home->nameOfFortySixLettersInTheComponentOfSequenceX_fld);
  pe_Boolean (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld);
}

void peOid (ASNG_F(ASNPERG *asnperg) Oid *home)
{
  pe_ObjectIdentifier (&home->nameOfTwentyLettersX_fld);
  pe_ObjectIdentifier (&home->nameOfThirtyFourLettersInAComponen_fld);
  pe_ObjectIdentifier (
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld);
  pe_ObjectIdentifier (
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld);
}

void peSingle (ASNG_F(ASNPERG *asnperg) Single *home)
{
  pe_sint32_cwn_al_eq1 (home->nameOfTwentyLettersX_fld, 5);
  pe_sint32_cwn_al_eq1 (home->nameOfThirtyFourLettersInAComponen_fld, 5);
  pe_sint32_cwn_al_eq1 (
    home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 5);
  pe_sint32_cwn_al_eq1 (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld, 5);
}

void peSmall (ASNG_F(ASNPERG *asnperg) Small *home)
{
  pe_sint32_cwn_al_le255 (home->nameOfTwentyLettersX_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (home->nameOfThirtyFourLettersInAComponen_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (
    home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 0, 7, 3);
  pe_sint32_cwn_al_le255 (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld, 0,
    7, 3);
}

void peTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  pe_sint32_cwn_al_gt64K (home->nameOfTwentyLettersX_fld, -2147483648,
    2147483647, 4, 2);
  pe_sint32_cwn_al_gt64K (home->nameOfThirtyFourLettersInAComponen_fld,
    -2147483648, 2147483647, 4, 2);
  pe_sint32_cwn_al_gt64K (
    home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, -2147483648,
    2147483647, 4, 2);
  pe_sint32_cwn_al_gt64K (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld,
    -2147483648, 2147483647, 4, 2);
}

void peLong (ASNG_F(ASNPERG *asnperg) Long *home)
{
  pe_sint64_cwn_al_gt64K (home->nameOfTwentyLettersX_fld, i64ltosint64 (0L),
    i64make (1L, 0UL), 5, 3);
  pe_sint64_cwn_al_gt64K (home->nameOfThirtyFourLettersInAComponen_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint64_cwn_al_gt64K (
    home->nameOfFortySixLettersInTheComponentOfSequenceX_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
  pe_sint64_cwn_al_gt64K (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld,
    i64ltosint64 (0L), i64make (1L, 0UL), 5, 3);
}

void peSemi (ASNG_F(ASNPERG *asnperg) Semi *home)
{
  pe_sint32_scwn_al (home->nameOfTwentyLettersX_fld, 1234567);
  pe_sint32_scwn_al (home->nameOfThirtyFourLettersInAComponen_fld, 1234567);
  pe_sint32_scwn_al (home->nameOfFortySixLettersInTheComponentOfSequenceX_fld,
    1234567);
  pe_sint32_scwn_al (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld,
    1234567);
}

void peOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
  pe_sint32_ucwn_al (home->nameOfTwentyLettersX_fld);
  pe_sint32_ucwn_al (home->nameOfThirtyFourLettersInAComponen_fld);
  pe_sint32_ucwn_al (home->nameOfFortySixLettersInTheComponentOfSequenceX_fld);
  pe_sint32_ucwn_al (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld);
}

void peFunc (ASNG_F(ASNPERG *asnperg) Func *home)
{
  pe_function (home->nameOfTwentyLettersX_fld,argument1, argument2);
  pe_function (home->nameOfThirtyFourLettersInAComponen_fld,
    argument1, argument2);
  pe_function (home->nameOfFortySixLettersInTheComponentOfSequenceX_fld,
    argument1, argument2);
  pe_function (
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld,
    argument1, argument2);
}

void peOctets (ASNG_F(ASNPERG *asnperg) Octets *home)
{
  pe_OctetString_al_clt64K_le64K (&home->nameOfTwentyLettersX_fld, 1000,
    20000, 2);
  pe_OctetString_al_clt64K_le64K (
    &home->nameOfThirtyFourLettersInAComponen_fld, 1000, 20000, 2);
  pe_OctetString_al_clt64K_le64K (
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 1000, 20000,
    2);
  pe_OctetString_al_clt64K_le64K (
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld,
    1000, 20000, 2);
}

void peAnyLength (ASNG_F(ASNPERG *asnperg) AnyLength *home)
{
  pe_BitString_al_u (&home->nameOfTwentyLettersX_fld, 0, MAXLONG, 4);
  pe_BitString_al_u (&home->nameOfThirtyFourLettersInAComponen_fld, 0,
    MAXLONG, 4);
  pe_BitString_al_u (
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 0, MAXLONG, 4);
  pe_BitString_al_u (
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld, 0,
    MAXLONG, 4);
}

void peGeneral (ASNG_F(ASNPERG *asnperg) General *home)
{
  pe_UnknownMultiCharStri_al_u (&home->nameOfTwentyLettersX_fld, 0, MAXLONG,
    4);
  pe_UnknownMultiCharStri_al_u (&home->nameOfThirtyFourLettersInAComponen_fld,
    0, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 0, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld, 0,
    MAXLONG, 4);
}

void peChars (ASNG_F(ASNPERG *asnperg) Chars *home)
{
  pe_KnownMultiCharStri_al_u (&home->nameOfTwentyLettersX_fld, 0, 2147483647,
    4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_KnownMultiCharStri_al_u (&home->nameOfThirtyFourLettersInAComponen_fld,
    0, 2147483647, 4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_KnownMultiCharStri_al_u (
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 0, 2147483647,
    4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
  pe_KnownMultiCharStri_al_u (
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld, 0,
    2147483647, 4, 8, TYP_IA5STR, 26, "abcdefghijklmnopqrstuvwxyz");
}

void peDigits (ASNG_F(ASNPERG *asnperg) Digits *home)
{
  pe_SegKnownMultiCharStri_al_u (&home->nameOfTwentyLettersX_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_SegKnownMultiCharStri_al_u (
    &home->nameOfThirtyFourLettersInAComponen_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_SegKnownMultiCharStri_al_u (
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 0, 2147483647,
    4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pe_SegKnownMultiCharStri_al_u (
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld, 0,
    2147483647, 4, 4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
}

void peFrame (ASNG_F(ASNPERG *asnperg) Frame *home)
{
  pe_FrameOpenType_al (&home->nameOfTwentyLettersX_fld);
  pe_FrameOpenType_al (&home->nameOfThirtyFourLettersInAComponen_fld);
  pe_FrameOpenType_al (
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld);
  pe_FrameOpenType_al (
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld);
}

void peEnum (ASNG_F(ASNPERG *asnperg) Enum *home)
{
  pe_sint32_cwn_al_le255 (home->nameOfTwentyLettersX_fld, 0, 1, 1);
  pe_sint32_cwn_al_le255 (home->nameOfThirtyFourLettersInAComponen_fld, 
    0, 1, 1);
  pe_sint32_cwn_al_le255
    (home->nameOfFortySixLettersInTheComponentOfSequenceX_fld, 0, 1, 1);
  pe_sint32_cwn_al_le255
    (home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld, 
    0, 1, 1);
}

void peEnumOther (ASNG_F(ASNPERG *asnperg) EnumOther *home)
{
  sint32 index;
  if (1000 <= home->nameOfTwentyLettersX_fld && home->nameOfTwentyLettersX_fld
    <= 1001) {
    index = home->nameOfTwentyLettersX_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  if (1000 <= home->nameOfThirtyFourLettersInAComponen_fld && 
    home->nameOfThirtyFourLettersInAComponen_fld <= 1001) {
    index = home->nameOfThirtyFourLettersInAComponen_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  if (1000 <= home->nameOfFortySixLettersInTheComponentOfSequenceX_fld && 
    home->nameOfFortySixLettersInTheComponentOfSequenceX_fld <= 1001) {
    index = home->nameOfFortySixLettersInTheComponentOfSequenceX_fld - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
  sint32 index;
  if (1000 <= 
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld && 
    home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld
    <= 1001) {
    index = 
      home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld
      - 1000;
  }
  else {
    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
  }
  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
}

void peEnumHoles (ASNG_F(ASNPERG *asnperg) EnumHoles *home)
{
  sint32 index;
  switch (home->nameOfTwentyLettersX_fld) {
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
  sint32 index;
  switch (home->nameOfThirtyFourLettersInAComponen_fld) {
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
  sint32 index;
  switch (home->nameOfFortySixLettersInTheComponentOfSequenceX_fld) {
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
  sint32 index;
  switch (home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld) {
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
}

void peEnumExt (ASNG_F(ASNPERG *asnperg) EnumExt *home)
{
  {
    sint32 index;
    BOOLE extBit = FALSE;
    if (!home->nameOfTwentyLettersX_fld.extended) {
      if (1000 <= home->nameOfTwentyLettersX_fld.value && 
        home->nameOfTwentyLettersX_fld.value <= 1001) {
        index = home->nameOfTwentyLettersX_fld.value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->nameOfTwentyLettersX_fld.value == 2000) {
          index = home->nameOfTwentyLettersX_fld.value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->nameOfTwentyLettersX_fld.value;
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
    if (!home->nameOfThirtyFourLettersInAComponen_fld.extended) {
      if (1000 <= home->nameOfThirtyFourLettersInAComponen_fld.value && 
        home->nameOfThirtyFourLettersInAComponen_fld.value <= 1001) {
        index = home->nameOfThirtyFourLettersInAComponen_fld.value - 1000;
      }
      else {
        extBit = TRUE;
        if (home->nameOfThirtyFourLettersInAComponen_fld.value == 2000) {
          index = home->nameOfThirtyFourLettersInAComponen_fld.value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->nameOfThirtyFourLettersInAComponen_fld.value;
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
    if (!home->nameOfFortySixLettersInTheComponentOfSequenceX_fld.extended) {
      if (1000 <= home->nameOfFortySixLettersInTheComponentOfSequenceX_fld.
        value && home->nameOfFortySixLettersInTheComponentOfSequenceX_fld.
        value <= 1001) {
        index = home->nameOfFortySixLettersInTheComponentOfSequenceX_fld.value
          - 1000;
      }
      else {
        extBit = TRUE;
        if (home->nameOfFortySixLettersInTheComponentOfSequenceX_fld.value
          == 2000) {
          index = home->nameOfFortySixLettersInTheComponentOfSequenceX_fld.
            value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->nameOfFortySixLettersInTheComponentOfSequenceX_fld.value;
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
    if (!home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld.
      extended) {
      if (1000 <= 
        home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld.
        value && 
        home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld.
        value <= 1001) {
        index = 
          home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld.
          value - 1000;
      }
      else {
        extBit = TRUE;
        if (
          home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld.
          value == 2000) {
          index = 
            home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld.
            value - 2000;
        }
        else {
          index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
        }
      }
    }
    else {
      extBit = TRUE;
      index = home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld.
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
}

void peDefined (ASNG_F(ASNPERG *asnperg) Defined *home)
{
  pe_sint32_cwn_al_le255 (*home, 0, 1, 1);
}

void peEnumRef (ASNG_F(ASNPERG *asnperg) EnumRef *home)
{
  peDefined (ASNG_F(asnperg) &home->nameOfTwentyLettersX_fld);
  peDefined (ASNG_F(asnperg) &home->nameOfThirtyFourLettersInAComponen_fld);
  peDefined (ASNG_F(asnperg)
    &home->nameOfFortySixLettersInTheComponentOfSequenceX_fld);
  peDefined (ASNG_F(asnperg)
    &home->nameOfFiftyEightLettersWhichIsLongerThanALineHasRoomForItX_fld);
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peBool (ASNG_F(asnperg) &home->a_fld);
  peOid (ASNG_F(asnperg) &home->b_fld);
  peSingle (ASNG_F(asnperg) &home->c_fld);
  peSmall (ASNG_F(asnperg) &home->d_fld);
  peTwo (ASNG_F(asnperg) &home->e_fld);
  peLong (ASNG_F(asnperg) &home->f_fld);
  peSemi (ASNG_F(asnperg) &home->g_fld);
  peOpen (ASNG_F(asnperg) &home->h_fld);
  peFunc (ASNG_F(asnperg) &home->i_fld);
  peOctets (ASNG_F(asnperg) &home->j_fld);
  peAnyLength (ASNG_F(asnperg) &home->k_fld);
  peGeneral (ASNG_F(asnperg) &home->l_fld);
  peChars (ASNG_F(asnperg) &home->m_fld);
  peDigits (ASNG_F(asnperg) &home->n_fld);
  peFrame (ASNG_F(asnperg) &home->o_fld);
  peEnum (ASNG_F(asnperg) &home->p_fld);
  peEnumOther (ASNG_F(asnperg) &home->q_fld);
  peEnumHoles (ASNG_F(asnperg) &home->r_fld);
  peEnumExt (ASNG_F(asnperg) &home->s_fld);
  peEnumRef (ASNG_F(asnperg) &home->t_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
