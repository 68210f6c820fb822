// Visits of the definitions of a module, and of the components of a type.
//
// The state of a walk over components lies in the father (the running number,
// whether the component before was optional) and in the module's cursor.
// Every walk saves both and puts them back, so that walks nest in any order
// on one father and always give the same numbers. An addition group takes no
// number of its own: it shows that of its first member, the members count on
// from there, and what follows the group goes on behind its last member.

#include "model/typeiter.h"
#include "base/diag.h"
#include "model/typequery.h"
#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

static const char badOtherModule[] =
    "Unable to construct AsnType for a type defined in another module.";

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

// Takes back an AsnModule or an AsnType at the end of a scope.
struct OwnedModule {
  AsnModule *module;
  explicit OwnedModule(ModRec &record) : module(newAsnModule(record)) {}
  ~OwnedModule() { delAsnModule(module); }
  OwnedModule(const OwnedModule &) = delete;
  OwnedModule &operator=(const OwnedModule &) = delete;
};

struct OwnedType {
  AsnType *type;
  OwnedType(AsnModule *mod, AsnModule *homeMod)
      : type(newAsnType(mod, homeMod))
  {
  }
  ~OwnedType() { delAsnType(type); }
  OwnedType(const OwnedType &) = delete;
  OwnedType &operator=(const OwnedType &) = delete;
};

// --- node selection ---------------------------------------------------------

void saveAsnModState(const AsnModule &module, ModuleCursors &saved)
{
  saved = module.cursors;
}

void restoreAsnModState(AsnModule &module, const ModuleCursors &saved)
{
  module.cursors = saved;
}

// True if the current node is of the sort that `kind` selects.
static bool isSelected(int kind)
{
  bool isSet = isSetTNode();
  bool wantsClass = kind == SELECT_CLASSES || kind == SELECT_OBJECT_SETS;
  bool wantsSet = kind == SELECT_VALUE_SETS || kind == SELECT_OBJECT_SETS;
  if (kind != SELECT_TYPES && isSet != wantsSet)
    return false;
  int mainType = tNode.mainType;
  if (mainType == TYP_SYNONYM || mainType == TYP_SELECTION ||
      mainType == TYP_FIELDLIST) {
    SavedNode saved(REC_TNODE);
    skipTypes(true);
    mainType = tNode.mainType;
  }
  return isClassMainType(mainType) == wantsClass;
}

bool nextTNode(AsnModule &module, int kind, bool includeHidden)
{
  int32_t &cursor = module.cursors.types[kind];
  ChainGuard guard(module.rec, REC_TNODE);
  while (cursor != 0) {
    guard.step();
    readRec(module.rec, REC_TNODE, cursor);
    cursor = tNode.next;
    if ((includeHidden || tNode.hidden == 0) && isSelected(kind))
      return true;
  }
  return false;
}

// --- definitions of a module ------------------------------------------------

// Fills a view that has its modules with the next definition, or deletes it.
static AsnType *takeNextType(AsnModule &module, AsnType *type)
{
  if (!nextTNode(module, SELECT_TYPES, false)) {
    delAsnType(type);
    return nullptr;
  }
  getTypePath(nullptr, *type, true);
  return type;
}

AsnType *firstType(AsnModule &module)
{
  module.cursors.types[SELECT_TYPES] = module.rec->firstType;
  return takeNextType(module, newAsnType(&module, &module));
}

AsnType *nextType(AsnType *type)
{
  AsnModule *mod = type->mod;
  AsnModule *homeMod = type->homeMod;
  bool partial = type->partialInfo;
  clearAsnType(*type);
  type->mod = mod;
  type->homeMod = homeMod;
  type->partialInfo = partial;
  return takeNextType(*mod, type);
}

// The index counts the types that are visited.
static void forEachTypeThat(AsnModule &module, TypeIndexCallBack *cb,
                            bool (*isWanted)(const AsnType &))
{
  requireCallBack(cb);
  ModuleCursors before = module.cursors;
  ChainGuard guard(module.rec, REC_TNODE);
  int index = 0;
  for (AsnType *type = firstType(module); type; type = nextType(type)) {
    guard.step();
    if (!isWanted(*type))
      continue;
    ModuleCursors cursors = module.cursors;
    cb(*type, index++);
    module.cursors = cursors;
  }
  module.cursors = before;
}

void forEachType(AsnModule &module, TypeIndexCallBack *cb)
{
  forEachTypeThat(module, cb, [](const AsnType &) { return true; });
}

void forEachEntryType(AsnModule &module, TypeIndexCallBack *cb)
{
  forEachTypeThat(module, cb, isEntryType);
}

void forEachVisType(AsnModule &module, TypeIndexCallBack *cb)
{
  forEachTypeThat(module, cb, isVisibleType);
}

void forEachEntryVisType(AsnModule &module, TypeIndexCallBack *cb)
{
  forEachTypeThat(module, cb, [](const AsnType &type) {
    return isEntryType(type) || isVisibleType(type);
  });
}

// Makes the record current if it is of the sort that `kind` selects; the
// cursors are as before.
static bool selectRecord(AsnModule &module, int kind, int32_t recNr,
                         bool includeHidden)
{
  ModuleCursors before = module.cursors;
  module.cursors.types[kind] = recNr;
  bool found = nextTNode(module, kind, includeHidden) &&
               recJustRead[REC_TNODE].index == recNr;
  module.cursors = before;
  return found;
}

void forTypeByRecNr(AsnModule &module, TypeIndexCallBack *cb, int kind,
                    int32_t recNr)
{
  requireCallBack(cb);
  bool isKnown = kind == SELECT_TYPES || kind == SELECT_VALUE_SETS ||
                 kind == SELECT_OBJECT_SETS;
  if (!isKnown || !selectRecord(module, kind, recNr, true))
    return;
  OwnedType owned(&module, &module);
  getTypePath(nullptr, *owned.type, true);
  ModuleCursors cursors = module.cursors;
  cb(*owned.type, 0);
  module.cursors = cursors;
}

void forEntryTypeByRecNr(AsnModule &module, TypeIndexCallBack *cb,
                         int32_t recNr)
{
  requireCallBack(cb);
  ModuleCursors before = module.cursors;
  bool metaRecs = setCreateBETypMetaFlag(false);
  int index = 0;
  bool found = false;
  for (AsnType *type = firstType(module); type; type = nextType(type)) {
    found = isEntryType(*type) && type->compRecNr == recNr;
    if (found) {
      delAsnType(type);
      break;
    }
    index += isEntryType(*type);
  }
  setCreateBETypMetaFlag(metaRecs);
  module.cursors = before;
  if (!found)
    return;
  readRec(module.rec, REC_TNODE, recNr);
  OwnedType owned(&module, &module);
  getTypePath(nullptr, *owned.type, true);
  cb(*owned.type, index);
  module.cursors = before;
}

// --- components: steps ------------------------------------------------------

static bool isGroup(const AsnType &type)
{
  return type.base.mainType == TYP_EXTADDGRP;
}

static bool isMarker(const AsnType &type)
{
  return type.base.mainType == TYP_EXTENSION_MARKER;
}

static bool isComponentsOf(const AsnType &type)
{
  return type.compStatus == TCS_COMPOF;
}

// True if `holder` has sons of the sort.
static bool hasSons(const AsnType &holder, bool compsOnly)
{
  if (compsOnly && holder.base.nrComps == 0 && !isGroup(holder))
    return false;
  return !isSynonymType(holder);
}

// The father that a holder's sons get: a group's members belong to the
// structure.
static AsnType *fatherOfSons(AsnType &holder)
{
  return isGroup(holder) ? holder.father : &holder;
}

// Makes the next son current in the cursor of components; COMPONENTS OF ends
// at a marker.
static bool nextSonNode(AsnModule &module, const AsnType &holder)
{
  if (!nextTNode(module, SELECT_COMPS, true))
    return false;
  return !isComponentsOf(holder) || tNode.mainType != TYP_EXTENSION_MARKER;
}

// Builds a son on the current node.
static void buildSon(AsnType &son, AsnModule *mod, AsnModule *homeMod,
                     AsnType *father, AsnType *group, int autoTagNr)
{
  son.mod = mod;
  son.homeMod = homeMod;
  son.addGroup = group;
  getTypePathN(father, son, true, autoTagNr);
}

AsnType *firstTypeComp(AsnType &type, bool compsOnly, int autoTagNr)
{
  if (!hasSons(type, compsOnly))
    return nullptr;
  AsnModule &module = *type.mod;
  module.cursors.types[SELECT_COMPS] = type.base.ref;
  if (!nextSonNode(module, type))
    return nullptr;
  AsnType *son = newAsnType(type.mod, type.homeMod);
  buildSon(*son, type.mod, type.homeMod, fatherOfSons(type),
           isGroup(type) ? &type : nullptr, autoTagNr);
  return son;
}

// Goes on with the node that is current, or ends if there is none.
static AsnType *continueWith(AsnType *comp, bool found, int autoTagNr)
{
  AsnModule *mod = comp->mod;
  AsnModule *homeMod = comp->homeMod;
  AsnType *father = comp->father;
  AsnType *group = comp->addGroup;
  bool partial = comp->partialInfo;
  if (!found) {
    delAsnType(comp);
    return nullptr;
  }
  clearAsnType(*comp);
  comp->partialInfo = partial;
  buildSon(*comp, mod, homeMod, father, group, autoTagNr);
  return comp;
}

// What a component's siblings hang on.
static AsnType &holderOf(const AsnType &comp)
{
  return comp.addGroup ? *comp.addGroup : *comp.father;
}

AsnType *nextTypeComp(AsnType *comp, int autoTagNr)
{
  bool found = nextSonNode(*comp->mod, holderOf(*comp));
  return continueWith(comp, found, autoTagNr);
}

// Room for record numbers; given back, it serves the next walk.
static std::vector<std::vector<int32_t>> freeRooms;

struct RecordRoom {
  std::vector<int32_t> records;
  RecordRoom()
  {
    if (freeRooms.empty())
      return;
    records.swap(freeRooms.back());
    freeRooms.pop_back();
  }
  ~RecordRoom()
  {
    records.clear();
    freeRooms.push_back(std::move(records));
  }
  RecordRoom(const RecordRoom &) = delete;
  RecordRoom &operator=(const RecordRoom &) = delete;
};

// Fills in the records of a holder's sons, in order.
static void listSons(AsnType &holder, std::vector<int32_t> &records)
{
  AsnModule &module = *holder.mod;
  ModuleCursors before = module.cursors;
  ChainGuard guard(module.rec, REC_TNODE);
  module.cursors.types[SELECT_COMPS] = holder.base.ref;
  while (nextSonNode(module, holder)) {
    guard.step();
    records.push_back(recJustRead[REC_TNODE].index);
  }
  module.cursors = before;
}

static bool isExtensibleStructure(const AsnType &type)
{
  return type.base.nodeFlags & NF_EXTENSIBLE && isStructuredType(type);
}

AsnType *lastTypeComp(AsnType &type, int autoTagNr)
{
  if (!hasSons(type, true))
    return nullptr;
  RecordRoom room;
  const std::vector<int32_t> &records = room.records;
  listSons(type, room.records);
  if (records.empty())
    return nullptr;
  // The marker takes no tag.
  if (isExtensibleStructure(type) && !isComponentsOf(type))
    --autoTagNr;
  readRec(type.mod->rec, REC_TNODE, records.back());
  AsnType *son = newAsnType(type.mod, type.homeMod);
  buildSon(*son, type.mod, type.homeMod, fatherOfSons(type),
           isGroup(type) ? &type : nullptr, autoTagNr);
  return son;
}

AsnType *prevTypeComp(AsnType *comp, int autoTagNr)
{
  RecordRoom room;
  const std::vector<int32_t> &records = room.records;
  listSons(holderOf(*comp), room.records);
  size_t at = 0;
  while (at < records.size() && records[at] != comp->compRecNr)
    ++at;
  bool found = at > 0 && at < records.size();
  if (found)
    readRec(comp->mod->rec, REC_TNODE, records[at - 1]);
  return continueWith(comp, found, autoTagNr);
}

// --- components: walks ------------------------------------------------------

// One walk over the sons of a father, through all that stands for sons.
struct SonWalk {
  AsnType &father;
  CompCallBack *compCb;
  ElemCallBack *elemCb;
  int step;       // 1, or -1 in reverse
  int autoTag;
  int extCounter = -1;  // additions so far, -1 ahead of the first marker
  int64_t left;         // sons that a sound tree can still have
};

// What a walk changes in its father, put back when the scope ends.
struct SavedWalk {
  AsnType &father;
  int32_t compIndex;
  bool prevCompOptional;
  explicit SavedWalk(AsnType &type)
      : father(type), compIndex(type.compIndex),
        prevCompOptional(type.prevCompOptional)
  {
  }
  ~SavedWalk()
  {
    father.compIndex = compIndex;
    father.prevCompOptional = prevCompOptional;
  }
  SavedWalk(const SavedWalk &) = delete;
  SavedWalk &operator=(const SavedWalk &) = delete;
};

// Structures that are entered through COMPONENTS OF at this moment.
static int componentsOfNesting;

static void walkSons(SonWalk &walk, AsnType &holder, bool compsOnly);

static void countExtension(SonWalk &walk, AsnType &son)
{
  if (isMarker(son)) {
    son.extCompNbr = -1;
    // A second marker changes nothing. Backwards it comes first, so that the
    // number must come from a walk forward.
    if (walk.step < 0)
      getTypeExtensionmarkerCompNbr(walk.father);
    else if (walk.extCounter < 0)
      walk.father.extMarkerCompNbr = son.compNbr;
    walk.extCounter = std::max(walk.extCounter, 0);
    return;
  }
  son.extCompNbr = walk.extCounter;
  if (walk.extCounter >= 0)
    ++walk.extCounter;
}

// Numbers that a son takes in its father.
static int32_t numbersOf(const AsnType &son)
{
  return isGroup(son) ? son.base.nrComps : 1;
}

static void visitComp(SonWalk &walk, AsnType &son)
{
  AsnType &father = walk.father;
  int32_t numbers = numbersOf(son);
  // Groups can tell of more members than there are.
  if (std::abs(father.compIndex) > recordsOfRun(REC_TNODE))
    treeInconsistent(father.baseModRec);
  // A group shows its first member's number, from either side.
  if (walk.step < 0)
    father.compIndex -= numbers - 1;
  son.compNbr = father.compIndex;
  countExtension(walk, son);
  bool marker = isMarker(son);
  bool optional = son.compStatus == TCS_OPTIONAL;
  walk.compCb(father, son, son.compNbr);
  father.compIndex += walk.step > 0 ? numbers : -1;
  if (!marker) {
    father.prevCompOptional = optional;
    walk.autoTag += walk.step;
  }
}

static void visitElem(SonWalk &walk, AsnType &son)
{
  son.compNbr = 0;
  bool optional = son.compStatus == TCS_OPTIONAL;
  walk.elemCb(walk.father, son);
  walk.father.compIndex += walk.step;
  walk.father.prevCompOptional = optional;
  walk.autoTag += walk.step;
}

// The components that a COMPONENTS OF entry stands for.
static void visitComponentsOf(SonWalk &walk, AsnType &holder, AsnType &son)
{
  if (son.base.nrComps == 0)
    return;
  WalkNesting nesting(componentsOfNesting, son.baseModRec);
  AsnModule *mod = son.mod;
  AsnModule *homeMod = son.homeMod;
  OwnedModule owned(*son.baseModRec);
  son.mod = son.homeMod = owned.module;
  FixRec own = son.baseFix;
  son.baseFix = holder.baseFix;
  walkSons(walk, son, true);
  son.baseFix = own;
  son.mod = mod;
  son.homeMod = homeMod;
}

static void visitSon(SonWalk &walk, AsnType &holder, AsnType &son)
{
  // A group has no groups among its members.
  if (--walk.left < 0 || (isGroup(holder) && isGroup(son)))
    treeInconsistent(walk.father.baseModRec);
  AsnModule &module = *holder.mod;
  AsnType *builtFather = son.father;
  AsnType *builtGroup = son.addGroup;
  if (isComponentsOf(holder)) {
    son.father = &walk.father;
    son.addGroup = holder.addGroup;
    son.inComponentsOf = true;
  }
  ModuleCursors cursors = module.cursors;
  if (isComponentsOf(son)) {
    // Its own entry is tagged and numbered by the structure around it.
    son.father = &walk.father;
    visitComponentsOf(walk, holder, son);
  } else if (walk.compCb) {
    visitComp(walk, son);
  } else {
    visitElem(walk, son);
  }
  module.cursors = cursors;
  son.father = builtFather;
  son.addGroup = builtGroup;
}

static void walkForward(SonWalk &walk, AsnType &holder, bool compsOnly)
{
  AsnType *son = firstTypeComp(holder, compsOnly, walk.autoTag);
  while (son) {
    visitSon(walk, holder, *son);
    son = nextTypeComp(son, walk.autoTag);
  }
}

// Backwards by the records that a walk forward finds: a chain has no way
// back.
static void walkBackward(SonWalk &walk, AsnType &holder, bool compsOnly)
{
  if (!hasSons(holder, compsOnly))
    return;
  if (isExtensibleStructure(walk.father) && !isComponentsOf(holder))
    --walk.autoTag;
  RecordRoom room;
  listSons(holder, room.records);
  for (size_t i = room.records.size(); i-- > 0;) {
    readRec(holder.mod->rec, REC_TNODE, room.records[i]);
    OwnedType owned(holder.mod, holder.homeMod);
    buildSon(*owned.type, holder.mod, holder.homeMod, fatherOfSons(holder),
             isGroup(holder) ? &holder : nullptr, walk.autoTag);
    visitSon(walk, holder, *owned.type);
  }
}

// The holder's sons lie in the module of its base: it gets an object for that
// one while it is walked. A view of a referred type can have the module of
// whoever refers to it.
static void walkSons(SonWalk &walk, AsnType &holder, bool compsOnly)
{
  AsnModule *mod = holder.mod;
  AsnModule *homeMod = holder.homeMod;
  AsnModule *owned = nullptr;
  if (holder.baseModRec != holder.compModRec ||
      holder.baseModRec != mod->rec) {
    owned = newAsnModule(*holder.baseModRec);
    holder.mod = holder.homeMod = owned;
  }
  ModuleCursors cursors = holder.mod->cursors;
  if (!isComponentsOf(holder))
    walk.father.prevCompOptional = false;
  if (walk.step > 0)
    walkForward(walk, holder, compsOnly);
  else
    walkBackward(walk, holder, compsOnly);
  holder.mod->cursors = cursors;
  holder.mod = mod;
  holder.homeMod = homeMod;
  delAsnModule(owned);
}

static void forEachSon(AsnType &father, AsnType &holder, CompCallBack *compCb,
                       ElemCallBack *elemCb, int32_t firstNumber, int step,
                       bool compsOnly)
{
  SavedWalk saved(father);
  father.compIndex = firstNumber;
  SonWalk walk = {.father = father,
                  .compCb = compCb,
                  .elemCb = elemCb,
                  .step = step,
                  .autoTag = firstNumber,
                  .left = recordsOfRun(REC_TNODE)};
  walkSons(walk, holder, compsOnly);
}

void forEachTypeComp(AsnType &type, CompCallBack *cb)
{
  requireCallBack(cb);
  forEachSon(type, type, cb, nullptr, 0, 1, true);
}

void forEachTypeCompRevOrd(AsnType &type, CompCallBack *cb)
{
  requireCallBack(cb);
  forEachSon(type, type, cb, nullptr, type.base.nrComps - 1, -1, true);
}

void forTypeElem(AsnType &type, ElemCallBack *cb)
{
  requireCallBack(cb);
  forEachSon(type, type, nullptr, cb, 0, 1, false);
}

void forEachTypeCompOrElem(AsnType &type, CompCallBack *cb)
{
  requireCallBack(cb);
  forEachSon(type, type, cb, nullptr, 0, 1, !isListType(type));
}

void forEachAdditionGroupComp(AsnType &father, AsnType &group,
                              CompCallBack *cb)
{
  requireCallBack(cb);
  forEachSon(father, group, cb, nullptr, group.compNbr, 1, true);
}

// --- types that a type refers to --------------------------------------------

static bool isReference(const AsnType &type)
{
  return type.firstMainType == TYP_SYNONYM ||
         type.firstMainType == TYP_FIELDLIST;
}

// One synonym or field list step from the current node.
static bool stepReference()
{
  bool isStep = tNode.mainType == TYP_SYNONYM ||
                tNode.mainType == TYP_FIELDLIST;
  return isStep && skipOneType(true);
}

void readSynonymTypeTNode(const AsnType &type, bool step)
{
  readRec(type.baseModRec, REC_TNODE, type.baseRecNr);
  if (tNode.compStatus == TCS_HEADER)
    return;
  if (tNode.compStatus != -TCS_HEADER)
    fatalError(FATAL_INTERNAL, "Unable to find synonym type.");
  readRec(type.compModRec, REC_TNODE, type.compRecNr);
  if (step)
    stepReference();
  ChainGuard guard(type.compModRec, REC_TNODE);
  while (!isTopLevelInstantiatedTNode() && stepReference())
    guard.step();
  if (tNode.compStatus != TCS_HEADER)
    fatalError(FATAL_INTERNAL,
               "Unable to handle parameterized synonym type.");
}

// Builds the type of the current node in the modules of `type` and visits it.
template <class F>
static void visitReferred(const AsnType &type, F visit)
{
  OwnedType owned(type.mod, type.homeMod);
  getTypePath(nullptr, *owned.type, true);
  visit(*owned.type);
}

void forSynonymType(AsnType &type, TypeVisit *cb)
{
  requireCallBack(cb);
  if (!isSynonymType(type))
    return;
  readSynonymTypeTNode(type, true);
  visitReferred(type, [=](AsnType &synonym) { cb(synonym); });
}

void forSynonymAndBaseType(AsnType &type, TypePairVisit *cb)
{
  requireCallBack(cb);
  if (!isSynonymType(type))
    return;
  readSynonymTypeTNode(type, true);
  visitReferred(type, [&](AsnType &synonym) { cb(type, synonym); });
}

void forDefinedBaseType(AsnType &type, TypeVisit *cb)
{
  requireCallBack(cb);
  if (!isReference(type))
    return;
  readSynonymTypeTNode(type, isCompOrElemType(type));
  visitReferred(type, [=](AsnType &base) { cb(base); });
}

void forDefBaseType(AsnType &type, TypePairVisit *cb)
{
  requireCallBack(cb);
  if (!isReference(type))
    return;
  readSynonymTypeTNode(type, isCompOrElemType(type));
  visitReferred(type, [&](AsnType &base) { cb(type, base); });
}

// Visits the definition with that record in a module object of its own.
template <class F>
static void visitInModule(RecPlace place, bool includeHidden,
                          bool followSelection, const char *refusal, F visit)
{
  OwnedModule owned(*place.module);
  if (!selectRecord(*owned.module, SELECT_TYPES, place.index, includeHidden))
    fatalError(FATAL_INTERNAL, refusal);
  OwnedType type(owned.module, owned.module);
  getTypePath(nullptr, *type.type, followSelection);
  visit(*type.type);
}

// The end of the chain that begins at the type's own node.
static RecPlace findTheAnotherModuleOfType(const AsnType &type)
{
  readRec(type.compModRec, REC_TNODE, type.compRecNr);
  skipTypes(true);
  return recJustRead[REC_TNODE];
}

template <class F>
static void visitInAnotherModule(const AsnType &type, F visit)
{
  visitInModule(findTheAnotherModuleOfType(type), false, true, badOtherModule,
                visit);
}

void forTypeDefinedInAnotherModule(AsnType &type, TypeVisit *cb)
{
  requireCallBack(cb);
  if (isReference(type))
    visitInAnotherModule(type, [=](AsnType &base) { cb(base); });
}

void forDefBaseTypeDefinedInAnotherModule(AsnType &type, TypePairVisit *cb)
{
  requireCallBack(cb);
  if (isReference(type) || type.inComponentsOf)
    visitInAnotherModule(type, [&](AsnType &base) { cb(type, base); });
}

// The next node of the type's own chain that is over the module border, or,
// with `stopAtDefined`, a definition; an index of 0 if the type leads
// nowhere.
static RecPlace findTheAnotherModuleOfSynType(const AsnType &type,
                                              bool stopAtDefined)
{
  readRec(type.compModRec, REC_TNODE, type.compRecNr);
  ChainGuard guard(type.compModRec, REC_TNODE);
  RecPlace reached;
  for (bool going = true; going;) {
    bool bySynonym = tNode.mainType == TYP_SYNONYM;
    if (!skipOneType(true))
      break;
    guard.step();
    reached = recJustRead[REC_TNODE];
    going = !bySynonym ||
            !((stopAtDefined && tNode.compStatus == TCS_HEADER) ||
              reached.module != type.compModRec);
  }
  return reached;
}

template <class F>
static void visitNext(const AsnType &type, bool stopAtDefined,
                      const char *refusal, F visit)
{
  RecPlace next = findTheAnotherModuleOfSynType(type, stopAtDefined);
  if (next.index != 0)
    visitInModule(next, true, false, refusal, visit);
}

void forSynonymTypeInAnotherModule(AsnType &type, TypeVisit *cb)
{
  requireCallBack(cb);
  visitNext(type, false, badOtherModule, [=](AsnType &next) { cb(next); });
}

static const char badNextType[] = "Unable to construct AsnType for a type.";

void forNextDefinedType(AsnType &type, TypeVisit *cb)
{
  requireCallBack(cb);
  visitNext(type, true, badNextType, [=](AsnType &next) { cb(next); });
}

void forNextDefinedTypeAndBaseType(AsnType &type, TypePairVisit *cb)
{
  requireCallBack(cb);
  visitNext(type, true, badNextType, [&](AsnType &next) { cb(type, next); });
}

void forBaseTypeModule(AsnType &type, ModuleCallBack *cb)
{
  forModuleOfRecord(type.baseModRec, cb);
}

// To the node that a one-link path names, in the module of a type's base.
static void readLinkedTNode(const AsnType &type)
{
  readRec(type.baseModRec, REC_SNODE, type.base.fieldRef);
  readTNodeOfLink();
}

void forSelectionType(AsnType &type, SelectionVisit *cb)
{
  requireCallBack(cb);
  if (!isSelectionType(type))
    return;
  readRec(type.baseModRec, REC_TNODE, type.baseRecNr);
  readRec(getModPtr(type.baseModRec, tNode.refModule), REC_TNODE, tNode.ref);
  skipTypes(true);
  OwnedType choice(type.mod, type.homeMod);
  getTypePath(nullptr, *choice.type, true);
  readLinkedTNode(type);
  OwnedType alternative(type.mod, type.homeMod);
  getTypePath(choice.type, *alternative.type, true);
  cb(type, *alternative.type, *choice.type);
}

AsnType *getClassifier(AsnType &father, AsnType &any)
{
  if (any.base.fieldRef == 0)
    return nullptr;
  readLinkedTNode(any);
  AsnType *classifier = newAsnType(father.mod, father.homeMod);
  getTypePath(&father, *classifier, true);
  // Its number is its place among the father's components.
  OwnedModule owned(*classifier->compModRec);
  owned.module->cursors.types[SELECT_SPARE_COMPS] = father.base.ref;
  ChainGuard guard(classifier->compModRec, REC_TNODE);
  for (int32_t number = 0;
       nextTNode(*owned.module, SELECT_SPARE_COMPS, true); ++number) {
    guard.step();
    if (recJustRead[REC_TNODE].index == classifier->compRecNr) {
      classifier->compNbr = number;
      return classifier;
    }
  }
  fatalError(FATAL_INTERNAL,
             "Unable to construct AsnType for an ANY DEFINED BY classifier");
}

void forAnyDefinedByClassifierType(AsnType &father, AsnType &any,
                                   ClassifierVisit *cb)
{
  requireCallBack(cb);
  AsnType *classifier = getClassifier(father, any);
  if (!classifier)
    return;
  cb(father, *classifier, any);
  delAsnType(classifier);
}

void forEachTypeCommentOption(AsnType &type, TypeCommentCallBack *cb)
{
  requireCallBack(cb);
  if (!type.commentOptions)
    return;
  // The node by which `commentOptions` was set.
  readTNodeForBegOfSynonymChain(type.compModRec, type.compRecNr);
  ModRec *module = currTPtr[REC_TNODE];
  int32_t last = tNode.lastTed;
  int index = 0;
  for (int32_t i = tNode.firstTed; i <= last; ++i) {
    readRec(module, REC_TED, i);
    const char *text = nullptr;
    if (tedRec.tedKind == TED_BACK_END)
      text = parseBECommentOption(getStri(module, tedRec.text));
    if (text)
      cb(type, text, index++);
  }
}
