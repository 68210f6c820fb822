// Views of objects. Their chain of references is walked twice, as that of a
// value: to its end, and then for the back-end's options of each node.

#include "model/object.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/asnvalue.h"
#include "model/objchain.h"
#include "model/valuechain.h"
#include "store/valuenode.h"

static CacheBlock *cache__AsnObject;

// Status of an object of its own, as opposed to one in place.
constexpr int32_t definedObject = 2;

// Flags that references hand on: all but those of naming and visibility.
constexpr uint8_t chainFlagMask = 242;

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

AsnObject *newAsnObject(AsnModule *mod, AsnModule *homeMod)
{
  AsnObject *object = cacheNew<AsnObject>(cache__AsnObject);
  object->mod = mod;
  object->homeMod = homeMod;
  object->alive = true;
  return object;
}

static void freeOwned(AsnObject &object)
{
  if (object.metaRec)
    deleteBEObjMetaRec(object.metaRec);
  delGovernorClass(object.objClass);
}

void delAsnObject(AsnObject *object)
{
  if (!object || !object->alive)
    return;
  freeOwned(*object);
  *object = AsnObject{};
  cacheDelete(object, cache__AsnObject);
}

// --- construction -----------------------------------------------------------

static void applyBEOptions(AsnObject &object)
{
  object.commentOptions = forEachValueChainOption(
      object.compModRec, object.compRecNr, [&](const char *text) {
        objectBEOptionOK(object, *object.metaRec, text);
      });
}

static void initBase(AsnObject &object, int fixKind)
{
  uint8_t chainFlags = skipValueChain();
  object.baseModRec = currTPtr[REC_VNODE];
  object.baseRecNr = recJustRead[REC_VNODE].index;
  if (object.baseModRec == object.compModRec &&
      object.baseRecNr == object.compRecNr)
    object.baseFix = object.compFix;
  else
    getFixRec(object.baseFix, fixKind);
  object.base = vNode;
  object.base.valueFlags |= chainFlags & chainFlagMask;
}

void getObjectPath(AsnObject *father, AsnObject &object, int fixKind)
{
  int32_t governor = vNode.governor;
  int32_t governorModule = vNode.governorModule;
  getFixRec(object.compFix, fixKind);
  object.father = father;
  object.compModRec = currTPtr[REC_VNODE];
  object.compRecNr = recJustRead[REC_VNODE].index;
  object.compStatus = vNode.valueStatus;
  initBase(object, fixKind);
  object.objClass = governorForAsnObject(object, governorModule, governor);
  if (!object.objClass)
    fatalError(FATAL_INTERNAL);
  object.metaRec = newBEObjMetaRec();
  applyBEOptions(object);
}

// --- visits -----------------------------------------------------------------

// Fills a view that has its modules with the next object, or deletes it.
static AsnObject *takeNextObject(AsnModule &module, AsnObject *object)
{
  if (!nextVNode(module, SELECT_OBJECTS, false)) {
    delAsnObject(object);
    return nullptr;
  }
  getObjectPath(nullptr, *object, FIX_OBJECT);
  return object;
}

AsnObject *firstObject(AsnModule &module)
{
  module.cursors.values[SELECT_OBJECTS] = module.rec->firstValue;
  return takeNextObject(module, newAsnObject(&module, &module));
}

AsnObject *nextObject(AsnObject *object)
{
  freeOwned(*object);
  AsnObject fresh;
  fresh.mod = object->mod;
  fresh.homeMod = object->homeMod;
  fresh.alive = true;
  *object = fresh;
  return takeNextObject(*object->mod, object);
}

// Visits each object of the module, numbered.
template <class F>
static void walkObjects(AsnModule &module, F f)
{
  ModuleCursors before = module.cursors;
  ChainGuard guard(module.rec, REC_VNODE);
  int index = 0;
  for (AsnObject *object = firstObject(module); object;
       object = nextObject(object)) {
    guard.step();
    ModuleCursors cursors = module.cursors;
    f(*object, index++);
    module.cursors = cursors;
  }
  module.cursors = before;
}

void forEachObject(AsnModule &module, ObjectIndexCallBack *cb)
{
  requireCallBack(cb);
  walkObjects(module, cb);
}

// Looks at no other node than `nextVNode` would accept.
static bool selectObject(ModRec *module, int32_t recNr)
{
  if (recNr == 0)
    return false;
  readRec(module, REC_VNODE, recNr);
  return vNode.valueStatus != 0 && vNode.valueStatus != 1 && isObjVNode();
}

void forObjectByRecNr(AsnModule &module, ObjectIndexCallBack *cb, int32_t recNr)
{
  requireCallBack(cb);
  if (!selectObject(module.rec, recNr))
    return;
  ModuleCursors before = module.cursors;
  AsnObject *object = newAsnObject(&module, &module);
  getObjectPath(nullptr, *object, FIX_OBJECT);
  cb(*object, 0);
  delAsnObject(object);
  module.cursors = before;
}

bool isSameBaseObjClass(const AsnObjClass &a, const AsnObjClass &b)
{
  return a.baseModRec == b.baseModRec && a.baseRecNr == b.baseRecNr;
}

void forEachObjectOfClass(AsnModule &module, AsnObjClass &objClass,
                          ClassObjectCallBack *cb, ClassCountCallBack *endCb)
{
  requireCallBack(cb);
  requireCallBack(endCb);
  int count = 0;
  walkObjects(module, [&](AsnObject &object, int) {
    if (isSameBaseObjClass(*object.objClass, objClass))
      cb(objClass, object, count++);
  });
  if (count > 0)
    endCb(objClass, count);
}

// --- queries ----------------------------------------------------------------

int32_t getUniqueObjectNr(const AsnObject &object)
{
  return object.compRecNr - 1;
}

int32_t getUniqueBaseObjectNr(const AsnObject &object)
{
  return object.baseRecNr - 1;
}

AsnObjClass *getObjClassOfObject(const AsnObject &object)
{
  return object.objClass;
}

int32_t getObjectCompStatus(const AsnObject &object)
{
  return object.compStatus;
}

int32_t getBaseObjectCompStatus(const AsnObject &object)
{
  return object.base.valueStatus;
}

bool isDefinedObject(const AsnObject &object)
{
  return object.compStatus == definedObject;
}

bool isDefinedBaseObject(const AsnObject &object)
{
  return object.base.valueStatus == definedObject;
}

BEObjMetaRec *getBEObjMetaRec(const AsnObject &object)
{
  return object.metaRec;
}

AsnModule *getModuleOfObject(const AsnObject &object)
{
  return object.homeMod;
}

int32_t getObjectDefinitionLine(const AsnObject &object)
{
  return object.base.line;
}

std::string &getObjectRef(std::string &text, const char *prefix,
                          const AsnObject &object, const char *suffix)
{
  return between(text, prefix, plainFixName(object.compFix), suffix);
}

std::string &getBaseObjectRef(std::string &text, const char *prefix,
                              const AsnObject &object, const char *suffix)
{
  return between(text, prefix, plainFixName(object.baseFix), suffix);
}

std::string &getObjectId(std::string &text, const char *prefix,
                         const AsnObject &object, const char *suffix)
{
  return between(text, prefix, printedFixName(object.compFix), suffix);
}

std::string &getBaseObjectId(std::string &text, const char *prefix,
                             const AsnObject &object, const char *suffix)
{
  return between(text, prefix, printedFixName(object.baseFix), suffix);
}
