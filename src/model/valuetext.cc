// Texts of values.

#include "model/valuetext.h"
#include "base/strings.h"
#include "model/infvalue.h"
#include "model/number.h"
#include "model/valuecontent.h"
#include "options/fixrec.h"

// --- names ------------------------------------------------------------------

std::string &getValueRef(std::string &text, const char *prefix,
                         const AsnValue &value, const char *suffix)
{
  return between(text, prefix, orEmpty(value.compFix.id), suffix);
}

std::string &getValueId(std::string &text, const char *prefix,
                        const AsnValue &value, const char *suffix)
{
  return printFixRec(text, prefix, value.compFix, suffix);
}

std::string &getBaseValueId(std::string &text, const char *prefix,
                            const AsnValue &value, const char *suffix)
{
  return printFixRec(text, prefix, value.baseFix, suffix);
}

// --- contents ---------------------------------------------------------------

std::string &booleanValueStri(std::string &text, const char *prefix,
                              const AsnValue &value, const char *suffix)
{
  return between(text, prefix, booleanValue(value) ? "TRUE" : "FALSE", suffix);
}

// Crossed, other than for reals: the first text is that of the largest number
// though its default names the smallest. Generated code depends on it.
static std::string integerText(sint64 number)
{
  if (i64ismax(number))
    return infValueStri[0];
  if (i64ismin(number))
    return infValueStri[1];
  return i64text(number);
}

std::string &integerValueStri(std::string &text, const char *prefix,
                              const AsnValue &value, const char *suffix)
{
  return between(text, prefix, integerText(int64Value(value)), suffix);
}

// One of three texts, by the special value.
static std::string specialText(const RealVal &real, const std::string &plus,
                               const std::string &minus, const char *zero)
{
  switch (getSpecialRealVal(real)) {
  case REAL_PLUS_INFINITY:
    return plus;
  case REAL_MINUS_INFINITY:
    return minus;
  default:
    return zero;
  }
}

static std::string realText(const RealVal &real)
{
  if (isSpecialRealVal(real))
    return specialText(real, infValueStri[3], infValueStri[2], "0");
  return formatText("{%s, %d, %d}", i64text(real.mantissa).c_str(), real.base,
                    real.exponent);
}

std::string &realValueStri(std::string &text, const char *prefix,
                           const AsnValue &value, const char *suffix)
{
  return between(text, prefix, realText(realValue(value)), suffix);
}

// Digits of a mantissa without the option.
constexpr size_t defaultDecimals = 10;
constexpr uint8_t decimalsUnset = 255;

static std::string doubleText(const RealVal &real, uint8_t decimals)
{
  if (isSpecialRealVal(real))
    return specialText(real, "DBL_MAX", "-DBL_MAX", "0.0");
  std::string mantissa = i64text(real.mantissa);
  size_t digits = mantissa.size() - i64isneg(real.mantissa);
  size_t wanted = decimals == decimalsUnset ? defaultDecimals : decimals;
  std::string text = mantissa + ".";
  if (wanted > digits)
    text.append(wanted - digits, '0');
  return text + formatText("E%d", real.exponent);
}

std::string &doubleRealValueStri(std::string &text, const char *prefix,
                                 const AsnValue &value, const char *suffix)
{
  uint8_t decimals = value.homeMod->rec->options.decimals;
  return between(text, prefix, doubleText(realValue(value), decimals), suffix);
}

std::string &objectIdentifierValueStri(std::string &text, const char *prefix,
                                       const AsnValue &value,
                                       const char *separator,
                                       const char *nameOpen,
                                       const char *nameClose,
                                       const char *suffix)
{
  ObjIdComps comps;
  makeObjIdComps(value, comps);
  std::string arcs;
  for (size_t i = 0; i < comps.numbers.size(); ++i) {
    if (i > 0)
      arcs += separator ? separator : " ";
    arcs += formatText("%ld", static_cast<long>(comps.numbers[i]));
    if (nameOpen && nameClose && comps.names[i])
      arcs += nameOpen + std::string(comps.names[i]) + nameClose;
  }
  return between(text, prefix, arcs, suffix);
}

std::string &characterStringValueStri(std::string &text, const char *prefix,
                                      const AsnValue &value, const char *suffix)
{
  std::string characters;
  int32_t length;
  makeCharacterString(value, characters, length);
  // Up to a zero among them.
  return between(text, prefix, characters.c_str(), suffix);
}
