// Sets of numbers from the constraints of types.

#include "model/modelcalls.h"
#include "model/valuesetbuild.h"
#include "support/valuesettrees.h"
#include <gmock/gmock.h>
#include <string>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::IsEmpty;

struct ValueSetBuild : ValueSetTrees {};

// --- one constraint ---------------------------------------------------------

TEST_F(ValueSetBuild, Leaves)
{
  EXPECT_THAT(integers(single(7)), ElementsAre(Seg(7, 7)));
  EXPECT_THAT(integers(range(1, 10)), ElementsAre(Seg(1, 10)));
  EXPECT_THAT(integers(toMax(1)), ElementsAre(Seg(1, highest)));
  EXPECT_THAT(integers(fromMin(5)), ElementsAre(Seg(lowest, 5)));
  EXPECT_THAT(integers(sub(SUB_RANGE, 0, 0, 32 | 64)),
              ElementsAre(Seg(lowest, highest)));
}

TEST_F(ValueSetBuild, OpenEndsMoveByOne)
{
  EXPECT_THAT(integers(range(1, 5, 0)), ElementsAre(Seg(2, 4)));
  EXPECT_THAT(integers(range(1, 5, 32)), ElementsAre(Seg(1, 4)));
  EXPECT_THAT(integers(range(1, 5, 64)), ElementsAre(Seg(2, 5)));
  // MIN and MAX move, too.
  EXPECT_THAT(integers(sub(SUB_RANGE)),
              ElementsAre(Seg(lowest + 1, highest - 1)));
}

TEST_F(ValueSetBuild, NobodyTurnsARangeUpright)
{
  EXPECT_THAT(integers(range(5, 1)), ElementsAre(Seg(5, 1)));
  EXPECT_THAT(integers(range(1, 2, 0)), ElementsAre(Seg(2, 1)));
}

TEST_F(ValueSetBuild, Unions)
{
  EXPECT_THAT(integers(unionOf({range(1, 5), range(7, 9)})),
              ElementsAre(Seg(1, 5), Seg(7, 9)));
  EXPECT_THAT(integers(unionOf({range(1, 5), range(6, 9)})),
              ElementsAre(Seg(1, 9)));
  EXPECT_THAT(integers(unionOf({range(6, 9), range(1, 5)})),
              ElementsAre(Seg(1, 5), Seg(6, 9)));
  // Neither neighbour is joined from its far side.
  EXPECT_THAT(integers(unionOf({single(3), single(1), single(2)})),
              ElementsAre(Seg(1, 1), Seg(2, 2), Seg(3, 3)));
}

TEST_F(ValueSetBuild, CatenationsJoinLikeUnions)
{
  EXPECT_THAT(integers(set(SUB_CATENATED, {range(1, 10), range(20, 30)})),
              ElementsAre(Seg(1, 10), Seg(20, 30)));
}

TEST_F(ValueSetBuild, Intersections)
{
  EXPECT_THAT(integers(intersection({range(1, 10), range(5, 20)})),
              ElementsAre(Seg(5, 10)));
  EXPECT_THAT(integers(intersection({range(1, 10), range(5, 20), range(0, 7)})),
              ElementsAre(Seg(5, 7)));
  EXPECT_THAT(integers(intersection(
                  {unionOf({range(0, 10), toMax(20)}), range(5, 30)})),
              ElementsAre(Seg(5, 10), Seg(20, 30)));
}

// With the halves of (ALL EXCEPT 0) upper one first, that set seems to end at
// -1, below the range.
TEST_F(ValueSetBuild, IntersectionWithASplitSet)
{
  int32_t split = sub(SUB_ALL_EXCEPT, single(0));
  EXPECT_THAT(integers(intersection({range(0, 9), split})),
              ElementsAre(Seg(lowest, highest)));
}

TEST_F(ValueSetBuild, AnEmptyIntersectionIsNoConstraint)
{
  verboseEx = 2;
  int32_t record = type(TYP_INTEGER, intersection({single(1), single(5)}));
  testing::internal::CaptureStderr();
  EXPECT_THAT(values(record), ElementsAre(Seg(lowest, highest)));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "** BET Warning: An empty flat integer value set.\n");
}

TEST_F(ValueSetBuild, Exceptions)
{
  EXPECT_THAT(integers(except(range(0, 10), single(5))),
              ElementsAre(Seg(6, 10), Seg(0, 4)));
  EXPECT_THAT(integers(sub(SUB_ALL_EXCEPT, single(5))),
              ElementsAre(Seg(6, highest), Seg(lowest, 4)));
  EXPECT_THAT(integers(except(range(0, 10), unionOf({single(2), single(5)}))),
              ElementsAre(Seg(3, 10), Seg(0, 1)));
}

// Nothing is left; then nothing constrains.
TEST_F(ValueSetBuild, AllExcepted)
{
  EXPECT_THAT(integers(except(range(3, 4), range(0, 10))),
              ElementsAre(Seg(lowest, highest)));
}

TEST_F(ValueSetBuild, ContainedSubtypes)
{
  int32_t base = type(TYP_INTEGER, range(1, 4));
  EXPECT_THAT(integers(includes(base)), ElementsAre(Seg(1, 4)));
  EXPECT_THAT(integers(unionOf({includes(base), single(8)})),
              ElementsAre(Seg(1, 4), Seg(8, 8)));
  // The subtype's constraints replace each other as those of a type do.
  EXPECT_THAT(integers(includes(synonym(base, single(9)))),
              ElementsAre(Seg(9, 9)));
}

TEST_F(ValueSetBuild, UnconstrainedSubtypesGiveNothing)
{
  EXPECT_THAT(integers(includes(integer)), ElementsAre(Seg(lowest, highest)));
  EXPECT_THAT(integers(unionOf({includes(integer), single(8)})),
              ElementsAre(Seg(8, 8)));
}

TEST_F(ValueSetBuild, TablesAllowAllWhereNothingStands)
{
  EXPECT_THAT(integers(sub(SUB_TABLE)), ElementsAre(Seg(lowest, highest)));
  EXPECT_THAT(values(synonym(type(TYP_INTEGER, single(3)), sub(SUB_TABLE))),
              ElementsAre(Seg(3, 3)));
}

TEST_F(ValueSetBuild, OtherKindsGiveNothing)
{
  for (int kind : {6, 11, 15, 16, 18, 19, 20, 21, 22, 23, 25}) {
    int32_t none = sub(kind, single(1));
    EXPECT_THAT(integers(unionOf({none, single(4)})), ElementsAre(Seg(4, 4)))
        << kind;
    EXPECT_THAT(integers(none), ElementsAre(Seg(lowest, highest))) << kind;
  }
}

TEST_F(ValueSetBuild, CompoundsOfCompounds)
{
  int32_t inner = intersection({range(0, 9), except(toMax(0), single(0))});
  EXPECT_THAT(integers(unionOf({inner, except(range(20, 22), single(22))})),
              ElementsAre(Seg(1, 9), Seg(20, 21)));
}

// --- chains of constraints --------------------------------------------------

TEST_F(ValueSetBuild, LaterLeavesReplace)
{
  int32_t base = type(TYP_INTEGER, range(1, 10));
  EXPECT_THAT(values(synonym(base, range(2, 3))), ElementsAre(Seg(2, 3)));
  EXPECT_THAT(values(synonym(base, range(50, 60))), ElementsAre(Seg(50, 60)));
}

TEST_F(ValueSetBuild, LaterUnionsJoin)
{
  int32_t base = type(TYP_INTEGER, range(1, 10));
  EXPECT_THAT(values(synonym(base, unionOf({single(2), single(3)}))),
              ElementsAre(Seg(1, 10)));
  EXPECT_THAT(values(synonym(base, unionOf({single(20)}))),
              ElementsAre(Seg(1, 10), Seg(20, 20)));
}

TEST_F(ValueSetBuild, LaterIntersectionsAndExceptionsReplace)
{
  int32_t base = type(TYP_INTEGER, range(1, 10));
  EXPECT_THAT(values(synonym(base, intersection({range(5, 20)}))),
              ElementsAre(Seg(5, 20)));
  EXPECT_THAT(values(synonym(base, except(range(5, 20), single(20)))),
              ElementsAre(Seg(5, 19)));
}

TEST_F(ValueSetBuild, ALaterAllExceptTakesAway)
{
  int32_t base = type(TYP_INTEGER, range(1, 10));
  EXPECT_THAT(values(synonym(base, sub(SUB_ALL_EXCEPT, range(8, 10)))),
              ElementsAre(Seg(1, 7)));
}

TEST_F(ValueSetBuild, UnconstrainedIntegers)
{
  EXPECT_THAT(values(integer), ElementsAre(Seg(lowest, highest)));
  EXPECT_THAT(integers(sub(SUB_HIDDEN)), ElementsAre(Seg(lowest, highest)));
}

TEST_F(ValueSetBuild, ASetIsEmptiedFirst)
{
  int32_t record = type(TYP_INTEGER, unionOf({single(3)}));
  load();
  TestType type(module, record);
  IntegerValueSet set;
  insertSeg(set, nullptr, newSeg({}, {}));
  makeIntegerValueSet(*type, set);
  EXPECT_THAT(segsOf(set), ElementsAre(Seg(3, 3)));
  freeIntegerValueSet(set);
}

TEST_F(ValueSetBuild, NothingIsBuiltWithoutATarget)
{
  int32_t record = type(TYP_INTEGER, single(3));
  load();
  TestType type(module, record);
  AsnConstraint *constraint = firstConstraint(*type);
  makeValueSet(*type, constraint);
  makeValueSet(*type, nullptr);
  EXPECT_EQ(glbValueSet, nullptr);
  EXPECT_EQ(type->valueSet, nullptr);
  delConstraint(constraint);
}

// --- enumerations -----------------------------------------------------------

TEST_F(ValueSetBuild, ItemsOfAnEnumeration)
{
  EXPECT_THAT(values(enumeration(tree, {0, 1, 2, 5, 7, 8})),
              ElementsAre(Seg(0, 2), Seg(5, 5), Seg(7, 8)));
  EXPECT_THAT(values(enumeration(tree, {})), IsEmpty());
}

// Items that come ahead of their neighbours stay apart from them.
TEST_F(ValueSetBuild, ItemsInAnyOrder)
{
  EXPECT_THAT(values(enumeration(tree, {2, 1, 0})),
              ElementsAre(Seg(0, 0), Seg(1, 1), Seg(2, 2)));
  EXPECT_THAT(values(enumeration(tree, {0, 2, 1})),
              ElementsAre(Seg(0, 0), Seg(1, 1), Seg(2, 2)));
}

TEST_F(ValueSetBuild, MarkersAreNoItems)
{
  int32_t record = enumeration(tree, {0, 1});
  stxAddNamedMarker(tree, record);
  stxAddNamedNumber(tree, record, "late", 4);
  EXPECT_THAT(values(record), ElementsAre(Seg(0, 1), Seg(4, 4)));
}

TEST_F(ValueSetBuild, ConstrainedEnumerations)
{
  int32_t base = enumeration(tree, {0, 1, 2, 5});
  stxAddNamedMarker(tree, base);
  EXPECT_THAT(values(synonym(base, range(1, 3))), ElementsAre(Seg(1, 2)));
  EXPECT_THAT(values(synonym(base, unionOf({single(0), single(2)}))),
              ElementsAre(Seg(0, 0), Seg(2, 2)));
  // A range that begins within the first stretch misses the second one.
  EXPECT_THAT(values(synonym(base, range(1, 9))), ElementsAre(Seg(1, 2)));
  EXPECT_THAT(values(synonym(base, range(0, 9))),
              ElementsAre(Seg(0, 2), Seg(5, 5)));
  // A constraint without numbers leaves all.
  EXPECT_THAT(values(synonym(base, sub(SUB_USER_DEFINED))),
              ElementsAre(Seg(0, 2), Seg(5, 5)));
}

TEST_F(ValueSetBuild, EnumerationsCanLoseAllItems)
{
  int32_t base = enumeration(tree, {0, 1});
  EXPECT_THAT(values(synonym(base, single(7))), IsEmpty());
}

TEST_F(ValueSetBuild, ItemsOfAnotherModule)
{
  int32_t far = enumeration(other, {3, 4, 9});
  EXPECT_THAT(values(define(stxNewSynonym(far, 2))),
              ElementsAre(Seg(3, 4), Seg(9, 9)));
  EXPECT_THAT(values(define(stxNewSynonym(far, 2), range(3, 8))),
              ElementsAre(Seg(3, 4)));
}

// The way into another module begins with a reference, and a selection is
// none; behind a reference it is followed.
TEST_F(ValueSetBuild, ItemsOfAnAlternativeOfAnotherModule)
{
  int32_t far = enumeration(other, {3, 4});
  int32_t choice = stxDefineType(other, "C", stxNewTNode(TYP_CHOICE));
  TNode node = stxNewTNode(TYP_SELECTION);
  node.ref = choice;
  node.refModule = 2;
  node.fieldRef = stxLink(
      tree, stxNewLink(stxAddComp(other, choice, "a", stxNewSynonym(far)), 2));
  int32_t selection = define(node);
  int32_t behind = synonym(selection);
  EXPECT_THAT(values(selection), IsEmpty());
  EXPECT_THAT(values(behind), ElementsAre(Seg(3, 4)));
}

TEST_F(ValueSetBuild, ItemsOfAnAlternativeOfTheModule)
{
  int32_t near = enumeration(tree, {3, 4});
  int32_t choice = type(TYP_CHOICE);
  TNode node = stxNewTNode(TYP_SELECTION);
  node.ref = choice;
  node.refModule = 1;
  node.fieldRef = stxLink(
      tree, stxNewLink(stxAddComp(tree, choice, "a", stxNewSynonym(near))));
  EXPECT_THAT(values(define(node)), ElementsAre(Seg(3, 4)));
}

TEST_F(ValueSetBuild, ItemsOfAComponentBroughtFromAnotherModule)
{
  int32_t far = stxDefineType(other, "S", stxNewTNode(TYP_SEQ));
  int32_t item = stxAddComp(other, far, "e", stxNewTNode(TYP_ENUM));
  for (int64_t number : {3, 4})
    stxAddNamedNumber(other, item, "i", number);
  int32_t father = type(TYP_SEQ);
  TNode entry = stxNewSynonym(far, 2);
  entry.compStatus = TCS_COMPOF;
  stxAddComp(tree, father, "", entry);
  load();
  TestType type(module, father);
  forEachTypeComp(*type, [](AsnType &, AsnType &comp, int) {
    EXPECT_TRUE(comp.inComponentsOf);
    EXPECT_EQ(forInt64ValueSet(comp, take64), 1);
  });
  EXPECT_THAT(got, ElementsAre(Seg(3, 4)));
}

TEST_F(ValueSetBuild, OnlyEnumerationsHaveItems)
{
  int32_t record = type(TYP_INTEGER);
  stxAddNamedNumber(tree, record, "i", 3);
  load();
  TestType type(module, record);
  IntegerValueSet set;
  makeEnumeratedValueSet(*type, set);
  EXPECT_THAT(segsOf(set), IsEmpty());
}

// --- sizes ------------------------------------------------------------------

TEST_F(ValueSetBuild, Sizes)
{
  EXPECT_THAT(sizes(type(TYP_OCTSTR, size(range(1, 4)))),
              ElementsAre(Seg(1, 4)));
  EXPECT_THAT(sizes(type(TYP_SEQOF, size(unionOf({single(1), single(5)})))),
              ElementsAre(Seg(1, 1), Seg(5, 5)));
  // MIN of a size is 0.
  EXPECT_THAT(sizes(type(TYP_IA5STR, size(fromMin(3)))),
              ElementsAre(Seg(0, 3)));
  EXPECT_THAT(sizes(type(TYP_BITSTR, size(toMax(2)))),
              ElementsAre(Seg(2, highest)));
}

TEST_F(ValueSetBuild, SizesAreFoundInCatenations)
{
  int32_t alphabet = sub(SUB_ALPHABET, single(1));
  int32_t inner = set(SUB_CATENATED, {alphabet, size(range(2, 3))});
  int32_t constraint =
      set(SUB_CATENATED, {sub(SUB_ALPHABET, single(1)), inner});
  EXPECT_THAT(sizes(type(TYP_IA5STR, constraint)), ElementsAre(Seg(2, 3)));
}

TEST_F(ValueSetBuild, SizesAreNotFoundElsewhere)
{
  EXPECT_THAT(sizes(type(TYP_IA5STR)), IsEmpty());
  EXPECT_THAT(sizes(type(TYP_IA5STR, range(1, 2))), IsEmpty());
  EXPECT_THAT(
      sizes(type(TYP_IA5STR, unionOf({size(single(1)), size(single(2))}))),
      IsEmpty());
  EXPECT_THAT(sizes(type(TYP_IA5STR,
                         intersection({size(range(1, 5)), sub(SUB_ALPHABET)}))),
              IsEmpty());
}

TEST_F(ValueSetBuild, LaterSizesReplaceOrJoin)
{
  int32_t base = type(TYP_OCTSTR, size(range(1, 10)));
  EXPECT_THAT(sizes(synonym(base, size(range(2, 3)))), ElementsAre(Seg(2, 3)));
  EXPECT_THAT(sizes(synonym(base, size(unionOf({single(2), single(20)})))),
              ElementsAre(Seg(1, 10), Seg(20, 20)));
}

// --- the cached set ---------------------------------------------------------

TEST_F(ValueSetBuild, TheSetIsBuiltOnceAndFreedWithTheType)
{
  int32_t record = type(TYP_INTEGER, single(3));
  load();
  TestType type(module, record);
  EXPECT_EQ(type->valueSet, nullptr);
  EXPECT_TRUE(isSimpleIntegerValueSet(*type));
  IntegerValueSet *set = type->valueSet;
  ASSERT_NE(set, nullptr);
  EXPECT_TRUE(isSimpleIntegerValueSet(*type));
  forInt64ValueSet(*type, take64);
  EXPECT_EQ(type->valueSet, set);
  freeValueSetOfType(*type);
  EXPECT_EQ(type->valueSet, nullptr);
  freeValueSetOfType(*type);
  EXPECT_EQ(type->valueSet, nullptr);
  isSimpleIntegerValueSet(*type);
  EXPECT_NE(type->valueSet, nullptr);
  clearAsnType(*type);
  EXPECT_EQ(type->valueSet, nullptr);
}

// A build within a call-back of a build's reader leaves the outer one alone.
TEST_F(ValueSetBuild, BuildsNest)
{
  int32_t record = type(TYP_INTEGER, unionOf({single(1), single(5)}));
  load();
  TestType type(module, record);
  IntegerValueSet set;
  glbValueSet = &set;
  EXPECT_EQ(forInt64ValueSet(*type, take64), 2);
  EXPECT_EQ(glbValueSet, &set);
  glbValueSet = nullptr;
  EXPECT_THAT(segsOf(set), IsEmpty());
  EXPECT_THAT(got, ElementsAre(Seg(1, 1), Seg(5, 5)));
}

// --- tests of types ---------------------------------------------------------

TEST_F(ValueSetBuild, SimpleIntegerSets)
{
  struct Row {
    int32_t record;
    bool expected;
  };
  const Row rows[] = {
      {integer, true},
      {type(TYP_INTEGER, range(1, 2)), true},
      {type(TYP_INTEGER, unionOf({single(1), single(3)})), false},
      {enumeration(tree, {1, 2}), true},
      {enumeration(tree, {1, 3}), false},
      {enumeration(tree, {}), false},
      {type(TYP_OCTSTR, size(single(1))), false},
      {type(TYP_BOOLEAN), false},
  };
  load();
  for (const Row &row : rows) {
    TestType type(module, row.record);
    EXPECT_EQ(isSimpleIntegerValueSet(*type), row.expected) << row.record;
  }
}

TEST_F(ValueSetBuild, SizeSetsByMainType)
{
  auto hasSizes = [](int mainType) {
    return mainType == 4 || mainType == 5 || mainType == 8 || mainType == 10 ||
           (mainType >= 15 && mainType <= 24) || mainType == 30;
  };
  int32_t one = size(single(1));
  int32_t two = size(unionOf({single(1), single(3)}));
  for (int mainType = 0; mainType <= 31; ++mainType) {
    SCOPED_TRACE(mainType);
    int32_t plain = type(mainType);
    int32_t simple = type(mainType, one);
    int32_t holes = type(mainType, two);
    load();
    TestType without(module, plain);
    TestType withOne(module, simple);
    TestType withTwo(module, holes);
    EXPECT_FALSE(isSizeConstraintValueSet(*without));
    EXPECT_FALSE(isSimpleSizeConstraintValueSet(*without));
    EXPECT_EQ(isSizeConstraintValueSet(*withOne), hasSizes(mainType));
    EXPECT_EQ(isSimpleSizeConstraintValueSet(*withOne), hasSizes(mainType));
    EXPECT_EQ(isSizeConstraintValueSet(*withTwo), hasSizes(mainType));
    EXPECT_FALSE(isSimpleSizeConstraintValueSet(*withTwo));
  }
}

TEST_F(ValueSetBuild, ExtensibleConstraints)
{
  for (int mainType = 0; mainType < TYP_COUNT; ++mainType) {
    SCOPED_TRACE(mainType);
    AsnType type;
    type.base.mainType = static_cast<uint8_t>(mainType);
    EXPECT_FALSE(isExtensibleIntegerValueSet(type));
    EXPECT_FALSE(isExtensibleSizeConstraintValueSet(type));
    type.base.nodeFlags = 0x0080;
    EXPECT_EQ(isExtensibleIntegerValueSet(type), mainType == 1);
    EXPECT_EQ(isExtensibleSizeConstraintValueSet(type),
              mainType == 4 || mainType == 5 || mainType == 8 ||
                  mainType == 10 || (mainType >= 15 && mainType <= 25));
    type.base.nodeFlags = static_cast<uint16_t>(~0x0080);
    EXPECT_FALSE(isExtensibleIntegerValueSet(type));
    EXPECT_FALSE(isExtensibleSizeConstraintValueSet(type));
  }
}

// --- damaged trees ----------------------------------------------------------

TEST_F(ValueSetBuild, DamagedConstraints)
{
  int32_t self = sub(SUB_SIZE);
  stxSubAt(tree, self).operand1 = self;
  int32_t catenated = sub(SUB_CATENATED);
  stxSubAt(tree, catenated).operand1 = catenated;
  int32_t chain = single(1);
  stxSubAt(tree, chain).nextSub = chain;
  int32_t cyclic = sub(SUB_SIZE, sub(SUB_UNION, chain));
  for (int32_t constraint : {self, catenated, cyclic}) {
    int32_t record = type(TYP_OCTSTR, constraint);
    EXPECT_EXIT(sizes(record), ExitedWithCode(2), damagedM);
  }
  int32_t record = type(TYP_OCTSTR, sub(SUB_SIZE, 9999));
  EXPECT_EXIT(sizes(record), ExitedWithCode(2), noSuchRecord);
}

TEST_F(ValueSetBuild, ASubtypeOfItself)
{
  int32_t record = type(TYP_INTEGER);
  int32_t constraint = unionOf({single(1), includes(record)});
  stxTypeAt(tree, record).firstConstraint = constraint;
  EXPECT_EXIT(values(record), ExitedWithCode(2), damagedM);
}

// Two hundred levels are nothing out of the way.
TEST_F(ValueSetBuild, DeepNesting)
{
  int32_t constraint = single(6);
  for (int i = 0; i < 200; ++i)
    constraint = unionOf({constraint});
  EXPECT_THAT(integers(constraint), ElementsAre(Seg(6, 6)));
}
