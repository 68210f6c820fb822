// Validators at their limits. A refused value leaves its destination alone:
// every table row checks that, too.

#include "base/int64.h"
#include "options/validators.h"
#include "store/module.h"
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>

using testing::ElementsAreArray;

// What a destination holds before a validator is called.
constexpr uint8_t untouched = 77;

struct ByteCase {
  const char *text;
  int value;  // negative: refused
};

// Runs `check` over the cases, with a fresh destination each.
template <class F, size_t n>
static void expectBytes(F check, const ByteCase (&cases)[n])
{
  for (const ByteCase &row : cases) {
    uint8_t destination = untouched;
    EXPECT_EQ(check(destination, row.text), row.value >= 0) << row.text;
    EXPECT_EQ(destination, row.value >= 0 ? row.value : untouched) << row.text;
  }
}

// --- name tables ------------------------------------------------------------

struct NameTableCase {
  const NamedByte *table;
  std::vector<NamedByte> rows;
};

TEST(ValueTables, NamesAndBytes)
{
  const NameTableCase cases[] = {
      {yesNoVal, {{"NO", 0}, {"YES", 1}}},
      {ignoreWarningErrorVal, {{"IGNORE", 0}, {"WARNING", 1}, {"ERROR", 2}}},
      {glbDefLenVal,
       {{"indefinite", 0},
        {"no", 0},
        {"definite", 1},
        {"yes", 1},
        {"definite-indefinitecomps", 2},
        {"definite-definitecomps", 3}}},
      {extensionsVal, {{"SKIP", 0}, {"SAVE", 1}}},
      {generateVal,
       {{"none", 0},
        {"entries", 1},
        {"visibles", 2},
        {"entries-and-visibles", 3}}},
      {setnVal,
       {{"none", 0}, {"named-numbers", 1}, {"named-numbers-and-bits", 2}}},
      {optVals,
       {{"OLD", 0},
        {"REAL", 1},
        {"REAL-N", -1},
        {"COMMONTIME", 2},
        {"DATETIMEZ", -2},
        {"EXTERNAL", 3},
        {"EXTERNAL-N", -3},
        {"REAL", 1},
        {"SIGNED-CONTROL-MEMBER", 4},
        {"UNSIGNED-CONTROL-MEMBER", -4},
        {"ANY-FUNCTIONS", 5},
        {"NO-ANY-FUNCTIONS", -5}}},
  };
  for (const NameTableCase &expected : cases) {
    const NamedByte *row = expected.table;
    for (const NamedByte &wanted : expected.rows) {
      ASSERT_NE(row->name, nullptr) << wanted.name;
      EXPECT_STREQ(row->name, wanted.name);
      EXPECT_EQ(row->value, wanted.value) << wanted.name;
      ++row;
    }
    EXPECT_EQ(row->name, nullptr);
  }
}

TEST(ValueTables, Categories)
{
  const CategoryName expected[] = {{"STAND-ALONE", 0},
                                   {"VARNO-SERVICE", 1},
                                   {"VARNO-PROTOCOL", 2},
                                   {"VARNO-IOS", 3},
                                   {"OTHER", 255}};
  ASSERT_EQ(std::size(expected), std::size(defCatVal));
  for (size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_STREQ(defCatVal[i].name, expected[i].name);
    EXPECT_EQ(defCatVal[i].value, expected[i].value);
  }
}

// --- numbers ----------------------------------------------------------------

TEST(ByteOption, NumbersWithoutTable)
{
  expectBytes(
      [](uint8_t &to, const char *text) {
        return byteOptionOK(to, text, 8, 128, nullptr);
      },
      {{"8", 8},
       {"9", 9},
       {"128", 128},
       {"7", -1},
       {"129", -1},
       {"0", -1},
       {"08", -1},
       {"008", -1},
       {"999", -1},
       // Narrowed to eight bits these would be 8 and 44.
       {"264", -1},
       {"300", -1},
       {"1000", -1},
       {"4294967304", -1},  // 8 in 32 bits
       {"0128", -1},
       {"9x", -1},
       {"x9", -1},
       {" 9", -1},
       {"9 ", -1},
       {"-9", -1},
       {"+9", -1},
       {"", -1},
       {"YES", -1}});
}

TEST(ByteOption, ZeroAsWholeText)
{
  expectBytes(
      [](uint8_t &to, const char *text) {
        return byteOptionOK(to, text, 0, 255, nullptr);
      },
      {{"0", 0}, {"00", -1}, {"01", -1}, {"255", 255}, {"256", -1}});
}

TEST(ByteOption, NamesIgnoreCase)
{
  expectBytes(
      [](uint8_t &to, const char *text) {
        return byteOptionOK(to, text, 0, 2, ignoreWarningErrorVal);
      },
      {{"IGNORE", 0},
       {"ignore", 0},
       {"Warning", 1},
       {"eRRoR", 2},
       {"1", 1},
       {"2", 2},
       {"3", -1},
       {"ERRO", -1},
       {"ERRORS", -1},
       {"", -1}});
}

TEST(ByteOption, NamesHaveNoRange)
{
  expectBytes(
      [](uint8_t &to, const char *text) {
        return byteOptionOK(to, text, 0, 0, yesNoVal);
      },
      {{"0", 0}, {"1", -1}, {"no", 0}, {"yes", 1}});
}

struct Int32Case {
  const char *text;
  int32_t minimum, maximum;
  bool good;
  int32_t value;
};

TEST(Int32Option, Limits)
{
  const Int32Case cases[] = {
      {"", 0, 10, true, 0},
      {"", 1, 4, false, 0},
      {"0", 0, 10, true, 0},
      {"0", 1, 4, false, 0},
      {"1", 1, 4, true, 1},
      {"4", 1, 4, true, 4},
      {"5", 1, 4, false, 0},
      {"00", 0, 10, false, 0},
      {"03", 0, 10, false, 0},
      {"2147483647", 0, INT32_MAX, true, INT32_MAX},
      {"2147483648", 0, INT32_MAX, false, 0},
      {"4294967295", 0, INT32_MAX, false, 0},
      {"4294967296", 0, INT32_MAX, false, 0},
      {"4294967299", 1, 4, false, 0},
      // Built in 32 bits, this never goes down on its way.
      {"6000000000", 0, INT32_MAX, false, 0},
      {"18446744073709551619", 0, INT32_MAX, false, 0},
      {"-1", -5, 5, false, 0},
      {"+1", 0, 5, false, 0},
      {"1x", 0, 5, false, 0},
      {"x", 0, 5, false, 0},
      {" 1", 0, 5, false, 0},
      {"1 ", 0, 5, false, 0},
  };
  for (const Int32Case &row : cases) {
    int32_t destination = 4711;
    EXPECT_EQ(int32OptionOK(destination, row.text, row.minimum, row.maximum),
              row.good)
        << row.text;
    EXPECT_EQ(destination, row.good ? row.value : 4711) << row.text;
  }
}

TEST(BooleOption, Words)
{
  expectBytes(booleOptionOK, {{"1", 1},
                              {"YES", 1},
                              {"yes", 1},
                              {"TRUE", 1},
                              {"tRuE", 1},
                              {"0", 0},
                              {"NO", 0},
                              {"No", 0},
                              {"FALSE", 0},
                              {"false", 0},
                              {"", -1},
                              {"2", -1},
                              {"00", -1},
                              {"01", -1},
                              {"Y", -1},
                              {"YESS", -1},
                              {"ON", -1}});
}

TEST(BitVector8Option, Digits)
{
  expectBytes(bitVector8OptionOK, {{"", 0},
                                   {"0", 1},
                                   {"7", 128},
                                   {"01234567", 255},
                                   {"531", 0x2a},
                                   {"55", 0x20},
                                   {"8", -1},
                                   {"018", -1},
                                   {"0,1", -1},
                                   {"a", -1},
                                   {" ", -1}});
}

TEST(IntSizeOption, SignedOnly)
{
  expectBytes([](uint8_t &to,
                 const char *text) { return intSizeOptionOK(to, text, false); },
              {{"0", 0},
               {"OPTIMIZE", 0},
               {"optimize", 0},
               {"8", 6},
               {"16", 7},
               {"32", 8},
               {"64", 9},
               {"u16", -1},
               {"U16", -1},
               {"128", -1},
               {"1", -1},
               {"08", -1},
               {"8x", -1},
               {"", -1}});
}

TEST(IntSizeOption, UnsignedAllowed)
{
  expectBytes([](uint8_t &to,
                 const char *text) { return intSizeOptionOK(to, text, true); },
              {{"0", 0},
               {"Optimize", 0},
               {"u8", 2},
               {"u16", 3},
               {"U32", 4},
               {"U64", 5},
               {"8", 6},
               {"16", 7},
               {"32", 8},
               {"64", 9},
               {"u", -1},
               {"u0", -1},
               {"uu8", -1},
               {"U128", -1},
               {"i8", -1}});
}

TEST(RealSizeOption, Sizes)
{
  expectBytes(realSizeOptionOK, {{"0", 0},
                                 {"32", 10},
                                 {"64", 11},
                                 {"128", 12},
                                 {"16", -1},
                                 {"", -1},
                                 {"064", -1},
                                 {"64 ", -1}});
}

struct RealCase {
  const char *text;
  int32_t mantissa;
  int exponent;
};

TEST(RealLimOption, Good)
{
  const RealCase cases[] = {{"{12,10,3}", 12, 3},
                            {"{0,10,0}", 0, 0},
                            {"{2147483647,10,32767}", 2147483647, 32767}};
  for (const RealCase &row : cases) {
    RealVal value;
    EXPECT_TRUE(realLimOptionOK(value, row.text)) << row.text;
    EXPECT_EQ(i64cmpl(value.mantissa, row.mantissa), 0) << row.text;
    EXPECT_EQ(value.base, 10) << row.text;
    EXPECT_EQ(value.exponent, row.exponent) << row.text;
  }
}

TEST(RealLimOption, Refused)
{
  for (const char *text :
       {"{12,2,3}", "{12,100,3}", "{2147483648,10,0}", "{1,10,32768}",
        "{-1,10,0}", "{1,10,-1}", "{1,10}", "{1,10,3", "1,10,3}", "{1,10,3}x",
        " {1,10,3}", "{1, 10,3}", "{1,10,3 }", "{1,10,3,4}", "{a,10,3}", "{}",
        "{,10,3}", "{1,10,}", ""}) {
    RealVal value;
    EXPECT_FALSE(realLimOptionOK(value, text)) << text;
    EXPECT_EQ(value.base, -1) << text;
    EXPECT_TRUE(i64iszero(value.mantissa)) << text;
  }
}

// --- generation arrays ------------------------------------------------------

struct GenArrCase {
  const char *text;
  bool good;
  int at[3];  // at index 5 to 7 and 11 to 13; 7: as before
};

TEST(GenArrOption, Entries)
{
  const GenArrCase cases[] = {
      {"0:1:2", true, {0, 1, 2}},
      {"2", true, {2, 7, 7}},
      {"combined", true, {1, 7, 7}},
      {"NONE:Combined:sepaRATE", true, {0, 1, 2}},
      {":1", true, {7, 1, 7}},
      {"::1", true, {7, 7, 1}},
      {"1::2", true, {1, 7, 2}},
      {"1:", true, {1, 7, 7}},
      {"", true, {7, 7, 7}},
      {"1:2:3", false, {7, 7, 7}},
      {"3", false, {7, 7, 7}},
      {"10", false, {7, 7, 7}},
      {"01", false, {7, 7, 7}},
      {"1:2:0:1", false, {7, 7, 7}},
      {"1:2:0:", false, {7, 7, 7}},
      {"1:both", false, {7, 7, 7}},
      {"-1", false, {7, 7, 7}},
      {" 1", false, {7, 7, 7}},
  };
  for (const GenArrCase &row : cases) {
    uint8_t array[17], expected[17];
    std::fill(std::begin(array), std::end(array), uint8_t{7});
    std::fill(std::begin(expected), std::end(expected), uint8_t{7});
    for (int i = 0; i < 3; ++i)
      expected[5 + i] = expected[11 + i] = static_cast<uint8_t>(row.at[i]);
    EXPECT_EQ(genArrOptionOK(array, row.text, 5), row.good) << row.text;
    EXPECT_THAT(array, ElementsAreArray(expected)) << row.text;
  }
}

TEST(GenArrOption, OtherIndex)
{
  uint8_t array[17] = {};
  EXPECT_TRUE(genArrOptionOK(array, "2:1:2", 8));
  const uint8_t expected[17] = {0, 0, 0, 0, 0, 0, 0, 0, 2,
                                1, 2, 0, 0, 0, 2, 1, 2};
  EXPECT_THAT(array, ElementsAreArray(expected));
}

TEST(AltCodOption, IndexBelowLimit)
{
  uint8_t array[8] = {};
  EXPECT_TRUE(altCodOption(array, "0:5", 8));
  EXPECT_TRUE(altCodOption(array, "7:01", 8));
  EXPECT_TRUE(altCodOption(array, "3:4", 4));
  const uint8_t expected[8] = {0x20, 0, 0, 0x10, 0, 0, 0, 0x03};
  EXPECT_THAT(array, ElementsAreArray(expected));
  EXPECT_TRUE(altCodOption(array, "0:", 1));
  EXPECT_EQ(array[0], 0);
}

TEST(AltCodOption, Refused)
{
  uint8_t array[8] = {9, 9, 9, 9, 9, 9, 9, 9};
  for (const char *text :
       {"8:1", "9:1", "0", "", ":1", "x:1", "1;1", "1:8", "1:x", "-1:0"})
    EXPECT_FALSE(altCodOption(array, text, 8)) << text;
  EXPECT_FALSE(altCodOption(array, "0:5", 0));
  EXPECT_FALSE(altCodOption(array, "2:5", 2));
  EXPECT_THAT(array, testing::Each(9));
}

// --- texts ------------------------------------------------------------------

struct PrintCase {
  const char *text;
  bool isOption;
  size_t position;
};

TEST(FindNonPrint, Positions)
{
  const PrintCase cases[] = {
      {"", false, 0},       {"abc", false, 3},   {"abc", true, 3},
      {"a b", false, 1},    {"a b", true, 3},    {"a\tb", true, 1},
      {"a\x7f", true, 1},   {"a\x7e!", true, 3}, {"ab\x80", true, 2},
      {"ab\xa9", false, 2}, {"ab\xff", true, 2}, {"\x1f", true, 0},
      {" \x1f", true, 1},   {"a\nb", false, 1},
  };
  for (const PrintCase &row : cases)
    EXPECT_EQ(findNonPrint(row.text, row.isOption), row.position)
        << row.text << row.isOption;
}

TEST(DirectoryOption, AddsSlash)
{
  std::string directory;
  EXPECT_TRUE(directoryOptionOK(directory, "asn"));
  EXPECT_EQ(directory, "asn/");
  EXPECT_TRUE(directoryOptionOK(directory, "a/b/"));
  EXPECT_EQ(directory, "a/b/");
  EXPECT_TRUE(directoryOptionOK(directory, "/"));
  EXPECT_EQ(directory, "/");
  EXPECT_TRUE(directoryOptionOK(directory, "my dir"));
  EXPECT_EQ(directory, "my dir/");
}

TEST(DirectoryOption, Refused)
{
  std::string directory = "old/";
  for (const char *text : {"", "a\tb", "a\xe4", "\x7f", "ab\n"})
    EXPECT_FALSE(directoryOptionOK(directory, text)) << text;
  EXPECT_EQ(directory, "old/");
}

TEST(DirectoryOption, SearchPath)
{
  SearchPath path;
  EXPECT_TRUE(directorySearchPathOptionOK(path, "b"));
  EXPECT_TRUE(directorySearchPathOptionOK(path, "a/"));
  EXPECT_FALSE(directorySearchPathOptionOK(path, "a\x01"));
  ASSERT_EQ(path.size(), 2u);
  EXPECT_EQ(path[0].directory + path[1].directory, "b/a/");
}

TEST(CopyDirOption, AnyText)
{
  std::string directory;
  EXPECT_TRUE(copyDirOption(directory, "src"));
  EXPECT_EQ(directory, "src/");
  EXPECT_TRUE(copyDirOption(directory, "src/"));
  EXPECT_EQ(directory, "src/");
  // Not examined for printing.
  EXPECT_TRUE(copyDirOption(directory, "s\xe4"));
  EXPECT_EQ(directory, "s\xe4/");
}

typedef bool StriValidator(std::string &, const char *, size_t, size_t);

struct StriCase {
  StriValidator *check;
  const char *good;  // each character is of the class
  const char *bad;   // none is
};

static const StriCase striCases[] = {
    {alphaStriOptionOK, "azAZ", "09@[`{-_ \xe4"},
    {digitStriOptionOK, "0189", "/:aA- "},
    {xdigitStriOptionOK, "09afAF", "gG/:@`"},
    {bdigitStriOptionOK, "01", "2/aA9 "},
    {alnumStriOptionOK, "azAZ09", "-_ ./@\xff"},
    {[](std::string &to, const char *text, size_t shortest, size_t longest) {
       return alnumSpecialStriOptionOK(to, text, "._", shortest, longest);
     },
     "azAZ09._", "-/ \xe4,"},
};

TEST(StriOptions, Classes)
{
  for (const StriCase &row : striCases) {
    std::string to;
    EXPECT_TRUE(row.check(to, row.good, 1, 10));
    EXPECT_EQ(to, row.good);
    for (const char *c = row.bad; *c; ++c) {
      // The fault is told wherever it stands.
      std::string text = std::string("1") + *c;
      EXPECT_FALSE(row.check(to, text.c_str(), 1, 10)) << text;
      text = std::string(1, *c) + "1";
      EXPECT_FALSE(row.check(to, text.c_str(), 1, 10)) << text;
    }
    EXPECT_EQ(to, row.good);
  }
}

TEST(StriOptions, Lengths)
{
  for (const StriCase &row : striCases) {
    const char c = row.good[0];
    for (size_t length = 0; length < 6; ++length) {
      std::string text(length, c), to = "?";
      bool fits = length >= 2 && length <= 4;
      EXPECT_EQ(row.check(to, text.c_str(), 2, 4), fits) << text;
      EXPECT_EQ(to, fits ? text : "?");
    }
    std::string to = "?";
    EXPECT_TRUE(row.check(to, "", 0, 4));
    EXPECT_EQ(to, "");
  }
}

TEST(StriOptions, SpecialExaminesFirstOnly)
{
  std::string to;
  EXPECT_TRUE(specialStriOptionOK(to, ".anything \xe4", "._", 1, 20));
  EXPECT_EQ(to, ".anything \xe4");
  EXPECT_TRUE(specialStriOptionOK(to, "_", "._", 1, 20));
  EXPECT_EQ(to, "_");
}

TEST(StriOptions, SpecialRefused)
{
  std::string to = "?";
  EXPECT_FALSE(specialStriOptionOK(to, "a.", "._", 1, 20));
  EXPECT_FALSE(specialStriOptionOK(to, "", "._", 0, 20));
  EXPECT_FALSE(specialStriOptionOK(to, ".", "._", 2, 3));
  EXPECT_FALSE(specialStriOptionOK(to, "....", "._", 2, 3));
  EXPECT_TRUE(specialStriOptionOK(to, "..", "._", 2, 3));
  EXPECT_TRUE(specialStriOptionOK(to, "...", "._", 2, 3));
}

// --- options with effects of their own --------------------------------------

TEST(StandardVersionOption, TwoYears)
{
  int32_t year = 1;
  EXPECT_TRUE(standardVersionOptionOK(year, "1990"));
  EXPECT_EQ(year, 1990);
  EXPECT_TRUE(standardVersionOptionOK(year, "1994"));
  EXPECT_EQ(year, 1994);
  for (const char *text :
       {"1989", "1991", "1992", "1993", "1995", "94", "01990", "1990x", ""})
    EXPECT_FALSE(standardVersionOptionOK(year, text)) << text;
  EXPECT_EQ(year, 1994);
}

// A module "abc" with fresh options.
struct CategoryOption : testing::Test {
  ModRec module;
  GlobalOptions &options = module.options;
  CategoryOption()
  {
    module.filePrefix = "abc";
    options.reentrant = 1;
  }
  void expectUnchanged(const char *text)
  {
    EXPECT_EQ(options.definitionCategory, 0) << text;
    EXPECT_EQ(options.memory, 0) << text;
    EXPECT_EQ(options.zeroHome, 0) << text;
    EXPECT_EQ(options.reentrant, 1) << text;
    EXPECT_THAT(options.genArr, testing::Each(0)) << text;
  }
  void expectCategory(int category, const char *text)
  {
    EXPECT_EQ(options.definitionCategory, category) << text;
    EXPECT_EQ(options.memory, 1) << text;
    EXPECT_EQ(options.zeroHome, 1) << text;
    EXPECT_EQ(options.reentrant, 0) << text;
    EXPECT_EQ(options.genArr[1], 1) << text;
    EXPECT_EQ(options.genArr[2], 1) << text;
  }
};

struct CategoryCase {
  const char *text;
  int category;
};

TEST_F(CategoryOption, Names)
{
  const CategoryCase cases[] = {
      {"VARNO-SERVICE", 1}, {"varno-protocol", 2}, {"Varno-IOS", 3},
      {"OTHER", 255},       {"STAND-ALONE", 0},    {"abc:VARNO-IOS", 3},
      {"abc:other", 255},
  };
  for (const CategoryCase &row : cases) {
    options = GlobalOptions{};
    options.reentrant = 1;
    EXPECT_TRUE(defCatOption(options, module, row.text)) << row.text;
    expectCategory(row.category, row.text);
  }
}

TEST_F(CategoryOption, OtherModuleIsGood)
{
  for (const char *text : {"xyz:OTHER", "ab:OTHER", "abcd:OTHER", "ABC:OTHER",
                           ":OTHER", "xyz:nonsense", "xyz:1", "xyz:"}) {
    EXPECT_TRUE(defCatOption(options, module, text)) << text;
    expectUnchanged(text);
  }
}

TEST_F(CategoryOption, Refused)
{
  for (const char *text :
       {"1", "0", "255", "abc:1", "VARNO", "OTHERS", "", "abc:", "abc"}) {
    EXPECT_FALSE(defCatOption(options, module, text)) << text;
    expectUnchanged(text);
  }
}

TEST_F(CategoryOption, VarnoNumbers)
{
  for (int category : {1, 2, 0}) {
    options = GlobalOptions{};
    options.reentrant = 1;
    std::string text = std::to_string(category);
    EXPECT_TRUE(varnoOption(options, text.c_str())) << text;
    expectCategory(category, text.c_str());
  }
}

TEST_F(CategoryOption, VarnoRefused)
{
  for (const char *text : {"3", "00", "255", "", "VARNO-SERVICE", "-1", "x"}) {
    EXPECT_FALSE(varnoOption(options, text)) << text;
    expectUnchanged(text);
  }
}

TEST_F(CategoryOption, GenerationArrayOfDefaults)
{
  // From the array of category 0 on, as in a tree just loaded.
  const struct {
    const char *name;
    uint8_t array[17];
  } cases[] = {
      {"STAND-ALONE", {0, 1, 1, 0, 0, 2, 1, 1, 0, 0, 0, 2, 1, 1, 0, 0, 0}},
      {"VARNO-SERVICE", {0, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
      {"VARNO-PROTOCOL", {0, 1, 1, 1, 0, 1, 1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0}},
      {"VARNO-IOS", {0, 1, 1, 1, 1, 2, 1, 1, 0, 0, 0, 2, 1, 1, 0, 0, 0}},
      {"OTHER", {0, 1, 1, 0, 0, 2, 1, 1, 0, 0, 0, 2, 1, 1, 0, 0, 0}},
  };
  for (const auto &row : cases) {
    initGenArr(options.genArr, 0);
    ASSERT_TRUE(defCatOption(options, module, row.name));
    EXPECT_THAT(options.genArr, ElementsAreArray(row.array)) << row.name;
  }
}

TEST_F(CategoryOption, GenerationArrayOverOtherValues)
{
  // What a category does not speak of keeps its 9.
  const struct {
    int category;
    uint8_t array[17];
  } cases[] = {
      {0, {9, 1, 1, 0, 0, 2, 1, 1, 0, 0, 0, 2, 1, 1, 0, 0, 0}},
      {1, {9, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
      {2, {9, 1, 1, 1, 0, 1, 1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0}},
      {3, {9, 1, 1, 1, 1, 9, 9, 9, 0, 0, 0, 9, 9, 9, 0, 0, 0}},
      {255, {9, 1, 1, 9, 0, 9, 9, 9, 0, 0, 0, 9, 9, 9, 0, 0, 0}},
  };
  for (const auto &row : cases) {
    uint8_t array[17];
    std::fill(std::begin(array), std::end(array), uint8_t{9});
    initGenArr(array, row.category);
    EXPECT_THAT(array, ElementsAreArray(row.array)) << row.category;
  }
}

typedef bool OptionsValidator(GlobalOptions &, const char *);

struct YesNoOption {
  OptionsValidator *check;
  uint8_t GlobalOptions::*field;
};

static const YesNoOption yesNoOptions[] = {
    {memoryOptionOK, &GlobalOptions::memory},
    {zeroHomeOptionOK, &GlobalOptions::zeroHome}};

TEST_F(CategoryOption, MemoryAndZeroHome)
{
  for (const YesNoOption &row : yesNoOptions) {
    uint8_t &field = options.*row.field;
    // No restriction in a category without services.
    for (int category : {0, 255}) {
      options.definitionCategory = static_cast<uint8_t>(category);
      EXPECT_TRUE(row.check(options, "yes"));
      EXPECT_EQ(field, 1);
      EXPECT_TRUE(row.check(options, "No"));
      EXPECT_EQ(field, 0);
      EXPECT_TRUE(row.check(options, "1"));
      EXPECT_EQ(field, 1);
      EXPECT_TRUE(row.check(options, "0"));
      EXPECT_EQ(field, 0);
    }
    for (const char *text : {"2", "TRUE", "", "01"})
      EXPECT_FALSE(row.check(options, text)) << text;
    EXPECT_EQ(field, 0);
  }
}

TEST_F(CategoryOption, MemoryAndZeroHomeNeeded)
{
  for (const YesNoOption &row : yesNoOptions) {
    uint8_t &field = options.*row.field;
    for (uint8_t category = 1; category <= 3; ++category) {
      options.definitionCategory = category;
      field = 1;
      EXPECT_FALSE(row.check(options, "no"));
      EXPECT_FALSE(row.check(options, "0"));
      EXPECT_EQ(field, 1);
      field = 0;
      EXPECT_TRUE(row.check(options, "YES"));
      EXPECT_EQ(field, 1);
    }
  }
}

struct BitsCase {
  const char *text;
  uint32_t bits;
};

TEST(CGenerationOption, Bits)
{
  const BitsCase cases[] = {
      {"REAL", 0x02},
      {"COMMONTIME", 0x04},
      {"EXTERNAL", 0x08},
      {"SIGNED-CONTROL-MEMBER", 0x10},
      {"ANY-FUNCTIONS", 0x20},
      {"REAL-N", 0},
      {"REAL:EXTERNAL-N", 0x02},
      {"real:Any-Functions", 0x22},
      {"REAL:COMMONTIME:DATETIMEZ", 0x02},
      {"DATETIMEZ:COMMONTIME", 0x04},
      {"REAL:REAL", 0x02},
      {"EXTERNAL:EXTERNAL-N", 0},
      {"SIGNED-CONTROL-MEMBER:UNSIGNED-CONTROL-MEMBER", 0},
      {"ANY-FUNCTIONS:NO-ANY-FUNCTIONS", 0},
  };
  for (const BitsCase &row : cases) {
    GlobalOptions options;
    options.cGeneration = 0xff;  // the result starts at 0
    EXPECT_TRUE(cGenerationOptionOK(options, row.text)) << row.text;
    EXPECT_EQ(options.cGeneration, row.bits) << row.text;
    EXPECT_EQ(options.intSize, 0) << row.text;
    EXPECT_EQ(options.nSize, 0) << row.text;
  }
}

TEST(CGenerationOption, OldSetsSizes)
{
  const BitsCase cases[] = {{"OLD", 0x3f},
                            {"old:REAL-N", 0x3d},
                            {"REAL-N:OLD", 0x3f},
                            {"OLD:DATETIMEZ:NO-ANY-FUNCTIONS", 0x1b}};
  for (const BitsCase &row : cases) {
    GlobalOptions options;
    EXPECT_TRUE(cGenerationOptionOK(options, row.text)) << row.text;
    EXPECT_EQ(options.cGeneration, row.bits) << row.text;
    EXPECT_EQ(options.intSize, 7) << row.text;
    EXPECT_EQ(options.nSize, 8) << row.text;
    EXPECT_EQ(options.compMaskSize, 8) << row.text;
    EXPECT_EQ(options.choiceSize, 7) << row.text;
  }
}

TEST(CGenerationOption, Refused)
{
  for (const char *text : {"OTHER", "REA", "REALS", "REAL-", "OLD:X", "REAL:",
                           ":REAL", "REAL::OLD", "OLD,REAL", "1", " REAL"}) {
    GlobalOptions options;
    options.cGeneration = 0x40;
    EXPECT_FALSE(cGenerationOptionOK(options, text)) << text;
    EXPECT_EQ(options.cGeneration, 0x40u) << text;
    EXPECT_EQ(options.intSize, 0) << text;
    EXPECT_EQ(options.nSize, 0) << text;
    EXPECT_EQ(options.compMaskSize, 0) << text;
    EXPECT_EQ(options.choiceSize, 0) << text;
  }
}
