#pragma once
#include "store/modrec.h"

// The passes over options when trees are in memory: passes 2 and 3 over what
// a tree saved, the option pass over the command line, and the back-end's
// own lines of both. (checkGlobalOptions and checkGlobalBEOptions are
// declared in base/upcalls.h.)

// The option pass: appends the options of the command line and of its option
// files to the current module, as lines of its tree; `range` tells which.
// Bit `kind` of `flags` is set for each kind of line that was appended.
void parseCmdLineOptions(int count, char **vector, unsigned &flags,
                         TedRange &range);

// The lines of one option file.
void handleOptionFile(const char *name, unsigned &flags, TedRange &range);

// One line, by the route of the argument at `position`; what does not begin
// with "-", or is too long, or is not printable is recorded as dropped.
void parseOneCmdLineOption(const char *text, int position, int count,
                           char **vector, unsigned &flags, TedRange &range);

// Appends a line to the current module's tree and extends the range.
void addTedRec(TedRange &range, int kind, const char *text);

// The part of an option line that is for the back-end whose block begins
// with `prefix`: behind "-BEO=" and the prefix, or behind the "-" of a line
// without block; null for another back-end's block.
const char *parseBEOption(const char *text, const char *prefix, size_t length);
