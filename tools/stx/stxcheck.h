#pragma once
#include "stx/stxread.h"

// Reports what a reader of the tree would stumble over: indexes that lead to
// no record, ranges that run backwards and chains that lead back into
// themselves; with `codes`, also code values that the format does not know
// and a header that the tool refuses. Time is linear in the tree.
void stxCheck(const StxFile &file, bool codes, StxFaults &faults);
