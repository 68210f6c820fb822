#pragma once
#include "store/codes.h"
#include "store/module.h"

// Value nodes, on the `vNode` buffer: the end of a reference chain, what
// kind of definition a node is, and searches along chains.

// Moves the buffer to the end of the current value's chain of references,
// and of field paths if `all` is set.
void skipValues(bool all);

// One step of `skipValues`; false, with the buffer where it was, at the end
// of the chain.
bool skipOneValue(bool all);

// Is the current value ... ? The buffer is the same afterwards.
bool isObjVNode();
bool isObjSetVNode();
bool isValueVNode();  // neither a set nor an object
bool isValueSetVNode();

// Searches along the top-level values of a module, resp. along a component
// chain; the value found is left in the buffer.
bool findValueById(ModRec *module, const char *name);
bool findValueCompById(ModRec *module, int32_t first, const char *name);
