#pragma once
#include "cbet/typefuncinfo.h"
#include "model/asnvalue.h"
#include "per/extinfo.h"
#include <string>

// The call-backs of the decoder generator and what its files share. Text goes
// to `fiDec`. Each file has a twin of the encoder generator, but for those of
// ignore functions and of unknown extensions.

// The table of the run; null outside.
extern TypeFuncInfo *glbDecTypeFuncInfo;

// --- Structures. (decstruct.cc)
bool decCanGenerateComponents(AsnType &type, TypeFuncInfo &info);
void decStruPrefix(AsnType &type, TypeFuncInfo &info);
void decStruPostfix(AsnType &type, TypeFuncInfo &info);
void decIsComp(AsnType &comp, TypeFuncInfo &info);
void decCompPrefix(AsnType &comp, TypeFuncInfo &info);
void decCompPostfix(AsnType &comp, TypeFuncInfo &info);
void decAdditionGroupPrefix(AsnType &group, TypeFuncInfo &info);
void decAdditionGroupPostfix(AsnType &group, TypeFuncInfo &info);

// The preamble of a SEQUENCE with its block; for ignore functions, too.
void decSeqPrefix(AsnType &type);
// True if that wrote a block.
bool decHasSeqBlock(const AsnType &type, const ExtensionInfo &info);
// The test of an addition in the bitmap.
void decTestAddition(const AsnType &comp);
// The test of a component in the optional field.
void decTestOptional(const AsnType &comp);
// The call that begins or ends the open type of an addition.
void decOpenTypeToF(const char *prefix);

// --- CHOICE. (decchoice.cc)
void decChoicePrefix(AsnType &type);
void decChoicePostfix(AsnType &type);
void decIsChoiceAlternative(AsnType &father, AsnType &comp);
void decChoiceAltPrefix(AsnType &father, AsnType &comp);
void decChoiceAltPostfix(AsnType &father, AsnType &comp);

// The code switches over the alternatives: there is more than one, or a
// marker.
bool isMultipleChoiceAlternatives(const AsnType &type,
                                  const ExtensionInfo &info);
// Set the variable by the index of the run-time, cast to the C type of a
// value format; without a variable (empty) only a read index is written.
void decChoiceIndexExtRoot(AsnType &type, const std::string &variable,
                           int format);
void decChoiceIndexExtAdd(AsnType &type, const std::string &variable,
                          int format);
// The line "default:" of the switch.
void decDefaultLine();

// --- Lists and element functions. (declist.cc)
void decSeqOfPrefix(AsnType &list, AsnType &elem);
void decConstructElemLoop(int file, AsnType &elem);
void decElemCallBack(AsnType &list, AsnType &elem);
// The place where an array begins, as "iter"; a dynamic one leaves a text
// that the compiler refuses.
void decDefineArrayIterator(AsnType &list, AsnType &elem);
// Head of an element function, with no variable in scope but its own; false
// if there is none to write.
bool decBeginElemFunc(const char *prefix, AsnType &list, AsnType &elem);

// --- Default values. (decdefault.cc)
void decCatchDefaultValue(AsnType &comp);
void decFillDefaultValues(AsnType &type);

// --- Unknown extensions. (decext.cc)
void decExtensionAdditionField(AsnType &marker);
void decSkipExtensionAdditionField(AsnType &marker);
void decUnknownExtendedComponents(AsnType &type);
void decSkipUnknownExtendedComponents(AsnType &type);

// --- Leaves. (decleaf.cc)
void decRef(const char *prefix, bool address, const AsnType &type, bool member,
            const char *suffix);
void decLeaf(AsnType &type, TypeFuncInfo &info);
void decFrame(AsnType &type, TypeFuncInfo &info);
void decSkipError(AsnType &type, TypeFuncInfo &info);
void decDefStruct(AsnType &type, TypeFuncInfo &info);

// The call for an open type that is bound to a classifier, which may be null.
void decAnyDefinedByClassifier(AsnType &type, AsnType *classifier);

void decWarningForExtendedConstraints(const AsnType &type, const char *word);

// The ending of an integer function's name for a home of 8 or 16 bits.
const char *decConstrainedWholeNumberSuff(const AsnType &type, int kind);

// The numbers behind the bounds of a constrained INTEGER.
void decIntegerCountsToF(sint64 lower, sint64 upper, int octets);

// --- ENUMERATED. (decenum.cc)
void decEnum(AsnType &type, TypeFuncInfo &info);
void decEnumNormalFunc(AsnType &type, TypeFuncInfo &info);
// The contents alone; with `isPointer` an extensible type is reached through
// a pointer although it has no function.
void decEnumContents(AsnType &type, bool isPointer);

// --- Ignore functions. (decskip.cc, decskipleaf.cc)
extern const IgnoreFuncs decIgnoreFuncs;
std::string &decSkipIgnoreFuncName(std::string &text, const char *prefix,
                                   const AsnType &type, const char *suffix);
void decSkipElemCallBack(AsnType &list, AsnType &elem);
// Steps over an element, in the function for elements.
void decSkipElem(AsnType &elem);
void decSkipLeaf(AsnType &type, TypeFuncInfo &info);
