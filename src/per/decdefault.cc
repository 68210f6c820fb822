// Default values in decoders: a component that arrives with its DEFAULT value
// is an error of the sender, one that does not arrive can be filled with it.

#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/cmarker.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "per/dec.h"
#include "per/perdefault.h"
#include "per/perstruct.h"

// --- errors of the sender ---------------------------------------------------

static void decCatchDefaultValueErrors(AsnType &comp, AsnValue &value)
{
  std::string text;
  perDefaultRef(text, "if (", comp, "==", false);
  perDefaultValueToF(fiDec, text, comp, value, ")");
  cOpenBrace(fiDec);
  wToF(fiDec, "asnPERError (ASNG_F(asnperg) "
              "ASN_PER_WRONG_DEFAULT_ENCODING_STX);\n");
  cCloseBrace(fiDec);
}

void decCatchDefaultValue(AsnType &comp)
{
  if (getMetaDecodingCatchDefaultErrors(*getModuleOfType(comp)) &&
      perIsDefaultKeywordUsedWithSupportedType(comp))
    forDefaultValue(comp, decCatchDefaultValueErrors);
}

// --- filling ----------------------------------------------------------------

// Two forms go into the encoder's file, and leave the block in the decoder's
// unconditional; with both in one file the test is in place.
static void absenceTest(AsnType &father, AsnType &comp, int compNbr)
{
  std::string text;
  if (cIsControlMember(father)) {
    cNegTestControlMember(fiDec, comp);
  } else if (cIsHometab(father)) {
    printfToF(fiEnc, "if (hometab [%d] == NULL)", compNbr);
  } else {
    wToF(fiEnc, "if (");
    wToF(fiEnc, cHome(text, nullptr, false, father, true, nullptr).c_str());
    wToF(fiEnc, getTypeCompId(text, nullptr, comp, "_fld").c_str());
    wToF(fiEnc, " == NULL)");
  }
}

// A home of the component's own, named from its structure.
static void createOwnHome(AsnType &father, AsnType &comp)
{
  std::string text;
  wToF(fiDec, "createHome (");
  wToF(fiDec,
       cGetHome(text, nullptr, comp, glbDecTypeFuncInfo->gIndex, ",").c_str());
  wToF(fiDec, cHome(text, " ", true, father, true, nullptr).c_str());
  wToF(fiDec, getTypeCompId(text, nullptr, comp, "_fld").c_str());
  printfToF(fiDec, ", %s,", cGetVFStri(comp));
  if (cIsPtrAsnHomeMember(comp))
    wToF(fiDec, cBaseTypeId(text, " sizeof (", comp, "));\n").c_str());
  else
    wToF(fiDec, " 0);\n");
}

static void prepareHome(AsnType &father, AsnType &comp)
{
  switch (perDefaultHome(comp)) {
  case DEFAULT_IN_HOMETAB:
    cCreateHome(fiDec, comp, glbDecTypeFuncInfo->gIndex);
    break;
  case DEFAULT_IN_LOCAL_HOME:
  case DEFAULT_IN_STRUCTURE:
    cSetControlMember(fiDec, comp);
    break;
  case DEFAULT_IN_OWN_HOME:
    createOwnHome(father, comp);
    if (!testTypeOption(father, optAsnhc))
      cSetControlMember(fiDec, comp);
    break;
  }
}

static void decFillDefaultValue(AsnType &comp, AsnValue &value)
{
  std::string text;
  prepareHome(*getFatherOfTypeComp(comp), comp);
  perDefaultRef(text, nullptr, comp, "=", false);
  perDefaultValueToF(fiDec, text, comp, value, ";");
  wToF(fiDec, "\n");
}

// What was said once in the run.
static bool unfilledExplained;

static void warnOfUnfilled(const AsnType &comp)
{
  indTypeWarning(comp, "Decoding: DEFAULT value is not filled.");
  if (unfilledExplained)
    return;
  unfilledExplained = true;
  indWarning("Unsupported type with DEFAULT keyword and");
  indWarning("DECODING-FILL-DEFAULT-VALUES=yes option.");
}

static void decTestDefaultValue(AsnType &father, AsnType &comp, int compNbr)
{
  if (!isDefaultValue(comp))
    return;
  if (!perIsDefaultKeywordUsedWithSupportedType(comp)) {
    warnOfUnfilled(comp);
    return;
  }
  absenceTest(father, comp, compNbr);
  cOpenBrace(fiDec);
  forDefaultValue(comp, decFillDefaultValue);
  cCloseBrace(fiDec);
}

void decFillDefaultValues(AsnType &type)
{
  forEachTypeComp(type, decTestDefaultValue);
}
