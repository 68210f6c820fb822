// Names: the tables of modules, imports and definitions, and what a reference
// stands for. A chain of references may have any length; a circle ends as an
// error wherever it is met.

#include "asn2stx/resolve.h"
#include "asn2stx/chain.h"
#include "asn2stx/genobject.h"
#include "asn2stx/gentype.h"
#include "asn2stx/parser.h"
#include "asn2stx/shown.h"
#include <algorithm>
#include <unordered_set>

// Searches within searches: each takes a few frames of the stack.
constexpr size_t maxWalks = 400;

Walk::Walk(Compilation &compilation, WalkKind kind, const void *what,
           const Scope *scope)
    : c(compilation)
{
  std::tuple<int, const void *, const Scope *> search = {kind, what, scope};
  isCircle = std::find(c.walks.begin(), c.walks.end(), search) != c.walks.end();
  isTooDeep = c.walks.size() >= maxWalks;
  c.walks.push_back(search);
}

void tellWalk(const Walk &walk, AsnPos pos, const std::string &shown)
{
  if (walk.isCircle)
    asnError(walk.c.errors, pos, "circular definition of %s", shown.c_str());
  // Once is enough: the next definition of the chain would tell it again.
  else if (walk.isTooDeep && !walk.c.isDepthTold)
    asnError(walk.c.errors, pos, "%s: references are nested too deeply",
             shown.c_str());
  walk.c.isDepthTold = walk.c.isDepthTold || walk.isTooDeep;
}

static bool isPredefinedClass(const std::string &name)
{
  return name == "TYPE-IDENTIFIER" || name == "ABSTRACT-SYNTAX";
}

// Modules

static void addDefinitions(Compilation &c, ModuleState &module)
{
  for (const AstAssign *assign : module.ast->assigns) {
    Definition &def = c.definitions.emplace_back();
    def.assign = assign;
    def.module = module.number;
    if (!module.definitions.emplace(assign->name, &def).second) {
      asnError(c.errors, assign->pos, "duplicate definition of %s",
               asnQuoted(assign->name).c_str());
      continue;
    }
    module.order.push_back(&def);
  }
}

// The definition of a name in a module, through what it imports.
static Definition *definitionIn(Compilation &c, int module,
                                const std::string &name)
{
  for (size_t steps = 0; steps <= c.modules.size(); ++steps) {
    ModuleState &state = moduleAt(c, module);
    auto own = state.definitions.find(name);
    if (own != state.definitions.end())
      return own->second;
    auto imported = state.imports.find(name);
    if (imported == state.imports.end() || imported->second < 0)
      return nullptr;
    module = imported->second;
  }
  return nullptr;
}

static void addImports(Compilation &c, ModuleState &module)
{
  std::unordered_set<std::string> seen;
  for (const AstImport &import : module.ast->imports) {
    auto from = c.moduleByName.find(import.module);
    if (from == c.moduleByName.end()) {
      asnError(c.errors, import.pos, "module %s is not among the files",
               asnQuoted(import.module).c_str());
      // One error is enough: its names count as known.
      for (const AstSymbol &symbol : import.symbols)
        module.imports.emplace(symbol.name, -1);
      continue;
    }
    for (const AstSymbol &symbol : import.symbols) {
      auto [entry, fresh] = module.imports.emplace(symbol.name, from->second);
      if (!fresh && entry->second != from->second)
        asnError(c.errors, symbol.pos, "%s is imported from two modules",
                 asnQuoted(symbol.name).c_str());
    }
  }
}

static void checkImports(Compilation &c, ModuleState &module)
{
  for (const AstImport &import : module.ast->imports) {
    auto from = c.moduleByName.find(import.module);
    if (from == c.moduleByName.end())
      continue;
    for (const AstSymbol &symbol : import.symbols)
      if (!isPredefinedClass(symbol.name) &&
          !definitionIn(c, from->second, symbol.name))
        asnError(c.errors, symbol.pos, "%s is not defined in module %s",
                 asnQuoted(symbol.name).c_str(),
                 asnQuoted(import.module).c_str());
  }
}

static void checkExports(Compilation &c, ModuleState &module)
{
  for (const AstSymbol &symbol : module.ast->exports) {
    auto imported = module.imports.find(symbol.name);
    bool elsewhere = imported != module.imports.end() && imported->second == -1;
    if (!elsewhere && !definitionIn(c, module.number, symbol.name))
      asnError(c.errors, symbol.pos, "%s is exported but not defined",
               asnQuoted(symbol.name).c_str());
  }
}

static void checkParams(Compilation &c, const ModuleState &module)
{
  for (const Definition *def : module.order)
    for (size_t i = 0; i < def->assign->params.size(); ++i)
      for (size_t k = 0; k < i; ++k)
        if (def->assign->params[k].name == def->assign->params[i].name)
          asnError(c.errors, def->assign->params[i].pos,
                   "duplicate parameter %s",
                   asnQuoted(def->assign->params[i].name).c_str());
}

// Kinds of definitions

// What a search has done with a definition.
enum DefState : uint8_t {
  DEF_NEW,
  DEF_KIND_RUNNING,
  DEF_KIND_DONE,
  DEF_CIRCLE_RUNNING,
  DEF_CIRCLE_DONE
};

// The definition that a reference within `def` names; null if there is none,
// with `isClass` set if it is a predefined class.
static Definition *namedBy(Compilation &c, const Definition &def,
                           const AstRef &ref, bool &isClass)
{
  isClass = ref.module.empty() && isPredefinedClass(ref.name);
  if (isClass)
    return nullptr;
  int module = def.module;
  if (ref.module.empty()) {
    for (const AstParam &param : def.assign->params)
      if (param.name == ref.name)
        return nullptr;
  } else {
    auto named = c.moduleByName.find(ref.module);
    if (named == c.moduleByName.end())
      return nullptr;
    module = named->second;
  }
  return definitionIn(c, module, ref.name);
}

// The reference that decides whether the definition has to do with a class:
// its governor, or what it is no more than a reference to; null: none.
static const AstRef *decidingRef(const AstAssign &assign)
{
  const AstType *type = assign.type;
  if (assign.kind == AA_CLASS || !type || type->kind != AT_REFERENCE)
    return nullptr;
  bool isBare = type->tags.empty() && type->constraints.empty();
  return assign.kind != AA_TYPE || isBare ? &type->ref : nullptr;
}

static DefKind kindByForm(const AstAssign &assign, bool namesClass)
{
  switch (assign.kind) {
  case AA_CLASS:
    return DK_CLASS;
  case AA_VALUE:
    return namesClass ? DK_OBJECT : DK_VALUE;
  case AA_SET:
    return namesClass ? DK_OBJECT_SET : DK_VALUE_SET;
  case AA_TYPE:
    break;
  }
  return namesClass ? DK_CLASS : DK_TYPE;
}

// Follows the references that decide, then settles the kinds on the way
// back. A circle makes no class; it is told by `checkCircles`.
static DefKind settleKind(Compilation &c, Definition &def)
{
  std::vector<Definition *> way;
  Definition *at = &def;
  bool isClass = false;
  while (at && at->state == DEF_NEW) {
    at->state = DEF_KIND_RUNNING;
    way.push_back(at);
    const AstRef *ref = decidingRef(*at->assign);
    at = ref ? namedBy(c, *at, *ref, isClass) : nullptr;
  }
  if (at)
    isClass = at->kind == DK_CLASS;
  for (; !way.empty(); way.pop_back()) {
    Definition &last = *way.back();
    last.kind = kindByForm(*last.assign, isClass);
    last.state = DEF_KIND_DONE;
    isClass = last.kind == DK_CLASS;
  }
  return def.kind;
}

// What a definition is nothing but a reference to; null: none.
static Definition *mereReference(Compilation &c, const Definition &def)
{
  const AstAssign &assign = *def.assign;
  if (assign.kind != AA_TYPE || assign.hasParams ||
      assign.type->kind != AT_REFERENCE)
    return nullptr;
  bool isClass = false;
  return namedBy(c, def, assign.type->ref, isClass);
}

// Definitions that are nothing but references to each other.
static void checkCircles(Compilation &c)
{
  for (Definition &def : c.definitions) {
    std::vector<Definition *> way;
    Definition *at = &def;
    while (at && at->state == DEF_KIND_DONE) {
      at->state = DEF_CIRCLE_RUNNING;
      way.push_back(at);
      at = mereReference(c, *at);
    }
    if (at && at->state == DEF_CIRCLE_RUNNING)
      for (auto on = std::find(way.begin(), way.end(), at); on != way.end();
           ++on)
        asnError(c.errors, (*on)->assign->pos, "circular definition of %s",
                 asnQuoted((*on)->assign->name).c_str());
    for (Definition *passed : way)
      passed->state = DEF_CIRCLE_DONE;
  }
}

void resolveModules(Compilation &c)
{
  for (ModuleState &module : c.modules)
    addDefinitions(c, module);
  for (ModuleState &module : c.modules)
    addImports(c, module);
  for (ModuleState &module : c.modules) {
    checkImports(c, module);
    checkExports(c, module);
    checkParams(c, module);
  }
  for (Definition &def : c.definitions)
    settleKind(c, def);
  checkCircles(c);
}

// Look-up

Found findName(Compilation &c, const AstRef &ref, const Scope &scope)
{
  Found found;
  int module = scope.module;
  if (!ref.module.empty()) {
    auto named = c.moduleByName.find(ref.module);
    if (named == c.moduleByName.end())
      return found;
    module = named->second;
  } else {
    for (const Binding &binding : scope.bindings)
      if (binding.param->name == ref.name) {
        found.binding = &binding;
        return found;
      }
  }
  found.def = definitionIn(c, module, ref.name);
  return found;
}

// True for a name of a module that is missing, which was told there.
static bool isMissingImport(Compilation &c, const AstRef &ref,
                            const Scope &scope)
{
  const ModuleState &module = moduleAt(c, scope.module);
  auto imported = module.imports.find(ref.name);
  return imported != module.imports.end() &&
         !module.definitions.count(ref.name);
}

Found lookUp(Compilation &c, const AstRef &ref, const Scope &scope)
{
  Found found = findName(c, ref, scope);
  if (found)
    return found;
  if (!ref.module.empty() && !c.moduleByName.count(ref.module))
    asnError(c.errors, ref.pos, "module %s is not among the files",
             asnQuoted(ref.module).c_str());
  else if (!ref.module.empty())
    asnError(c.errors, ref.pos, "%s is not defined in module %s",
             asnQuoted(ref.name).c_str(), asnQuoted(ref.module).c_str());
  else if (!isMissingImport(c, ref, scope))
    asnError(c.errors, ref.pos, "%s is not defined",
             asnQuoted(ref.name).c_str());
  return found;
}

// What an actual parameter stands for; `owner` is the scope that the
// parameter, and so its governor, belongs to.
static DefKind kindOfActual(Compilation &c, const Binding &binding,
                            const Scope &owner)
{
  // A parameter that governs itself has no kind.
  Walk walk(c, WALK_KIND, &binding, &owner);
  if (!walk.isGood())
    return DK_UNKNOWN;
  const AstActual &actual = *binding.actual;
  const AstType *governor = binding.param->governor;
  if (actual.type && actual.type->kind == AT_REFERENCE) {
    DefKind kind = kindOf(c, actual.type->ref, *binding.scope);
    if (kind != DK_UNKNOWN)
      return kind;
  }
  bool isSet = actual.set || (actual.type && governor);
  bool objects = governor && governsObjects(c, *governor, owner);
  if (isSet)
    return objects ? DK_OBJECT_SET : DK_VALUE_SET;
  if (actual.value)
    return objects ? DK_OBJECT : DK_VALUE;
  return DK_TYPE;
}

DefKind kindOf(Compilation &c, const AstRef &ref, const Scope &scope)
{
  if (ref.module.empty() && isPredefinedClass(ref.name))
    return DK_CLASS;
  // Actual parameters are of an outer scope: this ends.
  Found found = findName(c, ref, scope);
  if (found.binding)
    return kindOfActual(c, *found.binding, scope);
  return found.def ? settleKind(c, *found.def) : DK_UNKNOWN;
}

bool governsObjects(Compilation &c, const AstType &governor, const Scope &scope)
{
  return governor.kind == AT_REFERENCE &&
         kindOf(c, governor.ref, scope) == DK_CLASS;
}

// Chains of types

static void notAType(Compilation &c, const AstRef &ref)
{
  asnError(c.errors, ref.pos, "%s is not a type", asnQuoted(ref.name).c_str());
}

static TypeUse typeOfReference(Compilation &c, const AstType &type,
                               const Scope &scope)
{
  const AstRef &ref = type.ref;
  Found found = lookUp(c, ref, scope);
  if (found.binding) {
    const AstType *actual = found.binding->actual->type;
    if (!actual) {
      notAType(c, ref);
      return {};
    }
    return {actual, found.binding->scope};
  }
  if (!found.def)
    return {};
  Definition &def = *found.def;
  if (def.kind != DK_TYPE && def.kind != DK_VALUE_SET) {
    notAType(c, ref);
    return {};
  }
  const Scope *inner = moduleAt(c, def.module).scope;
  if (def.assign->hasParams || ref.hasActuals)
    inner = instantiate(c, def, ref, scope);
  return inner ? TypeUse{def.assign->type, inner} : TypeUse{};
}

static const AstComp *findAlternative(const AstType &choice,
                                      const std::string &name)
{
  for (const AstComp *comp : choice.comps) {
    if (comp->kind == AC_COMP && comp->name == name)
      return comp;
    for (const AstComp *member : comp->members)
      if (member->kind == AC_COMP && member->name == name)
        return member;
  }
  return nullptr;
}

static TypeUse typeOfSelection(Compilation &c, const AstType &type,
                               const Scope &scope)
{
  TypeUse choice = baseType(c, *type.element, scope);
  if (!choice.type)
    return {};
  if (choice.type->kind != AT_CHOICE) {
    asnError(c.errors, type.element->pos,
             "selection from %s, which is no CHOICE",
             typeShown(*type.element).c_str());
    return {};
  }
  const AstComp *found = findAlternative(*choice.type, type.elementName);
  if (!found || !found->type) {
    asnError(c.errors, type.pos, "%s has no alternative %s",
             typeShown(*type.element).c_str(),
             asnQuoted(type.elementName).c_str());
    return {};
  }
  return {found->type, choice.scope};
}

TypeUse nextType(Compilation &c, const AstType &type, const Scope &scope)
{
  Walk walk(c, WALK_TYPE, &type, &scope);
  if (!walk.isGood()) {
    tellWalk(walk, type.pos, typeShown(type));
    return {};
  }
  switch (type.kind) {
  case AT_REFERENCE:
    return typeOfReference(c, type, scope);
  case AT_SELECTION:
    return typeOfSelection(c, type, scope);
  case AT_FIELD:
    return fieldTypeOf(c, type, scope);
  default:
    return {};
  }
}

TypeUse baseType(Compilation &c, const AstType &type, const Scope &scope)
{
  TypeUse at = {&type, &scope};
  CircleGuard<TypeUse> guard;
  while (!guard.repeats(at)) {
    AstTypeKind kind = at.type->kind;
    if (kind != AT_REFERENCE && kind != AT_SELECTION && kind != AT_FIELD)
      return at;
    TypeUse next = nextType(c, *at.type, *at.scope);
    if (!next.type)
      return kind == AT_FIELD ? at : TypeUse{};
    at = next;
  }
  asnError(c.errors, type.pos, "circular definition of %s",
           typeShown(type).c_str());
  return {};
}

void skipValueParameters(Compilation &c, const AstValue *&value,
                         const Scope *&scope)
{
  // Each step leads to an outer scope.
  while (value->kind == AV_REFERENCE) {
    Found found = findName(c, value->ref, *scope);
    if (!found.binding)
      return;
    const AstActual &actual = *found.binding->actual;
    const AstValue *inner = actual.value;
    if (!inner && (actual.set || actual.type)) {
      // Braces and NULL were read as a set and a type, as they may be.
      AstTokens tokens = actual.tokens;
      inner = parseValueAt(c.ast, c.errors, tokens);
    }
    if (!inner)
      return;
    value = inner;
    scope = found.binding->scope;
  }
}

// The table of builtin types, by AstTypeKind.
static const int mainTypes[] = {
    TYP_BOOLEAN,    // AT_BOOLEAN
    TYP_INTEGER,    // AT_INTEGER
    TYP_ENUM,       // AT_ENUMERATED
    TYP_REAL,       // AT_REAL
    TYP_BITSTR,     // AT_BIT_STRING
    TYP_OCTSTR,     // AT_OCTET_STRING
    TYP_NULL,       // AT_NULL
    TYP_OBJID,      // AT_OBJECT_IDENTIFIER
    TYP_OCTSTR,     // AT_RELATIVE_OID: no code; the same octets in PER
    TYP_EXTERNAL,   // AT_EXTERNAL
    TYP_EMB_PDV,    // AT_EMBEDDED_PDV
    TYP_CHASTR,     // AT_CHARACTER_STRING
    TYP_NUMSTR,     // AT_NUMERIC_STRING
    TYP_PRISTR,     // AT_PRINTABLE_STRING
    TYP_TELSTR,     // AT_TELETEX_STRING
    TYP_TELSTR,     // AT_T61_STRING
    TYP_VIDSTR,     // AT_VIDEOTEX_STRING
    TYP_IA5STR,     // AT_IA5_STRING
    TYP_GRASTR,     // AT_GRAPHIC_STRING
    TYP_VISSTR,     // AT_VISIBLE_STRING
    TYP_VISSTR,     // AT_ISO646_STRING
    TYP_GENSTR,     // AT_GENERAL_STRING
    TYP_UNISTR,     // AT_UNIVERSAL_STRING
    TYP_BMPSTR,     // AT_BMP_STRING
    TYP_GENSTR,     // AT_UTF8_STRING: no code; the same octets in PER
    TYP_OBJDESCR,   // AT_OBJECT_DESCRIPTOR
    TYP_UTCTIME,    // AT_UTC_TIME
    TYP_GENTIME,    // AT_GENERALIZED_TIME
    TYP_SEQ,        // AT_SEQUENCE
    TYP_SET,        // AT_SET
    TYP_CHOICE,     // AT_CHOICE
    TYP_SEQOF,      // AT_SEQUENCE_OF
    TYP_SETOF,      // AT_SET_OF
    TYP_ANY,        // AT_ANY
    TYP_SELECTION,  // AT_SELECTION
    TYP_SYNONYM,    // AT_REFERENCE
    TYP_OPEN,       // AT_FIELD
    TYP_INSTANCE_OF,
};
static_assert(std::size(mainTypes) == AT_COUNT);

int mainTypeOf(const AstType &type)
{
  return mainTypes[type.kind];
}

// Import entries

int32_t moduleNumber(Compilation &c, int into, int module)
{
  if (into == module)
    return 1;
  ModuleState &state = moduleAt(c, into);
  auto found = state.numbers.find(module);
  if (found != state.numbers.end())
    return found->second;
  const ModuleState &other = moduleAt(c, module);
  int32_t number = stxImport(state.tree, other.ast->name, other.prefix, false);
  state.numbers.emplace(module, number);
  state.byNumber.resize(static_cast<size_t>(number) + 1, -1);
  state.byNumber[static_cast<size_t>(number)] = module;
  return number;
}

int32_t predefinedModule(Compilation &c, int into)
{
  ModuleState &state = moduleAt(c, into);
  if (state.predefined == 0)
    state.predefined = stxImport(state.tree, "ISO8824", "", true);
  return state.predefined;
}
