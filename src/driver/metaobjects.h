#pragma once
#include "base/alloc.h"

// Meta records of values, classes, objects and object sets: this back-end
// keeps nothing beside them. The functions are declared in base/upcalls.h.

struct BEValMetaRec {};
struct BEClassMetaRec {};
struct BEObjMetaRec {};
struct BEObjSetMetaRec {};

extern CacheBlock *cache__BEValMetaRec;
extern CacheBlock *cache__BEClassMetaRec;
extern CacheBlock *cache__BEObjMetaRec;
extern CacheBlock *cache__BEObjSetMetaRec;
