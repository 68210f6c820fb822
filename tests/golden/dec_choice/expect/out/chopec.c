/****************************************************************
 * Processed by QUORVEN 1.01.3 <time>
 * Syntax file processed by ZELK 2.13 on 01.01.2024 at 12:00.00
 * ASN.1 module = Choices
 * FILE = chopec.c
 ****************************************************************/

#ifndef CHOPER_EXT
#include "choper.ext"
#endif

void peStruct (ASNG_F(ASNPERG *asnperg) Struct *home)
{
  pe_Boolean (home->x_fld);
}

void peTwo (ASNG_F(ASNPERG *asnperg) Two *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        peStruct (ASNG_F(asnperg) &home->i1.b_fld);
      }
      break;
  }
}

void peWide (ASNG_F(ASNPERG *asnperg) Wide *home)
{
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}

void peWider (ASNG_F(ASNPERG *asnperg) Wider *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 1);
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    pe_ChoiceIndex_al_ns (home->choice - 2);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 2:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peOne (ASNG_F(ASNPERG *asnperg) One *home)
{
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
  }
}

void peOneAndMarker (ASNG_F(ASNPERG *asnperg) OneAndMarker *home)
{
  pe_extensionBit (0);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
  }
}

void peOneAndAdditions (ASNG_F(ASNPERG *asnperg) OneAndAdditions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 1);
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    pe_ChoiceIndex_al_ns (home->choice - 2);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 2:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 3:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.c_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peAdditions (ASNG_F(ASNPERG *asnperg) Additions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 0);
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    pe_ChoiceIndex_al_ns (home->choice - 1);
  }
  switch (home->choice){
    case 1:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.a_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 2:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peMarkerAlone (ASNG_F(ASNPERG *asnperg) MarkerAlone *home)
{
  pe_extensionBit (0);
  switch (home->choice){
  }
}

void peMarkerLast (ASNG_F(ASNPERG *asnperg) MarkerLast *home)
{
  pe_extensionBit (0);
  pe_ChoiceIndex_al_le255 (home->choice, 1, 1);
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 1:
      {
        pe_NullType ();
      }
      break;
  }
}

void peVersions (ASNG_F(ASNPERG *asnperg) Versions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = (home->choice > 1);
  pe_extensionBit (extensionBit_0);
  if (extensionBit_0){
    pe_ChoiceIndex_al_ns (home->choice - 2);
  }
  switch (home->choice){
    case 0:
      {
        pe_Boolean (home->i1.a_fld);
      }
      break;
    case 2:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 3:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_Boolean (home->i1.c_fld);
        pe_EndOpenType_al (&openctx_0);
      }
      break;
    case 4:
      {
        pe_BeginOpenType_al (&openctx_0);
        pe_NullType ();
        pe_EndOpenType_al (&openctx_0);
      }
      break;
  }
}

void peInline (ASNG_F(ASNPERG *asnperg) Inline *home)
{
  {
    sint32 optfield_0 = 0;
    if (home->compmask & BIT(1)){
      optfield_0 |= BITL(0);
    }
    pe_optField (optfield_0, 1);
  }
  pe_ChoiceIndex_al_le255 (home->a_fld.choice, 1, 1);
  switch (home->a_fld.choice){
    case 0:
      {
        pe_Boolean (home->a_fld.i1.x_fld);
      }
      break;
    case 1:
      {
        {
          ASNPEROPENCTX openctx_2;
          BOOLE extensionBit_2 = (home->a_fld.i1.y_fld.choice > 1);
          pe_extensionBit (extensionBit_2);
          if (extensionBit_2){
            pe_ChoiceIndex_al_ns (home->a_fld.i1.y_fld.choice - 2);
          }
          switch (home->a_fld.i1.y_fld.choice){
            case 0:
              {
                pe_NullType ();
              }
              break;
            case 2:
              {
                pe_BeginOpenType_al (&openctx_2);
                pe_Boolean (home->a_fld.i1.y_fld.i1.u_fld);
                pe_EndOpenType_al (&openctx_2);
              }
              break;
          }
        }
      }
      break;
  }
  if ((home->compmask & BIT(1))){
    switch (home->b_fld.choice){
      case 0:
        {
          pe_Boolean (home->b_fld.i1.x_fld);
        }
        break;
    }
  }
  pe_extensionBit (0);
  switch (home->c_fld.choice){
    case 0:
      {
        pe_Boolean (home->c_fld.i1.x_fld);
      }
      break;
  }
  pe_lenDet_al_clt64K_le255 (staArrLen (&home->d_fld), 1, 3, 2);
  {
    uint32 n1 = 0;
    for (n1 = 0; n1 < staArrLen (&home->d_fld); n1++){
      {
        ASNPEROPENCTX openctx_2;
        BOOLE extensionBit_2 = (home->d_fld.elem [n1].choice > 1);
        pe_extensionBit (extensionBit_2);
        if (extensionBit_2){
          pe_ChoiceIndex_al_ns (home->d_fld.elem [n1].choice - 2);
        }
        switch (home->d_fld.elem [n1].choice){
          case 0:
            {
              pe_Boolean (home->d_fld.elem [n1].i1.x_fld);
            }
            break;
          case 2:
            {
              pe_BeginOpenType_al (&openctx_2);
              pe_NullType ();
              pe_EndOpenType_al (&openctx_2);
            }
            break;
        }
      }
    }
  }
}

void peHomesTwo (ASNG_F(ASNPERG *asnperg) HomesTwo *home)
{
  if (home->a_fld){
    pe_ChoiceIndex_al_le255 (0, 1, 1);
    pe_Boolean (home->a_fld->val.bool);
  }
  else if (home->b_fld){
    pe_ChoiceIndex_al_le255 (1, 1, 1);
    peStruct (ASNG_F(asnperg) (Struct *)home->b_fld->val.stru);
  }
}

void peHomesOne (ASNG_F(ASNPERG *asnperg) HomesOne *home)
{
  if (home->a_fld){
    pe_Boolean (home->a_fld->val.bool);
  }
}

void peHomesMarker (ASNG_F(ASNPERG *asnperg) HomesMarker *home)
{
  pe_extensionBit (0);
  if (home->a_fld){
    pe_Boolean (home->a_fld->val.bool);
  }
}

void peHomesAdditions (ASNG_F(ASNPERG *asnperg) HomesAdditions *home)
{
  ASNPEROPENCTX openctx_0;
  BOOLE extensionBit_0 = 0;
  if (home->c_fld != NULL){
    extensionBit_0 = 1;
  }
  pe_extensionBit (extensionBit_0);
  if (home->a_fld){
    pe_ChoiceIndex_al_le255 (0, 1, 1);
    pe_Boolean (home->a_fld->val.bool);
  }
  else if (home->b_fld){
    pe_ChoiceIndex_al_le255 (1, 1, 1);
    pe_NullType ();
  }
  else if (home->c_fld){
    pe_ChoiceIndex_al_ns (0);
    pe_BeginOpenType_al (&openctx_0);
    {
      struct t_c_HomesAdditions *h1 =
        (struct t_c_HomesAdditions *)home->c_fld->val.stru;
      {
        pe_Boolean (h1->x_fld);
      }
    }
    pe_EndOpenType_al (&openctx_0);
  }
}

void peHomesInline (ASNG_F(ASNPERG *asnperg) HomesInline *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 = 0;
    if (home->a_fld.z_fld != NULL){
      extensionBit_1 = 1;
    }
    pe_extensionBit (extensionBit_1);
    if (home->a_fld.x_fld){
      pe_ChoiceIndex_al_le255 (0, 1, 1);
      pe_Boolean (home->a_fld.x_fld->val.bool);
    }
    else if (home->a_fld.y_fld){
      pe_ChoiceIndex_al_le255 (1, 1, 1);
      pe_NullType ();
    }
    else if (home->a_fld.z_fld){
      pe_ChoiceIndex_al_ns (0);
      pe_BeginOpenType_al (&openctx_1);
      pe_Boolean (home->a_fld.z_fld->val.bool);
      pe_EndOpenType_al (&openctx_1);
    }
  }
}

void peBound (ASNG_F(ASNPERG *asnperg) Bound *home)
{
  {
    struct t_a_Bound *h1 = (struct t_a_Bound *)home->a_fld->val.stru;
    {
      ASNPEROPENCTX openctx_1;
      BOOLE extensionBit_1 = (h1->choice > 2);
      pe_extensionBit (extensionBit_1);
      if (!extensionBit_1){
        pe_ChoiceIndex_al_le255 (h1->choice, 1, 1);
      }
      else {
        pe_ChoiceIndex_al_ns (h1->choice - 3);
      }
      switch (h1->choice){
        case 0:
          {
            pe_Boolean (h1->i1.x_fld);
          }
          break;
        case 1:
          {
            pe_NullType ();
          }
          break;
        case 3:
          {
            pe_BeginOpenType_al (&openctx_1);
            pe_Boolean (h1->i1.z_fld);
            pe_EndOpenType_al (&openctx_1);
          }
          break;
      }
    }
  }
}

void peBreaks (ASNG_F(ASNPERG *asnperg) Breaks *home)
{
  {
    ASNPEROPENCTX openctx_1;
    BOOLE extensionBit_1 =
      (home->a_component_with_a_long_name_fld.choice > 2);
    pe_extensionBit (extensionBit_1);
    if (!extensionBit_1){
      pe_ChoiceIndex_al_le255 (home->a_component_with_a_long_name_fld.choice,
        1, 1);
    }
    else {
      pe_ChoiceIndex_al_ns (home->a_component_with_a_long_name_fld.choice - 3);
    }
    switch (home->a_component_with_a_long_name_fld.choice){
      case 0:
        {
          pe_Boolean (home->a_component_with_a_long_name_fld.i1.x_fld);
        }
        break;
      case 1:
        {
          pe_NullType ();
        }
        break;
      case 3:
        {
          pe_BeginOpenType_al (&openctx_1);
          pe_Boolean (home->a_component_with_a_long_name_fld.i1.z_fld);
          pe_EndOpenType_al (&openctx_1);
        }
        break;
    }
  }
}

void peMany (ASNG_F(ASNPERG *asnperg) Many *home)
{
  switch (home->choice){
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
    case 11:
      {
        pe_NullType ();
      }
      break;
    case 12:
      {
        pe_NullType ();
      }
      break;
    case 13:
      {
        pe_NullType ();
      }
      break;
    case 14:
      {
        pe_NullType ();
      }
      break;
    case 15:
      {
        pe_NullType ();
      }
      break;
    case 16:
      {
        pe_NullType ();
      }
      break;
    case 17:
      {
        pe_NullType ();
      }
      break;
    case 18:
      {
        pe_NullType ();
      }
      break;
    case 19:
      {
        pe_NullType ();
      }
      break;
    case 20:
      {
        pe_NullType ();
      }
      break;
    case 21:
      {
        pe_NullType ();
      }
      break;
    case 22:
      {
        pe_NullType ();
      }
      break;
    case 23:
      {
        pe_NullType ();
      }
      break;
    case 24:
      {
        pe_NullType ();
      }
      break;
    case 25:
      {
        pe_NullType ();
      }
      break;
    case 26:
      {
        pe_NullType ();
      }
      break;
    case 27:
      {
        pe_NullType ();
      }
      break;
    case 28:
      {
        pe_NullType ();
      }
      break;
    case 29:
      {
        pe_NullType ();
      }
      break;
    case 30:
      {
        pe_NullType ();
      }
      break;
    case 31:
      {
        pe_NullType ();
      }
      break;
    case 32:
      {
        pe_NullType ();
      }
      break;
    case 33:
      {
        pe_NullType ();
      }
      break;
    case 34:
      {
        pe_NullType ();
      }
      break;
    case 35:
      {
        pe_NullType ();
      }
      break;
    case 36:
      {
        pe_NullType ();
      }
      break;
    case 37:
      {
        pe_NullType ();
      }
      break;
    case 38:
      {
        pe_NullType ();
      }
      break;
    case 39:
      {
        pe_NullType ();
      }
      break;
    case 40:
      {
        pe_NullType ();
      }
      break;
    case 41:
      {
        pe_NullType ();
      }
      break;
    case 42:
      {
        pe_NullType ();
      }
      break;
    case 43:
      {
        pe_NullType ();
      }
      break;
    case 44:
      {
        pe_NullType ();
      }
      break;
    case 45:
      {
        pe_NullType ();
      }
      break;
    case 46:
      {
        pe_NullType ();
      }
      break;
    case 47:
      {
        pe_NullType ();
      }
      break;
    case 48:
      {
        pe_NullType ();
      }
      break;
    case 49:
      {
        pe_NullType ();
      }
      break;
    case 50:
      {
        pe_NullType ();
      }
      break;
    case 51:
      {
        pe_NullType ();
      }
      break;
    case 52:
      {
        pe_NullType ();
      }
      break;
    case 53:
      {
        pe_NullType ();
      }
      break;
    case 54:
      {
        pe_NullType ();
      }
      break;
    case 55:
      {
        pe_NullType ();
      }
      break;
    case 56:
      {
        pe_NullType ();
      }
      break;
    case 57:
      {
        pe_NullType ();
      }
      break;
    case 58:
      {
        pe_NullType ();
      }
      break;
    case 59:
      {
        pe_NullType ();
      }
      break;
    case 60:
      {
        pe_NullType ();
      }
      break;
    case 61:
      {
        pe_NullType ();
      }
      break;
    case 62:
      {
        pe_NullType ();
      }
      break;
    case 63:
      {
        pe_NullType ();
      }
      break;
    case 64:
      {
        pe_NullType ();
      }
      break;
    case 65:
      {
        pe_NullType ();
      }
      break;
    case 66:
      {
        pe_NullType ();
      }
      break;
    case 67:
      {
        pe_NullType ();
      }
      break;
    case 68:
      {
        pe_NullType ();
      }
      break;
    case 69:
      {
        pe_NullType ();
      }
      break;
    case 70:
      {
        pe_NullType ();
      }
      break;
    case 71:
      {
        pe_NullType ();
      }
      break;
    case 72:
      {
        pe_NullType ();
      }
      break;
    case 73:
      {
        pe_NullType ();
      }
      break;
    case 74:
      {
        pe_NullType ();
      }
      break;
    case 75:
      {
        pe_NullType ();
      }
      break;
    case 76:
      {
        pe_NullType ();
      }
      break;
    case 77:
      {
        pe_NullType ();
      }
      break;
    case 78:
      {
        pe_NullType ();
      }
      break;
    case 79:
      {
        pe_NullType ();
      }
      break;
    case 80:
      {
        pe_NullType ();
      }
      break;
    case 81:
      {
        pe_NullType ();
      }
      break;
    case 82:
      {
        pe_NullType ();
      }
      break;
    case 83:
      {
        pe_NullType ();
      }
      break;
    case 84:
      {
        pe_NullType ();
      }
      break;
    case 85:
      {
        pe_NullType ();
      }
      break;
    case 86:
      {
        pe_NullType ();
      }
      break;
    case 87:
      {
        pe_NullType ();
      }
      break;
    case 88:
      {
        pe_NullType ();
      }
      break;
    case 89:
      {
        pe_NullType ();
      }
      break;
    case 90:
      {
        pe_NullType ();
      }
      break;
    case 91:
      {
        pe_NullType ();
      }
      break;
    case 92:
      {
        pe_NullType ();
      }
      break;
    case 93:
      {
        pe_NullType ();
      }
      break;
    case 94:
      {
        pe_NullType ();
      }
      break;
    case 95:
      {
        pe_NullType ();
      }
      break;
    case 96:
      {
        pe_NullType ();
      }
      break;
    case 97:
      {
        pe_NullType ();
      }
      break;
    case 98:
      {
        pe_NullType ();
      }
      break;
    case 99:
      {
        pe_NullType ();
      }
      break;
    case 100:
      {
        pe_NullType ();
      }
      break;
    case 101:
      {
        pe_NullType ();
      }
      break;
    case 102:
      {
        pe_NullType ();
      }
      break;
    case 103:
      {
        pe_NullType ();
      }
      break;
    case 104:
      {
        pe_NullType ();
      }
      break;
    case 105:
      {
        pe_NullType ();
      }
      break;
    case 106:
      {
        pe_NullType ();
      }
      break;
    case 107:
      {
        pe_NullType ();
      }
      break;
    case 108:
      {
        pe_NullType ();
      }
      break;
    case 109:
      {
        pe_NullType ();
      }
      break;
    case 110:
      {
        pe_NullType ();
      }
      break;
    case 111:
      {
        pe_NullType ();
      }
      break;
    case 112:
      {
        pe_NullType ();
      }
      break;
    case 113:
      {
        pe_NullType ();
      }
      break;
    case 114:
      {
        pe_NullType ();
      }
      break;
    case 115:
      {
        pe_NullType ();
      }
      break;
    case 116:
      {
        pe_NullType ();
      }
      break;
    case 117:
      {
        pe_NullType ();
      }
      break;
    case 118:
      {
        pe_NullType ();
      }
      break;
    case 119:
      {
        pe_NullType ();
      }
      break;
    case 120:
      {
        pe_NullType ();
      }
      break;
    case 121:
      {
        pe_NullType ();
      }
      break;
    case 122:
      {
        pe_NullType ();
      }
      break;
    case 123:
      {
        pe_NullType ();
      }
      break;
    case 124:
      {
        pe_NullType ();
      }
      break;
    case 125:
      {
        pe_NullType ();
      }
      break;
    case 126:
      {
        pe_NullType ();
      }
      break;
    case 127:
      {
        pe_NullType ();
      }
      break;
    case 128:
      {
        pe_NullType ();
      }
      break;
    case 129:
      {
        pe_NullType ();
      }
      break;
    case 130:
      {
        pe_NullType ();
      }
      break;
    case 131:
      {
        pe_NullType ();
      }
      break;
    case 132:
      {
        pe_NullType ();
      }
      break;
    case 133:
      {
        pe_NullType ();
      }
      break;
    case 134:
      {
        pe_NullType ();
      }
      break;
    case 135:
      {
        pe_NullType ();
      }
      break;
    case 136:
      {
        pe_NullType ();
      }
      break;
    case 137:
      {
        pe_NullType ();
      }
      break;
    case 138:
      {
        pe_NullType ();
      }
      break;
    case 139:
      {
        pe_NullType ();
      }
      break;
    case 140:
      {
        pe_NullType ();
      }
      break;
    case 141:
      {
        pe_NullType ();
      }
      break;
    case 142:
      {
        pe_NullType ();
      }
      break;
    case 143:
      {
        pe_NullType ();
      }
      break;
    case 144:
      {
        pe_NullType ();
      }
      break;
    case 145:
      {
        pe_NullType ();
      }
      break;
    case 146:
      {
        pe_NullType ();
      }
      break;
    case 147:
      {
        pe_NullType ();
      }
      break;
    case 148:
      {
        pe_NullType ();
      }
      break;
    case 149:
      {
        pe_NullType ();
      }
      break;
    case 150:
      {
        pe_NullType ();
      }
      break;
    case 151:
      {
        pe_NullType ();
      }
      break;
    case 152:
      {
        pe_NullType ();
      }
      break;
    case 153:
      {
        pe_NullType ();
      }
      break;
    case 154:
      {
        pe_NullType ();
      }
      break;
    case 155:
      {
        pe_NullType ();
      }
      break;
    case 156:
      {
        pe_NullType ();
      }
      break;
    case 157:
      {
        pe_NullType ();
      }
      break;
    case 158:
      {
        pe_NullType ();
      }
      break;
    case 159:
      {
        pe_NullType ();
      }
      break;
    case 160:
      {
        pe_NullType ();
      }
      break;
    case 161:
      {
        pe_NullType ();
      }
      break;
    case 162:
      {
        pe_NullType ();
      }
      break;
    case 163:
      {
        pe_NullType ();
      }
      break;
    case 164:
      {
        pe_NullType ();
      }
      break;
    case 165:
      {
        pe_NullType ();
      }
      break;
    case 166:
      {
        pe_NullType ();
      }
      break;
    case 167:
      {
        pe_NullType ();
      }
      break;
    case 168:
      {
        pe_NullType ();
      }
      break;
    case 169:
      {
        pe_NullType ();
      }
      break;
    case 170:
      {
        pe_NullType ();
      }
      break;
    case 171:
      {
        pe_NullType ();
      }
      break;
    case 172:
      {
        pe_NullType ();
      }
      break;
    case 173:
      {
        pe_NullType ();
      }
      break;
    case 174:
      {
        pe_NullType ();
      }
      break;
    case 175:
      {
        pe_NullType ();
      }
      break;
    case 176:
      {
        pe_NullType ();
      }
      break;
    case 177:
      {
        pe_NullType ();
      }
      break;
    case 178:
      {
        pe_NullType ();
      }
      break;
    case 179:
      {
        pe_NullType ();
      }
      break;
    case 180:
      {
        pe_NullType ();
      }
      break;
    case 181:
      {
        pe_NullType ();
      }
      break;
    case 182:
      {
        pe_NullType ();
      }
      break;
    case 183:
      {
        pe_NullType ();
      }
      break;
    case 184:
      {
        pe_NullType ();
      }
      break;
    case 185:
      {
        pe_NullType ();
      }
      break;
    case 186:
      {
        pe_NullType ();
      }
      break;
    case 187:
      {
        pe_NullType ();
      }
      break;
    case 188:
      {
        pe_NullType ();
      }
      break;
    case 189:
      {
        pe_NullType ();
      }
      break;
    case 190:
      {
        pe_NullType ();
      }
      break;
    case 191:
      {
        pe_NullType ();
      }
      break;
    case 192:
      {
        pe_NullType ();
      }
      break;
    case 193:
      {
        pe_NullType ();
      }
      break;
    case 194:
      {
        pe_NullType ();
      }
      break;
    case 195:
      {
        pe_NullType ();
      }
      break;
    case 196:
      {
        pe_NullType ();
      }
      break;
    case 197:
      {
        pe_NullType ();
      }
      break;
    case 198:
      {
        pe_NullType ();
      }
      break;
    case 199:
      {
        pe_NullType ();
      }
      break;
    case 200:
      {
        pe_NullType ();
      }
      break;
    case 201:
      {
        pe_NullType ();
      }
      break;
    case 202:
      {
        pe_NullType ();
      }
      break;
    case 203:
      {
        pe_NullType ();
      }
      break;
    case 204:
      {
        pe_NullType ();
      }
      break;
    case 205:
      {
        pe_NullType ();
      }
      break;
    case 206:
      {
        pe_NullType ();
      }
      break;
    case 207:
      {
        pe_NullType ();
      }
      break;
    case 208:
      {
        pe_NullType ();
      }
      break;
    case 209:
      {
        pe_NullType ();
      }
      break;
    case 210:
      {
        pe_NullType ();
      }
      break;
    case 211:
      {
        pe_NullType ();
      }
      break;
    case 212:
      {
        pe_NullType ();
      }
      break;
    case 213:
      {
        pe_NullType ();
      }
      break;
    case 214:
      {
        pe_NullType ();
      }
      break;
    case 215:
      {
        pe_NullType ();
      }
      break;
    case 216:
      {
        pe_NullType ();
      }
      break;
    case 217:
      {
        pe_NullType ();
      }
      break;
    case 218:
      {
        pe_NullType ();
      }
      break;
    case 219:
      {
        pe_NullType ();
      }
      break;
    case 220:
      {
        pe_NullType ();
      }
      break;
    case 221:
      {
        pe_NullType ();
      }
      break;
    case 222:
      {
        pe_NullType ();
      }
      break;
    case 223:
      {
        pe_NullType ();
      }
      break;
    case 224:
      {
        pe_NullType ();
      }
      break;
    case 225:
      {
        pe_NullType ();
      }
      break;
    case 226:
      {
        pe_NullType ();
      }
      break;
    case 227:
      {
        pe_NullType ();
      }
      break;
    case 228:
      {
        pe_NullType ();
      }
      break;
    case 229:
      {
        pe_NullType ();
      }
      break;
    case 230:
      {
        pe_NullType ();
      }
      break;
    case 231:
      {
        pe_NullType ();
      }
      break;
    case 232:
      {
        pe_NullType ();
      }
      break;
    case 233:
      {
        pe_NullType ();
      }
      break;
    case 234:
      {
        pe_NullType ();
      }
      break;
    case 235:
      {
        pe_NullType ();
      }
      break;
    case 236:
      {
        pe_NullType ();
      }
      break;
    case 237:
      {
        pe_NullType ();
      }
      break;
    case 238:
      {
        pe_NullType ();
      }
      break;
    case 239:
      {
        pe_NullType ();
      }
      break;
    case 240:
      {
        pe_NullType ();
      }
      break;
    case 241:
      {
        pe_NullType ();
      }
      break;
    case 242:
      {
        pe_NullType ();
      }
      break;
    case 243:
      {
        pe_NullType ();
      }
      break;
    case 244:
      {
        pe_NullType ();
      }
      break;
    case 245:
      {
        pe_NullType ();
      }
      break;
    case 246:
      {
        pe_NullType ();
      }
      break;
    case 247:
      {
        pe_NullType ();
      }
      break;
    case 248:
      {
        pe_NullType ();
      }
      break;
    case 249:
      {
        pe_NullType ();
      }
      break;
    case 250:
      {
        pe_NullType ();
      }
      break;
    case 251:
      {
        pe_NullType ();
      }
      break;
    case 252:
      {
        pe_NullType ();
      }
      break;
    case 253:
      {
        pe_NullType ();
      }
      break;
    case 254:
      {
        pe_NullType ();
      }
      break;
    case 255:
      {
        pe_NullType ();
      }
      break;
  }
}
