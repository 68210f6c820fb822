#pragma once
#include "asn2stx/compile.h"

// Marks the nodes that contain a subtype with a wide end as wide, too; comes
// ahead of `representType`.
void spreadWideNodes(Compilation &c);

// Choice of the representation in C: `valueField`, `valueFieldSize` and option
// bits of a type node, from its kind, bounds, count and named items.

// Called once for every type node, when all content of all trees is known and
// before annotations.
void representType(Compilation &c, int module, int32_t node);
