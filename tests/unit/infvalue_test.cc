// What value printers write for an infinite number.

#include "model/infvalue.h"
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>

using testing::ElementsAre;

// No other test of the process changes the texts and leaves them so: these
// are the defaults.
struct InfValue : testing::Test {
  std::string saved[4];
  InfValue() { std::copy_n(infValueStri, 4, saved); }
  ~InfValue() override { std::copy_n(saved, 4, infValueStri); }
};

TEST_F(InfValue, Defaults)
{
  EXPECT_THAT(infValueStri, ElementsAre("MINUS-INFINITY", "PLUS-INFINITY",
                                        "MINUS-INFINITY", "PLUS-INFINITY"));
}

TEST_F(InfValue, SetsAllFour)
{
  setInfValueStri("a", "b", "c", "");
  EXPECT_THAT(infValueStri, ElementsAre("a", "b", "c", ""));
}

TEST_F(InfValue, NullKeepsThePresentText)
{
  setInfValueStri("a", "b", "c", "d");
  setInfValueStri(nullptr, "B", nullptr, nullptr);
  EXPECT_THAT(infValueStri, ElementsAre("a", "B", "c", "d"));
  setInfValueStri(nullptr, nullptr, nullptr, nullptr);
  EXPECT_THAT(infValueStri, ElementsAre("a", "B", "c", "d"));
  setInfValueStri("A", nullptr, "C", "D");
  EXPECT_THAT(infValueStri, ElementsAre("A", "B", "C", "D"));
}
