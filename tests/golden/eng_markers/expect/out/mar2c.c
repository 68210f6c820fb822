
void normEmpty (ASNG_F(ASNPERG *asnperg) Empty *home)
{
}

void normField (ASNG_F(ASNPERG *asnperg) Field *home)
{
}

void normEither (ASNG_F(ASNPERG *asnperg) Either *home)
{
  switch (home->choice){
    case 0:
      {
        /* leaf a#0 "i1.a_fld" */
      }
      break;
  }
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  if (home->a_fld){
    /* leaf a#0 "a_fld" */
  }
}

void normInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  /* leaf b#0 "a_fld.b_fld" */
}

/* passed 5 */
