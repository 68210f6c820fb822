#pragma once
#include "model/asntype.h"
#include <string>

// Fields and functions of the run-time library for strings: BIT STRING, OCTET
// STRING (which serves GeneralString, too) and known-multiplier character
// strings.

// Fields of BIT STRING and OCTET STRING.
enum StringField : int {
  STRING_EMPTY = 0,          // fixed length 0
  STRING_SHORT = 1,          // fixed, up to 8 bits or 1 octet
  STRING_MIDDLE = 2,         // fixed, up to 16 bits or 2 octets
  STRING_FIXED = 3,          // fixed, up to 65535
  STRING_FIXED_64K = 4,      // fixed, beyond
  STRING_VARIABLE = 5,       // the bounds differ
  STRING_UNCONSTRAINED = 6,  // no constraint at all
  STRING_COMPLEX = 7         // a SIZE of several ranges, or no SIZE among the
                             // constraints: no function serves it
};

// Fields of known-multiplier strings.
enum KnownMultiField : int {
  CHARS_FIXED_SHORT = 0,  // fixed length, up to 16 bits in all
  CHARS_FIXED = 1,        // fixed length, up to 65535 characters
  CHARS_FIXED_64K = 2,    // fixed length, beyond
  CHARS_VARIABLE = 3,     // with an upper end
  CHARS_WITHOUT_END = 4,  // or without a SIZE
  CHARS_COMPLEX = 5       // a SIZE of several ranges
};

// --- BIT STRING and OCTET STRING. All give a `StringField`; `count` is the
// last argument of the run-time function. Bounds and count of a complex SIZE
// are 0.
int perGetFixedLengthBitStrField(int32_t length, int &count);
int perGetVariableLengthBitStrField(int32_t lower, int32_t upper, int &count);
int perGetBitStrField(AsnType &type, int32_t &lower, int32_t &upper,
                      int &count);
int perGetOctStrField(AsnType &type, int32_t &lower, int32_t &upper,
                      int &count);

// Names of run-time functions without prefix; null where there is none.
// `range` is the number of lengths.
const char *alignedBitStrFuncName(int field, int32_t upper, int32_t range);
const char *alignedOctStrFuncName(int field, int32_t upper, int32_t range);
const char *unalignedBitStrFuncName(int field);
const char *unalignedOctStrFuncName(int field);

// The name for the type and its home between `prefix` and `suffix`, which may
// be null; null, with the text half made, where no function serves them. With
// `dynamic` the function for a dynamic home allocates it.
std::string *perBitStrFunctionName(std::string &text, const char *prefix,
                                   AsnType &type, const char *suffix,
                                   int32_t &lower, int32_t &upper, int &count,
                                   bool dynamic);
std::string *perOctStrFunctionName(std::string &text, const char *prefix,
                                   AsnType &type, const char *suffix,
                                   int32_t &lower, int32_t &upper, int &count,
                                   bool dynamic);

// --- Known-multiplier character strings.

// A `KnownMultiField`, with the bits of a character, the count of the length
// and the size of the alphabet, which is left in its global. For a complex
// SIZE the bits are -1 and all others 0.
int perGetKnownMultiChrStrField(AsnType &type, int32_t &lower, int32_t &upper,
                                int &bits, int &lengthCount,
                                int32_t &alphabetSize);

// The mark of the length in the function's name; false where there is none.
// The third goes by the encoding variant and then gives a text that no
// compiler takes.
bool alignedKnownMultiChrLenId(std::string &text, int field, int32_t lower,
                               int32_t upper);
bool unalignedKnownMultiChrLenId(std::string &text, int field, int32_t lower,
                                 int32_t upper);
bool knownMultiChrStrLenId(std::string &text, int field, int32_t lower,
                           int32_t upper);

// The word of the function's name for the home: none for a static one, "Dyn"
// or "Seg". Always true.
bool knownMultiChrStrDynSegId(std::string &text, const AsnType &type,
                              bool dynamic);

// Writes the whole call, `suffix` behind it; a null or empty home leaves the
// argument out. False if no function serves the type, and the call is written
// all the same.
bool perKnownMultiChrStrFunctionToF(int file, const char *prefix, bool dynamic,
                                    AsnType &type, const char *home,
                                    const char *suffix);
