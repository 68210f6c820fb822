// C names of types. An inline type has no name in ASN.1: it is named by the
// components that lead to it, inner first, and the definition around it.

#include "cbet/cnames.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/cvars.h"
#include "model/typequery.h"
#include "options/fixrec.h"

// Stands in generated text where there is no name to be had.
static const char nameless[] = "<UNKNOWN_NAMELESS_TYPE>";
static const char missingName[] = "?!?";

static bool hasName(const FixRec &fix)
{
  return *orEmpty(fix.id);
}

static void appendFix(std::string &text, const FixRec &fix)
{
  static std::string name;
  text += printFixRec(name, nullptr, fix, nullptr);
}

static bool hasCGeneration(const AsnType &type, CGenerationBit bit)
{
  return testCGenerationOption(*getModuleOfType(type), bit);
}

// --- the name of a type -----------------------------------------------------

// What tells an inline type from the others of its definition.
static void appendOwnPart(std::string &text, const AsnType &type)
{
  if (isElemType(type)) {
    text += std::to_string(getTypeDefinitionLevel(type));
    text += '_';
  }
  if (hasName(type.compFix)) {
    appendFix(text, type.compFix);
    text += '_';
  }
}

// The inline types around it, as far as they have names.
static void appendFathers(std::string &text, const AsnType &type)
{
  const AsnType *father = type.father;
  while (father && father->father && hasName(father->compFix)) {
    appendFix(text, father->compFix);
    text += '_';
    father = father->father;
  }
}

// The nearest definition or name around a type that has no name by itself.
static const AsnType &namedAround(const AsnType &type)
{
  const AsnType *around = &type;
  while (!isDefinedType(*around) && !hasName(around->baseFix) && around->father)
    around = around->father;
  return *around;
}

static void appendTypeId(std::string &text, const AsnType &type)
{
  if (!cIsDefinedBaseType(type))
    appendOwnPart(text, type);
  const FixRec &own = isDefinedType(type) ? type.compFix : type.baseFix;
  if (hasName(own)) {
    if (!isDefinedBaseType(type))
      appendFathers(text, type);
    appendFix(text, own);
    return;
  }
  const FixRec &around = namedAround(type).baseFix;
  if (hasName(around))
    appendFix(text, around);
  else
    text += nameless;
}

std::string &cTypeId(std::string &text, const char *prefix, const AsnType &type,
                     const char *suffix)
{
  text = orEmpty(prefix);
  appendTypeId(text, type);
  return text += orEmpty(suffix);
}

// --- names by the value format ----------------------------------------------

// The C type of a format that an option or the type itself replaces; null if
// nothing does.
static const char *replacedCType(const AsnType &type)
{
  if (isExtensibleEnumeratedList(type))
    return "EXTENSIBLE_ENUMERATED";
  switch (getVF(type)) {
  case VF_REAL32:
  case VF_REAL64:
  case VF_REAL128:
    return hasCGeneration(type, CGEN_REAL) ? "REAL" : nullptr;
  case VF_COMT:
    return hasCGeneration(type, CGEN_COMMONTIME) ? "COMMONTIME" : nullptr;
  case VF_EXTERNAL_1990:
    return hasCGeneration(type, CGEN_EXTERNAL) ? "EXTERNAL" : nullptr;
  case VF_ANY:
  case VF_OPEN:
    return cIsFrameType(type) ? cSpecialType(SPECIAL_FRAME) : nullptr;
  default:
    return nullptr;
  }
}

static void appendPredefined(std::string &text, const AsnType &type)
{
  int format = getVF(type);
  if (const char *replaced = replacedCType(type))
    text += replaced;
  else if (format >= VF_COUNT)
    text += missingName;
  else if (targetLangTypeArr[format])
    text += targetLangTypeArr[format];
  else
    appendTypeId(text, type);
}

std::string &getPredefinedType(std::string &text, const char *prefix,
                               const AsnType &type, const char *suffix)
{
  text = orEmpty(prefix);
  appendPredefined(text, type);
  return text += orEmpty(suffix);
}

static const char *homeMember(const AsnType &type)
{
  if (isExtensibleEnumeratedList(type))
    return "xenum";
  int format = cGetVF(type);
  switch (format) {
  case VF_REAL32:
  case VF_REAL64:
  case VF_REAL128:
    if (hasCGeneration(type, CGEN_REAL))
      return "real";
    break;
  case VF_COMT:
    if (hasCGeneration(type, CGEN_COMMONTIME))
      return "comt";
    break;
  case VF_EXTERNAL_1990:
    if (hasCGeneration(type, CGEN_EXTERNAL))
      return "ext";
    break;
  default:
    break;
  }
  if (format <= VF_NONE || format >= VF_COUNT)
    fatalError(FATAL_INTERNAL, "CBET: Unrecognized ASNHOME member indicator");
  return asnhomeMember(format);
}

std::string &cAsnHomeMember(std::string &text, const char *prefix,
                            const AsnType &type, const char *suffix)
{
  text = orEmpty(prefix);
  text += homeMember(type);
  return text += orEmpty(suffix);
}

// --- names in declarations --------------------------------------------------

static void appendStructTag(std::string &text, const AsnType &type)
{
  text += "struct t_";
  appendTypeId(text, type);
}

// The C type of a value that is not represented as it is; null for others.
static const char *specialTypeOf(const AsnType &type)
{
  if (testTypeOption(type, optSkip))
    return cSpecialType(SPECIAL_SKIPPED);
  return cIsFrameType(type) ? cSpecialType(SPECIAL_FRAME) : nullptr;
}

static const char *markerType(const AsnType &marker)
{
  const AsnType *father = getFatherOfTypeComp(marker);
  bool isKept = father && testTypeOption(*father, optExtMarkerField);
  return cSpecialType(isKept ? SPECIAL_EXTENSION_MARKER : SPECIAL_SKIPPED);
}

// The type is named by its base, whatever its format.
static bool isNamedByBase(const AsnType &type)
{
  return (isCompOrElemType(type) && cIsDefinedBaseType(type)) ||
         (isSynonymType(type) && isEntryType(type));
}

static void appendBaseTypeId(std::string &text, const AsnType &type)
{
  if (const char *special = specialTypeOf(type)) {
    text += special;
  } else if (isTypeExtensionmarker(type)) {
    text += markerType(type);
  } else if (isNamedByBase(type)) {
    if (hasName(type.baseFix))
      appendFix(text, type.baseFix);
    else
      text += nameless;
  } else if (cIsPredefinedType(type)) {
    appendPredefined(text, type);
  } else if (cIsDefinedBaseType(type)) {
    appendFix(text, type.baseFix);
  } else {
    appendStructTag(text, type);
  }
}

std::string &cBaseTypeId(std::string &text, const char *prefix,
                         const AsnType &type, const char *suffix)
{
  text = orEmpty(prefix);
  appendBaseTypeId(text, type);
  return text += orEmpty(suffix);
}

// A type that contains itself is declared by its tag; in a list that says
// nothing of its elements, by a remark.
static void appendRecursive(std::string &text, const AsnType &type)
{
  if (getVF(type) != VF_LIST) {
    appendStructTag(text, type);
    return;
  }
  text += targetLangType(VF_LIST);
  text += " /* ";
  appendTypeId(text, type);
  text += " */";
}

std::string &cTypeIdForTypeCompDef(std::string &text, const char *prefix,
                                   const AsnType &type, const char *suffix)
{
  static std::string id;
  text = orEmpty(prefix);
  if (const char *special = specialTypeOf(type))
    text += special;
  else if (isRecursiveType(type))
    appendRecursive(text, type);
  else if (cIsDefinedBaseType(type))
    text += getDefBaseTypeId(id, nullptr, type, nullptr);
  else if (cIsPredefinedType(type))
    appendPredefined(text, type);
  else
    appendStructTag(text, type);
  return text += orEmpty(suffix);
}

std::string &cTypeIdForDefinedTypeCompRef(std::string &text, const char *prefix,
                                          const AsnType &type,
                                          const char *suffix)
{
  text = orEmpty(prefix);
  if (cIsDefinedBaseType(type))
    appendTypeId(text, type);
  else
    text += missingName;
  return text += orEmpty(suffix);
}

// --- variables and fields ---------------------------------------------------

// The plain name that a variable of the type is called by.
static const char *variableStem(const AsnType &type)
{
  const GlobalOptions &options = getGlobalOptions(*getModuleOfType(type));
  if (isTypeExtensionmarker(type))
    return "extensionmarker";
  if (isComponentType(type))
    return orEmpty(type.compFix.id);
  if (!isDefinedType(type))
    return "";
  bool byBase = options.optVars && isSynonymType(type);
  return orEmpty(byBase ? type.baseFix.id : type.compFix.id);
}

std::string &cASN1VariableName(std::string &text, const char *prefix,
                               const AsnType &type, const char *suffix)
{
  text = orEmpty(prefix);
  size_t start = text.size();
  text += variableStem(type);
  if (text.size() > start)
    text[start] = lowerChar(text[start]);
  size_t end = start + getGlobalOptions(*getModuleOfType(type)).nameLen;
  if (text.size() > end)
    text.resize(end);
  return text += orEmpty(suffix);
}

void cUpdateBuiltinTypeFieldType(AsnType &type, const AsnObjClassField &field)
{
  type.compFix = field.fix;
  type.baseFix = field.objClass->baseFix;
}
