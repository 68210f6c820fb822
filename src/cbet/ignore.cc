// The ignore traversal: how generated code steps over values that are not
// wanted.
//
// Two bits of a type node's cache steer the ignore functions: the question of
// a type is settled once in a module's run, and types that are being handled
// are passed over, which stops recursion. `genFuncForIgnorable` must find the
// first bit clear, so `handleReferredIgnorableType` sets it only behind it.

#include "cbet/ignore.h"
#include "base/diag.h"
#include "cbet/cgenerate.h"
#include "cbet/cnames.h"
#include "cbet/traverse.h"
#include "model/typeiter.h"
#include "model/typepath.h"
#include "model/typequery.h"

// Bits of the type info cache.
enum IgnoreBit : int { ignoreSettled = 7, ignoreReferredInProgress = 8 };

// The cache of the node that the view was started on.
static InfoCache &cacheOf(const AsnType &type)
{
  auto &caches = type.compModRec->typeInfoCache;
  size_t place = static_cast<size_t>(type.compRecNr) - 1;
  if (place >= caches.size())
    fatalError(FATAL_READ_RECORD);
  return caches[place];
}

static bool isKnown(const AsnType &type, IgnoreBit bit)
{
  return cacheOf(type).known >> bit & 1;
}

static void setKnown(const AsnType &type, IgnoreBit bit)
{
  setTypeInfoCacheBetFlag(cacheOf(type), bit, true);
}

bool cIsIgnorable(const AsnType &type)
{
  return type.base.nodeFlags & NF_IGNORABLE;
}

bool cIsSizeLimit(const AsnType &type)
{
  return type.base.typeOptions.sizeLimit != 0;
}

bool isNonSkippedLeafType(AsnType &type)
{
  uint32_t options = type.base.nodeOptions;
  type.base.nodeOptions &= ~(1u << optSkip);
  bool isLeaf = isLeafType(type);
  type.base.nodeOptions = options;
  return isLeaf;
}

// --- skipping in place ------------------------------------------------------

static void skipIgnoreTraverse(AsnType &type);

static void skipComponent(AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  callTypeFunc(info.ignoreFuncs.skipIsComp, comp, info);
  callTypeFunc(info.ignoreFuncs.skipCompPrefix, comp, info);
  skipIgnoreTraverse(comp);
  callTypeFunc(info.ignoreFuncs.skipCompPostfix, comp, info);
}

static bool canGenerateIgnoreComponents(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  TypeFuncPredicate *can = info.ignoreFuncs.canGenerateIgnoreComponents;
  return !can || can(type, info);
}

static void skipIgnoreTravComponent(AsnType &father, AsnType &comp, int)
{
  TypeFuncInfo &info = *glbInfo;
  TypeFuncCallBack *skipAdditions = info.ignoreFuncs.skipIgnoreAllExtAddComps;
  if (!skipAdditions) {
    skipComponent(comp);
  } else if (canGenerateIgnoreComponents(father)) {
    // One call for all additions, what a second marker announces included.
    if (isExtensionRootComponent(&father, comp))
      skipComponent(comp);
    else if (isTypeExtensionmarker(comp) &&
             getTypeCompNbr(comp) == getTypeExtensionmarkerCompNbr(father))
      skipAdditions(father, info);
  }
}

static void skipIgnoreTravStruct(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  InlineNesting nesting(type);
  callTypeFunc(info.ignoreFuncs.skipStruPrefix, type, info);
  forEachTypeCompOrElem(type, skipIgnoreTravComponent);
  callTypeFunc(info.ignoreFuncs.skipStruPostfix, type, info);
}

static void skipIgnoreTraverse(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  if (isNonSkippedLeafType(type))
    callTypeFunc(info.ignoreFuncs.skipLeaf, type, info);
  else if (!cIsDefinedBaseType(type))
    skipIgnoreTravStruct(type);
  else
    callTypeFunc(info.ignoreFuncs.skipDefStruct, type, info);
}

void skipIgnore(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  if (info.ignoreMode == IGNORE_SKIP_FUNCS)
    callTypeFunc(info.skipFuncs.skipFunc, type, info);
  else if (info.ignoreMode == IGNORE_TRAVERSE)
    skipIgnoreTraverse(type);
}

void skipType(AsnType &type)
{
  switch (getTypeOptions(type).skipKind) {
  case 0:
    skipIgnore(type);
    break;
  case 1:
    callTypeFunc(glbInfo->skip, type, *glbInfo);
    break;
  default:
    fatalError(FATAL_INTERNAL, "Unknown SKIP option value.");
  }
}

// --- ignore functions -------------------------------------------------------

static void genIgnoreTraverseFunc(AsnType &type)
{
  InlineRestart restart;
  TypeFuncInfo &info = *glbInfo;
  const IgnoreFuncs &funcs = info.ignoreFuncs;
  if (funcs.canGenerateIgnoreFunc && !funcs.canGenerateIgnoreFunc(type, info))
    return;
  callTypeFunc(funcs.skipIgnorePrefix, type, info);
  if (isNonSkippedLeafType(type))
    callTypeFunc(funcs.skipLeaf, type, info);
  else
    skipIgnoreTravStruct(type);
  callTypeFunc(funcs.skipIgnorePostfix, type, info);
}

void genFuncForIgnorable(AsnType &type)
{
  if (glbInfo->ignoreMode != IGNORE_TRAVERSE || !cIsIgnorable(type) ||
      isKnown(type, ignoreSettled))
    return;
  pushPath();
  genIgnoreTraverseFunc(type);
  setKnown(type, ignoreSettled);
  popPath();
}

static void funcForReferredIgnorable(AsnType &type);

static void referredIgnorableComp(AsnType &, AsnType &comp, int)
{
  funcForReferredIgnorable(comp);
}

static void handleReferredComp(AsnType &, AsnType &comp, int)
{
  handleReferredIgnorableType(comp);
}

static void funcForTypesReferredFromIgnDefType(AsnType &type)
{
  if (isSynonymType(type))
    forSynonymType(type, handleReferredIgnorableType);
  else if (isListType(type) || isStructuredType(type))
    forEachTypeCompOrElem(type, handleReferredComp);
}

static void funcForTypesReferredFromIgnorableType(AsnType &type)
{
  if (isDefinedType(type))
    funcForTypesReferredFromIgnDefType(type);
  else if (cIsDefinedBaseType(type))
    forDefinedBaseType(type, funcForReferredIgnorable);
  else if (isListType(type) || isStructuredType(type))
    forEachTypeCompOrElem(type, referredIgnorableComp);
}

static void funcForReferredIgnorable(AsnType &type)
{
  if (!isFuncGeneratedInThisModuleFile(type) || isKnown(type, ignoreSettled) ||
      isKnown(type, ignoreReferredInProgress))
    return;
  setKnown(type, ignoreReferredInProgress);
  funcForTypesReferredFromIgnorableType(type);
  if (isDefinedType(type) && !isSynonymType(type))
    genFuncForIgnorable(type);
}

void handleReferredIgnorableType(AsnType &type)
{
  if (glbInfo->ignoreMode != IGNORE_TRAVERSE || isKnown(type, ignoreSettled))
    return;
  if (cIsIgnorable(type))
    funcForReferredIgnorable(type);
  setKnown(type, ignoreSettled);
}
