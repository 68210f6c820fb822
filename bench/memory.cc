// Counts what `new` hands out.

#include "memory.h"
#include <cstdlib>
#include <malloc.h>
#include <new>

static size_t live;
static size_t allocations;

size_t liveOctets() { return live; }

size_t allocationsSoFar() { return allocations; }

void *operator new(size_t size)
{
  void *block = malloc(size);
  if (!block)
    throw std::bad_alloc();
  live += malloc_usable_size(block);
  ++allocations;
  return block;
}

void operator delete(void *block) noexcept
{
  live -= malloc_usable_size(block);
  free(block);
}

void operator delete(void *block, size_t) noexcept { operator delete(block); }
