// Functions of INTEGER values, with the counts in their calls.

#include "base/strings.h"
#include "per/perint.h"
#include "per/variant.h"
#include "store/codes.h"
#include "support/loadedasn.h"
#include "support/segs.h"
#include <iterator>

namespace {

constexpr char none[] = "none";

struct PerIntName : LoadedAsn {
  int variant = perGetEncodingVariant();

  PerIntName() { perSetEncodingVariant(VARIANT_ALIGNED); }
  ~PerIntName() override { perSetEncodingVariant(variant); }

  // A view of T as the text has it, with the home of its annotation.
  TestType typeOf(const std::string &notation)
  {
    load("T ::= " + notation + "\n");
    return TestType(module, type("T"));
  }

  // Name and bounds with the counts, as they stand in a call.
  static std::string callOf(AsnType &view)
  {
    std::string text;
    int kind = -1, octets = -1;
    sint64 lower, upper;
    if (!perIntegerFunctionName(text, nullptr, view, ":", kind, lower, upper,
                                octets))
      return "none";
    if (kind != INT_UNCONSTRAINED)
      text += " " + std::to_string(native(lower));
    if (kind == INT_CONSTRAINED) {
      text += ", " + std::to_string(native(upper));
      int counts[2];
      int count = perIntegerCounts(counts, lower, upper, octets);
      for (int i = 0; i < count; ++i)
        text += ", " + std::to_string(counts[i]);
    }
    return text;
  }
  std::string call(const std::string &notation, int inVariant)
  {
    perSetEncodingVariant(inVariant);
    TestType view = typeOf(notation);
    return callOf(*view);
  }

  static std::string countsOf(int64_t lower, int64_t upper, int octets)
  {
    int counts[2] = {-7, -7};
    int count = perIntegerCounts(counts, big(lower), big(upper), octets);
    std::string text;
    for (int i = 0; i < count; ++i)
      text += (i ? ", " : "") + std::to_string(counts[i]);
    return text;
  }
};

// --- indexes ----------------------------------------------------------------

TEST_F(PerIntName, VariantIndex)
{
  EXPECT_EQ(encodingVariant2Index(0), 0);
  EXPECT_EQ(encodingVariant2Index(1), 1);
  EXPECT_EQ(encodingVariant2Index(2), -1);
  EXPECT_EQ(encodingVariant2Index(-1), -1);
}

TEST_F(PerIntName, ValueFormatIndex)
{
  for (int format = VF_NONE; format < VF_BMPSTR + 2; ++format) {
    int index = format == VF_UI64 || format == VF_I64 ? 0
                : format == VF_UI32                   ? 1
                                                      : 2;
    EXPECT_EQ(vf2Index(format), index) << format;
  }
}

TEST_F(PerIntName, FieldAndKindIndex)
{
  for (int field = INT_EQ1; field <= INT_NONE; ++field) {
    EXPECT_EQ(intFieldKind2Index(INT_SINGLE, field), 0);
    EXPECT_EQ(intFieldKind2Index(INT_SEMI_CONSTRAINED, field), 5);
    EXPECT_EQ(intFieldKind2Index(INT_UNCONSTRAINED, field), 6);
    EXPECT_EQ(intFieldKind2Index(-1, field), -1);
    EXPECT_EQ(intFieldKind2Index(4, field), -1);
  }
  for (int field = INT_LE255; field <= INT_GT64K; ++field)
    EXPECT_EQ(intFieldKind2Index(INT_CONSTRAINED, field), field);
  EXPECT_EQ(intFieldKind2Index(INT_CONSTRAINED, INT_EQ1), -1);
  EXPECT_EQ(intFieldKind2Index(INT_CONSTRAINED, INT_NONE), -1);
  EXPECT_EQ(intFieldKind2Index(INT_CONSTRAINED, -1), -1);
}

// --- names ------------------------------------------------------------------

// A type for each column of the table, the last values of each field.
const char *const columns[] = {
    "INTEGER (5)",        "INTEGER (0..254)",   "INTEGER (0..255)",
    "INTEGER (0..65535)", "INTEGER (0..65536)", "INTEGER (0..MAX)",
    "INTEGER (MIN..5)",
};

struct NameRow {
  int variant;
  std::vector<int> formats;  // of homes
  const char *names[std::size(columns)];
};

// Every format of a number, and one that no number has.
const std::vector<int> homes64{VF_UI64, VF_I64};
const std::vector<int> homesUnsigned{VF_UI32};
const std::vector<int> otherHomes{VF_UI8, VF_UI16, VF_I8,
                                  VF_I16, VF_I32,  VF_NONE};

const NameRow nameRows[] = {
    {VARIANT_ALIGNED,
     homes64,
     {none, none, none, none, "sint64_cwn_al_gt64K", "sint64_scwn_al",
      "sint64_ucwn_al"}},
    {VARIANT_ALIGNED,
     homesUnsigned,
     {none, none, none, none, "uint32_cwn_al_gt64K", none, none}},
    {VARIANT_ALIGNED,
     otherHomes,
     {"sint32_cwn_al_eq1", "sint32_cwn_al_le255", "sint32_cwn_al_eq256",
      "sint32_cwn_al_le64K", "sint32_cwn_al_gt64K", "sint32_scwn_al",
      "sint32_ucwn_al"}},
    {VARIANT_UNALIGNED,
     homes64,
     {none, none, none, none, "sint64_cwn_ua", "sint64_scwn_ua",
      "sint64_ucwn_ua"}},
    {VARIANT_UNALIGNED,
     homesUnsigned,
     {none, none, none, none, "uint32_cwn_ua", none, none}},
    {VARIANT_UNALIGNED,
     otherHomes,
     {"sint32_cwn_ua_eq1", "sint32_cwn_ua", "sint32_cwn_ua", "sint32_cwn_ua",
      "sint32_cwn_ua", "sint32_scwn_ua", "sint32_ucwn_ua"}},
};

// The name alone.
std::string bareName(AsnType &view)
{
  std::string text;
  int kind, octets = 0;
  sint64 lower, upper;
  return perIntegerFunctionName(text, nullptr, view, nullptr, kind, lower,
                                upper, octets)
             ? text
             : none;
}

TEST_F(PerIntName, NamesOfAllHomes)
{
  for (size_t column = 0; column < std::size(columns); ++column) {
    TestType view = typeOf(columns[column]);
    for (const NameRow &row : nameRows) {
      perSetEncodingVariant(row.variant);
      for (int format : row.formats) {
        view->base.valueField = static_cast<uint8_t>(format);
        EXPECT_EQ(bareName(*view), row.names[column])
            << columns[column] << ", home " << format;
      }
    }
  }
}

TEST_F(PerIntName, NamesAtTheBoundaries)
{
  struct {
    const char *notation, *aligned;
  } rows[] = {
      {"INTEGER (4..5)", "sint32_cwn_al_le255"},
      {"INTEGER (1..254)", "sint32_cwn_al_le255"},
      {"INTEGER (1..255)", "sint32_cwn_al_le255"},
      {"INTEGER (1..256)", "sint32_cwn_al_eq256"},
      {"INTEGER (1..257)", "sint32_cwn_al_le64K"},
      {"INTEGER (1..65535)", "sint32_cwn_al_le64K"},
      {"INTEGER (1..65536) --$ field=i32", "sint32_cwn_al_le64K"},
      {"INTEGER (1..65537) --$ field=i32", "sint32_cwn_al_gt64K"},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(call(row.notation, VARIANT_ALIGNED).find(row.aligned), 0u)
        << row.notation;
    EXPECT_EQ(call(row.notation, VARIANT_UNALIGNED).find("sint32_cwn_ua:"), 0u)
        << row.notation;
  }
}

TEST_F(PerIntName, NoNamesWithoutAVariant)
{
  for (const char *notation : columns) {
    EXPECT_EQ(call(notation, 2), none) << notation;
    EXPECT_EQ(call(notation, -1), none) << notation;
  }
}

TEST_F(PerIntName, Calls)
{
  struct {
    const char *notation, *aligned, *unaligned;
  } rows[] = {
      {"INTEGER (5)", "sint32_cwn_al_eq1: 5", "sint32_cwn_ua_eq1: 5"},
      {"INTEGER (0..7)", "sint32_cwn_al_le255: 0, 7, 3",
       "sint32_cwn_ua: 0, 7, 3"},
      {"INTEGER (0..255)", "sint32_cwn_al_eq256: 0, 255, 1",
       "sint32_cwn_ua: 0, 255, 8"},
      {"INTEGER (0..1000)", "sint32_cwn_al_le64K: 0, 1000, 2",
       "sint32_cwn_ua: 0, 1000, 10"},
      {"INTEGER (0..65535)", "sint32_cwn_al_le64K: 0, 65535, 2",
       "sint32_cwn_ua: 0, 65535, 16"},
      {"INTEGER (0..65536) --$ field=i32",
       "sint32_cwn_al_gt64K: 0, 65536, 3, 2", "sint32_cwn_ua: 0, 65536, 17"},
      {"INTEGER (0..100000) --$ field=i32",
       "sint32_cwn_al_gt64K: 0, 100000, 3, 2", "sint32_cwn_ua: 0, 100000, 17"},
      {"INTEGER (1..16777216) --$ field=i32",
       "sint32_cwn_al_gt64K: 1, 16777216, 3, 2",
       "sint32_cwn_ua: 1, 16777216, 24"},
      {"INTEGER (0..16777216) --$ field=i32",
       "sint32_cwn_al_gt64K: 0, 16777216, 4, 2",
       "sint32_cwn_ua: 0, 16777216, 25"},
      {"INTEGER (0..MAX) --$ field=i32", "sint32_scwn_al: 0",
       "sint32_scwn_ua: 0"},
      {"INTEGER (-3..MAX)", "sint32_scwn_al: -3", "sint32_scwn_ua: -3"},
      {"INTEGER", "sint32_ucwn_al:", "sint32_ucwn_ua:"},
      {"INTEGER (MIN..5)", "sint32_ucwn_al:", "sint32_ucwn_ua:"},
      {"INTEGER (1099511627776..1099511727776) --$ field=i64",
       "sint64_cwn_al_gt64K: 1099511627776, 1099511727776, 3, 2",
       "sint64_cwn_ua: 1099511627776, 1099511727776, 17"},
      {"INTEGER (0..100000) --$ field=ui32",
       "uint32_cwn_al_gt64K: 0, 100000, 3, 2", "uint32_cwn_ua: 0, 100000, 17"},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(call(row.notation, VARIANT_ALIGNED), row.aligned);
    EXPECT_EQ(call(row.notation, VARIANT_UNALIGNED), row.unaligned);
  }
}

TEST_F(PerIntName, LargestRange)
{
  // One value more does not fit 63 bits, and there is no function.
  EXPECT_EQ(
      call("INTEGER (0..9223372036854775806) --$ field=i64", VARIANT_ALIGNED),
      "sint64_cwn_al_gt64K: 0, 9223372036854775806, 8, 3");
  for (const char *home : {"i64", "ui64", "i32"})
    EXPECT_EQ(
        call(std::string("INTEGER (-1..9223372036854775806) --$ field=") + home,
             VARIANT_ALIGNED),
        none);
  // An end at the largest number is open.
  EXPECT_EQ(
      call("INTEGER (0..9223372036854775807) --$ field=i64", VARIANT_ALIGNED),
      "sint64_scwn_al: 0");
}

TEST_F(PerIntName, ExtensibleTypesHaveTheBoundsOfTheRoot)
{
  EXPECT_EQ(call("INTEGER (0..7, ...)", VARIANT_ALIGNED),
            "sint32_cwn_al_le255: 0, 7, 3");
}

TEST_F(PerIntName, PrefixAndSuffix)
{
  TestType view = typeOf("INTEGER (0..7)");
  std::string text = "old";
  int kind = -1, octets = -1;
  sint64 lower, upper;
  EXPECT_EQ(perIntegerFunctionName(text, "pe_", *view, " (", kind, lower, upper,
                                   octets),
            &text);
  EXPECT_EQ(text, "pe_sint32_cwn_al_le255 (");
  EXPECT_EQ(kind, INT_CONSTRAINED);
  EXPECT_EQ(native(lower), 0);
  EXPECT_EQ(native(upper), 7);
  EXPECT_EQ(octets, 0);
}

TEST_F(PerIntName, ClassifiedWithoutAFunction)
{
  TestType view =
      typeOf("INTEGER (1099511627776..1099511627780) --$ field=i64");
  std::string text = "old";
  int kind = -1, octets = -1;
  sint64 lower, upper;
  EXPECT_EQ(perIntegerFunctionName(text, "pe_", *view, " (", kind, lower, upper,
                                   octets),
            nullptr);
  EXPECT_EQ(kind, INT_CONSTRAINED);
  EXPECT_EQ(native(lower), 1099511627776);
  EXPECT_EQ(native(upper), 1099511627780);
  EXPECT_EQ(octets, 0);
}

TEST_F(PerIntName, NamesWith32BitBounds)
{
  struct {
    const char *notation, *expected;
  } rows[] = {
      {"INTEGER (-5..7)", "<sint32_cwn_al_le255> 1: -5..7, 0"},
      {"INTEGER (0..70000) --$ field=i32",
       "<sint32_cwn_al_gt64K> 1: 0..70000, 3"},
      // What does not fit is the largest number.
      {"INTEGER (4..MAX) --$ field=i32",
       "<sint32_scwn_al> 2: 4..2147483647, -1"},
      {"INTEGER", "<sint32_ucwn_al> 3: 2147483647..2147483647, -1"},
      {"INTEGER (0..3) --$ field=i64", "none 1: 0..3, 0"},
  };
  for (const auto &row : rows) {
    TestType view = typeOf(row.notation);
    std::string text;
    int kind = -1, octets = -7;
    int32_t lower = -7, upper = -7;
    std::string *name = perInteger32FunctionName(text, "<", *view, ">", kind,
                                                 lower, upper, octets);
    EXPECT_EQ(formatText("%s %d: %d..%d, %d", name ? name->c_str() : none, kind,
                         lower, upper, octets),
              row.expected);
  }
}

TEST_F(PerIntName, Counts)
{
  EXPECT_EQ(countsOf(0, 1, 77), "1");
  EXPECT_EQ(countsOf(0, 254, 77), "8");
  EXPECT_EQ(countsOf(0, 255, 1), "1");
  EXPECT_EQ(countsOf(0, 256, 2), "2");
  EXPECT_EQ(countsOf(0, 65535, 2), "2");
  EXPECT_EQ(countsOf(0, 65536, 3), "3, 2");
  EXPECT_EQ(countsOf(0, int64_t{1} << 32, 5), "5, 3");
  // Ranges of one value and of none are no bit fields.
  EXPECT_EQ(countsOf(6, 5, 77), "77");
  EXPECT_EQ(countsOf(5, 5, 77), "77");
}

TEST_F(PerIntName, CountsOfOtherVariants)
{
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(countsOf(0, 1, 77), "1");
  EXPECT_EQ(countsOf(0, 255, 1), "8");
  EXPECT_EQ(countsOf(0, 256, 2), "9");
  EXPECT_EQ(countsOf(0, 65536, 3), "17");
  perSetEncodingVariant(2);
  EXPECT_EQ(countsOf(0, 7, 0), "");
}

// --- what has no function ---------------------------------------------------

struct PerIntWarning : PerIntName {
  // What goes to stdout for a home; nothing else does to stderr.
  std::string warned(const char *home)
  {
    TestType view = typeOf(std::string("INTEGER (0..7) --$ field=") + home);
    EXPECT_EQ(callOf(*view), none);
    verboseEx = 2;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    perNoIntegerFunction(*view);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    std::string out = testing::internal::GetCapturedStdout();
    size_t end = out.find('\n');
    place = out.substr(0, end);
    std::string line = out.substr(end + 1);
    // The second line has no place.
    std::string head = "Warning     QUORVEN ";
    EXPECT_EQ(line.rfind(head), line.find_first_not_of(' '));
    return line.substr(line.rfind(head) + head.size());
  }
  std::string place;  // the line that tells the type
};

TEST_F(PerIntWarning, SignedHomeOf64Bits)
{
  EXPECT_EQ(warned("i64"), "sint64 INTEGER types with small constraints not"
                           " yet supported, sorry.\n");
  EXPECT_NE(place.find("Module M, type T"), std::string::npos);
}

TEST_F(PerIntWarning, OtherHomes)
{
  for (const char *home : {"ui64", "ui32"})
    EXPECT_EQ(warned(home), "INTEGER types with complex constraints not yet"
                            " supported, sorry.\n");
}

TEST_F(PerIntWarning, EachTimeAndOnlyWhenWarningsAreOn)
{
  TestType view = typeOf("INTEGER (0..7) --$ field=i64");
  verboseEx = 1;
  testing::internal::CaptureStdout();
  perNoIntegerFunction(*view);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  verboseEx = 2;
  testing::internal::CaptureStdout();
  perNoIntegerFunction(*view);
  std::string once = testing::internal::GetCapturedStdout();
  EXPECT_NE(once, "");
  testing::internal::CaptureStdout();
  perNoIntegerFunction(*view);
  perNoIntegerFunction(*view);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), once + once);
}

}  // namespace
