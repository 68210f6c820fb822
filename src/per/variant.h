#pragma once

enum PerVariant : int {
  VARIANT_ALIGNED = 0,   // basic-aligned
  VARIANT_UNALIGNED = 1  // basic-unaligned
};

// The encoding variant of the module being generated; anything else than the
// two is unknown. Every name of a run-time function depends on it.
extern int glbEncodingVariant;

void perSetEncodingVariant(int variant);
int perGetEncodingVariant();

// The name of the variant as an argument of the run-time, to the end of the
// call; empty for an unknown number.
const char *perEncodingVariantTail();
