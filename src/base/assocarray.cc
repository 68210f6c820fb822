// Associative array: chained buckets in an array of a power of two. An entry
// keeps its 16-bit hash, so that a resize moves entries without looking at a
// key again.
//
// Memory comes straight from the heap here: a put without memory is told to
// the caller, where the allocation of base/alloc.h would end the run.

#include "base/assocarray.h"
#include "base/strings.h"
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

constexpr size_t firstSize = 64;
constexpr size_t largestSize = 65536;  // hashes have 16 bits
constexpr uint16_t hashStart = 65535;

// --- hash

static constexpr std::array<uint16_t, 256> makeCrcTable()
{
  constexpr unsigned polynomial = 0xA001;  // 0x8005 reflected
  std::array<uint16_t, 256> table{};
  for (unsigned i = 0; i < table.size(); ++i) {
    unsigned crc = i;
    for (int bit = 0; bit < 8; ++bit)
      crc = crc & 1 ? crc >> 1 ^ polynomial : crc >> 1;
    table[i] = static_cast<uint16_t>(crc);
  }
  return table;
}

static constexpr std::array<uint16_t, 256> crc_16_tab = makeCrcTable();

static uint16_t hashOctet(uint16_t hash, unsigned octet)
{
  return static_cast<uint16_t>(hash >> 8 ^ crc_16_tab[(hash ^ octet) & 255]);
}

// Octets by value, lowest first, whatever the order of the host.
template <class C>
static uint16_t hashWideText(const C *text)
{
  uint16_t hash = hashStart;
  for (; *text; ++text) {
    for (unsigned shift = 0; shift < 8 * sizeof(C); shift += 8)
      hash = hashOctet(hash, static_cast<unsigned>(*text >> shift) & 255);
  }
  return hash;
}

static uint16_t hashText(const char *text, bool ignoreCase)
{
  uint16_t hash = hashStart;
  for (; *text; ++text) {
    char c = ignoreCase ? upperChar(*text) : *text;
    hash = hashOctet(hash, static_cast<unsigned char>(c));
  }
  return hash;
}

static uint16_t hashBlock(const void *block, size_t length)
{
  uint16_t hash = hashStart;
  auto octets = static_cast<const unsigned char *>(block);
  for (size_t i = 0; i < length; ++i)
    hash = hashOctet(hash, octets[i]);
  return hash;
}

static uint16_t hashKey(const AaContext &context, const void *key)
{
  if (context.keyLength != 0)
    return hashBlock(key, context.keyLength);
  if (context.flags & AA_CHARWIDTH16)
    return hashWideText(static_cast<const char16_t *>(key));
  if (context.flags & AA_CHARWIDTH32)
    return hashWideText(static_cast<const char32_t *>(key));
  return hashText(static_cast<const char *>(key), context.flags & AA_CASEINSIG);
}

// --- search

static bool equalKeys(const AaContext &context, const void *a, const void *b)
{
  if (context.keyLength != 0)
    return memcmp(a, b, context.keyLength) == 0;
  if (context.flags & AA_CHARWIDTH16)
    return strcmp16(static_cast<const char16_t *>(a),
                    static_cast<const char16_t *>(b)) == 0;
  if (context.flags & AA_CHARWIDTH32)
    return strcmp32(static_cast<const char32_t *>(a),
                    static_cast<const char32_t *>(b)) == 0;
  auto textA = static_cast<const char *>(a);
  auto textB = static_cast<const char *>(b);
  if (context.flags & AA_CASEINSIG)
    return strCaseComp(textA, textB) == 0;
  return strcmp(textA, textB) == 0;
}

static size_t bucketOf(const AaContext &context, uint16_t hash)
{
  return hash & (context.size - 1);
}

// The link that holds the entry of the key, or the null at the end of its
// bucket's chain.
static AaEntry **findLink(const AaContext &context, const void *key,
                          uint16_t hash)
{
  AaEntry **link = &context.buckets[bucketOf(context, hash)];
  while (*link &&
         ((*link)->hash != hash || !equalKeys(context, (*link)->key, key)))
    link = &(*link)->next;
  return link;
}

static AaEntry *findEntry(const AaContext &context, const void *key)
{
  return *findLink(context, key, hashKey(context, key));
}

// --- resizing

static void calculateHashThresholds(AaContext &context)
{
  double size = static_cast<double>(context.size);
  context.shrinkThreshold =
      context.size > firstSize ? static_cast<int32_t>(size * 0.2) : 0;
  context.growThreshold =
      context.size < largestSize ? static_cast<int32_t>(size * 0.9) : 0;
}

// False without memory to grow; the array stands as it was then.
static bool resizeBuckets(AaContext &context, size_t size)
{
  void *buckets = realloc(context.buckets, size * sizeof(AaEntry *));
  if (!buckets && size > context.size)
    return false;
  if (buckets)
    context.buckets = static_cast<AaEntry **>(buckets);
  for (size_t i = context.size; i < size; ++i)
    context.buckets[i] = nullptr;
  context.size = size;
  calculateHashThresholds(context);
  return true;
}

// Each chain comes out reversed. False if nothing changed.
static bool increaseHashSize(AaContext &context)
{
  size_t oldSize = context.size;
  if (context.scanning || oldSize >= largestSize ||
      !resizeBuckets(context, oldSize * 2))
    return false;
  for (size_t i = 0; i < oldSize; ++i) {
    AaEntry *entry = context.buckets[i];
    context.buckets[i] = nullptr;
    while (entry) {
      AaEntry *next = entry->next;
      AaEntry *&head = context.buckets[bucketOf(context, entry->hash)];
      entry->next = head;
      head = entry;
      entry = next;
    }
  }
  return true;
}

// False if nothing changed.
static bool decreaseHashSize(AaContext &context)
{
  if (context.scanning || context.size <= firstSize)
    return false;
  size_t half = context.size / 2;
  for (size_t i = 0; i < half; ++i) {
    AaEntry **link = &context.buckets[i];
    while (*link)
      link = &(*link)->next;
    *link = context.buckets[i + half];
    context.buckets[i + half] = nullptr;
  }
  return resizeBuckets(context, half);
}

static bool isTooFull(const AaContext &context)
{
  return context.growThreshold != 0 && context.entries >= context.growThreshold;
}

static bool isTooEmpty(const AaContext &context)
{
  return context.shrinkThreshold != 0 &&
         context.entries <= context.shrinkThreshold;
}

// --- context

// The line that refuses the flags, or null if they go together.
static const char *refusalOf(unsigned flags, size_t keyLength)
{
  bool wide = flags & (AA_CHARWIDTH16 | AA_CHARWIDTH32);
  if (keyLength != 0 && wide)
    return "16 or 32 bit characters may only be used with arbitrary length "
           "keys";
  if ((flags & AA_CASEINSIG) && wide)
    return "case-insignificant comparison for 16 or 32 bit char strings not "
           "implemented";
  if ((flags & AA_CHARWIDTH16) && (flags & AA_CHARWIDTH32))
    return "cannot specify both AA_CHARWIDTH16 and AA_CHARWIDTH32";
  if (!(flags & (AA_KEYCOPY | AA_KEYREF)))
    return "No AA_KEY specifier";
  if (!(flags & (AA_VALCOPY | AA_VALREF)))
    return "No AA_VAL specifier";
  return nullptr;
}

AaContext *aaCreateContext(unsigned flags, size_t keyLength)
{
  if (keyLength != 0 && (flags & AA_CASEINSIG))
    fputs("aaCreateContext: fixed length of keys used, flag AA_CASEINSIG "
          "ignored\n",
          stderr);
  if (const char *refusal = refusalOf(flags, keyLength)) {
    fprintf(stderr, "aaCreateContext: %s\n", refusal);
    return nullptr;
  }
  AaContext *context = new (std::nothrow) AaContext;
  if (!context)
    return nullptr;
  context->flags = flags;
  context->keyLength = keyLength;
  if (!resizeBuckets(*context, firstSize)) {
    delete context;
    return nullptr;
  }
  return context;
}

static void freeEntry(AaEntry *entry)
{
  if (entry->keyOwned)
    free(const_cast<void *>(entry->key));
  if (entry->valueOwned)
    free(reinterpret_cast<void *>(entry->value));
  delete entry;
}

void aaDestroyContext(AaContext *context)
{
  if (!context)
    return;
  for (size_t i = 0; i < context->size; ++i) {
    while (AaEntry *entry = context->buckets[i]) {
      context->buckets[i] = entry->next;
      freeEntry(entry);
    }
  }
  free(context->buckets);
  delete context;
}

// --- entries

// Octets of a key, terminator included.
static size_t keySize(const AaContext &context, const void *key)
{
  if (context.keyLength != 0)
    return context.keyLength;
  if (context.flags & AA_CHARWIDTH16)
    return (strlen16(static_cast<const char16_t *>(key)) + 1) *
           sizeof(char16_t);
  if (context.flags & AA_CHARWIDTH32)
    return (strlen32(static_cast<const char32_t *>(key)) + 1) *
           sizeof(char32_t);
  return strlen(static_cast<const char *>(key)) + 1;
}

// The entry takes the key, or a copy; false without memory.
static bool setKey(const AaContext &context, AaEntry &entry, const void *key)
{
  entry.key = key;
  if (!(context.flags & AA_KEYCOPY))
    return true;
  size_t size = keySize(context, key);
  void *copy = malloc(size);
  if (!copy)
    return false;
  entry.key = memcpy(copy, key, size);
  entry.keyOwned = true;
  return true;
}

// The entry takes the value, or a copy, in place of its old one; false
// without memory. Null is no string and is never copied.
static bool setValue(const AaContext &context, AaEntry &entry, AaValue value)
{
  bool copied = (context.flags & AA_VALCOPY) && value != 0;
  if (copied) {
    // Copied ahead of the free: it may be the old value itself.
    char *text = strdup(reinterpret_cast<const char *>(value));
    if (!text)
      return false;
    value = reinterpret_cast<AaValue>(text);
  }
  if (entry.valueOwned)
    free(reinterpret_cast<void *>(entry.value));
  entry.value = value;
  entry.valueOwned = copied;
  return true;
}

int aaPut(AaContext &context, const void *key, AaValue value)
{
  uint16_t hash = hashKey(context, key);
  if (AaEntry *entry = *findLink(context, key, hash)) {
    if (context.flags & AA_NODUP)
      return 1;
    return setValue(context, *entry, value) ? 1 : -1;
  }
  AaEntry *entry = new (std::nothrow) AaEntry{};
  if (!entry)
    return -1;
  entry->hash = hash;
  if (!setKey(context, *entry, key) || !setValue(context, *entry, value)) {
    freeEntry(entry);
    return -1;
  }
  AaEntry *&head = context.buckets[bucketOf(context, hash)];
  entry->next = head;
  head = entry;
  // A table that can't grow counts no more: `entries` falls behind.
  if (context.growThreshold != 0) {
    ++context.entries;
    if (isTooFull(context))
      increaseHashSize(context);
  }
  return 0;
}

AaValue aaGet(const AaContext &context, const void *key)
{
  const AaEntry *entry = findEntry(context, key);
  return entry ? entry->value : 0;
}

// --- scan

// The scan moves to the head of the first bucket from `bucket` on that has
// entries.
static void scanFrom(AaContext &context, size_t bucket)
{
  while (bucket < context.size && !context.buckets[bucket])
    ++bucket;
  context.scanBucket = bucket;
  context.scanEntry = bucket < context.size ? context.buckets[bucket] : nullptr;
}

static void scanOn(AaContext &context)
{
  context.scanEntry = context.scanEntry->next;
  if (!context.scanEntry)
    scanFrom(context, context.scanBucket + 1);
}

int aaDelete(AaContext &context, const void *key)
{
  AaEntry **link = findLink(context, key, hashKey(context, key));
  AaEntry *entry = *link;
  if (!entry)
    return -1;
  if (entry == context.scanEntry)
    scanOn(context);
  *link = entry->next;
  freeEntry(entry);
  --context.entries;
  if (isTooEmpty(context))
    decreaseHashSize(context);
  return 0;
}

void aaScanBegin(AaContext &context, const void *key)
{
  context.scanning = true;
  AaEntry *entry = key ? findEntry(context, key) : nullptr;
  if (!entry) {
    scanFrom(context, 0);
    return;
  }
  context.scanBucket = bucketOf(context, entry->hash);
  context.scanEntry = entry;
}

const void *aaScanNext(AaContext &context, AaValue *value)
{
  const AaEntry *entry = context.scanEntry;
  if (!entry)
    return nullptr;
  if (value)
    *value = entry->value;
  scanOn(context);
  return entry->key;
}

void aaScanEnd(AaContext &context)
{
  context.scanning = false;
  context.scanEntry = nullptr;
  while (isTooFull(context) && increaseHashSize(context))
    ;
  while (isTooEmpty(context) && decreaseHashSize(context))
    ;
}

// --- dump

static std::string keyText(const AaContext &context, const void *key)
{
  unsigned wide = context.flags & (AA_CHARWIDTH16 | AA_CHARWIDTH32);
  if (context.keyLength == 0 && !wide)
    return static_cast<const char *>(key);
  std::string text;
  auto octets = static_cast<const unsigned char *>(key);
  for (size_t i = 0; i < keySize(context, key); ++i)
    text += formatText("%02X", octets[i]);
  return text;
}

static bool isMisplaced(const AaContext &context, const AaEntry &entry,
                        size_t bucket)
{
  return bucketOf(context, entry.hash) != bucket ||
         entry.hash != hashKey(context, entry.key);
}

void aaDumpTable(const AaContext &context)
{
  printf("Dumping table, ListSize = %ld\n", static_cast<long>(context.size));
  int objects = 0;
  for (size_t i = 0; i < context.size; ++i) {
    for (AaEntry *entry = context.buckets[i]; entry; entry = entry->next) {
      std::string key = keyText(context, entry->key);
      if (entry->valueOwned)
        printf("%s -> %s", key.c_str(),
               reinterpret_cast<const char *>(entry->value));
      else
        printf("%s -> %lu", key.c_str(),
               static_cast<unsigned long>(entry->value));
      puts(isMisplaced(context, *entry, i) ? "   BAD HASH!" : "");
      ++objects;
    }
  }
  printf("%d objects\n", objects);
}
