#pragma once
#include "asn2stx/compile.h"

// Information object classes, objects and object sets.

// A class with its scope; `builtin` is TYP_TYPE_ID or TYP_ABSTR_STX for the
// predefined ones, which have no `objectClass`; 0: an ordinary class.
struct ClassUse {
  const AstClass *objectClass = nullptr;
  const Scope *scope = nullptr;
  int builtin = 0;
  NodeAt node;  // its TNode
};

// The class that a reference stands for, through synonyms and parameters;
// false, reported, if it is none.
bool resolveClass(Compilation &c, const AstRef &ref, const Scope &scope,
                  ClassUse &found);

// The field's declaration; null if the class has none of this name.
const AstField *findClassField(const ClassUse &objectClass,
                               const std::string &name);

// Fills the node of a class definition (main type TYP_CLASS set) with a node
// for each field. `nodes` of fields are found again by `classFieldNode`.
void genClassInto(Compilation &c, int into, const Scope &scope,
                  const AstClass &objectClass, int32_t node);

// The node of a class's field: in the module of `objectClass.node`.
NodeAt classFieldNode(Compilation &c, const ClassUse &objectClass,
                      const std::string &name);

// Fills the value node of an object. `governor` names its class.
void genObjectInto(Compilation &c, int into, const Scope &scope,
                   const AstType &governor, const AstValue &value,
                   int32_t node);

// Fills the type node of an object set (flag CF_SET): a synonym of its class
// with the objects as constraint.
void genObjectSetInto(Compilation &c, int into, const Scope &scope,
                      const AstType &governor, const AstConstraint &set,
                      int32_t node);

// Fills the node of CLASS.&field (AT_FIELD) and of INSTANCE OF: everything but
// tags and constraints. Also `object.&Type` and `ObjectSet.&field`.
void genFieldTypeInto(Compilation &c, int into, const Scope &scope,
                      const AstType &type, int32_t node);

// The type that CLASS.&field is, if the field's type is fixed: no type for a
// type field or one of variable type.
TypeUse fieldTypeOf(Compilation &c, const AstType &type, const Scope &scope);

// The records of `({Set})` and `({Set}{@path})`: kind 17 or 19. `holder` is
// the structure that the component stands in.
int32_t genTableConstraint(Compilation &c, int into, const Scope &scope,
                           const AstElem &elem, int32_t node);

// The value in a value field of an object: `object.&field`; false, reported,
// if there is none.
bool resolveFieldValue(Compilation &c, const AstValue &value,
                       const Scope &scope, const AstValue *&found,
                       const Scope *&foundScope);
