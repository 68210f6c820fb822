// The steps of a compilation in their order, and the files.

#include "asn2stx/compile.h"
#include "asn2stx/annotate.h"
#include "asn2stx/endpoints.h"
#include "asn2stx/genconstraint.h"
#include "asn2stx/genobject.h"
#include "asn2stx/gentype.h"
#include "asn2stx/genvalue.h"
#include "asn2stx/represent.h"
#include "asn2stx/resolve.h"
#include "asn2stx/summary.h"
#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <set>

// Prefixes

static std::string loweredName(const std::string &name)
{
  std::string text = name;
  for (char &c : text)
    c = c == '_' ? '-'
                 : static_cast<char>(tolower(static_cast<unsigned char>(c)));
  return text;
}

// What an option or a note gives a module; empty if there is nothing.
static std::string givenPrefix(const Compilation &c, const AstModule &module)
{
  for (const auto &[name, prefix] : c.options.prefixes)
    if (name == module.name)
      return prefix;
  const AsnAnnotation *note = prefixNote(module.notes);
  return note ? note->value : "";
}

static bool isGoodPrefix(const std::string &prefix)
{
  return !prefix.empty() &&
         std::all_of(prefix.begin(), prefix.end(), [](char c) {
           return isalnum(static_cast<unsigned char>(c)) || c == '-' ||
                  c == '_';
         });
}

// A number behind the prefix that another module has; the length is kept.
static std::string freePrefix(const std::string &prefix, size_t length,
                              const std::set<std::string> &used)
{
  std::string free = prefix;
  for (int number = 2; used.count(free); ++number) {
    std::string tail = std::to_string(number);
    size_t kept = length > tail.size() ? length - tail.size() : 1;
    free = prefix.substr(0, kept) + tail;
  }
  return free;
}

static void choosePrefixes(Compilation &c)
{
  std::set<std::string> used;
  for (ModuleState &module : c.modules) {
    module.prefix = givenPrefix(c, *module.ast);
    if (module.prefix.empty())
      continue;
    if (!isGoodPrefix(module.prefix))
      asnError(c.errors, module.ast->pos, "%s is no prefix",
               asnQuoted(module.prefix).c_str());
    else if (!used.insert(module.prefix).second)
      asnError(c.errors, module.ast->pos, "prefix %s is given twice",
               asnQuoted(module.prefix).c_str());
  }
  for (ModuleState &module : c.modules) {
    if (!module.prefix.empty())
      continue;
    size_t length = std::max<size_t>(1, c.options.prefixLength);
    std::string prefix = loweredName(module.ast->name).substr(0, length);
    // A cut may fall behind a hyphen, where no name ends.
    while (prefix.ends_with('-'))
      prefix.pop_back();
    module.prefix = freePrefix(prefix, length, used);
    used.insert(module.prefix);
  }
}

// Headers

static void setSource(Compilation &c, ModuleState &module)
{
  size_t file = static_cast<size_t>(module.ast->pos.file);
  std::string path = file < c.errors.files.size() ? c.errors.files[file] : "";
  size_t slash = path.rfind('/');
  std::string directory =
      slash == std::string::npos ? "./" : path.substr(0, slash + 1);
  stxSetSource(module.tree, directory,
               slash == std::string::npos ? path : path.substr(slash + 1));
}

static void beginTree(Compilation &c, ModuleState &module)
{
  module.tree = stxNewTree(module.ast->name, module.prefix);
  // Without the names of the source that a new tree has.
  module.tree.stris = {};
  module.tree.header.moduleName =
      stxStri(module.tree, stxName(module.ast->name));
  module.tree.header.filePrefix = stxStri(module.tree, module.prefix);
  module.tree.prefixLength = c.options.prefixLength;
  stxSetTime(module.tree, c.options.date, c.options.time);
  setSource(c, module);
  AstTagDefault tags = module.ast->tagDefault;
  MNode &header = module.tree.header;
  header.tagDefaultAndUse = tags == TAGS_NONE || tags == TAGS_EXPLICIT ? 1 : 0;
  header.automaticTags = tags == TAGS_AUTOMATIC ? 1 : 0;
  for (const std::string &line : c.options.saved)
    stxGlobalOption(module.tree,
                    backEndLine(line) ? TED_BACK_END : TED_FRONT_END, line);
}

// The import entries that the text names come first, in its order.
static void addImportEntries(Compilation &c, ModuleState &module)
{
  constexpr uint8_t usesDeclarations = 0x10;
  for (const AstImport &import : module.ast->imports) {
    auto found = c.moduleByName.find(import.module);
    if (found == c.moduleByName.end())
      continue;
    int32_t number = moduleNumber(c, module.number, found->second);
    if (number > 1 && !import.symbols.empty())
      module.tree.imports[static_cast<size_t>(number) - 2].tagDefaultAndUse |=
          usesDeclarations;
  }
}

static void makeModules(Compilation &c)
{
  for (const AstModule *ast : c.ast.modules) {
    int number = static_cast<int>(c.modules.size());
    if (!c.moduleByName.emplace(ast->name, number).second) {
      asnError(c.errors, ast->pos, "duplicate module %s",
               asnQuoted(ast->name).c_str());
      continue;
    }
    ModuleState &module = c.modules.emplace_back();
    module.ast = ast;
    module.number = number;
    Scope &scope = c.scopes.emplace_back();
    scope.module = number;
    module.scope = &scope;
  }
  choosePrefixes(c);
  for (ModuleState &module : c.modules)
    beginTree(c, module);
  for (ModuleState &module : c.modules)
    addImportEntries(c, module);
}

// Definitions

static void placeType(ModuleState &module, Definition &def)
{
  TNode node = stxNewTNode(def.kind == DK_CLASS ? TYP_CLASS : TYP_SYNONYM);
  node.line = def.assign->pos.line;
  if (def.kind == DK_VALUE_SET || def.kind == DK_OBJECT_SET)
    node.classFlags |= CF_SET;
  def.node = stxDefineType(module.tree, def.assign->name, node);
  if (!def.assign->notes.empty())
    module.typeNotes.push_back({def.node, &def.assign->notes});
}

static void placeValue(ModuleState &module, Definition &def)
{
  VNode node = stxNewVNode(def.kind == DK_OBJECT ? TYP_CLASS : TYP_NONE, 0);
  node.line = def.assign->pos.line;
  def.node = stxDefineValue(module.tree, def.assign->name, node);
  if (!def.assign->notes.empty())
    module.valueNotes.push_back({def.node, &def.assign->notes});
}

// Gives every definition its record. A parameterised one has none: each of
// its uses has a copy.
static void placeDefinitions(ModuleState &module)
{
  for (Definition *def : module.order) {
    if (def->assign->hasParams)
      continue;
    if (def->kind == DK_VALUE || def->kind == DK_OBJECT)
      placeValue(module, *def);
    else if (def->kind != DK_UNKNOWN)
      placeType(module, *def);
  }
}

static void genClassDefinition(Compilation &c, ModuleState &module,
                               const Definition &def)
{
  const AstAssign &assign = *def.assign;
  if (assign.objectClass)
    return genClassInto(c, module.number, *module.scope, *assign.objectClass,
                        def.node);
  TNode &node = stxTypeAt(module.tree, def.node);
  ClassUse found;
  if (!assign.type || !resolveClass(c, assign.type->ref, *module.scope, found))
    return;
  if (found.builtin)
    node.mainType = static_cast<uint8_t>(found.builtin);
  else if (found.node.node != 0)
    makeSynonym(c, module.number, def.node, found.node);
  else {
    // An instance, which other uses of the same may refer to.
    c.classInstances.insert({{module.number, found.scope}, def.node});
    genClassInto(c, module.number, *found.scope, *found.objectClass, def.node);
  }
}

static void genTypeDefinition(Compilation &c, ModuleState &module,
                              const Definition &def)
{
  const AstAssign &assign = *def.assign;
  if (def.kind == DK_VALUE_SET && assign.type && assign.set)
    genValueSetInto(c, module.number, *module.scope, *assign.type, *assign.set,
                    def.node);
  else if (assign.type)
    genTypeInto(c, module.number, *module.scope, *assign.type, def.node);
}

static void genObjectDefinition(Compilation &c, ModuleState &module,
                                const Definition &def)
{
  const AstAssign &assign = *def.assign;
  if (def.kind == DK_OBJECT && assign.type && assign.value)
    genObjectInto(c, module.number, *module.scope, *assign.type, *assign.value,
                  def.node);
  else if (assign.type && assign.set)
    genObjectSetInto(c, module.number, *module.scope, *assign.type, *assign.set,
                     def.node);
}

static void genValueDefinition(Compilation &c, ModuleState &module,
                               Definition &def)
{
  const AstAssign &assign = *def.assign;
  if (!assign.type || !assign.value)
    return;
  LateValue late;
  late.into = module.number;
  late.governor = {assign.type, module.scope};
  late.governorNode =
      governorNode(c, module.number, *module.scope, *assign.type);
  late.value = assign.value;
  late.scope = module.scope;
  late.node = def.node;
  late.def = &def;
  c.lateValues.push_back(late);
}

// True if the governor names a class: the value is an object, then.
static bool isObject(Compilation &c, const LateValue &late)
{
  const AstType *governor = late.governor.type;
  return governor && governor->kind == AT_REFERENCE &&
         late.value->kind == AV_BRACES &&
         kindOf(c, governor->ref, *late.governor.scope) == DK_CLASS;
}

// The default of an object field, written in place.
static void genDefaultObject(Compilation &c, const LateValue &late)
{
  VNode node = stxNewVNode(TYP_CLASS, late.governorNode);
  node.line = late.value->pos.line;
  StxTree &tree = treeOf(c, late.into);
  int32_t object = stxValue(tree, node);
  stxTypeAt(tree, late.owner).defaultValue = object;
  genObjectInto(c, late.into, *late.scope, *late.governor.type, *late.value,
                object);
}

static void genLateValue(Compilation &c, const LateValue &late)
{
  NodeAt at = {late.into, late.governorNode};
  c.currentValue = late.def;
  if (late.node == 0 && isObject(c, late)) {
    genDefaultObject(c, late);
  } else if (late.node != 0) {
    genValueInto(c, late.into, *late.scope, *late.value, late.governor, at,
                 late.node);
  } else {
    int32_t value =
        genValue(c, late.into, *late.scope, *late.value, late.governor, at);
    stxTypeAt(treeOf(c, late.into), late.owner).defaultValue = value;
  }
  c.currentValue = nullptr;
}

// Constraints and values make hidden types, which have constraints and
// default values in turn.
static void genLate(Compilation &c)
{
  while (!c.lateConstraints.empty() || !c.lateValues.empty()) {
    finishSelections(c);
    genLateConstraints(c);
    while (!c.lateValues.empty()) {
      LateValue late = c.lateValues.front();
      c.lateValues.pop_front();
      finishSelections(c);
      genLateValue(c, late);
    }
  }
  finishSelections(c);
}

// Circles that lead through alternatives or parameters, where names alone do
// not show them.
static void checkTypeCircles(Compilation &c)
{
  for (ModuleState &module : c.modules)
    for (const Definition *def : module.order)
      if (def->kind == DK_TYPE && def->node != 0 &&
          refersToItself(c, {module.number, def->node}))
        asnError(c.errors, def->assign->pos, "circular definition of %s",
                 asnQuoted(def->assign->name).c_str());
}

static void genAll(Compilation &c)
{
  for (ModuleState &module : c.modules)
    placeDefinitions(module);
  auto forEach = [&](auto wanted, auto generate) {
    for (ModuleState &module : c.modules)
      for (Definition *def : module.order)
        if (def->node != 0 && wanted(def->kind))
          generate(c, module, *def);
  };
  // Types refer to fields of classes, objects to types.
  forEach([](DefKind kind) { return kind == DK_CLASS; }, genClassDefinition);
  forEach([](DefKind kind) { return kind == DK_TYPE || kind == DK_VALUE_SET; },
          genTypeDefinition);
  finishSelections(c);
  forEach(
      [](DefKind kind) { return kind == DK_OBJECT || kind == DK_OBJECT_SET; },
      genObjectDefinition);
  forEach([](DefKind kind) { return kind == DK_VALUE; }, genValueDefinition);
  genLate(c);
  checkValueCircles(c);
  if (c.errors.errors.empty())
    checkTypeCircles(c);
}

// Notes and representations

static void annotate(Compilation &c, ModuleState &module)
{
  auto byNode = [](const NodeNotes &a, const NodeNotes &b) {
    return a.node < b.node;
  };
  std::stable_sort(module.typeNotes.begin(), module.typeNotes.end(), byNode);
  std::stable_sort(module.valueNotes.begin(), module.valueNotes.end(), byNode);
  annotateModule(c, module.number, module.ast->notes);
  for (const NodeNotes &notes : module.typeNotes)
    annotateType(c, module.number, notes.node, *notes.notes);
  for (const NodeNotes &notes : module.valueNotes)
    annotateValue(c, module.number, notes.node, *notes.notes);
}

static void finishTrees(Compilation &c)
{
  spreadWideNodes(c);
  for (ModuleState &module : c.modules)
    for (size_t i = 0; i < module.tree.tNodes.size(); ++i)
      representType(c, module.number, static_cast<int32_t>(i) + 1);
  for (ModuleState &module : c.modules)
    annotate(c, module);
  finishHeaders(c);
}

bool compileModules(Ast &ast, const Asn2StxOptions &options, AsnErrors &errors,
                    std::vector<CompiledTree> &trees)
{
  Compilation c(ast, errors, options);
  c.integer = newAstType(ast, AT_INTEGER, {});
  makeModules(c);
  resolveModules(c);
  genAll(c);
  if (!c.exhausted) {
    summarizeTypes(c);
    setEndpoints(c);
  }
  if (errors.errors.empty())
    finishTrees(c);
  if (!errors.errors.empty())
    return false;
  for (ModuleState &module : c.modules)
    trees.push_back({module.ast->name, module.prefix, std::move(module.tree)});
  return true;
}

// Files

bool writeTrees(const std::vector<CompiledTree> &trees,
                const std::string &directory, AsnErrors &errors)
{
  std::vector<std::string> written;
  for (const CompiledTree &tree : trees) {
    std::string path = directory + tree.prefix + ".stx";
    if (stxWrite(tree.tree, path.c_str())) {
      written.push_back(path);
      continue;
    }
    AsnPos none;
    asnError(errors, none, "cannot write %s: %s", path.c_str(),
             strerror(errno));
    for (const std::string &other : written)
      remove(other.c_str());
    return false;
  }
  return true;
}
