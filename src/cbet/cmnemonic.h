#pragma once
#include "base/int64.h"
#include "model/asntype.h"
#include "model/asnvalue.h"
#include <string>

// Names that #define lines give to numbers, and numbers as C constants.
// Builders set `text` to `prefix`, the name or number and `suffix`, of which
// null counts as empty.

// --- Named numbers, enumeration items and named bits. Empty for an extension
// marker; fatal error 13 for any other value, and for another sort of type.
std::string &cNamedNumberMnemonic(std::string &text, const char *prefix,
                                  const AsnType &type, const AsnValue &value,
                                  const char *suffix);
std::string &cDefineForNamedNumber(std::string &text, const AsnType &type,
                                   const AsnValue &value);

// --- Indices of components, markers included; fatal error 13 for a type that
// is no component.
std::string &cComponentIndexMnemonic(std::string &text, const char *prefix,
                                     const AsnType &type, const char *suffix);
// The whole line.
std::string &cDefineForComponentIndex(std::string &text, const AsnType &type);

// --- Numbers.

// An expression of the run-time's 64-bit type.
std::string &cIntegerValue64(std::string &text, sint64 value);

// A constant for a value format of at most 32 bits; the infinities are limits
// of long, and fatal error 13 for other formats.
std::string &cIntegerValue32(std::string &text, sint64 value, int format);

// The one of the two that fits the value format, and its writer.
std::string &cInt64(std::string &text, const char *prefix, sint64 value,
                    int format, const char *suffix);
void cInt64ToF(int file, const char *prefix, sint64 value, int format,
               const char *suffix);

// The same for a value, in the format of its governor.
std::string &cIntegerValue(std::string &text, const char *prefix,
                           const AsnValue &value, const char *suffix);
void cIntegerValueToF(int file, const char *prefix, const AsnValue &value,
                      const char *suffix);
