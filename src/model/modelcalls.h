#pragma once

struct AsnType;

// Calls between files of the model that go against the order of its headers.

// Frees the cached value set of a type. (model/valueset.cc)
void freeValueSetOfType(AsnType &type);
