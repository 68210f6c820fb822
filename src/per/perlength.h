#pragma once
#include "model/asntype.h"

// Lengths of strings and lists, by the SIZE in force, and the fields of the
// lengths of lists. The extensibility of a SIZE is not looked at here.

// The upper bound of a SIZE without an upper end, as of no SIZE at all.
constexpr int32_t sizeWithoutEnd = 0x7fffffff;

// Lengths from here on may be fragmented, X.691 (2002) 10.9.3.8.
constexpr int32_t from64K = 65536;

// Length determinants of X.691 (2002) 10.9, by the upper bound.
enum LengthClass : int {
  LENGTH_BELOW_64K = 1,
  LENGTH_FROM_64K = 2,
  LENGTH_WITHOUT_END = 3,       // of a list
  LENGTH_CHARS_WITHOUT_END = 4  // of a known-multiplier string
};

// Fields of the length of a list: those of an integer, and two of its own.
enum SeqOfField : int {
  SEQOF_EQ1 = 0,  // fixed
  SEQOF_LE255 = 1,
  SEQOF_EQ256 = 2,
  SEQOF_LE64K = 3,
  SEQOF_FRAGMENTED = 4,  // without a length determinant that is known here
  SEQOF_COMPLEX = 5      // a SIZE of several ranges, or no SIZE among the
                         // constraints: no function serves it
};

// Upper less lower bound, plus 1, in 32 bits: 0 to `sizeWithoutEnd` wraps to
// the smallest number.
int32_t perSizeRange(int32_t lower, int32_t upper);

// The bounds of the SIZE in 32 bits; 0 and `sizeWithoutEnd` without one.
void getPERSizeEndpoints(AsnType &type, int32_t &lower, int32_t &upper);

// A `LengthClass` of lists.
int getSeqOfLengthDeterminant(int32_t upper);

// A `SeqOfField`. `count` is the octets or bits of the range, as the run-time
// function wants it; bounds and count are 0 for `SEQOF_COMPLEX`.
int perGetSeqOfField(AsnType &type, int32_t &lower, int32_t &upper, int &count);

// True for a list that may be fragmented: its elements go through a function
// of their own, whatever its length.
bool perValueCanBeFragmented(AsnType &type);
