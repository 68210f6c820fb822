// The browser tree: making, inserting, finding, printing and freeing nodes.
//
// A module can have thousands of types, each looked for once or more and
// inserted at its place by name, so a node knows its children by name in two
// ways:
//
// `first` gives the first child of each name.
//
// `rising` holds the children whose name is greater than the names of all
// children ahead of them. Children need not be in order, as some are only
// appended; but the first child that is greater than a given name always has
// a greater name than all ahead of it, so it is always in `rising`, and
// found there by its key. If the children are in order, `rising` has just the
// first of each name.

#include "ade/browser.h"
#include "ade/summary.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "base/strings.h"
#include "cbet/symboltable.h"
#include "model/asnvalue.h"
#include "model/objectset.h"
#include "model/typeiter.h"
#include "model/typequery.h"
#include "model/valuetext.h"
#include "store/module.h"
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

constexpr const char *treeEnding = ".apd";

// The keys are the texts of the symbol table. A string view compares as
// strcmp does: octets are unsigned.
struct AdeBrowserIndex {
  std::unordered_map<std::string_view, AdeBrowserNode *> first;
  std::map<std::string_view, AdeBrowserNode *> rising;
};

SymbolTable *adeBrowserSymbolTable;
AdeBrowserNode *g_adeBrowserTree;
AdeBrowserNode *g_adeModuleNode;
AdeBrowserNode *g_adeTypeNode;

static CacheBlock *nodeCache;
static AdeFile treeFile;  // open while a tree is printed

// Here the index is a complete type.
AdeBrowserNode::AdeBrowserNode() = default;
AdeBrowserNode::~AdeBrowserNode() = default;

static int32_t symbolOf(const char *text)
{
  return text ? putSymbol(*adeBrowserSymbolTable, text) : 0;
}

static const char *textOf(int32_t symbol)
{
  return symbol ? getSymbol(*adeBrowserSymbolTable, symbol) : "";
}

AdeBrowserNode *adeBrowserNewNode(const char *name, const char *directory,
                                  const char *file, int32_t line,
                                  const char *kind, const char *extra1,
                                  const char *extra2)
{
  if (!adeBrowserSymbolTable)
    adeBrowserSymbolTable = newSymbolTable();
  AdeBrowserNode *node = cacheNew<AdeBrowserNode>(nodeCache);
  node->name = symbolOf(name);
  node->directory = symbolOf(directory);
  node->file = symbolOf(file);
  node->line = line;
  node->kind = symbolOf(kind);
  node->extra1 = symbolOf(extra1);
  node->extra2 = symbolOf(extra2);
  return node;
}

AdeBrowserNode *adeBrowserNewProjectTree(const char *kind, const char *extra1,
                                         const char *extra2)
{
  if (!adeIsActive())
    fatalError(FATAL_OPEN_READ, "No ADE-PREFIX");
  return adeBrowserNewNode(adeRecord.prefix.c_str(), nullptr, nullptr, 0, kind,
                           extra1, extra2);
}

// The module's name as the tree shows it.
static std::string &moduleNodeName(std::string &name, const AsnModule &module)
{
  return convertUnderscores(getModuleRef(name, nullptr, module, nullptr));
}

AdeBrowserNode *adeBrowserNewModuleNode(const AsnModule &module,
                                        const char *kind, const char *extra1,
                                        const char *extra2)
{
  std::string name, directory, file;
  moduleNodeName(name, module);
  getModuleDirectory(directory, nullptr, module, nullptr);
  getModuleFileName(file, nullptr, module, nullptr);
  return adeBrowserNewNode(name.c_str(), directory.c_str(), file.c_str(), 1,
                           kind, extra1, extra2);
}

AdeBrowserNode *adeBrowserFindOrCreateModuleNode(const AsnModule &module,
                                                 const char *kind,
                                                 const char *extra1,
                                                 const char *extra2)
{
  std::string name;
  moduleNodeName(name, module);
  AdeBrowserNode *node = nullptr;
  if (g_adeBrowserTree)
    node = adeBrowserFindSubNode(*g_adeBrowserTree, name.c_str());
  if (node)
    return node;
  node = adeBrowserNewModuleNode(module, kind, extra1, extra2);
  if (g_adeBrowserTree)
    adeBrowserInsertSubNode(*g_adeBrowserTree, node, 1);
  return node;
}

// The name as the tree shows it, once `text` is read from a view.
static const char *shown(std::string &text)
{
  return convertUnderscores(text).c_str();
}

// What a caller tells of a definition, and the node that is made for it.
struct DefinitionNode {
  const char *name = nullptr;
  const char *kind = nullptr;
  const char *extra1 = nullptr;
  const char *extra2 = nullptr;
  AdeBrowserNode *node = nullptr;
};

// The one whose base is being visited in another module.
static DefinitionNode foreignBase;

// Makes the node for a line of the module's source.
static void placeIn(DefinitionNode &d, const AsnModule &module, int32_t line)
{
  std::string directory, file;
  getModuleDirectory(directory, nullptr, module, nullptr);
  getModuleFileName(file, nullptr, module, nullptr);
  d.node = adeBrowserNewNode(d.name, directory.c_str(), file.c_str(), line,
                             d.kind, d.extra1, d.extra2);
}

static void placeAtBaseType(AsnType &base)
{
  placeIn(foreignBase, *getModuleOfType(base), getTypeDefinitionLine(base));
}

AdeBrowserNode *adeBrowserNewTypeNode(AsnType &type, const char *kind,
                                      const char *extra1, const char *extra2)
{
  std::string name;
  getTypeRef(name, nullptr, type, nullptr);
  foreignBase = {shown(name), kind, extra1, extra2};
  if (!isBaseTypeInCurrentModule(type))
    forTypeDefinedInAnotherModule(type, placeAtBaseType);
  if (!foreignBase.node)
    placeIn(foreignBase, *getModuleOfType(type), getTypeDefinitionLine(type));
  return foreignBase.node;
}

static void placeAtBaseClass(AsnObjClass &base)
{
  placeIn(foreignBase, *getModuleOfObjClass(base),
          getClassDefinitionLine(base));
}

// A predefined class at the end of a chain can't be visited.
static void placeAtPredefinedClass(const AsnObjClass &objClass)
{
  AsnModule *module = newAsnModule(*objClass.baseModRec);
  placeIn(foreignBase, *module, getClassDefinitionLine(objClass));
  delAsnModule(module);
}

AdeBrowserNode *adeBrowserNewClassNode(AsnObjClass &objClass, const char *kind,
                                       const char *extra1, const char *extra2)
{
  std::string name;
  getObjClassRef(name, nullptr, objClass, nullptr);
  foreignBase = {shown(name), kind, extra1, extra2};
  if (!isBaseObjClassInCurrentModule(objClass)) {
    if (isPredefinedObjClass(objClass))
      placeAtPredefinedClass(objClass);
    else
      forObjClassDefinedInAnotherModule(objClass, placeAtBaseClass);
  }
  if (!foreignBase.node)
    placeIn(foreignBase, *getModuleOfObjClass(objClass),
            getClassDefinitionLine(objClass));
  return foreignBase.node;
}

AdeBrowserNode *adeBrowserNewObjectSetNode(const AsnObjectSet &set,
                                           const char *kind, const char *extra1,
                                           const char *extra2)
{
  std::string name;
  getObjectSetRef(name, nullptr, set, nullptr);
  DefinitionNode d = {shown(name), kind, extra1, extra2};
  placeIn(d, *getModuleOfObjectSet(set), getObjectSetDefinitionLine(set));
  return d.node;
}

AdeBrowserNode *adeBrowserNewObjectNode(const AsnObject &object,
                                        const char *kind, const char *extra1,
                                        const char *extra2)
{
  std::string name;
  getObjectRef(name, nullptr, object, nullptr);
  DefinitionNode d = {shown(name), kind, extra1, extra2};
  placeIn(d, *getModuleOfObject(object), getObjectDefinitionLine(object));
  return d.node;
}

AdeBrowserNode *adeBrowserNewValueNode(const AsnValue &value, const char *kind,
                                       const char *extra1, const char *extra2)
{
  std::string name;
  getValueRef(name, nullptr, value, nullptr);
  DefinitionNode d = {shown(name), kind, extra1, extra2};
  placeIn(d, *getModuleOfValue(value), value.base.line);
  return d.node;
}

// Line of the type's own node, not of the end of its chain.
static int32_t lineOfOwnNode(const AsnType &type)
{
  SavedNode saved(REC_TNODE);
  readRec(type.compModRec, REC_TNODE, type.compRecNr);
  return tNode.line;
}

AdeBrowserNode *adeBrowserFindOrCreateXRefDefinitionNode(const AsnType &type,
                                                         const char *extra1,
                                                         const char *extra2)
{
  AsnModule &module = *getModuleOfType(type);
  AdeBrowserNode *parent = adeBrowserFindOrCreateModuleNode(
      module, "ASN.1 module", nullptr, nullptr);
  std::string name;
  getTypeRef(name, nullptr, type, nullptr);
  DefinitionNode d = {shown(name), "Definition", extra1, extra2};
  d.node = adeBrowserFindSubNode(*parent, d.name);
  if (d.node)
    return d.node;
  placeIn(d, module, lineOfOwnNode(type));
  adeBrowserInsertSubNode(*parent, d.node, 1);
  return d.node;
}

AdeBrowserNode *adeBrowserNewXRefUsageNode(const AsnType &type, int32_t line,
                                           const char *extra1,
                                           const char *extra2)
{
  std::string name;
  getTypeRef(name, nullptr, type, nullptr);
  DefinitionNode d = {shown(name), "Usage", extra1, extra2};
  placeIn(d, *getModuleOfType(type), line);
  return d.node;
}

void adeBrowserSelectTypeNode(AsnType &type)
{
  if (!adeIsActive() || !g_adeModuleNode)
    return;
  std::string name;
  getTypeRef(name, nullptr, type, nullptr);
  g_adeTypeNode = adeBrowserFindSubNode(*g_adeModuleNode, shown(name));
  if (g_adeTypeNode)
    return;
  g_adeTypeNode = adeBrowserNewTypeNode(type, "ASN.1 type", nullptr, nullptr);
  adeBrowserInsertSubNode(*g_adeModuleNode, g_adeTypeNode, 1);
}

void adeBrowserAddFunctionNode(const char *name, const char *directory,
                               const char *file, int32_t line, const char *kind)
{
  if (!adeIsActive() || !g_adeTypeNode)
    return;
  AdeBrowserNode *node =
      adeBrowserNewNode(name, directory, file, line, kind, nullptr, nullptr);
  adeBrowserInsertSubNode(*g_adeTypeNode, node, 0);
}

// Puts the node between `before` and its predecessor; null: behind the last.
static void linkChild(AdeBrowserNode &parent, AdeBrowserNode *node,
                      AdeBrowserNode *before)
{
  node->next = before;
  node->previous = before ? before->previous : parent.lastChild;
  (node->previous ? node->previous->next : parent.firstChild) = node;
  (before ? before->previous : parent.lastChild) = node;
}

// A node can bring children along.
static void setLevels(AdeBrowserNode &node, uint32_t level)
{
  node.level = level;
  for (AdeBrowserNode *child = node.firstChild; child; child = child->next)
    setLevels(*child, level + 1);
}

void adeBrowserInsertSubNode(AdeBrowserNode &parent, AdeBrowserNode *node,
                             int sorted)
{
  if (!parent.index)
    parent.index = std::make_unique<AdeBrowserIndex>();
  AdeBrowserIndex &index = *parent.index;
  std::string_view name = textOf(node->name);
  auto greater = index.rising.upper_bound(name);
  bool last = sorted != 1 || greater == index.rising.end();
  linkChild(parent, node, last ? nullptr : greater->second);
  // With a greater child ahead of it, it does not rise. Without one it does
  // unless an equal child is ahead, and then it is the first of its name,
  // even if a later one was known as that.
  bool behindGreater = last && greater != index.rising.end();
  if (!behindGreater && index.rising.try_emplace(name, node).second)
    index.first.insert_or_assign(name, node);
  else
    index.first.try_emplace(name, node);
  setLevels(*node, parent.level + 1);
}

AdeBrowserNode *adeBrowserFindSubNode(const AdeBrowserNode &parent,
                                      const char *name)
{
  if (!parent.index)
    return nullptr;
  auto place = parent.index->first.find(orEmpty(name));
  return place == parent.index->first.end() ? nullptr : place->second;
}

void adeBrowserTraverseTree(AdeBrowserNode *node, AdeBrowserCallBack *f)
{
  for (; node; node = node->next) {
    f(*node);
    adeBrowserTraverseTree(node->firstChild, f);
  }
}

void adeBrowserPrintTree(AdeBrowserNode *root, const char *suffix)
{
  adeOpenFile(treeFile, suffix ? suffix : treeEnding, "w");
  adeBrowserTraverseTree(root, adeBrowserPrintNode);
  adeCloseFile(treeFile);
}

void adeBrowserPrintNode(AdeBrowserNode &node)
{
  adePutText(treeFile,
             formatText("%u:%s:'%s%s':%d:%s:%s:%s\n", node.level,
                        textOf(node.name), textOf(node.directory),
                        textOf(node.file), node.line < 0 ? 0 : node.line,
                        textOf(node.kind), textOf(node.extra1),
                        textOf(node.extra2)));
}

static void deleteNode(AdeBrowserNode *node)
{
  AdeBrowserNode *child = node->firstChild;
  while (child) {
    AdeBrowserNode *next = child->next;
    deleteNode(child);
    child = next;
  }
  cacheDelete(node, nodeCache);
}

void adeBrowserDeleteTree(AdeBrowserNode *root)
{
  if (root == g_adeBrowserTree)
    g_adeBrowserTree = g_adeModuleNode = g_adeTypeNode = nullptr;
  if (root)
    deleteNode(root);
  // Last: the children's indexes refer to its texts.
  deleteSymbolTable(adeBrowserSymbolTable);
  adeBrowserSymbolTable = nullptr;
}
