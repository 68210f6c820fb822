#pragma once
#include "asn2stx/compile.h"

// Names: modules, imports, definitions, parameters.

// What a search looks for.
enum WalkKind {
  WALK_KIND,
  WALK_TYPE,
  WALK_OBJECT,
  WALK_OBJECT_NAME,
  WALK_FIELD,
  WALK_VALUE,
  WALK_VARIABLE_TYPE,
  WALK_OBJECTS,
  WALK_OID,
  WALK_COMPS,
  WALK_COMP_NODE
};

// One search within others while it lives. One that meets itself runs in a
// circle; one that is nested too deeply is given up.
struct Walk {
  Compilation &c;
  bool isCircle = false;
  bool isTooDeep = false;

  Walk(Compilation &compilation, WalkKind kind, const void *what,
       const Scope *scope);
  ~Walk() { c.walks.pop_back(); }
  Walk(const Walk &) = delete;
  bool isGood() const { return !isCircle && !isTooDeep; }
};

// Reports a search that is not good; `shown` is what it looks for.
void tellWalk(const Walk &walk, AsnPos pos, const std::string &shown);

// Fills the tables of all modules and settles what each name stands for.
// Duplicates, unknown imports and circles are reported.
void resolveModules(Compilation &c);

// What a name found. Exactly one of the two is there, or none.
struct Found {
  Definition *def = nullptr;
  const Binding *binding = nullptr;
  explicit operator bool() const { return def || binding; }
};

// Looks a reference up: parameters of the scope, its module, its imports. The
// first form reports what is not there, the second says nothing.
Found lookUp(Compilation &c, const AstRef &ref, const Scope &scope);
Found findName(Compilation &c, const AstRef &ref, const Scope &scope);

// What a reference stands for in a scope, through parameters.
DefKind kindOf(Compilation &c, const AstRef &ref, const Scope &scope);

// True if the governor of a value or set names a class.
bool governsObjects(Compilation &c, const AstType &governor,
                    const Scope &scope);

// The type behind references, parameters and selections: no AT_REFERENCE and
// no AT_SELECTION; AT_FIELD of fixed type is followed, of other fields it
// stays. Null type, reported once, if there is none or it runs in a circle.
TypeUse baseType(Compilation &c, const AstType &type, const Scope &scope);

// One step of it: what a reference refers to; null type at the end.
TypeUse nextType(Compilation &c, const AstType &type, const Scope &scope);

// The value, object or set behind a reference that is a parameter: as long as
// `value` is a reference to a parameter, the actual and its scope.
void skipValueParameters(Compilation &c, const AstValue *&value,
                         const Scope *&scope);

// The main type of a type as written; TYP_SYNONYM for a reference, TYP_OPEN
// for other fields than those of fixed type.
int mainTypeOf(const AstType &type);

// The number by which the tree of `into` refers to a module: 1 for itself,
// else that of its import entry, appended if there is none.
int32_t moduleNumber(Compilation &c, int into, int module);

// The import entry of the predefined module ISO8824.
int32_t predefinedModule(Compilation &c, int into);
