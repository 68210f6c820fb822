#pragma once
#include "store/module.h"
#include "store/valuenode.h"

// The chain from a value's or object's node to the one that holds it, for the
// views of both.

// Goes to the end of the current node's chain; gives the flags of its
// references.
uint8_t skipValueChain();

// Back-end option lines of the nodes of a chain. Calls `apply` for each, and
// gives true if the first node has comment lines, which are no options.
template <class F>
bool forEachValueChainOption(ModRec *module, int32_t recNr, F apply)
{
  readRec(module, REC_VNODE, recNr);
  bool first = true;
  bool hasComments = false;
  ChainGuard guard(module, REC_VNODE);
  do {
    guard.step();
    ModRec *at = currTPtr[REC_VNODE];
    int32_t last = vNode.firstTed == 0 ? -1 : vNode.lastTed;
    for (int32_t i = vNode.firstTed; i <= last; ++i) {
      readRec(at, REC_TED, i);
      if (tedRec.tedKind != TED_BACK_END)
        continue;
      const char *text = getStri(at, tedRec.text);
      if (!parseBECommentOption(text))
        apply(text);
      else
        hasComments = hasComments || first;
    }
    first = false;
  } while (skipOneValue(true));
  return hasComments;
}
