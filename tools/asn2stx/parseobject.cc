// Classes with their syntax, and objects in default syntax: X.681 (2002)
// clauses 9 to 11.

#include "asn2stx/parsestate.h"

static bool isCapitalName(const std::string &name)
{
  return !name.empty() && name[0] >= 'A' && name[0] <= 'Z';
}

// Classes.

// What governs a value or set field: a type, a class or another field.
static AstType *parseFieldGovernor(Parser &parser)
{
  if (!atKind(parser, TOK_FIELD))
    return parseType(parser);
  AstType *type = newAstType(parser.ast, AT_FIELD, posHere(parser));
  type->ref.pos = type->pos;
  type->fieldPos.push_back(type->pos);
  type->fields.push_back(expectKind(parser, TOK_FIELD, "a field"));
  parseFieldPath(parser, type->fields, type->fieldPos);
  return type;
}

static void parseFieldDefault(Parser &parser, AstField &field)
{
  field.presence = PRES_DEFAULT;
  if (!isCapitalName(field.name))
    field.defaultValue = parseValue(parser);
  else if (field.governor && atSign(parser, '{'))
    field.defaultSet = parseSet(parser);
  else
    field.defaultType = parseType(parser);
}

static AstField *parseField(Parser &parser)
{
  AstField &field = parser.ast.fields.emplace_back();
  if (parser.owner)
    setOwner(parser, &field.notes);
  field.pos = posHere(parser);
  field.name = expectKind(parser, TOK_FIELD, "a field");
  bool isTypeField =
      isCapitalName(field.name) &&
      (atSign(parser, ',') || atSign(parser, '}') ||
       atWord(parser, KW_OPTIONAL) || atWord(parser, KW_DEFAULT));
  if (!isTypeField)
    field.governor = parseFieldGovernor(parser);
  field.isUnique = acceptWord(parser, KW_UNIQUE);
  if (acceptWord(parser, KW_OPTIONAL))
    field.presence = PRES_OPTIONAL;
  else if (acceptWord(parser, KW_DEFAULT))
    parseFieldDefault(parser, field);
  return &field;
}

static void parseSyntax(Parser &parser, std::vector<AstSyntax> &parts,
                        char closer)
{
  Nesting nesting(parser);
  do {
    AstSyntax part;
    part.pos = posHere(parser);
    part.text = peek(parser).text;
    if (acceptKind(parser, TOK_FIELD)) {
      part.kind = AS_FIELD;
    } else if (acceptSign(parser, '[')) {
      part.kind = AS_GROUP;
      part.text.clear();
      parseSyntax(parser, part.parts, ']');
    } else if (!acceptKind(parser, TOK_UPPER) && !acceptSign(parser, ',')) {
      failExpected(parser, "a word, \"[\", \",\" or a field");
    }
    parts.push_back(std::move(part));
  } while (!parser.failed && !atSign(parser, closer));
  expectSign(parser, closer);
}

AstClass *parseClass(Parser &parser)
{
  AstClass &objectClass = parser.ast.classes.emplace_back();
  objectClass.pos = posHere(parser);
  AstNotes *outer = parser.owner;
  expectWord(parser, KW_CLASS, "CLASS");
  expectSign(parser, '{');
  do
    objectClass.fields.push_back(parseField(parser));
  while (acceptSign(parser, ','));
  setOwner(parser, outer);
  expectSign(parser, '}');
  if (acceptWord(parser, KW_WITH)) {
    expectWord(parser, KW_SYNTAX, "SYNTAX");
    expectSign(parser, '{');
    objectClass.hasSyntax = true;
    parseSyntax(parser, objectClass.syntax, '}');
  }
  return &objectClass;
}

// Objects.

void parseSettings(Parser &parser, AstBraces &braces)
{
  do {
    AstSetting setting;
    setting.pos = posHere(parser);
    setting.field = expectKind(parser, TOK_FIELD, "a field");
    if (!isCapitalName(setting.field))
      setting.value = parseValue(parser);
    else if (atSign(parser, '{'))
      setting.set = parseSet(parser);
    else
      setting.type = parseType(parser);
    braces.settings.push_back(std::move(setting));
  } while (acceptSign(parser, ','));
}
