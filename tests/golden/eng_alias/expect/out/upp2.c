
void entryFarAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) (Low *)hometab [0]->val.stru);
  freeAsn (&hometab [0], FREE_STG);
  if ((hometab [1])){
    {
      struct t_b_Far *h1 = (struct t_b_Far *)hometab [1]->val.stru;
      /* leaf c#0 "c_fld" */
    }
    freeAsn (&hometab [1], FREE_STG);
  }
}

void entryFarRowAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  normFarRow (ASNG_F(asnperg) &hometab [0]->val.list);
  freeAsn (&hometab [0], FREE_STG);
}

void normUsed (ASNG_F(ASNPERG *asnperg) Used *home)
{
  /* leaf a#0 "a_fld" */
}

void entryNearAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  if ((hometab [0])){
    /* defStruct a#0 "a_fld" */
    normUsed (ASNG_F(asnperg) (Used *)hometab [0]->val.stru);
    freeAsn (&hometab [0], FREE_STG);
  }
  /* leaf b#1 "b_fld" */
  freeAsn (&hometab [1], FREE_STG);
}

void entryAliasOfAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  if ((hometab [0])){
    /* defStruct a#0 "a_fld" */
    normUsed (ASNG_F(asnperg) (Used *)hometab [0]->val.stru);
    freeAsn (&hometab [0], FREE_STG);
  }
  /* leaf b#1 "b_fld" */
  freeAsn (&hometab [1], FREE_STG);
}

void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home)
{
  /* leaf a#0 "a_fld" */
}
/* additionalNormalFunc First "" */

void entryFirst (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* defStruct a#0 "a_fld" */
  normSeen (ASNG_F(asnperg) (Seen *)hometab [0]->val.stru);
  freeAsn (&hometab [0], FREE_STG);
}

void entrySeenAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* leaf a#0 "a_fld" */
  freeAsn (&hometab [0], FREE_STG);
}

void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home)
{
  /* leaf a#0 "a_fld" */
}
/* additionalNormalFunc Second "" */

void entrySecond (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* defStruct a#0 "a_fld" */
  normSeen (ASNG_F(asnperg) (Seen *)hometab [0]->val.stru);
  freeAsn (&hometab [0], FREE_STG);
}

/* passed 7 */
