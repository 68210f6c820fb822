/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  if ((home->compmask & BIT(1))){
    /* compPrefix b#1 "" */
    /* pushPath b#1 "b_fld" */
    /* popPath b#1 "b_fld" */
    /* compPostfix b#1 "b_fld" */
  }
  /* compPrefix e#2 "" */
  /* pushPath e#2 "e_fld" */
  /* popPath e#2 "e_fld" */
  /* compPostfix e#2 "e_fld" */
  /* compPrefix f#3 "" */
  /* pushPath f#3 "f_fld" */
  /* popPath f#3 "f_fld" */
  /* compPostfix f#3 "f_fld" */
  /* struPostfix S "" */
}
/* afterNormalFunc S "" */
/* beforeNormalFunc Other "" */

void normOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  /* canGenerateComponents Other "" */
  /* struPrefix Other "" */
  /* canGenerateComponents Other "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#2 "" */
  /* pushPath b#2 "b_fld" */
  /* leaf b#2 "b_fld" */
  /* popPath b#2 "b_fld" */
  /* compPostfix b#2 "b_fld" */
  /* struPostfix Other "" */
}
/* afterNormalFunc Other "" */
/* beforeEntryFunc EntryWhole "" */

void entryEntryWhole (ASNG_F(ASNPERG *asnperg) EntryWhole *home)
{
  /* entryPushPath EntryWhole "" */
  /* entryPrefix EntryWhole "" */
  /* entryPostfix EntryWhole "" */
  /* entryPopPath EntryWhole "" */
}
/* afterEntryFunc EntryWhole "" */
/* beforeEntryFunc EntryRefused "" */

void entryEntryRefused (ASNG_F(ASNPERG *asnperg) EntryRefused *home)
{
  /* entryPushPath EntryRefused "" */
  /* entryPrefix EntryRefused "" */
  /* entryPostfix EntryRefused "" */
  /* entryPopPath EntryRefused "" */
}
/* afterEntryFunc EntryRefused "" */

/* passed 6 */
