// Visits of values.
//
// Items and components are walked with a module object of their own, on the
// module that they lie in: a call-back may walk what it likes, and values of
// another module are read there. One view serves a whole walk and keeps its
// governor as long as the items have the same one.

#include "model/valueiter.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/number.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include <algorithm>
#include <cstring>
#include <vector>

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

// A module object and a view of values in it, for one scope.
struct ValueWalk {
  AsnModule *module;
  AsnValue *value;
  explicit ValueWalk(ModRec *rec)
      : module(newAsnModule(*rec)), value(newAsnValue(module, module))
  {
  }
  ~ValueWalk()
  {
    delAsnValue(value);
    delAsnModule(module);
  }
  ValueWalk(const ValueWalk &) = delete;
  ValueWalk &operator=(const ValueWalk &) = delete;
};

// --- definitions of a module ------------------------------------------------

// The index counts the values that are visited.
static void forEachValueThat(AsnModule &module, ValueIndexCallBack *cb,
                             bool (*isWanted)(const AsnValue &))
{
  requireCallBack(cb);
  ModuleCursors before = module.cursors;
  ChainGuard guard(module.rec, REC_VNODE);
  int index = 0;
  for (AsnValue *value = firstValue(module); value; value = nextValue(value)) {
    guard.step();
    if (!isWanted(*value))
      continue;
    ModuleCursors cursors = module.cursors;
    cb(*value, index++);
    module.cursors = cursors;
  }
  module.cursors = before;
}

void forEachValue(AsnModule &module, ValueIndexCallBack *cb)
{
  forEachValueThat(module, cb, [](const AsnValue &) { return true; });
}

void forEachVisValue(AsnModule &module, ValueIndexCallBack *cb)
{
  forEachValueThat(module, cb, isVisibleValue);
}

void forValueByRecNr(AsnModule &module, ValueIndexCallBack *cb, int32_t recNr,
                     int kind)
{
  requireCallBack(cb);
  if (kind != SELECT_VALUES && kind != SELECT_NAMED_NUMBERS)
    return;
  module.cursors.values[kind] = recNr;
  if (nextVNode(module, kind, true) && recJustRead[REC_VNODE].index == recNr) {
    AsnValue *value = newAsnValue(&module, &module);
    // The kinds of names have the numbers of the kinds of nodes.
    getValuePath(nullptr, *value, kind);
    cb(*value, 0);
    delAsnValue(value);
  }
  module.cursors.values[kind] = recNr;
}

// --- items ------------------------------------------------------------------

// Calls `f` with each item, markers included.
template <class F>
static void walkNamedNumbers(AsnType &type, F f)
{
  if (!isNamedNumbers(type))
    return;
  ValueWalk walk(type.baseModRec);
  int32_t &cursor = walk.module->cursors.values[SELECT_NAMED_NUMBERS];
  cursor = type.base.namedNumbers;
  ChainGuard guard(type.baseModRec, REC_VNODE);
  while (nextVNode(*walk.module, SELECT_NAMED_NUMBERS, true)) {
    guard.step();
    int32_t next = cursor;
    getValuePath(nullptr, *walk.value, FIX_COMP_VALUE);
    f(*walk.value);
    reuseAsnValue(*walk.value);
    cursor = next;
  }
}

void forEachNamedNumber(AsnType &type, NamedNumberCallBack *cb)
{
  requireCallBack(cb);
  int index = 0;
  walkNamedNumbers(type, [&](AsnValue &value) {
    if (!isValueExtensionmarker(value))
      cb(type, value, index++);
  });
}

void forEachNamedNumberExtMark(AsnType &type, NamedNumberCallBack *cb)
{
  requireCallBack(cb);
  int index = 0;
  walkNamedNumbers(type, [&](AsnValue &value) {
    cb(type, value, isValueExtensionmarker(value) ? -1 : index++);
  });
}

struct EnumArray {
  std::vector<int32_t> numbers;  // those ahead of the marker first
  int rootCount = 0;
  int addCount = -1;  // -1: no marker
};

// Warns in the module that has the item.
static int32_t enumNumber(const AsnValue &value)
{
  return int64ToInt32(int64Value(value), value.homeMod, value.base.line,
                      "Too large enumerated item");
}

// Not by subtraction: the limits are far apart.
static bool int32cmp(int32_t a, int32_t b)
{
  return a < b;
}

static EnumArray makeEnumArray(AsnType &type)
{
  EnumArray array;
  walkNamedNumbers(type, [&](AsnValue &value) {
    if (isValueExtensionmarker(value)) {
      array.addCount = std::max(array.addCount, 0);
      return;
    }
    array.numbers.push_back(enumNumber(value));
    ++(array.addCount < 0 ? array.rootCount : array.addCount);
  });
  auto additions = array.numbers.begin() + array.rootCount;
  std::sort(array.numbers.begin(), additions, int32cmp);
  std::sort(additions, array.numbers.end(), int32cmp);
  return array;
}

bool isContinuedValueSet(const int32_t *values, int count)
{
  for (int i = 1; i < count; ++i)
    // In 64 bits: nothing follows the largest number.
    if (int64_t{values[i]} != int64_t{values[i - 1]} + 1)
      return false;
  return count > 0;
}

void forSortedEnumeratedValueArray(AsnType &type, SortedEnumCallBack *cb)
{
  requireCallBack(cb);
  if (type.base.mainType != TYP_ENUM)
    return;
  EnumArray array = makeEnumArray(type);
  const int32_t *root = array.numbers.data();
  const int32_t *additions =
      array.addCount < 0 ? nullptr : root + array.rootCount;
  cb(type, array.rootCount, root, isContinuedValueSet(root, array.rootCount),
     array.addCount, additions, isContinuedValueSet(additions, array.addCount));
}

// Bounds of the items on one side of the marker.
struct ItemBounds {
  sint64 lower = i64min();
  sint64 upper = i64min();
  bool any = false;

  void add(sint64 number)
  {
    if (!any || i64cmp(number, lower) < 0)
      lower = number;
    if (!any || i64cmp(number, upper) > 0)
      upper = number;
    any = true;
  }
};

void getExtendedEnumeratedBounds(AsnType &type, int32_t &rootLower,
                                 int32_t &rootUpper, int32_t &addLower,
                                 int32_t &addUpper)
{
  ItemBounds root, additions;
  bool behindMarker = false;
  walkNamedNumbers(type, [&](AsnValue &value) {
    if (isValueExtensionmarker(value))
      behindMarker = true;
    else
      (behindMarker ? additions : root).add(int64Value(value));
  });
  auto to32 = [&](sint64 number, const char *label) {
    return int64ToInt32(number, type.homeMod, type.base.line, label);
  };
  static const char rootLabel[] = "Large enumeration item value";
  static const char addLabel[] = "Large extension addition enumeration item";
  rootLower = to32(root.lower, rootLabel);
  rootUpper = to32(root.upper, rootLabel);
  addLower = to32(additions.lower, addLabel);
  addUpper = to32(additions.upper, addLabel);
}

// --- components and elements ------------------------------------------------

static bool isStructuredValue(const AsnValue &value)
{
  switch (value.base.mainType) {
  case TYP_SEQ:
  case TYP_SET:
  case TYP_CHOICE:
  case TYP_EMB_PDV:
  case TYP_CHASTR:
  case TYP_EXTERNAL:
  case TYP_EXTERNAL_1994:
  case TYP_INSTANCE_OF:
    return true;
  default:
    return false;
  }
}

static bool isListValue(const AsnValue &value)
{
  return value.base.mainType == TYP_SEQOF || value.base.mainType == TYP_SETOF;
}

// A running number lies in the father; a nested walk leaves it as it was.
static void forEachChild(AsnValue &value, ValueCompCallBack *cb)
{
  if (value.base.firstChild == 0)
    return;
  int32_t outerIndex = value.childIndex;
  value.childIndex = 0;
  ValueWalk walk(value.baseModRec);
  ChainGuard guard(value.baseModRec, REC_VNODE);
  for (int32_t index = value.base.firstChild; index != 0;) {
    guard.step();
    readRec(value.baseModRec, REC_VNODE, index);
    // Taken first: building and the call-back read other nodes.
    index = vNode.next;
    getValuePath(&value, *walk.value, FIX_COMP_VALUE);
    cb(value, *walk.value, value.childIndex);
    ++value.childIndex;
    reuseAsnValue(*walk.value);
  }
  value.childIndex = outerIndex;
}

void forEachValueComp(AsnValue &value, ValueCompCallBack *cb)
{
  requireCallBack(cb);
  if (isStructuredValue(value))
    forEachChild(value, cb);
}

void forEachValueElem(AsnValue &value, ValueCompCallBack *cb)
{
  requireCallBack(cb);
  if (isListValue(value))
    forEachChild(value, cb);
}

// What the walk over a type's components carries through their call-back.
static struct PresenceRun {
  AsnValue *value = nullptr;
  PresentOrAbsentCallBack *cb = nullptr;
  AsnValue *comp = nullptr;  // the next one of the value, if there is one
  bool hasComp = false;
  int32_t nextComp = 0;  // behind that
} presence;

// Of components that are present, in the walk begun last: a walk inside
// another begins again at 0, and the outer one goes on from what it left.
static int presentCount;

static void stepValueComp()
{
  presence.hasComp = presence.nextComp != 0;
  if (!presence.hasComp)
    return;
  readRec(presence.value->baseModRec, REC_VNODE, presence.nextComp);
  presence.nextComp = vNode.next;
  reuseAsnValue(*presence.comp);
  getValuePath(presence.value, *presence.comp, FIX_COMP_VALUE);
}

static bool isPresent(const AsnType &typeComp)
{
  const char *name = typeComp.compFix.id;
  return presence.hasComp && name && presence.comp->compFix.id &&
         strcmp(name, presence.comp->compFix.id) == 0;
}

static void visitTypeComp(AsnType &, AsnType &typeComp, int compNbr)
{
  if (!isPresent(typeComp)) {
    presence.cb(*presence.value, typeComp, compNbr, nullptr, -1);
    return;
  }
  presence.cb(*presence.value, typeComp, compNbr, presence.comp,
              presentCount++);
  stepValueComp();
}

static void visitBaseOfType(AsnType &, AsnType &base)
{
  forEachTypeComp(base, visitTypeComp);
}

// A reference to a type has no components itself.
static void walkGovernor(AsnType &governor)
{
  if (!isBaseTypeInCurrentModule(governor))
    forDefBaseTypeDefinedInAnotherModule(governor, visitBaseOfType);
  else if (isSynonymType(governor))
    forDefBaseType(governor, visitBaseOfType);
  else
    forEachTypeComp(governor, visitTypeComp);
}

void forEachPresentOrAbsentValueComp(AsnValue &value,
                                     PresentOrAbsentCallBack *cb)
{
  requireCallBack(cb);
  if (!value.governor || !isStructuredValue(value))
    return;
  PresenceRun outer = presence;
  ValueWalk walk(value.baseModRec);
  presence = {&value, cb, walk.value, false, value.base.firstChild};
  presentCount = 0;
  stepValueComp();
  walkGovernor(*value.governor);
  presence = outer;
}

// --- values of a type -------------------------------------------------------

void forDefaultValue(AsnType &type, DefaultValueCallBack *cb)
{
  requireCallBack(cb);
  if (type.defaultValue == 0)
    return;
  SavedNode savedType(REC_TNODE);
  SavedNode savedValue(REC_VNODE);
  ModuleCursors cursors = type.mod->cursors;
  readRec(type.compModRec, REC_VNODE, type.defaultValue);
  AsnValue *value = newAsnValue(type.mod, type.homeMod);
  if (!tryValuePath(nullptr, *value, FIX_VALUE))
    fatalError(FATAL_INTERNAL, "Cannot obtain a default value.");
  cb(type, *value);
  delAsnValue(value);
  type.mod->cursors = cursors;
}

// Types with bounds of numbers or of lengths.
static bool hasEndpoints(int mainType)
{
  switch (mainType) {
  case TYP_INTEGER:
  case TYP_ENUM:
  case TYP_REAL:
  case TYP_BITSTR:
  case TYP_OCTSTR:
  case TYP_SEQOF:
  case TYP_SETOF:
  case TYP_OBJDESCR:
    return true;
  default:
    return mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR;
  }
}

// Fills the view of one bound; gives its flag.
static bool makeEndpoint(const AsnType &type, AsnValue &value, bool isUpper)
{
  readRec(type.baseModRec, REC_TNODE, type.baseRecNr);
  VNode endpoint;
  int closedFlag = 0;
  if (!getEndpoint(endpoint, closedFlag, isUpper))
    fatalError(FATAL_INTERNAL, "Cannot obtain endpoint for a type.");
  int mainType = type.base.mainType == TYP_REAL ? TYP_REAL : TYP_INTEGER;
  endpoint.mainType = static_cast<uint8_t>(mainType);
  if (testInfinity(endpoint, true, mainType) ||
      testInfinity(endpoint, false, mainType))
    initInfinityValue(value, endpoint);
  else
    getValuePath(nullptr, value, FIX_VALUE);
  return closedFlag & (isUpper ? UPPER_CLOSED : LOWER_CLOSED);
}

void forTypeEndpoints(AsnType &type, TypeEndpointsCallBack *cb)
{
  requireCallBack(cb);
  if (!hasEndpoints(type.base.mainType))
    return;
  AsnValue *lower = newAsnValue(type.mod, type.homeMod);
  AsnValue *upper = newAsnValue(type.mod, type.homeMod);
  bool lowerClosed = makeEndpoint(type, *lower, false);
  bool upperClosed = makeEndpoint(type, *upper, true);
  cb(type, *lower, lowerClosed, *upper, upperClosed);
  delAsnValue(lower);
  delAsnValue(upper);
}

// --- what a value holds -----------------------------------------------------

void forTimeValue(AsnValue &value, TimeValueCallBack *cb)
{
  requireCallBack(cb);
  TimeRecord time;
  if (makeTimeRecord(value, time))
    cb(value, time);
}

void forObjectIdentifierValue(AsnValue &value, ObjIdValueCallBack *cb)
{
  requireCallBack(cb);
  ObjIdComps comps;
  if (makeObjIdComps(value, comps))
    cb(value, static_cast<int>(comps.numbers.size()), comps.numbers.data(),
       comps.names.data());
}

typedef bool MakeString(const AsnValue &value, std::string &text,
                        int32_t &length);

static void forStringValue(AsnValue &value, StringValueCallBack *cb,
                           MakeString *make)
{
  requireCallBack(cb);
  std::string text;
  int32_t length = 0;
  if (make(value, text, length))
    cb(value, length, text.c_str());
}

void forBitStringValueB(AsnValue &value, StringValueCallBack *cb)
{
  forStringValue(value, cb, makeBitString);
}

void forBitStringValueX(AsnValue &value, StringValueCallBack *cb)
{
  forStringValue(value, cb, makeOctetString);
}

void forOctetStringValue(AsnValue &value, StringValueCallBack *cb)
{
  forStringValue(value, cb, makeOctetString);
}

void forCharacterStringValue(AsnValue &value, StringValueCallBack *cb)
{
  forStringValue(value, cb, makeCharacterString);
}

void forEachValueCommentOption(AsnValue &value, ValueCommentCallBack *cb)
{
  requireCallBack(cb);
  if (!value.commentOptions)
    return;
  readRec(value.compModRec, REC_VNODE, value.compRecNr);
  int32_t last = vNode.lastTed;
  int index = 0;
  for (int32_t i = vNode.firstTed; i <= last; ++i) {
    readRec(value.compModRec, REC_TED, i);
    if (tedRec.tedKind != TED_BACK_END)
      continue;
    const char *line = getStri(value.compModRec, tedRec.text);
    if (const char *text = parseBECommentOption(line))
      cb(value, text, index++);
  }
}
