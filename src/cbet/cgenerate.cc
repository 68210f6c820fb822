// The driver of the engine: for each type of a module its normal function,
// its ignore function and its entry function, in this order, with the
// functions that they call ahead of them.
//
// A stamp on each type's node tells how far it has got in this traversal:
// below `stampGHD` untouched, `stampGHD` what it refers to is there, its own
// function is not; `stampGIP` it is on the way down, which cuts recursion;
// `stampGAD` all is there.

#include "cbet/cgenerate.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cconstraint.h"
#include "cbet/cfunction.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/cnames.h"
#include "cbet/cpath.h"
#include "cbet/cvars.h"
#include "cbet/ignore.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/constraint.h"
#include "model/typeiter.h"
#include "model/typepath.h"
#include "model/typequery.h"
#include <utility>

TypeFuncInfo *glbInfo;

// The entry fields of a synonym while the inline code of its base is written,
// which must believe that it is the entry.
static uint8_t glbEntry;
static uint8_t glbEntryCategory;
static uint8_t glbTNodeEntry;
static uint8_t glbTNodeEntryCategory;
static int32_t glbNrEntries;
static bool glbEntryInformationSaved;

bool isSeparateNormalFunction(const AsnType &type)
{
  return !isVarnoApplication(*getModuleOfType(type)) || isCVLeafType(type) ||
         testTypeOption(type, optAsnhc);
}

bool isFuncGeneratedInThisModuleFile(const AsnType &type)
{
  return isBaseTypeInCurrentModule(type) || isInstantiatedType(type);
}

// --- normal functions -------------------------------------------------------

void cNormalFunction(AsnType &type, TypeFuncInfo &info, TypeFuncCallBack *body)
{
  callTypeFunc(info.beforeNormalFunc, type, info);
  endlToF(info.protoFile);
  endlToF(info.implFile);
  cFunctionProto(info.protoFile, info.normalFuncPrefix, info.gIndex,
                 info.normalFuncArgs, type);
  cFunctionDef(info.implFile, info.normalFuncPrefix, info.gIndex,
               info.normalFuncArgs, type);
  cOpenBrace(info.implFile);
  body(type, info);
  cCloseBrace(info.implFile);
  callTypeFunc(info.afterNormalFunc, type, info);
}

static void structureBody(AsnType &type, TypeFuncInfo &info)
{
  printCodeTEDs(type, true, info.tedBefore);
  funcForStructuredTypeAndCompsOrElems(type);
  printCodeTEDs(type, true, info.tedAfter);
}

void genNormalFunc(AsnType &type, bool separate)
{
  // Each type that is found on the way down is one level deeper.
  static int depth;
  NestingGuard guard(depth, type.baseModRec);
  InlineRestart restart;
  if (!isFuncGeneratedInThisModuleFile(type))
    return;
  bool isSynonym = isSynonymType(type);
  bool isLeaf = isLeafType(type);
  if (!isLeaf || isSynonym) {
    bool isStale = getTypeStamp(type) < stampGHD;
    if (!isStale || !isSynonym)
      setBaseTypeStamp(type, stampGIP);
    if (isStale)
      genReferredTypes(type);
  }
  if (!isSynonym) {
    adeBrowserSelectTypeNode(type);
    if (separate && !isLeaf)
      cNormalFunction(type, *glbInfo, structureBody);
    else
      callTypeFunc(glbInfo->additionalNormalFunc, type, *glbInfo);
    if (separate && cIsIgnorable(type))
      genFuncForIgnorable(type);
  }
  setBaseTypeStamp(type, separate ? stampGAD : stampGHD);
}

// --- entry functions --------------------------------------------------------

static void saveEntryInformation(const AsnType &type)
{
  glbEntry = type.entryFlags;
  glbEntryCategory = type.entryCategory;
  glbTNodeEntry = type.base.entryFlags;
  glbTNodeEntryCategory = type.base.entryCategory;
  glbEntryInformationSaved = true;
}

static int32_t &nrOfEntries(const AsnType &type)
{
  return getModuleOfType(type)->rec->options.nrEntryTypes;
}

static void switchEntryInformation(AsnType &type)
{
  std::swap(glbEntry, type.entryFlags);
  std::swap(glbEntryCategory, type.entryCategory);
  std::swap(glbTNodeEntry, type.base.entryFlags);
  std::swap(glbTNodeEntryCategory, type.base.entryCategory);
  int32_t &entries = nrOfEntries(type);
  glbNrEntries = entries;
  if (entries == 0)
    entries = 1;
}

static void restoreEntryInformation(AsnType &type)
{
  type.entryFlags = glbEntry;
  type.entryCategory = glbEntryCategory;
  type.base.entryFlags = glbTNodeEntry;
  type.base.entryCategory = glbTNodeEntryCategory;
  nrOfEntries(type) = glbNrEntries;
  glbEntryInformationSaved = false;
}

// The code of a structure inside an entry function.
static void genStructEntryFunc(AsnType &type)
{
  if (glbEntryInformationSaved)
    switchEntryInformation(type);
  funcForStructuredTypeAndCompsOrElems(type);
  if (glbEntryInformationSaved)
    restoreEntryInformation(type);
}

// The reference to the value that the normal function is given, and the end
// of the call.
static void callHomeArg(AsnType &type, const char *tail)
{
  int file = glbInfo->implFile;
  std::string text;
  if (testTypeOption(type, optAsnHome)) {
    cAsnHomeCompRefToF(file, nullptr, true, type, false, tail);
  } else if (isVarnoApplication(*getModuleOfType(type))) {
    getDefBaseTypeId(text, "(", type, " *)hometab");
    wToF(file, (text + orEmpty(tail)).c_str());
  } else {
    wToF(file, cHomeRef(text, nullptr, true, type, false, tail).c_str());
  }
}

static void cCallSeprNormFuncFromEntryFunc(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  static const CFunctionInfo noArgs;
  const CFunctionInfo &args =
      info.normalFuncArgs ? *info.normalFuncArgs : noArgs;
  int file = info.implFile;
  std::string text;
  wToF(file, getDefBaseTypeId(text, info.normalFuncPrefix, type, " (").c_str());
  if (!args.refHomeArg && info.gIndex != 0)
    printfToF(file, "ASNG_F(%s) ", cGetGName(info.gIndex));
  if (args.refPreArgs)
    args.refPreArgs(file, type);
  if (args.refHomeArg)
    args.refHomeArg(file, type);
  else
    callHomeArg(type, args.refPostArgs ? nullptr : ");\n");
  if (args.refPostArgs) {
    args.refPostArgs(file, type);
    wToF(file, ");\n");
  }
}

// The code of the value in an entry function.
static void genEntryFuncBody(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  if (testTypeOption(type, optSkip)) {
    skipType(type);
  } else if (cIsFrameType(type)) {
    callTypeFunc(info.frame, type, info);
  } else if (isLeafType(type)) {
    callTypeFunc(info.leaf, type, info);
  } else if (isSeparateNormalFunction(type)) {
    cCallSeprNormFuncFromEntryFunc(type);
  } else if (isSynonymType(type)) {
    saveEntryInformation(type);
    if (isBaseTypeInCurrentModule(type))
      forSynonymType(type, genStructEntryFunc);
    else
      forTypeDefinedInAnotherModule(type, genStructEntryFunc);
  } else {
    genStructEntryFunc(type);
  }
}

// A leaf or list of a VARNO application lives in the home table: its home is
// made ahead of the code, or released behind it.
static void beginEntryHome(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  type.base.nodeOptions |= 1u << optAsnHome;
  if (isConstructKind(info)) {
    cCreateHome(info.implFile, type, info.gIndex);
    cPushHome(info.implFile, type, info.gIndex);
  }
}

static void endEntryHome(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  if (info.genKind == GEN_TRAVERSE_FREE)
    cFreeAsn(info.implFile, type);
  else if (isConstructKind(info))
    cPopHome(info.implFile, type, info.gIndex);
}

static bool mustCheckConstraintsInEntryFunction(const AsnType &type)
{
  if (!isConstraints(type) || testTypeOption(type, optSkip) ||
      cIsFrameType(type))
    return false;
  if (isVarnoApplication(*getModuleOfType(type)) &&
      !isSeparateNormalFunction(type))
    return true;
  int format = getVF(type);
  bool isScalar = (format >= VF_BOOL && format <= VF_REAL128) ||
                  format == VF_OBJI || format == VF_COMT;
  if (isScalar || cIsStaticString(type) || cIsDynamicString(type))
    return true;
  return isLocalTypeConstraints(type) && isSynonymType(type);
}

// What stands between the braces of an entry function.
static void genEntryFuncContents(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  bool hasHome =
      isVarnoApplication(*getModuleOfType(type)) && isCVLeafType(type);
  bool hasTeds = !isSeparateNormalFunction(type) || cIsPredefinedType(type) ||
                 cIsStaticString(type);
  if (info.pushPathEnabled && info.entryPushPath)
    info.entryPushPath(type, info);
  else if (info.pushPathEnabled)
    cPushEntryPath(info.implFile, type);
  callTypeFunc(info.entryPrefix, type, info);
  if (hasHome)
    beginEntryHome(type);
  if (hasTeds)
    printCodeTEDs(type, true, info.tedBefore);
  genEntryFuncBody(type);
  if (hasHome)
    endEntryHome(type);
  if (hasTeds)
    printCodeTEDs(type, true, info.tedAfter);
  callTypeFunc(info.entryPostfix, type, info);
  if (info.genKind == GEN_CONSTRUCT_CHECKED &&
      mustCheckConstraintsInEntryFunction(type))
    cCheckConstraints(info.implFile, type);
  if (info.pushPathEnabled && info.entryPopPath)
    info.entryPopPath(type, info);
  else if (info.pushPathEnabled)
    cPopEntryPath(info.implFile, type);
}

static void genEntryFunc(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  adeBrowserSelectTypeNode(type);
  callTypeFunc(info.beforeEntryFunc, type, info);
  glbGeneratingEntryFunction = true;
  glbEntryType = &type;
  endlToF(info.protoFile);
  endlToF(info.implFile);
  cEntryFunctionProto(info.protoFile, info.entryFuncPrefix, info.gIndex,
                      info.entryFuncArgs, type);
  cEntryFunctionDef(info.implFile, info.entryFuncPrefix, info.gIndex,
                    info.entryFuncArgs, type);
  cOpenBrace(info.implFile);
  genEntryFuncContents(type);
  cCloseBrace(info.implFile);
  glbGeneratingEntryFunction = false;
  glbEntryType = nullptr;
  callTypeFunc(info.afterEntryFunc, type, info);
}

// --- all functions of a module ----------------------------------------------

// The code of a type but for its entry function: only the ignore function for
// a type with the SKIP option.
static void genTypeCode(AsnType &type, bool separate)
{
  if (testTypeOption(type, optSkip)) {
    handleReferredIgnorableType(type);
    resetPath();
    genFuncForIgnorable(type);
    return;
  }
  resetPath();
  pushPath();
  genNormalFunc(type, separate);
}

// Values of the option "GENERATE=".
enum Generate : uint8_t {
  GENERATE_NONE = 0,
  GENERATE_ENTRIES = 1,
  GENERATE_VISIBLES = 2,
  GENERATE_ENTRIES_AND_VISIBLES = 3
};

static void genFunc(AsnType &type, int)
{
  AsnModule &module = *getModuleOfType(type);
  int generate = getGlobalOptions(module).generate;
  bool isDone = getTypeStamp(type) >= stampGAD;
  bool isVisible = isVisibleType(type);
  bool isFrame = cIsFrameType(type);
  if ((generate == GENERATE_VISIBLES ||
       generate == GENERATE_ENTRIES_AND_VISIBLES) &&
      isVisible && !isDone && !isFrame)
    genTypeCode(type, true);
  if (generate != GENERATE_ENTRIES && generate != GENERATE_ENTRIES_AND_VISIBLES)
    return;
  int bit = static_cast<int>(glbInfo->entryOptionBit);
  if (getNrOfEntryTypes(module) < 1 || !isEntryTypeFunction(type, bit))
    return;
  if ((generate == GENERATE_ENTRIES || !isVisible) && !isDone && !isFrame)
    genTypeCode(type, isSeparateNormalFunction(type));
  resetPath();
  pushPath();
  genEntryFunc(type);
}

static int glbTypesPassed;

static void passType(AsnType &type, int index)
{
  ++glbTypesPassed;
  genFunc(type, index);
}

static void resetEngine(TypeFuncInfo *info)
{
  glbInfo = info;
  glbGeneratingEntryFunction = false;
  glbEntryType = nullptr;
  glbEntryInformationSaved = false;
  glbNrEntries = 0;
  glbEntry = glbEntryCategory = 0;
  glbTNodeEntry = glbTNodeEntryCategory = 0;
}

int cGenerateTypeFunctions(AsnModule &module, TypeFuncInfo &info)
{
  resetEngine(&info);
  glbTypesPassed = 0;
  forEachEntryVisType(module, passType);
  resetPath();
  return glbTypesPassed;
}
