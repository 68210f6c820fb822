#include "support/asttext.h"
#include <iterator>

// The texts of a list with `between` between them.
template <class T, class F>
static std::string joined(const T &list, const char *between, F show)
{
  std::string text;
  for (const auto &entry : list) {
    if (!text.empty())
      text += between;
    text += show(entry);
  }
  return text;
}

template <class T>
static std::string joinedNodes(const std::vector<T *> &list)
{
  return joined(list, ", ", [](const T *node) { return astText(node); });
}

static std::string fieldPath(const std::vector<std::string> &fields)
{
  std::string text;
  for (const std::string &field : fields)
    text += ".&" + field;
  return text;
}

static std::string actualText(const AstActual *actual)
{
  std::string text;
  if (actual->governor)
    text += "gov " + astText(actual->governor) + ": ";
  if (actual->type)
    text += "type " + astText(actual->type);
  if (actual->value)
    text += "value " + astText(actual->value);
  if (actual->set)
    text += "set " + astText(actual->set);
  return text;
}

std::string astText(const AstRef &ref)
{
  std::string text = ref.module.empty() ? "" : ref.module + ".";
  text += ref.name;
  if (ref.hasActuals)
    text += "{" + joined(ref.actuals, ", ", actualText) + "}";
  return text;
}

// Types.

static const char *const typeNames[] = {
    "BOOLEAN",
    "INTEGER",
    "ENUMERATED",
    "REAL",
    "BIT STRING",
    "OCTET STRING",
    "NULL",
    "OBJECT IDENTIFIER",
    "RELATIVE-OID",
    "EXTERNAL",
    "EMBEDDED PDV",
    "CHARACTER STRING",
    "NumericString",
    "PrintableString",
    "TeletexString",
    "T61String",
    "VideotexString",
    "IA5String",
    "GraphicString",
    "VisibleString",
    "ISO646String",
    "GeneralString",
    "UniversalString",
    "BMPString",
    "UTF8String",
    "ObjectDescriptor",
    "UTCTime",
    "GeneralizedTime",
    "SEQUENCE",
    "SET",
    "CHOICE",
    "SEQUENCE OF",
    "SET OF",
    "ANY",
    "selection",
    "reference",
    "field",
    "INSTANCE OF",
};
static_assert(std::size(typeNames) == AT_COUNT);

static std::string exceptionText(const AstException &exception)
{
  if (!exception.present)
    return "";
  std::string type = exception.type ? astText(exception.type) + ": " : "";
  return " !" + type + astText(exception.value);
}

static std::string tagText(const AstTag &tag)
{
  static const char *const classes[] = {"", "UNIVERSAL ", "APPLICATION ",
                                        "PRIVATE "};
  static const char *const modes[] = {"", " IMPLICIT", " EXPLICIT"};
  return std::string("[") + classes[tag.tagClass] + astText(tag.number) +
         modes[tag.mode] + "]";
}

static std::string namedText(const AstNamed *item)
{
  if (item->isMarker)
    return "...";
  return item->name + (item->value ? "=" + astText(item->value) : "");
}

// What stands behind the tags and ahead of the constraints.
static std::string coreText(const AstType &type)
{
  std::string name = typeNames[type.kind];
  switch (type.kind) {
  case AT_REFERENCE:
    return astText(type.ref);
  case AT_FIELD:
    return astText(type.ref) + fieldPath(type.fields);
  case AT_INSTANCE_OF:
    return name + " " + astText(type.ref);
  case AT_SELECTION:
    return type.elementName + " < " + astText(type.element);
  case AT_ANY:
    return name + (type.elementName.empty() ? "" : " BY ") + type.elementName;
  case AT_SEQUENCE:
  case AT_SET:
  case AT_CHOICE:
    return name + "{" + joinedNodes(type.comps) + "}";
  default:
    if (type.hasBraces)
      name += "{" + joined(type.named, ", ", namedText) + "}";
    return name + exceptionText(type.exception);
  }
}

std::string astText(const AstType *type)
{
  if (!type)
    return "none";
  std::string text = joined(type->tags, "", tagText) + coreText(*type);
  for (const AstConstraint *constraint : type->constraints)
    text += " " + astText(constraint);
  if (type->kind == AT_SEQUENCE_OF || type->kind == AT_SET_OF)
    text += ": " + type->elementName + (type->elementName.empty() ? "" : " ") +
            astText(type->element);
  return text;
}

static const char *presenceText(AstPresence presence)
{
  static const char *const texts[] = {"", " OPTIONAL", " DEFAULT", " PRESENT",
                                      " ABSENT"};
  return texts[presence];
}

std::string astText(const AstComp *comp)
{
  switch (comp->kind) {
  case AC_COMPONENTS_OF:
    return "COMPONENTS OF " + astText(comp->type);
  case AC_MARKER:
    return "..." + exceptionText(comp->exception);
  case AC_GROUP:
    return "[[" +
           (comp->version < 0 ? "" : std::to_string(comp->version) + ": ") +
           joinedNodes(comp->members) + "]]";
  default:
    break;
  }
  std::string text = comp->name.empty() ? "" : comp->name + " ";
  text += astText(comp->type);
  text += presenceText(comp->presence);
  return text + (comp->defaultValue ? " " + astText(comp->defaultValue) : "");
}

// Values.

static std::string arcText(const AstArc &arc)
{
  std::string text = astText(arc.ref);
  if (text.empty())
    return astText(arc.value);
  return text + (arc.value ? "(" + astText(arc.value) + ")" : "");
}

static std::string itemText(const AstItem &item)
{
  return (item.name.empty() ? "" : item.name + "=") + astText(item.value);
}

static std::string settingText(const AstSetting &setting)
{
  std::string text = "&" + setting.field + "=";
  if (setting.type)
    text += "type " + astText(setting.type);
  if (setting.value)
    text += "value " + astText(setting.value);
  if (setting.set)
    text += "set " + astText(setting.set);
  return text;
}

static std::string bracesText(const AstBraces &braces)
{
  std::vector<std::string> readings;
  if (braces.isEmpty)
    readings.push_back("empty");
  if (!braces.items.empty())
    readings.push_back("items " + joined(braces.items, ", ", itemText));
  if (!braces.arcs.empty())
    readings.push_back("arcs " + joined(braces.arcs, " ", arcText));
  if (!braces.settings.empty())
    readings.push_back("settings " +
                       joined(braces.settings, ", ", settingText));
  if (readings.empty())
    readings.push_back("tokens " +
                       std::to_string(braces.tokens.end - braces.tokens.first));
  return "{" +
         joined(readings, " | ", [](const std::string &text) { return text; }) +
         "}";
}

std::string astText(const AstValue *value)
{
  if (!value)
    return "none";
  switch (value->kind) {
  case AV_NULL:
    return "null";
  case AV_BOOLEAN:
    return value->isTrue ? "true" : "false";
  case AV_INTEGER:
    return value->text;
  case AV_REAL:
    return "real " + value->text;
  case AV_PLUS_INFINITY:
    return "+infinity";
  case AV_MINUS_INFINITY:
    return "-infinity";
  case AV_NOT_A_NUMBER:
    return "nan";
  case AV_BSTRING:
    return "b'" + value->text + "'";
  case AV_HSTRING:
    return "h'" + value->text + "'";
  case AV_CSTRING:
    return "\"" + value->text + "\"";
  case AV_REFERENCE:
    return astText(value->ref);
  case AV_FIELD:
    return astText(value->ref) + fieldPath(value->fields);
  case AV_CHOICE:
    return "choice(" + value->name + ", " + astText(value->value) + ")";
  case AV_TYPED:
    return "typed(" + astText(value->type) + ", " + astText(value->value) + ")";
  case AV_CONTAINING:
    return "containing " + astText(value->value);
  case AV_BRACES:
    return bracesText(*value->braces);
  default:
    return "?";
  }
}

// Constraints.

static std::string innerText(const AstInner &item)
{
  std::string text = item.name;
  if (item.constraint)
    text += " " + astText(item.constraint);
  return text + presenceText(item.presence);
}

static std::string pathText(const AstAtPath &path)
{
  return " @" + std::to_string(path.level) + ":" +
         joined(path.names, ".", [](const std::string &name) { return name; });
}

static std::string rangeText(const AstElem &elem)
{
  return (elem.lower ? astText(elem.lower) : "MIN") +
         (elem.isLowerOpen ? "<" : "") + ".." + (elem.isUpperOpen ? "<" : "") +
         (elem.upper ? astText(elem.upper) : "MAX");
}

std::string astText(const AstElem *elem)
{
  switch (elem->kind) {
  case AE_VALUE:
    return astText(elem->value);
  case AE_RANGE:
    return rangeText(*elem);
  case AE_SIZE:
    return "SIZE " + astText(elem->inner);
  case AE_FROM:
    return "FROM " + astText(elem->inner);
  case AE_TYPE:
    return (elem->hasIncludes ? "includes " : "type ") + astText(elem->type);
  case AE_UNION:
    return "union(" + joinedNodes(elem->operands) + ")";
  case AE_INTERSECTION:
    return "inter(" + joinedNodes(elem->operands) + ")";
  case AE_EXCEPT:
    return "except(" + joinedNodes(elem->operands) + ")";
  case AE_ALL_EXCEPT:
    return "allexcept(" + joinedNodes(elem->operands) + ")";
  case AE_WITH_COMPONENT:
    return "component " + astText(elem->inner);
  case AE_WITH_COMPONENTS:
    return std::string("components{") + (elem->isPartial ? "... " : "") +
           joined(elem->items, ", ", innerText) + "}";
  case AE_CONTAINING:
    return "containing " + astText(elem->type) +
           (elem->value ? " by " + astText(elem->value) : "");
  case AE_ENCODED_BY:
    return "encoded by " + astText(elem->value);
  case AE_CONSTRAINED_BY:
    return "constrained by " +
           std::to_string(elem->tokens.end - elem->tokens.first);
  case AE_PATTERN:
    return "pattern " + astText(elem->value);
  case AE_SETTINGS:
    return "settings " + astText(elem->value);
  case AE_TABLE:
    return "table " + astText(elem->set) + joined(elem->paths, "", pathText);
  default:
    return "?";
  }
}

std::string astText(const AstConstraint *constraint)
{
  if (!constraint)
    return "none";
  std::string text = "(";
  if (constraint->root)
    text += astText(constraint->root);
  if (constraint->isExtensible)
    text += constraint->root ? ", ..." : "...";
  if (constraint->additions)
    text += ", " + astText(constraint->additions);
  return text + exceptionText(constraint->exception) + ")";
}

// Classes and assignments.

static std::string classFieldText(const AstField *field)
{
  std::string text = "&" + field->name;
  if (field->governor)
    text += " " + astText(field->governor);
  text += field->isUnique ? " UNIQUE" : "";
  text += presenceText(field->presence);
  if (field->defaultType)
    text += " type " + astText(field->defaultType);
  if (field->defaultValue)
    text += " value " + astText(field->defaultValue);
  if (field->defaultSet)
    text += " set " + astText(field->defaultSet);
  return text;
}

static std::string syntaxText(const AstSyntax &part)
{
  if (part.kind == AS_GROUP)
    return "[" + joined(part.parts, " ", syntaxText) + "]";
  return (part.kind == AS_FIELD ? "&" : "") + part.text;
}

std::string astText(const AstClass *objectClass)
{
  std::string text =
      "CLASS{" + joined(objectClass->fields, ", ", classFieldText) + "}";
  if (objectClass->hasSyntax)
    text += " syntax " + joined(objectClass->syntax, " ", syntaxText);
  return text;
}

static std::string paramText(const AstParam &param)
{
  return (param.governor ? astText(param.governor) + ": " : "") + param.name;
}

std::string astText(const AstAssign *assign)
{
  std::string text = assign->name;
  if (assign->hasParams)
    text += "{" + joined(assign->params, ", ", paramText) + "}";
  switch (assign->kind) {
  case AA_TYPE:
    return text + " ::= type " + astText(assign->type);
  case AA_CLASS:
    return text + " ::= " + astText(assign->objectClass);
  case AA_VALUE:
    return text + " " + astText(assign->type) + " ::= value " +
           astText(assign->value);
  case AA_SET:
    return text + " " + astText(assign->type) + " ::= set " +
           astText(assign->set);
  }
  return text;
}

std::string astText(const AstNotes &notes)
{
  return joined(notes, " ", [](const AsnAnnotation &word) {
    return word.key + (word.hasValue ? "=" + word.value : "");
  });
}

AstRun::AstRun(const std::string &body)
{
  parseAsnText(ast, errors, "f",
               "M DEFINITIONS ::= BEGIN\n" + body + "\nEND\n");
}

std::string AstRun::errorText() const
{
  FILE *stream = tmpfile();
  asnPrintErrors(errors, stream);
  std::string text;
  rewind(stream);
  for (int c; (c = fgetc(stream)) != EOF;)
    text += static_cast<char>(c);
  fclose(stream);
  return text;
}

std::string assignText(const std::string &body)
{
  AstRun run(body);
  if (!run.errors.errors.empty())
    return run.errorText();
  if (run.ast.modules.size() != 1 || run.ast.modules[0]->assigns.size() != 1)
    return "not one assignment";
  return astText(&run.assign(0));
}
