// Names: the tables of modules, imports and definitions, and what a reference
// stands for. Chains of references are walked with a limit, so that a circle
// ends as an error wherever it is met.

#include "asn2stx/resolve.h"
#include "asn2stx/genobject.h"
#include "asn2stx/gentype.h"
#include "asn2stx/parser.h"
#include <algorithm>
#include <unordered_set>

// References that one name may run through, and searches within searches.
constexpr int maxChain = 1000;
constexpr int maxWalkDepth = 100;

// Counts one search within another while it lives.
struct WalkDepth {
  Compilation &c;
  explicit WalkDepth(Compilation &compilation) : c(compilation)
  {
    ++c.walkDepth;
  }
  ~WalkDepth() { --c.walkDepth; }
  WalkDepth(const WalkDepth &) = delete;
};

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
  for (int steps = 0; steps <= maxWalkDepth; ++steps) {
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

static DefKind settleKind(Compilation &c, Definition &def);

static DefKind kindOfReference(Compilation &c, const Definition &def,
                               const AstRef &ref)
{
  if (ref.module.empty()) {
    if (isPredefinedClass(ref.name))
      return DK_CLASS;
    for (const AstParam &param : def.assign->params)
      if (param.name == ref.name)
        return DK_TYPE;
  }
  int module = def.module;
  if (!ref.module.empty()) {
    auto named = c.moduleByName.find(ref.module);
    if (named == c.moduleByName.end())
      return DK_UNKNOWN;
    module = named->second;
  }
  Definition *target = definitionIn(c, module, ref.name);
  return target ? settleKind(c, *target) : DK_UNKNOWN;
}

static bool governorIsClass(Compilation &c, const Definition &def)
{
  const AstType *governor = def.assign->type;
  return governor && governor->kind == AT_REFERENCE &&
         kindOfReference(c, def, governor->ref) == DK_CLASS;
}

static DefKind kindByForm(Compilation &c, const Definition &def)
{
  const AstType *type = def.assign->type;
  switch (def.assign->kind) {
  case AA_CLASS:
    return DK_CLASS;
  case AA_VALUE:
    return governorIsClass(c, def) ? DK_OBJECT : DK_VALUE;
  case AA_SET:
    return governorIsClass(c, def) ? DK_OBJECT_SET : DK_VALUE_SET;
  case AA_TYPE:
    break;
  }
  if (type->kind != AT_REFERENCE || !type->tags.empty() ||
      !type->constraints.empty())
    return DK_TYPE;
  return kindOfReference(c, def, type->ref) == DK_CLASS ? DK_CLASS : DK_TYPE;
}

static DefKind settleKind(Compilation &c, Definition &def)
{
  enum { NEW, RUNNING, DONE };
  if (def.state == DONE)
    return def.kind;
  // A circle, told when the chain of the type is walked.
  if (def.state == RUNNING || c.walkDepth > maxChain)
    return DK_TYPE;
  def.state = RUNNING;
  WalkDepth depth(c);
  def.kind = kindByForm(c, def);
  def.state = DONE;
  return def.kind;
}

// Definitions that are nothing but references to each other.
static void checkCircles(Compilation &c)
{
  for (const Definition &def : c.definitions) {
    const AstAssign &assign = *def.assign;
    if (assign.kind != AA_TYPE || assign.hasParams)
      continue;
    const Definition *at = &def;
    int steps = 0;
    while (at && at->assign->kind == AA_TYPE && !at->assign->hasParams &&
           at->assign->type->kind == AT_REFERENCE && steps < maxChain) {
      const AstRef &ref = at->assign->type->ref;
      int module = at->module;
      if (!ref.module.empty()) {
        auto named = c.moduleByName.find(ref.module);
        if (named == c.moduleByName.end())
          break;
        module = named->second;
      }
      at = definitionIn(c, module, ref.name);
      if (at == &def)
        steps = maxChain;
      ++steps;
    }
    if (steps > maxChain)
      asnError(c.errors, assign.pos, "circular definition of %s",
               asnQuoted(assign.name).c_str());
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

// What an actual parameter stands for.
static DefKind kindOfActual(Compilation &c, const Binding &binding)
{
  const AstActual &actual = *binding.actual;
  const AstType *governor = binding.param->governor;
  if (actual.type && actual.type->kind == AT_REFERENCE) {
    DefKind kind = kindOf(c, actual.type->ref, *binding.scope);
    if (kind != DK_UNKNOWN)
      return kind;
  }
  bool isSet = actual.set || (actual.type && governor);
  bool objects = governor && governor->kind == AT_REFERENCE &&
                 findName(c, governor->ref, *binding.scope).def &&
                 kindOf(c, governor->ref, *binding.scope) == DK_CLASS;
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
  if (c.walkDepth > maxWalkDepth)
    return DK_UNKNOWN;
  WalkDepth depth(c);
  Found found = findName(c, ref, scope);
  if (found.binding)
    return kindOfActual(c, *found.binding);
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
             "selection from a type that is no "
             "CHOICE");
    return {};
  }
  const AstComp *found = findAlternative(*choice.type, type.elementName);
  if (!found || !found->type) {
    asnError(c.errors, type.pos, "the CHOICE has no alternative %s",
             asnQuoted(type.elementName).c_str());
    return {};
  }
  return {found->type, choice.scope};
}

TypeUse nextType(Compilation &c, const AstType &type, const Scope &scope)
{
  if (c.walkDepth > maxWalkDepth) {
    asnError(c.errors, type.pos, "circular definition");
    return {};
  }
  WalkDepth depth(c);
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
  for (int steps = 0; steps < maxChain; ++steps) {
    AstTypeKind kind = at.type->kind;
    if (kind != AT_REFERENCE && kind != AT_SELECTION && kind != AT_FIELD)
      return at;
    TypeUse next = nextType(c, *at.type, *at.scope);
    if (!next.type)
      return kind == AT_FIELD ? at : TypeUse{};
    at = next;
  }
  asnError(c.errors, type.pos, "circular definition%s%s",
           type.ref.name.empty() ? "" : " of ",
           type.ref.name.empty() ? "" : asnQuoted(type.ref.name).c_str());
  return {};
}

void skipValueParameters(Compilation &c, const AstValue *&value,
                         const Scope *&scope)
{
  for (int steps = 0; steps < maxChain; ++steps) {
    if (value->kind != AV_REFERENCE)
      return;
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
