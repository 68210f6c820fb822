// Loading: a module's tree with everything that it imports, depth first, and
// the state that the rest of the run starts from.
//
// `treeStatus` goes from "not read" to "read" (or to "failed", and the run
// ends). It is "read" before the imports are followed, which is what ends
// circles of imports.

#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "store/module.h"
#include <cstdio>
#include <cstring>

// The module of ASN.1 itself: no file is behind an import from it.
static const char predefinedModule[] = "ISO8824";

// The prefix length that `initMetaRec` found first, 0: none yet.
static uint8_t firstPrefixLen;

void initGenArr(uint8_t (&array)[17], int category)
{
  array[1] = array[2] = 1;
  for (int i : {4, 8, 9, 10, 14, 15, 16})
    array[i] = 0;
  auto setFunctions = [&](uint8_t tables, uint8_t functions, uint8_t prototypes,
                          uint8_t others) {
    array[3] = tables;
    array[5] = array[11] = functions;
    array[6] = array[12] = prototypes;
    array[7] = array[13] = others;
  };
  switch (category) {
  case 0:
    setFunctions(0, 2, 1, 1);
    break;
  case 1:
    setFunctions(1, 0, 0, 0);
    break;
  case 2:
    setFunctions(1, 1, 1, 0);
    break;
  case 3:
    array[3] = array[4] = 1;
    break;
  default:
    break;
  }
}

void initMetaRec(GlobalOptions &options)
{
  if (firstPrefixLen == 0)
    firstPrefixLen = options.prefixLen;
  options = GlobalOptions{};
  options.prefixLen = firstPrefixLen;
  initGenArr(options.genArr, options.definitionCategory);
}

static StampRec stampOf(const MNode &header)
{
  return {header.toolVersion, header.treeVersion, header.date, header.time};
}

void initModRec(ModRec &module)
{
  MNode header = mNode;
  module.moduleName = getStri(&module, header.moduleName);
  module.stamp = stampOf(header);
  module.treeStatus = TREE_READ;
  module.metaChar = 'b';
  module.auxValueB = header.auxValueB;
  module.tagDefault = header.tagDefaultAndUse & 15;
  module.automaticTags = header.automaticTags;
  module.auxValueA = header.auxValueA;
  module.firstType = header.firstType;
  module.firstValue = header.firstValue;
  module.visibilityMode = header.visibilityMode;

  GlobalOptions &options = module.options;
  initMetaRec(options);
  options.nrEntryTypes = header.nrEntryTypes;
  options.nrVisibleTypes = header.nrVisibleTypes;
  options.nrObjects = header.nrObjects;
  options.nrObjectSets = header.nrObjectSets;
  options.globalTed = {header.firstGlobalTed, header.lastGlobalTed};
  checkGlobalOptions(module, 0, options.globalTed);
  checkGlobalBEOptions(module, options.globalTed);
  checkCombinedModules(module);
}

void stampNodes(ModRec &module)
{
  // Directly in the store: the buffers stay as they are.
  int16_t stamp = module.inGenerationList ? stampGenerated : stampImported;
  for (TNode &node : module.tNodes.records)
    node.stamp = stamp;
  for (VNode &node : module.vNodes.records)
    node.stamp = stamp;
}

// Follows one import entry, which is in `mNode`.
static int readImport(ModRec &module, int32_t number, std::string &message)
{
  MNode entry = mNode;
  const char *name = getStri(&module, entry.moduleName);
  PicRec *import = createPicRec(module, name);
  import->stamp = stampOf(entry);
  import->moduleNumber = number;
  import->auxValueB = entry.auxValueB;
  const char *prefix = getStriOrEmpty(&module, entry.filePrefix);
  ModRec *imported = findOrCreateModRec(prefix, prefix, name);
  import->module = imported;
  import->usesDeclarations = entry.tagDefaultAndUse >> 4 != 0;
  if (strcmp(name, predefinedModule) == 0) {
    imported->treeStatus = TREE_PREDEFINED;
    return READ_GOOD;
  }
  int status = READ_GOOD;
  if (imported->treeStatus == TREE_FAILED)
    status = READ_NOT_FOUND;
  else if (imported->treeStatus == TREE_NOT_READ)
    status = readSyntaxTree(*imported, message);
  if (status != READ_GOOD) {
    import->module = nullptr;
    module.treeStatus = TREE_FAILED;
  }
  return status;
}

// Imports that are being followed at this moment.
static int importNesting;

int readSyntaxTree(ModRec &module, std::string &message)
{
  int status = readTree(module, message);
  if (status != READ_GOOD) {
    module.treeStatus = TREE_FAILED;
    return status;
  }
  // The buffer does not survive the options and the imports.
  int32_t entries = mNode.counts[REC_MNODE];
  initModRec(module);
  stampNodes(module);
  NestingGuard nesting(importNesting, &module);
  for (int32_t k = 2; k <= entries && status == READ_GOOD; ++k) {
    readRec(&module, REC_MNODE, k);
    status = readImport(module, k, message);
  }
  return status;
}

static int fatalCodeOf(int status)
{
  switch (status) {
  case READ_INCONSISTENT:
    return FATAL_TREE_INCONSISTENT;
  case READ_NOT_FOUND:
    return FATAL_TREE_NOT_FOUND;
  default:
    return FATAL_TREE_INVALID;
  }
}

void readAllSyntaxTrees()
{
  if (backendVerbosity > 0)
    fputs("  Reading syntax trees ...\n", stderr);
  std::string message;
  for (cMP = fstOfModRList; cMP; cMP = cMP->next) {
    int status = READ_GOOD;
    if (cMP->treeStatus == TREE_NOT_READ)
      status = readSyntaxTree(*cMP, message);
    if (status != READ_GOOD) {
      std::string detail = orEmpty(cMP->filePrefix);
      if (!message.empty())
        detail += ": " + message;
      fatalError(fatalCodeOf(status), detail.c_str());
    }
    if (cMP == lstOfModRList)
      break;
  }
  if (backendVerbosity > 0)
    fputs("\n", stderr);
}

void initModuleInfoCache(ModRec &module)
{
  module.moduleInfoCache = {};
}

void initTypeInfoCache(ModRec &module)
{
  size_t types = static_cast<size_t>(mNode.counts[REC_TNODE]);
  module.typeInfoCache.assign(types + 1, InfoCache{});
}

void initBackendVars()
{
  if (!bOfModRList)
    fatalError(FATAL_INTERNAL, "No module record list.");
  clearCursors();
  for (ModRec *module = bOfModRList; module; module = module->next) {
    if (module->treeStatus == TREE_PREDEFINED)
      continue;
    readRec(module, REC_MNODE, 1);
    initNextFree(*module);
    module->firstType = mNode.firstType;
    module->firstValue = mNode.firstValue;
    module->visibilityMode = mNode.visibilityMode;
    initModuleInfoCache(*module);
    initTypeInfoCache(*module);
  }
}

void resetLoading()
{
  firstPrefixLen = 0;
}
