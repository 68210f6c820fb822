#pragma once
#include "store/modrec.h"

// The catalogue of the options that the front-end saves in a tree. All texts
// come without the line's "-".

// Applies "PREFIX="; true for every other option.
bool pass2GlobalOptionOK(ModRec &module, int32_t tedIndex, int tedKind,
                         const char *text);

// Applies all others, as far as the scope allows; false for an option that
// is not in force.
bool pass3GlobalOptionOK(ModRec &module, int32_t tedIndex, int tedKind,
                         const char *text);

// The state of scopes within one tree: 0 outside of all that name the
// module, 1 no scope is open, 2 inside one that does.
extern int pass3Scope;

// True if a list of file prefixes, separated by ":", names the module.
bool moduleIsInScopeList(const ModRec &module, const char *list);

// MODULE[:[FILE-PREFIX][:GENERATION-PREFIX]]: creates the module's record
// and notes it in the table of prefixes. The three names must be strings of
// the tree already.
bool prefixOptOK(ModRec &module, const char *value);

// A key word of a revision control system, which stands for no option.
bool isRCSKeyWord(const char *text);

// Applies a list of up to three entries to the module's generation array.
bool genOptOK(GlobalOptions &options, const char *text, int index);
