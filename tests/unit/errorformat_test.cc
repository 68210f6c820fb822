// The fragment by which generated code reports an error.

#include "cbet/errorformat.h"
#include <gtest/gtest.h>

struct ErrorFormat : testing::Test {
  const char *saved = g_errorReportingFunctionFormat;
  ~ErrorFormat() override { g_errorReportingFunctionFormat = saved; }
};

TEST_F(ErrorFormat, Set)
{
  cSetErrorReportingFunctionFormat("mine (%s);\n");
  EXPECT_STREQ(g_errorReportingFunctionFormat, "mine (%s);\n");
  cSetErrorReportingFunctionFormat("");
  EXPECT_STREQ(g_errorReportingFunctionFormat, "");
}

TEST_F(ErrorFormat, NullBringsTheDefaultBack)
{
  cSetErrorReportingFunctionFormat("mine (%s);\n");
  cSetErrorReportingFunctionFormat(nullptr);
  EXPECT_STREQ(g_errorReportingFunctionFormat,
               "reportError (ASNG_F(asncodg) %s);\n");
}
