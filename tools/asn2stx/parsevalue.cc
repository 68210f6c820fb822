// Values: X.680 (2002) clauses 16 to 44, each type's own notation. What
// stands in braces is looked at before it is read, token by token of its own
// level, so that every reading that the text allows is made without trying
// and going back.

#include "asn2stx/parsestate.h"

AstValue *newAstValue(Ast &ast, AstValueKind kind, AsnPos pos)
{
  AstValue &value = ast.values.emplace_back();
  value.id = static_cast<int>(ast.values.size()) - 1;
  value.kind = kind;
  value.pos = pos;
  return &value;
}

// Looking ahead. The tokens are counted from the beginning of the source;
// `end` never lies behind what the parser may see.

static const Token &tokenNo(const Parser &parser, int i)
{
  return peek(parser, i - parser.at);
}

// Behind the bracket at `i`, or `end` if it is not closed before that.
static int behindBracket(const Parser &parser, int i, int end)
{
  int partner = tokenNo(parser, i).partner;
  return partner < 0 || partner >= end ? end : partner + 1;
}

// Behind the token at `i`, with what stands in it if it opens a bracket.
static int behindToken(const Parser &parser, int i, int end)
{
  const Token &token = tokenNo(parser, i);
  bool isOpen = isSign(token, '{') || isSign(token, '(') || isSign(token, '[');
  return isOpen ? behindBracket(parser, i, end) : i + 1;
}

static bool isValueWord(AsnKeyword keyword)
{
  return keyword == KW_NULL || keyword == KW_TRUE || keyword == KW_FALSE ||
         keyword == KW_PLUS_INFINITY || keyword == KW_MINUS_INFINITY ||
         keyword == KW_NOT_A_NUMBER;
}

// Behind ".&field" as often as it comes.
static int behindFields(const Parser &parser, int i)
{
  while (isSign(tokenNo(parser, i), '.') &&
         tokenNo(parser, i + 1).kind == TOK_FIELD)
    i += 2;
  return i;
}

// True if the tokens are one value. Only the outermost level is looked at,
// and a name with braces behind it is none.
static bool isOneValue(const Parser &parser, int i, int end)
{
  while (i < end) {
    const Token &token = tokenNo(parser, i);
    const Token &next = tokenNo(parser, i + 1);
    switch (token.kind) {
    case TOK_NUMBER:
    case TOK_REAL:
    case TOK_BSTRING:
    case TOK_HSTRING:
    case TOK_CSTRING:
      return i + 1 == end;
    case TOK_SIGN:
      if (token.sign == '{')
        return token.partner >= 0 && token.partner + 1 == end;
      return token.sign == '-' && i + 2 == end &&
             (next.kind == TOK_NUMBER || next.kind == TOK_REAL);
    case TOK_LOWER:
      if (!isSign(next, ':'))
        return behindFields(parser, i + 1) == end;
      i += 2;
      break;
    case TOK_UPPER: {
      if (token.keyword == KW_CONTAINING) {
        i++;
        break;
      }
      if (isValueWord(token.keyword) && i + 1 == end)
        return true;
      if (isTypeName(token) && isSign(next, '.') &&
          tokenNo(parser, i + 2).kind == TOK_LOWER)
        return behindFields(parser, i + 3) == end;
      do
        i = behindToken(parser, i, end);
      while (i < end && !isSign(tokenNo(parser, i), ':'));
      if (i >= end)
        return false;
      i++;
      break;
    }
    default:
      return false;
    }
  }
  return false;
}

// The next "," of this level, or `end`.
static int itemEnd(const Parser &parser, int i, int end)
{
  while (i < end && !isSign(tokenNo(parser, i), ','))
    i = behindToken(parser, i, end);
  return i;
}

// True if there are one or more items "value" or "name value", and commas
// between them.
static bool isItems(const Parser &parser, int i, int end)
{
  for (;;) {
    int behind = itemEnd(parser, i, end);
    if (!isOneValue(parser, i, behind) &&
        !(tokenNo(parser, i).kind == TOK_LOWER &&
          isOneValue(parser, i + 1, behind)))
      return false;
    if (behind >= end)
      return true;
    i = behind + 1;
  }
}

// Behind the arc at `i`; 0 if it is none.
static int behindArc(const Parser &parser, int i, int end)
{
  const Token &token = tokenNo(parser, i);
  if (token.kind == TOK_NUMBER)
    return i + 1;
  if (isTypeName(token) && isSign(tokenNo(parser, i + 1), '.') &&
      tokenNo(parser, i + 2).kind == TOK_LOWER)
    return i + 3;
  if (token.kind != TOK_LOWER)
    return 0;
  if (i + 1 >= end || !isSign(tokenNo(parser, i + 1), '('))
    return i + 1;
  int number = i + 2;
  int close = tokenNo(parser, i + 1).partner;
  if (tokenNo(parser, number).kind == TOK_UPPER)
    number += 2;
  bool isNumber = tokenNo(parser, number).kind == TOK_NUMBER ||
                  tokenNo(parser, number).kind == TOK_LOWER;
  return isNumber && close == number + 1 && close < end ? close + 1 : 0;
}

static bool isArcs(const Parser &parser, int i, int end)
{
  while (i < end) {
    i = behindArc(parser, i, end);
    if (i == 0)
      return false;
  }
  return i == end;
}

// Words that begin a type and nothing else.
static bool isTypeWord(AsnKeyword keyword)
{
  switch (keyword) {
  case KW_BIT:
  case KW_BOOLEAN:
  case KW_CHARACTER:
  case KW_CHOICE:
  case KW_EMBEDDED:
  case KW_ENUMERATED:
  case KW_INTEGER:
  case KW_OCTET:
  case KW_REAL:
  case KW_SEQUENCE:
  case KW_SET:
  case KW_ALL:
  case KW_MIN:
  case KW_SIZE:
  case KW_INCLUDES:
    return true;
  default:
    return false;
  }
}

// True if the tokens are the name of a type or set, with what may follow it.
static bool isTypeReference(const Parser &parser, int i, int end)
{
  if (tokenNo(parser, i).kind != TOK_UPPER ||
      isValueWord(tokenNo(parser, i).keyword))
    return false;
  for (i++; i < end;) {
    const Token &token = tokenNo(parser, i);
    if (isSign(token, '.'))
      i += 2;
    else if (isSign(token, '{') || isSign(token, '('))
      i = behindBracket(parser, i, end);
    else
      return false;
  }
  return i == end;
}

BracesLook lookAtBraces(const Parser &parser)
{
  int first = parser.at + 1;
  int end = peek(parser).partner;
  if (end < 0 || end >= parser.end)
    return LOOK_VALUE;  // reading it tells what is wrong
  for (int i = first; i < end; i = behindToken(parser, i, end)) {
    const Token &token = tokenNo(parser, i);
    if (token.kind == TOK_DOTS || token.kind == TOK_RANGE ||
        isSign(token, '|') || isSign(token, '^') || isWord(token, KW_UNION) ||
        isWord(token, KW_INTERSECTION) || isWord(token, KW_EXCEPT))
      return LOOK_SET;
  }
  const Token &start = tokenNo(parser, first);
  if (first == end || isOneValue(parser, first, end))
    return LOOK_EITHER;
  if (isTypeReference(parser, first, end) ||
      (start.kind == TOK_UPPER && isTypeWord(start.keyword)))
    return LOOK_SET;
  return LOOK_VALUE;
}

// Reading.

static void parseArc(Parser &parser, AstBraces &braces)
{
  AstArc arc;
  arc.pos = posHere(parser);
  arc.ref.pos = arc.pos;
  if (atKind(parser, TOK_NUMBER)) {
    arc.value = parseValue(parser);
    braces.arcs.push_back(std::move(arc));
    return;
  }
  if (atKind(parser, TOK_UPPER)) {
    arc.ref.module = peek(parser).text;
    advance(parser);
    advance(parser);
  }
  arc.ref.name = expectKind(parser, TOK_LOWER, "an identifier");
  if (acceptSign(parser, '(')) {
    arc.value = parseValue(parser);
    expectSign(parser, ')');
  }
  braces.arcs.push_back(std::move(arc));
}

static void parseItems(Parser &parser, AstBraces &braces)
{
  do {
    AstItem item;
    item.pos = posHere(parser);
    int end = itemEnd(parser, parser.at, braces.tokens.end);
    if (!isOneValue(parser, parser.at, end))
      item.name = expectKind(parser, TOK_LOWER, "an identifier");
    item.value = parseValue(parser);
    braces.items.push_back(std::move(item));
  } while (acceptSign(parser, ','));
}

static AstValue *parseBraces(Parser &parser)
{
  AstValue *value = newAstValue(parser.ast, AV_BRACES, posHere(parser));
  AstBraces &braces = parser.ast.braces.emplace_back();
  value->braces = &braces;
  braces.tokens = passBrackets(parser);
  int behind = parser.at;
  int first = braces.tokens.first;
  int end = braces.tokens.end;
  if (parser.failed)
    return value;
  braces.isEmpty = first == end;
  parser.at = first;
  if (atKind(parser, TOK_FIELD)) {
    parseSettings(parser, braces);
    expectSign(parser, '}');
  } else if (!braces.isEmpty) {
    bool hasArcs = isArcs(parser, first, end);
    if (isItems(parser, first, end)) {
      parseItems(parser, braces);
      expectSign(parser, '}');
    }
    if (hasArcs && !parser.failed) {
      parser.at = first;
      while (parser.at < end && !parser.failed)
        parseArc(parser, braces);
    }
  }
  if (!parser.failed)
    parser.at = behind;
  return value;
}

static AstValue *parseNumber(Parser &parser)
{
  AstValue *value = newAstValue(parser.ast, AV_INTEGER, posHere(parser));
  if (acceptSign(parser, '-'))
    value->text = "-";
  if (!atKind(parser, TOK_NUMBER) && !atKind(parser, TOK_REAL)) {
    failExpected(parser, "a number");
    return value;
  }
  if (atKind(parser, TOK_REAL))
    value->kind = AV_REAL;
  value->text += peek(parser).text;
  advance(parser);
  return value;
}

static AstValue *parseString(Parser &parser)
{
  const Token &token = peek(parser);
  AstValue *value = newAstValue(parser.ast, AV_CSTRING, posHere(parser));
  if (token.kind == TOK_CSTRING) {
    value->text = cstringText(token.text);
  } else {
    value->kind = token.kind == TOK_BSTRING ? AV_BSTRING : AV_HSTRING;
    for (char c : token.text)
      if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'))
        value->text += c;
  }
  advance(parser);
  return value;
}

// A name, which may have a module ahead of it.
static AstValue *parseReferenceValue(Parser &parser)
{
  AstValue *value = newAstValue(parser.ast, AV_REFERENCE, posHere(parser));
  if (atKind(parser, TOK_LOWER) && isSign(peek(parser, 1), ':')) {
    value->kind = AV_CHOICE;
    value->name = peek(parser).text;
    advance(parser);
    advance(parser);
    value->value = parseValue(parser);
    return value;
  }
  value->ref.pos = value->pos;
  if (atKind(parser, TOK_UPPER)) {
    value->ref.module = peek(parser).text;
    advance(parser);
    advance(parser);
  }
  value->ref.name = expectKind(parser, TOK_LOWER, "a value");
  if (atSign(parser, '{'))
    parseActuals(parser, value->ref);
  parseFieldPath(parser, value->fields, value->fieldPos);
  if (!value->fields.empty())
    value->kind = AV_FIELD;
  return value;
}

static AstValue *parseTypedValue(Parser &parser)
{
  AstValue *value = newAstValue(parser.ast, AV_TYPED, posHere(parser));
  const Token &token = peek(parser);
  std::string shown = tokenShown(token);
  bool isName = isTypeName(token);
  value->type = parseType(parser);
  if (!atSign(parser, ':') && isName)
    failAt(parser, value->pos, "expected a value, found %s", shown.c_str());
  expectSign(parser, ':');
  value->value = parseValue(parser);
  return value;
}

// Values that are one word; AV_COUNT for other words.
static AstValueKind wordValueKind(const Parser &parser)
{
  switch (peek(parser).keyword) {
  case KW_TRUE:
  case KW_FALSE:
    return AV_BOOLEAN;
  case KW_NULL:
    return isSign(peek(parser, 1), ':') ? AV_COUNT : AV_NULL;
  case KW_PLUS_INFINITY:
    return AV_PLUS_INFINITY;
  case KW_MINUS_INFINITY:
    return AV_MINUS_INFINITY;
  case KW_NOT_A_NUMBER:
    return AV_NOT_A_NUMBER;
  case KW_CONTAINING:
    return AV_CONTAINING;
  default:
    return AV_COUNT;
  }
}

static AstValue *parseWordValue(Parser &parser)
{
  AstValueKind kind = wordValueKind(parser);
  if (kind == AV_COUNT) {
    if (isTypeName(peek(parser)) && isSign(peek(parser, 1), '.') &&
        peek(parser, 2).kind == TOK_LOWER)
      return parseReferenceValue(parser);
    return parseTypedValue(parser);
  }
  AstValue *value = newAstValue(parser.ast, kind, posHere(parser));
  value->isTrue = atWord(parser, KW_TRUE);
  advance(parser);
  if (kind == AV_CONTAINING)
    value->value = parseValue(parser);
  return value;
}

AstValue *parseValue(Parser &parser)
{
  Nesting nesting(parser);
  const Token &token = peek(parser);
  switch (token.kind) {
  case TOK_NUMBER:
  case TOK_REAL:
    return parseNumber(parser);
  case TOK_BSTRING:
  case TOK_HSTRING:
  case TOK_CSTRING:
    return parseString(parser);
  case TOK_LOWER:
    return parseReferenceValue(parser);
  case TOK_UPPER:
    return parseWordValue(parser);
  case TOK_SIGN:
    if (token.sign == '{')
      return parseBraces(parser);
    if (token.sign == '-')
      return parseNumber(parser);
    break;
  default:
    break;
  }
  failExpected(parser, "a value");
  return nullptr;
}
