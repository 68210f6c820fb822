// Walks to the end of a value's chain, predicates, and searches for values.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "store/valuenode.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gtest/gtest.h>

using testing::ExitedWithCode;

static const char noRead[] = "Can not read record from syntax tree";
static const char cyclic[] = "Syntax tree inconsistent\n +m\n";

// A tree "m" that a test fills; it imports "n" (module number 2), whose
// value 1 is an INTEGER and value 2 an object.
struct ValueNodes : testing::Test {
  TempDir dir;
  StxTree tree = stxNewTree("M", "m");
  StxTree other = stxNewTree("N", "n");
  ModRec *m = nullptr;
  ModRec *n = nullptr;

  ValueNodes()
  {
    resetStore();
    resetParams();
    stxDir = dir.path;
    stxImport(tree, "N", "n", true);
    VNode far = stxNewInteger(0, 5);
    far.line = 900;
    stxDefineValue(other, "far", far);
    VNode object = stxNewVNode(TYP_CLASS, 0);
    object.line = 901;
    stxDefineValue(other, "obj", object);
  }
  ~ValueNodes() override
  {
    resetStore();
    stxDir.clear();
  }
  void load()
  {
    stxWrite(tree, (dir.path + "m.stx").c_str());
    stxWrite(other, (dir.path + "n.stx").c_str());
    m = appendModRec(true);
    setModulePrefixes(*m, "m", "m");
    std::string message;
    ASSERT_EQ(readSyntaxTree(*m, message), 0);
    n = m->next;
    clearCursors();
  }
  // Values get the number of their record as line.
  int32_t value(VNode node)
  {
    node.line = static_cast<int32_t>(tree.vNodes.size()) + 1;
    return stxValue(tree, node);
  }
  int32_t value(int mainType) { return value(stxNewVNode(mainType, 0)); }
  int32_t reference(int32_t to, int32_t refModule = 1)
  {
    VNode node = stxNewVNode(TYP_SYNONYM, 0);
    node.firstChild = to;
    node.refModule = refModule;
    return value(node);
  }
  int32_t fieldList(int32_t path)
  {
    VNode node = stxNewVNode(TYP_FIELDLIST, 0);
    node.fieldPath = path;
    return value(node);
  }
  int32_t endOf(int32_t index, bool all = false)
  {
    readRec(m, REC_VNODE, index);
    skipValues(all);
    EXPECT_EQ(recJustRead[REC_VNODE].module, currTPtr[REC_VNODE]);
    return vNode.line;
  }
};

// --- skipValues -------------------------------------------------------------

TEST_F(ValueNodes, PlainValuesStay)
{
  for (int mainType = 0; mainType <= 42; ++mainType)
    if (mainType != TYP_SYNONYM && mainType != TYP_FIELDLIST) {
      VNode node = stxNewVNode(mainType, 0);
      node.firstChild = 1;
      node.refModule = 2;
      node.fieldPath = stxLink(tree, stxNewLink(-1, 2));
      value(node);
    }
  load();
  for (int32_t i = 1; i <= 41; ++i)
    EXPECT_EQ(endOf(i, true), i);
}

TEST_F(ValueNodes, ReferencesAreFollowed)
{
  int32_t base = value(TYP_BOOLEAN);
  int32_t inner = reference(base);
  int32_t outer = reference(inner, 0);
  int32_t far = reference(1, 2);
  int32_t toFar = reference(far);
  load();
  EXPECT_EQ(endOf(inner), base);
  EXPECT_EQ(endOf(outer), base);
  EXPECT_EQ(endOf(far), 900);
  EXPECT_EQ(currTPtr[REC_VNODE], n);
  EXPECT_EQ(endOf(toFar), 900);
}

TEST_F(ValueNodes, UnboundReferenceEndsTheWalk)
{
  int32_t unbound = reference(0);
  int32_t outer = reference(unbound);
  load();
  EXPECT_EQ(endOf(outer, true), unbound);
  EXPECT_EQ(payloadInt64(vNode).low, 0u);
  EXPECT_FALSE(payloadBool(vNode));
}

TEST_F(ValueNodes, FieldPathOnlyWithAll)
{
  int32_t base = value(TYP_NULL);
  int32_t inner = reference(base);
  int32_t list = fieldList(stxLink(tree, stxNewLink(-inner)));
  int32_t far = fieldList(stxLink(tree, stxNewLink(-1, 2)));
  int32_t outer = reference(list);
  load();
  EXPECT_EQ(endOf(list), list);
  EXPECT_EQ(endOf(list, true), base);
  EXPECT_EQ(endOf(far, true), 900);
  EXPECT_EQ(currTPtr[REC_VNODE], n);
  EXPECT_EQ(endOf(outer), list);
  EXPECT_EQ(endOf(outer, true), base);
}

TEST_F(ValueNodes, OneStepAtATime)
{
  int32_t base = value(TYP_NULL);
  int32_t inner = reference(base);
  int32_t list = fieldList(stxLink(tree, stxNewLink(-inner)));
  int32_t outer = reference(list);
  load();
  readRec(m, REC_VNODE, outer);
  EXPECT_TRUE(skipOneValue(false));
  EXPECT_EQ(vNode.line, list);
  EXPECT_FALSE(skipOneValue(false));
  EXPECT_EQ(vNode.line, list);
  EXPECT_TRUE(skipOneValue(true));
  EXPECT_EQ(vNode.line, inner);
  EXPECT_TRUE(skipOneValue(true));
  EXPECT_FALSE(skipOneValue(true));
  EXPECT_EQ(vNode.line, base);
}

TEST_F(ValueNodes, FieldPathTakesTheLastLink)
{
  int32_t wrong = value(TYP_NULL);
  int32_t right = value(TYP_REAL);
  int32_t first = stxLink(tree, stxNewLink(-wrong, 2));
  int32_t middle = stxLink(tree, stxNewLink(99));
  int32_t last = stxLink(tree, stxNewLink(-right));
  stxChainLinks(tree, {first, middle, last});
  int32_t list = fieldList(first);
  load();
  EXPECT_EQ(endOf(list, true), right);
}

TEST_F(ValueNodes, FieldListWithoutPathStays)
{
  int32_t list = fieldList(0);
  load();
  EXPECT_EQ(endOf(list, true), list);
}

TEST_F(ValueNodes, WalkIntoNothing)
{
  int32_t noRecord = reference(99);
  int32_t noModule = reference(1, 3);
  int32_t noTarget = fieldList(stxLink(tree, stxNewLink(0)));
  int32_t aType = fieldList(stxLink(tree, stxNewLink(1)));
  int32_t lowest = fieldList(stxLink(tree, stxNewLink(INT32_MIN)));
  int32_t noLink = fieldList(99);
  load();
  for (int32_t start : {noRecord, noModule, noTarget, aType, lowest, noLink})
    EXPECT_EXIT(endOf(start, true), ExitedWithCode(2), noRead) << start;
}

TEST_F(ValueNodes, CyclicWalks)
{
  int32_t self = reference(1);
  int32_t first = reference(3);
  int32_t second = reference(first);
  ASSERT_EQ(second, 3);
  int32_t list = fieldList(stxLink(tree, stxNewLink(-4)));
  ASSERT_EQ(list, 4);
  int32_t link = stxLink(tree, stxNewLink(-1));
  stxLinkAt(tree, link).nextLink = link;
  int32_t endless = fieldList(link);
  load();
  for (int32_t start : {self, first, second, list, endless})
    EXPECT_EXIT(endOf(start, true), ExitedWithCode(2), cyclic) << start;
  EXPECT_EQ(endOf(list), list);
}

// --- predicates -------------------------------------------------------------

struct ValueKindRow {
  const char *what;
  int32_t index;
  bool isObj, isObjSet, isValue, isValueSet;
};

TEST_F(ValueNodes, KindsOfValue)
{
  auto setOf = [](VNode node) {
    node.valueFlags = 2;
    return node;
  };
  VNode notASet = stxNewVNode(TYP_INTEGER, 0);
  notASet.valueFlags = 0xFD;
  int32_t integer = value(notASet);
  int32_t object = value(TYP_CLASS);
  int32_t typeId = value(TYP_TYPE_ID);
  int32_t abstract = value(TYP_ABSTR_STX);
  int32_t open = value(TYP_OPEN);
  int32_t group = value(TYP_EXTADDGRP);
  int32_t valueSet = value(setOf(stxNewVNode(TYP_INTEGER, 0)));
  int32_t objSet = value(setOf(stxNewVNode(TYP_CLASS, 0)));
  int32_t toObject = reference(2, 2);
  int32_t toInteger = reference(integer);
  int32_t toObjSet = reference(objSet);
  int32_t setOfReference = reference(object);
  stxValueAt(tree, setOfReference).valueFlags = 2;
  int32_t path = fieldList(stxLink(tree, stxNewLink(-object)));
  int32_t unbound = reference(0);
  load();
  // The set flag is the value's own, the kind that at the end of its chain.
  const ValueKindRow rows[] = {
      {"integer", integer, false, false, true, false},
      {"object", object, true, false, false, false},
      {"of TYPE-IDENTIFIER", typeId, true, false, false, false},
      {"of ABSTRACT-SYNTAX", abstract, true, false, false, false},
      {"before the classes", open, false, false, true, false},
      {"behind the classes", group, false, false, true, false},
      {"value set", valueSet, false, false, false, true},
      {"object set", objSet, false, true, false, false},
      {"reference to an object", toObject, true, false, false, false},
      {"reference to a value", toInteger, false, false, true, false},
      {"reference to an object set", toObjSet, true, false, false, false},
      {"set of a reference", setOfReference, false, true, false, false},
      {"object by a path", path, true, false, false, false},
      {"unbound", unbound, false, false, true, false},
  };
  for (const ValueKindRow &row : rows) {
    SCOPED_TRACE(row.what);
    readRec(m, REC_VNODE, row.index);
    EXPECT_EQ(isObjVNode(), row.isObj);
    EXPECT_EQ(isObjSetVNode(), row.isObjSet);
    EXPECT_EQ(isValueVNode(), row.isValue);
    EXPECT_EQ(isValueSetVNode(), row.isValueSet);
    EXPECT_EQ(vNode.line, row.index);
    EXPECT_EQ(recJustRead[REC_VNODE].module, m);
  }
}

// --- searches ---------------------------------------------------------------

TEST_F(ValueNodes, FindValueById)
{
  stxDefineValue(tree, "one", stxNewInteger(0, 1));
  stxDefineValue(tree, "", stxNewInteger(0, 0));
  int32_t two = stxDefineValue(tree, "my-two", stxNewInteger(0, 2));
  stxDefineValue(tree, "my-two", stxNewInteger(0, 3));
  load();
  EXPECT_TRUE(findValueById(m, "my_two"));
  EXPECT_EQ(recJustRead[REC_VNODE].index, two);
  EXPECT_TRUE(findValueById(m, "one"));
  for (const char *name : {"my-two", "two", "", "far", "One"})
    EXPECT_FALSE(findValueById(m, name)) << name;
  EXPECT_TRUE(findValueById(n, "far"));
  EXPECT_EQ(vNode.line, 900);
}

TEST_F(ValueNodes, FindValueByIdInAnEmptyModule)
{
  load();
  EXPECT_FALSE(findValueById(m, "one"));
}

TEST_F(ValueNodes, HiddenValuesAreFound)
{
  VNode node = stxNewInteger(0, 1);
  node.hidden = 1;
  stxDefineValue(tree, "one", node);
  load();
  EXPECT_TRUE(findValueById(m, "one"));
}

TEST_F(ValueNodes, FindValueCompById)
{
  int32_t father = stxDefineValue(tree, "s", stxNewVNode(TYP_SEQ, 0));
  stxAddChild(tree, father, "a", stxNewInteger(0, 1));
  int32_t b = stxAddChild(tree, father, "b", stxNewInteger(0, 2));
  load();
  int32_t first = stxValueAt(tree, father).firstChild;
  EXPECT_TRUE(findValueCompById(m, first, "b"));
  EXPECT_EQ(recJustRead[REC_VNODE].index, b);
  EXPECT_TRUE(findValueCompById(m, first, "a"));
  EXPECT_FALSE(findValueCompById(m, b, "a"));
  EXPECT_FALSE(findValueCompById(m, first, "s"));
  EXPECT_FALSE(findValueCompById(m, 0, "a"));
  EXPECT_FALSE(findValueById(m, "a"));
}

TEST_F(ValueNodes, CyclicSearch)
{
  stxDefineValue(tree, "a", stxNewInteger(0, 1));
  stxDefineValue(tree, "b", stxNewInteger(0, 1));
  stxValueAt(tree, 2).next = 1;
  load();
  EXPECT_TRUE(findValueById(m, "b"));
  EXPECT_EXIT(findValueById(m, "c"), ExitedWithCode(2), cyclic);
  EXPECT_EXIT(findValueCompById(m, 2, "c"), ExitedWithCode(2), cyclic);
}
