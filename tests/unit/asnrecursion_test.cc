#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Parameterized types that refer to themselves: the same parameters lead back
// to the instance, others make a new one until there are too many.

static const TNode &recursionNode(const StxTree &tree, int32_t index)
{
  return tree.tNodes.at(static_cast<size_t>(index) - 1);
}

static const TNode &recursionDef(const StxTree &tree, const std::string &name)
{
  return recursionNode(tree, typeNamed(tree, name));
}

static bool isRecursive(const TNode &node)
{
  return node.nodeFlags & NF_RECURSIVE;
}

static const char listText[] =
    "List {T} ::= SEQUENCE { v T, next List {T} OPTIONAL }\n";

TEST(AsnRecursion, LeadsBackToTheDefinition)
{
  AsnCompiled compiled =
      compileBody(std::string(listText) + "L ::= List {BOOLEAN}");
  const StxTree &tree = treeOf(compiled);
  const TNode &l = recursionDef(tree, "L");
  const TNode &copy = recursionNode(tree, l.ref);
  const TNode &next = recursionNode(tree, compNamed(tree, l.ref, "next"));
  EXPECT_EQ(next.mainType, TYP_SYNONYM);
  EXPECT_EQ(next.ref, typeNamed(tree, "L"));
  EXPECT_EQ(next.refModule, 1);
  // It is a reference, no instance of its own.
  EXPECT_EQ(next.fieldRef, 0);
  EXPECT_EQ(next.compStatus, TCS_OPTIONAL);
  EXPECT_NE(next.nestedInstance, 0);
  EXPECT_TRUE(isRecursive(l));
  EXPECT_TRUE(isRecursive(copy));
  EXPECT_TRUE(isRecursive(next));
  EXPECT_FALSE(isRecursive(recursionNode(tree, compNamed(tree, l.ref, "v"))));
  EXPECT_EQ(tree.header.nrVisibleTypes, 1);
}

TEST(AsnRecursion, OtherParametersAreNoCircle)
{
  AsnCompiled compiled =
      compileBody("Pair {A, B} ::= SEQUENCE { a A, p Pair2 {B, A} }\n"
                  "Pair2 {A, B} ::= SEQUENCE { a A, b B }\n"
                  "P ::= Pair {NULL, BOOLEAN}");
  const StxTree &tree = treeOf(compiled);
  const TNode &p = recursionDef(tree, "P");
  EXPECT_FALSE(isRecursive(p));
  EXPECT_NE(recursionNode(tree, compNamed(tree, p.ref, "p")).fieldRef, 0);
}

TEST(AsnRecursion, SwappedParametersComeBackInTwoSteps)
{
  AsnCompiled compiled =
      compileBody("S {A, B} ::= SEQUENCE { a A, s S {B, A} OPTIONAL }\n"
                  "X ::= S {NULL, BOOLEAN}");
  const StxTree &tree = treeOf(compiled);
  const TNode &x = recursionDef(tree, "X");
  const TNode &inner = recursionNode(tree, compNamed(tree, x.ref, "s"));
  EXPECT_NE(inner.fieldRef, 0);
  EXPECT_EQ(recursionNode(tree, compNamed(tree, inner.ref, "a")).mainType,
            TYP_BOOLEAN);
  const TNode &back = recursionNode(tree, compNamed(tree, inner.ref, "s"));
  EXPECT_EQ(back.ref, typeNamed(tree, "X"));
  EXPECT_EQ(back.fieldRef, 0);
}

TEST(AsnRecursion, ThroughAnotherDefinition)
{
  AsnCompiled compiled = compileBody("A {T} ::= CHOICE { t T, b B {T} }\n"
                                     "B {T} ::= SEQUENCE OF A {T}\n"
                                     "X ::= A {NULL}\nY ::= B {NULL}");
  const StxTree &tree = treeOf(compiled);
  const TNode &b =
      recursionNode(tree, compNamed(tree, recursionDef(tree, "X").ref, "b"));
  EXPECT_EQ(recursionNode(tree, recursionNode(tree, b.ref).ref).ref,
            typeNamed(tree, "X"));
  // Each definition has a circle of its own.
  const TNode &list = recursionNode(tree, recursionDef(tree, "Y").ref);
  const TNode &element = recursionNode(tree, list.ref);
  EXPECT_EQ(recursionNode(tree, compNamed(tree, element.ref, "b")).ref,
            typeNamed(tree, "Y"));
}

TEST(AsnRecursion, UseWithoutANameGetsADefinition)
{
  AsnCompiled compiled =
      compileBody(std::string(listText) +
                  "A ::= SEQUENCE { l List {NULL}, m List {NULL} }");
  const StxTree &tree = treeOf(compiled);
  int32_t made = typeNamed(tree, "List");
  ASSERT_NE(made, 0);
  const TNode &header = recursionNode(tree, made);
  EXPECT_EQ(header.compStatus, TCS_HEADER);
  EXPECT_EQ(header.hidden, 0);
  EXPECT_EQ(header.nestedInstance, 0);
  EXPECT_NE(header.fieldRef, 0);
  EXPECT_TRUE(isRecursive(header));
  EXPECT_EQ(recursionNode(tree, compNamed(tree, header.ref, "next")).ref, made);
  int32_t a = typeNamed(tree, "A");
  for (const char *name : {"l", "m"}) {
    const TNode &use = recursionNode(tree, compNamed(tree, a, name));
    EXPECT_NE(use.fieldRef, 0);
    EXPECT_NE(use.ref, header.ref);
    EXPECT_EQ(recursionNode(tree, compNamed(tree, use.ref, "next")).ref, made);
  }
  EXPECT_EQ(tree.header.nrVisibleTypes, 2);
}

TEST(AsnRecursion, MadeNamesAreFree)
{
  // List of another module may stand beside a definition of that name here.
  AsnCompiled compiled = compileAsn(
      "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN IMPORTS P FROM N; List ::= NULL\n"
      "A ::= SEQUENCE { p P {NULL}, q P {BOOLEAN} } END\n"
      "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
      "P {T} ::= SEQUENCE { l List {T} }\n" +
      std::string(listText) + "END\n");
  const StxTree &tree = treeOf(compiled, 0);
  EXPECT_EQ(recursionDef(tree, "List").mainType, TYP_NULL);
  EXPECT_NE(typeNamed(tree, "List_2"), 0);
  EXPECT_NE(typeNamed(tree, "List_3"), 0);
  EXPECT_EQ(typeNamed(tree, "List_4"), 0);
}

TEST(AsnRecursion, TagOfTheUseIsNotThatOfTheCircle)
{
  AsnCompiled compiled =
      compileBody(std::string(listText) + "A ::= [5] List {NULL}");
  const StxTree &tree = treeOf(compiled);
  const TNode &a = recursionDef(tree, "A");
  int32_t made = typeNamed(tree, "List");
  ASSERT_NE(made, 0);
  EXPECT_NE(recursionNode(tree, a.ref).firstTag, 0);
  EXPECT_EQ(recursionNode(tree, recursionNode(tree, made).ref).firstTag, 0);
  EXPECT_EQ(recursionNode(tree, compNamed(tree, a.ref, "next")).ref, made);
}

TEST(AsnRecursion, TagOfTheReferenceStaysThere)
{
  AsnCompiled compiled =
      compileBody("List {T} ::= SEQUENCE { v T, next [7] List {T} OPTIONAL }\n"
                  "L ::= List {NULL}");
  const StxTree &tree = treeOf(compiled);
  const TNode &next =
      recursionNode(tree, compNamed(tree, recursionDef(tree, "L").ref, "next"));
  EXPECT_EQ(next.ref, typeNamed(tree, "L"));
  ASSERT_NE(next.firstTag, 0);
  EXPECT_EQ(tree.tagRecs.at(static_cast<size_t>(next.firstTag) - 1).tagNumber,
            7);
}

TEST(AsnRecursion, ClassRefersToItself)
{
  AsnCompiled compiled =
      compileBody("G {T} ::= CLASS { &v T, &self G {T} OPTIONAL }\n"
                  "X ::= G {BOOLEAN}\no X ::= { &v TRUE }");
  const StxTree &tree = treeOf(compiled);
  int32_t x = typeNamed(tree, "X");
  EXPECT_EQ(recursionNode(tree, x).mainType, TYP_CLASS);
  EXPECT_EQ(recursionNode(tree, compNamed(tree, x, "self")).ref, x);
  EXPECT_EQ(recursionNode(tree, compNamed(tree, x, "v")).mainType, TYP_BOOLEAN);
  int32_t o = valueNamed(tree, "o");
  EXPECT_EQ(tree.vNodes.at(static_cast<size_t>(o) - 1).governor, x);
}

TEST(AsnRecursion, InstancesOfAClassAreDifferentClasses)
{
  EXPECT_EQ(errorOf("G {T} ::= CLASS { &v T }\nX ::= G {BOOLEAN}\n"
                    "Y ::= G {NULL}\no X ::= { &v TRUE }\np Y ::= o"),
            "6:9: \"o\" is an object of another class");
}

TEST(AsnRecursion, ClassAsParameterGovernsTheNext)
{
  AsnCompiled compiled = compileAsn(
      "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN IMPORTS P FROM N;\n"
      "C ::= CLASS { &id INTEGER } o C ::= { &id 1 } Set C ::= { o }\n"
      "A ::= P {C, {Set}} B ::= P {C, Set} END\n"
      "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
      "P {CLS, CLS:Objects} ::= SEQUENCE { id CLS.&id ({Objects}) } END\n");
  const StxTree &tree = treeOf(compiled, 0);
  int32_t copy = recursionDef(tree, "A").ref;
  EXPECT_EQ(constraintOf(tree, compNamed(tree, copy, "id")), "kind17");
}

TEST(AsnRecursion, Errors)
{
  // The value grows with each step, the type in one of two branches.
  EXPECT_EQ(errorOf("P {T} ::= SET { p P {SET OF T} OPTIONAL }\n"
                    "A ::= P {NULL}"),
            "2:19: \"P\": parameterized definitions are nested too deeply");
  EXPECT_EQ(errorOf("P {T} ::= Q {T}\nQ {T} ::= P {T}\nA ::= P {NULL}"),
            "3:11: circular definition of \"P\"");
  EXPECT_EQ(errorOf("v {INTEGER:n} SEQUENCE OF INTEGER ::= v {n}\n"
                    "w SEQUENCE OF INTEGER ::= v {4}"),
            "2:39: circular definition of \"v\"");
}
