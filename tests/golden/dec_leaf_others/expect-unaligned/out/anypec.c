/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Anys
 * FILE = anypec.c
 ****************************************************************/

#ifndef ANYPER_EXT
#include "anyper.ext"
#endif

static void ef1_list_list_Leaves (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peLeaves (ASNG_F(ASNPERG *asnperg) Leaves *home)
{
  pe_FrameOpenType_al (& a1->val.frm);
  pe_FrameOpenType_al (& a1->val.frm);
  pe_FrameOpenType_ua (&home->frame_fld);
  {
    ASNHOME *iter = firstListItem (&home->list_fld);
    pe_TraverseFragmentedValue (listLen (&home->list_fld), (BYTE_TYPE *)iter,
      ef1_list_list_Leaves);
  }
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 1, 4, 2);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_FrameOpenType_al (& a1->val.frm);
    }
  }
}
