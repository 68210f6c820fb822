#pragma once
#include "model/asntype.h"

// Checks of values against the constraints of their types in generated code.

// Writes the check of the value in the home of `type`, with the report of
// its failure; nothing for types without constraints and for what the
// application or nobody represents. A constraint that can't be checked leaves
// a comment and, from level 2 on, draws a warning.
void cCheckConstraints(int file, AsnType &type);
