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
  normAlternative (ASNG_F(asnperg)pre_a#0, home_a#0, post_a#0, );
}

void entrySeq (ASNG_F(ASNPERG *asnperg) Seq *home)
{
  normSeq (pre_Seq, home_Seq, post_Seq, );
}

void entryAlternative (ASNG_F(ASNPERG *asnperg) Alternative *home)
{
  normAlternative (pre_Alternative, home_Alternative, post_Alternative, );
}

void normRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* defStruct element "elem [n1]" */
      normSeq (ASNG_F(asnperg)pre_element, home_element, post_element, );
    }
  }
}

void entryRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  normRow (pre_Row, home_Row, post_Row, );
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

void entryChain (ASNG_F(ASNPERG *asnperg) Chain *home)
{
  normChain (pre_Chain, home_Chain, post_Chain, );
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  /* leaf a#0 "a_fld" */
}

void entryHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  normHomes (pre_Homes, home_Homes, post_Homes, );
}
/* additionalNormalFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
  /* leaf Number "" */
}

void entryColour (ASNG_F(ASNPERG *asnperg) Colour *home)
{
  /* leaf Colour "" */
}
/* additionalNormalFunc Empty "" */

void entryEmpty (ASNG_F(ASNPERG *asnperg) Empty *home)
{
  /* leaf Empty "" */
}

void normOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
}

void entryOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
  normOpen (pre_Open, home_Open, post_Open, );
}

void entryAliasOfSeq (ASNG_F(ASNPERG *asnperg) AliasOfSeq *home)
{
  normSeq (pre_AliasOfSeq, home_AliasOfSeq, post_AliasOfSeq, );
}

/* passed 10 */
