// Directories and files of tests.

#include "support/tempdir.h"
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

// No death test takes this for an ending of the tool: the tool never aborts.
[[noreturn]] static void giveUp(const char *what, const std::string &path)
{
  fprintf(stderr, "%s %s: %s\n", what, path.c_str(), strerror(errno));
  abort();
}

TempDir::TempDir()
{
  std::error_code error;
  std::filesystem::path base = std::filesystem::temp_directory_path(error);
  path = (error ? "/tmp" : base.string()) + "/quorven-XXXXXX";
  if (!mkdtemp(path.data()))
    giveUp("can not make", path);
  path += "/";
}

TempDir::~TempDir()
{
  std::error_code ignored;
  std::filesystem::remove_all(path, ignored);
}

void writeFile(const std::string &path, const std::string &bytes)
{
  FILE *file = fopen(path.c_str(), "wb");
  if (!file)
    giveUp("can not open", path);
  size_t written = fwrite(bytes.data(), 1, bytes.size(), file);
  if (fclose(file) != 0 || written != bytes.size())
    giveUp("can not write", path);
}

std::string readFile(const std::string &path)
{
  FILE *file = fopen(path.c_str(), "rb");
  if (!file)
    giveUp("can not open", path);
  std::string bytes;
  std::string piece(size_t(1) << 16, '\0');
  while (size_t count = fread(piece.data(), 1, piece.size(), file))
    bytes.append(piece, 0, count);
  if (ferror(file))
    giveUp("can not read", path);
  fclose(file);
  return bytes;
}

bool fileExists(const std::string &path)
{
  std::error_code ignored;
  return std::filesystem::exists(path, ignored);
}
