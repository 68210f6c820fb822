// The usage and version texts, byte by byte, with stream and status.

#include "base/diag.h"
#include "base/textfile.h"
#include "options/usage.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ExitedWithCode;
using testing::StrEq;

// The tool's own identity; put back afterwards.
struct Usage : testing::Test {
  TempDir dir;
  std::string savedName = backendName;
  int savedVersion = backendVersion;
  int savedPatch = backendPatchLevel;
  const char *const *savedUsage = backendUsage;
  Usage()
  {
    backendName = "QUORVEN";
    backendVersion = 101;
    backendPatchLevel = 3;
  }
  ~Usage() override
  {
    backendName = savedName;
    backendVersion = savedVersion;
    backendPatchLevel = savedPatch;
    backendUsage = savedUsage;
  }
  // For the statement of a death test: what goes to stdout is found there.
  std::string stdoutPath() const { return dir.path + "stdout"; }
  void stdoutToFile() const
  {
    if (!freopen(stdoutPath().c_str(), "w", stdout))
      abort();
  }
};

TEST_F(Usage, LineByLineOnStderrWithStatus1)
{
  static const char *const lines[] = {"one %s", "", "  three", nullptr};
  backendUsage = lines;
  EXPECT_EXIT(
      {
        stdoutToFile();
        usage();
      },
      ExitedWithCode(1), StrEq("one %s\n\n  three\n"));
  EXPECT_EQ(readFile(stdoutPath()), "");
}

TEST_F(Usage, NoTable)
{
  backendUsage = nullptr;
  EXPECT_EXIT(usage(), ExitedWithCode(1), StrEq(""));
}

// What `printVersionInfo` writes for those arguments.
static std::string versionInfo(const std::string &path, const char *name,
                               int version, int patch, int firstYear,
                               int lastYear)
{
  OpenedFile file(fopenTextFile(nullptr, path.c_str(), "w"));
  printVersionInfo(file.get(), name, version, patch, firstYear, lastYear);
  file.reset();
  return readFile(path);
}

TEST_F(Usage, VersionInfoLines)
{
  // An empty line, the versions, the copyright with both years, an empty one.
  EXPECT_THAT(
      versionInfo(dir.path + "v", "QUORVEN", 101, 3, 1997, 2002),
      testing::MatchesRegex("\nQUORVEN version 1\\.01\\.3 for ZELK version "
                            "2\\.13\nCopyright[^\n]*1997[^\n]*2002[^\n]*\n\n"));
}

TEST_F(Usage, VersionInfoOfOthers)
{
  EXPECT_THAT(versionInfo(dir.path + "v", "OTHER", 210, 0, 2001, 2003),
              testing::MatchesRegex("\nOTHER version 2\\.10 for ZELK version "
                                    "2\\.13\n[^\n]*2001[^\n]*2003[^\n]*\n\n"));
}

TEST_F(Usage, VersionOnStdoutWithStatus0)
{
  EXPECT_EXIT(
      {
        stdoutToFile();
        printVersionAndExit();
      },
      ExitedWithCode(0), StrEq(""));
  EXPECT_EQ(readFile(stdoutPath()),
            versionInfo(dir.path + "v", "QUORVEN", 101, 3, 1997, 2002));
}
