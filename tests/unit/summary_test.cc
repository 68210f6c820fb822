// The ADE options, the opening of side files, and the summary.

#include "ade/summary.h"
#include "base/diag.h"
#include "support/tempdir.h"
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

// Side files inactive at first; the record is put back.
struct AdeOption : testing::Test {
  AdeRecord saved = adeRecord;
  AdeOption() { adeRecord = AdeRecord{}; }
  ~AdeOption() override { adeRecord = saved; }
};

// Side files "proj..." in a directory of the test's own.
struct AdeSideFile : AdeOption {
  TempDir dir;
  AdeSideFile()
  {
    adeRecord.prefix = "proj";
    adeRecord.directory = dir.path;
  }
  std::string pathOf(const char *ending) const
  {
    return dir.path + "proj" + ending;
  }
};

struct AdeSummary : AdeSideFile {
  std::string summary() const { return readFile(pathOf(".acs")); }

  // A summary that opens, but takes no octet.
  void makeFull() const
  {
    std::filesystem::create_symlink("/dev/full", pathOf(".acs"));
  }
};

static const testing::ExitedWithCode normalEnd(0);
static const testing::ExitedWithCode fatalEnd(2);

TEST_F(AdeOption, ActiveWithPrefixOnly)
{
  EXPECT_FALSE(adeIsActive());
  adeRecord.directory = "out/";
  EXPECT_FALSE(adeIsActive());
  adeRecord.prefix = "p";
  EXPECT_TRUE(adeIsActive());
}

TEST_F(AdeOption, IsADEOption)
{
  EXPECT_TRUE(adeIsADEOption("ADE-PREFIX=x"));
  EXPECT_TRUE(adeIsADEOption("ade-prefix=x"));
  EXPECT_TRUE(adeIsADEOption("AdE-"));
  EXPECT_TRUE(adeIsADEOption("ADE-UNKNOWN"));
}

TEST_F(AdeOption, IsNoADEOption)
{
  EXPECT_FALSE(adeIsADEOption(""));
  EXPECT_FALSE(adeIsADEOption("ADE"));
  EXPECT_FALSE(adeIsADEOption("ADEPREFIX=x"));
  EXPECT_FALSE(adeIsADEOption("MADE-UP"));
  EXPECT_FALSE(adeIsADEOption("-ADE-PREFIX=x"));
}

TEST_F(AdeOption, PrefixTaken)
{
  EXPECT_TRUE(adeOptionOK("ADE-PREFIX=a_b-c"));
  EXPECT_EQ(adeRecord.prefix, "a_b-c");
  EXPECT_TRUE(adeIsActive());
  EXPECT_EQ(adeRecord.directory, "");
}

TEST_F(AdeOption, PrefixOfOtherCharactersRefused)
{
  for (const char *option : {"ADE-PREFIX=a.b", "ADE-PREFIX=a b",
                             "ADE-PREFIX=a/b", "ADE-PREFIX=\xe4"}) {
    EXPECT_FALSE(adeOptionOK(option)) << option;
    EXPECT_FALSE(adeIsActive()) << option;
  }
}

TEST_F(AdeOption, PrefixOf32Characters)
{
  std::string longest(32, 'x');
  EXPECT_TRUE(adeOptionOK(("ADE-PREFIX=" + longest).c_str()));
  EXPECT_EQ(adeRecord.prefix, longest);
}

TEST_F(AdeOption, PrefixOf1Character)
{
  EXPECT_TRUE(adeOptionOK("ADE-PREFIX=7"));
  EXPECT_EQ(adeRecord.prefix, "7");
}

TEST_F(AdeOption, PrefixTooShortOrTooLongRefused)
{
  EXPECT_FALSE(adeOptionOK("ADE-PREFIX="));
  EXPECT_FALSE(adeOptionOK(("ADE-PREFIX=" + std::string(33, 'x')).c_str()));
  EXPECT_FALSE(adeIsActive());
}

TEST_F(AdeOption, LastPrefixWins)
{
  EXPECT_TRUE(adeOptionOK("ADE-PREFIX=first"));
  EXPECT_TRUE(adeOptionOK("ADE-PREFIX=second"));
  EXPECT_EQ(adeRecord.prefix, "second");
}

TEST_F(AdeOption, RefusedOptionKeepsTheEarlier)
{
  EXPECT_TRUE(adeOptionOK("ADE-PREFIX=first"));
  EXPECT_FALSE(adeOptionOK("ADE-PREFIX=a.b"));
  EXPECT_EQ(adeRecord.prefix, "first");
}

TEST_F(AdeOption, DirectoryTaken)
{
  EXPECT_TRUE(adeOptionOK("ADE-DIRECTORY=out dir"));
  EXPECT_EQ(adeRecord.directory, "out dir/");
  EXPECT_TRUE(adeOptionOK("ADE-DIRECTORY=/tmp/"));
  EXPECT_EQ(adeRecord.directory, "/tmp/");
  EXPECT_FALSE(adeIsActive());
}

TEST_F(AdeOption, DirectoryRefused)
{
  EXPECT_FALSE(adeOptionOK("ADE-DIRECTORY="));
  EXPECT_FALSE(adeOptionOK("ADE-DIRECTORY=a\tb"));
}

TEST_F(AdeOption, OtherNamesRefused)
{
  for (const char *option :
       {"ADE-", "ADE-PREFIX", "ADE-PREFIX2=x", "ADE-SUFFIX=x", "PREFIX=x", ""})
    EXPECT_FALSE(adeOptionOK(option)) << option;
  EXPECT_FALSE(adeIsActive());
}

TEST_F(AdeOption, NoPrefixNoFile)
{
  EXPECT_EXIT(adeOpenTextFile(".x", "r"), fatalEnd,
              "Can not open file for reading\n              No ADE-PREFIX\n");
  EXPECT_EXIT(adeOpenTextFile(".x", "w"), fatalEnd,
              "Can not open file for writing\n              No ADE-PREFIX\n");
  EXPECT_EXIT(adeOpenTextFile(".x", "a"), fatalEnd,
              "Can not open file for writing\n              No ADE-PREFIX\n");
}

TEST_F(AdeSideFile, OpensByPrefixAndEnding)
{
  FILE *stream = adeOpenTextFile(".x", "w");
  ASSERT_NE(stream, nullptr);
  fputs("text", stream);
  fclose(stream);
  EXPECT_EQ(readFile(pathOf(".x")), "text");
}

TEST_F(AdeSideFile, OpensForReading)
{
  writeFile(pathOf(".x"), "q");
  FILE *stream = adeOpenTextFile(".x", "r");
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(fgetc(stream), 'q');
  fclose(stream);
}

TEST_F(AdeSideFile, MissingFileIsFatal)
{
  EXPECT_EXIT(adeOpenTextFile(".x", "r"), fatalEnd,
              "Can not open file for reading\n              " + pathOf(".x"));
}

TEST_F(AdeSideFile, OpenFileStaysAsItIs)
{
  AdeFile file;
  adeOpenFile(file, ".x", "w");
  adePutText(file, "one ");
  adeOpenFile(file, ".y", "w");
  adePutText(file, "two");
  adeCloseFile(file);
  EXPECT_EQ(file.stream, nullptr);
  EXPECT_EQ(readFile(pathOf(".x")), "one two");
  EXPECT_FALSE(fileExists(pathOf(".y")));
}

TEST_F(AdeSideFile, ClosedFileTakesNothing)
{
  AdeFile file;
  adePutText(file, "text");
  adeCloseFile(file);
  EXPECT_TRUE(std::filesystem::is_empty(dir.path));
}

TEST_F(AdeSummary, Block)
{
  adeSummaryOpenFile();
  adeSummaryBeginBlock("50% done");
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "[50% done]\n");
}

TEST_F(AdeSummary, Message)
{
  adeSummaryOpenFile();
  adeSummaryMessage("(W) Global option ignored: %s");
  adeSummaryMessage("");
  adeSummaryMessage("ended\n");
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "(W) Global option ignored: %s\n\nended\n\n");
}

TEST_F(AdeSummary, Warning)
{
  adeSummaryOpenFile();
  adeSummaryWarning("src/", "a.asn", 12, "Warning", "FUNK:x");
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "src/a.asn:12: Warning : FUNK:x\n");
}

TEST_F(AdeSummary, WarningWithoutDirectory)
{
  adeSummaryOpenFile();
  adeSummaryWarning(nullptr, "a.asn", 0, "Error", "text");
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "a.asn:0: Error : text\n");
}

TEST_F(AdeSummary, WarningEndsInOneNewline)
{
  adeSummaryOpenFile();
  adeSummaryWarning("", "a.asn", 1, "W", "one\n");
  adeSummaryWarning("", "a.asn", 2, "W", "");
  adeSummaryWarning("", "a.asn", 3, "W", "two\nlines");
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "a.asn:1: W : one\n"
                       "a.asn:2: W : \n"
                       "a.asn:3: W : two\nlines\n");
}

TEST_F(AdeSummary, RunsAddUp)
{
  for (const char *text : {"first", "second", "third"}) {
    adeSummaryOpenFile();
    adeSummaryMessage(text);
    adeSummaryCloseFile();
  }
  EXPECT_EQ(summary(), "first\nsecond\nthird\n");
}

TEST_F(AdeSummary, OpenedIsMade)
{
  adeSummaryOpenFile();
  EXPECT_TRUE(fileExists(pathOf(".acs")));
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "");
}

TEST_F(AdeSummary, InnerPairKeepsItOpen)
{
  adeSummaryOpenFile();
  adeSummaryOpenFile();
  adeSummaryMessage("inner");
  adeSummaryCloseFile();
  adeSummaryMessage("outer");
  adeSummaryCloseFile();
  adeSummaryMessage("behind");
  EXPECT_EQ(summary(), "inner\nouter\n");
}

TEST_F(AdeSummary, InnerPairKeepsTheFile)
{
  adeSummaryOpenFile();
  adeRecord.prefix = "other";
  adeSummaryOpenFile();
  adeSummaryMessage("text");
  adeSummaryCloseFile();
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "text\n");
  EXPECT_FALSE(fileExists(dir.path + "other.acs"));
}

TEST_F(AdeSummary, CloseTooManyIsPassedOver)
{
  adeSummaryCloseFile();
  adeSummaryOpenFile();
  adeSummaryMessage("text");
  adeSummaryCloseFile();
  adeSummaryCloseFile();
  EXPECT_EQ(summary(), "text\n");
}

TEST_F(AdeSummary, ClosedTakesNothing)
{
  adeSummaryBeginBlock("block");
  adeSummaryMessage("text");
  adeSummaryWarning("", "a.asn", 1, "W", "text");
  EXPECT_FALSE(fileExists(pathOf(".acs")));
}

TEST_F(AdeSummary, FatalErrorWhileClosed)
{
  writeFile(pathOf(".acs"), "earlier\n");
  EXPECT_EXIT(
      {
        adeSummaryFatalError("Internal error", "the detail");
        adeSummaryMessage("closed again");
        exit(0);
      },
      normalEnd, "");
  EXPECT_EQ(summary(), "earlier\n"
                       "\nFATAL ERROR : Internal error\n"
                       "              the detail\n\n");
}

TEST_F(AdeSummary, FatalErrorWithoutDetail)
{
  EXPECT_EXIT((adeSummaryFatalError("Internal error", nullptr), exit(0)),
              normalEnd, "");
  EXPECT_EQ(summary(), "\nFATAL ERROR : Internal error\n\n");
}

TEST_F(AdeSummary, FatalErrorWhileOpen)
{
  EXPECT_EXIT(
      {
        adeSummaryOpenFile();
        adeSummaryMessage("before");
        adeSummaryFatalError("Internal error", nullptr);
        adeSummaryMessage("still open");
        exit(0);
      },
      normalEnd, "");
  EXPECT_EQ(summary(), "before\n\nFATAL ERROR : Internal error\n\n"
                       "still open\n");
}

TEST_F(AdeSummary, FatalErrorEndsTheRun)
{
  EXPECT_EXIT(
      {
        adeSummaryOpenFile();
        adeSummaryMessage("before");
        fatalError(FATAL_TREE_NOT_FOUND, "x.stx");
      },
      fatalEnd,
      "\nFATAL ERROR : Syntax tree not found\n              x.stx\n\n");
  EXPECT_EQ(summary(), "before\n\nFATAL ERROR : Syntax tree not found\n"
                       "              x.stx\n\n");
}

TEST_F(AdeSummary, FatalErrorWhileInactive)
{
  adeRecord.prefix.clear();
  EXPECT_EXIT(fatalError(FATAL_INTERNAL), fatalEnd, "Internal error");
  EXPECT_TRUE(std::filesystem::is_empty(dir.path));
}

TEST_F(AdeSummary, SecondFatalErrorEndsAtOnce)
{
  EXPECT_EXIT(
      {
        adeSummaryFatalError("first", nullptr);
        adeSummaryFatalError("second", nullptr);
        exit(0);
      },
      fatalEnd, "");
  EXPECT_EQ(summary(), "\nFATAL ERROR : first\n\n");
}

TEST_F(AdeSummary, FatalErrorThatCanNotBeTold)
{
  adeRecord.directory += "missing/";
  EXPECT_EXIT(fatalError(FATAL_INTERNAL, "the reason"), fatalEnd,
              "Internal error\n              the reason\n\n"
              "\nFATAL ERROR : Can not open file for reading\n"
              "              .*missing/proj\\.acs\n");
}

TEST_F(AdeSummary, UnwritableIsFatal)
{
  makeFull();
  // More than a stream keeps back, so the write itself fails.
  std::string text(1 << 20, 'x');
  EXPECT_EXIT((adeSummaryOpenFile(), adeSummaryMessage(text.c_str()), exit(0)),
              fatalEnd,
              "Can not write into file\n              " + pathOf(".acs"));
}

TEST_F(AdeSummary, UnclosableIsFatal)
{
  makeFull();
  EXPECT_EXIT((adeSummaryOpenFile(), adeSummaryMessage("text"),
               adeSummaryCloseFile(), exit(0)),
              fatalEnd, "Can not close file\n              " + pathOf(".acs"));
}
