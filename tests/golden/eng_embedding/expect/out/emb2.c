/* beforeNormalFunc Part "" */

void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* E1 of Part */
  /* canGenerateComponents Part "" */
  /* struPrefix Part "" */
  /* canGenerateComponents Part "" */
  /* compPrefix x#0 "" */
  /* pushPath x#0 "x_fld" */
  /* leaf x#0 "x_fld" */
  /* popPath x#0 "x_fld" */
  /* compPostfix x#0 "x_fld" */
  /* struPostfix Part "" */
  /* E2 of Part */
}
/* afterNormalFunc Part "" */
/* additionalNormalFunc Number "" */
/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* E1 of S */
  /* canGenerateComponents S "" */
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  if ((home->compmask & BIT(0))){
    /* compPrefix a#0 "" */
    /* E1 of a */
    /* pushPath a#0 "a_fld" */
    /* leaf a#0 "a_fld" */
    /* popPath a#0 "a_fld" */
    /* E2 of a */
    /* compPostfix a#0 "a_fld" */
  }
  /* compPrefix b#1 "" */
  /* E1 of b */
  /* pushPath b#1 "b_fld" */
  /* builtinCompPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* struPrefix b#1 "b_fld" */
  /* canGenerateComponents b#1 "b_fld" */
  /* compPrefix c#0 "" */
  /* pushPath c#0 "b_fld.c_fld" */
  /* leaf c#0 "b_fld.c_fld" */
  /* popPath c#0 "b_fld.c_fld" */
  /* compPostfix c#0 "b_fld.c_fld" */
  /* struPostfix b#1 "b_fld" */
  /* builtinCompPostfix b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* E2 of b */
  /* compPostfix b#1 "b_fld" */
  /* compPrefix d#2 "" */
  /* E1 of d */
  /* pushPath d#2 "d_fld" */
  /* defStruct d#2 "d_fld" */
  normPart (ASNG_F(asnperg) &home->d_fld);
  /* popPath d#2 "d_fld" */
  /* E2 of d */
  /* compPostfix d#2 "d_fld" */
  /* compPrefix e#3 "" */
  /* E1 of e */
  /* E1 of Number */
  /* pushPath e#3 "e_fld" */
  /* leaf e#3 "e_fld" */
  /* popPath e#3 "e_fld" */
  /* E2 of Number */
  /* E2 of e */
  /* compPostfix e#3 "e_fld" */
  /* compPrefix f#4 "" */
  /* pushPath f#4 "f_fld" */
  /* builtinCompPrefix f#4 "f_fld" */
  /* canGenerateComponents f#4 "f_fld" */
  /* struPrefix f#4 "f_fld" */
  /* canGenerateComponents f#4 "f_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->f_fld); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* E1 of the element */
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix f#4 "f_fld" */
  /* builtinCompPostfix f#4 "f_fld" */
  /* popPath f#4 "f_fld" */
  /* compPostfix f#4 "f_fld" */
  /* struPostfix S "" */
  /* E2 of S */
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
  /* E1 of Number */
  /* leaf Number "" */
  /* E2 of Number */
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
  /* E2 of Text */
  /* entryPostfix Text "" */
  /* entryPopPath Text "" */
}
/* afterEntryFunc Text "" */

/* passed 5 */
