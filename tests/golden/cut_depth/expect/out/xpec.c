/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = CutDepth
 * FILE = xpec.c
 ****************************************************************/

#ifndef XPER_EXT
#include "xper.ext"
#endif

static void ef1_q_q_a_a_a_a_T4 (ASNG_F(ASNPERG *asnperg) sint32 n,
  BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peT4 (ASNG_F(ASNPERG *asnperg) T4 *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    {
      {
        sint32 optfield_1 = 0;
        if (home->a_fld.compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((home->a_fld.compmask & BIT(0))){
        {
          {
            sint32 optfield_2 = 0;
            if (home->a_fld.a_fld.compmask & BIT(0)){
              optfield_2 |= BITL(0);
            }
            pe_optField (optfield_2, 1);
          }
          if ((home->a_fld.a_fld.compmask & BIT(0))){
            {
              {
                sint32 optfield_3 = 0;
                if (home->a_fld.a_fld.a_fld.compmask & BIT(0)){
                  optfield_3 |= BITL(0);
                }
                pe_optField (optfield_3, 1);
              }
              if ((home->a_fld.a_fld.a_fld.compmask & BIT(0))){
                {
                  {
                    sint32 optfield_4 = 0;
                    if (home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(0)){
                      optfield_4 |= BITL(3);
                    }
                    if (home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(24)){
                      optfield_4 |= BITL(2);
                    }
                    if (home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(25)){
                      optfield_4 |= BITL(1);
                    }
                    if (home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(28)){
                      optfield_4 |= BITL(0);
                    }
                    pe_optField (optfield_4, 4);
                  }
                  if ((home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(0))){
                    {
                      {
                        sint32 optfield_5[2] = {0, 0};
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(0)){
                          optfield_5[1] |= BITL(0);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(1)){
                          optfield_5[0] |= BITL(31);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(2)){
                          optfield_5[0] |= BITL(30);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(3)){
                          optfield_5[0] |= BITL(29);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(4)){
                          optfield_5[0] |= BITL(28);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(5)){
                          optfield_5[0] |= BITL(27);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(6)){
                          optfield_5[0] |= BITL(26);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(7)){
                          optfield_5[0] |= BITL(25);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(8)){
                          optfield_5[0] |= BITL(24);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(9)){
                          optfield_5[0] |= BITL(23);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(10)){
                          optfield_5[0] |= BITL(22);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(11)){
                          optfield_5[0] |= BITL(21);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(12)){
                          optfield_5[0] |= BITL(20);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(13)){
                          optfield_5[0] |= BITL(19);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(14)){
                          optfield_5[0] |= BITL(18);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(15)){
                          optfield_5[0] |= BITL(17);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(16)){
                          optfield_5[0] |= BITL(16);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(17)){
                          optfield_5[0] |= BITL(15);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(18)){
                          optfield_5[0] |= BITL(14);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(19)){
                          optfield_5[0] |= BITL(13);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(20)){
                          optfield_5[0] |= BITL(12);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(21)){
                          optfield_5[0] |= BITL(11);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(22)){
                          optfield_5[0] |= BITL(10);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(23)){
                          optfield_5[0] |= BITL(9);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(24)){
                          optfield_5[0] |= BITL(8);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(25)){
                          optfield_5[0] |= BITL(7);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(26)){
                          optfield_5[0] |= BITL(6);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(27)){
                          optfield_5[0] |= BITL(5);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(28)){
                          optfield_5[0] |= BITL(4);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(29)){
                          optfield_5[0] |= BITL(3);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(30)){
                          optfield_5[0] |= BITL(2);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(31)){
                          optfield_5[0] |= BITL(1);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] & BITL(0)){
                          optfield_5[0] |= BITL(0);
                        }
                        pe_optField (optfield_5[1], 1);
                        pe_optField (optfield_5[0], 32);
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(0))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(1))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(2))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(3))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(4))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(5))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(6))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(7))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(8))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(9))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(10))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(11))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(12))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(13))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(14))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(15))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(16))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(17))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(18))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(19))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(20))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(21))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(22))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(23))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(24))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(25))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(26))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(27))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(28))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(29))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(30))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(31))){
                        pe_NullType ();
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] & BITL(0))){
                        pe_NullType ();
                      }
                    }
                  }
                  {
                    ASNPEROPENCTX openctx_5;
                    pe_extensionBit (1);
                    {
                      sint32 optfield_5 = 0;
                      if (home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(0)){
                        optfield_5 |= BITL(0);
                      }
                      pe_optField (optfield_5, 1);
                    }
                    if (
                      (home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(0))){
                      pe_Boolean (home->a_fld.a_fld.a_fld.a_fld.e_fld.a_fld);
                    }
                    {
                      sint32 extensionAdditionField_5 = 0|BITL(2)|BITL(0);
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(3))){
                        extensionAdditionField_5 |= BITL(1);
                      }
                      pe_extensionAddition (3, extensionAdditionField_5);
                    }
                    pe_BeginOpenType_al (&openctx_5);
                    pe_Boolean (home->a_fld.a_fld.a_fld.a_fld.e_fld.b_fld);
                    pe_EndOpenType_al (&openctx_5);
                    if (
                      (home->a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(3))){
                      pe_BeginOpenType_al (&openctx_5);
                      pe_NullType ();
                      pe_EndOpenType_al (&openctx_5);
                    }
                    pe_BeginOpenType_al (&openctx_5);
                    pe_Boolean (home->a_fld.a_fld.a_fld.a_fld.e_fld.d_fld);
                    pe_EndOpenType_al (&openctx_5);
                  }
                  {
                    ASNPEROPENCTX openctx_5;
                    BOOLE extensionBit_5 = 0;
                    if (
                      (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))
                      || 
                      (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                      || 
                      (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                      extensionBit_5 = 1;
                    }
                    pe_extensionBit (extensionBit_5);
                    if (extensionBit_5){
                      sint32 extensionAdditionField_5 = 0;
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))){
                        extensionAdditionField_5 |= BITL(1);
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                        || 
                        (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                        extensionAdditionField_5 |= BITL(0);
                      }
                      pe_extensionAddition (2, extensionAdditionField_5);
                    }
                    if (
                      (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))){
                      pe_BeginOpenType_al (&openctx_5);
                      pe_NullType ();
                      pe_EndOpenType_al (&openctx_5);
                    }
                    if (
                      (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                      || 
                      (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                      pe_BeginOpenType_al (&openctx_5);
                      {
                        sint32 optfield_6 = 0;
                        if (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2)){
                          optfield_6 |= BITL(1);
                        }
                        if (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3)){
                          optfield_6 |= BITL(0);
                        }
                        pe_optField (optfield_6, 2);
                        if (
                          (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))){
                          pe_NullType ();
                        }
                        if (
                          (home->a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                          pe_NullType ();
                        }
                      }
                      pe_EndOpenType_al (&openctx_5);
                    }
                  }
                  {
                    ASNPEROPENCTX openctx_5;
                    BOOLE extensionBit_5 =
                      (home->a_fld.a_fld.a_fld.a_fld.c_fld.choice > 2);
                    pe_extensionBit (extensionBit_5);
                    if (!extensionBit_5){
                      pe_ChoiceIndex_al_le255 (
                        home->a_fld.a_fld.a_fld.a_fld.c_fld.choice, 1, 1);
                    }
                    else {
                      pe_ChoiceIndex_al_ns (
                        home->a_fld.a_fld.a_fld.a_fld.c_fld.choice - 3);
                    }
                    switch (home->a_fld.a_fld.a_fld.a_fld.c_fld.choice){
                      case 0:
                        {
                          pe_Boolean (
                            home->a_fld.a_fld.a_fld.a_fld.c_fld.i1.a_fld);
                        }
                        break;
                      case 1:
                        {
                          pe_NullType ();
                        }
                        break;
                      case 3:
                        {
                          pe_BeginOpenType_al (&openctx_5);
                          pe_Boolean (
                            home->a_fld.a_fld.a_fld.a_fld.c_fld.i1.c_fld);
                          pe_EndOpenType_al (&openctx_5);
                        }
                        break;
                      case 4:
                        {
                          pe_BeginOpenType_al (&openctx_5);
                          pe_NullType ();
                          pe_EndOpenType_al (&openctx_5);
                        }
                        break;
                    }
                  }
                  pe_ChoiceIndex_al_le255 (
                    home->a_fld.a_fld.a_fld.a_fld.h_fld.choice, 1, 1);
                  switch (home->a_fld.a_fld.a_fld.a_fld.h_fld.choice){
                    case 0:
                      {
                        pe_Boolean (
                          home->a_fld.a_fld.a_fld.a_fld.h_fld.i1.a_fld);
                      }
                      break;
                    case 1:
                      {
                        pe_NullType ();
                      }
                      break;
                  }
                  pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.l_fld), 0, 10, 4);
                  {
                    uint32 n1 = 0;
                    for (n1 = 0; n1 < 
                      staArrLen (&home->a_fld.a_fld.a_fld.a_fld.l_fld); n1++){
                      pe_Boolean (
                        home->a_fld.a_fld.a_fld.a_fld.l_fld.elem [n1]);
                    }
                  }
                  pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.m_fld), 0, 10, 4);
                  {
                    uint32 n1 = 0;
                    for (n1 = 0; n1 < 
                      staArrLen (&home->a_fld.a_fld.a_fld.a_fld.m_fld); n1++){
                      pe_Boolean (
                        home->a_fld.a_fld.a_fld.a_fld.m_fld.elem [n1]);
                    }
                  }
                  pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.n_fld), 0, 10, 4);
                  {
                    uint32 n1 = 0;
                    for (n1 = 0; n1 < 
                      staArrLen (&home->a_fld.a_fld.a_fld.a_fld.n_fld); n1++){
                      pe_Boolean (
                        home->a_fld.a_fld.a_fld.a_fld.n_fld.elem [n1]);
                    }
                  }
                  pe_lenDet_al_clt64K_le255 (listLen (&home->a_fld.a_fld.a_fld.a_fld.p_fld), 0, 10, 4);
                  {
                    ASNHOME *a1 = NULL;
                    for (a1 =
                      firstListItem (&home->a_fld.a_fld.a_fld.a_fld.p_fld);
                      a1; a1 = nextListItem (a1)){
                      pe_Boolean (a1->val.bool);
                    }
                  }
                  {
                    ASNHOME *iter =
                      firstListItem (&home->a_fld.a_fld.a_fld.a_fld.q_fld);
                    pe_TraverseFragmentedValue (
                      listLen (&home->a_fld.a_fld.a_fld.a_fld.q_fld),
                      (BYTE_TYPE *)iter, ef1_q_q_a_a_a_a_T4);
                  }
                  pe_lenDet_al_clt64K_le255 (dynArrLen (&home->a_fld.a_fld.a_fld.a_fld.r_fld), 1, 10, 4);
                  {
                    uint32 n1 = 0;
                    for (n1 = 0; n1 < 
                      dynArrLen (&home->a_fld.a_fld.a_fld.a_fld.r_fld); n1++){
                      pe_Boolean (
                        home->a_fld.a_fld.a_fld.a_fld.r_fld.elem [n1]);
                    }
                  }
                  sint32 index;
                  switch (home->a_fld.a_fld.a_fld.a_fld.eEnum_fld) {
                    case 0:
                      index = 0;
                      break;
                    case 5:
                      index = 1;
                      break;
                    default:
                      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
                  }
                  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
                  pe_sint32_cwn_al_le255
                    (home->a_fld.a_fld.a_fld.a_fld.fEnum_fld, 0, 1, 1);
                  pe_sint32_cwn_al_le255
                    (home->a_fld.a_fld.a_fld.a_fld.gEnum_fld, 0, 1, 1);
                  sint32 index;
                  switch (home->a_fld.a_fld.a_fld.a_fld.hEnum_fld) {
                    case 0:
                      index = 0;
                      break;
                    case 5:
                      index = 1;
                      break;
                    default:
                      index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
                  }
                  pe_sint32_cwn_al_le255 (index, 0, 1, 1);
                  pe_KnownMultiCharStri_al_u (
                    &home->a_fld.a_fld.a_fld.a_fld.i_fld, 0, 2147483647, 4, 4,
                    TYP_IA5STR, 8, "abcdefgh");
                  pe_SegKnownMultiCharStri_al_u (
                    &home->a_fld.a_fld.a_fld.a_fld.j_fld, 0, 2147483647, 4, 4,
                    TYP_NUMSTR, BYTE_TYPE, 11, asnperNumStrChars);
                  pe_KnownMultiCharStri_al_clt64K_le255 (
                    &home->a_fld.a_fld.a_fld.a_fld.k_fld, 10, 20, 4, 4,
                    TYP_NUMSTR, 11, asnperNumStrChars);
                  pe_SegKnownMultiCharStri_al_u (
                    &home->a_fld.a_fld.a_fld.a_fld.s_fld, 0, 2147483647, 4, 8,
                    TYP_IA5STR, BYTE_TYPE, 128, NULL);
                  pe_SegKnownMultiCharStri_al_u (
                    &home->a_fld.a_fld.a_fld.a_fld.i2_fld, 0, 2147483647, 4,
                    4, TYP_IA5STR, BYTE_TYPE, 8, "abcdefgh");
                  pe_KnownMultiCharStri_al_clt64K_le255 (
                    &home->a_fld.a_fld.a_fld.a_fld.i3_fld, 10, 20, 4, 8,
                    TYP_PRISTR, 74, NULL);
                  pe_OctetString_al_clt64K_le255 (
                    &home->a_fld.a_fld.a_fld.a_fld.o2_fld, 10, 20, 4);
                  pe_sint32_cwn_al_le64K (
                    home->a_fld.a_fld.a_fld.a_fld.n2_fld, 10, 2000, 2);
                  pe_ChoiceIndex_al_le255 (
                    home->a_fld.a_fld.a_fld.a_fld.t_fld.choice, 10, 4);
                  switch (home->a_fld.a_fld.a_fld.a_fld.t_fld.choice){
                    case 0:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 1:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 2:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 3:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 4:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 5:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 6:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 7:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 8:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 9:
                      {
                        pe_NullType ();
                      }
                      break;
                    case 10:
                      {
                        pe_NullType ();
                      }
                      break;
                  }
                  if ((home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(24))){
                    pe_OctetString_al_u (
                      &home->a_fld.a_fld.a_fld.a_fld.u_fld->val.dyns, 0,
                      MAXLONG, 4);
                    freeAsn (&home->a_fld.a_fld.a_fld.a_fld.u_fld, FREE_STG);
                  }
                  if ((home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(25))){
                    {
                      struct t_v_a_a_a_a_T4 *h1 =
                        (struct t_v_a_a_a_a_T4 *)home->a_fld.a_fld.a_fld.a_fld.v_fld->val.stru;
                      {
                        pe_OctetString_al_u (&h1->x_fld, 0, MAXLONG, 4);
                      }
                    }
                    freeAsn (&home->a_fld.a_fld.a_fld.a_fld.v_fld, FREE_STG);
                  }
                  {
                    pe_OctetString_al_u (
                      &home->a_fld.a_fld.a_fld.a_fld.w_fld->x_fld, 0, MAXLONG,
                      4);
                  }
                  {
                    pe_extensionBit (0);
                    pe_Boolean (home->a_fld.a_fld.a_fld.a_fld.x_fld.a_fld);
                  }
                  if ((home->a_fld.a_fld.a_fld.a_fld.compmask & BITL(28))){
                    pe_sint32_cwn_al_le255 (
                      home->a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8, 0, 7, 3);
                    freeAsn (&home->a_fld.a_fld.a_fld.a_fld.y_fld, FREE_STG);
                  }
                  {
                    {
                      sint32 optfield_5 = 0;
                      if (home->a_fld.a_fld.a_fld.a_fld.z_fld.a_fld){
                        optfield_5 |= BITL(0);
                      }
                      pe_optField (optfield_5, 1);
                    }
                    if (home->a_fld.a_fld.a_fld.a_fld.z_fld.a_fld){
                      pe_NullType ();
                      freeAsn (&home->a_fld.a_fld.a_fld.a_fld.z_fld.a_fld,
                        FREE_STG);
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

static void ef1_q_q_a_a_a_a_a_a_a_a_a_a_T10 (ASNG_F(ASNPERG *asnperg)
  sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peT10 (ASNG_F(ASNPERG *asnperg) T10 *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    {
      {
        sint32 optfield_1 = 0;
        if (home->a_fld.compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((home->a_fld.compmask & BIT(0))){
        {
          {
            sint32 optfield_2 = 0;
            if (home->a_fld.a_fld.compmask & BIT(0)){
              optfield_2 |= BITL(0);
            }
            pe_optField (optfield_2, 1);
          }
          if ((home->a_fld.a_fld.compmask & BIT(0))){
            {
              {
                sint32 optfield_3 = 0;
                if (home->a_fld.a_fld.a_fld.compmask & BIT(0)){
                  optfield_3 |= BITL(0);
                }
                pe_optField (optfield_3, 1);
              }
              if ((home->a_fld.a_fld.a_fld.compmask & BIT(0))){
                {
                  {
                    sint32 optfield_4 = 0;
                    if (home->a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                      optfield_4 |= BITL(0);
                    }
                    pe_optField (optfield_4, 1);
                  }
                  if ((home->a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                    {
                      {
                        sint32 optfield_5 = 0;
                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                          optfield_5 |= BITL(0);
                        }
                        pe_optField (optfield_5, 1);
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                        {
                          {
                            sint32 optfield_6 = 0;
                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                              optfield_6 |= BITL(0);
                            }
                            pe_optField (optfield_6, 1);
                          }
                          if (
                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                            {
                              {
                                sint32 optfield_7 = 0;
                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                  optfield_7 |= BITL(0);
                                }
                                pe_optField (optfield_7, 1);
                              }
                              if (
                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                {
                                  {
                                    sint32 optfield_8 = 0;
                                    if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                      optfield_8 |= BITL(0);
                                    }
                                    pe_optField (optfield_8, 1);
                                  }
                                  if (
                                    (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                    {
                                      {
                                        sint32 optfield_9 = 0;
                                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                          optfield_9 |= BITL(0);
                                        }
                                        pe_optField (optfield_9, 1);
                                      }
                                      if (
                                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                        {
                                          {
                                            sint32 optfield_10 = 0;
                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(0)){
                                              optfield_10 |= BITL(3);
                                            }
                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(24)){
                                              optfield_10 |= BITL(2);
                                            }
                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(25)){
                                              optfield_10 |= BITL(1);
                                            }
                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(28)){
                                              optfield_10 |= BITL(0);
                                            }
                                            pe_optField (optfield_10, 4);
                                          }
                                          if (
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(0))){
                                            {
                                              {
                                                sint32 optfield_11[2] = {0, 0};
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(0)){
                                                  optfield_11[1] |= BITL(0);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(1)){
                                                  optfield_11[0] |= BITL(31);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(2)){
                                                  optfield_11[0] |= BITL(30);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(3)){
                                                  optfield_11[0] |= BITL(29);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(4)){
                                                  optfield_11[0] |= BITL(28);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(5)){
                                                  optfield_11[0] |= BITL(27);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(6)){
                                                  optfield_11[0] |= BITL(26);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(7)){
                                                  optfield_11[0] |= BITL(25);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(8)){
                                                  optfield_11[0] |= BITL(24);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(9)){
                                                  optfield_11[0] |= BITL(23);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(10)){
                                                  optfield_11[0] |= BITL(22);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(11)){
                                                  optfield_11[0] |= BITL(21);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(12)){
                                                  optfield_11[0] |= BITL(20);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(13)){
                                                  optfield_11[0] |= BITL(19);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(14)){
                                                  optfield_11[0] |= BITL(18);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(15)){
                                                  optfield_11[0] |= BITL(17);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(16)){
                                                  optfield_11[0] |= BITL(16);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(17)){
                                                  optfield_11[0] |= BITL(15);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(18)){
                                                  optfield_11[0] |= BITL(14);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(19)){
                                                  optfield_11[0] |= BITL(13);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(20)){
                                                  optfield_11[0] |= BITL(12);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(21)){
                                                  optfield_11[0] |= BITL(11);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(22)){
                                                  optfield_11[0] |= BITL(10);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(23)){
                                                  optfield_11[0] |= BITL(9);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(24)){
                                                  optfield_11[0] |= BITL(8);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(25)){
                                                  optfield_11[0] |= BITL(7);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(26)){
                                                  optfield_11[0] |= BITL(6);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(27)){
                                                  optfield_11[0] |= BITL(5);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(28)){
                                                  optfield_11[0] |= BITL(4);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(29)){
                                                  optfield_11[0] |= BITL(3);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(30)){
                                                  optfield_11[0] |= BITL(2);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(31)){
                                                  optfield_11[0] |= BITL(1);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] & BITL(0)){
                                                  optfield_11[0] |= BITL(0);
                                                }
                                                pe_optField (optfield_11[1], 
                                                  1);
                                                pe_optField (optfield_11[0], 
                                                  32);
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(0))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(1))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(2))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(3))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(4))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(5))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(6))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(7))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(8))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(9))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(10))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(11))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(12))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(13))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(14))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(15))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(16))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(17))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(18))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(19))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(20))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(21))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(22))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(23))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(24))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(25))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(26))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(27))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(28))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(29))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(30))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(31))){
                                                pe_NullType ();
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] & BITL(0))){
                                                pe_NullType ();
                                              }
                                            }
                                          }
                                          {
                                            ASNPEROPENCTX openctx_11;
                                            pe_extensionBit (1);
                                            {
                                              sint32 optfield_11 = 0;
                                              if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(0)){
                                                optfield_11 |= BITL(0);
                                              }
                                              pe_optField (optfield_11, 1);
                                            }
                                            if (
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(0))){
                                              pe_Boolean (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.a_fld);
                                            }
                                            {
                                              sint32 extensionAdditionField_11 = 0
                                                |BITL(2)|BITL(0);
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(3))){
                                                extensionAdditionField_11 |=
                                                  BITL(1);
                                              }
                                              pe_extensionAddition (3,
                                                extensionAdditionField_11);
                                            }
                                            pe_BeginOpenType_al (&openctx_11);
                                            pe_Boolean (
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.b_fld);
                                            pe_EndOpenType_al (&openctx_11);
                                            if (
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(3))){
                                              pe_BeginOpenType_al (&
                                                openctx_11);
                                              pe_NullType ();
                                              pe_EndOpenType_al (&openctx_11);
                                            }
                                            pe_BeginOpenType_al (&openctx_11);
                                            pe_Boolean (
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.d_fld);
                                            pe_EndOpenType_al (&openctx_11);
                                          }
                                          {
                                            ASNPEROPENCTX openctx_11;
                                            BOOLE extensionBit_11 = 0;
                                            if (
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))
                                              || 
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                                              || 
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                              extensionBit_11 = 1;
                                            }
                                            pe_extensionBit (extensionBit_11);
                                            if (extensionBit_11){
                                              sint32 extensionAdditionField_11 = 0;
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))){
                                                extensionAdditionField_11 |=
                                                  BITL(1);
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                                                || 
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                                extensionAdditionField_11 |=
                                                  BITL(0);
                                              }
                                              pe_extensionAddition (2,
                                                extensionAdditionField_11);
                                            }
                                            if (
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))){
                                              pe_BeginOpenType_al (&
                                                openctx_11);
                                              pe_NullType ();
                                              pe_EndOpenType_al (&openctx_11);
                                            }
                                            if (
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                                              || 
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                              pe_BeginOpenType_al (&
                                                openctx_11);
                                              {
                                                sint32 optfield_12 = 0;
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2)){
                                                  optfield_12 |= BITL(1);
                                                }
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3)){
                                                  optfield_12 |= BITL(0);
                                                }
                                                pe_optField (optfield_12, 2);
                                                if (
                                                  (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))){
                                                  pe_NullType ();
                                                }
                                                if (
                                                  (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                                  pe_NullType ();
                                                }
                                              }
                                              pe_EndOpenType_al (&openctx_11);
                                            }
                                          }
                                          {
                                            ASNPEROPENCTX openctx_11;
                                            BOOLE extensionBit_11 =
                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice > 2);
                                            pe_extensionBit (extensionBit_11);
                                            if (!extensionBit_11){
                                              pe_ChoiceIndex_al_le255 (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice,
                                                1, 1);
                                            }
                                            else {
                                              pe_ChoiceIndex_al_ns (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice - 3);
                                            }
                                            switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice){
                                              case 0:
                                                {
                                                  pe_Boolean (
                                                    home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.a_fld);
                                                }
                                                break;
                                              case 1:
                                                {
                                                  pe_NullType ();
                                                }
                                                break;
                                              case 3:
                                                {
                                                  pe_BeginOpenType_al (&
                                                    openctx_11);
                                                  pe_Boolean (
                                                    home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.c_fld);
                                                  pe_EndOpenType_al (&
                                                    openctx_11);
                                                }
                                                break;
                                              case 4:
                                                {
                                                  pe_BeginOpenType_al (&
                                                    openctx_11);
                                                  pe_NullType ();
                                                  pe_EndOpenType_al (&
                                                    openctx_11);
                                                }
                                                break;
                                            }
                                          }
                                          pe_ChoiceIndex_al_le255 (
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice,
                                            1, 1);
                                          switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice){
                                            case 0:
                                              {
                                                pe_Boolean (
                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.i1.a_fld);
                                              }
                                              break;
                                            case 1:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                          }
                                          pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld), 0, 10, 4);
                                          {
                                            uint32 n1 = 0;
                                            for (n1 = 0; n1 < 
                                              staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld);
                                              n1++){
                                              pe_Boolean (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld.elem [n1]);
                                            }
                                          }
                                          pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld), 0, 10, 4);
                                          {
                                            uint32 n1 = 0;
                                            for (n1 = 0; n1 < 
                                              staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld);
                                              n1++){
                                              pe_Boolean (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld.elem [n1]);
                                            }
                                          }
                                          pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld), 0, 10, 4);
                                          {
                                            uint32 n1 = 0;
                                            for (n1 = 0; n1 < 
                                              staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld);
                                              n1++){
                                              pe_Boolean (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.elem [n1]);
                                            }
                                          }
                                          pe_lenDet_al_clt64K_le255 (listLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld), 0, 10, 4);
                                          {
                                            ASNHOME *a1 = NULL;
                                            for (a1 =
                                              firstListItem (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld);
                                              a1; a1 = nextListItem (a1)){
                                              pe_Boolean (a1->val.bool);
                                            }
                                          }
                                          {
                                            ASNHOME *iter =
                                              firstListItem (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld);
                                            pe_TraverseFragmentedValue (
                                              listLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld),
                                              (BYTE_TYPE *)iter,
                                              ef1_q_q_a_a_a_a_a_a_a_a_a_a_T10);
                                          }
                                          pe_lenDet_al_clt64K_le255 (dynArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld), 1, 10, 4);
                                          {
                                            uint32 n1 = 0;
                                            for (n1 = 0; n1 < 
                                              dynArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld);
                                              n1++){
                                              pe_Boolean (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem [n1]);
                                            }
                                          }
                                          sint32 index;
                                          switch (
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.eEnum_fld) {
                                            case 0:
                                              index = 0;
                                              break;
                                            case 5:
                                              index = 1;
                                              break;
                                            default:
                                              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
                                          }
                                          pe_sint32_cwn_al_le255 (index, 
                                            0, 1, 1);
                                          pe_sint32_cwn_al_le255
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.fEnum_fld, 
                                            0, 1, 1);
                                          pe_sint32_cwn_al_le255
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.gEnum_fld, 
                                            0, 1, 1);
                                          sint32 index;
                                          switch (
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.hEnum_fld) {
                                            case 0:
                                              index = 0;
                                              break;
                                            case 5:
                                              index = 1;
                                              break;
                                            default:
                                              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
                                          }
                                          pe_sint32_cwn_al_le255 (index, 
                                            0, 1, 1);
                                          pe_KnownMultiCharStri_al_u (
                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i_fld,
                                            0, 2147483647, 4, 4, TYP_IA5STR,
                                            8, "abcdefgh");
                                          pe_SegKnownMultiCharStri_al_u (
                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.j_fld,
                                            0, 2147483647, 4, 4, TYP_NUMSTR,
                                            BYTE_TYPE, 11, asnperNumStrChars);
                                          pe_KnownMultiCharStri_al_clt64K_le255 (
                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.k_fld,
                                            10, 20, 4, 4, TYP_NUMSTR, 11,
                                            asnperNumStrChars);
                                          pe_SegKnownMultiCharStri_al_u (
                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.s_fld,
                                            0, 2147483647, 4, 8, TYP_IA5STR,
                                            BYTE_TYPE, 128, NULL);
                                          pe_SegKnownMultiCharStri_al_u (
                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i2_fld,
                                            0, 2147483647, 4, 4, TYP_IA5STR,
                                            BYTE_TYPE, 8, "abcdefgh");
                                          pe_KnownMultiCharStri_al_clt64K_le255 (
                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i3_fld,
                                            10, 20, 4, 8, TYP_PRISTR, 74, NULL);
                                          pe_OctetString_al_clt64K_le255 (
                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o2_fld,
                                            10, 20, 4);
                                          pe_sint32_cwn_al_le64K (
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n2_fld,
                                            10, 2000, 2);
                                          pe_ChoiceIndex_al_le255 (
                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice,
                                            10, 4);
                                          switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice){
                                            case 0:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 1:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 2:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 3:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 4:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 5:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 6:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 7:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 8:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 9:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                            case 10:
                                              {
                                                pe_NullType ();
                                              }
                                              break;
                                          }
                                          if (
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(24))){
                                            pe_OctetString_al_u (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld->val.dyns,
                                              0, MAXLONG, 4);
                                            freeAsn (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld,
                                              FREE_STG);
                                          }
                                          if (
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(25))){
                                            {
                                              struct t_v_a_a_a_a_a_a_a_a_a_a_T10 *h1 =
                                                (struct t_v_a_a_a_a_a_a_a_a_a_a_T10 *)home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld->val.stru;
                                              {
                                                pe_OctetString_al_u (
                                                  &h1->x_fld, 0, MAXLONG, 4);
                                              }
                                            }
                                            freeAsn (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld,
                                              FREE_STG);
                                          }
                                          {
                                            pe_OctetString_al_u (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.w_fld->x_fld,
                                              0, MAXLONG, 4);
                                          }
                                          {
                                            pe_extensionBit (0);
                                            pe_Boolean (
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.a_fld);
                                          }
                                          if (
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(28))){
                                            pe_sint32_cwn_al_le255 (
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8,
                                              0, 7, 3);
                                            freeAsn (
                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld,
                                              FREE_STG);
                                          }
                                          {
                                            {
                                              sint32 optfield_11 = 0;
                                              if (
                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld){
                                                optfield_11 |= BITL(0);
                                              }
                                              pe_optField (optfield_11, 1);
                                            }
                                            if (
                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld){
                                              pe_NullType ();
                                              freeAsn (
                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld,
                                                FREE_STG);
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

static void ef1_q_q_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18 (
  ASNG_F(ASNPERG *asnperg) sint32 n, BYTE_TYPE **p)
{
  ASNHOME *a1 = (ASNHOME *)*p;
  while (n){
    pe_Boolean (a1->val.bool);
    a1 = nextListItem (a1);
    n--;
  }
  *p = (BYTE_TYPE *)a1;
}

void peT18 (ASNG_F(ASNPERG *asnperg) T18 *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(0)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  if ((home->compmask & BIT(0))){
    {
      {
        sint32 optfield_1 = 0;
        if (home->a_fld.compmask & BIT(0)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      if ((home->a_fld.compmask & BIT(0))){
        {
          {
            sint32 optfield_2 = 0;
            if (home->a_fld.a_fld.compmask & BIT(0)){
              optfield_2 |= BITL(0);
            }
            pe_optField (optfield_2, 1);
          }
          if ((home->a_fld.a_fld.compmask & BIT(0))){
            {
              {
                sint32 optfield_3 = 0;
                if (home->a_fld.a_fld.a_fld.compmask & BIT(0)){
                  optfield_3 |= BITL(0);
                }
                pe_optField (optfield_3, 1);
              }
              if ((home->a_fld.a_fld.a_fld.compmask & BIT(0))){
                {
                  {
                    sint32 optfield_4 = 0;
                    if (home->a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                      optfield_4 |= BITL(0);
                    }
                    pe_optField (optfield_4, 1);
                  }
                  if ((home->a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                    {
                      {
                        sint32 optfield_5 = 0;
                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                          optfield_5 |= BITL(0);
                        }
                        pe_optField (optfield_5, 1);
                      }
                      if (
                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                        {
                          {
                            sint32 optfield_6 = 0;
                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                              optfield_6 |= BITL(0);
                            }
                            pe_optField (optfield_6, 1);
                          }
                          if (
                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                            {
                              {
                                sint32 optfield_7 = 0;
                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                  optfield_7 |= BITL(0);
                                }
                                pe_optField (optfield_7, 1);
                              }
                              if (
                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                {
                                  {
                                    sint32 optfield_8 = 0;
                                    if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                      optfield_8 |= BITL(0);
                                    }
                                    pe_optField (optfield_8, 1);
                                  }
                                  if (
                                    (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                    {
                                      {
                                        sint32 optfield_9 = 0;
                                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                          optfield_9 |= BITL(0);
                                        }
                                        pe_optField (optfield_9, 1);
                                      }
                                      if (
                                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                        {
                                          {
                                            sint32 optfield_10 = 0;
                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                              optfield_10 |= BITL(0);
                                            }
                                            pe_optField (optfield_10, 1);
                                          }
                                          if (
                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                            {
                                              {
                                                sint32 optfield_11 = 0;
                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                  optfield_11 |= BITL(0);
                                                }
                                                pe_optField (optfield_11, 1);
                                              }
                                              if (
                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                {
                                                  {
                                                    sint32 optfield_12 = 0;
                                                    if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                      optfield_12 |= BITL(0);
                                                    }
                                                    pe_optField (optfield_12, 
                                                      1);
                                                  }
                                                  if (
                                                    (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                    {
                                                      {
                                                        sint32 optfield_13 = 0;
                                                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                          optfield_13
                                                            |= BITL(0);
                                                        }
                                                        pe_optField (
                                                          optfield_13, 1);
                                                      }
                                                      if (
                                                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                        {
                                                          {
                                                            sint32 optfield_14
                                                              = 0;
                                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                              optfield_14
                                                                |= BITL(0);
                                                            }
                                                            pe_optField (
                                                              optfield_14, 1);
                                                          }
                                                          if (
                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                            {
                                                              {
                                                                sint32 
                                                                  optfield_15
                                                                  = 0;
                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                                  optfield_15
                                                                    |= BITL(0);
                                                                }
                                                                pe_optField (
                                                                  optfield_15, 
                                                                  1);
                                                              }
                                                              if (
                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                                {
                                                                  {
                                                                    sint32 
                                                                      optfield_16
                                                                      = 0;
                                                                    if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                                      optfield_16
                                                                        |= BITL(0);
                                                                    }
                                                                    pe_optField (
                                                                      optfield_16, 
                                                                      1);
                                                                  }
                                                                  if (
                                                                    (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                                    {
                                                                      {
                                                                        sint32 
                                                                          optfield_17
                                                                          = 0;
                                                                        if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0)){
                                                                          optfield_17
                                                                            |= BITL(0);
                                                                        }
                                                                        pe_optField (
                                                                          optfield_17, 
                                                                          1);
                                                                      }
                                                                      if (
                                                                        (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BIT(0))){
                                                                        {
                                                                          {
                                                                            sint32 
                                                                              optfield_18
                                                                              = 0;
                                                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(0)){
                                                                              optfield_18
                                                                                |= BITL(3);
                                                                            }
                                                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(24)){
                                                                              optfield_18
                                                                                |= BITL(2);
                                                                            }
                                                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(25)){
                                                                              optfield_18
                                                                                |= BITL(1);
                                                                            }
                                                                            if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(28)){
                                                                              optfield_18
                                                                                |= BITL(0);
                                                                            }
                                                                            pe_optField (
                                                                              optfield_18, 
                                                                              4);
                                                                          }
                                                                          if (
                                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(0))){
                                                                            {
                                                                              {
                                                                                sint32 
                                                                                  optfield_19
                                                                                  [2]
                                                                                  = {0, 0};
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(0)){
                                                                                  optfield_19
                                                                                    [1]
                                                                                    |= BITL(0);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(1)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(31);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(2)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(30);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(3)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(29);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(4)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(28);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(5)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(27);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(6)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(26);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(7)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(25);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(8)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(24);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(9)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(23);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(10)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(22);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(11)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(21);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(12)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(20);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(13)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(19);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(14)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(18);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(15)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(17);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(16)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(16);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(17)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(15);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(18)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(14);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(19)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(13);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(20)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(12);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(21)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(11);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(22)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(10);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(23)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(9);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(24)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(8);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(25)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(7);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(26)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(6);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(27)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(5);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(28)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(4);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(29)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(3);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(30)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(2);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(31)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(1);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] & BITL(0)){
                                                                                  optfield_19
                                                                                    [0]
                                                                                    |= BITL(0);
                                                                                }
                                                                                pe_optField (
                                                                                  optfield_19
                                                                                  [1], 
                                                                                  1);
                                                                                pe_optField (
                                                                                  optfield_19
                                                                                  [0], 
                                                                                  32);
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(0))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(1))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(2))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(3))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(4))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(5))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(6))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(7))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(8))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(9))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(10))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(11))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(12))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(13))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(14))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(15))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(16))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(17))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(18))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(19))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(20))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(21))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(22))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(23))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(24))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(25))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(26))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(27))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(28))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(29))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(30))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [0] & BITL(31))){
                                                                                pe_NullType ();
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o_fld.compmask [1] & BITL(0))){
                                                                                pe_NullType ();
                                                                              }
                                                                            }
                                                                          }
                                                                          {
                                                                            ASNPEROPENCTX openctx_19;
                                                                            pe_extensionBit (1);
                                                                            {
                                                                              sint32 
                                                                                optfield_19
                                                                                = 0;
                                                                              if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(0)){
                                                                                optfield_19
                                                                                  |= BITL(0);
                                                                              }
                                                                              pe_optField (
                                                                                optfield_19, 
                                                                                1);
                                                                            }
                                                                            if (
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(0))){
                                                                              pe_Boolean (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.a_fld);
                                                                            }
                                                                            {
                                                                              sint32 extensionAdditionField_19 = 0
                                                                                |BITL(2)
                                                                                |BITL(0);
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(3))){
                                                                                extensionAdditionField_19 |=
                                                                                  BITL(1);
                                                                              }
                                                                              pe_extensionAddition (3,
                                                                                extensionAdditionField_19);
                                                                            }
                                                                            pe_BeginOpenType_al (&
                                                                              openctx_19);
                                                                            pe_Boolean (
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.b_fld);
                                                                            pe_EndOpenType_al (&
                                                                              openctx_19);
                                                                            if (
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.compmask & BIT(3))){
                                                                              pe_BeginOpenType_al (&
                                                                                openctx_19);
                                                                              pe_NullType ();
                                                                              pe_EndOpenType_al (&
                                                                                openctx_19);
                                                                            }
                                                                            pe_BeginOpenType_al (&
                                                                              openctx_19);
                                                                            pe_Boolean (
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.e_fld.d_fld);
                                                                            pe_EndOpenType_al (&
                                                                              openctx_19);
                                                                          }
                                                                          {
                                                                            ASNPEROPENCTX openctx_19;
                                                                            BOOLE extensionBit_19 =
                                                                              0;
                                                                            if (
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))
                                                                              || 
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                                                                              || 
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                                                              extensionBit_19 = 1;
                                                                            }
                                                                            pe_extensionBit (extensionBit_19);
                                                                            if (extensionBit_19){
                                                                              sint32 extensionAdditionField_19 = 0;
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))){
                                                                                extensionAdditionField_19 |=
                                                                                  BITL(1);
                                                                              }
                                                                              if (
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                                                                                || 
                                                                                (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                                                                extensionAdditionField_19 |=
                                                                                  BITL(0);
                                                                              }
                                                                              pe_extensionAddition (2,
                                                                                extensionAdditionField_19);
                                                                            }
                                                                            if (
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(1))){
                                                                              pe_BeginOpenType_al (&
                                                                                openctx_19);
                                                                              pe_NullType ();
                                                                              pe_EndOpenType_al (&
                                                                                openctx_19);
                                                                            }
                                                                            if (
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))
                                                                              || 
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                                                              pe_BeginOpenType_al (&
                                                                                openctx_19);
                                                                              {
                                                                                sint32 
                                                                                  optfield_20
                                                                                  = 0;
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2)){
                                                                                  optfield_20
                                                                                    |= BITL(1);
                                                                                }
                                                                                if (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3)){
                                                                                  optfield_20
                                                                                    |= BITL(0);
                                                                                }
                                                                                pe_optField (
                                                                                  optfield_20, 
                                                                                  2);
                                                                                if (
                                                                                  (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(2))){
                                                                                  pe_NullType ();
                                                                                }
                                                                                if (
                                                                                  (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.g_fld.compmask & BIT(3))){
                                                                                  pe_NullType ();
                                                                                }
                                                                              }
                                                                              pe_EndOpenType_al (&
                                                                                openctx_19);
                                                                            }
                                                                          }
                                                                          {
                                                                            ASNPEROPENCTX openctx_19;
                                                                            BOOLE extensionBit_19 =
                                                                              (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice > 2);
                                                                            pe_extensionBit (extensionBit_19);
                                                                            if (!extensionBit_19){
                                                                              pe_ChoiceIndex_al_le255 (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice,
                                                                                1,
                                                                                1);
                                                                            }
                                                                            else {
                                                                              pe_ChoiceIndex_al_ns (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice - 3);
                                                                            }
                                                                            switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.choice){
                                                                              case 0:
                                                                                {
                                                                                  pe_Boolean (
                                                                                    home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.a_fld);
                                                                                }
                                                                                break;
                                                                              case 1:
                                                                                {
                                                                                  pe_NullType ();
                                                                                }
                                                                                break;
                                                                              case 3:
                                                                                {
                                                                                  pe_BeginOpenType_al (&
                                                                                    openctx_19);
                                                                                  pe_Boolean (
                                                                                    home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.c_fld.i1.c_fld);
                                                                                  pe_EndOpenType_al (&
                                                                                    openctx_19);
                                                                                }
                                                                                break;
                                                                              case 4:
                                                                                {
                                                                                  pe_BeginOpenType_al (&
                                                                                    openctx_19);
                                                                                  pe_NullType ();
                                                                                  pe_EndOpenType_al (&
                                                                                    openctx_19);
                                                                                }
                                                                                break;
                                                                            }
                                                                          }
                                                                          pe_ChoiceIndex_al_le255 (
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice,
                                                                            1,
                                                                            1);
                                                                          switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.choice){
                                                                            case 0:
                                                                              {
                                                                                pe_Boolean (
                                                                                  home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.h_fld.i1.a_fld);
                                                                              }
                                                                              break;
                                                                            case 1:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                          }
                                                                          pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld), 0, 10, 4);
                                                                          {
                                                                            uint32 n1 = 0;
                                                                            for (n1 = 0; n1 < 
                                                                              staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld);
                                                                              n1++){
                                                                              pe_Boolean (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.l_fld.elem [n1]);
                                                                            }
                                                                          }
                                                                          pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld), 0, 10, 4);
                                                                          {
                                                                            uint32 n1 = 0;
                                                                            for (n1 = 0; n1 < 
                                                                              staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld);
                                                                              n1++){
                                                                              pe_Boolean (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.m_fld.elem [n1]);
                                                                            }
                                                                          }
                                                                          pe_lenDet_al_clt64K_le255 (staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld), 0, 10, 4);
                                                                          {
                                                                            uint32 n1 = 0;
                                                                            for (n1 = 0; n1 < 
                                                                              staArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld);
                                                                              n1++){
                                                                              pe_Boolean (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n_fld.elem [n1]);
                                                                            }
                                                                          }
                                                                          pe_lenDet_al_clt64K_le255 (listLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld), 0, 10, 4);
                                                                          {
                                                                            ASNHOME *a1 = NULL;
                                                                            for (a1 =
                                                                              firstListItem (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.p_fld);
                                                                              a1;
                                                                              a1 =
                                                                              nextListItem (a1)){
                                                                              pe_Boolean (
                                                                                a1->val.bool);
                                                                            }
                                                                          }
                                                                          {
                                                                            ASNHOME *iter =
                                                                              firstListItem (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld);
                                                                            pe_TraverseFragmentedValue (
                                                                              listLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.q_fld),
                                                                              (BYTE_TYPE *)iter,
                                                                              ef1_q_q_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18);
                                                                          }
                                                                          pe_lenDet_al_clt64K_le255 (dynArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld), 1, 10, 4);
                                                                          {
                                                                            uint32 n1 = 0;
                                                                            for (n1 = 0; n1 < 
                                                                              dynArrLen (&home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld);
                                                                              n1++){
                                                                              pe_Boolean (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.r_fld.elem [n1]);
                                                                            }
                                                                          }
                                                                          sint32 index;
                                                                          switch (
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.eEnum_fld) {
                                                                            case 0:
                                                                              index = 0;
                                                                              break;
                                                                            case 5:
                                                                              index = 1;
                                                                              break;
                                                                            default:
                                                                              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
                                                                          }
                                                                          pe_sint32_cwn_al_
                                                                            le255
                                                                            (index, 
                                                                            0, 1, 1);
                                                                          pe_sint32_cwn_al_
                                                                            le255
                                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.fEnum_fld, 
                                                                            0, 1, 1);
                                                                          pe_sint32_cwn_al_
                                                                            le255
                                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.gEnum_fld, 
                                                                            0, 1, 1);
                                                                          sint32 index;
                                                                          switch (
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.hEnum_fld) {
                                                                            case 0:
                                                                              index = 0;
                                                                              break;
                                                                            case 5:
                                                                              index = 1;
                                                                              break;
                                                                            default:
                                                                              index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */
                                                                          }
                                                                          pe_sint32_cwn_al_
                                                                            le255
                                                                            (index, 
                                                                            0, 1, 1);
                                                                          pe_KnownMultiCharStri_al_u (
                                                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i_fld,
                                                                            0,
                                                                            2147483647,
                                                                            4,
                                                                            4,
                                                                            TYP_IA5STR,
                                                                            8, "abcdefgh");
                                                                          pe_SegKnownMultiCharStri_al_u (
                                                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.j_fld,
                                                                            0,
                                                                            2147483647,
                                                                            4,
                                                                            4,
                                                                            TYP_NUMSTR,
                                                                            BYTE_TYPE,
                                                                            11,
                                                                            asnperNumStrChars);
                                                                          pe_KnownMultiCharStri_al_clt64K_le255 (
                                                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.k_fld,
                                                                            10,
                                                                            20,
                                                                            4,
                                                                            4,
                                                                            TYP_NUMSTR,
                                                                            11,
                                                                            asnperNumStrChars);
                                                                          pe_SegKnownMultiCharStri_al_u (
                                                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.s_fld,
                                                                            0,
                                                                            2147483647,
                                                                            4,
                                                                            8,
                                                                            TYP_IA5STR,
                                                                            BYTE_TYPE,
                                                                            128,
                                                                            NULL);
                                                                          pe_SegKnownMultiCharStri_al_u (
                                                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i2_fld,
                                                                            0,
                                                                            2147483647,
                                                                            4,
                                                                            4,
                                                                            TYP_IA5STR,
                                                                            BYTE_TYPE,
                                                                            8, "abcdefgh");
                                                                          pe_KnownMultiCharStri_al_clt64K_le255 (
                                                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.i3_fld,
                                                                            10,
                                                                            20,
                                                                            4,
                                                                            8,
                                                                            TYP_PRISTR,
                                                                            74,
                                                                            NULL);
                                                                          pe_OctetString_al_clt64K_le255 (
                                                                            &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.o2_fld,
                                                                            10,
                                                                            20,
                                                                            4);
                                                                          pe_sint32_cwn_al_le64K (
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.n2_fld,
                                                                            10,
                                                                            2000, 2);
                                                                          pe_ChoiceIndex_al_le255 (
                                                                            home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice,
                                                                            10,
                                                                            4);
                                                                          switch (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.t_fld.choice){
                                                                            case 0:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 1:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 2:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 3:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 4:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 5:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 6:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 7:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 8:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 9:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                            case 10:
                                                                              {
                                                                                pe_NullType ();
                                                                              }
                                                                              break;
                                                                          }
                                                                          if (
                                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(24))){
                                                                            pe_OctetString_al_u (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld->val.dyns,
                                                                              0,
                                                                              MAXLONG,
                                                                              4);
                                                                            freeAsn (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.u_fld,
                                                                              FREE_STG);
                                                                          }
                                                                          if (
                                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(25))){
                                                                            {
                                                                              struct t_v_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18 *h1 =
                                                                                (struct t_v_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_T18 *)home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld->val.stru;
                                                                              {
                                                                                pe_OctetString_al_u (
                                                                                  &h1->x_fld,
                                                                                  0,
                                                                                  MAXLONG,
                                                                                  4);
                                                                              }
                                                                            }
                                                                            freeAsn (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.v_fld,
                                                                              FREE_STG);
                                                                          }
                                                                          {
                                                                            pe_OctetString_al_u (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.w_fld->x_fld,
                                                                              0,
                                                                              MAXLONG,
                                                                              4);
                                                                          }
                                                                          {
                                                                            pe_extensionBit (0);
                                                                            pe_Boolean (
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.x_fld.a_fld);
                                                                          }
                                                                          if (
                                                                            (home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.compmask & BITL(28))){
                                                                            pe_sint32_cwn_al_le255 (
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld->val.ui8,
                                                                              0,
                                                                              7, 3);
                                                                            freeAsn (
                                                                              &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.y_fld,
                                                                              FREE_STG);
                                                                          }
                                                                          {
                                                                            {
                                                                              sint32 
                                                                                optfield_19
                                                                                = 0;
                                                                              if (
                                                                                home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld){
                                                                                optfield_19
                                                                                  |= BITL(0);
                                                                              }
                                                                              pe_optField (
                                                                                optfield_19, 
                                                                                1);
                                                                            }
                                                                            if (
                                                                              home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld){
                                                                              pe_NullType ();
                                                                              freeAsn (
                                                                                &home->a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.a_fld.z_fld.a_fld,
                                                                                FREE_STG);
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
