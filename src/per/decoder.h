#pragma once

struct AsnModule;

// Writes the decoder and skip functions of a module and their prototypes.
void generatePERDecodingFunctions(AsnModule &module);
