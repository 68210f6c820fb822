// The fragments by which generated code reports an error.

#include "cbet/errorformat.h"
#include "cbet/outfile.h"
#include "support/tempdir.h"
#include <gtest/gtest.h>
#include <string>

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

// --- reports ----------------------------------------------------------------

struct ErrorReport : ErrorFormat {
  TempDir dir;
  ErrorReport()
  {
    clearOutFiles();
    openNamedF(1, dir.path.c_str(), "out.c");
  }
  ~ErrorReport() override
  {
    forEachOpenFile(closeF);
    clearOutFiles();
  }
  std::string written() const
  {
    closeF(1);
    return readFile(dir.path + "out.c");
  }
};

TEST_F(ErrorReport, Default)
{
  cSetErrorReportingFunctionFormat(nullptr);
  cReportError(1, "AM_FAIL");
  EXPECT_EQ(written(), "reportError (ASNG_F(asncodg) AM_FAIL);\n");
}

TEST_F(ErrorReport, AsSet)
{
  cSetErrorReportingFunctionFormat("asnPERError (ASNG_F(asnperg) %s);\n");
  cReportError(1, "DM_FAIL");
  EXPECT_EQ(written(), "asnPERError (ASNG_F(asnperg) DM_FAIL);\n");
}

TEST_F(ErrorReport, FatalHasAFormOfItsOwn)
{
  cSetErrorReportingFunctionFormat("mine (%s);\n");
  cReportFatalError(1, 4, "LACK_OF_MEMORY");
  cReportFatalError(1, 0, "LACK_OF_MEMORY");
  EXPECT_EQ(written(), "reportFatalError (LACK_OF_MEMORY);\n"
                       "reportFatalError (LACK_OF_MEMORY);\n");
}

TEST_F(ErrorReport, OneText)
{
  cSetErrorReportingFunctionFormat(nullptr);
  wToF(1, std::string(70, 'x').c_str());
  cReportError(1, "AM_FAIL");
  EXPECT_EQ(written(), std::string(70, 'x') +
                           "\n  reportError (ASNG_F(asncodg) AM_FAIL);\n");
}

TEST_F(ErrorReport, NoFile)
{
  cReportError(0, "AM_FAIL");
  cReportFatalError(0, 4, "AM_FAIL");
  EXPECT_EQ(written(), "");
}
