// Calls for the index of an alternative.

#include "per/perchoice.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/outfile.h"
#include "per/extinfo.h"
#include "per/perint.h"
#include "per/variant.h"

// The largest number of alternatives that an index serves.
constexpr int32_t maxRootAlternatives = 255;

int perGetChoiceRootIndexField(AsnType &type, int32_t &upper, int &bits)
{
  // Alternatives are not mandatory.
  int32_t count = getExtensionInfo(type).rootOptionalCount;
  if (count > maxRootAlternatives)
    return 0;
  upper = count - 1;
  bits = numberOfBitsInRange32(count);
  return count == 1 ? 0 : 1;
}

// By variant and field.
static const char *const indexNames[2][2] = {
    {"ChoiceIndex_al_eq1", "ChoiceIndex_al_le255"},
    {"ChoiceIndex_ua_eq1", "ChoiceIndex_ua_le255"},
};

const char *choiceIndexFuncName(int field)
{
  int variant = encodingVariant2Index(perGetEncodingVariant());
  if (variant < 0 || field < 0 || field > 1)
    return nullptr;
  return indexNames[variant][field];
}

void perChoiceRootIndexFunctionNameToF(int file, const char *prefix, int field,
                                       const char *value, int32_t upper,
                                       int bits, const char *suffix)
{
  const char *name = choiceIndexFuncName(field);
  if (!name)
    return;
  // In one text: no line may break inside a name.
  wToF(file, (std::string(orEmpty(prefix)) + name + " (").c_str());
  if (value)
    wToF(file, (std::string(value) + ",").c_str());
  printfToF(file, "%s%d,", value ? " " : "", upper);
  printfToF(file, " %d)", bits);
  wToF(file, suffix);
}

void perChoiceAddIndexFunctionNameToF(int file, const char *prefix,
                                      const char *argument, const char *suffix)
{
  static const char *const names[] = {"ChoiceIndex_al_ns (",
                                      "ChoiceIndex_ua_ns ("};
  int variant = encodingVariant2Index(perGetEncodingVariant());
  std::string name = orEmpty(prefix);
  name += variant < 0 ? "!?!?!" : names[variant];
  wToF(file, name.c_str());
  wToF(file, argument);
  wToF(file, ")");
  wToF(file, suffix);
}

std::string &perOpenTypeFunctionName(std::string &text, const char *prefix,
                                     const char *suffix)
{
  static const char *const names[] = {"OpenType_al", "OpenType_ua"};
  int variant = encodingVariant2Index(perGetEncodingVariant());
  if (variant < 0)
    fatalError(FATAL_INTERNAL, "Unknown encoding variant");
  text = orEmpty(prefix);
  text += names[variant];
  return text += orEmpty(suffix);
}
