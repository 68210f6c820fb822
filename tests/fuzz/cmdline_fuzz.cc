// Broken command lines, over a good tree: each line of the input is an
// argument.

#include "harness.h"
#include "stx/stxwrite.h"
#include <unistd.h>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
  StxTree tree = stxNewTree("Fuzz", "fuzz");
  stxDefineType(tree, "PDU", stxNewTNode(TYP_INTEGER, VF_I32));
  if (chdir(fuzzDirectory().c_str()) != 0 || !stxWrite(tree, "fuzz.stx"))
    return 1;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
  std::vector<std::string> arguments(1);
  for (size_t i = 0; i < size; ++i) {
    if (data[i] == '\n')
      arguments.emplace_back();
    else if (data[i] != 0)
      arguments.back() += static_cast<char>(data[i]);
  }
  // An option file of that name would be whatever lies around.
  for (std::string &argument : arguments)
    if (!argument.empty() && argument[0] == '+' &&
        argument.find('/') != std::string::npos)
      argument = "+run.opt";
  runTool(arguments);
  return 0;
}
