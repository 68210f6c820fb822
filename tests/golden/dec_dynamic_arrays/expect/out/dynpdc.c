/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Dynamic
 * FILE = dynpdc.c
 ****************************************************************/

#ifndef DYNPER_EXT
#include "dynper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pd_Boolean (&home->x_fld);
}

void pdValues (ASNG_F(ASNPERG *asnperg) Values *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (uint8 *)allocAsn (NULL, MB_STG, len_0 * sizeof (uint8));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdStructs (ASNG_F(ASNPERG *asnperg) Structs *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (Struct *)allocAsn (NULL, MB_STG, len_0 * sizeof (Struct));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (struct t_1_Inline *)allocAsn (NULL, MB_STG, len_0 *
        sizeof (struct t_1_Inline));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      pd_Boolean (&home->elem [n1].x_fld);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdPointers (ASNG_F(ASNPERG *asnperg) Pointers *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le64K (&len_0, 0, 300, 2);
    if (len_0 > 0){
      home->elem = (Struct **)allocAsn (NULL, MB_STG, len_0 *
        sizeof (Struct *));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      if (!(home->elem [n1] = (Struct *)allocAsn (NULL, MB_STG,
        sizeof (Struct)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      pdStruct (ASNG_F(asnperg) home->elem [n1]);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdFrames (ASNG_F(ASNPERG *asnperg) Frames *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (FRAME_PTR **)allocAsn (NULL, MB_STG, len_0 *
        sizeof (FRAME_PTR *));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      pd_FrameOpenType_al (&home->elem [n1]);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdCircle (ASNG_F(ASNPERG *asnperg) Circle *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (Circle **)allocAsn (NULL, MB_STG, len_0 *
        sizeof (Circle *));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      if (!(home->elem [n1] = (Circle *)allocAsn (NULL, MB_STG,
        sizeof (Circle)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      pdCircle (ASNG_F(asnperg) home->elem [n1]);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (ASNHOME **)allocAsn (NULL, MB_STG, len_0 *
        sizeof (ASNHOME *));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_0){
      createHome (NULL, &home->elem [n1], VF_UI8, 0);
      pd_sint32_cwn_al_le255_8 (&home->elem [n1]->val.ui8, 0, 7, 3);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdLimited (ASNG_F(ASNPERG *asnperg) Limited *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (uint8 *)allocAsn (NULL, MB_STG, ((len_0 < 4)? len_0 : 4) *
        sizeof (uint8));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < 4 && n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incDynArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        pi_sint32_cwn_al_le255_8 (0, 7, 3);
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdLimitedWithError (ASNG_F(ASNPERG *asnperg) LimitedWithError *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (uint8 *)allocAsn (NULL, MB_STG, ((len_0 < 4)? len_0 : 4) *
        sizeof (uint8));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    if (len_0 > 4){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    while (n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdLimitedAtBound (ASNG_F(ASNPERG *asnperg) LimitedAtBound *home)
{
  dynArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 0){
      home->elem = (uint8 *)allocAsn (NULL, MB_STG, len_0 * sizeof (uint8));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    if (len_0 > 10){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    while (n1 < len_0){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      incDynArrLen (home);
      n1++;
    }
  }
}

void pdFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  dynArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    if (5 > 0){
      home->elem = (uint8 *)allocAsn (NULL, MB_STG, 5 * sizeof (uint8));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < 5){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      n1++;
    }
  }
}

void pdFixedAndLimited (ASNG_F(ASNPERG *asnperg) FixedAndLimited *home)
{
  dynArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    if (3 > 0){
      home->elem = (uint8 *)allocAsn (NULL, MB_STG, ((3 < 3)? 3 : 3) *
        sizeof (uint8));
      if (home->elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    if (len_0 > 3){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    while (n1 < 3){
      pd_sint32_cwn_al_le255_8 (&home->elem [n1], 0, 7, 3);
      n1++;
    }
  }
}

static void dfStruct (ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  Struct *iter = (Struct *)*p;
  while (n){
    pdStruct (ASNG_F(asnperg) iter);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void pdUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  dynArrInit (home);
  {
    /* TODO: allocation of dynamic array */
    dynamic_array_allocation_not_implemented ();
    Struct *iter = home->elem;
    pd_ConstructFragmentedValue ((BYTE_TYPE *)iter, dfStruct);
  }
}

void pdWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  dynArrInit (&home->a_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 10, 4);
    if (len_1 > 0){
      home->a_fld.elem = (Struct *)allocAsn (NULL, MB_STG, len_1 *
        sizeof (Struct));
      if (home->a_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_1){
      pdStruct (ASNG_F(asnperg) &home->a_fld.elem [n1]);
      incDynArrLen (&home->a_fld);
      n1++;
    }
  }
  dynArrInit (&home->b_fld);
  {
    uint32 n1 = 0;
    uint32 len_1;
    pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
    if (len_1 > 0){
      home->b_fld.elem = (struct t_1_b_b_Within *)allocAsn (NULL, MB_STG, 
        len_1 * sizeof (struct t_1_b_b_Within));
      if (home->b_fld.elem == NULL){
        reportFatalError (LACK_OF_MEMORY);
      }
    }
    while (n1 < len_1){
      dynArrInit (&home->b_fld.elem [n1]);
      {
        uint32 n2 = 0;
        uint32 len_2;
        pd_lenDet_al_clt64K_le255 (&len_2, 1, 3, 2);
        if (len_2 > 0){
          home->b_fld.elem [n1].elem = (BOOLE *)allocAsn (NULL, MB_STG, len_2 *
            sizeof (BOOLE));
          if (home->b_fld.elem [n1].elem == NULL){
            reportFatalError (LACK_OF_MEMORY);
          }
        }
        while (n2 < len_2){
          pd_Boolean (&home->b_fld.elem [n1].elem [n2]);
          incDynArrLen (&home->b_fld.elem [n1]);
          n2++;
        }
      }
      incDynArrLen (&home->b_fld);
      n1++;
    }
  }
}
