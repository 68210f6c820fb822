// Broken trees: a whole run over one, then every walk over its nodes.

#include "harness.h"
#include "options/fixrec.h"
#include "store/module.h"
#include "store/typenode.h"
#include "store/valuenode.h"

static void walkType(ModRec *module, int32_t index)
{
  readRec(module, REC_TNODE, index);
  FixRec names;
  getFixRec(names, FIX_TYPE);
  isTypeTNode();
  isObjSetTNode();
  int32_t position = 0;
  findTypeCompById(module, tNode.ref, "a", position);
  int32_t number = 3;
  readRec(module, REC_TNODE, index);
  findByInd(module, tNode.ref, number);
}

static void walkValue(ModRec *module, int32_t index)
{
  readRec(module, REC_VNODE, index);
  isObjVNode();
  FixRec names;
  getFixRec(names, FIX_VALUE);
  findValueCompById(module, vNode.firstChild, "a");
}

// One node a call: a bad one ends its own walk only.
static ModRec *walked;
static int32_t walkedIndex;

static void walkNodes()
{
  static std::string prefix = "fuzz";
  ModRec *module = appendModRec(true);
  module->options.prefixLen = 5;
  setModulePrefixes(*module, prefix.c_str(), prefix.c_str());
  stxDir = fuzzDirectory();
  std::string message;
  walked = nullptr;
  if (readSyntaxTree(*module, message) != READ_GOOD)
    return;
  initBackendVars();
  walked = module;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
  writeFuzzFile("fuzz.stx", data, size);
  runTool({"-S=" + fuzzDirectory(), "-PERCOD=1:1", "fuzz"});
  if (runGuarded(walkNodes) == 0 && walked) {
    int32_t types = static_cast<int32_t>(walked->tNodes.records.size());
    int32_t values = static_cast<int32_t>(walked->vNodes.records.size());
    for (walkedIndex = 1; walkedIndex <= types; ++walkedIndex)
      runGuarded([] { walkType(walked, walkedIndex); });
    for (walkedIndex = 1; walkedIndex <= values; ++walkedIndex)
      runGuarded([] { walkValue(walked, walkedIndex); });
    runGuarded([] { findTypeById(walked, "PDU"); });
    runGuarded([] { findValueById(walked, "a"); });
  }
  resetStore();
  return 0;
}
