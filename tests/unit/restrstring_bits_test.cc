// Restricted strings: lengths, bits, comparisons and named bits.

#include "support/stringvalues.h"

using testing::ExitedWithCode;

typedef RestrString GetAnyStringLength;
typedef RestrString ConvBitString;
typedef RestrString EqualStrings;
typedef RestrString CompareStrings;
typedef RestrString LenFromNamedBits;

// --- lengths ----------------------------------------------------------------

TEST_F(GetAnyStringLength, OctetString)
{
  struct {
    int mainType;
    size_t digits;
    int32_t octets;
  } const rows[] = {
      {5, 0, 0},  {5, 1, 1},  {5, 2, 1},         {5, 3, 2},        {5, 4, 2},
      {4, 0, 0},  {4, 1, 1},  {4, 7, 1},         {4, 8, 1},        {4, 9, 2},
      {4, 16, 2}, {4, 17, 3}, {5, 32000, 16000}, {4, 32000, 4000},
  };
  int32_t type = stxType(a, stxNewTNode(TYP_OCTSTR));
  for (auto &row : rows) {
    std::string digits(row.digits, '0');
    int32_t value = stxValue(a, leaf8(a, row.mainType, digits));
    EXPECT_EQ(lengthOf(type, value), row.octets)
        << row.mainType << " " << row.digits;
  }
}

TEST_F(GetAnyStringLength, OctetStringStatedLength)
{
  int32_t type = stxType(a, stxNewTNode(TYP_OCTSTR));
  int32_t stri = stxStri(a, "ABCDEF");
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf(5, stri, 2))), 1);
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf(5, stri, 6000))), 3);
}

TEST_F(GetAnyStringLength, BitStringWithoutNamedBits)
{
  int32_t type = stxType(a, stxNewTNode(TYP_BITSTR));
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf8(a, 4, ""))), 0);
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf8(a, 4, "01000"))), 5);
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf8(a, 5, "A00"))), 12);
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf8(a, 5, std::string(32000, '0')))),
            128000);
}

TEST_F(GetAnyStringLength, BitStringStatedLength)
{
  int32_t type = stxType(a, stxNewTNode(TYP_BITSTR));
  stxAddNamedNumber(a, type, "bit", 0);
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf(4, stxStri(a, "10011"), 3))), 1);
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf(4, stxStri(a, "101"), 99))), 3);
  EXPECT_EQ(lengthOf(type, stxValue(a, leaf(5, stxStri(a, "3"), 99))), 4);
}

TEST_F(GetAnyStringLength, TrailingZerosBehindTheNamedBits)
{
  struct {
    int64_t highestNamed;
    int mainType;
    const char *digits;
    int32_t bits;
  } const rows[] = {
      {3, 4, "0101", 4},      // not above
      {3, 4, "000", 3},       // below: kept, though all zero
      {3, 4, "01010", 4},     // one above
      {3, 4, "00000000", 4},  // not below the named bits
      {3, 4, "01010100", 6},  // stopped by the bit set
      {3, 4, "00000001", 8}, {0, 4, "000", 1}, {3, 5, "A", 4},  // not above
      {0, 5, "A", 3},  // 1010: the bit set stops inside the digit
      {0, 5, "8", 1},  // 1000
      {0, 5, "4", 2},  // 0100
      {0, 5, "1", 4},  // 0001
      {1, 5, "0", 2},  // the named bits stop inside the digit
      {3, 5, "80", 4},       {0, 5, "80", 1},  // into the digit before
      {2, 5, "F00", 4},      {5, 5, "F00", 6}, {0, 5, "01", 8},
      {8, 5, "00", 8},  // below
  };
  for (auto &row : rows) {
    int32_t type = stxType(a, stxNewTNode(TYP_BITSTR));
    stxAddNamedNumber(a, type, "highest", row.highestNamed);
    stxAddNamedNumber(a, type, "first", 0);
    int32_t value = stxValue(a, leaf8(a, row.mainType, row.digits));
    EXPECT_EQ(lengthOf(type, value), row.bits)
        << row.highestNamed << " " << row.mainType << " " << row.digits;
  }
}

TEST_F(GetAnyStringLength, NamedBitsOutOfRangeTrimNothing)
{
  for (int64_t number : {int64_t{2147483647}, int64_t{1} << 40, int64_t{-1}}) {
    int32_t type = stxType(a, stxNewTNode(TYP_BITSTR));
    stxAddNamedNumber(a, type, "bit", number);
    EXPECT_EQ(lengthOf(type, stxValue(a, leaf8(a, 4, "1000"))), 4) << number;
  }
}

TEST_F(GetAnyStringLength, ListOfNamedBitsIsZero)
{
  int32_t type = stxType(a, stxNewTNode(TYP_BITSTR));
  stxAddNamedNumber(a, type, "bit", 7);
  int32_t value = bitList(a, {7});
  EXPECT_EQ(lengthOf(type, value), 0);
  // Nor do digits beside the list count.
  setPayloadStri(stxValueAt(a, value), 4, stxStri(a, "1111"));
  EXPECT_EQ(lengthOf(type, value), 0);
}

TEST_F(GetAnyStringLength, TypeOfAnotherModule)
{
  TNode node = stxNewTNode(TYP_BITSTR);
  int32_t type = stxType(b, node);
  stxAddNamedNumber(b, type, "bit", 1);
  int32_t value = stxValue(a, leaf8(a, 4, "10000"));
  load();
  readRec(modB, REC_TNODE, type);
  readRec(modA, REC_VNODE, value);
  EXPECT_EQ(getAnyStringLength(), 2);
}

TEST_F(GetAnyStringLength, CurrentValueComesBack)
{
  int32_t type = stxType(a, stxNewTNode(TYP_BITSTR));
  stxAddNamedNumber(a, type, "bit", 1);
  int32_t value = stxValue(a, leaf8(a, 4, "10000"));
  EXPECT_EQ(lengthOf(type, value), 2);
  EXPECT_EQ(recJustRead[REC_VNODE].index, value);
  EXPECT_EQ(vNode.mainType, 4);
}

TEST_F(GetAnyStringLength, CharacterStrings)
{
  struct {
    int mainType;
    VNode value;
  } const rows[] = {
      {TYP_IA5STR, leaf8(a, TYP_IA5STR, "abc")},
      {TYP_GENTIME, leaf8(a, TYP_GENTIME, "199")},
      {TYP_OBJDESCR, leaf8(a, TYP_OBJDESCR, "abc")},
      {TYP_BMPSTR, leaf16(a, u"abc")},
      {TYP_UNISTR, leaf32(a, U"abc")},
      // Whatever the type, its value's own main type tells the table.
      {TYP_IA5STR, leaf16(a, u"abc")},
  };
  for (auto &row : rows) {
    int32_t type = stxType(a, stxNewTNode(row.mainType));
    EXPECT_EQ(lengthOf(type, stxValue(a, row.value)), 3) << row.mainType;
  }
}

TEST_F(GetAnyStringLength, CharacterStringLists)
{
  int32_t type = stxType(a, stxNewTNode(TYP_IA5STR));
  int32_t away = stxValue(b, leaf8(b, TYP_IA5STR, "away"));
  int32_t value = list(a, TYP_IA5STR,
                       {leaf8(a, TYP_IA5STR, "abc"), ref(away, 2),
                        leaf(TYP_IA5STR, stxStri(a, "xyz"), 2)});
  int32_t reference = stxValue(a, ref(value));
  EXPECT_EQ(lengthOf(type, value), 9);
  EXPECT_EQ(lengthOf(type, reference), 9);
  EXPECT_EQ(recJustRead[REC_VNODE].index, reference);
  EXPECT_EQ(lengthOf(type, stxValue(a, ref(away, 2))), 4);
}

TEST_F(GetAnyStringLength, ZeroCharactersCount)
{
  int32_t type = stxType(a, stxNewTNode(TYP_IA5STR));
  std::string zero(1, '\0');
  int32_t value = stxValue(a, leaf8(a, TYP_IA5STR, zero));
  EXPECT_EQ(lengthOf(type, value), 1);
  EXPECT_EQ(lengthOf(type, list(a, TYP_IA5STR,
                                {ref(value), leaf8(a, TYP_IA5STR, "ab")})),
            3);
}

TEST_F(GetAnyStringLength, CharacterStringInACircle)
{
  int32_t type = stxType(a, stxNewTNode(TYP_IA5STR));
  int32_t value = list(a, TYP_IA5STR, {leaf8(a, TYP_IA5STR, "x")});
  stxAddChild(a, value, "", ref(value));
  EXPECT_EXIT(lengthOf(type, value), ExitedWithCode(2), inconsistent);
}

// --- bits -------------------------------------------------------------------

TEST_F(ConvBitString, Binary)
{
  EXPECT_EQ(bits(4, stxValue(a, leaf8(a, 4, ""))), "");
  EXPECT_EQ(bits(4, stxValue(a, leaf8(a, 4, "0110"))), "0110");
  EXPECT_EQ(bits(4, stxValue(a, leaf(4, stxStri(a, "0110"), 3))), "011");
  EXPECT_EQ(bits(4, stxValue(a, leaf(4, stxStri(a, "0110"), 5))), "0110");
}

TEST_F(ConvBitString, BinaryIsCutAt32000)
{
  // A tree's string ends there too: the count alone can say more.
  std::string digits(32000, '1');
  int32_t stri = stxStri(a, digits);
  EXPECT_EQ(bits(4, stxValue(a, leaf(4, stri, 32000))), digits);
  EXPECT_EQ(bits(4, stxValue(a, leaf(4, stri, 32001))), digits);
  // Whole octets: nothing to pad.
  EXPECT_EQ(bits(5, stxValue(a, leaf(4, stri, 65535))), digits);
}

TEST_F(ConvBitString, LongerBinaryOfTheRunIsCut)
{
  // Only a string that was made during the run can be longer.
  int32_t value = stxValue(a, stxNewVNode(4, 0));
  load();
  std::string digits(40000, '1');
  VNode image = inA(value);
  setPayloadStri(image, 40000, putStri(modA, digits.c_str()));
  EXPECT_EQ(convBitString(4, modA, image), std::string(32000, '1'));
}

TEST_F(ConvBitString, BinaryOctetStringIsPadded)
{
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 4, ""))), "");
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 4, "1"))), "10000000");
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 4, "11111111"))), "11111111");
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 4, "111111111"))), "1111111110000000");
}

TEST_F(ConvBitString, ThreeBitsOfEachHexadecimalDigit)
{
  EXPECT_EQ(bits(4, stxValue(a, leaf8(a, 5, "0123456789ABCDEF"))),
            "000000001001010010011011100100101101110110111111");
}

TEST_F(ConvBitString, HexadecimalOctetStringIsPadded)
{
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 5, "A"))), "1010000");
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 5, "A0"))), "101000");
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 5, "A0F"))), "1010001110000");
  EXPECT_EQ(bits(5, stxValue(a, leaf8(a, 5, ""))), "");
  // A BIT STRING's odd digit stays alone.
  EXPECT_EQ(bits(4, stxValue(a, leaf8(a, 5, "A"))), "101");
}

TEST_F(ConvBitString, HexadecimalStatedLength)
{
  int32_t stri = stxStri(a, "FFF");
  EXPECT_EQ(bits(5, stxValue(a, leaf(5, stri, 1))), "1110000");
  // Odd is what is there, not what is stated.
  EXPECT_EQ(bits(5, stxValue(a, leaf(5, stri, 4))), "1111111110000");
}

TEST_F(ConvBitString, HexadecimalIsNotCut)
{
  int32_t value = stxValue(a, leaf8(a, 5, std::string(32000, 'E')));
  EXPECT_EQ(bits(4, value), std::string(96000, '1'));
}

TEST_F(ConvBitString, NamedBits)
{
  EXPECT_EQ(bits(4, bitList(a, {0})), "1");
  EXPECT_EQ(bits(4, bitList(a, {5, 1, 3, 1})), "010101");
  EXPECT_EQ(bits(5, bitList(a, {2})), "001");
  EXPECT_EQ(bits(4, bitList(a, {31999})), std::string(31999, '0') + "1");
}

TEST_F(ConvBitString, NamedBitsOfOtherMainTypes)
{
  int32_t value = list(a, TYP_SEQOF, {stxNewInteger(0, 2)});
  EXPECT_EQ(bits(4, value), "001");
  EXPECT_EQ(bits(4, stxValue(a, stxNewVNode(TYP_NULL, 0))), "");
}

TEST_F(ConvBitString, NamedBitsPassedOver)
{
  EXPECT_EQ(bits(4, bitList(a, {32000})), "");
  EXPECT_EQ(bits(4, bitList(a, {2, 40000, 2147483647})), "001");
  EXPECT_EQ(bits(4, bitList(a, {-1, 1, -2147483648})), "01");
}

TEST_F(ConvBitString, NamedBitThatDoesNotFit)
{
  // Just above 32 bits, and far away on both sides.
  for (int64_t number :
       {int64_t{2147483648}, int64_t{1} << 40, -(int64_t{1} << 40)}) {
    int32_t value = bitList(a, {1, number});
    EXPECT_EXIT(bits(4, value), ExitedWithCode(2),
                "Internal error\n +Bit string index overflow\n")
        << number;
  }
}

// A high word of -1 passes for 32 bits; the low word is what counts then.
TEST_F(ConvBitString, NamedBitBelowRangePassesWrongly)
{
  EXPECT_EQ(bits(4, bitList(a, {-4294967295})), "01");
}

TEST_F(ConvBitString, NamedBitsByReference)
{
  int32_t here = stxValue(a, stxNewInteger(0, 1));
  int32_t away = stxValue(b, ref(stxValue(b, stxNewInteger(0, 4))));
  int32_t value =
      list(a, 4, {ref(here), ref(away, 2), stxNewInteger(0, 2), ref(0)});
  // The unbound reference reads as the number 0.
  EXPECT_EQ(bits(4, value), "11101");
}

TEST_F(ConvBitString, ReferenceAsTheWhole)
{
  int32_t away = stxValue(b, leaf8(b, 4, "101"));
  EXPECT_EQ(bits(4, stxValue(a, ref(away, 2))), "101");
  int32_t named = bitList(b, {1});
  EXPECT_EQ(bits(4, stxValue(a, ref(named, 2))), "01");
  EXPECT_EQ(bits(4, stxValue(a, ref(0))), "");
}

TEST_F(ConvBitString, CursorComesBack)
{
  int32_t value = bitList(a, {1, 2});
  load();
  readRec(modA, REC_VNODE, value);
  EXPECT_EQ(convBitString(4, modA, vNode), "011");
  EXPECT_EQ(recJustRead[REC_VNODE].index, value);
  EXPECT_EQ(vNode.mainType, 4);
}

TEST_F(ConvBitString, NamedBitsInACircle)
{
  int32_t value = bitList(a, {1, 2});
  int32_t first = stxValueAt(a, value).firstChild;
  stxValueAt(a, stxValueAt(a, first).next).next = first;
  EXPECT_EXIT(bits(4, value), ExitedWithCode(2), inconsistent);
}

// --- comparisons ------------------------------------------------------------

TEST_F(EqualStrings, TrailingZeroBitsOfABitString)
{
  EXPECT_TRUE(equal(4, leaf8(a, 4, "0101"), leaf8(a, 4, "01010000")));
  EXPECT_TRUE(equal(4, leaf8(a, 4, "0101"), leaf8(a, 4, "0101000000")));
  EXPECT_FALSE(equal(4, leaf8(a, 4, "0101"), leaf8(a, 4, "00101")));
  EXPECT_FALSE(equal(4, leaf8(a, 4, "0101"), leaf8(a, 4, "01011")));
}

TEST_F(EqualStrings, TrailingZeroBitsOfAnOctetString)
{
  // Padded to the same octet; a fifth zero begins another one.
  EXPECT_TRUE(equal(5, leaf8(a, 4, "0101"), leaf8(a, 4, "01010000")));
  EXPECT_FALSE(equal(5, leaf8(a, 4, "0101"), leaf8(a, 4, "010100000")));
  EXPECT_FALSE(equal(5, leaf8(a, 4, ""), leaf8(a, 4, "0")));
}

TEST_F(EqualStrings, FirstBitIsNeverStripped)
{
  EXPECT_TRUE(equal(4, leaf8(a, 4, "0"), leaf8(a, 4, "0000")));
  EXPECT_FALSE(equal(4, leaf8(a, 4, "0"), leaf8(a, 4, "")));
  EXPECT_TRUE(equal(4, leaf8(a, 4, ""), leaf8(a, 4, "")));
  EXPECT_FALSE(equal(4, leaf8(a, 4, "1"), leaf8(a, 4, "")));
}

TEST_F(EqualStrings, LowestBitOfAHexadecimalDigit)
{
  for (int mainType : {4, 5}) {
    EXPECT_TRUE(equal(mainType, leaf8(a, 5, "A4"), leaf8(a, 5, "B5")));
    EXPECT_FALSE(equal(mainType, leaf8(a, 5, "A4"), leaf8(a, 5, "A6")));
  }
}

TEST_F(EqualStrings, OddHexadecimalOctetString)
{
  // 101 and 0000 against 101 and 000.
  EXPECT_FALSE(equal(5, leaf8(a, 5, "A"), leaf8(a, 5, "A0")));
  EXPECT_TRUE(equal(5, leaf8(a, 5, "A"), leaf8(a, 5, "B")));
  EXPECT_TRUE(equal(4, leaf8(a, 5, "A"), leaf8(a, 5, "A0")));
}

TEST_F(EqualStrings, NamedBitsAgainstBinary)
{
  int32_t named = bitList(a, {1, 3, 40000});
  EXPECT_TRUE(equal(4, ref(named), leaf8(a, 4, "010100")));
  EXPECT_FALSE(equal(4, ref(named), leaf8(a, 4, "010101")));
}

TEST_F(EqualStrings, BitStringsOfTwoModules)
{
  int32_t left = stxValue(a, leaf8(a, 4, "0110"));
  int32_t right = stxValue(b, leaf8(b, 4, "01100"));
  int32_t other = stxValue(b, leaf8(b, 4, "01110"));
  load();
  const VNode &image = inA(left);
  EXPECT_TRUE(equalStrings(4, modA, image, modB, at(modB, right)));
  EXPECT_FALSE(equalStrings(4, modA, image, modB, at(modB, other)));
}

TEST_F(EqualStrings, BeyondTheBufferBitsAreCut)
{
  // The bit that differs is number 32000.
  int32_t value = stxValue(a, stxNewVNode(4, 0));
  load();
  VNode left = inA(value), right = left;
  std::string digits(32000, '1');
  setPayloadStri(left, 32001, putStri(modA, (digits + "0").c_str()));
  setPayloadStri(right, 32001, putStri(modA, (digits + "1").c_str()));
  EXPECT_TRUE(equalStrings(4, modA, left, modA, right));
}

TEST_F(EqualStrings, CharacterStrings)
{
  for (int mainType : {TYP_TELSTR, TYP_VIDSTR, TYP_GRASTR, TYP_GENSTR,
                       TYP_GENTIME, TYP_UTCTIME, TYP_OBJDESCR}) {
    VNode text = leaf8(a, mainType, "1980");
    EXPECT_TRUE(equal(mainType, text, leaf8(a, mainType, "1980")));
    EXPECT_FALSE(equal(mainType, text, leaf8(a, mainType, "1981")));
    EXPECT_FALSE(equal(mainType, text, leaf8(a, mainType, "19800")));
  }
}

TEST_F(EqualStrings, WideStrings)
{
  VNode bmp = leaf16(a, u"a\x0141");
  EXPECT_TRUE(equal(TYP_BMPSTR, bmp, leaf16(a, u"a\x0141")));
  EXPECT_FALSE(equal(TYP_BMPSTR, bmp, leaf16(a, u"a\x0241")));
  VNode universal = leaf32(a, U"a\x10041");
  EXPECT_TRUE(equal(TYP_UNISTR, universal, leaf32(a, U"a\x10041")));
  EXPECT_FALSE(equal(TYP_UNISTR, universal, leaf32(a, U"a\x20041")));
}

TEST_F(EqualStrings, OtherMainTypesDiffer)
{
  EXPECT_FALSE(
      equal(TYP_VIDSTR, leaf8(a, TYP_VIDSTR, "x"), leaf8(a, TYP_IA5STR, "x")));
  EXPECT_FALSE(equal(TYP_BMPSTR, leaf16(a, u"x"), leaf32(a, U"x")));
}

TEST_F(EqualStrings, ListAgainstLeaf)
{
  int32_t value = list(a, TYP_IA5STR,
                       {leaf8(a, TYP_IA5STR, "ab"), leaf8(a, TYP_IA5STR, "c")});
  EXPECT_TRUE(equal(TYP_IA5STR, ref(value), leaf8(a, TYP_IA5STR, "abc")));
  EXPECT_FALSE(equal(TYP_IA5STR, ref(value), leaf8(a, TYP_IA5STR, "ab")));
}

TEST_F(CompareStrings, Text)
{
  VNode text = leaf8(a, TYP_IA5STR, "abc");
  EXPECT_EQ(compare(text, leaf8(a, TYP_IA5STR, "abc")), 0);
  EXPECT_LT(compare(text, leaf8(a, TYP_IA5STR, "abd")), 0);
  EXPECT_GT(compare(text, leaf8(a, TYP_IA5STR, "ab")), 0);
  // Octets above 127 are behind all others.
  EXPECT_LT(compare(text, leaf8(a, TYP_IA5STR, "\xE9")), 0);
}

TEST_F(CompareStrings, WideText)
{
  EXPECT_EQ(compare(leaf16(a, u"a\x0141"), leaf16(a, u"a\x0141")), 0);
  EXPECT_LT(compare(leaf16(a, u"a\x0141"), leaf16(a, u"a\x0242")), 0);
  EXPECT_GT(compare(leaf16(a, u"b"), leaf16(a, u"a")), 0);
  // 32 bits are told equal or different, without an order.
  EXPECT_EQ(compare(leaf32(a, U"a\x10041"), leaf32(a, U"a\x10041")), 0);
  EXPECT_EQ(compare(leaf32(a, U"a"), leaf32(a, U"b")), 1);
  EXPECT_EQ(compare(leaf32(a, U"b"), leaf32(a, U"a")), 1);
}

// Texts end at a zero, and are all that is compared.
TEST_F(CompareStrings, ZeroCharacters)
{
  std::string zero(1, '\0'), inside("a\0b", 3);
  EXPECT_EQ(compare(leaf8(a, TYP_IA5STR, zero), leaf8(a, TYP_IA5STR, "")), 0);
  EXPECT_EQ(compare(leaf8(a, TYP_IA5STR, inside), leaf8(a, TYP_IA5STR, "a")),
            0);
  EXPECT_LT(compare(leaf8(a, TYP_IA5STR, zero), leaf8(a, TYP_IA5STR, "a")), 0);
}

TEST_F(CompareStrings, MainTypesDiffer)
{
  EXPECT_EQ(compare(leaf8(a, TYP_IA5STR, "a"), leaf8(a, TYP_VISSTR, "b")), 1);
  EXPECT_EQ(compare(leaf8(a, TYP_VISSTR, "x"), leaf8(a, TYP_IA5STR, "x")), 1);
  EXPECT_EQ(compare(leaf16(a, u"x"), leaf32(a, U"x")), 1);
}

TEST_F(CompareStrings, OfTwoModules)
{
  int32_t left = stxValue(a, leaf8(a, TYP_IA5STR, "same"));
  int32_t right = stxValue(b, leaf8(b, TYP_IA5STR, "same"));
  int32_t list2 = list(b, TYP_IA5STR, {ref(right), ref(left, 2)});
  load();
  EXPECT_EQ(compareStrings(TYP_IA5STR, modA, inA(left), modB, at(modB, right)),
            0);
  EXPECT_LT(compareStrings(TYP_IA5STR, modA, inA(left), modB, at(modB, list2)),
            0);
}

TEST_F(CompareStrings, CursorComesBack)
{
  int32_t text = stxValue(a, leaf8(a, TYP_IA5STR, "t"));
  int32_t value = list(a, TYP_IA5STR, {ref(text)});
  load();
  readRec(modA, REC_VNODE, value);
  // The buffer is both sides: neither may move it for the other.
  EXPECT_EQ(compareStrings(TYP_IA5STR, modA, vNode, modA, vNode), 0);
  EXPECT_EQ(recJustRead[REC_VNODE].index, value);
  EXPECT_EQ(vNode.mainType, TYP_IA5STR);
  EXPECT_NE(vNode.firstChild, 0);
}

// --- named bits -------------------------------------------------------------

TEST_F(LenFromNamedBits, HighestPlusOne)
{
  struct {
    std::vector<int64_t> numbers;
    int32_t length;
  } const rows[] = {
      {{0}, 1},
      {{3, 7, 5}, 8},
      {{40000}, 40001},  // more than is ever expanded
      {{2147483646}, 2147483647},
      {{2147483647}, 2147483647},
      {{1, int64_t{1} << 40, 2}, 2147483647},
      {{-(int64_t{1} << 40)}, 2147483647},  // does not fit either
      {{-5}, 0},
      {{-5, 2}, 3},
      {{-4294967294, 0}, 3},  // passes for its low word, 2
  };
  for (auto &row : rows) {
    int32_t value = bitList(a, row.numbers);
    load();
    EXPECT_EQ(lenFromNamedBits(modA, inA(value).firstChild), row.length)
        << row.numbers[0];
  }
}

TEST_F(LenFromNamedBits, NoList)
{
  load();
  EXPECT_EQ(lenFromNamedBits(modA, 0), 0);
  EXPECT_EQ(recJustRead[REC_VNODE].index, 0);
}

TEST_F(LenFromNamedBits, References)
{
  int32_t away = stxValue(b, stxNewInteger(0, 9));
  int32_t near = stxValue(a, ref(away, 2));
  int32_t value = list(a, 4, {ref(near), stxNewInteger(0, 4)});
  load();
  EXPECT_EQ(lenFromNamedBits(modA, inA(value).firstChild), 10);
}

TEST_F(LenFromNamedBits, CursorComesBack)
{
  int32_t value = bitList(a, {1, 2});
  load();
  readRec(modA, REC_VNODE, value);
  EXPECT_EQ(lenFromNamedBits(modA, vNode.firstChild), 3);
  EXPECT_EQ(recJustRead[REC_VNODE].index, value);
}

TEST_F(LenFromNamedBits, ListInACircle)
{
  int32_t value = bitList(a, {1, 2});
  int32_t first = stxValueAt(a, value).firstChild;
  stxValueAt(a, stxValueAt(a, first).next).next = first;
  load();
  EXPECT_EXIT(lenFromNamedBits(modA, first), ExitedWithCode(2), inconsistent);
  EXPECT_EXIT(lenFromNamedBits(modA, 9999), ExitedWithCode(2), noRecord);
}
