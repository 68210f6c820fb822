// Construction of values, their governors, node selection, plain reads.

#include "base/diag.h"
#include "model/number.h"
#include "support/valueviews.h"

using testing::ExitedWithCode;

struct AsnValues : ValueViews {
  static std::string nameOf(const FixRec &fix)
  {
    std::string text;
    return printFixRec(text, nullptr, fix, nullptr);
  }
  int32_t referenceTo(int32_t index, const char *name, int32_t module = 1)
  {
    VNode node = ref(index, module);
    node.governor = stxType(a, stxNewTNode(TYP_INTEGER));
    node.governorModule = 1;
    return stxDefineValue(a, name, node);
  }
};

// --- construction -----------------------------------------------------------

TEST_F(AsnValues, FreshView)
{
  start();
  AsnValue *value = newAsnValue(&mod, &mod);
  EXPECT_EQ(value->mod, &mod);
  EXPECT_EQ(getModuleOfValue(*value), &mod);
  EXPECT_TRUE(value->alive);
  EXPECT_EQ(getTypeOfValue(*value), nullptr);
  EXPECT_EQ(getBEValMetaRec(*value), nullptr);
  delAsnValue(value);
}

TEST_F(AsnValues, DeletionPassesOverWhatIsNoView)
{
  delAsnValue(nullptr);
  AsnValue value;
  value.compStatus = 7;
  delAsnValue(&value);
  EXPECT_EQ(value.compStatus, 7);
}

TEST_F(AsnValues, ViewsComeFromAFreeList)
{
  start();
  AsnValue *value = newAsnValue(&mod, &mod);
  value->stringLength = 9;
  delAsnValue(value);
  AsnValue *again = newAsnValue(&mod, &mod);
  EXPECT_EQ(again, value);
  EXPECT_EQ(again->stringLength, 0);
  delAsnValue(again);
}

// Each cache gives again what it got last.
TEST_F(AsnValues, DeletionTakesBackWhatTheViewOwns)
{
  int32_t index = integerOf(1);
  start();
  readRec(modA, REC_VNODE, index);
  AsnValue *value = newAsnValue(&mod, &mod);
  getValuePath(nullptr, *value, FIX_VALUE);
  AsnType *governor = value->governor;
  AsnModule *module = governor->mod;
  BEValMetaRec *record = value->metaRec;
  delAsnValue(value);
  AsnType *type = newAsnType(&mod, &mod);
  EXPECT_EQ(type, governor);
  AsnModule *other = newAsnModule(*modA);
  EXPECT_EQ(other, module);
  BEValMetaRec *again = newBEValMetaRec();
  EXPECT_EQ(again, record);
  delAsnType(type);
  delAsnModule(other);
  deleteBEValMetaRec(again);
}

TEST_F(AsnValues, PlainValue)
{
  int32_t index = integerOf(42, "answer");
  start();
  AsnValue &value = view(index);
  EXPECT_EQ(value.father, nullptr);
  EXPECT_EQ(value.compModRec, modA);
  EXPECT_EQ(value.compRecNr, index);
  EXPECT_EQ(value.baseModRec, modA);
  EXPECT_EQ(value.baseRecNr, index);
  EXPECT_EQ(nameOf(value.compFix), "answer");
  EXPECT_EQ(nameOf(value.baseFix), "answer");
  EXPECT_EQ(getValueMainType(value), TYP_INTEGER);
  EXPECT_EQ(getValueCompStatus(value), 2);
  EXPECT_EQ(getBaseValueCompStatus(value), 2);
  EXPECT_EQ(i64cmpl(payloadInt64(value.base), 42), 0);
  EXPECT_NE(getBEValMetaRec(value), nullptr);
  EXPECT_FALSE(isValueCommentOption(value));
  EXPECT_EQ(value.stringLength, 0);
}

TEST_F(AsnValues, ReferenceNamesItselfAndShowsTheEnd)
{
  int32_t base = integerOf(42, "base");
  stxValueAt(a, base).valueStatus = 3;
  int32_t middle = referenceTo(base, "middle");
  int32_t index = referenceTo(middle, "first");
  start();
  AsnValue &value = view(index);
  EXPECT_EQ(value.compRecNr, index);
  EXPECT_EQ(value.baseRecNr, base);
  EXPECT_EQ(nameOf(value.compFix), "first");
  EXPECT_EQ(nameOf(value.baseFix), "base");
  EXPECT_EQ(getValueMainType(value), TYP_INTEGER);
  EXPECT_EQ(getValueCompStatus(value), 2);
  EXPECT_EQ(getBaseValueCompStatus(value), 3);
}

TEST_F(AsnValues, ReferenceIntoAnotherModule)
{
  VNode node = stxNewInteger(stxType(b, stxNewTNode(TYP_INTEGER)), 8);
  int32_t far = stxDefineValue(b, "far", node);
  int32_t index = referenceTo(far, "near", 2);
  start();
  AsnValue &value = view(index);
  EXPECT_EQ(value.compModRec, modA);
  EXPECT_EQ(value.baseModRec, modB);
  EXPECT_EQ(value.baseRecNr, far);
  EXPECT_EQ(nameOf(value.baseFix), "far");
  EXPECT_EQ(value.governor->compModRec, modA);
}

TEST_F(AsnValues, FieldPathIsFollowed)
{
  int32_t base = integerOf(4, "base");
  VNode node = stxNewVNode(TYP_FIELDLIST, stxType(a, stxNewTNode(TYP_INTEGER)));
  node.fieldPath = stxLink(a, stxNewLink(-base));
  int32_t index = stxDefineValue(a, "field", node);
  start();
  EXPECT_EQ(view(index).baseRecNr, base);
}

// Bits 1 and 4 to 7 of references are handed on; those of a field list are
// not.
TEST_F(AsnValues, FlagsGatherAlongReferences)
{
  int32_t base = integerOf(4, "base");
  stxValueAt(a, base).valueFlags = 0x04;
  VNode fieldList =
      stxNewVNode(TYP_FIELDLIST, stxType(a, stxNewTNode(TYP_INTEGER)));
  fieldList.fieldPath = stxLink(a, stxNewLink(-base));
  fieldList.valueFlags = 0x80;
  int32_t middle = stxDefineValue(a, "field", fieldList);
  int32_t index = referenceTo(middle, "first");
  stxValueAt(a, index).valueFlags = 0x7F;
  start();
  EXPECT_EQ(view(index).base.valueFlags, 0x04 | 0x72);
  EXPECT_EQ(view(base).base.valueFlags, 0x04);
}

TEST_F(AsnValues, StringLengths)
{
  int32_t text = valueOf(TYP_IA5STR, leaf8(a, TYP_IA5STR, "hello"));
  int32_t bits = valueOf(TYP_BITSTR, leaf8(a, TYP_BITSTR, "01011"));
  int32_t octets = valueOf(TYP_OCTSTR, leaf8(a, TYP_OCTSTR, "ABC"));
  int32_t time = valueOf(TYP_UTCTIME, leaf8(a, TYP_UTCTIME, "99"));
  int32_t reference = stxDefineValue(a, "r", ref(text));
  stxValueAt(a, reference).governor = stxValueAt(a, text).governor;
  stxValueAt(a, reference).governorModule = 1;
  start();
  EXPECT_EQ(characterStringLength(view(text)), 5);
  EXPECT_EQ(characterStringLength(view(reference)), 5);
  EXPECT_EQ(bitStringLength(view(bits)), 5);
  EXPECT_EQ(octetStringLength(view(octets)), 2);
  // A time is no string to its governor.
  EXPECT_EQ(characterStringLength(view(time)), 0);
}

TEST_F(AsnValues, NamingByFixKind)
{
  int32_t index = integerOf(4, "item");
  stxGlobalOption(a, TED_FRONT_END, "-VPREF=v_");
  start();
  EXPECT_EQ(nameOf(view(index, FIX_VALUE).compFix), "v_item");
  EXPECT_EQ(nameOf(view(index, FIX_COMP_VALUE).compFix), "v_item");
}

TEST_F(AsnValues, InfinityHasNoNode)
{
  start();
  VNode endpoint = stxNewVNode(TYP_INTEGER, 0);
  setInfinity(endpoint, true, TYP_INTEGER);
  AsnValue *value = newAsnValue(&mod, &mod);
  initInfinityValue(*value, endpoint);
  EXPECT_EQ(getTypeOfValue(*value), nullptr);
  EXPECT_EQ(getValueCompStatus(*value), 2);
  EXPECT_NE(getBEValMetaRec(*value), nullptr);
  EXPECT_TRUE(isPlusInfinity(*value));
  EXPECT_FALSE(isMinusInfinity(*value));
  delAsnValue(value);
}

TEST_F(AsnValues, InfinitiesOfIntegersAndReals)
{
  AsnValue value;
  for (int mainType : {TYP_INTEGER, TYP_REAL, TYP_ENUM}) {
    bool counts = mainType != TYP_ENUM;
    value.base = stxNewVNode(mainType, 0);
    EXPECT_FALSE(isPlusInfinity(value));
    EXPECT_FALSE(isMinusInfinity(value));
    setInfinity(value.base, true, mainType);
    EXPECT_EQ(isPlusInfinity(value), counts) << mainType;
    EXPECT_FALSE(isMinusInfinity(value));
    setInfinity(value.base, false, mainType);
    EXPECT_EQ(isMinusInfinity(value), counts) << mainType;
    EXPECT_FALSE(isPlusInfinity(value));
  }
}

TEST_F(AsnValues, MarkersAndVisibility)
{
  AsnValue value;
  value.base.mainType = TYP_INTEGER;
  EXPECT_FALSE(isValueExtensionmarker(value));
  value.base.mainType = TYP_EXTENSION_MARKER;
  EXPECT_TRUE(isValueExtensionmarker(value));
  start();
  value.homeMod = &mod;
  for (uint8_t mode : {uint8_t{0}, uint8_t{1}})
    for (uint8_t flags : {uint8_t{0}, uint8_t{1}}) {
      modA->visibilityMode = mode;
      value.base.valueFlags = flags;
      EXPECT_EQ(isVisibleValue(value), mode == 0 || flags == 1);
    }
}

// --- comment options --------------------------------------------------------

TEST_F(AsnValues, CommentOptionsOfTheOwnNodeCount)
{
  int32_t base = integerOf(1, "base");
  stxValueTed(a, base, TED_BACK_END, "-BEO=//text");
  int32_t index = referenceTo(base, "first");
  int32_t other = integerOf(1, "other");
  stxValueTed(a, other, TED_BACK_END, "-BEO=QUORVEN=FUNC:f:x");
  start();
  EXPECT_TRUE(isValueCommentOption(view(base)));
  EXPECT_FALSE(isValueCommentOption(view(index)));
  EXPECT_FALSE(isValueCommentOption(view(other)));
}

// --- the governor -----------------------------------------------------------

TEST_F(AsnValues, GovernorIsAPartialView)
{
  int32_t type = stxDefineType(a, "Number", stxNewTNode(TYP_INTEGER));
  int32_t index = stxDefineValue(a, "v", stxNewInteger(type, 1));
  start();
  AsnValue &value = view(index);
  ASSERT_NE(value.governor, nullptr);
  EXPECT_EQ(value.governor->compRecNr, type);
  EXPECT_TRUE(isPartialTypeInfo(*value.governor));
  EXPECT_EQ(getBETypMetaRec(*value.governor), nullptr);
  EXPECT_NE(value.governor->mod, &mod);
  EXPECT_EQ(value.governor->mod->rec, modA);
}

TEST_F(AsnValues, GovernorByModuleNumber)
{
  stxType(b, stxNewTNode(TYP_NULL));
  int32_t type = stxType(b, stxNewTNode(TYP_BOOLEAN));
  VNode node = stxNewVNode(TYP_BOOLEAN, type);
  node.governorModule = 2;
  int32_t index = stxDefineValue(a, "v", node);
  start();
  AsnValue &value = view(index);
  EXPECT_EQ(value.governor->compModRec, modB);
  EXPECT_EQ(value.governor->base.mainType, TYP_BOOLEAN);
}

TEST_F(AsnValues, HiddenGovernorAndValueSet)
{
  TNode hidden = stxNewTNode(TYP_INTEGER), set = stxNewTNode(TYP_INTEGER);
  hidden.hidden = 1;
  set.classFlags = CF_SET;
  int32_t first = stxType(a, hidden), second = stxType(a, set);
  int32_t v1 = stxDefineValue(a, "v1", stxNewInteger(first, 1));
  int32_t v2 = stxDefineValue(a, "v2", stxNewInteger(second, 1));
  start();
  EXPECT_EQ(view(v1).governor->compRecNr, first);
  EXPECT_EQ(view(v2).governor->compRecNr, second);
}

// The chain behind a node that does not fit is not searched.
TEST_F(AsnValues, ClassIsNoGovernor)
{
  int32_t objClass = stxDefineType(a, "C", stxNewTNode(TYP_CLASS));
  stxDefineType(a, "T", stxNewTNode(TYP_INTEGER));
  int32_t index = stxDefineValue(a, "v", stxNewInteger(objClass, 1));
  start();
  readRec(modA, REC_VNODE, index);
  AsnValue *value = newAsnValue(&mod, &mod);
  EXPECT_FALSE(tryValuePath(nullptr, *value, FIX_VALUE));
  EXPECT_EQ(value->governor, nullptr);
  delAsnValue(value);
  EXPECT_EXIT(view(index), ExitedWithCode(2), "Internal error");
}

TEST_F(AsnValues, NoGovernorIsFatal)
{
  int32_t none = stxDefineValue(a, "v", stxNewInteger(0, 1));
  VNode elsewhere = stxNewInteger(1, 1);
  elsewhere.governorModule = 9;
  int32_t unknown = stxDefineValue(a, "w", elsewhere);
  start();
  EXPECT_EXIT(view(none), ExitedWithCode(2), "Internal error");
  EXPECT_EXIT(view(unknown), ExitedWithCode(2), "Internal error");
}

TEST_F(AsnValues, ReuseKeepsTheRightGovernor)
{
  int32_t type = stxType(a, stxNewTNode(TYP_INTEGER));
  int32_t other = stxType(a, stxNewTNode(TYP_INTEGER));
  int32_t one = stxDefineValue(a, "one", stxNewInteger(type, 1));
  int32_t two = stxDefineValue(a, "two", stxNewInteger(type, 2));
  int32_t three = stxDefineValue(a, "three", stxNewInteger(other, 3));
  start();
  AsnValue &value = view(one);
  value.governor->compIndex = 77;  // a mark
  reuseAsnValue(value);
  EXPECT_EQ(value.compRecNr, 0);
  EXPECT_EQ(value.metaRec, nullptr);
  EXPECT_EQ(value.mod, &mod);
  readRec(modA, REC_VNODE, two);
  getValuePath(nullptr, value, FIX_VALUE);
  EXPECT_EQ(value.governor->compIndex, 77);
  EXPECT_EQ(value.compRecNr, two);
  reuseAsnValue(value);
  readRec(modA, REC_VNODE, three);
  getValuePath(nullptr, value, FIX_VALUE);
  EXPECT_EQ(value.governor->compIndex, 0);
  EXPECT_EQ(value.governor->compRecNr, other);
}

// --- node selection ---------------------------------------------------------

// A chain of values by status and main type, the odd ones hidden.
struct NextVNode : ValueViews {
  std::string selected(int kind, bool includeHidden)
  {
    start();
    mod.cursors.values[kind] = modA->firstValue;
    std::string names;
    while (nextVNode(mod, kind, includeHidden)) {
      names += getStri(modA, vNode.identifier);
      EXPECT_EQ(mod.cursors.values[kind], vNode.next);
    }
    return names;
  }
  void add(const char *name, int32_t status, int mainType, uint8_t flags = 0,
           int32_t hidden = 0)
  {
    VNode node = stxNewVNode(mainType, 0);
    node.valueFlags = flags;
    node.hidden = hidden;
    int32_t index = stxDefineValue(a, name, node);
    stxValueAt(a, index).valueStatus = status;
  }
  NextVNode()
  {
    add("a", 2, TYP_INTEGER);
    add("b", 0, TYP_INTEGER);
    add("c", 1, TYP_INTEGER);
    add("d", 2, TYP_CLASS);
    add("e", 5, TYP_TYPE_ID);
    add("f", 2, TYP_CLASS, VFL_SET);
    add("g", 2, TYP_INTEGER, VFL_SET);
    add("h", 2, TYP_INTEGER, 0, 1);
    add("i", 1, TYP_ABSTR_STX);
    add("j", 0, TYP_INTEGER, 0, 1);
    add("k", 7, TYP_NULL);
  }
};

TEST_F(NextVNode, Values)
{
  EXPECT_EQ(selected(SELECT_VALUES, false), "afgk");
}

TEST_F(NextVNode, Objects)
{
  EXPECT_EQ(selected(SELECT_OBJECTS, false), "de");
}

TEST_F(NextVNode, Spare)
{
  EXPECT_EQ(selected(SELECT_SPARE_VALUES, false), "adefgk");
}

TEST_F(NextVNode, NamedNumbers)
{
  EXPECT_EQ(selected(SELECT_NAMED_NUMBERS, false), "bc");
}

TEST_F(NextVNode, HiddenOnesIncluded)
{
  EXPECT_EQ(selected(SELECT_VALUES, true), "afghk");
  EXPECT_EQ(selected(SELECT_NAMED_NUMBERS, true), "bcj");
}

TEST_F(NextVNode, OtherKindsAreFatal)
{
  start();
  for (int kind : {-1, 0, 1, 2, 5, 6, 7, 10, 99})
    EXPECT_EXIT(nextVNode(mod, kind, true), ExitedWithCode(2),
                "Internal error");
}

TEST_F(NextVNode, CyclicChainOfOthers)
{
  int32_t index = integerOf(1);
  stxValueAt(a, index).next = index;
  start();
  mod.cursors.values[SELECT_OBJECTS] = index;
  EXPECT_EXIT(nextVNode(mod, SELECT_OBJECTS, true), ExitedWithCode(2),
              inconsistent);
}

TEST_F(AsnValues, CyclicReference)
{
  int32_t index = referenceTo(1, "loop");
  stxValueAt(a, index).firstChild = index;
  start();
  EXPECT_EXIT(view(index), ExitedWithCode(2), inconsistent);
}

// --- stepping ---------------------------------------------------------------

TEST_F(AsnValues, FirstAndNext)
{
  integerOf(1, "one");
  int32_t hidden = integerOf(2, "hidden");
  stxValueAt(a, hidden).hidden = 1;
  integerOf(3, "three");
  start();
  std::string names;
  for (AsnValue *value = firstValue(mod); value; value = nextValue(value))
    names += nameOf(value->compFix) + " ";
  EXPECT_EQ(names, "one three ");
}

TEST_F(AsnValues, NoValues)
{
  start();
  EXPECT_EQ(firstValue(mod), nullptr);
}
