/* additionalNormalFunc Colour "" */

void normLeafy (ASNG_F(ASNPERG *asnperg) Leafy *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    /* constructElemLoop element "" */
    while (more ()){
      appendList (NULL, home, &a1, VF_UI8, 0);
      /* leaf element "" */
      incListLen (home);
    }
  }
}

void normLow (ASNG_F(ASNPERG *asnperg) Low *home)
{
  /* defStruct a#0 "a_fld" */
  normLeafy (ASNG_F(asnperg) &home->a_fld);
}

void normMiddle (ASNG_F(ASNPERG *asnperg) Middle *home)
{
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld);
}

void normTop (ASNG_F(ASNPERG *asnperg) Top *home)
{
  /* defStruct a#0 "a_fld" */
  normMiddle (ASNG_F(asnperg) &home->a_fld);
  listInit (&home->b_fld);
  {
    ASNHOME *a1 = NULL;
    /* constructElemLoop element "" */
    while (more ()){
      appendList (NULL, &home->b_fld, &a1, VF_STRU,
        sizeof (struct t_1_b_b_Top));
      {
        struct t_1_b_b_Top *h1 = (struct t_1_b_b_Top *)a1->val.stru;
        /* defStruct c#0 "c_fld" */
        normLow (ASNG_F(asnperg) &h1->c_fld);
        /* leaf d#1 "d_fld" */
      }
      incListLen (&home->b_fld);
    }
  }
}

void normSelf (ASNG_F(ASNPERG *asnperg) Self *home)
{
  home->compmask = 0;
  {
    if (!(home->a_fld = (Self *)allocAsn (NULL, MB_STG, sizeof (Self)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    home->compmask |= BIT(0);
    /* defStruct a#0 "a_fld" */
    normSelf (ASNG_F(asnperg) home->a_fld);
  }
}

void normPong (ASNG_F(ASNPERG *asnperg) Pong *home)
{
  home->a_fld.compmask = 0;
  {
    if (!(home->a_fld.b_fld = (Ping *)allocAsn (NULL, MB_STG, sizeof (Ping)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    home->a_fld.compmask |= BIT(0);
    /* defStruct b#0 "a_fld.b_fld" */
    normPing (ASNG_F(asnperg) home->a_fld.b_fld);
  }
}

void normPing (ASNG_F(ASNPERG *asnperg) Ping *home)
{
  home->compmask = 0;
  {
    if (!(home->a_fld = (Pong *)allocAsn (NULL, MB_STG, sizeof (Pong)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    home->compmask |= BIT(0);
    /* defStruct a#0 "a_fld" */
    normPong (ASNG_F(asnperg) home->a_fld);
  }
}

void normAliased (ASNG_F(ASNPERG *asnperg) Aliased *home)
{
  home->compmask = 0;
  /* leaf a#0 "a_fld" */
  {
    if (!(home->b_fld = (Aliased *)allocAsn (NULL, MB_STG, sizeof (Aliased)))){
      reportFatalError (LACK_OF_MEMORY);
    }
    home->compmask |= BIT(1);
    /* defStruct b#1 "b_fld" */
    normAliased (ASNG_F(asnperg) home->b_fld);
  }
}
/* additionalNormalFunc Number "" */

void normInstance (ASNG_F(ASNPERG *asnperg) Instance *home)
{
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld);
  /* defStruct a#0 "b_fld.a_fld" */
  normLow (ASNG_F(asnperg) &home->b_fld.a_fld);
}

void normUsesInstance (ASNG_F(ASNPERG *asnperg) UsesInstance *home)
{
  /* defStruct a#0 "a_fld" */
  normInstance (ASNG_F(asnperg) &home->a_fld);
  /* leaf a#0 "b_fld.a_fld" */
  /* defStruct c#2 "c_fld" */
  normInstance (ASNG_F(asnperg) &home->c_fld);
}

void normWay (ASNG_F(ASNPERG *asnperg) Way *home)
{
  home->choice = -1;
  {
    home->choice = 0;
    /* defStruct a#0 "i1.a_fld" */
    normLow (ASNG_F(asnperg) &home->i1.a_fld);
  }
  {
    home->choice = 1;
    /* leaf b#1 "i1.b_fld" */
  }
}

void normPicked (ASNG_F(ASNPERG *asnperg) Picked *home)
{
  /* defStruct a#0 "a_fld" */
  normLeafy (ASNG_F(asnperg) &home->a_fld);
}

void normUsesPicked (ASNG_F(ASNPERG *asnperg) UsesPicked *home)
{
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld);
  /* defStruct b#1 "b_fld" */
  normLow (ASNG_F(asnperg) &home->b_fld);
}

void normLater (ASNG_F(ASNPERG *asnperg) Later *home)
{
  /* leaf a#0 "a_fld" */
}

void normParts (ASNG_F(ASNPERG *asnperg) Parts *home)
{
  /* defStruct a#0 "a_fld" */
  normLow (ASNG_F(asnperg) &home->a_fld);
  /* defStruct z#1 "z_fld" */
  normLater (ASNG_F(asnperg) &home->z_fld);
}

/* passed 20 */
