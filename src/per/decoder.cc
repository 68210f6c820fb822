// The decoder generator: the table that it gives to the engine, prefixes of
// names, and entry functions.

#include "per/decoder.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "model/typequery.h"
#include "per/dec.h"
#include "per/funcprefs.h"
#include "per/perelem.h"
#include "per/perpath.h"
#include "per/perstruct.h"
#include "per/variant.h"

TypeFuncInfo *glbDecTypeFuncInfo;

static const FuncPrefixes decPrefixes = {
    .normal = {{"pd", "pd", "pd_<unsupported>"},
               {"pd_al", "pd_ua", "pd_<unsupported>"}},
    .entry = {{"pdc", "pdc", "pdc_<unsupported>"},
              {"pdc_al", "pdc_ua", "pdc_<unsupported>"}},
    .entryBer = {"dec", "dec", "dec_<unsupported>"},
};

// The list stands inline in a structure that is stepped over.
static bool isInSkipped(const AsnType &list)
{
  const AsnType *outer = getFatherOfTypeComp(list);
  while (outer && !(testTypeOption(*outer, optSkip) &&
                    getTypeOptions(*outer).skipKind == 0))
    outer = getFatherOfTypeComp(*outer);
  return outer;
}

// The list stands inline in elements whose surplus is stepped over.
static bool isInSurplus(const AsnType &list)
{
  const AsnType *outer = getFatherOfTypeComp(list);
  while (outer && !(isListType(*outer) && hasSurplusLoop(*outer)))
    outer = getFatherOfTypeComp(*outer);
  return outer;
}

// A skipped list needs the function that ignores its elements, one in the
// elements of a list with a surplus needs both.
static void elemFunction(AsnType &list, AsnType &elem)
{
  bool isSkipped = testTypeOption(list, optSkip) || isInSkipped(list);
  if (!isSkipped)
    decElemCallBack(list, elem);
  if (isSkipped || isInSurplus(list))
    decSkipElemCallBack(list, elem);
}

// Element functions stand ahead of the function that names them.
static void decBeforeNormalFunc(AsnType &type, TypeFuncInfo &)
{
  perInitStructure();
  perForEachInlineFragmentedList(type, elemFunction);
}

static void decAdditionalNormalFunc(AsnType &type, TypeFuncInfo &info)
{
  if (getTypeMainType(type) == TYP_ENUM)
    decEnumNormalFunc(type, info);
}

static void decEntryPrefix(AsnType &, TypeFuncInfo &)
{
  wToF(fiDec, "pd_setEncodingVariant (");
  wToF(fiDec, perEncodingVariantTail());
}

// For every type; the encoder leaves it out for NULL.
static void decEntryPostfix(AsnType &, TypeFuncInfo &)
{
  wToF(fiDec, "pd_end ();\n");
}

static const TypeFuncInfo decFuncs = {
    .funcFamily = 11,
    .entryOptionBit = 3,
    .tedBefore = -1,
    .tedAfter = -1,
    .genKind = GEN_CONSTRUCT,
    .additionalNormalFunc = decAdditionalNormalFunc,
    .beforeNormalFunc = decBeforeNormalFunc,
    .struPrefix = decStruPrefix,
    .isComp = decIsComp,
    .compPrefix = decCompPrefix,
    .skip = decSkipError,
    .ignoreMode = IGNORE_TRAVERSE,
    .frame = decFrame,
    .leaf = decLeaf,
    .defStruct = decDefStruct,
    .compPostfix = decCompPostfix,
    .struPostfix = decStruPostfix,
    .entryPrefix = decEntryPrefix,
    .entryPostfix = decEntryPostfix,
    .additionGroupPrefix = decAdditionGroupPrefix,
    .additionGroupPostfix = decAdditionGroupPostfix,
    .constructElemLoop = decConstructElemLoop,
    .gIndex = 4,
    .pushPathEnabled = true,
    .pushPath = perPushPath,
    .pushElem = perPushElem,
    .popPath = perPopPath,
    .entryPushPath = perEntryPushPath,
    .entryPopPath = perEntryPopPath,
    .markerOnConstruct = true,
    .setChoiceControlMember = false,  // a decoder sets it with the index
    .canGenerateComponents = decCanGenerateComponents,
    .duplicateCompError = "ASN_PER_WRONG_ENCODING_STX",
    .tooManyElemsError = "ASN_PER_CONSTRAINT_VIOLATION",
};

int generatePERDecodingFunctions(AsnModule &module)
{
  TypeFuncInfo info;
  cInitTypeFuncInfo(info);
  info = decFuncs;
  info.ignoreFuncs = decIgnoreFuncs;
  info.implFile = fiDec;
  info.protoFile = fiDecE;
  if (getMetaGenerateEmbeddingOptions(module)) {
    info.tedBefore = 2;
    info.tedAfter = 7;
  }
  perSetFuncPrefs(module, info, decPrefixes);
  perResetElemFuncs();
  initStamps();
  glbDecTypeFuncInfo = &info;
  int passed = cGenerateTypeFunctions(module, info);
  glbDecTypeFuncInfo = nullptr;
  return passed;
}
