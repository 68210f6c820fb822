/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Limits
 * FILE = limpdc.c
 ****************************************************************/

#ifndef LIMPER_EXT
#include "limper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pd_Boolean (&home->x_fld);
}

void piStruct (ASNG_L(ASNPERG *asnperg))
{
  pi_Boolean ();
}

void pdArrayError (ASNG_F(ASNPERG *asnperg) ArrayError *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    if (len_0 > 4){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    while (n1 < len_0){
      pd_NullType ();
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdArrayIgnore (ASNG_F(ASNPERG *asnperg) ArrayIgnore *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      pd_Boolean (&home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        pi_Boolean ();
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdArrayIgnoreStructs (ASNG_F(ASNPERG *asnperg) ArrayIgnoreStructs *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      pdStruct (ASNG_F(asnperg) &home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        piStruct (ASNG_L(asnperg));
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdArrayIgnoreInline (ASNG_F(ASNPERG *asnperg) ArrayIgnoreInline *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 4 && n1 < len_0){
      home->elem [n1].compmask = 0;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        pd_Boolean (&home->elem [n1].x_fld);
        if (optfield_1 & BITL(0)){
          home->elem [n1].compmask |= BIT(1);
          pd_NullType ();
        }
      }
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < len_0){
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          pi_Boolean ();
          if (optfield_1 & BITL(0)){
            pi_NullType ();
          }
        }
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdArrayAtBound (ASNG_F(ASNPERG *asnperg) ArrayAtBound *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (n1 < 10 && n1 < len_0){
      pd_Boolean (&home->elem [n1]);
      incStaArrLen (home);
      n1++;
    }
  }
}

void pdFixedError (ASNG_F(ASNPERG *asnperg) FixedError *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    if (len_0 > 3){
      asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
    }
    while (n1 < 3){
      pd_Boolean (&home->elem [n1]);
      n1++;
    }
  }
}

void pdFixedIgnore (ASNG_F(ASNPERG *asnperg) FixedIgnore *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);
    while (n1 < 3){
      pd_Boolean (&home->elem [n1]);
      n1++;
    }
    home->nIgnored = 0;
    {
      while (n1 < 5){
        pi_Boolean ();
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void pdListError (ASNG_F(ASNPERG *asnperg) ListError *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_BOOL, 0);
      pd_Boolean (&a1->val.bool);
      incListLen (home);
    }
  }
}

void pdListIgnore (ASNG_F(ASNPERG *asnperg) ListIgnore *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 1, 10, 4);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_BOOL, 0);
      pd_Boolean (&a1->val.bool);
      incListLen (home);
    }
    home->nIgnored = 0;
    {
      {
        pi_Boolean ();
        home->nIgnored++;
        n0++;
      }
    }
  }
}

void pdUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  listInit (home);
  {
    ?!?: Invalid decoding follows:
     ?!?: Decoding of unconstrained SEQUENCE OF's are
    ?!?: not yet supported with SIZE-LIMIT option.
  }
}

void pdUnboundedIgnore (ASNG_F(ASNPERG *asnperg) UnboundedIgnore *home)
{
  listInit (home);
  {
    ?!?: Invalid decoding follows:
     ?!?: Decoding of unconstrained SEQUENCE OF's are
    ?!?: not yet supported with SIZE-LIMIT option.
  }
}

void pdWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      staArrInit (&home->a_fld);
      {
        uint32 n1 = 0;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (n1 < 2 && n1 < len_1){
          pdStruct (ASNG_F(asnperg) &home->a_fld.elem [n1]);
          incStaArrLen (&home->a_fld);
          n1++;
        }
        home->a_fld.nIgnored = 0;
        {
          while (n1 < len_1){
            piStruct (ASNG_L(asnperg));
            home->a_fld.nIgnored++;
            n1++;
          }
        }
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (1,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(2);
        staArrInit (&home->b_fld);
        {
          uint32 n1 = 0;
          uint32 len_1;
          pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
          if (len_1 > 2){
            asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
          }
          while (n1 < len_1){
            pdStruct (ASNG_F(asnperg) &home->b_fld.elem [n1]);
            incStaArrLen (&home->b_fld);
            n1++;
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}
