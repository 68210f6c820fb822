/* beforeNormalFunc Array "" */

void normArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  /* canGenerateComponents Array "" */
  /* struPrefix Array "" */
  /* canGenerateComponents Array "" */
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
  /* struPostfix Array "" */
}
/* afterNormalFunc Array "" */
/* beforeNormalFunc Fixed "" */

void normFixed (ASNG_F(ASNPERG *asnperg) Fixed *home)
{
  /* canGenerateComponents Fixed "" */
  /* struPrefix Fixed "" */
  /* canGenerateComponents Fixed "" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 5; n1++){
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* leaf element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
    }
  }
  /* struPostfix Fixed "" */
}
/* afterNormalFunc Fixed "" */
/* beforeNormalFunc Dynamic "" */

void normDynamic (ASNG_F(ASNPERG *asnperg) Dynamic *home)
{
  /* canGenerateComponents Dynamic "" */
  /* struPrefix Dynamic "" */
  /* canGenerateComponents Dynamic "" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < dynArrLen (home); n1++){
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* leaf element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
    }
  }
  /* struPostfix Dynamic "" */
}
/* afterNormalFunc Dynamic "" */
/* beforeNormalFunc Linked "" */

void normLinked (ASNG_F(ASNPERG *asnperg) Linked *home)
{
  /* canGenerateComponents Linked "" */
  /* struPrefix Linked "" */
  /* canGenerateComponents Linked "" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix Linked "" */
}
/* afterNormalFunc Linked "" */
/* beforeNormalFunc Matrix "" */

void normMatrix (ASNG_F(ASNPERG *asnperg) Matrix *home)
{
  /* canGenerateComponents Matrix "" */
  /* struPrefix Matrix "" */
  /* canGenerateComponents Matrix "" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* builtinCompPrefix element "elem [n1]" */
      /* canGenerateComponents element "elem [n1]" */
      /* struPrefix element "elem [n1]" */
      /* canGenerateComponents element "elem [n1]" */
      {
        uint32 n2 = 0;
        for (n2 = 0; n2 < staArrLen (&home->elem [n1]); n2++){
          /* compPrefix element "" */
          /* pushElem element "elem [n1].elem [n2]" */
          /* leaf element "elem [n1].elem [n2]" */
          /* popPath element "elem [n1].elem [n2]" */
          /* compPostfix element "elem [n1].elem [n2]" */
        }
      }
      /* struPostfix element "elem [n1]" */
      /* builtinCompPostfix element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
    }
  }
  /* struPostfix Matrix "" */
}
/* afterNormalFunc Matrix "" */
/* beforeNormalFunc Web "" */

void normWeb (ASNG_F(ASNPERG *asnperg) Web *home)
{
  /* canGenerateComponents Web "" */
  /* struPrefix Web "" */
  /* canGenerateComponents Web "" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      {
        LIST *h1 = &a1->val.list;
        /* builtinCompPrefix element "" */
        /* canGenerateComponents element "" */
        /* struPrefix element "" */
        /* canGenerateComponents element "" */
        {
          ASNHOME *a2 = NULL;
          for (a2 = firstListItem (h1); a2; a2 = nextListItem (a2)){
            /* compPrefix element "" */
            /* pushElem element "" */
            {
              struct t_2_Web *h2 = (struct t_2_Web *)a2->val.stru;
              /* builtinCompPrefix element "" */
              /* canGenerateComponents element "" */
              /* struPrefix element "" */
              /* canGenerateComponents element "" */
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
              {
                ASNHOME *a3 = NULL;
                for (a3 = firstListItem (&h2->b_fld); a3; a3 =
                  nextListItem (a3)){
                  /* compPrefix element "" */
                  /* pushElem element "" */
                  /* defStruct element "" */
                  normArray (ASNG_F(asnperg) (Array *)a3->val.stru);
                  /* popPath element "" */
                  /* compPostfix element "" */
                }
              }
              /* struPostfix b#1 "b_fld" */
              /* builtinCompPostfix b#1 "b_fld" */
              /* popPath b#1 "b_fld" */
              /* compPostfix b#1 "b_fld" */
              /* struPostfix element "" */
              /* builtinCompPostfix element "" */
            }
            /* popPath element "" */
            /* compPostfix element "" */
          }
        }
        /* struPostfix element "" */
        /* builtinCompPostfix element "" */
      }
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix Web "" */
}
/* afterNormalFunc Web "" */
/* beforeNormalFunc Rows "" */

void normRows (ASNG_F(ASNPERG *asnperg) Rows *home)
{
  /* canGenerateComponents Rows "" */
  /* struPrefix Rows "" */
  /* canGenerateComponents Rows "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* builtinCompPrefix a#0 "a_fld" */
  /* canGenerateComponents a#0 "a_fld" */
  /* struPrefix a#0 "a_fld" */
  /* canGenerateComponents a#0 "a_fld" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
      /* compPrefix element "" */
      /* pushElem element "a_fld.elem [n1]" */
      /* builtinCompPrefix element "a_fld.elem [n1]" */
      /* canGenerateComponents element "a_fld.elem [n1]" */
      /* struPrefix element "a_fld.elem [n1]" */
      /* canGenerateComponents element "a_fld.elem [n1]" */
      /* compPrefix x#0 "" */
      /* pushPath x#0 "a_fld.elem [n1].x_fld" */
      /* leaf x#0 "a_fld.elem [n1].x_fld" */
      /* popPath x#0 "a_fld.elem [n1].x_fld" */
      /* compPostfix x#0 "a_fld.elem [n1].x_fld" */
      if ((home->a_fld.elem [n1].compmask & BIT(1))){
        /* compPrefix y#1 "" */
        /* pushPath y#1 "a_fld.elem [n1].y_fld" */
        /* leaf y#1 "a_fld.elem [n1].y_fld" */
        /* popPath y#1 "a_fld.elem [n1].y_fld" */
        /* compPostfix y#1 "a_fld.elem [n1].y_fld" */
      }
      /* struPostfix element "a_fld.elem [n1]" */
      /* builtinCompPostfix element "a_fld.elem [n1]" */
      /* popPath element "a_fld.elem [n1]" */
      /* compPostfix element "a_fld.elem [n1]" */
    }
  }
  /* struPostfix a#0 "a_fld" */
  /* builtinCompPostfix a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* struPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->b_fld); n1++){
      /* compPrefix element "" */
      /* pushElem element "b_fld.elem [n1]" */
      /* leaf element "b_fld.elem [n1]" */
      /* popPath element "b_fld.elem [n1]" */
      /* compPostfix element "b_fld.elem [n1]" */
    }
  }
  /* struPostfix b#1 "b_fld" */
  /* builtinCompPostfix b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* compPrefix c#2 "" */
  /* pushPath c#2 "c_fld" */
  /* builtinCompPrefix c#2 "c_fld" */
  /* canGenerateComponents c#2 "c_fld" */
  /* struPrefix c#2 "c_fld" */
  /* canGenerateComponents c#2 "c_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->c_fld); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix c#2 "c_fld" */
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
  /* compPrefix c#0 "" */
  /* pushPath c#0 "c_fld" */
  /* builtinCompPrefix c#0 "c_fld" */
  /* canGenerateComponents c#0 "c_fld" */
  /* struPrefix c#0 "c_fld" */
  /* canGenerateComponents c#0 "c_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->c_fld); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix c#0 "c_fld" */
  /* builtinCompPostfix c#0 "c_fld" */
  /* popPath c#0 "c_fld" */
  /* compPostfix c#0 "c_fld" */
  /* compPrefix d#1 "" */
  /* pushPath d#1 "d_fld" */
  /* builtinCompPrefix d#1 "d_fld" */
  /* canGenerateComponents d#1 "d_fld" */
  /* struPrefix d#1 "d_fld" */
  /* canGenerateComponents d#1 "d_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->d_fld); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix d#1 "d_fld" */
  /* builtinCompPostfix d#1 "d_fld" */
  /* popPath d#1 "d_fld" */
  /* compPostfix d#1 "d_fld" */
  /* struPostfix Links "" */
}
/* afterNormalFunc Links "" */

/* passed 8 */
