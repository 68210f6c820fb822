// The generated files of one module: which there are, their names, heads,
// guards and own includes, and their closing.

#include "base/strings.h"
#include "cbet/outfile.h"
#include "driver/modfiles.h"
#include "support/loadedrun.h"
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

using testing::ExitedWithCode;
using testing::StrEq;

typedef std::map<std::string, std::string> FilesByName;

// The module "Abc_Mod" of the prefix "abc", with its files in the directory.
struct ModFiles : testing::Test {
  LoadedRun run;
  StxTree tree = smallTree("Abc-Mod", "abc");
  AsnModule abc;

  void load(const std::vector<std::string> &options = {})
  {
    run.saveDirectories(tree);
    run.add(tree, "abc");
    std::vector<std::string> arguments = {"abc"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    run.load(arguments);
    abc = run.module("abc");
  }
  // All files in the directory itself but the trees.
  FilesByName files() const
  {
    FilesByName result;
    for (const auto &entry : std::filesystem::directory_iterator(run.dir.path))
      if (entry.is_regular_file() && entry.path().extension() != ".stx")
        result[entry.path().filename()] = readFile(entry.path());
    return result;
  }
  std::string closed(int slot, const char *name) const
  {
    closeF(slot);
    return run.file(name);
  }
};

// A prototype file of "abc" that imports nothing.
static std::string prototypesOf(const char *guard, const char *name)
{
  return headOf("Abc_Mod", name) + "\n#ifndef " + guard + "\n#define " + guard +
         "\n" + includeOf("ASNTYP_TYP", "asntyp.typ") +
         includeOf("ASNPER_EXT", "asnper.ext") +
         includeOf("ABC_TYP", "abc.typ") + "\n#endif /*" + guard + "*/\n";
}

static std::string functionsOf(const char *name, const std::string &includes)
{
  return headOf("Abc_Mod", name) + includes;
}

// --- names ------------------------------------------------------------------

TEST_F(ModFiles, FileNames)
{
  load();
  // The default split: separate functions, combined prototypes.
  const struct {
    int index;
    int type;
    const char *name;
  } rows[] = {
      {5, 1, "abcpec.c"},
      {11, 1, "abcpdc.c"},
      {6, 2, "abcper.ext"},
      {12, 2, "abcper.ext"},
      {1, 0, "abc.typ"},
      {16, 0, "abc.typ"},
      {5, 0, "abcpec.typ"},
      {6, 0, "abcper.typ"},
      {7, 0, "abcper.typ"},
      {13, 0, "abcper.typ"},
      {11, 0, "abcpdc.typ"},
      {4, 0, "abc.typ"},
      {8, 0, "abc.typ"},
      {10, 0, "abc.typ"},
      {14, 0, "abc.typ"},
      {5, 2, "abcpec.ext"},
      {6, 1, "abcper.c"},
      // No entry, no file, but for the type header.
      {1, 1, ""},
      {1, 2, ""},
      {7, 1, ""},
      {13, 2, ""},
      {0, 1, ""},
      {16, 2, ""},
  };
  for (const auto &[index, type, name] : rows) {
    std::string text = "old";
    EXPECT_EQ(&constructFileName(text, nullptr, abc, index, type, nullptr),
              &text);
    EXPECT_EQ(text, name) << index << ", " << type;
    constructFileName(text, "<", abc, index, type, ">");
    EXPECT_EQ(text, *name ? "<" + std::string(name) + ">" : "")
        << index << ", " << type;
  }
}

TEST_F(ModFiles, WordsOfEachCategory)
{
  load({"-PERCOD=2:2:2"});
  std::string text;
  for (int index = 1; index <= 16; ++index) {
    std::string word = index >= 5 && index <= 7     ? "pec"
                       : index >= 11 && index <= 13 ? "pdc"
                                                    : "";
    EXPECT_EQ(constructFileName(text, nullptr, abc, index, 0, nullptr),
              "abc" + word + ".typ");
  }
}

TEST_F(ModFiles, WordsWithBerFuncPref)
{
  load({"-BERFUNCPREF=yes", "-PERCOD=1:2:0"});
  std::string text;
  const struct {
    int index;
    const char *word;
  } rows[] = {{5, "cod"}, {11, "cod"}, {6, "enc"}, {12, "dec"},
              {7, "cod"}, {13, "cod"}, {1, ""},    {4, ""},
              {8, ""},    {10, ""},    {14, ""},   {16, ""}};
  for (const auto &[index, word] : rows)
    EXPECT_EQ(constructFileName(text, nullptr, abc, index, 0, nullptr),
              std::string("abc") + word + ".typ")
        << index;
}

// The name takes the generation prefix; the file on disk the file prefix.
TEST_F(ModFiles, TwoPrefixes)
{
  load();
  setModulePrefixes(*abc.rec, "abc", "gen");
  std::string text;
  EXPECT_EQ(constructFileName(text, nullptr, abc, 5, 1, nullptr), "genpec.c");
  openFile(5, abc, 1, 5);
  EXPECT_EQ(*nameOfFnoDir(text, nullptr, 5, nullptr), "abcpec.c");
  openFile(6, abc, 2, 6);
  EXPECT_EQ(*defineGuardOfF(text, nullptr, 6, nullptr), "ABCPER_EXT");
}

// --- one file ---------------------------------------------------------------

TEST_F(ModFiles, OpenFunctions)
{
  load();
  openFile(5, abc, 1, 5);
  EXPECT_EQ(closed(5, "abcpec.c"), headOf("Abc_Mod", "abcpec.c"));
}

// A file that is open already stays open, but its indent is reset.
TEST_F(ModFiles, OpenOfAnOpenFile)
{
  load();
  openNamedF(5, run.dir.path.c_str(), "named");
  fArr[5].indent = 4;
  openFile(5, abc, 1, 5);
  EXPECT_EQ(fArr[5].indent, 0);
  EXPECT_FALSE(run.has("abcpec.c"));
}

TEST_F(ModFiles, OpenPrototypes)
{
  load();
  openFile(6, abc, 2, 6);
  EXPECT_EQ(closed(6, "abcper.ext"),
            headOf("Abc_Mod", "abcper.ext") +
                "\n#ifndef ABCPER_EXT\n#define ABCPER_EXT\n");
}

TEST_F(ModFiles, InfoInTheHead)
{
  stxGlobalOption(tree, TED_FRONT_END, "-INFO=Release 7");
  load();
  openFile(5, abc, 1, 5);
  EXPECT_THAT(closed(5, "abcpec.c"),
              testing::EndsWith(" * FILE = abcpec.c\n"
                                " * INFO = Release 7\n"
                                " ********************************************"
                                "********************/\n"));
}

TEST_F(ModFiles, OpenOtherTypes)
{
  load();
  openFile(5, abc, 3, 5);
  EXPECT_EQ(fArr[5].fp, nullptr);
  EXPECT_TRUE(files().empty());
  for (int type : {0, 4, 5})
    EXPECT_EXIT(openFile(5, abc, type, 5), ExitedWithCode(2),
                StrEq("\nFATAL ERROR : Internal error\n"
                      "              Unknown file type.\n\n"));
}

TEST_F(ModFiles, DirectoryOfEachType)
{
  std::filesystem::create_directory(run.path("src"));
  std::filesystem::create_directory(run.path("inc"));
  stxGlobalOption(tree, TED_FRONT_END, "-C=" + run.path("src"));
  stxGlobalOption(tree, TED_FRONT_END, "-H=" + run.path("inc"));
  run.add(tree, "abc");
  run.load({"abc"});
  abc = run.module("abc");
  openModuleFiles(abc);
  closeModuleFiles();
  EXPECT_TRUE(run.has("src/abcpec.c"));
  EXPECT_TRUE(run.has("src/abcpdc.c"));
  EXPECT_TRUE(run.has("inc/abcper.ext"));
  EXPECT_TRUE(files().empty());
  EXPECT_FALSE(run.has("inc/abcpec.c"));
  EXPECT_FALSE(run.has("src/abcper.ext"));
  // Include lines name no directory.
  EXPECT_THAT(run.file("src/abcpec.c"),
              testing::EndsWith(includeOf("ABCPER_EXT", "abcper.ext")));
}

TEST_F(ModFiles, MissingDirectory)
{
  stxGlobalOption(tree, TED_FRONT_END, "-C=" + run.path("none"));
  run.add(tree, "abc");
  run.load({"abc"});
  abc = run.module("abc");
  EXPECT_EXIT(openFile(5, abc, 1, 5), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for writing\n"
                    "              " +
                    run.path("none/abcpec.c") + "\n\n"));
}

TEST_F(ModFiles, MissingDirectoryOfPrototypes)
{
  stxGlobalOption(tree, TED_FRONT_END, "-C=" + run.dir.path);
  stxGlobalOption(tree, TED_FRONT_END, "-H=" + run.path("none"));
  run.add(tree, "abc");
  run.load({"abc"});
  abc = run.module("abc");
  EXPECT_EXIT(openFile(6, abc, 2, 6), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not open file for writing\n"
                    "              " +
                    run.path("none/abcper.ext") + "\n\n"));
  openFile(5, abc, 1, 5);
  EXPECT_NE(fArr[5].fp, nullptr);
}

TEST_F(ModFiles, IncludeOfAFile)
{
  openNamedF(1, run.dir.path.c_str(), "out");
  includeRtsFile(1, "asntyp.typ");
  includeRtsFile(1, "");
  includeRtsFile(1, "a-b.x.ext");
  includeRtsFile(0, "lost.ext");
  EXPECT_EQ(closed(1, "out"),
            "\n#ifndef ASNTYP_TYP\n#include \"asntyp.typ\"\n#endif\n"
            "\n#ifndef A_B_X_EXT\n#include \"a-b.x.ext\"\n#endif\n");
}

TEST_F(ModFiles, IncludeOfAGeneratedFile)
{
  load();
  openNamedF(1, run.dir.path.c_str(), "out");
  includeGeneratedFile(1, abc, 1, 0);
  includeGeneratedFile(1, abc, 7, 2);
  includeGeneratedFile(1, abc, 6, 2);
  EXPECT_EQ(closed(1, "out"), includeOf("ABC_TYP", "abc.typ") +
                                  includeOf("ABCPER_EXT", "abcper.ext"));
}

TEST_F(ModFiles, PrototypesOfAnotherCategory)
{
  load();
  openPrototypeF(abc, 7, 7);
  // Its word is that of an entry other than 2, and the run-time's own
  // prototypes are for 6 and 12.
  EXPECT_EQ(closed(7, "abcper.ext"),
            headOf("Abc_Mod", "abcper.ext") +
                "\n#ifndef ABCPER_EXT\n#define ABCPER_EXT\n" +
                includeOf("ASNTYP_TYP", "asntyp.typ") +
                includeOf("ABC_TYP", "abc.typ"));
}

// The array decides which prototype files are included, the module's own one
// how they are called.
TEST_F(ModFiles, FunctionsByTheArray)
{
  load({"-PERCOD=1:2"});
  const std::string enc = includeOf("ABCPEC_EXT", "abcpec.ext");
  const std::string dec = includeOf("ABCPDC_EXT", "abcpdc.ext");
  const struct {
    uint8_t functions;
    uint8_t prototypes;
    std::string includes;
  } rows[] = {{0, 2, ""},  {1, 0, ""},  {1, 1, enc}, {1, 2, enc + dec},
              {2, 0, enc}, {2, 1, enc}, {2, 2, enc}, {3, 1, ""}};
  for (const auto &[functions, prototypes, includes] : rows) {
    uint8_t array[17] = {};
    array[5] = functions;
    array[6] = prototypes;
    openFunctionF(abc, array, 5, 5);
    EXPECT_EQ(closed(5, "abcper.c"), functionsOf("abcper.c", includes))
        << int(functions) << ":" << int(prototypes);
  }
}

TEST_F(ModFiles, FilesByTheArray)
{
  load();
  uint8_t array[17] = {};
  for (int entry : {0, 3, 255}) {
    int first = 99, second = 99;
    array[5] = array[6] = static_cast<uint8_t>(entry);
    openPrototypeFiles(abc, array, 6, first, second);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 0);
    first = second = 99;
    openFunctionFiles(abc, array, 5, first, second);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 0);
  }
  EXPECT_TRUE(files().empty());
}

// --- all files of a module --------------------------------------------------

// The words of one naming.
struct FileWords {
  const char *both;
  const char *enc;
  const char *dec;
};

static FilesByName expectedFiles(const FileWords &words, int functions,
                                 int prototypes)
{
  // File and guard of a word.
  auto ext = [](const std::string &word) { return "abc" + word + ".ext"; };
  auto guard = [](std::string word) { return "ABC" + strUpper(word) + "_EXT"; };
  auto include = [&](const char *word) {
    return includeOf(guard(word).c_str(), ext(word).c_str());
  };
  FilesByName files;
  auto addFunctions = [&](const char *word, const std::string &includes) {
    std::string name = std::string("abc") + word + ".c";
    files[name] = functionsOf(name.c_str(), includes);
  };
  auto addPrototypes = [&](const char *word) {
    files[ext(word)] = prototypesOf(guard(word).c_str(), ext(word).c_str());
  };

  std::string ofBoth = prototypes == 1 ? include(words.both)
                       : prototypes == 2
                           ? include(words.enc) + include(words.dec)
                           : "";
  if (functions == 1)
    addFunctions(words.both, ofBoth);
  if (functions == 2) {
    bool separate = prototypes == 2;
    addFunctions(words.enc, separate ? include(words.enc) : ofBoth);
    addFunctions(words.dec, separate ? include(words.dec) : ofBoth);
  }
  if (prototypes == 1)
    addPrototypes(words.both);
  if (prototypes == 2) {
    addPrototypes(words.enc);
    addPrototypes(words.dec);
  }
  return files;
}

struct EverySplit : ModFiles,
                    testing::WithParamInterface<std::tuple<int, int, bool>> {};

TEST_P(EverySplit, FilesAndContents)
{
  auto [functions, prototypes, ber] = GetParam();
  FileWords words = {"per", "pec", "pdc"};
  if (ber)
    words = {"cod", "enc", "dec"};
  load({formatText("-PERCOD=%d:%d", functions, prototypes),
        ber ? "-BERFUNCPREF=yes" : "-BERFUNCPREF=no"});
  fiEnc = fiDec = fiEncE = fiDecE = fiDef = 99;

  openModuleFiles(abc);
  const int second[] = {0, 0, 6};  // from the first slot to the second
  EXPECT_EQ(fiDef, 0);
  EXPECT_EQ(fiEnc, functions ? 5 : 0);
  EXPECT_EQ(fiDec, functions ? 5 + second[functions] : 0);
  EXPECT_EQ(fiEncE, prototypes ? 6 : 0);
  EXPECT_EQ(fiDecE, prototypes ? 6 + second[prototypes] : 0);

  closeModuleFiles();
  EXPECT_EQ(fiEnc, 0);
  EXPECT_EQ(fiEncE, 0);
  // Combined files were closed once; the decoder's number is stale.
  EXPECT_EQ(fiDec, functions == 1 ? 5 : 0);
  EXPECT_EQ(fiDecE, prototypes == 1 ? 6 : 0);
  for (const OutFile &file : fArr)
    EXPECT_EQ(file.fp, nullptr);
  EXPECT_EQ(files(), expectedFiles(words, functions, prototypes));
}

INSTANTIATE_TEST_SUITE_P(ModFiles, EverySplit,
                         testing::Combine(testing::Range(0, 3),
                                          testing::Range(0, 3),
                                          testing::Bool()));

TEST_F(ModFiles, DefaultSplit)
{
  load();
  openModuleFiles(abc);
  closeModuleFiles();
  std::string include = includeOf("ABCPER_EXT", "abcper.ext");
  EXPECT_EQ(files(),
            (FilesByName{
                {"abcpec.c", functionsOf("abcpec.c", include)},
                {"abcpdc.c", functionsOf("abcpdc.c", include)},
                {"abcper.ext", prototypesOf("ABCPER_EXT", "abcper.ext")},
            }));
}

TEST_F(ModFiles, EntriesAloneAreEnough)
{
  tree = emptyTree("Abc-Mod", "abc");
  tree.header.nrEntryTypes = 1;
  load();
  openModuleFiles(abc);
  EXPECT_EQ(fiEnc, 5);
  EXPECT_EQ(fiDecE, 6);
}

TEST_F(ModFiles, NothingToGenerate)
{
  tree = emptyTree("Abc-Mod", "abc");
  load();
  // As a module with combined files has left them.
  fiDec = 5;
  fiEncE = fiDecE = fiEnc = fiDef = 6;
  openModuleFiles(abc);
  for (int slot : {fiEnc, fiDec, fiEncE, fiDecE, fiDef})
    EXPECT_EQ(slot, 0);
  closeModuleFiles();
  EXPECT_TRUE(files().empty());
}

TEST_F(ModFiles, SecondModuleAfterCombinedFiles)
{
  StxTree other = smallTree("Def-Mod", "def");
  run.saveDirectories(other);
  run.add(other, "def");
  load({"def", "-PERCOD=1:1"});
  AsnModule def = run.module("def");
  openModuleFiles(abc);
  closeModuleFiles();
  openModuleFiles(def);
  EXPECT_EQ(fiDec, 5);
  EXPECT_EQ(fiDecE, 6);
  wToF(fiDec, "text\n");
  closeModuleFiles();
  EXPECT_EQ(run.file("defper.c"), headOf("Def_Mod", "defper.c") +
                                      includeOf("DEFPER_EXT", "defper.ext") +
                                      "text\n");
  EXPECT_EQ(run.file("abcper.ext"), prototypesOf("ABCPER_EXT", "abcper.ext"));
}

// --- closing ----------------------------------------------------------------

TEST_F(ModFiles, CloseFile)
{
  load();
  int functions = 5, prototypes = 6, none = 0;
  openNamedF(5, run.dir.path.c_str(), "f.c");
  openNamedF(6, run.dir.path.c_str(), "p-q.ext");
  closeFile(functions, 1);
  closeFile(prototypes, 2);
  closeFile(none, 2);
  EXPECT_EQ(functions, 0);
  EXPECT_EQ(prototypes, 0);
  EXPECT_EQ(none, 0);
  EXPECT_EQ(run.file("f.c"), "");
  EXPECT_EQ(run.file("p-q.ext"), "\n#endif /*P_Q_EXT*/\n");
  EXPECT_EQ(fArr[5].fp, nullptr);
  EXPECT_EQ(fArr[6].fp, nullptr);
}

TEST_F(ModFiles, CloseOfAFullDisk)
{
  std::filesystem::create_symlink("/dev/full", run.path("abcper.ext"));
  load();
  openModuleFiles(abc);
  EXPECT_EXIT(closeModuleFiles(), ExitedWithCode(2),
              StrEq("\nFATAL ERROR : Can not close file\n              " +
                    run.path("abcper.ext") + "\n\n"));
}
