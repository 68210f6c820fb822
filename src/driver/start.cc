// Start-up. The order matters: nothing can be loaded before the parameters
// are known, no option of a tree applies before that tree is in memory, and
// the command line comes last, so that it has the last word.

#include "driver/start.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "model/constraint.h"
#include "model/infvalue.h"
#include "model/typepath.h"
#include "options/params.h"
#include "options/passes.h"
#include "store/module.h"
#include <cstdio>

static void progress(const char *text)
{
  if (backendVerbosity > 0)
    fputs(text, stderr);
}

// The option pass for one module, and the back-end's options among what it
// appended.
static void applyCommandLine(ModRec &module, int count, char **vector)
{
  cMP = &module;
  module.commandLineTed = {};
  progress(formatText("  %s", orEmpty(module.generationPrefix)).c_str());
  unsigned flags = 0;
  parseCmdLineOptions(count, vector, flags, module.commandLineTed);
  checkGlobalBEOptions(module, module.commandLineTed);
}

void initBackend(int count, char **vector, const char *name, int version,
                 int patchLevel, const char *const *usageText)
{
  newString(backendName, name);
  backendVersion = version;
  backendPatchLevel = patchLevel;
  backendUsage = usageText;
  clearOutFiles();
  // The only reading of the clock in a run.
  getTimeStamp(timeStamp);
  cMP = appendModRec(true);
  progress("  Parsing command line parameters ...\n");
  parseCmdLineParams(count, vector);
  readAllSyntaxTrees();
  removeUnreferencedModuleRecords();
  initBackendVars();
  progress("  Parsing command line options ...\n");
  for (ModRec *module = bOfModRList; module; module = module->next)
    if (module->treeStatus != TREE_PREDEFINED)
      applyCommandLine(*module, count, vector);
  progress("\n");
  initializeAsnTypes();
  initializeAsnConstraints();
}

void cInitCBET(int count, char **vector, const char *name, int version,
               int patchLevel, const char *const *usageText)
{
  cSetErrorReportingFunctionFormat(nullptr);
  initBackend(count, vector, name, version, patchLevel, usageText);
  setInfValueStri("MIN_LONG", "MAX_LONG", "MINREAL", "MAXREAL");
  cInitVars();
}
