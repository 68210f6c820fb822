// The walk that writes the body of a generated function.
//
// It starts from a structured or list type, opens the blocks that the type
// needs, visits each component or element, decides what sort of thing it is
// and calls the generator's call-backs around it. Two families of functions
// exist. The traverse kinds walk a value that is there: presence is tested,
// lists are walked by a loop, a CHOICE by a switch. The construct kinds build
// a value: homes are created, control members set, and the input decides what
// comes next.
//
// State that crosses calls: the counters of local variables, the type name
// path, and the stamps. Each visit of a component leaves the path as it found
// it and closes the blocks that it opened, with two exceptions that generated
// code depends on: `structPost` lowers a counter that `structPref` did not
// raise for a fragmented list, and an addition group of a structure with home
// components leaves its name on the path.

#include "cbet/traverse.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cconstraint.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/clist.h"
#include "cbet/cmarker.h"
#include "cbet/cnames.h"
#include "cbet/cpath.h"
#include "cbet/cpresence.h"
#include "cbet/cvars.h"
#include "cbet/embedding.h"
#include "cbet/errorformat.h"
#include "cbet/ignore.h"
#include "cbet/outfile.h"
#include "model/constraint.h"
#include "model/controlmember.h"
#include "model/typeiter.h"
#include "model/typepath.h"
#include "model/typequery.h"
#include <cstring>

// --- nesting ----------------------------------------------------------------

static InlineNesting *innermostInline;
static int64_t inlineTypesVisited;  // under the outermost one

// Components that many structures take over stand in line in each of them, so
// the types of a body can be more than the nodes of the tree; a damaged tree
// that shares nodes doubles them at each level.
constexpr int64_t maxVisitsPerNode = 1000;

// The search outward is for recursive types only: the front-end marks them,
// and inner instances of recursive types are bound to definitions.
InlineNesting::InlineNesting(const AsnType &type)
    : module(type.baseModRec), recNr(type.baseRecNr),
      recursive(isRecursiveBaseType(type)),
      depth(innermostInline ? innermostInline->depth + 1 : 1),
      outer(innermostInline)
{
  for (InlineNesting *n = outer; recursive && n; n = n->outer)
    if (n->recursive && n->module == module && n->recNr == recNr)
      fatalError(FATAL_INTERNAL, "type contains itself in place");
  int64_t nodes = recordsOfRun(REC_TNODE);
  inlineTypesVisited = outer ? inlineTypesVisited + 1 : 1;
  if (depth > maxNesting || depth > nodes + 1 ||
      inlineTypesVisited > nodes * maxVisitsPerNode)
    treeInconsistent(module);
  innermostInline = this;
}

InlineNesting::~InlineNesting()
{
  innermostInline = outer;
}

InlineRestart::InlineRestart()
    : outer(innermostInline), visited(inlineTypesVisited)
{
  innermostInline = nullptr;
}

InlineRestart::~InlineRestart()
{
  innermostInline = outer;
  inlineTypesVisited = visited;
}

// --- small tests ------------------------------------------------------------

static bool isSequence(const AsnType &type)
{
  return getTypeMainType(type) == TYP_SEQ;
}

static bool isSet(const AsnType &type)
{
  return getTypeMainType(type) == TYP_SET;
}

static bool isChoice(const AsnType &type)
{
  return getTypeMainType(type) == TYP_CHOICE;
}

static bool isGroup(const AsnType &type)
{
  return getTypeMainType(type) == TYP_EXTADDGRP;
}

static bool isLinkedList(const AsnType &type)
{
  return getVF(type) == VF_LIST;
}

static bool isOptional(const AsnType &comp)
{
  return getTypeCompStatus(comp) == TCS_OPTIONAL;
}

static const GlobalOptions &optionsOf(const AsnType &type)
{
  return getGlobalOptions(*getModuleOfType(type));
}

static bool canGenerateComponents(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  return !info.canGenerateComponents || info.canGenerateComponents(type, info);
}

bool isAsnHomeComp(const AsnType *father, const AsnType &comp)
{
  if (father && (isLinkedList(*father) || cIsHometab(*father) ||
                 testTypeOption(*father, optAsnhc)))
    return true;
  return testTypeOption(comp, optAsnHome);
}

// --- names on the path ------------------------------------------------------

bool mustAddCompNameToPath(const AsnType &comp)
{
  if (isTypeExtensionmarker(comp))
    return false;
  AsnType *father = getFatherOfTypeComp(comp);
  return !(isElemType(comp) && father && isLinkedList(*father));
}

const char *cGetSeparatorInTypePath(const AsnType &comp)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father)
    return nullptr;
  return testTypeOption(*father, optPointer) ? "->" : ".";
}

// Members of a CHOICE stand in its union, unless each has a home of its own.
static std::string &pieceOfAlternative(std::string &text, const AsnType &comp)
{
  AsnType *father = getFatherOfTypeComp(comp);
  bool inHome = father && testTypeOption(*father, optAsnhc);
  return getTypeCompId(text, inHome ? nullptr : "i1.", comp, "_fld");
}

static std::string &pieceOfPath(std::string &text, const AsnType &comp)
{
  switch (getTypeCompStatus(comp)) {
  case TCS_MANDATORY:
  case TCS_OPTIONAL:
    return getTypeCompId(text, nullptr, comp, "_fld");
  case TCS_CHOICE:
    return pieceOfAlternative(text, comp);
  case TCS_MULTIPLE:
    return cVarRef(text, "elem [", VAR_N, "]");
  case TCS_HEADER:
    return getDefTypeId(text, nullptr, comp, nullptr);
  default:
    fatalError(FATAL_INTERNAL, "Unable to construct a type name path.");
  }
}

void addCompNameToPath(AsnType &comp)
{
  if (!mustAddCompNameToPath(comp))
    return;
  std::string piece;
  pieceOfPath(piece, comp);
  if (const char *separator = cGetSeparatorInTypePath(comp))
    addElemToPath(separator);
  addElemToPath(piece.c_str());
  comp.typePathLen = static_cast<uint32_t>(strlen(getPath()));
}

void removeCompNameFromPath(AsnType &comp)
{
  if (!mustAddCompNameToPath(comp))
    return;
  removeElemFromPath();
  if (cGetSeparatorInTypePath(comp))
    removeElemFromPath();
}

// --- embedding lines --------------------------------------------------------

// Place of the lines, for the visit of a base type.
static int glbWhatTeds;

static void printLocalTeds(AsnType &type)
{
  printLocalTypeEmbeddingOptions(glbInfo->implFile, type, glbWhatTeds);
}

void printCodeTEDs(AsnType &type, bool topLevel, int selector)
{
  int file = glbInfo->implFile;
  if (topLevel && !isDefinedType(type)) {
    glbWhatTeds = selector;
    forDefinedBaseType(type, printLocalTeds);
  } else if (!topLevel && (!cIsDefinedBaseType(type) ||
                           !(isStructuredType(type) || isListType(type)))) {
    printTypeEmbeddingOptions(file, type, selector);
  } else {
    printLocalTypeEmbeddingOptions(file, type, selector);
  }
}

// --- begin and end of a structure -------------------------------------------

// A local mask by which duplicate and missing components of a SET are found
// where its C structure has none. Checked functions alone test them.
static bool generateDummyCompmask(const AsnType &type)
{
  return isSet(type) && getNrOfTypeComps(type) >= 2 &&
         glbInfo->genKind != GEN_CONSTRUCT &&
         (!isOptionalTypeComps(type) || testTypeOption(type, optAsnhc) ||
          cIsHometab(type));
}

static bool mustInitComponents(const AsnType &type)
{
  bool hasHomes = testTypeOption(type, optAsnhc);
  bool zeroHome = optionsOf(type).zeroHome != 0;
  if (isSequence(type) || isSet(type))
    return !zeroHome && (hasHomes || isOptionalTypeComps(type));
  if (!isChoice(type))
    return false;
  if (cIsControlMember(type))
    return glbInfo->setChoiceControlMember;
  return (!zeroHome || !hasHomes) && !cIsHometab(type);
}

// Clears the control member of a structure, or all its homes.
static void initComponents(AsnType &type)
{
  int file = glbInfo->implFile;
  if (isListType(type)) {
    cInitList(file, type);
    return;
  }
  if (!mustInitComponents(type))
    return;
  std::string text;
  if (testTypeOption(type, optAsnhc)) {
    wToF(file, "memset (");
    wToF(file, cHomeRef(text, nullptr, true, type, false, ",").c_str());
    wToF(file, " 0,");
    wToF(file, cBaseTypeId(text, " sizeof (", type, "));\n").c_str());
    return;
  }
  std::string reference;
  if (testTypeOption(type, optAsnHome) && localVarCount[VAR_HOME] > 0)
    cVarRef(reference, nullptr, VAR_HOME, "->");
  else
    cHomeRef(reference, nullptr, false, type, true, nullptr);
  wToF(file, getControlMemberIni(text, reference.c_str(), type).c_str());
}

// The block of a list, with its iterator or counter. Without a loop here (the
// run-time has it) there is none.
static void beginConstructList(AsnType &type, bool canGenerate)
{
  int file = glbInfo->implFile;
  cOpenBrace(file);
  if (!canGenerate)
    return;
  if (isLinkedList(type)) {
    cIncAsnHomeVarCount();
    cAsnHomeVarDef(file);
    return;
  }
  cIncNVarCount();
  cNVarDef(file);
  if (dropsSurplusElems(type) && extraElemsVarUsed())
    printfToF(file, "BOOLE extraElems%d = FALSE;\n", localVarCount[VAR_N]);
}

static void beginDummyCompmask(AsnType &type)
{
  int file = glbInfo->implFile;
  std::string text;
  cOpenBrace(file);
  wToF(file, getControlMemberDef(text, type).c_str());
  wToF(file, getControlMemberIni(text, nullptr, type).c_str());
}

static void structPrefConstruct(AsnType &type, bool canGenerate)
{
  TypeFuncInfo &info = *glbInfo;
  initComponents(type);
  if (isTypeExtensionmarkerComp(type) && !testTypeOption(type, optAsnhc) &&
      !cIsHometab(type))
    cInitExtensionmarker(info.implFile, type, info.gIndex, true);
  if (isListType(type))
    beginConstructList(type, canGenerate);
  if (generateDummyCompmask(type))
    beginDummyCompmask(type);
  callTypeFunc(info.struPrefix, type, info);
}

static void structPref(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  bool canGenerate = canGenerateComponents(type);
  if (isConstructKind(info)) {
    structPrefConstruct(type, canGenerate);
    return;
  }
  callTypeFunc(info.struPrefix, type, info);
  if (!isTraverseKind(info) || !isChoice(type) || !cIsControlMember(type))
    return;
  std::string text;
  wToF(info.implFile,
       cHomeRef(text, "switch (", false, type, true, "choice)").c_str());
  cOpenBrace(info.implFile);
}

// The counter of a list goes down even if a list without a loop here never
// raised it: what follows in the function is numbered from there. The next
// head of a function clears it.
static void endConstructList(const AsnType &type)
{
  if (isLinkedList(type))
    cDecAsnHomeVarCount();
  else
    cDecNVarCount();
  cCloseBrace(glbInfo->implFile);
}

static void structPost(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  if (isTraverseKind(info)) {
    if (isChoice(type) && cIsControlMember(type))
      cCloseBrace(info.implFile);
    return;
  }
  if (info.genKind == GEN_CONSTRUCT_CHECKED) {
    cCheckConstraints(info.implFile, type);
    if (generateDummyCompmask(type))
      cCloseBrace(info.implFile);
  }
  if (isConstructKind(info) && isListType(type))
    endConstructList(type);
}

void funcForStructuredTypeAndCompsOrElems(AsnType &type)
{
  TypeFuncInfo &info = *glbInfo;
  InlineNesting nesting(type);
  structPref(type);
  if (canGenerateComponents(type)) {
    if (info.reverseOrder && isStructuredType(type))
      forEachTypeCompRevOrd(type, funcForComponentOrElement);
    else
      forEachTypeCompOrElem(type, funcForComponentOrElement);
  }
  callTypeFunc(info.struPostfix, type, info);
  structPost(type);
}

// --- around a component: traverse kinds -------------------------------------

// In reverse order a marker in last place comes first, and writes no test.
static bool isTheFirstChoiceComp(AsnType &father, const AsnType &comp)
{
  if (!glbInfo->reverseOrder)
    return getTypeCompNbr(comp) == 0;
  int32_t last = getNrOfTypeComps(father) - 1;
  if (isTypeExtensionmarkerComp(father) &&
      getTypeExtensionmarkerCompNbr(father) == last)
    --last;
  return getTypeCompNbr(comp) == last;
}

static void beginAlternative(AsnType &father, AsnType &comp)
{
  int file = glbInfo->implFile;
  if (cIsControlMember(father)) {
    printfToF(file, "case %d:\n", getTypeCompNbr(comp));
    ++fArr[file].indent;
    cOpenBrace(file);
    return;
  }
  std::string text = isTheFirstChoiceComp(father, comp) ? "" : "else ";
  std::string test;
  if (cIsHometab(father))
    text += formatText("if (hometab [%d])", getTypeCompNbr(comp));
  else if (testTypeOption(father, optAsnhc))
    text += cHomeRef(test, "if (", false, comp, false, ")");
  wToF(file, text.c_str());
  cOpenBrace(file);
}

static void traverseCompPrefix(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (isSequence(father) || isSet(father)) {
    if (isOptionalExtensionAdditionComponentOrGroup(comp))
      cBeginTestOptionalComp(info.implFile, father, comp);
  } else if (isListType(father)) {
    cBeginForLoop(info.implFile, father, comp, info.reverseOrder);
  } else if (isChoice(father)) {
    beginAlternative(father, comp);
  }
}

static void traverseCompPostfix(AsnType &father, AsnType &comp)
{
  int file = glbInfo->implFile;
  if (isSequence(father) || isSet(father)) {
    cEndTestOptionalComp(file, father, comp);
  } else if (isListType(father)) {
    cEndForLoop(file, father);
  } else if (isChoice(father)) {
    cCloseBrace(file);
    if (cIsControlMember(father)) {
      wToF(file, "break;\n");
      --fArr[file].indent;
    }
  }
}

// --- around a component: construct kinds ------------------------------------

// A SET in a checked function tests each component for a duplicate.
static bool testsDuplicates(const AsnType &father)
{
  return isSet(father) && glbInfo->genKind != GEN_CONSTRUCT &&
         getNrOfTypeComps(father) >= 2;
}

static void constructBeforeIsComp(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (!isListType(father))
    return;
  if (info.constructElemLoop)
    info.constructElemLoop(info.implFile, comp);
  else
    wToF(info.implFile, "while (TRUE)");
  cOpenBrace(info.implFile);
}

static void testDuplicate(AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  cBeginTestDuplicateSetComp(info.implFile, comp);
  cReportError(info.implFile,
               info.duplicateCompError ? info.duplicateCompError : "DM_FAIL");
  cEndTestDuplicateSetComp(info.implFile);
}

// True if the component has a block of its own.
static bool hasBlock(const AsnType &father, const AsnType &comp)
{
  if (isChoice(father))
    return getNrOfTypeComps(father) > 1;
  return testsDuplicates(father) ||
         ((isSequence(father) || isSet(father)) && isOptional(comp));
}

static void constructCompPrefix(AsnType &father, AsnType &comp)
{
  if (hasBlock(father, comp))
    cOpenBrace(glbInfo->implFile);
  if (testsDuplicates(father))
    testDuplicate(comp);
}

static void constructListElemPostfix(AsnType &father, AsnType &comp)
{
  int file = glbInfo->implFile;
  std::string text;
  cIncListSize(file, father);
  if (!isLinkedList(father) && getVFSize(father) != 0)
    wToF(file, cNVarRef(text, nullptr, "++;\n").c_str());
  cCloseBrace(file);
  ignoreTrailingListElems(father, comp);
}

static void constructCompPostfix(AsnType &father, AsnType &comp)
{
  if (isListType(father))
    constructListElemPostfix(father, comp);
  else if (hasBlock(father, comp))
    cCloseBrace(glbInfo->implFile);
}

// --- around a component -----------------------------------------------------

static void compPrefFunc(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (isTraverseKind(info)) {
    traverseCompPrefix(father, comp);
  } else if (isConstructKind(info)) {
    constructBeforeIsComp(father, comp);
    callTypeFunc(info.isComp, comp, info);
    constructCompPrefix(father, comp);
  }
}

static void compPostFunc(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (info.genKind == GEN_CONSTRUCT_CHECKED) {
    bool isLeaf = !isStructuredType(comp) && !isListType(comp);
    if (isLeaf || (cIsDefinedBaseType(comp) && isLocalTypeConstraints(comp)))
      cCheckConstraints(info.implFile, comp);
  }
  if (isTraverseKind(info))
    traverseCompPostfix(father, comp);
  else if (isConstructKind(info))
    constructCompPostfix(father, comp);
}

// Functions that only read test for a marker's contents.
static bool testsMarker(const AsnType &father)
{
  return testTypeOption(father, optExtMarkerField) &&
         glbInfo->genKind == GEN_TRAVERSE;
}

static void extensionmarkerPrefFunc(AsnType &father)
{
  if (!testsMarker(father))
    return;
  if (isChoice(father) && !cIsControlMember(father))
    wToF(glbInfo->implFile, "else ");
  cBeginTestExtensionmarker(glbInfo->implFile, father);
}

static void extensionmarkerPostFunc(AsnType &father)
{
  if (testsMarker(father))
    cEndTestExtensionmarker(glbInfo->implFile, father);
}

// With both flags and GEN_TRAVERSE a marker reaches `leaf` twice.
static void funcForExtensionmarkerComponent(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (info.markerOnTraverse && isTraverseKind(info))
    callTypeFunc(info.leaf, comp, info);
  if (info.markerOnConstruct) {
    if (isConstructKind(info))
      callTypeFunc(info.leaf, comp, info);
  } else if (testsMarker(father)) {
    callTypeFunc(info.leaf, comp, info);
  }
}

// --- a component ------------------------------------------------------------

static void allocateComp(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (isLinkedList(father)) {
    cAppendList(info.implFile, father, comp, info.gIndex);
  } else if (isAsnHomeComp(&father, comp)) {
    if (isTypeExtensionmarker(comp))
      return;
    cCreateHome(info.implFile, comp, info.gIndex);
    if (optionsOf(comp).memory)
      cPushHome(info.implFile, comp, info.gIndex);
  } else if (!testTypeOption(comp, optSkip) &&
             (testTypeOption(comp, optPointer) ||
              (isRecursiveType(comp) && cIsDefinedBaseType(comp)))) {
    cAllocComp(comp, info);
  }
}

static bool isControlMemberForSet(const AsnType &father, const AsnType &comp)
{
  return isOptional(comp) ||
         (glbInfo->genKind != GEN_CONSTRUCT && getNrOfTypeComps(father) > 1);
}

static bool mustSetControlMember(const AsnType &father, const AsnType &comp)
{
  if (testTypeOption(father, optAsnhc) || cIsHometab(father))
    return testsDuplicates(father);
  if (isSequence(father))
    return isOptional(comp);
  if (isSet(father))
    return isControlMemberForSet(father, comp);
  return isChoice(father) && glbInfo->setChoiceControlMember;
}

static void initializeComp(AsnType &father, AsnType &comp)
{
  if (!isConstructKind(*glbInfo))
    return;
  allocateComp(father, comp);
  if (mustSetControlMember(father, comp))
    cSetControlMember(glbInfo->implFile, comp);
}

// The default of an element wants the list, the call-back the element.
static void pushCompPath(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (!info.pushPathEnabled)
    return;
  if (isStructuredType(father)) {
    if (info.pushPath)
      info.pushPath(comp, info);
    else
      cPushPath(info.implFile, comp);
  } else if (isListType(father)) {
    if (info.pushElem)
      info.pushElem(comp, info);
    else
      cPushElem(info.implFile, father);
  }
}

static void popCompPath(AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (!info.pushPathEnabled)
    return;
  if (info.popPath)
    info.popPath(comp, info);
  else
    cPopPath(info.implFile, comp);
}

// Frees or pops the home of a component.
static void finalizeComp(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  if (isLinkedList(father) || !isAsnHomeComp(&father, comp) ||
      isTypeExtensionmarker(comp) || !optionsOf(comp).memory)
    return;
  if (info.genKind == GEN_TRAVERSE_FREE)
    cFreeAsn(info.implFile, comp);
  else if (isConstructKind(info))
    cPopHome(info.implFile, comp, info.gIndex);
}

// An inline structure. If it lives in a home the walk starts afresh from a
// local variable that is bound to the home.
static void funcForBuiltinComponent(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  bool inHome = isAsnHomeComp(&father, comp);
  if (inHome) {
    cBeginBlock(info.implFile, comp);
    pushPath();
    comp.typePath = getPath();
    comp.typePathLen = 0;
  }
  callTypeFunc(info.builtinCompPrefix, comp, info);
  funcForStructuredTypeAndCompsOrElems(comp);
  callTypeFunc(info.builtinCompPostfix, comp, info);
  if (inHome) {
    cEndBlock(info.implFile);
    popPath();
  }
}

static void funcForAdditionGroup(AsnType &father, AsnType &group)
{
  TypeFuncInfo &info = *glbInfo;
  callTypeFunc(info.additionGroupPrefix, group, info);
  forEachAdditionGroupComp(father, group, funcForComponentOrElement);
  callTypeFunc(info.additionGroupPostfix, group, info);
}

static void funcForNormalComponentOrElement(AsnType &father, AsnType &comp)
{
  TypeFuncInfo &info = *glbInfo;
  initializeComp(father, comp);
  pushCompPath(father, comp);
  checkListUpperBound(father, comp);
  if (testTypeOption(comp, optSkip))
    skipType(comp);
  else if (cIsFrameType(comp))
    callTypeFunc(info.frame, comp, info);
  else if (isLeafType(comp))
    callTypeFunc(info.leaf, comp, info);
  else if (isGroup(comp))
    funcForAdditionGroup(father, comp);
  else if (!cIsDefinedBaseType(comp))
    funcForBuiltinComponent(father, comp);
  else
    callTypeFunc(info.defStruct, comp, info);
  finalizeComp(father, comp);
  popCompPath(comp);
}

// With home components the name is on the path ahead of the presence test,
// which reads the component's own home; otherwise the test reads the father's
// mask.
void funcForComponentOrElement(AsnType &father, AsnType &comp, int)
{
  TypeFuncInfo &info = *glbInfo;
  bool hasHomes = testTypeOption(father, optAsnhc);
  bool marker = isTypeExtensionmarker(comp);
  if (hasHomes)
    addCompNameToPath(comp);
  if (marker) {
    extensionmarkerPrefFunc(father);
  } else {
    compPrefFunc(father, comp);
    callTypeFunc(info.compPrefix, comp, info);
  }
  printCodeTEDs(comp, false, info.tedBefore);
  if (!hasHomes && !isGroup(comp))
    addCompNameToPath(comp);
  if (marker)
    funcForExtensionmarkerComponent(father, comp);
  else
    funcForNormalComponentOrElement(father, comp);
  printCodeTEDs(comp, false, info.tedAfter);
  if (marker) {
    extensionmarkerPostFunc(father);
  } else {
    callTypeFunc(info.compPostfix, comp, info);
    compPostFunc(father, comp);
  }
  if (!isGroup(comp))
    removeCompNameFromPath(comp);
}
