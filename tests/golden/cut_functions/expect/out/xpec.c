/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutFunctions
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peEOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf13xxxxxxxxx *home)
{
  pe_Skip ();
}

void pecEOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) EOf13xxxxxxxxx *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peEOf13xxxxxxxxx (ASNG_F(asnperg) home);
  pe_end ();
}

void peHOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) HOf13xxxxxxxxx *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peFOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) FOf13xxxxxxxxx *home)
{
  pe_Boolean (home->b_fld);
}

static void efFOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peFOf13xxxxxxxxx (ASNG_F(asnperg) (FOf13xxxxxxxxx *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peLOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) LOf13xxxxxxxxx *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efFOf13xxxxxxxxx);
}

static void efFOf13xxxxxxxxx_AOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  FOf13xxxxxxxxx *iter = (FOf13xxxxxxxxx *)*p;
  while (n){
    peFOf13xxxxxxxxx (ASNG_F(asnperg) (FOf13xxxxxxxxx *)*iter->val.stru);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peAOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) AOf13xxxxxxxxx *home)
{
  FOf13xxxxxxxxx *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    efFOf13xxxxxxxxx_AOf13xxxxxxxxx);
}

static void efDOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) sint32 n,
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

void peSOf13xxxxxxxxx (ASNG_F(ASNPERG *asnperg) SOf13xxxxxxxxx *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efDOf13xxxxxxxxx);
}

void peEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Skip ();
}

void pecEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peEOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (ASNG_F(asnperg) 
    home);
  pe_end ();
}

void peHOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->b_fld);
}

static void efFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peLOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  LOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
}

static void
  efFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
    (FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    peFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*iter->val.stru);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peAOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  AOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  FOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter = home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    efFOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
}

static void efDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peSOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efDOf55xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
}

void peEOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Skip ();
}

void pecEOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  EOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peEOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
    ASNG_F(asnperg) home);
  pe_end ();
}

void peHOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  HOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_lenDet_al_clt64K_le255 (staArrLen (home), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Skip ();
    }
  }
}

void peFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  pe_Boolean (home->b_fld);
}

static void efFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    peFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)a1->val.stru);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peLOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  LOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
}

static void
  efFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
    (FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*p;
  while (n){
    peFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
      ASNG_F(asnperg)
      (FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *)*iter->val.stru);
    iter++;
    n--;
  }
  *p = (BYTE_TYPE *)iter;
}

void peAOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  AOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  FOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *iter =
    home->elem;
  pe_TraverseFragmentedValue (staArrLen (home), (BYTE_TYPE *)iter,
    efFOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx_AOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
}

static void efDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Skip ();
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peSOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx (
  ASNG_F(ASNPERG *asnperg) 
  SOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx *home)
{
  ASNHOME *iter = firstListItem (home);
  pe_TraverseFragmentedValue (listLen (home), (BYTE_TYPE *)iter,
    efDOf56xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx);
}
