/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutSkipDepth
 * FILE = xpdc.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

static void if1_q_q_a_a_a_a_T4 (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void piT4 (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            if (optfield_2 & BITL(0)){
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                if (optfield_3 & BITL(0)){
                  {
                    sint32 optfield_4;
                    optfield_4 = pd_getBits (4);
                    if (optfield_4 & BITL(3)){
                      {
                        sint32 optfield_5[2];
                        optfield_5[1] = pd_getBits (1);
                        optfield_5[0] = pd_getBits (32);
                        if (optfield_5[1] & BITL(0)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(31)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(30)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(29)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(28)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(27)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(26)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(25)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(24)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(23)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(22)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(21)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(20)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(19)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(18)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(17)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(16)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(15)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(14)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(13)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(12)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(11)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(10)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(9)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(8)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(7)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(6)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(5)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(4)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(3)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(2)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(1)){
                          pi_NullType ();
                        }
                        if (optfield_5[0] & BITL(0)){
                          pi_NullType ();
                        }
                      }
                    }
                    {
                      BOOLE extensionBit_5 = pd_extensionBit ();
                      sint32 optfield_5;
                      optfield_5 = pd_getBits (1);
                      if (optfield_5 & BITL(0)){
                        pi_Boolean ();
                      }
                      if (extensionBit_5){
                        pi_SkipExtendedComponents ();
                      }
                    }
                    {
                      BOOLE extensionBit_5 = pd_extensionBit ();
                      if (extensionBit_5){
                        pi_SkipExtendedComponents ();
                      }
                    }
                    {
                      sint8 choice_5;
                      BOOLE extensionBit_5 = pd_extensionBit ();
                      if (!extensionBit_5){
                        choice_5 = pd_ChoiceIndex_al_le255 (1, 1);
                      }
                      else {
                        choice_5 = 3 + pd_ChoiceIndex_al_ns ();
                      }
                      switch (choice_5){
                        case 0:
                          {
                            pi_Boolean ();
                            break;
                          }
                        case 1:
                          {
                            pi_NullType ();
                            break;
                          }
                        default:
                          {
                            pd_SkipExtendedComponents (1);
                          }
                      }
                    }
                    {
                      sint8 choice_5;
                      choice_5 = pd_ChoiceIndex_al_le255 (1, 1);
                      switch (choice_5){
                        case 0:
                          {
                            pi_Boolean ();
                            break;
                          }
                        case 1:
                          {
                            pi_NullType ();
                            break;
                          }
                      }
                    }
                    {
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      while (len_5 > 0){
                        --len_5;
                        pi_Boolean ();
                      }
                    }
                    {
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      while (len_5 > 0){
                        --len_5;
                        pi_Boolean ();
                      }
                    }
                    {
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      while (len_5 > 0){
                        --len_5;
                        pi_Boolean ();
                      }
                    }
                    {
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 0, 10, 4);
                      while (len_5 > 0){
                        --len_5;
                        pi_Boolean ();
                      }
                    }
                    {
                      (void)pd_ConstructFragmentedValue (NULL,
                        if1_q_q_a_a_a_a_T4);
                    }
                    {
                      uint32 len_5;
                      pd_lenDet_al_clt64K_le255 (&len_5, 1, 10, 4);
                      while (len_5 > 0){
                        --len_5;
                        pi_Boolean ();
                      }
                    }
                    {
                      sint32 *home = &asnperg_ignTemp;
                      sint32 index;
                      pd_sint32_cwn_al_le255_8 (&index, 0, 1, 1);
                      switch (index) {
                        case 0:
                          *home = 0;
                          break;
                        case 1:
                          *home = 5;
                          break;
                        default:
                          break;
                      }
                    }
                    {
                      sint32 *home = &asnperg_ignTemp;
                      pd_sint32_cwn_al_le255 (home, 0, 1, 1);
                    }
                    {
                      sint32 *home = &asnperg_ignTemp;
                      pd_sint32_cwn_al_le255_16 (home, 0, 1, 1);
                    }
                    {
                      sint32 *home = &asnperg_ignTemp;
                      sint32 index;
                      pd_sint32_cwn_al_le255_16 (&index, 0, 1, 1);
                      switch (index) {
                        case 0:
                          *home = 0;
                          break;
                        case 1:
                          *home = 5;
                          break;
                        default:
                          break;
                      }
                    }
                    pi_KnownMultiCharStri_al_u (0, 2147483647, 4, 4,
                      TYP_IA5STR, 8, "abcdefgh");
                    pi_SegKnownMultiCharStri_al_u (0, 2147483647, 4, 4,
                      TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
                    pi_KnownMultiCharStri_al_clt64K_le255 (10, 20, 4, 4,
                      TYP_NUMSTR, 11, asnperNumStrChars);
                    pi_SegKnownMultiCharStri_al_u (0, 2147483647, 4, 8,
                      TYP_IA5STR, BYTE_TYPE, 128, NULL);
                    pi_SegKnownMultiCharStri_al_u (0, 2147483647, 4, 4,
                      TYP_IA5STR, BYTE_TYPE, 8, "abcdefgh");
                    pi_KnownMultiCharStri_al_clt64K_le255 (10, 20, 4, 8,
                      TYP_PRISTR, 74, NULL);
                    pi_OctetString_al_clt64K_le255 (10, 20, 4);
                    pi_sint32_cwn_al_le64K_16 (10, 2000, 2);
                    {
                      sint8 choice_5;
                      choice_5 = pd_ChoiceIndex_al_le255 (10, 4);
                      switch (choice_5){
                        case 0:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 1:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 2:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 3:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 4:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 5:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 6:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 7:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 8:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 9:
                          {
                            pi_NullType ();
                            break;
                          }
                        case 10:
                          {
                            pi_NullType ();
                            break;
                          }
                      }
                    }
                    if (optfield_4 & BITL(2)){
                      pi_OctetString_al_u (0, MAXLONG, 4);
                    }
                    if (optfield_4 & BITL(1)){
                      pi_OctetString_al_u (0, MAXLONG, 4);
                    }
                    pi_OctetString_al_u (0, MAXLONG, 4);
                    {
                      BOOLE extensionBit_5 = pd_extensionBit ();
                      pi_Boolean ();
                      if (extensionBit_5){
                        pi_SkipExtendedComponents ();
                      }
                    }
                    if (optfield_4 & BITL(0)){
                      pi_sint32_cwn_al_le255_8 (0, 7, 3);
                    }
                    {
                      sint32 optfield_5;
                      optfield_5 = pd_getBits (1);
                      if (optfield_5 & BITL(0)){
                        pi_NullType ();
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

static void if1_q_q_a_a_a_a_a_a_a_a_a_a_T10 (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void piT10 (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            if (optfield_2 & BITL(0)){
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                if (optfield_3 & BITL(0)){
                  {
                    sint32 optfield_4;
                    optfield_4 = pd_getBits (1);
                    if (optfield_4 & BITL(0)){
                      {
                        sint32 optfield_5;
                        optfield_5 = pd_getBits (1);
                        if (optfield_5 & BITL(0)){
                          {
                            sint32 optfield_6;
                            optfield_6 = pd_getBits (1);
                            if (optfield_6 & BITL(0)){
                              {
                                sint32 optfield_7;
                                optfield_7 = pd_getBits (1);
                                if (optfield_7 & BITL(0)){
                                  {
                                    sint32 optfield_8;
                                    optfield_8 = pd_getBits (1);
                                    if (optfield_8 & BITL(0)){
                                      {
                                        sint32 optfield_9;
                                        optfield_9 = pd_getBits (1);
                                        if (optfield_9 & BITL(0)){
                                          {
                                            sint32 optfield_10;
                                            optfield_10 = pd_getBits (4);
                                            if (optfield_10 & BITL(3)){
                                              {
                                                sint32 optfield_11[2];
                                                optfield_11[1]
                                                  = pd_getBits (1);
                                                optfield_11[0]
                                                  = pd_getBits (32);
                                                if (optfield_11[1] & BITL(0)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(31)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(30)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(29)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(28)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(27)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(26)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(25)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(24)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(23)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(22)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(21)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(20)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(19)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(18)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(17)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(16)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(15)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(14)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(13)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(12)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(11)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(10)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(9)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(8)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(7)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(6)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(5)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(4)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(3)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(2)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(1)){
                                                  pi_NullType ();
                                                }
                                                if (optfield_11[0] & BITL(0)){
                                                  pi_NullType ();
                                                }
                                              }
                                            }
                                            {
                                              BOOLE extensionBit_11 =
                                                pd_extensionBit ();
                                              sint32 optfield_11;
                                              optfield_11 = pd_getBits (1);
                                              if (optfield_11 & BITL(0)){
                                                pi_Boolean ();
                                              }
                                              if (extensionBit_11){
                                                pi_SkipExtendedComponents ();
                                              }
                                            }
                                            {
                                              BOOLE extensionBit_11 =
                                                pd_extensionBit ();
                                              if (extensionBit_11){
                                                pi_SkipExtendedComponents ();
                                              }
                                            }
                                            {
                                              sint8 choice_11;
                                              BOOLE extensionBit_11 =
                                                pd_extensionBit ();
                                              if (!extensionBit_11){
                                                choice_11 =
                                                  pd_ChoiceIndex_al_le255 (1,
                                                  1);
                                              }
                                              else {
                                                choice_11 = 3 +
                                                  pd_ChoiceIndex_al_ns ();
                                              }
                                              switch (choice_11){
                                                case 0:
                                                  {
                                                    pi_Boolean ();
                                                    break;
                                                  }
                                                case 1:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                default:
                                                  {
                                                    pd_SkipExtendedComponents (1);
                                                  }
                                              }
                                            }
                                            {
                                              sint8 choice_11;
                                              choice_11 =
                                                pd_ChoiceIndex_al_le255 (1, 1);
                                              switch (choice_11){
                                                case 0:
                                                  {
                                                    pi_Boolean ();
                                                    break;
                                                  }
                                                case 1:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                              }
                                            }
                                            {
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              while (len_11 > 0){
                                                --len_11;
                                                pi_Boolean ();
                                              }
                                            }
                                            {
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              while (len_11 > 0){
                                                --len_11;
                                                pi_Boolean ();
                                              }
                                            }
                                            {
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              while (len_11 > 0){
                                                --len_11;
                                                pi_Boolean ();
                                              }
                                            }
                                            {
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 0, 10, 4);
                                              while (len_11 > 0){
                                                --len_11;
                                                pi_Boolean ();
                                              }
                                            }
                                            {
                                              (void)pd_ConstructFragmentedValue (NULL,
                                                if1_q_q_a_a_a_a_a_a_a_a_a_a_T10);
                                            }
                                            {
                                              uint32 len_11;
                                              pd_lenDet_al_clt64K_le255 (&len_11, 1, 10, 4);
                                              while (len_11 > 0){
                                                --len_11;
                                                pi_Boolean ();
                                              }
                                            }
                                            {
                                              sint32 *home = &asnperg_ignTemp;
                                              sint32 index;
                                              pd_sint32_cwn_al_le255_8
                                                (&index, 0, 1, 1);
                                              switch (index) {
                                                case 0:
                                                  *home = 0;
                                                  break;
                                                case 1:
                                                  *home = 5;
                                                  break;
                                                default:
                                                  break;
                                              }
                                            }
                                            {
                                              sint32 *home = &asnperg_ignTemp;
                                              pd_sint32_cwn_al_le255 (home, 
                                                0, 1, 1);
                                            }
                                            {
                                              sint32 *home = &asnperg_ignTemp;
                                              pd_sint32_cwn_al_le255_16
                                                (home, 0, 1, 1);
                                            }
                                            {
                                              sint32 *home = &asnperg_ignTemp;
                                              sint32 index;
                                              pd_sint32_cwn_al_le255_16
                                                (&index, 0, 1, 1);
                                              switch (index) {
                                                case 0:
                                                  *home = 0;
                                                  break;
                                                case 1:
                                                  *home = 5;
                                                  break;
                                                default:
                                                  break;
                                              }
                                            }
                                            pi_KnownMultiCharStri_al_u (0,
                                              2147483647, 4, 4, TYP_IA5STR, 8, "abcdefgh");
                                            pi_SegKnownMultiCharStri_al_u (0,
                                              2147483647, 4, 4, TYP_NUMSTR,
                                              BYTE_TYPE, 11, asnperNumStrChars);
                                            pi_KnownMultiCharStri_al_clt64K_le255 (
                                              10, 20, 4, 4, TYP_NUMSTR, 11,
                                              asnperNumStrChars);
                                            pi_SegKnownMultiCharStri_al_u (0,
                                              2147483647, 4, 8, TYP_IA5STR,
                                              BYTE_TYPE, 128, NULL);
                                            pi_SegKnownMultiCharStri_al_u (0,
                                              2147483647, 4, 4, TYP_IA5STR,
                                              BYTE_TYPE, 8, "abcdefgh");
                                            pi_KnownMultiCharStri_al_clt64K_le255 (
                                              10, 20, 4, 8, TYP_PRISTR, 74,
                                              NULL);
                                            pi_OctetString_al_clt64K_le255 (
                                              10, 20, 4);
                                            pi_sint32_cwn_al_le64K_16 (10,
                                              2000, 2);
                                            {
                                              sint8 choice_11;
                                              choice_11 =
                                                pd_ChoiceIndex_al_le255 (10,
                                                4);
                                              switch (choice_11){
                                                case 0:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 1:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 2:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 3:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 4:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 5:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 6:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 7:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 8:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 9:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                                case 10:
                                                  {
                                                    pi_NullType ();
                                                    break;
                                                  }
                                              }
                                            }
                                            if (optfield_10 & BITL(2)){
                                              pi_OctetString_al_u (0, MAXLONG,
                                                4);
                                            }
                                            if (optfield_10 & BITL(1)){
                                              pi_OctetString_al_u (0, MAXLONG,
                                                4);
                                            }
                                            pi_OctetString_al_u (0, MAXLONG,
                                              4);
                                            {
                                              BOOLE extensionBit_11 =
                                                pd_extensionBit ();
                                              pi_Boolean ();
                                              if (extensionBit_11){
                                                pi_SkipExtendedComponents ();
                                              }
                                            }
                                            if (optfield_10 & BITL(0)){
                                              pi_sint32_cwn_al_le255_8 (0, 7, 3);
                                            }
                                            {
                                              sint32 optfield_11;
                                              optfield_11 = pd_getBits (1);
                                              if (optfield_11 & BITL(0)){
                                                pi_NullType ();
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

static void
  if1_q_q_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T27 (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  while (n){
    pi_Boolean ();
    n--;
  }
}

void piT27 (ASNG_L(ASNPERG *asnperg))
{
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    if (optfield_0 & BITL(0)){
      {
        sint32 optfield_1;
        optfield_1 = pd_getBits (1);
        if (optfield_1 & BITL(0)){
          {
            sint32 optfield_2;
            optfield_2 = pd_getBits (1);
            if (optfield_2 & BITL(0)){
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                if (optfield_3 & BITL(0)){
                  {
                    sint32 optfield_4;
                    optfield_4 = pd_getBits (1);
                    if (optfield_4 & BITL(0)){
                      {
                        sint32 optfield_5;
                        optfield_5 = pd_getBits (1);
                        if (optfield_5 & BITL(0)){
                          {
                            sint32 optfield_6;
                            optfield_6 = pd_getBits (1);
                            if (optfield_6 & BITL(0)){
                              {
                                sint32 optfield_7;
                                optfield_7 = pd_getBits (1);
                                if (optfield_7 & BITL(0)){
                                  {
                                    sint32 optfield_8;
                                    optfield_8 = pd_getBits (1);
                                    if (optfield_8 & BITL(0)){
                                      {
                                        sint32 optfield_9;
                                        optfield_9 = pd_getBits (1);
                                        if (optfield_9 & BITL(0)){
                                          {
                                            sint32 optfield_10;
                                            optfield_10 = pd_getBits (1);
                                            if (optfield_10 & BITL(0)){
                                              {
                                                sint32 optfield_11;
                                                optfield_11 = pd_getBits (1);
                                                if (optfield_11 & BITL(0)){
                                                  {
                                                    sint32 optfield_12;
                                                    optfield_12
                                                      = pd_getBits (1);
                                                    if (optfield_12 & BITL(0)){
                                                      {
                                                        sint32 optfield_13;
                                                        optfield_13
                                                          = pd_getBits (1);
                                                        if (optfield_13
                                                          & BITL(0)){
                                                          {
                                                            sint32 optfield_14;
                                                            optfield_14
                                                              = pd_getBits (1);
                                                            if (optfield_14
                                                              & BITL(0)){
                                                              {
                                                                sint32 
                                                                  optfield_15;
                                                                optfield_15
                                                                  = pd_getBits (1);
                                                                if (
                                                                  optfield_15
                                                                  & BITL(0)){
                                                                  {
                                                                    sint32 
                                                                      optfield_16;
                                                                    optfield_16
                                                                      = pd_getBits (1);
                                                                    if (
                                                                      optfield_16
                                                                      & BITL(0)){
                                                                      {
                                                                        sint32 
                                                                          optfield_17;
                                                                        optfield_17
                                                                          = pd_getBits (1);
                                                                        if (
                                                                          optfield_17
                                                                          & BITL(0)){
                                                                          {
                                                                            sint32 
                                                                              optfield_18;
                                                                            optfield_18
                                                                              = pd_getBits (1);
                                                                            if (
                                                                              optfield_18
                                                                              & BITL(0)){
                                                                              {
                                                                                sint32 
                                                                                  optfield_19;
                                                                                optfield_19
                                                                                  = pd_getBits (1);
                                                                                if (
                                                                                  optfield_19
                                                                                  & BITL(0)){
                                                                                  {
                                                                                    sint32 
                                                                                      optfield_20;
                                                                                    optfield_20
                                                                                      = pd_getBits (1);
                                                                                    if (
                                                                                      optfield_20
                                                                                      & BITL(0)){
                                                                                      {
                                                                                        sint32 
                                                                                          optfield_21;
                                                                                        optfield_21
                                                                                          = pd_getBits (1);
                                                                                        if (
                                                                                          optfield_21
                                                                                          & BITL(0)){
                                                                                          {
                                                                                            sint32 
                                                                                              optfield_22;
                                                                                            optfield_22
                                                                                              = pd_getBits (1);
                                                                                            if (
                                                                                              optfield_22
                                                                                              & BITL(0)){
                                                                                              {
                                                                                                sint32 
                                                                                                  optfield_23;
                                                                                                optfield_23
                                                                                                  = pd_getBits (1);
                                                                                                if (
                                                                                                  optfield_23
                                                                                                  & BITL(0)){
                                                                                                  {
                                                                                                    sint32 
                                                                                                      optfield_24;
                                                                                                    optfield_24
                                                                                                      = pd_getBits (1);
                                                                                                    if (
                                                                                                      optfield_24
                                                                                                      & BITL(0)){
                                                                                                      {
                                                                                                        sint32 
                                                                                                          optfield_25;
                                                                                                        optfield_25
                                                                                                          = pd_getBits (1);
                                                                                                        if (
                                                                                                          optfield_25
                                                                                                          & BITL(0)){
                                                                                                          {
                                                                                                            sint32 
                                                                                                              optfield_26;
                                                                                                            optfield_26
                                                                                                              = pd_getBits (1);
                                                                                                            if (
                                                                                                              optfield_26
                                                                                                              & BITL(0)){
                                                                                                              {
                                                                                                                sint32 
                                                                                                                  optfield_27;
                                                                                                                optfield_27
                                                                                                                  = pd_getBits (4);
                                                                                                                if (
                                                                                                                  optfield_27
                                                                                                                  & BITL(3)){
                                                                                                                  {
                                                                                                                    sint32 
                                                                                                                      optfield_28
                                                                                                                      [2];
                                                                                                                    optfield_28
                                                                                                                      [1]
                                                                                                                      = pd_getBits (1);
                                                                                                                    optfield_28
                                                                                                                      [0]
                                                                                                                      = pd_getBits (32);
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [1]
                                                                                                                      & BITL(0)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(31)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(30)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(29)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(28)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(27)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(26)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(25)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(24)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(23)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(22)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(21)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(20)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(19)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(18)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(17)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(16)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(15)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(14)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(13)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(12)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(11)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(10)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(9)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(8)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(7)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(6)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(5)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(4)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(3)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(2)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(1)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                    if (
                                                                                                                      optfield_28
                                                                                                                      [0]
                                                                                                                      & BITL(0)){
                                                                                                                      pi_NullType ();
                                                                                                                    }
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  BOOLE extensionBit_28 =
                                                                                                                    pd_extensionBit ();
                                                                                                                  sint32 
                                                                                                                    optfield_28;
                                                                                                                  optfield_28
                                                                                                                    = pd_getBits (1);
                                                                                                                  if (
                                                                                                                    optfield_28
                                                                                                                    & BITL(0)){
                                                                                                                    pi_Boolean ();
                                                                                                                  }
                                                                                                                  if (extensionBit_28){
                                                                                                                    pi_SkipExtendedComponents ();
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  BOOLE extensionBit_28 =
                                                                                                                    pd_extensionBit ();
                                                                                                                  if (extensionBit_28){
                                                                                                                    pi_SkipExtendedComponents ();
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  sint8 choice_28;
                                                                                                                  BOOLE extensionBit_28 =
                                                                                                                    pd_extensionBit ();
                                                                                                                  if (!extensionBit_28){
                                                                                                                    choice_28 =
                                                                                                                      pd_ChoiceIndex_al_le255 (1,
                                                                                                                      1);
                                                                                                                  }
                                                                                                                  else {
                                                                                                                    choice_28 = 3 +
                                                                                                                      pd_ChoiceIndex_al_ns ();
                                                                                                                  }
                                                                                                                  switch (choice_28){
                                                                                                                    case 0:
                                                                                                                      {
                                                                                                                        pi_Boolean ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 1:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    default:
                                                                                                                      {
                                                                                                                        pd_SkipExtendedComponents (1);
                                                                                                                      }
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  sint8 choice_28;
                                                                                                                  choice_28 =
                                                                                                                    pd_ChoiceIndex_al_le255 (1,
                                                                                                                    1);
                                                                                                                  switch (choice_28){
                                                                                                                    case 0:
                                                                                                                      {
                                                                                                                        pi_Boolean ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 1:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  uint32 len_28;
                                                                                                                  pd_lenDet_al_clt64K_le255 (&len_28, 0, 10, 4);
                                                                                                                  while (
                                                                                                                    len_28
                                                                                                                    > 0){
                                                                                                                    --len_28;
                                                                                                                    pi_Boolean ();
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  uint32 len_28;
                                                                                                                  pd_lenDet_al_clt64K_le255 (&len_28, 0, 10, 4);
                                                                                                                  while (
                                                                                                                    len_28
                                                                                                                    > 0){
                                                                                                                    --len_28;
                                                                                                                    pi_Boolean ();
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  uint32 len_28;
                                                                                                                  pd_lenDet_al_clt64K_le255 (&len_28, 0, 10, 4);
                                                                                                                  while (
                                                                                                                    len_28
                                                                                                                    > 0){
                                                                                                                    --len_28;
                                                                                                                    pi_Boolean ();
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  uint32 len_28;
                                                                                                                  pd_lenDet_al_clt64K_le255 (&len_28, 0, 10, 4);
                                                                                                                  while (
                                                                                                                    len_28
                                                                                                                    > 0){
                                                                                                                    --len_28;
                                                                                                                    pi_Boolean ();
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  (void)pd_ConstructFragmentedValue (NULL,
                                                                                                                    if1_q_q_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T27);
                                                                                                                }
                                                                                                                {
                                                                                                                  uint32 len_28;
                                                                                                                  pd_lenDet_al_clt64K_le255 (&len_28, 1, 10, 4);
                                                                                                                  while (
                                                                                                                    len_28
                                                                                                                    > 0){
                                                                                                                    --len_28;
                                                                                                                    pi_Boolean ();
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  sint32 *home = &asnperg_ignTemp;
                                                                                                                  sint32 index;
                                                                                                                  pd_sint32_cwn_al_
                                                                                                                    le255_8
                                                                                                                    (&index, 
                                                                                                                    0, 1, 1);
                                                                                                                  switch (index) {
                                                                                                                    case 0:
                                                                                                                      *home
                                                                                                                        = 0;
                                                                                                                      break;
                                                                                                                    case 1:
                                                                                                                      *home
                                                                                                                        = 5;
                                                                                                                      break;
                                                                                                                    default:
                                                                                                                      break;
                                                                                                                  }
                                                                                                                }
                                                                                                                {
                                                                                                                  sint32 *home = &asnperg_ignTemp;
                                                                                                                  pd_sint32_cwn_al_
                                                                                                                    le255
                                                                                                                    (home, 
                                                                                                                    0, 1, 1);
                                                                                                                }
                                                                                                                {
                                                                                                                  sint32 *home = &asnperg_ignTemp;
                                                                                                                  pd_sint32_cwn_al_
                                                                                                                    le255
                                                                                                                    _16
                                                                                                                    (home, 
                                                                                                                    0, 1, 1);
                                                                                                                }
                                                                                                                {
                                                                                                                  sint32 *home = &asnperg_ignTemp;
                                                                                                                  sint32 index;
                                                                                                                  pd_sint32_cwn_al_
                                                                                                                    le255
                                                                                                                    _16
                                                                                                                    (&index, 
                                                                                                                    0, 1, 1);
                                                                                                                  switch (index) {
                                                                                                                    case 0:
                                                                                                                      *home
                                                                                                                        = 0;
                                                                                                                      break;
                                                                                                                    case 1:
                                                                                                                      *home
                                                                                                                        = 5;
                                                                                                                      break;
                                                                                                                    default:
                                                                                                                      break;
                                                                                                                  }
                                                                                                                }
                                                                                                                pi_KnownMultiCharStri_al_u (0,
                                                                                                                  2147483647,
                                                                                                                  4,
                                                                                                                  4,
                                                                                                                  TYP_IA5STR,
                                                                                                                  8, "abcdefgh");
                                                                                                                pi_SegKnownMultiCharStri_al_u (0,
                                                                                                                  2147483647,
                                                                                                                  4,
                                                                                                                  4,
                                                                                                                  TYP_NUMSTR,
                                                                                                                  BYTE_TYPE,
                                                                                                                  11,
                                                                                                                  asnperNumStrChars);
                                                                                                                pi_KnownMultiCharStri_al_clt64K_le255 (
                                                                                                                  10,
                                                                                                                  20,
                                                                                                                  4,
                                                                                                                  4,
                                                                                                                  TYP_NUMSTR,
                                                                                                                  11,
                                                                                                                  asnperNumStrChars);
                                                                                                                pi_SegKnownMultiCharStri_al_u (0,
                                                                                                                  2147483647,
                                                                                                                  4,
                                                                                                                  8,
                                                                                                                  TYP_IA5STR,
                                                                                                                  BYTE_TYPE,
                                                                                                                  128,
                                                                                                                  NULL);
                                                                                                                pi_SegKnownMultiCharStri_al_u (0,
                                                                                                                  2147483647,
                                                                                                                  4,
                                                                                                                  4,
                                                                                                                  TYP_IA5STR,
                                                                                                                  BYTE_TYPE,
                                                                                                                  8, "abcdefgh");
                                                                                                                pi_KnownMultiCharStri_al_clt64K_le255 (
                                                                                                                  10,
                                                                                                                  20,
                                                                                                                  4,
                                                                                                                  8,
                                                                                                                  TYP_PRISTR,
                                                                                                                  74,
                                                                                                                  NULL);
                                                                                                                pi_OctetString_al_clt64K_le255 (
                                                                                                                  10,
                                                                                                                  20,
                                                                                                                  4);
                                                                                                                pi_sint32_cwn_al_le64K_16 (
                                                                                                                  10,
                                                                                                                  2000, 2);
                                                                                                                {
                                                                                                                  sint8 choice_28;
                                                                                                                  choice_28 =
                                                                                                                    pd_ChoiceIndex_al_le255 (
                                                                                                                    10,
                                                                                                                    4);
                                                                                                                  switch (choice_28){
                                                                                                                    case 0:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 1:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 2:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 3:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 4:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 5:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 6:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 7:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 8:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 9:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                    case 10:
                                                                                                                      {
                                                                                                                        pi_NullType ();
                                                                                                                        break;
                                                                                                                      }
                                                                                                                  }
                                                                                                                }
                                                                                                                if (
                                                                                                                  optfield_27
                                                                                                                  & BITL(2)){
                                                                                                                  pi_OctetString_al_u (0,
                                                                                                                    MAXLONG,
                                                                                                                    4);
                                                                                                                }
                                                                                                                if (
                                                                                                                  optfield_27
                                                                                                                  & BITL(1)){
                                                                                                                  pi_OctetString_al_u (0,
                                                                                                                    MAXLONG,
                                                                                                                    4);
                                                                                                                }
                                                                                                                pi_OctetString_al_u (0,
                                                                                                                  MAXLONG,
                                                                                                                  4);
                                                                                                                {
                                                                                                                  BOOLE extensionBit_28 =
                                                                                                                    pd_extensionBit ();
                                                                                                                  pi_Boolean ();
                                                                                                                  if (extensionBit_28){
                                                                                                                    pi_SkipExtendedComponents ();
                                                                                                                  }
                                                                                                                }
                                                                                                                if (
                                                                                                                  optfield_27
                                                                                                                  & BITL(0)){
                                                                                                                  pi_sint32_cwn_al_le255_8 (0,
                                                                                                                    7, 3);
                                                                                                                }
                                                                                                                {
                                                                                                                  sint32 
                                                                                                                    optfield_28;
                                                                                                                  optfield_28
                                                                                                                    = pd_getBits (1);
                                                                                                                  if (
                                                                                                                    optfield_28
                                                                                                                    & BITL(0)){
                                                                                                                    pi_NullType ();
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
