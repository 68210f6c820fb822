// Strings: how their length is sent, and what the run-time functions for them
// are called. A function is chosen by the field of the length, the encoding
// variant and the home; for known-multiplier strings the whole call is
// written here, as all generators write the same one.

#include "per/perstring.h"
#include "base/strings.h"
#include "cbet/cnames.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/peralphabet.h"
#include "per/perint.h"
#include "per/perlength.h"
#include "per/variant.h"
#include "store/codes.h"
#include <iterator>

// The last argument of the functions for lengths that may be fragmented.
constexpr int countOfFixed64K = 1;
constexpr int countOfUnconstrained = 4;

// Row of the tables of aligned functions for variable lengths.
enum VariableLength : int {
  VARIABLE_LE255,
  VARIABLE_EQ256,
  VARIABLE_LE64K,
  VARIABLE_FROM_64K,
  VARIABLE_COUNT
};

static int variableLength(int32_t upper, int32_t range)
{
  if (upper >= from64K)
    return VARIABLE_FROM_64K;
  if (range < 256)
    return VARIABLE_LE255;
  return range == 256 ? VARIABLE_EQ256 : VARIABLE_LE64K;
}

// A table's entry; null out of its range.
template <size_t N>
static const char *entryOf(const char *const (&table)[N], int index)
{
  return index >= 0 && index < static_cast<int>(N) ? table[index] : nullptr;
}

// --- fields of BIT STRING and OCTET STRING ----------------------------------

int perGetFixedLengthBitStrField(int32_t length, int &count)
{
  count = 0;
  if (length == 0)
    return STRING_EMPTY;
  if (length <= 8)
    return STRING_SHORT;
  if (length <= 16)
    return STRING_MIDDLE;
  if (length < from64K)
    return STRING_FIXED;
  count = countOfFixed64K;
  return STRING_FIXED_64K;
}

static int fixedLengthOctStrField(int32_t length, int &count)
{
  count = 0;
  switch (length) {
  case 0:
    return STRING_EMPTY;
  case 1:
    return STRING_SHORT;
  case 2:
    return STRING_MIDDLE;
  default:
    break;
  }
  if (length < from64K)
    return STRING_FIXED;
  count = countOfFixed64K;
  return STRING_FIXED_64K;
}

int perGetVariableLengthBitStrField(int32_t lower, int32_t upper, int &count)
{
  int32_t range = perSizeRange(lower, upper);
  bool inOctets = perGetEncodingVariant() == VARIANT_ALIGNED && range >= 256;
  count =
      inOctets ? numberOfOctetsInRange32(range) : numberOfBitsInRange32(range);
  return STRING_VARIABLE;
}

typedef int FixedLengthField(int32_t length, int &count);

static int stringField(AsnType &type, int32_t &lower, int32_t &upper,
                       int &count, FixedLengthField *fixedLengthField)
{
  lower = upper = 0;
  count = 0;
  if (!isConstraints(type)) {
    upper = sizeWithoutEnd;
    count = countOfUnconstrained;
    return STRING_UNCONSTRAINED;
  }
  if (!isSimpleSizeConstraintValueSet(type))
    return STRING_COMPLEX;
  getPERSizeEndpoints(type, lower, upper);
  if (lower == upper)
    return fixedLengthField(upper, count);
  return perGetVariableLengthBitStrField(lower, upper, count);
}

int perGetBitStrField(AsnType &type, int32_t &lower, int32_t &upper, int &count)
{
  return stringField(type, lower, upper, count, perGetFixedLengthBitStrField);
}

int perGetOctStrField(AsnType &type, int32_t &lower, int32_t &upper, int &count)
{
  return stringField(type, lower, upper, count, fixedLengthOctStrField);
}

// --- functions of BIT STRING and OCTET STRING -------------------------------

// By field; the aligned variant has one more table for `STRING_VARIABLE`.
static const char *const alignedBitStrNames[] = {
    "BitString_al_feq0",   "BitString_al_fle8",
    "BitString_al_fle16",  "BitString_al_flt64K",
    "BitString_al_fge64K", nullptr,
    "BitString_al_u",      nullptr,
};
static const char *const alignedBitStrVariableNames[] = {
    "BitString_al_clt64K_le255",
    "BitString_al_clt64K_eq256",
    "BitString_al_clt64K_le64K",
    "BitString_al_cgt64K",
};
static const char *const unalignedBitStrNames[] = {
    "BitString_ua_feq0",   "BitString_ua_fle8",
    "BitString_ua_fle16",  "BitString_ua_flt64K",
    "BitString_ua_fge64K", "BitString_ua_clt64K",
    "BitString_ua_u",      nullptr,
};

static const char *const alignedOctStrNames[] = {
    "OctetString_al_feq0",   "OctetString_al_feq1",
    "OctetString_al_feq2",   "OctetString_al_flt64K",
    "OctetString_al_fge64K", nullptr,
    "OctetString_al_u",      nullptr,
};
static const char *const alignedOctStrVariableNames[] = {
    "OctetString_al_clt64K_le255",
    "OctetString_al_clt64K_eq256",
    "OctetString_al_clt64K_le64K",
    "OctetString_al_cgt64K",
};
static const char *const unalignedOctStrNames[] = {
    "OctetString_ua_feq0",   "OctetString_ua_feq1",
    "OctetString_ua_feq2",   "OctetString_ua_flt64K",
    "OctetString_ua_fge64K", "OctetString_ua_clt64K",
    "OctetString_ua_u",      nullptr,
};

static_assert(std::size(alignedBitStrNames) == STRING_COMPLEX + 1);
static_assert(std::size(unalignedBitStrNames) == STRING_COMPLEX + 1);
static_assert(std::size(alignedOctStrNames) == STRING_COMPLEX + 1);
static_assert(std::size(unalignedOctStrNames) == STRING_COMPLEX + 1);
static_assert(std::size(alignedBitStrVariableNames) == VARIABLE_COUNT);
static_assert(std::size(alignedOctStrVariableNames) == VARIABLE_COUNT);

const char *alignedBitStrFuncName(int field, int32_t upper, int32_t range)
{
  if (field == STRING_VARIABLE)
    return alignedBitStrVariableNames[variableLength(upper, range)];
  return entryOf(alignedBitStrNames, field);
}

const char *alignedOctStrFuncName(int field, int32_t upper, int32_t range)
{
  if (field == STRING_VARIABLE)
    return alignedOctStrVariableNames[variableLength(upper, range)];
  return entryOf(alignedOctStrNames, field);
}

const char *unalignedBitStrFuncName(int field)
{
  return entryOf(unalignedBitStrNames, field);
}

const char *unalignedOctStrFuncName(int field)
{
  return entryOf(unalignedOctStrNames, field);
}

// What the two kinds of strings differ in.
struct StringRules {
  int (*field)(AsnType &type, int32_t &lower, int32_t &upper, int &count);
  const char *(*alignedName)(int field, int32_t upper, int32_t range);
  const char *(*unalignedName)(int field);
};

static const StringRules bitStrRules = {
    perGetBitStrField, alignedBitStrFuncName, unalignedBitStrFuncName};
static const StringRules octStrRules = {
    perGetOctStrField, alignedOctStrFuncName, unalignedOctStrFuncName};

static const char *nameByVariant(const StringRules &rules, int field,
                                 int32_t lower, int32_t upper)
{
  // Only here is the range of a SIZE without an upper end capped.
  int32_t range =
      upper == sizeWithoutEnd ? sizeWithoutEnd : perSizeRange(lower, upper);
  switch (perGetEncodingVariant()) {
  case VARIANT_ALIGNED:
    return rules.alignedName(field, upper, range);
  case VARIANT_UNALIGNED:
    return rules.unalignedName(field);
  default:
    return nullptr;
  }
}

// A segmented home takes another function, and so does a dynamic one where
// it must be allocated.
static const char *homeWord(const AsnType &type, bool dynamic)
{
  if (getVF(type) == VF_LIST)
    return "Seg";
  return dynamic && cIsDynamicString(type) ? "Dyn" : "";
}

struct StringBounds {
  int32_t &lower;
  int32_t &upper;
  int &count;
};

static std::string *stringFunctionName(std::string &text, const char *prefix,
                                       AsnType &type, const char *suffix,
                                       StringBounds bounds, bool dynamic,
                                       const StringRules &rules)
{
  text = orEmpty(prefix);
  // No function takes a frame.
  if (getVF(type) == VF_FRM)
    return nullptr;
  text += homeWord(type, dynamic);
  int field = rules.field(type, bounds.lower, bounds.upper, bounds.count);
  const char *name = nameByVariant(rules, field, bounds.lower, bounds.upper);
  if (!name)
    return nullptr;
  text += name;
  text += orEmpty(suffix);
  return &text;
}

std::string *perBitStrFunctionName(std::string &text, const char *prefix,
                                   AsnType &type, const char *suffix,
                                   int32_t &lower, int32_t &upper, int &count,
                                   bool dynamic)
{
  return stringFunctionName(text, prefix, type, suffix, {lower, upper, count},
                            dynamic, bitStrRules);
}

std::string *perOctStrFunctionName(std::string &text, const char *prefix,
                                   AsnType &type, const char *suffix,
                                   int32_t &lower, int32_t &upper, int &count,
                                   bool dynamic)
{
  return stringFunctionName(text, prefix, type, suffix, {lower, upper, count},
                            dynamic, octStrRules);
}

// --- field of known-multiplier strings --------------------------------------

// By the bounds of the SIZE, which are known. A short string is one of up to
// 16 bits in all, X.691 (2002) 27.5.6.
static int charsField(int32_t lower, int32_t upper, int bits, int &lengthClass)
{
  lengthClass = upper < from64K ? LENGTH_BELOW_64K : LENGTH_FROM_64K;
  if (lower == upper) {
    if (upper >= from64K)
      return CHARS_FIXED_64K;
    return upper * bits <= 16 ? CHARS_FIXED_SHORT : CHARS_FIXED;
  }
  if (upper != sizeWithoutEnd)
    return CHARS_VARIABLE;
  lengthClass = LENGTH_CHARS_WITHOUT_END;
  return CHARS_WITHOUT_END;
}

int perGetKnownMultiChrStrField(AsnType &type, int32_t &lower, int32_t &upper,
                                int &bits, int &lengthCount,
                                int32_t &alphabetSize)
{
  lower = upper = 0;
  bits = -1;
  lengthCount = 0;
  alphabetSize = 0;
  glbEffectivePermittedAlphabet.reset();
  if (!isConstraints(type) || !isSizeConstraintValueSet(type)) {
    upper = sizeWithoutEnd;
    lengthCount = numberOfOctetsInRange32(sizeWithoutEnd);
    bits = bitsInKnownMultiChar(type, alphabetSize);
    return CHARS_WITHOUT_END;
  }
  if (!isSimpleSizeConstraintValueSet(type))
    return CHARS_COMPLEX;
  getPERSizeEndpoints(type, lower, upper);
  bits = bitsInKnownMultiChar(type, alphabetSize);
  int lengthClass;
  int field = charsField(lower, upper, bits, lengthClass);
  int32_t range = perSizeRange(lower, upper);
  // Octets even of what the unaligned variant sends as a bit field.
  bool inBits =
      perGetLengthDeterminantField(lower, upper, lengthClass) == SEQOF_LE255;
  lengthCount =
      inBits ? numberOfBitsInRange32(range) : numberOfOctetsInRange32(range);
  return field;
}

// --- names of known-multiplier strings --------------------------------------

// By field; the aligned variant has one more table for `CHARS_VARIABLE`.
static const char *const alignedLenIds[] = {"_fle16", "_fgt16", "_fge64K",
                                            nullptr,  "_u",     nullptr};
static const char *const alignedVariableLenIds[] = {
    "_clt64K_le255", "_clt64K_eq256", "_clt64K_le64K", "_cge64K"};
static const char *const unalignedLenIds[] = {"_flt64K", "_flt64K", "_fge64K",
                                              "_clt64K", "_u",      nullptr};

static_assert(std::size(alignedLenIds) == CHARS_COMPLEX + 1);
static_assert(std::size(alignedVariableLenIds) == VARIABLE_COUNT);
static_assert(std::size(unalignedLenIds) == CHARS_COMPLEX + 1);

static bool setLenId(std::string &text, const char *id)
{
  text = orEmpty(id);
  return id != nullptr;
}

bool alignedKnownMultiChrLenId(std::string &text, int field, int32_t lower,
                               int32_t upper)
{
  if (field != CHARS_VARIABLE)
    return setLenId(text, entryOf(alignedLenIds, field));
  int row = variableLength(upper, perSizeRange(lower, upper));
  return setLenId(text, alignedVariableLenIds[row]);
}

bool unalignedKnownMultiChrLenId(std::string &text, int field, int32_t,
                                 int32_t upper)
{
  if (field == CHARS_VARIABLE && upper >= from64K)
    return setLenId(text, "_cge64K");
  return setLenId(text, entryOf(unalignedLenIds, field));
}

bool knownMultiChrStrLenId(std::string &text, int field, int32_t lower,
                           int32_t upper)
{
  int variant = perGetEncodingVariant();
  bool known = false;
  if (variant == VARIANT_ALIGNED)
    known = alignedKnownMultiChrLenId(text, field, lower, upper);
  else if (variant == VARIANT_UNALIGNED)
    known = unalignedKnownMultiChrLenId(text, field, lower, upper);
  if (!known)
    text = "!! Unsupported string type !!";
  return known;
}

bool knownMultiChrStrDynSegId(std::string &text, const AsnType &type,
                              bool dynamic)
{
  if (cIsStaticString(type))
    text = "";
  else if (cIsDynamicString(type))
    text = dynamic ? "Dyn" : "";
  else
    text = "Seg";
  return true;
}

// Null for an unknown variant.
static const char *variantWord()
{
  switch (perGetEncodingVariant()) {
  case VARIANT_ALIGNED:
    return "al";
  case VARIANT_UNALIGNED:
    return "ua";
  default:
    return nullptr;
  }
}

// --- the call of known-multiplier strings -----------------------------------

static void homeAndLowerToF(int file, const char *home, int32_t lower)
{
  if (*orEmpty(home))
    printfToF(file, "%s,", home);
  int32ToF(file, *orEmpty(home) ? " " : "", lower, ",");
}

// The characters stand as they are: nothing is escaped, and no line may
// break inside the quotes.
static void alphabetToF(int file, const AsnType &type)
{
  if (glbEffectivePermittedAlphabet)
    putToF(file, (" \"" + *glbEffectivePermittedAlphabet + "\"").c_str());
  else if (getTypeMainType(type) == TYP_NUMSTR)
    wToF(file, " asnperNumStrChars");
  else
    wToF(file, " NULL");
}

bool perKnownMultiChrStrFunctionToF(int file, const char *prefix, bool dynamic,
                                    AsnType &type, const char *home,
                                    const char *suffix)
{
  int32_t lower, upper, alphabetSize;
  int bits, lengthCount;
  std::string lenId, dynSegId, mainType;
  int field = perGetKnownMultiChrStrField(type, lower, upper, bits, lengthCount,
                                          alphabetSize);
  bool supported = knownMultiChrStrLenId(lenId, field, lower, upper);
  supported &= knownMultiChrStrDynSegId(dynSegId, type, dynamic);
  const char *variant = variantWord();
  supported &= variant != nullptr;

  printfToF(file, "%s%sKnownMultiCharStri_%s%s (", orEmpty(prefix),
            dynSegId.c_str(), variant ? variant : "<unsupported>",
            lenId.c_str());
  homeAndLowerToF(file, home, lower);
  int32ToF(file, " ", upper, ",");
  int32ToF(file, " ", lengthCount, ",");
  int32ToF(file, " ", bits, ",");
  wToF(file, getTypeMainTypeStri(mainType, " ", type, ",").c_str());
  if (!dynSegId.empty())
    wToF(file,
         getTypeMainType(type) == TYP_BMPSTR ? " ASN_BMPCHAR," : " BYTE_TYPE,");
  int32ToF(file, " ", alphabetSize, ",");
  alphabetToF(file, type);
  printfToF(file, ")%s", orEmpty(suffix));
  glbEffectivePermittedAlphabet.reset();
  return supported;
}
