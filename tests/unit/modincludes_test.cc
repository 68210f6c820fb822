// What the prototype files of a module include of the modules that it
// imports: order, once only, whose names.

#include "cbet/outfile.h"
#include "driver/modfiles.h"
#include "support/loadedrun.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

// Trees "abc", "b", "c", "d" that import one another; "abc" is generated.
struct ModIncludes : testing::Test {
  LoadedRun run;
  StxTree abc = smallTree("Abc", "abc");
  StxTree b = smallTree("Mod-B", "b");
  StxTree c = smallTree("Mod-C", "c");
  StxTree d = smallTree("Mod-D", "d");

  // The prototype files as they are after all includes, without head and
  // guards of their own.
  void open(const std::vector<std::string> &options = {})
  {
    run.saveDirectories(abc);
    run.add(abc, "abc");
    run.add(b, "b");
    run.add(c, "c");
    run.add(d, "d");
    std::vector<std::string> arguments = {"abc"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    run.load(arguments);
    AsnModule module = run.module("abc");
    openModuleFiles(module);
    closeModuleFiles();
  }
  // The names that a file includes, in order.
  std::string included(const char *name) const
  {
    std::string text = run.file(name);
    std::string names;
    static const std::string mark = "#include \"";
    for (size_t at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + 1)) {
      size_t start = at + mark.size();
      names += text.substr(start, text.find('"', start) - start) + " ";
    }
    return names;
  }
};

static const char runTime[] = "asntyp.typ asnper.ext ";

TEST_F(ModIncludes, NoImports)
{
  open();
  EXPECT_EQ(included("abcper.ext"), std::string(runTime) + "abc.typ ");
}

TEST_F(ModIncludes, WholeFile)
{
  stxImport(abc, "Mod-B", "b", true);
  open();
  EXPECT_EQ(run.file("abcper.ext"),
            headOf("Abc", "abcper.ext") +
                "\n#ifndef ABCPER_EXT\n#define ABCPER_EXT\n" +
                includeOf("ASNTYP_TYP", "asntyp.typ") +
                includeOf("ASNPER_EXT", "asnper.ext") +
                includeOf("B_TYP", "b.typ") +
                includeOf("BPER_EXT", "bper.ext") +
                includeOf("ABC_TYP", "abc.typ") + "\n#endif /*ABCPER_EXT*/\n");
  EXPECT_FALSE(run.has("bper.ext")) << "an imported module has no files";
}

TEST_F(ModIncludes, ImportedModulesFirst)
{
  stxImport(abc, "Mod-B", "b", true);
  stxImport(b, "Mod-C", "c", true);
  stxImport(c, "Mod-D", "d", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) +
                "d.typ dper.ext c.typ cper.ext b.typ bper.ext abc.typ ");
}

TEST_F(ModIncludes, OrderOfTheImportEntries)
{
  stxImport(abc, "Mod-D", "d", true);
  stxImport(abc, "Mod-B", "b", true);
  stxImport(abc, "Mod-C", "c", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) +
                "d.typ dper.ext b.typ bper.ext c.typ cper.ext abc.typ ");
}

TEST_F(ModIncludes, OnceAFile)
{
  stxImport(abc, "Mod-B", "b", true);
  stxImport(abc, "Mod-C", "c", true);
  stxImport(abc, "Mod-D", "d", true);
  stxImport(b, "Mod-D", "d", true);
  stxImport(c, "Mod-D", "d", true);
  stxImport(c, "Mod-B", "b", true);
  open({"-PERCOD=2:2"});
  EXPECT_EQ(included("abcpec.ext"),
            std::string(runTime) +
                "d.typ dpec.ext b.typ bpec.ext c.typ cpec.ext abc.typ ");
  // The second file begins anew.
  EXPECT_EQ(included("abcpdc.ext"),
            std::string(runTime) +
                "d.typ dpdc.ext b.typ bpdc.ext c.typ cpdc.ext abc.typ ");
}

TEST_F(ModIncludes, Circles)
{
  stxImport(abc, "Mod-B", "b", true);
  stxImport(b, "Abc", "abc", true);
  stxImport(b, "Mod-C", "c", true);
  stxImport(c, "Mod-B", "b", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) + "c.typ cper.ext b.typ bper.ext abc.typ ");
}

TEST_F(ModIncludes, ImportsWithoutDeclarations)
{
  stxImport(abc, "Mod-B", "b", false);
  stxImport(abc, "Mod-C", "c", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) + "c.typ cper.ext abc.typ ");
}

TEST_F(ModIncludes, PredefinedModule)
{
  stxImport(abc, "ISO8824", "", true);
  stxImport(abc, "Mod-C", "c", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) + "c.typ cper.ext abc.typ ");
}

// Not even what it imports is included through it.
TEST_F(ModIncludes, ModuleWithoutDefinitionsBetween)
{
  b = emptyTree("Mod-B", "b");
  stxImport(abc, "Mod-B", "b", true);
  stxImport(b, "Mod-C", "c", true);
  open();
  EXPECT_EQ(included("abcper.ext"), std::string(runTime) + "abc.typ ");
}

TEST_F(ModIncludes, ReachedBesideAModuleWithoutDefinitions)
{
  b = emptyTree("Mod-B", "b");
  stxImport(abc, "Mod-B", "b", true);
  stxImport(abc, "Mod-D", "d", true);
  stxImport(b, "Mod-C", "c", true);
  stxImport(d, "Mod-C", "c", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) + "c.typ cper.ext d.typ dper.ext abc.typ ");
}

TEST_F(ModIncludes, EntriesMakeDeclarations)
{
  b = emptyTree("Mod-B", "b");
  b.header.nrEntryTypes = 1;
  stxImport(abc, "Mod-B", "b", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) + "b.typ bper.ext abc.typ ");
}

// The imported module's own options name its files.
TEST_F(ModIncludes, SplitOfTheImportedModule)
{
  stxGlobalOption(b, TED_BACK_END, "-PERCOD=2:2");
  stxGlobalOption(c, TED_BACK_END, "-PERCOD=2:0");
  stxGlobalOption(d, TED_BACK_END, "-BERFUNCPREF=yes");
  stxImport(abc, "Mod-B", "b", true);
  stxImport(abc, "Mod-C", "c", true);
  stxImport(abc, "Mod-D", "d", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) +
                "b.typ bpec.ext c.typ d.typ dcod.ext abc.typ ");
}

// The command line is for all modules.
TEST_F(ModIncludes, SplitOfTheCommandLine)
{
  stxImport(abc, "Mod-B", "b", true);
  open({"-PERCOD=0:2", "-BERFUNCPREF=yes"});
  EXPECT_EQ(included("abcenc.ext"),
            std::string(runTime) + "b.typ benc.ext abc.typ ");
  EXPECT_EQ(included("abcdec.ext"),
            std::string(runTime) + "b.typ bdec.ext abc.typ ");
}

// A saved option gives the imported module a file prefix that is not its
// generation prefix, which is the name of its tree.
TEST_F(ModIncludes, GenerationPrefixOfTheImportedModule)
{
  run.add(b, "bg");
  stxGlobalOption(abc, TED_FRONT_END, "-PREFIX=Mod-B:b:bg");
  stxImport(abc, "Mod-B", "bg", true);
  open();
  EXPECT_EQ(included("abcper.ext"),
            std::string(runTime) + "bg.typ bgper.ext abc.typ ");
  EXPECT_STREQ(run.module("bg").rec->filePrefix, "b");
}

// The call-back goes to the file being opened and by its category.
TEST_F(ModIncludes, CallBackAfterOpening)
{
  stxImport(b, "Mod-C", "c", true);
  run.saveDirectories(abc);
  stxImport(abc, "Mod-B", "b", false);
  run.add(abc, "abc");
  run.add(b, "b");
  run.add(c, "c");
  run.load({"abc", "-PERCOD=2:2"});
  AsnModule module = run.module("abc");
  AsnModule imported = run.module("b");
  openPrototypeF(module, 12, 12);
  includeReferencedDeclarations(imported);
  closeF(12);
  EXPECT_EQ(included("abcpdc.ext"),
            std::string(runTime) + "abc.typ c.typ cpdc.ext b.typ bpdc.ext ");
}

// Function files include nothing of other modules.
TEST_F(ModIncludes, FunctionFiles)
{
  stxImport(abc, "Mod-B", "b", true);
  open();
  EXPECT_EQ(included("abcpec.c"), "abcper.ext ");
  EXPECT_EQ(included("abcpdc.c"), "abcper.ext ");
}
