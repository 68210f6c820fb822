#pragma once
#include <cstdint>
#include <string>

// The calls that go up by fixed names. The layers up to `cbet` serve every
// back-end of the family and know no encoding; what they need of the layers
// above them is declared here and nowhere else, so that a file below never
// includes a header from above. Whoever defines a name stands beside it.

struct AsnModule;
struct AsnObjClass;
struct AsnObject;
struct AsnObjectSet;
struct AsnType;
struct AsnValue;
struct BEClassMetaRec;
struct BEModMetaRec;
struct BEObjMetaRec;
struct BEObjSetMetaRec;
struct BETypMetaRec;
struct BEValMetaRec;
struct ExtensionInfo;
struct ModRec;
struct TedRange;

// --- options/: application of options while the store loads a tree.

// Passes 2 and 3 over the options saved in a tree. (options/passes.cc)
void checkGlobalOptions(ModRec &module, int unused, TedRange range);

// The back-end block, for the lines of kind 2 in the range.
// (options/passes.cc)
void checkGlobalBEOptions(ModRec &module, TedRange range);

// Rebuilds the module's group from its COMBINE option. (options/combine.cc)
void checkCombinedModules(ModRec &module);

// --- driver/: meta records of this back-end. (driver/meta.cc)

// A record with the defaults of the back-end's options; lives until the
// process ends, unless its module record is dropped.
BEModMetaRec *newBEModMetaRec();
void deleteBEModMetaRec(BEModMetaRec *record);

// Called whenever a module object is set up; nothing in this back-end.
void initBEModMetaRec();

// Applies one option line (with its "-"); false if it is unknown or its
// value is refused. A line for another tool is good.
bool globalBEOptionOK(BEModMetaRec &record, const char *option);

// The record of a type, made while the type is built; null for a partial one.
BETypMetaRec *newBETypMetaRec(const AsnType &type);
void deleteBETypMetaRec(AsnType &type, BETypMetaRec *record);

// Applies one option line of a type's node; what is not known draws a
// warning. The record is null for a partial type, which is passed over.
void typeBEOptionOK(AsnType &type, BETypMetaRec *record, const char *option);

// The records of values, classes, objects and object sets, which hold
// nothing, and the option lines of their nodes, of which none is known and
// all are passed over. (driver/metaobjects.cc)
BEValMetaRec *newBEValMetaRec();
void deleteBEValMetaRec(BEValMetaRec *record);
void valueBEOptionOK(AsnValue &value, BEValMetaRec &record, const char *option);
BEClassMetaRec *newBEClassMetaRec();
void deleteBEClassMetaRec(BEClassMetaRec *record);
void classBEOptionOK(AsnObjClass &objClass, BEClassMetaRec &record,
                     const char *option);
BEObjMetaRec *newBEObjMetaRec();
void deleteBEObjMetaRec(BEObjMetaRec *record);
void objectBEOptionOK(AsnObject &object, BEObjMetaRec &record,
                      const char *option);
BEObjSetMetaRec *newBEObjSetMetaRec();
void deleteBEObjSetMetaRec(BEObjSetMetaRec *record);
void objectSetBEOptionOK(AsnObjectSet &objectSet, BEObjSetMetaRec &record,
                         const char *option);

// The lines of the back-end's options, read from the module's record.
int getMetaVerbosity(const AsnModule &module);
void setMetaVerbosity(const AsnModule &module, int level);
const char *getMetaLogFile(const AsnModule &module);  // null: no log
const uint8_t *getMetaGenArr(const AsnModule &module);
int getMetaBERFuncPref(const AsnModule &module);
int getMetaEncodingVariant(const AsnModule &module);
int getMetaVariantFuncPref(const AsnModule &module);
int getMetaGenerateEmbeddingOptions(const AsnModule &module);
int getMetaEncodingCheckDefaultValues(const AsnModule &module);
int getMetaDecodingCatchDefaultErrors(const AsnModule &module);
int getMetaDecodingFillDefaultValues(const AsnModule &module);
int getMetaDefaultValuesWarningDisable(const AsnModule &module);

// The FUNC option of a type: the user's function and its further arguments;
// null without a record or without the text. (driver/typemeta.cc)
const char *getMetaFuncId(const AsnType &type);
const char *getMetaFuncOption(const AsnType &type);

// --- driver/: extension information of types (per/extinfo.h), worked out
// once for a view that has a meta record. (driver/extmeta.cc)

ExtensionInfo getExtensionInfo(AsnType &type);
ExtensionInfo getExtensionAdditionGroupInfo(AsnType &group);

// Bit of an optional component in the preamble of its SEQUENCE, resp. of its
// addition group, the last one having 0; -1 for anything else.
int32_t getTypeCompOptFieldIndex(const AsnType &comp);

// Bit of an addition in the bitmap of its SEQUENCE, the last one having 0; -1
// if that has no marker. The component must come from a walk forward.
int32_t getTypeCompExtensionAddFieldIndex(const AsnType &comp);

// Place among the root components, resp. the additions, in the order of tags;
// -1, with warnings once a run, in a module without automatic tags.
int32_t getCompCanonicalOrder(const AsnType &comp);

// An optional, resp. mandatory component; a group is mandatory if one of its
// members is.
bool isOptionalExtensionAdditionComponentOrGroup(AsnType &comp);
bool isMandatoryExtensionAdditionComponentOrGroup(AsnType &comp);

// Which traversal has visited a node (driver/meta.cc): a stamp below these
// has not been reached in the current one. Stamps of loading lie below and
// above all.
extern int stampGHD;  // what the type refers to is handled
extern int stampGIP;  // in progress
extern int stampGAD;  // all is done

// At the start of each module; the nodes of earlier modules keep theirs.
void resetStamps();

// At the start of each traversal.
void initStamps();

// The same two, for whoever stamps type nodes alone: there is one set of
// stamps.
void resetTypeStamps();
void initTypeStamps();

// --- ade/: side files for an IDE. (ade/summary.cc)

// True once ADE-PREFIX is set.
bool adeIsActive();

// True for the options that begin with "ADE-", in any case; `adeOptionOK`
// applies one and is false for an unknown name or a refused value.
bool adeIsADEOption(const char *text);
bool adeOptionOK(const char *option);

// The tree of what a run generated (ade/browser.cc): makes the type's node
// below that of the current module, which is made if there is none, the
// current one; nothing while the side files are not active.
void adeBrowserSelectTypeNode(AsnType &type);

// Adds a function that is written now, below the current type's node; any
// text may be null. Nothing while the side files are not active.
void adeBrowserAddFunctionNode(const char *name, const char *directory,
                               const char *file, int32_t line,
                               const char *kind);

// Adds a fatal error to the summary; a second entry ends the process with
// status 2 at once.
void adeSummaryFatalError(const char *text, const char *detail);
