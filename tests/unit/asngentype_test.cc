#include "asn2stx/gentype.h"
#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

static const TNode &nodeOf(const StxTree &tree, int32_t index)
{
  return tree.tNodes.at(static_cast<size_t>(index) - 1);
}

static const TNode &defOf(const StxTree &tree, const std::string &name)
{
  return nodeOf(tree, typeNamed(tree, name));
}

// Names of components; "..." for a marker, "[[" for a group, "-" for none.
static std::vector<std::string> compNames(const StxTree &tree, int32_t type)
{
  std::vector<std::string> names;
  for (int32_t comp : compsOf(tree, type)) {
    const TNode &node = nodeOf(tree, comp);
    names.push_back(node.mainType == TYP_EXTENSION_MARKER ? "..."
                    : node.mainType == TYP_EXTADDGRP      ? "[["
                    : node.identifier == 0                ? "-"
                                           : striAt(tree, node.identifier));
  }
  return names;
}

// Kinds

struct KindCase {
  const char *type;
  int mainType;
};

TEST(AsnGenType, BuiltinKinds)
{
  static const KindCase cases[] = {
      {"BOOLEAN", TYP_BOOLEAN},
      {"INTEGER", TYP_INTEGER},
      {"ENUMERATED { a }", TYP_ENUM},
      {"REAL", TYP_REAL},
      {"BIT STRING", TYP_BITSTR},
      {"OCTET STRING", TYP_OCTSTR},
      {"NULL", TYP_NULL},
      {"SEQUENCE { }", TYP_SEQ},
      {"SEQUENCE OF NULL", TYP_SEQOF},
      {"SET { }", TYP_SET},
      {"SET OF NULL", TYP_SETOF},
      {"CHOICE { a NULL }", TYP_CHOICE},
      {"ANY", TYP_ANY},
      {"EMBEDDED PDV", TYP_EMB_PDV},
      {"OBJECT IDENTIFIER", TYP_OBJID},
      {"NumericString", TYP_NUMSTR},
      {"PrintableString", TYP_PRISTR},
      {"TeletexString", TYP_TELSTR},
      {"T61String", TYP_TELSTR},
      {"VideotexString", TYP_VIDSTR},
      {"VisibleString", TYP_VISSTR},
      {"ISO646String", TYP_VISSTR},
      {"IA5String", TYP_IA5STR},
      {"GraphicString", TYP_GRASTR},
      {"GeneralString", TYP_GENSTR},
      {"BMPString", TYP_BMPSTR},
      {"UniversalString", TYP_UNISTR},
      {"CHARACTER STRING", TYP_CHASTR},
      {"GeneralizedTime", TYP_GENTIME},
      {"UTCTime", TYP_UTCTIME},
      {"EXTERNAL", TYP_EXTERNAL},
      {"ObjectDescriptor", TYP_OBJDESCR},
  };
  for (const KindCase &row : cases) {
    AsnCompiled compiled = compileBody(std::string("A ::= ") + row.type);
    const TNode &node = defOf(treeOf(compiled), "A");
    EXPECT_EQ(node.mainType, row.mainType) << row.type;
    EXPECT_EQ(node.compStatus, TCS_HEADER) << row.type;
    EXPECT_EQ(node.line, 2) << row.type;
  }
}

// They have no code: the octets are those of the code, the tag is their own.
TEST(AsnGenType, KindsWithoutCode)
{
  AsnCompiled compiled = compileBody("A ::= UTF8String\nB ::= RELATIVE-OID");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(defOf(tree, "A").mainType, TYP_GENSTR);
  EXPECT_EQ(defOf(tree, "B").mainType, TYP_OCTSTR);
  const TagRec &tag =
      tree.tagRecs.at(static_cast<size_t>(defOf(tree, "A").firstTag) - 1);
  EXPECT_EQ(tag.tagClass, 0);
  EXPECT_EQ(tag.tagNumber, 12);
  EXPECT_EQ(tag.tagMode, 0);
}

TEST(AsnGenType, NodesWithoutSkipOrLimit)
{
  AsnCompiled compiled = compileBody("A ::= SEQUENCE { a NULL }");
  for (const TNode &node : treeOf(compiled).tNodes) {
    EXPECT_EQ(node.typeOptions.definiteLength, 255);
    EXPECT_EQ(node.typeOptions.skipKind, 255);
    EXPECT_EQ(node.typeOptions.sizeLimit, 0);
    EXPECT_EQ(node.typeOptions.limitAction, 0);
    EXPECT_EQ(node.stamp, 0);
  }
}

// Structures

TEST(AsnGenType, Structure)
{
  AsnCompiled compiled = compileBody("A-b ::= SEQUENCE { a-b NULL,\n"
                                     "  b BOOLEAN OPTIONAL }");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A_b");
  EXPECT_THAT(compNames(tree, a), ElementsAre("a_b", "b"));
  const TNode &node = nodeOf(tree, a);
  EXPECT_EQ(node.nrComps, 2);
  EXPECT_EQ(node.refModule, 1);
  EXPECT_EQ(node.nodeFlags,
            NF_OPTIONAL_COMPS | NF_MANDATORY_COMPS | NF_AUTOMATIC_TAGS);
  const TNode &b = nodeOf(tree, compNamed(tree, a, "b"));
  EXPECT_EQ(b.compStatus, TCS_OPTIONAL);
  EXPECT_EQ(b.line, 3);
  EXPECT_EQ(b.hidden, 0);
}

TEST(AsnGenType, DefaultValue)
{
  AsnCompiled compiled = compileBody("A ::= SET { a INTEGER DEFAULT 7 }");
  const StxTree &tree = treeOf(compiled);
  int32_t a = compNamed(tree, typeNamed(tree, "A"), "a");
  EXPECT_EQ(nodeOf(tree, a).compStatus, TCS_OPTIONAL);
  int32_t value = nodeOf(tree, a).defaultValue;
  ASSERT_NE(value, 0);
  EXPECT_EQ(integerAt(tree, value), 7);
  const VNode &node = tree.vNodes[static_cast<size_t>(value) - 1];
  EXPECT_EQ(node.valueStatus, 2);
  EXPECT_EQ(node.governor, a);
  EXPECT_EQ(node.governorModule, 1);
}

TEST(AsnGenType, MarkerAndGroup)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE { a NULL, ..., [[ 2: b NULL, c NULL "
                  "OPTIONAL ]], d NULL }");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  std::vector<int32_t> comps = compsOf(tree, a);
  EXPECT_THAT(compNames(tree, a), ElementsAre("a", "...", "[[", "d"));
  const TNode &group = nodeOf(tree, comps[2]);
  EXPECT_EQ(group.identifier, 0);
  EXPECT_EQ(group.compStatus, 0);
  EXPECT_EQ(group.nrComps, 2);
  EXPECT_EQ(group.valueField, VF_NONE);
  EXPECT_THAT(compNames(tree, comps[2]), ElementsAre("b", "c"));
  EXPECT_EQ(nodeOf(tree, comps[1]).compStatus, 0);
  // a, marker, b, c, d; the group itself does not count.
  EXPECT_EQ(nodeOf(tree, a).nrComps, 5);
  EXPECT_TRUE(nodeOf(tree, a).nodeFlags & NF_EXTENSIBLE);
  EXPECT_TRUE(nodeOf(tree, a).nodeFlags & NF_OPTIONAL_COMPS);
}

TEST(AsnGenType, BracketsInChoiceAreNoGroup)
{
  AsnCompiled compiled =
      compileBody("A ::= CHOICE { a NULL, ..., [[ b NULL, c NULL ]] }");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  EXPECT_THAT(compNames(tree, a), ElementsAre("a", "...", "b", "c"));
  for (int32_t comp : compsOf(tree, a))
    EXPECT_EQ(nodeOf(tree, comp).compStatus, TCS_CHOICE);
  EXPECT_EQ(nodeOf(tree, a).nrComps, 4);
  EXPECT_EQ(nodeOf(tree, a).nodeFlags, NF_EXTENSIBLE | NF_AUTOMATIC_TAGS);
}

static const char secondRoot[] =
    "A ::= SEQUENCE { a NULL, ..., x NULL, ..., b NULL }";

TEST(AsnGenType, SecondRootComesAheadOfTheMarker)
{
  AsnCompiled compiled = compileBody(secondRoot);
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  EXPECT_THAT(compNames(tree, a), ElementsAre("a", "b", "...", "x"));
  EXPECT_EQ(nodeOf(tree, a).nrComps, 4);
}

TEST(AsnGenType, SecondMarkerByOption)
{
  Asn2StxOptions options;
  options.secondMarker = true;
  AsnCompiled compiled = compileBody(secondRoot, options);
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  EXPECT_THAT(compNames(tree, a), ElementsAre("a", "...", "x", "...", "b"));
  EXPECT_EQ(nodeOf(tree, a).nrComps, 5);
}

TEST(AsnGenType, ExtensibilityImplied)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE { a NULL }\nB ::= SET { ..., b NULL }\n"
                  "E ::= ENUMERATED { x }",
                  {}, "AUTOMATIC TAGS EXTENSIBILITY IMPLIED");
  const StxTree &tree = treeOf(compiled);
  EXPECT_THAT(compNames(tree, typeNamed(tree, "A")), ElementsAre("a", "..."));
  EXPECT_THAT(compNames(tree, typeNamed(tree, "B")), ElementsAre("...", "b"));
  EXPECT_TRUE(defOf(tree, "E").nodeFlags & NF_EXTENSIBLE);
}

TEST(AsnGenType, ComponentsOf)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE { a NULL, b NULL OPTIONAL, ..., x NULL }\n"
                  "B ::= SEQUENCE { COMPONENTS OF A, c NULL }\n"
                  "C ::= SEQUENCE { c NULL, COMPONENTS OF B }");
  const StxTree &tree = treeOf(compiled);
  int32_t b = typeNamed(tree, "B");
  EXPECT_THAT(compNames(tree, b), ElementsAre("-", "c"));
  const TNode &entry = nodeOf(tree, compsOf(tree, b)[0]);
  EXPECT_EQ(entry.compStatus, TCS_COMPOF);
  EXPECT_EQ(entry.mainType, TYP_SYNONYM);
  EXPECT_EQ(entry.ref, typeNamed(tree, "A"));
  // The root of A: a and b; with c that makes 3.
  EXPECT_EQ(nodeOf(tree, b).nrComps, 3);
  EXPECT_EQ(nodeOf(tree, b).nodeFlags,
            NF_OPTIONAL_COMPS | NF_MANDATORY_COMPS | NF_AUTOMATIC_TAGS);
  EXPECT_EQ(defOf(tree, "C").nrComps, 4);
}

TEST(AsnGenType, List)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE (SIZE (1..4)) OF item INTEGER (0..9)");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  EXPECT_EQ(nodeOf(tree, a).nrComps, 1);
  EXPECT_THAT(compNames(tree, a), ElementsAre("item"));
  int32_t element = compsOf(tree, a)[0];
  EXPECT_EQ(nodeOf(tree, element).compStatus, TCS_MULTIPLE);
  EXPECT_EQ(boundsOf(tree, a), "1..4");
  EXPECT_EQ(boundsOf(tree, element), "0..9");
}

// Tags

static std::vector<std::string> tagsOf(const StxTree &tree, const TNode &node)
{
  static const char *const classes[] = {"U", "A", "C", "P"};
  std::vector<std::string> tags;
  for (int32_t i = node.firstTag; i != 0;) {
    const TagRec &tag = tree.tagRecs.at(static_cast<size_t>(i) - 1);
    tags.push_back(classes[tag.tagClass] + std::to_string(tag.tagNumber) +
                   (tag.tagMode ? "e" : "i"));
    i = tag.nextTag;
  }
  return tags;
}

struct TagCase {
  const char *module;
  const char *type;
  std::vector<std::string> tags;
};

TEST(AsnGenType, Tags)
{
  static const TagCase cases[] = {
      {"", "NULL", {}},
      {"", "[1] NULL", {"C1e"}},
      {"EXPLICIT TAGS", "[APPLICATION 2] NULL", {"A2e"}},
      {"IMPLICIT TAGS", "[UNIVERSAL 3] NULL", {"U3i"}},
      {"AUTOMATIC TAGS", "[PRIVATE 4] NULL", {"P4i"}},
      {"", "[1] IMPLICIT NULL", {"C1i"}},
      {"IMPLICIT TAGS", "[1] EXPLICIT [2] NULL", {"C1e", "C2i"}},
      {"IMPLICIT TAGS", "[1] [2] CHOICE { a NULL }", {"C1i", "C2e"}},
      {"IMPLICIT TAGS", "[1] ANY", {"C1e"}},
      {"IMPLICIT TAGS", "[1] Untagged", {"C1e"}},
      {"IMPLICIT TAGS", "[1] Tagged", {"C1i"}},
      {"IMPLICIT TAGS", "[five] NULL", {"C5i"}},
  };
  for (const TagCase &row : cases) {
    AsnCompiled compiled =
        compileBody("A ::= " + std::string(row.type) +
                        "\nUntagged ::= CHOICE { a NULL }\n"
                        "Tagged ::= [9] Untagged\nfive INTEGER ::= 5",
                    {}, row.module);
    const StxTree &tree = treeOf(compiled);
    EXPECT_EQ(tagsOf(tree, defOf(tree, "A")), row.tags) << row.type;
  }
}

TEST(AsnGenType, AutomaticTaggingStopsAtATag)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE { a NULL, b NULL }\n"
                  "B ::= SEQUENCE { a NULL, b [0] NULL }\n"
                  "C ::= CHOICE { a NULL, ..., b [0] NULL }");
  const StxTree &tree = treeOf(compiled);
  EXPECT_TRUE(defOf(tree, "A").nodeFlags & NF_AUTOMATIC_TAGS);
  EXPECT_FALSE(defOf(tree, "B").nodeFlags & NF_AUTOMATIC_TAGS);
  EXPECT_FALSE(defOf(tree, "C").nodeFlags & NF_AUTOMATIC_TAGS);
  AsnCompiled plain = compileBody("A ::= SEQUENCE { a NULL }", {}, "");
  EXPECT_FALSE(defOf(treeOf(plain), "A").nodeFlags & NF_AUTOMATIC_TAGS);
}

TEST(AsnGenType, UntaggedComponents)
{
  const char *body = "A ::= SEQUENCE { a C }\nB ::= SEQUENCE { a [1] C }\n"
                     "C ::= CHOICE { c NULL }\nD ::= SET { a NULL }";
  AsnCompiled compiled = compileBody(body, {}, "");
  const StxTree &tree = treeOf(compiled);
  EXPECT_TRUE(defOf(tree, "A").nodeFlags & NF_UNTAGGED_COMPS);
  EXPECT_FALSE(defOf(tree, "B").nodeFlags & NF_UNTAGGED_COMPS);
  EXPECT_FALSE(defOf(tree, "D").nodeFlags & NF_UNTAGGED_COMPS);
  // The automatic tag is one.
  AsnCompiled automatic = compileBody(body);
  EXPECT_FALSE(defOf(treeOf(automatic), "A").nodeFlags & NF_UNTAGGED_COMPS);
}

// Bits of the graph

TEST(AsnGenType, Recursion)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE { a B OPTIONAL, n NULL }\n"
                  "B ::= SEQUENCE OF A\nC ::= SEQUENCE { a A }\nD ::= A");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  int32_t b = typeNamed(tree, "B");
  auto isRecursive = [&](int32_t node) {
    return (nodeOf(tree, node).nodeFlags & NF_RECURSIVE) != 0;
  };
  EXPECT_TRUE(isRecursive(a));
  EXPECT_TRUE(isRecursive(b));
  EXPECT_TRUE(isRecursive(compNamed(tree, a, "a")));
  EXPECT_TRUE(isRecursive(compsOf(tree, b)[0]));
  EXPECT_FALSE(isRecursive(compNamed(tree, a, "n")));
  // They lead into the circle but are not on it.
  EXPECT_FALSE(isRecursive(typeNamed(tree, "C")));
  EXPECT_FALSE(isRecursive(compNamed(tree, typeNamed(tree, "C"), "a")));
  EXPECT_FALSE(isRecursive(typeNamed(tree, "D")));
}

// Other types

TEST(AsnGenType, Selection)
{
  AsnCompiled compiled =
      compileBody("A ::= y < C\nC ::= CHOICE { x NULL, y BOOLEAN }");
  const StxTree &tree = treeOf(compiled);
  const TNode &a = defOf(tree, "A");
  int32_t c = typeNamed(tree, "C");
  EXPECT_EQ(a.mainType, TYP_SELECTION);
  EXPECT_EQ(a.ref, c);
  ASSERT_NE(a.fieldRef, 0);
  const SNode &link = tree.sNodes.at(static_cast<size_t>(a.fieldRef) - 1);
  EXPECT_EQ(link.target, compNamed(tree, c, "y"));
  EXPECT_EQ(link.linkModule, 1);
  EXPECT_EQ(link.nextLink, 0);
}

TEST(AsnGenType, SelectionFromAnotherModule)
{
  AsnCompiled compiled = compileAsn(
      "M DEFINITIONS ::= BEGIN IMPORTS C FROM N; A ::= y < C END\n"
      "N DEFINITIONS ::= BEGIN C ::= CHOICE { x NULL, y BOOLEAN } END\n");
  const StxTree &tree = treeOf(compiled, 0);
  const StxTree &other = treeOf(compiled, 1);
  const TNode &a = defOf(tree, "A");
  // A hidden reference stands between.
  const TNode &between = nodeOf(tree, a.ref);
  EXPECT_EQ(a.refModule, 1);
  EXPECT_EQ(between.mainType, TYP_SYNONYM);
  EXPECT_NE(between.hidden, 0);
  EXPECT_EQ(between.refModule, 2);
  const SNode &link = tree.sNodes.at(static_cast<size_t>(a.fieldRef) - 1);
  EXPECT_EQ(link.linkModule, 2);
  EXPECT_EQ(link.target, compNamed(other, typeNamed(other, "C"), "y"));
}

// The number of a node's first tag, or -1.
static int32_t tagOf(const StxTree &tree, const TNode &node)
{
  if (node.firstTag == 0)
    return -1;
  return tree.tagRecs.at(static_cast<size_t>(node.firstTag) - 1).tagNumber;
}

TEST(AsnGenType, NameOfASelectionIsThatSelection)
{
  AsnCompiled compiled =
      compileBody("D ::= B\nB ::= A\nA ::= [7] y < C\n"
                  "C ::= CHOICE { x NULL, y BOOLEAN }\n"
                  "S ::= SEQUENCE { b B }\nF ::= G\nG ::= BOOLEAN");
  const StxTree &tree = treeOf(compiled);
  int32_t c = typeNamed(tree, "C");
  for (const char *name : {"A", "B", "D"}) {
    SCOPED_TRACE(name);
    const TNode &node = defOf(tree, name);
    EXPECT_EQ(node.mainType, TYP_SELECTION);
    EXPECT_EQ(node.ref, c);
    ASSERT_NE(node.fieldRef, 0);
    EXPECT_EQ(tree.sNodes.at(static_cast<size_t>(node.fieldRef) - 1).target,
              compNamed(tree, c, "y"));
    EXPECT_EQ(tagOf(tree, node), 7);
  }
  // Components refer to it, and other names are references.
  const TNode &b = nodeOf(tree, compNamed(tree, typeNamed(tree, "S"), "b"));
  EXPECT_EQ(b.mainType, TYP_SYNONYM);
  EXPECT_EQ(b.ref, typeNamed(tree, "B"));
  EXPECT_EQ(tagOf(tree, b), -1);
  EXPECT_EQ(defOf(tree, "F").mainType, TYP_SYNONYM);
}

TEST(AsnGenType, NameOfASelectionThroughParameters)
{
  AsnCompiled compiled =
      compileBody("B ::= A\nA ::= Pick {C}\nPick {T} ::= x < T\n"
                  "C ::= CHOICE { x NULL }\nD ::= L\nL ::= Line {NULL}\n"
                  "Line {T} ::= SEQUENCE OF T");
  const StxTree &tree = treeOf(compiled);
  // An instance of its own; a name of another instance is a reference.
  EXPECT_NE(defOf(tree, "B").fieldRef, 0);
  EXPECT_NE(defOf(tree, "B").ref, typeNamed(tree, "A"));
  EXPECT_EQ(nodeOf(tree, defOf(tree, "B").ref).mainType, TYP_SELECTION);
  EXPECT_EQ(defOf(tree, "D").fieldRef, 0);
  EXPECT_EQ(defOf(tree, "D").ref, typeNamed(tree, "L"));
}

TEST(AsnGenType, AnyDefinedBy)
{
  AsnCompiled compiled =
      compileBody("A ::= SEQUENCE { k INTEGER, a ANY DEFINED BY k, b ANY }");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  const TNode &classified = nodeOf(tree, compNamed(tree, a, "a"));
  ASSERT_NE(classified.fieldRef, 0);
  EXPECT_EQ(tree.sNodes[static_cast<size_t>(classified.fieldRef) - 1].target,
            compNamed(tree, a, "k"));
  EXPECT_EQ(nodeOf(tree, compNamed(tree, a, "b")).fieldRef, 0);
}

// Items

static std::vector<std::string> itemsOf(const StxTree &tree, int32_t type)
{
  std::vector<std::string> items;
  for (int32_t i = nodeOf(tree, type).namedNumbers; i != 0;) {
    const VNode &item = tree.vNodes.at(static_cast<size_t>(i) - 1);
    EXPECT_EQ(item.valueStatus, 0);
    EXPECT_EQ(item.governor, type);
    EXPECT_EQ(item.governorModule, 1);
    items.push_back(item.mainType == TYP_EXTENSION_MARKER
                        ? "..."
                        : striAt(tree, item.identifier) + "=" +
                              std::to_string(integerAt(tree, i)));
    i = item.next;
  }
  return items;
}

TEST(AsnGenType, EnumerationNumbers)
{
  AsnCompiled compiled =
      compileBody("A ::= ENUMERATED { a, b(0), c(n), d }\nn INTEGER ::= 5\n"
                  "B ::= ENUMERATED { a, b, c(0), ..., d, e(7), f }\n"
                  "C ::= ENUMERATED { a, z(3), ..., d }");
  const StxTree &tree = treeOf(compiled);
  // X.680 19.3: the lowest numbers that no item of the root has.
  EXPECT_THAT(itemsOf(tree, typeNamed(tree, "A")),
              ElementsAre("a=1", "b=0", "c=5", "d=2"));
  EXPECT_THAT(itemsOf(tree, typeNamed(tree, "B")),
              ElementsAre("a=1", "b=2", "c=0", "...", "d=3", "e=7", "f=8"));
  EXPECT_THAT(itemsOf(tree, typeNamed(tree, "C")),
              ElementsAre("a=0", "z=3", "...", "d=1"));
  EXPECT_EQ(boundsOf(tree, typeNamed(tree, "A")), "0..5");
  EXPECT_FALSE(defOf(tree, "A").nodeFlags & NF_EXTENSIBLE);
  EXPECT_TRUE(defOf(tree, "B").nodeFlags & NF_EXTENSIBLE);
}

TEST(AsnGenType, NamedNumbersAndBits)
{
  AsnCompiled compiled = compileBody("A ::= INTEGER { low(-1), high(9) }\n"
                                     "B ::= BIT STRING { first(0), third(2) }");
  const StxTree &tree = treeOf(compiled);
  EXPECT_THAT(itemsOf(tree, typeNamed(tree, "A")),
              ElementsAre("low=-1", "high=9"));
  EXPECT_THAT(itemsOf(tree, typeNamed(tree, "B")),
              ElementsAre("first=0", "third=2"));
}

// What is wrong

struct TypeErrorCase {
  const char *body;
  const char *error;
};

TEST(AsnGenType, Errors)
{
  static const TypeErrorCase cases[] = {
      {"A ::= SEQUENCE { a NULL, a NULL }", "2:26: duplicate component \"a\""},
      {"A ::= SET { ..., [[ a NULL ]], a NULL }",
       "2:32: duplicate component \"a\""},
      {"A ::= ENUMERATED { a, a }", "2:23: duplicate item \"a\""},
      {"A ::= ENUMERATED { a(1), b(1) }",
       "2:26: item \"b\" has the number of another"},
      {"A ::= BIT STRING { a(-1) }", "2:20: bit \"a\" has a negative number"},
      {"A ::= [-1] NULL", "2:8: tag number -1 is out of range"},
      {"A ::= [2147483648] NULL", "2:8: tag number 2147483648 is out of range"},
      {"A ::= [n] NULL\nn BOOLEAN ::= TRUE",
       "3:15: an integer is needed here, not \"TRUE\""},
      {"A ::= SEQUENCE { a ANY DEFINED BY b }",
       "2:20: DEFINED BY names no component: \"b\""},
      {"A ::= SEQUENCE { COMPONENTS OF B }\nB ::= SET { a NULL }",
       "2:32: COMPONENTS OF \"B\": the type is no SEQUENCE"},
      {"A ::= SEQUENCE { ..., [[ COMPONENTS OF B ]] }\nB ::= SET { a NULL }",
       "2:40: COMPONENTS OF \"B\": the type is no SEQUENCE"},
      {"A ::= INTEGER { a(9223372036854775808) }",
       "2:19: \"9223372036854775808\" does not fit in 64 bits"},
  };
  for (const TypeErrorCase &row : cases)
    EXPECT_EQ(errorOf(row.body), row.error) << row.body;
}

TEST(AsnGenType, SelectionOnACircleIsRecursive)
{
  AsnCompiled compiled = compileBody("A ::= CHOICE { l SEQUENCE OF S }\n"
                                     "S ::= SEQUENCE { s l < A, t BOOLEAN }");
  StxTree &tree = treeOf(compiled);
  int32_t structure = typeNamed(tree, "S");
  auto isRecursive = [&](int32_t node) {
    return (stxTypeAt(tree, node).nodeFlags & NF_RECURSIVE) != 0;
  };
  EXPECT_TRUE(isRecursive(structure));
  EXPECT_TRUE(isRecursive(compNamed(tree, structure, "s")));
  EXPECT_FALSE(isRecursive(compNamed(tree, structure, "t")));
}
