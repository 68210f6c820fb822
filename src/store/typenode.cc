// Type nodes: walks to the end of a chain, predicates and searches. All work
// on the current node in `tNode`.

#include "store/typenode.h"
#include "base/diag.h"
#include <cstring>

// The mark in `refModule` of a class field reference that is followed in any
// case.
constexpr int32_t fieldReferenceMark = -2;

static const char predefinedClasses[] = "ISO8824";

// The module that a number in the current node means; a number without an
// import entry is fatal error 9 at the read that follows.
static ModRec *moduleInTNode(int32_t number)
{
  return getModPtr(currTPtr[REC_TNODE], number);
}

// To the node that the last link of a field path names. A link of 0 or below
// is a value whose first child is the type, in the value's module.
static void readLinkTarget(ModRec *module)
{
  if (sNode.target > 0)
    return readRec(module, REC_TNODE, sNode.target);
  if (sNode.target == INT32_MIN)
    fatalError(FATAL_READ_RECORD);
  SavedNode saved(REC_VNODE);
  readRec(module, REC_VNODE, -sNode.target);
  readRec(module, REC_TNODE, vNode.firstChild);
}

// Runs along the links from `first` of a module; the last one is in `sNode`,
// the module that it names is returned.
static ModRec *readLastLink(ModRec *module, int32_t first)
{
  ChainGuard guard(module, REC_SNODE);
  for (int32_t link = first; link != 0; link = sNode.nextLink) {
    guard.step();
    readRec(module, REC_SNODE, link);
  }
  return getModPtr(module, sNode.linkModule);
}

bool skipFieldList()
{
  ModRec *module = currTPtr[REC_TNODE];
  int32_t builtInClass = tNode.ref;
  ModRec *linked = readLastLink(module, tNode.fieldRef);
  const char *name = linked ? linked->moduleName : nullptr;
  if (name && strcmp(name, predefinedClasses) == 0) {
    readRec(module, REC_TNODE, builtInClass);
    skipTypes(true);
    return false;
  }
  readLinkTarget(linked);
  return true;
}

void readTNodeOfLink()
{
  readLinkTarget(getModPtr(currTPtr[REC_SNODE], sNode.linkModule));
}

bool skipOneType(bool all)
{
  switch (tNode.mainType) {
  case TYP_SYNONYM:
    if (tNode.ref == 0)
      return false;
    readRec(moduleInTNode(tNode.refModule), REC_TNODE, tNode.ref);
    return true;
  case TYP_SELECTION:
    if (tNode.fieldRef == 0)
      return false;
    readRec(currTPtr[REC_TNODE], REC_SNODE, tNode.fieldRef);
    readTNodeOfLink();
    return true;
  case TYP_FIELDLIST:
    if (tNode.fieldRef == 0 || (!all && tNode.refModule != fieldReferenceMark))
      return false;
    return skipFieldList();
  default:
    return false;
  }
}

// Built-in classes lead from `skipFieldList` back to `skipTypes`.
static int skipNesting;

void skipTypes(bool all)
{
  ModRec *module = currTPtr[REC_TNODE];
  NestingGuard nesting(skipNesting, module);
  ChainGuard guard(module, REC_TNODE);
  while (skipOneType(all))
    guard.step();
}

bool isInstantiatedTNode()
{
  return tNode.fieldRef != 0 && tNode.mainType != TYP_SELECTION &&
         tNode.mainType != TYP_ANY && tNode.mainType != TYP_FIELDLIST;
}

bool isTopLevelInstantiatedTNode()
{
  return isInstantiatedTNode() && tNode.nestedInstance == 0;
}

bool isSetTNode()
{
  return tNode.classFlags & CF_SET;
}

// Main type and set flag at the end of the current node's chain.
static TNode endOfChain()
{
  SavedNode saved(REC_TNODE);
  skipTypes(true);
  return tNode;
}

bool isTypeTNode()
{
  TNode end = endOfChain();
  return !(end.classFlags & CF_SET) && !isClassMainType(end.mainType);
}

bool isClassTNode()
{
  TNode end = endOfChain();
  return !(end.classFlags & CF_SET) && isClassMainType(end.mainType);
}

bool isValueSetTNode()
{
  return isSetTNode() && !isClassMainType(endOfChain().mainType);
}

bool isObjSetTNode()
{
  return isSetTNode() && isClassMainType(endOfChain().mainType);
}

bool isValFieldTNode()
{
  return tNode.identifier < 0;
}

bool isValSetFieldTNode()
{
  return tNode.identifier > 0 && isSetTNode();
}

bool isVariabTypeFieldTNode()
{
  return tNode.classFlags & CF_VARIABLE_TYPE;
}

bool isVariabTypeTNode()
{
  return tNode.classFlags & CF_VARIABLE_TYPE;
}

bool isOpenObjClassFieldTypeTNode()
{
  return endOfChain().mainType == TYP_OPEN;
}

static bool isNamed(ModRec *module, int32_t identifier, const char *name)
{
  return identifier != 0 && strcmp(getStri(module, identifier), name) == 0;
}

bool findTypeById(ModRec *module, const char *name)
{
  ChainGuard guard(module, REC_TNODE);
  for (int32_t index = module->firstType; index != 0; index = tNode.next) {
    guard.step();
    readRec(module, REC_TNODE, index);
    if (isNamed(module, tNode.identifier, name))
      return true;
  }
  return false;
}

// Components entered through COMPONENTS OF at this moment.
static int compOfNesting;

// Walks a component chain; `fits` looks at each component in the buffer that
// is not a COMPONENTS OF entry, and ends the walk when it is true.
template <class F>
static bool findTypeComp(ModRec *module, int32_t first, F &fits)
{
  NestingGuard nesting(compOfNesting, module);
  ChainGuard guard(module, REC_TNODE);
  for (int32_t index = first; index != 0;) {
    guard.step();
    readRec(module, REC_TNODE, index);
    index = tNode.next;
    if (tNode.compStatus != TCS_COMPOF) {
      if (fits(module))
        return true;
      continue;
    }
    skipTypes(true);
    if (findTypeComp(currTPtr[REC_TNODE], tNode.ref, fits))
      return true;
  }
  return false;
}

bool findTypeCompById(ModRec *module, int32_t first, const char *name,
                      int32_t &position)
{
  auto fits = [&](ModRec *at) {
    if (isNamed(at, tNode.identifier, name))
      return true;
    ++position;
    return false;
  };
  return findTypeComp(module, first, fits);
}

bool findTypeCompByInd(ModRec *module, int32_t first, int32_t number)
{
  return findByInd(module, first, number);
}

bool findByInd(ModRec *module, int32_t first, int32_t &number)
{
  auto fits = [&](ModRec *) { return --number == 0; };
  return findTypeComp(module, first, fits);
}
