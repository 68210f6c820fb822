// Access to records and strings by (module, kind, index): buffers, cursors,
// chains, and the points where access fails.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "store/treestore.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ExitedWithCode;

static const char noRead[] = "Can not read record from syntax tree";
static const char noWrite[] = "Can not write record into syntax tree";

// Two modules, "a" with three types and three values in a chain, "b" with
// two of each.
struct TreeStore : testing::Test {
  TempDir dir;
  ModRec *a = nullptr;
  ModRec *b = nullptr;

  TreeStore()
  {
    resetStore();
    resetParams();
    stxDir = dir.path;
    a = load("a", 3);
    b = load("b", 2);
    clearCursors();
  }
  ~TreeStore() override
  {
    resetStore();
    stxDir.clear();
  }
  ModRec *load(const std::string &prefix, int nodes)
  {
    StxTree tree = stxNewTree("Mod-" + prefix, prefix);
    for (int i = 1; i <= nodes; ++i) {
      std::string number = std::to_string(i);
      TNode type = stxNewTNode(TYP_INTEGER);
      type.line = 100 * i;
      stxDefineType(tree, "T" + number, type);
      VNode value = stxNewInteger(i, i);
      value.line = 1000 * i;
      stxDefineValue(tree, "v" + number, value);
    }
    stxTag(tree, {2, 1, 77, 0});
    stxSub(tree, stxNewSub(SUB_SIZE, 5));
    stxTed(tree, {TED_BACK_END, {}, 1});
    stxLink(tree, stxNewLink(3));
    stxStri16(tree, u"wide");
    stxStri32(tree, U"wider");
    stxWrite(tree, (dir.path + prefix + ".stx").c_str());
    return loadFile(prefix);
  }
  ModRec *loadFile(const std::string &prefix)
  {
    ModRec *module = appendModRec(true);
    setModulePrefixes(*module, prefix.c_str(), prefix.c_str());
    std::string message;
    EXPECT_EQ(readTree(*module, message), 0);
    return module;
  }
};

// --- reading ----------------------------------------------------------------

TEST_F(TreeStore, FindRPosGivesTheStoredRecord)
{
  TNode *second = static_cast<TNode *>(findRPos(a, REC_TNODE, 2));
  EXPECT_EQ(second->line, 200);
  EXPECT_EQ(findRPos(a, REC_TNODE, 2), second);
  EXPECT_STREQ(static_cast<char *>(findRPos(a, REC_STRI, 1)), "Mod_a");
  EXPECT_EQ(findRPos(a, REC_STRI, 1), getStri(a, 1));
}

TEST_F(TreeStore, FindRPosLeavesBufferAndCursor)
{
  readRec(a, REC_TNODE, 1);
  findRPos(b, REC_TNODE, 2);
  EXPECT_EQ(tNode.line, 100);
  EXPECT_EQ(recJustRead[REC_TNODE].module, a);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 1);
}

TEST_F(TreeStore, FindRPosFails)
{
  EXPECT_EXIT(findRPos(nullptr, REC_TNODE, 1), ExitedWithCode(2), noRead);
  for (int32_t index : {0, -1, 4, INT32_MIN, INT32_MAX})
    EXPECT_EXIT(findRPos(a, REC_TNODE, index), ExitedWithCode(2), noRead);
  for (int kind : {10, 11, 12, 13, 14, -1})
    EXPECT_EXIT(findRPos(a, kind, 1), ExitedWithCode(2), noRead);
}

TEST_F(TreeStore, FindRPosFailsBehindEachSection)
{
  for (int kind = 0; kind < storedKinds; ++kind) {
    int32_t count =
        static_cast<MNode *>(findRPos(a, REC_MNODE, 1))->counts[kind];
    ASSERT_GE(count, 1) << kind;
    EXPECT_NE(findRPos(a, kind, count), nullptr) << kind;
    EXPECT_EXIT(findRPos(a, kind, count + 1), ExitedWithCode(2), noRead);
    EXPECT_EXIT(findRPos(a, kind, 0), ExitedWithCode(2), noRead);
  }
}

TEST_F(TreeStore, ReadRecFillsEachBuffer)
{
  readRec(a, REC_MNODE, 1);
  EXPECT_EQ(mNode.counts[REC_TNODE], 3);
  readRec(a, REC_TNODE, 3);
  EXPECT_EQ(tNode.line, 300);
  readRec(a, REC_VNODE, 2);
  EXPECT_EQ(vNode.line, 2000);
  readRec(a, REC_TAG, 1);
  EXPECT_EQ(tagRec.tagNumber, 77);
  readRec(a, REC_SUB, 1);
  EXPECT_EQ(subRec.operand1, 5);
  readRec(a, REC_TED, 1);
  EXPECT_EQ(tedRec.text, 1);
  readRec(a, REC_SNODE, 1);
  EXPECT_EQ(sNode.target, 3);
}

TEST_F(TreeStore, ReadRecMovesTheCursorOfItsKind)
{
  readRec(a, REC_TNODE, 3);
  readRec(b, REC_VNODE, 2);
  EXPECT_EQ(recJustRead[REC_TNODE].module, a);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 3);
  EXPECT_EQ(currTPtr[REC_TNODE], a);
  EXPECT_EQ(recJustRead[REC_VNODE].module, b);
  EXPECT_EQ(recJustRead[REC_VNODE].index, 2);
  EXPECT_EQ(currTPtr[REC_VNODE], b);
  EXPECT_EQ(recJustRead[REC_TAG].module, nullptr);
  EXPECT_EQ(currTPtr[REC_TAG], nullptr);
}

TEST_F(TreeStore, ReadRecAgainKeepsAnEdit)
{
  readRec(a, REC_TNODE, 2);
  tNode.line = 4711;
  readRec(a, REC_TNODE, 2);
  EXPECT_EQ(tNode.line, 4711);
  // Another record, or another module, is read truly.
  readRec(b, REC_TNODE, 2);
  EXPECT_EQ(tNode.line, 200);
  readRec(a, REC_TNODE, 2);
  EXPECT_EQ(tNode.line, 200);
}

TEST_F(TreeStore, ReadRecFails)
{
  EXPECT_EXIT(readRec(nullptr, REC_TNODE, 1), ExitedWithCode(2), noRead);
  EXPECT_EXIT(readRec(nullptr, REC_TNODE, 0), ExitedWithCode(2), noRead);
  for (int32_t index : {0, -1, 4, INT32_MIN, INT32_MAX})
    EXPECT_EXIT(readRec(a, REC_TNODE, index), ExitedWithCode(2), noRead);
  // Strings and unused kinds have no buffer, idle kinds no records.
  for (int kind : {7, 8, 9, 10, 11, 12, 13})
    EXPECT_EXIT(readRec(a, kind, 1), ExitedWithCode(2), noRead);
}

// --- writing ----------------------------------------------------------------

TEST_F(TreeStore, WriteRecStoresTheBuffer)
{
  readRec(a, REC_TNODE, 1);
  tNode.line = 4711;
  writeRec(a, REC_TNODE, 2);
  EXPECT_EQ(static_cast<TNode *>(findRPos(a, REC_TNODE, 2))->line, 4711);
  EXPECT_EQ(static_cast<TNode *>(findRPos(a, REC_TNODE, 1))->line, 100);
  EXPECT_EQ(static_cast<TNode *>(findRPos(b, REC_TNODE, 2))->line, 200);
  EXPECT_EQ(recJustRead[REC_TNODE].module, a);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 2);
  EXPECT_EQ(currTPtr[REC_TNODE], a);
  EXPECT_EQ(writePend[REC_TNODE].index, 0);
}

TEST_F(TreeStore, WriteRecAppends)
{
  int64_t before = recordsOfRun(REC_TED);
  tedRec = {TED_BACK_END, {}, 2};
  writeRec(a, REC_TED, 2);
  EXPECT_EQ(static_cast<TedRec *>(findRPos(a, REC_TED, 2))->text, 2);
  EXPECT_EQ(static_cast<TedRec *>(findRPos(a, REC_TED, 1))->text, 1);
  EXPECT_EQ(recordsOfRun(REC_TED), before + 1);
  writeRec(a, REC_TED, 2);
  EXPECT_EQ(recordsOfRun(REC_TED), before + 1);
  EXPECT_EXIT(findRPos(b, REC_TED, 2), ExitedWithCode(2), noRead);
}

TEST_F(TreeStore, WriteRecLeavesNoRecordsBetween)
{
  tedRec = {TED_BACK_END, {}, 3};
  writeRec(a, REC_TED, 5);
  EXPECT_EXIT(readRec(a, REC_TED, 3), ExitedWithCode(2), noRead);
  EXPECT_EXIT(findRPos(a, REC_TED, 4), ExitedWithCode(2), noRead);
  tedRec.text = 4;
  writeRec(a, REC_TED, 3);
  EXPECT_EXIT(readRec(a, REC_TED, 2), ExitedWithCode(2), noRead);
  EXPECT_EXIT(readRec(a, REC_TED, 4), ExitedWithCode(2), noRead);
  EXPECT_EXIT(readRec(a, REC_TED, 6), ExitedWithCode(2), noRead);
  readRec(a, REC_TED, 3);
  EXPECT_EQ(tedRec.text, 4);
  readRec(a, REC_TED, 1);
  EXPECT_EQ(tedRec.text, 1);
  readRec(a, REC_TED, 5);
  EXPECT_EQ(tedRec.text, 3);
}

// In an empty section, too, only what was written is there.
TEST_F(TreeStore, WriteRecIntoAnEmptySection)
{
  int64_t before = recordsOfRun(REC_STAB);
  sTabRec = {};
  sTabRec.octets[27] = 9;
  writeRec(a, REC_STAB, 3);
  EXPECT_EQ(recordsOfRun(REC_STAB), before + 1);
  EXPECT_EXIT(readRec(a, REC_STAB, 1), ExitedWithCode(2), noRead);
  EXPECT_EXIT(readRec(a, REC_STAB, 2), ExitedWithCode(2), noRead);
  sTabRec.octets[27] = 0;
  writeRec(a, REC_STAB, 4);
  readRec(a, REC_STAB, 3);
  EXPECT_EQ(sTabRec.octets[27], 9);
}

TEST_F(TreeStore, FindWPosMakesAZeroedRecord)
{
  InstRec *made = static_cast<InstRec *>(findWPos(a, REC_INST, 1));
  EXPECT_THAT(made->octets, ElementsAre(0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(findRPos(a, REC_INST, 1), made);
  EXPECT_EQ(findWPos(a, REC_INST, 1), made);
  // A record that is there already keeps what it holds.
  EXPECT_EQ(static_cast<TNode *>(findWPos(a, REC_TNODE, 2))->line, 200);
}

TEST_F(TreeStore, IdleKindsHaveBuffers)
{
  instRec = {{1, 2, 3, 4, 5, 6, 7, 8}};
  writeRec(b, REC_INST, 1);
  instRec = {};
  writeRec(b, REC_INST, 2);
  readRec(b, REC_INST, 1);
  EXPECT_EQ(instRec.octets[7], 8);
}

TEST_F(TreeStore, WriteRecFails)
{
  EXPECT_EXIT(writeRec(nullptr, REC_TNODE, 1), ExitedWithCode(2), noWrite);
  for (int32_t index : {0, -1, INT32_MIN, 2147483641, INT32_MAX})
    EXPECT_EXIT(writeRec(a, REC_TNODE, index), ExitedWithCode(2), noWrite);
  for (int kind : {7, 8, 9, 12, 13})
    EXPECT_EXIT(writeRec(a, kind, 1), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(findWPos(nullptr, REC_TED, 1), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(findWPos(a, REC_TED, 0), ExitedWithCode(2), noWrite);
}

TEST_F(TreeStore, FlushRecsHasNothingToWrite)
{
  readRec(a, REC_TNODE, 1);
  tNode.line = 4711;
  flushRecs(REC_TNODE);
  flushRecs(-1);
  EXPECT_EQ(static_cast<TNode *>(findRPos(a, REC_TNODE, 1))->line, 100);
  EXPECT_EQ(tNode.line, 4711);
  for (const RecPlace &pending : writePend)
    EXPECT_EQ(pending.index, 0);
}

TEST_F(TreeStore, ChangeCMP)
{
  readRec(a, REC_TNODE, 1);
  changeCMP(b);
  EXPECT_EQ(cMP, b);
  for (const RecPlace &pending : writePend) {
    EXPECT_EQ(pending.module, b);
    EXPECT_EQ(pending.index, 0);
  }
  EXPECT_EQ(recJustRead[REC_TNODE].module, a);
  EXPECT_EQ(tNode.line, 100);
}

// --- contexts ---------------------------------------------------------------

TEST_F(TreeStore, RestoreNodeContext)
{
  NodeContext context;
  readRec(a, REC_TNODE, 2);
  saveNodeContext(REC_TNODE, &context);
  EXPECT_EQ(context.module, a);
  EXPECT_EQ(context.index, 2);
  readRec(b, REC_TNODE, 1);
  restoreNodeContext(REC_TNODE, &context);
  EXPECT_EQ(tNode.line, 200);
  EXPECT_EQ(recJustRead[REC_TNODE].module, a);
  EXPECT_EQ(currTPtr[REC_TNODE], a);
}

TEST_F(TreeStore, RestoreNodeContextKeepsAnEdit)
{
  NodeContext context;
  readRec(a, REC_TNODE, 2);
  tNode.line = 4711;
  saveNodeContext(REC_TNODE, &context);
  restoreNodeContext(REC_TNODE, &context);
  EXPECT_EQ(tNode.line, 4711);
}

// Nothing was current before: the buffer stays where it has moved to.
TEST_F(TreeStore, RestoreNodeContextOfNothing)
{
  NodeContext context;
  saveNodeContext(REC_TNODE, &context);
  readRec(a, REC_TNODE, 2);
  restoreNodeContext(REC_TNODE, &context);
  EXPECT_EQ(tNode.line, 200);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 2);
  // Both halves are needed.
  context = {b, 0};
  restoreNodeContext(REC_TNODE, &context);
  context = {nullptr, 1};
  restoreNodeContext(REC_TNODE, &context);
  EXPECT_EQ(tNode.line, 200);
}

TEST_F(TreeStore, SavedNode)
{
  readRec(a, REC_TNODE, 2);
  readRec(a, REC_VNODE, 1);
  {
    SavedNode saved(REC_TNODE);
    readRec(b, REC_TNODE, 1);
    readRec(b, REC_VNODE, 2);
  }
  EXPECT_EQ(recJustRead[REC_TNODE].module, a);
  EXPECT_EQ(tNode.line, 200);
  EXPECT_EQ(recJustRead[REC_VNODE].module, b);
}

TEST_F(TreeStore, ClearCursors)
{
  readRec(a, REC_TNODE, 2);
  changeCMP(a);
  clearCursors();
  for (int kind = 0; kind < REC_COUNT; ++kind) {
    EXPECT_EQ(currTPtr[kind], nullptr);
    EXPECT_EQ(recJustRead[kind].module, nullptr);
    EXPECT_EQ(recJustRead[kind].index, 0);
    EXPECT_EQ(writePend[kind].module, nullptr);
    EXPECT_EQ(writePend[kind].index, 0);
  }
}

// --- chains -----------------------------------------------------------------

typedef std::vector<int32_t> Lines;

static void noteTypeLine(void *argument)
{
  static_cast<Lines *>(argument)->push_back(tNode.line);
}

static void noteValueLine(void *argument)
{
  static_cast<Lines *>(argument)->push_back(vNode.line);
}

TEST_F(TreeStore, ForEachTNodeByMod)
{
  Lines lines;
  forEachTNodeByMod(a, 1, noteTypeLine, &lines);
  EXPECT_THAT(lines, ElementsAre(100, 200, 300));
  lines.clear();
  forEachTNodeByMod(b, 2, noteTypeLine, &lines);
  EXPECT_THAT(lines, ElementsAre(200));
}

TEST_F(TreeStore, ForEachTNodeByModOfNothing)
{
  Lines lines;
  readRec(a, REC_TNODE, 2);
  forEachTNodeByMod(a, 0, noteTypeLine, &lines);
  EXPECT_TRUE(lines.empty());
  EXPECT_EQ(tNode.line, 200);
}

TEST_F(TreeStore, ForEachTNodeByModRestoresTheCursor)
{
  Lines lines;
  readRec(b, REC_TNODE, 2);
  forEachTNodeByMod(a, 1, noteTypeLine, &lines);
  EXPECT_EQ(recJustRead[REC_TNODE].module, b);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 2);
  EXPECT_EQ(currTPtr[REC_TNODE], b);
}

TEST_F(TreeStore, CallBackMayReadWhatItLikes)
{
  struct Walk {
    ModRec *elsewhere;
    Lines lines;
  } walk{b, {}};
  forEachTNodeByMod(
      a, 1,
      [](void *argument) {
        Walk &w = *static_cast<Walk *>(argument);
        w.lines.push_back(tNode.line);
        readRec(w.elsewhere, REC_TNODE, 2);
      },
      &walk);
  EXPECT_THAT(walk.lines, ElementsAre(100, 200, 300));

  walk.lines.clear();
  readRec(a, REC_VNODE, 3);
  forEachVNode(
      1,
      [](void *argument) {
        Walk &w = *static_cast<Walk *>(argument);
        w.lines.push_back(vNode.line);
        readRec(w.elsewhere, REC_VNODE, 2);
      },
      &walk);
  EXPECT_THAT(walk.lines, ElementsAre(1000, 2000, 3000));
  EXPECT_EQ(recJustRead[REC_VNODE].module, a);
  EXPECT_EQ(recJustRead[REC_VNODE].index, 3);
}

TEST_F(TreeStore, ForEachVNodeInTheModuleOfTheCursor)
{
  Lines lines;
  readRec(b, REC_VNODE, 2);
  forEachVNode(1, noteValueLine, &lines);
  EXPECT_THAT(lines, ElementsAre(1000, 2000));
  EXPECT_EQ(vNode.line, 2000);
  lines.clear();
  forEachVNode(0, noteValueLine, &lines);
  EXPECT_TRUE(lines.empty());
}

TEST_F(TreeStore, ForEachVNodeWithoutAModule)
{
  Lines lines;
  EXPECT_EXIT(forEachVNode(1, noteValueLine, &lines), ExitedWithCode(2),
              noRead);
  forEachVNode(0, noteValueLine, &lines);
  EXPECT_TRUE(lines.empty());
}

TEST_F(TreeStore, ChainsNeedACallBack)
{
  EXPECT_EXIT(forEachTNodeByMod(a, 1, nullptr, nullptr), ExitedWithCode(2),
              "Call-back function not defined.");
  readRec(a, REC_VNODE, 1);
  EXPECT_EXIT(forEachVNode(1, nullptr, nullptr), ExitedWithCode(2),
              "Call-back function not defined.");
}

static void ignoreNode(void *) {}

TEST_F(TreeStore, CyclicChains)
{
  static_cast<TNode *>(findRPos(b, REC_TNODE, 2))->next = 1;
  static_cast<VNode *>(findRPos(a, REC_VNODE, 2))->next = 2;
  EXPECT_EXIT(forEachTNodeByMod(b, 1, ignoreNode, nullptr), ExitedWithCode(2),
              "Syntax tree inconsistent\n +b\n");
  readRec(a, REC_VNODE, 1);
  EXPECT_EXIT(forEachVNode(1, ignoreNode, nullptr), ExitedWithCode(2),
              "Syntax tree inconsistent\n +a\n");
}

TEST_F(TreeStore, ChainIntoNothing)
{
  static_cast<TNode *>(findRPos(a, REC_TNODE, 3))->next = 9;
  EXPECT_EXIT(forEachTNodeByMod(a, 1, ignoreNode, nullptr), ExitedWithCode(2),
              noRead);
}

TEST_F(TreeStore, ChainGuardAllowsAllRecordsOfTheRun)
{
  EXPECT_EQ(recordsOfRun(REC_TNODE), 5);
  EXPECT_EQ(recordsOfRun(REC_STAB), 0);
  ChainGuard guard(a, REC_TNODE);
  for (int i = 0; i < 5; ++i)
    guard.step();
  EXPECT_EXIT(guard.step(), ExitedWithCode(2),
              "Syntax tree inconsistent\n +a\n");
}

// 10000 levels are good, and each is given back at its end.
TEST_F(TreeStore, NestingGuard)
{
  int depth = maxNesting - 1;
  {
    NestingGuard last(depth, a);
    EXPECT_EQ(depth, 10000);
    EXPECT_EXIT(NestingGuard(depth, a), ExitedWithCode(2),
                "Syntax tree inconsistent\n +a\n");
  }
  EXPECT_EQ(depth, 9999);
}

TEST_F(TreeStore, TreeInconsistentWithoutPrefix)
{
  EXPECT_EXIT(treeInconsistent(nullptr), ExitedWithCode(2),
              "Syntax tree inconsistent\n\n");
}

// What a module brought along goes with it; gaps never counted.
TEST_F(TreeStore, ForgottenRecordsDoNotCount)
{
  tedRec = {};
  writeRec(b, REC_TED, 4);
  EXPECT_EQ(recordsOfRun(REC_TED), 3);
  EXPECT_EQ(recordsOfRun(REC_STRI16), 2);
  a->treeStatus = TREE_READ;
  b->treeStatus = TREE_NOT_READ;
  removeUnreferencedModuleRecords();
  EXPECT_EQ(recordsOfRun(REC_TED), 1);
  EXPECT_EQ(recordsOfRun(REC_TNODE), 3);
  EXPECT_EQ(recordsOfRun(REC_STRI16), 1);
  resetStore();
  for (int kind = 0; kind < REC_COUNT; ++kind)
    EXPECT_EQ(recordsOfRun(kind), 0) << kind;
}

// --- strings ----------------------------------------------------------------

TEST_F(TreeStore, GetStri)
{
  EXPECT_STREQ(getStri(a, 1), "Mod_a");
  EXPECT_STREQ(getStri(b, 1), "Mod_b");
  EXPECT_STREQ(getStri(a, 5), "T1");
  EXPECT_EQ(getStri(a, -5), getStri(a, 5));
  EXPECT_EQ(std::u16string(getStri16(a, 1)), u"wide");
  EXPECT_EQ(getStri16(a, -1), getStri16(a, 1));
  EXPECT_EQ(std::u32string(getStri32(a, 1)), U"wider");
  EXPECT_EQ(getStri32(a, -1), getStri32(a, 1));
}

TEST_F(TreeStore, GetStriOfTheReservedIndex)
{
  EXPECT_STREQ(getStri(a, 2147483642), "");
  EXPECT_EQ(getStri16(a, 2147483642)[0], 0);
  EXPECT_EQ(getStri32(a, 2147483642)[0], char32_t{0});
  // The store is not touched, so there need be none.
  EXPECT_STREQ(getStri(nullptr, 2147483642), "");
}

TEST_F(TreeStore, GetStriFails)
{
  int32_t count = static_cast<int32_t>(a->stris.strings.size());
  for (int32_t index : {0, count + 1, -count - 1, 2147483641, 2147483643,
                        INT32_MAX, -2147483642, INT32_MIN})
    EXPECT_EXIT(getStri(a, index), ExitedWithCode(2), noRead);
  for (int32_t index : {0, 2, -2, INT32_MIN}) {
    EXPECT_EXIT(getStri16(a, index), ExitedWithCode(2), noRead);
    EXPECT_EXIT(getStri32(a, index), ExitedWithCode(2), noRead);
  }
  EXPECT_EXIT(getStri(nullptr, 1), ExitedWithCode(2), noRead);
}

TEST_F(TreeStore, GetStriOrEmpty)
{
  EXPECT_STREQ(getStriOrEmpty(a, 0), "");
  EXPECT_STREQ(getStriOrEmpty(a, 1), "Mod_a");
  EXPECT_EXIT(getStriOrEmpty(a, 1000), ExitedWithCode(2), noRead);
}

// Before the counters are set a string can be looked up, but not appended.
TEST_F(TreeStore, PutStriWhileLoading)
{
  size_t count = a->stris.strings.size();
  EXPECT_EQ(putStri(a, "Mod_a"), 1);
  EXPECT_EQ(putStri(a, std::string("T1").c_str()), 5);
  EXPECT_EQ(putStri(a, "unheard of"), 0);
  EXPECT_EQ(putStri(a, "unheard of too"), 0);
  EXPECT_EQ(putStri16(a, u"wide"), 1);
  EXPECT_EQ(putStri16(a, u"unheard of"), 0);
  EXPECT_EQ(putStri32(a, U"wider"), 1);
  EXPECT_EQ(putStri32(a, U"unheard of"), 0);
  EXPECT_EQ(a->stris.strings.size(), count);
  EXPECT_EQ(a->nextFree[REC_STRI], 0);
  // Only an appended string moves the cursor.
  EXPECT_EQ(currTPtr[REC_STRI], nullptr);
  EXPECT_STREQ(getStri(a, 1), "Mod_a");
  EXPECT_EXIT(getStri(a, putStri(a, "unheard of")), ExitedWithCode(2), noRead);
}

TEST_F(TreeStore, PutStriAppends)
{
  initNextFree(*a);
  int32_t count = static_cast<int32_t>(a->stris.strings.size());
  EXPECT_EQ(a->nextFree[REC_STRI], count + 1);
  std::string first = "brand new", second = "brand new";
  EXPECT_EQ(putStri(a, first.c_str()), count + 1);
  EXPECT_EQ(putStri(a, second.c_str()), count + 1);
  EXPECT_EQ(putStri(a, "Mod_a"), 1);
  EXPECT_EQ(putStri(a, ""), count + 2);
  EXPECT_EQ(a->nextFree[REC_STRI], count + 3);
  EXPECT_STREQ(getStri(a, count + 1), "brand new");
  EXPECT_STREQ(getStri(a, count + 2), "");
  EXPECT_EQ(currTPtr[REC_STRI], a);
  EXPECT_EQ(putStri16(a, u"new"), 2);
  EXPECT_EQ(putStri16(a, u"new"), 2);
  EXPECT_EQ(putStri32(a, U"new"), 2);
  EXPECT_EQ(std::u32string(getStri32(a, 2)), U"new");
}

TEST_F(TreeStore, PutStriInTwoModules)
{
  initNextFree(*a);
  initNextFree(*b);
  int32_t inA = putStri(a, "shared");
  int32_t inB = putStri(b, "shared");
  EXPECT_NE(inA, inB);
  EXPECT_EQ(getStri(a, inA), getStri(b, inB));
}

TEST_F(TreeStore, PutStriLeavesTheHeadersCounts)
{
  initNextFree(*a);
  int32_t count = static_cast<int32_t>(a->stris.strings.size());
  putStri(a, "one more");
  MNode *header = static_cast<MNode *>(findRPos(a, REC_MNODE, 1));
  EXPECT_EQ(header->counts[REC_STRI], count);
}

TEST_F(TreeStore, PutStriFails)
{
  EXPECT_EXIT(putStri(nullptr, "x"), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(putStri(a, nullptr), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(putStri16(nullptr, u"x"), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(putStri16(a, nullptr), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(putStri32(nullptr, U"x"), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(putStri32(a, nullptr), ExitedWithCode(2), noWrite);
  EXPECT_EXIT(putStriInternal(a, nullptr, REC_STRI), ExitedWithCode(2),
              noWrite);
}

TEST_F(TreeStore, PutStriInternal)
{
  EXPECT_EQ(putStriInternal(a, "Mod_a", REC_STRI), 1);
  EXPECT_EQ(putStriInternal(a, u"wide", REC_STRI16), 1);
  EXPECT_EQ(putStriInternal(a, U"wider", REC_STRI32), 1);
  EXPECT_EXIT(putStriInternal(a, "x", REC_TED), ExitedWithCode(2),
              "Internal error");
}

TEST_F(TreeStore, SetupStriCaches)
{
  EXPECT_EQ(&setupStriCaches(*a, REC_STRI), &a->stris.cache);
  EXPECT_EQ(&setupStriCaches(*a, REC_STRI16), &a->stris16.cache);
  EXPECT_EQ(&setupStriCaches(*a, REC_STRI32), &a->stris32.cache);
  for (int kind : {-1, 0, 6, 10, 13})
    EXPECT_EXIT(setupStriCaches(*a, kind), ExitedWithCode(2), "Internal error");
}

TEST_F(TreeStore, InitNextFree)
{
  initNextFree(*a);
  EXPECT_EQ(a->nextFree[REC_MNODE], 2);
  EXPECT_EQ(a->nextFree[REC_TNODE], 4);
  EXPECT_EQ(a->nextFree[REC_VNODE], 4);
  EXPECT_EQ(a->nextFree[REC_TAG], 2);
  EXPECT_EQ(a->nextFree[REC_SUB], 2);
  EXPECT_EQ(a->nextFree[REC_TED], 2);
  EXPECT_EQ(a->nextFree[REC_SNODE], 2);
  EXPECT_EQ(a->nextFree[REC_STRI16], 2);
  EXPECT_EQ(a->nextFree[REC_STRI32], 2);
  EXPECT_EQ(a->nextFree[REC_STAB], 0);
  EXPECT_EQ(b->nextFree[REC_TNODE], 0);
}
