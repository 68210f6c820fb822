// Walks to the end of a type's chain, predicates, and searches for types and
// components.

#include "base/diag.h"
#include "options/params.h"
#include "store/module.h"
#include "store/typenode.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <gtest/gtest.h>

using testing::ExitedWithCode;

static const char noRead[] = "Can not read record from syntax tree";
static const char cyclic[] = "Syntax tree inconsistent\n +m\n";

// A tree "m" that a test fills; it imports "n" (module number 2), which has a
// SEQUENCE as its type 1 and a value with that type behind it, and the
// predefined module (number 3).
struct TypeNodes : testing::Test {
  TempDir dir;
  StxTree tree = stxNewTree("M", "m");
  StxTree other = stxNewTree("N", "n");
  ModRec *m = nullptr;
  ModRec *n = nullptr;

  TypeNodes()
  {
    resetStore();
    resetParams();
    stxDir = dir.path;
    stxImport(tree, "N", "n", true);
    stxImport(tree, "ISO8824", "", false);
    TNode seq = stxNewTNode(TYP_SEQ);
    seq.line = 900;
    stxDefineType(other, "Far", seq);
  }
  ~TypeNodes() override
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
  // Types get the number of their record as line.
  int32_t type(TNode node)
  {
    node.line = static_cast<int32_t>(tree.tNodes.size()) + 1;
    return stxType(tree, node);
  }
  int32_t type(int mainType) { return type(stxNewTNode(mainType)); }
  int32_t synonym(int32_t ref, int32_t refModule = 1)
  {
    return type(stxNewSynonym(ref, refModule));
  }
  int32_t fieldList(int32_t fieldRef, int32_t refModule)
  {
    TNode node = stxNewTNode(TYP_FIELDLIST);
    node.fieldRef = fieldRef;
    node.refModule = refModule;
    return type(node);
  }
  int32_t selection(int32_t fieldRef)
  {
    TNode node = stxNewTNode(TYP_SELECTION);
    node.fieldRef = fieldRef;
    return type(node);
  }
  // Where the walk from a node ends.
  int32_t endOf(int32_t index, bool all = false)
  {
    readRec(m, REC_TNODE, index);
    skipTypes(all);
    EXPECT_EQ(recJustRead[REC_TNODE].module, currTPtr[REC_TNODE]);
    return tNode.line;
  }
};

// --- skipTypes --------------------------------------------------------------

TEST_F(TypeNodes, PlainTypesStay)
{
  for (int mainType = 0; mainType <= 41; ++mainType)
    if (mainType != TYP_SYNONYM) {
      TNode node = stxNewTNode(mainType);
      node.ref = 1;
      node.refModule = 2;
      type(node);
    }
  load();
  for (int32_t i = 1; i <= 41; ++i) {
    EXPECT_EQ(endOf(i, true), i);
    EXPECT_EQ(currTPtr[REC_TNODE], m);
  }
}

TEST_F(TypeNodes, SynonymsAreFollowed)
{
  int32_t base = type(TYP_INTEGER);
  int32_t inner = synonym(base);
  int32_t outer = synonym(inner, 0);  // 0 is this module as well
  load();
  EXPECT_EQ(endOf(base), base);
  EXPECT_EQ(endOf(inner), base);
  EXPECT_EQ(endOf(outer), base);
  EXPECT_EQ(tNode.mainType, TYP_INTEGER);
}

TEST_F(TypeNodes, SynonymIntoAnotherModule)
{
  int32_t near = synonym(1, 2);
  int32_t nearer = synonym(near);
  load();
  EXPECT_EQ(endOf(nearer), 900);
  EXPECT_EQ(currTPtr[REC_TNODE], n);
}

TEST_F(TypeNodes, UnboundSynonymEndsTheWalk)
{
  int32_t unbound = synonym(0);
  int32_t outer = synonym(unbound);
  load();
  EXPECT_EQ(endOf(unbound), unbound);
  EXPECT_EQ(endOf(outer), unbound);
}

TEST_F(TypeNodes, SynonymIntoNothing)
{
  int32_t noRecord = synonym(99);
  int32_t noModule = synonym(1, 4);
  int32_t noFile = synonym(1, 3);
  load();
  EXPECT_EXIT(endOf(noRecord), ExitedWithCode(2), noRead);
  EXPECT_EXIT(endOf(noModule), ExitedWithCode(2), noRead);
  EXPECT_EXIT(endOf(noFile), ExitedWithCode(2), noRead);
}

TEST_F(TypeNodes, SelectionIsFollowed)
{
  int32_t base = type(TYP_BOOLEAN);
  int32_t alternative = synonym(base);
  int32_t here = selection(stxLink(tree, stxNewLink(alternative)));
  int32_t there = selection(stxLink(tree, stxNewLink(1, 2)));
  int32_t outer = synonym(here);
  load();
  EXPECT_EQ(endOf(here), base);
  EXPECT_EQ(endOf(outer), base);
  EXPECT_EQ(endOf(there), 900);
  EXPECT_EQ(currTPtr[REC_TNODE], n);
}

TEST_F(TypeNodes, SelectionWithoutLinkStays)
{
  int32_t unbound = selection(0);
  load();
  EXPECT_EQ(endOf(unbound, true), unbound);
}

TEST_F(TypeNodes, FieldListOnlyWithAllOrTheMark)
{
  int32_t base = type(TYP_NULL);
  int32_t link = stxLink(tree, stxNewLink(base));
  int32_t plain = fieldList(link, 1);
  int32_t marked = fieldList(link, -2);
  int32_t otherMark = fieldList(link, -1);
  load();
  EXPECT_EQ(endOf(plain), plain);
  EXPECT_EQ(endOf(plain, true), base);
  EXPECT_EQ(endOf(marked), base);
  EXPECT_EQ(endOf(marked, true), base);
  EXPECT_EQ(endOf(otherMark), otherMark);
  EXPECT_EQ(endOf(otherMark, true), base);
}

TEST_F(TypeNodes, FieldListWithoutPathStays)
{
  int32_t plain = fieldList(0, -2);
  load();
  EXPECT_EQ(endOf(plain, true), plain);
}

TEST_F(TypeNodes, FieldListTakesTheLastLink)
{
  int32_t wrong = type(TYP_NULL);
  int32_t right = type(TYP_OPEN);
  int32_t first = stxLink(tree, stxNewLink(wrong));
  int32_t middle = stxLink(tree, stxNewLink(wrong, 2));
  int32_t last = stxLink(tree, stxNewLink(right));
  stxChainLinks(tree, {first, middle, last});
  int32_t list = fieldList(first, 1);
  load();
  EXPECT_EQ(endOf(list, true), right);
}

TEST_F(TypeNodes, FieldListGoesOnBehindTheLink)
{
  int32_t base = type(TYP_REAL);
  int32_t inner = fieldList(stxLink(tree, stxNewLink(base)), 1);
  int32_t middle = synonym(inner);
  int32_t outer = fieldList(stxLink(tree, stxNewLink(middle)), -2);
  load();
  EXPECT_EQ(endOf(outer, true), base);
  // Without `all` the walk goes over the marked one only.
  EXPECT_EQ(endOf(outer), inner);
}

// A link of 0 or below is a value; its first child is the type, in the
// module of the value.
TEST_F(TypeNodes, FieldListOverAValue)
{
  int32_t base = type(TYP_REAL);
  VNode here = stxNewVNode(TYP_OPEN, base);
  here.firstChild = base;
  int32_t value = stxValue(tree, here);
  VNode far = stxNewVNode(TYP_OPEN, 1);
  far.firstChild = 1;
  stxValue(other, far);
  int32_t near = fieldList(stxLink(tree, stxNewLink(-value)), 1);
  int32_t wide = fieldList(stxLink(tree, stxNewLink(-1, 2)), 1);
  load();
  readRec(m, REC_VNODE, value);
  EXPECT_EQ(endOf(near, true), base);
  EXPECT_EQ(endOf(wide, true), 900);
  EXPECT_EQ(currTPtr[REC_TNODE], n);
  EXPECT_EQ(recJustRead[REC_VNODE].module, m);
}

TEST_F(TypeNodes, FieldListIntoNothing)
{
  int32_t noTarget = fieldList(stxLink(tree, stxNewLink(0)), 1);
  int32_t lowest = fieldList(stxLink(tree, stxNewLink(INT32_MIN)), 1);
  int32_t noModule = fieldList(stxLink(tree, stxNewLink(1, 4)), 1);
  int32_t noLink = fieldList(99, 1);
  load();
  for (int32_t list : {noTarget, lowest, noModule, noLink})
    EXPECT_EXIT(endOf(list, true), ExitedWithCode(2), noRead);
}

// A built-in class is the node's own `ref`, read in the node's module, and
// all field lists behind it are followed.
TEST_F(TypeNodes, FieldListOfABuiltInClass)
{
  int32_t base = type(TYP_OPEN);
  int32_t behind = fieldList(stxLink(tree, stxNewLink(base)), 1);
  TNode builtIn = stxNewTNode(TYP_FIELDLIST);
  builtIn.fieldRef = stxLink(tree, stxNewLink(77, 3));
  builtIn.ref = behind;
  builtIn.refModule = -2;
  int32_t list = type(builtIn);
  load();
  cMP = n;  // the current module doesn't matter
  EXPECT_EQ(endOf(list), base);
  EXPECT_EQ(currTPtr[REC_TNODE], m);
  readRec(m, REC_TNODE, list);
  EXPECT_FALSE(skipFieldList());
  EXPECT_EQ(tNode.line, base);
  cMP = nullptr;
}

TEST_F(TypeNodes, SkipFieldListReachesAType)
{
  int32_t base = type(TYP_OPEN);
  int32_t middle = synonym(base);
  int32_t list = fieldList(stxLink(tree, stxNewLink(middle)), 1);
  load();
  readRec(m, REC_TNODE, list);
  EXPECT_TRUE(skipFieldList());
  EXPECT_EQ(tNode.line, middle);
}

TEST_F(TypeNodes, CyclicWalks)
{
  int32_t self = synonym(static_cast<int32_t>(tree.tNodes.size()) + 1);
  int32_t first = synonym(3);
  int32_t second = synonym(first);
  ASSERT_EQ(second, 3);
  int32_t alternative = selection(stxLink(tree, stxNewLink(4)));
  ASSERT_EQ(alternative, 4);
  int32_t list = fieldList(stxLink(tree, stxNewLink(5)), 1);
  ASSERT_EQ(list, 5);
  load();
  for (int32_t start : {self, first, second, alternative, list})
    EXPECT_EXIT(endOf(start, true), ExitedWithCode(2), cyclic) << start;
  EXPECT_EQ(endOf(list), list);
}

TEST_F(TypeNodes, CyclicLinks)
{
  int32_t link = stxLink(tree, stxNewLink(1));
  stxLinkAt(tree, link).nextLink = link;
  int32_t list = fieldList(link, 1);
  load();
  EXPECT_EXIT(endOf(list, true), ExitedWithCode(2), cyclic);
}

TEST_F(TypeNodes, CyclicBuiltInClass)
{
  TNode builtIn = stxNewTNode(TYP_FIELDLIST);
  builtIn.fieldRef = stxLink(tree, stxNewLink(77, 3));
  builtIn.ref = 1;
  int32_t list = type(builtIn);
  load();
  EXPECT_EXIT(endOf(list, true), ExitedWithCode(2), cyclic);
}

// As long as all records of the run, and no loop.
TEST_F(TypeNodes, LongChains)
{
  int32_t last = type(TYP_NULL);
  for (int i = 0; i < 20000; ++i)
    last = synonym(last);
  load();
  EXPECT_EQ(endOf(last), 1);
}

// --- predicates -------------------------------------------------------------

TEST_F(TypeNodes, InstantiatedByMainType)
{
  for (int mainType = 0; mainType <= 41; ++mainType) {
    TNode node = stxNewTNode(mainType);
    node.fieldRef = 1;
    type(node);
  }
  load();
  for (int mainType = 0; mainType <= 41; ++mainType) {
    bool isPath = mainType == TYP_SELECTION || mainType == TYP_ANY ||
                  mainType == TYP_FIELDLIST;
    readRec(m, REC_TNODE, mainType + 1);
    EXPECT_EQ(isInstantiatedTNode(), !isPath) << mainType;
    EXPECT_EQ(isTopLevelInstantiatedTNode(), !isPath) << mainType;
  }
}

TEST_F(TypeNodes, InstantiatedByFieldRef)
{
  TNode node = stxNewTNode(TYP_SEQ);
  int32_t plain = type(node);
  node.fieldRef = -1;
  int32_t top = type(node);
  node.nestedInstance = 1;
  int32_t nested = type(node);
  node.fieldRef = 0;
  int32_t nothing = type(node);
  load();
  auto check = [&](int32_t index, bool instantiated, bool topLevel) {
    readRec(m, REC_TNODE, index);
    EXPECT_EQ(isInstantiatedTNode(), instantiated) << index;
    EXPECT_EQ(isTopLevelInstantiatedTNode(), topLevel) << index;
  };
  check(plain, false, false);
  check(top, true, true);
  check(nested, true, false);
  check(nothing, false, false);
}

struct NodeKindRow {
  const char *what;
  int32_t index;
  bool isType, isClass, isValueSet, isObjSet;
};

TEST_F(TypeNodes, KindsOfDefinition)
{
  auto withSet = [](TNode node) {
    node.classFlags = CF_SET;
    return node;
  };
  int32_t plain = type(TYP_INTEGER);
  int32_t cls = type(TYP_CLASS);
  int32_t typeId = type(TYP_TYPE_ID);
  int32_t abstract = type(TYP_ABSTR_STX);
  int32_t group = type(TYP_EXTADDGRP);
  int32_t opened = type(TYP_OPEN);
  int32_t valueSet = type(withSet(stxNewTNode(TYP_INTEGER)));
  int32_t objSet = type(withSet(stxNewTNode(TYP_CLASS)));
  int32_t valueSetRef = type(withSet(stxNewSynonym(plain)));
  int32_t objSetRef = type(withSet(stxNewSynonym(typeId)));
  int32_t plainRef = synonym(plain);
  int32_t classRef = synonym(cls);
  int32_t setRef = synonym(valueSet);
  int32_t objSetSynonym = synonym(objSet);
  int32_t classPath = fieldList(stxLink(tree, stxNewLink(cls)), 1);
  load();
  // A type or class is asked for at the end of its chain, set flag included;
  // a set is told by its own flag and the kind at the end.
  const NodeKindRow rows[] = {
      {"plain", plain, true, false, false, false},
      {"class", cls, false, true, false, false},
      {"TYPE-IDENTIFIER", typeId, false, true, false, false},
      {"ABSTRACT-SYNTAX", abstract, false, true, false, false},
      {"behind the classes", group, true, false, false, false},
      {"before the classes", opened, true, false, false, false},
      {"value set", valueSet, false, false, true, false},
      {"object set", objSet, false, false, false, true},
      {"set of a reference", valueSetRef, true, false, true, false},
      {"object set of a reference", objSetRef, false, true, false, true},
      {"reference", plainRef, true, false, false, false},
      {"reference to a class", classRef, false, true, false, false},
      {"reference to a value set", setRef, false, false, false, false},
      {"reference to an object set", objSetSynonym, false, false, false, false},
      {"class by a path", classPath, false, true, false, false},
  };
  for (const NodeKindRow &row : rows) {
    SCOPED_TRACE(row.what);
    readRec(m, REC_TNODE, row.index);
    EXPECT_EQ(isTypeTNode(), row.isType);
    EXPECT_EQ(isClassTNode(), row.isClass);
    EXPECT_EQ(isValueSetTNode(), row.isValueSet);
    EXPECT_EQ(isObjSetTNode(), row.isObjSet);
    EXPECT_EQ(tNode.line, row.index);
    EXPECT_EQ(recJustRead[REC_TNODE].index, row.index);
  }
}

TEST_F(TypeNodes, SetByItsOwnFlag)
{
  TNode node = stxNewTNode(TYP_INTEGER);
  node.classFlags = 8;
  int32_t set = type(node);
  node.classFlags = 0xFFFFFFF7;
  int32_t noSet = type(node);
  int32_t reference = synonym(set);
  load();
  readRec(m, REC_TNODE, set);
  EXPECT_TRUE(isSetTNode());
  readRec(m, REC_TNODE, noSet);
  EXPECT_FALSE(isSetTNode());
  readRec(m, REC_TNODE, reference);
  EXPECT_FALSE(isSetTNode());
}

TEST_F(TypeNodes, FieldsOfAClass)
{
  const struct {
    int32_t identifier;
    uint32_t flags;
    bool isValue, isValueSet, isVariable;
  } rows[] = {
      {5, 0, false, false, false},  {-5, 0, true, false, false},
      {5, 8, false, true, false},   {-5, 8, true, false, false},
      {0, 8, false, false, false},  {0, 0, false, false, false},
      {5, 32, false, false, true},  {-5, 32, true, false, true},
      {5, 0x28, false, true, true}, {5, 0xFFFFFFD7, false, false, false},
  };
  for (const auto &row : rows) {
    TNode node = stxNewTNode(TYP_INTEGER);
    node.identifier = row.identifier;
    node.classFlags = row.flags;
    type(node);
  }
  load();
  for (int32_t i = 1; const auto &row : rows) {
    readRec(m, REC_TNODE, i++);
    EXPECT_EQ(isValFieldTNode(), row.isValue) << i;
    EXPECT_EQ(isValSetFieldTNode(), row.isValueSet) << i;
    EXPECT_EQ(isVariabTypeFieldTNode(), row.isVariable) << i;
    EXPECT_EQ(isVariabTypeTNode(), row.isVariable) << i;
  }
}

TEST_F(TypeNodes, OpenType)
{
  int32_t opened = type(TYP_OPEN);
  int32_t plain = type(TYP_ANY);
  int32_t reference = synonym(opened);
  int32_t path = fieldList(stxLink(tree, stxNewLink(reference)), 1);
  load();
  for (int32_t index : {opened, reference, path}) {
    readRec(m, REC_TNODE, index);
    EXPECT_TRUE(isOpenObjClassFieldTypeTNode()) << index;
    EXPECT_EQ(tNode.line, index);
  }
  readRec(m, REC_TNODE, plain);
  EXPECT_FALSE(isOpenObjClassFieldTypeTNode());
}

// --- searches ---------------------------------------------------------------

TEST_F(TypeNodes, FindTypeById)
{
  stxDefineType(tree, "First", stxNewTNode(TYP_NULL));
  int32_t second = stxDefineType(tree, "Second-Type", stxNewTNode(TYP_NULL));
  stxDefineType(tree, "Second-Type", stxNewTNode(TYP_REAL));
  int32_t inner = type(TYP_INTEGER);  // in no chain
  stxTypeAt(tree, inner).identifier = stxStri(tree, "Inner");
  load();
  EXPECT_TRUE(findTypeById(m, "Second_Type"));
  EXPECT_EQ(recJustRead[REC_TNODE].index, second);
  EXPECT_TRUE(findTypeById(m, "First"));
  EXPECT_EQ(recJustRead[REC_TNODE].index, 1);
  for (const char *name : {"Second-Type", "Second", "", "first", "Inner"})
    EXPECT_FALSE(findTypeById(m, name)) << name;
  EXPECT_FALSE(findTypeById(m, "Far"));
  EXPECT_TRUE(findTypeById(n, "Far"));
  EXPECT_EQ(tNode.line, 900);
}

TEST_F(TypeNodes, FindTypeByIdInAnEmptyModule)
{
  load();
  EXPECT_FALSE(findTypeById(m, "T"));
}

TEST_F(TypeNodes, FindTypeByIdInACyclicChain)
{
  stxDefineType(tree, "A", stxNewTNode(TYP_NULL));
  stxDefineType(tree, "B", stxNewTNode(TYP_NULL));
  stxTypeAt(tree, 2).next = 1;
  load();
  EXPECT_TRUE(findTypeById(m, "B"));
  EXPECT_EXIT(findTypeById(m, "C"), ExitedWithCode(2), cyclic);
}

// Outer ::= SEQUENCE { a, COMPONENTS OF Middle, f }
// Middle ::= Inner (a synonym)
// Inner ::= SEQUENCE { b, COMPONENTS OF Deep, e }
// Deep ::= SEQUENCE { c, d }
struct CompSearch : TypeNodes {
  int32_t first = 0;

  CompSearch()
  {
    int32_t deep = stxDefineType(tree, "Deep", stxNewTNode(TYP_SEQ));
    addComp(deep, "c");
    addComp(deep, "d");
    int32_t inner = stxDefineType(tree, "Inner", stxNewTNode(TYP_SEQ));
    addComp(inner, "b");
    addCompOf(inner, deep);
    addComp(inner, "e");
    int32_t middle = stxDefineType(tree, "Middle", stxNewSynonym(inner));
    int32_t outer = stxDefineType(tree, "Outer", stxNewTNode(TYP_SEQ));
    addComp(outer, "a");
    addCompOf(outer, middle);
    addComp(outer, "f");
    first = stxTypeAt(tree, outer).ref;
  }
  void addComp(int32_t father, const char *name)
  {
    stxAddComp(tree, father, name, stxNewTNode(TYP_NULL));
  }
  int32_t addCompOf(int32_t father, int32_t ref, int32_t refModule = 1)
  {
    TNode node = stxNewSynonym(ref, refModule);
    node.compStatus = TCS_COMPOF;
    return stxAddComp(tree, father, "", node);
  }
  std::string currentName()
  {
    return getStri(currTPtr[REC_TNODE], tNode.identifier);
  }
};

TEST_F(CompSearch, ById)
{
  load();
  int32_t expected = 0;
  for (const char *name : {"a", "b", "c", "d", "e", "f"}) {
    int32_t position = 0;
    EXPECT_TRUE(findTypeCompById(m, first, name, position)) << name;
    EXPECT_EQ(position, expected++) << name;
    EXPECT_EQ(currentName(), name);
  }
}

TEST_F(CompSearch, PositionAddsUp)
{
  load();
  int32_t position = 100;
  EXPECT_TRUE(findTypeCompById(m, first, "d", position));
  EXPECT_EQ(position, 103);
  position = 10;
  EXPECT_FALSE(findTypeCompById(m, first, "g", position));
  EXPECT_EQ(position, 16);
  position = 5;
  EXPECT_FALSE(findTypeCompById(m, 0, "a", position));
  EXPECT_EQ(position, 5);
}

TEST_F(CompSearch, ByNumber)
{
  load();
  int32_t number = 0;
  for (const char *name : {"a", "b", "c", "d", "e", "f"}) {
    int32_t left = ++number;
    EXPECT_TRUE(findByInd(m, first, left)) << name;
    EXPECT_EQ(left, 0);
    EXPECT_EQ(currentName(), name);
    readRec(m, REC_TNODE, 1);
    EXPECT_TRUE(findTypeCompByInd(m, first, number)) << name;
    EXPECT_EQ(currentName(), name);
  }
  for (int32_t none : {-1, 0, 7})
    EXPECT_FALSE(findTypeCompByInd(m, first, none)) << none;
  int32_t left = 7;
  EXPECT_FALSE(findByInd(m, first, left));
  EXPECT_EQ(left, 1);
  left = 1;
  EXPECT_FALSE(findByInd(m, 0, left));
  left = 0;
  EXPECT_FALSE(findByInd(m, first, left));
  left = -1;
  EXPECT_FALSE(findByInd(m, first, left));
}

TEST_F(CompSearch, IntoAnotherModule)
{
  stxAddComp(other, 1, "far", stxNewTNode(TYP_NULL));
  int32_t outer = stxDefineType(tree, "Wide", stxNewTNode(TYP_SEQ));
  addCompOf(outer, 1, 2);
  addComp(outer, "near");
  load();
  int32_t start = stxTypeAt(tree, outer).ref;
  int32_t position = 0;
  EXPECT_TRUE(findTypeCompById(m, start, "far", position));
  EXPECT_EQ(currTPtr[REC_TNODE], n);
  EXPECT_TRUE(findTypeCompById(m, start, "near", position));
  EXPECT_EQ(position, 1);
  EXPECT_EQ(currTPtr[REC_TNODE], m);
  int32_t number = 2;
  EXPECT_TRUE(findByInd(m, start, number));
  EXPECT_EQ(currentName(), "near");
}

// The marker is a place in the chain like any other, without a name.
TEST_F(CompSearch, MarkerCounts)
{
  int32_t outer = stxDefineType(tree, "Marked", stxNewTNode(TYP_SEQ));
  addComp(outer, "x");
  stxAddComp(tree, outer, "", stxNewTNode(TYP_EXTENSION_MARKER));
  addComp(outer, "y");
  load();
  int32_t start = stxTypeAt(tree, outer).ref;
  int32_t position = 0;
  EXPECT_TRUE(findTypeCompById(m, start, "y", position));
  EXPECT_EQ(position, 2);
  int32_t number = 2;
  EXPECT_TRUE(findByInd(m, start, number));
  EXPECT_EQ(tNode.mainType, TYP_EXTENSION_MARKER);
}

TEST_F(CompSearch, CyclicComponents)
{
  int32_t outer = stxDefineType(tree, "Self", stxNewTNode(TYP_SEQ));
  addCompOf(outer, outer);
  int32_t loop = stxDefineType(tree, "Loop", stxNewTNode(TYP_SEQ));
  addComp(loop, "x");
  int32_t x = stxTypeAt(tree, loop).ref;
  stxTypeAt(tree, x).next = x;
  load();
  int32_t position = 0, number = 1000;
  EXPECT_EXIT(findTypeCompById(m, stxTypeAt(tree, outer).ref, "x", position),
              ExitedWithCode(2), cyclic);
  EXPECT_EXIT(findByInd(m, stxTypeAt(tree, outer).ref, number),
              ExitedWithCode(2), cyclic);
  EXPECT_EXIT(findTypeCompById(m, x, "y", position), ExitedWithCode(2), cyclic);
  EXPECT_EXIT(findByInd(m, x, number), ExitedWithCode(2), cyclic);
}
