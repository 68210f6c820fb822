// Fix records: the naming and entry options, what they store, and what the
// current node is called by them. (The conversion itself: fixrecname_test.cc.)

#include "options/fixrec.h"
#include "store/codes.h"
#include "store/module.h"
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>

// --- the names of the options -----------------------------------------------

struct SortRow {
  const char *prefix;
  int kind;
  int head;  // place among the heads: T, CL, V, VS, O, OS, C, F
};

static const SortRow sortRows[] = {
    {"VS", 5, 3}, {"OS", 6, 5}, {"CL", 2, 1}, {"T", 1, 0},
    {"V", 3, 2},  {"O", 4, 4},  {"C", 7, 6},  {"F", 8, 7},
};

static const char *const words[] = {"CONV", "PREF", "NAME", "SUFF"};

TEST(NameOptPref, Rows)
{
  ASSERT_EQ(std::size(nameOptPref), std::size(sortRows) + 1);
  for (size_t i = 0; i < std::size(sortRows); ++i) {
    EXPECT_STREQ(nameOptPref[i].prefix, sortRows[i].prefix);
    EXPECT_EQ(nameOptPref[i].kind, sortRows[i].kind);
  }
  EXPECT_STREQ(nameOptPref[8].prefix, "V");
  EXPECT_EQ(nameOptPref[8].kind, 9);
}

TEST(IsNamingOption, AllThirtyTwoNames)
{
  int count = 0;
  for (const SortRow &sort : sortRows) {
    for (const char *word : words) {
      std::string option = std::string(sort.prefix) + word + "=";
      const NameOption *row = nullptr;
      EXPECT_TRUE(isNamingOption(option.c_str(), &row)) << option;
      ASSERT_NE(row, nullptr) << option;
      EXPECT_EQ(row->kind, sort.kind) << option;
      EXPECT_TRUE(isNamingOption((option + "x").c_str(), nullptr)) << option;
      ++count;
    }
  }
  EXPECT_EQ(count, 32);
}

TEST(IsNamingOption, OtherNames)
{
  for (const char *text :
       {"",         "T",         "TCONV",    "tconv=",     "TConv=",
        "CONV=",    "PREF=x",    "SUFF=x",   "XPREF=x",    "TTPREF=x",
        "VVNAME=x", "CLLNAME=x", "VOPREF=x", "C=src",      "T=x",
        "TPREFS=x", "-TPREF=x",  " TPREF=x", "PREFIX=Abc", "ENTRY=x"})
    EXPECT_FALSE(isNamingOption(text, nullptr)) << text;
}

// --- well-formed values -----------------------------------------------------

struct NamingCase {
  const char *option;
  bool good;
};

static void expectNaming(std::initializer_list<NamingCase> cases)
{
  for (const NamingCase &row : cases) {
    const char *letter = nullptr;
    EXPECT_EQ(parseNamingOption(row.option, letter), row.good) << row.option;
  }
}

TEST(ParseNamingOption, Letter)
{
  for (const SortRow &sort : sortRows) {
    for (const char *word : words) {
      std::string option = std::string(sort.prefix) + word + "=";
      const char *letter = nullptr;
      EXPECT_TRUE(parseNamingOption(option.c_str(), letter)) << option;
      EXPECT_STREQ(letter, (word + std::string("=")).c_str()) << option;
    }
  }
  const char *letter = nullptr;
  EXPECT_FALSE(parseNamingOption("NAMELEN=3", letter));
  EXPECT_EQ(letter, nullptr);
}

TEST(ParseNamingOption, Conversions)
{
  expectNaming({{"TCONV=", true},
                {"TCONV=H", true},
                {"TCONV=h", true},
                {"TCONV=L", true},
                {"TCONV=l", true},
                {"TCONV=U", true},
                {"TCONV=u", true},
                {"TCONV=HL", true},
                {"TCONV=hu", true},
                {"TCONV=LH", false},
                {"TCONV=HH", false},
                {"TCONV=HLU", false},
                {"TCONV=LU", false},
                {"TCONV=X", false},
                {"TCONV=HL ", false},
                {"TCONV=Foo:HL", true},
                {"TCONV=Foo:", true},
                {"TCONV=Foo:x", false}});
}

TEST(ParseNamingOption, Texts)
{
  expectNaming({{"TPREF=aZ09-_", true},
                {"TNAME=9", true},
                {"TSUFF=", true},
                {"TPREF=a b", false},
                {"TNAME=a.b", false},
                {"TSUFF=a=b", false},
                {"TNAME=\xe4", false},
                {"TPREF=Foo:x_", true},
                {"TPREF=Foo:", true},
                {"TPREF=Foo:x:y", false},
                {"TPREF=Foo:a b", false}});
}

TEST(ParseNamingOption, DefinitionsBeginByTheirSort)
{
  struct {
    const char *prefix;
    bool capital, small, other;
  } cases[] = {{"T", true, false, false},  {"CL", true, false, false},
               {"VS", true, false, false}, {"OS", true, false, false},
               {"V", false, true, false},  {"O", false, true, false},
               {"C", false, true, false},  {"F", true, true, true}};
  for (const auto &row : cases) {
    std::string name = std::string(row.prefix) + "NAME=";
    const char *letter;
    EXPECT_EQ(parseNamingOption((name + "Foo:x").c_str(), letter), row.capital)
        << name;
    EXPECT_EQ(parseNamingOption((name + "foo:x").c_str(), letter), row.small)
        << name;
    for (const char *value : {"9oo:x", "-oo:x", ":x"})
      EXPECT_EQ(parseNamingOption((name + value).c_str(), letter), row.other)
          << name << value;
  }
}

TEST(ParseNamingOption, DefinitionNames)
{
  expectNaming({{"TNAME=Foo-Bar9:x", true},
                {"TNAME=F:x", true},
                {"TNAME=Foo_Bar:x", false},
                {"TNAME=Foo Bar:x", false},
                {"TNAME=Foo.:x", false},
                {"FNAME=&foo:x", false},
                {"FNAME=Foo_:x", false}});
}

struct EntryCase {
  const char *text;
  bool good;
  size_t name;  // its position
};

TEST(ParseEntryOption, Categories)
{
  const EntryCase cases[] = {
      {"PDU", true, 3},       {"SDU", true, 3},       {"pdu", true, 3},
      {"sDu", true, 3},       {"17", true, 2},        {"0", true, 1},
      {"01234567", true, 8},  {"", true, 0},          {"PDU:sym", true, 4},
      {"17:sym", true, 3},    {":sym", true, 1},      {"PDU:", true, 4},
      {":", true, 1},         {"PDU:a-Z_9", true, 4}, {"18", false, 1},
      {"8", false, 0},        {"18:sym", false, 1},   {"PDUS", false, 3},
      {"PD", false, 0},       {"ADU", false, 0},      {"PDU SDU", false, 3},
      {"17PDU", false, 2},    {"PDU:a.b", false, 4},  {"PDU:a:b", false, 4},
      {"PDU:\xe4", false, 4},
  };
  for (const EntryCase &row : cases) {
    const char *category = nullptr, *name = nullptr;
    EXPECT_EQ(parseEntryOption(row.text, category, name), row.good) << row.text;
    EXPECT_EQ(category, row.text);
    EXPECT_EQ(name, row.text + row.name) << row.text;
  }
}

struct SplitCase {
  const char *value;
  bool named;
  int length;
  const char *rest;
};

TEST(SplitFixOption, WithRecord)
{
  const SplitCase cases[] = {
      {"Foo:x_", true, 3, "x_"}, {"Foo-9:PDU:sym", true, 5, "PDU:sym"},
      {":x", true, 0, "x"},      {"Foo:", true, 3, ""},
      {"Foo::x", true, 3, ":x"}, {"Foo_Bar:x", true, 3, "_Bar:x"},
      {"x_", false, 0, "x_"},    {"", false, 0, ""},
  };
  for (const SplitCase &row : cases) {
    FixRec record;
    const char *name = "?", *rest = nullptr;
    int32_t length = -1;
    splitFixOptionIntoParts(&record, row.value, name, length, rest);
    EXPECT_EQ(name, row.named ? row.value : nullptr) << row.value;
    EXPECT_EQ(length, row.length) << row.value;
    EXPECT_STREQ(rest, row.rest) << row.value;
  }
}

TEST(SplitFixOption, WithoutRecord)
{
  const char *value = "Foo:x_", *name = "?", *rest = nullptr;
  int32_t length = -1;
  splitFixOptionIntoParts(nullptr, value, name, length, rest);
  EXPECT_EQ(name, nullptr);
  EXPECT_EQ(rest, value);
}

// --- storing ----------------------------------------------------------------

// A module "abc" whose options are fresh.
struct FixRecs : testing::Test {
  ModRec *module;
  GlobalOptions *options;
  FixRecs()
  {
    resetStore();
    cMP = module = appendModRec(true);
    options = &module->options;
    for (int32_t &next : module->nextFree)
      next = 1;
  }
  ~FixRecs() override { resetStore(); }

  // Applies an option given as NAME=value to the head for its sort.
  bool naming(const char *option) const
  {
    const NameOption *row = nullptr;
    option = internStri(option);
    return isNamingOption(option, &row) &&
           getFixOpt(&fixRecForKind(*options, row->kind), option,
                     strchr(option, '=') + 1);
  }
  bool entry(const char *option) const
  {
    option = internStri(option);
    return getFixOpt(&options->entryFixRec, option, strchr(option, '=') + 1);
  }
  int32_t line(int kind, const char *text) const
  {
    int32_t index = module->nextFree[REC_TED]++;
    tedRec = TedRec{};
    tedRec.tedKind = static_cast<uint8_t>(kind);
    tedRec.text = putStri(module, text);
    writeRec(module, REC_TED, index);
    return index;
  }
  // Makes a type of that name the current one; null: it has none.
  void type(const char *name, TedRange teds = {}, bool namingBit = true) const
  {
    tNode = TNode{};
    tNode.identifier = name ? putStri(module, name) : 0;
    tNode.firstTed = teds.first;
    tNode.lastTed = teds.last;
    tNode.nodeOptions = namingBit ? 1u << optNaming : 0;
    writeRec(module, REC_TNODE, module->nextFree[REC_TNODE]++);
  }
  void value(const char *name, TedRange teds = {}, bool namingBit = true) const
  {
    vNode = VNode{};
    vNode.identifier = putStri(module, name);
    vNode.firstTed = teds.first;
    vNode.lastTed = teds.last;
    vNode.valueFlags = namingBit ? VFL_NAMING : 0;
    writeRec(module, REC_VNODE, module->nextFree[REC_VNODE]++);
  }
  // What the current node is called.
  static std::string named(int kind)
  {
    FixRec record;
    getFixRec(record, kind);
    std::string text;
    return printFixRec(text, nullptr, record, nullptr);
  }
  std::string typeNamed(const char *name) const
  {
    type(name);
    return named(FIX_TYPE);
  }
};

TEST_F(FixRecs, HeadsByKind)
{
  for (const SortRow &sort : sortRows)
    EXPECT_EQ(&fixRecForKind(*options, sort.kind), &options->fixRecs[sort.head])
        << sort.prefix;
  EXPECT_EQ(&fixRecForKind(*options, FIX_COMP_VALUE),
            &fixRecForKind(*options, FIX_VALUE));
}

TEST_F(FixRecs, UnknownKind)
{
  for (int kind : {0, 10})
    EXPECT_EXIT(fixRecForKind(*options, kind), testing::ExitedWithCode(2),
                "Internal error");
}

TEST_F(FixRecs, EachOptionToItsField)
{
  for (const SortRow &sort : sortRows) {
    for (const char *word : words) {
      std::string value = word[0] == 'C' ? "HL" : std::string("v_") + word;
      std::string option = std::string(sort.prefix) + word + "=" + value;
      EXPECT_TRUE(naming(option.c_str())) << option;
    }
    const FixRec &head = options->fixRecs[sort.head];
    EXPECT_STREQ(head.conv, "HL") << sort.prefix;
    EXPECT_STREQ(head.pref, "v_PREF") << sort.prefix;
    EXPECT_STREQ(head.name, "v_NAME") << sort.prefix;
    EXPECT_STREQ(head.suff, "v_SUFF") << sort.prefix;
    EXPECT_EQ(head.next, nullptr) << sort.prefix;
  }
}

TEST_F(FixRecs, OneOptionTouchesOneField)
{
  EXPECT_TRUE(naming("VPREF=x"));
  for (const FixRec &head : options->fixRecs) {
    EXPECT_STREQ(head.pref, &head == &options->fixRecs[2] ? "x" : nullptr);
    EXPECT_EQ(head.name, nullptr);
    EXPECT_EQ(head.suff, nullptr);
    EXPECT_EQ(head.conv, nullptr);
  }
  EXPECT_EQ(options->entryFixRec.pref, nullptr);
}

TEST_F(FixRecs, RefusedOptionStoresNothing)
{
  for (const char *option : {"VNAME=Foo:x", "TNAME=foo:x", "TNAME=a b",
                             "TCONV=X", "TNAME=Foo_Bar:x", "TCONV=Foo:X"})
    EXPECT_FALSE(naming(option)) << option;
  for (const FixRec &head : options->fixRecs) {
    EXPECT_EQ(head.name, nullptr);
    EXPECT_EQ(head.conv, nullptr);
    EXPECT_EQ(head.next, nullptr);
  }
}

TEST_F(FixRecs, NamedDefinition)
{
  EXPECT_TRUE(naming("TPREF=Foo:x_"));
  const FixRec &head = options->fixRecs[0];
  EXPECT_EQ(head.pref, nullptr);
  ASSERT_NE(head.next, nullptr);
  EXPECT_STREQ(head.next->pref, "x_");
  EXPECT_EQ(head.next->name, nullptr);
  EXPECT_STREQ(head.next->id, "Foo:x_");
  EXPECT_EQ(head.next->idLen, 3);
  // Later options of the same name share the record.
  EXPECT_TRUE(naming("TSUFF=Foo:_y"));
  EXPECT_EQ(head.next->next, nullptr);
  EXPECT_STREQ(head.next->pref, "x_");
  EXPECT_STREQ(head.next->suff, "_y");
  EXPECT_TRUE(naming("TPREF=Fo:z_"));
  EXPECT_TRUE(naming("TPREF=Foo-:z_"));
  const FixRec *third = head.next->next->next;
  ASSERT_NE(third, nullptr);
  EXPECT_EQ(third->next, nullptr);
}

TEST_F(FixRecs, FieldOptionTakesAnyName)
{
  EXPECT_TRUE(naming("FNAME=Foo:x"));
  EXPECT_STREQ(options->fixRecs[7].next->name, "x");
  // Without a name in front of the ":" it is for all.
  EXPECT_TRUE(naming("FSUFF=:y"));
  EXPECT_STREQ(options->fixRecs[7].suff, "y");
}

TEST_F(FixRecs, CheckedWithoutRecord)
{
  EXPECT_TRUE(getFixOpt(nullptr, "TPREF=Foo:x_", "Foo:x_"));
  EXPECT_FALSE(getFixOpt(nullptr, "TPREF=foo:x_", "foo:x_"));
  EXPECT_FALSE(getFixOpt(nullptr, "NAMELEN=3", "3"));
  EXPECT_TRUE(getFixOpt(nullptr, "ENTRY=PDU:sym", "PDU:sym"));
  // Only a record makes the front part a type name.
  EXPECT_FALSE(getFixOpt(nullptr, "ENTRY=Foo:PDU", "Foo:PDU"));
}

TEST_F(FixRecs, FindOrAppendByEntryTypeName)
{
  FixRec &head = options->fixRecs[0];
  const char *text = "Foo-Bar:x";
  FixRec *record = findFixRecByEntryTypeName(head, text, 7);
  ASSERT_NE(record, nullptr);
  EXPECT_NE(record, &head);
  EXPECT_EQ(record->pref, nullptr);
  EXPECT_EQ(record->conv, nullptr);
  record->id = text;
  record->idLen = 7;
  EXPECT_EQ(findFixRecByEntryTypeName(head, "Foo-Bar:other", 7), record);
  FixRec *other = findFixRecByEntryTypeName(head, "Foo:x", 3);
  EXPECT_NE(other, record);
  other->id = "Foo:x";
  EXPECT_EQ(findFixRecByEntryTypeName(head, "Foo-Bar:z", 7), record);
  EXPECT_NE(findFixRecByEntryTypeName(head, "foo-bar:z", 7), record);
}

TEST_F(FixRecs, UpdateByLetter)
{
  FixRec record;
  EXPECT_TRUE(updateNamingOption(record, 'C', "HL"));
  EXPECT_TRUE(updateNamingOption(record, 'P', "p"));
  EXPECT_TRUE(updateNamingOption(record, 'N', ""));
  EXPECT_TRUE(updateNamingOption(record, 'S', "s"));
  EXPECT_FALSE(updateNamingOption(record, 'X', "x"));
  EXPECT_FALSE(updateNamingOption(record, 'c', "x"));
  EXPECT_STREQ(record.conv, "HL");
  EXPECT_STREQ(record.pref, "p");
  EXPECT_STREQ(record.name, "");
  EXPECT_STREQ(record.suff, "s");
}

TEST_F(FixRecs, UpdateEntry)
{
  FixRec record;
  EXPECT_TRUE(updateEntryOption(record, "PDU:sym", "sym"));
  EXPECT_STREQ(record.conv, "PDU:sym");
  EXPECT_STREQ(record.pref, "sym");
  EXPECT_TRUE(updateEntryOption(record, "17", ""));
  EXPECT_STREQ(record.conv, "17");
  EXPECT_EQ(record.pref, nullptr);
}

TEST_F(FixRecs, EntryOptions)
{
  EXPECT_TRUE(entry("ENTRY=X-PDU:PDU"));
  const FixRec *record = options->entryFixRec.next;
  ASSERT_NE(record, nullptr);
  EXPECT_STREQ(record->id, "X-PDU:PDU");
  EXPECT_EQ(record->idLen, 5);
  EXPECT_STREQ(record->conv, "PDU");
  EXPECT_EQ(record->pref, nullptr);
  EXPECT_TRUE(entry("ENTRY=X-PDU:PDU:sym"));
  EXPECT_EQ(options->entryFixRec.next, record);
  EXPECT_EQ(record->next, nullptr);
  EXPECT_STREQ(record->conv, "PDU:sym");
  EXPECT_STREQ(record->pref, "sym");
  EXPECT_TRUE(entry("ENTRY=X-PDU:17:other"));
  EXPECT_STREQ(record->conv, "17:other");
  EXPECT_STREQ(record->pref, "other");
  // Nothing of it reaches the names of types.
  EXPECT_EQ(options->fixRecs[0].next, nullptr);
}

TEST_F(FixRecs, EntryOptionsRefused)
{
  for (const char *option : {"ENTRY=X-PDU:18", "ENTRY=Foo", "ENTRY=Foo:XDU",
                             "ENTRY=Foo_Bar:PDU", "ENTRY=Foo:PDU:a.b"})
    EXPECT_FALSE(entry(option)) << option;
  EXPECT_EQ(options->entryFixRec.next, nullptr);
}

TEST_F(FixRecs, EntryOptionForAll)
{
  EXPECT_TRUE(entry("ENTRY=SDU"));
  EXPECT_STREQ(options->entryFixRec.conv, "SDU");
  EXPECT_EQ(options->entryFixRec.next, nullptr);
}

// --- look-up ----------------------------------------------------------------

TEST(CompareNames, CommonStart)
{
  struct {
    const char *a, *b;
    size_t length;
  } cases[] = {{"", "", 0},       {"a", "", 0},     {"abc", "abc", 3},
               {"abc", "abd", 2}, {"ab", "abc", 2}, {"a-b_c", "a_b-c", 5},
               {"Foo", "foo", 0}, {"a-", "a_:", 2}, {"-", "_", 1},
               {"a b", "a-b", 1}};
  for (const auto &row : cases) {
    EXPECT_EQ(compareNames(row.a, row.b), row.length) << row.a << row.b;
    EXPECT_EQ(compareNames(row.b, row.a), row.length) << row.b << row.a;
  }
}

TEST_F(FixRecs, FindGlbFixRecByName)
{
  EXPECT_TRUE(entry("ENTRY=X-PDU:PDU:sym"));
  EXPECT_TRUE(entry("ENTRY=X:SDU"));
  const FixRec &head = options->entryFixRec;
  for (const char *name : {"X-PDU", "X_PDU"}) {
    const FixRec *record = findGlbFixRecByName(head, name);
    ASSERT_NE(record, nullptr) << name;
    EXPECT_STREQ(record->pref, "sym") << name;
  }
  ASSERT_NE(findGlbFixRecByName(head, "X"), nullptr);
  EXPECT_STREQ(findGlbFixRecByName(head, "X")->conv, "SDU");
  for (const char *name : {"", "X-PD", "X-PDUS", "x-pdu", "X-PDU:", "XPDU"})
    EXPECT_EQ(findGlbFixRecByName(head, name), nullptr) << name;
  EXPECT_EQ(findGlbFixRecByName(options->fixRecs[0], "X"), nullptr);
}

TEST_F(FixRecs, RangeAndIdentifier)
{
  TedRange range;
  int32_t identifier = 0;
  type("MyType", {3, 4});
  int32_t typeName = tNode.identifier;
  value("myValue", {5, 6});
  int32_t valueName = vNode.identifier;
  for (int kind = 1; kind <= 9; ++kind) {
    bool ofValue = kind == 3 || kind == 4 || kind == 9;
    getTedRecAndCompIdByKind(kind, range, identifier);
    EXPECT_EQ(identifier, ofValue ? valueName : typeName) << kind;
    EXPECT_EQ(range.first, ofValue ? 5 : 3) << kind;
    EXPECT_EQ(range.last, ofValue ? 6 : 4) << kind;
  }
  type("MyType", {3, 4}, false);
  value("myValue", {5, 6}, false);
  for (int kind = 1; kind <= 9; ++kind) {
    getTedRecAndCompIdByKind(kind, range, identifier);
    EXPECT_EQ(range.last, 0) << kind;
  }
}

TEST_F(FixRecs, PlainIdentifier)
{
  type("My_Type");
  FixRec record;
  record.pref = "left over";
  getFixRec(record, FIX_TYPE);
  EXPECT_STREQ(record.id, "My_Type");
  EXPECT_EQ(record.idLen, 7);
  EXPECT_STREQ(record.name, "");
  EXPECT_STREQ(record.pref, "");
  EXPECT_STREQ(record.suff, "");
  EXPECT_STREQ(record.conv, "");
  EXPECT_EQ(named(FIX_TYPE), "My_Type");
  // Without a rule nothing is converted.
  EXPECT_EQ(typeNamed("My-Type"), "My-Type");
}

TEST_F(FixRecs, NoIdentifier)
{
  EXPECT_TRUE(naming("CPREF=x_"));
  type(nullptr);
  FixRec record;
  record.pref = "left over";
  record.idLen = 3;
  getFixRec(record, FIX_COMP);
  EXPECT_EQ(record.id, nullptr);
  EXPECT_EQ(record.idLen, 0);
  EXPECT_EQ(record.pref, nullptr);
  EXPECT_EQ(record.name, nullptr);
  EXPECT_EQ(record.suff, nullptr);
  EXPECT_EQ(record.conv, nullptr);
  EXPECT_EQ(named(FIX_COMP), "");
}

TEST_F(FixRecs, ModuleWide)
{
  EXPECT_TRUE(naming("TPREF=p_"));
  EXPECT_TRUE(naming("TSUFF=_s"));
  EXPECT_EQ(typeNamed("MyType"), "p_MyType_s");
  EXPECT_TRUE(naming("TNAME=N-1"));
  EXPECT_EQ(typeNamed("MyType"), "p_N_1_s");
  // Names of another sort are not touched.
  EXPECT_EQ(named(FIX_COMP), "MyType");
  value("myValue");
  EXPECT_EQ(named(FIX_VALUE), "myValue");
}

TEST_F(FixRecs, EachKindByItsOption)
{
  for (const SortRow &sort : sortRows) {
    std::string option = std::string(sort.prefix) + "PREF=" + sort.prefix + "_";
    EXPECT_TRUE(naming(option.c_str()));
  }
  type("X");
  value("x");
  const char *expected[] = {"",     "T_X",  "CL_X", "V_x", "O_x",
                            "VS_X", "OS_X", "C_X",  "F_X", "V_x"};
  for (int kind = 1; kind <= 9; ++kind)
    EXPECT_EQ(named(kind), expected[kind]) << kind;
}

TEST_F(FixRecs, NamedOverModuleWide)
{
  EXPECT_TRUE(naming("TPREF=Foo:f_"));
  EXPECT_TRUE(naming("TPREF=all_"));
  EXPECT_TRUE(naming("TSUFF=_s"));
  EXPECT_TRUE(naming("TSUFF=Bar-9:"));
  EXPECT_EQ(typeNamed("Foo"), "f_Foo_s");
  EXPECT_EQ(typeNamed("Other"), "all_Other_s");
  // A text that is present but empty overrides, too.
  EXPECT_EQ(typeNamed("Bar_9"), "all_Bar_9");
  EXPECT_EQ(typeNamed("foo"), "all_foo_s");
  EXPECT_EQ(typeNamed("Fo"), "all_Fo_s");
  EXPECT_EQ(typeNamed("Foo_1"), "all_Foo_1_s");
}

TEST_F(FixRecs, NamedDefinitionOnly)
{
  EXPECT_TRUE(naming("TPREF=Foo:x_"));
  EXPECT_EQ(typeNamed("Foo"), "x_Foo");
  EXPECT_EQ(typeNamed("foo"), "foo");
  EXPECT_EQ(typeNamed("Bar"), "Bar");
}

TEST_F(FixRecs, HyphensInNamesOfOptions)
{
  EXPECT_TRUE(naming("TNAME=My-Long-Type:Short"));
  EXPECT_EQ(typeNamed("My_Long_Type"), "Short");
  EXPECT_EQ(typeNamed("My-Long_Type"), "Short");
  EXPECT_EQ(typeNamed("MyLongType"), "MyLongType");
}

TEST_F(FixRecs, NodeOverNamedAndModuleWide)
{
  EXPECT_TRUE(naming("TPREF=all_"));
  EXPECT_TRUE(naming("TPREF=Foo:f_"));
  EXPECT_TRUE(naming("TSUFF=Foo:_f"));
  int32_t first = line(TED_FRONT_END, "-TPREF=n_");
  type("Foo", {first, first});
  EXPECT_EQ(named(FIX_TYPE), "n_Foo_f");
  type("Foo", {first, first}, false);
  EXPECT_EQ(named(FIX_TYPE), "f_Foo_f");
}

TEST_F(FixRecs, LinesOfTheNode)
{
  int32_t first = line(TED_FRONT_END, "-TNAME=one");
  line(TED_FRONT_END, "-CNAME=comp");
  line(TED_BACK_END, "-TNAME=two");
  line(TED_EMBEDDING, "-TNAME=three");
  line(TED_DROPPED, "-TNAME=four");
  line(TED_FRONT_END, "-tname=five");
  line(TED_FRONT_END, "-TNAMES=six");
  line(TED_FRONT_END, "");
  line(TED_FRONT_END, "-NAMELEN=8");
  int32_t last = line(TED_FRONT_END, "-TSUFF=_s");
  line(TED_FRONT_END, "-TPREF=behind_");
  type("Foo", {first, last});
  EXPECT_EQ(named(FIX_TYPE), "one_s");
  EXPECT_EQ(named(FIX_COMP), "comp");
  EXPECT_EQ(named(FIX_FIELD), "Foo");
}

TEST_F(FixRecs, LastLineOfTheNodeWins)
{
  int32_t first = line(TED_FRONT_END, "-VPREF=a_");
  line(TED_FRONT_END, "-VPREF=b_");
  int32_t last = line(TED_FRONT_END, "-VCONV=U");
  value("foo", {first, last});
  EXPECT_EQ(named(FIX_VALUE), "B_FOO");
  EXPECT_EQ(named(FIX_COMP_VALUE), "B_FOO");
  EXPECT_EQ(named(FIX_OBJECT), "foo");
}

TEST_F(FixRecs, LinesFromTheFirstOn)
{
  line(TED_FRONT_END, "-TPREF=a_");
  type("Foo", {0, 1});
  EXPECT_EQ(named(FIX_TYPE), "a_Foo");
}

TEST_F(FixRecs, LookUpLeavesTheCurrentLine)
{
  int32_t first = line(TED_FRONT_END, "-TPREF=a_");
  int32_t second = line(TED_BACK_END, "-X");
  type("Foo", {first, first});
  readRec(module, REC_TED, second);
  named(FIX_TYPE);
  EXPECT_EQ(tedRec.tedKind, TED_BACK_END);
  EXPECT_EQ(recJustRead[REC_TED].index, second);
}

// --- NAMELEN ----------------------------------------------------------------

TEST_F(FixRecs, LongNameIsCut)
{
  std::string name = "N" + std::string(39, 'n');
  EXPECT_EQ(typeNamed(name.c_str()), name.substr(0, 32));
  options->nameLen = 40;
  EXPECT_EQ(typeNamed(name.c_str()), name);
  options->nameLen = 8;
  EXPECT_EQ(typeNamed(name.c_str()), name.substr(0, 8));
  EXPECT_EQ(typeNamed("Short"), "Short");
}

TEST_F(FixRecs, PrefixAndSuffixAreNotCut)
{
  options->nameLen = 8;
  std::string prefix(20, 'p'), suffix(20, 's');
  EXPECT_TRUE(naming(("TPREF=" + prefix).c_str()));
  EXPECT_TRUE(naming(("TSUFF=" + suffix).c_str()));
  EXPECT_EQ(typeNamed("LongTypeName"), prefix + "LongType" + suffix);
}

TEST_F(FixRecs, ReplacementIsCutToNameLen)
{
  options->nameLen = 8;
  EXPECT_TRUE(naming("TNAME=Foo:Replacement"));
  // Cut by the length for names, not by that of "Foo".
  EXPECT_EQ(typeNamed("Foo"), "Replacem");
  options->nameLen = 32;
  EXPECT_EQ(typeNamed("Foo"), "Replacement");
}

TEST_F(FixRecs, WholeNameIsLookedUp)
{
  options->nameLen = 8;
  EXPECT_TRUE(naming("TPREF=LongTypeName:x_"));
  EXPECT_EQ(typeNamed("LongTypeName"), "x_LongType");
  EXPECT_EQ(typeNamed("LongTypeOther"), "LongType");
}

TEST_F(FixRecs, OptionsAreOfTheNodesModule)
{
  ModRec *other = appendModRec(false);
  other->nextFree[REC_STRI] = 1;
  other->nextFree[REC_TNODE] = 1;
  other->options.nameLen = 8;
  other->options.fixRecs[0].pref = "o_";
  EXPECT_TRUE(naming("TPREF=x_"));
  tNode = TNode{};
  tNode.identifier = putStri(other, "LongTypeName");
  writeRec(other, REC_TNODE, 1);
  EXPECT_EQ(named(FIX_TYPE), "o_LongType");
  EXPECT_EQ(typeNamed("LongTypeName"), "x_LongTypeName");
}

TEST_F(FixRecs, ConversionsByOption)
{
  EXPECT_TRUE(naming("TCONV=HL"));
  EXPECT_EQ(typeNamed("MyType"), "my_type");
  EXPECT_TRUE(naming("TCONV=Foo:U"));
  EXPECT_EQ(typeNamed("Foo"), "FOO");
  EXPECT_TRUE(naming("TCONV=U"));
  EXPECT_EQ(typeNamed("MyType"), "MYTYPE");
  // An empty rule puts the plain name back.
  EXPECT_TRUE(naming("TCONV=Foo:"));
  EXPECT_EQ(typeNamed("Foo"), "Foo");
}
