// Circles among imports: a table of who imports from whom, and a search along
// it for each pair. What a module imports from is listed beside its row, so
// that the search costs what there are imports and not what there are
// modules.

#include "cbet/importstatus.h"
#include "base/diag.h"
#include "store/modrec.h"
#include <vector>

int32_t g_moduleCount;

// Bit of the module info cache that holds the answer.
constexpr int circularBit = 5;

// One row: the module, its status to each module, and to whom it is not 0.
struct ImportRow {
  ModRec *module = nullptr;
  std::vector<int32_t> status;
  std::vector<int32_t> related;
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
         .related = {}});
}

void deleteImportStatusTable()
{
  g_importStatusTable.clear();
}

static int32_t &cell(int32_t row, int32_t column)
{
  if (row < 0 || row >= g_moduleCount || column < 0 ||
      column >= g_moduleCount ||
      static_cast<size_t>(row) >= g_importStatusTable.size())
    fatalError(FATAL_INTERNAL, "cbet0: Status table index overflow");
  return g_importStatusTable[static_cast<size_t>(row)]
      .status[static_cast<size_t>(column)];
}

void setImportStatus(int32_t row, int32_t column, int32_t status)
{
  int32_t &place = cell(row, column);
  if (place == IMPORT_NONE && status != IMPORT_NONE)
    g_importStatusTable[static_cast<size_t>(row)].related.push_back(column);
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

// True if what `b` imports from leads back to `a`, or into a circle that is
// known. Each module is looked at once: another visit would tell nothing new.
static bool searchCircularity(int32_t a, int32_t b)
{
  static std::vector<int32_t> searched;  // by module: the last search
  static int32_t search;
  if (++search == 1 || searched.size() != g_importStatusTable.size()) {
    search = 1;
    searched.assign(g_importStatusTable.size(), 0);
  }
  std::vector<int32_t> waiting = {b};
  searched[static_cast<size_t>(b)] = search;
  while (!waiting.empty()) {
    int32_t at = waiting.back();
    waiting.pop_back();
    if (getImportStatus(at, a) != IMPORT_NONE)
      return true;
    for (int32_t k : g_importStatusTable[static_cast<size_t>(at)].related) {
      int32_t status = getImportStatus(at, k);
      if (k != at && status == IMPORT_CIRCULAR)
        return true;
      bool isNew = searched[static_cast<size_t>(k)] != search;
      if (status != IMPORT_ONE_WAY || k == a || !isNew)
        continue;
      searched[static_cast<size_t>(k)] = search;
      waiting.push_back(k);
    }
  }
  return false;
}

// A circle that is found counts for the pairs that follow.
static void determineIndirectModuleImportStatus()
{
  for (int32_t i = 0; i < g_moduleCount; ++i)
    for (int32_t j : g_importStatusTable[static_cast<size_t>(i)].related)
      if (i != j && getImportStatus(i, j) == IMPORT_ONE_WAY &&
          searchCircularity(i, j))
        setImportStatus(i, j, IMPORT_CIRCULAR);
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
