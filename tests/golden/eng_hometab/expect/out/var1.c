/* beforeNormalFunc Part "" */

void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* struPrefix Part "" */
  if ((home->compmask & BIT(0))){
    /* compPrefix x#0 "" */
    /* pushPath x#0 "x_fld" */
    /* leaf x#0 "x_fld" */
    /* popPath x#0 "x_fld" */
    /* compPostfix x#0 "x_fld" */
  }
  /* struPostfix Part "" */
}
/* afterNormalFunc Part "" */
/* additionalNormalFunc Sent "" */
/* beforeEntryFunc Sent "" */

void entrySent (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Sent "" */
  /* entryPrefix Sent "" */
  /* struPrefix Sent "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  if ((hometab [1])){
    /* compPrefix b#1 "" */
    /* pushPath b#1 "b_fld" */
    {
      struct t_b_Sent *h1 = (struct t_b_Sent *)hometab [1]->val.stru;
      /* builtinCompPrefix b#1 "" */
      /* struPrefix b#1 "" */
      if ((h1->compmask & BIT(0))){
        /* compPrefix c#0 "" */
        /* pushPath c#0 "c_fld" */
        /* leaf c#0 "c_fld" */
        /* popPath c#0 "c_fld" */
        /* compPostfix c#0 "c_fld" */
      }
      /* compPrefix d#1 "" */
      /* pushPath d#1 "d_fld" */
      /* defStruct d#1 "d_fld" */
      normPart (ASNG_F(asnperg) &h1->d_fld);
      /* popPath d#1 "d_fld" */
      /* compPostfix d#1 "d_fld" */
      /* struPostfix b#1 "" */
      /* builtinCompPostfix b#1 "" */
    }
    /* popPath b#1 "" */
    /* compPostfix b#1 "" */
  }
  /* leaf marker#2 "" */
  if ((hometab [3])){
    /* compPrefix e#3 "" */
    /* pushPath e#3 "e_fld" */
    /* defStruct e#3 "e_fld" */
    normPart (ASNG_F(asnperg) (Part *)hometab [3]->val.stru);
    /* popPath e#3 "e_fld" */
    /* compPostfix e#3 "e_fld" */
  }
  /* struPostfix Sent "" */
  /* entryPostfix Sent "" */
  /* entryPopPath Sent "" */
}
/* afterEntryFunc Sent "" */
/* additionalNormalFunc Either "" */
/* beforeEntryFunc Either "" */

void entryEither (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Either "" */
  /* entryPrefix Either "" */
  /* struPrefix Either "" */
  if (hometab [0]){
    /* compPrefix a#0 "" */
    /* pushPath a#0 "i1.a_fld" */
    /* leaf a#0 "i1.a_fld" */
    /* popPath a#0 "i1.a_fld" */
    /* compPostfix a#0 "i1.a_fld" */
  }
  else if (hometab [1]){
    /* compPrefix b#1 "" */
    /* pushPath b#1 "i1.b_fld" */
    {
      struct t_b_Either *h1 = (struct t_b_Either *)hometab [1]->val.stru;
      /* builtinCompPrefix b#1 "" */
      /* struPrefix b#1 "" */
      /* compPrefix c#0 "" */
      /* pushPath c#0 "c_fld" */
      /* leaf c#0 "c_fld" */
      /* popPath c#0 "c_fld" */
      /* compPostfix c#0 "c_fld" */
      /* struPostfix b#1 "" */
      /* builtinCompPostfix b#1 "" */
    }
    /* popPath b#1 "" */
    /* compPostfix b#1 "" */
  }
  /* leaf marker#2 "" */
  /* struPostfix Either "" */
  /* entryPostfix Either "" */
  /* entryPopPath Either "" */
}
/* afterEntryFunc Either "" */
/* additionalNormalFunc All "" */
/* beforeEntryFunc All "" */

void entryAll (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath All "" */
  /* entryPrefix All "" */
  /* struPrefix All "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  if ((hometab [1])){
    /* compPrefix b#1 "" */
    /* pushPath b#1 "b_fld" */
    /* leaf b#1 "b_fld" */
    /* popPath b#1 "b_fld" */
    /* compPostfix b#1 "b_fld" */
  }
  /* struPostfix All "" */
  /* entryPostfix All "" */
  /* entryPopPath All "" */
}
/* afterEntryFunc All "" */
/* additionalNormalFunc Number "" */
/* beforeEntryFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Number "" */
  /* entryPrefix Number "" */
  /* leaf Number "" */
  /* entryPostfix Number "" */
  /* entryPopPath Number "" */
}
/* afterEntryFunc Number "" */
/* additionalNormalFunc Text "" */
/* beforeEntryFunc Text "" */

void entryText (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Text "" */
  /* entryPrefix Text "" */
  /* leaf Text "" */
  /* entryPostfix Text "" */
  /* entryPopPath Text "" */
}
/* afterEntryFunc Text "" */
/* beforeNormalFunc Row "" */

void normRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  /* struPrefix Row "" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* defStruct element "elem [n1]" */
      normPart (ASNG_F(asnperg) &home->elem [n1]);
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
    }
  }
  /* struPostfix Row "" */
}
/* afterNormalFunc Row "" */
/* beforeEntryFunc Row "" */

void entryRow (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Row "" */
  /* entryPrefix Row "" */
  normRow (ASNG_F(asnperg) (Row *)hometab [0]->val.stru);
  /* entryPostfix Row "" */
  /* entryPopPath Row "" */
}
/* afterEntryFunc Row "" */
/* beforeNormalFunc Chain "" */

void normChain (ASNG_F(ASNPERG *asnperg) Chain *home)
{
  /* struPrefix Chain "" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      /* defStruct element "" */
      normPart (ASNG_F(asnperg) (Part *)a1->val.stru);
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix Chain "" */
}
/* afterNormalFunc Chain "" */
/* beforeEntryFunc Chain "" */

void entryChain (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Chain "" */
  /* entryPrefix Chain "" */
  normChain (ASNG_F(asnperg) &hometab [0]->val.list);
  /* entryPostfix Chain "" */
  /* entryPopPath Chain "" */
}
/* afterEntryFunc Chain "" */
/* beforeNormalFunc Comps "" */

void normComps (ASNG_F(ASNPERG *asnperg) Comps *home)
{
  /* struPrefix Comps "" */
  if (home->a_fld){
    /* compPrefix a#0 "a_fld" */
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* struPostfix Comps "" */
}
/* afterNormalFunc Comps "" */
/* beforeEntryFunc Comps "" */

void entryComps (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Comps "" */
  /* entryPrefix Comps "" */
  normComps (ASNG_F(asnperg) (Comps *)hometab);
  /* entryPostfix Comps "" */
  /* entryPopPath Comps "" */
}
/* afterEntryFunc Comps "" */
/* beforeNormalFunc Half "" */

void normHalf (ASNG_F(ASNPERG *asnperg) Half *home)
{
  /* struPrefix Half "" */
  if ((home->compmask & BIT(0))){
    /* compPrefix a#0 "" */
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* struPostfix Half "" */
}
/* afterNormalFunc Half "" */
/* beforeEntryFunc Half "" */

void entryHalf (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Half "" */
  /* entryPrefix Half "" */
  /* struPrefix Half "" */
  if ((home->compmask & BIT(0))){
    /* compPrefix a#0 "" */
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* compPostfix a#0 "a_fld" */
  }
  /* struPostfix Half "" */
  /* entryPostfix Half "" */
  /* entryPopPath Half "" */
}
/* afterEntryFunc Half "" */
/* beforeNormalFunc Sent "" */

void normSent (ASNG_F(ASNPERG *asnperg) Sent *home)
{
  /* struPrefix Sent "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  if ((home->compmask & BIT(1))){
    /* compPrefix b#1 "" */
    /* pushPath b#1 "b_fld" */
    /* builtinCompPrefix b#1 "b_fld" */
    /* struPrefix b#1 "b_fld" */
    if ((home->b_fld.compmask & BIT(0))){
      /* compPrefix c#0 "" */
      /* pushPath c#0 "b_fld.c_fld" */
      /* leaf c#0 "b_fld.c_fld" */
      /* popPath c#0 "b_fld.c_fld" */
      /* compPostfix c#0 "b_fld.c_fld" */
    }
    /* compPrefix d#1 "" */
    /* pushPath d#1 "b_fld.d_fld" */
    /* defStruct d#1 "b_fld.d_fld" */
    normPart (ASNG_F(asnperg) &home->b_fld.d_fld);
    /* popPath d#1 "b_fld.d_fld" */
    /* compPostfix d#1 "b_fld.d_fld" */
    /* struPostfix b#1 "b_fld" */
    /* builtinCompPostfix b#1 "b_fld" */
    /* popPath b#1 "b_fld" */
    /* compPostfix b#1 "b_fld" */
  }
  /* leaf marker#2 "" */
  if ((home->compmask & BIT(3))){
    /* compPrefix e#3 "" */
    /* pushPath e#3 "e_fld" */
    /* defStruct e#3 "e_fld" */
    normPart (ASNG_F(asnperg) &home->e_fld);
    /* popPath e#3 "e_fld" */
    /* compPostfix e#3 "e_fld" */
  }
  /* struPostfix Sent "" */
}
/* afterNormalFunc Sent "" */
/* beforeNormalFunc Shown "" */

void normShown (ASNG_F(ASNPERG *asnperg) Shown *home)
{
  /* struPrefix Shown "" */
  /* compPrefix p#0 "" */
  /* pushPath p#0 "p_fld" */
  /* defStruct p#0 "p_fld" */
  normPart (ASNG_F(asnperg) &home->p_fld);
  /* popPath p#0 "p_fld" */
  /* compPostfix p#0 "p_fld" */
  /* compPrefix q#1 "" */
  /* pushPath q#1 "q_fld" */
  /* defStruct q#1 "q_fld" */
  normSent (ASNG_F(asnperg) &home->q_fld);
  /* popPath q#1 "q_fld" */
  /* compPostfix q#1 "q_fld" */
  /* struPostfix Shown "" */
}
/* afterNormalFunc Shown "" */
/* beforeEntryFunc Shown "" */

void entryShown (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* entryPushPath Shown "" */
  /* entryPrefix Shown "" */
  /* struPrefix Shown "" */
  /* compPrefix p#0 "" */
  /* pushPath p#0 "p_fld" */
  /* defStruct p#0 "p_fld" */
  normPart (ASNG_F(asnperg) (Part *)hometab [0]->val.stru);
  /* popPath p#0 "p_fld" */
  /* compPostfix p#0 "p_fld" */
  /* compPrefix q#1 "" */
  /* pushPath q#1 "q_fld" */
  /* defStruct q#1 "q_fld" */
  normSent (ASNG_F(asnperg) (Sent *)hometab [1]->val.stru);
  /* popPath q#1 "q_fld" */
  /* compPostfix q#1 "q_fld" */
  /* struPostfix Shown "" */
  /* entryPostfix Shown "" */
  /* entryPopPath Shown "" */
}
/* afterEntryFunc Shown "" */

/* passed 10 */
