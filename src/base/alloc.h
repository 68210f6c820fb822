#pragma once
#include <cstddef>
#include <new>
#include <type_traits>

// Allocation that never returns null: no memory is a fatal error, and so is
// a request for nothing.

// A zeroed block.
void *ezalloc(size_t size);

// A zeroed array of `count` elements.
void *ecalloc(size_t count, size_t size);

// The block with a new size; what is added is not cleared.
void *erealloc(void *block, size_t size);

// Frees a block; null is passed over.
void efree(void *block);

// Copies on the heap; null or an empty block is fatal.
char *estrdup(const char *text);
void *ememdup(const void *block, size_t size);

// Free-list cache: one word per object type, the head of a chain of free
// blocks. A block has one link word ahead of the object.
struct CacheBlock {
  CacheBlock *next;
};

// A zeroed block of `size` octets from the chain, which gets 10 new blocks
// when it is empty. One cache serves one size.
void *genericCacheAlloc(CacheBlock *&cache, size_t size);

// Puts an object back; null is passed over.
void genericCacheFree(void *object, CacheBlock *&cache);

// The same for objects with members of their own: value-initialised on the
// way out, destroyed on the way back. One that needs no destruction keeps
// what was written into it last: a mark that it was given back already.
template <class T>
T *cacheNew(CacheBlock *&cache)
{
  static_assert(alignof(T) <= sizeof(CacheBlock));
  return new (genericCacheAlloc(cache, sizeof(T))) T();
}

template <class T>
void cacheDelete(T *object, CacheBlock *&cache)
{
  if constexpr (!std::is_trivially_destructible_v<T>)
    if (object)
      object->~T();
  genericCacheFree(object, cache);
}
