// Indexes of alternatives, and open types.

#include "base/strings.h"
#include "per/perchoice.h"
#include "per/variant.h"
#include "support/loadedasn.h"
#include "support/writtentext.h"
#include <gmock/gmock.h>

using testing::ExitedWithCode;
using testing::UnorderedElementsAre;

namespace {

constexpr int unknownVariant = 2;

struct PerChoice : LoadedAsn {
  int variant = perGetEncodingVariant();

  PerChoice() { perSetEncodingVariant(VARIANT_ALIGNED); }
  ~PerChoice() override
  {
    perSetEncodingVariant(variant);
    clearOutFiles();
  }

  // "result: upper, bits" of a CHOICE, 77 standing for what is left alone.
  std::string rootIndex(const std::string &alternatives)
  {
    load("T ::= CHOICE { " + alternatives + " }\n");
    TestType view(module, type("T"));
    int32_t upper = 77;
    int bits = 77;
    int result = perGetChoiceRootIndexField(*view, upper, bits);
    return formatText("%d: %d, %d", result, upper, bits);
  }
  static std::string alternatives(int count)
  {
    std::string text;
    for (int i = 0; i < count; ++i)
      text += formatText("%sa%d NULL", i ? ", " : "", i);
    return text;
  }

  static TextWriter rootCall(int field, const char *prefix, const char *value,
                             int32_t upper, int bits, const char *suffix)
  {
    return [=](int file) {
      perChoiceRootIndexFunctionNameToF(file, prefix, field, value, upper, bits,
                                        suffix);
    };
  }
  static TextWriter addCall(const char *prefix, const char *argument,
                            const char *suffix)
  {
    return [=](int file) {
      perChoiceAddIndexFunctionNameToF(file, prefix, argument, suffix);
    };
  }
  static std::string openType(const char *prefix, const char *suffix)
  {
    std::string text = "old";
    EXPECT_EQ(&perOpenTypeFunctionName(text, prefix, suffix), &text);
    return text;
  }
};

// --- the index of root alternatives -----------------------------------------

TEST_F(PerChoice, CountsOfAlternatives)
{
  struct {
    int count;
    const char *expected;
  } rows[] = {
      {1, "0: 0, 0"},
      {2, "1: 1, 1"},
      {3, "1: 2, 2"},
      {4, "1: 3, 2"},
      {5, "1: 4, 3"},
      {128, "1: 127, 7"},
      {129, "1: 128, 8"},
      {254, "1: 253, 8"},
      {255, "1: 254, 8"},
      // As for one alternative, but nothing is told.
      {256, "0: 77, 77"},
      {257, "0: 77, 77"},
  };
  for (const auto &row : rows)
    EXPECT_EQ(rootIndex(alternatives(row.count)), row.expected) << row.count;
}

TEST_F(PerChoice, AdditionsDoNotCount)
{
  EXPECT_EQ(rootIndex("a NULL, b NULL, ..., c NULL, d NULL, e NULL"),
            "1: 1, 1");
  EXPECT_EQ(rootIndex("a NULL, ..., b NULL"), "0: 0, 0");
  EXPECT_EQ(rootIndex("a NULL, b NULL, c NULL, ..."), "1: 2, 2");
  EXPECT_EQ(rootIndex(alternatives(255) + ", ..., x NULL"), "1: 254, 8");
}

TEST_F(PerChoice, NoRootAlternative)
{
  EXPECT_EQ(rootIndex("..., a NULL"), "1: -1, 0");
}

TEST_F(PerChoice, IndexFunctions)
{
  struct {
    int variant, field;
    const char *name;
  } rows[] = {
      {VARIANT_ALIGNED, 0, "ChoiceIndex_al_eq1"},
      {VARIANT_ALIGNED, 1, "ChoiceIndex_al_le255"},
      {VARIANT_UNALIGNED, 0, "ChoiceIndex_ua_eq1"},
      {VARIANT_UNALIGNED, 1, "ChoiceIndex_ua_le255"},
  };
  for (const auto &row : rows) {
    perSetEncodingVariant(row.variant);
    EXPECT_STREQ(choiceIndexFuncName(row.field), row.name);
  }
}

TEST_F(PerChoice, NoIndexFunction)
{
  for (int chosen : {VARIANT_ALIGNED, VARIANT_UNALIGNED}) {
    perSetEncodingVariant(chosen);
    EXPECT_EQ(choiceIndexFuncName(-1), nullptr);
    EXPECT_EQ(choiceIndexFuncName(2), nullptr);
  }
  for (int chosen : {unknownVariant, -1}) {
    perSetEncodingVariant(chosen);
    EXPECT_EQ(choiceIndexFuncName(0), nullptr);
    EXPECT_EQ(choiceIndexFuncName(1), nullptr);
  }
}

TEST_F(PerChoice, RootCallWithValue)
{
  TextWriter call = rootCall(1, "pe_", "home->choice", 1, 1, ";\n");
  EXPECT_EQ(writtenText(call),
            "pe_ChoiceIndex_al_le255 (home->choice, 1, 1);\n");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(writtenText(call),
            "pe_ChoiceIndex_ua_le255 (home->choice, 1, 1);\n");
}

TEST_F(PerChoice, RootCallWithoutValue)
{
  EXPECT_EQ(writtenText(rootCall(1, " (uint8)pd_", nullptr, 253, 8, ";\n")),
            " (uint8)pd_ChoiceIndex_al_le255 (253, 8);\n");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(writtenText(rootCall(1, " pd_", nullptr, 253, 8, ";\n")),
            " pd_ChoiceIndex_ua_le255 (253, 8);\n");
}

TEST_F(PerChoice, RootCallOfOtherFields)
{
  EXPECT_EQ(writtenText(rootCall(0, "pe_", "3", 0, 0, nullptr)),
            "pe_ChoiceIndex_al_eq1 (3, 0, 0)");
  EXPECT_EQ(writtenText(rootCall(1, nullptr, nullptr, -1, 0, nullptr)),
            "ChoiceIndex_al_le255 (-1, 0)");
  EXPECT_EQ(writtenText(rootCall(2, "pe_", "3", 1, 1, ";\n")), "");
  perSetEncodingVariant(unknownVariant);
  EXPECT_EQ(writtenText(rootCall(1, "pe_", "3", 1, 1, ";\n")), "");
}

TEST_F(PerChoice, LineBreaksInTheRootCall)
{
  EXPECT_THAT(
      brokenTexts(rootCall(1, "pe_", "home->choice", 12, 34, ";\n")),
      UnorderedElementsAre("pe_ChoiceIndex_al_le255 (home->choice, 12, 34);\n",
                           "home->choice, 12, 34);\n", "12, 34);\n", "34);\n"));
  // Cast, prefix and name hold together.
  EXPECT_THAT(
      brokenTexts(rootCall(1, " (uint8)pd_", nullptr, 123, 45, ";\n")),
      UnorderedElementsAre("(uint8)pd_ChoiceIndex_al_le255 (123, 45);\n",
                           "123, 45);\n", "45);\n"));
}

// --- the index of an addition -----------------------------------------------

TEST_F(PerChoice, AdditionCall)
{
  TextWriter call = addCall("pe_", "home->choice - 3", ";\n");
  EXPECT_EQ(writtenText(call), "pe_ChoiceIndex_al_ns (home->choice - 3);\n");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(writtenText(call), "pe_ChoiceIndex_ua_ns (home->choice - 3);\n");
}

TEST_F(PerChoice, AdditionCallWithoutArgument)
{
  EXPECT_EQ(writtenText(addCall(" pd_", nullptr, ";\n")),
            " pd_ChoiceIndex_al_ns ();\n");
  perSetEncodingVariant(VARIANT_UNALIGNED);
  EXPECT_EQ(writtenText(addCall(nullptr, nullptr, nullptr)),
            "ChoiceIndex_ua_ns ()");
}

TEST_F(PerChoice, AdditionCallWithoutAVariant)
{
  perSetEncodingVariant(unknownVariant);
  EXPECT_EQ(writtenText(addCall("pe_", "3", ";\n")), "pe_!?!?!3);\n");
  EXPECT_EQ(writtenText(addCall(" pd_", nullptr, ";\n")), " pd_!?!?!);\n");
}

TEST_F(PerChoice, LineBreaksInTheAdditionCall)
{
  EXPECT_THAT(brokenTexts(addCall("pe_", "home->choice - 3", ";\n")),
              UnorderedElementsAre("pe_ChoiceIndex_al_ns (home->choice - 3);\n",
                                   "home->choice - 3);\n"));
}

// --- open types -------------------------------------------------------------

TEST_F(PerChoice, OpenTypeFunctions)
{
  for (const char *prefix :
       {"pe_Begin", "pe_End", "pe_Frame", "pd_Begin", "pd_End", "pd_Frame"}) {
    perSetEncodingVariant(VARIANT_ALIGNED);
    EXPECT_EQ(openType(prefix, " (&"), std::string(prefix) + "OpenType_al (&");
    perSetEncodingVariant(VARIANT_UNALIGNED);
    EXPECT_EQ(openType(prefix, " (&"), std::string(prefix) + "OpenType_ua (&");
  }
  EXPECT_EQ(openType(nullptr, nullptr), "OpenType_ua");
}

TEST_F(PerChoice, OpenTypeOfAnUnknownVariant)
{
  for (int chosen : {unknownVariant, -1}) {
    perSetEncodingVariant(chosen);
    std::string text;
    EXPECT_EXIT(perOpenTypeFunctionName(text, "pe_Begin", " (&"),
                ExitedWithCode(2),
                "Internal error\n +Unknown encoding variant\n");
  }
}

}  // namespace
