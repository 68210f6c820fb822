#include "support/asttext.h"
#include <gtest/gtest.h>
#include <iterator>
#include <span>

// Types: each row is what stands behind "A ::=" and the tree, or the error.
struct TypeRow {
  const char *text;
  const char *tree;
};

static void checkTypes(std::span<const TypeRow> rows)
{
  for (const TypeRow &row : rows)
    EXPECT_EQ(assignText(std::string("A ::= ") + row.text),
              std::string("A ::= type ") + row.tree)
        << row.text;
}

// The text begins in column 7 of line 2.
static void checkFaults(std::span<const TypeRow> rows)
{
  for (const TypeRow &row : rows)
    EXPECT_EQ(assignText(std::string("A ::= ") + row.text),
              std::string("f:") + row.tree + "\n")
        << row.text;
}

TEST(AsnType, OfOneOrTwoWords)
{
  static const char *const texts[] = {"BOOLEAN",
                                      "INTEGER",
                                      "REAL",
                                      "BIT STRING",
                                      "OCTET STRING",
                                      "NULL",
                                      "RELATIVE-OID",
                                      "EXTERNAL",
                                      "OBJECT IDENTIFIER",
                                      "EMBEDDED PDV",
                                      "CHARACTER STRING",
                                      "NumericString",
                                      "PrintableString",
                                      "TeletexString",
                                      "T61String",
                                      "VideotexString",
                                      "IA5String",
                                      "GraphicString",
                                      "VisibleString",
                                      "ISO646String",
                                      "GeneralString",
                                      "UniversalString",
                                      "BMPString",
                                      "UTF8String",
                                      "UTCTime",
                                      "GeneralizedTime",
                                      "ObjectDescriptor",
                                      "ANY"};
  for (const char *text : texts)
    EXPECT_EQ(assignText(std::string("A ::= ") + text),
              std::string("A ::= type ") + text);
}

TEST(AsnType, References)
{
  static const TypeRow rows[] = {
      {"B", "B"},
      {"Mod.B", "Mod.B"},
      {"TYPE-IDENTIFIER", "TYPE-IDENTIFIER"},
      {"INTEGERS", "INTEGERS"},
      {"CLS.&id", "CLS.&id"},
      {"CLS.&Type.&id", "CLS.&Type.&id"},
      {"Mod.CLS.&id", "Mod.CLS.&id"},
      {"obj.&Type", "obj.&Type"},
      {"Mod.obj.&a.&Type", "Mod.obj.&a.&Type"},
      {"TYPE-IDENTIFIER.&Type", "TYPE-IDENTIFIER.&Type"},
      {"INSTANCE OF CLS", "INSTANCE OF CLS"},
      {"INSTANCE OF Mod.CLS ({Set})", "INSTANCE OF Mod.CLS (table (type Set))"},
      {"ANY DEFINED BY id", "ANY BY id"},
      {"alt < B", "alt < B"},
      {"alt < Mod.B (1)", "alt < Mod.B (1)"},
  };
  checkTypes(rows);
}

TEST(AsnType, Fields)
{
  AstRun run("A ::= Mod.CLS.&Type.&id");
  const AstType &type = *run.assign(0).type;
  EXPECT_EQ(type.kind, AT_FIELD);
  EXPECT_EQ(type.ref.module, "Mod");
  EXPECT_EQ(type.ref.name, "CLS");
  ASSERT_EQ(type.fieldPos.size(), 2u);
  EXPECT_EQ(type.fieldPos[1].column, 21);
}

TEST(AsnType, Actuals)
{
  static const TypeRow rows[] = {
      {"B {INTEGER}", "B{type INTEGER}"},
      {"B {C, Mod.D}", "B{type C, type Mod.D}"},
      {"B {5, -1, TRUE, \"x\", '0'B}",
       "B{value 5, value -1, value true, value \"x\", value b'0'}"},
      {"B {v, Mod.v, o.&id}", "B{value v, value Mod.v, value o.&id}"},
      {"B {o.&Type, a < C}", "B{type o.&Type, type a < C}"},
      {"B {NULL}", "B{type NULL}"},
      {"B {{Set}}", "B{set (type Set)}"},
      {"B {{a | b}, {1..5}}", "B{set (union(a, b)), set (1..5)}"},
      {"B {{...}}", "B{set (...)}"},
      {"B {{}}", "B{set ()}"},
      {"B {{5}}", "B{set (5)}"},
      {"B {{C {{D}}}}", "B{set (type C{set (type D)})}"},
      {"B {{INTEGER (1..5)}}", "B{set (type INTEGER (1..5))}"},
      {"B {{Set.&F}}", "B{set (type Set.&F)}"},
      {"B {{a 1, b 2}}", "B{value {items a=1, b=2}}"},
      {"B {{iso 5}}", "B{value {items iso=5 | arcs iso 5}}"},
      {"B {{ID 5 TYPE C}}", "B{value {tokens 4}}"},
      {"B {INTEGER: 5}", "B{gov INTEGER: value 5}"},
      {"B {CLS: {Set}, CLS: o}",
       "B{gov CLS: set (type Set), gov CLS: value o}"},
      {"B {C: D}", "B{gov C: type D}"},
      {"B {C {5}} (1)", "B{type C{value 5}} (1)"},
      {"CLS {5}.&id", "CLS{value 5}.&id"},
  };
  checkTypes(rows);
}

TEST(AsnType, ActualReadAgain)
{
  AstRun run("A ::= B {C: {5}}");
  const AstActual &actual = *run.assign(0).type->ref.actuals.at(0);
  ASSERT_TRUE(actual.set);
  AstTokens tokens = actual.tokens;
  EXPECT_EQ(tokens.end - tokens.first, 3);
  EXPECT_EQ(astText(parseValueAt(run.ast, run.errors, tokens)),
            "{items 5 | arcs 5}");
  EXPECT_EQ(tokens.first, tokens.end);
}

TEST(AsnType, Tags)
{
  static const TypeRow rows[] = {
      {"[5] INTEGER", "[5]INTEGER"},
      {"[UNIVERSAL 1] B", "[UNIVERSAL 1]B"},
      {"[APPLICATION 2] IMPLICIT B", "[APPLICATION 2 IMPLICIT]B"},
      {"[PRIVATE n] EXPLICIT B", "[PRIVATE n EXPLICIT]B"},
      {"[1] [2] B (3)", "[1][2]B (3)"},
  };
  checkTypes(rows);
}

TEST(AsnType, NamedNumbers)
{
  static const TypeRow rows[] = {
      {"INTEGER {a(1), b(-2), c(n), d(Mod.n)}",
       "INTEGER{a=1, b=-2, c=n, d=Mod.n}"},
      {"INTEGER {a(1)} (a)", "INTEGER{a=1} (a)"},
      {"BIT STRING {x(0), y(7)} (SIZE (8))", "BIT STRING{x=0, y=7} (SIZE (8))"},
      {"ENUMERATED {a}", "ENUMERATED{a}"},
      {"ENUMERATED {a, b(5), ...}", "ENUMERATED{a, b=5, ...}"},
      {"ENUMERATED {a, ... !5, b}", "ENUMERATED{a, ..., b} !5"},
      {"ENUMERATED {a, ..., b(n), c}", "ENUMERATED{a, ..., b=n, c}"},
  };
  checkTypes(rows);
}

TEST(AsnType, Structures)
{
  static const TypeRow rows[] = {
      {"SEQUENCE {}", "SEQUENCE{}"},
      {"SET {}", "SET{}"},
      {"SEQUENCE {...}", "SEQUENCE{...}"},
      {"SEQUENCE {a INTEGER, b B OPTIONAL, c C DEFAULT 5}",
       "SEQUENCE{a INTEGER, b B OPTIONAL, c C DEFAULT 5}"},
      {"SET {a INTEGER DEFAULT {}, COMPONENTS OF B}",
       "SET{a INTEGER DEFAULT {empty}, COMPONENTS OF B}"},
      {"SEQUENCE {a B, ..., b C, ..., d D}",
       "SEQUENCE{a B, ..., b C, ..., d D}"},
      {"SEQUENCE {a B, ... ! Mod.v, ..., d D}",
       "SEQUENCE{a B, ... !Mod.v, ..., d D}"},
      {"SEQUENCE {..., [[a B, b C OPTIONAL]], [[2: c D]]}",
       "SEQUENCE{..., [[a B, b C OPTIONAL]], [[2: c D]]}"},
      {"SEQUENCE {..., [[COMPONENTS OF B]]}",
       "SEQUENCE{..., [[COMPONENTS OF B]]}"},
      {"SEQUENCE {a [1] B, b b < C}", "SEQUENCE{a [1]B, b b < C}"},
      {"SEQUENCE {a SEQUENCE {b B}, c SET OF D}",
       "SEQUENCE{a SEQUENCE{b B}, c SET OF: D}"},
      {"CHOICE {a B, ..., [[2: b C, c D]], [[d E]]}",
       "CHOICE{a B, ..., [[2: b C, c D]], [[d E]]}"},
  };
  checkTypes(rows);
}

TEST(AsnType, ComponentsWithoutName)
{
  static const TypeRow rows[] = {
      {"SEQUENCE {INTEGER, B OPTIONAL}", "SEQUENCE{INTEGER, B OPTIONAL}"},
      {"CHOICE {[0] B, c < C, o.&Type}", "CHOICE{[0]B, c < C, o.&Type}"},
  };
  checkTypes(rows);
}

TEST(AsnType, Exceptions)
{
  static const TypeRow rows[] = {
      {"CHOICE {a B, ... ! -5}", "CHOICE{a B, ... !-5}"},
      {"CHOICE {a B, ... ! v}", "CHOICE{a B, ... !v}"},
      {"CHOICE {a B, ... ! PrintableString: \"x\"}",
       "CHOICE{a B, ... !PrintableString: \"x\"}"},
      {"INTEGER (1..5 ! 3)", "INTEGER (1..5 !3)"},
      {"INTEGER (1..5, ... ! Mod.T: 3)", "INTEGER (1..5, ... !Mod.T: 3)"},
  };
  checkTypes(rows);
}

TEST(AsnType, Lists)
{
  static const TypeRow rows[] = {
      {"SEQUENCE OF B", "SEQUENCE OF: B"},
      {"SET OF b B", "SET OF: b B"},
      {"SEQUENCE SIZE (1..4) OF B", "SEQUENCE OF (SIZE (1..4)): B"},
      {"SEQUENCE (SIZE (1..4)) OF B (2)", "SEQUENCE OF (SIZE (1..4)): B (2)"},
      {"SET (C) (SIZE (2)) OF D", "SET OF (type C) (SIZE (2)): D"},
      {"SEQUENCE OF SET OF INTEGER (1..5)",
       "SEQUENCE OF: SET OF: INTEGER (1..5)"},
      {"SEQUENCE OF a < B", "SEQUENCE OF: a < B"},
      {"SEQUENCE OF c CHOICE {a B}", "SEQUENCE OF: c CHOICE{a B}"},
  };
  checkTypes(rows);
}

TEST(AsnType, Places)
{
  AstRun run("A ::= [1]\n SEQUENCE {\n  a Mod.B, ...,\n  [[2: b C]] }");
  const AstType &type = *run.assign(0).type;
  EXPECT_EQ(type.pos.line, 2);
  EXPECT_EQ(type.pos.column, 7);
  EXPECT_EQ(type.tags.at(0).pos.column, 7);
  EXPECT_EQ(type.comps.at(0)->pos.line, 4);
  EXPECT_EQ(type.comps.at(0)->pos.column, 3);
  EXPECT_EQ(type.comps.at(0)->type->ref.pos.column, 5);
  EXPECT_EQ(type.comps.at(2)->members.at(0)->pos.column, 8);
  EXPECT_EQ(&run.ast.types.at(static_cast<size_t>(type.id)), &type);
}

TEST(AsnType, Faults)
{
  static const TypeRow rows[] = {
      {"}", "2:7: error: expected a type, found \"}\""},
      {"OPTIONAL", "2:7: error: expected a type, found \"OPTIONAL\""},
      {"BIT B", "2:11: error: expected \"STRING\", found \"B\""},
      {"OBJECT B", "2:14: error: expected \"IDENTIFIER\", found \"B\""},
      {"EMBEDDED B", "2:16: error: expected \"PDV\", found \"B\""},
      {"INSTANCE B", "2:16: error: expected \"OF\", found \"B\""},
      {"INSTANCE OF 5", "2:19: error: expected a class, found \"5\""},
      {"INSTANCE OF C.&a", "2:21: error: expected a class"},
      {"ANY DEFINED a", "2:19: error: expected \"BY\", found \"a\""},
      {"ANY DEFINED BY B", "2:22: error: expected an identifier, found \"B\""},
      {"Mod.b", "3:1: error: expected \".&\" and a field, found \"END\""},
      {"SEQUENCE B", "2:16: error: expected \"{\" or \"OF\", found \"B\""},
      {"SET (B) C", "2:15: error: expected \"OF\", found \"C\""},
      {"SEQUENCE {a B b C}", "2:21: error: expected \"}\", found \"b\""},
      {"SEQUENCE {a B, }", "2:22: error: expected a component, found \"}\""},
      {"SEQUENCE {a, b B}", "2:18: error: expected a type, found \",\""},
      {"CHOICE {}", "2:15: error: expected an alternative, found \"}\""},
      {"CHOICE {a B OPTIONAL}",
       "2:19: error: expected \"}\", found \"OPTIONAL\""},
      {"CHOICE {COMPONENTS OF B}",
       "2:15: error: expected a type, found \"COMPONENTS\""},
      {"SEQUENCE {COMPONENTS B}", "2:28: error: expected \"OF\", found \"B\""},
      {"SEQUENCE {[[a B]}", "2:23: error: expected \"]\", found \"}\""},
      {"SEQUENCE {[[...]]}",
       "2:19: error: expected a component, found \"...\""},
      {"SEQUENCE {[[99999999999999999999: a B]]}",
       "2:19: error: version number \"99999999999999999999\" is too large"},
      {"ENUMERATED {}", "2:19: error: expected an identifier, found \"}\""},
      {"ENUMERATED {A}", "2:19: error: expected an identifier, found \"A\""},
      {"ENUMERATED {a(1.5)}", "2:21: error: expected an integer or the name "
                              "of one, found \"1.5\""},
      {"INTEGER {a}", "2:17: error: expected \"(\", found \"}\""},
      {"INTEGER {a(1), ...}",
       "2:22: error: expected an identifier, found \"...\""},
      {"[CONTEXT 1] B", "2:8: error: expected a value, found \"CONTEXT\""},
      {"[1 B", "2:10: error: expected \"]\", found \"B\""},
      {"B {", "3:1: error: expected a type, found \"END\""},
      {"B {}", "2:10: error: expected a type, found \"}\""},
      {"B {C D}", "2:12: error: expected \"}\", found \"D\""},
      {"SEQUENCE {... ! B}", "2:24: error: expected \":\", found \"}\""},
  };
  checkFaults(rows);
}
