#pragma once
#include "model/asntype.h"
#include <cstdint>
#include <string>

// Pieces of the calls for leaves that encoders, decoders and ignore functions
// share.

// Writes the call for a string: the name with its " (", the home and its
// comma (null for none), the bounds and the count.
void perStringCallToF(int file, const char *name, const char *home,
                      int32_t lower, int32_t upper, int count);

// Turns the name of an OCTET STRING function into that for strings of no
// known multiplier.
std::string &perUnknownMultiplierName(std::string &name);

// Puts `replacement` in the place of `target`, which is found by its first
// letter alone; nothing if that is not there.
std::string &substituteSubString(std::string &text, const char *target,
                                 const char *replacement);
