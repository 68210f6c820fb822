// The list of module records, the iterator object over it, and what the rest
// of the tool may ask of a module.

#include "store/module.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include <algorithm>
#include <cstdlib>
#include <unordered_map>

ModRec *bOfModRList;
ModRec *eOfModRList;
ModRec *fstOfModRList;
ModRec *lstOfModRList;
ModRec *cMP;

// The first record with a generation prefix, by the interned text.
static std::unordered_map<const char *, ModRec *> byGenerationPrefix;

static CacheBlock *cache__AsnModule;

// Calls of `forEachExportingModule` that are under way.
static int exportingDepth;

// --- the list ---------------------------------------------------------------

ModRec *appendModRec(bool generated)
{
  ModRec *module = new ModRec;
  module->beMeta = newBEModMetaRec();
  module->inGenerationList = generated;
  if (eOfModRList) {
    module->listPosition = eOfModRList->listPosition + 1;
    eOfModRList->next = module;
  } else {
    bOfModRList = module;
  }
  eOfModRList = module;
  if (generated) {
    if (!fstOfModRList)
      fstOfModRList = module;
    lstOfModRList = module;
  }
  return module;
}

static const char *internedOrNull(const char *text)
{
  return text ? internStri(text) : nullptr;
}

// Takes a module out of the look-up by prefix.
static void forgetPrefix(const ModRec &module)
{
  auto found = byGenerationPrefix.find(module.generationPrefix);
  if (found != byGenerationPrefix.end() && found->second == &module)
    byGenerationPrefix.erase(found);
}

void setModulePrefixes(ModRec &module, const char *filePrefix,
                       const char *generationPrefix)
{
  forgetPrefix(module);
  module.filePrefix = internedOrNull(filePrefix);
  module.generationPrefix = internedOrNull(generationPrefix);
  if (module.generationPrefix)
    byGenerationPrefix.emplace(module.generationPrefix, &module);
}

ModRec *findOrCreateModRec(const char *filePrefix, const char *generationPrefix,
                           const char *moduleName)
{
  auto found = byGenerationPrefix.find(internStri(generationPrefix));
  if (found != byGenerationPrefix.end())
    return found->second;
  ModRec *module = appendModRec(false);
  setModulePrefixes(*module, filePrefix, generationPrefix);
  module->moduleName = internStri(moduleName);
  return module;
}

PicRec *createPicRec(ModRec &module, const char *name)
{
  PicRec *import = new PicRec;
  import->moduleName = internStri(name);
  if (module.lastImport)
    module.lastImport->next = import;
  else
    module.firstImport = import;
  module.lastImport = import;
  module.importsByNumber.push_back(import);
  module.importsByName.emplace(import->moduleName, import);
  return import;
}

template <class F>
static PicRec *matching(PicRec *first, F fits)
{
  while (first && !fits(*first))
    first = first->next;
  return first;
}

PicRec *matchingNr(PicRec *first, int32_t number)
{
  return matching(
      first, [=](const PicRec &pic) { return pic.moduleNumber == number; });
}

PicRec *matchingName(PicRec *first, const char *name)
{
  return matching(first,
                  [=](const PicRec &pic) { return pic.moduleName == name; });
}

PicRec *matchingPtr(PicRec *first, const ModRec *module)
{
  return matching(first,
                  [=](const PicRec &pic) { return pic.module == module; });
}

ModRec *getModPtr(ModRec *module, int32_t number)
{
  if (number < 2)
    return module;
  size_t i = static_cast<size_t>(number) - 2;
  if (!module || i >= module->importsByNumber.size())
    return nullptr;
  return module->importsByNumber[i]->module;
}

static void deleteImports(ModRec &module)
{
  for (PicRec *import = module.firstImport; import;) {
    PicRec *next = import->next;
    delete import;
    import = next;
  }
}

void deleteFixRecs(GlobalOptions &options)
{
  for (FixRec *head :
       {&options.entryFixRec, &options.fixRecs[0], &options.fixRecs[1],
        &options.fixRecs[2], &options.fixRecs[3], &options.fixRecs[4],
        &options.fixRecs[5], &options.fixRecs[6], &options.fixRecs[7]}) {
    for (FixRec *record = head->next; record;) {
      FixRec *next = record->next;
      delete record;
      record = next;
    }
    delete head->index;
  }
}

static void deleteModRec(ModRec *module)
{
  forgetPrefix(*module);
  forgetRecords(*module);
  deleteImports(*module);
  if (module->options.prefixes) {
    deleteImports(*module->options.prefixes);
    delete module->options.prefixes;
  }
  deleteFixRecs(module->options);
  deleteBEModMetaRec(module->beMeta);
  delete module;
}

void removeUnreferencedModuleRecords()
{
  ModRec *previous = nullptr;
  int32_t position = 0;
  for (cMP = bOfModRList; cMP;) {
    ModRec *next = cMP->next;
    if (cMP->treeStatus != TREE_NOT_READ) {
      cMP->listPosition = position++;
      previous = cMP;
    } else {
      if (previous)
        previous->next = next;
      else
        fstOfModRList = next;
      if (eOfModRList == cMP)
        eOfModRList = previous;
      deleteModRec(cMP);
    }
    cMP = next;
  }
}

void resetStore()
{
  for (ModRec *module = bOfModRList; module;) {
    ModRec *next = module->next;
    deleteModRec(module);
    module = next;
  }
  bOfModRList = eOfModRList = fstOfModRList = lstOfModRList = cMP = nullptr;
  byGenerationPrefix.clear();
  exportingDepth = 0;
  clearCursors();
  resetLoading();
}

// --- visits -----------------------------------------------------------------

AsnModule *newAsnModule(ModRec &record)
{
  AsnModule *module = cacheNew<AsnModule>(cache__AsnModule);
  initAsnModule(*module, record);
  return module;
}

void delAsnModule(AsnModule *module)
{
  if (!module || !module->alive)
    return;
  module->alive = false;
  cacheDelete(module, cache__AsnModule);
}

void initAsnModule(AsnModule &module, ModRec &record)
{
  // Not through the buffer, which may be in use.
  const MNode *header =
      static_cast<const MNode *>(findRPos(&record, REC_MNODE, 1));
  module.rec = &record;
  module.counts = header->counts;
  module.alive = true;
  record.options.sourceDirectory =
      getStriOrEmpty(&record, header->sourceDirectory);
  record.options.sourceFileName =
      getStriOrEmpty(&record, header->sourceFileName);
  initBEModMetaRec();
}

AsnModule *firstModule(ModRec *record)
{
  cMP = record;
  return record ? newAsnModule(*record) : nullptr;
}

AsnModule *nextModule(AsnModule *module, ModRec *record)
{
  if (!record && module->rec == lstOfModRList) {
    delAsnModule(module);
    cMP = nullptr;
    return nullptr;
  }
  cMP = record ? record : module->rec->next;
  *module = AsnModule{};
  initAsnModule(*module, *cMP);
  return module;
}

static void requireCallBack(const void *f)
{
  if (!f)
    fatalError(FATAL_NO_CALL_BACK);
}

void forEachModule(ModuleCallBack *f)
{
  requireCallBack(reinterpret_cast<const void *>(f));
  for (AsnModule *module = firstModule(fstOfModRList); module;
       module = nextModule(module, nullptr)) {
    ModRec *current = cMP;
    f(*module);
    cMP = current;
  }
}

void forFirstModule(ModuleCallBack *f)
{
  requireCallBack(reinterpret_cast<const void *>(f));
  ModRec *current = cMP;
  if (AsnModule *module = firstModule(fstOfModRList)) {
    f(*module);
    delAsnModule(module);
  }
  cMP = current;
}

void forModuleOfRecord(ModRec *record, ModuleCallBack *f)
{
  if (!record)
    fatalError(FATAL_INTERNAL);
  requireCallBack(reinterpret_cast<const void *>(f));
  if (record->treeStatus == TREE_PREDEFINED)
    return;
  ModRec *current = cMP;
  cMP = record;
  AsnModule *module = newAsnModule(*record);
  f(*module);
  delAsnModule(module);
  cMP = current;
}

static void setAllTreeStatus(uint8_t status)
{
  for (ModRec *module = bOfModRList; module; module = module->next)
    if (module->treeStatus != TREE_PREDEFINED)
      module->treeStatus = status;
}

// `treeStatus` no longer tells of loading here: "failed" stands for a module
// not yet visited and "read" for a visited one.
void forEachExportingModule(AsnModule &module, ModuleCallBack *f)
{
  constexpr uint8_t waiting = TREE_FAILED;
  constexpr uint8_t visited = TREE_READ;
  ModRec *current = cMP;
  if (++exportingDepth == 1)
    setAllTreeStatus(waiting);
  if (exportingDepth > maxNesting)
    treeInconsistent(module.rec);
  module.rec->treeStatus = visited;
  requireCallBack(reinterpret_cast<const void *>(f));
  for (PicRec *pic = module.rec->firstImport; pic; pic = pic->next) {
    ModRec *imported = pic->module;
    if (!imported || imported->treeStatus != waiting || !pic->usesDeclarations)
      continue;
    forModuleOfRecord(imported, f);
    imported->treeStatus = visited;
  }
  if (--exportingDepth == 0)
    setAllTreeStatus(visited);
  cMP = current;
}

// --- queries ----------------------------------------------------------------

std::string &getModuleRef(std::string &text, const char *prefix,
                          const AsnModule &module, const char *suffix)
{
  return between(text, prefix, orEmpty(module.rec->moduleName), suffix);
}

std::string &getModulePrefix(std::string &text, const char *prefix,
                             const AsnModule &module, const char *suffix)
{
  return between(text, prefix, orEmpty(module.rec->generationPrefix), suffix);
}

std::string &getModuleDirectory(std::string &text, const char *prefix,
                                const AsnModule &module, const char *suffix)
{
  return between(text, prefix, orEmpty(module.rec->options.sourceDirectory),
                 suffix);
}

std::string &getModuleFileName(std::string &text, const char *prefix,
                               const AsnModule &module, const char *suffix)
{
  return between(text, prefix, orEmpty(module.rec->options.sourceFileName),
                 suffix);
}

std::string &getModuleFilePath(std::string &text, const char *prefix,
                               const AsnModule &module, const char *suffix)
{
  const GlobalOptions &options = module.rec->options;
  std::string path = orEmpty(options.sourceDirectory);
  path += orEmpty(options.sourceFileName);
  return between(text, prefix, path, suffix);
}

BEModMetaRec *getBEModMetaRec(const AsnModule &module)
{
  return module.rec->beMeta;
}

GlobalOptions &getGlobalOptions(const AsnModule &module)
{
  return module.rec->options;
}

const uint8_t *getGenArr(const AsnModule &module)
{
  return module.rec->options.genArr;
}

ModRec *getModRec(const AsnModule &module)
{
  return module.rec;
}

int getGenerationOption(const AsnModule &module, int index)
{
  return index >= 1 && index <= 16 ? module.rec->options.genArr[index] : 0;
}

int32_t getNrOfVisibleTypes(const AsnModule &module)
{
  return module.rec->options.nrVisibleTypes;
}

int32_t getNrOfEntryTypes(const AsnModule &module)
{
  return module.rec->options.nrEntryTypes;
}

int32_t getNrOfObjects(const AsnModule &module)
{
  return module.rec->options.nrObjects;
}

int32_t getNrOfObjectSets(const AsnModule &module)
{
  return module.rec->options.nrObjectSets;
}

int32_t getNrOfTypeNodes(const AsnModule &module)
{
  return module.counts[REC_TNODE];
}

int32_t getNrOfValueNodes(const AsnModule &module)
{
  return module.counts[REC_VNODE];
}

int32_t getUniqueModuleNr(const AsnModule &module)
{
  return module.rec->listPosition;
}

bool isTheSameModule(const AsnModule &module, const AsnModule &other)
{
  return module.rec == other.rec;
}

bool isCurrentModule(const AsnModule &module)
{
  return module.rec == cMP;
}

static bool inGroup(const AsnModule &module, const ModRec *member)
{
  const std::vector<ModRec *> &group = module.rec->combined;
  return std::find(group.begin(), group.end(), member) != group.end();
}

bool isCombinedModule(const AsnModule &module)
{
  return inGroup(module, module.rec);
}

bool isCombinedModules(const AsnModule &module, const AsnModule &other)
{
  return isCombinedModule(module) && inGroup(module, other.rec);
}

bool testCGenerationOption(const AsnModule &module, int option)
{
  bool set = module.rec->options.cGeneration >> std::abs(option) & 1;
  return option < 0 ? !set : set;
}

bool isVarnoApplication(const AsnModule &module)
{
  int category = module.rec->options.definitionCategory;
  return category >= 1 && category <= 3;
}

// --- global comment lines ---------------------------------------------------

const char *parseBECommentOption(const char *line)
{
  static const char beoMark[] = "BEO=//";
  if (*line == 0)
    return nullptr;
  ++line;
  if (startsWith(line, beoMark))
    return line + sizeof beoMark - 1;
  return startsWith(line, "//") ? line : nullptr;
}

bool isGlobalCommentOption(const AsnModule &module)
{
  return module.rec->options.commentTed.last != 0;
}

void forEachGlobalCommentOption(AsnModule &module, CommentCallBack *f)
{
  requireCallBack(reinterpret_cast<const void *>(f));
  TedRange range = module.rec->options.commentTed;
  int position = 0;
  for (int32_t i = std::max(range.first, 1); i <= range.last; ++i) {
    readRec(module.rec, REC_TED, i);
    if (tedRec.tedKind != TED_BACK_END)
      continue;
    const char *text = parseBECommentOption(getStri(module.rec, tedRec.text));
    if (text)
      f(module, text, position++);
  }
}

// --- flags of the C toolkit -------------------------------------------------

InfoCache &getModuleInfoCache(const AsnModule &module)
{
  return module.rec->moduleInfoCache;
}

InfoCache &getTypeInfoCache(const AsnModule &module, int32_t typeNr)
{
  std::vector<InfoCache> &caches = module.rec->typeInfoCache;
  if (typeNr < 0 || static_cast<size_t>(typeNr) >= caches.size())
    fatalError(FATAL_READ_RECORD);
  return caches[static_cast<size_t>(typeNr)];
}

static void setFlag(InfoCache &cache, int bit, bool value)
{
  uint32_t mask = uint32_t{1} << bit;
  cache.known |= mask;
  cache.value = value ? cache.value | mask : cache.value & ~mask;
}

void setModuleInfoCacheBetFlag(InfoCache &cache, int bit, bool value)
{
  setFlag(cache, bit, value);
}

void setTypeInfoCacheBetFlag(InfoCache &cache, int bit, bool value)
{
  setFlag(cache, bit, value);
}
