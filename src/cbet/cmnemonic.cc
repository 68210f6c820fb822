// Names of numbers, and numbers as C constants.

#include "cbet/cmnemonic.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/cnames.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "model/valuecontent.h"
#include "model/valuetext.h"
#include "options/fixrec.h"

static void appendFix(std::string &text, const FixRec &fix)
{
  static std::string name;
  text += printFixRec(name, nullptr, fix, nullptr);
}

// --- named numbers ----------------------------------------------------------

static bool isNamedNumber(const AsnType &type, const AsnValue &value)
{
  int32_t status = getValueCompStatus(value);
  int kind = getValueMainType(value);
  int mainType = getTypeMainType(type);
  return (status == 0 || status == 1) &&
         (kind == TYP_INTEGER || kind == TYP_ENUM) &&
         (mainType == TYP_INTEGER || mainType == TYP_ENUM ||
          mainType == TYP_BITSTR);
}

// The value's own name as that of a number, whatever its view was made for.
static FixRec namedNumberFix(const AsnValue &value)
{
  SavedNode saved(REC_VNODE);
  readRec(value.compModRec, REC_VNODE, value.compRecNr);
  FixRec fix;
  getFixRec(fix, FIX_COMP_VALUE);
  return fix;
}

std::string &cNamedNumberMnemonic(std::string &text, const char *prefix,
                                  const AsnType &type, const AsnValue &value,
                                  const char *suffix)
{
  static std::string id;
  text.clear();
  if (isValueExtensionmarker(value))
    return text;
  if (!isNamedNumber(type, value))
    fatalError(FATAL_INTERNAL, "CBET: Invalid value for a #define for a named "
                               "number/bit.");
  text = orEmpty(prefix);
  appendFix(text, namedNumberFix(value));
  return text += cTypeId(id, "_", type, suffix);
}

std::string &cDefineForNamedNumber(std::string &text, const AsnType &type,
                                   const AsnValue &value)
{
  static std::string number;
  cNamedNumberMnemonic(text, "#define ", type, value, nullptr);
  if (isValueExtensionmarker(value))
    return text;
  return text += integerValueStri(number, " ", value, nullptr);
}

// --- component indices ------------------------------------------------------

// The nearest structure around a component that has a name in C, or the
// outermost one.
static const AsnType &namedFather(const AsnType &comp)
{
  const AsnType *around = &comp;
  do {
    if (!around->father)
      break;
    around = around->father;
  } while (!cIsDefinedBaseType(*around));
  return *around;
}

static void appendMarkerIndex(std::string &text, const AsnType &marker)
{
  static std::string id;
  const AsnType *father = getFatherOfTypeComp(marker);
  text += "extensionmarker_";
  if (!father || cIsDefinedBaseType(*father))
    appendFix(text, marker.baseFix);
  else
    text += cTypeId(id, nullptr, *father, nullptr);
}

std::string &cComponentIndexMnemonic(std::string &text, const char *prefix,
                                     const AsnType &type, const char *suffix)
{
  static std::string id;
  if (!isComponentType(type))
    fatalError(FATAL_INTERNAL, "CBET: Invalid type for a component index.");
  text = orEmpty(prefix);
  if (isTypeExtensionmarker(type)) {
    appendMarkerIndex(text, type);
  } else {
    text += getTypeCompId(id, nullptr, type, "_");
    appendFix(text, namedFather(type).baseFix);
  }
  return text += orEmpty(suffix);
}

std::string &cDefineForComponentIndex(std::string &text, const AsnType &type)
{
  cComponentIndexMnemonic(text, "#define ", type, " ");
  text += std::to_string(getTypeCompNbr(type));
  return text += '\n';
}

// --- numbers ----------------------------------------------------------------

static void appendInteger64(std::string &text, sint64 value)
{
  if (i64ismax(value)) {
    text += "i64max ()";
  } else if (i64ismin(value)) {
    text += "i64min ()";
  } else if (i64cmpl(value, INT32_MIN) >= 0 && i64cmpl(value, INT32_MAX) <= 0) {
    text += "i64ltosint64 (";
    text += i64text(value);
    text += "L)";
  } else {
    text += formatText("i64make (%ldL, %luUL)", static_cast<long>(i64hi(value)),
                       static_cast<unsigned long>(i64lo(value)));
  }
}

static const char *plusInfinity32(int format)
{
  if (format == VF_I32)
    return "LONG_MAX";
  if (format != VF_UI32)
    fatalError(FATAL_INTERNAL,
               "CBET: Plus-infinity found as a non-long C type");
  return "ULONG_MAX";
}

static const char *minusInfinity32(int format)
{
  if (format != VF_I32)
    fatalError(FATAL_INTERNAL,
               "CBET: Minus-infinity found as a non-long C type");
  return "LONG_MIN";
}

static void appendInteger32(std::string &text, sint64 value, int format)
{
  if (i64ismax(value)) {
    text += plusInfinity32(format);
  } else if (i64ismin(value)) {
    text += minusInfinity32(format);
  } else {
    text += i64text(value);
    // A bare constant of C would be signed and too small.
    if (format == VF_UI32 && i64cmpl(value, INT32_MAX) > 0)
      text += "UL";
  }
}

std::string &cIntegerValue64(std::string &text, sint64 value)
{
  text.clear();
  appendInteger64(text, value);
  return text;
}

std::string &cIntegerValue32(std::string &text, sint64 value, int format)
{
  text.clear();
  appendInteger32(text, value, format);
  return text;
}

std::string &cInt64(std::string &text, const char *prefix, sint64 value,
                    int format, const char *suffix)
{
  text = orEmpty(prefix);
  if (format == VF_I64 || format == VF_UI64)
    appendInteger64(text, value);
  else
    appendInteger32(text, value, format);
  return text += orEmpty(suffix);
}

void cInt64ToF(int file, const char *prefix, sint64 value, int format,
               const char *suffix)
{
  static std::string text;
  wToF(file, cInt64(text, prefix, value, format, suffix).c_str());
}

// An infinity has no governor, and so no format.
static int formatOfValue(const AsnValue &value)
{
  const AsnType *governor = getTypeOfValue(value);
  return governor ? getVF(*governor) : VF_NONE;
}

std::string &cIntegerValue(std::string &text, const char *prefix,
                           const AsnValue &value, const char *suffix)
{
  return cInt64(text, prefix, int64Value(value), formatOfValue(value), suffix);
}

void cIntegerValueToF(int file, const char *prefix, const AsnValue &value,
                      const char *suffix)
{
  static std::string text;
  wToF(file, cIntegerValue(text, prefix, value, suffix).c_str());
}
