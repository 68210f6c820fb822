
void normEmpty (ASNG_F(ASNPERG *asnperg) Empty *home)
{
}

void normField (ASNG_F(ASNPERG *asnperg) Field *home)
{
  initExtensionmarker (&home->extensionmarker);
}

void normEither (ASNG_F(ASNPERG *asnperg) Either *home)
{
  home->choice = -1;
  {
    home->choice = 0;
    /* leaf a#0 "i1.a_fld" */
  }
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  {
    createHome (NULL, &home->a_fld, VF_NULL, 0);
    /* leaf a#0 "a_fld" */
  }
}

void normInner (ASNG_F(ASNPERG *asnperg) Inner *home)
{
  initExtensionmarker (&home->a_fld.extensionmarker);
  /* leaf b#0 "a_fld.b_fld" */
}

/* passed 5 */
