// Text files by directory and name, opened or fatal.

#include "base/textfile.h"
#include "base/diag.h"
#include "base/strings.h"

FILE *fopenTextFile(const char *directory, const char *name, const char *mode)
{
  std::string path = orEmpty(directory);
  path += orEmpty(name);
  int code = mode[0] == 'w' ? FATAL_OPEN_WRITE : FATAL_OPEN_READ;
  if (path.size() > maxPath)
    fatalError(code);
  FILE *stream = fopen(path.c_str(), mode);
  if (!stream)
    fatalError(code, path.c_str());
  return stream;
}

void addDirToSearchPath(SearchPath &path, const char *directory)
{
  if (*orEmpty(directory))
    path.push_back({directory});
}

FILE *fopenTextFileInSearchPathForRd(const SearchPath &path, const char *name,
                                     std::string &found)
{
  for (const SearchPathRec &place : path) {
    if (FILE *stream = fopen((place.directory + name).c_str(), "r")) {
      found = place.directory;
      return stream;
    }
  }
  FILE *stream = fopen(name, "r");
  if (!stream)
    fatalError(FATAL_OPEN_READ, name);
  found.clear();
  return stream;
}
