#pragma once

struct AsnType;

// Which function is being written. The driver of the engine sets it around
// an entry function; names of values depend on it.

extern bool glbGeneratingEntryFunction;
extern AsnType *glbEntryType;  // whose entry function; null: none

// True while the entry function of that very view is written.
bool cIsGeneratingEntryFuncForThisType(const AsnType &type);

// True if the type's value is spread over a table of homes: in entry functions
// of VARNO applications, for entries of a module that has any.
bool cIsHometab(const AsnType &type);
