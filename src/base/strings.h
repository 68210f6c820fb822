#pragma once
#include <cstdarg>
#include <cstddef>
#include <string>

// Texts of 8, 16 and 32-bit characters. Character classes are those of the
// "C" locale on unsigned characters: whatever lies above 126 is no letter, no
// blank and not printable.

// Null reads as the empty text.
inline const char *orEmpty(const char *text)
{
  return text ? text : "";
}

// Stores `prefix`, `middle` and `suffix`; the outer two may be null. Any of
// them may be what `text` holds.
std::string &between(std::string &text, const char *prefix,
                     const std::string &middle, const char *suffix);

// The text that printf would print.
[[gnu::format(printf, 1, 2)]] std::string formatText(const char *format, ...);
std::string formatTextV(const char *format, va_list arguments);

bool isPrintableChar(char c);  // blanks included
bool isSpaceChar(char c);
bool isLetterChar(char c);
bool isCapitalChar(char c);
bool isSmallChar(char c);
bool isDigitChar(char c);
bool isLetterOrDigitChar(char c);
char upperChar(char c);
char lowerChar(char c);

// As their 8-bit namesakes; `strcmp32` only tells equal (0) from different
// (1). The destinations of copies must be large enough.
int strcmp16(const char16_t *a, const char16_t *b);
int strcmp32(const char32_t *a, const char32_t *b);
const char16_t *strchr16(const char16_t *text, char16_t c);
const char32_t *strchr32(const char32_t *text, char32_t c);
char16_t *strcpy16(char16_t *to, const char16_t *from);
char32_t *strcpy32(char32_t *to, const char32_t *from);
char16_t *strcat16(char16_t *to, const char16_t *from);
char32_t *strcat32(char32_t *to, const char32_t *from);
size_t strlen16(const char16_t *text);
size_t strlen32(const char32_t *text);

// In place; return the text.
std::string &strLower(std::string &text);
std::string &strUpper(std::string &text);
std::string &convertHyphens(std::string &text);      // "-" to "_"
std::string &convertUnderscores(std::string &text);  // "_" to "-"

// Trims white space at both ends, in place; returns the text.
std::string &remSpaces(std::string &text);

// As strcmp and strncmp, with both sides raised to capitals.
int strCaseComp(const char *a, const char *b);
int strnCaseComp(const char *a, const char *b, size_t length);

// True if `text` begins with `start`, exactly.
bool startsWith(const char *text, const char *start);

// The first five characters in lower case, "_" turned to "-".
std::string str2prefix(const char *text);

// With `cut`: the text, limited to 1024 characters less the suffix, without
// its extension (from the last "." behind the last "/"), then the suffix.
// Without `cut`: the suffix is added only if the text has no extension.
std::string &setFileName(std::string &variable, const char *text,
                         const char *suffix, bool cut);

// Frees what the variable held and stores `before`, the first `length`
// characters of `text` and `after`, each of which may be null.
std::string &newStriVal(std::string &variable, const char *before,
                        size_t length, const char *text, const char *after);
