// Encoders of ENUMERATED. The home holds the number, the run-time wants its
// place among the sorted numbers, X.691 (2002) clause 13: the code works out
// `index`, by a subtraction where the numbers are contiguous and by a switch
// where they are not. An extensible type's home also tells that a value is of
// an addition that was not known when its module was compiled; its number is
// the place itself.

#include "base/diag.h"
#include "cbet/cfunction.h"
#include "cbet/cgenerate.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "per/enc.h"
#include "per/perenum.h"

// Sorted numbers of the root or of the additions.
struct EncItems {
  const int32_t *values;
  int count;
  bool isContinued;
};

// What stands at the home; a separator or none, and the member.
static void encValueRef(const char *prefix, const AsnType &type, bool extended,
                        const char *member)
{
  bool isDefined = cIsDefinedBaseType(type);
  bool address = isDefined && isExtensibleEnumeratedList(type);
  encRef(prefix, address, type, false, nullptr);
  if (!extended)
    return;
  wToF(fiEnc, isDefined ? "->" : ".");
  wToF(fiEnc, member);
}

static void valueToF(const AsnType &type, bool extended)
{
  encValueRef(nullptr, type, extended, "value");
}

// --- blocks -----------------------------------------------------------------

static void rangeTest(const AsnType &type, const EncItems &items, bool extended)
{
  int32_t lowest = items.values[0];
  if (items.count == 1) {
    wToF(fiEnc, "if (");
    valueToF(type, extended);
    printfToF(fiEnc, " == %d) ", lowest);
  } else {
    printfToF(fiEnc, "if (%d <= ", lowest);
    valueToF(type, extended);
    wToF(fiEnc, " && ");
    valueToF(type, extended);
    printfToF(fiEnc, " <= %d) ", items.values[items.count - 1]);
  }
  cOpenBrace(fiEnc);
}

static void indexBySubtraction(const AsnType &type, const EncItems &items,
                               bool extended)
{
  wToF(fiEnc, "index = ");
  valueToF(type, extended);
  if (items.values[0] != 0)
    printfToF(fiEnc, " - %d", items.values[0]);
  wToF(fiEnc, ";\n");
}

static void beginSwitch(const AsnType &type, const EncItems &items,
                        bool extended)
{
  wToF(fiEnc, "switch (");
  valueToF(type, extended);
  wToF(fiEnc, ") ");
  cOpenBrace(fiEnc);
  for (int i = 0; i < items.count; ++i) {
    printfToF(fiEnc, "case %d:\n", items.values[i]);
    ++fArr[fiEnc].indent;
    wToF(fiEnc, "index = ");
    printfToF(fiEnc, "%d;\n", i);
    wToF(fiEnc, "break;\n");
    --fArr[fiEnc].indent;
  }
  wToF(fiEnc, "default:\n");
  ++fArr[fiEnc].indent;
}

static void endSwitch()
{
  --fArr[fiEnc].indent;
  cCloseBrace(fiEnc);
}

static void beginElse()
{
  wToF(fiEnc, "else ");
  cOpenBrace(fiEnc);
}

static void invalidIndex()
{
  wToF(fiEnc, "index = ASN_ENUM_DUMMY_INDEX_VALUE; /* user error */\n");
}

static void extendedMark()
{
  wToF(fiEnc, "extBit = TRUE;\n");
}

// The call for a place among `count` numbers.
static void genEnumExtRootRTSFunc(const AsnType &type, int count, bool useIndex)
{
  int size = perEnumIndexFunctionToF(fiEnc, "pe_", count);
  if (useIndex)
    wToF(fiEnc, " (index, ");
  else
    encRef(" (", false, type, false, ", ");
  printfToF(fiEnc, "0, %d, %d);\n", count - 1, size);
}

// --- not extensible ---------------------------------------------------------

// No home at all: there is nothing to send.
static void genEncEnumNonExtOneValue()
{
  if (const char *name = perEnumOneValueFunctionName())
    printfToF(fiEnc, "pe_%s (0, 0);\n", name);
  else
    wToF(fiEnc, "ERROR: unknown encoding variant\n");
}

static void genEncEnumNonExtContValSetMinValIsZero(const AsnType &type,
                                                   const EncItems &root)
{
  genEnumExtRootRTSFunc(type, root.count, false);
}

static void genEncEnumNonExtContValSetMinValDiffThanZero(const AsnType &type,
                                                         const EncItems &root)
{
  wToF(fiEnc, "sint32 index;\n");
  rangeTest(type, root, false);
  indexBySubtraction(type, root, false);
  cCloseBrace(fiEnc);
  beginElse();
  invalidIndex();
  cCloseBrace(fiEnc);
  genEnumExtRootRTSFunc(type, root.count, true);
}

static void genEncEnumNonExtNonContValSet(const AsnType &type,
                                          const EncItems &root)
{
  wToF(fiEnc, "sint32 index;\n");
  beginSwitch(type, root, false);
  invalidIndex();
  endSwitch();
  genEnumExtRootRTSFunc(type, root.count, true);
}

static void genContForNonExtEnumNormalFunc(const AsnType &type,
                                           const EncItems &root)
{
  switch (perGetNonExtendedEnumeratedKind(root.count, root.values,
                                          root.isContinued)) {
  case ENUM_ONE_VALUE:
    genEncEnumNonExtOneValue();
    break;
  case ENUM_FROM_ZERO:
    genEncEnumNonExtContValSetMinValIsZero(type, root);
    break;
  case ENUM_FROM_OTHER:
    genEncEnumNonExtContValSetMinValDiffThanZero(type, root);
    break;
  case ENUM_WITH_HOLES:
    genEncEnumNonExtNonContValSet(type, root);
    break;
  default:
    wToF(fiEnc, "ERROR: Unsupported non-extended enumerated definition\n");
    bugInTool("Unsupported non-extended enumerated definition");
  }
}

// --- extensible: the index of a known value ---------------------------------

static void genEncEnumExtContRootValSetNoExtAdd(const AsnType &type,
                                                const EncItems &root,
                                                const EncItems &)
{
  rangeTest(type, root, true);
  indexBySubtraction(type, root, true);
  cCloseBrace(fiEnc);
  beginElse();
  extendedMark();
  invalidIndex();
  cCloseBrace(fiEnc);
}

// The index among contiguous additions, in the branch of what is no root
// value.
static void continuedAdditions(const AsnType &type, const EncItems &additions)
{
  extendedMark();
  rangeTest(type, additions, true);
  indexBySubtraction(type, additions, true);
  cCloseBrace(fiEnc);
  beginElse();
  invalidIndex();
  cCloseBrace(fiEnc);
}

static void additionsWithHoles(const AsnType &type, const EncItems &additions)
{
  extendedMark();
  beginSwitch(type, additions, true);
  invalidIndex();
  endSwitch();
}

static void genEncEnumExtContRootValSetContExtAddValSet(
    const AsnType &type, const EncItems &root, const EncItems &additions)
{
  rangeTest(type, root, true);
  indexBySubtraction(type, root, true);
  cCloseBrace(fiEnc);
  beginElse();
  continuedAdditions(type, additions);
  cCloseBrace(fiEnc);
}

static void genEncEnumExtContRootValSetNonContExtAddValSet(
    const AsnType &type, const EncItems &root, const EncItems &additions)
{
  rangeTest(type, root, true);
  indexBySubtraction(type, root, true);
  cCloseBrace(fiEnc);
  beginElse();
  additionsWithHoles(type, additions);
  cCloseBrace(fiEnc);
}

// No extended mark here: a value outside the root goes out as an invalid
// index of the root.
static void genEncEnumExtNonContRootValSetNoExtAdd(const AsnType &type,
                                                   const EncItems &root,
                                                   const EncItems &)
{
  beginSwitch(type, root, true);
  invalidIndex();
  endSwitch();
}

static void genEncEnumExtNonContRootValSetContExtAddValSet(
    const AsnType &type, const EncItems &root, const EncItems &additions)
{
  beginSwitch(type, root, true);
  continuedAdditions(type, additions);
  endSwitch();
}

static void genEncEnumExtNonContRootValSetNonContExtAddValSet(
    const AsnType &type, const EncItems &root, const EncItems &additions)
{
  beginSwitch(type, root, true);
  additionsWithHoles(type, additions);
  endSwitch();
}

typedef void EncEnumShape(const AsnType &type, const EncItems &root,
                          const EncItems &additions);

// By `ExtendedEnumeratedKind`.
static EncEnumShape *const extendedShapes[] = {
    genEncEnumExtContRootValSetNoExtAdd,
    genEncEnumExtContRootValSetContExtAddValSet,
    genEncEnumExtContRootValSetNonContExtAddValSet,
    genEncEnumExtNonContRootValSetNoExtAdd,
    genEncEnumExtNonContRootValSetContExtAddValSet,
    genEncEnumExtNonContRootValSetNonContExtAddValSet,
};
static_assert(std::size(extendedShapes) == ENUM_EXT_UNSUPPORTED);

static void genContForExtEnumNormalFuncFirstPart(const AsnType &type,
                                                 const EncItems &root,
                                                 const EncItems &additions)
{
  wToF(fiEnc, "sint32 index;\n");
  wToF(fiEnc, "BOOLE extBit = FALSE;\n");
  encValueRef("if (!", type, true, "extended) ");
  cOpenBrace(fiEnc);
  int kind = perGetExtendedEnumeratedKind(
      root.count, root.isContinued, additions.count, additions.isContinued);
  if (kind >= 0 && kind < ENUM_EXT_UNSUPPORTED) {
    extendedShapes[kind](type, root, additions);
  } else {
    wToF(fiEnc, "ERROR: Unsupported extended enumerated definition\n");
    bugInTool("Unsupported extended enumerated definition");
  }
  cCloseBrace(fiEnc);
}

// --- extensible: unknown additions, and the calls ---------------------------

static void genEnumExtAddRTSFunc()
{
  if (const char *name = perNormSmallNumberFunctionName()) {
    printfToF(fiEnc, "pe_%s (index);\n", name);
    return;
  }
  wToF(fiEnc, " ERROR: unknown encoding variant\n");
  bugInTool("Unknown encoding variant");
}

static void genContForExtEnumNormalFuncSecndPart(const AsnType &type,
                                                 int rootCount)
{
  beginElse();
  extendedMark();
  encValueRef("index = ", type, true, "value;\n");
  cCloseBrace(fiEnc);
  wToF(fiEnc, "pe_extensionBit (extBit);\n");
  wToF(fiEnc, "if (!extBit) ");
  cOpenBrace(fiEnc);
  genEnumExtRootRTSFunc(type, rootCount, true);
  cCloseBrace(fiEnc);
  beginElse();
  genEnumExtAddRTSFunc();
  cCloseBrace(fiEnc);
}

// --- the type ---------------------------------------------------------------

static void genContentsForEncEnumNormalFunc(AsnType &type, int rootCount,
                                            const int32_t *rootValues,
                                            bool rootIsContinued, int addCount,
                                            const int32_t *addValues,
                                            bool addIsContinued)
{
  EncItems root = {rootValues, rootCount, rootIsContinued};
  EncItems additions = {addValues, addCount, addIsContinued};
  switch (perGetEnumeratedKind(addCount)) {
  case ENUM_NOT_EXTENSIBLE:
    genContForNonExtEnumNormalFunc(type, root);
    break;
  case ENUM_EXTENSIBLE:
    // The decoder's parts write these braces themselves.
    cOpenBrace(fiEnc);
    genContForExtEnumNormalFuncFirstPart(type, root, additions);
    genContForExtEnumNormalFuncSecndPart(type, rootCount);
    cCloseBrace(fiEnc);
    break;
  default:
    wToF(fiEnc, "ERROR: Unsupported enumerated definition\n");
    bugInTool("Unsupported enumerated definition");
  }
}

void encEnum(AsnType &type, TypeFuncInfo &info)
{
  if (cIsDefinedBaseType(type))
    cVoidFunctionRef(fiEnc, info.normalFuncPrefix, info.gIndex, type);
  else
    forSortedEnumeratedValueArray(type, genContentsForEncEnumNormalFunc);
}

static void enumBody(AsnType &type, TypeFuncInfo &)
{
  forSortedEnumeratedValueArray(type, genContentsForEncEnumNormalFunc);
}

void encEnumNormalFunc(AsnType &type, TypeFuncInfo &info)
{
  cNormalFunction(type, info, enumBody);
}
