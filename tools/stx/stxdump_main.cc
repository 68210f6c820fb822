// Prints syntax tree files.

#include "stx/stxdump.h"

int main(int argc, char *argv[])
{
  size_t count = argc > 0 ? static_cast<size_t>(argc - 1) : 0;
  return stxDumpRun({argv + 1, count}, stdout, stderr);
}
