// The COMBINE option, and the groups that a tree forms with it.

#include "base/upcalls.h"
#include "options/combine.h"
#include "store/module.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

struct CombineListCase {
  const char *text;
  bool lenient;
  bool strict;
  std::vector<std::string> names;  // if it is lenient
};

TEST(ParseCombineOption, Lists)
{
  const CombineListCase cases[] = {
      {"abc", true, false, {"abc"}},
      {"abc:def", true, true, {"abc", "def"}},
      {"abc:def,ghi", true, true, {"abc", "def", "ghi"}},
      // The first name ends at ":" only, the later ones at ",".
      {"abc,def", true, false, {"abc,def"}},
      {"abc,def:ghi", true, false, {"abc,def", "ghi"}},
      {"abc:def:ghi", true, false, {"abc", "def:ghi"}},
      {"abc:abc", true, false, {"abc", "abc"}},
      {"abc:def,abc", true, false, {"abc", "def", "abc"}},
      {"abc:Abc", true, true, {"abc", "Abc"}},
      {"a-c:d_f", true, true, {"a-c", "d_f"}},
      {"abc:d.f", true, false, {"abc", "d.f"}},
      {"a b:def", true, false, {"a b", "def"}},
      // Valid in the length to which a prefix is cut.
      {"abcde/f:xyz.stx", true, true, {"abcde/f", "xyz.stx"}},
      {"ab/cd:xyz", true, false, {"ab/cd", "xyz"}},
  };
  for (const CombineListCase &row : cases) {
    std::vector<std::string> names = {"left", "over"};
    EXPECT_EQ(parseCombineOption(row.text, names, false), row.lenient)
        << row.text;
    EXPECT_EQ(names, row.names) << row.text;
    EXPECT_EQ(parseCombineOption(row.text, names, true), row.strict)
        << row.text;
    EXPECT_EQ(names, row.names) << row.text;
  }
}

TEST(ParseCombineOption, EmptyNameIsAFault)
{
  for (const char *text : {"", ":", "abc:", ":abc", "abc:def,", "abc:,def",
                           "abc:def,,ghi", "abc:def,ghi,"}) {
    std::vector<std::string> names;
    EXPECT_FALSE(parseCombineOption(text, names, false)) << text;
    EXPECT_FALSE(parseCombineOption(text, names, true)) << text;
  }
}

TEST(ParseCombineOption, EmptyNameStopsTheList)
{
  std::vector<std::string> names;
  EXPECT_FALSE(parseCombineOption("abc:def,,ghi", names, false));
  EXPECT_THAT(names, ElementsAre("abc", "def"));
  EXPECT_FALSE(parseCombineOption(":def", names, false));
  EXPECT_TRUE(names.empty());
}

TEST(CombineOption, KeepsTheText)
{
  std::string field;
  EXPECT_TRUE(combineOptionOK(field, "abc:def,ghi"));
  EXPECT_EQ(field, "abc:def,ghi");
  // Not strict: one name, the same name, no valid prefix.
  for (const char *text : {"abc", "abc:abc", "a b:c.d"}) {
    EXPECT_TRUE(combineOptionOK(field, text)) << text;
    EXPECT_EQ(field, text);
  }
}

TEST(CombineOption, EmptyTextClears)
{
  std::string field = "abc:def";
  EXPECT_TRUE(combineOptionOK(field, ""));
  EXPECT_EQ(field, "");
}

TEST(CombineOption, Refused)
{
  std::string field = "abc:def";
  for (const char *text : {":", "abc:", ":abc", "abc:def,"}) {
    EXPECT_FALSE(combineOptionOK(field, text)) << text;
    EXPECT_EQ(field, "abc:def") << text;
  }
}

// A module "abc" that imports "def" and "ghi".
struct CombinedGroup : testing::Test {
  ModRec *own;
  ModRec *def;
  ModRec *ghi;
  CombinedGroup()
  {
    resetStore();
    own = appendModRec(true);
    setModulePrefixes(*own, "abc", "abc");
    own->options.prefixLen = 3;
    def = import("def", "Def");
    ghi = import("ghi", "Ghi");
  }
  ~CombinedGroup() override { resetStore(); }
  ModRec *import(const char *prefix, const char *name) const
  {
    PicRec *entry = createPicRec(*own, name);
    entry->module = findOrCreateModRec(prefix, prefix, name);
    return entry->module;
  }
  std::vector<ModRec *> group(const char *option) const
  {
    own->options.combine = option;
    checkCombinedModules(*own);
    return own->combined;
  }
};

TEST_F(CombinedGroup, InTheOrderOfTheList)
{
  EXPECT_THAT(group("ghi:abc,def"), ElementsAre(ghi, own, def));
  EXPECT_EQ(own->options.combine, "ghi:abc,def");
}

TEST_F(CombinedGroup, ComparedInThePrefixLength)
{
  EXPECT_THAT(group("abcde:defgh"), ElementsAre(own, def));
  EXPECT_THAT(group("ab:de"), ElementsAre());
  own->options.prefixLen = 5;
  EXPECT_THAT(group("abcde:ghi"), ElementsAre(ghi));
}

TEST_F(CombinedGroup, NamesAreGenerationPrefixes)
{
  setModulePrefixes(*own, "fil", "abc");
  setModulePrefixes(*def, "ghi", "def");
  setModulePrefixes(*ghi, "def", "gen");
  EXPECT_THAT(group("abc:def,gen"), ElementsAre(own, def, ghi));
  EXPECT_THAT(group("fil:ghi"), ElementsAre());
}

TEST_F(CombinedGroup, UnknownNamesPassedOver)
{
  EXPECT_THAT(group("xyz:ghi,uvw"), ElementsAre(ghi));
  EXPECT_THAT(group("Abc:Def"), ElementsAre());
}

TEST_F(CombinedGroup, ModulesThatAreNotImported)
{
  findOrCreateModRec("oth", "oth", "Other");
  matchingPtr(own->firstImport, def)->module = nullptr;
  EXPECT_THAT(group("abc:def,oth,ghi"), ElementsAre(own, ghi));
}

TEST_F(CombinedGroup, AbsentOptionClears)
{
  EXPECT_THAT(group("abc:def"), ElementsAre(own, def));
  EXPECT_THAT(group(""), ElementsAre());
}
