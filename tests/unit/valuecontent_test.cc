// What values hold.

#include "base/diag.h"
#include "model/number.h"
#include "model/valuecontent.h"
#include "support/valueviews.h"
#include <cfloat>

using testing::ExitedWithCode;

struct ValueContent : ValueViews {
  AsnValue &made(int mainType, const VNode &node)
  {
    int32_t index = valueOf(mainType, node);
    start();
    return view(index);
  }
};

// --- numbers ----------------------------------------------------------------

TEST_F(ValueContent, Boolean)
{
  VNode node = stxNewVNode(TYP_BOOLEAN, 0);
  EXPECT_FALSE(booleanValue(made(TYP_BOOLEAN, node)));
  node.payload[0] = 255;
  EXPECT_TRUE(booleanValue(made(TYP_BOOLEAN, node)));
}

TEST_F(ValueContent, Integers)
{
  AsnValue &value = made(TYP_INTEGER, stxNewInteger(0, -77));
  EXPECT_EQ(i64cmpl(int64Value(value), -77), 0);
  EXPECT_EQ(integerValue(value), -77);
  EXPECT_EQ(integerValue(made(TYP_INTEGER, stxNewInteger(0, INT64_MAX))),
            2147483647);
}

TEST_F(ValueContent, IntegerBeyond32BitsWarns)
{
  int level = verboseEx;
  VNode node = stxNewInteger(0, INT64_C(3000000000));
  node.line = 12;
  AsnValue &value = made(TYP_INTEGER, node);
  verboseEx = 2;
  testing::internal::CaptureStderr();
  EXPECT_EQ(integerValue(value), 0);
  std::string text = testing::internal::GetCapturedStderr();
  verboseEx = level;
  EXPECT_EQ(text, "asn/moda.asn:12:BET Warning\n"
                  "** Type constraint information does not fit in 32 bits\n"
                  "** Integer value\n");
}

TEST_F(ValueContent, Reals)
{
  VNode node = stxNewVNode(TYP_REAL, 0);
  setPayloadReal(node, stxInt64(5), 2, -1);
  AsnValue &value = made(TYP_REAL, node);
  EXPECT_EQ(realValue(value).base, 2);
  EXPECT_EQ(doubleRealValue(value), 2.5);
  AsnValue &zero = made(TYP_REAL, stxNewInteger(0, 0));
  EXPECT_TRUE(isSpecialRealVal(realValue(zero)));
  EXPECT_EQ(doubleRealValue(zero), 0.0);
  EXPECT_EQ(doubleRealValue(made(TYP_REAL, stxNewVNode(TYP_NULL, 0))), 0.0);
}

TEST_F(ValueContent, RealFromAList)
{
  int32_t index =
      list(a, TYP_SEQOF,
           {stxNewInteger(0, 1), stxNewInteger(0, 10), stxNewInteger(0, 2)});
  stxValueAt(a, index).governor = stxType(a, stxNewTNode(TYP_REAL));
  stxValueAt(a, index).governorModule = 1;
  start();
  RealVal real = realValue(view(index));
  EXPECT_EQ(i64cmpl(real.mantissa, 1), 0);
  EXPECT_EQ(real.base, 10);
  EXPECT_EQ(real.exponent, 2);
}

TEST_F(ValueContent, InfiniteReal)
{
  AsnValue value;
  VNode endpoint = stxNewVNode(TYP_REAL, 0);
  setInfinity(endpoint, false, TYP_REAL);
  value.base = endpoint;
  EXPECT_EQ(doubleRealValue(value), -DBL_MAX);
}

// --- strings ----------------------------------------------------------------

struct ValueStrings : ValueContent {
  typedef bool Make(const AsnValue &, std::string &, int32_t &);

  static std::string textOf(const AsnValue &value, Make *make)
  {
    std::string text = "untouched";
    int32_t length = -1;
    if (!make(value, text, length))
      return "none";
    return text + "/" + std::to_string(length);
  }
  std::string bits(int mainType, const std::string &digits)
  {
    return textOf(made(TYP_BITSTR, leaf8(a, mainType, digits)), makeBitString);
  }
  std::string octets(int mainType, const std::string &digits)
  {
    return textOf(made(TYP_OCTSTR, leaf8(a, mainType, digits)),
                  makeOctetString);
  }
  std::string named(const std::vector<int64_t> &numbers,
                    Make *make = makeBitString)
  {
    int32_t index = bitList(a, numbers);
    stxValueAt(a, index).governor = stxType(a, stxNewTNode(TYP_BITSTR));
    stxValueAt(a, index).governorModule = 1;
    start();
    return textOf(view(index), make);
  }
};

TEST_F(ValueStrings, BitsFromBinary)
{
  EXPECT_EQ(bits(TYP_BITSTR, ""), "/0");
  EXPECT_EQ(bits(TYP_BITSTR, "01011"), "01011/5");
}

TEST_F(ValueStrings, BitsFromHex)
{
  EXPECT_EQ(bits(TYP_OCTSTR, "5A"), "01011010/8");
  EXPECT_EQ(bits(TYP_OCTSTR, "09F"), "000010011111/12");
  EXPECT_EQ(bits(TYP_OCTSTR, ""), "/0");
}

TEST_F(ValueStrings, OctetsFromHex)
{
  EXPECT_EQ(octets(TYP_OCTSTR, "5A"), "5A/1");
  EXPECT_EQ(octets(TYP_OCTSTR, "5AB"), "5AB0/2");
  EXPECT_EQ(octets(TYP_OCTSTR, ""), "/0");
}

TEST_F(ValueStrings, OctetsFromBinary)
{
  struct Row {
    const char *digits;
    const char *expected;
  };
  static const Row rows[] = {
      {"", "/0"},
      {"1", "80/1"},
      {"10", "80/1"},
      {"101", "A0/1"},
      {"1010", "A0/1"},
      {"10101", "A8/1"},
      {"101011", "AC/1"},
      {"1010111", "AE/1"},
      {"10101111", "AF/1"},
      {"101011111", "AF80/2"},
      {"1010111100001", "AF08/2"},
  };
  for (const Row &row : rows)
    EXPECT_EQ(octets(TYP_BITSTR, row.digits), row.expected) << row.digits;
}

TEST_F(ValueStrings, NamedBits)
{
  EXPECT_EQ(named({0}), "1/1");
  EXPECT_EQ(named({5, 1}), "010001/6");
  EXPECT_EQ(named({5, 1}, makeOctetString), "44/1");
}

TEST_F(ValueStrings, NamedBitsOutOfReachArePassedOver)
{
  EXPECT_EQ(named({2, -1}), "001/3");
  EXPECT_EQ(named({2, 32000, 2147483647}), "001/3");
  EXPECT_EQ(named({31999}), std::string(31999, '0') + "1/32000");
}

TEST_F(ValueStrings, NamedBitBeyond32Bits)
{
  EXPECT_EXIT(named({INT64_C(1) << 40}), ExitedWithCode(2),
              "Too long named bit value");
}

TEST_F(ValueStrings, NamedBitThatIsNoNumber)
{
  int32_t index = list(a, TYP_BITSTR, {stxNewVNode(TYP_BOOLEAN, 0)});
  stxValueAt(a, index).governor = stxType(a, stxNewTNode(TYP_OCTSTR));
  stxValueAt(a, index).governorModule = 1;
  start();
  AsnValue &value = view(index);
  EXPECT_EXIT(textOf(value, makeBitString), ExitedWithCode(2),
              "Internal error");
}

TEST_F(ValueStrings, NamedBitByReference)
{
  int32_t three = stxValue(a, stxNewInteger(0, 3));
  int32_t index = list(a, TYP_BITSTR, {ref(three)});
  stxValueAt(a, index).governor = stxType(a, stxNewTNode(TYP_BITSTR));
  stxValueAt(a, index).governorModule = 1;
  start();
  EXPECT_EQ(textOf(view(index), makeBitString), "0001/4");
}

TEST_F(ValueStrings, Characters)
{
  for (int mainType = 0; mainType <= 31; ++mainType) {
    bool isText = (mainType >= 15 && mainType <= 22) || mainType == 26 ||
                  mainType == 27 || mainType == 30;
    VNode node = leaf8(a, mainType, "abc");
    // The governor plays no part here.
    EXPECT_EQ(textOf(made(TYP_NULL, node), makeCharacterString),
              isText ? "abc/3" : "none")
        << mainType;
  }
}

TEST_F(ValueStrings, ZeroCharacters)
{
  VNode node = leaf8(a, TYP_IA5STR, std::string("a\0b", 3));
  std::string text;
  int32_t length = 0;
  ASSERT_TRUE(makeCharacterString(made(TYP_IA5STR, node), text, length));
  EXPECT_EQ(length, 3);
  EXPECT_STREQ(text.c_str(), "a");
}

TEST_F(ValueStrings, OtherNotations)
{
  AsnValue &text = made(TYP_IA5STR, leaf8(a, TYP_IA5STR, "abc"));
  EXPECT_EQ(textOf(text, makeBitString), "none");
  EXPECT_EQ(textOf(text, makeOctetString), "none");
}

// --- times ------------------------------------------------------------------

struct ValueTimes : ValueContent {
  // The ten fields, separated by blanks.
  std::string time(int mainType, const std::string &digits)
  {
    TimeRecord t;
    if (!makeTimeRecord(made(mainType, leaf8(a, mainType, digits)), t))
      return "none";
    std::string text;
    for (int32_t field : {t.year, t.month, t.day, t.hour, t.minute, t.second,
                          t.millisecond, t.isUtc, t.zoneHours, t.zoneMinutes})
      text += std::to_string(field) + " ";
    text.pop_back();
    return text;
  }
};

TEST_F(ValueTimes, UtcTime)
{
  EXPECT_EQ(time(TYP_UTCTIME, "9912312359Z"),
            "1999 12 31 23 59 0 0 1 -1000 -1000");
  EXPECT_EQ(time(TYP_UTCTIME, "000102030405+0130"), "1900 1 2 3 4 5 0 0 1 30");
}

TEST_F(ValueTimes, GeneralizedTime)
{
  EXPECT_EQ(time(TYP_GENTIME, "20240309070509"),
            "2024 3 9 7 5 9 0 0 -1000 -1000");
  EXPECT_EQ(time(TYP_GENTIME, "2024030907Z"), "2024 3 9 7 0 0 0 1 -1000 -1000");
  EXPECT_EQ(time(TYP_GENTIME, "202403090705"),
            "2024 3 9 7 5 0 0 0 -1000 -1000");
}

TEST_F(ValueTimes, Fractions)
{
  struct Row {
    const char *fraction;
    const char *expected;
  };
  static const Row rows[] = {{".5", "500"},   {",5", "500"},   {".25", "250"},
                             {".125", "125"}, {".007", "7"},   {".", "0"},
                             {".1234", "0"},  {".123456", "0"}};
  for (const Row &row : rows) {
    std::string digits = std::string("20240309070509") + row.fraction;
    std::string start = std::string("2024 3 9 7 5 9 ") + row.expected;
    EXPECT_EQ(time(TYP_GENTIME, digits), start + " 0 -1000 -1000")
        << row.fraction;
    // The digits are passed over in any case.
    EXPECT_EQ(time(TYP_GENTIME, digits + "Z"), start + " 1 -1000 -1000");
  }
}

TEST_F(ValueTimes, Zones)
{
  struct Row {
    const char *zone;
    const char *expected;
  };
  static const Row rows[] = {
      {"", "0 -1000 -1000"}, {"Z", "1 -1000 -1000"}, {"+02", "0 2 -1000"},
      {"-02", "0 -2 -1000"}, {"+0130", "0 1 30"},    {"-0130", "0 -1 30"},
      {"+", "0 0 0"},        {"+1", "0 0 0"},        {"-123", "0 0 0"},
      {"+12345", "0 0 0"},   {"x", "0 -1000 -1000"},
  };
  for (const Row &row : rows)
    EXPECT_EQ(time(TYP_GENTIME, std::string("2024030907") + row.zone),
              std::string("2024 3 9 7 0 0 0 ") + row.expected)
        << row.zone;
}

TEST_F(ValueTimes, MissingDigitsCountZero)
{
  EXPECT_EQ(time(TYP_GENTIME, ""), "0 0 0 0 0 0 0 0 -1000 -1000");
  EXPECT_EQ(time(TYP_GENTIME, "2024"), "2024 0 0 0 0 0 0 0 -1000 -1000");
  EXPECT_EQ(time(TYP_UTCTIME, "9"), "1990 0 0 0 0 0 0 0 -1000 -1000");
}

TEST_F(ValueTimes, OtherMainTypes)
{
  EXPECT_EQ(time(TYP_IA5STR, "20240309070509"), "none");
}

// --- object identifiers -----------------------------------------------------

struct ValueObjIds : ValueContent {
  struct Arc {
    const char *name;
    int64_t number;
  };
  int32_t objId(const std::vector<Arc> &arcs)
  {
    int32_t index = valueOf(TYP_OBJID, stxNewVNode(TYP_OBJID, 0));
    for (const Arc &arc : arcs)
      stxAddChild(a, index, arc.name, stxNewInteger(0, arc.number));
    return index;
  }
  // Arcs as "number(name)"; the count in front.
  std::string arcsOf(int32_t index)
  {
    start();
    AsnValue &value = view(index);
    ObjIdComps comps;
    std::string text = std::to_string(getNrOfObjectIdentifierComps(value));
    if (!makeObjIdComps(value, comps))
      return text + " none";
    for (size_t i = 0; i < comps.numbers.size(); ++i) {
      text += " " + std::to_string(comps.numbers[i]);
      if (comps.names[i])
        text += std::string("(") + comps.names[i] + ")";
    }
    return text;
  }
};

TEST_F(ValueObjIds, KnownNames)
{
  EXPECT_EQ(arcsOf(objId({{"", 0}, {"", 0}, {"", 1}, {"", 5}})),
            "4 0(ccitt) 0(recommendation) 1(a) 5");
  EXPECT_EQ(arcsOf(objId({{"", 0}, {"", 0}, {"", 26}})),
            "3 0(ccitt) 0(recommendation) 26(z)");
  EXPECT_EQ(arcsOf(objId({{"", 0}, {"", 0}, {"", 27}, {"", 1}})),
            "4 0(ccitt) 0(recommendation) 27 1");
  EXPECT_EQ(arcsOf(objId({{"", 0}, {"", 1}, {"", 1}})),
            "3 0(ccitt) 1(question) 1");
  EXPECT_EQ(arcsOf(objId({{"", 0}, {"", 2}})), "2 0(ccitt) 2(administration)");
  EXPECT_EQ(arcsOf(objId({{"", 0}, {"", 3}})),
            "2 0(ccitt) 3(network-operator)");
  EXPECT_EQ(arcsOf(objId({{"", 1}, {"", 0}, {"", 0}})),
            "3 1(iso) 0(standard) 0");
  EXPECT_EQ(arcsOf(objId({{"", 1}, {"", 1}})),
            "2 1(iso) 1(registration-authority)");
  EXPECT_EQ(arcsOf(objId({{"", 1}, {"", 2}})), "2 1(iso) 2(member-body)");
  EXPECT_EQ(arcsOf(objId({{"", 1}, {"", 3}, {"", 6}})),
            "3 1(iso) 3(identified-organization) 6");
  EXPECT_EQ(arcsOf(objId({{"", 2}, {"", 1}})), "2 2(joint-iso-ccitt) 1");
}

TEST_F(ValueObjIds, LettersOfRecommendations)
{
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    int32_t number = letter - 'a' + 1;
    std::string expected = "3 0(ccitt) 0(recommendation) " +
                           std::to_string(number) + "(" + letter + ")";
    EXPECT_EQ(arcsOf(objId({{"", 0}, {"", 0}, {"", number}})), expected);
  }
}

TEST_F(ValueObjIds, OwnNameLeavesTheKnownArcs)
{
  EXPECT_EQ(arcsOf(objId({{"mine", 1}, {"", 3}})), "2 1(mine) 3");
  EXPECT_EQ(arcsOf(objId({{"", 1}, {"mine", 3}, {"", 1}})),
            "3 1(iso) 3(mine) 1");
}

TEST_F(ValueObjIds, UnknownNumberLeavesTheKnownArcs)
{
  EXPECT_EQ(arcsOf(objId({{"", 5}, {"", 1}})), "2 5 1");
  EXPECT_EQ(arcsOf(objId({{"", 1}, {"", 9}, {"", 0}})), "3 1(iso) 9 0");
}

TEST_F(ValueObjIds, LeadingReference)
{
  int32_t base = objId({{"", 1}, {"", 3}});
  int32_t index = valueOf(TYP_OBJID, stxNewVNode(TYP_OBJID, 0));
  stxAddChild(a, index, "base", ref(base));
  stxAddChild(a, index, "", stxNewInteger(0, 6));
  EXPECT_EQ(arcsOf(index), "3 1(iso) 3(identified-organization) 6");
}

TEST_F(ValueObjIds, NumberByReference)
{
  int32_t three = stxDefineValue(a, "three", stxNewInteger(0, 3));
  int32_t index = objId({{"", 1}});
  stxAddChild(a, index, "", ref(three));
  EXPECT_EQ(arcsOf(index), "2 1(iso) 3(identified-organization)");
}

TEST_F(ValueObjIds, WhatIsNoNumberGivesUp)
{
  int32_t base = objId({{"", 1}});
  int32_t late = objId({{"", 1}});
  stxAddChild(a, late, "", ref(base));
  EXPECT_EQ(arcsOf(late), "-1 none");
  int32_t other = objId({});
  stxAddChild(a, other, "", stxNewVNode(TYP_BOOLEAN, 0));
  EXPECT_EQ(arcsOf(other), "-1 none");
  EXPECT_EQ(arcsOf(integerOf(3)), "-1 none");
}

TEST_F(ValueObjIds, NoArcs)
{
  EXPECT_EQ(arcsOf(objId({})), "0");
}

TEST_F(ValueObjIds, NumberBeyond32Bits)
{
  int32_t index = objId({{"", 1}, {"", INT64_C(1) << 33}});
  EXPECT_EXIT(arcsOf(index), ExitedWithCode(2),
              "Too large object identifier element value");
}

TEST_F(ValueObjIds, ReferenceToItself)
{
  int32_t index = objId({});
  stxAddChild(a, index, "", ref(index));
  EXPECT_EXIT(arcsOf(index), ExitedWithCode(2), inconsistent);
}
