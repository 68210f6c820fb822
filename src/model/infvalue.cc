// What value printers write for an infinite number.

#include "model/infvalue.h"
#include "base/diag.h"

std::string infValueStri[4] = {"MINUS-INFINITY", "PLUS-INFINITY",
                               "MINUS-INFINITY", "PLUS-INFINITY"};

void setInfValueStri(const char *firstInteger, const char *secondInteger,
                     const char *firstReal, const char *secondReal)
{
  newString(infValueStri[0], firstInteger);
  newString(infValueStri[1], secondInteger);
  newString(infValueStri[2], firstReal);
  newString(infValueStri[3], secondReal);
}
