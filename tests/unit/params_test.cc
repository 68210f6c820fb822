// Pass 1 over the command line.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::StrEq;
using testing::internal::CaptureStderr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStderr;
using testing::internal::GetCapturedStdout;

static const char *const shortUsage[] = {"USAGE", nullptr};

// A run before any tree is read: the first module record is current.
struct Params : testing::Test {
  TempDir dir;
  std::string file = dir.path + "a.opt";
  int savedLevel = verboseEx;
  const char *const *savedUsage = backendUsage;
  ModRec *first;
  Params()
  {
    resetStore();
    resetParams();
    stxDir.clear();
    backendUsage = shortUsage;
    cMP = first = appendModRec(true);
  }
  ~Params() override
  {
    resetStore();
    resetParams();
    stxDir.clear();
    backendUsage = savedUsage;
    verboseEx = savedLevel;
  }

  // The whole pass, the arguments being those behind the program's name.
  static void run(std::vector<std::string> arguments)
  {
    std::vector<char *> vector = {nullptr};
    for (std::string &argument : arguments)
      vector.push_back(argument.data());
    parseCmdLineParams(static_cast<int>(vector.size()), vector.data());
  }
  // One line in a file of its own.
  std::string optionFile(const std::string &bytes) const
  {
    writeFile(file, bytes);
    return "+" + file;
  }
  static std::vector<std::string> prefixes()
  {
    std::vector<std::string> found;
    for (ModRec *module = bOfModRList; module; module = module->next)
      found.push_back(module->filePrefix ? module->filePrefix : "(null)");
    return found;
  }
};

static std::string truncation(const std::string &text, int length)
{
  std::string number = std::to_string(length);
  return "\nWARNING : File prefix '" + text + "' longer than " + number +
         " characters.\n          Truncating it to " + number +
         " characters.\n          Check value of the PREFIXLEN option.\n";
}

// --- names and complaints ---------------------------------------------------

struct UpperCase {
  const char *given;
  const char *raised;
};

TEST(OptionToUpper, NameOnly)
{
  const UpperCase cases[] = {
      {"-prefixlen=8", "-PREFIXLEN=8"},
      {"-LogFile=Ab", "-LOGFILE=Ab"},
      {"-s=a=b", "-S=a=b"},
      // Without "=" to the end, blanks included.
      {"-some words", "-SOME WORDS"},
      // The first character stays.
      {"ab=c", "aB=c"},
      {"==a", "==a"},
      {"-=a", "-=a"},
      {"-x\xe4=y", "-X\xe4=y"},
      {"-", "-"},
      {"", ""},
  };
  for (const UpperCase &row : cases) {
    std::string text = row.given;
    EXPECT_EQ(&optionToUpper(text), &text);
    EXPECT_EQ(text, row.raised);
  }
}

TEST_F(Params, ArgumentIgnored)
{
  verboseEx = 2;
  CaptureStdout();
  CaptureStderr();
  argumentIgnored("-V=%d", nullptr);
  EXPECT_EQ(GetCapturedStderr(), "\nWARNING : Argument ignored: -V=%d\n");
  EXPECT_EQ(GetCapturedStdout(), "");
  EXPECT_EQ(first->nrWarnings, 1);
}

TEST_F(Params, ArgumentIgnoredInFile)
{
  verboseEx = 2;
  CaptureStderr();
  argumentIgnored("V=9", "x.opt");
  EXPECT_EQ(GetCapturedStderr(), "\nWARNING : Argument ignored: V=9\n"
                                 "          In option file  : x.opt\n");
}

TEST_F(Params, ArgumentIgnoredQuietly)
{
  verboseEx = 1;
  CaptureStderr();
  argumentIgnored("V=9", "x.opt");
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_EQ(first->nrWarnings, 1);
}

// --- the selected options ---------------------------------------------------

TEST_F(Params, TreeDirectory)
{
  EXPECT_TRUE(parseSelectedCmdLineOpts("S=stx", 0));
  EXPECT_EQ(stxDir, "stx/");
  EXPECT_TRUE(parseSelectedCmdLineOpts("s=Other Dir/", 3));
  EXPECT_EQ(stxDir, "Other Dir/");
}

TEST_F(Params, TreeDirectoryRefused)
{
  stxDir = "old/";
  EXPECT_FALSE(parseSelectedCmdLineOpts("S=", 0));
  EXPECT_FALSE(parseSelectedCmdLineOpts("S=a\tb", 0));
  EXPECT_FALSE(parseSelectedCmdLineOpts("S=a\xe4", 0));
  EXPECT_EQ(stxDir, "old/");
}

TEST_F(Params, PrefixLength)
{
  for (int length : {1, 8, 32}) {
    std::string option = "PREFIXLEN=" + std::to_string(length);
    EXPECT_TRUE(parseSelectedCmdLineOpts(option.c_str(), 0));
    EXPECT_EQ(first->options.prefixLen, length);
  }
  EXPECT_TRUE(parseSelectedCmdLineOpts("prefixLen=7", 0));
  EXPECT_EQ(first->options.prefixLen, 7);
}

TEST_F(Params, PrefixLengthRefused)
{
  first->options.prefixLen = 5;
  for (const char *option : {"PREFIXLEN=0", "PREFIXLEN=33", "PREFIXLEN=08",
                             "PREFIXLEN=", "PREFIXLEN=x", "PREFIXLEN=264"})
    EXPECT_FALSE(parseSelectedCmdLineOpts(option, 0)) << option;
  EXPECT_EQ(first->options.prefixLen, 5);
}

TEST_F(Params, PrefixLengthBehindAPrefix)
{
  first->options.prefixLen = 5;
  for (const char *option :
       {"PREFIXLEN=8", "PREFIXLEN=0", "PREFIXLEN=33", "PREFIXLEN="})
    EXPECT_TRUE(parseSelectedCmdLineOpts(option, 1)) << option;
  EXPECT_EQ(first->options.prefixLen, 5);
}

TEST_F(Params, MessageLevel)
{
  for (int level = 1; level <= 4; ++level) {
    std::string option = "v=" + std::to_string(level);
    EXPECT_TRUE(parseSelectedCmdLineOpts(option.c_str(), 0));
    EXPECT_EQ(verboseEx, level);
  }
}

TEST_F(Params, MessageLevelRefused)
{
  for (const char *option : {"V=0", "V=5", "V=", "V=01", "V=x", "V=4294967298"})
    EXPECT_FALSE(parseSelectedCmdLineOpts(option, 0)) << option;
  EXPECT_EQ(verboseEx, savedLevel);
}

TEST_F(Params, VersionEndsTheRun)
{
  for (const char *option : {"VERSION", "version", "VersionS", "VERSION=x"})
    EXPECT_EXIT(parseSelectedCmdLineOpts(option, 0), ExitedWithCode(0),
                StrEq(""))
        << option;
}

TEST_F(Params, OthersAreGood)
{
  CaptureStderr();
  for (const char *option :
       {"", "X", "VERBOSE=quiet", "VERSIO", "PREFIXLEN", "S", "V", "-S=x",
        "PREFIX=Abc:abc", "SS=x", "=", "PERCOD=9"})
    EXPECT_TRUE(parseSelectedCmdLineOpts(option, 0)) << option;
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_EQ(stxDir, "");
  EXPECT_EQ(verboseEx, savedLevel);
  EXPECT_EQ(first->options.prefixLen, 0);
}

TEST_F(Params, OptionNamesAnyCaseValuesNot)
{
  EXPECT_TRUE(parseSelectedCmdLineOpts("s=AbC", 0));
  EXPECT_EQ(stxDir, "AbC/");
}

TEST_F(Params, CommandLineOption)
{
  std::string good = "-v=2", bad = "-v=7";
  char *vector[] = {nullptr, good.data(), bad.data()};
  CaptureStderr();
  EXPECT_TRUE(parseCommandLineOption(3, vector, 1, 0));
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_EQ(first->nrWarnings, 0);
  CaptureStderr();
  EXPECT_FALSE(parseCommandLineOption(3, vector, 2, 0));
  EXPECT_EQ(GetCapturedStderr(), "\nWARNING : Argument ignored: -v=7\n");
  EXPECT_EQ(first->nrWarnings, 1);
  EXPECT_EQ(good, "-v=2");
}

// --- file prefixes ----------------------------------------------------------

struct PrefixCase {
  const char *given;
  int length;  // of prefixes; 0: none set
  bool good;
  const char *cut;
};

TEST(ValidFilePrefix, CutThenTested)
{
  const PrefixCase cases[] = {
      {"abc", 5, true, "abc"},
      {"abc.stx", 5, true, "abc"},
      {"abcde", 5, true, "abcde"},
      {"abcdef", 5, true, "abcde"},
      {"abcdefgh.stx", 5, true, "abcde"},
      {"abcdefgh.stx", 8, true, "abcdefgh"},
      {"abcdef", 0, true, "abcde"},
      {"abcdef", 1, true, "a"},
      {"A-z_9", 5, true, "A-z_9"},
      {"-", 5, true, "-"},
      {"abcde/x", 5, true, "abcde"},
      {"abcde\xe4", 5, true, "abcde"},
      {"", 5, true, ""},
      {".stx", 5, true, ""},
      {"ab/cd", 5, false, "ab/cd"},
      {"ab.cd", 5, false, "ab.cd"},
      {"abc.STX", 5, false, "abc.S"},
      {"abc.stx.stx", 5, false, "abc.s"},
      {"abc.stx.stx", 3, true, "abc"},
      {"ab cd", 5, false, "ab cd"},
      {"ab\xe4", 5, false, "ab\xe4"},
      {"abcde/x", 6, false, "abcde/"},
  };
  for (const PrefixCase &row : cases) {
    ModRec module;
    module.options.prefixLen = static_cast<uint8_t>(row.length);
    std::string text = row.given;
    EXPECT_EQ(validFilePrefix(module, text), row.good) << row.given;
    EXPECT_EQ(text, row.cut) << row.given;
  }
}

TEST_F(Params, SetFilePrefix)
{
  first->options.prefixLen = 5;
  CaptureStderr();
  EXPECT_TRUE(setFilePrefix(*first, "ab-c_.stx"));
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_STREQ(first->filePrefix, "ab-c_");
  EXPECT_STREQ(first->generationPrefix, "ab-c_");
}

TEST_F(Params, SetFilePrefixOfFullLength)
{
  first->options.prefixLen = 5;
  CaptureStderr();
  EXPECT_TRUE(setFilePrefix(*first, "abcde.stx"));
  EXPECT_TRUE(setFilePrefix(*first, "abcde"));
  EXPECT_EQ(GetCapturedStderr(), "");
}

TEST_F(Params, SetFilePrefixTruncates)
{
  first->options.prefixLen = 5;
  verboseEx = 2;
  CaptureStdout();
  CaptureStderr();
  EXPECT_TRUE(setFilePrefix(*first, "abcdefgh.stx"));
  // The text as given, its suffix included.
  EXPECT_EQ(GetCapturedStderr(), truncation("abcdefgh.stx", 5));
  EXPECT_EQ(GetCapturedStdout(), "");
  EXPECT_STREQ(first->filePrefix, "abcde");
  EXPECT_STREQ(first->generationPrefix, "abcde");
}

TEST_F(Params, SetFilePrefixTruncatesQuietly)
{
  first->options.prefixLen = 3;
  verboseEx = 1;
  CaptureStderr();
  EXPECT_TRUE(setFilePrefix(*first, "abcdefgh"));
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_STREQ(first->filePrefix, "abc");
}

TEST_F(Params, SetFilePrefixBeyondTheCutIsFree)
{
  first->options.prefixLen = 5;
  CaptureStderr();
  EXPECT_TRUE(setFilePrefix(*first, "abcde/x"));
  EXPECT_EQ(GetCapturedStderr(), truncation("abcde/x", 5));
  EXPECT_STREQ(first->filePrefix, "abcde");
}

TEST_F(Params, SetFilePrefixInvalid)
{
  first->options.prefixLen = 5;
  setModulePrefixes(*first, "old", "old");
  // Printed at every level.
  verboseEx = 1;
  CaptureStdout();
  CaptureStderr();
  EXPECT_FALSE(setFilePrefix(*first, "ab/cd"));
  EXPECT_EQ(GetCapturedStderr(), "\nERROR : Invalid file prefix: ab/cd\n");
  EXPECT_EQ(GetCapturedStdout(), "");
  EXPECT_EQ(first->filePrefix, nullptr);
  EXPECT_EQ(first->generationPrefix, nullptr);
}

TEST_F(Params, SetFilePrefixSuffixAlone)
{
  first->options.prefixLen = 5;
  EXPECT_TRUE(setFilePrefix(*first, ".stx"));
  EXPECT_STREQ(first->filePrefix, "");
  EXPECT_STREQ(first->generationPrefix, "");
}

TEST_F(Params, FirstPrefixLengthServesAll)
{
  first->options.prefixLen = 3;
  EXPECT_TRUE(setFilePrefix(*first, "a"));
  ModRec *second = appendModRec(true);
  CaptureStderr();
  EXPECT_TRUE(setFilePrefix(*second, "bcde"));
  EXPECT_EQ(GetCapturedStderr(), truncation("bcde", 3));
  EXPECT_STREQ(second->filePrefix, "bcd");
  EXPECT_EQ(second->options.prefixLen, 3);
  // A length of its own is kept.
  ModRec *third = appendModRec(true);
  third->options.prefixLen = 4;
  EXPECT_TRUE(setFilePrefix(*third, "bcde"));
  EXPECT_STREQ(third->filePrefix, "bcde");
  EXPECT_EQ(third->options.prefixLen, 4);
}

TEST_F(Params, FilePrefixRecords)
{
  first->options.prefixLen = 5;
  int count = 0;
  EXPECT_TRUE(parseFilePrefix("abc", count, nullptr));
  EXPECT_EQ(count, 1);
  EXPECT_EQ(bOfModRList, first);
  EXPECT_EQ(eOfModRList, first);
  BEModMetaRec *meta = first->beMeta;
  EXPECT_TRUE(parseFilePrefix("def.stx", count, nullptr));
  EXPECT_EQ(count, 2);
  ASSERT_NE(eOfModRList, first);
  EXPECT_EQ(first->next, eOfModRList);
  EXPECT_EQ(lstOfModRList, eOfModRList);
  EXPECT_TRUE(eOfModRList->inGenerationList);
  EXPECT_NE(eOfModRList->beMeta, nullptr);
  EXPECT_NE(eOfModRList->beMeta, meta);
  EXPECT_EQ(cMP, first);
  EXPECT_THAT(prefixes(), ElementsAre("abc", "def"));
}

TEST_F(Params, FilePrefixWithFaultyCharacter)
{
  verboseEx = 2;
  int count = 0;
  for (const char *text : {"ab cd", "ab\tcd", "ab\x7f", "\xe4"}) {
    CaptureStderr();
    EXPECT_FALSE(parseFilePrefix(text, count, nullptr));
    EXPECT_EQ(GetCapturedStderr(),
              std::string("\nWARNING : Argument ignored: ") + text + "\n");
  }
  CaptureStderr();
  EXPECT_FALSE(parseFilePrefix("ab cd", count, "x.opt"));
  EXPECT_EQ(GetCapturedStderr(), "\nWARNING : Argument ignored: ab cd\n"
                                 "          In option file  : x.opt\n");
  EXPECT_EQ(count, 0);
  EXPECT_EQ(first->nrWarnings, 5);
  EXPECT_EQ(first->filePrefix, nullptr);
}

TEST_F(Params, FilePrefixCountsBeforeItIsTested)
{
  first->options.prefixLen = 5;
  int count = 0;
  CaptureStderr();
  EXPECT_FALSE(parseFilePrefix("ab/cd", count, nullptr));
  EXPECT_EQ(GetCapturedStderr(), "\nERROR : Invalid file prefix: ab/cd\n");
  EXPECT_EQ(count, 1);
  // Behind it a new record is made: the first stays without a prefix.
  EXPECT_TRUE(parseFilePrefix("def", count, nullptr));
  EXPECT_THAT(prefixes(), ElementsAre("(null)", "def"));
}

// --- option files -----------------------------------------------------------

TEST_F(Params, OptionFileOfAllSorts)
{
  first->options.prefixLen = 5;
  optionFile("# trees\n-S=stx\n\n  abc\n-X=1\ndef.stx\n%junk\n-v=2\n_g");
  int count = 0;
  CaptureStderr();
  EXPECT_TRUE(parseOptionFilePartially(file.c_str(), count));
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_EQ(count, 3);
  EXPECT_THAT(prefixes(), ElementsAre("abc", "def", "_g"));
  EXPECT_EQ(stxDir, "stx/");
  EXPECT_EQ(verboseEx, 2);
}

TEST_F(Params, OptionFileBadOption)
{
  optionFile("-PrefixLen=0\n-V=5\nab cd\n-S=stx\n");
  verboseEx = 2;
  int count = 0;
  CaptureStderr();
  EXPECT_FALSE(parseOptionFilePartially(file.c_str(), count));
  // Options without their "-"; reading goes on behind a bad line.
  std::string inFile = "          In option file  : " + file + "\n";
  EXPECT_EQ(GetCapturedStderr(),
            "\nWARNING : Argument ignored: PrefixLen=0\n" + inFile +
                "\nWARNING : Argument ignored: V=5\n" + inFile +
                "\nWARNING : Argument ignored: ab cd\n" + inFile);
  EXPECT_EQ(first->nrWarnings, 3);
  EXPECT_EQ(stxDir, "stx/");
}

TEST_F(Params, OptionFilePrefixLengthCountsAllFiles)
{
  optionFile("-PREFIXLEN=7\nabc\n-PREFIXLEN=8\n-PREFIXLEN=0\n");
  int count = 0;
  EXPECT_TRUE(parseOptionFilePartially(file.c_str(), count));
  EXPECT_EQ(first->options.prefixLen, 7);
  optionFile("-PREFIXLEN=9\n");
  EXPECT_TRUE(parseOptionFilePartially(file.c_str(), count));
  EXPECT_EQ(first->options.prefixLen, 7);
}

TEST_F(Params, OptionFileDirectoryEndsQuietly)
{
  int count = 0;
  CaptureStderr();
  EXPECT_TRUE(parseOptionFilePartially(dir.path.c_str(), count));
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_EQ(count, 0);
}

TEST_F(Params, OptionFileMissing)
{
  int count = 0;
  std::string name = dir.path + "none.opt";
  EXPECT_EXIT(parseOptionFilePartially(name.c_str(), count), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for reading\n"
                    "              " +
                    name + "\n\n"));
}

// --- the whole pass ---------------------------------------------------------

TEST_F(Params, AllSortsOfArguments)
{
  optionFile("-V=2\nghi\n-S=one\n");
  CaptureStderr();
  run({"-other=x", "abc", "+" + file, "-s=two", "def.stx"});
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_THAT(prefixes(), ElementsAre("abc", "ghi", "def"));
  EXPECT_EQ(stxDir, "two/");
  EXPECT_EQ(verboseEx, 2);
  EXPECT_EQ(first->options.prefixLen, 5);
}

TEST_F(Params, TreeDirectoryOfFileLast)
{
  run({"-S=two", "abc", optionFile("-S=one\n")});
  EXPECT_EQ(stxDir, "one/");
}

TEST_F(Params, PrefixLengthInAnyCase)
{
  for (const char *option : {"-prefixlen=8", "-PREFIXLEN=8"}) {
    resetParams();
    run({option, "abcdefgh"});
    EXPECT_STREQ(first->filePrefix, "abcdefgh") << option;
  }
}

TEST_F(Params, PrefixLengthBehindSyntaxFile)
{
  CaptureStderr();
  run({"abcdefgh", "-PREFIXLEN=8", "ijklmnop", "-PREFIXLEN=99"});
  EXPECT_EQ(GetCapturedStderr(),
            truncation("abcdefgh", 5) + truncation("ijklmnop", 5));
  EXPECT_THAT(prefixes(), ElementsAre("abcde", "ijklm"));
}

TEST_F(Params, SameSyntaxFileTwice)
{
  run({"abc", "abc.stx"});
  EXPECT_THAT(prefixes(), ElementsAre("abc", "abc"));
}

TEST_F(Params, OptionWithBlank)
{
  CaptureStderr();
  run({"-S=my trees", "-X=a b", "abc"});
  EXPECT_EQ(GetCapturedStderr(), "");
  EXPECT_EQ(stxDir, "my trees/");
}

TEST_F(Params, SyntaxFileBehindEndOfOptions)
{
  run({optionFile("-END-OF-OPTIONS\nabc\n")});
  EXPECT_THAT(prefixes(), ElementsAre("abc"));
}

TEST_F(Params, LongArgument)
{
  std::string directory(5000, 'd');
  run({"-S=" + directory, "abc"});
  EXPECT_EQ(stxDir, directory + "/");
}

TEST_F(Params, NoSyntaxFile)
{
  EXPECT_EXIT(run({}), ExitedWithCode(1), StrEq("USAGE\n"));
  EXPECT_EXIT(run({"-V=2"}), ExitedWithCode(1), StrEq("USAGE\n"));
}

TEST_F(Params, BadValuesEndInUsage)
{
  for (const char *option : {"-PREFIXLEN=0", "-PREFIXLEN=33", "-prefixlen=08",
                             "-V=0", "-V=5", "-V=", "-S=", "-S=a\tb"})
    EXPECT_EXIT(run({option, "abc"}), ExitedWithCode(1),
                StrEq(std::string("\nWARNING : Argument ignored: ") + option +
                      "\nUSAGE\n"))
        << option;
}

TEST_F(Params, BadValueQuietly)
{
  EXPECT_EXIT(run({"-V=1", "-PREFIXLEN=0", "abc"}), ExitedWithCode(1),
              StrEq("USAGE\n"));
}

TEST_F(Params, ScanningGoesOnBehindAFault)
{
  EXPECT_EXIT(run({"-V=5", "ab/cd", "ef gh", "abcdefgh", "-V=0"}),
              ExitedWithCode(1),
              StrEq("\nWARNING : Argument ignored: -V=5\n"
                    "\nERROR : Invalid file prefix: ab/cd\n"
                    "\nWARNING : Argument ignored: ef gh\n" +
                    truncation("abcdefgh", 5) +
                    "\nWARNING : Argument ignored: -V=0\n"
                    "USAGE\n"));
}

TEST_F(Params, BadLineOfFileEndsInUsage)
{
  std::string argument = optionFile("-V=5\n");
  EXPECT_EXIT(run({"abc", argument}), ExitedWithCode(1),
              StrEq("\nWARNING : Argument ignored: V=5\n"
                    "          In option file  : " +
                    file + "\nUSAGE\n"));
}

TEST_F(Params, FileWithoutName)
{
  EXPECT_EXIT(run({"abc", "+"}), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for reading\n"
                    "              (No option file name specified)\n\n"));
}

TEST_F(Params, VersionBeforeAnythingElse)
{
  // Nothing is loaded yet, and what follows is not looked at.
  EXPECT_EXIT(run({"-version", "ab/cd"}), ExitedWithCode(0), StrEq(""));
  EXPECT_EXIT(run({optionFile("-Version\n")}), ExitedWithCode(0), StrEq(""));
}

TEST_F(Params, MinusAloneIsGood)
{
  CaptureStderr();
  run({"-", "abc"});
  EXPECT_EQ(GetCapturedStderr(), "");
}

TEST_F(Params, EmptyArgumentIsAnEmptyPrefix)
{
  run({""});
  EXPECT_THAT(prefixes(), ElementsAre(""));
}
