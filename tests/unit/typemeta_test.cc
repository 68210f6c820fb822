// Meta records of types and the options of their nodes.

#include "driver/typemeta.h"
#include "support/loadedrun.h"
#include "support/typetrees.h"
#include <filesystem>

struct TypeMeta : TypeTrees {
  AdeRecord ade = adeRecord;
  TypeMeta()
  {
    setCreateBETypMetaFlag(true);
    adeRecord = {};
    verboseEx = 2;
  }
  ~TypeMeta() override { adeRecord = ade; }

  // What a line of the back-end on an INTEGER prints.
  std::string printed(const char *line, int mainType = TYP_INTEGER)
  {
    TNode node = stxNewTNode(mainType);
    node.line = 7;
    int32_t record = define("T", node);
    stxNodeTed(tree, record, TED_BACK_END, line);
    start();
    testing::internal::CaptureStdout();
    TestType type(module, record);
    funcId = orNone(getMetaFuncId(*type));
    funcOption = orNone(getMetaFuncOption(*type));
    return testing::internal::GetCapturedStdout();
  }
  static std::string orNone(const char *text) { return text ? text : "none"; }
  std::string funcId, funcOption;
};

TEST_F(TypeMeta, NamesOfComponents)
{
  int32_t father = define("S", TYP_SEQ);
  comp(father, "a-b", TYP_NULL);
  comp(father, "c", TYP_NULL, TCS_OPTIONAL);
  marker(father);
  int32_t choice = define("C", TYP_CHOICE);
  comp(choice, "d", TYP_NULL);
  int32_t list = define("L", TYP_SEQOF);
  comp(list, "", TYP_NULL);
  start();
  static std::string seen;
  seen.clear();
  for (int32_t record : {father, choice, list}) {
    TestType type(module, record);
    EXPECT_EQ(getMetaCompId(*type), nullptr);
    forEachTypeCompOrElem(*type, [](AsnType &, AsnType &comp_, int) {
      seen += orNone(getMetaCompId(comp_)) + " ";
    });
  }
  EXPECT_EQ(seen, "a_b_fld c_fld extensionmarker d_fld none ");
}

TEST_F(TypeMeta, NamesOfTypes)
{
  int32_t foo = define("Foo", stxNewTNode(TYP_SEQ, VF_STRU));
  comp(foo, "a", stxNewTNode(TYP_CHOICE, VF_STRU));
  comp(foo, "b", stxNewTNode(TYP_INTEGER, VF_I32));
  comp(foo, "c", stxNewSynonym(integer));
  marker(foo);
  int32_t list = define("L", stxNewTNode(TYP_SEQOF, VF_STRU));
  comp(list, "", stxNewTNode(TYP_SET, VF_STRU));
  start();
  static std::string seen;
  seen.clear();
  for (int32_t record : {foo, list}) {
    TestType type(module, record);
    seen += orNone(getMetaTypeId(*type)) + "|" +
            orNone(getMetaBaseTypeId(*type)) + "\n";
    forEachTypeCompOrElem(*type, [](AsnType &, AsnType &comp_, int) {
      seen += orNone(getMetaTypeId(comp_)) + "|" +
              orNone(getMetaBaseTypeId(comp_)) + "\n";
    });
  }
  EXPECT_EQ(seen, "Foo|Foo\n"
                  "a_Foo|struct t_a_Foo\n"
                  "b_Foo|sint32\n"
                  "Int|Int\n"
                  "Foo|SKIPPED\n"
                  "L|L\n"
                  "1_L|struct t_1_L\n");
}

TEST_F(TypeMeta, NamesOfStringElements)
{
  const struct {
    int mainType;
    const char *name;
  } rows[] = {{TYP_BITSTR, "BITSTRING"},   {TYP_OCTSTR, "OCTET"},
              {TYP_NUMSTR, "NUMERICCHAR"}, {TYP_PRISTR, "PRINTABLECHAR"},
              {TYP_TELSTR, "T61CHAR"},     {TYP_VIDSTR, "VIDEOTEXCHAR"},
              {TYP_VISSTR, "VISIBLECHAR"}, {TYP_IA5STR, "IA5CHAR"},
              {TYP_GRASTR, "GRAPHICCHAR"}, {TYP_GENSTR, "GENERALCHAR"},
              {TYP_BMPSTR, "ASN_BMPCHAR"}, {TYP_UNISTR, "none"},
              {TYP_OBJDESCR, "none"},      {TYP_SEQ, "none"},
              {TYP_INTEGER, "none"},       {TYP_CHASTR, "none"}};
  std::vector<int32_t> records;
  for (const auto &row : rows)
    records.push_back(define("T" + std::to_string(row.mainType),
                             stxNewTNode(row.mainType, VF_STAS8)));
  int32_t dynamic = define("Dyn", stxNewTNode(TYP_OCTSTR, VF_DYNS8));
  start();
  for (size_t i = 0; i < records.size(); ++i) {
    TestType type(module, records[i]);
    EXPECT_EQ(orNone(getMetaHomeTypeId(*type)), rows[i].name);
    EXPECT_EQ(orNone(homeTypeId(*type)), rows[i].name);
  }
  // A predefined C type has its own.
  TestType type(module, dynamic);
  EXPECT_EQ(getMetaHomeTypeId(*type), nullptr);
  EXPECT_EQ(homeTypeId(*type), nullptr);
}

TEST_F(TypeMeta, NoRecordNoText)
{
  int32_t record = define("T", TYP_INTEGER);
  stxNodeTed(tree, record, TED_BACK_END, "-FUNC:f:x");
  start();
  setCreateBETypMetaFlag(false);
  TestType type(module, record);
  EXPECT_EQ(getMetaTypeId(*type), nullptr);
  EXPECT_EQ(getMetaBaseTypeId(*type), nullptr);
  EXPECT_EQ(getMetaHomeTypeId(*type), nullptr);
  EXPECT_EQ(getMetaCompId(*type), nullptr);
  EXPECT_EQ(getMetaFuncId(*type), nullptr);
  EXPECT_EQ(getMetaFuncOption(*type), nullptr);
}

TEST_F(TypeMeta, PartialType)
{
  start();
  TestType type(module, integer);
  type->partialInfo = true;
  EXPECT_EQ(newBETypMetaRec(*type), nullptr);
  // Its options are passed over, good or bad.
  testing::internal::CaptureStdout();
  typeBEOptionOK(*type, nullptr, "-XYZ");
  BETypMetaRec record;
  typeBEOptionOK(*type, &record, "-FUNC:f:x");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(record.funcId, "");
  deleteBETypMetaRec(*type, nullptr);
}

TEST_F(TypeMeta, FreshRecordFromTheCache)
{
  start();
  TestType type(module, integer);
  BETypMetaRec *record = newBETypMetaRec(*type);
  record->compId = record->funcId = record->funcOption = "used";
  record->typeId = record->baseTypeId = record->homeTypeId = "used";
  record->extensionInfoValid = 1;
  record->extensionInfo.addTotalCount = 3;
  deleteBETypMetaRec(*type, record);
  BETypMetaRec *again = newBETypMetaRec(*type);
  EXPECT_EQ(again->typeId, "Int");
  EXPECT_EQ(again->compId, "");
  EXPECT_EQ(again->homeTypeId, "");
  EXPECT_EQ(again->funcId, "");
  EXPECT_EQ(again->funcOption, "");
  EXPECT_EQ(again->extensionInfoValid, 0);
  EXPECT_EQ(again->extensionInfo.addTotalCount, 0);
  deleteBETypMetaRec(*type, again);
}

TEST_F(TypeMeta, TextsKeepTheirRoom)
{
  int32_t record = define("A_name_beyond_what_a_string_holds", TYP_SEQ);
  start();
  TestType type(module, record);
  BETypMetaRec *first = newBETypMetaRec(*type);
  const char *room = first->typeId.data();
  deleteBETypMetaRec(*type, first);
  BETypMetaRec *again = newBETypMetaRec(*type);
  EXPECT_EQ(again, first);
  EXPECT_EQ(again->typeId.data(), room);
  // Two at a time are two.
  BETypMetaRec *second = newBETypMetaRec(*type);
  EXPECT_NE(second, again);
  deleteBETypMetaRec(*type, second);
  deleteBETypMetaRec(*type, again);
}

TEST_F(TypeMeta, RecordWhileAnotherIsMade)
{
  // Names of a component ask for the types that it refers to.
  int32_t last = integer;
  for (int i = 0; i < 3; ++i)
    last = define("S" + std::to_string(i), stxNewSynonym(last));
  int32_t father = define("Foo", TYP_SEQ);
  comp(father, "a", stxNewSynonym(last));
  start();
  TestType type(module, father);
  static int visits;
  visits = 0;
  forEachTypeComp(*type, [](AsnType &, AsnType &comp_, int) {
    EXPECT_STREQ(getMetaTypeId(comp_), "Int");
    ++visits;
  });
  EXPECT_EQ(visits, 1);
}

TEST_F(TypeMeta, FuncOption)
{
  struct Case {
    const char *line;
    const char *id;
    const char *option;
  };
  const Case cases[] = {
      {"-FUNC:conv:a + b", "conv", "a + b"},
      {"-FUNC:c_2x:x:y:z", "c_2x", "x:y:z"},
      {"-BEO=QUORVEN=FUNC:Z9:t", "Z9", "t"},
      {"-FUNC:f:", "f", "none"},
  };
  for (const Case &c : cases) {
    EXPECT_EQ(printed(c.line), "") << c.line;
    EXPECT_EQ(funcId, c.id);
    EXPECT_EQ(funcOption, c.option);
  }
}

TEST_F(TypeMeta, LinesForOthers)
{
  for (const char *line : {"-BEO=OTHER=FUNC:f:x", "-BEO=quorven=FUNC:f:x"}) {
    EXPECT_EQ(printed(line), "");
    EXPECT_EQ(funcId, "none");
  }
}

TEST_F(TypeMeta, UnknownOptions)
{
  const char *const bad[] = {
      "-XYZ",
      "-FUNC",
      "-FUNC:",
      "-FUNC:f",
      "-FUNC::x",
      "-FUNC:9f:x",
      "-FUNC:_f:x",
      "-FUNC:f-g:x",
      "-func:f:x",
      "-FUNC=f:x",
      "-BEO=QUORVEN=LOGFILE=x",
  };
  for (const char *line : bad) {
    std::string text = printed(line);
    EXPECT_NE(text.find("asn/m.asn(7) : Warning"), std::string::npos) << line;
    size_t first = text.find("Unrecognized type specific option:");
    size_t second = text.find(line, first);
    EXPECT_NE(first, std::string::npos) << line;
    EXPECT_NE(second, std::string::npos) << line;
    EXPECT_EQ(funcId, "none") << line;
  }
}

TEST_F(TypeMeta, FuncOfATypeThatIsNoInteger)
{
  for (int mainType : {TYP_ENUM, TYP_REAL, TYP_SEQ}) {
    std::string text = printed("-FUNC:f:x", mainType);
    EXPECT_NE(text.find("Unrecognized type specific option:"),
              std::string::npos);
    EXPECT_EQ(funcId, "none");
  }
}

TEST_F(TypeMeta, UnknownOptionInTheSummary)
{
  adeRecord.prefix = "side";
  adeRecord.directory = dir.path;
  adeSummaryOpenFile();
  printed("-BEO=QUORVEN=XYZ");
  printed("-FUNC:f:x");
  adeSummaryCloseFile();
  std::string found;
  for (const auto &entry : std::filesystem::directory_iterator(dir.path))
    if (entry.path().filename().string().find("side") == 0)
      found += readFile(entry.path().string());
  EXPECT_EQ(found, "asn/m.asn:7: Warning : -BEO=QUORVEN=XYZ\n");
}

TEST_F(TypeMeta, QuietRunPrintsNothing)
{
  verboseEx = 1;
  EXPECT_EQ(printed("-XYZ"), "");
}

TEST_F(TypeMeta, OtherKindsOfLinesAreNoOptions)
{
  int32_t record = define("T", TYP_INTEGER);
  stxNodeTed(tree, record, TED_EMBEDDING, "-FUNC:f:x");
  stxNodeTed(tree, record, TED_FRONT_END, "-XYZ");
  start();
  testing::internal::CaptureStdout();
  TestType type(module, record);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(getMetaFuncId(*type), nullptr);
}
