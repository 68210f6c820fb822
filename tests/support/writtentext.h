#pragma once
#include "cbet/outfile.h"
#include "support/tempdir.h"
#include <functional>
#include <set>
#include <string>

// Texts that writers of generated code leave in an output file.

typedef std::function<void(int file)> TextWriter;

// All that is written, with `ahead` in front of it.
inline std::string writtenText(const TextWriter &write,
                               const std::string &ahead = "")
{
  constexpr int file = 1;
  TempDir dir;
  clearOutFiles();
  openNamedF(file, dir.path.c_str(), "out.c");
  putToF(file, ahead.c_str());
  write(file);
  closeF(file);
  clearOutFiles();
  return readFile(dir.path + "out.c");
}

// What stands behind the line break that is added, for each place where one
// may fall: the texts that lines are broken into, each with its successors.
inline std::set<std::string> brokenTexts(const TextWriter &write)
{
  // As far as a line goes.
  constexpr size_t lineLength = 78;
  const std::string whole = writtenText(write);
  std::set<std::string> rests;
  for (size_t length = 3; length <= lineLength; ++length) {
    const std::string ahead(length, '-');
    const std::string text = writtenText(write, ahead);
    if (text == ahead + whole)
      continue;
    // The continuation is indented by two.
    rests.insert(text.substr(text.find('\n') + 3));
  }
  return rests;
}
