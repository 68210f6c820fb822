
void normDeep (ASNG_F(ASNPERG *asnperg) Deep *home)
{
  /* leaf a#0 "a_fld" */
}

void normLow (ASNG_F(ASNPERG *asnperg) Low *home)
{
  /* defStruct a#0 "a_fld" */
  normDeep (ASNG_F(asnperg) &home->a_fld);
}

void normLower (ASNG_F(ASNPERG *asnperg) Lower *home)
{
  /* defStruct a#0 "a_fld" */
  normDeep (ASNG_F(asnperg) &home->a_fld);
  /* defStruct c#0 "b_fld.c_fld" */
  normDeep (ASNG_F(asnperg) &home->b_fld.c_fld);
}

void normWays (ASNG_F(ASNPERG *asnperg) Ways *home)
{
  switch (home->choice){
    case 0:
      {
        /* defStruct a#0 "i1.a_fld" */
        normOwn (ASNG_F(asnperg) &home->i1.a_fld);
      }
      break;
    case 1:
      {
        /* leaf b#1 "i1.b_fld" */
      }
      break;
  }
}

/* passed 5 */
