
void normEmpty (ASNG_F(ASNPERG *asnperg) Empty *home)
{
  /* leaf marker#0 "" */
}

void normField (ASNG_F(ASNPERG *asnperg) Field *home)
{
  if (home->compmask & BIT(0)){
    /* leaf marker#0 "" */
    /* leaf marker#0 "" */
  }
}

void normEither (ASNG_F(ASNPERG *asnperg) Either *home)
{
  switch (home->choice){
    case 0:
      {
        /* leaf a#0 "i1.a_fld" */
      }
      break;
    case 1:
      {
        /* leaf marker#1 "" */
        /* leaf marker#1 "" */
      }
      break;
  }
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  if (home->a_fld){
    /* leaf a#0 "a_fld" */
  }
  else if (home->extensionmarker){
    /* leaf marker#1 "" */
    /* leaf marker#1 "" */
  }
}

void normInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  /* leaf b#0 "a_fld.b_fld" */
  if (home->a_fld.compmask & BIT(1)){
    /* leaf marker#1 "" */
    /* leaf marker#1 "" */
  }
}

/* passed 5 */
