
void normArray (ASNG_F(ASNPERG *asnperg) Array *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* leaf element "elem [n1]" */
    }
  }
}

void normLinked (ASNG_F(ASNPERG *asnperg) Linked *home)
{
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      {
        struct t_1_Linked *h1 = (struct t_1_Linked *)a1->val.stru;
        /* leaf a#0 "a_fld" */
      }
    }
  }
}

void normExact (ASNG_F(ASNPERG *asnperg) Exact *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* leaf element "elem [n1]" */
    }
  }
}

void normRefuse (ASNG_F(ASNPERG *asnperg) Refuse *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* leaf element "elem [n1]" */
    }
  }
}

void normBare (ASNG_F(ASNPERG *asnperg) Bare *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 10; n1++){
      /* leaf element "elem [n1]" */
    }
  }
}

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->a_fld); n1++){
      /* leaf element "a_fld.elem [n1]" */
    }
  }
}

void normHuge (ASNG_F(ASNPERG *asnperg) Huge *home)
{
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (home); n1++){
      /* leaf element "elem [n1]" */
    }
  }
}

/* passed 7 */
