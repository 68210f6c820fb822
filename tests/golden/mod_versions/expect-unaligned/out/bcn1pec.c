/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Beacon_Protocol
 * FILE = bcn1pec.c
 ****************************************************************/

#ifndef BCN1PER_EXT
#include "bcn1per.ext"
#endif

void peCell_Identity (ASNG_F(ASNPERG *asnperg) Cell_Identity *home)
{
  pe_sint32_cwn_ua (home->network_fld, 0, 4095, 12);
  pe_BitString_ua_flt64K (&home->cell_fld, 28, 28, 0);
}

void peSample (ASNG_F(ASNPERG *asnperg) Sample *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_ua (home->level_fld, -110, -47, 6);
  if ((home->compmask & BIT(1))){
    pe_sint32_cwn_ua (home->quality_fld, 0, 34, 6);
  }
}

void peSamples (ASNG_F(ASNPERG *asnperg) Samples *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 16, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peSample (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peCause (ASNG_F(ASNPERG *asnperg) Cause *home)
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

void peReport (ASNG_F(ASNPERG *asnperg) Report *home)
{
  pe_extensionBit (0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(2)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  peCell_Identity (ASNG_F(asnperg) &home->cell_fld);
  peSamples (ASNG_F(asnperg) &home->samples_fld);
  if ((home->compmask & BIT(2))){
    peCause (ASNG_F(asnperg) &home->cause_fld);
  }
}

void peAction (ASNG_F(ASNPERG *asnperg) Action *home)
{
  pe_extensionBit (0);
  pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_NullType ();
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}

void peCommand (ASNG_F(ASNPERG *asnperg) Command *home)
{
  pe_extensionBit (0);
  peCell_Identity (ASNG_F(asnperg) &home->cell_fld);
  peAction (ASNG_F(asnperg) &home->action_fld);
}

void peMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  pe_extensionBit (0);
  pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        peReport (ASNG_F(asnperg) &home->i1.report_fld);
      }
      break;
    case 1:
      {
        peCommand (ASNG_F(asnperg) &home->i1.command_fld);
      }
      break;
  }
}

void pecMessage (ASNG_F(ASNPERG *asnperg) Message *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peMessage (ASNG_F(asnperg) home);
  pe_end ();
}
