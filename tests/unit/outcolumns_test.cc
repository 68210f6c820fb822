// The column rules of output files: indentation, breaks, counters.

#include "cbet/outfile.h"
#include "support/tempdir.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

// File 1 is open, file 2 as well.
struct OutColumns : testing::Test {
  TempDir dir;
  OutColumns()
  {
    clearOutFiles();
    openNamedF(1, dir.path.c_str(), "one");
    openNamedF(2, dir.path.c_str(), "two");
  }
  ~OutColumns() override
  {
    forEachOpenFile(closeF);
    clearOutFiles();
  }
  std::string written(int file = 1) const
  {
    closeF(file);
    return readFile(dir.path + (file == 1 ? "one" : "two"));
  }
  static void indentTo(int level) { fArr[1].indent = level; }
};

static std::string chars(int count, char c = 'x')
{
  return std::string(static_cast<size_t>(count), c);
}

// --- indentation ------------------------------------------------------------

TEST_F(OutColumns, TwoBlanksALevel)
{
  wToF(1, "a\n");
  indentTo(1);
  wToF(1, "b\n");
  indentTo(3);
  wToF(1, "c");
  EXPECT_EQ(columnsInF(1), 7);
  wToF(1, "d\n");
  EXPECT_EQ(written(), "a\n  b\n      cd\n");
}

TEST_F(OutColumns, NoBreakIndentsToo)
{
  indentTo(2);
  putToF(1, "a");
  endlToF(1);
  putToF(1, "b\n");
  EXPECT_EQ(written(), "    a\n    b\n");
}

TEST_F(OutColumns, PiecesOfOneText)
{
  indentTo(1);
  wToF(1, "a\nb\n\nc");
  EXPECT_EQ(linesInF(1), 3);
  EXPECT_EQ(columnsInF(1), 3);
  EXPECT_EQ(written(), "  a\n  b\n  \n  c");
}

// The blank is a piece of its own at column 0.
TEST_F(OutColumns, BlankBehindAnInnerLineEnd)
{
  indentTo(1);
  wToF(1, "?!?: Invalid encoding follows:\n ");
  EXPECT_EQ(columnsInF(1), 3);
  putToF(1, "x");
  EXPECT_EQ(written(), "  ?!?: Invalid encoding follows:\n   x");
}

TEST_F(OutColumns, LeadingBlanksStayAtColumnZero)
{
  indentTo(1);
  wToF(1, "  a");
  EXPECT_EQ(written(), "    a");
}

TEST_F(OutColumns, BareLineEnd)
{
  wToF(1, "\n");
  indentTo(2);
  wToF(1, "\n");
  wToF(1, "a");
  wToF(1, "\n");
  EXPECT_EQ(linesInF(1), 3);
  EXPECT_EQ(written(), "\n    \n    a\n");
}

TEST_F(OutColumns, EmptyAndNullTexts)
{
  indentTo(2);
  wToF(1, "");
  putToF(1, "");
  wToF(1, nullptr);
  writeToF(1, nullptr, true);
  EXPECT_EQ(columnsInF(1), 0);
  EXPECT_EQ(linesInF(1), 0);
  EXPECT_EQ(written(), "");
}

TEST_F(OutColumns, NegativeIndentIsReset)
{
  indentTo(-3);
  wToF(1, "a");
  EXPECT_EQ(fArr[1].indent, 0);
  EXPECT_EQ(columnsInF(1), 1);
  EXPECT_EQ(written(), "a");
}

TEST_F(OutColumns, NegativeColumnIsReset)
{
  indentTo(1);
  wToF(1, "a");
  fArr[1].column = -5;
  // At column 0 now, so the piece is padded.
  wToF(1, "b");
  EXPECT_EQ(columnsInF(1), 3);
  EXPECT_EQ(written(), "  a  b");
}

TEST_F(OutColumns, NullTextResetsNothing)
{
  indentTo(-3);
  wToF(0, "a");
  wToF(1, nullptr);
  EXPECT_EQ(fArr[1].indent, -3);
}

// --- breaks -----------------------------------------------------------------

TEST_F(OutColumns, LongPieceAtColumnZeroStaysWhole)
{
  wToF(1, chars(90).c_str());
  EXPECT_EQ(columnsInF(1), 90);
  EXPECT_EQ(linesInF(1), 0);
  EXPECT_EQ(written(), chars(90));
}

TEST_F(OutColumns, ThreeCharactersMove)
{
  for (int indent : {0, 1, 4}) {
    indentTo(indent);
    wToF(1, chars(77 - 2 * indent).c_str());
    ASSERT_EQ(columnsInF(1), 77);
    wToF(1, "abc");
    EXPECT_EQ(columnsInF(1), 2 * indent + 2 + 3);
    endlToF(1);
  }
  EXPECT_EQ(linesInF(1), 6);
  EXPECT_EQ(written(), chars(77) + "\n  abc\n" +               //
                           "  " + chars(75) + "\n    abc\n" +  //
                           chars(8, ' ') + chars(69) + "\n" + chars(10, ' ') +
                           "abc\n");
}

TEST_F(OutColumns, ShortPiecesStay)
{
  wToF(1, chars(77).c_str());
  wToF(1, "{");
  wToF(1, "ab");
  wToF(1, "c");
  EXPECT_EQ(linesInF(1), 0);
  EXPECT_EQ(columnsInF(1), 81);
  EXPECT_EQ(written(), chars(77) + "{abc");
}

TEST_F(OutColumns, LastColumn)
{
  wToF(1, chars(75).c_str());
  wToF(1, "abc");
  EXPECT_EQ(columnsInF(1), 78);
  wToF(1, "\n");
  wToF(1, chars(76).c_str());
  wToF(1, "abc");
  EXPECT_EQ(columnsInF(1), 5);
  EXPECT_EQ(written(), chars(75) + "abc\n" + chars(76) + "\n  abc");
}

// The line end behind a piece takes no column.
TEST_F(OutColumns, LineEndDoesNotCount)
{
  wToF(1, chars(75).c_str());
  wToF(1, "abc\n");
  wToF(1, chars(76).c_str());
  wToF(1, "ab\n");
  EXPECT_EQ(written(), chars(75) + "abc\n" + chars(76) + "ab\n");
}

// A line that has not passed its continuation's own column is not broken.
TEST_F(OutColumns, BreakNeedsAColumnBehindTheContinuation)
{
  indentTo(2);
  wToF(1, "12");
  ASSERT_EQ(columnsInF(1), 2 * 2 + 2);
  wToF(1, chars(90).c_str());
  EXPECT_EQ(linesInF(1), 0);
  endlToF(1);
  wToF(1, "123");
  wToF(1, chars(90).c_str());
  EXPECT_EQ(linesInF(1), 2);
  EXPECT_EQ(written(), "    12" + chars(90) + "\n    123\n      " + chars(90));
}

TEST_F(OutColumns, NoBreakStays)
{
  wToF(1, chars(77).c_str());
  putToF(1, "a string literal");
  EXPECT_EQ(linesInF(1), 0);
  // The next text may break again, behind the over-long line.
  wToF(1, "abc");
  EXPECT_EQ(written(), chars(77) + "a string literal\n  abc");
}

TEST_F(OutColumns, LeadingBlanksAreDroppedAtABreak)
{
  wToF(1, chars(70).c_str());
  wToF(1, "   twelve more ");
  EXPECT_EQ(columnsInF(1), 2 + 12);
  EXPECT_EQ(written(), chars(70) + "\n  twelve more ");
}

// The test counts the blanks that the break then drops.
TEST_F(OutColumns, LeadingBlanksCountForTheBreak)
{
  wToF(1, chars(76).c_str());
  wToF(1, "  x");
  EXPECT_EQ(columnsInF(1), 3);
  endlToF(1);
  wToF(1, chars(77).c_str());
  wToF(1, " x");
  EXPECT_EQ(written(), chars(76) + "\n  x\n" + chars(77) + " x");
}

TEST_F(OutColumns, BlanksAloneAtABreak)
{
  wToF(1, chars(78).c_str());
  wToF(1, "   ");
  EXPECT_EQ(columnsInF(1), 2);
  EXPECT_EQ(linesInF(1), 1);
  wToF(1, "a");
  EXPECT_EQ(written(), chars(78) + "\n  a");
}

TEST_F(OutColumns, TabsAreNoBlanks)
{
  wToF(1, chars(77).c_str());
  wToF(1, " \t ab");
  EXPECT_EQ(written(), chars(77) + "\n  \t ab");
}

TEST_F(OutColumns, TrailingBlankStaysAheadOfABreak)
{
  wToF(1, (chars(70) + " ").c_str());
  wToF(1, "abcdefgh");
  EXPECT_EQ(written(), chars(70) + " \n  abcdefgh");
}

TEST_F(OutColumns, EveryPieceMayBreak)
{
  wToF(1, chars(77).c_str());
  wToF(1, "abc\ndef\n");
  EXPECT_EQ(linesInF(1), 3);
  EXPECT_EQ(written(), chars(77) + "\n  abc\ndef\n");
}

TEST_F(OutColumns, ContinuationBreaksAgain)
{
  wToF(1, chars(77).c_str());
  wToF(1, chars(70, 'a').c_str());
  wToF(1, chars(7, 'b').c_str());
  wToF(1, "{");
  EXPECT_EQ(linesInF(1), 2);
  EXPECT_EQ(written(),
            chars(77) + "\n  " + chars(70, 'a') + "\n  " + chars(7, 'b') + "{");
}

TEST_F(OutColumns, PrintfIsOneText)
{
  wToF(1, chars(60).c_str());
  printfToF(1, "%s%d%s", "prefix ", 12345678, " suffix");
  EXPECT_EQ(written(), chars(60) + "\n  prefix 12345678 suffix");
}

TEST_F(OutColumns, FilesAreApart)
{
  indentTo(3);
  wToF(1, chars(70).c_str());
  wToF(2, "abc\n");
  wToF(1, "abc");
  wToF(2, chars(70).c_str());
  EXPECT_EQ(linesInF(2), 1);
  EXPECT_EQ(columnsInF(2), 70);
  EXPECT_EQ(linesInF(1), 1);
  EXPECT_EQ(written(2), "abc\n" + chars(70));
  EXPECT_EQ(written(1),
            chars(6, ' ') + chars(70) + "\n" + chars(8, ' ') + "abc");
}

// --- random texts against a second model ------------------------------------

// What a file must hold. It keeps no counters: the column is the length of
// the last line so far, the lines are the line ends.
struct ColumnModel {
  std::string out;
  int indent = 0;

  int column() const
  {
    size_t end = out.rfind('\n');
    return static_cast<int>(out.size() -
                            (end == std::string::npos ? 0 : end + 1));
  }
  int lines() const
  {
    return static_cast<int>(std::count(out.begin(), out.end(), '\n'));
  }

  void piece(std::string body, bool noBreak)
  {
    int n = static_cast<int>(body.size());
    bool moves =
        column() > 2 * indent + 2 && n >= 3 && !noBreak && column() + n > 78;
    if (moves)
      out += "\n" + chars(2 * indent + 2, ' ') +
             body.erase(0, std::min(body.find_first_not_of(' '), body.size()));
    else if (column() == 0)
      out += chars(2 * indent, ' ') + body;
    else
      out += body;
  }

  void write(const std::string &text, bool noBreak)
  {
    indent = std::max(indent, 0);
    std::string body;
    for (char c : text) {
      if (c != '\n') {
        body += c;
        continue;
      }
      piece(body, noBreak);
      out += '\n';
      body.clear();
    }
    if (!body.empty())
      piece(body, noBreak);
  }
};

struct RandomTexts {
  std::mt19937 engine;
  explicit RandomTexts(unsigned seed) : engine(seed) {}

  int below(int limit)
  {
    return static_cast<int>(engine() % static_cast<unsigned>(limit));
  }
  // Mostly short; some that fill what is left of a line but for a few.
  int length(int left)
  {
    int kind = below(10);
    if (kind < 5)
      return below(6);
    if (kind < 7)
      return below(30);
    if (kind < 9)
      return std::max(0, left - 3 + below(7));
    return below(100);
  }
  std::string text(int left)
  {
    std::string result;
    for (int pieces = 1 + below(3); pieces > 0; --pieces) {
      if (below(3) == 0)
        result += chars(below(5), ' ');
      result += chars(length(left), static_cast<char>('a' + below(26)));
      if (below(4) == 0)
        result += chars(below(3), ' ');
      if (pieces > 1 || below(3) == 0)
        result += '\n';
    }
    return result;
  }
};

TEST_F(OutColumns, RandomTextsFollowTheRules)
{
  for (unsigned seed = 0; seed < 2000; ++seed) {
    RandomTexts random(seed);
    ColumnModel model;
    closeF(1);
    openNamedF(1, dir.path.c_str(), "one");
    for (int i = 0; i < 30; ++i) {
      if (random.below(4) == 0)
        indentTo(model.indent = random.below(14) - 2);
      std::string text = random.text(78 - model.column());
      bool noBreak = random.below(4) == 0;
      model.write(text, noBreak);
      writeToF(1, text.c_str(), noBreak);
      ASSERT_EQ(columnsInF(1), model.column()) << "seed " << seed;
      ASSERT_EQ(linesInF(1), model.lines()) << "seed " << seed;
      ASSERT_EQ(fArr[1].indent, model.indent) << "seed " << seed;
    }
    ASSERT_EQ(written(), model.out) << "seed " << seed;
  }
}

// The random texts do reach the rules: a model in which one of them is
// missing goes another way.
TEST_F(OutColumns, RandomTextsReachTheRules)
{
  int breaks = 0, kept = 0, shortKept = 0, dropped = 0;
  for (unsigned seed = 0; seed < 50; ++seed) {
    RandomTexts random(seed);
    ColumnModel model;
    for (int i = 0; i < 30; ++i) {
      std::string text = random.text(78 - model.column());
      size_t n = std::min(text.find('\n'), text.size());
      bool over = model.column() > 2 && model.column() + int(n) > 78;
      bool noBreak = random.below(4) == 0;
      breaks += over && n >= 3 && !noBreak;
      kept += over && n >= 3 && noBreak;
      shortKept += over && n > 0 && n < 3 && !noBreak;
      dropped += over && n >= 3 && !noBreak && text[0] == ' ';
      model.write(text, noBreak);
    }
  }
  for (int count : {breaks, kept, shortKept, dropped})
    EXPECT_GT(count, 10);
}
