#pragma once

// The fragments by which generated code reports an error.

// "%s" is the error's name.
extern const char *const defaultErrorReportingFunctionFormat;
extern const char *g_errorReportingFunctionFormat;

// Sets the fragment, which must live until the process ends; null brings the
// default back.
void cSetErrorReportingFunctionFormat(const char *format);

void cReportError(int file, const char *name);
void cReportFatalError(int file, int gIndex, const char *name);
