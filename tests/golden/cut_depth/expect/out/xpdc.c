/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutDepth
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

static void df1_q_q_a_a_a_a_T4 (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (getHomeG (asnperg_asnuti), home, &a1, VF_BOOL, 0);
    pd_Boolean (&a1->val.bool);
    incListLen (home);
    n--;
  }
}

void pdT4 (ASNG_F(ASNPERG *asnperg) T4 *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      home->a_fld.compmask = 0;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          home->a_fld.compmask |= BIT(0);
          home->a_fld.a_fld.compmask = 0;
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            if (optfield_2 & BITL(0)){
              home->a_fld.a_fld.compmask |= BIT(0);
              home->a_fld.a_fld.a_fld.compmask = 0;
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                if (optfield_3 & BITL(0)){
                  home->a_fld.a_fld.a_fld.compmask |= BIT(0);
                  home->a_fld.a_fld.a_fld.a_fld.compmask = 0;
                  {
                    sint32 optfield_4;
                    optfield_4 = pd_getBits (4);
                    if (optfield_4 & BITL(3)){
                      home->a_fld.a_fld.a_fld.a_fld.compmask |= BITL(0);
                      home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] = home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] = 0;
                      {
                        sint32 optfield_5[2];
                        optfield_5[1] = pd_getBits (1);
                        optfield_5[0] = pd_getBits (32);
                        if (optfield_5[1] & BITL(0)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(0);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(31)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(1);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(30)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(2);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(29)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(3);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(28)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(4);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(27)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(5);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(26)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(6);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(25)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(7);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(24)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(8);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(23)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(9);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(22)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(10);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(21)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(11);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(20)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(12);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(19)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(13);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(18)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(14);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(17)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(15);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(16)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(16);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(15)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(17);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(14)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(18);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(13)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(19);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(12)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(20);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(11)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(21);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(10)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(22);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(9)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(23);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(8)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(24);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(7)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(25);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(6)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(26);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(5)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(27);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(4)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(28);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(3)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(29);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(2)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(30);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(1)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(31);
                          pd_NullType ();
                        }
                        if (optfield_5[0] & BITL(0)){
                          home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] |= BITL(0);
                          pd_NullType ();
                        }
                      }
                    }
                    home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask = 0;
                    {
                      BOOLE extensionBit_5 = pd_extensionBit ();
                      sint32 optfield_5;
                      optfield_5 = pd_getBits (1);
                      if (optfield_5 & BITL(0)){
                        home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(0);
                        pd_Boolean (
                          &home->a_fld.a_fld.a_fld.a_fld.e_fld.a_fld);
                      }
                      if (extensionBit_5){
                        sint32 extensionAdditionField_5 = 0;
                        int extensionAdditionCount_5 =
                          pd_extensionAddition (3, &extensionAdditionField_5);
                        ASNPEROPENCTX openctx_5;
                        if (extensionAdditionField_5 & BITL(2)){
                          pd_BeginOpenType_al (&openctx_5);
                          home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(2);
                          pd_Boolean (
                            &home->a_fld.a_fld.a_fld.a_fld.e_fld.b_fld);
                          pd_EndOpenType_al (&openctx_5);
                        }
                        if (extensionAdditionField_5 & BITL(1)){
                          pd_BeginOpenType_al (&openctx_5);
                          home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(3);
                          pd_NullType ();
                          pd_EndOpenType_al (&openctx_5);
                        }
                        if (extensionAdditionField_5 & BITL(0)){
                          pd_BeginOpenType_al (&openctx_5);
                          home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(4);
                          pd_Boolean (
                            &home->a_fld.a_fld.a_fld.a_fld.e_fld.d_fld);
                          pd_EndOpenType_al (&openctx_5);
                        }
                        pd_SkipExtendedComponents (extensionAdditionCount_5);
                      }
                    }
                    home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask = 0;
                    {
                      BOOLE extensionBit_5 = pd_extensionBit ();
                      if (extensionBit_5){
                        sint32 extensionAdditionField_5 = 0;
                        int extensionAdditionCount_5 =
                          pd_extensionAddition (2, &extensionAdditionField_5);
                        ASNPEROPENCTX openctx_5;
                        if (extensionAdditionField_5 & BITL(1)){
                          pd_BeginOpenType_al (&openctx_5);
                          home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(1);
                          pd_NullType ();
                          pd_EndOpenType_al (&openctx_5);
                        }
                        if (extensionAdditionField_5 & BITL(0)){
                          pd_BeginOpenType_al (&openctx_5);
                          {
                            sint32 optfield_6;
                            optfield_6 = pd_getBits (2);
                            if (optfield_6 & BITL(1)){
                              home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(2);
                              pd_NullType ();
                            }
                            if (optfield_6 & BITL(0)){
                              home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(3);
                              pd_NullType ();
                            }
                          }
                          pd_EndOpenType_al (&openctx_5);
                        }
                        pd_SkipExtendedComponents (extensionAdditionCount_5);
                      }
                    }
                    {
                      ASNPEROPENCTX openctx_5;
                      {
                        BOOLE extensionBit_5 = pd_extensionBit ();
                        if (!extensionBit_5){
                          home->a_fld.a_fld.a_fld.a_fld.c_fld.choice =
                            pd_ChoiceIndex_al_le255 (1, 1);
                        }
                        else {
                          home->a_fld.a_fld.a_fld.a_fld.c_fld.choice = 3 +
                            pd_ChoiceIndex_al_ns ();
                        }
                        switch (home->a_fld.a_fld.a_fld.a_fld.c_fld.choice){
                          case 0:
                            {
                              pd_Boolean (
                                &home->a_fld.a_fld.a_fld.a_fld.c_fld.i1.a_fld);
                              break;
                            }
                          case 1:
                            {
                              pd_NullType ();
                              break;
                            }
                          case 3:
                            {
                              pd_BeginOpenType_al (&openctx_5);
                              pd_Boolean (
                                &home->a_fld.a_fld.a_fld.a_fld.c_fld.i1.c_fld);
                              pd_EndOpenType_al (&openctx_5);
                              break;
                            }
                          case 4:
                            {
                              pd_BeginOpenType_al (&openctx_5);
                              pd_NullType ();
                              pd_EndOpenType_al (&openctx_5);
                              break;
                            }
                          default:
                            {
                              home->a_fld.a_fld.a_fld.a_fld.c_fld.choice = 2;
                              pd_SkipExtendedComponents (1);
                            }
                        }
                      }
                    }
                    home->a_fld.a_fld.a_fld.a_fld.h_fld.choice =
                      (sint16)pd_ChoiceIndex_al_le255 (1, 1);
                    switch (home->a_fld.a_fld.a_fld.a_fld.h_fld.choice){
                      case 0:
                        {
                          pd_Boolean (
                            &home->a_fld.a_fld.a_fld.a_fld.h_fld.i1.a_fld);
                          break;
                        }
                      case 1:
                        {
                          pd_NullType ();
                          break;
                        }
                    }
                    staArrInit (&home->a_fld.a_fld.a_fld.a_fld.l_fld);
                    {
                      uint32 n1 = 0;
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      while (n1 < len_5){
                        pd_Boolean (
                          &home->a_fld.a_fld.a_fld.a_fld.l_fld.elem [n1]);
                        incStaArrLen (&home->a_fld.a_fld.a_fld.a_fld.l_fld);
                        n1++;
                      }
                    }
                    staArrInit (&home->a_fld.a_fld.a_fld.a_fld.m_fld);
                    {
                      uint32 n1 = 0;
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      if (len_5 > 4){
                        asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
                      }
                      while (n1 < len_5){
                        pd_Boolean (
                          &home->a_fld.a_fld.a_fld.a_fld.m_fld.elem [n1]);
                        incStaArrLen (&home->a_fld.a_fld.a_fld.a_fld.m_fld);
                        n1++;
                      }
                    }
                    staArrInit (&home->a_fld.a_fld.a_fld.a_fld.n_fld);
                    {
                      uint32 n1 = 0;
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      while (n1 < 4 && n1 < len_5){
                        pd_Boolean (
                          &home->a_fld.a_fld.a_fld.a_fld.n_fld.elem [n1]);
                        incStaArrLen (&home->a_fld.a_fld.a_fld.a_fld.n_fld);
                        n1++;
                      }
                      home->a_fld.a_fld.a_fld.a_fld.n_fld.nIgnored = 0;
                      {
                        while (n1 < len_5){
                          pi_Boolean ();
                          home->a_fld.a_fld.a_fld.a_fld.n_fld.nIgnored++;
                          n1++;
                        }
                      }
                    }
                    listInit (&home->a_fld.a_fld.a_fld.a_fld.p_fld);
                    {
                      ASNHOME *a1 = NULL;
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      while (listLen (&home->a_fld.a_fld.a_fld.a_fld.p_fld) <
                        len_5){
                        appendList (getHomeG (asnperg_asnuti),
                          &home->a_fld.a_fld.a_fld.a_fld.p_fld, &a1, VF_BOOL,
                          0);
                        pd_Boolean (&a1->val.bool);
                        incListLen (&home->a_fld.a_fld.a_fld.a_fld.p_fld);
                      }
                    }
                    listInit (&home->a_fld.a_fld.a_fld.a_fld.q_fld);
                    {
                      pd_ConstructFragmentedValue (
                        (BYTE_TYPE *)&home->a_fld.a_fld.a_fld.a_fld.q_fld,
                        df1_q_q_a_a_a_a_T4);
                    }
                    dynArrInit (&home->a_fld.a_fld.a_fld.a_fld.r_fld);
                    {
                      uint32 n1 = 0;
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 1, 10, 4);
                      if (len_5 > 0){
                        home->a_fld.a_fld.a_fld.a_fld.r_fld.elem = (BOOLE *)
                          allocAsn (getHomeG (asnperg_asnuti), MB_STG, len_5 *
                          sizeof (BOOLE));
                        if (home->a_fld.a_fld.a_fld.a_fld.r_fld.elem == NULL){
                          reportFatalError (LACK_OF_MEMORY);
                        }
                      }
                      while (n1 < len_5){
                        pd_Boolean (
                          &home->a_fld.a_fld.a_fld.a_fld.r_fld.elem [n1]);
                        incDynArrLen (&home->a_fld.a_fld.a_fld.a_fld.r_fld);
                        n1++;
                      }
                    }
                    sint32 index;
                    pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
                    switch (index) {
                      case 0:
                        home->a_fld.a_fld.a_fld.a_fld.eEnum_fld = 0;
                        break;
                      case 1:
                        home->a_fld.a_fld.a_fld.a_fld.eEnum_fld = 5;
                        break;
                      default:
                        break;
                    }
                    pd_sint32_cwn_al_le255
                      (&home->a_fld.a_fld.a_fld.a_fld.fEnum_fld, 0, 1, 1);
                    pd_sint32_cwn_al_le255_16
                      (&home->a_fld.a_fld.a_fld.a_fld.gEnum_fld, 0, 1, 1);
                    sint32 index;
                    pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
                    switch (index) {
                      case 0:
                        home->a_fld.a_fld.a_fld.a_fld.hEnum_fld = 0;
                        break;
                      case 1:
                        home->a_fld.a_fld.a_fld.a_fld.hEnum_fld = 5;
                        break;
                      default:
                        break;
                    }
                    pd_DynKnownMultiCharStri_al_u (
                      &home->a_fld.a_fld.a_fld.a_fld.i_fld, 0, 2147483647, 4,
                      4, TYP_IA5STR, BYTE_TYPE, 8, "abcdefgh");
                    pd_SegKnownMultiCharStri_al_u (
                      &home->a_fld.a_fld.a_fld.a_fld.j_fld, 0, 2147483647, 4,
                      4, TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
                    pd_KnownMultiCharStri_al_clt64K_le255 (
                      &home->a_fld.a_fld.a_fld.a_fld.k_fld, 10, 20, 4, 4,
                      TYP_NUMSTR, 11, asnperNumStrChars);
                    pd_SegKnownMultiCharStri_al_u (
                      &home->a_fld.a_fld.a_fld.a_fld.s_fld, 0, 2147483647, 4,
                      8, TYP_IA5STR, BYTE_TYPE, 128, NULL);
                    pd_SegKnownMultiCharStri_al_u (
                      &home->a_fld.a_fld.a_fld.a_fld.i2_fld, 0, 2147483647, 4,
                      4, TYP_IA5STR, BYTE_TYPE, 8, "abcdefgh");
                    pd_KnownMultiCharStri_al_clt64K_le255 (
                      &home->a_fld.a_fld.a_fld.a_fld.i3_fld, 10, 20, 4, 8,
                      TYP_PRISTR, 74, NULL);
                    pd_OctetString_al_clt64K_le255 (
                      &home->a_fld.a_fld.a_fld.a_fld.o2_fld, 10, 20, 4);
                    pd_sint32_cwn_al_le64K_16 (
                      &home->a_fld.a_fld.a_fld.a_fld.n2_fld, 10, 2000, 2);
                    home->a_fld.a_fld.a_fld.a_fld.t_fld.choice =
                      pd_ChoiceIndex_al_le255 (10, 4);
                    switch (home->a_fld.a_fld.a_fld.a_fld.t_fld.choice){
                      case 0:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 1:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 2:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 3:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 4:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 5:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 6:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 7:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 8:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 9:
                        {
                          pd_NullType ();
                          break;
                        }
                      case 10:
                        {
                          pd_NullType ();
                          break;
                        }
                    }
                    if (optfield_4 & BITL(2)){
                      createHome (getHomeG (asnperg_asnuti),
                        &home->a_fld.a_fld.a_fld.a_fld.u_fld, VF_DYNS, 0);
                      pushHomeG (asnperg_asnuti,
                        home->a_fld.a_fld.a_fld.a_fld.u_fld);
                      home->a_fld.a_fld.a_fld.a_fld.compmask |= BITL(24);
                      pd_DynOctetString_al_u (
                        &home->a_fld.a_fld.a_fld.a_fld.u_fld->val.dyns, 0,
                        MAXLONG, 4);
                      popHomeG (asnperg_asnuti);
                    }
                    if (optfield_4 & BITL(1)){
                      createHome (getHomeG (asnperg_asnuti),
                        &home->a_fld.a_fld.a_fld.a_fld.v_fld, VF_STRU,
                        sizeof (struct t_v_a_a_a_a_T4));
                      pushHomeG (asnperg_asnuti,
                        home->a_fld.a_fld.a_fld.a_fld.v_fld);
                      home->a_fld.a_fld.a_fld.a_fld.compmask |= BITL(25);
                      {
                        struct t_v_a_a_a_a_T4 *h1 =
                          (struct t_v_a_a_a_a_T4 *)home->a_fld.a_fld.a_fld.a_fld.v_fld->val.stru;
                        pd_DynOctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
                      }
                      popHomeG (asnperg_asnuti);
                    }
                    if (!(home->a_fld.a_fld.a_fld.a_fld.w_fld =
                      (struct t_w_a_a_a_a_T4 *)allocAsn (
                      getHomeG (asnperg_asnuti), MB_STG,
                      sizeof (struct t_w_a_a_a_a_T4)))){
                      reportFatalError (LACK_OF_MEMORY);
                    }
                    pd_DynOctetString_al_u (
                      &home->a_fld.a_fld.a_fld.a_fld.w_fld->x_fld, 0, MAXLONG,
                      4);
                    initExtensionmarker (
                      &home->a_fld.a_fld.a_fld.a_fld.x_fld.extensionmarker);
                    {
                      BOOLE extensionBit_5 = pd_extensionBit ();
                      pd_Boolean (&home->a_fld.a_fld.a_fld.a_fld.x_fld.a_fld);
                      if (extensionBit_5){
                        sint32 extensionAdditionField_5 = 0;
                        int extensionAdditionCount_5 =
                          pd_extensionAddition (0, &extensionAdditionField_5);
                        pd_SaveExtendedComponents (
                          &home->a_fld.a_fld.a_fld.a_fld.x_fld.extensionmarker,
                          extensionAdditionCount_5);
                      }
                    }
                    if (optfield_4 & BITL(0)){
                      createHome (getHomeG (asnperg_asnuti),
                        &home->a_fld.a_fld.a_fld.a_fld.y_fld, VF_UI8, 0);
                      home->a_fld.a_fld.a_fld.a_fld.compmask |= BITL(28);
                      pd_sint32_cwn_al_le255_8 (
                        &home->a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8, 0, 7, 3);
                    }
                    memset (&home->a_fld.a_fld.a_fld.a_fld.z_fld, 0,
                      sizeof (struct t_z_a_a_a_a_T4));
                    {
                      sint32 optfield_5;
                      optfield_5 = pd_getBits (1);
                      if (optfield_5 & BITL(0)){
                        createHome (getHomeG (asnperg_asnuti),
                          &home->a_fld.a_fld.a_fld.a_fld.z_fld.a_fld, VF_NULL,
                          0);
                        pd_NullType ();
                      }
                    }
                  }
                  if (!(home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(28))){
                    createHome (getHomeG (asnperg_asnuti),
                      &home->a_fld.a_fld.a_fld.a_fld.y_fld, VF_UI8, 0);
                    home->a_fld.a_fld.a_fld.a_fld.compmask |= BITL(28);
                    home->a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8 = 3;
                  }
                }
              }
            }
          }
        }
      }
    }
  }
}

static void df1_q_q_a_a_a_a_a_a_a_a_a_a_T10 (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (getHomeG (asnperg_asnuti), home, &a1, VF_BOOL, 0);
    pd_Boolean (&a1->val.bool);
    incListLen (home);
    n--;
  }
}

void pdT10 (ASNG_F(ASNPERG *asnperg) T10 *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      home->a_fld.compmask = 0;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          home->a_fld.compmask |= BIT(0);
          home->a_fld.a_fld.compmask = 0;
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            if (optfield_2 & BITL(0)){
              home->a_fld.a_fld.compmask |= BIT(0);
              home->a_fld.a_fld.a_fld.compmask = 0;
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                if (optfield_3 & BITL(0)){
                  home->a_fld.a_fld.a_fld.compmask |= BIT(0);
                  home->a_fld.a_fld.a_fld.a_fld.compmask = 0;
                  {
                    sint32 optfield_4;
                    optfield_4 = pd_getBits (1);
                    if (optfield_4 & BITL(0)){
                      home->a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                      home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                      {
                        sint32 optfield_5;
                        optfield_5 = pd_getBits (1);
                        if (optfield_5 & BITL(0)){
                          home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                          {
                            sint32 optfield_6;
                            optfield_6 = pd_getBits (1);
                            if (optfield_6 & BITL(0)){
                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                              {
                                sint32 optfield_7;
                                optfield_7 = pd_getBits (1);
                                if (optfield_7 & BITL(0)){
                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                  {
                                    sint32 optfield_8;
                                    optfield_8 = pd_getBits (1);
                                    if (optfield_8 & BITL(0)){
                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                      {
                                        sint32 optfield_9;
                                        optfield_9 = pd_getBits (1);
                                        if (optfield_9 & BITL(0)){
                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                          {
                                            sint32 optfield_10;
                                            optfield_10 = pd_getBits (4);
                                            if (optfield_10 & BITL(3)){
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(0);
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] = home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] = 0;
                                              {
                                                sint32 optfield_11[2];
                                                optfield_11[1]
                                                  = pd_getBits (1);
                                                optfield_11[0]
                                                  = pd_getBits (32);
                                                if (optfield_11[1] & BITL(0)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(0);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(31)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(1);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(30)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(2);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(29)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(3);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(28)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(4);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(27)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(5);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(26)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(6);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(25)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(7);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(24)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(8);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(23)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(9);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(22)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(10);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(21)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(11);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(20)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(12);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(19)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(13);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(18)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(14);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(17)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(15);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(16)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(16);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(15)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(17);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(14)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(18);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(13)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(19);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(12)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(20);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(11)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(21);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(10)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(22);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(9)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(23);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(8)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(24);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(7)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(25);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(6)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(26);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(5)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(27);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(4)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(28);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(3)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(29);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(2)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(30);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(1)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(31);
                                                  pd_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(0)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] |= BITL(0);
                                                  pd_NullType ();
                                                }
                                              }
                                            }
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask = 0;
                                            {
                                              BOOLE extensionBit_11 =
                                                pd_extensionBit ();
                                              sint32 optfield_11;
                                              optfield_11 = pd_getBits (1);
                                              if (optfield_11 & BITL(0)){
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(0);
                                                pd_Boolean (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.a_fld);
                                              }
                                              if (extensionBit_11){
                                                sint32 extensionAdditionField_11 = 0;
                                                int extensionAdditionCount_11 =
                                                  pd_extensionAddition (3,
                                                  &extensionAdditionField_11);
                                                ASNPEROPENCTX openctx_11;
                                                if (extensionAdditionField_11 &
                                                  BITL(2)){
                                                  pd_BeginOpenType_al (&
                                                    openctx_11);
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(2);
                                                  pd_Boolean (
                                                    &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.b_fld);
                                                  pd_EndOpenType_al (&
                                                    openctx_11);
                                                }
                                                if (extensionAdditionField_11 &
                                                  BITL(1)){
                                                  pd_BeginOpenType_al (&
                                                    openctx_11);
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(3);
                                                  pd_NullType ();
                                                  pd_EndOpenType_al (&
                                                    openctx_11);
                                                }
                                                if (extensionAdditionField_11 &
                                                  BITL(0)){
                                                  pd_BeginOpenType_al (&
                                                    openctx_11);
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(4);
                                                  pd_Boolean (
                                                    &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.d_fld);
                                                  pd_EndOpenType_al (&
                                                    openctx_11);
                                                }
                                                pd_SkipExtendedComponents (
                                                  extensionAdditionCount_11);
                                              }
                                            }
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask = 0;
                                            {
                                              BOOLE extensionBit_11 =
                                                pd_extensionBit ();
                                              if (extensionBit_11){
                                                sint32 extensionAdditionField_11 = 0;
                                                int extensionAdditionCount_11 =
                                                  pd_extensionAddition (2,
                                                  &extensionAdditionField_11);
                                                ASNPEROPENCTX openctx_11;
                                                if (extensionAdditionField_11 &
                                                  BITL(1)){
                                                  pd_BeginOpenType_al (&
                                                    openctx_11);
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(1);
                                                  pd_NullType ();
                                                  pd_EndOpenType_al (&
                                                    openctx_11);
                                                }
                                                if (extensionAdditionField_11 &
                                                  BITL(0)){
                                                  pd_BeginOpenType_al (&
                                                    openctx_11);
                                                  {
                                                    sint32 optfield_12;
                                                    optfield_12
                                                      = pd_getBits (2);
                                                    if (optfield_12 & BITL(1)){
                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(2);
                                                      pd_NullType ();
                                                    }
                                                    if (optfield_12 & BITL(0)){
                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(3);
                                                      pd_NullType ();
                                                    }
                                                  }
                                                  pd_EndOpenType_al (&
                                                    openctx_11);
                                                }
                                                pd_SkipExtendedComponents (
                                                  extensionAdditionCount_11);
                                              }
                                            }
                                            {
                                              ASNPEROPENCTX openctx_11;
                                              {
                                                BOOLE extensionBit_11 =
                                                  pd_extensionBit ();
                                                if (!extensionBit_11){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice =
                                                    pd_ChoiceIndex_al_le255 (1,
                                                    1);
                                                }
                                                else {
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice = 3 +
                                                    pd_ChoiceIndex_al_ns ();
                                                }
                                                switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice){
                                                  case 0:
                                                    {
                                                      pd_Boolean (
                                                        &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.a_fld);
                                                      break;
                                                    }
                                                  case 1:
                                                    {
                                                      pd_NullType ();
                                                      break;
                                                    }
                                                  case 3:
                                                    {
                                                      pd_BeginOpenType_al (&
                                                        openctx_11);
                                                      pd_Boolean (
                                                        &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.c_fld);
                                                      pd_EndOpenType_al (&
                                                        openctx_11);
                                                      break;
                                                    }
                                                  case 4:
                                                    {
                                                      pd_BeginOpenType_al (&
                                                        openctx_11);
                                                      pd_NullType ();
                                                      pd_EndOpenType_al (&
                                                        openctx_11);
                                                      break;
                                                    }
                                                  default:
                                                    {
                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice = 2;
                                                      pd_SkipExtendedComponents (
                                                        1);
                                                    }
                                                }
                                              }
                                            }
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice =
                                              (sint16)pd_ChoiceIndex_al_le255 (1,
                                              1);
                                            switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice){
                                              case 0:
                                                {
                                                  pd_Boolean (
                                                    &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.i1.a_fld);
                                                  break;
                                                }
                                              case 1:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                            }
                                            staArrInit (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld);
                                            {
                                              uint32 n1 = 0;
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              while (n1 < len_11){
                                                pd_Boolean (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld.elem [n1]);
                                                incStaArrLen (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld);
                                                n1++;
                                              }
                                            }
                                            staArrInit (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld);
                                            {
                                              uint32 n1 = 0;
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              if (len_11 > 4){
                                                asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
                                              }
                                              while (n1 < len_11){
                                                pd_Boolean (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld.elem [n1]);
                                                incStaArrLen (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld);
                                                n1++;
                                              }
                                            }
                                            staArrInit (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld);
                                            {
                                              uint32 n1 = 0;
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              while (n1 < 4 && n1 < len_11){
                                                pd_Boolean (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.elem [n1]);
                                                incStaArrLen (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld);
                                                n1++;
                                              }
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.nIgnored = 0;
                                              {
                                                while (n1 < len_11){
                                                  pi_Boolean ();
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.nIgnored++;
                                                  n1++;
                                                }
                                              }
                                            }
                                            listInit (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld);
                                            {
                                              ASNHOME *a1 = NULL;
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              while (listLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld) <
                                                len_11){
                                                appendList (
                                                  getHomeG (asnperg_asnuti),
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld,
                                                  &a1, VF_BOOL, 0);
                                                pd_Boolean (&a1->val.bool);
                                                incListLen (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld);
                                              }
                                            }
                                            listInit (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld);
                                            {
                                              pd_ConstructFragmentedValue (
                                                (BYTE_TYPE *)&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld,
                                                df1_q_q_a_a_a_a_a_a_a_a_a_a_T10);
                                            }
                                            dynArrInit (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld);
                                            {
                                              uint32 n1 = 0;
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 1, 10, 4);
                                              if (len_11 > 0){
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem =
                                                  (BOOLE *)allocAsn (
                                                  getHomeG (asnperg_asnuti),
                                                  MB_STG, len_11 *
                                                  sizeof (BOOLE));
                                                if (
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem == NULL){
                                                  reportFatalError (LACK_OF_MEMORY);
                                                }
                                              }
                                              while (n1 < len_11){
                                                pd_Boolean (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem [n1]);
                                                incDynArrLen (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld);
                                                n1++;
                                              }
                                            }
                                            sint32 index;
                                            pd_sint32_cwn_al_le255_8 (&index, 
                                              0, 1, 1);
                                            switch (index) {
                                              case 0:
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.eEnum_fld
                                                  = 0;
                                                break;
                                              case 1:
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.eEnum_fld
                                                  = 5;
                                                break;
                                              default:
                                                break;
                                            }
                                            pd_sint32_cwn_al_le255
                                              (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.fEnum_fld, 
                                              0, 1, 1);
                                            pd_sint32_cwn_al_le255_16
                                              (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.gEnum_fld, 
                                              0, 1, 1);
                                            sint32 index;
                                            pd_sint32_cwn_al_le255_16
                                              (&index, 0, 1, 1);
                                            switch (index) {
                                              case 0:
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.hEnum_fld
                                                  = 0;
                                                break;
                                              case 1:
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.hEnum_fld
                                                  = 5;
                                                break;
                                              default:
                                                break;
                                            }
                                            pd_DynKnownMultiCharStri_al_u (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i_fld,
                                              0, 2147483647, 4, 4, TYP_IA5STR,
                                              BYTE_TYPE, 8, "abcdefgh");
                                            pd_SegKnownMultiCharStri_al_u (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.j_fld,
                                              0, 2147483647, 4, 4, TYP_NUMSTR,
                                              BYTE_TYPE, 11, asnperNumStrChars);
                                            pd_KnownMultiCharStri_al_clt64K_le255 (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.k_fld,
                                              10, 20, 4, 4, TYP_NUMSTR, 11,
                                              asnperNumStrChars);
                                            pd_SegKnownMultiCharStri_al_u (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.s_fld,
                                              0, 2147483647, 4, 8, TYP_IA5STR,
                                              BYTE_TYPE, 128, NULL);
                                            pd_SegKnownMultiCharStri_al_u (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i2_fld,
                                              0, 2147483647, 4, 4, TYP_IA5STR,
                                              BYTE_TYPE, 8, "abcdefgh");
                                            pd_KnownMultiCharStri_al_clt64K_le255 (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i3_fld,
                                              10, 20, 4, 8, TYP_PRISTR, 74,
                                              NULL);
                                            pd_OctetString_al_clt64K_le255 (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o2_fld,
                                              10, 20, 4);
                                            pd_sint32_cwn_al_le64K_16 (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n2_fld,
                                              10, 2000, 2);
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice =
                                              pd_ChoiceIndex_al_le255 (10, 4);
                                            switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice){
                                              case 0:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 1:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 2:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 3:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 4:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 5:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 6:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 7:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 8:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 9:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                              case 10:
                                                {
                                                  pd_NullType ();
                                                  break;
                                                }
                                            }
                                            if (optfield_10 & BITL(2)){
                                              createHome (
                                                getHomeG (asnperg_asnuti),
                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld,
                                                VF_DYNS, 0);
                                              pushHomeG (asnperg_asnuti,
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld);
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(24);
                                              pd_DynOctetString_al_u (
                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld->val.dyns,
                                                0, MAXLONG, 4);
                                              popHomeG (asnperg_asnuti);
                                            }
                                            if (optfield_10 & BITL(1)){
                                              createHome (
                                                getHomeG (asnperg_asnuti),
                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld,
                                                VF_STRU,
                                                sizeof (struct t_v_a_a_a_a_a_a_a_a_a_a_T10));
                                              pushHomeG (asnperg_asnuti,
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld);
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(25);
                                              {
                                                struct t_v_a_a_a_a_a_a_a_a_a_a_T10 *h1 =
                                                  (struct t_v_a_a_a_a_a_a_a_a_a_a_T10 *)home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld->val.stru;
                                                pd_DynOctetString_al_u (
                                                  &h1->x_fld, 0, MAXLONG, 4);
                                              }
                                              popHomeG (asnperg_asnuti);
                                            }
                                            if (!(home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.w_fld =
                                              (struct t_w_a_a_a_a_a_a_a_a_a_a_T10 *)
                                              allocAsn (
                                              getHomeG (asnperg_asnuti),
                                              MB_STG,
                                              sizeof (struct t_w_a_a_a_a_a_a_a_a_a_a_T10)))){
                                              reportFatalError (LACK_OF_MEMORY);
                                            }
                                            pd_DynOctetString_al_u (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.w_fld->x_fld,
                                              0, MAXLONG, 4);
                                            initExtensionmarker (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.extensionmarker);
                                            {
                                              BOOLE extensionBit_11 =
                                                pd_extensionBit ();
                                              pd_Boolean (
                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.a_fld);
                                              if (extensionBit_11){
                                                sint32 extensionAdditionField_11 = 0;
                                                int extensionAdditionCount_11 =
                                                  pd_extensionAddition (0,
                                                  &extensionAdditionField_11);
                                                pd_SaveExtendedComponents (
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.extensionmarker,
                                                  extensionAdditionCount_11);
                                              }
                                            }
                                            if (optfield_10 & BITL(0)){
                                              createHome (
                                                getHomeG (asnperg_asnuti),
                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld,
                                                VF_UI8, 0);
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(28);
                                              pd_sint32_cwn_al_le255_8 (
                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8,
                                                0, 7, 3);
                                            }
                                            memset (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld,
                                              0,
                                              sizeof (struct t_z_a_a_a_a_a_a_a_a_a_a_T10));
                                            {
                                              sint32 optfield_11;
                                              optfield_11 = pd_getBits (1);
                                              if (optfield_11 & BITL(0)){
                                                createHome (
                                                  getHomeG (asnperg_asnuti),
                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld,
                                                  VF_NULL, 0);
                                                pd_NullType ();
                                              }
                                            }
                                          }
                                          if (!(home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(28))){
                                            createHome (
                                              getHomeG (asnperg_asnuti),
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.
                                              y_fld, VF_UI8, 0);
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(28);
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8 = 3;
                                          }
                                        }
                                      }
                                    }
                                  }
                                }
                              }
                            }
                          }
                        }
                      }
                    }
                  }
                }
              }
            }
          }
        }
      }
    }
  }
}

static void df1_q_q_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18 (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  LIST *home = (LIST *)*p;
  ASNHOME *a1;
  while (n){
    appendList (getHomeG (asnperg_asnuti), home, &a1, VF_BOOL, 0);
    pd_Boolean (&a1->val.bool);
    incListLen (home);
    n--;
  }
}

void pdT18 (ASNG_F(ASNPERG *asnperg) T18 *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(0);
      home->a_fld.compmask = 0;
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          home->a_fld.compmask |= BIT(0);
          home->a_fld.a_fld.compmask = 0;
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            if (optfield_2 & BITL(0)){
              home->a_fld.a_fld.compmask |= BIT(0);
              home->a_fld.a_fld.a_fld.compmask = 0;
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                if (optfield_3 & BITL(0)){
                  home->a_fld.a_fld.a_fld.compmask |= BIT(0);
                  home->a_fld.a_fld.a_fld.a_fld.compmask = 0;
                  {
                    sint32 optfield_4;
                    optfield_4 = pd_getBits (1);
                    if (optfield_4 & BITL(0)){
                      home->a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                      home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                      {
                        sint32 optfield_5;
                        optfield_5 = pd_getBits (1);
                        if (optfield_5 & BITL(0)){
                          home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                          {
                            sint32 optfield_6;
                            optfield_6 = pd_getBits (1);
                            if (optfield_6 & BITL(0)){
                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                              {
                                sint32 optfield_7;
                                optfield_7 = pd_getBits (1);
                                if (optfield_7 & BITL(0)){
                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                  {
                                    sint32 optfield_8;
                                    optfield_8 = pd_getBits (1);
                                    if (optfield_8 & BITL(0)){
                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                      {
                                        sint32 optfield_9;
                                        optfield_9 = pd_getBits (1);
                                        if (optfield_9 & BITL(0)){
                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                          {
                                            sint32 optfield_10;
                                            optfield_10 = pd_getBits (1);
                                            if (optfield_10 & BITL(0)){
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                              {
                                                sint32 optfield_11;
                                                optfield_11 = pd_getBits (1);
                                                if (optfield_11 & BITL(0)){
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                  {
                                                    sint32 optfield_12;
                                                    optfield_12
                                                      = pd_getBits (1);
                                                    if (optfield_12 & BITL(0)){
                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                      {
                                                        sint32 optfield_13;
                                                        optfield_13
                                                          = pd_getBits (1);
                                                        if (optfield_13
                                                          & BITL(0)){
                                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                          {
                                                            sint32 optfield_14;
                                                            optfield_14
                                                              = pd_getBits (1);
                                                            if (optfield_14
                                                              & BITL(0)){
                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                              {
                                                                sint32 
                                                                  optfield_15;
                                                                optfield_15
                                                                  = pd_getBits (1);
                                                                if (
                                                                  optfield_15
                                                                  & BITL(0)){
                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                                  {
                                                                    sint32 
                                                                      optfield_16;
                                                                    optfield_16
                                                                      = pd_getBits (1);
                                                                    if (
                                                                      optfield_16
                                                                      & BITL(0)){
                                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                                      {
                                                                        sint32 
                                                                          optfield_17;
                                                                        optfield_17
                                                                          = pd_getBits (1);
                                                                        if (
                                                                          optfield_17
                                                                          & BITL(0)){
                                                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BIT(0);
                                                                          home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask = 0;
                                                                          {
                                                                            sint32 
                                                                              optfield_18;
                                                                            optfield_18
                                                                              = pd_getBits (4);
                                                                            if (
                                                                              optfield_18
                                                                              & BITL(3)){
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(0);
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] = home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] = 0;
                                                                              {
                                                                                sint32 
                                                                                  optfield_19
                                                                                  [2];
                                                                                optfield_19
                                                                                  [1]
                                                                                  = pd_getBits (1);
                                                                                optfield_19
                                                                                  [0]
                                                                                  = pd_getBits (32);
                                                                                if (
                                                                                  optfield_19
                                                                                  [1]
                                                                                  & BITL(0)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(0);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(31)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(1);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(30)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(2);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(29)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(3);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(28)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(4);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(27)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(5);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(26)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(6);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(25)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(7);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(24)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(8);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(23)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(9);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(22)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(10);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(21)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(11);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(20)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(12);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(19)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(13);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(18)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(14);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(17)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(15);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(16)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(16);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(15)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(17);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(14)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(18);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(13)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(19);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(12)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(20);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(11)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(21);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(10)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(22);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(9)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(23);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(8)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(24);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(7)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(25);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(6)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(26);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(5)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(27);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(4)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(28);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(3)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(29);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(2)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(30);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(1)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] |= BITL(31);
                                                                                  pd_NullType ();
                                                                                }
                                                                                if (
                                                                                  optfield_19
                                                                                  [0]
                                                                                  & BITL(0)){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] |= BITL(0);
                                                                                  pd_NullType ();
                                                                                }
                                                                              }
                                                                            }
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask = 0;
                                                                            {
                                                                              BOOLE extensionBit_19 =
                                                                                pd_extensionBit ();
                                                                              sint32 
                                                                                optfield_19;
                                                                              optfield_19
                                                                                = pd_getBits (1);
                                                                              if (
                                                                                optfield_19
                                                                                & BITL(0)){
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(0);
                                                                                pd_Boolean (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.a_fld);
                                                                              }
                                                                              if (extensionBit_19){
                                                                                sint32 extensionAdditionField_19 = 0;
                                                                                int extensionAdditionCount_19 =
                                                                                  pd_extensionAddition (3,
                                                                                  &extensionAdditionField_19);
                                                                                ASNPEROPENCTX openctx_19;
                                                                                if (
                                                                                  extensionAdditionField_19 &
                                                                                  BITL(2)){
                                                                                  pd_BeginOpenType_al (&
                                                                                    openctx_19);
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(2);
                                                                                  pd_Boolean (
                                                                                    &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.b_fld);
                                                                                  pd_EndOpenType_al (&
                                                                                    openctx_19);
                                                                                }
                                                                                if (
                                                                                  extensionAdditionField_19 &
                                                                                  BITL(1)){
                                                                                  pd_BeginOpenType_al (&
                                                                                    openctx_19);
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(3);
                                                                                  pd_NullType ();
                                                                                  pd_EndOpenType_al (&
                                                                                    openctx_19);
                                                                                }
                                                                                if (
                                                                                  extensionAdditionField_19 &
                                                                                  BITL(0)){
                                                                                  pd_BeginOpenType_al (&
                                                                                    openctx_19);
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask |= BIT(4);
                                                                                  pd_Boolean (
                                                                                    &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.d_fld);
                                                                                  pd_EndOpenType_al (&
                                                                                    openctx_19);
                                                                                }
                                                                                pd_SkipExtendedComponents (
                                                                                  extensionAdditionCount_19);
                                                                              }
                                                                            }
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask = 0;
                                                                            {
                                                                              BOOLE extensionBit_19 =
                                                                                pd_extensionBit ();
                                                                              if (extensionBit_19){
                                                                                sint32 extensionAdditionField_19 = 0;
                                                                                int extensionAdditionCount_19 =
                                                                                  pd_extensionAddition (2,
                                                                                  &extensionAdditionField_19);
                                                                                ASNPEROPENCTX openctx_19;
                                                                                if (
                                                                                  extensionAdditionField_19 &
                                                                                  BITL(1)){
                                                                                  pd_BeginOpenType_al (&
                                                                                    openctx_19);
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(1);
                                                                                  pd_NullType ();
                                                                                  pd_EndOpenType_al (&
                                                                                    openctx_19);
                                                                                }
                                                                                if (
                                                                                  extensionAdditionField_19 &
                                                                                  BITL(0)){
                                                                                  pd_BeginOpenType_al (&
                                                                                    openctx_19);
                                                                                  {
                                                                                    sint32 
                                                                                      optfield_20;
                                                                                    optfield_20
                                                                                      = pd_getBits (2);
                                                                                    if (
                                                                                      optfield_20
                                                                                      & BITL(1)){
                                                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(2);
                                                                                      pd_NullType ();
                                                                                    }
                                                                                    if (
                                                                                      optfield_20
                                                                                      & BITL(0)){
                                                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask |= BIT(3);
                                                                                      pd_NullType ();
                                                                                    }
                                                                                  }
                                                                                  pd_EndOpenType_al (&
                                                                                    openctx_19);
                                                                                }
                                                                                pd_SkipExtendedComponents (
                                                                                  extensionAdditionCount_19);
                                                                              }
                                                                            }
                                                                            {
                                                                              ASNPEROPENCTX openctx_19;
                                                                              {
                                                                                BOOLE extensionBit_19 =
                                                                                  pd_extensionBit ();
                                                                                if (!extensionBit_19){
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice =
                                                                                    pd_ChoiceIndex_al_le255 (1,
                                                                                    1);
                                                                                }
                                                                                else {
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice = 3 +
                                                                                    pd_ChoiceIndex_al_ns ();
                                                                                }
                                                                                switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice){
                                                                                  case 0:
                                                                                    {
                                                                                      pd_Boolean (
                                                                                        &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.a_fld);
                                                                                      break;
                                                                                    }
                                                                                  case 1:
                                                                                    {
                                                                                      pd_NullType ();
                                                                                      break;
                                                                                    }
                                                                                  case 3:
                                                                                    {
                                                                                      pd_BeginOpenType_al (&
                                                                                        openctx_19);
                                                                                      pd_Boolean (
                                                                                        &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.c_fld);
                                                                                      pd_EndOpenType_al (&
                                                                                        openctx_19);
                                                                                      break;
                                                                                    }
                                                                                  case 4:
                                                                                    {
                                                                                      pd_BeginOpenType_al (&
                                                                                        openctx_19);
                                                                                      pd_NullType ();
                                                                                      pd_EndOpenType_al (&
                                                                                        openctx_19);
                                                                                      break;
                                                                                    }
                                                                                  default:
                                                                                    {
                                                                                      home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice = 2;
                                                                                      pd_SkipExtendedComponents (
                                                                                        1);
                                                                                    }
                                                                                }
                                                                              }
                                                                            }
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice =
                                                                              (sint16)pd_ChoiceIndex_al_le255 (1,
                                                                              1);
                                                                            switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice){
                                                                              case 0:
                                                                                {
                                                                                  pd_Boolean (
                                                                                    &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.i1.a_fld);
                                                                                  break;
                                                                                }
                                                                              case 1:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                            }
                                                                            staArrInit (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld);
                                                                            {
                                                                              uint32 n1 = 0;
                                                                              uint32 len_19;
                                                                              pd_lenDet_al_clt64K_le255 (&len_19, 0, 10, 4);
                                                                              while (n1 <
                                                                                len_19){
                                                                                pd_Boolean (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld.elem [n1]);
                                                                                incStaArrLen (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld);
                                                                                n1++;
                                                                              }
                                                                            }
                                                                            staArrInit (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld);
                                                                            {
                                                                              uint32 n1 = 0;
                                                                              uint32 len_19;
                                                                              pd_lenDet_al_clt64K_le255 (&len_19, 0, 10, 4);
                                                                              if (
                                                                                len_19 >
                                                                                4){
                                                                                asnPERError (ASNG_F(asnperg) ASN_PER_SKIPPED_ENCOUNTERED);
                                                                              }
                                                                              while (n1 <
                                                                                len_19){
                                                                                pd_Boolean (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld.elem [n1]);
                                                                                incStaArrLen (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld);
                                                                                n1++;
                                                                              }
                                                                            }
                                                                            staArrInit (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld);
                                                                            {
                                                                              uint32 n1 = 0;
                                                                              uint32 len_19;
                                                                              pd_lenDet_al_clt64K_le255 (&len_19, 0, 10, 4);
                                                                              while (n1 <
                                                                                4 &&
                                                                                n1 <
                                                                                len_19){
                                                                                pd_Boolean (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.elem [n1]);
                                                                                incStaArrLen (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld);
                                                                                n1++;
                                                                              }
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.nIgnored = 0;
                                                                              {
                                                                                while (n1 <
                                                                                  len_19){
                                                                                  pi_Boolean ();
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.nIgnored++;
                                                                                  n1++;
                                                                                }
                                                                              }
                                                                            }
                                                                            listInit (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld);
                                                                            {
                                                                              ASNHOME *a1 = NULL;
                                                                              uint32 len_19;
                                                                              pd_lenDet_al_clt64K_le255 (&len_19, 0, 10, 4);
                                                                              while (listLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld) <
                                                                                len_19){
                                                                                appendList (
                                                                                  getHomeG (asnperg_asnuti),
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld,
                                                                                  &a1,
                                                                                  VF_BOOL,
                                                                                  0);
                                                                                pd_Boolean (
                                                                                  &a1->val.bool);
                                                                                incListLen (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld);
                                                                              }
                                                                            }
                                                                            listInit (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld);
                                                                            {
                                                                              pd_ConstructFragmentedValue (
                                                                                (BYTE_TYPE *)&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld,
                                                                                df1_q_q_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18);
                                                                            }
                                                                            dynArrInit (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld);
                                                                            {
                                                                              uint32 n1 = 0;
                                                                              uint32 len_19;
                                                                              pd_lenDet_al_clt64K_le255 (&len_19, 1, 10, 4);
                                                                              if (len_19 > 0){
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem =
                                                                                  (BOOLE *)
                                                                                  allocAsn (
                                                                                  getHomeG (asnperg_asnuti),
                                                                                  MB_STG, 
                                                                                  len_19 *
                                                                                  sizeof (BOOLE));
                                                                                if (
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem == NULL){
                                                                                  reportFatalError (LACK_OF_MEMORY);
                                                                                }
                                                                              }
                                                                              while (n1 <
                                                                                len_19){
                                                                                pd_Boolean (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem [n1]);
                                                                                incDynArrLen (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld);
                                                                                n1++;
                                                                              }
                                                                            }
                                                                            sint32 index;
                                                                            pd_sint32_cwn_al_
                                                                              le255_8
                                                                              (&index, 
                                                                              0, 1, 1);
                                                                            switch (index) {
                                                                              case 0:
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.eEnum_fld
                                                                                  = 0;
                                                                                break;
                                                                              case 1:
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.eEnum_fld
                                                                                  = 5;
                                                                                break;
                                                                              default:
                                                                                break;
                                                                            }
                                                                            pd_sint32_cwn_al_
                                                                              le255
                                                                              (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.fEnum_fld, 
                                                                              0, 1, 1);
                                                                            pd_sint32_cwn_al_
                                                                              le255
                                                                              _16
                                                                              (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.gEnum_fld, 
                                                                              0, 1, 1);
                                                                            sint32 index;
                                                                            pd_sint32_cwn_al_
                                                                              le255
                                                                              _16
                                                                              (&index, 
                                                                              0, 1, 1);
                                                                            switch (index) {
                                                                              case 0:
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.hEnum_fld
                                                                                  = 0;
                                                                                break;
                                                                              case 1:
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.hEnum_fld
                                                                                  = 5;
                                                                                break;
                                                                              default:
                                                                                break;
                                                                            }
                                                                            pd_DynKnownMultiCharStri_al_u (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i_fld,
                                                                              0,
                                                                              2147483647,
                                                                              4,
                                                                              4,
                                                                              TYP_IA5STR,
                                                                              BYTE_TYPE,
                                                                              8, "abcdefgh");
                                                                            pd_SegKnownMultiCharStri_al_u (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.j_fld,
                                                                              0,
                                                                              2147483647,
                                                                              4,
                                                                              4,
                                                                              TYP_NUMSTR,
                                                                              BYTE_TYPE,
                                                                              11,
                                                                              asnperNumStrChars);
                                                                            pd_KnownMultiCharStri_al_clt64K_le255 (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.k_fld,
                                                                              10,
                                                                              20,
                                                                              4,
                                                                              4,
                                                                              TYP_NUMSTR,
                                                                              11,
                                                                              asnperNumStrChars);
                                                                            pd_SegKnownMultiCharStri_al_u (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.s_fld,
                                                                              0,
                                                                              2147483647,
                                                                              4,
                                                                              8,
                                                                              TYP_IA5STR,
                                                                              BYTE_TYPE,
                                                                              128,
                                                                              NULL);
                                                                            pd_SegKnownMultiCharStri_al_u (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i2_fld,
                                                                              0,
                                                                              2147483647,
                                                                              4,
                                                                              4,
                                                                              TYP_IA5STR,
                                                                              BYTE_TYPE,
                                                                              8, "abcdefgh");
                                                                            pd_KnownMultiCharStri_al_clt64K_le255 (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i3_fld,
                                                                              10,
                                                                              20,
                                                                              4,
                                                                              8,
                                                                              TYP_PRISTR,
                                                                              74,
                                                                              NULL);
                                                                            pd_OctetString_al_clt64K_le255 (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o2_fld,
                                                                              10,
                                                                              20,
                                                                              4);
                                                                            pd_sint32_cwn_al_le64K_16 (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n2_fld,
                                                                              10,
                                                                              2000, 2);
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice =
                                                                              pd_ChoiceIndex_al_le255 (
                                                                              10,
                                                                              4);
                                                                            switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice){
                                                                              case 0:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 1:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 2:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 3:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 4:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 5:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 6:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 7:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 8:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 9:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                              case 10:
                                                                                {
                                                                                  pd_NullType ();
                                                                                  break;
                                                                                }
                                                                            }
                                                                            if (
                                                                              optfield_18
                                                                              & BITL(2)){
                                                                              createHome (
                                                                                getHomeG (asnperg_asnuti),
                                                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld,
                                                                                VF_DYNS,
                                                                                0);
                                                                              pushHomeG (
                                                                                asnperg_asnuti,
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld);
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(24);
                                                                              pd_DynOctetString_al_u (
                                                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld->val.dyns,
                                                                                0,
                                                                                MAXLONG,
                                                                                4);
                                                                              popHomeG (
                                                                                asnperg_asnuti);
                                                                            }
                                                                            if (
                                                                              optfield_18
                                                                              & BITL(1)){
                                                                              createHome (
                                                                                getHomeG (asnperg_asnuti),
                                                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld,
                                                                                VF_STRU,
                                                                                sizeof (struct t_v_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18));
                                                                              pushHomeG (
                                                                                asnperg_asnuti,
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld);
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(25);
                                                                              {
                                                                                struct t_v_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18 *h1 =
                                                                                  (struct t_v_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18 *)home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld->val.stru;
                                                                                pd_DynOctetString_al_u (
                                                                                  &h1->x_fld,
                                                                                  0,
                                                                                  MAXLONG,
                                                                                  4);
                                                                              }
                                                                              popHomeG (
                                                                                asnperg_asnuti);
                                                                            }
                                                                            if (!(home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.w_fld =
                                                                              (struct t_w_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18 *)
                                                                              allocAsn (
                                                                              getHomeG (asnperg_asnuti),
                                                                              MB_STG,
                                                                              sizeof (struct t_w_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18)))){
                                                                              reportFatalError (LACK_OF_MEMORY);
                                                                            }
                                                                            pd_DynOctetString_al_u (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.w_fld->x_fld,
                                                                              0,
                                                                              MAXLONG,
                                                                              4);
                                                                            initExtensionmarker (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.extensionmarker);
                                                                            {
                                                                              BOOLE extensionBit_19 =
                                                                                pd_extensionBit ();
                                                                              pd_Boolean (
                                                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.a_fld);
                                                                              if (extensionBit_19){
                                                                                sint32 extensionAdditionField_19 = 0;
                                                                                int extensionAdditionCount_19 =
                                                                                  pd_extensionAddition (0,
                                                                                  &extensionAdditionField_19);
                                                                                pd_SaveExtendedComponents (
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.extensionmarker,
                                                                                  extensionAdditionCount_19);
                                                                              }
                                                                            }
                                                                            if (
                                                                              optfield_18
                                                                              & BITL(0)){
                                                                              createHome (
                                                                                getHomeG (asnperg_asnuti),
                                                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld,
                                                                                VF_UI8,
                                                                                0);
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(28);
                                                                              pd_sint32_cwn_al_le255_8 (
                                                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8,
                                                                                0,
                                                                                7, 3);
                                                                            }
                                                                            memset (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld,
                                                                              0,
                                                                              sizeof (struct t_z_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18));
                                                                            {
                                                                              sint32 
                                                                                optfield_19;
                                                                              optfield_19
                                                                                = pd_getBits (1);
                                                                              if (
                                                                                optfield_19
                                                                                & BITL(0)){
                                                                                createHome (
                                                                                  getHomeG (asnperg_asnuti),
                                                                                  &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld,
                                                                                  VF_NULL,
                                                                                  0);
                                                                                pd_NullType ();
                                                                              }
                                                                            }
                                                                          }
                                                                          if (!(home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(28))){
                                                                            createHome (
                                                                              getHomeG (asnperg_asnuti),
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.
                                                                              y_fld
                                                                              , VF_UI8,
                                                                              0);
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask |= BITL(28);
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8 = 3;
                                                                          }
                                                                        }
                                                                      }
                                                                    }
                                                                  }
                                                                }
                                                              }
                                                            }
                                                          }
                                                        }
                                                      }
                                                    }
                                                  }
                                                }
                                              }
                                            }
                                          }
                                        }
                                      }
                                    }
                                  }
                                }
                              }
                            }
                          }
                        }
                      }
                    }
                  }
                }
              }
            }
          }
        }
      }
    }
  }
}
