// The texts that end a run before it begins.

#include "options/usage.h"
#include "base/diag.h"
#include "store/stamp.h"

void usage()
{
  for (const char *const *line = backendUsage; line && *line; ++line)
    fprintf(stderr, "%s\n", *line);
  endRun(1);
}

void printVersionInfo(FILE *stream, const char *name, int version, int patch,
                      int firstYear, int lastYear)
{
  std::string ours, trees;
  printVersionStri(ours, nullptr, version, patch, nullptr);
  printVersionStri(trees, nullptr, treeVersionAccepted, 0, nullptr);
  fprintf(stream, "\n%s version %s for ZELK version %s\n", name, ours.c_str(),
          trees.c_str());
  fprintf(stream, "Copyright (c) %d-%d The %s developers\n\n", firstYear,
          lastYear, name);
}

void printVersionAndExit()
{
  printVersionInfo(stdout, backendName.c_str(), backendVersion,
                   backendPatchLevel, copyrightFirstYear, copyrightLastYear);
  endRun(0);
}
