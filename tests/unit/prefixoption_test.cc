// The option PREFIX, which tells the prefixes of a tree's modules.

#include "base/diag.h"
#include "options/catalogue.h"
#include "store/module.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ExitedWithCode;
using testing::StrEq;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

// The tree of "abc" is loading: its strings can only be looked up. The module
// "def", which was loaded before it, is current.
struct PrefixOption : testing::Test {
  int savedLevel = verboseEx;
  ModRec *abc;
  ModRec *def;
  GlobalOptions *options;
  std::string errors;
  PrefixOption()
  {
    resetStore();
    cMP = def = newModule("def");
    abc = newModule("abc");
    options = &abc->options;
  }
  ~PrefixOption() override
  {
    resetStore();
    verboseEx = savedLevel;
  }
  static ModRec *newModule(const char *prefix)
  {
    ModRec *module = appendModRec(true);
    setModulePrefixes(*module, prefix, prefix);
    module->options.prefixLen = 5;
    return module;
  }
  void strings(std::vector<const char *> texts) const
  {
    abc->nextFree[REC_STRI] = 1;
    for (const char *text : texts)
      putStri(abc, text);
    abc->nextFree[REC_STRI] = 0;
  }
  bool apply(const std::string &value)
  {
    CaptureStderr();
    bool good = prefixOptOK(*abc, value.c_str());
    errors = GetCapturedStderr();
    return good;
  }
  // The module that the table of prefixes gives for a name.
  const ModRec *moduleOf(const char *name) const
  {
    if (!options->prefixes)
      return nullptr;
    const PicRec *entry =
        matchingName(options->prefixes->firstImport, internStri(name));
    return entry ? entry->module : nullptr;
  }
  void expectModule(const char *name, const char *filePrefix,
                    const char *generationPrefix) const
  {
    const ModRec *module = moduleOf(name);
    ASSERT_NE(module, nullptr) << name;
    EXPECT_STREQ(module->moduleName, name);
    EXPECT_STREQ(module->filePrefix, filePrefix);
    EXPECT_STREQ(module->generationPrefix, generationPrefix);
    EXPECT_EQ(module->treeStatus, TREE_NOT_READ);
    EXPECT_FALSE(module->inGenerationList);
  }
};

TEST_F(PrefixOption, ThreeParts)
{
  strings({"My_Mod", "f-1_x", "g-2_y"});
  EXPECT_TRUE(apply("My-Mod:f-1_x:g-2_y"));
  EXPECT_EQ(errors, "");
  expectModule("My_Mod", "f-1_x", "g-2_y");
  EXPECT_EQ(abc->nrWarnings, 0);
}

TEST_F(PrefixOption, PartsLeftOut)
{
  strings({"Mod", "fil", "gen", "M_n", "M-n"});
  EXPECT_TRUE(apply("Mod:fil"));
  expectModule("Mod", "fil", "fil");
  options->prefixes->firstImport->module = nullptr;
  EXPECT_TRUE(apply("Mod::gen"));
  expectModule("Mod", "Mod", "gen");
  EXPECT_TRUE(apply("M-n"));
  // The prefixes take the name as it was given.
  expectModule("M_n", "M-n", "M-n");
  for (const char *value : {"M-n:", "M-n::"}) {
    EXPECT_TRUE(apply(value)) << value;
    expectModule("M_n", "M-n", "M-n");
  }
  EXPECT_EQ(errors, "");
}

TEST_F(PrefixOption, Refused)
{
  strings({"Mod", "mod", "fil", "gen", "", "9od"});
  for (const char *value :
       {"", ":fil", "mod", "9od", "-od", "_Mod", "Mo_d", "Mod:f.l",
        "Mod:fil:g/n", "Mod:fil:gen:", "Mod:fil:gen:x", "Mod fil", "Mod:fil ",
        " Mod", "Mod\xe4", "Mod:fil:gen x"})
    EXPECT_FALSE(apply(value)) << value;
  EXPECT_EQ(options->prefixes, nullptr);
  EXPECT_TRUE(apply("Mod:fil:"));
}

TEST_F(PrefixOption, NothingMadeWhenRefused)
{
  EXPECT_FALSE(apply("mod:fil:gen"));
  EXPECT_EQ(options->prefixes, nullptr);
  EXPECT_EQ(eOfModRList, abc);
  EXPECT_EQ(errors, "");
}

static std::string tooLong(const char *what, const std::string &text)
{
  return std::string("\nWARNING : A ") + what + " '" + text +
         "' is longer than 5 characters.\n"
         "          Truncating it to 5 characters.\n"
         "          Check value of the PREFIXLEN option.\n";
}

TEST_F(PrefixOption, LongPrefixes)
{
  strings({"Mod", "fffff", "ggggg"});
  verboseEx = 2;
  EXPECT_TRUE(apply("Mod:ffffff:gggggggg"));
  EXPECT_EQ(errors, tooLong("file prefix", "ffffff") +
                        tooLong("generation prefix", "gggggggg"));
  EXPECT_EQ(abc->nrWarnings, 2);
  EXPECT_EQ(def->nrWarnings, 0);
  expectModule("Mod", "fffff", "ggggg");
}

TEST_F(PrefixOption, LongPrefixesQuietly)
{
  strings({"Mod", "fffff", "ggggg"});
  verboseEx = 1;
  EXPECT_TRUE(apply("Mod:ffffff:gggggg"));
  EXPECT_EQ(errors, "");
  // They count all the same.
  EXPECT_EQ(abc->nrWarnings, 2);
  expectModule("Mod", "fffff", "ggggg");
}

TEST_F(PrefixOption, DerivedGenerationPrefixIsNotTold)
{
  strings({"Mod", "fffff", "Long_Module", "Long-"});
  EXPECT_TRUE(apply("Mod:ffffff"));
  EXPECT_EQ(errors, tooLong("file prefix", "ffffff"));
  expectModule("Mod", "fffff", "fffff");
  EXPECT_TRUE(apply("Long-Module"));
  EXPECT_EQ(errors, tooLong("file prefix", "Long-Module"));
  expectModule("Long_Module", "Long-", "Long-");
}

TEST_F(PrefixOption, LimitIsTheModulesPrefixLength)
{
  options->prefixLen = 8;
  strings({"Mod", "ffffffff"});
  EXPECT_TRUE(apply("Mod:ffffffff"));
  EXPECT_EQ(errors, "");
  expectModule("Mod", "ffffffff", "ffffffff");
}

TEST_F(PrefixOption, LongModuleName)
{
  std::string name(128, 'M');
  strings({name.c_str(), "fil"});
  EXPECT_TRUE(apply(name + "xyz:fil"));
  EXPECT_EQ(errors, "");
  expectModule(name.c_str(), "fil", "fil");
}

TEST_F(PrefixOption, MissingPieceOfTheTree)
{
  strings({"Mod", "fil", "gen"});
  const char *text = "\nFATAL ERROR : Can not read record from syntax tree\n\n";
  for (const char *value :
       {"Xyz:fil:gen", "Mod:xyz:gen", "Mod:fil:xyz", "Mod-x:fil:gen"})
    EXPECT_EXIT(prefixOptOK(*abc, value), ExitedWithCode(2), StrEq(text))
        << value;
  EXPECT_TRUE(apply("Mod:fil:gen"));
}

TEST_F(PrefixOption, StringsAreOfTheModuleBeingLoaded)
{
  // Not of the current one, which is another while an import loads.
  def->nextFree[REC_STRI] = 1;
  ASSERT_EQ(cMP, def);
  strings({"Mod"});
  EXPECT_TRUE(apply("Mod"));
  EXPECT_EQ(def->nextFree[REC_STRI], 1);
}

TEST_F(PrefixOption, SameNameTwice)
{
  strings({"Mod", "one", "two", "three"});
  EXPECT_TRUE(apply("Mod:one"));
  EXPECT_TRUE(apply("Mod:two:three"));
  EXPECT_EQ(options->prefixes->firstImport, options->prefixes->lastImport);
  expectModule("Mod", "two", "three");
}

TEST_F(PrefixOption, KnownGenerationPrefix)
{
  strings({"Mod", "fil", "def"});
  EXPECT_TRUE(apply("Mod:fil:def"));
  // The record that is there already is taken as it is.
  EXPECT_EQ(moduleOf("Mod"), def);
  EXPECT_STREQ(def->filePrefix, "def");
  EXPECT_EQ(def->moduleName, nullptr);
  EXPECT_EQ(eOfModRList, abc);
}

TEST_F(PrefixOption, Pass2)
{
  strings({"Mod", "fil"});
  EXPECT_TRUE(pass2GlobalOptionOK(*abc, 1, TED_FRONT_END, "PREFIX=Mod:fil"));
  expectModule("Mod", "fil", "fil");
  EXPECT_FALSE(pass2GlobalOptionOK(*abc, 1, TED_FRONT_END, "PREFIX=mod"));
  EXPECT_FALSE(pass2GlobalOptionOK(*abc, 1, TED_FRONT_END, "PREFIX="));
}

TEST_F(PrefixOption, Pass2OtherOptions)
{
  for (const char *text :
       {"", "PREFIX", "prefix=Mod:fil", "PREFIXLEN=7", "NAMELEN=40", "ALLOW"})
    EXPECT_TRUE(pass2GlobalOptionOK(*abc, 1, TED_FRONT_END, text)) << text;
  EXPECT_EQ(options->prefixes, nullptr);
  EXPECT_EQ(options->nameLen, 32);
  EXPECT_EQ(options->allow, 0);
}
