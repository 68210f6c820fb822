#pragma once

struct AsnModule;

// Writes the encoder functions of a module and their prototypes; gives the
// number of types passed.
int generatePEREncodingFunctions(AsnModule &module);
