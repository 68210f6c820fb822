#pragma once
#include "asn2stx/parser.h"

// What the files of the parser share. The parser walks the tokens of one
// source, or of a part of it. At the first fault it reports and `failed` is
// set; from then on it sees nothing but the end, so that every loop ends, and
// nobody has to look at results before the assignment is given up.

struct Parser {
  Ast &ast;
  AsnErrors &errors;
  const AsnSource &source;
  int at = 0;
  int end = 0;  // tokens from here on are not seen
  bool failed = false;
  int failedAt = 0;    // the token at which it failed
  int resumedAt = -1;  // the "::=" at which reading went on after a fault
  int depth = 0;

  // Who gets the notes that come; null: they are passed over.
  AstNotes *owner = nullptr;
  size_t note = 0;  // the next of `source.notes`
};

// Counts a level of nesting while it lives; too many are a fault.
struct Nesting {
  Parser &parser;
  explicit Nesting(Parser &p);
  ~Nesting() { parser.depth--; }
  Nesting(const Nesting &) = delete;
};

// The token so far ahead; TOK_END when there is none.
const Token &peek(const Parser &parser, int ahead = 0);
AsnPos posHere(const Parser &parser);

bool isSign(const Token &token, char sign);
bool isWord(const Token &token, AsnKeyword keyword);

// True if a name of a type, class or set may be this token.
bool isTypeName(const Token &token);

bool atSign(const Parser &parser, char sign);
bool atWord(const Parser &parser, AsnKeyword keyword);
bool atKind(const Parser &parser, TokenKind kind);

void advance(Parser &parser);
bool acceptSign(Parser &parser, char sign);
bool acceptWord(Parser &parser, AsnKeyword keyword);
bool acceptKind(Parser &parser, TokenKind kind);

// The same, and a fault if it is not there.
void expectSign(Parser &parser, char sign);
void expectWord(Parser &parser, AsnKeyword keyword, const char *shown);
std::string expectKind(Parser &parser, TokenKind kind, const char *what);

// The fault "expected WHAT, found TOKEN" at the token ahead.
void failExpected(Parser &parser, const char *what);
[[gnu::format(printf, 3, 4)]] void failAt(Parser &parser, AsnPos pos,
                                          const char *format, ...);

// Notes ahead of the current token go to the owner so far, those behind it to
// `owner`.
void setOwner(Parser &parser, AstNotes *owner);

// Moves behind the partner of the bracket ahead and gives what stands
// between; a fault if it is not closed.
AstTokens passBrackets(Parser &parser);

// parsetype.cc
AstType *parseType(Parser &parser);
AstType *parseTypeNoConstraints(Parser &parser);
void parseActuals(Parser &parser, AstRef &ref);
AstException parseException(Parser &parser);  // absent if no "!" is ahead

// Reads ".&field" as often as it comes, behind what it belongs to.
void parseFieldPath(Parser &parser, std::vector<std::string> &fields,
                    std::vector<AsnPos> &fieldPos);

// parseconstraint.cc
AstConstraint *parseConstraint(Parser &parser);      // in parentheses
AstConstraint *parseSizeConstraint(Parser &parser);  // SIZE (...) alone
AstConstraint *parseSet(Parser &parser);             // in braces

// parsevalue.cc
AstValue *parseValue(Parser &parser);

// What the braces ahead may hold.
enum BracesLook { LOOK_SET, LOOK_VALUE, LOOK_EITHER };
BracesLook lookAtBraces(const Parser &parser);

// parseobject.cc
AstClass *parseClass(Parser &parser);
void parseSettings(Parser &parser, AstBraces &braces);
