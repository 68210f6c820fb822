#include "asn2stx/diagnose.h"
#include <gtest/gtest.h>

static std::string printed(const AsnErrors &errors)
{
  testing::internal::CaptureStdout();
  asnPrintErrors(errors, stdout);
  return testing::internal::GetCapturedStdout();
}

TEST(AsnDiagnose, SortedByPlace)
{
  AsnErrors errors;
  errors.files = {"a.asn", "b.asn"};
  asnError(errors, {1, 1, 1}, "of %s", "b");
  asnError(errors, {0, 2, 1}, "third");
  asnError(errors, {0, 1, 5}, "second");
  asnError(errors, {0, 1, 4}, "first");
  EXPECT_EQ(printed(errors), "a.asn:1:4: error: first\n"
                             "a.asn:1:5: error: second\n"
                             "a.asn:2:1: error: third\n"
                             "b.asn:1:1: error: of b\n");
}

TEST(AsnDiagnose, OncePerPlace)
{
  AsnErrors errors;
  errors.files = {"a"};
  asnError(errors, {0, 1, 1}, "first");
  asnError(errors, {0, 1, 1}, "same place");
  asnError(errors, {0, 0, 0}, "no place");
  asnError(errors, {0, 0, 0}, "no place either");
  EXPECT_EQ(printed(errors), "a: error: no place\n"
                             "a: error: no place either\n"
                             "a:1:1: error: first\n");
}

TEST(AsnDiagnose, Bounded)
{
  AsnErrors errors;
  for (int i = 1; i <= 1001; i++)
    asnError(errors, {0, i, 1}, "e");
  EXPECT_EQ(errors.errors.size(), 1000u);
}

TEST(AsnDiagnose, Quoted)
{
  EXPECT_EQ(asnQuoted("name"), "\"name\"");
  EXPECT_EQ(asnQuoted(""), "\"\"");
  EXPECT_EQ(asnQuoted("a\nb"), "\"a?b\"");
  EXPECT_EQ(asnQuoted(std::string(64, 'x')),
            "\"" + std::string(64, 'x') + "\"");
  EXPECT_EQ(asnQuoted(std::string(65, 'x')),
            "\"" + std::string(64, 'x') + "...\"");
}
