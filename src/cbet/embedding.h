#pragma once
#include "model/asntype.h"
#include "model/objclass.h"

// Embedding lines of a type, of all nodes from the one that it stands on to
// its base. The selector is a place of `tedArr`: lines ahead of the code come
// from the outside in, those behind it from the inside out.

// All lines; of a definition without those of its base at the places of the
// letter "T", or if it is no leaf.
void printTypeEmbeddingOptions(int file, const AsnType &type, int selector);

// The lines of the type's own node, resp. of its base.
void printLocalTypeEmbeddingOptions(int file, const AsnType &type,
                                    int selector);
void printBaseTypeEmbeddingOptions(int file, const AsnType &type, int selector);

// All lines of a class, by the same rules; a class without fields is a leaf.
void printObjClassEmbeddingOptions(int file, const AsnObjClass &objClass,
                                   int selector);
