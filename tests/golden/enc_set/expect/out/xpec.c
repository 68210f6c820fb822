/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Sets
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peEmptyExtensible (ASNG_F(ASNPERG *asnperg) EmptyExtensible *home)
{
}

void pePlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  pe_Boolean (home->b_fld);
  pe_NullType ();
}

void peOptional (ASNG_F(ASNPERG *asnperg) Optional *home)
{
  if ((home->compmask & BIT(0))){
    pe_Boolean (home->a_fld);
  }
  if ((home->compmask & BIT(1))){
    pe_sint32_cwn_al_le255 (home->b_fld, 0, 7, 3);
  }
  pe_Boolean (home->c_fld);
}

void peExtensible (ASNG_F(ASNPERG *asnperg) Extensible *home)
{
  pe_Boolean (home->a_fld);
  if ((home->compmask & BIT(2))){
    pe_Boolean (home->b_fld);
  }
  pe_Boolean (home->c_fld);
  if ((home->compmask & BIT(4)) || (home->compmask & BIT(5))){
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(4)){
        optfield_1 |= BITL(1);
      }
      if (home->compmask & BIT(5)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 2);
      if ((home->compmask & BIT(4))){
        pe_Boolean (home->d_fld);
      }
      if ((home->compmask & BIT(5))){
        pe_Boolean (home->e_fld);
      }
    }
  }
}

void peNested (ASNG_F(ASNPERG *asnperg) Nested *home)
{
  {
    {
      sint32 optfield_1 = 0;
      if (home->a_fld.compmask & BIT(0)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    if ((home->a_fld.compmask & BIT(0))){
      pe_Boolean (home->a_fld.b_fld);
    }
  }
  pe_Boolean (home->c_fld.d_fld);
  pe_lenDet_al_clt64K_eq1 (staArrLen (&home->e_fld), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->e_fld); n1++){
      pe_Boolean (home->e_fld.elem [n1]);
    }
  }
}

void peList (ASNG_F(ASNPERG *asnperg) List *home)
{
  pe_lenDet_al_clt64K_eq1 (staArrLen (home), 2, 2, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      pePlain (ASNG_F(asnperg) &home->elem [n1]);
    }
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  peEmptyExtensible (ASNG_F(asnperg) &home->a_fld);
  pePlain (ASNG_F(asnperg) &home->b_fld);
  peOptional (ASNG_F(asnperg) &home->c_fld);
  peExtensible (ASNG_F(asnperg) &home->d_fld);
  peNested (ASNG_F(asnperg) &home->e_fld);
  peList (ASNG_F(asnperg) &home->f_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
