
void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  home->compmask = 0;
  /* skipFunc a#0 "a_fld" */
  {
    home->compmask |= BIT(1);
    /* skipFunc b#1 "b_fld" */
  }
  /* skip e#2 "e_fld" */
  /* skip f#3 "f_fld" */
}

void normOther (ASNG_F(ASNPERG *asnperg) Other *home)
{
  /* leaf a#0 "a_fld" */
  /* leaf marker#1 "" */
  /* leaf b#2 "b_fld" */
}

void entryEntryWhole (ASNG_F(ASNPERG *asnperg) EntryWhole *home)
{
  /* skipFunc EntryWhole "" */
}

void entryEntryRefused (ASNG_F(ASNPERG *asnperg) EntryRefused *home)
{
  /* skip EntryRefused "" */
}

/* passed 6 */
