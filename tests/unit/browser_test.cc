// The browser tree: order of children, look-up, printing, freeing.

#include "ade/browser.h"
#include "ade/summary.h"
#include "cbet/symboltable.h"
#include "store/module.h"
#include "support/tempdir.h"
#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::ExitedWithCode;

static std::string nameOf(const AdeBrowserNode &node)
{
  return node.name ? getSymbol(*adeBrowserSymbolTable, node.name) : "(none)";
}

static std::vector<std::string> childNames(const AdeBrowserNode &parent)
{
  std::vector<std::string> names;
  for (const AdeBrowserNode *c = parent.firstChild; c; c = c->next)
    names.push_back(nameOf(*c));
  return names;
}

// A node with a name and a line alone.
static AdeBrowserNode *newNode(const char *name, int32_t line = 0)
{
  return adeBrowserNewNode(name, nullptr, nullptr, line, nullptr, nullptr,
                           nullptr);
}

static AdeBrowserNode *insert(AdeBrowserNode *parent, const char *name,
                              int sorted)
{
  AdeBrowserNode *node = newNode(name);
  adeBrowserInsertSubNode(*parent, node, sorted);
  return node;
}

// The files "proj..." in a directory of the test's own, and the tree `root`.
struct AdeBrowser : testing::Test {
  TempDir dir;
  AdeRecord saved = adeRecord;
  AdeBrowserNode *root = nullptr;

  AdeBrowser()
  {
    adeRecord = {"proj", dir.path};
    root = adeBrowserNewProjectTree("Type", nullptr, nullptr);
  }
  ~AdeBrowser() override
  {
    adeBrowserDeleteTree(root);
    adeRecord = saved;
  }

  std::string pathOf(const char *ending) const
  {
    return dir.path + "proj" + ending;
  }
  std::string printed() const
  {
    adeBrowserPrintTree(root, nullptr);
    return readFile(pathOf(".apd"));
  }
};

// A module as the tree's functions see it.
struct TestModule {
  ModRec record;
  AsnModule module;
  explicit TestModule(const char *name)
  {
    record.moduleName = name;
    record.options.sourceDirectory = "src_dir/";
    record.options.sourceFileName = "my_file.asn";
    module.rec = &record;
  }
};

TEST_F(AdeBrowser, ProjectAlone)
{
  EXPECT_EQ(printed(), "0:proj:'':0:Type::\n");
}

TEST_F(AdeBrowser, ProjectWithSpares)
{
  adeBrowserDeleteTree(root);
  root = adeBrowserNewProjectTree("Type", "x1", "x2");
  EXPECT_EQ(printed(), "0:proj:'':0:Type:x1:x2\n");
}

TEST_F(AdeBrowser, ProjectWithoutPrefix)
{
  adeRecord.prefix.clear();
  EXPECT_EXIT(adeBrowserNewProjectTree("Type", nullptr, nullptr),
              ExitedWithCode(2),
              "Can not open file for reading\n              No ADE-PREFIX\n");
}

TEST_F(AdeBrowser, NewNode)
{
  AdeBrowserNode *node =
      adeBrowserNewNode("n", "d/", "f.c", 42, "function", "e1", "e2");
  EXPECT_EQ(node->level, 0u);
  EXPECT_EQ(node->line, 42);
  EXPECT_EQ(node->firstChild, nullptr);
  EXPECT_EQ(node->lastChild, nullptr);
  EXPECT_EQ(node->next, nullptr);
  const SymbolTable &texts = *adeBrowserSymbolTable;
  EXPECT_STREQ(getSymbol(texts, node->name), "n");
  EXPECT_STREQ(getSymbol(texts, node->directory), "d/");
  EXPECT_STREQ(getSymbol(texts, node->file), "f.c");
  EXPECT_STREQ(getSymbol(texts, node->kind), "function");
  EXPECT_STREQ(getSymbol(texts, node->extra1), "e1");
  EXPECT_STREQ(getSymbol(texts, node->extra2), "e2");
  adeBrowserInsertSubNode(*root, node, 0);
}

TEST_F(AdeBrowser, NewNodeWithoutTexts)
{
  AdeBrowserNode *node = insert(root, nullptr, 0);
  EXPECT_EQ(node->name, 0);
  EXPECT_EQ(node->directory, 0);
  EXPECT_EQ(node->file, 0);
  EXPECT_EQ(node->kind, 0);
  EXPECT_EQ(node->extra1, 0);
  EXPECT_EQ(node->extra2, 0);
}

TEST_F(AdeBrowser, SortedByOctets)
{
  for (const char *name : {"b", "a", "ab", "B", "a\x80", "az", "a-b"})
    insert(root, name, 1);
  EXPECT_THAT(childNames(*root),
              ElementsAre("B", "a", "a-b", "ab", "az", "a\x80", "b"));
  EXPECT_EQ(nameOf(*root->lastChild), "b");
}

TEST_F(AdeBrowser, UnsortedKeepsArrivalOrder)
{
  for (const char *name : {"b", "a", "c", "a"})
    insert(root, name, 0);
  EXPECT_THAT(childNames(*root), ElementsAre("b", "a", "c", "a"));
}

TEST_F(AdeBrowser, OnlyOneSorts)
{
  insert(root, "b", 1);
  insert(root, "a", 2);
  insert(root, "a", -1);
  EXPECT_THAT(childNames(*root), ElementsAre("b", "a", "a"));
}

TEST_F(AdeBrowser, EqualNamesKeepArrivalOrder)
{
  AdeBrowserNode *first = insert(root, "m", 1);
  insert(root, "z", 1);
  AdeBrowserNode *second = insert(root, "m", 1);
  insert(root, "a", 1);
  AdeBrowserNode *third = insert(root, "m", 1);
  EXPECT_THAT(childNames(*root), ElementsAre("a", "m", "m", "m", "z"));
  EXPECT_EQ(first->next, second);
  EXPECT_EQ(second->next, third);
}

TEST_F(AdeBrowser, SortedAheadOfFirstGreaterInAnyOrder)
{
  for (const char *name : {"b", "d", "a", "c"})
    insert(root, name, 0);
  AdeBrowserNode *newA = insert(root, "a", 1);
  insert(root, "c", 1);
  insert(root, "e", 1);
  EXPECT_THAT(childNames(*root),
              ElementsAre("a", "b", "c", "d", "a", "c", "e"));
  EXPECT_EQ(root->firstChild, newA);
  EXPECT_EQ(adeBrowserFindSubNode(*root, "a"), newA);
}

TEST_F(AdeBrowser, AbsentNameSortsFirst)
{
  insert(root, "a", 1);
  AdeBrowserNode *unnamed = insert(root, nullptr, 1);
  EXPECT_THAT(childNames(*root), ElementsAre("(none)", "a"));
  EXPECT_EQ(adeBrowserFindSubNode(*root, ""), unnamed);
}

TEST_F(AdeBrowser, FindsFirstOfEqualNames)
{
  insert(root, "b", 1);
  AdeBrowserNode *first = insert(root, "a", 1);
  insert(root, "a", 1);
  insert(root, "a", 0);
  EXPECT_EQ(adeBrowserFindSubNode(*root, "a"), first);
}

TEST_F(AdeBrowser, FindsExactNameOnly)
{
  AdeBrowserNode *child = insert(root, "Type", 1);
  insert(child, "Below", 1);
  for (const char *name : {"type", "Typ", "Type2", "Below", "", "proj"})
    EXPECT_EQ(adeBrowserFindSubNode(*root, name), nullptr) << name;
}

TEST_F(AdeBrowser, FindsNothingInLeaf)
{
  EXPECT_EQ(adeBrowserFindSubNode(*root, "a"), nullptr);
}

// The rule as it is said: ahead of the first child that is greater.
static void insertPlainly(std::vector<AdeBrowserNode *> &children,
                          AdeBrowserNode *node, bool sorted)
{
  auto greater = [&](const AdeBrowserNode *child) {
    return strcmp(nameOf(*child).c_str(), nameOf(*node).c_str()) > 0;
  };
  children.insert(sorted
                      ? std::find_if(children.begin(), children.end(), greater)
                      : children.end(),
                  node);
}

static void expectChildren(const AdeBrowserNode &parent,
                           const std::vector<AdeBrowserNode *> &children)
{
  const AdeBrowserNode *child = parent.firstChild;
  for (const AdeBrowserNode *wanted : children) {
    ASSERT_EQ(child, wanted);
    child = child->next;
    std::string name = nameOf(*wanted);
    const AdeBrowserNode *first = *std::find_if(
        children.begin(), children.end(),
        [&](const AdeBrowserNode *c) { return nameOf(*c) == name; });
    ASSERT_EQ(adeBrowserFindSubNode(parent, name.c_str()), first);
  }
  EXPECT_EQ(child, nullptr);
  EXPECT_EQ(parent.lastChild, children.back());
}

TEST_F(AdeBrowser, IndexAgreesWithPlainSearch)
{
  std::mt19937 random(12);
  for (unsigned round = 0; round < 60; ++round) {
    AdeBrowserNode *parent = insert(root, "parent", 0);
    std::vector<AdeBrowserNode *> children;
    for (int i = 0; i < 60; ++i) {
      std::string name(1 + random() % 2, 'a');
      for (char &c : name)
        c = static_cast<char>('a' + random() % 6);
      bool sorted = random() % 60 >= round;  // fewer and fewer sorted ones
      AdeBrowserNode *node = insert(parent, name.c_str(), sorted);
      insertPlainly(children, node, sorted);
    }
    expectChildren(*parent, children);
  }
}

// Ten seconds are far from what this takes, and as far from what a search
// through all children would take.
TEST_F(AdeBrowser, ManyChildren)
{
  auto begin = std::chrono::steady_clock::now();
  constexpr int count = 150000;
  for (int i = 0; i < count; ++i)
    insert(root, std::to_string(count + (i * 7919) % count).c_str(), 1);
  for (int i = 0; i < count; ++i)
    ASSERT_NE(adeBrowserFindSubNode(*root, std::to_string(count + i).c_str()),
              nullptr);
  EXPECT_EQ(nameOf(*root->firstChild), std::to_string(count));
  EXPECT_EQ(nameOf(*root->lastChild), std::to_string(2 * count - 1));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

TEST_F(AdeBrowser, LevelsCountFromTheRoot)
{
  AdeBrowserNode *module = insert(root, "m", 1);
  AdeBrowserNode *type = insert(module, "t", 1);
  AdeBrowserNode *function = insert(type, "f()", 0);
  EXPECT_EQ(root->level, 0u);
  EXPECT_EQ(module->level, 1u);
  EXPECT_EQ(type->level, 2u);
  EXPECT_EQ(function->level, 3u);
}

TEST_F(AdeBrowser, LevelsFollowAnInsertedTree)
{
  AdeBrowserNode *module = newNode("m");
  AdeBrowserNode *type = insert(module, "t", 1);
  AdeBrowserNode *function = insert(type, "f()", 0);
  EXPECT_EQ(type->level, 1u);
  adeBrowserInsertSubNode(*root, module, 1);
  EXPECT_EQ(module->level, 1u);
  EXPECT_EQ(type->level, 2u);
  EXPECT_EQ(function->level, 3u);
}

static std::vector<std::string> visited;

static void visit(AdeBrowserNode &node) { visited.push_back(nameOf(node)); }

TEST_F(AdeBrowser, TraversesInPreOrder)
{
  AdeBrowserNode *a = insert(root, "a", 1);
  AdeBrowserNode *b = insert(root, "b", 1);
  insert(root, "c", 1);
  insert(a, "a1", 0);
  insert(insert(b, "b1", 0), "b11", 0);
  insert(b, "b2", 0);
  visited.clear();
  adeBrowserTraverseTree(root, visit);
  EXPECT_THAT(visited,
              ElementsAre("proj", "a", "a1", "b", "b1", "b11", "b2", "c"));
  visited.clear();
  adeBrowserTraverseTree(b, visit);
  EXPECT_THAT(visited, ElementsAre("b", "b1", "b11", "b2", "c"));
}

TEST_F(AdeBrowser, TraversesNothing)
{
  visited.clear();
  adeBrowserTraverseTree(nullptr, visit);
  EXPECT_TRUE(visited.empty());
}

TEST_F(AdeBrowser, PrintsFourLevels)
{
  AdeBrowserNode *module =
      adeBrowserNewNode("My-Mod", "src/", "m.asn", 1, "ASN.1 module", "", "");
  AdeBrowserNode *type = adeBrowserNewNode("T", "src/", "m.asn", 7,
                                           "ASN.1 type", nullptr, nullptr);
  adeBrowserInsertSubNode(*root, module, 1);
  adeBrowserInsertSubNode(*module, type, 1);
  adeBrowserInsertSubNode(
      *type,
      adeBrowserNewNode("pe_T()", "out/", "m.c", 42, "function", "x%s", "y"),
      0);
  EXPECT_EQ(printed(), "0:proj:'':0:Type::\n"
                       "1:My-Mod:'src/m.asn':1:ASN.1 module::\n"
                       "2:T:'src/m.asn':7:ASN.1 type::\n"
                       "3:pe_T():'out/m.c':42:function:x%s:y\n");
}

TEST_F(AdeBrowser, PrintsAbsentTextsAsNothing)
{
  insert(root, nullptr, 0);
  adeBrowserInsertSubNode(
      *root, adeBrowserNewNode("n", nullptr, "f", 1, nullptr, nullptr, "e2"),
      0);
  EXPECT_EQ(printed(), "0:proj:'':0:Type::\n"
                       "1::'':0:::\n"
                       "1:n:'f':1:::e2\n");
}

TEST_F(AdeBrowser, PrintsNegativeLineAsZero)
{
  adeBrowserInsertSubNode(*root, newNode("a", -1), 0);
  adeBrowserInsertSubNode(*root, newNode("b", INT32_MIN), 0);
  adeBrowserInsertSubNode(*root, newNode("c", INT32_MAX), 0);
  EXPECT_EQ(printed(), "0:proj:'':0:Type::\n"
                       "1:a:'':0:::\n"
                       "1:b:'':0:::\n"
                       "1:c:'':2147483647:::\n");
}

TEST_F(AdeBrowser, PrintsToTheGivenEnding)
{
  adeBrowserPrintTree(root, ".x");
  EXPECT_EQ(readFile(pathOf(".x")), "0:proj:'':0:Type::\n");
  EXPECT_FALSE(fileExists(pathOf(".apd")));
}

TEST_F(AdeBrowser, PrintsOverAnEarlierFile)
{
  writeFile(pathOf(".apd"), std::string(100, 'x'));
  EXPECT_EQ(printed(), "0:proj:'':0:Type::\n");
}

TEST_F(AdeBrowser, PrintsNoNodeOutsideATree)
{
  adeBrowserPrintNode(*root);
  EXPECT_TRUE(std::filesystem::is_empty(dir.path));
  printed();
  adeBrowserPrintNode(*root);
  EXPECT_EQ(readFile(pathOf(".apd")), "0:proj:'':0:Type::\n");
}

TEST_F(AdeBrowser, PrintWithoutPrefix)
{
  adeRecord.prefix.clear();
  EXPECT_EXIT(adeBrowserPrintTree(root, ".apd"), ExitedWithCode(2),
              "Can not open file for writing\n              No ADE-PREFIX\n");
}

TEST_F(AdeBrowser, UnclosableIsFatal)
{
  std::filesystem::create_symlink("/dev/full", pathOf(".apd"));
  EXPECT_EXIT(adeBrowserPrintTree(root, ".apd"), ExitedWithCode(2),
              "Can not close file\n              " + pathOf(".apd"));
}

TEST_F(AdeBrowser, ModuleNode)
{
  TestModule test("My_Own_Module");
  AdeBrowserNode *node =
      adeBrowserNewModuleNode(test.module, "ASN.1 module", "x1", "x2");
  EXPECT_EQ(node->level, 0u);
  EXPECT_EQ(node->next, nullptr);
  adeBrowserInsertSubNode(*root, node, 1);
  // Only the name changes its underscores.
  EXPECT_EQ(printed(), "0:proj:'':0:Type::\n"
                       "1:My-Own-Module:'src_dir/my_file.asn':1:ASN.1 module:"
                       "x1:x2\n");
}

TEST_F(AdeBrowser, ModuleNodeWithoutSource)
{
  TestModule test("M");
  test.record.options.sourceDirectory = nullptr;
  test.record.options.sourceFileName = nullptr;
  adeBrowserInsertSubNode(
      *root, adeBrowserNewModuleNode(test.module, "k", nullptr, nullptr), 1);
  EXPECT_EQ(printed(), "0:proj:'':0:Type::\n1:M:'':1:k::\n");
}

TEST_F(AdeBrowser, FindsModuleNode)
{
  g_adeBrowserTree = root;
  AdeBrowserNode *node = insert(root, "My-Module", 1);
  TestModule test("My_Module");
  EXPECT_EQ(
      adeBrowserFindOrCreateModuleNode(test.module, "k", nullptr, nullptr),
      node);
  EXPECT_THAT(childNames(*root), ElementsAre("My-Module"));
}

TEST_F(AdeBrowser, CreatesModuleNodeInOrder)
{
  g_adeBrowserTree = root;
  insert(root, "A", 1);
  insert(root, "Z", 1);
  TestModule test("My_Module");
  AdeBrowserNode *node =
      adeBrowserFindOrCreateModuleNode(test.module, "k", nullptr, nullptr);
  EXPECT_EQ(node->level, 1u);
  EXPECT_EQ(
      adeBrowserFindOrCreateModuleNode(test.module, "k", nullptr, nullptr),
      node);
  EXPECT_THAT(childNames(*root), ElementsAre("A", "My-Module", "Z"));
}

TEST_F(AdeBrowser, CreatesModuleNodeWithoutTree)
{
  ASSERT_EQ(g_adeBrowserTree, nullptr);
  TestModule test("My_Module");
  AdeBrowserNode *node =
      adeBrowserFindOrCreateModuleNode(test.module, "k", nullptr, nullptr);
  EXPECT_EQ(nameOf(*node), "My-Module");
  EXPECT_EQ(root->firstChild, nullptr);
  adeBrowserInsertSubNode(*root, node, 0);
}

TEST_F(AdeBrowser, DeleteClearsTheRunsNodes)
{
  g_adeBrowserTree = root;
  g_adeModuleNode = insert(root, "m", 1);
  g_adeTypeNode = insert(g_adeModuleNode, "t", 1);
  adeBrowserDeleteTree(root);
  root = nullptr;
  EXPECT_EQ(g_adeBrowserTree, nullptr);
  EXPECT_EQ(g_adeModuleNode, nullptr);
  EXPECT_EQ(g_adeTypeNode, nullptr);
  EXPECT_EQ(adeBrowserSymbolTable, nullptr);
}

TEST_F(AdeBrowser, DeleteOfAnotherTree)
{
  AdeBrowserNode other;
  g_adeBrowserTree = &other;
  adeBrowserDeleteTree(root);
  root = nullptr;
  EXPECT_EQ(g_adeBrowserTree, &other);
  g_adeBrowserTree = nullptr;
}

TEST_F(AdeBrowser, DeleteOfNothing)
{
  adeBrowserDeleteTree(root);
  root = nullptr;
  adeBrowserDeleteTree(nullptr);
  EXPECT_EQ(adeBrowserSymbolTable, nullptr);
}

TEST_F(AdeBrowser, NodesAreFreshWhenUsedAgain)
{
  for (int run = 0; run < 3; ++run) {
    for (const char *name : {"c", "a", "b"})
      insert(insert(root, name, 1), "below", 1);
    EXPECT_EQ(printed(), "0:proj:'':0:Type::\n"
                         "1:a:'':0:::\n2:below:'':0:::\n"
                         "1:b:'':0:::\n2:below:'':0:::\n"
                         "1:c:'':0:::\n2:below:'':0:::\n");
    adeBrowserDeleteTree(root);
    root = adeBrowserNewProjectTree("Type", nullptr, nullptr);
    EXPECT_EQ(root->firstChild, nullptr);
    EXPECT_EQ(adeBrowserFindSubNode(*root, "a"), nullptr);
  }
}
