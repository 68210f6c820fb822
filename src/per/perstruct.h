#pragma once
#include "model/asntype.h"
#include "per/extinfo.h"
#include <cstdint>
#include <string>

// Local variables of the code of structures, and walks over groups of
// components. Names end in the number of the structure's nesting, so that
// those of an inline structure differ from those around it; siblings use the
// same number, each in a block of its own.

// Nesting of the structure at hand, the outermost being 0; -1 outside.
extern int32_t glbLocalVarNSuffix;

// One cell for each open structure: words and bits of its preamble.
struct IntStackCell {
  int32_t value = 0;
  IntStackCell *below = nullptr;
};
extern IntStackCell *glbRootOptFieldSetCount;   // number of the last word
extern IntStackCell *glbRootOptFieldLastIndex;  // bits used in it
void pushIntStack(IntStackCell *&top);
void popIntStack(IntStackCell *&top);  // nothing on an empty stack

// Ahead of a normal function; begin and end pair for each structure.
void perInitStructure();
void perBeginStructure();
void perEndStructure();

// Sets the top cells for that many optional components.
void perSetOptFieldVars(int32_t count);

// --- Variables. Texts around a name may be null.

// A word of the optional field; without index if there is one word only.
void perWriteOptFieldRef(int file, int32_t word);
void perWriteSetOptField(int file, int32_t bit);
void perWriteGetOptField(int file, int32_t bit);

void perDefineExtensionBit(int file, const char *initialValue);
void perSetExtensionBit(int file, const char *value);
void perRefExtensionBit(int file, const char *before, const char *after);

// The bitmap of additions. With a type the mandatory ones are set at once.
void perDefineExtensionAddField(int file, AsnType *type,
                                const ExtensionInfo &info);
void perSetExtensionAddField(int file, const AsnType &comp,
                             const ExtensionInfo &info);
void perRefExtensionAddField(int file, const char *before, const char *after);
void perDefineExtensionAddCount(int file);  // up to "="
void perRefExtensionAddCount(int file, const char *before, const char *after);

void perDefineLengthDeterminant(int file);
std::string &perRefLengthDeterminant(std::string &text, const char *before,
                                     const char *after);
void perDefineOpenCtxBuffer(int file);
void perRefOpenCtxBuffer(int file, const char *before, const char *after);
void perDefineChoiceVar(int file);
std::string &perGetChoiceVar(std::string &text);
void perRefChoiceVar(int file, const char *before, const char *after);

// --- Walks. The index is the number of the component's bit, which runs
// against the order of the components: the first goes out first, in the
// highest place.
typedef void PerCompVisit(AsnType &father, AsnType &comp, int compNbr,
                          int32_t index, const ExtensionInfo &info);
void perForEachOptionalRootComp(AsnType &type, const ExtensionInfo &info,
                                PerCompVisit *visit);
// The optional members of a group.
void perForEachAdditionGroupComp(AsnType &group, const ExtensionInfo &info,
                                 PerCompVisit *visit);
// All additions, a group as one.
void perForEachExtensionAddComp(AsnType &type, const ExtensionInfo &info,
                                PerCompVisit *visit);
// The members of a group, with the index of the addition at hand.
void perForEachExtensionAdditionGroupComp(AsnType &father, AsnType &group,
                                          const ExtensionInfo &info,
                                          PerCompVisit *visit);

// --- Tests of types.

// Neither structured nor a list.
bool perIsSimpleType(const AsnType &type);

// A DEFAULT value that generated code can compare: BOOLEAN, INTEGER,
// ENUMERATED.
bool perIsDefaultKeywordUsedWithSupportedType(const AsnType &comp);
