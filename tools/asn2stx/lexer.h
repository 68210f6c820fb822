#pragma once
#include "asn2stx/diagnose.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Takes ASN.1 text apart into tokens and annotations.

enum TokenKind : uint8_t {
  TOK_END,      // behind the last token
  TOK_UPPER,    // word that begins with a capital: reference or keyword
  TOK_LOWER,    // word that begins with a small letter
  TOK_FIELD,    // &name; `text` is the name without "&"
  TOK_NUMBER,   // digits
  TOK_REAL,     // digits with a point or an exponent
  TOK_BSTRING,  // '0101'B; `text` is what stands between the quotes
  TOK_HSTRING,  // '01AF'H; the same
  TOK_CSTRING,  // "..."; the same, with doubled quotes and line ends
  TOK_ASSIGN,   // ::=
  TOK_RANGE,    // ..
  TOK_DOTS,     // ...
  TOK_SIGN      // one character: { } ( ) [ ] , . : ; < | ^ ! @ - * > / =
};

// Words with a meaning of their own. Whether a token is one is up to the
// place: in defined syntax most of them may be literals.
enum AsnKeyword : uint8_t {
  KW_NONE,
  KW_ABSENT,
  KW_ABSTRACT_SYNTAX,
  KW_ALL,
  KW_ANY,
  KW_APPLICATION,
  KW_AUTOMATIC,
  KW_BEGIN,
  KW_BIT,
  KW_BMP_STRING,
  KW_BOOLEAN,
  KW_BY,
  KW_CHARACTER,
  KW_CHOICE,
  KW_CLASS,
  KW_COMPONENT,
  KW_COMPONENTS,
  KW_CONSTRAINED,
  KW_CONTAINING,
  KW_DEFAULT,
  KW_DEFINED,
  KW_DEFINITIONS,
  KW_EMBEDDED,
  KW_ENCODED,
  KW_END,
  KW_ENUMERATED,
  KW_EXCEPT,
  KW_EXPLICIT,
  KW_EXPORTS,
  KW_EXTENSIBILITY,
  KW_EXTERNAL,
  KW_FALSE,
  KW_FROM,
  KW_GENERALIZED_TIME,
  KW_GENERAL_STRING,
  KW_GRAPHIC_STRING,
  KW_IA5_STRING,
  KW_IDENTIFIER,
  KW_IMPLICIT,
  KW_IMPLIED,
  KW_IMPORTS,
  KW_INCLUDES,
  KW_INSTANCE,
  KW_INTEGER,
  KW_INTERSECTION,
  KW_ISO646_STRING,
  KW_MACRO,
  KW_MAX,
  KW_MIN,
  KW_MINUS_INFINITY,
  KW_NOT_A_NUMBER,
  KW_NULL,
  KW_NUMERIC_STRING,
  KW_OBJECT,
  KW_OBJECT_DESCRIPTOR,
  KW_OCTET,
  KW_OF,
  KW_OPTIONAL,
  KW_PATTERN,
  KW_PDV,
  KW_PLUS_INFINITY,
  KW_PRESENT,
  KW_PRINTABLE_STRING,
  KW_PRIVATE,
  KW_REAL,
  KW_RELATIVE_OID,
  KW_SEQUENCE,
  KW_SET,
  KW_SETTINGS,
  KW_SIZE,
  KW_STRING,
  KW_SYNTAX,
  KW_T61_STRING,
  KW_TAGS,
  KW_TELETEX_STRING,
  KW_TRUE,
  KW_TYPE_IDENTIFIER,
  KW_UNION,
  KW_UNIQUE,
  KW_UNIVERSAL,
  KW_UNIVERSAL_STRING,
  KW_UTC_TIME,
  KW_UTF8_STRING,
  KW_VIDEOTEX_STRING,
  KW_VISIBLE_STRING,
  KW_WITH,
  KW_COUNT
};

struct Token {
  TokenKind kind = TOK_END;
  AsnKeyword keyword = KW_NONE;  // of TOK_UPPER
  char sign = 0;                 // of TOK_SIGN
  int line = 0;
  int column = 0;
  int partner = -1;  // of { ( [: the token that closes it, -1: none
  std::string_view text;
};

// One word of an annotation: "word" or "word=value".
struct AsnAnnotation {
  AsnPos pos;  // of the word
  std::string key;
  std::string value;  // without quotes
  bool hasValue = false;
};

// The annotations that stand between two tokens.
struct AsnNote {
  int before = 0;  // the token that follows
  std::vector<AsnAnnotation> words;
};

// A file's text and its tokens, the last of which is TOK_END. The tokens
// point into `text`, so a source stays where it is.
struct AsnSource {
  int file = 0;  // its number
  std::string text;
  std::vector<Token> tokens;
  std::vector<AsnNote> notes;  // in the order of the text

  AsnSource() = default;
  AsnSource(const AsnSource &) = delete;
  AsnSource &operator=(const AsnSource &) = delete;
};

// Fills `tokens` and `notes` from `text`. What is no token is reported and
// left out.
void asnLex(AsnSource &source, AsnErrors &errors);

AsnPos tokenPos(const AsnSource &source, const Token &token);

// The token as messages show it.
std::string tokenShown(const Token &token);

// The characters of a TOK_CSTRING: doubled quotes become one, and a line end
// goes with the blanks on both of its sides.
std::string cstringText(std::string_view text);
