// References to structures as a whole, and the run-time operations on homes.
//
// A structure that lives in a home is walked through a local "h" variable, so
// that the members of its own name it by that variable, while the operations
// on the home itself name it by the home's place: in the table of homes, or in
// the structure around it.

#include "cbet/chomeop.h"
#include "base/strings.h"
#include "cbet/cbuiltin.h"
#include "cbet/cgenstate.h"
#include "cbet/chome.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "model/typequery.h"

static bool isMemoryOn(const AsnType &type)
{
  return getGlobalOptions(*getModuleOfType(type)).memory != 0;
}

// The component's home is a place of the table.
static bool isInHometab(const AsnType *father)
{
  return !father || cIsHometab(*father);
}

// --- structures as a whole --------------------------------------------------

static bool isBoundToHomeVar(const AsnType &type)
{
  return testTypeOption(type, optAsnHome) && localVarCount[VAR_HOME] >= 1;
}

std::string &cStructHomeRef(std::string &text, const char *prefix, bool address,
                            AsnType &type, const char *suffix)
{
  if (!isBoundToHomeVar(type))
    return cHomeRef(text, prefix, address, type, false, suffix);
  std::string start = orEmpty(prefix);
  if (!address)
    start += '*';
  return cHomeVarRef(text, start.c_str(), suffix);
}

std::string &cStructHomeMemberRef(std::string &text, const char *prefix,
                                  bool address, AsnType &type,
                                  const char *suffix)
{
  if (!isBoundToHomeVar(type))
    return cHomeRef(text, prefix, address, type, true, suffix);
  std::string start = orEmpty(prefix);
  if (address)
    start += '&';
  cHomeVarRef(text, start.c_str(), "->");
  return text += orEmpty(suffix);
}

// --- homes ------------------------------------------------------------------

bool cTypeCanBeFreed(AsnType &type)
{
  AsnType *father = getFatherOfTypeComp(type);
  if (!testTypeOption(type, optAsnHome) && (!father || !cIsHometab(*father)))
    return false;
  return !isTypeExtensionmarker(type) && isMemoryOn(type);
}

std::string &cGetHome(std::string &text, const char *prefix, AsnType &type,
                      int gIndex, const char *suffix)
{
  std::string home = "NULL";
  if (isMemoryOn(type))
    cRawAsnutigPtr(home, "getHomeG (", gIndex, ")");
  return text = orEmpty(prefix) + home + orEmpty(suffix);
}

static void getHomeToF(int file, AsnType &type, int gIndex)
{
  std::string text;
  wToF(file, cGetHome(text, nullptr, type, gIndex, ",").c_str());
}

// The end of an operation that makes a home: what the value needs besides.
static void formatAndSize(int file, AsnType &type)
{
  std::string text;
  printfToF(file, " %s,", cGetVFStri(type));
  if (cIsPtrAsnHomeMember(type))
    wToF(file, cBaseTypeId(text, " sizeof (", type, "));\n").c_str());
  else
    wToF(file, " 0);\n");
}

void cCreateHome(int file, AsnType &type, int gIndex)
{
  std::string text;
  wToF(file, "createHome (");
  getHomeToF(file, type, gIndex);
  if (isInHometab(getFatherOfTypeComp(type)))
    printfToF(file, " &hometab [%d],", getTypeCompNbr(type));
  else
    wToF(file, cHomeRef(text, " ", true, type, false, ",").c_str());
  formatAndSize(file, type);
}

// Values of these formats take no storage of their own.
static bool isNeverPushed(const AsnType &type)
{
  int format = getVF(type);
  return (format >= VF_BOOL && format <= VF_STAS) || format == VF_NULL ||
         format == VF_OBJI || format == VF_COMT;
}

void cPushHome(int file, AsnType &type, int gIndex)
{
  if (isNeverPushed(type))
    return;
  std::string text;
  wToF(file, "pushHomeG (");
  wToF(file, cRawAsnutigPtr(text, nullptr, gIndex, ",").c_str());
  if (isInHometab(getFatherOfTypeComp(type)))
    printfToF(file, " hometab [%d]", getTypeCompNbr(type));
  else
    wToF(file, cHomeRef(text, " ", false, type, false, nullptr).c_str());
  wToF(file, ");\n");
}

void cPopHome(int file, AsnType &type, int gIndex)
{
  if (isNeverPushed(type))
    return;
  std::string text;
  wToF(file, "popHomeG (");
  wToF(file, cRawAsnutigPtr(text, nullptr, gIndex, nullptr).c_str());
  wToF(file, ");\n");
}

void cAppendList(int file, AsnType &list, AsnType &comp, int gIndex)
{
  std::string text;
  wToF(file, "appendList (");
  getHomeToF(file, list, gIndex);
  wToF(file, cHomeRef(text, " ", true, list, false, ",").c_str());
  wToF(file, cAsnHomeVarRef(text, " &", ",").c_str());
  formatAndSize(file, comp);
}

// A home in the structure around it, from the reference to that.
static std::string &placeInFather(std::string &text, const AsnType &father,
                                  const AsnType &type)
{
  std::string member;
  getTypeCompId(member, nullptr, type, "_fld,");
  cHomeRef(text, nullptr, true, father, false, nullptr);
  bool isAddress = !text.empty() && text[0] == '&';
  return text = isAddress ? text + "." + member : "&" + text + "->" + member;
}

static bool isSequenceOrSet(const AsnType &type)
{
  int mainType = getTypeMainType(type);
  return mainType == TYP_SEQ || mainType == TYP_SET;
}

// Where the home that is freed stands.
static std::string &placeOfHome(std::string &text, AsnType &type)
{
  AsnType *father = getFatherOfTypeComp(type);
  if (father && cIsHometab(*father))
    return text = formatText("&hometab [%d],", getTypeCompNbr(type));
  if (!father && cIsHometab(type))
    return text = "&hometab [0],";
  bool isOwn =
      !father ||
      (!testTypeOption(*father, optAsnhc) &&
       (!isSequenceOrSet(*father) || !testTypeOption(type, optAsnHome)));
  if (isOwn)
    return cHomeRef(text, nullptr, true, type, false, ",");
  return placeInFather(text, *father, type);
}

void cFreeAsn(int file, AsnType &type)
{
  std::string text;
  wToF(file, "freeAsn (");
  wToF(file, placeOfHome(text, type).c_str());
  wToF(file, " FREE_STG);\n");
}

// --- pointers ---------------------------------------------------------------

void cAllocComp(AsnType &comp, TypeFuncInfo &info)
{
  int file = info.implFile;
  std::string text;
  wToF(file, cHome(text, "if (!(", true, comp, false, " =").c_str());
  wToF(file, cBaseTypeId(text, " (", comp, " *)").c_str());
  wToF(file, "allocAsn (");
  getHomeToF(file, comp, info.gIndex);
  wToF(file, " MB_STG,");
  wToF(file, cBaseTypeId(text, " sizeof (", comp, "))))").c_str());
  cOpenBrace(file);
  cReportFatalError(file, info.gIndex, "LACK_OF_MEMORY");
  cCloseBrace(file);
}
