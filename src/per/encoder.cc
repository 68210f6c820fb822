// The encoder generator: the table that it gives to the engine, prefixes of
// names, and entry functions.

#include "per/encoder.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "per/enc.h"
#include "per/funcprefs.h"
#include "per/perelem.h"
#include "per/perpath.h"
#include "per/perstruct.h"
#include "per/variant.h"

TypeFuncInfo *glbEncTypeFuncInfo;

static const FuncPrefixes encPrefixes = {
    .normal = {{"pe", "pe", "pe_<unsupported>"},
               {"pe_al", "pe_ua", "pe_<unsupported>"}},
    .entry = {{"pec", "pec", "pec_<unsupported>"},
              {"pec_al", "pec_ua", "pec_<unsupported>"}},
    .entryBer = {"enc", "enc", "enc_<unsupported>"},
};

// Element functions stand ahead of the function that names them.
static void encBeforeNormalFunc(AsnType &type, TypeFuncInfo &)
{
  perInitStructure();
  perForEachInlineFragmentedList(type, encElemCallBack);
}

static void encAdditionalNormalFunc(AsnType &type, TypeFuncInfo &info)
{
  if (getTypeMainType(type) == TYP_ENUM)
    encEnumNormalFunc(type, info);
}

static void encEntryPrefix(AsnType &, TypeFuncInfo &)
{
  wToF(fiEnc, "pe_setEncodingVariant (");
  wToF(fiEnc, perEncodingVariantTail());
}

// An entry function of NULL has nothing to end, but for the aligned variant,
// whose run-time counts on the call. The decoder makes no exception.
static void encEntryPostfix(AsnType &type, TypeFuncInfo &)
{
  if (getTypeMainType(type) != TYP_NULL || perGetEncodingVariant() == 0)
    wToF(fiEnc, "pe_end ();\n");
}

static const TypeFuncInfo encFuncs = {
    .funcFamily = 5,
    .entryOptionBit = 2,
    .tedBefore = -1,
    .tedAfter = -1,
    .genKind = GEN_TRAVERSE_FREE,
    .additionalNormalFunc = encAdditionalNormalFunc,
    .beforeNormalFunc = encBeforeNormalFunc,
    .struPrefix = encStruPrefix,
    .compPrefix = encCompPrefix,
    .skip = encSkip,
    .ignoreMode = IGNORE_SKIP_FUNCS,
    .skipFuncs = {.skipFunc = encSkip},
    .frame = encFrame,
    .leaf = encLeaf,
    .defStruct = encDefStruct,
    .compPostfix = encCompPostfix,
    .struPostfix = encStruPostfix,
    .entryPrefix = encEntryPrefix,
    .entryPostfix = encEntryPostfix,
    .additionGroupPrefix = encAdditionGroupPrefix,
    .additionGroupPostfix = encAdditionGroupPostfix,
    .gIndex = 4,
    .pushPathEnabled = true,
    .pushPath = perPushPath,
    .pushElem = perPushElem,
    .popPath = perPopPath,
    .entryPushPath = perEntryPushPath,
    .entryPopPath = perEntryPopPath,
    .markerOnTraverse = true,
    .canGenerateComponents = encCanGenerateComponents,
};

int generatePEREncodingFunctions(AsnModule &module)
{
  TypeFuncInfo info;
  cInitTypeFuncInfo(info);
  info = encFuncs;
  info.implFile = fiEnc;
  info.protoFile = fiEncE;
  if (getMetaGenerateEmbeddingOptions(module)) {
    info.tedBefore = 1;
    info.tedAfter = 6;
  }
  perSetFuncPrefs(module, info, encPrefixes);
  perResetElemFuncs();
  initStamps();
  glbEncTypeFuncInfo = &info;
  int passed = cGenerateTypeFunctions(module, info);
  glbEncTypeFuncInfo = nullptr;
  return passed;
}
