// Effective permitted alphabets. Each walker of constraints puts what it finds
// into one global; those of compounds set aside what is there, let the operand
// begin without an alphabet and then join the two. What no compound joins must
// not meet: a second value or range where there is an alphabet ends the run.
//
// Outside a FROM a union of different alphabets has none, since it need not
// be the alphabet of all its values; inside, alphabets are joined as they
// stand, with what they have in common twice.

#include "per/peralphabet.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/restrstring.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "per/variant.h"
#include "store/codes.h"
#include <algorithm>
#include <utility>

std::optional<std::string> glbEffectivePermittedAlphabet;

// The types with a fixed number of bits to a character, X.691 (2002) 27.5.2,
// and the alphabets that they have by themselves.
struct KnownMultiplierRow {
  int mainType;
  int32_t size;
  int alignedBits;
  int unalignedBits;
};

static const KnownMultiplierRow knownMultiplierArr[] = {
    {TYP_NUMSTR, 11, 4, 4},      {TYP_PRISTR, 74, 8, 7},
    {TYP_VISSTR, 95, 8, 7},      {TYP_IA5STR, 128, 8, 7},
    {TYP_BMPSTR, 65534, 16, 16}, {TYP_UNISTR, 0x7fffffff, 32, 32},
};

// Null for any other type.
static const KnownMultiplierRow *knownMultiplierRow(const AsnType &type)
{
  for (const KnownMultiplierRow &row : knownMultiplierArr)
    if (row.mainType == getTypeMainType(type))
      return &row;
  return nullptr;
}

// --- values and ranges ------------------------------------------------------

static void savePermittedAlphabet(AsnValue &, int, const char *text)
{
  glbEffectivePermittedAlphabet = text;
}

static void alphabetSingleConstraint(AsnType &type, AsnValue &value)
{
  if (glbEffectivePermittedAlphabet) {
    std::string text;
    getTypeRef(text, "Too complex permitted alphabet constraint for ", type,
               ", line ");
    text += std::to_string(getTypeDefinitionLine(type));
    fatalError(FATAL_INTERNAL, text.c_str());
  }
  forCharacterStringValue(value, savePermittedAlphabet);
}

// The low octet of the one character of a string; -1 for any other string.
static int onlyCharacter(const AsnValue &value)
{
  RestrCharStri stri;
  makeRestrCharStri(value.baseModRec, value.base, stri);
  if (stri.length != 1)
    return -1;
  switch (stri.mainType) {
  case TYP_BMPSTR:
    return static_cast<uint8_t>(stri.text16[0]);
  case TYP_UNISTR:
    return static_cast<uint8_t>(stri.text32[0]);
  default:
    return static_cast<uint8_t>(stri.text[0]);
  }
}

static void constructRangeCharacters(AsnType &type, AsnValue &lowValue,
                                     bool lowIncluded, AsnValue &highValue,
                                     bool highIncluded)
{
  // MIN and MAX have no node.
  if (getValueMainType(lowValue) != getValueMainType(highValue) ||
      !lowIncluded || !highIncluded || !knownMultiplierRow(type) ||
      !lowValue.baseModRec || !highValue.baseModRec)
    return;
  int low = onlyCharacter(lowValue);
  int high = onlyCharacter(highValue);
  if (low < 0 || high < 0)
    return;
  if (glbEffectivePermittedAlphabet)
    fatalError(FATAL_INTERNAL, "Range Characters error");
  if (high < low)
    return;
  // A NUL ends the alphabet, so one at its beginning leaves nothing.
  std::string &alphabet = glbEffectivePermittedAlphabet.emplace();
  for (int c = low; low > 0 && c <= high; ++c)
    alphabet += static_cast<char>(c);
}

// --- inside a FROM ----------------------------------------------------------

static void concatenateStringSegments(AsnType &type, AsnConstraint &operand,
                                      int)
{
  std::optional<std::string> earlier =
      std::exchange(glbEffectivePermittedAlphabet, std::nullopt);
  checkPermittedAlphabetConstraint(type, &operand);
  if (earlier)
    glbEffectivePermittedAlphabet =
        *earlier + glbEffectivePermittedAlphabet.value_or("");
}

void checkPermittedAlphabetConstraint(AsnType &type, AsnConstraint *constraint)
{
  if (!constraint)
    return;
  switch (getConstraintKind(*constraint)) {
  case SUB_UNION:
    forUnionConstraint(type, *constraint, concatenateStringSegments);
    break;
  case SUB_RANGE:
    forValueRangeConstraint(type, *constraint, constructRangeCharacters);
    break;
  case SUB_ALPHABET:
    forPermittedAlphabetConstraint(type, *constraint,
                                   checkPermittedAlphabetConstraint);
    break;
  case SUB_SINGLE_VALUE:
    forSingleValueConstraint(type, *constraint, alphabetSingleConstraint);
    break;
  default:
    break;
  }
}

// --- outside ----------------------------------------------------------------

static void checkUnionStringConstraints(AsnType &type, AsnConstraint &operand,
                                        int)
{
  std::optional<std::string> earlier =
      std::exchange(glbEffectivePermittedAlphabet, std::nullopt);
  findEffectivePermittedAlphabet(type, &operand);
  if (!glbEffectivePermittedAlphabet)
    glbEffectivePermittedAlphabet = earlier;
  else if (earlier && *earlier != *glbEffectivePermittedAlphabet)
    glbEffectivePermittedAlphabet.reset();
}

static void checkCatenatedStringConstraints(AsnType &type,
                                            AsnConstraint *operand)
{
  std::optional<std::string> earlier =
      std::exchange(glbEffectivePermittedAlphabet, std::nullopt);
  findEffectivePermittedAlphabet(type, operand);
  if (!earlier)
    return;
  if (glbEffectivePermittedAlphabet) {
    const std::string &later = *glbEffectivePermittedAlphabet;
    std::erase_if(*earlier,
                  [&](char c) { return later.find(c) == std::string::npos; });
  }
  glbEffectivePermittedAlphabet = earlier;
}

void findEffectivePermittedAlphabet(AsnType &type, AsnConstraint *constraint)
{
  if (!constraint)
    return;
  switch (getConstraintKind(*constraint)) {
  case SUB_UNION:
    forUnionConstraint(type, *constraint, checkUnionStringConstraints);
    break;
  case SUB_CATENATED:
    forEachCatenatedConstraint(type, *constraint,
                               checkCatenatedStringConstraints);
    break;
  case SUB_RANGE:
    forValueRangeConstraint(type, *constraint, constructRangeCharacters);
    break;
  case SUB_ALPHABET:
    forPermittedAlphabetConstraint(type, *constraint,
                                   checkPermittedAlphabetConstraint);
    break;
  case SUB_SINGLE_VALUE:
    forSingleValueConstraint(type, *constraint, alphabetSingleConstraint);
    break;
  default:
    break;
  }
}

// --- bits of a character ----------------------------------------------------

static bool compStr(char a, char b)
{
  return static_cast<uint8_t>(a) < static_cast<uint8_t>(b);
}

// X.691 (2002) 27.5.2: the aligned variant rounds up to a power of 2.
static int bitsForAlphabet(int32_t size)
{
  int bits = 0;
  while ((int64_t{1} << bits) < size)
    ++bits;
  if (perGetEncodingVariant() != VARIANT_ALIGNED)
    return bits;
  int rounded = 1;
  while (rounded < bits)
    rounded *= 2;
  return rounded;
}

int bitsInKnownMultiChar(AsnType &type, int32_t &size)
{
  glbEffectivePermittedAlphabet.reset();
  forEachTypeConstraint(type, findEffectivePermittedAlphabet);
  if (!glbEffectivePermittedAlphabet)
    return defaultBitsInKnownMultiChar(type, size);
  std::string &alphabet = *glbEffectivePermittedAlphabet;
  size = static_cast<int32_t>(alphabet.size());
  std::sort(alphabet.begin(), alphabet.end(), compStr);
  return size == 1 ? 0 : bitsForAlphabet(size);
}

int defaultBitsInKnownMultiChar(const AsnType &type, int32_t &size)
{
  size = 0;
  const KnownMultiplierRow *row = knownMultiplierRow(type);
  if (!row)
    return -1;
  size = row->size;
  if (row->alignedBits == row->unalignedBits)
    return row->alignedBits;
  switch (perGetEncodingVariant()) {
  case VARIANT_ALIGNED:
    return row->alignedBits;
  case VARIANT_UNALIGNED:
    return row->unalignedBits;
  default:
    fatalError(FATAL_INTERNAL, "Unknown encoding variant");
  }
}
