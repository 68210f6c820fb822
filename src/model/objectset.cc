// Views of object sets, and the objects in them.

#include "model/objectset.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/objchain.h"
#include "model/typeiter.h"
#include "store/valuenode.h"

static CacheBlock *cache__AsnObjectSet;

bool inBEObjSetMetaConstructor;

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

AsnObjectSet *newAsnObjectSet(AsnModule *mod, AsnModule *homeMod)
{
  AsnObjectSet *set = cacheNew<AsnObjectSet>(cache__AsnObjectSet);
  set->mod = mod;
  set->homeMod = homeMod;
  set->alive = true;
  return set;
}

static void freeOwned(AsnObjectSet &set)
{
  delDynaNodes(set.embeddingFirst, set.embeddingLast);
  if (set.metaRec)
    deleteBEObjSetMetaRec(set.metaRec);
  delGovernorClass(set.objClass);
}

void delAsnObjectSet(AsnObjectSet *set)
{
  if (!set || !set->alive)
    return;
  freeOwned(*set);
  *set = AsnObjectSet{};
  cacheDelete(set, cache__AsnObjectSet);
}

// --- construction -----------------------------------------------------------

// To what the last link of a path names. A type is looked for under its
// number with the sign of a value: no record has that, which ends the run.
static void skipObjSetFieldList()
{
  readLastLinkOfField();
  if (sNode.target <= 0)
    return readTNodeOfLink();
  readRec(getModPtr(currTPtr[REC_SNODE], sNode.linkModule), REC_TNODE,
          -sNode.target);
}

static const ObjChainRules setRules = {
    .definitionFix = FIX_CLASS,
    .skipFieldList = skipObjSetFieldList,
    .refusesSelections = false,
};

int32_t getModNrOfGoverningClass(ModRec *setModule, const ModRec *classModule)
{
  if (setModule == classModule)
    return 1;
  const PicRec *entry = matchingPtr(setModule->firstImport, classModule);
  return entry ? entry->moduleNumber : 0;
}

// To the class at the end of the set's chain, or to the instance of a
// parameterised class on the way.
static void readTNodeForGoveringClass(const AsnObjectSet &set)
{
  readTNodeForBegOfSynonymChain(set.compModRec, set.compRecNr);
  NodeContext instance;
  skipTypesCatchInst(true, instance);
  restoreNodeContext(REC_TNODE, &instance);
}

static void setGovernor(AsnObjectSet &set)
{
  readTNodeForGoveringClass(set);
  RecPlace place = recJustRead[REC_TNODE];
  set.objClass = governorForAsnObjectSet(
      set, getModNrOfGoverningClass(set.compModRec, place.module), place.index);
}

static void makeMetaRec(AsnObjectSet &set)
{
  if (inBEObjSetMetaConstructor)
    fatalError(
        FATAL_INTERNAL,
        "Object set iterator called inside BEObjSetMetaRec constructor.");
  ModuleCursors cursors;
  saveAsnModState(*set.mod, cursors);
  inBEObjSetMetaConstructor = true;
  set.metaRec = newBEObjSetMetaRec();
  inBEObjSetMetaConstructor = false;
  restoreAsnModState(*set.mod, cursors);
}

void getObjectSetPath(AsnObjectSet *father, AsnObjectSet &set)
{
  bool isDefinition = tNode.compStatus == TCS_HEADER;
  buildObjView(father, set, setRules,
               isDefinition ? FIX_OBJECT_SET : FIX_FIELD);
  setGovernor(set);
  makeMetaRec(set);
  applyObjChainLines(set, setRules, [&](const char *text) {
    objectSetBEOptionOK(set, *set.metaRec, text);
  });
}

// --- visits -----------------------------------------------------------------

// Fills a view that has its modules with the next definition, or deletes it.
static AsnObjectSet *takeNextObjectSet(AsnModule &module, AsnObjectSet *set)
{
  if (!nextTNode(module, SELECT_OBJECT_SETS, false)) {
    delAsnObjectSet(set);
    return nullptr;
  }
  getObjectSetPath(nullptr, *set);
  return set;
}

AsnObjectSet *firstObjectSet(AsnModule &module)
{
  module.cursors.types[SELECT_OBJECT_SETS] = module.rec->firstType;
  return takeNextObjectSet(module, newAsnObjectSet(&module, &module));
}

AsnObjectSet *nextObjectSet(AsnObjectSet *set)
{
  freeOwned(*set);
  AsnObjectSet fresh;
  fresh.mod = set->mod;
  fresh.homeMod = set->homeMod;
  fresh.alive = true;
  *set = fresh;
  return takeNextObjectSet(*set->mod, set);
}

void forEachObjectSet(AsnModule &module, ObjectSetIndexCallBack *cb)
{
  requireCallBack(cb);
  ModuleCursors before = module.cursors;
  ChainGuard guard(module.rec, REC_TNODE);
  int index = 0;
  for (AsnObjectSet *set = firstObjectSet(module); set;
       set = nextObjectSet(set)) {
    guard.step();
    ModuleCursors cursors = module.cursors;
    cb(*set, index++);
    module.cursors = cursors;
  }
  module.cursors = before;
}

// --- the objects of a set ---------------------------------------------------

// A walk over the constraint records of a set. A damaged tree can have
// endlessly many ways through few records, so that visits are counted.
struct RecordWalk {
  ObjectIndexCallBack *cb;
  bool passesMarkers;
  int nesting = 0;
  int64_t visitsLeft;
};

constexpr int64_t maxSetVisits = 1'000'000;
constexpr int64_t maxVisitsPerRecord = 100;

static void walkRecord(RecordWalk &walk);

static void visitObjectOfSet(ModRec *module, int32_t recNr,
                             ObjectIndexCallBack *cb)
{
  readRec(module, REC_VNODE, recNr);
  skipValues(true);
  RecPlace object = recJustRead[REC_VNODE];
  AsnModule *owner = newAsnModule(*object.module);
  forObjectByRecNr(*owner, cb, object.index);
  delAsnModule(owner);
}

// Makes the constraint of the included set current, which bare references in
// the module may stand ahead of; false if there is none.
static bool readIncludedSet(ModRec *module, int32_t recNr)
{
  readRec(module, REC_VNODE, recNr);
  readRec(module, REC_TNODE, vNode.firstChild);
  ChainGuard guard(module, REC_TNODE);
  while (tNode.firstConstraint == 0) {
    if (tNode.mainType != TYP_SYNONYM || tNode.ref == 0 ||
        getModPtr(module, tNode.refModule) != module)
      return false;
    guard.step();
    readRec(module, REC_TNODE, tNode.ref);
  }
  readRec(module, REC_SUB, tNode.firstConstraint);
  return true;
}

static void walkUnion(ModRec *module, RecordWalk &walk)
{
  ChainGuard guard(module, REC_SUB);
  for (int32_t next = subRec.operand1; next != 0;) {
    guard.step();
    readRec(module, REC_SUB, next);
    next = subRec.nextSub;
    walkRecord(walk);
  }
}

// Goes on with the current record.
static void walkRecord(RecordWalk &walk)
{
  ModRec *module = currTPtr[REC_SUB];
  if (walk.nesting >= maxWalkNesting || --walk.visitsLeft < 0)
    treeInconsistent(module);
  ++walk.nesting;
  switch (subRec.kind) {
  case SUB_SINGLE_VALUE:
    visitObjectOfSet(module, subRec.operand1, walk.cb);
    break;
  case SUB_INCLUDES:
    if (readIncludedSet(module, subRec.operand1))
      walkRecord(walk);
    break;
  case SUB_UNION:
    walkUnion(module, walk);
    break;
  case SUB_EXTENDED_SET:
    if (walk.passesMarkers)
      break;
    [[fallthrough]];
  default:
    fatalError(FATAL_INTERNAL, "Too complex object set");
  }
  --walk.nesting;
}

void constructSetObjects(ObjectIndexCallBack *cb, bool passesMarkers)
{
  RecordWalk walk = {.cb = cb,
                     .passesMarkers = passesMarkers,
                     .visitsLeft = maxSetVisits +
                                   maxVisitsPerRecord * recordsOfRun(REC_SUB)};
  walkRecord(walk);
}

// The walk over the objects of a set that was begun last.
static struct SetWalk {
  SetObjectCallBack *cb = nullptr;
  AsnObjectSet *set = nullptr;
  int index = 0;
} setWalk;

static void callObjectSetFunc(AsnObject &object, int)
{
  setWalk.cb(*setWalk.set, object, setWalk.index);
  ++setWalk.index;
}

void forObjectSet(AsnObjectSet &set, SetObjectCallBack *cb)
{
  requireCallBack(cb);
  readRec(set.compModRec, REC_TNODE, set.compRecNr);
  if (tNode.ref == 0 || tNode.firstConstraint == 0)
    return;
  SetWalk outer = setWalk;
  setWalk = {cb, &set, 0};
  readRec(set.compModRec, REC_SUB, tNode.firstConstraint);
  constructSetObjects(callObjectSetFunc, true);
  setWalk = outer;
}

// --- queries ----------------------------------------------------------------

AsnObjClass *getObjClassOfObjectSet(const AsnObjectSet &set)
{
  return set.objClass;
}

AsnModule *getModuleOfObjectSet(const AsnObjectSet &set)
{
  return set.homeMod;
}

int32_t getObjectSetDefinitionLine(const AsnObjectSet &set)
{
  return set.base.line;
}

BEObjSetMetaRec *getBEObjSetMetaRec(const AsnObjectSet &set)
{
  return set.metaRec;
}

std::string &getObjectSetRef(std::string &text, const char *prefix,
                             const AsnObjectSet &set, const char *suffix)
{
  return between(text, prefix, plainFixName(set.compFix), suffix);
}

std::string &getDefObjectSetId(std::string &text, const char *prefix,
                               const AsnObjectSet &set, const char *suffix)
{
  std::string id = "?!?";
  if (set.compStatus == TCS_HEADER)
    id = printedFixName(set.compFix);
  else if (set.base.compStatus == TCS_HEADER)
    id = printedFixName(set.baseFix);
  return between(text, prefix, id, suffix);
}

std::string &getBaseObjectSetRef(std::string &text, const char *prefix,
                                 const AsnObjectSet &set, const char *suffix)
{
  int mainType = set.base.mainType;
  if (!isClassMainType(mainType))
    fatalError(
        FATAL_INTERNAL,
        "Trying to resolve object set name for an unsuitable construct.");
  return between(text, prefix,
                 mainType == TYP_CLASS ? plainFixName(set.baseFix)
                                       : orEmpty(typeRow(mainType).asnName),
                 suffix);
}

std::string &getDefBaseObjectSetId(std::string &text, const char *prefix,
                                   const AsnObjectSet &set, const char *suffix)
{
  return between(text, prefix,
                 set.base.compStatus == TCS_HEADER
                     ? printedFixName(set.baseFix)
                     : "?!?NOT-A-DEFINED-OBJECT-SET",
                 suffix);
}
