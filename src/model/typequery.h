#pragma once
#include "model/asntype.h"
#include <string>

// What may be asked of a type. Text getters write `prefix`, the text and
// `suffix`, of which null counts as empty.

// --- Fields.
AsnModule *getModuleOfType(const AsnType &type);
AsnType *getFatherOfTypeComp(const AsnType &type);
const TypeOptions &getTypeOptions(const AsnType &type);
int getTypeMainType(const AsnType &type);
int32_t getTypeCompStatus(const AsnType &type);
int32_t getBaseTypeCompStatus(const AsnType &type);
int32_t getNrOfTypeComps(const AsnType &type);
int32_t getTypeCompNbr(const AsnType &type);
int getVF(const AsnType &type);
int getVFSize(const AsnType &type);

// --- Texts.
std::string &getValueField(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix);
std::string &getTypeCompStatusStri(std::string &text, const char *prefix,
                                   const AsnType &type, const char *suffix);
std::string &getTypeMainTypeStri(std::string &text, const char *prefix,
                                 const AsnType &type, const char *suffix);
std::string &getTypeMainTypeRef(std::string &text, const char *prefix,
                                const AsnType &type, const char *suffix);
std::string &getTypeRef(std::string &text, const char *prefix,
                        const AsnType &type, const char *suffix);
std::string &getBaseTypeRef(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix);
std::string &getDefTypeId(std::string &text, const char *prefix,
                          const AsnType &type, const char *suffix);
std::string &getDefBaseTypeId(std::string &text, const char *prefix,
                              const AsnType &type, const char *suffix);
std::string &getBaseTypeId(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix);
std::string &getTypeCompId(std::string &text, const char *prefix,
                           const AsnType &type, const char *suffix);
std::string &getTypeCompRef(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix);
// The type's name under the module's fix record of a kind, resp. under a
// given one.
std::string &getTypeIdConvKindRaw(std::string &text, const char *prefix,
                                  const AsnType &type, const char *suffix,
                                  int kind);
std::string &getTypeIdConvFix(std::string &text, const char *prefix,
                              const AsnType &type, const char *suffix,
                              const FixRec &fix);

// The main type of a list's element; the list's node must be current.
// `TYP_NONE` for another type.
int getTypeElemMainType(const AsnType &type);

// --- Kinds of types.
bool isDefinedType(const AsnType &type);
bool isDefinedBaseType(const AsnType &type);
bool isSynonymType(const AsnType &type);
bool isSelectionType(const AsnType &type);
bool isAnyDefinedByType(const AsnType &type);
bool isComponentType(const AsnType &type);
bool isCompOrElemType(const AsnType &type);
bool isElemType(const AsnType &type);
bool isStructuredType(const AsnType &type);
bool isListType(const AsnType &type);
bool isLeafType(const AsnType &type);
bool isCVLeafType(const AsnType &type);  // or a list
bool isRestrCharStringType(const AsnType &type);
bool isTypeWithPredefinedTag(const AsnType &type);
bool isMandatoryTypeComp(const AsnType &type);
bool isOptionalTypeComp(const AsnType &type);
bool isMandatoryTypeComps(const AsnType &type);
bool isOptionalTypeComps(const AsnType &type);
bool isUntaggedChoiceOrOpenTypeComps(const AsnType &type);
bool isRecursiveBaseType(const AsnType &type);
bool isRecursiveType(const AsnType &type);
bool isInstantiatedType(const AsnType &type);
bool isTopLevelInstantiatedType(const AsnType &type);
bool isTheSameType(const AsnType &a, const AsnType &b);
bool isDefaultValue(const AsnType &type);
bool isDefaultValueComps(AsnType &type);  // walks the components
bool isNamedNumbers(const AsnType &type);
bool isConstraints(const AsnType &type);
bool isDefiniteLengthEncoding(const AsnType &type);
bool isExtensibleEnumeratedList(const AsnType &type);
bool isFirstActualTypeComp(const AsnType &type);
bool prevTypeCompIsOptional(const AsnType &type);
bool lastTypeCompIsOptional(const AsnType &type);
bool testTypeOption(const AsnType &type, int bit);

// Counts, by walks: 0 for types without components of that sort.
int32_t getNrOfMandatoryTypeComps(AsnType &type);
int32_t getNrOfOptionalTypeComps(AsnType &type);
int32_t getNrOfNamedNumbers(const AsnType &type);  // the marker counted

// --- Visibility and entries, by the counts of the type's home module.
bool isVisibleType(const AsnType &type);
bool isEntryType(const AsnType &type);
bool isEntryBaseType(const AsnType &type);
bool isEntryTypeFunction(const AsnType &type, int bit);
bool typeIsInEntryCategory(const AsnType &type, int bit);
bool isEntrySymbol(const AsnType &type);
std::string &getEntrySymbol(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix);
// Null if the module has no symbol for the name.
const char *getEntrySymbolByName(const AsnModule &module, const char *name);

// --- Extension markers.
bool isTypeExtensionmarker(const AsnType &type);
bool isTypeExtensionmarkerComp(const AsnType &type);
// -1 without a marker; found by a walk the first time.
int32_t getTypeExtensionmarkerCompNbr(AsnType &type);
bool isTypeExtension(const AsnType &comp);
bool isExtensionRootComponent(AsnType *father, const AsnType &comp);
bool isExtensionAdditionComponent(AsnType *father, const AsnType &comp);
bool isFirstExtensionAdditionComponent(AsnType *father, const AsnType &comp);
bool isLastExtensionRootComponent(AsnType *father, const AsnType &comp);
bool isMandatoryExtensionAdditionComponent(AsnType *father,
                                           const AsnType &comp);
bool isOptionalExtensionAdditionComponent(AsnType *father,
                                          const AsnType &comp);

// --- Numbers.

// The gate from the model's numbers to 32 bits: the infinities give the
// limits; a number that does not fit gives 0 and, with a module, a warning.
int32_t int64ToInt32(sint64 value, const AsnModule *module, int32_t line,
                     const char *label);
// The warning alone.
void int64Warning(const AsnModule &module, int32_t line, const char *label);

// The size bounds of the tree; the limit is the size limit, or `upper`.
void getSizeEndpoints(const AsnType &type, int32_t &lower, int32_t &upper,
                      int32_t &limit);
void getInt64SizeEndpoints(const AsnType &type, sint64 &lower, sint64 &upper,
                           sint64 &limit);

// The bounds of the items before and behind the marker of an enumeration;
// the smallest number where there are none.
void getExtendedEnumeratedBounds(AsnType &type, int32_t &rootLower,
                                 int32_t &rootUpper, int32_t &addLower,
                                 int32_t &addUpper);

// --- Stamps: the first two move the node buffer and refresh the view's copy,
// the others write into the tree.
int32_t getTypeStamp(AsnType &type);
int32_t getBaseTypeStamp(AsnType &type);
void setTypeStamp(AsnType &type, int32_t stamp);
void setBaseTypeStamp(AsnType &type, int32_t stamp);
