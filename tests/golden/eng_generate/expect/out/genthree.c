
void normUsed (ASNG_F(ASNPERG *asnperg) Used *home)
{
  /* leaf a#0 "a_fld" */
}

void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home)
{
  /* defStruct a#0 "a_fld" */
  normUsed (ASNG_F(asnperg) &home->a_fld);
}

void normEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  /* defStruct a#0 "a_fld" */
  normUsed (ASNG_F(asnperg) &home->a_fld);
}

void entryEntry (ASNG_F(ASNPERG *asnperg) Entry *home)
{
  normEntry (ASNG_F(asnperg) home);
}

void normBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  /* defStruct a#0 "a_fld" */
  normUsed (ASNG_F(asnperg) &home->a_fld);
}

void entryBoth (ASNG_F(ASNPERG *asnperg) Both *home)
{
  normBoth (ASNG_F(asnperg) home);
}
/* additionalNormalFunc Leaf "" */

void entryLeaf (ASNG_F(ASNPERG *asnperg) Leaf *home)
{
  /* leaf Leaf "" */
}
/* additionalNormalFunc SeenLeaf "" */

void entrySeenLeaf (ASNG_F(ASNPERG *asnperg) SeenLeaf *home)
{
  /* leaf SeenLeaf "" */
}

void entryAliasOfBoth (ASNG_F(ASNPERG *asnperg) AliasOfBoth *home)
{
  normBoth (ASNG_F(asnperg) home);
}

void entryAliasOfUsed (ASNG_F(ASNPERG *asnperg) AliasOfUsed *home)
{
  normUsed (ASNG_F(asnperg) home);
}

void entryAliasOfLeaf (ASNG_F(ASNPERG *asnperg) AliasOfLeaf *home)
{
  /* leaf AliasOfLeaf "" */
}

void normDecodeOnly (ASNG_F(ASNPERG *asnperg) DecodeOnly *home)
{
  /* leaf a#0 "a_fld" */
}

void entryDecodeOnly (ASNG_F(ASNPERG *asnperg) DecodeOnly *home)
{
  normDecodeOnly (ASNG_F(asnperg) home);
}

/* passed 10 */
