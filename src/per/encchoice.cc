// Encoders of CHOICE types: extension bit and index of the alternative. With
// a control member both go ahead of the switch over it; without one each
// alternative sends its own index.

#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "per/enc.h"
#include "per/perchoice.h"
#include "per/perstruct.h"

// Unlike a SEQUENCE, an inline CHOICE without additions has no variables.
static bool isChoiceVars(AsnType &type, const ExtensionInfo &info)
{
  return (!cIsDefinedBaseType(type) && info.addOptionalCount != 0) ||
         cIsHometab(type);
}

// The member "choice" between two texts.
static std::string &choiceMember(std::string &text, const char *prefix,
                                 const AsnType &type, const char *suffix)
{
  std::string tail = formatText("choice%s", orEmpty(suffix));
  if (testTypeOption(type, optAsnHome) && localVarCount[VAR_HOME] > 0)
    return cHomeVarRef(text, prefix, ("->" + tail).c_str());
  return cHome(text, prefix, false, type, true, tail.c_str());
}

// --- the extension bit ------------------------------------------------------

// A test among the extension alternatives stands already.
static bool isTestWritten;

// Behind the marker, a test of the alternative's home.
static void encTestAsnhAlternativeExtensionAddition(AsnType &type,
                                                    AsnType &comp, int compNbr)
{
  if (isTypeExtensionmarker(comp) ||
      !perIsExtensionAdditionComponent(&type, comp))
    return;
  if (isTestWritten)
    wToF(fiEnc, " || ");
  isTestWritten = true;
  if (cIsHometab(type)) {
    printfToF(fiEnc, "hometab [%d] != NULL", compNbr);
    return;
  }
  std::string id, text;
  getTypeCompId(id, nullptr, comp, "_fld != NULL");
  wToF(fiEnc, cHome(text, nullptr, false, type, true, id.c_str()).c_str());
}

static void defineBitFromMember(AsnType &type)
{
  std::string tail = formatText(" > %d)", getTypeExtensionmarkerCompNbr(type));
  std::string text;
  choiceMember(text, "(", type, tail.c_str());
  perDefineExtensionBit(fiEnc, text.c_str());
}

static void defineBitFromHomes(AsnType &type)
{
  perDefineExtensionBit(fiEnc, "0");
  wToF(fiEnc, "if (");
  isTestWritten = false;
  forEachTypeComp(type, encTestAsnhAlternativeExtensionAddition);
  wToF(fiEnc, ")");
  cOpenBrace(fiEnc);
  perSetExtensionBit(fiEnc, "1");
  cCloseBrace(fiEnc);
}

static void encChoiceExtensionmarkerBit(AsnType &type,
                                        const ExtensionInfo &info)
{
  if (info.addOptionalCount == 0) {
    wToF(fiEnc, "pe_extensionBit (0);\n");
    return;
  }
  if (cIsControlMember(type))
    defineBitFromMember(type);
  else
    defineBitFromHomes(type);
  perRefExtensionBit(fiEnc, "pe_extensionBit (", ");\n");
}

// --- the index --------------------------------------------------------------

static void encChoiceIndexExtRoot(AsnType &type, const char *expression)
{
  int32_t upper = 0;
  int bits = 0;
  switch (perGetChoiceRootIndexField(type, upper, bits)) {
  case 0:
    break;
  case 1:
    perChoiceRootIndexFunctionNameToF(fiEnc, "pe_", 1, expression, upper, bits,
                                      ";\n");
    break;
  default:
    notYetSupported(type, "CHOICE type with more than 255 alternatives.");
  }
}

static void encChoiceIndexExtAdd(const char *expression)
{
  perChoiceAddIndexFunctionNameToF(fiEnc, "pe_", expression, ";\n");
}

// Numbers of components count the marker, those of additions start behind it.
static void addIndexFromMember(AsnType &type)
{
  std::string tail =
      formatText(" - %d", getTypeExtensionmarkerCompNbr(type) + 1);
  std::string expression;
  encChoiceIndexExtAdd(
      choiceMember(expression, nullptr, type, tail.c_str()).c_str());
}

// With a marker: root and additions are told apart by the extension bit.
static void encExtensibleIndex(AsnType &type, const ExtensionInfo &info)
{
  bool hasAdditions = info.addOptionalCount > 0;
  bool sendsRoot = info.rootOptionalCount > 1;
  std::string expression;
  if (sendsRoot) {
    if (hasAdditions) {
      perRefExtensionBit(fiEnc, "if (!", ")");
      cOpenBrace(fiEnc);
    }
    choiceMember(expression, nullptr, type, nullptr);
    encChoiceIndexExtRoot(type, expression.c_str());
    if (hasAdditions)
      cCloseBrace(fiEnc);
  }
  if (!hasAdditions)
    return;
  if (sendsRoot)
    wToF(fiEnc, "else ");
  else
    perRefExtensionBit(fiEnc, "if (", ")");
  cOpenBrace(fiEnc);
  addIndexFromMember(type);
  cCloseBrace(fiEnc);
}

static void encChoiceIndex(AsnType &type, const ExtensionInfo &info)
{
  if (!cIsControlMember(type))
    return;
  if (isTypeExtensionmarkerComp(type)) {
    encExtensibleIndex(type, info);
    return;
  }
  std::string expression;
  choiceMember(expression, nullptr, type, nullptr);
  encChoiceIndexExtRoot(type, expression.c_str());
}

static void encChoiceAlternativeIndex(AsnType &type, AsnType &comp)
{
  int32_t number = getTypeCompNbr(comp);
  if (perIsExtensionAdditionComponent(&type, comp)) {
    number -= getTypeExtensionmarkerCompNbr(type) + 1;
    encChoiceIndexExtAdd(formatText("%d", number).c_str());
  } else {
    encChoiceIndexExtRoot(type, formatText("%d", number).c_str());
  }
}

// --- the type and its alternatives ------------------------------------------

void encChoicePrefix(AsnType &type)
{
  const ExtensionInfo info = getExtensionInfo(type);
  if (isChoiceVars(type, info))
    cOpenBrace(fiEnc);
  if (info.addOptionalCount != 0)
    perDefineOpenCtxBuffer(fiEnc);
  if (isTypeExtensionmarkerComp(type))
    encChoiceExtensionmarkerBit(type, info);
  encChoiceIndex(type, info);
}

void encChoicePostfix(AsnType &type)
{
  if (isChoiceVars(type, getExtensionInfo(type)))
    cCloseBrace(fiEnc);
}

void encChoiceAltPrefix(AsnType &type, AsnType &comp)
{
  if (!cIsControlMember(type))
    encChoiceAlternativeIndex(type, comp);
  if (!perIsExtensionAdditionComponent(&type, comp))
    return;
  std::string text;
  wToF(fiEnc, perOpenTypeFunctionName(text, "pe_Begin", " (&").c_str());
  perRefOpenCtxBuffer(fiEnc, nullptr, ");\n");
}
