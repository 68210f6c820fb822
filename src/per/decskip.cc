// Ignore functions: they move the reading position over a value and store
// nothing. An application's structure may leave out fields, and lists drop
// elements beyond their limit. Names begin with "pi"; lengths are read by the
// decoder's functions.

#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/ignore.h"
#include "cbet/outfile.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "per/dec.h"
#include "per/perchoice.h"
#include "per/perelem.h"
#include "per/perint.h"
#include "per/perlength.h"
#include "per/perstruct.h"

std::string &decSkipIgnoreFuncName(std::string &text, const char *prefix,
                                   const AsnType &type, const char *suffix)
{
  std::string stem = orEmpty(prefix);
  return getDefBaseTypeId(text, (stem + "pi").c_str(), type, suffix);
}

static bool isList(int mainType)
{
  return mainType == TYP_SEQOF || mainType == TYP_SETOF;
}

static bool isAddition(AsnType *father, const AsnType &comp)
{
  return perIsExtensionAdditionComponent(father, comp);
}

// --- functions --------------------------------------------------------------

static bool decCanGenerateIgnoreFunc(AsnType &type, TypeFuncInfo &)
{
  switch (getTypeMainType(type)) {
  case TYP_ENUM:
  case TYP_SEQ:
  case TYP_SEQOF:
  case TYP_SET:
  case TYP_SETOF:
  case TYP_CHOICE:
    return true;
  default:
    return false;
  }
}

static void decSkipIgnorePrefix(AsnType &type, TypeFuncInfo &info)
{
  perForEachInlineFragmentedList(type, decSkipElemCallBack);
  std::string name;
  decSkipIgnoreFuncName(name, nullptr, type, nullptr);
  endlToF(info.protoFile);
  printfToF(info.protoFile, "void %s (", name.c_str());
  wToF(info.protoFile, "ASNG_L(ASNPERG *asnperg));\n");
  endlToF(info.implFile);
  printfToF(info.implFile, "void %s (", name.c_str());
  wToF(info.implFile, "ASNG_L(ASNPERG *asnperg))\n");
  cOpenBrace(info.implFile);
}

static void decSkipIgnorePostfix(AsnType &, TypeFuncInfo &info)
{
  cCloseBrace(info.implFile);
}

// The SKIP option makes a leaf of a structure, which has its function all the
// same.
void decSkipElem(AsnType &elem)
{
  if (isNonSkippedLeafType(elem) || !cIsDefinedBaseType(elem)) {
    decSkipLeaf(elem, *glbDecTypeFuncInfo);
    return;
  }
  std::string text;
  decSkipIgnoreFuncName(text, nullptr, elem, " (ASNG_L(asnperg));");
  wToF(fiDec, (text + "\n").c_str());
}

// No test of a size limit here: what lies beyond it is ignored as well.
void decSkipElemCallBack(AsnType &list, AsnType &elem)
{
  if (!decBeginElemFunc(" if", list, elem))
    return;
  wToF(fiDec, "while (n)");
  cOpenBrace(fiDec);
  decSkipElem(elem);
  wToF(fiDec, "n--;\n");
  cCloseBrace(fiDec);
  cCloseBrace(fiDec);
  cDecAsnHomeVarCount();
}

// --- SEQUENCE and CHOICE ----------------------------------------------------

static void decSkipSeqPrefix(AsnType &type)
{
  decSeqPrefix(type);
}

static void decSkipSeqPostfix(AsnType &type)
{
  if (decHasSeqBlock(type, getExtensionInfo(type)))
    cCloseBrace(fiDec);
}

static void decSkipChoicePrefix(AsnType &type)
{
  const ExtensionInfo info = getExtensionInfo(type);
  bool isMultiple = isMultipleChoiceAlternatives(type, info);
  bool hasMarker = isTypeExtensionmarkerComp(type);
  std::string variable;
  cOpenBrace(fiDec);
  if (isMultiple) {
    perDefineChoiceVar(fiDec);
    perGetChoiceVar(variable);
  }
  if (hasMarker) {
    perDefineExtensionBit(fiDec, "pd_extensionBit ()");
    perRefExtensionBit(fiDec, "if (!", ")");
    cOpenBrace(fiDec);
  }
  decChoiceIndexExtRoot(type, variable, VF_I8);
  if (hasMarker) {
    cCloseBrace(fiDec);
    wToF(fiDec, "else ");
    cOpenBrace(fiDec);
    decChoiceIndexExtAdd(type, variable, VF_I8);
    cCloseBrace(fiDec);
  }
  if (isMultiple) {
    printfToF(fiDec, "switch (%s)", variable.c_str());
    cOpenBrace(fiDec);
  }
}

static void decSkipChoicePostfix(AsnType &type)
{
  if (isTypeExtensionmarkerComp(type)) {
    decDefaultLine();
    cOpenBrace(fiDec);
    decSkipUnknownExtendedComponents(type);
    cCloseBrace(fiDec);
  }
  if (isMultipleChoiceAlternatives(type, getExtensionInfo(type))) {
    --fArr[fiDec].indent;
    cCloseBrace(fiDec);
  }
  cCloseBrace(fiDec);
}

// --- lists ------------------------------------------------------------------

// The variable and the argument for the length. Unlike in a decoder a fixed
// length has its variable, which the loop counts down.
static void defineLength(std::string &argument, int field, int32_t upper)
{
  argument = "NULL";
  if (field < SEQOF_EQ1 || field > SEQOF_LE64K)
    return;
  std::string text;
  perDefineLengthDeterminant(fiDec);
  if (field == SEQOF_EQ1) {
    wToF(fiDec, perRefLengthDeterminant(text, nullptr, " =").c_str());
    printfToF(fiDec, " %d;\n", upper);
  } else {
    perRefLengthDeterminant(argument, "&", nullptr);
  }
}

static void beginCountdown(const std::string &call)
{
  std::string length;
  perRefLengthDeterminant(length, nullptr, nullptr);
  wToF(fiDec, call.c_str());
  wToF(fiDec, "while (");
  wToF(fiDec, length.c_str());
  wToF(fiDec, " > 0)");
  cOpenBrace(fiDec);
  wToF(fiDec, "--");
  wToF(fiDec, length.c_str());
  wToF(fiDec, ";\n");
}

static void skipFragments(AsnType &list, AsnType &elem)
{
  if (perIsArray(list))
    decDefineArrayIterator(list, elem);
  std::string text;
  wToF(fiDec, "(void)pd_ConstructFragmentedValue (NULL,");
  wToF(fiDec, perElemFuncName(text, " if", list, elem, ");\n").c_str());
}

// An extended size constraint is treated as its root.
static void decSkipSeqOfPrefix(AsnType &list, AsnType &elem)
{
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  std::string length, text;
  cOpenBrace(fiDec);
  int field = perGetSeqOfField(list, lower, upper, count);
  defineLength(length, field, upper);
  if (!perLengthDeterminantFunctionName(
          text, "pd_", field, list, length.c_str(), lower, upper, count, ";\n"))
    wToF(fiDec, "?!? Unsupported Sequence-of type!!!\n");
  else if (text.empty())
    skipFragments(list, elem);
  else
    beginCountdown(text);
}

static void decSkipSeqOfPostfix(AsnType &list, AsnType &)
{
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  std::string text;
  int field = perGetSeqOfField(list, lower, upper, count);
  if (perLengthDeterminantFunctionName(text, "pi_", field, list, "NULL", lower,
                                       upper, count, ";\n") &&
      !text.empty())
    cCloseBrace(fiDec);
  cCloseBrace(fiDec);
}

// The loop over the surplus of an array; that over a linked list has no head.
static void decSkipConstructElemLoop(int file, AsnType &elem)
{
  AsnType &list = *getFatherOfTypeComp(elem);
  if (!perIsArray(list))
    return;
  sint64 lower, upper, limit;
  getInt64SizeEndpoints(list, lower, upper, limit);
  std::string text;
  wToF(file, cNVarRef(text, "while (", " <").c_str());
  if (!cIsControlMember(list) && i64cmp(lower, upper) == 0)
    wToF(file, (" " + i64text(upper) + ")").c_str());
  else
    wToF(file, perRefLengthDeterminant(text, " ", ")").c_str());
}

// --- structures -------------------------------------------------------------

static void decSkipStruPrefix(AsnType &type, TypeFuncInfo &)
{
  perBeginStructure();
  int mainType = getTypeMainType(type);
  if (mainType == TYP_SEQ)
    decSkipSeqPrefix(type);
  else if (isList(mainType))
    forTypeElem(type, decSkipSeqOfPrefix);
  else if (mainType == TYP_CHOICE)
    decSkipChoicePrefix(type);
}

static void decSkipStruPostfix(AsnType &type, TypeFuncInfo &)
{
  int mainType = getTypeMainType(type);
  if (mainType == TYP_SEQ)
    decSkipSeqPostfix(type);
  else if (isList(mainType))
    forTypeElem(type, decSkipSeqOfPostfix);
  else if (mainType == TYP_CHOICE)
    decSkipChoicePostfix(type);
  perEndStructure();
}

// One call steps over all additions.
static void decSkipIgnoreAllExtAddComps(AsnType &type, TypeFuncInfo &)
{
  if (getTypeMainType(type) != TYP_SEQ)
    return;
  perRefExtensionBit(fiDec, "if (", ")");
  cOpenBrace(fiDec);
  wToF(fiDec, "pi_SkipExtendedComponents ();\n");
  cCloseBrace(fiDec);
}

// --- components -------------------------------------------------------------

static void decSkipIsSeqComp(AsnType &father, AsnType &comp)
{
  if (isAddition(&father, comp))
    decTestAddition(comp);
  else if (isOptionalTypeComp(comp))
    decTestOptional(comp);
}

static void decSkipIsComp(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father)
    return;
  int mainType = getTypeMainType(*father);
  if (mainType == TYP_SEQ)
    decSkipIsSeqComp(*father, comp);
  else if (mainType == TYP_CHOICE)
    decIsChoiceAlternative(*father, comp);
}

static bool isAlternative(const AsnType *father, const AsnType &comp)
{
  return father && getTypeMainType(*father) == TYP_CHOICE &&
         !isTypeExtensionmarker(comp);
}

static void decSkipCompPrefix(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if ((isOptionalTypeComp(comp) && !isAddition(father, comp)) ||
      isAlternative(father, comp))
    cOpenBrace(fiDec);
}

static void decSkipCompPostfix(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  std::string text;
  if (isAddition(father, comp)) {
    cOpenBrace(fiDec);
    wToF(fiDec, perOpenTypeFunctionName(text, "pi_", " ();\n").c_str());
    cCloseBrace(fiDec);
  } else if (isOptionalTypeComp(comp)) {
    cCloseBrace(fiDec);
  }
  if (isAlternative(father, comp)) {
    if (getNrOfTypeComps(*father) > 1)
      wToF(fiDec, "break;\n");
    cCloseBrace(fiDec);
  }
}

static void decSkipDefStruct(AsnType &comp, TypeFuncInfo &)
{
  if (isAddition(getFatherOfTypeComp(comp), comp))
    return;
  std::string text;
  wToF(fiDec, decSkipIgnoreFuncName(text, nullptr, comp, " (").c_str());
  wToF(fiDec, "ASNG_L(asnperg));\n");
}

// The surplus of a list is what its loop has left: nothing to test.
static void decIsExtraElems(AsnType &, TypeFuncInfo &) {}

const IgnoreFuncs decIgnoreFuncs = {
    .canGenerateIgnoreFunc = decCanGenerateIgnoreFunc,
    .canGenerateIgnoreComponents = decCanGenerateComponents,
    .skipIgnorePrefix = decSkipIgnorePrefix,
    .skipStruPrefix = decSkipStruPrefix,
    .skipConstructElemLoop = decSkipConstructElemLoop,
    .skipIsComp = decSkipIsComp,
    .skipCompPrefix = decSkipCompPrefix,
    .skipLeaf = decSkipLeaf,
    .skipDefStruct = decSkipDefStruct,
    .skipCompPostfix = decSkipCompPostfix,
    .skipIsExtraElems1 = decIsExtraElems,
    .skipStruPostfix = decSkipStruPostfix,
    .skipIgnorePostfix = decSkipIgnorePostfix,
    .skipIgnoreAllExtAddComps = decSkipIgnoreAllExtAddComps,
};
