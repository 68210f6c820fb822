// Calls for leaves, as far as no run shows them: unknown variants, messages by
// verbosity, and what the engine hands over to nobody yet.

#include "base/diag.h"
#include "cbet/outfile.h"
#include "model/typeiter.h"
#include "per/enc.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"

namespace {

constexpr int unknownVariant = 2;

TypeFuncInfo leafInfo()
{
  TypeFuncInfo info;
  info.implFile = 1;
  info.normalFuncPrefix = "pe";
  info.gIndex = 4;
  return info;
}

struct EncLeaf : LoadedAsn {
  int variant = perGetEncodingVariant();
  int encFile = fiEnc;
  std::string code;  // that was written
  std::string said;  // on stdout

  EncLeaf()
  {
    perSetEncodingVariant(VARIANT_ALIGNED);
    fiEnc = 1;
  }
  ~EncLeaf() override
  {
    perSetEncodingVariant(variant);
    fiEnc = encFile;
    clearOutFiles();
  }

  // Of the type T.
  void write(TypeFuncCallBack *callBack, int level = 2)
  {
    TypeFuncInfo info = leafInfo();
    TestType view(module, type("T"));
    verboseEx = level;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    code = writtenText([&](int) { callBack(*view, info); });
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    said = testing::internal::GetCapturedStdout();
  }
  void writeFor(const std::string &asnType, TypeFuncCallBack *callBack,
                int level = 2)
  {
    load("T ::= " + asnType + "\n");
    write(callBack, level);
  }
  void expectNoCode(const std::string &asnType, const std::string &text)
  {
    writeFor(asnType, encLeaf);
    EXPECT_EQ(code, "") << asnType;
    EXPECT_TRUE(said.ends_with("Module M, type T\n"
                               "Warning     QUORVEN " +
                               text + "\n"))
        << said;
  }
};

TEST_F(EncLeaf, Reference)
{
  load("T ::= BOOLEAN\n");
  TestType view(module, type("T"));
  auto ref = [&](bool address, bool member) {
    return writtenText([&](int) { encRef("<", address, *view, member, ">"); });
  };
  EXPECT_EQ(ref(false, false), "<*home>");
  EXPECT_EQ(ref(true, false), "<home>");
  EXPECT_EQ(ref(false, true), "<home->>");
  EXPECT_EQ(
      writtenText([&](int) { encRef(nullptr, true, *view, false, nullptr); }),
      "home");
  // As one text.
  EXPECT_EQ(brokenTexts([&](int) { encRef("<", true, *view, false, ">"); }),
            (std::set<std::string>{"<home>"}));
}

TEST_F(EncLeaf, OtherVariantsOfTheSameCall)
{
  for (int any :
       {int{VARIANT_ALIGNED}, int{VARIANT_UNALIGNED}, unknownVariant}) {
    perSetEncodingVariant(any);
    writeFor("BOOLEAN", encLeaf);
    EXPECT_EQ(code, "pe_Boolean (*home);\n");
    writeFor("NULL", encLeaf);
    EXPECT_EQ(code, "pe_NullType ();\n");
    writeFor("OBJECT IDENTIFIER", encLeaf);
    EXPECT_EQ(code, "pe_ObjectIdentifier (home);\n");
    writeFor("ANY", encLeaf);
    EXPECT_EQ(code, "pe_FrameOpenType_al (& a1->val.frm);\n");
    writeFor("SEQUENCE { }", encLeaf);
    EXPECT_EQ(code, "");
    EXPECT_EQ(said, "");
  }
}

TEST_F(EncLeaf, UnknownVariant)
{
  perSetEncodingVariant(unknownVariant);
  const std::string notYet = " not yet supported, sorry.";
  expectNoCode("INTEGER (0..7)",
               "INTEGER types with complex constraints" + notYet);
  expectNoCode("INTEGER (0..7) --$ field=I64",
               "sint64 INTEGER types with small constraints" + notYet);
  expectNoCode("BIT STRING (SIZE(4))",
               "BIT STRING types with complex constraints" + notYet);
  expectNoCode("OCTET STRING",
               "OCTET STRING types with complex constraints" + notYet);
  expectNoCode("GeneralString",
               "GENERAL STRING type with complex constraints" + notYet);
}

TEST_F(EncLeaf, UnknownVariantOfCharacters)
{
  perSetEncodingVariant(unknownVariant);
  writeFor("NumericString (SIZE(4))", encLeaf);
  EXPECT_EQ(code, "pe_KnownMultiCharStri_<unsupported>"
                  "!! Unsupported string type !! (home, 4, 4,\n"
                  "  0, 4, TYP_NUMSTR, 11, asnperNumStrChars);\n");
  EXPECT_TRUE(said.ends_with(
      "Module M, type T\n"
      "Warning     QUORVEN Unsupported character string type.\n"
      "Warning     QUORVEN Constraints or the C home area might be too "
      "complex.\n"))
      << said;
  perSetEncodingVariant(VARIANT_ALIGNED);
  writeFor("NumericString (SIZE(4))", encLeaf);
  EXPECT_EQ(code, "pe_KnownMultiCharStri_al_fle16 (home, 4, 4, 0, 4, "
                  "TYP_NUMSTR, 11,\n  asnperNumStrChars);\n");
  EXPECT_EQ(said, "");
}

TEST_F(EncLeaf, FunctionOfTheUserInAnyVariant)
{
  perSetEncodingVariant(unknownVariant);
  writeFor("INTEGER (0..7) --$ beo=\"FUNC:mine:5\"", encLeaf);
  EXPECT_EQ(code, "pe_mine (*home,5);\n");
  writeFor("INTEGER (0..7) --$ beo=\"FUNC:mine:\"", encLeaf);
  EXPECT_EQ(code, "pe_mine (*home);\n");
}

TEST_F(EncLeaf, MessagesByVerbosity)
{
  const std::string comment =
      " /*?!?: Invalid encoding follows - extended OCTET STRING "
      "constraint.*/\n";
  writeFor("OCTET STRING (SIZE(1..4, ...))", encLeaf, 2);
  EXPECT_NE(said, "");
  EXPECT_EQ(code, comment);
  // The code tells it all the same.
  writeFor("OCTET STRING (SIZE(1..4, ...))", encLeaf, 1);
  EXPECT_EQ(said, "");
  EXPECT_EQ(code, comment);
}

TEST_F(EncLeaf, UnrecognizedType)
{
  writeFor("REAL", encLeaf, 2);
  EXPECT_EQ(said, "Warning     QUORVEN Unrecognized leaf type (TYP_REAL)\n");
  EXPECT_EQ(code, "");
  writeFor("REAL", encLeaf, 1);
  EXPECT_EQ(said, "");
  EXPECT_EQ(code, "");
}

// An INSTANCE OF that has no components is a leaf; with components the engine
// walks it.
TEST_F(EncLeaf, InstanceOf)
{
  writeFor("INSTANCE OF TYPE-IDENTIFIER", encLeaf);
  EXPECT_EQ(said,
            "Warning     QUORVEN Unrecognized leaf type (TYP_INSTANCE_OF)\n");
  EXPECT_EQ(code, "");
}

// --- frames -----------------------------------------------------------------

TEST_F(EncLeaf, Frame)
{
  writeFor("ANY", encFrame);
  EXPECT_EQ(code, "pe_FrameOpenType_al (home);\n");
  EXPECT_EQ(said, "");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  writeFor("ANY", encFrame);
  EXPECT_EQ(code, "pe_FrameOpenType_ua (home);\n");
}

TEST_F(EncLeaf, FrameOfUnknownVariant)
{
  load("T ::= ANY\n");
  perSetEncodingVariant(unknownVariant);
  TypeFuncInfo info = leafInfo();
  TestType view(module, type("T"));
  EXPECT_EXIT(encFrame(*view, info), testing::ExitedWithCode(2),
              "Unknown encoding variant");
}

TEST_F(EncLeaf, FrameOfAnotherType)
{
  writeFor("BOOLEAN", encFrame);
  EXPECT_EQ(code, "");
  EXPECT_TRUE(said.ends_with(
      "Module M, type T\n"
      "Warning     QUORVEN The FRAME option with non-ANY type not yet "
      "supported.\n"))
      << said;
}

// --- other items ------------------------------------------------------------

TEST_F(EncLeaf, SkipAndDefinedStructure)
{
  writeFor("SEQUENCE { a NULL }", encSkip);
  EXPECT_EQ(code, "pe_Skip ();\n");
  writeFor("SEQUENCE { a NULL }", encDefStruct);
  EXPECT_EQ(code, "peT (ASNG_F(asnperg) home);\n");
}

TEST_F(EncLeaf, AnyWithoutClassifier)
{
  load("T ::= ANY\n");
  TestType view(module, type("T"));
  EXPECT_EQ(
      writtenText([&](int) { encAnyDefinedByClassifier(*view, nullptr); }),
      "anyPecT (ASNG_F(asnperg) home, NULL);\n");
}

void writeClassified(AsnType &, AsnType &comp, int)
{
  encAnyDefinedByClassifier(comp, &comp);
}

TEST_F(EncLeaf, AnyWithClassifier)
{
  load("T ::= SEQUENCE { id INTEGER }\n");
  TestType view(module, type("T"));
  // The component stands for its own classifier.
  EXPECT_EQ(writtenText([&](int) { forEachTypeComp(*view, writeClassified); }),
            "anyPecid_T (ASNG_F(asnperg) home, (BYTE_TYPE *)(&home->id));\n");
}

}  // namespace
