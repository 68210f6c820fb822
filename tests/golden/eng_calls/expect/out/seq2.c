/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  if ((home->compmask & BIT(1))){
    /* compPrefix b#1 "" */
    /* pushPath b#1 "b_fld" */
    /* leaf b#1 "b_fld" */
    /* popPath b#1 "b_fld" */
    /* compPostfix b#1 "b_fld" */
  }
  /* leaf marker#2 "" */
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
  /* struPrefix C "" */
  switch (home->choice){
    /* canGenerateComponents C "" */
    case 0:
      {
        /* compPrefix x#0 "" */
        /* pushPath x#0 "i1.x_fld" */
        /* leaf x#0 "i1.x_fld" */
        /* popPath x#0 "i1.x_fld" */
        /* compPostfix x#0 "i1.x_fld" */
      }
      break;
    case 1:
      {
        /* compPrefix y#1 "" */
        /* pushPath y#1 "i1.y_fld" */
        /* leaf y#1 "i1.y_fld" */
        /* popPath y#1 "i1.y_fld" */
        /* compPostfix y#1 "i1.y_fld" */
      }
      break;
    /* struPostfix C "" */
  }
}
/* afterNormalFunc C "" */
/* beforeNormalFunc L "" */

void normL (ASNG_F(ASNPERG *asnperg) L *home)
{
  /* canGenerateComponents L "" */
  /* struPrefix L "" */
  /* canGenerateComponents L "" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* leaf element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
    }
  }
  /* struPostfix L "" */
}
/* afterNormalFunc L "" */

/* passed 3 */
