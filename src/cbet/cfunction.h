#pragma once
#include "model/asntype.h"

// Heads, prototypes and calls of generated functions, with or without the
// generation argument, in ANSI and non-ANSI form.

// Writes a piece of an argument list.
typedef void CArgEmitter(int file, AsnType &type);

// What a generator adds to the functions of a run. An emitter that is null is
// not called.
struct CFunctionInfo {
  const char *returnType = nullptr;  // null: "void"

  CArgEmitter *protoPreArgs = nullptr;   // ahead of the home argument
  CArgEmitter *protoHomeArg = nullptr;   // instead of it
  CArgEmitter *protoPostArgs = nullptr;  // behind it

  CArgEmitter *ansiPreArgs = nullptr;  // the same of ANSI definitions
  CArgEmitter *ansiHomeArg = nullptr;
  CArgEmitter *ansiPostArgs = nullptr;

  CArgEmitter *oldPreArgs = nullptr;  // of the names in non-ANSI ones
  CArgEmitter *oldHomeArg = nullptr;
  CArgEmitter *oldPostArgs = nullptr;
  CArgEmitter *oldPreDecl = nullptr;  // of the declarations in those
  CArgEmitter *oldHomeDecl = nullptr;
  CArgEmitter *oldPostDecl = nullptr;

  CArgEmitter *refPreArgs = nullptr;  // of calls
  CArgEmitter *refHomeArg = nullptr;
  CArgEmitter *refPostArgs = nullptr;
};

// What stands ahead of the result type of a prototype.
extern const char *const externPrefix;

// The parts of a head; null stands for none, unless told otherwise.
struct CFuncHead {
  const char *prefixText = nullptr;
  const CFunctionInfo *info = nullptr;
  const char *resultType = nullptr;  // null: that of `info`, or "void"
  const char *namePrefix = nullptr;
  const char *nameBody = nullptr;
  const char *gType = nullptr;  // of the generation argument; empty: none
  const char *gName = nullptr;
  CArgEmitter *preArgs = nullptr;
  const char *homeArg = nullptr;
  CArgEmitter *homeArgEmitter = nullptr;  // instead of generation and home
                                          // argument
  CArgEmitter *postArgs = nullptr;
  const char *tail = nullptr;
};

// The writer behind all heads. While the side files are active the function
// gets a node in the tree of what was generated.
void cFunc(int file, AsnType &type, const CFuncHead &head);

// Prototypes and definition heads of normal functions; `info` may be null.
// They go to column 0, and no local variable is in scope behind a head.
void cFunctionProto(int file, const char *prefix, int gIndex,
                    const CFunctionInfo *info, AsnType &type);
void cVoidFunctionProto(int file, const char *prefix, int gIndex,
                        AsnType &type);
void cFunctionDef(int file, const char *prefix, int gIndex,
                  const CFunctionInfo *info, AsnType &type);
void cVoidFunctionDef(int file, const char *prefix, int gIndex, AsnType &type);

// The same of entry functions, which take a table of homes in a VARNO
// application.
void cEntryFunctionProto(int file, const char *prefix, int gIndex,
                         const CFunctionInfo *info, AsnType &type);
void cEntryFunctionDef(int file, const char *prefix, int gIndex,
                       const CFunctionInfo *info, AsnType &type);

// The argument declarations of a non-ANSI entry function.
void cNonAnsiCEntryFuncArgDef(int file, int gIndex, const CFunctionInfo *info,
                              AsnType &type);

// A call of the function of a component's type.
void cFunctionRef(int file, const char *prefix, int gIndex,
                  const CFunctionInfo *info, AsnType &type);
void cVoidFunctionRef(int file, const char *prefix, int gIndex, AsnType &type);

// Functions that handle an ANY: prototype and call; `classifier` may be null.
void cAnyFunctionProto(int file, const char *prefix, int gIndex, AsnType &type);
void cAnyFunctionRef(int file, const char *prefix, int gIndex, AsnType &type,
                     AsnType *classifier);
