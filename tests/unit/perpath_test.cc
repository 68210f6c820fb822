// Path calls of generated code.

#include "cbet/cvars.h"
#include "per/perpath.h"
#include "support/fragtrees.h"

namespace {

struct PerPath : FragTrees {
  TypeFuncInfo info;
  PerPath() { info.implFile = 1; }

  void elem(int32_t list, TNode node)
  {
    node.compStatus = TCS_MULTIPLE;
    comp(list, "", node);
  }
  void load(bool pushPath)
  {
    start();
    options().pushPath = pushPath;
  }
};

TEST_F(PerPath, Components)
{
  int32_t seq = define("T", TYP_SEQ);
  comp(seq, "a-b", TYP_BOOLEAN);
  load(true);
  TestType view(module, seq);
  atComp(*view, 0, [&](AsnType &a) {
    perPushPath(a, info);
    EXPECT_EQ(written(), "pp_pushPath (ASNG_F(asnperg) \"a_b_fld\");\n");
    perPopPath(a, info);
    EXPECT_EQ(written(), "pp_popPath (ASNG_F(asnperg) 8);\n");
  });
}

// Members of a CHOICE stand in its union, unless they have homes.
TEST_F(PerPath, Alternatives)
{
  int32_t choice = define("C", TYP_CHOICE);
  TNode home = stxNewTNode(TYP_BOOLEAN);
  home.compStatus = TCS_CHOICE;
  comp(choice, "a", home);
  home.nodeOptions |= 1u << optAsnhc;
  comp(choice, "b", home);
  load(true);
  TestType view(module, choice);
  atComp(*view, 0, [&](AsnType &a) {
    perPushPath(a, info);
    perPopPath(a, info);
    EXPECT_EQ(written(), "pp_pushPath (ASNG_F(asnperg) \"i1.a_fld\");\n"
                         "pp_popPath (ASNG_F(asnperg) 9);\n");
  });
  atComp(*view, 1, [&](AsnType &b) {
    perPushPath(b, info);
    perPopPath(b, info);
    EXPECT_EQ(written(), "pp_pushPath (ASNG_F(asnperg) \"b_fld\");\n"
                         "pp_popPath (ASNG_F(asnperg) 6);\n");
  });
}

TEST_F(PerPath, Elements)
{
  int32_t list = define("L", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  elem(list, stxNewTNode(TYP_BOOLEAN, VF_BOOL));
  int32_t array = define("A", node(TYP_SEQOF, VF_STRU, {}, VF_UI32));
  elem(array, stxNewTNode(TYP_BOOLEAN, VF_BOOL));
  load(true);
  TestType linked(module, list), counted(module, array);
  atComp(
      *linked, 0,
      [&](AsnType &elem) {
        perPushElem(elem, info);
        perPopPath(elem, info);
        EXPECT_EQ(written(), "pp_pushElem (ASNG_F(asnperg) listLen (home));\n"
                             "pp_popPath (ASNG_F(asnperg) 0);\n");
        perPushElemInCallBack(elem, info);
        EXPECT_EQ(written(), "pp_pushElem (ASNG_F(asnperg) listLen (home));\n");
      },
      false);
  cIncNVarCount();
  atComp(
      *counted, 0,
      [&](AsnType &elem) {
        perPushElem(elem, info);
        EXPECT_EQ(written(), "pp_pushElem (ASNG_F(asnperg) n1);\n");
        perPushElemInCallBack(elem, info);
        EXPECT_EQ(written(),
                  "pp_pushElem (ASNG_F(asnperg) staArrLen (home));\n");
      },
      false);
}

// A line may break ahead of what is pushed, but not ahead of a literal; the
// end of a call belongs to its argument, except in functions of elements.
TEST_F(PerPath, Cuts)
{
  int32_t seq = define("T", TYP_SEQ);
  comp(seq, "a-b", TYP_BOOLEAN);
  int32_t list = define("L", node(TYP_SEQOF, VF_LIST, {optHomeElems}));
  elem(list, stxNewTNode(TYP_BOOLEAN, VF_BOOL));
  load(true);
  TestType view(module, seq), linked(module, list);
  atComp(*view, 0, [&](AsnType &a) {
    EXPECT_EQ(pieces([&] { perPushPath(a, info); }),
              "pp_pushPath (ASNG_F(asnperg) \"a_b_fld\");");
    EXPECT_EQ(pieces([&] { perPopPath(a, info); }),
              "pp_popPath (ASNG_F(asnperg) 8);");
  });
  EXPECT_EQ(pieces([&] { perEntryPushPath(*view, info); }),
            "pp_pushPath (ASNG_F(asnperg) \"T\");");
  atComp(
      *linked, 0,
      [&](AsnType &elem) {
        auto push = [&] { perPushElem(elem, info); };
        auto pushInCallBack = [&] { perPushElemInCallBack(elem, info); };
        EXPECT_EQ(pieces(push),
                  "pp_pushElem (ASNG_F(asnperg)|listLen (home));");
        EXPECT_EQ(pieces(pushInCallBack),
                  "pp_pushElem (ASNG_F(asnperg) |listLen (home));");
        EXPECT_FALSE(endsApart(push));
        EXPECT_TRUE(endsApart(pushInCallBack));
      },
      false);
}

TEST_F(PerPath, Entries)
{
  int32_t seq = define("My-Type", TYP_SEQ);
  load(true);
  TestType view(module, seq);
  perEntryPushPath(*view, info);
  perEntryPopPath(*view, info);
  EXPECT_EQ(written(), "pp_pushPath (ASNG_F(asnperg) \"My_Type\");\n"
                       "pp_popPath (ASNG_F(asnperg) 8);\n");
}

TEST_F(PerPath, NothingWithoutTheOption)
{
  int32_t list = define("L", node(TYP_SEQOF, VF_LIST));
  elem(list, stxNewTNode(TYP_BOOLEAN, VF_BOOL));
  load(false);
  TestType view(module, list);
  perEntryPushPath(*view, info);
  perEntryPopPath(*view, info);
  perPushElem(*view, info);
  atComp(
      *view, 0,
      [&](AsnType &elem) {
        perPushPath(elem, info);
        perPushElem(elem, info);
        perPushElemInCallBack(elem, info);
        perPopPath(elem, info);
      },
      false);
  EXPECT_EQ(written(), "");
}

TEST_F(PerPath, ElementWithoutList)
{
  int32_t seq = define("T", TYP_SEQ);
  load(true);
  TestType view(module, seq);
  EXPECT_EXIT(perPushElem(*view, info), testing::ExitedWithCode(2),
              "Internal error");
  EXPECT_EXIT(perPushElemInCallBack(*view, info), testing::ExitedWithCode(2),
              "Internal error");
}

// The text in the C string is never broken off.
TEST_F(PerPath, NoBreakInTheString)
{
  int32_t seq = define("T", TYP_SEQ);
  comp(seq, "a", TYP_BOOLEAN);
  load(true);
  TestType view(module, seq);
  putToF(1, std::string(60, '-').c_str());
  atComp(*view, 0, [&](AsnType &a) { perPushPath(a, info); });
  EXPECT_EQ(written(), std::string(60, '-') +
                           "\n  pp_pushPath (ASNG_F(asnperg) \"a_fld\");\n");
}

}  // namespace
