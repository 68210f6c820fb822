#pragma once
#include "asn2stx/lexer.h"
#include <deque>
#include <string>
#include <string_view>
#include <vector>

// ASN.1 modules as they are written: nothing is looked up, and what depends
// on a definition elsewhere stays open.
//
// The nodes lie in the lists of an `Ast` and never move; pointers between
// them do not own, null means none. `pos` is the first character of what the
// node was read from. Nesting is bounded by `maxAstDepth`.
//
// What stays open:
//
// - An assignment `Name ::= OTHER` is AA_TYPE; if OTHER is a class, the name
//   is one as well. TYPE-IDENTIFIER and ABSTRACT-SYNTAX are references of
//   these names.
// - `name Governor ::= ...` is AA_VALUE, be it a value or an object;
//   `Name Governor ::= {...}` is AA_SET, be it of values or of objects. A
//   governor that names a class is a type of kind AT_REFERENCE.
// - A name that begins with a small letter, where a value may stand, is
//   AV_REFERENCE: value, object, parameter, enumeration item, named number.
// - `{...}` as a value is AV_BRACES; see AstBraces.
// - A name that begins with a capital in a constraint or a set is AE_TYPE:
//   type, value set, object set or parameter.
// - `({...})` is AE_TABLE if what stands in the braces can only be a set, and
//   AE_VALUE with AV_BRACES otherwise: `({object})` is an AE_VALUE.
//
// Annotations. A comment `--$ word[=value] ...` is a note to the tree writer;
// it ends as any "--" comment does. A value in quotes, word="a b", may hold
// blanks. It belongs to the item that began last before it: module,
// assignment, component, alternative, addition group, enumeration item,
// named number, named bit or class field; behind the "}" of a list of items,
// to the item that the list stands in. Thus a component's note stands behind
// it, ahead of the next one, ahead or behind of the comma. Words of several
// notes are put together. The element of a list has no name, and its notes
// stand right behind "OF":
//
//   List ::= SEQUENCE OF --$ field=short --
//              INTEGER (0..9)  --$ field=list      (this one is List's)

constexpr int maxAstDepth = 200;

struct AstActual;
struct AstClass;
struct AstComp;
struct AstConstraint;
struct AstElem;
struct AstType;
struct AstValue;

typedef std::vector<AsnAnnotation> AstNotes;

// Tokens of a source, from `first` up to but not including `end`.
struct AstTokens {
  int file = 0;
  int first = 0;
  int end = 0;
};

// A name, maybe with a module ahead of it and parameters behind it.
struct AstRef {
  AsnPos pos;
  std::string module;  // empty: none named
  std::string name;
  bool hasActuals = false;
  std::vector<AstActual *> actuals;
};

// An actual parameter. Exactly one of `type`, `value` and `set` is there.
struct AstActual {
  AsnPos pos;
  AstType *governor = nullptr;  // of "Governor : actual"

  // A type, or a name that begins with a capital: type, class, value set,
  // object set, parameter of these kinds. NULL is taken for the type.
  AstType *type = nullptr;

  // A value, or a name that begins with a small letter: value or object; also
  // braces that cannot be read as a set.
  AstValue *value = nullptr;

  // Braces. `{5}`, `{name}` and `{}` may mean a value as well, for which
  // parseValueAt reads `tokens`.
  AstConstraint *set = nullptr;

  AstTokens tokens;  // of the actual, without a governor
};

enum AstTypeKind : uint8_t {
  AT_BOOLEAN,
  AT_INTEGER,
  AT_ENUMERATED,
  AT_REAL,
  AT_BIT_STRING,
  AT_OCTET_STRING,
  AT_NULL,
  AT_OBJECT_IDENTIFIER,
  AT_RELATIVE_OID,
  AT_EXTERNAL,
  AT_EMBEDDED_PDV,
  AT_CHARACTER_STRING,
  AT_NUMERIC_STRING,
  AT_PRINTABLE_STRING,
  AT_TELETEX_STRING,
  AT_T61_STRING,
  AT_VIDEOTEX_STRING,
  AT_IA5_STRING,
  AT_GRAPHIC_STRING,
  AT_VISIBLE_STRING,
  AT_ISO646_STRING,
  AT_GENERAL_STRING,
  AT_UNIVERSAL_STRING,
  AT_BMP_STRING,
  AT_UTF8_STRING,
  AT_OBJECT_DESCRIPTOR,
  AT_UTC_TIME,
  AT_GENERALIZED_TIME,
  AT_SEQUENCE,     // `comps`
  AT_SET,          // `comps`
  AT_CHOICE,       // `comps`
  AT_SEQUENCE_OF,  // `element`, `elementName`
  AT_SET_OF,       // the same
  AT_ANY,          // `elementName`: the component of DEFINED BY, or empty
  AT_SELECTION,    // `elementName` < `element`
  AT_REFERENCE,    // `ref`
  AT_FIELD,        // `ref` . `fields`: field of a class, an object or an object
                   // set; `ref.name` is empty for a bare &field of a class
  AT_INSTANCE_OF,  // `ref`, a class
  AT_COUNT
};

enum AstTagClass : uint8_t {
  TAG_CONTEXT,
  TAG_UNIVERSAL,
  TAG_APPLICATION,
  TAG_PRIVATE
};

// What is written: MODE_NONE follows the module.
enum AstTagMode : uint8_t { MODE_NONE, MODE_IMPLICIT, MODE_EXPLICIT };

struct AstTag {
  AsnPos pos;
  AstTagClass tagClass = TAG_CONTEXT;
  AstTagMode mode = MODE_NONE;
  AstValue *number = nullptr;  // AV_INTEGER or AV_REFERENCE
};

// Item of an enumeration, named number or named bit.
struct AstNamed {
  AsnPos pos;
  std::string name;
  bool isMarker = false;      // "..." among enumeration items
  AstValue *value = nullptr;  // AV_INTEGER, AV_REFERENCE, or null: not written
  AstNotes notes;
};

// "! 5", "! name", "! Type : value".
struct AstException {
  AsnPos pos;
  bool present = false;
  AstType *type = nullptr;  // null: INTEGER
  AstValue *value = nullptr;
};

struct AstType {
  AsnPos pos;
  int id = 0;  // its number in `Ast::types`, for tables beside the tree
  AstTypeKind kind = AT_NULL;
  std::vector<AstTag> tags;  // outermost first

  // Serial application, in the order of the text. For a list those ahead of
  // "OF"; what stands behind the element's type is the element's. "SIZE (..)"
  // without parentheses around it is as with them.
  std::vector<AstConstraint *> constraints;

  AstRef ref;
  std::vector<std::string> fields;  // without "&"
  std::vector<AsnPos> fieldPos;
  AstType *element = nullptr;
  std::string elementName;        // empty: none
  bool hasBraces = false;         // of INTEGER and BIT STRING: "{...}" is there
  std::vector<AstNamed *> named;  // INTEGER, BIT STRING, ENUMERATED
  AstException exception;         // behind the marker of ENUMERATED
  std::vector<AstComp *> comps;
  AstNotes notes;  // of an element of a list; else they are at the owner
};

enum AstCompKind : uint8_t {
  AC_COMP,           // component or alternative
  AC_COMPONENTS_OF,  // `type`
  AC_MARKER,         // "..." with `exception`
  AC_GROUP           // "[[ ]]": `members`, `version`
};

enum AstPresence : uint8_t {
  PRES_NONE,      // nothing is written
  PRES_OPTIONAL,  // OPTIONAL
  PRES_DEFAULT,   // DEFAULT, of components and fields
  PRES_PRESENT,   // PRESENT, of WITH COMPONENTS
  PRES_ABSENT     // ABSENT, the same
};

struct AstComp {
  AsnPos pos;
  AstCompKind kind = AC_COMP;
  std::string name;  // empty: none is written, as X.208 allows
  AstType *type = nullptr;
  AstPresence presence = PRES_NONE;
  AstValue *defaultValue = nullptr;
  AstException exception;
  int64_t version = -1;            // of a group; -1: not written
  std::vector<AstComp *> members;  // of a group: AC_COMP, AC_COMPONENTS_OF
  AstNotes notes;
};

enum AstElemKind : uint8_t {
  AE_VALUE,            // `value`: single value; object of a set
  AE_RANGE,            // `lower`, `upper`
  AE_SIZE,             // `inner`
  AE_FROM,             // `inner`
  AE_TYPE,             // `type`: contained subtype, value set, object set
  AE_UNION,            // `operands`, two or more
  AE_INTERSECTION,     // `operands`, two or more
  AE_EXCEPT,           // operands[0] EXCEPT operands[1]
  AE_ALL_EXCEPT,       // ALL EXCEPT operands[0]
  AE_WITH_COMPONENT,   // `inner`
  AE_WITH_COMPONENTS,  // `items`, `isPartial`
  AE_CONTAINING,       // `type`, `value` behind ENCODED BY or null
  AE_ENCODED_BY,       // `value`
  AE_CONSTRAINED_BY,   // `tokens` between the braces
  AE_PATTERN,          // `value`
  AE_SETTINGS,         // `value`, a character string
  AE_TABLE,            // `set`, and `paths` of a component relation
  AE_COUNT
};

// "name (constraint) PRESENCE" of WITH COMPONENTS.
struct AstInner {
  AsnPos pos;
  std::string name;
  AstConstraint *constraint = nullptr;
  AstPresence presence = PRES_NONE;
};

// "@a.b" (level 0), "@.a" (level 1), "@..a" (level 2).
struct AstAtPath {
  AsnPos pos;
  int level = 0;
  std::vector<std::string> names;
};

struct AstElem {
  AsnPos pos;
  AstElemKind kind = AE_VALUE;
  AstType *type = nullptr;
  AstValue *value = nullptr;
  AstValue *lower = nullptr;  // null: MIN
  AstValue *upper = nullptr;  // null: MAX
  bool isLowerOpen = false;   // "<" behind the lower end
  bool isUpperOpen = false;   // "<" ahead of the upper end
  bool hasIncludes = false;   // AE_TYPE with the keyword
  AstConstraint *inner = nullptr;
  bool isPartial = false;  // "..." leads the items
  std::vector<AstInner> items;
  std::vector<AstElem *> operands;
  AstTokens tokens;
  AstConstraint *set = nullptr;
  std::vector<AstAtPath> paths;
};

// One constraint, in its parentheses; or a set, in its braces.
struct AstConstraint {
  AsnPos pos;               // of what opens it
  AstElem *root = nullptr;  // null: of a set "{...}" or "{}"
  bool isExtensible = false;
  AstElem *additions = nullptr;  // behind the marker
  AstException exception;
};

enum AstValueKind : uint8_t {
  AV_NULL,
  AV_BOOLEAN,  // `isTrue`
  AV_INTEGER,  // `text`: digits, "-" ahead if negative
  AV_REAL,     // the same with a point or an exponent
  AV_PLUS_INFINITY,
  AV_MINUS_INFINITY,
  AV_NOT_A_NUMBER,
  AV_BSTRING,     // `text`: digits, white space gone
  AV_HSTRING,     // the same
  AV_CSTRING,     // `text`: the characters, in the octets of the file
  AV_REFERENCE,   // `ref`
  AV_FIELD,       // `ref` . `fields`: field of an object
  AV_CHOICE,      // `name` : `value`
  AV_TYPED,       // `type` : `value`, of an open type
  AV_CONTAINING,  // CONTAINING `value`
  AV_BRACES,      // `braces`
  AV_COUNT
};

// One of the values in braces.
struct AstItem {
  AsnPos pos;
  std::string name;  // empty: none
  AstValue *value = nullptr;
};

// An arc of an object identifier: "5", "name", "name(5)", "name(other)",
// "Module.name".
struct AstArc {
  AsnPos pos;
  AstRef ref;                 // ref.name is empty if only a number is written
  AstValue *value = nullptr;  // AV_INTEGER, AV_REFERENCE; null if only a name
};

// "&field setting" of an object. The setting of a field whose name begins
// with a small letter is `value`; of others it is `set` if it stands in
// braces, else `type`.
struct AstSetting {
  AsnPos pos;
  std::string field;  // without "&"
  AstType *type = nullptr;
  AstValue *value = nullptr;
  AstConstraint *set = nullptr;
};

// What `{...}` may mean. Each reading that the text allows is there, and the
// governor picks one:
//
// - `isEmpty`: `{}`, which has no items, arcs, settings or tokens.
// - `items`: values with commas between them, all named (SEQUENCE, SET; REAL
//   with mantissa, base and exponent) or not (SEQUENCE OF, SET OF, named bits,
//   tuple, quadruple), or a mixture. An item `name {...}` may also be a
//   reference with parameters, which parseValueAt reads from `tokens`.
// - `arcs`: an object identifier. `{a 5}` and `{a}` have `items` too.
// - `settings`: an object in default syntax, `{&id 5, &Type INTEGER}`.
// - None of them: only an object in defined syntax is possible.
//
// An object in defined syntax may look like any of them. `tokens` are always
// there, what stands between the braces; the functions parse...At of parser.h
// read from them when the class is known.
struct AstBraces {
  bool isEmpty = false;
  std::vector<AstItem> items;
  std::vector<AstArc> arcs;
  std::vector<AstSetting> settings;
  AstTokens tokens;

  // What `tokens` are in the defined syntax of a class, once that is known.
  const AstClass *matchedClass = nullptr;
  std::vector<AstSetting> matched;
};

struct AstValue {
  AsnPos pos;
  int id = 0;  // its number in `Ast::values`
  AstValueKind kind = AV_NULL;
  bool isTrue = false;
  std::string text;
  AstRef ref;
  std::vector<std::string> fields;  // without "&"
  std::vector<AsnPos> fieldPos;
  std::string name;
  AstType *type = nullptr;
  AstValue *value = nullptr;
  AstBraces *braces = nullptr;
};

// A field of a class, by the first letter of its name and its governor:
//
// - &Name                  type
// - &name Type             value; object if the governor is a class
// - &name &Other           value whose type is in the field &Other
// - &Name Type             value set; object set if the governor is a class
// - &Name &Other           value set whose type is in the field &Other
//
// A governor &Other is of kind AT_FIELD without a name.
struct AstField {
  AsnPos pos;
  std::string name;  // without "&"
  AstType *governor = nullptr;
  bool isUnique = false;
  AstPresence presence = PRES_NONE;
  AstType *defaultType = nullptr;       // &Name; or &Name Type, when the
                                        // default is a name
  AstValue *defaultValue = nullptr;     // &name
  AstConstraint *defaultSet = nullptr;  // &Name Type, in braces
  AstNotes notes;
};

enum AstSyntaxKind : uint8_t {
  AS_LITERAL,  // a word or ","
  AS_FIELD,    // &name
  AS_GROUP     // [ `parts` ], optional
};

struct AstSyntax {
  AsnPos pos;
  AstSyntaxKind kind = AS_LITERAL;
  std::string text;  // the word; the field without "&"
  std::vector<AstSyntax> parts;
};

struct AstClass {
  AsnPos pos;
  std::vector<AstField *> fields;
  bool hasSyntax = false;
  std::vector<AstSyntax> syntax;
};

// A formal parameter. Without a governor it is a type or a class.
struct AstParam {
  AsnPos pos;
  std::string name;
  AstType *governor = nullptr;
};

enum AstAssignKind : uint8_t {
  AA_TYPE,   // Name ::= `type`
  AA_CLASS,  // NAME ::= CLASS {...}: `objectClass`
  AA_VALUE,  // name `type` ::= `value`
  AA_SET     // Name `type` ::= `set`
};

struct AstAssign {
  AsnPos pos;  // of the name
  AstAssignKind kind = AA_TYPE;
  std::string name;
  bool hasParams = false;
  std::vector<AstParam> params;
  AstType *type = nullptr;  // the type, or the governor
  AstClass *objectClass = nullptr;
  AstValue *value = nullptr;
  AstConstraint *set = nullptr;
  AstNotes notes;
};

struct AstSymbol {
  AsnPos pos;
  std::string name;
  bool hasBraces = false;  // "{}" behind it
};

// "symbols FROM module".
struct AstImport {
  AsnPos pos;  // of the module's name
  std::string module;
  AstValue *identifier = nullptr;  // AV_BRACES or AV_REFERENCE
  std::vector<AstSymbol> symbols;
};

enum AstTagDefault : uint8_t {
  TAGS_NONE,  // not written, which means EXPLICIT
  TAGS_EXPLICIT,
  TAGS_IMPLICIT,
  TAGS_AUTOMATIC
};

enum AstExports : uint8_t {
  EXPORTS_ABSENT,  // which exports everything
  EXPORTS_ALL,
  EXPORTS_LIST
};

struct AstModule {
  AsnPos pos;  // of the name
  std::string name;
  AstValue *identifier = nullptr;  // AV_BRACES
  AstTagDefault tagDefault = TAGS_NONE;
  bool extensibilityImplied = false;
  AstExports exportKind = EXPORTS_ABSENT;
  std::vector<AstSymbol> exports;
  std::vector<AstImport> imports;
  std::vector<AstAssign *> assigns;  // in the order of the text
  AsnPos endPos;                     // of END
  AstNotes notes;
};

// All that one run reads.
struct Ast {
  std::deque<AsnSource> sources;     // by file number
  std::vector<AstModule *> modules;  // in the order of the files

  std::deque<AstModule> moduleNodes;
  std::deque<AstAssign> assignNodes;
  std::deque<AstType> types;
  std::deque<AstValue> values;
  std::deque<AstBraces> braces;
  std::deque<AstComp> comps;
  std::deque<AstNamed> named;
  std::deque<AstConstraint> constraints;
  std::deque<AstElem> elems;
  std::deque<AstActual> actuals;
  std::deque<AstClass> classes;
  std::deque<AstField> fields;

  Ast() = default;
  Ast(const Ast &) = delete;
  Ast &operator=(const Ast &) = delete;
};

// New nodes, which later steps may make as well.
AstType *newAstType(Ast &ast, AstTypeKind kind, AsnPos pos);
AstValue *newAstValue(Ast &ast, AstValueKind kind, AsnPos pos);
