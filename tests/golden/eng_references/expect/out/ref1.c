/* additionalNormalFunc Colour "" */

void normLeafy (ASNG_F(ASNPERG *asnperg) Leafy *home)
{
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      /* leaf element "" */
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
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->b_fld); a1; a1 = nextListItem (a1)){
      {
        struct t_1_b_b_Top *h1 = (struct t_1_b_b_Top *)a1->val.stru;
        /* defStruct c#0 "c_fld" */
        normLow (ASNG_F(asnperg) &h1->c_fld);
        /* leaf d#1 "d_fld" */
      }
    }
  }
}

void normSelf (ASNG_F(ASNPERG *asnperg) Self *home)
{
  if ((home->compmask & BIT(0))){
    /* defStruct a#0 "a_fld" */
    normSelf (ASNG_F(asnperg) home->a_fld);
  }
}

void normPong (ASNG_F(ASNPERG *asnperg) Pong *home)
{
  if ((home->a_fld.compmask & BIT(0))){
    /* defStruct b#0 "a_fld.b_fld" */
    normPing (ASNG_F(asnperg) home->a_fld.b_fld);
  }
}

void normPing (ASNG_F(ASNPERG *asnperg) Ping *home)
{
  if ((home->compmask & BIT(0))){
    /* defStruct a#0 "a_fld" */
    normPong (ASNG_F(asnperg) home->a_fld);
  }
}

void normAliased (ASNG_F(ASNPERG *asnperg) Aliased *home)
{
  /* leaf a#0 "a_fld" */
  if ((home->compmask & BIT(1))){
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
  switch (home->choice){
    case 0:
      {
        /* defStruct a#0 "i1.a_fld" */
        normLow (ASNG_F(asnperg) &home->i1.a_fld);
      }
      break;
    case 1:
      {
        /* leaf b#1 "i1.b_fld" */
      }
      break;
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
