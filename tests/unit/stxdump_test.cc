#include "base/strings.h"
#include "stx/stxdump.h"
#include "stx/stxnames.h"
#include "stx/stxwrite.h"
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

using testing::HasSubstr;
using testing::Not;

// What a run of the program gave.
struct StxRunResult {
  int status = 0;
  std::string out;
  std::string messages;
};

// The text between a heading and the next line that is not indented.
static std::string section(const std::string &text, const std::string &heading)
{
  size_t at = text.find(heading + '\n');
  if (at == std::string::npos || (at > 0 && text[at - 1] != '\n'))
    return "";
  size_t end = at += heading.size() + 1;
  while (end < text.size() && text[end] == ' ')
    end = text.find('\n', end) + 1;
  return text.substr(at, end - at);
}

static std::string streamText(FILE *stream)
{
  std::string text;
  rewind(stream);
  for (int c; (c = fgetc(stream)) != EOF;)
    text += static_cast<char>(c);
  fclose(stream);
  return text;
}

static StxRunResult runDump(std::initializer_list<const char *> arguments)
{
  FILE *out = tmpfile();
  FILE *messages = tmpfile();
  StxRunResult result;
  result.status =
      stxDumpRun({arguments.begin(), arguments.size()}, out, messages);
  result.out = streamText(out);
  result.messages = streamText(messages);
  return result;
}

class StxDump : public testing::Test {
protected:
  void SetUp() override
  {
    const testing::TestInfo *info =
        testing::UnitTest::GetInstance()->current_test_info();
    path = testing::TempDir() + "stxdump_" + info->name() + ".stx";
  }
  void TearDown() override { std::filesystem::remove(path); }

  StxRunResult dump(const std::string &octets)
  {
    EXPECT_TRUE(stxWriteOctets(octets, path.c_str()));
    return runDump({path.c_str()});
  }
  StxRunResult check(const std::string &octets)
  {
    EXPECT_TRUE(stxWriteOctets(octets, path.c_str()));
    return runDump({"--check", path.c_str()});
  }

  // Both ways of running must tell of the fault, in one line.
  void expectFault(const std::string &octets, const std::string &text)
  {
    std::string fault = "stxdump: " + path + ": " + text + "\n";
    StxRunResult printed = dump(octets);
    EXPECT_EQ(printed.status, 1);
    EXPECT_EQ(printed.messages, fault);
    EXPECT_THAT(printed.out, HasSubstr("header\n"));
    expectCodeFault(octets, text);
  }

  // Only a check tells of it.
  void expectCodeFault(const std::string &octets, const std::string &text)
  {
    StxRunResult checked = check(octets);
    EXPECT_EQ(checked.status, 1);
    EXPECT_EQ(checked.messages, "stxdump: " + path + ": " + text + "\n");
    EXPECT_EQ(checked.out, "");
  }

  void expectGood(const std::string &octets)
  {
    StxRunResult checked = check(octets);
    EXPECT_EQ(checked.status, 0);
    EXPECT_EQ(checked.messages, "");
    EXPECT_EQ(checked.out, "");
    StxRunResult printed = dump(octets);
    EXPECT_EQ(printed.status, 0);
    EXPECT_EQ(printed.messages, "");
  }

  std::string path;
};

// A tree with records of every kind, all of them reached.
static StxTree fullTree()
{
  StxTree tree = stxNewTree("Full-Tree", "full");
  stxImport(tree, "Other-One", "other", true);
  stxGlobalOption(tree, TED_FRONT_END, "-C=src/");
  TNode seq = stxNewTNode(TYP_SEQ, VF_STRU);
  seq.entryFlags = 0x4C;
  seq.classFlags = CF_VISIBLE;
  int32_t s = stxDefineType(tree, "S", seq);

  TNode number = stxNewTNode(TYP_INTEGER, VF_UI8);
  stxSetBounds(number, 0, 9);
  int32_t a = stxAddComp(tree, s, "a-b", number);
  stxAddTag(tree, a, 2, 3, 0);
  int32_t low = stxValue(tree, stxNewInteger(a, 0));
  int32_t high = stxValue(tree, stxNewInteger(a, 9));
  SubRec range = stxNewSub(SUB_RANGE, low, high);
  range.subFlags = 0x60;
  int32_t r = stxSub(tree, range);
  int32_t one = stxSub(
      tree, stxNewSub(SUB_SINGLE_VALUE, stxValue(tree, stxNewInteger(a, -1))));
  int32_t both =
      stxSub(tree, stxNewSub(SUB_UNION, stxChainSubs(tree, {r, one})));
  stxTypeAt(tree, a).firstConstraint = both;
  stxNodeTed(tree, a, TED_FRONT_END, "-N=x");
  stxTypeAt(tree, a).defaultValue = stxValue(tree, stxNewInteger(a, 4));

  int32_t e = stxDefineType(tree, "E", stxNewTNode(TYP_ENUM));
  stxAddNamedNumber(tree, e, "red", 0);
  int32_t sel = stxDefineType(tree, "Sel", stxNewTNode(TYP_SELECTION));
  stxTypeAt(tree, sel).fieldRef = stxLink(tree, stxNewLink(a));
  stxDefineType(tree, "Syn", stxNewSynonym(7, 2));

  int32_t v = stxDefineValue(tree, "v", stxNewVNode(TYP_SEQ, s));
  stxAddChild(tree, v, "a-b", stxNewInteger(a, 5));
  VNode text = stxNewVNode(TYP_BMPSTR, s);
  setPayloadStri(text, 2, stxStri16(tree, u"a\u1234"));
  stxDefineValue(tree, "w", text);
  VNode wide = stxNewVNode(TYP_UNISTR, s);
  setPayloadStri(wide, 1, stxStri32(tree, U"\U00012345"));
  stxDefineValue(tree, "x", wide);
  return tree;
}

TEST_F(StxDump, Header)
{
  StxTree tree = stxNewTree("My-Mod", "my");
  stxSetTime(tree, 20240131, 235959);
  tree.header.tagDefaultAndUse = 1;
  StxRunResult result = dump(stxEncode(tree));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.messages, "");
  EXPECT_EQ(result.out, "header\n"
                        "  toolVersion 213\n"
                        "  treeVersion 213\n"
                        "  date 20240131\n"
                        "  time 235959\n"
                        "  moduleName 1 \"My_Mod\"\n"
                        "  filePrefix 2 \"my\"\n"
                        "  counts mNode 1\n"
                        "  counts stri 4\n"
                        "  tagDefault 1, use 0\n"
                        "  sourceDirectory 3 \"asn/\"\n"
                        "  sourceFileName 4 \"my.asn\"\n"
                        "strings\n"
                        "  string 1 \"My_Mod\"\n"
                        "  string 2 \"my\"\n"
                        "  string 3 \"asn/\"\n"
                        "  string 4 \"my.asn\"\n");
}

TEST_F(StxDump, Imports)
{
  StxTree tree = stxNewTree("M", "m");
  stxSetTime(tree, 20240131, 0);
  stxImport(tree, "Other-One", "other", true);
  StxRunResult result = dump(stxEncode(tree));
  EXPECT_EQ(section(result.out, "imports"), "  module 2\n"
                                            "    toolVersion 213\n"
                                            "    treeVersion 213\n"
                                            "    date 20240131\n"
                                            "    moduleName 5 \"Other_One\"\n"
                                            "    filePrefix 6 \"other\"\n"
                                            "    tagDefault 0, use 1\n");
  EXPECT_THAT(dump(stxEncode(stxNewTree("M", "m"))).out,
              Not(HasSubstr("imports")));
}

TEST_F(StxDump, EverySection)
{
  StxRunResult result = dump(stxEncode(fullTree()));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.messages, "");
  EXPECT_EQ(section(result.out, "global options"),
            "  lines 1 to 1\n"
            "    line 1 front-end \"-C=src/\"\n");
  EXPECT_EQ(
      section(result.out, "types"),
      "  type 1 \"S\" TYP_SEQ TCS_HEADER VF_STRU nodeFlags=mandatoryComps "
      "classFlags=visible entryFlags=0x4C ref=1:2 nrComps=1\n"
      "    components\n"
      "      type 2 \"a_b\" TYP_INTEGER TCS_MANDATORY VF_UI8 "
      "nodeOptions=optNaming bounds=0..9\n"
      "        tags\n"
      "          tag 1 context 3 implicit\n"
      "        constraint\n"
      "          sub 3 union\n"
      "            of\n"
      "              sub 1 range subFlags=lowerClosed,upperClosed\n"
      "                lower value 1 TYP_INTEGER 0 governor=1:2 "
      "valueStatus=2\n"
      "                upper value 2 TYP_INTEGER 9 governor=1:2 "
      "valueStatus=2\n"
      "              sub 2 single value\n"
      "                value 3 TYP_INTEGER -1 governor=1:2 valueStatus=2\n"
      "        lines 2 to 2\n"
      "          line 2 front-end \"-N=x\"\n"
      "        default value 4 TYP_INTEGER 4 governor=1:2 valueStatus=2\n"
      "  type 3 \"E\" TYP_ENUM TCS_HEADER\n"
      "    named numbers\n"
      "      value 5 \"red\" TYP_INTEGER 0 governor=1:3\n"
      "  type 4 \"Sel\" TYP_SELECTION TCS_HEADER\n"
      "    path\n"
      "      link 1 type=1:2\n"
      "  type 5 \"Syn\" TYP_SYNONYM TCS_HEADER ref=2:7\n");
  EXPECT_EQ(section(result.out, "values"),
            "  value 6 \"v\" TYP_SEQ governor=1:1 valueStatus=2\n"
            "    of\n"
            "      value 7 \"a_b\" TYP_INTEGER 5 governor=1:2 valueStatus=2\n"
            "  value 8 \"w\" TYP_BMPSTR length=2 \"a\\u{1234}\" governor=1:1 "
            "valueStatus=2\n"
            "  value 9 \"x\" TYP_UNISTR length=1 \"\\u{12345}\" governor=1:1 "
            "valueStatus=2\n");
  EXPECT_EQ(section(result.out, "strings of 16 bits"),
            "  string 1 \"a\\u{1234}\"\n");
  EXPECT_EQ(section(result.out, "strings of 32 bits"),
            "  string 1 \"\\u{12345}\"\n");
  EXPECT_THAT(result.out, Not(HasSubstr("reached by no chain")));
  EXPECT_THAT(result.out, Not(HasSubstr("in no range")));
}

TEST_F(StxDump, SameTreeTwice)
{
  std::string octets = stxEncode(fullTree());
  EXPECT_EQ(dump(octets).out, dump(octets).out);
}

TEST_F(StxDump, CodesWithoutAName)
{
  StxTree tree = stxNewTree("M", "m");
  TNode node = stxNewTNode(99, 77);
  node.valueFieldSize = VF_I32;
  node.nodeOptions = 1u << 4 | 1u << 5;
  node.nodeFlags = 1u << 2 | 1u << 7;
  node.typeOptions.skipKind = 0;
  node.typeOptions.definiteLength = 1;
  node.compStatus = -TCS_HEADER;
  stxType(tree, node);
  node = stxNewTNode(TYP_EXTERNAL_1994);
  node.compStatus = 9;
  stxType(tree, node);
  EXPECT_EQ(section(dump(stxEncode(tree)).out, "types reached by no chain"),
            "  type 1 mainType=99 -TCS_HEADER valueField=77 "
            "valueFieldSize=VF_I32 nodeOptions=bit4,optSkip "
            "nodeFlags=bit2,extensible definiteLength=1 skipKind=0\n"
            "  type 2 TYP_EXTERNAL(29) compStatus=9\n");
}

TEST_F(StxDump, BoundsThatAreKnownOnOneSide)
{
  StxTree tree = stxNewTree("M", "m");
  TNode node = stxNewTNode(TYP_INTEGER);
  node.lowerEndpoint = stxInt64(0);
  stxDefineType(tree, "A", node);
  node = stxNewTNode(TYP_INTEGER);
  node.upperEndpoint = stxInt64(-5);
  stxDefineType(tree, "B", node);
  stxSetBounds(node, 0, 0);
  stxDefineType(tree, "C", node);
  EXPECT_EQ(section(dump(stxEncode(tree)).out, "types"),
            "  type 1 \"A\" TYP_INTEGER TCS_HEADER bounds=0..MAX\n"
            "  type 2 \"B\" TYP_INTEGER TCS_HEADER bounds=MIN..-5\n"
            "  type 3 \"C\" TYP_INTEGER TCS_HEADER bounds=0..0\n");
}

TEST_F(StxDump, RangeWithoutEnds)
{
  StxTree tree = stxNewTree("M", "m");
  TNode node = stxNewTNode(TYP_INTEGER);
  node.firstConstraint = stxSub(tree, stxNewSub(SUB_RANGE));
  stxDefineType(tree, "A", node);
  EXPECT_THAT(dump(stxEncode(tree)).out, HasSubstr("      sub 1 range\n"
                                                   "        lower MIN\n"
                                                   "        upper MAX\n"));
}

TEST_F(StxDump, RealValues)
{
  StxTree tree = stxNewTree("M", "m");
  auto add = [&](int64_t mantissa, int16_t base, int16_t exponent) {
    VNode node = stxNewVNode(TYP_REAL, 0);
    node.valueStatus = 0;
    node.governorModule = 0;
    setPayloadReal(node, stxInt64(mantissa), base, exponent);
    stxDefineValue(tree, "", node);
  };
  add(-15, 10, -1);
  add(0, -1, 0);
  add(-1, -1, 0);
  add(-2, -1, 0);
  EXPECT_EQ(section(dump(stxEncode(tree)).out, "values"),
            "  value 1 TYP_REAL -15*10^-1\n"
            "  value 2 TYP_REAL zero\n"
            "  value 3 TYP_REAL MINUS-INFINITY\n"
            "  value 4 TYP_REAL PLUS-INFINITY\n");
}

TEST_F(StxDump, OtherValues)
{
  StxTree tree = stxNewTree("M", "m");
  auto plain = [](int mainType) {
    VNode node;
    node.mainType = static_cast<uint8_t>(mainType);
    return node;
  };
  VNode node = plain(TYP_BOOLEAN);
  setPayloadBool(node, true);
  stxDefineValue(tree, "t", node);
  stxDefineValue(tree, "f", plain(TYP_BOOLEAN));
  node = plain(TYP_BITSTR);
  setPayloadStri(node, 3, stxStri(tree, "010"));
  stxDefineValue(tree, "b", node);
  node = plain(TYP_SYNONYM);
  node.refModule = 1;
  node.firstChild = 1;
  stxDefineValue(tree, "r", node);
  node = plain(TYP_NULL);
  node.payload[11] = 0xAB;
  stxDefineValue(tree, "n", node);
  EXPECT_EQ(section(dump(stxEncode(tree)).out, "values"),
            "  value 1 \"t\" TYP_BOOLEAN TRUE\n"
            "  value 2 \"f\" TYP_BOOLEAN FALSE\n"
            "  value 3 \"b\" TYP_BITSTR length=3 \"010\"\n"
            "  value 4 \"r\" TYP_SYNONYM value=1:1\n"
            "  value 5 \"n\" TYP_NULL payload=0000000000000000000000AB\n");
}

// What a value's code does not use is not lost: with one such octet set all
// of them are shown. Strings have a length and, at 4, the index of a string.
TEST_F(StxDump, UnusedOctetsOfAPayload)
{
  struct Case {
    int mainType;
    std::string shown;      // with no octet set
    std::vector<int> used;  // octets that other texts tell
  };
  const std::vector<int> all = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  const std::vector<int> number(all.begin(), all.begin() + 8);
  const Case cases[] = {
      {TYP_BOOLEAN, " FALSE", {0}},
      {TYP_INTEGER, " 0", number},
      {TYP_ENUM, " 0", number},
      {TYP_REAL, " 0*0^0", all},
      {TYP_BITSTR, "", {0, 1, 4, 5, 6, 7}},
      {TYP_OCTSTR, "", {0, 1, 4, 5, 6, 7}},
      {TYP_IA5STR, "", number},
      {TYP_BMPSTR, "", number},
      {TYP_OBJID, "", number},
      {TYP_NULL, "", {}},
      {TYP_SEQ, "", {}},
      {TYP_SYNONYM, "", {}},
  };
  for (const Case &c : cases) {
    for (int octet : all) {
      StxTree tree = stxNewTree("M", "m");
      VNode node;
      node.mainType = static_cast<uint8_t>(c.mainType);
      node.payload[octet] = 0xA5;
      stxDefineValue(tree, "v", node);
      std::string text = section(dump(stxEncode(tree)).out, "values");
      std::string hex(24, '0');
      hex.replace(static_cast<size_t>(2 * octet), 2, "A5");
      bool isUsed =
          std::find(c.used.begin(), c.used.end(), octet) != c.used.end();
      size_t payload = text.find(" payload=" + hex);
      EXPECT_EQ(payload == std::string::npos, isUsed) << c.mainType << octet;
      std::string plain = std::string(stxMainTypeName(c.mainType)) + c.shown;
      if (isUsed) {
        EXPECT_EQ(text.find(plain + "\n"), std::string::npos) << text;
      } else {
        EXPECT_NE(text.find(plain + " payload="), std::string::npos) << text;
      }
    }
  }
}

// The value of a contained subtype names a type, whatever its own code is.
TEST_F(StxDump, ContainedSubtype)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t a = stxDefineType(tree, "A", stxNewTNode(TYP_INTEGER));
  VNode carrier;
  carrier.mainType = TYP_SYNONYM;
  carrier.firstChild = a;
  int32_t value = stxValue(tree, carrier);
  TNode node = stxNewTNode(TYP_INTEGER);
  node.firstConstraint = stxSub(tree, stxNewSub(SUB_INCLUDES, value));
  stxDefineType(tree, "B", node);
  std::string octets = stxEncode(tree);
  EXPECT_THAT(dump(octets).out,
              HasSubstr("sub 1 includes\n"
                        "        value 1 TYP_SYNONYM type=1\n"));
  expectGood(octets);
  // Two types, one value: as a value's index the same 2 would be wrong.
  stxValueAt(tree, value).firstChild = 2;
  expectGood(stxEncode(tree));
  stxValueAt(tree, value).firstChild = 3;
  expectFault(stxEncode(tree), "vNode 1: firstChild 3 is out of range");
}

// A field of an object holds a type if the class's field has a plain name,
// and a value if the name is negative.
TEST_F(StxDump, ObjectFields)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t type = stxDefineType(tree, "T", stxNewTNode(TYP_NULL));
  int32_t cls = stxDefineType(tree, "C", stxNewTNode(TYP_CLASS));
  int32_t f = stxAddComp(tree, cls, "Type", stxNewTNode(TYP_OPEN));
  int32_t g = stxAddComp(tree, cls, "list", stxNewTNode(TYP_SEQOF));
  stxTypeAt(tree, g).identifier *= -1;
  int32_t object = stxDefineValue(tree, "o", stxNewVNode(TYP_CLASS, cls));
  VNode typeField = stxNewVNode(TYP_SEQOF, f);
  typeField.firstChild = type;
  stxAddChild(tree, object, "", typeField);
  int32_t list = stxAddChild(tree, object, "", stxNewVNode(TYP_SEQOF, g));
  stxAddChild(tree, list, "", stxNewVNode(TYP_NULL, type));
  std::string octets = stxEncode(tree);
  expectGood(octets);
  StxRunResult result = dump(octets);
  EXPECT_THAT(section(result.out, "types"),
              HasSubstr("      type 4 value field \"list\" TYP_SEQOF"));
  EXPECT_EQ(section(result.out, "values"),
            "  value 1 \"o\" TYP_CLASS governor=1:2 valueStatus=2\n"
            "    of\n"
            "      value 2 TYP_SEQOF governor=1:3 type=1 valueStatus=2\n"
            "      value 3 TYP_SEQOF governor=1:4 valueStatus=2\n"
            "        of\n"
            "          value 4 TYP_NULL governor=1:1 valueStatus=2\n");
}

TEST_F(StxDump, RecordsReachedByNoChain)
{
  StxTree tree = stxNewTree("M", "m");
  TNode node = stxNewTNode(TYP_NULL);
  node.next = 1;
  stxType(tree, stxNewTNode(TYP_NULL));
  stxType(tree, node);
  stxValue(tree, stxNewInteger(1, 5));
  stxTag(tree, {0, 0, 4, 0});
  stxSub(tree, stxNewSub(SUB_TABLE));
  stxTed(tree, {TED_DROPPED, {}, 0});
  stxLink(tree, stxNewLink(-1));
  std::string out = dump(stxEncode(tree)).out;
  EXPECT_EQ(section(out, "types reached by no chain"),
            "  type 1 TYP_NULL TCS_MANDATORY\n"
            "  type 2 TYP_NULL TCS_MANDATORY next=1\n");
  EXPECT_EQ(section(out, "values reached by no chain"),
            "  value 1 TYP_INTEGER 5 governor=1:1 valueStatus=2\n");
  EXPECT_EQ(section(out, "tags reached by no chain"),
            "  tag 1 universal 4 implicit\n");
  EXPECT_EQ(section(out, "subs reached by no chain"), "  sub 1 table\n");
  EXPECT_EQ(section(out, "lines in no range"),
            "  line 1 dropped (no such string)\n");
  EXPECT_EQ(section(out, "links reached by no chain"), "  link 1 value=1:1\n");
}

// A default that is a definition as well must not cut the definitions short.
TEST_F(StxDump, RecordThatWasPrintedBefore)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t type = stxDefineType(tree, "A", stxNewTNode(TYP_INTEGER));
  int32_t a = stxDefineValue(tree, "a", stxNewInteger(type, 1));
  stxDefineValue(tree, "b", stxNewInteger(type, 2));
  stxTypeAt(tree, type).defaultValue = a;
  std::string octets = stxEncode(tree);
  EXPECT_EQ(section(dump(octets).out, "values"),
            "  value 1 (see above)\n"
            "  value 2 \"b\" TYP_INTEGER 2 governor=1:1 valueStatus=2\n");
  expectGood(octets);
}

TEST_F(StxDump, OverlappingLineRanges)
{
  StxTree tree = stxNewTree("M", "m");
  for (int i = 0; i < 3; ++i)
    stxTed(tree, {TED_BACK_END, {}, 1});
  TNode node = stxNewTNode(TYP_NULL);
  node.firstTed = 2;
  node.lastTed = 2;
  stxDefineType(tree, "", node);
  node.firstTed = 1;
  node.lastTed = 3;
  stxDefineType(tree, "", node);
  stxDefineType(tree, "", node);
  EXPECT_EQ(section(dump(stxEncode(tree)).out, "types"),
            "  type 1 TYP_NULL TCS_HEADER\n"
            "    lines 2 to 2\n"
            "      line 2 back-end \"M\"\n"
            "  type 2 TYP_NULL TCS_HEADER\n"
            "    lines 1 to 3\n"
            "      line 1 back-end \"M\"\n"
            "      line 3 back-end \"M\"\n"
            "  type 3 TYP_NULL TCS_HEADER\n"
            "    lines 1 to 3\n");
}

TEST_F(StxDump, LongStringIsCutBesideARecord)
{
  StxTree tree = stxNewTree("M", "m");
  std::string name(81, 'x');
  stxDefineType(tree, name, stxNewTNode(TYP_NULL));
  std::string out = dump(stxEncode(tree)).out;
  EXPECT_THAT(out, HasSubstr("  type 1 \"" + std::string(80, 'x') + "\"..."));
  EXPECT_THAT(out, HasSubstr("  string 5 \"" + name + "\"\n"));
}

TEST_F(StxDump, OctetsInStrings)
{
  StxTree tree = stxNewTree("M", "m");
  stxStri(tree, "q\"b\\n\n\xFF");
  EXPECT_THAT(dump(stxEncode(tree)).out,
              HasSubstr("  string 5 \"q\\\"b\\\\n\\x0A\\xFF\"\n"));
}

TEST_F(StxDump, OctetsBehindTheLastSection)
{
  std::string octets = stxEncode(stxNewTree("M", "m")) + "abc";
  EXPECT_THAT(dump(octets).out,
              HasSubstr("3 octets behind the last section\n"));
  expectGood(octets);
}

// Damaged files

TEST_F(StxDump, CutHeader)
{
  std::string octets = stxEncode(stxNewTree("M", "m"));
  expectFault(octets.substr(0, 111), "cut: 111 of 112 octets of the header");
  expectFault("", "cut: 0 of 112 octets of the header");
  // Of a field that is cut nothing can be told.
  EXPECT_EQ(dump(octets.substr(0, 7)).out, "header\n"
                                           "  toolVersion 213\n"
                                           "  treeVersion 213\n");
}

TEST_F(StxDump, WrongVersion)
{
  StxTree tree = stxNewTree("M", "m");
  tree.header.treeVersion = 212;
  expectFault(stxEncode(tree), "tree version 212, expected 213");
  EXPECT_THAT(dump(stxEncode(tree)).out, Not(HasSubstr("strings")));
  tree.header.treeVersion = 213;
  tree.header.toolVersion = 212;
  expectGood(stxEncode(tree));
}

TEST_F(StxDump, CutSection)
{
  StxTree tree = stxNewTree("M", "m");
  stxDefineType(tree, "A", stxNewTNode(TYP_NULL));
  stxDefineType(tree, "B", stxNewTNode(TYP_NULL));
  std::string octets = stxEncode(tree).substr(0, 112 + 116 + 115);
  expectFault(octets, "cut: section tNode holds 1 of 2 records");
  std::string out = dump(octets).out;
  EXPECT_EQ(section(out, "types"),
            "  type 1 (no such string) TYP_NULL TCS_HEADER\n"
            "  type 2 (no such record)\n");
}

TEST_F(StxDump, CutStrings)
{
  std::string octets = stxEncode(stxNewTree("M", "m"));
  expectFault(octets.substr(0, octets.size() - 1),
              "cut: section stri holds 3 of 4 strings");
  expectFault(octets.substr(0, 113), "cut: section stri holds 0 of 4 strings");
  EXPECT_EQ(section(dump(octets.substr(0, 117)).out, "strings"),
            "  string 1 \"M\"\n");
}

TEST_F(StxDump, BadStringCount)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t index = stxStri(tree, std::string(32001, 'x'));
  size_t at = stxOffset(tree, REC_STRI, index);
  expectFault(
      stxEncode(tree),
      formatText("stri 5 at octet %zu has a bad count of 32002 units", at));
  std::string octets = stxEncode(stxNewTree("M", "m"));
  octets[112] = 0;
  expectFault(octets, "stri 1 at octet 112 has a bad count of 0 units");
}

TEST_F(StxDump, LongestString)
{
  StxTree tree = stxNewTree("M", "m");
  stxStri(tree, std::string(32000, 'x'));
  expectGood(stxEncode(tree));
}

TEST_F(StxDump, StringWithoutZero)
{
  std::string octets = stxEncode(stxNewTree("M", "m"));
  octets[115] = '!';
  expectFault(octets, "stri 1 at octet 112 has no zero at its end");
  EXPECT_THAT(dump(octets).out, HasSubstr("  string 1 \"M!\"\n"
                                          "  string 2 \"m\"\n"));
  StxTree tree = stxNewTree("M", "m");
  stxStri16(tree, u"a");
  octets = stxEncode(tree);
  octets.back() = 1;
  expectFault(octets, formatText("stri16 1 at octet %zu has no zero at its "
                                 "end",
                                 octets.size() - 6));
}

TEST_F(StxDump, AbsurdCounts)
{
  std::string octets = stxEncode(stxNewTree("M", "m"));
  std::string negative = octets;
  negative.replace(40, 4, "\xFE\xFF\xFF\xFF");
  expectFault(negative, "section tNode has a count of -2");
  std::string huge = octets;
  huge.replace(44, 4, "\xFF\xFF\xFF\x7F");
  size_t room = (octets.size() - 112) / 76;
  expectFault(
      huge,
      formatText("cut: section vNode holds %zu of 2147483647 records", room));
  std::string none = octets;
  none[36] = 0;
  expectFault(none, "section mNode has a count of 0");
}

TEST_F(StxDump, FileThatCannotBeOpened)
{
  StxRunResult result = runDump({"/nonexistent/x.stx"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.messages,
            "stxdump: /nonexistent/x.stx: No such file or directory\n");
  result = runDump({"/"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.messages, "stxdump: /: Is a directory\n");
}

TEST_F(StxDump, Usage)
{
  for (auto arguments :
       {runDump({}), runDump({"--check"}), runDump({"--chek", "x.stx"})}) {
    EXPECT_EQ(arguments.status, 2);
    EXPECT_EQ(arguments.out, "");
    EXPECT_THAT(arguments.messages, testing::StartsWith("Usage: stxdump"));
  }
}

TEST_F(StxDump, SeveralFiles)
{
  ASSERT_TRUE(stxWrite(stxNewTree("M", "m"), path.c_str()));
  StxRunResult result =
      runDump({path.c_str(), "/nonexistent/x.stx", path.c_str()});
  EXPECT_EQ(result.status, 1);
  size_t first = result.out.find("==> " + path + " <==\nheader\n");
  EXPECT_EQ(first, 0u);
  EXPECT_NE(result.out.find("==> " + path + " <==\nheader\n", 1),
            std::string::npos);
  EXPECT_THAT(runDump({path.c_str()}).out, Not(HasSubstr("==>")));
}

TEST_F(StxDump, FullDevice)
{
  FILE *full = fopen("/dev/full", "w");
  if (!full)
    GTEST_SKIP() << "no /dev/full";
  ASSERT_TRUE(stxWrite(stxNewTree("M", "m"), path.c_str()));
  FILE *messages = tmpfile();
  const char *arguments[] = {path.c_str()};
  EXPECT_EQ(stxDumpRun(arguments, full, messages), 1);
  EXPECT_THAT(streamText(messages), HasSubstr("stxdump: output: "));
  fclose(full);
}

// Any damage must end in output that is bounded by the file.
TEST_F(StxDump, RandomDamage)
{
  const std::string whole = stxEncode(fullTree());
  std::mt19937 random(7);
  for (int i = 0; i < 400; ++i) {
    std::string octets = whole;
    for (int n = 0; n < 3; ++n)
      octets[random() % octets.size()] =
          static_cast<char>(random() % 4 ? random() % 10 : random());
    octets.resize(random() % 4 ? octets.size() : random() % octets.size());
    StxRunResult result = dump(octets);
    EXPECT_LT(result.out.size(), 100 * whole.size());
    // What the dump complains of, a check complains of too.
    StxRunResult checked = check(octets);
    EXPECT_GE(checked.messages.size(), result.messages.size());
    EXPECT_EQ(checked.status, checked.messages.empty() ? 0 : 1);
  }
}

// Nested as deep as the file is long: no recursion can follow.
TEST_F(StxDump, DeepNesting)
{
  StxTree tree = stxNewTree("M", "m");
  constexpr int32_t levels = 20000;
  for (int32_t i = 1; i <= levels; ++i) {
    TNode node = stxNewTNode(TYP_SEQ);
    node.ref = i < levels ? i + 1 : 0;
    stxType(tree, node);
    SubRec record = stxNewSub(SUB_SIZE, i < levels ? i + 1 : 1);
    record.nextSub = 0;
    stxSub(tree, record);
  }
  tree.header.firstType = 1;
  stxSubAt(tree, levels) = stxNewSub(SUB_TABLE);
  StxRunResult result = dump(stxEncode(tree));
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out, HasSubstr("(nested too deeply, see below)\n"));
  EXPECT_THAT(result.out, HasSubstr(formatText("  type %d TYP_SEQ", levels)));
  EXPECT_THAT(result.out, HasSubstr(formatText("sub %d table", levels)));
  EXPECT_LT(result.out.size(), size_t{levels} * 600);
}

// Every node claims every line, every string is long: what is printed and
// the time for it must not grow with their product.
TEST_F(StxDump, OutputIsLinear)
{
  auto outputOf = [&](int count) {
    StxTree tree = stxNewTree("M", "m");
    std::string name(1000, 'n');
    for (int i = 0; i < count; ++i)
      stxTed(tree, {TED_BACK_END, {}, stxStri(tree, name)});
    for (int i = 0; i < count; ++i) {
      TNode node = stxNewTNode(TYP_NULL);
      node.firstTed = 1;
      node.lastTed = count;
      stxDefineType(tree, name, node);
    }
    return dump(stxEncode(tree)).out.size();
  };
  size_t small = outputOf(1000);
  EXPECT_LT(outputOf(4000), 5 * small);
}
