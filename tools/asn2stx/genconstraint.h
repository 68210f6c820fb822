#pragma once
#include "asn2stx/compile.h"

// Constraint records.

// Works off the constraints that wait: the records of each node, several that
// apply serially as one of kind 3, and the bit for extensible ones.
void genLateConstraints(Compilation &c);

// The records of one constraint or set, and of one element; 0 if they leave
// none. `parent` is the type that is constrained, `at` its node.
int32_t genConstraint(Compilation &c, int into, const Scope &scope,
                      const AstConstraint &constraint, TypeUse parent,
                      NodeAt at);
int32_t genElement(Compilation &c, int into, const Scope &scope,
                   const AstElem &elem, TypeUse parent, NodeAt at);

// A record of `kind` over operands that are chained: none gives 0, one gives
// the operand itself.
int32_t joinSubs(Compilation &c, int into, int kind,
                 const std::vector<int32_t> &subs);
