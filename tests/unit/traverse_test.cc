// The walk of the engine where a run of the tool does not lead: names on the
// path, nodes that no front-end writes, and damaged trees.

#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "support/fragtrees.h"

using testing::ExitedWithCode;

namespace {

struct Traverse : FragTrees {
  TypeFuncInfo info;

  Traverse()
  {
    cInitTypeFuncInfo(info);
    info.implFile = 1;
    info.genKind = GEN_TRAVERSE_FREE;
    info.normalFuncPrefix = "n";
    glbInfo = &info;
  }
  ~Traverse() override { glbInfo = nullptr; }

  static TNode with(TNode node, int status)
  {
    node.compStatus = static_cast<int8_t>(status);
    return node;
  }
  // The path behind the name of the first component.
  static std::string pathAtFirst(AsnType &father)
  {
    std::string path;
    atComp(father, 0, [&](AsnType &comp_) {
      EXPECT_EQ(comp_.typePathLen, strlen(getPath()));
      path = getPath();
    });
    EXPECT_STREQ(getPath(), "");
    return path;
  }
  std::string pathIn(int32_t father)
  {
    start();
    TestType view(module, father);
    return pathAtFirst(*view);
  }
};

// --- names on the path ------------------------------------------------------

TEST_F(Traverse, NameOfAComponent)
{
  int32_t seq = define("T", TYP_SEQ);
  comp(seq, "a-b", TYP_NULL);
  EXPECT_EQ(pathIn(seq), ".a_b_fld");
}

TEST_F(Traverse, NameOfAnOptionalComponent)
{
  int32_t set = define("T", TYP_SET);
  comp(set, "a", TYP_NULL, TCS_OPTIONAL);
  EXPECT_EQ(pathIn(set), ".a_fld");
}

TEST_F(Traverse, NameOfAnAlternative)
{
  int32_t choice = define("T", TYP_CHOICE);
  comp(choice, "a", TYP_NULL, TCS_CHOICE);
  EXPECT_EQ(pathIn(choice), ".i1.a_fld");
}

TEST_F(Traverse, NameOfAnAlternativeInAHome)
{
  int32_t choice = define("T", node(TYP_CHOICE, VF_STRU, {optAsnhc}));
  comp(choice, "a", TYP_NULL, TCS_CHOICE);
  EXPECT_EQ(pathIn(choice), ".a_fld");
}

TEST_F(Traverse, NameBehindAPointer)
{
  int32_t seq = define("T", node(TYP_SEQ, VF_STRU, {optPointer}));
  comp(seq, "a", TYP_NULL);
  EXPECT_EQ(pathIn(seq), "->a_fld");
}

TEST_F(Traverse, NameOfAnArrayElement)
{
  int32_t list = define("T", node(TYP_SEQOF, VF_STRU));
  comp(list, "", with(stxNewTNode(TYP_NULL), TCS_MULTIPLE));
  cIncNVarCount();
  cIncNVarCount();
  EXPECT_EQ(pathIn(list), ".elem [n2]");
}

TEST_F(Traverse, ElementsOfLinkedListsHaveNoName)
{
  int32_t list = define("T", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  comp(list, "", with(stxNewTNode(TYP_NULL), TCS_MULTIPLE));
  start();
  TestType view(module, list);
  atComp(*view, 0, [](AsnType &elem) {
    EXPECT_FALSE(mustAddCompNameToPath(elem));
    EXPECT_EQ(elem.typePathLen, 0U);
    EXPECT_STREQ(getPath(), "");
  });
}

TEST_F(Traverse, MarkersHaveNoName)
{
  int32_t seq = define("T", TYP_SEQ);
  comp(seq, "a", TYP_NULL);
  marker(seq);
  start();
  TestType view(module, seq);
  atComp(*view, 0, [](AsnType &a) { EXPECT_TRUE(mustAddCompNameToPath(a)); });
  atComp(*view, 1, [](AsnType &mark) {
    EXPECT_FALSE(mustAddCompNameToPath(mark));
    EXPECT_STREQ(getPath(), "");
  });
}

// A definition has no father, and so no separator.
TEST_F(Traverse, NameOfADefinition)
{
  int32_t seq = define("T-x", TYP_SEQ);
  start();
  TestType view(module, seq);
  addCompNameToPath(*view);
  EXPECT_STREQ(getPath(), "T_x");
  EXPECT_EQ(view->typePathLen, 3U);
  removeCompNameFromPath(*view);
  EXPECT_STREQ(getPath(), "");
}

TEST_F(Traverse, NoNameForOtherStatus)
{
  int32_t seq = define("T", TYP_SEQ);
  start();
  TestType view(module, seq);
  for (int status : {static_cast<int>(TCS_COMPOF), static_cast<int>(TCS_FORMAL),
                     -TCS_HEADER}) {
    view->compStatus = static_cast<int8_t>(status);
    EXPECT_EXIT(addCompNameToPath(*view), ExitedWithCode(2),
                "Unable to construct a type name path\\.");
  }
}

// --- homes ------------------------------------------------------------------

TEST_F(Traverse, ComponentsInHomes)
{
  int32_t plain = define("P", TYP_SEQ);
  comp(plain, "a", TYP_NULL);
  comp(plain, "b", node(TYP_NULL, VF_NULL, {optAsnHome}));
  int32_t homes = define("H", node(TYP_SEQ, VF_STRU, {optAsnhc}));
  comp(homes, "a", TYP_NULL);
  int32_t linked = define("L", node(TYP_SEQOF, VF_LIST));
  comp(linked, "", with(stxNewTNode(TYP_NULL), TCS_MULTIPLE));
  int32_t array = define("A", node(TYP_SEQOF, VF_STRU));
  comp(array, "", with(stxNewTNode(TYP_NULL), TCS_MULTIPLE));
  start();
  auto isIn = [&](int32_t father, int number, bool alone = false) {
    TestType view(module, father);
    bool result = false;
    atComp(*view, number, [&](AsnType &comp_) {
      result = isAsnHomeComp(alone ? nullptr : view.type, comp_);
    });
    return result;
  };
  EXPECT_FALSE(isIn(plain, 0));
  EXPECT_TRUE(isIn(plain, 1));
  EXPECT_TRUE(isIn(plain, 1, true));
  EXPECT_TRUE(isIn(homes, 0));
  EXPECT_TRUE(isIn(linked, 0));
  EXPECT_FALSE(isIn(array, 0));
}

TEST_F(Traverse, ComponentsInTheHometab)
{
  int32_t plain = define("P", TYP_SEQ);
  comp(plain, "a", TYP_NULL);
  start();
  TestType view(module, plain);
  atComp(*view, 0,
         [&](AsnType &a) { EXPECT_FALSE(isAsnHomeComp(view.type, a)); });
  inEntryFunction(*view);
  atComp(*view, 0,
         [&](AsnType &a) { EXPECT_TRUE(isAsnHomeComp(view.type, a)); });
}

// --- surplus elements -------------------------------------------------------

TEST_F(Traverse, WhoTellsOfSurplusElements)
{
  TypeFuncCallBack *tells = [](AsnType &, TypeFuncInfo &) {};
  EXPECT_TRUE(extraElemsVarUsed());
  info.skipFuncs.skipIsExtraElems = tells;
  EXPECT_FALSE(extraElemsVarUsed());
  info.ignoreMode = IGNORE_TRAVERSE;
  EXPECT_TRUE(extraElemsVarUsed());
  info.ignoreFuncs.skipIsExtraElems1 = tells;
  EXPECT_FALSE(extraElemsVarUsed());
  info.skipFuncs.skipIsExtraElems = nullptr;
  EXPECT_FALSE(extraElemsVarUsed());
  info.ignoreMode = 2;
  EXPECT_TRUE(extraElemsVarUsed());
}

// --- SKIP -------------------------------------------------------------------

TEST_F(Traverse, UnknownSkipKind)
{
  int32_t seq = define("T", TYP_SEQ);
  for (int kind : {0, 1, 2, 255}) {
    TNode skipped = node(TYP_NULL, VF_NULL, {optSkip});
    skipped.typeOptions.skipKind = static_cast<uint8_t>(kind);
    comp(seq, "c" + std::to_string(kind), skipped);
  }
  start();
  info.skipFuncs.skipFunc = [](AsnType &, TypeFuncInfo &) { wToF(1, "K"); };
  info.skip = [](AsnType &, TypeFuncInfo &) { wToF(1, "E"); };
  TestType view(module, seq);
  auto walk = [&](int number) {
    atComp(
        *view, number,
        [&](AsnType &comp_) {
          funcForComponentOrElement(*view, comp_, number);
        },
        false);
  };
  walk(0);
  EXPECT_EQ(written(), "K");
  walk(1);
  EXPECT_EQ(written(), "E");
  EXPECT_EXIT(walk(2), ExitedWithCode(2), "Unknown SKIP option value\\.");
  EXPECT_EXIT(walk(3), ExitedWithCode(2), "Unknown SKIP option value\\.");
}

// --- depth ------------------------------------------------------------------

// Linked lists inside each other, of which the path has no names.
TEST_F(Traverse, DeepNesting)
{
  constexpr int depth = 300;
  int32_t list = define("T", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  int32_t inner = list;
  for (int i = 1; i < depth; ++i)
    inner = comp(inner, "",
                 with(node(TYP_SEQOF, VF_LIST, {optHomeElems}), TCS_MULTIPLE));
  comp(inner, "", with(stxNewTNode(TYP_NULL), TCS_MULTIPLE));
  start();
  static int leaves;
  leaves = 0;
  info.leaf = [](AsnType &, TypeFuncInfo &) { ++leaves; };
  options().generate = 2;
  resetStamps();
  initStamps();
  EXPECT_EQ(cGenerateTypeFunctions(module, info), 2);
  EXPECT_EQ(leaves, 1);
  EXPECT_EQ(localVarCount[VAR_ASN_HOME], 0);
  EXPECT_EQ(localVarCount[VAR_HOME], 0);
}

// The element of the list is the list's own chain again, without end.
TEST_F(Traverse, ListInItselfInPlace)
{
  int32_t list = define("T", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  int32_t elem = comp(
      list, "", with(node(TYP_SEQOF, VF_LIST, {optHomeElems}), TCS_MULTIPLE));
  at(elem).ref = elem;
  at(elem).nrComps = 1;
  start();
  options().generate = 2;
  resetStamps();
  initStamps();
  EXPECT_EXIT(cGenerateTypeFunctions(module, info), ExitedWithCode(2),
              "inconsistent");
}

TEST_F(Traverse, RecursiveStructureInItselfInPlace)
{
  int32_t seq = define("T", TYP_SEQ);
  int32_t inner = comp(seq, "a", TYP_SEQ);
  at(inner).ref = inner;
  at(inner).nrComps = 1;
  at(inner).nodeFlags |= NF_RECURSIVE;
  start();
  options().generate = 2;
  resetStamps();
  initStamps();
  EXPECT_EXIT(cGenerateTypeFunctions(module, info), ExitedWithCode(2),
              "type contains itself in place");
}

}  // namespace
