#include "asn2stx/genconstraint.h"
#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

struct ConstraintCase {
  const char *type;
  const char *constraint;
  const char *bounds;
};

class AsnGenConstraint : public testing::TestWithParam<ConstraintCase> {};

TEST_P(AsnGenConstraint, RecordsAndBounds)
{
  AsnCompiled compiled = compileBody("A ::= " + std::string(GetParam().type) +
                                     "\nB ::= INTEGER (1..8)\n"
                                     "two INTEGER ::= 2\nV INTEGER ::= {1|2}");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  EXPECT_EQ(constraintOf(tree, a), GetParam().constraint);
  EXPECT_EQ(boundsOf(tree, a), GetParam().bounds);
}

static const ConstraintCase constraintCases[] = {
    {"INTEGER", "", "min..max"},
    {"INTEGER (5)", "5", "5..5"},
    {"INTEGER (two)", "two", "2..2"},
    {"INTEGER (1..4)", "[1,4]", "1..4"},
    {"INTEGER (-3..two)", "[-3,two]", "-3..2"},
    {"INTEGER (MIN..4)", "[min,4]", "min..4"},
    {"INTEGER (0..MAX)", "[0,max]", "0..max"},
    // An excluded end keeps the number written.
    {"INTEGER (1<..<4)", "(1,4)", "1..4"},
    {"INTEGER (1 | 4..6 | 9)", "union(1 [4,6] 9)", "1..9"},
    {"INTEGER (1..9 ^ 3..12)", "intersection([1,9] [3,12])", "3..9"},
    {"INTEGER ((1..9) ^ (3..12 | 20))", "intersection([1,9] union([3,12] 20))",
     "3..9"},
    {"INTEGER (1..9 EXCEPT 5)", "except([1,9] 5)", "min..max"},
    {"INTEGER (ALL EXCEPT 5)", "allExcept(5)", "min..max"},
    {"INTEGER (1..9) (2..5)", "serial([1,9] [2,5])", "2..5"},
    {"INTEGER (1..9, ..., 20)", "[1,9]", "1..9"},
    {"INTEGER (B)", "includes B", "1..8"},
    {"INTEGER (INCLUDES B | 20)", "union(includes B 20)", "1..20"},
    {"INTEGER (V)", "includes V", "1..2"},
    // Beyond what a record holds there is no end.
    {"INTEGER (0..18446744073709551615)", "[0,max]", "0..max"},
    {"INTEGER (-9223372036854775809..0)", "[min,0]", "min..0"},
    {"B (2..3)", "[2,3]", "min..max"},
    {"OCTET STRING", "", "0..max"},
    {"OCTET STRING (SIZE (4))", "size(4)", "4..4"},
    {"OCTET STRING (SIZE (1..4 | 8))", "size(union([1,4] 8))", "1..8"},
    {"OCTET STRING (SIZE (MIN..4))", "size([min,4])", "0..4"},
    {"OCTET STRING (SIZE (1..4, ...))", "size([1,4])", "1..4"},
    {"OCTET STRING (SIZE (1..9)) (SIZE (2..MAX))",
     "serial(size([1,9]) size([2,max]))", "2..9"},
    {"OCTET STRING (CONTAINING BOOLEAN)", "", "0..max"},
    {"OCTET STRING (SIZE (2) ^ CONTAINING BOOLEAN)", "size(2)", "2..2"},
    {"OCTET STRING (CONSTRAINED BY { })", "kind18", "0..max"},
    {"IA5String (FROM (\"a\"..\"z\"))", "from([\"a\",\"z\"])", "0..max"},
    {"IA5String (SIZE (1..3) ^ FROM (\"ab\"))",
     "serial(size([1,3]) from(\"ab\"))", "1..3"},
    {"IA5String (\"yes\" | \"no\")", "union(\"yes\" \"no\")", "0..max"},
    {"IA5String (PATTERN \"x*\")", "", "0..max"},
    {"SEQUENCE SIZE (1..3) OF NULL", "size([1,3])", "1..3"},
    {"SEQUENCE (SIZE (2)) OF INTEGER (0..5)", "size(2)", "2..2"},
    {"SEQUENCE OF BOOLEAN", "", "0..max"},
    {"BOOLEAN (TRUE)", "TRUE", "min..max"},
    {"ENUMERATED { a, b, c } (a | c)", "union(a c)", "0..2"},
    {"NULL", "", "min..max"},
};

static std::string
caseNumber(const testing::TestParamInfo<ConstraintCase> &info)
{
  return std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Rows, AsnGenConstraint,
                         testing::ValuesIn(constraintCases), caseNumber);

// Extensibility

struct ExtensibleCase {
  const char *type;
  bool extensible;
};

TEST(AsnGenConstraintFlag, Extensible)
{
  static const ExtensibleCase cases[] = {
      {"INTEGER (1..4)", false},
      {"INTEGER (1..4, ...)", true},
      {"INTEGER (1..4, ..., 8)", true},
      // The last of serial constraints decides.
      {"INTEGER (1..4, ...) (2..3)", false},
      {"INTEGER (1..4) (2..3, ...)", true},
      // Of those that PER sees.
      {"INTEGER (1..4, ...) (CONSTRAINED BY {})", true},
      {"INTEGER (1..4) (CONSTRAINED BY {})", false},
      {"OCTET STRING (SIZE (1..4, ...)) (CONTAINING NULL)", true},
      {"OCTET STRING (SIZE (1..4, ...)) (SIZE (2)) (CONTAINING NULL)", false},
      {"IA5String (SIZE (1..4, ...)) (PATTERN \"a\")", true},
      {"IA5String (SIZE (1..4, ...)) (FROM (\"a\"))", false},
      {"OCTET STRING (SIZE (1..4, ...))", true},
      {"OCTET STRING (SIZE (1..4), ...)", true},
      {"OCTET STRING (SIZE (1..4))", false},
      {"IA5String (SIZE (1..4, ...) ^ FROM (\"a\"))", true},
      // PER sends no bit for an alphabet, nor for named items.
      {"IA5String (FROM (\"a\"), ...)", false},
      {"ENUMERATED { a, b } (a, ...)", false},
      {"ENUMERATED { a, ..., b }", true},
  };
  for (const ExtensibleCase &row : cases) {
    AsnCompiled compiled = compileBody("A ::= " + std::string(row.type));
    const StxTree &tree = treeOf(compiled);
    const TNode &node =
        tree.tNodes[static_cast<size_t>(typeNamed(tree, "A")) - 1];
    EXPECT_EQ((node.nodeFlags & NF_EXTENSIBLE) != 0, row.extensible)
        << row.type;
  }
}

TEST(AsnGenConstraintFlag, UnionOfAdditionsByOption)
{
  Asn2StxOptions options;
  options.unionOfAdditions = true;
  AsnCompiled compiled = compileBody(
      "A ::= INTEGER (1..4, ..., 8)\nB ::= INTEGER (1, ...)", options);
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "A")), "union([1,4] 8)");
  EXPECT_EQ(boundsOf(tree, typeNamed(tree, "A")), "1..8");
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "B")), "1");
}

TEST(AsnGenConstraintFlag, Exception)
{
  AsnCompiled compiled =
      compileBody("A ::= INTEGER (1..4, ... ! 5)\nB ::= INTEGER (1..4, ...)");
  const StxTree &tree = treeOf(compiled);
  auto flags = [&](const char *name) {
    int32_t sub = tree.tNodes[static_cast<size_t>(typeNamed(tree, name)) - 1]
                      .firstConstraint;
    return tree.subRecs[static_cast<size_t>(sub) - 1].subFlags;
  };
  EXPECT_EQ(flags("A") & 1, 1);
  EXPECT_EQ(flags("B") & 1, 0);
}

// What records name

TEST(AsnGenConstraintRecord, GovernorOfSizes)
{
  AsnCompiled compiled = compileBody("A ::= OCTET STRING (SIZE (1..4))");
  const StxTree &tree = treeOf(compiled);
  for (const SubRec &sub : tree.subRecs) {
    if (sub.kind != SUB_RANGE)
      continue;
    EXPECT_EQ(sub.compModule, 1);
    const TNode &governor =
        tree.tNodes.at(static_cast<size_t>(sub.compNode) - 1);
    EXPECT_EQ(governor.mainType, TYP_INTEGER);
    EXPECT_NE(governor.hidden, 0);
    const VNode &bound = tree.vNodes.at(static_cast<size_t>(sub.operand1) - 1);
    EXPECT_EQ(bound.valueStatus, 2);
    EXPECT_EQ(bound.governor, sub.compNode);
    EXPECT_EQ(bound.governorModule, 1);
    return;
  }
  FAIL() << "no range";
}

TEST(AsnGenConstraintRecord, ContainedTypeOfAnotherModule)
{
  AsnCompiled compiled = compileAsn(
      "M DEFINITIONS ::= BEGIN IMPORTS T FROM N; A ::= INTEGER (T) END\n"
      "N DEFINITIONS ::= BEGIN T ::= INTEGER (3..6) END\n");
  const StxTree &tree = treeOf(compiled, 0);
  int32_t a = typeNamed(tree, "A");
  EXPECT_EQ(boundsOf(tree, a), "3..6");
  const SubRec &sub = tree.subRecs.at(0);
  EXPECT_EQ(sub.kind, SUB_INCLUDES);
  // The carrier names a type of its own module: a hidden reference.
  const VNode &carrier = tree.vNodes.at(static_cast<size_t>(sub.operand1) - 1);
  const TNode &between =
      tree.tNodes.at(static_cast<size_t>(carrier.firstChild) - 1);
  EXPECT_EQ(between.mainType, TYP_SYNONYM);
  EXPECT_EQ(between.refModule, 2);
  EXPECT_NE(between.hidden, 0);
}

TEST(AsnGenConstraintRecord, WithComponents)
{
  AsnCompiled compiled = compileBody(
      "S ::= SEQUENCE { a INTEGER OPTIONAL, b NULL OPTIONAL, c NULL OPTIONAL "
      "}\n"
      "A ::= S (WITH COMPONENTS { a (1..4) PRESENT, b ABSENT, c OPTIONAL })\n"
      "B ::= S (WITH COMPONENTS { ..., a })");
  const StxTree &tree = treeOf(compiled);
  int32_t s = typeNamed(tree, "S");
  int32_t full = tree.tNodes[static_cast<size_t>(typeNamed(tree, "A")) - 1]
                     .firstConstraint;
  const SubRec &record = tree.subRecs.at(static_cast<size_t>(full) - 1);
  EXPECT_EQ(record.kind, SUB_WITH_COMPONENTS);
  EXPECT_EQ(record.subFlags, 2);
  std::vector<int32_t> items = operandsOf(tree, full);
  ASSERT_EQ(items.size(), 3u);
  static const char *const names[] = {"a", "b", "c"};
  // Presence, and for the range both ends included.
  static const int flags[] = {4 | 0x60, 8, 0x10};
  static const int kinds[] = {SUB_RANGE, SUB_EXCEPTION, SUB_EXCEPTION};
  for (size_t i = 0; i < 3; ++i) {
    const SubRec &item = tree.subRecs.at(static_cast<size_t>(items[i]) - 1);
    EXPECT_EQ(item.compNode, compNamed(tree, s, names[i]));
    EXPECT_EQ(item.compModule, 1);
    EXPECT_EQ(item.subFlags, flags[i]);
    EXPECT_EQ(item.kind, kinds[i]);
  }
  int32_t partial = tree.tNodes[static_cast<size_t>(typeNamed(tree, "B")) - 1]
                        .firstConstraint;
  EXPECT_EQ(tree.subRecs.at(static_cast<size_t>(partial) - 1).subFlags, 0);
}

TEST(AsnGenConstraintRecord, WithComponent)
{
  AsnCompiled compiled =
      compileBody("L ::= SEQUENCE OF INTEGER\n"
                  "A ::= L (SIZE (2)) (WITH COMPONENT (0..5))");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "A")),
            "serial(size(2) component([0,5]))");
}

TEST(AsnGenConstraintRecord, ValueSet)
{
  AsnCompiled compiled =
      compileBody("V INTEGER ::= { 1 | 4..6, ... }\nW B ::= { 2 }\n"
                  "B ::= INTEGER (0..9)");
  const StxTree &tree = treeOf(compiled);
  const TNode &v = tree.tNodes[static_cast<size_t>(typeNamed(tree, "V")) - 1];
  EXPECT_EQ(v.mainType, TYP_INTEGER);
  EXPECT_EQ(v.classFlags & CF_SET, static_cast<uint32_t>(CF_SET));
  EXPECT_TRUE(v.nodeFlags & NF_EXTENSIBLE);
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "V")), "union(1 [4,6])");
  EXPECT_EQ(boundsOf(tree, typeNamed(tree, "V")), "1..6");
  // The governor's own constraint stays where it is.
  const TNode &w = tree.tNodes[static_cast<size_t>(typeNamed(tree, "W")) - 1];
  EXPECT_EQ(w.mainType, TYP_SYNONYM);
  EXPECT_EQ(w.ref, typeNamed(tree, "B"));
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "W")), "2");
  EXPECT_EQ(tree.header.nrVisibleTypes, 3);
}

// What is wrong

struct ConstraintErrorCase {
  const char *body;
  const char *error;
};

TEST(AsnGenConstraintRecord, Errors)
{
  static const ConstraintErrorCase cases[] = {
      {"A ::= BOOLEAN (SIZE (1))", "2:16: SIZE does not apply to \"BOOLEAN\""},
      {"A ::= INTEGER (FROM (\"a\"))",
       "2:16: FROM does not apply to \"INTEGER\""},
      {"A ::= INTEGER (\"a\")", "2:16: value \"a\" does not fit its type"},
      {"A ::= INTEGER (1..TRUE)", "2:19: value \"TRUE\" does not fit its type"},
      {"A ::= INTEGER (WITH COMPONENT (1))",
       "2:16: WITH COMPONENT does not apply to \"INTEGER\""},
      {"A ::= INTEGER (WITH COMPONENTS { a })",
       "2:16: WITH COMPONENTS does not apply to \"INTEGER\""},
      {"A ::= SET { a NULL } (WITH COMPONENTS { b })",
       "2:41: \"SET\" has no component \"b\""},
      {"A ::= INTEGER (Nowhere)", "2:16: \"Nowhere\" is not defined"},
      {"A ::= OCTET STRING (CONTAINING Nowhere)",
       "2:32: \"Nowhere\" is not defined"},
      {"A ::= INTEGER (A | A)", "2:15: circular constraint of \"A\""},
      {"A ::= INTEGER (B)\nB ::= INTEGER (A)",
       "2:15: circular constraint of \"A\""},
  };
  for (const ConstraintErrorCase &row : cases)
    EXPECT_EQ(errorOf(row.body), row.error) << row.body;
}

TEST(AsnGenConstraint, UnionWithAnOperandWithoutBounds)
{
  // Nothing is known of what EXCEPT leaves, so nothing of the union.
  AsnCompiled compiled = compileBody("A ::= INTEGER (0..5 EXCEPT 2 | 9)\n"
                                     "B ::= INTEGER (0..5 | 9)");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(boundsOf(tree, typeNamed(tree, "A")), "min..max");
  EXPECT_EQ(boundsOf(tree, typeNamed(tree, "B")), "0..9");
}

TEST(AsnGenConstraint, ExtensibleAlphabet)
{
  AsnCompiled compiled =
      compileBody("A ::= IA5String (FROM (\"a\"..\"f\", ..., \"z\"))\n"
                  "B ::= IA5String (FROM (\"a\"..\"f\"), ...)\n"
                  "C ::= IA5String (SIZE (1..4, ...) ^ FROM (\"a\"..\"f\"))");
  const StxTree &tree = treeOf(compiled);
  auto isMarked = [&](const char *name) {
    size_t at = static_cast<size_t>(typeNamed(tree, name)) - 1;
    return (tree.tNodes[at].nodeFlags & NF_EXTENSIBLE) != 0;
  };
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "A")), "from([\"a\",\"f\"])");
  // The flag of a string is that of its size.
  EXPECT_FALSE(isMarked("A"));
  EXPECT_FALSE(isMarked("B"));
  EXPECT_TRUE(isMarked("C"));
}

TEST(AsnGenConstraint, SettingsArePassedOver)
{
  AsnCompiled compiled =
      compileBody("A ::= GeneralizedTime (SETTINGS \"Basic=Date\")\n"
                  "B ::= INTEGER (0..9)");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "A")), "");
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "B")), "[0,9]");
}

TEST(AsnGenConstraint, ValueSetOfAGovernorThatIsWrittenOut)
{
  AsnCompiled compiled = compileBody(
      "V [3] INTEGER { one(1) } (0..9) ::= { one | 4 }\n"
      "U UTF8String ::= { \"x\" }\nS SEQUENCE { a NULL } ::= { {a NULL} }");
  const StxTree &tree = treeOf(compiled);
  auto def = [&](const char *name) -> const TNode & {
    return tree.tNodes[static_cast<size_t>(typeNamed(tree, name)) - 1];
  };
  // A reference would lead to a type without a name.
  EXPECT_EQ(def("V").mainType, TYP_INTEGER);
  EXPECT_NE(def("V").namedNumbers, 0);
  EXPECT_NE(def("V").firstTag, 0);
  EXPECT_EQ(constraintOf(tree, typeNamed(tree, "V")),
            "serial([0,9] union(one 4))");
  EXPECT_EQ(boundsOf(tree, typeNamed(tree, "V")), "1..4");
  ASSERT_NE(def("U").firstTag, 0);
  EXPECT_EQ(tree.tagRecs[static_cast<size_t>(def("U").firstTag) - 1].tagNumber,
            12);
  EXPECT_EQ(def("S").mainType, TYP_SEQ);
  EXPECT_NE(compNamed(tree, typeNamed(tree, "S"), "a"), 0);
}
