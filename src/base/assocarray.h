#pragma once
#include <cstddef>
#include <cstdint>

// Associative array: a hash table over strings of 8, 16 or 32-bit
// characters, or over blocks of fixed length, that grows and shrinks by
// powers of two and can be scanned.

enum AaFlag : unsigned {
  AA_KEYCOPY = 1,       // keys are copied in
  AA_VALCOPY = 2,       // values are strings, copied in
  AA_KEYREF = 4,        // keys are kept by reference
  AA_VALREF = 8,        // values are kept as they are
  AA_NODUP = 16,        // a put of an existing key changes nothing
  AA_CASEINSIG = 32,    // keys compare ignoring case
  AA_CHARWIDTH16 = 64,  // 16-bit characters
  AA_CHARWIDTH32 = 128  // 32-bit characters
};

// A value: a number, or the address of a string with AA_VALCOPY.
typedef uintptr_t AaValue;

struct AaEntry {
  AaEntry *next;
  const void *key;
  AaValue value;
  uint16_t hash;
  bool keyOwned;
  bool valueOwned;
};

struct AaContext {
  AaEntry **buckets = nullptr;
  size_t size = 0;  // of buckets: a power of two, 64 at first
  size_t scanBucket = 0;
  AaEntry *scanEntry = nullptr;  // what `aaScanNext` gives next
  bool scanning = false;         // no resizing meanwhile
  unsigned flags = 0;
  size_t keyLength = 0;         // octets; 0: keys are strings
  int32_t entries = 0;          // below 0 if keys were put uncounted
  int32_t shrinkThreshold = 0;  // 0: never shrinks
  int32_t growThreshold = 0;    // 0: never grows, and puts count no more
};

// A new table, or null with a line on stderr if the flags don't go together,
// and null without memory. `keyLength` is 0 for strings.
AaContext *aaCreateContext(unsigned flags, size_t keyLength);

// Frees the table with all that it owns; null is passed over.
void aaDestroyContext(AaContext *context);

// 0 for a new key, 1 for a replaced value or a refused duplicate, -1 without
// memory.
int aaPut(AaContext &context, const void *key, AaValue value);

// The value, or 0, which does not tell a value of 0 from absence.
AaValue aaGet(const AaContext &context, const void *key);

// 0, or -1 if the key is absent.
int aaDelete(AaContext &context, const void *key);

// A scan begins at the key, or at the first entry if it is null or absent.
// `aaScanNext` gives the next key or null, and its value if `value` is not
// null; `aaScanEnd` makes up for the resizing that the scan held back.
void aaScanBegin(AaContext &context, const void *key);
const void *aaScanNext(AaContext &context, AaValue *value);
void aaScanEnd(AaContext &context);

// Prints the table on stdout, for debugging: a line "key -> value" for each
// entry, keys that are not 8-bit strings in hexadecimal octets.
void aaDumpTable(const AaContext &context);
