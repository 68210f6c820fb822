
void normOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  home->choice = -1;
  {
    /* compPrefix x#0 "" */
    home->choice = 0;
    /* pushPath x#0 "i1.x_fld" */
    /* leaf x#0 "i1.x_fld" */
    /* popPath x#0 "i1.x_fld" */
    /* compPostfix x#0 "i1.x_fld" */
  }
  {
    /* compPrefix y#1 "" */
    home->choice = 1;
    /* pushPath y#1 "i1.y_fld" */
    /* leaf y#1 "i1.y_fld" */
    /* popPath y#1 "i1.y_fld" */
    /* compPostfix y#1 "i1.y_fld" */
  }
}

void normOwn (ASNG_F(ASNPERG *asnperg) Own *home)
{
  home->compmask = 0;
  {
    /* compPrefix a#0 "" */
    createHome (NULL, &home->a_fld, VF_I32, 0);
    home->compmask |= BIT(0);
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* compPrefix b#1 "" */
  createHome (NULL, &home->b_fld, VF_STRU, sizeof (struct t_b_Own));
  /* pushPath b#1 "b_fld" */
  {
    struct t_b_Own *h1 = (struct t_b_Own *)home->b_fld->val.stru;
    /* compPrefix c#0 "" */
    createHome (NULL, &h1->c_fld, VF_STRU, sizeof (struct t_c_b_Own));
    /* pushPath c#0 "c_fld" */
    {
      struct t_c_b_Own *h2 = (struct t_c_b_Own *)h1->c_fld->val.stru;
      h2->compmask = 0;
      {
        /* compPrefix d#0 "" */
        h2->compmask |= BIT(0);
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
    listInit (&h1->e_fld);
    {
      ASNHOME *a1 = NULL;
      /* constructElemLoop element "" */
      while (more ()){
        /* compPrefix element "" */
        appendList (NULL, &h1->e_fld, &a1, VF_NULL, 0);
        /* pushElem element "" */
        /* leaf element "" */
        /* popPath element "" */
        /* compPostfix element "" */
        incListLen (&h1->e_fld);
      }
    }
    /* popPath e#1 "e_fld" */
    /* compPostfix e#1 "e_fld" */
  }
  /* popPath b#1 "" */
  /* compPostfix b#1 "" */
  /* compPrefix f#2 "" */
  createHome (NULL, &home->f_fld, VF_STRU, sizeof (Other));
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
  memset (home, 0, sizeof (Comps));
  /* compPrefix a#0 "a_fld" */
  createHome (NULL, &home->a_fld, VF_I32, 0);
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  {
    /* compPrefix b#1 "b_fld" */
    createHome (NULL, &home->b_fld, VF_STRU, sizeof (struct t_b_Comps));
    /* pushPath b#1 "b_fld" */
    {
      struct t_b_Comps *h1 = (struct t_b_Comps *)home->b_fld->val.stru;
      h1->compmask = 0;
      {
        /* compPrefix c#0 "" */
        h1->compmask |= BIT(0);
        /* pushPath c#0 "c_fld" */
        /* leaf c#0 "c_fld" */
        /* popPath c#0 "c_fld" */
        /* compPostfix c#0 "c_fld" */
      }
    }
    /* popPath b#1 "" */
    /* compPostfix b#1 "" */
  }
  /* compPrefix group#3 "_fld" */
  createHome (NULL, &home->_fld, VF_NONE, 0);
  /* pushPath group#3 "_fld" */
  /* additionGroupPrefix group#3 "_fld" */
  {
    /* compPrefix d#3 "_fld.d_fld" */
    createHome (NULL, &home->_fld.d_fld, VF_NULL, 0);
    /* pushPath d#3 "_fld.d_fld" */
    /* leaf d#3 "_fld.d_fld" */
    /* popPath d#3 "_fld.d_fld" */
    /* compPostfix d#3 "_fld.d_fld" */
  }
  /* compPrefix e#4 "_fld.e_fld" */
  createHome (NULL, &home->_fld.e_fld, VF_LIST, 0);
  /* pushPath e#4 "_fld.e_fld" */
  {
    LIST *h1 = &home->_fld.e_fld->val.list;
    listInit (h1);
    {
      ASNHOME *a1 = NULL;
      /* constructElemLoop element "" */
      while (more ()){
        /* compPrefix element "" */
        appendList (NULL, h1, &a1, VF_STRU, sizeof (Other));
        /* pushElem element "" */
        /* defStruct element "" */
        normOther (ASNG_F(asnperg) (Other *)a1->val.stru);
        /* popPath element "" */
        /* compPostfix element "" */
        incListLen (h1);
      }
    }
  }
  /* popPath e#4 "" */
  /* compPostfix e#4 "" */
  /* additionGroupPostfix group#3 "_fld" */
  /* popPath group#3 "_fld" */
  /* compPostfix group#3 "_fld" */
  /* compPrefix f#5 "_fld.f_fld" */
  createHome (NULL, &home->_fld.f_fld, VF_DYNS, 0);
  /* pushPath f#5 "_fld.f_fld" */
  /* leaf f#5 "_fld.f_fld" */
  /* popPath f#5 "_fld.f_fld" */
  /* compPostfix f#5 "_fld.f_fld" */
}

void normGroups (ASNG_F(ASNPERG *asnperg) Groups *home)
{
  memset (home, 0, sizeof (Groups));
  /* compPrefix group#1 "_fld" */
  createHome (NULL, &home->_fld, VF_NONE, 0);
  /* pushPath group#1 "_fld" */
  /* additionGroupPrefix group#1 "_fld" */
  {
    /* compPrefix a#1 "_fld.a_fld" */
    createHome (NULL, &home->_fld.a_fld, VF_NULL, 0);
    /* pushPath a#1 "_fld.a_fld" */
    /* leaf a#1 "_fld.a_fld" */
    /* popPath a#1 "_fld.a_fld" */
    /* compPostfix a#1 "_fld.a_fld" */
  }
  {
    /* compPrefix b#2 "_fld.b_fld" */
    createHome (NULL, &home->_fld.b_fld, VF_NULL, 0);
    /* pushPath b#2 "_fld.b_fld" */
    /* leaf b#2 "_fld.b_fld" */
    /* popPath b#2 "_fld.b_fld" */
    /* compPostfix b#2 "_fld.b_fld" */
  }
  /* additionGroupPostfix group#1 "_fld" */
  /* popPath group#1 "_fld" */
  /* compPostfix group#1 "_fld" */
}

void normWays (ASNG_F(ASNPERG *asnperg) Ways *home)
{
  home->choice = -1;
  {
    /* compPrefix a#0 "" */
    createHome (NULL, &home->i1.a_fld, VF_I32, 0);
    home->choice = 0;
    /* pushPath a#0 "i1.a_fld" */
    /* leaf a#0 "i1.a_fld" */
    /* popPath a#0 "i1.a_fld" */
    /* compPostfix a#0 "i1.a_fld" */
  }
  {
    /* compPrefix b#1 "" */
    createHome (NULL, &home->i1.b_fld, VF_STRU, sizeof (struct t_b_Ways));
    home->choice = 1;
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
}

void normPointers (ASNG_F(ASNPERG *asnperg) Pointers *home)
{
  home->compmask = 0;
  /* compPrefix a#0 "" */
  if (!(home->a_fld = (sint32 *)allocAsn (NULL, MB_STG, sizeof (sint32)))){
    reportFatalError (LACK_OF_MEMORY);
  }
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#1 "" */
  if (!(home->b_fld = (struct t_b_Pointers *)allocAsn (NULL, MB_STG,
    sizeof (struct t_b_Pointers)))){
    reportFatalError (LACK_OF_MEMORY);
  }
  /* pushPath b#1 "b_fld" */
  home->b_fld->compmask = 0;
  {
    /* compPrefix c#0 "" */
    home->b_fld->compmask |= BIT(0);
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
  {
    /* compPrefix e#2 "" */
    if (!(home->e_fld = (Other *)allocAsn (NULL, MB_STG, sizeof (Other)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    home->compmask |= BIT(2);
    /* pushPath e#2 "e_fld" */
    /* defStruct e#2 "e_fld" */
    normOther (ASNG_F(asnperg) home->e_fld);
    /* popPath e#2 "e_fld" */
    /* compPostfix e#2 "e_fld" */
  }
}

void normParts (ASNG_F(ASNPERG *asnperg) Parts *home)
{
  home->compmask = 0;
  initExtensionmarker (&home->extensionmarker);
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  {
    /* compPrefix b#2 "" */
    createHome (NULL, &home->b_fld, VF_STRU, sizeof (struct t_b_Parts));
    home->compmask |= BIT(2);
    /* pushPath b#2 "b_fld" */
    {
      struct t_b_Parts *h1 = (struct t_b_Parts *)home->b_fld->val.stru;
      h1->compmask = 0;
      initExtensionmarker (&h1->extensionmarker);
      {
        /* compPrefix c#0 "" */
        h1->compmask |= BIT(0);
        /* pushPath c#0 "c_fld" */
        /* leaf c#0 "c_fld" */
        /* popPath c#0 "c_fld" */
        /* compPostfix c#0 "c_fld" */
      }
    }
    /* popPath b#2 "" */
    /* compPostfix b#2 "" */
  }
}

/* passed 7 */
