#pragma once
#include "model/asntype.h"
#include <cstdint>

// The contract between the engine and a generator. The engine knows how to
// walk a type, open blocks, declare variables and lay out a function; the
// generator fills one table of call-backs and parameters, which are called at
// fixed points of that walk. All that is special to an encoding is written by
// the call-backs, everything else by the engine.

struct CFunctionInfo;
struct TypeFuncInfo;

// Forms of call-backs: results are ignored unless it is a predicate.
typedef void TypeFuncCallBack(AsnType &type, TypeFuncInfo &info);
typedef bool TypeFuncPredicate(AsnType &type, TypeFuncInfo &info);
typedef void ElemLoopCallBack(int file, AsnType &elem);

// The sort of function that is generated. The two in the middle walk a value
// that exists ("traverse kinds"), the others build one ("construct kinds").
enum GenKind : int32_t {
  GEN_CONSTRUCT_CHECKED = 0,  // builds and checks constraints
  GEN_TRAVERSE = 1,
  GEN_TRAVERSE_FREE = 2,  // releases homes behind them
  GEN_CONSTRUCT = 3
};

// Which of the two groups for values that are not kept is in use.
enum IgnoreMode : int32_t {
  IGNORE_SKIP_FUNCS = 0,
  IGNORE_TRAVERSE = 1  // ignore functions
};

// Skipping by one call-back.
struct SkipFuncs {
  TypeFuncCallBack *skipFunc = nullptr;      // skips a type
  ElemLoopCallBack *skipElemLoop = nullptr;  // null: "while (TRUE)"
  TypeFuncCallBack *skipMoreElems = nullptr;
  TypeFuncCallBack *skipIsExtraElems = nullptr;  // null: the variable
                                                 // "extraElems" tells
};

// Skipping by a walk of its own, which writes ignore functions.
struct IgnoreFuncs {
  TypeFuncPredicate *canGenerateIgnoreFunc = nullptr;        // null: yes
  TypeFuncPredicate *canGenerateIgnoreComponents = nullptr;  // null: yes
  TypeFuncCallBack *skipIgnorePrefix = nullptr;
  TypeFuncCallBack *skipStruPrefix = nullptr;
  ElemLoopCallBack *skipConstructElemLoop = nullptr;  // null: "while (TRUE)"
  TypeFuncCallBack *skipIsComp = nullptr;
  TypeFuncCallBack *skipCompPrefix = nullptr;
  TypeFuncCallBack *skipLeaf = nullptr;
  TypeFuncCallBack *skipDefStruct = nullptr;  // a type with an ignore function
  TypeFuncCallBack *skipCompPostfix = nullptr;
  TypeFuncCallBack *skipIsExtraElems1 = nullptr;  // null: the variable
                                                  // "extraElems" tells
  TypeFuncCallBack *skipStruPostfix = nullptr;
  TypeFuncCallBack *skipIgnorePostfix = nullptr;
  TypeFuncCallBack *skipIgnoreAllExtAddComps = nullptr;  // null: additions are
                                                         // walked one by one
};

// One table a generator run. A call-back that is null is not called.
struct TypeFuncInfo {
  int32_t funcFamily = 0;  // the generator's number; not read
  int implFile = 0;        // bodies; the engine's text goes here
  int protoFile = 0;       // prototypes
  int auxFile = 0;         // not read
  uint32_t entryOptionBit = 0;
  int32_t tedBefore = 0;  // places of embedding lines; -1: none
  int32_t tedAfter = 0;
  int32_t genKind = GEN_CONSTRUCT_CHECKED;

  // In the order of the walk.
  TypeFuncCallBack *additionalNormalFunc = nullptr;  // no separate function
  TypeFuncCallBack *beforeNormalFunc = nullptr;
  TypeFuncCallBack *struPrefix = nullptr;
  TypeFuncCallBack *isComp = nullptr;  // construct kinds only
  TypeFuncCallBack *compPrefix = nullptr;
  TypeFuncCallBack *skip = nullptr;  // SKIP with an error
  int32_t ignoreMode = IGNORE_SKIP_FUNCS;
  SkipFuncs skipFuncs = {};
  IgnoreFuncs ignoreFuncs = {};
  TypeFuncCallBack *frame = nullptr;
  TypeFuncCallBack *leaf = nullptr;       // and markers, by the flags below
  TypeFuncCallBack *defStruct = nullptr;  // call of a type's own function
  TypeFuncCallBack *builtinCompPrefix = nullptr;
  TypeFuncCallBack *builtinCompPostfix = nullptr;
  TypeFuncCallBack *compPostfix = nullptr;
  TypeFuncCallBack *struPostfix = nullptr;
  TypeFuncCallBack *afterNormalFunc = nullptr;
  TypeFuncCallBack *beforeEntryFunc = nullptr;
  TypeFuncCallBack *entryPrefix = nullptr;
  TypeFuncCallBack *entryPostfix = nullptr;
  TypeFuncCallBack *afterEntryFunc = nullptr;
  TypeFuncCallBack *additionGroupPrefix = nullptr;
  TypeFuncCallBack *additionGroupPostfix = nullptr;

  const char *normalFuncPrefix = nullptr;
  const char *entryFuncPrefix = nullptr;
  const CFunctionInfo *normalFuncArgs = nullptr;
  const CFunctionInfo *entryFuncArgs = nullptr;
  ElemLoopCallBack *constructElemLoop = nullptr;  // null: "while (TRUE)"
  int gIndex = 0;                                 // 0: no generation argument
  bool reverseOrder = false;
  bool pushPathEnabled = false;
  TypeFuncCallBack *pushPath = nullptr;       // null: cPushPath
  TypeFuncCallBack *pushElem = nullptr;       // null: cPushElem
  TypeFuncCallBack *popPath = nullptr;        // null: cPopPath
  TypeFuncCallBack *entryPushPath = nullptr;  // null: cPushEntryPath
  TypeFuncCallBack *entryPopPath = nullptr;   // null: cPopEntryPath
  bool markerOnTraverse = false;   // traverse kinds call `leaf` for a marker
  bool markerOnConstruct = false;  // construct kinds do
  bool setChoiceControlMember = true;  // construct kinds keep it themselves
  TypeFuncPredicate *canGenerateComponents = nullptr;  // null: yes
  const char *duplicateCompError = nullptr;            // null: "DM_FAIL"
  const char *tooManyElemsError = nullptr;             // null: "AM_FAIL"
  uint32_t lastWord = 0;                               // not read
};

// Clears the table.
void cInitTypeFuncInfo(TypeFuncInfo &info);

// What the engine makes of a call-back: nothing for null.
inline void callTypeFunc(TypeFuncCallBack *callBack, AsnType &type,
                         TypeFuncInfo &info)
{
  if (callBack)
    callBack(type, info);
}

// The kinds of functions, by the sort of walk; false for an unknown kind.
inline bool isTraverseKind(const TypeFuncInfo &info)
{
  return info.genKind == GEN_TRAVERSE || info.genKind == GEN_TRAVERSE_FREE;
}

inline bool isConstructKind(const TypeFuncInfo &info)
{
  return info.genKind == GEN_CONSTRUCT_CHECKED || info.genKind == GEN_CONSTRUCT;
}
