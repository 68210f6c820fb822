// Construction of values. The chain of references is walked twice, as that of
// a type: first to its end, and then, when the meta record is there, to apply
// the back-end's options of each node.

#include "model/asnvalue.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "model/number.h"
#include "model/restrstring.h"
#include "model/typeiter.h"
#include "model/valuechain.h"
#include "options/fixrec.h"
#include "store/valuenode.h"

static CacheBlock *cache__AsnValue;

// Status of a value of its own, as opposed to a component.
constexpr int32_t definedValue = 2;

// Flags that references hand on: all but those of naming and visibility.
constexpr uint8_t chainFlagMask = 242;

AsnValue *newAsnValue(AsnModule *mod, AsnModule *homeMod)
{
  AsnValue *value = cacheNew<AsnValue>(cache__AsnValue);
  value->mod = mod;
  value->homeMod = homeMod;
  value->alive = true;
  return value;
}

void delGovernor(AsnType *governor)
{
  if (!governor)
    return;
  AsnModule *module = governor->mod;
  delAsnType(governor);
  delAsnModule(module);
}

static void delMetaRec(AsnValue &value)
{
  if (value.metaRec)
    deleteBEValMetaRec(value.metaRec);
  value.metaRec = nullptr;
}

void delAsnValue(AsnValue *value)
{
  if (!value || !value->alive)
    return;
  value->alive = false;
  delMetaRec(*value);
  delGovernor(value->governor);
  *value = AsnValue{};
  cacheDelete(value, cache__AsnValue);
}

void reuseAsnValue(AsnValue &value)
{
  delMetaRec(value);
  AsnValue fresh;
  fresh.mod = value.mod;
  fresh.homeMod = value.homeMod;
  fresh.governor = value.governor;
  fresh.alive = true;
  value = fresh;
}

// --- the governor -----------------------------------------------------------

// Makes exactly this node current, if it is of the kind.
static bool selectTNode(AsnModule &module, int kind, int32_t recNr)
{
  module.cursors.types[kind] = recNr;
  return nextTNode(module, kind, true) && recJustRead[REC_TNODE].index == recNr;
}

AsnType *governorForAsnValue(const AsnValue &value, int32_t moduleIndex,
                             int32_t recNr)
{
  ModRec *rec = getModPtr(value.compModRec, moduleIndex);
  if (!rec || recNr == 0)
    return nullptr;
  AsnModule *module = newAsnModule(*rec);
  if (!selectTNode(*module, SELECT_TYPES, recNr) &&
      !selectTNode(*module, SELECT_VALUE_SETS, recNr)) {
    delAsnModule(module);
    return nullptr;
  }
  AsnType *governor = newAsnType(module, module);
  governor->partialInfo = true;
  getTypePath(nullptr, *governor, true);
  return governor;
}

static bool isGovernor(const AsnType *type, const ModRec *module, int32_t recNr)
{
  return type && type->compModRec == module && type->compRecNr == recNr;
}

static bool setGovernor(AsnValue &value, int32_t moduleIndex, int32_t recNr)
{
  if (isGovernor(value.governor, getModPtr(value.compModRec, moduleIndex),
                 recNr))
    return true;
  delGovernor(value.governor);
  value.governor = governorForAsnValue(value, moduleIndex, recNr);
  return value.governor;
}

// --- the chain --------------------------------------------------------------

static void applyBEOptions(AsnValue &value)
{
  bool hasComments = forEachValueChainOption(
      value.compModRec, value.compRecNr, [&](const char *text) {
        if (value.metaRec)
          valueBEOptionOK(value, *value.metaRec, text);
      });
  if (value.metaRec)
    value.commentOptions = hasComments;
}

static void initBase(AsnValue &value, int fixKind)
{
  uint8_t chainFlags = skipValueChain();
  value.baseModRec = currTPtr[REC_VNODE];
  value.baseRecNr = recJustRead[REC_VNODE].index;
  if (value.baseModRec == value.compModRec &&
      value.baseRecNr == value.compRecNr)
    value.baseFix = value.compFix;
  else
    getFixRec(value.baseFix, fixKind);
  value.base = vNode;
  value.base.valueFlags |= chainFlags & chainFlagMask;
}

// Types whose values have a length, by the governor.
static bool isStringType(int mainType)
{
  return mainType == TYP_BITSTR || mainType == TYP_OCTSTR ||
         (mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR) ||
         mainType == TYP_OBJDESCR;
}

static void initStringLength(AsnValue &value)
{
  const AsnType &governor = *value.governor;
  if (!isStringType(governor.base.mainType))
    return;
  readRec(value.baseModRec, REC_VNODE, value.baseRecNr);
  readRec(governor.baseModRec, REC_TNODE, governor.baseRecNr);
  value.stringLength = getAnyStringLength();
}

bool tryValuePath(AsnValue *father, AsnValue &value, int fixKind)
{
  int32_t governor = vNode.governor;
  int32_t governorModule = vNode.governorModule;
  getFixRec(value.compFix, fixKind);
  value.father = father;
  value.compModRec = currTPtr[REC_VNODE];
  value.compRecNr = recJustRead[REC_VNODE].index;
  value.compStatus = vNode.valueStatus;
  initBase(value, fixKind);
  if (!setGovernor(value, governorModule, governor))
    return false;
  value.metaRec = newBEValMetaRec();
  applyBEOptions(value);
  initStringLength(value);
  return true;
}

void getValuePath(AsnValue *father, AsnValue &value, int fixKind)
{
  if (!tryValuePath(father, value, fixKind))
    fatalError(FATAL_INTERNAL);
}

void initInfinityValue(AsnValue &value, const VNode &endpoint)
{
  value.compStatus = definedValue;
  value.base = endpoint;
  value.metaRec = newBEValMetaRec();
}

// --- node selection ---------------------------------------------------------

// True if the current node is of the sort that `kind` selects.
static bool isSelected(int kind)
{
  bool isComponent = vNode.valueStatus == 0 || vNode.valueStatus == 1;
  switch (kind) {
  case SELECT_VALUES:
    return !isComponent && !isObjVNode();
  case SELECT_OBJECTS:
    return !isComponent && isObjVNode();
  case SELECT_SPARE_VALUES:
    return !isComponent;
  case SELECT_NAMED_NUMBERS:
    return isComponent && !isObjVNode();
  default:
    fatalError(FATAL_INTERNAL);
  }
}

bool nextVNode(AsnModule &module, int kind, bool includeHidden)
{
  if (kind != SELECT_VALUES && kind != SELECT_OBJECTS &&
      kind != SELECT_SPARE_VALUES && kind != SELECT_NAMED_NUMBERS)
    fatalError(FATAL_INTERNAL);
  int32_t &cursor = module.cursors.values[kind];
  ChainGuard guard(module.rec, REC_VNODE);
  while (cursor != 0) {
    guard.step();
    readRec(module.rec, REC_VNODE, cursor);
    cursor = vNode.next;
    if ((includeHidden || vNode.hidden == 0) && isSelected(kind))
      return true;
  }
  return false;
}

// --- definitions of a module ------------------------------------------------

// Fills a view that has its modules with the next definition, or deletes it.
static AsnValue *takeNextValue(AsnModule &module, AsnValue *value)
{
  if (!nextVNode(module, SELECT_VALUES, false)) {
    delAsnValue(value);
    return nullptr;
  }
  getValuePath(nullptr, *value, FIX_VALUE);
  return value;
}

AsnValue *firstValue(AsnModule &module)
{
  module.cursors.values[SELECT_VALUES] = module.rec->firstValue;
  return takeNextValue(module, newAsnValue(&module, &module));
}

AsnValue *nextValue(AsnValue *value)
{
  reuseAsnValue(*value);
  return takeNextValue(*value->mod, value);
}

// --- plain reads ------------------------------------------------------------

AsnType *getTypeOfValue(const AsnValue &value)
{
  return value.governor;
}

AsnModule *getModuleOfValue(const AsnValue &value)
{
  return value.homeMod;
}

BEValMetaRec *getBEValMetaRec(const AsnValue &value)
{
  return value.metaRec;
}

int getValueMainType(const AsnValue &value)
{
  return value.base.mainType;
}

int32_t getValueCompStatus(const AsnValue &value)
{
  return value.compStatus;
}

int32_t getBaseValueCompStatus(const AsnValue &value)
{
  return value.base.valueStatus;
}

int32_t bitStringLength(const AsnValue &value)
{
  return value.stringLength;
}

int32_t octetStringLength(const AsnValue &value)
{
  return value.stringLength;
}

int32_t characterStringLength(const AsnValue &value)
{
  return value.stringLength;
}

bool isVisibleValue(const AsnValue &value)
{
  return value.homeMod->rec->visibilityMode == 0 ||
         value.base.valueFlags & VFL_VISIBLE;
}

bool isValueExtensionmarker(const AsnValue &value)
{
  return value.base.mainType == TYP_EXTENSION_MARKER;
}

bool isValueCommentOption(const AsnValue &value)
{
  return value.commentOptions;
}

static bool isAtInfinity(const AsnValue &value, bool isUpper)
{
  int mainType = value.base.mainType;
  return (mainType == TYP_INTEGER || mainType == TYP_REAL) &&
         testInfinity(value.base, isUpper, mainType);
}

bool isPlusInfinity(const AsnValue &value)
{
  return isAtInfinity(value, true);
}

bool isMinusInfinity(const AsnValue &value)
{
  return isAtInfinity(value, false);
}
