#pragma once
#include "asn2stx/genfield.h"

// Information from objects, X.681 (2002) clause 15: what a field is set to
// in an object, or in each object of a set.

// True if `name.&field` begins with an object or an object set.
bool isFromObjects(Compilation &c, const AstType &type, const Scope &scope);

// True if it begins with an object set.
bool isFromSet(Compilation &c, const AstType &type, const Scope &scope);

// The settings at the end of the path. An object of a set may lack one; of
// an extensible set the objects of the root count. False, reported, if the
// path cannot be followed.
bool fieldsFromObjects(Compilation &c, const AstType &type, const Scope &scope,
                       std::vector<FieldUse> &found);

// For a path to a value or value set field, from a set, or to a value set
// field, from an object: the set that it is, and what governs it, to be read
// in `governor.scope`. Null: the path leads to something else.
const AstConstraint *setFromObjects(Compilation &c, const AstType &type,
                                    const Scope &scope, TypeUse &governor);
