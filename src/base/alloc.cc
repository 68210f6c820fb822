// Allocation that never returns null, and the free lists of short-lived
// objects.

#include "base/alloc.h"
#include "base/diag.h"
#include <cstdlib>
#include <cstring>

// So many blocks at once fill an empty cache.
constexpr int cacheRefill = 10;

static void refuseEmpty(size_t size)
{
  if (size == 0)
    fatalError(FATAL_INTERNAL, "Allocation request 0 bytes.");
}

static void *orNoMemory(void *block)
{
  if (!block)
    fatalError(FATAL_NO_MEMORY);
  return block;
}

void *ezalloc(size_t size)
{
  refuseEmpty(size);
  return orNoMemory(calloc(1, size));
}

void *ecalloc(size_t count, size_t size)
{
  refuseEmpty(count);
  refuseEmpty(size);
  return orNoMemory(calloc(count, size));
}

void *erealloc(void *block, size_t size)
{
  refuseEmpty(size);
  return orNoMemory(realloc(block, size));
}

void efree(void *block)
{
  free(block);
}

char *estrdup(const char *text)
{
  return static_cast<char *>(ememdup(text, text ? strlen(text) + 1 : 0));
}

void *ememdup(const void *block, size_t size)
{
  if (!block || size == 0)
    fatalError(FATAL_INTERNAL, "NULL pointer duplication.");
  return memcpy(ezalloc(size), block, size);
}

void *genericCacheAlloc(CacheBlock *&cache, size_t size)
{
  if (!cache) {
    for (int i = 0; i < cacheRefill; ++i) {
      void *block = ezalloc(sizeof(CacheBlock) + size);
      cache = new (block) CacheBlock{cache};
    }
  }
  CacheBlock *block = cache;
  cache = block->next;
  return memset(static_cast<void *>(block + 1), 0, size);
}

void genericCacheFree(void *object, CacheBlock *&cache)
{
  if (!object)
    return;
  CacheBlock *block = static_cast<CacheBlock *>(object) - 1;
  block->next = cache;
  cache = block;
}
