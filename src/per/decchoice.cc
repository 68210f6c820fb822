// Decoders of CHOICE types: the index is read into the control member, or into
// a variable where there is none, and a switch over it follows.

#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/cmarker.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "per/dec.h"
#include "per/perchoice.h"
#include "per/perstruct.h"

bool isMultipleChoiceAlternatives(const AsnType &type,
                                  const ExtensionInfo &info)
{
  return info.rootOptionalCount > 1 || isTypeExtensionmarkerComp(type);
}

static bool isScopeForChoiceVariables(AsnType &type, const ExtensionInfo &info)
{
  bool hasAdditions = info.addOptionalCount > 0;
  bool hasVariable =
      isMultipleChoiceAlternatives(type, info) && !cIsControlMember(type);
  if ((hasAdditions || hasVariable) && testTypeOption(type, optAsnhc))
    return true;
  if (!cIsDefinedBaseType(type) && hasAdditions)
    return true;
  return cIsHometab(type);
}

// An extensible inline CHOICE has a block for its extension bit.
static bool hasBitBlock(const AsnType &type)
{
  return isTypeExtensionmarkerComp(type) && !cIsDefinedBaseType(type);
}

// --- the index --------------------------------------------------------------

// The variable is a "sint8" and needs no cast.
static std::string &castPrefix(std::string &text, int format)
{
  if (format == VF_I8)
    return text = " pd_";
  return text = formatText(" (%s)pd_", targetLangType(format));
}

void decChoiceIndexExtRoot(AsnType &type, const std::string &variable,
                           int format)
{
  int32_t upper = 0;
  int bits = 0;
  int field = perGetChoiceRootIndexField(type, upper, bits);
  std::string prefix;
  if (field == 1) {
    wToF(fiDec, (variable + " =").c_str());
    perChoiceRootIndexFunctionNameToF(fiDec, castPrefix(prefix, format).c_str(),
                                      field, nullptr, upper, bits, ";\n");
  } else if (!variable.empty()) {
    wToF(fiDec, (variable + " = 0;\n").c_str());
  }
}

// Numbers of components count the marker, those of additions start behind it.
void decChoiceIndexExtAdd(AsnType &type, const std::string &variable,
                          int format)
{
  std::string prefix;
  wToF(fiDec, formatText("%s = %d +", variable.c_str(),
                         getTypeExtensionmarkerCompNbr(type) + 1)
                  .c_str());
  perChoiceAddIndexFunctionNameToF(fiDec, castPrefix(prefix, format).c_str(),
                                   nullptr, ";\n");
}

// Where the index goes; empty if nobody asks for it. Gives its value format.
static int choiceVariable(std::string &variable, AsnType &type,
                          const ExtensionInfo &info)
{
  if (!cIsControlMember(type)) {
    if (isMultipleChoiceAlternatives(type, info)) {
      perDefineChoiceVar(fiDec);
      perGetChoiceVar(variable);
    }
    return VF_I8;
  }
  if (testTypeOption(type, optAsnHome) && localVarCount[VAR_HOME] > 0)
    cHomeVarRef(variable, nullptr, "->choice");
  else
    cHome(variable, nullptr, false, type, true, "choice");
  return getVFSize(type);
}

// --- the type ---------------------------------------------------------------

void decChoicePrefix(AsnType &type)
{
  const ExtensionInfo info = getExtensionInfo(type);
  bool hasMarker = isTypeExtensionmarkerComp(type);
  if (isScopeForChoiceVariables(type, info))
    cOpenBrace(fiDec);
  if (info.addOptionalCount > 0)
    perDefineOpenCtxBuffer(fiDec);
  std::string variable;
  int format = choiceVariable(variable, type, info);
  if (hasBitBlock(type))
    cOpenBrace(fiDec);
  if (hasMarker) {
    perDefineExtensionBit(fiDec, "pd_extensionBit ()");
    perRefExtensionBit(fiDec, "if (!", ")");
    cOpenBrace(fiDec);
  }
  decChoiceIndexExtRoot(type, variable, format);
  if (hasMarker) {
    cCloseBrace(fiDec);
    wToF(fiDec, "else ");
    cOpenBrace(fiDec);
    decChoiceIndexExtAdd(type, variable, format);
    cCloseBrace(fiDec);
  }
  if (isMultipleChoiceAlternatives(type, info)) {
    wToF(fiDec, formatText("switch (%s)", variable.c_str()).c_str());
    cOpenBrace(fiDec);
  }
}

void decDefaultLine()
{
  --fArr[fiDec].indent;
  wToF(fiDec, "default:\n");
  ++fArr[fiDec].indent;
}

// What is no known alternative.
static void defaultBranch(AsnType &type)
{
  decDefaultLine();
  cOpenBrace(fiDec);
  if (cIsControlMember(type))
    cSetExtensionmarkerControlMember(fiDec, type);
  cInitExtensionmarker(fiDec, type, glbDecTypeFuncInfo->gIndex, false);
  decUnknownExtendedComponents(type);
  cCloseBrace(fiDec);
}

void decChoicePostfix(AsnType &type)
{
  const ExtensionInfo info = getExtensionInfo(type);
  if (isTypeExtensionmarkerComp(type))
    defaultBranch(type);
  if (isMultipleChoiceAlternatives(type, info)) {
    --fArr[fiDec].indent;
    cCloseBrace(fiDec);
  }
  if (hasBitBlock(type))
    cCloseBrace(fiDec);
  if (isScopeForChoiceVariables(type, info))
    cCloseBrace(fiDec);
}

// --- alternatives -----------------------------------------------------------

void decIsChoiceAlternative(AsnType &father, AsnType &comp)
{
  if (isTypeExtensionmarker(comp) ||
      !isMultipleChoiceAlternatives(father, getExtensionInfo(father)))
    return;
  if (!isFirstActualTypeComp(comp))
    --fArr[fiDec].indent;
  printfToF(fiDec, "case %d:\n", getTypeCompNbr(comp));
  ++fArr[fiDec].indent;
}

void decChoiceAltPrefix(AsnType &father, AsnType &comp)
{
  if (perIsExtensionAdditionComponent(&father, comp))
    decOpenTypeToF("pd_Begin");
}

// Inside the block of the alternative; an encoder's "break" is the engine's.
void decChoiceAltPostfix(AsnType &father, AsnType &comp)
{
  if (perIsExtensionAdditionComponent(&father, comp))
    decOpenTypeToF("pd_End");
  if (isMultipleChoiceAlternatives(father, getExtensionInfo(father)))
    wToF(fiDec, "break;\n");
}
