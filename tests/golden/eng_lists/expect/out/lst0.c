/* beforeNormalFunc Array "" */

void normArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  /* canGenerateComponents Array "" */
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* struPrefix Array "" */
    /* canGenerateComponents Array "" */
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
    uint32 n1 = 0;
    /* struPrefix Fixed "" */
    /* canGenerateComponents Fixed "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      if (n1 >= 5){
        report (AM_FAIL);
      }
      /* leaf element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
      n1++;
    }
    /* struPostfix Fixed "" */
    {
      BOOLE ok1;
      ok1 = (n1 == 5);
      if (!ok1){
        report (CONSTRAINT_FAIL);
      }
    }
  }
}
/* afterNormalFunc Fixed "" */
/* beforeNormalFunc Dynamic "" */

void normDynamic (ASNG_F(ASNPERG *asnperg) Dynamic *home)
{
  /* canGenerateComponents Dynamic "" */
  dynArrInit (home);
  {
    uint32 n1 = 0;
    /* struPrefix Dynamic "" */
    /* canGenerateComponents Dynamic "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      if (dynArrLen (home) >= 9){
        report (AM_FAIL);
      }
      /* leaf element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
      incDynArrLen (home);
      n1++;
    }
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
    ASNHOME *a1 = NULL;
    /* struPrefix Linked "" */
    /* canGenerateComponents Linked "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, home, &a1, VF_I32, 0);
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (home);
    }
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
    uint32 n1 = 0;
    /* struPrefix Matrix "" */
    /* canGenerateComponents Matrix "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      if (staArrLen (home) >= 3){
        report (AM_FAIL);
      }
      /* builtinCompPrefix element "elem [n1]" */
      /* canGenerateComponents element "elem [n1]" */
      staArrInit (&home->elem [n1]);
      {
        uint32 n2 = 0;
        /* struPrefix element "elem [n1]" */
        /* canGenerateComponents element "elem [n1]" */
        /* constructElemLoop element "" */
        while (more ()){
          /* isComp element "" */
          /* compPrefix element "" */
          /* pushElem element "elem [n1].elem [n2]" */
          if (staArrLen (&home->elem [n1]) >= 4){
            report (AM_FAIL);
          }
          /* leaf element "elem [n1].elem [n2]" */
          /* popPath element "elem [n1].elem [n2]" */
          /* compPostfix element "elem [n1].elem [n2]" */
          incStaArrLen (&home->elem [n1]);
          n2++;
        }
        /* struPostfix element "elem [n1]" */
      }
      /* builtinCompPostfix element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
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
    ASNHOME *a1 = NULL;
    /* struPrefix Web "" */
    /* canGenerateComponents Web "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, home, &a1, VF_LIST, 0);
      /* pushElem element "" */
      {
        LIST *h1 = &a1->val.list;
        /* builtinCompPrefix element "" */
        /* canGenerateComponents element "" */
        listInit (h1);
        {
          ASNHOME *a2 = NULL;
          /* struPrefix element "" */
          /* canGenerateComponents element "" */
          /* constructElemLoop element "" */
          while (more ()){
            /* isComp element "" */
            /* compPrefix element "" */
            appendList (NULL, h1, &a2, VF_STRU, sizeof (struct t_2_Web));
            /* pushElem element "" */
            {
              struct t_2_Web *h2 = (struct t_2_Web *)a2->val.stru;
              /* builtinCompPrefix element "" */
              /* canGenerateComponents element "" */
              /* struPrefix element "" */
              /* canGenerateComponents element "" */
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
              listInit (&h2->b_fld);
              {
                ASNHOME *a3 = NULL;
                /* struPrefix b#1 "b_fld" */
                /* canGenerateComponents b#1 "b_fld" */
                /* constructElemLoop element "" */
                while (more ()){
                  /* isComp element "" */
                  /* compPrefix element "" */
                  appendList (NULL, &h2->b_fld, &a3, VF_STRU, sizeof (Array));
                  /* pushElem element "" */
                  /* defStruct element "" */
                  normArray (ASNG_F(asnperg) (Array *)a3->val.stru);
                  /* popPath element "" */
                  /* compPostfix element "" */
                  incListLen (&h2->b_fld);
                }
                /* struPostfix b#1 "b_fld" */
              }
              /* builtinCompPostfix b#1 "b_fld" */
              /* popPath b#1 "b_fld" */
              /* compPostfix b#1 "b_fld" */
              /* struPostfix element "" */
              /* builtinCompPostfix element "" */
            }
            /* popPath element "" */
            /* compPostfix element "" */
            incListLen (h1);
          }
          /* struPostfix element "" */
        }
        /* builtinCompPostfix element "" */
      }
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (home);
    }
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
    uint32 n1 = 0;
    /* struPrefix a#0 "a_fld" */
    /* canGenerateComponents a#0 "a_fld" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      /* pushElem element "a_fld.elem [n1]" */
      if (staArrLen (&home->a_fld) >= 3){
        report (AM_FAIL);
      }
      /* builtinCompPrefix element "a_fld.elem [n1]" */
      /* canGenerateComponents element "a_fld.elem [n1]" */
      home->a_fld.elem [n1].compmask = 0;
      /* struPrefix element "a_fld.elem [n1]" */
      /* canGenerateComponents element "a_fld.elem [n1]" */
      /* isComp x#0 "" */
      /* compPrefix x#0 "" */
      /* pushPath x#0 "a_fld.elem [n1].x_fld" */
      /* leaf x#0 "a_fld.elem [n1].x_fld" */
      /* popPath x#0 "a_fld.elem [n1].x_fld" */
      /* compPostfix x#0 "a_fld.elem [n1].x_fld" */
      /* isComp y#1 "" */
      {
        /* compPrefix y#1 "" */
        home->a_fld.elem [n1].compmask |= BIT(1);
        /* pushPath y#1 "a_fld.elem [n1].y_fld" */
        /* leaf y#1 "a_fld.elem [n1].y_fld" */
        /* popPath y#1 "a_fld.elem [n1].y_fld" */
        /* compPostfix y#1 "a_fld.elem [n1].y_fld" */
      }
      /* struPostfix element "a_fld.elem [n1]" */
      /* builtinCompPostfix element "a_fld.elem [n1]" */
      /* popPath element "a_fld.elem [n1]" */
      /* compPostfix element "a_fld.elem [n1]" */
      incStaArrLen (&home->a_fld);
      n1++;
    }
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
    uint32 n1 = 0;
    /* struPrefix b#1 "b_fld" */
    /* canGenerateComponents b#1 "b_fld" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      /* pushElem element "b_fld.elem [n1]" */
      if (staArrLen (&home->b_fld) >= 3){
        report (AM_FAIL);
      }
      /* leaf element "b_fld.elem [n1]" */
      /* popPath element "b_fld.elem [n1]" */
      /* compPostfix element "b_fld.elem [n1]" */
      incStaArrLen (&home->b_fld);
      n1++;
    }
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
    ASNHOME *a1 = NULL;
    /* struPrefix c#2 "c_fld" */
    /* canGenerateComponents c#2 "c_fld" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, &home->c_fld, &a1, VF_NULL, 0);
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (&home->c_fld);
    }
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
    ASNHOME *a1 = NULL;
    /* struPrefix c#0 "c_fld" */
    /* canGenerateComponents c#0 "c_fld" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, &home->c_fld, &a1, VF_NULL, 0);
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (&home->c_fld);
    }
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
    ASNHOME *a1 = NULL;
    /* struPrefix d#1 "d_fld" */
    /* canGenerateComponents d#1 "d_fld" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, &home->d_fld, &a1, VF_NULL, 0);
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (&home->d_fld);
    }
    /* struPostfix d#1 "d_fld" */
  }
  /* builtinCompPostfix d#1 "d_fld" */
  /* popPath d#1 "d_fld" */
  /* compPostfix d#1 "d_fld" */
  /* struPostfix Links "" */
}
/* afterNormalFunc Links "" */

/* passed 8 */
