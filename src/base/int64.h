#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

// Signed 64-bit numbers of values and constraints: a pair of words, as in
// the tree format (high word first). Used only through these functions,
// which wrap as two's complement; the largest and the smallest value are the
// infinities of the model. Functions with a destination return it.
struct sint64 {
  int32_t high = 0;
  uint32_t low = 0;
};

static_assert(sizeof(sint64) == 8);

// Construction.
sint64 &i64make(sint64 &destination, int32_t high, uint32_t low);
sint64 &i64ltosint64(sint64 &destination, int32_t value);
sint64 &i64ultosint64(sint64 &destination, uint32_t value);
sint64 i64max();
sint64 i64min();

// The words.
int32_t i64hi(sint64 value);
uint32_t i64lo(sint64 value);

// To 32 bits; false, with the largest 32-bit number stored, if the value
// does not fit. `i64tol` looks at a high word of -1 alone: values below the
// 32-bit range that have one pass and come out wrong.
bool i64tol(sint64 value, int32_t &destination);
bool i64toul(sint64 value, uint32_t &destination);

// The decimal number that is the whole of `text`: no leading zeros, no "-0".
// False, with the largest value stored, if there is anything else.
bool i64strtosint64(const char *text, sint64 &destination);

// The value in decimal in `buffer`, which is returned; null if the buffer is
// null or too small (`size` counts the terminator).
char *i64tostr(sint64 value, char *buffer, size_t size);

// The decimal number as a string.
std::string i64text(sint64 value);

sint64 &i64add(sint64 &destination, sint64 a, sint64 b);
sint64 &i64addl(sint64 &destination, sint64 a, int32_t b);
sint64 &i64addul(sint64 &destination, sint64 a, uint32_t b);
sint64 &i64sub(sint64 &destination, sint64 a, sint64 b);
sint64 &i64subl(sint64 &destination, sint64 a, int32_t b);
sint64 &i64subul(sint64 &destination, sint64 a, uint32_t b);

// The full product of two unsigned 32-bit numbers.
sint64 &i64mul32(sint64 &destination, uint32_t a, uint32_t b);
// Products that overflow wrap, unnoticed.
sint64 &i64mul(sint64 &destination, sint64 a, sint64 b);
sint64 &i64mull(sint64 &destination, sint64 a, int32_t b);
sint64 &i64mulul(sint64 &destination, sint64 a, uint32_t b);

// Quotients, cut towards 0; divisor 0 gives the largest value.
sint64 &i64divl(sint64 &destination, sint64 value, int32_t divisor);
sint64 &i64divul(sint64 &destination, sint64 value, uint32_t divisor);
// Remainders of the magnitudes with the sign of the value, as 32 bits;
// divisor 0 gives 2147483647.
int32_t i64modl(sint64 value, int32_t divisor);
int32_t i64modul(sint64 value, uint32_t divisor);

// Two's complement: the smallest value stays itself.
sint64 &i64neg(sint64 &destination, sint64 value);

bool i64iszero(sint64 value);
bool i64ismax(sint64 value);
bool i64ismin(sint64 value);
bool i64ispos(sint64 value);  // false for 0
bool i64isneg(sint64 value);

// -1, 0 or 1.
int i64cmp(sint64 a, sint64 b);
int i64cmpl(sint64 a, int32_t b);
int i64cmpul(sint64 a, uint32_t b);

// Counts of 64 and more move everything out; `i64shiftr` keeps the sign,
// `i64ushiftr` does not.
sint64 &i64shiftl(sint64 &destination, sint64 value, unsigned count);
sint64 &i64shiftr(sint64 &destination, sint64 value, unsigned count);
sint64 &i64ushiftr(sint64 &destination, sint64 value, unsigned count);
