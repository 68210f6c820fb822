#include "base/diag.h"
#include <cstdio>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>

// The levels and the name are global; each test finds those of a run.
class Diag : public testing::Test {
protected:
  void SetUp() override
  {
    backendName = "QUORVEN";
    verboseEx = 3;
  }
  void TearDown() override
  {
    backendName = name;
    verboseEx = level;
    backendVerbosity = verbosity;
  }
  std::string name = backendName;
  int level = verboseEx;
  int verbosity = backendVerbosity;
};

// What `speak` says on stdout at a level; stderr must stay empty.
template <class Speak>
static std::string saidAt(int level, Speak speak)
{
  verboseEx = level;
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  speak();
  std::string said = testing::internal::GetCapturedStdout();
  EXPECT_EQ("", testing::internal::GetCapturedStderr());
  return said;
}

static const struct {
  int code;
  std::string text;
} fatalTexts[] = {
    {1, "Can not open file for reading"},
    {2, "Can not open file for writing"},
    {3, "Can not find module name"},
    {4, "Can not add identifier to path"},
    {5, "Can not allocate space"},
    {6, "Can not read from file"},
    {7, "Can not write into file"},
    {8, "Can not close file"},
    {9, "Can not read record from syntax tree"},
    {10, "Can not write record into syntax tree"},
    {11, "Can not initialize value parameter"},
    {12, "Can not map a modulereference with a file name"},
    {13, "Internal error"},
    {14, "Unexpected end of file"},
    {15, "Syntax tree inconsistent"},
    {16, "Syntax tree not found"},
    {17, "Not a valid syntax tree"},
    {18, "Call-back function not defined."},
    {65535, "Unexpected error code"},
};

TEST_F(Diag, FatalTable)
{
  ASSERT_EQ(std::size(fatalTexts), std::size(allFatalErrors));
  for (size_t i = 0; i < std::size(fatalTexts); ++i) {
    EXPECT_EQ(fatalTexts[i].code, allFatalErrors[i].code);
    EXPECT_EQ(fatalTexts[i].text, allFatalErrors[i].text);
    EXPECT_EQ(2, allFatalErrors[i].status);
  }
}

TEST_F(Diag, FatalWithDetail)
{
  for (auto &[code, text] : fatalTexts)
    EXPECT_EXIT(fatalError(code, "x 100%s.c"), testing::ExitedWithCode(2),
                testing::StrEq("\nFATAL ERROR : " + text +
                               "\n              x 100%s.c\n\n"));
}

TEST_F(Diag, FatalWithoutDetail)
{
  for (auto &[code, text] : fatalTexts)
    EXPECT_EXIT(fatalError(code), testing::ExitedWithCode(2),
                testing::StrEq("\nFATAL ERROR : " + text + "\n\n"));
}

TEST_F(Diag, FatalEmptyDetailHasItsLine)
{
  EXPECT_EXIT(fatalError(FATAL_INTERNAL, ""), testing::ExitedWithCode(2),
              testing::StrEq("\nFATAL ERROR : Internal error\n"
                             "              \n\n"));
}

TEST_F(Diag, FatalUnknownCode)
{
  for (int code : {-1, 0, 19, 1001, 65534, 65536})
    EXPECT_EXIT(fatalError(code, "why"), testing::ExitedWithCode(2),
                testing::StrEq("\nFATAL ERROR : Unexpected error code\n"
                               "              why\n\n"));
}

TEST_F(Diag, FatalPrintsAtLowestLevel)
{
  verboseEx = 1;
  EXPECT_EXIT(fatalError(FATAL_CLOSE_FILE), testing::ExitedWithCode(2),
              testing::StrEq("\nFATAL ERROR : Can not close file\n\n"));
}

TEST_F(Diag, DefaultLevel)
{
  EXPECT_EQ(3, level);
  EXPECT_EQ(0, verbosity);
}

TEST_F(Diag, Warning)
{
  auto speak = [] { warning("too 100%s long"); };
  for (int at : {2, 3, 4})
    EXPECT_EQ("Warning     QUORVEN too 100%s long\n", saidAt(at, speak));
  EXPECT_EQ("", saidAt(1, speak));
}

TEST_F(Diag, IndentedWarning)
{
  auto speak = [] { indWarning("too long"); };
  for (int at : {2, 3, 4})
    EXPECT_EQ("Warning     QUORVEN     too long\n", saidAt(at, speak));
  EXPECT_EQ("", saidAt(1, speak));
}

TEST_F(Diag, BugInTool)
{
  auto speak = [] { bugInTool("lost"); };
  for (int at : {2, 3, 4})
    EXPECT_EQ("Warning     QUORVEN lost\n", saidAt(at, speak));
  EXPECT_EQ("", saidAt(1, speak));
}

TEST_F(Diag, WarningNamesBackend)
{
  backendName = "OTHER";
  EXPECT_EQ("Warning     OTHER text\n", saidAt(3, [] { warning("text"); }));
}

TEST_F(Diag, PlaceWarning)
{
  auto speak = [] {
    placeWarning("dir_a/my_mod.asn", 12, "Module my_mod, type A_b", "no_go",
                 false);
  };
  for (int at : {2, 3, 4})
    EXPECT_EQ("dir_a/my_mod.asn(12) : Warning     QUORVEN "
              "Module my-mod, type A-b\n"
              "Warning     QUORVEN no_go\n",
              saidAt(at, speak));
  EXPECT_EQ("", saidAt(1, speak));
}

TEST_F(Diag, PlaceWarningIndented)
{
  auto speak = [] { placeWarning("a.asn", 0, "Module A, ", "more", true); };
  EXPECT_EQ("a.asn(0) : Warning     QUORVEN Module A, \n"
            "Warning     QUORVEN     more\n",
            saidAt(2, speak));
  EXPECT_EQ("", saidAt(1, speak));
}

TEST_F(Diag, HelpSaysNothing)
{
  EXPECT_EQ("", saidAt(4, [] { helpWithTool(); }));
}

TEST_F(Diag, SetBackendVerbosity)
{
  setBackendVerbosity(2);
  EXPECT_EQ(2, backendVerbosity);
  setBackendVerbosity(0);
  EXPECT_EQ(0, backendVerbosity);
}

TEST_F(Diag, TreeVersion)
{
  EXPECT_EQ(213, treeVersionAccepted);
}

TEST(NewString, ReplacesByCopy)
{
  char source[] = "new";
  std::string variable = "old";
  newString(variable, source);
  source[0] = 'x';
  EXPECT_EQ("new", variable);
  newString(variable, "");
  EXPECT_EQ("", variable);
}

TEST(NewString, NullLeavesUntouched)
{
  std::string variable = "old";
  newString(variable, nullptr);
  EXPECT_EQ("old", variable);
}
