// The catalogue of options that a tree brings along: names, defaults, fields
// and values, by kind of line, and the options with a syntax of their own.

#include "ade/summary.h"
#include "base/diag.h"
#include "base/int64.h"
#include "base/upcalls.h"
#include "options/catalogue.h"
#include "store/module.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::ExitedWithCode;
using testing::StrEq;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

typedef GlobalOptions G;

// A module "abc" with the options of a tree just loaded, and "def" beside it.
struct Catalogue : testing::Test {
  int savedLevel = verboseEx;
  AdeRecord savedAde = adeRecord;
  ModRec *abc;
  ModRec *def;
  G *options;
  Catalogue()
  {
    resetStore();
    pass3Scope = 1;
    cMP = def = newModule("def");
    abc = newModule("abc");
    options = &abc->options;
  }
  ~Catalogue() override
  {
    resetStore();
    pass3Scope = 1;
    adeRecord = savedAde;
    verboseEx = savedLevel;
  }
  static ModRec *newModule(const char *prefix)
  {
    ModRec *module = appendModRec(true);
    setModulePrefixes(*module, prefix, prefix);
    module->options.prefixLen = 5;
    initMetaRec(module->options);
    return module;
  }
  bool pass3(int kind, const std::string &text, int32_t index = 1) const
  {
    // Options keep pointers into the text of a line, which never goes away.
    return pass3GlobalOptionOK(*abc, index, kind, internStri(text));
  }
  bool catalogued(const std::string &text) const
  {
    return pass3(TED_FRONT_END, text);
  }
};

// --- the rows of the catalogue ----------------------------------------------

// A field as a number.
template <auto field>
static int64_t get(const G &options)
{
  return options.*field;
}

template <auto field>
static std::string getText(const G &options)
{
  return options.*field;
}

struct OptionValue {
  const char *text;
  int64_t field;  // negative: refused
};

struct CatalogueNumber {
  const char *name;
  int64_t (*field)(const G &);
  int64_t initial;
  std::vector<OptionValue> values;
};

static const std::vector<OptionValue> booleValues = {
    {"yes", 1}, {"NO", 0}, {"TRUE", 1}, {"false", 0}, {"1", 1},
    {"0", 0},   {"2", -1}, {"on", -1},  {"01", -1}};
static const std::vector<OptionValue> yesNoValues = {
    {"yes", 1}, {"No", 0}, {"1", 1}, {"0", 0}, {"2", -1}, {"TRUE", -1}};
static const std::vector<OptionValue> to2Values = {
    {"0", 0}, {"2", 2}, {"1", 1}, {"3", -1}, {"01", -1}, {"no", -1}};
static const std::vector<OptionValue> errorValues = {
    {"ERROR", 2}, {"ignore", 0}, {"Warning", 1}, {"0", 0},
    {"2", 2},     {"3", -1},     {"no", -1}};
static const std::vector<OptionValue> limitValues = {
    {"0", 0},    {"2147483647", 2147483647},
    {"17", 17},  {"2147483648", -1},
    {"017", -1}, {"-1", -1},
    {"x", -1}};
static const std::vector<OptionValue> signedSizeValues = {
    {"8", 6},  {"16", 7},   {"32", 8},   {"64", 9},      {"0", 0},
    {"64", 9}, {"u16", -1}, {"128", -1}, {"Optimize", 0}};

// The second group, as far as a field is a number.
static const CatalogueNumber numberRows[] = {
    {"INT=",
     get<&G::intSize>,
     0,
     {{"u8", 2},
      {"u16", 3},
      {"U32", 4},
      {"u64", 5},
      {"8", 6},
      {"64", 9},
      {"0", 0},
      {"7", -1},
      {"u", -1}}},
    {"N=", get<&G::nSize>, 0, signedSizeValues},
    {"COMPMASK=", get<&G::compMaskSize>, 0, signedSizeValues},
    {"CHOICE=", get<&G::choiceSize>, 0, signedSizeValues},
    {"REAL=",
     get<&G::realSize>,
     11,
     {{"0", 0}, {"32", 10}, {"64", 11}, {"128", 12}, {"16", -1}}},
    {"PUSHPATH=", get<&G::pushPath>, 0, booleValues},
    {"XREF=", get<&G::xref>, 1, booleValues},
    {"LIST=", get<&G::list>, 1, booleValues},
    {"ANSI-C=", get<&G::ansiC>, 1, booleValues},
    {"REENTRANT=", get<&G::reentrant>, 0, booleValues},
    {"PLMBOOLE=", get<&G::plmBoole>, 0, booleValues},
    {"NEAR=", get<&G::near>, 0, booleValues},
    {"ALTTAB=", get<&G::altTab>, 0, booleValues},
    {"ASNHC=", get<&G::asnHc>, 0, booleValues},
    {"OPTVARS=", get<&G::optVars>, 0, booleValues},
    {"OMIT-SKIPPED-FIELDS=", get<&G::omitSkippedFields>, 0, booleValues},
    {"STANDARD-VERSION=",
     get<&G::standardVersion>,
     1994,
     {{"1990", 1990}, {"1994", 1994}, {"1992", -1}, {"94", -1}}},
    {"DEFINITION-CATEGORY=",
     get<&G::definitionCategory>,
     0,
     {{"VARNO-SERVICE", 1},
      {"varno-protocol", 2},
      {"VARNO-IOS", 3},
      {"OTHER", 255},
      {"abc:STAND-ALONE", 0},
      {"1", -1}}},
    {"VARNO=",
     get<&G::definitionCategory>,
     0,
     {{"1", 1}, {"2", 2}, {"0", 0}, {"3", -1}}},
    {"TYP=", [](const G &o) -> int64_t { return o.genArr[1]; }, 1, yesNoValues},
    {"DEF=", [](const G &o) -> int64_t { return o.genArr[2]; }, 1, yesNoValues},
    {"TAB=", [](const G &o) -> int64_t { return o.genArr[3]; }, 0, yesNoValues},
    {"DECIMALS=",
     get<&G::decimals>,
     255,
     {{"0", 0}, {"127", 127}, {"128", -1}, {"255", -1}, {"yes", -1}}},
    {"COMPTAG=", get<&G::compTag>, 0, to2Values},
    {"EXPLICIT=", get<&G::explicitTag>, 0, to2Values},
    {"NAMELEN=",
     get<&G::nameLen>,
     32,
     {{"8", 8}, {"128", 128}, {"7", -1}, {"129", -1}, {"08", -1}}},
    {"RECURSION=", get<&G::recursion>, 0, errorValues},
    {"TAGUSAGE=", get<&G::tagUsage>, 0, errorValues},
    {"GENERATE=",
     get<&G::generate>,
     3,
     {{"none", 0},
      {"Entries", 1},
      {"VISIBLES", 2},
      {"entries-and-visibles", 3},
      {"0", 0},
      {"3", 3},
      {"4", -1},
      {"all", -1}}},
    {"MEMORY=", get<&G::memory>, 0, yesNoValues},
    {"DEFINITELEN=",
     get<&G::definiteLen>,
     0,
     {{"definite", 1},
      {"indefinite", 0},
      {"YES", 1},
      {"no", 0},
      {"definite-IndefiniteComps", 2},
      {"definite-definitecomps", 3},
      {"1", 1},
      {"4", -1},
      {"comps", -1}}},
    {"EXTENSIONS=",
     get<&G::extensions>,
     1,
     {{"skip", 0}, {"SAVE", 1}, {"0", 0}, {"1", 1}, {"2", -1}, {"yes", -1}}},
    {"ZEROHOME=", get<&G::zeroHome>, 0, yesNoValues},
    {"TDEFS=", get<&G::tDefs>, 0, yesNoValues},
    {"CDEFS=", get<&G::cDefs>, 0, yesNoValues},
    {"TABO=", get<&G::tabO>, 0, yesNoValues},
    {"SETN=",
     get<&G::setN>,
     2,
     {{"none", 0},
      {"Named-Numbers", 1},
      {"named-numbers-and-bits", 2},
      {"0", 0},
      {"3", -1},
      {"bits", -1}}},
    {"ALTMAX=",
     get<&G::altMax>,
     0,
     {{"8", 8}, {"0", 0}, {"9", -1}, {"yes", -1}}},
    {"C-GENERATION=",
     get<&G::cGeneration>,
     0,
     {{"REAL:EXTERNAL-N", 2}, {"OLD", 0x3f}, {"REAL-N", 0}, {"X", -1}}},
    {"SEGLISTLIM=", get<&G::segListLim>, 16384, limitValues},
    {"DYNLISTLIM=", get<&G::dynListLim>, 4096, limitValues},
    {"DYNARRLIM=", get<&G::dynArrLim>, 0, limitValues},
    {"SEGSTRLIM=", get<&G::segStrLim>, 16384, limitValues},
    {"DYNSTRLIM=", get<&G::dynStrLim>, 4096, limitValues},
    {"SPLIT=", get<&G::split>, 0, limitValues},
};

TEST_F(Catalogue, NumbersOfTheSecondGroup)
{
  for (const CatalogueNumber &row : numberRows) {
    initMetaRec(*options);
    ASSERT_EQ(row.field(*options), row.initial) << row.name;
    int64_t now = row.initial;
    for (const OptionValue &value : row.values) {
      bool good = value.field >= 0;
      now = good ? value.field : now;
      EXPECT_EQ(catalogued(std::string(row.name) + value.text), good)
          << row.name << value.text;
      EXPECT_EQ(row.field(*options), now) << row.name << value.text;
    }
  }
}

TEST_F(Catalogue, SecondGroupIsOfKind3)
{
  for (const CatalogueNumber &row : numberRows) {
    for (const OptionValue &value : row.values) {
      initMetaRec(*options);
      EXPECT_FALSE(pass3(TED_BACK_END, std::string(row.name) + value.text))
          << row.name << value.text;
      EXPECT_EQ(row.field(*options), row.initial) << row.name << value.text;
    }
  }
}

TEST_F(Catalogue, SecondGroupNeedsAValue)
{
  std::vector<std::string> names = {
      "INFO=", "C=",       "H=",       "COD=",    "TST=",
      "TABF=", "REALLIM=", "COMBINE=", "TABREF=", "DIAGLEVEL="};
  for (const CatalogueNumber &row : numberRows)
    names.push_back(row.name);
  options->info = options->combine = "kept";
  for (const std::string &name : names) {
    EXPECT_FALSE(catalogued(name)) << name;
    EXPECT_FALSE(catalogued(name.substr(0, name.size() - 1))) << name;
  }
  for (const CatalogueNumber &row : numberRows)
    EXPECT_EQ(row.field(*options), row.initial) << row.name;
  EXPECT_EQ(options->info, "kept");
  EXPECT_EQ(options->combine, "kept");
}

TEST_F(Catalogue, NamesCompareExactly)
{
  EXPECT_FALSE(catalogued("namelen=40"));
  EXPECT_FALSE(catalogued(" NAMELEN=40"));
  EXPECT_FALSE(catalogued("NAMELEN =40"));
  EXPECT_FALSE(catalogued("XNAMELEN=40"));
  EXPECT_EQ(options->nameLen, 32);
}

struct CatalogueText {
  const char *option;
  std::string (*field)(const G &);
  const char *stored;
};

TEST_F(Catalogue, TextsOfTheSecondGroup)
{
  const CatalogueText rows[] = {
      {"INFO=any text = 1", getText<&G::info>, "any text = 1"},
      {"TABREF=any\ttext", getText<&G::tabRef>, "any\ttext"},
      {"C=src", getText<&G::cDirectory>, "src/"},
      {"C=src/", getText<&G::cDirectory>, "src/"},
      {"H=my inc", getText<&G::hDirectory>, "my inc/"},
      {"COMBINE=abc:def,ghi", getText<&G::combine>, "abc:def,ghi"},
      {"COMBINE=abc", getText<&G::combine>, "abc"},
  };
  for (const CatalogueText &row : rows) {
    initMetaRec(*options);
    ASSERT_EQ(row.field(*options), "") << row.option;
    EXPECT_FALSE(pass3(TED_BACK_END, row.option)) << row.option;
    EXPECT_EQ(row.field(*options), "") << row.option;
    EXPECT_TRUE(catalogued(row.option)) << row.option;
    EXPECT_EQ(row.field(*options), row.stored);
  }
  EXPECT_FALSE(catalogued("COMBINE=abc:"));
  EXPECT_EQ(options->combine, "abc");
}

TEST_F(Catalogue, RealLimit)
{
  EXPECT_EQ(options->realLim.base, -1);
  EXPECT_TRUE(i64iszero(options->realLim.mantissa));
  EXPECT_FALSE(catalogued("REALLIM={12,2,3}"));
  EXPECT_FALSE(pass3(TED_BACK_END, "REALLIM={12,10,3}"));
  EXPECT_EQ(options->realLim.base, -1);
  EXPECT_TRUE(catalogued("REALLIM={12,10,3}"));
  EXPECT_EQ(i64cmpl(options->realLim.mantissa, 12), 0);
  EXPECT_EQ(options->realLim.base, 10);
  EXPECT_EQ(options->realLim.exponent, 3);
}

TEST_F(Catalogue, DiagLevelPassedOver)
{
  EXPECT_TRUE(catalogued("DIAGLEVEL=anything"));
  EXPECT_FALSE(pass3(TED_BACK_END, "DIAGLEVEL=1"));
}

TEST_F(Catalogue, SplitOfFunctions)
{
  const uint8_t fresh[17] = {0, 1, 1, 0, 0, 2, 1, 1, 0, 0, 0, 2, 1, 1, 0, 0, 0};
  EXPECT_THAT(options->genArr, ElementsAreArray(fresh));
  EXPECT_FALSE(catalogued("COD=1:2:3"));
  EXPECT_FALSE(pass3(TED_BACK_END, "COD=0"));
  EXPECT_THAT(options->genArr, ElementsAreArray(fresh));
  EXPECT_TRUE(catalogued("COD=combined"));
  const uint8_t combined[17] = {0, 1, 1, 0, 0, 1, 1, 1, 0,
                                0, 0, 1, 1, 1, 0, 0, 0};
  EXPECT_THAT(options->genArr, ElementsAreArray(combined));
  EXPECT_TRUE(catalogued("TST=2::1"));
  EXPECT_TRUE(catalogued("COD=:2"));
  const uint8_t both[17] = {0, 1, 1, 0, 0, 1, 2, 1, 2, 0, 1, 1, 2, 1, 2, 0, 1};
  EXPECT_THAT(options->genArr, ElementsAreArray(both));
  EXPECT_FALSE(catalogued("TST=3"));
  EXPECT_THAT(options->genArr, ElementsAreArray(both));
}

TEST_F(Catalogue, GenOptOK)
{
  EXPECT_TRUE(genOptOK(*options, "0:0:0", 5));
  EXPECT_FALSE(genOptOK(*options, "0:0:0:0", 5));
  const uint8_t expected[17] = {0, 1, 1};
  EXPECT_THAT(options->genArr, ElementsAreArray(expected));
}

TEST_F(Catalogue, FunctionsForTablesAtMostAsTables)
{
  EXPECT_FALSE(catalogued("TABF=1"));
  EXPECT_EQ(options->genArr[4], 0);
  EXPECT_TRUE(catalogued("TABF=0"));
  EXPECT_TRUE(catalogued("TAB=1"));
  EXPECT_TRUE(catalogued("TABF=1"));
  EXPECT_EQ(options->genArr[4], 1);
  EXPECT_FALSE(catalogued("TABF=2"));
  EXPECT_TRUE(catalogued("TABF=no"));
  EXPECT_EQ(options->genArr[4], 0);
  EXPECT_FALSE(pass3(TED_BACK_END, "TABF=1"));
  EXPECT_EQ(options->genArr[4], 0);
}

TEST_F(Catalogue, NamesForTableFunctionsHaveNoRange)
{
  EXPECT_TRUE(catalogued("TABF=YES"));
  EXPECT_EQ(options->genArr[3], 0);
  EXPECT_EQ(options->genArr[4], 1);
}

// --- the first group --------------------------------------------------------

TEST_F(Catalogue, FunctionBits)
{
  const CatalogueNumber rows[] = {
      {"ENCF=", get<&G::encF>, 255, {}},
      {"DECF=", get<&G::decF>, 255, {}},
      {"ASKF=", get<&G::askF>, 255, {}},
      {"PRIF=", get<&G::priF>, 255, {}},
  };
  for (const CatalogueNumber &row : rows) {
    for (int kind : {TED_BACK_END, TED_FRONT_END}) {
      initMetaRec(*options);
      ASSERT_EQ(row.field(*options), 255) << row.name;
      EXPECT_TRUE(pass3(kind, std::string(row.name) + "014")) << row.name;
      EXPECT_EQ(row.field(*options), 0x13) << row.name;
      EXPECT_FALSE(pass3(kind, std::string(row.name) + "8")) << row.name;
      EXPECT_EQ(row.field(*options), 0x13) << row.name;
      // Without a value: no function at all.
      EXPECT_TRUE(pass3(kind, row.name)) << row.name;
      EXPECT_EQ(row.field(*options), 0) << row.name;
    }
  }
}

TEST_F(Catalogue, AlternativeFunctionBits)
{
  EXPECT_THAT(options->altEncF, Each(0));
  EXPECT_THAT(options->altDecF, Each(0));
  // None can be used before ALTMAX tells how many there are.
  EXPECT_FALSE(catalogued("ALTENCF=0:5"));
  EXPECT_FALSE(catalogued("ALTDECF=0:5"));
  EXPECT_TRUE(catalogued("ALTMAX=3"));
  EXPECT_TRUE(catalogued("ALTENCF=0:5"));
  EXPECT_TRUE(pass3(TED_BACK_END, "ALTENCF=2:07"));
  EXPECT_FALSE(catalogued("ALTENCF=3:1"));
  EXPECT_FALSE(catalogued("ALTENCF="));
  EXPECT_TRUE(pass3(TED_BACK_END, "ALTDECF=1:1"));
  EXPECT_THAT(options->altEncF, ElementsAre(0x20, 0, 0x81, 0, 0, 0, 0, 0));
  EXPECT_THAT(options->altDecF, ElementsAre(0, 2, 0, 0, 0, 0, 0, 0));
  EXPECT_TRUE(catalogued("ALTMAX=8"));
  EXPECT_TRUE(catalogued("ALTDECF=7:"));
  EXPECT_FALSE(catalogued("ALTDECF=8:"));
}

TEST_F(Catalogue, Allow)
{
  for (int kind : {TED_BACK_END, TED_FRONT_END}) {
    for (const char *text : {"ALLOW", "ALLOWED", "ALLOW=no"}) {
      options->allow = 0;
      EXPECT_TRUE(pass3(kind, text)) << text;
      EXPECT_EQ(options->allow, 1) << text;
    }
  }
  options->allow = 0;
  EXPECT_FALSE(catalogued("allow"));
  EXPECT_FALSE(catalogued("ALLO"));
  EXPECT_EQ(options->allow, 0);
}

TEST_F(Catalogue, Comments)
{
  EXPECT_EQ(options->commentTed.last, 0);
  EXPECT_TRUE(pass3(TED_BACK_END, "//", 4));
  EXPECT_EQ(options->commentTed.first, 4);
  EXPECT_EQ(options->commentTed.last, 4);
  EXPECT_TRUE(pass3(TED_FRONT_END, "BEO=//a = comment", 7));
  EXPECT_TRUE(pass3(TED_BACK_END, "BEO=//", 9));
  EXPECT_EQ(options->commentTed.first, 4);
  EXPECT_EQ(options->commentTed.last, 9);
}

TEST_F(Catalogue, NoComments)
{
  EXPECT_FALSE(pass3(TED_BACK_END, "/ /", 4));
  EXPECT_FALSE(pass3(TED_BACK_END, "BEO=/x", 4));
  EXPECT_FALSE(pass3(TED_BACK_END, "beo=//x", 4));
  EXPECT_FALSE(pass3(TED_FRONT_END, "BEO=QUORVEN=X", 4));
  EXPECT_EQ(options->commentTed.last, 0);
}

TEST_F(Catalogue, NamingOptions)
{
  for (int kind : {TED_BACK_END, TED_FRONT_END}) {
    initMetaRec(*options);
    EXPECT_TRUE(pass3(kind, "CLPREF=x_"));
    EXPECT_STREQ(options->fixRecs[1].pref, "x_");
    EXPECT_TRUE(pass3(kind, "CLPREF="));
    EXPECT_STREQ(options->fixRecs[1].pref, "");
    EXPECT_FALSE(pass3(kind, "CLPREF=a+b"));
    EXPECT_STREQ(options->fixRecs[1].pref, "");
  }
}

TEST_F(Catalogue, EntryOptions)
{
  EXPECT_TRUE(pass3(TED_BACK_END, "ENTRY=X-PDU:PDU:sym"));
  const FixRec *record = options->entryFixRec.next;
  ASSERT_NE(record, nullptr);
  EXPECT_STREQ(record->pref, "sym");
  EXPECT_TRUE(pass3(TED_FRONT_END, "ENTRY=X-PDU:PDU:other"));
  EXPECT_STREQ(record->pref, "other");
  for (int kind : {TED_BACK_END, TED_FRONT_END}) {
    EXPECT_FALSE(pass3(kind, "ENTRY=X-PDU:18"));
    EXPECT_FALSE(pass3(kind, "ENTRY=Foo"));
  }
  EXPECT_STREQ(record->pref, "other");
}

// --- key words, and the order of the tests ----------------------------------

TEST(RCSKeyWord, Words)
{
  for (std::string word : {"AUTHOR", "DATE", "HEADER", "ID", "LOCKER", "LOG",
                           "RCSFILE", "REVISION", "SOURCE", "STATE"}) {
    EXPECT_TRUE(isRCSKeyWord(word.c_str())) << word;
    EXPECT_TRUE(isRCSKeyWord((word + ":").c_str())) << word;
    EXPECT_TRUE(isRCSKeyWord((word + ": x.asn $").c_str())) << word;
    EXPECT_FALSE(isRCSKeyWord((word + "X").c_str())) << word;
    EXPECT_FALSE(isRCSKeyWord((word + " :").c_str())) << word;
    EXPECT_FALSE(isRCSKeyWord((word + "=").c_str())) << word;
    word.pop_back();
    EXPECT_FALSE(isRCSKeyWord(word.c_str())) << word;
  }
  EXPECT_TRUE(isRCSKeyWord(""));
  EXPECT_FALSE(isRCSKeyWord("date"));
  EXPECT_FALSE(isRCSKeyWord(":"));
  EXPECT_FALSE(isRCSKeyWord("NAME"));
}

TEST_F(Catalogue, KeyWordsAsLines)
{
  for (int kind : {TED_BACK_END, TED_FRONT_END}) {
    EXPECT_TRUE(pass3(kind, ""));
    EXPECT_TRUE(pass3(kind, "DATE"));
    EXPECT_TRUE(pass3(kind, "DATE: today"));
    EXPECT_TRUE(pass3(kind, "DATE: today="));
    EXPECT_FALSE(pass3(kind, "DATE="));
    EXPECT_FALSE(pass3(kind, "DATED"));
    EXPECT_FALSE(pass3(kind, "UNKNOWN"));
    EXPECT_FALSE(pass3(kind, "UNKNOWN=x"));
    EXPECT_FALSE(pass3(kind, "DATE=x"));
  }
  // With a value it is of the second group.
  EXPECT_TRUE(pass3(TED_FRONT_END, "DATE: x=today"));
  EXPECT_FALSE(pass3(TED_BACK_END, "DATE: x=today"));
}

TEST_F(Catalogue, SideFileOptions)
{
  adeRecord = AdeRecord{};
  EXPECT_FALSE(pass3(TED_BACK_END, "ADE-PREFIX=proj"));
  EXPECT_FALSE(pass3(TED_FRONT_END, "ADE-PREFIX="));
  EXPECT_FALSE(pass3(TED_FRONT_END, "ADE-UNKNOWN=x"));
  EXPECT_FALSE(adeIsActive());
  EXPECT_TRUE(pass3(TED_FRONT_END, "ADE-PREFIX=proj"));
  EXPECT_EQ(adeRecord.prefix, "proj");
}

TEST_F(Catalogue, DroppedAndEmbeddingLinesRefused)
{
  for (int kind : {TED_DROPPED, TED_EMBEDDING})
    for (const char *text : {"ALLOW", "NAMELEN=40", "VERBOSE=1", "DATE", "",
                             "BEGIN-SCOPE=def", "END-SCOPE"})
      EXPECT_FALSE(pass3(kind, text)) << text;
  EXPECT_EQ(options->allow, 0);
  EXPECT_EQ(options->nameLen, 32);
  EXPECT_EQ(pass3Scope, 1);
}

TEST_F(Catalogue, KindsThatThereAreNot)
{
  for (int kind : {4, 255})
    for (const char *text :
         {"ALLOW", "ENCF=0", "TPREF=x_", "ENTRY=SDU", "//", "NAMELEN=40"})
      EXPECT_FALSE(pass3(kind, text)) << text;
  EXPECT_EQ(options->allow, 0);
  EXPECT_EQ(options->encF, 255);
  EXPECT_EQ(options->fixRecs[0].pref, nullptr);
  EXPECT_EQ(options->entryFixRec.conv, nullptr);
  EXPECT_EQ(options->commentTed.last, 0);
  EXPECT_EQ(options->nameLen, 32);
}

TEST_F(Catalogue, OptionsOfOthersAreGood)
{
  int level = verboseEx;
  for (int kind : {TED_BACK_END, TED_FRONT_END})
    for (const char *text :
         {"VERBOSE=", "VERBOSE=9", "A=", "A=asn", "L=lst", "STRICTSTANDARD",
          "STRICTSTANDARDS=x", "V=", "V=9", "PREFIXLEN=", "PREFIXLEN=99",
          "PREFIX=", "PREFIX=Xyz:nonsense:::"})
      EXPECT_TRUE(pass3(kind, text)) << text;
  EXPECT_EQ(verboseEx, level);
  EXPECT_EQ(options->prefixLen, 5);
  EXPECT_EQ(options->prefixes, nullptr);
  for (const char *text : {"VERBOSE", "A", "L", "V", "PREFIX", "STRICT", "S=x"})
    EXPECT_FALSE(catalogued(text)) << text;
}

TEST_F(Catalogue, CategoryOfAnotherModule)
{
  EXPECT_TRUE(catalogued("REENTRANT=yes"));
  EXPECT_TRUE(catalogued("DEFINITION-CATEGORY=def:OTHER"));
  EXPECT_EQ(options->definitionCategory, 0);
  EXPECT_EQ(options->memory, 0);
  EXPECT_EQ(options->zeroHome, 0);
  EXPECT_EQ(options->reentrant, 1);
}

TEST_F(Catalogue, CategoryBringsOptionsAlong)
{
  EXPECT_TRUE(catalogued("REENTRANT=yes"));
  EXPECT_TRUE(catalogued("COD=0:0:0"));
  EXPECT_TRUE(catalogued("DEFINITION-CATEGORY=VARNO-SERVICE"));
  const uint8_t service[17] = {0, 1, 1, 1};
  EXPECT_THAT(options->genArr, ElementsAreArray(service));
  EXPECT_EQ(options->memory, 1);
  EXPECT_EQ(options->zeroHome, 1);
  EXPECT_EQ(options->reentrant, 0);
  EXPECT_FALSE(catalogued("MEMORY=no"));
  EXPECT_FALSE(catalogued("ZEROHOME=0"));
  EXPECT_EQ(options->memory, 1);
  EXPECT_EQ(options->zeroHome, 1);
  EXPECT_TRUE(catalogued("VARNO=0"));
  EXPECT_EQ(options->genArr[5], 2);
  EXPECT_TRUE(catalogued("MEMORY=no"));
  EXPECT_EQ(options->memory, 0);
}

TEST_F(Catalogue, OldGenerationBringsSizes)
{
  EXPECT_TRUE(catalogued("C-GENERATION=OLD"));
  EXPECT_EQ(options->intSize, 7);
  EXPECT_EQ(options->nSize, 8);
  EXPECT_EQ(options->compMaskSize, 8);
  EXPECT_EQ(options->choiceSize, 7);
  EXPECT_TRUE(catalogued("INT=0"));
  EXPECT_EQ(options->intSize, 0);
}

// --- scopes -----------------------------------------------------------------

TEST_F(Catalogue, ScopeList)
{
  for (const char *list :
       {"abc", "abc:def", "def:abc", "xyz:abc:uvw", ":abc", "abc:", "abc:abc"})
    EXPECT_TRUE(moduleIsInScopeList(*abc, list)) << list;
  for (const char *list :
       {"", ":", "def", "def:xyz", "ab", "abcd", "ABC", "abc,def", "abc def"})
    EXPECT_FALSE(moduleIsInScopeList(*abc, list)) << list;
}

TEST_F(Catalogue, ScopeListOfModuleWithoutPrefix)
{
  ModRec *nameless = appendModRec(false);
  for (const char *list : {"", ":", "abc"})
    EXPECT_FALSE(moduleIsInScopeList(*nameless, list)) << list;
  EXPECT_TRUE(moduleIsInScopeList(*abc, "xyz:abc"));
}

TEST_F(Catalogue, ScopeStates)
{
  EXPECT_TRUE(catalogued("BEGIN-SCOPE=def:abc"));
  EXPECT_EQ(pass3Scope, 2);
  EXPECT_TRUE(catalogued("BEGIN-SCOPE=def"));
  EXPECT_EQ(pass3Scope, 0);
  EXPECT_TRUE(catalogued("BEGIN-SCOPE="));
  EXPECT_EQ(pass3Scope, 0);
  EXPECT_TRUE(catalogued("END-SCOPE"));
  EXPECT_EQ(pass3Scope, 1);
  EXPECT_TRUE(pass3(TED_BACK_END, "BEGIN-SCOPE=xyz"));
  EXPECT_EQ(pass3Scope, 0);
  EXPECT_TRUE(pass3(TED_BACK_END, "END-SCOPE and more"));
  EXPECT_EQ(pass3Scope, 1);
}

TEST_F(Catalogue, NoScopeLines)
{
  for (const char *text : {"BEGIN-SCOPE", "begin-scope=def", "END-SCOP"})
    EXPECT_FALSE(catalogued(text)) << text;
  EXPECT_EQ(pass3Scope, 1);
}

TEST_F(Catalogue, OutOfScopeEverythingIsGood)
{
  pass3Scope = 0;
  for (int kind : {TED_BACK_END, TED_FRONT_END})
    for (const char *text : {"NAMELEN=40", "NAMELEN=7", "ALLOW", "UNKNOWN",
                             "TPREF=+", "ENTRY=X:18", "//"})
      EXPECT_TRUE(pass3(kind, text)) << text;
  EXPECT_EQ(options->nameLen, 32);
  EXPECT_EQ(options->allow, 0);
  EXPECT_EQ(options->commentTed.last, 0);
  EXPECT_FALSE(pass3(TED_EMBEDDING, "NAMELEN=40"));
}

TEST_F(Catalogue, InScopeTheCatalogueHolds)
{
  pass3Scope = 2;
  EXPECT_TRUE(catalogued("NAMELEN=40"));
  EXPECT_FALSE(catalogued("NAMELEN=7"));
  EXPECT_FALSE(catalogued("UNKNOWN"));
  EXPECT_EQ(options->nameLen, 40);
}
