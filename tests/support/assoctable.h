#pragma once
#include "base/assocarray.h"
#include <gtest/gtest.h>
#include <memory>
#include <string>

// Associative arrays for tests, which destroy themselves, and numbered keys.

struct DestroyContext {
  void operator()(AaContext *context) const { aaDestroyContext(context); }
};
typedef std::unique_ptr<AaContext, DestroyContext> Table;

inline constexpr unsigned copied = AA_KEYCOPY | AA_VALREF;
inline constexpr unsigned referred = AA_KEYREF | AA_VALREF;

inline Table makeTable(unsigned flags, size_t keyLength = 0)
{
  return Table(aaCreateContext(flags, keyLength));
}

inline std::string keyOf(int number)
{
  return "key" + std::to_string(number);
}

// Puts the keys first .. last - 1, each with its number + 1.
inline void putKeys(AaContext &context, int first, int last)
{
  for (int i = first; i < last; ++i)
    ASSERT_EQ(0, aaPut(context, keyOf(i).c_str(), AaValue(i) + 1));
}

inline AaValue asValue(const char *text)
{
  return reinterpret_cast<AaValue>(text);
}

inline const char *asText(AaValue value)
{
  return reinterpret_cast<const char *>(value);
}
