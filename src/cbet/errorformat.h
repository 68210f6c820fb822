#pragma once

// The fragment by which generated code reports an error; "%s" is the error's
// name.
extern const char *const defaultErrorReportingFunctionFormat;
extern const char *g_errorReportingFunctionFormat;

// Sets the fragment, which must live until the process ends; null brings the
// default back.
void cSetErrorReportingFunctionFormat(const char *format);
