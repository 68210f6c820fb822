#pragma once
#include "stx/stxread.h"
#include <span>

// Prints trees as text: what is reached from the header as nested lines, what
// is reached by no chain after it, then the strings. A record is printed once
// and referred to by number after that.

// Prints as much as was read.
void stxDump(const StxFile &file, FILE *out);

// The program: prints the files, or with "--check" only their faults.
// `arguments` are those behind the program's name. Gives the exit status: 0,
// 1 for a fault or a file that cannot be read, 2 for wrong usage.
int stxDumpRun(std::span<const char *const> arguments, FILE *out,
               FILE *messages);
