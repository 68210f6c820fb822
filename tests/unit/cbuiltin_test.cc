// Names of the run-time's functions, tags as C text, the utility context.

#include "cbet/cbuiltin.h"
#include "cbet/outfile.h"
#include "support/typetrees.h"

using testing::ExitedWithCode;

struct CBuiltin : TypeTrees {
  AsnType type;
  CBuiltin()
  {
    start();
    type.homeMod = &module;
  }
  ~CBuiltin() override
  {
    delDynaNodes(type.tagsFirst, type.tagsLast);
    clearOutFiles();
  }
  void set(int mainType, int format, int size = 1)
  {
    type.base.mainType = static_cast<uint8_t>(mainType);
    type.base.valueField = static_cast<uint8_t>(format);
    type.base.valueFieldSize = static_cast<uint8_t>(size);
  }
  template <class F>
  std::string between(F build)
  {
    std::string text = "old", plain;
    EXPECT_EQ(&build(text, "pe_", type, " ("), &text);
    build(plain, nullptr, type, nullptr);
    EXPECT_EQ(text, "pe_" + plain + " (");
    return plain;
  }
  std::string stem(int mainType, int format = VF_NONE)
  {
    set(mainType, format);
    return between(cBuiltinCFunc);
  }
  void options(uint32_t bits) { module.rec->options.cGeneration = bits; }
};

TEST_F(CBuiltin, Stems)
{
  const char *const stems[42] = {"Boolean",
                                 nullptr,
                                 nullptr,
                                 nullptr,
                                 "BitString",
                                 "OctetString",
                                 "NullType",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "Any",
                                 "",
                                 "ObjectIdentifier",
                                 "NumericString",
                                 "PrintableString",
                                 "T61String",
                                 "VideotexString",
                                 "VisibleString",
                                 "IA5String",
                                 "GraphicString",
                                 "GeneralString",
                                 "BMPString",
                                 "",
                                 "",
                                 "GeneralizedTimeDT",
                                 "UTCTimeDT",
                                 "External1990",
                                 "External1994",
                                 "GraphicString",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "",
                                 "",
                                 ""};
  for (int mainType = 0; mainType < 42; ++mainType)
    if (stems[mainType]) {
      EXPECT_EQ(stem(mainType), stems[mainType]) << mainType;
    }
  EXPECT_EQ(stem(255), "");
}

TEST_F(CBuiltin, Integers)
{
  const char *const stems[] = {"uint8", "uint16", "uint32", "uint64",
                               "sint8", "sint16", "sint32", "sint64"};
  for (int format = 2; format <= 9; ++format)
    for (int mainType : {TYP_INTEGER, TYP_ENUM})
      EXPECT_EQ(stem(mainType, format), stems[format - 2]);
  for (int format : {0, 1, 10, 22, 24, 36, 255})
    for (int mainType : {TYP_INTEGER, TYP_ENUM})
      EXPECT_EXIT(stem(mainType, format), ExitedWithCode(2),
                  "Internal error\n +CBET: Unable to construct a function "
                  "name\n");
}

TEST_F(CBuiltin, ExtensibleEnumerations)
{
  type.base.nodeFlags = NF_EXTENSIBLE;
  for (int format : {0, 2, 9, 24, 255})
    EXPECT_EQ(stem(TYP_ENUM, format), "XEnum");
  EXPECT_EQ(stem(TYP_INTEGER, 8), "sint32");
}

TEST_F(CBuiltin, Reals)
{
  EXPECT_EQ(stem(TYP_REAL, 10), "Real32");
  EXPECT_EQ(stem(TYP_REAL, 11), "Real64");
  EXPECT_EQ(stem(TYP_REAL, 12), "Real128");
  EXPECT_EQ(stem(TYP_REAL, 13), "");
  options(1u << 1);
  for (int format : {10, 11, 12, 13})
    EXPECT_EQ(stem(TYP_REAL, format), "Real");
}

TEST_F(CBuiltin, TimesAndExternals)
{
  options(1u << 2);
  EXPECT_EQ(stem(TYP_GENTIME), "GeneralizedTimeCT");
  EXPECT_EQ(stem(TYP_UTCTIME), "UTCTimeCT");
  EXPECT_EQ(stem(TYP_EXTERNAL), "External1990");
  options(1u << 3);
  EXPECT_EQ(stem(TYP_GENTIME), "GeneralizedTimeDT");
  EXPECT_EQ(stem(TYP_UTCTIME), "UTCTimeDT");
  EXPECT_EQ(stem(TYP_EXTERNAL), "External");
  EXPECT_EQ(stem(TYP_EXTERNAL_1994), "External1994");
}

// --- variants ---------------------------------------------------------------

TEST_F(CBuiltin, StringLayouts)
{
  const struct {
    int format;
    int size;
    const char *full;
    const char *test;
  } rows[] = {
      {VF_STAS0, 0, "OctetString0", "OctetString0"},
      {VF_STAS8, 2, "OctetString8", "OctetString"},
      {VF_STAS8, 6, "OctetString8", "OctetString"},
      {VF_STAS16, 3, "OctetString16", "OctetString"},
      {VF_STAS16, 7, "OctetString16", "OctetString"},
      {VF_STAS, 4, "OctetString", "OctetString"},
      {VF_STAS, 1, "OctetString", "OctetString"},
      {VF_DYNS0, 0, "DynOctetString0", "OctetString0"},
      {VF_DYNS8, 2, "DynOctetString8", "OctetString"},
      {VF_DYNS16, 7, "DynOctetString16", "OctetString"},
      {VF_DYNS, 8, "DynOctetString", "OctetString"},
      {VF_LIST, 0, "SegOctetString", "SegOctetString"},
      {VF_LIST, 2, "SegOctetString", "SegOctetString"},
  };
  for (const auto &row : rows) {
    set(TYP_OCTSTR, row.format, row.size);
    EXPECT_EQ(between(cBuiltinStringCFunc), row.full);
    EXPECT_EQ(between(cBuiltinStringTstCFunc), row.test);
    EXPECT_EQ(between(cBuiltinStringCodCFunc), row.test);
  }
}

TEST_F(CBuiltin, StemsOfWhatIsNotRepresented)
{
  set(TYP_OCTSTR, VF_FRM, 4);
  EXPECT_EQ(between(cBuiltinStringCFunc), "Frame");
  EXPECT_EQ(between(cBuiltinStringCodCFunc), "Frame");
  EXPECT_EQ(between(cBuiltinStringTstCFunc), "Frame");
  EXPECT_EQ(between(cBuiltinCodCFunc), "Frame");
  EXPECT_EQ(between(cBuiltinAnyCodCFunc), "Frame_0");
  type.base.nodeOptions = 1u << optSkip;
  set(TYP_OCTSTR, VF_STAS, 4);
  EXPECT_EQ(between(cBuiltinStringCFunc), "NullType");
  EXPECT_EQ(between(cBuiltinStringCodCFunc), "NullType");
  EXPECT_EQ(between(cBuiltinStringTstCFunc), "NullType");
  EXPECT_EQ(between(cBuiltinCodCFunc), "NullType");
  EXPECT_EQ(between(cBuiltinAnyCodCFunc), "NullType_0");
  // The marks for the layout stay.
  set(TYP_OCTSTR, VF_DYNS8, 6);
  EXPECT_EQ(between(cBuiltinStringCFunc), "DynNullType8");
  EXPECT_EQ(between(cBuiltinStringTstCFunc), "NullType");
  set(TYP_OCTSTR, VF_LIST, 0);
  EXPECT_EQ(between(cBuiltinStringCFunc), "SegNullType");
  EXPECT_EQ(between(cBuiltinStringCodCFunc), "SegNullType");
  set(TYP_OCTSTR, VF_FRM, 0);
  EXPECT_EQ(between(cBuiltinStringCFunc), "Frame0");
  EXPECT_EQ(between(cBuiltinStringTstCFunc), "Frame0");
  // The plain name does not look.
  EXPECT_EQ(between(cBuiltinCFunc), "OctetString");
}

// --- tags -------------------------------------------------------------------

struct CTags : TypeTrees {
  ~CTags() override { clearOutFiles(); }

  // A type with explicit context tags, outermost first, and its own.
  int32_t tagged(int mainType, const std::vector<int32_t> &numbers,
                 int lastMode = 1)
  {
    int32_t record = define("T" + std::to_string(tree.tNodes.size()),
                            stxNewTNode(mainType, VF_STAS));
    for (size_t i = 0; i < numbers.size(); ++i)
      stxAddTag(tree, record, TAG_CTX, numbers[i],
                i + 1 < numbers.size() ? 1 : lastMode);
    return record;
  }
  template <class F>
  std::string written(F write)
  {
    clearOutFiles();
    openNamedF(1, dir.path.c_str(), "out.c");
    write();
    closeF(1);
    return readFile(dir.path + "out.c");
  }
};

static AsnTag tagOf(int32_t tagClass, int32_t number)
{
  AsnTag tag;
  tag.tagClass = tagClass;
  tag.tagNumber = number;
  return tag;
}

TEST_F(CTags, Texts)
{
  const struct {
    int32_t tagClass;
    int32_t number;
    bool structured;
    const char *shortForm;
    const char *longForm;
  } rows[] = {
      {2, 3, true, "TAG8(TAG_CTX8, TAG_STR8, 3)", "TAG(TAG_CTX, TAG_STR, 3)"},
      {2, 31, true, "TAG(TAG_CTX, TAG_STR, 31)", "TAG(TAG_CTX, TAG_STR, 31)"},
      {0, 30, false, "TAG8(TAG_UNI8, TAG_PRI8, 30)",
       "TAG(TAG_UNI, TAG_PRI, 30)"},
      {1, 0, false, "TAG8(TAG_APP8, TAG_PRI8, 0)", "TAG(TAG_APP, TAG_PRI, 0)"},
      {3, 99, false, "TAG(TAG_PRV, TAG_PRI, 99)", "TAG(TAG_PRV, TAG_PRI, 99)"},
      {4, 1, false, "TAG8(8, TAG_PRI8, 1)", "TAG(, TAG_PRI, 1)"},
      {-1, 1, false, "TAG8(8, TAG_PRI8, 1)", "TAG(, TAG_PRI, 1)"},
  };
  for (const auto &row : rows) {
    AsnTag tag = tagOf(row.tagClass, row.number);
    std::string text = "old";
    EXPECT_EQ(cTagStri(text, nullptr, tag, row.structured, nullptr),
              row.shortForm);
    EXPECT_EQ(cTag32Stri(text, nullptr, tag, row.structured, nullptr),
              row.longForm);
    EXPECT_EQ(&tagStri(text, "<", tag, row.structured, false, ">"), &text);
    EXPECT_EQ(text, "<" + std::string(row.shortForm) + ">");
    tagStri(text, "<", tag, row.structured, true, ">");
    EXPECT_EQ(text, "<" + std::string(row.longForm) + ">");
    EXPECT_EQ(written([&] { cTagToF(1, "<", tag, row.structured, ">"); }),
              "<" + std::string(row.shortForm) + ">");
    EXPECT_EQ(
        written([&] { cTag32ToF(1, nullptr, tag, row.structured, nullptr); }),
        row.longForm);
  }
}

TEST_F(CTags, WrittenAsOneText)
{
  // It moves to the next line whole.
  std::string text = written([] {
    putToF(1, std::string(70, 'x').c_str());
    cTagToF(1, " ", tagOf(2, 3), true, ";");
  });
  EXPECT_EQ(text, std::string(70, 'x') + "\n  TAG8(TAG_CTX8, TAG_STR8, 3);");
}

TEST_F(CTags, InnermostAndOutermost)
{
  int32_t record = tagged(TYP_OCTSTR, {40, 7});
  start();
  TestType type(module, record);
  EXPECT_EQ(written([&] { cInnermostTagToF(1, "<", *type, false, ">"); }),
            "<TAG8(TAG_UNI8, TAG_PRI8, 4)>");
  EXPECT_EQ(written([&] { cInnermostTag32ToF(1, "<", *type, true, ">"); }),
            "<TAG(TAG_UNI, TAG_STR, 4)>");
  EXPECT_EQ(written([&] { cOutermostTag32ToF(1, "<", *type, true, ">"); }),
            "<TAG(TAG_CTX, TAG_STR, 40)>");
  std::string text = "old";
  EXPECT_EQ(&cOutermostTag32Stri(text, "<", *type, false, ">"), &text);
  EXPECT_EQ(text, "<TAG(TAG_CTX, TAG_PRI, 40)>");
}

TEST_F(CTags, TypeWithoutTags)
{
  int32_t record = tagged(TYP_ANY, {});
  start();
  TestType type(module, record);
  EXPECT_EQ(written([&] {
              cInnermostTagToF(1, "<", *type, false, ">");
              cInnermostTag32ToF(1, "<", *type, false, ">");
              cOutermostTag32ToF(1, "<", *type, false, ">");
            }),
            "");
  std::string text = "old";
  EXPECT_EQ(cOutermostTag32Stri(text, "<", *type, false, ">"), "");
  EXPECT_STREQ(cTagFuncSuff(*type), "");
}

TEST_F(CTags, Suffixes)
{
  // Implicit tags, so that they are the innermost ones.
  int32_t low = tagged(TYP_OCTSTR, {30}, 0);
  int32_t high = tagged(TYP_OCTSTR, {31}, 0);
  int32_t inner = tagged(TYP_OCTSTR, {31, 5}, 0);
  int32_t none = tagged(TYP_ANY, {});
  start();
  const struct {
    int32_t record;
    const char *suffix;
    const char *any;
  } rows[] = {
      {low, "_8", "_8"}, {high, "", ""}, {inner, "_8", "_8"}, {none, "", "_0"}};
  for (const auto &row : rows) {
    TestType type(module, row.record);
    std::string text = "old";
    std::string stem = row.record == none ? "Any" : "OctetString";
    EXPECT_STREQ(cTagFuncSuff(*type), row.suffix);
    EXPECT_EQ(cBuiltinCodCFunc(text, "b_", *type, " ("),
              "b_" + stem + row.suffix + " (");
    EXPECT_EQ(cBuiltinStringCodCFunc(text, "b_", *type, " ("),
              "b_" + stem + "0" + row.suffix + " (");
    EXPECT_EQ(cBuiltinStringTstCFunc(text, "b_", *type, " ("),
              "b_" + stem + "0 (");
    EXPECT_EQ(cBuiltinAnyCodCFunc(text, "b_", *type, " ("),
              std::string("b_Any") + row.any + " (");
  }
}

// --- the utility context ----------------------------------------------------

TEST(CAsnutig, References)
{
  const struct {
    int gIndex;
    const char *expected;
  } rows[] = {{0, "NULL"},       {1, "asncodg_asnuti"}, {2, "asntstg_asnuti"},
              {3, "asnutigPtr"}, {4, "asnperg_asnuti"}, {5, "asnnerg_asnuti"},
              {6, "NULL"},       {-1, "NULL"}};
  for (const auto &[gIndex, expected] : rows) {
    std::string text = "old", name = expected;
    EXPECT_EQ(&cRawAsnutigPtr(text, "<", gIndex, ">"), &text);
    EXPECT_EQ(text, "<" + name + ">");
    EXPECT_EQ(cRawAsnutigPtr(text, nullptr, gIndex, nullptr), name);
    EXPECT_EQ(cAsnutigPtr(text, "<", gIndex, true, ">"),
              "<ASNG_L(" + name + ")>");
    EXPECT_EQ(cAsnutigPtr(text, nullptr, gIndex, false, nullptr),
              "ASNG_F(" + name + ")");
  }
}
