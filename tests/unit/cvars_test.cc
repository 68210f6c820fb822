// The rows of local variables that the toolkit's start sets.

#include "cbet/cvars.h"
#include "store/module.h"
#include <gtest/gtest.h>
#include <string>

struct CVars : testing::Test {
  CVars() { resetStore(); }
  ~CVars() override
  {
    resetStore();
    cInitVars();
  }
};

constexpr uint32_t signedControlMemberBit = 1u << 4;

TEST_F(CVars, FixedRows)
{
  cInitVars();
  const struct {
    int row;
    std::string name;
    std::string type;
  } rows[] = {
      {0, "a", "ASNHOME *"},
      {1, "h", ""},
      {2, "n", "uint32 "},
      {3, "ok", "BOOLE "},
  };
  for (const auto &[row, name, type] : rows) {
    EXPECT_EQ(localVarName[row], name);
    EXPECT_EQ(localVarType[row], type);
    EXPECT_EQ(localVarCount[row], 0);
  }
}

TEST_F(CVars, ClearsAllRows)
{
  for (int row = 0; row < 10; ++row) {
    localVarName[row] = "x";
    localVarType[row] = "int ";
    localVarCount[row] = 7;
  }
  cInitVars();
  EXPECT_EQ(localVarRows, 10);
  EXPECT_EQ(localVarName[1], "h");
  EXPECT_EQ(localVarType[1], "");
  for (int row = 0; row < 10; ++row)
    EXPECT_EQ(localVarCount[row], 0) << row;
  for (int row = 4; row < 10; ++row) {
    EXPECT_EQ(localVarName[row], "") << row;
    EXPECT_EQ(localVarType[row], "") << row;
  }
}

TEST_F(CVars, SignedLoopCounter)
{
  appendModRec(true)->options.cGeneration = signedControlMemberBit;
  cInitVars();
  EXPECT_EQ(localVarType[2], "sint32 ");
  bOfModRList->options.cGeneration = ~signedControlMemberBit;
  cInitVars();
  EXPECT_EQ(localVarType[2], "uint32 ");
}

TEST_F(CVars, FirstModuleOfTheListDecides)
{
  appendModRec(true);
  appendModRec(true)->options.cGeneration = signedControlMemberBit;
  cInitVars();
  EXPECT_EQ(localVarType[2], "uint32 ");
}
