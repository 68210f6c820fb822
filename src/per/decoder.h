#pragma once

struct AsnModule;

// Writes the decoder and ignore functions of a module and their prototypes;
// gives the number of types passed.
int generatePERDecodingFunctions(AsnModule &module);
