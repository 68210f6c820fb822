// Objects in the order of their classes, built-in ones among them.

#include "model/builtinobj.h"
#include "support/objecttrees.h"

using testing::ExitedWithCode;

namespace {

struct ObjOrder : ObjectTrees {
  ObjOrder() { load(exampleObjects); }

  static std::string numberOf(int number) { return std::to_string(number); }
  static void prefix(AsnObjClass &of, bool isIgnored)
  {
    seen += nameOf(of.compFix) + (isIgnored ? "!" : "") + "[ ";
  }
  static void visit(AsnObjClass &of, AsnObject &at, int nonIgnored, int index,
                    bool isIgnored)
  {
    EXPECT_TRUE(isSameBaseObjClass(of, *at.objClass));
    seen += numberOf(nonIgnored) + "/" + numberOf(index) +
            refOf(at).substr(0, 1) + (isIgnored ? "! " : " ");
  }
  static void postfix(AsnObjClass &, int nonIgnored, int count, bool isIgnored)
  {
    seen += "]" + numberOf(nonIgnored) + "/" + numberOf(count) +
            (isIgnored ? "! " : " ");
  }
  std::string order(bool builtinToo)
  {
    return said([&] {
      forEachObjectInClassOrder(module, prefix, visit, postfix, builtinToo);
    });
  }
};

typedef ObjOrder ObjOrderDeath;

TEST_F(ObjOrder, GroupsByFirstAppearance)
{
  EXPECT_EQ(order(false), "ERR[ 0/0e 1/1f ]2/2 "
                          "OP[ 0/0p 1/1o 2/2q 3/3q ]4/4 "
                          "-[ 0/0t ]1/1 ");
}

// Those of a class come with its first object.
TEST_F(ObjOrder, BuiltinObjects)
{
  EXPECT_EQ(order(true), "ERR[ 0/0e 1/1# 2/2f ]3/3 "
                         "OP[ 0/0p 1/1l 2/2o 3/3q 4/4q ]5/5 "
                         "-[ 0/0t ]1/1 ");
}

TEST_F(ObjOrder, RightBehindTheObjectThatHoldsIt)
{
  load("C ::= CLASS { &i INTEGER, &next C OPTIONAL }\n"
       "a C ::= {&i 1, &next {&i 2, &next {&i 3}}}\nb C ::= {&i 4}");
  EXPECT_EQ(order(true), "C[ 0/0a 1/1n 2/2n 3/3b ]4/4 ");
  EXPECT_EQ(order(false), "C[ 0/0a 1/1b ]2/2 ");
}

// Of a class without defined objects, and from sets, those once that stand in
// several.
TEST_F(ObjOrder, UnvisitedBuiltinObjects)
{
  load("C ::= CLASS { &d D OPTIONAL }\nD ::= CLASS { &i INTEGER }\n"
       "c C ::= {&d {&i 1}}\nS1 D ::= {{&i 2}}\nS2 D ::= {S1 | {&i 3}}\n");
  EXPECT_EQ(order(true), "C[ 0/0c ]1/1 D[ 0/0d 1/1# 2/2# ]3/3 ");
  EXPECT_EQ(order(false), "C[ 0/0c ]1/1 ");
}

TEST_F(ObjOrder, IgnoredClass)
{
  node(type("OP")).nodeOptions |= 1u << optSkip;
  loadCompiled();
  EXPECT_EQ(order(true), "ERR[ 0/0e 1/1# 2/2f ]3/3 "
                         "OP![ 0/0p! 0/1l! 0/2o! 0/3q! 0/4q! ]0/5! "
                         "-[ 0/0t ]1/1 ");
}

TEST_F(ObjOrder, IgnoredField)
{
  node(fieldNode("OP", "Errors")).nodeOptions |= 1u << optSkip;
  loadCompiled();
  EXPECT_EQ(order(true), "ERR[ 0/0e 1/1#! 1/2f ]2/3 "
                         "OP[ 0/0p 1/1l 2/2o 3/3q 4/4q ]5/5 "
                         "-[ 0/0t ]1/1 ");
}

TEST_F(ObjOrder, AnyCallBackAlone)
{
  EXPECT_EQ(said([&] {
              forEachObjectInClassOrder(module, prefix, nullptr, nullptr, true);
            }),
            "ERR[ OP[ -[ ");
  EXPECT_EQ(said([&] {
              forEachObjectInClassOrder(module, nullptr, nullptr, postfix,
                                        true);
            }),
            "]3/3 ]5/5 ]1/1 ");
  load("C ::= CLASS { &i INTEGER }");
  EXPECT_EQ(order(true), "");
}

TEST_F(ObjOrder, WalksNest)
{
  load("C ::= CLASS { &i INTEGER, &next C OPTIONAL }\n"
       "a C ::= {&i 1, &next {&i 2}}");
  static AsnModule *mod;
  mod = &module;
  EXPECT_EQ(said([&] {
              forEachObjectInClassOrder(
                  module,
                  [](AsnObjClass &, bool) {
                    forEachObjectInClassOrder(*mod, prefix, visit, postfix,
                                              true);
                  },
                  visit, postfix, true);
            }),
            "C[ 0/0a 1/1n ]2/2 0/0a 1/1n ]2/2 ");
}

TEST_F(ObjOrder, OfAnotherModule)
{
  loadModules("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "IMPORTS C, Objs FROM N;\n"
              "a C ::= {&i 1}\nS C ::= {{&i 2}}\nEND\n"
              "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "C ::= CLASS { &i INTEGER }\n"
              "Objs C ::= {{&i 3}}\nEND\n");
  EXPECT_EQ(order(true), "C[ 0/0a 1/1# ]2/2 ");
}

// The parts by themselves.
TEST_F(ObjOrder, DetectionRegisters)
{
  detectBuiltinObjects(module);
  ASSERT_NE(glbClassInfoList, nullptr);
  // "o" is the first with any: &linked, then &Errors.
  EXPECT_EQ(glbClassInfoList->classRecord, type("OP"));
  ASSERT_NE(glbClassInfoList->first, nullptr);
  EXPECT_EQ(glbClassInfoList->first->record, setting("o", "linked"));
  EXPECT_FALSE(glbClassInfoList->first->isOptional);
  ASSERT_NE(glbClassInfoList->next, nullptr);
  EXPECT_EQ(glbClassInfoList->next->classRecord, type("ERR"));
  EXPECT_EQ(glbClassInfoList->next->next, nullptr);
  int nonIgnored = 3, all = 5;
  visitBuiltinObjects(module, *glbClassInfoList, nonIgnored, all, false);
  EXPECT_EQ(nonIgnored, 4);
  EXPECT_EQ(all, 6);
  EXPECT_EQ(glbClassInfoList->first, nullptr);
  visitUnvisitedBuiltinObjects(module);
  releaseGlobalVars();
  EXPECT_EQ(glbClassInfoList, nullptr);
}

TEST_F(ObjOrderDeath, NoCallBack)
{
  EXPECT_EXIT(
      forEachObjectInClassOrder(module, nullptr, nullptr, nullptr, true),
      ExitedWithCode(2), noCallBackText);
}

// Objects in place inside each other, more than anybody writes.
TEST_F(ObjOrderDeath, TooDeep)
{
  for (int depth : {500, 1500}) {
    load("C ::= CLASS { &next C OPTIONAL }\na C ::= {}");
    int32_t father = value("a");
    for (int i = 0; i < depth; ++i) {
      VNode inner = stxNewVNode(TYP_CLASS, fieldNode("C", "next"));
      inner.valueStatus = 3;
      father = stxAddChild(tree(), father, "next", inner);
    }
    loadCompiled();
    if (depth == 500)
      EXPECT_TRUE(order(true).ends_with("]501/501 "));
    else
      EXPECT_EXIT(order(true), ExitedWithCode(2),
                  "Syntax tree inconsistent\n +m\n");
  }
}

TEST_F(ObjOrderDeath, ObjectsLeftBehind)
{
  EXPECT_EXIT(
      {
        detectBuiltinObjects(module);
        releaseGlobalVars();
      },
      ExitedWithCode(2), "Internal error");
}

// An object in place whose field holds itself is met once.
TEST_F(ObjOrder, InItself)
{
  load("C ::= CLASS { &i INTEGER, &next C OPTIONAL }\n"
       "a C ::= {&i 1, &next {&i 2, &next {&i 3}}}");
  int32_t inner = setting("a", "next");
  int32_t innermost = childrenOf(tree(), inner)[1];
  VNode reference = stxNewVNode(TYP_SYNONYM, fieldNode("C", "next"));
  reference.firstChild = inner;
  reference.valueStatus = 3;
  reference.refModule = 1;
  valueNode(innermost) = reference;
  loadCompiled();
  EXPECT_EQ(order(true), "C[ 0/0a 1/1n ]2/2 ");
}

// Many classes with an object each take no more than a walk or two.
TEST_F(ObjOrder, ManyClasses)
{
  std::string text;
  constexpr int count = 1500;
  for (int i = 0; i < count; ++i) {
    std::string number = std::to_string(i);
    text += "C" + number + " ::= CLASS { &i INTEGER }\n" + "c" + number + " C" +
            number + " ::= {&i 1}\n";
  }
  load(text);
  static int visits;
  visits = 0;
  forEachObjectInClassOrder(
      module, nullptr,
      [](AsnObjClass &, AsnObject &, int, int, bool) { ++visits; }, nullptr,
      true);
  EXPECT_EQ(visits, count);
}

}  // namespace
