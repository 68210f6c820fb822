/* beforeNormalFunc Array "" */

void normArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  /* struPrefix Array "" */
  {
    uint32 n1 = 0;
    for (n1 = staArrLen (home); n1 > 0;){
      n1--;
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
  /* struPrefix Fixed "" */
  {
    uint32 n1 = 0;
    for (n1 = 5; n1 > 0;){
      n1--;
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
  /* struPrefix Dynamic "" */
  {
    uint32 n1 = 0;
    for (n1 = dynArrLen (home); n1 > 0;){
      n1--;
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
  /* struPrefix Linked "" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = lastListItem (home); a1; a1 = prevListItem (a1)){
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
  /* struPrefix Matrix "" */
  {
    uint32 n1 = 0;
    for (n1 = staArrLen (home); n1 > 0;){
      n1--;
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* builtinCompPrefix element "elem [n1]" */
      /* struPrefix element "elem [n1]" */
      {
        uint32 n2 = 0;
        for (n2 = staArrLen (&home->elem [n1]); n2 > 0;){
          n2--;
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
  /* struPrefix Web "" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = lastListItem (home); a1; a1 = prevListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      {
        LIST *h1 = &a1->val.list;
        /* builtinCompPrefix element "" */
        /* struPrefix element "" */
        {
          ASNHOME *a2 = NULL;
          for (a2 = lastListItem (h1); a2; a2 = prevListItem (a2)){
            /* compPrefix element "" */
            /* pushElem element "" */
            {
              struct t_2_Web *h2 = (struct t_2_Web *)a2->val.stru;
              /* builtinCompPrefix element "" */
              /* struPrefix element "" */
              /* compPrefix b#1 "" */
              /* pushPath b#1 "b_fld" */
              /* builtinCompPrefix b#1 "b_fld" */
              /* struPrefix b#1 "b_fld" */
              {
                ASNHOME *a3 = NULL;
                for (a3 = lastListItem (&h2->b_fld); a3; a3 =
                  prevListItem (a3)){
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
              /* compPrefix a#0 "" */
              /* pushPath a#0 "a_fld" */
              /* leaf a#0 "a_fld" */
              /* popPath a#0 "a_fld" */
              /* compPostfix a#0 "a_fld" */
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
  /* struPrefix Rows "" */
  /* compPrefix c#2 "" */
  /* pushPath c#2 "c_fld" */
  /* builtinCompPrefix c#2 "c_fld" */
  /* struPrefix c#2 "c_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = lastListItem (&home->c_fld); a1; a1 = prevListItem (a1)){
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
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* struPrefix b#1 "b_fld" */
  {
    uint32 n1 = 0;
    for (n1 = staArrLen (&home->b_fld); n1 > 0;){
      n1--;
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
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* builtinCompPrefix a#0 "a_fld" */
  /* struPrefix a#0 "a_fld" */
  {
    uint32 n1 = 0;
    for (n1 = staArrLen (&home->a_fld); n1 > 0;){
      n1--;
      /* compPrefix element "" */
      /* pushElem element "a_fld.elem [n1]" */
      /* builtinCompPrefix element "a_fld.elem [n1]" */
      /* struPrefix element "a_fld.elem [n1]" */
      if ((home->a_fld.elem [n1].compmask & BIT(1))){
        /* compPrefix y#1 "" */
        /* pushPath y#1 "a_fld.elem [n1].y_fld" */
        /* leaf y#1 "a_fld.elem [n1].y_fld" */
        /* popPath y#1 "a_fld.elem [n1].y_fld" */
        /* compPostfix y#1 "a_fld.elem [n1].y_fld" */
      }
      /* compPrefix x#0 "" */
      /* pushPath x#0 "a_fld.elem [n1].x_fld" */
      /* leaf x#0 "a_fld.elem [n1].x_fld" */
      /* popPath x#0 "a_fld.elem [n1].x_fld" */
      /* compPostfix x#0 "a_fld.elem [n1].x_fld" */
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
  /* struPostfix Rows "" */
}
/* afterNormalFunc Rows "" */
/* beforeNormalFunc Links "" */

void normLinks (ASNG_F(ASNPERG *asnperg) Links *home)
{
  /* struPrefix Links "" */
  /* compPrefix d#1 "" */
  /* pushPath d#1 "d_fld" */
  /* builtinCompPrefix d#1 "d_fld" */
  /* struPrefix d#1 "d_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = lastListItem (&home->d_fld); a1; a1 = prevListItem (a1)){
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
  /* compPrefix c#0 "" */
  /* pushPath c#0 "c_fld" */
  /* builtinCompPrefix c#0 "c_fld" */
  /* struPrefix c#0 "c_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = lastListItem (&home->c_fld); a1; a1 = prevListItem (a1)){
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
  /* struPostfix Links "" */
}
/* afterNormalFunc Links "" */

/* passed 8 */
