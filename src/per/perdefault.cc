// A component and its DEFAULT value in generated code.

#include "per/perdefault.h"
#include "base/strings.h"
#include "cbet/cgenstate.h"
#include "cbet/chome.h"
#include "cbet/chomeop.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "cbet/valueprint.h"
#include "model/typequery.h"

DefaultHome perDefaultHome(const AsnType &comp)
{
  const AsnType &father = *getFatherOfTypeComp(comp);
  if (cIsHometab(father))
    return DEFAULT_IN_HOMETAB;
  if (testTypeOption(father, optAsnHome) && localVarCount[VAR_HOME] > 0)
    return DEFAULT_IN_LOCAL_HOME;
  if (!testTypeOption(father, optAsnhc) && !testTypeOption(comp, optAsnHome))
    return DEFAULT_IN_STRUCTURE;
  return DEFAULT_IN_OWN_HOME;
}

// The member behind a structure: "a_fld" with what follows.
static std::string &memberOf(std::string &text, const AsnType &comp,
                             const std::string &tail)
{
  return getTypeCompId(text, nullptr, comp, ("_fld" + tail).c_str());
}

static bool isExtensibleEnum(const AsnType &comp)
{
  return getTypeMainType(comp) == TYP_ENUM && isExtensibleEnumeratedList(comp);
}

std::string &perDefaultRef(std::string &text, const char *prefix, AsnType &comp,
                           const char *oper, bool nested)
{
  AsnType &father = *getFatherOfTypeComp(comp);
  std::string tail =
      formatText("%s %s ", isExtensibleEnum(comp) ? ".value" : "", oper);
  std::string member, value;
  switch (perDefaultHome(comp)) {
  case DEFAULT_IN_HOMETAB:
    return cHome(text, prefix, false, comp, false, tail.c_str());
  case DEFAULT_IN_LOCAL_HOME:
    memberOf(member, comp, tail);
    return cHomeVarRef(text, prefix, ("->" + member).c_str());
  case DEFAULT_IN_STRUCTURE:
    memberOf(member, comp, tail);
    if (!nested)
      return cStructHomeMemberRef(text, prefix, false, father, member.c_str());
    break;
  case DEFAULT_IN_OWN_HOME:
    cAsnHomeMember(value, "->val.", comp, tail.c_str());
    memberOf(member, comp, value);
    break;
  }
  return cHome(text, prefix, false, father, true, member.c_str());
}

void perDefaultValueToF(int file, const std::string &reference,
                        const AsnType &comp, const AsnValue &value,
                        const char *suffix)
{
  switch (getTypeMainType(comp)) {
  case TYP_INTEGER:
  case TYP_ENUM:
    printIntegerValueToF(file, reference.c_str(), value, suffix);
    break;
  case TYP_BOOLEAN:
    printBooleanValueToF(file, reference.c_str(), value, suffix);
    break;
  default:
    wToF(file, "?!?:ERROR in code generation with DEFAULT values\n");
    wToF(file, "?!?:Unsupported type for DEFAULT value\n");
  }
}
