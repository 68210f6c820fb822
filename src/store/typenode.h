#pragma once
#include "store/codes.h"
#include "store/module.h"

// Type nodes, on the `tNode` buffer: the end of a synonym chain, what kind
// of definition a node is, and searches along chains.

// Moves the buffer to the end of the chain that begins at the current node:
// over synonyms and selections, and over field lists if `all` is set or the
// node bears the mark for it.
void skipTypes(bool all);

// One step of `skipTypes`; false, with the buffer where it was, at the end of
// the chain (or if a field list led into the predefined module).
bool skipOneType(bool all);

// Moves the type buffer to what the link in `sNode`, read in its module,
// names: a type, or the first child of a value.
void readTNodeOfLink();

// Moves the buffer from a field list node to what its path leads to; false
// if that lies in the predefined module, where the walk ends.
bool skipFieldList();

// Is the current node ... ? The buffer is the same afterwards.
bool isInstantiatedTNode();          // an instance of a parameterised type
bool isTopLevelInstantiatedTNode();  // its topmost node
bool isSetTNode();                   // a value set or an object set
bool isTypeTNode();
bool isClassTNode();
bool isValueSetTNode();
bool isObjSetTNode();
bool isValFieldTNode();         // of a class: a value field
bool isValSetFieldTNode();      // a value set or object set field
bool isVariabTypeFieldTNode();  // a field of variable type
bool isVariabTypeTNode();       // a type that one of these stands for
bool isOpenObjClassFieldTypeTNode();

// Searches: the node found is left in the buffer; false leaves it anywhere.

// A top-level definition of a module.
bool findTypeById(ModRec *module, const char *name);

// A component by name, COMPONENTS OF entries expanded; `position` grows by
// the components passed.
bool findTypeCompById(ModRec *module, int32_t first, const char *name,
                      int32_t &position);

// A component by number, from 1, COMPONENTS OF entries expanded; the second
// leaves in `number` what is left of it afterwards.
bool findTypeCompByInd(ModRec *module, int32_t first, int32_t number);
bool findByInd(ModRec *module, int32_t first, int32_t &number);
