#pragma once
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// Interned strings. Every string of every tree lies once in memory, until
// the process ends, so that interned strings are compared by address.

// The interned copy of a string of kind 7, 8 or 9; null for another kind.
const void *allocateUniqStri(const void *string, int kind);

// The same, by width.
const char *internStri(std::string_view text);
const char16_t *internStri16(std::u16string_view text);
const char32_t *internStri32(std::u32string_view text);

// Makes room for so many more strings of a kind.
void reserveUniqStris(int kind, size_t more);

// From an interned string back to its place among others: open addressing
// by the string's address, at most two thirds full. A slot holds an index,
// 0 being free.
struct StriIndex {
  std::vector<int32_t> slots;  // a power of two, or none yet
  size_t used = 0;
};

// Where the search for an address begins. Neighbours in memory are neighbours
// in the table as well: strings are mostly looked up in the order of a file.
size_t addressHash(const void *address);

// A string that a zero inside ends early, with the units that its tree states.
struct CutStri {
  int32_t index;
  int32_t units;  // without the terminator
};

// The strings of one width of one module: by index, and back. The way back
// gives the last of several equal strings.
template <class C>
struct StriSection {
  std::vector<const C *> strings;
  StriIndex cache;
  std::vector<CutStri> cut;  // by ascending index

  // The index of an interned string, 0 if it isn't there.
  int32_t find(const C *interned) const
  {
    return cache.slots.empty() ? 0 : cache.slots[slotOf(interned)];
  }

  // Makes room for so many strings in all.
  void reserve(size_t count)
  {
    strings.reserve(count);
    while (2 * cache.slots.size() < 3 * count)
      grow();
  }

  // Appends an interned string; its index is the count afterwards.
  int32_t append(const C *interned)
  {
    if (3 * (cache.used + 1) > 2 * cache.slots.size())
      grow();
    int32_t &slot = cache.slots[slotOf(interned)];
    if (slot == 0)
      ++cache.used;
    strings.push_back(interned);
    return slot = static_cast<int32_t>(strings.size());
  }

private:
  size_t slotOf(const C *interned) const
  {
    size_t mask = cache.slots.size() - 1;
    size_t i = addressHash(interned) & mask;
    while (int32_t index = cache.slots[i]) {
      if (strings[static_cast<size_t>(index) - 1] == interned)
        break;
      i = (i + 1) & mask;
    }
    return i;
  }

  void grow()
  {
    std::vector<int32_t> old(cache.slots.empty() ? 16 : 2 * cache.slots.size());
    old.swap(cache.slots);
    for (int32_t index : old)
      if (index != 0)
        cache.slots[slotOf(strings[static_cast<size_t>(index) - 1])] = index;
  }
};

// A number from 0 to 999 for a string, by the rule of the front-end's tables.
int hash(const char *text);
int hash16(const char16_t *text);
int hash32(const char32_t *text);
