// Readers of the sets of numbers of types: visits, bounds, first and last
// segments, in 32 and 64 bits.

#include "support/valuesettrees.h"
#include <gmock/gmock.h>
#include <string>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::IsEmpty;

struct ValueSetRead : ValueSetTrees {};

// --- readers of values ------------------------------------------------------

TEST_F(ValueSetRead, VisitsOfValues)
{
  int32_t record = type(TYP_INTEGER, unionOf({range(-5, -1), range(3, 4)}));
  load();
  TestType type(module, record);
  EXPECT_EQ(forInt64ValueSet(*type, take64), 2);
  EXPECT_THAT(got, ElementsAre(Seg(-5, -1), Seg(3, 4)));
  EXPECT_EQ(forIntegerValueSet(*type, take32), 2);
  EXPECT_THAT(got, ElementsAre(Seg(-5, -1), Seg(3, 4), Seg(-5, -1), Seg(3, 4)));
  EXPECT_THAT(gotIndexes, ElementsAre(0, 1, 0, 1));
}

TEST_F(ValueSetRead, VisitsOfEnumerations)
{
  int32_t record = enumeration(tree, {1, 2, 9});
  load();
  TestType type(module, record);
  EXPECT_EQ(forInt64ValueSet(*type, take64), 2);
  EXPECT_THAT(got, ElementsAre(Seg(1, 2), Seg(9, 9)));
}

TEST_F(ValueSetRead, OtherTypesHaveNoValues)
{
  int32_t record = type(TYP_OCTSTR, size(single(1)));
  load();
  TestType type(module, record);
  EXPECT_EQ(forInt64ValueSet(*type, take64), 0);
  EXPECT_EQ(forIntegerValueSet(*type, take32), 0);
  EXPECT_THAT(got, IsEmpty());
  EXPECT_EQ(type->valueSet, nullptr);
}

TEST_F(ValueSetRead, InfinitiesIn32Bits)
{
  verboseEx = 2;
  load();
  TestType type(module, integer);
  testing::internal::CaptureStderr();
  EXPECT_EQ(forIntegerValueSet(*type, take32), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_THAT(got, ElementsAre(Seg(INT32_MIN, INT32_MAX)));
}

TEST_F(ValueSetRead, NumbersBeyond32Bits)
{
  int64_t beyond = int64_t{1} << 40;
  TNode node = stxNewTNode(TYP_INTEGER);
  node.line = 17;
  int32_t record = define(node, range(-beyond, beyond));
  load();
  verboseEx = 2;
  TestType type(module, record);
  testing::internal::CaptureStderr();
  EXPECT_EQ(forIntegerValueSet(*type, take32), 1);
  std::string text = testing::internal::GetCapturedStderr();
  EXPECT_THAT(got, ElementsAre(Seg(0, 0)));
  EXPECT_THAT(text, testing::HasSubstr(":17:BET Warning\n"));
  EXPECT_THAT(
      text, testing::HasSubstr("** Lower bound of Integer/enumerated type\n"));
  EXPECT_THAT(
      text, testing::HasSubstr("** Upper bound of Integer/enumerated type\n"));
  testing::internal::CaptureStderr();
  EXPECT_EQ(forInt64ValueSet(*type, take64), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(got.back(), Seg(-beyond, beyond));
}

TEST_F(ValueSetRead, FirstAndLastSegments)
{
  int32_t record =
      type(TYP_INTEGER, unionOf({range(1, 2), range(4, 5), range(7, 8)}));
  load();
  TestType type(module, record);
  EXPECT_FALSE(isFirstInt64ValueSetSeg(*type, {big(1), big(2)}));
  EXPECT_FALSE(isLastIntegerValueSetSeg(*type, {7, 8}));
  initValueSet(*type);
  for (int lower : {1, 4, 7}) {
    // The upper end doesn't count.
    IntegerPair pair{lower, 99};
    Int64Pair pair64{big(lower), big(99)};
    EXPECT_EQ(isFirstIntegerValueSetSeg(*type, pair), lower == 1);
    EXPECT_EQ(isLastIntegerValueSetSeg(*type, pair), lower == 7);
    EXPECT_EQ(isFirstInt64ValueSetSeg(*type, pair64), lower == 1);
    EXPECT_EQ(isLastInt64ValueSetSeg(*type, pair64), lower == 7);
  }
}

TEST_F(ValueSetRead, AnEmptySetHasNoFirstSegment)
{
  int32_t record = type(TYP_IA5STR);
  load();
  TestType type(module, record);
  initSizeValueSet(*type);
  EXPECT_FALSE(isFirstIntegerValueSetSeg(*type, {0, 0}));
  EXPECT_FALSE(isLastInt64ValueSetSeg(*type, {}));
}

// --- readers of sizes -------------------------------------------------------

struct SizeReaders : ValueSetRead {
  // Visits of the first constraint of a type.
  int visit64(AsnType &type)
  {
    AsnConstraint *constraint = firstConstraint(type);
    int count = forInt64SizeConstraintValueSet(type, *constraint, take64);
    delConstraint(constraint);
    return count;
  }
  int visit32(AsnType &type)
  {
    AsnConstraint *constraint = firstConstraint(type);
    int count = forSizeConstraintValueSet(type, *constraint, take32);
    delConstraint(constraint);
    return count;
  }
};

TEST_F(SizeReaders, VisitsOfOneConstraint)
{
  int32_t base = type(TYP_OCTSTR, size(unionOf({single(1), range(3, 4)})));
  int32_t record = synonym(base, size(single(9)));
  load();
  TestType type(module, record);
  EXPECT_EQ(visit64(*type), 2);
  EXPECT_THAT(got, ElementsAre(Seg(1, 1), Seg(3, 4)));
  EXPECT_THAT(gotIndexes, ElementsAre(0, 1));
  // Nothing is kept of it.
  EXPECT_EQ(type->valueSet, nullptr);
  EXPECT_EQ(glbValueSet, nullptr);
}

TEST_F(SizeReaders, The32BitFormShowsTheTypesFirstSegment)
{
  int32_t base = type(TYP_OCTSTR, size(unionOf({single(1), range(3, 4)})));
  int32_t record = synonym(base, size(range(7, 9)));
  load();
  TestType type(module, record);
  EXPECT_EQ(visit32(*type), 0);
  initSizeValueSet(*type);
  EXPECT_EQ(visit32(*type), 2);
  EXPECT_THAT(got, ElementsAre(Seg(7, 9), Seg(7, 9)));
  EXPECT_THAT(gotIndexes, ElementsAre(0, 1));
}

TEST_F(SizeReaders, OtherConstraintsAndTypes)
{
  int32_t alphabet = type(TYP_IA5STR, sub(SUB_ALPHABET, single(1)));
  int32_t catenated = type(TYP_IA5STR, set(SUB_CATENATED, {size(range(1, 2))}));
  int32_t number = type(TYP_INTEGER, size(single(1)));
  load();
  for (int32_t record : {alphabet, catenated, number}) {
    TestType type(module, record);
    initSizeValueSet(*type);
    EXPECT_EQ(visit64(*type), 0) << record;
    EXPECT_EQ(visit32(*type), 0) << record;
  }
  EXPECT_THAT(got, IsEmpty());
}

TEST_F(SizeReaders, SizesBeyond32Bits)
{
  int64_t beyond = int64_t{1} << 40;
  int32_t record = type(TYP_OCTSTR, size(range(beyond, beyond + 1)));
  load();
  verboseEx = 2;
  TestType type(module, record);
  initSizeValueSet(*type);
  testing::internal::CaptureStderr();
  EXPECT_EQ(visit32(*type), 1);
  std::string text = testing::internal::GetCapturedStderr();
  EXPECT_THAT(got, ElementsAre(Seg(0, 0)));
  EXPECT_THAT(text,
              testing::HasSubstr("** Size constraint lower bound too large\n"));
  EXPECT_THAT(text,
              testing::HasSubstr("** Size constraint upper bound too large\n"));
  int32_t lower = 5;
  int32_t upper = 5;
  int32_t limit = 5;
  testing::internal::CaptureStderr();
  getSizeConstraintEndpoints(*type, lower, upper, &limit);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), text);
  EXPECT_EQ(lower, 0);
  EXPECT_EQ(upper, 0);
  EXPECT_EQ(limit, 0);
}

TEST_F(SizeReaders, EndpointsWithoutASize)
{
  TNode node = stxNewTNode(TYP_IA5STR);
  node.typeOptions.sizeLimit = 50;
  for (int32_t record : {define(node), type(TYP_INTEGER, range(1, 2))}) {
    load();
    TestType type(module, record);
    int32_t lower = 5;
    int32_t upper = 5;
    int32_t limit = 5;
    getSizeConstraintEndpoints(*type, lower, upper, &limit);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 2147483647);
    EXPECT_EQ(limit, 5);
    sint64 lower64 = big(5);
    sint64 upper64 = big(5);
    sint64 limit64 = big(5);
    getInt64SizeConstraintEndpoints(*type, lower64, upper64, &limit64);
    EXPECT_EQ(native(lower64), 0);
    EXPECT_EQ(native(upper64), highest);
    EXPECT_EQ(native(limit64), highest);
  }
}

TEST_F(SizeReaders, EndpointsOfASetWithHoles)
{
  int32_t record = type(TYP_OCTSTR, size(unionOf({range(1, 2), range(8, 9)})));
  load();
  TestType type(module, record);
  int32_t lower = 0;
  int32_t upper = 0;
  int32_t limit = 0;
  getSizeConstraintEndpoints(*type, lower, upper, &limit);
  EXPECT_EQ(lower, 1);
  EXPECT_EQ(upper, 2);
  EXPECT_EQ(limit, 2);
  sint64 lower64;
  sint64 upper64;
  sint64 limit64;
  getInt64SizeConstraintEndpoints(*type, lower64, upper64, &limit64);
  EXPECT_EQ(native(lower64), 1);
  EXPECT_EQ(native(upper64), 9);
  EXPECT_EQ(native(limit64), 9);
}

TEST_F(SizeReaders, TheSizeLimit)
{
  for (int32_t stored : {0, 3, 10, 11}) {
    TNode node = stxNewTNode(TYP_SEQOF);
    node.typeOptions.sizeLimit = stored;
    int32_t expected = stored == 3 ? 3 : 10;
    // The limit is the base's: that of the synonym is not asked.
    TNode front = stxNewSynonym(define(node, size(range(1, 10))));
    front.typeOptions.sizeLimit = 2;
    int32_t record = define(front);
    load();
    TestType type(module, record);
    int32_t lower = 0;
    int32_t upper = 0;
    int32_t limit = 0;
    getSizeConstraintEndpoints(*type, lower, upper, &limit);
    EXPECT_EQ(upper, 10);
    EXPECT_EQ(limit, expected);
    sint64 lower64;
    sint64 upper64;
    sint64 limit64;
    getInt64SizeConstraintEndpoints(*type, lower64, upper64, &limit64);
    EXPECT_EQ(native(upper64), 10);
    EXPECT_EQ(native(limit64), expected);
  }
}

TEST_F(SizeReaders, TheLimitNeedNotBeAsked)
{
  int32_t record = type(TYP_OCTSTR, size(toMax(2)));
  load();
  TestType type(module, record);
  int32_t lower = 0;
  int32_t upper = 0;
  getSizeConstraintEndpoints(*type, lower, upper, nullptr);
  EXPECT_EQ(lower, 2);
  EXPECT_EQ(upper, 2147483647);
  sint64 lower64;
  sint64 upper64;
  getInt64SizeConstraintEndpoints(*type, lower64, upper64, nullptr);
  EXPECT_EQ(native(lower64), 2);
  EXPECT_EQ(native(upper64), highest);
}

// --- failures ---------------------------------------------------------------

TEST_F(SizeReaders, NullCallBacks)
{
  load();
  TestType type(module, integer);
  AsnConstraint constraint;
  auto dies = [](auto call) {
    EXPECT_EXIT(call(), ExitedWithCode(2), "Call-back function not defined");
  };
  dies([&] { forIntegerValueSet(*type, nullptr); });
  dies([&] { forInt64ValueSet(*type, nullptr); });
  dies([&] { forSizeConstraintValueSet(*type, constraint, nullptr); });
  dies([&] { forInt64SizeConstraintValueSet(*type, constraint, nullptr); });
}
