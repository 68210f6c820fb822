// Control members of generated C structures.

#include "model/controlmember.h"
#include "support/typetrees.h"

// A view made by hand: these texts depend on a few fields alone.
static AsnType typeOf(int mainType, int32_t nrComps = 0, int size = VF_I32)
{
  AsnType type;
  type.base.mainType = static_cast<uint8_t>(mainType);
  type.base.nrComps = nrComps;
  type.base.valueFieldSize = static_cast<uint8_t>(size);
  return type;
}

static AsnType compOf(int status, int mainType = TYP_NULL)
{
  AsnType comp = typeOf(mainType);
  comp.compStatus = status;
  return comp;
}

static const AsnType optional = compOf(TCS_OPTIONAL);
static const AsnType mandatory = compOf(TCS_MANDATORY);
static const AsnType marker = compOf(TCS_MANDATORY, TYP_EXTENSION_MARKER);

static std::string oper(const AsnType &type, bool isOptional, int32_t compNbr)
{
  std::string text = "old";
  return getControlMemberOper(text, "p->", "r.", type, isOptional, compNbr, "M",
                              "A", "C", "L", "S");
}

TEST(ControlMember, OperByMainType)
{
  struct Case {
    int mainType;
    const char *expected;
  };
  const Case cases[] = {
      {TYP_SEQ, "p->r.compmaskM"},
      {TYP_SET, "p->r.compmaskM"},
      {TYP_SEQOF, "p->r.nL"},
      {TYP_SETOF, "p->r.nL"},
      {TYP_CHOICE, "p->r.choiceC"},
      {TYP_BITSTR, "p->r.nS"},
      {TYP_OCTSTR, "p->r.nS"},
      {TYP_NUMSTR, "p->r.nS"},
      {TYP_UNISTR, "p->r.nS"},
      {TYP_OBJDESCR, "p->r.nS"},
      {TYP_CHASTR, ""},
      {TYP_GENTIME, ""},
      {TYP_INTEGER, ""},
      {TYP_ENUM, ""},
      {TYP_ANY, ""},
      {TYP_NONE, ""},
  };
  for (const Case &c : cases)
    EXPECT_EQ(oper(typeOf(c.mainType, 3), true, 0), c.expected) << c.mainType;
}

TEST(ControlMember, OperNeedsAnOptionalComponentOfASequence)
{
  EXPECT_EQ(oper(typeOf(TYP_SEQ, 3), false, 0), "");
  EXPECT_EQ(oper(typeOf(TYP_SET, 3), false, 0), "p->r.compmaskM");
  EXPECT_EQ(oper(typeOf(TYP_CHOICE, 3), false, 0), "p->r.choiceC");
}

TEST(ControlMember, OperOfAMaskArray)
{
  EXPECT_EQ(oper(typeOf(TYP_SEQ, 32), true, 31), "p->r.compmaskM");
  EXPECT_EQ(oper(typeOf(TYP_SEQ, 33), true, 31), "p->r.compmask [0]A");
  EXPECT_EQ(oper(typeOf(TYP_SET, 70), false, 64), "p->r.compmask [2]A");
  EXPECT_EQ(oper(typeOf(TYP_CHOICE, 70), true, 64), "p->r.choiceC");
}

TEST(ControlMember, OperOfNullTexts)
{
  std::string text;
  EXPECT_EQ(getControlMemberOper(text, nullptr, nullptr, typeOf(TYP_SETOF),
                                 false, 0, nullptr, nullptr, nullptr, nullptr,
                                 nullptr),
            "n");
}

TEST(ControlMember, Declaration)
{
  std::string text;
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_SEQ, 3, VF_UI8)),
            std::string(defaultCTypeArr[VF_UI8]) + " compmask");
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_CHOICE, 40, VF_I16)),
            std::string(defaultCTypeArr[VF_I16]) + " choice");
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_OCTSTR, 0, VF_UI16)),
            std::string(defaultCTypeArr[VF_UI16]) + " n");
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_SEQ, 3, VF_NONE)), "");
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_INTEGER, 0, VF_I32)), "");
}

TEST(ControlMember, DeclarationOfAMaskArray)
{
  std::string text;
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_SEQ, 32)), "sint32 compmask");
  // (n + 31) / 32 words, whatever the size of the value field.
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_SEQ, 33, VF_UI8)),
            "sint32 compmask [2]");
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_SET, 64, VF_NONE)),
            "sint32 compmask [2]");
  EXPECT_EQ(getControlMemberDef(text, typeOf(TYP_SET, 65)),
            "sint32 compmask [3]");
}

TEST(ControlMember, Initialisation)
{
  std::string text;
  EXPECT_EQ(getControlMemberIni(text, "h->", typeOf(TYP_SEQ, 2)),
            "h->compmask = 0;\n");
  EXPECT_EQ(getControlMemberIni(text, "h->", typeOf(TYP_SETOF)), "h->n = 0;\n");
  EXPECT_EQ(getControlMemberIni(text, nullptr, typeOf(TYP_IA5STR)), "n = 0;\n");
  EXPECT_EQ(getControlMemberIni(text, "h->", typeOf(TYP_CHOICE, 40)),
            "h->choice = -1;\n");
  EXPECT_EQ(getControlMemberIni(text, "h->", typeOf(TYP_REAL)), "");
  EXPECT_EQ(getControlMemberIni(text, "h->", typeOf(TYP_SET, 32)),
            "h->compmask = 0;\n");
  EXPECT_EQ(getControlMemberIni(text, "h->", typeOf(TYP_SEQ, 65)),
            "h->compmask [0] = h->compmask [1] = h->compmask [2] = 0;\n");
}

TEST(ControlMember, Operators)
{
  const char *const ofMasks[] = {"|= ", "& ", "&= ~", "| ", "& ~"};
  const char *const ofChoices[] = {"= ", "== ", "= ", "?!?", "?!?"};
  for (int i = 0; i < 5; ++i) {
    EXPECT_STREQ(getControlMemberRawOper(typeOf(TYP_SEQ), i), ofMasks[i]);
    EXPECT_STREQ(getControlMemberRawOper(typeOf(TYP_SET), i), ofMasks[i]);
    EXPECT_STREQ(getControlMemberRawOper(typeOf(TYP_CHOICE), i), ofChoices[i]);
  }
  for (int wild : {-1, 5})
    EXPECT_STREQ(getControlMemberRawOper(typeOf(TYP_SEQ), wild), "?!?");
}

static std::string raw(int operation, const AsnType &type, const AsnType &comp,
                       int32_t compNbr)
{
  std::string text;
  return getControlMemberRaw(text, "(", "h->", operation, type, comp, compNbr,
                             ")");
}

TEST(ControlMember, RawOfAMask)
{
  AsnType wide = typeOf(TYP_SEQ, 5);
  EXPECT_EQ(raw(CONTROL_SET, wide, optional, 4), "(h->compmask |= BITL(4))");
  EXPECT_EQ(raw(CONTROL_TEST, wide, optional, 4), "(h->compmask & BITL(4))");
  EXPECT_EQ(raw(CONTROL_CLEAR, wide, optional, 4), "(h->compmask &= ~BITL(4))");
  EXPECT_EQ(raw(CONTROL_OR, wide, optional, 4), "(h->compmask | BITL(4))");
  EXPECT_EQ(raw(CONTROL_AND_NOT, wide, optional, 4),
            "(h->compmask & ~BITL(4))");
  // "L" for the one size only.
  for (int size : {+VF_UI8, +VF_UI16, +VF_UI32, +VF_I16, +VF_I64})
    EXPECT_EQ(raw(CONTROL_TEST, typeOf(TYP_SET, 5, size), mandatory, 1),
              "(h->compmask & BIT(1))");
}

TEST(ControlMember, RawOfAMaskArray)
{
  AsnType type = typeOf(TYP_SEQ, 40, VF_UI8);
  EXPECT_EQ(raw(CONTROL_TEST, type, optional, 33),
            "(h->compmask [1] & BITL(1))");
  EXPECT_EQ(raw(CONTROL_TEST, type, optional, 31),
            "(h->compmask [0] & BITL(31))");
  // The division cuts towards 0, and the remainder has its sign.
  EXPECT_EQ(raw(CONTROL_TEST, type, optional, -33),
            "(h->compmask [-1] & BITL(-1))");
}

TEST(ControlMember, RawOfAChoice)
{
  AsnType choice = typeOf(TYP_CHOICE, 40);
  EXPECT_EQ(raw(CONTROL_SET, choice, mandatory, 3), "(h->choice = 3)");
  EXPECT_EQ(raw(CONTROL_TEST, choice, mandatory, 3), "(h->choice == 3)");
  EXPECT_EQ(raw(CONTROL_CLEAR, choice, mandatory, 3), "(h->choice = -1)");
  EXPECT_EQ(raw(CONTROL_OR, choice, mandatory, 3), "(h->choice ?!?3)");
}

TEST(ControlMember, RawByTheComponent)
{
  AsnType sequence = typeOf(TYP_SEQ, 5);
  EXPECT_EQ(raw(CONTROL_SET, sequence, mandatory, 1), "");
  EXPECT_EQ(raw(CONTROL_SET, sequence, marker, 1), "(h->compmask |= BITL(1))");
  for (int other : {TYP_SEQOF, TYP_OCTSTR, TYP_IA5STR, TYP_INTEGER})
    EXPECT_EQ(raw(CONTROL_SET, typeOf(other), optional, 1), "");
}

TEST(ControlMember, Fronts)
{
  AsnType type = typeOf(TYP_SEQ, 5);
  std::string text;
  EXPECT_EQ(getControlMemberRawSet(text, "a", "b", type, optional, 1, "c"),
            "abcompmask |= BITL(1)c");
  EXPECT_EQ(getControlMemberRawTst(text, "a", "b", type, optional, 1, "c"),
            "abcompmask & BITL(1)c");
  EXPECT_EQ(getControlMemberRawClr(text, "a", "b", type, optional, 1, "c"),
            "abcompmask &= ~BITL(1)c");
  EXPECT_EQ(getControlMemberRawOr(text, "a", "b", type, optional, 1, "c"),
            "abcompmask | BITL(1)c");
  EXPECT_EQ(getControlMemberRawAndNot(text, "a", "b", type, optional, 1, "c"),
            "abcompmask & ~BITL(1)c");
  EXPECT_EQ(getControlMemberSet(text, "h->", type, optional, 2),
            "h->compmask |= BITL(2);\n");
  EXPECT_EQ(getControlMemberClr(text, "h->", type, optional, 2),
            "h->compmask &= ~BITL(2);\n");
  EXPECT_EQ(getControlMemberTst(text, "if ", "h->", type, optional, 2, " {"),
            "if (h->compmask & BITL(2)) {");
  EXPECT_EQ(
      getControlMemberTst(text, nullptr, nullptr, type, optional, 2, nullptr),
      "(compmask & BITL(2))");
}

TEST(ControlMember, FrontsOfWhatHasNoMember)
{
  AsnType type = typeOf(TYP_SEQ, 5);
  std::string text = "old";
  EXPECT_EQ(getControlMemberSet(text, "h->", type, mandatory, 2), "");
  text = "old";
  EXPECT_EQ(getControlMemberClr(text, "h->", type, mandatory, 2), "");
  text = "old";
  EXPECT_EQ(getControlMemberTst(text, "if ", "h->", type, mandatory, 2, " {"),
            "");
}

TEST(ControlMember, DestinationMayBeAPart)
{
  std::string text = "x->";
  EXPECT_EQ(getControlMemberTst(text, text.c_str(), text.c_str(),
                                typeOf(TYP_CHOICE, 2), mandatory, 1,
                                text.c_str()),
            "x->(x->choice == 1)x->");
}
