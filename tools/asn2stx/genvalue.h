#pragma once
#include "asn2stx/compile.h"

// Value nodes from values as they are written.

// Fills a value node that has been appended (its name, line and status).
// `governor` is the type as written, `at` its node. What does not fit is
// reported.
void genValueInto(Compilation &c, int into, const Scope &scope,
                  const AstValue &value, TypeUse governor, NodeAt at,
                  int32_t node);

// Appends a value without a name, status 2, and fills it; gives its index.
int32_t genValue(Compilation &c, int into, const Scope &scope,
                 const AstValue &value, TypeUse governor, NodeAt at);

// The node in `into` that governs values of a type as written: a definition,
// a builtin type or a hidden node.
int32_t governorNode(Compilation &c, int into, const Scope &scope,
                     const AstType &type);

// Components of a structure as written, through COMPONENTS OF; null: none.
const AstComp *findComp(Compilation &c, TypeUse structure,
                        const std::string &name, const Scope *&scope);

// Values that take more than a payload (genstring.cc, genoid.cc). They set
// the kind and the payload of `node` and append its children.
void genStringValue(Compilation &c, int into, const Scope &scope,
                    const AstValue &value, TypeUse base, NodeAt at,
                    int32_t node);
void genOctetsValue(Compilation &c, int into, const AstValue &value,
                    int32_t node);
void genOidValue(Compilation &c, int into, const Scope &scope,
                 const AstValue &value, bool isRelative, int32_t node);

// Reports a value that does not fit its type.
void valueMisfit(Compilation &c, const AstValue &value);

// An integer as it is known by text and references; false, reported, if the
// value is none. `named` may give named numbers in force, or have no type.
bool integerOf(Compilation &c, const Scope &scope, const AstValue &value,
               TypeUse named, int64_t &number);

// Fills the chain of items of INTEGER, BIT STRING and ENUMERATED.
void genNamedNumbers(Compilation &c, int into, const Scope &scope,
                     const AstType &type, int32_t node);

// A value that carries a type node of `into`.
int32_t typeCarrier(Compilation &c, int into, int32_t typeNode);

// Reports definitions of values that run in a circle.
void checkValueCircles(Compilation &c);
