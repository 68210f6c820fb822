#pragma once
#include "model/asnvalue.h"
#include <string>

// Texts of values. Builders write `prefix`, the text and `suffix`, of which
// null counts as empty.

// --- Names: as in the tree, and as printed in C.
std::string &getValueRef(std::string &text, const char *prefix,
                         const AsnValue &value, const char *suffix);
std::string &getValueId(std::string &text, const char *prefix,
                        const AsnValue &value, const char *suffix);
std::string &getBaseValueId(std::string &text, const char *prefix,
                            const AsnValue &value, const char *suffix);

// --- Contents.
std::string &booleanValueStri(std::string &text, const char *prefix,
                              const AsnValue &value, const char *suffix);
// The largest number is the first infinite text, the smallest the second.
std::string &integerValueStri(std::string &text, const char *prefix,
                              const AsnValue &value, const char *suffix);
// Mantissa, base and exponent in braces.
std::string &realValueStri(std::string &text, const char *prefix,
                           const AsnValue &value, const char *suffix);
// Mantissa, a point and zeros up to the module's DECIMALS, and the exponent:
// meant for reals of base 10.
std::string &doubleRealValueStri(std::string &text, const char *prefix,
                                 const AsnValue &value, const char *suffix);
// Arcs with a separator (null: a blank) between them; with both brackets,
// an arc's name follows its number. Empty if there are no arcs.
std::string &objectIdentifierValueStri(std::string &text, const char *prefix,
                                       const AsnValue &value,
                                       const char *separator,
                                       const char *nameOpen,
                                       const char *nameClose,
                                       const char *suffix);
// Of a string of 8-bit characters; else empty.
std::string &characterStringValueStri(std::string &text, const char *prefix,
                                      const AsnValue &value,
                                      const char *suffix);
