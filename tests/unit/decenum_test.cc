// Decoders of enumerations of many values, of none, and of unknown variants,
// and the cut of their code into texts. The shapes are golden cases.

#include "base/diag.h"
#include "base/strings.h"
#include "cbet/outfile.h"
#include "per/dec.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"
#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int unknownVariant = 2;

// Items from the number `first` on.
std::string manyItems(int count, int first)
{
  std::string text;
  for (int i = 0; i < count; ++i)
    text += formatText("%si%d(%d)", i ? ", " : "", first + i, first + i);
  return text;
}

std::string around;  // the calls around a function, by their names

void noteBefore(AsnType &, TypeFuncInfo &info)
{
  around += "before";
  wToF(info.implFile, "/* before */\n");
}

void noteAfter(AsnType &, TypeFuncInfo &info)
{
  around += " after";
  wToF(info.implFile, "/* after */\n");
}

struct DecEnum : LoadedAsn {
  int variant = perGetEncodingVariant();
  int decFile = fiDec;
  TypeFuncInfo info;
  std::string code;  // that was written
  std::string said;  // on stdout

  DecEnum()
  {
    perSetEncodingVariant(VARIANT_ALIGNED);
    fiDec = 1;
    info.implFile = 1;
    info.normalFuncPrefix = "pd";
    info.gIndex = 4;
    around.clear();
  }
  ~DecEnum() override
  {
    perSetEncodingVariant(variant);
    fiDec = decFile;
    clearOutFiles();
  }

  void write(TypeFuncCallBack *callBack, int level = 2, int indent = 0)
  {
    TestType view(module, type("T"));
    verboseEx = level;
    testing::internal::CaptureStdout();
    code = writtenText([&](int file) {
      fArr[file].indent = static_cast<int16_t>(indent);
      callBack(*view, info);
    });
    said = testing::internal::GetCapturedStdout();
  }
  // The function of T.
  void writeFunction(int inVariant, int level = 2)
  {
    perSetEncodingVariant(inVariant);
    write(decEnumNormalFunc, level);
  }
  static std::string function(const std::string &body)
  {
    return "\nvoid pdT (ASNG_F(ASNPERG *asnperg) T *home)\n{\n" + body + "}\n";
  }
  // The contents, deep inside blocks: there each text of three characters and
  // more has a line of its own. Lines are joined by "|", without the blanks
  // ahead of them.
  std::string pieces(const std::string &asnType)
  {
    constexpr int deep = 40;
    load("T ::= " + asnType + "\n");
    write([](AsnType &view, TypeFuncInfo &) { decEnumContents(view, false); },
          2, deep);
    std::string result;
    bool atStart = true;
    for (char c : code) {
      if (c == ' ' && atStart)
        continue;
      atStart = c == '\n';
      result += atStart ? '|' : c;
    }
    return result;
  }
};

TEST_F(DecEnum, Function)
{
  load("T ::= ENUMERATED { a, b, c }\n");
  writeFunction(VARIANT_ALIGNED);
  EXPECT_EQ(code, function("  pd_sint32_cwn_al_le255_8 (home, 0, 2, 2);\n"));
  EXPECT_EQ(said, "");
  info.beforeNormalFunc = noteBefore;
  info.afterNormalFunc = noteAfter;
  writeFunction(VARIANT_UNALIGNED);
  EXPECT_EQ(code, "/* before */\n" +
                      function("  pd_sint32_cwn_ua_8 (home, 0, 2, 2);\n") +
                      "/* after */\n");
  EXPECT_EQ(around, "before after");
}

// The definition has a function, and so its leaves call it.
TEST_F(DecEnum, LeafOfADefinition)
{
  load("T ::= ENUMERATED { a, b, ... }\n");
  write(decLeaf);
  EXPECT_EQ(code, "pdT (ASNG_F(asnperg) home);\n");
}

// --- by the number of values ------------------------------------------------

// The word, the ending of 16 bits and the arguments behind the first one.
struct IndexCall {
  int count;
  const char *word;
  const char *alignedRest;
  const char *unalignedRest;
};

constexpr IndexCall indexCalls[] = {
    {2, "le255", ", 0, 1, 1);\n", ", 0, 1, 1);\n"},
    {254, "le255", ", 0, 253, 8);\n", ", 0, 253, 8);\n"},
    {255, "eq255", ", 0, 254, 8);\n", ", 0, 254, 8);\n"},
    {256, "le64K", ", 0, 255, 1);\n", ", 0, 255, 8);\n"},
    {257, "le64K", ", 0, 256, 2);\n", ", 0, 256, 9);\n"},
    {65536, "le64K", ", 0, 65535, 2);\n", ", 0, 65535, 16);\n"},
};

std::string alignedIndex(const IndexCall &call, const char *ending,
                         const char *home)
{
  return formatText("pd_sint32_cwn_al_%s%s (%s%s", call.word, ending, home,
                    call.alignedRest);
}

std::string unalignedIndex(const IndexCall &call, const char *ending,
                           const char *home)
{
  return formatText("pd_sint32_cwn_ua%s (%s%s", ending, home,
                    call.unalignedRest);
}

TEST_F(DecEnum, CountsFromZero)
{
  for (const IndexCall &call : indexCalls) {
    load("T ::= ENUMERATED { " + manyItems(call.count, 0) +
         " } --$ field=UI16\n");
    writeFunction(VARIANT_ALIGNED);
    EXPECT_EQ(code, function("  " + alignedIndex(call, "_16", "home")));
    EXPECT_EQ(said, "");
    writeFunction(VARIANT_UNALIGNED);
    EXPECT_EQ(code, function("  " + unalignedIndex(call, "_16", "home")));
    EXPECT_EQ(said, "");
  }
}

TEST_F(DecEnum, CountsFromOther)
{
  for (const IndexCall &call : indexCalls) {
    load("T ::= ENUMERATED { " + manyItems(call.count, 7) +
         " } --$ field=UI32\n");
    const std::string begin = "  sint32 index;\n  ";
    const std::string end = "  *home = index + 7;\n";
    writeFunction(VARIANT_ALIGNED);
    EXPECT_EQ(code, function(begin + alignedIndex(call, "", "&index") + end));
    writeFunction(VARIANT_UNALIGNED);
    EXPECT_EQ(code, function(begin + unalignedIndex(call, "", "&index") + end));
  }
}

// The root alone is counted, and has no ending.
TEST_F(DecEnum, CountsOfExtensibleTypes)
{
  for (const IndexCall &call : indexCalls) {
    if (call.count > 257)
      break;
    load("T ::= ENUMERATED { " + manyItems(call.count, 0) + ", ..., " +
         manyItems(300, 1000) + " } --$ field=UI16\n");
    writeFunction(VARIANT_ALIGNED);
    EXPECT_THAT(code, HasSubstr("    if (!pd_extensionBit ()) {\n      " +
                                alignedIndex(call, "", "&index") +
                                "      home->value = index;\n    }\n"));
    EXPECT_THAT(code, HasSubstr("      if (0 <= index && index <= 299) {\n"
                                "        home->value = index + 1000;\n"));
    writeFunction(VARIANT_UNALIGNED);
    EXPECT_THAT(code, HasSubstr(unalignedIndex(call, "", "&index")));
  }
}

TEST_F(DecEnum, CountsWithHoles)
{
  load("T ::= ENUMERATED { " + manyItems(256, 0) +
       ", last(300) } --$ field=I32\n");
  writeFunction(VARIANT_ALIGNED);
  EXPECT_THAT(code, HasSubstr("{\n  sint32 index;\n"
                              "  pd_sint32_cwn_al_le64K (&index, 0, 256, 2);\n"
                              "  switch (index) {\n"
                              "    case 0:\n      *home = 0;\n      break;\n"));
  EXPECT_THAT(code, HasSubstr("    case 256:\n      *home = 300;\n"
                              "      break;\n    default:\n"
                              "      break;\n  }\n}\n"));
}

// The ending stands behind the error text, which ends its line.
TEST_F(DecEnum, TooManyValues)
{
  load("T ::= ENUMERATED { " + manyItems(65537, 0) + " } --$ field=UI16\n");
  const std::string refused =
      function("  pd_sint32_cwn_al_ERROR: Too many values in enumerated type.\n"
               "  _16 (home, 0, 65536, 3);\n");
  writeFunction(VARIANT_ALIGNED);
  EXPECT_EQ(code, refused);
  EXPECT_EQ(said, "Warning     QUORVEN Too many values in Enumerated type.\n");
  writeFunction(VARIANT_ALIGNED, 1);
  EXPECT_EQ(code, refused);
  EXPECT_EQ(said, "");
  writeFunction(VARIANT_UNALIGNED);
  EXPECT_EQ(code, function("  pd_sint32_cwn_ua_16 (home, 0, 65536, 17);\n"));
  EXPECT_EQ(said, "");
}

// --- no root value ----------------------------------------------------------

TEST_F(DecEnum, NoRootValue)
{
  compiled = compileBody("T ::= ENUMERATED { a, ..., b(4) }\n");
  // The text of the type needs a root; the tree does not.
  StxTree &tree = treeOf(compiled);
  TNode &node = stxTypeAt(tree, type("T"));
  node.namedNumbers = stxValueAt(tree, node.namedNumbers).next;
  loadCompiled();
  writeFunction(VARIANT_ALIGNED);
  EXPECT_THAT(code,
              HasSubstr("      pd_sint32_cwn_al_le255 (&index, 0, -1, 0);\n"
                        "      switch (index) {\n"
                        "        default:\n"
                        "          break;\n"
                        "      }\n"
                        "    }\n"
                        "    else {\n"
                        "      index = pd_normSmallNonNegWholeNumAl ();\n"
                        "      if (index == 0) {\n"
                        "        home->value = index + 4;\n"));
}

// --- unknown variant --------------------------------------------------------

TEST_F(DecEnum, OneValueOfUnknownVariant)
{
  load("T ::= ENUMERATED { a }\n");
  writeFunction(unknownVariant);
  EXPECT_EQ(code, function("  ERROR: unknown encoding variant\n"));
  EXPECT_EQ(said, "");
}

TEST_F(DecEnum, RootOfUnknownVariant)
{
  const std::string expected = function("   ERROR: unknown encoding variant\n"
                                        "   (home, 0, 1, 0);\n");
  // A small home adds no ending to what is no name.
  load("T ::= ENUMERATED { a, b } --$ field=UI8\n");
  writeFunction(unknownVariant);
  EXPECT_EQ(code, expected);
  load("T ::= ENUMERATED { a, b } --$ field=I32\n");
  writeFunction(unknownVariant);
  EXPECT_EQ(code, expected);
  EXPECT_EQ(said, "Warning     QUORVEN Unknown encoding variant\n");
}

TEST_F(DecEnum, AdditionsOfUnknownVariant)
{
  load("T ::= ENUMERATED { a, ... }\n");
  writeFunction(unknownVariant);
  EXPECT_THAT(code, HasSubstr("    if (!pd_extensionBit ()) {\n"
                              "       ERROR: unknown encoding variant\n"
                              "       (&index, 0, 0, 0);\n"
                              "      home->value = index;\n"
                              "    }\n"
                              "    else {\n"
                              "       ERROR: unknown encoding variant\n"
                              "      home->extended = TRUE;\n"));
  EXPECT_EQ(said, "Warning     QUORVEN Unknown encoding variant\n"
                  "Warning     QUORVEN Unknown encoding variant\n");
  writeFunction(VARIANT_ALIGNED);
  EXPECT_THAT(code, Not(HasSubstr("ERROR")));
  EXPECT_EQ(said, "");
}

// --- the cut into texts -----------------------------------------------------

TEST_F(DecEnum, PiecesOfOneValue)
{
  EXPECT_EQ(pieces("ENUMERATED { a(4) }"), "pd_sint32_cwn_al_eq1|(home, |0);|");
}

TEST_F(DecEnum, PiecesOfContiguousValues)
{
  EXPECT_EQ(pieces("ENUMERATED { a, b }"),
            "pd_sint32_cwn_al_|le255_8|(home, |0, 1, 1);|");
  EXPECT_EQ(pieces("ENUMERATED { a(5), b(6) }"),
            "sint32 index;|pd_sint32_cwn_al_|le255_8|(&index, |0, 1, 1);|"
            "*home|= index|+ 5;|");
}

TEST_F(DecEnum, PiecesOfASwitch)
{
  EXPECT_EQ(pieces("ENUMERATED { a(1), b(5) } --$ field=I16"),
            "sint32 index;|pd_sint32_cwn_al_|le255|_16|(&index, |0, 1, 1);|"
            "switch (index) {|case 0:|*home|= 1;|break;|"
            "case 1:|*home|= 5;|break;|default:|break;|}|");
}

TEST_F(DecEnum, PiecesOfAnExtensibleType)
{
  EXPECT_EQ(pieces("ENUMERATED { a(1), b(2), ..., c(5), d(6) }"),
            "{|sint32 index;|home->|extended = FALSE;|"
            "if (!pd_extensionBit ()) {|"
            "pd_sint32_cwn_al_|le255|(&index, |0, 1, 1);|"
            "home->|value = index|+ 1;|}|"
            "else {|index = pd_normSmallNonNegWholeNumAl ();|"
            "if (0 <= index && index <= 1) {|home->|value = index|+ 5;|}|"
            "else {|home->|extended = TRUE;|home->|value = index;|}|}|}|");
}

}  // namespace
