// Object sets and the objects in them.

#include "driver/metaobjects.h"
#include "model/objectset.h"
#include "support/objecttrees.h"

using testing::ExitedWithCode;

namespace {

const char sets[] = "C ::= CLASS { &i INTEGER }\n"
                    "a C ::= {&i 1}\nb C ::= {&i 2}\nc C ::= b\n"
                    "S1 C ::= {a | b | {&i 3}}\n"
                    "S2 C ::= {c, ..., b}\n"
                    "S3 C ::= {S1 | a}\n"
                    "S4 C ::= {...}\n"
                    "P ::= TYPE-IDENTIFIER\n"
                    "S5 P ::= {...}\n"
                    "Val INTEGER ::= {1 | 2}\n"
                    "T ::= NULL\n";

struct ObjSetViews : ObjectTrees {
  ObjSetViews() { load(sets); }

  typedef std::string &Text(std::string &, const char *, const AsnObjectSet &,
                            const char *);
  std::string textOf(Text *getter, const AsnObjectSet &set)
  {
    std::string text = "old";
    EXPECT_EQ(&getter(text, "<", set, ">"), &text);
    std::string bare;
    EXPECT_EQ("<" + getter(bare, nullptr, set, nullptr) + ">", text);
    return bare;
  }
  static void noteObject(AsnObjectSet &, AsnObject &object, int index)
  {
    seen += std::to_string(index) + ":" + refOf(object) + " ";
  }
  std::string objectsOf(AsnObjectSet &set)
  {
    return said([&] { forObjectSet(set, noteObject); });
  }
  std::string objectsOf(const std::string &name)
  {
    return objectsOf(objectSet(name));
  }
  // The first constraint record of a set.
  SubRec &subOf(const std::string &name)
  {
    return stxSubAt(tree(), node(type(name)).firstConstraint);
  }
  // The object written in place in S1, as it is shown.
  std::string inPlace()
  {
    std::vector<int32_t> operands =
        operandsOf(tree(), node(type("S1")).firstConstraint);
    return "#" + std::to_string(stxSubAt(tree(), operands[2]).operand1);
  }
};

typedef ObjSetViews ObjSetDeath;

// --- sets of a module -------------------------------------------------------

void noteSet(AsnObjectSet &set, int index)
{
  ObjectTrees::seen +=
      std::to_string(index) + ":" + ObjectTrees::nameOf(set.compFix) + " ";
}

TEST_F(ObjSetViews, OfAModule)
{
  EXPECT_EQ(said([&] { forEachObjectSet(module, noteSet); }),
            "0:S1 1:S2 2:S3 3:S4 4:S5 ");
}

TEST_F(ObjSetViews, HiddenOnesAreLeftOut)
{
  node(type("S2")).hidden = 1;
  loadCompiled();
  EXPECT_EQ(said([&] { forEachObjectSet(module, noteSet); }),
            "0:S1 1:S3 2:S4 3:S5 ");
}

TEST_F(ObjSetViews, NoneInAModuleOfTypes)
{
  load("T ::= NULL\nV INTEGER ::= {1}");
  EXPECT_EQ(said([&] { forEachObjectSet(module, noteSet); }), "");
}

TEST_F(ObjSetViews, StepsReuseTheObject)
{
  AsnModule home = module;
  AsnObjectSet *set = firstObjectSet(module);
  set->homeMod = &home;
  AsnObjectSet *next = nextObjectSet(set);
  EXPECT_EQ(next, set);
  EXPECT_EQ(next->mod, &module);
  EXPECT_EQ(next->homeMod, &home);
  EXPECT_EQ(nameOf(next->compFix), "S2");
  EXPECT_EQ(next->synonymSteps, 1);
  delAsnObjectSet(next);
  // A second time does nothing.
  delAsnObjectSet(next);
  delAsnObjectSet(nullptr);
}

TEST_F(ObjSetDeath, NoCallBack)
{
  EXPECT_EXIT(forEachObjectSet(module, nullptr), ExitedWithCode(2),
              noCallBackText);
  AsnObjectSet &set = objectSet("S1");
  EXPECT_EXIT(forObjectSet(set, nullptr), ExitedWithCode(2), noCallBackText);
}

TEST_F(ObjSetDeath, CyclicReferences)
{
  node(type("S1")).ref = type("S1");
  loadCompiled();
  EXPECT_EXIT(objectSet("S1"), ExitedWithCode(2),
              "Syntax tree inconsistent\n +m\n");
}

TEST_F(ObjSetDeath, CalledByTheConstructorOfAMetaRecord)
{
  EXPECT_EXIT(
      {
        inBEObjSetMetaConstructor = true;
        objectSet("S1");
      },
      ExitedWithCode(2),
      "Object set iterator called inside BEObjSetMetaRec constructor\\.");
}

// --- one set ----------------------------------------------------------------

TEST_F(ObjSetViews, PathsAndQueries)
{
  AsnObjectSet &set = objectSet("S1");
  EXPECT_EQ(set.compRecNr, type("S1"));
  EXPECT_EQ(set.baseRecNr, type("C"));
  EXPECT_EQ(set.firstMainType, TYP_SYNONYM);
  EXPECT_EQ(set.base.mainType, TYP_CLASS);
  EXPECT_EQ(getModuleOfObjectSet(set), &module);
  // The class stands on the second line.
  EXPECT_EQ(getObjectSetDefinitionLine(set), 2);
  EXPECT_NE(getBEObjSetMetaRec(set), nullptr);
  AsnObjClass *objClass = getObjClassOfObjectSet(set);
  ASSERT_NE(objClass, nullptr);
  EXPECT_EQ(objClass->compRecNr, type("C"));
  EXPECT_TRUE(isPartialClassInfo(*objClass));
}

TEST_F(ObjSetViews, Names)
{
  stxGlobalOption(tree(), TED_FRONT_END, "-OSPREF=s_");
  stxGlobalOption(tree(), TED_FRONT_END, "-CLPREF=c_");
  stxGlobalOption(tree(), TED_FRONT_END, "-FSUFF=_f");
  // A field is no definition. The base is a class, and is called as one.
  node(type("S4")).compStatus = TCS_MANDATORY;
  loadCompiled();
  AsnObjectSet &set = objectSet("S1");
  EXPECT_EQ(textOf(getObjectSetRef, set), "S1");
  EXPECT_EQ(textOf(getDefObjectSetId, set), "s_S1");
  EXPECT_EQ(textOf(getBaseObjectSetRef, set), "C");
  EXPECT_EQ(textOf(getDefBaseObjectSetId, set), "c_C");
  EXPECT_EQ(textOf(getBaseObjectSetRef, objectSet("S5")), "TYPE-IDENTIFIER");
  AsnObjectSet &field = objectSet("S4");
  EXPECT_EQ(printedOf(field.compFix), "S4_f");
  EXPECT_EQ(textOf(getDefObjectSetId, field), "c_C");
  node(type("C")).compStatus = TCS_MANDATORY;
  loadCompiled();
  EXPECT_EQ(textOf(getDefObjectSetId, objectSet("S4")), "?!?");
  EXPECT_EQ(textOf(getDefBaseObjectSetId, objectSet("S4")),
            "?!?NOT-A-DEFINED-OBJECT-SET");
}

TEST_F(ObjSetDeath, NoClass)
{
  AsnObjectSet &set = objectSet("T");
  std::string text;
  EXPECT_EXIT(getBaseObjectSetRef(text, nullptr, set, nullptr),
              ExitedWithCode(2),
              "Trying to resolve object set name for an unsuitable "
              "construct\\.");
  EXPECT_EQ(getObjClassOfObjectSet(set), nullptr);
}

TEST_F(ObjSetViews, CommentsAndEmbedding)
{
  stxNodeTed(tree(), type("S1"), TED_EMBEDDING, "-E1 x");
  stxNodeTed(tree(), type("S2"), TED_BACK_END, "-//x");
  stxNodeTed(tree(), type("C"), TED_BACK_END, "-//y");
  loadCompiled();
  EXPECT_TRUE(objectSet("S2").commentOptions);
  EXPECT_EQ(objectSet("S2").embeddingFirst, nullptr);
  AsnObjectSet &set = objectSet("S1");
  EXPECT_FALSE(set.commentOptions);
  ASSERT_NE(set.embeddingFirst, nullptr);
  EXPECT_EQ(set.embeddingFirst->record, type("S1"));
  EXPECT_EQ(set.embeddingFirst, set.embeddingLast);
}

// The chain ends at a selection, which is no error here.
TEST_F(ObjSetViews, SelectionEndsTheChain)
{
  node(type("S1")).mainType = TYP_SELECTION;
  node(type("S1")).fieldRef = stxLink(tree(), stxNewLink(type("C")));
  loadCompiled();
  AsnObjectSet &set = objectSet("S1");
  EXPECT_EQ(set.baseRecNr, type("S1"));
  // The class is looked for behind it.
  ASSERT_NE(set.objClass, nullptr);
  EXPECT_EQ(set.objClass->compRecNr, type("C"));
}

TEST_F(ObjSetViews, PathToAValue)
{
  VNode carrier = stxNewVNode(TYP_SYNONYM, type("C"));
  carrier.firstChild = type("S2");
  node(type("S1")).mainType = TYP_FIELDLIST;
  node(type("S1")).fieldRef =
      stxLink(tree(), stxNewLink(-stxValue(tree(), carrier)));
  loadCompiled();
  AsnObjectSet &set = objectSet("S1");
  EXPECT_EQ(set.baseRecNr, type("C"));
  EXPECT_EQ(set.synonymSteps, 2);
}

// A path to a type takes its number with the sign of a value.
TEST_F(ObjSetDeath, PathToAType)
{
  node(type("S1")).mainType = TYP_FIELDLIST;
  node(type("S1")).fieldRef = stxLink(tree(), stxNewLink(type("S2")));
  loadCompiled();
  EXPECT_EXIT(objectSet("S1"), ExitedWithCode(2), noSuchRecord);
}

TEST_F(ObjSetViews, InstanceAsClass)
{
  // P is an instance of C; sets of P are governed by the instance.
  node(type("P")).mainType = TYP_SYNONYM;
  node(type("P")).ref = type("C");
  node(type("P")).fieldRef = 1;
  loadCompiled();
  AsnObjectSet &set = objectSet("S5");
  EXPECT_EQ(set.baseRecNr, type("C"));
  ASSERT_NE(set.objClass, nullptr);
  EXPECT_EQ(set.objClass->compRecNr, type("P"));
  EXPECT_TRUE(isInstantiatedClass(*set.objClass));
}

const char twoModules[] = "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
                          "IMPORTS C, a, Objs FROM N;\n"
                          "S1 C ::= {a | {&i 5}}\nS2 C ::= {Objs}\n"
                          "END\n"
                          "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
                          "C ::= CLASS { &i INTEGER }\n"
                          "a C ::= {&i 2}\nObjs C ::= {a}\nEND\n";

TEST_F(ObjSetViews, ClassOfAnotherModule)
{
  loadModules(twoModules);
  AsnObjectSet &set = objectSet("S1");
  ASSERT_NE(set.objClass, nullptr);
  EXPECT_STREQ(set.objClass->mod->rec->moduleName, "N");
  ModRec *m = module.rec;
  ModRec *n = set.objClass->compModRec;
  EXPECT_EQ(getModNrOfGoverningClass(m, m), 1);
  EXPECT_EQ(getModNrOfGoverningClass(m, n), 2);
  EXPECT_EQ(getModNrOfGoverningClass(n, m), 0);
}

// M takes the set from N, and N the class from P, which M does not know.
TEST_F(ObjSetViews, ClassOfAModuleThatIsNotImported)
{
  loadModules("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "IMPORTS Objs, D FROM N;\n"
              "T ::= NULL\nS1 D ::= {...}\nEND\n"
              "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "IMPORTS C FROM P;\n"
              "D ::= CLASS { &i INTEGER }\nObjs C ::= {...}\nEND\n"
              "P DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
              "C ::= CLASS { &i INTEGER }\nEND\n");
  node(type("S1")).ref = typeNamed(tree(1), "Objs");
  loadCompiled();
  AsnObjectSet &set = objectSet("S1");
  EXPECT_EQ(nameOf(set.baseFix), "C");
  // In M itself the number of the class is that of a type.
  ASSERT_EQ(typeNamed(tree(2), "C"), type("T"));
  EXPECT_EQ(getObjClassOfObjectSet(set), nullptr);
}

// --- objects of a set -------------------------------------------------------

TEST_F(ObjSetViews, ObjectsInOrder)
{
  EXPECT_EQ(objectsOf("S1"), "0:a 1:b 2:" + inPlace() + " ");
}

TEST_F(ObjSetViews, ReferencesAreFollowed)
{
  // The view is of the object itself.
  auto note = [](AsnObjectSet &, AsnObject &object, int) {
    seen += nameOf(object.compFix) + std::to_string(object.compRecNr);
  };
  EXPECT_EQ(said([&] { forObjectSet(objectSet("S2"), note); }),
            "b" + std::to_string(value("b")));
}

TEST_F(ObjSetViews, RootOnly)
{
  EXPECT_EQ(objectsOf("S2"), "0:b ");
  EXPECT_EQ(objectsOf("S4"), "");
}

TEST_F(ObjSetViews, IncludedSets)
{
  EXPECT_EQ(objectsOf("S3"), "0:a 1:b 2:" + inPlace() + " 3:a ");
}

TEST_F(ObjSetViews, BareReferencesAheadOfAnIncludedSet)
{
  // S4 has no constraint: it refers to S1.
  node(type("S4")).firstConstraint = 0;
  node(type("S4")).ref = type("S1");
  VNode carrier = stxNewVNode(TYP_SYNONYM, type("C"));
  carrier.firstChild = type("S4");
  int32_t sub =
      stxSub(tree(), stxNewSub(SUB_INCLUDES, stxValue(tree(), carrier)));
  node(type("S2")).firstConstraint = sub;
  loadCompiled();
  EXPECT_EQ(objectsOf("S2"), "0:a 1:b 2:" + inPlace() + " ");
  // One of another module is not followed.
  node(type("S4")).refModule = 2;
  loadCompiled();
  EXPECT_EQ(objectsOf("S2"), "");
}

TEST_F(ObjSetViews, NoConstraintOrNoTarget)
{
  int32_t sub = node(type("S1")).firstConstraint;
  AsnObjectSet &set = objectSet("S1");
  node(type("S1")).firstConstraint = 0;
  loadCompiled();
  set.compModRec = module.rec;
  EXPECT_EQ(objectsOf(set), "");
  node(type("S1")).firstConstraint = sub;
  node(type("S1")).ref = 0;
  loadCompiled();
  set.compModRec = module.rec;
  EXPECT_EQ(objectsOf(set), "");
}

TEST_F(ObjSetViews, WhatIsNoObjectIsPassedOver)
{
  std::vector<int32_t> operands =
      operandsOf(tree(), node(type("S1")).firstConstraint);
  VNode plain = stxNewInteger(type("T"), 1);
  stxSubAt(tree(), operands[1]).operand1 = stxValue(tree(), plain);
  loadCompiled();
  EXPECT_EQ(objectsOf("S1"), "0:a 1:" + inPlace() + " ");
}

TEST_F(ObjSetViews, ObjectsOfAnotherModule)
{
  loadModules(twoModules);
  auto note = [](AsnObjectSet &, AsnObject &object, int) {
    seen += object.mod->rec->moduleName + refOf(object).substr(0, 1) + " ";
  };
  EXPECT_EQ(said([&] { forObjectSet(objectSet("S1"), note); }), "Na M# ");
}

TEST_F(ObjSetDeath, TooComplex)
{
  for (int kind : {SUB_INTERSECTION, SUB_EXCEPT, SUB_ALL_EXCEPT, SUB_RANGE}) {
    subOf("S1").kind = static_cast<uint8_t>(kind);
    loadCompiled();
    EXPECT_EXIT(objectsOf("S1"), ExitedWithCode(2),
                "Internal error.*\n.*Too complex object set");
  }
}

TEST_F(ObjSetViews, WalksNest)
{
  auto outer = [](AsnObjectSet &set, AsnObject &object, int index) {
    seen += std::to_string(index) + refOf(object).substr(0, 1) + "(";
    forObjectSet(set, [](AsnObjectSet &, AsnObject &, int inner) {
      seen += std::to_string(inner);
    });
    seen += ")";
  };
  EXPECT_EQ(said([&] { forObjectSet(objectSet("S1"), outer); }),
            "0a(012)1b(012)2#(012)");
}

TEST_F(ObjSetDeath, CyclicSets)
{
  // S1 includes itself; then a union runs in a circle.
  VNode carrier = stxNewVNode(TYP_SYNONYM, type("C"));
  carrier.firstChild = type("S1");
  int32_t sub =
      stxSub(tree(), stxNewSub(SUB_INCLUDES, stxValue(tree(), carrier)));
  int32_t first = node(type("S1")).firstConstraint;
  node(type("S1")).firstConstraint = sub;
  loadCompiled();
  EXPECT_EXIT(objectsOf("S1"), ExitedWithCode(2),
              "Syntax tree inconsistent\n +m\n");
  node(type("S1")).firstConstraint = first;
  std::vector<int32_t> operands = operandsOf(tree(), first);
  stxSubAt(tree(), operands[2]).nextSub = operands[0];
  loadCompiled();
  EXPECT_EXIT(objectsOf("S1"), ExitedWithCode(2),
              "Syntax tree inconsistent\n +m\n");
}

// Each union stands twice in the one above: 2 to the power of 60 ways.
TEST_F(ObjSetDeath, TooManyWays)
{
  VNode carrier = stxNewVNode(TYP_SYNONYM, type("C"));
  int32_t below = type("S1");
  for (int i = 0; i < 60; ++i) {
    std::vector<int32_t> operands;
    carrier.firstChild = below;
    int32_t value_ = stxValue(tree(), carrier);
    for (int k = 0; k < 2; ++k)
      operands.push_back(stxSub(tree(), stxNewSub(SUB_INCLUDES, value_)));
    TNode set = stxNewSynonym(type("C"));
    set.classFlags = CF_SET;
    set.firstConstraint =
        stxSub(tree(), stxNewSub(SUB_UNION, stxChainSubs(tree(), operands)));
    below = stxType(tree(), set);
  }
  node(type("S2")).firstConstraint = node(below).firstConstraint;
  loadCompiled();
  AsnObjectSet &set = objectSet("S2");
  EXPECT_EXIT(forObjectSet(set, [](AsnObjectSet &, AsnObject &, int) {}),
              ExitedWithCode(2), "Syntax tree inconsistent\n +m\n");
}

TEST_F(ObjSetDeath, WildIndexes)
{
  std::vector<int32_t> operands =
      operandsOf(tree(), node(type("S1")).firstConstraint);
  stxSubAt(tree(), operands[0]).operand1 = 9999;
  loadCompiled();
  EXPECT_EXIT(objectsOf("S1"), ExitedWithCode(2), noSuchRecord);
}

}  // namespace
