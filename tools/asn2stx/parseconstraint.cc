// Constraints and sets: X.680 (2002) clauses 45 to 49, X.682 for tables,
// contents and what the user defines, X.681 clause 12 for object sets.

#include "asn2stx/parsestate.h"

static AstElem *newElem(Parser &parser, AstElemKind kind, AsnPos pos)
{
  AstElem &elem = parser.ast.elems.emplace_back();
  elem.kind = kind;
  elem.pos = pos;
  return &elem;
}

static AstConstraint *newConstraint(Parser &parser)
{
  AstConstraint &constraint = parser.ast.constraints.emplace_back();
  constraint.pos = posHere(parser);
  return &constraint;
}

static AstElem *parseUnion(Parser &parser);

// Elements by their first word, which is still ahead.

// "INCLUDES" may be ahead of the type.
static AstElem *parseSubtypeElem(Parser &parser)
{
  AstElem *elem = newElem(parser, AE_TYPE, posHere(parser));
  elem->hasIncludes = acceptWord(parser, KW_INCLUDES);
  elem->type = parseType(parser);
  return elem;
}

static AstPresence parseInnerPresence(Parser &parser)
{
  if (acceptWord(parser, KW_PRESENT))
    return PRES_PRESENT;
  if (acceptWord(parser, KW_ABSENT))
    return PRES_ABSENT;
  return acceptWord(parser, KW_OPTIONAL) ? PRES_OPTIONAL : PRES_NONE;
}

static void parseInnerItems(Parser &parser, AstElem &elem)
{
  expectSign(parser, '{');
  if (acceptKind(parser, TOK_DOTS)) {
    elem.isPartial = true;
    if (!atSign(parser, '}'))
      expectSign(parser, ',');
  }
  if (!atSign(parser, '}'))
    do {
      AstInner item;
      item.pos = posHere(parser);
      item.name = expectKind(parser, TOK_LOWER, "a component");
      if (atSign(parser, '('))
        item.constraint = parseConstraint(parser);
      item.presence = parseInnerPresence(parser);
      elem.items.push_back(std::move(item));
    } while (acceptSign(parser, ','));
  expectSign(parser, '}');
}

static AstElem *parseWithElem(Parser &parser)
{
  AstElem *elem = newElem(parser, AE_WITH_COMPONENTS, posHere(parser));
  advance(parser);
  if (acceptWord(parser, KW_COMPONENTS)) {
    parseInnerItems(parser, *elem);
  } else if (acceptWord(parser, KW_COMPONENT)) {
    elem->kind = AE_WITH_COMPONENT;
    elem->inner = parseConstraint(parser);
  } else {
    failExpected(parser, "\"COMPONENT\" or \"COMPONENTS\"");
  }
  return elem;
}

static AstElem *parseContainingElem(Parser &parser)
{
  AstElem *elem = newElem(parser, AE_CONTAINING, posHere(parser));
  if (acceptWord(parser, KW_CONTAINING))
    elem->type = parseType(parser);
  else
    elem->kind = AE_ENCODED_BY;
  if (!elem->type || atWord(parser, KW_ENCODED)) {
    expectWord(parser, KW_ENCODED, "ENCODED");
    expectWord(parser, KW_BY, "BY");
    elem->value = parseValue(parser);
  }
  return elem;
}

static AstElem *parseConstrainedByElem(Parser &parser)
{
  AstElem *elem = newElem(parser, AE_CONSTRAINED_BY, posHere(parser));
  advance(parser);
  expectWord(parser, KW_BY, "BY");
  if (atSign(parser, '{'))
    elem->tokens = passBrackets(parser);
  else
    expectSign(parser, '{');
  return elem;
}

// SIZE, FROM, PATTERN and SETTINGS.
static AstElem *parseElemWithWord(Parser &parser, AstElemKind kind)
{
  AstElem *elem = newElem(parser, kind, posHere(parser));
  advance(parser);
  if (kind == AE_SIZE || kind == AE_FROM) {
    elem->inner = parseConstraint(parser);
  } else {
    if (kind == AE_SETTINGS && !atKind(parser, TOK_CSTRING))
      failExpected(parser, "a character string");
    elem->value = parseValue(parser);
  }
  return elem;
}

// Values and ranges.

static AstValue *parseEndpoint(Parser &parser, AsnKeyword infinite)
{
  return acceptWord(parser, infinite) ? nullptr : parseValue(parser);
}

static bool isCapitalName(const std::string &name)
{
  return !name.empty() && name[0] >= 'A' && name[0] <= 'Z';
}

// `object.&Set` was read as a value.
static void makeTypeElem(Parser &parser, AstElem &elem)
{
  AstType *type = newAstType(parser.ast, AT_FIELD, elem.value->pos);
  type->ref = elem.value->ref;
  type->fields = elem.value->fields;
  type->fieldPos = elem.value->fieldPos;
  elem.kind = AE_TYPE;
  elem.type = type;
  elem.value = nullptr;
}

// The lower end is read, or null for MIN; ".." or "<" may follow.
static AstElem *parseRangeOrValue(Parser &parser, AstValue *lower, AsnPos pos)
{
  AstElem *elem = newElem(parser, AE_VALUE, pos);
  elem->isLowerOpen = acceptSign(parser, '<');
  bool isRange = acceptKind(parser, TOK_RANGE);
  if (!isRange && (elem->isLowerOpen || !lower))
    failExpected(parser, "\"..\"");
  if (!isRange) {
    elem->value = lower;
    if (lower && lower->kind == AV_FIELD && isCapitalName(lower->fields.back()))
      makeTypeElem(parser, *elem);
    return elem;
  }
  elem->kind = AE_RANGE;
  elem->lower = lower;
  elem->isUpperOpen = acceptSign(parser, '<');
  elem->upper = parseEndpoint(parser, KW_MAX);
  return elem;
}

// A type, the type of a value behind ":", or a value of another module.
static AstElem *parseTypeOrValue(Parser &parser)
{
  AsnPos pos = posHere(parser);
  bool isQualified = isTypeName(peek(parser)) && isSign(peek(parser, 1), '.') &&
                     peek(parser, 2).kind == TOK_LOWER;
  if (isQualified)
    return parseRangeOrValue(parser, parseValue(parser), pos);
  AstElem *elem = parseSubtypeElem(parser);
  if (!acceptSign(parser, ':'))
    return elem;
  AstValue *value = newAstValue(parser.ast, AV_TYPED, pos);
  value->type = elem->type;
  value->value = parseValue(parser);
  elem->kind = AE_VALUE;
  elem->type = nullptr;
  elem->value = value;
  return elem;
}

static AstElem *parseWordElem(Parser &parser)
{
  switch (peek(parser).keyword) {
  case KW_SIZE:
    return parseElemWithWord(parser, AE_SIZE);
  case KW_FROM:
    return parseElemWithWord(parser, AE_FROM);
  case KW_PATTERN:
    return parseElemWithWord(parser, AE_PATTERN);
  case KW_SETTINGS:
    return parseElemWithWord(parser, AE_SETTINGS);
  case KW_WITH:
    return parseWithElem(parser);
  case KW_CONTAINING:
  case KW_ENCODED:
    return parseContainingElem(parser);
  case KW_CONSTRAINED:
    return parseConstrainedByElem(parser);
  case KW_INCLUDES:
    return parseSubtypeElem(parser);
  case KW_MIN:
  case KW_TRUE:
  case KW_FALSE:
  case KW_PLUS_INFINITY:
  case KW_MINUS_INFINITY:
  case KW_NOT_A_NUMBER: {
    AsnPos pos = posHere(parser);
    AstValue *lower = parseEndpoint(parser, KW_MIN);
    return parseRangeOrValue(parser, lower, pos);
  }
  case KW_NULL:
    if (!isSign(peek(parser, 1), ':')) {
      AsnPos pos = posHere(parser);
      return parseRangeOrValue(parser, parseValue(parser), pos);
    }
    [[fallthrough]];
  default:
    return parseTypeOrValue(parser);
  }
}

static AstElem *parseElem(Parser &parser)
{
  if (acceptSign(parser, '(')) {
    AstElem *elem = parseUnion(parser);
    expectSign(parser, ')');
    return elem;
  }
  const Token &token = peek(parser);
  if (token.kind == TOK_UPPER)
    return parseWordElem(parser);
  // "a < B" is an alternative's type, "a < .. b" a range.
  bool isSelection = token.kind == TOK_LOWER && isSign(peek(parser, 1), '<') &&
                     peek(parser, 2).kind != TOK_RANGE;
  if (isSelection)
    return parseSubtypeElem(parser);
  if (token.kind == TOK_SIGN && token.sign != '{' && token.sign != '-') {
    // A tag makes a type; nothing else begins with a sign.
    if (token.sign == '[')
      return parseTypeOrValue(parser);
    failExpected(parser, "a constraint");
    return nullptr;
  }
  AsnPos pos = posHere(parser);
  return parseRangeOrValue(parser, parseValue(parser), pos);
}

// Sets of elements, by strength of the operators.

// "ALL EXCEPT elements", "elements EXCEPT elements" or elements.
static AstElem *parseExcept(Parser &parser)
{
  AsnPos pos = posHere(parser);
  AstElem *elem = nullptr;
  if (acceptWord(parser, KW_ALL)) {
    expectWord(parser, KW_EXCEPT, "EXCEPT");
    elem = newElem(parser, AE_ALL_EXCEPT, pos);
  } else {
    AstElem *first = parseElem(parser);
    if (!acceptWord(parser, KW_EXCEPT))
      return first;
    elem = newElem(parser, AE_EXCEPT, pos);
    elem->operands.push_back(first);
  }
  elem->operands.push_back(parseElem(parser));
  return elem;
}

// Operands of one strength; a single one stands for itself.
static AstElem *parseOperands(Parser &parser, AstElemKind kind, char sign,
                              AsnKeyword word, AstElem *parseOne(Parser &))
{
  AsnPos pos = posHere(parser);
  AstElem *first = parseOne(parser);
  AstElem *elem = nullptr;
  while (acceptSign(parser, sign) || acceptWord(parser, word)) {
    if (!elem) {
      elem = newElem(parser, kind, pos);
      elem->operands.push_back(first);
    }
    elem->operands.push_back(parseOne(parser));
  }
  return elem ? elem : first;
}

static AstElem *parseIntersection(Parser &parser)
{
  return parseOperands(parser, AE_INTERSECTION, '^', KW_INTERSECTION,
                       parseExcept);
}

static AstElem *parseUnion(Parser &parser)
{
  Nesting nesting(parser);
  return parseOperands(parser, AE_UNION, '|', KW_UNION, parseIntersection);
}

// Behind the root: ", ..." and ", additions".
static void parseExtension(Parser &parser, AstConstraint &constraint)
{
  if (!acceptSign(parser, ','))
    return;
  if (!acceptKind(parser, TOK_DOTS)) {
    failExpected(parser, "\"...\"");
    return;
  }
  constraint.isExtensible = true;
  if (acceptSign(parser, ','))
    constraint.additions = parseUnion(parser);
}

// Tables.

static AstAtPath parseAtPath(Parser &parser)
{
  AstAtPath path;
  path.pos = posHere(parser);
  expectSign(parser, '@');
  for (;;) {
    if (acceptSign(parser, '.'))
      path.level++;
    else if (acceptKind(parser, TOK_RANGE))
      path.level += 2;
    else if (acceptKind(parser, TOK_DOTS))
      path.level += 3;
    else
      break;
  }
  do
    path.names.push_back(expectKind(parser, TOK_LOWER, "a component"));
  while (acceptSign(parser, '.'));
  return path;
}

static bool isPathsAhead(const Parser &parser, int ahead)
{
  return isSign(peek(parser, ahead), '{') &&
         isSign(peek(parser, ahead + 1), '@');
}

static bool isTableAhead(const Parser &parser)
{
  if (!atSign(parser, '{') || peek(parser).partner < 0)
    return false;
  if (isPathsAhead(parser, peek(parser).partner + 1 - parser.at))
    return true;
  return lookAtBraces(parser) == LOOK_SET;
}

static AstElem *parseTable(Parser &parser)
{
  AstElem *elem = newElem(parser, AE_TABLE, posHere(parser));
  elem->set = parseSet(parser);
  if (!isPathsAhead(parser, 0))
    return elem;
  expectSign(parser, '{');
  do
    elem->paths.push_back(parseAtPath(parser));
  while (acceptSign(parser, ','));
  expectSign(parser, '}');
  return elem;
}

AstConstraint *parseConstraint(Parser &parser)
{
  Nesting nesting(parser);
  AstConstraint *constraint = newConstraint(parser);
  expectSign(parser, '(');
  constraint->root =
      isTableAhead(parser) ? parseTable(parser) : parseUnion(parser);
  parseExtension(parser, *constraint);
  constraint->exception = parseException(parser);
  expectSign(parser, ')');
  return constraint;
}

AstConstraint *parseSizeConstraint(Parser &parser)
{
  AstConstraint *constraint = newConstraint(parser);
  constraint->root = parseElemWithWord(parser, AE_SIZE);
  return constraint;
}

AstConstraint *parseSet(Parser &parser)
{
  Nesting nesting(parser);
  AstConstraint *set = newConstraint(parser);
  expectSign(parser, '{');
  if (acceptKind(parser, TOK_DOTS)) {
    set->isExtensible = true;
    if (acceptSign(parser, ','))
      set->additions = parseUnion(parser);
  } else if (!atSign(parser, '}')) {
    set->root = parseUnion(parser);
    parseExtension(parser, *set);
  }
  expectSign(parser, '}');
  return set;
}
