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
  normAlternative (ASNG_F(asnperg)pre_a#0,  &home->a_fld);
}

void entrySeq (ASNG_F(ASNPERG *asnperg) Seq *home)
{
  normSeq (ASNG_F(asnperg) pre_Seq, home);
}

void entryAlternative (ASNG_F(ASNPERG *asnperg) Alternative *home)
{
  normAlternative (ASNG_F(asnperg) pre_Alternative, home);
}

void normRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* defStruct element "elem [n1]" */
      normSeq (ASNG_F(asnperg)pre_element,  &home->elem [n1]);
    }
  }
}

void entryRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  normRow (ASNG_F(asnperg) pre_Row, home);
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
  normChain (ASNG_F(asnperg) pre_Chain, home);
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  /* leaf a#0 "a_fld" */
}

void entryHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  normHomes (ASNG_F(asnperg) pre_Homes, home);
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
  normOpen (ASNG_F(asnperg) pre_Open, home);
}

void entryAliasOfSeq (ASNG_F(ASNPERG *asnperg) AliasOfSeq *home)
{
  normSeq (ASNG_F(asnperg) pre_AliasOfSeq, home);
}

/* passed 10 */
