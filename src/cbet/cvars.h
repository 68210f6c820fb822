#pragma once
#include "model/asntype.h"
#include <string>

// Local variables and blocks of generated code, and names that generated
// functions share.

// --- Local variables: a stem and a number, the number being the nesting
// depth of that kind of variable; 0 means none is in scope. Counts may go
// below 0, which texts show as it is.
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

// All counts 0, at the end of the head of a function.
void cResetVars();

// Row 4 to 9 for a generator: copies of the texts, each with a blank behind
// it unless it is empty or ends in "*". Fatal error 13 for no row.
void cRegisterVar(int row, const char *type, const char *name);

// The definition of the variable in scope; `init` may be null. Fatal error 13
// for no row.
void cVarDef(int file, int row, const char *init);

// Its name between `prefix` and `suffix`. Fatal error 13 for no row.
std::string &cVarRef(std::string &text, const char *prefix, int row,
                     const char *suffix);

void cAsnHomeVarDef(int file);   // starts as NULL
void cInitAsnHomeVar(int file);  // sets it to NULL
std::string &cAsnHomeVarRef(std::string &text, const char *prefix,
                            const char *suffix);
void cIncAsnHomeVarCount();
void cDecAsnHomeVarCount();

// The definition as far as its "="; the value follows.
void cHomeVarDef(int file, AsnType &type);
std::string &cHomeVarRef(std::string &text, const char *prefix,
                         const char *suffix);
void cIncHomeVarCount();
void cDecHomeVarCount();

void cNVarDef(int file);  // starts at 0
std::string &cNVarRef(std::string &text, const char *prefix,
                      const char *suffix);
void cIncNVarCount();
void cDecNVarCount();

void cOkVarDef(int file);
std::string &cOkVarRef(std::string &text, const char *prefix,
                       const char *suffix);
void cIncOkVarCount();
void cDecOkVarCount();

// --- Blocks. The brace goes where the text stands; what follows is one level
// deeper.
void cOpenBrace(int file);
void cCloseBrace(int file);

// A block in which the next "h" variable is bound to the value in the type's
// home, and its end.
void cBeginBlock(int file, AsnType &type);
void cEndBlock(int file);

// --- C types of values that are not represented as they are.
constexpr int specialTypeCount = 4;

enum SpecialType : int {
  SPECIAL_SKIPPED = 0,
  SPECIAL_FRAME = 1,
  SPECIAL_EXTENSION_MARKER = 3
};

// Replaces all four names; the texts must live until the process ends.
void cRegisterSpecialTypes(const char *const *table);

// Null out of range.
const char *cSpecialType(int row);

// --- The generation argument of functions by `gIndex`: its C type and name;
// empty for 0 and out of range.
const char *cGetGType(int gIndex);
const char *cGetGName(int gIndex);
