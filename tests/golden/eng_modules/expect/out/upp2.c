
void normOwn (ASNG_F(ASNPERG *asnperg) Own *home)
{
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld);
}

void normUse (ASNG_F(ASNPERG *asnperg) Use *home)
{
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld);
  /* defStruct b#1 "b_fld" */
  normOwn (ASNG_F(asnperg) &home->b_fld);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->c_fld); a1; a1 = nextListItem (a1)){
      /* defStruct element "" */
      normLow (ASNG_F(asnperg) (Low *)a1->val.stru);
    }
  }
  /* defStruct e#0 "d_fld.e_fld" */
  normWays (ASNG_F(asnperg) &home->d_fld.e_fld);
}

void entryUse (ASNG_F(ASNPERG *asnperg) Use *home)
{
  normUse (ASNG_F(asnperg) home);
}

void normParts (ASNG_F(ASNPERG *asnperg) Parts *home)
{
  /* defStruct a#0 "a_fld" */
  normDeep (ASNG_F(asnperg) &home->a_fld);
  /* defStruct c#0 "b_fld.c_fld" */
  normDeep (ASNG_F(asnperg) &home->b_fld.c_fld);
  /* leaf x#2 "x_fld" */
}

void normInst (ASNG_F(ASNPERG *asnperg) Inst *home)
{
  /* defStruct a#0 "a_fld.a_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld.a_fld);
  /* defStruct b#1 "a_fld.b_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld.b_fld);
}

/* passed 6 */
