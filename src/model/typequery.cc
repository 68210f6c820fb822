// What may be asked of a type.

#include "model/typequery.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/typeiter.h"
#include "options/fixrec.h"
#include <cstdio>
#include <cstring>

// The printed name of a fix record.
static std::string printed(const FixRec &fix)
{
  std::string text;
  return printFixRec(text, nullptr, fix, nullptr);
}

// The plain ASN.1 name of a fix record, null reading as empty.
static std::string plainName(const FixRec &fix)
{
  return orEmpty(fix.id);
}

// --- fields -----------------------------------------------------------------

AsnModule *getModuleOfType(const AsnType &type)
{
  return type.homeMod;
}

AsnType *getFatherOfTypeComp(const AsnType &type)
{
  return type.father;
}

const TypeOptions &getTypeOptions(const AsnType &type)
{
  return type.typeOptions;
}

int getTypeMainType(const AsnType &type)
{
  return type.base.mainType;
}

int32_t getTypeCompStatus(const AsnType &type)
{
  return type.compStatus;
}

int32_t getBaseTypeCompStatus(const AsnType &type)
{
  return type.base.compStatus;
}

int32_t getNrOfTypeComps(const AsnType &type)
{
  return type.base.nrComps;
}

int32_t getTypeCompNbr(const AsnType &type)
{
  return type.compNbr;
}

int getVF(const AsnType &type)
{
  return type.base.valueField;
}

int getVFSize(const AsnType &type)
{
  return type.base.valueFieldSize;
}

// --- texts ------------------------------------------------------------------

static const char missingName[] = "?!?";

std::string &getValueField(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix)
{
  return between(text, prefix, vfIdName(getVF(type)), suffix);
}

std::string &getTypeCompStatusStri(std::string &text, const char *prefix,
                                   const AsnType &type, const char *suffix)
{
  return between(text, prefix, compStatusName(type.compStatus), suffix);
}

std::string &getTypeMainTypeStri(std::string &text, const char *prefix,
                                 const AsnType &type, const char *suffix)
{
  int mainType = type.base.mainType;
  return between(text, prefix,
                 mainType < TYP_COUNT ? typeRow(mainType).name : "", suffix);
}

static const char *asnNameOf(int mainType)
{
  return orEmpty(typeRow(mainType).asnName);
}

std::string &getTypeMainTypeRef(std::string &text, const char *prefix,
                                const AsnType &type, const char *suffix)
{
  int mainType = type.base.mainType;
  return between(text, prefix,
                 mainType < TYP_SYNONYM ? asnNameOf(mainType) : "", suffix);
}

std::string &getTypeRef(std::string &text, const char *prefix,
                        const AsnType &type, const char *suffix)
{
  return between(text, prefix, plainName(type.compFix), suffix);
}

std::string &getBaseTypeRef(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix)
{
  return between(text, prefix,
                 isLeafType(type) ? asnNameOf(type.base.mainType)
                                  : plainName(type.baseFix),
                 suffix);
}

std::string &getDefTypeId(std::string &text, const char *prefix,
                          const AsnType &type, const char *suffix)
{
  std::string id = isDefinedType(type)       ? printed(type.compFix)
                   : isDefinedBaseType(type) ? printed(type.baseFix)
                                             : missingName;
  return between(text, prefix, id, suffix);
}

std::string &getDefBaseTypeId(std::string &text, const char *prefix,
                              const AsnType &type, const char *suffix)
{
  std::string id =
      isDefinedBaseType(type) ? printed(type.baseFix) : "?!?NOT-A-DEFINED-TYPE";
  return between(text, prefix, id, suffix);
}

// Types that have a name of their own in C.
static bool isNamedInC(int mainType)
{
  return mainType == TYP_ENUM ||
         (mainType >= TYP_SEQ && mainType <= TYP_CHOICE);
}

std::string &getBaseTypeId(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix)
{
  std::string id = isNamedInC(type.base.mainType)
                       ? printed(type.baseFix)
                       : std::string(targetLangType(getVF(type)));
  return between(text, prefix, id.empty() ? missingName : id, suffix);
}

std::string &getTypeCompId(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix)
{
  return between(text, prefix,
                 isComponentType(type) ? printed(type.compFix) : missingName,
                 suffix);
}

std::string &getTypeCompRef(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix)
{
  return between(text, prefix,
                 isComponentType(type) ? plainName(type.compFix) : missingName,
                 suffix);
}

std::string &getTypeIdConvFix(std::string &text, const char *prefix,
                              const AsnType &type, const char *suffix,
                              const FixRec &fix)
{
  FixRec named;
  copyFixRec(named, fix, orEmpty(type.compFix.id),
             type.compModRec->options.nameLen);
  return between(text, prefix, printed(named), suffix);
}

std::string &getTypeIdConvKindRaw(std::string &text, const char *prefix,
                                  const AsnType &type, const char *suffix,
                                  int kind)
{
  return getTypeIdConvFix(text, prefix, type, suffix,
                          fixRecForKind(type.homeMod->rec->options, kind));
}

int getTypeElemMainType(const AsnType &type)
{
  if (!isListType(type))
    return TYP_NONE;
  // By the record in the buffer, not by the view: its caller has it there.
  SavedNode saved(REC_TNODE);
  readRec(getModPtr(type.baseModRec, type.base.refModule), REC_TNODE,
          tNode.ref);
  skipTypes(true);
  return tNode.mainType;
}

// --- kinds of types ---------------------------------------------------------

bool isDefinedType(const AsnType &type)
{
  return type.compStatus == TCS_HEADER;
}

bool isDefinedBaseType(const AsnType &type)
{
  return type.base.compStatus == TCS_HEADER;
}

bool isSynonymType(const AsnType &type)
{
  return isDefinedType(type) && type.firstMainType == TYP_SYNONYM;
}

bool isSelectionType(const AsnType &type)
{
  return type.base.mainType == TYP_SELECTION;
}

bool isAnyDefinedByType(const AsnType &type)
{
  return type.base.mainType == TYP_ANY && type.base.fieldRef != 0;
}

bool isComponentType(const AsnType &type)
{
  return type.compStatus == TCS_MANDATORY || type.compStatus == TCS_OPTIONAL ||
         type.compStatus == TCS_CHOICE;
}

bool isElemType(const AsnType &type)
{
  return type.compStatus == TCS_MULTIPLE;
}

bool isCompOrElemType(const AsnType &type)
{
  return isComponentType(type) || isElemType(type);
}

static bool isStructured(int mainType)
{
  return mainType == TYP_SEQ || mainType == TYP_SET || mainType == TYP_CHOICE;
}

bool isStructuredType(const AsnType &type)
{
  return isStructured(type.base.mainType);
}

bool isListType(const AsnType &type)
{
  return type.base.mainType == TYP_SEQOF || type.base.mainType == TYP_SETOF;
}

static bool isExtensible(const AsnType &type)
{
  return type.base.nodeFlags & NF_EXTENSIBLE;
}

bool isLeafType(const AsnType &type)
{
  int mainType = type.base.mainType;
  bool plain =
      mainType == TYP_ENUM || !isExtensible(type) || !isStructured(mainType);
  return (type.base.nrComps == 0 && mainType != TYP_EXTADDGRP && plain) ||
         testTypeOption(type, optSkip);
}

bool isCVLeafType(const AsnType &type)
{
  return isLeafType(type) || isListType(type);
}

bool isRestrCharStringType(const AsnType &type)
{
  int mainType = type.base.mainType;
  return (mainType >= TYP_NUMSTR && mainType <= TYP_UNISTR) ||
         mainType == TYP_OBJDESCR;
}

bool isTypeWithPredefinedTag(const AsnType &type)
{
  int mainType = type.base.mainType;
  return mainType != TYP_CHOICE && mainType != TYP_ANY && mainType != TYP_OPEN;
}

bool isMandatoryTypeComp(const AsnType &type)
{
  return type.compStatus == TCS_MANDATORY;
}

bool isOptionalTypeComp(const AsnType &type)
{
  return type.compStatus == TCS_OPTIONAL;
}

bool isMandatoryTypeComps(const AsnType &type)
{
  return type.base.nodeFlags & NF_MANDATORY_COMPS;
}

bool isOptionalTypeComps(const AsnType &type)
{
  return type.base.nodeFlags & NF_OPTIONAL_COMPS;
}

bool isUntaggedChoiceOrOpenTypeComps(const AsnType &type)
{
  return type.base.nodeFlags & NF_UNTAGGED_COMPS;
}

bool isRecursiveBaseType(const AsnType &type)
{
  return type.base.nodeFlags & NF_RECURSIVE;
}

bool isRecursiveType(const AsnType &type)
{
  return type.nodeFlags & NF_RECURSIVE;
}

bool isInstantiatedType(const AsnType &type)
{
  return type.nodeFlags & NF_INSTANTIATED;
}

bool isTopLevelInstantiatedType(const AsnType &type)
{
  return type.nodeFlags & NF_TOP_LEVEL_INSTANTIATED;
}

bool isTheSameType(const AsnType &a, const AsnType &b)
{
  int mainType = a.base.mainType;
  if (mainType != b.base.mainType)
    return false;
  if (a.baseModRec == b.baseModRec && a.baseRecNr == b.baseRecNr)
    return true;
  return !isNamedInC(mainType);
}

bool isDefaultValue(const AsnType &type)
{
  return type.defaultValue != 0;
}

static bool isSequenceOrSet(const AsnType &type)
{
  return type.base.mainType == TYP_SEQ || type.base.mainType == TYP_SET;
}

// What the walks over components find; one walk at a time.
static bool glbIsCompWithDefaultValue;
static int32_t glbNrOfMandatory;
static int32_t glbNrOfOptional;

bool isDefaultValueComps(AsnType &type)
{
  glbIsCompWithDefaultValue = false;
  if (isSequenceOrSet(type))
    forEachTypeComp(type, [](AsnType &, AsnType &comp, int) {
      glbIsCompWithDefaultValue |= isDefaultValue(comp);
    });
  return glbIsCompWithDefaultValue;
}

static void countComps(AsnType &type)
{
  glbNrOfMandatory = glbNrOfOptional = 0;
  if (isSequenceOrSet(type))
    forEachTypeComp(type, [](AsnType &, AsnType &comp, int) {
      ++(isMandatoryTypeComp(comp) ? glbNrOfMandatory : glbNrOfOptional);
    });
}

int32_t getNrOfMandatoryTypeComps(AsnType &type)
{
  countComps(type);
  return glbNrOfMandatory;
}

int32_t getNrOfOptionalTypeComps(AsnType &type)
{
  countComps(type);
  return glbNrOfOptional;
}

bool isNamedNumbers(const AsnType &type)
{
  int mainType = type.base.mainType;
  return (mainType == TYP_INTEGER || mainType == TYP_ENUM ||
          mainType == TYP_BITSTR) &&
         type.base.namedNumbers != 0;
}

int32_t getNrOfNamedNumbers(const AsnType &type)
{
  if (!isNamedNumbers(type))
    return 0;
  SavedNode saved(REC_VNODE);
  ChainGuard guard(type.baseModRec, REC_VNODE);
  int32_t count = 0;
  for (int32_t index = type.base.namedNumbers; index != 0; index = vNode.next) {
    guard.step();
    readRec(type.baseModRec, REC_VNODE, index);
    ++count;
  }
  return count;
}

bool isConstraints(const AsnType &type)
{
  const NodeElemRec *first = type.constraints.first;
  if (!first)
    return false;
  SavedNode saved(REC_SUB);
  readRec(first->module, REC_SUB, first->index);
  return subRec.kind != SUB_HIDDEN || first->next;
}

bool isDefiniteLengthEncoding(const AsnType &type)
{
  int option = type.homeMod->rec->options.definiteLen;
  if (option != 2 && option != 3)
    return option == 1;
  int choice = type.typeOptions.definiteLength;
  return choice == 1 || (choice == 255 && (isDefinedType(type) || option == 3));
}

bool isExtensibleEnumeratedList(const AsnType &type)
{
  return type.base.mainType == TYP_ENUM && isExtensible(type);
}

bool isFirstActualTypeComp(const AsnType &type)
{
  if (!isComponentType(type))
    return false;
  return type.compNbr == 0 ||
         (type.compNbr == 1 && type.father &&
          isTypeExtensionmarkerComp(*type.father) &&
          getTypeExtensionmarkerCompNbr(*type.father) == 0);
}

bool prevTypeCompIsOptional(const AsnType &type)
{
  bool isComp = isMandatoryTypeComp(type) || isOptionalTypeComp(type);
  return isComp && type.father && type.father->prevCompOptional;
}

bool lastTypeCompIsOptional(const AsnType &type)
{
  return isSequenceOrSet(type) && type.prevCompOptional;
}

bool testTypeOption(const AsnType &type, int bit)
{
  return type.base.nodeOptions >> bit & 1;
}

// --- visibility and entries -------------------------------------------------

bool isVisibleType(const AsnType &type)
{
  const ModRec &module = *type.homeMod->rec;
  return module.options.nrVisibleTypes >= 1 &&
         (module.visibilityMode == 0 || type.base.classFlags & CF_VISIBLE);
}

static bool hasEntries(const AsnType &type)
{
  return type.homeMod->rec->options.nrEntryTypes >= 1;
}

bool isEntryType(const AsnType &type)
{
  return hasEntries(type) && type.entryFlags & entryFlagBit;
}

bool isEntryBaseType(const AsnType &type)
{
  return hasEntries(type) && type.base.entryFlags & entryFlagBit;
}

bool isEntryTypeFunction(const AsnType &type, int bit)
{
  return type.entryFlags >> bit & 1;
}

bool typeIsInEntryCategory(const AsnType &type, int bit)
{
  return isEntryType(type) && type.entryCategory >> bit & 1;
}

const char *getEntrySymbolByName(const AsnModule &module, const char *name)
{
  const FixRec *record =
      findGlbFixRecByName(module.rec->options.entryFixRec, name);
  return record ? record->pref : nullptr;
}

static const char *entrySymbolOf(const AsnType &type)
{
  if (!isEntryType(type) || !type.compFix.id)
    return nullptr;
  return getEntrySymbolByName(*type.homeMod, type.compFix.id);
}

bool isEntrySymbol(const AsnType &type)
{
  return entrySymbolOf(type);
}

std::string &getEntrySymbol(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix)
{
  return between(text, prefix, orEmpty(entrySymbolOf(type)), suffix);
}

// --- extension markers ------------------------------------------------------

bool isTypeExtensionmarker(const AsnType &type)
{
  return type.base.mainType == TYP_EXTENSION_MARKER;
}

bool isTypeExtensionmarkerComp(const AsnType &type)
{
  return isStructuredType(type) && isExtensible(type);
}

int32_t getTypeExtensionmarkerCompNbr(AsnType &type)
{
  if (type.extMarkerCompNbr == -1 && isTypeExtensionmarkerComp(type))
    forEachTypeComp(type, [](AsnType &, AsnType &, int) {});
  return type.extMarkerCompNbr;
}

bool isTypeExtension(const AsnType &comp)
{
  AsnType *father = comp.father;
  return father && isTypeExtensionmarkerComp(*father) &&
         comp.compNbr > getTypeExtensionmarkerCompNbr(*father);
}

bool isExtensionRootComponent(AsnType *father, const AsnType &comp)
{
  if (!father)
    return false;
  // The bit of a list tells of its size: it has no marker.
  return !isTypeExtensionmarkerComp(*father) ||
         comp.compNbr < getTypeExtensionmarkerCompNbr(*father);
}

bool isExtensionAdditionComponent(AsnType *father, const AsnType &comp)
{
  return father && isTypeExtensionmarkerComp(*father) &&
         !isTypeExtensionmarker(comp) &&
         comp.compNbr > getTypeExtensionmarkerCompNbr(*father);
}

bool isFirstExtensionAdditionComponent(AsnType *father, const AsnType &comp)
{
  return father && isTypeExtensionmarkerComp(*father) &&
         comp.compNbr == getTypeExtensionmarkerCompNbr(*father) + 1;
}

bool isLastExtensionRootComponent(AsnType *father, const AsnType &comp)
{
  // Without a marker its number is -1, which no component is ahead of.
  return father && comp.compNbr + 1 == getTypeExtensionmarkerCompNbr(*father);
}

bool isMandatoryExtensionAdditionComponent(AsnType *father, const AsnType &comp)
{
  return isExtensionAdditionComponent(father, comp) &&
         isMandatoryTypeComp(comp);
}

bool isOptionalExtensionAdditionComponent(AsnType *father, const AsnType &comp)
{
  return isExtensionAdditionComponent(father, comp) && isOptionalTypeComp(comp);
}

// --- numbers ----------------------------------------------------------------

void int64Warning(const AsnModule &module, int32_t line, const char *label)
{
  if (verboseEx < 2)
    return;
  std::string path;
  getModuleFilePath(path, nullptr, module, nullptr);
  fprintf(stderr,
          "%s:%d:BET Warning\n"
          "** Type constraint information does not fit in 32 bits\n"
          "** %s\n",
          path.c_str(), line, label);
}

int32_t int64ToInt32(sint64 value, const AsnModule *module, int32_t line,
                     const char *label)
{
  if (i64ismax(value))
    return INT32_MAX;
  if (i64ismin(value))
    return INT32_MIN;
  // Some numbers below the range pass, and come out wrong: `i64tol`.
  int32_t number = 0;
  if (i64tol(value, number))
    return number;
  if (module)
    int64Warning(*module, line, label);
  return 0;
}

void getSizeEndpoints(const AsnType &type, int32_t &lower, int32_t &upper,
                      int32_t &limit)
{
  int32_t line = getTypeDefinitionLine(type);
  lower =
      int64ToInt32(type.sizeLower, type.homeMod, line, "Lower size endpoint");
  upper =
      int64ToInt32(type.sizeUpper, type.homeMod, line, "Upper size endpoint");
  int32_t sizeLimit = type.base.typeOptions.sizeLimit;
  limit = sizeLimit != 0 ? sizeLimit : upper;
}

void getInt64SizeEndpoints(const AsnType &type, sint64 &lower, sint64 &upper,
                           sint64 &limit)
{
  lower = type.sizeLower;
  upper = limit = type.sizeUpper;
  if (int32_t sizeLimit = type.base.typeOptions.sizeLimit)
    i64ltosint64(limit, sizeLimit);
}

// --- stamps -----------------------------------------------------------------

int32_t getTypeStamp(AsnType &type)
{
  readRec(type.compModRec, REC_TNODE, type.compRecNr);
  return type.stamp = tNode.stamp;
}

int32_t getBaseTypeStamp(AsnType &type)
{
  readRec(type.baseModRec, REC_TNODE, type.baseRecNr);
  return type.base.stamp = tNode.stamp;
}

// Stamps the record, which becomes current.
static void stampRecord(ModRec *module, int32_t recNr, int32_t stamp)
{
  readRec(module, REC_TNODE, recNr);
  tNode.stamp = static_cast<int16_t>(stamp);
  writeRec(module, REC_TNODE, recNr);
}

void setTypeStamp(AsnType &type, int32_t stamp)
{
  stampRecord(type.compModRec, type.compRecNr, stamp);
  type.stamp = stamp;
}

void setBaseTypeStamp(AsnType &type, int32_t stamp)
{
  stampRecord(type.baseModRec, type.baseRecNr, stamp);
  type.base.stamp = static_cast<int16_t>(stamp);
  // By the node, which became current: a view of a defined instance shows the
  // status of the definition. A selection in a component leads to no
  // definition.
  if (tNode.compStatus != -TCS_HEADER ||
      (type.firstMainType == TYP_SELECTION && !isDefinedType(type)))
    return;
  readSynonymTypeTNode(type, isCompOrElemType(type));
  stampRecord(currTPtr[REC_TNODE], recJustRead[REC_TNODE].index, stamp);
}
