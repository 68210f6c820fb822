// The start: what is set, in which order, and what a run finds afterwards.

#include "base/strings.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "driver/meta.h"
#include "driver/start.h"
#include "model/constraint.h"
#include "model/infvalue.h"
#include "model/typepath.h"
#include "store/treestore.h"
#include "support/loadedrun.h"
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::StrEq;

static const char *const ownUsage[] = {"First line", "", "  third line",
                                       nullptr};

// Trees "abc" and "def".
struct Start : testing::Test {
  LoadedRun run;
  StxTree abc = smallTree("Abc", "abc");
  StxTree def = smallTree("Def", "def");

  void addAll() const
  {
    run.add(abc, "abc");
    run.add(def, "def");
  }
  // The common start of a back-end of the test's own.
  void startOwn(const std::vector<std::string> &arguments) const
  {
    std::string directory = "-S=" + run.dir.path;
    std::vector<std::string> texts = {"own", directory};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char *> vector;
    for (std::string &text : texts)
      vector.push_back(text.data());
    vector.push_back(nullptr);
    std::string name = "OWN";
    initBackend(static_cast<int>(texts.size()), vector.data(), name.c_str(),
                317, 4, ownUsage);
  }
  std::string saidByStart(const std::vector<std::string> &arguments) const
  {
    testing::internal::CaptureStderr();
    startOwn(arguments);
    return testing::internal::GetCapturedStderr();
  }
  // Generation prefixes of the whole list.
  static std::vector<std::string> prefixes()
  {
    std::vector<std::string> result;
    for (ModRec *rec = bOfModRList; rec; rec = rec->next)
      result.push_back(orEmpty(rec->generationPrefix));
    return result;
  }
  // The lines that the option pass appended to a module.
  static std::vector<std::string> commandLineOf(const char *prefix)
  {
    AsnModule module = LoadedRun::module(prefix);
    TedRange range = module.rec->commandLineTed;
    std::vector<std::string> lines;
    for (int32_t i = range.first; i && i <= range.last; ++i) {
      readRec(module.rec, REC_TED, i);
      lines.push_back(getStri(module.rec, tedRec.text));
    }
    return lines;
  }
};

TEST_F(Start, KeepsWhatItIsTold)
{
  addAll();
  startOwn({"abc"});
  EXPECT_EQ(backendName, "OWN");
  EXPECT_EQ(backendVersion, 317);
  EXPECT_EQ(backendPatchLevel, 4);
  EXPECT_EQ(backendUsage, ownUsage);
}

TEST_F(Start, ClearsTheOutputFiles)
{
  addAll();
  initF(3, "dir/", "name");
  fArr[3].indent = 5;
  fArr[16].lines = 9;
  startOwn({"abc"});
  for (const OutFile &file : fArr) {
    EXPECT_EQ(file.fp, nullptr);
    EXPECT_FALSE(file.named);
    EXPECT_EQ(file.indent, 0);
    EXPECT_EQ(file.lines, 0);
  }
}

TEST_F(Start, TakesTheTime)
{
  addAll();
  StampRec before, after;
  getTimeStamp(before);
  startOwn({"abc"});
  getTimeStamp(after);
  EXPECT_EQ(timeStamp.toolVersion, 213);
  EXPECT_EQ(timeStamp.treeVersion, 213);
  auto moment = [](const StampRec &stamp) {
    return int64_t(stamp.date) * 1000000 + stamp.time;
  };
  EXPECT_GE(moment(timeStamp), moment(before));
  EXPECT_LE(moment(timeStamp), moment(after));
}

TEST_F(Start, EmptiesTheStacksOfTheModel)
{
  addAll();
  pushPath();
  addElemToPath("x");
  pushStack(asnTypePtrStack, nullptr);
  pushStack(asnConstraintPtrStack, nullptr);
  pushStack(compFuncStack, nullptr);
  pushStack(compsFuncStack, nullptr);
  startOwn({"abc"});
  EXPECT_FALSE(typePathInUse());
  EXPECT_EQ(getStackDepth(asnTypePtrStack), 0);
  EXPECT_EQ(getStackDepth(asnConstraintPtrStack), 0);
  EXPECT_EQ(getStackDepth(compFuncStack), 0);
  EXPECT_EQ(getStackDepth(compsFuncStack), 0);
}

TEST_F(Start, FirstRecordIsHeadOfBothLists)
{
  addAll();
  startOwn({"abc"});
  EXPECT_THAT(prefixes(), ElementsAre("abc"));
  EXPECT_EQ(eOfModRList, bOfModRList);
  EXPECT_EQ(fstOfModRList, bOfModRList);
  EXPECT_EQ(lstOfModRList, bOfModRList);
  EXPECT_NE(bOfModRList->beMeta, nullptr);
  EXPECT_EQ(bOfModRList->treeStatus, TREE_READ);
}

TEST_F(Start, NamedModulesAreTheGenerationList)
{
  StxTree ghi = smallTree("Ghi", "ghi");
  stxImport(abc, "Ghi", "ghi", true);
  run.add(ghi, "ghi");
  addAll();
  startOwn({"abc", "def"});
  EXPECT_THAT(prefixes(), ElementsAre("abc", "def", "ghi"));
  EXPECT_STREQ(fstOfModRList->generationPrefix, "abc");
  EXPECT_STREQ(lstOfModRList->generationPrefix, "def");
  EXPECT_STREQ(eOfModRList->generationPrefix, "ghi");
  // The option pass has moved it along the whole list.
  EXPECT_EQ(cMP, eOfModRList);
}

TEST_F(Start, DropsRecordsThatNoTreeNeeds)
{
  stxGlobalOption(abc, TED_FRONT_END, "-PREFIX=Unused:un:un");
  stxGlobalOption(abc, TED_FRONT_END, "-PREFIX=Def:file:def");
  stxImport(abc, "Def", "def", true);
  addAll();
  startOwn({"abc"});
  EXPECT_THAT(prefixes(), ElementsAre("abc", "def"));
  EXPECT_STREQ(run.module("def").rec->filePrefix, "file");
}

// --- the option pass --------------------------------------------------------

TEST_F(Start, CommandLineGoesIntoEveryTree)
{
  stxImport(abc, "Def", "def", true);
  stxGlobalOption(def, TED_FRONT_END, "-INFO=x");
  stxGlobalOption(def, TED_FRONT_END, "-A=asn");
  addAll();
  startOwn({"-Percod=1:1", "abc", "-verbose=Quiet"});
  std::string directory = "-S=" + run.dir.path;
  for (const char *prefix : {"abc", "def"}) {
    EXPECT_THAT(commandLineOf(prefix),
                ElementsAre(directory, "-PERCOD=1:1", "-VERBOSE=Quiet"));
    const BEModMetaRec &meta = *run.module(prefix).rec->beMeta;
    EXPECT_EQ(meta.genArr[5], 1);
    EXPECT_EQ(meta.verbosity, 0);
  }
  EXPECT_EQ(run.module("abc").rec->commandLineTed.first, 1);
  EXPECT_EQ(run.module("def").rec->commandLineTed.first, 3);
  EXPECT_EQ(run.module("def").rec->commandLineTed.last, 5);
}

TEST_F(Start, OptionFiles)
{
  addAll();
  writeFile(run.path("o.opt"), "-berfuncpref=yes\n# comment\n-PERCOD=0\nabc\n");
  startOwn({"+" + run.path("o.opt"), "-PERCOD=1"});
  EXPECT_THAT(prefixes(), ElementsAre("abc"));
  EXPECT_EQ(bOfModRList->beMeta->berFuncPref, 1);
  EXPECT_EQ(bOfModRList->beMeta->genArr[5], 1) << "the later one wins";
}

// The back-end's lines are looked at once: those of the tree when it is
// loaded, and those of the command line here.
TEST_F(Start, EachBadLineIsReportedOnce)
{
  stxGlobalOption(abc, TED_BACK_END, "-PERCOD=8");
  addAll();
  EXPECT_EQ(saidByStart({"abc", "-PERCOD=9"}),
            "\nWARNING : Option ignored: -PERCOD=8\n"
            "\nWARNING : Option ignored: -PERCOD=9\n");
}

// The modules are loaded in the order abc, ghi, def, but stand in the list as
// abc, def, ghi.
TEST_F(Start, LinesOfTreesAreNotAppliedAgain)
{
  StxTree ghi = smallTree("Ghi", "ghi");
  stxImport(abc, "Ghi", "ghi", true);
  stxGlobalOption(abc, TED_BACK_END, "-TREE-FILE-SUFFIX=.abc");
  stxGlobalOption(def, TED_BACK_END, "-TREE-FILE-SUFFIX=.def");
  stxGlobalOption(ghi, TED_BACK_END, "-TREE-FILE-SUFFIX=.ghi");
  run.add(ghi, "ghi");
  addAll();
  startOwn({"abc", "def"});
  EXPECT_EQ(g_adeTreeFileSuffix, ".def");
}

// A saved directory serves the trees that are loaded later.
TEST_F(Start, TreeDirectorySavedInATree)
{
  std::filesystem::create_directory(run.path("sub"));
  stxGlobalOption(abc, TED_BACK_END, "-S=" + run.path("sub"));
  stxImport(abc, "Def", "def", true);
  run.add(abc, "abc");
  run.add(def, "sub/def");
  startOwn({"abc"});
  EXPECT_THAT(prefixes(), ElementsAre("abc", "def"));
  EXPECT_EQ(stxDir, run.dir.path) << "the command line has the last word";
}

TEST_F(Start, PredefinedModuleHasNoCommandLine)
{
  stxImport(abc, "ISO8824", "", true);
  stxImport(abc, "Def", "def", true);
  addAll();
  setBackendVerbosity(1);
  EXPECT_THAT(saidByStart({"abc"}),
              testing::EndsWith("  Parsing command line options ...\n"
                                "  abc  def\n"));
  EXPECT_THAT(prefixes(), ElementsAre("abc", "", "def"));
  ModRec *predefined = bOfModRList->next;
  EXPECT_EQ(predefined->treeStatus, TREE_PREDEFINED);
  EXPECT_EQ(predefined->commandLineTed.last, 0);
}

// --- progress ---------------------------------------------------------------

static const char progressLines[] = "  Parsing command line parameters ...\n"
                                    "  Reading syntax trees ...\n"
                                    "  abc  def\n"
                                    "  Parsing command line options ...\n"
                                    "  abc  def\n";

TEST_F(Start, ProgressLines)
{
  stxImport(abc, "Def", "def", true);
  addAll();
  setBackendVerbosity(1);
  testing::internal::CaptureStdout();
  EXPECT_EQ(saidByStart({"abc"}), progressLines);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(Start, SilentWithoutVerbosity)
{
  stxImport(abc, "Def", "def", true);
  addAll();
  for (int level : {0, -1}) {
    resetStore();
    setBackendVerbosity(level);
    EXPECT_EQ(saidByStart({"abc", "-VERBOSE=2"}), "");
  }
}

// What a line of progress stands ahead of.
TEST_F(Start, ProgressAheadOfFailures)
{
  setBackendVerbosity(1);
  EXPECT_EXIT(startOwn({}), ExitedWithCode(1),
              StrEq("  Parsing command line parameters ...\n"
                    "First line\n\n  third line\n"));
  EXPECT_EXIT(startOwn({"abc"}), ExitedWithCode(2),
              StrEq("  Parsing command line parameters ...\n"
                    "  Reading syntax trees ...\n"
                    "  abc"
                    "\nFATAL ERROR : Syntax tree not found\n"
                    "              abc\n\n"));
  addAll();
  EXPECT_EXIT(
      startOwn({"abc", "-BEO=QUORVEN=PERCOD=9", "-BEO=QUORVEN=VERSION"}),
      ExitedWithCode(0),
      StrEq("  Parsing command line parameters ...\n"
            "  Reading syntax trees ...\n"
            "  abc\n"
            "  Parsing command line options ...\n"
            "  abc"
            "\nWARNING : Option ignored: -BEO=QUORVEN=PERCOD=9\n"));
}

// --- the C toolkit's start --------------------------------------------------

TEST_F(Start, Toolkit)
{
  cSetErrorReportingFunctionFormat("mine (%s);\n");
  setInfValueStri("a", "b", "c", "d");
  localVarCount[1] = 3;
  localVarName[4] = "x";
  addAll();
  run.load({"abc"});
  EXPECT_STREQ(g_errorReportingFunctionFormat,
               "reportError (ASNG_F(asncodg) %s);\n");
  EXPECT_THAT(infValueStri,
              ElementsAre("MIN_LONG", "MAX_LONG", "MINREAL", "MAXREAL"));
  EXPECT_EQ(localVarCount[1], 0);
  EXPECT_EQ(localVarName[4], "");
  EXPECT_EQ(localVarName[0], "a");
  EXPECT_EQ(localVarType[2], "uint32 ");
  EXPECT_EQ(backendName, "QUORVEN");
}

// The variables are set when the options of the trees are known.
TEST_F(Start, ToolkitVariablesByTheFirstModule)
{
  stxGlobalOption(abc, TED_FRONT_END, "-C-GENERATION=SIGNED-CONTROL-MEMBER");
  addAll();
  run.load({"abc", "def"});
  EXPECT_EQ(localVarType[2], "sint32 ");
  resetStore();
  run.load({"def", "abc"});
  EXPECT_EQ(localVarType[2], "uint32 ");
}

TEST_F(Start, CommonStartLeavesTheToolkitAlone)
{
  cSetErrorReportingFunctionFormat("mine (%s);\n");
  setInfValueStri("a", "b", "c", "d");
  addAll();
  startOwn({"abc"});
  EXPECT_STREQ(g_errorReportingFunctionFormat, "mine (%s);\n");
  EXPECT_THAT(infValueStri, ElementsAre("a", "b", "c", "d"));
}
