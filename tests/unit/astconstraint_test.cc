#include "support/asttext.h"
#include <gtest/gtest.h>
#include <span>

// Constraints: each row is what stands behind "A ::= B" and the tree.
struct ConstraintRow {
  const char *text;
  const char *tree;
};

static void checkConstraints(std::span<const ConstraintRow> rows)
{
  for (const ConstraintRow &row : rows)
    EXPECT_EQ(assignText(std::string("A ::= B ") + row.text),
              std::string("A ::= type B ") + row.tree)
        << row.text;
}

static void checkFaults(std::span<const ConstraintRow> rows)
{
  for (const ConstraintRow &row : rows)
    EXPECT_EQ(assignText(std::string("A ::= B ") + row.text),
              std::string("f:") + row.tree + "\n")
        << row.text;
}

TEST(AsnConstraint, SingleValues)
{
  static const ConstraintRow rows[] = {
      {"(5)", "(5)"},
      {"(-5)", "(-5)"},
      {"(v)", "(v)"},
      {"(Mod.v)", "(Mod.v)"},
      {"(o.&id)", "(o.&id)"},
      {"(TRUE)", "(true)"},
      {"(NULL)", "(null)"},
      {"(\"ab\")", "(\"ab\")"},
      {"(PLUS-INFINITY)", "(+infinity)"},
      {"(a: 5)", "(choice(a, 5))"},
      {"(C: 5)", "(typed(C, 5))"},
      {"(NULL: NULL)", "(typed(NULL, null))"},
      {"({a 1, b 2})", "({items a=1, b=2})"},
      {"({})", "({empty})"},
      {"({obj})", "({items obj | arcs obj})"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, Ranges)
{
  static const ConstraintRow rows[] = {
      {"(1..5)", "(1..5)"},
      {"(MIN..MAX)", "(MIN..MAX)"},
      {"(1<..5)", "(1<..5)"},
      {"(1..<5)", "(1..<5)"},
      {"(MIN<..<MAX)", "(MIN<..<MAX)"},
      {"(a<..<b)", "(a<..<b)"},
      {"(lo..Mod.hi)", "(lo..Mod.hi)"},
      {"(Mod.lo..5)", "(Mod.lo..5)"},
      {"(-5..-1)", "(-5..-1)"},
      {"(\"a\"..\"z\")", "(\"a\"..\"z\")"},
      {"(1.5..2.5)", "(real 1.5..real 2.5)"},
      {"(MINUS-INFINITY..0)", "(-infinity..0)"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, SizeAndFrom)
{
  static const ConstraintRow rows[] = {
      {"(SIZE (1..5))", "(SIZE (1..5))"},
      {"(SIZE (1..5, ..., 6))", "(SIZE (1..5, ..., 6))"},
      {"(FROM (\"a\"..\"z\" | \"0\"))", "(FROM (union(\"a\"..\"z\", \"0\")))"},
      {"(SIZE (5) ^ FROM (\"ab\"))", "(inter(SIZE (5), FROM (\"ab\")))"},
      {"(FROM (C))", "(FROM (type C))"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, Sets)
{
  static const ConstraintRow rows[] = {
      {"(1 | 2 | 3)", "(union(1, 2, 3))"},
      {"(1 UNION 2)", "(union(1, 2))"},
      {"(1 ^ 2 INTERSECTION 3)", "(inter(1, 2, 3))"},
      {"(1 | 2 ^ 3 | 4)", "(union(1, inter(2, 3), 4))"},
      {"((1 | 2) ^ 3)", "(inter(union(1, 2), 3))"},
      {"(1 EXCEPT 2)", "(except(1, 2))"},
      {"(1 | 2 EXCEPT 3 ^ 4)", "(union(1, inter(except(2, 3), 4)))"},
      {"(1 EXCEPT (2 | 3))", "(except(1, union(2, 3)))"},
      {"(ALL EXCEPT 5)", "(allexcept(5))"},
      {"(ALL EXCEPT (1..5))", "(allexcept(1..5))"},
      {"(((5)))", "(5)"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, Extensible)
{
  static const ConstraintRow rows[] = {
      {"(1..5, ...)", "(1..5, ...)"},
      {"(1..5, ..., 6 | 7)", "(1..5, ..., union(6, 7))"},
      {"(1 | 2, ..., ALL EXCEPT 3)", "(union(1, 2), ..., allexcept(3))"},
      {"({Set}, ...)", "(table (type Set), ...)"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, Serial)
{
  static const ConstraintRow rows[] = {
      {"(1..9) (2..8)", "(1..9) (2..8)"},
      {"(1..9) (2..8, ...) (3)", "(1..9) (2..8, ...) (3)"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, ContainedSubtypes)
{
  static const ConstraintRow rows[] = {
      {"(C)", "(type C)"},
      {"(Mod.C)", "(type Mod.C)"},
      {"(INCLUDES C)", "(includes C)"},
      {"(INCLUDES INTEGER (1..5))", "(includes INTEGER (1..5))"},
      {"(C (1) | D)", "(union(type C (1), type D))"},
      {"(INTEGER)", "(type INTEGER)"},
      {"(a < C)", "(type a < C)"},
      {"([1] C)", "(type [1]C)"},
      {"(C {5})", "(type C{value 5})"},
      {"(Set.&id)", "(type Set.&id)"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, Inner)
{
  static const ConstraintRow rows[] = {
      {"(WITH COMPONENT (1..5))", "(component (1..5))"},
      {"(WITH COMPONENTS {a, b (5), c ABSENT})",
       "(components{a, b (5), c ABSENT})"},
      {"(WITH COMPONENTS {..., a (SIZE (1)) PRESENT, b OPTIONAL})",
       "(components{... a (SIZE (1)) PRESENT, b OPTIONAL})"},
      {"(WITH COMPONENTS {...})", "(components{... })"},
      {"(WITH COMPONENTS {a PRESENT} | WITH COMPONENTS {b PRESENT})",
       "(union(components{a PRESENT}, components{b PRESENT}))"},
      {"(WITH COMPONENTS {a (WITH COMPONENT (5))})",
       "(components{a (component (5))})"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, ContentsPatternAndUserDefined)
{
  static const ConstraintRow rows[] = {
      {"(CONTAINING C)", "(containing C)"},
      {"(CONTAINING C ENCODED BY {iso 5})",
       "(containing C by {items iso=5 | arcs iso 5})"},
      {"(ENCODED BY per)", "(encoded by per)"},
      {"(PATTERN \"a*\")", "(pattern \"a*\")"},
      {"(PATTERN p)", "(pattern p)"},
      {"(SETTINGS \"x\")", "(settings \"x\")"},
      {"(CONSTRAINED BY {})", "(constrained by 0)"},
      {"(CONSTRAINED BY {-- x -- INTEGER: 5, {a}})", "(constrained by 7)"},
      {"(CONSTRAINED BY {}) (5 ! 1)", "(constrained by 0) (5 !1)"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, Tables)
{
  static const ConstraintRow rows[] = {
      {"({Set})", "(table (type Set))"},
      {"({Mod.Set})", "(table (type Mod.Set))"},
      {"({Set {C}})", "(table (type Set{type C}))"},
      {"({Set | other})", "(table (union(type Set, other)))"},
      {"({{ID 1} | {ID 2}})", "(table (union({tokens 2}, {tokens 2})))"},
      {"({...})", "(table (...))"},
      {"({Set, ...})", "(table (type Set, ...))"},
      {"({Set}{@id})", "(table (type Set) @0:id)"},
      {"({Set}{@a.b, @.c.d})", "(table (type Set) @0:a.b @1:c.d)"},
      {"({Set}{@..c, @...d, @....e})", "(table (type Set) @2:c @3:d @4:e)"},
      {"({obj}{@id})", "(table (obj) @0:id)"},
  };
  checkConstraints(rows);
}

TEST(AsnConstraint, Places)
{
  AstRun run("A ::= B (1 |\n (C)) (SIZE (5))");
  const AstType &type = *run.assign(0).type;
  EXPECT_EQ(type.constraints.at(0)->pos.column, 9);
  const AstElem &root = *type.constraints.at(0)->root;
  EXPECT_EQ(root.pos.column, 10);
  EXPECT_EQ(root.operands.at(1)->pos.line, 3);
  EXPECT_EQ(root.operands.at(1)->pos.column, 3);
  EXPECT_EQ(type.constraints.at(1)->root->inner->pos.column, 13);
}

TEST(AsnConstraint, Faults)
{
  static const ConstraintRow rows[] = {
      {"()", "2:10: error: expected a constraint, found \")\""},
      {"(...)", "2:10: error: expected a value, found \"...\""},
      {"(1", "3:1: error: expected \")\", found \"END\""},
      {"(1, 2)", "2:13: error: expected \"...\", found \"2\""},
      {"(1 |)", "2:13: error: expected a constraint, found \")\""},
      {"(MIN)", "2:13: error: expected \"..\", found \")\""},
      {"(1 < 5)", "2:14: error: expected \"..\", found \"5\""},
      {"(MAX)", "2:10: error: expected a type, found \"MAX\""},
      {"(1..)", "2:13: error: expected a value, found \")\""},
      {"(ALL 5)", "2:14: error: expected \"EXCEPT\", found \"5\""},
      {"(SIZE 5)", "2:15: error: expected \"(\", found \"5\""},
      {"(WITH C)", "2:15: error: expected \"COMPONENT\" or \"COMPONENTS\", "
                   "found \"C\""},
      {"(WITH COMPONENTS {A})",
       "2:27: error: expected a component, found \"A\""},
      {"(WITH COMPONENTS {... a})", "2:31: error: expected \",\", found \"a\""},
      {"(ENCODED v)", "2:18: error: expected \"BY\", found \"v\""},
      {"(CONTAINING C ENCODED v)", "2:31: error: expected \"BY\", found \"v\""},
      {"(CONSTRAINED BY v)", "2:25: error: expected \"{\", found \"v\""},
      {"(CONSTRAINED BY {", "2:25: error: \"{\" is not closed"},
      {"(SETTINGS v)", "2:19: error: expected a character string, found \"v\""},
      {"({Set}{@})", "2:17: error: expected a component, found \"}\""},
      {"({Set}{@a.})", "2:19: error: expected a component, found \"}\""},
      {"({Set}{@a b})", "2:19: error: expected \"}\", found \"b\""},
  };
  checkFaults(rows);
}

TEST(AsnConstraint, ValueAndObjectSets)
{
  static const ConstraintRow rows[] = {
      {"{1 | 2}", "A B ::= set (union(1, 2))"},
      {"{...}", "A B ::= set (...)"},
      {"{..., 5}", "A B ::= set (..., 5)"},
      {"{1..5, ..., 6}", "A B ::= set (1..5, ..., 6)"},
      {"{}", "A B ::= set ()"},
      {"{C | {ID 5} | o, ...}",
       "A B ::= set (union(type C, {tokens 2}, o), ...)"},
      {"{{ID 5 TYPE C}}", "A B ::= set ({tokens 4})"},
      {"{C.&F | D {5}}", "A B ::= set (union(type C.&F, type D{value 5}))"},
      {"5", "f:2:9: error: expected \"{\", found \"5\"\n"},
      {"{1 2}", "f:2:12: error: expected \"}\", found \"2\"\n"},
  };
  for (const ConstraintRow &row : rows)
    EXPECT_EQ(assignText(std::string("A B ::= ") + row.text), row.tree)
        << row.text;
}
