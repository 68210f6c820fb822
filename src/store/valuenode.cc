// Value nodes: walks to the end of a chain, predicates and searches. All
// work on the current value in `vNode`.

#include "store/valuenode.h"
#include "base/diag.h"
#include <cstring>

// Value codes that are not types: a reference, and a field list value.
constexpr int valueReference = TYP_SYNONYM;
constexpr int fieldListValue = TYP_FIELDLIST;

// To the value that the last link of the field path names.
static void skipFieldPath()
{
  ModRec *module = currTPtr[REC_VNODE];
  ChainGuard guard(module, REC_SNODE);
  for (int32_t link = vNode.fieldPath; link != 0; link = sNode.nextLink) {
    guard.step();
    readRec(module, REC_SNODE, link);
  }
  // A link names a value by the negated index; above 0 it is a type.
  if (sNode.target >= 0 || sNode.target == INT32_MIN)
    fatalError(FATAL_READ_RECORD);
  readRec(getModPtr(module, sNode.linkModule), REC_VNODE, -sNode.target);
}

bool skipOneValue(bool all)
{
  if (vNode.mainType == valueReference && vNode.firstChild != 0) {
    readRec(getModPtr(currTPtr[REC_VNODE], vNode.refModule), REC_VNODE,
            vNode.firstChild);
    return true;
  }
  if (!all || vNode.mainType != fieldListValue || vNode.fieldPath == 0)
    return false;
  skipFieldPath();
  return true;
}

void skipValues(bool all)
{
  ChainGuard guard(currTPtr[REC_VNODE], REC_VNODE);
  while (skipOneValue(all))
    guard.step();
}

// True if the chain of the current value ends in an object.
static bool endsInObject()
{
  SavedNode saved(REC_VNODE);
  skipValues(true);
  return isClassMainType(vNode.mainType);
}

static bool isSetVNode()
{
  return vNode.valueFlags & VFL_SET;
}

bool isObjVNode()
{
  return !isSetVNode() && endsInObject();
}

bool isObjSetVNode()
{
  return isSetVNode() && endsInObject();
}

bool isValueVNode()
{
  return !isSetVNode() && !endsInObject();
}

bool isValueSetVNode()
{
  return isSetVNode() && !endsInObject();
}

bool findValueById(ModRec *module, const char *name)
{
  return findValueCompById(module, module->firstValue, name);
}

bool findValueCompById(ModRec *module, int32_t first, const char *name)
{
  ChainGuard guard(module, REC_VNODE);
  for (int32_t index = first; index != 0; index = vNode.next) {
    guard.step();
    readRec(module, REC_VNODE, index);
    if (vNode.identifier != 0 &&
        strcmp(getStri(module, vNode.identifier), name) == 0)
      return true;
  }
  return false;
}
