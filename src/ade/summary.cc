// The record of the IDE options, the opening, writing and closing that all
// side files share, and the summary.
//
// The summary is where a fatal error is told to the IDE, and its own faults
// are fatal errors too: `adeSummaryFatalError` therefore marks its entry
// before it touches the file, and the files are left in a consistent state
// before a fault is reported.

#include "ade/summary.h"
#include "base/diag.h"
#include "base/strings.h"
#include "base/textfile.h"
#include "options/validators.h"
#include <cstring>
#include <utility>

constexpr const char *summaryEnding = ".acs";

AdeRecord adeRecord;

// The summary of this run; it spans all modules.
static struct SummaryRun {
  AdeFile file;
  int opened = 0;             // calls of open without their close
  bool fatalEntered = false;  // a fatal error is being written, or was
} summaryRun;

bool adeIsActive()
{
  return !adeRecord.prefix.empty();
}

bool adeIsADEOption(const char *text)
{
  return strnCaseComp(text, "ADE-", strlen("ADE-")) == 0;
}

bool adeOptionOK(const char *option)
{
  static const char prefixName[] = "ADE-PREFIX=";
  static const char directoryName[] = "ADE-DIRECTORY=";
  if (startsWith(option, prefixName))
    return alnumSpecialStriOptionOK(adeRecord.prefix,
                                    option + strlen(prefixName), "-_", 1, 32);
  if (startsWith(option, directoryName))
    return directoryOptionOK(adeRecord.directory,
                             option + strlen(directoryName));
  return false;
}

FILE *adeOpenTextFile(const char *name, const char *mode)
{
  if (!adeIsActive())
    fatalError(mode[0] == 'r' ? FATAL_OPEN_READ : FATAL_OPEN_WRITE,
               "No ADE-PREFIX");
  return fopenTextFile(adeRecord.directory.c_str(),
                       (adeRecord.prefix + name).c_str(), mode);
}

void adeOpenFile(AdeFile &file, const char *name, const char *mode)
{
  if (file.stream)
    return;
  file.stream = adeOpenTextFile(name, mode);
  file.path = adeRecord.directory + adeRecord.prefix + name;
}

void adePutText(AdeFile &file, const std::string &text)
{
  if (file.stream && fputs(text.c_str(), file.stream) < 0)
    fatalError(FATAL_WRITE_FILE, file.path.c_str());
}

void adeCloseFile(AdeFile &file)
{
  // Closed first, path and all: a fault is told in the summary, which may be
  // this file, and opens it again.
  AdeFile closing = std::exchange(file, AdeFile{});
  if (closing.stream && fclose(closing.stream) != 0)
    fatalError(FATAL_CLOSE_FILE, closing.path.c_str());
}

void adeSummaryOpenFile()
{
  // Counted only once it is open: a fatal error on the way must not find it
  // counted and closed.
  if (summaryRun.opened == 0)
    adeOpenFile(summaryRun.file, summaryEnding, "a");
  ++summaryRun.opened;
}

void adeSummaryCloseFile()
{
  if (summaryRun.opened > 0 && --summaryRun.opened == 0)
    adeCloseFile(summaryRun.file);
}

void adeSummaryBeginBlock(const char *title)
{
  adePutText(summaryRun.file, formatText("[%s]\n", title));
}

void adeSummaryMessage(const char *text)
{
  adePutText(summaryRun.file, formatText("%s\n", text));
}

void adeSummaryWarning(const char *directory, const char *file, int32_t line,
                       const char *kind, const char *text)
{
  std::string message = formatText("%s%s:%d: %s : %s", orEmpty(directory), file,
                                   line, kind, text);
  if (message.back() != '\n')
    message += '\n';
  adePutText(summaryRun.file, message);
}

void adeSummaryFatalError(const char *text, const char *detail)
{
  if (summaryRun.fatalEntered)
    endRun(2);
  summaryRun.fatalEntered = true;
  adeSummaryOpenFile();
  adePutText(summaryRun.file, formatText("\nFATAL ERROR : %s\n", text));
  if (detail)
    adePutText(summaryRun.file, formatText("              %s\n", detail));
  adePutText(summaryRun.file, "\n");
  adeSummaryCloseFile();
}
