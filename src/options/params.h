#pragma once
#include "store/modrec.h"
#include <string>

// Pass 1: what must be known before a tree can be read. Scans the command
// line and its option files for file prefixes, the tree directory, the
// prefix length, the message level and the wish for the version. It works on
// the first module record, which is current.

// The whole pass; the usage text ends the run if anything is bad or no
// module is named.
void parseCmdLineParams(int count, char **vector);

// An option argument; `prefixes` is the number of prefixes so far.
bool parseCommandLineOption(int count, char **vector, int position,
                            int prefixes);

// An option without its "-"; false for a bad value.
bool parseSelectedCmdLineOpts(const char *option, int prefixes);

// A syntax file named by its prefix; adds 1 to `prefixes`. `optionFile` is
// null for the command line.
bool parseFilePrefix(const char *text, int &prefixes, const char *optionFile);

// The lines of an option file; adds to `prefixes`.
bool parseOptionFilePartially(const char *name, int &prefixes);

// Gives a module its file prefix, which is its generation prefix, too; both
// become null if the text is no valid prefix.
bool setFilePrefix(ModRec &module, const char *text);

// Cuts ".stx" and what is beyond the module's prefix length (5 if it has
// none), in place; false if a character is left that no prefix has.
bool validFilePrefix(const ModRec &module, std::string &text);

// Warns of an argument that is not understood.
void argumentIgnored(const char *text, const char *optionFile);

// Raises an option's name, from the second character up to the first "=", to
// capitals.
std::string &optionToUpper(std::string &option);

// Forgets the prefix length of the first prefix, for those who run more than
// once in a process.
void resetParams();

constexpr int defaultPrefixLen = 5;
