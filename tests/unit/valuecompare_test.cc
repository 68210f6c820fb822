// Comparison of values.

#include "base/diag.h"
#include "model/valuecompare.h"
#include "support/stringvalues.h"

using testing::ExitedWithCode;

// A value of each side, the left one in module A, the right one in either.
struct CompareValue : RestrString {
  int32_t integer = stxType(a, stxNewTNode(TYP_INTEGER));
  int32_t other = stxType(a, stxNewTNode(TYP_INTEGER));

  int compareLoaded(int32_t left, ModRec *rightMod, int32_t right)
  {
    SavedNode saved(REC_VNODE);
    return compareValue(modA, inA(left), rightMod, at(rightMod, right));
  }
  int compareAt(int32_t left, int32_t right)
  {
    load();
    return compareLoaded(left, modA, right);
  }
  int compare(const VNode &left, const VNode &right)
  {
    int32_t l = stxValue(a, left);
    return compareAt(l, stxValue(a, right));
  }
  VNode governed(int64_t value) { return stxNewInteger(integer, value); }
  int32_t structure(int mainType,
                    const std::vector<std::pair<const char *, VNode>> &comps)
  {
    int32_t index = stxValue(a, stxNewVNode(mainType, 0));
    for (const auto &[name, comp] : comps)
      stxAddChild(a, index, name, comp);
    return index;
  }
  int32_t listOf(int mainType, const std::vector<int64_t> &numbers)
  {
    std::vector<VNode> items;
    for (int64_t number : numbers)
      items.push_back(governed(number));
    return list(a, mainType, items);
  }
};

static VNode boolean(uint8_t value)
{
  VNode node = stxNewVNode(TYP_BOOLEAN, 0);
  node.payload[0] = value;
  return node;
}

TEST_F(CompareValue, Booleans)
{
  EXPECT_EQ(compare(boolean(1), boolean(1)), 0);
  EXPECT_EQ(compare(boolean(1), boolean(7)), 0);
  EXPECT_EQ(compare(boolean(0), boolean(0)), 0);
  EXPECT_EQ(compare(boolean(1), boolean(0)), 1);
  EXPECT_EQ(compare(boolean(0), boolean(1)), -1);
}

TEST_F(CompareValue, IntegersAndEnumerations)
{
  for (int mainType : {TYP_INTEGER, TYP_ENUM}) {
    VNode one = governed(1), two = governed(2), far = governed(1);
    far.payload[7] = 1;
    one.mainType = two.mainType = far.mainType = static_cast<uint8_t>(mainType);
    EXPECT_EQ(compare(one, one), 0);
    EXPECT_EQ(compare(one, two), -1);
    EXPECT_EQ(compare(two, one), 1);
    EXPECT_EQ(compare(one, far), -1);
  }
}

TEST_F(CompareValue, Reals)
{
  auto real = [](int64_t mantissa, int16_t base, int16_t exponent) {
    VNode node = stxNewVNode(TYP_REAL, 0);
    setPayloadReal(node, stxInt64(mantissa), base, exponent);
    return node;
  };
  EXPECT_EQ(compare(real(1, 10, 2), real(100, 2, 0)), 0);
  EXPECT_EQ(compare(real(1, 10, 2), real(99, 2, 0)), 1);
  EXPECT_EQ(compare(real(-1, -1, 0), real(-2, -1, 0)), -1);
}

TEST_F(CompareValue, BitAndOctetStrings)
{
  VNode bits = leaf8(a, TYP_BITSTR, "0101");
  EXPECT_EQ(compare(bits, leaf8(a, TYP_BITSTR, "0101")), 0);
  EXPECT_EQ(compare(bits, leaf8(a, TYP_BITSTR, "01010")), 0);
  EXPECT_NE(compare(bits, leaf8(a, TYP_BITSTR, "0111")), 0);
  VNode digits = leaf8(a, TYP_OCTSTR, "5A");
  EXPECT_EQ(compare(digits, leaf8(a, TYP_OCTSTR, "5A")), 0);
  EXPECT_NE(compare(digits, leaf8(a, TYP_OCTSTR, "6A")), 0);
}

TEST_F(CompareValue, EqualityOfStrings)
{
  for (int mainType : {TYP_TELSTR, TYP_VIDSTR, TYP_GRASTR, TYP_GENSTR,
                       TYP_GENTIME, TYP_UTCTIME, TYP_OBJDESCR}) {
    VNode text = leaf8(a, mainType, "980102");
    EXPECT_EQ(compare(text, leaf8(a, mainType, "980102")), 0) << mainType;
    // Told apart, not ordered: 1 in both directions.
    EXPECT_EQ(compare(text, leaf8(a, mainType, "980103")), 1) << mainType;
    EXPECT_EQ(compare(leaf8(a, mainType, "980103"), text), 1) << mainType;
  }
}

TEST_F(CompareValue, OrderOfStrings)
{
  for (int mainType : {TYP_NUMSTR, TYP_PRISTR, TYP_VISSTR, TYP_IA5STR}) {
    VNode one = leaf8(a, mainType, "1"), two = leaf8(a, mainType, "2");
    EXPECT_EQ(compare(one, leaf8(a, mainType, "1")), 0) << mainType;
    EXPECT_LT(compare(one, two), 0) << mainType;
    EXPECT_GT(compare(two, one), 0) << mainType;
  }
  EXPECT_LT(compare(leaf16(a, u"a"), leaf16(a, u"b")), 0);
  EXPECT_EQ(compare(leaf16(a, u"a"), leaf16(a, u"a")), 0);
  EXPECT_NE(compare(leaf32(a, U"a"), leaf32(a, U"b")), 0);
  EXPECT_EQ(compare(leaf32(a, U"a"), leaf32(a, U"a")), 0);
}

TEST_F(CompareValue, NullsAreEqual)
{
  EXPECT_EQ(compare(stxNewVNode(TYP_NULL, 0), governed(3)), 0);
}

TEST_F(CompareValue, ObjectIdentifiersByCanonicalText)
{
  EXPECT_EQ(compare(leaf8(a, TYP_OBJID, "1 3"), leaf8(a, TYP_OBJID, "1 3")), 0);
  EXPECT_LT(compare(leaf8(a, TYP_OBJID, "1 3"), leaf8(a, TYP_OBJID, "1 4")), 0);
  VNode none = stxNewVNode(TYP_OBJID, 0);
  EXPECT_EQ(compare(none, none), 0);
  EXPECT_NE(compare(none, leaf8(a, TYP_OBJID, "1 4")), 0);
}

TEST_F(CompareValue, OtherModule)
{
  int32_t left = stxValue(a, leaf8(a, TYP_IA5STR, "same"));
  int32_t right = stxValue(b, leaf8(b, TYP_IA5STR, "same"));
  int32_t different = stxValue(b, leaf8(b, TYP_IA5STR, "tame"));
  load();
  EXPECT_EQ(compareLoaded(left, modB, right), 0);
  EXPECT_LT(compareLoaded(left, modB, different), 0);
}

TEST_F(CompareValue, AnyWarns)
{
  int level = verboseEx;
  VNode any = stxNewVNode(TYP_ANY, 0);
  int32_t index = stxValue(a, any);
  load();
  for (int verbosity : {1, 2}) {
    verboseEx = verbosity;
    testing::internal::CaptureStderr();
    EXPECT_EQ(compareLoaded(index, modA, index), -1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              verbosity < 2 ? ""
                            : "** BET Warning Comparison of two ANY values "
                              "not yet implemented, sorry.\n");
  }
  verboseEx = level;
}

TEST_F(CompareValue, WhatCanNotBeCompared)
{
  for (int mainType :
       {TYP_SYNONYM, TYP_EXTENSION_MARKER, TYP_SELECTION, TYP_FIELDLIST,
        TYP_OPEN, TYP_CLASS, TYP_NONE, VAL_NONE}) {
    VNode node = stxNewVNode(mainType, 0);
    EXPECT_EQ(compare(node, node), -1) << mainType;
  }
}

// --- structures -------------------------------------------------------------

static const int structureTypes[] = {
    TYP_SEQ,    TYP_SET,      TYP_CHOICE,        TYP_EMB_PDV,
    TYP_CHASTR, TYP_EXTERNAL, TYP_EXTERNAL_1994, TYP_INSTANCE_OF};

TEST_F(CompareValue, FirstComponents)
{
  for (int mainType : structureTypes) {
    int32_t left = structure(mainType, {{"x", governed(1)}});
    int32_t equal = structure(mainType, {{"x", governed(1)}});
    int32_t more = structure(mainType, {{"x", governed(2)}});
    load();
    EXPECT_EQ(compareLoaded(left, modA, equal), 0) << mainType;
    EXPECT_EQ(compareLoaded(left, modA, more), -1) << mainType;
    EXPECT_EQ(compareLoaded(more, modA, left), 1) << mainType;
  }
}

TEST_F(CompareValue, EmptyStructuresAreEqual)
{
  for (int mainType : structureTypes) {
    int32_t empty = structure(mainType, {});
    int32_t full = structure(mainType, {{"x", governed(1)}});
    load();
    EXPECT_EQ(compareLoaded(empty, modA, empty), 0) << mainType;
    // The end of the left side ends the walk.
    EXPECT_EQ(compareLoaded(empty, modA, full), 0) << mainType;
    EXPECT_EQ(compareLoaded(full, modA, empty), mainType == TYP_SET ? -1 : 0)
        << mainType;
  }
}

TEST_F(CompareValue, GovernorsMustBeTheSameNode)
{
  VNode mine = governed(1), theirs = governed(1), synonym = governed(1);
  theirs.governor = other;
  synonym.governor = stxType(a, stxNewSynonym(integer));
  int32_t left = structure(TYP_SEQ, {{"x", mine}});
  int32_t different = structure(TYP_SEQ, {{"x", theirs}});
  int32_t named = structure(TYP_SEQ, {{"x", synonym}});
  load();
  EXPECT_EQ(compareLoaded(left, modA, different), -1);
  EXPECT_EQ(compareLoaded(left, modA, named), 0);
}

TEST_F(CompareValue, ComponentsMayBeReferences)
{
  int32_t one = stxValue(a, governed(1));
  VNode reference = ref(one);
  reference.governor = integer;
  reference.governorModule = 1;
  int32_t left = structure(TYP_SET, {{"x", governed(1)}});
  int32_t right = structure(TYP_SET, {{"x", reference}});
  EXPECT_EQ(compareAt(left, right), 0);
  EXPECT_EQ(compareAt(right, left), 0);
}

// The partner of a second component is the first child of the first partner:
// plain components have none.
TEST_F(CompareValue, SecondComponentsHaveNoPartner)
{
  int32_t left = structure(TYP_SEQ, {{"x", governed(1)}, {"y", governed(2)}});
  int32_t right = structure(TYP_SEQ, {{"x", governed(1)}, {"y", governed(3)}});
  EXPECT_EQ(compareAt(left, right), 0);
  // Where there is a first child, that is the partner.
  int32_t child = stxValue(a, governed(3));
  stxValueAt(a, stxValueAt(a, right).firstChild).firstChild = child;
  EXPECT_EQ(compareAt(left, right), -1);
  setPayloadInt64(stxValueAt(a, child), stxInt64(2));
  EXPECT_EQ(compareAt(left, right), 0);
}

TEST_F(CompareValue, SetsGoByName)
{
  int32_t left = structure(TYP_SET, {{"x", governed(1)}, {"y", governed(2)}});
  int32_t right = structure(TYP_SET, {{"y", governed(2)}, {"x", governed(1)}});
  int32_t lacking = structure(TYP_SET, {{"x", governed(1)}});
  int32_t more = structure(TYP_SET, {{"y", governed(3)}, {"x", governed(1)}});
  load();
  EXPECT_EQ(compareLoaded(left, modA, right), 0);
  EXPECT_EQ(compareLoaded(left, modA, lacking), -1);
  EXPECT_EQ(compareLoaded(lacking, modA, left), 0);
  EXPECT_EQ(compareLoaded(left, modA, more), -1);
}

// --- lists ------------------------------------------------------------------

TEST_F(CompareValue, SequenceOfInOrder)
{
  int32_t left = listOf(TYP_SEQOF, {1, 2, 3});
  int32_t equal = listOf(TYP_SEQOF, {1, 2, 3});
  int32_t turned = listOf(TYP_SEQOF, {1, 3, 2});
  load();
  EXPECT_EQ(compareLoaded(left, modA, equal), 0);
  EXPECT_EQ(compareLoaded(left, modA, turned), -1);
  EXPECT_EQ(compareLoaded(turned, modA, left), 1);
}

TEST_F(CompareValue, SetOfInAnyOrder)
{
  int32_t left = listOf(TYP_SETOF, {1, 2, 2});
  int32_t turned = listOf(TYP_SETOF, {2, 1, 2});
  int32_t other3 = listOf(TYP_SETOF, {2, 1, 1});
  load();
  EXPECT_EQ(compareLoaded(left, modA, turned), 0);
  // Each element of the right side is taken once.
  EXPECT_EQ(compareLoaded(left, modA, other3), -1);
  EXPECT_EQ(compareLoaded(other3, modA, left), -1);
}

TEST_F(CompareValue, SetOfNeedsTheSameGovernor)
{
  VNode theirs = governed(1);
  theirs.governor = other;
  int32_t left = listOf(TYP_SETOF, {1});
  EXPECT_EQ(compareAt(left, list(a, TYP_SETOF, {theirs})), -1);
}

TEST_F(CompareValue, ListsOfAnotherLength)
{
  for (int mainType : {TYP_SEQOF, TYP_SETOF}) {
    int32_t two = listOf(mainType, {1, 2});
    int32_t three = listOf(mainType, {1, 2, 3});
    int32_t none = listOf(mainType, {});
    load();
    EXPECT_EQ(compareLoaded(two, modA, three), -1);
    EXPECT_EQ(compareLoaded(three, modA, two), -1);
    EXPECT_EQ(compareLoaded(none, modA, none), 0);
    EXPECT_EQ(compareLoaded(none, modA, two), -1);
  }
}

TEST_F(CompareValue, ListsOfLists)
{
  int32_t inner = listOf(TYP_SETOF, {1, 2});
  int32_t turned = listOf(TYP_SETOF, {2, 1});
  VNode first = ref(inner), second = ref(turned);
  EXPECT_EQ(compareAt(list(a, TYP_SEQOF, {first, second}),
                      list(a, TYP_SEQOF, {second, first})),
            0);
}

// --- the buffers, and damaged trees -----------------------------------------

TEST_F(CompareValue, BuffersAreRestored)
{
  int32_t left = listOf(TYP_SETOF, {1, 2});
  load();
  readRec(modA, REC_TNODE, other);
  readRec(modA, REC_VNODE, left);
  compareValue(modA, inA(left), modA, inA(left));
  EXPECT_EQ(recJustRead[REC_TNODE].index, other);
  EXPECT_EQ(recJustRead[REC_VNODE].index, left);
  EXPECT_EQ(vNode.mainType, TYP_SETOF);
}

TEST_F(CompareValue, ListThatContainsItself)
{
  int32_t index = stxValue(a, stxNewVNode(TYP_SEQOF, 0));
  stxAddChild(a, index, "", ref(index));
  load();
  EXPECT_EXIT(compareLoaded(index, modA, index), ExitedWithCode(2),
              inconsistent);
}

TEST_F(CompareValue, CyclicChains)
{
  for (int mainType : {TYP_SEQOF, TYP_SETOF, TYP_SET}) {
    int32_t index = structure(mainType, {{"x", governed(1)}});
    VNode &child = stxValueAt(a, stxValueAt(a, index).firstChild);
    child.next = stxValueAt(a, index).firstChild;
    load();
    EXPECT_EXIT(compareLoaded(index, modA, index), ExitedWithCode(2),
                inconsistent);
  }
}

TEST_F(CompareValue, ComponentWithoutGovernor)
{
  int32_t index = structure(TYP_SEQ, {{"x", stxNewInteger(0, 1)}});
  load();
  EXPECT_EXIT(compareLoaded(index, modA, index), ExitedWithCode(2), noRecord);
}
