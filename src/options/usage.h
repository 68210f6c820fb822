#pragma once
#include <cstdio>

// Prints the back-end's usage text on stderr and ends the run with status 1.
[[noreturn]] void usage();

// Prints name, version and copyright.
void printVersionInfo(FILE *stream, const char *name, int version, int patch,
                      int firstYear, int lastYear);

// The same for this back-end on stdout; ends the run with status 0.
[[noreturn]] void printVersionAndExit();

// The copyright line, without the line end, for a span of years.
constexpr int copyrightFirstYear = 1997;
constexpr int copyrightLastYear = 2002;
