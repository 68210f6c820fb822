#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Values, value sets, types and object sets out of objects and object sets.

using testing::ElementsAre;

static const char classes[] =
    "C ::= CLASS { &id INTEGER, &Type OPTIONAL, &Set INTEGER OPTIONAL,\n"
    "  &Objs D OPTIONAL, &one D OPTIONAL }\n"
    "D ::= CLASS { &n INTEGER }\n"
    "d1 D ::= { &n 11 }\n"
    "d2 D ::= { &n 12 }\n"
    "a C ::= { &id 1, &Type SEQUENCE { x NULL }, &Set { 1..3 | 7 },\n"
    "  &Objs { d1 }, &one d1 }\n"
    "b C ::= { &id 2, &Set { 9 }, &Objs { d1 | d2 } }\n"
    "S C ::= { a | b, ... }\n";

static AsnCompiled compileObjects(const std::string &body)
{
  return compileBody(classes + body);
}

static std::string objectsConstraint(const std::string &body)
{
  AsnCompiled compiled = compileObjects("X " + body);
  const StxTree &tree = treeOf(compiled);
  return constraintOf(tree, typeNamed(tree, "X"));
}

TEST(AsnFromObjects, SetOfAnObject)
{
  EXPECT_EQ(objectsConstraint("INTEGER ::= { a.&Set }"), "union([1,3] 7)");
  EXPECT_EQ(objectsConstraint("INTEGER ::= { a.&Set | 100 }"),
            "union(union([1,3] 7) 100)");
  EXPECT_EQ(objectsConstraint("::= INTEGER (b.&Set)"), "9");
}

TEST(AsnFromObjects, ValuesOfASet)
{
  // The objects of the root, and only those that have the field.
  EXPECT_EQ(objectsConstraint("INTEGER ::= { S.&id }"), "union(1 2)");
  EXPECT_EQ(objectsConstraint("::= INTEGER (S.&Set)"),
            "union(union([1,3] 7) 9)");
  EXPECT_EQ(objectsConstraint("::= INTEGER (S.&one.&n)"), "11");
  // An object that two lead to counts once.
  EXPECT_EQ(objectsConstraint("::= INTEGER (S.&Objs.&n)"), "union(11 12)");
}

TEST(AsnFromObjects, CombinedSets)
{
  EXPECT_EQ(objectsConstraint("::= INTEGER (E.&id)\nE C ::= { S EXCEPT a }"),
            "2");
  EXPECT_EQ(objectsConstraint("::= INTEGER (E.&id)\nE C ::= { S ^ (a) }"), "1");
}

TEST(AsnFromObjects, AsAType)
{
  AsnCompiled compiled = compileObjects(
      "X ::= S.&id\nY ::= a.&Type\nZ ::= [3] b.&Set\nV ::= C.&id");
  const StxTree &tree = treeOf(compiled);
  auto def = [&](const char *name) -> const TNode & {
    return tree.tNodes.at(static_cast<size_t>(typeNamed(tree, name)) - 1);
  };
  EXPECT_EQ(def("X").mainType, TYP_INTEGER);
  EXPECT_TRUE(def("X").classFlags & CF_SET);
  EXPECT_EQ(boundsOf(tree, typeNamed(tree, "X")), "1..2");
  // The type of an object is in its place, no reference to a hidden one.
  EXPECT_EQ(def("Y").mainType, TYP_SEQ);
  EXPECT_NE(compNamed(tree, typeNamed(tree, "Y"), "x"), 0);
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "Z")), "9");
  EXPECT_NE(def("Z").firstTag, 0);
  // A field of a class stays one.
  EXPECT_EQ(def("V").mainType, TYP_FIELDLIST);
}

TEST(AsnFromObjects, Values)
{
  AsnCompiled compiled =
      compileObjects("v INTEGER ::= b.&id\nw INTEGER ::= a.&one.&n");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(integerAt(tree, valueNamed(tree, "v")), 2);
  EXPECT_EQ(integerAt(tree, valueNamed(tree, "w")), 11);
}

// The numbers of the objects that a set of D has.
static std::vector<int32_t> objectsOf(const StxTree &tree, int32_t sub)
{
  const SubRec &record = tree.subRecs.at(static_cast<size_t>(sub) - 1);
  if (record.kind == SUB_SINGLE_VALUE)
    return {
        tree.vNodes.at(static_cast<size_t>(record.operand1) - 1).firstChild};
  std::vector<int32_t> all;
  for (int32_t operand : operandsOf(tree, sub))
    for (int32_t object : objectsOf(tree, operand))
      all.push_back(object);
  return all;
}

TEST(AsnFromObjects, ObjectSets)
{
  AsnCompiled compiled =
      compileObjects("X D ::= { b.&Objs }\nY D ::= { S.&one | d2 }");
  const StxTree &tree = treeOf(compiled);
  int32_t d1 = valueNamed(tree, "d1"), d2 = valueNamed(tree, "d2");
  auto objects = [&](const char *name) {
    size_t at = static_cast<size_t>(typeNamed(tree, name)) - 1;
    return objectsOf(tree, tree.tNodes.at(at).firstConstraint);
  };
  EXPECT_THAT(objects("X"), ElementsAre(d1, d2));
  EXPECT_THAT(objects("Y"), ElementsAre(d1, d2));
}

TEST(AsnFromObjects, AsParameters)
{
  AsnCompiled compiled = compileObjects(
      "P {INTEGER:Set} ::= INTEGER (Set)\nQ {D:Set} ::= INTEGER (Set.&n)\n"
      "X ::= P {{a.&Set}}\nY ::= P {a.&Set}\nZ ::= Q {b.&Objs}");
  const StxTree &tree = treeOf(compiled);
  auto copy = [&](const char *name) {
    size_t at = static_cast<size_t>(typeNamed(tree, name)) - 1;
    return constraintOf(tree, tree.tNodes.at(at).ref);
  };
  EXPECT_EQ(copy("X"), "union([1,3] 7)");
  EXPECT_EQ(copy("Y"), "union([1,3] 7)");
  EXPECT_EQ(copy("Z"), "union(11 12)");
}

TEST(AsnFromObjects, GovernorOfAParameterIsOfItsDefinition)
{
  // The user knows the class by another name.
  AsnCompiled compiled = compileAsn(
      "M DEFINITIONS AUTOMATIC TAGS ::= BEGIN IMPORTS P FROM N;\n"
      "Mine ::= N.CLS o Mine ::= { &id 4 } A ::= P {{o}} END\n"
      "N DEFINITIONS AUTOMATIC TAGS ::= BEGIN CLS ::= CLASS { &id INTEGER }\n"
      "P {CLS:Set} ::= INTEGER (Set.&id) END\n");
  const StxTree &tree = treeOf(compiled, 0);
  size_t at = static_cast<size_t>(typeNamed(tree, "A")) - 1;
  EXPECT_EQ(constraintOf(tree, tree.tNodes.at(at).ref), "4");
}

TEST(AsnFromObjects, Errors)
{
  auto errorBehind = [](const std::string &body) {
    return errorOf(classes + body);
  };
  EXPECT_EQ(errorBehind("X INTEGER ::= { b.&one.&n }"),
            "11:19: the object has no field \"&one\"");
  EXPECT_EQ(errorBehind("X INTEGER ::= { S.&nothing }"),
            "11:19: the class has no field \"&nothing\"");
  EXPECT_EQ(errorBehind("X D ::= { S.&id }"),
            "11:13: field \"&id\" is no object set");
  EXPECT_EQ(errorBehind("X INTEGER ::= { S.&Objs }"),
            "11:19: field \"&Objs\" has no values");
  EXPECT_EQ(errorBehind("X INTEGER ::= { S.&id.&n }"),
            "11:19: field \"&id\" has no fields");
  EXPECT_EQ(errorBehind("X C ::= { S.&Objs }"),
            "11:11: \"S.&Objs\" is a set of another class");
}
