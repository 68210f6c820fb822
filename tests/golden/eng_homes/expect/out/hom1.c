
void normOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  switch (home->choice){
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
  }
}

void normOwn (ASNG_F(ASNPERG *asnperg) Own *home)
{
  if ((home->compmask & BIT(0))){
    /* compPrefix a#0 "" */
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  {
    struct t_b_Own *h1 = (struct t_b_Own *)home->b_fld->val.stru;
    /* compPrefix c#0 "" */
    /* pushPath c#0 "c_fld" */
    {
      struct t_c_b_Own *h2 = (struct t_c_b_Own *)h1->c_fld->val.stru;
      if ((h2->compmask & BIT(0))){
        /* compPrefix d#0 "" */
        /* pushPath d#0 "d_fld" */
        /* leaf d#0 "d_fld" */
        /* popPath d#0 "d_fld" */
        /* compPostfix d#0 "d_fld" */
      }
    }
    /* popPath c#0 "" */
    /* compPostfix c#0 "" */
    /* compPrefix e#1 "" */
    /* pushPath e#1 "e_fld" */
    {
      ASNHOME *a1 = NULL;
      for (a1 = firstListItem (&h1->e_fld); a1; a1 = nextListItem (a1)){
        /* compPrefix element "" */
        /* pushElem element "" */
        /* leaf element "" */
        /* popPath element "" */
        /* compPostfix element "" */
      }
    }
    /* popPath e#1 "e_fld" */
    /* compPostfix e#1 "e_fld" */
  }
  /* popPath b#1 "" */
  /* compPostfix b#1 "" */
  /* compPrefix f#2 "" */
  /* pushPath f#2 "f_fld" */
  /* defStruct f#2 "f_fld" */
  normOther (ASNG_F(asnperg) (Other *)home->f_fld->val.stru);
  /* popPath f#2 "f_fld" */
  /* compPostfix f#2 "f_fld" */
  /* compPrefix g#3 "" */
  /* pushPath g#3 "g_fld" */
  /* leaf g#3 "g_fld" */
  /* popPath g#3 "g_fld" */
  /* compPostfix g#3 "g_fld" */
}

void normComps (ASNG_F(ASNPERG *asnperg) Comps *home)
{
  /* compPrefix a#0 "a_fld" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  if (home->b_fld){
    /* compPrefix b#1 "b_fld" */
    /* pushPath b#1 "b_fld" */
    {
      struct t_b_Comps *h1 = (struct t_b_Comps *)home->b_fld->val.stru;
      if ((h1->compmask & BIT(0))){
        /* compPrefix c#0 "" */
        /* pushPath c#0 "c_fld" */
        /* leaf c#0 "c_fld" */
        /* popPath c#0 "c_fld" */
        /* compPostfix c#0 "c_fld" */
      }
    }
    /* popPath b#1 "" */
    /* compPostfix b#1 "" */
  }
  /* leaf marker#2 "" */
  /* compPrefix group#3 "_fld" */
  /* pushPath group#3 "_fld" */
  /* additionGroupPrefix group#3 "_fld" */
  if (home->_fld.d_fld){
    /* compPrefix d#3 "_fld.d_fld" */
    /* pushPath d#3 "_fld.d_fld" */
    /* leaf d#3 "_fld.d_fld" */
    /* popPath d#3 "_fld.d_fld" */
    /* compPostfix d#3 "_fld.d_fld" */
  }
  /* compPrefix e#4 "_fld.e_fld" */
  /* pushPath e#4 "_fld.e_fld" */
  {
    LIST *h1 = &home->_fld.e_fld->val.list;
    {
      ASNHOME *a1 = NULL;
      for (a1 = firstListItem (h1); a1; a1 = nextListItem (a1)){
        /* compPrefix element "" */
        /* pushElem element "" */
        /* defStruct element "" */
        normOther (ASNG_F(asnperg) (Other *)a1->val.stru);
        /* popPath element "" */
        /* compPostfix element "" */
      }
    }
  }
  /* popPath e#4 "" */
  /* compPostfix e#4 "" */
  /* additionGroupPostfix group#3 "_fld" */
  /* popPath group#3 "_fld" */
  /* compPostfix group#3 "_fld" */
  /* compPrefix f#5 "_fld.f_fld" */
  /* pushPath f#5 "_fld.f_fld" */
  /* leaf f#5 "_fld.f_fld" */
  /* popPath f#5 "_fld.f_fld" */
  /* compPostfix f#5 "_fld.f_fld" */
}

void normGroups (ASNG_F(ASNPERG *asnperg) Groups *home)
{
  /* leaf marker#0 "" */
  if (home->_fld.a_fld || home->_fld.b_fld){
    /* compPrefix group#1 "_fld" */
    /* pushPath group#1 "_fld" */
    /* additionGroupPrefix group#1 "_fld" */
    if (home->_fld.a_fld){
      /* compPrefix a#1 "_fld.a_fld" */
      /* pushPath a#1 "_fld.a_fld" */
      /* leaf a#1 "_fld.a_fld" */
      /* popPath a#1 "_fld.a_fld" */
      /* compPostfix a#1 "_fld.a_fld" */
    }
    if (home->_fld.b_fld){
      /* compPrefix b#2 "_fld.b_fld" */
      /* pushPath b#2 "_fld.b_fld" */
      /* leaf b#2 "_fld.b_fld" */
      /* popPath b#2 "_fld.b_fld" */
      /* compPostfix b#2 "_fld.b_fld" */
    }
    /* additionGroupPostfix group#1 "_fld" */
    /* popPath group#1 "_fld" */
    /* compPostfix group#1 "_fld" */
  }
}

void normWays (ASNG_F(ASNPERG *asnperg) Ways *home)
{
  switch (home->choice){
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
        {
          struct t_b_Ways *h1 = (struct t_b_Ways *)home->i1.b_fld->val.stru;
          /* compPrefix c#0 "" */
          /* pushPath c#0 "c_fld" */
          /* leaf c#0 "c_fld" */
          /* popPath c#0 "c_fld" */
          /* compPostfix c#0 "c_fld" */
        }
        /* popPath b#1 "" */
        /* compPostfix b#1 "" */
      }
      break;
  }
}

void normPointers (ASNG_F(ASNPERG *asnperg) Pointers *home)
{
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  if ((home->b_fld->compmask & BIT(0))){
    /* compPrefix c#0 "" */
    /* pushPath c#0 "b_fld->c_fld" */
    /* leaf c#0 "b_fld->c_fld" */
    /* popPath c#0 "b_fld->c_fld" */
    /* compPostfix c#0 "b_fld->c_fld" */
  }
  /* compPrefix d#1 "" */
  /* pushPath d#1 "b_fld->d_fld" */
  /* leaf d#1 "b_fld->d_fld" */
  /* popPath d#1 "b_fld->d_fld" */
  /* compPostfix d#1 "b_fld->d_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  if ((home->compmask & BIT(2))){
    /* compPrefix e#2 "" */
    /* pushPath e#2 "e_fld" */
    /* defStruct e#2 "e_fld" */
    normOther (ASNG_F(asnperg) home->e_fld);
    /* popPath e#2 "e_fld" */
    /* compPostfix e#2 "e_fld" */
  }
}

void normParts (ASNG_F(ASNPERG *asnperg) Parts *home)
{
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  if (home->compmask & BIT(1)){
    /* leaf marker#1 "" */
    /* leaf marker#1 "" */
  }
  if ((home->compmask & BIT(2))){
    /* compPrefix b#2 "" */
    /* pushPath b#2 "b_fld" */
    {
      struct t_b_Parts *h1 = (struct t_b_Parts *)home->b_fld->val.stru;
      if ((h1->compmask & BIT(0))){
        /* compPrefix c#0 "" */
        /* pushPath c#0 "c_fld" */
        /* leaf c#0 "c_fld" */
        /* popPath c#0 "c_fld" */
        /* compPostfix c#0 "c_fld" */
      }
      if (h1->compmask & BIT(1)){
        /* leaf marker#1 "" */
        /* leaf marker#1 "" */
      }
    }
    /* popPath b#2 "" */
    /* compPostfix b#2 "" */
  }
}

/* passed 7 */
