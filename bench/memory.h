#pragma once
#include <cstddef>

// Octets that were allocated with `new` and are not freed, and allocations
// so far.
size_t liveOctets();
size_t allocationsSoFar();
