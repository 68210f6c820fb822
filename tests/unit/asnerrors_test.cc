#include "support/asncompile.h"
#include <gtest/gtest.h>

// Messages of the compiler that no other test brings about: names of the
// wrong kind, and the limits that keep any text from running away.

struct AsnMessageRow {
  const char *name;
  const char *body;   // of module M, whose assignments begin on line 2
  const char *error;  // the only one
};

class AsnMessage : public testing::TestWithParam<AsnMessageRow> {};

TEST_P(AsnMessage, IsTold)
{
  EXPECT_EQ(errorOf(GetParam().body), GetParam().error);
}

static const AsnMessageRow messageRows[] = {
    {"TypeForClass", "A ::= INSTANCE OF B\nB ::= NULL",
     "2:19: \"B\" is not a class"},
    {"ClassForType", "C ::= CLASS { &c INTEGER }\nA ::= SEQUENCE { a C }",
     "3:20: \"C\" is not a type"},
    {"ValueForTypeParameter", "P {T} ::= SEQUENCE { a T }\nA ::= P {3}",
     "2:24: \"T\" is not a type"},
    {"ObjectForValue",
     "C ::= CLASS { &c INTEGER }\no C ::= { &c 3 }\na INTEGER ::= o",
     "4:15: \"o\" is not a value"},
    {"ObjectForTagNumber",
     "C ::= CLASS { &c INTEGER }\no C ::= { &c 3 }\nA ::= [o] NULL",
     "4:8: \"o\" is not a value"},
    {"ValueFieldForObject",
     "C ::= CLASS { &c INTEGER }\no C ::= { &c 3 }\np C ::= o.&c",
     "4:11: field \"&c\" is no object field"},
    {"PathThroughValueField",
     "C ::= CLASS { &c INTEGER }\no C ::= { &c 3 }\na INTEGER ::= o.&c.&c",
     "4:17: field \"&c\" is no object field"},
    {"TypeFieldForValue",
     "C ::= CLASS { &T }\no C ::= { &T NULL }\na INTEGER ::= o.&T",
     "4:17: field \"&T\" is no value"},
    {"ValueForObject", "C ::= CLASS { &o C OPTIONAL }\no C ::= { &o NULL }",
     "3:14: an object is needed here, not \"NULL\""},
    {"SetForType", "C ::= CLASS { &T }\no C ::= { &T {1} }",
     "3:11: the setting does not fit field \"&T\""},
    {"ObjectsOfAComplement",
     "C ::= CLASS { &c INTEGER }\nS C ::= { ALL EXCEPT {&c 3} }\n"
     "A ::= INTEGER (S.&c)",
     "3:11: objects cannot be taken from a set with \"ALL EXCEPT\""},
    {"NegativeArc", "a OBJECT IDENTIFIER ::= {1 2 b}\nb INTEGER ::= -3",
     "2:30: arc -3 is negative"},
    {"Version",
     "A ::= SEQUENCE { a NULL, ..., [[ 99999999999999999999: b NULL ]] }",
     "2:34: version number \"99999999999999999999\" is too large"},
    {"NumberForSettings", "A ::= GeneralizedTime (SETTINGS 5)",
     "2:33: expected a character string, found \"5\""},
    {"SequenceOfNothing", "A ::= SEQUENCE NULL",
     "2:16: expected \"{\" or \"OF\", found \"NULL\""},
    {"NamedString", "A ::= INTEGER { a(\"x\") }",
     "2:19: expected an integer or the name of one, found \"x\""},
    {"WithNothing", "A ::= OCTET STRING (WITH COMP)",
     "2:26: expected \"COMPONENT\" or \"COMPONENTS\", found \"COMP\""},
    {"NoAlternative", "A ::= CHOICE { }",
     "2:16: expected an alternative, found \"}\""},
    {"NoConstraint", "A ::= INTEGER (])",
     "2:16: expected a constraint, found \"]\""},
    {"NumberInSyntax", "C ::= CLASS { &c INTEGER } WITH SYNTAX { 4 }",
     "2:42: expected a word, \"[\", \",\" or a field, found \"4\""},
};

static std::string messageName(const testing::TestParamInfo<AsnMessageRow> &row)
{
  return row.param.name;
}

INSTANTIATE_TEST_SUITE_P(Rows, AsnMessage, testing::ValuesIn(messageRows),
                         messageName);

// Limits

static std::string repeated(const std::string &text, int times)
{
  std::string all;
  for (int i = 0; i < times; ++i)
    all += text;
  return all;
}

TEST(AsnLimit, DigitsOfAString)
{
  std::string head = "a OCTET STRING ::= '";
  EXPECT_TRUE(compileBody(head + repeated("A", 32000) + "'H").good);
  EXPECT_EQ(errorOf(head + repeated("A", 32001) + "'H"),
            "2:20: a string has more than 32000 digits");
}

TEST(AsnLimit, ArcsOfAnIdentifier)
{
  std::string head = "a OBJECT IDENTIFIER ::= { 1 2 ";
  EXPECT_TRUE(compileBody(head + repeated("3 ", 1000) + "}").good);
  EXPECT_EQ(errorOf(head + repeated("3 ", 20000) + "}"),
            "2:25: \"{\" has too many arcs");
}

TEST(AsnSyntax, VersionBracketsHoldAdditions)
{
  EXPECT_TRUE(compileBody("A ::= SEQUENCE { a NULL, ..., [[ b NULL ]] }").good);
  EXPECT_TRUE(compileBody("A ::= CHOICE { a NULL, ..., [[ b NULL ]] }").good);
  EXPECT_EQ(errorOf("A ::= SEQUENCE { a NULL, [[ b NULL ]] }"),
            "2:26: \"[[\" outside the extension additions");
  EXPECT_EQ(errorOf("A ::= CHOICE { [[ b NULL ]], ... }"),
            "2:16: \"[[\" outside the extension additions");
  EXPECT_EQ(errorOf("A ::= SEQUENCE { ..., ..., [[ b NULL ]] }"),
            "2:28: \"[[\" outside the extension additions");
}

TEST(AsnLimit, TypesWithinTypes)
{
  auto nested = [](int depth) {
    return "A ::= " + repeated("SEQUENCE OF ", depth) + "NULL";
  };
  EXPECT_TRUE(compileBody(nested(50)).good);
  std::string error = errorOf(nested(5000));
  EXPECT_NE(error.find("nested too deeply at \"SEQUENCE\""), std::string::npos)
      << error;
}

TEST(AsnLimit, ObjectsWithinObjects)
{
  auto nested = [](int depth) {
    return "C ::= CLASS { &o C OPTIONAL }\no C ::= " +
           repeated("{ &o ", depth) + "{}" + repeated(" }", depth);
  };
  EXPECT_TRUE(compileBody(nested(50)).good);
  // Each level is five characters further on; the hundredth within the
  // definition's is one too many.
  EXPECT_EQ(errorOf(nested(150)),
            "3:509: \"{\": objects are nested too deeply");
}

// A chain of structures, each of which has all components of the next.
static std::string compsOfChain(int length)
{
  std::string body;
  for (int i = 0; i < length; ++i)
    body += "A" + std::to_string(i) + " ::= SEQUENCE { COMPONENTS OF A" +
            std::to_string(i + 1) + " }\n";
  return body + "A" + std::to_string(length) + " ::= SEQUENCE { a NULL }";
}

TEST(AsnLimit, ComponentsOfWithinComponentsOf)
{
  EXPECT_TRUE(compileBody(compsOfChain(400)).good);
  EXPECT_EQ(errorOf(compsOfChain(600)),
            "502:1: \"A500\": COMPONENTS OF is nested too deeply");
}

TEST(AsnLimit, ComponentsOfAStructure)
{
  // Ten times as many in each.
  std::string body = "A ::= SEQUENCE { a NULL }\n";
  for (char name = 'B'; name <= 'F'; ++name) {
    std::string before(1, static_cast<char>(name - 1));
    body += std::string(1, name) + " ::= SEQUENCE { COMPONENTS OF " + before +
            repeated(", COMPONENTS OF " + before, 9) + " }\n";
  }
  EXPECT_EQ(errorOf(body), "7:1: \"F\" has more than 99999 components");
  body.erase(body.rfind("F ::="));
  EXPECT_TRUE(compileBody(body).good);
}
