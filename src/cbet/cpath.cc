// Calls that keep an application's path through a value.

#include "cbet/cpath.h"
#include "base/strings.h"
#include "cbet/clist.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"

static bool isPathKept(const AsnType &type)
{
  return getGlobalOptions(*getModuleOfType(type)).pushPath != 0;
}

// No line may break inside the literal.
static void pushText(int file, const std::string &piece)
{
  wToF(file, "pushPath (ASNG_F(asncodg) ");
  putToF(file, ("\"" + piece + "\");\n").c_str());
}

// With the "." that joins it to what stands ahead of it.
static void popText(int file, const std::string &piece)
{
  printfToF(file, "popPath (ASNG_F(asncodg) %zu);\n", piece.size() + 1);
}

void cPushEntryPath(int file, AsnType &type)
{
  std::string piece;
  if (isPathKept(type))
    pushText(file, getDefTypeId(piece, nullptr, type, nullptr));
}

void cPopEntryPath(int file, AsnType &type)
{
  std::string piece;
  if (isPathKept(type))
    popText(file, getDefTypeId(piece, nullptr, type, nullptr));
}

// Alternatives stand in a union of the CHOICE.
static std::string pieceOfComp(const AsnType &comp)
{
  bool inUnion =
      getTypeCompStatus(comp) == TCS_CHOICE && !testTypeOption(comp, optAsnhc);
  std::string piece;
  return getTypeCompId(piece, inUnion ? "i1." : nullptr, comp, "_fld");
}

void cPushPath(int file, AsnType &comp)
{
  if (isPathKept(comp))
    pushText(file, pieceOfComp(comp));
}

void cPopPath(int file, AsnType &comp)
{
  if (!isPathKept(comp))
    return;
  if (isElemType(comp))
    wToF(file, "popPath (ASNG_F(asncodg) 0);\n");
  else
    popText(file, pieceOfComp(comp));
}

void cPushElem(int file, AsnType &list)
{
  if (!isPathKept(list))
    return;
  std::string text;
  wToF(file, "pushElem (ASNG_F(asncodg) ");
  if (getVF(list) == VF_LIST)
    cGetSize(text, nullptr, list, false, nullptr);
  else
    cNVarRef(text, nullptr, nullptr);
  wToF(file, text.c_str());
  wToF(file, ");\n");
}
