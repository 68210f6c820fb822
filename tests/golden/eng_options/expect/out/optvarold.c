
void normPart (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Part *home;
{
  /* leaf x#0 "x_fld" */
}

void normS (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
S *home;
{
  if ((home->compmask & BIT(0))){
    /* leaf a#0 "a_fld" */
  }
  switch (home->b_fld.choice){
    case 0:
      {
        /* leaf c#0 "b_fld.i1.c_fld" */
      }
      break;
    case 1:
      {
        {
          ASNHOME *a1 = NULL;
          for (a1 = firstListItem (&home->b_fld.i1.d_fld); a1; a1 =
            nextListItem (a1)){
            /* leaf element "" */
          }
        }
      }
      break;
  }
  /* additionGroupPrefix group#3 "" */
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->e_fld); n1++){
      /* defStruct element "e_fld.elem [n1]" */
      normPart (ASNG_F(asnperg) &home->e_fld.elem [n1]);
    }
  }
  /* additionGroupPostfix group#3 "" */
}

void entryS (ASNG_F(asnperg) hometab)
ASNG_DEF(ASNPERG *asnperg)
ASNHOME **hometab;
{
  if ((hometab [0])){
    /* leaf a#0 "a_fld" */
    freeAsn (&hometab [0], FREE_STG);
  }
  {
    struct t_b_S *h1 = (struct t_b_S *)hometab [1]->val.stru;
    switch (h1->choice){
      case 0:
        {
          /* leaf c#0 "i1.c_fld" */
        }
        break;
      case 1:
        {
          {
            ASNHOME *a1 = NULL;
            for (a1 = firstListItem (&h1->i1.d_fld); a1; a1 =
              nextListItem (a1)){
              /* leaf element "" */
            }
          }
        }
        break;
    }
  }
  freeAsn (&hometab [1], FREE_STG);
  /* additionGroupPrefix group#3 "" */
  {
    struct t_e_S *h1 = (struct t_e_S *)hometab [3]->val.stru;
    {
      uint32 n1 = 0;
      for (n1 = 0; n1 < staArrLen (h1); n1++){
        /* defStruct element "elem [n1]" */
        normPart (ASNG_F(asnperg) &h1->elem [n1]);
      }
    }
  }
  freeAsn (&hometab [3], FREE_STG);
  /* additionGroupPostfix group#3 "" */
  freeAsn (&hometab [3], FREE_STG);
}

void normHomes (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Homes *home;
{
  if (home->a_fld){
    /* leaf a#0 "a_fld" */
    freeAsn (&home->a_fld, FREE_STG);
  }
  else if (home->b_fld){
    /* leaf b#1 "b_fld" */
    freeAsn (&home->b_fld, FREE_STG);
  }
}

void normSet (ASNG_F(asnperg) home)
ASNG_DEF(ASNPERG *asnperg)
Set *home;
{
  /* leaf a#0 "a_fld" */
  freeAsn (&home->a_fld, FREE_STG);
}
/* additionalNormalFunc Number "" */

void entryNumber (ASNG_F(asnperg) hometab)
ASNG_DEF(ASNPERG *asnperg)
ASNHOME **hometab;
{
  /* leaf Number "" */
  freeAsn (&hometab [0], FREE_STG);
}

/* passed 5 */
