#include "base/strings.h"
#include "stx/stxcheck.h"
#include "stx/stxwrite.h"
#include <functional>
#include <gtest/gtest.h>

// The faults that a check reports, a line each.
static std::string faultsOf(const std::string &octets, bool codes)
{
  FILE *stream = tmpfile();
  StxFaults faults{stream, "t", 0};
  StxFile file;
  stxParse(file, octets, faults);
  stxCheck(file, codes, faults);
  std::string text;
  long lines = 0;
  rewind(stream);
  for (int c; (c = fgetc(stream)) != EOF;) {
    text += static_cast<char>(c);
    lines += c == '\n';
  }
  fclose(stream);
  EXPECT_EQ(faults.count, lines);
  return text;
}

// A tree with two records of each kind, chained, and one imported module.
static StxTree pairTree()
{
  StxTree tree = stxNewTree("M", "m");
  stxImport(tree, "N", "n", true);
  int32_t a = stxDefineType(tree, "A", stxNewTNode(TYP_INTEGER));
  stxDefineType(tree, "B", stxNewTNode(TYP_INTEGER));
  stxDefineValue(tree, "a", stxNewInteger(a, 1));
  stxDefineValue(tree, "b", stxNewInteger(a, 2));
  stxAddTag(tree, a, 2, 1, 1);
  stxAddTag(tree, a, 2, 2, 0);
  int32_t s = stxSub(tree, stxNewSub(SUB_SINGLE_VALUE, 1));
  int32_t t = stxSub(tree, stxNewSub(SUB_SINGLE_VALUE, 2));
  stxTypeAt(tree, a).firstConstraint = stxChainSubs(tree, {s, t});
  stxGlobalOption(tree, TED_FRONT_END, "-X");
  stxGlobalOption(tree, TED_FRONT_END, "-Y");
  stxChainLinks(tree,
                {stxLink(tree, stxNewLink(1)), stxLink(tree, stxNewLink(-2))});
  return tree;
}

typedef std::function<void(StxTree &)> StxDamage;

struct StxBadField {
  StxDamage damage;
  const char *fault;
};

static std::string damagedFaults(const StxDamage &damage, bool codes)
{
  StxTree tree = pairTree();
  damage(tree);
  return faultsOf(stxEncode(tree), codes);
}

static void expectFaults(std::initializer_list<StxBadField> rows)
{
  for (const StxBadField &row : rows) {
    std::string expected = formatText("stxdump: t: %s\n", row.fault);
    EXPECT_EQ(damagedFaults(row.damage, true), expected);
    EXPECT_EQ(damagedFaults(row.damage, false), expected);
  }
}

TEST(StxCheck, GoodTree)
{
  EXPECT_EQ(damagedFaults([](StxTree &) {}, true), "");
}

TEST(StxCheck, HeaderIndexes)
{
  expectFaults({
      {[](StxTree &t) { t.header.moduleName = 0; },
       "mNode 1: moduleName 0 is out of range"},
      {[](StxTree &t) { t.header.moduleName = 100; },
       "mNode 1: moduleName 100 is out of range"},
      {[](StxTree &t) { t.header.filePrefix = -1; },
       "mNode 1: filePrefix -1 is out of range"},
      {[](StxTree &t) { t.header.firstType = 3; },
       "mNode 1: firstType 3 is out of range"},
      {[](StxTree &t) { t.header.firstValue = 3; },
       "mNode 1: firstValue 3 is out of range"},
      {[](StxTree &t) { t.header.auxValueA = 3; },
       "mNode 1: auxValueA 3 is out of range"},
      {[](StxTree &t) { t.header.auxValueB = 3; },
       "mNode 1: auxValueB 3 is out of range"},
      {[](StxTree &t) { t.header.sourceDirectory = 100; },
       "mNode 1: sourceDirectory 100 is out of range"},
      {[](StxTree &t) { t.header.sourceFileName = 100; },
       "mNode 1: sourceFileName 100 is out of range"},
      {[](StxTree &t) { t.header.lastGlobalTed = 3; },
       "mNode 1: lastGlobalTed 3 is out of range"},
      {[](StxTree &t) {
         t.header.firstGlobalTed = 2;
         t.header.lastGlobalTed = 0;
       },
       "mNode 1: TED range 2 to 0 runs backwards"},
      {[](StxTree &t) { t.imports[0].moduleName = 0; },
       "mNode 2: moduleName 0 is out of range"},
      {[](StxTree &t) { t.imports[0].filePrefix = 100; },
       "mNode 2: filePrefix 100 is out of range"},
  });
}

TEST(StxCheck, HeaderThatIsAllowed)
{
  EXPECT_EQ(damagedFaults(
                [](StxTree &t) {
                  t.header.firstGlobalTed = 0;
                  t.header.filePrefix = 0;
                  t.header.sourceDirectory = 0;
                  t.header.sourceFileName = 0;
                  t.header.visibilityMode = 2;
                  t.imports[0].filePrefix = 0;
                },
                true),
            "");
}

TEST(StxCheck, TypeIndexes)
{
  expectFaults({
      {[](StxTree &t) { t.tNodes[1].identifier = 100; },
       "tNode 2: identifier 100 is out of range"},
      {[](StxTree &t) { t.tNodes[1].identifier = INT32_MIN; },
       "tNode 2: identifier -2147483648 is out of range"},
      {[](StxTree &t) { t.tNodes[1].defaultValue = 3; },
       "tNode 2: defaultValue 3 is out of range"},
      {[](StxTree &t) { t.tNodes[1].next = 3; },
       "tNode 2: next 3 is out of range"},
      {[](StxTree &t) { t.tNodes[1].next = -1; },
       "tNode 2: next -1 is out of range"},
      {[](StxTree &t) { t.tNodes[1].firstConstraint = 3; },
       "tNode 2: firstConstraint 3 is out of range"},
      {[](StxTree &t) { t.tNodes[1].firstTag = 3; },
       "tNode 2: firstTag 3 is out of range"},
      {[](StxTree &t) { t.tNodes[1].lastTed = 3; },
       "tNode 2: lastTed 3 is out of range"},
      {[](StxTree &t) {
         t.tNodes[1].firstTed = 2;
         t.tNodes[1].lastTed = 0;
       },
       "tNode 2: TED range 2 to 0 runs backwards"},
      {[](StxTree &t) { t.tNodes[1].ref = 3; },
       "tNode 2: ref 3 is out of range"},
      {[](StxTree &t) { t.tNodes[1].refModule = 3; },
       "tNode 2: refModule 3 is out of range"},
      {[](StxTree &t) { t.tNodes[1].refModule = -1; },
       "tNode 2: refModule -1 is out of range"},
      {[](StxTree &t) { t.tNodes[1].namedNumbers = 3; },
       "tNode 2: namedNumbers 3 is out of range"},
      {[](StxTree &t) {
         t.tNodes[1].mainType = TYP_ANY;
         t.tNodes[1].fieldRef = 3;
       },
       "tNode 2: fieldRef 3 is out of range"},
  });
}

TEST(StxCheck, TypesThatAreAllowed)
{
  // A value field; a reference into a tree that is not at hand; the mark of a
  // class field; an instantiation; a header of an inner synonym; an empty
  // line range.
  for (const StxDamage &damage : std::initializer_list<StxDamage>{
           [](StxTree &t) { t.tNodes[1].identifier *= -1; },
           [](StxTree &t) {
             t.tNodes[1].refModule = 2;
             t.tNodes[1].ref = 1000;
           },
           [](StxTree &t) { t.tNodes[1].refModule = -2; },
           [](StxTree &t) { t.tNodes[1].fieldRef = 1000; },
           [](StxTree &t) { t.tNodes[1].compStatus = -5; },
           [](StxTree &t) { t.tNodes[1].firstTed = 1; },
       })
    EXPECT_EQ(damagedFaults(damage, true), "");
}

TEST(StxCheck, ValueIndexes)
{
  expectFaults({
      {[](StxTree &t) { t.vNodes[1].identifier = -1; },
       "vNode 2: identifier -1 is out of range"},
      {[](StxTree &t) { t.vNodes[1].governor = 3; },
       "vNode 2: governor 3 is out of range"},
      {[](StxTree &t) { t.vNodes[1].governorModule = 3; },
       "vNode 2: governorModule 3 is out of range"},
      {[](StxTree &t) { t.vNodes[1].next = 3; },
       "vNode 2: next 3 is out of range"},
      {[](StxTree &t) { t.vNodes[1].fieldPath = 3; },
       "vNode 2: fieldPath 3 is out of range"},
      {[](StxTree &t) { t.vNodes[1].lastTed = 3; },
       "vNode 2: lastTed 3 is out of range"},
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_SYNONYM;
         t.vNodes[1].firstChild = 3;
       },
       "vNode 2: firstChild 3 is out of range"},
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_SYNONYM;
         t.vNodes[1].refModule = 3;
       },
       "vNode 2: refModule 3 is out of range"},
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_SEQ;
         t.vNodes[1].firstChild = 3;
       },
       "vNode 2: firstChild 3 is out of range"},
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_IA5STR;
         setPayloadStri(t.vNodes[1], 1, 100);
       },
       "vNode 2: payload 100 is out of range"},
      // There is an 8-bit string 1, but none of 16 or 32 bits.
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_BMPSTR;
         setPayloadStri(t.vNodes[1], 1, 1);
       },
       "vNode 2: payload 1 is out of range"},
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_UNISTR;
         setPayloadStri(t.vNodes[1], 1, 1);
       },
       "vNode 2: payload 1 is out of range"},
  });
}

TEST(StxCheck, ValuesThatAreAllowed)
{
  for (const StxDamage &damage : std::initializer_list<StxDamage>{
           [](StxTree &t) {
             t.vNodes[1].mainType = TYP_IA5STR;
             setPayloadStri(t.vNodes[1], 1, 1);
           },
           [](StxTree &t) {
             t.vNodes[1].mainType = TYP_SYNONYM;
             t.vNodes[1].refModule = 2;
             t.vNodes[1].firstChild = 1000;
           },
           [](StxTree &t) {
             t.vNodes[1].governorModule = 2;
             t.vNodes[1].governor = 1000;
           },
       })
    EXPECT_EQ(damagedFaults(damage, true), "");
}

TEST(StxCheck, OtherIndexes)
{
  expectFaults({
      {[](StxTree &t) { t.tagRecs[1].nextTag = 3; },
       "tagRec 2: nextTag 3 is out of range"},
      {[](StxTree &t) { t.subRecs[1].nextSub = 3; },
       "subRec 2: nextSub 3 is out of range"},
      {[](StxTree &t) { t.subRecs[1].operand1 = 3; },
       "subRec 2: operand1 3 is out of range"},
      {[](StxTree &t) { t.subRecs[1].operand1 = 0; },
       "subRec 2: operand1 0 is out of range"},
      {[](StxTree &t) { t.subRecs[1] = stxNewSub(SUB_SIZE, 3); },
       "subRec 2: operand1 3 is out of range"},
      {[](StxTree &t) { t.subRecs[1] = stxNewSub(SUB_RANGE, 0, 3); },
       "subRec 2: operand2 3 is out of range"},
      {[](StxTree &t) { t.subRecs[1].compNode = 3; },
       "subRec 2: compNode 3 is out of range"},
      {[](StxTree &t) { t.subRecs[1].compModule = 3; },
       "subRec 2: compModule 3 is out of range"},
      {[](StxTree &t) { t.tedRecs[1].text = 100; },
       "tedRec 2: text 100 is out of range"},
      {[](StxTree &t) { t.tedRecs[1].text = 0; },
       "tedRec 2: text 0 is out of range"},
      {[](StxTree &t) { t.sNodes[1].target = 3; },
       "sNode 2: target 3 is out of range"},
      {[](StxTree &t) { t.sNodes[1].target = -3; },
       "sNode 2: target -3 is out of range"},
      {[](StxTree &t) { t.sNodes[1].target = INT32_MIN; },
       "sNode 2: target -2147483648 is out of range"},
      {[](StxTree &t) { t.sNodes[1].target = 0; },
       "sNode 2: target 0 is out of range"},
      {[](StxTree &t) { t.sNodes[1].linkModule = 3; },
       "sNode 2: linkModule 3 is out of range"},
      {[](StxTree &t) { t.sNodes[1].nextLink = 3; },
       "sNode 2: nextLink 3 is out of range"},
  });
}

TEST(StxCheck, OthersThatAreAllowed)
{
  for (const StxDamage &damage : std::initializer_list<StxDamage>{
           [](StxTree &t) { t.subRecs[1] = stxNewSub(SUB_RANGE); },
           [](StxTree &t) { t.subRecs[1] = stxNewSub(SUB_WITH_COMPONENTS); },
           [](StxTree &t) { t.subRecs[1] = stxNewSub(SUB_HIDDEN, 1000); },
           [](StxTree &t) {
             t.subRecs[1].compModule = 2;
             t.subRecs[1].compNode = 1000;
           },
           [](StxTree &t) { t.tedRecs[1] = TedRec{}; },
           [](StxTree &t) { t.sNodes[0].target = 0; },
           [](StxTree &t) { t.sNodes[1] = stxNewLink(1000, 2); },
       })
    EXPECT_EQ(damagedFaults(damage, true), "");
}

TEST(StxCheck, Codes)
{
  const std::initializer_list<StxBadField> rows = {
      {[](StxTree &t) { t.header.date = -1; }, "mNode 1: date is negative: -1"},
      {[](StxTree &t) { t.header.time = -1; }, "mNode 1: time is negative: -1"},
      {[](StxTree &t) { t.header.nrEntryTypes = -1; },
       "mNode 1: nrEntryTypes is negative: -1"},
      {[](StxTree &t) { t.header.nrVisibleTypes = -2; },
       "mNode 1: nrVisibleTypes is negative: -2"},
      {[](StxTree &t) { t.header.nrObjects = -1; },
       "mNode 1: nrObjects is negative: -1"},
      {[](StxTree &t) { t.header.nrObjectSets = -1; },
       "mNode 1: nrObjectSets is negative: -1"},
      {[](StxTree &t) { t.header.visibilityMode = 3; },
       "mNode 1: visibilityMode has the unknown code 3"},
      {[](StxTree &t) { t.tNodes[1].mainType = 42; },
       "tNode 2: mainType has the unknown code 42"},
      {[](StxTree &t) { t.tNodes[1].compStatus = 7; },
       "tNode 2: compStatus has the unknown code 7"},
      {[](StxTree &t) { t.tNodes[1].compStatus = -7; },
       "tNode 2: compStatus has the unknown code -7"},
      {[](StxTree &t) { t.tNodes[1].valueField = 36; },
       "tNode 2: valueField has the unknown code 36"},
      {[](StxTree &t) { t.tNodes[1].valueFieldSize = 36; },
       "tNode 2: valueFieldSize has the unknown code 36"},
      {[](StxTree &t) { t.tNodes[1].nodeOptions = 0x40030; },
       "tNode 2: nodeOptions has unknown bits 0x40010"},
      {[](StxTree &t) { t.vNodes[1].mainType = 42; },
       "vNode 2: mainType has the unknown code 42"},
      {[](StxTree &t) { t.tagRecs[1].tagClass = 4; },
       "tagRec 2: tagClass has the unknown code 4"},
      {[](StxTree &t) { t.tagRecs[1].tagMode = -1; },
       "tagRec 2: tagMode has the unknown code -1"},
      {[](StxTree &t) { t.subRecs[1].kind = 6; },
       "subRec 2: kind has the unknown code 6"},
      {[](StxTree &t) { t.subRecs[1].kind = 23; },
       "subRec 2: kind has the unknown code 23"},
      {[](StxTree &t) { t.subRecs[1].kind = 25; },
       "subRec 2: kind has the unknown code 25"},
      {[](StxTree &t) { t.tedRecs[1].tedKind = 4; },
       "tedRec 2: tedKind has the unknown code 4"},
  };
  for (const StxBadField &row : rows) {
    EXPECT_EQ(damagedFaults(row.damage, true),
              formatText("stxdump: t: %s\n", row.fault));
    EXPECT_EQ(damagedFaults(row.damage, false), "");
  }
}

TEST(StxCheck, Circles)
{
  expectFaults({
      {[](StxTree &t) { t.tNodes[1].next = 1; },
       "tNode 2: cyclic chain, next leads back to 1"},
      {[](StxTree &t) { t.tNodes[1].next = 2; },
       "tNode 2: cyclic chain, next leads back to 2"},
      {[](StxTree &t) { t.vNodes[1].next = 1; },
       "vNode 2: cyclic chain, next leads back to 1"},
      {[](StxTree &t) { t.tagRecs[1].nextTag = 1; },
       "tagRec 2: cyclic chain, nextTag leads back to 1"},
      {[](StxTree &t) { t.subRecs[1].nextSub = 1; },
       "subRec 2: cyclic chain, nextSub leads back to 1"},
      {[](StxTree &t) { t.subRecs[1] = stxNewSub(SUB_UNION, 1); },
       "subRec 2: cyclic chain, operand1 leads back to 1"},
      {[](StxTree &t) { t.sNodes[1].nextLink = 1; },
       "sNode 2: cyclic chain, nextLink leads back to 1"},
      {[](StxTree &t) {
         int32_t a = stxAddComp(t, stxType(t, stxNewTNode(TYP_SEQ)), "",
                                stxNewTNode(TYP_CHOICE));
         stxTypeAt(t, a).ref = a;
       },
       "tNode 4: cyclic chain, ref leads back to 4"},
      {[](StxTree &t) {
         t.tNodes[0] = stxNewSynonym(2);
         t.tNodes[1] = stxNewSynonym(1);
       },
       "tNode 2: cyclic chain, ref leads back to 1"},
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_SYNONYM;
         t.vNodes[1].firstChild = 2;
       },
       "vNode 2: cyclic chain, firstChild leads back to 2"},
      {[](StxTree &t) {
         t.vNodes[1].mainType = TYP_SEQ;
         t.vNodes[1].firstChild = 2;
       },
       "vNode 2: cyclic chain, firstChild leads back to 2"},
  });
}

// A type may come back to itself through a component.
TEST(StxCheck, RecursiveTypeIsNoCircle)
{
  StxTree tree = stxNewTree("M", "m");
  int32_t s = stxDefineType(tree, "S", stxNewTNode(TYP_SEQ));
  stxAddComp(tree, s, "more", stxNewSynonym(s));
  EXPECT_EQ(faultsOf(stxEncode(tree), true), "");
}

// Chains that join share their end; that is no circle either.
TEST(StxCheck, JoinedChainsAreNoCircle)
{
  StxTree tree = pairTree();
  TNode node = stxNewTNode(TYP_INTEGER);
  node.firstTag = 2;
  node.next = 1;
  stxType(tree, node);
  EXPECT_EQ(faultsOf(stxEncode(tree), true), "");
}

TEST(StxCheck, LongChain)
{
  StxTree tree = stxNewTree("M", "m");
  constexpr int count = 200000;
  for (int i = 0; i < count; ++i)
    stxDefineType(tree, "", stxNewTNode(TYP_NULL));
  EXPECT_EQ(faultsOf(stxEncode(tree), true), "");
  tree.tNodes.back().next = 1;
  EXPECT_EQ(faultsOf(stxEncode(tree), true),
            "stxdump: t: tNode 200000: cyclic chain, next leads back to 1\n");
}

// Indexes of records that are declared but cut off are no second fault.
TEST(StxCheck, NoHeaderRecord)
{
  // Without a record of kind 0 no module number is good, and most fields have
  // none beside them.
  std::string octets = stxEncode(pairTree());
  octets.replace(36, 4, std::string(4, 0));
  EXPECT_NE(faultsOf(octets, true), "");
}

TEST(StxCheck, CutFileIsOneFault)
{
  std::string octets = stxEncode(pairTree());
  EXPECT_EQ(faultsOf(octets.substr(0, 224 + 116), true),
            "stxdump: t: cut: section tNode holds 1 of 2 records\n");
}
