// Decoders of ENUMERATED: an index is read and turned into the number at its
// place among the sorted numbers, X.691 (2002) clause 13, by an addition
// where the numbers are contiguous and by a switch where they are not. An
// extensible type keeps the index of an unknown addition as its value.

#include "base/diag.h"
#include "cbet/cfunction.h"
#include "cbet/cgenerate.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include "model/valueiter.h"
#include "per/dec.h"
#include "per/perenum.h"
#include "per/perint.h"
#include "per/variant.h"

// Sorted numbers of the root or of the additions.
struct DecItems {
  const int32_t *values;
  int count;
  bool isContinued;
};

// The home is a pointer though the type has no function of its own.
static bool homeIsPointer;

static bool isThroughPointer(const AsnType &type)
{
  return homeIsPointer || cIsDefinedBaseType(type);
}

// What stands at the home; a separator or none, and the member.
static void homeToF(const AsnType &type, bool extended, const char *member)
{
  bool throughPointer = isThroughPointer(type);
  bool address = throughPointer && isExtensibleEnumeratedList(type);
  decRef(nullptr, address, type, false, nullptr);
  if (extended)
    wToF(fiDec, throughPointer ? "->" : ".");
  wToF(fiDec, member);
}

// --- blocks -----------------------------------------------------------------

static void beginSwitch(const AsnType &type, const DecItems &items,
                        bool extended)
{
  wToF(fiDec, "switch (index) ");
  cOpenBrace(fiDec);
  for (int i = 0; i < items.count; ++i) {
    printfToF(fiDec, "case %d:\n", i);
    ++fArr[fiDec].indent;
    homeToF(type, extended, extended ? "value" : nullptr);
    printfToF(fiDec, " = %d;\n", items.values[i]);
    wToF(fiDec, "break;\n");
    --fArr[fiDec].indent;
  }
  wToF(fiDec, "default:\n");
  ++fArr[fiDec].indent;
}

// An encoder's default falls out of the switch without a "break".
static void endSwitch()
{
  wToF(fiDec, "break;\n");
  --fArr[fiDec].indent;
  cCloseBrace(fiDec);
}

static void substitution(const AsnType &type, const DecItems &items,
                         bool extended)
{
  homeToF(type, extended, extended ? "value = index" : " = index");
  if (items.values[0] != 0)
    printfToF(fiDec, " + %d", items.values[0]);
  wToF(fiDec, ";\n");
}

static void unknownAddition(const AsnType &type)
{
  homeToF(type, true, "extended = TRUE;\n");
  homeToF(type, true, "value = index;\n");
}

static void additionIndex()
{
  if (const char *name = perNormSmallNumberFunctionName()) {
    printfToF(fiDec, "index = pd_%s ();\n", name);
    return;
  }
  wToF(fiDec, " ERROR: unknown encoding variant\n");
  bugInTool("Unknown encoding variant");
}

static void beginElse()
{
  wToF(fiDec, "else ");
  cOpenBrace(fiDec);
}

// The call for a place among `count` numbers. The ending follows the home of
// the type even where `index` takes the value.
static void genEnumExtRootRTSFunc(const AsnType &type, int count, bool useIndex,
                                  bool extended)
{
  int size = perEnumIndexFunctionToF(fiDec, "pd_", count);
  if (!extended && encodingVariant2Index(perGetEncodingVariant()) >= 0)
    wToF(fiDec, decConstrainedWholeNumberSuff(type, INT_CONSTRAINED));
  if (useIndex)
    wToF(fiDec, " (&index, ");
  else
    decRef(" (", true, type, false, ", ");
  printfToF(fiDec, "0, %d, %d);\n", count - 1, size);
}

// --- not extensible ---------------------------------------------------------

// With the home; an encoder has none to send.
static void genDecEnumNonExtOneValue(const AsnType &type)
{
  const char *name = perEnumOneValueFunctionName();
  if (!name) {
    wToF(fiDec, "ERROR: unknown encoding variant\n");
    return;
  }
  printfToF(fiDec, "pd_%s", name);
  decRef(" (", true, type, false, ", ");
  wToF(fiDec, "0);\n");
}

static void genDecEnumNonExtContValSetMinValIsZero(const AsnType &type,
                                                   const DecItems &root)
{
  genEnumExtRootRTSFunc(type, root.count, false, false);
}

static void genDecEnumNonExtContValSetMinValDiffThanZero(const AsnType &type,
                                                         const DecItems &root)
{
  wToF(fiDec, "sint32 index;\n");
  genEnumExtRootRTSFunc(type, root.count, true, false);
  substitution(type, root, false);
}

static void genDecEnumNonExtNonContValSet(const AsnType &type,
                                          const DecItems &root)
{
  wToF(fiDec, "sint32 index;\n");
  genEnumExtRootRTSFunc(type, root.count, true, false);
  beginSwitch(type, root, false);
  endSwitch();
}

static void genContForNonExtEnumNormalFunc(const AsnType &type,
                                           const DecItems &root)
{
  switch (perGetNonExtendedEnumeratedKind(root.count, root.values,
                                          root.isContinued)) {
  case ENUM_ONE_VALUE:
    genDecEnumNonExtOneValue(type);
    break;
  case ENUM_FROM_ZERO:
    genDecEnumNonExtContValSetMinValIsZero(type, root);
    break;
  case ENUM_FROM_OTHER:
    genDecEnumNonExtContValSetMinValDiffThanZero(type, root);
    break;
  case ENUM_WITH_HOLES:
    genDecEnumNonExtNonContValSet(type, root);
    break;
  default:
    wToF(fiDec, "ERROR: Unsupported non-extended enumerated definition\n");
    bugInTool("Unsupported non-extended enumerated definition");
  }
}

// --- extensible: root -------------------------------------------------------

static void continuedRoot(const AsnType &type, const DecItems &root)
{
  genEnumExtRootRTSFunc(type, root.count, true, true);
  substitution(type, root, true);
}

static void rootWithHoles(const AsnType &type, const DecItems &root)
{
  genEnumExtRootRTSFunc(type, root.count, true, true);
  beginSwitch(type, root, true);
  endSwitch();
}

static void genDecEnumExtContRootValSetNoExtAddFP(const AsnType &type,
                                                  const DecItems &root)
{
  continuedRoot(type, root);
}

static void genDecEnumExtContRootValSetContExtAddValSetFP(const AsnType &type,
                                                          const DecItems &root)
{
  continuedRoot(type, root);
}

static void
genDecEnumExtContRootValSetNonContExtAddValSetFP(const AsnType &type,
                                                 const DecItems &root)
{
  continuedRoot(type, root);
}

static void genDecEnumExtNonContRootValSetNoExtAddFP(const AsnType &type,
                                                     const DecItems &root)
{
  rootWithHoles(type, root);
}

static void
genDecEnumExtNonContRootValSetContExtAddValSetFP(const AsnType &type,
                                                 const DecItems &root)
{
  rootWithHoles(type, root);
}

static void
genDecEnumExtNonContRootValSetNonContExtAddValSetFP(const AsnType &type,
                                                    const DecItems &root)
{
  rootWithHoles(type, root);
}

// --- extensible: additions --------------------------------------------------

static void noAdditions(const AsnType &type)
{
  additionIndex();
  unknownAddition(type);
}

static void continuedAdditions(const AsnType &type, const DecItems &additions)
{
  additionIndex();
  if (additions.count == 1)
    wToF(fiDec, "if (index == 0) ");
  else
    printfToF(fiDec, "if (0 <= index && index <= %d) ", additions.count - 1);
  cOpenBrace(fiDec);
  substitution(type, additions, true);
  cCloseBrace(fiDec);
  beginElse();
  unknownAddition(type);
  cCloseBrace(fiDec);
}

static void additionsWithHoles(const AsnType &type, const DecItems &additions)
{
  additionIndex();
  beginSwitch(type, additions, true);
  unknownAddition(type);
  endSwitch();
}

static void genDecEnumExtContRootValSetNoExtAddSP(const AsnType &type,
                                                  const DecItems &)
{
  noAdditions(type);
}

static void
genDecEnumExtContRootValSetContExtAddValSetSP(const AsnType &type,
                                              const DecItems &additions)
{
  continuedAdditions(type, additions);
}

static void
genDecEnumExtContRootValSetNonContExtAddValSetSP(const AsnType &type,
                                                 const DecItems &additions)
{
  additionsWithHoles(type, additions);
}

static void genDecEnumExtNonContRootValSetNoExtAddSP(const AsnType &type,
                                                     const DecItems &)
{
  noAdditions(type);
}

static void
genDecEnumExtNonContRootValSetContExtAddValSetSP(const AsnType &type,
                                                 const DecItems &additions)
{
  continuedAdditions(type, additions);
}

static void
genDecEnumExtNonContRootValSetNonContExtAddValSetSP(const AsnType &type,
                                                    const DecItems &additions)
{
  additionsWithHoles(type, additions);
}

// --- extensible -------------------------------------------------------------

typedef void DecEnumPart(const AsnType &type, const DecItems &items);

// By `ExtendedEnumeratedKind`: the part for the root, and for the additions.
static const struct {
  DecEnumPart *first;
  DecEnumPart *second;
} extendedShapes[] = {
    {genDecEnumExtContRootValSetNoExtAddFP,
     genDecEnumExtContRootValSetNoExtAddSP},
    {genDecEnumExtContRootValSetContExtAddValSetFP,
     genDecEnumExtContRootValSetContExtAddValSetSP},
    {genDecEnumExtContRootValSetNonContExtAddValSetFP,
     genDecEnumExtContRootValSetNonContExtAddValSetSP},
    {genDecEnumExtNonContRootValSetNoExtAddFP,
     genDecEnumExtNonContRootValSetNoExtAddSP},
    {genDecEnumExtNonContRootValSetContExtAddValSetFP,
     genDecEnumExtNonContRootValSetContExtAddValSetSP},
    {genDecEnumExtNonContRootValSetNonContExtAddValSetFP,
     genDecEnumExtNonContRootValSetNonContExtAddValSetSP},
};
static_assert(std::size(extendedShapes) == ENUM_EXT_UNSUPPORTED);

static void unsupportedShape()
{
  wToF(fiDec, "ERROR: Unsupported extended enumerated definition\n");
  bugInTool("Unsupported extended enumerated definition");
}

static bool isShape(int kind)
{
  return kind >= 0 && kind < ENUM_EXT_UNSUPPORTED;
}

// The parts write the braces; the encoder has them around both.
static void genContForExtEnumNormalFuncFirstPart(const AsnType &type, int kind,
                                                 const DecItems &root)
{
  cOpenBrace(fiDec);
  wToF(fiDec, "sint32 index;\n");
  homeToF(type, true, "extended = FALSE;\n");
  wToF(fiDec, "if (!pd_extensionBit ()) ");
  cOpenBrace(fiDec);
  if (isShape(kind))
    extendedShapes[kind].first(type, root);
  else
    unsupportedShape();
  cCloseBrace(fiDec);
}

static void genContForExtEnumNormalFuncSecndPart(const AsnType &type, int kind,
                                                 const DecItems &additions)
{
  beginElse();
  if (isShape(kind))
    extendedShapes[kind].second(type, additions);
  else
    unsupportedShape();
  cCloseBrace(fiDec);
  cCloseBrace(fiDec);
}

// --- the type ---------------------------------------------------------------

static void genContentsForDecEnumNormalFunc(AsnType &type, int rootCount,
                                            const int32_t *rootValues,
                                            bool rootIsContinued, int addCount,
                                            const int32_t *addValues,
                                            bool addIsContinued)
{
  DecItems root = {rootValues, rootCount, rootIsContinued};
  DecItems additions = {addValues, addCount, addIsContinued};
  int kind = perGetExtendedEnumeratedKind(rootCount, rootIsContinued, addCount,
                                          addIsContinued);
  switch (perGetEnumeratedKind(addCount)) {
  case ENUM_NOT_EXTENSIBLE:
    genContForNonExtEnumNormalFunc(type, root);
    break;
  case ENUM_EXTENSIBLE:
    genContForExtEnumNormalFuncFirstPart(type, kind, root);
    genContForExtEnumNormalFuncSecndPart(type, kind, additions);
    break;
  default:
    wToF(fiDec, "ERROR: Unsupported enumerated definition\n");
    bugInTool("Unsupported enumerated definition");
  }
}

void decEnumContents(AsnType &type, bool isPointer)
{
  homeIsPointer = isPointer;
  forSortedEnumeratedValueArray(type, genContentsForDecEnumNormalFunc);
  homeIsPointer = false;
}

void decEnum(AsnType &type, TypeFuncInfo &info)
{
  if (cIsDefinedBaseType(type))
    cVoidFunctionRef(fiDec, info.normalFuncPrefix, info.gIndex, type);
  else
    decEnumContents(type, false);
}

static void enumBody(AsnType &type, TypeFuncInfo &)
{
  decEnumContents(type, false);
}

void decEnumNormalFunc(AsnType &type, TypeFuncInfo &info)
{
  cNormalFunction(type, info, enumBody);
}
