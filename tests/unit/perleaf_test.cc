// Pieces of the calls for leaves.

#include "per/perleaf.h"
#include "per/perlength.h"
#include "support/writtentext.h"
#include <gtest/gtest.h>

namespace {

std::string call(const char *home, int32_t upper)
{
  return writtenText(
      [=](int file) { perStringCallToF(file, "pe_X (", home, 1, upper, 2); });
}

TEST(PerLeaf, StringCall)
{
  EXPECT_EQ(call("&home->a_fld,", 4), "pe_X (&home->a_fld, 1, 4, 2);\n");
  EXPECT_EQ(call("home,", sizeWithoutEnd), "pe_X (home, 1, MAXLONG, 2);\n");
  EXPECT_EQ(call("home,", sizeWithoutEnd - 1),
            "pe_X (home, 1, 2147483646, 2);\n");
}

// Without a home the first bound has no blank ahead.
TEST(PerLeaf, StringCallWithoutHome)
{
  EXPECT_EQ(call(nullptr, 4), "pe_X (1, 4, 2);\n");
}

TEST(PerLeaf, StringCallPieces)
{
  EXPECT_EQ(
      brokenTexts([](int file) {
        perStringCallToF(file, "pe_X (", "home,", 10, 40, 2);
      }),
      (std::set<std::string>{"pe_X (home, 10, 40, 2);\n", "home, 10, 40, 2);\n",
                             "10, 40, 2);\n", "40, 2);\n", "2);\n"}));
}

// The target is found by its first letter, whatever follows there.
TEST(PerLeaf, Substitution)
{
  std::string text = "pe_OctetString_al_u (";
  EXPECT_EQ(perUnknownMultiplierName(text), "pe_UnknownMultiCharStri_al_u (");
  text = "a Omega and more";
  EXPECT_EQ(substituteSubString(text, "Octet", "!"), "a ! and more");
  text = "xO";
  EXPECT_EQ(substituteSubString(text, "Octet", "!"), "x!");
  text = "nothing here";
  EXPECT_EQ(substituteSubString(text, "Octet", "!"), "nothing here");
  EXPECT_EQ(substituteSubString(text, "", "!"), "nothing here");
}

}  // namespace
