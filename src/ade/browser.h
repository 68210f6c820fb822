#pragma once
#include <cstdint>
#include <memory>

// The tree of what a run generated, for the browser of an IDE: project,
// modules, types, functions. It is built in memory while the side files are
// active and written as one text file at the end.

struct AdeBrowserIndex;
struct AsnModule;
struct AsnObjClass;
struct AsnObject;
struct AsnObjectSet;
struct AsnType;
struct AsnValue;
struct SymbolTable;

// From a free-list cache. Texts are indexes in `adeBrowserSymbolTable`, 0 for
// none.
struct AdeBrowserNode {
  uint32_t level = 0;  // of the root; a child's is one more
  int32_t name = 0;
  int32_t directory = 0;
  int32_t file = 0;
  int32_t kind = 0;  // the caller's word for it, as "ASN.1 module"
  int32_t extra1 = 0;
  int32_t extra2 = 0;
  int32_t line = 0;
  AdeBrowserNode *firstChild = nullptr;
  AdeBrowserNode *lastChild = nullptr;
  AdeBrowserNode *next = nullptr;          // sibling
  AdeBrowserNode *previous = nullptr;      // sibling
  std::unique_ptr<AdeBrowserIndex> index;  // of the children, null: none yet

  AdeBrowserNode();
  ~AdeBrowserNode();
};

typedef void AdeBrowserCallBack(AdeBrowserNode &node);

// Texts of all nodes; made with the first node, gone with the tree.
extern SymbolTable *adeBrowserSymbolTable;

// The tree of this run and, in it, the module and the type being generated;
// all null while the side files are not active.
extern AdeBrowserNode *g_adeBrowserTree;
extern AdeBrowserNode *g_adeModuleNode;
extern AdeBrowserNode *g_adeTypeNode;

// A node that stands nowhere yet. Any text may be null.
AdeBrowserNode *adeBrowserNewNode(const char *name, const char *directory,
                                  const char *file, int32_t line,
                                  const char *kind, const char *extra1,
                                  const char *extra2);

// A root, named by the ADE-PREFIX; fatal error 1 without one.
AdeBrowserNode *adeBrowserNewProjectTree(const char *kind, const char *extra1,
                                         const char *extra2);

// A node for the module and its source file, line 1; "_" in the module's name
// becomes "-".
AdeBrowserNode *adeBrowserNewModuleNode(const AsnModule &module,
                                        const char *kind, const char *extra1,
                                        const char *extra2);

// A node for the definition of a type, "_" in its name turned to "-". If its
// base lies in another module the place is that of the base.
AdeBrowserNode *adeBrowserNewTypeNode(AsnType &type, const char *kind,
                                      const char *extra1, const char *extra2);

// The same for the definition of a class.
AdeBrowserNode *adeBrowserNewClassNode(AsnObjClass &objClass, const char *kind,
                                       const char *extra1, const char *extra2);

// The same for the definition of an object set, an object or a value, always
// in the module that it is seen from.
AdeBrowserNode *adeBrowserNewObjectSetNode(const AsnObjectSet &set,
                                           const char *kind, const char *extra1,
                                           const char *extra2);
AdeBrowserNode *adeBrowserNewObjectNode(const AsnObject &object,
                                        const char *kind, const char *extra1,
                                        const char *extra2);
AdeBrowserNode *adeBrowserNewValueNode(const AsnValue &value, const char *kind,
                                       const char *extra1, const char *extra2);

// The child of `g_adeBrowserTree` with that module's name; if there is none a
// new one, inserted sorted.
AdeBrowserNode *adeBrowserFindOrCreateModuleNode(const AsnModule &module,
                                                 const char *kind,
                                                 const char *extra1,
                                                 const char *extra2);

// Below the node of the type's module, which is made as an "ASN.1 module" if
// there is none, the child named as the type; if there is none a new one of
// the kind "Definition", on the line of the type's own node, inserted sorted.
AdeBrowserNode *adeBrowserFindOrCreateXRefDefinitionNode(const AsnType &type,
                                                         const char *extra1,
                                                         const char *extra2);

// A node of the kind "Usage", on that line of the type's module.
AdeBrowserNode *adeBrowserNewXRefUsageNode(const AsnType &type, int32_t line,
                                           const char *extra1,
                                           const char *extra2);

// Makes `node`, which must stand nowhere yet, a child of `parent`. With
// `sorted` 1 it goes ahead of the first child whose name compares greater, by
// strcmp, otherwise behind the last.
void adeBrowserInsertSubNode(AdeBrowserNode &parent, AdeBrowserNode *node,
                             int sorted);

// The first child with exactly this name, or null. An absent name counts as
// the empty one.
AdeBrowserNode *adeBrowserFindSubNode(const AdeBrowserNode &parent,
                                      const char *name);

// Calls `f` for the node, then for what is below it, then the same for the
// siblings that follow it; null is passed over.
void adeBrowserTraverseTree(AdeBrowserNode *node, AdeBrowserCallBack *f);

// Writes the tree to the side file with that ending, ".apd" if null.
void adeBrowserPrintTree(AdeBrowserNode *root, const char *suffix);

// Writes the node's line; only while `adeBrowserPrintTree` runs.
void adeBrowserPrintNode(AdeBrowserNode &node);

// Frees the tree and the symbol table, and clears the run's three nodes if it
// is the tree of the run.
void adeBrowserDeleteTree(AdeBrowserNode *root);
