// Sizes of ranges, kinds and fields of INTEGER values, and calls for lengths.

#include "base/strings.h"
#include "per/perint.h"
#include "per/perlength.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/segs.h"

using testing::ExitedWithCode;

namespace {

constexpr int64_t power2(int exponent)
{
  return int64_t{1} << exponent;
}

struct PerInt : LoadedAsn {
  int variant = perGetEncodingVariant();

  PerInt() { perSetEncodingVariant(VARIANT_ALIGNED); }
  ~PerInt() override { perSetEncodingVariant(variant); }

  // A view of T as the text has it.
  TestType typeOf(const std::string &notation)
  {
    load("T ::= " + notation + "\n");
    return TestType(module, type("T"));
  }

  // "lower..upper" of a type.
  std::string endpoints(const std::string &notation)
  {
    TestType view = typeOf(notation);
    sint64 lower, upper;
    getIntegerEndpoints(*view, lower, upper);
    return std::to_string(native(lower)) + ".." + std::to_string(native(upper));
  }

  // "field, octets" between bounds; octets are 77 where they are left alone.
  static std::string fieldOf(int64_t lower, int64_t upper)
  {
    int octets = 77;
    int field = getIntegerNumberFieldByBounds(big(lower), big(upper), octets);
    return formatText("%d, %d", field, octets);
  }
};

// --- sizes of ranges --------------------------------------------------------

// "range", and "!" if the number of values does not fit.
std::string rangeOf(int64_t lower, int64_t upper)
{
  sint64 range;
  bool good = range64(range, big(upper), big(lower));
  return std::to_string(native(range)) + (good ? "" : "!");
}

TEST_F(PerInt, Range64)
{
  EXPECT_EQ(rangeOf(0, 7), "8");
  EXPECT_EQ(rangeOf(5, 5), "1");
  EXPECT_EQ(rangeOf(6, 5), "0");
  EXPECT_EQ(rangeOf(7, 5), "-1!");
  EXPECT_EQ(rangeOf(-3, 3), "7");
}

TEST_F(PerInt, Range64EndsAt63Bits)
{
  EXPECT_EQ(rangeOf(0, highest - 1), std::to_string(highest));
  EXPECT_EQ(rangeOf(-1, highest - 2), std::to_string(highest));
  EXPECT_EQ(rangeOf(0, highest), std::to_string(lowest) + "!");
  EXPECT_EQ(rangeOf(-1, highest - 1), std::to_string(lowest) + "!");
}

TEST_F(PerInt, Range64Wraps)
{
  // The bounds of a set without ranges.
  EXPECT_EQ(rangeOf(highest, lowest), "2");
  EXPECT_EQ(rangeOf(lowest, highest), "0");
}

TEST_F(PerInt, OctetsInRange32)
{
  struct {
    int32_t range;
    int octets;
  } rows[] = {
      {INT32_MIN, 0}, {-1, 0},       {0, 0},         {1, 0},
      {254, 0},       {255, 0},      {256, 1},       {257, 2},
      {65535, 2},     {65536, 2},    {65537, 3},     {16777215, 3},
      {16777216, 3},  {16777217, 4}, {INT32_MAX, 4},
  };
  for (const auto &row : rows)
    EXPECT_EQ(numberOfOctetsInRange32(row.range), row.octets) << row.range;
}

TEST_F(PerInt, OctetsInRange64)
{
  EXPECT_EQ(numberOfOctetsInRange64(big(lowest)), 0);
  EXPECT_EQ(numberOfOctetsInRange64(big(0)), 0);
  EXPECT_EQ(numberOfOctetsInRange64(big(254)), 0);
  EXPECT_EQ(numberOfOctetsInRange64(big(255)), 0);
  EXPECT_EQ(numberOfOctetsInRange64(big(256)), 1);
  EXPECT_EQ(numberOfOctetsInRange64(big(257)), 2);
  EXPECT_EQ(numberOfOctetsInRange64(big(highest)), 8);
  for (int octets = 2; octets < 8; ++octets) {
    int64_t limit = power2(8 * octets);
    EXPECT_EQ(numberOfOctetsInRange64(big(limit - 1)), octets);
    EXPECT_EQ(numberOfOctetsInRange64(big(limit)), octets);
    EXPECT_EQ(numberOfOctetsInRange64(big(limit + 1)), octets + 1);
  }
}

TEST_F(PerInt, BitsInRange32)
{
  struct {
    int32_t range;
    int bits;
  } rows[] = {
      {INT32_MIN, 0}, {-1, 0},     {0, 0},      {1, 0},
      {2, 1},         {3, 2},      {4, 2},      {5, 3},
      {8, 3},         {9, 4},      {255, 8},    {256, 8},
      {257, 9},       {65536, 16}, {65537, 17}, {INT32_MAX, 31},
  };
  for (const auto &row : rows)
    EXPECT_EQ(numberOfBitsInRange32(row.range), row.bits) << row.range;
}

TEST_F(PerInt, BitsInRange64)
{
  EXPECT_EQ(numberOfBitsInRange64(big(0)), 0);
  EXPECT_EQ(numberOfBitsInRange64(big(1)), 0);
  for (int bits = 1; bits < 63; ++bits) {
    EXPECT_EQ(numberOfBitsInRange64(big(power2(bits))), bits);
    EXPECT_EQ(numberOfBitsInRange64(big(power2(bits) + 1)), bits + 1);
  }
  EXPECT_EQ(numberOfBitsInRange64(big(highest)), 63);
}

TEST_F(PerInt, BitsOfANegativeRange)
{
  EXPECT_EXIT(
      numberOfBitsInRange64(big(-1)), ExitedWithCode(2),
      "Internal error\n +Pre-condition failure in numberOfBitsInRange64\n");
}

TEST_F(PerInt, BitsBetweenBounds)
{
  EXPECT_EQ(perBitsInIntegerBitField(big(0), big(7)), 3);
  EXPECT_EQ(perBitsInIntegerBitField(big(-4), big(4)), 4);
  EXPECT_EQ(perBitsInIntegerBitField(big(5), big(5)), 0);
  EXPECT_EQ(perBitsInIntegerBitField(big(6), big(5)), 0);
  EXPECT_EQ(perBitsInIntegerBitField(big(0), big(highest - 1)), 63);
}

TEST_F(PerInt, BitsBetweenBoundsTooFarApart)
{
  EXPECT_EXIT(
      perBitsInIntegerBitField(big(0), big(highest)), ExitedWithCode(2),
      "Internal error\n +Pre-condition failure in perBitsInIntegerBitField\n");
  EXPECT_EXIT(
      perBitsInIntegerBitField(big(7), big(5)), ExitedWithCode(2),
      "Internal error\n +Pre-condition failure in perBitsInIntegerBitField\n");
}

TEST_F(PerInt, BitsBetweenBounds32)
{
  EXPECT_EQ(perBitsInInteger32BitField(0, 7), 3);
  EXPECT_EQ(perBitsInInteger32BitField(1, 9), 4);
  EXPECT_EQ(perBitsInInteger32BitField(5, 5), 0);
  // The range wraps below 1.
  EXPECT_EQ(perBitsInInteger32BitField(0, INT32_MAX), 0);
  EXPECT_EQ(perBitsInInteger32BitField(INT32_MIN, INT32_MAX), 0);
}

TEST_F(PerInt, BitsOfTheLengthInOctets)
{
  int bits[] = {0, 0, 1, 2, 2, 3, 3, 3, 3};
  for (int octets = 0; octets <= 8; ++octets)
    EXPECT_EQ(perBitsInIntegerLenDeterminant(octets), bits[octets]) << octets;
}

// --- classes ----------------------------------------------------------------

TEST_F(PerInt, WholeNumberField)
{
  struct {
    int64_t range;
    int field;
  } rows[] = {
      {0, INT_LE255},     {1, INT_EQ1},         {2, INT_LE255},
      {254, INT_LE255},   {255, INT_LE255},     {256, INT_EQ256},
      {257, INT_LE64K},   {65535, INT_LE64K},   {65536, INT_LE64K},
      {65537, INT_GT64K}, {highest, INT_GT64K},
  };
  for (const auto &row : rows)
    EXPECT_EQ(perGetConstrainedWholeNumberField(big(row.range)), row.field)
        << row.range;
}

TEST_F(PerInt, LengthsBelow64K)
{
  struct {
    int32_t lower, upper;
    int field;
  } rows[] = {
      {7, 7, INT_EQ1},
      {7, 8, INT_LE255},
      {1, 254, INT_LE255},
      {1, 255, INT_LE255},
      {1, 256, INT_EQ256},
      {1, 257, INT_LE64K},
      {0, 65534, INT_LE64K},
      {0, 65535, INT_LE64K},
      // Too large for the class that it is said to be of.
      {0, 65536, INT_NONE},
      // Below 256, since the range wraps.
      {0, INT32_MAX, INT_LE255},
  };
  for (const auto &row : rows)
    EXPECT_EQ(
        perGetLengthDeterminantField(row.lower, row.upper, LENGTH_BELOW_64K),
        row.field)
        << row.lower << ".." << row.upper;
}

TEST_F(PerInt, LengthsOfOtherClasses)
{
  EXPECT_EQ(perGetLengthDeterminantField(1, 70000, LENGTH_FROM_64K), INT_GT64K);
  EXPECT_EQ(perGetLengthDeterminantField(1, INT32_MAX, LENGTH_WITHOUT_END),
            INT_GT64K);
  // By the class alone.
  EXPECT_EQ(perGetLengthDeterminantField(1, 10, LENGTH_WITHOUT_END), INT_GT64K);
  EXPECT_EQ(perGetLengthDeterminantField(1, 10, 0), INT_NONE);
  EXPECT_EQ(perGetLengthDeterminantField(1, 10, LENGTH_CHARS_WITHOUT_END),
            INT_NONE);
}

TEST_F(PerInt, Endpoints)
{
  std::string min = std::to_string(lowest), max = std::to_string(highest);
  EXPECT_EQ(endpoints("INTEGER (3..7)"), "3..7");
  EXPECT_EQ(endpoints("INTEGER (MIN..5)"), min + "..5");
  EXPECT_EQ(endpoints("INTEGER (-2..MAX)"), "-2.." + max);
  EXPECT_EQ(endpoints("INTEGER"), min + ".." + max);
  EXPECT_EQ(endpoints("ENUMERATED { a(3), b(1), ..., c(9) }"), "1..9");
}

TEST_F(PerInt, EndpointsPassOverGaps)
{
  EXPECT_EQ(endpoints("INTEGER (1 | 5 | 9)"), "1..9");
  EXPECT_EQ(endpoints("INTEGER (9 | 1 | 5)"), "1..9");
  // The upper half of such a set stands first.
  EXPECT_EQ(endpoints("INTEGER (0..10 EXCEPT 5)"), "0..10");
}

TEST_F(PerInt, EndpointsOfTheRoot)
{
  EXPECT_EQ(endpoints("INTEGER (0..7, ...)"), "0..7");
  EXPECT_EQ(endpoints("INTEGER (0..7, ..., 8..20)"), "0..7");
}

TEST_F(PerInt, EndpointsOfOtherTypes)
{
  EXPECT_EQ(endpoints("BOOLEAN"),
            std::to_string(highest) + ".." + std::to_string(lowest));
}

TEST_F(PerInt, KindByBounds)
{
  struct {
    int64_t lower, upper;
    int kind;
  } rows[] = {
      {5, 5, INT_SINGLE},
      {lowest, lowest, INT_SINGLE},
      {highest, highest, INT_SINGLE},
      {5, 6, INT_CONSTRAINED},
      {lowest + 1, highest - 1, INT_CONSTRAINED},
      {highest, lowest, INT_CONSTRAINED},
      {5, highest, INT_SEMI_CONSTRAINED},
      {lowest + 1, highest, INT_SEMI_CONSTRAINED},
      {lowest, 5, INT_UNCONSTRAINED},
      {lowest, highest - 1, INT_UNCONSTRAINED},
      {lowest, highest, INT_UNCONSTRAINED},
  };
  for (const auto &row : rows)
    EXPECT_EQ(getIntegerNumberKindByBounds(big(row.lower), big(row.upper)),
              row.kind)
        << row.lower << ".." << row.upper;
}

TEST_F(PerInt, FieldByBounds)
{
  EXPECT_EQ(fieldOf(5, 5), "0, 0");
  EXPECT_EQ(fieldOf(highest, highest), "0, 0");
  EXPECT_EQ(fieldOf(0, 1), "1, 0");
  EXPECT_EQ(fieldOf(0, 253), "1, 0");
  EXPECT_EQ(fieldOf(0, 254), "1, 0");
  EXPECT_EQ(fieldOf(0, 255), "2, 1");
  EXPECT_EQ(fieldOf(0, 256), "3, 2");
  EXPECT_EQ(fieldOf(0, 65534), "3, 2");
  EXPECT_EQ(fieldOf(0, 65535), "3, 2");
  EXPECT_EQ(fieldOf(0, 65536), "4, 3");
  EXPECT_EQ(fieldOf(1, 16777216), "4, 3");
  EXPECT_EQ(fieldOf(0, 16777216), "4, 4");
  EXPECT_EQ(fieldOf(-4, 3), "1, 0");
}

TEST_F(PerInt, FieldOfOpenEnds)
{
  EXPECT_EQ(fieldOf(0, highest), "4, -1");
  EXPECT_EQ(fieldOf(lowest, 0), "4, -1");
  EXPECT_EQ(fieldOf(lowest, highest), "4, -1");
}

TEST_F(PerInt, FieldOfWhatDoesNotFit)
{
  EXPECT_EQ(fieldOf(0, highest - 1), "4, 8");
  EXPECT_EQ(fieldOf(-1, highest - 1), "5, 77");
  EXPECT_EQ(fieldOf(lowest + 1, highest - 1), "5, 77");
}

TEST_F(PerInt, KindAndFieldOfTypes)
{
  struct {
    const char *notation;
    int kind, field, octets;
  } rows[] = {
      {"INTEGER (5)", INT_SINGLE, INT_EQ1, 0},
      {"INTEGER (0..7)", INT_CONSTRAINED, INT_LE255, 0},
      {"INTEGER (0..MAX)", INT_SEMI_CONSTRAINED, INT_GT64K, -1},
      {"INTEGER (MIN..5)", INT_UNCONSTRAINED, INT_GT64K, -1},
      {"INTEGER", INT_UNCONSTRAINED, INT_GT64K, -1},
      {"ENUMERATED { a, b }", INT_CONSTRAINED, INT_LE255, 0},
  };
  for (const auto &row : rows) {
    TestType view = typeOf(row.notation);
    sint64 lower, upper;
    int octets = 77;
    EXPECT_EQ(perGetIntegerNumberKind(*view), row.kind) << row.notation;
    EXPECT_EQ(perGetIntegerNumberField(*view, lower, upper, octets), row.field)
        << row.notation;
    EXPECT_EQ(octets, row.octets) << row.notation;
  }
}

// --- calls for lengths -------------------------------------------------------

constexpr char none[] = "none";

struct LengthCall : PerInt {
  std::string call(int inVariant, int field)
  {
    perSetEncodingVariant(inVariant);
    TestType view = typeOf("SEQUENCE OF NULL");
    std::string text = "old";
    std::string *name = perLengthDeterminantFunctionName(
        text, "pe_", field, *view, "listLen (home)", 1, 10, 4, ";\n");
    if (name) {
      EXPECT_EQ(name, &text);
      return "\"" + text + "\"";
    }
    EXPECT_EQ(text, "");
    return none;
  }
};

TEST_F(LengthCall, Names)
{
  struct {
    int field;
    const char *aligned, *unaligned;
  } rows[] = {
      {INT_EQ1, "lenDet_al_clt64K_eq1", "lenDet_ua_clt64K_eq1"},
      {INT_LE255, "lenDet_al_clt64K_le255", "lenDet_ua_clt64K_le64K"},
      {INT_EQ256, "lenDet_al_clt64K_eq256", "lenDet_ua_clt64K_le64K"},
      {INT_LE64K, "lenDet_al_clt64K_le64K", "lenDet_ua_clt64K_le64K"},
  };
  for (const auto &row : rows) {
    std::string arguments = " (listLen (home), 1, 10, 4);\n\"";
    EXPECT_EQ(call(VARIANT_ALIGNED, row.field),
              std::string("\"pe_") + row.aligned + arguments);
    EXPECT_EQ(call(VARIANT_UNALIGNED, row.field),
              std::string("\"pe_") + row.unaligned + arguments);
  }
}

TEST_F(LengthCall, EmptyForFragmentation)
{
  EXPECT_EQ(call(VARIANT_ALIGNED, INT_GT64K), "\"\"");
  EXPECT_EQ(call(VARIANT_UNALIGNED, INT_GT64K), "\"\"");
}

TEST_F(LengthCall, NoFunction)
{
  for (int field : {INT_NONE + 0, INT_NONE + 1, -1}) {
    EXPECT_EQ(call(VARIANT_ALIGNED, field), none);
    EXPECT_EQ(call(VARIANT_UNALIGNED, field), none);
  }
  for (int field = INT_EQ1; field <= INT_NONE; ++field)
    EXPECT_EQ(call(2, field), none);
}

TEST_F(LengthCall, OneVariant)
{
  // Whatever the variant in force is.
  perSetEncodingVariant(2);
  TestType view = typeOf("SEQUENCE OF NULL");
  std::string text = "old";
  EXPECT_TRUE(alignedLenDetFuncName(text, nullptr, INT_LE255, *view, "n", -1,
                                    INT32_MAX, 8, nullptr));
  EXPECT_EQ(text, "lenDet_al_clt64K_le255 (n, -1, 2147483647, 8)");
  EXPECT_TRUE(unalignedLenDetFuncName(text, nullptr, INT_LE255, *view, "n", 0,
                                      7, 3, nullptr));
  EXPECT_EQ(text, "lenDet_ua_clt64K_le64K (n, 0, 7, 3)");
  EXPECT_TRUE(
      alignedLenDetFuncName(text, "x", INT_GT64K, *view, "n", 0, 7, 3, "y"));
  EXPECT_EQ(text, "");
  text = "old";
  EXPECT_FALSE(
      alignedLenDetFuncName(text, "x", INT_NONE, *view, "n", 0, 7, 3, "y"));
  EXPECT_EQ(text, "");
  EXPECT_FALSE(
      unalignedLenDetFuncName(text, "x", INT_NONE, *view, "n", 0, 7, 3, "y"));
}

}  // namespace
