/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* frame a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* frame b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* compPrefix d#2 "" */
  /* pushPath d#2 "d_fld" */
  /* builtinCompPrefix d#2 "d_fld" */
  /* canGenerateComponents d#2 "d_fld" */
  /* struPrefix d#2 "d_fld" */
  /* canGenerateComponents d#2 "d_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->d_fld); a1; a1 = nextListItem (a1)){
      /* compPrefix element "" */
      /* pushElem element "" */
      /* frame element "" */
      /* popPath element "" */
      /* compPostfix element "" */
    }
  }
  /* struPostfix d#2 "d_fld" */
  /* builtinCompPostfix d#2 "d_fld" */
  /* popPath d#2 "d_fld" */
  /* compPostfix d#2 "d_fld" */
  /* struPostfix S "" */
}
/* afterNormalFunc S "" */
/* beforeEntryFunc EntryWhole "" */

void entryEntryWhole (ASNG_F(ASNPERG *asnperg) EntryWhole *home)
{
  /* entryPushPath EntryWhole "" */
  /* entryPrefix EntryWhole "" */
  /* frame EntryWhole "" */
  /* entryPostfix EntryWhole "" */
  /* entryPopPath EntryWhole "" */
}
/* afterEntryFunc EntryWhole "" */
/* beforeNormalFunc Part "" */

void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* canGenerateComponents Part "" */
  /* struPrefix Part "" */
  /* canGenerateComponents Part "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* struPostfix Part "" */
}
/* afterNormalFunc Part "" */

/* passed 4 */
