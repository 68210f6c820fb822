// The makefile writer: one file, and the length of the rule's line that is
// being written.

#include "ade/makefile.h"
#include "ade/summary.h"
#include "base/strings.h"
#include <cstring>

constexpr const char *makefileEnding = "mak";  // no dot: PREFIXmak
constexpr size_t lineLimit = 76;               // characters
constexpr const char *continuation = "\\\n    ";
constexpr size_t continuationIndent = 4;

static struct MakefileRun {
  AdeFile file;
  size_t column = 0;  // characters in the current line of a rule
} makefileRun;

void adeMakefileOpenFile()
{
  if (makefileRun.file.stream)
    return;
  adeOpenFile(makefileRun.file, makefileEnding, "w");
  makefileRun.column = 0;
}

void adeMakefileCloseFile()
{
  adePutText(makefileRun.file, "\n");
  adeCloseFile(makefileRun.file);
}

void adeMakefileTarget(const char *name)
{
  adePutText(makefileRun.file, formatText("\n%s :", name));
  makefileRun.column = strlen(name) + 2;
}

void adeMakefileDependency(const char *name)
{
  size_t length = strlen(name);
  // The backslash is not counted: a broken line can reach 77 columns.
  if (length + makefileRun.column + 1 > lineLimit) {
    adePutText(makefileRun.file, continuation);
    makefileRun.column = continuationIndent;
  }
  adePutText(makefileRun.file, formatText(" %s", name));
  makefileRun.column += length + 1;
}

void adeMakefileCommand(const char *text)
{
  adePutText(makefileRun.file, formatText("\t%s\n", text));
}
