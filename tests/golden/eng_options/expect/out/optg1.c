
void normPart (ASNG_F(ASNCODG *asncodg) Part *home)
{
  /* leaf x#0 "x_fld" */
}

void normS (ASNG_F(ASNCODG *asncodg) S *home)
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
      normPart (ASNG_F(asncodg) &home->e_fld.elem [n1]);
    }
  }
  /* additionGroupPostfix group#3 "" */
}

void entryS (ASNG_F(ASNCODG *asncodg) S *home)
{
  normS (ASNG_F(asncodg) home);
}

void normHomes (ASNG_F(ASNCODG *asncodg) Homes *home)
{
  if (home->a_fld){
    /* leaf a#0 "a_fld" */
  }
  else if (home->b_fld){
    /* leaf b#1 "b_fld" */
  }
}

void normSet (ASNG_F(ASNCODG *asncodg) Set *home)
{
  /* leaf a#0 "a_fld" */
}
/* additionalNormalFunc Number "" */

void entryNumber (ASNG_F(ASNCODG *asncodg) Number *home)
{
  /* leaf Number "" */
}

/* passed 5 */
