// Field values. A walk runs along two chains: the fields of the class and the
// values of the object, which name the fields that they are for.

#include "model/fieldvalue.h"
#include "base/diag.h"
#include "model/constraint.h"
#include "model/objectset.h"
#include "model/typeiter.h"
#include "model/valueiter.h"
#include "store/typenode.h"
#include "store/valuenode.h"
#include <set>
#include <unordered_map>
#include <utility>

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

void initObjectField(AsnObjectFieldValue &fieldValue, AsnObject &object,
                     AsnObjClassField &field)
{
  fieldValue.object = &object;
  fieldValue.modRec = currTPtr[REC_VNODE];
  fieldValue.recNr = recJustRead[REC_VNODE].index;
  fieldValue.field = &field;
  fieldValue.isDefault = false;
  fieldValue.isEmpty = false;
}

// --- walks ------------------------------------------------------------------

// Where a walk stands. Nothing of it depends on what a call-back reads.
struct FieldWalk {
  AsnObject &object;
  ModRec *classModule;
  int32_t firstField;
  int32_t nextField;
  int32_t value;  // the current one, 0: none
  int32_t fieldNr = 0;
  explicit FieldWalk(AsnObject &of)
      : object(of), classModule(of.objClass->baseModRec),
        firstField(of.objClass->base.ref), nextField(firstField),
        value(of.base.firstChild)
  {
  }
};

// Makes the next field of the class current; gives its record.
static int32_t readNextField(FieldWalk &walk)
{
  int32_t field = walk.nextField;
  readRec(walk.classModule, REC_TNODE, field);
  walk.nextField = tNode.next;
  return field;
}

// True if the current value is for the field; it is read, if there is one.
static bool isValueOfField(const FieldWalk &walk, int32_t field)
{
  if (walk.value == 0)
    return false;
  ModRec *module = walk.object.baseModRec;
  readRec(module, REC_VNODE, walk.value);
  return vNode.governor == field &&
         getModPtr(module, vNode.governorModule) == walk.classModule;
}

// The value behind the current one; 0 if it is the last.
static int32_t valueBehind(const FieldWalk &walk)
{
  if (walk.value == 0)
    return 0;
  readRec(walk.object.baseModRec, REC_VNODE, walk.value);
  return vNode.next;
}

// Fills both views for the current field and the current value.
static void initFieldViews(const FieldWalk &walk, AsnObjClassField &field,
                           AsnObjectFieldValue &fieldValue)
{
  initObjClassField(field, *walk.object.objClass);
  field.fieldNr = walk.fieldNr;
  initObjectField(fieldValue, walk.object, field);
}

struct FieldCallBacks {
  ObjectFieldCallBack *cb;
  OptionalFieldCallBack *optionalCb;
  int optionalIndex = 0;
};

static void callForField(FieldCallBacks &calls, AsnObject &object,
                         AsnObjectFieldValue &fieldValue)
{
  int fieldNr = fieldValue.field->fieldNr;
  if (calls.cb)
    calls.cb(object, fieldValue, fieldNr);
  else if (isOptionalField(*fieldValue.field))
    calls.optionalCb(object, fieldValue, calls.optionalIndex++, fieldNr);
}

// Calls for the current field, which the current value is for, and steps on to
// the next value.
static void visitGivenValue(FieldWalk &walk, FieldCallBacks &calls)
{
  AsnObjClassField field;
  AsnObjectFieldValue fieldValue;
  initFieldViews(walk, field, fieldValue);
  callForField(calls, walk.object, fieldValue);
  walk.value = valueBehind(walk);
}

// Numbers of the fields of the class, by their records.
typedef std::unordered_map<int32_t, int32_t> FieldNumbers;

static FieldNumbers numberFields(const FieldWalk &walk)
{
  FieldNumbers numbers;
  ChainGuard guard(walk.classModule, REC_TNODE);
  for (int32_t next = walk.firstField; next != 0; next = tNode.next) {
    guard.step();
    readRec(walk.classModule, REC_TNODE, next);
    numbers.emplace(next, static_cast<int32_t>(numbers.size()));
  }
  return numbers;
}

// The values that are left when the fields have run out and begin again. Their
// fields are looked up: a turn for each value would take the square of the
// number of fields.
static void forEachValueOutOfOrder(FieldWalk &walk, ChainGuard &guard,
                                   FieldCallBacks &calls)
{
  ModRec *module = walk.object.baseModRec;
  FieldNumbers numbers = numberFields(walk);
  while (walk.value != 0) {
    guard.step();
    readRec(module, REC_VNODE, walk.value);
    auto found = numbers.find(vNode.governor);
    if (found == numbers.end() || !isValueOfField(walk, found->first))
      treeInconsistent(module);
    readRec(walk.classModule, REC_TNODE, found->first);
    walk.fieldNr = found->second;
    visitGivenValue(walk, calls);
  }
}

// The values that the object gives, in the order of the fields as long as
// they have it; one for no field at all means that the tree is damaged.
static void forEachGivenValue(AsnObject &object, FieldCallBacks &calls)
{
  FieldWalk walk(object);
  ChainGuard guard(object.baseModRec, REC_VNODE);
  ChainGuard fieldGuard(walk.classModule, REC_TNODE);
  for (; walk.value != 0 && walk.nextField != 0; ++walk.fieldNr) {
    fieldGuard.step();
    if (!isValueOfField(walk, readNextField(walk)))
      continue;
    guard.step();
    visitGivenValue(walk, calls);
  }
  if (walk.value != 0)
    forEachValueOutOfOrder(walk, guard, calls);
}

static void forEachGivenOrDefaultValue(AsnObject &object, FieldCallBacks &calls)
{
  FieldWalk walk(object);
  ChainGuard guard(walk.classModule, REC_TNODE);
  for (; walk.nextField != 0; ++walk.fieldNr) {
    guard.step();
    int32_t record = readNextField(walk);
    int32_t defaultValue = tNode.defaultValue;
    bool isGiven = isValueOfField(walk, record);
    if (!isGiven && defaultValue == 0)
      continue;
    if (!isGiven)
      readRec(walk.classModule, REC_VNODE, defaultValue);
    AsnObjClassField field;
    AsnObjectFieldValue fieldValue;
    initFieldViews(walk, field, fieldValue);
    fieldValue.isDefault = !isGiven;
    callForField(calls, object, fieldValue);
    // A default moves the walk on as well, but not beyond the last value.
    if (int32_t next = valueBehind(walk))
      walk.value = next;
  }
}

static void forEachFieldValue(AsnObject &object, FieldCallBacks calls,
                              bool withDefaults)
{
  if (object.base.mainType != TYP_CLASS)
    return;
  if (withDefaults)
    forEachGivenOrDefaultValue(object, calls);
  else
    forEachGivenValue(object, calls);
}

void forEachObjectFieldValue(AsnObject &object, ObjectFieldCallBack *cb)
{
  requireCallBack(cb);
  forEachFieldValue(object, {cb, nullptr}, false);
}

void forEachObjectFieldValueAndDefaultValue(AsnObject &object,
                                            ObjectFieldCallBack *cb)
{
  requireCallBack(cb);
  forEachFieldValue(object, {cb, nullptr}, true);
}

void forEachOptionalObjectFieldValue(AsnObject &object,
                                     OptionalFieldCallBack *cb)
{
  requireCallBack(cb);
  forEachFieldValue(object, {nullptr, cb}, false);
}

void forEachPossibleObjectFieldValue(AsnObject &object, ObjectFieldCallBack *cb)
{
  requireCallBack(cb);
  if (object.base.mainType != TYP_CLASS)
    return;
  FieldWalk walk(object);
  ChainGuard guard(walk.classModule, REC_TNODE);
  for (; walk.nextField != 0; ++walk.fieldNr) {
    guard.step();
    int32_t record = readNextField(walk);
    int32_t defaultValue = tNode.defaultValue;
    bool isGiven = isValueOfField(walk, record);
    if (!isGiven && defaultValue != 0)
      readRec(walk.classModule, REC_VNODE, defaultValue);
    AsnObjClassField field;
    AsnObjectFieldValue fieldValue;
    initFieldViews(walk, field, fieldValue);
    fieldValue.isDefault = !isGiven && defaultValue != 0;
    fieldValue.isEmpty = !isGiven && defaultValue == 0;
    if (fieldValue.isEmpty)
      fieldValue.recNr = 0;
    cb(object, fieldValue, walk.fieldNr);
    if (isGiven)
      walk.value = valueBehind(walk);
  }
}

// --- what a field value is --------------------------------------------------

// What the walks below carry through the call-backs of others; a walk inside
// another puts it back.
static struct FieldValueRun {
  AsnObjectFieldValue *fieldValue = nullptr;
  TypeOfFieldVisit *typeCb = nullptr;
  ValueOfFieldVisit *valueCb = nullptr;
  ValueOfFieldCallBack *valueSetCb = nullptr;
  ObjectOfFieldVisit *objectCb = nullptr;
  ObjectOfFieldCallBack *objectSetCb = nullptr;
  int index = 0;
} glb;

struct SavedRun {
  FieldValueRun outer = glb;
  explicit SavedRun(AsnObjectFieldValue &fieldValue)
  {
    glb = FieldValueRun{};
    glb.fieldValue = &fieldValue;
  }
  ~SavedRun() { glb = outer; }
  SavedRun(const SavedRun &) = delete;
  SavedRun &operator=(const SavedRun &) = delete;
};

// A module object for the module of a record that was read.
struct RecordModule {
  AsnModule *module;
  explicit RecordModule(const RecPlace &place)
      : module(newAsnModule(*place.module))
  {
  }
  ~RecordModule() { delAsnModule(module); }
  RecordModule(const RecordModule &) = delete;
  RecordModule &operator=(const RecordModule &) = delete;
};

static bool isOfKind(const AsnObjectFieldValue &fieldValue, int kind)
{
  return fieldValue.field->fieldKind == kind;
}

static bool hasKind(const AsnObjectFieldValue &fieldValue, int kind)
{
  return isOfKind(fieldValue, kind) && !fieldValue.isEmpty;
}

static void readFieldValue(const AsnObjectFieldValue &fieldValue)
{
  readRec(fieldValue.modRec, REC_VNODE, fieldValue.recNr);
}

// Makes the type node current that the field value carries; false if there is
// none.
static bool readCarriedType(const AsnObjectFieldValue &fieldValue)
{
  readFieldValue(fieldValue);
  if (vNode.firstChild == 0)
    return false;
  readRec(fieldValue.modRec, REC_TNODE, vNode.firstChild);
  return true;
}

void forTypeFieldValue(AsnObjectFieldValue &fieldValue, TypeOfFieldVisit *cb)
{
  requireCallBack(cb);
  if (!hasKind(fieldValue, FIELD_TYPE) || !readCarriedType(fieldValue))
    return;
  AsnModule *module = fieldValue.isDefault
                          ? getModuleOfObjClass(*fieldValue.field->objClass)
                          : getModuleOfObject(*fieldValue.object);
  AsnType *type = newAsnType(module, module);
  type->partialInfo = true;
  getTypePath(nullptr, *type, false);
  cb(fieldValue, *type);
  delAsnType(type);
}

static bool isEntryTNode()
{
  return tNode.compStatus == TCS_HEADER && tNode.entryFlags != 0;
}

// Goes from the carried type along its references to an entry definition,
// which is then current; a constraint on the way makes another type of it.
static bool readEntryType(const AsnObjectFieldValue &fieldValue)
{
  if (!hasKind(fieldValue, FIELD_TYPE) || !readCarriedType(fieldValue))
    return false;
  ChainGuard guard(fieldValue.modRec, REC_TNODE);
  while (!isEntryTNode() && tNode.firstConstraint == 0 &&
         tNode.mainType == TYP_SYNONYM && skipOneType(false))
    guard.step();
  return isEntryTNode();
}

static void visitEntryType(AsnType &type, int)
{
  glb.typeCb(*glb.fieldValue, type);
}

void forEntryTypeFieldValue(AsnObjectFieldValue &fieldValue,
                            TypeOfFieldVisit *cb)
{
  requireCallBack(cb);
  if (!readEntryType(fieldValue))
    return;
  RecPlace entry = recJustRead[REC_TNODE];
  SavedRun saved(fieldValue);
  glb.typeCb = cb;
  RecordModule owned(entry);
  forEntryTypeByRecNr(*owned.module, visitEntryType, entry.index);
}

constexpr int32_t definedValue = 2;

// Follows the references of the field value to a definition, or to the end.
static RecPlace readReferredValue(const AsnObjectFieldValue &fieldValue)
{
  readFieldValue(fieldValue);
  ChainGuard guard(fieldValue.modRec, REC_VNODE);
  while (vNode.valueStatus != definedValue && skipOneValue(false))
    guard.step();
  return recJustRead[REC_VNODE];
}

static void visitValue(AsnValue &value, int)
{
  glb.valueCb(*glb.fieldValue, value);
}

void forFixedTypeValueFieldValue(AsnObjectFieldValue &fieldValue,
                                 ValueOfFieldVisit *cb)
{
  requireCallBack(cb);
  if (!hasKind(fieldValue, FIELD_FIXED_TYPE_VALUE))
    return;
  RecPlace value = readReferredValue(fieldValue);
  int kind = vNode.valueStatus > 1 ? SELECT_VALUES : SELECT_NAMED_NUMBERS;
  SavedRun saved(fieldValue);
  glb.valueCb = cb;
  RecordModule owned(value);
  forValueByRecNr(*owned.module, visitValue, value.index, kind);
}

static void visitObject(AsnObject &object, int)
{
  glb.objectCb(*glb.fieldValue, object);
}

void forObjectFieldValue(AsnObjectFieldValue &fieldValue,
                         ObjectOfFieldVisit *cb)
{
  requireCallBack(cb);
  if (!hasKind(fieldValue, FIELD_OBJECT))
    return;
  RecPlace object = readReferredValue(fieldValue);
  SavedRun saved(fieldValue);
  glb.objectCb = cb;
  RecordModule owned(object);
  forObjectByRecNr(*owned.module, visitObject, object.index);
}

// --- sets -------------------------------------------------------------------

// Makes the node of the set current that the field value is, the end of bare
// references; false if it has no constraint.
static bool readSetOfField(const AsnObjectFieldValue &fieldValue)
{
  if (!readCarriedType(fieldValue))
    return false;
  ChainGuard guard(fieldValue.modRec, REC_TNODE);
  while (tNode.compStatus != TCS_HEADER && tNode.firstConstraint == 0 &&
         !isSetTNode() && tNode.mainType == TYP_SYNONYM && skipOneType(false))
    guard.step();
  return tNode.firstConstraint != 0;
}

static void visitObjectOfSet(AsnObject &object, int)
{
  glb.objectSetCb(*glb.fieldValue, object, glb.index);
  ++glb.index;
}

void forObjectSetFieldValue(AsnObjectFieldValue &fieldValue,
                            ObjectOfFieldCallBack *cb)
{
  requireCallBack(cb);
  if (!hasKind(fieldValue, FIELD_OBJECT_SET) || !readSetOfField(fieldValue))
    return;
  SavedRun saved(fieldValue);
  glb.objectSetCb = cb;
  readRec(currTPtr[REC_TNODE], REC_SUB, tNode.firstConstraint);
  constructSetObjects(visitObjectOfSet, false);
}

typedef std::set<std::pair<const ModRec *, int32_t>> RecordSet;

// Along the current node's chain to a node with a constraint, that one
// included; false at the end.
static bool skipSubReclessTNodes(ChainGuard &guard)
{
  while (tNode.firstConstraint == 0) {
    if (!skipOneType(true))
      return false;
    guard.step();
  }
  return true;
}

static bool skipSubRecTNode(ChainGuard &guard)
{
  guard.step();
  return skipOneType(true);
}

// Constraints of the type's chain that stand on a type, not on a set.
static RecordSet findRealConstraints(const AsnType &type)
{
  RecordSet found;
  readTNodeForBegOfSynonymChain(type.compModRec, type.compRecNr);
  ChainGuard guard(type.compModRec, REC_TNODE);
  bool isThere = skipSubReclessTNodes(guard);
  while (isThere) {
    if (!isSetTNode())
      found.insert({currTPtr[REC_TNODE], tNode.firstConstraint});
    isThere = skipSubRecTNode(guard) && skipSubReclessTNodes(guard);
  }
  return found;
}

static void removeConstraint(AsnType &type)
{
  delFstNode(type.constraints);
  --type.nrConstraints;
}

// Leaves those constraints that tell of the values of the set itself.
static void removeRealConstraints(AsnType &type)
{
  RecordSet real = findRealConstraints(type);
  NodeList kept{type.constraints.kind};
  while (const NodeElemRec *element = type.constraints.first) {
    if (real.count({element->module, element->index}))
      removeConstraint(type);
    else
      mvFstNode(kept, type.constraints);
  }
  while (kept.first)
    mvFstNode(type.constraints, kept);
}

static void constructSingleValueValueSet(AsnType &, AsnValue &value)
{
  glb.valueSetCb(*glb.fieldValue, value, glb.index);
  ++glb.index;
}

static bool isFiniteInteger(const AsnValue &value)
{
  return value.base.mainType == TYP_INTEGER && !isPlusInfinity(value) &&
         !isMinusInfinity(value);
}

// The view of the lower end becomes each number in turn.
static void constructRangeValueSet(AsnType &type, AsnValue &lower,
                                   bool lowerClosed, AsnValue &upper,
                                   bool upperClosed)
{
  if (type.base.mainType != TYP_INTEGER || !isFiniteInteger(lower) ||
      !isFiniteInteger(upper))
    return;
  sint64 number = payloadInt64(lower.base);
  sint64 last = payloadInt64(upper.base);
  if (!lowerClosed)
    i64addl(number, number, 1);
  if (!upperClosed)
    i64subl(last, last, 1);
  // Neither is an infinity, so that a number ahead of the last has a next.
  for (; i64cmp(number, last) <= 0; i64addl(number, number, 1)) {
    setPayloadInt64(lower.base, number);
    constructSingleValueValueSet(type, lower);
  }
}

static void constructOperand(AsnType &type, AsnConstraint &operand, int);

static void constructValueSet(AsnType &type, AsnConstraint *constraint)
{
  switch (getConstraintKind(*constraint)) {
  case SUB_UNION:
    forUnionConstraint(type, *constraint, constructOperand);
    break;
  case SUB_RANGE:
    forValueRangeConstraint(type, *constraint, constructRangeValueSet);
    break;
  case SUB_SINGLE_VALUE:
    forSingleValueConstraint(type, *constraint, constructSingleValueValueSet);
    break;
  default:
    break;
  }
}

static void constructOperand(AsnType &type, AsnConstraint &operand, int)
{
  constructValueSet(type, &operand);
}

static void constructValueSetType(AsnType &type, int)
{
  removeRealConstraints(type);
  forEachTypeConstraint(type, constructValueSet);
}

void forFixedTypeValueSetFieldValue(AsnObjectFieldValue &fieldValue,
                                    ValueOfFieldCallBack *cb)
{
  requireCallBack(cb);
  if (!hasKind(fieldValue, FIELD_FIXED_TYPE_VALUE_SET) ||
      !readSetOfField(fieldValue))
    return;
  RecPlace set = recJustRead[REC_TNODE];
  SavedRun saved(fieldValue);
  glb.valueSetCb = cb;
  RecordModule owned(set);
  forTypeByRecNr(*owned.module, constructValueSetType, SELECT_VALUE_SETS,
                 set.index);
}

static int countedValues;

int getFixedTypeValueSetFieldSize(AsnObjectFieldValue &fieldValue)
{
  countedValues = 0;
  forFixedTypeValueSetFieldValue(
      fieldValue,
      [](AsnObjectFieldValue &, AsnValue &, int) { ++countedValues; });
  return countedValues;
}

// --- queries ----------------------------------------------------------------

bool isEntryTypeFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return readEntryType(fieldValue);
}

int getFieldBaseValueMainType(const AsnObjectFieldValue &fieldValue)
{
  if (fieldValue.isEmpty)
    return TYP_NONE;
  readFieldValue(fieldValue);
  skipValues(true);
  return vNode.mainType;
}

bool isEmptyFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return fieldValue.isEmpty;
}

bool isTypeFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return isOfKind(fieldValue, FIELD_TYPE);
}

bool isFixedTypeValueFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return isOfKind(fieldValue, FIELD_FIXED_TYPE_VALUE);
}

bool isFixedTypeValueSetFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return isOfKind(fieldValue, FIELD_FIXED_TYPE_VALUE_SET);
}

bool isVariableTypeValueFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return isOfKind(fieldValue, FIELD_VARIABLE_TYPE_VALUE);
}

bool isVariableTypeValueSetFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return isOfKind(fieldValue, FIELD_VARIABLE_TYPE_VALUE_SET);
}

bool isObjectFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return isOfKind(fieldValue, FIELD_OBJECT);
}

bool isObjectSetFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return isOfKind(fieldValue, FIELD_OBJECT_SET);
}

AsnObject *getObjectOfFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return fieldValue.object;
}

AsnObjClassField *
getObjClassFieldOfFieldValue(const AsnObjectFieldValue &fieldValue)
{
  return fieldValue.field;
}
