/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Switch_Configuration
 * FILE = deeppdc.c
 ****************************************************************/

#ifndef DEEPPER_EXT
#include "deepper.ext"
#endif

void pdConfiguration (ASNG_F(ASNPERG *asnperg) Configuration *home)
{
  home->compmask = 0;
  {
    BOOLE extensionBit_0 = pd_extensionBit ();
    pd_sint32_cwn_al_eq256_8 (&home->revision_fld, 0, 255, 1);
    home->chassis_fld.compmask = 0;
    {
      sint32 optfield_1;
      optfield_1 = pd_getBits (1);
      staArrInit (&home->chassis_fld.slots_fld);
      {
        uint32 n1 = 0;
        uint32 len_2;
        pd_lenDet_al_clt64K_le255 (&len_2, 1, 12, 4);
        while (n1 < len_2){
          pd_sint32_cwn_al_le255_8 (
            &home->chassis_fld.slots_fld.elem [n1].number_fld, 0, 11, 4);
          home->chassis_fld.slots_fld.elem [n1].card_fld.choice =
            pd_ChoiceIndex_al_le255 (2, 2);
          switch (home->chassis_fld.slots_fld.elem [n1].card_fld.choice){
            case 0:
              {
                pd_NullType ();
                break;
              }
            case 1:
              {
                home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.compmask = 0;
                {
                  sint32 optfield_5;
                  optfield_5 = pd_getBits (1);
                  staArr0Init (
                    &home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld);
                  {
                    uint32 n2 = 0;
                    pd_lenDet_al_clt64K_eq1 (NULL, 4, 4, 0);
                    while (n2 < 4){
                      home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].compmask = 0;
                      {
                        sint32 optfield_7;
                        optfield_7 = pd_getBits (1);
                        if (optfield_7 & BITL(0)){
                          home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].compmask |= BIT(0);
                          pd_sint32_cwn_al_le255_8 (
                            &home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].speed_fld,
                            0, 3, 2);
                        }
                        pd_Boolean (
                          &home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.ports_fld.elem [n2].enabled_fld);
                      }
                      n2++;
                    }
                  }
                  if (optfield_5 & BITL(0)){
                    home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.compmask |= BIT(1);
                    pd_KnownMultiCharStri_al_clt64K_le255 (
                      &home->chassis_fld.slots_fld.elem [n1].card_fld.i1.line_fld.label_fld,
                      1, 8, 3, 8, TYP_IA5STR, 128, NULL);
                  }
                }
                break;
              }
            case 2:
              {
                home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.compmask = 0;
                {
                  BOOLE extensionBit_5 = pd_extensionBit ();
                  pd_sint32_cwn_al_le255_8 (
                    &home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.group_fld,
                    0, 63, 6);
                  if (extensionBit_5){
                    sint32 extensionAdditionField_5 = 0;
                    int extensionAdditionCount_5 = pd_extensionAddition (1,
                      &extensionAdditionField_5);
                    ASNPEROPENCTX openctx_5;
                    if (extensionAdditionField_5 & BITL(0)){
                      pd_BeginOpenType_al (&openctx_5);
                      home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.compmask |= BIT(2);
                      pd_sint32_cwn_al_le255_8 (
                        &home->chassis_fld.slots_fld.elem [n1].card_fld.i1.trunk_fld.backup_fld,
                        0, 63, 6);
                      pd_EndOpenType_al (&openctx_5);
                    }
                    pd_SkipExtendedComponents (extensionAdditionCount_5);
                  }
                }
                break;
              }
          }
          incStaArrLen (&home->chassis_fld.slots_fld);
          n1++;
        }
      }
      if (optfield_1 & BITL(0)){
        home->chassis_fld.compmask |= BIT(1);
        home->chassis_fld.power_fld.compmask = 0;
        {
          sint32 optfield_2;
          optfield_2 = pd_getBits (1);
          pd_Boolean (&home->chassis_fld.power_fld.main_fld);
          if (optfield_2 & BITL(0)){
            home->chassis_fld.power_fld.compmask |= BIT(1);
            home->chassis_fld.power_fld.reserve_fld.compmask = 0;
            {
              sint32 optfield_3;
              optfield_3 = pd_getBits (1);
              pd_sint32_cwn_al_le255_8 (
                &home->chassis_fld.power_fld.reserve_fld.volts_fld, 0, 60, 6);
              if (optfield_3 & BITL(0)){
                home->chassis_fld.power_fld.reserve_fld.compmask |= BIT(1);
                pd_Boolean (
                  &home->chassis_fld.power_fld.reserve_fld.alarm_fld);
              }
            }
          }
        }
      }
    }
    if (extensionBit_0){
      sint32 extensionAdditionField_0 = 0;
      int extensionAdditionCount_0 = pd_extensionAddition (2,
        &extensionAdditionField_0);
      ASNPEROPENCTX openctx_0;
      if (extensionAdditionField_0 & BITL(1)){
        pd_BeginOpenType_al (&openctx_0);
        home->compmask |= BIT(3);
        home->clock_fld.compmask = 0;
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          {
            ASNPEROPENCTX openctx_2;
            {
              BOOLE extensionBit_2 = pd_extensionBit ();
              if (!extensionBit_2){
                home->clock_fld.source_fld.choice = pd_ChoiceIndex_al_le255 (1,
                  1);
              }
              else {
                home->clock_fld.source_fld.choice = 3 + pd_ChoiceIndex_al_ns ();
              }
              switch (home->clock_fld.source_fld.choice){
                case 0:
                  {
                    pd_NullType ();
                    break;
                  }
                case 1:
                  {
                    pd_sint32_cwn_al_le255_8 (
                      &home->clock_fld.source_fld.i1.external_fld, 1, 4, 2);
                    break;
                  }
                case 3:
                  {
                    pd_BeginOpenType_al (&openctx_2);
                    home->clock_fld.source_fld.i1.network_fld.compmask = 0;
                    {
                      sint32 optfield_3;
                      optfield_3 = pd_getBits (1);
                      if (optfield_3 & BITL(0)){
                        home->clock_fld.source_fld.i1.network_fld.compmask |= BIT(0);
                        pd_OctetString_al_flt64K_0 (
                          &home->clock_fld.source_fld.i1.network_fld.address_fld,
                          4, 4, 0);
                      }
                    }
                    pd_EndOpenType_al (&openctx_2);
                    break;
                  }
                default:
                  {
                    home->clock_fld.source_fld.choice = 2;
                    pd_SkipExtendedComponents (1);
                  }
              }
            }
          }
          if (optfield_1 & BITL(0)){
            home->clock_fld.compmask |= BIT(1);
            pd_sint32_cwn_al_le255_8 (&home->clock_fld.offset_fld, -12, 12, 5);
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      if (extensionAdditionField_0 & BITL(0)){
        pd_BeginOpenType_al (&openctx_0);
        {
          sint32 optfield_1;
          optfield_1 = pd_getBits (1);
          if (optfield_1 & BITL(0)){
            home->compmask |= BIT(4);
            staArrInit (&home->rules_fld);
            {
              uint32 n1 = 0;
              uint32 len_2;
              pd_lenDet_al_clt64K_le255 (&len_2, 0, 5, 3);
              while (n1 < len_2){
                home->rules_fld.elem [n1].choice = pd_ChoiceIndex_al_le255 (1,
                  1);
                switch (home->rules_fld.elem [n1].choice){
                  case 0:
                    {
                      pd_NullType ();
                      break;
                    }
                  case 1:
                    {
                      home->rules_fld.elem [n1].i1.limit_fld.compmask = 0;
                      {
                        sint32 optfield_4;
                        optfield_4 = pd_getBits (1);
                        pd_sint32_cwn_al_le64K_16 (
                          &home->rules_fld.elem [n1].i1.limit_fld.rate_fld, 0,
                          1000, 2);
                        if (optfield_4 & BITL(0)){
                          home->rules_fld.elem [n1].i1.limit_fld.compmask |= BIT(1);
                          pd_sint32_cwn_al_le64K_16 (
                            &home->rules_fld.elem [n1].i1.limit_fld.burst_fld,
                            0, 1000, 2);
                        }
                      }
                      break;
                    }
                }
                incStaArrLen (&home->rules_fld);
                n1++;
              }
            }
          }
        }
        pd_EndOpenType_al (&openctx_0);
      }
      pd_SkipExtendedComponents (extensionAdditionCount_0);
    }
  }
}

void pdcConfiguration (ASNG_F(ASNPERG *asnperg) Configuration *home)
{
  pd_setEncodingVariant (ASN_PER_BASIC_ALIGNED);
  pdConfiguration (ASNG_F(asnperg) home);
  pd_end ();
}

void pdMatrix (ASNG_F(ASNPERG *asnperg) Matrix *home)
{
  staArr0Init (home);
  {
    uint32 n1 = 0;
    pd_lenDet_al_clt64K_eq1 (NULL, 3, 3, 0);
    while (n1 < 3){
      staArrInit (&home->elem [n1]);
      {
        uint32 n2 = 0;
        uint32 len_1;
        pd_lenDet_al_clt64K_le255 (&len_1, 1, 3, 2);
        while (n2 < len_1){
          pd_sint32_cwn_al_le255_8 (&home->elem [n1].elem [n2], 0, 9, 4);
          incStaArrLen (&home->elem [n1]);
          n2++;
        }
      }
      n1++;
    }
  }
}

void pdChain (ASNG_F(ASNPERG *asnperg) Chain *home)
{
  listInit (home);
  {
    ASNHOME *a1 = NULL;
    uint32 len_0;
    pd_lenDet_al_clt64K_le255 (&len_0, 0, 7, 3);
    while (listLen (home) < len_0){
      appendList (NULL, home, &a1, VF_STRU, sizeof (struct t_1_Chain));
      {
        struct t_1_Chain *h1 = (struct t_1_Chain *)a1->val.stru;
        pd_OctetString_al_flt64K_0 (&h1->hop_fld, 4, 4, 0);
        listInit (&h1->next_fld);
        {
          ASNHOME *a2 = NULL;
          uint32 len_2;
          pd_lenDet_al_clt64K_le255 (&len_2, 0, 7, 3);
          while (listLen (&h1->next_fld) < len_2){
            appendList (NULL, &h1->next_fld, &a2, VF_STRU,
              sizeof (struct t_1_next_next_Chain));
            {
              struct t_1_next_next_Chain *h2 =
                (struct t_1_next_next_Chain *)a2->val.stru;
              h2->compmask = 0;
              {
                sint32 optfield_3;
                optfield_3 = pd_getBits (1);
                pd_sint32_cwn_al_le255_8 (&h2->cost_fld, 0, 15, 4);
                if (optfield_3 & BITL(0)){
                  h2->compmask |= BIT(1);
                  pd_OctetString_al_flt64K_0 (&h2->via_fld, 4, 4, 0);
                }
              }
            }
            incListLen (&h1->next_fld);
          }
        }
      }
      incListLen (home);
    }
  }
}

void pdExpression (ASNG_F(ASNPERG *asnperg) Expression *home)
{
  home->choice = pd_ChoiceIndex_al_le255 (2, 2);
  switch (home->choice){
    case 0:
      {
        pd_sint32_cwn_al_le64K_16 (&home->i1.number_fld, 0, 999, 2);
        break;
      }
    case 1:
      {
        if (!(home->i1.sum_fld.left_fld = (Expression *)allocAsn (NULL,
          MB_STG, sizeof (Expression)))){
          reportFatalError (LACK_OF_MEMORY);
        }
        pdExpression (ASNG_F(asnperg) home->i1.sum_fld.left_fld);
        if (!(home->i1.sum_fld.right_fld = (Expression *)allocAsn (NULL,
          MB_STG, sizeof (Expression)))){
          reportFatalError (LACK_OF_MEMORY);
        }
        pdExpression (ASNG_F(asnperg) home->i1.sum_fld.right_fld);
        break;
      }
    case 2:
      {
        if (!(home->i1.negated_fld = (Expression *)allocAsn (NULL, MB_STG,
          sizeof (Expression)))){
          reportFatalError (LACK_OF_MEMORY);
        }
        pdExpression (ASNG_F(asnperg) home->i1.negated_fld);
        break;
      }
  }
}
