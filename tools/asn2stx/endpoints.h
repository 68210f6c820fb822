#pragma once
#include "asn2stx/compile.h"

// Sets the endpoints of every type node from its constraint records: the
// bounds of a number, of the items of an enumeration, of the size of a string
// or list. An excluded end keeps the number written. A constraint that
// contains its own type is an error.
void setEndpoints(Compilation &c);
