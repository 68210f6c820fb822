
void normPlain (ASNG_F(ASNPERG *asnperg) Plain *home)
{
  /* leaf a#0 "a_fld" */
}

/* passed 1 */
