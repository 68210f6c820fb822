
void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  if ((home->compmask & BIT(1))){
  }
}

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  if ((home->compmask & BIT(0))){
  }
  switch (home->b_fld.choice){
    case 0:
      {
      }
      break;
    case 1:
      {
      }
      break;
  }
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->e_fld); a1; a1 = nextListItem (a1)){
    }
  }
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->j_fld); n1++){
    }
  }
}

void entryS (ASNG_F(ASNPERG *asnperg) S *home)
{
  normS (ASNG_F(asnperg) home);
}

void entryNumber (ASNG_F(ASNPERG *asnperg) Number *home)
{
}

/* passed 4 */
