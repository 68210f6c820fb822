#include "base/alloc.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// The sanitizer ends a process whose request it can't serve, unless told to
// answer as the heap does.
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options()
{
  return "allocator_may_return_null=1";
}

static const char noBytes[] = "\nFATAL ERROR : Internal error\n"
                              "              Allocation request 0 bytes.\n\n";
static const char noSource[] = "\nFATAL ERROR : Internal error\n"
                               "              NULL pointer duplication.\n\n";
static const char noSpace[] = "FATAL ERROR : Can not allocate space\n\n";

static bool isZeroed(const void *block, size_t size)
{
  auto octets = static_cast<const unsigned char *>(block);
  return std::all_of(octets, octets + size,
                     [](unsigned char octet) { return octet == 0; });
}

TEST(Ezalloc, Zeroed)
{
  for (size_t size : {size_t(1), size_t(7), size_t(10000)}) {
    void *block = ezalloc(size);
    EXPECT_TRUE(isZeroed(block, size));
    memset(block, 255, size);
    efree(block);
  }
}

TEST(Ezalloc, ZeroIsFatal)
{
  EXPECT_EXIT(ezalloc(0), testing::ExitedWithCode(2), testing::StrEq(noBytes));
}

TEST(Ezalloc, NoMemoryIsFatal)
{
  EXPECT_EXIT(ezalloc(SIZE_MAX / 2), testing::ExitedWithCode(2),
              testing::EndsWith(noSpace));
}

TEST(Ecalloc, Zeroed)
{
  void *block = ecalloc(3, 5);
  EXPECT_TRUE(isZeroed(block, 15));
  memset(block, 255, 15);
  efree(block);
}

TEST(Ecalloc, ZeroIsFatal)
{
  EXPECT_EXIT(ecalloc(0, 4), testing::ExitedWithCode(2),
              testing::StrEq(noBytes));
  EXPECT_EXIT(ecalloc(4, 0), testing::ExitedWithCode(2),
              testing::StrEq(noBytes));
}

// The product does not fit a size_t.
TEST(Ecalloc, OverflowIsFatal)
{
  EXPECT_EXIT(ecalloc(SIZE_MAX / 2, 4), testing::ExitedWithCode(2),
              testing::EndsWith(noSpace));
}

TEST(Erealloc, KeepsContent)
{
  char *block = static_cast<char *>(ezalloc(4));
  strcpy(block, "abc");
  block = static_cast<char *>(erealloc(block, 5000));
  EXPECT_STREQ("abc", block);
  block[4999] = 'x';
  block = static_cast<char *>(erealloc(block, 2));
  EXPECT_EQ('a', block[0]);
  EXPECT_EQ('b', block[1]);
  efree(block);
}

TEST(Erealloc, NullBlockIsNew)
{
  char *block = static_cast<char *>(erealloc(nullptr, 3));
  strcpy(block, "ab");
  EXPECT_STREQ("ab", block);
  efree(block);
}

TEST(Erealloc, ZeroIsFatal)
{
  void *block = ezalloc(4);
  EXPECT_EXIT(erealloc(block, 0), testing::ExitedWithCode(2),
              testing::StrEq(noBytes));
  EXPECT_EXIT(erealloc(nullptr, 0), testing::ExitedWithCode(2),
              testing::StrEq(noBytes));
  EXPECT_EXIT(erealloc(block, SIZE_MAX / 2), testing::ExitedWithCode(2),
              testing::EndsWith(noSpace));
  efree(block);
}

TEST(Efree, NullPassedOver)
{
  efree(nullptr);
}

TEST(Estrdup, Copies)
{
  char source[] = "text";
  char *copy = estrdup(source);
  source[0] = 'n';
  EXPECT_STREQ("text", copy);
  efree(copy);
}

TEST(Estrdup, EmptyText)
{
  char *copy = estrdup("");
  EXPECT_STREQ("", copy);
  efree(copy);
}

TEST(Estrdup, NullIsFatal)
{
  EXPECT_EXIT(estrdup(nullptr), testing::ExitedWithCode(2),
              testing::StrEq(noSource));
}

TEST(Ememdup, Copies)
{
  char source[] = {1, 0, 2};
  char *copy = static_cast<char *>(ememdup(source, 3));
  source[0] = 9;
  EXPECT_EQ(1, copy[0]);
  EXPECT_EQ(0, copy[1]);
  EXPECT_EQ(2, copy[2]);
  efree(copy);
}

TEST(Ememdup, NothingIsFatal)
{
  EXPECT_EXIT(ememdup(nullptr, 3), testing::ExitedWithCode(2),
              testing::StrEq(noSource));
  EXPECT_EXIT(ememdup("abc", 0), testing::ExitedWithCode(2),
              testing::StrEq(noSource));
}

// A cache that gives its blocks up at the end.
class Cache : public testing::Test {
protected:
  void TearDown() override
  {
    while (CacheBlock *block = cache) {
      cache = block->next;
      efree(block);
    }
  }
  int freeBlocks() const
  {
    int count = 0;
    for (const CacheBlock *block = cache; block; block = block->next)
      ++count;
    return count;
  }
  CacheBlock *cache = nullptr;
};

TEST_F(Cache, TenBlocksAtOnce)
{
  void *object = genericCacheAlloc(cache, 24);
  EXPECT_EQ(9, freeBlocks());
  genericCacheFree(object, cache);
  EXPECT_EQ(10, freeBlocks());
}

TEST_F(Cache, EleventhRefills)
{
  std::vector<void *> objects;
  for (int i = 0; i < 10; ++i)
    objects.push_back(genericCacheAlloc(cache, 24));
  EXPECT_EQ(0, freeBlocks());
  EXPECT_EQ(nullptr, cache);
  objects.push_back(genericCacheAlloc(cache, 24));
  EXPECT_EQ(9, freeBlocks());
  for (void *object : objects)
    genericCacheFree(object, cache);
  EXPECT_EQ(20, freeBlocks());
}

TEST_F(Cache, ObjectsAreApart)
{
  std::vector<void *> objects;
  for (int i = 0; i < 20; ++i) {
    objects.push_back(genericCacheAlloc(cache, 24));
    memset(objects.back(), i + 1, 24);
  }
  for (int i = 0; i < 20; ++i) {
    EXPECT_EQ(i + 1, static_cast<char *>(objects[size_t(i)])[0]);
    EXPECT_EQ(i + 1, static_cast<char *>(objects[size_t(i)])[23]);
    genericCacheFree(objects[size_t(i)], cache);
  }
}

TEST_F(Cache, ZeroedAgain)
{
  void *object = genericCacheAlloc(cache, 24);
  EXPECT_TRUE(isZeroed(object, 24));
  memset(object, 255, 24);
  genericCacheFree(object, cache);
  void *again = genericCacheAlloc(cache, 24);
  EXPECT_EQ(object, again);
  EXPECT_TRUE(isZeroed(again, 24));
  genericCacheFree(again, cache);
}

TEST_F(Cache, NullPassedOver)
{
  genericCacheFree(nullptr, cache);
  EXPECT_EQ(nullptr, cache);
  cacheDelete<int>(nullptr, cache);
  EXPECT_EQ(nullptr, cache);
}

struct CachedText {
  std::string text;
  int number = 7;
};

TEST_F(Cache, ObjectsWithMembers)
{
  CachedText *object = cacheNew<CachedText>(cache);
  EXPECT_EQ("", object->text);
  EXPECT_EQ(7, object->number);
  object->text.assign(1000, 'x'); // a leak if it were not destroyed
  object->number = 1;
  cacheDelete(object, cache);
  EXPECT_EQ(10, freeBlocks());
  CachedText *again = cacheNew<CachedText>(cache);
  EXPECT_EQ(object, again);
  EXPECT_EQ("", again->text);
  EXPECT_EQ(7, again->number);
  cacheDelete(again, cache);
}
