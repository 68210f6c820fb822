// Broken trees, for the dump and its checks.

#include "stx/stxcheck.h"
#include "stx/stxdump.h"
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
  static FILE *nowhere = fopen("/dev/null", "w");
  StxFile file;
  StxFaults faults;
  stxParse(file, std::string(reinterpret_cast<const char *>(data), size),
           faults);
  stxDump(file, nowhere);
  stxCheck(file, true, faults);
  return 0;
}
