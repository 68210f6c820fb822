// Fields and calls of known-multiplier strings.

#include "cbet/outfile.h"
#include "per/perstring.h"
#include "support/perstringtypes.h"
#include <set>
#include <vector>

using testing::ExitedWithCode;

// Annotations.
constexpr char staticHome[] = " --$ field=STAS";
constexpr char dynamicHome[] = " --$ field=DYNS";
constexpr char segmentedHome[] = " --$ field=LIST";

struct PerChars : PerStringTypes {
  static constexpr int file = 3;

  ~PerChars() override
  {
    if (fArr[file].fp)
      fclose(fArr[file].fp);
    clearOutFiles();
  }

  // "field: lower..upper, bits, length count, alphabet size".
  std::string charsField(const std::string &notation,
                         int inVariant = VARIANT_ALIGNED)
  {
    perSetEncodingVariant(inVariant);
    TestType type = typeOf(notation);
    int32_t lower = -2, upper = -2, size = -2;
    int bits = -2, count = -2;
    int field =
        perGetKnownMultiChrStrField(*type, lower, upper, bits, count, size);
    return formatText("%d: %d..%d, %d, %d, %d", field, lower, upper, bits,
                      count, size);
  }

  // What `write` leaves in the file, behind `before`.
  template <class F>
  std::string written(const std::string &before, F write)
  {
    clearOutFiles();
    openNamedF(file, dir.path.c_str(), "out");
    putToF(file, before.c_str());
    write();
    fclose(fArr[file].fp);
    fArr[file].fp = nullptr;
    return readFile(dir.path + "out").substr(before.size());
  }
  // Without the breaks, each of which took a blank's place.
  static std::string unbroken(std::string text)
  {
    for (size_t at; (at = text.find("\n  ")) != std::string::npos;)
      text.replace(at, 3, " ");
    return text;
  }
  // The call of a known-multiplier string; `supported` tells its result.
  std::string call(const std::string &notation, const char *prefix = "pe_",
                   bool dynamic = false, const char *home = "HOME")
  {
    TestType type = typeOf(notation);
    return unbroken(written("", [&] {
      supported = perKnownMultiChrStrFunctionToF(file, prefix, dynamic, *type,
                                                 home, ";");
    }));
  }
  bool supported = false;
};

typedef PerChars PerCharsDeathTest;

// --- fields of known-multiplier strings -------------------------------------

TEST_F(PerChars, CharactersWithoutSize)
{
  EXPECT_EQ(charsField("IA5String"), "4: 0..2147483647, 8, 4, 128");
  // SIZEs inside a union alone.
  EXPECT_EQ(charsField("IA5String (SIZE(1)|SIZE(5))"),
            "4: 0..2147483647, 8, 4, 128");
  EXPECT_EQ(charsField("NumericString"), "4: 0..2147483647, 4, 4, 11");
  EXPECT_EQ(charsField("BMPString"), "4: 0..2147483647, 16, 4, 65534");
  EXPECT_EQ(charsField("UniversalString"),
            "4: 0..2147483647, 32, 4, 2147483647");
  EXPECT_EQ(charsField("IA5String (FROM(\"abcde\"))"),
            "4: 0..2147483647, 4, 4, 5");
  EXPECT_EQ(charsField("IA5String (\"abcde\")"), "4: 0..2147483647, 4, 4, 5");
  EXPECT_EQ(charsField("IA5String (FROM(\"abcde\"))", VARIANT_UNALIGNED),
            "4: 0..2147483647, 3, 4, 5");
}

TEST_F(PerChars, CharactersOfFixedNumber)
{
  EXPECT_EQ(charsField("PrintableString (SIZE(0))"), "0: 0..0, 8, 0, 74");
  EXPECT_EQ(charsField("PrintableString (SIZE(1))"), "0: 1..1, 8, 0, 74");
  EXPECT_EQ(charsField("PrintableString (SIZE(2))"), "0: 2..2, 8, 0, 74");
  EXPECT_EQ(charsField("PrintableString (SIZE(3))"), "1: 3..3, 8, 0, 74");
  EXPECT_EQ(charsField("NumericString (SIZE(4))"), "0: 4..4, 4, 0, 11");
  EXPECT_EQ(charsField("NumericString (SIZE(5))"), "1: 5..5, 4, 0, 11");
  EXPECT_EQ(charsField("BMPString (SIZE(1))"), "0: 1..1, 16, 0, 65534");
  EXPECT_EQ(charsField("BMPString (SIZE(2))"), "1: 2..2, 16, 0, 65534");
  EXPECT_EQ(charsField("UniversalString (SIZE(1))"),
            "1: 1..1, 32, 0, 2147483647");
  EXPECT_EQ(charsField("PrintableString (SIZE(2))", VARIANT_UNALIGNED),
            "0: 2..2, 7, 0, 74");
  EXPECT_EQ(charsField("PrintableString (SIZE(3))", VARIANT_UNALIGNED),
            "1: 3..3, 7, 0, 74");
}

// Sixteen and seventeen characters of one bit.
TEST_F(PerChars, CharactersOfFewBits)
{
  EXPECT_EQ(charsField("IA5String (SIZE(15))(FROM(\"ab\"))"),
            "0: 15..15, 1, 0, 2");
  EXPECT_EQ(charsField("IA5String (SIZE(16))(FROM(\"ab\"))"),
            "0: 16..16, 1, 0, 2");
  EXPECT_EQ(charsField("IA5String (SIZE(17))(FROM(\"ab\"))"),
            "1: 17..17, 1, 0, 2");
  EXPECT_EQ(charsField("IA5String (SIZE(65535))(FROM(\"a\"))"),
            "0: 65535..65535, 0, 0, 1");
}

TEST_F(PerChars, CharactersFrom64K)
{
  EXPECT_EQ(charsField("IA5String (SIZE(65534))"),
            "1: 65534..65534, 8, 0, 128");
  EXPECT_EQ(charsField("IA5String (SIZE(65537))"),
            "2: 65537..65537, 8, 0, 128");
  EXPECT_EQ(charsField("IA5String (SIZE(3000000000..4000000000))"),
            "2: 2147483647..2147483647, 8, 0, 128");
  EXPECT_EQ(charsField("IA5String (SIZE(65535))"),
            "1: 65535..65535, 8, 0, 128");
  EXPECT_EQ(charsField("IA5String (SIZE(65536))"),
            "2: 65536..65536, 8, 0, 128");
  EXPECT_EQ(charsField("IA5String (SIZE(65536))(FROM(\"a\"))"),
            "2: 65536..65536, 0, 0, 1");
}

TEST_F(PerChars, CharactersOfVariableNumber)
{
  struct {
    const char *size;
    const char *expected;  // ahead of the bits, and the count
    int count;
  } rows[] = {
      {"(0..1)", "3: 0..1", 1},
      {"(0..65534)", "3: 0..65534", 2},
      {"(0..65537)", "3: 0..65537", 3},
      {"(1..2147483647)", "4: 1..2147483647", 4},
      {"(1..10)", "3: 1..10", 4},
      {"(0..254)", "3: 0..254", 8},
      {"(0..255)", "3: 0..255", 1},
      {"(0..256)", "3: 0..256", 2},
      {"(0..65535)", "3: 0..65535", 2},
      {"(65281..65535)", "3: 65281..65535", 8},
      {"(0..65536)", "3: 0..65536", 3},
      {"(65530..65536)", "3: 65530..65536", 0},
      {"(1..2147483646)", "3: 1..2147483646", 4},
      {"(1..MAX)", "4: 1..2147483647", 4},
      // The number of lengths does not fit.
      {"(0..MAX)", "4: 0..2147483647", 0},
  };
  for (const auto &row : rows) {
    std::string notation = std::string("IA5String (SIZE") + row.size + ")";
    EXPECT_EQ(charsField(notation),
              formatText("%s, 8, %d, 128", row.expected, row.count));
    // The count is the same.
    EXPECT_EQ(charsField(notation, VARIANT_UNALIGNED),
              formatText("%s, 7, %d, 128", row.expected, row.count));
  }
}

TEST_F(PerChars, CharactersOfComplexNumber)
{
  glbEffectivePermittedAlphabet = "left over";
  EXPECT_EQ(charsField("IA5String (SIZE(1|3))"), "5: 0..0, -1, 0, 0");
  EXPECT_EQ(glbEffectivePermittedAlphabet, std::nullopt);
  EXPECT_EQ(charsField("IA5String (SIZE(1|3))(FROM(\"ab\"))"),
            "5: 0..0, -1, 0, 0");
}

// --- marks of lengths -------------------------------------------------------

namespace {
struct LenIdRow {
  int field;
  int32_t lower;
  int32_t upper;
  const char *aligned;  // empty for none
  const char *unaligned;
};
}  // namespace

static const LenIdRow lenIdRows[] = {
    {0, 2, 2, "_fle16", "_flt64K"},
    {1, 3, 3, "_fgt16", "_flt64K"},
    {2, 65536, 65536, "_fge64K", "_fge64K"},
    {3, 0, 1, "_clt64K_le255", "_clt64K"},
    {3, 0, 254, "_clt64K_le255", "_clt64K"},
    {3, 0, 255, "_clt64K_eq256", "_clt64K"},
    {3, 0, 256, "_clt64K_le64K", "_clt64K"},
    {3, 0, 65534, "_clt64K_le64K", "_clt64K"},
    {3, 0, 65535, "_clt64K_le64K", "_clt64K"},
    {3, 0, 65537, "_cge64K", "_cge64K"},
    {3, 65281, 65535, "_clt64K_le255", "_clt64K"},
    {3, 65281, 65536, "_cge64K", "_cge64K"},
    {3, 0, 65536, "_cge64K", "_cge64K"},
    {4, 0, INT32_MAX, "_u", "_u"},
    {5, 0, 0, "", ""},
    {6, 0, 0, "", ""},
    {-1, 0, 0, "", ""},
};

TEST_F(PerChars, LenIds)
{
  for (const LenIdRow &row : lenIdRows) {
    std::string text = "before";
    EXPECT_EQ(alignedKnownMultiChrLenId(text, row.field, row.lower, row.upper),
              *row.aligned != 0);
    EXPECT_EQ(text, row.aligned);
    text = "before";
    EXPECT_EQ(
        unalignedKnownMultiChrLenId(text, row.field, row.lower, row.upper),
        *row.unaligned != 0);
    EXPECT_EQ(text, row.unaligned);
  }
}

TEST_F(PerChars, LenIdsByVariant)
{
  std::string text;
  EXPECT_TRUE(knownMultiChrStrLenId(text, 3, 0, 255));
  EXPECT_EQ(text, "_clt64K_eq256");
  EXPECT_FALSE(knownMultiChrStrLenId(text, 5, 0, 0));
  EXPECT_EQ(text, "!! Unsupported string type !!");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_TRUE(knownMultiChrStrLenId(text, 3, 0, 255));
  EXPECT_EQ(text, "_clt64K");
  EXPECT_FALSE(knownMultiChrStrLenId(text, 5, 0, 0));
  EXPECT_EQ(text, "!! Unsupported string type !!");
  perSetEncodingVariant(anUnknownVariant);
  EXPECT_FALSE(knownMultiChrStrLenId(text, 3, 0, 255));
  EXPECT_EQ(text, "!! Unsupported string type !!");
}

// --- homes of known-multiplier strings --------------------------------------

TEST_F(PerChars, DynSegIds)
{
  const std::set<int> staticHomes = {VF_STAS0, VF_STAS8, VF_STAS16, VF_STAS};
  const std::set<int> dynamicHomes = {VF_DYNS0,    VF_DYNS8,   VF_DYNS16,
                                      VF_DYNS,     VF_BMPSTR0, VF_BMPSTR8,
                                      VF_BMPSTR16, VF_BMPSTR};
  for (int mainType : {TYP_IA5STR, TYP_BMPSTR})
    for (int vf = VF_NONE; vf < VF_COUNT; ++vf) {
      int32_t record = define(stxNewTNode(mainType, vf));
      load();
      TestType type(module, record);
      std::string plain = "Seg", allocating = "Seg";
      if (staticHomes.count(vf) || dynamicHomes.count(vf))
        plain = allocating = "";
      if (dynamicHomes.count(vf))
        allocating = "Dyn";
      std::string text = "before";
      EXPECT_TRUE(knownMultiChrStrDynSegId(text, *type, false));
      EXPECT_EQ(text, plain) << vf;
      EXPECT_TRUE(knownMultiChrStrDynSegId(text, *type, true));
      EXPECT_EQ(text, allocating) << vf;
    }
}

// --- calls of known-multiplier strings --------------------------------------

TEST_F(PerChars, CallsInTheAlignedVariant)
{
  std::string bounded = "IA5String (SIZE(1..10))";
  EXPECT_EQ(call(bounded + staticHome),
            "pe_KnownMultiCharStri_al_clt64K_le255 (HOME, 1, 10, 4, 8, "
            "TYP_IA5STR, 128, NULL);");
  EXPECT_TRUE(supported);
  EXPECT_EQ(call(bounded + dynamicHome, "pd_", true),
            "pd_DynKnownMultiCharStri_al_clt64K_le255 (HOME, 1, 10, 4, 8, "
            "TYP_IA5STR, BYTE_TYPE, 128, NULL);");
  EXPECT_TRUE(supported);
  EXPECT_EQ(call(std::string("NumericString") + dynamicHome),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 4, "
            "TYP_NUMSTR, 11, asnperNumStrChars);");
  EXPECT_TRUE(supported);
  EXPECT_EQ(call(std::string("IA5String (FROM(\"abcde\"))") + dynamicHome),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 4, "
            "TYP_IA5STR, 5, \"abcde\");");
  EXPECT_TRUE(supported);
  EXPECT_EQ(call(std::string("PrintableString (SIZE(2))") + staticHome),
            "pe_KnownMultiCharStri_al_fle16 (HOME, 2, 2, 0, 8, TYP_PRISTR, "
            "74, NULL);");
  EXPECT_TRUE(supported);
}

TEST_F(PerChars, CallsInTheUnalignedVariant)
{
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(call(std::string("IA5String (SIZE(1..10))") + staticHome),
            "pe_KnownMultiCharStri_ua_clt64K (HOME, 1, 10, 4, 7, TYP_IA5STR, "
            "128, NULL);");
  EXPECT_TRUE(supported);
  EXPECT_EQ(call(std::string("IA5String (FROM(\"abcde\"))") + dynamicHome),
            "pe_KnownMultiCharStri_ua_u (HOME, 0, 2147483647, 4, 3, "
            "TYP_IA5STR, 5, \"abcde\");");
  EXPECT_EQ(call(std::string("PrintableString (SIZE(3))") + staticHome),
            "pe_KnownMultiCharStri_ua_flt64K (HOME, 3, 3, 0, 7, TYP_PRISTR, "
            "74, NULL);");
}

TEST_F(PerChars, CallsWithoutHome)
{
  std::string notation = std::string("PrintableString (SIZE(2))") + staticHome;
  std::string expected = "pi_KnownMultiCharStri_al_fle16 (2, 2, 0, 8, "
                         "TYP_PRISTR, 74, NULL);";
  EXPECT_EQ(call(notation, "pi_", false, nullptr), expected);
  EXPECT_EQ(call(notation, "pi_", false, ""), expected);
}

TEST_F(PerChars, CallsByType)
{
  EXPECT_EQ(call(std::string("VisibleString") + dynamicHome),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 8, "
            "TYP_VISSTR, 95, NULL);");
  EXPECT_EQ(call(std::string("UniversalString") + dynamicHome),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 32, "
            "TYP_UNISTR, 2147483647, NULL);");
  EXPECT_EQ(call(std::string("NumericString (FROM(\"3\"|\"1\"..\"2\"))") +
                 dynamicHome),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 2, "
            "TYP_NUMSTR, 3, \"123\");");
}

TEST_F(PerChars, CallsForWordsOfCharacters)
{
  EXPECT_EQ(call("BMPString --$ field=BMPSTR", "pd_", true),
            "pd_DynKnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 16, "
            "TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);");
  EXPECT_EQ(call("BMPString --$ field=BMPSTR"),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 16, "
            "TYP_BMPSTR, 65534, NULL);");
  EXPECT_EQ(call(std::string("BMPString") + segmentedHome),
            "pe_SegKnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 16, "
            "TYP_BMPSTR, ASN_BMPCHAR, 65534, NULL);");
}

TEST_F(PerChars, CallsForSegments)
{
  for (bool dynamic : {false, true})
    EXPECT_EQ(call(std::string("IA5String") + segmentedHome, "pe_", dynamic),
              "pe_SegKnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 8, "
              "TYP_IA5STR, BYTE_TYPE, 128, NULL);");
}

// The call is written all the same.
TEST_F(PerChars, CallsOfComplexTypes)
{
  EXPECT_EQ(call(std::string("IA5String (SIZE(1|3))") + staticHome),
            "pe_KnownMultiCharStri_al!! Unsupported string type !! (HOME, 0, "
            "0, 0, -1, TYP_IA5STR, 0, NULL);");
  EXPECT_FALSE(supported);
  EXPECT_EQ(
      call(std::string("NumericString (SIZE(1|3))(FROM(\"1\"))") + staticHome),
      "pe_KnownMultiCharStri_al!! Unsupported string type !! (HOME, 0, "
      "0, 0, -1, TYP_NUMSTR, 0, asnperNumStrChars);");
  EXPECT_FALSE(supported);
}

TEST_F(PerChars, CallsInAnUnknownVariant)
{
  perSetEncodingVariant(anUnknownVariant);
  EXPECT_EQ(call(std::string("NumericString") + dynamicHome),
            "pe_KnownMultiCharStri_<unsupported>!! Unsupported string type !! "
            "(HOME, 0, 2147483647, 4, 4, TYP_NUMSTR, 11, asnperNumStrChars);");
  EXPECT_FALSE(supported);
}

TEST_F(PerCharsDeathTest, UnknownVariantOfSevenBits)
{
  perSetEncodingVariant(anUnknownVariant);
  EXPECT_EXIT(call("IA5String"), ExitedWithCode(2),
              "Unknown encoding variant\n");
}

// Characters that mean something to C, and to a format.
TEST_F(PerChars, AlphabetsAreWrittenAsTheyAre)
{
  EXPECT_EQ(call(std::string("IA5String (FROM(\"a\"\"\\%s\"))") + dynamicHome),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 4, "
            "TYP_IA5STR, 5, \"\"%\\as\");");
  EXPECT_EQ(call(std::string("IA5String (FROM(\"\"))") + dynamicHome),
            "pe_KnownMultiCharStri_al_u (HOME, 0, 2147483647, 4, 1, "
            "TYP_IA5STR, 0, \"\");");
}

TEST_F(PerChars, AlphabetGoesBehindTheCall)
{
  call("IA5String (FROM(\"ab\"))");
  EXPECT_EQ(glbEffectivePermittedAlphabet, std::nullopt);
}

TEST_F(PerChars, CallWithoutPrefixAndSuffix)
{
  TestType type = typeOf(std::string("NumericString") + staticHome);
  EXPECT_EQ(unbroken(written("",
                             [&] {
                               perKnownMultiChrStrFunctionToF(
                                   file, nullptr, false, *type, "%d", nullptr);
                             })),
            "KnownMultiCharStri_al_u (%d, 0, 2147483647, 4, 4, TYP_NUMSTR, "
            "11, asnperNumStrChars)");
}

// --- where the lines of a call may break ------------------------------------

namespace {
struct Piece {
  const char *text;
  bool noBreak = false;
};
}  // namespace

struct PerCharsBreaks : PerChars {
  // The call, begun at any column, against its pieces.
  void expectPieces(const std::string &notation, const char *prefix,
                    bool dynamic, const char *home,
                    const std::vector<Piece> &pieces)
  {
    TestType type = typeOf(notation);
    for (size_t column = 0; column <= 80; ++column) {
      std::string before(column, 'x');
      std::string expected = written(before, [&] {
        for (const Piece &piece : pieces)
          writeToF(file, piece.text, piece.noBreak);
      });
      EXPECT_EQ(written(before,
                        [&] {
                          perKnownMultiChrStrFunctionToF(file, prefix, dynamic,
                                                         *type, home, ";\n");
                        }),
                expected)
          << column;
    }
  }
};

TEST_F(PerCharsBreaks, AllArguments)
{
  expectPieces(std::string("IA5String (SIZE(1..10))") + dynamicHome, "pd_",
               true, "&home->a_fld",
               {{"pd_DynKnownMultiCharStri_al_clt64K_le255 ("},
                {"&home->a_fld,"},
                {" 1,"},
                {" 10,"},
                {" 4,"},
                {" 8,"},
                {" TYP_IA5STR,"},
                {" BYTE_TYPE,"},
                {" 128,"},
                {" NULL"},
                {");\n"}});
}

TEST_F(PerCharsBreaks, NoHome)
{
  expectPieces(std::string("NumericString") + staticHome, "pi_", false, nullptr,
               {{"pi_KnownMultiCharStri_al_u ("},
                {"0,"},
                {" 2147483647,"},
                {" 4,"},
                {" 4,"},
                {" TYP_NUMSTR,"},
                {" 11,"},
                {" asnperNumStrChars"},
                {");\n"}});
}

TEST_F(PerCharsBreaks, NoneAheadOfAnAlphabet)
{
  expectPieces(std::string("IA5String (FROM(\"abcdefghijklmnopqrst\"))") +
                   staticHome,
               "pe_", false, "*home",
               {{"pe_KnownMultiCharStri_al_u ("},
                {"*home,"},
                {" 0,"},
                {" 2147483647,"},
                {" 4,"},
                {" 8,"},
                {" TYP_IA5STR,"},
                {" 20,"},
                {" \"abcdefghijklmnopqrst\"", true},
                {");\n"}});
}
