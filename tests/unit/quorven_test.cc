// The run: banner, modules, end, exit status, and what it leaves behind. Whole
// runs happen in child processes.

#include "base/strings.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "driver/meta.h"
#include "driver/modfiles.h"
#include "driver/quorven.h"
#include "driver/usagetext.h"
#include "per/variant.h"
#include "support/loadedrun.h"
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <new>
#include <set>
#include <string>

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// Trees "abc" and "def", whose files go into the directory.
struct Quorven : testing::Test {
  LoadedRun run;
  StxTree abc = smallTree("Abc-Mod", "abc");
  StxTree def = smallTree("Def-Mod", "def");

  void addAll()
  {
    run.saveDirectories(abc);
    run.saveDirectories(def);
    run.add(abc, "abc");
    run.add(def, "def");
  }
  ProcessResult runAll(const std::vector<std::string> &arguments)
  {
    addAll();
    return run.run(arguments);
  }
  // All files but the trees.
  std::set<std::string> files() const
  {
    std::set<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(run.dir.path))
      if (entry.path().extension() != ".stx")
        names.insert(entry.path().filename());
    return names;
  }
};

static std::string banner()
{
  return "\nQUORVEN Version 1.01.3 for ZELK Version 2.13\n" +
         formatToolCopyright() + "\n\n";
}

static const char done[] = "QUORVEN>>> done\n";

// --- texts ------------------------------------------------------------------

TEST(FormatToolCopyright, LinesOfTheBanner)
{
  const std::string &text = formatToolCopyright();
  EXPECT_THAT(text, HasSubstr("(c)"));
  EXPECT_THAT(text, HasSubstr("."));
  EXPECT_EQ(text.find('\xA9'), std::string::npos);
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '.')
      continue;
    EXPECT_EQ(text.substr(i + 1, 1), "\n") << i;
    EXPECT_NE(text.substr(i + 2, 1), " ") << i;
  }
  // A line end stands behind a "." and nowhere else.
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'),
            std::count(text.begin(), text.end(), '.'));
  EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) {
    return c == '\n' || isPrintableChar(c);
  }));
}

TEST(FormatToolCopyright, MadeOnce)
{
  const std::string &text = formatToolCopyright();
  std::string copy = text;
  EXPECT_EQ(&formatToolCopyright(), &text);
  EXPECT_EQ(formatToolCopyright(), copy);
}

TEST_F(Quorven, BannerAndDoneByVerbosity)
{
  addAll();
  run.load({"abc"});
  AsnModule module = run.module("abc");
  for (int verbosity : {0, 1, 2}) {
    setMetaVerbosity(module, verbosity);
    testing::internal::CaptureStdout();
    printProgInfo(module);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              verbosity ? banner() : "");
    testing::internal::CaptureStdout();
    printDone(module);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), verbosity ? done : "");
  }
}

TEST_F(Quorven, BannerAndDoneByLevel)
{
  addAll();
  run.load({"abc"});
  AsnModule module = run.module("abc");
  for (int level : {1, 2, 3, 4}) {
    verboseEx = level;
    testing::internal::CaptureStdout();
    printProgInfo(module);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), banner()) << level;
    testing::internal::CaptureStdout();
    printDone(module);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), level >= 3 ? done : "")
        << level;
  }
}

TEST_F(Quorven, BannerNamesTheBackend)
{
  addAll();
  run.load({"abc"});
  AsnModule module = run.module("abc");
  backendName = "OWN";
  backendVersion = 1205;
  backendPatchLevel = 0;
  testing::internal::CaptureStdout();
  printProgInfo(module);
  EXPECT_THAT(testing::internal::GetCapturedStdout(),
              StartsWith("\nOWN Version 12.05 for ZELK Version 2.13\n"));
}

// --- whole runs -------------------------------------------------------------

TEST_F(Quorven, OneModule)
{
  ProcessResult result = runAll({"abc"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, banner() + done);
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(files(), ElementsAre("abcpdc.c", "abcpec.c", "abcper.ext"));
  for (const char *name : {"abcpec.c", "abcpdc.c", "abcper.ext"}) {
    std::string text = run.file(name);
    EXPECT_THAT(text, StartsWith("/*******************************************"
                                 "*********************\n"
                                 " * Processed by QUORVEN 1.01.3 on "));
    EXPECT_THAT(text, HasSubstr("\n * Syntax file processed by ZELK 2.13 on "
                                "01.02.2003 at 4:05.06\n"
                                " * ASN.1 module = Abc_Mod\n"
                                " * FILE = " +
                                std::string(name) + "\n"));
  }
  EXPECT_THAT(run.file("abcper.ext"), EndsWith("\n#endif /*ABCPER_EXT*/\n"));
}

TEST_F(Quorven, TwoModules)
{
  ProcessResult result = runAll({"abc", "def"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, banner() + done);
  EXPECT_THAT(files(), ElementsAre("abcpdc.c", "abcpec.c", "abcper.ext",
                                   "defpdc.c", "defpec.c", "defper.ext"));
}

TEST_F(Quorven, TwoModulesVerbosely)
{
  ProcessResult result = runAll({"abc", "def", "-VERBOSE=2"});
  EXPECT_EQ(result.out, banner() +
                            "QUORVEN>>> generating Abc_Mod\n"
                            "QUORVEN>>> generating Def_Mod\n" +
                            done);
  EXPECT_EQ(result.err, "");
}

TEST_F(Quorven, Quietly)
{
  ProcessResult result = runAll({"abc", "def", "-VERBOSE=0"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "");
}

TEST_F(Quorven, FirstNamedModuleDecidesOnTheBanner)
{
  stxGlobalOption(abc, TED_BACK_END, "-VERBOSE=quiet");
  stxGlobalOption(def, TED_BACK_END, "-VERBOSE=verbose");
  addAll();
  EXPECT_EQ(run.run({"abc", "def"}).out, "QUORVEN>>> generating Def_Mod\n");
  EXPECT_EQ(run.run({"def", "abc"}).out,
            banner() + "QUORVEN>>> generating Def_Mod\n" + done);
}

TEST_F(Quorven, LevelsOfV)
{
  addAll();
  std::string generating = "QUORVEN>>> generating Abc_Mod\n";
  const std::string ignored = "\nWARNING : Option ignored: -PERCOD=9\n";
  const struct {
    const char *level;
    std::string out;
    std::string err;
  } rows[] = {
      {"-V=1", banner(), ""},
      {"-V=2", banner(), ignored},
      {"-V=3", banner() + generating + done, ignored},
      {"-V=4", banner() + generating + done, ignored},
  };
  for (const auto &[level, out, err] : rows) {
    ProcessResult result = run.run({"abc", level, "-VERBOSE=2", "-PERCOD=9"});
    EXPECT_EQ(result.status, 0) << "warnings leave the status";
    EXPECT_EQ(result.out, out) << level;
    EXPECT_EQ(result.err, err) << level;
  }
}

TEST_F(Quorven, ImportedModuleHasNoFiles)
{
  stxImport(abc, "Def-Mod", "def", true);
  EXPECT_EQ(runAll({"abc", "-VERBOSE=2"}).out,
            banner() + "QUORVEN>>> generating Abc_Mod\n" + done);
  EXPECT_THAT(files(), ElementsAre("abcpdc.c", "abcpec.c", "abcper.ext"));
}

TEST_F(Quorven, ModuleWithoutDefinitions)
{
  abc = emptyTree("Abc-Mod", "abc");
  ProcessResult result = runAll({"abc", "-VERBOSE=2"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, banner() + "QUORVEN>>> generating Abc_Mod\n" + done);
  EXPECT_THAT(files(), IsEmpty());
}

TEST_F(Quorven, PrototypesAlone)
{
  EXPECT_EQ(runAll({"abc", "-PERCOD=0:1"}).status, 0);
  EXPECT_THAT(files(), ElementsAre("abcper.ext"));
}

TEST_F(Quorven, ReturnsZero)
{
  addAll();
  std::string directory = "-S=" + run.dir.path;
  ProcessResult result = runApart([&] {
    std::string name = "quorven", prefix = "abc";
    char *vector[] = {name.data(), directory.data(), prefix.data(), nullptr};
    return quorven_main(3, vector) == 0 ? 33 : 34;
  });
  EXPECT_EQ(result.status, 33);
}

TEST_F(Quorven, StateOfTheRun)
{
  addAll();
  std::string directory = "-S=" + run.dir.path;
  // Status: the number of the first thing that is not as it should be.
  ProcessResult result = runApart([&] {
    std::string name = "quorven", prefix = "abc";
    char *vector[] = {name.data(), directory.data(), prefix.data(), nullptr};
    quorven_main(3, vector);
    if (strcmp(g_errorReportingFunctionFormat,
               "asnPERError (ASNG_F(asnperg) %s);\n") != 0)
      return 1;
    if (backendName != "QUORVEN" || backendVersion != 101 ||
        backendPatchLevel != 3 || backendUsage != quorvenUsage)
      return 2;
    if (g_adeTreeFileSuffix != ".apd")
      return 3;
    for (const OutFile &file : fArr)
      if (file.fp)
        return 4;
    return 0;
  });
  EXPECT_EQ(result.status, 0);
}

// --- ends without a run -----------------------------------------------------

static std::string usageLines()
{
  std::string text;
  for (const char *const *line = quorvenUsage; *line; ++line)
    text += std::string(*line) + "\n";
  return text;
}

TEST_F(Quorven, NoModule)
{
  for (const std::vector<std::string> &arguments :
       {std::vector<std::string>{}, {"-VERBOSE=2"}, {"-PERCOD=1:1", "-"}}) {
    ProcessResult result = runAll(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, usageLines());
    EXPECT_THAT(files(), IsEmpty());
  }
}

TEST_F(Quorven, Version)
{
  addAll();
  // What follows, and what went before, makes no difference.
  for (const std::vector<std::string> &arguments :
       {std::vector<std::string>{"-VERSION"},
        {"-VERSION", "none", "-PREFIXLEN=x"},
        {"-version", "abc"},
        {"abc", "-VERSION"},
        {"-VERSION", "+" + run.path("none.opt")}}) {
    ProcessResult result = run.run(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out,
                StartsWith("\nQUORVEN version 1.01.3 for ZELK version 2.13\n"));
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(files(), IsEmpty());
  }
}

// --- fatal ends -------------------------------------------------------------

TEST_F(Quorven, MissingTree)
{
  ProcessResult result = runAll({"abc", "none"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "\nFATAL ERROR : Syntax tree not found\n"
                        "              none\n\n");
  EXPECT_THAT(files(), IsEmpty()) << "all trees are read before anything";
}

TEST_F(Quorven, FatalErrorsPrintAtLevelOne)
{
  EXPECT_EQ(runAll({"none", "-V=1"}).err,
            "\nFATAL ERROR : Syntax tree not found\n"
            "              none\n\n");
}

// The files of the module before are whole, and what was begun stays.
TEST_F(Quorven, FatalErrorInTheSecondModule)
{
  run.saveDirectories(abc);
  run.add(abc, "abc");
  stxGlobalOption(def, TED_FRONT_END, "-C=" + run.path("none"));
  stxGlobalOption(def, TED_FRONT_END, "-H=" + run.dir.path);
  run.add(def, "def");
  ProcessResult result = run.run({"abc", "def"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, banner()) << "no closing line";
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not open file for writing\n"
                        "              " +
                            run.path("none/defpec.c") + "\n\n");
  EXPECT_THAT(files(),
              ElementsAre("abcpdc.c", "abcpec.c", "abcper.ext", "defper.ext"));
  EXPECT_THAT(run.file("abcper.ext"), EndsWith("\n#endif /*ABCPER_EXT*/\n"));
  EXPECT_THAT(run.file("defper.ext"),
              EndsWith(includeOf("DEF_TYP", "def.typ")));
}

TEST_F(Quorven, FullDisk)
{
  addAll();
  std::filesystem::create_symlink("/dev/full", run.path("abcpec.c"));
  ProcessResult result = run.run({"abc"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, banner());
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not close file\n"
                        "              " +
                            run.path("abcpec.c") + "\n\n");
}

// One file for both sides: what the decoder calls stands behind all that the
// encoder does.
TEST_F(Quorven, EncoderAheadOfTheDecoder)
{
  for (const char *entryName : {"First", "Second"}) {
    TNode entry = stxNewTNode(TYP_BOOLEAN);
    entry.entryFlags = 0x4C;  // for encoder and decoder
    stxDefineType(abc, entryName, entry);
  }
  EXPECT_EQ(runAll({"abc", "-PERCOD=1:1"}).status, 0);
  std::string text = run.file("abcper.c");
  size_t lastEncoder = text.rfind(" pe_");
  size_t firstDecoder = text.find(" pd_");
  ASSERT_NE(lastEncoder, std::string::npos);
  ASSERT_NE(firstDecoder, std::string::npos);
  EXPECT_LT(lastEncoder, firstDecoder);
}

// Each file is full until the one before it in the order of closing was not.
TEST_F(Quorven, OrderOfClosing)
{
  addAll();
  const char *const names[] = {"abcpec.c", "abcpdc.c", "abcpec.ext",
                               "abcpdc.ext", "run.log"};
  for (const char *name : names)
    std::filesystem::create_symlink("/dev/full", run.path(name));
  std::vector<std::string> arguments = {"abc", "-PERCOD=2:2",
                                        "-LOGFILE=" + run.path("run.log")};
  for (const char *name : names) {
    EXPECT_EQ(run.run(arguments).err, "\nFATAL ERROR : Can not close file\n"
                                      "              " +
                                          run.path(name) + "\n\n");
    std::filesystem::remove(run.path(name));
  }
  EXPECT_EQ(run.run(arguments).status, 0);
}

// What `new` asks for when it gets no memory.
TEST_F(Quorven, NoMemoryForAnObject)
{
  addAll();
  std::string directory = "-S=" + run.dir.path;
  ProcessResult result = runApart([&] {
    std::string name = "quorven", prefix = "abc";
    char *vector[] = {name.data(), directory.data(), prefix.data(), nullptr};
    quorven_main(3, vector);
    if (std::new_handler handler = std::get_new_handler())
      handler();
    return 33;
  });
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not allocate space\n\n");
}

// --- side files -------------------------------------------------------------

TEST_F(Quorven, SideFiles)
{
  addAll();
  std::vector<std::string> arguments = {"abc", "def", "-ADE-PREFIX=proj",
                                        "-ADE-DIRECTORY=" + run.dir.path};
  EXPECT_EQ(run.run(arguments).status, 0);
  EXPECT_TRUE(run.has("proj.acs"));
  std::string tree = run.file("proj.apd");
  EXPECT_THAT(tree, HasSubstr("Type"));
  // A node for each module, "_" shown as "-".
  for (const char *text : {"ASN.1 module", "Abc-Mod", "Def-Mod"})
    EXPECT_THAT(tree, HasSubstr(text));

  std::filesystem::remove(run.path("proj.apd"));
  arguments.push_back("-TREE-FILE-SUFFIX=.xy");
  EXPECT_EQ(run.run(arguments).status, 0);
  EXPECT_FALSE(run.has("proj.apd"));
  EXPECT_EQ(run.file("proj.xy"), tree);
}

TEST_F(Quorven, NoSideFilesWithoutAPrefix)
{
  EXPECT_EQ(runAll({"abc", "-ADE-DIRECTORY=" + run.dir.path}).status, 0);
  EXPECT_THAT(files(), ElementsAre("abcpdc.c", "abcpec.c", "abcper.ext"));
}

// The tree comes ahead of the closing line, the summary ahead of the banner.
TEST_F(Quorven, SideFilesThatFail)
{
  addAll();
  std::vector<std::string> arguments = {"abc", "-ADE-PREFIX=proj",
                                        "-ADE-DIRECTORY=" + run.dir.path};
  std::filesystem::create_directory(run.path("proj.apd"));
  ProcessResult result = run.run(arguments);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, banner());
  EXPECT_EQ(result.err, "\nFATAL ERROR : Can not open file for writing\n"
                        "              " +
                            run.path("proj.apd") + "\n\n");
  EXPECT_EQ(run.file("proj.acs"), result.err);
  EXPECT_THAT(run.file("abcper.ext"), EndsWith("\n#endif /*ABCPER_EXT*/\n"));

  std::filesystem::remove(run.path("proj.acs"));
  std::filesystem::create_directory(run.path("proj.acs"));
  result = run.run(arguments);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
}

TEST_F(Quorven, FatalErrorInTheSummary)
{
  run.saveDirectories(abc);
  stxGlobalOption(def, TED_FRONT_END, "-C=" + run.path("none"));
  run.add(abc, "abc");
  run.add(def, "def");
  ProcessResult result =
      run.run({"abc", "def", "-PERCOD=2:0", "-ADE-PREFIX=proj",
               "-ADE-DIRECTORY=" + run.dir.path});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(run.file("proj.acs"), HasSubstr("Can not open file for writing"));
  EXPECT_THAT(run.file("proj.acs"), HasSubstr(run.path("none/defpec.c")));
}

// --- one module -------------------------------------------------------------

TEST_F(Quorven, GenModule)
{
  std::string log = run.path("run.log");
  stxGlobalOption(def, TED_BACK_END, "-ENCODING-VARIANT=basic-unaligned");
  stxGlobalOption(def, TED_BACK_END, "-PERCOD=1:2");
  stxGlobalOption(def, TED_BACK_END, "-LOGFILE=" + log);
  addAll();
  run.load({"abc", "def", "-VERBOSE=2"});
  perSetEncodingVariant(0);
  stampGHD = stampGIP = stampGAD = 500;
  AsnModule module = run.module("def");
  cMP = module.rec;
  // The log is begun once a process: in this one by nobody else.
  ProcessResult result = runApart([&] {
    genModule(module);
    printf("variant %d\n", perGetEncodingVariant());
    printf("stamps %d %d %d\n", stampGHD, stampGIP, stampGAD);
    printf("%d %d %d\n", fiEnc, fiEncE, fiLog != nullptr);
    return 0;
  });
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "QUORVEN>>> generating Def_Mod\n"
                        "variant 1\n"
                        "stamps 12 13 14\n"
                        "0 0 0\n")
      << "6 to 8 at first, moved on by the encoder and by the decoder";
  // The line names the files, so they were open when it was written.
  EXPECT_EQ(run.file("run.log"), "def.stx: " + run.path("defper.c") + " " +
                                     run.path("defpec.ext") + " " +
                                     run.path("defpdc.ext") + "\n");
  EXPECT_THAT(files(),
              ElementsAre("defpdc.ext", "defpec.ext", "defper.c", "run.log"));
}

TEST_F(Quorven, GenModuleSetsTheVariantEachTime)
{
  addAll();
  run.load({"abc"});
  perSetEncodingVariant(1);
  AsnModule module = run.module("abc");
  cMP = module.rec;
  genModule(module);
  EXPECT_EQ(perGetEncodingVariant(), 0);
}
