// Loading of modules with their imports, and the state that a run starts
// from.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;

struct ModLoad : testing::Test {
  TempDir dir;
  std::string message;
  int verboseBefore = verboseEx;

  ModLoad()
  {
    resetStore();
    resetParams();
    stxDir = dir.path;
  }
  ~ModLoad() override
  {
    resetStore();
    stxDir.clear();
    verboseEx = verboseBefore;
    setBackendVerbosity(0);
  }
  void write(const StxTree &tree, const std::string &prefix)
  {
    stxWrite(tree, (dir.path + prefix + ".stx").c_str());
  }
  // A tree "prefix" of the module "Mod-prefix" with these imports, all of
  // them used.
  StxTree treeOf(const std::string &prefix,
                 const std::vector<std::string> &imports = {})
  {
    StxTree tree = stxNewTree("Mod-" + prefix, prefix);
    for (const std::string &import : imports)
      stxImport(tree, "Mod-" + import, import, true);
    return tree;
  }
  void writeOf(const std::string &prefix,
               const std::vector<std::string> &imports = {})
  {
    write(treeOf(prefix, imports), prefix);
  }
  // As the command line names a module; 5 characters of a prefix count.
  ModRec *name(const char *prefix)
  {
    ModRec *module = appendModRec(true);
    module->options.prefixLen = 5;
    setFilePrefix(*module, prefix);
    return module;
  }
};

static std::vector<std::string> prefixesOfRun()
{
  std::vector<std::string> prefixes;
  for (ModRec *module = bOfModRList; module; module = module->next)
    prefixes.push_back(module->generationPrefix);
  return prefixes;
}

static ModRec *moduleOf(const std::string &prefix)
{
  ModRec *module = bOfModRList;
  while (module && module->generationPrefix != prefix)
    module = module->next;
  return module;
}

static std::string statusesOfRun()
{
  std::string statuses;
  for (ModRec *module = bOfModRList; module; module = module->next)
    statuses += static_cast<char>('0' + module->treeStatus);
  return statuses;
}

// --- one module -------------------------------------------------------------

TEST_F(ModLoad, FieldsOfTheRecord)
{
  StxTree tree = treeOf("a");
  stxSetTime(tree, 20240229, 10203);
  tree.header.toolVersion = 212;
  for (int i = 0; i < 3; ++i) {
    stxType(tree, stxNewTNode(TYP_NULL));
    stxValue(tree, stxNewInteger(1, i));
    stxTed(tree, {TED_EMBEDDING, {}, 1});
  }
  MNode &header = tree.header;
  header.firstType = 2;
  header.firstValue = 3;
  header.auxValueA = 1;
  header.auxValueB = 2;
  header.visibilityMode = 2;
  header.tagDefaultAndUse = 0x53;  // the high half is for import entries
  header.automaticTags = 9;
  header.nrEntryTypes = 11;
  header.nrVisibleTypes = 12;
  header.nrObjects = 13;
  header.nrObjectSets = 14;
  header.firstGlobalTed = 2;
  header.lastGlobalTed = 3;
  write(tree, "a");
  ModRec *a = name("a");
  EXPECT_EQ(a->moduleName, nullptr);
  EXPECT_EQ(a->treeStatus, 0);
  ASSERT_EQ(readSyntaxTree(*a, message), 0);
  EXPECT_STREQ(a->moduleName, "Mod_a");
  EXPECT_STREQ(a->filePrefix, "a");
  EXPECT_EQ(a->stamp.toolVersion, 212);
  EXPECT_EQ(a->stamp.treeVersion, 213);
  EXPECT_EQ(a->stamp.date, 20240229);
  EXPECT_EQ(a->stamp.time, 10203);
  EXPECT_EQ(a->treeStatus, 2);
  EXPECT_EQ(a->metaChar, 'b');
  EXPECT_EQ(a->auxValueA, 1);
  EXPECT_EQ(a->auxValueB, 2);
  EXPECT_EQ(a->tagDefault, 3);
  EXPECT_EQ(a->automaticTags, 9);
  EXPECT_EQ(a->firstType, 2);
  EXPECT_EQ(a->firstValue, 3);
  EXPECT_EQ(a->visibilityMode, 2);
  EXPECT_EQ(a->options.nrEntryTypes, 11);
  EXPECT_EQ(a->options.nrVisibleTypes, 12);
  EXPECT_EQ(a->options.nrObjects, 13);
  EXPECT_EQ(a->options.nrObjectSets, 14);
  EXPECT_EQ(a->options.globalTed.first, 2);
  EXPECT_EQ(a->options.globalTed.last, 3);
}

// The front-end's options are applied on the way.
TEST_F(ModLoad, OptionsSavedInTheTree)
{
  StxTree tree = treeOf("a");
  stxGlobalOption(tree, TED_FRONT_END, "-INFO=hello");
  stxGlobalOption(tree, TED_FRONT_END, "-COMBINE=a:b");
  write(tree, "a");
  ModRec *a = name("a");
  ASSERT_EQ(readSyntaxTree(*a, message), 0);
  EXPECT_EQ(a->options.info, "hello");
  // The group is formed last; only the module itself is there by then.
  EXPECT_THAT(a->combined, ElementsAre(a));
  writeOf("b");
  ModRec *b = name("b");
  ASSERT_EQ(readSyntaxTree(*b, message), 0);
  EXPECT_EQ(b->options.info, "");
  EXPECT_TRUE(b->combined.empty());
}

// The front-end's lines are in force before the back-end drops those that it
// does not know; a table of prefixes comes before both.
TEST_F(ModLoad, OrderOfThePassesOverATree)
{
  StxTree tree = treeOf("a");
  stxGlobalOption(tree, TED_BACK_END, "-TPREF=x_");
  stxGlobalOption(tree, TED_BACK_END, "-PREFIX=Mod-b:b");
  stxGlobalOption(tree, TED_BACK_END, "-V=3");
  stxGlobalOption(tree, TED_FRONT_END, "-NAMELEN=40");
  write(tree, "a");
  ModRec *a = name("a");
  verboseEx = 2;
  testing::internal::CaptureStderr();
  EXPECT_EQ(readSyntaxTree(*a, message), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "\nWARNING : Option ignored: -TPREF=x_\n"
            "\nWARNING : Option ignored: -PREFIX=Mod-b:b\n"
            "\nWARNING : Option ignored: -V=3\n");
  EXPECT_STREQ(a->options.fixRecs[0].pref, "x_");
  EXPECT_EQ(a->options.nameLen, 40);
  EXPECT_NE(moduleOf("b"), nullptr);
  std::vector<int> kinds;
  for (const TedRec &record : a->tedRecs.records)
    kinds.push_back(record.tedKind);
  EXPECT_THAT(kinds, ElementsAre(0, 0, 0, 3));
  EXPECT_EQ(verboseEx, 2);
}

// A saved tree directory counts for all that is loaded later.
TEST_F(ModLoad, SavedTreeDirectory)
{
  std::filesystem::create_directory(dir.path + "sub");
  StxTree tree = treeOf("a", {"b"});
  stxGlobalOption(tree, TED_BACK_END, "-S=" + dir.path + "sub");
  write(tree, "a");
  write(treeOf("b"), "sub/b");
  name("a");
  readAllSyntaxTrees();
  EXPECT_EQ(stxDir, dir.path + "sub/");
  EXPECT_EQ(statusesOfRun(), "22");
}

TEST_F(ModLoad, InitMetaRecKeepsTheFirstPrefixLength)
{
  GlobalOptions first, second, third;
  first.prefixLen = 7;
  first.info = "x";
  first.nrObjects = 4;
  second.prefixLen = 3;
  initMetaRec(first);
  initMetaRec(second);
  initMetaRec(third);
  EXPECT_EQ(first.prefixLen, 7);
  EXPECT_EQ(second.prefixLen, 7);
  EXPECT_EQ(third.prefixLen, 7);
  EXPECT_EQ(first.info, "");
  EXPECT_EQ(first.nrObjects, 0);
  resetLoading();
  second.prefixLen = 3;
  initMetaRec(second);
  EXPECT_EQ(second.prefixLen, 3);
}

static std::vector<int> genArrOf(int category)
{
  uint8_t array[17];
  std::fill(std::begin(array), std::end(array), uint8_t{99});
  initGenArr(array, category);
  return {std::begin(array), std::end(array)};
}

// Index 0 is nobody's, and what a category is silent about stays.
TEST_F(ModLoad, InitGenArr)
{
  EXPECT_THAT(genArrOf(0),
              ElementsAre(99, 1, 1, 0, 0, 2, 1, 1, 0, 0, 0, 2, 1, 1, 0, 0, 0));
  EXPECT_THAT(genArrOf(1),
              ElementsAre(99, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_THAT(genArrOf(2),
              ElementsAre(99, 1, 1, 1, 0, 1, 1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0));
  EXPECT_THAT(genArrOf(3), ElementsAre(99, 1, 1, 1, 1, 99, 99, 99, 0, 0, 0, 99,
                                       99, 99, 0, 0, 0));
  EXPECT_THAT(genArrOf(255), ElementsAre(99, 1, 1, 99, 0, 99, 99, 99, 0, 0, 0,
                                         99, 99, 99, 0, 0, 0));
}

TEST_F(ModLoad, FailureOfOneModule)
{
  ModRec *a = name("a");
  EXPECT_EQ(readSyntaxTree(*a, message), 1002);
  EXPECT_EQ(a->treeStatus, 1);
  writeFile(dir.path + "b.stx", "no tree");
  ModRec *b = name("b");
  EXPECT_EQ(readSyntaxTree(*b, message), 1003);
  EXPECT_EQ(b->treeStatus, 1);
  EXPECT_EQ(b->moduleName, nullptr);
}

TEST_F(ModLoad, ModuleNameOutOfRangeInAnEntry)
{
  StxTree tree = treeOf("a", {"b"});
  tree.imports[0].moduleName = 0;
  write(tree, "a");
  ModRec *a = name("a");
  EXPECT_EXIT(readSyntaxTree(*a, message), ExitedWithCode(2),
              "Can not read record");
}

// --- stamps -----------------------------------------------------------------

static std::vector<int> stampsOf(const ModRec &module)
{
  std::vector<int> stamps;
  for (const TNode &node : module.tNodes.records)
    stamps.push_back(node.stamp);
  for (const VNode &node : module.vNodes.records)
    stamps.push_back(node.stamp);
  return stamps;
}

TEST_F(ModLoad, StampsOfNodes)
{
  for (const char *prefix : {"a", "b", "c"}) {
    StxTree tree =
        treeOf(prefix, *prefix == 'a' ? std::vector<std::string>{"b", "c"}
                                      : std::vector<std::string>{});
    TNode type = stxNewTNode(TYP_NULL);
    type.stamp = 99;
    VNode value = stxNewInteger(1, 1);
    value.stamp = 99;
    stxType(tree, type);
    stxType(tree, type);
    stxValue(tree, value);
    write(tree, prefix);
  }
  ModRec *a = name("a");
  ModRec *b = name("b");
  readAllSyntaxTrees();
  EXPECT_THAT(stampsOf(*a), ElementsAre(5, 5, 5));
  EXPECT_THAT(stampsOf(*b), ElementsAre(5, 5, 5));
  EXPECT_THAT(stampsOf(*moduleOf("c")), ElementsAre(32767, 32767, 32767));
}

TEST_F(ModLoad, StampNodesLeavesTheBuffers)
{
  StxTree tree = treeOf("a");
  stxType(tree, stxNewTNode(TYP_NULL));
  write(tree, "a");
  ModRec *a = name("a");
  ASSERT_EQ(readTree(*a, message), 0);
  readRec(a, REC_TNODE, 1);
  tNode.stamp = 77;
  stampNodes(*a);
  EXPECT_EQ(tNode.stamp, 77);
  EXPECT_EQ(static_cast<TNode *>(findRPos(a, REC_TNODE, 1))->stamp, 5);
  a->inGenerationList = false;
  stampNodes(*a);
  EXPECT_EQ(static_cast<TNode *>(findRPos(a, REC_TNODE, 1))->stamp, 32767);
}

// --- imports ----------------------------------------------------------------

TEST_F(ModLoad, ImportEntries)
{
  StxTree tree = treeOf("a", {"b"});
  stxImport(tree, "Mod-c", "c", false);
  tree.imports[0].toolVersion = 1;
  tree.imports[0].treeVersion = 2;
  tree.imports[0].date = 3;
  tree.imports[0].time = 4;
  tree.imports[0].auxValueB = 5;
  tree.imports[1].tagDefaultAndUse = 0x0F;  // of the low half nothing counts
  write(tree, "a");
  writeOf("b");
  writeOf("c");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  PicRec *first = a->firstImport;
  ASSERT_TRUE(first && first->next);
  EXPECT_STREQ(first->moduleName, "Mod_b");
  EXPECT_EQ(first->stamp.toolVersion, 1);
  EXPECT_EQ(first->stamp.treeVersion, 2);
  EXPECT_EQ(first->stamp.date, 3);
  EXPECT_EQ(first->stamp.time, 4);
  EXPECT_EQ(first->moduleNumber, 2);
  EXPECT_EQ(first->auxValueB, 5);
  EXPECT_EQ(first->module, moduleOf("b"));
  EXPECT_TRUE(first->usesDeclarations);
  PicRec *second = first->next;
  EXPECT_EQ(second->moduleNumber, 3);
  EXPECT_EQ(second->module, moduleOf("c"));
  EXPECT_FALSE(second->usesDeclarations);
  EXPECT_EQ(second->next, nullptr);
  EXPECT_EQ(a->lastImport, second);
  EXPECT_EQ(getModPtr(a, 2), moduleOf("b"));
  EXPECT_EQ(getModPtr(a, 3), moduleOf("c"));
}

TEST_F(ModLoad, UsesDeclarationsByAnyHighBit)
{
  for (int bit = 0; bit < 8; ++bit) {
    resetStore();
    StxTree tree = treeOf("a", {"b"});
    tree.imports[0].tagDefaultAndUse = static_cast<uint8_t>(1 << bit);
    write(tree, "a");
    writeOf("b");
    ModRec *a = name("a");
    readAllSyntaxTrees();
    EXPECT_EQ(a->firstImport->usesDeclarations, bit >= 4) << bit;
  }
}

TEST_F(ModLoad, ImportedModuleIsBehindTheNamedOnes)
{
  writeOf("a", {"c", "d"});
  writeOf("b", {"c"});
  writeOf("c", {"e"});
  writeOf("d");
  writeOf("e");
  ModRec *a = name("a");
  ModRec *b = name("b");
  readAllSyntaxTrees();
  // Depth first: what c imports comes before d.
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a", "b", "c", "e", "d"));
  EXPECT_EQ(statusesOfRun(), "22222");
  EXPECT_EQ(fstOfModRList, a);
  EXPECT_EQ(lstOfModRList, b);
  EXPECT_EQ(eOfModRList, moduleOf("d"));
  EXPECT_STREQ(moduleOf("c")->moduleName, "Mod_c");
  EXPECT_STREQ(moduleOf("c")->filePrefix, "c");
  EXPECT_FALSE(moduleOf("c")->inGenerationList);
}

// Read once: the sections hold each record a single time.
TEST_F(ModLoad, DiamondOfImports)
{
  writeOf("a", {"b", "c"});
  writeOf("b", {"d"});
  writeOf("c", {"d"});
  writeOf("d");
  name("a");
  readAllSyntaxTrees();
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a", "b", "d", "c"));
  EXPECT_EQ(moduleOf("d")->mNodes.records.size(), 1u);
  EXPECT_EQ(moduleOf("b")->firstImport->module, moduleOf("d"));
  EXPECT_EQ(moduleOf("c")->firstImport->module, moduleOf("d"));
}

TEST_F(ModLoad, NamedAndImported)
{
  writeOf("a", {"b"});
  writeOf("b");
  ModRec *a = name("a");
  ModRec *b = name("b");
  readAllSyntaxTrees();
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a", "b"));
  EXPECT_EQ(a->firstImport->module, b);
  EXPECT_EQ(b->mNodes.records.size(), 1u);
}

TEST_F(ModLoad, CirclesOfImports)
{
  writeOf("a", {"b", "a"});
  writeOf("b", {"c", "a"});
  writeOf("c", {"a", "b"});
  ModRec *a = name("a");
  readAllSyntaxTrees();
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a", "b", "c"));
  EXPECT_EQ(statusesOfRun(), "222");
  EXPECT_EQ(getModPtr(a, 3), a);
  EXPECT_EQ(getModPtr(moduleOf("c"), 2), a);
  EXPECT_EQ(getModPtr(moduleOf("c"), 3), moduleOf("b"));
}

TEST_F(ModLoad, PredefinedModule)
{
  StxTree tree = treeOf("a");
  stxImport(tree, "ISO8824", "iso", true);
  stxImport(tree, "Mod-b", "b", true);
  write(tree, "a");
  writeOf("b");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  EXPECT_EQ(statusesOfRun(), "232");
  EXPECT_STREQ(getModPtr(a, 2)->moduleName, "ISO8824");
  EXPECT_EQ(getModPtr(a, 3), moduleOf("b"));
}

// It is told by the entry's name, whatever record the prefix leads to.
TEST_F(ModLoad, PredefinedModuleWithThePrefixOfAnother)
{
  StxTree tree = treeOf("a", {"b"});
  stxImport(tree, "ISO8824", "b", true);
  write(tree, "a");
  writeOf("b");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  EXPECT_EQ(getModPtr(a, 3), moduleOf("b"));
  EXPECT_EQ(statusesOfRun(), "23");
}

// Only the exact name is predefined.
TEST_F(ModLoad, NearlyPredefinedModule)
{
  for (const char *near : {"ISO88245", "Iso8824", "ISO882"}) {
    resetStore();
    StxTree tree = treeOf("a");
    stxImport(tree, near, "iso", true);
    write(tree, "a");
    EXPECT_EQ(readSyntaxTree(*name("a"), message), 1002) << near;
  }
}

TEST_F(ModLoad, PredefinedModuleWithoutPrefix)
{
  StxTree tree = treeOf("a");
  stxImport(tree, "ISO8824", "iso", false);
  tree.imports[0].filePrefix = 0;
  write(tree, "a");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  EXPECT_STREQ(getModPtr(a, 2)->generationPrefix, "");
  EXPECT_EQ(getModPtr(a, 2)->treeStatus, 3);
}

TEST_F(ModLoad, LongChainOfImports)
{
  for (int i = 0; i < 300; ++i) {
    std::string next = "m" + std::to_string(i + 1);
    if (i < 299)
      writeOf("m" + std::to_string(i), {next});
    else
      writeOf("m299");
  }
  name("m0");
  readAllSyntaxTrees();
  EXPECT_EQ(prefixesOfRun().size(), 300u);
  EXPECT_EQ(statusesOfRun(), std::string(300, '2'));
  EXPECT_EQ(moduleOf("m298")->firstImport->module, moduleOf("m299"));
}

TEST_F(ModLoad, TwoArgumentsOfOnePrefix)
{
  writeOf("a");
  writeOf("b", {"a"});
  ModRec *first = name("a");
  ModRec *second = name("a");
  ModRec *b = name("b");
  readAllSyntaxTrees();
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a", "a", "b"));
  EXPECT_EQ(statusesOfRun(), "222");
  EXPECT_EQ(second->mNodes.records.size(), 1u);
  EXPECT_EQ(b->firstImport->module, first);
}

// --- "-PREFIX=" -------------------------------------------------------------

// The entry's file prefix is "b"; the saved option gives the module of that
// generation prefix another file prefix.
TEST_F(ModLoad, PrefixOptionSuppliesOtherPrefixes)
{
  StxTree tree = treeOf("a", {"b"});
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=Mod-b:longb:b");
  write(tree, "a");
  writeOf("b");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a", "b"));
  ModRec *b = getModPtr(a, 2);
  EXPECT_EQ(b, moduleOf("b"));
  EXPECT_STREQ(b->filePrefix, "longb");
  EXPECT_STREQ(b->generationPrefix, "b");
  EXPECT_STREQ(b->moduleName, "Mod_b");
}

// The table by module name is not asked: the entry's own prefix decides.
TEST_F(ModLoad, PrefixOptionForAnotherGenerationPrefix)
{
  StxTree tree = treeOf("a", {"b"});
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=Mod-b:b:other");
  write(tree, "a");
  writeOf("b");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a", "other", "b"));
  EXPECT_EQ(statusesOfRun(), "202");
  EXPECT_EQ(getModPtr(a, 2), moduleOf("b"));
}

TEST_F(ModLoad, PrefixOptionForNobody)
{
  StxTree tree = treeOf("a");
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=Nobody:no");
  write(tree, "a");
  name("a");
  testing::internal::CaptureStderr();
  readAllSyntaxTrees();
  EXPECT_EQ(statusesOfRun(), "20");
  removeUnreferencedModuleRecords();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_THAT(prefixesOfRun(), ElementsAre("a"));
}

// The front-end has to store the pieces; a missing one can't be appended yet.
TEST_F(ModLoad, PrefixOptionWithAMissingPiece)
{
  StxTree tree = treeOf("a");
  int32_t line = stxStri(tree, "-PREFIX=Nobody:no");
  stxTed(tree, {TED_FRONT_END, {}, line});
  tree.header.firstGlobalTed = tree.header.lastGlobalTed = 1;
  write(tree, "a");
  ModRec *a = name("a");
  EXPECT_EXIT(readSyntaxTree(*a, message), ExitedWithCode(2),
              "Can not read record from syntax tree");
}

// --- failures ---------------------------------------------------------------

TEST_F(ModLoad, NamedModuleIsMissing)
{
  name("abc");
  EXPECT_EXIT(readAllSyntaxTrees(), ExitedWithCode(2),
              "FATAL ERROR : Syntax tree not found\n +abc\n\n$");
}

TEST_F(ModLoad, NamedModuleIsBad)
{
  writeFile(dir.path + "abc.stx", "bad");
  name("abc");
  EXPECT_EXIT(readAllSyntaxTrees(), ExitedWithCode(2),
              "FATAL ERROR : Not a valid syntax tree\n +abc\n\n$");
}

// The detail names the module of the command line, not the one that failed.
TEST_F(ModLoad, ImportedModuleIsMissing)
{
  writeOf("a");
  writeOf("b", {"c"});
  writeOf("c", {"d"});
  name("a");
  name("b");
  EXPECT_EXIT(readAllSyntaxTrees(), ExitedWithCode(2),
              "FATAL ERROR : Syntax tree not found\n +b\n\n$");
}

TEST_F(ModLoad, ImportedModuleIsOfAnotherVersion)
{
  writeOf("a", {"b"});
  StxTree tree = treeOf("b");
  tree.header.toolVersion = tree.header.treeVersion = 201;
  write(tree, "b");
  name("a");
  EXPECT_EXIT(readAllSyntaxTrees(), ExitedWithCode(2),
              "FATAL ERROR : Not a valid syntax tree\n"
              " +a: Syntax tree generated by ZELK version 2.01, expected "
              "2.13\n\n$");
}

TEST_F(ModLoad, ImportedModuleIsBad)
{
  writeOf("a", {"b"});
  StxTree tree = treeOf("b");
  tree.header.treeVersion = 212;
  write(tree, "b");
  name("a");
  EXPECT_EXIT(readAllSyntaxTrees(), ExitedWithCode(2),
              "FATAL ERROR : Not a valid syntax tree\n +a\n\n$");
}

TEST_F(ModLoad, FailureGoesUpTheImports)
{
  writeOf("a", {"b"});
  writeOf("b", {"c"});
  ModRec *a = name("a");
  EXPECT_EQ(readSyntaxTree(*a, message), 1002);
  EXPECT_EQ(statusesOfRun(), "111");
  ASSERT_TRUE(a->firstImport);
  EXPECT_EQ(a->firstImport->module, nullptr);
  EXPECT_EQ(moduleOf("b")->firstImport->module, nullptr);
  EXPECT_EQ(getModPtr(a, 2), nullptr);
}

TEST_F(ModLoad, NothingIsReadBehindAFailure)
{
  writeOf("a", {"missing", "b"});
  writeOf("b");
  ModRec *a = name("a");
  EXPECT_EQ(readSyntaxTree(*a, message), 1002);
  EXPECT_EQ(a->firstImport->next, nullptr);
  EXPECT_EQ(moduleOf("b"), nullptr);
}

// The second time it is "not found", whatever it was at first.
TEST_F(ModLoad, FailureMetTwice)
{
  writeOf("a", {"bad"});
  writeOf("b", {"bad"});
  writeFile(dir.path + "bad.stx", "no tree");
  ModRec *a = name("a");
  ModRec *b = name("b");
  EXPECT_EQ(readSyntaxTree(*a, message), 1003);
  EXPECT_EQ(readSyntaxTree(*b, message), 1002);
  EXPECT_EQ(b->treeStatus, 1);
  EXPECT_EQ(b->firstImport->module, nullptr);
}

// --- readAllSyntaxTrees -----------------------------------------------------

TEST_F(ModLoad, VerboseLines)
{
  writeOf("a", {"c"});
  writeOf("b");
  writeOf("c");
  name("a");
  name("b");
  setBackendVerbosity(1);
  testing::internal::CaptureStderr();
  readAllSyntaxTrees();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "  Reading syntax trees ...\n  a  c  b\n");
}

TEST_F(ModLoad, SilentByDefault)
{
  writeOf("a");
  name("a");
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  readAllSyntaxTrees();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// A record that nobody named is not read for its own sake.
TEST_F(ModLoad, OnlyTheGenerationList)
{
  writeOf("a");
  name("a");
  findOrCreateModRec("x", "x", "X");
  readAllSyntaxTrees();
  EXPECT_EQ(statusesOfRun(), "20");
}

TEST_F(ModLoad, NoModules)
{
  readAllSyntaxTrees();
  EXPECT_EQ(cMP, nullptr);
}

// --- initBackendVars --------------------------------------------------------

TEST_F(ModLoad, InitBackendVarsWithoutModules)
{
  EXPECT_EXIT(initBackendVars(), ExitedWithCode(2),
              "Internal error\n +No module record list.\n");
}

TEST_F(ModLoad, InitBackendVars)
{
  StxTree tree = treeOf("a", {"b"});
  stxImport(tree, "ISO8824", "", false);
  for (int i = 0; i < 4; ++i)
    stxDefineType(tree, "T" + std::to_string(i), stxNewTNode(TYP_NULL));
  stxDefineValue(tree, "v", stxNewInteger(1, 1));
  tree.header.visibilityMode = 1;
  write(tree, "a");
  writeOf("b");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  readRec(a, REC_TNODE, 1);
  a->firstType = a->firstValue = 0;
  a->visibilityMode = 9;
  a->moduleInfoCache = {1, 1};
  initBackendVars();
  EXPECT_EQ(a->nextFree[REC_MNODE], 4);
  EXPECT_EQ(a->nextFree[REC_TNODE], 5);
  EXPECT_EQ(a->nextFree[REC_VNODE], 2);
  EXPECT_EQ(a->nextFree[REC_TED], 1);
  EXPECT_EQ(a->nextFree[REC_STRI],
            static_cast<int32_t>(a->stris.strings.size()) + 1);
  EXPECT_EQ(a->firstType, 1);
  EXPECT_EQ(a->firstValue, 1);
  EXPECT_EQ(a->visibilityMode, 1);
  EXPECT_EQ(a->moduleInfoCache.known, 0u);
  EXPECT_EQ(a->moduleInfoCache.value, 0u);
  EXPECT_EQ(a->typeInfoCache.size(), 5u);
  EXPECT_EQ(moduleOf("b")->nextFree[REC_TNODE], 1);
  EXPECT_EQ(moduleOf("b")->typeInfoCache.size(), 1u);
  EXPECT_EQ(getModPtr(a, 3)->nextFree[REC_STRI], 0);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 0);
  EXPECT_EQ(currTPtr[REC_TNODE], nullptr);
}

// An edit of the header's buffer does not survive: cursors are cleared first.
TEST_F(ModLoad, InitBackendVarsReadsTheHeaderTruly)
{
  StxTree tree = treeOf("a");
  stxDefineType(tree, "T", stxNewTNode(TYP_NULL));
  write(tree, "a");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  readRec(a, REC_MNODE, 1);
  mNode.firstType = 0;
  initBackendVars();
  EXPECT_EQ(a->firstType, 1);
}

TEST_F(ModLoad, TypeInfoCacheIsClearedAgain)
{
  StxTree tree = treeOf("a");
  stxDefineType(tree, "T", stxNewTNode(TYP_NULL));
  write(tree, "a");
  ModRec *a = name("a");
  readAllSyntaxTrees();
  initBackendVars();
  a->typeInfoCache[0] = {3, 3};
  initBackendVars();
  EXPECT_EQ(a->typeInfoCache[0].known, 0u);
  EXPECT_EQ(a->typeInfoCache[0].value, 0u);
}
