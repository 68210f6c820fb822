/* beforeNormalFunc One "" */

void normOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  /* struPrefix One "" */
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
  home->compmask = 0;
  /* struPrefix OneOptional "" */
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
  {
    sint8 compmaskcompmask = 0;
    /* struPrefix Two "" */
    {
      if (compmask & BIT(0)){
        report (TWICE);
      }
      /* compPrefix a#0 "" */
      compmask |= BIT(0);
      /* pushPath a#0 "a_fld" */
      /* leaf a#0 "a_fld" */
      /* popPath a#0 "a_fld" */
      /* compPostfix a#0 "a_fld" */
    }
    {
      if (compmask & BIT(1)){
        report (TWICE);
      }
      /* compPrefix b#1 "" */
      compmask |= BIT(1);
      /* pushPath b#1 "b_fld" */
      /* builtinCompPrefix b#1 "b_fld" */
      home->b_fld.compmask = 0;
      /* struPrefix b#1 "b_fld" */
      {
        if (home->b_fld.compmask & BIT(0)){
          report (TWICE);
        }
        /* compPrefix c#0 "" */
        home->b_fld.compmask |= BIT(0);
        /* pushPath c#0 "b_fld.c_fld" */
        /* leaf c#0 "b_fld.c_fld" */
        /* popPath c#0 "b_fld.c_fld" */
        /* compPostfix c#0 "b_fld.c_fld" */
      }
      {
        if (home->b_fld.compmask & BIT(1)){
          report (TWICE);
        }
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
    }
    /* struPostfix Two "" */
  }
}
/* afterNormalFunc Two "" */
/* beforeNormalFunc Homes "" */

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    sint8 compmaskcompmask = 0;
    /* struPrefix Homes "" */
    {
      if (compmask & BIT(0)){
        report (TWICE);
      }
      /* compPrefix a#0 "a_fld" */
      createHome (NULL, &home->a_fld, VF_I32, 0);
      compmask |= BIT(0);
      /* pushPath a#0 "a_fld" */
      /* leaf a#0 "a_fld" */
      /* popPath a#0 "a_fld" */
      /* compPostfix a#0 "a_fld" */
    }
    {
      if (compmask & BIT(1)){
        report (TWICE);
      }
      /* compPrefix b#1 "b_fld" */
      createHome (NULL, &home->b_fld, VF_BOOL, 0);
      compmask |= BIT(1);
      /* pushPath b#1 "b_fld" */
      /* leaf b#1 "b_fld" */
      /* popPath b#1 "b_fld" */
      /* compPostfix b#1 "b_fld" */
    }
    /* struPostfix Homes "" */
  }
}
/* afterNormalFunc Homes "" */

/* passed 4 */
