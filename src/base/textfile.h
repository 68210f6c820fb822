#pragma once
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

// Text files by directory and name, opened or fatal.

// Closes the stream when the scope ends.
struct CloseFile {
  void operator()(FILE *stream) const { fclose(stream); }
};
typedef std::unique_ptr<FILE, CloseFile> OpenedFile;

// Longest path that can be opened, in characters.
constexpr size_t maxPath = 1024;

// Opens directory + name (no "/" is added; either may be null). A path of
// more than 1024 characters, without detail, and a file that does not open,
// with the path, are fatal error 2 for a mode starting with "w" and 1
// otherwise.
FILE *fopenTextFile(const char *directory, const char *name, const char *mode);

// The directories to search, in order; each ends in "/".
struct SearchPathRec {
  std::string directory;
};
typedef std::vector<SearchPathRec> SearchPath;

// Appends a directory; an empty one is passed over.
void addDirToSearchPath(SearchPath &path, const char *directory);

// Opens the first file of that name for reading, the current directory being
// the last one tried; `found` gets the directory that served. Fatal error 1
// with the name if there is none.
FILE *fopenTextFileInSearchPathForRd(const SearchPath &path, const char *name,
                                     std::string &found);
