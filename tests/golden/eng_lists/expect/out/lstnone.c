/* beforeNormalFunc Array "" */

void normArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  /* canGenerateComponents Array "" */
  staArrInit (home);
  {
    /* struPrefix Array "" */
    /* canGenerateComponents Array "" */
    /* struPostfix Array "" */
  }
}
/* afterNormalFunc Array "" */
/* beforeNormalFunc Fixed "" */

void normFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  /* canGenerateComponents Fixed "" */
  staArr0Init (home);
  {
    /* struPrefix Fixed "" */
    /* canGenerateComponents Fixed "" */
    /* struPostfix Fixed "" */
  }
}
/* afterNormalFunc Fixed "" */
/* beforeNormalFunc Dynamic "" */

void normDynamic (ASNG_F(ASNPERG *asnperg) Dynamic *home)
{
  /* canGenerateComponents Dynamic "" */
  dynArrInit (home);
  {
    /* struPrefix Dynamic "" */
    /* canGenerateComponents Dynamic "" */
    /* struPostfix Dynamic "" */
  }
}
/* afterNormalFunc Dynamic "" */
/* beforeNormalFunc Linked "" */

void normLinked (ASNG_F(ASNPERG *asnperg) Linked *home)
{
  /* canGenerateComponents Linked "" */
  listInit (home);
  {
    /* struPrefix Linked "" */
    /* canGenerateComponents Linked "" */
    /* struPostfix Linked "" */
  }
}
/* afterNormalFunc Linked "" */
/* beforeNormalFunc Matrix "" */

void normMatrix (ASNG_F(ASNPERG *asnperg) Matrix *home)
{
  /* canGenerateComponents Matrix "" */
  staArrInit (home);
  {
    /* struPrefix Matrix "" */
    /* canGenerateComponents Matrix "" */
    /* struPostfix Matrix "" */
  }
}
/* afterNormalFunc Matrix "" */
/* beforeNormalFunc Web "" */

void normWeb (ASNG_F(ASNPERG *asnperg) Web *home)
{
  /* canGenerateComponents Web "" */
  listInit (home);
  {
    /* struPrefix Web "" */
    /* canGenerateComponents Web "" */
    /* struPostfix Web "" */
  }
}
/* afterNormalFunc Web "" */
/* beforeNormalFunc Rows "" */

void normRows (ASNG_F(ASNPERG *asnperg) Rows *home)
{
  /* canGenerateComponents Rows "" */
  /* struPrefix Rows "" */
  /* canGenerateComponents Rows "" */
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* builtinCompPrefix a#0 "a_fld" */
  /* canGenerateComponents a#0 "a_fld" */
  staArrInit (&home->a_fld);
  {
    /* struPrefix a#0 "a_fld" */
    /* canGenerateComponents a#0 "a_fld" */
    /* struPostfix a#0 "a_fld" */
  }
  /* builtinCompPostfix a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* isComp b#1 "" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  staArrInit (&home->b_fld);
  {
    /* struPrefix b#1 "b_fld" */
    /* canGenerateComponents b#1 "b_fld" */
    /* struPostfix b#1 "b_fld" */
  }
  /* builtinCompPostfix b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* isComp c#2 "" */
  /* compPrefix c#2 "" */
  /* pushPath c#2 "c_fld" */
  /* builtinCompPrefix c#2 "c_fld" */
  /* canGenerateComponents c#2 "c_fld" */
  listInit (&home->c_fld);
  {
    /* struPrefix c#2 "c_fld" */
    /* canGenerateComponents c#2 "c_fld" */
    /* struPostfix c#2 "c_fld" */
  }
  /* builtinCompPostfix c#2 "c_fld" */
  /* popPath c#2 "c_fld" */
  /* compPostfix c#2 "c_fld" */
  /* struPostfix Rows "" */
}
/* afterNormalFunc Rows "" */
/* beforeNormalFunc Links "" */

void normLinks (ASNG_F(ASNPERG *asnperg) Links *home)
{
  /* canGenerateComponents Links "" */
  /* struPrefix Links "" */
  /* canGenerateComponents Links "" */
  /* isComp c#0 "" */
  /* compPrefix c#0 "" */
  /* pushPath c#0 "c_fld" */
  /* builtinCompPrefix c#0 "c_fld" */
  /* canGenerateComponents c#0 "c_fld" */
  listInit (&home->c_fld);
  {
    /* struPrefix c#0 "c_fld" */
    /* canGenerateComponents c#0 "c_fld" */
    /* struPostfix c#0 "c_fld" */
  }
  /* builtinCompPostfix c#0 "c_fld" */
  /* popPath c#0 "c_fld" */
  /* compPostfix c#0 "c_fld" */
  /* isComp d#1 "" */
  /* compPrefix d#1 "" */
  /* pushPath d#1 "d_fld" */
  /* builtinCompPrefix d#1 "d_fld" */
  /* canGenerateComponents d#1 "d_fld" */
  listInit (&home->d_fld);
  {
    /* struPrefix d#1 "d_fld" */
    /* canGenerateComponents d#1 "d_fld" */
    /* struPostfix d#1 "d_fld" */
  }
  /* builtinCompPostfix d#1 "d_fld" */
  /* popPath d#1 "d_fld" */
  /* compPostfix d#1 "d_fld" */
  /* struPostfix Links "" */
}
/* afterNormalFunc Links "" */

/* passed 8 */
