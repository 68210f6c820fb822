// Decoders of leaves: one call of the run-time each, with the address of the
// home. What has no call leaves a text that no compiler takes.

#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cbuiltin.h"
#include "cbet/cfunction.h"
#include "cbet/chome.h"
#include "cbet/cmnemonic.h"
#include "cbet/cnames.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/dec.h"
#include "per/perchoice.h"
#include "per/perint.h"
#include "per/perleaf.h"
#include "per/perstring.h"

void decRef(const char *prefix, bool address, const AsnType &type, bool member,
            const char *suffix)
{
  std::string text;
  wToF(fiDec, cHome(text, prefix, address, type, member, suffix).c_str());
}

static void decBuiltinFunc(const AsnType &type, const char *tail)
{
  std::string text;
  wToF(fiDec, cBuiltinCFunc(text, "pd_", type, " (").c_str());
  wToF(fiDec, tail);
}

static void decBuiltinType(const AsnType &type)
{
  decBuiltinFunc(type, nullptr);
  decRef(nullptr, true, type, false, ");\n");
}

// Blanks differ from those of the encoder's comment: users search for both.
void decWarningForExtendedConstraints(const AsnType &type, const char *word)
{
  notYetSupported(
      type, formatText("Decoding of extended %s constraint", word).c_str());
  helpWithTool();
  printfToF(fiDec,
            " /* ?!?: Invalid decoding follows - extended %s constraint. */ \n",
            word);
}

// --- INTEGER ----------------------------------------------------------------

// The function that the user names, with the user's further arguments.
static void decUserDefinedInteger(const AsnType &type)
{
  const char *arguments = getMetaFuncOption(type);
  printfToF(fiDec, "pd_%s (", getMetaFuncId(type));
  decRef(nullptr, true, type, false, arguments ? "," : nullptr);
  wToF(fiDec, arguments);
  wToF(fiDec, ");\n");
}

const char *decConstrainedWholeNumberSuff(const AsnType &type, int kind)
{
  if (kind != INT_CONSTRAINED)
    return "";
  switch (getVF(type)) {
  case VF_UI8:
  case VF_I8:
    return "_8";
  case VF_UI16:
  case VF_I16:
    return "_16";
  default:
    return "";
  }
}

// Two counts are one text; an encoder writes them as two.
void decIntegerCountsToF(sint64 lower, sint64 upper, int octets)
{
  int counts[2];
  int n = perIntegerCounts(counts, lower, upper, octets);
  if (n == 1)
    printfToF(fiDec, " %d", counts[0]);
  else if (n > 1)
    printfToF(fiDec, " %d, %d", counts[0], counts[1]);
}

static void decConstrainedWholeNumber(sint64 lower, sint64 upper, int octets,
                                      int format)
{
  cInt64ToF(fiDec, " ", lower, format, ",");
  cInt64ToF(fiDec, " ", upper, format, ",");
  decIntegerCountsToF(lower, upper, octets);
}

static void decDefaultInteger(AsnType &type)
{
  int kind = 0;
  int octets = 0;
  sint64 lower, upper;
  std::string name;
  if (!perIntegerFunctionName(name, "pd_", type, nullptr, kind, lower, upper,
                              octets)) {
    perNoIntegerFunction(type);
    return;
  }
  printfToF(fiDec, "%s%s (", name.c_str(),
            decConstrainedWholeNumberSuff(type, kind));
  decRef(nullptr, true, type, false, kind == INT_UNCONSTRAINED ? nullptr : ",");
  if (kind == INT_CONSTRAINED)
    decConstrainedWholeNumber(lower, upper, octets, getVF(type));
  else if (kind != INT_UNCONSTRAINED)
    cInt64ToF(fiDec, " ", lower, getVF(type), nullptr);
  wToF(fiDec, ");\n");
}

static void decInteger(AsnType &type)
{
  if (isExtensibleIntegerValueSet(type))
    decWarningForExtendedConstraints(type, "INTEGER");
  if (getMetaFuncId(type))
    decUserDefinedInteger(type);
  else
    decDefaultInteger(type);
}

// --- strings ----------------------------------------------------------------

// The name of a string's function, its field's bounds and its count.
typedef std::string *StringFunctionName(std::string &text, const char *prefix,
                                        AsnType &type, const char *suffix,
                                        int32_t &lower, int32_t &upper,
                                        int &count, bool dynamic);

// A string of a sort: `word` in the comment on an extensible SIZE, `complex`
// where there is no function.
static void decString(AsnType &type, StringFunctionName *functionName,
                      bool isUnknownMultiplier, const char *word,
                      const char *complex)
{
  if (isExtensibleSizeConstraintValueSet(type)) {
    decWarningForExtendedConstraints(type, word);
    return;
  }
  // A home without a member for the length has a function of its own.
  const char *suffix = cIsControlMember(type) ? " (" : "_0 (";
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  std::string name, home;
  if (!functionName(name, "pd_", type, suffix, lower, upper, count, true)) {
    notYetSupported(type, complex);
    return;
  }
  if (isUnknownMultiplier)
    perUnknownMultiplierName(name);
  cHome(home, nullptr, true, type, false, ",");
  perStringCallToF(fiDec, name.c_str(), home.c_str(), lower, upper, count);
}

static void decBitString(AsnType &type)
{
  decString(type, perBitStrFunctionName, false, "BIT STRING",
            "BIT STRING types with complex constraints");
}

static void decOctetString(AsnType &type)
{
  decString(type, perOctStrFunctionName, false, "OCTET STRING",
            "OCTET STRING types with complex constraints");
}

// "types" where the encoder says "type": users search for both texts.
static void decUnknownMultiplierCharString(AsnType &type)
{
  decString(type, perOctStrFunctionName, true, "string",
            "GENERAL STRING types with complex constraints");
}

// No warning for an unsupported type, which the encoder gives.
static void decKnownMultiplierCharString(AsnType &type)
{
  if (isExtensibleSizeConstraintValueSet(type)) {
    decWarningForExtendedConstraints(type, "string");
    return;
  }
  std::string home;
  cHome(home, nullptr, true, type, false, nullptr);
  perKnownMultiChrStrFunctionToF(fiDec, "pd_", true, type, home.c_str(), ";\n");
}

// --- open types -------------------------------------------------------------

// The text takes it that the value stands in the home of a list element, and
// bears the aligned name in both variants: applications with an ANY of their
// own replace it.
static void decAny(AsnType &)
{
  wToF(fiDec, "pd_FrameOpenType_al (& a1->val.frm);\n");
}

void decFrame(AsnType &type, TypeFuncInfo &)
{
  int mainType = getTypeMainType(type);
  if (mainType != TYP_ANY && mainType != TYP_OPEN) {
    typeWarning(type, "The FRAME option with non-ANY type not yet supported.");
    return;
  }
  std::string text;
  wToF(fiDec, perOpenTypeFunctionName(text, "pd_Frame", " (").c_str());
  decRef(nullptr, true, type, false, ");\n");
}

void decAnyDefinedByClassifier(AsnType &type, AsnType *classifier)
{
  cAnyFunctionRef(fiDec, "anyPdc", 4, type, classifier);
}

// --- dispatch ---------------------------------------------------------------

void decSkipError(AsnType &, TypeFuncInfo &)
{
  cReportError(fiDec, "ASN_PER_SKIPPED_ENCOUNTERED");
}

void decDefStruct(AsnType &type, TypeFuncInfo &info)
{
  cVoidFunctionRef(fiDec, info.normalFuncPrefix, info.gIndex, type);
}

void decLeaf(AsnType &type, TypeFuncInfo &info)
{
  switch (getTypeMainType(type)) {
  case TYP_BOOLEAN:
  case TYP_OBJID:
  case TYP_GENTIME:
  case TYP_UTCTIME:
    decBuiltinType(type);
    break;
  case TYP_INTEGER:
    decInteger(type);
    break;
  case TYP_ENUM:
    decEnum(type, info);
    break;
  case TYP_BITSTR:
    decBitString(type);
    break;
  case TYP_OCTSTR:
    decOctetString(type);
    break;
  case TYP_NULL:
    decBuiltinFunc(type, ");\n");
    break;
  case TYP_SEQ:
  case TYP_SET:
    break;
  case TYP_ANY:
  case TYP_OPEN:
    decAny(type);
    break;
  case TYP_NUMSTR:
  case TYP_PRISTR:
  case TYP_VISSTR:
  case TYP_IA5STR:
  case TYP_BMPSTR:
    decKnownMultiplierCharString(type);
    break;
  case TYP_GENSTR:
    decUnknownMultiplierCharString(type);
    break;
  case TYP_EXTENSION_MARKER:
    decExtensionAdditionField(type);
    break;
  default:
    wToF(fiDec, "NOT YET IMPLEMENTED!!");
  }
}
