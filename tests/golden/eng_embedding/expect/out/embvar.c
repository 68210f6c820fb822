
void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* E1 of Part */
  /* leaf x#0 "x_fld" */
  /* E2 of Part */
}
/* additionalNormalFunc Number "" */

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* E1 of S */
  if ((home->compmask & BIT(0))){
    /* E1 of a */
    /* leaf a#0 "a_fld" */
    /* E2 of a */
  }
  /* E1 of b */
  /* leaf c#0 "b_fld.c_fld" */
  /* E2 of b */
  /* E1 of d */
  /* defStruct d#2 "d_fld" */
  normPart (ASNG_F(asnperg) &home->d_fld);
  /* E2 of d */
  /* E1 of e */
  /* E1 of Number */
  /* leaf e#3 "e_fld" */
  /* E2 of Number */
  /* E2 of e */
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->f_fld); a1; a1 = nextListItem (a1)){
      /* E1 of the element */
      /* leaf element "" */
    }
  }
  /* E2 of S */
}

void entryS (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* E1 of S */
  if ((hometab [0])){
    /* E1 of a */
    /* leaf a#0 "a_fld" */
    freeAsn (&hometab [0], FREE_STG);
    /* E2 of a */
  }
  /* E1 of b */
  {
    struct t_b_S *h1 = (struct t_b_S *)hometab [1]->val.stru;
    /* leaf c#0 "c_fld" */
  }
  freeAsn (&hometab [1], FREE_STG);
  /* E2 of b */
  /* E1 of d */
  /* defStruct d#2 "d_fld" */
  normPart (ASNG_F(asnperg) (Part *)hometab [2]->val.stru);
  freeAsn (&hometab [2], FREE_STG);
  /* E2 of d */
  /* E1 of e */
  /* E1 of Number */
  /* leaf e#3 "e_fld" */
  freeAsn (&hometab [3], FREE_STG);
  /* E2 of Number */
  /* E2 of e */
  {
    LIST *h1 = &hometab [4]->val.list;
    {
      ASNHOME *a1 = NULL;
      for (a1 = firstListItem (h1); a1; a1 = nextListItem (a1)){
        /* E1 of the element */
        /* leaf element "" */
      }
    }
  }
  freeAsn (&hometab [4], FREE_STG);
  /* E2 of S */
}

void entryNumber (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* E1 of Number */
  /* leaf Number "" */
  freeAsn (&hometab [0], FREE_STG);
  /* E2 of Number */
}

void entryAliasOfPart (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* E1 of AliasOfPart */
  /* leaf x#0 "x_fld" */
  freeAsn (&hometab [0], FREE_STG);
}
/* additionalNormalFunc Text "" */

void entryText (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  /* leaf Text "" */
  freeAsn (&hometab [0], FREE_STG);
  /* E2 of Text */
}

/* passed 5 */
