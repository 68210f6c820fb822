// Real values, comparisons of numbers, and infinities.

#include "base/diag.h"
#include "model/number.h"
#include "support/stringvalues.h"
#include <cfloat>
#include <cmath>

static sint64 i64(int64_t value)
{
  return stxInt64(value);
}

static RealVal real(int64_t mantissa, int16_t base, int16_t exponent)
{
  RealVal value;
  return makeRealVal(value, i64(mantissa), base, exponent);
}

static RealVal special(int32_t code)
{
  RealVal value = real(5, 6, 7);
  return makeSpecialRealVal(value, code);
}

static bool same(const RealVal &value, int64_t mantissa, int base, int exponent)
{
  return i64cmp(value.mantissa, i64(mantissa)) == 0 && value.base == base &&
         value.exponent == exponent;
}

// --- real values ------------------------------------------------------------

TEST(RealVal, Plain)
{
  EXPECT_TRUE(same(real(12, 10, -3), 12, 10, -3));
  EXPECT_FALSE(isSpecialRealVal(real(-2, 10, 0)));
  EXPECT_FALSE(isSpecialRealVal(real(0, 0, 0)));
}

TEST(RealVal, Special)
{
  for (int32_t code : {REAL_ZERO, REAL_MINUS_INFINITY, REAL_PLUS_INFINITY}) {
    RealVal value = special(code);
    EXPECT_TRUE(same(value, code, -1, 0));
    EXPECT_TRUE(isSpecialRealVal(value));
    EXPECT_EQ(getSpecialRealVal(value), code);
  }
}

TEST(RealVal, SpecialCodeThatDoesNotFit)
{
  EXPECT_EQ(getSpecialRealVal(real(int64_t{1} << 40, -1, 0)), 2147483647);
}

TEST(RetRealVal, Values)
{
  struct Row {
    int64_t mantissa;
    int base;
    int exponent;
    double expected;
  };
  static const Row rows[] = {
      {0, 10, 5, 0.0},
      {1, 10, 2, 100.0},
      {7, 2, 0, 7.0},
      {5, 2, -1, 2.5},
      {3, 4, -2, 0.1875},
      {3, -2, 3, -24.0},
      {4294967297, 2, 0, 4294967297.0},
      {INT64_C(1) << 40, 10, 0, 1099511627776.0},
      {-2, -1, 0, DBL_MAX},
      {-1, -1, 0, -DBL_MAX},
      {0, -1, 0, 0.0},
      {9, -1, 3, 0.0},
      // High half -1, low half 2^32 - 1: -2^32 less the low half.
      {-1, 10, 0, -8589934591.0},
      {-4294967296, 10, 0, -4294967296.0},
      // Exact in 64 bits of mantissa, not in 53.
      {1, 10, 25, 1e25},
      {1, 10, -6, 1e-6},
  };
  for (const Row &row : rows)
    EXPECT_EQ(retRealVal(i64(row.mantissa), row.base, row.exponent),
              row.expected)
        << row.mantissa << " " << row.base << " " << row.exponent;
}

TEST(RetRealVal, DivisionByZeroGivesNoTrap)
{
  EXPECT_TRUE(std::isinf(retRealVal(i64(1), 0, -1)));
  EXPECT_EQ(retRealVal(i64(1), 0, 1), 0.0);
}

TEST(CompareReal, Order)
{
  EXPECT_EQ(compareReal(real(1, 10, 2), real(100, 2, 0)), 0);
  EXPECT_EQ(compareReal(real(1, 10, 2), real(101, 2, 0)), -1);
  EXPECT_EQ(compareReal(real(102, 2, 0), real(1, 10, 2)), 1);
  EXPECT_EQ(compareReal(special(REAL_PLUS_INFINITY), real(1, 10, 300)), 1);
  EXPECT_EQ(compareReal(special(REAL_MINUS_INFINITY), special(REAL_ZERO)), -1);
  EXPECT_EQ(compareReal(special(REAL_ZERO), real(0, 10, 0)), 0);
}

TEST(CompareReal, NegativeNumbersOfOneHighHalfAreReversed)
{
  EXPECT_EQ(compareReal(real(-1, 10, 0), real(-2, 10, 0)), -1);
  EXPECT_EQ(compareReal(real(-1, 10, 0), real(0, 10, 0)), -1);
}

static VNode integerImage(int64_t value)
{
  return stxNewInteger(0, value);
}

static VNode realImage(const RealVal &value)
{
  VNode node = stxNewVNode(TYP_REAL, 0);
  setPayloadReal(node, value.mantissa, value.base, value.exponent);
  return node;
}

TEST(CompareNumber, ByMainType)
{
  EXPECT_EQ(compareNumber(integerImage(-3), integerImage(5), TYP_INTEGER), -1);
  EXPECT_EQ(compareNumber(integerImage(5), integerImage(5), TYP_INTEGER), 0);
  EXPECT_EQ(compareNumber(integerImage(6), integerImage(5), TYP_INTEGER), 1);
  VNode ten = realImage(real(1, 10, 1)), two = realImage(real(2, 10, 0));
  EXPECT_EQ(compareNumber(two, ten, TYP_REAL), -1);
  EXPECT_EQ(compareNumber(ten, two, TYP_REAL), 1);
  EXPECT_EQ(compareNumber(integerImage(1), integerImage(2), TYP_ENUM), 0);
  EXPECT_EQ(compareNumber(two, ten, TYP_BITSTR), 0);
}

TEST(PayloadReal, AsStored)
{
  EXPECT_TRUE(same(payloadReal(realImage(real(-7, 2, -9))), -7, 2, -9));
}

TEST(Infinity, Integers)
{
  for (int mainType : {TYP_INTEGER, TYP_ENUM, TYP_OCTSTR}) {
    VNode node = integerImage(3);
    EXPECT_FALSE(testInfinity(node, true, mainType));
    EXPECT_FALSE(testInfinity(node, false, mainType));
    setInfinity(node, true, mainType);
    EXPECT_TRUE(i64ismax(payloadInt64(node)));
    EXPECT_TRUE(testInfinity(node, true, mainType));
    EXPECT_FALSE(testInfinity(node, false, mainType));
    setInfinity(node, false, mainType);
    EXPECT_TRUE(i64ismin(payloadInt64(node)));
    EXPECT_FALSE(testInfinity(node, true, mainType));
    EXPECT_TRUE(testInfinity(node, false, mainType));
  }
}

TEST(Infinity, Reals)
{
  VNode node = realImage(special(REAL_ZERO));
  EXPECT_FALSE(testInfinity(node, true, TYP_REAL));
  EXPECT_FALSE(testInfinity(node, false, TYP_REAL));
  setInfinity(node, true, TYP_REAL);
  EXPECT_TRUE(same(payloadReal(node), -2, -1, 0));
  EXPECT_TRUE(testInfinity(node, true, TYP_REAL));
  EXPECT_FALSE(testInfinity(node, false, TYP_REAL));
  setInfinity(node, false, TYP_REAL);
  EXPECT_TRUE(same(payloadReal(node), -1, -1, 0));
  EXPECT_TRUE(testInfinity(node, false, TYP_REAL));
  EXPECT_FALSE(testInfinity(node, true, TYP_REAL));
  // The same mantissa with a base is a number.
  EXPECT_FALSE(testInfinity(realImage(real(-2, 10, 0)), true, TYP_REAL));
}

// --- the real value of a node -----------------------------------------------

struct GetRealVal : RestrString {
  // The value at `index`: "mantissa base exponent", or "no".
  std::string got(int32_t index)
  {
    load();
    readRec(modA, REC_VNODE, index);
    RealVal value;
    bool found = getRealVal(value);
    EXPECT_EQ(recJustRead[REC_VNODE].index, index);
    if (!found)
      return "no";
    char digits[24];
    return std::string(i64tostr(value.mantissa, digits, sizeof digits)) + " " +
           std::to_string(value.base) + " " + std::to_string(value.exponent);
  }
  std::string gotList(const std::vector<int64_t> &numbers)
  {
    std::vector<VNode> items;
    for (int64_t number : numbers)
      items.push_back(stxNewInteger(0, number));
    return got(list(a, TYP_SEQOF, items));
  }
};

TEST_F(GetRealVal, RealNode)
{
  EXPECT_EQ(got(stxValue(a, realImage(real(3, 2, -4)))), "3 2 -4");
  EXPECT_EQ(got(stxValue(a, realImage(special(REAL_PLUS_INFINITY)))),
            "-2 -1 0");
}

TEST_F(GetRealVal, IntegerIsZero)
{
  EXPECT_EQ(got(stxValue(a, stxNewInteger(0, 0))), "0 -1 0");
}

TEST_F(GetRealVal, ListOfThree)
{
  EXPECT_EQ(gotList({1, 10, 2}), "1 10 2");
  EXPECT_EQ(gotList({-5, 0, -7}), "-5 0 -7");
}

TEST_F(GetRealVal, ListOfAnotherLength)
{
  EXPECT_EQ(gotList({}), "no");
  EXPECT_EQ(gotList({1, 10}), "no");
  EXPECT_EQ(gotList({1, 10, 2, 0}), "no");
}

TEST_F(GetRealVal, ListWithAnotherMainType)
{
  EXPECT_EQ(got(list(a, TYP_SEQOF,
                     {stxNewInteger(0, 1), realImage(real(1, 1, 1)),
                      stxNewInteger(0, 1)})),
            "no");
}

TEST_F(GetRealVal, BaseIsCapped)
{
  EXPECT_EQ(gotList({1, -1, 0}), "no");
  EXPECT_EQ(gotList({1, 32766, 0}), "1 32766 0");
  EXPECT_EQ(gotList({1, 32767, 0}), "1 32767 0");
  EXPECT_EQ(gotList({1, 40000, 0}), "1 32767 0");
  EXPECT_EQ(gotList({1, INT64_C(1) << 40, 0}), "1 32767 0");
}

TEST_F(GetRealVal, ExponentIsCapped)
{
  EXPECT_EQ(gotList({1, 2, 32767}), "1 2 32767");
  EXPECT_EQ(gotList({1, 2, 32768}), "1 2 32767");
  EXPECT_EQ(gotList({1, 2, -32767}), "1 2 -32767");
  EXPECT_EQ(gotList({1, 2, -32768}), "1 2 -32767");
  EXPECT_EQ(gotList({1, 2, INT64_C(1) << 50}), "1 2 32767");
  EXPECT_EQ(gotList({1, 2, -(INT64_C(1) << 50)}), "1 2 -32767");
}

TEST_F(GetRealVal, OtherMainTypes)
{
  for (int mainType : {TYP_BOOLEAN, TYP_ENUM, TYP_SEQ, TYP_SETOF, TYP_SYNONYM})
    EXPECT_EQ(got(stxValue(a, stxNewVNode(mainType, 0))), "no") << mainType;
}
