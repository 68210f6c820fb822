// Lists with a size limit: what the generated code does with elements beyond
// what it stores. Where the limit's action is to ignore them they are read in
// a loop of their own, counted in "nIgnored" and dropped.

#include "base/int64.h"
#include "base/strings.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/clist.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/ignore.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/typequery.h"

bool dropsSurplusElems(const AsnType &list)
{
  const TypeOptions &options = list.base.typeOptions;
  return options.sizeLimit != 0 && options.limitAction == 0;
}

bool extraElemsVarUsed()
{
  const TypeFuncInfo &info = *glbInfo;
  if (info.ignoreMode == IGNORE_SKIP_FUNCS)
    return !info.skipFuncs.skipIsExtraElems;
  if (info.ignoreMode == IGNORE_TRAVERSE)
    return !info.ignoreFuncs.skipIsExtraElems1;
  return true;
}

void checkListUpperBound(AsnType &father, AsnType &comp)
{
  const TypeFuncInfo &info = *glbInfo;
  if (!isConstructKind(info) || !isListType(father))
    return;
  if (!dropsSurplusElems(father)) {
    if (info.genKind == GEN_CONSTRUCT_CHECKED)
      cCheckListUpperBound(info.implFile, comp);
    return;
  }
  if (!extraElemsVarUsed())
    return;
  std::string action =
      formatText("extraElems%d = TRUE;\n", localVarCount[VAR_N]);
  cCheckListUpperBoundWithActionAndBreak(info.implFile, comp, action.c_str());
}

// --- the loop over the surplus ----------------------------------------------

static void testIfExtraElems(AsnType &list)
{
  TypeFuncInfo &info = *glbInfo;
  if (extraElemsVarUsed())
    printfToF(info.implFile, "if (extraElems%d)", localVarCount[VAR_N]);
  else if (info.ignoreMode == IGNORE_SKIP_FUNCS)
    info.skipFuncs.skipIsExtraElems(list, info);
  else
    info.ignoreFuncs.skipIsExtraElems1(list, info);
}

// The generator's head of the loop, null if it has none.
static ElemLoopCallBack *extraElemsLoop()
{
  const TypeFuncInfo &info = *glbInfo;
  return info.ignoreMode == IGNORE_SKIP_FUNCS
             ? info.skipFuncs.skipElemLoop
             : info.ignoreFuncs.skipConstructElemLoop;
}

static void beginLoopExtraElems(AsnType &comp)
{
  int file = glbInfo->implFile;
  if (ElemLoopCallBack *loop = extraElemsLoop())
    loop(file, comp);
  else
    wToF(file, "while (TRUE)");
}

// Endless loops end at the upper bound of the type.
static void testIfTooManyExtraElems(AsnType &list)
{
  TypeFuncInfo &info = *glbInfo;
  if (extraElemsLoop())
    return;
  sint64 lower, upper, limit;
  getInt64SizeEndpoints(list, lower, upper, limit);
  int32_t narrow = 0;
  if (!i64tol(upper, narrow))
    int64Warning(*getModuleOfType(list), getTypeDefinitionLine(list),
                 "Size constraint upper bound > MAXINT32");
  std::string n;
  cNVarRef(n, nullptr, nullptr);
  printfToF(info.implFile, "if (%s >= %s)", n.c_str(), i64text(upper).c_str());
  cOpenBrace(info.implFile);
  if (info.genKind == GEN_CONSTRUCT_CHECKED)
    cReportError(info.implFile,
                 info.tooManyElemsError ? info.tooManyElemsError : "AM_FAIL");
  else if (info.genKind == GEN_CONSTRUCT)
    wToF(info.implFile, "break;\n");
  cCloseBrace(info.implFile);
}

static void testIfMoreExtraElems(AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  callTypeFunc(info.ignoreMode == IGNORE_SKIP_FUNCS
                   ? info.skipFuncs.skipMoreElems
                   : info.ignoreFuncs.skipIsComp,
               comp, info);
}

bool hasSurplusLoop(const AsnType &list)
{
  if (!isConstructKind(*glbInfo) || !dropsSurplusElems(list))
    return false;
  sint64 lower, upper, limit;
  getInt64SizeEndpoints(list, lower, upper, limit);
  return i64cmp(limit, upper) != 0;
}

void ignoreTrailingListElems(AsnType &father, AsnType &comp)
{
  if (!hasSurplusLoop(father))
    return;
  int file = glbInfo->implFile;
  std::string ignored, text;
  cHomeRef(ignored, nullptr, false, father, true, "nIgnored");
  wToF(file, (ignored + " = 0;\n").c_str());
  testIfExtraElems(father);
  cOpenBrace(file);
  beginLoopExtraElems(comp);
  cOpenBrace(file);
  testIfTooManyExtraElems(father);
  skipIgnore(comp);
  wToF(file, (ignored + "++;\n").c_str());
  wToF(file, cNVarRef(text, nullptr, "++;\n").c_str());
  testIfMoreExtraElems(comp);
  cCloseBrace(file);
  cCloseBrace(file);
}
