// Fields of INTEGER values and of lengths.
//
// A range is given as its number of values, in signed 32 or 64 bits. The
// smallest and the largest 64-bit number are open ends, so that a range that
// is closed may still be too large to be counted.
//
// All arithmetic wraps: the bounds come from a tree, and what a wrapped range
// leads to is a classification like any other.

#include "per/perint.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/typewarn.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/perlength.h"
#include "per/variant.h"

// --- sizes of ranges --------------------------------------------------------

static int32_t wrappedRange32(int32_t lower, int32_t upper)
{
  return static_cast<int32_t>(static_cast<uint32_t>(upper) -
                              static_cast<uint32_t>(lower) + 1);
}

bool range64(sint64 &range, sint64 upper, sint64 lower)
{
  i64sub(range, upper, lower);
  i64addl(range, range, 1);
  return !i64isneg(range);
}

int numberOfOctetsInRange32(int32_t range)
{
  sint64 wide;
  i64ltosint64(wide, range);
  return numberOfOctetsInRange64(wide);
}

int numberOfOctetsInRange64(sint64 range)
{
  // A bit field, X.691 (2002) 10.5.7.1.
  if (i64cmpl(range, 255) <= 0)
    return 0;
  sint64 limit;
  i64ltosint64(limit, 1);
  for (int octets = 1; octets < 8; ++octets) {
    i64shiftl(limit, limit, 8);
    if (i64cmp(range, limit) <= 0)
      return octets;
  }
  return 8;
}

int numberOfBitsInRange32(int32_t range)
{
  int32_t offset = range >= 1 ? range - 1 : range;
  int bits = 0;
  for (; offset > 0; offset >>= 1)
    ++bits;
  return bits;
}

int numberOfBitsInRange64(sint64 range)
{
  if (i64isneg(range))
    fatalError(FATAL_INTERNAL,
               "Pre-condition failure in numberOfBitsInRange64");
  sint64 offset = range;
  if (!i64iszero(range))
    i64subl(offset, range, 1);
  int bits = 0;
  for (; !i64iszero(offset); i64ushiftr(offset, offset, 1))
    ++bits;
  return bits;
}

int perBitsInIntegerBitField(sint64 lower, sint64 upper)
{
  sint64 range;
  if (!range64(range, upper, lower))
    fatalError(FATAL_INTERNAL,
               "Pre-condition failure in perBitsInIntegerBitField");
  return numberOfBitsInRange64(range);
}

int perBitsInInteger32BitField(int32_t lower, int32_t upper)
{
  return numberOfBitsInRange32(wrappedRange32(lower, upper));
}

int perBitsInIntegerLenDeterminant(int octets)
{
  return numberOfBitsInRange32(octets);
}

// --- classes ----------------------------------------------------------------

int perGetConstrainedWholeNumberField(sint64 range)
{
  if (i64cmpl(range, 1) == 0)
    return INT_EQ1;
  if (i64cmpl(range, 255) <= 0)
    return INT_LE255;
  if (i64cmpl(range, 256) == 0)
    return INT_EQ256;
  return i64cmpl(range, 65536) <= 0 ? INT_LE64K : INT_GT64K;
}

int perGetLengthDeterminantField(int32_t lower, int32_t upper, int lengthClass)
{
  switch (lengthClass) {
  case LENGTH_BELOW_64K: {
    sint64 range;
    i64ltosint64(range, wrappedRange32(lower, upper));
    int field = perGetConstrainedWholeNumberField(range);
    return field == INT_GT64K ? INT_NONE : field;
  }
  case LENGTH_FROM_64K:
  case LENGTH_WITHOUT_END:
    return INT_GT64K;
  default:
    return INT_NONE;
  }
}

// The bounds that `getIntegerEndpoints` collects; valid during its walk.
static struct IntegerBounds {
  sint64 lower;
  sint64 upper;
} walkedBounds;

static void integerBoundCallBack(AsnType &, const Int64Pair &pair, int)
{
  if (i64cmp(pair.lower, walkedBounds.lower) < 0)
    walkedBounds.lower = pair.lower;
  if (i64cmp(pair.upper, walkedBounds.upper) > 0)
    walkedBounds.upper = pair.upper;
}

void getIntegerEndpoints(AsnType &type, sint64 &lower, sint64 &upper)
{
  walkedBounds = {i64max(), i64min()};
  forInt64ValueSet(type, integerBoundCallBack);
  lower = walkedBounds.lower;
  upper = walkedBounds.upper;
}

int getIntegerNumberKindByBounds(sint64 lower, sint64 upper)
{
  if (i64cmp(lower, upper) == 0)
    return INT_SINGLE;
  if (i64ismin(lower))
    return INT_UNCONSTRAINED;
  return i64ismax(upper) ? INT_SEMI_CONSTRAINED : INT_CONSTRAINED;
}

int perGetIntegerNumberKind(AsnType &type)
{
  sint64 lower, upper;
  getIntegerEndpoints(type, lower, upper);
  return getIntegerNumberKindByBounds(lower, upper);
}

int getIntegerNumberFieldByBounds(sint64 lower, sint64 upper, int &octets)
{
  if (i64cmp(lower, upper) == 0) {
    octets = 0;
    return INT_EQ1;
  }
  if (i64ismin(lower) || i64ismax(upper)) {
    octets = -1;
    return INT_GT64K;
  }
  sint64 range;
  if (!range64(range, upper, lower))
    return INT_NONE;
  octets = numberOfOctetsInRange64(range);
  return perGetConstrainedWholeNumberField(range);
}

int perGetIntegerNumberField(AsnType &type, sint64 &lower, sint64 &upper,
                             int &octets)
{
  getIntegerEndpoints(type, lower, upper);
  return getIntegerNumberFieldByBounds(lower, upper, octets);
}

// --- names ------------------------------------------------------------------

// The columns of a row of `functionNameTable`.
enum FunctionColumn : int {
  COLUMN_SINGLE = 0,
  COLUMN_SEMI = 5,  // those between are of the fields from `INT_LE255` on
  COLUMN_UNCONSTRAINED = 6,
  COLUMN_COUNT = 7
};

int encodingVariant2Index(int variant)
{
  return variant == VARIANT_ALIGNED || variant == VARIANT_UNALIGNED ? variant
                                                                    : -1;
}

int vf2Index(int valueFormat)
{
  switch (valueFormat) {
  case VF_UI64:
  case VF_I64:
    return 0;
  case VF_UI32:
    return 1;
  default:
    return 2;
  }
}

int intFieldKind2Index(int kind, int field)
{
  switch (kind) {
  case INT_SINGLE:
    return COLUMN_SINGLE;
  case INT_CONSTRAINED:
    return field >= INT_LE255 && field <= INT_GT64K ? field : -1;
  case INT_SEMI_CONSTRAINED:
    return COLUMN_SEMI;
  case INT_UNCONSTRAINED:
    return COLUMN_UNCONSTRAINED;
  default:
    return -1;
  }
}

// By variant, home and column. What is null the run-time library doesn't
// have: a 64-bit home takes no small ranges, and an unsigned 32-bit one
// nothing but large ranges.
static const char *const functionNameTable[2][3][COLUMN_COUNT] = {
    {
        {nullptr, nullptr, nullptr, nullptr, "sint64_cwn_al_gt64K",
         "sint64_scwn_al", "sint64_ucwn_al"},
        {nullptr, nullptr, nullptr, nullptr, "uint32_cwn_al_gt64K", nullptr,
         nullptr},
        {"sint32_cwn_al_eq1", "sint32_cwn_al_le255", "sint32_cwn_al_eq256",
         "sint32_cwn_al_le64K", "sint32_cwn_al_gt64K", "sint32_scwn_al",
         "sint32_ucwn_al"},
    },
    {
        {nullptr, nullptr, nullptr, nullptr, "sint64_cwn_ua", "sint64_scwn_ua",
         "sint64_ucwn_ua"},
        {nullptr, nullptr, nullptr, nullptr, "uint32_cwn_ua", nullptr, nullptr},
        {"sint32_cwn_ua_eq1", "sint32_cwn_ua", "sint32_cwn_ua", "sint32_cwn_ua",
         "sint32_cwn_ua", "sint32_scwn_ua", "sint32_ucwn_ua"},
    },
};

static const char *functionName(int valueFormat, int kind, int field)
{
  int variant = encodingVariant2Index(perGetEncodingVariant());
  int column = intFieldKind2Index(kind, field);
  if (variant < 0 || column < 0)
    return nullptr;
  return functionNameTable[variant][vf2Index(valueFormat)][column];
}

std::string *perIntegerFunctionName(std::string &text, const char *prefix,
                                    AsnType &type, const char *suffix,
                                    int &kind, sint64 &lower, sint64 &upper,
                                    int &octets)
{
  kind = perGetIntegerNumberKind(type);
  text = orEmpty(prefix);
  int field = perGetIntegerNumberField(type, lower, upper, octets);
  const char *name = functionName(getVF(type), kind, field);
  if (!name)
    return nullptr;
  text += name;
  text += orEmpty(suffix);
  return &text;
}

std::string *perInteger32FunctionName(std::string &text, const char *prefix,
                                      AsnType &type, const char *suffix,
                                      int &kind, int32_t &lower, int32_t &upper,
                                      int &octets)
{
  sint64 lower64, upper64;
  std::string *name = perIntegerFunctionName(text, prefix, type, suffix, kind,
                                             lower64, upper64, octets);
  i64tol(lower64, lower);
  i64tol(upper64, upper);
  return name;
}

void perNoIntegerFunction(const AsnType &type)
{
  notYetSupported(type, getVF(type) == VF_I64
                            ? "sint64 INTEGER types with small constraints"
                            : "INTEGER types with complex constraints");
}

// The aligned variant sends what does not fit 16 bits as octets with a length
// ahead of them, X.691 (2002) 10.5.7.4.
static int alignedCounts(int (&counts)[2], sint64 lower, sint64 upper,
                         int octets)
{
  sint64 range;
  range64(range, upper, lower);
  counts[0] = octets;
  if (i64cmpl(range, 65536) > 0) {
    counts[1] = perBitsInIntegerLenDeterminant(octets);
    return 2;
  }
  if (i64cmpl(range, 1) > 0 && i64cmpl(range, 255) <= 0)
    counts[0] = perBitsInIntegerBitField(lower, upper);
  return 1;
}

int perIntegerCounts(int (&counts)[2], sint64 lower, sint64 upper, int octets)
{
  switch (perGetEncodingVariant()) {
  case VARIANT_ALIGNED:
    return alignedCounts(counts, lower, upper, octets);
  case VARIANT_UNALIGNED:
    counts[0] = perBitsInIntegerBitField(lower, upper);
    return 1;
  default:
    return 0;
  }
}

// --- length determinants ----------------------------------------------------

// By field; the unaligned variant knows no octets to count.
static const char *const lenDetNames[2][INT_GT64K] = {
    {"lenDet_al_clt64K_eq1", "lenDet_al_clt64K_le255", "lenDet_al_clt64K_eq256",
     "lenDet_al_clt64K_le64K"},
    {"lenDet_ua_clt64K_eq1", "lenDet_ua_clt64K_le64K", "lenDet_ua_clt64K_le64K",
     "lenDet_ua_clt64K_le64K"},
};

static bool lenDetFuncName(std::string &text, int variant, const char *prefix,
                           int field, const char *length, int32_t lower,
                           int32_t upper, int count, const char *suffix)
{
  text.clear();
  if (field == INT_GT64K)
    return true;
  if (field < INT_EQ1 || field > INT_GT64K)
    return false;
  text = orEmpty(prefix);
  text += lenDetNames[variant][field];
  text += formatText(" (%s, %ld, %ld, %d)", length, long{lower}, long{upper},
                     count);
  text += orEmpty(suffix);
  return true;
}

bool alignedLenDetFuncName(std::string &text, const char *prefix, int field,
                           const AsnType &, const char *length, int32_t lower,
                           int32_t upper, int count, const char *suffix)
{
  return lenDetFuncName(text, VARIANT_ALIGNED, prefix, field, length, lower,
                        upper, count, suffix);
}

bool unalignedLenDetFuncName(std::string &text, const char *prefix, int field,
                             const AsnType &, const char *length, int32_t lower,
                             int32_t upper, int count, const char *suffix)
{
  return lenDetFuncName(text, VARIANT_UNALIGNED, prefix, field, length, lower,
                        upper, count, suffix);
}

std::string *perLengthDeterminantFunctionName(std::string &text,
                                              const char *prefix, int field,
                                              const AsnType &type,
                                              const char *length, int32_t lower,
                                              int32_t upper, int count,
                                              const char *suffix)
{
  text.clear();
  bool good = false;
  switch (perGetEncodingVariant()) {
  case VARIANT_ALIGNED:
    good = alignedLenDetFuncName(text, prefix, field, type, length, lower,
                                 upper, count, suffix);
    break;
  case VARIANT_UNALIGNED:
    good = unalignedLenDetFuncName(text, prefix, field, type, length, lower,
                                   upper, count, suffix);
    break;
  default:
    break;
  }
  return good ? &text : nullptr;
}
