#pragma once
#include "model/objclassfield.h"
#include "model/object.h"

// What an object gives to the fields of its class. Views of field values are
// made on the stack during a walk and are good during the call-back only; so
// are the types, values and objects that they lead to. A null call-back is
// fatal error 18.

struct AsnObjectFieldValue {
  AsnObject *object = nullptr;
  ModRec *modRec = nullptr;
  int32_t recNr = 0;  // of the value node; 0 for an empty one
  AsnObjClassField *field = nullptr;
  bool isDefault = false;  // the field's default stands in
  bool isEmpty = false;    // neither a value nor a default
};

typedef void ObjectFieldCallBack(AsnObject &object,
                                 AsnObjectFieldValue &fieldValue, int fieldNr);
typedef void OptionalFieldCallBack(AsnObject &object,
                                   AsnObjectFieldValue &fieldValue,
                                   int optionalIndex, int fieldNr);
typedef void TypeOfFieldVisit(AsnObjectFieldValue &fieldValue, AsnType &type);
typedef void ValueOfFieldVisit(AsnObjectFieldValue &fieldValue,
                               AsnValue &value);
typedef void ValueOfFieldCallBack(AsnObjectFieldValue &fieldValue,
                                  AsnValue &value, int index);
typedef void ObjectOfFieldVisit(AsnObjectFieldValue &fieldValue,
                                AsnObject &object);
typedef void ObjectOfFieldCallBack(AsnObjectFieldValue &fieldValue,
                                   AsnObject &object, int index);

// Makes the view of the current value node, neither default nor empty.
void initObjectField(AsnObjectFieldValue &fieldValue, AsnObject &object,
                     AsnObjClassField &field);

// --- The field values of an object of a class with fields; nothing for an
// object of a predefined class.

// Those that the object gives.
void forEachObjectFieldValue(AsnObject &object, ObjectFieldCallBack *cb);

// The same with defaults. A default that stands in takes the place of the
// object's next value, too, unless that is the last one.
void forEachObjectFieldValueAndDefaultValue(AsnObject &object,
                                            ObjectFieldCallBack *cb);

// Those that the object gives to OPTIONAL fields, or to fields with a
// default.
void forEachOptionalObjectFieldValue(AsnObject &object,
                                     OptionalFieldCallBack *cb);

// One for each field of the class, with its default or empty.
void forEachPossibleObjectFieldValue(AsnObject &object,
                                     ObjectFieldCallBack *cb);

// --- What a field value is; nothing for one of another kind or without it.
void forTypeFieldValue(AsnObjectFieldValue &fieldValue, TypeOfFieldVisit *cb);
// As an entry type of its module.
void forEntryTypeFieldValue(AsnObjectFieldValue &fieldValue,
                            TypeOfFieldVisit *cb);
void forFixedTypeValueFieldValue(AsnObjectFieldValue &fieldValue,
                                 ValueOfFieldVisit *cb);
// Each single value, those of ranges of INTEGER too; a range with an open end
// has none.
void forFixedTypeValueSetFieldValue(AsnObjectFieldValue &fieldValue,
                                    ValueOfFieldCallBack *cb);
void forObjectFieldValue(AsnObjectFieldValue &fieldValue,
                         ObjectOfFieldVisit *cb);
// Fatal error 13 if the objects are not just listed; a marker is too much.
void forObjectSetFieldValue(AsnObjectFieldValue &fieldValue,
                            ObjectOfFieldCallBack *cb);

// --- Queries.

// Single values of a value set; 0 for another field value.
int getFixedTypeValueSetFieldSize(AsnObjectFieldValue &fieldValue);
// It is an entry definition, under this name or another.
bool isEntryTypeFieldValue(const AsnObjectFieldValue &fieldValue);
// The main type of the value behind all references; `TYP_NONE` if empty.
int getFieldBaseValueMainType(const AsnObjectFieldValue &fieldValue);
bool isEmptyFieldValue(const AsnObjectFieldValue &fieldValue);
bool isTypeFieldValue(const AsnObjectFieldValue &fieldValue);
bool isFixedTypeValueFieldValue(const AsnObjectFieldValue &fieldValue);
bool isFixedTypeValueSetFieldValue(const AsnObjectFieldValue &fieldValue);
bool isVariableTypeValueFieldValue(const AsnObjectFieldValue &fieldValue);
bool isVariableTypeValueSetFieldValue(const AsnObjectFieldValue &fieldValue);
bool isObjectFieldValue(const AsnObjectFieldValue &fieldValue);
bool isObjectSetFieldValue(const AsnObjectFieldValue &fieldValue);
AsnObject *getObjectOfFieldValue(const AsnObjectFieldValue &fieldValue);
AsnObjClassField *
getObjClassFieldOfFieldValue(const AsnObjectFieldValue &fieldValue);
