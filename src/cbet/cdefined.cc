// Where the C type behind a reference is defined. The front-end's marks on the
// base node tell of its end alone; what lies between is found by a walk along
// the chain of references, whose outcome is kept with the type's node.

#include "base/diag.h"
#include "cbet/cnames.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include <cstdio>

// Bits of the type info cache.
enum DefinedBit : int { baseGeneratedHere = 5, baseDefined = 6 };

// The chain that is being followed; call-backs have no other way to it.
static struct RefChain {
  const ModRec *module = nullptr;  // of the node where it began
  bool found = false;
} refChain;

// Steps of it that are entered at this moment.
static int stepNesting;

// Null for a node without a cache.
static InfoCache *cacheOf(const AsnType &type)
{
  if (!type.compModRec || type.compRecNr < 1)
    return nullptr;
  auto &caches = type.compModRec->typeInfoCache;
  size_t place = static_cast<size_t>(getUniqueTypeNr(type));
  return place < caches.size() ? &caches[place] : nullptr;
}

// The answer of `find`, which is asked once for a node.
static bool cached(const AsnType &type, DefinedBit bit,
                   bool (*find)(const AsnType &))
{
  InfoCache *cache = cacheOf(type);
  if (!cache)
    return find(type);
  if (!(cache->known >> bit & 1))
    setTypeInfoCacheBetFlag(*cache, bit, find(type));
  return cache->value >> bit & 1;
}

// Walks along the definitions that the type refers to. Whole views are not
// needed, and this may be the making of one's meta record.
static bool followChain(const AsnType &type, TypeVisit *visit)
{
  SavedNode saved(REC_TNODE);
  bool metaRecs = setCreateBETypMetaFlag(false);
  refChain = {.module = type.compModRec};
  // The walk only reads the view that it begins at.
  forNextDefinedType(const_cast<AsnType &>(type), visit);
  setCreateBETypMetaFlag(metaRecs);
  return refChain.found;
}

static void enterNext(AsnType &step, TypeVisit *visit)
{
  WalkNesting nesting(stepNesting, step.compModRec);
  forNextDefinedType(step, visit);
}

static void isDefinedTypeCallBack(AsnType &step);

static void isDefinedAlternative(AsnType &, AsnType &alternative, AsnType &)
{
  isDefinedTypeCallBack(alternative);
}

static void isDefinedTypeCallBack(AsnType &step)
{
  if (step.firstMainType == TYP_SYNONYM) {
    if (!isInstantiatedType(step))
      enterNext(step, isDefinedTypeCallBack);
  } else if (isSelectionType(step)) {
    forSelectionType(step, isDefinedAlternative);
  } else {
    refChain.found = isDefinedType(step);
  }
}

static bool findDefinedBase(const AsnType &type)
{
  if (!isDefinedBaseType(type))
    return false;
  if (isDefinedType(type) || type.firstMainType != TYP_SYNONYM)
    return true;
  return followChain(type, isDefinedTypeCallBack);
}

bool cIsDefinedBaseType(const AsnType &type)
{
  return cached(type, baseDefined, findDefinedBase);
}

static void selectionWarning(const AsnType &type)
{
  if (verboseEx < 2)
    return;
  std::string path;
  fprintf(
      stderr, "%s:%d:%s\n",
      getModuleFilePath(path, nullptr, *getModuleOfType(type), nullptr).c_str(),
      getTypeDefinitionLine(type),
      "warning: multi-module selection types not supported completely.");
}

static void isBaseTypeInThisModuleCallBack(AsnType &step)
{
  if (isSelectionType(step))
    selectionWarning(step);
  else if (step.compModRec == refChain.module)
    refChain.found = true;
  else
    enterNext(step, isBaseTypeInThisModuleCallBack);
}

static bool findGeneratedHere(const AsnType &type)
{
  return isBaseTypeInCurrentModule(type) || isInstantiatedType(type) ||
         (cIsDefinedBaseType(type) &&
          followChain(type, isBaseTypeInThisModuleCallBack));
}

bool cIsBaseTypeGeneratedInCurrentModule(const AsnType &type)
{
  return cached(type, baseGeneratedHere, findGeneratedHere);
}

bool cIsSupportedObjClassField(const AsnObjClassField &field)
{
  switch (getObjClassFieldKind(field)) {
  case FIELD_TYPE:
  case FIELD_FIXED_TYPE_VALUE:
  case FIELD_FIXED_TYPE_VALUE_SET:
  case FIELD_OBJECT:
  case FIELD_OBJECT_SET:
    return true;
  default:
    return false;
  }
}
