
void normEmpty (ASNG_F(ASNPERG *asnperg) Empty *home)
{
  /* leaf marker#0 "" */
}

void normField (ASNG_F(ASNPERG *asnperg) Field *home)
{
  initExtensionmarker (&home->extensionmarker);
  /* leaf marker#0 "" */
}

void normEither (ASNG_F(ASNPERG *asnperg) Either *home)
{
  home->choice = -1;
  {
    home->choice = 0;
    /* leaf a#0 "i1.a_fld" */
  }
  /* leaf marker#1 "" */
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    createHome (NULL, &home->a_fld, VF_NULL, 0);
    /* leaf a#0 "a_fld" */
  }
  /* leaf marker#1 "" */
}

void normInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  initExtensionmarker (&home->a_fld.extensionmarker);
  {
    sint8 compmaskcompmask = 0;
    {
      if (compmask & BIT(0)){
        report (DM_FAIL);
      }
      compmask |= BIT(0);
      /* leaf b#0 "a_fld.b_fld" */
    }
    /* leaf marker#1 "" */
  }
}

/* passed 5 */
