
void normRow (ASNG_F(ASNPERG *asnperg) Row *home)
{
  staArrInit (home);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      if (staArrLen (home) >= 8){
        report (AM_FAIL);
      }
      /* leaf element "elem [n1]" */
      if ((2 < home->elem [n1] && home->elem [n1] < 4) || (4 < home->elem [n1]
        && home->elem [n1] < 9)){
        report (CONSTRAINT_FAIL);
      }
      incStaArrLen (home);
      n1++;
    }
  }
}

void normS (ASNG_F(ASNPERG *asnperg) S *home)
{
  /* leaf a#0 "a_fld" */
  if ((1 < home->a_fld && home->a_fld < 3) || (3 < home->a_fld && 
    home->a_fld < 7)){
    report (CONSTRAINT_FAIL);
  }
  /* defStruct b#1 "b_fld" */
  normRow (ASNG_F(asnperg) &home->b_fld);
  {
    BOOLE ok1;
    ok1 = (staArrLen (&home->b_fld) >= 2);
    if (!ok1){
      report (CONSTRAINT_FAIL);
    }
  }
  /* defStruct c#2 "c_fld" */
  normRow (ASNG_F(asnperg) &home->c_fld);
  staArrInit (&home->d_fld);
  {
    uint32 n1 = 0;
    /* constructElemLoop element "" */
    while (more ()){
      if (staArrLen (&home->d_fld) >= 2){
        report (AM_FAIL);
      }
      /* leaf element "d_fld.elem [n1]" */
      incStaArrLen (&home->d_fld);
      n1++;
    }
    {
      BOOLE ok1;
      ok1 = (staArrLen (&home->d_fld) >= 1);
      if (!ok1){
        report (CONSTRAINT_FAIL);
      }
    }
  }
  /* leaf e#4 "e_fld" */
}

void entryS (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
  /* leaf a#0 "a_fld" */
  if ((1 < hometab [0]->val.ui8 && 
    hometab [0]->val.ui8 < 3) || (3 < hometab [0]->val.ui8 && 
    hometab [0]->val.ui8 < 7)){
    report (CONSTRAINT_FAIL);
  }
  createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU, sizeof (Row));
  pushHomeG (asnperg_asnuti, hometab [1]);
  /* defStruct b#1 "b_fld" */
  normRow (ASNG_F(asnperg) (Row *)hometab [1]->val.stru);
  popHomeG (asnperg_asnuti);
  {
    BOOLE ok1;
    ok1 = (staArrLen (&home->b_fld) >= 2);
    if (!ok1){
      report (CONSTRAINT_FAIL);
    }
  }
  createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU, sizeof (Row));
  pushHomeG (asnperg_asnuti, hometab [2]);
  /* defStruct c#2 "c_fld" */
  normRow (ASNG_F(asnperg) (Row *)hometab [2]->val.stru);
  popHomeG (asnperg_asnuti);
  createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_STRU,
    sizeof (struct t_d_S));
  pushHomeG (asnperg_asnuti, hometab [3]);
  {
    struct t_d_S *h1 = (struct t_d_S *)hometab [3]->val.stru;
    staArrInit (h1);
    {
      uint32 n1 = 0;
      /* constructElemLoop element "" */
      while (more ()){
        if (staArrLen (h1) >= 2){
          report (AM_FAIL);
        }
        /* leaf element "elem [n1]" */
        incStaArrLen (h1);
        n1++;
      }
      {
        BOOLE ok1;
        ok1 = (staArrLen (h1) >= 1);
        if (!ok1){
          report (CONSTRAINT_FAIL);
        }
      }
    }
  }
  popHomeG (asnperg_asnuti);
  createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_UI8, 0);
  /* leaf e#4 "e_fld" */
}

void entryRow (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU, sizeof (Row));
  pushHomeG (asnperg_asnuti, hometab [0]);
  normRow (ASNG_F(asnperg) (Row *)hometab [0]->val.stru);
  popHomeG (asnperg_asnuti);
}
/* additionalNormalFunc Number "" */

void entryNumber (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
  /* leaf Number "" */
  if ((1 < hometab [0]->val.ui8 && hometab [0]->val.ui8 < 3)){
    report (CONSTRAINT_FAIL);
  }
}
/* additionalNormalFunc Plain "" */

void entryPlain (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_I32, 0);
  /* leaf Plain "" */
}
/* additionalNormalFunc Text "" */

void entryText (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STAS8,
    sizeof (Text));
  /* leaf Text "" */
  {
    BOOLE ok1;
    ok1 = (staChrStrStrspn (hometab [0]->val.stas8, "AB") ==
      staStrLen (hometab [0]->val.stas8));
    if (!ok1){
      report (CONSTRAINT_FAIL);
    }
  }
}

void entryAliasOfRow (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_STRU, sizeof (Row));
  pushHomeG (asnperg_asnuti, hometab [0]);
  normRow (ASNG_F(asnperg) (Row *)hometab [0]->val.stru);
  popHomeG (asnperg_asnuti);
  {
    BOOLE ok1;
    ok1 = (staArrLen (home) == 3);
    if (!ok1){
      report (CONSTRAINT_FAIL);
    }
  }
}

void entryAliasOfS (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
  /* leaf a#0 "a_fld" */
  if ((1 < hometab [0]->val.ui8 && 
    hometab [0]->val.ui8 < 3) || (3 < hometab [0]->val.ui8 && 
    hometab [0]->val.ui8 < 7)){
    report (CONSTRAINT_FAIL);
  }
  createHome (getHomeG (asnperg_asnuti), &hometab [1], VF_STRU, sizeof (Row));
  pushHomeG (asnperg_asnuti, hometab [1]);
  /* defStruct b#1 "b_fld" */
  normRow (ASNG_F(asnperg) (Row *)hometab [1]->val.stru);
  popHomeG (asnperg_asnuti);
  {
    BOOLE ok1;
    ok1 = (staArrLen (&home->b_fld) >= 2);
    if (!ok1){
      report (CONSTRAINT_FAIL);
    }
  }
  createHome (getHomeG (asnperg_asnuti), &hometab [2], VF_STRU, sizeof (Row));
  pushHomeG (asnperg_asnuti, hometab [2]);
  /* defStruct c#2 "c_fld" */
  normRow (ASNG_F(asnperg) (Row *)hometab [2]->val.stru);
  popHomeG (asnperg_asnuti);
  createHome (getHomeG (asnperg_asnuti), &hometab [3], VF_STRU,
    sizeof (struct t_d_S));
  pushHomeG (asnperg_asnuti, hometab [3]);
  {
    struct t_d_S *h1 = (struct t_d_S *)hometab [3]->val.stru;
    staArrInit (h1);
    {
      uint32 n1 = 0;
      /* constructElemLoop element "" */
      while (more ()){
        if (staArrLen (h1) >= 2){
          report (AM_FAIL);
        }
        /* leaf element "elem [n1]" */
        incStaArrLen (h1);
        n1++;
      }
      {
        BOOLE ok1;
        ok1 = (staArrLen (h1) >= 1);
        if (!ok1){
          report (CONSTRAINT_FAIL);
        }
      }
    }
  }
  popHomeG (asnperg_asnuti);
  createHome (getHomeG (asnperg_asnuti), &hometab [4], VF_UI8, 0);
  /* leaf e#4 "e_fld" */
}

void entrySkipped (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_UI8, 0);
  /* skipFunc Skipped "" */
}
/* additionalNormalFunc Oid "" */

void entryOid (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_OBJI,
    sizeof (OBJECTIDENTIFIER));
  /* leaf Oid "" */
  /* WARNING: Unimplemented type constraint. */
}
/* additionalNormalFunc Dyn "" */

void entryDyn (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_DYNS, 0);
  pushHomeG (asnperg_asnuti, hometab [0]);
  /* leaf Dyn "" */
  popHomeG (asnperg_asnuti);
  {
    BOOLE ok1;
    ok1 = (dynChrStrStrspn (&hometab [0]->val.dyns, "AB") ==
      dynStrLen (&hometab [0]->val.dyns));
    if (!ok1){
      report (CONSTRAINT_FAIL);
    }
  }
}

void normWc (ASNG_F(ASNPERG *asnperg) Wc *home)
{
  /* leaf a#0 "a_fld" */
  /* WARNING: Unimplemented type constraint. */
}

void entryWc (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_I32, 0);
  /* leaf a#0 "a_fld" */
  /* WARNING: Unimplemented type constraint. */
  /* WARNING: Unimplemented type constraint. */
}

void entryFramed (ASNG_F(ASNPERG *asnperg) ASNHOME **hometab)
{
  createHome (getHomeG (asnperg_asnuti), &hometab [0], VF_FRM,
    sizeof (FRAME_PTR));
  pushHomeG (asnperg_asnuti, hometab [0]);
  /* frame Framed "" */
  popHomeG (asnperg_asnuti);
}

/* passed 12 */
