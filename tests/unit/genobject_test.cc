#include "asn2stx/genobject.h"
#include "store/typenode.h"
#include "store/valuenode.h"
#include "stx/stxcheck.h"
#include "stx/stxread.h"
#include "support/asncompile.h"
#include "support/loadedrun.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;

// Classes, objects, sets and the types that fields are.

static const TNode &nodeOf(const StxTree &tree, int32_t index)
{
  return tree.tNodes.at(static_cast<size_t>(index) - 1);
}

static const VNode &valueOf(const StxTree &tree, int32_t index)
{
  return tree.vNodes.at(static_cast<size_t>(index) - 1);
}

static const SNode &linkOf(const StxTree &tree, int32_t index)
{
  return tree.sNodes.at(static_cast<size_t>(index) - 1);
}

static const TNode &defOf(const StxTree &tree, const std::string &name)
{
  return nodeOf(tree, typeNamed(tree, name));
}

static int32_t fieldOf(const StxTree &tree, const std::string &objectClass,
                       const std::string &name)
{
  return compNamed(tree, typeNamed(tree, objectClass), name);
}

// The names of the field values of an object.
static std::vector<std::string> settingsOf(const StxTree &tree, int32_t object)
{
  std::vector<std::string> names;
  for (int32_t value : childrenOf(tree, object))
    names.push_back(striAt(tree, valueOf(tree, value).identifier));
  return names;
}

static int32_t settingOf(const StxTree &tree, const std::string &object,
                         const std::string &field)
{
  for (int32_t value : childrenOf(tree, valueNamed(tree, object)))
    if (striAt(tree, valueOf(tree, value).identifier) == field)
      return value;
  return 0;
}

// What the objects and sets of a set are, and the marker: names of references
// and sets, "{}" for an object in place.
static std::vector<std::string> elementsOf(const StxTree &tree, int32_t set)
{
  std::vector<std::string> texts;
  int32_t first = nodeOf(tree, set).firstConstraint;
  if (first == 0)
    return texts;
  const SubRec &top = tree.subRecs.at(static_cast<size_t>(first) - 1);
  std::vector<int32_t> subs = {first};
  if (top.kind == SUB_UNION)
    subs = operandsOf(tree, first);
  for (int32_t index : subs) {
    const SubRec &sub = tree.subRecs.at(static_cast<size_t>(index) - 1);
    if (sub.kind != SUB_SINGLE_VALUE) {
      texts.push_back(
          sub.kind == SUB_EXTENDED_SET ? "..." : constraintText(tree, index));
      continue;
    }
    const VNode &value = valueOf(tree, sub.operand1);
    texts.push_back(
        value.mainType == TYP_SYNONYM
            ? striAt(tree, valueOf(tree, value.firstChild).identifier)
            : "{}");
  }
  return texts;
}

static const char operationClass[] =
    "OP ::= CLASS { &code INTEGER UNIQUE, &Arg OPTIONAL, &Res DEFAULT NULL,\n"
    "  &def &Arg OPTIONAL, &Vals INTEGER OPTIONAL, &VSet &Arg OPTIONAL,\n"
    "  &linked OP OPTIONAL, &Errors ERR OPTIONAL,\n"
    "  &prio INTEGER {low(0), high(1)} DEFAULT low }\n"
    "WITH SYNTAX { CODE &code [ARGUMENT &Arg [VALUE &def] [IN &VSet]]\n"
    "  [RESULT &Res] [RANGE &Vals] [LINKED &linked] [ERRORS &Errors]\n"
    "  [, PRIO &prio] }\n"
    "ERR ::= CLASS { &code INTEGER, &Par OPTIONAL }\n";

static AsnCompiled compileWithClass(const std::string &body)
{
  return compileBody(operationClass + body);
}

// The only error of a body behind the classes, without its place.
static std::string classErrorOf(const std::string &body)
{
  AsnCompiled compiled = compileWithClass(body);
  EXPECT_FALSE(compiled.good);
  if (compiled.errors.size() != 1)
    return std::to_string(compiled.errors.size()) + " errors";
  return compiled.errors[0].substr(compiled.errors[0].find(": ") + 2);
}

// Classes

struct FieldCase {
  const char *name;
  int mainType;
  bool isNegative;  // the sign of a value's name
  int status;
  uint32_t classFlags;
};

TEST(GenObject, FieldsByKind)
{
  static const FieldCase cases[] = {
      {"code", TYP_INTEGER, true, TCS_MANDATORY, 0},
      {"Arg", TYP_OPEN, false, TCS_OPTIONAL, 0},
      {"Res", TYP_OPEN, false, TCS_OPTIONAL, 0},
      {"def", TYP_FIELDLIST, true, TCS_OPTIONAL, CF_VARIABLE_TYPE},
      {"Vals", TYP_INTEGER, false, TCS_OPTIONAL, CF_SET},
      {"VSet", TYP_FIELDLIST, false, TCS_OPTIONAL, CF_SET | CF_VARIABLE_TYPE},
      {"linked", TYP_SYNONYM, true, TCS_OPTIONAL, 0},
      {"Errors", TYP_SYNONYM, false, TCS_OPTIONAL, CF_SET},
      {"prio", TYP_INTEGER, true, TCS_OPTIONAL, 0},
  };
  AsnCompiled compiled = compileWithClass("");
  StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "OP").mainType, TYP_CLASS);
  EXPECT_EQ(defOf(tree, "OP").nrComps, 9);
  std::vector<int32_t> fields = compsOf(tree, typeNamed(tree, "OP"));
  ASSERT_EQ(fields.size(), std::size(cases));
  for (size_t i = 0; i < fields.size(); ++i) {
    SCOPED_TRACE(cases[i].name);
    const TNode &field = nodeOf(tree, fields[i]);
    EXPECT_EQ(striAt(tree, std::abs(field.identifier)), cases[i].name);
    EXPECT_EQ(field.identifier < 0, cases[i].isNegative);
    EXPECT_EQ(field.mainType, cases[i].mainType);
    EXPECT_EQ(field.compStatus, cases[i].status);
    EXPECT_EQ(field.classFlags, cases[i].classFlags);
    EXPECT_EQ(field.nodeFlags & NF_UNIQUE, i == 0 ? NF_UNIQUE : 0);
  }
}

TEST(GenObject, VariableFieldLeadsToTypeField)
{
  AsnCompiled compiled = compileWithClass("");
  StxTree &tree = treeOf(compiled);
  const TNode &field = nodeOf(tree, fieldOf(tree, "OP", "def"));
  EXPECT_EQ(field.refModule, -2);
  EXPECT_EQ(field.ref, typeNamed(tree, "OP"));
  EXPECT_EQ(linkOf(tree, field.fieldRef).target, fieldOf(tree, "OP", "Arg"));
}

TEST(GenObject, DefaultsOfFields)
{
  AsnCompiled compiled = compileBody(
      "C ::= CLASS { &i INTEGER DEFAULT 7, &T DEFAULT Def, &j INTEGER,\n"
      "  &S INTEGER DEFAULT {1 | 2}, &o D DEFAULT d }\n"
      "D ::= CLASS { &i INTEGER }\n"
      "d D ::= {&i 1}\nDef ::= BOOLEAN");
  StxTree &tree = treeOf(compiled);
  auto defaultOf = [&](const char *name) -> const VNode & {
    return valueOf(tree, nodeOf(tree, fieldOf(tree, "C", name)).defaultValue);
  };
  EXPECT_EQ(integerAt(tree, nodeOf(tree, fieldOf(tree, "C", "i")).defaultValue),
            7);
  EXPECT_EQ(defaultOf("T").firstChild, typeNamed(tree, "Def"));
  EXPECT_EQ(defaultOf("T").governor, fieldOf(tree, "C", "T"));
  EXPECT_EQ(nodeOf(tree, fieldOf(tree, "C", "j")).defaultValue, 0);
  EXPECT_EQ(constraintOf(tree, defaultOf("S").firstChild), "union(1 2)");
  EXPECT_EQ(defaultOf("o").mainType, TYP_SYNONYM);
  EXPECT_EQ(defaultOf("o").firstChild, valueNamed(tree, "d"));
}

TEST(GenObject, NamesOfClasses)
{
  AsnCompiled compiled = compileWithClass("E2 ::= ERR\nE3 ::= TYPE-IDENTIFIER\n"
                                          "E4 ::= ABSTRACT-SYNTAX");
  StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "E2").mainType, TYP_SYNONYM);
  EXPECT_EQ(defOf(tree, "E2").ref, typeNamed(tree, "ERR"));
  EXPECT_EQ(defOf(tree, "E3").mainType, TYP_TYPE_ID);
  EXPECT_EQ(defOf(tree, "E4").mainType, TYP_ABSTR_STX);
}

TEST(GenObject, FaultsOfClasses)
{
  EXPECT_EQ(errorOf("C ::= CLASS { &a NULL, &a NULL OPTIONAL }"),
            "2:24: duplicate field \"&a\"");
  EXPECT_EQ(errorOf("C ::= CLASS { &a &B }"),
            "2:18: the class has no field \"&B\"");
  EXPECT_EQ(errorOf("C ::= CLASS { &a &b, &b NULL }"),
            "2:18: field \"&b\" is no type field");
  EXPECT_EQ(errorOf("C ::= CLASS { &a NULL OPTIONAL } WITH SYNTAX { A &b }"),
            "2:50: the class has no field \"&b\"");
  EXPECT_EQ(errorOf("C ::= CLASS { &a NULL } WITH SYNTAX { A &a B &a }"),
            "2:46: field \"&a\" stands twice in the syntax");
  EXPECT_EQ(errorOf("C ::= CLASS { &a NULL, &b NULL } WITH SYNTAX { A &a }"),
            "2:24: field \"&b\" is missing in the syntax");
}

// Objects

TEST(GenObject, DefaultSyntaxInClassOrder)
{
  AsnCompiled compiled = compileWithClass("e ERR ::= {&Par BOOLEAN, &code 3}");
  StxTree &tree = treeOf(compiled);
  int32_t e = valueNamed(tree, "e");
  EXPECT_EQ(valueOf(tree, e).mainType, TYP_CLASS);
  EXPECT_EQ(valueOf(tree, e).valueStatus, 2);
  EXPECT_EQ(valueOf(tree, e).governor, typeNamed(tree, "ERR"));
  EXPECT_THAT(settingsOf(tree, e), ElementsAre("code", "Par"));
  int32_t code = settingOf(tree, "e", "code");
  EXPECT_EQ(integerAt(tree, code), 3);
  EXPECT_EQ(valueOf(tree, code).governor, fieldOf(tree, "ERR", "code"));
  EXPECT_EQ(valueOf(tree, code).governorModule, 1);
  const VNode &par = valueOf(tree, settingOf(tree, "e", "Par"));
  EXPECT_EQ(par.governor, fieldOf(tree, "ERR", "Par"));
  EXPECT_EQ(nodeOf(tree, par.firstChild).mainType, TYP_BOOLEAN);
}

struct SyntaxCase {
  const char *object;
  std::vector<std::string> settings;
};

TEST(GenObject, OptionalGroups)
{
  static const SyntaxCase cases[] = {
      {"{CODE 5}", {"code"}},
      {"{CODE 5 ARGUMENT NULL}", {"code", "Arg"}},
      {"{CODE 5 ARGUMENT NULL RESULT NULL}", {"code", "Arg", "Res"}},
      {"{CODE 5 RESULT NULL}", {"code", "Res"}},
      {"{CODE 5 ARGUMENT INTEGER IN {1 | 2}}", {"code", "Arg", "VSet"}},
      {"{CODE 5 ARGUMENT INTEGER VALUE 1 IN {1}}",
       {"code", "Arg", "def", "VSet"}},
      {"{CODE 5 ERRORS {...} , PRIO high}", {"code", "Errors", "prio"}},
  };
  for (const SyntaxCase &row : cases) {
    SCOPED_TRACE(row.object);
    AsnCompiled compiled =
        compileWithClass(std::string("o OP ::= ") + row.object);
    StxTree &tree = treeOf(compiled);
    EXPECT_EQ(settingsOf(tree, valueNamed(tree, "o")), row.settings);
  }
}

// A group that begins with a field gives way to a word that may follow.
TEST(GenObject, GroupsThatBeginWithFields)
{
  std::string objectClass =
      "C ::= CLASS { &T OPTIONAL, &i INTEGER OPTIONAL, &n NULL OPTIONAL }\n"
      "WITH SYNTAX { [&T] [[&i] IS &n] [END] }\n";
  AsnCompiled compiled = compileBody(
      objectClass + "a C ::= {INTEGER 5 IS NULL END}\nb C ::= {IS NULL}\n"
                    "c C ::= {END}\nd C ::= {}\ne C ::= {5 IS NULL}");
  StxTree &tree = treeOf(compiled);
  auto settings = [&](const char *name) {
    return settingsOf(tree, valueNamed(tree, name));
  };
  EXPECT_THAT(settings("a"), ElementsAre("T", "i", "n"));
  EXPECT_THAT(settings("b"), ElementsAre("n"));
  EXPECT_THAT(settings("c"), ElementsAre());
  EXPECT_THAT(settings("d"), ElementsAre());
  EXPECT_THAT(settings("e"), ElementsAre("i", "n"));
}

TEST(GenObject, SettingsOfEachKind)
{
  AsnCompiled compiled = compileWithClass(
      "e ERR ::= {&code 1}\np OP ::= {CODE 1}\n"
      "o OP ::= {CODE 6 ARGUMENT INTEGER (0..9) VALUE 7 IN {1 | 2}\n"
      "  RANGE {1 | 3..5} LINKED p ERRORS {e, ...} , PRIO high}");
  StxTree &tree = treeOf(compiled);
  auto carried = [&](const char *field) {
    return valueOf(tree, settingOf(tree, "o", field)).firstChild;
  };
  EXPECT_EQ(constraintOf(tree, carried("Arg")), "[0,9]");
  EXPECT_EQ(integerAt(tree, settingOf(tree, "o", "def")), 7);
  EXPECT_EQ(constraintOf(tree, carried("Vals")), "union(1 [3,5])");
  EXPECT_EQ(constraintOf(tree, carried("VSet")), "union(1 2)");
  EXPECT_TRUE(nodeOf(tree, carried("Vals")).classFlags & CF_SET);
  EXPECT_EQ(carried("linked"), valueNamed(tree, "p"));
  EXPECT_EQ(nodeOf(tree, carried("Errors")).ref, typeNamed(tree, "ERR"));
  EXPECT_THAT(elementsOf(tree, carried("Errors")), ElementsAre("e", "..."));
  EXPECT_EQ(carried("prio"),
            itemNamed(tree, fieldOf(tree, "OP", "prio"), "high"));
  // Only what is a set is marked as one.
  auto isSet = [&](const char *field) {
    return valueOf(tree, settingOf(tree, "o", field)).valueFlags & VFL_SET;
  };
  EXPECT_TRUE(isSet("Errors"));
  EXPECT_TRUE(isSet("VSet"));
  EXPECT_FALSE(isSet("Arg"));
  EXPECT_FALSE(isSet("linked"));
}

TEST(GenObject, FaultsOfObjects)
{
  EXPECT_EQ(classErrorOf("o OP ::= {CODE 5 RESLT NULL}"),
            "expected \"}\", found \"RESLT\"");
  EXPECT_EQ(classErrorOf("o OP ::= {RESULT NULL}"),
            "expected \"CODE\", found \"RESULT\"");
  EXPECT_EQ(classErrorOf("o OP ::= {CODE}"),
            "expected a setting of \"&code\", found \"}\"");
  EXPECT_EQ(classErrorOf("o OP ::= {CODE 5 VALUE 5}"),
            "expected \"}\", found \"VALUE\"");
  EXPECT_EQ(classErrorOf("o OP ::= {CODE TRUE}"),
            "value \"TRUE\" does not fit its type");
  EXPECT_EQ(classErrorOf("o OP ::= {&code 5}"),
            "expected \"CODE\", found \"&code\"");
  EXPECT_EQ(classErrorOf("o ERR ::= {CODE 5}"),
            "expected a field, found \"CODE\"");
  EXPECT_EQ(classErrorOf("o ERR ::= {&Par NULL}"),
            "field \"&code\" is not set");
  EXPECT_EQ(classErrorOf("o ERR ::= {&code 1, &x 2}"),
            "the class has no field \"&x\"");
  EXPECT_EQ(classErrorOf("o ERR ::= {&code 1, &code 2}"),
            "field \"&code\" is set twice");
  EXPECT_EQ(classErrorOf("o ERR ::= 5"), "an object is needed here, not \"5\"");
  EXPECT_EQ(classErrorOf("o ERR ::= p\np OP ::= {CODE 1}"),
            "\"p\" is an object of another class");
  EXPECT_EQ(classErrorOf("C ::= CLASS { &T OPTIONAL, &v &T OPTIONAL }\n"
                         "o C ::= {&v 5}"),
            "the object has no field \"&T\"");
}

TEST(GenObject, CirclesOfObjects)
{
  EXPECT_EQ(compileWithClass("a ERR ::= b\nb ERR ::= a").errors.size(), 2u);
  EXPECT_EQ(classErrorOf("a OP ::= a.&linked"),
            "circular definition of \"a.&linked\"");
  EXPECT_TRUE(compileWithClass("a OP ::= {CODE 1 LINKED a}").good);
}

// Fields of objects

TEST(GenObject, ValuesOfObjects)
{
  AsnCompiled compiled =
      compileWithClass("p OP ::= {CODE 4 LINKED {CODE 8} ARGUMENT-FREE}\n");
  EXPECT_FALSE(compiled.good);
  compiled = compileWithClass("p OP ::= {CODE 4 LINKED {CODE 8}}\n"
                              "v INTEGER ::= p.&code\n"
                              "w INTEGER ::= p.&linked.&code\n"
                              "q OP ::= p.&linked\nr OP ::= {CODE p.&code}");
  StxTree &tree = treeOf(compiled);
  EXPECT_EQ(integerAt(tree, valueNamed(tree, "v")), 4);
  EXPECT_EQ(integerAt(tree, valueNamed(tree, "w")), 8);
  EXPECT_EQ(integerAt(tree, settingOf(tree, "q", "code")), 8);
  EXPECT_EQ(integerAt(tree, settingOf(tree, "r", "code")), 4);
}

TEST(GenObject, FaultsOfPaths)
{
  EXPECT_EQ(classErrorOf("p OP ::= {CODE 4}\nv INTEGER ::= p.&linked.&code"),
            "the object has no field \"&linked\"");
  EXPECT_EQ(classErrorOf("p OP ::= {CODE 4}\nv INTEGER ::= p.&zz"),
            "the class has no field \"&zz\"");
  EXPECT_EQ(classErrorOf("p INTEGER ::= 4\nv INTEGER ::= p.&code"),
            "\"p\" is not an object");
  EXPECT_EQ(classErrorOf("T ::= SEQUENCE { a OP.&zz }"),
            "the class has no field \"&zz\"");
  EXPECT_EQ(classErrorOf("T ::= SEQUENCE { a OP.&linked }"),
            "field \"&linked\" is no type");
  EXPECT_EQ(classErrorOf("T ::= SEQUENCE { a OP.&code.&code }"),
            "field \"&code\" has no fields");
  EXPECT_EQ(classErrorOf("T ::= SEQUENCE { a U.&code }\nU ::= NULL"),
            "\"U\" is neither a class nor an object set");
  EXPECT_EQ(classErrorOf("T ::= INSTANCE OF OP"),
            "\"OP\" is not TYPE-IDENTIFIER");
}

// Sets

TEST(GenObject, ElementsOfSets)
{
  AsnCompiled compiled = compileWithClass(
      "a ERR ::= {&code 1}\nb ERR ::= {&code 2}\n"
      "S1 ERR ::= {a | b | {&code 3}}\nS2 ERR ::= {a}\nS3 ERR ::= {S1 | a}\n"
      "S4 ERR ::= {}\nS5 ERR ::= {...}\nS6 ERR ::= {a | b, ...}\n"
      "S7 ERR ::= {a, ..., b}\nS8 ERR ::= {..., b}");
  StxTree &tree = treeOf(compiled);
  auto elements = [&](const char *name) {
    return elementsOf(tree, typeNamed(tree, name));
  };
  EXPECT_THAT(elements("S1"), ElementsAre("a", "b", "{}"));
  EXPECT_THAT(elements("S2"), ElementsAre("a"));
  EXPECT_THAT(elements("S3"), ElementsAre("includes S1", "a"));
  EXPECT_THAT(elements("S4"), ElementsAre());
  EXPECT_THAT(elements("S5"), ElementsAre("..."));
  EXPECT_THAT(elements("S6"), ElementsAre("a", "b", "..."));
  EXPECT_THAT(elements("S7"), ElementsAre("a", "..."));
  EXPECT_THAT(elements("S8"), ElementsAre("..."));
  const TNode &set = defOf(tree, "S1");
  EXPECT_EQ(set.mainType, TYP_SYNONYM);
  EXPECT_EQ(set.ref, typeNamed(tree, "ERR"));
  EXPECT_TRUE(set.classFlags & CF_SET);
  EXPECT_FALSE(set.nodeFlags & NF_EXTENSIBLE);
  EXPECT_TRUE(defOf(tree, "S6").nodeFlags & NF_EXTENSIBLE);
}

TEST(GenObject, AdditionsByOption)
{
  Asn2StxOptions options;
  options.unionOfAdditions = true;
  AsnCompiled compiled = compileBody("C ::= CLASS { &i INTEGER }\n"
                                     "a C ::= {&i 1}\nb C ::= {&i 2}\n"
                                     "S C ::= {a, ..., b}",
                                     options);
  StxTree &tree = treeOf(compiled);
  EXPECT_THAT(elementsOf(tree, typeNamed(tree, "S")),
              ElementsAre("a", "b", "..."));
}

TEST(GenObject, FaultsOfSets)
{
  EXPECT_EQ(classErrorOf("S ERR ::= {S}"), "circular definition of \"S\"");
  EXPECT_EQ(compileWithClass("S ERR ::= {T}\nT ERR ::= {S}").errors.size(), 2u);
  EXPECT_EQ(classErrorOf("S ERR ::= {T}\nT OP ::= {...}"),
            "\"T\" is a set of another class");
  EXPECT_EQ(classErrorOf("S ERR ::= {o}\no OP ::= {CODE 1}"),
            "\"o\" is an object of another class");
  EXPECT_EQ(classErrorOf("S ERR ::= {..., o}\no OP ::= {CODE 1}"),
            "\"o\" is an object of another class");
  EXPECT_EQ(classErrorOf("S ERR ::= {(1..2)}"),
            "an object or object set is needed here, not \"1\"");
  EXPECT_EQ(classErrorOf("S ERR ::= {INTEGER}"),
            "an object or object set is needed here, not \"INTEGER\"");
  EXPECT_EQ(classErrorOf("S ERR ::= {T}\nT ::= NULL"),
            "\"T\" is not an object set");
  EXPECT_EQ(classErrorOf("S ERR ::= {..., nope}"), "\"nope\" is not defined");
}

// Types of fields

TEST(GenObject, FieldTypes)
{
  AsnCompiled compiled = compileWithClass(
      "Ops OP ::= {...}\no OP ::= {CODE 1 ARGUMENT INTEGER (0..9)}\n"
      "T ::= SEQUENCE { a OP.&code ({Ops}), b OP.&Arg ({Ops}{@a}),\n"
      "  c OP.&linked.&code, d o.&Arg, e Ops.&code }");
  StxTree &tree = treeOf(compiled);
  std::vector<int32_t> comps = compsOf(tree, typeNamed(tree, "T"));
  ASSERT_EQ(comps.size(), 5u);
  const TNode &a = nodeOf(tree, comps[0]);
  EXPECT_EQ(a.mainType, TYP_FIELDLIST);
  EXPECT_EQ(a.ref, typeNamed(tree, "OP"));
  EXPECT_EQ(a.refModule, 1);
  EXPECT_EQ(linkOf(tree, a.fieldRef).target, fieldOf(tree, "OP", "code"));
  EXPECT_EQ(linkOf(tree, a.fieldRef).nextLink, 0);
  EXPECT_EQ(constraintOf(tree, comps[0]), "kind17");
  EXPECT_EQ(constraintOf(tree, comps[1]), "kind19");
  EXPECT_EQ(linkOf(tree, nodeOf(tree, comps[1]).fieldRef).target,
            fieldOf(tree, "OP", "Arg"));
  const SNode &first = linkOf(tree, nodeOf(tree, comps[2]).fieldRef);
  EXPECT_EQ(first.target, fieldOf(tree, "OP", "linked"));
  EXPECT_EQ(linkOf(tree, first.nextLink).target, fieldOf(tree, "OP", "code"));
  // The type that the object has stands in place.
  EXPECT_EQ(nodeOf(tree, comps[3]).mainType, TYP_INTEGER);
  EXPECT_EQ(constraintOf(tree, comps[3]), "[0,9]");
  EXPECT_EQ(linkOf(tree, nodeOf(tree, comps[4]).fieldRef).target,
            fieldOf(tree, "OP", "code"));
}

TEST(GenObject, PredefinedClasses)
{
  AsnCompiled compiled = compileBody(
      "T ::= SEQUENCE { i INSTANCE OF TYPE-IDENTIFIER,\n"
      "  a TYPE-IDENTIFIER.&id, b TYPE-IDENTIFIER.&Type }\n"
      "o TYPE-IDENTIFIER ::= {T IDENTIFIED BY {1 2 3}}\n"
      "x ABSTRACT-SYNTAX ::= {T IDENTIFIED BY {1 2} HAS PROPERTY {}}\n");
  StxTree &tree = treeOf(compiled);
  std::vector<int32_t> comps = compsOf(tree, typeNamed(tree, "T"));
  ASSERT_EQ(comps.size(), 3u);
  EXPECT_EQ(nodeOf(tree, comps[0]).mainType, TYP_INSTANCE_OF);
  EXPECT_EQ(compsOf(tree, comps[0]).size(), 2u);
  const TNode &id = nodeOf(tree, comps[1]);
  EXPECT_EQ(nodeOf(tree, id.ref).mainType, TYP_OBJID);
  // As a field has it: no definition stands there.
  EXPECT_EQ(nodeOf(tree, id.ref).compStatus, TCS_MANDATORY);
  EXPECT_NE(nodeOf(tree, id.ref).hidden, 0);
  EXPECT_EQ(id.nodeFlags & NF_RECURSIVE, 0);
  ASSERT_EQ(tree.imports.size(), 1u);
  EXPECT_EQ(striAt(tree, tree.imports[0].moduleName), "ISO8824");
  EXPECT_EQ(linkOf(tree, id.fieldRef).linkModule, 2);
  EXPECT_EQ(nodeOf(tree, nodeOf(tree, comps[2]).ref).mainType, TYP_OPEN);
  EXPECT_EQ(nodeOf(tree, nodeOf(tree, comps[2]).ref).compStatus, TCS_MANDATORY);
  EXPECT_EQ(nodeOf(tree, compsOf(tree, comps[0]).at(0)).nodeFlags, 0);
  EXPECT_EQ(valueOf(tree, valueNamed(tree, "o")).mainType, TYP_TYPE_ID);
  EXPECT_THAT(settingsOf(tree, valueNamed(tree, "o")),
              ElementsAre("id", "Type"));
  EXPECT_EQ(valueOf(tree, settingOf(tree, "o", "Type")).firstChild,
            typeNamed(tree, "T"));
  EXPECT_EQ(valueOf(tree, valueNamed(tree, "x")).mainType, TYP_ABSTR_STX);
  EXPECT_THAT(settingsOf(tree, valueNamed(tree, "x")),
              ElementsAre("id", "Type", "property"));
}

TEST(GenObject, FieldsOfPredefinedClassesAsDefinitions)
{
  AsnCompiled compiled = compileBody("A ::= TYPE-IDENTIFIER.&id\nB ::= A\n"
                                     "P ::= ABSTRACT-SYNTAX.&property\n");
  StxTree &tree = treeOf(compiled);
  for (const char *name : {"A", "B", "P"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(defOf(tree, name).mainType, TYP_FIELDLIST);
    EXPECT_EQ(defOf(tree, name).nodeFlags & NF_RECURSIVE, 0);
  }
  EXPECT_EQ(nodeOf(tree, defOf(tree, "B").ref).mainType, TYP_OBJID);
  const TNode &property = nodeOf(tree, defOf(tree, "P").ref);
  EXPECT_EQ(property.mainType, TYP_BITSTR);
  EXPECT_EQ(property.compStatus, TCS_OPTIONAL);
}

TEST(GenObject, NameOfAFieldTypeIsThatField)
{
  AsnCompiled compiled =
      compileWithClass("B ::= A\nA ::= OP.&code\nD ::= T\nT ::= o.&Arg\n"
                       "o OP ::= {CODE 1 ARGUMENT BOOLEAN}");
  StxTree &tree = treeOf(compiled);
  for (const char *name : {"A", "B"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(defOf(tree, name).mainType, TYP_FIELDLIST);
    EXPECT_EQ(linkOf(tree, defOf(tree, name).fieldRef).target,
              fieldOf(tree, "OP", "code"));
  }
  // What an object has is a type like others.
  EXPECT_EQ(defOf(tree, "T").mainType, TYP_BOOLEAN);
  EXPECT_EQ(defOf(tree, "D").mainType, TYP_SYNONYM);
  EXPECT_EQ(defOf(tree, "D").ref, typeNamed(tree, "T"));
}

// Parameters

TEST(GenObject, ThroughParameters)
{
  AsnCompiled compiled = compileWithClass(
      "a ERR ::= {&code 1, &Par BOOLEAN}\nErrs ERR ::= {a | {&code 2}}\n"
      "P {ERR : Set, ERR : obj, CLS} ::= SEQUENCE {\n"
      "  x ERR.&code ({Set}), y obj.&Par, z CLS.&code, v Set.&code }\n"
      "T ::= P {{Errs}, a, ERR}\n"
      "U ::= P {{a, ...}, {&code 3, &Par INTEGER}, OP}\n"
      "Par {ERR : In} ERR ::= {a | In}\nS ERR ::= {Par {{Errs}}}");
  StxTree &tree = treeOf(compiled);
  auto comp = [&](const char *type, const char *name) {
    int32_t use = typeNamed(tree, type);
    return compNamed(tree, nodeOf(tree, use).ref, name);
  };
  auto linked = [&](int32_t node) {
    return linkOf(tree, nodeOf(tree, node).fieldRef).target;
  };
  EXPECT_EQ(constraintOf(tree, comp("T", "x")), "kind17");
  EXPECT_EQ(nodeOf(tree, comp("T", "y")).mainType, TYP_BOOLEAN);
  EXPECT_EQ(nodeOf(tree, comp("U", "y")).mainType, TYP_INTEGER);
  EXPECT_EQ(linked(comp("T", "z")), fieldOf(tree, "ERR", "code"));
  EXPECT_EQ(linked(comp("U", "z")), fieldOf(tree, "OP", "code"));
  // The values that the objects of the set have.
  EXPECT_EQ(nodeOf(tree, comp("U", "v")).classFlags & CF_SET, CF_SET);
  EXPECT_EQ(constraintOf(tree, comp("U", "v")), "1");
  EXPECT_EQ(constraintOf(tree, comp("T", "v")), "union(1 2)");
  EXPECT_EQ(
      constraintText(tree, defOf(tree, "S").firstConstraint).find("union("),
      0u);
}

TEST(GenObject, ClassesWithParameters)
{
  AsnCompiled compiled =
      compileBody("G {T} ::= CLASS { &v T, &W }\n"
                  "g G{INTEGER} ::= {&v 4, &W BOOLEAN}\n"
                  "R ::= SEQUENCE { v G{BOOLEAN}.&v, w G{BOOLEAN}.&W }");
  StxTree &tree = treeOf(compiled);
  EXPECT_EQ(integerAt(tree, settingOf(tree, "g", "v")), 4);
  const TNode &v = nodeOf(tree, compNamed(tree, typeNamed(tree, "R"), "v"));
  EXPECT_EQ(nodeOf(tree, v.ref).mainType, TYP_CLASS);
  EXPECT_EQ(nodeOf(tree, linkOf(tree, v.fieldRef).target).mainType,
            TYP_BOOLEAN);
}

// Each level doubles what stands below it.
TEST(GenObject, WorkIsBounded)
{
  std::string sets = "C ::= CLASS { &i INTEGER }\nP0 {C:S} C ::= {S | S}\n";
  for (int i = 1; i <= 40; ++i) {
    std::string below = "P" + std::to_string(i - 1);
    sets += "P" + std::to_string(i) + " {C:S} C ::= {" + below + " {{S}} | " +
            below + " {{S}}}\n";
  }
  AsnCompiled compiled =
      compileBody(sets + "N C ::= {...}\nE C ::= {P40 {{N}}}");
  ASSERT_EQ(compiled.errors.size(), 1u);
  EXPECT_THAT(compiled.errors[0],
              HasSubstr("more than 100000 object sets are written out"));
}

// What readers make of the records

TEST(GenObject, AcrossModules)
{
  AsnCompiled compiled =
      compileAsn("A DEFINITIONS ::= BEGIN IMPORTS C, c, Set FROM B;\n"
                 "d C ::= {&i 2, &T NULL}\nAll C ::= {Set | c | d}\n"
                 "U ::= SEQUENCE { i C.&i ({All}), t C.&T ({All}{@i}) } END\n"
                 "B DEFINITIONS ::= BEGIN C ::= CLASS { &i INTEGER, &T }\n"
                 "c C ::= {&i 1, &T NULL}\nSet C ::= {c, ...} END\n");
  StxTree &tree = treeOf(compiled, 0);
  StxTree &other = treeOf(compiled, 1);
  int32_t d = valueNamed(tree, "d");
  EXPECT_EQ(valueOf(tree, d).governor, typeNamed(other, "C"));
  EXPECT_EQ(valueOf(tree, d).governorModule, 2);
  int32_t i = settingOf(tree, "d", "i");
  EXPECT_EQ(valueOf(tree, i).governor, fieldOf(other, "C", "i"));
  EXPECT_EQ(valueOf(tree, i).governorModule, 2);
  const TNode &t = nodeOf(tree, compNamed(tree, typeNamed(tree, "U"), "t"));
  EXPECT_EQ(t.refModule, 2);
  EXPECT_EQ(linkOf(tree, t.fieldRef).linkModule, 2);
  EXPECT_EQ(linkOf(tree, t.fieldRef).target, fieldOf(other, "C", "T"));
}

// The current node becomes the component of a structure.
static void readComp(ModRec *module, const char *type, const char *name)
{
  ASSERT_TRUE(findTypeById(module, type));
  int32_t position = 0;
  ASSERT_TRUE(findTypeCompById(module, tNode.ref, name, position));
}

TEST(GenObject, ReadersFindTheTypes)
{
  AsnCompiled compiled = compileWithClass(
      "Ops OP ::= {o, ...}\no OP ::= {CODE 1 ARGUMENT BOOLEAN}\n"
      "T ::= SEQUENCE { code OP.&code ({Ops}), arg OP.&Arg ({Ops}{@code}),\n"
      "  def OP.&def ({Ops}{@code}), own o.&Arg,\n"
      "  id TYPE-IDENTIFIER.&id, type TYPE-IDENTIFIER.&Type }");
  LoadedRun run;
  run.add(treeOf(compiled), compiled.trees.at(0).prefix.c_str());
  run.load({compiled.trees.at(0).prefix});
  AsnModule module = LoadedRun::module(compiled.trees.at(0).prefix.c_str());
  ModRec *record = module.rec;
  static const std::pair<const char *, int> ends[] = {
      {"code", TYP_INTEGER}, {"arg", TYP_OPEN}, {"def", TYP_OPEN},
      {"own", TYP_BOOLEAN},  {"id", TYP_OBJID}, {"type", TYP_OPEN}};
  for (auto [name, mainType] : ends) {
    SCOPED_TRACE(name);
    readComp(record, "T", name);
    EXPECT_EQ(isOpenObjClassFieldTypeTNode(), mainType == TYP_OPEN);
    EXPECT_TRUE(isTypeTNode());
    skipTypes(true);
    EXPECT_EQ(tNode.mainType, mainType);
  }
  ASSERT_TRUE(findTypeById(record, "OP"));
  EXPECT_TRUE(isClassTNode());
  ASSERT_TRUE(findTypeById(record, "Ops"));
  EXPECT_TRUE(isObjSetTNode());
  EXPECT_FALSE(isValueSetTNode());
  ASSERT_TRUE(findValueById(record, "o"));
  EXPECT_TRUE(isObjVNode());
}

TEST(GenObject, RecordsPassTheChecker)
{
  AsnCompiled compiled = compileWithClass(
      "e ERR ::= {&code 1}\no OP ::= {CODE 6 ARGUMENT INTEGER VALUE 7\n"
      "  IN {1 | 2} RESULT NULL RANGE {1 | 3..5} LINKED {CODE 7}\n"
      "  ERRORS {e | {&code 9, &Par NULL}, ...} , PRIO high}\n"
      "x TYPE-IDENTIFIER ::= {NULL IDENTIFIED BY {1 2}}\n"
      "S OP ::= {o | {CODE 1}, ...}\nT ::= SEQUENCE { a OP.&def ({S}) }");
  StxFile file;
  StxFaults faults;
  faults.to = stderr;
  stxParse(file, stxEncode(treeOf(compiled)), faults);
  stxCheck(file, true, faults);
  EXPECT_EQ(faults.count, 0);
}
