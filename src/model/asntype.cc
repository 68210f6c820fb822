// Construction of types.
//
// A son is built in two passes over its synonym chain. The first collects:
// option words, tags, embedding options, constraints, size bounds. The second
// applies the back-end's options of each node, when the meta record is there.
// Nodes are read through the one type buffer, which is left at the end of the
// chain; what a view needs of its own node is copied before the first step.

#include "model/asntype.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "model/modelcalls.h"
#include "model/tags.h"
#include "model/typeiter.h"
#include "model/typepath.h"
#include "options/fixrec.h"
#include <algorithm>

static CacheBlock *cache__AsnType;

// Sons get meta records and back-end options.
static bool createBETypMeta = true;

// A constructor of meta records is running: it must not build types.
static bool inBETypMetaConstructor;

static void clearBit(uint32_t &options, int bit)
{
  options &= ~(uint32_t{1} << bit);
}

static void setBit(uint32_t &options, int bit) { options |= uint32_t{1} << bit; }

static bool hasBit(uint32_t options, int bit) { return options >> bit & 1; }

AsnType *newAsnType(AsnModule *mod, AsnModule *homeMod)
{
  AsnType *type = cacheNew<AsnType>(cache__AsnType);
  type->mod = mod;
  type->homeMod = homeMod;
  type->alive = true;
  return type;
}

void clearAsnType(AsnType &type)
{
  delDynaNodes(type.tagsFirst, type.tagsLast);
  deleteNodes(type.constraints);
  if (type.metaRec)
    deleteBETypMetaRec(type, type.metaRec);
  freeValueSetOfType(type);
  type = AsnType{};
  type.alive = true;
}

void delAsnType(AsnType *type)
{
  if (!type || !type->alive)
    return;
  clearAsnType(*type);
  type->alive = false;
  cacheDelete(type, cache__AsnType);
}

bool setCreateBETypMetaFlag(bool flag)
{
  bool old = createBETypMeta;
  createBETypMeta = flag;
  return old;
}

// --- chains -----------------------------------------------------------------

void readTNodeForBegOfSynonymChain(ModRec *module, int32_t recNr)
{
  readRec(module, REC_TNODE, recNr);
  if (isInstantiatedTNode())
    readRec(getModPtr(module, tNode.refModule), REC_TNODE, tNode.ref);
}

void skipTypesCatchInst(bool followFieldLists, NodeContext &context)
{
  bool caught = false;
  ChainGuard guard(currTPtr[REC_TNODE], REC_TNODE);
  do {
    guard.step();
    if (!caught && isTopLevelInstantiatedTNode()) {
      saveNodeContext(REC_TNODE, &context);
      caught = true;
    }
  } while (skipOneType(followFieldLists));
}

// What the first pass over a chain gathers besides the son itself.
struct ChainInfo {
  uint32_t options = 0;  // of all nodes but the last
  int tagState = 1;
  NodeContext lastDefined;    // the node that names the base
  bool stillSaving = true;    // an instance on the way ends the saving
};

// One view's place in the walk over a chain.
struct ChainWalk {
  AsnType &son;
  ChainInfo *info;  // null: the second pass
  bool first = true;
  bool followSelection;
};

static void getTypeSpecificBEOpts(AsnType &type, bool first)
{
  if (!createBETypMeta || tNode.firstTed == 0)
    return;
  ModRec *module = currTPtr[REC_TNODE];
  int32_t last = tNode.lastTed;
  for (int32_t i = tNode.firstTed; i <= last; ++i) {
    readRec(module, REC_TED, i);
    if (tedRec.tedKind != TED_BACK_END)
      continue;
    const char *text = getStri(module, tedRec.text);
    if (!parseBECommentOption(text))
      typeBEOptionOK(type, type.metaRec, text);
    else if (first)
      type.commentOptions = true;
  }
}

static void addConstraint(AsnType &son)
{
  if (tNode.firstConstraint == 0)
    return;
  readRec(currTPtr[REC_TNODE], REC_SUB, tNode.firstConstraint);
  addFstNode(son.constraints);
  ++son.nrConstraints;
  if (son.synonymSteps == 0)
    ++son.nrLocalConstraints;
}

// Narrows the size bounds by those of the current node.
static void updateSonEndpoints(AsnType &son)
{
  if (i64cmp(tNode.lowerEndpoint, son.sizeLower) > 0)
    son.sizeLower = tNode.lowerEndpoint;
  if (i64cmp(tNode.upperEndpoint, son.sizeUpper) < 0)
    son.sizeUpper = tNode.upperEndpoint;
}

static void getSynonymTypeInfo(AsnType &son, ChainInfo &info)
{
  info.options |= tNode.nodeOptions;
  getTagsAndEmbeddingOpts(son, info.tagState);
  addConstraint(son);
  updateSonEndpoints(son);
  ++son.synonymSteps;
  uint8_t choice = tNode.typeOptions.definiteLength;
  if (currTPtr[REC_TNODE]->options.definiteLen >= 2 && choice != 255 &&
      son.typeOptions.definiteLength == 255)
    son.typeOptions.definiteLength = choice;
}

// What is done with the current node before a step leaves it.
static void takeNode(ChainWalk &walk)
{
  if (walk.info)
    getSynonymTypeInfo(walk.son, *walk.info);
  else
    getTypeSpecificBEOpts(walk.son, walk.first);
  walk.first = false;
}

// The node that a step has reached may be the last defined one.
static void saveDefined(ChainWalk &walk, bool bySynonym)
{
  if (!walk.info || !walk.info->stillSaving)
    return;
  bool isInstance = bySynonym && isInstantiatedTNode();
  if (!isInstance || isTopLevelInstantiatedTNode())
    saveNodeContext(REC_TNODE, &walk.info->lastDefined);
  walk.info->stillSaving = !isInstance;
}

// One step from the current node; false at the end of the chain.
static bool stepChain(ChainWalk &walk)
{
  switch (tNode.mainType) {
  case TYP_SYNONYM:
    if (tNode.ref == 0)
      return false;
    break;
  case TYP_SELECTION:
    if (tNode.fieldRef == 0 || !walk.followSelection)
      return false;
    break;
  case TYP_FIELDLIST:
    if (tNode.fieldRef == 0)
      return false;
    break;
  default:
    return false;
  }
  bool bySynonym = tNode.mainType == TYP_SYNONYM;
  takeNode(walk);
  skipOneType(true);
  saveDefined(walk, bySynonym);
  return true;
}

static void goThroughSynonymChain(ChainWalk &walk)
{
  ChainGuard guard(currTPtr[REC_TNODE], REC_TNODE);
  while (stepChain(walk))
    guard.step();
}

// --- the son ----------------------------------------------------------------

static void initSonCommon(AsnType *father, AsnType &son)
{
  getFixRec(son.compFix,
            tNode.compStatus == TCS_HEADER ? FIX_TYPE : FIX_COMP);
  son.father = father;
  son.entryFlags = father ? 0 : tNode.entryFlags;
  son.entryCategory = father ? 0 : tNode.entryCategory;
  son.sizeLower = tNode.lowerEndpoint;
  son.sizeUpper = tNode.upperEndpoint;
  son.compModRec = currTPtr[REC_TNODE];
  son.compRecNr = recJustRead[REC_TNODE].index;
  son.compStatus = tNode.compStatus;
  son.defaultValue = tNode.defaultValue;
  son.stamp = tNode.stamp;
  son.fieldRef = tNode.fieldRef;
  son.firstMainType = tNode.mainType;
  son.typeOptions = tNode.typeOptions;
  son.nodeFlags = tNode.nodeFlags;
}

// What an instance takes from the parameterised type, which becomes current.
static void initInstance(AsnType &son, bool topLevel)
{
  readTNodeForBegOfSynonymChain(son.compModRec, son.compRecNr);
  son.firstMainType = tNode.mainType;
  son.nodeFlags |= tNode.nodeFlags | NF_INSTANTIATED;
  if (topLevel)
    son.nodeFlags |= NF_TOP_LEVEL_INSTANTIATED;
  son.typeOptions.definiteLength = tNode.typeOptions.definiteLength;
}

static bool isInstance(const AsnType &type)
{
  return type.nodeFlags & NF_INSTANTIATED;
}

static bool isTopLevelInstance(const AsnType &type)
{
  return type.nodeFlags & NF_TOP_LEVEL_INSTANTIATED;
}

// The names of the base: those of the last defined node of the chain.
static void setLastCompId(AsnType &son, const ChainInfo &info)
{
  if ((son.baseModRec == son.compModRec && son.baseRecNr == son.compRecNr) ||
      isTopLevelInstance(son)) {
    son.baseFix = son.compFix;
  } else if (isInstance(son) && son.father) {
    son.baseFix = son.father->baseFix;
  } else {
    SavedNode saved(REC_TNODE);
    restoreNodeContext(REC_TNODE, &info.lastDefined);
    getFixRec(son.baseFix, FIX_TYPE);
  }
}

// Walks the chain from the current node and leaves its end current.
static void initSon(AsnType *father, AsnType &son, ChainInfo &info,
                    bool followSelection)
{
  saveNodeContext(REC_TNODE, &info.lastDefined);
  bool instantiated = isInstantiatedTNode();
  bool topLevel = isTopLevelInstantiatedTNode();
  initSonCommon(father, son);
  if (instantiated)
    initInstance(son, topLevel);
  ChainWalk walk{son, &info, true, followSelection};
  goThroughSynonymChain(walk);
  updateSonEndpoints(son);
  son.baseModRec = currTPtr[REC_TNODE];
  son.baseRecNr = recJustRead[REC_TNODE].index;
  if (instantiated)
    son.firstMainType = tNode.mainType;
  setLastCompId(son, info);
}

// Text is generated by the number of components: a wild one must not get
// there.
static void checkNrComps(const AsnType &son)
{
  if (son.base.nrComps < 0 || son.base.nrComps > recordsOfRun(REC_TNODE))
    treeInconsistent(son.baseModRec);
}

static void initSonTNode(AsnType &son)
{
  son.base = tNode;
  checkNrComps(son);
  bool leadsOn = son.firstMainType == TYP_SYNONYM ||
                 son.firstMainType == TYP_SELECTION ||
                 son.firstMainType == TYP_FIELDLIST;
  if (isTopLevelInstance(son))
    son.base.compStatus = son.compStatus;
  else if (son.base.compStatus == -TCS_HEADER && leadsOn && !isInstance(son))
    son.base.compStatus = TCS_HEADER;
}

static bool isListMainType(int mainType)
{
  return mainType == TYP_SEQOF || mainType == TYP_SETOF;
}

// Options of the son that its own chain decides.
static void setOwnOptions(AsnType &son, uint32_t chainOptions)
{
  uint32_t &options = son.base.nodeOptions;
  int mainType = son.base.mainType;
  bool opaque = mainType == TYP_ANY || mainType == TYP_OPEN ||
                mainType == TYP_FIELDLIST;
  if (!opaque && hasBit(options, optHomeList) && isListMainType(mainType)) {
    clearBit(options, optHomeList);
    setBit(options, optHomeElems);
  }
  for (int bit : {+optSkip, +optInherited15})
    if (hasBit(chainOptions, bit))
      setBit(options, bit);
}

// Options of the son that its father has a say in.
static void setFatherOptions(const AsnType &father, AsnType &son,
                             uint32_t chainOptions)
{
  uint32_t &options = son.base.nodeOptions;
  uint32_t fathers = father.base.nodeOptions;
  int mainType = father.base.mainType;
  bool structured = mainType >= TYP_SEQ && mainType <= TYP_CHOICE;
  bool recursive = son.compStatus != TCS_HEADER &&
                   son.base.compStatus == TCS_HEADER &&
                   (son.nodeFlags & NF_RECURSIVE) && !hasBit(options, optSkip);
  if (hasBit(fathers, optAsnhc) ||
      (structured && hasBit(chainOptions, optAsnHome)))
    setBit(options, optAsnHome);
  if (hasBit(fathers, optPtrComps) ||
      (structured && hasBit(chainOptions, optPointer)) || recursive)
    setBit(options, optPointer);
  bool homes = hasBit(fathers, optHomeList) || hasBit(fathers, optHomeElems);
  if (hasBit(fathers, optPtrComps) || homes)
    clearBit(options, optAsnhc);
  if (hasBit(fathers, optAsnhc) || homes || hasBit(fathers, optFrame))
    clearBit(options, optPointer);
}

// What an anonymous son takes from its father.
static void takeFromFather(AsnType &father, AsnType &son)
{
  if (son.base.compStatus == TCS_HEADER)
    return;
  bool isElement = son.base.compStatus == TCS_MULTIPLE ||
                   (isInstance(son) && son.compStatus == TCS_MULTIPLE);
  if (isElement) {
    son.level = static_cast<int16_t>(father.level + 1);
    if (father.base.compStatus != TCS_HEADER)
      son.compFix = father.compFix;
  }
  son.baseFix = father.baseFix;
}

static void makeMetaRec(AsnType &son)
{
  if (!createBETypMeta)
    return;
  if (inBETypMetaConstructor)
    fatalError(FATAL_INTERNAL,
               "Type iterator called inside BETypMetaRec constructor.");
  ModuleCursors cursors;
  saveAsnModState(*son.mod, cursors);
  inBETypMetaConstructor = true;
  son.metaRec = newBETypMetaRec(son);
  inBETypMetaConstructor = false;
  restoreAsnModState(*son.mod, cursors);
}

// The second pass: the back-end's options of each node of the chain.
static void applyBEOptions(AsnType &son, bool followSelection)
{
  readTNodeForBegOfSynonymChain(son.compModRec, son.compRecNr);
  ChainWalk walk{son, nullptr, true, followSelection};
  goThroughSynonymChain(walk);
  getTypeSpecificBEOpts(son, walk.first);
}

void getTypePath(AsnType *father, AsnType &son, bool followSelection)
{
  getTypePathN(father, son, followSelection, 0);
}

void getTypePathN(AsnType *father, AsnType &son, bool followSelection,
                  int autoTagNr)
{
  ChainInfo info;
  initSon(father, son, info, followSelection);
  getTagsAndEmbeddingOpts(son, info.tagState);
  initSonTags(father, son, info.tagState, autoTagNr);
  initSonTNode(son);
  for (int bit : {+optEmbedding, +optClearedBit2, +optNaming})
    clearBit(son.base.nodeOptions, bit);
  addConstraint(son);
  setOwnOptions(son, info.options);
  if (father) {
    takeFromFather(*father, son);
    son.typePath = typePathInUse() ? getPath() : nullptr;
    setFatherOptions(*father, son, info.options);
  }
  makeMetaRec(son);
  applyBEOptions(son, followSelection);
}

// --- plain reads ------------------------------------------------------------

int32_t getUniqueTypeNr(const AsnType &type) { return type.compRecNr - 1; }

int32_t getUniqueBaseTypeNr(const AsnType &type) { return type.baseRecNr - 1; }

BETypMetaRec *getBETypMetaRec(const AsnType &type) { return type.metaRec; }

int getTypeDefinitionLevel(const AsnType &type) { return type.level; }

int32_t getTypeDefinitionLine(const AsnType &type) { return type.base.line; }

bool isPartialTypeInfo(const AsnType &type) { return type.partialInfo; }

bool isTheSameTypeModule(const AsnType &type, const AsnType &other)
{
  return type.compModRec == other.compModRec;
}

bool isBaseTypeInCurrentModule(const AsnType &type)
{
  if (type.compModRec != type.baseModRec)
    return false;
  return !type.inComponentsOf ||
         (type.father && type.father->baseModRec == type.compModRec);
}
