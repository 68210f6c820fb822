/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = M
 * FILE = namper.c
 ****************************************************************/

void peC (ASNG_F(ASNPERG *asnperg) C *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_sint32_cwn_ua (home->i1.x_fld, 0, 7, 3);
      }
      break;
    case 1:
      {
        {
          pe_Boolean (home->i1.y_fld.z_fld);
        }
      }
      break;
  }
}

void peF (ASNG_F(ASNPERG *asnperg) F *home)
{
  pe_Boolean (home->z_fld);
}

void peE (ASNG_F(ASNPERG *asnperg) E *home)
{
  pe_Boolean (home->z_fld);
}

void peL (ASNG_F(ASNPERG *asnperg) L *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_sint32_cwn_ua (home->v_fld, 0, 255, 8);
  if ((home->compmask & BIT(1))){
    peL (ASNG_F(asnperg) home->next_fld);
  }
}

void peP (ASNG_F(ASNPERG *asnperg) P *home)
{
  pe_sint32_cwn_ua (home->d_fld, 0, 7, 3);
  {
    pe_Boolean (home->f_fld.z_fld);
  }
  pe_sint32_cwn_ua (home->h_fld, 0, 255, 8);
  pe_ObjectIdentifier (&home->id_fld);
  peL (ASNG_F(asnperg) &home->l_fld);
}

void pecP (ASNG_F(ASNPERG *asnperg) P *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peP (ASNG_F(asnperg) home);
  pe_end ();
}

void pdC (ASNG_F(ASNPERG *asnperg) C *home)
{
  home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  switch (home->choice){
    case 0:
      {
        pd_sint32_cwn_ua_8 (&home->i1.x_fld, 0, 7, 3);
        break;
      }
    case 1:
      {
        pd_Boolean (&home->i1.y_fld.z_fld);
        break;
      }
  }
}

void pdF (ASNG_F(ASNPERG *asnperg) F *home)
{
  pd_Boolean (&home->z_fld);
}

void pdE (ASNG_F(ASNPERG *asnperg) E *home)
{
  pd_Boolean (&home->z_fld);
}

void pdL (ASNG_F(ASNPERG *asnperg) L *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    pd_sint32_cwn_ua_8 (&home->v_fld, 0, 255, 8);
    if (optfield_0 & BITL(0)){
      if (!(home->next_fld = (L *)allocAsn (NULL, MB_STG, sizeof (L)))){
        reportFatalError (LACK_OF_MEMORY);
      }
      home->compmask |= BIT(1);
      pdL (ASNG_F(asnperg) home->next_fld);
    }
  }
}

void pdP (ASNG_F(ASNPERG *asnperg) P *home)
{
  pd_sint32_cwn_ua_8 (&home->d_fld, 0, 7, 3);
  pd_Boolean (&home->f_fld.z_fld);
  pd_sint32_cwn_ua_8 (&home->h_fld, 0, 255, 8);
  pd_ObjectIdentifier (&home->id_fld);
  pdL (ASNG_F(asnperg) &home->l_fld);
}

void pdcP (ASNG_F(ASNPERG *asnperg) P *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  pdP (ASNG_F(asnperg) home);
  pd_end ();
}
