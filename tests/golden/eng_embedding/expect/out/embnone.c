
void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* leaf x#0 "x_fld" */
}
/* additionalNormalFunc Number "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  if ((home->compmask & BIT(0))){
    /* leaf a#0 "a_fld" */
  }
  /* leaf c#0 "b_fld.c_fld" */
  /* defStruct d#2 "d_fld" */
  normPart (ASNG_F(asnperg) &home->d_fld);
  /* leaf e#3 "e_fld" */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->f_fld); a1; a1 = nextListItem (a1)){
      /* leaf element "" */
    }
  }
}

void entryS (ASNG_F(ASNPERG *asnperg) S *home)
{
  normS (ASNG_F(asnperg) home);
}

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
  /* leaf Number "" */
}

void entryAliasOfPart (ASNG_F(ASNPERG *asnperg) AliasOfPart *home)
{
  normPart (ASNG_F(asnperg) home);
}
/* additionalNormalFunc Text "" */

void entryText (ASNG_F(ASNPERG *asnperg) Text *home)
{
  /* leaf Text "" */
}

/* passed 5 */
