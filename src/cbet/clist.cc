// Lists in generated code: initialisation, sizes, loops, bounds, and the gaps
// of value sets.

#include "cbet/clist.h"
#include "base/int64.h"
#include "base/strings.h"
#include "cbet/cgenstate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "model/valuesetbuild.h"

static bool isLinkedList(const AsnType &type)
{
  return getVF(type) == VF_LIST;
}

static const char tooLarge[] = "Size constraint upper bound > MAXINT32";

// The most elements or characters that the C type takes; 0 and a warning if
// the number does not fit in 32 bits.
static int32_t sizeLimitOf(const AsnType &type)
{
  sint64 lower, upper, limit;
  getInt64SizeEndpoints(type, lower, upper, limit);
  return int64ToInt32(limit, getModuleOfType(type), getTypeDefinitionLine(type),
                      tooLarge);
}

// --- initialisation and size ------------------------------------------------

void cInitList(int file, AsnType &type)
{
  std::string text;
  const char *zero = getVFSize(type) == 0 ? "0" : "";
  if (isLinkedList(type))
    wToF(file, "listInit (");
  else if (testTypeOption(type, optDynamicArray))
    printfToF(file, "dynArr%sInit (", zero);
  else
    printfToF(file, "staArr%sInit (", zero);
  wToF(file, cStructHomeRef(text, nullptr, true, type, nullptr).c_str());
  wToF(file, ");\n");
}

static std::string call(const char *function, AsnType &type)
{
  std::string text;
  return formatText("%s (", function) +
         cHome(text, nullptr, true, type, false, ")");
}

static std::string memberlessSize(int32_t limit, bool useConstant)
{
  std::string text;
  return useConstant ? std::to_string(limit) : cNVarRef(text, nullptr, nullptr);
}

static std::string arraySize(AsnType &type, int32_t limit, bool useConstant)
{
  std::string text;
  bool isDynamic = testTypeOption(type, optDynamicArray);
  switch (getVFSize(type)) {
  case VF_NONE:
    return memberlessSize(limit, useConstant);
  case VF_UI8:
  case VF_UI16:
  case VF_UI32:
  case VF_I8:
  case VF_I16:
  case VF_I32:
    return cStructHomeRef(text, isDynamic ? "dynArrLen (" : "staArrLen (", true,
                          type, ")");
  default:
    return "";
  }
}

// Empty for a format without a size.
static std::string sizeOf(AsnType &type, bool useConstant)
{
  int32_t limit = sizeLimitOf(type);
  switch (getVF(type)) {
  case VF_STAS0:
  case VF_DYNS0:
  case VF_BMPSTR0:
    return memberlessSize(limit, useConstant);
  case VF_STAS8:
  case VF_STAS16:
  case VF_STAS:
    return call("staStrLen", type);
  case VF_DYNS8:
  case VF_DYNS16:
  case VF_DYNS:
  case VF_BMPSTR8:
  case VF_BMPSTR16:
  case VF_BMPSTR:
    return call("dynStrLen", type);
  case VF_LIST:
    return call("listLen", type);
  case VF_STRU:
    return arraySize(type, limit, useConstant);
  default:
    return "";
  }
}

std::string &cGetSize(std::string &text, const char *prefix, AsnType &type,
                      bool useConstant, const char *suffix)
{
  text = sizeOf(type, useConstant);
  if (text.empty())
    return text;
  return text = orEmpty(prefix) + text + orEmpty(suffix);
}

void cSizeToF(int file, const char *prefix, AsnType &type, bool useConstant,
              const char *suffix)
{
  std::string size = sizeOf(type, useConstant);
  wToF(file, (orEmpty(prefix) + size + orEmpty(suffix)).c_str());
}

void cIncListSize(int file, AsnType &type)
{
  if (!isListType(type))
    return;
  std::string text;
  if (getVFSize(type) == 0) {
    wToF(file, cNVarRef(text, nullptr, "++;\n").c_str());
    return;
  }
  if (cIsStaticArray(type))
    wToF(file, "incStaArrLen (");
  else if (cIsDynamicArray(type))
    wToF(file, "incDynArrLen (");
  else
    wToF(file, "incListLen (");
  wToF(file, cStructHomeRef(text, nullptr, true, type, nullptr).c_str());
  wToF(file, ");\n");
}

// --- loops ------------------------------------------------------------------

// An inline list that lives in a home of its own is named by the variable
// that is bound to it.
static bool isNamedAsStructure(AsnType &list)
{
  const AsnType *father = getFatherOfTypeComp(list);
  return father && !cIsDefinedBaseType(list) &&
         (isLinkedList(*father) || cIsHometab(*father) ||
          testTypeOption(*father, optAsnhc));
}

static void firstItem(int file, AsnType &list, bool reverse)
{
  std::string text;
  const char *function = reverse ? " lastListItem (" : " firstListItem (";
  if (isNamedAsStructure(list))
    cStructHomeRef(text, function, true, list, ");");
  else
    cHome(text, function, true, list, false, ");");
  wToF(file, text.c_str());
}

// The new iterator is not in scope where the list is named: its element may
// be a list in turn.
static void beginListLoop(int file, AsnType &list, bool reverse)
{
  std::string text;
  cIncAsnHomeVarCount();
  cAsnHomeVarDef(file);
  wToF(file, cAsnHomeVarRef(text, "for (", " =").c_str());
  cDecAsnHomeVarCount();
  firstItem(file, list, reverse);
  cIncAsnHomeVarCount();
  const char *next = reverse ? " prevListItem (" : " nextListItem (";
  wToF(file, cAsnHomeVarRef(text, " ", ";").c_str());
  wToF(file, cAsnHomeVarRef(text, " ", " =").c_str());
  wToF(file, cAsnHomeVarRef(text, next, "))").c_str());
}

static void beginArrayLoop(int file, AsnType &list, bool reverse)
{
  std::string n;
  cIncNVarCount();
  cNVarDef(file);
  cNVarRef(n, nullptr, nullptr);
  cDecNVarCount();
  if (reverse)
    printfToF(file, "for (%s = ", n.c_str());
  else
    printfToF(file, "for (%s = 0; %s < ", n.c_str(), n.c_str());
  cSizeToF(file, nullptr, list, true, ";");
  printfToF(file, reverse ? " %s > 0;)" : " %s++)", n.c_str());
  cIncNVarCount();
}

void cBeginForLoop(int file, AsnType &list, AsnType &, int reverse)
{
  cOpenBrace(file);
  if (isLinkedList(list))
    beginListLoop(file, list, reverse != 0);
  else
    beginArrayLoop(file, list, reverse != 0);
  cOpenBrace(file);
  std::string text;
  if (!isLinkedList(list) && reverse == 1)
    wToF(file, cNVarRef(text, nullptr, "--;\n").c_str());
}

static void endLoop(int file)
{
  cCloseBrace(file);
  cCloseBrace(file);
}

void cEndForLoop(int file, AsnType &list)
{
  if (isLinkedList(list))
    cDecAsnHomeVarCount();
  else
    cDecNVarCount();
  endLoop(file);
}

void cBeginWhileLoop(int file, AsnType &type, AsnType *, const char *condition)
{
  cOpenBrace(file);
  if (isLinkedList(type)) {
    cIncAsnHomeVarCount();
    cAsnHomeVarDef(file);
  } else {
    cIncNVarCount();
    cNVarDef(file);
  }
  wToF(file, "while (");
  printfToF(file, "%s)", condition);
  cOpenBrace(file);
}

void cEndWhileLoop(int file, AsnType &type, AsnType *)
{
  std::string text;
  if (isLinkedList(type)) {
    cDecAsnHomeVarCount();
    cIncListSize(file, type);
  } else {
    cIncListSize(file, type);
    if (getVFSize(type) != 0)
      wToF(file, cNVarRef(text, nullptr, "++;\n").c_str());
    cDecNVarCount();
  }
  endLoop(file);
}

// --- upper bound ------------------------------------------------------------

// Unlike a size, the limit is written whole, however large it is.
static void cCheckListUpperBoundEngine(int file, AsnType &comp,
                                       const char *action, bool report)
{
  AsnType &list = *getFatherOfTypeComp(comp);
  sint64 lower, upper, limit;
  getInt64SizeEndpoints(list, lower, upper, limit);
  if (i64ismax(upper))
    return;
  int32_t narrow = 0;
  if (!i64tol(limit, narrow))
    int64Warning(*getModuleOfType(list), getTypeDefinitionLine(list), tooLarge);
  cSizeToF(file, "if (", list, false, " >=");
  printfToF(file, " %s%s)", i64text(limit).c_str(),
            getVFSize(list) == VF_I32 ? "L" : "");
  cOpenBrace(file);
  wToF(file, action);
  if (report)
    cReportError(file, "AM_FAIL");
  else
    wToF(file, "break;\n");
  cCloseBrace(file);
}

void cCheckListUpperBound(int file, AsnType &comp)
{
  cCheckListUpperBoundEngine(file, comp, nullptr, true);
}

void cCheckListUpperBoundWithBreak(int file, AsnType &comp)
{
  cCheckListUpperBoundEngine(file, comp, nullptr, false);
}

void cCheckListUpperBoundWithActionAndBreak(int file, AsnType &comp,
                                            const char *action)
{
  cCheckListUpperBoundEngine(file, comp, action, false);
}

// --- value sets -------------------------------------------------------------

// Of the walk over the segments.
static struct GapTest {
  int file = 0;
  int last = 0;  // position of the last segment
  std::string value;
} gapTest;

// A gap reaches from one segment to the next: each but the outer ones ends a
// gap and begins one.
static void gapsOfSegment(AsnType &, const Int64Pair &pair, int index)
{
  int file = gapTest.file;
  const char *value = gapTest.value.c_str();
  std::string lower = i64text(pair.lower);
  std::string upper = i64text(pair.upper);
  if (index > 0)
    wToF(file, " && ");
  if (index == 0)
    printfToF(file, "(%s < %s", upper.c_str(), value);
  else if (index == gapTest.last)
    printfToF(file, "%s < %s)", value, lower.c_str());
  else
    printfToF(file, "%s < %s) || (%s < %s", value, lower.c_str(), upper.c_str(),
              value);
}

static void passSegment(AsnType &, const Int64Pair &, int) {}

// A set without any segment has no gap to name, yet it is not simple: the
// brackets of its condition stay empty.
bool cCheckIntegerValueSet(int file, AsnType &type)
{
  if (isSimpleIntegerValueSet(type))
    return false;
  gapTest.file = file;
  gapTest.last = forInt64ValueSet(type, passSegment) - 1;
  bool inMember = isExtensibleEnumeratedList(type);
  cHome(gapTest.value, nullptr, false, type, inMember,
        inMember ? "value" : nullptr);
  wToF(file, "if (");
  forInt64ValueSet(type, gapsOfSegment);
  wToF(file, ")");
  return true;
}
