
void normPart (ASNG_F(ASNPERG *asnperg) Part *home)
{
  home->compmask = 0;
  {
    home->compmask |= BIT(1);
  }
}

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  home->compmask = 0;
  {
    home->compmask |= BIT(0);
  }
  home->b_fld.choice = -1;
  {
    home->b_fld.choice = 0;
  }
  {
    home->b_fld.choice = 1;
  }
  listInit (&home->e_fld);
  {
    ASNHOME *a1 = NULL;
    while (TRUE){
      appendList (getHomeG (asnperg_asnuti), &home->e_fld, &a1, VF_NULL, 0);
      incListLen (&home->e_fld);
    }
  }
  staArrInit (&home->j_fld);
  {
    uint32 n1 = 0;
    BOOLE extraElems1 = FALSE;
    while (TRUE){
      if (staArrLen (&home->j_fld) >= 4){
        extraElems1 = TRUE;
        break;
      }
      incStaArrLen (&home->j_fld);
      n1++;
    }
    home->j_fld.nIgnored = 0;
    if (extraElems1){
      while (TRUE){
        if (n1 >= 9){
          break;
        }
        home->j_fld.nIgnored++;
        n1++;
      }
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
