#pragma once
#include "asn2stx/ast.h"
#include "asn2stx/diagnose.h"
#include "asn2stx/options.h"
#include "stx/stxwrite.h"
#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

// From modules as they are written to syntax trees.
//
// The steps, each over all modules of the run: names are put into tables and
// their kinds settled (resolve.h); every definition gets its record, so that
// references may run in any direction; the records are filled (gentype.h,
// genvalue.h, genconstraint.h, genobject.h); then what hangs on several
// records is worked out (summary.h, endpoints.h), representations are chosen
// (represent.h) and annotations applied (annotate.h), the header is counted.
//
// Modules are numbered by their place in `Ast::modules`. "Into" is the module
// whose tree gets the records; a scope says where names are looked up. They
// differ within an instance of a definition that stands in another module.

struct Compilation;

// What a name stands for.
enum DefKind : uint8_t {
  DK_UNKNOWN,  // it cannot be told, and that was reported
  DK_TYPE,
  DK_CLASS,
  DK_VALUE,
  DK_OBJECT,
  DK_VALUE_SET,
  DK_OBJECT_SET
};

struct Definition {
  const AstAssign *assign = nullptr;
  int module = 0;
  DefKind kind = DK_UNKNOWN;
  uint8_t state = 0;  // of the searches for `kind` and for circles
  int32_t node = 0;   // its TNode, or VNode of a value or object; 0: none
};

struct Scope;

// A parameter and what stands for it.
struct Binding {
  const AstParam *param = nullptr;
  const AstActual *actual = nullptr;
  const Scope *scope = nullptr;  // in which the actual is read
  int meaning = 0;               // equal for actuals that mean the same
};

// Where names are looked up: the parameters of an assignment, then its module.
struct Scope {
  int module = 0;
  std::vector<Binding> bindings;
  int depth = 0;  // instantiations around this one
};

// A type as it is written, with its scope. Null: none.
struct TypeUse {
  const AstType *type = nullptr;
  const Scope *scope = nullptr;

  bool operator==(const TypeUse &) const = default;
};

// A node of a module's tree.
struct NodeAt {
  int module = 0;
  int32_t node = 0;  // 0: none

  bool operator==(const NodeAt &) const = default;
};

// Notes on a node, applied when all content is known.
struct NodeNotes {
  int32_t node = 0;
  const AstNotes *notes = nullptr;
};

struct ModuleState {
  const AstModule *ast = nullptr;
  int number = 0;
  std::string prefix;  // of its files
  StxTree tree;
  const Scope *scope = nullptr;  // without parameters
  std::unordered_map<std::string, Definition *> definitions;
  std::unordered_map<std::string, int> imports;  // name to module
  std::vector<Definition *> order;               // as they stand in the text
  std::unordered_map<int, int32_t> numbers;      // module to import entry
  std::vector<int> byNumber;  // import entry, from 2, to module; -1: none
  int32_t predefined = 0;     // entry of ISO8824
  std::vector<NodeNotes> typeNotes;
  std::vector<NodeNotes> valueNotes;

  std::vector<int32_t> notIgnorable;  // by annotation

  // Definitions that the text does not have: recursive instances.
  std::vector<int32_t> madeTypes;
  std::set<std::string> madeNames;

  // Hidden nodes that one record serves: builtin types by main type, and
  // references to types elsewhere.
  std::unordered_map<int, int32_t> builtins;
  std::map<std::pair<int, int32_t>, int32_t> references;
};

// A type and one that stands around it: the type that a parameter or a
// parameterised definition is replaced by lies inside of the reference.
typedef std::vector<TypeUse> TypeLayers;  // outermost first

// Work that needs the components and items of other definitions, and so waits
// until all types have their nodes.
struct LateConstraints {
  int into = 0;
  TypeLayers layers;
  const AstConstraint *set = nullptr;  // of a value set, which comes first
  const Scope *setScope = nullptr;
  const AstType *governor = nullptr;  // of the set
  TypeUse inPlace;  // the governor, if it is written out on the node
  int32_t node = 0;
};

struct LateValue {
  int into = 0;
  TypeUse governor;
  int32_t governorNode = 0;
  const AstValue *value = nullptr;
  const Scope *scope = nullptr;
  int32_t owner = 0;  // TNode with the default, or
  int32_t node = 0;   // VNode to fill
  Definition *def = nullptr;
};

struct LateSelection {
  int into = 0;
  int32_t node = 0;
  NodeAt choice;
  std::string name;
  std::string shown;  // the CHOICE
  AsnPos pos;
};

struct NamedPlace {
  AsnPos pos;
  std::string shown;  // in quotes
};

// An instance that is being made, and the nodes in it that refer back to it.
struct OpenInstance {
  int into = 0;
  const Scope *scope = nullptr;
  std::vector<int32_t> references;
};

struct Compilation {
  Ast &ast;
  AsnErrors &errors;
  const Asn2StxOptions &options;
  std::deque<ModuleState> modules;
  std::unordered_map<std::string, int> moduleByName;
  std::deque<Definition> definitions;
  std::deque<Scope> scopes;
  const AstType *integer = nullptr;  // governs sizes

  // Each use of a parameterised definition has a scope, one for all uses
  // that mean the same.
  std::map<std::pair<const AstRef *, const Scope *>, const Scope *> instances;
  std::map<std::pair<const Definition *, std::vector<int>>, Scope *>
      instancesByMeaning;
  std::unordered_map<std::string, int> meanings;
  std::vector<OpenInstance> openInstances;

  // Definitions made for recursive instances, and classes that are instances,
  // by tree and scope.
  std::map<std::pair<int, const Scope *>, int32_t> recursiveInstances;
  std::map<std::pair<int, const Scope *>, int32_t> classInstances;
  int instantiations = 0;
  bool exhausted = false;  // a limit was met and reported
  int objectDepth = 0;     // of objects and sets within each other
  int typeDepth = 0;       // of types within types
  int nesting = 0;         // of instances that are being made

  // Searches that are under way, see `Walk`: kind, what, scope.
  std::vector<std::tuple<int, const void *, const Scope *>> walks;
  bool isDepthTold = false;  // that there are too many of them

  // What is left to do; the lists grow while they are worked off.
  std::deque<LateConstraints> lateConstraints;
  std::deque<LateValue> lateValues;
  std::deque<LateSelection> lateSelections;

  // INTEGER nodes with an end that is written as a number and that the bounds
  // of a node have no place for.
  std::set<std::pair<int, int32_t>> wideNodes;

  // Where types of constraints and COMPONENTS OF are named, for errors that
  // come up on the nodes.
  std::map<std::pair<int, int32_t>, NamedPlace> places;

  // References from the definition of a value to others.
  const Definition *currentValue = nullptr;
  std::vector<std::pair<const Definition *, const Definition *>> valueEdges;

  Compilation(Ast &a, AsnErrors &e, const Asn2StxOptions &o)
      : ast(a), errors(e), options(o)
  {
  }
};

// One tree that is ready to be written.
struct CompiledTree {
  std::string moduleName;
  std::string prefix;
  StxTree tree;
};

inline ModuleState &moduleAt(Compilation &c, int module)
{
  return c.modules[static_cast<size_t>(module)];
}

inline StxTree &treeOf(Compilation &c, int module)
{
  return moduleAt(c, module).tree;
}

// Compiles all modules of `ast`; false, with errors told, if there is no tree.
bool compileModules(Ast &ast, const Asn2StxOptions &options, AsnErrors &errors,
                    std::vector<CompiledTree> &trees);

// Writes each tree as DIRECTORY PREFIX ".stx"; on a failure no tree of the run
// is left behind, and the reason is an error without a place.
bool writeTrees(const std::vector<CompiledTree> &trees,
                const std::string &directory, AsnErrors &errors);
