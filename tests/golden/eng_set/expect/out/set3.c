/* beforeNormalFunc One "" */

void normOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  /* canGenerateComponents One "" */
  /* struPrefix One "" */
  /* canGenerateComponents One "" */
  /* isComp a#0 "" */
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
  home->compmask = 0;
  /* struPrefix OneOptional "" */
  /* canGenerateComponents OneOptional "" */
  /* isComp a#0 "" */
  {
    /* compPrefix a#0 "" */
    home->compmask |= BIT(0);
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
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* isComp b#1 "" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  home->b_fld.compmask = 0;
  /* struPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* isComp c#0 "" */
  /* compPrefix c#0 "" */
  /* pushPath c#0 "b_fld.c_fld" */
  /* leaf c#0 "b_fld.c_fld" */
  /* popPath c#0 "b_fld.c_fld" */
  /* compPostfix c#0 "b_fld.c_fld" */
  /* isComp d#1 "" */
  {
    /* compPrefix d#1 "" */
    home->b_fld.compmask |= BIT(1);
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
  memset (home, 0, sizeof (Homes));
  /* struPrefix Homes "" */
  /* canGenerateComponents Homes "" */
  /* isComp a#0 "a_fld" */
  {
    /* compPrefix a#0 "a_fld" */
    createHome (NULL, &home->a_fld, VF_I32, 0);
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* isComp b#1 "b_fld" */
  /* compPrefix b#1 "b_fld" */
  createHome (NULL, &home->b_fld, VF_BOOL, 0);
  /* pushPath b#1 "b_fld" */
  /* leaf b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* struPostfix Homes "" */
}
/* afterNormalFunc Homes "" */

/* passed 4 */
