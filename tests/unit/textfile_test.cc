#include "base/textfile.h"
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

// Runs in an empty directory with the subdirectories a and b.
class TextFile : public testing::Test {
protected:
  void SetUp() override
  {
    std::string pattern = testing::TempDir() + "textfileXXXXXX";
    ASSERT_NE(nullptr, mkdtemp(pattern.data()));
    root = pattern;
    fs::create_directory(root / "a");
    fs::create_directory(root / "b");
    fs::current_path(root);
  }
  void TearDown() override
  {
    fs::current_path(before);
    fs::remove_all(root);
  }
  static void write(const char *path, const char *text)
  {
    OpenedFile file(fopenTextFile("", path, "w"));
    fputs(text, file.get());
  }
  fs::path before = fs::current_path();
  fs::path root;
};

static std::string contentOf(FILE *stream)
{
  OpenedFile file(stream);
  std::string text;
  for (int c = fgetc(stream); c != EOF; c = fgetc(stream))
    text += static_cast<char>(c);
  return text;
}

static std::string fatalText(const std::string &text, const std::string &detail)
{
  return "\nFATAL ERROR : " + text + "\n" +
         (detail.empty() ? "" : "              " + detail + "\n") + "\n";
}

static const std::string noRead = "Can not open file for reading";
static const std::string noWrite = "Can not open file for writing";

TEST_F(TextFile, JoinsWithoutSlash)
{
  write("a/x.txt", "in a");
  write("ax.txt", "beside a");
  EXPECT_EQ("in a", contentOf(fopenTextFile("a/", "x.txt", "r")));
  EXPECT_EQ("beside a", contentOf(fopenTextFile("a", "x.txt", "r")));
}

TEST_F(TextFile, NullDirectoryOrName)
{
  write("x.txt", "here");
  EXPECT_EQ("here", contentOf(fopenTextFile(nullptr, "x.txt", "r")));
  EXPECT_EQ("here", contentOf(fopenTextFile("x.txt", nullptr, "r")));
}

TEST_F(TextFile, Modes)
{
  write("x.txt", "one");
  fclose(fopenTextFile("", "x.txt", "r"));
  EXPECT_EQ("one", contentOf(fopenTextFile("", "x.txt", "r")));
  {
    OpenedFile file(fopenTextFile("", "x.txt", "a"));
    fputs(" two", file.get());
  }
  EXPECT_EQ("one two", contentOf(fopenTextFile("", "x.txt", "r")));
  write("x.txt", "");
  EXPECT_EQ("", contentOf(fopenTextFile("", "x.txt", "r")));
}

TEST_F(TextFile, MissingForReading)
{
  for (const char *mode : {"r", "rb", "r+", "a"})
    EXPECT_EXIT(fopenTextFile("none/", "x.txt", mode),
                testing::ExitedWithCode(2),
                testing::StrEq(fatalText(noRead, "none/x.txt")));
}

TEST_F(TextFile, UnwritableForWriting)
{
  for (const char *mode : {"w", "wb", "w+"})
    EXPECT_EXIT(fopenTextFile("none/", "x.txt", mode),
                testing::ExitedWithCode(2),
                testing::StrEq(fatalText(noWrite, "none/x.txt")));
  EXPECT_EXIT(fopenTextFile("", "a", "w"), testing::ExitedWithCode(2),
              testing::StrEq(fatalText(noWrite, "a")));
}

static std::string dots(size_t length)
{
  std::string text;
  while (text.size() < length)
    text += "./";
  return text;
}

TEST_F(TextFile, LongestPath)
{
  write("abcd", "long");
  std::string directory = dots(1020);
  EXPECT_EQ("long", contentOf(fopenTextFile(directory.c_str(), "abcd", "r")));
}

TEST_F(TextFile, PathTooLong)
{
  write("abcde", "longer");
  std::string directory = dots(1020);
  EXPECT_EXIT(fopenTextFile(directory.c_str(), "abcde", "r"),
              testing::ExitedWithCode(2),
              testing::StrEq(fatalText(noRead, "")));
  EXPECT_EXIT(fopenTextFile(directory.c_str(), "abcde", "a"),
              testing::ExitedWithCode(2),
              testing::StrEq(fatalText(noRead, "")));
  EXPECT_EXIT(fopenTextFile(directory.c_str(), "abcde", "w"),
              testing::ExitedWithCode(2),
              testing::StrEq(fatalText(noWrite, "")));
  EXPECT_EQ("longer", contentOf(fopenTextFile("", "abcde", "r")));
}

TEST(SearchPath, KeepsOrder)
{
  SearchPath path;
  addDirToSearchPath(path, "b/");
  addDirToSearchPath(path, "a/");
  ASSERT_EQ(2u, path.size());
  EXPECT_EQ("b/", path[0].directory);
  EXPECT_EQ("a/", path[1].directory);
}

TEST(SearchPath, EmptyPassedOver)
{
  SearchPath path;
  addDirToSearchPath(path, "");
  addDirToSearchPath(path, nullptr);
  EXPECT_TRUE(path.empty());
}

TEST_F(TextFile, SearchInOrder)
{
  SearchPath path = {{"a/"}, {"b/"}};
  std::string found = "?";
  write("x.txt", "here");
  EXPECT_EQ("here",
            contentOf(fopenTextFileInSearchPathForRd(path, "x.txt", found)));
  EXPECT_EQ("", found);
  write("b/x.txt", "in b");
  EXPECT_EQ("in b",
            contentOf(fopenTextFileInSearchPathForRd(path, "x.txt", found)));
  EXPECT_EQ("b/", found);
  write("a/x.txt", "in a");
  EXPECT_EQ("in a",
            contentOf(fopenTextFileInSearchPathForRd(path, "x.txt", found)));
  EXPECT_EQ("a/", found);
}

TEST_F(TextFile, SearchWithoutPath)
{
  std::string found = "?";
  write("x.txt", "here");
  write("a/x.txt", "in a");
  EXPECT_EQ("here",
            contentOf(fopenTextFileInSearchPathForRd({}, "x.txt", found)));
  EXPECT_EQ("", found);
}

TEST_F(TextFile, SearchFails)
{
  SearchPath path = {{"a/"}, {"b/"}};
  std::string found;
  EXPECT_EXIT(fopenTextFileInSearchPathForRd(path, "x.txt", found),
              testing::ExitedWithCode(2),
              testing::StrEq(fatalText(noRead, "x.txt")));
}
