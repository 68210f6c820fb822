// Encoders of leaves: one call of the run-time each. What has no call leaves
// a hole in the generated function and draws a warning.

#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cbuiltin.h"
#include "cbet/cfunction.h"
#include "cbet/chome.h"
#include "cbet/cmnemonic.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/enc.h"
#include "per/perchoice.h"
#include "per/perint.h"
#include "per/perleaf.h"
#include "per/perstring.h"

void encRef(const char *prefix, bool address, const AsnType &type, bool member,
            const char *suffix)
{
  std::string text;
  wToF(fiEnc, cHome(text, prefix, address, type, member, suffix).c_str());
}

static void encBuiltinFunc(const AsnType &type, const char *tail)
{
  std::string text;
  wToF(fiEnc, cBuiltinCFunc(text, "pe_", type, " (").c_str());
  wToF(fiEnc, tail);
}

static void encBuiltinType(const AsnType &type, bool address)
{
  encBuiltinFunc(type, nullptr);
  encRef(nullptr, address, type, false, ");\n");
}

// A comment, and no more than that, tells the reader of the code.
void encWarningForExtendedConstraints(const AsnType &type, const char *word)
{
  notYetSupported(
      type, formatText("Encoding of extended %s constraint", word).c_str());
  helpWithTool();
  printfToF(fiEnc,
            " /*?!?: Invalid encoding follows - extended %s constraint.*/\n",
            word);
}

// --- INTEGER ----------------------------------------------------------------

// The function that the user names, with the user's further arguments.
static void encUserDefinedInteger(const AsnType &type)
{
  const char *arguments = getMetaFuncOption(type);
  printfToF(fiEnc, "pe_%s (", getMetaFuncId(type));
  encRef(nullptr, false, type, false, arguments ? "," : nullptr);
  wToF(fiEnc, arguments);
  wToF(fiEnc, ");\n");
}

// Each count is a text of its own.
static void encConstrainedWholeNumber(sint64 lower, sint64 upper, int octets,
                                      int format)
{
  cInt64ToF(fiEnc, " ", lower, format, ",");
  cInt64ToF(fiEnc, " ", upper, format, ",");
  int counts[2];
  int n = perIntegerCounts(counts, lower, upper, octets);
  if (n > 0)
    printfToF(fiEnc, n > 1 ? " %d," : " %d", counts[0]);
  if (n > 1)
    printfToF(fiEnc, " %d", counts[1]);
}

static void encDefaultInteger(AsnType &type)
{
  int kind = 0;
  int octets = 0;
  sint64 lower, upper;
  std::string name;
  if (!perIntegerFunctionName(name, "pe_", type, " (", kind, lower, upper,
                              octets)) {
    perNoIntegerFunction(type);
    return;
  }
  wToF(fiEnc, name.c_str());
  encRef(nullptr, false, type, false,
         kind == INT_UNCONSTRAINED ? nullptr : ",");
  if (kind == INT_CONSTRAINED)
    encConstrainedWholeNumber(lower, upper, octets, getVF(type));
  else if (kind != INT_UNCONSTRAINED)
    cInt64ToF(fiEnc, " ", lower, getVF(type), nullptr);
  wToF(fiEnc, ");\n");
}

static void encInteger(AsnType &type)
{
  if (isExtensibleIntegerValueSet(type))
    encWarningForExtendedConstraints(type, "INTEGER");
  if (getMetaFuncId(type))
    encUserDefinedInteger(type);
  else
    encDefaultInteger(type);
}

// --- strings ----------------------------------------------------------------

// The name of a string's function, its field's bounds and its count.
typedef std::string *StringFunctionName(std::string &text, const char *prefix,
                                        AsnType &type, const char *suffix,
                                        int32_t &lower, int32_t &upper,
                                        int &count, bool dynamic);

// A string of a sort: `word` in the comment on an extensible SIZE, `complex`
// where there is no function.
static void encString(AsnType &type, StringFunctionName *functionName,
                      bool isUnknownMultiplier, const char *word,
                      const char *complex)
{
  if (isExtensibleSizeConstraintValueSet(type)) {
    encWarningForExtendedConstraints(type, word);
    return;
  }
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  std::string name, home;
  if (!functionName(name, "pe_", type, " (", lower, upper, count, false)) {
    notYetSupported(type, complex);
    return;
  }
  if (isUnknownMultiplier)
    perUnknownMultiplierName(name);
  cHome(home, nullptr, true, type, false, ",");
  perStringCallToF(fiEnc, name.c_str(), home.c_str(), lower, upper, count);
}

static void encBitString(AsnType &type)
{
  encString(type, perBitStrFunctionName, false, "BIT STRING",
            "BIT STRING types with complex constraints");
}

static void encOctetString(AsnType &type)
{
  encString(type, perOctStrFunctionName, false, "OCTET STRING",
            "OCTET STRING types with complex constraints");
}

// "type" where the decoder says "types": users search for both texts.
static void encUnknownMultiplierCharString(AsnType &type)
{
  encString(type, perOctStrFunctionName, true, "string",
            "GENERAL STRING type with complex constraints");
}

static void encKnownMultiplierCharString(AsnType &type)
{
  if (isExtensibleSizeConstraintValueSet(type)) {
    encWarningForExtendedConstraints(type, "string");
    return;
  }
  std::string home;
  cHome(home, nullptr, true, type, false, nullptr);
  if (perKnownMultiChrStrFunctionToF(fiEnc, "pe_", false, type, home.c_str(),
                                     ";\n"))
    return;
  typeWarning(type, "Unsupported character string type.");
  warning("Constraints or the C home area might be too complex.");
}

// --- open types -------------------------------------------------------------

// The text takes it that the value stands in the home of a list element, and
// bears the aligned name in both variants: applications with an ANY of their
// own replace it.
static void encAny(AsnType &)
{
  wToF(fiEnc, "pe_FrameOpenType_al (& a1->val.frm);\n");
}

void encFrame(AsnType &type, TypeFuncInfo &)
{
  int mainType = getTypeMainType(type);
  if (mainType != TYP_ANY && mainType != TYP_OPEN) {
    typeWarning(type, "The FRAME option with non-ANY type not yet supported.");
    return;
  }
  std::string text;
  wToF(fiEnc, perOpenTypeFunctionName(text, "pe_Frame", " (").c_str());
  encRef(nullptr, true, type, false, ");\n");
}

void encAnyDefinedByClassifier(AsnType &type, AsnType *classifier)
{
  cAnyFunctionRef(fiEnc, "anyPec", 4, type, classifier);
}

// --- dispatch ---------------------------------------------------------------

void encSkip(AsnType &, TypeFuncInfo &)
{
  wToF(fiEnc, "pe_Skip ();\n");
}

void encDefStruct(AsnType &type, TypeFuncInfo &info)
{
  cVoidFunctionRef(fiEnc, info.normalFuncPrefix, info.gIndex, type);
}

void encLeaf(AsnType &type, TypeFuncInfo &info)
{
  std::string text;
  switch (getTypeMainType(type)) {
  case TYP_BOOLEAN:
    // By value; the decoder passes an address.
    encBuiltinType(type, false);
    break;
  case TYP_INTEGER:
    encInteger(type);
    break;
  case TYP_ENUM:
    encEnum(type, info);
    break;
  case TYP_BITSTR:
    encBitString(type);
    break;
  case TYP_OCTSTR:
    encOctetString(type);
    break;
  case TYP_NULL:
    encBuiltinFunc(type, ");\n");
    break;
  case TYP_SEQ:
  case TYP_SET:
    break;
  case TYP_ANY:
  case TYP_OPEN:
    encAny(type);
    break;
  case TYP_OBJID:
  case TYP_GENTIME:
  case TYP_UTCTIME:
    encBuiltinType(type, true);
    break;
  case TYP_NUMSTR:
  case TYP_PRISTR:
  case TYP_VISSTR:
  case TYP_IA5STR:
  case TYP_BMPSTR:
    encKnownMultiplierCharString(type);
    break;
  case TYP_GENSTR:
    encUnknownMultiplierCharString(type);
    break;
  case TYP_EXTENSION_MARKER:
    encExtensionAdditionField(type);
    break;
  default:
    bugInTool(getTypeMainTypeStri(text, "Unrecognized leaf type (", type, ")")
                  .c_str());
  }
}
