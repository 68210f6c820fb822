#pragma once
#include "store/treestore.h"
#include <string>

// Modules: the list of module records, loading with imports, and the
// iterator object through which the rest of the tool visits modules.

// One walk's places in a module's chains, by the kind of node that is
// selected; types and values have cursors of their own.
struct ModuleCursors {
  int32_t types[10] = {};
  int32_t values[10] = {};
};

struct AsnModule {
  ModRec *rec = nullptr;
  const int32_t *counts = nullptr;  // of the stored header, by kind
  ModuleCursors cursors;
  bool alive = false;
};

typedef void ModuleCallBack(AsnModule &module);
typedef void CommentCallBack(AsnModule &module, const char *text, int position);

// --- The list.

// Appends a new record with a fresh meta record to the whole list, and to
// the generation list if it is `generated`.
ModRec *appendModRec(bool generated);

// Gives a module its prefixes (null for none), interned.
void setModulePrefixes(ModRec &module, const char *filePrefix,
                       const char *generationPrefix);

// The first record with the generation prefix, unchanged; else a new one at
// the end of the whole list with all three names.
ModRec *findOrCreateModRec(const char *filePrefix, const char *generationPrefix,
                           const char *moduleName);

// An import record at the end of the module's chain.
PicRec *createPicRec(ModRec &module, const char *name);

// Searches of an import chain by entry number, by the address of an interned
// name and by module record; null if none fits.
PicRec *matchingNr(PicRec *first, int32_t number);
PicRec *matchingName(PicRec *first, const char *name);
PicRec *matchingPtr(PicRec *first, const ModRec *module);

// The module that a number in one of the module's records means: below 2 the
// module itself, else that of the import entry; null if there is none.
ModRec *getModPtr(ModRec *module, int32_t number);

// --- Loading.

// Reads the modules of the generation list with all that they import; the
// first failure ends the run.
void readAllSyntaxTrees();

// Reads one module and its imports, depth first. `message` is as for
// `readTree`.
int readSyntaxTree(ModRec &module, std::string &message);

// Fills a module record from the header in `mNode` and applies the options
// saved in the tree.
void initModRec(ModRec &module);

// Resets the options to their defaults; the prefix length of the first call
// is kept for the rest of the run.
void initMetaRec(GlobalOptions &options);

// Frees the fix records behind the heads, which must be reset then.
void deleteFixRecs(GlobalOptions &options);

// Fills a generation array for a DEFINITION-CATEGORY.
void initGenArr(uint8_t (&array)[17], int category);

// Stamps of nodes on loading: below and above all that generators use.
constexpr int16_t stampGenerated = 5;
constexpr int16_t stampImported = 32767;
void stampNodes(ModRec &module);

// Frees the records that no tree turned out to need. No module is current
// afterwards.
void removeUnreferencedModuleRecords();

// Clears the cursors and prepares counters and caches of all modules.
void initBackendVars();
void initModuleInfoCache(ModRec &module);
void initTypeInfoCache(ModRec &module);

// Forgets all modules, as at the start of a run: for those who run more than
// once in a process.
void resetStore();
// The part of it that loading keeps to itself.
void resetLoading();

// --- Visits. A null call-back is fatal error 18.

AsnModule *newAsnModule(ModRec &record);
void delAsnModule(AsnModule *module);
void initAsnModule(AsnModule &module, ModRec &record);

// The record becomes current; null, with none current, for a null record.
AsnModule *firstModule(ModRec *record);
// Moves the object on to `record`, or, if it is null, to the next module of
// the generation list; deletes it and gives null at the end.
AsnModule *nextModule(AsnModule *module, ModRec *record);

// Each module of the generation list, with none current at the end; only its
// first one, with `cMP` restored.
void forEachModule(ModuleCallBack *f);
void forFirstModule(ModuleCallBack *f);

// Each module that the module takes declarations from, depth first if `f`
// calls it again, each at most once for an outermost call.
void forEachExportingModule(AsnModule &module, ModuleCallBack *f);

// Visits the module of a record with an object of its own; a predefined one
// is passed over, a null record is fatal error 13.
void forModuleOfRecord(ModRec *record, ModuleCallBack *f);

// --- Queries. Text getters write `prefix`, the text and `suffix`.

std::string &getModuleRef(std::string &text, const char *prefix,
                          const AsnModule &module, const char *suffix);
std::string &getModulePrefix(std::string &text, const char *prefix,
                             const AsnModule &module, const char *suffix);
std::string &getModuleDirectory(std::string &text, const char *prefix,
                                const AsnModule &module, const char *suffix);
std::string &getModuleFileName(std::string &text, const char *prefix,
                               const AsnModule &module, const char *suffix);
std::string &getModuleFilePath(std::string &text, const char *prefix,
                               const AsnModule &module, const char *suffix);

BEModMetaRec *getBEModMetaRec(const AsnModule &module);
GlobalOptions &getGlobalOptions(const AsnModule &module);
const uint8_t *getGenArr(const AsnModule &module);
ModRec *getModRec(const AsnModule &module);
// Entry of the generation array for an index of 1 to 16, else 0.
int getGenerationOption(const AsnModule &module, int index);

int32_t getNrOfVisibleTypes(const AsnModule &module);
int32_t getNrOfEntryTypes(const AsnModule &module);
int32_t getNrOfObjects(const AsnModule &module);
int32_t getNrOfObjectSets(const AsnModule &module);
int32_t getNrOfTypeNodes(const AsnModule &module);
int32_t getNrOfValueNodes(const AsnModule &module);

// Position in the whole list, from 0.
int32_t getUniqueModuleNr(const AsnModule &module);
bool isTheSameModule(const AsnModule &module, const AsnModule &other);
bool isCurrentModule(const AsnModule &module);
// The module belongs to its own group; so does, in addition, `other`.
bool isCombinedModule(const AsnModule &module);
bool isCombinedModules(const AsnModule &module, const AsnModule &other);

// The C-GENERATION bit of the option's absolute value; a negative option
// asks whether it is clear.
bool testCGenerationOption(const AsnModule &module, int option);
// DEFINITION-CATEGORY is 1, 2 or 3.
bool isVarnoApplication(const AsnModule &module);

// Global comment lines: the text behind the marks of each, with its number
// from 0.
bool isGlobalCommentOption(const AsnModule &module);
void forEachGlobalCommentOption(AsnModule &module, CommentCallBack *f);

// The text of a comment option line: behind "BEO=//", or from "//" on, the
// line's first character not counting; null for other lines.
const char *parseBECommentOption(const char *line);

InfoCache &getModuleInfoCache(const AsnModule &module);
// The cache of a type node; `typeNr` is its record number minus 1.
InfoCache &getTypeInfoCache(const AsnModule &module, int32_t typeNr);
void setModuleInfoCacheBetFlag(InfoCache &cache, int bit, bool value);
void setTypeInfoCacheBetFlag(InfoCache &cache, int bit, bool value);
