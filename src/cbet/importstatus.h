#pragma once
#include "store/module.h"
#include <cstdint>

// Circles among the imports of the modules of a run, by which a generator
// knows whether its include files can be put in order.

// What row i, column j of the table says.
enum ImportStatus : int32_t {
  IMPORT_NONE = 0,
  IMPORT_ONE_WAY = 1,  // i imports from j
  IMPORT_CIRCULAR = 2  // each imports from the other, maybe through others
};

// True if the module takes part in a circle, or imports from one that does.
// Worked out once for all modules of the run; `cMP` is as before.
bool cIsCircularImports(AsnModule &module);

// The table, which exists while it is worked out; by the modules' positions
// in the whole list. Fatal error 13 beyond it.
void setImportStatus(int32_t row, int32_t column, int32_t status);
int32_t getImportStatus(int32_t row, int32_t column);
void setImportStatusByMod(const AsnModule &row, const AsnModule &column,
                          int32_t status);
int32_t getImportStatusByMod(const AsnModule &row, const AsnModule &column);

// The table's making and end, which `cIsCircularImports` sees to.
extern int32_t g_moduleCount;
void initModuleCount();
void initImportStatusTable();
void deleteImportStatusTable();
