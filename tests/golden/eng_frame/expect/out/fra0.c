/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* frame a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* isComp b#1 "" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* frame b#1 "b_fld" */
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* isComp d#2 "" */
  /* compPrefix d#2 "" */
  /* pushPath d#2 "d_fld" */
  /* builtinCompPrefix d#2 "d_fld" */
  /* canGenerateComponents d#2 "d_fld" */
  listInit (&home->d_fld);
  {
    ASNHOME *a1 = NULL;
    /* struPrefix d#2 "d_fld" */
    /* canGenerateComponents d#2 "d_fld" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, &home->d_fld, &a1, VF_FRM, sizeof (FRAME_PTR));
      /* pushElem element "" */
      /* frame element "" */
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (&home->d_fld);
    }
    /* struPostfix d#2 "d_fld" */
  }
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
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* struPostfix Part "" */
}
/* afterNormalFunc Part "" */

/* passed 4 */
