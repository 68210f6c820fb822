// Visits of values.

#include "base/diag.h"
#include "model/number.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "model/valuetext.h"
#include "support/valueviews.h"
#include <functional>

using testing::ExitedWithCode;

static const char noCallBack[] = "Call-back function not defined";

// What the call-backs of a test have seen.
static std::string seen;

static std::string refOf(const AsnValue &value)
{
  std::string text;
  return getValueRef(text, nullptr, value, nullptr);
}

static std::string numberOf(const AsnValue &value)
{
  std::string text;
  return integerValueStri(text, nullptr, value, nullptr);
}

static void noteValue(AsnValue &value, int index)
{
  seen += refOf(value) + std::to_string(index) + " ";
}

static void noteItem(AsnType &, AsnValue &value, int index)
{
  seen +=
      refOf(value) + "=" + numberOf(value) + "/" + std::to_string(index) + " ";
}

static void noteComp(AsnValue &value, AsnValue &comp, int index)
{
  EXPECT_EQ(comp.father, &value);
  EXPECT_EQ(value.childIndex, index);
  seen +=
      refOf(comp) + "=" + numberOf(comp) + "/" + std::to_string(index) + " ";
}

struct ValueIter : ValueViews {
  ValueIter() { seen.clear(); }

  VNode governed(int64_t number)
  {
    return stxNewInteger(stxType(a, stxNewTNode(TYP_INTEGER)), number);
  }
  static std::string take()
  {
    std::string text;
    text.swap(seen);
    return text;
  }
};

// --- definitions of a module ------------------------------------------------

struct ModuleValues : ValueIter {
  ModuleValues()
  {
    integerOf(1, "a");
    stxValueAt(a, integerOf(2, "hidden")).hidden = 1;
    stxValueAt(a, integerOf(3, "item")).valueStatus = 0;
    stxValueAt(a, integerOf(4, "v")).valueFlags = VFL_VISIBLE;
    integerOf(5, "z");
  }
};

TEST_F(ModuleValues, Each)
{
  start();
  forEachValue(mod, noteValue);
  EXPECT_EQ(take(), "a0 v1 z2 ");
}

TEST_F(ModuleValues, VisibleOnes)
{
  start();
  forEachVisValue(mod, noteValue);
  EXPECT_EQ(take(), "a0 v1 z2 ");
  modA->visibilityMode = 1;
  forEachVisValue(mod, noteValue);
  EXPECT_EQ(take(), "v0 ");
}

static void walkInside(AsnValue &value, int index)
{
  noteValue(value, index);
  if (index == 0)
    forEachValue(*value.mod, noteValue);
}

TEST_F(ModuleValues, WalksNest)
{
  start();
  mod.cursors.values[SELECT_VALUES] = 77;
  forEachValue(mod, walkInside);
  EXPECT_EQ(take(), "a0 a0 v1 z2 v1 z2 ");
  EXPECT_EQ(mod.cursors.values[SELECT_VALUES], 77);
}

TEST_F(ModuleValues, EmptyModule)
{
  start();
  AsnModule other;
  initAsnModule(other, *modB);
  forEachValue(other, noteValue);
  forEachVisValue(other, noteValue);
  EXPECT_EQ(take(), "");
}

TEST_F(ValueIter, CyclicValues)
{
  int32_t index = integerOf(1);
  stxValueAt(a, index).next = index;
  start();
  EXPECT_EXIT(forEachValue(mod, noteValue), ExitedWithCode(2), inconsistent);
}

TEST_F(ValueIter, ByRecNr)
{
  int32_t value = integerOf(1, "value");
  int32_t hidden = integerOf(2, "hidden");
  stxValueAt(a, hidden).hidden = 1;
  int32_t item = integerOf(3, "item");
  stxValueAt(a, item).valueStatus = 1;
  start();
  auto visit = [&](int32_t index, int kind) {
    forValueByRecNr(mod, noteValue, index, kind);
    return take();
  };
  EXPECT_EQ(visit(value, SELECT_VALUES), "value0 ");
  EXPECT_EQ(mod.cursors.values[SELECT_VALUES], value);
  EXPECT_EQ(visit(hidden, SELECT_VALUES), "hidden0 ");
  EXPECT_EQ(visit(item, SELECT_NAMED_NUMBERS), "item0 ");
  EXPECT_EQ(mod.cursors.values[SELECT_NAMED_NUMBERS], item);
  // The next one that would fit is not taken.
  EXPECT_EQ(visit(value, SELECT_NAMED_NUMBERS), "");
  EXPECT_EQ(mod.cursors.values[SELECT_NAMED_NUMBERS], value);
  EXPECT_EQ(visit(item, SELECT_VALUES), "");
  for (int kind : {1, 4, 8})
    EXPECT_EQ(visit(value, kind), "") << kind;
}

// --- items ------------------------------------------------------------------

struct NamedNumbers : ValueIter {
  int32_t enumeration(const std::vector<int64_t> &root,
                      const std::vector<int64_t> *additions = nullptr)
  {
    int32_t index = stxDefineType(a, "E", stxNewTNode(TYP_ENUM));
    int number = 0;
    for (int64_t item : root)
      stxAddNamedNumber(a, index, "r" + std::to_string(number++), item);
    if (additions) {
      stxAddNamedMarker(a, index);
      for (int64_t item : *additions)
        stxAddNamedNumber(a, index, "x" + std::to_string(number++), item);
    }
    return index;
  }
};

TEST_F(NamedNumbers, MarkersArePassedOver)
{
  std::vector<int64_t> more = {9};
  int32_t index = enumeration({5, -2}, &more);
  start();
  forEachNamedNumber(typeView(index), noteItem);
  EXPECT_EQ(take(), "r0=5/0 r1=-2/1 x2=9/2 ");
}

TEST_F(NamedNumbers, MarkersAreNotCounted)
{
  std::vector<int64_t> more = {9};
  int32_t index = enumeration({5, -2}, &more);
  start();
  forEachNamedNumberExtMark(typeView(index), noteItem);
  EXPECT_EQ(take(), "r0=5/0 r1=-2/1 =0/-1 x2=9/2 ");
}

TEST_F(NamedNumbers, IntegersAndBitStrings)
{
  for (int mainType : {TYP_INTEGER, TYP_BITSTR, TYP_OCTSTR}) {
    int32_t index = stxDefineType(a, "T", stxNewTNode(mainType));
    stxAddNamedNumber(a, index, "one", 1);
    start();
    forEachNamedNumber(typeView(index), noteItem);
    EXPECT_EQ(take(), mainType == TYP_OCTSTR ? "" : "one=1/0 ");
  }
}

TEST_F(NamedNumbers, OfABaseInAnotherModule)
{
  stxStri(a, "something else");
  int32_t far = stxDefineType(b, "Far", stxNewTNode(TYP_ENUM));
  stxAddNamedNumber(b, far, "faraway", 4);
  int32_t index = stxDefineType(a, "Near", stxNewSynonym(far, 2));
  start();
  forEachNamedNumber(typeView(index), noteItem);
  EXPECT_EQ(take(), "faraway=4/0 ");
}

static AsnType *firstGovernor;

static void noteGovernor(AsnType &, AsnValue &value, int index)
{
  if (index == 0)
    firstGovernor = value.governor;
  EXPECT_EQ(value.governor, firstGovernor);
  EXPECT_EQ(value.compStatus, 0);
}

TEST_F(NamedNumbers, OneGovernorServesTheWalk)
{
  int32_t index = enumeration({1, 2, 3});
  start();
  forEachNamedNumber(typeView(index), noteGovernor);
  EXPECT_NE(firstGovernor, nullptr);
}

static void walkItemsInside(AsnType &type, AsnValue &value, int index)
{
  noteItem(type, value, index);
  if (index == 0)
    forEachNamedNumber(type, noteItem);
}

TEST_F(NamedNumbers, WalksNest)
{
  int32_t index = enumeration({1, 2});
  start();
  forEachNamedNumber(typeView(index), walkItemsInside);
  EXPECT_EQ(take(), "r0=1/0 r0=1/0 r1=2/1 r1=2/1 ");
}

TEST_F(NamedNumbers, CyclicItems)
{
  int32_t index = enumeration({1});
  int32_t item = stxTypeAt(a, index).namedNumbers;
  stxValueAt(a, item).next = item;
  start();
  AsnType &type = typeView(index);
  EXPECT_EXIT(forEachNamedNumber(type, noteItem), ExitedWithCode(2),
              inconsistent);
}

// --- sorted arrays ----------------------------------------------------------

static void noteArray(AsnType &, int rootCount, const int32_t *root,
                      bool rootIsContinued, int addCount,
                      const int32_t *additions, bool addIsContinued)
{
  seen += std::to_string(rootCount) + ":";
  for (int i = 0; i < rootCount; ++i)
    seen += " " + std::to_string(root[i]);
  seen += rootIsContinued ? " cont" : " gaps";
  seen += " / " + std::to_string(addCount) + ":";
  for (int i = 0; i < addCount; ++i)
    seen += " " + std::to_string(additions[i]);
  seen += addIsContinued ? " cont" : " gaps";
  EXPECT_EQ(additions == nullptr, addCount < 0);
}

struct SortedArray : NamedNumbers {
  std::string sorted(int32_t index)
  {
    start();
    forSortedEnumeratedValueArray(typeView(index), noteArray);
    return take();
  }
};

TEST_F(SortedArray, WithoutMarker)
{
  EXPECT_EQ(sorted(enumeration({3, 1, 2})), "3: 1 2 3 cont / -1: gaps");
  EXPECT_EQ(sorted(enumeration({3, 1})), "2: 1 3 gaps / -1: gaps");
  EXPECT_EQ(sorted(enumeration({8})), "1: 8 cont / -1: gaps");
}

TEST_F(SortedArray, MarkerWithoutAdditions)
{
  std::vector<int64_t> none;
  EXPECT_EQ(sorted(enumeration({0, 1}, &none)), "2: 0 1 cont / 0: gaps");
}

TEST_F(SortedArray, PartsAreSortedApart)
{
  std::vector<int64_t> more = {7, -9, 6};
  EXPECT_EQ(sorted(enumeration({5, 4}, &more)), "2: 4 5 cont / 3: -9 6 7 gaps");
  std::vector<int64_t> continued = {3, 2};
  EXPECT_EQ(sorted(enumeration({5, 0}, &continued)),
            "2: 0 5 gaps / 2: 2 3 cont");
}

TEST_F(SortedArray, LimitsSortWithoutOverflow)
{
  EXPECT_EQ(sorted(enumeration({2147483646, -2147483647, 0})),
            "3: -2147483647 0 2147483646 gaps / -1: gaps");
}

TEST_F(SortedArray, TooLargeItem)
{
  int level = verboseEx;
  int32_t index = enumeration({INT64_C(1) << 35, 1});
  verboseEx = 2;
  testing::internal::CaptureStderr();
  EXPECT_EQ(sorted(index), "2: 0 1 cont / -1: gaps");
  std::string text = testing::internal::GetCapturedStderr();
  verboseEx = level;
  EXPECT_EQ(text, "asn/moda.asn:0:BET Warning\n"
                  "** Type constraint information does not fit in 32 bits\n"
                  "** Too large enumerated item\n");
}

// The warning names the place of the item.
TEST_F(SortedArray, TooLargeItemOfAnotherModule)
{
  int level = verboseEx;
  int32_t far = stxDefineType(b, "Far", stxNewTNode(TYP_ENUM));
  int32_t item = stxAddNamedNumber(b, far, "large", -(INT64_C(1) << 35));
  stxValueAt(b, item).line = 31;
  int32_t near = stxDefineType(a, "Near", stxNewSynonym(far, 2));
  verboseEx = 2;
  testing::internal::CaptureStderr();
  EXPECT_EQ(sorted(near), "1: 0 cont / -1: gaps");
  std::string text = testing::internal::GetCapturedStderr();
  verboseEx = level;
  EXPECT_TRUE(text.starts_with("asn/modb.asn:31:BET Warning\n")) << text;
}

TEST_F(SortedArray, OtherTypes)
{
  int32_t index = stxDefineType(a, "T", stxNewTNode(TYP_INTEGER));
  stxAddNamedNumber(a, index, "one", 1);
  EXPECT_EQ(sorted(index), "");
}

TEST(IsContinuedValueSet, Values)
{
  static const int32_t values[] = {-1, 0, 1, 3, 2147483647, INT32_MIN};
  EXPECT_FALSE(isContinuedValueSet(values, 0));
  EXPECT_TRUE(isContinuedValueSet(values, 1));
  EXPECT_TRUE(isContinuedValueSet(values, 3));
  EXPECT_FALSE(isContinuedValueSet(values, 4));
  EXPECT_FALSE(isContinuedValueSet(values + 4, 2));
  EXPECT_FALSE(isContinuedValueSet(nullptr, -1));
}

struct EnumBounds : NamedNumbers {
  std::string bounds(int32_t index)
  {
    start();
    int32_t all[4];
    getExtendedEnumeratedBounds(typeView(index), all[0], all[1], all[2],
                                all[3]);
    std::string text;
    for (int32_t bound : all)
      text += (bound == INT32_MIN ? "min" : std::to_string(bound)) + " ";
    return text;
  }
};

TEST_F(EnumBounds, RootAndAdditions)
{
  std::vector<int64_t> more = {40, 30, 35}, none;
  EXPECT_EQ(bounds(enumeration({5, -3, 2}, &more)), "-3 5 30 40 ");
  EXPECT_EQ(bounds(enumeration({5}, &none)), "5 5 min min ");
  EXPECT_EQ(bounds(enumeration({5, 6})), "5 6 min min ");
  EXPECT_EQ(bounds(enumeration({}, &more)), "min min 30 40 ");
}

TEST_F(EnumBounds, OfASynonym)
{
  int32_t near = stxDefineType(a, "S", stxNewSynonym(enumeration({1, 2})));
  EXPECT_EQ(bounds(near), "1 2 min min ");
  int32_t far = stxDefineType(b, "Far", stxNewTNode(TYP_ENUM));
  stxAddNamedNumber(b, far, "four", 4);
  EXPECT_EQ(bounds(stxDefineType(a, "F", stxNewSynonym(far, 2))),
            "4 4 min min ");
}

TEST_F(EnumBounds, LargeItemsWarn)
{
  int level = verboseEx;
  std::vector<int64_t> more = {INT64_C(1) << 36};
  int32_t index = enumeration({0, INT64_C(1) << 35}, &more);
  verboseEx = 2;
  testing::internal::CaptureStderr();
  EXPECT_EQ(bounds(index), "0 0 0 0 ");
  std::string text = testing::internal::GetCapturedStderr();
  verboseEx = level;
  EXPECT_NE(text.find("** Large enumeration item value\n"), std::string::npos);
  EXPECT_NE(text.find("** Large extension addition enumeration item\n"),
            std::string::npos);
}

// --- components and elements ------------------------------------------------

struct ValueComps : ValueIter {
  AsnValue &made(int mainType)
  {
    int32_t index = valueOf(mainType, stxNewVNode(mainType, 0));
    stxAddChild(a, index, "x", governed(4));
    VNode second = governed(5);
    second.valueStatus = 1;
    stxAddChild(a, index, "y", second);
    start();
    return view(index);
  }
};

TEST_F(ValueComps, ByMainType)
{
  AsnValue &value = made(TYP_SEQ);
  for (int mainType = 0; mainType <= 42; ++mainType) {
    value.base.mainType = static_cast<uint8_t>(mainType);
    bool comps = mainType == 7 || mainType == 9 || mainType == 11 ||
                 mainType == 13 || mainType == 25 || mainType == 28 ||
                 mainType == 29 || mainType == 31;
    forEachValueComp(value, noteComp);
    EXPECT_EQ(take(), comps ? "x=4/0 y=5/1 " : "") << mainType;
    bool elements = mainType == 8 || mainType == 10;
    forEachValueElem(value, noteComp);
    EXPECT_EQ(take(), elements ? "x=4/0 y=5/1 " : "") << mainType;
  }
}

static void walkCompsInside(AsnValue &value, AsnValue &comp, int index)
{
  noteComp(value, comp, index);
  if (index == 0)
    forEachValueComp(value, noteComp);
  EXPECT_EQ(value.childIndex, index);
}

TEST_F(ValueComps, WalksNest)
{
  AsnValue &value = made(TYP_SEQ);
  forEachValueComp(value, walkCompsInside);
  EXPECT_EQ(take(), "x=4/0 x=4/0 y=5/1 y=5/1 ");
  EXPECT_EQ(value.childIndex, 0);
}

TEST_F(ValueComps, EmptyValue)
{
  int32_t index = valueOf(TYP_SEQ, stxNewVNode(TYP_SEQ, 0));
  start();
  forEachValueComp(view(index), noteComp);
  EXPECT_EQ(take(), "");
}

TEST_F(ValueComps, OfAValueInAnotherModule)
{
  VNode node = stxNewVNode(TYP_SEQ, stxType(b, stxNewTNode(TYP_SEQ)));
  int32_t far = stxDefineValue(b, "far", node);
  int32_t integer = stxType(b, stxNewTNode(TYP_INTEGER));
  stxAddChild(b, far, "inside", stxNewInteger(integer, 6));
  int32_t index = valueOf(TYP_SEQ, ref(far, 2));
  start();
  forEachValueComp(view(index), noteComp);
  EXPECT_EQ(take(), "inside=6/0 ");
}

TEST_F(ValueComps, CyclicChain)
{
  int32_t index = valueOf(TYP_SEQ, stxNewVNode(TYP_SEQ, 0));
  int32_t child = stxAddChild(a, index, "x", governed(4));
  stxValueAt(a, child).next = child;
  start();
  AsnValue &value = view(index);
  EXPECT_EXIT(forEachValueComp(value, noteComp), ExitedWithCode(2),
              inconsistent);
}

// --- present and absent components ------------------------------------------

static void notePresence(AsnValue &, AsnType &typeComp, int compNbr,
                         AsnValue *comp, int presentNbr)
{
  std::string text;
  seen += getTypeCompRef(text, nullptr, typeComp, nullptr) +
          std::to_string(compNbr) + ":" + (comp ? numberOf(*comp) : "-") + "/" +
          std::to_string(presentNbr) + " ";
}

struct Presence : ValueIter {
  int32_t sequence(StxTree &tree)
  {
    int32_t type = stxDefineType(tree, "S", stxNewTNode(TYP_SEQ));
    for (const char *name : {"a", "b", "c"}) {
      TNode comp = stxNewTNode(TYP_INTEGER);
      comp.compStatus = TCS_OPTIONAL;
      stxAddComp(tree, type, name, comp);
    }
    return type;
  }
  int32_t value(int32_t type, const std::vector<const char *> &names)
  {
    int32_t index = stxDefineValue(a, "v", stxNewVNode(TYP_SEQ, type));
    int64_t number = 10;
    for (const char *name : names)
      stxAddChild(a, index, name, governed(number++));
    return index;
  }
  std::string visited(int32_t index)
  {
    start();
    forEachPresentOrAbsentValueComp(view(index), notePresence);
    return take();
  }
};

TEST_F(Presence, SomeComponents)
{
  int32_t type = sequence(a);
  EXPECT_EQ(visited(value(type, {"a", "c"})), "a0:10/0 b1:-/-1 c2:11/1 ");
  EXPECT_EQ(visited(value(type, {"b"})), "a0:-/-1 b1:10/0 c2:-/-1 ");
  EXPECT_EQ(visited(value(type, {})), "a0:-/-1 b1:-/-1 c2:-/-1 ");
}

// The values run beside: what is out of order holds up all behind it.
TEST_F(Presence, ComponentsOutOfOrder)
{
  EXPECT_EQ(visited(value(sequence(a), {"b", "a"})),
            "a0:-/-1 b1:10/0 c2:-/-1 ");
}

TEST_F(Presence, GovernorInAnotherModule)
{
  int32_t far = sequence(b);
  int32_t type = stxDefineType(a, "Near", stxNewSynonym(far, 2));
  EXPECT_EQ(visited(value(type, {"b"})), "a0:-/-1 b1:10/0 c2:-/-1 ");
}

TEST_F(Presence, SynonymInTheModule)
{
  int32_t type = stxDefineType(a, "Near", stxNewSynonym(sequence(a)));
  EXPECT_EQ(visited(value(type, {"b"})), "a0:-/-1 b1:10/0 c2:-/-1 ");
}

TEST_F(Presence, OtherValues)
{
  EXPECT_EQ(visited(integerOf(1)), "");
}

static AsnValue *innerValue;

static void walkPresenceInside(AsnValue &value, AsnType &typeComp, int compNbr,
                               AsnValue *comp, int presentNbr)
{
  notePresence(value, typeComp, compNbr, comp, presentNbr);
  if (compNbr == 0) {
    seen += "[ ";
    forEachPresentOrAbsentValueComp(*innerValue, notePresence);
    seen += "] ";
  }
}

// The count of those present is not put back: 2 of the inner walk go on.
TEST_F(Presence, WalksNestButForTheCount)
{
  int32_t type = sequence(a);
  int32_t outer = value(type, {"a", "b", "c"});
  int32_t inner = value(type, {"b", "c"});
  start();
  innerValue = &view(inner);
  forEachPresentOrAbsentValueComp(view(outer), walkPresenceInside);
  EXPECT_EQ(take(), "a0:10/0 [ a0:-/-1 b1:10/0 c2:11/1 ] b1:11/2 c2:12/3 ");
}

// --- values of a type -------------------------------------------------------

static void noteDefault(AsnType &type, AsnValue &value)
{
  EXPECT_EQ(value.mod, type.mod);
  seen += refOf(value) + "=" + numberOf(value) + " ";
  readRec(value.baseModRec, REC_VNODE, value.baseRecNr);
  value.mod->cursors.values[SELECT_VALUES] = 99;
}

TEST_F(ValueIter, DefaultValue)
{
  int32_t base = integerOf(7, "seven");
  int32_t literal = stxValue(a, governed(8));
  int32_t component = stxValue(a, governed(9));
  stxValueAt(a, component).valueStatus = 0;
  VNode node = ref(base);
  node.governor = stxValueAt(a, base).governor;
  node.governorModule = 1;
  int32_t reference = stxDefineValue(a, "refersTo", node);
  int32_t type = stxDefineType(a, "T", stxNewTNode(TYP_INTEGER));
  start();
  AsnType &view1 = typeView(type);
  forDefaultValue(view1, noteDefault);
  EXPECT_EQ(take(), "");
  view1.defaultValue = literal;
  forDefaultValue(view1, noteDefault);
  EXPECT_EQ(take(), "=8 ");
  // Whatever its status.
  view1.defaultValue = component;
  forDefaultValue(view1, noteDefault);
  EXPECT_EQ(take(), "=9 ");
  view1.defaultValue = reference;
  readRec(modA, REC_TNODE, 1);
  readRec(modA, REC_VNODE, literal);
  mod.cursors.values[SELECT_VALUES] = 5;
  forDefaultValue(view1, noteDefault);
  EXPECT_EQ(take(), "refersTo=7 ");
  EXPECT_EQ(mod.cursors.values[SELECT_VALUES], 5);
  EXPECT_EQ(recJustRead[REC_TNODE].index, 1);
  EXPECT_EQ(recJustRead[REC_VNODE].index, literal);
}

TEST_F(ValueIter, DefaultValueWithoutGovernor)
{
  int32_t value = stxValue(a, stxNewInteger(0, 8));
  int32_t type = stxDefineType(a, "T", stxNewTNode(TYP_INTEGER));
  start();
  AsnType &view1 = typeView(type);
  view1.defaultValue = value;
  EXPECT_EXIT(forDefaultValue(view1, noteDefault), ExitedWithCode(2),
              "Cannot obtain a default value\\.");
}

// --- what a value holds -----------------------------------------------------

static void noteString(AsnValue &, int length, const char *text)
{
  seen += std::string(text) + "/" + std::to_string(length) + " ";
}

static void noteTime(AsnValue &, const TimeRecord &time)
{
  seen += std::to_string(time.year);
}

static void noteObjId(AsnValue &, int count, const int32_t *numbers,
                      const char *const *names)
{
  for (int i = 0; i < count; ++i)
    seen += std::to_string(numbers[i]) + (names[i] ? names[i] : "-") + " ";
}

TEST_F(ValueIter, Strings)
{
  int32_t bits = valueOf(TYP_BITSTR, leaf8(a, TYP_BITSTR, "101"));
  int32_t octets = valueOf(TYP_OCTSTR, leaf8(a, TYP_OCTSTR, "ABC"));
  int32_t text = valueOf(TYP_IA5STR, leaf8(a, TYP_IA5STR, "hi"));
  int32_t number = integerOf(5);
  start();
  auto visit = [&](int32_t index) {
    AsnValue &value = view(index);
    forBitStringValueB(value, noteString);
    forBitStringValueX(value, noteString);
    forOctetStringValue(value, noteString);
    forCharacterStringValue(value, noteString);
    return take();
  };
  EXPECT_EQ(visit(bits), "101/3 A0/1 A0/1 ");
  EXPECT_EQ(visit(octets), "101010111100/12 ABC0/2 ABC0/2 ");
  EXPECT_EQ(visit(text), "hi/2 ");
  EXPECT_EQ(visit(number), "");
}

TEST_F(ValueIter, TimesAndObjectIdentifiers)
{
  int32_t time = valueOf(TYP_UTCTIME, leaf8(a, TYP_UTCTIME, "9912312359Z"));
  int32_t objId = valueOf(TYP_OBJID, stxNewVNode(TYP_OBJID, 0));
  stxAddChild(a, objId, "", stxNewInteger(0, 1));
  stxAddChild(a, objId, "", stxNewInteger(0, 8));
  int32_t broken = valueOf(TYP_OBJID, stxNewVNode(TYP_OBJID, 0));
  stxAddChild(a, broken, "", stxNewVNode(TYP_NULL, 0));
  start();
  for (int32_t index : {time, objId, broken}) {
    forTimeValue(view(index), noteTime);
    seen += ";";
    forObjectIdentifierValue(view(index), noteObjId);
    seen += ";";
  }
  EXPECT_EQ(take(), "1999;;;1iso 8- ;;;");
}

static void noteComment(AsnValue &, const char *text, int index)
{
  seen += std::string(text) + std::to_string(index) + " ";
}

TEST_F(ValueIter, CommentOptions)
{
  int32_t index = integerOf(1);
  stxValueTed(a, index, TED_BACK_END, "-BEO=//one");
  stxValueTed(a, index, TED_BACK_END, "-OTHER");
  stxValueTed(a, index, TED_FRONT_END, "-VNAME=x");
  stxValueTed(a, index, TED_BACK_END, "-BEO=//two");
  int32_t plain = integerOf(2);
  start();
  forEachValueCommentOption(view(index), noteComment);
  EXPECT_EQ(take(), "one0 two1 ");
  forEachValueCommentOption(view(plain), noteComment);
  EXPECT_EQ(take(), "");
}

// --- null call-backs --------------------------------------------------------

TEST_F(ValueIter, NullCallBacks)
{
  int32_t index = integerOf(1);
  int32_t typeIndex = stxDefineType(a, "T", stxNewTNode(TYP_BOOLEAN));
  start();
  AsnValue &v = view(index);
  AsnType &t = typeView(typeIndex);
  const std::vector<std::function<void()>> calls = {
      [&] { forEachValue(mod, nullptr); },
      [&] { forEachVisValue(mod, nullptr); },
      [&] { forValueByRecNr(mod, nullptr, index, 1); },
      [&] { forEachNamedNumber(t, nullptr); },
      [&] { forEachNamedNumberExtMark(t, nullptr); },
      [&] { forEachValueComp(v, nullptr); },
      [&] { forEachValueElem(v, nullptr); },
      [&] { forEachPresentOrAbsentValueComp(v, nullptr); },
      [&] { forDefaultValue(t, nullptr); },
      [&] { forSortedEnumeratedValueArray(t, nullptr); },
      [&] { forTypeEndpoints(t, nullptr); },
      [&] { forTimeValue(v, nullptr); },
      [&] { forObjectIdentifierValue(v, nullptr); },
      [&] { forEachValueCommentOption(v, nullptr); },
      [&] { forBitStringValueB(v, nullptr); },
      [&] { forBitStringValueX(v, nullptr); },
      [&] { forOctetStringValue(v, nullptr); },
      [&] { forCharacterStringValue(v, nullptr); },
  };
  for (size_t i = 0; i < calls.size(); ++i)
    EXPECT_EXIT(calls[i](), ExitedWithCode(2), noCallBack) << i;
}
