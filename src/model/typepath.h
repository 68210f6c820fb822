#pragma once
#include "model/typedstack.h"
#include <cstdint>
#include <string>

// The type name path: the C access path to the value at hand, built while a
// walk descends. Paths are stacked; the top one is in use.

// Longest text of a path and its terminator.
constexpr int32_t maxTypePath = 1025;

// One path. Its elements' places belong to it: a copy is good for reading
// while the path is on its stack.
struct TPath {
  char text[maxTypePath] = {};
  int32_t used = 0;
  TypedStack<int32_t> starts;  // offsets of the elements
};

typedef TypedStack<TPath> TPathStack;

// The paths of the run.
extern TPathStack tPathStack;

// The operations of a stack: see model/typedstack.h.
void initTPathStack(TPathStack &stack);
void pushTPathStack(TPathStack &stack, const TPath &path);
bool getTPathStackTop(const TPathStack &stack, TPath &path);
void swapTPathStackTop(TPathStack &stack, const TPath &path);
int32_t get_TPathStackDepth(const TPathStack &stack);
// These free the elements' places as well.
bool popTPathStack(TPathStack &stack);
void clearTPathStack(TPathStack &stack);

// Begins an empty path, and goes back to the one before; fatal error 13
// without one.
void pushPath();
void popPath();

// Goes back to no path at all.
void resetPath();

// Appends an element to the path in use, and takes the last one away; fatal
// error 13 without a path, without room and without an element.
void addElemToPath(const char *text);
void removeElemFromPath();

// The text of the path in use, null without one. The address stays good, and
// follows what is added, until that path is popped.
const char *getPath();

bool typePathInUse();

// Empties the stacks of types and of paths at the start of a run.
void initializeAsnTypes();
