// What is written into generated files beside code: their head, and the lines
// that users embed in them.

#include "cbet/outfile.h"
#include "support/loadedrun.h"
#include <gtest/gtest.h>
#include <iterator>
#include <string>

// --- the head of a file -----------------------------------------------------

// A back-end of the test's own with a file open, and a module.
struct FileHeader : testing::Test {
  LoadedRun run;
  ModRec record;
  AsnModule module;

  FileHeader()
  {
    backendName = "OWN";
    backendVersion = 205;
    timeStamp = {213, 213, 20241231, 235907};
    record.moduleName = "My_Mod";
    record.stamp = {198, 213, 19990203, 40506};
    setModulePrefixes(record, "abc", "gen");
    module.rec = &record;
    openNamedF(1, run.dir.path.c_str(), "pec.c");
  }
  ~FileHeader() override { closeF(1); }
  FileHeader(const FileHeader &) = delete;

  std::string written() const
  {
    closeF(1);
    return run.file("pec.c");
  }
  // With "/*", " */" and " * ".
  std::string printed() const
  {
    printFileHeader(1, "/*", " */", " * ", "", module);
    return written();
  }
};

TEST_F(FileHeader, AllLines)
{
  EXPECT_EQ(printed(), "/*\n"
                       " * Processed by OWN 2.05 on 31.12.2024 at 23:59.07\n"
                       " * Syntax file processed by ZELK 1.98 on 03.02.1999 "
                       "at 4:05.06\n"
                       " * ASN.1 module = My_Mod\n"
                       " * FILE = abcpec.c\n"
                       " */\n");
}

TEST_F(FileHeader, PatchLevel)
{
  backendPatchLevel = 7;
  std::string text = printed();
  EXPECT_NE(text.find(" * Processed by OWN 2.05.7 on 31.12.2024 at"),
            std::string::npos);
  EXPECT_NE(text.find(" * Syntax file processed by ZELK 1.98 on 03"),
            std::string::npos)
      << "the tree's version has no patch level";
}

TEST_F(FileHeader, NegativePatchLevelIsNone)
{
  backendPatchLevel = -1;
  EXPECT_NE(printed().find(" * Processed by OWN 2.05 on "), std::string::npos);
}

TEST_F(FileHeader, NoBackendName)
{
  backendName.clear();
  EXPECT_EQ(printed(), "/*\n"
                       " * Syntax file processed by ZELK 1.98 on 03.02.1999 "
                       "at 4:05.06\n"
                       " * ASN.1 module = My_Mod\n"
                       " * FILE = abcpec.c\n"
                       " */\n");
}

static const char barePart[] = "Processed by OWN 2.05 on 31.12.2024 at "
                               "23:59.07\n"
                               "Syntax file processed by ZELK 1.98 on "
                               "03.02.1999 at 4:05.06\n"
                               "ASN.1 module = My_Mod\n"
                               "FILE = abcpec.c\n";

TEST_F(FileHeader, EmptyTextsAreAbsent)
{
  printFileHeader(1, "", "", "", "", module);
  printFileHeader(1, nullptr, nullptr, nullptr, nullptr, module);
  std::string once = std::string("\n") + barePart + "\n";
  EXPECT_EQ(written(), once + once);
}

TEST_F(FileHeader, SuffixOfEachLine)
{
  printFileHeader(1, "((", "))", "<", ">", module);
  EXPECT_EQ(written(), "((\n"
                       "<Processed by OWN 2.05 on 31.12.2024 at 23:59.07>\n"
                       "<Syntax file processed by ZELK 1.98 on 03.02.1999 at "
                       "4:05.06>\n"
                       "<ASN.1 module = My_Mod>\n"
                       "<FILE = abcpec.c>\n"
                       "))\n");
}

TEST_F(FileHeader, NoPrefix)
{
  record.filePrefix = nullptr;
  EXPECT_NE(printed().find(" * FILE = pec.c\n"), std::string::npos);
}

TEST_F(FileHeader, NamesAreNoFormats)
{
  record.moduleName = "%s%n";
  record.options.info = "100%d";
  std::string text = printed();
  EXPECT_NE(text.find(" * ASN.1 module = %s%n\n"), std::string::npos);
  EXPECT_NE(text.find(" * INFO = 100%d\n"), std::string::npos);
}

TEST_F(FileHeader, InfoInPieces)
{
  const std::string sixty =
      "123456789 123456789 123456789 123456789 123456789 123456789.";
  ASSERT_EQ(sixty.size(), 60u);
  const struct {
    std::string info;
    std::string lines;
  } rows[] = {
      {"", ""},
      {"a", " * INFO = a\n"},
      {sixty, " * INFO = " + sixty + "\n"},
      {sixty + "x", " * INFO = " + sixty + "\n *        x\n"},
      {sixty + sixty + "y",
       " * INFO = " + sixty + "\n *        " + sixty + "\n *        y\n"},
  };
  std::string expected;
  for (const auto &[info, lines] : rows) {
    record.options.info = info;
    printFileHeader(1, "", "", " * ", "", module);
    std::string head;
    for (const char *c = barePart; *c; ++c)
      head +=
          (c == barePart || c[-1] == '\n' ? " * " : "") + std::string(1, *c);
    expected += "\n" + head + lines + "\n";
  }
  EXPECT_EQ(written(), expected);
}

// The text is a piece behind that of the line's start, and breaks like one.
TEST_F(FileHeader, LongModuleName)
{
  std::string name(60, 'M');
  record.moduleName = name.c_str();
  // 3 + 15 + 60 is column 78.
  EXPECT_NE(printed().find(" * ASN.1 module = " + name + "\n"),
            std::string::npos);
  openNamedF(1, run.dir.path.c_str(), "pec.c");
  name += 'M';
  record.moduleName = name.c_str();
  EXPECT_NE(printed().find(" * \n  ASN.1 module = " + name + "\n * FILE"),
            std::string::npos);
}

TEST_F(FileHeader, ClosedFile)
{
  closeF(1);
  printFileHeader(1, "/*", " */", " * ", "", module);
  EXPECT_EQ(run.file("pec.c"), "");
}

// --- embedding lines --------------------------------------------------------

// A module with lines, and a file open. The lines are those of its one type.
struct EmbeddingLines : testing::Test {
  LoadedRun run;
  StxTree tree = emptyTree("Abc", "abc");
  int32_t type = stxDefineType(tree, "Flag", stxNewTNode(TYP_BOOLEAN));
  ModRec *record = nullptr;

  ~EmbeddingLines() override { closeF(1); }

  int32_t line(const char *text, uint8_t kind = TED_EMBEDDING)
  {
    return stxNodeTed(tree, type, kind, text);
  }
  void open()
  {
    run.add(tree, "abc");
    run.load({"abc"});
    record = bOfModRList;
    openNamedF(1, run.dir.path.c_str(), "out");
  }
  std::string printed(int32_t first, int32_t last, int selector)
  {
    if (!record)
      open();
    openNamedF(1, run.dir.path.c_str(), "out");
    printTEDs(1, record, first, last, selector);
    closeF(1);
    return run.file("out");
  }
};

TEST_F(EmbeddingLines, PlaceOfEachLetter)
{
  const struct {
    char letter;
    int first;
    int second;
  } rows[] = {{'T', 0, 5}, {'E', 1, 6}, {'D', 2, 7}, {'A', 3, 8}, {'P', 4, 9}};
  ASSERT_EQ(std::size(tedArr), std::size(rows));
  int32_t last = 0;
  for (const auto &row : rows) {
    for (char number : {'1', '2'}) {
      std::string key = {row.letter, number};
      last = line(("-" + key + " text of " + key).c_str());
    }
  }
  for (size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(tedArr[i].letter, rows[i].letter);
    EXPECT_EQ(tedArr[i].first, rows[i].first);
    EXPECT_EQ(tedArr[i].second, rows[i].second);
    std::string text = std::string("text of ") + rows[i].letter;
    EXPECT_EQ(printed(1, last, rows[i].first), text + "1\n");
    EXPECT_EQ(printed(1, last, rows[i].second), text + "2\n");
  }
  for (int selector : {-1, 10, 100})
    EXPECT_EQ(printed(1, last, selector), "") << selector;
}

TEST_F(EmbeddingLines, OtherKindsPassOver)
{
  line("-E1 dropped", TED_DROPPED);
  line("-E1 back-end", TED_BACK_END);
  line("-E1 embedded");
  int32_t last = line("-E1 front-end", TED_FRONT_END);
  EXPECT_EQ(printed(1, last, 1), "embedded\n");
}

// The mark and the character behind the number are of no account.
TEST_F(EmbeddingLines, KeyIsInTheSecondAndThirdCharacter)
{
  line("xE1yfirst");
  line("E1 second");
  line("-e1 third");
  line("-E3 fourth");
  line("-EE1fifth");
  int32_t last = line("#E1#sixth");
  EXPECT_EQ(printed(1, last, 1), "first\nsixth\n");
}

TEST_F(EmbeddingLines, ShortLines)
{
  line("");
  line("-");
  line("-E");
  line("-E1");
  int32_t last = line("-E1 ");
  // Only the last one reaches its text, which is empty.
  EXPECT_EQ(printed(1, last, 1), "\n");
}

TEST_F(EmbeddingLines, Range)
{
  for (const char *text : {"-D1 a", "-D1 b", "-D1 c", "-D1 d"})
    line(text);
  EXPECT_EQ(printed(2, 3, 2), "b\nc\n");
  EXPECT_EQ(printed(4, 4, 2), "d\n");
  // A first of 0 means 1; a last of 0 is no range.
  EXPECT_EQ(printed(0, 2, 2), "a\nb\n");
  EXPECT_EQ(printed(0, 0, 2), "");
  EXPECT_EQ(printed(3, 2, 2), "");
}

TEST_F(EmbeddingLines, PreprocessorLines)
{
  line("-E1 #ifdef X");
  line("-E1 foo ();");
  line("-E1  # no directive");
  int32_t last = line("-E1 #endif");
  open();
  fArr[1].indent = 2;
  printTEDs(1, record, 1, last, 1);
  EXPECT_EQ(fArr[1].indent, 2);
  wToF(1, "behind\n");
  closeF(1);
  EXPECT_EQ(run.file("out"), "#ifdef X\n    foo ();\n     # no directive\n"
                             "#endif\n    behind\n");
}

TEST_F(EmbeddingLines, TextIsNoFormatAndNotBroken)
{
  std::string text(100, 'x');
  text += "%s%n";
  int32_t last = line(("-E1 " + text).c_str());
  EXPECT_EQ(printed(1, last, 1), text + "\n");
}

// Behind code on the same line it breaks as any text.
TEST_F(EmbeddingLines, TextBehindCode)
{
  int32_t last = line("-E2 foo ();");
  open();
  std::string code(75, 'x');
  wToF(1, code.c_str());
  printTEDs(1, record, 1, last, 6);
  closeF(1);
  EXPECT_EQ(run.file("out"), code + "\n  foo ();\n");
}

TEST_F(EmbeddingLines, ClosedFile)
{
  int32_t last = line("-E1 text");
  open();
  closeF(1);
  printTEDs(1, record, 1, last, 1);
  printTEDs(0, record, 1, last, 1);
  EXPECT_EQ(run.file("out"), "");
}

// Only embedding lines are looked at, so a line of another kind may lack its
// text.
TEST_F(EmbeddingLines, OtherKindsNeedNoText)
{
  int32_t first = line("-E1 dropped", TED_DROPPED);
  int32_t last = line("-E1 embedded");
  stxTedAt(tree, first).text = 0;
  EXPECT_EQ(printed(first, last, 1), "embedded\n");
}
