// Encoders of enumerations of many values, of none, and of unknown variants.
// The shapes are golden cases.

#include "base/diag.h"
#include "base/strings.h"
#include "cbet/outfile.h"
#include "per/enc.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"
#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int unknownVariant = 2;

// Items from `first` on, of the numbers from `number` on.
std::string items(int count, int number)
{
  std::string text;
  for (int i = 0; i < count; ++i)
    text += formatText("%si%d(%d)", i ? ", " : "", number + i, number + i);
  return text;
}

std::string walked;  // the calls around a function, by their names

void before(AsnType &, TypeFuncInfo &info)
{
  walked += "before";
  wToF(info.implFile, "/* before */\n");
}

void after(AsnType &, TypeFuncInfo &info)
{
  walked += " after";
  wToF(info.implFile, "/* after */\n");
}

struct EncEnum : LoadedAsn {
  int variant = perGetEncodingVariant();
  int encFile = fiEnc;
  TypeFuncInfo info;
  std::string code;  // that was written
  std::string said;  // on stdout

  EncEnum()
  {
    perSetEncodingVariant(VARIANT_ALIGNED);
    fiEnc = 1;
    info.implFile = 1;
    info.normalFuncPrefix = "pe";
    info.gIndex = 4;
    walked.clear();
  }
  ~EncEnum() override
  {
    perSetEncodingVariant(variant);
    fiEnc = encFile;
    clearOutFiles();
  }

  void write(TypeFuncCallBack *callBack, int level = 2)
  {
    TestType view(module, type("T"));
    verboseEx = level;
    testing::internal::CaptureStdout();
    code = writtenText([&](int) { callBack(*view, info); });
    said = testing::internal::GetCapturedStdout();
  }
  // The function of T.
  void writeFunction(int inVariant, int level = 2)
  {
    perSetEncodingVariant(inVariant);
    write(encEnumNormalFunc, level);
  }
  static std::string function(const std::string &body)
  {
    return "\nvoid peT (ASNG_F(ASNPERG *asnperg) T *home)\n{\n" + body + "}\n";
  }
};

TEST_F(EncEnum, Function)
{
  load("T ::= ENUMERATED { a, b, c }\n");
  writeFunction(VARIANT_ALIGNED);
  EXPECT_EQ(code, function("  pe_sint32_cwn_al_le255 (*home, 0, 2, 2);\n"));
  EXPECT_EQ(said, "");
  info.beforeNormalFunc = before;
  info.afterNormalFunc = after;
  writeFunction(VARIANT_UNALIGNED);
  EXPECT_EQ(code, "/* before */\n" +
                      function("  pe_sint32_cwn_ua (*home, 0, 2, 2);\n") +
                      "/* after */\n");
  EXPECT_EQ(walked, "before after");
}

// The definition has a function, and so its leaves call it.
TEST_F(EncEnum, LeafOfADefinition)
{
  load("T ::= ENUMERATED { a, b, ... }\n");
  write(encLeaf);
  EXPECT_EQ(code, "peT (ASNG_F(asnperg) home);\n");
}

// --- by the number of values ------------------------------------------------

struct Call {
  int count;
  const char *aligned;
  const char *unaligned;
};

constexpr Call calls[] = {
    {2, "le255 (%s, 0, 1, 1);\n", " (%s, 0, 1, 1);\n"},
    {254, "le255 (%s, 0, 253, 8);\n", " (%s, 0, 253, 8);\n"},
    {255, "eq255 (%s, 0, 254, 8);\n", " (%s, 0, 254, 8);\n"},
    {256, "le64K (%s, 0, 255, 1);\n", " (%s, 0, 255, 8);\n"},
    {257, "le64K (%s, 0, 256, 2);\n", " (%s, 0, 256, 9);\n"},
    {65535, "le64K (%s, 0, 65534, 2);\n", " (%s, 0, 65534, 16);\n"},
    {65536, "le64K (%s, 0, 65535, 2);\n", " (%s, 0, 65535, 16);\n"},
    {65537, "ERROR: Too many values in enumerated type.\n (%s, 0, 65536, 3);\n",
     " (%s, 0, 65536, 17);\n"},
};

std::string alignedCall(const Call &call, const char *index)
{
  std::string text = "pe_sint32_cwn_al_";
  text += call.aligned;
  return text.replace(text.find("%s"), 2, index);
}

std::string unalignedCall(const Call &call, const char *index)
{
  std::string text = "pe_sint32_cwn_ua";
  text += call.unaligned;
  return text.replace(text.find("%s"), 2, index);
}

// An error text ends its line, and the rest of the call is indented anew.
std::string indented(std::string text)
{
  for (size_t at = text.find("\n "); at != std::string::npos;
       at = text.find("\n ", at + 3))
    text.insert(at + 1, "  ");
  return "  " + text;
}

TEST_F(EncEnum, CountsFromZero)
{
  for (const Call &call : calls) {
    load("T ::= ENUMERATED { " + items(call.count, 0) + " }\n");
    writeFunction(VARIANT_ALIGNED);
    EXPECT_EQ(code, function(indented(alignedCall(call, "*home"))));
    EXPECT_EQ(said, call.count <= 65536
                        ? ""
                        : "Warning     QUORVEN Too many values in Enumerated "
                          "type.\n");
    writeFunction(VARIANT_UNALIGNED);
    EXPECT_EQ(code, function(indented(unalignedCall(call, "*home"))));
    EXPECT_EQ(said, "");
  }
}

TEST_F(EncEnum, CountsFromOther)
{
  for (const Call &call : calls) {
    load("T ::= ENUMERATED { " + items(call.count, 7) + " }\n");
    const std::string shape =
        formatText("  sint32 index;\n"
                   "  if (7 <= *home && *home <= %d) {\n"
                   "    index = *home - 7;\n"
                   "  }\n"
                   "  else {\n"
                   "    index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */\n"
                   "  }\n",
                   call.count + 6);
    writeFunction(VARIANT_ALIGNED);
    EXPECT_EQ(code, function(shape + indented(alignedCall(call, "index"))));
    writeFunction(VARIANT_UNALIGNED);
    EXPECT_EQ(code, function(shape + indented(unalignedCall(call, "index"))));
  }
}

// The root alone is counted.
TEST_F(EncEnum, CountsOfExtensibleTypes)
{
  for (const Call &call : calls) {
    if (call.count > 257)
      break;
    load("T ::= ENUMERATED { " + items(call.count, 0) + ", ..., " +
         items(300, 1000) + " }\n");
    writeFunction(VARIANT_ALIGNED);
    EXPECT_THAT(code, HasSubstr("    if (!extBit) {\n      " +
                                alignedCall(call, "index") + "    }\n"));
    EXPECT_THAT(code, HasSubstr("if (1000 <= home->value && "
                                "home->value <= 1299) {\n"));
    writeFunction(VARIANT_UNALIGNED);
    EXPECT_THAT(code, HasSubstr("    if (!extBit) {\n      " +
                                unalignedCall(call, "index") + "    }\n"));
  }
}

TEST_F(EncEnum, CountsWithHoles)
{
  load("T ::= ENUMERATED { " + items(256, 0) + ", last(300) }\n");
  writeFunction(VARIANT_ALIGNED);
  EXPECT_THAT(code, HasSubstr("{\n  sint32 index;\n  switch (*home) {\n"
                              "    case 0:\n      index = 0;\n"));
  EXPECT_THAT(code, HasSubstr("    case 300:\n      index = 256;\n"
                              "      break;\n    default:\n"));
  EXPECT_THAT(code, HasSubstr("  pe_sint32_cwn_al_le64K (index, 0, 256, 2);\n"
                              "}\n"));
}

TEST_F(EncEnum, TheToolReportsByVerbosity)
{
  load("T ::= ENUMERATED { " + items(65537, 0) + " }\n");
  writeFunction(VARIANT_ALIGNED, 1);
  EXPECT_EQ(said, "");
  EXPECT_THAT(code, HasSubstr("ERROR: Too many values in enumerated type.\n"));
}

// --- no root value ----------------------------------------------------------

TEST_F(EncEnum, NoRootValue)
{
  load("T ::= ENUMERATED { a, ..., b(4) }\n");
  // The text of the type needs a root; the tree does not.
  StxTree tree = treeOf(compiled);
  int32_t record = typeNamed(tree, "T");
  VNode &first = stxValueAt(tree, stxTypeAt(tree, record).namedNumbers);
  stxTypeAt(tree, record).namedNumbers = first.next;
  run.add(tree, compiled.trees[0].prefix.c_str());
  resetStore();
  resetParams();
  run.load({compiled.trees[0].prefix});
  module = LoadedRun::module(compiled.trees[0].prefix.c_str());
  writeFunction(VARIANT_ALIGNED);
  EXPECT_THAT(code, HasSubstr("    if (!home->extended) {\n"
                              "      switch (home->value) {\n"
                              "        default:\n"
                              "          extBit = TRUE;\n"
                              "          if (home->value == 4) {\n"));
  EXPECT_THAT(code, HasSubstr("pe_sint32_cwn_al_le255 (index, 0, -1, 0);\n"));
}

// --- unknown variant --------------------------------------------------------

TEST_F(EncEnum, OneValueOfUnknownVariant)
{
  load("T ::= ENUMERATED { a }\n");
  writeFunction(unknownVariant);
  EXPECT_EQ(code, function("  ERROR: unknown encoding variant\n"));
  EXPECT_EQ(said, "");
}

TEST_F(EncEnum, RootOfUnknownVariant)
{
  load("T ::= ENUMERATED { a, b }\n");
  writeFunction(unknownVariant);
  EXPECT_EQ(code, function("   ERROR: unknown encoding variant\n"
                           "   (*home, 0, 1, 0);\n"));
  EXPECT_EQ(said, "Warning     QUORVEN Unknown encoding variant\n");
}

TEST_F(EncEnum, AdditionsOfUnknownVariant)
{
  load("T ::= ENUMERATED { a, ... }\n");
  writeFunction(unknownVariant);
  EXPECT_THAT(code, HasSubstr("    if (!extBit) {\n"
                              "       ERROR: unknown encoding variant\n"
                              "       (index, 0, 0, 0);\n"
                              "    }\n"
                              "    else {\n"
                              "       ERROR: unknown encoding variant\n"
                              "    }\n"));
  EXPECT_EQ(said, "Warning     QUORVEN Unknown encoding variant\n"
                  "Warning     QUORVEN Unknown encoding variant\n");
  writeFunction(VARIANT_ALIGNED);
  EXPECT_THAT(code, Not(HasSubstr("ERROR")));
  EXPECT_EQ(said, "");
}

}  // namespace
