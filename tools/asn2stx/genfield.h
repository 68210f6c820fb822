#pragma once
#include "asn2stx/genobject.h"

// What the files on classes and objects share: fields, and the objects and
// settings that a path of fields leads to.

enum FieldKind : uint8_t {
  FK_TYPE,
  FK_VALUE,
  FK_VALUE_SET,
  FK_VARIABLE_VALUE,  // the type is in another field
  FK_VARIABLE_SET,
  FK_OBJECT,
  FK_OBJECT_SET
};

// Value status of field values, and of objects that stand in a set.
constexpr int32_t fieldValueStatus = 3;

// The fields of a class, of the predefined ones too.
const AstClass &classText(const ClassUse &objectClass);

FieldKind fieldKindOf(Compilation &c, const ClassUse &objectClass,
                      const AstField &field);

// True if both are one class.
bool isSameClass(const ClassUse &a, const ClassUse &b);

// The node of a class and of its field for records of `into`: those of the
// predefined classes and of instances are made in `into`.
NodeAt classNodeFor(Compilation &c, int into, ClassUse &objectClass);
NodeAt fieldNodeFor(Compilation &c, int into, ClassUse &objectClass,
                    const AstField &field);

// An object in its braces, with its class.
struct ObjectUse {
  ClassUse objectClass;
  AstBraces *braces = nullptr;
  const Scope *scope = nullptr;
  AsnPos pos;
};

// The object that a value stands for, through references, parameters and
// fields. `objectClass` is that of an object in braces, null if none is known.
// False, reported, if it is no object.
bool resolveObject(Compilation &c, const AstValue &value, const Scope &scope,
                   const ClassUse *objectClass, ObjectUse &found);

// What a field of an object is set to, or its default.
struct FieldUse {
  ClassUse objectClass;
  const AstField *field = nullptr;
  const AstType *type = nullptr;
  const AstValue *value = nullptr;
  const AstConstraint *set = nullptr;
  const Scope *scope = nullptr;
};

// The setting at the end of a path of fields from an object; false, reported,
// if there is none.
bool resolveFieldPath(Compilation &c, ObjectUse object,
                      const std::vector<std::string> &fields,
                      const std::vector<AsnPos> &fieldPos, FieldUse &found);

// One field of one object; false, reported unless `mayLack`, if it has no
// setting and no default.
bool settingOf(Compilation &c, const ObjectUse &object, const std::string &name,
               AsnPos pos, bool mayLack, FieldUse &found);

// What `object.&Type` is, or a value set; false, reported, if it is neither.
bool typeInObject(Compilation &c, const AstType &type, const Scope &scope,
                  FieldUse &found);

// The governor in a scope below `scope`, where a name that no text can have
// stands for it: a set and its governor may come from different modules.
TypeUse governorIn(Compilation &c, TypeUse governor, const Scope &scope);

// The object that `reference.&field...` begins with.
bool objectOfRef(Compilation &c, const AstRef &ref, const Scope &scope,
                 ObjectUse &found);

// The type that governs a field of variable type in one object; null type,
// reported at `pos`, if the object has none.
TypeUse variableTypeOf(Compilation &c, const ObjectUse &object,
                       const AstField &field, AsnPos pos);

// A node in `into` for a type that is set: its definition's or a hidden one.
int32_t settingTypeNode(Compilation &c, int into, const Scope &scope,
                        const AstType &type);

// A hidden value set in `into`.
int32_t hiddenValueSet(Compilation &c, int into, TypeUse governor,
                       const AstConstraint &set, const Scope &scope);

// Fills the value node of an object of the class.
void genObject(Compilation &c, int into, const Scope &scope,
               ClassUse &objectClass, const AstValue &value, int32_t node);

// The class of an object set; false, reported, if the name is no object set.
bool classOfSet(Compilation &c, const AstRef &ref, const Scope &scope,
                ClassUse &found);
