// Decoders of leaves, as far as no run shows them: unknown variants, messages
// by verbosity, the cut into texts, and what the engine hands over to nobody
// yet.

#include "base/diag.h"
#include "cbet/outfile.h"
#include "model/typeiter.h"
#include "per/dec.h"
#include "per/perint.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"

namespace {

constexpr int unknownVariant = 2;
constexpr int bothVariants[] = {VARIANT_ALIGNED, VARIANT_UNALIGNED};

struct DecLeaf : LoadedAsn {
  int variant = perGetEncodingVariant();
  int decFile = fiDec;
  TypeFuncInfo info;
  std::string code;  // that was written
  std::string said;  // on stdout

  DecLeaf()
  {
    perSetEncodingVariant(VARIANT_ALIGNED);
    fiDec = 1;
    info.implFile = 1;
    info.normalFuncPrefix = "pd";
    info.gIndex = 4;
  }
  ~DecLeaf() override
  {
    perSetEncodingVariant(variant);
    fiDec = decFile;
    clearOutFiles();
  }

  // Of the type T.
  void write(TypeFuncCallBack *callBack, int level = 2)
  {
    TestType view(module, type("T"));
    verboseEx = level;
    testing::internal::CaptureStdout();
    code = writtenText([&](int) { callBack(*view, info); });
    said = testing::internal::GetCapturedStdout();
  }
  void writeFor(const std::string &asnType, TypeFuncCallBack *callBack,
                int level = 2)
  {
    load("T ::= " + asnType + "\n");
    write(callBack, level);
  }
  std::string leaf(const std::string &asnType)
  {
    writeFor(asnType, decLeaf);
    return code;
  }
  void expectRefused(TypeFuncCallBack *callBack, const std::string &asnType,
                     const std::string &text)
  {
    writeFor(asnType, callBack);
    EXPECT_EQ(code, "") << asnType;
    EXPECT_TRUE(said.ends_with("Module M, type T\n"
                               "Warning     QUORVEN " +
                               text + " not yet supported, sorry.\n"))
        << said;
  }
  // What may begin a line of the leaf's code.
  std::set<std::string> lineStarts(TypeFuncCallBack *callBack,
                                   const std::string &asnType)
  {
    load("T ::= " + asnType + "\n");
    TestType view(module, type("T"));
    return brokenTexts([&](int) { callBack(*view, info); });
  }
};

TEST_F(DecLeaf, Reference)
{
  load("T ::= BOOLEAN\n");
  TestType view(module, type("T"));
  auto ref = [&](bool address, bool member) {
    return writtenText([&](int) { decRef("<", address, *view, member, ">"); });
  };
  EXPECT_EQ(ref(true, false), "<home>");
  EXPECT_EQ(ref(false, false), "<*home>");
  EXPECT_EQ(ref(false, true), "<home->>");
  EXPECT_EQ(
      writtenText([&](int) { decRef(nullptr, true, *view, false, nullptr); }),
      "home");
}

// --- variants ---------------------------------------------------------------

TEST_F(DecLeaf, OtherVariantsOfTheSameCall)
{
  for (int any :
       {int{VARIANT_ALIGNED}, int{VARIANT_UNALIGNED}, unknownVariant}) {
    perSetEncodingVariant(any);
    EXPECT_EQ(leaf("BOOLEAN"), "pd_Boolean (home);\n");
    EXPECT_EQ(leaf("NULL"), "pd_NullType ();\n");
    EXPECT_EQ(leaf("OBJECT IDENTIFIER"), "pd_ObjectIdentifier (home);\n");
    EXPECT_EQ(leaf("GeneralizedTime"), "pd_GeneralizedTimeDT (home);\n");
    EXPECT_EQ(leaf("UTCTime"), "pd_UTCTimeDT (home);\n");
    EXPECT_EQ(leaf("ANY"), "pd_FrameOpenType_al (& a1->val.frm);\n");
    EXPECT_EQ(leaf("SEQUENCE { }"), "");
    EXPECT_EQ(leaf("SET { }"), "");
    EXPECT_EQ(leaf("REAL"), "NOT YET IMPLEMENTED!!");
    EXPECT_EQ(said, "");
  }
}

TEST_F(DecLeaf, UnknownVariant)
{
  perSetEncodingVariant(unknownVariant);
  for (TypeFuncCallBack *callBack : {decLeaf, decSkipLeaf}) {
    expectRefused(callBack, "INTEGER (0..7)",
                  "INTEGER types with complex constraints");
    expectRefused(callBack, "INTEGER (0..7) --$ field=I64",
                  "sint64 INTEGER types with small constraints");
    expectRefused(callBack, "BIT STRING (SIZE(4))",
                  "BIT STRING types with complex constraints");
    expectRefused(callBack, "OCTET STRING",
                  "OCTET STRING types with complex constraints");
    expectRefused(callBack, "GeneralString",
                  "GENERAL STRING types with complex constraints");
  }
}

// The call is written, and nothing is said.
TEST_F(DecLeaf, UnknownVariantOfCharacters)
{
  perSetEncodingVariant(unknownVariant);
  EXPECT_EQ(leaf("NumericString (SIZE(4))"),
            "pd_KnownMultiCharStri_<unsupported>"
            "!! Unsupported string type !! (home, 4, 4,\n"
            "  0, 4, TYP_NUMSTR, 11, asnperNumStrChars);\n");
  EXPECT_EQ(said, "");
  writeFor("NumericString (SIZE(4))", decSkipLeaf);
  EXPECT_EQ(code, "pi_KnownMultiCharStri_<unsupported>"
                  "!! Unsupported string type !! (4, 4, 0, 4,\n"
                  "  TYP_NUMSTR, 11, asnperNumStrChars);\n");
  EXPECT_EQ(said, "");
}

TEST_F(DecLeaf, FunctionOfTheUserInAnyVariant)
{
  perSetEncodingVariant(unknownVariant);
  EXPECT_EQ(leaf("INTEGER (0..7) --$ beo=\"FUNC:mine:5\""),
            "pd_mine (home,5);\n");
  EXPECT_EQ(leaf("INTEGER (0..7) --$ beo=\"FUNC:mine:\""), "pd_mine (home);\n");
  writeFor("INTEGER (0..7) --$ beo=\"FUNC:mine:5\"", decSkipLeaf);
  EXPECT_EQ(code, "pi_mine (5);\n");
  writeFor("INTEGER (0..7) --$ beo=\"FUNC:mine:\"", decSkipLeaf);
  EXPECT_EQ(code, "pi_mine ();\n");
}

TEST_F(DecLeaf, OpenTypesOfUnknownVariantAreFatal)
{
  load("T ::= ANY\n");
  perSetEncodingVariant(unknownVariant);
  TestType view(module, type("T"));
  for (TypeFuncCallBack *callBack : {decFrame, decSkipLeaf})
    EXPECT_EXIT(callBack(*view, info), testing::ExitedWithCode(2),
                "Unknown encoding variant");
}

TEST_F(DecLeaf, SkippedOpenTypeByVariant)
{
  writeFor("ANY", decSkipLeaf);
  EXPECT_EQ(code, "pi_OpenType_al ();\n");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  writeFor("ANY", decSkipLeaf);
  EXPECT_EQ(code, "pi_OpenType_ua ();\n");
}

TEST_F(DecLeaf, MessagesByVerbosity)
{
  const std::string comment =
      " /* ?!?: Invalid decoding follows - extended OCTET STRING "
      "constraint. */ \n";
  for (TypeFuncCallBack *callBack : {decLeaf, decSkipLeaf}) {
    writeFor("OCTET STRING (SIZE(1..4, ...))", callBack, 2);
    EXPECT_TRUE(said.ends_with(
        "Warning     QUORVEN Decoding of extended OCTET STRING constraint "
        "not yet supported, sorry.\n"))
        << said;
    EXPECT_EQ(code, comment);
    // The code tells it all the same.
    writeFor("OCTET STRING (SIZE(1..4, ...))", callBack, 1);
    EXPECT_EQ(said, "");
    EXPECT_EQ(code, comment);
  }
}

// --- endings ----------------------------------------------------------------

TEST_F(DecLeaf, SizeEndings)
{
  static const struct {
    const char *field;
    const char *ending;
  } rows[] = {
      {"UI8", "_8"}, {"I8", "_8"}, {"UI16", "_16"}, {"I16", "_16"},
      {"UI32", ""},  {"I32", ""},  {"UI64", ""},    {"I64", ""},
  };
  for (const auto &row : rows) {
    load(std::string("T ::= INTEGER (0..7) --$ field=") + row.field + "\n");
    TestType view(module, type("T"));
    EXPECT_STREQ(decConstrainedWholeNumberSuff(*view, INT_CONSTRAINED),
                 row.ending);
    for (int kind : {INT_SINGLE, INT_SEMI_CONSTRAINED, INT_UNCONSTRAINED})
      EXPECT_STREQ(decConstrainedWholeNumberSuff(*view, kind), "");
  }
}

// A frame has no string function, though it does not come here from a run.
TEST_F(DecLeaf, StringsOfFrames)
{
  expectRefused(decLeaf, "BIT STRING --$ field=FRM",
                "BIT STRING types with complex constraints");
  expectRefused(decLeaf, "OCTET STRING (SIZE(4)) --$ field=FRM",
                "OCTET STRING types with complex constraints");
  expectRefused(decSkipLeaf, "GeneralString --$ field=FRM",
                "GENERAL STRING types with complex constraints");
}

// --- the cut into texts -----------------------------------------------------

TEST_F(DecLeaf, TextsOfIntegers)
{
  const std::string type = "INTEGER (0..100000) --$ field=I32";
  EXPECT_EQ(lineStarts(decLeaf, type),
            (std::set<std::string>{
                "pd_sint32_cwn_al_gt64K (home, 0, 100000, 3, 2);\n",
                "home, 0, 100000, 3, 2);\n", "0, 100000, 3, 2);\n",
                "100000, 3, 2);\n", "3, 2);\n"}));
  EXPECT_EQ(
      lineStarts(decSkipLeaf, type),
      (std::set<std::string>{"pi_sint32_cwn_al_gt64K (0, 100000, 3, 2);\n",
                             "100000, 3, 2);\n", "3, 2);\n"}));
  EXPECT_EQ(lineStarts(decLeaf, "INTEGER (0..7) --$ beo=\"FUNC:f: 1, 2\""),
            (std::set<std::string>{"pd_f (home, 1, 2);\n", "home, 1, 2);\n",
                                   "1, 2);\n"}));
}

TEST_F(DecLeaf, TextsOfStrings)
{
  const std::string type = "OCTET STRING (SIZE(10..400))";
  EXPECT_EQ(
      lineStarts(decLeaf, type),
      (std::set<std::string>{
          "pd_OctetString_al_clt64K_le64K (home, 10, 400, 2);\n",
          "home, 10, 400, 2);\n", "10, 400, 2);\n", "400, 2);\n", "2);\n"}));
  EXPECT_EQ(
      lineStarts(decSkipLeaf, type),
      (std::set<std::string>{"pi_OctetString_al_clt64K_le64K (10, 400, 2);\n",
                             "10, 400, 2);\n", "400, 2);\n", "2);\n"}));
}

// --- frames and other items -------------------------------------------------

TEST_F(DecLeaf, Frame)
{
  writeFor("ANY", decFrame);
  EXPECT_EQ(code, "pd_FrameOpenType_al (home);\n");
  EXPECT_EQ(said, "");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  writeFor("ANY", decFrame);
  EXPECT_EQ(code, "pd_FrameOpenType_ua (home);\n");
}

TEST_F(DecLeaf, FrameOfAnotherType)
{
  for (int any : bothVariants) {
    perSetEncodingVariant(any);
    writeFor("BOOLEAN", decFrame);
    EXPECT_EQ(code, "");
    EXPECT_TRUE(said.ends_with(
        "Module M, type T\n"
        "Warning     QUORVEN The FRAME option with non-ANY type not yet "
        "supported.\n"))
        << said;
  }
}

TEST_F(DecLeaf, DefinedStructure)
{
  writeFor("SEQUENCE { a NULL }", decDefStruct);
  EXPECT_EQ(code, "pdT (ASNG_F(asnperg) home);\n");
  info.normalFuncPrefix = "pd_ua";
  write(decDefStruct);
  EXPECT_EQ(code, "pd_uaT (ASNG_F(asnperg) home);\n");
}

TEST_F(DecLeaf, AnyWithoutClassifier)
{
  load("T ::= ANY\n");
  TestType view(module, type("T"));
  EXPECT_EQ(
      writtenText([&](int) { decAnyDefinedByClassifier(*view, nullptr); }),
      "anyPdcT (ASNG_F(asnperg) home, NULL);\n");
}

void writeClassifiedAny(AsnType &, AsnType &comp, int)
{
  decAnyDefinedByClassifier(comp, &comp);
}

TEST_F(DecLeaf, AnyWithClassifier)
{
  load("T ::= SEQUENCE { id INTEGER }\n");
  TestType view(module, type("T"));
  // The component stands for its own classifier.
  EXPECT_EQ(
      writtenText([&](int) { forEachTypeComp(*view, writeClassifiedAny); }),
      "anyPdcid_T (ASNG_F(asnperg) home, (BYTE_TYPE *)(&home->id));\n");
}

}  // namespace
