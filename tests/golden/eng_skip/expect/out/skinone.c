/* canGenerateIgnoreFunc Other "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  home->compmask = 0;
  /* skipLeaf a#0 "a_fld" */
  {
    home->compmask |= BIT(1);
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
  }
  /* skip e#2 "e_fld" */
  /* skip f#3 "f_fld" */
}

void normOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  /* leaf a#0 "a_fld" */
  /* leaf b#2 "b_fld" */
}
/* canGenerateIgnoreFunc Whole "" */
/* canGenerateIgnoreFunc EntryWhole "" */

void entryEntryWhole (ASNG_F(ASNPERG *asnperg) EntryWhole *home)
{
  /* skipDefStruct EntryWhole "" */
}

void entryEntryRefused (ASNG_F(ASNPERG *asnperg) EntryRefused *home)
{
  /* skip EntryRefused "" */
}

/* passed 6 */
