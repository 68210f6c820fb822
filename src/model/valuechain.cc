// The chain from a value's or object's node to the one that holds it.

#include "model/valuechain.h"

uint8_t skipValueChain()
{
  uint8_t flags = 0;
  ChainGuard guard(currTPtr[REC_VNODE], REC_VNODE);
  for (;; guard.step()) {
    bool isReference = vNode.mainType == TYP_SYNONYM;
    uint8_t ownFlags = vNode.valueFlags;
    if (!skipOneValue(true))
      return flags;
    if (isReference)
      flags |= ownFlags;
  }
}
