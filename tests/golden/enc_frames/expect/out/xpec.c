/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Frames
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_sint32_cwn_al_le255 (home->code_fld, 0, 7, 3);
  pe_FrameOpenType_al (&home->a_fld);
  pe_FrameOpenType_al (&home->b_fld);
  pe_FrameOpenType_al (&home->c_fld);
  pe_FrameOpenType_al (&home->d_fld);
  pe_FrameOpenType_al (&home->e_fld);
  pe_FrameOpenType_al (&home->f_fld);
  pe_FrameOpenType_al (&home->g_fld);
  pe_FrameOpenType_al (home->h_fld);
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->n_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->n_fld); n1++){
      pe_FrameOpenType_al (&home->n_fld.elem [n1]);
    }
  }
  pe_lenDet_al_clt64K_eq1 (listLen (&home->o_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->o_fld); a1; a1 = nextListItem (a1)){
      pe_FrameOpenType_al (&a1->val.frm);
    }
  }
  pe_Skip ();
  pe_NullType ();
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
