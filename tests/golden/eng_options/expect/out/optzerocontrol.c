
void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  /* leaf x#0 "x_fld" */
}

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  {
    home->compmask |= BIT(0);
    /* leaf a#0 "a_fld" */
  }
  {
    /* leaf c#0 "b_fld.i1.c_fld" */
  }
  {
    listInit (&home->b_fld.i1.d_fld);
    {
      ASNHOME *a1 = NULL;
      /* constructElemLoop element "" */
      while (more ()){
        appendList (NULL, &home->b_fld.i1.d_fld, &a1, VF_NULL, 0);
        /* leaf element "" */
        incListLen (&home->b_fld.i1.d_fld);
      }
    }
  }
  /* additionGroupPrefix group#3 "" */
  staArrInit (&home->e_fld);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      /* defStruct element "e_fld.elem [n1]" */
      normPart (ASNG_F(asnperg) &home->e_fld.elem [n1]);
      incStaArrLen (&home->e_fld);
      n1++;
    }
  }
  /* additionGroupPostfix group#3 "" */
}

void entryS (ASNG_F(ASNPERG *asnperg) S *home)
{
  normS (ASNG_F(asnperg) home);
}

void normHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  {
    createHome (NULL, &home->a_fld, VF_NULL, 0);
    /* leaf a#0 "a_fld" */
  }
  {
    createHome (NULL, &home->b_fld, VF_NULL, 0);
    /* leaf b#1 "b_fld" */
  }
}

void normSet (ASNG_F(ASNPERG *asnperg) Set *home)
{
  createHome (NULL, &home->a_fld, VF_NULL, 0);
  /* leaf a#0 "a_fld" */
}
/* additionalNormalFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
  /* leaf Number "" */
}

/* passed 5 */
