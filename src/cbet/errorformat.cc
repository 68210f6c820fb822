// The fragments by which generated code reports an error.

#include "cbet/errorformat.h"
#include "base/strings.h"
#include "cbet/outfile.h"

const char *const defaultErrorReportingFunctionFormat =
    "reportError (ASNG_F(asncodg) %s);\n";

const char *g_errorReportingFunctionFormat =
    defaultErrorReportingFunctionFormat;

void cSetErrorReportingFunctionFormat(const char *format)
{
  g_errorReportingFunctionFormat =
      format ? format : defaultErrorReportingFunctionFormat;
}

void cReportError(int file, const char *name)
{
  printfToF(file, g_errorReportingFunctionFormat, name);
}

// The run-time's function takes no generation argument.
void cReportFatalError(int file, int, const char *name)
{
  printfToF(file, "reportFatalError (%s);\n", name);
}
