
void entryFarAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU, sizeof (Low));
  pushHomeG (asnperg_asnuti, hometab [0]);
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) (Low *)hometab [0]->val.stru);
  popHomeG (asnperg_asnuti);
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU,
      sizeof (struct t_b_Far));
    pushHomeG (asnperg_asnuti, hometab [1]);
    {
      struct t_b_Far *h1 = (struct t_b_Far *)hometab [1]->val.stru;
      /* leaf c#0 "c_fld" */
    }
    popHomeG (asnperg_asnuti);
  }
}

void entryFarRowAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_LIST, 0);
  pushHomeG (asnperg_asnuti, hometab [0]);
  normFarRow (ASNG_F(asnperg) &hometab [0]->val.list);
  popHomeG (asnperg_asnuti);
}

void normUsed (ASNG_F(ASNPERG *asnperg) Used *home)
{
  /* leaf a#0 "a_fld" */
}

void entryNearAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
      sizeof (Used));
    pushHomeG (asnperg_asnuti, hometab [0]);
    /* defStruct a#0 "a_fld" */
    normUsed (ASNG_F(asnperg) (Used *)hometab [0]->val.stru);
    popHomeG (asnperg_asnuti);
  }
  createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
  /* leaf b#1 "b_fld" */
}

void entryAliasOfAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  {
    createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
      sizeof (Used));
    pushHomeG (asnperg_asnuti, hometab [0]);
    /* defStruct a#0 "a_fld" */
    normUsed (ASNG_F(asnperg) (Used *)hometab [0]->val.stru);
    popHomeG (asnperg_asnuti);
  }
  createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_NULL, 0);
  /* leaf b#1 "b_fld" */
}

void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home)
{
  /* leaf a#0 "a_fld" */
}
/* additionalNormalFunc First "" */

void entryFirst (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
    sizeof (Seen));
  pushHomeG (asnperg_asnuti, hometab [0]);
  /* defStruct a#0 "a_fld" */
  normSeen (ASNG_F(asnperg) (Seen *)hometab [0]->val.stru);
  popHomeG (asnperg_asnuti);
}

void entrySeenAlias (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_NULL, 0);
  /* leaf a#0 "a_fld" */
}

void normSeen (ASNG_F(ASNPERG *asnperg) Seen *home)
{
  /* leaf a#0 "a_fld" */
}
/* additionalNormalFunc Second "" */

void entrySecond (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU,
    sizeof (Seen));
  pushHomeG (asnperg_asnuti, hometab [0]);
  /* defStruct a#0 "a_fld" */
  normSeen (ASNG_F(asnperg) (Seen *)hometab [0]->val.stru);
  popHomeG (asnperg_asnuti);
}

/* passed 7 */
