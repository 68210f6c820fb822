// Decoders of structures: SEQUENCE with its preamble and additions. A SET has
// no preamble and no tests here either, so the blocks of its components are
// unconditional.

#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/cmarker.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/dec.h"
#include "per/perchoice.h"
#include "per/perlength.h"
#include "per/perstruct.h"

// The run-time handles the elements of a fragmented list.
bool decCanGenerateComponents(AsnType &type, TypeFuncInfo &)
{
  return !perValueCanBeFragmented(type);
}

static bool isList(int mainType)
{
  return mainType == TYP_SEQOF || mainType == TYP_SETOF;
}

// --- SEQUENCE ---------------------------------------------------------------

// The block of the variables of the preamble, which tests of components read.
bool decHasSeqBlock(const AsnType &type, const ExtensionInfo &info)
{
  return isTypeExtensionmarkerComp(type) || info.rootOptionalCount != 0;
}

// Words of 32 bits, of which the highest comes first. The variable lives as
// long as the structure, whose components test it; an encoder's ends at once.
static void decOptionalityField(AsnType &type, int32_t count)
{
  if (count > maxOptionalComps)
    notYetSupported(
        type, formatText("More than %d optional components.", maxOptionalComps)
                  .c_str());
  perSetOptFieldVars(count);
  int32_t lastWord = glbRootOptFieldSetCount->value;
  int32_t lastBits = glbRootOptFieldLastIndex->value;
  wToF(fiDec, "sint32 ");
  perWriteOptFieldRef(fiDec, lastWord + 1);
  wToF(fiDec, ";\n");
  for (int32_t word = lastWord; word >= 0; --word) {
    perWriteOptFieldRef(fiDec, word);
    printfToF(fiDec, " = pd_getBits (%d);\n", word == lastWord ? lastBits : 32);
  }
}

static void decExtensionRootOptionalityField(AsnType &type,
                                             const ExtensionInfo &info)
{
  decOptionalityField(type, info.rootOptionalCount);
}

static void decExtensionmarkerBit(AsnType &type, const ExtensionInfo &info)
{
  if (info.addMandatoryCount != 0 && info.rootOptionalCount == 0 &&
      info.addOptionalCount == 0)
    typeWarning(type,
                "All the components in the extension addition are mandatory.");
  perDefineExtensionBit(fiDec, "pd_extensionBit ()");
}

void decSeqPrefix(AsnType &type)
{
  const ExtensionInfo info = getExtensionInfo(type);
  if (decHasSeqBlock(type, info))
    cOpenBrace(fiDec);
  if (isTypeExtensionmarkerComp(type))
    decExtensionmarkerBit(type, info);
  if (info.rootOptionalCount != 0)
    decExtensionRootOptionalityField(type, info);
}

static void decSeqPostfix(AsnType &type)
{
  if (isTypeExtensionmarkerComp(type))
    decUnknownExtendedComponents(type);
  if (decHasSeqBlock(type, getExtensionInfo(type)))
    cCloseBrace(fiDec);
  if (getMetaDecodingFillDefaultValues(*getModuleOfType(type)))
    decFillDefaultValues(type);
}

// --- additions --------------------------------------------------------------

void decOpenTypeToF(const char *prefix)
{
  std::string text;
  wToF(fiDec, perOpenTypeFunctionName(text, prefix, " (&").c_str());
  perRefOpenCtxBuffer(fiDec, nullptr, ");\n");
}

void decAdditionGroupPrefix(AsnType &group, TypeFuncInfo &)
{
  const ExtensionInfo info = getExtensionAdditionGroupInfo(group);
  if (info.addOptionalCount == 0)
    return;
  perBeginStructure();
  cOpenBrace(fiDec);
  decOptionalityField(group, info.addOptionalCount);
}

void decAdditionGroupPostfix(AsnType &group, TypeFuncInfo &)
{
  if (getExtensionAdditionGroupInfo(group).addOptionalCount == 0)
    return;
  cCloseBrace(fiDec);
  perEndStructure();
}

// --- presence ---------------------------------------------------------------

void decTestAddition(const AsnType &comp)
{
  wToF(fiDec, "if (");
  perRefExtensionAddField(fiDec, nullptr, nullptr);
  wToF(fiDec, " &");
  printfToF(fiDec, " BITL(%d))", getTypeCompExtensionAddFieldIndex(comp));
}

void decTestOptional(const AsnType &comp)
{
  wToF(fiDec, "if (");
  perWriteGetOptField(fiDec, getTypeCompOptFieldIndex(comp));
  wToF(fiDec, ")");
}

static void decIsSeqComp(AsnType &father, AsnType &comp)
{
  if (perIsExtensionAdditionComponent(&father, comp) && !comp.addGroup)
    decTestAddition(comp);
  else if (isOptionalTypeComp(comp))
    decTestOptional(comp);
}

void decIsComp(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father)
    return;
  int mainType = getTypeMainType(*father);
  if (mainType == TYP_SEQ)
    decIsSeqComp(*father, comp);
  else if (mainType == TYP_CHOICE)
    decIsChoiceAlternative(*father, comp);
}

// --- components -------------------------------------------------------------

static bool isGroup(const AsnType &comp)
{
  return getTypeMainType(comp) == TYP_EXTADDGRP;
}

// The engine opens blocks for optional components only.
static bool hasOwnBlock(const AsnType &comp)
{
  return isGroup(comp) || isMandatoryTypeComp(comp);
}

// The engine keeps the control member of optional components only.
static void setControlMemberOfMandatory(AsnType &comp)
{
  int32_t status = comp.compStatus;
  comp.compStatus = TCS_OPTIONAL;
  cSetControlMember(fiDec, comp);
  comp.compStatus = status;
}

static void decSeqCompPrefix(AsnType &father, AsnType &comp)
{
  if (!perIsExtensionAdditionComponent(&father, comp))
    return;
  bool isMandatory = !isGroup(comp) && isMandatoryTypeComp(comp);
  if (hasOwnBlock(comp))
    cOpenBrace(fiDec);
  if (isMandatory)
    typeWarning(comp, "Mandatory component in extension addition.");
  if (getTypeOptions(comp).skipKind == 0)
    return;
  if (!comp.addGroup)
    decOpenTypeToF("pd_Begin");
  if (isMandatory && cIsControlMember(father))
    setControlMemberOfMandatory(comp);
}

// The open type ends whatever the SKIP kind.
static void decSeqCompPostfix(AsnType &father, AsnType &comp)
{
  decCatchDefaultValue(comp);
  if (!perIsExtensionAdditionComponent(&father, comp))
    return;
  if (!comp.addGroup)
    decOpenTypeToF("pd_End");
  if (hasOwnBlock(comp))
    cCloseBrace(fiDec);
}

void decCompPrefix(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father)
    return;
  int mainType = getTypeMainType(*father);
  if (mainType == TYP_SEQ)
    decSeqCompPrefix(*father, comp);
  else if (mainType == TYP_CHOICE)
    decChoiceAltPrefix(*father, comp);
}

void decCompPostfix(AsnType &comp, TypeFuncInfo &)
{
  AsnType *father = getFatherOfTypeComp(comp);
  if (!father)
    return;
  int mainType = getTypeMainType(*father);
  if (mainType == TYP_SEQ)
    decSeqCompPostfix(*father, comp);
  else if (mainType == TYP_CHOICE)
    decChoiceAltPostfix(*father, comp);
}

// --- structures -------------------------------------------------------------

static void decListPrefix(AsnType &list)
{
  if (isExtensibleSizeConstraintValueSet(list))
    decWarningForExtendedConstraints(list, "SET-OF/SEQ-OF");
  else
    forTypeElem(list, decSeqOfPrefix);
}

void decStruPrefix(AsnType &type, TypeFuncInfo &)
{
  perBeginStructure();
  int mainType = getTypeMainType(type);
  if (mainType == TYP_SEQ)
    decSeqPrefix(type);
  else if (isList(mainType))
    decListPrefix(type);
  else if (mainType == TYP_CHOICE)
    decChoicePrefix(type);
}

// Nothing for lists, which open no block; those of an encoder can.
void decStruPostfix(AsnType &type, TypeFuncInfo &)
{
  int mainType = getTypeMainType(type);
  if (mainType == TYP_SEQ)
    decSeqPostfix(type);
  else if (mainType == TYP_CHOICE)
    decChoicePostfix(type);
  perEndStructure();
}
