#include "base/int64.h"
#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <utility>

typedef std::pair<int32_t, uint32_t> Words;

static Words words(sint64 value)
{
  return {value.high, value.low};
}

static sint64 number(int32_t high, uint32_t low)
{
  sint64 value;
  return i64make(value, high, low);
}

static sint64 signedNumber(int32_t value)
{
  sint64 number;
  return i64ltosint64(number, value);
}

static std::string decimal(sint64 value)
{
  char buffer[64];
  const char *text = i64tostr(value, buffer, sizeof buffer);
  return text ? text : "(null)";
}

static const Words largest(INT32_MAX, UINT32_MAX);
static const Words smallest(INT32_MIN, 0);

TEST(Int64Make, BothWords)
{
  sint64 value;
  EXPECT_EQ(&value, &i64make(value, -5, 7));
  EXPECT_EQ(Words(-5, 7), words(value));
  EXPECT_EQ(-5, i64hi(value));
  EXPECT_EQ(7u, i64lo(value));
}

TEST(Int64Make, HighWordFirst)
{
  sint64 value = number(0x01020304, 0x05060708);
  int32_t high;
  uint32_t low;
  memcpy(&high, &value, 4);
  memcpy(&low, reinterpret_cast<const char *>(&value) + 4, 4);
  EXPECT_EQ(0x01020304, high);
  EXPECT_EQ(0x05060708u, low);
}

TEST(Int64Make, DefaultIsZero)
{
  EXPECT_TRUE(i64iszero(sint64{}));
}

TEST(Int64Make, FromSigned)
{
  sint64 value;
  EXPECT_EQ(&value, &i64ltosint64(value, 1));
  EXPECT_EQ(Words(0, 1), words(value));
  EXPECT_EQ(Words(-1, UINT32_MAX), words(i64ltosint64(value, -1)));
  EXPECT_EQ(Words(-1, 0x80000000), words(i64ltosint64(value, INT32_MIN)));
  EXPECT_EQ(Words(0, INT32_MAX), words(i64ltosint64(value, INT32_MAX)));
}

TEST(Int64Make, FromUnsigned)
{
  sint64 value;
  EXPECT_EQ(&value, &i64ultosint64(value, 1));
  EXPECT_EQ(Words(0, 1), words(value));
  EXPECT_EQ(Words(0, UINT32_MAX), words(i64ultosint64(value, UINT32_MAX)));
}

TEST(Int64Make, Limits)
{
  EXPECT_EQ(Words(2147483647, 4294967295u), words(i64max()));
  EXPECT_EQ(Words(-2147483647 - 1, 0), words(i64min()));
}

TEST(Int64ToLong, Fits)
{
  int32_t result = 0;
  EXPECT_TRUE(i64tol(number(0, 0x7FFFFFFF), result));
  EXPECT_EQ(2147483647, result);
  EXPECT_TRUE(i64tol(signedNumber(-1), result));
  EXPECT_EQ(-1, result);
  EXPECT_TRUE(i64tol(signedNumber(INT32_MIN), result));
  EXPECT_EQ(INT32_MIN, result);
  EXPECT_TRUE(i64tol(number(0, 0), result));
  EXPECT_EQ(0, result);
}

TEST(Int64ToLong, TooLarge)
{
  for (sint64 value : {number(0, 0x80000000), number(1, 0), number(-2, 0),
                       number(-2, UINT32_MAX), i64max(), i64min()}) {
    int32_t result = 0;
    EXPECT_FALSE(i64tol(value, result)) << decimal(value);
    EXPECT_EQ(2147483647, result) << decimal(value);
  }
}

// The low word is not looked at under a high word of -1.
TEST(Int64ToLong, BelowRangePassesWrongly)
{
  int32_t result = 0;
  EXPECT_TRUE(i64tol(number(-1, 1), result));  // -4294967295
  EXPECT_EQ(1, result);
  EXPECT_TRUE(i64tol(number(-1, 0x7FFFFFFF), result));
  EXPECT_EQ(2147483647, result);
}

TEST(Int64ToUnsigned, Fits)
{
  uint32_t result = 1;
  EXPECT_TRUE(i64toul(number(0, 0), result));
  EXPECT_EQ(0u, result);
  EXPECT_TRUE(i64toul(number(0, UINT32_MAX), result));
  EXPECT_EQ(UINT32_MAX, result);
}

TEST(Int64ToUnsigned, DoesNotFit)
{
  for (sint64 value : {number(1, 0), signedNumber(-1), i64max(), i64min()}) {
    uint32_t result = 0;
    EXPECT_FALSE(i64toul(value, result)) << decimal(value);
    EXPECT_EQ(4294967295u, result) << decimal(value);
  }
}

TEST(Int64FromText, Accepted)
{
  struct {
    const char *text;
    Words value;
  } cases[] = {
      {"0", {0, 0}},
      {"1", {0, 1}},
      {"-1", {-1, UINT32_MAX}},
      {"10", {0, 10}},
      {"4294967295", {0, UINT32_MAX}},
      {"4294967296", {1, 0}},
      {"-4294967296", {-1, 0}},
      {"9223372036854775807", largest},
      {"-9223372036854775807", {INT32_MIN, 1}},
      {"-9223372036854775808", smallest},
  };
  for (auto &[text, expected] : cases) {
    sint64 value;
    EXPECT_TRUE(i64strtosint64(text, value)) << text;
    EXPECT_EQ(expected, words(value)) << text;
  }
}

TEST(Int64FromText, Refused)
{
  for (const char *text : {"",
                           "-",
                           "-0",
                           "00",
                           "007",
                           "-007",
                           "0x",
                           "0 ",
                           "+1",
                           " 1",
                           "1 ",
                           "12a",
                           "a",
                           "--1",
                           "1-",
                           "9223372036854775808",
                           "-9223372036854775809",
                           "-9223372036854775808 ",
                           "92233720368547758070",
                           "99999999999999999999"}) {
    sint64 value;
    EXPECT_FALSE(i64strtosint64(text, value)) << text;
    EXPECT_EQ(largest, words(value)) << text;
  }
}

// 27600000000000000000 - 2 to the 64th = 9153255926290448384 lies above
// 2760000000000000000, so the value did not go down.
TEST(Int64FromText, WrapUpwardsUnnoticed)
{
  sint64 value;
  EXPECT_TRUE(i64strtosint64("27600000000000000000", value));
  EXPECT_EQ("9153255926290448384", decimal(value));
}

TEST(Int64ToText, Values)
{
  EXPECT_EQ("0", decimal(sint64{}));
  EXPECT_EQ("7", decimal(signedNumber(7)));
  EXPECT_EQ("-7", decimal(signedNumber(-7)));
  EXPECT_EQ("100", decimal(signedNumber(100)));
  EXPECT_EQ("4294967296", decimal(number(1, 0)));
  EXPECT_EQ("9223372036854775807", decimal(i64max()));
  EXPECT_EQ("-9223372036854775807", decimal(number(INT32_MIN, 1)));
  EXPECT_EQ("-9223372036854775808", decimal(i64min()));
}

TEST(Int64ToText, GivesBuffer)
{
  char buffer[4];
  EXPECT_EQ(buffer, i64tostr(signedNumber(-12), buffer, sizeof buffer));
  EXPECT_STREQ("-12", buffer);
}

TEST(Int64ToText, TooSmall)
{
  char buffer[32];
  EXPECT_EQ(nullptr, i64tostr(signedNumber(1), nullptr, 10));
  EXPECT_EQ(nullptr, i64tostr(signedNumber(1), buffer, 0));
  EXPECT_EQ(nullptr, i64tostr(signedNumber(1), buffer, 1));
  EXPECT_EQ(nullptr, i64tostr(sint64{}, buffer, 1));
  EXPECT_EQ(nullptr, i64tostr(signedNumber(-12), buffer, 3));
  EXPECT_EQ(nullptr, i64tostr(i64min(), buffer, 20));
  EXPECT_EQ(buffer, i64tostr(i64min(), buffer, 21));
}

TEST(Int64Add, Carry)
{
  sint64 value;
  EXPECT_EQ(&value, &i64add(value, number(0, UINT32_MAX), number(0, 1)));
  EXPECT_EQ(Words(1, 0), words(value));
  EXPECT_EQ(Words(3, 5), words(i64add(value, number(1, 2), number(2, 3))));
  EXPECT_EQ(Words(0, 0),
            words(i64add(value, signedNumber(-1), signedNumber(1))));
}

TEST(Int64Add, Wraps)
{
  sint64 value;
  EXPECT_EQ(smallest, words(i64add(value, i64max(), signedNumber(1))));
  EXPECT_EQ(largest, words(i64add(value, i64min(), signedNumber(-1))));
  EXPECT_EQ(Words(0, 0), words(i64add(value, i64min(), i64min())));
}

TEST(Int64Add, WidenedOperands)
{
  sint64 value;
  EXPECT_EQ(&value, &i64addl(value, signedNumber(0), -1));
  EXPECT_EQ(Words(-1, UINT32_MAX), words(value));
  EXPECT_EQ(smallest, words(i64addl(value, i64max(), 1)));
  EXPECT_EQ(&value, &i64addul(value, signedNumber(1), UINT32_MAX));
  EXPECT_EQ(Words(1, 0), words(value));
}

TEST(Int64Add, WidenedOperandsAtLimits)
{
  sint64 value;
  EXPECT_EQ(Words(-1, 0x80000000), words(i64addl(value, sint64{}, INT32_MIN)));
  EXPECT_EQ(Words(INT32_MAX, 0x80000000),
            words(i64addl(value, i64min(), INT32_MIN)));
  EXPECT_EQ(Words(INT32_MIN, 0xFFFFFFFE),
            words(i64addul(value, i64max(), UINT32_MAX)));
}

TEST(Int64Add, DestinationIsOperand)
{
  sint64 value = number(0, UINT32_MAX);
  EXPECT_EQ(Words(1, UINT32_MAX - 1), words(i64add(value, value, value)));
}

TEST(Int64Sub, Borrow)
{
  sint64 value;
  EXPECT_EQ(&value, &i64sub(value, number(1, 0), number(0, 1)));
  EXPECT_EQ(Words(0, UINT32_MAX), words(value));
  EXPECT_EQ(Words(1, 1), words(i64sub(value, number(3, 3), number(2, 2))));
}

TEST(Int64Sub, Wraps)
{
  sint64 value;
  EXPECT_EQ(largest, words(i64sub(value, i64min(), signedNumber(1))));
  EXPECT_EQ(smallest, words(i64sub(value, i64max(), signedNumber(-1))));
}

TEST(Int64Sub, WidenedOperands)
{
  sint64 value;
  EXPECT_EQ(&value, &i64subl(value, signedNumber(0), -1));
  EXPECT_EQ(Words(0, 1), words(value));
  EXPECT_EQ(&value, &i64subul(value, signedNumber(0), UINT32_MAX));
  EXPECT_EQ(Words(-1, 1), words(value));
  EXPECT_EQ(largest, words(i64subul(value, i64min(), 1)));
  // Nothing in 32 bits is the negative of the smallest operand.
  EXPECT_EQ(Words(0, 0x80000000), words(i64subl(value, sint64{}, INT32_MIN)));
  EXPECT_EQ(smallest, words(i64subl(value, i64max(), -1)));
}

TEST(Int64Mul, FullProductOfWords)
{
  sint64 value;
  EXPECT_EQ(&value, &i64mul32(value, 6, 7));
  EXPECT_EQ(Words(0, 42), words(value));
  EXPECT_EQ(Words(0, 0), words(i64mul32(value, 0, UINT32_MAX)));
  EXPECT_EQ(Words(1, 0), words(i64mul32(value, 0x10000, 0x10000)));
  // (2 to the 32nd - 1) squared = 2 to the 64th - 2 to the 33rd + 1.
  EXPECT_EQ(Words(-2, 1), words(i64mul32(value, UINT32_MAX, UINT32_MAX)));
}

TEST(Int64Mul, Signs)
{
  sint64 value;
  EXPECT_EQ(&value, &i64mul(value, signedNumber(6), signedNumber(7)));
  EXPECT_EQ("42", decimal(value));
  EXPECT_EQ("-42", decimal(i64mul(value, signedNumber(-6), signedNumber(7))));
  EXPECT_EQ("-42", decimal(i64mul(value, signedNumber(6), signedNumber(-7))));
  EXPECT_EQ("42", decimal(i64mul(value, signedNumber(-6), signedNumber(-7))));
  EXPECT_EQ("0", decimal(i64mul(value, signedNumber(-6), sint64{})));
}

TEST(Int64Mul, CrossProducts)
{
  sint64 value;
  EXPECT_EQ(Words(15, 0), words(i64mul(value, number(3, 0), number(0, 5))));
  // (2 * 2 to the 32nd + 3) * 5
  EXPECT_EQ(Words(10, 15), words(i64mul(value, number(0, 5), number(2, 3))));
}

TEST(Int64Mul, OverflowWraps)
{
  sint64 value;
  EXPECT_EQ("-2", decimal(i64mul(value, i64max(), signedNumber(2))));
  EXPECT_EQ(smallest, words(i64mul(value, i64min(), signedNumber(-1))));
  EXPECT_EQ("0", decimal(i64mul(value, number(1, 0), number(1, 0))));
}

TEST(Int64Mul, WidenedOperandsOverflow)
{
  sint64 value;
  EXPECT_EQ(smallest, words(i64mull(value, i64min(), -1)));
  EXPECT_EQ("0", decimal(i64mull(value, i64min(), INT32_MIN)));
  // (2 to the 63rd - 1) * (2 to the 32nd - 1), of which 2 to the 63rd - 2 to
  // the 32nd + 1 is left.
  EXPECT_EQ(Words(INT32_MAX, 1), words(i64mulul(value, i64max(), UINT32_MAX)));
}

TEST(Int64Mul, WidenedOperands)
{
  sint64 value;
  EXPECT_EQ(&value, &i64mull(value, signedNumber(10), -3));
  EXPECT_EQ("-30", decimal(value));
  EXPECT_EQ("-21474836480",
            decimal(i64mull(value, signedNumber(10), INT32_MIN)));
  EXPECT_EQ(&value, &i64mulul(value, signedNumber(-1), UINT32_MAX));
  EXPECT_EQ("-4294967295", decimal(value));
}

TEST(Int64Div, BySigned)
{
  sint64 value;
  EXPECT_EQ(&value, &i64divl(value, signedNumber(7), 2));
  EXPECT_EQ("3", decimal(value));
  EXPECT_EQ("-3", decimal(i64divl(value, signedNumber(-7), 2)));
  EXPECT_EQ("-3", decimal(i64divl(value, signedNumber(7), -2)));
  EXPECT_EQ("3", decimal(i64divl(value, signedNumber(-7), -2)));
  EXPECT_EQ("0", decimal(i64divl(value, signedNumber(-1), 2)));
}

TEST(Int64Div, BySignedAtLimits)
{
  sint64 value;
  EXPECT_EQ(smallest, words(i64divl(value, i64min(), 1)));
  EXPECT_EQ(smallest, words(i64divl(value, i64min(), -1)));
  EXPECT_EQ("4294967296", decimal(i64divl(value, i64min(), INT32_MIN)));
  EXPECT_EQ("-4294967295", decimal(i64divl(value, i64max(), INT32_MIN)));
  EXPECT_EQ("-9223372036854775807", decimal(i64divl(value, i64max(), -1)));
}

TEST(Int64Div, ByUnsigned)
{
  sint64 value;
  EXPECT_EQ(&value, &i64divul(value, signedNumber(-100), 7));
  EXPECT_EQ("-14", decimal(value));
  EXPECT_EQ("922337203685477580", decimal(i64divul(value, i64max(), 10)));
  EXPECT_EQ("-922337203685477580", decimal(i64divul(value, i64min(), 10)));
  // 2 to the 63rd = 2147483648 * (2 to the 32nd - 1) + 2147483648
  EXPECT_EQ("-2147483648", decimal(i64divul(value, i64min(), UINT32_MAX)));
  EXPECT_EQ("0", decimal(i64divul(value, signedNumber(-1), UINT32_MAX)));
}

TEST(Int64Div, ByZero)
{
  for (sint64 dividend : {signedNumber(1), signedNumber(0), signedNumber(-1),
                          i64min(), i64max()}) {
    sint64 value;
    EXPECT_EQ(largest, words(i64divl(value, dividend, 0)));
    value = sint64{};
    EXPECT_EQ(largest, words(i64divul(value, dividend, 0)));
  }
}

TEST(Int64Mod, SignOfValue)
{
  EXPECT_EQ(1, i64modl(signedNumber(7), 2));
  EXPECT_EQ(-1, i64modl(signedNumber(-7), 2));
  EXPECT_EQ(1, i64modl(signedNumber(7), -2));
  EXPECT_EQ(-1, i64modl(signedNumber(-7), -2));
  EXPECT_EQ(0, i64modl(signedNumber(-8), 2));
  EXPECT_EQ(-2, i64modul(signedNumber(-100), 7));
  EXPECT_EQ(2, i64modul(signedNumber(100), 7));
}

TEST(Int64Mod, AtLimits)
{
  EXPECT_EQ(-8, i64modl(i64min(), 10));
  EXPECT_EQ(7, i64modul(i64max(), 10));
  EXPECT_EQ(0, i64modl(i64min(), INT32_MIN));
  EXPECT_EQ(2147483647, i64modl(i64max(), INT32_MIN));
  EXPECT_EQ(0, i64modl(i64min(), -1));
  // 2 to the 63rd = 2147483648 * (2 to the 32nd - 1) + 2147483648
  EXPECT_EQ(INT32_MIN, i64modul(i64min(), UINT32_MAX));
  EXPECT_EQ(2147483647, i64modul(i64max(), UINT32_MAX));
}

// A remainder above 2147483647 comes out as the low word.
TEST(Int64Mod, LowWordOfLargeRemainder)
{
  EXPECT_EQ(-2, i64modul(number(0, 0xFFFFFFFE), UINT32_MAX));
}

TEST(Int64Mod, ByZero)
{
  for (int32_t value : {-1, 0, 1}) {
    EXPECT_EQ(2147483647, i64modl(signedNumber(value), 0));
    EXPECT_EQ(2147483647, i64modul(signedNumber(value), 0));
  }
}

TEST(Int64Neg, TwosComplement)
{
  sint64 value;
  EXPECT_EQ(&value, &i64neg(value, signedNumber(5)));
  EXPECT_EQ(Words(-1, 0xFFFFFFFB), words(value));
  EXPECT_EQ(Words(0, 0), words(i64neg(value, sint64{})));
  EXPECT_EQ(Words(-1, 0), words(i64neg(value, number(1, 0))));
  EXPECT_EQ(Words(INT32_MIN, 1), words(i64neg(value, i64max())));
  EXPECT_EQ(smallest, words(i64neg(value, i64min())));
}

TEST(Int64Tests, Zero)
{
  EXPECT_TRUE(i64iszero(number(0, 0)));
  EXPECT_FALSE(i64iszero(number(0, 1)));
  EXPECT_FALSE(i64iszero(number(1, 0)));
}

TEST(Int64Tests, MaxAndMin)
{
  EXPECT_TRUE(i64ismax(i64max()));
  EXPECT_FALSE(i64ismax(number(INT32_MAX, UINT32_MAX - 1)));
  EXPECT_FALSE(i64ismax(number(-1, UINT32_MAX)));
  EXPECT_FALSE(i64ismax(i64min()));
  EXPECT_TRUE(i64ismin(i64min()));
  EXPECT_FALSE(i64ismin(number(INT32_MIN, 1)));
  EXPECT_FALSE(i64ismin(number(0, 0)));
  EXPECT_FALSE(i64ismin(i64max()));
}

TEST(Int64Tests, Signs)
{
  EXPECT_TRUE(i64ispos(signedNumber(1)));
  EXPECT_TRUE(i64ispos(number(0, 0x80000000)));
  EXPECT_TRUE(i64ispos(i64max()));
  EXPECT_FALSE(i64ispos(sint64{}));
  EXPECT_FALSE(i64ispos(signedNumber(-1)));
  EXPECT_TRUE(i64isneg(signedNumber(-1)));
  EXPECT_TRUE(i64isneg(i64min()));
  EXPECT_FALSE(i64isneg(sint64{}));
  EXPECT_FALSE(i64isneg(number(0, UINT32_MAX)));
}

TEST(Int64Cmp, HighWordsSigned)
{
  EXPECT_EQ(-1, i64cmp(signedNumber(-1), sint64{}));
  EXPECT_EQ(1, i64cmp(sint64{}, signedNumber(-1)));
  EXPECT_EQ(-1, i64cmp(i64min(), i64max()));
  EXPECT_EQ(1, i64cmp(number(1, 0), number(0, UINT32_MAX)));
}

TEST(Int64Cmp, LowWordsUnsigned)
{
  EXPECT_EQ(1, i64cmp(number(0, UINT32_MAX), number(0, 1)));
  EXPECT_EQ(-1, i64cmp(number(-1, 1), number(-1, UINT32_MAX)));
  EXPECT_EQ(0, i64cmp(number(-1, 5), number(-1, 5)));
}

TEST(Int64Cmp, WidenedOperands)
{
  EXPECT_EQ(0, i64cmpl(signedNumber(-1), -1));
  EXPECT_EQ(-1, i64cmpl(number(-1, 0), INT32_MIN));
  EXPECT_EQ(1, i64cmpl(number(0, 0x80000000), INT32_MAX));
  EXPECT_EQ(0, i64cmpul(number(0, UINT32_MAX), UINT32_MAX));
  EXPECT_EQ(-1, i64cmpul(signedNumber(-1), UINT32_MAX));
  EXPECT_EQ(1, i64cmpul(number(1, 0), UINT32_MAX));
}

TEST(Int64ShiftLeft, Counts)
{
  sint64 value;
  sint64 pattern = number(0x12345678, 0x9ABCDEF0);
  EXPECT_EQ(&value, &i64shiftl(value, pattern, 0));
  EXPECT_EQ(words(pattern), words(value));
  EXPECT_EQ(Words(0x23456789, 0xABCDEF00), words(i64shiftl(value, pattern, 4)));
  EXPECT_EQ(Words(0, 0x80000000), words(i64shiftl(value, number(0, 1), 31)));
  EXPECT_EQ(Words(static_cast<int32_t>(0x9ABCDEF0), 0),
            words(i64shiftl(value, pattern, 32)));
  EXPECT_EQ(Words(2, 0), words(i64shiftl(value, number(7, 1), 33)));
  EXPECT_EQ(smallest, words(i64shiftl(value, number(0, 3), 63)));
  EXPECT_EQ(Words(0, 0), words(i64shiftl(value, pattern, 64)));
  EXPECT_EQ(Words(0, 0), words(i64shiftl(value, pattern, 100)));
}

TEST(Int64ShiftRight, KeepsSign)
{
  sint64 value;
  EXPECT_EQ(&value, &i64shiftr(value, number(-8, 3), 0));
  EXPECT_EQ(Words(-8, 3), words(value));
  EXPECT_EQ(Words(-4, 0x80000001), words(i64shiftr(value, number(-7, 3), 1)));
  EXPECT_EQ(Words(0, 8), words(i64shiftr(value, number(8, 3), 32)));
  EXPECT_EQ(Words(-1, 0xFFFFFFF8), words(i64shiftr(value, number(-8, 3), 32)));
  EXPECT_EQ(Words(-1, 0xFFFFFFFC), words(i64shiftr(value, number(-8, 3), 33)));
  EXPECT_EQ("-1", decimal(i64shiftr(value, i64min(), 63)));
  EXPECT_EQ("0", decimal(i64shiftr(value, i64max(), 63)));
  EXPECT_EQ("-1", decimal(i64shiftr(value, i64min(), 64)));
  EXPECT_EQ("0", decimal(i64shiftr(value, i64max(), 64)));
  EXPECT_EQ("-1", decimal(i64shiftr(value, signedNumber(-1), UINT_MAX)));
}

TEST(Int64ShiftRight, UnsignedFillsZeros)
{
  sint64 value;
  EXPECT_EQ(&value, &i64ushiftr(value, number(-8, 3), 0));
  EXPECT_EQ(Words(-8, 3), words(value));
  EXPECT_EQ(Words(0x7FFFFFFC, 1), words(i64ushiftr(value, number(-8, 3), 1)));
  EXPECT_EQ(Words(0, 0xFFFFFFF8), words(i64ushiftr(value, number(-8, 3), 32)));
  EXPECT_EQ(Words(0, 1), words(i64ushiftr(value, i64min(), 63)));
  EXPECT_EQ(Words(0, 0), words(i64ushiftr(value, signedNumber(-1), 64)));
  EXPECT_EQ(Words(0, 0), words(i64ushiftr(value, signedNumber(-1), 1000)));
}
