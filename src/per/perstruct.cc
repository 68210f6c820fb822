// Bookkeeping of structures: the numbering of local variables, their texts,
// and the walks over optional components and additions.

#include "per/perstruct.h"
#include "base/alloc.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/outfile.h"
#include "model/typeiter.h"
#include "model/typequery.h"

int32_t glbLocalVarNSuffix = -1;

IntStackCell *glbRootOptFieldSetCount;
IntStackCell *glbRootOptFieldLastIndex;
static CacheBlock *cellCache;

constexpr int32_t bitsInWord = 32;

// --- nesting ----------------------------------------------------------------

void pushIntStack(IntStackCell *&top)
{
  IntStackCell *cell = cacheNew<IntStackCell>(cellCache);
  cell->below = top;
  top = cell;
}

void popIntStack(IntStackCell *&top)
{
  if (!top)
    return;
  IntStackCell *below = top->below;
  cacheDelete(top, cellCache);
  top = below;
}

void perInitStructure()
{
  glbLocalVarNSuffix = -1;
}

void perBeginStructure()
{
  ++glbLocalVarNSuffix;
  pushIntStack(glbRootOptFieldSetCount);
  pushIntStack(glbRootOptFieldLastIndex);
}

void perEndStructure()
{
  --glbLocalVarNSuffix;
  popIntStack(glbRootOptFieldSetCount);
  popIntStack(glbRootOptFieldLastIndex);
}

void perSetOptFieldVars(int32_t count)
{
  if (!glbRootOptFieldSetCount || !glbRootOptFieldLastIndex)
    return;
  int32_t bits = count % bitsInWord;
  glbRootOptFieldSetCount->value = (count - 1) / bitsInWord;
  glbRootOptFieldLastIndex->value = count != 0 && bits == 0 ? bitsInWord : bits;
}

// --- variables --------------------------------------------------------------

// A name with its number between two texts.
static std::string &numbered(std::string &text, const char *before,
                             const char *name, const char *after)
{
  return text = formatText("%s%s_%d%s", orEmpty(before), name,
                           glbLocalVarNSuffix, orEmpty(after));
}

static void numberedToF(int file, const char *before, const char *name,
                        const char *after)
{
  std::string text;
  wToF(file, numbered(text, before, name, after).c_str());
}

void perWriteOptFieldRef(int file, int32_t word)
{
  numberedToF(file, nullptr, "optfield", nullptr);
  if (glbRootOptFieldSetCount && glbRootOptFieldSetCount->value > 0)
    printfToF(file, "[%d]", word);
}

void perWriteSetOptField(int file, int32_t bit)
{
  perWriteOptFieldRef(file, bit / bitsInWord);
  printfToF(file, " |= BITL(%d);\n", bit % bitsInWord);
}

void perWriteGetOptField(int file, int32_t bit)
{
  perWriteOptFieldRef(file, bit / bitsInWord);
  printfToF(file, " & BITL(%d)", bit % bitsInWord);
}

void perDefineExtensionBit(int file, const char *initialValue)
{
  numberedToF(file, "BOOLE ", "extensionBit", " =");
  std::string text = formatText(" %s;\n", orEmpty(initialValue));
  wToF(file, text.c_str());
}

void perSetExtensionBit(int file, const char *value)
{
  std::string after = formatText(" = %s;\n", orEmpty(value));
  numberedToF(file, nullptr, "extensionBit", after.c_str());
}

void perRefExtensionBit(int file, const char *before, const char *after)
{
  numberedToF(file, before, "extensionBit", after);
}

// What the definition of a bitmap writes into, while it walks.
static struct AddFieldWalk {
  int file = 0;
  const ExtensionInfo *info = nullptr;
} addFieldWalk;

static void writeMandatoryBit(AsnType &father, AsnType &comp, int)
{
  if (!isTypeExtensionmarker(comp) &&
      perIsExtensionAdditionComponent(&father, comp) &&
      isMandatoryExtensionAdditionComponentOrGroup(comp))
    printfToF(addFieldWalk.file, "|BITL(%d)",
              perExtensionAddFieldIndex(comp, *addFieldWalk.info));
}

void perDefineExtensionAddField(int file, AsnType *type,
                                const ExtensionInfo &info)
{
  numberedToF(file, "sint32 ", "extensionAdditionField", " = 0");
  if (type) {
    addFieldWalk = {file, &info};
    forEachTypeComp(*type, writeMandatoryBit);
    addFieldWalk = {};
  }
  wToF(file, ";\n");
}

void perSetExtensionAddField(int file, const AsnType &comp,
                             const ExtensionInfo &info)
{
  numberedToF(file, nullptr, "extensionAdditionField", " |=");
  printfToF(file, " BITL(%d);\n", perExtensionAddFieldIndex(comp, info));
}

void perRefExtensionAddField(int file, const char *before, const char *after)
{
  numberedToF(file, before, "extensionAdditionField", after);
}

void perDefineExtensionAddCount(int file)
{
  numberedToF(file, "int ", "extensionAdditionCount", " =");
}

void perRefExtensionAddCount(int file, const char *before, const char *after)
{
  numberedToF(file, before, "extensionAdditionCount", after);
}

void perDefineLengthDeterminant(int file)
{
  numberedToF(file, "uint32 ", "len", ";\n");
}

std::string &perRefLengthDeterminant(std::string &text, const char *before,
                                     const char *after)
{
  return numbered(text, before, "len", after);
}

void perDefineOpenCtxBuffer(int file)
{
  numberedToF(file, "ASNPEROPENCTX ", "openctx", ";\n");
}

void perRefOpenCtxBuffer(int file, const char *before, const char *after)
{
  numberedToF(file, before, "openctx", after);
}

void perDefineChoiceVar(int file)
{
  numberedToF(file, "sint8 ", "choice", ";\n");
}

std::string &perGetChoiceVar(std::string &text)
{
  return numbered(text, nullptr, "choice", nullptr);
}

void perRefChoiceVar(int file, const char *before, const char *after)
{
  numberedToF(file, before, "choice", after);
}

// --- walks ------------------------------------------------------------------

// The walk under way. They don't nest but may follow each other inside a
// visit of the type iterators.
static struct PerWalk {
  PerCompVisit *visit = nullptr;
  const ExtensionInfo *info = nullptr;
  int32_t index = 0;
} perWalk;

// Begins a walk and goes back to the one around it at the end of the scope.
struct SavedPerWalk {
  PerWalk outer = perWalk;
  SavedPerWalk(PerCompVisit *visit, const ExtensionInfo &info, int32_t index)
  {
    perWalk = {visit, &info, index};
  }
  ~SavedPerWalk() { perWalk = outer; }
  SavedPerWalk(const SavedPerWalk &) = delete;
  SavedPerWalk &operator=(const SavedPerWalk &) = delete;
};

static void visitNext(AsnType &father, AsnType &comp, int compNbr)
{
  perWalk.visit(father, comp, compNbr, perWalk.index, *perWalk.info);
  --perWalk.index;
}

static void visitOptionalRoot(AsnType &father, AsnType &comp, int compNbr)
{
  if (!isTypeExtensionmarker(comp) && isOptionalTypeComp(comp) &&
      perIsExtensionRootComponent(&father, comp))
    visitNext(father, comp, compNbr);
}

void perForEachOptionalRootComp(AsnType &type, const ExtensionInfo &info,
                                PerCompVisit *visit)
{
  SavedPerWalk walk(visit, info, info.rootOptionalCount - 1);
  forEachTypeComp(type, visitOptionalRoot);
}

static void visitOptionalMember(AsnType &father, AsnType &comp, int compNbr)
{
  if (isOptionalTypeComp(comp))
    visitNext(father, comp, compNbr);
}

void perForEachAdditionGroupComp(AsnType &group, const ExtensionInfo &info,
                                 PerCompVisit *visit)
{
  AsnType *father = getFatherOfTypeComp(group);
  if (!father)
    return;
  SavedPerWalk walk(visit, info, info.addOptionalCount - 1);
  forEachAdditionGroupComp(*father, group, visitOptionalMember);
}

static void visitAddition(AsnType &father, AsnType &comp, int compNbr)
{
  if (perIsExtensionAdditionComponent(&father, comp) &&
      !isTypeExtensionmarker(comp))
    visitNext(father, comp, compNbr);
}

void perForEachExtensionAddComp(AsnType &type, const ExtensionInfo &info,
                                PerCompVisit *visit)
{
  int32_t last = info.addOptionalCount + info.addMandatoryCount - 1;
  if (last < 0)
    return;
  SavedPerWalk walk(visit, info, last);
  forEachTypeComp(type, visitAddition);
}

static void visitMember(AsnType &father, AsnType &comp, int compNbr)
{
  perWalk.visit(father, comp, compNbr, perWalk.index, *perWalk.info);
}

void perForEachExtensionAdditionGroupComp(AsnType &father, AsnType &group,
                                          const ExtensionInfo &info,
                                          PerCompVisit *visit)
{
  SavedPerWalk walk(visit, info, perWalk.index);
  forEachAdditionGroupComp(father, group, visitMember);
}

// --- types ------------------------------------------------------------------

bool perIsSimpleType(const AsnType &type)
{
  switch (getTypeMainType(type)) {
  case TYP_SEQ:
  case TYP_SEQOF:
  case TYP_SET:
  case TYP_SETOF:
  case TYP_CHOICE:
  case TYP_EMB_PDV:
  case TYP_CHASTR:
  case TYP_EXTERNAL:
  case TYP_EXTERNAL_1994:
    return false;
  default:
    return true;
  }
}

bool perIsDefaultKeywordUsedWithSupportedType(const AsnType &comp)
{
  int mainType = getTypeMainType(comp);
  return isDefaultValue(comp) && perIsSimpleType(comp) &&
         (mainType == TYP_BOOLEAN || mainType == TYP_INTEGER ||
          mainType == TYP_ENUM);
}
