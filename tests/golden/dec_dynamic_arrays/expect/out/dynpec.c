/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Dynamic
 * FILE = dynpec.c
 ****************************************************************/

#ifndef DYNPER_EXT
#include "dynper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_Boolean (home->x_fld);
}

void peValues (ASNG_F(ASNPERG *asnperg) Values *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peStructs (ASNG_F(ASNPERG *asnperg) Structs *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      {
        pe_Boolean (home->elem [n1].x_fld);
      }
    }
  }
}

void pePointers (ASNG_F(ASNPERG *asnperg) Pointers *home)
{
  pe_lenDet_al_clt64K_le64K (dynArrLen (home), 0, 300, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      peStruct (ASNG_F(asnperg) home->elem [n1]);
    }
  }
}

void peFrames (ASNG_F(ASNPERG *asnperg) Frames *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_FrameOpenType_al (&home->elem [n1]);
    }
  }
}

void peCircle (ASNG_F(ASNPERG *asnperg) Circle *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      peCircle (ASNG_F(asnperg) home->elem [n1]);
    }
  }
}

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1]->val.ui8, 0, 7, 3);
    }
  }
}

void peLimited (ASNG_F(ASNPERG *asnperg) Limited *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peLimitedWithError (ASNG_F(ASNPERG *asnperg) LimitedWithError *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peLimitedAtBound (ASNG_F(ASNPERG *asnperg) LimitedAtBound *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  pe_lenDet_al_clt64K_eq1 (5, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 5; n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

void peFixedAndLimited (ASNG_F(ASNPERG *asnperg) FixedAndLimited *home)
{
  pe_lenDet_al_clt64K_eq1 (3, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 3; n1++){
      pe_sint32_cwn_al_le255 (home->elem [n1], 0, 7, 3);
    }
  }
}

static void efStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  Struct *iter = (Struct *)*p;
  while (n){
    peStruct (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  Struct *iter = home->elem;
  pe_TraverseFragmentedValue (dynArrLen (home), (BYTE_TYPE *)iter, efStruct);
}

void peWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  pe_lenDet_al_clt64K_le255 (dynArrLen (&home->a_fld), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->a_fld); n1++){
      peStruct (ASNG_F(asnperg) &home->a_fld.elem [n1]);
    }
  }
  pe_lenDet_al_clt64K_le255 (dynArrLen (&home->b_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (&home->b_fld); n1++){
      pe_lenDet_al_clt64K_le255 (dynArrLen (&home->b_fld.elem [n1]), 1, 3, 2);
      {
        uint32 n2 = 0;
        for (n2 = 0; n2 < dynArrLen (&home->b_fld.elem [n1]); n2++){
          pe_Boolean (home->b_fld.elem [n1].elem [n2]);
        }
      }
    }
  }
}
