#pragma once
#include "model/objclass.h"

// Fields of classes: views that are made on the stack while the fields are
// walked, good during the call-back only. A null call-back is fatal error 18.

enum ObjClassFieldKind : int {
  FIELD_TYPE = 0,
  FIELD_FIXED_TYPE_VALUE = 1,
  FIELD_FIXED_TYPE_VALUE_SET = 2,
  FIELD_VARIABLE_TYPE_VALUE = 3,
  FIELD_VARIABLE_TYPE_VALUE_SET = 4,
  FIELD_OBJECT = 5,
  FIELD_OBJECT_SET = 6
};

struct AsnObjClassField {
  AsnObjClass *objClass = nullptr;
  int fieldKind = FIELD_TYPE;
  int32_t fieldNr = 0;  // among the fields of its class
  ModRec *modRec = nullptr;
  int32_t recNr = 0;
  FixRec fix;
  TNode node;
};

typedef void ClassFieldCallBack(AsnObjClass &objClass, AsnObjClassField &field,
                                int fieldNr);
typedef void FieldVisit(AsnObjClassField &field);
typedef void FieldTypeVisit(AsnObjClassField &field, AsnType &type);
typedef void FieldValueVisit(AsnObjClassField &field, AsnValue &value);
typedef void FieldPairVisit(AsnObjClassField &field,
                            AsnObjClassField &typeField);
typedef void FieldClassVisit(AsnObjClassField &field, AsnObjClass &objClass);

// Makes the view of the current type node, as field 0.
void initObjClassField(AsnObjClassField &field, AsnObjClass &objClass);

// Nothing for a predefined class.
void forEachObjClassField(AsnObjClass &objClass, ClassFieldCallBack *cb);

// --- What a field of a kind is governed by; nothing for another kind.
void forTypeField(AsnObjClassField &field, FieldVisit *cb);
void forFixedTypeValueField(AsnObjClassField &field, FieldTypeVisit *cb);
void forFixedTypeValueSetField(AsnObjClassField &field, FieldTypeVisit *cb);
// The type field that a field of variable type refers to. One that is not of
// the class has the number behind the last one.
void forVariableTypeField(AsnObjClassField &field, FieldPairVisit *cb);
void forVariableTypeValueField(AsnObjClassField &field, FieldPairVisit *cb);
void forVariableTypeValueSetField(AsnObjClassField &field, FieldPairVisit *cb);
void forClassField(AsnObjClassField &field, FieldClassVisit *cb);
void forObjectField(AsnObjClassField &field, FieldClassVisit *cb);
void forObjectSetField(AsnObjClassField &field, FieldClassVisit *cb);

// --- Defaults. Those of value fields are never visited: a warning takes the
// place of the call.
void forDefaultTypeFieldValue(AsnObjClassField &field, FieldTypeVisit *cb);
void forDefaultValueFieldValue(AsnObjClassField &field, FieldValueVisit *cb);

// --- Queries.
AsnObjClass *getObjClassOfField(const AsnObjClassField &field);
int getObjClassFieldKind(const AsnObjClassField &field);
int32_t getObjClassFieldNr(const AsnObjClassField &field);
bool testObjClassFieldOption(const AsnObjClassField &field, int bit);
bool isTypeField(const AsnObjClassField &field);
bool isFixedTypeValueField(const AsnObjClassField &field);
bool isFixedTypeValueSetField(const AsnObjClassField &field);
bool isVariableTypeValueField(const AsnObjClassField &field);
bool isVariableTypeValueSetField(const AsnObjClassField &field);
bool isObjectField(const AsnObjClassField &field);
bool isObjectSetField(const AsnObjClassField &field);
bool isOptionalField(const AsnObjClassField &field);  // or with a default
bool isMandatoryField(const AsnObjClassField &field);
bool isDefaultFieldValue(const AsnObjClassField &field);
bool isUniqueField(const AsnObjClassField &field);

// The name in ASN.1, resp. in C, between `prefix` and `suffix`.
std::string &getObjClassFieldRef(std::string &text, const char *prefix,
                                 const AsnObjClassField &field,
                                 const char *suffix);
std::string &getObjClassFieldId(std::string &text, const char *prefix,
                                const AsnObjClassField &field,
                                const char *suffix);
