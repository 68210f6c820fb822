/* canGenerateIgnoreFunc Other "" */
/* skipIgnorePrefix Other "" */
/* skipStruPrefix Other "" */
/* skipIsComp a#0 "" */
/* skipCompPrefix a#0 "" */
/* skipLeaf a#0 "" */
/* skipCompPostfix a#0 "" */
/* skipIsComp marker#1 "" */
/* skipCompPrefix marker#1 "" */
/* skipLeaf marker#1 "" */
/* skipCompPostfix marker#1 "" */
/* skipIsComp b#2 "" */
/* skipCompPrefix b#2 "" */
/* skipLeaf b#2 "" */
/* skipCompPostfix b#2 "" */
/* skipStruPostfix Other "" */
/* skipIgnorePostfix Other "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  home->compmask = 0;
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* skipLeaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  {
    /* compPrefix b#1 "" */
    home->compmask |= BIT(1);
    /* pushPath b#1 "b_fld" */
    /* skipStruPrefix b#1 "b_fld" */
    /* skipIsComp c#0 "" */
    /* skipCompPrefix c#0 "" */
    /* skipLeaf c#0 "" */
    /* skipCompPostfix c#0 "" */
    /* skipIsComp d#1 "" */
    /* skipCompPrefix d#1 "" */
    /* skipDefStruct d#1 "" */
    /* skipCompPostfix d#1 "" */
    /* skipStruPostfix b#1 "b_fld" */
    /* popPath b#1 "b_fld" */
    /* compPostfix b#1 "b_fld" */
  }
  /* compPrefix e#2 "" */
  /* pushPath e#2 "e_fld" */
  /* skip e#2 "e_fld" */
  /* popPath e#2 "e_fld" */
  /* compPostfix e#2 "e_fld" */
  /* compPrefix f#3 "" */
  /* pushPath f#3 "f_fld" */
  /* skip f#3 "f_fld" */
  /* popPath f#3 "f_fld" */
  /* compPostfix f#3 "f_fld" */
}

void normOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
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
}
/* canGenerateIgnoreFunc Whole "" */
/* skipIgnorePrefix Whole "" */
/* skipStruPrefix Whole "" */
/* skipIsComp a#0 "" */
/* skipCompPrefix a#0 "" */
/* skipLeaf a#0 "" */
/* skipCompPostfix a#0 "" */
/* skipStruPostfix Whole "" */
/* skipIgnorePostfix Whole "" */
/* canGenerateIgnoreFunc EntryWhole "" */
/* skipIgnorePrefix EntryWhole "" */
/* skipStruPrefix EntryWhole "" */
/* skipIsComp a#0 "" */
/* skipCompPrefix a#0 "" */
/* skipLeaf a#0 "" */
/* skipCompPostfix a#0 "" */
/* skipStruPostfix EntryWhole "" */
/* skipIgnorePostfix EntryWhole "" */
/* beforeEntryFunc EntryWhole "" */

void entryEntryWhole (ASNG_F(ASNPERG *asnperg) EntryWhole *home)
{
  /* entryPushPath EntryWhole "" */
  /* entryPrefix EntryWhole "" */
  /* skipDefStruct EntryWhole "" */
  /* entryPostfix EntryWhole "" */
  /* entryPopPath EntryWhole "" */
}
/* afterEntryFunc EntryWhole "" */
/* beforeEntryFunc EntryRefused "" */

void entryEntryRefused (ASNG_F(ASNPERG *asnperg) EntryRefused *home)
{
  /* entryPushPath EntryRefused "" */
  /* entryPrefix EntryRefused "" */
  /* skip EntryRefused "" */
  /* entryPostfix EntryRefused "" */
  /* entryPopPath EntryRefused "" */
}
/* afterEntryFunc EntryRefused "" */

/* passed 6 */
