// Signed 64-bit numbers. The words are put together into one native number
// for the work and taken apart again; unsigned throughout, so that overflow
// wraps as the tree format's two's complement does.

#include "base/int64.h"
#include "base/strings.h"
#include <charconv>
#include <cstring>
#include <limits>

constexpr const char *smallestText = "-9223372036854775808";

static uint64_t bitsOf(sint64 value)
{
  return static_cast<uint64_t>(static_cast<uint32_t>(value.high)) << 32 |
         value.low;
}

static int64_t nativeOf(sint64 value)
{
  return static_cast<int64_t>(bitsOf(value));
}

static sint64 &setBits(sint64 &destination, uint64_t bits)
{
  destination.high = static_cast<int32_t>(bits >> 32);
  destination.low = static_cast<uint32_t>(bits);
  return destination;
}

// 2 to the 63rd for the smallest value.
static uint64_t magnitudeOf(sint64 value)
{
  return i64isneg(value) ? 0 - bitsOf(value) : bitsOf(value);
}

static uint32_t magnitudeOf(int32_t value)
{
  uint32_t bits = static_cast<uint32_t>(value);
  return value < 0 ? 0 - bits : bits;
}

static uint64_t widened(int32_t value)
{
  return static_cast<uint64_t>(static_cast<int64_t>(value));
}

static int compareNative(int64_t a, int64_t b)
{
  return (a > b) - (a < b);
}

sint64 &i64make(sint64 &destination, int32_t high, uint32_t low)
{
  destination.high = high;
  destination.low = low;
  return destination;
}

sint64 &i64ltosint64(sint64 &destination, int32_t value)
{
  return setBits(destination, widened(value));
}

sint64 &i64ultosint64(sint64 &destination, uint32_t value)
{
  return setBits(destination, value);
}

sint64 i64max()
{
  return {std::numeric_limits<int32_t>::max(),
          std::numeric_limits<uint32_t>::max()};
}

sint64 i64min()
{
  return {std::numeric_limits<int32_t>::min(), 0};
}

int32_t i64hi(sint64 value)
{
  return value.high;
}

uint32_t i64lo(sint64 value)
{
  return value.low;
}

bool i64tol(sint64 value, int32_t &destination)
{
  constexpr uint32_t topBit = 0x80000000;
  bool fits = value.high == -1 || (value.high == 0 && value.low < topBit);
  destination = fits ? static_cast<int32_t>(value.low)
                     : std::numeric_limits<int32_t>::max();
  return fits;
}

bool i64toul(sint64 value, uint32_t &destination)
{
  bool fits = value.high == 0;
  destination = fits ? value.low : std::numeric_limits<uint32_t>::max();
  return fits;
}

// The number that the leading digits of `text` make, the first of them not
// "0"; moves `text` behind them. Stops ahead of the digit that makes the
// value go down; a carry that leaves it higher goes unnoticed.
static uint64_t scanDigits(const char *&text)
{
  uint64_t value = 0;
  for (; isDigitChar(*text); ++text) {
    uint64_t next = value * 10 + static_cast<uint64_t>(*text - '0');
    if (static_cast<int64_t>(next) < static_cast<int64_t>(value))
      break;
    value = next;
  }
  return value;
}

bool i64strtosint64(const char *text, sint64 &destination)
{
  destination = i64max();
  if (strcmp(text, smallestText) == 0) {
    destination = i64min();
    return true;
  }
  bool negative = *text == '-';
  if (negative)
    ++text;
  if (!isDigitChar(*text) || (*text == '0' && (negative || text[1])))
    return false;
  uint64_t value = scanDigits(text);
  if (*text)
    return false;
  setBits(destination, negative ? 0 - value : value);
  return true;
}

char *i64tostr(sint64 value, char *buffer, size_t size)
{
  if (!buffer || size == 0)
    return nullptr;
  char digits[sizeof "-9223372036854775808"];
  char *end =
      std::to_chars(digits, digits + sizeof digits, nativeOf(value)).ptr;
  size_t length = static_cast<size_t>(end - digits);
  if (length >= size)
    return nullptr;
  memcpy(buffer, digits, length);
  buffer[length] = 0;
  return buffer;
}

std::string i64text(sint64 value)
{
  // Digits of 64 bits, a sign and the terminator.
  char digits[24];
  return i64tostr(value, digits, sizeof digits);
}

sint64 &i64add(sint64 &destination, sint64 a, sint64 b)
{
  return setBits(destination, bitsOf(a) + bitsOf(b));
}

sint64 &i64addl(sint64 &destination, sint64 a, int32_t b)
{
  return setBits(destination, bitsOf(a) + widened(b));
}

sint64 &i64addul(sint64 &destination, sint64 a, uint32_t b)
{
  return setBits(destination, bitsOf(a) + b);
}

sint64 &i64sub(sint64 &destination, sint64 a, sint64 b)
{
  return setBits(destination, bitsOf(a) - bitsOf(b));
}

sint64 &i64subl(sint64 &destination, sint64 a, int32_t b)
{
  return setBits(destination, bitsOf(a) - widened(b));
}

sint64 &i64subul(sint64 &destination, sint64 a, uint32_t b)
{
  return setBits(destination, bitsOf(a) - b);
}

sint64 &i64mul32(sint64 &destination, uint32_t a, uint32_t b)
{
  return setBits(destination, static_cast<uint64_t>(a) * b);
}

sint64 &i64mul(sint64 &destination, sint64 a, sint64 b)
{
  return setBits(destination, bitsOf(a) * bitsOf(b));
}

sint64 &i64mull(sint64 &destination, sint64 a, int32_t b)
{
  return setBits(destination, bitsOf(a) * widened(b));
}

sint64 &i64mulul(sint64 &destination, sint64 a, uint32_t b)
{
  return setBits(destination, bitsOf(a) * b);
}

sint64 &i64divl(sint64 &destination, sint64 value, int32_t divisor)
{
  i64divul(destination, value, magnitudeOf(divisor));
  return divisor < 0 ? i64neg(destination, destination) : destination;
}

sint64 &i64divul(sint64 &destination, sint64 value, uint32_t divisor)
{
  if (divisor == 0)
    return destination = i64max();
  uint64_t quotient = magnitudeOf(value) / divisor;
  return setBits(destination, i64isneg(value) ? 0 - quotient : quotient);
}

int32_t i64modl(sint64 value, int32_t divisor)
{
  return i64modul(value, magnitudeOf(divisor));
}

int32_t i64modul(sint64 value, uint32_t divisor)
{
  if (divisor == 0)
    return std::numeric_limits<int32_t>::max();
  uint64_t remainder = magnitudeOf(value) % divisor;
  return static_cast<int32_t>(
      static_cast<uint32_t>(i64isneg(value) ? 0 - remainder : remainder));
}

sint64 &i64neg(sint64 &destination, sint64 value)
{
  return setBits(destination, 0 - bitsOf(value));
}

bool i64iszero(sint64 value)
{
  return bitsOf(value) == 0;
}

bool i64ismax(sint64 value)
{
  return bitsOf(value) == bitsOf(i64max());
}

bool i64ismin(sint64 value)
{
  return bitsOf(value) == bitsOf(i64min());
}

bool i64ispos(sint64 value)
{
  return nativeOf(value) > 0;
}

bool i64isneg(sint64 value)
{
  return value.high < 0;
}

int i64cmp(sint64 a, sint64 b)
{
  return compareNative(nativeOf(a), nativeOf(b));
}

int i64cmpl(sint64 a, int32_t b)
{
  return compareNative(nativeOf(a), b);
}

int i64cmpul(sint64 a, uint32_t b)
{
  return compareNative(nativeOf(a), b);
}

sint64 &i64shiftl(sint64 &destination, sint64 value, unsigned count)
{
  return setBits(destination, count < 64 ? bitsOf(value) << count : 0);
}

sint64 &i64shiftr(sint64 &destination, sint64 value, unsigned count)
{
  // 63 places leave nothing but the sign; so do all larger counts.
  int64_t shifted = nativeOf(value) >> (count < 64 ? count : 63);
  return setBits(destination, static_cast<uint64_t>(shifted));
}

sint64 &i64ushiftr(sint64 &destination, sint64 value, unsigned count)
{
  return setBits(destination, count < 64 ? bitsOf(value) >> count : 0);
}
