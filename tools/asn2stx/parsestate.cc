// Walking the tokens, faults, and who gets the annotations.

#include "asn2stx/parsestate.h"
#include "base/strings.h"

static const Token noToken;

Nesting::Nesting(Parser &p) : parser(p)
{
  if (++parser.depth > maxAstDepth)
    failAt(parser, posHere(parser), "nested too deeply at %s",
           tokenShown(peek(parser)).c_str());
}

const Token &peek(const Parser &parser, int ahead)
{
  int i = parser.at + ahead;
  if (parser.failed || i >= parser.end)
    return noToken;
  return parser.source.tokens[static_cast<size_t>(i)];
}

// What really stands there, be it behind the part that is read.
static const Token &tokenHere(const Parser &parser)
{
  return parser.source.tokens[static_cast<size_t>(parser.at)];
}

AsnPos posHere(const Parser &parser)
{
  return tokenPos(parser.source, tokenHere(parser));
}

bool isSign(const Token &token, char sign)
{
  return token.kind == TOK_SIGN && token.sign == sign;
}

bool isWord(const Token &token, AsnKeyword keyword)
{
  return token.kind == TOK_UPPER && token.keyword == keyword;
}

bool isTypeName(const Token &token)
{
  return isWord(token, KW_NONE) || isWord(token, KW_TYPE_IDENTIFIER) ||
         isWord(token, KW_ABSTRACT_SYNTAX);
}

bool atSign(const Parser &parser, char sign)
{
  return isSign(peek(parser), sign);
}

bool atWord(const Parser &parser, AsnKeyword keyword)
{
  return isWord(peek(parser), keyword);
}

bool atKind(const Parser &parser, TokenKind kind)
{
  return peek(parser).kind == kind;
}

void advance(Parser &parser)
{
  if (!parser.failed && parser.at < parser.end)
    parser.at++;
}

bool acceptSign(Parser &parser, char sign)
{
  bool isThere = atSign(parser, sign);
  if (isThere)
    advance(parser);
  return isThere;
}

bool acceptWord(Parser &parser, AsnKeyword keyword)
{
  bool isThere = atWord(parser, keyword);
  if (isThere)
    advance(parser);
  return isThere;
}

bool acceptKind(Parser &parser, TokenKind kind)
{
  bool isThere = kind != TOK_END && atKind(parser, kind);
  if (isThere)
    advance(parser);
  return isThere;
}

void expectSign(Parser &parser, char sign)
{
  if (!acceptSign(parser, sign))
    failExpected(parser, asnQuoted({&sign, 1}).c_str());
}

void expectWord(Parser &parser, AsnKeyword keyword, const char *shown)
{
  if (!acceptWord(parser, keyword))
    failExpected(parser, asnQuoted(shown).c_str());
}

std::string expectKind(Parser &parser, TokenKind kind, const char *what)
{
  std::string text(peek(parser).text);
  if (!acceptKind(parser, kind))
    failExpected(parser, what);
  return text;
}

void failExpected(Parser &parser, const char *what)
{
  failAt(parser, posHere(parser), "expected %s, found %s", what,
         tokenShown(tokenHere(parser)).c_str());
}

void failAt(Parser &parser, AsnPos pos, const char *format, ...)
{
  if (parser.failed)
    return;
  parser.failed = true;
  parser.failedAt = parser.at;
  va_list arguments;
  va_start(arguments, format);
  std::string text = formatTextV(format, arguments);
  va_end(arguments);
  asnError(parser.errors, pos, "%s", text.c_str());
}

void setOwner(Parser &parser, AstNotes *owner)
{
  if (!parser.owner && !owner)
    return;  // a part is read, whose notes the whole has got
  const std::vector<AsnNote> &notes = parser.source.notes;
  for (; parser.note < notes.size(); parser.note++) {
    const AsnNote &note = notes[parser.note];
    if (note.before > parser.at)
      break;
    if (parser.owner)
      parser.owner->insert(parser.owner->end(), note.words.begin(),
                           note.words.end());
  }
  parser.owner = owner;
}

AstTokens passBrackets(Parser &parser)
{
  const Token &open = peek(parser);
  AstTokens inside{parser.source.file, parser.at + 1, parser.at + 1};
  if (open.partner < 0 || open.partner >= parser.end) {
    failAt(parser, posHere(parser), "%s is not closed",
           tokenShown(open).c_str());
    return inside;
  }
  inside.end = open.partner;
  parser.at = open.partner + 1;
  return inside;
}
