/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Generation
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_NullType ();
  pe_FrameOpenType_al (& a1->val.frm);
  pe_FrameOpenType_al (& a1->val.frm);
  pe_FrameOpenType_al (& a1->val.frm);
  pe_lenDet_al_clt64K_eq1 (listLen (&home->d_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->d_fld); a1; a1 = nextListItem (a1)){
      pe_FrameOpenType_al (& a1->val.frm);
    }
  }
  pe_FrameOpenType_al (&home->e_fld);
  pe_GeneralizedTimeCT (&home->f_fld);
  pe_UTCTimeCT (&home->g_fld);
  pe_NullType ();
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
