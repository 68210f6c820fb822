// Symbol tables: numbering, look-up both ways, the record's life.

#include "cbet/symboltable.h"
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

// An empty table that is gone when the test ends.
struct SymbolTableTest : testing::Test {
  SymbolTable *table = newSymbolTable();
  ~SymbolTableTest() override { deleteSymbolTable(table); }
};

TEST_F(SymbolTableTest, NumbersFromOne)
{
  EXPECT_EQ(getNrOfSymbols(*table), 0);
  EXPECT_EQ(putSymbol(*table, "alpha"), 1);
  EXPECT_EQ(putSymbol(*table, "beta"), 2);
  EXPECT_EQ(getNrOfSymbols(*table), 2);
  EXPECT_STREQ(getSymbol(*table, 1), "alpha");
  EXPECT_STREQ(getSymbol(*table, 2), "beta");
}

TEST_F(SymbolTableTest, EqualTextsShareANumber)
{
  std::string text = "alpha";
  putSymbol(*table, "first");
  EXPECT_EQ(putSymbol(*table, text.c_str()), 2);
  EXPECT_EQ(putSymbol(*table, "alpha"), 2);
  EXPECT_EQ(getNrOfSymbols(*table), 2);
  // Case counts, and so does a prefix.
  EXPECT_EQ(putSymbol(*table, "Alpha"), 3);
  EXPECT_EQ(putSymbol(*table, "alph"), 4);
}

TEST_F(SymbolTableTest, KeepsACopy)
{
  char text[] = "gamma";
  putSymbol(*table, text);
  text[0] = 'G';
  EXPECT_STREQ(getSymbol(*table, 1), "gamma");
}

TEST_F(SymbolTableTest, EmptyTextIsATextToo)
{
  EXPECT_EQ(putSymbol(*table, ""), 1);
  EXPECT_EQ(putSymbol(*table, ""), 1);
  EXPECT_STREQ(getSymbol(*table, 1), "");
}

// More than several pages of 99 entries.
TEST_F(SymbolTableTest, ManySymbols)
{
  constexpr int count = 1000;
  for (int i = 1; i <= count; ++i)
    ASSERT_EQ(putSymbol(*table, ("s" + std::to_string(i)).c_str()), i);
  for (int i = count; i >= 1; --i) {
    std::string text = "s" + std::to_string(i);
    ASSERT_EQ(putSymbol(*table, text.c_str()), i);
    ASSERT_EQ(getSymbol(*table, i), text);
  }
  EXPECT_EQ(getNrOfSymbols(*table), count);
}

TEST_F(SymbolTableTest, NumbersThatWereNeverGiven)
{
  putSymbol(*table, "only");
  for (int32_t index : {0, 2, 1000, -2, INT32_MAX, INT32_MIN})
    EXPECT_EXIT(getSymbol(*table, index), testing::ExitedWithCode(2),
                "Can not read record from syntax tree");
}

TEST_F(SymbolTableTest, SignDoesNotCount)
{
  putSymbol(*table, "a");
  putSymbol(*table, "b");
  EXPECT_STREQ(getSymbol(*table, -1), "a");
  EXPECT_STREQ(getSymbol(*table, -2), "b");
}

TEST_F(SymbolTableTest, NumberOfTheEmptyText)
{
  EXPECT_STREQ(getSymbol(*table, 2147483642), "");
  EXPECT_EQ(getNrOfSymbols(*table), 0);
}

TEST_F(SymbolTableTest, NullIsNoText)
{
  EXPECT_EXIT(putSymbol(*table, nullptr), testing::ExitedWithCode(2),
              "Can not write record into syntax tree");
}

TEST_F(SymbolTableTest, TablesAreApart)
{
  SymbolTable *other = newSymbolTable();
  putSymbol(*table, "a");
  EXPECT_EQ(putSymbol(*other, "b"), 1);
  EXPECT_EQ(getNrOfSymbols(*other), 1);
  EXPECT_STREQ(getSymbol(*table, 1), "a");
  EXPECT_STREQ(getSymbol(*other, 1), "b");
  deleteSymbolTable(other);
  EXPECT_STREQ(getSymbol(*table, 1), "a");
}

TEST(SymbolTableRecord, FreshAfterReuse)
{
  SymbolTable *first = newSymbolTable();
  putSymbol(*first, "old");
  deleteSymbolTable(first);
  SymbolTable *second = newSymbolTable();
  EXPECT_EQ(second, first) << "the record comes from a free list";
  EXPECT_EQ(getNrOfSymbols(*second), 0);
  EXPECT_EQ(putSymbol(*second, "new"), 1);
  deleteSymbolTable(second);
}

TEST(SymbolTableRecord, DeleteNeedsTheStateInMemory)
{
  deleteSymbolTable(nullptr);
  // A bare record is not in that state: it stays, and is freed by hand.
  SymbolTable *bare = allocSymbolTable();
  deleteSymbolTable(bare);
  SymbolTable *next = allocSymbolTable();
  EXPECT_NE(next, bare);
  freeSymbolTable(next);
  freeSymbolTable(bare);
  SymbolTable *reused = allocSymbolTable();
  EXPECT_EQ(reused, bare);
  freeSymbolTable(reused);
}
