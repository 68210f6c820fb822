// Restricted strings: whole strings from their pieces, and damaged values.

#include "support/stringvalues.h"

using testing::ExitedWithCode;

typedef RestrString MakeRestrCharStri;

// --- whole strings ----------------------------------------------------------

TEST_F(MakeRestrCharStri, EightBitMainTypes)
{
  for (int mainType :
       {TYP_NUMSTR, TYP_PRISTR, TYP_TELSTR, TYP_VIDSTR, TYP_VISSTR, TYP_IA5STR,
        TYP_GRASTR, TYP_GENSTR, TYP_GENTIME, TYP_UTCTIME, TYP_OBJDESCR}) {
    RestrCharStri stri = made(stxValue(a, leaf8(a, mainType, "1980")));
    EXPECT_EQ(stri.mainType, static_cast<uint32_t>(mainType));
    EXPECT_EQ(stri.length, 4) << mainType;
    EXPECT_EQ(stri.text, "1980") << mainType;
    EXPECT_TRUE(stri.text16.empty() && stri.text32.empty()) << mainType;
  }
}

TEST_F(MakeRestrCharStri, BmpString)
{
  RestrCharStri stri = made(stxValue(a, leaf16(a, u"a\x20AC\xFFFD")));
  EXPECT_EQ(stri.mainType, static_cast<uint32_t>(TYP_BMPSTR));
  EXPECT_EQ(stri.length, 3);
  EXPECT_EQ(stri.text16, u"a\x20AC\xFFFD");
  EXPECT_TRUE(stri.text.empty() && stri.text32.empty());
}

TEST_F(MakeRestrCharStri, UniversalString)
{
  RestrCharStri stri = made(stxValue(a, leaf32(a, U"\x10FFFF"
                                                  U"b")));
  EXPECT_EQ(stri.mainType, static_cast<uint32_t>(TYP_UNISTR));
  EXPECT_EQ(stri.length, 2);
  EXPECT_EQ(stri.text32, U"\x10FFFF"
                         U"b");
  EXPECT_TRUE(stri.text.empty() && stri.text16.empty());
}

TEST_F(MakeRestrCharStri, EmptyStringNeedsNoStoredOne)
{
  RestrCharStri stri = made(stxValue(a, leaf(TYP_IA5STR, 0, 0)));
  EXPECT_EQ(stri.length, 0);
  EXPECT_EQ(stri.text, "");
  stri = made(stxValue(a, leaf8(a, TYP_IA5STR, "")));
  EXPECT_EQ(stri.length, 0);
}

TEST_F(MakeRestrCharStri, LongestStoredString)
{
  std::string text(32000, 'x');
  text.back() = 'y';
  RestrCharStri stri = made(stxValue(a, leaf8(a, TYP_IA5STR, text)));
  EXPECT_EQ(stri.length, 32000);
  EXPECT_EQ(stri.text, text);
}

TEST_F(MakeRestrCharStri, ListOfLeaves)
{
  RestrCharStri stri =
      made(list(a, TYP_IA5STR,
                {leaf8(a, TYP_IA5STR, "ab"), leaf8(a, TYP_IA5STR, ""),
                 leaf8(a, TYP_IA5STR, "cde")}));
  EXPECT_EQ(stri.length, 5);
  EXPECT_EQ(stri.text, "abcde");
}

TEST_F(MakeRestrCharStri, WideLists)
{
  RestrCharStri bmp =
      made(list(a, TYP_BMPSTR, {leaf16(a, u"\x3B1"), leaf16(a, u"\x3B2")}));
  EXPECT_EQ(bmp.length, 2);
  EXPECT_EQ(bmp.text16, u"\x3B1\x3B2");
  RestrCharStri universal =
      made(list(a, TYP_UNISTR, {leaf32(a, U"\x10000"), leaf32(a, U"z")}));
  EXPECT_EQ(universal.length, 2);
  EXPECT_EQ(universal.text32, U"\x10000"
                              U"z");
}

TEST_F(MakeRestrCharStri, TwoReferencesHaveTheSumOfBothLengths)
{
  // Defined values are a chain of their own, which is not part of either.
  int32_t first = stxDefineValue(a, "first", leaf8(a, TYP_IA5STR, "one"));
  int32_t second = stxDefineValue(a, "second", leaf8(a, TYP_IA5STR, "four"));
  stxDefineValue(a, "third", leaf8(a, TYP_IA5STR, "none"));
  RestrCharStri stri = made(list(a, TYP_IA5STR, {ref(first), ref(second)}));
  EXPECT_EQ(stri.length, 7);
  EXPECT_EQ(stri.text, "onefour");
}

TEST_F(MakeRestrCharStri, NestedLists)
{
  int32_t inner = list(a, TYP_IA5STR,
                       {leaf8(a, TYP_IA5STR, "b"), leaf8(a, TYP_IA5STR, "c")});
  int32_t middle = list(a, TYP_IA5STR, {ref(inner), ref(inner)});
  int32_t again = stxValue(a, ref(middle));
  RestrCharStri stri = made(
      list(a, TYP_IA5STR,
           {leaf8(a, TYP_IA5STR, "a"), ref(again), leaf8(a, TYP_IA5STR, "d")}));
  EXPECT_EQ(stri.text, "abcbcd");
  EXPECT_EQ(stri.length, 6);
}

TEST_F(MakeRestrCharStri, ListInsideAList)
{
  int32_t inner = list(a, TYP_IA5STR,
                       {leaf8(a, TYP_IA5STR, "b"), leaf8(a, TYP_IA5STR, "c")});
  // A copy of the list's node, children and all, as a segment itself.
  VNode segment = stxValueAt(a, inner);
  RestrCharStri stri =
      made(list(a, TYP_IA5STR, {segment, leaf8(a, TYP_IA5STR, "d")}));
  EXPECT_EQ(stri.text, "bcd");
}

TEST_F(MakeRestrCharStri, AcrossModules)
{
  int32_t home = stxValue(a, leaf8(a, TYP_IA5STR, "home"));
  int32_t away = list(b, TYP_IA5STR,
                      {leaf8(b, TYP_IA5STR, "away, "), ref(home, 2),
                       leaf8(b, TYP_IA5STR, " again")});
  RestrCharStri stri = made(list(
      a, TYP_IA5STR,
      {leaf8(a, TYP_IA5STR, "<"), ref(away, 2), leaf8(a, TYP_IA5STR, ">")}));
  EXPECT_EQ(stri.text, "<away, home again>");
  EXPECT_EQ(stri.length, 18);
}

TEST_F(MakeRestrCharStri, WideStringsAcrossModules)
{
  int32_t bmp = stxValue(b, leaf16(b, u"\x3B1"));
  int32_t universal = stxValue(b, leaf32(b, U"\x3B2"));
  EXPECT_EQ(made(list(a, TYP_BMPSTR, {ref(bmp, 2), leaf16(a, u"!")})).text16,
            u"\x3B1!");
  EXPECT_EQ(
      made(list(a, TYP_UNISTR, {ref(universal, 2), leaf32(a, U"!")})).text32,
      U"\x3B2!");
}

TEST_F(MakeRestrCharStri, ModuleNumbersBelowTwoAreTheModuleItself)
{
  int32_t value = stxValue(a, leaf8(a, TYP_IA5STR, "here"));
  EXPECT_EQ(made(list(a, TYP_IA5STR, {ref(value, 0), ref(value, 1)})).text,
            "herehere");
}

TEST_F(MakeRestrCharStri, ReferenceAsTheWhole)
{
  int32_t away = stxValue(b, leaf16(b, u"away"));
  int32_t next = stxValue(b, ref(away));
  RestrCharStri stri = made(stxValue(a, ref(next, 2)));
  EXPECT_EQ(stri.mainType, static_cast<uint32_t>(TYP_BMPSTR));
  EXPECT_EQ(stri.length, 4);
  EXPECT_EQ(stri.text16, u"away");
}

TEST_F(MakeRestrCharStri, UnboundReferenceIsEmpty)
{
  RestrCharStri stri = made(stxValue(a, ref(0)));
  EXPECT_EQ(stri.mainType, static_cast<uint32_t>(TYP_SYNONYM));
  EXPECT_EQ(stri.length, 0);
  EXPECT_EQ(made(list(a, TYP_IA5STR, {ref(0), leaf8(a, TYP_IA5STR, "x")})).text,
            "x");
}

TEST_F(MakeRestrCharStri, MixedWidths)
{
  std::vector<VNode> children = {leaf8(a, TYP_IA5STR, "\xE9"),
                                 leaf16(a, u"\x00E8"),
                                 leaf32(a, U"\x000000E7")};
  RestrCharStri stri = made(list(a, TYP_IA5STR, children));
  EXPECT_EQ(stri.text, "\xE9\xE8\xE7");
  EXPECT_EQ(stri.length, 3);
  EXPECT_EQ(made(list(a, TYP_BMPSTR, children)).text16, u"\xE9\xE8\xE7");
  EXPECT_EQ(made(list(a, TYP_UNISTR, children)).text32, U"\xE9\xE8\xE7");
}

TEST_F(MakeRestrCharStri, UnitsTooWideAreCut)
{
  std::vector<VNode> children = {leaf16(a, u"\x0141"), leaf32(a, U"\x12345")};
  EXPECT_EQ(made(list(a, TYP_IA5STR, children)).text, "\x41\x45");
  EXPECT_EQ(made(list(a, TYP_BMPSTR, children)).text16, u"\x0141\x2345");
}

TEST_F(MakeRestrCharStri, StatedLengthBelowTheStored)
{
  RestrCharStri stri = made(list(
      a, TYP_IA5STR,
      {leaf(TYP_IA5STR, stxStri(a, "abcdef"), 2), leaf8(a, TYP_IA5STR, "x")}));
  EXPECT_EQ(stri.text, "abx");
  EXPECT_EQ(stri.length, 3);
}

TEST_F(MakeRestrCharStri, StatedLengthBeyondTheStored)
{
  RestrCharStri stri =
      made(stxValue(a, leaf(TYP_IA5STR, stxStri(a, "abc"), 65535)));
  EXPECT_EQ(stri.text, "abc");
  EXPECT_EQ(stri.length, 3);
  EXPECT_EQ(made(stxValue(a, leaf(TYP_BMPSTR, stxStri16(a, u"ab"), 3))).text16,
            u"ab");
  EXPECT_EQ(made(stxValue(a, leaf(TYP_UNISTR, stxStri32(a, U"ab"), 9))).length,
            2);
}

// A zero ends what can be had of a stored string, but is a character.
TEST_F(MakeRestrCharStri, ZeroCharacters)
{
  std::string zero(1, '\0'), inside("a\0b", 3);
  RestrCharStri stri = made(stxValue(a, leaf8(a, TYP_IA5STR, zero)));
  EXPECT_EQ(stri.length, 1);
  EXPECT_EQ(stri.text, zero);
  stri = made(stxValue(a, leaf8(a, TYP_IA5STR, inside)));
  EXPECT_EQ(stri.length, 3);
  EXPECT_EQ(stri.text, std::string("a\0\0", 3));
  // The next segment goes on where the zero has ended the one before.
  stri = made(list(a, TYP_IA5STR,
                   {leaf8(a, TYP_IA5STR, inside), leaf8(a, TYP_IA5STR, "c")}));
  EXPECT_EQ(stri.length, 4);
  EXPECT_EQ(stri.text, std::string("ac\0\0", 4));
  stri = made(stxValue(a, leaf16(a, std::u16string(1, u'\0'))));
  EXPECT_EQ(stri.length, 1);
  EXPECT_EQ(stri.text16, std::u16string(1, u'\0'));
  stri = made(stxValue(a, leaf32(a, std::u32string(2, U'\0'))));
  EXPECT_EQ(stri.length, 2);
  EXPECT_EQ(stri.text32, std::u32string(2, U'\0'));
}

TEST_F(MakeRestrCharStri, StatedLengthOverAZero)
{
  int32_t stri = stxStri(a, std::string("a\0b", 3));
  EXPECT_EQ(made(stxValue(a, leaf(TYP_IA5STR, stri, 1))).length, 1);
  EXPECT_EQ(made(stxValue(a, leaf(TYP_IA5STR, stri, 2))).length, 2);
  // The tree has three, whatever is stated.
  EXPECT_EQ(made(stxValue(a, leaf(TYP_IA5STR, stri, 9))).length, 3);
}

TEST_F(MakeRestrCharStri, ManySegments)
{
  std::string text(1000, 's');
  int32_t value = stxValue(a, leaf8(a, TYP_IA5STR, text));
  RestrCharStri stri =
      made(list(a, TYP_IA5STR, std::vector<VNode>(20000, ref(value))));
  EXPECT_EQ(stri.length, 20000000);
  EXPECT_EQ(stri.text, std::string(20000000, 's'));
}

TEST_F(MakeRestrCharStri, DoublingFifteenTimes)
{
  int32_t value = stxValue(a, leaf8(a, TYP_IA5STR, "x"));
  for (int i = 0; i < 15; ++i)
    value = list(a, TYP_IA5STR, {ref(value), ref(value)});
  EXPECT_EQ(made(value).length, 32768);
}

TEST_F(MakeRestrCharStri, ImageMayBeTheBuffer)
{
  int32_t text = stxValue(a, leaf8(a, TYP_IA5STR, "t"));
  int32_t value = list(a, TYP_IA5STR, {ref(text), ref(text)});
  load();
  readRec(modA, REC_VNODE, value);
  RestrCharStri stri;
  makeRestrCharStri(modA, vNode, stri);
  EXPECT_EQ(stri.text, "tt");
}

TEST_F(MakeRestrCharStri, CursorComesBack)
{
  int32_t text = stxValue(b, leaf8(b, TYP_IA5STR, "t"));
  int32_t value = list(a, TYP_IA5STR, {ref(text, 2)});
  int32_t other = stxValue(a, stxNewInteger(0, 77));
  load();
  readRec(modA, REC_VNODE, other);
  RestrCharStri stri;
  makeRestrCharStri(modA, inA(value), stri);
  EXPECT_EQ(currTPtr[REC_VNODE], modA);
  EXPECT_EQ(recJustRead[REC_VNODE].index, other);
  EXPECT_EQ(i64lo(payloadInt64(vNode)), 77u);
}

TEST_F(MakeRestrCharStri, FormerContentIsReplaced)
{
  int32_t bmp = stxValue(a, leaf16(a, u"abc"));
  int32_t ia5 = stxValue(a, leaf8(a, TYP_IA5STR, "x"));
  load();
  RestrCharStri stri;
  makeRestrCharStri(modA, inA(bmp), stri);
  makeRestrCharStri(modA, inA(ia5), stri);
  EXPECT_EQ(stri.text, "x");
  EXPECT_EQ(stri.length, 1);
  EXPECT_TRUE(stri.text16.empty());
}

TEST_F(MakeRestrCharStri, Deleted)
{
  RestrCharStri stri =
      made(stxValue(a, leaf8(a, TYP_IA5STR, std::string(100, 'x'))));
  delRestrCharStri(stri);
  EXPECT_EQ(stri.mainType, 0u);
  EXPECT_EQ(stri.length, 0);
  EXPECT_TRUE(stri.text.empty());
  delRestrCharStri(stri);
  EXPECT_TRUE(stri.text.empty());
}

// --- damaged values ---------------------------------------------------------

TEST_F(MakeRestrCharStri, ListThatContainsItself)
{
  int32_t value = list(a, TYP_IA5STR, {leaf8(a, TYP_IA5STR, "x")});
  stxAddChild(a, value, "", ref(value));
  EXPECT_EXIT(made(value), ExitedWithCode(2), inconsistent);
}

TEST_F(MakeRestrCharStri, CircleThroughTwoModules)
{
  int32_t inB = list(b, TYP_IA5STR, {leaf8(b, TYP_IA5STR, "b")});
  int32_t value = list(a, TYP_IA5STR, {ref(inB, 2)});
  stxAddChild(b, inB, "", ref(value, 2));
  EXPECT_EXIT(made(value), ExitedWithCode(2), inconsistent);
}

TEST_F(MakeRestrCharStri, SegmentsInACircle)
{
  int32_t value = list(a, TYP_IA5STR,
                       {leaf8(a, TYP_IA5STR, "x"), leaf8(a, TYP_IA5STR, "y")});
  int32_t first = stxValueAt(a, value).firstChild;
  stxValueAt(a, stxValueAt(a, first).next).next = first;
  EXPECT_EXIT(made(value), ExitedWithCode(2), inconsistent);
}

TEST_F(MakeRestrCharStri, ReferenceToItself)
{
  int32_t value = stxValue(a, ref(0));
  stxValueAt(a, value).firstChild = value;
  int32_t holder = list(a, TYP_IA5STR, {ref(value)});
  EXPECT_EXIT(made(value), ExitedWithCode(2), inconsistent);
  EXPECT_EXIT(made(holder), ExitedWithCode(2), inconsistent);
}

// `depth` lists, each the only segment of the next.
static int32_t nestedLists(StxTree &tree, int depth)
{
  int32_t value = stxValue(tree, leaf8(tree, TYP_IA5STR, "x"));
  for (int i = 0; i < depth; ++i)
    value = list(tree, TYP_IA5STR, {ref(value)});
  return value;
}

TEST_F(MakeRestrCharStri, DeepestNesting)
{
  EXPECT_EQ(made(nestedLists(a, maxNesting)).text, "x");
}

TEST_F(MakeRestrCharStri, NestingTooDeep)
{
  int32_t value = nestedLists(a, maxNesting + 1);
  EXPECT_EXIT(made(value), ExitedWithCode(2), inconsistent);
}

TEST_F(MakeRestrCharStri, DoublingWithoutEnd)
{
  int32_t value = stxValue(a, leaf8(a, TYP_IA5STR, ""));
  for (int i = 0; i < 60; ++i)
    value = list(a, TYP_IA5STR, {ref(value), ref(value)});
  EXPECT_EXIT(made(value), ExitedWithCode(2), inconsistent);
}

TEST_F(MakeRestrCharStri, LongerThanALengthCanTell)
{
  // 32000 * 67109 is above 2147483647, with segments enough left.
  std::string text(32000, 'x');
  int32_t value = stxValue(a, leaf8(a, TYP_IA5STR, text));
  std::vector<VNode> children(67109, ref(value));
  int32_t whole = list(a, TYP_IA5STR, children);
  EXPECT_EXIT(made(whole), ExitedWithCode(2), inconsistent);
}

TEST_F(MakeRestrCharStri, MissingRecords)
{
  EXPECT_EXIT(made(stxValue(a, leaf(TYP_IA5STR, 9999, 1))), ExitedWithCode(2),
              noRecord);
  EXPECT_EXIT(made(stxValue(a, leaf(TYP_BMPSTR, 1, 1))), ExitedWithCode(2),
              noRecord);
  EXPECT_EXIT(made(stxValue(a, leaf(TYP_UNISTR, 1, 1))), ExitedWithCode(2),
              noRecord);
  EXPECT_EXIT(made(stxValue(a, ref(9999))), ExitedWithCode(2), noRecord);
  EXPECT_EXIT(made(stxValue(a, ref(1, 3))), ExitedWithCode(2), noRecord);
}
