/* canGenerateIgnoreFunc Other "" */
/* skipIgnorePrefix Other "" */
/* skipStruPrefix Other "" */
/* canGenerateIgnoreComponents Other "" */
/* skipIsComp a#0 "" */
/* skipCompPrefix a#0 "" */
/* skipLeaf a#0 "" */
/* skipCompPostfix a#0 "" */
/* canGenerateIgnoreComponents Other "" */
/* skipIgnoreAllExtAddComps Other "" */
/* canGenerateIgnoreComponents Other "" */
/* skipStruPostfix Other "" */
/* skipIgnorePostfix Other "" */
/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* canGenerateComponents S "" */
  home->compmask = 0;
  /* struPrefix S "" */
  /* canGenerateComponents S "" */
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* skipLeaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* isComp b#1 "" */
  {
    /* compPrefix b#1 "" */
    home->compmask |= BIT(1);
    /* pushPath b#1 "b_fld" */
    /* skipStruPrefix b#1 "b_fld" */
    /* canGenerateIgnoreComponents b#1 "b_fld" */
    /* skipIsComp c#0 "" */
    /* skipCompPrefix c#0 "" */
    /* skipLeaf c#0 "" */
    /* skipCompPostfix c#0 "" */
    /* canGenerateIgnoreComponents b#1 "b_fld" */
    /* skipIsComp d#1 "" */
    /* skipCompPrefix d#1 "" */
    /* skipDefStruct d#1 "" */
    /* skipCompPostfix d#1 "" */
    /* skipStruPostfix b#1 "b_fld" */
    /* popPath b#1 "b_fld" */
    /* compPostfix b#1 "b_fld" */
  }
  /* isComp e#2 "" */
  /* compPrefix e#2 "" */
  /* pushPath e#2 "e_fld" */
  /* skip e#2 "e_fld" */
  /* popPath e#2 "e_fld" */
  /* compPostfix e#2 "e_fld" */
  /* isComp f#3 "" */
  /* compPrefix f#3 "" */
  /* pushPath f#3 "f_fld" */
  /* skip f#3 "f_fld" */
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
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* isComp b#2 "" */
  /* compPrefix b#2 "" */
  /* pushPath b#2 "b_fld" */
  /* leaf b#2 "b_fld" */
  /* popPath b#2 "b_fld" */
  /* compPostfix b#2 "b_fld" */
  /* struPostfix Other "" */
}
/* afterNormalFunc Other "" */
/* canGenerateIgnoreFunc Whole "" */
/* skipIgnorePrefix Whole "" */
/* skipStruPrefix Whole "" */
/* canGenerateIgnoreComponents Whole "" */
/* skipIsComp a#0 "" */
/* skipCompPrefix a#0 "" */
/* skipLeaf a#0 "" */
/* skipCompPostfix a#0 "" */
/* skipStruPostfix Whole "" */
/* skipIgnorePostfix Whole "" */
/* canGenerateIgnoreFunc EntryWhole "" */
/* skipIgnorePrefix EntryWhole "" */
/* skipStruPrefix EntryWhole "" */
/* canGenerateIgnoreComponents EntryWhole "" */
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
