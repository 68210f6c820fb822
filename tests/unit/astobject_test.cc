#include "support/asttext.h"
#include <gtest/gtest.h>
#include <span>

// Classes: each row is what stands behind "CLASS" and the tree.
struct ClassRow {
  const char *text;
  const char *tree;
};

TEST(AsnObject, Classes)
{
  static const ClassRow rows[] = {
      {"{&Type}", "{&Type}"},
      {"{&Type OPTIONAL, &T2 DEFAULT INTEGER}",
       "{&Type OPTIONAL, &T2 DEFAULT type INTEGER}"},
      {"{&id INTEGER UNIQUE}", "{&id INTEGER UNIQUE}"},
      {"{&id OBJECT IDENTIFIER UNIQUE OPTIONAL}",
       "{&id OBJECT IDENTIFIER UNIQUE OPTIONAL}"},
      {"{&p Presence DEFAULT mandatory}",
       "{&p Presence DEFAULT value mandatory}"},
      {"{&v &Type}", "{&v .&Type}"},
      {"{&v &o.&Type DEFAULT 5}", "{&v .&o.&Type DEFAULT value 5}"},
      {"{&Set INTEGER DEFAULT {1 | 2}}",
       "{&Set INTEGER DEFAULT set (union(1, 2))}"},
      {"{&Set OTHER DEFAULT Name}", "{&Set OTHER DEFAULT type Name}"},
      {"{&Set &Type OPTIONAL}", "{&Set .&Type OPTIONAL}"},
      {"{&o OTHER OPTIONAL}", "{&o OTHER OPTIONAL}"},
      {"{&a CLS.&id ({Set})}", "{&a CLS.&id (table (type Set))}"},
  };
  for (const ClassRow &row : rows)
    EXPECT_EQ(assignText(std::string("C ::= CLASS ") + row.text),
              std::string("C ::= CLASS") + row.tree)
        << row.text;
}

TEST(AsnObject, Syntax)
{
  static const ClassRow rows[] = {
      {"{ID &id}", "ID &id"},
      {"{&id, TYPE &Type}", "&id , TYPE &Type"},
      {"{[ARGUMENT &Arg [OPTIONAL &opt]] CODE &id}",
       "[ARGUMENT &Arg [OPTIONAL &opt]] CODE &id"},
      {"{[[A &a]]}", "[[A &a]]"},
      {"{SIZE BY-X &id}", "SIZE BY-X &id"},
  };
  for (const ClassRow &row : rows)
    EXPECT_EQ(assignText(std::string("C ::= CLASS {&id INTEGER} WITH SYNTAX ") +
                         row.text),
              std::string("C ::= CLASS{&id INTEGER} syntax ") + row.tree)
        << row.text;
}

TEST(AsnObject, ClassWithoutKeywordIsType)
{
  EXPECT_EQ(assignText("C ::= TYPE-IDENTIFIER"), "C ::= type TYPE-IDENTIFIER");
  EXPECT_EQ(assignText("C ::= OTHER"), "C ::= type OTHER");
}

TEST(AsnObject, Faults)
{
  static const ClassRow rows[] = {
      {"&id", "2:13: error: expected \"{\", found \"&id\""},
      {"{}", "2:14: error: expected a field, found \"}\""},
      {"{id INTEGER}", "2:14: error: expected a field, found \"id\""},
      {"{&id}", "2:17: error: expected a type, found \"}\""},
      {"{&id INTEGER DEFAULT}", "2:33: error: expected a value, found \"}\""},
      {"{&id A &b B}", "2:20: error: expected \"}\", found \"&b\""},
      {"{&id A} WITH {}", "2:26: error: expected \"SYNTAX\", found \"{\""},
      {"{&id A} WITH SYNTAX {}", "2:34: error: expected a word, \"[\", \",\" "
                                 "or a field, found \"}\""},
      {"{&id A} WITH SYNTAX {id}", "2:34: error: expected a word, \"[\", "
                                   "\",\" or a field, found \"id\""},
      {"{&id A} WITH SYNTAX {[A &id}", "2:40: error: expected a word, \"[\", "
                                       "\",\" or a field, found \"}\""},
  };
  for (const ClassRow &row : rows)
    EXPECT_EQ(assignText(std::string("C ::= CLASS ") + row.text),
              std::string("f:") + row.tree + "\n")
        << row.text;
}

// Defined syntax, read piece by piece once the class is known.
TEST(AsnObject, DefinedSyntaxByPieces)
{
  AstRun run("o C ::= {ID id-x TYPE SEQUENCE {a B} SET {1 | 2}}");
  AstTokens tokens = run.assign(0).value->braces->tokens;
  EXPECT_EQ(tokenAt(run.ast, tokens).text, "ID");
  tokens.first++;
  EXPECT_EQ(tokenPosAt(run.ast, tokens).column, 13);
  EXPECT_EQ(astText(parseValueAt(run.ast, run.errors, tokens)), "id-x");
  EXPECT_EQ(tokenAt(run.ast, tokens).text, "TYPE");
  tokens.first++;
  EXPECT_EQ(astText(parseTypeAt(run.ast, run.errors, tokens)), "SEQUENCE{a B}");
  EXPECT_EQ(tokenAt(run.ast, tokens).text, "SET");
  tokens.first++;
  EXPECT_EQ(astText(parseSetAt(run.ast, run.errors, tokens)), "(union(1, 2))");
  EXPECT_EQ(tokenAt(run.ast, tokens).kind, TOK_END);
  EXPECT_EQ(tokenPosAt(run.ast, tokens).column, 49);
  EXPECT_EQ(run.errors.errors.size(), 0u);
}

TEST(AsnObject, PieceIsMissing)
{
  AstRun run("o C ::= {ID}");
  AstTokens tokens = run.assign(0).value->braces->tokens;
  tokens.first++;
  EXPECT_FALSE(parseTypeAt(run.ast, run.errors, tokens));
  // Nothing behind the part is read, but the message shows it.
  EXPECT_EQ(run.errorText(), "f:2:12: error: expected a type, found \"}\"\n");
}
