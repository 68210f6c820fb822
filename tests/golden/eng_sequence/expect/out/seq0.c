/* beforeNormalFunc T "" */

void normT (ASNG_F(ASNPERG *asnperg) T *home)
{
  /* canGenerateComponents T "" */
  /* struPrefix T "" */
  /* canGenerateComponents T "" */
  /* leaf marker#0 "" */
  /* struPostfix T "" */
}
/* afterNormalFunc T "" */
/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  home->compmask = 0;
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* isComp a#0 "" */
  {
    /* compPrefix a#0 "" */
    home->compmask |= BIT(0);
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
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
    /* builtinCompPrefix d#1 "b_fld.d_fld" */
    /* canGenerateComponents d#1 "b_fld.d_fld" */
    home->b_fld.d_fld.compmask = 0;
    /* struPrefix d#1 "b_fld.d_fld" */
    /* canGenerateComponents d#1 "b_fld.d_fld" */
    /* isComp e#0 "" */
    {
      /* compPrefix e#0 "" */
      home->b_fld.d_fld.compmask |= BIT(0);
      /* pushPath e#0 "b_fld.d_fld.e_fld" */
      /* leaf e#0 "b_fld.d_fld.e_fld" */
      /* popPath e#0 "b_fld.d_fld.e_fld" */
      /* compPostfix e#0 "b_fld.d_fld.e_fld" */
    }
    /* struPostfix d#1 "b_fld.d_fld" */
    /* builtinCompPostfix d#1 "b_fld.d_fld" */
    /* popPath d#1 "b_fld.d_fld" */
    /* compPostfix d#1 "b_fld.d_fld" */
  }
  /* struPostfix b#1 "b_fld" */
  /* builtinCompPostfix b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* leaf marker#2 "" */
  /* isComp group#3 "" */
  /* compPrefix group#3 "" */
  /* pushPath group#3 "" */
  /* additionGroupPrefix group#3 "" */
  /* isComp f#3 "" */
  /* compPrefix f#3 "" */
  /* pushPath f#3 "f_fld" */
  /* leaf f#3 "f_fld" */
  /* popPath f#3 "f_fld" */
  /* compPostfix f#3 "f_fld" */
  /* isComp g#4 "" */
  {
    /* compPrefix g#4 "" */
    home->compmask |= BIT(4);
    /* pushPath g#4 "g_fld" */
    /* leaf g#4 "g_fld" */
    /* popPath g#4 "g_fld" */
    /* compPostfix g#4 "g_fld" */
  }
  /* additionGroupPostfix group#3 "" */
  /* popPath group#3 "" */
  /* compPostfix group#3 "" */
  /* isComp group#5 "" */
  /* compPrefix group#5 "" */
  /* pushPath group#5 "" */
  /* additionGroupPrefix group#5 "" */
  /* isComp h#5 "" */
  {
    /* compPrefix h#5 "" */
    home->compmask |= BIT(5);
    /* pushPath h#5 "h_fld" */
    /* leaf h#5 "h_fld" */
    /* popPath h#5 "h_fld" */
    /* compPostfix h#5 "h_fld" */
  }
  /* isComp i#6 "" */
  {
    /* compPrefix i#6 "" */
    home->compmask |= BIT(6);
    /* pushPath i#6 "i_fld" */
    /* builtinCompPrefix i#6 "i_fld" */
    /* canGenerateComponents i#6 "i_fld" */
    /* struPrefix i#6 "i_fld" */
    /* canGenerateComponents i#6 "i_fld" */
    /* isComp k#0 "" */
    /* compPrefix k#0 "" */
    /* pushPath k#0 "i_fld.k_fld" */
    /* leaf k#0 "i_fld.k_fld" */
    /* popPath k#0 "i_fld.k_fld" */
    /* compPostfix k#0 "i_fld.k_fld" */
    /* struPostfix i#6 "i_fld" */
    /* builtinCompPostfix i#6 "i_fld" */
    /* popPath i#6 "i_fld" */
    /* compPostfix i#6 "i_fld" */
  }
  /* additionGroupPostfix group#5 "" */
  /* popPath group#5 "" */
  /* compPostfix group#5 "" */
  /* isComp j#7 "" */
  {
    /* compPrefix j#7 "" */
    home->compmask |= BIT(7);
    /* pushPath j#7 "j_fld" */
    /* defStruct j#7 "j_fld" */
    normT (ASNG_F(asnperg) &home->j_fld);
    /* popPath j#7 "j_fld" */
    /* compPostfix j#7 "j_fld" */
  }
  /* struPostfix S "" */
}
/* afterNormalFunc S "" */
/* additionalNormalFunc E "" */

/* passed 3 */
