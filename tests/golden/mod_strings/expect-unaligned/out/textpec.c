/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Directory_Strings
 * FILE = textpec.c
 ****************************************************************/

#ifndef TEXTPER_EXT
#include "textper.ext"
#endif

void peDigits (ASNG_F(ASNPERG *asnperg) Digits *home)
{
  pe_KnownMultiCharStri_ua_flt64K (&home->fixed_fld, 4, 4, 0, 4, TYP_NUMSTR,
    11, asnperNumStrChars);
  pe_KnownMultiCharStri_ua_clt64K (&home->limited_fld, 3, 15, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_KnownMultiCharStri_ua_u (&home->open_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pe_KnownMultiCharStri_ua_flt64K (&home->binary_fld, 8, 8, 0, 1, TYP_NUMSTR,
    2, "01");
}

void peNames (ASNG_F(ASNPERG *asnperg) Names *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(3);
    }
    if (home->compmask & BIT(3)){
      optfield_0 |= BITL(2);
    }
    if (home->compmask & BIT(6)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(7)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 4);
  }
  pe_KnownMultiCharStri_ua_flt64K (&home->country_fld, 2, 2, 0, 7, TYP_PRISTR,
    74, NULL);
  if ((home->compmask & BIT(1))){
    pe_KnownMultiCharStri_ua_clt64K (&home->short_fld, 1, 8, 3, 7, TYP_PRISTR,
      74, NULL);
  }
  pe_KnownMultiCharStri_ua_flt64K (&home->code_fld, 3, 3, 0, 7, TYP_VISSTR,
    95, NULL);
  if ((home->compmask & BIT(3))){
    pe_KnownMultiCharStri_ua_clt64K (&home->title_fld, 0, 64, 7, 7,
      TYP_VISSTR, 95, NULL);
  }
  pe_KnownMultiCharStri_ua_clt64K (&home->login_fld, 1, 20, 5, 6, TYP_IA5STR,
    36, "0123456789abcdefghijklmnopqrstuvwxyz");
  pe_KnownMultiCharStri_ua_clt64K (&home->mail_fld, 1, 256, 1, 7, TYP_IA5STR,
    128, NULL);
  if ((home->compmask & BIT(6))){
    pe_SegKnownMultiCharStri_ua_cge64K (&home->remark_fld, 0, 100000, 3, 7,
      TYP_IA5STR, BYTE_TYPE, 128, NULL);
  }
  if ((home->compmask & BIT(7))){
    pe_KnownMultiCharStri_ua_clt64K (&home->page_fld, 0, 5000, 2, 7,
      TYP_IA5STR, 128, NULL);
  }
}

void peWide (ASNG_F(ASNPERG *asnperg) Wide *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_KnownMultiCharStri_ua_flt64K (&home->initials_fld, 2, 2, 0, 16,
    TYP_BMPSTR, 65534, NULL);
  pe_KnownMultiCharStri_ua_clt64K (&home->family_fld, 1, 30, 5, 16,
    TYP_BMPSTR, 65534, NULL);
  if ((home->compmask & BIT(2))){
    pe_KnownMultiCharStri_ua_u (&home->given_fld, 0, 2147483647, 4, 16,
      TYP_BMPSTR, 65534, NULL);
  }
}

void peGeneral (ASNG_F(ASNPERG *asnperg) General *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_UnknownMultiCharStri_ua_u (&home->motto_fld, 0, MAXLONG, 4);
  pe_UnknownMultiCharStri_ua_clt64K (&home->crest_fld, 1, 40, 6);
  if ((home->compmask & BIT(2))){
    pe_UnknownMultiCharStri_ua_u (&home->utf_fld, 0, MAXLONG, 4);
  }
}

void peOctets (ASNG_F(ASNPERG *asnperg) Octets *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(5)){
      optfield_0 |= BITL(1);
    }
    if (home->compmask & BIT(6)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 2);
  }
  pe_OctetString_ua_feq0 (&home->none_fld, 0, 0, 0);
  pe_OctetString_ua_feq1 (&home->flag_fld, 1, 1, 0);
  pe_OctetString_ua_feq2 (&home->pair_fld, 2, 2, 0);
  pe_OctetString_ua_flt64K (&home->key_fld, 16, 16, 0);
  pe_OctetString_ua_clt64K (&home->digest_fld, 16, 64, 6);
  if ((home->compmask & BIT(5))){
    pe_SegOctetString_ua_clt64K (&home->photo_fld, 0, 70000, 17);
  }
  if ((home->compmask & BIT(6))){
    pe_OctetString_ua_u (&home->blob_fld, 0, MAXLONG, 4);
  }
  pe_OctetString_ua_clt64K (&home->atLeast_fld, 1, MAXLONG, 31);
}

void peBits (ASNG_F(ASNPERG *asnperg) Bits *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(6)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_BitString_ua_fle8 (&home->rights_fld, 3, 3, 0);
  pe_BitString_ua_fle16 (&home->mask_fld, 12, 12, 0);
  pe_BitString_ua_flt64K (&home->map_fld, 100, 100, 0);
  pe_BitString_ua_clt64K (&home->window_fld, 1, 32, 5);
  pe_BitString_ua_clt64K (&home->history_fld, 0, 255, 8);
  pe_BitString_ua_u (&home->trace_fld, 0, MAXLONG, 4);
  if ((home->compmask & BIT(6))){
    pe_BitString_ua_clt64K (&home->long_fld, 0, 400, 9);
  }
}

void peOthers (ASNG_F(ASNPERG *asnperg) Others *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_ObjectIdentifier (&home->oid_fld);
  pe_GeneralizedTimeDT (&home->made_fld);
  if ((home->compmask & BIT(2))){
    pe_UTCTimeDT (&home->seen_fld);
  }
}

void peEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(6)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  peDigits (ASNG_F(asnperg) &home->digits_fld);
  peNames (ASNG_F(asnperg) &home->names_fld);
  peWide (ASNG_F(asnperg) &home->wide_fld);
  peGeneral (ASNG_F(asnperg) &home->general_fld);
  peOctets (ASNG_F(asnperg) &home->octets_fld);
  peBits (ASNG_F(asnperg) &home->bits_fld);
  if ((home->compmask & BIT(6))){
    peOthers (ASNG_F(asnperg) &home->others_fld);
  }
}

void pecAlias (ASNG_F(ASNPERG *asnperg) Alias *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pe_KnownMultiCharStri_ua_clt64K (home, 1, 32, 5, 7, TYP_IA5STR, 128, NULL);
  pe_end ();
}

void peUpdate (ASNG_F(ASNPERG *asnperg) Update *home)
{
  peEntry (ASNG_F(asnperg) &home->entry_fld);
  pe_Skip ();
  pe_Skip ();
  pe_KnownMultiCharStri_ua_clt64K (&home->alias_fld, 1, 32, 5, 7, TYP_IA5STR,
    128, NULL);
}

void pecUpdate (ASNG_F(ASNPERG *asnperg) Update *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peUpdate (ASNG_F(asnperg) home);
  pe_end ();
}
