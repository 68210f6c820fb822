// Pieces of the calls for leaves.

#include "per/perleaf.h"
#include "base/strings.h"
#include "cbet/outfile.h"
#include "per/perlength.h"
#include <algorithm>
#include <cstring>

void perStringCallToF(int file, const char *name, const char *home,
                      int32_t lower, int32_t upper, int count)
{
  wToF(file, name);
  wToF(file, home);
  printfToF(file, home ? " %d," : "%d,", lower);
  if (upper == sizeWithoutEnd)
    wToF(file, " MAXLONG,");
  else
    printfToF(file, " %d,", upper);
  printfToF(file, " %d);\n", count);
}

std::string &substituteSubString(std::string &text, const char *target,
                                 const char *replacement)
{
  size_t place = text.find(*target);
  if (*target == '\0' || place == std::string::npos)
    return text;
  size_t length = std::min(strlen(target), text.size() - place);
  return text.replace(place, length, replacement);
}

std::string &perUnknownMultiplierName(std::string &name)
{
  return substituteSubString(name, "OctetString", "UnknownMultiCharStri");
}
