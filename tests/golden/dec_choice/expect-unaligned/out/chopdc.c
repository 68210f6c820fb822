/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Choices
 * FILE = chopdc.c
 ****************************************************************/

#ifndef CHOPER_EXT
#include "choper.ext"
#endif

void pdStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pd_Boolean (&home->x_fld);
}

void pdTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 1:
      {
        pdStruct (ASNG_F(asnperg) &home->i1.b_fld);
        break;
      }
  }
}

void pdWide (ASNG_F(ASNPERG *asnperg) Wide *home)
{
  home->choice = (sint16)pd_ChoiceIndex_ua_le255 (1, 1);
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
  }
}

void pdWider (ASNG_F(ASNPERG *asnperg) Wider *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = 0;
  }
  else {
    home->choice = 2 + (uint32)pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 2:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_NullType ();
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 1;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  home->choice = 0;
  pd_Boolean (&home->i1.a_fld);
}

void pdOneAndMarker (ASNG_F(ASNPERG *asnperg) OneAndMarker *home)
{
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = 0;
  }
  else {
    home->choice = 2 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    default:
      {
        home->choice = 1;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdOneAndAdditions (ASNG_F(ASNPERG *asnperg) OneAndAdditions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = 0;
  }
  else {
    home->choice = 2 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 2:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_NullType ();
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    case 3:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_Boolean (&home->i1.c_fld);
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 1;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdAdditions (ASNG_F(ASNPERG *asnperg) Additions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (-1, 0);
  }
  else {
    home->choice = 1 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 1:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_Boolean (&home->i1.a_fld);
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    case 2:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_NullType ();
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 0;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdMarkerAlone (ASNG_F(ASNPERG *asnperg) MarkerAlone *home)
{
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (-1, 0);
  }
  else {
    home->choice = 1 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
  default:
    {
      home->choice = 0;
      pd_SkipExtendedComponents (1);
    }
}
}

void pdMarkerLast (ASNG_F(ASNPERG *asnperg) MarkerLast *home)
{
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = pd_ChoiceIndex_ua_le255 (1, 1);
  }
  else {
    home->choice = 3 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 1:
      {
        pd_NullType ();
        break;
      }
    default:
      {
        home->choice = 2;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdVersions (ASNG_F(ASNPERG *asnperg) Versions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = pd_extensionBit ();
  if (!extensionBit_0){
    home->choice = 0;
  }
  else {
    home->choice = 2 + pd_ChoiceIndex_ua_ns ();
  }
  switch (home->choice){
    case 0:
      {
        pd_Boolean (&home->i1.a_fld);
        break;
      }
    case 2:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_NullType ();
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    case 3:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_Boolean (&home->i1.c_fld);
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    case 4:
      {
        pd_BeginOpenType_ua (&openctx_0);
        pd_NullType ();
        pd_EndOpenType_ua (&openctx_0);
        break;
      }
    default:
      {
        home->choice = 1;
        pd_SkipExtendedComponents (1);
      }
  }
}

void pdInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  home->compmask = 0;
  {
    sint32 optfield_0;
    optfield_0 = pd_getBits (1);
    home->a_fld.choice = pd_ChoiceIndex_ua_le255 (1, 1);
    switch (home->a_fld.choice){
      case 0:
        {
          pd_Boolean (&home->a_fld.i1.x_fld);
          break;
        }
      case 1:
        {
          {
            ASNPEROPENCTX openctx_2;
            {
              BOOLE extensionBit_2 = pd_extensionBit ();
              if (!extensionBit_2){
                home->a_fld.i1.y_fld.choice = 0;
              }
              else {
                home->a_fld.i1.y_fld.choice = 2 + pd_ChoiceIndex_ua_ns ();
              }
              switch (home->a_fld.i1.y_fld.choice){
                case 0:
                  {
                    pd_NullType ();
                    break;
                  }
                case 2:
                  {
                    pd_BeginOpenType_ua (&openctx_2);
                    pd_Boolean (&home->a_fld.i1.y_fld.i1.u_fld);
                    pd_EndOpenType_ua (&openctx_2);
                    break;
                  }
                default:
                  {
                    home->a_fld.i1.y_fld.choice = 1;
                    pd_SkipExtendedComponents (1);
                  }
              }
            }
          }
          break;
        }
    }
    if (optfield_0 & BITL(0)){
      home->compmask |= BIT(1);
      home->b_fld.choice = 0;
      pd_Boolean (&home->b_fld.i1.x_fld);
    }
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->c_fld.choice = 0;
      }
      else {
        home->c_fld.choice = 2 + pd_ChoiceIndex_ua_ns ();
      }
      switch (home->c_fld.choice){
        case 0:
          {
            pd_Boolean (&home->c_fld.i1.x_fld);
            break;
          }
        default:
          {
            home->c_fld.choice = 1;
            pd_SkipExtendedComponents (1);
          }
      }
    }
    staArrInit (&home->d_fld);
    {
      uint32 n1 = 0;
      uint32 len_1;
      pd_lenDet_ua_clt64K_le64K (&len_1, 1, 3, 2);
      while (n1 < len_1){
        {
          ASNPEROPENCTX openctx_2;
          {
            BOOLE extensionBit_2 = pd_extensionBit ();
            if (!extensionBit_2){
              home->d_fld.elem [n1].choice = 0;
            }
            else {
              home->d_fld.elem [n1].choice = 2 + pd_ChoiceIndex_ua_ns ();
            }
            switch (home->d_fld.elem [n1].choice){
              case 0:
                {
                  pd_Boolean (&home->d_fld.elem [n1].i1.x_fld);
                  break;
                }
              case 2:
                {
                  pd_BeginOpenType_ua (&openctx_2);
                  pd_NullType ();
                  pd_EndOpenType_ua (&openctx_2);
                  break;
                }
              default:
                {
                  home->d_fld.elem [n1].choice = 1;
                  pd_SkipExtendedComponents (1);
                }
            }
          }
        }
        incStaArrLen (&home->d_fld);
        n1++;
      }
    }
  }
}

void pdHomesTwo (ASNG_F(ASNPERG *asnperg) HomesTwo *home)
{
  memset (home, 0, sizeof (HomesTwo));
  {
    sint8 choice_0;
    choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    switch (choice_0){
      case 0:
        {
          createHome (NULL, &home->a_fld, VF_BOOL, 0);
          pd_Boolean (&home->a_fld->val.bool);
          break;
        }
      case 1:
        {
          createHome (NULL, &home->b_fld, VF_STRU, sizeof (Struct));
          pdStruct (ASNG_F(asnperg) (Struct *)home->b_fld->val.stru);
          break;
        }
    }
  }
}

void pdHomesOne (ASNG_F(ASNPERG *asnperg) HomesOne *home)
{
  memset (home, 0, sizeof (HomesOne));
  createHome (NULL, &home->a_fld, VF_BOOL, 0);
  pd_Boolean (&home->a_fld->val.bool);
}

void pdHomesMarker (ASNG_F(ASNPERG *asnperg) HomesMarker *home)
{
  memset (home, 0, sizeof (HomesMarker));
  {
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = 0;
    }
    else {
      choice_0 = 2 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (NULL, &home->a_fld, VF_BOOL, 0);
          pd_Boolean (&home->a_fld->val.bool);
          break;
        }
      default:
        {
          createHome (NULL, &home->extensionmarker, VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
}

void pdHomesAdditions (ASNG_F(ASNPERG *asnperg) HomesAdditions *home)
{
  memset (home, 0, sizeof (HomesAdditions));
  {
    ASNPEROPENCTX openctx_0;
    sint8 choice_0;
    BOOLE extensionBit_0 = pd_extensionBit ();
    if (!extensionBit_0){
      choice_0 = pd_ChoiceIndex_ua_le255 (1, 1);
    }
    else {
      choice_0 = 3 + pd_ChoiceIndex_ua_ns ();
    }
    switch (choice_0){
      case 0:
        {
          createHome (NULL, &home->a_fld, VF_BOOL, 0);
          pd_Boolean (&home->a_fld->val.bool);
          break;
        }
      case 1:
        {
          createHome (NULL, &home->b_fld, VF_NULL, 0);
          pd_NullType ();
          break;
        }
      case 3:
        {
          pd_BeginOpenType_ua (&openctx_0);
          createHome (NULL, &home->c_fld, VF_STRU,
            sizeof (struct t_c_HomesAdditions));
          {
            struct t_c_HomesAdditions *h1 =
              (struct t_c_HomesAdditions *)home->c_fld->val.stru;
            pd_Boolean (&h1->x_fld);
          }
          pd_EndOpenType_ua (&openctx_0);
          break;
        }
      default:
        {
          createHome (NULL, &home->extensionmarker, VF_NULL, 0);
          pd_SkipExtendedComponents (1);
        }
    }
  }
}

void pdHomesInline (ASNG_F(ASNPERG *asnperg) HomesInline *home)
{
  memset (&home->a_fld, 0, sizeof (struct t_a_HomesInline));
  {
    ASNPEROPENCTX openctx_1;
    sint8 choice_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        choice_1 = pd_ChoiceIndex_ua_le255 (1, 1);
      }
      else {
        choice_1 = 3 + pd_ChoiceIndex_ua_ns ();
      }
      switch (choice_1){
        case 0:
          {
            createHome (NULL, &home->a_fld.x_fld, VF_BOOL, 0);
            pd_Boolean (&home->a_fld.x_fld->val.bool);
            break;
          }
        case 1:
          {
            createHome (NULL, &home->a_fld.y_fld, VF_NULL, 0);
            pd_NullType ();
            break;
          }
        case 3:
          {
            pd_BeginOpenType_ua (&openctx_1);
            createHome (NULL, &home->a_fld.z_fld, VF_BOOL, 0);
            pd_Boolean (&home->a_fld.z_fld->val.bool);
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            createHome (NULL, &home->a_fld.extensionmarker, VF_NULL, 0);
            pd_SkipExtendedComponents (1);
          }
      }
    }
  }
}

void pdBound (ASNG_F(ASNPERG *asnperg) Bound *home)
{
  createHome (NULL, &home->a_fld, VF_STRU, sizeof (struct t_a_Bound));
  {
    struct t_a_Bound *h1 = (struct t_a_Bound *)home->a_fld->val.stru;
    {
      ASNPEROPENCTX openctx_1;
      {
        BOOLE extensionBit_1 = pd_extensionBit ();
        if (!extensionBit_1){
          h1->choice = pd_ChoiceIndex_ua_le255 (1, 1);
        }
        else {
          h1->choice = 3 + pd_ChoiceIndex_ua_ns ();
        }
        switch (h1->choice){
          case 0:
            {
              pd_Boolean (&h1->i1.x_fld);
              break;
            }
          case 1:
            {
              pd_NullType ();
              break;
            }
          case 3:
            {
              pd_BeginOpenType_ua (&openctx_1);
              pd_Boolean (&h1->i1.z_fld);
              pd_EndOpenType_ua (&openctx_1);
              break;
            }
          default:
            {
              h1->choice = 2;
              pd_SkipExtendedComponents (1);
            }
        }
      }
    }
  }
}

void pdBreaks (ASNG_F(ASNPERG *asnperg) Breaks *home)
{
  {
    ASNPEROPENCTX openctx_1;
    {
      BOOLE extensionBit_1 = pd_extensionBit ();
      if (!extensionBit_1){
        home->a_component_with_a_long_name_fld.choice =
          (uint8)pd_ChoiceIndex_ua_le255 (1, 1);
      }
      else {
        home->a_component_with_a_long_name_fld.choice = 3 +
          (uint8)pd_ChoiceIndex_ua_ns ();
      }
      switch (home->a_component_with_a_long_name_fld.choice){
        case 0:
          {
            pd_Boolean (&home->a_component_with_a_long_name_fld.i1.x_fld);
            break;
          }
        case 1:
          {
            pd_NullType ();
            break;
          }
        case 3:
          {
            pd_BeginOpenType_ua (&openctx_1);
            pd_Boolean (&home->a_component_with_a_long_name_fld.i1.z_fld);
            pd_EndOpenType_ua (&openctx_1);
            break;
          }
        default:
          {
            home->a_component_with_a_long_name_fld.choice = 2;
            pd_SkipExtendedComponents (1);
          }
      }
    }
  }
}

void pdMany (ASNG_F(ASNPERG *asnperg) Many *home)
{
  home->choice = 0;
  switch (home->choice){
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
    case 11:
      {
        pd_NullType ();
        break;
      }
    case 12:
      {
        pd_NullType ();
        break;
      }
    case 13:
      {
        pd_NullType ();
        break;
      }
    case 14:
      {
        pd_NullType ();
        break;
      }
    case 15:
      {
        pd_NullType ();
        break;
      }
    case 16:
      {
        pd_NullType ();
        break;
      }
    case 17:
      {
        pd_NullType ();
        break;
      }
    case 18:
      {
        pd_NullType ();
        break;
      }
    case 19:
      {
        pd_NullType ();
        break;
      }
    case 20:
      {
        pd_NullType ();
        break;
      }
    case 21:
      {
        pd_NullType ();
        break;
      }
    case 22:
      {
        pd_NullType ();
        break;
      }
    case 23:
      {
        pd_NullType ();
        break;
      }
    case 24:
      {
        pd_NullType ();
        break;
      }
    case 25:
      {
        pd_NullType ();
        break;
      }
    case 26:
      {
        pd_NullType ();
        break;
      }
    case 27:
      {
        pd_NullType ();
        break;
      }
    case 28:
      {
        pd_NullType ();
        break;
      }
    case 29:
      {
        pd_NullType ();
        break;
      }
    case 30:
      {
        pd_NullType ();
        break;
      }
    case 31:
      {
        pd_NullType ();
        break;
      }
    case 32:
      {
        pd_NullType ();
        break;
      }
    case 33:
      {
        pd_NullType ();
        break;
      }
    case 34:
      {
        pd_NullType ();
        break;
      }
    case 35:
      {
        pd_NullType ();
        break;
      }
    case 36:
      {
        pd_NullType ();
        break;
      }
    case 37:
      {
        pd_NullType ();
        break;
      }
    case 38:
      {
        pd_NullType ();
        break;
      }
    case 39:
      {
        pd_NullType ();
        break;
      }
    case 40:
      {
        pd_NullType ();
        break;
      }
    case 41:
      {
        pd_NullType ();
        break;
      }
    case 42:
      {
        pd_NullType ();
        break;
      }
    case 43:
      {
        pd_NullType ();
        break;
      }
    case 44:
      {
        pd_NullType ();
        break;
      }
    case 45:
      {
        pd_NullType ();
        break;
      }
    case 46:
      {
        pd_NullType ();
        break;
      }
    case 47:
      {
        pd_NullType ();
        break;
      }
    case 48:
      {
        pd_NullType ();
        break;
      }
    case 49:
      {
        pd_NullType ();
        break;
      }
    case 50:
      {
        pd_NullType ();
        break;
      }
    case 51:
      {
        pd_NullType ();
        break;
      }
    case 52:
      {
        pd_NullType ();
        break;
      }
    case 53:
      {
        pd_NullType ();
        break;
      }
    case 54:
      {
        pd_NullType ();
        break;
      }
    case 55:
      {
        pd_NullType ();
        break;
      }
    case 56:
      {
        pd_NullType ();
        break;
      }
    case 57:
      {
        pd_NullType ();
        break;
      }
    case 58:
      {
        pd_NullType ();
        break;
      }
    case 59:
      {
        pd_NullType ();
        break;
      }
    case 60:
      {
        pd_NullType ();
        break;
      }
    case 61:
      {
        pd_NullType ();
        break;
      }
    case 62:
      {
        pd_NullType ();
        break;
      }
    case 63:
      {
        pd_NullType ();
        break;
      }
    case 64:
      {
        pd_NullType ();
        break;
      }
    case 65:
      {
        pd_NullType ();
        break;
      }
    case 66:
      {
        pd_NullType ();
        break;
      }
    case 67:
      {
        pd_NullType ();
        break;
      }
    case 68:
      {
        pd_NullType ();
        break;
      }
    case 69:
      {
        pd_NullType ();
        break;
      }
    case 70:
      {
        pd_NullType ();
        break;
      }
    case 71:
      {
        pd_NullType ();
        break;
      }
    case 72:
      {
        pd_NullType ();
        break;
      }
    case 73:
      {
        pd_NullType ();
        break;
      }
    case 74:
      {
        pd_NullType ();
        break;
      }
    case 75:
      {
        pd_NullType ();
        break;
      }
    case 76:
      {
        pd_NullType ();
        break;
      }
    case 77:
      {
        pd_NullType ();
        break;
      }
    case 78:
      {
        pd_NullType ();
        break;
      }
    case 79:
      {
        pd_NullType ();
        break;
      }
    case 80:
      {
        pd_NullType ();
        break;
      }
    case 81:
      {
        pd_NullType ();
        break;
      }
    case 82:
      {
        pd_NullType ();
        break;
      }
    case 83:
      {
        pd_NullType ();
        break;
      }
    case 84:
      {
        pd_NullType ();
        break;
      }
    case 85:
      {
        pd_NullType ();
        break;
      }
    case 86:
      {
        pd_NullType ();
        break;
      }
    case 87:
      {
        pd_NullType ();
        break;
      }
    case 88:
      {
        pd_NullType ();
        break;
      }
    case 89:
      {
        pd_NullType ();
        break;
      }
    case 90:
      {
        pd_NullType ();
        break;
      }
    case 91:
      {
        pd_NullType ();
        break;
      }
    case 92:
      {
        pd_NullType ();
        break;
      }
    case 93:
      {
        pd_NullType ();
        break;
      }
    case 94:
      {
        pd_NullType ();
        break;
      }
    case 95:
      {
        pd_NullType ();
        break;
      }
    case 96:
      {
        pd_NullType ();
        break;
      }
    case 97:
      {
        pd_NullType ();
        break;
      }
    case 98:
      {
        pd_NullType ();
        break;
      }
    case 99:
      {
        pd_NullType ();
        break;
      }
    case 100:
      {
        pd_NullType ();
        break;
      }
    case 101:
      {
        pd_NullType ();
        break;
      }
    case 102:
      {
        pd_NullType ();
        break;
      }
    case 103:
      {
        pd_NullType ();
        break;
      }
    case 104:
      {
        pd_NullType ();
        break;
      }
    case 105:
      {
        pd_NullType ();
        break;
      }
    case 106:
      {
        pd_NullType ();
        break;
      }
    case 107:
      {
        pd_NullType ();
        break;
      }
    case 108:
      {
        pd_NullType ();
        break;
      }
    case 109:
      {
        pd_NullType ();
        break;
      }
    case 110:
      {
        pd_NullType ();
        break;
      }
    case 111:
      {
        pd_NullType ();
        break;
      }
    case 112:
      {
        pd_NullType ();
        break;
      }
    case 113:
      {
        pd_NullType ();
        break;
      }
    case 114:
      {
        pd_NullType ();
        break;
      }
    case 115:
      {
        pd_NullType ();
        break;
      }
    case 116:
      {
        pd_NullType ();
        break;
      }
    case 117:
      {
        pd_NullType ();
        break;
      }
    case 118:
      {
        pd_NullType ();
        break;
      }
    case 119:
      {
        pd_NullType ();
        break;
      }
    case 120:
      {
        pd_NullType ();
        break;
      }
    case 121:
      {
        pd_NullType ();
        break;
      }
    case 122:
      {
        pd_NullType ();
        break;
      }
    case 123:
      {
        pd_NullType ();
        break;
      }
    case 124:
      {
        pd_NullType ();
        break;
      }
    case 125:
      {
        pd_NullType ();
        break;
      }
    case 126:
      {
        pd_NullType ();
        break;
      }
    case 127:
      {
        pd_NullType ();
        break;
      }
    case 128:
      {
        pd_NullType ();
        break;
      }
    case 129:
      {
        pd_NullType ();
        break;
      }
    case 130:
      {
        pd_NullType ();
        break;
      }
    case 131:
      {
        pd_NullType ();
        break;
      }
    case 132:
      {
        pd_NullType ();
        break;
      }
    case 133:
      {
        pd_NullType ();
        break;
      }
    case 134:
      {
        pd_NullType ();
        break;
      }
    case 135:
      {
        pd_NullType ();
        break;
      }
    case 136:
      {
        pd_NullType ();
        break;
      }
    case 137:
      {
        pd_NullType ();
        break;
      }
    case 138:
      {
        pd_NullType ();
        break;
      }
    case 139:
      {
        pd_NullType ();
        break;
      }
    case 140:
      {
        pd_NullType ();
        break;
      }
    case 141:
      {
        pd_NullType ();
        break;
      }
    case 142:
      {
        pd_NullType ();
        break;
      }
    case 143:
      {
        pd_NullType ();
        break;
      }
    case 144:
      {
        pd_NullType ();
        break;
      }
    case 145:
      {
        pd_NullType ();
        break;
      }
    case 146:
      {
        pd_NullType ();
        break;
      }
    case 147:
      {
        pd_NullType ();
        break;
      }
    case 148:
      {
        pd_NullType ();
        break;
      }
    case 149:
      {
        pd_NullType ();
        break;
      }
    case 150:
      {
        pd_NullType ();
        break;
      }
    case 151:
      {
        pd_NullType ();
        break;
      }
    case 152:
      {
        pd_NullType ();
        break;
      }
    case 153:
      {
        pd_NullType ();
        break;
      }
    case 154:
      {
        pd_NullType ();
        break;
      }
    case 155:
      {
        pd_NullType ();
        break;
      }
    case 156:
      {
        pd_NullType ();
        break;
      }
    case 157:
      {
        pd_NullType ();
        break;
      }
    case 158:
      {
        pd_NullType ();
        break;
      }
    case 159:
      {
        pd_NullType ();
        break;
      }
    case 160:
      {
        pd_NullType ();
        break;
      }
    case 161:
      {
        pd_NullType ();
        break;
      }
    case 162:
      {
        pd_NullType ();
        break;
      }
    case 163:
      {
        pd_NullType ();
        break;
      }
    case 164:
      {
        pd_NullType ();
        break;
      }
    case 165:
      {
        pd_NullType ();
        break;
      }
    case 166:
      {
        pd_NullType ();
        break;
      }
    case 167:
      {
        pd_NullType ();
        break;
      }
    case 168:
      {
        pd_NullType ();
        break;
      }
    case 169:
      {
        pd_NullType ();
        break;
      }
    case 170:
      {
        pd_NullType ();
        break;
      }
    case 171:
      {
        pd_NullType ();
        break;
      }
    case 172:
      {
        pd_NullType ();
        break;
      }
    case 173:
      {
        pd_NullType ();
        break;
      }
    case 174:
      {
        pd_NullType ();
        break;
      }
    case 175:
      {
        pd_NullType ();
        break;
      }
    case 176:
      {
        pd_NullType ();
        break;
      }
    case 177:
      {
        pd_NullType ();
        break;
      }
    case 178:
      {
        pd_NullType ();
        break;
      }
    case 179:
      {
        pd_NullType ();
        break;
      }
    case 180:
      {
        pd_NullType ();
        break;
      }
    case 181:
      {
        pd_NullType ();
        break;
      }
    case 182:
      {
        pd_NullType ();
        break;
      }
    case 183:
      {
        pd_NullType ();
        break;
      }
    case 184:
      {
        pd_NullType ();
        break;
      }
    case 185:
      {
        pd_NullType ();
        break;
      }
    case 186:
      {
        pd_NullType ();
        break;
      }
    case 187:
      {
        pd_NullType ();
        break;
      }
    case 188:
      {
        pd_NullType ();
        break;
      }
    case 189:
      {
        pd_NullType ();
        break;
      }
    case 190:
      {
        pd_NullType ();
        break;
      }
    case 191:
      {
        pd_NullType ();
        break;
      }
    case 192:
      {
        pd_NullType ();
        break;
      }
    case 193:
      {
        pd_NullType ();
        break;
      }
    case 194:
      {
        pd_NullType ();
        break;
      }
    case 195:
      {
        pd_NullType ();
        break;
      }
    case 196:
      {
        pd_NullType ();
        break;
      }
    case 197:
      {
        pd_NullType ();
        break;
      }
    case 198:
      {
        pd_NullType ();
        break;
      }
    case 199:
      {
        pd_NullType ();
        break;
      }
    case 200:
      {
        pd_NullType ();
        break;
      }
    case 201:
      {
        pd_NullType ();
        break;
      }
    case 202:
      {
        pd_NullType ();
        break;
      }
    case 203:
      {
        pd_NullType ();
        break;
      }
    case 204:
      {
        pd_NullType ();
        break;
      }
    case 205:
      {
        pd_NullType ();
        break;
      }
    case 206:
      {
        pd_NullType ();
        break;
      }
    case 207:
      {
        pd_NullType ();
        break;
      }
    case 208:
      {
        pd_NullType ();
        break;
      }
    case 209:
      {
        pd_NullType ();
        break;
      }
    case 210:
      {
        pd_NullType ();
        break;
      }
    case 211:
      {
        pd_NullType ();
        break;
      }
    case 212:
      {
        pd_NullType ();
        break;
      }
    case 213:
      {
        pd_NullType ();
        break;
      }
    case 214:
      {
        pd_NullType ();
        break;
      }
    case 215:
      {
        pd_NullType ();
        break;
      }
    case 216:
      {
        pd_NullType ();
        break;
      }
    case 217:
      {
        pd_NullType ();
        break;
      }
    case 218:
      {
        pd_NullType ();
        break;
      }
    case 219:
      {
        pd_NullType ();
        break;
      }
    case 220:
      {
        pd_NullType ();
        break;
      }
    case 221:
      {
        pd_NullType ();
        break;
      }
    case 222:
      {
        pd_NullType ();
        break;
      }
    case 223:
      {
        pd_NullType ();
        break;
      }
    case 224:
      {
        pd_NullType ();
        break;
      }
    case 225:
      {
        pd_NullType ();
        break;
      }
    case 226:
      {
        pd_NullType ();
        break;
      }
    case 227:
      {
        pd_NullType ();
        break;
      }
    case 228:
      {
        pd_NullType ();
        break;
      }
    case 229:
      {
        pd_NullType ();
        break;
      }
    case 230:
      {
        pd_NullType ();
        break;
      }
    case 231:
      {
        pd_NullType ();
        break;
      }
    case 232:
      {
        pd_NullType ();
        break;
      }
    case 233:
      {
        pd_NullType ();
        break;
      }
    case 234:
      {
        pd_NullType ();
        break;
      }
    case 235:
      {
        pd_NullType ();
        break;
      }
    case 236:
      {
        pd_NullType ();
        break;
      }
    case 237:
      {
        pd_NullType ();
        break;
      }
    case 238:
      {
        pd_NullType ();
        break;
      }
    case 239:
      {
        pd_NullType ();
        break;
      }
    case 240:
      {
        pd_NullType ();
        break;
      }
    case 241:
      {
        pd_NullType ();
        break;
      }
    case 242:
      {
        pd_NullType ();
        break;
      }
    case 243:
      {
        pd_NullType ();
        break;
      }
    case 244:
      {
        pd_NullType ();
        break;
      }
    case 245:
      {
        pd_NullType ();
        break;
      }
    case 246:
      {
        pd_NullType ();
        break;
      }
    case 247:
      {
        pd_NullType ();
        break;
      }
    case 248:
      {
        pd_NullType ();
        break;
      }
    case 249:
      {
        pd_NullType ();
        break;
      }
    case 250:
      {
        pd_NullType ();
        break;
      }
    case 251:
      {
        pd_NullType ();
        break;
      }
    case 252:
      {
        pd_NullType ();
        break;
      }
    case 253:
      {
        pd_NullType ();
        break;
      }
    case 254:
      {
        pd_NullType ();
        break;
      }
    case 255:
      {
        pd_NullType ();
        break;
      }
  }
}
