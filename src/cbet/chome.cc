// References to the value at hand.

#include "cbet/chome.h"
#include "base/strings.h"
#include "cbet/cgenstate.h"
#include "cbet/cnames.h"
#include "cbet/cvars.h"
#include "cbet/outfile.h"
#include "model/typequery.h"
#include <cstring>
#include <string_view>

bool glbIterHome;

// --- homes by path ----------------------------------------------------------

// The path's buffer is that of its level and may say more, or less, by now.
static std::string_view pathOf(const AsnType &type)
{
  if (!type.typePath || type.typePathLen == 0)
    return {};
  std::string_view path(type.typePath,
                        strnlen(type.typePath, type.typePathLen));
  if (path.starts_with("->"))
    path.remove_prefix(2);
  else if (path.starts_with('.'))
    path.remove_prefix(1);
  return path;
}

std::string &cGetPath(std::string &text, const AsnType &type)
{
  return text = pathOf(type);
}

static void appendNumbered(std::string &text, LocalVarRow row)
{
  text += localVarName[row];
  text += std::to_string(localVarCount[row]);
}

static void appendHomeRef(std::string &text, bool address, const AsnType &type,
                          bool member)
{
  std::string_view path = pathOf(type);
  // What the reference names is a pointer to the value.
  bool direct = path.empty() || (testTypeOption(type, optPointer) &&
                                 !testTypeOption(type, optAsnHome));
  if (!direct || member)
    text += address ? "&" : "";
  else
    text += address ? "" : "*";
  if (localVarCount[VAR_HOME] != 0)
    appendNumbered(text, VAR_HOME);
  else
    text += glbIterHome ? "iter" : "home";
  if (!path.empty()) {
    text += "->";
    text += path;
  }
  if (member)
    text += direct ? "->" : ".";
}

std::string &cHomeRef(std::string &text, const char *prefix, bool address,
                      const AsnType &type, bool member, const char *suffix)
{
  text = orEmpty(prefix);
  appendHomeRef(text, address, type, member);
  return text += orEmpty(suffix);
}

// --- values inside an ASNHOME -----------------------------------------------

// The operator and the cast ahead of a home's member.
static void asnHomeCompTypecast(std::string &text, bool address,
                                const AsnType &type, bool cast)
{
  static std::string id;
  if (!cast && cIsPtrAsnHomeMember(type))
    text += address ? "" : "*";
  else
    text += address ? "&" : "";
  if (getVF(type) == VF_STRU)
    text += cBaseTypeId(id, cast ? "((" : "(", type, " *)");
}

static void asnHomeCompHome(std::string &text, const AsnType &type)
{
  const AsnType *father = getFatherOfTypeComp(type);
  if (father && (testTypeOption(*father, optHomeElems) ||
                 testTypeOption(*father, optHomeList))) {
    appendNumbered(text, VAR_ASN_HOME);
  } else if (cIsHometab(father ? *father : type)) {
    text += "hometab [";
    text += std::to_string(getTypeCompNbr(type));
    text += ']';
  } else {
    appendHomeRef(text, false, type, false);
  }
}

// Members of ASNHOME that are structures themselves.
static bool isStructMember(const AsnType &type)
{
  int format = getVF(type);
  return cIsDynamicString(type) || format == VF_LIST ||
         (format >= VF_BMPSTR0 && format <= VF_BMPSTR) ||
         isExtensibleEnumeratedList(type);
}

static const char *memberAccess(const AsnType &type)
{
  if (isStructMember(type))
    return ".";
  return getVF(type) == VF_STRU ? ")->" : "->";
}

std::string &cAsnHomeCompRef(std::string &text, const char *prefix,
                             bool address, const AsnType &type, bool cast,
                             const char *suffix)
{
  static std::string member;
  text = orEmpty(prefix);
  asnHomeCompTypecast(text, address, type, cast);
  asnHomeCompHome(text, type);
  text += cAsnHomeMember(member, "->val.", type,
                         cast ? memberAccess(type) : nullptr);
  return text += orEmpty(suffix);
}

void cAsnHomeCompRefToF(int file, const char *prefix, bool address,
                        const AsnType &type, bool cast, const char *suffix)
{
  static std::string text;
  wToF(file,
       cAsnHomeCompRef(text, prefix, address, type, cast, suffix).c_str());
}

// --- either -----------------------------------------------------------------

// The component's value lies in a home of its own, and no local pointer is
// bound to it.
static bool isInAsnHome(const AsnType &type)
{
  const AsnType *father = getFatherOfTypeComp(type);
  if (father && cIsHometab(*father))
    return localVarCount[VAR_HOME] < 1;
  return testTypeOption(type, optAsnHome) ||
         (father && getVF(*father) == VF_LIST &&
          localVarCount[VAR_ASN_HOME] >= 1);
}

std::string &cHome(std::string &text, const char *prefix, bool address,
                   const AsnType &type, bool member, const char *suffix)
{
  return isInAsnHome(type)
             ? cAsnHomeCompRef(text, prefix, address, type, member, suffix)
             : cHomeRef(text, prefix, address, type, member, suffix);
}

std::string &cAnyDefinedByClassifierTypeHome(std::string &text,
                                             const char *prefix, bool address,
                                             const AsnType &type,
                                             const char *suffix)
{
  static std::string id;
  text = orEmpty(prefix);
  if (const AsnType *father = getFatherOfTypeComp(type))
    cHome(text, prefix, address, *father, true, nullptr);
  return text += getTypeCompId(id, nullptr, type, suffix);
}
