// Types by a field of an information object class: `CLASS.&field`, and the
// governors of field values.

#include "base/diag.h"
#include "model/asntype.h"
#include "store/valuenode.h"
#include <cstdlib>

// Whether the current field list may name a type, by the status of its node.
static bool mayNameType()
{
  switch (std::abs(int64_t{tNode.compStatus})) {
  case TCS_MANDATORY:
  case TCS_OPTIONAL:
    return (isValFieldTNode() || isValSetFieldTNode()) &&
           !isVariabTypeFieldTNode() && tNode.refModule >= 0;
  case TCS_CHOICE:
  case TCS_MULTIPLE:
    return true;
  case TCS_HEADER:
    return tNode.identifier > 0;
  default:
    return false;
  }
}

// Moves the buffer to the class that the current node names a field of; false
// for a node of another sort, with the buffer anywhere.
static bool readClassOfField()
{
  skipTypes(false);
  if (tNode.mainType != TYP_FIELDLIST || !mayNameType())
    return false;
  ModRec *module = currTPtr[REC_TNODE];
  readRec(getModPtr(module, tNode.refModule), REC_TNODE, tNode.ref);
  ChainGuard guard(module, REC_TNODE);
  while (!isSetTNode() && tNode.mainType == TYP_SYNONYM && skipOneType(false))
    guard.step();
  return !isSetTNode() && isClassTNode();
}

bool isObjClassFieldTypeTNode()
{
  SavedNode saved(REC_TNODE);
  return readClassOfField();
}

void getClassOfObjClassFieldTypeTNode()
{
  if (!readClassOfField())
    fatalError(FATAL_INTERNAL,
               "Trying to obtain class of an ObjectClassFieldType.");
}

// Makes the type that the object gives to the current type field current, or
// that field's default.
static bool readTypeOfField(ModRec *object, int32_t firstFieldValue)
{
  ModRec *module = currTPtr[REC_TNODE];
  const char *name = getStriOrEmpty(module, tNode.identifier);
  int32_t fallback = tNode.defaultValue;
  if (findValueCompById(object, firstFieldValue, name)) {
    module = object;
  } else {
    if (fallback == 0)
      return false;
    readRec(module, REC_VNODE, fallback);
  }
  readRec(module, REC_TNODE, vNode.firstChild);
  return true;
}

bool readGovTNodeForFieldVNode(ModRec *module, int32_t firstFieldValue)
{
  SavedNode saved(REC_VNODE);
  readRec(getModPtr(currTPtr[REC_VNODE], vNode.governorModule), REC_TNODE,
          vNode.governor);
  if (isVariabTypeFieldTNode()) {
    skipTypes(true);
    if (!readTypeOfField(module, firstFieldValue))
      return false;
  }
  skipTypes(true);
  return true;
}
