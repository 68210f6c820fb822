#pragma once
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

// Errors in ASN.1 text. They are collected while the program goes on, so that
// one run tells several, and printed in the order of the text.

// A place in a source: its number among the files read, from 0; line and
// column from 1. A column counts octets, a tab as one. Line 0: no place.
struct AsnPos {
  int file = 0;
  int line = 0;
  int column = 0;
};

struct AsnError {
  AsnPos pos;
  std::string text;
};

struct AsnErrors {
  std::vector<std::string> files;  // their names, as printed
  std::vector<AsnError> errors;
};

// Errors beyond these of one run are not kept.
constexpr size_t maxAsnErrors = 1000;

// Adds an error, unless one was reported at the same place.
[[gnu::format(printf, 3, 4)]] void asnError(AsnErrors &errors, AsnPos pos,
                                            const char *format, ...);

// A name as messages show it: in double quotes, cut if it is very long, with
// unprintable characters as "?".
std::string asnQuoted(std::string_view name);

// Prints "FILE:LINE:COLUMN: error: TEXT" a line, sorted by place.
void asnPrintErrors(const AsnErrors &errors, FILE *out);
