#pragma once
#include <string>

// Directories and files of tests. Whatever fails here ends the process with
// a message: a test can't go on without its files.

// A fresh directory under the system's own for temporary files, removed with
// all it holds when the scope ends. A test that takes away permissions in it
// gives them back.
struct TempDir {
  std::string path;  // ends in "/"
  TempDir();
  ~TempDir();
  TempDir(const TempDir &) = delete;
  TempDir &operator=(const TempDir &) = delete;
};

// Writes exactly these bytes, over whatever was there; the directory exists.
void writeFile(const std::string &path, const std::string &bytes);

// All bytes of the file.
std::string readFile(const std::string &path);

// True for anything of that name, a directory included.
bool fileExists(const std::string &path);
