// The makefile writer.

#include "ade/makefile.h"
#include "ade/summary.h"
#include "support/tempdir.h"
#include <filesystem>
#include <gtest/gtest.h>

// The makefile "projmak" in a directory of the test's own.
struct AdeMakefile : testing::Test {
  TempDir dir;
  AdeRecord saved = adeRecord;
  AdeMakefile() { adeRecord = {"proj", dir.path}; }
  ~AdeMakefile() override { adeRecord = saved; }

  std::string path() const { return dir.path + "projmak"; }
  std::string makefile() const { return readFile(path()); }
};

static std::string name(size_t length) { return std::string(length, 'n'); }

static void dependency(const std::string &text)
{
  adeMakefileDependency(text.c_str());
}

TEST_F(AdeMakefile, CloseEndsTheLine)
{
  adeMakefileOpenFile();
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\n");
}

TEST_F(AdeMakefile, Target)
{
  adeMakefileOpenFile();
  adeMakefileTarget("all%d");
  adeMakefileTarget("clean");
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\nall%d :\nclean :\n");
}

TEST_F(AdeMakefile, Command)
{
  adeMakefileOpenFile();
  adeMakefileTarget("a.o");
  adeMakefileDependency("a.c");
  adeMakefileDependency("a.h");
  adeMakefileCommand("cc -c a.c");
  adeMakefileCommand("size a.o");
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\na.o : a.c a.h\tcc -c a.c\n\tsize a.o\n\n");
}

TEST_F(AdeMakefile, LineOf76)
{
  adeMakefileOpenFile();
  adeMakefileTarget("lib");
  dependency(name(70));  // 3 + 2 + 1 + 70
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\nlib : " + name(70) + "\n");
}

TEST_F(AdeMakefile, LineOf77IsBroken)
{
  adeMakefileOpenFile();
  adeMakefileTarget("lib");
  dependency(name(71));
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\nlib :\\\n     " + name(71) + "\n");
}

TEST_F(AdeMakefile, ContinuationCountsItsBlanks)
{
  adeMakefileOpenFile();
  adeMakefileTarget("lib");
  dependency(name(70));
  dependency(name(10));  // 4 + 1 + 10
  dependency(name(60));  // 15 + 1 + 60
  dependency(name(10));
  dependency(name(61));  // 15 + 1 + 61
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\nlib : " + name(70) + "\\\n     " + name(10) + " " +
                            name(60) + "\\\n     " + name(10) + "\\\n     " +
                            name(61) + "\n");
}

TEST_F(AdeMakefile, LongNameStandsAlone)
{
  adeMakefileOpenFile();
  adeMakefileTarget("lib");
  adeMakefileDependency("a.o");
  dependency(name(90));
  adeMakefileDependency("b.o");
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\nlib : a.o\\\n     " + name(90) + "\\\n     b.o\n");
}

TEST_F(AdeMakefile, TargetStartsTheCountAgain)
{
  adeMakefileOpenFile();
  adeMakefileTarget("lib");
  dependency(name(70));
  adeMakefileTarget("bin");
  dependency(name(70));
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\nlib : " + name(70) + "\nbin : " + name(70) + "\n");
}

TEST_F(AdeMakefile, OpenStartsAnew)
{
  adeMakefileOpenFile();
  adeMakefileTarget("lib");
  dependency(name(70));
  adeMakefileCloseFile();
  adeMakefileOpenFile();
  dependency(name(75));  // fits only if nothing is counted ahead of it
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), " " + name(75) + "\n");
}

TEST_F(AdeMakefile, OpenFileStaysAsItIs)
{
  adeMakefileOpenFile();
  adeMakefileTarget("lib");
  dependency(name(60));
  adeMakefileOpenFile();
  dependency(name(60));
  adeMakefileCloseFile();
  EXPECT_EQ(makefile(), "\nlib : " + name(60) + "\\\n     " + name(60) + "\n");
}

TEST_F(AdeMakefile, ClosedTakesNothing)
{
  adeMakefileTarget("lib");
  adeMakefileDependency("a.o");
  adeMakefileCommand("ar");
  adeMakefileCloseFile();
  EXPECT_TRUE(std::filesystem::is_empty(dir.path));
}

TEST_F(AdeMakefile, NoPrefix)
{
  adeRecord.prefix.clear();
  EXPECT_EXIT(adeMakefileOpenFile(), testing::ExitedWithCode(2),
              "Can not open file for writing\n              No ADE-PREFIX\n");
}

TEST_F(AdeMakefile, UnclosableIsToldInTheSummary)
{
  std::filesystem::create_symlink("/dev/full", path());
  EXPECT_EXIT((adeMakefileOpenFile(), adeMakefileCloseFile()),
              testing::ExitedWithCode(2),
              "Can not close file\n              " + path());
  EXPECT_EQ(readFile(dir.path + "proj.acs"),
            "\nFATAL ERROR : Can not close file\n              " + path() +
                "\n\n");
}
