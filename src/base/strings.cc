// Texts of 8, 16 and 32-bit characters, and the conversions that names and
// file names go through.

#include "base/strings.h"
#include <algorithm>
#include <cstdio>
#include <cstring>

// Longest file name that is built here, suffix included.
constexpr size_t maxFileName = 1024;

std::string &between(std::string &text, const char *prefix,
                     const std::string &middle, const char *suffix)
{
  return text = orEmpty(prefix) + middle + orEmpty(suffix);
}

std::string formatTextV(const char *format, va_list arguments)
{
  va_list again;
  va_copy(again, arguments);
  int length = vsnprintf(nullptr, 0, format, arguments);
  // One more octet for the terminator, which is then dropped.
  std::string text(static_cast<size_t>(std::max(length, 0)) + 1, 0);
  vsnprintf(text.data(), text.size(), format, again);
  va_end(again);
  text.pop_back();
  return text;
}

std::string formatText(const char *format, ...)
{
  va_list arguments;
  va_start(arguments, format);
  std::string text = formatTextV(format, arguments);
  va_end(arguments);
  return text;
}

// The classes are spelled out: <cctype> asks the locale, and is undefined
// for the negative values of a plain char.
bool isPrintableChar(char c)
{
  return c >= ' ' && c <= '~';
}

bool isSpaceChar(char c)
{
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isCapitalChar(char c)
{
  return c >= 'A' && c <= 'Z';
}

bool isSmallChar(char c)
{
  return c >= 'a' && c <= 'z';
}

bool isLetterChar(char c)
{
  return isCapitalChar(c) || isSmallChar(c);
}

bool isDigitChar(char c)
{
  return c >= '0' && c <= '9';
}

bool isLetterOrDigitChar(char c)
{
  return isLetterChar(c) || isDigitChar(c);
}

char upperChar(char c)
{
  return isSmallChar(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

char lowerChar(char c)
{
  return isCapitalChar(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

template <class C>
static size_t lengthOf(const C *text)
{
  return std::char_traits<C>::length(text);
}

template <class C>
static C *copyTo(C *to, const C *from)
{
  std::char_traits<C>::copy(to, from, lengthOf(from) + 1);
  return to;
}

// As strchr, the terminator is found too.
template <class C>
static const C *findIn(const C *text, C c)
{
  return std::char_traits<C>::find(text, lengthOf(text) + 1, c);
}

int strcmp16(const char16_t *a, const char16_t *b)
{
  while (*a && *a == *b)
    ++a, ++b;
  return *a < *b ? -1 : *a > *b ? 1 : 0;
}

int strcmp32(const char32_t *a, const char32_t *b)
{
  while (*a && *a == *b)
    ++a, ++b;
  return *a != *b;
}

const char16_t *strchr16(const char16_t *text, char16_t c)
{
  return findIn(text, c);
}

const char32_t *strchr32(const char32_t *text, char32_t c)
{
  return findIn(text, c);
}

char16_t *strcpy16(char16_t *to, const char16_t *from)
{
  return copyTo(to, from);
}

char32_t *strcpy32(char32_t *to, const char32_t *from)
{
  return copyTo(to, from);
}

char16_t *strcat16(char16_t *to, const char16_t *from)
{
  copyTo(to + lengthOf(to), from);
  return to;
}

char32_t *strcat32(char32_t *to, const char32_t *from)
{
  copyTo(to + lengthOf(to), from);
  return to;
}

size_t strlen16(const char16_t *text)
{
  return lengthOf(text);
}

size_t strlen32(const char32_t *text)
{
  return lengthOf(text);
}

std::string &strLower(std::string &text)
{
  std::transform(text.begin(), text.end(), text.begin(), lowerChar);
  return text;
}

std::string &strUpper(std::string &text)
{
  std::transform(text.begin(), text.end(), text.begin(), upperChar);
  return text;
}

std::string &convertHyphens(std::string &text)
{
  std::replace(text.begin(), text.end(), '-', '_');
  return text;
}

std::string &convertUnderscores(std::string &text)
{
  std::replace(text.begin(), text.end(), '_', '-');
  return text;
}

std::string &remSpaces(std::string &text)
{
  auto first = std::find_if_not(text.begin(), text.end(), isSpaceChar);
  text.erase(text.begin(), first);
  while (!text.empty() && isSpaceChar(text.back()))
    text.pop_back();
  return text;
}

int strnCaseComp(const char *a, const char *b, size_t length)
{
  for (; length > 0; --length, ++a, ++b) {
    int difference = static_cast<unsigned char>(upperChar(*a)) -
                     static_cast<unsigned char>(upperChar(*b));
    if (difference != 0 || *a == 0)
      return difference;
  }
  return 0;
}

int strCaseComp(const char *a, const char *b)
{
  return strnCaseComp(a, b, static_cast<size_t>(-1));
}

bool startsWith(const char *text, const char *start)
{
  return strncmp(text, start, strlen(start)) == 0;
}

std::string str2prefix(const char *text)
{
  std::string prefix(text, strnlen(text, 5));
  return convertUnderscores(strLower(prefix));
}

// Where the extension begins in a file name, or npos.
static size_t extensionOf(const std::string &name)
{
  size_t dot = name.rfind('.');
  size_t slash = name.rfind('/');
  bool inName = slash == std::string::npos || dot > slash;
  return dot != std::string::npos && inName ? dot : std::string::npos;
}

std::string &setFileName(std::string &variable, const char *text,
                         const char *suffix, bool cut)
{
  std::string name = text;
  if (cut) {
    size_t suffixLength = strlen(suffix);
    name.resize(std::min(name.size(),
                         maxFileName - std::min(maxFileName, suffixLength)));
    name.resize(std::min(name.size(), extensionOf(name)));
  }
  if (cut || extensionOf(name) == std::string::npos)
    name += suffix;
  return variable = name;
}

std::string &newStriVal(std::string &variable, const char *before,
                        size_t length, const char *text, const char *after)
{
  // Built apart: the pieces may lie in the variable.
  std::string value = orEmpty(before);
  if (text)
    value.append(text, strnlen(text, length));
  value += orEmpty(after);
  return variable = value;
}
