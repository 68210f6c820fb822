#pragma once
#include "model/constraint.h"
#include <optional>
#include <string>

// Effective permitted alphabets of known-multiplier strings (X.691 (2002)
// 27.5.3) and what they make of the bits of a character. Alphabets are held in
// octets, those of wide characters by their low octet.

// The alphabet that is being built, up to its first NUL; nothing where no
// constraint tells one. Characters may stand in it more than once. Each walk
// starts without one; the writer of the call clears it.
extern std::optional<std::string> glbEffectivePermittedAlphabet;

// Adds what a constraint tells of the alphabet to the global; the second
// one is for what stands inside a FROM. A null constraint tells nothing.
// Fatal error 13 for a value or a range where there is an alphabet already.
void findEffectivePermittedAlphabet(AsnType &type, AsnConstraint *constraint);
void checkPermittedAlphabetConstraint(AsnType &type, AsnConstraint *constraint);

// Bits of a character; leaves the alphabet, sorted, in the global. `size` is
// the number of its characters. A single character takes no bits.
int bitsInKnownMultiChar(AsnType &type, int32_t &size);

// The same of the type's own alphabet; -1, with size 0, for a type that is no
// known-multiplier string. Fatal error 13 for an unknown encoding variant
// where it matters.
int defaultBitsInKnownMultiChar(const AsnType &type, int32_t &size);
