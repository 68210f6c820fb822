/* additionalNormalFunc Colour "" */

void normAlternative (ASNG_F(ASNPERG *asnperg) Alternative *home)
{
  switch (home->choice){
    case 0:
      {
        /* leaf x#0 "i1.x_fld" */
      }
      break;
    case 1:
      {
        /* leaf y#1 "i1.y_fld" */
      }
      break;
  }
}

void normSeq (ASNG_F(ASNPERG *asnperg) Seq *home)
{
  /* defStruct a#0 "a_fld" */
  normAlternative (ASNG_F(asnperg) &home->a_fldpost_a#0, );
}

void entrySeq (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* defStruct a#0 "a_fld" */
  normAlternative (ASNG_F(asnperg) (Alternative *)hometab [0]->val.stru
    post_a#0, );
  freeAsn (&hometab [0], FREE_STG);
}

void entryAlternative (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  if (hometab [0]){
    /* leaf x#0 "i1.x_fld" */
    freeAsn (&hometab [0], FREE_STG);
  }
  else if (hometab [1]){
    /* leaf y#1 "i1.y_fld" */
    freeAsn (&hometab [1], FREE_STG);
  }
}

void normRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* defStruct element "elem [n1]" */
      normSeq (ASNG_F(asnperg) &home->elem [n1]post_element, );
    }
  }
}

void entryRow (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  normRow (ASNG_F(asnperg) (Row *)hometab [0]->val.strupost_Row, );
  freeAsn (&hometab [0], FREE_STG);
}

void normChain (ASNG_F(ASNPERG *asnperg) Chain *home)
{
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      /* leaf element "" */
    }
  }
}

void entryChain (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  normChain (ASNG_F(asnperg) &hometab [0]->val.listpost_Chain, );
  freeAsn (&hometab [0], FREE_STG);
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  /* leaf a#0 "a_fld" */
  freeAsn (&home->a_fld, FREE_STG);
}

void entryHomes (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  normHomes (ASNG_F(asnperg) (Homes *)hometabpost_Homes, );
}
/* additionalNormalFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* leaf Number "" */
  freeAsn (&hometab [0], FREE_STG);
}

void entryColour (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* leaf Colour "" */
  freeAsn (&hometab [0], FREE_STG);
}
/* additionalNormalFunc Empty "" */

void entryEmpty (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* leaf Empty "" */
  freeAsn (&hometab [0], FREE_STG);
}

void normOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
}

void entryOpen (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
}

void entryAliasOfSeq (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* defStruct a#0 "a_fld" */
  normAlternative (ASNG_F(asnperg) (Alternative *)hometab [0]->val.stru
    post_a#0, );
  freeAsn (&hometab [0], FREE_STG);
}

/* passed 10 */
