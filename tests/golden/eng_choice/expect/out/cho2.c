/* beforeNormalFunc Plain "" */

void normPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  /* canGenerateComponents Plain "" */
  /* struPrefix Plain "" */
  switch (home->choice){
    /* canGenerateComponents Plain "" */
    case 0:
      {
        /* compPrefix a#0 "" */
        /* pushPath a#0 "i1.a_fld" */
        /* leaf a#0 "i1.a_fld" */
        /* popPath a#0 "i1.a_fld" */
        /* compPostfix a#0 "i1.a_fld" */
      }
      break;
    case 1:
      {
        /* compPrefix b#1 "" */
        /* pushPath b#1 "i1.b_fld" */
        /* builtinCompPrefix b#1 "i1.b_fld" */
        /* canGenerateComponents b#1 "i1.b_fld" */
        /* struPrefix b#1 "i1.b_fld" */
        switch (home->i1.b_fld.choice){
          /* canGenerateComponents b#1 "i1.b_fld" */
          case 0:
            {
              /* compPrefix c#0 "" */
              /* pushPath c#0 "i1.b_fld.i1.c_fld" */
              /* leaf c#0 "i1.b_fld.i1.c_fld" */
              /* popPath c#0 "i1.b_fld.i1.c_fld" */
              /* compPostfix c#0 "i1.b_fld.i1.c_fld" */
            }
            break;
          case 1:
            {
              /* compPrefix d#1 "" */
              /* pushPath d#1 "i1.b_fld.i1.d_fld" */
              /* defStruct d#1 "i1.b_fld.i1.d_fld" */
              normPlain (ASNG_F(asnperg) home->i1.b_fld.i1.d_fld);
              /* popPath d#1 "i1.b_fld.i1.d_fld" */
              /* compPostfix d#1 "i1.b_fld.i1.d_fld" */
            }
            break;
          /* struPostfix b#1 "i1.b_fld" */
        }
        /* builtinCompPostfix b#1 "i1.b_fld" */
        /* popPath b#1 "i1.b_fld" */
        /* compPostfix b#1 "i1.b_fld" */
      }
      break;
    /* struPostfix Plain "" */
  }
}
/* afterNormalFunc Plain "" */
/* beforeNormalFunc One "" */

void normOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  /* canGenerateComponents One "" */
  /* struPrefix One "" */
  switch (home->choice){
    /* canGenerateComponents One "" */
    case 0:
      {
        /* compPrefix a#0 "" */
        /* pushPath a#0 "i1.a_fld" */
        /* leaf a#0 "i1.a_fld" */
        /* popPath a#0 "i1.a_fld" */
        /* compPostfix a#0 "i1.a_fld" */
      }
      break;
    /* struPostfix One "" */
  }
}
/* afterNormalFunc One "" */
/* beforeNormalFunc Marker "" */

void normMarker (ASNG_F(ASNPERG *asnperg) Marker *home)
{
  /* canGenerateComponents Marker "" */
  /* struPrefix Marker "" */
  switch (home->choice){
    /* canGenerateComponents Marker "" */
    case 0:
      {
        /* compPrefix a#0 "" */
        /* pushPath a#0 "i1.a_fld" */
        /* leaf a#0 "i1.a_fld" */
        /* popPath a#0 "i1.a_fld" */
        /* compPostfix a#0 "i1.a_fld" */
      }
      break;
    /* leaf marker#1 "" */
    case 2:
      {
        /* compPrefix b#2 "" */
        /* pushPath b#2 "i1.b_fld" */
        /* leaf b#2 "i1.b_fld" */
        /* popPath b#2 "i1.b_fld" */
        /* compPostfix b#2 "i1.b_fld" */
      }
      break;
    /* struPostfix Marker "" */
  }
}
/* afterNormalFunc Marker "" */
/* beforeNormalFunc Last "" */

void normLast (ASNG_F(ASNPERG *asnperg) Last *home)
{
  /* canGenerateComponents Last "" */
  /* struPrefix Last "" */
  switch (home->choice){
    /* canGenerateComponents Last "" */
    case 0:
      {
        /* compPrefix a#0 "" */
        /* pushPath a#0 "i1.a_fld" */
        /* leaf a#0 "i1.a_fld" */
        /* popPath a#0 "i1.a_fld" */
        /* compPostfix a#0 "i1.a_fld" */
      }
      break;
    case 1:
      {
        /* compPrefix b#1 "" */
        /* pushPath b#1 "i1.b_fld" */
        /* leaf b#1 "i1.b_fld" */
        /* popPath b#1 "i1.b_fld" */
        /* compPostfix b#1 "i1.b_fld" */
      }
      break;
    /* leaf marker#2 "" */
    /* struPostfix Last "" */
  }
}
/* afterNormalFunc Last "" */
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
  else if (home->b_fld){
    /* compPrefix b#1 "b_fld" */
    /* pushPath b#1 "b_fld" */
    {
      struct t_b_Homes *h1 = (struct t_b_Homes *)home->b_fld->val.stru;
      /* builtinCompPrefix b#1 "" */
      /* canGenerateComponents b#1 "" */
      /* struPrefix b#1 "" */
      switch (h1->choice){
        /* canGenerateComponents b#1 "" */
        case 0:
          {
            /* compPrefix c#0 "" */
            /* pushPath c#0 "i1.c_fld" */
            /* leaf c#0 "i1.c_fld" */
            /* popPath c#0 "i1.c_fld" */
            /* compPostfix c#0 "i1.c_fld" */
          }
          break;
        case 1:
          {
            /* compPrefix d#1 "" */
            /* pushPath d#1 "i1.d_fld" */
            /* leaf d#1 "i1.d_fld" */
            /* popPath d#1 "i1.d_fld" */
            /* compPostfix d#1 "i1.d_fld" */
          }
          break;
        /* struPostfix b#1 "" */
      }
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
  /* struPrefix First "" */
  /* canGenerateComponents First "" */
  /* leaf marker#0 "" */
  else if (home->a_fld){
    /* compPrefix a#1 "a_fld" */
    /* pushPath a#1 "a_fld" */
    /* leaf a#1 "a_fld" */
    /* popPath a#1 "a_fld" */
    /* compPostfix a#1 "a_fld" */
  }
  /* struPostfix First "" */
}
/* afterNormalFunc First "" */

/* passed 6 */
