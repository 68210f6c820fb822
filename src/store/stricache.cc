// Interned strings: three program-wide tables, by width, over memory that is
// never given back; and the index that leads from an interned string to its
// place in a module.

#include "store/stricache.h"
#include "store/records.h"
#include <memory>

// Octets that are fetched at once for short strings.
constexpr size_t arenaChunk = 256 * 1024;

// Memory for strings, in chunks; the longest string of a tree has its
// terminator and 32001 units of 4 octets, so a chunk holds it.
struct StriArena {
  std::vector<std::unique_ptr<char[]>> chunks;
  char *free = nullptr;
  size_t left = 0;

  void *take(size_t size)
  {
    // Whole words, so that every width is aligned.
    size = (size + 3) & ~size_t{3};
    if (size > left) {
      left = size > arenaChunk ? size : arenaChunk;
      chunks.push_back(std::make_unique_for_overwrite<char[]>(left));
      free = chunks.back().get();
    }
    void *block = free;
    free += size;
    left -= size;
    return block;
  }
};

static StriArena arena;

// One width's table: open addressing by content, at most two thirds full.
template <class C>
struct UniqTable {
  struct Slot {
    const C *text = nullptr;
    uint32_t hash = 0;
    uint32_t length = 0;
  };
  std::vector<Slot> slots;
  size_t used = 0;
};

static UniqTable<char> hashtable;
static UniqTable<char16_t> hashtable16;
static UniqTable<char32_t> hashtable32;

static uint32_t contentHash(const void *block, size_t size)
{
  const unsigned char *octets = static_cast<const unsigned char *>(block);
  uint64_t value = 0xcbf29ce484222325u;
  for (size_t i = 0; i < size; ++i)
    value = (value ^ octets[i]) * 0x100000001b3u;
  return static_cast<uint32_t>(value ^ value >> 32);
}

size_t addressHash(const void *address)
{
  // Runs of 1 KB keep together; the runs are strewn over the table, or equal
  // spacing in memory could pile them up.
  uint64_t place = reinterpret_cast<uintptr_t>(address);
  uint64_t run = (place >> 10) * 0x9e3779b97f4a7c15u >> 32;
  return static_cast<size_t>(run << 8 | (place >> 2 & 255));
}

// The slot of a string, or the free one where it belongs.
template <class C>
static typename UniqTable<C>::Slot &
uniqSlot(UniqTable<C> &table, std::basic_string_view<C> text, uint32_t hash)
{
  size_t mask = table.slots.size() - 1;
  size_t i = hash & mask;
  while (table.slots[i].text) {
    const auto &slot = table.slots[i];
    if (slot.hash == hash && slot.length == text.size() &&
        text.compare(0, text.size(), slot.text, slot.length) == 0)
      break;
    i = (i + 1) & mask;
  }
  return table.slots[i];
}

template <class C>
static void resizeUniq(UniqTable<C> &table, size_t size)
{
  std::vector<typename UniqTable<C>::Slot> old(size);
  old.swap(table.slots);
  size_t mask = size - 1;
  for (const auto &slot : old) {
    if (!slot.text)
      continue;
    // All are different: the first free slot is the right one.
    size_t i = slot.hash & mask;
    while (table.slots[i].text)
      i = (i + 1) & mask;
    table.slots[i] = slot;
  }
}

template <class C>
static void reserveIn(UniqTable<C> &table, size_t more)
{
  size_t size = table.slots.empty() ? 1024 : table.slots.size();
  while (2 * size < 3 * (table.used + more))
    size *= 2;
  if (size != table.slots.size())
    resizeUniq(table, size);
}

void reserveUniqStris(int kind, size_t more)
{
  switch (kind) {
  case REC_STRI:
    return reserveIn(hashtable, more);
  case REC_STRI16:
    return reserveIn(hashtable16, more);
  case REC_STRI32:
    return reserveIn(hashtable32, more);
  default:
    break;
  }
}

template <class C>
static const C *internIn(UniqTable<C> &table, std::basic_string_view<C> text)
{
  reserveIn(table, 1);
  uint32_t hash = contentHash(text.data(), text.size() * sizeof(C));
  auto &slot = uniqSlot(table, text, hash);
  if (!slot.text) {
    C *copy = static_cast<C *>(arena.take((text.size() + 1) * sizeof(C)));
    text.copy(copy, text.size());
    copy[text.size()] = 0;
    slot = {copy, hash, static_cast<uint32_t>(text.size())};
    ++table.used;
  }
  return slot.text;
}

const char *internStri(std::string_view text)
{
  return internIn(hashtable, text);
}

const char16_t *internStri16(std::u16string_view text)
{
  return internIn(hashtable16, text);
}

const char32_t *internStri32(std::u32string_view text)
{
  return internIn(hashtable32, text);
}

const void *allocateUniqStri(const void *string, int kind)
{
  switch (kind) {
  case REC_STRI:
    return internStri(static_cast<const char *>(string));
  case REC_STRI16:
    return internStri16(static_cast<const char16_t *>(string));
  case REC_STRI32:
    return internStri32(static_cast<const char32_t *>(string));
  default:
    return nullptr;
  }
}

// An 8-bit character counts as signed, the others as unsigned.
template <class C>
static int foldedHash(const C *text)
{
  uint32_t value = 0;
  for (; *text; ++text) {
    if constexpr (sizeof(C) == 1)
      value = value * 16 + static_cast<uint32_t>(static_cast<int>(
                               static_cast<signed char>(*text)));
    else
      value = value * 16 + *text;
    if (uint32_t top = value >> 28)
      value = (value & 0x0fffffffu) ^ top << 4;
  }
  return static_cast<int>(value % 1000);
}

int hash(const char *text)
{
  return foldedHash(text);
}

int hash16(const char16_t *text)
{
  return foldedHash(text);
}

int hash32(const char32_t *text)
{
  return foldedHash(text);
}
