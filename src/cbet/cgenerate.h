#pragma once
#include "cbet/cgenstate.h"
#include "cbet/typefuncinfo.h"

// The driver of the engine: which functions each type of a module gets, and
// the shape of the two sorts. A normal function does the work on a value and
// is called by other generated functions; an entry function is what an
// application calls: it starts and ends the run and leaves the value to the
// normal function, or holds its code.

// The table of the run, valid during `cGenerateTypeFunctions`.
extern TypeFuncInfo *glbInfo;

// Writes the functions of every entry or visible type of the module, in the
// order of its types; gives the number of types passed.
int cGenerateTypeFunctions(AsnModule &module, TypeFuncInfo &info);

// Writes the normal function of the type ahead of which those that it calls
// are written, or, where it gets none (a leaf, a synonym, not `separate`),
// what the generator adds for it.
void genNormalFunc(AsnType &type, bool separate);

// Prototype and definition of a separate normal function around what `body`
// writes.
void cNormalFunction(AsnType &type, TypeFuncInfo &info, TypeFuncCallBack *body);

// True for a type whose code stands in a function of its own: always, but
// for structures of VARNO applications.
bool isSeparateNormalFunction(const AsnType &type);

// True if this module's files hold the type's function.
bool isFuncGeneratedInThisModuleFile(const AsnType &type);
