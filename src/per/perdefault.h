#pragma once
#include "model/asnvalue.h"

// A component and its DEFAULT value in tests and assignments of generated
// code. The component is not on the type name path there, so it is named from
// its structure.

// Where the component's value is.
enum DefaultHome : int {
  DEFAULT_IN_HOMETAB = 0,
  DEFAULT_IN_LOCAL_HOME = 1,  // the structure is bound to an "h" variable
  DEFAULT_IN_STRUCTURE = 2,
  DEFAULT_IN_OWN_HOME = 3
};
DefaultHome perDefaultHome(const AsnType &comp);

// `prefix`, the component and the C operator between blanks. Inside a larger
// test (`nested`) the structure is named without its local variable.
std::string &perDefaultRef(std::string &text, const char *prefix, AsnType &comp,
                           const char *oper, bool nested);

// Writes such a reference, the value and `suffix`, as one text. A type whose
// values cannot be tested leaves texts that no compiler takes.
void perDefaultValueToF(int file, const std::string &reference,
                        const AsnType &comp, const AsnValue &value,
                        const char *suffix);
