// Effective permitted alphabets and the bits of their characters.

#include "per/peralphabet.h"
#include "support/perstringtypes.h"

using testing::ExitedWithCode;

// What a test expects where there is no alphabet.
constexpr char noAlphabet[] = "none";

struct PerAlphabet : PerStringTypes {
  // The alphabet that a walk over the constraints finds, unsorted.
  static std::string found(AsnType &type)
  {
    glbEffectivePermittedAlphabet.reset();
    forEachTypeConstraint(type, findEffectivePermittedAlphabet);
    return glbEffectivePermittedAlphabet.value_or(noAlphabet);
  }
  std::string alphabetOf(const std::string &notation)
  {
    TestType type = typeOf(notation);
    return found(*type);
  }
  std::string ia5(const std::string &constraint)
  {
    return alphabetOf("IA5String " + constraint);
  }
  // "bits/size".
  std::string bitsOf(const std::string &notation, int inVariant)
  {
    TestType type = typeOf(notation);
    perSetEncodingVariant(inVariant);
    int32_t size = -1;
    int bits = bitsInKnownMultiChar(*type, size);
    return formatText("%d/%d", bits, size);
  }
  std::string defaultBitsOf(const std::string &notation, int inVariant)
  {
    TestType type = typeOf(notation);
    perSetEncodingVariant(inVariant);
    int32_t size = -1;
    int bits = defaultBitsInKnownMultiChar(*type, size);
    return formatText("%d/%d", bits, size);
  }
};

typedef PerAlphabet PerAlphabetDeathTest;

// --- one constraint ---------------------------------------------------------

TEST_F(PerAlphabet, NoneWithoutFrom)
{
  EXPECT_EQ(ia5(""), noAlphabet);
  EXPECT_EQ(ia5("(SIZE(5))"), noAlphabet);
  EXPECT_EQ(ia5("(SIZE(1..5))"), noAlphabet);
}

TEST_F(PerAlphabet, CharactersOfAValue)
{
  EXPECT_EQ(ia5("(FROM(\"edcba\"))"), "edcba");
  EXPECT_EQ(ia5("(FROM(\"aab\"))"), "aab");
  EXPECT_EQ(ia5("(FROM(\"\"))"), "");
}

// Characters of a value outside a FROM count the same.
TEST_F(PerAlphabet, WithoutFrom)
{
  EXPECT_EQ(ia5("(\"abc\")"), "abc");
  EXPECT_EQ(ia5("(\"a\"..\"c\")"), "abc");
}

TEST_F(PerAlphabet, ExtensibleOnesAreNotTold)
{
  EXPECT_EQ(ia5("(FROM(\"a\"|\"b\", ...))"), "ab");
}

// Kinds of constraints that hold no alphabet, though their operand does.
TEST_F(PerAlphabet, OtherKindsTellNothing)
{
  EXPECT_EQ(ia5("(\"ab\"^\"bc\")"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"ab\") EXCEPT FROM(\"a\"))"), noAlphabet);
  EXPECT_EQ(ia5("(ALL EXCEPT FROM(\"a\"))"), noAlphabet);
  compile("U ::= IA5String (FROM(\"ab\"))\nT ::= IA5String (U)");
  TestType type = named("T");
  EXPECT_EQ(found(*type), noAlphabet);
}

TEST_F(PerAlphabet, AllKinds)
{
  for (int kind = SUB_UNION; kind <= SUB_HIDDEN; ++kind) {
    compile("A ::= IA5String (FROM(\"ab\"))");
    int32_t from = stxTypeAt(tree, typeNamed(tree, "A")).firstConstraint;
    int32_t operand = from;
    if (kind == SUB_RANGE)
      operand = 0;  // MIN to MAX
    else if (kind == SUB_SINGLE_VALUE)
      operand = stxSubAt(tree, stxSubAt(tree, from).operand1).operand1;
    int32_t record = type(TYP_IA5STR, sub(kind, operand));
    load();
    TestType type(module, record);
    bool tells = kind == SUB_UNION || kind == SUB_CATENATED ||
                 kind == SUB_ALPHABET || kind == SUB_SINGLE_VALUE;
    EXPECT_EQ(found(*type), tells ? "ab" : noAlphabet) << kind;
  }
}

TEST_F(PerAlphabet, NullTellsNothing)
{
  TestType type = typeOf("IA5String");
  glbEffectivePermittedAlphabet = "ab";
  findEffectivePermittedAlphabet(*type, nullptr);
  checkPermittedAlphabetConstraint(*type, nullptr);
  EXPECT_EQ(glbEffectivePermittedAlphabet, "ab");
}

// --- ranges -----------------------------------------------------------------

TEST_F(PerAlphabet, Ranges)
{
  EXPECT_EQ(ia5("(FROM(\"A\"..\"C\"))"), "ABC");
  EXPECT_EQ(ia5("(FROM(\"A\"..\"A\"))"), "A");
  EXPECT_EQ(ia5("(FROM(\"A\"..\"Z\"|\"0\"))"), "ABCDEFGHIJKLMNOPQRSTUVWXYZ0");
  EXPECT_EQ(ia5("(FROM(\"0\"|\"A\"..\"C\"))"), "0ABC");
}

TEST_F(PerAlphabet, RangesThatTellNothing)
{
  EXPECT_EQ(ia5("(FROM(\"A\"<..\"C\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"A\"..<\"C\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"AB\"..\"CD\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"A\"..\"CD\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"AB\"..\"C\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"\"..\"C\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(MIN..\"C\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"A\"..MAX))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(MIN..MAX))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"C\"..\"A\"))"), noAlphabet);
}

TEST_F(PerAlphabet, TypesWithRanges)
{
  for (const char *name : {"PrintableString", "VisibleString", "ISO646String",
                           "IA5String", "BMPString", "UniversalString"})
    EXPECT_EQ(alphabetOf(name + std::string(" (FROM(\"A\"..\"C\"))")), "ABC")
        << name;
  EXPECT_EQ(alphabetOf("NumericString (FROM(\"1\"..\"3\"))"), "123");
}

// The values' own types count, not the one that they bound.
TEST_F(PerAlphabet, RangeBetweenValuesOfTwoTypes)
{
  compile("c IA5String ::= \"C\"\nT ::= BMPString (FROM(\"A\"..c))");
  TestType type = named("T");
  EXPECT_EQ(found(*type), noAlphabet);
}

TEST_F(PerAlphabet, RangeBetweenValuesOfOneOtherType)
{
  compile("a IA5String ::= \"A\"\nc IA5String ::= \"C\"\n"
          "T ::= BMPString (FROM(a..c))");
  TestType type = named("T");
  EXPECT_EQ(found(*type), "ABC");
}

TEST_F(PerAlphabet, TypesWithoutRanges)
{
  for (const char *name :
       {"TeletexString", "VideotexString", "GraphicString", "GeneralString"})
    EXPECT_EQ(alphabetOf(name + std::string(" (FROM(\"A\"..\"C\"))")),
              noAlphabet)
        << name;
}

TEST_F(PerAlphabet, LowOctetsOfWideCharacters)
{
  EXPECT_EQ(alphabetOf("BMPString (FROM({0,0,4,65}..{0,0,4,67}))"), "ABC");
  EXPECT_EQ(alphabetOf("BMPString (FROM({0,0,0,254}..{0,0,0,255}))"),
            "\xFE\xFF");
  EXPECT_EQ(alphabetOf("UniversalString (FROM({0,1,4,65}..{0,1,4,67}))"),
            "ABC");
  // 254 to 2.
  EXPECT_EQ(alphabetOf("BMPString (FROM({0,0,0,254}..{0,0,1,2}))"), noAlphabet);
}

TEST_F(PerAlphabet, NulEndsARange)
{
  EXPECT_EQ(alphabetOf("BMPString (FROM({0,0,1,0}..{0,0,1,5}))"), "");
  EXPECT_EQ(alphabetOf("BMPString (FROM(\"a\"..\"a\"|{0,0,1,0}..{0,0,1,5}|"
                       "\"b\"..\"c\"))"),
            "abc");
}

// Values of wide characters are not handed on.
TEST_F(PerAlphabet, ValuesOfWideCharactersTellNothing)
{
  EXPECT_EQ(alphabetOf("BMPString (FROM(\"abc\"))"), noAlphabet);
  EXPECT_EQ(alphabetOf("UniversalString (FROM(\"abc\"))"), noAlphabet);
}

// --- inside a FROM ----------------------------------------------------------

TEST_F(PerAlphabet, UnionInside)
{
  EXPECT_EQ(ia5("(FROM(\"ab\"|\"cd\"))"), "abcd");
  EXPECT_EQ(ia5("(FROM(\"cd\"|\"ab\"))"), "cdab");
  EXPECT_EQ(ia5("(FROM(\"ab\"|\"bc\"))"), "abbc");
  EXPECT_EQ(ia5("(FROM(\"a\"..\"c\"|\"x\"|\"b\"..\"d\"))"), "abcxbcd");
}

TEST_F(PerAlphabet, NestedInside)
{
  EXPECT_EQ(ia5("(FROM(FROM(\"ab\")))"), "ab");
  EXPECT_EQ(ia5("(FROM(FROM(\"ab\")|\"c\"))"), "abc");
}

TEST_F(PerAlphabet, OtherKindsInsideTellNothing)
{
  EXPECT_EQ(ia5("(FROM(\"abc\" EXCEPT \"a\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(ALL EXCEPT \"a\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"ab\"^\"bc\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"ab\"|(\"cd\"^\"de\")))"), "ab");
  EXPECT_EQ(ia5("(FROM((\"cd\"^\"de\")|\"ab\"))"), "ab");
}

// Serial constraints join alphabets outside a FROM, but not inside.
TEST_F(PerAlphabet, CatenationInsideTellsNothing)
{
  compile("A ::= IA5String (FROM(\"ab\"))");
  int32_t from = stxTypeAt(tree, typeNamed(tree, "A")).firstConstraint;
  int32_t serial = sub(SUB_CATENATED, stxSubAt(tree, from).operand1);
  int32_t record = type(TYP_IA5STR, sub(SUB_ALPHABET, serial));
  int32_t outside = type(TYP_IA5STR, serial);
  load();
  {
    TestType type(module, record);
    EXPECT_EQ(found(*type), noAlphabet);
  }
  TestType type(module, outside);
  EXPECT_EQ(found(*type), "ab");
}

// --- compounds outside ------------------------------------------------------

TEST_F(PerAlphabet, UnionOfDifferentOnes)
{
  EXPECT_EQ(ia5("(FROM(\"ab\")|FROM(\"cd\"))"), noAlphabet);
  EXPECT_EQ(ia5("(FROM(\"ab\")|FROM(\"ba\"))"), noAlphabet);
  EXPECT_EQ(ia5("(\"ab\"|\"cd\")"), noAlphabet);
}

TEST_F(PerAlphabet, UnionOfEqualOnes)
{
  EXPECT_EQ(ia5("(FROM(\"ab\")|FROM(\"ab\"))"), "ab");
  EXPECT_EQ(ia5("(FROM(\"a\"..\"b\")|FROM(\"ab\"))"), "ab");
}

TEST_F(PerAlphabet, UnionWithOneAlphabet)
{
  EXPECT_EQ(ia5("(FROM(\"ab\")|SIZE(5))"), "ab");
  EXPECT_EQ(ia5("(SIZE(5)|FROM(\"ab\"))"), "ab");
}

// Two that differ leave nothing that a third could differ from.
TEST_F(PerAlphabet, UnionOfThree)
{
  EXPECT_EQ(ia5("(FROM(\"ab\")|FROM(\"cd\")|FROM(\"ef\"))"), "ef");
  EXPECT_EQ(ia5("(FROM(\"ab\")|FROM(\"ab\")|FROM(\"ef\"))"), noAlphabet);
}

TEST_F(PerAlphabet, SerialConstraintsLeaveWhatIsCommon)
{
  EXPECT_EQ(ia5("(FROM(\"A\"..\"Z\"))(FROM(\"A\"..\"Z\"))"),
            "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  EXPECT_EQ(ia5("(FROM(\"dcba\"))(FROM(\"xbc\"))"), "cb");
  EXPECT_EQ(ia5("(FROM(\"aab\"))(FROM(\"a\"))"), "aa");
  EXPECT_EQ(ia5("(FROM(\"ab\"))(FROM(\"cd\"))"), "");
}

TEST_F(PerAlphabet, SerialConstraintsWithOneAlphabet)
{
  EXPECT_EQ(ia5("(FROM(\"ab\"))(SIZE(1..3))"), "ab");
  EXPECT_EQ(ia5("(SIZE(1..3))(FROM(\"ab\"))"), "ab");
  EXPECT_EQ(ia5("(SIZE(1..3)^FROM(\"ab\"))"), "ab");
  EXPECT_EQ(ia5("(SIZE(1))(SIZE(1..3))"), noAlphabet);
}

// --- levels of a chain of definitions ---------------------------------------

TEST_F(PerAlphabet, FromOnOneLevel)
{
  compile("U ::= IA5String (FROM(\"ab\"))\nT ::= U (SIZE(3))");
  TestType type = named("T");
  EXPECT_EQ(found(*type), "ab");
}

// The message has the line at the end of the chain.
TEST_F(PerAlphabetDeathTest, ValuesOnTwoLevels)
{
  compile("U ::= IA5String (FROM(\"ab\"))\n\nT ::= U (FROM(\"bc\"))");
  TestType type = named("T");
  EXPECT_EXIT(found(*type), ExitedWithCode(2),
              "Too complex permitted alphabet constraint for T, line 2\n");
}

TEST_F(PerAlphabetDeathTest, ValueBehindRange)
{
  compile("U ::= IA5String (FROM(\"a\"..\"b\"))\nT ::= U (FROM(\"bc\"))");
  TestType type = named("T");
  EXPECT_EXIT(found(*type), ExitedWithCode(2),
              "Too complex permitted alphabet constraint for T, line 2\n");
}

// An alphabet without characters is one, too.
TEST_F(PerAlphabetDeathTest, ValueBehindEmptyValue)
{
  compile("U ::= IA5String (FROM(\"\"))\nT ::= U (FROM(\"\"))");
  TestType type = named("T");
  EXPECT_EXIT(found(*type), ExitedWithCode(2),
              "Too complex permitted alphabet constraint for T, line 2\n");
}

TEST_F(PerAlphabetDeathTest, RangesOnTwoLevels)
{
  compile("U ::= IA5String (FROM(\"A\"..\"Z\"))\n"
          "T ::= U (FROM(\"A\"..\"F\"))");
  TestType type = named("T");
  EXPECT_EXIT(found(*type), ExitedWithCode(2), "Range Characters error\n");
}

TEST_F(PerAlphabetDeathTest, RangeBehindValue)
{
  compile("U ::= IA5String (FROM(\"AB\"))\nT ::= U (FROM(\"A\"..\"F\"))");
  TestType type = named("T");
  EXPECT_EXIT(found(*type), ExitedWithCode(2), "Range Characters error\n");
}

// Even one that would tell nothing by itself.
TEST_F(PerAlphabetDeathTest, InvertedRangeBehindValue)
{
  compile("U ::= IA5String (FROM(\"AB\"))\nT ::= U (FROM(\"F\"..\"A\"))");
  TestType type = named("T");
  EXPECT_EXIT(found(*type), ExitedWithCode(2), "Range Characters error\n");
}

TEST_F(PerAlphabetDeathTest, WideValueBehindRange)
{
  compile("U ::= BMPString (FROM(\"a\"..\"b\"))\nT ::= U (FROM(\"xy\"))");
  TestType type = named("T");
  EXPECT_EXIT(found(*type), ExitedWithCode(2),
              "Too complex permitted alphabet constraint for T, line 2\n");
}

TEST_F(PerAlphabet, InvertedRangeAheadOfARange)
{
  compile("U ::= IA5String (FROM(\"F\"..\"A\"))\n"
          "T ::= U (FROM(\"A\"..\"C\"))");
  TestType type = named("T");
  EXPECT_EQ(found(*type), "ABC");
}

TEST_F(PerAlphabet, RangeThatTellsNothingOnASecondLevel)
{
  compile("U ::= IA5String (FROM(\"AB\"))\nT ::= U (FROM(\"A\"<..\"F\"))");
  TestType type = named("T");
  EXPECT_EQ(found(*type), "AB");
}

// --- bits of a character ----------------------------------------------------

namespace {
struct AlphabetRow {
  const char *constraint;
  const char *aligned;
  const char *unaligned;
};
}  // namespace

static const AlphabetRow alphabetRows[] = {
    {"(FROM(\"\"))", "1/0", "0/0"},
    {"(FROM(\"a\"))", "0/1", "0/1"},
    {"(FROM(\"a\"..\"b\"))", "1/2", "1/2"},
    {"(FROM(\"a\"..\"c\"))", "2/3", "2/3"},
    {"(FROM(\"a\"..\"d\"))", "2/4", "2/4"},
    {"(FROM(\"a\"..\"e\"))", "4/5", "3/5"},
    {"(FROM(\"a\"..\"h\"))", "4/8", "3/8"},
    {"(FROM(\"a\"..\"i\"))", "4/9", "4/9"},
    {"(FROM(\"a\"..\"p\"))", "4/16", "4/16"},
    {"(FROM(\"a\"..\"q\"))", "8/17", "5/17"},
    {"(FROM(\"A\"..\"Z\"|\"a\"..\"f\"))", "8/32", "5/32"},
    {"(FROM(\"A\"..\"Z\"|\"a\"..\"g\"))", "8/33", "6/33"},
    {"(FROM(\"A\"..\"Z\"|\"0\"))", "8/27", "5/27"},
    {"(FROM(\"aab\"))", "2/3", "2/3"},
    {"(FROM(\"a\"..\"g\"))", "4/7", "3/7"},
    {"(FROM(\"a\"..\"o\"))", "4/15", "4/15"},
    {"(FROM(\"A\"..\"Z\"|\"a\"..\"e\"))", "8/31", "5/31"},
    {"(FROM(\" \"..\"_\"))", "8/64", "6/64"},
    {"(FROM(\" \"..\"`\"))", "8/65", "7/65"},
};

TEST_F(PerAlphabet, BitsOfAlphabets)
{
  for (const AlphabetRow &row : alphabetRows) {
    std::string notation = std::string("IA5String ") + row.constraint;
    EXPECT_EQ(bitsOf(notation, VARIANT_ALIGNED), row.aligned) << notation;
    EXPECT_EQ(bitsOf(notation, VARIANT_UNALIGNED), row.unaligned) << notation;
    EXPECT_EQ(bitsOf(notation, anUnknownVariant), row.unaligned) << notation;
  }
}

TEST_F(PerAlphabet, BitsOfLargeAlphabets)
{
  std::string range = "BMPString (FROM({0,0,0,1}..{0,0,0,";
  EXPECT_EQ(bitsOf(range + "127}))", VARIANT_UNALIGNED), "7/127");
  EXPECT_EQ(bitsOf(range + "255}|\"a\"..\"a\"))", VARIANT_UNALIGNED), "8/256");
  EXPECT_EQ(bitsOf(range + "255}|\"a\"..\"a\"))", VARIANT_ALIGNED), "8/256");
  EXPECT_EQ(bitsOf(range + "128}))", VARIANT_UNALIGNED), "7/128");
  EXPECT_EQ(bitsOf(range + "129}))", VARIANT_UNALIGNED), "8/129");
  EXPECT_EQ(bitsOf(range + "255}))", VARIANT_UNALIGNED), "8/255");
  EXPECT_EQ(bitsOf(range + "255}))", VARIANT_ALIGNED), "8/255");
  EXPECT_EQ(bitsOf(range + "255}|\"a\"..\"b\"))", VARIANT_UNALIGNED), "9/257");
  EXPECT_EQ(bitsOf(range + "255}|\"a\"..\"b\"))", VARIANT_ALIGNED), "16/257");
}

TEST_F(PerAlphabet, SortedBehindTheCount)
{
  EXPECT_EQ(bitsOf("IA5String (FROM(\"edcba\"))", VARIANT_ALIGNED), "4/5");
  EXPECT_EQ(glbEffectivePermittedAlphabet, "abcde");
  EXPECT_EQ(bitsOf("IA5String (FROM(\"bab\"))", VARIANT_ALIGNED), "2/3");
  EXPECT_EQ(glbEffectivePermittedAlphabet, "abb");
  EXPECT_EQ(bitsOf("BMPString (FROM({0,0,0,232}..{0,0,0,233}|\"a\"..\"b\"))",
                   VARIANT_ALIGNED),
            "2/4");
  EXPECT_EQ(glbEffectivePermittedAlphabet, "ab\xE8\xE9");
}

TEST_F(PerAlphabet, WalkBeginsWithoutAlphabet)
{
  glbEffectivePermittedAlphabet = "xyz";
  EXPECT_EQ(bitsOf("IA5String (FROM(\"ab\"))", VARIANT_ALIGNED), "1/2");
  EXPECT_EQ(glbEffectivePermittedAlphabet, "ab");
  EXPECT_EQ(bitsOf("NumericString", VARIANT_ALIGNED), "4/11");
  EXPECT_EQ(glbEffectivePermittedAlphabet, std::nullopt);
}

// --- alphabets of the types themselves --------------------------------------

TEST_F(PerAlphabet, DefaultBits)
{
  const AlphabetRow rows[] = {
      {"NumericString", "4/11", "4/11"},
      {"PrintableString", "8/74", "7/74"},
      {"VisibleString", "8/95", "7/95"},
      {"IA5String", "8/128", "7/128"},
      {"BMPString", "16/65534", "16/65534"},
      {"UniversalString", "32/2147483647", "32/2147483647"},
  };
  for (const AlphabetRow &row : rows) {
    EXPECT_EQ(defaultBitsOf(row.constraint, VARIANT_ALIGNED), row.aligned);
    EXPECT_EQ(defaultBitsOf(row.constraint, VARIANT_UNALIGNED), row.unaligned);
    EXPECT_EQ(bitsOf(row.constraint, VARIANT_ALIGNED), row.aligned);
    EXPECT_EQ(bitsOf(row.constraint, VARIANT_UNALIGNED), row.unaligned);
  }
}

TEST_F(PerAlphabet, DefaultBitsOfOtherTypes)
{
  for (const char *name : {"TeletexString", "VideotexString", "GraphicString",
                           "GeneralString", "OCTET STRING"})
    EXPECT_EQ(defaultBitsOf(name, VARIANT_ALIGNED), "-1/0") << name;
}

TEST_F(PerAlphabet, DefaultBitsThatAreTheSameInAnyVariant)
{
  EXPECT_EQ(defaultBitsOf("NumericString", anUnknownVariant), "4/11");
  EXPECT_EQ(defaultBitsOf("BMPString", anUnknownVariant), "16/65534");
  EXPECT_EQ(defaultBitsOf("UniversalString", anUnknownVariant),
            "32/2147483647");
}

TEST_F(PerAlphabetDeathTest, DefaultBitsInAnUnknownVariant)
{
  for (const char *name : {"PrintableString", "VisibleString", "IA5String"})
    EXPECT_EXIT(defaultBitsOf(name, anUnknownVariant), ExitedWithCode(2),
                "Unknown encoding variant\n")
        << name;
}
