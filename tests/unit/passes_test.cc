// The passes over options when trees are in memory.

#include "base/diag.h"
#include "base/upcalls.h"
#include "driver/meta.h"
#include "options/catalogue.h"
#include "options/params.h"
#include "options/passes.h"
#include "store/module.h"
#include "support/tempdir.h"
#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::StrEq;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

// A module "abc" whose lines are written in memory, and "def" beside it.
struct Passes : testing::Test {
  TempDir dir;
  std::string file = dir.path + "a.opt";
  int savedLevel = verboseEx;
  ModRec *abc;
  ModRec *def;
  TedRange range;
  unsigned flags = 0;
  Passes()
  {
    resetStore();
    resetParams();
    stxDir.clear();
    cMP = abc = newModule("abc");
    def = newModule("def");
  }
  ~Passes() override
  {
    resetStore();
    resetParams();
    stxDir.clear();
    verboseEx = savedLevel;
    pass3Scope = 1;
  }
  static ModRec *newModule(const char *prefix)
  {
    ModRec *module = appendModRec(true);
    setModulePrefixes(*module, prefix, prefix);
    module->options.prefixLen = 5;
    for (int32_t &next : module->nextFree)
      next = 1;
    return module;
  }
  // Appends a line to the range, not by the routine under test.
  void line(int kind, const char *text)
  {
    int32_t index = abc->nextFree[REC_TED]++;
    tedRec = TedRec{};
    tedRec.tedKind = static_cast<uint8_t>(kind);
    tedRec.text = putStri(abc, text);
    writeRec(abc, REC_TED, index);
    range.first = range.first ? range.first : index;
    range.last = index;
  }
  struct Line {
    int kind;
    std::string text;
    bool operator==(const Line &) const = default;
  };
  // What a range holds.
  static std::vector<Line> linesOf(ModRec *module, TedRange lines)
  {
    std::vector<Line> found;
    for (int32_t i = lines.first ? lines.first : 1; i <= lines.last; ++i) {
      readRec(module, REC_TED, i);
      found.push_back({tedRec.tedKind, getStri(module, tedRec.text)});
    }
    return found;
  }
  std::vector<int> kinds() const
  {
    std::vector<int> found;
    for (const Line &row : linesOf(abc, range))
      found.push_back(row.kind);
    return found;
  }
  std::string global() const
  {
    CaptureStderr();
    checkGlobalOptions(*abc, 0, range);
    return GetCapturedStderr();
  }
  std::string backEnd() const
  {
    CaptureStderr();
    checkGlobalBEOptions(*abc, range);
    return GetCapturedStderr();
  }
  // The option pass over arguments behind the program's name.
  std::string optionPass(std::vector<std::string> arguments)
  {
    std::vector<char *> vector = {nullptr};
    for (std::string &argument : arguments)
      vector.push_back(argument.data());
    CaptureStderr();
    parseCmdLineOptions(static_cast<int>(vector.size()), vector.data(), flags,
                        range);
    return GetCapturedStderr();
  }
};

static std::string ignored(const std::string &text)
{
  return "\nWARNING : Option ignored: " + text + "\n";
}

// --- passes 2 and 3 ---------------------------------------------------------

TEST_F(Passes, PrefixesBeforeAllOthers)
{
  for (const char *text : {"Other", "other"})
    putStri(abc, text);
  line(3, "-NAMELEN=40");
  line(3, "-PREFIX=Other:other");
  EXPECT_EQ(global(), "");
  EXPECT_EQ(abc->options.nameLen, 40);
  ASSERT_NE(abc->options.prefixes, nullptr);
  const PicRec *entry = abc->options.prefixes->firstImport;
  ASSERT_NE(entry, nullptr);
  EXPECT_STREQ(entry->moduleName, "Other");
  EXPECT_STREQ(entry->module->generationPrefix, "other");
}

TEST_F(Passes, PrefixOfEveryKindButDropped)
{
  for (const char *text : {"A", "B", "C", "D"})
    putStri(abc, text);
  line(0, "-PREFIX=A");
  line(1, "-PREFIX=B");
  line(2, "-PREFIX=C");
  line(3, "-PREFIX=D");
  global();
  ASSERT_NE(abc->options.prefixes, nullptr);
  std::vector<std::string> names;
  for (const PicRec *entry = abc->options.prefixes->firstImport; entry;
       entry = entry->next)
    names.push_back(entry->moduleName);
  EXPECT_THAT(names, ElementsAre("B", "C", "D"));
}

TEST_F(Passes, DroppedAndEmbeddingLinesSayNothing)
{
  line(0, "-NAMELEN=40");
  line(0, "-ALLOW");
  line(1, "-NAMELEN=41");
  line(1, "-ALLOW");
  EXPECT_EQ(global(), "");
  EXPECT_EQ(abc->options.nameLen, 32);
  EXPECT_EQ(abc->options.allow, 0);
}

TEST_F(Passes, FailuresAreNotInForceAndNotTold)
{
  line(3, "-NAMELEN=7");
  line(3, "-UNKNOWN=1");
  line(3, "-PREFIX=abc");
  line(3, "");
  line(3, "-NAMELEN=9");
  EXPECT_EQ(global(), "");
  EXPECT_EQ(abc->options.nameLen, 9);
  // The lines stay as they are.
  EXPECT_THAT(kinds(), ElementsAre(3, 3, 3, 3, 3));
}

TEST_F(Passes, NamesOfSavedLinesCompareExactly)
{
  line(3, "-namelen=40");
  EXPECT_EQ(global(), "");
  EXPECT_EQ(abc->options.nameLen, 32);
}

TEST_F(Passes, OnlyTheRange)
{
  line(3, "-NAMELEN=40");
  line(3, "-DECIMALS=4");
  line(3, "-SPLIT=7");
  range = {2, 2};
  global();
  EXPECT_EQ(abc->options.nameLen, 32);
  EXPECT_EQ(abc->options.decimals, 4);
  EXPECT_EQ(abc->options.split, 0);
}

TEST_F(Passes, RangeWithoutFirstBeginsAt1)
{
  line(3, "-NAMELEN=40");
  line(3, "-DECIMALS=4");
  range = {0, 1};
  global();
  EXPECT_EQ(abc->options.nameLen, 40);
  EXPECT_EQ(abc->options.decimals, 255);
}

TEST_F(Passes, EmptyRange)
{
  line(3, "-NAMELEN=40");
  range = {0, 0};
  global();
  backEnd();
  EXPECT_EQ(abc->options.nameLen, 32);
}

TEST_F(Passes, RangeBeyondTheLines)
{
  line(3, "-NAMELEN=40");
  range.last = 2;
  EXPECT_EXIT(checkGlobalOptions(*abc, 0, range), ExitedWithCode(2),
              HasSubstr("Can not read record from syntax tree"));
}

TEST_F(Passes, Scopes)
{
  line(3, "-BEGIN-SCOPE=def");
  line(3, "-NAMELEN=40");
  line(3, "-END-SCOPE");
  line(3, "-DECIMALS=4");
  line(3, "-BEGIN-SCOPE=def:abc");
  line(3, "-SPLIT=7");
  global();
  EXPECT_EQ(abc->options.nameLen, 32);
  EXPECT_EQ(abc->options.decimals, 4);
  EXPECT_EQ(abc->options.split, 7);
}

TEST_F(Passes, ScopesAcrossKinds)
{
  // A scope opened by a line of kind 2 holds for kind 3, and the other way;
  // a dropped line opens none.
  line(2, "-BEGIN-SCOPE=def");
  line(3, "-NAMELEN=40");
  line(3, "-END-SCOPE");
  line(3, "-BEGIN-SCOPE=def");
  line(2, "-ALLOW");
  line(2, "-END-SCOPE");
  line(0, "-BEGIN-SCOPE=def");
  line(3, "-DECIMALS=4");
  global();
  EXPECT_EQ(abc->options.nameLen, 32);
  EXPECT_EQ(abc->options.allow, 0);
  EXPECT_EQ(abc->options.decimals, 4);
}

TEST_F(Passes, ScopeStartsAnewForEachTree)
{
  line(3, "-BEGIN-SCOPE=def");
  global();
  EXPECT_EQ(pass3Scope, 0);
  TedRange open = range;
  range = {};
  line(3, "-NAMELEN=40");
  global();
  EXPECT_EQ(abc->options.nameLen, 40);
  EXPECT_NE(open.last, range.last);
}

// --- lines for this back-end ------------------------------------------------

struct BlockCase {
  const char *text;
  const char *rest;  // null: not for this tool
};

TEST(ParseBEOption, Forms)
{
  const BlockCase cases[] = {
      {"-BEO=QUORVEN=PERCOD=1:1", "PERCOD=1:1"},
      {"-BEO=QUORVEN=", ""},
      {"-BEO=QUORVEN", nullptr},
      {"-BEO=quorven=PERCOD=1:1", nullptr},
      {"-BEO=MIRVOX=PERCOD=1:1", nullptr},
      {"-BEO=//note", nullptr},
      {"-BEO=", nullptr},
      {"-BEO", "BEO"},
      {"-beo=QUORVEN=X", "beo=QUORVEN=X"},
      {"-PERCOD=1:1", "PERCOD=1:1"},
      {"-", ""},
      {"PERCOD=1:1", nullptr},
      {"", nullptr},
  };
  for (const BlockCase &row : cases)
    EXPECT_STREQ(parseBEOption(row.text, "QUORVEN=", 8), row.rest) << row.text;
}

TEST_F(Passes, BackEndOptionsApplied)
{
  line(2, "-verbose=2");
  line(2, "-BEO=QUORVEN=LOGFILE=Ab");
  line(2, "-beo=QUORVEN=BERFUNCPREF=yes");
  EXPECT_EQ(backEnd(), "");
  EXPECT_EQ(abc->beMeta->verbosity, 2);
  EXPECT_EQ(abc->beMeta->logFile, "Ab");
  EXPECT_EQ(abc->beMeta->berFuncPref, 1);
  EXPECT_EQ(def->beMeta->verbosity, 1);
  EXPECT_THAT(kinds(), ElementsAre(2, 2, 2));
}

TEST_F(Passes, BackEndOptionsOfOtherKinds)
{
  line(0, "-VERBOSE=2");
  line(1, "-VERBOSE=2");
  line(3, "-VERBOSE=2");
  line(3, "-NONSENSE");
  EXPECT_EQ(backEnd(), "");
  EXPECT_EQ(abc->beMeta->verbosity, 1);
  EXPECT_THAT(kinds(), ElementsAre(0, 1, 3, 3));
}

TEST_F(Passes, BackEndOptionsOfOtherTools)
{
  line(2, "-BEO=MIRVOX=NONSENSE");
  line(2, "-BEO=quorven=PERCOD=1:1");
  line(2, "-BEO=//a comment");
  EXPECT_EQ(backEnd(), "");
  EXPECT_THAT(kinds(), ElementsAre(2, 2, 2));
  EXPECT_EQ(abc->beMeta->genArr[5], 2);
}

TEST_F(Passes, BackEndBlockFoldsNoCase)
{
  line(2, "-BEO=QUORVEN=percod=1:1");
  EXPECT_EQ(backEnd(), ignored("-BEO=QUORVEN=percod=1:1"));
  EXPECT_THAT(kinds(), ElementsAre(0));
}

TEST_F(Passes, IgnoredOption)
{
  line(2, "-Nonsense=a");
  line(2, "-VERBOSE=2");
  CaptureStdout();
  EXPECT_EQ(backEnd(), ignored("-NONSENSE=a"));
  EXPECT_EQ(GetCapturedStdout(), "");
  EXPECT_THAT(kinds(), ElementsAre(0, 2));
  EXPECT_EQ(abc->beMeta->verbosity, 2);
  EXPECT_EQ(abc->nrWarnings, 0);
  // The string is shared with other modules: it stays as it was.
  EXPECT_STREQ(getStri(abc, 1), "-Nonsense=a");
}

TEST_F(Passes, IgnoredOptionIsNotLookedAtAgain)
{
  line(2, "-NONSENSE");
  backEnd();
  EXPECT_EQ(backEnd(), "");
}

TEST_F(Passes, IgnoredOptionQuietly)
{
  line(2, "-NONSENSE");
  verboseEx = 1;
  EXPECT_EQ(backEnd(), "");
  EXPECT_THAT(kinds(), ElementsAre(0));
}

TEST_F(Passes, IgnoredOptionShowsFiftyCharacters)
{
  std::string fifty = "-" + std::string(49, 'A');
  line(2, fifty.c_str());
  line(2, (fifty + "B").c_str());
  EXPECT_EQ(backEnd(), ignored(fifty) + ignored(fifty));
}

TEST_F(Passes, FrontEndLinesSavedAsBackEndOptions)
{
  // In force for pass 3, unknown to the back-end.
  const char *lines[] = {"-TPREF=x", "-ENTRY=X-PDU:PDU", "-BEGIN-SCOPE=abc",
                         "-END-SCOPE", "-//note"};
  std::string expected;
  for (const char *text : lines) {
    line(2, text);
    expected += ignored(strcmp(text, "-//note") == 0 ? "-//NOTE" : text);
  }
  EXPECT_EQ(global(), "");
  EXPECT_STREQ(abc->options.fixRecs[0].pref, "x");
  EXPECT_EQ(backEnd(), expected);
  EXPECT_THAT(kinds(), ElementsAre(0, 0, 0, 0, 0));
}

TEST_F(Passes, LinesOfOtherPassesAreGood)
{
  line(2, "-prefixlen=99");
  line(2, "-PREFIX=nonsense");
  line(2, "-V=99");
  EXPECT_EQ(backEnd(), "");
  EXPECT_THAT(kinds(), ElementsAre(2, 2, 2));
  EXPECT_EQ(verboseEx, savedLevel);
}

TEST_F(Passes, MarkStaysForLinesOfOtherPasses)
{
  line(2, "-V=1");
  line(2, "-NONSENSE");
  line(2, "-PREFIXLEN=8");
  line(2, "-prefix=Abc:abc");
  line(2, "-V=2");
  line(2, "-VERBOSE=1");
  line(2, "-V=3");
  line(2, "-PREFIXLEN=8");
  EXPECT_EQ(backEnd(), ignored("-NONSENSE") + ignored("-PREFIXLEN=8") +
                           ignored("-PREFIX=Abc:abc") + ignored("-V=2"));
  EXPECT_THAT(kinds(), ElementsAre(2, 0, 0, 0, 0, 2, 2, 2));
}

TEST_F(Passes, MarkPassesOverOtherKinds)
{
  line(2, "-NONSENSE");
  line(3, "-NAMELEN=9");
  line(2, "-V=2");
  EXPECT_EQ(backEnd(), ignored("-NONSENSE") + ignored("-V=2"));
  EXPECT_THAT(kinds(), ElementsAre(0, 3, 0));
}

TEST_F(Passes, MarkStartsAnewWithEachCall)
{
  line(2, "-NONSENSE");
  backEnd();
  range = {};
  line(2, "-V=2");
  EXPECT_EQ(backEnd(), "");
}

TEST_F(Passes, TreeDirectoryMovesTheMarkBothWays)
{
  line(2, "-NONSENSE");
  line(2, "-s=Trees");
  line(2, "-V=2");
  line(2, "-S=");
  line(2, "-V=3");
  line(2, "-S=other/");
  line(2, "-V=4");
  EXPECT_EQ(backEnd(), ignored("-NONSENSE") + ignored("-S=") + ignored("-V=3"));
  EXPECT_THAT(kinds(), ElementsAre(0, 2, 2, 0, 0, 2, 2));
  EXPECT_EQ(stxDir, "other/");
}

TEST_F(Passes, TreeDirectoryRefused)
{
  stxDir = "old/";
  line(2, "-S=a\tb");
  EXPECT_EQ(backEnd(), ignored("-S=a\tb"));
  EXPECT_EQ(stxDir, "old/");
}

TEST_F(Passes, VersionInALineEndsTheRun)
{
  for (const char *text : {"-VERSION", "-version", "-BEO=QUORVEN=VERSION"}) {
    line(2, text);
    EXPECT_EXIT(checkGlobalBEOptions(*abc, range), ExitedWithCode(0), StrEq(""))
        << text;
    range = {};
  }
}

TEST_F(Passes, LaterOptionsOverwrite)
{
  line(2, "-VERBOSE=2");
  line(2, "-VERBOSE=0");
  backEnd();
  EXPECT_EQ(abc->beMeta->verbosity, 0);
}

// --- recording --------------------------------------------------------------

TEST_F(Passes, AddTedRec)
{
  def->nextFree[REC_TED] = 5;
  cMP = def;
  addTedRec(range, 2, "-A");
  EXPECT_EQ(range.first, 5);
  EXPECT_EQ(range.last, 5);
  addTedRec(range, 0, "-B");
  EXPECT_EQ(range.first, 5);
  EXPECT_EQ(range.last, 6);
  EXPECT_EQ(def->nextFree[REC_TED], 7);
  EXPECT_EQ(abc->nextFree[REC_TED], 1);
  EXPECT_THAT(linesOf(def, range), ElementsAre(Line{2, "-A"}, Line{0, "-B"}));
}

TEST_F(Passes, AddTedRecSharesStrings)
{
  addTedRec(range, 2, "-A");
  addTedRec(range, 2, "-A");
  readRec(abc, REC_TED, 1);
  int32_t text = tedRec.text;
  readRec(abc, REC_TED, 2);
  EXPECT_EQ(tedRec.text, text);
}

struct TypedOptionCase {
  std::string text;
  int kind;
  std::string recorded;
};

TEST_F(Passes, ParseOneCmdLineOption)
{
  std::string full = "-" + std::string(1023, 'x');
  const TypedOptionCase cases[] = {
      {"-A=x y", 2, "-A=x y"},
      {"-", 2, "-"},
      {full, 2, full},
      // One character too long, but not cut.
      {full + "x", 0, full + "x"},
      {"-A=\xe4x", 0, "-A="},
      {"-A=\tx", 0, "-A="},
      {"A=x", 0, "A=x"},
      {"A x", 0, "A"},
      {" -A", 0, ""},
      {"", 0, ""},
  };
  for (const TypedOptionCase &row : cases) {
    TedRange one;
    unsigned bits = 0x100;
    parseOneCmdLineOption(row.text.c_str(), 0, 0, nullptr, bits, one);
    EXPECT_EQ(bits, 0x100u | 1u << row.kind) << row.text;
    EXPECT_THAT(linesOf(abc, one), ElementsAre(Line{row.kind, row.recorded}));
  }
}

TEST_F(Passes, OptionPassTakesOptionsOnly)
{
  writeFile(file, "-in=File\nabc\n%x\n");
  EXPECT_EQ(optionPass({"abc", "-x=Y z", "+" + file, "def.stx", "-", "-q"}),
            "");
  EXPECT_THAT(linesOf(abc, range),
              ElementsAre(Line{2, "-X=Y z"}, Line{2, "-IN=File"}, Line{0, "%x"},
                          Line{2, "-"}, Line{2, "-Q"}));
  EXPECT_EQ(flags, 1u | 1u << 2);
}

TEST_F(Passes, OptionPassWithoutOptions)
{
  EXPECT_EQ(optionPass({"abc", "def"}), "");
  EXPECT_EQ(range.first, 0);
  EXPECT_EQ(range.last, 0);
  EXPECT_EQ(flags, 0u);
}

TEST_F(Passes, OptionPassCutsLongArguments)
{
  std::string full = "-X=" + std::string(1021, 'x');
  optionPass({full, full + "yyy"});
  EXPECT_THAT(linesOf(abc, range), ElementsAre(Line{2, full}, Line{2, full}));
}

TEST_F(Passes, OptionPassLeavesArguments)
{
  std::string argument = "-x=Y";
  char *vector[] = {nullptr, argument.data()};
  parseCmdLineOptions(2, vector, flags, range);
  EXPECT_EQ(argument, "-x=Y");
}

// --- option files -----------------------------------------------------------

TEST_F(Passes, LinesOfFullAndGreaterLength)
{
  std::string full = "-X=" + std::string(1021, 'x');
  writeFile(file, full + "\n" + full + "z\n" + full + "-y=z");
  EXPECT_EQ(optionPass({"+" + file}), "");
  // "z" alone names a syntax file, "-y=z" is an option again.
  EXPECT_THAT(linesOf(abc, range), ElementsAre(Line{2, full}, Line{2, full},
                                               Line{2, full}, Line{2, "-Y=z"}));
}

TEST_F(Passes, OctetsInOptionFiles)
{
  writeFile(file,
            std::string("-A=x\r\n-B=") + '\0' + "y\n-C=a\tb\n-D=\xe4\n-E=last");
  EXPECT_EQ(optionPass({"+" + file}), "");
  EXPECT_THAT(linesOf(abc, range),
              ElementsAre(Line{2, "-A=x"}, Line{2, "-B="}, Line{0, "-C=a"},
                          Line{0, "-D="}, Line{2, "-E=last"}));
}

struct ScopeCase {
  const char *lines;
  const char *warnings;  // each: the text up to the file's name
};

TEST_F(Passes, ScopeWarnings)
{
  const ScopeCase cases[] = {
      {"-BEGIN-SCOPE=abc\n-X=1\n-END-SCOPE\n", ""},
      {"-begin-scope=abc\n-END-scope\n-BEGIN-SCOPE=abc\n-End-Scope\n", ""},
      {"-X=1\n", ""},
      {"#-BEGIN-SCOPE\n--END-SCOPE\n", ""},
      {"-BEGIN-SCOPE=abc\n-BEGIN-SCOPE=def\n-END-SCOPE\n",
       "Unexpected -BEGIN-SCOPE\n"},
      {"-END-SCOPE\n", "Unexpected -END-SCOPE\n"},
      {"-BEGIN-SCOPE=abc\n-END-SCOPE\n-end-scope\n", "Unexpected -END-SCOPE\n"},
      {"-BEGIN-SCOPE=abc\n-X=1\n", "-END-SCOPE expected\n"},
      {"-BEGIN-SCOPE=abc", "-END-SCOPE expected\n"},
      // The file ends for this pass before its scope does.
      {"-BEGIN-SCOPE=abc\n-END-OF-OPTIONS\n-END-SCOPE\n",
       "-END-SCOPE expected\n"},
      {"-END-SCOPE\n-BEGIN-SCOPE=a\n-BEGIN-SCOPE=b\n-BEGIN-SCOPE=c\n",
       "Unexpected -END-SCOPE\nUnexpected -BEGIN-SCOPE\n"
       "Unexpected -BEGIN-SCOPE\n-END-SCOPE expected\n"},
  };
  for (const ScopeCase &row : cases) {
    writeFile(file, row.lines);
    std::string expected, texts = row.warnings;
    int count = 0;
    for (size_t end; (end = texts.find('\n')) != std::string::npos; ++count) {
      expected += "\nWARNING : " + texts.substr(0, end) + ": option file " +
                  file + "\n";
      texts.erase(0, end + 1);
    }
    verboseEx = 2;
    abc->nrWarnings = 0;
    EXPECT_EQ(optionPass({"+" + file}), expected) << row.lines;
    EXPECT_EQ(abc->nrWarnings, count) << row.lines;
    verboseEx = 1;
    EXPECT_EQ(optionPass({"+" + file}), "") << row.lines;
    EXPECT_EQ(abc->nrWarnings, count) << row.lines;
  }
}

TEST_F(Passes, ScopeLinesAreRecorded)
{
  writeFile(file, "-begin-scope=Abc\n-x=1\n-end-scope\n");
  optionPass({"+" + file});
  EXPECT_THAT(linesOf(abc, range),
              ElementsAre(Line{2, "-BEGIN-SCOPE=Abc"}, Line{2, "-X=1"},
                          Line{2, "-END-SCOPE"}));
}

TEST_F(Passes, ScopeIsOfOneFile)
{
  std::string second = dir.path + "b.opt";
  writeFile(file, "-BEGIN-SCOPE=abc\n");
  writeFile(second, "-X=1\n-BEGIN-SCOPE=abc\n-END-SCOPE\n");
  EXPECT_EQ(optionPass({"+" + file, "+" + second, "-Y=1"}),
            "\nWARNING : -END-SCOPE expected: option file " + file + "\n");
  EXPECT_THAT(linesOf(abc, range),
              ElementsAre(Line{2, "-BEGIN-SCOPE=abc"}, Line{2, "-X=1"},
                          Line{2, "-BEGIN-SCOPE=abc"}, Line{2, "-END-SCOPE"},
                          Line{2, "-Y=1"}));
}

TEST_F(Passes, OptionFileFatals)
{
  std::string missing = dir.path + "none.opt";
  EXPECT_EXIT(handleOptionFile(missing.c_str(), flags, range),
              ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for reading\n"
                    "              " +
                    missing + "\n\n"));
  EXPECT_EXIT(handleOptionFile("", flags, range), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for reading\n"
                    "              (No option file name specified)\n\n"));
  EXPECT_EXIT(handleOptionFile(dir.path.c_str(), flags, range),
              ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not read from file\n"
                    "              " +
                    dir.path + "\n\n"));
}
