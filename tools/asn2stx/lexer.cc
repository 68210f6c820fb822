// ASN.1 text to tokens (X.680 (2002) clause 11). Words are only split from
// the text here: whether "SIZE" is a keyword or a literal of some syntax is
// for the parser to tell. Comments vanish, but for annotations.

#include "asn2stx/lexer.h"
#include "base/strings.h"
#include <cstring>
#include <unordered_map>

static const std::unordered_map<std::string_view, AsnKeyword> keywords = {
    {"ABSENT", KW_ABSENT},
    {"ABSTRACT-SYNTAX", KW_ABSTRACT_SYNTAX},
    {"ALL", KW_ALL},
    {"ANY", KW_ANY},
    {"APPLICATION", KW_APPLICATION},
    {"AUTOMATIC", KW_AUTOMATIC},
    {"BEGIN", KW_BEGIN},
    {"BIT", KW_BIT},
    {"BMPString", KW_BMP_STRING},
    {"BOOLEAN", KW_BOOLEAN},
    {"BY", KW_BY},
    {"CHARACTER", KW_CHARACTER},
    {"CHOICE", KW_CHOICE},
    {"CLASS", KW_CLASS},
    {"COMPONENT", KW_COMPONENT},
    {"COMPONENTS", KW_COMPONENTS},
    {"CONSTRAINED", KW_CONSTRAINED},
    {"CONTAINING", KW_CONTAINING},
    {"DEFAULT", KW_DEFAULT},
    {"DEFINED", KW_DEFINED},
    {"DEFINITIONS", KW_DEFINITIONS},
    {"EMBEDDED", KW_EMBEDDED},
    {"ENCODED", KW_ENCODED},
    {"END", KW_END},
    {"ENUMERATED", KW_ENUMERATED},
    {"EXCEPT", KW_EXCEPT},
    {"EXPLICIT", KW_EXPLICIT},
    {"EXPORTS", KW_EXPORTS},
    {"EXTENSIBILITY", KW_EXTENSIBILITY},
    {"EXTERNAL", KW_EXTERNAL},
    {"FALSE", KW_FALSE},
    {"FROM", KW_FROM},
    {"GeneralizedTime", KW_GENERALIZED_TIME},
    {"GeneralString", KW_GENERAL_STRING},
    {"GraphicString", KW_GRAPHIC_STRING},
    {"IA5String", KW_IA5_STRING},
    {"IDENTIFIER", KW_IDENTIFIER},
    {"IMPLICIT", KW_IMPLICIT},
    {"IMPLIED", KW_IMPLIED},
    {"IMPORTS", KW_IMPORTS},
    {"INCLUDES", KW_INCLUDES},
    {"INSTANCE", KW_INSTANCE},
    {"INTEGER", KW_INTEGER},
    {"INTERSECTION", KW_INTERSECTION},
    {"ISO646String", KW_ISO646_STRING},
    {"MACRO", KW_MACRO},
    {"MAX", KW_MAX},
    {"MIN", KW_MIN},
    {"MINUS-INFINITY", KW_MINUS_INFINITY},
    {"NOT-A-NUMBER", KW_NOT_A_NUMBER},
    {"NULL", KW_NULL},
    {"NumericString", KW_NUMERIC_STRING},
    {"OBJECT", KW_OBJECT},
    {"ObjectDescriptor", KW_OBJECT_DESCRIPTOR},
    {"OCTET", KW_OCTET},
    {"OF", KW_OF},
    {"OPTIONAL", KW_OPTIONAL},
    {"PATTERN", KW_PATTERN},
    {"PDV", KW_PDV},
    {"PLUS-INFINITY", KW_PLUS_INFINITY},
    {"PRESENT", KW_PRESENT},
    {"PrintableString", KW_PRINTABLE_STRING},
    {"PRIVATE", KW_PRIVATE},
    {"REAL", KW_REAL},
    {"RELATIVE-OID", KW_RELATIVE_OID},
    {"SEQUENCE", KW_SEQUENCE},
    {"SET", KW_SET},
    {"SETTINGS", KW_SETTINGS},
    {"SIZE", KW_SIZE},
    {"STRING", KW_STRING},
    {"SYNTAX", KW_SYNTAX},
    {"T61String", KW_T61_STRING},
    {"TAGS", KW_TAGS},
    {"TeletexString", KW_TELETEX_STRING},
    {"TRUE", KW_TRUE},
    {"TYPE-IDENTIFIER", KW_TYPE_IDENTIFIER},
    {"UNION", KW_UNION},
    {"UNIQUE", KW_UNIQUE},
    {"UNIVERSAL", KW_UNIVERSAL},
    {"UniversalString", KW_UNIVERSAL_STRING},
    {"UTCTime", KW_UTC_TIME},
    {"UTF8String", KW_UTF8_STRING},
    {"VideotexString", KW_VIDEOTEX_STRING},
    {"VisibleString", KW_VISIBLE_STRING},
    {"WITH", KW_WITH},
};

struct Lexer {
  AsnSource &source;
  AsnErrors &errors;
  std::string_view text;
  size_t at = 0;
  size_t lineStart = 0;
  int line = 1;
  bool inJunk = false;  // the last character was none of ASN.1
};

static bool isLineEnd(char c)
{
  return c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

static bool isBlank(char c)
{
  return c == ' ' || c == '\t' || isLineEnd(c);
}

// The character so far ahead; 0 behind the end.
static char charAt(const Lexer &lexer, size_t ahead = 0)
{
  size_t i = lexer.at + ahead;
  return i < lexer.text.size() ? lexer.text[i] : '\0';
}

static bool isAtEnd(const Lexer &lexer)
{
  return lexer.at >= lexer.text.size();
}

static AsnPos posHere(const Lexer &lexer)
{
  return {lexer.source.file, lexer.line,
          static_cast<int>(lexer.at - lexer.lineStart) + 1};
}

static void nextChar(Lexer &lexer)
{
  // "\r\n" counts once, by its "\n".
  char c = lexer.text[lexer.at++];
  if (c == '\n' || (c == '\r' && charAt(lexer) != '\n')) {
    lexer.line++;
    lexer.lineStart = lexer.at;
  }
}

static std::string_view textFrom(const Lexer &lexer, size_t start)
{
  return lexer.text.substr(start, lexer.at - start);
}

// Annotations.

static void lexNoteWord(Lexer &lexer, size_t end, AsnNote &note)
{
  AsnAnnotation word;
  word.pos = posHere(lexer);
  size_t start = lexer.at;
  while (lexer.at < end && !isBlank(charAt(lexer)) && charAt(lexer) != '=')
    lexer.at++;
  word.key = textFrom(lexer, start);
  if (lexer.at < end && charAt(lexer) == '=') {
    word.hasValue = true;
    lexer.at++;
    if (lexer.at < end && charAt(lexer) == '"') {
      size_t close = lexer.text.find('"', lexer.at + 1);
      if (close >= end) {
        asnError(lexer.errors, posHere(lexer),
                 "the quoted value of annotation %s does not end",
                 asnQuoted(word.key).c_str());
        close = end;
      }
      word.value = lexer.text.substr(lexer.at + 1, close - lexer.at - 1);
      lexer.at = close < end ? close + 1 : end;
    } else {
      start = lexer.at;
      while (lexer.at < end && !isBlank(charAt(lexer)))
        lexer.at++;
      word.value = textFrom(lexer, start);
    }
  }
  if (word.key.empty())
    asnError(lexer.errors, word.pos, "annotation without a word");
  else
    note.words.push_back(std::move(word));
}

// Comments end at the next pair of hyphens or at the end of the line.
static void lexLineComment(Lexer &lexer)
{
  lexer.at += 2;
  size_t end = lexer.at;
  while (end < lexer.text.size() && !isLineEnd(lexer.text[end]) &&
         lexer.text.compare(end, 2, "--") != 0)
    end++;
  if (charAt(lexer) == '$') {
    lexer.at++;
    AsnNote note;
    note.before = static_cast<int>(lexer.source.tokens.size());
    for (;;) {
      while (lexer.at < end && isBlank(charAt(lexer)))
        lexer.at++;
      if (lexer.at >= end)
        break;
      lexNoteWord(lexer, end, note);
    }
    if (!note.words.empty())
      lexer.source.notes.push_back(std::move(note));
  }
  lexer.at = end;
  if (charAt(lexer) == '-')
    lexer.at += 2;
}

static void lexBlockComment(Lexer &lexer)
{
  AsnPos pos = posHere(lexer);
  int nesting = 0;
  while (!isAtEnd(lexer)) {
    if (charAt(lexer) == '/' && charAt(lexer, 1) == '*') {
      lexer.at += 2;
      nesting++;
    } else if (charAt(lexer) == '*' && charAt(lexer, 1) == '/') {
      lexer.at += 2;
      if (--nesting == 0)
        return;
    } else {
      nextChar(lexer);
    }
  }
  asnError(lexer.errors, pos, "the comment does not end");
}

// Tokens. Each function sets `kind` and `text` and moves behind the token.

static void lexWord(Lexer &lexer, Token &token)
{
  size_t start = lexer.at;
  bool isUpper = isCapitalChar(charAt(lexer));
  for (;;) {
    char c = charAt(lexer);
    if (c == '_') {
      asnError(lexer.errors, posHere(lexer), "\"_\" in a name");
    } else if (c == '-') {
      char next = charAt(lexer, 1);
      if (!isLetterOrDigitChar(next) && next != '_')
        break;
    } else if (!isLetterOrDigitChar(c)) {
      break;
    }
    lexer.at++;
  }
  token.kind = isUpper ? TOK_UPPER : TOK_LOWER;
  token.text = textFrom(lexer, start);
  if (!isUpper)
    return;
  auto keyword = keywords.find(token.text);
  if (keyword != keywords.end())
    token.keyword = keyword->second;
}

static void skipDigits(Lexer &lexer)
{
  while (isDigitChar(charAt(lexer)))
    lexer.at++;
}

static void lexNumber(Lexer &lexer, Token &token)
{
  size_t start = lexer.at;
  token.kind = TOK_NUMBER;
  skipDigits(lexer);
  // "1..5" is a range, not a number with a point.
  if (charAt(lexer) == '.' && charAt(lexer, 1) != '.') {
    token.kind = TOK_REAL;
    lexer.at++;
    skipDigits(lexer);
  }
  char c = charAt(lexer);
  size_t sign = charAt(lexer, 1) == '-' ? 1 : 0;
  if ((c == 'e' || c == 'E') && isDigitChar(charAt(lexer, 1 + sign))) {
    token.kind = TOK_REAL;
    lexer.at += 1 + sign;
    skipDigits(lexer);
  }
  token.text = textFrom(lexer, start);
}

// Reports a character that the string cannot hold.
static void checkDigits(Lexer &lexer, const Token &token)
{
  for (char c : token.text) {
    bool isGood = isBlank(c) || c == '0' || c == '1' ||
                  (token.kind == TOK_HSTRING &&
                   (isDigitChar(c) || (c >= 'A' && c <= 'F')));
    if (isGood)
      continue;
    asnError(lexer.errors, tokenPos(lexer.source, token), "%s in a %s string",
             asnQuoted({&c, 1}).c_str(),
             token.kind == TOK_BSTRING ? "binary" : "hexadecimal");
    return;
  }
}

// False if the string has no end; then the line has been left behind.
static bool lexQuoted(Lexer &lexer, Token &token)
{
  char quote = charAt(lexer);
  AsnPos pos = posHere(lexer);
  size_t close = lexer.text.find(quote, lexer.at + 1);
  while (quote == '"' && close < lexer.text.size() - 1 &&
         lexer.text[close + 1] == '"')
    close = lexer.text.find(quote, close + 2);
  if (close == std::string_view::npos) {
    asnError(lexer.errors, pos, "the string does not end");
    while (!isAtEnd(lexer) && !isLineEnd(charAt(lexer)))
      lexer.at++;
    return false;
  }
  size_t start = lexer.at + 1;
  while (lexer.at < close)
    nextChar(lexer);
  token.text = textFrom(lexer, start);
  lexer.at++;
  if (quote == '"') {
    token.kind = TOK_CSTRING;
    return true;
  }
  token.kind = charAt(lexer) == 'B' ? TOK_BSTRING : TOK_HSTRING;
  if (charAt(lexer) == 'B' || charAt(lexer) == 'H') {
    lexer.at++;
    checkDigits(lexer, token);
  } else {
    asnError(lexer.errors, pos, "expected \"B\" or \"H\" behind %s",
             ("'" + std::string(token.text.substr(0, 32)) + "'").c_str());
  }
  return true;
}

static bool lexSign(Lexer &lexer, Token &token)
{
  size_t start = lexer.at;
  if (lexer.text.compare(start, 3, "::=") == 0) {
    token.kind = TOK_ASSIGN;
    lexer.at += 3;
  } else if (lexer.text.compare(start, 3, "...") == 0) {
    token.kind = TOK_DOTS;
    lexer.at += 3;
  } else if (lexer.text.compare(start, 2, "..") == 0) {
    token.kind = TOK_RANGE;
    lexer.at += 2;
  } else if (charAt(lexer) == '&' && isLetterChar(charAt(lexer, 1))) {
    lexer.at++;
    lexWord(lexer, token);
    token.kind = TOK_FIELD;
    token.keyword = KW_NONE;
  } else if (charAt(lexer) != '\0' &&
             strchr("{}()[],.:;<|^!@-*>/=", charAt(lexer))) {
    token.kind = TOK_SIGN;
    token.sign = charAt(lexer);
    lexer.at++;
  } else {
    return false;
  }
  if (token.kind != TOK_FIELD)
    token.text = textFrom(lexer, start);
  return true;
}

// One message for a run of such characters: the file may be no text at all.
static void skipJunk(Lexer &lexer)
{
  char c = charAt(lexer);
  if (!lexer.inJunk && isPrintableChar(c))
    asnError(lexer.errors, posHere(lexer), "unexpected character %s",
             asnQuoted({&c, 1}).c_str());
  else if (!lexer.inJunk)
    asnError(lexer.errors, posHere(lexer), "unexpected character 0x%02X",
             static_cast<unsigned>(static_cast<unsigned char>(c)));
  lexer.inJunk = true;
  lexer.at++;
}

static bool lexToken(Lexer &lexer, Token &token)
{
  char c = charAt(lexer);
  if (isLetterChar(c))
    lexWord(lexer, token);
  else if (isDigitChar(c))
    lexNumber(lexer, token);
  else if (c == '"' || c == '\'')
    return lexQuoted(lexer, token);
  else if (!lexSign(lexer, token)) {
    skipJunk(lexer);
    return false;
  }
  return true;
}

static char closerOf(char open)
{
  return open == '{' ? '}' : open == '(' ? ')' : open == '[' ? ']' : '\0';
}

// A closer pairs with the nearest opener of its kind; openers in between have
// lost theirs.
static void findPartners(std::vector<Token> &tokens)
{
  std::vector<size_t> open;
  int openCount[128] = {};
  for (size_t i = 0; i < tokens.size(); i++) {
    if (tokens[i].kind != TOK_SIGN)
      continue;
    char sign = tokens[i].sign;
    if (char closer = closerOf(sign)) {
      open.push_back(i);
      openCount[static_cast<size_t>(closer)]++;
      continue;
    }
    if (openCount[static_cast<size_t>(sign)] == 0)
      continue;
    for (;;) {
      Token &opener = tokens[open.back()];
      open.pop_back();
      openCount[static_cast<size_t>(closerOf(opener.sign))]--;
      if (closerOf(opener.sign) != sign)
        continue;
      opener.partner = static_cast<int>(i);
      break;
    }
  }
}

void asnLex(AsnSource &source, AsnErrors &errors)
{
  source.tokens.clear();
  source.notes.clear();
  Lexer lexer{source, errors, source.text};
  if (lexer.text.starts_with("\xEF\xBB\xBF"))
    lexer.at = lexer.lineStart = 3;
  while (!isAtEnd(lexer)) {
    char c = charAt(lexer);
    char next = charAt(lexer, 1);
    if (isBlank(c)) {
      nextChar(lexer);
      continue;
    }
    if (c == '-' && next == '-') {
      lexLineComment(lexer);
    } else if (c == '/' && next == '*') {
      lexBlockComment(lexer);
    } else {
      Token token;
      AsnPos pos = posHere(lexer);
      token.line = pos.line;
      token.column = pos.column;
      if (!lexToken(lexer, token))
        continue;
      source.tokens.push_back(token);
    }
    lexer.inJunk = false;
  }
  Token end;
  AsnPos pos = posHere(lexer);
  end.line = pos.line;
  end.column = pos.column;
  source.tokens.push_back(end);
  findPartners(source.tokens);
}

AsnPos tokenPos(const AsnSource &source, const Token &token)
{
  return {source.file, token.line, token.column};
}

std::string tokenShown(const Token &token)
{
  switch (token.kind) {
  case TOK_END:
    return "the end of the file";
  case TOK_FIELD:
    return asnQuoted("&" + std::string(token.text));
  default:
    return asnQuoted(token.text);
  }
}

std::string cstringText(std::string_view text)
{
  std::string result;
  size_t i = 0;
  while (i < text.size()) {
    if (isLineEnd(text[i])) {
      while (!result.empty() && isBlank(result.back()))
        result.pop_back();
      while (i < text.size() && isBlank(text[i]))
        i++;
      continue;
    }
    result += text[i];
    i += text[i] == '"' ? 2u : 1u;
  }
  return result;
}
