// Fields and functions of BIT STRING and OCTET STRING.

#include "model/typequery.h"
#include "per/perstring.h"
#include "support/perstringtypes.h"
#include <cstring>
#include <set>

// An annotation.
constexpr char dynamicHome[] = " --$ field=DYNS";

struct PerString : PerStringTypes {
  typedef int GetField(AsnType &type, int32_t &lower, int32_t &upper,
                       int &count);
  // "field: lower..upper, count".
  std::string field(GetField *get, const std::string &notation, int inVariant)
  {
    perSetEncodingVariant(inVariant);
    TestType type = typeOf(notation);
    int32_t lower = -1, upper = -1;
    int count = -1;
    int field = get(*type, lower, upper, count);
    return formatText("%d: %d..%d, %d", field, lower, upper, count);
  }
  std::string bitField(const std::string &size, int inVariant)
  {
    return field(perGetBitStrField, "BIT STRING " + size, inVariant);
  }
  std::string octField(const std::string &size, int inVariant)
  {
    return field(perGetOctStrField, "OCTET STRING " + size, inVariant);
  }

  // The name of a BIT STRING or OCTET STRING and its arguments; "null" where
  // there is none.
  std::string function(const std::string &notation, bool dynamic = false)
  {
    TestType type = typeOf(notation);
    return functionOf(*type, dynamic);
  }
  static std::string functionOf(AsnType &type, bool dynamic)
  {
    std::string text = "before";
    int32_t lower = -1, upper = -1;
    int count = -1;
    auto *name = getTypeMainType(type) == TYP_BITSTR ? perBitStrFunctionName
                                                     : perOctStrFunctionName;
    std::string *result =
        name(text, "pe_", type, " (", lower, upper, count, dynamic);
    if (!result)
      return "null";
    EXPECT_EQ(result, &text);
    return text + formatText("%d, %d, %d)", lower, upper, count);
  }
};

// --- fields of BIT STRING and OCTET STRING ----------------------------------

TEST_F(PerString, FixedLengthsOfBitStrings)
{
  const std::pair<int32_t, int> rows[] = {
      {0, 0},     {1, 1},     {7, 1},         {8, 1},     {9, 2},
      {15, 2},    {16, 2},    {17, 3},        {65534, 3}, {65535, 3},
      {65536, 4}, {65537, 4}, {INT32_MAX, 4},
  };
  for (auto [length, expected] : rows) {
    int count = -1;
    EXPECT_EQ(perGetFixedLengthBitStrField(length, count), expected) << length;
    EXPECT_EQ(count, expected == 4 ? 1 : 0) << length;
  }
}

TEST_F(PerString, FixedSizes)
{
  struct {
    const char *size;
    const char *bit;
    const char *oct;
  } rows[] = {
      {"(SIZE(0))", "0: 0..0, 0", "0: 0..0, 0"},
      {"(SIZE(1))", "1: 1..1, 0", "1: 1..1, 0"},
      {"(SIZE(2))", "1: 2..2, 0", "2: 2..2, 0"},
      {"(SIZE(3))", "1: 3..3, 0", "3: 3..3, 0"},
      {"(SIZE(8))", "1: 8..8, 0", "3: 8..8, 0"},
      {"(SIZE(9))", "2: 9..9, 0", "3: 9..9, 0"},
      {"(SIZE(16))", "2: 16..16, 0", "3: 16..16, 0"},
      {"(SIZE(17))", "3: 17..17, 0", "3: 17..17, 0"},
      {"(SIZE(65534))", "3: 65534..65534, 0", "3: 65534..65534, 0"},
      {"(SIZE(3000000000..4000000000))", "4: 2147483647..2147483647, 1",
       "4: 2147483647..2147483647, 1"},
      {"(SIZE(65535))", "3: 65535..65535, 0", "3: 65535..65535, 0"},
      {"(SIZE(65536))", "4: 65536..65536, 1", "4: 65536..65536, 1"},
      {"(SIZE(65537))", "4: 65537..65537, 1", "4: 65537..65537, 1"},
  };
  for (const auto &row : rows)
    for (int v : {VARIANT_ALIGNED, VARIANT_UNALIGNED}) {
      EXPECT_EQ(bitField(row.size, v), row.bit);
      EXPECT_EQ(octField(row.size, v), row.oct);
    }
}

namespace {
struct VariableRow {
  const char *size;
  const char *aligned;
  const char *unaligned;
};
}  // namespace

static const VariableRow variableRows[] = {
    {"", "6: 0..2147483647, 4", "6: 0..2147483647, 4"},
    {"(SIZE(0..1))", "5: 0..1, 1", "5: 0..1, 1"},
    {"(SIZE(1..10))", "5: 1..10, 4", "5: 1..10, 4"},
    {"(SIZE(0..254))", "5: 0..254, 8", "5: 0..254, 8"},
    {"(SIZE(0..255))", "5: 0..255, 1", "5: 0..255, 8"},
    {"(SIZE(0..256))", "5: 0..256, 2", "5: 0..256, 9"},
    {"(SIZE(1..1000))", "5: 1..1000, 2", "5: 1..1000, 10"},
    {"(SIZE(0..65534))", "5: 0..65534, 2", "5: 0..65534, 16"},
    {"(SIZE(0..65537))", "5: 0..65537, 3", "5: 0..65537, 17"},
    {"(SIZE(1..2147483646))", "5: 1..2147483646, 4", "5: 1..2147483646, 31"},
    {"(SIZE(1)|SIZE(5))", "7: 0..0, 0", "7: 0..0, 0"},
    {"(SIZE(0..65535))", "5: 0..65535, 2", "5: 0..65535, 16"},
    {"(SIZE(0..65536))", "5: 0..65536, 3", "5: 0..65536, 17"},
    {"(SIZE(65530..65536))", "5: 65530..65536, 3", "5: 65530..65536, 3"},
    {"(SIZE(0..16777215))", "5: 0..16777215, 3", "5: 0..16777215, 24"},
    {"(SIZE(0..16777216))", "5: 0..16777216, 4", "5: 0..16777216, 25"},
    {"(SIZE(1..MAX))", "5: 1..2147483647, 4", "5: 1..2147483647, 31"},
    // The number of lengths does not fit.
    {"(SIZE(0..MAX))", "5: 0..2147483647, 0", "5: 0..2147483647, 0"},
    {"(SIZE(1|3))", "7: 0..0, 0", "7: 0..0, 0"},
    {"(SIZE(1|2))", "5: 1..2, 1", "5: 1..2, 1"},
    {"(SIZE(1..5, ...))", "5: 1..5, 3", "5: 1..5, 3"},
};

TEST_F(PerString, VariableSizes)
{
  for (const VariableRow &row : variableRows) {
    EXPECT_EQ(bitField(row.size, VARIANT_ALIGNED), row.aligned);
    EXPECT_EQ(bitField(row.size, VARIANT_UNALIGNED), row.unaligned);
    EXPECT_EQ(octField(row.size, VARIANT_ALIGNED), row.aligned);
    EXPECT_EQ(octField(row.size, VARIANT_UNALIGNED), row.unaligned);
  }
}

// Only the aligned variant counts in octets.
TEST_F(PerString, UnknownVariantCountsBits)
{
  EXPECT_EQ(bitField("(SIZE(0..255))", anUnknownVariant), "5: 0..255, 8");
  EXPECT_EQ(octField("(SIZE(0..256))", anUnknownVariant), "5: 0..256, 9");
}

TEST_F(PerString, VariableField)
{
  int count = -1;
  EXPECT_EQ(perGetVariableLengthBitStrField(0, 255, count), 5);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(perGetVariableLengthBitStrField(0, 254, count), 5);
  EXPECT_EQ(count, 8);
}

TEST_F(PerString, ConstraintsWithoutSize)
{
  for (int mainType : {TYP_BITSTR, TYP_OCTSTR}) {
    int32_t table = type(mainType, sub(SUB_TABLE));
    int32_t hidden = type(mainType, sub(SUB_HIDDEN));
    load();
    auto *get = mainType == TYP_BITSTR ? perGetBitStrField : perGetOctStrField;
    int32_t lower = -1, upper = -1;
    int count = -1;
    {
      TestType type(module, table);
      EXPECT_EQ(get(*type, lower, upper, count), STRING_COMPLEX);
      EXPECT_EQ(lower, 0);
      EXPECT_EQ(upper, 0);
      EXPECT_EQ(count, 0);
    }
    TestType type(module, hidden);
    EXPECT_EQ(get(*type, lower, upper, count), STRING_UNCONSTRAINED);
  }
}

TEST_F(PerString, GeneralStringIsAnOctetString)
{
  EXPECT_EQ(field(perGetOctStrField, "GeneralString", VARIANT_ALIGNED),
            "6: 0..2147483647, 4");
  EXPECT_EQ(
      field(perGetOctStrField, "GeneralString (SIZE(2))", VARIANT_ALIGNED),
      "2: 2..2, 0");
  EXPECT_EQ(
      field(perGetOctStrField, "GeneralString (FROM(\"a\"))", VARIANT_ALIGNED),
      "7: 0..0, 0");
}

// --- names by field ---------------------------------------------------------

namespace {
struct NameRow {
  int field;
  int32_t upper;
  int32_t range;
  const char *bit;  // behind "BitString_", resp. "OctetString_"
  const char *oct;
};
}  // namespace

static std::string nameAfter(const char *start, const char *name)
{
  if (!name)
    return "null";
  EXPECT_TRUE(startsWith(name, start)) << name;
  return name + strlen(start);
}

TEST_F(PerString, AlignedNames)
{
  const NameRow rows[] = {
      {0, 0, 1, "al_feq0", "al_feq0"},
      {1, 1, 1, "al_fle8", "al_feq1"},
      {2, 2, 1, "al_fle16", "al_feq2"},
      {3, 65535, 1, "al_flt64K", "al_flt64K"},
      {4, 65536, 1, "al_fge64K", "al_fge64K"},
      {5, 254, 2, "al_clt64K_le255", "al_clt64K_le255"},
      {5, 254, 255, "al_clt64K_le255", "al_clt64K_le255"},
      {5, 255, 256, "al_clt64K_eq256", "al_clt64K_eq256"},
      {5, 256, 257, "al_clt64K_le64K", "al_clt64K_le64K"},
      {5, 65535, 65536, "al_clt64K_le64K", "al_clt64K_le64K"},
      {5, 65535, 255, "al_clt64K_le255", "al_clt64K_le255"},
      {5, 65536, 255, "al_cgt64K", "al_cgt64K"},
      {5, 65536, 256, "al_cgt64K", "al_cgt64K"},
      {5, 65536, 65537, "al_cgt64K", "al_cgt64K"},
      {5, INT32_MAX, INT32_MAX, "al_cgt64K", "al_cgt64K"},
      {6, INT32_MAX, INT32_MAX, "al_u", "al_u"},
      {7, 0, 0, "null", "null"},
      {8, 0, 0, "null", "null"},
      {-1, 0, 0, "null", "null"},
  };
  for (const NameRow &row : rows) {
    EXPECT_EQ(nameAfter("BitString_",
                        alignedBitStrFuncName(row.field, row.upper, row.range)),
              row.bit);
    EXPECT_EQ(nameAfter("OctetString_",
                        alignedOctStrFuncName(row.field, row.upper, row.range)),
              row.oct);
  }
}

TEST_F(PerString, UnalignedNames)
{
  const NameRow rows[] = {
      {0, 0, 0, "ua_feq0", "ua_feq0"},     {1, 0, 0, "ua_fle8", "ua_feq1"},
      {2, 0, 0, "ua_fle16", "ua_feq2"},    {3, 0, 0, "ua_flt64K", "ua_flt64K"},
      {4, 0, 0, "ua_fge64K", "ua_fge64K"}, {5, 0, 0, "ua_clt64K", "ua_clt64K"},
      {6, 0, 0, "ua_u", "ua_u"},           {7, 0, 0, "null", "null"},
      {8, 0, 0, "null", "null"},           {-1, 0, 0, "null", "null"},
  };
  for (const NameRow &row : rows) {
    EXPECT_EQ(nameAfter("BitString_", unalignedBitStrFuncName(row.field)),
              row.bit);
    EXPECT_EQ(nameAfter("OctetString_", unalignedOctStrFuncName(row.field)),
              row.oct);
  }
}

// --- names by type ----------------------------------------------------------

namespace {
struct FunctionRow {
  const char *notation;
  const char *aligned;
  const char *unaligned;
};
}  // namespace

static const FunctionRow functionRows[] = {
    {"BIT STRING", "pe_BitString_al_u (0, 2147483647, 4)",
     "pe_BitString_ua_u (0, 2147483647, 4)"},
    {"BIT STRING (SIZE(8))", "pe_BitString_al_fle8 (8, 8, 0)",
     "pe_BitString_ua_fle8 (8, 8, 0)"},
    {"BIT STRING (SIZE(9))", "pe_BitString_al_fle16 (9, 9, 0)",
     "pe_BitString_ua_fle16 (9, 9, 0)"},
    {"BIT STRING (SIZE(16))", "pe_BitString_al_fle16 (16, 16, 0)",
     "pe_BitString_ua_fle16 (16, 16, 0)"},
    {"BIT STRING (SIZE(17))", "pe_BitString_al_flt64K (17, 17, 0)",
     "pe_BitString_ua_flt64K (17, 17, 0)"},
    {"OCTET STRING (SIZE(0))", "pe_OctetString_al_feq0 (0, 0, 0)",
     "pe_OctetString_ua_feq0 (0, 0, 0)"},
    {"OCTET STRING (SIZE(2))", "pe_OctetString_al_feq2 (2, 2, 0)",
     "pe_OctetString_ua_feq2 (2, 2, 0)"},
    {"OCTET STRING (SIZE(3))", "pe_OctetString_al_flt64K (3, 3, 0)",
     "pe_OctetString_ua_flt64K (3, 3, 0)"},
    {"OCTET STRING (SIZE(65535))", "pe_OctetString_al_flt64K (65535, 65535, 0)",
     "pe_OctetString_ua_flt64K (65535, 65535, 0)"},
    {"OCTET STRING (SIZE(65536))", "pe_OctetString_al_fge64K (65536, 65536, 1)",
     "pe_OctetString_ua_fge64K (65536, 65536, 1)"},
    {"OCTET STRING (SIZE(0..254))",
     "pe_OctetString_al_clt64K_le255 (0, 254, 8)",
     "pe_OctetString_ua_clt64K (0, 254, 8)"},
    {"OCTET STRING (SIZE(0..255))",
     "pe_OctetString_al_clt64K_eq256 (0, 255, 1)",
     "pe_OctetString_ua_clt64K (0, 255, 8)"},
    {"OCTET STRING (SIZE(0..256))",
     "pe_OctetString_al_clt64K_le64K (0, 256, 2)",
     "pe_OctetString_ua_clt64K (0, 256, 9)"},
    {"BIT STRING (SIZE(65281..65535))",
     "pe_BitString_al_clt64K_le255 (65281, 65535, 8)",
     "pe_BitString_ua_clt64K (65281, 65535, 8)"},
    {"BIT STRING (SIZE(65281..65536))",
     "pe_BitString_al_cgt64K (65281, 65536, 1)",
     "pe_BitString_ua_clt64K (65281, 65536, 8)"},
    {"BIT STRING (SIZE(1..MAX))", "pe_BitString_al_cgt64K (1, 2147483647, 4)",
     "pe_BitString_ua_clt64K (1, 2147483647, 31)"},
    {"OCTET STRING (SIZE(0..MAX))",
     "pe_OctetString_al_cgt64K (0, 2147483647, 0)",
     "pe_OctetString_ua_clt64K (0, 2147483647, 0)"},
    {"BIT STRING (SIZE(1|3))", "null", "null"},
    {"OCTET STRING (SIZE(1|3))", "null", "null"},
};

TEST_F(PerString, Functions)
{
  for (const FunctionRow &row : functionRows) {
    perSetEncodingVariant(VARIANT_ALIGNED);
    EXPECT_EQ(function(row.notation + std::string(dynamicHome)), row.aligned);
    perSetEncodingVariant(VARIANT_UNALIGNED);
    EXPECT_EQ(function(row.notation + std::string(dynamicHome)), row.unaligned);
    perSetEncodingVariant(anUnknownVariant);
    EXPECT_EQ(function(row.notation + std::string(dynamicHome)), "null");
  }
}

TEST_F(PerString, NullPrefixAndSuffix)
{
  TestType type = typeOf("OCTET STRING (SIZE(2))");
  std::string text = "before";
  int32_t lower, upper;
  int count;
  EXPECT_EQ(perOctStrFunctionName(text, nullptr, *type, nullptr, lower, upper,
                                  count, false),
            &text);
  EXPECT_EQ(text, "OctetString_al_feq2");
}

// The home decides on the word ahead of the name.
TEST_F(PerString, Homes)
{
  const std::set<int> dynamicHomes = {VF_DYNS0,    VF_DYNS8,   VF_DYNS16,
                                      VF_DYNS,     VF_BMPSTR0, VF_BMPSTR8,
                                      VF_BMPSTR16, VF_BMPSTR};
  for (int mainType : {TYP_BITSTR, TYP_OCTSTR, TYP_GENSTR})
    for (int vf = VF_NONE; vf < VF_COUNT; ++vf) {
      int32_t record = define(stxNewTNode(mainType, vf));
      load();
      TestType type(module, record);
      std::string name = mainType == TYP_BITSTR ? "BitString" : "OctetString";
      std::string rest = name + "_al_u (0, 2147483647, 4)";
      std::string plain = "pe_" + rest;
      std::string allocating = plain;
      if (vf == VF_FRM)
        plain = allocating = "null";
      else if (vf == VF_LIST)
        plain = allocating = "pe_Seg" + rest;
      else if (dynamicHomes.count(vf))
        allocating = "pe_Dyn" + rest;
      EXPECT_EQ(functionOf(*type, false), plain) << vf;
      EXPECT_EQ(functionOf(*type, true), allocating) << vf;
    }
}
