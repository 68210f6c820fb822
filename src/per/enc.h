#pragma once
#include "cbet/typefuncinfo.h"
#include "model/asnvalue.h"
#include "per/extinfo.h"

// The call-backs of the encoder generator and what its files share. Text goes
// to `fiEnc`. Each file has a twin of the decoder generator.

// The table of the run; null outside.
extern TypeFuncInfo *glbEncTypeFuncInfo;

// --- Structures. (encstruct.cc)
bool encCanGenerateComponents(AsnType &type, TypeFuncInfo &info);
void encStruPrefix(AsnType &type, TypeFuncInfo &info);
void encStruPostfix(AsnType &type, TypeFuncInfo &info);
void encCompPrefix(AsnType &comp, TypeFuncInfo &info);
void encCompPostfix(AsnType &comp, TypeFuncInfo &info);
void encAdditionGroupPrefix(AsnType &group, TypeFuncInfo &info);
void encAdditionGroupPostfix(AsnType &group, TypeFuncInfo &info);

// --- CHOICE. (encchoice.cc)
void encChoicePrefix(AsnType &type);
void encChoicePostfix(AsnType &type);
void encChoiceAltPrefix(AsnType &type, AsnType &comp);

// --- Lists and element functions. (enclist.cc)
void encSeqOfPrefix(AsnType &list, AsnType &elem);
void encSeqOfPostfix(AsnType &list);
void encElemCallBack(AsnType &list, AsnType &elem);

// --- Default values and additions. (encdefault.cc)

// The component is sent only if it differs from its DEFAULT value.
bool encHasDefaultCheck(const AsnType &comp);

// Warns of components whose DEFAULT value is not looked at.
void encTestDefaultValues(AsnType &type);

// The test that the component differs, without brace.
void encHandleDefaultValueCheck(AsnType &comp, AsnValue &value);

// Sets the bit of a present component in the optional field; the form is that
// of the walks.
void setOptFieldBit(AsnType &father, AsnType &comp, int compNbr, int32_t bit,
                    const ExtensionInfo &info);
void encSeqExtensionmarkerBit(AsnType &type, const ExtensionInfo &info);
void encExtensionAdditionField(AsnType &marker);

// --- Leaves. (encleaf.cc)
void encRef(const char *prefix, bool address, const AsnType &type, bool member,
            const char *suffix);
void encLeaf(AsnType &type, TypeFuncInfo &info);
void encFrame(AsnType &type, TypeFuncInfo &info);
void encSkip(AsnType &type, TypeFuncInfo &info);
void encDefStruct(AsnType &type, TypeFuncInfo &info);

// The call for an open type that is bound to a classifier, which may be null.
void encAnyDefinedByClassifier(AsnType &type, AsnType *classifier);

// The name of the marker comment in the code is `word`.
void encWarningForExtendedConstraints(const AsnType &type, const char *word);

// --- ENUMERATED. (encenum.cc)
void encEnum(AsnType &type, TypeFuncInfo &info);
void encEnumNormalFunc(AsnType &type, TypeFuncInfo &info);
