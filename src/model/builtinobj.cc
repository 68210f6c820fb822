// Objects in the order of their classes, and the search for built-in ones.

#include "model/builtinobj.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "model/objectset.h"
#include "model/typeiter.h"
#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

static CacheBlock *cache__BuiltinObjInfo;
static CacheBlock *cache__BuiltinObjClassInfo;

BuiltinObjClassInfo *glbClassInfoList;

typedef std::pair<const ModRec *, int32_t> ClassPath;

// Marks of objects.
enum ObjectStatus : uint8_t { OBJECT_VISITED = 1, OBJECT_BUILT_IN = 2 };

// What a visit in class order keeps besides the list of classes; a visit
// inside another has its own.
static struct ClassOrderRun {
  ClassPrefixCallBack *prefixCb = nullptr;
  ClassOrderObjectCallBack *objectCb = nullptr;
  ClassPostfixCallBack *postfixCb = nullptr;
  // By the number of the value node, for each module that was met.
  std::unordered_map<const ModRec *, std::vector<uint8_t>> glbStatusArr;
  std::map<ClassPath, BuiltinObjClassInfo *> classInfos;
  BuiltinObjClassInfo *lastClassInfo = nullptr;
} classOrder;

static ClassPath pathOf(const AsnObjClass &objClass)
{
  return {objClass.baseModRec, objClass.baseRecNr};
}

// Sets a mark; false if the object has it already.
static bool markObject(const ModRec *module, int32_t recNr, uint8_t mark)
{
  std::vector<uint8_t> &marks = classOrder.glbStatusArr[module];
  // A view of the record exists, so that the number is good.
  size_t number = static_cast<size_t>(recNr);
  if (marks.size() <= number)
    marks.resize(module->vNodes.records.size() + 1);
  bool isNew = !(marks[number] & mark);
  marks[number] |= mark;
  return isNew;
}

// --- registering ------------------------------------------------------------

static BuiltinObjClassInfo &classInfoOf(const AsnObjClass &objClass)
{
  BuiltinObjClassInfo *&info = classOrder.classInfos[pathOf(objClass)];
  if (!info) {
    info = cacheNew<BuiltinObjClassInfo>(cache__BuiltinObjClassInfo);
    info->classModule = objClass.baseModRec;
    info->classRecord = objClass.baseRecNr;
    BuiltinObjClassInfo *last = classOrder.lastClassInfo;
    (last ? last->next : glbClassInfoList) = info;
    classOrder.lastClassInfo = info;
  }
  return *info;
}

static void registerBuiltinObject(const AsnObjectFieldValue *fieldValue,
                                  const AsnObject &object)
{
  BuiltinObjClassInfo &classInfo = classInfoOf(*object.objClass);
  BuiltinObjInfo *info = cacheNew<BuiltinObjInfo>(cache__BuiltinObjInfo);
  info->module = object.baseModRec;
  info->record = object.baseRecNr;
  info->isOptional =
      fieldValue && testObjClassFieldOption(*fieldValue->field, optSkip);
  (classInfo.first ? classInfo.last->next : classInfo.first) = info;
  classInfo.last = info;
}

static void visitObjectForBuiltinObjs(AsnObject &object);

// Built-in objects inside built-in objects that are being looked at.
static int builtinNesting;

static void visitObjectFieldValue(const AsnObjectFieldValue *fieldValue,
                                  AsnObject &object)
{
  if (isDefinedBaseObject(object) ||
      !markObject(object.baseModRec, object.baseRecNr, OBJECT_BUILT_IN))
    return;
  registerBuiltinObject(fieldValue, object);
  if (builtinNesting >= maxWalkNesting)
    treeInconsistent(object.baseModRec);
  ++builtinNesting;
  visitObjectForBuiltinObjs(object);
  --builtinNesting;
}

static void visitFieldValue(AsnObject &, AsnObjectFieldValue &fieldValue, int)
{
  if (fieldValue.isEmpty)
    return;
  forObjectFieldValue(fieldValue, [](AsnObjectFieldValue &of, AsnObject &o) {
    visitObjectFieldValue(&of, o);
  });
  forObjectSetFieldValue(fieldValue,
                         [](AsnObjectFieldValue &of, AsnObject &o, int) {
                           visitObjectFieldValue(&of, o);
                         });
}

static void visitObjectForBuiltinObjs(AsnObject &object)
{
  forEachPossibleObjectFieldValue(object, visitFieldValue);
}

void detectBuiltinObjects(AsnModule &module)
{
  forEachObject(module, [](AsnObject &object, int) {
    visitObjectForBuiltinObjs(object);
  });
  forEachObjectSet(module, [](AsnObjectSet &set, int) {
    forObjectSet(set, [](AsnObjectSet &, AsnObject &object, int) {
      visitObjectFieldValue(nullptr, object);
    });
  });
}

void releaseGlobalVars()
{
  while (BuiltinObjClassInfo *info = glbClassInfoList) {
    if (info->first)
      fatalError(FATAL_INTERNAL);
    glbClassInfoList = info->next;
    cacheDelete(info, cache__BuiltinObjClassInfo);
  }
  classOrder.glbStatusArr.clear();
  classOrder.classInfos.clear();
  classOrder.lastClassInfo = nullptr;
}

// --- visits -----------------------------------------------------------------

// The object at the record, which the caller deletes.
static AsnObject *objectAt(AsnModule &module, int32_t recNr)
{
  readRec(module.rec, REC_VNODE, recNr);
  AsnObject *object = newAsnObject(&module, &module);
  getObjectPath(nullptr, *object, FIX_OBJECT);
  return object;
}

// Calls for the object and counts it.
static void visitObject(AsnObject &object, int &nonIgnored, int &all,
                        bool isIgnored)
{
  ModuleCursors cursors = object.mod->cursors;
  if (classOrder.objectCb)
    classOrder.objectCb(*object.objClass, object, nonIgnored, all, isIgnored);
  object.mod->cursors = cursors;
  if (!isIgnored)
    ++nonIgnored;
  ++all;
}

void visitBuiltinObjects(AsnModule &module, BuiltinObjClassInfo &classInfo,
                         int &nonIgnored, int &all, bool isIgnored)
{
  while (BuiltinObjInfo *info = classInfo.first) {
    classInfo.first = info->next;
    AsnModule *other =
        info->module == module.rec ? nullptr : newAsnModule(*info->module);
    AsnObject *object = objectAt(other ? *other : module, info->record);
    visitObject(*object, nonIgnored, all, isIgnored || info->isOptional);
    delAsnObject(object);
    delAsnModule(other);
    cacheDelete(info, cache__BuiltinObjInfo);
  }
  classInfo.last = nullptr;
}

static void callPrefix(AsnObjClass &objClass, bool isIgnored)
{
  if (classOrder.prefixCb)
    classOrder.prefixCb(objClass, isIgnored);
}

static void callPostfix(AsnObjClass &objClass, int nonIgnored, int all,
                        bool isIgnored)
{
  if (classOrder.postfixCb)
    classOrder.postfixCb(objClass, nonIgnored, all, isIgnored);
}

void visitUnvisitedBuiltinObjects(AsnModule &module)
{
  for (BuiltinObjClassInfo *info = glbClassInfoList; info; info = info->next) {
    if (!info->first)
      continue;
    AsnModule *owner = newAsnModule(*info->first->module);
    AsnObject *first = objectAt(*owner, info->first->record);
    bool isIgnored = testObjClassOption(*first->objClass, optSkip);
    int nonIgnored = 0, all = 0;
    callPrefix(*first->objClass, isIgnored);
    visitBuiltinObjects(module, *info, nonIgnored, all, isIgnored);
    callPostfix(*first->objClass, nonIgnored, all, isIgnored);
    delAsnObject(first);
    delAsnModule(owner);
  }
}

// The objects of one class, as they appear.
typedef std::vector<int32_t> ObjectGroup;

// One walk serves all classes: a walk for each would take the square of the
// number of objects.
static std::vector<ObjectGroup> *collectedGroups;
static std::map<ClassPath, size_t> *groupNumbers;

static std::vector<ObjectGroup> groupObjects(AsnModule &module)
{
  std::vector<ObjectGroup> groups;
  std::map<ClassPath, size_t> numbers;
  collectedGroups = &groups;
  groupNumbers = &numbers;
  forEachObject(module, [](AsnObject &object, int) {
    auto [at, isNew] = groupNumbers->insert(
        {pathOf(*object.objClass), collectedGroups->size()});
    if (isNew)
      collectedGroups->emplace_back();
    (*collectedGroups)[at->second].push_back(object.compRecNr);
  });
  return groups;
}

// Calls for an object of the module that was not called for.
static void visitDefinedObject(AsnObject &object, int &nonIgnored, int &all,
                               bool isIgnored)
{
  if (markObject(object.compModRec, object.compRecNr, OBJECT_VISITED))
    visitObject(object, nonIgnored, all, isIgnored);
}

static void visitGroup(AsnModule &module, const ObjectGroup &group,
                       bool builtinToo)
{
  AsnObject *first = objectAt(module, group.front());
  AsnObjClass &objClass = *first->objClass;
  bool isIgnored = testObjClassOption(objClass, optSkip);
  int nonIgnored = 0, all = 0;
  callPrefix(objClass, isIgnored);
  for (int32_t recNr : group) {
    AsnObject *object = objectAt(module, recNr);
    visitDefinedObject(*object, nonIgnored, all, isIgnored);
    delAsnObject(object);
    auto info = classOrder.classInfos.find(pathOf(objClass));
    if (builtinToo && info != classOrder.classInfos.end())
      visitBuiltinObjects(module, *info->second, nonIgnored, all, isIgnored);
  }
  callPostfix(objClass, nonIgnored, all, isIgnored);
  delAsnObject(first);
}

void forEachObjectInClassOrder(AsnModule &module, ClassPrefixCallBack *prefixCb,
                               ClassOrderObjectCallBack *objectCb,
                               ClassPostfixCallBack *postfixCb, bool builtinToo)
{
  if (!prefixCb && !objectCb && !postfixCb)
    fatalError(FATAL_NO_CALL_BACK);
  ModuleCursors before = module.cursors;
  ClassOrderRun outer = std::exchange(classOrder, ClassOrderRun{});
  BuiltinObjClassInfo *outerList = std::exchange(glbClassInfoList, nullptr);
  classOrder.prefixCb = prefixCb;
  classOrder.objectCb = objectCb;
  classOrder.postfixCb = postfixCb;
  if (builtinToo)
    detectBuiltinObjects(module);
  for (const ObjectGroup &group : groupObjects(module))
    visitGroup(module, group, builtinToo);
  if (builtinToo)
    visitUnvisitedBuiltinObjects(module);
  releaseGlobalVars();
  classOrder = std::move(outer);
  glbClassInfoList = outerList;
  module.cursors = before;
}
