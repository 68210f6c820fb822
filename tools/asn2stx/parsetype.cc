// Types: X.680 (2002) clauses 16 to 44, with what X.208 writes otherwise
// (ANY, components without a name, SIZE without parentheses).

#include "asn2stx/parsestate.h"
#include <charconv>
#include <iterator>

AstType *newAstType(Ast &ast, AstTypeKind kind, AsnPos pos)
{
  AstType &type = ast.types.emplace_back();
  type.id = static_cast<int>(ast.types.size()) - 1;
  type.kind = kind;
  type.pos = pos;
  return &type;
}

void parseFieldPath(Parser &parser, std::vector<std::string> &fields,
                    std::vector<AsnPos> &fieldPos)
{
  while (atSign(parser, '.') && peek(parser, 1).kind == TOK_FIELD) {
    advance(parser);
    fieldPos.push_back(posHere(parser));
    fields.push_back(expectKind(parser, TOK_FIELD, "a field"));
  }
}

// Actual parameters.

static bool isValueStart(const Token &token, const Token &next)
{
  switch (token.kind) {
  case TOK_LOWER:
    return !isSign(next, '<');
  case TOK_NUMBER:
  case TOK_REAL:
  case TOK_BSTRING:
  case TOK_HSTRING:
  case TOK_CSTRING:
    return true;
  case TOK_SIGN:
    return token.sign == '-';
  case TOK_UPPER:
    switch (token.keyword) {
    case KW_TRUE:
    case KW_FALSE:
    case KW_PLUS_INFINITY:
    case KW_MINUS_INFINITY:
    case KW_NOT_A_NUMBER:
    case KW_CONTAINING:
      return true;
    default:
      return false;
    }
  default:
    return false;
  }
}

// object.&Type and Module.object.&Type
static bool isFieldOfObject(const Parser &parser)
{
  bool isQualified = atKind(parser, TOK_UPPER) && isSign(peek(parser, 1), '.');
  int i = isQualified ? 2 : 0;
  if (peek(parser, i).kind != TOK_LOWER)
    return false;
  const Token *last = nullptr;
  for (i++;
       isSign(peek(parser, i), '.') && peek(parser, i + 1).kind == TOK_FIELD;
       i += 2)
    last = &peek(parser, i + 1);
  return last && last->text[0] >= 'A' && last->text[0] <= 'Z';
}

static void parseActualItself(Parser &parser, AstActual &actual)
{
  bool isQualified = isTypeName(peek(parser)) && isSign(peek(parser, 1), '.') &&
                     peek(parser, 2).kind == TOK_LOWER;
  if (atSign(parser, '{') && lookAtBraces(parser) != LOOK_VALUE)
    actual.set = parseSet(parser);
  else if (atSign(parser, '{') ||
           ((isValueStart(peek(parser), peek(parser, 1)) || isQualified) &&
            !isFieldOfObject(parser)))
    actual.value = parseValue(parser);
  else
    actual.type = parseType(parser);
}

static AstActual *parseActual(Parser &parser)
{
  AstActual &actual = parser.ast.actuals.emplace_back();
  actual.pos = posHere(parser);
  actual.tokens = {parser.source.file, parser.at, parser.at};
  parseActualItself(parser, actual);
  if (actual.type && acceptSign(parser, ':')) {
    actual.governor = actual.type;
    actual.type = nullptr;
    actual.tokens.first = parser.at;
    parseActualItself(parser, actual);
  }
  actual.tokens.end = parser.at;
  return &actual;
}

void parseActuals(Parser &parser, AstRef &ref)
{
  Nesting nesting(parser);
  expectSign(parser, '{');
  ref.hasActuals = true;
  do
    ref.actuals.push_back(parseActual(parser));
  while (acceptSign(parser, ','));
  expectSign(parser, '}');
}

// References.

static void parseReference(Parser &parser, AstType &type)
{
  type.kind = AT_REFERENCE;
  type.ref.pos = posHere(parser);
  const Token &behind = peek(parser, 2);
  bool isLower = atKind(parser, TOK_LOWER);
  if (!isLower && isSign(peek(parser, 1), '.') &&
      (isTypeName(behind) || behind.kind == TOK_LOWER)) {
    type.ref.module = peek(parser).text;
    advance(parser);
    advance(parser);
    isLower = atKind(parser, TOK_LOWER);
  }
  type.ref.name = peek(parser).text;
  advance(parser);
  if (atSign(parser, '{'))
    parseActuals(parser, type.ref);
  parseFieldPath(parser, type.fields, type.fieldPos);
  if (!type.fields.empty())
    type.kind = AT_FIELD;
  else if (isLower)
    failExpected(parser, "\".&\" and a field");
}

// Named numbers and bits, enumerations.

static AstValue *parseNumberOrReference(Parser &parser)
{
  AsnPos pos = posHere(parser);
  std::string shown = tokenShown(peek(parser));
  AstValue *value = parseValue(parser);
  if (value && value->kind != AV_INTEGER && value->kind != AV_REFERENCE &&
      value->kind != AV_FIELD)
    failAt(parser, pos, "expected an integer or the name of one, found %s",
           shown.c_str());
  return value;
}

// Reads the items in braces. Only enumerations have markers and items without
// a number.
static void parseNamed(Parser &parser, AstType &type)
{
  AstNotes *outer = parser.owner;
  expectSign(parser, '{');
  type.hasBraces = true;
  do {
    AstNamed &item = parser.ast.named.emplace_back();
    if (outer)
      setOwner(parser, &item.notes);
    item.pos = posHere(parser);
    type.named.push_back(&item);
    if (type.kind == AT_ENUMERATED && acceptKind(parser, TOK_DOTS)) {
      item.isMarker = true;
      if (atSign(parser, '!'))
        type.exception = parseException(parser);
      continue;
    }
    item.name = expectKind(parser, TOK_LOWER, "an identifier");
    if (type.kind == AT_ENUMERATED && !atSign(parser, '('))
      continue;
    expectSign(parser, '(');
    item.value = parseNumberOrReference(parser);
    expectSign(parser, ')');
  } while (acceptSign(parser, ','));
  setOwner(parser, outer);
  expectSign(parser, '}');
}

// Components.

static void parsePresence(Parser &parser, AstComp &comp)
{
  if (acceptWord(parser, KW_OPTIONAL)) {
    comp.presence = PRES_OPTIONAL;
  } else if (acceptWord(parser, KW_DEFAULT)) {
    comp.presence = PRES_DEFAULT;
    comp.defaultValue = parseValue(parser);
  }
}

static void parseGroup(Parser &parser, AstComp &group, bool isChoice);

static AstComp *parseComp(Parser &parser, bool isChoice, bool inGroup)
{
  Nesting nesting(parser);
  AstComp &comp = parser.ast.comps.emplace_back();
  if (parser.owner)
    setOwner(parser, &comp.notes);
  comp.pos = posHere(parser);
  if (!inGroup && acceptKind(parser, TOK_DOTS)) {
    comp.kind = AC_MARKER;
    comp.exception = parseException(parser);
    return &comp;
  }
  if (!inGroup && atSign(parser, '[') && isSign(peek(parser, 1), '[')) {
    parseGroup(parser, comp, isChoice);
    return &comp;
  }
  if (!isChoice && atWord(parser, KW_COMPONENTS)) {
    advance(parser);
    expectWord(parser, KW_OF, "OF");
    comp.kind = AC_COMPONENTS_OF;
    comp.type = parseType(parser);
    return &comp;
  }
  if (atKind(parser, TOK_LOWER) && !isSign(peek(parser, 1), '<') &&
      !isFieldOfObject(parser)) {
    comp.name = peek(parser).text;
    advance(parser);
  } else if (!atKind(parser, TOK_UPPER) && !atKind(parser, TOK_LOWER) &&
             !atSign(parser, '[')) {
    failExpected(parser, isChoice ? "an alternative" : "a component");
  }
  comp.type = parseType(parser);
  if (!isChoice)
    parsePresence(parser, comp);
  return &comp;
}

static void parseGroup(Parser &parser, AstComp &group, bool isChoice)
{
  AstNotes *owner = parser.owner;
  advance(parser);
  advance(parser);
  group.kind = AC_GROUP;
  if (atKind(parser, TOK_NUMBER) && isSign(peek(parser, 1), ':')) {
    std::string_view digits = peek(parser).text;
    std::from_chars_result result = std::from_chars(
        digits.data(), digits.data() + digits.size(), group.version);
    if (result.ec != std::errc())
      failAt(parser, posHere(parser), "version number %s is too large",
             asnQuoted(digits).c_str());
    advance(parser);
    advance(parser);
  }
  do
    group.members.push_back(parseComp(parser, isChoice, true));
  while (acceptSign(parser, ','));
  setOwner(parser, owner);
  expectSign(parser, ']');
  expectSign(parser, ']');
}

// Version brackets hold additions, which lie between the two markers.
static void parseComps(Parser &parser, AstType &type)
{
  AstNotes *outer = parser.owner;
  bool isChoice = type.kind == AT_CHOICE;
  int markers = 0;
  expectSign(parser, '{');
  if (!atSign(parser, '}') || isChoice)
    do {
      AstComp *comp = parseComp(parser, isChoice, false);
      if (comp->kind == AC_MARKER)
        ++markers;
      else if (comp->kind == AC_GROUP && markers != 1)
        failAt(parser, comp->pos, "\"[[\" outside the extension additions");
      type.comps.push_back(comp);
    } while (acceptSign(parser, ','));
  setOwner(parser, outer);
  expectSign(parser, '}');
}

// "SEQUENCE" or "SET" is behind us.
static void parseStructure(Parser &parser, AstType &type)
{
  if (atSign(parser, '{')) {
    parseComps(parser, type);
    return;
  }
  type.kind = type.kind == AT_SEQUENCE ? AT_SEQUENCE_OF : AT_SET_OF;
  for (;;) {
    if (atSign(parser, '('))
      type.constraints.push_back(parseConstraint(parser));
    else if (atWord(parser, KW_SIZE))
      type.constraints.push_back(parseSizeConstraint(parser));
    else
      break;
  }
  if (!acceptWord(parser, KW_OF)) {
    failExpected(parser,
                 type.constraints.empty() ? "\"{\" or \"OF\"" : "\"OF\"");
    return;
  }
  AstNotes *outer = parser.owner;
  AstNotes notes;
  if (outer) {
    // Those ahead of OF are the list's, those right behind it the element's.
    parser.at--;
    setOwner(parser, &notes);
    parser.at++;
    setOwner(parser, outer);
  }
  if (atKind(parser, TOK_LOWER) && !isSign(peek(parser, 1), '<') &&
      !isFieldOfObject(parser)) {
    type.elementName = peek(parser).text;
    advance(parser);
  }
  type.element = parseType(parser);
  if (type.element)
    type.element->notes = std::move(notes);
}

// Types that are no more than their first words.
struct SimpleType {
  AsnKeyword first;
  AsnKeyword second;  // KW_NONE: one word is enough
  const char *shown;  // the second word
  AstTypeKind kind;
};

static const SimpleType simpleTypes[] = {
    {KW_BOOLEAN, KW_NONE, nullptr, AT_BOOLEAN},
    {KW_INTEGER, KW_NONE, nullptr, AT_INTEGER},
    {KW_ENUMERATED, KW_NONE, nullptr, AT_ENUMERATED},
    {KW_REAL, KW_NONE, nullptr, AT_REAL},
    {KW_BIT, KW_STRING, "STRING", AT_BIT_STRING},
    {KW_OCTET, KW_STRING, "STRING", AT_OCTET_STRING},
    {KW_NULL, KW_NONE, nullptr, AT_NULL},
    {KW_OBJECT, KW_IDENTIFIER, "IDENTIFIER", AT_OBJECT_IDENTIFIER},
    {KW_RELATIVE_OID, KW_NONE, nullptr, AT_RELATIVE_OID},
    {KW_EXTERNAL, KW_NONE, nullptr, AT_EXTERNAL},
    {KW_EMBEDDED, KW_PDV, "PDV", AT_EMBEDDED_PDV},
    {KW_CHARACTER, KW_STRING, "STRING", AT_CHARACTER_STRING},
    {KW_NUMERIC_STRING, KW_NONE, nullptr, AT_NUMERIC_STRING},
    {KW_PRINTABLE_STRING, KW_NONE, nullptr, AT_PRINTABLE_STRING},
    {KW_TELETEX_STRING, KW_NONE, nullptr, AT_TELETEX_STRING},
    {KW_T61_STRING, KW_NONE, nullptr, AT_T61_STRING},
    {KW_VIDEOTEX_STRING, KW_NONE, nullptr, AT_VIDEOTEX_STRING},
    {KW_IA5_STRING, KW_NONE, nullptr, AT_IA5_STRING},
    {KW_GRAPHIC_STRING, KW_NONE, nullptr, AT_GRAPHIC_STRING},
    {KW_VISIBLE_STRING, KW_NONE, nullptr, AT_VISIBLE_STRING},
    {KW_ISO646_STRING, KW_NONE, nullptr, AT_ISO646_STRING},
    {KW_GENERAL_STRING, KW_NONE, nullptr, AT_GENERAL_STRING},
    {KW_UNIVERSAL_STRING, KW_NONE, nullptr, AT_UNIVERSAL_STRING},
    {KW_BMP_STRING, KW_NONE, nullptr, AT_BMP_STRING},
    {KW_UTF8_STRING, KW_NONE, nullptr, AT_UTF8_STRING},
    {KW_OBJECT_DESCRIPTOR, KW_NONE, nullptr, AT_OBJECT_DESCRIPTOR},
    {KW_UTC_TIME, KW_NONE, nullptr, AT_UTC_TIME},
    {KW_GENERALIZED_TIME, KW_NONE, nullptr, AT_GENERALIZED_TIME},
    {KW_SEQUENCE, KW_NONE, nullptr, AT_SEQUENCE},
    {KW_SET, KW_NONE, nullptr, AT_SET},
    {KW_CHOICE, KW_NONE, nullptr, AT_CHOICE},
    {KW_ANY, KW_NONE, nullptr, AT_ANY},
    {KW_INSTANCE, KW_OF, "OF", AT_INSTANCE_OF},
};

// Row of the table by keyword; null: the keyword begins no type.
static const SimpleType *simpleTypeOf(AsnKeyword keyword)
{
  static const std::vector<const SimpleType *> rows = [] {
    std::vector<const SimpleType *> made(KW_COUNT, nullptr);
    for (const SimpleType &row : simpleTypes)
      made[row.first] = &row;
    return made;
  }();
  return rows[keyword];
}

// What stands behind the words of a type.
static void parseTypeRest(Parser &parser, AstType &type)
{
  switch (type.kind) {
  case AT_INTEGER:
  case AT_BIT_STRING:
    if (atSign(parser, '{'))
      parseNamed(parser, type);
    break;
  case AT_ENUMERATED:
    parseNamed(parser, type);
    break;
  case AT_SEQUENCE:
  case AT_SET:
    parseStructure(parser, type);
    break;
  case AT_CHOICE:
    parseComps(parser, type);
    break;
  case AT_ANY:
    if (acceptWord(parser, KW_DEFINED)) {
      expectWord(parser, KW_BY, "BY");
      type.elementName = expectKind(parser, TOK_LOWER, "an identifier");
    }
    break;
  case AT_INSTANCE_OF:
    if (!isTypeName(peek(parser))) {
      failExpected(parser, "a class");
      break;
    }
    parseReference(parser, type);
    if (type.kind == AT_FIELD)
      failAt(parser, type.fieldPos[0], "expected a class");
    type.kind = AT_INSTANCE_OF;
    break;
  default:
    break;
  }
}

static void parseUntagged(Parser &parser, AstType &type)
{
  const Token &token = peek(parser);
  if (token.kind == TOK_LOWER && isSign(peek(parser, 1), '<')) {
    type.kind = AT_SELECTION;
    type.elementName = token.text;
    advance(parser);
    advance(parser);
    type.element = parseTypeNoConstraints(parser);
    return;
  }
  if (isTypeName(token) || isFieldOfObject(parser)) {
    parseReference(parser, type);
    return;
  }
  const SimpleType *simple =
      token.kind == TOK_UPPER ? simpleTypeOf(token.keyword) : nullptr;
  if (!simple) {
    failExpected(parser, "a type");
    return;
  }
  advance(parser);
  if (simple->second != KW_NONE)
    expectWord(parser, simple->second, simple->shown);
  type.kind = simple->kind;
  parseTypeRest(parser, type);
}

static AstTag parseTag(Parser &parser)
{
  AstTag tag;
  tag.pos = posHere(parser);
  expectSign(parser, '[');
  if (acceptWord(parser, KW_UNIVERSAL))
    tag.tagClass = TAG_UNIVERSAL;
  else if (acceptWord(parser, KW_APPLICATION))
    tag.tagClass = TAG_APPLICATION;
  else if (acceptWord(parser, KW_PRIVATE))
    tag.tagClass = TAG_PRIVATE;
  tag.number = parseNumberOrReference(parser);
  expectSign(parser, ']');
  if (acceptWord(parser, KW_IMPLICIT))
    tag.mode = MODE_IMPLICIT;
  else if (acceptWord(parser, KW_EXPLICIT))
    tag.mode = MODE_EXPLICIT;
  return tag;
}

AstType *parseTypeNoConstraints(Parser &parser)
{
  Nesting nesting(parser);
  AstType *type = newAstType(parser.ast, AT_NULL, posHere(parser));
  while (atSign(parser, '['))
    type->tags.push_back(parseTag(parser));
  parseUntagged(parser, *type);
  return type;
}

AstType *parseType(Parser &parser)
{
  AstType *type = parseTypeNoConstraints(parser);
  while (atSign(parser, '('))
    type->constraints.push_back(parseConstraint(parser));
  return type;
}

AstException parseException(Parser &parser)
{
  AstException exception;
  exception.pos = posHere(parser);
  if (!acceptSign(parser, '!'))
    return exception;
  exception.present = true;
  bool isQualified = isTypeName(peek(parser)) && isSign(peek(parser, 1), '.') &&
                     peek(parser, 2).kind == TOK_LOWER;
  bool isValue = atSign(parser, '-') || atKind(parser, TOK_NUMBER) ||
                 (atKind(parser, TOK_LOWER) && !isSign(peek(parser, 1), '<')) ||
                 isQualified;
  if (!isValue || isFieldOfObject(parser)) {
    exception.type = parseType(parser);
    expectSign(parser, ':');
  }
  exception.value = parseValue(parser);
  return exception;
}
