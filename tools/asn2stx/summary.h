#pragma once
#include "asn2stx/compile.h"

// Where the text of a node is, to the line if no more is known, and its name
// or what it refers to.
NamedPlace placeOf(Compilation &c, NodeAt at);

// What a node says of others: counts, bits, chains of references.

// Flattened counts and component bits of all structures, and the bit for
// recursive nodes. A circle of COMPONENTS OF is an error.
void summarizeTypes(Compilation &c);

// What annotations may have changed: SKIP kinds on references, the bit for
// ignorable nodes, counts of the headers.
void finishHeaders(Compilation &c);
