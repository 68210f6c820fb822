/* beforeNormalFunc One "" */

void normOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  /* canGenerateComponents One "" */
  /* struPrefix One "" */
  /* canGenerateComponents One "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* struPostfix One "" */
}
/* afterNormalFunc One "" */
/* beforeNormalFunc OneOptional "" */

void normOneOptional (ASNG_F(ASNPERG *asnperg) OneOptional *home)
{
  /* canGenerateComponents OneOptional "" */
  /* struPrefix OneOptional "" */
  /* canGenerateComponents OneOptional "" */
  if ((home->compmask & BIT(0))){
    /* compPrefix a#0 "" */
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* struPostfix OneOptional "" */
}
/* afterNormalFunc OneOptional "" */
/* beforeNormalFunc Two "" */

void normTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  /* canGenerateComponents Two "" */
  /* struPrefix Two "" */
  /* canGenerateComponents Two "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* struPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* compPrefix c#0 "" */
  /* pushPath c#0 "b_fld.c_fld" */
  /* leaf c#0 "b_fld.c_fld" */
  /* popPath c#0 "b_fld.c_fld" */
  /* compPostfix c#0 "b_fld.c_fld" */
  if ((home->b_fld.compmask & BIT(1))){
    /* compPrefix d#1 "" */
    /* pushPath d#1 "b_fld.d_fld" */
    /* leaf d#1 "b_fld.d_fld" */
    /* popPath d#1 "b_fld.d_fld" */
    /* compPostfix d#1 "b_fld.d_fld" */
  }
  /* struPostfix b#1 "b_fld" */
  /* builtinCompPostfix b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* struPostfix Two "" */
}
/* afterNormalFunc Two "" */
/* beforeNormalFunc Homes "" */

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  /* canGenerateComponents Homes "" */
  /* struPrefix Homes "" */
  /* canGenerateComponents Homes "" */
  if (home->a_fld){
    /* compPrefix a#0 "a_fld" */
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* compPrefix b#1 "b_fld" */
  /* pushPath b#1 "b_fld" */
  /* leaf b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* struPostfix Homes "" */
}
/* afterNormalFunc Homes "" */

/* passed 4 */
