// Chains of classes and of object sets.

#include "model/objchain.h"
#include "base/diag.h"
#include "base/strings.h"
#include "model/typeiter.h"

bool stepObjChain(const ObjChainRules &rules)
{
  switch (tNode.mainType) {
  case TYP_SYNONYM:
    return skipOneType(true);
  case TYP_SELECTION:
    if (tNode.fieldRef != 0 && rules.refusesSelections)
      fatalError(FATAL_INTERNAL);
    return false;
  case TYP_FIELDLIST:
    if (tNode.fieldRef == 0)
      return false;
    rules.skipFieldList();
    return true;
  default:
    return false;
  }
}

void readLastLinkOfField()
{
  ModRec *module = currTPtr[REC_TNODE];
  ChainGuard guard(module, REC_SNODE);
  for (int32_t link = tNode.fieldRef; link != 0; link = sNode.nextLink) {
    guard.step();
    readRec(module, REC_SNODE, link);
  }
}

void saveDefinedObjNode(ObjChain &chain, bool bySynonym, bool &stillSaving)
{
  if (!stillSaving)
    return;
  bool isInstance = bySynonym && isInstantiatedTNode();
  if (!isInstance || isTopLevelInstantiatedTNode())
    saveNodeContext(REC_TNODE, &chain.lastDefined);
  stillSaving = !isInstance;
}

bool selectObjTNode(ModRec *module, int kind, int32_t recNr, bool includeHidden)
{
  if (recNr == 0)
    return false;
  readRec(module, REC_TNODE, recNr);
  if (tNode.hidden != 0 && !includeHidden)
    return false;
  bool wantsSet = kind == SELECT_VALUE_SETS || kind == SELECT_OBJECT_SETS;
  bool wantsClass = kind == SELECT_CLASSES || kind == SELECT_OBJECT_SETS;
  if (kind != SELECT_TYPES && isSetTNode() != wantsSet)
    return false;
  SavedNode saved(REC_TNODE);
  skipTypes(true);
  return isClassMainType(tNode.mainType) == wantsClass;
}

void stampTNode(ModRec *module, int32_t recNr, int32_t stamp)
{
  readRec(module, REC_TNODE, recNr);
  tNode.stamp = static_cast<int16_t>(stamp);
  writeRec(module, REC_TNODE, recNr);
}

std::string plainFixName(const FixRec &fix)
{
  return orEmpty(fix.id);
}

std::string printedFixName(const FixRec &fix)
{
  std::string text;
  return printFixRec(text, nullptr, fix, nullptr);
}
