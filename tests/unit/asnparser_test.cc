#include "support/asttext.h"
#include "support/tempdir.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <span>

// Modules, assignments, annotations, and what happens after a fault.

// A whole text.
struct TextRun {
  Ast ast;
  AsnErrors errors;

  explicit TextRun(const std::string &text)
  {
    parseAsnText(ast, errors, "f", text);
  }

  const AstModule &module(size_t i = 0) const { return *ast.modules.at(i); }
};

static std::string errorsOf(const std::string &text)
{
  AstRun run;
  parseAsnText(run.ast, run.errors, "f", text);
  return run.errorText();
}

// Module headers.

TEST(AsnParser, ModuleHeader)
{
  TextRun run("Mod-A {iso mod(5) 6} DEFINITIONS AUTOMATIC TAGS\n"
              "EXTENSIBILITY IMPLIED ::= BEGIN END");
  EXPECT_TRUE(run.errors.errors.empty());
  const AstModule &module = run.module();
  EXPECT_EQ(module.name, "Mod-A");
  EXPECT_EQ(astText(module.identifier), "{arcs iso mod(5) 6}");
  EXPECT_EQ(module.tagDefault, TAGS_AUTOMATIC);
  EXPECT_TRUE(module.extensibilityImplied);
  EXPECT_EQ(module.exportKind, EXPORTS_ABSENT);
  EXPECT_TRUE(module.imports.empty());
  EXPECT_TRUE(module.assigns.empty());
  EXPECT_EQ(module.pos.line, 1);
  EXPECT_EQ(module.endPos.line, 2);
  EXPECT_EQ(module.endPos.column, 33);
}

TEST(AsnParser, ShortestModuleHeader)
{
  TextRun run("M DEFINITIONS ::= BEGIN END");
  EXPECT_TRUE(run.errors.errors.empty());
  EXPECT_FALSE(run.module().identifier);
  EXPECT_EQ(run.module().tagDefault, TAGS_NONE);
  EXPECT_FALSE(run.module().extensibilityImplied);
}

TEST(AsnParser, TagDefaults)
{
  EXPECT_EQ(
      TextRun("M DEFINITIONS EXPLICIT TAGS ::= BEGIN END").module().tagDefault,
      TAGS_EXPLICIT);
  EXPECT_EQ(
      TextRun("M DEFINITIONS IMPLICIT TAGS ::= BEGIN END").module().tagDefault,
      TAGS_IMPLICIT);
}

TEST(AsnParser, IriIsPassedOver)
{
  TextRun run("M {iso 5} \"/iso\" DEFINITIONS ::= BEGIN END");
  EXPECT_TRUE(run.errors.errors.empty());
  EXPECT_EQ(run.module().name, "M");
}

TEST(AsnParser, SeveralModules)
{
  Ast ast;
  AsnErrors errors;
  parseAsnText(ast, errors, "f",
               "A DEFINITIONS ::= BEGIN X ::= NULL END\n"
               "B DEFINITIONS ::= BEGIN END");
  parseAsnText(ast, errors, "g", "C DEFINITIONS ::= BEGIN X ::= 5 END");
  ASSERT_EQ(ast.modules.size(), 3u);
  EXPECT_EQ(ast.modules[1]->name, "B");
  EXPECT_EQ(ast.modules[2]->pos.file, 1);
  ASSERT_EQ(errors.errors.size(), 1u);
  EXPECT_EQ(errors.errors[0].pos.file, 1);
  EXPECT_EQ(errors.files, (std::vector<std::string>{"f", "g"}));
}

// EXPORTS and IMPORTS.

TEST(AsnParser, Exports)
{
  AstRun all("EXPORTS ALL;");
  EXPECT_EQ(all.ast.modules[0]->exportKind, EXPORTS_ALL);

  AstRun list("EXPORTS A, b, C {};");
  EXPECT_TRUE(list.errors.errors.empty());
  const AstModule &module = *list.ast.modules[0];
  EXPECT_EQ(module.exportKind, EXPORTS_LIST);
  ASSERT_EQ(module.exports.size(), 3u);
  EXPECT_EQ(module.exports[1].name, "b");
  EXPECT_FALSE(module.exports[1].hasBraces);
  EXPECT_TRUE(module.exports[2].hasBraces);
  EXPECT_EQ(module.exports[2].pos.column, 15);

  AstRun nothing("EXPORTS ;");
  EXPECT_TRUE(nothing.errors.errors.empty());
  EXPECT_EQ(nothing.ast.modules[0]->exportKind, EXPORTS_LIST);
}

TEST(AsnParser, Imports)
{
  AstRun run("IMPORTS A, b FROM M1 C{}, TYPE-IDENTIFIER FROM M2 {iso 5}\n"
             "d FROM M3 oid e FROM M4 f{} FROM M5 g, H FROM M6;");
  EXPECT_EQ(run.errorText(), "");
  const std::vector<AstImport> &imports = run.ast.modules[0]->imports;
  ASSERT_EQ(imports.size(), 6u);
  EXPECT_EQ(imports[0].module, "M1");
  ASSERT_EQ(imports[0].symbols.size(), 2u);
  EXPECT_EQ(imports[0].symbols[1].name, "b");
  EXPECT_FALSE(imports[0].identifier);
  EXPECT_TRUE(imports[1].symbols.at(0).hasBraces);
  EXPECT_EQ(imports[1].symbols.at(1).name, "TYPE-IDENTIFIER");
  EXPECT_EQ(astText(imports[1].identifier), "{items iso=5 | arcs iso 5}");
  EXPECT_EQ(astText(imports[2].identifier), "oid");
  EXPECT_FALSE(imports[3].identifier);
  EXPECT_EQ(imports[4].symbols.at(0).name, "f");
  EXPECT_EQ(imports[5].symbols.at(0).name, "g");
  EXPECT_EQ(imports[5].pos.line, 3);
}

TEST(AsnParser, NoImports)
{
  AstRun run("IMPORTS ;\nA ::= NULL");
  EXPECT_EQ(run.errorText(), "");
  EXPECT_TRUE(run.ast.modules[0]->imports.empty());
  EXPECT_EQ(run.ast.modules[0]->assigns.size(), 1u);
}

// Assignments.

TEST(AsnParser, Assignments)
{
  static const char *const rows[][2] = {
      {"A ::= INTEGER", "A ::= type INTEGER"},
      {"a INTEGER ::= 5", "a INTEGER ::= value 5"},
      {"a Mod.B {5} (1) ::= 5", "a Mod.B{value 5} (1) ::= value 5"},
      {"A INTEGER ::= {5}", "A INTEGER ::= set (5)"},
      {"A CLS.&id ::= {5}", "A CLS.&id ::= set (5)"},
      {"A ::= CLASS {&T}", "A ::= CLASS{&T}"},
      {"A {B} ::= B", "A{B} ::= type B"},
      {"A {B, c, INTEGER: d, CLS: E, B: F} ::= C",
       "A{B, c, INTEGER: d, CLS: E, B: F} ::= type C"},
      {"A {OCTET STRING: b} ::= C", "A{OCTET STRING: b} ::= type C"},
      {"a {INTEGER: b} INTEGER ::= b", "a{INTEGER: b} INTEGER ::= value b"},
      {"A {CLS: B} CLS ::= {B}", "A{CLS: B} CLS ::= set (type B)"},
      {"A {B} ::= CLASS {&T B}", "A{B} ::= CLASS{&T B}"},
  };
  for (auto &row : rows)
    EXPECT_EQ(assignText(row[0]), row[1]);
}

TEST(AsnParser, AssignmentsInOrder)
{
  AstRun run("b B ::= 5 A ::= B C ::= D d INTEGER ::= e\nE F ::= {G}");
  EXPECT_EQ(run.errorText(), "");
  std::vector<std::string> names;
  for (const AstAssign *assign : run.ast.modules[0]->assigns)
    names.push_back(assign->name);
  EXPECT_THAT(names, testing::ElementsAre("b", "A", "C", "d", "E"));
  EXPECT_EQ(run.assign(4).pos.line, 3);
  EXPECT_EQ(run.assign(3).pos.column, 27);
}

// Annotations.

TEST(AsnNotes, OfDefinitionsAndModule)
{
  AstRun run("--$ m1 x=1\nA ::= INTEGER --$ a1\n--$ a2=\"p q\"\n"
             "b A ::= 5 -- no note\nC ::= BOOLEAN");
  EXPECT_EQ(run.errorText(), "");
  EXPECT_EQ(astText(run.ast.modules[0]->notes), "m1 x=1");
  EXPECT_EQ(astText(run.assign(0).notes), "a1 a2=p q");
  EXPECT_EQ(astText(run.assign(1).notes), "");
  EXPECT_EQ(astText(run.assign(2).notes), "");
  EXPECT_EQ(run.assign(0).notes.at(1).pos.line, 4);
}

TEST(AsnNotes, OfComponents)
{
  AstRun run("A ::= SEQUENCE { --$ a1\n"
             "  b B, --$ b1\n"
             "  --$ b2\n"
             "  c C OPTIONAL --$ c1\n"
             "  , --$ c2\n"
             "  ..., --$ m1\n"
             "  [[ --$ g1\n"
             "    d D --$ d1\n"
             "  ]], --$ g2\n"
             "  e SEQUENCE { f F --$ f1\n"
             "  } --$ e1\n"
             "} --$ a2\n");
  EXPECT_EQ(run.errorText(), "");
  const std::vector<AstComp *> &comps = run.assign(0).type->comps;
  ASSERT_EQ(comps.size(), 5u);
  EXPECT_EQ(astText(run.assign(0).notes), "a1 a2");
  EXPECT_EQ(astText(comps[0]->notes), "b1 b2");
  EXPECT_EQ(astText(comps[1]->notes), "c1 c2");
  EXPECT_EQ(astText(comps[2]->notes), "m1");
  EXPECT_EQ(astText(comps[3]->notes), "g1 g2");
  EXPECT_EQ(astText(comps[3]->members.at(0)->notes), "d1");
  EXPECT_EQ(astText(comps[4]->notes), "e1");
  EXPECT_EQ(astText(comps[4]->type->comps.at(0)->notes), "f1");
}

TEST(AsnNotes, OfNamedItemsAndFields)
{
  AstRun run("A ::= ENUMERATED { a, --$ a1\n ..., --$ m\n b --$ b1\n} --$ A1\n"
             "B ::= INTEGER { c(1) --$ c1\n } (1) --$ B1\n"
             "C ::= CLASS { &a A, --$ fa\n &B --$ fb\n} WITH SYNTAX {&a &B}"
             " --$ C1\n");
  EXPECT_EQ(run.errorText(), "");
  const AstType &enumerated = *run.assign(0).type;
  EXPECT_EQ(astText(enumerated.named.at(0)->notes), "a1");
  EXPECT_EQ(astText(enumerated.named.at(1)->notes), "m");
  EXPECT_EQ(astText(enumerated.named.at(2)->notes), "b1");
  EXPECT_EQ(astText(run.assign(0).notes), "A1");
  EXPECT_EQ(astText(run.assign(1).type->named.at(0)->notes), "c1");
  EXPECT_EQ(astText(run.assign(1).notes), "B1");
  EXPECT_EQ(astText(run.assign(2).objectClass->fields.at(0)->notes), "fa");
  EXPECT_EQ(astText(run.assign(2).objectClass->fields.at(1)->notes), "fb");
  EXPECT_EQ(astText(run.assign(2).notes), "C1");
}

TEST(AsnNotes, OfElements)
{
  AstRun run("A ::= SEQUENCE --$ a1 -- (SIZE (5)) --$ a2 -- OF --$ e1\n"
             " SET OF --$ f1\n INTEGER (1..5) --$ a3\n"
             "B ::= SEQUENCE { c SEQUENCE OF C --$ c1\n }\n");
  EXPECT_EQ(run.errorText(), "");
  const AstType &list = *run.assign(0).type;
  EXPECT_EQ(astText(run.assign(0).notes), "a1 a2 a3");
  EXPECT_EQ(astText(list.notes), "");
  EXPECT_EQ(astText(list.element->notes), "e1");
  EXPECT_EQ(astText(list.element->element->notes), "f1");
  const AstComp &comp = *run.assign(1).type->comps.at(0);
  EXPECT_EQ(astText(comp.notes), "c1");
  EXPECT_EQ(astText(comp.type->element->notes), "");
}

TEST(AsnNotes, BetweenModules)
{
  TextRun run("A --$ a1\n DEFINITIONS ::= BEGIN\nX ::= NULL --$ x\nEND --$ a2\n"
              "B DEFINITIONS ::= BEGIN --$ b1\nEND");
  EXPECT_TRUE(run.errors.errors.empty());
  EXPECT_EQ(astText(run.module(0).notes), "a1 a2");
  EXPECT_EQ(astText(run.module(0).assigns.at(0)->notes), "x");
  EXPECT_EQ(astText(run.module(1).notes), "b1");
}

TEST(AsnNotes, AheadOfModule)
{
  EXPECT_EQ(errorsOf("-- c\n --$ word\nM DEFINITIONS ::= BEGIN END"),
            "f:2:6: error: annotation \"word\" ahead of the module\n");
}

// Faults in modules.

struct FaultRow {
  const char *text;
  const char *errors;
};

TEST(AsnParser, ModuleFaults)
{
  static const FaultRow rows[] = {
      {"", "f:1:1: error: expected a module, found the end of the file\n"},
      {"-- x\n",
       "f:2:1: error: expected a module, found the end of the file\n"},
      {"m DEFINITIONS ::= BEGIN END",
       "f:1:1: error: expected the name of a module, found \"m\"\n"},
      {"M BEGIN END",
       "f:1:3: error: expected \"DEFINITIONS\", found \"BEGIN\"\n"},
      {"M DEFINITIONS AUTOMATIC ::= BEGIN END",
       "f:1:25: error: expected \"TAGS\", found \"::=\"\n"},
      {"M DEFINITIONS EXTENSIBILITY ::= BEGIN END",
       "f:1:29: error: expected \"IMPLIED\", found \"::=\"\n"},
      {"M DEFINITIONS BEGIN END",
       "f:1:15: error: expected \"::=\", found \"BEGIN\"\n"},
      {"M DEFINITIONS ::= A ::= NULL",
       "f:1:19: error: expected \"BEGIN\", found \"A\"\n"},
      {"M DEFINITIONS ::= BEGIN A ::= NULL",
       "f:1:35: error: expected \"END\", found the end of the file\n"},
      {"M DEFINITIONS ::= BEGIN END x",
       "f:1:29: error: expected the name of a module, found \"x\"\n"},
  };
  for (const FaultRow &row : rows)
    EXPECT_EQ(errorsOf(row.text), row.errors) << row.text;
}

TEST(AsnParser, SymbolFaults)
{
  static const FaultRow rows[] = {
      {"EXPORTS 5;", "f:2:9: error: expected a symbol, found \"5\"\n"},
      {"EXPORTS A B;", "f:2:11: error: expected \";\", found \"B\"\n"},
      {"EXPORTS A {B};", "f:2:12: error: expected \"}\", found \"B\"\n"},
      {"IMPORTS A;", "f:2:10: error: expected \"FROM\", found \";\"\n"},
      {"IMPORTS A FROM b;",
       "f:2:16: error: expected the name of a module, found \"b\"\n"},
      {"IMPORTS A FROM INTEGER;",
       "f:2:16: error: expected the name of a module, found \"INTEGER\"\n"},
      {"IMPORTS A, SEQUENCE FROM B;",
       "f:2:12: error: expected a symbol, found \"SEQUENCE\"\n"},
      {"IMPORTS A FROM B", "f:3:1: error: expected a symbol, found \"END\"\n"},
  };
  for (const FaultRow &row : rows)
    EXPECT_EQ(AstRun(row.text).errorText(), row.errors) << row.text;
}

// What stands behind broken lists of symbols is read.
TEST(AsnParser, GoesOnBehindSymbols)
{
  AstRun run("EXPORTS A B IMPORTS C FROM D;\nE ::= 5\nF ::= NULL");
  EXPECT_EQ(run.errorText(), "f:2:11: error: expected \";\", found \"B\"\n"
                             "f:3:7: error: expected a type, found \"5\"\n");
  EXPECT_EQ(run.ast.modules[0]->imports.size(), 1u);
  ASSERT_EQ(run.ast.modules[0]->assigns.size(), 1u);
  EXPECT_EQ(run.assign(0).name, "F");

  AstRun noSemicolon("IMPORTS C FROM D\nE ::= NULL\nF ::= NULL");
  EXPECT_EQ(noSemicolon.errorText(),
            "f:3:3: error: expected \"FROM\", found \"::=\"\n");
  EXPECT_EQ(noSemicolon.ast.modules[0]->assigns.back()->name, "F");
}

// Faults in assignments.

TEST(AsnParser, AssignmentFaults)
{
  static const FaultRow rows[] = {
      {"5 ::= A",
       "f:2:1: error: expected an assignment or \"END\", found \"5\"\n"},
      {"SEQUENCE ::= A", "f:2:1: error: expected an assignment or \"END\", "
                         "found \"SEQUENCE\"\n"},
      {"A", "f:3:1: error: expected a type, found \"END\"\n"},
      {"A B", "f:3:1: error: expected \"::=\", found \"END\"\n"},
      {"a ::= 5", "f:2:3: error: expected a type, found \"::=\"\n"},
      {"A ::=", "f:3:1: error: expected a type, found \"END\"\n"},
      {"A {} ::= B", "f:2:4: error: expected a type, found \"}\"\n"},
      {"A {B C} ::= B", "f:2:6: error: expected \":\", found \"C\"\n"},
      {"A {B: 5} ::= B", "f:2:7: error: expected a parameter, found \"5\"\n"},
      {"A {B ::= B", "f:2:6: error: expected \":\", found \"::=\"\n"},
  };
  for (const FaultRow &row : rows)
    EXPECT_EQ(AstRun(row.text).errorText(), row.errors) << row.text;
}

// The names of the assignments that were read, behind the errors.
static std::string outcome(const std::string &body)
{
  AstRun run(body);
  std::string text = run.errorText();
  for (const AstAssign *assign : run.ast.modules.at(0)->assigns)
    text += assign->name + " ";
  return text;
}

TEST(AsnRecovery, SeveralErrors)
{
  EXPECT_EQ(outcome("A ::= SEQUENCE { a }\n"
                    "B ::= BOOLEAN\n"
                    "c INTEGER ::= }\n"
                    "d OCTET STRING ::= 'FF'H\n"
                    "E ::= ENUMERATED { x y }\n"
                    "F INTEGER ::= {5}\n"
                    "G {H} ::= CHOICE { a H }\n"),
            "f:2:20: error: expected a type, found \"}\"\n"
            "f:4:15: error: expected a value, found \"}\"\n"
            "f:6:22: error: expected \"}\", found \"y\"\n"
            "B d F G ");
}

TEST(AsnRecovery, EachKindOfAssignmentIsFound)
{
  static const char *const rows[][2] = {
      {"B ::= NULL", "B"},
      {"b INTEGER ::= 5", "b"},
      {"b OCTET STRING ::= 'FF'H", "b"},
      {"b Mod.C ::= 5", "b"},
      {"b C {5} ::= 5", "b"},
      {"B C ::= {5}", "B"},
      {"B BIT STRING ::= {5}", "B"},
      {"B {C} ::= C", "B"},
      {"B {INTEGER: c, D: E} ::= C", "B"},
  };
  for (auto &row : rows)
    EXPECT_EQ(outcome(std::string("A ::= (5)\n") + row[0]),
              std::string("f:2:7: error: expected a type, found \"(\"\n") +
                  row[1] + " ");
}

TEST(AsnRecovery, OnOneLine)
{
  EXPECT_EQ(outcome("A ::= (5) b INTEGER ::= 5 C ::= NULL"),
            "f:2:7: error: expected a type, found \"(\"\nb C ");
}

TEST(AsnRecovery, MissingRightSide)
{
  EXPECT_EQ(outcome("A ::=\nB ::= NULL\nC ::= NULL"),
            "f:3:1: error: expected a type, found \"B\"\nB C ");
}

TEST(AsnRecovery, UnclosedBraces)
{
  EXPECT_EQ(outcome("A ::= SEQUENCE { a B\nC ::= NULL\nd INTEGER ::= { a\n"
                    "E ::= NULL"),
            "f:3:1: error: expected \"}\", found \"C\"\n"
            "f:4:15: error: \"{\" is not closed\nC E ");
}

TEST(AsnRecovery, LexicalErrorsToo)
{
  EXPECT_EQ(outcome("A ::= NULL $\nb_c INTEGER ::= 5\nD ::= NULL"),
            "f:2:12: error: unexpected character \"$\"\n"
            "f:3:2: error: \"_\" in a name\nA b_c D ");
}

TEST(AsnRecovery, NextModule)
{
  TextRun run("A DEFINITIONS ::= BEGIN X ::= ( END\n"
              "B DEFINITIONS ::= BEGIN Y ::= NULL END");
  EXPECT_EQ(run.errors.errors.size(), 1u);
  ASSERT_EQ(run.ast.modules.size(), 2u);
  EXPECT_EQ(run.module(1).assigns.size(), 1u);
}

TEST(AsnRecovery, Macros)
{
  EXPECT_EQ(outcome("OP MACRO ::= BEGIN TYPE NOTATION ::= \"X\" END\n"
                    "A ::= NULL"),
            "f:2:1: error: macro \"OP\" is not supported\nA ");
}

// The errors of a run are told in the order of the text.
TEST(AsnRecovery, ManyErrors)
{
  std::string body;
  for (int i = 0; i < 50; i++)
    body += "A ::= 5\n";
  AstRun run(body);
  ASSERT_EQ(run.errors.errors.size(), 50u);
  EXPECT_EQ(run.errors.errors[49].pos.line, 51);
}

// Depth.

static std::string repeated(const std::string &text, int count)
{
  std::string all;
  while (count-- > 0)
    all += text;
  return all;
}

TEST(AsnDepth, Bounded)
{
  // Each of these would nest once a repetition and more.
  static const char *const rows[][3] = {
      {"A ::= ", "SEQUENCE OF ", ""},
      {"A ::= ", "SEQUENCE { a ", "}"},
      {"A ::= ", "CHOICE { a ", "}"},
      {"A ::= ", "a < ", ""},
      {"A ::= ", "B {", "}"},
      {"A ::= ", "B {{", "}}"},
      {"A ::= B ", "(", ")"},
      {"A ::= B ", "(SIZE ", ")"},
      {"A ::= B ", "(WITH COMPONENT ", ")"},
      {"a A ::= ", "{", "}"},
      {"a A ::= ", "{b ", "}"},
      {"a A ::= ", "b: ", ""},
      {"a A ::= ", "CONTAINING ", ""},
      {"a A ::= ", "INTEGER: ", ""},
      {"A ::= CLASS {&a A} WITH SYNTAX {", "[", "]"},
  };
  for (auto &row : rows) {
    AstRun run(row[0] + repeated(row[1], 10000) + repeated(row[2], 10000) +
               "\nC ::= NULL");
    EXPECT_THAT(
        run.errorText(),
        testing::AllOf(testing::StartsWith("f:2:"),
                       testing::HasSubstr(": error: nested too deeply at \"")))
        << row[1];
    EXPECT_EQ(run.errors.errors.size(), 1u) << row[1];
    ASSERT_EQ(run.ast.modules.at(0)->assigns.size(), 1u) << row[1];
    EXPECT_EQ(run.assign(0).name, "C");
  }
}

TEST(AsnDepth, WhatIsAllowed)
{
  // The innermost type is one more level.
  int lists = maxAstDepth - 1;
  EXPECT_EQ(
      AstRun("A ::= " + repeated("SEQUENCE OF ", lists) + "NULL").errorText(),
      "");
  EXPECT_EQ(AstRun("A ::= " + repeated("SEQUENCE OF ", lists + 1) + "NULL")
                .errorText(),
            "f:2:2407: error: nested too deeply at \"NULL\"\n");
}

TEST(AsnDepth, LengthIsNoDepth)
{
  EXPECT_EQ(AstRun("A ::= " + repeated("[1]", 5000) + "INTEGER (1" +
                   repeated(" | 1", 5000) + ") " + repeated("(1)", 5000) +
                   "\na A ::= {1" + repeated(", 1", 5000) + "}")
                .errorText(),
            "");
}

// Files.

TEST(AsnParser, File)
{
  TempDir dir;
  std::string path = dir.path + "m.asn";
  writeFile(path, "M DEFINITIONS ::= BEGIN\nA ::= 5 END");
  AstRun run;
  parseAsnFile(run.ast, run.errors, path);
  EXPECT_EQ(run.errorText(),
            path + ":2:7: error: expected a type, found \"5\"\n");
  EXPECT_EQ(run.ast.modules.size(), 1u);
}

TEST(AsnParser, FileThatCannotBeRead)
{
  TempDir dir;
  AstRun missing;
  parseAsnFile(missing.ast, missing.errors, dir.path + "none.asn");
  EXPECT_EQ(missing.errorText(),
            dir.path + "none.asn: error: the file cannot be read: No such "
                       "file or directory\n");
  EXPECT_TRUE(missing.ast.modules.empty());

  AstRun directory;
  parseAsnFile(directory.ast, directory.errors, dir.path);
  EXPECT_EQ(directory.errorText(),
            dir.path + ": error: the file cannot be read: Is a directory\n");
}
