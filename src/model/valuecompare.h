#pragma once
#include "store/treestore.h"

// 0 if two values are equal, else anything but 0: for numbers and strings
// their order, -1 for what can't be compared. Both are images of value nodes
// with the modules that their indexes are good in, and stand at the end of
// their chains of references. The current records are the same afterwards.
int compareValue(ModRec *leftMod, const VNode &left, ModRec *rightMod,
                 const VNode &right);
