// Warnings about types.

#include "cbet/typewarn.h"
#include "base/diag.h"
#include "cbet/cnames.h"
#include "model/typequery.h"

// Where the type stands: in its module, by its reference.
static std::string locationOf(const AsnType &type)
{
  std::string place, name;
  getModuleRef(place, "Module ", *type.homeMod, ", ");
  if (isTypeExtensionmarker(type))
    return place + "<extensionmarker>";
  if (isDefinedType(type))
    return place + getTypeRef(name, "type ", type, nullptr);
  if (isComponentType(type))
    return place + getTypeRef(name, "element ", type, nullptr);
  return place + cTypeId(name, "element ", type, nullptr);
}

static void warn(const AsnType &type, const char *text, bool indented)
{
  std::string path;
  getModuleFilePath(path, nullptr, *type.homeMod, nullptr);
  placeWarning(path.c_str(), getTypeDefinitionLine(type),
               locationOf(type).c_str(), text, indented);
}

void typeWarning(const AsnType &type, const char *text)
{
  warn(type, text, false);
}

void indTypeWarning(const AsnType &type, const char *text)
{
  warn(type, text, true);
}

void notYetSupported(const AsnType &type, const char *text)
{
  typeWarning(type, (std::string(text) + " not yet supported, sorry.").c_str());
}
