
void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  pushPath (ASNG_F(asncodg) "x_fld");
  /* leaf x#0 "x_fld" */
  popPath (ASNG_F(asncodg) 6);
}

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  if ((home->compmask & BIT(0))){
    pushPath (ASNG_F(asncodg) "a_fld");
    /* leaf a#0 "a_fld" */
    popPath (ASNG_F(asncodg) 6);
  }
  pushPath (ASNG_F(asncodg) "b_fld");
  switch (home->b_fld.choice){
    case 0:
      {
        pushPath (ASNG_F(asncodg) "i1.c_fld");
        /* leaf c#0 "b_fld.i1.c_fld" */
        popPath (ASNG_F(asncodg) 9);
      }
      break;
    case 1:
      {
        pushPath (ASNG_F(asncodg) "i1.d_fld");
        {
          ASNHOME *a1 = NULL;
          for (a1 = firstListItem (&home->b_fld.i1.d_fld); a1; a1 =
            nextListItem (a1)){
            pushElem (ASNG_F(asncodg) listLen (&home->b_fld.i1.d_fld));
            /* leaf element "" */
            popPath (ASNG_F(asncodg) 0);
          }
        }
        popPath (ASNG_F(asncodg) 9);
      }
      break;
  }
  popPath (ASNG_F(asncodg) 6);
  pushPath (ASNG_F(asncodg) "_fld");
  /* additionGroupPrefix group#3 "" */
  pushPath (ASNG_F(asncodg) "e_fld");
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->e_fld); n1++){
      pushElem (ASNG_F(asncodg) n1);
      /* defStruct element "e_fld.elem [n1]" */
      normPart (ASNG_F(asnperg) &home->e_fld.elem [n1]);
      popPath (ASNG_F(asncodg) 0);
    }
  }
  popPath (ASNG_F(asncodg) 6);
  /* additionGroupPostfix group#3 "" */
  popPath (ASNG_F(asncodg) 5);
}

void entryS (ASNG_F(ASNPERG *asnperg) S *home)
{
  pushPath (ASNG_F(asncodg) "S");
  normS (ASNG_F(asnperg) home);
  popPath (ASNG_F(asncodg) 2);
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  if (home->a_fld){
    pushPath (ASNG_F(asncodg) "i1.a_fld");
    /* leaf a#0 "a_fld" */
    popPath (ASNG_F(asncodg) 9);
  }
  else if (home->b_fld){
    pushPath (ASNG_F(asncodg) "i1.b_fld");
    /* leaf b#1 "b_fld" */
    popPath (ASNG_F(asncodg) 9);
  }
}

void normSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  pushPath (ASNG_F(asncodg) "a_fld");
  /* leaf a#0 "a_fld" */
  popPath (ASNG_F(asncodg) 6);
}
/* additionalNormalFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
  pushPath (ASNG_F(asncodg) "Number");
  /* leaf Number "" */
  popPath (ASNG_F(asncodg) 7);
}

/* passed 5 */
