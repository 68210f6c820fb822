// The options of this back-end's block, by module, and the stamps.

#include "ade/summary.h"
#include "base/diag.h"
#include "driver/meta.h"
#include "support/loadedrun.h"
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

using testing::ElementsAre;
using testing::StartsWith;

// A record with the defaults, and a module that has it.
struct MetaOptions : testing::Test {
  LoadedRun run;
  BEModMetaRec &record = *newBEModMetaRec();
  ModRec modRec;
  AsnModule module;

  MetaOptions()
  {
    backendName = "QUORVEN";
    backendVersion = 101;
    backendPatchLevel = 3;
    modRec.beMeta = &record;
    module.rec = &modRec;
  }
  ~MetaOptions() override { deleteBEModMetaRec(&record); }
  MetaOptions(const MetaOptions &) = delete;

  bool isGood(const std::string &option)
  {
    return globalBEOptionOK(record, option.c_str());
  }
  // Of a meta record's generation array.
  std::string split() const
  {
    std::string digits;
    for (uint8_t entry : record.genArr)
      digits += static_cast<char>('0' + entry);
    return digits;
  }
};

//                              01234567890123456
static const char defaultSplit[] = "00000210000210000";

// --- the record -------------------------------------------------------------

TEST_F(MetaOptions, Defaults)
{
  EXPECT_EQ(record.verbosity, 1);
  EXPECT_EQ(record.logFile, "");
  EXPECT_EQ(split(), defaultSplit);
  EXPECT_EQ(record.berFuncPref, 0);
  EXPECT_EQ(record.encodingVariant, 0);
  EXPECT_EQ(record.variantFuncPref, 0);
  EXPECT_EQ(record.generateEmbeddingOptions, 0);
  EXPECT_EQ(record.encodingCheckDefaultValues, 0);
  EXPECT_EQ(record.decodingCatchDefaultErrors, 0);
  EXPECT_EQ(record.decodingFillDefaultValues, 0);
  EXPECT_EQ(record.defaultValuesWarningDisable, 0);
}

TEST_F(MetaOptions, DefaultsAfterReuse)
{
  BEModMetaRec *first = newBEModMetaRec();
  first->verbosity = 2;
  first->logFile = "old.log";
  first->genArr[5] = 0;
  first->berFuncPref = 1;
  deleteBEModMetaRec(first);
  BEModMetaRec *second = newBEModMetaRec();
  EXPECT_EQ(second, first) << "the record comes from a free list";
  EXPECT_EQ(second->verbosity, 1);
  EXPECT_EQ(second->logFile, "");
  EXPECT_EQ(second->genArr[5], 2);
  EXPECT_EQ(second->berFuncPref, 0);
  deleteBEModMetaRec(second);
}

TEST_F(MetaOptions, InitLeavesTheRecordAlone)
{
  record.verbosity = 2;
  initBEModMetaRec();
  EXPECT_EQ(record.verbosity, 2);
}

TEST_F(MetaOptions, Getters)
{
  record.verbosity = 11;
  record.logFile = "x.log";
  record.berFuncPref = 12;
  record.variantFuncPref = 13;
  record.generateEmbeddingOptions = 14;
  record.encodingCheckDefaultValues = 15;
  record.decodingCatchDefaultErrors = 16;
  record.decodingFillDefaultValues = 17;
  record.defaultValuesWarningDisable = 18;
  EXPECT_EQ(getMetaVerbosity(module), 11);
  EXPECT_STREQ(getMetaLogFile(module), "x.log");
  EXPECT_EQ(getMetaGenArr(module), record.genArr);
  EXPECT_EQ(getMetaBERFuncPref(module), 12);
  EXPECT_EQ(getMetaVariantFuncPref(module), 13);
  EXPECT_EQ(getMetaGenerateEmbeddingOptions(module), 14);
  EXPECT_EQ(getMetaEncodingCheckDefaultValues(module), 15);
  EXPECT_EQ(getMetaDecodingCatchDefaultErrors(module), 16);
  EXPECT_EQ(getMetaDecodingFillDefaultValues(module), 17);
  EXPECT_EQ(getMetaDefaultValuesWarningDisable(module), 18);
}

TEST_F(MetaOptions, NoLogFile)
{
  EXPECT_EQ(getMetaLogFile(module), nullptr);
}

TEST_F(MetaOptions, SetVerbosity)
{
  setMetaVerbosity(module, 2);
  EXPECT_EQ(record.verbosity, 2);
  EXPECT_EQ(getMetaVerbosity(module), 2);
}

TEST_F(MetaOptions, EncodingVariantOfAModule)
{
  const struct {
    uint8_t stored;
    int variant;
  } rows[] = {{0, 0}, {1, 1}, {2, 2}, {3, 2}, {255, 2}};
  for (const auto &[stored, variant] : rows) {
    record.encodingVariant = stored;
    EXPECT_EQ(getMetaEncodingVariant(module), variant);
  }
}

// --- the block --------------------------------------------------------------

static const struct {
  const char *name;
  uint8_t BEModMetaRec::*field;
} yesNoOptions[] = {
    {"BERFUNCPREF=", &BEModMetaRec::berFuncPref},
    {"ENCODING-VARIANT-FUNC-PREF=", &BEModMetaRec::variantFuncPref},
    {"GENERATE-EMBEDDING-OPTIONS=", &BEModMetaRec::generateEmbeddingOptions},
    {"ENCODING-CHECK-DEFAULT-VALUES=",
     &BEModMetaRec::encodingCheckDefaultValues},
    {"DECODING-CATCH-DEFAULT-ERRORS=",
     &BEModMetaRec::decodingCatchDefaultErrors},
    {"DECODING-FILL-DEFAULT-VALUES=", &BEModMetaRec::decodingFillDefaultValues},
    {"DEFAULT-VALUES-WARNINGS-DISABLE=",
     &BEModMetaRec::defaultValuesWarningDisable},
};

// Each option sets its own field and no other.
TEST_F(MetaOptions, YesNoOptions)
{
  for (const auto &option : yesNoOptions) {
    for (const char *start : {"-", "-BEO=QUORVEN="}) {
      std::string name = std::string(start) + option.name;
      for (const char *yes : {"1", "yes", "YES", "True"}) {
        record.*option.field = 0;
        EXPECT_TRUE(isGood(name + yes)) << name << yes;
        for (const auto &other : yesNoOptions)
          EXPECT_EQ(record.*other.field, &other == &option) << name << yes;
      }
      for (const char *no : {"0", "no", "No", "FALSE"}) {
        record.*option.field = 1;
        EXPECT_TRUE(isGood(name + no)) << name << no;
        EXPECT_EQ(record.*option.field, 0) << name << no;
      }
      for (const char *bad : {"", "2", "y", "yes ", "01", "on"}) {
        record.*option.field = 7;
        EXPECT_FALSE(isGood(name + bad)) << name << bad;
        EXPECT_EQ(record.*option.field, 7) << name << bad;
      }
      record.*option.field = 0;
    }
  }
  EXPECT_EQ(record.verbosity, 1);
  EXPECT_EQ(record.encodingVariant, 0);
}

TEST_F(MetaOptions, Verbose)
{
  const struct {
    const char *value;
    int verbosity;
  } rows[] = {{"0", 0},     {"1", 1},       {"2", 2},
              {"QUIET", 0}, {"quiet", 0},   {"terse", 1},
              {"Terse", 1}, {"verbose", 2}, {"VERBOSE", 2}};
  for (const auto &[value, verbosity] : rows) {
    record.verbosity = 9;
    EXPECT_TRUE(isGood(std::string("-VERBOSE=") + value)) << value;
    EXPECT_EQ(record.verbosity, verbosity) << value;
  }
  for (const char *bad : {"", "3", "-1", "02", "loud", "quiet ", "yes"}) {
    EXPECT_FALSE(isGood(std::string("-VERBOSE=") + bad)) << bad;
    EXPECT_EQ(record.verbosity, 2) << bad;
  }
}

TEST_F(MetaOptions, EncodingVariant)
{
  const struct {
    const char *value;
    int variant;
  } rows[] = {{"1", 1},
              {"0", 0},
              {"basic-unaligned", 1},
              {"basic-aligned", 0},
              {"Basic-Unaligned", 1}};
  for (const auto &[value, variant] : rows) {
    EXPECT_TRUE(isGood(std::string("-ENCODING-VARIANT=") + value)) << value;
    EXPECT_EQ(record.encodingVariant, variant) << value;
  }
  for (const char *bad : {"", "2", "unaligned", "basic", "yes"}) {
    EXPECT_FALSE(isGood(std::string("-ENCODING-VARIANT=") + bad)) << bad;
    EXPECT_EQ(record.encodingVariant, 1) << bad;
  }
}

TEST_F(MetaOptions, LogFile)
{
  for (const std::string &name :
       {std::string("logs/run.log"), std::string("a"), std::string("Ab9"),
        std::string("./\\[]_-"), std::string(1025, 'x')}) {
    EXPECT_TRUE(isGood("-LOGFILE=" + name)) << name;
    EXPECT_EQ(record.logFile, name);
  }
  record.logFile = "kept";
  for (const std::string &name :
       {std::string(), std::string("a b"), std::string("a:b"),
        std::string("~a"), std::string("a+"), std::string("\xE4"),
        std::string(1026, 'x')}) {
    EXPECT_FALSE(isGood("-LOGFILE=" + name)) << name;
    EXPECT_EQ(record.logFile, "kept");
  }
}

TEST_F(MetaOptions, Percod)
{
  const struct {
    const char *value;
    const char *entries;
  } rows[] = {
      //               0123456789012345 6
      {"1:1", "00000110000110000"},
      {"2:2", "00000220000220000"},
      {"0:1", "00000010000010000"},
      {"0", "00000010000010000"},
      {"none:none", "00000000000000000"},
      {"Combined:SEPARATE", "00000120000120000"},
      {":2", "00000220000220000"},
      {"1:", "00000110000110000"},
      // The third entry has no effect, but is taken.
      {"2:1:2", "00000212000212000"},
      {"::1", "00000211000211000"},
  };
  for (const auto &[value, entries] : rows) {
    for (const char *start : {"-", "-BEO=QUORVEN="}) {
      record = BEModMetaRec{};
      EXPECT_TRUE(isGood(std::string(start) + "PERCOD=" + value)) << value;
      EXPECT_EQ(split(), entries) << value;
    }
  }
}

TEST_F(MetaOptions, PercodRefused)
{
  for (const char *value :
       {"", "3", "1:3", "1:2:3", "11", "1:1:1:1", "1;1", "x", "1:x", " 1"}) {
    EXPECT_FALSE(isGood(std::string("-PERCOD=") + value)) << value;
    EXPECT_EQ(split(), defaultSplit) << value;
  }
}

TEST_F(MetaOptions, TreeFileSuffix)
{
  for (const char *suffix : {".apd", ".", "x", "a.b9", "...."}) {
    EXPECT_TRUE(isGood(std::string("-TREE-FILE-SUFFIX=") + suffix)) << suffix;
    EXPECT_EQ(g_adeTreeFileSuffix, suffix);
  }
  for (const char *suffix : {"", ".apdx", ".a-b", "a b", "a/b", "_"}) {
    EXPECT_FALSE(isGood(std::string("-TREE-FILE-SUFFIX=") + suffix)) << suffix;
    EXPECT_EQ(g_adeTreeFileSuffix, "....");
  }
}

TEST_F(MetaOptions, AdeOptions)
{
  EXPECT_TRUE(isGood("-ADE-PREFIX=proj"));
  EXPECT_EQ(adeRecord.prefix, "proj");
  adeRecord.prefix.clear();
  EXPECT_FALSE(isGood("-ADE-PREFIX="));
  EXPECT_FALSE(isGood("-ADE-PREFIX=a/b"));
  EXPECT_FALSE(isGood("-ADE-OTHER=proj"));
  EXPECT_EQ(adeRecord.prefix, "");
}

TEST_F(MetaOptions, Version)
{
  // Without "=", so what follows the name makes no difference.
  for (const char *option :
       {"-VERSION", "-BEO=QUORVEN=VERSION", "-VERSION=1", "-VERSIONED"}) {
    ProcessResult result = runApart([&] { return isGood(option) ? 7 : 8; });
    EXPECT_EQ(result.status, 0) << option;
    EXPECT_THAT(result.out,
                StartsWith("\nQUORVEN version 1.01.3 for ZELK version 2.13\n"));
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 4);
    EXPECT_TRUE(result.out.ends_with("\n\n"));
    EXPECT_NE(result.out.find("1997"), std::string::npos);
    EXPECT_NE(result.out.find("2002"), std::string::npos);
    EXPECT_EQ(result.err, "");
  }
}

TEST_F(MetaOptions, OtherToolsAreNoneOfOurBusiness)
{
  for (const char *option : {"-BEO=OTHER=X", "-BEO=OTHER=PERCOD=1:1", "-BEO=",
                             "-BEO=quorven=PERCOD=1:1", "-BEO=QUORVENPERCOD=1",
                             "-BEO=OTHER=VERSION", "-BEO=//PERCOD=1:1"})
    EXPECT_TRUE(isGood(option)) << option;
  EXPECT_EQ(split(), defaultSplit);
}

// The block knows no case folding, and only whole names.
TEST_F(MetaOptions, UnknownNames)
{
  for (const char *option :
       {"-percod=1:1", "-BEO=QUORVEN=percod=1:1", "-PERCOD", "-PERCOD:1",
        "-XPERCOD=1:1", "-COD=1:1", "-BEO=QUORVEN=", "-", "-INFO=x",
        "-BEO=QUORVEN=BEO=QUORVEN=PERCOD=1:1", "-ENCODING-VARIANT", "-VERBOSE",
        "-LOG=x", "-Version"})
    EXPECT_FALSE(isGood(option)) << option;
  EXPECT_EQ(split(), defaultSplit);
}

// --- what the IDE is told ---------------------------------------------------

struct MetaSummary : MetaOptions {
  MetaSummary() { adeRecord = {"proj", run.dir.path}; }
  std::string summary() const { return run.file("proj.acs"); }
};

TEST_F(MetaSummary, IgnoredOptions)
{
  isGood("-PERCOD=9");
  isGood("-BEO=QUORVEN=NOTHING");
  isGood("-100%s%n");
  EXPECT_EQ(summary(), "(W) Global option ignored: -PERCOD=9\n"
                       "(W) Global option ignored: -BEO=QUORVEN=NOTHING\n"
                       "(W) Global option ignored: -100%s%n\n");
}

TEST_F(MetaSummary, FiftyCharacters)
{
  std::string fifty = "-" + std::string(49, 'X');
  isGood(fifty);
  isGood(fifty + "Y");
  EXPECT_EQ(summary(), "(W) Global option ignored: " + fifty +
                           "\n(W) Global option ignored: " + fifty + "\n");
}

TEST_F(MetaSummary, GoodOptionsAreNotTold)
{
  isGood("-PERCOD=1:1");
  isGood("-BEO=OTHER=X");
  EXPECT_FALSE(run.has("proj.acs"));
}

TEST_F(MetaSummary, SideFilesNotActive)
{
  adeRecord.prefix.clear();
  isGood("-PERCOD=9");
  EXPECT_FALSE(run.has("proj.acs"));
  EXPECT_FALSE(run.has(".acs"));
}

// --- options on their way to the record -------------------------------------

// The tree's lines of kind 2 and the command line, as a run applies them.
struct MetaLoading : testing::Test {
  LoadedRun run;
  StxTree tree = smallTree("Abc", "abc");

  // What loading says on stderr.
  std::string load(const std::vector<std::string> &options)
  {
    run.add(tree, "abc");
    std::vector<std::string> arguments = options;
    arguments.push_back("abc");
    testing::internal::CaptureStderr();
    run.load(arguments);
    return testing::internal::GetCapturedStderr();
  }
  static const BEModMetaRec &record() { return *bOfModRList->beMeta; }
};

TEST_F(MetaLoading, VerboseByNameAndNumber)
{
  EXPECT_EQ(load({"-VERBOSE=verbose"}), "");
  EXPECT_EQ(record().verbosity, 2);
}

TEST_F(MetaLoading, RefusedValueIsDroppedWithAWarning)
{
  EXPECT_EQ(load({"-VERBOSE=3", "-LOGFILE=a b", "-TREE-FILE-SUFFIX=.apdx"}),
            "\nWARNING : Option ignored: -VERBOSE=3\n"
            "\nWARNING : Option ignored: -LOGFILE=a b\n"
            "\nWARNING : Option ignored: -TREE-FILE-SUFFIX=.apdx\n");
  EXPECT_EQ(record().verbosity, 1);
  EXPECT_EQ(record().logFile, "");
}

TEST_F(MetaLoading, BlocksOfTheCommandLine)
{
  EXPECT_EQ(load({"-beo=QUORVEN=PERCOD=1:1", "-BEO=OTHER=X",
                  "-beo=quorven=BERFUNCPREF=yes"}),
            "");
  EXPECT_EQ(record().genArr[5], 1);
  EXPECT_EQ(record().genArr[12], 1);
  EXPECT_EQ(record().berFuncPref, 0);
}

TEST_F(MetaLoading, NoCaseFoldingInsideTheBlock)
{
  EXPECT_EQ(load({"-BEO=QUORVEN=percod=1:1"}),
            "\nWARNING : Option ignored: -BEO=QUORVEN=percod=1:1\n");
  EXPECT_EQ(record().genArr[5], 2);
}

TEST_F(MetaLoading, CommandLineNamesAreFolded)
{
  EXPECT_EQ(load({"-berfuncpref=yes"}), "");
  EXPECT_EQ(record().berFuncPref, 1);
}

TEST_F(MetaLoading, CommandLineHasTheLastWord)
{
  stxGlobalOption(tree, TED_BACK_END, "-PERCOD=0:2");
  stxGlobalOption(tree, TED_BACK_END, "-VERBOSE=quiet");
  EXPECT_EQ(load({"-PERCOD=1"}), "");
  EXPECT_EQ(record().genArr[5], 1);
  EXPECT_EQ(record().genArr[6], 2);
  EXPECT_EQ(record().verbosity, 0);
}

TEST_F(MetaLoading, LinesOfOtherKindsAreNotApplied)
{
  stxGlobalOption(tree, TED_FRONT_END, "-PERCOD=0:0");
  stxGlobalOption(tree, TED_DROPPED, "-PERCOD=0:0");
  stxGlobalOption(tree, TED_EMBEDDING, "-PERCOD=0:0");
  EXPECT_EQ(load({}), "");
  EXPECT_EQ(record().genArr[5], 2);
}

// It acts as soon as it is met, in the middle of loading.
TEST_F(MetaLoading, VersionSavedInATree)
{
  stxGlobalOption(tree, TED_BACK_END, "-VERSION");
  run.add(tree, "abc");
  ProcessResult result = run.run({"abc", "-PERCOD=9"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out, StartsWith("\nQUORVEN version 1.01.3 for ZELK"));
  EXPECT_EQ(result.err, "") << "the command line is not reached";
}

// --- stamps -----------------------------------------------------------------

struct TraversalStamps : testing::Test {
  int saved[3] = {stampGHD, stampGIP, stampGAD};
  ~TraversalStamps() override
  {
    stampGHD = saved[0];
    stampGIP = saved[1];
    stampGAD = saved[2];
  }
  static std::vector<int> all() { return {stampGHD, stampGIP, stampGAD}; }
};

TEST_F(TraversalStamps, ResetAndInit)
{
  resetStamps();
  EXPECT_THAT(all(), ElementsAre(6, 7, 8));
  initStamps();
  EXPECT_THAT(all(), ElementsAre(9, 10, 11));
  initStamps();
  EXPECT_THAT(all(), ElementsAre(12, 13, 14));
  resetStamps();
  EXPECT_THAT(all(), ElementsAre(6, 7, 8));
}

TEST_F(TraversalStamps, ResetAndInitOfTypes)
{
  stampGHD = stampGIP = stampGAD = 0;
  resetTypeStamps();
  EXPECT_THAT(all(), ElementsAre(6, 7, 8));
  initTypeStamps();
  EXPECT_THAT(all(), ElementsAre(9, 10, 11));
  initStamps();
  EXPECT_THAT(all(), ElementsAre(12, 13, 14));
}

// Only the last stamp is carried on.
TEST_F(TraversalStamps, InitStartsFromTheLast)
{
  stampGHD = 100;
  stampGIP = 200;
  stampGAD = 50;
  initStamps();
  EXPECT_THAT(all(), ElementsAre(51, 52, 53));
}

TEST_F(TraversalStamps, BetweenThoseOfLoading)
{
  EXPECT_EQ(stampGenerated, 5);
  EXPECT_EQ(stampImported, 32767);
  resetStamps();
  EXPECT_GT(stampGHD, stampGenerated);
  initStamps();
  EXPECT_LT(stampGAD, stampImported);
}
