/* beforeNormalFunc Part "" */

void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* canGenerateComponents Part "" */
  /* struPrefix Part "" */
  /* canGenerateComponents Part "" */
  /* isComp x#0 "" */
  /* compPrefix x#0 "" */
  /* pushPath x#0 "x_fld" */
  /* leaf x#0 "x_fld" */
  /* popPath x#0 "x_fld" */
  /* compPostfix x#0 "x_fld" */
  /* struPostfix Part "" */
}
/* afterNormalFunc Part "" */
/* additionalNormalFunc Number "" */
/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* D1 of S */
  /* canGenerateComponents S "" */
  home->compmask = 0;
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* isComp a#0 "" */
  {
    /* compPrefix a#0 "" */
    /* D1 of a */
    home->compmask |= BIT(0);
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* D2 of a */
    /* compPostfix a#0 "a_fld" */
  }
  /* isComp b#1 "" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* struPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* isComp c#0 "" */
  /* compPrefix c#0 "" */
  /* pushPath c#0 "b_fld.c_fld" */
  /* leaf c#0 "b_fld.c_fld" */
  /* popPath c#0 "b_fld.c_fld" */
  /* compPostfix c#0 "b_fld.c_fld" */
  /* struPostfix b#1 "b_fld" */
  /* builtinCompPostfix b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* isComp d#2 "" */
  /* compPrefix d#2 "" */
  /* pushPath d#2 "d_fld" */
  /* defStruct d#2 "d_fld" */
  normPart (ASNG_F(asnperg) &home->d_fld);
  /* popPath d#2 "d_fld" */
  /* compPostfix d#2 "d_fld" */
  /* isComp e#3 "" */
  /* compPrefix e#3 "" */
  /* pushPath e#3 "e_fld" */
  /* leaf e#3 "e_fld" */
  /* popPath e#3 "e_fld" */
  /* compPostfix e#3 "e_fld" */
  /* isComp f#4 "" */
  /* compPrefix f#4 "" */
  /* pushPath f#4 "f_fld" */
  /* builtinCompPrefix f#4 "f_fld" */
  /* canGenerateComponents f#4 "f_fld" */
  listInit (&home->f_fld);
  {
    ASNHOME *a1 = NULL;
    /* struPrefix f#4 "f_fld" */
    /* canGenerateComponents f#4 "f_fld" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, &home->f_fld, &a1, VF_NULL, 0);
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (&home->f_fld);
    }
    /* struPostfix f#4 "f_fld" */
  }
  /* builtinCompPostfix f#4 "f_fld" */
  /* popPath f#4 "f_fld" */
  /* compPostfix f#4 "f_fld" */
  /* struPostfix S "" */
  /* D2 of S */
}
/* afterNormalFunc S "" */
/* beforeEntryFunc S "" */

void entryS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* entryPushPath S "" */
  /* entryPrefix S "" */
  normS (ASNG_F(asnperg) home);
  /* entryPostfix S "" */
  /* entryPopPath S "" */
}
/* afterEntryFunc S "" */
/* beforeEntryFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
  /* entryPushPath Number "" */
  /* entryPrefix Number "" */
  /* leaf Number "" */
  /* entryPostfix Number "" */
  /* entryPopPath Number "" */
}
/* afterEntryFunc Number "" */
/* beforeEntryFunc AliasOfPart "" */

void entryAliasOfPart (ASNG_F(ASNPERG *asnperg) AliasOfPart *home)
{
  /* entryPushPath AliasOfPart "" */
  /* entryPrefix AliasOfPart "" */
  normPart (ASNG_F(asnperg) home);
  /* entryPostfix AliasOfPart "" */
  /* entryPopPath AliasOfPart "" */
}
/* afterEntryFunc AliasOfPart "" */
/* additionalNormalFunc Text "" */
/* beforeEntryFunc Text "" */

void entryText (ASNG_F(ASNPERG *asnperg) Text *home)
{
  /* entryPushPath Text "" */
  /* entryPrefix Text "" */
  /* leaf Text "" */
  /* entryPostfix Text "" */
  /* entryPopPath Text "" */
}
/* afterEntryFunc Text "" */

/* passed 5 */
