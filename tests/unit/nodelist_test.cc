// Lists of nodes: dynamic nodes with their free chain, and the stack-like
// lists of records.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "store/nodelist.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;

// One module with four types, four values and four constraints.
struct NodeLists : testing::Test {
  TempDir dir;
  ModRec *module = nullptr;
  NodeList list;

  NodeLists()
  {
    resetStore();
    resetParams();
    stxDir = dir.path;
    StxTree tree = stxNewTree("M", "m");
    for (int i = 1; i <= 4; ++i) {
      TNode type = stxNewTNode(TYP_NULL);
      type.line = 10 * i;
      stxDefineType(tree, "T" + std::to_string(i), type);
      stxDefineValue(tree, "v" + std::to_string(i), stxNewInteger(1, i));
      stxSub(tree, stxNewSub(SUB_SIZE, i));
    }
    stxWrite(tree, (dir.path + "m.stx").c_str());
    module = appendModRec(true);
    setModulePrefixes(*module, "m", "m");
    std::string message;
    EXPECT_EQ(readTree(*module, message), 0);
    clearCursors();
  }
  ~NodeLists() override
  {
    deleteNodes(list);
    resetStore();
    stxDir.clear();
  }
  void add(int kind, int32_t index)
  {
    readRec(module, kind, index);
    addFstNode(list);
  }
};

static std::vector<int32_t> indexesOf(const NodeList &list)
{
  std::vector<int32_t> indexes;
  for (NodeElemRec *element = list.first; element; element = element->next)
    indexes.push_back(element->index);
  return indexes;
}

// --- node element lists -----------------------------------------------------

TEST_F(NodeLists, ListKindNumbers)
{
  EXPECT_EQ(NODES_TYPES, 1);
  EXPECT_EQ(NODES_VALUES, 3);
  EXPECT_EQ(NODES_CONSTRAINTS, 5);
}

TEST_F(NodeLists, AddFstNodePushes)
{
  add(REC_TNODE, 2);
  add(REC_TNODE, 3);
  add(REC_TNODE, 3);
  EXPECT_THAT(indexesOf(list), ElementsAre(3, 3, 2));
  EXPECT_EQ(list.first->module, module);
}

// The kind of the list says which cursor counts.
TEST_F(NodeLists, AddFstNodeByKind)
{
  readRec(module, REC_TNODE, 1);
  readRec(module, REC_VNODE, 2);
  readRec(module, REC_SUB, 3);
  NodeList values{NODES_VALUES, nullptr}, subs{NODES_CONSTRAINTS, nullptr};
  addFstNode(list);
  addFstNode(values);
  addFstNode(subs);
  EXPECT_THAT(indexesOf(list), ElementsAre(1));
  EXPECT_THAT(indexesOf(values), ElementsAre(2));
  EXPECT_THAT(indexesOf(subs), ElementsAre(3));
  deleteNodes(values);
  deleteNodes(subs);
}

TEST_F(NodeLists, DelFstNodePops)
{
  add(REC_TNODE, 1);
  add(REC_TNODE, 2);
  delFstNode(list);
  EXPECT_THAT(indexesOf(list), ElementsAre(1));
  delFstNode(list);
  EXPECT_EQ(list.first, nullptr);
  EXPECT_EXIT(delFstNode(list), ExitedWithCode(2), "Internal error");
}

TEST_F(NodeLists, MvFstNode)
{
  NodeList target;
  add(REC_TNODE, 1);
  add(REC_TNODE, 2);
  add(REC_TNODE, 3);
  mvFstNode(target, list);
  mvFstNode(target, list);
  EXPECT_THAT(indexesOf(list), ElementsAre(1));
  EXPECT_THAT(indexesOf(target), ElementsAre(2, 3));
  mvFstNode(target, list);
  EXPECT_EXIT(mvFstNode(target, list), ExitedWithCode(2), "Internal error");
  EXPECT_THAT(indexesOf(target), ElementsAre(1, 2, 3));
  deleteNodes(target);
}

TEST_F(NodeLists, PushNodeUnique)
{
  readRec(module, REC_TNODE, 1);
  EXPECT_TRUE(pushNodeUnique(list));
  EXPECT_FALSE(pushNodeUnique(list));
  readRec(module, REC_TNODE, 2);
  EXPECT_TRUE(pushNodeUnique(list));
  readRec(module, REC_TNODE, 1);
  EXPECT_FALSE(pushNodeUnique(list));
  EXPECT_THAT(indexesOf(list), ElementsAre(2, 1));
}

// The other cursors don't count.
TEST_F(NodeLists, PushNodeUniqueByKind)
{
  NodeList values{NODES_VALUES, nullptr}, subs{NODES_CONSTRAINTS, nullptr};
  readRec(module, REC_VNODE, 1);
  readRec(module, REC_SUB, 1);
  EXPECT_TRUE(pushNodeUnique(values));
  EXPECT_TRUE(pushNodeUnique(subs));
  readRec(module, REC_VNODE, 2);
  EXPECT_TRUE(pushNodeUnique(values));
  EXPECT_FALSE(pushNodeUnique(subs));
  EXPECT_THAT(indexesOf(values), ElementsAre(2, 1));
  EXPECT_THAT(indexesOf(subs), ElementsAre(1));
  deleteNodes(values);
  deleteNodes(subs);
}

TEST_F(NodeLists, UnknownKind)
{
  for (int kind : {0, 2, 4, 6, -1, 99}) {
    NodeList bad{kind};
    EXPECT_EXIT(addFstNode(bad), ExitedWithCode(2), "Internal error") << kind;
    EXPECT_EXIT(pushNodeUnique(bad), ExitedWithCode(2), "Internal error")
        << kind;
  }
}

// Equal numbers in two modules are two records.
TEST_F(NodeLists, PushNodeUniqueTellsModulesApart)
{
  ModRec *other = appendModRec(true);
  setModulePrefixes(*other, "m", "m");
  std::string message;
  ASSERT_EQ(readTree(*other, message), 0);
  readRec(module, REC_TNODE, 1);
  EXPECT_TRUE(pushNodeUnique(list));
  readRec(other, REC_TNODE, 1);
  EXPECT_TRUE(pushNodeUnique(list));
  EXPECT_FALSE(pushNodeUnique(list));
}

TEST_F(NodeLists, DeleteNodes)
{
  deleteNodes(list);
  EXPECT_EQ(list.first, nullptr);
  for (int i = 0; i < 25; ++i)
    add(REC_TNODE, 1 + i % 4);
  deleteNodes(list);
  EXPECT_EQ(list.first, nullptr);
}

TEST_F(NodeLists, InnerAndOuterStructure)
{
  add(REC_TNODE, 1);
  add(REC_TNODE, 2);
  add(REC_TNODE, 3);
  EXPECT_TRUE(outerEnclStru(list));
  EXPECT_EQ(tNode.line, 10);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 1);
  EXPECT_TRUE(innerEnclStru(list));
  EXPECT_EQ(tNode.line, 30);
}

TEST_F(NodeLists, InnerAndOuterValue)
{
  list.kind = NODES_VALUES;
  add(REC_VNODE, 4);
  add(REC_VNODE, 2);
  EXPECT_TRUE(outerEnclStru(list));
  EXPECT_EQ(payloadInt64(vNode).low, 4u);
  EXPECT_TRUE(innerEnclStru(list));
  EXPECT_EQ(payloadInt64(vNode).low, 2u);
}

TEST_F(NodeLists, NoStructureOfOtherLists)
{
  readRec(module, REC_TNODE, 4);
  EXPECT_FALSE(outerEnclStru(list));
  EXPECT_FALSE(innerEnclStru(list));
  add(REC_TNODE, 4);
  for (int kind : {int{NODES_CONSTRAINTS}, 0, 2, 4, 99}) {
    list.kind = kind;
    EXPECT_FALSE(outerEnclStru(list)) << kind;
    EXPECT_FALSE(innerEnclStru(list)) << kind;
  }
  EXPECT_EQ(tNode.line, 40);
}

// --- dynamic nodes ----------------------------------------------------------

static int lengthOf(const DynaNode *node)
{
  int length = 0;
  for (; node; node = node->next)
    ++length;
  return length;
}

TEST_F(NodeLists, InsDynaNodeAppends)
{
  DynaNode *head = nullptr, *tail = nullptr;
  readRec(module, REC_TNODE, 2);
  DynaNode *first = insDynaNode(head, tail);
  EXPECT_EQ(head, first);
  EXPECT_EQ(tail, first);
  readRec(module, REC_TNODE, 3);
  DynaNode *second = insDynaNode(head, tail);
  EXPECT_EQ(head, first);
  EXPECT_EQ(tail, second);
  EXPECT_EQ(first->next, second);
  EXPECT_EQ(second->prev, first);
  EXPECT_EQ(first->prev, nullptr);
  EXPECT_EQ(second->next, nullptr);
  EXPECT_EQ(first->module, module);
  EXPECT_EQ(first->record, 2);
  EXPECT_EQ(second->record, 3);
  delDynaNodes(head, tail);
}

static void expectFresh(const DynaNode &node)
{
  EXPECT_EQ(node.tagClass, 5);
  EXPECT_EQ(node.tagNumber, -1);
  EXPECT_EQ(node.embeddingKind, 0);
  EXPECT_EQ(node.embedding.first, 0);
  EXPECT_EQ(node.embedding.last, 0);
  EXPECT_EQ(node.nextInner, nullptr);
  EXPECT_EQ(node.subFirst, nullptr);
  EXPECT_EQ(node.subLast, nullptr);
}

TEST_F(NodeLists, DynaNodeIsFreshAgain)
{
  DynaNode *head = nullptr, *tail = nullptr;
  DynaNode *node = insDynaNode(head, tail);
  expectFresh(*node);
  node->tagClass = 2;
  node->tagNumber = 7;
  node->embeddingKind = 3;
  node->embedding = {1, 2};
  node->nextInner = node;
  delDynaNodes(head, tail);
  EXPECT_EQ(insDynaNode(head, tail), node);
  expectFresh(*node);
  EXPECT_EQ(node->prev, nullptr);
  EXPECT_EQ(node->next, nullptr);
  delDynaNodes(head, tail);
}

TEST_F(NodeLists, DelDynaNodesFreesSubListsToo)
{
  DynaNode *head = nullptr, *tail = nullptr;
  for (int i = 0; i < 3; ++i) {
    DynaNode *node = insDynaNode(head, tail);
    for (int k = 0; k < i; ++k)
      insDynaNode(node->subFirst, node->subLast);
  }
  insDynaNode(tail->subFirst->subFirst, tail->subFirst->subLast);
  int before = lengthOf(availDynaPtr);
  delDynaNodes(head, tail);
  EXPECT_EQ(head, nullptr);
  EXPECT_EQ(tail, nullptr);
  // Three nodes, 0 + 1 + 2 below them and one more below the first of these.
  EXPECT_EQ(lengthOf(availDynaPtr), before + 7);
}

TEST_F(NodeLists, FreeDynaNodesAreTakenFirst)
{
  DynaNode *head = nullptr, *tail = nullptr;
  insDynaNode(head, tail);
  insDynaNode(head, tail);
  delDynaNodes(head, tail);
  int before = lengthOf(availDynaPtr);
  insDynaNode(head, tail);
  EXPECT_EQ(lengthOf(availDynaPtr), before - 1);
  delDynaNodes(head, tail);
  EXPECT_EQ(lengthOf(availDynaPtr), before);
}

TEST_F(NodeLists, DelDynaNodesOfNothing)
{
  DynaNode *head = nullptr, *tail = nullptr;
  DynaNode *before = availDynaPtr;
  delDynaNodes(head, tail);
  EXPECT_EQ(availDynaPtr, before);
}
