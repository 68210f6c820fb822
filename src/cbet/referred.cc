// The types whose functions a type's function calls: found and written ahead
// of it, deepest first. A type on the way down is passed over, which cuts
// recursion; its call is written against its prototype.

#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/cnames.h"
#include "cbet/ignore.h"
#include "cbet/traverse.h"
#include "model/typeiter.h"
#include "model/typepath.h"
#include "model/typequery.h"

// The referring type is an entry of a VARNO application that is not visible:
// the code of its base stands in its entry function, so only what the base
// refers to is wanted, and not the base's own function.
static bool glbReferringTypeIsNonVisibleVarnoEntry;

static void genSeparateNormalFunc(AsnType &type)
{
  genNormalFunc(type, true);
}

static void funcForReferredTypes(AsnType *father, AsnType &comp);

static void referredComponent(AsnType &father, AsnType &comp, int)
{
  funcForReferredTypes(&father, comp);
}

// `father` is null for the base of a synonym.
static void funcForReferredTypes(AsnType *, AsnType &comp)
{
  if (!isFuncGeneratedInThisModuleFile(comp))
    return;
  if (getBaseTypeStamp(comp) >= stampGIP || cIsFrameType(comp) ||
      isTypeExtensionmarker(comp))
    return;
  handleReferredIgnorableType(comp);
  if (testTypeOption(comp, optSkip))
    return;
  pushPath();
  if (!cIsDefinedBaseType(comp)) {
    InlineNesting nesting(comp);
    if (!isLeafType(comp))
      forEachTypeCompOrElem(comp, referredComponent);
  } else if (isDefinedType(comp)) {
    genNormalFunc(comp, true);
  } else {
    forDefinedBaseType(comp, genSeparateNormalFunc);
  }
  popPath();
}

// Synonyms that are entered at this moment: one that was left unbound is a
// synonym of itself.
static int synonymNesting;

static void funcForReferredBaseType(AsnType &type)
{
  WalkNesting nesting(synonymNesting, type.compModRec);
  if (isSynonymType(type))
    forSynonymType(type, funcForReferredBaseType);
  else if (!glbReferringTypeIsNonVisibleVarnoEntry)
    funcForReferredTypes(nullptr, type);
  else if (!isLeafType(type))
    forEachTypeCompOrElem(type, referredComponent);
}

void genReferredTypes(AsnType &type)
{
  if (!isSynonymType(type)) {
    forEachTypeCompOrElem(type, referredComponent);
    return;
  }
  bool before = glbReferringTypeIsNonVisibleVarnoEntry;
  AsnModule &module = *getModuleOfType(type);
  glbReferringTypeIsNonVisibleVarnoEntry =
      !isVisibleType(type) && isVarnoApplication(module) && isEntryType(type);
  forSynonymType(type, funcForReferredBaseType);
  glbReferringTypeIsNonVisibleVarnoEntry = before;
}
