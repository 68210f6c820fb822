// The list of module records, and what may be asked of a module.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;

// The comment lines that a call-back has seen.
static std::vector<std::string> seen;

struct Modules : testing::Test {
  TempDir dir;

  Modules()
  {
    resetStore();
    resetParams();
    stxDir = dir.path;
    seen.clear();
  }
  ~Modules() override
  {
    resetStore();
    stxDir.clear();
    seen.clear();
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
};

static ModRec *moduleOf(const std::string &prefix)
{
  ModRec *module = bOfModRList;
  while (module && module->generationPrefix != prefix)
    module = module->next;
  return module;
}

static std::vector<std::string> prefixesFrom(const ModRec *module)
{
  std::vector<std::string> prefixes;
  for (; module; module = module->next)
    prefixes.push_back(module->generationPrefix);
  return prefixes;
}

// --- the list ---------------------------------------------------------------

TEST_F(Modules, AppendModRec)
{
  EXPECT_EQ(bOfModRList, nullptr);
  ModRec *first = appendModRec(true);
  EXPECT_EQ(bOfModRList, first);
  EXPECT_EQ(eOfModRList, first);
  EXPECT_EQ(fstOfModRList, first);
  EXPECT_EQ(lstOfModRList, first);
  ModRec *second = appendModRec(true);
  ModRec *third = appendModRec(false);
  EXPECT_EQ(first->next, second);
  EXPECT_EQ(second->next, third);
  EXPECT_EQ(third->next, nullptr);
  EXPECT_EQ(bOfModRList, first);
  EXPECT_EQ(eOfModRList, third);
  EXPECT_EQ(fstOfModRList, first);
  EXPECT_EQ(lstOfModRList, second);
  EXPECT_NE(first->beMeta, nullptr);
  EXPECT_NE(third->beMeta, first->beMeta);
  EXPECT_TRUE(second->inGenerationList);
  EXPECT_FALSE(third->inGenerationList);
}

TEST_F(Modules, FreshRecord)
{
  ModRec *module = appendModRec(true);
  EXPECT_EQ(module->moduleName, nullptr);
  EXPECT_EQ(module->filePrefix, nullptr);
  EXPECT_EQ(module->generationPrefix, nullptr);
  EXPECT_EQ(module->treeStatus, 0);
  EXPECT_EQ(module->firstImport, nullptr);
  EXPECT_EQ(module->nrWarnings, 0);
  EXPECT_EQ(module->options.prefixLen, 0);
}

TEST_F(Modules, FindOrCreateModRec)
{
  ModRec *named = name("a");
  ModRec *made = findOrCreateModRec("file", "gen", "Name");
  EXPECT_EQ(eOfModRList, made);
  EXPECT_EQ(lstOfModRList, named);
  EXPECT_STREQ(made->filePrefix, "file");
  EXPECT_STREQ(made->generationPrefix, "gen");
  EXPECT_STREQ(made->moduleName, "Name");
  EXPECT_NE(made->beMeta, nullptr);
  EXPECT_EQ(made->treeStatus, 0);
  EXPECT_FALSE(made->inGenerationList);
  // It is told by the generation prefix alone, and stays as it is.
  EXPECT_EQ(findOrCreateModRec("x", "gen", "Other"), made);
  EXPECT_STREQ(made->filePrefix, "file");
  EXPECT_STREQ(made->moduleName, "Name");
  EXPECT_EQ(findOrCreateModRec("x", "a", "Other"), named);
  EXPECT_EQ(named->moduleName, nullptr);
  EXPECT_NE(findOrCreateModRec("gen", "file", "Name"), made);
  EXPECT_NE(findOrCreateModRec("file", "GEN", "Name"), made);
}

TEST_F(Modules, FindOrCreateModRecGivesTheFirst)
{
  ModRec *first = name("a");
  name("a");
  EXPECT_EQ(findOrCreateModRec("a", "a", "A"), first);
}

TEST_F(Modules, FindOrCreateModRecPassesNullPrefixes)
{
  ModRec *nameless = appendModRec(true);
  setModulePrefixes(*nameless, nullptr, nullptr);
  ModRec *made = findOrCreateModRec("", "", "X");
  EXPECT_NE(made, nameless);
  EXPECT_EQ(findOrCreateModRec("", "", "X"), made);
}

TEST_F(Modules, NewPrefixesReplaceTheOld)
{
  ModRec *module = name("old");
  setModulePrefixes(*module, "f", "new");
  EXPECT_STREQ(module->filePrefix, "f");
  EXPECT_STREQ(module->generationPrefix, "new");
  EXPECT_EQ(findOrCreateModRec("x", "new", "X"), module);
  EXPECT_NE(findOrCreateModRec("x", "old", "X"), module);
  setModulePrefixes(*module, nullptr, nullptr);
  EXPECT_EQ(module->filePrefix, nullptr);
  EXPECT_EQ(module->generationPrefix, nullptr);
  EXPECT_NE(findOrCreateModRec("x", "new", "X"), module);
}

TEST_F(Modules, PrefixesAreCopied)
{
  std::string file = "file", gen = "gen";
  ModRec *module = appendModRec(true);
  setModulePrefixes(*module, file.c_str(), gen.c_str());
  file = gen = "gone";
  EXPECT_STREQ(module->filePrefix, "file");
  EXPECT_STREQ(module->generationPrefix, "gen");
}

// --- import records ---------------------------------------------------------

struct ImportChain : Modules {
  ModRec *owner = name("o");
  ModRec *x = name("x");
  ModRec *y = name("y");
  PicRec *first = createPicRec(*owner, "X");
  PicRec *second = createPicRec(*owner, "Y");

  ImportChain()
  {
    first->moduleNumber = 2;
    first->module = x;
    second->moduleNumber = 3;
    second->module = y;
  }
};

TEST_F(ImportChain, CreatePicRecAppends)
{
  EXPECT_EQ(owner->firstImport, first);
  EXPECT_EQ(first->next, second);
  EXPECT_EQ(second->next, nullptr);
  EXPECT_EQ(owner->lastImport, second);
  EXPECT_STREQ(first->moduleName, "X");
  EXPECT_EQ(first->moduleName, internStri("X"));
  PicRec *fresh = createPicRec(*x, "Z");
  EXPECT_EQ(x->firstImport, fresh);
  EXPECT_EQ(fresh->module, nullptr);
  EXPECT_EQ(fresh->moduleNumber, 0);
  EXPECT_FALSE(fresh->usesDeclarations);
}

TEST_F(ImportChain, MatchingNr)
{
  EXPECT_EQ(matchingNr(first, 2), first);
  EXPECT_EQ(matchingNr(first, 3), second);
  EXPECT_EQ(matchingNr(second, 2), nullptr);
  for (int32_t number : {-1, 0, 1, 4})
    EXPECT_EQ(matchingNr(first, number), nullptr) << number;
  EXPECT_EQ(matchingNr(nullptr, 2), nullptr);
}

// By the address of the interned name.
TEST_F(ImportChain, MatchingName)
{
  std::string copy = "Y";
  EXPECT_EQ(matchingName(first, internStri(copy)), second);
  EXPECT_EQ(matchingName(first, copy.c_str()), nullptr);
  EXPECT_EQ(matchingName(first, internStri("Z")), nullptr);
  EXPECT_EQ(matchingName(nullptr, internStri("Y")), nullptr);
}

TEST_F(ImportChain, MatchingPtr)
{
  EXPECT_EQ(matchingPtr(first, x), first);
  EXPECT_EQ(matchingPtr(first, y), second);
  EXPECT_EQ(matchingPtr(first, owner), nullptr);
  EXPECT_EQ(matchingPtr(first, nullptr), nullptr);
  second->module = nullptr;
  EXPECT_EQ(matchingPtr(first, nullptr), second);
  EXPECT_EQ(matchingPtr(nullptr, x), nullptr);
}

TEST_F(ImportChain, GetModPtr)
{
  for (int32_t number : {1, 0, -1, -2, INT32_MIN})
    EXPECT_EQ(getModPtr(owner, number), owner) << number;
  EXPECT_EQ(getModPtr(owner, 2), x);
  EXPECT_EQ(getModPtr(owner, 3), y);
  for (int32_t number : {4, 5, 1000, INT32_MAX})
    EXPECT_EQ(getModPtr(owner, number), nullptr) << number;
  EXPECT_EQ(getModPtr(x, 2), nullptr);
  second->module = nullptr;
  EXPECT_EQ(getModPtr(owner, 3), nullptr);
}

// --- removal ----------------------------------------------------------------

// Four records, named and made; `read` tells which trees were read.
struct Removal : Modules {
  void make(const std::string &read)
  {
    for (size_t i = 0; i < read.size(); ++i) {
      std::string prefix(1, static_cast<char>('a' + i));
      ModRec *module =
          i < 2 ? name(prefix.c_str())
                : findOrCreateModRec(prefix.c_str(), prefix.c_str(), "Name");
      module->treeStatus = static_cast<uint8_t>(read[i] - '0');
    }
  }
};

TEST_F(Removal, NothingToRemove)
{
  make("2232");
  removeUnreferencedModuleRecords();
  EXPECT_THAT(prefixesFrom(bOfModRList), ElementsAre("a", "b", "c", "d"));
  EXPECT_EQ(cMP, nullptr);
  EXPECT_EQ(eOfModRList, moduleOf("d"));
}

TEST_F(Removal, InTheMiddle)
{
  make("22023");
  removeUnreferencedModuleRecords();
  EXPECT_THAT(prefixesFrom(bOfModRList), ElementsAre("a", "b", "d", "e"));
  EXPECT_EQ(fstOfModRList, moduleOf("a"));
  EXPECT_EQ(lstOfModRList, moduleOf("b"));
  EXPECT_EQ(eOfModRList, moduleOf("e"));
  EXPECT_EQ(cMP, nullptr);
}

TEST_F(Removal, AtTheEnd)
{
  make("2220");
  removeUnreferencedModuleRecords();
  EXPECT_THAT(prefixesFrom(bOfModRList), ElementsAre("a", "b", "c"));
  EXPECT_EQ(eOfModRList, moduleOf("c"));
  EXPECT_EQ(eOfModRList->next, nullptr);
  ModRec *made = findOrCreateModRec("z", "z", "Z");
  EXPECT_EQ(moduleOf("c")->next, made);
}

TEST_F(Removal, SeveralInARow)
{
  make("2200020");
  removeUnreferencedModuleRecords();
  EXPECT_THAT(prefixesFrom(bOfModRList), ElementsAre("a", "b", "f"));
  EXPECT_EQ(eOfModRList, moduleOf("f"));
}

// Of a removed first record only the generation list takes note.
TEST_F(Removal, AtTheBeginning)
{
  make("0222");
  ModRec *removed = bOfModRList;
  removeUnreferencedModuleRecords();
  EXPECT_EQ(bOfModRList, removed);
  EXPECT_THAT(prefixesFrom(fstOfModRList), ElementsAre("b", "c", "d"));
  bOfModRList = fstOfModRList;  // for the fixture's end
}

// Only a record that was never touched goes.
TEST_F(Removal, FailedAndPredefinedStay)
{
  make("2130");
  removeUnreferencedModuleRecords();
  EXPECT_THAT(prefixesFrom(bOfModRList), ElementsAre("a", "b", "c"));
}

TEST_F(Removal, RemovedPrefixIsForgotten)
{
  make("220");
  removeUnreferencedModuleRecords();
  ModRec *made = findOrCreateModRec("c", "c", "Again");
  EXPECT_THAT(prefixesFrom(bOfModRList), ElementsAre("a", "b", "c"));
  EXPECT_STREQ(made->moduleName, "Again");
}

TEST_F(Removal, EmptyList)
{
  removeUnreferencedModuleRecords();
  EXPECT_EQ(bOfModRList, nullptr);
  EXPECT_EQ(cMP, nullptr);
}

// --- names and counts -------------------------------------------------------

// One module with the file prefix "fil" and the generation prefix "gen".
struct ModuleQueries : Modules {
  ModRec *rec = nullptr;
  AsnModule *module = nullptr;

  ModuleQueries()
  {
    StxTree tree = stxNewTree("Mod-a", "a");
    stxSetSource(tree, "src/", "a.asn1");
    for (int i = 0; i < 3; ++i)
      stxType(tree, stxNewTNode(TYP_NULL));
    for (int i = 0; i < 2; ++i)
      stxValue(tree, stxNewInteger(1, 1));
    tree.header.nrEntryTypes = 11;
    tree.header.nrVisibleTypes = 12;
    tree.header.nrObjects = 13;
    tree.header.nrObjectSets = 14;
    write(tree, "gen");
    rec = appendModRec(true);
    setModulePrefixes(*rec, "fil", "gen");
    readAllSyntaxTrees();
    initBackendVars();
    module = newAsnModule(*rec);
  }
  ~ModuleQueries() override { delAsnModule(module); }
};

typedef std::string &TextGetter(std::string &, const char *, const AsnModule &,
                                const char *);

TEST_F(ModuleQueries, Texts)
{
  const struct {
    TextGetter *getter;
    const char *text;
  } rows[] = {{getModuleRef, "Mod_a"},
              {getModulePrefix, "gen"},
              {getModuleDirectory, "src/"},
              {getModuleFileName, "a.asn1"},
              {getModuleFilePath, "src/a.asn1"}};
  for (const auto &row : rows) {
    std::string text = "old";
    EXPECT_EQ(&row.getter(text, "<", *module, ">"), &text);
    EXPECT_EQ(text, "<" + std::string(row.text) + ">");
    row.getter(text, nullptr, *module, nullptr);
    EXPECT_EQ(text, row.text);
    text = "|";
    row.getter(text, text.c_str(), *module, text.c_str());
    EXPECT_EQ(text, "|" + std::string(row.text) + "|");
  }
}

// Joined as they stand: no "/" is added.
TEST_F(ModuleQueries, PathIsPlainlyJoined)
{
  std::string text;
  rec->options.sourceDirectory = internStri("src");
  EXPECT_EQ(getModuleFilePath(text, nullptr, *module, nullptr), "srca.asn1");
  rec->options.sourceDirectory = internStri("");
  EXPECT_EQ(getModuleFilePath(text, nullptr, *module, ":"), "a.asn1:");
}

TEST_F(ModuleQueries, Counts)
{
  EXPECT_EQ(getNrOfEntryTypes(*module), 11);
  EXPECT_EQ(getNrOfVisibleTypes(*module), 12);
  EXPECT_EQ(getNrOfObjects(*module), 13);
  EXPECT_EQ(getNrOfObjectSets(*module), 14);
  EXPECT_EQ(getNrOfTypeNodes(*module), 3);
  EXPECT_EQ(getNrOfValueNodes(*module), 2);
}

TEST_F(ModuleQueries, Fields)
{
  EXPECT_EQ(getModRec(*module), rec);
  EXPECT_EQ(getBEModMetaRec(*module), rec->beMeta);
  EXPECT_EQ(&getGlobalOptions(*module), &rec->options);
  EXPECT_EQ(getGenArr(*module), rec->options.genArr);
}

TEST_F(ModuleQueries, GenerationOption)
{
  for (uint8_t i = 0; i <= 16; ++i)
    rec->options.genArr[i] = static_cast<uint8_t>(100 + i);
  for (int i = 1; i <= 16; ++i)
    EXPECT_EQ(getGenerationOption(*module, i), 100 + i);
  for (int i : {0, 17, 18, 255, -1, INT32_MAX, INT32_MIN})
    EXPECT_EQ(getGenerationOption(*module, i), 0) << i;
}

TEST_F(ModuleQueries, Identity)
{
  ModRec *second = name("gen");
  std::string message;
  ASSERT_EQ(readSyntaxTree(*second, message), 0);
  AsnModule *same = newAsnModule(*rec);
  AsnModule *other = newAsnModule(*second);
  EXPECT_TRUE(isTheSameModule(*module, *same));
  EXPECT_FALSE(isTheSameModule(*module, *other));
  cMP = second;
  EXPECT_FALSE(isCurrentModule(*module));
  EXPECT_TRUE(isCurrentModule(*other));
  EXPECT_EQ(getUniqueModuleNr(*module), 0);
  EXPECT_EQ(getUniqueModuleNr(*other), 1);
  delAsnModule(same);
  delAsnModule(other);
}

TEST_F(ModuleQueries, UniqueNumberAfterARemoval)
{
  findOrCreateModRec("x", "x", "X");
  ModRec *last = findOrCreateModRec("gen2", "gen2", "Y");
  last->mNodes = rec->mNodes;
  last->stris = rec->stris;
  last->treeStatus = TREE_READ;
  AsnModule *object = newAsnModule(*last);
  EXPECT_EQ(getUniqueModuleNr(*object), 2);
  removeUnreferencedModuleRecords();
  EXPECT_EQ(getUniqueModuleNr(*object), 1);
  EXPECT_EQ(getUniqueModuleNr(*module), 0);
  delAsnModule(object);
  last->mNodes = {};
  last->stris = {};
}

TEST_F(ModuleQueries, CGenerationOption)
{
  for (int bit = 0; bit < 32; ++bit) {
    rec->options.cGeneration = 1u << bit;
    for (int option = 0; option < 32; ++option) {
      EXPECT_EQ(testCGenerationOption(*module, option), option == bit);
      bool clear = testCGenerationOption(*module, -option);
      EXPECT_EQ(clear, option == 0 ? bit == 0 : option != bit);
    }
  }
}

TEST_F(ModuleQueries, VarnoApplication)
{
  for (int category : {0, 1, 2, 3, 4, 255}) {
    rec->options.definitionCategory = static_cast<uint8_t>(category);
    EXPECT_EQ(isVarnoApplication(*module), category >= 1 && category <= 3);
  }
}

TEST_F(ModuleQueries, CombinedModules)
{
  ModRec other, third;
  AsnModule otherModule, thirdModule;
  otherModule.rec = &other;
  thirdModule.rec = &third;
  EXPECT_FALSE(isCombinedModule(*module));
  EXPECT_FALSE(isCombinedModules(*module, *module));
  rec->combined = {&other};
  EXPECT_FALSE(isCombinedModule(*module));
  EXPECT_FALSE(isCombinedModules(*module, otherModule));
  rec->combined = {&other, rec};
  EXPECT_TRUE(isCombinedModule(*module));
  EXPECT_TRUE(isCombinedModules(*module, otherModule));
  EXPECT_TRUE(isCombinedModules(*module, *module));
  EXPECT_FALSE(isCombinedModules(*module, thirdModule));
}

TEST_F(ModuleQueries, InfoCaches)
{
  EXPECT_EQ(&getModuleInfoCache(*module), &rec->moduleInfoCache);
  for (int32_t type = 0; type < 4; ++type)
    EXPECT_EQ(&getTypeInfoCache(*module, type),
              &rec->typeInfoCache[static_cast<size_t>(type)]);
  // Three types and one more.
  for (int32_t type : {4, -1, INT32_MIN})
    EXPECT_EXIT(getTypeInfoCache(*module, type), ExitedWithCode(2),
                "Can not read record");
}

TEST_F(ModuleQueries, InfoCacheFlags)
{
  for (auto *set : {setModuleInfoCacheBetFlag, setTypeInfoCacheBetFlag}) {
    InfoCache cache;
    set(cache, 3, true);
    EXPECT_EQ(cache.known, 8u);
    EXPECT_EQ(cache.value, 8u);
    set(cache, 31, false);
    EXPECT_EQ(cache.known, 0x80000008u);
    EXPECT_EQ(cache.value, 8u);
    set(cache, 3, false);
    EXPECT_EQ(cache.known, 0x80000008u);
    EXPECT_EQ(cache.value, 0u);
  }
}

// --- global comment lines ---------------------------------------------------

TEST(ParseBECommentOption, Marks)
{
  const char line[] = "-//x";
  EXPECT_EQ(parseBECommentOption(line), line + 1);
  const char block[] = "-BEO=//x";
  EXPECT_EQ(parseBECommentOption(block), block + 7);
  EXPECT_STREQ(parseBECommentOption("+//"), "//");
  EXPECT_STREQ(parseBECommentOption("-BEO=//"), "");
}

TEST(ParseBECommentOption, NullForOtherLines)
{
  for (const char *line : {"", "-", "-/", "-/x/", "//x", "-BEO=/", "-BEO=x//",
                           "-beo=//x", "BEO=//x", "- //", "-x//"})
    EXPECT_EQ(parseBECommentOption(line), nullptr) << line;
}

static std::vector<int> seenPositions;

static void noteComment(AsnModule &module, const char *text, int position)
{
  seen.push_back(text);
  seenPositions.push_back(position);
  // The call-back may read another line.
  readRec(module.rec, REC_TED, 1);
}

TEST_F(ModuleQueries, CommentLines)
{
  StxTree tree = stxNewTree("Mod-c", "c");
  // In kind 2 and the range's middle, behind lines of other kinds.
  const struct {
    uint8_t kind;
    const char *line;
  } rows[] = {{TED_BACK_END, "-//before"}, {TED_BACK_END, "-BEO=//one"},
              {TED_FRONT_END, "-//front"}, {TED_EMBEDDING, "-//embedding"},
              {TED_DROPPED, "-//dropped"}, {TED_BACK_END, "-V=1"},
              {TED_BACK_END, "-//two"},    {TED_BACK_END, "-//behind"}};
  for (const auto &row : rows)
    stxTed(tree, {row.kind, {}, stxStri(tree, row.line)});
  write(tree, "c");
  ModRec *c = name("c");
  std::string message;
  ASSERT_EQ(readSyntaxTree(*c, message), 0);
  AsnModule *object = newAsnModule(*c);
  EXPECT_FALSE(isGlobalCommentOption(*object));
  seenPositions.clear();
  forEachGlobalCommentOption(*object, noteComment);
  EXPECT_TRUE(seen.empty());
  c->options.commentTed = {2, 7};
  EXPECT_TRUE(isGlobalCommentOption(*object));
  forEachGlobalCommentOption(*object, noteComment);
  EXPECT_THAT(seen, ElementsAre("one", "//two"));
  EXPECT_THAT(seenPositions, ElementsAre(0, 1));
  // A first of 0 means 1.
  seen.clear();
  c->options.commentTed = {0, 2};
  forEachGlobalCommentOption(*object, noteComment);
  EXPECT_THAT(seen, ElementsAre("//before", "one"));
  delAsnModule(object);
}

TEST_F(ModuleQueries, CommentLinesNeedACallBack)
{
  EXPECT_EXIT(forEachGlobalCommentOption(*module, nullptr), ExitedWithCode(2),
              "Call-back function not defined.");
}
