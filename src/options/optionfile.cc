// Lines of option files.

#include "options/optionfile.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/textfile.h"
#include <algorithm>
#include <cstring>

// What a comment begins with.
static const char *const magicStrings[] = {"/*", "*/", "//", "(*",
                                           "*)", "--", "#",  "$"};

FILE *openOptionFile(const char *path)
{
  if (*path == 0)
    fatalError(FATAL_OPEN_READ, "(No option file name specified)");
  return fopenTextFile(nullptr, path, "r");
}

bool readOptionFileLine(FILE *stream, std::string &line)
{
  line.clear();
  int c = getc(stream);
  if (c == EOF)
    return false;
  while (c != EOF && c != '\n') {
    line += static_cast<char>(c);
    // The line end behind a line of full length belongs to it.
    bool full = line.size() == maxOptionLine;
    c = getc(stream);
    if (full && c != '\n') {
      ungetc(c, stream);
      break;
    }
  }
  // A text ends at its first zero octet.
  line.resize(strlen(line.c_str()));
  remSpaces(line);
  return true;
}

bool isCommentLine(const std::string &line)
{
  return std::any_of(
      std::begin(magicStrings), std::end(magicStrings),
      [&](const char *magic) { return startsWith(line.c_str(), magic); });
}

bool beginsWithMark(const std::string &line, const char *mark)
{
  return strnCaseComp(line.c_str(), mark, strlen(mark)) == 0;
}
