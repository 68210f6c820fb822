// Decoders of lists: the length ahead of a loop that the engine writes, or
// the call that has the run-time read a list in fragments, with the function
// for its elements.

#include "base/strings.h"
#include "cbet/cfunction.h"
#include "cbet/cgenerate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/clist.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/ignore.h"
#include "cbet/outfile.h"
#include "cbet/traverse.h"
#include "cbet/typewarn.h"
#include "model/typequery.h"
#include "per/dec.h"
#include "per/perelem.h"
#include "per/perint.h"
#include "per/perlength.h"
#include "per/perpath.h"
#include "per/perstruct.h"

static std::string limitText(AsnType &list)
{
  sint64 lower, upper, limit;
  getInt64SizeEndpoints(list, lower, upper, limit);
  return i64text(limit);
}

// --- dynamic arrays ---------------------------------------------------------

// What a dynamic array holds for each element.
enum ElemStorage : int { ELEM_VALUE = 0, ELEM_POINTER = 1, ELEM_HOME = 2 };

static ElemStorage elemStorage(const AsnType &elem)
{
  if (testTypeOption(elem, optAsnHome))
    return ELEM_HOME;
  return cIsFrameType(elem) || testTypeOption(elem, optPointer) ||
                 isRecursiveType(elem)
             ? ELEM_POINTER
             : ELEM_VALUE;
}

static std::string &storageText(std::string &text, const char *prefix,
                                const AsnType &elem, const char *closing)
{
  switch (elemStorage(elem)) {
  case ELEM_HOME:
    return text = formatText("%sASNHOME *%s", prefix, closing);
  case ELEM_POINTER:
    return cBaseTypeId(text, prefix, elem,
                       (std::string(" *") + closing).c_str());
  case ELEM_VALUE:
    break;
  }
  return cBaseTypeId(text, prefix, elem, closing);
}

// The cast has one more star than what is stored.
static std::string &castText(std::string &text, const AsnType &elem)
{
  const char *closing = elemStorage(elem) == ELEM_VALUE ? " *)" : "*)";
  return storageText(text, " (", elem, closing);
}

// No more elements than the size limit.
static std::string countText(AsnType &list, const std::string &length)
{
  sint64 lower, upper, limit;
  getInt64SizeEndpoints(list, lower, upper, limit);
  if (i64cmp(upper, limit) == 0)
    return length;
  std::string most = i64text(limit);
  return "((" + length + " < " + most + ")? " + length + " : " + most + ")";
}

static void decSeqOfAllocDynArrElemsInOneFrag(AsnType &list, AsnType &elem)
{
  std::string length, text;
  if (cIsControlMember(list))
    perRefLengthDeterminant(length, nullptr, nullptr);
  else
    cGetSize(length, nullptr, list, true, nullptr);
  printfToF(fiDec, "if (%s > 0)", length.c_str());
  cOpenBrace(fiDec);
  wToF(fiDec, cHome(text, nullptr, false, list, true, "elem =").c_str());
  wToF(fiDec, castText(text, elem).c_str());
  wToF(fiDec, "allocAsn (");
  wToF(fiDec,
       cGetHome(text, nullptr, elem, glbDecTypeFuncInfo->gIndex, ",").c_str());
  wToF(fiDec, " MB_STG,");
  // A text of its own: where the line breaks, the blank stays behind.
  wToF(fiDec, " ");
  wToF(fiDec, countText(list, length).c_str());
  wToF(fiDec, " *");
  wToF(fiDec, storageText(text, " sizeof (", elem, "));\n").c_str());
  wToF(fiDec, "if (");
  wToF(fiDec, cHome(text, nullptr, false, list, true, "elem == NULL)").c_str());
  cOpenBrace(fiDec);
  cReportFatalError(fiDec, glbDecTypeFuncInfo->gIndex, "LACK_OF_MEMORY");
  cCloseBrace(fiDec);
  cCloseBrace(fiDec);
}

// --- the length -------------------------------------------------------------

void decDefineArrayIterator(AsnType &list, AsnType &elem)
{
  if (cIsDynamicArray(list)) {
    wToF(fiDec, "/* TODO: allocation of dynamic array */\n");
    wToF(fiDec, "dynamic_array_allocation_not_implemented ();\n");
    typeWarning(list, "Dynamic arrays not yet supported.");
  }
  std::string text;
  wToF(fiDec, cBaseTypeId(text, nullptr, elem, " *iter =").c_str());
  wToF(fiDec, cHome(text, " ", false, list, true, "elem;\n").c_str());
}

static void constructFragments(AsnType &list, AsnType &elem)
{
  bool isArray = perIsArray(list);
  std::string text;
  if (isArray)
    decDefineArrayIterator(list, elem);
  wToF(fiDec, "pd_ConstructFragmentedValue (");
  if (isArray)
    wToF(fiDec, "(BYTE_TYPE *)iter,");
  else
    wToF(fiDec, cHome(text, "(BYTE_TYPE *)", true, list, false, ",").c_str());
  wToF(fiDec, perElemFuncName(text, " df", list, elem, ");\n").c_str());
}

// Text that no compiler takes marks what cannot be decoded.
static void refuseSizeLimit(const AsnType &list)
{
  typeWarning(list, "Decoding of unconstrained SEQUENCE OF's\n"
                    "         are not yet supported with SIZE-LIMIT option");
  wToF(fiDec, "?!?: Invalid decoding follows:\n ");
  wToF(fiDec, "?!?: Decoding of unconstrained SEQUENCE OF's are\n");
  wToF(fiDec, "?!?: not yet supported with SIZE-LIMIT option.\n");
}

// A list of fixed size has no length variable, though the loop over a linked
// one would read it.
void decSeqOfPrefix(AsnType &list, AsnType &elem)
{
  int32_t lower = 0;
  int32_t upper = 0;
  int count = 0;
  int field = perGetSeqOfField(list, lower, upper, count);
  std::string length = "NULL";
  if (field >= SEQOF_LE255 && field <= SEQOF_LE64K) {
    perDefineLengthDeterminant(fiDec);
    perRefLengthDeterminant(length, "&", nullptr);
  }
  std::string text;
  if (!perLengthDeterminantFunctionName(text, "pd_", field, list,
                                        length.c_str(), lower, upper, count,
                                        ";\n")) {
    wToF(fiDec, "?!? Unsupported Sequence-of type!!!\n");
  } else if (!text.empty()) {
    wToF(fiDec, text.c_str());
    if (cIsDynamicArray(list))
      decSeqOfAllocDynArrElemsInOneFrag(list, elem);
  } else if (cIsSizeLimit(list)) {
    refuseSizeLimit(list);
  } else {
    constructFragments(list, elem);
  }
}

// --- the loop ---------------------------------------------------------------

// The action for a surplus of elements is an error.
static void testSizeLimit(int file, AsnType &list, AsnType &elem)
{
  const TypeOptions &options = list.base.typeOptions;
  if (options.sizeLimit == 0 || options.limitAction != 1)
    return;
  std::string text;
  wToF(file, "if (");
  wToF(file, perRefLengthDeterminant(text, nullptr, nullptr).c_str());
  wToF(file, " >");
  printfToF(file, " %d)", options.sizeLimit);
  cOpenBrace(file);
  decSkipError(elem, *glbDecTypeFuncInfo);
  cCloseBrace(file);
}

void decConstructElemLoop(int file, AsnType &elem)
{
  AsnType &list = *getFatherOfTypeComp(elem);
  std::string text;
  if (getVF(list) == VF_LIST) {
    wToF(file,
         cHome(text, "while (listLen (", true, list, false, ") <").c_str());
    wToF(file, perRefLengthDeterminant(text, " ", ")").c_str());
    return;
  }
  testSizeLimit(file, list, elem);
  wToF(file, cNVarRef(text, "while (", " <").c_str());
  if (!cIsControlMember(list)) {
    wToF(file, (" " + limitText(list) + ")").c_str());
    return;
  }
  if (dropsSurplusElems(list)) {
    printfToF(file, " %d &&", list.base.typeOptions.sizeLimit);
    wToF(file, cNVarRef(text, " ", " <").c_str());
  }
  wToF(file, perRefLengthDeterminant(text, " ", ")").c_str());
}

// --- element functions ------------------------------------------------------

bool decBeginElemFunc(const char *prefix, AsnType &list, AsnType &elem)
{
  if (!perIsElemSupported(elem))
    return false;
  cResetVars();
  return perBeginElemFunc(fiDec, prefix, list, elem);
}

static void defineIterator(AsnType &list, AsnType &elem)
{
  std::string text;
  if (perIsArray(list)) {
    wToF(fiDec, cBaseTypeId(text, nullptr, elem, " *iter =").c_str());
    wToF(fiDec, cBaseTypeId(text, " (", elem, " *)*p;\n").c_str());
    return;
  }
  wToF(fiDec, cBaseTypeId(text, nullptr, list, " *home =").c_str());
  wToF(fiDec, cBaseTypeId(text, " (", list, " *)*p;\n").c_str());
  wToF(fiDec, "ASNHOME *a1;\n");
}

static void elemCode(AsnType &elem)
{
  TypeFuncInfo &info = *glbDecTypeFuncInfo;
  if (getTypeOptions(elem).skipKind == 0)
    decSkipElem(elem);
  else if (isLeafType(elem))
    decLeaf(elem, info);
  else
    cVoidFunctionRef(fiDec, info.normalFuncPrefix, info.gIndex, elem);
}

// The place of an array goes back to the caller; a list is appended to, and
// its place stays.
static void elemLoop(AsnType &list, AsnType &elem)
{
  TypeFuncInfo &info = *glbDecTypeFuncInfo;
  bool isArray = perIsArray(list);
  defineIterator(list, elem);
  wToF(fiDec, "while (n)");
  cOpenBrace(fiDec);
  if (!isArray)
    cAppendList(fiDec, list, elem, info.gIndex);
  glbIterHome = isArray;
  perPushElemInCallBack(elem, info);
  elemCode(elem);
  glbIterHome = false;
  wToF(fiDec, isArray ? "iter++;\n" : "incListLen (home);\n");
  perPopPath(elem, info);
  wToF(fiDec, "n--;\n");
  cCloseBrace(fiDec);
  if (isArray)
    wToF(fiDec, "*p = (BYTE_TYPE *)iter;\n");
}

// An unsupported element is passed over silently; the encoder warns.
void decElemCallBack(AsnType &list, AsnType &elem)
{
  if (cIsSizeLimit(list) || !decBeginElemFunc(" df", list, elem))
    return;
  if (getTypeOptions(elem).skipKind == 1)
    decSkipError(elem, *glbDecTypeFuncInfo);
  else
    elemLoop(list, elem);
  cCloseBrace(fiDec);
  cDecAsnHomeVarCount();
}
