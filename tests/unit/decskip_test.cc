// Ignore functions: call-backs that the walk does not reach, names, and the
// cut of the code into texts. What runs write is in golden cases.

#include "cbet/cgenerate.h"
#include "cbet/cvars.h"
#include "cbet/ignore.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "per/dec.h"
#include "per/perelem.h"
#include "per/perstruct.h"
#include "support/decodertext.h"

using testing::ExitedWithCode;

namespace {

constexpr int unknownVariant = 2;

struct DecSkip : DecoderText {
  TypeFuncInfo info;

  DecSkip()
  {
    info.gIndex = 4;
    info.genKind = GEN_CONSTRUCT;
    info.ignoreMode = IGNORE_TRAVERSE;
    info.ignoreFuncs = decIgnoreFuncs;
    glbDecTypeFuncInfo = &info;
    glbInfo = &info;
    perResetElemFuncs();
    perInitStructure();
  }
  ~DecSkip() override
  {
    glbDecTypeFuncInfo = nullptr;
    glbInfo = nullptr;
    cResetVars();
  }

  // Loads, with the files of the table.
  void loadTypes(const std::string &body)
  {
    load(body);
    info.implFile = fiDec;
    info.protoFile = fiDecE;
  }
  // What a call-back writes for the component of that number of T.
  std::string atComp(int number, TypeFuncCallBack *callBack)
  {
    static TypeFuncCallBack *todo;
    static TypeFuncInfo *table;
    static int wanted;
    todo = callBack;
    table = &info;
    wanted = number;
    TestType view(module, type("T"));
    forEachTypeComp(*view, [](AsnType &, AsnType &comp, int compNbr) {
      if (compNbr == wanted)
        todo(comp, *table);
    });
    return decoders();
  }
  // What `call` writes for T, deep inside blocks: there each text of three
  // characters and more has a line of its own. Lines are joined by "|",
  // without the blanks ahead of them.
  template <class F>
  std::string pieces(F call)
  {
    constexpr int deep = 40;
    TestType view(module, type("T"));
    fArr[fiDec].indent = deep;
    call(*view);
    fArr[fiDec].indent = 0;
    std::string result;
    bool atStart = true;
    for (char c : decoders()) {
      if (c == ' ' && atStart)
        continue;
      atStart = c == '\n';
      result += atStart ? '|' : c;
    }
    return result;
  }
  std::string piecesOfType(const std::string &asnType)
  {
    loadTypes("T ::= " + asnType + "\n");
    return pieces([this](AsnType &view) {
      info.ignoreFuncs.skipStruPrefix(view, info);
      info.ignoreFuncs.skipStruPostfix(view, info);
    });
  }
};

// --- the table --------------------------------------------------------------

TEST_F(DecSkip, TypesWithAFunction)
{
  static const struct {
    const char *type;
    bool has;
  } rows[] = {
      {"ENUMERATED { a }", true},
      {"SEQUENCE { a NULL }", true},
      {"SEQUENCE OF NULL", true},
      {"SET { a NULL }", true},
      {"SET OF NULL", true},
      {"CHOICE { a NULL }", true},
      {"INTEGER", false},
      {"BOOLEAN", false},
      {"OCTET STRING", false},
      {"BIT STRING", false},
      {"NULL", false},
      {"ANY", false},
      {"OBJECT IDENTIFIER", false},
      {"IA5String", false},
      {"REAL", false},
      {"UTCTime", false},
  };
  for (const auto &row : rows) {
    loadTypes(std::string("T ::= ") + row.type + "\n");
    TestType view(module, type("T"));
    EXPECT_EQ(decIgnoreFuncs.canGenerateIgnoreFunc(*view, info), row.has)
        << row.type;
  }
}

TEST_F(DecSkip, RunTimeHandlesFragments)
{
  loadTypes("T ::= SEQUENCE OF NULL\n"
            "S ::= SEQUENCE (SIZE (1..3)) OF NULL\n");
  TestType fragments(module, type("T"));
  TestType few(module, type("S"));
  EXPECT_FALSE(decIgnoreFuncs.canGenerateIgnoreComponents(*fragments, info));
  EXPECT_TRUE(decIgnoreFuncs.canGenerateIgnoreComponents(*few, info));
}

TEST_F(DecSkip, NothingTellsThatThereIsASurplus)
{
  loadTypes("T ::= SEQUENCE OF NULL\n");
  TestType view(module, type("T"));
  ASSERT_NE(decIgnoreFuncs.skipIsExtraElems1, nullptr);
  decIgnoreFuncs.skipIsExtraElems1(*view, info);
  EXPECT_EQ(decoders(), "");
}

TEST_F(DecSkip, Name)
{
  loadTypes("T-a ::= SEQUENCE { a NULL }\n"
            "S ::= T-a\n");
  std::string text;
  TestType view(module, type("T_a"));
  EXPECT_EQ(decSkipIgnoreFuncName(text, nullptr, *view, nullptr), "piT_a");
  EXPECT_EQ(decSkipIgnoreFuncName(text, "<", *view, ">"), "<piT_a>");
  TestType synonym(module, type("S"));
  EXPECT_EQ(decSkipIgnoreFuncName(text, nullptr, *synonym, " ("), "piT_a (");
}

// --- additions, which the walk of an ignore function passes over ------------

TEST_F(DecSkip, Additions)
{
  loadTypes("T ::= SEQUENCE { a NULL, ..., b U OPTIONAL, c NULL OPTIONAL }\n"
            "U ::= SEQUENCE { d NULL }\n");
  const IgnoreFuncs &funcs = decIgnoreFuncs;
  perBeginStructure();
  EXPECT_EQ(atComp(2, funcs.skipIsComp),
            "if (extensionAdditionField_0 & BITL(1))");
  EXPECT_EQ(atComp(2, funcs.skipCompPrefix), "");
  EXPECT_EQ(atComp(2, funcs.skipDefStruct), "");
  EXPECT_EQ(atComp(3, funcs.skipLeaf), "");
  EXPECT_EQ(atComp(2, funcs.skipCompPostfix), "{\n  pi_OpenType_al ();\n}\n");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(atComp(3, funcs.skipCompPostfix), "{\n  pi_OpenType_ua ();\n}\n");
  // The root component has its own code.
  EXPECT_EQ(atComp(0, funcs.skipIsComp), "");
  EXPECT_EQ(atComp(0, funcs.skipLeaf), "pi_NullType ();\n");
  EXPECT_EQ(atComp(0, funcs.skipCompPostfix), "");
  perEndStructure();
}

TEST_F(DecSkip, MarkerAsALeaf)
{
  loadTypes("T ::= SEQUENCE { a NULL, ... }\n");
  perBeginStructure();
  EXPECT_EQ(atComp(1, decIgnoreFuncs.skipLeaf),
            "if (extensionBit_0){\n"
            "  sint32 extensionAdditionField_0 = 0;\n"
            "  int extensionAdditionCount_0 = pd_extensionAddition (0,\n"
            "    &extensionAdditionField_0);\n");
  perEndStructure();
}

// Counters start afresh in a function; an element that gets none leaves them.
TEST_F(DecSkip, CountersAroundAnElement)
{
  loadTypes("T ::= SEQUENCE OF SEQUENCE { a BOOLEAN }\n"
            "U ::= SEQUENCE OF BOOLEAN\n");
  TestType passedOver(module, type("T")), written(module, type("U"));
  localVarCount[VAR_ASN_HOME] = -1;
  forTypeElem(*passedOver, decSkipElemCallBack);
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], -1);
  forTypeElem(*written, decSkipElemCallBack);
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 0);
}

// A CHOICE has no bitmap.
TEST_F(DecSkip, MarkerOfAChoiceAsALeaf)
{
  loadTypes("T ::= CHOICE { a NULL, ... }\n");
  perBeginStructure();
  EXPECT_EQ(atComp(1, decIgnoreFuncs.skipLeaf), "");
  perEndStructure();
}

TEST_F(DecSkip, AllAdditionsOfASequenceAlone)
{
  for (const char *other : {"SET", "CHOICE"}) {
    loadTypes(std::string("T ::= ") + other + " { a NULL, ..., b BOOLEAN }\n");
    TestType view(module, type("T"));
    decIgnoreFuncs.skipIgnoreAllExtAddComps(*view, info);
    EXPECT_EQ(decoders(), "") << other;
  }
  loadTypes("T ::= SEQUENCE { a NULL, ..., b BOOLEAN }\n");
  perBeginStructure();
  TestType view(module, type("T"));
  decIgnoreFuncs.skipIgnoreAllExtAddComps(*view, info);
  perEndStructure();
  EXPECT_EQ(decoders(),
            "if (extensionBit_0){\n  pi_SkipExtendedComponents ();\n}\n");
}

TEST_F(DecSkip, OpenTypeOfUnknownVariantIsFatal)
{
  loadTypes("T ::= SEQUENCE { ..., a NULL }\n");
  perSetEncodingVariant(unknownVariant);
  EXPECT_EXIT(atComp(1, decIgnoreFuncs.skipCompPostfix), ExitedWithCode(2),
              "Unknown encoding variant");
}

// --- lists of an unknown variant --------------------------------------------

TEST_F(DecSkip, ListOfUnknownVariant)
{
  loadTypes("T ::= SEQUENCE (SIZE (1..3)) OF NULL\n");
  perSetEncodingVariant(unknownVariant);
  TestType view(module, type("T"));
  decIgnoreFuncs.skipStruPrefix(*view, info);
  decIgnoreFuncs.skipStruPostfix(*view, info);
  EXPECT_EQ(decoders(), "{\n"
                        "  uint32 len_0;\n"
                        "  ?!? Unsupported Sequence-of type!!!\n"
                        "}\n");
  EXPECT_EQ(glbLocalVarNSuffix, -1);
}

// --- element functions ------------------------------------------------------

TEST_F(DecSkip, ElementFunction)
{
  loadTypes("T ::= SEQUENCE OF BOOLEAN\n"
            "S ::= SEQUENCE OF SEQUENCE { a NULL }\n");
  TestType view(module, type("T"));
  forTypeElem(*view, decSkipElemCallBack);
  EXPECT_EQ(decoders(), "\nstatic void if1_T (ASNG_F(ASNPERG *asnperg) "
                        "sint32 n, BYTE_TYPE **p)\n"
                        "{\n"
                        "  while (n){\n"
                        "    pi_Boolean ();\n"
                        "    n--;\n"
                        "  }\n"
                        "}\n");
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 0);
  // Once a run, and none for a structure in line.
  forTypeElem(*view, decSkipElemCallBack);
  TestType other(module, type("S"));
  forTypeElem(*other, decSkipElemCallBack);
  EXPECT_EQ(decoders(), "");
}

// --- the cut into texts -----------------------------------------------------

TEST_F(DecSkip, PiecesOfAFunction)
{
  loadTypes("T ::= SEQUENCE { a U, b NULL OPTIONAL } --$ ignorable\n"
            "U ::= SEQUENCE { c NULL }\n");
  EXPECT_EQ(pieces(genFuncForIgnorable),
            "|void piT (|ASNG_L(ASNPERG *asnperg))|{|"
            "{|sint32 |optfield_0;|optfield_0|= pd_getBits (1);|"
            "piU (|ASNG_L(asnperg));|"
            "if (|optfield_0|& BITL(0)){|pi_NullType ();|}|}|}|");
  EXPECT_EQ(written(fiDecE), "\nvoid piT (ASNG_L(ASNPERG *asnperg));\n");
}

TEST_F(DecSkip, PiecesOfAnEnumeration)
{
  loadTypes("T ::= ENUMERATED { a, b } --$ ignorable\n");
  EXPECT_EQ(pieces(genFuncForIgnorable),
            "|void piT (|ASNG_L(ASNPERG *asnperg))|{|"
            "sint32 *home = &asnperg_ignTemp;|"
            "pd_sint32_cwn_al_|le255_8|(home, |0, 1, 1);|}|");
}

TEST_F(DecSkip, PiecesOfLists)
{
  EXPECT_EQ(piecesOfType("SEQUENCE (SIZE (5)) OF NULL"),
            "{|uint32 len_0;|len_0 =|5;|"
            "pd_lenDet_al_clt64K_eq1 (NULL, 5, 5, 0);|"
            "while (|len_0|> 0){|--len_0;|}|}|");
  EXPECT_EQ(piecesOfType("SEQUENCE (SIZE (1..3)) OF NULL"),
            "{|uint32 len_0;|pd_lenDet_al_clt64K_le255 (&len_0, 1, 3, 2);|"
            "while (|len_0|> 0){|--len_0;|}|}|");
  EXPECT_EQ(piecesOfType("SEQUENCE OF NULL"),
            "{|(void)pd_ConstructFragmentedValue (NULL,|if1_T);|}|");
}

TEST_F(DecSkip, PiecesOfAnElementFunction)
{
  loadTypes("T ::= SEQUENCE OF U\n"
            "U ::= SEQUENCE { a NULL }\n");
  EXPECT_EQ(
      pieces([](AsnType &list) { forTypeElem(list, decSkipElemCallBack); }),
      "|static void|ifU (|ASNG_F(ASNPERG *asnperg)|sint32 n,|BYTE_TYPE **p)|"
      "{|while (n){|piU (ASNG_L(asnperg));|n--;|}|}|");
}

TEST_F(DecSkip, PiecesOfAChoice)
{
  EXPECT_EQ(piecesOfType("CHOICE { a NULL, b NULL, ... }"),
            "{|sint8 choice_0;|BOOLE extensionBit_0 =|pd_extensionBit ();|"
            "if (!extensionBit_0){|choice_0 =|"
            "pd_ChoiceIndex_al_le255 (1,|1);|}|else {|choice_0 = 3 +|"
            "pd_ChoiceIndex_al_ns ();|}|switch (choice_0){|default:|{|"
            "pd_SkipExtendedComponents (1);|}|}|}|");
}

}  // namespace
