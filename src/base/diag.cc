// Diagnostics: the table of fatal errors, the levels, and the few shapes in
// which the tool speaks. Messages about options go to stderr where they
// arise; what the model and the generators have to say goes to stdout.

#include "base/diag.h"
#include "base/strings.h"
#include "base/upcalls.h"
#include <cstdio>
#include <iterator>

std::string backendName;
int backendVersion;
int backendPatchLevel;
const char *const *backendUsage;
int backendVerbosity;
int verboseEx = 3;

const FatalError allFatalErrors[19] = {
    {FATAL_OPEN_READ, "Can not open file for reading", 2},
    {FATAL_OPEN_WRITE, "Can not open file for writing", 2},
    {FATAL_MODULE_NAME, "Can not find module name", 2},
    {FATAL_PATH_IDENTIFIER, "Can not add identifier to path", 2},
    {FATAL_NO_MEMORY, "Can not allocate space", 2},
    {FATAL_READ_FILE, "Can not read from file", 2},
    {FATAL_WRITE_FILE, "Can not write into file", 2},
    {FATAL_CLOSE_FILE, "Can not close file", 2},
    {FATAL_READ_RECORD, "Can not read record from syntax tree", 2},
    {FATAL_WRITE_RECORD, "Can not write record into syntax tree", 2},
    {FATAL_VALUE_PARAMETER, "Can not initialize value parameter", 2},
    {FATAL_MODULE_FILE, "Can not map a modulereference with a file name", 2},
    {FATAL_INTERNAL, "Internal error", 2},
    {FATAL_END_OF_FILE, "Unexpected end of file", 2},
    {FATAL_TREE_INCONSISTENT, "Syntax tree inconsistent", 2},
    {FATAL_TREE_NOT_FOUND, "Syntax tree not found", 2},
    {FATAL_TREE_INVALID, "Not a valid syntax tree", 2},
    {FATAL_NO_CALL_BACK, "Call-back function not defined.", 2},
    {FATAL_UNKNOWN, "Unexpected error code", 2},
};

void fatalError(int code, const char *detail)
{
  const FatalError *row = std::begin(allFatalErrors);
  while (row != std::end(allFatalErrors) - 1 && row->code != code)
    ++row;
  fprintf(stderr, "\nFATAL ERROR : %s\n", row->text);
  if (detail)
    fprintf(stderr, "              %s\n", detail);
  fputs("\n", stderr);
  if (adeIsActive())
    adeSummaryFatalError(row->text, detail);
  endRun(row->status);
}

void setBackendVerbosity(int level)
{
  backendVerbosity = level;
}

void verboseMsg(const AsnModule &module, int level, const char *text)
{
  int verbosity = getMetaVerbosity(module);
  if (verbosity != 0 && verbosity >= level && verboseEx >= 3)
    printf("%s>>> %s\n", backendName.c_str(), text);
}

static void warningLine(const char *indent, const char *text)
{
  if (verboseEx > 1)
    printf("Warning     %s%s %s\n", backendName.c_str(), indent, text);
}

void warning(const char *text)
{
  warningLine("", text);
}

void indWarning(const char *text)
{
  warningLine("    ", text);
}

void bugInTool(const char *text)
{
  warning(text);
}

void placeWarning(const char *path, int line, const char *location,
                  const char *text, bool indented)
{
  std::string shown = location;
  convertUnderscores(shown);
  if (verboseEx > 1)
    printf("%s(%d) : Warning     %s %s\n", path, line, backendName.c_str(),
           shown.c_str());
  if (indented)
    indWarning(text);
  else
    warning(text);
}

void helpWithTool() {}

void newString(std::string &variable, const char *text)
{
  if (text)
    variable = text;
}
