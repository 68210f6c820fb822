/* additionalNormalFunc Colour "" */

void normAlternative (Alternative *home)
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

void normSeq (Seq *home)
{
  /* defStruct a#0 "a_fld" */
  normAlternative (pre_a#0, &home->a_fldpost_a#0, );
}

void entrySeq (Seq *home)
{
  normSeq (pre_Seq, homepost_Seq, );
}

void entryAlternative (Alternative *home)
{
  normAlternative (pre_Alternative, homepost_Alternative, );
}

void normRow (Row *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* defStruct element "elem [n1]" */
      normSeq (pre_element, &home->elem [n1]post_element, );
    }
  }
}

void entryRow (Row *home)
{
  normRow (pre_Row, homepost_Row, );
}

void normChain (Chain *home)
{
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      /* leaf element "" */
    }
  }
}

void entryChain (Chain *home)
{
  normChain (pre_Chain, homepost_Chain, );
}

void normHomes (Homes *home)
{
  /* leaf a#0 "a_fld" */
}

void entryHomes (Homes *home)
{
  normHomes (pre_Homes, homepost_Homes, );
}
/* additionalNormalFunc Number "" */

void entryNumber (Number *home)
{
  /* leaf Number "" */
}

void entryColour (Colour *home)
{
  /* leaf Colour "" */
}
/* additionalNormalFunc Empty "" */

void entryEmpty (Empty *home)
{
  /* leaf Empty "" */
}

void normOpen (Open *home)
{
}

void entryOpen (Open *home)
{
  normOpen (pre_Open, homepost_Open, );
}

void entryAliasOfSeq (AliasOfSeq *home)
{
  normSeq (pre_AliasOfSeq, homepost_AliasOfSeq, );
}

/* passed 10 */
