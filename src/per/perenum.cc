// Shapes of enumerations, and the calls for the index of a value.
//
// The generators write the shapes; the names and sizes that both of them need
// are here. The index among the root values has names of its own: they are not
// those of integers, and their limits lie one value lower.

#include "per/perenum.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/cnames.h"
#include "cbet/outfile.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "per/perint.h"
#include "per/variant.h"
#include <algorithm>

// --- shapes -----------------------------------------------------------------

int perGetEnumeratedKind(int addCount)
{
  if (addCount == -1)
    return ENUM_NOT_EXTENSIBLE;
  return addCount >= 0 ? ENUM_EXTENSIBLE : ENUM_UNSUPPORTED;
}

int perGetNonExtendedEnumeratedKind(int rootCount, const int32_t *rootValues,
                                    bool rootIsContinued)
{
  if (rootCount == 1)
    return ENUM_ONE_VALUE;
  if (!rootIsContinued)
    return ENUM_WITH_HOLES;
  return rootValues[0] == 0 ? ENUM_FROM_ZERO : ENUM_FROM_OTHER;
}

int perGetExtendedEnumeratedKind(int rootCount, bool rootIsContinued,
                                 int addCount, bool addIsContinued)
{
  if (rootCount < 0 || addCount < 0)
    return ENUM_EXT_UNSUPPORTED;
  if (addCount == 0)
    return rootIsContinued ? ENUM_CONT_NONE : ENUM_HOLES_NONE;
  if (addIsContinued)
    return rootIsContinued ? ENUM_CONT_CONT : ENUM_HOLES_CONT;
  return rootIsContinued ? ENUM_CONT_HOLES : ENUM_HOLES_HOLES;
}

// --- sizes ------------------------------------------------------------------

int perBitsOrOctetsInEnumRange(int32_t count)
{
  return count <= 255 ? numberOfBitsInRange32(count)
                      : numberOfOctetsInRange32(count);
}

int perBitsInEnumRange(int32_t count)
{
  return numberOfBitsInRange32(count);
}

// --- calls ------------------------------------------------------------------

// The word of the aligned variant's function, by the highest count.
static const struct {
  int32_t upTo;
  const char *word;
} indexWords[] = {
    {254, "le255"},
    {255, "eq255"},
    {65536, "le64K"},
};

static void writeIndexWord(int file, int32_t count)
{
  for (const auto &row : indexWords)
    if (count <= row.upTo) {
      wToF(file, row.word);
      return;
    }
  bugInTool("Too many values in Enumerated type.");
  wToF(file, "ERROR: Too many values in enumerated type.\n");
}

int perEnumIndexFunctionToF(int file, const char *prefix, int32_t count)
{
  std::string name = orEmpty(prefix);
  switch (perGetEncodingVariant()) {
  case VARIANT_ALIGNED:
    wToF(file, (name + "sint32_cwn_al_").c_str());
    writeIndexWord(file, count);
    return perBitsOrOctetsInEnumRange(count);
  case VARIANT_UNALIGNED:
    wToF(file, (name + "sint32_cwn_ua").c_str());
    return perBitsInEnumRange(count);
  default:
    bugInTool("Unknown encoding variant");
    wToF(file, " ERROR: unknown encoding variant\n");
    return 0;
  }
}

// The name for the variant; null for an unknown one.
static const char *nameOfVariant(const char *aligned, const char *unaligned)
{
  switch (perGetEncodingVariant()) {
  case VARIANT_ALIGNED:
    return aligned;
  case VARIANT_UNALIGNED:
    return unaligned;
  default:
    return nullptr;
  }
}

const char *perEnumOneValueFunctionName()
{
  return nameOfVariant("sint32_cwn_al_eq1", "sint32_cwn_ua_eq1");
}

const char *perNormSmallNumberFunctionName()
{
  return nameOfVariant("normSmallNonNegWholeNumAl",
                       "normSmallNonNegWholeNumUa");
}

// --- enumerations treated as integers ---------------------------------------

// What a walk over the items of one enumeration finds.
static struct EnumWalk {
  bool inPosition = true;  // all numbers so far equal their positions
  bool behindMarker = false;
  int32_t lower = enumNumberUnset;
  int32_t upper = enumNumberUnset;
  int32_t addLower = enumNumberUnset;
} enumWalk;

static void checkNamedNumber(AsnType &, AsnValue &value, int index)
{
  if (i64cmpl(int64Value(value), index) != 0)
    enumWalk.inPosition = false;
}

static void checkEnumeratedCallBack(AsnType &type)
{
  forEachNamedNumber(type, checkNamedNumber);
}

bool checkEnumerated(AsnType &type)
{
  enumWalk = EnumWalk{};
  if (isDefinedType(type))
    checkEnumeratedCallBack(type);
  else if (cIsBaseTypeGeneratedInCurrentModule(type))
    forDefinedBaseType(type, checkEnumeratedCallBack);
  else
    forTypeDefinedInAnotherModule(type, checkEnumeratedCallBack);
  return enumWalk.inPosition;
}

static void findAdditionLowerBound(AsnType &, AsnValue &value, int index)
{
  EnumWalk &walk = enumWalk;
  if (index < 0) {
    walk.behindMarker = true;
    return;
  }
  int32_t number = integerValue(value);
  if (walk.behindMarker) {
    if (walk.addLower == enumNumberUnset)
      walk.addLower = number;
  } else if (walk.lower == enumNumberUnset) {
    walk.lower = walk.upper = number;
  } else {
    walk.lower = std::min(walk.lower, number);
    walk.upper = std::max(walk.upper, number);
  }
}

static void findAdditionLowerBoundInAnotherModule(AsnType &type)
{
  forEachNamedNumberExtMark(type, findAdditionLowerBound);
}

static std::string *nonExtensibleEnumFuncName(std::string &text,
                                              const char *prefix, AsnType &type,
                                              const char *suffix, int &kind,
                                              int32_t &lower, int32_t &upper,
                                              int32_t &addLower, int &bits)
{
  addLower = enumNumberUnset;
  if (!checkEnumerated(type))
    return nullptr;
  return perInteger32FunctionName(text, prefix, type, suffix, kind, lower,
                                  upper, bits);
}

static std::string *extensibleEnumFuncName(std::string &text,
                                           const char *prefix, AsnType &type,
                                           const char *suffix, int &kind,
                                           int32_t &lower, int32_t &upper,
                                           int32_t &addLower, int &bits)
{
  // The type word, "sint32" and the like, that "XEnum" stands for.
  static constexpr size_t typeWordLength = 6;
  enumWalk = EnumWalk{};
  if (cIsBaseTypeGeneratedInCurrentModule(type))
    forEachNamedNumberExtMark(type, findAdditionLowerBound);
  else
    forTypeDefinedInAnotherModule(type, findAdditionLowerBoundInAnotherModule);
  addLower = enumWalk.addLower;
  std::string name;
  if (!perInteger32FunctionName(name, nullptr, type, nullptr, kind, lower,
                                upper, bits))
    return nullptr;
  lower = enumWalk.lower;
  upper = enumWalk.upper;
  bits = perBitsInInteger32BitField(lower, upper);
  text = orEmpty(prefix);
  text += "XEnum";
  text += name.substr(typeWordLength);
  text += orEmpty(suffix);
  return &text;
}

std::string *perEnumeratedFunctionName(std::string &text, const char *prefix,
                                       AsnType &type, const char *suffix,
                                       int &kind, int32_t &lower,
                                       int32_t &upper, int32_t &addLower,
                                       int &bits)
{
  kind = enumNoKind;
  auto *rule = isExtensibleEnumeratedList(type) ? extensibleEnumFuncName
                                                : nonExtensibleEnumFuncName;
  return rule(text, prefix, type, suffix, kind, lower, upper, addLower, bits);
}
