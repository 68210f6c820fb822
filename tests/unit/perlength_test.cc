// Bounds of sizes and lengths of lists.

#include "per/perint.h"
#include "per/perlength.h"
#include "support/perstringtypes.h"

struct PerLength : PerStringTypes {
  // "field: lower..upper, count".
  std::string fieldOf(const std::string &notation, int inVariant)
  {
    perSetEncodingVariant(inVariant);
    TestType type = typeOf(notation);
    int32_t lower = -1, upper = -1;
    int count = -1;
    int field = perGetSeqOfField(*type, lower, upper, count);
    return formatText("%d: %d..%d, %d", field, lower, upper, count);
  }
  std::string boundsIn32(const std::string &notation)
  {
    TestType type = typeOf(notation);
    int32_t lower = -1, upper = -1;
    getPERSizeEndpoints(*type, lower, upper);
    return formatText("%d..%d", lower, upper);
  }
  bool fragmented(const std::string &notation)
  {
    TestType type = typeOf(notation);
    return perValueCanBeFragmented(*type);
  }
};

// --- bounds -----------------------------------------------------------------

TEST_F(PerLength, HiddenConstraintsAlone)
{
  int32_t record = type(TYP_SEQOF, sub(SUB_HIDDEN));
  load();
  TestType list(module, record);
  int32_t lower = -1, upper = -1;
  int count = -1;
  EXPECT_EQ(perGetSeqOfField(*list, lower, upper, count), SEQOF_FRAGMENTED);
  EXPECT_EQ(lower, 0);
  EXPECT_EQ(upper, INT32_MAX);
  EXPECT_EQ(count, 4);
}

TEST_F(PerLength, RangesOfSizes)
{
  EXPECT_EQ(perSizeRange(1, 10), 10);
  EXPECT_EQ(perSizeRange(5, 5), 1);
  EXPECT_EQ(perSizeRange(1, INT32_MAX), INT32_MAX);
  EXPECT_EQ(perSizeRange(2, INT32_MAX), INT32_MAX - 1);
}

TEST_F(PerLength, RangeOfAllSizesWraps)
{
  EXPECT_EQ(perSizeRange(0, INT32_MAX), INT32_MIN);
}

TEST_F(PerLength, Endpoints)
{
  EXPECT_EQ(boundsIn32("OCTET STRING (SIZE(3..7))"), "3..7");
  EXPECT_EQ(boundsIn32("BIT STRING (SIZE(4))"), "4..4");
  EXPECT_EQ(boundsIn32("SEQUENCE (SIZE(1..2)) OF NULL"), "1..2");
  EXPECT_EQ(boundsIn32("IA5String (SIZE(1|5))"), "1..5");
}

TEST_F(PerLength, OpenEndpoints)
{
  EXPECT_EQ(boundsIn32("OCTET STRING"), "0..2147483647");
  EXPECT_EQ(boundsIn32("OCTET STRING (SIZE(3..MAX))"), "3..2147483647");
  EXPECT_EQ(boundsIn32("IA5String (FROM(\"a\"))"), "0..2147483647");
}

TEST_F(PerLength, EndpointsBeyond32Bits)
{
  EXPECT_EQ(boundsIn32("OCTET STRING (SIZE(3..2147483646))"), "3..2147483646");
  EXPECT_EQ(boundsIn32("OCTET STRING (SIZE(3..2147483648))"), "3..2147483647");
  EXPECT_EQ(boundsIn32("OCTET STRING (SIZE(3000000000..4000000000))"),
            "2147483647..2147483647");
}

// --- classes of lengths -----------------------------------------------------

TEST_F(PerLength, Classes)
{
  EXPECT_EQ(getSeqOfLengthDeterminant(0), 1);
  EXPECT_EQ(getSeqOfLengthDeterminant(65535), 1);
  EXPECT_EQ(getSeqOfLengthDeterminant(65536), 2);
  EXPECT_EQ(getSeqOfLengthDeterminant(65537), 2);
  EXPECT_EQ(getSeqOfLengthDeterminant(INT32_MAX - 1), 2);
  EXPECT_EQ(getSeqOfLengthDeterminant(INT32_MAX), 3);
}

// --- fields of lists --------------------------------------------------------

namespace {
struct ListRow {
  const char *size;
  const char *aligned;
  const char *unaligned;
};
}  // namespace

static const ListRow listRows[] = {
    // no constraint
    {"", "4: 0..2147483647, 4", "4: 0..2147483647, 4"},
    // fixed
    {"(SIZE(0))", "0: 0..0, 0", "0: 0..0, 0"},
    {"(SIZE(5))", "0: 5..5, 0", "0: 5..5, 0"},
    {"(SIZE(65534))", "0: 65534..65534, 0", "0: 65534..65534, 0"},
    {"(SIZE(65535))", "0: 65535..65535, 0", "0: 65535..65535, 0"},
    {"(SIZE(65536))", "4: 65536..65536, 4", "4: 65536..65536, 4"},
    {"(SIZE(65537))", "4: 65537..65537, 4", "4: 65537..65537, 4"},
    {"(SIZE(3000000000..4000000000))", "4: 2147483647..2147483647, 4",
     "4: 2147483647..2147483647, 4"},
    // SIZEs inside a union alone
    {"(SIZE(1)|SIZE(5))", "5: 0..0, 0", "5: 0..0, 0"},
    // up to 255 lengths
    {"(SIZE(0..1))", "1: 0..1, 1", "1: 0..1, 1"},
    {"(SIZE(1..10))", "1: 1..10, 4", "1: 1..10, 4"},
    {"(SIZE(0..253))", "1: 0..253, 8", "1: 0..253, 8"},
    {"(SIZE(0..254))", "1: 0..254, 8", "1: 0..254, 8"},
    {"(SIZE(65281..65535))", "1: 65281..65535, 8", "1: 65281..65535, 8"},
    // 256 lengths
    {"(SIZE(0..255))", "2: 0..255, 1", "2: 0..255, 8"},
    {"(SIZE(65280..65535))", "2: 65280..65535, 1", "2: 65280..65535, 8"},
    // up to 65536 lengths
    {"(SIZE(0..256))", "3: 0..256, 2", "3: 0..256, 9"},
    {"(SIZE(1..1000))", "3: 1..1000, 2", "3: 1..1000, 10"},
    {"(SIZE(0..65534))", "3: 0..65534, 2", "3: 0..65534, 16"},
    {"(SIZE(0..65535))", "3: 0..65535, 2", "3: 0..65535, 16"},
    // an upper bound from 64K on
    {"(SIZE(0..65536))", "4: 0..65536, 3", "4: 0..65536, 17"},
    {"(SIZE(65530..65536))", "4: 65530..65536, 0", "4: 65530..65536, 3"},
    // no upper bound
    {"(SIZE(1..MAX))", "4: 1..2147483647, 4", "4: 1..2147483647, 31"},
    {"(SIZE(0..MAX))", "4: 0..2147483647, 0", "4: 0..2147483647, 0"},
    {"(SIZE(0..2147483647))", "4: 0..2147483647, 0", "4: 0..2147483647, 0"},
    {"(SIZE(1..2147483646))", "4: 1..2147483646, 4", "4: 1..2147483646, 31"},
    // several ranges
    {"(SIZE(1|3))", "5: 0..0, 0", "5: 0..0, 0"},
    {"(SIZE(1..2|4..5))", "5: 0..0, 0", "5: 0..0, 0"},
    {"(SIZE(1|2))", "1: 1..2, 1", "1: 1..2, 1"},
    // the root alone
    {"(SIZE(1..5, ...))", "1: 1..5, 3", "1: 1..5, 3"},
};

TEST_F(PerLength, FieldsOfLists)
{
  for (const ListRow &row : listRows)
    for (const char *kind : {"SEQUENCE ", "SET "}) {
      std::string notation = std::string(kind) + row.size + " OF NULL";
      SCOPED_TRACE(notation);
      EXPECT_EQ(fieldOf(notation, VARIANT_ALIGNED), row.aligned);
      EXPECT_EQ(fieldOf(notation, VARIANT_UNALIGNED), row.unaligned);
    }
}

// Only the unaligned variant counts in bits.
TEST_F(PerLength, UnknownVariantCountsOctets)
{
  EXPECT_EQ(fieldOf("SEQUENCE (SIZE(0..255)) OF NULL", anUnknownVariant),
            "2: 0..255, 1");
  EXPECT_EQ(fieldOf("SEQUENCE (SIZE(1..1000)) OF NULL", anUnknownVariant),
            "3: 1..1000, 2");
  EXPECT_EQ(fieldOf("SEQUENCE (SIZE(1..10)) OF NULL", anUnknownVariant),
            "1: 1..10, 4");
}

TEST_F(PerLength, ConstraintsWithoutSize)
{
  compile("U ::= SEQUENCE OF INTEGER\nT ::= U (WITH COMPONENT (0..3))");
  TestType type = named("T");
  int32_t lower = -1, upper = -1;
  int count = -1;
  EXPECT_EQ(perGetSeqOfField(*type, lower, upper, count), SEQOF_COMPLEX);
  EXPECT_EQ(lower, 0);
  EXPECT_EQ(upper, 0);
  EXPECT_EQ(count, 0);
}

// --- calls for lengths ------------------------------------------------------

// The call with the expression "n" for the length; empty if there is none.
static std::string lengthCall(AsnType &type)
{
  int32_t lower, upper;
  int count;
  int field = perGetSeqOfField(type, lower, upper, count);
  std::string text = "before";
  std::string *call = perLengthDeterminantFunctionName(
      text, "pe_", field, type, "n", lower, upper, count, ";");
  return call ? *call : "null";
}

TEST_F(PerLength, CallsForLengths)
{
  const ListRow rows[] = {
      {"(SIZE(5))", "pe_lenDet_al_clt64K_eq1 (n, 5, 5, 0);",
       "pe_lenDet_ua_clt64K_eq1 (n, 5, 5, 0);"},
      {"(SIZE(1..10))", "pe_lenDet_al_clt64K_le255 (n, 1, 10, 4);",
       "pe_lenDet_ua_clt64K_le64K (n, 1, 10, 4);"},
      {"(SIZE(0..255))", "pe_lenDet_al_clt64K_eq256 (n, 0, 255, 1);",
       "pe_lenDet_ua_clt64K_le64K (n, 0, 255, 8);"},
      {"(SIZE(1..1000))", "pe_lenDet_al_clt64K_le64K (n, 1, 1000, 2);",
       "pe_lenDet_ua_clt64K_le64K (n, 1, 1000, 10);"},
      {"(SIZE(0..65536))", "", ""},
      {"(SIZE(1..MAX))", "", ""},
      {"", "", ""},
      {"(SIZE(1|3))", "null", "null"},
  };
  for (const ListRow &row : rows) {
    TestType type = typeOf(std::string("SEQUENCE ") + row.size + " OF NULL");
    perSetEncodingVariant(VARIANT_ALIGNED);
    EXPECT_EQ(lengthCall(*type), row.aligned);
    perSetEncodingVariant(VARIANT_UNALIGNED);
    EXPECT_EQ(lengthCall(*type), row.unaligned);
  }
}

// --- fragmentation ----------------------------------------------------------

TEST_F(PerLength, ListsThatCanBeFragmented)
{
  EXPECT_TRUE(fragmented("SEQUENCE OF NULL"));
  EXPECT_TRUE(fragmented("SET OF NULL"));
  EXPECT_TRUE(fragmented("SEQUENCE (SIZE(0..65536)) OF NULL"));
  EXPECT_TRUE(fragmented("SEQUENCE (SIZE(65536)) OF NULL"));
  EXPECT_TRUE(fragmented("SEQUENCE (SIZE(1..MAX)) OF NULL"));
}

TEST_F(PerLength, ListsThatCannot)
{
  EXPECT_FALSE(fragmented("SEQUENCE (SIZE(0..65535)) OF NULL"));
  EXPECT_FALSE(fragmented("SEQUENCE (SIZE(65535)) OF NULL"));
  EXPECT_FALSE(fragmented("SEQUENCE (SIZE(1|3)) OF NULL"));
}

// Their functions take the fragments by themselves.
TEST_F(PerLength, StringsAreNotFragmented)
{
  EXPECT_FALSE(fragmented("OCTET STRING"));
  EXPECT_FALSE(fragmented("BIT STRING (SIZE(65536))"));
  EXPECT_FALSE(fragmented("IA5String"));
  EXPECT_FALSE(fragmented("INTEGER"));
}
