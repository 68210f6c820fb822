// The iterator object and the visits of modules.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;

static const char noCallBack[] = "Call-back function not defined.";

// What call-backs have seen: the prefixes in order.
static std::vector<std::string> seen;

struct ModVisits : testing::Test {
  TempDir dir;

  ModVisits()
  {
    resetStore();
    resetParams();
    stxDir = dir.path;
    seen.clear();
  }
  ~ModVisits() override
  {
    resetStore();
    stxDir.clear();
    seen.clear();
  }
  // An import that starts with "-" takes no declarations.
  void write(const std::string &prefix,
             const std::vector<std::string> &imports = {})
  {
    StxTree tree = stxNewTree("Mod-" + prefix, prefix);
    for (const std::string &import : imports) {
      bool uses = import[0] != '-';
      std::string name = uses ? import : import.substr(1);
      if (name == "ISO8824")
        stxImport(tree, name, "iso", uses);
      else
        stxImport(tree, "Mod-" + name, name, uses);
    }
    write(tree, prefix);
  }
  void write(const StxTree &tree, const std::string &prefix)
  {
    stxWrite(tree, (dir.path + prefix + ".stx").c_str());
  }
  ModRec *name(const char *prefix)
  {
    ModRec *module = appendModRec(true);
    setModulePrefixes(*module, prefix, prefix);
    return module;
  }
  void load()
  {
    readAllSyntaxTrees();
    cMP = nullptr;
  }
};

static ModRec *moduleOf(const std::string &prefix)
{
  ModRec *module = bOfModRList;
  while (module && module->generationPrefix != prefix)
    module = module->next;
  return module;
}

// --- objects ----------------------------------------------------------------

TEST_F(ModVisits, NewAsnModule)
{
  StxTree tree = stxNewTree("Mod-a", "a");
  stxSetSource(tree, "src/", "a.asn1");
  write(tree, "a");
  ModRec *a = name("a");
  load();
  EXPECT_EQ(a->options.sourceDirectory, nullptr);
  readRec(a, REC_MNODE, 1);
  mNode.counts[1] = 4711;
  AsnModule *module = newAsnModule(*a);
  EXPECT_EQ(module->rec, a);
  EXPECT_TRUE(module->alive);
  EXPECT_EQ(module->counts,
            static_cast<MNode *>(findRPos(a, REC_MNODE, 1))->counts);
  EXPECT_EQ(mNode.counts[1], 4711);
  EXPECT_STREQ(a->options.sourceDirectory, "src/");
  EXPECT_STREQ(a->options.sourceFileName, "a.asn1");
  for (int cursor : module->cursors.types)
    EXPECT_EQ(cursor, 0);
  EXPECT_EQ(cMP, nullptr);
  delAsnModule(module);
  delAsnModule(nullptr);
}

TEST_F(ModVisits, SourceIndexesMayBeZero)
{
  StxTree tree = stxNewTree("Mod-a", "a");
  tree.header.sourceDirectory = tree.header.sourceFileName = 0;
  write(tree, "a");
  ModRec *a = name("a");
  load();
  delAsnModule(newAsnModule(*a));
  EXPECT_STREQ(a->options.sourceDirectory, "");
  EXPECT_STREQ(a->options.sourceFileName, "");
}

TEST_F(ModVisits, SourceIndexOutOfRange)
{
  StxTree tree = stxNewTree("Mod-a", "a");
  tree.header.sourceFileName = 1000;
  write(tree, "a");
  ModRec *a = name("a");
  load();
  EXPECT_EXIT(newAsnModule(*a), ExitedWithCode(2), "Can not read record");
}

TEST_F(ModVisits, FirstModule)
{
  write("a");
  ModRec *a = name("a");
  load();
  AsnModule *module = firstModule(a);
  EXPECT_EQ(cMP, a);
  EXPECT_EQ(module->rec, a);
  delAsnModule(module);
  EXPECT_EQ(firstModule(nullptr), nullptr);
  EXPECT_EQ(cMP, nullptr);
}

TEST_F(ModVisits, NextModule)
{
  write("a", {"c"});
  write("b");
  write("c");
  ModRec *a = name("a"), *b = name("b");
  load();
  AsnModule *module = firstModule(a);
  module->cursors.types[1] = 5;
  EXPECT_EQ(nextModule(module, nullptr), module);
  EXPECT_EQ(module->rec, b);
  EXPECT_EQ(cMP, b);
  EXPECT_EQ(module->cursors.types[1], 0);
  EXPECT_TRUE(module->alive);
  // b is the last named one; a record leads further nevertheless.
  EXPECT_EQ(nextModule(module, moduleOf("c")), module);
  EXPECT_EQ(module->rec, moduleOf("c"));
  EXPECT_EQ(cMP, moduleOf("c"));
  EXPECT_EQ(nextModule(module, b), module);
  EXPECT_EQ(nextModule(module, nullptr), nullptr);
  EXPECT_EQ(cMP, nullptr);
}

// --- visits -----------------------------------------------------------------

static void noteModule(AsnModule &module)
{
  seen.push_back(module.rec->generationPrefix);
  EXPECT_EQ(cMP, module.rec);
  EXPECT_TRUE(module.alive);
}

TEST_F(ModVisits, ForEachModule)
{
  write("a", {"c"});
  write("b");
  write("c");
  name("a");
  name("b");
  load();
  forEachModule(noteModule);
  EXPECT_THAT(seen, ElementsAre("a", "b"));
  EXPECT_EQ(cMP, nullptr);
}

TEST_F(ModVisits, ForEachModuleWhateverTheCallBackDoes)
{
  write("a");
  write("b");
  name("a");
  name("b");
  load();
  forEachModule([](AsnModule &module) {
    noteModule(module);
    cMP = nullptr;
  });
  EXPECT_THAT(seen, ElementsAre("a", "b"));
}

TEST_F(ModVisits, ModuleWithoutDefinitionsIsVisited)
{
  write("a");
  ModRec *a = name("a");
  load();
  EXPECT_EQ(a->options.nrEntryTypes, 0);
  EXPECT_EQ(a->options.nrVisibleTypes, 0);
  forEachModule(noteModule);
  EXPECT_THAT(seen, ElementsAre("a"));
}

TEST_F(ModVisits, ForFirstModule)
{
  write("a");
  write("b");
  name("a");
  ModRec *b = name("b");
  load();
  cMP = b;
  forFirstModule(noteModule);
  EXPECT_THAT(seen, ElementsAre("a"));
  EXPECT_EQ(cMP, b);
}

TEST_F(ModVisits, VisitsOfNothing)
{
  forEachModule(noteModule);
  forFirstModule(noteModule);
  EXPECT_TRUE(seen.empty());
}

TEST_F(ModVisits, ForModuleOfRecord)
{
  write("a", {"ISO8824"});
  write("b");
  ModRec *a = name("a"), *b = name("b");
  load();
  cMP = a;
  forModuleOfRecord(b, noteModule);
  EXPECT_THAT(seen, ElementsAre("b"));
  EXPECT_EQ(cMP, a);
  forModuleOfRecord(moduleOf("iso"), noteModule);
  EXPECT_THAT(seen, ElementsAre("b"));
  EXPECT_EXIT(forModuleOfRecord(nullptr, noteModule), ExitedWithCode(2),
              "Internal error");
  EXPECT_EXIT(forModuleOfRecord(b, nullptr), ExitedWithCode(2), noCallBack);
}

TEST_F(ModVisits, VisitsNeedACallBack)
{
  write("a");
  ModRec *a = name("a");
  load();
  EXPECT_EXIT(forEachModule(nullptr), ExitedWithCode(2), noCallBack);
  EXPECT_EXIT(forFirstModule(nullptr), ExitedWithCode(2), noCallBack);
  AsnModule *module = newAsnModule(*a);
  EXPECT_EXIT(forEachExportingModule(*module, nullptr), ExitedWithCode(2),
              noCallBack);
  delAsnModule(module);
}

// --- exporting modules ------------------------------------------------------

static void noteExporting(AsnModule &module)
{
  noteModule(module);
  forEachExportingModule(module, noteExporting);
}

// As above, but the module is noted when what it imports has been.
static void noteExportingLast(AsnModule &module)
{
  forEachExportingModule(module, noteExportingLast);
  noteModule(module);
}

struct Exporting : ModVisits {
  void visit(const char *prefix, ModuleCallBack *f)
  {
    AsnModule *module = newAsnModule(*moduleOf(prefix));
    forEachExportingModule(*module, f);
    delAsnModule(module);
  }
};

TEST_F(Exporting, InImportOrder)
{
  write("a", {"c", "-d", "ISO8824", "b"});
  for (const char *prefix : {"b", "c", "d"})
    write(prefix, {"e"});
  write("e");
  name("a");
  load();
  visit("a", noteModule);
  EXPECT_THAT(seen, ElementsAre("c", "b"));
  seen.clear();
  visit("e", noteModule);
  EXPECT_TRUE(seen.empty());
}

TEST_F(Exporting, DepthFirst)
{
  write("a", {"b", "c"});
  write("b", {"d"});
  write("c", {"d", "e"});
  write("d", {"e"});
  write("e", {"f"});
  write("f");
  name("a");
  load();
  visit("a", noteExporting);
  EXPECT_THAT(seen, ElementsAre("b", "d", "e", "f", "c"));
  seen.clear();
  visit("a", noteExportingLast);
  EXPECT_THAT(seen, ElementsAre("f", "e", "d", "b", "c"));
}

TEST_F(Exporting, CirclesAndSelfImports)
{
  write("a", {"a", "b", "b"});
  write("b", {"c", "a"});
  write("c", {"b", "a", "c"});
  name("a");
  load();
  visit("a", noteExporting);
  EXPECT_THAT(seen, ElementsAre("b", "c"));
  // Each outermost call begins anew, from any module.
  seen.clear();
  visit("c", noteExporting);
  EXPECT_THAT(seen, ElementsAre("b", "a"));
}

// Two entries for one module, and a call-back that goes no further.
TEST_F(Exporting, TwoEntriesForOneModule)
{
  write("a", {"b", "c", "b"});
  write("b");
  write("c");
  name("a");
  load();
  visit("a", noteModule);
  EXPECT_THAT(seen, ElementsAre("b", "c"));
}

// What is not taken on one way can be taken on another.
TEST_F(Exporting, UnusedImportIsNoVisit)
{
  write("a", {"-d", "b"});
  write("b", {"d"});
  write("d");
  name("a");
  load();
  visit("a", noteExporting);
  EXPECT_THAT(seen, ElementsAre("b", "d"));
}

TEST_F(Exporting, StateIsPutBack)
{
  write("a", {"b", "ISO8824"});
  write("b");
  write("x");
  ModRec *a = name("a");
  ModRec *x = name("x");
  load();
  cMP = x;
  visit("a", [](AsnModule &module) {
    noteModule(module);
    cMP = nullptr;
  });
  EXPECT_THAT(seen, ElementsAre("b"));
  EXPECT_EQ(cMP, x);
  EXPECT_EQ(a->treeStatus, 2);
  EXPECT_EQ(moduleOf("b")->treeStatus, 2);
  EXPECT_EQ(moduleOf("iso")->treeStatus, 3);
  EXPECT_EQ(x->treeStatus, 2);
}

TEST_F(Exporting, MissingModuleIsPassedOver)
{
  write("a", {"b", "c"});
  write("b");
  write("c");
  ModRec *a = name("a");
  load();
  a->firstImport->module = nullptr;
  visit("a", noteModule);
  EXPECT_THAT(seen, ElementsAre("c"));
}
