#pragma once

struct AsnModule;

// Writes the encoder functions of a module and their prototypes.
void generatePEREncodingFunctions(AsnModule &module);
