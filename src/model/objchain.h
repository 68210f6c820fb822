#pragma once
#include "model/asntype.h"
#include "model/tags.h"
#include "options/fixrec.h"
#include "store/typenode.h"

// What the views of classes and of object sets have in common: both are built
// by two passes over a chain of type nodes, as types are, but without tags,
// constraints and bounds.

struct ObjChainRules {
  int definitionFix;        // kind of the base's names
  void (*skipFieldList)();  // from a field list node to what it names
  bool refusesSelections;   // fatal error 13; otherwise the chain ends there
};

// One step from the current node; false, with the buffer where it was, at the
// end of the chain.
bool stepObjChain(const ObjChainRules &rules);

// To the last link of the current field list node's path, which is then in
// `sNode`.
void readLastLinkOfField();

// Makes the type node current; true if it is one that `nextTNode` accepts for
// the kind. Looks at no other node, and at no cursor; 0 is none.
bool selectObjTNode(ModRec *module, int kind, int32_t recNr,
                    bool includeHidden);

// Writes the stamp into the record, which becomes current.
void stampTNode(ModRec *module, int32_t recNr, int32_t stamp);

// The name in a fix record, as in ASN.1, resp. as in C.
std::string plainFixName(const FixRec &fix);
std::string printedFixName(const FixRec &fix);

// The back-end's lines of the current node: `apply` gets those that are no
// comments. Gives whether there are comments.
template <class F>
bool applyObjLines(F apply)
{
  bool hasComments = false;
  ModRec *module = currTPtr[REC_TNODE];
  int32_t last = tNode.firstTed == 0 ? -1 : tNode.lastTed;
  for (int32_t i = tNode.firstTed; i <= last; ++i) {
    readRec(module, REC_TED, i);
    if (tedRec.tedKind != TED_BACK_END)
      continue;
    const char *text = getStri(module, tedRec.text);
    if (parseBECommentOption(text))
      hasComments = true;
    else
      apply(text);
  }
  return hasComments;
}

// The second pass: `apply` gets the lines of each node of the chain.
template <class View, class F>
void applyObjChainLines(View &view, const ObjChainRules &rules, F apply)
{
  readTNodeForBegOfSynonymChain(view.compModRec, view.compRecNr);
  view.commentOptions = applyObjLines(apply);
  ChainGuard guard(view.compModRec, REC_TNODE);
  while (stepObjChain(rules)) {
    guard.step();
    applyObjLines(apply);
  }
}

// What the first pass gathers besides the view.
struct ObjChain {
  uint32_t options = 0;     // of all nodes but the last
  NodeContext lastDefined;  // the node that names the base
};

// Notes the node that a step has reached as the last defined one, until an
// instance is met.
void saveDefinedObjNode(ObjChain &chain, bool bySynonym, bool &stillSaving);

template <class View>
void initObjNode(View *father, View &view, int fixKind)
{
  getFixRec(view.compFix, fixKind);
  view.father = father;
  view.level = 0;
  view.compModRec = currTPtr[REC_TNODE];
  view.compRecNr = recJustRead[REC_TNODE].index;
  view.compNbr = 0;
  view.compStatus = tNode.compStatus;
  view.firstMainType = tNode.mainType;
  view.defaultValue = tNode.defaultValue;
  view.stamp = tNode.stamp;
  view.fieldRef = tNode.fieldRef;
  view.nodeFlags = tNode.nodeFlags;
  view.typeOptions = tNode.typeOptions;
  view.synonymSteps = 0;
  view.commentOptions = false;
}

// What an instance takes from the parameterised definition, which becomes
// current.
template <class View>
void initObjInstance(View &view, bool topLevel)
{
  readTNodeForBegOfSynonymChain(view.compModRec, view.compRecNr);
  view.firstMainType = tNode.mainType;
  view.nodeFlags |= tNode.nodeFlags | NF_INSTANTIATED;
  if (topLevel)
    view.nodeFlags |= NF_TOP_LEVEL_INSTANTIATED;
  view.typeOptions.definiteLength = tNode.typeOptions.definiteLength;
}

// The first pass; leaves the end of the chain current.
template <class View>
void collectObjChain(View &view, const ObjChainRules &rules, ObjChain &chain)
{
  bool stillSaving = true;
  ChainGuard guard(currTPtr[REC_TNODE], REC_TNODE);
  for (;; guard.step()) {
    uint32_t options = tNode.nodeOptions;
    bool bySynonym = tNode.mainType == TYP_SYNONYM;
    setEmbeddingOptionsFromTNode(view.embeddingFirst, view.embeddingLast);
    if (!stepObjChain(rules))
      return;
    chain.options |= options;
    ++view.synonymSteps;
    saveDefinedObjNode(chain, bySynonym, stillSaving);
  }
}

// The names of the base: those of the last defined node of the chain.
template <class View>
void setLastObjCompId(View &view, const ObjChainRules &rules,
                      const ObjChain &chain)
{
  if ((view.baseModRec == view.compModRec &&
       view.baseRecNr == view.compRecNr) ||
      view.nodeFlags & NF_TOP_LEVEL_INSTANTIATED) {
    view.baseFix = view.compFix;
  } else if (view.nodeFlags & NF_INSTANTIATED && view.father) {
    view.baseFix = view.father->baseFix;
  } else {
    SavedNode saved(REC_TNODE);
    restoreNodeContext(REC_TNODE, &chain.lastDefined);
    getFixRec(view.baseFix, rules.definitionFix);
  }
}

// The copy of the end of the chain, which is current.
template <class View>
void initObjBase(View &view, const ObjChain &chain)
{
  constexpr uint32_t ownBits =
      1u << optEmbedding | 1u << optClearedBit2 | 1u << optNaming;
  view.base = tNode;
  bool leadsOn = view.firstMainType == TYP_SYNONYM ||
                 view.firstMainType == TYP_SELECTION ||
                 view.firstMainType == TYP_FIELDLIST;
  if (view.nodeFlags & NF_TOP_LEVEL_INSTANTIATED)
    view.base.compStatus = view.compStatus;
  else if (view.base.compStatus == -TCS_HEADER && leadsOn &&
           !(view.nodeFlags & NF_INSTANTIATED))
    view.base.compStatus = TCS_HEADER;
  view.base.nodeOptions |= chain.options & ~ownBits;
}

// Builds the view from the current node, all but meta record and options, and
// leaves the end of its chain current.
template <class View>
void buildObjView(View *father, View &view, const ObjChainRules &rules,
                  int fixKind)
{
  ObjChain chain;
  saveNodeContext(REC_TNODE, &chain.lastDefined);
  bool instantiated = isInstantiatedTNode();
  bool topLevel = isTopLevelInstantiatedTNode();
  initObjNode(father, view, fixKind);
  if (instantiated)
    initObjInstance(view, topLevel);
  collectObjChain(view, rules, chain);
  view.baseModRec = currTPtr[REC_TNODE];
  view.baseRecNr = recJustRead[REC_TNODE].index;
  if (instantiated)
    view.firstMainType = tNode.mainType;
  setLastObjCompId(view, rules, chain);
  initObjBase(view, chain);
  if (father && view.base.compStatus != TCS_HEADER) {
    view.baseFix = father->baseFix;
    view.level = father->level;
  }
}
