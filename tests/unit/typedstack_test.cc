// Small typed stacks.

#include "model/typedstack.h"
#include <gtest/gtest.h>
#include <utility>

static TypedStack<int> stackOf(std::initializer_list<int> payloads)
{
  TypedStack<int> stack;
  for (int payload : payloads)
    pushStack(stack, payload);
  return stack;
}

TEST(TypedStack, FreshOneIsEmpty)
{
  TypedStack<int> stack;
  int payload = 17;
  EXPECT_FALSE(getStackTop(stack, payload));
  EXPECT_EQ(payload, 17);
  EXPECT_EQ(stackTop(stack), nullptr);
  EXPECT_EQ(getStackDepth(stack), 0);
  EXPECT_FALSE(popStack(stack));
  EXPECT_EQ(getStackDepth(stack), 0);
}

TEST(TypedStack, LastInFirstOut)
{
  TypedStack<int> stack = stackOf({1, 2, 3});
  for (int expected : {3, 2, 1}) {
    EXPECT_EQ(getStackDepth(stack), expected);
    int payload = 0;
    ASSERT_TRUE(getStackTop(stack, payload));
    EXPECT_EQ(payload, expected);
    EXPECT_TRUE(popStack(stack));
  }
  EXPECT_FALSE(popStack(stack));
}

TEST(TypedStack, LookingTakesNothingOff)
{
  TypedStack<int> stack = stackOf({1, 2});
  int payload = 0;
  EXPECT_TRUE(getStackTop(stack, payload));
  EXPECT_TRUE(getStackTop(stack, payload));
  EXPECT_EQ(payload, 2);
  EXPECT_EQ(getStackDepth(stack), 2);
  clearStack(stack);
}

TEST(TypedStack, PushCopiesThePayload)
{
  TypedStack<std::pair<int, int>> stack;
  std::pair<int, int> payload(1, 2);
  pushStack(stack, payload);
  payload.first = 9;
  EXPECT_EQ(stackTop(stack)->first, 1);
  clearStack(stack);
}

TEST(TypedStack, SwapReplacesTheTopAlone)
{
  TypedStack<int> stack = stackOf({1, 2});
  swapStackTop(stack, 7);
  EXPECT_EQ(*stackTop(stack), 7);
  EXPECT_EQ(getStackDepth(stack), 2);
  popStack(stack);
  EXPECT_EQ(*stackTop(stack), 1);
  clearStack(stack);
}

TEST(TypedStack, SwapOnAnEmptyStackDoesNothing)
{
  TypedStack<int> stack;
  swapStackTop(stack, 7);
  EXPECT_EQ(stackTop(stack), nullptr);
  EXPECT_EQ(getStackDepth(stack), 0);
}

TEST(TypedStack, PayloadsStayWhereTheyAre)
{
  TypedStack<int> stack = stackOf({1});
  int *first = stackTop(stack);
  for (int i = 0; i < 100; ++i)
    pushStack(stack, i);
  while (getStackDepth(stack) > 1)
    popStack(stack);
  EXPECT_EQ(stackTop(stack), first);
  *first = 5;
  int payload = 0;
  getStackTop(stack, payload);
  EXPECT_EQ(payload, 5);
  clearStack(stack);
}

TEST(TypedStack, ClearEmpties)
{
  TypedStack<int> stack = stackOf({1, 2, 3});
  clearStack(stack);
  EXPECT_EQ(stackTop(stack), nullptr);
  EXPECT_EQ(getStackDepth(stack), 0);
  clearStack(stack);
  EXPECT_EQ(getStackDepth(stack), 0);
}

// The nodes belong to the copy, which still has them.
TEST(TypedStack, InitFreesNothing)
{
  TypedStack<int> copy = stackOf({1, 2});
  TypedStack<int> stack = copy;
  initStack(stack);
  EXPECT_EQ(getStackDepth(stack), 0);
  EXPECT_EQ(stackTop(stack), nullptr);
  pushStack(stack, 8);
  EXPECT_EQ(*stackTop(copy), 2);
  EXPECT_EQ(getStackDepth(copy), 2);
  clearStack(stack);
  clearStack(copy);
}

TEST(TypedStack, NodesAreUsedAgain)
{
  TypedStack<long> stack;
  pushStack(stack, 1L);
  long *place = stackTop(stack);
  popStack(stack);
  pushStack(stack, 2L);
  EXPECT_EQ(stackTop(stack), place);
  EXPECT_EQ(*place, 2L);
  clearStack(stack);
}

TEST(TypedStack, StacksOfOneTypeAreApart)
{
  TypedStack<int> a = stackOf({1});
  TypedStack<int> b = stackOf({2, 3});
  EXPECT_EQ(*stackTop(a), 1);
  EXPECT_EQ(getStackDepth(a), 1);
  popStack(b);
  EXPECT_EQ(*stackTop(b), 2);
  EXPECT_EQ(*stackTop(a), 1);
  clearStack(a);
  clearStack(b);
}

static int twice(int i)
{
  return 2 * i;
}

TEST(TypedStack, HoldsFunctions)
{
  typedef int Func(int);
  TypedStack<Func *> stack;
  pushStack(stack, twice);
  Func *f = nullptr;
  ASSERT_TRUE(getStackTop(stack, f));
  EXPECT_EQ(f(4), 8);
  clearStack(stack);
}
