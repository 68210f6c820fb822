// Circles among imports: a table of who imports from whom, and a search along
// it. Beside its row the modules are listed that a module imports from, and
// those that import from it, so that a search costs what there are imports; one
// search serves all pairs that begin with a module.

#include "cbet/importstatus.h"
#include "base/diag.h"
#include "store/modrec.h"
#include <algorithm>
#include <vector>

int32_t g_moduleCount;

// Bit of the module info cache that holds the answer.
constexpr int circularBit = 5;

// One row: the module, its status to each module, to whom it is not 0, and
// whose status to the module is not 0.
struct ImportRow {
  ModRec *module = nullptr;
  std::vector<int32_t> status;
  std::vector<int32_t> related;
  std::vector<int32_t> importers;
  int32_t circles = 0;  // other modules with `IMPORT_CIRCULAR`
};

static std::vector<ImportRow> g_importStatusTable;

// Whose imports are being visited.
static AsnModule *g_importingModule;

// --- the table --------------------------------------------------------------

void initModuleCount()
{
  g_moduleCount = 0;
  for (ModRec *module = bOfModRList; module; module = module->next)
    ++g_moduleCount;
}

void initImportStatusTable()
{
  g_importStatusTable.clear();
  for (ModRec *module = bOfModRList; module; module = module->next)
    g_importStatusTable.push_back(
        {.module = module,
         .status = std::vector<int32_t>(static_cast<size_t>(g_moduleCount)),
         .related = {},
         .importers = {}});
}

void deleteImportStatusTable()
{
  g_importStatusTable.clear();
}

static ImportRow &rowOf(int32_t row)
{
  return g_importStatusTable[static_cast<size_t>(row)];
}

static int32_t &cell(int32_t row, int32_t column)
{
  if (row < 0 || row >= g_moduleCount || column < 0 ||
      column >= g_moduleCount ||
      static_cast<size_t>(std::max(row, column)) >= g_importStatusTable.size())
    fatalError(FATAL_INTERNAL, "cbet0: Status table index overflow");
  return rowOf(row).status[static_cast<size_t>(column)];
}

void setImportStatus(int32_t row, int32_t column, int32_t status)
{
  int32_t &place = cell(row, column);
  if (place == IMPORT_NONE && status != IMPORT_NONE) {
    rowOf(row).related.push_back(column);
    rowOf(column).importers.push_back(row);
  }
  if (row != column)
    rowOf(row).circles +=
        (status == IMPORT_CIRCULAR) - (place == IMPORT_CIRCULAR);
  place = status;
}

int32_t getImportStatus(int32_t row, int32_t column)
{
  return cell(row, column);
}

void setImportStatusByMod(const AsnModule &row, const AsnModule &column,
                          int32_t status)
{
  setImportStatus(getUniqueModuleNr(row), getUniqueModuleNr(column), status);
}

int32_t getImportStatusByMod(const AsnModule &row, const AsnModule &column)
{
  return getImportStatus(getUniqueModuleNr(row), getUniqueModuleNr(column));
}

// --- who imports from whom --------------------------------------------------

static void noteExporter(AsnModule &exporter)
{
  AsnModule &importer = *g_importingModule;
  switch (getImportStatusByMod(exporter, importer)) {
  case IMPORT_NONE:
    setImportStatusByMod(importer, exporter, IMPORT_ONE_WAY);
    break;
  case IMPORT_ONE_WAY:
  case IMPORT_CIRCULAR:
    setImportStatusByMod(exporter, importer, IMPORT_CIRCULAR);
    setImportStatusByMod(importer, exporter, IMPORT_CIRCULAR);
    break;
  default:
    setImportStatusByMod(importer, exporter, IMPORT_NONE);
  }
}

static void determineDirectModuleImportStatus(AsnModule &module)
{
  g_importingModule = &module;
  forEachExportingModule(module, noteExporter);
  g_importingModule = nullptr;
}

// --- circles through others -------------------------------------------------

// Tells of each module but `a` whether what it imports from leads back to `a`,
// or into a circle that is known: the search starts there and runs against the
// imports, to each module once.
static std::vector<bool> searchCircularity(int32_t a)
{
  std::vector<bool> isFound(g_importStatusTable.size());
  std::vector<int32_t> waiting;
  auto add = [&](int32_t at) {
    if (at == a || isFound[static_cast<size_t>(at)])
      return;
    isFound[static_cast<size_t>(at)] = true;
    waiting.push_back(at);
  };
  for (int32_t at = 0; at < g_moduleCount; ++at)
    if (getImportStatus(at, a) != IMPORT_NONE || rowOf(at).circles > 0)
      add(at);
  while (!waiting.empty()) {
    int32_t at = waiting.back();
    waiting.pop_back();
    for (int32_t importer : rowOf(at).importers)
      if (getImportStatus(importer, at) == IMPORT_ONE_WAY)
        add(importer);
  }
  return isFound;
}

// A circle that is found counts for the modules that follow. For the pairs of
// the same module it makes no difference: no search looks at the row of the
// module that it is for.
static void determineIndirectModuleImportStatus()
{
  for (int32_t i = 0; i < g_moduleCount; ++i) {
    if (rowOf(i).related.empty())
      continue;
    std::vector<bool> isFound = searchCircularity(i);
    for (int32_t j : rowOf(i).related)
      if (i != j && getImportStatus(i, j) == IMPORT_ONE_WAY &&
          isFound[static_cast<size_t>(j)])
        setImportStatus(i, j, IMPORT_CIRCULAR);
  }
}

static void initImportStatus()
{
  for (const ImportRow &row : g_importStatusTable) {
    bool isCircular = false;
    for (int32_t status : row.status)
      isCircular = isCircular || status == IMPORT_CIRCULAR;
    setModuleInfoCacheBetFlag(row.module->moduleInfoCache, circularBit,
                              isCircular);
  }
}

bool cIsCircularImports(AsnModule &module)
{
  InfoCache &cache = getModuleInfoCache(module);
  if (!(cache.known >> circularBit & 1)) {
    ModRec *current = cMP;
    initModuleCount();
    initImportStatusTable();
    forEachModule(determineDirectModuleImportStatus);
    determineIndirectModuleImportStatus();
    initImportStatus();
    deleteImportStatusTable();
    cMP = current;
  }
  return cache.value >> circularBit & 1;
}
