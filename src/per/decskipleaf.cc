// Ignore functions: leaves. One call of the run-time each, without a home.

#include "base/upcalls.h"
#include "cbet/cbuiltin.h"
#include "cbet/cgenstate.h"
#include "cbet/cmnemonic.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/dec.h"
#include "per/perchoice.h"
#include "per/perint.h"
#include "per/perleaf.h"
#include "per/perstring.h"

static void decSkipBuiltinType(const AsnType &type)
{
  std::string text;
  wToF(fiDec, cBuiltinCFunc(text, "pi_", type, " (").c_str());
  wToF(fiDec, ");\n");
}

// --- INTEGER ----------------------------------------------------------------

static void decSkipConstrainedWholeNumber(sint64 lower, sint64 upper,
                                          int octets, int format)
{
  cInt64ToF(fiDec, nullptr, lower, format, ",");
  cInt64ToF(fiDec, " ", upper, format, ",");
  decIntegerCountsToF(lower, upper, octets);
}

static void skipDefaultInteger(AsnType &type)
{
  int kind = 0;
  int octets = 0;
  sint64 lower, upper;
  std::string name;
  if (!perIntegerFunctionName(name, "pi_", type, nullptr, kind, lower, upper,
                              octets)) {
    perNoIntegerFunction(type);
    return;
  }
  printfToF(fiDec, "%s%s (", name.c_str(),
            decConstrainedWholeNumberSuff(type, kind));
  if (kind == INT_CONSTRAINED)
    decSkipConstrainedWholeNumber(lower, upper, octets, getVF(type));
  else if (kind != INT_UNCONSTRAINED)
    cInt64ToF(fiDec, nullptr, lower, getVF(type), nullptr);
  wToF(fiDec, ");\n");
}

static void decSkipInteger(AsnType &type)
{
  const char *name = getMetaFuncId(type);
  if (!name) {
    skipDefaultInteger(type);
    return;
  }
  printfToF(fiDec, "pi_%s (", name);
  wToF(fiDec, getMetaFuncOption(type));
  wToF(fiDec, ");\n");
}

// --- strings ----------------------------------------------------------------

// True, with the warning, for an extensible SIZE.
static bool refusesSize(const AsnType &type, const char *word)
{
  if (!isExtensibleSizeConstraintValueSet(type))
    return false;
  decWarningForExtendedConstraints(type, word);
  return true;
}

// A value that is not kept needs no storage: "Dyn" goes from the name.
static void decSkipBitString(AsnType &type)
{
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  std::string name;
  if (refusesSize(type, "BIT STRING"))
    return;
  if (!perBitStrFunctionName(name, nullptr, type, " (", lower, upper, count,
                             true)) {
    notYetSupported(type, "BIT STRING types with complex constraints");
    return;
  }
  if (name.starts_with("Dyn"))
    name.erase(0, 3);
  name.insert(0, "pi_");
  perStringCallToF(fiDec, name.c_str(), nullptr, lower, upper, count);
}

static void skipOctets(AsnType &type, bool isUnknownMultiplier,
                       const char *word, const char *complex)
{
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  std::string name;
  if (refusesSize(type, word))
    return;
  if (!perOctStrFunctionName(name, "pi_", type, " (", lower, upper, count,
                             false)) {
    notYetSupported(type, complex);
    return;
  }
  if (isUnknownMultiplier)
    perUnknownMultiplierName(name);
  perStringCallToF(fiDec, name.c_str(), nullptr, lower, upper, count);
}

static void decSkipOctetString(AsnType &type)
{
  skipOctets(type, false, "OCTET STRING",
             "OCTET STRING types with complex constraints");
}

static void decSkipUnknownMultiplierCharString(AsnType &type)
{
  skipOctets(type, true, "string",
             "GENERAL STRING types with complex constraints");
}

// Of an extensible SIZE the root is taken, without a warning.
static void decSkipKnownMultiplierCharString(AsnType &type)
{
  perKnownMultiChrStrFunctionToF(fiDec, "pi_", false, type, nullptr, ";\n");
}

// --- ENUMERATED and open types ----------------------------------------------

// The value goes into a home, though nobody keeps it.
static void skipEnumInline(AsnType &type)
{
  bool isInline = !cIsDefinedBaseType(type);
  if (isInline)
    cOpenBrace(fiDec);
  if (isExtensibleEnumeratedList(type)) {
    wToF(fiDec, "EXTENSIBLE_ENUMERATED temp;\n");
    wToF(fiDec, "EXTENSIBLE_ENUMERATED *home = &temp;\n");
  } else {
    wToF(fiDec, "sint32 *home = &asnperg_ignTemp;\n");
  }
  decEnumContents(type, true);
  if (isInline)
    cCloseBrace(fiDec);
}

static void decSkipEnum(AsnType &type)
{
  if (!cIsGeneratingEntryFuncForThisType(type) &&
      (isDefinedType(type) || !cIsDefinedBaseType(type))) {
    skipEnumInline(type);
    return;
  }
  std::string text;
  wToF(fiDec, decSkipIgnoreFuncName(text, nullptr, type, " (").c_str());
  wToF(fiDec, "ASNG_L(asnperg));\n");
}

// By the variant, while the decoder's text of an ANY has one form.
static void decSkipAny()
{
  std::string text;
  wToF(fiDec, perOpenTypeFunctionName(text, "pi_", " ();\n").c_str());
}

// --- dispatch ---------------------------------------------------------------

void decSkipLeaf(AsnType &type, TypeFuncInfo &)
{
  if (perIsExtensionAdditionComponent(getFatherOfTypeComp(type), type))
    return;
  switch (getTypeMainType(type)) {
  case TYP_BOOLEAN:
  case TYP_NULL:
  case TYP_OBJID:
  case TYP_GENTIME:
  case TYP_UTCTIME:
    decSkipBuiltinType(type);
    break;
  case TYP_INTEGER:
    decSkipInteger(type);
    break;
  case TYP_ENUM:
    decSkipEnum(type);
    break;
  case TYP_BITSTR:
    decSkipBitString(type);
    break;
  case TYP_OCTSTR:
    decSkipOctetString(type);
    break;
  case TYP_SEQ:
  case TYP_SET:
    if (getNrOfTypeComps(type) != 0)
      wToF(fiDec, "NOT YET IMPLEMENTED!!");
    break;
  case TYP_ANY:
  case TYP_OPEN:
    decSkipAny();
    break;
  case TYP_NUMSTR:
  case TYP_PRISTR:
  case TYP_VISSTR:
  case TYP_IA5STR:
  case TYP_BMPSTR:
    decSkipKnownMultiplierCharString(type);
    break;
  case TYP_GENSTR:
    decSkipUnknownMultiplierCharString(type);
    break;
  case TYP_EXTENSION_MARKER:
    decSkipExtensionAdditionField(type);
    break;
  default:
    wToF(fiDec, "NOT YET IMPLEMENTED!!");
  }
}
