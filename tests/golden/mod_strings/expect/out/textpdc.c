/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Directory_Strings
 * FILE = textpdc.c
 ****************************************************************/

#ifndef TEXTPER_EXT
#include "textper.ext"
#endif

void pdDigits (ASNG_F(ASNPERG *asnperg) Digits *home)
{
  pd_KnownMultiCharStri_al_fle16 (&home->fixed_fld, 4, 4, 0, 4, TYP_NUMSTR,
    11, asnperNumStrChars);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->limited_fld, 3, 15, 4, 4,
    TYP_NUMSTR, 11, asnperNumStrChars);
  pd_DynKnownMultiCharStri_al_u (&home->open_fld, 0, 2147483647, 4, 4,
    TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
  pd_KnownMultiCharStri_al_fle16 (&home->binary_fld, 8, 8, 0, 1, TYP_NUMSTR,
    2, "01");
}

void pdNames (ASNG_F(ASNPERG *asnperg) Names *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (4);
    pd_KnownMultiCharStri_al_fle16 (&home->country_fld, 2, 2, 0, 8,
      TYP_PRISTR, 74, NULL);
    if (optfield_0 & BITL(3)){
      home->compmask |= BIT(1);
      pd_KnownMultiCharStri_al_clt64K_le255 (&home->short_fld, 1, 8, 3, 8,
        TYP_PRISTR, 74, NULL);
    }
    pd_KnownMultiCharStri_al_fgt16 (&home->code_fld, 3, 3, 0, 8, TYP_VISSTR,
      95, NULL);
    if (optfield_0 & BITL(2)){
      home->compmask |= BIT(3);
      pd_KnownMultiCharStri_al_clt64K_le255 (&home->title_fld, 0, 64, 7, 8,
        TYP_VISSTR, 95, NULL);
    }
    pd_KnownMultiCharStri_al_clt64K_le255 (&home->login_fld, 1, 20, 5, 8,
      TYP_IA5STR, 36, "0123456789abcdefghijklmnopqrstuvwxyz");
    pd_KnownMultiCharStri_al_clt64K_eq256 (&home->mail_fld, 1, 256, 1, 8,
      TYP_IA5STR, 128, NULL);
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(6);
      pd_SegKnownMultiCharStri_al_cge64K (&home->remark_fld, 0, 100000, 3, 8,
        TYP_IA5STR, BYTE_TYPE, 128, NULL);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(7);
      pd_DynKnownMultiCharStri_al_clt64K_le64K (&home->page_fld, 0, 5000, 2,
        8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
    }
  }
}

void pdWide (ASNG_F(ASNPERG *asnperg) Wide *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_DynKnownMultiCharStri_al_fgt16 (&home->initials_fld, 2, 2, 0, 16,
      TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
    pd_DynKnownMultiCharStri_al_clt64K_le255 (&home->family_fld, 1, 30, 5, 16,
      TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pd_DynKnownMultiCharStri_al_u (&home->given_fld, 0, 2147483647, 4, 16,
        TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);
    }
  }
}

void pdGeneral (ASNG_F(ASNPERG *asnperg) General *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_DynUnknownMultiCharStri_al_u (&home->motto_fld, 0, MAXLONG, 4);
    pd_UnknownMultiCharStri_al_clt64K_le255 (&home->crest_fld, 1, 40, 6);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pd_DynUnknownMultiCharStri_al_u (&home->utf_fld, 0, MAXLONG, 4);
    }
  }
}

void pdOctets (ASNG_F(ASNPERG *asnperg) Octets *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (2);
    pd_OctetString_al_feq0_0 (&home->none_fld, 0, 0, 0);
    pd_OctetString_al_feq1_0 (&home->flag_fld, 1, 1, 0);
    pd_OctetString_al_feq2_0 (&home->pair_fld, 2, 2, 0);
    pd_OctetString_al_flt64K_0 (&home->key_fld, 16, 16, 0);
    pd_OctetString_al_clt64K_le255 (&home->digest_fld, 16, 64, 6);
    if (optfield_0 & BITL(1)){
      home->compmask |= BIT(5);
      pd_SegOctetString_al_cgt64K_0 (&home->photo_fld, 0, 70000, 3);
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(6);
      pd_DynOctetString_al_u (&home->blob_fld, 0, MAXLONG, 4);
    }
    pd_DynOctetString_al_cgt64K (&home->atLeast_fld, 1, MAXLONG, 4);
  }
}

void pdBits (ASNG_F(ASNPERG *asnperg) Bits *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_BitString_al_fle8_0 (&home->rights_fld, 3, 3, 0);
    pd_BitString_al_fle16_0 (&home->mask_fld, 12, 12, 0);
    pd_BitString_al_flt64K_0 (&home->map_fld, 100, 100, 0);
    pd_BitString_al_clt64K_le255 (&home->window_fld, 1, 32, 5);
    pd_BitString_al_clt64K_eq256 (&home->history_fld, 0, 255, 1);
    pd_DynBitString_al_u (&home->trace_fld, 0, MAXLONG, 4);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(6);
      pd_BitString_al_clt64K_le64K (&home->long_fld, 0, 400, 2);
    }
  }
}

void pdOthers (ASNG_F(ASNPERG *asnperg) Others *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_ObjectIdentifier (&home->oid_fld);
    pd_GeneralizedTimeDT (&home->made_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(2);
      pd_UTCTimeDT (&home->seen_fld);
    }
  }
}

void pdEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pdDigits (ASNG_F(asnperg) &home->digits_fld);
    pdNames (ASNG_F(asnperg) &home->names_fld);
    pdWide (ASNG_F(asnperg) &home->wide_fld);
    pdGeneral (ASNG_F(asnperg) &home->general_fld);
    pdOctets (ASNG_F(asnperg) &home->octets_fld);
    pdBits (ASNG_F(asnperg) &home->bits_fld);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(6);
      pdOthers (ASNG_F(asnperg) &home->others_fld);
    }
  }
}

void pdcAlias (ASNG_F(ASNPERG *asnperg) Alias *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pd_KnownMultiCharStri_al_clt64K_le255 (home, 1, 32, 5, 8, TYP_IA5STR, 128,
    NULL);
  pd_end ();
}

void pdUpdate (ASNG_F(ASNPERG *asnperg) Update *home)
{
  pdEntry (ASNG_F(asnperg) &home->entry_fld);
  pi_KnownMultiCharStri_al_clt64K_le255 (1, 80, 7, 8, TYP_IA5STR, 128, NULL);
  asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
  pd_KnownMultiCharStri_al_clt64K_le255 (&home->alias_fld, 1, 32, 5, 8,
    TYP_IA5STR, 128, NULL);
}

void pdcUpdate (ASNG_F(ASNPERG *asnperg) Update *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdUpdate (ASNG_F(asnperg) home);
  pd_end ();
}
