// Default values and extension additions in encoders. A component whose value
// equals its DEFAULT is not sent: the test stands ahead of its bit in the
// preamble and around its value, so that the two agree. Additions are
// announced by the extension bit and a bitmap.

#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/cmarker.h"
#include "cbet/cnames.h"
#include "cbet/cpresence.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "cbet/valueprint.h"
#include "model/controlmember.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "per/enc.h"
#include "per/perdefault.h"
#include "per/perstruct.h"

// --- warnings ---------------------------------------------------------------

// What was said once in the run.
static bool unsupportedExplained;
static bool uncheckedExplained;

static void warnOfUnsupported(const AsnType &comp)
{
  indTypeWarning(comp, "Encoding: Unsupported type with DEFAULT keyword, "
                       "treated as OPTIONAL.");
  if (unsupportedExplained)
    return;
  unsupportedExplained = true;
  indWarning("When encoding a value make sure that you do not");
  indWarning("set a value to a DEFAULT value because default values");
  indWarning("should not be sent.");
}

static void warnOfUnchecked(const AsnType &comp)
{
  indTypeWarning(comp,
                 "Encoding: No code generated for check of DEFAULT values.");
  if (uncheckedExplained)
    return;
  uncheckedExplained = true;
  indWarning("Encoder may send DEFAULT value (PER says do not send).");
  indWarning("See also QUORVEN options for DEFAULT value handling.");
}

static void encTestDefaultValue(AsnType &, AsnType &comp, int)
{
  const AsnModule &module = *getModuleOfType(comp);
  if (getMetaDefaultValuesWarningDisable(module) || !isDefaultValue(comp))
    return;
  if (!perIsDefaultKeywordUsedWithSupportedType(comp))
    warnOfUnsupported(comp);
  else if (!getMetaEncodingCheckDefaultValues(module))
    warnOfUnchecked(comp);
}

void encTestDefaultValues(AsnType &type)
{
  if (isOptionalTypeComps(type))
    forEachTypeComp(type, encTestDefaultValue);
}

// --- the check --------------------------------------------------------------

bool encHasDefaultCheck(const AsnType &comp)
{
  return getMetaEncodingCheckDefaultValues(*getModuleOfType(comp)) &&
         perIsDefaultKeywordUsedWithSupportedType(comp);
}

void encHandleDefaultValueCheck(AsnType &comp, AsnValue &value)
{
  std::string text;
  perDefaultRef(text, "if (", comp, "!=", false);
  perDefaultValueToF(fiEnc, text, comp, value, ")");
}

// The same inside a larger test.
static void encHandleExtendedDefaultValueCheck(AsnType &comp, AsnValue &value)
{
  std::string text;
  perDefaultRef(text, "(", comp, "!=", true);
  perDefaultValueToF(fiEnc, text, comp, value, ")");
}

// --- the optional field -----------------------------------------------------

// The test of a component that is not on the type name path.
static void testPresence(AsnType &father, AsnType &comp, int compNbr)
{
  if (cIsHometab(father)) {
    printfToF(fiEnc, "if (hometab [%d])", compNbr);
  } else if (testTypeOption(father, optAsnhc)) {
    std::string id, text;
    getTypeCompId(id, nullptr, comp, "_fld");
    wToF(fiEnc, "if (");
    wToF(
        fiEnc,
        cStructHomeMemberRef(text, nullptr, false, father, id.c_str()).c_str());
    wToF(fiEnc, ")");
  } else {
    cTestControlMember(fiEnc, comp);
  }
}

// The braces of the check, where the component has one.
static void beginCheck(AsnType &comp)
{
  if (!encHasDefaultCheck(comp))
    return;
  forDefaultValue(comp, encHandleDefaultValueCheck);
  cOpenBrace(fiEnc);
}

static void endCheck(const AsnType &comp)
{
  if (encHasDefaultCheck(comp))
    cCloseBrace(fiEnc);
}

void setOptFieldBit(AsnType &father, AsnType &comp, int compNbr, int32_t bit,
                    const ExtensionInfo &)
{
  testPresence(father, comp, compNbr);
  cOpenBrace(fiEnc);
  beginCheck(comp);
  perWriteSetOptField(fiEnc, bit);
  endCheck(comp);
  cCloseBrace(fiEnc);
}

// --- the extension bit ------------------------------------------------------

// State of the tests: a marker was passed, a test stands.
static struct AdditionTests {
  bool afterMarker = false;
  bool isTestWritten = false;
} additionTests;

// What the name of a component follows at once.
static std::string &structureAccess(std::string &text, const AsnType &type)
{
  if (testTypeOption(type, optAsnHome) && localVarCount[VAR_HOME] > 0)
    return cHomeVarRef(text, nullptr, "->");
  return cHome(text, nullptr, false, type, true, nullptr);
}

static std::string &additionTest(std::string &text, AsnType &type,
                                 AsnType &comp, int compNbr)
{
  if (cIsHometab(type))
    return text = formatText("hometab [%d]", compNbr);
  std::string base;
  structureAccess(base, type);
  if (testTypeOption(type, optAsnhc))
    return getTypeCompId(text, base.c_str(), comp, "_fld");
  return getControlMemberTst(text, nullptr, base.c_str(), type, comp, compNbr,
                             nullptr);
}

static void encTestOptionalExtensionAddition(AsnType &type, AsnType &comp,
                                             int compNbr)
{
  if (isTypeExtensionmarker(comp)) {
    additionTests.afterMarker = true;
    return;
  }
  if (!additionTests.afterMarker)
    return;
  if (getTypeMainType(comp) == TYP_EXTADDGRP) {
    forEachAdditionGroupComp(type, comp, encTestOptionalExtensionAddition);
    return;
  }
  if (!isOptionalTypeComp(comp))
    return;
  if (additionTests.isTestWritten)
    wToF(fiEnc, " || ");
  additionTests.isTestWritten = true;
  std::string text;
  bool hasCheck = encHasDefaultCheck(comp);
  if (hasCheck)
    wToF(fiEnc, "(");
  wToF(fiEnc, additionTest(text, type, comp, compNbr).c_str());
  if (!hasCheck)
    return;
  wToF(fiEnc, " && ");
  forDefaultValue(comp, encHandleExtendedDefaultValueCheck);
  wToF(fiEnc, ")");
}

void encSeqExtensionmarkerBit(AsnType &type, const ExtensionInfo &info)
{
  if (info.addMandatoryCount != 0 || info.addOptionalCount == 0) {
    wToF(fiEnc, info.addMandatoryCount != 0 ? "pe_extensionBit (1);\n"
                                            : "pe_extensionBit (0);\n");
    return;
  }
  perDefineExtensionBit(fiEnc, "0");
  wToF(fiEnc, "if (");
  additionTests = {};
  forEachTypeComp(type, encTestOptionalExtensionAddition);
  wToF(fiEnc, ")");
  cOpenBrace(fiEnc);
  perSetExtensionBit(fiEnc, "1");
  cCloseBrace(fiEnc);
  perRefExtensionBit(fiEnc, "pe_extensionBit (", ");\n");
}

// --- the bitmap of additions ------------------------------------------------

static void encSetExtensionAdditionField(AsnType &father, AsnType &comp, int,
                                         int32_t, const ExtensionInfo &info)
{
  if (!isOptionalExtensionAdditionComponentOrGroup(comp))
    return;
  wToF(fiEnc, "if (");
  cTestComponent(fiEnc, father, comp);
  wToF(fiEnc, ")");
  cOpenBrace(fiEnc);
  beginCheck(comp);
  perSetExtensionAddField(fiEnc, comp, info);
  endCheck(comp);
  cCloseBrace(fiEnc);
}

void encExtensionAdditionField(AsnType &marker)
{
  AsnType *father = getFatherOfTypeComp(marker);
  if (!father || (getTypeMainType(*father) != TYP_SEQ &&
                  getTypeMainType(*father) != TYP_EXTADDGRP))
    return;
  // A second marker stands behind the additions that the first announced.
  if (getTypeCompNbr(marker) != getTypeExtensionmarkerCompNbr(*father))
    return;
  const ExtensionInfo info = getExtensionInfo(*father);
  int32_t additions = info.addMandatoryCount + info.addOptionalCount;
  if (additions == 0)
    return;
  if (info.addMandatoryCount == 0)
    perRefExtensionBit(fiEnc, "if (", ")");
  cOpenBrace(fiEnc);
  perDefineExtensionAddField(fiEnc, father, info);
  perForEachExtensionAddComp(*father, info, encSetExtensionAdditionField);
  printfToF(fiEnc, "pe_extensionAddition (%d,", additions);
  perRefExtensionAddField(fiEnc, " ", ");\n");
  cCloseBrace(fiEnc);
}
