#pragma once
#include "base/upcalls.h"
#include <cstdint>
#include <cstdio>
#include <string>

// Side files for an IDE. They are active once ADE-PREFIX is set; each is
// named by that prefix and a fixed ending, in ADE-DIRECTORY. Here: the two
// options, the files as such, and the summary, to which every run adds its
// warnings and fatal errors. `adeIsActive`, `adeIsADEOption`, `adeOptionOK`
// and `adeSummaryFatalError` are declared in base/upcalls.h.

// What the two options set; one for the whole run, the last option wins.
struct AdeRecord {
  std::string prefix;     // empty: the side files are not active
  std::string directory;  // ends in "/"; empty: the current one
};
extern AdeRecord adeRecord;

// Opens prefix + name in the directory. Without a prefix it is fatal error 1
// for a mode starting with "r" and 2 otherwise.
FILE *adeOpenTextFile(const char *name, const char *mode);

// A side file; the path is kept for messages.
struct AdeFile {
  FILE *stream = nullptr;  // null: closed
  std::string path;
};

// As `adeOpenTextFile`; a file that is open stays as it is.
void adeOpenFile(AdeFile &file, const char *name, const char *mode);

// Writes the text; fatal error 7 if that fails. Nothing for a closed file.
void adePutText(AdeFile &file, const std::string &text);

// Closes the file; fatal error 8 if that fails. Nothing for a closed file.
void adeCloseFile(AdeFile &file);

// The summary may be opened several times over: only the outermost pair of
// calls opens and closes. A close too many is passed over.
void adeSummaryOpenFile();
void adeSummaryCloseFile();

// The writers do nothing while the summary is closed.

// A title in brackets, on a line.
void adeSummaryBeginBlock(const char *title);

// The text on a line.
void adeSummaryMessage(const char *text);

// A text about a line of a source; `directory` may be null. A text that ends
// in a newline gets no other.
void adeSummaryWarning(const char *directory, const char *file, int32_t line,
                       const char *kind, const char *text);
