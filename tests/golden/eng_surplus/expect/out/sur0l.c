
void normArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      /* leaf element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    /* skipIsExtraElems Array "" */
    {
      while (TRUE){
        if (n1 >= 20){
          report (AM_FAIL);
        }
        home->nIgnored++;
        n1++;
      }
    }
  }
}

void normLinked (ASNG_F(ASNPERG *asnperg) Linked *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    /* constructElemLoop element "" */
    while (more ()){
      appendList (NULL, home, &a1, VF_STRU, sizeof (struct t_1_Linked));
      {
        struct t_1_Linked *h1 = (struct t_1_Linked *)a1->val.stru;
        /* leaf a#0 "a_fld" */
      }
      incListLen (home);
    }
    home->nIgnored = 0;
    /* skipIsExtraElems Linked "" */
    {
      while (TRUE){
        if (n0 >= 9223372036854775807){
          report (AM_FAIL);
        }
        home->nIgnored++;
        n0++;
      }
    }
  }
}

void normExact (ASNG_F(ASNPERG *asnperg) Exact *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      /* leaf element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
  }
}

void normRefuse (ASNG_F(ASNPERG *asnperg) Refuse *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      if (staArrLen (home) >= 10){
        report (AM_FAIL);
      }
      /* leaf element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
  }
}

void normBare (ASNG_F(ASNPERG *asnperg) Bare *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      /* leaf element "elem [n1]" */
      n1++;
    }
    home->nIgnored = 0;
    /* skipIsExtraElems Bare "" */
    {
      while (TRUE){
        if (n1 >= 20){
          report (AM_FAIL);
        }
        home->nIgnored++;
        n1++;
      }
    }
    {
      BOOLE ok1;
      ok1 = (n1 == 20);
      if (!ok1){
        report (CONSTRAINT_FAIL);
      }
    }
  }
}

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  staArrInit (&home->a_fld);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      /* leaf element "a_fld.elem [n1]" */
      incStaArrLen (&home->a_fld);
      n1++;
    }
    home->a_fld.nIgnored = 0;
    /* skipIsExtraElems a#0 "a_fld" */
    {
      while (TRUE){
        if (n1 >= 20){
          report (AM_FAIL);
        }
        home->a_fld.nIgnored++;
        n1++;
      }
    }
  }
}

void normHuge (ASNG_F(ASNPERG *asnperg) Huge *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      /* leaf element "elem [n1]" */
      incStaArrLen (home);
      n1++;
    }
    home->nIgnored = 0;
    /* skipIsExtraElems Huge "" */
    {
      while (TRUE){
        if (n1 >= 5000000000){
          report (AM_FAIL);
        }
        home->nIgnored++;
        n1++;
      }
    }
  }
}

/* passed 7 */
