// Texts of values.

#include "base/diag.h"
#include "model/infvalue.h"
#include "model/number.h"
#include "model/valuetext.h"
#include "support/valueviews.h"
#include <algorithm>
#include <iterator>

struct ValueTexts : ValueViews {
  std::string infinite[4];

  ValueTexts()
  {
    std::copy_n(infValueStri, 4, infinite);
    setInfValueStri("FIRST", "SECOND", "REAL-FIRST", "REAL-SECOND");
  }
  ~ValueTexts() override { std::copy_n(infinite, 4, infValueStri); }

  AsnValue &made(int mainType, const VNode &node)
  {
    int32_t index = valueOf(mainType, node);
    start();
    return view(index);
  }
  AsnValue &real(int64_t mantissa, int16_t base, int16_t exponent)
  {
    VNode node = stxNewVNode(TYP_REAL, 0);
    setPayloadReal(node, stxInt64(mantissa), base, exponent);
    return made(TYP_REAL, node);
  }
  std::string integer(int64_t number)
  {
    std::string text;
    return integerValueStri(text, "<",
                            made(TYP_INTEGER, stxNewInteger(0, number)), ">");
  }
  static std::string realText(const AsnValue &value)
  {
    std::string text;
    return realValueStri(text, "<", value, ">");
  }
  static std::string doubleText(const AsnValue &value)
  {
    std::string text;
    return doubleRealValueStri(text, "<", value, ">");
  }
};

// --- names ------------------------------------------------------------------

TEST_F(ValueTexts, Names)
{
  int32_t base = integerOf(1, "base_name");
  VNode node = ref(base);
  node.governor = stxValueAt(a, base).governor;
  node.governorModule = 1;
  int32_t index = stxDefineValue(a, "first", node);
  stxGlobalOption(a, TED_FRONT_END, "-VPREF=v_");
  start();
  AsnValue &value = view(index);
  std::string text;
  EXPECT_EQ(getValueRef(text, "<", value, ">"), "<first>");
  EXPECT_EQ(getValueId(text, "<", value, ">"), "<v_first>");
  EXPECT_EQ(getBaseValueId(text, "<", value, ">"), "<v_base_name>");
  EXPECT_EQ(getValueRef(text, nullptr, value, nullptr), "first");
  EXPECT_EQ(getValueId(text, nullptr, value, nullptr), "v_first");
}

TEST_F(ValueTexts, NoName)
{
  AsnValue value;
  std::string text;
  EXPECT_EQ(getValueRef(text, "<", value, ">"), "<>");
}

// --- contents ---------------------------------------------------------------

TEST_F(ValueTexts, Booleans)
{
  VNode node = stxNewVNode(TYP_BOOLEAN, 0);
  std::string text = "old";
  EXPECT_EQ(booleanValueStri(text, "<", made(TYP_BOOLEAN, node), ">"),
            "<FALSE>");
  node.payload[0] = 1;
  EXPECT_EQ(&booleanValueStri(text, nullptr, made(TYP_BOOLEAN, node), nullptr),
            &text);
  EXPECT_EQ(text, "TRUE");
}

TEST_F(ValueTexts, PrefixMayBeTheText)
{
  std::string text = "a";
  AsnValue &value = made(TYP_INTEGER, stxNewInteger(0, 5));
  EXPECT_EQ(integerValueStri(text, text.c_str(), value, text.c_str()), "a5a");
}

TEST_F(ValueTexts, Integers)
{
  EXPECT_EQ(integer(0), "<0>");
  EXPECT_EQ(integer(-12), "<-12>");
  EXPECT_EQ(integer(9223372036854775806), "<9223372036854775806>");
  EXPECT_EQ(integer(-9223372036854775807), "<-9223372036854775807>");
}

// Crossed on purpose.
TEST_F(ValueTexts, InfiniteIntegers)
{
  EXPECT_EQ(integer(INT64_MAX), "<FIRST>");
  EXPECT_EQ(integer(INT64_MIN), "<SECOND>");
}

TEST_F(ValueTexts, Reals)
{
  EXPECT_EQ(realText(real(1, 10, 2)), "<{1, 10, 2}>");
  EXPECT_EQ(realText(real(-7, 2, -300)), "<{-7, 2, -300}>");
  EXPECT_EQ(realText(real(0, 0, 0)), "<{0, 0, 0}>");
}

TEST_F(ValueTexts, SpecialReals)
{
  EXPECT_EQ(realText(real(REAL_PLUS_INFINITY, -1, 0)), "<REAL-SECOND>");
  EXPECT_EQ(realText(real(REAL_MINUS_INFINITY, -1, 0)), "<REAL-FIRST>");
  EXPECT_EQ(realText(real(REAL_ZERO, -1, 0)), "<0>");
  EXPECT_EQ(realText(real(5, -1, 0)), "<0>");
  EXPECT_EQ(realText(made(TYP_REAL, stxNewInteger(0, 0))), "<0>");
}

TEST_F(ValueTexts, WrittenReal)
{
  int32_t index =
      list(a, TYP_SEQOF,
           {stxNewInteger(0, 1), stxNewInteger(0, 10), stxNewInteger(0, 2)});
  stxValueAt(a, index).governor = stxType(a, stxNewTNode(TYP_REAL));
  stxValueAt(a, index).governorModule = 1;
  start();
  EXPECT_EQ(realText(view(index)), "<{1, 10, 2}>");
  EXPECT_EQ(doubleText(view(index)), "<1.000000000E2>");
}

TEST_F(ValueTexts, Doubles)
{
  EXPECT_EQ(doubleText(real(1, 10, 2)), "<1.000000000E2>");
  EXPECT_EQ(doubleText(real(-12, 10, -3)), "<-12.00000000E-3>");
  EXPECT_EQ(doubleText(real(12345678901, 10, 0)), "<12345678901.E0>");
  EXPECT_EQ(doubleText(real(REAL_PLUS_INFINITY, -1, 0)), "<DBL_MAX>");
  EXPECT_EQ(doubleText(real(REAL_MINUS_INFINITY, -1, 0)), "<-DBL_MAX>");
  EXPECT_EQ(doubleText(real(REAL_ZERO, -1, 0)), "<0.0>");
}

TEST_F(ValueTexts, DoublesWithDecimals)
{
  AsnValue &value = real(1234, 10, 2);
  modA->options.decimals = 6;
  EXPECT_EQ(doubleText(value), "<1234.00E2>");
  modA->options.decimals = 4;
  EXPECT_EQ(doubleText(value), "<1234.E2>");
  modA->options.decimals = 0;
  EXPECT_EQ(doubleText(value), "<1234.E2>");
  modA->options.decimals = 254;
  EXPECT_EQ(doubleText(value), "<1234." + std::string(250, '0') + "E2>");
}

TEST_F(ValueTexts, ObjectIdentifiers)
{
  int32_t index = valueOf(TYP_OBJID, stxNewVNode(TYP_OBJID, 0));
  stxAddChild(a, index, "", stxNewInteger(0, 1));
  stxAddChild(a, index, "own", stxNewInteger(0, 7));
  stxAddChild(a, index, "", stxNewInteger(0, 4));
  start();
  AsnValue &value = view(index);
  auto text = [&](const char *separator, const char *open, const char *close) {
    std::string out;
    return objectIdentifierValueStri(out, "<", value, separator, open, close,
                                     ">");
  };
  EXPECT_EQ(text(nullptr, nullptr, nullptr), "<1 7 4>");
  EXPECT_EQ(text(", ", nullptr, nullptr), "<1, 7, 4>");
  EXPECT_EQ(text("", "(", nullptr), "<174>");
  EXPECT_EQ(text(nullptr, nullptr, ")"), "<1 7 4>");
  EXPECT_EQ(text(nullptr, "(", ")"), "<1(iso) 7(own) 4>");
}

TEST_F(ValueTexts, NoObjectIdentifier)
{
  std::string text;
  EXPECT_EQ(objectIdentifierValueStri(text, "<",
                                      made(TYP_INTEGER, stxNewInteger(0, 1)),
                                      nullptr, nullptr, nullptr, ">"),
            "<>");
}

TEST_F(ValueTexts, CharacterStrings)
{
  std::string text;
  EXPECT_EQ(characterStringValueStri(
                text, "<", made(TYP_IA5STR, leaf8(a, TYP_IA5STR, "a%sb")), ">"),
            "<a%sb>");
  EXPECT_EQ(characterStringValueStri(text, "<",
                                     made(TYP_BMPSTR, leaf16(a, u"ab")), ">"),
            "<>");
  VNode zero = leaf8(a, TYP_IA5STR, std::string("a\0b", 3));
  EXPECT_EQ(characterStringValueStri(text, "<", made(TYP_IA5STR, zero), ">"),
            "<a>");
}
