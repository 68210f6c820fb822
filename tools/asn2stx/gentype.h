#pragma once
#include "asn2stx/compile.h"

// Type nodes from types as they are written.

// Fills the node, which has been appended with its name, status and line.
void genTypeInto(Compilation &c, int into, const Scope &scope,
                 const AstType &type, int32_t node);

// Appends a node without a name and fills it; it is on no chain and hidden.
int32_t genHiddenType(Compilation &c, int into, const Scope &scope,
                      const AstType &type);

// Fills the node of a value set: its governor, with the set as constraint.
void genValueSetInto(Compilation &c, int into, const Scope &scope,
                     const AstType &governor, const AstConstraint &set,
                     int32_t node);

// A hidden node of a builtin type without constraints, one per module.
int32_t builtinNode(Compilation &c, int into, int mainType);

// The same for the fields of predefined classes, with a field's status.
int32_t builtinFieldNode(Compilation &c, int into, int mainType);

// A hidden reference in `into` to a node of another module; the node itself
// if it is of `into`.
int32_t localReference(Compilation &c, int into, NodeAt target);

// Makes the node a reference to the target.
void makeSynonym(Compilation &c, int into, int32_t node, NodeAt target);

// A fresh type node with its line, nested if an instance is being made.
TNode newNodeFor(const Compilation &c, AsnPos pos, int mainType);

// The node at the end of a chain of references; itself if it is none.
NodeAt baseNode(Compilation &c, NodeAt at);

// True if that chain leads back to the node.
bool refersToItself(Compilation &c, NodeAt start);

// The component, member or alternative of a structure, through its
// references and COMPONENTS OF; node 0: none.
NodeAt findCompNode(Compilation &c, NodeAt structure, const std::string &name);

// The module that a number of `module`'s tree stands for; -1: none.
int moduleOfNumber(Compilation &c, int module, int32_t number);

// Fills the alternatives of selection types; all nodes must be there.
void finishSelections(Compilation &c);

// Fills SEQUENCE, SET and CHOICE (genstructure.cc).
void genStructure(Compilation &c, int into, const Scope &scope,
                  const AstType &type, int32_t node);

// The scope of the parameterised definition `def` with the parameters of
// `ref`, one for all uses that mean the same (instance.cc); null, reported, if
// the numbers differ or a limit is met.
const Scope *instantiate(Compilation &c, const Definition &def,
                         const AstRef &ref, const Scope &scope);

// False, reported once, if one more instance is too many.
bool isWithinLimits(Compilation &c, const AstRef &ref, const Scope &scope);
