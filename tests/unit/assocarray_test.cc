#include "support/assoctable.h"
#include <algorithm>
#include <map>
#include <vector>

static void deleteKeys(AaContext &context, int first, int last)
{
  for (int i = first; i < last; ++i)
    ASSERT_EQ(0, aaDelete(context, keyOf(i).c_str()));
}

static void expectKeys(const AaContext &context, int first, int last)
{
  for (int i = first; i < last; ++i)
    ASSERT_EQ(AaValue(i) + 1, aaGet(context, keyOf(i).c_str())) << i;
}

// The hash of the only entry.
static int onlyHash(const AaContext &context)
{
  for (size_t i = 0; i < context.size; ++i) {
    if (const AaEntry *entry = context.buckets[i]) {
      EXPECT_EQ(i, entry->hash % context.size);
      return entry->hash;
    }
  }
  return -1;
}

static int hashIn(unsigned flags, size_t keyLength, const void *key)
{
  Table table = makeTable(flags, keyLength);
  aaPut(*table, key, 1);
  return onlyHash(*table);
}

// CRC-16 bit by bit, as the model of the table-driven one.
static int naiveCrc(const std::string &octets)
{
  unsigned crc = 65535;
  for (char octet : octets) {
    crc ^= static_cast<unsigned char>(octet);
    for (int bit = 0; bit < 8; ++bit)
      crc = crc % 2 ? (crc / 2) ^ 0xA001 : crc / 2;
  }
  return static_cast<int>(crc);
}

// --- hash

// 0x4B37 is the published check value of this CRC over these nine octets.
TEST(AaHash, CheckValue)
{
  EXPECT_EQ(0x4B37, naiveCrc("123456789"));
  EXPECT_EQ(0x4B37, hashIn(copied, 0, "123456789"));
  EXPECT_EQ(0x4B37, hashIn(copied, 9, "123456789"));
}

TEST(AaHash, EmptyKeyHasStartValue)
{
  EXPECT_EQ(65535, hashIn(copied, 0, ""));
  EXPECT_EQ(65535, hashIn(copied | AA_CHARWIDTH16, 0, u""));
}

TEST(AaHash, HighOctets)
{
  EXPECT_EQ(naiveCrc("\xE4\x80\xFF"), hashIn(copied, 0, "\xE4\x80\xFF"));
}

TEST(AaHash, WideCharactersLowOctetFirst)
{
  const char16_t wide16[] = {0x3231, 0x0041, 0};
  EXPECT_EQ(naiveCrc(std::string("12A\0", 4)),
            hashIn(copied | AA_CHARWIDTH16, 0, wide16));
  const char32_t wide32[] = {0x34333231, 0x41, 0};
  EXPECT_EQ(naiveCrc(std::string("1234A\0\0\0", 8)),
            hashIn(copied | AA_CHARWIDTH32, 0, wide32));
}

TEST(AaHash, CapitalsWithCaseFlag)
{
  EXPECT_EQ(naiveCrc("ABC_1"), hashIn(copied | AA_CASEINSIG, 0, "aBc_1"));
  EXPECT_EQ(naiveCrc("aBc_1"), hashIn(copied, 0, "aBc_1"));
}

// --- put, get, delete

TEST(AaPut, NewAndReplaced)
{
  Table table = makeTable(copied);
  EXPECT_EQ(0, aaPut(*table, "a", 1));
  EXPECT_EQ(0, aaPut(*table, "b", 2));
  EXPECT_EQ(1, aaPut(*table, "a", 3));
  EXPECT_EQ(3u, aaGet(*table, "a"));
  EXPECT_EQ(2u, aaGet(*table, "b"));
  EXPECT_EQ(2, table->entries);
}

TEST(AaPut, NoDuplicates)
{
  Table table = makeTable(copied | AA_NODUP);
  EXPECT_EQ(0, aaPut(*table, "a", 1));
  EXPECT_EQ(1, aaPut(*table, "a", 3));
  EXPECT_EQ(1u, aaGet(*table, "a"));
  EXPECT_EQ(1, table->entries);
}

TEST(AaPut, NoDuplicatesOfCopiedValues)
{
  Table table = makeTable(AA_KEYCOPY | AA_VALCOPY | AA_NODUP);
  EXPECT_EQ(0, aaPut(*table, "a", asValue("one")));
  EXPECT_EQ(1, aaPut(*table, "a", asValue("two")));
  EXPECT_STREQ("one", asText(aaGet(*table, "a")));
}

TEST(AaPut, ZeroLooksAbsent)
{
  Table table = makeTable(copied);
  EXPECT_EQ(0, aaPut(*table, "a", 0));
  EXPECT_EQ(0u, aaGet(*table, "a"));
  EXPECT_EQ(0u, aaGet(*table, "b"));
  EXPECT_EQ(1, aaPut(*table, "a", 0));
  EXPECT_EQ(0, aaDelete(*table, "a"));
}

TEST(AaPut, CaseMatters)
{
  Table table = makeTable(copied);
  EXPECT_EQ(0, aaPut(*table, "a", 1));
  EXPECT_EQ(0u, aaGet(*table, "A"));
}

TEST(AaPut, CaseIgnored)
{
  Table table = makeTable(copied | AA_CASEINSIG);
  EXPECT_EQ(0, aaPut(*table, "Name-x", 1));
  EXPECT_EQ(1u, aaGet(*table, "nAME-X"));
  EXPECT_EQ(0u, aaGet(*table, "name-y"));
  EXPECT_EQ(1, aaPut(*table, "NAME-X", 2));
  aaScanBegin(*table, nullptr);
  EXPECT_STREQ("Name-x",
               static_cast<const char *>(aaScanNext(*table, nullptr)));
  aaScanEnd(*table);
}

TEST(AaPut, WideKeysCopied)
{
  Table table16 = makeTable(copied | AA_CHARWIDTH16);
  char16_t key16[] = u"ab";
  aaPut(*table16, key16, 1);
  key16[1] = u'x';
  EXPECT_EQ(1u, aaGet(*table16, u"ab"));
  EXPECT_EQ(0u, aaGet(*table16, key16));

  Table table32 = makeTable(copied | AA_CHARWIDTH32);
  char32_t key32[] = U"ab";
  aaPut(*table32, key32, 1);
  key32[1] = U'x';
  EXPECT_EQ(1u, aaGet(*table32, U"ab"));
  EXPECT_EQ(0u, aaGet(*table32, key32));
}

TEST(AaPut, KeyCopied)
{
  Table table = makeTable(copied);
  char key[] = "abc";
  aaPut(*table, key, 1);
  key[0] = 'x';
  EXPECT_EQ(1u, aaGet(*table, "abc"));
  EXPECT_EQ(0u, aaGet(*table, key));
}

// Compared by content, though kept by address.
TEST(AaPut, KeyReferred)
{
  Table table = makeTable(referred);
  const char key[] = "abc";
  const char same[] = "abc";
  aaPut(*table, key, 1);
  EXPECT_EQ(1u, aaGet(*table, same));
  EXPECT_EQ(1, aaPut(*table, same, 2));
  aaScanBegin(*table, nullptr);
  EXPECT_EQ(key, aaScanNext(*table, nullptr));
  EXPECT_EQ(nullptr, aaScanNext(*table, nullptr));
  aaScanEnd(*table);
}

TEST(AaPut, ValueCopied)
{
  Table table = makeTable(AA_KEYREF | AA_VALCOPY);
  char value[] = "one";
  aaPut(*table, "a", asValue(value));
  value[0] = 'x';
  EXPECT_STREQ("one", asText(aaGet(*table, "a")));
  EXPECT_EQ(1, aaPut(*table, "a", asValue("another")));
  EXPECT_STREQ("another", asText(aaGet(*table, "a")));
}

TEST(AaPut, ValueCopiedOverItself)
{
  Table table = makeTable(AA_KEYREF | AA_VALCOPY);
  aaPut(*table, "a", asValue("one"));
  EXPECT_EQ(1, aaPut(*table, "a", aaGet(*table, "a")));
  EXPECT_STREQ("one", asText(aaGet(*table, "a")));
}

TEST(AaPut, NullIsNoStringToCopy)
{
  Table table = makeTable(AA_KEYREF | AA_VALCOPY);
  EXPECT_EQ(0, aaPut(*table, "a", 0));
  EXPECT_EQ(0u, aaGet(*table, "a"));
  EXPECT_EQ(1, aaPut(*table, "a", asValue("one")));
  EXPECT_EQ(1, aaPut(*table, "a", 0));
  EXPECT_EQ(0u, aaGet(*table, "a"));
}

TEST(AaPut, ValueReferred)
{
  Table table = makeTable(referred);
  const char value[] = "one";
  aaPut(*table, "a", asValue(value));
  EXPECT_EQ(asValue(value), aaGet(*table, "a"));
}

TEST(AaPut, FixedLength)
{
  Table table = makeTable(copied, 3);
  EXPECT_EQ(0, aaPut(*table, "a\0b", 1));
  EXPECT_EQ(0, aaPut(*table, "a\0c", 2));
  EXPECT_EQ(1, aaPut(*table, "a\0bxyz", 3));
  EXPECT_EQ(3u, aaGet(*table, "a\0b"));
  EXPECT_EQ(2u, aaGet(*table, "a\0c"));
  EXPECT_EQ(0u, aaGet(*table, "a\0d"));
}

TEST(AaPut, WideKeys)
{
  Table table16 = makeTable(copied | AA_CHARWIDTH16);
  EXPECT_EQ(0, aaPut(*table16, u"a\u0100", 1));
  EXPECT_EQ(0, aaPut(*table16, u"a\u0200", 2));
  EXPECT_EQ(1u, aaGet(*table16, u"a\u0100"));
  EXPECT_EQ(2u, aaGet(*table16, u"a\u0200"));
  EXPECT_EQ(0u, aaGet(*table16, u"a"));

  Table table32 = makeTable(copied | AA_CHARWIDTH32);
  EXPECT_EQ(0, aaPut(*table32, U"a\U00010000", 1));
  EXPECT_EQ(0, aaPut(*table32, U"a\U00020000", 2));
  EXPECT_EQ(1u, aaGet(*table32, U"a\U00010000"));
  EXPECT_EQ(2u, aaGet(*table32, U"a\U00020000"));
  EXPECT_EQ(0u, aaGet(*table32, U"a"));
}

// Two keys of one hash, so that the keys themselves must decide.
TEST(AaPut, EqualHashes)
{
  std::map<int, std::string> byHash;
  for (int i = 0;; ++i) {
    std::string key = keyOf(i);
    auto [place, added] = byHash.emplace(naiveCrc(key), key);
    if (added)
      continue;
    Table table = makeTable(copied);
    EXPECT_EQ(0, aaPut(*table, key.c_str(), 1));
    EXPECT_EQ(0u, aaGet(*table, place->second.c_str()));
    EXPECT_EQ(0, aaPut(*table, place->second.c_str(), 2));
    EXPECT_EQ(1u, aaGet(*table, key.c_str()));
    EXPECT_EQ(2u, aaGet(*table, place->second.c_str()));
    break;
  }
}

TEST(AaDelete, PresentAndAbsent)
{
  Table table = makeTable(AA_KEYCOPY | AA_VALCOPY);
  aaPut(*table, "a", asValue("one"));
  aaPut(*table, "b", asValue("two"));
  EXPECT_EQ(-1, aaDelete(*table, "c"));
  EXPECT_EQ(2, table->entries);
  EXPECT_EQ(0, aaDelete(*table, "a"));
  EXPECT_EQ(1, table->entries);
  EXPECT_EQ(0u, aaGet(*table, "a"));
  EXPECT_STREQ("two", asText(aaGet(*table, "b")));
  EXPECT_EQ(-1, aaDelete(*table, "a"));
  EXPECT_EQ(1, table->entries);
}

// --- resizing

TEST(AaResize, GrowsOn57thKey)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 56);
  EXPECT_EQ(64u, table->size);
  aaPut(*table, keyOf(0).c_str(), 1);  // no new key
  EXPECT_EQ(64u, table->size);
  putKeys(*table, 56, 57);
  EXPECT_EQ(128u, table->size);
  EXPECT_EQ(57, table->entries);
  EXPECT_EQ(25, table->shrinkThreshold);
  EXPECT_EQ(115, table->growThreshold);
  expectKeys(*table, 0, 57);
}

TEST(AaResize, ShrinksAt25Keys)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 57);
  deleteKeys(*table, 0, 31);
  EXPECT_EQ(26, table->entries);
  EXPECT_EQ(128u, table->size);
  deleteKeys(*table, 31, 32);
  EXPECT_EQ(64u, table->size);
  EXPECT_EQ(0, table->shrinkThreshold);
  EXPECT_EQ(57, table->growThreshold);
  expectKeys(*table, 32, 57);
  for (int i = 0; i < 32; ++i)
    EXPECT_EQ(0u, aaGet(*table, keyOf(i).c_str()));
}

TEST(AaResize, SmallestNeverShrinks)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 5);
  deleteKeys(*table, 0, 5);
  EXPECT_EQ(64u, table->size);
  EXPECT_EQ(0, table->entries);
}

// Chains as the rules of growing and shrinking make them.
typedef std::vector<std::vector<std::string>> Chains;

static Chains chainsOf(const AaContext &context)
{
  Chains chains(context.size);
  for (size_t i = 0; i < context.size; ++i)
    for (const AaEntry *entry = context.buckets[i]; entry; entry = entry->next)
      chains[i].push_back(static_cast<const char *>(entry->key));
  return chains;
}

static Chains chainsOf64Buckets(int keys)
{
  Chains chains(64);
  for (int i = 0; i < keys; ++i) {
    auto &chain = chains[size_t(naiveCrc(keyOf(i)) % 64)];
    chain.insert(chain.begin(), keyOf(i));
  }
  return chains;
}

static Chains doubled(const Chains &chains)
{
  Chains grown(chains.size() * 2);
  for (const auto &chain : chains)
    for (const std::string &key : chain) {
      auto &to = grown[size_t(naiveCrc(key)) % grown.size()];
      to.insert(to.begin(), key);
    }
  return grown;
}

TEST(AaResize, NewEntriesAtHead)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 56);
  EXPECT_EQ(chainsOf64Buckets(56), chainsOf(*table));
}

TEST(AaResize, GrowingReversesChains)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 57);
  EXPECT_EQ(doubled(chainsOf64Buckets(57)), chainsOf(*table));
}

TEST(AaResize, ShrinkingAppendsUpperHalf)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 57);
  Chains before = chainsOf(*table);
  deleteKeys(*table, 0, 32);
  for (auto &chain : before)
    std::erase_if(chain, [](const std::string &key) {
      return std::stoi(key.substr(3)) < 32;
    });
  Chains expected(before.begin(), before.begin() + 64);
  for (size_t i = 0; i < 64; ++i)
    expected[i].insert(expected[i].end(), before[i + 64].begin(),
                       before[i + 64].end());
  EXPECT_EQ(expected, chainsOf(*table));
}

static std::map<std::string, const AaEntry *>
entriesOf(const AaContext &context)
{
  std::map<std::string, const AaEntry *> entries;
  for (size_t i = 0; i < context.size; ++i)
    for (const AaEntry *entry = context.buckets[i]; entry; entry = entry->next)
      entries[static_cast<const char *>(entry->key)] = entry;
  return entries;
}

// Keys by reference that change under the table: an entry that were hashed
// anew would move to another bucket.
TEST(AaResize, EntriesAndHashesKept)
{
  std::vector<std::string> keys;
  for (int i = 0; i < 57; ++i)
    keys.push_back(keyOf(i));
  Table table = makeTable(referred);
  for (int i = 0; i < 56; ++i)
    aaPut(*table, keys[size_t(i)].c_str(), 1);
  std::map<std::string, const AaEntry *> before = entriesOf(*table);
  std::string kept = keys[0];
  keys[0][0] = 'X';
  aaPut(*table, keys[56].c_str(), 1);
  ASSERT_EQ(128u, table->size);
  std::map<std::string, const AaEntry *> after = entriesOf(*table);
  EXPECT_EQ(before[kept], after[keys[0]]);
  EXPECT_EQ(naiveCrc(kept), after[keys[0]]->hash);
  for (int i = 1; i < 56; ++i)
    EXPECT_EQ(before[keys[size_t(i)]], after[keys[size_t(i)]]);
  size_t bucket = size_t(naiveCrc(kept)) % 128;
  EXPECT_TRUE(std::ranges::count(chainsOf(*table)[bucket], keys[0]));
}

TEST(AaResize, Thresholds)
{
  static const struct {
    size_t size;
    int shrink;
    int grow;
  } rows[] = {
      {64, 0, 57},          {128, 25, 115},     {256, 51, 230},
      {512, 102, 460},      {1024, 204, 921},   {2048, 409, 1843},
      {4096, 819, 3686},    {8192, 1638, 7372}, {16384, 3276, 14745},
      {32768, 6553, 29491},
  };
  Table table = makeTable(copied);
  for (auto &[size, shrink, grow] : rows) {
    EXPECT_EQ(size, table->size);
    EXPECT_EQ(shrink, table->shrinkThreshold);
    EXPECT_EQ(grow, table->growThreshold);
    putKeys(*table, table->entries, grow - 1);
    EXPECT_EQ(size, table->size);
    putKeys(*table, grow - 1, grow);
  }
  EXPECT_EQ(65536u, table->size);
  EXPECT_EQ(13107, table->shrinkThreshold);
  EXPECT_EQ(0, table->growThreshold);
}

TEST(AaResize, LargestCountsNoPuts)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 29491);
  ASSERT_EQ(65536u, table->size);
  putKeys(*table, 29491, 29591);
  EXPECT_EQ(29491, table->entries);
  expectKeys(*table, 29491, 29591);
  deleteKeys(*table, 29491, 29591);
  EXPECT_EQ(29391, table->entries);
  expectKeys(*table, 0, 29491);
  deleteKeys(*table, 0, 16283);
  EXPECT_EQ(65536u, table->size);
  deleteKeys(*table, 16283, 16284);  // 29391 - 16284 = 13107
  EXPECT_EQ(32768u, table->size);
  expectKeys(*table, 16284, 29491);
}

// Keys that were never counted bring the count below 0 when they go.
TEST(AaResize, CountBelowZero)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 29591);
  deleteKeys(*table, 0, 29591);
  EXPECT_EQ(-100, table->entries);
  EXPECT_EQ(64u, table->size);
  putKeys(*table, 0, 1);
  EXPECT_EQ(-99, table->entries);
  EXPECT_EQ(64u, table->size);
  expectKeys(*table, 0, 1);
}

// --- scan

static std::vector<std::string> scanned(AaContext &context, const void *start)
{
  std::vector<std::string> keys;
  aaScanBegin(context, start);
  AaValue value = 0;
  while (const void *key = aaScanNext(context, &value)) {
    keys.push_back(static_cast<const char *>(key));
    EXPECT_EQ(aaGet(context, key), value);
  }
  EXPECT_EQ(nullptr, aaScanNext(context, &value));
  aaScanEnd(context);
  return keys;
}

TEST(AaScan, EmptyTable)
{
  Table table = makeTable(copied);
  EXPECT_TRUE(scanned(*table, nullptr).empty());
  EXPECT_TRUE(scanned(*table, "a").empty());
}

TEST(AaScan, BucketsInOrder)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 200);
  std::vector<std::string> expected;
  for (const auto &chain : chainsOf(*table))
    expected.insert(expected.end(), chain.begin(), chain.end());
  EXPECT_EQ(200u, expected.size());
  EXPECT_EQ(expected, scanned(*table, nullptr));
  EXPECT_EQ(expected, scanned(*table, "absent"));
}

TEST(AaScan, FromKey)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 200);
  std::vector<std::string> all = scanned(*table, nullptr);
  for (int i : {0, 100, 199}) {
    auto start = std::ranges::find(all, keyOf(i));
    EXPECT_EQ(std::vector<std::string>(start, all.end()),
              scanned(*table, keyOf(i).c_str()));
  }
}

TEST(AaScan, ValueNotAskedFor)
{
  Table table = makeTable(copied);
  aaPut(*table, "a", 5);
  aaScanBegin(*table, nullptr);
  EXPECT_STREQ("a", static_cast<const char *>(aaScanNext(*table, nullptr)));
  aaScanEnd(*table);
}

TEST(AaScan, NothingAfterEnd)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 3);
  EXPECT_EQ(nullptr, aaScanNext(*table, nullptr));
  aaScanBegin(*table, nullptr);
  aaScanEnd(*table);
  EXPECT_EQ(nullptr, aaScanNext(*table, nullptr));
}

TEST(AaScan, GrowsAtEnd)
{
  Table table = makeTable(copied);
  aaScanBegin(*table, nullptr);
  putKeys(*table, 0, 300);
  EXPECT_EQ(64u, table->size);
  EXPECT_EQ(300, table->entries);
  aaScanEnd(*table);
  EXPECT_EQ(512u, table->size);  // 256 grow at 230, 512 at 460
  expectKeys(*table, 0, 300);
}

TEST(AaScan, ShrinksAtEnd)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 300);
  ASSERT_EQ(512u, table->size);
  aaScanBegin(*table, nullptr);
  deleteKeys(*table, 0, 260);
  EXPECT_EQ(512u, table->size);
  aaScanEnd(*table);
  EXPECT_EQ(128u, table->size);  // 40: 256 shrink at 51, 128 at 25
  expectKeys(*table, 260, 300);
}

TEST(AaScan, EndKeepsSizeBetweenThresholds)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 60);
  aaScanBegin(*table, nullptr);
  deleteKeys(*table, 0, 34);
  aaScanEnd(*table);
  EXPECT_EQ(26, table->entries);
  EXPECT_EQ(128u, table->size);
}

// Deleting the key just given, and the one that comes next.
TEST(AaScan, DeleteMeanwhile)
{
  Table table = makeTable(copied);
  putKeys(*table, 0, 100);
  std::vector<std::string> all = scanned(*table, nullptr);
  aaScanBegin(*table, nullptr);
  std::vector<std::string> seen;
  for (size_t i = 0; i < 100; i += 2) {
    seen.push_back(static_cast<const char *>(aaScanNext(*table, nullptr)));
    EXPECT_EQ(0, aaDelete(*table, all[i].c_str()));
    EXPECT_EQ(0, aaDelete(*table, all[i + 1].c_str()));
  }
  EXPECT_EQ(nullptr, aaScanNext(*table, nullptr));
  aaScanEnd(*table);
  for (size_t i = 0; i < 50; ++i)
    EXPECT_EQ(all[2 * i], seen[i]);
  EXPECT_EQ(0, table->entries);
  EXPECT_EQ(64u, table->size);
}
