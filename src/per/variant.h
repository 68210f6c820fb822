#pragma once

// The encoding variant of the module being generated: 0 basic-aligned, 1
// basic-unaligned, anything else unknown. Every name of a run-time function
// depends on it.
extern int glbEncodingVariant;

void perSetEncodingVariant(int variant);
int perGetEncodingVariant();
