// Broken option files, over a good tree.

#include "harness.h"
#include "stx/stxwrite.h"

static void writeTree()
{
  StxTree tree = stxNewTree("Fuzz", "fuzz");
  TNode type = stxNewTNode(TYP_INTEGER, VF_I32);
  type.entryFlags = 0x4C;
  stxDefineType(tree, "PDU", type);
  stxWrite(tree, (fuzzDirectory() + "fuzz.stx").c_str());
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
  writeTree();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
  writeFuzzFile("run.opt", data, size);
  std::string directory = fuzzDirectory();
  runTool({"fuzz", "+" + directory + "run.opt", "-S=" + directory});
  return 0;
}
