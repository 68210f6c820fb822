// The fragment by which generated code reports an error.

#include "cbet/errorformat.h"

const char *const defaultErrorReportingFunctionFormat =
    "reportError (ASNG_F(asncodg) %s);\n";

const char *g_errorReportingFunctionFormat =
    defaultErrorReportingFunctionFormat;

void cSetErrorReportingFunctionFormat(const char *format)
{
  g_errorReportingFunctionFormat =
      format ? format : defaultErrorReportingFunctionFormat;
}
