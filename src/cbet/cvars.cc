// Local variables and blocks of generated code.

#include "cbet/cvars.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/chome.h"
#include "cbet/cnames.h"
#include "cbet/outfile.h"
#include "store/modrec.h"
#include <algorithm>
#include <iterator>

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
  cResetVars();
  bool isSigned = bOfModRList &&
                  (bOfModRList->options.cGeneration >> signedControlMember & 1);
  setRow(VAR_ASN_HOME, "a", "ASNHOME *");
  // The type of a home is written where it is defined.
  setRow(VAR_HOME, "h", "");
  setRow(VAR_N, "n", isSigned ? "sint32 " : "uint32 ");
  setRow(VAR_OK, "ok", "BOOLE ");
}

void cResetVars()
{
  std::fill_n(localVarCount, localVarRows, 0);
}

// --- rows -------------------------------------------------------------------

static void requireRow(int row)
{
  if (row < 0 || row >= localVarRows)
    fatalError(FATAL_INTERNAL, "CBET variable index overflow.");
}

static std::string withBlank(const char *text)
{
  std::string copy = orEmpty(text);
  if (!copy.empty() && copy.back() != '*')
    copy += ' ';
  return copy;
}

void cRegisterVar(int row, const char *type, const char *name)
{
  requireRow(row);
  localVarType[row] = withBlank(type);
  localVarName[row] = withBlank(name);
}

void cVarDef(int file, int row, const char *init)
{
  requireRow(row);
  printfToF(file, "%s%s%d%s%s;\n", localVarType[row].c_str(),
            localVarName[row].c_str(), localVarCount[row], init ? " = " : "",
            orEmpty(init));
}

std::string &cVarRef(std::string &text, const char *prefix, int row,
                     const char *suffix)
{
  requireRow(row);
  return text = orEmpty(prefix) + localVarName[row] +
                std::to_string(localVarCount[row]) + orEmpty(suffix);
}

// --- the fixed rows ---------------------------------------------------------

void cAsnHomeVarDef(int file)
{
  cVarDef(file, VAR_ASN_HOME, "NULL");
}

void cInitAsnHomeVar(int file)
{
  std::string text;
  wToF(file, cAsnHomeVarRef(text, nullptr, "= NULL;\n").c_str());
}

std::string &cAsnHomeVarRef(std::string &text, const char *prefix,
                            const char *suffix)
{
  return cVarRef(text, prefix, VAR_ASN_HOME, suffix);
}

void cIncAsnHomeVarCount()
{
  ++localVarCount[VAR_ASN_HOME];
}

void cDecAsnHomeVarCount()
{
  --localVarCount[VAR_ASN_HOME];
}

void cHomeVarDef(int file, AsnType &type)
{
  std::string text;
  cBaseTypeId(text, nullptr, type, nullptr);
  printfToF(file, "%s *h%d =", text.c_str(), localVarCount[VAR_HOME]);
}

std::string &cHomeVarRef(std::string &text, const char *prefix,
                         const char *suffix)
{
  return cVarRef(text, prefix, VAR_HOME, suffix);
}

void cIncHomeVarCount()
{
  ++localVarCount[VAR_HOME];
}

void cDecHomeVarCount()
{
  --localVarCount[VAR_HOME];
}

void cNVarDef(int file)
{
  cVarDef(file, VAR_N, "0");
}

std::string &cNVarRef(std::string &text, const char *prefix, const char *suffix)
{
  return cVarRef(text, prefix, VAR_N, suffix);
}

void cIncNVarCount()
{
  ++localVarCount[VAR_N];
}

void cDecNVarCount()
{
  --localVarCount[VAR_N];
}

void cOkVarDef(int file)
{
  cVarDef(file, VAR_OK, nullptr);
}

std::string &cOkVarRef(std::string &text, const char *prefix,
                       const char *suffix)
{
  return cVarRef(text, prefix, VAR_OK, suffix);
}

void cIncOkVarCount()
{
  ++localVarCount[VAR_OK];
}

void cDecOkVarCount()
{
  --localVarCount[VAR_OK];
}

// --- blocks -----------------------------------------------------------------

void cOpenBrace(int file)
{
  wToF(file, "{\n");
  ++fArr[file].indent;
}

void cCloseBrace(int file)
{
  --fArr[file].indent;
  wToF(file, "}\n");
}

void cBeginBlock(int file, AsnType &type)
{
  cOpenBrace(file);
  // The new variable is not yet in scope where its value is read.
  cIncHomeVarCount();
  cHomeVarDef(file, type);
  cDecHomeVarCount();
  cAsnHomeCompRefToF(file, " ", true, type, false, ";\n");
  cIncHomeVarCount();
}

void cEndBlock(int file)
{
  cCloseBrace(file);
  cDecHomeVarCount();
}

// --- names ------------------------------------------------------------------

static const char *specialTypes[] = {
    "SKIPPED",
    "FRAME_PTR",
    "NOBODYUSESTHISTYPE",
    "EXTENSIONMARKER",
};
static_assert(std::size(specialTypes) == specialTypeCount);

void cRegisterSpecialTypes(const char *const *table)
{
  std::copy_n(table, specialTypeCount, specialTypes);
}

const char *cSpecialType(int row)
{
  return row >= 0 && row < specialTypeCount ? specialTypes[row] : nullptr;
}

static const char *const reEntrantType[] = {
    "", "ASNCODG", "ASNTSTG", "ASNUTIG", "ASNPERG", "ASNNERG",
};
static const char *const reEntrantName[] = {
    "", "asncodg", "asntstg", "asnutig", "asnperg", "asnnerg",
};
static_assert(std::size(reEntrantType) == std::size(reEntrantName));

static size_t reEntrantRow(int gIndex)
{
  auto row = static_cast<size_t>(gIndex);
  return row < std::size(reEntrantType) ? row : 0;
}

const char *cGetGType(int gIndex)
{
  return reEntrantType[reEntrantRow(gIndex)];
}

const char *cGetGName(int gIndex)
{
  return reEntrantName[reEntrantRow(gIndex)];
}
