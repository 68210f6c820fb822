// The type name path and its stack.

#include "model/constraint.h"
#include "model/typepath.h"
#include <gtest/gtest.h>

using testing::ExitedWithCode;

struct TypePath : testing::Test {
  TypePath() { resetPath(); }
  ~TypePath() override { resetPath(); }
};

constexpr char emptyStack[] = "Empty type name path stack";

TEST_F(TypePath, ElementsComeAndGo)
{
  pushPath();
  EXPECT_STREQ(getPath(), "");
  addElemToPath("home->");
  addElemToPath("");
  addElemToPath("a.");
  EXPECT_STREQ(getPath(), "home->a.");
  removeElemFromPath();
  EXPECT_STREQ(getPath(), "home->");
  removeElemFromPath();
  EXPECT_STREQ(getPath(), "home->");
  addElemToPath("b");
  EXPECT_STREQ(getPath(), "home->b");
  removeElemFromPath();
  removeElemFromPath();
  EXPECT_STREQ(getPath(), "");
}

TEST_F(TypePath, LevelsHaveTextsOfTheirOwn)
{
  EXPECT_FALSE(typePathInUse());
  EXPECT_EQ(getPath(), nullptr);
  pushPath();
  addElemToPath("outer");
  const char *outer = getPath();
  for (int i = 0; i < 30; ++i) {
    pushPath();
    EXPECT_STREQ(getPath(), "");
    addElemToPath("inner");
  }
  // The address is good as long as the level stands.
  EXPECT_STREQ(outer, "outer");
  for (int i = 0; i < 30; ++i)
    popPath();
  EXPECT_EQ(getPath(), outer);
  addElemToPath("!");
  EXPECT_STREQ(outer, "outer!");
  EXPECT_TRUE(typePathInUse());
  popPath();
  EXPECT_FALSE(typePathInUse());
}

TEST_F(TypePath, ResetDropsAllLevels)
{
  pushPath();
  pushPath();
  EXPECT_EQ(get_TPathStackDepth(tPathStack), 2);
  resetPath();
  EXPECT_EQ(get_TPathStackDepth(tPathStack), 0);
  EXPECT_FALSE(typePathInUse());
  resetPath();
}

TEST_F(TypePath, RoomForText)
{
  pushPath();
  addElemToPath(std::string(1024, 'x').c_str());
  EXPECT_EQ(std::string(getPath()), std::string(1024, 'x'));
  EXPECT_EXIT(addElemToPath("y"), ExitedWithCode(2),
              "Type name path buffer overflow");
  addElemToPath("");
  removeElemFromPath();
  removeElemFromPath();
  EXPECT_EXIT(addElemToPath(std::string(1025, 'x').c_str()), ExitedWithCode(2),
              "Type name path buffer overflow");
}

TEST_F(TypePath, Failures)
{
  EXPECT_EXIT(addElemToPath("x"), ExitedWithCode(2), emptyStack);
  EXPECT_EXIT(removeElemFromPath(), ExitedWithCode(2), emptyStack);
  EXPECT_EXIT(popPath(), ExitedWithCode(2), emptyStack);
  pushPath();
  EXPECT_EXIT(removeElemFromPath(), ExitedWithCode(2),
              "Corrupted type name element stack");
}

TEST_F(TypePath, StackOperations)
{
  TPathStack stack;
  initTPathStack(stack);
  TPath path;
  path.used = 17;
  EXPECT_FALSE(getTPathStackTop(stack, path));
  EXPECT_EQ(path.used, 17);
  swapTPathStackTop(stack, path);
  EXPECT_EQ(get_TPathStackDepth(stack), 0);
  EXPECT_FALSE(popTPathStack(stack));
  pushTPathStack(stack, path);
  path.used = 18;
  TPath top;
  ASSERT_TRUE(getTPathStackTop(stack, top));
  EXPECT_EQ(top.used, 17);
  swapTPathStackTop(stack, path);
  ASSERT_TRUE(getTPathStackTop(stack, top));
  EXPECT_EQ(top.used, 18);
  EXPECT_EQ(get_TPathStackDepth(stack), 1);
  pushTPathStack(stack, path);
  EXPECT_TRUE(popTPathStack(stack));
  clearTPathStack(stack);
  EXPECT_EQ(get_TPathStackDepth(stack), 0);
}

TEST_F(TypePath, StartOfARun)
{
  pushPath();
  addElemToPath("x");
  pushStack(asnTypePtrStack, nullptr);
  initializeAsnTypes();
  EXPECT_FALSE(typePathInUse());
  EXPECT_EQ(getStackDepth(asnTypePtrStack), 0);
}
