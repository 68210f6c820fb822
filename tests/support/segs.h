#pragma once
#include "model/valueset.h"
#include <cstdint>
#include <utility>
#include <vector>

// Sets of numbers in tests, as lists of pairs.

typedef std::pair<int64_t, int64_t> Seg;
typedef std::vector<Seg> Segs;

constexpr int64_t lowest = INT64_MIN;
constexpr int64_t highest = INT64_MAX;

inline sint64 big(int64_t value)
{
  uint64_t bits = static_cast<uint64_t>(value);
  return {static_cast<int32_t>(bits >> 32), static_cast<uint32_t>(bits)};
}

inline int64_t native(sint64 value)
{
  return static_cast<int64_t>(
      static_cast<uint64_t>(static_cast<uint32_t>(value.high)) << 32 |
      value.low);
}

inline Segs segsOf(const IntegerValueSet &set)
{
  Segs segs;
  for (const IntegerValueSetSeg *seg = set.first; seg; seg = seg->next)
    segs.emplace_back(native(seg->lower), native(seg->upper));
  return segs;
}
