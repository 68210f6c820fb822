#pragma once
#include <string>

// Local variables of generated code: a stem and a number, the number being
// the nesting depth of that kind of variable; 0 means none is in scope.
constexpr int localVarRows = 10;

enum LocalVarRow : int {
  VAR_ASN_HOME = 0,  // "a", iterator over a list
  VAR_HOME = 1,      // "h", pointer to the value inside an ASNHOME
  VAR_N = 2,         // "n", loop counter
  VAR_OK = 3         // "ok", result of a constraint check
};

extern std::string localVarName[localVarRows];
extern std::string localVarType[localVarRows];
extern int localVarCount[localVarRows];

// Clears all rows and sets the four fixed ones. The sign of loop counters is
// a C-GENERATION option of the first module.
void cInitVars();
