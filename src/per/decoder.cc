// The decoder generator. It writes no functions yet: the engine that walks
// the types of a module comes first.

#include "per/decoder.h"

void generatePERDecodingFunctions(AsnModule &) {}
