/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Anys
 * FILE = anypdc.c
 ****************************************************************/

#ifndef ANYPER_EXT
#include "anyper.ext"
#endif

static void df1_list_list_Leaves (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (NULL, home, &a1, VF_ANY, 0);
    pi_OpenType_ua ();
    incListLen (home);
    n--;
  }
}

void pdLeaves (ASNG_F(ASNPERG *asnperg) Leaves *home)
{
  pd_FrameOpenType_al (& a1->val.frm);
  pd_FrameOpenType_al (& a1->val.frm);
  pd_FrameOpenType_ua (&home->frame_fld);
  listInit (&home->list_fld);
  {
    pd_ConstructFragmentedValue ((BYTE_TYPE *)&home->list_fld,
      df1_list_list_Leaves);
  }
}

void pdList (ASNG_F(ASNPERG *asnperg) List *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_ua_clt64K_le64K (&len_0, 1, 4, 2);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_ANY, 0);
      pd_FrameOpenType_al (& a1->val.frm);
      incListLen (home);
    }
  }
}
