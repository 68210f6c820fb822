#include "stx/stxnames.h"
#include "stx/stxwrite.h"
#include <gtest/gtest.h>
#include <limits>

TEST(StxBitNames, NamedAndUnnamed)
{
  EXPECT_EQ(stxBitNames(stxNodeOptionBits, 0), "");
  EXPECT_EQ(stxBitNames(stxNodeOptionBits, 1u << 17), "optExtMarkerField");
  EXPECT_EQ(stxBitNames(stxNodeOptionBits, 1u << 31 | 2), "optEmbedding,bit31");
  EXPECT_EQ(stxBitNames(stxNodeFlagBits, NF_IGNORABLE | NF_UNIQUE),
            "unique,ignorable");
  EXPECT_EQ(stxBitNames(stxClassFlagBits, CF_SET | CF_VARIABLE_TYPE),
            "set,variableType");
  EXPECT_EQ(stxBitNames(stxValueFlagBits, VFL_VISIBLE | VFL_NAMING),
            "visible,naming");
  EXPECT_EQ(stxBitNames(stxSubFlagBits, 0x9F),
            "exception,full,present,absent,optional,bit7");
}

TEST(StxCodeName, NumberWithoutAName)
{
  EXPECT_EQ(stxCodeName("X", "field", 3), "X");
  EXPECT_EQ(stxCodeName("", "field", 3), "field=3");
}

TEST(StxMainTypeName, RowsAndBeyond)
{
  EXPECT_EQ(stxMainTypeName(0), "TYP_BOOLEAN");
  EXPECT_EQ(stxMainTypeName(28), "TYP_EXTERNAL");
  EXPECT_EQ(stxMainTypeName(29), "TYP_EXTERNAL(29)");
  EXPECT_EQ(stxMainTypeName(41), "TYP_NONE");
  EXPECT_EQ(stxMainTypeName(42), "mainType=42");
}

TEST(StxCompStatusText, Signs)
{
  EXPECT_EQ(stxCompStatusText(0), "TCS_MANDATORY");
  EXPECT_EQ(stxCompStatusText(6), "TCS_FORMAL");
  EXPECT_EQ(stxCompStatusText(-5), "-TCS_HEADER");
  EXPECT_EQ(stxCompStatusText(7), "compStatus=7");
  EXPECT_EQ(stxCompStatusText(-7), "compStatus=-7");
  EXPECT_EQ(stxCompStatusText(INT32_MIN), "compStatus=-2147483648");
}

TEST(StxSubKindName, KindsOfTheFile)
{
  EXPECT_STREQ(stxSubKindName(SUB_UNION), "union");
  EXPECT_STREQ(stxSubKindName(SUB_RANGE), "range");
  EXPECT_STREQ(stxSubKindName(SUB_EXTENDED_SET), "extended value set");
  EXPECT_STREQ(stxSubKindName(SUB_HIDDEN), "hidden");
  EXPECT_STREQ(stxSubKindName(0), "");
  EXPECT_STREQ(stxSubKindName(6), "");
  EXPECT_STREQ(stxSubKindName(23), "");
  EXPECT_STREQ(stxSubKindName(25), "");
}

TEST(StxInt64Text, Limits)
{
  constexpr int64_t least = std::numeric_limits<int64_t>::min();
  EXPECT_EQ(stxInt64Text(stxInt64(least)), "-9223372036854775808");
  EXPECT_EQ(stxInt64Text(stxInt64(-1)), "-1");
  EXPECT_EQ(stxInt64Text(stxInt64(4294967296)), "4294967296");
  EXPECT_EQ(stxBoundText(stxInt64(least)), "MIN");
  EXPECT_EQ(stxBoundText(stxInt64(least + 1)), "-9223372036854775807");
  EXPECT_EQ(stxBoundText(i64max()), "MAX");
}

TEST(StxRealText, NumbersAndSpecials)
{
  auto text = [](int64_t mantissa, int16_t base, int16_t exponent) {
    VNode node;
    setPayloadReal(node, stxInt64(mantissa), base, exponent);
    return stxRealText(node);
  };
  EXPECT_EQ(text(5, 2, -3), "5*2^-3");
  EXPECT_EQ(text(0, -1, 0), "zero");
  EXPECT_EQ(text(-1, -1, 0), "MINUS-INFINITY");
  EXPECT_EQ(text(-2, -1, 0), "PLUS-INFINITY");
  EXPECT_EQ(text(3, -1, 0), "special(3)");
}
