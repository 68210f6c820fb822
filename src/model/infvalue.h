#pragma once
#include <string>

// What value printers write for an infinite number: two texts for integers,
// of which the largest takes the first and the smallest the second, and two
// for reals, minus infinity first.
extern std::string infValueStri[4];

// Sets the four texts; a null one keeps what is there.
void setInfValueStri(const char *firstInteger, const char *secondInteger,
                     const char *firstReal, const char *secondReal);
