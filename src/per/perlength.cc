// Lengths: the bounds of a SIZE in the 32 bits of generated calls, and how the
// length of a list is sent.

#include "per/perlength.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/perint.h"
#include "per/variant.h"

// Octets of a length that has no determinant of its own.
constexpr int countOfUnlimited = 4;

int32_t perSizeRange(int32_t lower, int32_t upper)
{
  return static_cast<int32_t>(static_cast<uint32_t>(upper) -
                              static_cast<uint32_t>(lower) + 1);
}

void getPERSizeEndpoints(AsnType &type, int32_t &lower, int32_t &upper)
{
  sint64 lower64, upper64;
  getInt64SizeConstraintEndpoints(type, lower64, upper64, nullptr);
  i64tol(lower64, lower);
  if (i64ismax(upper64))
    upper = sizeWithoutEnd;
  else
    i64tol(upper64, upper);
}

int getSeqOfLengthDeterminant(int32_t upper)
{
  if (upper == sizeWithoutEnd)
    return LENGTH_WITHOUT_END;
  return upper < from64K ? LENGTH_BELOW_64K : LENGTH_FROM_64K;
}

// The field of a list whose length varies between the bounds.
static int variableField(int32_t lower, int32_t upper, int &count)
{
  int lengthClass = getSeqOfLengthDeterminant(upper);
  int field = perGetLengthDeterminantField(lower, upper, lengthClass);
  int32_t range = perSizeRange(lower, upper);
  bool inOctets =
      field != SEQOF_LE255 && perGetEncodingVariant() != VARIANT_UNALIGNED;
  count =
      inOctets ? numberOfOctetsInRange32(range) : numberOfBitsInRange32(range);
  return field;
}

int perGetSeqOfField(AsnType &type, int32_t &lower, int32_t &upper, int &count)
{
  lower = upper = 0;
  count = 0;
  if (!isConstraints(type)) {
    upper = sizeWithoutEnd;
    count = countOfUnlimited;
    return SEQOF_FRAGMENTED;
  }
  if (!isSimpleSizeConstraintValueSet(type))
    return SEQOF_COMPLEX;
  getPERSizeEndpoints(type, lower, upper);
  if (lower != upper)
    return variableField(lower, upper, count);
  if (upper < from64K)
    return SEQOF_EQ1;
  count = countOfUnlimited;
  return SEQOF_FRAGMENTED;
}

bool perValueCanBeFragmented(AsnType &type)
{
  int32_t lower, upper;
  int count;
  return isListType(type) &&
         perGetSeqOfField(type, lower, upper, count) == SEQOF_FRAGMENTED;
}
