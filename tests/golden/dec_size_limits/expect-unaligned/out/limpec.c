/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Limits
 * FILE = limpec.c
 ****************************************************************/

#ifndef LIMPER_EXT
#include "limper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_Boolean (home->x_fld);
}

void peArrayError (ASNG_F(ASNPERG *asnperg) ArrayError *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_NullType ();
    }
  }
}

void peArrayIgnore (ASNG_F(ASNPERG *asnperg) ArrayIgnore *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peArrayIgnoreStructs (ASNG_F(ASNPERG *asnperg) ArrayIgnoreStructs *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      peStruct (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peArrayIgnoreInline (ASNG_F(ASNPERG *asnperg) ArrayIgnoreInline *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      {
        {
          sint32 optfield_1 = 0;
          if (home->elem [n1].compmask & BIT(1)){
            optfield_1 |= BITL(0);
          }
          pe_optField (optfield_1, 1);
        }
        pe_Boolean (home->elem [n1].x_fld);
        if ((home->elem [n1].compmask & BIT(1))){
          pe_NullType ();
        }
      }
    }
  }
}

void peArrayAtBound (ASNG_F(ASNPERG *asnperg) ArrayAtBound *home)
{
  pe_lenDet_ua_clt64K_le64K (staArrLen (home), 1, 10, 4);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peFixedError (ASNG_F(ASNPERG *asnperg) FixedError *home)
{
  pe_lenDet_ua_clt64K_eq1 (3, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 3; n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peFixedIgnore (ASNG_F(ASNPERG *asnperg) FixedIgnore *home)
{
  pe_lenDet_ua_clt64K_eq1 (3, 5, 5, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 3; n1++){
      pe_Boolean (home->elem [n1]);
    }
  }
}

void peListError (ASNG_F(ASNPERG *asnperg) ListError *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 1, 10, 4);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Boolean (a1->val.bool);
    }
  }
}

void peListIgnore (ASNG_F(ASNPERG *asnperg) ListIgnore *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 1, 10, 4);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      pe_Boolean (a1->val.bool);
    }
  }
}

void peUnbounded (ASNG_F(ASNPERG *asnperg) Unbounded *home)
{
  ?!?: Invalid encoding follows:
   ?!?: Encoding of unconstrained SEQUENCE OF's are
  ?!?: not yet supported with SIZE-LIMIT option.
}

void peUnboundedIgnore (ASNG_F(ASNPERG *asnperg) UnboundedIgnore *home)
{
  ?!?: Invalid encoding follows:
   ?!?: Encoding of unconstrained SEQUENCE OF's are
  ?!?: not yet supported with SIZE-LIMIT option.
}

void peWithin (ASNG_F(ASNPERG *asnperg) Within *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(2))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    pe_lenDet_ua_clt64K_le64K (staArrLen (&home->a_fld), 1, 3, 2);
    {
      uint32 n1 = 0;
      for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
        peStruct (ASNG_F(asnperg) &home->a_fld.elem [n1]);
      }
    }
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(2))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (1, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(2))){
    pe_BeginOpenType_ua (&openctx_0);
    pe_lenDet_ua_clt64K_le64K (staArrLen (&home->b_fld), 1, 3, 2);
    {
      uint32 n1 = 0;
      for (n1 = 0; n1 < staArrLen (&home->b_fld); n1++){
        peStruct (ASNG_F(asnperg) &home->b_fld.elem [n1]);
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
}
