// Modules and assignments, and going on after a fault. An assignment that
// cannot be read is given up and the next one looked for: its "::=" first,
// then its name ahead of that.

#include "asn2stx/parser.h"
#include "asn2stx/parsestate.h"
#include "stx/stxread.h"
#include <cerrno>
#include <climits>
#include <cstring>

// Going on after a fault. Tokens are counted from the beginning of the source.

static const Token &tokenNo(const Parser &parser, int i)
{
  return parser.source.tokens[static_cast<size_t>(i)];
}

static void resume(Parser &parser, int at)
{
  parser.failed = false;
  parser.depth = 0;
  parser.at = at;
}

static bool isName(const Token &token)
{
  return token.kind == TOK_LOWER || isTypeName(token);
}

// The opener of the bracket that ends at `i`; `low` if there is none behind
// it.
static int openerOf(const Parser &parser, int i, int low)
{
  int opener = i;
  while (opener > low && tokenNo(parser, opener).partner != i)
    opener--;
  return opener;
}

// The name of the assignment whose "::=" is at `assign`; nothing at or ahead
// of `low` belongs to it, and -1 is given if nothing is left. The forms are
// "Name", "Name {..}" and "name Governor", where a governor may be of several
// words.
static int nameOfAssign(const Parser &parser, int assign, int low)
{
  int i = assign - 1;
  if (i > low && isSign(tokenNo(parser, i), '}'))
    i = openerOf(parser, i, low) - 1;
  if (i <= low)
    return -1;
  int line = tokenNo(parser, i).line;
  // The governor's last word has been reached, or the name itself. Walk over
  // what else of the governor stands ahead on its line.
  int name = i;
  while (name - 1 > low && tokenNo(parser, name - 1).line == line) {
    const Token &before = tokenNo(parser, name - 1);
    if (before.kind != TOK_UPPER && before.kind != TOK_LOWER &&
        !isSign(before, '.'))
      break;
    name--;
    if (before.kind == TOK_LOWER)
      break;
  }
  return isName(tokenNo(parser, name)) ? name : i;
}

// Moves to the next assignment or the module's END, at or behind the fault.
// `low` is the "::=" of what failed.
static void skipToAssign(Parser &parser, int low)
{
  int i = parser.failedAt > low ? parser.failedAt : low + 1;
  for (; i < parser.end; i++) {
    if (isWord(tokenNo(parser, i), KW_END))
      break;
    if (tokenNo(parser, i).kind == TOK_ASSIGN && i != parser.resumedAt) {
      parser.resumedAt = i;
      int name = nameOfAssign(parser, i, low);
      if (name < 0)
        continue;
      i = name;
      break;
    }
  }
  resume(parser, i);
}

// Assignments.

static void parseParams(Parser &parser, AstAssign &assign)
{
  expectSign(parser, '{');
  assign.hasParams = true;
  do {
    AstParam param;
    const Token &next = peek(parser, 1);
    if (!isName(peek(parser)) || !(isSign(next, ',') || isSign(next, '}'))) {
      param.governor = parseType(parser);
      expectSign(parser, ':');
    }
    param.pos = posHere(parser);
    param.name = peek(parser).text;
    if (!isName(peek(parser)))
      failExpected(parser, "a parameter");
    advance(parser);
    assign.params.push_back(std::move(param));
  } while (acceptSign(parser, ','));
  expectSign(parser, '}');
}

// Moves behind the END of a macro, which is told as a fault.
static void skipMacro(Parser &parser)
{
  failAt(parser, posHere(parser), "macro %s is not supported",
         tokenShown(peek(parser)).c_str());
  int i = parser.at;
  while (i < parser.end && !isWord(tokenNo(parser, i), KW_END))
    i++;
  resume(parser, i < parser.end ? i + 1 : i);
}

// The right side, behind "::=".
static void parseDefinition(Parser &parser, AstAssign &assign, bool isCapital)
{
  if (assign.type && !isCapital) {
    assign.kind = AA_VALUE;
    assign.value = parseValue(parser);
  } else if (assign.type) {
    assign.kind = AA_SET;
    assign.set = parseSet(parser);
  } else if (atWord(parser, KW_CLASS)) {
    assign.kind = AA_CLASS;
    assign.objectClass = parseClass(parser);
  } else if (isTypeName(peek(parser)) && peek(parser, 1).kind == TOK_ASSIGN) {
    // The type is missing, and this is the next assignment.
    failExpected(parser, "a type");
  } else {
    assign.type = parseType(parser);
  }
}

// Reads one assignment, or skips it.
static void parseAssign(Parser &parser, AstModule &module)
{
  if (isName(peek(parser)) && isWord(peek(parser, 1), KW_MACRO)) {
    skipMacro(parser);
    return;
  }
  AstAssign &assign = parser.ast.assignNodes.emplace_back();
  setOwner(parser, &assign.notes);
  int low = parser.at;
  assign.pos = posHere(parser);
  bool isCapital = atKind(parser, TOK_UPPER);
  if (!isName(peek(parser)))
    failExpected(parser, "an assignment or \"END\"");
  assign.name = peek(parser).text;
  advance(parser);
  if (atSign(parser, '{'))
    parseParams(parser, assign);
  // A broken "::=" is no governor.
  if (atSign(parser, ':') || atSign(parser, '='))
    failExpected(parser, "\"::=\"");
  if (!isCapital || !atKind(parser, TOK_ASSIGN))
    assign.type = parseType(parser);
  if (atKind(parser, TOK_ASSIGN))
    low = parser.at;
  expectKind(parser, TOK_ASSIGN, "\"::=\"");
  parseDefinition(parser, assign, isCapital);
  if (parser.failed)
    skipToAssign(parser, low);
  else
    module.assigns.push_back(&assign);
}

// EXPORTS and IMPORTS.

static AstSymbol parseSymbol(Parser &parser)
{
  AstSymbol symbol;
  symbol.pos = posHere(parser);
  symbol.name = peek(parser).text;
  if (!isName(peek(parser)))
    failExpected(parser, "a symbol");
  advance(parser);
  if (acceptSign(parser, '{')) {
    symbol.hasBraces = true;
    expectSign(parser, '}');
  }
  return symbol;
}

static void parseExports(Parser &parser, AstModule &module)
{
  if (acceptWord(parser, KW_ALL)) {
    module.exportKind = EXPORTS_ALL;
  } else {
    module.exportKind = EXPORTS_LIST;
    if (!atSign(parser, ';'))
      do
        module.exports.push_back(parseSymbol(parser));
      while (acceptSign(parser, ','));
  }
  expectSign(parser, ';');
}

static AstImport parseImport(Parser &parser)
{
  AstImport import;
  do
    import.symbols.push_back(parseSymbol(parser));
  while (acceptSign(parser, ','));
  expectWord(parser, KW_FROM, "FROM");
  import.pos = posHere(parser);
  import.module = peek(parser).text;
  if (!isTypeName(peek(parser)))
    failExpected(parser, "the name of a module");
  advance(parser);
  // A name is the module's identifier, unless it is the next symbol.
  const Token &next = peek(parser, 1);
  bool isSymbol = isSign(next, ',') || isWord(next, KW_FROM) ||
                  (isSign(next, '{') && isSign(peek(parser, 2), '}'));
  if (atSign(parser, '{') || (atKind(parser, TOK_LOWER) && !isSymbol))
    import.identifier = parseValue(parser);
  return import;
}

static void parseImports(Parser &parser, AstModule &module)
{
  while (!parser.failed && !atSign(parser, ';'))
    module.imports.push_back(parseImport(parser));
  expectSign(parser, ';');
}

// After a fault in a list of symbols: behind its ";", or at IMPORTS or the
// first assignment if there is none ahead of that.
static void skipSymbols(Parser &parser)
{
  int i = parser.failedAt;
  while (i < parser.end && tokenNo(parser, i).kind != TOK_ASSIGN &&
         !isSign(tokenNo(parser, i), ';') &&
         !isWord(tokenNo(parser, i), KW_IMPORTS) &&
         !isWord(tokenNo(parser, i), KW_END))
    i++;
  if (i < parser.end && isSign(tokenNo(parser, i), ';'))
    resume(parser, i + 1);
  else if (i < parser.end && isWord(tokenNo(parser, i), KW_IMPORTS))
    resume(parser, i);
  else
    skipToAssign(parser, parser.failedAt - 1);
}

// Modules.

// False if there is no body to go on with.
static bool parseModuleHeader(Parser &parser, AstModule &module)
{
  module.pos = posHere(parser);
  module.name = peek(parser).text;
  if (!isTypeName(peek(parser)))
    failExpected(parser, "the name of a module");
  advance(parser);
  if (atSign(parser, '{'))
    module.identifier = parseValue(parser);
  acceptKind(parser, TOK_CSTRING);  // the identifier as an IRI
  expectWord(parser, KW_DEFINITIONS, "DEFINITIONS");
  if (acceptWord(parser, KW_EXPLICIT))
    module.tagDefault = TAGS_EXPLICIT;
  else if (acceptWord(parser, KW_IMPLICIT))
    module.tagDefault = TAGS_IMPLICIT;
  else if (acceptWord(parser, KW_AUTOMATIC))
    module.tagDefault = TAGS_AUTOMATIC;
  if (module.tagDefault != TAGS_NONE)
    expectWord(parser, KW_TAGS, "TAGS");
  if (acceptWord(parser, KW_EXTENSIBILITY)) {
    expectWord(parser, KW_IMPLIED, "IMPLIED");
    module.extensibilityImplied = true;
  }
  expectKind(parser, TOK_ASSIGN, "\"::=\"");
  expectWord(parser, KW_BEGIN, "BEGIN");
  if (!parser.failed)
    return true;
  int i = parser.failedAt;
  while (i < parser.end && !isWord(tokenNo(parser, i), KW_BEGIN))
    i++;
  resume(parser, i < parser.end ? i + 1 : i);
  return i < parser.end;
}

static void parseModule(Parser &parser)
{
  AstModule &module = parser.ast.moduleNodes.emplace_back();
  parser.ast.modules.push_back(&module);
  setOwner(parser, &module.notes);
  if (!parseModuleHeader(parser, module))
    return;
  if (acceptWord(parser, KW_EXPORTS))
    parseExports(parser, module);
  if (parser.failed)
    skipSymbols(parser);
  if (acceptWord(parser, KW_IMPORTS))
    parseImports(parser, module);
  if (parser.failed)
    skipSymbols(parser);
  while (!atKind(parser, TOK_END) && !atWord(parser, KW_END))
    parseAssign(parser, module);
  module.endPos = posHere(parser);
  setOwner(parser, &module.notes);
  expectWord(parser, KW_END, "END");
}

static void parseModules(Parser &parser)
{
  const std::vector<AsnNote> &notes = parser.source.notes;
  if (!notes.empty() && notes.front().before <= parser.at)
    asnError(parser.errors, notes.front().words.front().pos,
             "annotation %s ahead of the module",
             asnQuoted(notes.front().words.front().key).c_str());
  if (atKind(parser, TOK_END))
    failExpected(parser, "a module");
  while (!parser.failed && !atKind(parser, TOK_END))
    parseModule(parser);
}

void parseAsnText(Ast &ast, AsnErrors &errors, const std::string &name,
                  std::string text)
{
  AsnSource &source = ast.sources.emplace_back();
  source.file = static_cast<int>(ast.sources.size()) - 1;
  errors.files.resize(ast.sources.size());
  errors.files.back() = name;
  if (text.size() > INT_MAX / 2) {
    asnError(errors, {source.file, 0, 0}, "the file is too large");
    return;
  }
  source.text = std::move(text);
  asnLex(source, errors);
  Parser parser{ast, errors, source};
  parser.end = static_cast<int>(source.tokens.size()) - 1;
  parseModules(parser);
}

void parseAsnFile(Ast &ast, AsnErrors &errors, const std::string &name)
{
  std::string text;
  errno = 0;
  bool isRead = stxReadOctets(text, name.c_str());
  int reason = errno;
  if (isRead) {
    parseAsnText(ast, errors, name, std::move(text));
    return;
  }
  AsnSource &source = ast.sources.emplace_back();
  source.file = static_cast<int>(ast.sources.size()) - 1;
  source.tokens.push_back({});
  errors.files.resize(ast.sources.size());
  errors.files.back() = name;
  asnError(errors, {source.file, 0, 0}, "the file cannot be read: %s",
           strerror(reason));
}

// Reading parts.

static Parser parserOf(Ast &ast, AsnErrors &errors, const AstTokens &tokens)
{
  Parser parser{ast, errors, ast.sources[static_cast<size_t>(tokens.file)]};
  parser.at = tokens.first;
  parser.end = tokens.end;
  return parser;
}

AstType *parseTypeAt(Ast &ast, AsnErrors &errors, AstTokens &tokens)
{
  Parser parser = parserOf(ast, errors, tokens);
  AstType *type = parseType(parser);
  tokens.first = parser.at;
  return parser.failed ? nullptr : type;
}

AstValue *parseValueAt(Ast &ast, AsnErrors &errors, AstTokens &tokens)
{
  Parser parser = parserOf(ast, errors, tokens);
  AstValue *value = parseValue(parser);
  tokens.first = parser.at;
  return parser.failed ? nullptr : value;
}

AstConstraint *parseSetAt(Ast &ast, AsnErrors &errors, AstTokens &tokens)
{
  Parser parser = parserOf(ast, errors, tokens);
  AstConstraint *set = parseSet(parser);
  tokens.first = parser.at;
  return parser.failed ? nullptr : set;
}

const Token &tokenAt(const Ast &ast, const AstTokens &tokens)
{
  const AsnSource &source = ast.sources[static_cast<size_t>(tokens.file)];
  return tokens.first < tokens.end
             ? source.tokens[static_cast<size_t>(tokens.first)]
             : source.tokens.back();
}

AsnPos tokenPosAt(const Ast &ast, const AstTokens &tokens)
{
  const AsnSource &source = ast.sources[static_cast<size_t>(tokens.file)];
  return tokenPos(source, source.tokens[static_cast<size_t>(tokens.first)]);
}
