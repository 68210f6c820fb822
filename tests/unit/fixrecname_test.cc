// Fix records: the conversion of names, and what a record gives.

#include "options/fixrec.h"
#include "store/codes.h"
#include <gtest/gtest.h>

// --- conversion -------------------------------------------------------------

struct ConversionCase {
  const char *conv;
  const char *pref, *name, *suff;
  const char *expected;
};

TEST(PFixRec, Rules)
{
  const ConversionCase cases[] = {
      {"HL", "", "MyType", "", "my_type"},
      {"U", "", "MyType", "", "MYTYPE"},
      {"L", "", "MyType", "", "mytype"},
      {"H", "", "MyType", "", "My_Type"},
      {"HU", "", "MyType", "", "MY_TYPE"},
      {"hl", "", "MyType", "", "my_type"},
      {"hu", "", "MyType", "", "MY_TYPE"},
      {"u", "", "MyType", "", "MYTYPE"},
      {"l", "", "MyType", "", "mytype"},
      {"", "", "My-Type", "", "My_Type"},
      {nullptr, nullptr, "My-Type", nullptr, "My_Type"},
      // The character before counts as it stood, not as it was written.
      {"HL", "", "ABc", "", "abc"},
      {"HU", "", "abC", "", "AB_C"},
      {"HL", "", "aBCd", "", "a_bcd"},
      {"HL", "", "a9B", "", "a9_b"},
      {"HL", "", "A-B", "", "a_b"},
      {"HL", "", "a-B", "", "a_b"},
      {"HL", "", "a_B", "", "a_b"},
      {"H", "", "9A9", "", "9_A9"},
      // It is remembered across the parts.
      {"HL", "pre", "Type", "End", "pre_type_end"},
      {"HL", "PRE", "Type", "", "pretype"},
      {"HL", "p_", "Type", "_S", "p_type_s"},
      {"U", "p-", "a-b", "-s", "P_A_B_S"},
      {"", "", "a b.\xe4", "", "a b.\xe4"},
      {"U", "", "\xe4z", "", "\xe4Z"},
  };
  for (const ConversionCase &row : cases) {
    FixRec record;
    record.conv = row.conv;
    record.pref = row.pref;
    record.name = row.name;
    record.suff = row.suff;
    record.idLen = 100;
    std::string text = "left over";
    EXPECT_EQ(&pFixRec(text, record), &text);
    EXPECT_EQ(text, row.expected);
  }
}

TEST(PFixRec, NameIsCutBeforeConversion)
{
  FixRec record;
  record.conv = "HL";
  record.pref = "longPrefix";
  record.name = "MyTypeName";
  record.suff = "longSuffix";
  record.idLen = 4;
  std::string text;
  EXPECT_EQ(pFixRec(text, record), "long_prefix_my_tylong_suffix");
  record.idLen = 0;
  EXPECT_EQ(pFixRec(text, record), "long_prefixlong_suffix");
}

TEST(PFixRec, TextMayBeAPart)
{
  std::string text = "abc";
  FixRec record;
  record.name = text.c_str();
  record.pref = "p";
  record.idLen = 3;
  EXPECT_EQ(pFixRec(text, record), "pabc");
}

static FixRec fixRec(const char *id, int32_t idLen, const char *name = nullptr,
                     const char *conv = nullptr)
{
  FixRec record;
  record.id = id;
  record.idLen = idLen;
  record.name = name;
  record.conv = conv;
  return record;
}

TEST(PrintFixRec, WithoutName)
{
  std::string text;
  EXPECT_EQ(printFixRec(text, "<", fixRec("my-id", 5), ">"), "<my-id>");
  EXPECT_EQ(printFixRec(text, nullptr, fixRec("my-id", 2), nullptr), "my");
  EXPECT_EQ(printFixRec(text, nullptr, fixRec("my-id", 9, ""), nullptr),
            "my-id");
  EXPECT_EQ(printFixRec(text, "a", FixRec{}, "b"), "ab");
}

TEST(PrintFixRec, WithName)
{
  std::string text;
  EXPECT_EQ(printFixRec(text, "<", fixRec("id", 9, "My-Name", "U"), ">"),
            "<MY_NAME>");
  // The parts around it are not converted.
  EXPECT_EQ(printFixRec(text, "a-", fixRec("id", 9, "b"), "-c"), "a-b-c");
}

TEST(CountFixRec, LengthOfTheOutput)
{
  EXPECT_EQ(countFixRec(fixRec("my-id", 5)), 5u);
  EXPECT_EQ(countFixRec(fixRec("my-id", 3)), 3u);
  EXPECT_EQ(countFixRec(fixRec("id", 9, "MyName", "HL")), 7u);
  EXPECT_EQ(countFixRec(FixRec{}), 0u);
}

TEST(CompareFixRec, Outputs)
{
  EXPECT_EQ(compareFixRec(fixRec("abc", 3), fixRec("abc", 3)), 0);
  EXPECT_NE(compareFixRec(fixRec("abc", 3), fixRec("abc", 2)), 0);
  EXPECT_NE(compareFixRec(fixRec("abc", 3), fixRec("abd", 3)), 0);
  EXPECT_NE(compareFixRec(fixRec("a-c", 3), fixRec("a_c", 3)), 0);
  EXPECT_EQ(compareFixRec(fixRec("x", 9, "a-c"), fixRec("y", 3, "a_c")), 0);
  EXPECT_EQ(compareFixRec(fixRec("x", 9, "abc", "U"), fixRec("y", 9, "ABC")),
            0);
  EXPECT_NE(compareFixRec(fixRec("x", 9, "abc"), fixRec("x", 9, "ABC")), 0);
  EXPECT_NE(compareFixRec(fixRec("abc", 3), fixRec("x", 9, "abd")), 0);
  // The lengths themselves differ, if not what they leave of the id.
  EXPECT_NE(compareFixRec(fixRec("abc", 3), fixRec("abc", 5)), 0);
  // With a name on one side only, the other's id is not looked at.
  EXPECT_NE(compareFixRec(fixRec("abc", 3), fixRec("x", 9, "abc")), 0);
  EXPECT_NE(compareFixRec(fixRec("x", 9, "abc"), fixRec("abc", 3, "")), 0);
  FixRec dressed = fixRec("abc", 3);
  dressed.pref = "p-";
  EXPECT_EQ(compareFixRec(dressed, fixRec("x", 9, "p_")), 0);
  // Without names, not at what they would be dressed in.
  EXPECT_EQ(compareFixRec(dressed, fixRec("abc", 3)), 0);
  EXPECT_EQ(compareFixRec(FixRec{}, FixRec{}), 0);
}

TEST(InitFixRec, TakesTheIdWithoutName)
{
  FixRec record;
  std::string text;
  initFixRec(record, "MyLongType", "p_", nullptr, "_s", "U", 6);
  EXPECT_EQ(pFixRec(text, record), "P_MYLONG_S");
  initFixRec(record, "MyType", nullptr, nullptr, nullptr, nullptr, 32);
  EXPECT_EQ(pFixRec(text, record), "MyType");
}

TEST(InitFixRec, TakesTheName)
{
  FixRec record;
  std::string text;
  initFixRec(record, "Id", nullptr, "Replacement", nullptr, "HL", 7);
  EXPECT_EQ(pFixRec(text, record), "replace");
  EXPECT_STREQ(record.id, "Id");
  EXPECT_EQ(record.next, nullptr);
}

TEST(CopyFixRec, AnotherIdInTheSameDress)
{
  FixRec source, copy;
  std::string text;
  initFixRec(source, "First", "p_", nullptr, "_s", "L", 32);
  source.name = nullptr;
  copyFixRec(copy, source, "SecondType", 6);
  EXPECT_EQ(pFixRec(text, copy), "p_second_s");
  source.name = "Other";
  copyFixRec(copy, source, "Second", 32);
  EXPECT_EQ(pFixRec(text, copy), "p_other_s");
}

// --- names of main types ----------------------------------------------------

TEST(AsnTypeName, Names)
{
  std::string text;
  EXPECT_EQ(asnTypeName(text, nullptr, TYP_TYPE_ID, false, nullptr),
            "TYPE_IDENTIFIER");
  EXPECT_EQ(asnTypeName(text, "a ", TYP_INTEGER, false, " b"), "a INTEGER b");
  EXPECT_EQ(asnTypeName(text, nullptr, TYP_OCTSTR, false, nullptr),
            "OCTET STRING");
  EXPECT_EQ(asnTypeName(text, nullptr, TYP_OCTSTR, true, nullptr),
            "OCTET_STRING");
}

TEST(AsnTypeName, OutOfRange)
{
  std::string text;
  for (int code : {-1, 42, 1000})
    EXPECT_EQ(asnTypeName(text, "<", code, true, ">"), "<>") << code;
}
