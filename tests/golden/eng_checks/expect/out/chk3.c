/* beforeNormalFunc Row "" */

void normRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* struPrefix Row "" */
    while (TRUE){
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* leaf element "elem [n1]" */
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
    /* struPostfix Row "" */
  }
}
/* afterNormalFunc Row "" */
/* beforeNormalFunc S "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* struPrefix S "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* compPrefix b#1 "" */
  /* pushPath b#1 "b_fld" */
  /* defStruct b#1 "b_fld" */
  normRow (ASNG_F(asnperg) &home->b_fld);
  /* popPath b#1 "b_fld" */
  /* compPostfix b#1 "b_fld" */
  /* compPrefix c#2 "" */
  /* pushPath c#2 "c_fld" */
  /* defStruct c#2 "c_fld" */
  normRow (ASNG_F(asnperg) &home->c_fld);
  /* popPath c#2 "c_fld" */
  /* compPostfix c#2 "c_fld" */
  /* compPrefix d#3 "" */
  /* pushPath d#3 "d_fld" */
  /* builtinCompPrefix d#3 "d_fld" */
  staArrInit (&home->d_fld);
  {
    uint32 n1 = 0;
    /* struPrefix d#3 "d_fld" */
    while (TRUE){
      /* compPrefix element "" */
      /* pushElem element "d_fld.elem [n1]" */
      /* leaf element "d_fld.elem [n1]" */
      /* popPath element "d_fld.elem [n1]" */
      /* compPostfix element "d_fld.elem [n1]" */
      incStaArrLen (&home->d_fld);
      n1++;
    }
    /* struPostfix d#3 "d_fld" */
  }
  /* builtinCompPostfix d#3 "d_fld" */
  /* popPath d#3 "d_fld" */
  /* compPostfix d#3 "d_fld" */
  /* compPrefix e#4 "" */
  /* pushPath e#4 "e_fld" */
  /* leaf e#4 "e_fld" */
  /* popPath e#4 "e_fld" */
  /* compPostfix e#4 "e_fld" */
  /* struPostfix S "" */
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
/* beforeEntryFunc Row "" */

void entryRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  /* entryPushPath Row "" */
  /* entryPrefix Row "" */
  normRow (ASNG_F(asnperg) home);
  /* entryPostfix Row "" */
  /* entryPopPath Row "" */
}
/* afterEntryFunc Row "" */
/* additionalNormalFunc Number "" */
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
/* additionalNormalFunc Plain "" */
/* beforeEntryFunc Plain "" */

void entryPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  /* entryPushPath Plain "" */
  /* entryPrefix Plain "" */
  /* leaf Plain "" */
  /* entryPostfix Plain "" */
  /* entryPopPath Plain "" */
}
/* afterEntryFunc Plain "" */
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
/* beforeEntryFunc AliasOfRow "" */

void entryAliasOfRow (ASNG_F(ASNPERG *asnperg) AliasOfRow *home)
{
  /* entryPushPath AliasOfRow "" */
  /* entryPrefix AliasOfRow "" */
  normRow (ASNG_F(asnperg) home);
  /* entryPostfix AliasOfRow "" */
  /* entryPopPath AliasOfRow "" */
}
/* afterEntryFunc AliasOfRow "" */
/* beforeEntryFunc AliasOfS "" */

void entryAliasOfS (ASNG_F(ASNPERG *asnperg) AliasOfS *home)
{
  /* entryPushPath AliasOfS "" */
  /* entryPrefix AliasOfS "" */
  normS (ASNG_F(asnperg) home);
  /* entryPostfix AliasOfS "" */
  /* entryPopPath AliasOfS "" */
}
/* afterEntryFunc AliasOfS "" */
/* beforeEntryFunc Skipped "" */

void entrySkipped (ASNG_F(ASNPERG *asnperg) Skipped *home)
{
  /* entryPushPath Skipped "" */
  /* entryPrefix Skipped "" */
  /* skipFunc Skipped "" */
  /* entryPostfix Skipped "" */
  /* entryPopPath Skipped "" */
}
/* afterEntryFunc Skipped "" */
/* additionalNormalFunc Oid "" */
/* beforeEntryFunc Oid "" */

void entryOid (ASNG_F(ASNPERG *asnperg) Oid *home)
{
  /* entryPushPath Oid "" */
  /* entryPrefix Oid "" */
  /* leaf Oid "" */
  /* entryPostfix Oid "" */
  /* entryPopPath Oid "" */
}
/* afterEntryFunc Oid "" */
/* additionalNormalFunc Dyn "" */
/* beforeEntryFunc Dyn "" */

void entryDyn (ASNG_F(ASNPERG *asnperg) Dyn *home)
{
  /* entryPushPath Dyn "" */
  /* entryPrefix Dyn "" */
  /* leaf Dyn "" */
  /* entryPostfix Dyn "" */
  /* entryPopPath Dyn "" */
}
/* afterEntryFunc Dyn "" */
/* beforeNormalFunc Wc "" */

void normWc (ASNG_F(ASNPERG *asnperg) Wc *home)
{
  /* struPrefix Wc "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* struPostfix Wc "" */
}
/* afterNormalFunc Wc "" */
/* beforeEntryFunc Wc "" */

void entryWc (ASNG_F(ASNPERG *asnperg) Wc *home)
{
  /* entryPushPath Wc "" */
  /* entryPrefix Wc "" */
  normWc (ASNG_F(asnperg) home);
  /* entryPostfix Wc "" */
  /* entryPopPath Wc "" */
}
/* afterEntryFunc Wc "" */
/* beforeEntryFunc Framed "" */

void entryFramed (ASNG_F(ASNPERG *asnperg) Framed *home)
{
  /* entryPushPath Framed "" */
  /* entryPrefix Framed "" */
  /* frame Framed "" */
  /* entryPostfix Framed "" */
  /* entryPopPath Framed "" */
}
/* afterEntryFunc Framed "" */

/* passed 12 */
