// Lists of nodes of the tree, over free lists.

#include "store/nodelist.h"
#include "base/alloc.h"
#include "base/diag.h"
#include "store/module.h"

DynaNode *availDynaPtr;

static CacheBlock *cache__NodeElemRec;

// --- dynamic nodes ----------------------------------------------------------

DynaNode *insDynaNode(DynaNode *&head, DynaNode *&tail)
{
  DynaNode *node = availDynaPtr;
  if (node)
    availDynaPtr = node->next;
  else
    node = static_cast<DynaNode *>(ezalloc(sizeof(DynaNode)));
  node = new (node) DynaNode;
  node->module = recJustRead[REC_TNODE].module;
  node->record = recJustRead[REC_TNODE].index;
  node->prev = tail;
  if (tail)
    tail->next = node;
  else
    head = node;
  return tail = node;
}

void delDynaNodes(DynaNode *&head, DynaNode *&tail)
{
  for (DynaNode *node = head; node; node = node->next)
    if (node->subFirst)
      delDynaNodes(node->subFirst, node->subLast);
  if (tail) {
    tail->next = availDynaPtr;
    availDynaPtr = head;
  }
  head = tail = nullptr;
}

// --- node element lists -----------------------------------------------------

// The kind of record that a list holds.
static int recordKind(const NodeList &list)
{
  switch (list.kind) {
  case NODES_TYPES:
    return REC_TNODE;
  case NODES_VALUES:
    return REC_VNODE;
  case NODES_CONSTRAINTS:
    return REC_SUB;
  default:
    fatalError(FATAL_INTERNAL);
  }
}

void addFstNode(NodeList &list)
{
  const RecPlace &current = recJustRead[recordKind(list)];
  NodeElemRec *element = cacheNew<NodeElemRec>(cache__NodeElemRec);
  *element = {current.module, current.index, list.first};
  list.first = element;
}

static NodeElemRec *takeFirst(NodeList &list)
{
  NodeElemRec *element = list.first;
  if (!element)
    fatalError(FATAL_INTERNAL);
  list.first = element->next;
  return element;
}

void delFstNode(NodeList &list)
{
  cacheDelete(takeFirst(list), cache__NodeElemRec);
}

void mvFstNode(NodeList &target, NodeList &source)
{
  NodeElemRec *element = takeFirst(source);
  element->next = target.first;
  target.first = element;
}

bool pushNodeUnique(NodeList &list)
{
  const RecPlace &current = recJustRead[recordKind(list)];
  for (NodeElemRec *element = list.first; element; element = element->next)
    if (element->module == current.module && element->index == current.index)
      return false;
  addFstNode(list);
  return true;
}

void deleteNodes(NodeList &list)
{
  while (list.first)
    delFstNode(list);
}

static bool readElement(const NodeList &list, const NodeElemRec *element)
{
  bool readable = list.kind == NODES_TYPES || list.kind == NODES_VALUES;
  if (!element || !readable)
    return false;
  readRec(element->module, recordKind(list), element->index);
  return true;
}

bool outerEnclStru(const NodeList &list)
{
  const NodeElemRec *element = list.first;
  while (element && element->next)
    element = element->next;
  return readElement(list, element);
}

bool innerEnclStru(const NodeList &list)
{
  return readElement(list, list.first);
}
