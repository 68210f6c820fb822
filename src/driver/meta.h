#pragma once
#include "base/alloc.h"
#include "base/upcalls.h"
#include "store/modrec.h"
#include <string>

// Meta records: what this back-end keeps beside each module. Stamps and
// accessors by module are declared in base/upcalls.h.

// The options of the "QUORVEN=" block, of one module.
struct BEModMetaRec {
  uint8_t verbosity = 1;  // 0 quiet, 1 terse, 2 verbose
  std::string logFile;    // empty: no log
  uint8_t genArr[17] = {0, 0, 0, 0, 0, 2, 1, 0, 0, 0, 0, 2, 1, 0, 0, 0, 0};
  uint8_t berFuncPref = 0;
  uint8_t encodingVariant = 0;  // 0 basic-aligned, 1 basic-unaligned
  uint8_t variantFuncPref = 0;
  uint8_t generateEmbeddingOptions = 0;
  uint8_t encodingCheckDefaultValues = 0;
  uint8_t decodingCatchDefaultErrors = 0;
  uint8_t decodingFillDefaultValues = 0;
  uint8_t defaultValuesWarningDisable = 0;
};

extern CacheBlock *cache__BEModMetaRec;

// Suffix of the IDE's tree file, from the option TREE-FILE-SUFFIX.
extern std::string g_adeTreeFileSuffix;
