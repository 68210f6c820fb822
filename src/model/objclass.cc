// Views of classes, and what may be asked of them.

#include "model/objclass.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/objchain.h"
#include "model/object.h"
#include "model/objectset.h"
#include "model/typeiter.h"

static CacheBlock *cache__AsnObjClass;

bool inBEClassMetaConstructor;

const char *const targetLangClassArr[2] = {"TYPE_IDENTIFIER",
                                           "ABSTRACT_SYNTAX"};

AsnObjClass *newAsnObjClass(AsnModule *mod, AsnModule *homeMod)
{
  AsnObjClass *objClass = cacheNew<AsnObjClass>(cache__AsnObjClass);
  objClass->mod = mod;
  objClass->homeMod = homeMod;
  objClass->alive = true;
  return objClass;
}

static void freeOwned(AsnObjClass &objClass)
{
  delDynaNodes(objClass.embeddingFirst, objClass.embeddingLast);
  if (objClass.metaRec)
    deleteBEClassMetaRec(objClass.metaRec);
  objClass.metaRec = nullptr;
}

void delAsnObjClass(AsnObjClass *objClass)
{
  if (!objClass || !objClass->alive)
    return;
  freeOwned(*objClass);
  *objClass = AsnObjClass{};
  cacheDelete(objClass, cache__AsnObjClass);
}

void delGovernorClass(AsnObjClass *governor)
{
  if (!governor)
    return;
  AsnModule *module = governor->mod;
  governor->alive = true;
  delAsnObjClass(governor);
  delAsnModule(module);
}

// --- construction -----------------------------------------------------------

// A path goes on even if it leads into a predefined class.
void skipClassFieldList()
{
  readLastLinkOfField();
  readTNodeOfLink();
}

static const ObjChainRules classRules = {
    .definitionFix = FIX_CLASS,
    .skipFieldList = skipClassFieldList,
    .refusesSelections = true,
};

// The kind of names of the current node.
static int fixKindOfNode()
{
  if (tNode.compStatus == TCS_HEADER)
    return FIX_CLASS;
  return isObjSetTNode() ? FIX_OBJECT_SET : FIX_FIELD;
}

static bool hasName(const AsnObjClass &objClass)
{
  return *orEmpty(objClass.compFix.id) || *orEmpty(objClass.baseFix.id);
}

static void makeMetaRec(AsnObjClass &objClass)
{
  if (inBEClassMetaConstructor)
    fatalError(FATAL_INTERNAL,
               "Class iterator called inside BEClassMetaRec constructor.");
  if (!objClass.alive || !hasName(objClass))
    return;
  ModuleCursors cursors;
  saveAsnModState(*objClass.mod, cursors);
  inBEClassMetaConstructor = true;
  objClass.metaRec = newBEClassMetaRec();
  inBEClassMetaConstructor = false;
  restoreAsnModState(*objClass.mod, cursors);
}

static void getClassSpecificBEOpts(AsnObjClass &objClass)
{
  if (!objClass.alive)
    return;
  applyObjChainLines(objClass, classRules, [&](const char *text) {
    if (objClass.metaRec)
      classBEOptionOK(objClass, *objClass.metaRec, text);
  });
}

void getClassPath(AsnObjClass *father, AsnObjClass &objClass)
{
  buildObjView(father, objClass, classRules, fixKindOfNode());
  makeMetaRec(objClass);
  getClassSpecificBEOpts(objClass);
}

// --- governors --------------------------------------------------------------

// To the definition on the chain of references that begins at the current
// node, or to its end.
static void skipToDefinition()
{
  ChainGuard guard(currTPtr[REC_TNODE], REC_TNODE);
  while (tNode.mainType == TYP_SYNONYM && tNode.compStatus != TCS_HEADER &&
         skipOneType(false))
    guard.step();
}

// The record in the module that the number means, seen from `from`.
static AsnObjClass *newGovernor(ModRec *from, int32_t moduleIndex,
                                int32_t recNr, bool skipsReferences)
{
  ModRec *rec = getModPtr(from, moduleIndex);
  if (!rec || !selectObjTNode(rec, SELECT_CLASSES, recNr, true))
    return nullptr;
  AsnModule *module = newAsnModule(*rec);
  AsnObjClass *governor = newAsnObjClass(module, module);
  governor->alive = false;
  if (skipsReferences)
    skipToDefinition();
  getClassPath(nullptr, *governor);
  readRec(rec, REC_TNODE, recNr);
  if (tNode.mainType == TYP_SYNONYM && !hasName(*governor)) {
    skipToDefinition();
    getFixRec(governor->compFix, FIX_CLASS);
  }
  return governor;
}

AsnObjClass *governorForAsnObject(const AsnObject &object, int32_t moduleIndex,
                                  int32_t recNr)
{
  return newGovernor(object.compModRec, moduleIndex, recNr, true);
}

AsnObjClass *governorForAsnObjectSet(const AsnObjectSet &objectSet,
                                     int32_t moduleIndex, int32_t recNr)
{
  return newGovernor(objectSet.compModRec, moduleIndex, recNr, false);
}

// --- visits -----------------------------------------------------------------

// Fills a view that has its modules with the next definition, or deletes it.
static AsnObjClass *takeNextObjClass(AsnModule &module, AsnObjClass *objClass)
{
  if (!nextTNode(module, SELECT_CLASSES, false)) {
    delAsnObjClass(objClass);
    return nullptr;
  }
  getClassPath(nullptr, *objClass);
  return objClass;
}

AsnObjClass *firstObjClass(AsnModule &module)
{
  module.cursors.types[SELECT_CLASSES] = module.rec->firstType;
  return takeNextObjClass(module, newAsnObjClass(&module, &module));
}

AsnObjClass *nextObjClass(AsnObjClass *objClass)
{
  freeOwned(*objClass);
  AsnObjClass fresh;
  fresh.mod = objClass->mod;
  fresh.homeMod = objClass->homeMod;
  fresh.alive = objClass->alive;
  *objClass = fresh;
  return takeNextObjClass(*objClass->mod, objClass);
}

void forEachObjClass(AsnModule &module, ClassIndexCallBack *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  ModuleCursors before = module.cursors;
  ChainGuard guard(module.rec, REC_TNODE);
  int index = 0;
  for (AsnObjClass *objClass = firstObjClass(module); objClass;
       objClass = nextObjClass(objClass)) {
    guard.step();
    ModuleCursors cursors = module.cursors;
    cb(*objClass, index++);
    module.cursors = cursors;
  }
  module.cursors = before;
}

// The end of the chain that begins at the class's own node, selections not
// followed.
static RecPlace findTheAnotherModuleOfObjClass(const AsnObjClass &objClass)
{
  static const ObjChainRules rules = {
      .definitionFix = FIX_CLASS,
      .skipFieldList = skipClassFieldList,
      .refusesSelections = false,
  };
  readRec(objClass.compModRec, REC_TNODE, objClass.compRecNr);
  ChainGuard guard(objClass.compModRec, REC_TNODE);
  while (stepObjChain(rules))
    guard.step();
  if (tNode.mainType != TYP_CLASS)
    fatalError(FATAL_INTERNAL,
               "Non ObjectClass TNode found in the end of chain");
  return recJustRead[REC_TNODE];
}

void forObjClassDefinedInAnotherModule(AsnObjClass &objClass, ClassVisit *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  if (objClass.firstMainType != TYP_SYNONYM &&
      !isClassMainType(objClass.firstMainType))
    return;
  RecPlace end = findTheAnotherModuleOfObjClass(objClass);
  if (!selectObjTNode(end.module, SELECT_CLASSES, end.index, false))
    fatalError(FATAL_INTERNAL, "Unable to construct AsnObjClass for a class "
                               "defined in another module.");
  AsnModule *module = newAsnModule(*end.module);
  AsnObjClass *base = newAsnObjClass(module, module);
  getClassPath(nullptr, *base);
  cb(*base);
  delAsnObjClass(base);
  delAsnModule(module);
}

void forEachObjClassCommentOption(AsnObjClass &objClass,
                                  ClassCommentCallBack *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
  if (!objClass.commentOptions)
    return;
  // The node by which `commentOptions` was set.
  readTNodeForBegOfSynonymChain(objClass.compModRec, objClass.compRecNr);
  ModRec *module = currTPtr[REC_TNODE];
  int32_t last = tNode.lastTed;
  int index = 0;
  for (int32_t i = tNode.firstTed; i <= last; ++i) {
    readRec(module, REC_TED, i);
    if (tedRec.tedKind != TED_BACK_END)
      continue;
    if (const char *text = parseBECommentOption(getStri(module, tedRec.text)))
      cb(objClass, text, index++);
  }
}

// --- queries ----------------------------------------------------------------

bool testObjClassOption(const AsnObjClass &objClass, int bit)
{
  return objClass.base.nodeOptions >> bit & 1;
}

bool isPredefinedObjClass(const AsnObjClass &objClass)
{
  int mainType = objClass.base.mainType;
  if (!isClassMainType(mainType))
    fatalError(FATAL_INTERNAL,
               "Using class method with a non-class construct.");
  return mainType != TYP_CLASS;
}

bool isBaseObjClassInCurrentModule(const AsnObjClass &objClass)
{
  return objClass.compModRec == objClass.baseModRec;
}

bool isOptionalObjClassFields(const AsnObjClass &objClass)
{
  return objClass.base.nodeFlags & NF_OPTIONAL_COMPS;
}

bool isPartialClassInfo(const AsnObjClass &objClass)
{
  return !objClass.alive;
}

bool isInstantiatedClass(const AsnObjClass &objClass)
{
  return objClass.nodeFlags & NF_INSTANTIATED;
}

bool isObjClassCommentOption(const AsnObjClass &objClass)
{
  return objClass.commentOptions;
}

int32_t getNrOfObjClassFields(const AsnObjClass &objClass)
{
  return objClass.base.nrComps;
}

int32_t getUniqueObjClassNr(const AsnObjClass &objClass)
{
  return objClass.compRecNr - 1;
}

int32_t getUniqueBaseObjClassNr(const AsnObjClass &objClass)
{
  return objClass.baseRecNr - 1;
}

AsnModule *getModuleOfObjClass(const AsnObjClass &objClass)
{
  return objClass.homeMod;
}

int32_t getClassDefinitionLine(const AsnObjClass &objClass)
{
  return objClass.base.line;
}

BEClassMetaRec *getBEClassMetaRec(const AsnObjClass &objClass)
{
  return objClass.metaRec;
}

int32_t getObjClassStamp(AsnObjClass &objClass)
{
  readRec(objClass.compModRec, REC_TNODE, objClass.compRecNr);
  return objClass.stamp = tNode.stamp;
}

int32_t getBaseObjClassStamp(AsnObjClass &objClass)
{
  readRec(objClass.baseModRec, REC_TNODE, objClass.baseRecNr);
  return objClass.base.stamp = tNode.stamp;
}

void setObjClassStamp(AsnObjClass &objClass, int32_t stamp)
{
  stampTNode(objClass.compModRec, objClass.compRecNr, stamp);
  objClass.stamp = tNode.stamp;
}

void setBaseObjClassStamp(AsnObjClass &objClass, int32_t stamp)
{
  stampTNode(objClass.baseModRec, objClass.baseRecNr, stamp);
  objClass.base.stamp = tNode.stamp;
}

// --- texts ------------------------------------------------------------------

static const char noClass[] =
    "Trying to take objectclassreference from a non-class construct.";

std::string &getObjClassRef(std::string &text, const char *prefix,
                            const AsnObjClass &objClass, const char *suffix)
{
  return between(text, prefix, plainFixName(objClass.compFix), suffix);
}

std::string &getDefObjClassId(std::string &text, const char *prefix,
                              const AsnObjClass &objClass, const char *suffix)
{
  const FixRec &fix =
      objClass.compStatus == TCS_HEADER ? objClass.compFix : objClass.baseFix;
  return between(text, prefix, printedFixName(fix), suffix);
}

std::string &getBaseObjClassRef(std::string &text, const char *prefix,
                                const AsnObjClass &objClass, const char *suffix)
{
  int mainType = objClass.base.mainType;
  if (!isClassMainType(mainType))
    fatalError(FATAL_INTERNAL, noClass);
  return between(text, prefix,
                 mainType == TYP_CLASS ? plainFixName(objClass.baseFix)
                                       : orEmpty(typeRow(mainType).asnName),
                 suffix);
}

std::string &getBaseObjClassId(std::string &text, const char *prefix,
                               const AsnObjClass &objClass, const char *suffix)
{
  int mainType = objClass.base.mainType;
  if (!isClassMainType(mainType))
    fatalError(FATAL_INTERNAL, noClass);
  return between(text, prefix,
                 mainType == TYP_CLASS
                     ? printedFixName(objClass.baseFix)
                     : targetLangClassArr[mainType - TYP_TYPE_ID],
                 suffix);
}
