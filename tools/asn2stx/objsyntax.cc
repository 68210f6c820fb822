// Objects in defined syntax: the words and fields of a class's syntax against
// the tokens of an object. The next token decides at each optional group, so
// that nothing is tried twice.

#include "asn2stx/objsyntax.h"
#include "asn2stx/parser.h"
#include <unordered_set>

// What comes behind the parts that are matched, innermost first.
struct SyntaxRest {
  const std::vector<AstSyntax> *parts = nullptr;
  size_t at = 0;
  const SyntaxRest *outer = nullptr;
};

// One object that is matched.
struct SyntaxRun {
  Ast &ast;
  AsnErrors &errors;
  const AstClass &objectClass;
  AstTokens tokens;
  std::vector<AstSetting> settings;
};

static bool isCapitalName(const std::string &name)
{
  return !name.empty() && name[0] >= 'A' && name[0] <= 'Z';
}

std::string fieldShown(const std::string &name)
{
  return asnQuoted("&" + name);
}

const AstField *fieldNamed(const AstClass &objectClass, const std::string &name)
{
  for (const AstField *field : objectClass.fields)
    if (field->name == name)
      return field;
  return nullptr;
}

// Tokens

// The next token of the object.
static const Token &tokenHere(const SyntaxRun &run)
{
  return tokenAt(run.ast, run.tokens);
}

static bool isAtEnd(const SyntaxRun &run)
{
  return run.tokens.first >= run.tokens.end;
}

// "expected WHAT, found TOKEN"; behind the object's last token stands its
// closing brace.
static bool failMatch(SyntaxRun &run, const std::string &what)
{
  const AsnSource &source =
      run.ast.sources[static_cast<size_t>(run.tokens.file)];
  const Token &found = source.tokens[static_cast<size_t>(run.tokens.first)];
  asnError(run.errors, tokenPos(source, found), "expected %s, found %s",
           what.c_str(), tokenShown(found).c_str());
  return false;
}

static bool isLiteral(const Token &token, const std::string &word)
{
  bool isWord =
      token.kind == TOK_UPPER || (token.kind == TOK_SIGN && token.sign == ',');
  return isWord && token.text == word;
}

// What may come

// True if a setting of this field may begin with the token.
static bool maySet(const AstClass &objectClass, const std::string &name,
                   const Token &token)
{
  if (token.kind == TOK_UPPER)
    return true;
  if (token.kind == TOK_SIGN)
    return token.sign == '{' || (token.sign == '-' && !isCapitalName(name)) ||
           (token.sign == '[' && isCapitalName(name));
  if (!isCapitalName(name))
    return token.kind != TOK_FIELD && token.kind != TOK_END &&
           token.kind != TOK_ASSIGN && token.kind != TOK_RANGE &&
           token.kind != TOK_DOTS;
  // "a < Choice" and "object.&Type" are types too.
  const AstField *field = fieldNamed(objectClass, name);
  return token.kind == TOK_LOWER && field && !field->governor;
}

// True if the word may come at the beginning of the parts from `at`.
static bool mayBeWord(const std::vector<AstSyntax> &parts, size_t at,
                      const Token &token)
{
  for (; at < parts.size(); ++at) {
    const AstSyntax &part = parts[at];
    if (part.kind == AS_LITERAL)
      return isLiteral(token, part.text);
    if (part.kind == AS_FIELD)
      return false;
    if (mayBeWord(part.parts, 0, token))
      return true;
  }
  return false;
}

static bool isWordOfRest(const SyntaxRest &rest, const Token &token)
{
  for (const SyntaxRest *at = &rest; at; at = at->outer)
    if (mayBeWord(*at->parts, at->at, token))
      return true;
  return false;
}

// True if the optional group is there. A word that belongs to what comes
// behind it does not begin a setting: X.681 (2002) 10.12.
static bool isGroupThere(const SyntaxRun &run, const AstSyntax &group,
                         const SyntaxRest &rest)
{
  if (isAtEnd(run))
    return false;
  const Token &token = tokenHere(run);
  for (const AstSyntax &part : group.parts) {
    if (part.kind == AS_LITERAL)
      return isLiteral(token, part.text);
    if (part.kind == AS_FIELD)
      return !isWordOfRest(rest, token) &&
             maySet(run.objectClass, part.text, token);
    if (isGroupThere(run, part, rest))
      return true;
  }
  return false;
}

// Matching

static bool matchField(SyntaxRun &run, const AstSyntax &part)
{
  const AstField *field = fieldNamed(run.objectClass, part.text);
  if (!field) {
    asnError(run.errors, part.pos, "the class has no field %s",
             fieldShown(part.text).c_str());
    return false;
  }
  if (isAtEnd(run))
    return failMatch(run, "a setting of " + fieldShown(part.text));
  AstSetting setting;
  setting.pos = tokenPosAt(run.ast, run.tokens);
  setting.field = part.text;
  const Token &token = tokenHere(run);
  bool atBrace = token.kind == TOK_SIGN && token.sign == '{';
  if (!isCapitalName(part.text))
    setting.value = parseValueAt(run.ast, run.errors, run.tokens);
  else if (field->governor && atBrace)
    setting.set = parseSetAt(run.ast, run.errors, run.tokens);
  else
    setting.type = parseTypeAt(run.ast, run.errors, run.tokens);
  bool isRead = setting.value || setting.set || setting.type;
  run.settings.push_back(std::move(setting));
  return isRead;
}

static bool matchParts(SyntaxRun &run, const std::vector<AstSyntax> &parts,
                       const SyntaxRest *outer)
{
  for (size_t i = 0; i < parts.size(); ++i) {
    const AstSyntax &part = parts[i];
    SyntaxRest rest = {&parts, i + 1, outer};
    bool good = true;
    switch (part.kind) {
    case AS_LITERAL:
      if (isAtEnd(run) || !isLiteral(tokenHere(run), part.text))
        return failMatch(run, asnQuoted(part.text));
      ++run.tokens.first;
      break;
    case AS_FIELD:
      good = matchField(run, part);
      break;
    case AS_GROUP:
      if (isGroupThere(run, part, rest))
        good = matchParts(run, part.parts, &rest);
      break;
    }
    if (!good)
      return false;
  }
  return true;
}

const std::vector<AstSetting> *objectSettings(Ast &ast, AsnErrors &errors,
                                              const AstClass &objectClass,
                                              AstBraces &braces)
{
  if (braces.matchedClass == &objectClass)
    return &braces.matched;
  SyntaxRun run = {ast, errors, objectClass, braces.tokens, {}};
  if (!objectClass.hasSyntax) {
    if (!braces.settings.empty() || braces.isEmpty)
      return &braces.settings;
    failMatch(run, "a field");
    return nullptr;
  }
  if (!matchParts(run, objectClass.syntax, nullptr))
    return nullptr;
  if (!isAtEnd(run)) {
    failMatch(run, "\"}\"");
    return nullptr;
  }
  braces.matchedClass = &objectClass;
  braces.matched = std::move(run.settings);
  return &braces.matched;
}

// The syntax itself

static void checkParts(AsnErrors &errors, const AstClass &objectClass,
                       const std::vector<AstSyntax> &parts,
                       std::unordered_set<std::string> &seen)
{
  for (const AstSyntax &part : parts) {
    if (part.kind == AS_GROUP)
      checkParts(errors, objectClass, part.parts, seen);
    if (part.kind != AS_FIELD)
      continue;
    if (!fieldNamed(objectClass, part.text))
      asnError(errors, part.pos, "the class has no field %s",
               fieldShown(part.text).c_str());
    else if (!seen.insert(part.text).second)
      asnError(errors, part.pos, "field %s stands twice in the syntax",
               fieldShown(part.text).c_str());
  }
}

void checkSyntax(AsnErrors &errors, const AstClass &objectClass)
{
  if (!objectClass.hasSyntax)
    return;
  std::unordered_set<std::string> seen;
  checkParts(errors, objectClass, objectClass.syntax, seen);
  for (const AstField *field : objectClass.fields)
    if (field->presence == PRES_NONE && !seen.count(field->name))
      asnError(errors, field->pos, "field %s is missing in the syntax",
               fieldShown(field->name).c_str());
}
