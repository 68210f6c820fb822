// The log: one for all modules of a run, a line for each.

#include "cbet/outfile.h"
#include "driver/modfiles.h"
#include "support/loadedrun.h"
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

using testing::ExitedWithCode;
using testing::StrEq;

// Trees "abc" and "def" with a type each, "nil" with none. The log is begun
// once a process, so whole runs happen in child processes.
struct ModLog : testing::Test {
  LoadedRun run;
  StxTree abc = smallTree("Abc", "abc");
  StxTree def = smallTree("Def", "def");
  StxTree nil = emptyTree("Nil", "nil");
  std::string logOption = "-LOGFILE=" + run.path("run.log");

  void addAll()
  {
    const struct {
      StxTree &tree;
      const char *prefix;
    } trees[] = {{abc, "abc"}, {def, "def"}, {nil, "nil"}};
    for (const auto &[tree, prefix] : trees) {
      run.saveDirectories(tree);
      run.add(tree, prefix);
    }
  }
  ProcessResult runAll(const std::vector<std::string> &arguments)
  {
    addAll();
    return run.run(arguments);
  }
  // The line of a module whose files these are.
  std::string lineOf(const std::string &module,
                     const std::vector<std::string> &names) const
  {
    std::string line = module + ".stx:";
    for (const std::string &name : names)
      line += " " + run.path(name);
    return line + "\n";
  }
};

TEST_F(ModLog, TwoModules)
{
  writeFile(run.path("run.log"), "of an earlier run\n");
  EXPECT_EQ(runAll({"abc", "def", logOption}).status, 0);
  // In the order of the slots: 5, 6, 11.
  EXPECT_EQ(run.file("run.log"),
            lineOf("abc", {"abcpec.c", "abcper.ext", "abcpdc.c"}) +
                lineOf("def", {"defpec.c", "defper.ext", "defpdc.c"}));
}

TEST_F(ModLog, CombinedFilesAreNamedOnce)
{
  EXPECT_EQ(runAll({"abc", "-PERCOD=1:1", logOption}).status, 0);
  EXPECT_EQ(run.file("run.log"), lineOf("abc", {"abcper.c", "abcper.ext"}));
}

TEST_F(ModLog, SeparateFiles)
{
  EXPECT_EQ(runAll({"abc", "-PERCOD=2:2", logOption}).status, 0);
  EXPECT_EQ(run.file("run.log"), lineOf("abc", {"abcpec.c", "abcpec.ext",
                                                "abcpdc.c", "abcpdc.ext"}));
}

TEST_F(ModLog, ModuleWithoutFiles)
{
  EXPECT_EQ(runAll({"nil", "-PERCOD=1:1", logOption}).status, 0);
  EXPECT_EQ(run.file("run.log"), "nil.stx:\n");
  EXPECT_FALSE(run.has("nilper.c"));
  EXPECT_FALSE(run.has("nilper.ext"));
}

TEST_F(ModLog, ModuleWithoutFilesBehindAnother)
{
  EXPECT_EQ(runAll({"abc", "nil", "def", "-PERCOD=1:0", logOption}).status, 0);
  EXPECT_EQ(run.file("run.log"), lineOf("abc", {"abcper.c"}) + "nil.stx:\n" +
                                     lineOf("def", {"defper.c"}));
}

TEST_F(ModLog, NoLogWithoutTheOption)
{
  EXPECT_EQ(runAll({"abc"}).status, 0);
  EXPECT_EQ(fiLog, nullptr);
  for (const auto &entry : std::filesystem::directory_iterator(run.dir.path))
    EXPECT_NE(entry.path().extension(), ".log");
}

// Each module has an option of its own; the first log that is opened is
// begun anew, and only that.
TEST_F(ModLog, LogOfEachModule)
{
  stxGlobalOption(def, TED_BACK_END, logOption);
  writeFile(run.path("run.log"), "old\n");
  EXPECT_EQ(runAll({"abc", "def"}).status, 0);
  EXPECT_EQ(run.file("run.log"),
            lineOf("def", {"defpec.c", "defper.ext", "defpdc.c"}));
}

TEST_F(ModLog, LaterLogsAreContinued)
{
  stxGlobalOption(abc, TED_BACK_END, "-LOGFILE=" + run.path("other.log"));
  stxGlobalOption(def, TED_BACK_END, logOption);
  writeFile(run.path("run.log"), "old\n");
  EXPECT_EQ(runAll({"abc", "def"}).status, 0);
  EXPECT_EQ(run.file("run.log"),
            "old\n" + lineOf("def", {"defpec.c", "defper.ext", "defpdc.c"}));
}

TEST_F(ModLog, CanNotBeCreated)
{
  std::string missing = run.path("none/run.log");
  ProcessResult result = runAll({"abc", "-LOGFILE=" + missing});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not open file for writing\n"
                        "              " +
                            missing + "\n\n");
}

// The mode is that of a file to be continued, whose failure has the other
// code.
TEST_F(ModLog, CanNotBeContinued)
{
  std::string missing = run.path("none/run.log");
  stxGlobalOption(abc, TED_BACK_END, logOption);
  stxGlobalOption(def, TED_BACK_END, "-LOGFILE=" + missing);
  ProcessResult result = runAll({"abc", "def"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not open file for reading\n"
                        "              " +
                            missing + "\n\n");
}

// The validator takes one character more than a path may have.
TEST_F(ModLog, LongestName)
{
  std::string name = run.path(std::string(1025 - run.dir.path.size(), 'x'));
  ASSERT_EQ(name.size(), 1025u);
  // Too long for the command line, which is cut at 1024 characters.
  stxGlobalOption(abc, TED_BACK_END, "-LOGFILE=" + name);
  ProcessResult result = runAll({"abc"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not open file for writing\n\n");
}

TEST_F(ModLog, FullDisk)
{
  ProcessResult result = runAll({"abc", "-LOGFILE=/dev/full"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not close file\n"
                        "              /dev/full\n\n");
}

// --- its functions ----------------------------------------------------------

// A stream in place of the log.
struct ModLogLine : ModLog {
  AsnModule module;
  FILE *stream = tmpfile();

  ModLogLine()
  {
    addAll();
    run.load({"abc"});
    module = run.module("abc");
    fiLog = stream;
  }
  ~ModLogLine() override
  {
    fiLog = nullptr;
    fclose(stream);
  }
  ModLogLine(const ModLogLine &) = delete;

  std::string written()
  {
    std::string text;
    rewind(stream);
    for (int c = getc(stream); c != EOF; c = getc(stream))
      text += static_cast<char>(c);
    return text;
  }
};

TEST_F(ModLogLine, OpenSlotsInOrder)
{
  openNamedF(16, run.dir.path.c_str(), "sixteen");
  openNamedF(1, run.dir.path.c_str(), "one");
  openNamedF(2, run.dir.path.c_str(), "two");
  closeF(2);
  generateLogFile(module);
  EXPECT_EQ(written(), lineOf("abc", {"one", "sixteen"}));
}

TEST_F(ModLogLine, NameHasDirectoryAndFilePrefix)
{
  setModulePrefixes(*module.rec, "abc", "gen");
  openFile(5, module, 1, 5);
  generateLogFile(module);
  EXPECT_EQ(written(), lineOf("gen", {"abcpec.c"}));
}

TEST_F(ModLogLine, OneName)
{
  openNamedF(1, run.dir.path.c_str(), "one");
  logFileName(1);
  logFileName(2);
  EXPECT_EQ(written(), " " + run.path("one"));
}

TEST_F(ModLogLine, NoLog)
{
  fiLog = nullptr;
  generateLogFile(module);
  EXPECT_EQ(written(), "");
}

TEST_F(ModLogLine, ClosedWithTheFiles)
{
  fiLog = fopen(run.path("x.log").c_str(), "w");
  fputs("text", fiLog);
  closeModuleFiles();
  EXPECT_EQ(fiLog, nullptr);
  EXPECT_EQ(run.file("x.log"), "text");
}

TEST_F(ModLogLine, OptionOpensIt)
{
  fiLog = nullptr;
  openLogFile(module);
  EXPECT_EQ(fiLog, nullptr) << "no option";
}
