#include "stx/stxwrite.h"
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>

// Numbers at an offset of the file, as the tree format has them.
static uint32_t u32At(const std::string &octets, size_t offset)
{
  return littleU32(reinterpret_cast<const uint8_t *>(octets.data()) + offset);
}

static int32_t i32At(const std::string &octets, size_t offset)
{
  return static_cast<int32_t>(u32At(octets, offset));
}

static int u16At(const std::string &octets, size_t offset)
{
  return littleU16(reinterpret_cast<const uint8_t *>(octets.data()) + offset);
}

static int u8At(const std::string &octets, size_t offset)
{
  return static_cast<uint8_t>(octets[offset]);
}

// The octets that are written as numbers here.
static std::string octetsOf(std::initializer_list<int> numbers)
{
  std::string octets;
  for (int number : numbers)
    octets += static_cast<char>(number);
  return octets;
}

template <class C>
static bool hasText(const StxStrings<C> &strings, std::basic_string<C> text)
{
  return strings.indexOf.contains(text);
}

TEST(StxEncode, SmallestTree)
{
  StxTree tree = stxNewTree("My-Mod", "my");
  stxSetTime(tree, 20240131, 235959);
  std::string octets = stxEncode(tree);
  // 213 twice; 20240131 is 0x0134D703, 235959 is 0x000399B7.
  EXPECT_EQ(octets.substr(0, 20),
            octetsOf({0xD5, 0, 0xD5, 0, 0x03, 0xD7, 0x34, 0x01, 0xB7, 0x99,
                      0x03, 0, 1,    0, 0,    0,    2,    0,    0,    0}));
  EXPECT_EQ(octets.substr(20, 16), std::string(16, 0));
  EXPECT_EQ(i32At(octets, 36), 1);  // counts of kinds 0 and 7
  EXPECT_EQ(octets.substr(40, 24), std::string(24, 0));
  EXPECT_EQ(i32At(octets, 64), 4);
  EXPECT_EQ(octets.substr(68, 12), std::string(12, 0));
  EXPECT_EQ(i32At(octets, 80), 3);
  EXPECT_EQ(i32At(octets, 84), 4);
  EXPECT_EQ(octets.substr(88, 24), std::string(24, 0));
  EXPECT_EQ(octets.substr(112),
            octetsOf({7, 0}) + "My_Mod" + octetsOf({0, 3, 0}) + "my" +
                octetsOf({0, 5, 0}) + "asn/" + octetsOf({0, 7, 0}) + "my.asn" +
                octetsOf({0}));
}

TEST(StxEncode, TypeNode)
{
  StxTree tree = stxNewTree("M", "m");
  TNode node = stxNewTNode(TYP_INTEGER, VF_UI8);
  node.nestedInstance = 0x01020304;
  node.line = 5;
  node.defaultValue = 6;
  node.nodeOptions = 0x80000001;
  node.classFlags = CF_VISIBLE;
  node.valueFieldSize = VF_UI32;
  node.nodeFlags = 0x0880;
  node.entryFlags = 0x4C;
  node.entryCategory = 1;
  node.typeOptions.sizeLimit = 9;
  node.typeOptions.limitAction = 1;
  node.fieldRef = -2;
  stxSetBounds(node, -2, 0x0000000A0000000B);
  stxDefineType(tree, "Age-Of", node);
  std::string octets = stxEncode(tree);
  const size_t at = 112;
  ASSERT_EQ(octets.size(), at + 116 + 2 + 2 + 2 + 2 + 2 + 5 + 2 + 6 + 2 + 7);
  EXPECT_EQ(i32At(octets, 20), 1);  // firstType
  EXPECT_EQ(i32At(octets, 40), 1);  // count of kind 1
  EXPECT_EQ(i32At(octets, 88), 1);  // nrEntryTypes
  EXPECT_EQ(i32At(octets, 92), 1);  // nrVisibleTypes
  EXPECT_EQ(i32At(octets, at), 5);
  EXPECT_EQ(octets.substr(at + 4, 4), octetsOf({4, 3, 2, 1}));
  EXPECT_EQ(i32At(octets, at + 8), 5);
  EXPECT_EQ(i32At(octets, at + 12), 5);  // TCS_HEADER
  EXPECT_EQ(i32At(octets, at + 16), 6);
  EXPECT_EQ(i32At(octets, at + 20), 0);
  EXPECT_EQ(octets.substr(at + 32, 4), octetsOf({1, 0, 0, 0x80}));
  EXPECT_EQ(i32At(octets, at + 36), 2);
  EXPECT_EQ(octets.substr(at + 48, 10),
            octetsOf({0, 0, 1, 2, 4, 0, 0x80, 0x08, 0x4C, 1}));
  EXPECT_EQ(octets.substr(at + 58, 14),
            octetsOf({0, 0, 255, 255, 0, 0, 9, 0, 0, 0, 1, 0, 0, 0}));
  EXPECT_EQ(octets.substr(at + 72, 24), std::string(24, 0));
  EXPECT_EQ(i32At(octets, at + 96), -2);
  // High word first, each little-endian.
  EXPECT_EQ(octets.substr(at + 100, 16),
            octetsOf({255, 255, 255, 255, 254, 255, 255, 255,  //
                      10, 0, 0, 0, 11, 0, 0, 0}));
  EXPECT_EQ(octets.substr(at + 116 + 2 + 2 + 2 + 2 + 2 + 5 + 2 + 6),
            octetsOf({7, 0}) + "Age_Of" + octetsOf({0}));
}

TEST(StxEncode, TypeNodeWithoutBounds)
{
  StxTree tree = stxNewTree("M", "m");
  stxType(tree, stxNewTNode(TYP_BOOLEAN));
  std::string octets = stxEncode(tree);
  EXPECT_EQ(octets.substr(112 + 100, 16),
            octetsOf({0, 0, 0, 0x80, 0, 0, 0, 0,  //
                      255, 255, 255, 0x7F, 255, 255, 255, 255}));
  EXPECT_EQ(octets.substr(112 + 60, 12),
            octetsOf({255, 255, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

// Integers, enumerations and what has no bounds begin at the least number,
// strings and lists at 0, the least size.
TEST(StxNewTNode, SizesBeginAtZero)
{
  for (int mainType = 0; mainType < TYP_COUNT; ++mainType) {
    bool sized = mainType == 4 || mainType == 5 || mainType == 8 ||
                 mainType == 10 || (mainType >= 15 && mainType <= 24) ||
                 mainType == 30;
    TNode node = stxNewTNode(mainType);
    EXPECT_EQ(node.lowerEndpoint.high, sized ? 0 : INT32_MIN) << mainType;
    EXPECT_EQ(node.lowerEndpoint.low, 0u) << mainType;
    EXPECT_EQ(node.upperEndpoint.high, INT32_MAX) << mainType;
    EXPECT_EQ(node.upperEndpoint.low, UINT32_MAX) << mainType;
  }
}

TEST(StxEncode, ValueNode)
{
  StxTree tree = stxNewTree("M", "m");
  VNode node = stxNewInteger(7, -3);
  node.valueFlags = 0x0A;
  node.line = 12;
  node.refModule = 2;
  node.firstChild = 8;
  node.hidden = 1;
  node.fieldPath = 4;
  stxDefineValue(tree, "max-size", node);
  std::string octets = stxEncode(tree);
  const size_t at = 112;
  EXPECT_EQ(i32At(octets, 24), 1);  // firstValue
  EXPECT_EQ(i32At(octets, 44), 1);  // count of kind 2
  EXPECT_EQ(i32At(octets, at), 5);
  EXPECT_EQ(i32At(octets, at + 4), 2);
  EXPECT_EQ(u8At(octets, at + 8), 0x0A);
  EXPECT_EQ(octets.substr(at + 9, 7), std::string(7, 0));
  EXPECT_EQ(i32At(octets, at + 16), 12);
  EXPECT_EQ(i32At(octets, at + 24), 7);
  EXPECT_EQ(i32At(octets, at + 28), 1);
  EXPECT_EQ(octets.substr(at + 36, 4), octetsOf({0, 0, 1, 0}));
  EXPECT_EQ(i32At(octets, at + 40), 2);
  EXPECT_EQ(i32At(octets, at + 44), 8);
  EXPECT_EQ(octets.substr(at + 56, 12),
            octetsOf({255, 255, 255, 255, 253, 255, 255, 255, 0, 0, 0, 0}));
  EXPECT_EQ(i32At(octets, at + 68), 1);
  EXPECT_EQ(i32At(octets, at + 72), 4);
}

TEST(StxEncode, SectionsInOrderOfKind)
{
  StxTree tree = stxNewTree("M", "m");
  SNode link = stxNewLink(-9, 3);
  link.nextLink = 2;
  stxLink(tree, link);
  stxTed(tree, {TED_FRONT_END, {}, 2});
  SubRec sub = stxNewSub(SUB_RANGE, 11, 12);
  sub.subFlags = 0x60;
  sub.compModule = 1;
  sub.compNode = 13;
  sub.nextSub = 14;
  stxSub(tree, sub);
  stxTag(tree, {2, 1, 31, 15});
  stxValue(tree, stxNewVNode(TYP_NULL, 1));
  stxType(tree, stxNewTNode(TYP_NULL));
  std::string octets = stxEncode(tree);
  for (size_t offset = 36; offset < 64; offset += 4)
    EXPECT_EQ(i32At(octets, offset), 1) << offset;
  size_t at = 112;
  EXPECT_EQ(u8At(octets, at + 50), TYP_NULL);
  at += 116;
  EXPECT_EQ(u8At(octets, at + 38), TYP_NULL);
  at += 76;
  EXPECT_EQ(octets.substr(at, 16),
            octetsOf({2, 0, 0, 0, 1, 0, 0, 0, 31, 0, 0, 0, 15, 0, 0, 0}));
  at += 16;
  EXPECT_EQ(octets.substr(at, 12),
            octetsOf({0, 0, 0, 0, 10, 0x60, 0, 0, 1, 0, 0, 0}));
  EXPECT_EQ(i32At(octets, at + 12), 13);
  EXPECT_EQ(i32At(octets, at + 20), 14);
  EXPECT_EQ(i32At(octets, at + 28), 11);
  EXPECT_EQ(i32At(octets, at + 32), 12);
  at += 36;
  EXPECT_EQ(octets.substr(at, 8), octetsOf({3, 0, 0, 0, 2, 0, 0, 0}));
  at += 8;
  EXPECT_EQ(i32At(octets, at + 4), 3);
  EXPECT_EQ(i32At(octets, at + 8), -9);
  EXPECT_EQ(i32At(octets, at + 16), 2);
  at += 20;
  EXPECT_EQ(octets.substr(at, 4), octetsOf({2, 0}) + "M" + octetsOf({0}));
}

TEST(StxEncode, StringsOfThreeWidths)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t wide = stxStri16(tree, u"\u1234b");
  int32_t widest = stxStri32(tree, U"\U00012345");
  EXPECT_EQ(stxStri32(tree, U""), 2);
  EXPECT_EQ(wide, 1);
  EXPECT_EQ(widest, 1);
  std::string octets = stxEncode(tree);
  EXPECT_EQ(i32At(octets, 68), 1);
  EXPECT_EQ(i32At(octets, 72), 2);
  EXPECT_EQ(octets.substr(octets.size() - 24),
            octetsOf({3, 0, 0x34, 0x12, 'b',  0, 0, 0,        //
                      2, 0, 0x45, 0x23, 0x01, 0, 0, 0, 0, 0,  //
                      1, 0, 0,    0,    0,    0}));
}

TEST(StxEncode, CountsAreThoseOfTheRecords)
{
  StxTree tree = stxNewTree("M", "m");
  tree.header.counts[REC_TNODE] = 77;
  EXPECT_EQ(i32At(stxEncode(tree), 40), 0);
}

TEST(StxOffset, RecordsAndStrings)
{
  StxTree tree = stxNewTree("M", "m");
  stxImport(tree, "N", "n", false);
  stxType(tree, stxNewTNode(TYP_NULL));
  EXPECT_EQ(stxOffset(tree, REC_MNODE, 1), 0u);
  EXPECT_EQ(stxOffset(tree, REC_MNODE, 2), 112u);
  EXPECT_EQ(stxOffset(tree, REC_TNODE, 1), 224u);
  EXPECT_EQ(stxOffset(tree, REC_TNODE, 2), 340u);
  EXPECT_EQ(stxOffset(tree, REC_VNODE, 1), 340u);
  EXPECT_EQ(stxOffset(tree, REC_STRI, 2), 344u);
  EXPECT_EXIT(stxOffset(tree, REC_TNODE, 3), testing::ExitedWithCode(2),
              "Can not write record into syntax tree");
}

TEST(StxStri, EqualTextsHaveOneIndex)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxStri(tree, "a");
  EXPECT_EQ(stxStri(tree, "b"), a + 1);
  EXPECT_EQ(stxStri(tree, std::string("a")), a);
  EXPECT_EQ(stxStri16(tree, u"a"), 1);
  EXPECT_EQ(stxStri16(tree, u"a"), 1);
  EXPECT_EQ(stxStri16(tree, u"b"), 2);
}

TEST(StxStri, AppendedDuplicateHasItsOwn)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxStri(tree, "a");
  EXPECT_EQ(stxAppendStri(tree, "a"), a + 1);
  EXPECT_EQ(stxStri(tree, "a"), a);
  EXPECT_EQ(stxAppendStri16(tree, u"x"), 1);
  EXPECT_EQ(stxAppendStri16(tree, u"x"), 2);
  EXPECT_EQ(stxAppendStri32(tree, U"x"), 1);
  EXPECT_EQ(stxAppendStri32(tree, U"x"), 2);
}

TEST(StxStri, LengthIsLimitedByItsCount)
{
  StxTree tree = stxNewTree("M", "m");
  EXPECT_EQ(stxStri(tree, std::string(65534, 'x')), 5);
  std::string octets = stxEncode(tree);
  EXPECT_EQ(u16At(octets, stxOffset(tree, REC_STRI, 5)), 65535);
  EXPECT_EXIT(stxStri(tree, std::string(65535, 'x')),
              testing::ExitedWithCode(2), "string too long");
}

TEST(StxNewTree, Defaults)
{
  StxTree tree = stxNewTree("A-B", "a-b");
  EXPECT_EQ(tree.stris.texts[0], "A_B");
  EXPECT_EQ(tree.stris.texts[1], "a-b");
  EXPECT_EQ(tree.header.visibilityMode, 0);
  EXPECT_GT(tree.header.date, 0);
  stxSetSource(tree, "src/", "x.asn1");
  EXPECT_EQ(
      tree.stris.texts[static_cast<size_t>(tree.header.sourceDirectory) - 1],
      "src/");
  EXPECT_EQ(
      tree.stris.texts[static_cast<size_t>(tree.header.sourceFileName) - 1],
      "x.asn1");
}

TEST(StxDefineType, ChainAndCounts)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxDefineType(tree, "A", stxNewTNode(TYP_NULL));
  int32_t lone = stxType(tree, stxNewTNode(TYP_NULL));
  TNode entry = stxNewTNode(TYP_NULL);
  entry.entryFlags = 0x4C;
  int32_t b = stxDefineType(tree, "B", entry);
  EXPECT_EQ(tree.header.firstType, a);
  EXPECT_EQ(stxTypeAt(tree, a).next, b);
  EXPECT_EQ(stxTypeAt(tree, b).next, 0);
  EXPECT_EQ(stxTypeAt(tree, lone).next, 0);
  EXPECT_EQ(stxTypeAt(tree, lone).compStatus, TCS_MANDATORY);
  EXPECT_EQ(stxTypeAt(tree, b).compStatus, TCS_HEADER);
  EXPECT_EQ(tree.header.nrVisibleTypes, 2);
  EXPECT_EQ(tree.header.nrEntryTypes, 1);
}

TEST(StxDefineType, VisibleByItsFlag)
{
  StxTree tree = stxNewTree("M", "m");
  tree.header.visibilityMode = 1;
  stxDefineType(tree, "A", stxNewTNode(TYP_NULL));
  EXPECT_EQ(tree.header.nrVisibleTypes, 0);
  TNode visible = stxNewTNode(TYP_NULL);
  visible.classFlags = CF_VISIBLE;
  stxDefineType(tree, "B", visible);
  EXPECT_EQ(tree.header.nrVisibleTypes, 1);
}

TEST(StxDefineType, FollowsAChainThatWasCut)
{
  StxTree tree = stxNewTree("M", "m");
  stxDefineType(tree, "A", stxNewTNode(TYP_NULL));
  int32_t b = stxDefineType(tree, "B", stxNewTNode(TYP_NULL));
  tree.header.firstType = b;
  int32_t c = stxDefineType(tree, "C", stxNewTNode(TYP_NULL));
  EXPECT_EQ(stxTypeAt(tree, b).next, c);
  tree.header.firstType = 0;
  int32_t d = stxDefineType(tree, "D", stxNewTNode(TYP_NULL));
  EXPECT_EQ(tree.header.firstType, d);
  EXPECT_EQ(stxTypeAt(tree, c).next, 0);
}

TEST(StxDefineType, NothingBehindACircle)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxDefineType(tree, "A", stxNewTNode(TYP_NULL));
  stxTypeAt(tree, a).next = a;
  stxDefineType(tree, "B", stxNewTNode(TYP_NULL));
  EXPECT_EQ(stxTypeAt(tree, a).next, a);
}

TEST(StxDefineValue, ChainAndCounts)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxDefineValue(tree, "a", stxNewInteger(1, 5));
  EXPECT_EQ(tree.header.nrObjects, 0);
  int32_t b = stxDefineValue(tree, "b", stxNewVNode(TYP_CLASS, 1));
  VNode set = stxNewVNode(TYP_CLASS, 1);
  set.valueFlags = VFL_SET;
  int32_t c = stxDefineValue(tree, "C", set);
  EXPECT_EQ(tree.header.firstValue, a);
  EXPECT_EQ(stxValueAt(tree, a).next, b);
  EXPECT_EQ(stxValueAt(tree, b).next, c);
  EXPECT_EQ(tree.header.nrObjects, 1);
  EXPECT_EQ(tree.header.nrObjectSets, 1);
}

TEST(StxAddComp, Sequence)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t seq = stxDefineType(tree, "S", stxNewTNode(TYP_SEQ));
  int32_t a = stxAddComp(tree, seq, "a-a", stxNewTNode(TYP_NULL));
  EXPECT_EQ(stxTypeAt(tree, seq).nodeFlags, NF_MANDATORY_COMPS);
  TNode optional = stxNewTNode(TYP_NULL);
  optional.compStatus = TCS_OPTIONAL;
  int32_t b = stxAddComp(tree, seq, "b", optional);
  int32_t marker = stxAddComp(tree, seq, "", stxNewTNode(TYP_EXTENSION_MARKER));
  const TNode &node = stxTypeAt(tree, seq);
  EXPECT_EQ(node.ref, a);
  EXPECT_EQ(node.refModule, 1);
  EXPECT_EQ(node.nrComps, 3);
  EXPECT_EQ(node.nodeFlags,
            NF_MANDATORY_COMPS | NF_OPTIONAL_COMPS | NF_EXTENSIBLE);
  EXPECT_EQ(stxTypeAt(tree, a).next, b);
  EXPECT_EQ(stxTypeAt(tree, b).next, marker);
  EXPECT_EQ(stxTypeAt(tree, a).compStatus, TCS_MANDATORY);
  EXPECT_EQ(stxTypeAt(tree, b).compStatus, TCS_OPTIONAL);
  EXPECT_EQ(stxTypeAt(tree, marker).compStatus, 0);
  EXPECT_EQ(stxTypeAt(tree, marker).identifier, 0);
  EXPECT_EQ(stxTypeAt(tree, a).identifier, stxStri(tree, "a_a"));
  EXPECT_EQ(tree.header.nrVisibleTypes, 1);
}

TEST(StxAddComp, StatusInChoiceAndList)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t choice = stxType(tree, stxNewTNode(TYP_CHOICE));
  int32_t list = stxType(tree, stxNewTNode(TYP_SEQOF));
  int32_t a = stxAddComp(tree, choice, "a", stxNewTNode(TYP_NULL));
  int32_t m = stxAddComp(tree, choice, "", stxNewTNode(TYP_EXTENSION_MARKER));
  int32_t e = stxAddComp(tree, list, "", stxNewTNode(TYP_NULL));
  EXPECT_EQ(stxTypeAt(tree, a).compStatus, TCS_CHOICE);
  EXPECT_EQ(stxTypeAt(tree, m).compStatus, TCS_CHOICE);
  EXPECT_EQ(stxTypeAt(tree, e).compStatus, TCS_MULTIPLE);
  EXPECT_EQ(stxTypeAt(tree, choice).nodeFlags, NF_EXTENSIBLE);
  EXPECT_EQ(stxTypeAt(tree, list).nodeFlags, 0);
  EXPECT_EQ(stxTypeAt(tree, list).nrComps, 1);
}

TEST(StxAddComp, GroupMembersCountForTheStructure)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t seq = stxType(tree, stxNewTNode(TYP_SEQ));
  stxAddComp(tree, seq, "", stxNewTNode(TYP_EXTENSION_MARKER));
  int32_t group = stxAddComp(tree, seq, "", stxNewTNode(TYP_EXTADDGRP));
  EXPECT_EQ(stxTypeAt(tree, seq).nrComps, 1);
  int32_t member = stxAddComp(tree, group, "x", stxNewTNode(TYP_NULL));
  stxAddComp(tree, group, "y", stxNewTNode(TYP_NULL));
  EXPECT_EQ(stxTypeAt(tree, group).ref, member);
  EXPECT_EQ(stxTypeAt(tree, group).nrComps, 2);
  EXPECT_EQ(stxTypeAt(tree, group).compStatus, 0);
  EXPECT_EQ(stxTypeAt(tree, seq).nrComps, 3);
  EXPECT_EQ(stxTypeAt(tree, seq).nodeFlags, NF_EXTENSIBLE | NF_MANDATORY_COMPS);
}

TEST(StxAddComp, GroupMembersInAChoiceAreAlternatives)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t choice = stxType(tree, stxNewTNode(TYP_CHOICE));
  stxAddComp(tree, choice, "", stxNewTNode(TYP_EXTENSION_MARKER));
  int32_t group = stxAddComp(tree, choice, "", stxNewTNode(TYP_EXTADDGRP));
  int32_t member = stxAddComp(tree, group, "x", stxNewTNode(TYP_NULL));
  EXPECT_EQ(stxTypeAt(tree, group).compStatus, TCS_CHOICE);
  EXPECT_EQ(stxTypeAt(tree, member).compStatus, TCS_CHOICE);
  EXPECT_EQ(stxTypeAt(tree, group).nodeFlags, 0);
  EXPECT_EQ(stxTypeAt(tree, choice).nodeFlags, NF_EXTENSIBLE);
  EXPECT_EQ(stxTypeAt(tree, choice).nrComps, 2);
}

TEST(StxAddNamedNumber, ItemsOfAnEnumeration)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t type = stxType(tree, stxNewTNode(TYP_ENUM));
  int32_t red = stxAddNamedNumber(tree, type, "dark-red", 3);
  EXPECT_EQ(stxTypeAt(tree, type).nodeFlags, 0);
  int32_t marker = stxAddNamedMarker(tree, type);
  EXPECT_EQ(stxTypeAt(tree, type).namedNumbers, red);
  EXPECT_EQ(stxTypeAt(tree, type).nodeFlags, NF_EXTENSIBLE);
  const VNode &item = stxValueAt(tree, red);
  EXPECT_EQ(item.next, marker);
  EXPECT_EQ(item.valueStatus, 0);
  EXPECT_EQ(item.governor, type);
  EXPECT_EQ(item.governorModule, 1);
  EXPECT_EQ(item.mainType, TYP_INTEGER);
  EXPECT_EQ(payloadInt64(item).low, 3u);
  EXPECT_EQ(item.identifier, stxStri(tree, "dark_red"));
  EXPECT_EQ(stxValueAt(tree, marker).mainType, TYP_EXTENSION_MARKER);
  EXPECT_EQ(stxValueAt(tree, marker).valueStatus, 0);
  EXPECT_EQ(stxValueAt(tree, marker).governor, type);
}

TEST(StxAddChild, ComponentsOfAValue)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t value = stxValue(tree, stxNewVNode(TYP_SEQ, 1));
  int32_t a = stxAddChild(tree, value, "a", stxNewInteger(2, 1));
  int32_t b = stxAddChild(tree, value, "b", stxNewInteger(3, 2));
  EXPECT_EQ(stxValueAt(tree, value).firstChild, a);
  EXPECT_EQ(stxValueAt(tree, a).next, b);
  EXPECT_EQ(stxValueAt(tree, value).next, 0);
}

TEST(StxAddTag, Chain)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t type = stxType(tree, stxNewTNode(TYP_NULL));
  int32_t a = stxAddTag(tree, type, 2, 5, 1);
  int32_t b = stxAddTag(tree, type, 1, 6, 0);
  EXPECT_EQ(stxTypeAt(tree, type).firstTag, a);
  EXPECT_EQ(stxTagAt(tree, a).nextTag, b);
  EXPECT_EQ(stxTagAt(tree, a).tagNumber, 5);
  EXPECT_EQ(stxTagAt(tree, a).tagMode, 1);
  EXPECT_EQ(stxTagAt(tree, b).tagClass, 1);
  EXPECT_EQ(stxTagAt(tree, b).nextTag, 0);
}

TEST(StxChainSubs, LinksInOrder)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxSub(tree, stxNewSub(SUB_SINGLE_VALUE, 1));
  int32_t b = stxSub(tree, stxNewSub(SUB_SINGLE_VALUE, 2));
  EXPECT_EQ(stxChainSubs(tree, {b, a}), b);
  EXPECT_EQ(stxSubAt(tree, b).nextSub, a);
  EXPECT_EQ(stxSubAt(tree, a).nextSub, 0);
  EXPECT_EQ(stxChainSubs(tree, {}), 0);
}

TEST(StxChainLinks, LinksInOrder)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxLink(tree, stxNewLink(1));
  int32_t b = stxLink(tree, stxNewLink(-1, 2));
  EXPECT_EQ(stxChainLinks(tree, {a, b}), a);
  EXPECT_EQ(stxLinkAt(tree, a).nextLink, b);
  EXPECT_EQ(stxLinkAt(tree, a).linkModule, 1);
  EXPECT_EQ(stxLinkAt(tree, b).nextLink, 0);
  EXPECT_EQ(stxChainLinks(tree, {}), 0);
}

TEST(StxImport, EntriesBehindTheHeader)
{
  StxTree tree = stxNewTree("M", "m");
  stxSetTime(tree, 20240102, 3);
  EXPECT_EQ(stxImport(tree, "N-1", "n-1", true), 2);
  EXPECT_EQ(stxImport(tree, "ISO8824", "iso", false), 3);
  std::string octets = stxEncode(tree);
  EXPECT_EQ(i32At(octets, 36), 3);
  for (size_t at : {112u, 224u}) {
    EXPECT_EQ(u16At(octets, at), 213);
    EXPECT_EQ(u16At(octets, at + 2), 213);
    EXPECT_EQ(i32At(octets, at + 4), 20240102);
    EXPECT_EQ(i32At(octets, at + 8), 3);
    EXPECT_EQ(octets.substr(at + 20, 57), std::string(57, 0));
    EXPECT_EQ(octets.substr(at + 78, 34), std::string(34, 0));
  }
  EXPECT_EQ(i32At(octets, 112 + 12), stxStri(tree, "N_1"));
  EXPECT_EQ(i32At(octets, 112 + 16), stxStri(tree, "n-1"));
  EXPECT_NE(u8At(octets, 112 + 77) & 0xF0, 0);
  EXPECT_EQ(u8At(octets, 112 + 77) & 0x0F, 0);
  EXPECT_EQ(u8At(octets, 224 + 77), 0);
}

TEST(StxGlobalOption, RangeGrows)
{
  StxTree tree = stxNewTree("M", "m");
  EXPECT_EQ(stxGlobalOption(tree, TED_FRONT_END, "-C=src/"), 1);
  EXPECT_EQ(stxGlobalOption(tree, TED_BACK_END, "-BEO=QUORVEN=X=1"), 2);
  EXPECT_EQ(tree.header.firstGlobalTed, 1);
  EXPECT_EQ(tree.header.lastGlobalTed, 2);
  EXPECT_EQ(stxTedAt(tree, 1).tedKind, TED_FRONT_END);
  EXPECT_EQ(stxTedAt(tree, 1).text, stxStri(tree, "-C=src/"));
}

TEST(StxGlobalOption, InterruptedRange)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t type = stxType(tree, stxNewTNode(TYP_NULL));
  stxNodeTed(tree, type, TED_FRONT_END, "-N=x");
  EXPECT_EQ(stxGlobalOption(tree, TED_FRONT_END, "-C=src/"), 2);
  EXPECT_EQ(tree.header.firstGlobalTed, 2);
  EXPECT_EXIT(stxNodeTed(tree, type, TED_FRONT_END, "-N=y"),
              testing::ExitedWithCode(2), "line range interrupted at 2");
}

TEST(StxGlobalOption, PiecesOfAPrefix)
{
  StxTree tree = stxNewTree("M", "m");
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=My-Types:mytypes:out-put");
  EXPECT_TRUE(hasText<char>(tree.stris, "My_Types"));
  EXPECT_TRUE(hasText<char>(tree.stris, "mytyp"));
  EXPECT_TRUE(hasText<char>(tree.stris, "out-p"));
  EXPECT_EQ(tree.stris.texts.size(), 8u);
}

TEST(StxGlobalOption, MissingPiecesAreTheOnesBefore)
{
  StxTree tree = stxNewTree("M", "m");
  tree.prefixLength = 8;
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=Ab-Cdefghi");
  EXPECT_TRUE(hasText<char>(tree.stris, "Ab_Cdefghi"));
  EXPECT_TRUE(hasText<char>(tree.stris, "Ab-Cdefg"));
  EXPECT_EQ(tree.stris.texts.size(), 7u);
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=Abc:x");
  EXPECT_TRUE(hasText<char>(tree.stris, "Abc"));
  EXPECT_TRUE(hasText<char>(tree.stris, "x"));
  EXPECT_EQ(tree.stris.texts.size(), 10u);
}

TEST(StxGlobalOption, ModuleNameKeeps128Characters)
{
  StxTree tree = stxNewTree("M", "m");
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=" + std::string(130, 'Z'));
  EXPECT_TRUE(hasText<char>(tree.stris, std::string(128, 'Z')));
  EXPECT_FALSE(hasText<char>(tree.stris, std::string(130, 'Z')));
}

TEST(StxGlobalOption, OtherLinesBringNoPieces)
{
  StxTree tree = stxNewTree("M", "m");
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIXLEN=8");
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=A:b:c:d");
  stxGlobalOption(tree, TED_FRONT_END, "-PREFIX=");
  EXPECT_EQ(tree.stris.texts.size(), 7u);
}

TEST(StxNodeTed, OptionBits)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxType(tree, stxNewTNode(TYP_NULL));
  int32_t b = stxType(tree, stxNewTNode(TYP_NULL));
  int32_t c = stxType(tree, stxNewTNode(TYP_NULL));
  stxNodeTed(tree, a, TED_EMBEDDING, "-E1:x");
  stxNodeTed(tree, b, TED_FRONT_END, "-N=x");
  stxNodeTed(tree, b, TED_FRONT_END, "-N=y");
  stxNodeTed(tree, c, TED_BACK_END, "-Q");
  EXPECT_EQ(stxTypeAt(tree, a).nodeOptions, 2u);
  EXPECT_EQ(stxTypeAt(tree, b).nodeOptions, 8u);
  EXPECT_EQ(stxTypeAt(tree, c).nodeOptions, 0u);
  EXPECT_EQ(stxTypeAt(tree, b).firstTed, 2);
  EXPECT_EQ(stxTypeAt(tree, b).lastTed, 3);
}

TEST(StxValueTed, NamingBit)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxValue(tree, stxNewInteger(1, 1));
  int32_t b = stxValue(tree, stxNewInteger(1, 1));
  stxValueTed(tree, a, TED_BACK_END, "-Q");
  stxValueTed(tree, b, TED_FRONT_END, "-N=x");
  EXPECT_EQ(stxValueAt(tree, a).valueFlags, 0);
  EXPECT_EQ(stxValueAt(tree, b).valueFlags, 8);
  EXPECT_EQ(stxValueAt(tree, b).firstTed, 2);
  EXPECT_EQ(stxValueAt(tree, b).lastTed, 2);
}

TEST(StxTypeAt, NoRecord)
{
  StxTree tree = stxNewTree("M", "m");
  EXPECT_EXIT(stxTypeAt(tree, 1), testing::ExitedWithCode(2), "type 1");
  EXPECT_EXIT(stxValueAt(tree, 0), testing::ExitedWithCode(2), "value 0");
  EXPECT_EXIT(stxLinkAt(tree, -1), testing::ExitedWithCode(2), "link -1");
}

// A directory of its own for the files of a test.
class StxWrite : public testing::Test {
protected:
  void SetUp() override
  {
    const testing::TestInfo *info =
        testing::UnitTest::GetInstance()->current_test_info();
    dir = std::filesystem::path(testing::TempDir()) /
          (std::string("stxwrite_") + info->name());
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
  }
  void TearDown() override { std::filesystem::remove_all(dir); }

  static std::string contents(const std::filesystem::path &path)
  {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  ptrdiff_t entries() const
  {
    return std::distance(std::filesystem::directory_iterator(dir), {});
  }

  std::filesystem::path dir;
};

TEST_F(StxWrite, FileHoldsTheOctets)
{
  StxTree tree = stxNewTree("M", "m");
  std::filesystem::path path = dir / "m.stx";
  ASSERT_TRUE(stxWrite(tree, path.c_str()));
  EXPECT_EQ(contents(path), stxEncode(tree));
  stxType(tree, stxNewTNode(TYP_NULL));
  ASSERT_TRUE(stxWrite(tree, path.c_str()));
  EXPECT_EQ(contents(path), stxEncode(tree));
  EXPECT_EQ(entries(), 1);
}

TEST_F(StxWrite, MissingDirectory)
{
  StxTree tree = stxNewTree("M", "m");
  errno = 0;
  EXPECT_FALSE(stxWrite(tree, (dir / "none" / "m.stx").c_str()));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(entries(), 0);
}

TEST_F(StxWrite, PathIsADirectory)
{
  StxTree tree = stxNewTree("M", "m");
  EXPECT_FALSE(stxWrite(tree, dir.c_str()));
  EXPECT_EQ(errno, EISDIR);
  EXPECT_EQ(entries(), 0);
}

TEST_F(StxWrite, FullDevice)
{
  if (!std::filesystem::exists("/dev/full"))
    GTEST_SKIP() << "no /dev/full";
  StxTree tree = stxNewTree("M", "m");
  EXPECT_FALSE(stxWrite(tree, "/dev/full"));
  EXPECT_EQ(errno, ENOSPC);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(StxWrite, LinkStaysALink)
{
  StxTree tree = stxNewTree("M", "m");
  std::filesystem::path target = dir / "target.stx";
  std::filesystem::path alias = dir / "alias.stx";
  std::ofstream(target) << "old";
  std::filesystem::create_symlink("target.stx", alias);
  ASSERT_TRUE(stxWrite(tree, alias.c_str()));
  EXPECT_TRUE(std::filesystem::is_symlink(alias));
  EXPECT_EQ(contents(target), stxEncode(tree));
}
