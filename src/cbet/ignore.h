#pragma once
#include "cbet/typefuncinfo.h"

// Values that are in the input but not wanted: fields with the SKIP option,
// and list elements behind a size limit. With `ignoreMode` 1 a second,
// smaller walk writes functions that read a value and store nothing.

// The code at the place of a type with the SKIP option, by its kind; fatal
// error 13 for a kind that is neither 0 nor 1.
void skipType(AsnType &type);

// Writes the skipping of a value.
void skipIgnore(AsnType &type);

// Writes the type's ignore function when it is due.
void genFuncForIgnorable(AsnType &type);

// Writes the ignore functions that the type's code needs.
void handleReferredIgnorableType(AsnType &type);

// The front-end asks for an ignore function.
bool cIsIgnorable(const AsnType &type);

// A leaf, the SKIP option aside: a skipped structure is walked as the
// structure that it is.
bool isNonSkippedLeafType(AsnType &type);

// The type has a SIZE-LIMIT.
bool cIsSizeLimit(const AsnType &type);
