// What may be asked of a type that is in a tree: entries, extension markers,
// counts by walks, numbers and stamps.

#include "base/diag.h"
#include "model/typequery.h"
#include "options/fixrec.h"
#include "support/typetrees.h"
#include <limits>

using testing::ExitedWithCode;

struct TypeQueryWalk : TypeTrees {};

// --- visibility and entries -------------------------------------------------

TEST_F(TypeQueryWalk, Visible)
{
  TNode node = stxNewTNode(TYP_NULL);
  node.classFlags = CF_VISIBLE;
  int32_t visible = define("A", node);
  int32_t other_ = define("B", TYP_NULL);
  start();
  TestType a(module, visible);
  TestType b(module, other_);
  ModRec &rec = *module.rec;
  rec.options.nrVisibleTypes = 1;
  rec.visibilityMode = 0;
  EXPECT_TRUE(isVisibleType(*a));
  EXPECT_TRUE(isVisibleType(*b));
  rec.visibilityMode = 1;
  EXPECT_TRUE(isVisibleType(*a));
  EXPECT_FALSE(isVisibleType(*b));
  rec.options.nrVisibleTypes = 0;
  EXPECT_FALSE(isVisibleType(*a));
  rec.visibilityMode = 0;
  EXPECT_FALSE(isVisibleType(*b));
  // The counts are the home module's.
  otherModule.rec->options.nrVisibleTypes = 1;
  a->homeMod = &otherModule;
  EXPECT_TRUE(isVisibleType(*a));
}

TEST_F(TypeQueryWalk, Entry)
{
  TNode node = stxNewTNode(TYP_NULL);
  node.entryFlags = entryFlagBit | 2;
  node.entryCategory = 4;
  int32_t entry = define("A", node);
  int32_t synonym = define("B", stxNewSynonym(entry));
  start();
  TestType a(module, entry);
  TestType b(module, synonym);
  EXPECT_TRUE(isEntryType(*a));
  EXPECT_TRUE(isEntryBaseType(*a));
  EXPECT_FALSE(isEntryType(*b));
  EXPECT_TRUE(isEntryBaseType(*b));
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(isEntryTypeFunction(*a, i), i == 1 || i == 6);
    EXPECT_EQ(typeIsInEntryCategory(*a, i), i == 2);
    EXPECT_FALSE(typeIsInEntryCategory(*b, i));
  }
  module.rec->options.nrEntryTypes = 0;
  EXPECT_FALSE(isEntryType(*a));
  EXPECT_FALSE(isEntryBaseType(*a));
  EXPECT_FALSE(typeIsInEntryCategory(*a, 2));
  EXPECT_TRUE(isEntryTypeFunction(*a, 1));
}

TEST_F(TypeQueryWalk, EntrySymbol)
{
  TNode node = stxNewTNode(TYP_NULL);
  node.entryFlags = entryFlagBit;
  int32_t first = define("A", node);
  int32_t second = define("B", node);
  int32_t third = define("C", TYP_NULL);
  start();
  FixRec &head = module.rec->options.entryFixRec;
  for (const char *name : {"A:", "C:"}) {
    FixRec *record = findFixRecByEntryTypeName(head, name, 1);
    ASSERT_TRUE(updateEntryOption(*record, "T", "symbol"));
  }
  TestType a(module, first);
  TestType b(module, second);
  TestType c(module, third);
  std::string text;
  EXPECT_TRUE(isEntrySymbol(*a));
  EXPECT_EQ(getEntrySymbol(text, "<", *a, ">"), "<symbol>");
  EXPECT_FALSE(isEntrySymbol(*b));
  EXPECT_EQ(getEntrySymbol(text, "<", *b, ">"), "<>");
  // Not an entry, whatever the options say.
  EXPECT_FALSE(isEntrySymbol(*c));
  EXPECT_EQ(getEntrySymbol(text, nullptr, *c, nullptr), "");
  EXPECT_STREQ(getEntrySymbolByName(module, "A"), "symbol");
  EXPECT_EQ(getEntrySymbolByName(module, "B"), nullptr);
}

// --- constraints, named numbers, lengths ------------------------------------

TEST_F(TypeQueryWalk, Constraints)
{
  int32_t hidden = type(TYP_INTEGER, sub(SUB_HIDDEN));
  int32_t plain = type(TYP_INTEGER, single(1));
  int32_t both = synonym(hidden, sub(SUB_HIDDEN));
  start();
  EXPECT_FALSE(isConstraints(*TestType(module, integer)));
  EXPECT_FALSE(isConstraints(*TestType(module, hidden)));
  EXPECT_TRUE(isConstraints(*TestType(module, plain)));
  EXPECT_TRUE(isConstraints(*TestType(module, both)));
}

TEST_F(TypeQueryWalk, NamedNumbers)
{
  int32_t record = define("E", TYP_ENUM);
  stxAddNamedNumber(tree, record, "a", 0);
  stxAddNamedMarker(tree, record);
  stxAddNamedNumber(tree, record, "b", 1);
  int32_t real = define("R", TYP_REAL);
  at(real).namedNumbers = 1;
  start();
  TestType type(module, record);
  EXPECT_TRUE(isNamedNumbers(*type));
  EXPECT_EQ(getNrOfNamedNumbers(*type), 3);
  EXPECT_EQ(getNrOfNamedNumbers(*TestType(module, integer)), 0);
  EXPECT_EQ(getNrOfNamedNumbers(*TestType(module, real)), 0);
}

TEST_F(TypeQueryWalk, CyclicNamedNumbers)
{
  int32_t record = define("E", TYP_ENUM);
  int32_t item = stxAddNamedNumber(tree, record, "a", 0);
  stxValueAt(tree, item).next = item;
  start();
  TestType type(module, record);
  EXPECT_EXIT(getNrOfNamedNumbers(*type), ExitedWithCode(2), damagedM);
}

TEST_F(TypeQueryWalk, DefiniteLength)
{
  start();
  TestType type(module, integer);
  struct Case {
    int option;
    int choice;
    bool ofDefinition;
    bool ofOther;
  };
  const Case cases[] = {
      {0, 1, false, false},  {0, 255, false, false}, {1, 0, true, true},
      {1, 255, true, true},  {2, 0, false, false},   {2, 1, true, true},
      {2, 255, true, false}, {3, 0, false, false},   {3, 1, true, true},
      {3, 255, true, true},  {2, 2, false, false},   {4, 1, false, false},
  };
  for (const Case &c : cases) {
    module.rec->options.definiteLen = static_cast<uint8_t>(c.option);
    type->typeOptions.definiteLength = static_cast<uint8_t>(c.choice);
    type->compStatus = TCS_HEADER;
    EXPECT_EQ(isDefiniteLengthEncoding(*type), c.ofDefinition)
        << c.option << " " << c.choice;
    type->compStatus = TCS_MANDATORY;
    EXPECT_EQ(isDefiniteLengthEncoding(*type), c.ofOther)
        << c.option << " " << c.choice;
  }
}

// --- components -------------------------------------------------------------

TEST_F(TypeQueryWalk, Counts)
{
  for (int mainType : {TYP_SEQ, TYP_SET, TYP_CHOICE}) {
    int32_t record = stxDefineType(tree, "", stxNewTNode(mainType));
    comp(record, "a", TYP_NULL, TCS_OPTIONAL);
    comp(record, "b", TYP_NULL);
    TNode node = stxNewTNode(TYP_INTEGER);
    node.compStatus = TCS_OPTIONAL;
    node.defaultValue = value(1);
    comp(record, "c", node);
    start();
    TestType type(module, record);
    bool counted = mainType != TYP_CHOICE;
    EXPECT_EQ(getNrOfMandatoryTypeComps(*type), counted ? 1 : 0);
    EXPECT_EQ(getNrOfOptionalTypeComps(*type), counted ? 2 : 0);
    EXPECT_EQ(isDefaultValueComps(*type), counted);
  }
  int32_t record = define("S", TYP_SEQ);
  comp(record, "a", TYP_NULL);
  start();
  TestType type(module, record);
  EXPECT_FALSE(isDefaultValueComps(*type));
  EXPECT_EQ(getNrOfOptionalTypeComps(*type), 0);
}

// A marker is a component of the status "mandatory".
TEST_F(TypeQueryWalk, CountsWithAMarker)
{
  int32_t record = define("S", TYP_SEQ);
  comp(record, "a", TYP_NULL);
  marker(record);
  comp(record, "b", TYP_NULL, TCS_OPTIONAL);
  start();
  TestType type(module, record);
  EXPECT_EQ(getNrOfMandatoryTypeComps(*type), 2);
  EXPECT_EQ(getNrOfOptionalTypeComps(*type), 1);
}

// Of each component: its name and the answers, one digit each.
static std::string seen;

static void showAnswers(AsnType &father, AsnType &comp, int)
{
  const bool answers[] = {
      isTypeExtension(comp),
      isExtensionRootComponent(&father, comp),
      isExtensionAdditionComponent(&father, comp),
      isFirstExtensionAdditionComponent(&father, comp),
      isLastExtensionRootComponent(&father, comp),
      isMandatoryExtensionAdditionComponent(&father, comp),
      isOptionalExtensionAdditionComponent(&father, comp),
      isFirstActualTypeComp(comp),
  };
  seen += refOf(comp) + ":";
  for (bool answer : answers)
    seen += answer ? '1' : '0';
  seen += " ";
}

TEST_F(TypeQueryWalk, ExtensionQueries)
{
  int32_t record = define("S", TYP_SEQ);
  comp(record, "a", TYP_NULL);
  comp(record, "b", TYP_NULL);
  marker(record);
  comp(record, "c", TYP_NULL);
  comp(record, "d", TYP_NULL, TCS_OPTIONAL);
  start();
  TestType type(module, record);
  seen.clear();
  forEachTypeComp(*type, showAnswers);
  EXPECT_EQ(seen, "a:01000001 b:01001000 :00000000 c:10110100 d:10100010 ");
  seen.clear();
  forEachTypeCompRevOrd(*type, showAnswers);
  EXPECT_EQ(seen, "d:10100010 c:10110100 :00000000 b:01001000 a:01000001 ");
}

TEST_F(TypeQueryWalk, ExtensionQueriesWithTheMarkerInFront)
{
  int32_t record = define("S", TYP_SEQ);
  marker(record);
  comp(record, "a", TYP_NULL);
  comp(record, "b", TYP_NULL);
  start();
  TestType type(module, record);
  seen.clear();
  forEachTypeComp(*type, showAnswers);
  EXPECT_EQ(seen, ":00000001 a:10110101 b:10100100 ");
}

TEST_F(TypeQueryWalk, ExtensionQueriesWithoutMarker)
{
  int32_t record = define("S", TYP_SEQ);
  comp(record, "a", TYP_NULL);
  comp(record, "b", TYP_NULL, TCS_OPTIONAL);
  start();
  TestType type(module, record);
  seen.clear();
  forEachTypeComp(*type, showAnswers);
  EXPECT_EQ(seen, "a:01000001 b:01000000 ");
  EXPECT_EQ(getTypeExtensionmarkerCompNbr(*type), -1);
}

// The bit of a list tells of its size: its element is all root.
TEST_F(TypeQueryWalk, ExtensionQueriesOfAList)
{
  for (int mainType : {TYP_SEQOF, TYP_SETOF}) {
    int32_t record = define(mainType == TYP_SEQOF ? "L" : "M", mainType);
    comp(record, "", TYP_NULL);
    at(record).nodeFlags |= NF_EXTENSIBLE;
    start();
    TestType type(module, record);
    seen.clear();
    forTypeElem(*type, [](AsnType &father, AsnType &elem) {
      showAnswers(father, elem, 0);
    });
    EXPECT_EQ(seen.substr(0, 8), ":0100000");
    EXPECT_EQ(getTypeExtensionmarkerCompNbr(*type), -1);
  }
}

// A later marker is no addition, what follows it is.
TEST_F(TypeQueryWalk, ExtensionQueriesWithTwoMarkers)
{
  int32_t record = define("S", TYP_SEQ);
  comp(record, "a", TYP_NULL);
  marker(record);
  comp(record, "b", TYP_NULL);
  marker(record);
  comp(record, "c", TYP_NULL, TCS_OPTIONAL);
  start();
  TestType type(module, record);
  seen.clear();
  forEachTypeComp(*type, showAnswers);
  EXPECT_EQ(seen, "a:01001001 :00000000 b:10110100 :10000000 c:10100010 ");
}

TEST_F(TypeQueryWalk, ExtensionQueriesWithoutFather)
{
  AsnType comp;
  EXPECT_FALSE(isTypeExtension(comp));
  EXPECT_FALSE(isExtensionRootComponent(nullptr, comp));
  EXPECT_FALSE(isExtensionAdditionComponent(nullptr, comp));
  EXPECT_FALSE(isFirstExtensionAdditionComponent(nullptr, comp));
  EXPECT_FALSE(isLastExtensionRootComponent(nullptr, comp));
  EXPECT_TRUE(isFirstActualTypeComp(comp));
  comp.compStatus = TCS_HEADER;
  EXPECT_FALSE(isFirstActualTypeComp(comp));
}

TEST_F(TypeQueryWalk, MarkerIsFoundOnce)
{
  int32_t record = define("S", TYP_SEQ);
  comp(record, "a", TYP_NULL);
  marker(record);
  start();
  TestType type(module, record);
  EXPECT_EQ(type->extMarkerCompNbr, -1);
  EXPECT_EQ(getTypeExtensionmarkerCompNbr(*type), 1);
  type->extMarkerCompNbr = 7;
  EXPECT_EQ(getTypeExtensionmarkerCompNbr(*type), 7);
}

// --- numbers ----------------------------------------------------------------

constexpr char warningOfM[] =
    "asn/m.asn:12:BET Warning\n"
    "** Type constraint information does not fit in 32 bits\n"
    "** label\n";

static int32_t narrowed(int64_t value, const AsnModule *module,
                        const std::string &expectedWarning)
{
  testing::internal::CaptureStderr();
  int32_t result = int64ToInt32(stxInt64(value), module, 12, "label");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), expectedWarning) << value;
  return result;
}

TEST_F(TypeQueryWalk, NumbersThatFit)
{
  start();
  verboseEx = 2;
  for (int64_t value : {int64_t{0}, int64_t{-1}, int64_t{INT32_MAX},
                        int64_t{INT32_MIN}, int64_t{INT32_MAX} - 1})
    EXPECT_EQ(narrowed(value, &module, ""), value);
  EXPECT_EQ(narrowed(INT64_MAX, &module, ""), INT32_MAX);
  EXPECT_EQ(narrowed(INT64_MIN, &module, ""), INT32_MIN);
}

TEST_F(TypeQueryWalk, NumbersThatDoNotFit)
{
  start();
  for (int64_t value :
       {int64_t{INT32_MAX} + 1, int64_t{1} << 32, -(int64_t{1} << 32) - 1,
        INT64_MAX - 1, INT64_MIN + 1}) {
    verboseEx = 2;
    EXPECT_EQ(narrowed(value, &module, warningOfM), 0);
    EXPECT_EQ(narrowed(value, nullptr, ""), 0);
    verboseEx = 1;
    EXPECT_EQ(narrowed(value, &module, ""), 0);
  }
}

TEST_F(TypeQueryWalk, WarningAlone)
{
  start();
  for (int verbosity : {0, 1, 2, 3}) {
    verboseEx = verbosity;
    testing::internal::CaptureStderr();
    int64Warning(module, 12, "label");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              verbosity >= 2 ? warningOfM : "");
  }
}

TEST_F(TypeQueryWalk, NumbersThatPassWrongly)
{
  // With a high word of -1 the low word is taken, unseen.
  start();
  verboseEx = 2;
  EXPECT_EQ(narrowed(int64_t{INT32_MIN} - 1, &module, ""), INT32_MAX);
  EXPECT_EQ(narrowed(-(int64_t{1} << 32), &module, ""), 0);
  EXPECT_EQ(narrowed(-(int64_t{1} << 32) + 1, &module, ""), 1);
}

TEST_F(TypeQueryWalk, SizeEndpoints)
{
  TNode node = stxNewTNode(TYP_OCTSTR);
  stxSetBounds(node, 2, 9);
  int32_t record = define("A", node);
  node.typeOptions.sizeLimit = 5;
  int32_t limited = define("B", node);
  start();
  int32_t lower, upper, limit;
  getSizeEndpoints(*TestType(module, record), lower, upper, limit);
  EXPECT_EQ(lower, 2);
  EXPECT_EQ(upper, 9);
  EXPECT_EQ(limit, 9);
  getSizeEndpoints(*TestType(module, limited), lower, upper, limit);
  EXPECT_EQ(upper, 9);
  EXPECT_EQ(limit, 5);
  sint64 wideLower, wideUpper, wideLimit;
  getInt64SizeEndpoints(*TestType(module, record), wideLower, wideUpper,
                        wideLimit);
  EXPECT_EQ(i64cmpl(wideLower, 2), 0);
  EXPECT_EQ(i64cmpl(wideUpper, 9), 0);
  EXPECT_EQ(i64cmpl(wideLimit, 9), 0);
  getInt64SizeEndpoints(*TestType(module, limited), wideLower, wideUpper,
                        wideLimit);
  EXPECT_EQ(i64cmpl(wideUpper, 9), 0);
  EXPECT_EQ(i64cmpl(wideLimit, 5), 0);
}

// The limit is the base's, whatever the node itself has.
TEST_F(TypeQueryWalk, SizeLimitOfTheBase)
{
  TNode node = stxNewTNode(TYP_OCTSTR);
  stxSetBounds(node, 2, 9);
  node.typeOptions.sizeLimit = 5;
  int32_t base = define("A", node);
  node = stxNewSynonym(base);
  stxSetBounds(node, 3, 8);
  node.typeOptions.sizeLimit = 7;
  int32_t record = define("B", node);
  start();
  int32_t lower, upper, limit;
  getSizeEndpoints(*TestType(module, record), lower, upper, limit);
  EXPECT_EQ(lower, 3);
  EXPECT_EQ(upper, 8);
  EXPECT_EQ(limit, 5);
  sint64 wideLower, wideUpper, wideLimit;
  getInt64SizeEndpoints(*TestType(module, record), wideLower, wideUpper,
                        wideLimit);
  EXPECT_EQ(i64cmpl(wideLimit, 5), 0);
}

TEST_F(TypeQueryWalk, SizeEndpointsThatDoNotFit)
{
  TNode node = stxNewTNode(TYP_OCTSTR);
  node.line = 12;
  stxSetBounds(node, int64_t{1} << 40, int64_t{1} << 41);
  int32_t record = define("A", node);
  start();
  verboseEx = 2;
  TestType type(module, record);
  int32_t lower, upper, limit;
  testing::internal::CaptureStderr();
  getSizeEndpoints(*type, lower, upper, limit);
  std::string text = testing::internal::GetCapturedStderr();
  size_t first = text.find("asn/m.asn:12:");
  size_t lowerAt = text.find("** Lower size endpoint\n");
  size_t upperAt = text.find("** Upper size endpoint\n");
  EXPECT_EQ(first, 0u);
  EXPECT_LT(lowerAt, upperAt);
  EXPECT_NE(upperAt, std::string::npos);
  EXPECT_EQ(lower, 0);
  EXPECT_EQ(upper, 0);
  EXPECT_EQ(limit, 0);
}

// --- stamps -----------------------------------------------------------------

static int32_t stampOf(ModRec *module, int32_t record)
{
  readRec(module, REC_TNODE, record);
  return tNode.stamp;
}

TEST_F(TypeQueryWalk, StampsOfNodeAndBase)
{
  int32_t base = stxDefineType(other, "Base", stxNewTNode(TYP_NULL));
  int32_t record = define("Mine", stxNewSynonym(base, 2));
  start();
  TestType type(module, record);
  setTypeStamp(*type, 20);
  setBaseTypeStamp(*type, 30);
  EXPECT_EQ(stampOf(module.rec, record), 20);
  EXPECT_EQ(stampOf(otherModule.rec, base), 30);
  EXPECT_EQ(type->stamp, 20);
  // What others wrote is found.
  readRec(module.rec, REC_TNODE, record);
  tNode.stamp = 21;
  writeRec(module.rec, REC_TNODE, record);
  EXPECT_EQ(type->stamp, 20);
  EXPECT_EQ(getTypeStamp(*type), 21);
  EXPECT_EQ(type->stamp, 21);
  EXPECT_EQ(recJustRead[REC_TNODE].index, record);
  EXPECT_EQ(getBaseTypeStamp(*type), 30);
  EXPECT_EQ(recJustRead[REC_TNODE].index, base);
}

TEST_F(TypeQueryWalk, StampsOfInstances)
{
  TNode body = stxNewTNode(TYP_SEQ);
  body.compStatus = -TCS_HEADER;
  int32_t parameterised = stxType(tree, body);
  TNode node = stxNewSynonym(parameterised);
  node.fieldRef = 1;
  int32_t instance = define("Inst", node);
  int32_t father = define("S", TYP_SEQ);
  int32_t reference = comp(father, "a", stxNewSynonym(instance));
  start();
  // The instance is stamped with its body, by itself and by a reference.
  {
    TestType type(module, instance);
    setBaseTypeStamp(*type, 30);
  }
  EXPECT_EQ(stampOf(module.rec, parameterised), 30);
  EXPECT_EQ(stampOf(module.rec, instance), 30);
  TestType structure(module, father);
  forEachTypeComp(*structure, [](AsnType &, AsnType &comp_, int) {
    setBaseTypeStamp(comp_, 40);
  });
  EXPECT_EQ(stampOf(module.rec, parameterised), 40);
  EXPECT_EQ(stampOf(module.rec, instance), 40);
  EXPECT_EQ(stampOf(module.rec, reference), stampGenerated);
}

// A selection leads to no definition: its base is stamped alone.
TEST_F(TypeQueryWalk, StampsOfSelections)
{
  TNode body = stxNewTNode(TYP_SEQ);
  body.compStatus = -TCS_HEADER;
  int32_t inner = stxType(tree, body);
  int32_t choice = define("C", TYP_CHOICE);
  int32_t alternative = comp(choice, "a", stxNewSynonym(inner));
  TNode node = stxNewTNode(TYP_SELECTION);
  node.ref = choice;
  node.refModule = 1;
  node.fieldRef = stxLink(tree, stxNewLink(alternative));
  int32_t selection = define("Sel", node);
  start();
  TestType type(module, selection);
  setBaseTypeStamp(*type, 30);
  EXPECT_EQ(stampOf(module.rec, inner), 30);
  EXPECT_EQ(stampOf(module.rec, alternative), stampGenerated);
  EXPECT_EQ(stampOf(module.rec, selection), 30);
}
