// Output files: names, opening, closing, guards, numbers, failures.

#include "cbet/outfile.h"
#include "stx/stxwrite.h"
#include "support/tempdir.h"
#include <climits>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::StrEq;

// A directory and a module with the file prefix "abc"; no file is open.
struct OutFiles : testing::Test {
  TempDir dir;
  ModRec record;
  AsnModule module;
  std::string text = "untouched";

  OutFiles()
  {
    closeAll();
    setModulePrefixes(record, "abc", "gen");
    module.rec = &record;
  }
  ~OutFiles() override
  {
    closeAll();
    resetStore();
  }
  static void closeAll()
  {
    forEachOpenFile(closeF);
    clearOutFiles();
  }

  void open(int file, const char *name = "pec.c")
  {
    initF(file, dir.path.c_str(), name);
    openF(file, &module);
  }
  std::string closed(int file, const char *name = "abcpec.c") const
  {
    closeF(file);
    return readFile(dir.path + name);
  }
  bool isOpen(int file) const { return fArr[file].fp; }
};

static std::string fatalText(const std::string &text)
{
  return "\nFATAL ERROR : " + text + "\n\n";
}

static std::string fatalText(const std::string &text, const std::string &detail)
{
  return "\nFATAL ERROR : " + text + "\n              " + detail + "\n\n";
}

// --- names and opening ------------------------------------------------------

TEST_F(OutFiles, SeventeenEntries)
{
  EXPECT_EQ(outFileCount, 17);
  EXPECT_EQ(std::size(fArr), 17u);
}

TEST_F(OutFiles, OpenTakesTheFilePrefix)
{
  open(5);
  ASSERT_TRUE(isOpen(5));
  wToF(5, "x\n");
  EXPECT_EQ(closed(5), "x\n");
  EXPECT_FALSE(isOpen(5));
}

TEST_F(OutFiles, OpenNeedsModuleAndName)
{
  openF(5, &module);
  EXPECT_FALSE(isOpen(5));
  initF(5, dir.path.c_str(), "pec.c");
  openF(5, nullptr);
  EXPECT_FALSE(isOpen(5));
  openF(5, &module);
  EXPECT_TRUE(isOpen(5));
}

TEST_F(OutFiles, InitWithoutNameSetsNothing)
{
  initF(5, dir.path.c_str(), nullptr);
  openF(5, &module);
  EXPECT_FALSE(isOpen(5));
  EXPECT_EQ(dirOfF(text, nullptr, 5, nullptr), nullptr);
}

TEST_F(OutFiles, InitKeepsCopies)
{
  std::string name = "pec.c";
  std::string directory = dir.path;
  initF(5, directory.c_str(), name.c_str());
  name[0] = directory[0] = 'X';
  openF(5, &module);
  EXPECT_EQ(*nameOfF(text, nullptr, 5, nullptr), dir.path + "abcpec.c");
}

TEST_F(OutFiles, InitWithoutDirectoryForgetsTheOld)
{
  initF(5, "old/", "old.c");
  initF(5, nullptr, "pec.c");
  EXPECT_EQ(*dirOfF(text, "<", 5, ">"), "<>");
}

TEST_F(OutFiles, OpenPassesOverAnOpenFile)
{
  open(5);
  wToF(5, "first ");
  fArr[5].indent = 3;
  openF(5, &module);
  openNamedF(5, dir.path.c_str(), "other.c");
  EXPECT_EQ(columnsInF(5), 6);
  EXPECT_EQ(fArr[5].indent, 3);
  EXPECT_FALSE(fileExists(dir.path + "other.c"));
  putToF(5, "second");
  EXPECT_EQ(closed(5), "first second");
}

TEST_F(OutFiles, OpenClearsTheCounters)
{
  open(5);
  wToF(5, "a\nb");
  fArr[5].indent = 3;
  closeF(5);
  openF(5, &module);
  EXPECT_EQ(linesInF(5), 0);
  EXPECT_EQ(columnsInF(5), 0);
  EXPECT_EQ(fArr[5].indent, 0);
  EXPECT_EQ(closed(5), "") << "opened for writing anew";
}

TEST_F(OutFiles, OpenNamedHasNoPrefix)
{
  openNamedF(3, dir.path.c_str(), "list.txt");
  ASSERT_TRUE(isOpen(3));
  EXPECT_EQ(*nameOfF(text, nullptr, 3, nullptr), dir.path + "list.txt");
  EXPECT_EQ(*nameOfFnoDir(text, nullptr, 3, nullptr), "list.txt");
  wToF(3, "y");
  EXPECT_EQ(closed(3, "list.txt"), "y");
}

TEST_F(OutFiles, OpenNamedWithoutDirectory)
{
  std::string path = dir.path + "list.txt";
  openNamedF(3, nullptr, path.c_str());
  EXPECT_TRUE(isOpen(3));
  EXPECT_EQ(*dirOfF(text, "<", 3, ">"), "<>");
}

TEST_F(OutFiles, OpenNamedWithoutName)
{
  openNamedF(3, dir.path.c_str(), nullptr);
  EXPECT_FALSE(isOpen(3));
  EXPECT_EQ(dirOfF(text, nullptr, 3, nullptr), nullptr);
}

TEST_F(OutFiles, CloseOfAClosedFile)
{
  closeF(5);
  open(5);
  closeF(5);
  closeF(5);
  EXPECT_FALSE(isOpen(5));
}

static std::vector<int> visited;

TEST_F(OutFiles, EachOpenFileInOrder)
{
  auto note = [](int file) { visited.push_back(file); };
  visited.clear();
  forEachOpenFile(note);
  EXPECT_TRUE(visited.empty());
  open(16, "l.c");
  open(5);
  open(1, "f.c");
  open(7, "m.c");
  closeF(7);
  forEachOpenFile(note);
  EXPECT_THAT(visited, ElementsAre(1, 5, 16));
  EXPECT_EXIT(forEachOpenFile(nullptr), ExitedWithCode(2),
              StrEq(fatalText("Call-back function not defined.")));
}

// --- the name queries -------------------------------------------------------

TEST_F(OutFiles, NamesOfAnOpenFile)
{
  open(5);
  EXPECT_EQ(*nameOfF(text, "<", 5, ">"), "<" + dir.path + "abcpec.c>");
  EXPECT_EQ(*nameOfFnoDir(text, "<", 5, ">"), "<abcpec.c>");
  EXPECT_EQ(*dirOfF(text, "<", 5, ">"), "<" + dir.path + ">");
  EXPECT_EQ(*defineGuardOfF(text, "<a.b-", 5, "-x>"), "<a.b-ABCPEC_C-x>");
  EXPECT_EQ(defineGuardOfF(text, nullptr, 5, nullptr), &text);
  EXPECT_EQ(text, "ABCPEC_C");
}

TEST_F(OutFiles, NamesOfAFileThatHasNoPrefixYet)
{
  initF(5, "out/", "pec.c");
  EXPECT_EQ(nameOfF(text, "<", 5, ">"), nullptr);
  EXPECT_EQ(nameOfFnoDir(text, "<", 5, ">"), nullptr);
  EXPECT_EQ(defineGuardOfF(text, "<", 5, ">"), nullptr);
  EXPECT_EQ(text, "untouched");
  EXPECT_EQ(*dirOfF(text, "<", 5, ">"), "<out/>");
}

TEST_F(OutFiles, NamesOfNoFile)
{
  for (int file : {0, 1, -1, 17, INT_MAX}) {
    EXPECT_EQ(nameOfF(text, "<", file, ">"), nullptr) << file;
    EXPECT_EQ(nameOfFnoDir(text, "<", file, ">"), nullptr) << file;
    EXPECT_EQ(dirOfF(text, "<", file, ">"), nullptr) << file;
    EXPECT_EQ(defineGuardOfF(text, "<", file, ">"), nullptr) << file;
  }
  EXPECT_EQ(text, "untouched");
}

TEST_F(OutFiles, GuardOfHyphensAndDots)
{
  setModulePrefixes(record, "a-b_c", "gen");
  open(5, "p-1.x.c");
  EXPECT_EQ(*defineGuardOfF(text, nullptr, 5, nullptr), "A_B_CP_1_X_C");
}

TEST_F(OutFiles, GuardForModule)
{
  setModulePrefixes(record, "abc", "g-e.n");
  EXPECT_EQ(defineGuardForModule(text, "<", module, "per-x.ext", ".>"),
            "<G_E_NPER_X_EXT.>");
  EXPECT_EQ(defineGuardForModule(text, nullptr, module, nullptr, nullptr),
            "G_E_N");
}

TEST_F(OutFiles, GuardForFile)
{
  EXPECT_EQ(defineGuardForFile(text, "-", "sub/a-b.ext", "."), "-SUB/A_B_EXT.");
  EXPECT_EQ(defineGuardForFile(text, nullptr, "asntyp.typ", nullptr),
            "ASNTYP_TYP");
}

// --- no file ----------------------------------------------------------------

TEST_F(OutFiles, IndexWithoutFileDoesNothing)
{
  for (int file : {0, 17, -1}) {
    initF(file, dir.path.c_str(), "x.c");
    openF(file, &module);
    openNamedF(file, dir.path.c_str(), "x.c");
    writeToF(file, "a", true);
    wToF(file, "a");
    putToF(file, "a");
    printfToF(file, "%d", 1);
    endlToF(file);
    int32ToF(file, nullptr, 1, nullptr);
    int64ToF(file, nullptr, stxInt64(1), nullptr);
    int64AsSint64ToF(file, nullptr, stxInt64(1), nullptr);
    printFileHeader(file, "a", "b", "c", "d", module);
    printTEDs(file, &record, 1, 1, 0);
    EXPECT_EQ(linesInF(file), 0);
    EXPECT_EQ(columnsInF(file), 0);
    closeF(file);
  }
  EXPECT_TRUE(std::filesystem::is_empty(dir.path));
  EXPECT_EQ(fArr[0].fp, nullptr);
  EXPECT_FALSE(fArr[0].named);
}

TEST_F(OutFiles, ClosedFileTakesNoText)
{
  open(5);
  wToF(5, "a\nb");
  EXPECT_EQ(linesInF(5), 1);
  EXPECT_EQ(columnsInF(5), 1);
  EXPECT_EQ(closed(5), "a\nb");
  EXPECT_EQ(linesInF(5), 0);
  EXPECT_EQ(columnsInF(5), 0);
  wToF(5, "more");
  EXPECT_EQ(readFile(dir.path + "abcpec.c"), "a\nb");
}

// --- texts and numbers ------------------------------------------------------

TEST_F(OutFiles, TextsAreNoFormats)
{
  open(5);
  wToF(5, "%s%n%d ");
  putToF(5, "100%");
  EXPECT_EQ(closed(5), "%s%n%d 100%");
}

TEST_F(OutFiles, PrintfOfAnyLength)
{
  std::string longText(10000, 'x');
  open(5);
  printfToF(5, "<%s|%d|%c>", longText.c_str(), -7, 'z');
  EXPECT_EQ(closed(5), "<" + longText + "|-7|z>");
}

TEST_F(OutFiles, Int32)
{
  open(5);
  int32ToF(5, "a ", 0, ";\n");
  int32ToF(5, nullptr, INT32_MAX, "\n");
  int32ToF(5, "(", INT32_MIN, nullptr);
  EXPECT_EQ(closed(5), "a 0;\n2147483647\n(-2147483648");
}

TEST_F(OutFiles, Int64)
{
  open(5);
  int64ToF(5, "a ", stxInt64(0), ";\n");
  int64ToF(5, nullptr, stxInt64(INT64_MAX), "\n");
  int64ToF(5, nullptr, stxInt64(-4294967296), "\n");
  int64ToF(5, "(", stxInt64(INT64_MIN), nullptr);
  EXPECT_EQ(closed(5), "a 0;\n9223372036854775807\n-4294967296\n"
                       "(-9223372036854775808");
}

TEST_F(OutFiles, Int64AsExpression)
{
  const struct {
    int64_t value;
    const char *expression;
  } rows[] = {
      {INT64_MAX, "i64max ()"},
      {INT64_MIN, "i64min ()"},
      {0, "i64ltosint64 (0L)"},
      {-1, "i64ltosint64 (-1L)"},
      {2147483647, "i64ltosint64 (2147483647L)"},
      {-2147483647, "i64ltosint64 (-2147483647L)"},
      // High word -1, low word 2^31.
      {-2147483648, "i64make (-1L, 2147483648UL)"},
      {2147483648, "i64make (0L, 2147483648UL)"},
      {-2147483649, "i64make (-1L, 2147483647UL)"},
      {0x0000000500000003, "i64make (5L, 3UL)"},
      {INT64_MAX - 1, "i64make (2147483647L, 4294967294UL)"},
      {INT64_MIN + 1, "i64make (-2147483648L, 1UL)"},
  };
  std::string expected;
  open(5);
  for (const auto &[value, expression] : rows) {
    int64AsSint64ToF(5, "x = ", stxInt64(value), ";\n");
    expected += std::string("x = ") + expression + ";\n";
  }
  int64AsSint64ToF(5, nullptr, stxInt64(9), nullptr);
  EXPECT_EQ(closed(5), expected + "i64ltosint64 (9L)");
}

// Prefix, number and suffix are one text: the break falls ahead of all.
TEST_F(OutFiles, NumberIsOneText)
{
  std::string line(70, 'x');
  std::string expected;
  open(5);
  wToF(5, line.c_str());
  int32ToF(5, "prefix", 12, "suffix");
  endlToF(5);
  wToF(5, line.c_str());
  int64ToF(5, "prefix", stxInt64(12), "suffix");
  endlToF(5);
  wToF(5, line.c_str());
  int64AsSint64ToF(5, "", stxInt64(12), "");
  endlToF(5);
  for (const char *number :
       {"prefix12suffix", "prefix12suffix", "i64ltosint64 (12L)"})
    expected += line + "\n  " + number + "\n";
  EXPECT_EQ(closed(5), expected);
}

// --- failures ---------------------------------------------------------------

TEST_F(OutFiles, MissingDirectory)
{
  std::string missing = dir.path + "none/";
  initF(5, missing.c_str(), "pec.c");
  EXPECT_EXIT(
      openF(5, &module), ExitedWithCode(2),
      StrEq(fatalText("Can not open file for writing", missing + "abcpec.c")));
  EXPECT_EXIT(
      openNamedF(5, missing.c_str(), "x.c"), ExitedWithCode(2),
      StrEq(fatalText("Can not open file for writing", missing + "x.c")));
}

// Not even the administrator makes files there.
TEST_F(OutFiles, UnwritableDirectory)
{
  initF(5, "/proc/", "pec.c");
  EXPECT_EXIT(
      openF(5, &module), ExitedWithCode(2),
      StrEq(fatalText("Can not open file for writing", "/proc/abcpec.c")));
}

TEST_F(OutFiles, DirectoryInPlaceOfTheFile)
{
  std::filesystem::create_directory(dir.path + "abcpec.c");
  EXPECT_EXIT(
      open(5), ExitedWithCode(2),
      StrEq(fatalText("Can not open file for writing", dir.path + "abcpec.c")));
}

// Directories "././././" and a name of three characters behind the prefix of
// three: of 1024 characters the path opens, one more is refused.
TEST_F(OutFiles, LongestPath)
{
  std::string path = dir.path;
  while (path.size() + 2 <= 1018)
    path += "./";
  std::string name(1024 - 3 - path.size(), 'n');
  ASSERT_EQ(path.size() + 3 + name.size(), 1024u);
  initF(5, path.c_str(), name.c_str());
  openF(5, &module);
  EXPECT_TRUE(isOpen(5));
  closeF(5);
  initF(5, path.c_str(), (name + "n").c_str());
  EXPECT_EXIT(openF(5, &module), ExitedWithCode(2),
              StrEq(fatalText("Can not open file for writing")));
  EXPECT_EXIT(openNamedF(6, path.c_str(), ("abc" + name + "n").c_str()),
              ExitedWithCode(2),
              StrEq(fatalText("Can not open file for writing")));
}

// More than any buffer of the stream holds, in blocks and in characters.
TEST_F(OutFiles, WriteFails)
{
  std::string block(1 << 20, 'x');
  openNamedF(5, "/dev/", "full");
  EXPECT_EXIT(wToF(5, block.c_str()), ExitedWithCode(2),
              StrEq(fatalText("Can not write into file")));
  EXPECT_EXIT(for (int i = 0; i < 1 << 20; ++i) endlToF(5);
              , ExitedWithCode(2), StrEq(fatalText("Can not write into file")));
  fArr[5].indent = 1 << 20;
  EXPECT_EXIT(wToF(5, "x"), ExitedWithCode(2),
              StrEq(fatalText("Can not write into file")));
}

TEST_F(OutFiles, CloseFails)
{
  std::filesystem::create_symlink("/dev/full", dir.path + "abcpec.c");
  open(5);
  EXPECT_EXIT(
      {
        wToF(5, "little");
        closeF(5);
      },
      ExitedWithCode(2),
      StrEq(fatalText("Can not close file", dir.path + "abcpec.c")));
  // Nothing was written in this process, so here it closes.
  closeF(5);
  EXPECT_FALSE(isOpen(5));
}
