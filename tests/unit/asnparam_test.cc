#include "asn2stx/gentype.h"
#include "support/asncompile.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Parameterized definitions: one copy a use.

static const TNode &nodeOf(const StxTree &tree, int32_t index)
{
  return tree.tNodes.at(static_cast<size_t>(index) - 1);
}

static const TNode &defOf(const StxTree &tree, const std::string &name)
{
  return nodeOf(tree, typeNamed(tree, name));
}

TEST(AsnParam, UseAndCopy)
{
  AsnCompiled compiled = compileBody("P {T} ::= SEQUENCE { t T }\n"
                                     "A ::= P {BOOLEAN}");
  const StxTree &tree = treeOf(compiled);
  // The definition with parameters is none that a reader could walk.
  EXPECT_EQ(typeNamed(tree, "P"), 0);
  EXPECT_EQ(tree.header.nrVisibleTypes, 1);
  const TNode &use = defOf(tree, "A");
  EXPECT_EQ(use.mainType, TYP_SYNONYM);
  EXPECT_EQ(use.compStatus, TCS_HEADER);
  EXPECT_EQ(use.nestedInstance, 0);
  EXPECT_NE(use.fieldRef, 0);
  EXPECT_EQ(use.refModule, 1);
  const TNode &copy = nodeOf(tree, use.ref);
  EXPECT_EQ(striAt(tree, copy.identifier), "P");
  EXPECT_EQ(copy.mainType, TYP_SEQ);
  EXPECT_EQ(copy.compStatus, -TCS_HEADER);
  EXPECT_NE(copy.hidden, 0);
  EXPECT_NE(copy.nestedInstance, 0);
  EXPECT_EQ(copy.fieldRef, 0);
  const TNode &t = nodeOf(tree, compNamed(tree, use.ref, "t"));
  EXPECT_EQ(t.mainType, TYP_BOOLEAN);
  EXPECT_NE(t.nestedInstance, 0);
  const SNode &link = tree.sNodes.at(static_cast<size_t>(use.fieldRef) - 1);
  EXPECT_EQ(link.target, use.ref);
  EXPECT_EQ(link.linkModule, 1);
}

TEST(AsnParam, PlainReferenceIsNoInstance)
{
  AsnCompiled compiled = compileBody("A ::= B\nB ::= NULL");
  EXPECT_EQ(defOf(treeOf(compiled), "A").fieldRef, 0);
}

TEST(AsnParam, EachUseHasItsCopy)
{
  AsnCompiled compiled =
      compileBody("P {T} ::= SEQUENCE { t T }\n"
                  "A ::= SEQUENCE { a P {NULL}, b P {NULL}, c P {INTEGER} }");
  const StxTree &tree = treeOf(compiled);
  int32_t a = typeNamed(tree, "A");
  int32_t first = nodeOf(tree, compNamed(tree, a, "a")).ref;
  int32_t second = nodeOf(tree, compNamed(tree, a, "b")).ref;
  EXPECT_NE(first, second);
  EXPECT_EQ(nodeOf(tree, compNamed(tree, a, "a")).nestedInstance, 0);
}

TEST(AsnParam, InstanceWithinAnInstance)
{
  AsnCompiled compiled = compileBody("Q {T} ::= SEQUENCE OF T\n"
                                     "P {T} ::= SEQUENCE { q Q {T} }\n"
                                     "A ::= P {BOOLEAN}");
  const StxTree &tree = treeOf(compiled);
  const TNode &inner = nodeOf(tree, compNamed(tree, defOf(tree, "A").ref, "q"));
  EXPECT_NE(inner.fieldRef, 0);
  EXPECT_NE(inner.nestedInstance, 0);
  const TNode &list = nodeOf(tree, inner.ref);
  EXPECT_EQ(list.mainType, TYP_SEQOF);
  EXPECT_EQ(nodeOf(tree, list.ref).mainType, TYP_BOOLEAN);
}

TEST(AsnParam, ValueInAConstraint)
{
  AsnCompiled compiled = compileBody(
      "P {INTEGER:max, T} ::= SEQUENCE (SIZE (1..max)) OF T (0..max)\n"
      "A ::= P {top, INTEGER (0..100)}\ntop INTEGER ::= 9");
  const StxTree &tree = treeOf(compiled);
  int32_t list = defOf(tree, "A").ref;
  EXPECT_EQ(boundsOf(tree, list), "1..9");
  // The constraint of the actual type comes first.
  int32_t element = nodeOf(tree, list).ref;
  EXPECT_EQ(constraintOf(tree, element), "serial([0,100] [0,top])");
  EXPECT_EQ(boundsOf(tree, element), "0..9");
}

TEST(AsnParam, ConstraintAndTagOfTheUseLieOnTheCopy)
{
  AsnCompiled compiled =
      compileBody("P {INTEGER:n} ::= [1] IA5String (SIZE (1..n))\n"
                  "A ::= [2] EXPLICIT P {8} (SIZE (1..4))");
  const StxTree &tree = treeOf(compiled);
  const TNode &use = defOf(tree, "A");
  EXPECT_EQ(use.firstConstraint, 0);
  EXPECT_EQ(use.firstTag, 0);
  EXPECT_EQ(constraintOf(tree, use.ref), "serial(size([1,8]) size([1,4]))");
  EXPECT_EQ(boundsOf(tree, use.ref), "1..4");
  const TagRec &outer =
      tree.tagRecs.at(static_cast<size_t>(nodeOf(tree, use.ref).firstTag) - 1);
  EXPECT_EQ(outer.tagNumber, 2);
  EXPECT_EQ(tree.tagRecs.at(static_cast<size_t>(outer.nextTag) - 1).tagNumber,
            1);
}

TEST(AsnParam, ParameterizedValue)
{
  AsnCompiled compiled =
      compileBody("S ::= SEQUENCE { a INTEGER, b INTEGER }\n"
                  "pair {INTEGER:x} S ::= { a x, b 2 }\nv S ::= pair {7}");
  const StxTree &tree = treeOf(compiled);
  EXPECT_EQ(valueNamed(tree, "pair"), 0);
  std::vector<int32_t> children = childrenOf(tree, valueNamed(tree, "v"));
  ASSERT_EQ(children.size(), 2u);
  EXPECT_EQ(integerAt(tree, children[0]), 7);
  EXPECT_EQ(integerAt(tree, children[1]), 2);
}

TEST(AsnParam, ValueSetAsParameter)
{
  AsnCompiled compiled = compileBody("P {INTEGER:Set} ::= INTEGER (Set)\n"
                                     "A ::= P { {1 | 5..7} }");
  const StxTree &tree = treeOf(compiled);
  int32_t copy = defOf(tree, "A").ref;
  EXPECT_EQ(constraintOf(tree, copy), "union(1 [5,7])");
  EXPECT_EQ(boundsOf(tree, copy), "1..7");
}

TEST(AsnParam, DefinitionOfAnotherModule)
{
  AsnCompiled compiled =
      compileAsn("M DEFINITIONS AUTOMATIC TAGS ::= BEGIN IMPORTS P FROM N;\n"
                 "A ::= P {Own} Own ::= NULL END\n"
                 "N DEFINITIONS ::= BEGIN P {T} ::= SEQUENCE { t T, o Other }\n"
                 "Other ::= BOOLEAN END\n");
  const StxTree &tree = treeOf(compiled, 0);
  const StxTree &other = treeOf(compiled, 1);
  int32_t copy = defOf(tree, "A").ref;
  // The copy is here; names in it are looked up where they were written.
  EXPECT_EQ(nodeOf(tree, compNamed(tree, copy, "t")).ref,
            typeNamed(tree, "Own"));
  const TNode &o = nodeOf(tree, compNamed(tree, copy, "o"));
  EXPECT_EQ(o.refModule, 2);
  EXPECT_EQ(o.ref, typeNamed(other, "Other"));
  // And so are the rules for tags.
  EXPECT_FALSE(nodeOf(tree, copy).nodeFlags & NF_AUTOMATIC_TAGS);
}

struct ParamErrorCase {
  const char *body;
  const char *error;
};

TEST(AsnParam, Errors)
{
  static const ParamErrorCase cases[] = {
      {"P {T} ::= SET { t T }\nA ::= P {NULL, NULL}",
       "3:7: \"P\" needs 1 parameters, not 2"},
      {"P {T} ::= SET { t T }\nA ::= P",
       "3:7: \"P\" needs 1 parameters, not 0"},
      {"B ::= NULL\nA ::= B {NULL}", "3:7: \"B\" needs 0 parameters, not 1"},
      {"P {T, T} ::= NULL", "2:7: duplicate parameter \"T\""},
      {"P {T} ::= SET { t T, p P {SET OF T} OPTIONAL }\nA ::= P {NULL}",
       "2:24: \"P\": parameterized definitions are nested too deeply"},
      {"P {T} ::= SET { a Q {SET OF T}, b Q {T} }\n"
       "Q {T} ::= SET { a P {T}, b P {T} }\nA ::= P {NULL}",
       "3:19: \"P\": parameterized definitions are nested too deeply"},
      {"P {T} ::= P {T}\nA ::= P {NULL}", "2:11: circular definition of \"P\""},
  };
  for (const ParamErrorCase &row : cases)
    EXPECT_EQ(errorOf(row.body), row.error) << row.body;
}

// Two uses in each of thirty: no tree may hold what this comes to.
TEST(AsnParam, GrowthIsBounded)
{
  std::string use = "NULL";
  for (int i = 0; i < 30; ++i)
    use = "P {" + use + "}";
  AsnCompiled compiled =
      compileBody("P {T} ::= SET { a T, b T }\nA ::= " + use);
  EXPECT_FALSE(compiled.good);
  ASSERT_EQ(compiled.errors.size(), 1u);
  EXPECT_THAT(compiled.errors[0], testing::HasSubstr("nested too deeply"));
}

// The modes of the tags on the copy that A refers to, outermost first.
static std::vector<int> modesOf(const std::string &body, const char *tags)
{
  AsnCompiled compiled = compileBody(body, {}, tags);
  const StxTree &tree = treeOf(compiled);
  std::vector<int> modes;
  int32_t copy = defOf(tree, "A").ref;
  int32_t comp = compNamed(tree, copy, "t");
  int32_t tag = nodeOf(tree, comp ? comp : copy).firstTag;
  while (tag != 0) {
    const TagRec &record = tree.tagRecs.at(static_cast<size_t>(tag) - 1);
    modes.push_back(record.tagMode);
    tag = record.nextTag;
  }
  return modes;
}

TEST(AsnParam, TagOnAParameterIsExplicit)
{
  using testing::ElementsAre;
  const char *tags = "IMPLICIT TAGS";
  // X.680 (2002) 30.6 c: whatever the parameter stands for.
  EXPECT_THAT(modesOf("P {T} ::= SET { t [1] T }\n"
                      "A ::= P {CHOICE { x NULL }}",
                      tags),
              ElementsAre(1));
  EXPECT_THAT(modesOf("P {T} ::= SET { t [1] T }\nA ::= P {ANY}", tags),
              ElementsAre(1));
  EXPECT_THAT(modesOf("P {T} ::= SET { t [1] T }\nA ::= P {NULL}", tags),
              ElementsAre(1));
  EXPECT_THAT(modesOf("P {T} ::= SET { t [1] T }\nA ::= P {[2] NULL}", tags),
              ElementsAre(1, 0));
  // What is no parameter, and what is written.
  EXPECT_THAT(
      modesOf("P {T} ::= SET { t [1] NULL, u T }\nA ::= P {NULL}", tags),
      ElementsAre(0));
  EXPECT_THAT(
      modesOf("P {T} ::= SET { t [1] IMPLICIT T }\nA ::= P {NULL}", tags),
      ElementsAre(0));
  EXPECT_THAT(modesOf("P {T} ::= SET { t [1] IMPLICIT T }\n"
                      "A ::= P {CHOICE { x NULL }}",
                      tags),
              ElementsAre(1));
}
