// A run from start to end, and the generation of one module.

#include "driver/quorven.h"
#include "ade/browser.h"
#include "ade/summary.h"
#include "base/diag.h"
#include "cbet/errorformat.h"
#include "driver/extmeta.h"
#include "driver/meta.h"
#include "driver/modfiles.h"
#include "driver/start.h"
#include "driver/usagetext.h"
#include "per/decoder.h"
#include "per/encoder.h"
#include "per/variant.h"
#include "store/module.h"
#include <cstdio>
#include <new>

constexpr int toolVersion = 101;  // 1.01
constexpr int toolPatchLevel = 3;

// The copyright sign is one octet of Latin-1.
static const char toolCopyright[] =
    "Copyright \xA9 1997-2002 The QUORVEN developers. All rights reserved.";

const std::string &formatToolCopyright()
{
  static std::string text;
  if (!text.empty())
    return text;
  for (const char *c = toolCopyright; *c; ++c) {
    if (static_cast<unsigned char>(*c) == 0xA9)
      text += "(c)";
    else
      text += *c;
    if (*c != '.')
      continue;
    text += '\n';
    while (c[1] == ' ')
      ++c;
  }
  return text;
}

void printProgInfo(AsnModule &module)
{
  if (getMetaVerbosity(module) == 0)
    return;
  std::string text = "\n" + backendName + " ";
  std::string version;
  text += printVersionStri(version, "Version ", backendVersion,
                           backendPatchLevel, nullptr);
  text += printVersionStri(version, " for ZELK Version ", treeVersionAccepted,
                           0, "\n");
  text += formatToolCopyright() + "\n";
  printf("%s\n", text.c_str());
}

void printDone(AsnModule &module)
{
  verboseMsg(module, getMetaVerbosity(module), "done");
}

// The module's node in the IDE's tree.
static void beginModuleNode(const AsnModule &module)
{
  g_adeModuleNode =
      adeBrowserNewModuleNode(module, "ASN.1 module", nullptr, nullptr);
  adeBrowserInsertSubNode(*g_adeBrowserTree, g_adeModuleNode, 1);
}

void genModule(AsnModule &module)
{
  std::string text;
  verboseMsg(module, 2,
             getModuleRef(text, "generating ", module, nullptr).c_str());
  resetStamps();
  openModuleFiles(module);
  if (adeIsActive())
    beginModuleNode(module);
  perSetEncodingVariant(getMetaEncodingVariant(module));
  generatePEREncodingFunctions(module);
  generatePERDecodingFunctions(module);
  generateLogFile(module);
  closeModuleFiles();
}

static void beginSideFiles()
{
  adeSummaryOpenFile();
  g_adeBrowserTree = adeBrowserNewProjectTree("Type", nullptr, nullptr);
}

static void endSideFiles()
{
  adeBrowserPrintTree(g_adeBrowserTree, g_adeTreeFileSuffix.c_str());
  adeBrowserDeleteTree(g_adeBrowserTree);
  adeSummaryCloseFile();
}

static void noMemory()
{
  fatalError(FATAL_NO_MEMORY);
}

int quorven_main(int count, char **vector)
{
  std::set_new_handler(noMemory);
  newString(g_adeTreeFileSuffix, ".apd");
  initExtMeta();
  cInitCBET(count, vector, "QUORVEN", toolVersion, toolPatchLevel,
            quorvenUsage);
  cSetErrorReportingFunctionFormat("asnPERError (ASNG_F(asnperg) %s);\n");
  if (adeIsActive())
    beginSideFiles();
  forFirstModule(printProgInfo);
  forEachModule(genModule);
  if (adeIsActive())
    endSideFiles();
  forFirstModule(printDone);
  return 0;
}
