// Encoders of lists: the length ahead of a loop that the engine writes, or
// the call that hands a list to the run-time in fragments, with the function
// for its elements.

#include "base/diag.h"
#include "cbet/cfunction.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/clist.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/ignore.h"
#include "cbet/outfile.h"
#include "cbet/typewarn.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"
#include "per/enc.h"
#include "per/perelem.h"
#include "per/perint.h"
#include "per/perlength.h"

// The call for the length; empty for fragments, null for an unsupported list.
static std::string *lengthCall(std::string &text, AsnType &list,
                               const char *length)
{
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  int field = perGetSeqOfField(list, lower, upper, count);
  return perLengthDeterminantFunctionName(text, "pe_", field, list, length,
                                          lower, upper, count, ";\n");
}

// An inline list that is always there has a block for its iterator; that of
// an optional one is the block of its test.
static bool hasIteratorBlock(const AsnType &list)
{
  return !cIsDefinedBaseType(list) && isMandatoryTypeComp(list);
}

static void traverseFragments(AsnType &list, AsnType &elem)
{
  std::string text;
  if (perIsArray(list)) {
    wToF(fiEnc, cBaseTypeId(text, nullptr, elem, " *iter =").c_str());
    wToF(fiEnc, cHome(text, " ", false, list, true, "elem;\n").c_str());
  } else {
    wToF(fiEnc, "ASNHOME *iter =");
    wToF(fiEnc,
         cHome(text, " firstListItem (", true, list, false, ");\n").c_str());
  }
  wToF(fiEnc, "pe_TraverseFragmentedValue (");
  wToF(fiEnc, cGetSize(text, nullptr, list, true, ",").c_str());
  wToF(fiEnc, " (BYTE_TYPE *)iter,");
  wToF(fiEnc, perElemFuncName(text, " ef", list, elem, ");\n").c_str());
}

// Text that no compiler takes marks what cannot be encoded.
static void refuseSizeLimit(const AsnType &list)
{
  typeWarning(list, "Encoding of unconstrained SEQUENCE OF's\n"
                    "         are not yet supported with SIZE-LIMIT option");
  wToF(fiEnc, "?!?: Invalid encoding follows:\n ");
  wToF(fiEnc, "?!?: Encoding of unconstrained SEQUENCE OF's are\n");
  wToF(fiEnc, "?!?: not yet supported with SIZE-LIMIT option.\n");
}

void encSeqOfPrefix(AsnType &list, AsnType &elem)
{
  std::string length, text;
  cGetSize(length, nullptr, list, true, nullptr);
  if (!lengthCall(text, list, length.c_str())) {
    notYetSupported(list, "Sequence-of type.");
    wToF(fiEnc, "?!? Unsupported Sequence-of type!!!\n");
    return;
  }
  if (!text.empty()) {
    wToF(fiEnc, text.c_str());
    return;
  }
  if (hasIteratorBlock(list))
    cOpenBrace(fiEnc);
  if (cIsSizeLimit(list))
    refuseSizeLimit(list);
  else
    traverseFragments(list, elem);
}

// Closes the block that the prefix opened, in none but the same case.
void encSeqOfPostfix(AsnType &list)
{
  std::string text;
  if (isExtensibleSizeConstraintValueSet(list) || !hasIteratorBlock(list))
    return;
  if (lengthCall(text, list, "length") && text.empty())
    cCloseBrace(fiEnc);
}

// --- element functions ------------------------------------------------------

static void warnOfElem(const AsnType &list)
{
  typeWarning(list,
              "If a sequence-of/set-of type is without size constraints or "
              "with a");
  warning("large upper bound size constraint then QUORVEN requires the "
          "element");
  warning("type to be a defined type or a simple type.");
}

static void elemCode(AsnType &elem)
{
  TypeFuncInfo &info = *glbEncTypeFuncInfo;
  if (testTypeOption(elem, optSkip))
    encSkip(elem, info);
  else if (isLeafType(elem))
    encLeaf(elem, info);
  else
    cVoidFunctionRef(fiEnc, info.normalFuncPrefix, info.gIndex, elem);
}

static void defineIterator(const AsnType &elem, bool isArray)
{
  if (!isArray) {
    wToF(fiEnc, "ASNHOME *a1 = (ASNHOME *)*p;\n");
    return;
  }
  std::string text;
  wToF(fiEnc, cBaseTypeId(text, nullptr, elem, " *iter =").c_str());
  wToF(fiEnc, cBaseTypeId(text, " (", elem, " *)*p;\n").c_str());
}

// The new place goes back to the caller; a decoder appends to its list and
// has none to give.
void encElemCallBack(AsnType &list, AsnType &elem)
{
  if (!perIsElemSupported(elem)) {
    warnOfElem(list);
    return;
  }
  if (cIsSizeLimit(list) || !perBeginElemFunc(fiEnc, " ef", list, elem))
    return;
  bool isArray = perIsArray(list);
  defineIterator(elem, isArray);
  wToF(fiEnc, "while (n)");
  cOpenBrace(fiEnc);
  glbIterHome = isArray;
  elemCode(elem);
  glbIterHome = false;
  wToF(fiEnc, isArray ? "iter++;\n" : "a1 = nextListItem (a1);\n");
  wToF(fiEnc, "n--;\n");
  cCloseBrace(fiEnc);
  wToF(fiEnc,
       isArray ? "*p = (BYTE_TYPE *)iter;\n" : "*p = (BYTE_TYPE *)a1;\n");
  cCloseBrace(fiEnc);
  cDecAsnHomeVarCount();
}
