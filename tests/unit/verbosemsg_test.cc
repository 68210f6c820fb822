// Progress lines: by the module's verbosity, the line's level and "-V=".

#include "base/diag.h"
#include "base/upcalls.h"
#include "store/module.h"
#include <gtest/gtest.h>
#include <string>

// A module alone.
struct VerboseMsg : testing::Test {
  std::string savedName = backendName;
  int savedLevel = verboseEx;
  ModRec record;
  AsnModule module;

  VerboseMsg()
  {
    backendName = "QUORVEN";
    record.beMeta = newBEModMetaRec();
    module.rec = &record;
  }
  ~VerboseMsg() override
  {
    deleteBEModMetaRec(record.beMeta);
    backendName = savedName;
    verboseEx = savedLevel;
  }
  VerboseMsg(const VerboseMsg &) = delete;

  // What is said on stdout; stderr must stay empty.
  std::string said(int verbosity, int level, int verboseLevel)
  {
    setMetaVerbosity(module, verbosity);
    verboseEx = verboseLevel;
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    verboseMsg(module, level, "100%s done");
    std::string text = testing::internal::GetCapturedStdout();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    return text;
  }
};

TEST_F(VerboseMsg, VerbosityAgainstLevel)
{
  const struct {
    int verbosity;
    int level;
    bool prints;
  } rows[] = {
      {0, 0, false}, {0, 1, false}, {0, 2, false}, {1, 0, true}, {1, 1, true},
      {1, 2, false}, {2, 0, true},  {2, 1, true},  {2, 2, true}, {2, 3, false},
  };
  for (const auto &[verbosity, level, prints] : rows)
    for (int verboseLevel : {3, 4})
      EXPECT_EQ(said(verbosity, level, verboseLevel),
                prints ? "QUORVEN>>> 100%s done\n" : "")
          << verbosity << " at " << level;
}

TEST_F(VerboseMsg, NeedsLevelThree)
{
  EXPECT_EQ(said(2, 1, 1), "");
  EXPECT_EQ(said(2, 1, 2), "");
  EXPECT_NE(said(2, 1, 3), "");
}

TEST_F(VerboseMsg, NamesTheBackend)
{
  backendName = "OTHER";
  EXPECT_EQ(said(1, 1, 3), "OTHER>>> 100%s done\n");
}
