#include "asn2stx/genvalue.h"
#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

static const VNode &valueOf(const StxTree &tree, int32_t index)
{
  return tree.vNodes.at(static_cast<size_t>(index) - 1);
}

static const VNode &defOf(const StxTree &tree, const std::string &name)
{
  return valueOf(tree, valueNamed(tree, name));
}

// The payload of a string value: its text, after its kind.
static std::string textOf(const StxTree &tree, const VNode &node)
{
  return std::to_string(node.mainType) + ":" +
         std::to_string(payloadLength(node)) + ":" +
         striAt(tree, payloadStri(node));
}

TEST(AsnGenValue, DefinedValue)
{
  AsnCompiled compiled = compileBody("\nmy-v INTEGER ::= -5");
  const StxTree &tree = treeOf(compiled);
  const VNode &v = defOf(tree, "my_v");
  EXPECT_EQ(v.mainType, TYP_INTEGER);
  EXPECT_EQ(v.valueStatus, 2);
  EXPECT_EQ(v.line, 3);
  EXPECT_EQ(v.governorModule, 1);
  ASSERT_NE(v.governor, 0);
  const TNode &governor = tree.tNodes[static_cast<size_t>(v.governor) - 1];
  EXPECT_EQ(governor.mainType, TYP_INTEGER);
  // It is a node of its own, on no chain.
  EXPECT_NE(governor.hidden, 0);
  EXPECT_EQ(integerAt(tree, valueNamed(tree, "my_v")), -5);
  EXPECT_EQ(tree.header.nrVisibleTypes, 0);
}

TEST(AsnGenValue, GovernedByADefinition)
{
  AsnCompiled compiled = compileBody("A ::= INTEGER (0..9)\nv A ::= 5");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "v").governor, typeNamed(tree, "A"));
}

TEST(AsnGenValue, LargestNumbers)
{
  AsnCompiled compiled = compileBody("a INTEGER ::= 9223372036854775807\n"
                                     "b INTEGER ::= -9223372036854775808");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(integerAt(tree, valueNamed(tree, "a")), INT64_MAX);
  EXPECT_EQ(integerAt(tree, valueNamed(tree, "b")), INT64_MIN);
}

TEST(AsnGenValue, BooleanAndNull)
{
  AsnCompiled compiled =
      compileBody("t BOOLEAN ::= TRUE\nf BOOLEAN ::= FALSE\nn NULL ::= NULL");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "t").mainType, TYP_BOOLEAN);
  EXPECT_TRUE(payloadBool(defOf(tree, "t")));
  EXPECT_FALSE(payloadBool(defOf(tree, "f")));
  EXPECT_EQ(defOf(tree, "n").mainType, TYP_NULL);
}

struct RealCase {
  const char *text;
  int64_t mantissa;
  int base;
  int exponent;
};

TEST(AsnGenValue, Reals)
{
  static const RealCase cases[] = {
      {"12", 12, 10, 0},
      {"-1.25", -125, 10, -2},
      {"1.50", 15, 10, -1},
      {"100", 1, 10, 2},
      {"2.5E3", 25, 10, 2},
      {"1e-3", 1, 10, -3},
      {"{ mantissa 3, base 2, exponent -4 }", 3, 2, -4},
      // Base -1: a special value, told by the mantissa.
      {"0", 0, -1, 0},
      {"{ mantissa 0, base 10, exponent 5 }", 0, -1, 0},
      {"PLUS-INFINITY", -2, -1, 0},
      {"MINUS-INFINITY", -1, -1, 0},
  };
  for (const RealCase &row : cases) {
    AsnCompiled compiled = compileBody("r REAL ::= " + std::string(row.text));
    const StxTree &tree = treeOf(compiled);
    const VNode &r = defOf(tree, "r");
    EXPECT_EQ(r.mainType, TYP_REAL) << row.text;
    EXPECT_EQ(integerAt(tree, 1), row.mantissa) << row.text;
    EXPECT_EQ(payloadRealBase(r), row.base) << row.text;
    EXPECT_EQ(payloadRealExponent(r), row.exponent) << row.text;
  }
}

TEST(AsnGenValue, References)
{
  AsnCompiled compiled =
      compileBody("E ::= ENUMERATED { one, two }\ne E ::= two\nf E ::= e\n"
                  "I ::= INTEGER { few(3) }\ni I ::= few\nj I ::= i");
  const StxTree &tree = treeOf(compiled);
  // An item is referred to, not copied.
  EXPECT_EQ(defOf(tree, "e").mainType, TYP_SYNONYM);
  EXPECT_EQ(defOf(tree, "e").firstChild,
            itemNamed(tree, typeNamed(tree, "E"), "two"));
  EXPECT_EQ(defOf(tree, "e").refModule, 1);
  EXPECT_EQ(defOf(tree, "f").firstChild, valueNamed(tree, "e"));
  EXPECT_EQ(defOf(tree, "i").firstChild,
            itemNamed(tree, typeNamed(tree, "I"), "few"));
  EXPECT_EQ(defOf(tree, "j").firstChild, valueNamed(tree, "i"));
}

TEST(AsnGenValue, ItemAheadOfAValueOfItsName)
{
  AsnCompiled compiled = compileBody("I ::= INTEGER { few(3) }\nfew I ::= 4\n"
                                     "i I ::= few\nk INTEGER ::= few");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "i").firstChild,
            itemNamed(tree, typeNamed(tree, "I"), "few"));
  EXPECT_EQ(defOf(tree, "k").firstChild, valueNamed(tree, "few"));
}

TEST(AsnGenValue, BinaryAndHexadecimal)
{
  AsnCompiled compiled =
      compileBody("a BIT STRING ::= '0110'B\nb OCTET STRING ::= 'AB3'H\n"
                  "c BIT STRING ::= {}\nd OCTET STRING ::= ''H");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(textOf(tree, defOf(tree, "a")), "4:4:0110");
  EXPECT_EQ(textOf(tree, defOf(tree, "b")), "5:3:AB3");
  EXPECT_EQ(textOf(tree, defOf(tree, "c")), "4:0:");
  EXPECT_EQ(textOf(tree, defOf(tree, "d")), "5:0:");
}

TEST(AsnGenValue, NamedBits)
{
  AsnCompiled compiled =
      compileBody("B ::= BIT STRING { x(0), y(4) }\nb B ::= { y, x }");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "b").mainType, TYP_BITSTR);
  std::vector<int32_t> bits = childrenOf(tree, valueNamed(tree, "b"));
  ASSERT_EQ(bits.size(), 2u);
  EXPECT_EQ(valueOf(tree, bits[0]).mainType, TYP_SYNONYM);
  EXPECT_EQ(valueOf(tree, bits[0]).firstChild,
            itemNamed(tree, typeNamed(tree, "B"), "y"));
  EXPECT_EQ(valueOf(tree, bits[1]).firstChild,
            itemNamed(tree, typeNamed(tree, "B"), "x"));
}

TEST(AsnGenValue, Structure)
{
  AsnCompiled compiled = compileBody(
      "S ::= SEQUENCE { a INTEGER, b C OPTIONAL }\n"
      "C ::= CHOICE { c BOOLEAN }\ns S ::= { a 1, b c:TRUE }\nt S ::= { }");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "s").mainType, TYP_SEQ);
  std::vector<int32_t> comps = childrenOf(tree, valueNamed(tree, "s"));
  ASSERT_EQ(comps.size(), 2u);
  const VNode &a = valueOf(tree, comps[0]);
  EXPECT_EQ(striAt(tree, a.identifier), "a");
  EXPECT_EQ(a.valueStatus, 0);
  EXPECT_EQ(a.governor, compNamed(tree, typeNamed(tree, "S"), "a"));
  EXPECT_EQ(valueOf(tree, comps[1]).mainType, TYP_CHOICE);
  std::vector<int32_t> chosen = childrenOf(tree, comps[1]);
  ASSERT_EQ(chosen.size(), 1u);
  EXPECT_EQ(striAt(tree, valueOf(tree, chosen[0]).identifier), "c");
  EXPECT_TRUE(payloadBool(valueOf(tree, chosen[0])));
  EXPECT_TRUE(childrenOf(tree, valueNamed(tree, "t")).empty());
}

TEST(AsnGenValue, ComponentsOfAndGroups)
{
  AsnCompiled compiled =
      compileBody("S ::= SEQUENCE { COMPONENTS OF R, ..., [[ g NULL ]] }\n"
                  "R ::= SEQUENCE { r INTEGER }\ns S ::= { r 4, g NULL }");
  const StxTree &tree = treeOf(compiled);
  std::vector<int32_t> comps = childrenOf(tree, valueNamed(tree, "s"));
  ASSERT_EQ(comps.size(), 2u);
  EXPECT_EQ(valueOf(tree, comps[0]).governor,
            compNamed(tree, typeNamed(tree, "R"), "r"));
}

TEST(AsnGenValue, List)
{
  AsnCompiled compiled =
      compileBody("L ::= SEQUENCE OF INTEGER\nl L ::= { 3, 4 }\ne L ::= { }");
  const StxTree &tree = treeOf(compiled);
  std::vector<int32_t> elements = childrenOf(tree, valueNamed(tree, "l"));
  ASSERT_EQ(elements.size(), 2u);
  EXPECT_EQ(defOf(tree, "l").mainType, TYP_SEQOF);
  EXPECT_EQ(integerAt(tree, elements[1]), 4);
  EXPECT_TRUE(childrenOf(tree, valueNamed(tree, "e")).empty());
}

TEST(AsnGenValue, OpenValueIsOfTheTypeNamed)
{
  AsnCompiled compiled = compileBody("a ANY ::= BOOLEAN:TRUE");
  const StxTree &tree = treeOf(compiled);
  const VNode &a = defOf(tree, "a");
  EXPECT_EQ(a.mainType, TYP_BOOLEAN);
  EXPECT_EQ(tree.tNodes[static_cast<size_t>(a.governor) - 1].mainType,
            TYP_BOOLEAN);
}

// Strings

TEST(AsnGenValue, CharacterStrings)
{
  AsnCompiled compiled = compileBody(
      "a IA5String ::= \"say \"\"x\"\"\"\nb VisibleString ::= \"\"\n"
      "c IA5String ::= {1, 13}\nd UTCTime ::= \"9912312359Z\"\n"
      "e ObjectDescriptor ::= \"od\"");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(textOf(tree, defOf(tree, "a")), "20:7:say \"x\"");
  EXPECT_EQ(textOf(tree, defOf(tree, "b")), "19:0:");
  // Column 1, row 13 of the code table.
  EXPECT_EQ(textOf(tree, defOf(tree, "c")), "20:1:\x1D");
  EXPECT_EQ(textOf(tree, defOf(tree, "d")), "27:11:9912312359Z");
  EXPECT_EQ(textOf(tree, defOf(tree, "e")), "30:2:od");
}

TEST(AsnGenValue, WideStrings)
{
  // U+00E9 and U+1F600 in UTF-8.
  AsnCompiled compiled =
      compileBody("a BMPString ::= \"x\xC3\xA9\"\n"
                  "b UniversalString ::= \"\xF0\x9F\x98\x80\"\n"
                  "c BMPString ::= {0, 0, 3, 177}");
  const StxTree &tree = treeOf(compiled);
  auto text16 = [&](const char *name) {
    return tree.stris16.texts.at(
        static_cast<size_t>(payloadStri(defOf(tree, name))) - 1);
  };
  EXPECT_EQ(text16("a"), u"x\u00E9");
  EXPECT_EQ(payloadLength(defOf(tree, "a")), 2);
  EXPECT_EQ(text16("c"), u"\u03B1");
  EXPECT_EQ(tree.stris32.texts.at(
                static_cast<size_t>(payloadStri(defOf(tree, "b"))) - 1),
            U"\U0001F600");
}

TEST(AsnGenValue, Concatenation)
{
  AsnCompiled compiled = compileBody("a IA5String ::= { \"ab\", cr, {0, 10} }\n"
                                     "cr IA5String ::= {0, 13}");
  const StxTree &tree = treeOf(compiled);
  std::vector<int32_t> segments = childrenOf(tree, valueNamed(tree, "a"));
  ASSERT_EQ(segments.size(), 3u);
  EXPECT_EQ(textOf(tree, valueOf(tree, segments[0])), "20:2:ab");
  EXPECT_EQ(valueOf(tree, segments[1]).mainType, TYP_SYNONYM);
  EXPECT_EQ(valueOf(tree, segments[1]).firstChild, valueNamed(tree, "cr"));
  EXPECT_EQ(textOf(tree, valueOf(tree, segments[2])), "20:1:\n");
}

// A record of the file has room for 32000 characters.
TEST(AsnGenValue, LongStringIsSplit)
{
  AsnCompiled compiled =
      compileBody("a IA5String ::= \"" + std::string(32001, 'x') +
                  "\"\nb IA5String ::= \"" + std::string(32000, 'y') + "\"");
  const StxTree &tree = treeOf(compiled);
  std::vector<int32_t> segments = childrenOf(tree, valueNamed(tree, "a"));
  ASSERT_EQ(segments.size(), 2u);
  EXPECT_EQ(payloadLength(valueOf(tree, segments[0])), 32000);
  EXPECT_EQ(textOf(tree, valueOf(tree, segments[1])), "20:1:x");
  EXPECT_TRUE(childrenOf(tree, valueNamed(tree, "b")).empty());
}

// Object identifiers

// Arcs as "name=number", or "-> name" for a reference.
static std::vector<std::string> arcsOf(const StxTree &tree,
                                       const std::string &name)
{
  std::vector<std::string> arcs;
  for (int32_t child : childrenOf(tree, valueNamed(tree, name))) {
    const VNode &node = valueOf(tree, child);
    if (node.mainType == TYP_SYNONYM)
      arcs.push_back("-> " +
                     striAt(tree, valueOf(tree, node.firstChild).identifier));
    else
      arcs.push_back(striAt(tree, node.identifier) + "=" +
                     std::to_string(integerAt(tree, child)));
  }
  return arcs;
}

TEST(AsnGenValue, ObjectIdentifiers)
{
  AsnCompiled compiled = compileBody(
      "a OBJECT IDENTIFIER ::= { iso member-body 840 x(7) }\n"
      "b OBJECT IDENTIFIER ::= { a 1 n }\nn INTEGER ::= 20\n"
      "c OBJECT IDENTIFIER ::= { itu-t recommendation h 245 }\n"
      "d OBJECT IDENTIFIER ::= { 2 16 }\ne OBJECT IDENTIFIER ::= b");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "a").mainType, TYP_OBJID);
  EXPECT_THAT(arcsOf(tree, "a"),
              ElementsAre("iso=1", "member_body=2", "=840", "x=7"));
  EXPECT_EQ(striAt(tree, payloadStri(defOf(tree, "a"))), "1.2.840.7");
  EXPECT_THAT(arcsOf(tree, "b"), ElementsAre("-> a", "=1", "n=20"));
  EXPECT_EQ(striAt(tree, payloadStri(defOf(tree, "b"))), "1.2.840.7.1.20");
  // The letters of the series number its arcs.
  EXPECT_EQ(striAt(tree, payloadStri(defOf(tree, "c"))), "0.0.8.245");
  EXPECT_EQ(striAt(tree, payloadStri(defOf(tree, "d"))), "2.16");
  EXPECT_EQ(defOf(tree, "e").mainType, TYP_SYNONYM);
}

TEST(AsnGenValue, RelativeIdentifierIsItsOctets)
{
  AsnCompiled compiled = compileBody("r RELATIVE-OID ::= { 5 200 }");
  const StxTree &tree = treeOf(compiled);
  // 200 is 1 * 128 + 72: 81 48.
  EXPECT_EQ(textOf(tree, defOf(tree, "r")), "5:6:058148");
}

// What is wrong

struct ValueErrorCase {
  const char *body;
  const char *error;
};

TEST(AsnGenValue, Errors)
{
  static const ValueErrorCase cases[] = {
      {"a INTEGER ::= TRUE", "2:15: value \"TRUE\" does not fit its type"},
      {"a BOOLEAN ::= 1", "2:15: value \"1\" does not fit its type"},
      {"a NULL ::= 1", "2:12: value \"1\" does not fit its type"},
      {"a REAL ::= NOT-A-NUMBER", "2:12: NOT-A-NUMBER has no place in a tree"},
      {"a REAL ::= 1e99999", "2:12: number \"1e99999\" is out of range"},
      {"a INTEGER ::= 9223372036854775808",
       "2:15: \"9223372036854775808\" does not fit in 64 bits"},
      {"a ENUMERATED { x } ::= y", "2:24: the enumeration has no item \"y\""},
      {"a BIT STRING { x(0) } ::= { y }",
       "2:29: the BIT STRING has no bit \"y\""},
      {"a BIT STRING ::= \"x\"", "2:18: value \"x\" does not fit its type"},
      {"a SEQUENCE { x NULL } ::= { y NULL }",
       "2:29: \"SEQUENCE\" has no component \"y\""},
      {"a SEQUENCE OF NULL ::= 1", "2:24: value \"1\" does not fit its type"},
      {"a CHOICE { x NULL } ::= y:NULL",
       "2:25: \"CHOICE\" has no component \"y\""},
      {"a IA5String ::= 1", "2:17: value \"1\" does not fit its type"},
      {"a IA5String ::= {8, 0}", "2:18: 8 is out of range here"},
      {"a BMPString ::= {0, 1, 0, 0}",
       "2:17: \"{\" has a character beyond the type"},
      {"a OBJECT IDENTIFIER ::= { nowhere 1 }",
       "2:27: \"nowhere\" is not defined"},
      {"a OBJECT IDENTIFIER ::= 5", "2:25: value \"5\" does not fit its type"},
  };
  for (const ValueErrorCase &row : cases)
    EXPECT_EQ(errorOf(row.body), row.error) << row.body;
}

TEST(AsnGenValue, Circles)
{
  AsnCompiled compiled = compileBody(
      "a INTEGER ::= b\nb INTEGER ::= a\nS ::= SEQUENCE { s S OPTIONAL }\n"
      "s S ::= { s s }\ngood S ::= { s { } }");
  EXPECT_THAT(compiled.errors,
              ElementsAre("2:1: circular definition of \"a\"",
                          "3:1: circular definition of \"b\"",
                          "5:1: circular definition of \"s\""));
}
