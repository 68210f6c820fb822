// Prefixes of generated functions, through the options that choose them.

#include "base/upcalls.h"
#include "driver/meta.h"
#include "per/funcprefs.h"
#include "support/fragtrees.h"

namespace {

const FuncPrefixes prefixes = {
    .normal = {{"n0", "n1", "n2"}, {"m0", "m1", "m2"}},
    .entry = {{"e0", "e1", "e2"}, {"f0", "f1", "f2"}},
    .entryBer = {"b0", "b1", "b2"},
};

struct FuncPrefs : FragTrees {
  std::string chosen(int berPref, int variantPref, int variant)
  {
    BEModMetaRec &meta = *getBEModMetaRec(module);
    meta.berFuncPref = static_cast<uint8_t>(berPref);
    meta.variantFuncPref = static_cast<uint8_t>(variantPref);
    meta.encodingVariant = static_cast<uint8_t>(variant);
    TypeFuncInfo info;
    perSetFuncPrefs(module, info, prefixes);
    return std::string(info.normalFuncPrefix) + " " + info.entryFuncPrefix;
  }
};

TEST_F(FuncPrefs, Rows)
{
  start();
  EXPECT_EQ(chosen(0, 0, 0), "n0 e0");
  EXPECT_EQ(chosen(0, 0, 1), "n1 e1");
  EXPECT_EQ(chosen(0, 1, 0), "m0 f0");
  EXPECT_EQ(chosen(0, 1, 1), "m1 f1");
  EXPECT_EQ(chosen(1, 0, 0), "n0 b0");
  EXPECT_EQ(chosen(1, 0, 1), "n1 b1");
  EXPECT_EQ(chosen(1, 1, 0), "m0 b0");
  EXPECT_EQ(chosen(1, 1, 1), "m1 b1");
}

// A number that no option can set counts as unknown.
TEST_F(FuncPrefs, UnknownVariant)
{
  start();
  EXPECT_EQ(chosen(0, 0, 2), "n2 e2");
  EXPECT_EQ(chosen(0, 1, 7), "m2 f2");
  EXPECT_EQ(chosen(1, 1, 2), "m2 b2");
}

}  // namespace
