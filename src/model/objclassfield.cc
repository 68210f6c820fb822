// Fields of classes.

#include "model/objclassfield.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/objchain.h"
#include "model/typeiter.h"
#include <cstdio>

template <class F>
static void requireCallBack(F *cb)
{
  if (!cb)
    fatalError(FATAL_NO_CALL_BACK);
}

// --- the view ---------------------------------------------------------------

// Asks for a class first: the name and the flags of an object field are those
// of a value field.
static int fieldKindOfNode()
{
  bool isSet = isSetTNode();
  {
    SavedNode saved(REC_TNODE);
    skipTypes(true);
    if (isClassMainType(tNode.mainType))
      return isSet ? FIELD_OBJECT_SET : FIELD_OBJECT;
  }
  bool isVariable = isVariabTypeFieldTNode();
  if (isValFieldTNode())
    return isVariable ? FIELD_VARIABLE_TYPE_VALUE : FIELD_FIXED_TYPE_VALUE;
  if (isValSetFieldTNode())
    return isVariable ? FIELD_VARIABLE_TYPE_VALUE_SET
                      : FIELD_FIXED_TYPE_VALUE_SET;
  return FIELD_TYPE;
}

void initObjClassField(AsnObjClassField &field, AsnObjClass &objClass)
{
  field.objClass = &objClass;
  field.fieldKind = fieldKindOfNode();
  field.fieldNr = 0;
  field.modRec = currTPtr[REC_TNODE];
  field.recNr = recJustRead[REC_TNODE].index;
  getFixRec(field.fix, FIX_FIELD);
  field.node = tNode;
}

void forEachObjClassField(AsnObjClass &objClass, ClassFieldCallBack *cb)
{
  requireCallBack(cb);
  if (objClass.base.mainType != TYP_CLASS)
    return;
  ChainGuard guard(objClass.baseModRec, REC_TNODE);
  int32_t fieldNr = 0;
  for (int32_t next = objClass.base.ref; next != 0; ++fieldNr) {
    guard.step();
    readRec(objClass.baseModRec, REC_TNODE, next);
    // Taken first: the call-back may read what it likes.
    next = tNode.next;
    AsnObjClassField field;
    initObjClassField(field, objClass);
    field.fieldNr = fieldNr;
    cb(objClass, field, fieldNr);
  }
}

// --- fields by kind ---------------------------------------------------------

static void readField(const AsnObjClassField &field)
{
  readRec(field.modRec, REC_TNODE, field.recNr);
}

// Visits the type of the current node in a module of its own.
static void visitFieldType(AsnObjClassField &field, FieldTypeVisit *cb)
{
  AsnModule *module = newAsnModule(*currTPtr[REC_TNODE]);
  AsnType *type = newAsnType(module, module);
  getTypePath(nullptr, *type, true);
  cb(field, *type);
  delAsnType(type);
  delAsnModule(module);
}

void forTypeField(AsnObjClassField &field, FieldVisit *cb)
{
  requireCallBack(cb);
  if (isTypeField(field))
    cb(field);
}

void forFixedTypeValueField(AsnObjClassField &field, FieldTypeVisit *cb)
{
  requireCallBack(cb);
  if (!isFixedTypeValueField(field))
    return;
  readField(field);
  skipTypes(true);
  visitFieldType(field, cb);
}

void forFixedTypeValueSetField(AsnObjClassField &field, FieldTypeVisit *cb)
{
  requireCallBack(cb);
  if (!isFixedTypeValueSetField(field))
    return;
  readField(field);
  ChainGuard guard(field.modRec, REC_TNODE);
  while (tNode.mainType == TYP_SYNONYM && skipOneType(false))
    guard.step();
  RecPlace end = recJustRead[REC_TNODE];
  if (selectObjTNode(end.module, SELECT_VALUE_SETS, end.index, true) ||
      selectObjTNode(end.module, SELECT_TYPES, end.index, true))
    visitFieldType(field, cb);
}

// The place of a node among the fields of the class; their count if it is
// none of them.
static int32_t numberOfField(const AsnObjClass &objClass, RecPlace place)
{
  ChainGuard guard(objClass.baseModRec, REC_TNODE);
  int32_t number = 0;
  for (int32_t next = objClass.base.ref; next != 0; next = tNode.next) {
    guard.step();
    if (place.module == objClass.baseModRec && place.index == next)
      break;
    readRec(objClass.baseModRec, REC_TNODE, next);
    ++number;
  }
  return number;
}

static void visitTypeField(AsnObjClassField &field, FieldPairVisit *cb)
{
  readField(field);
  if (tNode.mainType != TYP_FIELDLIST || tNode.fieldRef == 0)
    return;
  skipFieldList();
  AsnObjClassField typeField;
  initObjClassField(typeField, *field.objClass);
  typeField.fieldNr =
      numberOfField(*field.objClass, {typeField.modRec, typeField.recNr});
  cb(field, typeField);
}

void forVariableTypeField(AsnObjClassField &field, FieldPairVisit *cb)
{
  requireCallBack(cb);
  if (isVariableTypeValueField(field) || isVariableTypeValueSetField(field))
    visitTypeField(field, cb);
}

void forVariableTypeValueField(AsnObjClassField &field, FieldPairVisit *cb)
{
  requireCallBack(cb);
  if (isVariableTypeValueField(field))
    visitTypeField(field, cb);
}

void forVariableTypeValueSetField(AsnObjClassField &field, FieldPairVisit *cb)
{
  requireCallBack(cb);
  if (isVariableTypeValueSetField(field))
    visitTypeField(field, cb);
}

// Leaves the buffer on the class that governs the field: the topmost node of
// an instance, or the end of the chain.
static void readClassOfField(const AsnObjClassField &field)
{
  static const ObjChainRules rules = {
      .definitionFix = FIX_CLASS,
      .skipFieldList = skipClassFieldList,
      .refusesSelections = true,
  };
  readField(field);
  ChainGuard guard(field.modRec, REC_TNODE);
  while (!isTopLevelInstantiatedTNode() && stepObjChain(rules))
    guard.step();
}

static AsnObjClass *
createGovernorClassForClassField(const AsnObjClassField &field)
{
  readClassOfField(field);
  AsnModule *module = newAsnModule(*currTPtr[REC_TNODE]);
  AsnObjClass *objClass = newAsnObjClass(module, module);
  getClassPath(nullptr, *objClass);
  return objClass;
}

static void visitClass(AsnObjClassField &field, FieldClassVisit *cb)
{
  AsnObjClass *objClass = createGovernorClassForClassField(field);
  cb(field, *objClass);
  delGovernorClass(objClass);
}

void forClassField(AsnObjClassField &field, FieldClassVisit *cb)
{
  requireCallBack(cb);
  if (isObjectField(field) || isObjectSetField(field))
    visitClass(field, cb);
}

void forObjectField(AsnObjClassField &field, FieldClassVisit *cb)
{
  requireCallBack(cb);
  if (isObjectField(field))
    visitClass(field, cb);
}

void forObjectSetField(AsnObjClassField &field, FieldClassVisit *cb)
{
  requireCallBack(cb);
  if (isObjectSetField(field))
    visitClass(field, cb);
}

// --- defaults ---------------------------------------------------------------

void forDefaultTypeFieldValue(AsnObjClassField &field, FieldTypeVisit *cb)
{
  requireCallBack(cb);
  if (!isTypeField(field) || !isDefaultFieldValue(field))
    return;
  readRec(field.modRec, REC_VNODE, field.node.defaultValue);
  if (vNode.firstChild == 0)
    return;
  readRec(field.modRec, REC_TNODE, vNode.firstChild);
  AsnType *type = newAsnType(field.objClass->mod, field.objClass->homeMod);
  type->partialInfo = true;
  getTypePath(nullptr, *type, false);
  cb(field, *type);
  delAsnType(type);
}

void forDefaultValueFieldValue(AsnObjClassField &field, FieldValueVisit *cb)
{
  requireCallBack(cb);
  bool isValue =
      isFixedTypeValueField(field) || isVariableTypeValueField(field);
  if (isValue && isDefaultFieldValue(field) && verboseEx >= 2)
    fprintf(stderr, "\n** Warning: forDefaultValueFieldValue not yet "
                    "implemented.\n");
}

// --- queries ----------------------------------------------------------------

AsnObjClass *getObjClassOfField(const AsnObjClassField &field)
{
  return field.objClass;
}

int getObjClassFieldKind(const AsnObjClassField &field)
{
  return field.fieldKind;
}

int32_t getObjClassFieldNr(const AsnObjClassField &field)
{
  return field.fieldNr;
}

bool testObjClassFieldOption(const AsnObjClassField &field, int bit)
{
  return field.node.nodeOptions >> bit & 1;
}

bool isTypeField(const AsnObjClassField &field)
{
  return field.fieldKind == FIELD_TYPE;
}

bool isFixedTypeValueField(const AsnObjClassField &field)
{
  return field.fieldKind == FIELD_FIXED_TYPE_VALUE;
}

bool isFixedTypeValueSetField(const AsnObjClassField &field)
{
  return field.fieldKind == FIELD_FIXED_TYPE_VALUE_SET;
}

bool isVariableTypeValueField(const AsnObjClassField &field)
{
  return field.fieldKind == FIELD_VARIABLE_TYPE_VALUE;
}

bool isVariableTypeValueSetField(const AsnObjClassField &field)
{
  return field.fieldKind == FIELD_VARIABLE_TYPE_VALUE_SET;
}

bool isObjectField(const AsnObjClassField &field)
{
  return field.fieldKind == FIELD_OBJECT;
}

bool isObjectSetField(const AsnObjClassField &field)
{
  return field.fieldKind == FIELD_OBJECT_SET;
}

bool isOptionalField(const AsnObjClassField &field)
{
  return field.node.compStatus == TCS_OPTIONAL;
}

bool isMandatoryField(const AsnObjClassField &field)
{
  return field.node.compStatus == TCS_MANDATORY;
}

bool isDefaultFieldValue(const AsnObjClassField &field)
{
  return field.node.defaultValue != 0;
}

bool isUniqueField(const AsnObjClassField &field)
{
  return field.node.nodeFlags & NF_UNIQUE;
}

std::string &getObjClassFieldRef(std::string &text, const char *prefix,
                                 const AsnObjClassField &field,
                                 const char *suffix)
{
  return between(text, prefix, plainFixName(field.fix), suffix);
}

std::string &getObjClassFieldId(std::string &text, const char *prefix,
                                const AsnObjClassField &field,
                                const char *suffix)
{
  return between(text, prefix, printedFixName(field.fix), suffix);
}
