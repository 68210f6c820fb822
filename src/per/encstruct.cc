// Encoders of structures: SEQUENCE with its preamble and additions. A SET is
// left out: it has no preamble, its components go in the order of the type,
// and each is reported.

#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/chomeop.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "model/valuesetbuild.h"
#include "per/enc.h"
#include "per/perchoice.h"
#include "per/perlength.h"
#include "per/perstruct.h"

// The run-time handles the elements of a fragmented list.
bool encCanGenerateComponents(AsnType &type, TypeFuncInfo &)
{
  return !perValueCanBeFragmented(type);
}

static bool isList(int mainType)
{
  return mainType == TYP_SEQOF || mainType == TYP_SETOF;
}

// --- SEQUENCE ---------------------------------------------------------------

// An inline structure has a block for its local variables; a definition uses
// that of its function.
static bool isSeqVars(const AsnType &type)
{
  return !isDefinedType(type) || cIsHometab(type);
}

typedef void OptionalCompsWalk(AsnType &type, const ExtensionInfo &info,
                               PerCompVisit *visit);

// The bits of optional components, in words of 32 of which the highest goes
// out first.
static void encOptionalityField(AsnType &type, const ExtensionInfo &info,
                                int32_t count, OptionalCompsWalk *walk)
{
  if (count > maxOptionalComps)
    notYetSupported(
        type, formatText("More than %d optional components.", maxOptionalComps)
                  .c_str());
  perSetOptFieldVars(count);
  int32_t lastWord = glbRootOptFieldSetCount->value;
  int32_t lastBits = glbRootOptFieldLastIndex->value;
  wToF(fiEnc, "sint32 ");
  perWriteOptFieldRef(fiEnc, lastWord + 1);
  wToF(fiEnc, " = ");
  if (lastWord > 0)
    wToF(fiEnc, "{");
  for (int32_t word = 0; word <= lastWord; ++word) {
    if (word > 0)
      wToF(fiEnc, ", ");
    wToF(fiEnc, "0");
  }
  if (lastWord > 0)
    wToF(fiEnc, "}");
  wToF(fiEnc, ";\n");
  walk(type, info, setOptFieldBit);
  for (int32_t word = lastWord; word >= 0; --word) {
    wToF(fiEnc, "pe_optField (");
    perWriteOptFieldRef(fiEnc, word);
    wToF(fiEnc, ", ");
    printfToF(fiEnc, "%d);\n", word == lastWord ? lastBits : 32);
  }
}

static void encExtensionRootOptionalityField(AsnType &type,
                                             const ExtensionInfo &info)
{
  encOptionalityField(type, info, info.rootOptionalCount,
                      perForEachOptionalRootComp);
}

static void encAdditionGroupOptionalityField(AsnType &group,
                                             const ExtensionInfo &info)
{
  encOptionalityField(group, info, info.addOptionalCount,
                      perForEachAdditionGroupComp);
}

// The block around the optional field ends its life at once; in a decoder it
// lives as long as the structure.
static void encSeqPrefix(AsnType &type)
{
  const ExtensionInfo info = getExtensionInfo(type);
  if (isSeqVars(type))
    cOpenBrace(fiEnc);
  if (info.addMandatoryCount != 0 || info.addOptionalCount != 0)
    perDefineOpenCtxBuffer(fiEnc);
  if (isTypeExtensionmarkerComp(type))
    encSeqExtensionmarkerBit(type, info);
  if (info.rootOptionalCount != 0) {
    cOpenBrace(fiEnc);
    encExtensionRootOptionalityField(type, info);
    cCloseBrace(fiEnc);
  }
  encTestDefaultValues(type);
}

static void encSeqPostfix(AsnType &type)
{
  if (isSeqVars(type))
    cCloseBrace(fiEnc);
}

// --- additions --------------------------------------------------------------

// Stands in an open type of its own; members of a group stand in the group's.
static bool isFramedAddition(AsnType *father, const AsnType &comp)
{
  return perIsExtensionAdditionComponent(father, comp) && !comp.addGroup;
}

static void openTypeToF(const char *prefix)
{
  std::string text;
  wToF(fiEnc, perOpenTypeFunctionName(text, prefix, " (&").c_str());
  perRefOpenCtxBuffer(fiEnc, nullptr, ");\n");
}

void encAdditionGroupPrefix(AsnType &group, TypeFuncInfo &)
{
  const ExtensionInfo info = getExtensionAdditionGroupInfo(group);
  if (info.addOptionalCount == 0)
    return;
  perBeginStructure();
  cOpenBrace(fiEnc);
  encAdditionGroupOptionalityField(group, info);
}

void encAdditionGroupPostfix(AsnType &group, TypeFuncInfo &)
{
  if (getExtensionAdditionGroupInfo(group).addOptionalCount == 0)
    return;
  cCloseBrace(fiEnc);
  perEndStructure();
}

// --- components -------------------------------------------------------------

static void encSeqCompPrefix(AsnType &father, AsnType &comp)
{
  if (encHasDefaultCheck(comp)) {
    forDefaultValue(comp, encHandleDefaultValueCheck);
    cOpenBrace(fiEnc);
  }
  if (isFramedAddition(&father, comp))
    openTypeToF("pe_Begin");
}

void encCompPrefix(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father)
    return;
  switch (getTypeMainType(*father)) {
  case TYP_SEQ:
    encSeqCompPrefix(*father, comp);
    break;
  case TYP_SET:
    notYetSupported(comp, "Structured type");
    break;
  case TYP_CHOICE:
    encChoiceAltPrefix(*father, comp);
    break;
  default:
    break;
  }
}

static void endDefaultCheck(AsnType &father, AsnType &comp)
{
  cCloseBrace(fiEnc);
  bool hasHome = testTypeOption(father, optAsnhc) ||
                 testTypeOption(comp, optAsnHome) || cIsHometab(father);
  if (hasHome && getGlobalOptions(*getModuleOfType(comp)).memory)
    cFreeAsn(fiEnc, comp);
}

void encCompPostfix(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father)
    return;
  int mainType = getTypeMainType(*father);
  if (mainType != TYP_SEQ && mainType != TYP_CHOICE && !isList(mainType))
    return;
  if (isFramedAddition(father, comp))
    openTypeToF("pe_End");
  if (encHasDefaultCheck(comp))
    endDefaultCheck(*father, comp);
}

// --- structures -------------------------------------------------------------

static void encListPrefix(AsnType &list)
{
  if (isExtensibleSizeConstraintValueSet(list))
    encWarningForExtendedConstraints(list, "SET-OF/SEQ-OF");
  else
    forTypeElem(list, encSeqOfPrefix);
}

void encStruPrefix(AsnType &type, TypeFuncInfo &)
{
  perBeginStructure();
  int mainType = getTypeMainType(type);
  if (mainType == TYP_SEQ)
    encSeqPrefix(type);
  else if (isList(mainType))
    encListPrefix(type);
  else if (mainType == TYP_CHOICE)
    encChoicePrefix(type);
}

void encStruPostfix(AsnType &type, TypeFuncInfo &)
{
  int mainType = getTypeMainType(type);
  if (mainType == TYP_SEQ)
    encSeqPostfix(type);
  else if (isList(mainType))
    encSeqOfPostfix(type);
  else if (mainType == TYP_CHOICE)
    encChoicePostfix(type);
  perEndStructure();
}
