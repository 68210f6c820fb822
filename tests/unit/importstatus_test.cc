// Circles among imports.

#include "base/strings.h"
#include "cbet/importstatus.h"
#include "support/loadedrun.h"
#include <gtest/gtest.h>
#include <map>

namespace {

struct ImportStatusTest : testing::Test {
  LoadedRun run;

  ~ImportStatusTest() override { deleteImportStatusTable(); }

  // Modules named by prefix, with what each imports; all are generated.
  void load(const std::map<std::string, std::vector<std::string>> &modules)
  {
    std::vector<std::string> arguments;
    for (const auto &[prefix, imports] : modules) {
      StxTree tree = smallTree(("Mod-" + prefix).c_str(), prefix.c_str());
      for (const std::string &other : imports)
        stxImport(tree, "Mod-" + other, other, true);
      run.add(tree, prefix.c_str());
      arguments.push_back(prefix);
    }
    run.load(arguments);
  }
  static bool circular(const char *prefix)
  {
    AsnModule module = LoadedRun::module(prefix);
    return cIsCircularImports(module);
  }
};

TEST_F(ImportStatusTest, Alone)
{
  load({{"a", {}}});
  EXPECT_FALSE(circular("a"));
}

TEST_F(ImportStatusTest, OneWay)
{
  load({{"a", {"b"}}, {"b", {}}});
  EXPECT_FALSE(circular("a"));
  EXPECT_FALSE(circular("b"));
}

TEST_F(ImportStatusTest, Two)
{
  load({{"a", {"b"}}, {"b", {"a"}}, {"c", {}}});
  EXPECT_TRUE(circular("a"));
  EXPECT_TRUE(circular("b"));
  EXPECT_FALSE(circular("c"));
}

TEST_F(ImportStatusTest, ThreeInALine)
{
  load({{"a", {"b"}}, {"b", {"c"}}, {"c", {}}});
  for (const char *prefix : {"a", "b", "c"})
    EXPECT_FALSE(circular(prefix)) << prefix;
}

TEST_F(ImportStatusTest, Three)
{
  load({{"a", {"b"}}, {"b", {"c"}}, {"c", {"a"}}});
  for (const char *prefix : {"a", "b", "c"})
    EXPECT_TRUE(circular(prefix)) << prefix;
}

// A module that only leads into a circle of two counts as one of it: its
// include files cannot be put in order either. What the circle imports from
// doesn't.
TEST_F(ImportStatusTest, LeadingIntoACircle)
{
  load({{"a", {"b"}}, {"b", {"c"}}, {"c", {"b", "d"}}, {"d", {}}});
  EXPECT_TRUE(circular("a"));
  EXPECT_TRUE(circular("b"));
  EXPECT_FALSE(circular("d"));
}

// A circle of three that the first module is not in: the search ends, and
// when the first pair is asked about nobody knows of the circle yet.
TEST_F(ImportStatusTest, CircleWithoutTheAskingModule)
{
  load({{"a", {"b"}}, {"b", {"c"}}, {"c", {"d"}}, {"d", {"b"}}});
  EXPECT_FALSE(circular("a"));
  for (const char *prefix : {"b", "c", "d"})
    EXPECT_TRUE(circular(prefix)) << prefix;
}

// The answers of all modules come with the first question, and stay.
TEST_F(ImportStatusTest, WorkedOutOnce)
{
  load({{"a", {"b"}}, {"b", {"a"}}});
  AsnModule a = LoadedRun::module("a");
  AsnModule b = LoadedRun::module("b");
  cMP = b.rec;
  EXPECT_TRUE(cIsCircularImports(a));
  EXPECT_EQ(cMP, b.rec);
  EXPECT_EQ(b.rec->moduleInfoCache.known >> 5 & 1, 1U);
  b.rec->moduleInfoCache.value = 0;
  EXPECT_FALSE(cIsCircularImports(b));
}

TEST_F(ImportStatusTest, Many)
{
  constexpr int count = 300;
  std::map<std::string, std::vector<std::string>> modules;
  for (int i = 0; i < count; ++i)
    modules[formatText("m%03d", i)] = {formatText("m%03d", (i + 1) % count)};
  load(modules);
  EXPECT_TRUE(circular("m000"));
  EXPECT_TRUE(circular("m299"));
}

// Each imports from the 40 that follow, and the last two from each other: all
// lead into the circle of the two. Without it there is none.
TEST_F(ImportStatusTest, ManyImports)
{
  constexpr int count = 600;
  std::map<std::string, std::vector<std::string>> modules;
  for (int i = 0; i < count; ++i) {
    std::vector<std::string> &imports = modules[formatText("m%03d", i)];
    for (int k = i + 1; k <= i + 40 && k < count; ++k)
      imports.push_back(formatText("m%03d", k));
  }
  load(modules);
  for (const char *prefix : {"m000", "m300", "m599"})
    EXPECT_FALSE(circular(prefix)) << prefix;
}

TEST_F(ImportStatusTest, ManyImportsIntoACircle)
{
  constexpr int count = 300;
  std::map<std::string, std::vector<std::string>> modules;
  for (int i = 0; i < count; ++i) {
    std::vector<std::string> &imports = modules[formatText("m%03d", i)];
    for (int k = i + 1; k <= i + 40 && k < count; ++k)
      imports.push_back(formatText("m%03d", k));
  }
  modules["m299"] = {"m298"};
  load(modules);
  for (const char *prefix : {"m000", "m150", "m298", "m299"})
    EXPECT_TRUE(circular(prefix)) << prefix;
}

// Two ways to one module are no circle.
TEST_F(ImportStatusTest, Diamond)
{
  load({{"a", {"b", "c"}}, {"b", {"d"}}, {"c", {"d"}}, {"d", {}}});
  for (const char *prefix : {"a", "b", "c", "d"})
    EXPECT_FALSE(circular(prefix)) << prefix;
}

TEST_F(ImportStatusTest, Access)
{
  load({{"a", {"b"}}, {"b", {}}});
  AsnModule a = LoadedRun::module("a");
  AsnModule b = LoadedRun::module("b");
  initModuleCount();
  EXPECT_EQ(g_moduleCount, 2);
  initImportStatusTable();
  EXPECT_EQ(getImportStatus(0, 1), IMPORT_NONE);
  setImportStatusByMod(a, b, IMPORT_CIRCULAR);
  EXPECT_EQ(getImportStatusByMod(a, b), IMPORT_CIRCULAR);
  EXPECT_EQ(getImportStatus(getUniqueModuleNr(a), getUniqueModuleNr(b)),
            IMPORT_CIRCULAR);
  EXPECT_EQ(getImportStatusByMod(b, a), IMPORT_NONE);
  setImportStatus(1, 0, 3);
  EXPECT_EQ(getImportStatus(1, 0), 3);
}

TEST_F(ImportStatusTest, IndexOverflow)
{
  load({{"a", {}}});
  initModuleCount();
  initImportStatusTable();
  const char *text = "cbet0: Status table index overflow";
  for (int32_t place : {1, -1, 1000}) {
    EXPECT_EXIT(getImportStatus(place, 0), testing::ExitedWithCode(2), text);
    EXPECT_EXIT(setImportStatus(0, place, 1), testing::ExitedWithCode(2), text);
  }
}

}  // namespace
