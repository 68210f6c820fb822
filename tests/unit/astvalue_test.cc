#include "support/asttext.h"
#include <gtest/gtest.h>
#include <span>

// Values: each row is what stands behind "a A ::=" and the tree.
struct ValueRow {
  const char *text;
  const char *tree;
};

static void checkValues(std::span<const ValueRow> rows)
{
  for (const ValueRow &row : rows)
    EXPECT_EQ(assignText(std::string("a A ::= ") + row.text),
              std::string("a A ::= value ") + row.tree)
        << row.text;
}

TEST(AsnValue, Words)
{
  static const ValueRow rows[] = {
      {"TRUE", "true"},
      {"FALSE", "false"},
      {"NULL", "null"},
      {"PLUS-INFINITY", "+infinity"},
      {"MINUS-INFINITY", "-infinity"},
      {"NOT-A-NUMBER", "nan"},
  };
  checkValues(rows);
}

TEST(AsnValue, NumbersAndStrings)
{
  static const ValueRow rows[] = {
      {"5", "5"},
      {"-5", "-5"},
      {"123456789012345678901234567890", "123456789012345678901234567890"},
      {"1.5", "real 1.5"},
      {"-1.5e-3", "real -1.5e-3"},
      {"'01 10'B", "b'0110'"},
      {"''B", "b''"},
      {"'0A\n F'H", "h'0AF'"},
      {"\"a\"\"b\"", "\"a\"b\""},
      {"\"a \n b\"", "\"ab\""},
  };
  checkValues(rows);
}

TEST(AsnValue, References)
{
  static const ValueRow rows[] = {
      {"v", "v"},
      {"Mod.v", "Mod.v"},
      {"v {5, C}", "v{value 5, type C}"},
      {"o.&id", "o.&id"},
      {"Mod.o.&a.&id", "Mod.o.&a.&id"},
      {"o {5}.&id", "o{value 5}.&id"},
  };
  checkValues(rows);
}

TEST(AsnValue, WithColon)
{
  static const ValueRow rows[] = {
      {"alt: 5", "choice(alt, 5)"},
      {"alt: other: NULL", "choice(alt, choice(other, null))"},
      {"alt: {}", "choice(alt, {empty})"},
      {"B: 5", "typed(B, 5)"},
      {"INTEGER (1..5): 5", "typed(INTEGER (1..5), 5)"},
      {"NULL: NULL", "typed(NULL, null)"},
      {"Mod.B: v", "typed(Mod.B, v)"},
      {"CONTAINING 5", "containing 5"},
  };
  checkValues(rows);
}

TEST(AsnValue, Items)
{
  static const ValueRow rows[] = {
      {"{}", "{empty}"},
      {"{a 1, b TRUE}", "{items a=1, b=true}"},
      {"{a {b 1, c 2}, d \"x\"}", "{items a={items b=1, c=2}, d=\"x\"}"},
      {"{a -1}", "{items a=-1}"},
      {"{mantissa 5, base 10, exponent -1}",
       "{items mantissa=5, base=10, exponent=-1}"},
      {"{1, 2, -3}", "{items 1, 2, -3}"},
      {"{{1, 2}, {}}", "{items {items 1, 2}, {empty}}"},
      {"{x, y}", "{items x, y}"},
      {"{Mod.x, o.&id}", "{items Mod.x, o.&id}"},
      {"{alt: 1, alt: {}}", "{items choice(alt, 1), choice(alt, {empty})}"},
      {"{a alt: 1, b C: 2}", "{items a=choice(alt, 1), b=typed(C, 2)}"},
      {"{a SEQUENCE {x B, y C}: {}, b 1}",
       "{items a=typed(SEQUENCE{x B, y C}, {empty}), b=1}"},
      {"{C: 1, NULL, TRUE}", "{items typed(C, 1), null, true}"},
      {"{a 'FF'H, b ''B}", "{items a=h'FF', b=b''}"},
      {"{a Mod.v, b o.&id}", "{items a=Mod.v, b=o.&id}"},
      {"{CONTAINING 5}", "{items containing 5}"},
  };
  checkValues(rows);
}

TEST(AsnValue, Arcs)
{
  static const ValueRow rows[] = {
      {"{iso standard(0) 5}", "{arcs iso standard(0) 5}"},
      {"{iso standard(n) part(Mod.n)}", "{arcs iso standard(n) part(Mod.n)}"},
      {"{1 2 3}", "{arcs 1 2 3}"},
      {"{iso Mod.v 5}", "{arcs iso Mod.v 5}"},
      {"{a b c}", "{arcs a b c}"},
      // One item, one or two arcs: the governor decides.
      {"{5}", "{items 5 | arcs 5}"},
      {"{a}", "{items a | arcs a}"},
      {"{a 5}", "{items a=5 | arcs a 5}"},
      {"{a b}", "{items a=b | arcs a b}"},
      {"{a Mod.b}", "{items a=Mod.b | arcs a Mod.b}"},
      {"{a(1)}", "{arcs a(1)}"},
  };
  checkValues(rows);
}

TEST(AsnValue, Settings)
{
  static const ValueRow rows[] = {
      {"{&id 5}", "{settings &id=value 5}"},
      {"{&id 5, &Type INTEGER (1..5), &Set {1 | 2}, &o {&id 1}}",
       "{settings &id=value 5, &Type=type INTEGER (1..5), &Set=set (union(1, "
       "2)), &o=value {settings &id=value 1}}"},
      {"{&Set OtherSet}", "{settings &Set=type OtherSet}"},
  };
  checkValues(rows);
}

TEST(AsnValue, OnlyTokens)
{
  static const ValueRow rows[] = {
      {"{ID 5}", "{tokens 2}"},
      {"{ID 5 TYPE SEQUENCE {a B}}", "{tokens 8}"},
      {"{5 TYPE B}", "{tokens 3}"},
      {"{B}", "{tokens 1}"},
      {"{a 1, ID 5}", "{tokens 5}"},
      {"{a 1,}", "{tokens 3}"},
      {"{a b(1, 2)}", "{tokens 7}"},
      {"{- 5 -}", "{tokens 3}"},
      {"{a -1 2}", "{tokens 4}"},
  };
  checkValues(rows);
}

TEST(AsnValue, NameWithBracesIsItem)
{
  AstRun run("a A ::= {b {5}}");
  const AstBraces &braces = *run.assign(0).value->braces;
  EXPECT_EQ(astText(run.assign(0).value), "{items b={items 5 | arcs 5}}");
  AstTokens tokens = braces.tokens;
  EXPECT_EQ(astText(parseValueAt(run.ast, run.errors, tokens)), "b{value 5}");
  EXPECT_EQ(tokens.first, tokens.end);
}

TEST(AsnValue, Parts)
{
  AstRun run("a A ::= {Mod.b standard(0) c}");
  const AstBraces &braces = *run.assign(0).value->braces;
  ASSERT_EQ(braces.arcs.size(), 3u);
  EXPECT_EQ(braces.arcs[0].ref.module, "Mod");
  EXPECT_EQ(braces.arcs[1].pos.column, 16);
  EXPECT_FALSE(braces.arcs[2].value);
  EXPECT_EQ(braces.arcs[1].value->kind, AV_INTEGER);

  AstRun items("a A ::= {b\n 5}");
  EXPECT_EQ(items.assign(0).value->pos.column, 9);
  EXPECT_EQ(items.assign(0).value->braces->items.at(0).pos.column, 10);
  EXPECT_EQ(items.assign(0).value->braces->items.at(0).value->pos.line, 3);
  int id = items.assign(0).value->id;
  EXPECT_EQ(&items.ast.values.at(static_cast<size_t>(id)),
            items.assign(0).value);
}

TEST(AsnValue, Faults)
{
  static const ValueRow rows[] = {
      {"}", "2:9: error: expected a value, found \"}\""},
      {"B", "2:9: error: expected a value, found \"B\""},
      {"MAX", "2:9: error: expected a type, found \"MAX\""},
      {"INTEGER 5", "2:17: error: expected \":\", found \"5\""},
      {"- v", "2:11: error: expected a number, found \"v\""},
      {"alt: }", "2:14: error: expected a value, found \"}\""},
      {"{a 1", "2:9: error: \"{\" is not closed"},
      {"v {5", "3:1: error: expected \"}\", found \"END\""},
      {"{&id}", "2:13: error: expected a value, found \"}\""},
      {"{&id 5, Type B}", "2:17: error: expected a field, found \"Type\""},
      {"{&id 5 &Type B}", "2:16: error: expected \"}\", found \"&Type\""},
      {"{a {&id}}", "2:16: error: expected a value, found \"}\""},
  };
  for (const ValueRow &row : rows)
    EXPECT_EQ(assignText(std::string("a A ::= ") + row.text),
              std::string("f:") + row.tree + "\n")
        << row.text;
}
