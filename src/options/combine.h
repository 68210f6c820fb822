#pragma once
#include <string>
#include <vector>

// The COMBINE option: a list of modules whose first name ends in ":" and the
// others in ",".

// Splits the list into names; an empty name stops it and is a fault, and so
// is a separator at the end. A `strict` list has at least two names, all
// different and valid as file prefixes.
bool parseCombineOption(const char *text, std::vector<std::string> &names,
                        bool strict);

// Stores a list that is well-formed, leniently; the empty text clears the
// field.
bool combineOptionOK(std::string &field, const char *text);
