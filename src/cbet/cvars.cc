// Local variables of generated code.

#include "cbet/cvars.h"
#include "store/modrec.h"
#include <algorithm>

std::string localVarName[localVarRows];
std::string localVarType[localVarRows];
int localVarCount[localVarRows];

// The C-GENERATION bit SIGNED-CONTROL-MEMBER.
constexpr int signedControlMember = 4;

static void setRow(int row, const char *name, const char *type)
{
  localVarName[row] = name;
  localVarType[row] = type;
}

void cInitVars()
{
  std::fill_n(localVarName, localVarRows, std::string());
  std::fill_n(localVarType, localVarRows, std::string());
  std::fill_n(localVarCount, localVarRows, 0);
  bool isSigned = bOfModRList &&
                  (bOfModRList->options.cGeneration >> signedControlMember & 1);
  setRow(VAR_ASN_HOME, "a", "ASNHOME *");
  // The type of a home is written where it is defined.
  setRow(VAR_HOME, "h", "");
  setRow(VAR_N, "n", isSigned ? "sint32 " : "uint32 ");
  setRow(VAR_OK, "ok", "BOOLE ");
}
