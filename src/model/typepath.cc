// The type name path. Views keep the address of a path's text, so that it is
// changed in place, in the node of its stack.

#include "model/typepath.h"
#include "base/diag.h"
#include "model/constraint.h"
#include <cstring>

TPathStack tPathStack;

void initTPathStack(TPathStack &stack)
{
  initStack(stack);
}

void pushTPathStack(TPathStack &stack, const TPath &path)
{
  pushStack(stack, path);
}

bool getTPathStackTop(const TPathStack &stack, TPath &path)
{
  return getStackTop(stack, path);
}

void swapTPathStackTop(TPathStack &stack, const TPath &path)
{
  swapStackTop(stack, path);
}

int32_t get_TPathStackDepth(const TPathStack &stack)
{
  return getStackDepth(stack);
}

bool popTPathStack(TPathStack &stack)
{
  if (TPath *path = stackTop(stack))
    clearStack(path->starts);
  return popStack(stack);
}

void clearTPathStack(TPathStack &stack)
{
  while (popTPathStack(stack)) {
  }
}

// The path in use.
static TPath &tPathTop()
{
  TPath *path = stackTop(tPathStack);
  if (!path)
    fatalError(FATAL_INTERNAL, "Empty type name path stack");
  return *path;
}

void pushPath()
{
  static const TPath empty;
  pushTPathStack(tPathStack, empty);
}

void popPath()
{
  tPathTop();
  popTPathStack(tPathStack);
}

void resetPath()
{
  clearTPathStack(tPathStack);
}

void addElemToPath(const char *text)
{
  TPath &path = tPathTop();
  size_t length = strlen(text);
  if (static_cast<size_t>(path.used) + length >= maxTypePath)
    fatalError(FATAL_INTERNAL, "Type name path buffer overflow");
  pushStack(path.starts, path.used);
  memcpy(path.text + path.used, text, length + 1);
  path.used += static_cast<int32_t>(length);
}

void removeElemFromPath()
{
  TPath &path = tPathTop();
  int32_t start;
  if (!getStackTop(path.starts, start))
    fatalError(FATAL_INTERNAL, "Corrupted type name element stack");
  popStack(path.starts);
  path.text[start] = 0;
  path.used = start;
}

const char *getPath()
{
  const TPath *path = stackTop(tPathStack);
  return path ? path->text : nullptr;
}

bool typePathInUse()
{
  return stackTop(tPathStack);
}

void initializeAsnTypes()
{
  clearStack(asnTypePtrStack);
  resetPath();
}
