#include "stx/stxread.h"
#include "stx/stxwrite.h"
#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>

static StxFile parsed(const std::string &octets, long faultCount = 0)
{
  StxFaults faults;
  StxFile file;
  stxParse(file, octets, faults);
  EXPECT_EQ(faults.count, faultCount);
  return file;
}

TEST(StxParse, RecordsAndStrings)
{
  StxTree tree = stxNewTree("M", "m");
  stxImport(tree, "N", "n", true);
  stxType(tree, stxNewTNode(TYP_NULL));
  stxType(tree, stxNewTNode(TYP_REAL));
  stxStri16(tree, u"\u1234");
  stxStri32(tree, U"a\U00012345");
  StxFile file = parsed(stxEncode(tree));
  EXPECT_TRUE(file.headerGood);
  EXPECT_EQ(file.headerOctets, 112u);
  EXPECT_EQ(file.end, file.octets.size());
  EXPECT_EQ(stxPresent(file, REC_MNODE), 2);
  EXPECT_EQ(stxPresent(file, REC_TNODE), 2);
  EXPECT_EQ(stxPresent(file, REC_VNODE), 0);
  EXPECT_EQ(stxPresent(file, REC_STRI), 6);
  EXPECT_EQ(file.tNodes[1].mainType, TYP_REAL);
  EXPECT_TRUE(stxHas(file, REC_TNODE, 2));
  EXPECT_FALSE(stxHas(file, REC_TNODE, 3));
  EXPECT_FALSE(stxHas(file, REC_TNODE, 0));
  const StxText &wide = file.texts[1][0];
  EXPECT_EQ(wide.units, 1u);
  EXPECT_EQ(stxUnit(file, REC_STRI16, wide, 0), 0x1234u);
  const StxText &widest = file.texts[2][0];
  EXPECT_EQ(widest.units, 2u);
  EXPECT_EQ(stxUnit(file, REC_STRI32, widest, 1), 0x12345u);
}

TEST(StxParse, CutFileKeepsWhatIsThere)
{
  StxTree tree = stxNewTree("M", "m");
  stxType(tree, stxNewTNode(TYP_NULL));
  stxType(tree, stxNewTNode(TYP_REAL));
  StxFile file = parsed(stxEncode(tree).substr(0, 112 + 200), 1);
  EXPECT_TRUE(file.headerGood);
  EXPECT_EQ(stxDeclared(file, REC_TNODE), 2);
  EXPECT_EQ(stxPresent(file, REC_TNODE), 1);
  EXPECT_EQ(stxDeclared(file, REC_STRI), 4);
  EXPECT_EQ(stxPresent(file, REC_STRI), 0);
}

TEST(StxParse, CutHeader)
{
  StxFile file = parsed(std::string(10, 1), 1);
  EXPECT_FALSE(file.headerGood);
  EXPECT_EQ(file.headerOctets, 10u);
  EXPECT_EQ(file.header.toolVersion, 0x0101);
}

TEST(StxFault, LineAndCount)
{
  StxFaults faults{stderr, "x.stx", 0};
  testing::internal::CaptureStderr();
  stxFault(faults, "%s %d", "bad", 7);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "stxdump: x.stx: bad 7\n");
  EXPECT_EQ(faults.count, 1);
  faults.to = nullptr;
  testing::internal::CaptureStderr();
  stxFault(faults, "quiet");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(faults.count, 2);
}

TEST(StxReadOctets, FileAndFailures)
{
  std::string path = testing::TempDir() + "stxread_octets.stx";
  std::string octets(100000, 'x');
  octets[70000] = 0;
  ASSERT_TRUE(stxWriteOctets(octets, path.c_str()));
  std::string read = "old";
  EXPECT_TRUE(stxReadOctets(read, path.c_str()));
  EXPECT_EQ(read, octets);
  std::filesystem::remove(path);
  EXPECT_FALSE(stxReadOctets(read, path.c_str()));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(stxReadOctets(read, "/"));
  EXPECT_EQ(errno, EISDIR);
  EXPECT_FALSE(stxReadOctets(read, "/dev/zero"));
  EXPECT_EQ(errno, EINVAL);
}

// An instantiated structure's `ref` is the definition that it was made from.
TEST(StxHasComps, ReferencesAreNone)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t s = stxDefineType(tree, "S", stxNewTNode(TYP_SEQ));
  stxAddComp(tree, s, "a", stxNewTNode(TYP_NULL));
  int32_t copy = stxType(tree, stxNewTNode(TYP_SEQ));
  stxTypeAt(tree, copy).ref = s;
  int32_t synonym = stxType(tree, stxNewSynonym(s));
  int32_t empty = stxType(tree, stxNewTNode(TYP_SEQ));
  int32_t dangling = stxType(tree, stxNewTNode(TYP_SEQ));
  stxTypeAt(tree, dangling).ref = 99;
  StxFile file = parsed(stxEncode(tree));
  auto hasComps = [&](int32_t type) {
    return stxHasComps(file, file.tNodes[static_cast<size_t>(type) - 1]);
  };
  EXPECT_TRUE(hasComps(s));
  EXPECT_FALSE(hasComps(copy));
  EXPECT_FALSE(hasComps(synonym));
  EXPECT_FALSE(hasComps(empty));
  EXPECT_TRUE(hasComps(dangling));
}

TEST(StxFirstChild, ByTheValuesCode)
{
  StxTree tree = stxNewTree("M", "m");
  auto use = [&](int mainType) {
    int32_t value = stxValue(tree, stxNewVNode(mainType, 0));
    return stxFirstChild(parsed(stxEncode(tree)), value);
  };
  EXPECT_EQ(use(TYP_BOOLEAN), STX_NOTHING);
  EXPECT_EQ(use(TYP_INTEGER), STX_NOTHING);
  EXPECT_EQ(use(TYP_OCTSTR), STX_NOTHING);
  EXPECT_EQ(use(TYP_EXTENSION_MARKER), STX_NOTHING);
  EXPECT_EQ(use(TYP_BITSTR), STX_VALUES);
  EXPECT_EQ(use(TYP_SEQ), STX_VALUES);
  EXPECT_EQ(use(TYP_SETOF), STX_VALUES);
  EXPECT_EQ(use(TYP_OBJID), STX_VALUES);
  EXPECT_EQ(use(TYP_IA5STR), STX_VALUES);
  EXPECT_EQ(use(TYP_UTCTIME), STX_VALUES);
  EXPECT_EQ(use(TYP_CLASS), STX_VALUES);
  EXPECT_EQ(use(TYP_SYNONYM), STX_VALUE);
}

// What a field holds stands in its class; in another tree it is out of sight.
TEST(StxFirstChild, FieldOfAForeignClass)
{
  StxTree tree = stxNewTree("M", "m");
  stxImport(tree, "N", "n", true);
  int32_t object = stxValue(tree, stxNewVNode(TYP_CLASS, 0));
  VNode node = stxNewVNode(TYP_SEQ, 7);
  node.governorModule = 2;
  int32_t field = stxAddChild(tree, object, "", node);
  int32_t other = stxValue(tree, node);
  StxFile file = parsed(stxEncode(tree));
  EXPECT_EQ(stxFirstChild(file, field), STX_NOTHING);
  EXPECT_EQ(stxFirstChild(file, other), STX_VALUES);
}

TEST(StxPayloadKind, StringKinds)
{
  auto kind = [](int mainType) {
    return stxPayloadKind(stxNewVNode(mainType, 0));
  };
  EXPECT_EQ(kind(TYP_BITSTR), REC_STRI);
  EXPECT_EQ(kind(TYP_OCTSTR), REC_STRI);
  EXPECT_EQ(kind(TYP_NUMSTR), REC_STRI);
  EXPECT_EQ(kind(TYP_GENSTR), REC_STRI);
  EXPECT_EQ(kind(TYP_OBJDESCR), REC_STRI);
  EXPECT_EQ(kind(TYP_BMPSTR), REC_STRI16);
  EXPECT_EQ(kind(TYP_UNISTR), REC_STRI32);
  EXPECT_EQ(kind(TYP_INTEGER), 0);
  EXPECT_EQ(kind(TYP_CHASTR), 0);
  EXPECT_EQ(kind(TYP_EXTERNAL), 0);
}
