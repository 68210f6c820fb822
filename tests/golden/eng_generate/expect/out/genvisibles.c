
void normUsed (ASNG_F(ASNPERG *asnperg) Used *home)
{
  /* leaf a#0 "a_fld" */
}

void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home)
{
  /* defStruct a#0 "a_fld" */
  normUsed (ASNG_F(asnperg) &home->a_fld);
}

void normBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  /* defStruct a#0 "a_fld" */
  normUsed (ASNG_F(asnperg) &home->a_fld);
}
/* additionalNormalFunc SeenLeaf "" */

/* passed 10 */
