/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  home->compmask = 0;
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* isComp b#1 "" */
  {
    /* compPrefix b#1 "" */
    home->compmask |= BIT(1);
    /* pushPath b#1 "b_fld" */
    /* leaf b#1 "b_fld" */
    /* popPath b#1 "b_fld" */
    /* compPostfix b#1 "b_fld" */
  }
  /* leaf marker#2 "" */
  /* isComp c#3 "" */
  /* compPrefix c#3 "" */
  /* pushPath c#3 "c_fld" */
  /* leaf c#3 "c_fld" */
  /* popPath c#3 "c_fld" */
  /* compPostfix c#3 "c_fld" */
  /* struPostfix S "" */
}
/* afterNormalFunc S "" */
/* beforeNormalFunc C "" */

void normC (ASNG_F(ASNPERG *asnperg) C *home)
{
  /* canGenerateComponents C "" */
  home->choice = -1;
  /* struPrefix C "" */
  /* canGenerateComponents C "" */
  /* isComp x#0 "" */
  {
    /* compPrefix x#0 "" */
    home->choice = 0;
    /* pushPath x#0 "i1.x_fld" */
    /* leaf x#0 "i1.x_fld" */
    /* popPath x#0 "i1.x_fld" */
    /* compPostfix x#0 "i1.x_fld" */
  }
  /* isComp y#1 "" */
  {
    /* compPrefix y#1 "" */
    home->choice = 1;
    /* pushPath y#1 "i1.y_fld" */
    /* leaf y#1 "i1.y_fld" */
    /* popPath y#1 "i1.y_fld" */
    /* compPostfix y#1 "i1.y_fld" */
  }
  /* struPostfix C "" */
}
/* afterNormalFunc C "" */
/* beforeNormalFunc L "" */

void normL (ASNG_F(ASNPERG *asnperg) L *home)
{
  /* canGenerateComponents L "" */
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* struPrefix L "" */
    /* canGenerateComponents L "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      if (staArrLen (home) >= 5){
        report (AM_FAIL);
      }
      /* leaf element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
    /* struPostfix L "" */
    {
      BOOLE ok1;
      ok1 = (staArrLen (home) >= 1);
      if (!ok1){
        report (CONSTRAINT_FAIL);
      }
    }
  }
}
/* afterNormalFunc L "" */

/* passed 3 */
