/* beforeNormalFunc Plain "" */

void normPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  /* canGenerateComponents Plain "" */
  home->choice = -1;
  /* struPrefix Plain "" */
  /* canGenerateComponents Plain "" */
  /* isComp a#0 "" */
  {
    /* compPrefix a#0 "" */
    home->choice = 0;
    /* pushPath a#0 "i1.a_fld" */
    /* leaf a#0 "i1.a_fld" */
    /* popPath a#0 "i1.a_fld" */
    /* compPostfix a#0 "i1.a_fld" */
  }
  /* isComp b#1 "" */
  {
    /* compPrefix b#1 "" */
    home->choice = 1;
    /* pushPath b#1 "i1.b_fld" */
    /* builtinCompPrefix b#1 "i1.b_fld" */
    /* canGenerateComponents b#1 "i1.b_fld" */
    home->i1.b_fld.choice = -1;
    /* struPrefix b#1 "i1.b_fld" */
    /* canGenerateComponents b#1 "i1.b_fld" */
    /* isComp c#0 "" */
    {
      /* compPrefix c#0 "" */
      home->i1.b_fld.choice = 0;
      /* pushPath c#0 "i1.b_fld.i1.c_fld" */
      /* leaf c#0 "i1.b_fld.i1.c_fld" */
      /* popPath c#0 "i1.b_fld.i1.c_fld" */
      /* compPostfix c#0 "i1.b_fld.i1.c_fld" */
    }
    /* isComp d#1 "" */
    {
      /* compPrefix d#1 "" */
      if (!(home->i1.b_fld.i1.d_fld = (Plain *)allocAsn (NULL, MB_STG,
        sizeof (Plain)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      home->i1.b_fld.choice = 1;
      /* pushPath d#1 "i1.b_fld.i1.d_fld" */
      /* defStruct d#1 "i1.b_fld.i1.d_fld" */
      normPlain (ASNG_F(asnperg) home->i1.b_fld.i1.d_fld);
      /* popPath d#1 "i1.b_fld.i1.d_fld" */
      /* compPostfix d#1 "i1.b_fld.i1.d_fld" */
    }
    /* struPostfix b#1 "i1.b_fld" */
    /* builtinCompPostfix b#1 "i1.b_fld" */
    /* popPath b#1 "i1.b_fld" */
    /* compPostfix b#1 "i1.b_fld" */
  }
  /* struPostfix Plain "" */
}
/* afterNormalFunc Plain "" */
/* beforeNormalFunc One "" */

void normOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  /* canGenerateComponents One "" */
  home->choice = -1;
  /* struPrefix One "" */
  /* canGenerateComponents One "" */
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  home->choice = 0;
  /* pushPath a#0 "i1.a_fld" */
  /* leaf a#0 "i1.a_fld" */
  /* popPath a#0 "i1.a_fld" */
  /* compPostfix a#0 "i1.a_fld" */
  /* struPostfix One "" */
}
/* afterNormalFunc One "" */
/* beforeNormalFunc Marker "" */

void normMarker (ASNG_F(ASNPERG *asnperg) Marker *home)
{
  /* canGenerateComponents Marker "" */
  home->choice = -1;
  /* struPrefix Marker "" */
  /* canGenerateComponents Marker "" */
  /* isComp a#0 "" */
  {
    /* compPrefix a#0 "" */
    home->choice = 0;
    /* pushPath a#0 "i1.a_fld" */
    /* leaf a#0 "i1.a_fld" */
    /* popPath a#0 "i1.a_fld" */
    /* compPostfix a#0 "i1.a_fld" */
  }
  /* leaf marker#1 "" */
  /* isComp b#2 "" */
  {
    /* compPrefix b#2 "" */
    home->choice = 2;
    /* pushPath b#2 "i1.b_fld" */
    /* leaf b#2 "i1.b_fld" */
    /* popPath b#2 "i1.b_fld" */
    /* compPostfix b#2 "i1.b_fld" */
  }
  /* struPostfix Marker "" */
}
/* afterNormalFunc Marker "" */
/* beforeNormalFunc Last "" */

void normLast (ASNG_F(ASNPERG *asnperg) Last *home)
{
  /* canGenerateComponents Last "" */
  home->choice = -1;
  /* struPrefix Last "" */
  /* canGenerateComponents Last "" */
  /* isComp a#0 "" */
  {
    /* compPrefix a#0 "" */
    home->choice = 0;
    /* pushPath a#0 "i1.a_fld" */
    /* leaf a#0 "i1.a_fld" */
    /* popPath a#0 "i1.a_fld" */
    /* compPostfix a#0 "i1.a_fld" */
  }
  /* isComp b#1 "" */
  {
    /* compPrefix b#1 "" */
    home->choice = 1;
    /* pushPath b#1 "i1.b_fld" */
    /* leaf b#1 "i1.b_fld" */
    /* popPath b#1 "i1.b_fld" */
    /* compPostfix b#1 "i1.b_fld" */
  }
  /* leaf marker#2 "" */
  /* struPostfix Last "" */
}
/* afterNormalFunc Last "" */
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
  {
    /* compPrefix b#1 "b_fld" */
    createHome (NULL, &home->b_fld, VF_STRU, sizeof (struct t_b_Homes));
    /* pushPath b#1 "b_fld" */
    {
      struct t_b_Homes *h1 = (struct t_b_Homes *)home->b_fld->val.stru;
      /* builtinCompPrefix b#1 "" */
      /* canGenerateComponents b#1 "" */
      h1->choice = -1;
      /* struPrefix b#1 "" */
      /* canGenerateComponents b#1 "" */
      /* isComp c#0 "" */
      {
        /* compPrefix c#0 "" */
        h1->choice = 0;
        /* pushPath c#0 "i1.c_fld" */
        /* leaf c#0 "i1.c_fld" */
        /* popPath c#0 "i1.c_fld" */
        /* compPostfix c#0 "i1.c_fld" */
      }
      /* isComp d#1 "" */
      {
        /* compPrefix d#1 "" */
        h1->choice = 1;
        /* pushPath d#1 "i1.d_fld" */
        /* leaf d#1 "i1.d_fld" */
        /* popPath d#1 "i1.d_fld" */
        /* compPostfix d#1 "i1.d_fld" */
      }
      /* struPostfix b#1 "" */
      /* builtinCompPostfix b#1 "" */
    }
    /* popPath b#1 "" */
    /* compPostfix b#1 "" */
  }
  /* leaf marker#2 "" */
  /* struPostfix Homes "" */
}
/* afterNormalFunc Homes "" */
/* beforeNormalFunc First "" */

void normFirst (ASNG_F(ASNPERG *asnperg) First *home)
{
  /* canGenerateComponents First "" */
  memset (home, 0, sizeof (First));
  /* struPrefix First "" */
  /* canGenerateComponents First "" */
  /* leaf marker#0 "" */
  /* isComp a#1 "a_fld" */
  {
    /* compPrefix a#1 "a_fld" */
    createHome (NULL, &home->a_fld, VF_NULL, 0);
    /* pushPath a#1 "a_fld" */
    /* leaf a#1 "a_fld" */
    /* popPath a#1 "a_fld" */
    /* compPostfix a#1 "a_fld" */
  }
  /* struPostfix First "" */
}
/* afterNormalFunc First "" */

/* passed 6 */
