/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Leaves
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

void peHomes (ASNG_F(ASNPERG *asnperg) Homes *home)
{
  pe_Boolean (*home->a_fld);
  pe_NullType ();
  pe_ObjectIdentifier (home->c_fld);
  pe_sint32_cwn_al_le255 (*home->d_fld, 0, 7, 3);
  pe_OctetString_al_u (home->e_fld, 0, MAXLONG, 4);
  pe_KnownMultiCharStri_al_fle16 (home->f_fld, 4, 4, 0, 4, TYP_NUMSTR, 11,
    asnperNumStrChars);
  {
    pe_Boolean (home->g_fld.h_fld);
    pe_ObjectIdentifier (&home->g_fld.i_fld);
    pe_sint32_ucwn_al (home->g_fld.j_fld);
    pe_OctetString_al_u (&home->g_fld.k_fld, 0, MAXLONG, 4);
  }
}

void peHomesOfList (ASNG_F(ASNPERG *asnperg) HomesOfList *home)
{
  pe_lenDet_al_clt64K_eq1 (listLen (&home->a_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->a_fld); a1; a1 = nextListItem (a1)){
      pe_Boolean (a1->val.bool);
    }
  }
  pe_lenDet_al_clt64K_eq1 (listLen (&home->b_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->b_fld); a1; a1 = nextListItem (a1)){
      pe_UTCTimeDT (a1->val.datetime);
    }
  }
  pe_lenDet_al_clt64K_eq1 (listLen (&home->c_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->c_fld); a1; a1 = nextListItem (a1)){
      pe_sint32_cwn_al_le255 (a1->val.ui8, 0, 7, 3);
    }
  }
  pe_lenDet_al_clt64K_eq1 (listLen (&home->d_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->d_fld); a1; a1 = nextListItem (a1)){
      pe_OctetString_al_u (&a1->val.dyns, 0, MAXLONG, 4);
    }
  }
  pe_lenDet_al_clt64K_eq1 (listLen (&home->e_fld), 2, 2, 0);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (&home->e_fld); a1; a1 = nextListItem (a1)){
      pe_KnownMultiCharStri_al_u (&a1->val.dyns, 0, 2147483647, 4, 8,
        TYP_IA5STR, 128, NULL);
    }
  }
}

void peAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_Boolean (home->a_fld);
  pe_NullType ();
  pe_sint32_cwn_al_le255 (home->c_fld, 0, 7, 3);
  pe_sint32_cwn_al_gt64K (home->d_fld, 0, 100000, 3, 2);
  pe_sint32_ucwn_al (home->e_fld);
  pe_BitString_al_fle16 (&home->f_fld, 12, 12, 0);
  pe_OctetString_al_clt64K_le255 (&home->g_fld, 1, 4, 2);
  pe_OctetString_al_u (&home->h_fld, 0, MAXLONG, 4);
  pe_UnknownMultiCharStri_al_u (&home->i_fld, 0, MAXLONG, 4);
  pe_ObjectIdentifier (&home->n_fld);
  pe_GeneralizedTimeDT (&home->o_fld);
  pe_UTCTimeDT (&home->p_fld);
  pe_KnownMultiCharStri_al_u (&home->q_fld, 0, 2147483647, 4, 4, TYP_NUMSTR,
    11, asnperNumStrChars);
  pe_KnownMultiCharStri_al_u (&home->r_fld, 0, 2147483647, 4, 8, TYP_PRISTR,
    74, NULL);
  pe_KnownMultiCharStri_al_u (&home->s_fld, 0, 2147483647, 4, 8, TYP_VISSTR,
    95, NULL);
  pe_KnownMultiCharStri_al_u (&home->t_fld, 0, 2147483647, 4, 8, TYP_IA5STR,
    128, NULL);
  pe_KnownMultiCharStri_al_u (&home->u_fld, 0, 2147483647, 4, 16, TYP_BMPSTR,
    65534, NULL);
  pe_Boolean (home->v_fld);
  pe_NullType ();
  peHomes (ASNG_F(asnperg) &home->x_fld);
  peHomesOfList (ASNG_F(asnperg) &home->y_fld);
}

void pecAll (ASNG_F(ASNPERG *asnperg) All *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  peAll (ASNG_F(asnperg) home);
  pe_end ();
}
