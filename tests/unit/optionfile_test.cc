// Lines of option files: how they are cut, and what each sort of line is to
// the two passes over them.

#include "base/diag.h"
#include "base/textfile.h"
#include "options/optionfile.h"
#include "options/params.h"
#include "options/passes.h"
#include "store/module.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::StrEq;

struct OptionFile : testing::Test {
  TempDir dir;
  std::string path = dir.path + "a.opt";

  // The lines of a file with these bytes.
  std::vector<std::string> linesOf(const std::string &bytes) const
  {
    writeFile(path, bytes);
    OpenedFile file(openOptionFile(path.c_str()));
    std::vector<std::string> lines;
    for (std::string line; readOptionFileLine(file.get(), line);)
      lines.push_back(line);
    return lines;
  }
};

TEST_F(OptionFile, OpenReads)
{
  writeFile(path, "x");
  OpenedFile file(openOptionFile(path.c_str()));
  EXPECT_EQ(getc(file.get()), 'x');
}

TEST_F(OptionFile, OpenMissing)
{
  EXPECT_EXIT(openOptionFile(path.c_str()), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for reading\n"
                    "              " +
                    path + "\n\n"));
}

TEST_F(OptionFile, OpenEmptyName)
{
  EXPECT_EXIT(openOptionFile(""), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for reading\n"
                    "              (No option file name specified)\n\n"));
}

TEST_F(OptionFile, OpenNameTooLong)
{
  EXPECT_EXIT(openOptionFile(std::string(1025, 'x').c_str()), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for reading\n\n"));
}

TEST_F(OptionFile, LinesAreTrimmed)
{
  EXPECT_THAT(linesOf(" abc \n\t-A=x y\t\r\n\n \v\f \nlast"),
              ElementsAre("abc", "-A=x y", "", "", "last"));
}

TEST_F(OptionFile, EmptyFile)
{
  EXPECT_THAT(linesOf(""), ElementsAre());
  EXPECT_THAT(linesOf("\n"), ElementsAre(""));
}

TEST_F(OptionFile, LineEndOfOtherSystems)
{
  EXPECT_THAT(linesOf("abc\r\ndef\r\n"), ElementsAre("abc", "def"));
  // A CR alone ends no line.
  EXPECT_THAT(linesOf("abc\rdef"), ElementsAre("abc\rdef"));
}

TEST_F(OptionFile, FullLineWithItsEndIsOne)
{
  std::string full(1024, 'a');
  EXPECT_THAT(linesOf(full + "\nb\n"), ElementsAre(full, "b"));
  EXPECT_THAT(linesOf(full), ElementsAre(full));
  EXPECT_THAT(linesOf(full + "\n"), ElementsAre(full));
  EXPECT_THAT(linesOf(full + "\n\nb"), ElementsAre(full, "", "b"));
}

TEST_F(OptionFile, LongerLinesAreCut)
{
  std::string full(1024, 'a');
  EXPECT_THAT(linesOf(full + "b\nc\n"), ElementsAre(full, "b", "c"));
  EXPECT_THAT(linesOf(full + std::string(76, 'b') + "\nc\n"),
              ElementsAre(full, std::string(76, 'b'), "c"));
  EXPECT_THAT(linesOf(full + full + "c"), ElementsAre(full, full, "c"));
  // White space counts: it is removed from each piece behind the cut.
  EXPECT_THAT(linesOf("  " + full), ElementsAre(full.substr(2), "aa"));
}

TEST_F(OptionFile, ZeroOctetEndsTheText)
{
  EXPECT_THAT(linesOf(std::string("ab \0cd\nef\n", 10)),
              ElementsAre("ab", "ef"));
  EXPECT_THAT(linesOf(std::string("\0ab\n", 4)), ElementsAre(""));
}

TEST_F(OptionFile, OctetsAbove126AreNoWhiteSpace)
{
  EXPECT_THAT(linesOf("\xa0-X\xff\n"), ElementsAre("\xa0-X\xff"));
}

TEST_F(OptionFile, ReadErrorEndsTheLines)
{
  OpenedFile file(openOptionFile(dir.path.c_str()));
  std::string line;
  EXPECT_FALSE(readOptionFileLine(file.get(), line));
  EXPECT_NE(ferror(file.get()), 0);
}

TEST(OptionFileLine, Comments)
{
  for (const char *line :
       {"/*", "/* x", "*/", "*/x", "//", "//x", "(*", "(* x", "*)", "*)x", "--",
        "--x", "---", "#", "#x", "$", "$ANY=x"})
    EXPECT_TRUE(isCommentLine(line)) << line;
}

TEST(OptionFileLine, NoComments)
{
  for (const char *line : {"", "/", "/x", "*", "*x", "(", "(x", ")", "-", "-x",
                           "-//", "- -", " #", "x#", "+x", "_", "%"})
    EXPECT_FALSE(isCommentLine(line)) << line;
}

TEST(OptionFileLine, Marks)
{
  EXPECT_TRUE(beginsWithMark("-END-SCOPE", "-END-SCOPE"));
  EXPECT_TRUE(beginsWithMark("-eNd-scope and more", "-END-SCOPE"));
  EXPECT_FALSE(beginsWithMark("-END-SCOP", "-END-SCOPE"));
  EXPECT_FALSE(beginsWithMark("END-SCOPE", "-END-SCOPE"));
  EXPECT_FALSE(beginsWithMark("", "-END-SCOPE"));
}

// --- both passes over each sort of line -------------------------------------

enum Pass1Effect {
  passedOver,
  isPrefix,   // counts as a syntax file
  isVersion,  // an option that this pass acts on: -V=2
  isBad,
};

constexpr int notRecorded = -1;

struct LineCase {
  const char *line;
  Pass1Effect inPass1;
  int kind;              // in the option pass, or `notRecorded`
  const char *recorded;  // the text there
};

static const LineCase lineCases[] = {
    {"", passedOver, notRecorded, nullptr},
    {"   \t", passedOver, notRecorded, nullptr},
    {"-BEGIN-SCOPE=abc", passedOver, 2, "-BEGIN-SCOPE=abc"},
    {"-begin-Scope=Abc", passedOver, 2, "-BEGIN-SCOPE=Abc"},
    {"-END-SCOPE", passedOver, 2, "-END-SCOPE"},
    {"-end-scope", passedOver, 2, "-END-SCOPE"},
    {"-V=2", isVersion, 2, "-V=2"},
    {"  -v=2\t", isVersion, 2, "-V=2"},
    {"-V=5", isBad, 2, "-V=5"},
    {"-other=x Y", passedOver, 2, "-OTHER=x Y"},
    {"-other x", passedOver, 2, "-OTHER X"},
    {"-", passedOver, 2, "-"},
    {"- x=a", passedOver, 2, "- X=a"},
    {"-//note", passedOver, 2, "-//NOTE"},
    {"/* abc", passedOver, notRecorded, nullptr},
    {"*/ abc", passedOver, notRecorded, nullptr},
    {"// abc", passedOver, notRecorded, nullptr},
    {"(* abc", passedOver, notRecorded, nullptr},
    {"*) abc", passedOver, notRecorded, nullptr},
    {"--comment", passedOver, notRecorded, nullptr},
    {"--V=2", passedOver, notRecorded, nullptr},
    {"# abc", passedOver, notRecorded, nullptr},
    {"$ abc", passedOver, notRecorded, nullptr},
    {"abc", isPrefix, notRecorded, nullptr},
    {"Abc", isPrefix, notRecorded, nullptr},
    {"9bc", isPrefix, notRecorded, nullptr},
    {"_bc", isPrefix, notRecorded, nullptr},
    {"  abc.stx  ", isPrefix, notRecorded, nullptr},
    {"abc def", isBad, notRecorded, nullptr},
    {"ab\x80", isBad, notRecorded, nullptr},
    {"+other.opt", passedOver, 0, "+other.opt"},
    {"%abc", passedOver, 0, "%abc"},
    {"%abc def", passedOver, 0, "%abc"},
    {"/abc", passedOver, 0, "/abc"},
    {"(abc", passedOver, 0, "(abc"},
    {"*abc", passedOver, 0, "*abc"},
    {"=", passedOver, 0, "="},
    {"\xe4"
     "bc",
     passedOver, 0, ""},
    // Cut at the first character that is not printable.
    {"-OTHER=x\ty", passedOver, 0, "-OTHER=x"},
    {"-OTHER=\xe4", passedOver, 0, "-OTHER="},
    {"-\x01", passedOver, 0, "-"},
};

// A run with one module record, which is current and takes the lines.
struct OptionFilePasses : OptionFile {
  ModRec *module;
  int savedLevel = verboseEx;
  OptionFilePasses()
  {
    resetStore();
    resetParams();
    cMP = module = appendModRec(true);
    module->options.prefixLen = 5;
    for (int32_t &next : module->nextFree)
      next = 1;
    verboseEx = 1;
  }
  ~OptionFilePasses() override
  {
    resetStore();
    resetParams();
    verboseEx = savedLevel;
  }
  bool pass1(int &prefixes) const
  {
    return parseOptionFilePartially(path.c_str(), prefixes);
  }
};

TEST_F(OptionFilePasses, Pass1)
{
  for (const LineCase &row : lineCases) {
    writeFile(path, row.line + std::string("\n"));
    int prefixes = 0;
    verboseEx = 1;
    EXPECT_EQ(pass1(prefixes), row.inPass1 != isBad) << row.line;
    EXPECT_EQ(prefixes, row.inPass1 == isPrefix ? 1 : 0) << row.line;
    EXPECT_EQ(verboseEx, row.inPass1 == isVersion ? 2 : 1) << row.line;
  }
}

TEST_F(OptionFilePasses, OptionPass)
{
  for (const LineCase &row : lineCases) {
    writeFile(path, row.line + std::string("\n"));
    unsigned flags = 0;
    TedRange range;
    int32_t before = module->nextFree[REC_TED];
    handleOptionFile(path.c_str(), flags, range);
    if (row.kind == notRecorded) {
      EXPECT_EQ(range.last, 0) << row.line;
      EXPECT_EQ(flags, 0u) << row.line;
      EXPECT_EQ(module->nextFree[REC_TED], before) << row.line;
      continue;
    }
    ASSERT_EQ(range.last, before) << row.line;
    EXPECT_EQ(range.first, before) << row.line;
    EXPECT_EQ(flags, 1u << row.kind) << row.line;
    readRec(module, REC_TED, range.last);
    EXPECT_EQ(tedRec.tedKind, row.kind) << row.line;
    EXPECT_STREQ(getStri(module, tedRec.text), row.recorded) << row.line;
  }
}

TEST_F(OptionFilePasses, EndOfOptionsInPass1)
{
  for (const char *mark :
       {"-END-OF-OPTIONS", "-end-of-options", "-End-Of-Options, really"}) {
    writeFile(path, std::string("abc\n") + mark + "\nxyz\n-V=2\n");
    int prefixes = 0;
    verboseEx = 1;
    EXPECT_TRUE(pass1(prefixes));
    EXPECT_EQ(prefixes, 2) << mark;
    EXPECT_EQ(verboseEx, 2) << mark;
  }
}

TEST_F(OptionFilePasses, EndOfOptionsInOptionPass)
{
  for (const char *mark :
       {"-END-OF-OPTIONS", "-end-of-options", " -End-Of-Options, really"}) {
    writeFile(path, std::string("-X=1\n") + mark + "\n-Y=2\n%z\n");
    unsigned flags = 0;
    TedRange range;
    handleOptionFile(path.c_str(), flags, range);
    EXPECT_EQ(range.first, range.last) << mark;
    readRec(module, REC_TED, range.last);
    EXPECT_STREQ(getStri(module, tedRec.text), "-X=1") << mark;
  }
}

TEST_F(OptionFilePasses, OverlongLineIsTwo)
{
  // 1100 characters: an option and, behind it, 76 that name a syntax file.
  std::string option = "-X=" + std::string(1021, 'x');
  writeFile(path, option + std::string(76, 'y') + "\n");
  int prefixes = 0;
  EXPECT_TRUE(pass1(prefixes));
  EXPECT_EQ(prefixes, 1);
  EXPECT_STREQ(module->filePrefix, "yyyyy");

  unsigned flags = 0;
  TedRange range;
  handleOptionFile(path.c_str(), flags, range);
  EXPECT_EQ(range.first, range.last);
  readRec(module, REC_TED, range.last);
  EXPECT_EQ(tedRec.tedKind, TED_BACK_END);
  EXPECT_EQ(getStri(module, tedRec.text), option);
}
