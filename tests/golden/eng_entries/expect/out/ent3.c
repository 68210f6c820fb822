/* additionalNormalFunc Colour "" */
/* beforeNormalFunc Alternative "" */

void normAlternative (ASNG_F(ASNPERG *asnperg) Alternative *home)
{
  home->choice = -1;
  /* struPrefix Alternative "" */
  /* isComp x#0 "" */
  {
    /* compPrefix x#0 "" */
    home->choice = 0;
    /* pushPath x#0 "i1.x_fld" */
    /* leaf x#0 "i1.x_fld" */
    /* popPath x#0 "i1.x_fld" */
    /* compPostfix x#0 "i1.x_fld" */
  }
  /* isComp y#1 "" */
  {
    /* compPrefix y#1 "" */
    home->choice = 1;
    /* pushPath y#1 "i1.y_fld" */
    /* leaf y#1 "i1.y_fld" */
    /* popPath y#1 "i1.y_fld" */
    /* compPostfix y#1 "i1.y_fld" */
  }
  /* struPostfix Alternative "" */
}
/* afterNormalFunc Alternative "" */
/* beforeNormalFunc Seq "" */

void normSeq (ASNG_F(ASNPERG *asnperg) Seq *home)
{
  /* struPrefix Seq "" */
  /* isComp a#0 "" */
  /* compPrefix a#0 "" */
  /* pushPath a#0 "a_fld" */
  /* defStruct a#0 "a_fld" */
  normAlternative (ASNG_F(asnperg) &home->a_fld);
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* struPostfix Seq "" */
}
/* afterNormalFunc Seq "" */
/* beforeEntryFunc Seq "" */

void entrySeq (ASNG_F(ASNPERG *asnperg) Seq *home)
{
  /* entryPushPath Seq "" */
  /* entryPrefix Seq "" */
  normSeq (ASNG_F(asnperg) home);
  /* entryPostfix Seq "" */
  /* entryPopPath Seq "" */
}
/* afterEntryFunc Seq "" */
/* beforeEntryFunc Alternative "" */

void entryAlternative (ASNG_F(ASNPERG *asnperg) Alternative *home)
{
  /* entryPushPath Alternative "" */
  /* entryPrefix Alternative "" */
  normAlternative (ASNG_F(asnperg) home);
  /* entryPostfix Alternative "" */
  /* entryPopPath Alternative "" */
}
/* afterEntryFunc Alternative "" */
/* beforeNormalFunc Row "" */

void normRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* struPrefix Row "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      /* pushElem element "elem [n1]" */
      /* defStruct element "elem [n1]" */
      normSeq (ASNG_F(asnperg) &home->elem [n1]);
      /* popPath element "elem [n1]" */
      /* compPostfix element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
    /* struPostfix Row "" */
  }
}
/* afterNormalFunc Row "" */
/* beforeEntryFunc Row "" */

void entryRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  /* entryPushPath Row "" */
  /* entryPrefix Row "" */
  normRow (ASNG_F(asnperg) home);
  /* entryPostfix Row "" */
  /* entryPopPath Row "" */
}
/* afterEntryFunc Row "" */
/* beforeNormalFunc Chain "" */

void normChain (ASNG_F(ASNPERG *asnperg) Chain *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    /* struPrefix Chain "" */
    /* constructElemLoop element "" */
    while (more ()){
      /* isComp element "" */
      /* compPrefix element "" */
      appendList (NULL, home, &a1, VF_NULL, 0);
      /* pushElem element "" */
      /* leaf element "" */
      /* popPath element "" */
      /* compPostfix element "" */
      incListLen (home);
    }
    /* struPostfix Chain "" */
  }
}
/* afterNormalFunc Chain "" */
/* beforeEntryFunc Chain "" */

void entryChain (ASNG_F(ASNPERG *asnperg) Chain *home)
{
  /* entryPushPath Chain "" */
  /* entryPrefix Chain "" */
  normChain (ASNG_F(asnperg) home);
  /* entryPostfix Chain "" */
  /* entryPopPath Chain "" */
}
/* afterEntryFunc Chain "" */
/* beforeNormalFunc Homes "" */

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  memset (home, 0, sizeof (Homes));
  /* struPrefix Homes "" */
  /* isComp a#0 "a_fld" */
  /* compPrefix a#0 "a_fld" */
  createHome (NULL, &home->a_fld, VF_NULL, 0);
  /* pushPath a#0 "a_fld" */
  /* leaf a#0 "a_fld" */
  /* popPath a#0 "a_fld" */
  /* compPostfix a#0 "a_fld" */
  /* struPostfix Homes "" */
}
/* afterNormalFunc Homes "" */
/* beforeEntryFunc Homes "" */

void entryHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  /* entryPushPath Homes "" */
  /* entryPrefix Homes "" */
  normHomes (ASNG_F(asnperg) home);
  /* entryPostfix Homes "" */
  /* entryPopPath Homes "" */
}
/* afterEntryFunc Homes "" */
/* additionalNormalFunc Number "" */
/* beforeEntryFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
  /* entryPushPath Number "" */
  /* entryPrefix Number "" */
  /* leaf Number "" */
  /* entryPostfix Number "" */
  /* entryPopPath Number "" */
}
/* afterEntryFunc Number "" */
/* beforeEntryFunc Colour "" */

void entryColour (ASNG_F(ASNPERG *asnperg) Colour *home)
{
  /* entryPushPath Colour "" */
  /* entryPrefix Colour "" */
  /* leaf Colour "" */
  /* entryPostfix Colour "" */
  /* entryPopPath Colour "" */
}
/* afterEntryFunc Colour "" */
/* additionalNormalFunc Empty "" */
/* beforeEntryFunc Empty "" */

void entryEmpty (ASNG_F(ASNPERG *asnperg) Empty *home)
{
  /* entryPushPath Empty "" */
  /* entryPrefix Empty "" */
  /* leaf Empty "" */
  /* entryPostfix Empty "" */
  /* entryPopPath Empty "" */
}
/* afterEntryFunc Empty "" */
/* beforeNormalFunc Open "" */

void normOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
  /* struPrefix Open "" */
  /* struPostfix Open "" */
}
/* afterNormalFunc Open "" */
/* beforeEntryFunc Open "" */

void entryOpen (ASNG_F(ASNPERG *asnperg) Open *home)
{
  /* entryPushPath Open "" */
  /* entryPrefix Open "" */
  normOpen (ASNG_F(asnperg) home);
  /* entryPostfix Open "" */
  /* entryPopPath Open "" */
}
/* afterEntryFunc Open "" */
/* beforeEntryFunc AliasOfSeq "" */

void entryAliasOfSeq (ASNG_F(ASNPERG *asnperg) AliasOfSeq *home)
{
  /* entryPushPath AliasOfSeq "" */
  /* entryPrefix AliasOfSeq "" */
  normSeq (ASNG_F(asnperg) home);
  /* entryPostfix AliasOfSeq "" */
  /* entryPopPath AliasOfSeq "" */
}
/* afterEntryFunc AliasOfSeq "" */

/* passed 10 */
