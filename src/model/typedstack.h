#pragma once
#include "base/alloc.h"
#include <cstdint>
#include <type_traits>

// Small stacks of one payload type. Nodes come from a free list that all
// stacks of the type share, and don't move while they are on a stack: the
// address that `stackTop` gives is good until that level is popped.

template <class T>
struct TypedStack {
  struct Node {
    Node *next = nullptr;
    T payload = {};
  };
  Node *top = nullptr;
  int32_t depth = 0;
};

template <class T>
inline CacheBlock *typedStackCache = nullptr;

// Makes it empty without freeing what it held: for one that is new, or whose
// nodes belong to a copy.
template <class T>
void initStack(TypedStack<T> &stack)
{
  stack = {};
}

// Copies the payload.
template <class T>
void pushStack(TypedStack<T> &stack, const std::type_identity_t<T> &payload)
{
  auto *node = cacheNew<typename TypedStack<T>::Node>(typedStackCache<T>);
  node->payload = payload;
  node->next = stack.top;
  stack.top = node;
  ++stack.depth;
}

// The payload on top, in place; null if the stack is empty.
template <class T>
T *stackTop(TypedStack<T> &stack)
{
  return stack.top ? &stack.top->payload : nullptr;
}

// False, with `payload` left alone, if the stack is empty.
template <class T>
bool getStackTop(const TypedStack<T> &stack, T &payload)
{
  if (!stack.top)
    return false;
  payload = stack.top->payload;
  return true;
}

// Replaces the payload on top; no effect on an empty stack.
template <class T>
void swapStackTop(TypedStack<T> &stack, const std::type_identity_t<T> &payload)
{
  if (stack.top)
    stack.top->payload = payload;
}

template <class T>
int32_t getStackDepth(const TypedStack<T> &stack)
{
  return stack.depth;
}

// False if the stack is empty.
template <class T>
bool popStack(TypedStack<T> &stack)
{
  auto *node = stack.top;
  if (!node)
    return false;
  stack.top = node->next;
  --stack.depth;
  cacheDelete(node, typedStackCache<T>);
  return true;
}

template <class T>
void clearStack(TypedStack<T> &stack)
{
  while (popStack(stack)) {
  }
}
