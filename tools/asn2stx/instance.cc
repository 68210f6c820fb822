// Scopes of parameterized definitions. Two uses whose actual parameters mean
// the same share one scope, so that a definition which refers to itself with
// its own parameters comes back to the scope that it began with. Meaning is
// told by the text, with each parameter in it replaced by what it stands for.

#include "asn2stx/gentype.h"
#include "asn2stx/resolve.h"
#include <algorithm>

// Instances within instances, and instances of one run.
constexpr int maxInstanceDepth = 64;
constexpr int maxInstances = 100000;

bool isWithinLimits(Compilation &c, const AstRef &ref, const Scope &scope)
{
  if (c.exhausted)
    return false;
  bool good = scope.depth < maxInstanceDepth && c.instantiations < maxInstances;
  if (!good) {
    asnError(c.errors, ref.pos,
             "%s: parameterized definitions are nested too deeply",
             asnQuoted(ref.name).c_str());
    // What follows would be the same once more for each of the levels.
    c.exhausted = true;
  }
  return good;
}

// The parameter that a token names; null: none.
static const Binding *parameterAt(const Token &token, const Scope &scope)
{
  if (token.kind != TOK_UPPER && token.kind != TOK_LOWER)
    return nullptr;
  for (const Binding &binding : scope.bindings)
    if (binding.param->name == token.text)
      return &binding;
  return nullptr;
}

// A number for what an actual parameter means: equal numbers mean the same.
static int meaningOf(Compilation &c, const AstActual &actual,
                     const Scope &scope)
{
  const AstTokens &part = actual.tokens;
  const std::vector<Token> &tokens =
      c.ast.sources[static_cast<size_t>(part.file)].tokens;
  auto tokenNo = [&](int i) -> const Token & {
    return tokens[static_cast<size_t>(i)];
  };
  if (part.end - part.first == 1)
    if (const Binding *same = parameterAt(tokenNo(part.first), scope))
      return same->meaning;
  std::string text = std::to_string(scope.module);
  for (int i = part.first; i < part.end; ++i) {
    const Token &token = tokenNo(i);
    const Binding *binding = parameterAt(token, scope);
    // With kind and length: strings hold blanks, names of fields no "&".
    if (binding)
      text += " #" + std::to_string(binding->meaning);
    else
      text += " " + std::to_string(token.kind) + ":" +
              std::to_string(token.text.size()) + ":" + std::string(token.text);
  }
  int fresh = static_cast<int>(c.meanings.size()) + 1;
  return c.meanings.emplace(text, fresh).first->second;
}

static Scope &newInstance(Compilation &c, const Definition &def,
                          const AstRef &ref, const Scope &scope,
                          const std::vector<int> &meanings)
{
  const std::vector<AstParam> &params = def.assign->params;
  Scope &inner = c.scopes.emplace_back();
  inner.module = def.module;
  inner.depth = scope.depth + 1;
  for (size_t i = 0; i < params.size(); ++i)
    inner.bindings.push_back({&params[i], ref.actuals[i], &scope, meanings[i]});
  return inner;
}

const Scope *instantiate(Compilation &c, const Definition &def,
                         const AstRef &ref, const Scope &scope)
{
  auto made = c.instances.find({&ref, &scope});
  if (made != c.instances.end())
    return made->second;
  const std::vector<AstParam> &params = def.assign->params;
  if (params.size() != ref.actuals.size() ||
      def.assign->hasParams != ref.hasActuals) {
    asnError(c.errors, ref.pos, "%s needs %zu parameters, not %zu",
             asnQuoted(ref.name).c_str(), params.size(), ref.actuals.size());
    return nullptr;
  }
  std::vector<int> meanings;
  for (const AstActual *actual : ref.actuals)
    meanings.push_back(meaningOf(c, *actual, scope));
  Scope *&inner = c.instancesByMeaning[{&def, meanings}];
  if (inner) {
    inner->depth = std::min(inner->depth, scope.depth + 1);
  } else {
    if (!isWithinLimits(c, ref, scope))
      return nullptr;
    inner = &newInstance(c, def, ref, scope, meanings);
  }
  return c.instances[{&ref, &scope}] = inner;
}
