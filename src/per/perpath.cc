// Path calls of generated code. What stands in a C string is written without
// a line break.

#include "per/perpath.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/clist.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"

static bool writesPath(const AsnType &type)
{
  return getGlobalOptions(*getModuleOfType(type)).pushPath != 0;
}

// The text of a component on the path.
static std::string &pathPiece(std::string &text, const AsnType &comp)
{
  bool inUnion =
      getTypeCompStatus(comp) == TCS_CHOICE && !testTypeOption(comp, optAsnhc);
  return getTypeCompId(text, inUnion ? "i1." : nullptr, comp, "_fld");
}

static void pushText(int file, const std::string &piece)
{
  wToF(file, "pp_pushPath (ASNG_F(asnperg) ");
  putToF(file, ("\"" + piece + "\");\n").c_str());
}

static void popText(int file, size_t length)
{
  printfToF(file, "pp_popPath (ASNG_F(asnperg) %d);\n",
            static_cast<int>(length));
}

void perPushPath(AsnType &comp, TypeFuncInfo &info)
{
  std::string piece;
  if (writesPath(comp))
    pushText(info.implFile, pathPiece(piece, comp));
}

static AsnType &listOf(const AsnType &elem)
{
  AsnType *list = getFatherOfTypeComp(elem);
  if (!list)
    fatalError(FATAL_INTERNAL);
  return *list;
}

void perPushElem(AsnType &elem, TypeFuncInfo &info)
{
  if (!writesPath(elem))
    return;
  AsnType &list = listOf(elem);
  std::string text;
  wToF(info.implFile, "pp_pushElem (ASNG_F(asnperg)");
  if (getVF(list) == VF_LIST)
    cGetSize(text, " ", list, false, ");\n");
  else
    cNVarRef(text, " ", ");\n");
  wToF(info.implFile, text.c_str());
}

void perPushElemInCallBack(AsnType &elem, TypeFuncInfo &info)
{
  if (!writesPath(elem))
    return;
  std::string text;
  wToF(info.implFile, "pp_pushElem (ASNG_F(asnperg) ");
  wToF(info.implFile,
       cGetSize(text, nullptr, listOf(elem), false, nullptr).c_str());
  wToF(info.implFile, ");\n");
}

void perPopPath(AsnType &comp, TypeFuncInfo &info)
{
  if (!writesPath(comp))
    return;
  std::string piece;
  popText(info.implFile,
          isElemType(comp) ? 0 : pathPiece(piece, comp).size() + 1);
}

void perEntryPushPath(AsnType &type, TypeFuncInfo &info)
{
  std::string id;
  if (writesPath(type))
    pushText(info.implFile, getDefTypeId(id, nullptr, type, nullptr));
}

void perEntryPopPath(AsnType &type, TypeFuncInfo &info)
{
  std::string id;
  if (writesPath(type))
    popText(info.implFile, getDefTypeId(id, nullptr, type, nullptr).size() + 1);
}
