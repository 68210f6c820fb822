// Versions and times as they are printed.

#include "store/stamp.h"
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

static std::string versionText(const char *prefix, int version, int patch,
                               const char *suffix)
{
  std::string text = "old";
  EXPECT_EQ(&printVersionStri(text, prefix, version, patch, suffix), &text);
  return text;
}

TEST(PrintVersionStri, WithPatchLevel)
{
  EXPECT_EQ(versionText("Version ", 101, 3, "!"), "Version 1.01.3!");
  EXPECT_EQ(versionText("", 101, 1, ""), "1.01.1");
  EXPECT_EQ(versionText("", 213, 12, ""), "2.13.12");
}

TEST(PrintVersionStri, WithoutPatchLevel)
{
  EXPECT_EQ(versionText("<", 213, 0, ">"), "<2.13>");
  EXPECT_EQ(versionText("", 201, -1, ""), "2.01");
  EXPECT_EQ(versionText("", 5, 0, ""), "0.05");
}

TEST(PrintVersionStri, NullTextsAreEmpty)
{
  EXPECT_EQ(versionText(nullptr, 101, 3, nullptr), "1.01.3");
  EXPECT_EQ(versionText(nullptr, 101, 0, nullptr), "1.01");
}

// "%d.%02d" of the quotient and the remainder, both with the sign.
TEST(PrintVersionStri, Negative)
{
  EXPECT_EQ(versionText("", -5, 0, ""), "0.-5");
  EXPECT_EQ(versionText("", -213, 0, ""), "-2.-13");
}

TEST(PrintVersionStri, DestinationAsPrefix)
{
  std::string text = "v ";
  printVersionStri(text, text.c_str(), 213, 0, text.c_str());
  EXPECT_EQ(text, "v 2.13v ");
}

static std::string timeText(int32_t date, int32_t clock)
{
  std::string text = "old";
  StampRec stamp{213, 213, date, clock};
  EXPECT_EQ(&printTimeStamp(text, nullptr, stamp, nullptr), &text);
  return text;
}

TEST(PrintTimeStamp, Digits)
{
  EXPECT_EQ(timeText(20240131, 235959), "on 31.01.2024 at 23:59.59");
  // Only the hour stands without a leading zero.
  EXPECT_EQ(timeText(20241205, 70509), "on 05.12.2024 at 7:05.09");
  EXPECT_EQ(timeText(19990909, 0), "on 09.09.1999 at 0:00.00");
  EXPECT_EQ(timeText(0, 0), "on 00.00.0 at 0:00.00");
}

TEST(PrintTimeStamp, PrefixAndSuffix)
{
  std::string text;
  StampRec stamp{213, 213, 20240131, 120000};
  printTimeStamp(text, "written ", stamp, " by X");
  EXPECT_EQ(text, "written on 31.01.2024 at 12:00.00 by X");
  text = "a ";
  printTimeStamp(text, text.c_str(), stamp, text.c_str());
  EXPECT_EQ(text, "a on 31.01.2024 at 12:00.00a ");
}

// --- this moment ------------------------------------------------------------

// Puts the time zone back when the test ends.
struct StampTimeZone : testing::Test {
  std::string before;
  bool wasSet;

  StampTimeZone()
  {
    const char *zone = getenv("TZ");
    wasSet = zone;
    before = zone ? zone : "";
  }
  ~StampTimeZone() override
  {
    if (wasSet)
      setenv("TZ", before.c_str(), 1);
    else
      unsetenv("TZ");
    tzset();
  }
};

// The decimal digits of a stamp as seconds since 1970, by the calendar.
static int64_t secondsOf(const StampRec &stamp)
{
  struct tm parts = {};
  parts.tm_year = stamp.date / 10000 - 1900;
  parts.tm_mon = stamp.date / 100 % 100 - 1;
  parts.tm_mday = stamp.date % 100;
  parts.tm_hour = stamp.time / 10000;
  parts.tm_min = stamp.time / 100 % 100;
  parts.tm_sec = stamp.time % 100;
  return timegm(&parts);
}

static void expectNowAt(const char *zone, int64_t eastOfGreenwich)
{
  setenv("TZ", zone, 1);
  tzset();
  StampRec stamp;
  int64_t from = time(nullptr) + eastOfGreenwich;
  getTimeStamp(stamp);
  int64_t to = time(nullptr) + eastOfGreenwich;
  EXPECT_LE(from, secondsOf(stamp)) << zone;
  EXPECT_GE(to, secondsOf(stamp)) << zone;
}

TEST_F(StampTimeZone, LocalTime)
{
  expectNowAt("UTC0", 0);
  expectNowAt("EAST-13", 13 * 3600);
  expectNowAt("WEST11:30", -(11 * 3600 + 1800));
}

TEST_F(StampTimeZone, VersionsOfThisTool)
{
  StampRec stamp;
  getTimeStamp(stamp);
  EXPECT_EQ(stamp.toolVersion, 213);
  EXPECT_EQ(stamp.treeVersion, 213);
}
