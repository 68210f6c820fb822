// The passes in the order of a run, over trees that are read from files.

#include "base/diag.h"
#include "base/upcalls.h"
#include "driver/meta.h"
#include "options/catalogue.h"
#include "options/params.h"
#include "options/passes.h"
#include "store/module.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::StrEq;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

static std::string ignored(const std::string &text)
{
  return "\nWARNING : Option ignored: " + text + "\n";
}

// Trees in a directory of the test's own.
struct PassesRun : testing::Test {
  TempDir dir;
  std::string file = dir.path + "a.opt";
  int savedLevel = verboseEx;
  PassesRun()
  {
    resetStore();
    resetParams();
    stxDir.clear();
    cMP = appendModRec(true);
  }
  ~PassesRun() override
  {
    resetStore();
    resetParams();
    stxDir.clear();
    verboseEx = savedLevel;
    pass3Scope = 1;
  }
  void write(const StxTree &tree, const char *prefix) const
  {
    std::string path = dir.path + prefix + ".stx";
    ASSERT_TRUE(stxWrite(tree, path.c_str()));
  }
  // What start-up does, with the trees of the test's own directory.
  void start(std::vector<std::string> arguments)
  {
    std::vector<char *> vector = {nullptr};
    arguments.insert(arguments.begin(), "-S=" + dir.path);
    for (std::string &argument : arguments)
      vector.push_back(argument.data());
    int count = static_cast<int>(vector.size());
    parseCmdLineParams(count, vector.data());
    readAllSyntaxTrees();
    removeUnreferencedModuleRecords();
    initBackendVars();
    unsigned flags = 0;
    for (ModRec *module = bOfModRList; module; module = module->next) {
      cMP = module;
      module->commandLineTed = {};
      parseCmdLineOptions(count, vector.data(), flags, module->commandLineTed);
      checkGlobalBEOptions(*module, module->commandLineTed);
    }
  }
  std::string load(const std::vector<std::string> &arguments)
  {
    CaptureStderr();
    start(arguments);
    return GetCapturedStderr();
  }
};

TEST_F(PassesRun, SavedLinesThenCommandLine)
{
  StxTree tree = stxNewTree("Abc", "abc");
  stxGlobalOption(tree, TED_BACK_END, "-VERBOSE=2");
  stxGlobalOption(tree, TED_BACK_END, "-BERFUNCPREF=yes");
  stxGlobalOption(tree, TED_FRONT_END, "-NAMELEN=40");
  write(tree, "abc");
  EXPECT_EQ(load({"-verbose=quiet", "abc"}), "");
  EXPECT_EQ(bOfModRList->beMeta->verbosity, 0);
  EXPECT_EQ(bOfModRList->beMeta->berFuncPref, 1);
  EXPECT_EQ(bOfModRList->options.nameLen, 40);
  EXPECT_EQ(bOfModRList->options.globalTed.last, 3);
  // Behind the lines of the tree; the first is the tree directory.
  EXPECT_EQ(bOfModRList->commandLineTed.first, 4);
  EXPECT_EQ(bOfModRList->commandLineTed.last, 5);
}

TEST_F(PassesRun, CommandLineNeverMeetsTheCatalogue)
{
  write(stxNewTree("Abc", "abc"), "abc");
  writeFile(file, "-BEGIN-SCOPE=xyz\n-VERBOSE=2\n-END-SCOPE\n");
  EXPECT_EQ(load({"-NAMELEN=40", "+" + file, "abc"}),
            ignored("-NAMELEN=40") + ignored("-BEGIN-SCOPE=xyz") +
                ignored("-END-SCOPE"));
  EXPECT_EQ(bOfModRList->options.nameLen, 32);
  // A scope of the command line confines nothing.
  EXPECT_EQ(bOfModRList->beMeta->verbosity, 2);
}

TEST_F(PassesRun, WarningOncePerModule)
{
  write(stxNewTree("Abc", "abc"), "abc");
  write(stxNewTree("Def", "def"), "def");
  EXPECT_EQ(load({"-NONSENSE", "abc", "def"}),
            ignored("-NONSENSE") + ignored("-NONSENSE"));
}

TEST_F(PassesRun, ImportsTakeTheCommandLineToo)
{
  StxTree tree = stxNewTree("Abc", "abc");
  stxImport(tree, "Imp", "imp", true);
  write(tree, "abc");
  write(stxNewTree("Imp", "imp"), "imp");
  EXPECT_EQ(load({"-VERBOSE=2", "abc"}), "");
  ModRec *imported = bOfModRList->next;
  ASSERT_NE(imported, nullptr);
  EXPECT_EQ(imported->beMeta->verbosity, 2);
  EXPECT_FALSE(imported->inGenerationList);
}

TEST_F(PassesRun, ScopesByTree)
{
  // The same lines in both trees, with an open scope at the end.
  for (const char *prefix : {"abc", "def"}) {
    StxTree tree = stxNewTree(prefix[0] == 'a' ? "Abc" : "Def", prefix);
    stxGlobalOption(tree, TED_FRONT_END, "-DECIMALS=3");
    stxGlobalOption(tree, TED_FRONT_END, "-BEGIN-SCOPE=nobody:abc");
    stxGlobalOption(tree, TED_FRONT_END, "-NAMELEN=40");
    stxGlobalOption(tree, TED_FRONT_END, "-BEGIN-SCOPE=def:nobody");
    stxGlobalOption(tree, TED_FRONT_END, "-SPLIT=9");
    write(tree, prefix);
  }
  EXPECT_EQ(load({"abc", "def"}), "");
  const GlobalOptions &first = bOfModRList->options;
  const GlobalOptions &second = bOfModRList->next->options;
  EXPECT_EQ(first.decimals, 3);
  EXPECT_EQ(second.decimals, 3);
  EXPECT_EQ(first.nameLen, 40);
  EXPECT_EQ(second.nameLen, 32);
  EXPECT_EQ(first.split, 0);
  EXPECT_EQ(second.split, 9);
}

TEST_F(PassesRun, PrefixOfAnImportFromTheImportersTree)
{
  // The table of an import's own tree is known before its imports are read.
  StxTree tree = stxNewTree("Abc", "abc");
  stxImport(tree, "Imp", "imp", true);
  write(tree, "abc");
  StxTree imp = stxNewTree("Imp", "imp");
  stxGlobalOption(imp, TED_FRONT_END, "-PREFIX=Far-Away:fil:gen");
  write(imp, "imp");
  EXPECT_EQ(load({"abc"}), "");
  ModRec *imported = bOfModRList->next;
  ASSERT_NE(imported, nullptr);
  ASSERT_NE(imported->options.prefixes, nullptr);
  EXPECT_STREQ(imported->options.prefixes->firstImport->moduleName, "Far_Away");
}

TEST_F(PassesRun, SavedTreeDirectoryMovesTheNextLoad)
{
  StxTree tree = stxNewTree("Abc", "abc");
  stxGlobalOption(tree, TED_BACK_END, "-S=" + dir.path + "none");
  write(tree, "abc");
  write(stxNewTree("Def", "def"), "def");
  EXPECT_EXIT(start({"abc", "def"}), ExitedWithCode(2),
              HasSubstr("Syntax tree not found"));
}

TEST_F(PassesRun, ReadErrorShowsInTheOptionPass)
{
  // A directory as option file: pass 1 goes through, and a missing tree is
  // told first.
  EXPECT_EXIT(start({"abc", "+" + dir.path}), ExitedWithCode(2),
              HasSubstr("Syntax tree not found"));
  write(stxNewTree("Abc", "abc"), "abc");
  EXPECT_EXIT(start({"abc", "+" + dir.path}), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not read from file\n"
                    "              " +
                    dir.path + "\n\n"));
}
