// The encoder generator. It writes no functions yet: the engine that walks
// the types of a module comes first.

#include "per/encoder.h"

void generatePEREncodingFunctions(AsnModule &) {}
