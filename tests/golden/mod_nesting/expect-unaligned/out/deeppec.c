/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Switch_Configuration
 * FILE = deeppec.c
 ****************************************************************/

#ifndef DEEPPER_EXT
#include "deepper.ext"
#endif

void peConfiguration (ASNG_F(ASNPERG *asnperg) Configuration *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if ((home->compmask & BIT(3)) || (home->compmask & BIT(4))){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  pe_sint32_cwn_ua (home->revision_fld, 0, 255, 8);
  {
    {
      sint32 optfield_1 = 0;
      if (home->chassis_fld.compmask & BIT(1)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
    }
    pe_lenDet_ua_clt64K_le64K (staArrLen (&home->chassis_fld.slots_fld), 1, 12, 4);
    {
      uint32 n1 = 0;
      for (n1 = 0; n1 < staArrLen (&home->chassis_fld.slots_fld); n1++){
        {
          pe_sint32_cwn_ua (home->chassis_fld.slots_fld.elem [n1].number_fld,
            0, 11, 4);
          pe_ChoiceIndex_ua_le255 (
            home->chassis_fld.slots_fld.elem [n1].card_fld.choice, 2, 2);
          switch (home->chassis_fld.slots_fld.elem [n1].card_fld.choice){
            case 0:
              {
                pe_NullType ();
              }
              break;
            case 1:
              {
                {
                  {
                    sint32 optfield_5 = 0;
                    if (home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.compmask & BIT(1)){
                      optfield_5 |= BITL(0);
                    }
                    pe_optField (optfield_5, 1);
                  }
                  pe_lenDet_ua_clt64K_eq1 (4, 4, 4, 0);
                  {
                    uint32 n2 = 0;
                    for (n2 = 0; n2 < 4; n2++){
                      {
                        {
                          sint32 optfield_7 = 0;
                          if (home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].compmask & BIT(0)){
                            optfield_7 |= BITL(0);
                          }
                          pe_optField (optfield_7, 1);
                        }
                        if (
                          (home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].compmask & BIT(0))){
                          pe_sint32_cwn_ua (
                            home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].speed_fld,
                            0, 3, 2);
                        }
                        pe_Boolean (
                          home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].enabled_fld);
                      }
                    }
                  }
                  if (
                    (home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.compmask & BIT(1))){
                    pe_KnownMultiCharStri_ua_clt64K (
                      &home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.label_fld,
                      1, 8, 3, 7, TYP_IA5STR, 128, NULL);
                  }
                }
              }
              break;
            case 2:
              {
                {
                  ASNPEROPENCTX openctx_5;
                  BOOLE extensionBit_5 = 0;
                  if (
                    (home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.compmask & BIT(2))){
                    extensionBit_5 = 1;
                  }
                  pe_extensionBit (extensionBit_5);
                  pe_sint32_cwn_ua (
                    home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.group_fld,
                    0, 63, 6);
                  if (extensionBit_5){
                    sint32 extensionAdditionField_5 = 0;
                    if (
                      (home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.compmask & BIT(2))){
                      extensionAdditionField_5 |= BITL(0);
                    }
                    pe_extensionAddition (1, extensionAdditionField_5);
                  }
                  if (
                    (home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.compmask & BIT(2))){
                    pe_BeginOpenType_ua (&openctx_5);
                    pe_sint32_cwn_ua (
                      home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.backup_fld,
                      0, 63, 6);
                    pe_EndOpenType_ua (&openctx_5);
                  }
                }
              }
              break;
          }
        }
      }
    }
    if ((home->chassis_fld.compmask & BIT(1))){
      {
        {
          sint32 optfield_2 = 0;
          if (home->chassis_fld.power_fld.compmask & BIT(1)){
            optfield_2 |= BITL(0);
          }
          pe_optField (optfield_2, 1);
        }
        pe_Boolean (home->chassis_fld.power_fld.main_fld);
        if ((home->chassis_fld.power_fld.compmask & BIT(1))){
          {
            {
              sint32 optfield_3 = 0;
              if (home->chassis_fld.power_fld.reserve_fld.compmask & BIT(1)){
                optfield_3 |= BITL(0);
              }
              pe_optField (optfield_3, 1);
            }
            pe_sint32_cwn_ua (
              home->chassis_fld.power_fld.reserve_fld.volts_fld, 0, 60, 6);
            if ((home->chassis_fld.power_fld.reserve_fld.compmask & BIT(1))){
              pe_Boolean (home->chassis_fld.power_fld.reserve_fld.alarm_fld);
            }
          }
        }
      }
    }
  }
  if (extensionBit_0){
    sint32 extensionAdditionField_0 = 0;
    if ((home->compmask & BIT(3))){
      extensionAdditionField_0 |= BITL(1);
    }
    if ((home->compmask & BIT(4))){
      extensionAdditionField_0 |= BITL(0);
    }
    pe_extensionAddition (2, extensionAdditionField_0);
  }
  if ((home->compmask & BIT(3))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      {
        sint32 optfield_1 = 0;
        if (home->clock_fld.compmask & BIT(1)){
          optfield_1 |= BITL(0);
        }
        pe_optField (optfield_1, 1);
      }
      {
        ASNPEROPENCTX openctx_2;
        BOOLE extensionBit_2 = (home->clock_fld.source_fld.choice > 2);
        pe_extensionBit (extensionBit_2);
        if (!extensionBit_2){
          pe_ChoiceIndex_ua_le255 (home->clock_fld.source_fld.choice, 1, 1);
        }
        else {
          pe_ChoiceIndex_ua_ns (home->clock_fld.source_fld.choice - 3);
        }
        switch (home->clock_fld.source_fld.choice){
          case 0:
            {
              pe_NullType ();
            }
            break;
          case 1:
            {
              pe_sint32_cwn_ua (home->clock_fld.source_fld.i1.external_fld, 1,
                4, 2);
            }
            break;
          case 3:
            {
              pe_BeginOpenType_ua (&openctx_2);
              {
                {
                  sint32 optfield_3 = 0;
                  if (home->clock_fld.source_fld.i1.network_fld.compmask & BIT(0)){
                    optfield_3 |= BITL(0);
                  }
                  pe_optField (optfield_3, 1);
                }
                if (
                  (home->clock_fld.source_fld.i1.network_fld.compmask & BIT(0))){
                  pe_OctetString_ua_flt64K (
                    &home->clock_fld.source_fld.i1.network_fld.address_fld, 4,
                    4, 0);
                }
              }
              pe_EndOpenType_ua (&openctx_2);
            }
            break;
        }
      }
      if ((home->clock_fld.compmask & BIT(1))){
        pe_sint32_cwn_ua (home->clock_fld.offset_fld, -12, 12, 5);
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
  if ((home->compmask & BIT(4))){
    pe_BeginOpenType_ua (&openctx_0);
    {
      sint32 optfield_1 = 0;
      if (home->compmask & BIT(4)){
        optfield_1 |= BITL(0);
      }
      pe_optField (optfield_1, 1);
      if ((home->compmask & BIT(4))){
        pe_lenDet_ua_clt64K_le64K (staArrLen (&home->rules_fld), 0, 5, 3);
        {
          uint32 n1 = 0;
          for (n1 = 0; n1 < staArrLen (&home->rules_fld); n1++){
            pe_ChoiceIndex_ua_le255 (home->rules_fld.elem [n1].choice, 1, 1);
            switch (home->rules_fld.elem [n1].choice){
              case 0:
                {
                  pe_NullType ();
                }
                break;
              case 1:
                {
                  {
                    {
                      sint32 optfield_4 = 0;
                      if (home->rules_fld.elem [n1].i1.limit_fld.compmask & BIT(1)){
                        optfield_4 |= BITL(0);
                      }
                      pe_optField (optfield_4, 1);
                    }
                    pe_sint32_cwn_ua (
                      home->rules_fld.elem [n1].i1.limit_fld.rate_fld, 0,
                      1000, 10);
                    if (
                      (home->rules_fld.elem [n1].i1.limit_fld.compmask & BIT(1))){
                      pe_sint32_cwn_ua (
                        home->rules_fld.elem [n1].i1.limit_fld.burst_fld, 0,
                        1000, 10);
                    }
                  }
                }
                break;
            }
          }
        }
      }
    }
    pe_EndOpenType_ua (&openctx_0);
  }
}

void pecConfiguration (ASNG_F(ASNPERG *asnperg) Configuration *home)
{
  pe_setEncodingVariant (ASN_PER_BASIC_UNALIGNED);
  peConfiguration (ASNG_F(asnperg) home);
  pe_end ();
}

void peMatrix (ASNG_F(ASNPERG *asnperg) Matrix *home)
{
  pe_lenDet_ua_clt64K_eq1 (3, 3, 3, 0);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < 3; n1++){
      pe_lenDet_ua_clt64K_le64K (staArrLen (&home->elem [n1]), 1, 3, 2);
      {
        uint32 n2 = 0;
        for (n2 = 0; n2 < staArrLen (&home->elem [n1]); n2++){
          pe_sint32_cwn_ua (home->elem [n1].elem [n2], 0, 9, 4);
        }
      }
    }
  }
}

void peChain (ASNG_F(ASNPERG *asnperg) Chain *home)
{
  pe_lenDet_ua_clt64K_le64K (listLen (home), 0, 7, 3);
  {
    ASNHOME *a1 = NULL;
    for (a1 = firstListItem (home); a1; a1 = nextListItem (a1)){
      {
        struct t_1_Chain *h1 = (struct t_1_Chain *)a1->val.stru;
        {
          pe_OctetString_ua_flt64K (&h1->hop_fld, 4, 4, 0);
          pe_lenDet_ua_clt64K_le64K (listLen (&h1->next_fld), 0, 7, 3);
          {
            ASNHOME *a2 = NULL;
            for (a2 = firstListItem (&h1->next_fld); a2; a2 =
              nextListItem (a2)){
              {
                struct t_1_next_next_Chain *h2 =
                  (struct t_1_next_next_Chain *)a2->val.stru;
                {
                  {
                    sint32 optfield_3 = 0;
                    if (h2->compmask & BIT(1)){
                      optfield_3 |= BITL(0);
                    }
                    pe_optField (optfield_3, 1);
                  }
                  pe_sint32_cwn_ua (h2->cost_fld, 0, 15, 4);
                  if ((h2->compmask & BIT(1))){
                    pe_OctetString_ua_flt64K (&h2->via_fld, 4, 4, 0);
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

void peExpression (ASNG_F(ASNPERG *asnperg) Expression *home)
{
  pe_ChoiceIndex_ua_le255 (home->choice, 2, 2);
  switch (home->choice){
    case 0:
      {
        pe_sint32_cwn_ua (home->i1.number_fld, 0, 999, 10);
      }
      break;
    case 1:
      {
        {
          peExpression (ASNG_F(asnperg) home->i1.sum_fld.left_fld);
          peExpression (ASNG_F(asnperg) home->i1.sum_fld.right_fld);
        }
      }
      break;
    case 2:
      {
        peExpression (ASNG_F(asnperg) home->i1.negated_fld);
      }
      break;
  }
}
