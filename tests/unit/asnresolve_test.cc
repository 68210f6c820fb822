#include "asn2stx/resolve.h"
#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

struct AsnErrorCase {
  const char *name;
  const char *body;   // of module M, whose assignments begin on line 2
  const char *error;  // the only one
};

class AsnResolveError : public testing::TestWithParam<AsnErrorCase> {};

TEST_P(AsnResolveError, IsTold)
{
  EXPECT_EQ(errorOf(GetParam().body), GetParam().error);
}

static const AsnErrorCase errorCases[] = {
    {"UndefinedType", "A ::= Nowhere", "2:7: \"Nowhere\" is not defined"},
    {"UndefinedComponentType", "A ::= SET { a Nowhere }",
     "2:15: \"Nowhere\" is not defined"},
    {"UndefinedValue", "a INTEGER ::= nowhere",
     "2:15: \"nowhere\" is not defined"},
    {"UndefinedModule", "A ::= Other.B",
     "2:7: module \"Other\" is not among the files"},
    {"UndefinedInModule", "A ::= M.B",
     "2:7: \"B\" is not defined in module \"M\""},
    {"DuplicateDefinition", "A ::= NULL\nA ::= BOOLEAN",
     "3:1: duplicate definition of \"A\""},
    {"SelfReference", "A ::= A", "2:1: circular definition of \"A\""},
    {"SelectionOfItself", "A ::= a < A",
     "2:7: circular definition of \"a < A\""},
    {"AlternativeThatIsTheSelection", "A ::= x < C\nC ::= CHOICE { x A }",
     "2:1: circular definition of \"A\""},
    {"ParameterOfItself", "A ::= P {A}\nP {T} ::= T",
     "2:1: circular definition of \"A\""},
    {"ContainedInItself", "A ::= INTEGER (A)",
     "2:15: circular constraint of \"A\""},
    {"ComponentsOfItself", "A ::= SEQUENCE { COMPONENTS OF A }",
     "2:32: circular COMPONENTS OF \"A\""},
    {"ValueOfItself", "a INTEGER ::= a", "2:1: circular definition of \"a\""},
    {"TypeForValue", "a INTEGER ::= o\no BOOLEAN ::= TRUE",
     "2:15: value \"o\" does not fit its type"},
    {"SelectionFromBoolean", "A ::= BOOLEAN\nB ::= a < A",
     "3:11: selection from \"A\", which is no CHOICE"},
    {"NoAlternative", "A ::= CHOICE { a NULL }\nB ::= b < A",
     "3:7: \"A\" has no alternative \"b\""},
};

static std::string caseName(const testing::TestParamInfo<AsnErrorCase> &info)
{
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Rows, AsnResolveError, testing::ValuesIn(errorCases),
                         caseName);

TEST(AsnResolve, SeveralErrorsInOneRun)
{
  AsnCompiled compiled = compileBody("A ::= B\nB ::= A\nC ::= Nowhere\n"
                                     "a INTEGER ::= TRUE");
  EXPECT_FALSE(compiled.good);
  EXPECT_THAT(compiled.errors,
              ElementsAre("2:1: circular definition of \"A\"",
                          "3:1: circular definition of \"B\"",
                          "4:7: \"Nowhere\" is not defined",
                          "5:15: value \"TRUE\" does not fit its type"));
}

TEST(AsnResolve, RecursionThroughComponentsIsNoCircle)
{
  AsnCompiled compiled = compileBody("A ::= SEQUENCE { a A OPTIONAL }\n"
                                     "B ::= CHOICE { b SEQUENCE OF B }");
  EXPECT_TRUE(compiled.good);
}

TEST(AsnResolve, ForwardReferences)
{
  AsnCompiled compiled = compileBody("a A ::= b\nA ::= B\nb B ::= 5\n"
                                     "B ::= INTEGER");
  const StxTree &tree = treeOf(compiled);
  const TNode &a = tree.tNodes[static_cast<size_t>(typeNamed(tree, "A")) - 1];
  EXPECT_EQ(a.mainType, TYP_SYNONYM);
  EXPECT_EQ(a.ref, typeNamed(tree, "B"));
  EXPECT_EQ(a.refModule, 1);
}

// Modules

static const char twoModules[] =
    "First-Mod DEFINITIONS ::= BEGIN IMPORTS B, v FROM Second-Mod;\n"
    "A ::= B\nC ::= Second-Mod.D\nw B ::= v END\n"
    "Second-Mod DEFINITIONS AUTOMATIC TAGS ::= BEGIN\n"
    "B ::= INTEGER D ::= NULL v B ::= 3 END\n";

TEST(AsnResolve, ImportEntries)
{
  AsnCompiled compiled = compileAsn(twoModules);
  const StxTree &first = treeOf(compiled, 0);
  ASSERT_EQ(first.imports.size(), 1u);
  EXPECT_EQ(striAt(first, first.imports[0].moduleName), "Second_Mod");
  // The prefix by which its tree is found.
  EXPECT_EQ(striAt(first, first.imports[0].filePrefix),
            compiled.trees[1].prefix);
  EXPECT_EQ(first.imports[0].tagDefaultAndUse & 0xF0, 0x10);
}

TEST(AsnResolve, ReferenceToAnotherModule)
{
  AsnCompiled compiled = compileAsn(twoModules);
  const StxTree &first = treeOf(compiled, 0);
  const StxTree &second = treeOf(compiled, 1);
  const TNode &a = first.tNodes[static_cast<size_t>(typeNamed(first, "A")) - 1];
  EXPECT_EQ(a.refModule, 2);
  EXPECT_EQ(a.ref, typeNamed(second, "B"));
  const TNode &c = first.tNodes[static_cast<size_t>(typeNamed(first, "C")) - 1];
  EXPECT_EQ(c.refModule, 2);
  EXPECT_EQ(c.ref, typeNamed(second, "D"));
  const VNode &w =
      first.vNodes[static_cast<size_t>(valueNamed(first, "w")) - 1];
  EXPECT_EQ(w.mainType, TYP_SYNONYM);
  EXPECT_EQ(w.refModule, 2);
  EXPECT_EQ(w.firstChild, valueNamed(second, "v"));
}

TEST(AsnResolve, ImportedThroughAnotherModule)
{
  AsnCompiled compiled =
      compileAsn("A DEFINITIONS ::= BEGIN IMPORTS T FROM B; U ::= T END\n"
                 "B DEFINITIONS ::= BEGIN IMPORTS T FROM C; END\n"
                 "C DEFINITIONS ::= BEGIN T ::= NULL END\n");
  const StxTree &tree = treeOf(compiled);
  // B first, as the text names it; C is added for the reference.
  ASSERT_EQ(tree.imports.size(), 2u);
  EXPECT_EQ(
      tree.tNodes[static_cast<size_t>(typeNamed(tree, "U")) - 1].refModule, 3);
  EXPECT_EQ(tree.imports[1].tagDefaultAndUse & 0xF0, 0);
}

TEST(AsnResolve, UnknownModuleIsToldOnce)
{
  AsnCompiled compiled = compileAsn(
      "A DEFINITIONS ::= BEGIN\nIMPORTS T FROM Nowhere;\nU ::= T\nEND\n");
  EXPECT_THAT(compiled.errors,
              ElementsAre("2:16: module \"Nowhere\" is not among the files"));
}

TEST(AsnResolve, UnknownImport)
{
  AsnCompiled compiled =
      compileAsn("A DEFINITIONS ::= BEGIN\nIMPORTS T FROM B;\nEND\n"
                 "B DEFINITIONS ::= BEGIN END\n");
  EXPECT_THAT(compiled.errors,
              ElementsAre("2:9: \"T\" is not defined in module \"B\""));
}

TEST(AsnResolve, UnknownExport)
{
  AsnCompiled compiled =
      compileAsn("A DEFINITIONS ::= BEGIN\nEXPORTS T;\nEND\n");
  EXPECT_THAT(compiled.errors,
              ElementsAre("2:9: \"T\" is exported but not defined"));
}

TEST(AsnResolve, ImportFromTwoModules)
{
  AsnCompiled compiled =
      compileAsn("A DEFINITIONS ::= BEGIN\nIMPORTS T FROM B T FROM C;\nEND\n"
                 "B DEFINITIONS ::= BEGIN T ::= NULL END\n"
                 "C DEFINITIONS ::= BEGIN T ::= NULL END\n");
  EXPECT_THAT(compiled.errors,
              ElementsAre("2:18: \"T\" is imported from two modules"));
}

TEST(AsnResolve, DuplicateModule)
{
  AsnCompiled compiled = compileAsn("A DEFINITIONS ::= BEGIN END\n"
                                    "A DEFINITIONS ::= BEGIN END\n");
  EXPECT_THAT(compiled.errors, ElementsAre("2:1: duplicate module \"A\""));
}

// Prefixes

TEST(AsnResolve, PrefixOfTheName)
{
  AsnCompiled compiled = compileAsn("Long-Name DEFINITIONS ::= BEGIN END\n"
                                    "Ab DEFINITIONS ::= BEGIN END\n");
  ASSERT_EQ(compiled.trees.size(), 2u);
  EXPECT_EQ(compiled.trees[0].prefix, "long");
  EXPECT_EQ(compiled.trees[1].prefix, "ab");
}

TEST(AsnResolve, PrefixOfTwoModules)
{
  AsnCompiled compiled = compileAsn("Module-A DEFINITIONS ::= BEGIN END\n"
                                    "Module-B DEFINITIONS ::= BEGIN END\n"
                                    "Module-C DEFINITIONS ::= BEGIN END\n");
  ASSERT_EQ(compiled.trees.size(), 3u);
  EXPECT_EQ(compiled.trees[0].prefix, "modul");
  EXPECT_EQ(compiled.trees[1].prefix, "modu2");
  EXPECT_EQ(compiled.trees[2].prefix, "modu3");
}

TEST(AsnResolve, PrefixByOptionGoesFirst)
{
  Asn2StxOptions options;
  options.prefixes = {{"Module-B", "modul"}};
  AsnCompiled compiled = compileAsn("Module-A DEFINITIONS ::= BEGIN END\n"
                                    "Module-B DEFINITIONS ::= BEGIN END\n",
                                    options);
  ASSERT_EQ(compiled.trees.size(), 2u);
  EXPECT_EQ(compiled.trees[0].prefix, "modu2");
  EXPECT_EQ(compiled.trees[1].prefix, "modul");
}

TEST(AsnResolve, PrefixGivenTwice)
{
  Asn2StxOptions options;
  options.prefixes = {{"A", "x"}, {"B", "x"}};
  AsnCompiled compiled = compileAsn("A DEFINITIONS ::= BEGIN END\n"
                                    "B DEFINITIONS ::= BEGIN END\n",
                                    options);
  EXPECT_THAT(compiled.errors, ElementsAre("2:1: prefix \"x\" is given twice"));
}

// Headers

TEST(AsnResolve, HeaderOfTheModule)
{
  Asn2StxOptions options;
  options.date = 20250131;
  options.time = 93000;
  AsnCompiled compiled =
      compileBody("A ::= NULL\nB ::= NULL\nv NULL ::= NULL", options);
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(striAt(tree, tree.header.moduleName), "M");
  EXPECT_EQ(striAt(tree, tree.header.sourceDirectory), "./");
  EXPECT_EQ(striAt(tree, tree.header.sourceFileName), "t.asn");
  EXPECT_EQ(tree.header.date, 20250131);
  EXPECT_EQ(tree.header.time, 93000);
  EXPECT_EQ(tree.header.nrVisibleTypes, 2);
  EXPECT_EQ(tree.header.nrEntryTypes, 0);
  EXPECT_EQ(tree.header.automaticTags, 1);
}

struct TagsCase {
  const char *words;
  int tagDefault;
  int automatic;
};

TEST(AsnResolve, TagDefaults)
{
  static const TagsCase cases[] = {
      {"", 1, 0},
      {"EXPLICIT TAGS", 1, 0},
      {"IMPLICIT TAGS", 0, 0},
      {"AUTOMATIC TAGS", 0, 1},
  };
  for (const TagsCase &row : cases) {
    AsnCompiled compiled = compileBody("A ::= NULL", {}, row.words);
    const MNode &header = treeOf(compiled).header;
    EXPECT_EQ(header.tagDefaultAndUse, row.tagDefault) << row.words;
    EXPECT_EQ(header.automaticTags, row.automatic) << row.words;
  }
}

// Chains

// "T0 ::= T1", "T1 ::= T2" and so on, up to `last`.
static std::string chainOf(int length, const std::string &between,
                           const std::string &last)
{
  std::string body;
  for (int i = 0; i < length; ++i) {
    std::string next = std::to_string(i + 1);
    body += "T" + std::to_string(i) + " ::= " + between + "T" + next + "\n";
  }
  return body + "T" + std::to_string(length) + " ::= " + last;
}

TEST(AsnResolve, LongChainOfTypesIsNoCircle)
{
  AsnCompiled compiled =
      compileBody(chainOf(3000, "", "INTEGER (0..7)") + "\nv T0 ::= 4");
  EXPECT_THAT(compiled.errors, IsEmpty());
  AsnCompiled circle = compileBody(chainOf(3000, "", "T2999"));
  EXPECT_THAT(circle.errors,
              ElementsAre("3001:1: circular definition of \"T2999\"",
                          "3002:1: circular definition of \"T3000\""));
}

TEST(AsnResolve, LongChainOfContainedTypesIsNoCircle)
{
  std::string body;
  for (int i = 0; i < 1500; ++i)
    body += "T" + std::to_string(i) + " ::= INTEGER (T" +
            std::to_string(i + 1) + ")\n";
  AsnCompiled compiled =
      compileBody(body + "T1500 ::= INTEGER (0..18446744073709551615)");
  EXPECT_THAT(compiled.errors, IsEmpty());
  const StxTree &tree = treeOf(compiled);
  size_t first = static_cast<size_t>(typeNamed(tree, "T0")) - 1;
  EXPECT_EQ(tree.tNodes[first].valueField, VF_UI64);
}

TEST(AsnResolve, LongChainOfClassesIsNoCircle)
{
  AsnCompiled compiled =
      compileBody(chainOf(3000, "", "CLASS { &id INTEGER }") +
                  "\no T0 ::= { &id 1 }\nS T1 ::= { o }");
  EXPECT_THAT(compiled.errors, IsEmpty());
}

TEST(AsnResolve, LongChainOfValuesIsNoCircle)
{
  std::string body = "T ::= [v0] NULL\n";
  for (int i = 0; i < 3000; ++i)
    body += "v" + std::to_string(i) + " INTEGER ::= v" + std::to_string(i + 1) +
            "\n";
  EXPECT_THAT(compileBody(body + "v3000 INTEGER ::= 5").errors, IsEmpty());
  // What only leads to a circle is not on it, but no number comes of it.
  EXPECT_THAT(compileBody("a INTEGER ::= b\nb INTEGER ::= c\n"
                          "c INTEGER ::= b")
                  .errors,
              ElementsAre("3:1: circular definition of \"b\"",
                          "4:1: circular definition of \"c\""));
  EXPECT_EQ(errorOf("T ::= [v] NULL\nv INTEGER ::= v\n"), "2 errors");
}

TEST(AsnResolve, DeepReferencesAreBounded)
{
  // Each selection needs the type behind it.
  std::string body;
  for (int i = 0; i < 1000; ++i)
    body +=
        "T" + std::to_string(i) + " ::= a < T" + std::to_string(i + 1) + "\n";
  AsnCompiled compiled = compileBody(body + "T1000 ::= CHOICE { a NULL }");
  ASSERT_FALSE(compiled.errors.empty());
  EXPECT_THAT(compiled.errors[0],
              testing::HasSubstr("references are nested too deeply"));
}
